// The whole road that a caller takes: transport blocks of a broadcast cycle through
// umts_sib_decoder (segment collection, conversions and the printed ASN.1 text included),
// a decode with its context set up and released as the library does it, and each
// conversion of the sample cell next to its decode alone.
//
// Input: bench/bch_cycle.bch (the sample cell's broadcast as scheduled over one SFN cycle,
// 1664 transport blocks, see its head) and the whole SIBs of the sample cell
// (samples/fdd_cell_sibs.txt).
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "codec_test_util.h"
#include "umts_sib_decoder.h"
#include "umts_sib_frame.h"
#include "umts_sib_json.h"

namespace {

using Bytes = std::vector<uint8_t>;

std::vector<Bytes> readBlocks(const std::string& path) {
  std::vector<Bytes> out;
  std::ifstream in(path);
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    out.push_back(testutil::fromHex(line));
  }
  return out;
}

const std::vector<Bytes>& cycle() {
  static const std::vector<Bytes> all = readBlocks(UMTS_BENCH_DIR "/bch_cycle.bch");
  return all;
}

// The whole SIBs of the sample cell by name ("mib", "sib3", ...).
const std::map<std::string, Bytes>& sibs() {
  static const std::map<std::string, Bytes> all = [] {
    std::map<std::string, Bytes> out;
    std::ifstream in(UMTS_SAMPLES_DIR "/fdd_cell_sibs.txt");
    std::string line;
    while (std::getline(in, line)) {
      if (line.empty() || line[0] == '#') continue;
      std::istringstream ls(line);
      std::string name, hex;
      ls >> name >> hex;
      out[name] = testutil::fromHex(hex);
    }
    return out;
  }();
  return all;
}

// The result record: large, one for the whole program, from the library (its records are
// cleared by what the conversion before wrote).
umts_sib_set* resultSet() {
  static umts_sib_set* set = umts_sib_set_alloc();
  return set;
}

// A record of the caller's own memory, which the library clears whole before each
// conversion.
umts_sib_set* callersSet() {
  static umts_sib_set* set = static_cast<umts_sib_set*>(std::calloc(1, sizeof(umts_sib_set)));
  return set;
}

// Empties every slot, as at load (the driver frees what the slots hold).
void emptySlots() {
  for (umts_sib_slot& s : g_umts_ctxt.slots) {
    std::free(s.buffer);
    std::memset(&s, 0, sizeof s);
  }
  g_umts_ctxt.request_bitmask = 0;
}

// ---- The library road --------------------------------------------------------------------

// Standard output (the library's messages) sent to `fd` while the object lives.
struct StdoutTo {
  int saved;
  explicit StdoutTo(int fd) {
    std::fflush(stdout);
    saved = dup(STDOUT_FILENO);
    dup2(fd, STDOUT_FILENO);
  }
  ~StdoutTo() {
    std::fflush(stdout);
    dup2(saved, STDOUT_FILENO);
    close(saved);
  }
};

// Every block of the cycle in turn through umts_sib_decoder; `text` is the print stream, or
// null for no text. A file is written from its start again after every `rewind_blocks`
// blocks, so that the run keeps rewriting the same pages of the page cache instead of growing
// the file by gigabytes.
void road(benchmark::State& state, FILE* text, size_t rewind_blocks, umts_sib_set* set = resultSet()) {
  const std::vector<Bytes>& blocks = cycle();
  emptySlots();
  const int null_fd = open("/dev/null", O_WRONLY);
  StdoutTo messages(null_fd);
  umts_sib_print_to(text);
  size_t i = 0, converted = 0, since_rewind = 0;
  double text_bytes = 0;
  for (auto _ : state) {
    const Bytes& b = blocks[i];
    i = i + 1 == blocks.size() ? 0 : i + 1;
    set->presence_bitmask = 0;
    benchmark::DoNotOptimize(umts_sib_decoder(b.data(), set, static_cast<uint32_t>(b.size())));
    converted += static_cast<size_t>(__builtin_popcount(set->presence_bitmask));
    if (rewind_blocks != 0 && ++since_rewind == rewind_blocks) {
      umts_sib_print_flush();
      text_bytes += static_cast<double>(std::ftell(text));
      std::fseek(text, 0, SEEK_SET);
      since_rewind = 0;
    }
  }
  umts_sib_print_flush();
  if (text != nullptr) text_bytes += static_cast<double>(std::ftell(text));
  state.SetItemsProcessed(state.iterations());
  const double n = static_cast<double>(state.iterations());
  state.counters["records"] = benchmark::Counter(static_cast<double>(converted) / n);
  if (rewind_blocks != 0) state.counters["text_bytes"] = benchmark::Counter(text_bytes / n);
  umts_sib_print_to(stdout);
  close(null_fd);
  emptySlots();
}

// The ASN.1 text to a file (a temporary file with a buffer of 1 MB, rewritten from its start
// after every 16384 blocks, about 58 MB).
void BM_Road_TextToFile(benchmark::State& state) {
  FILE* f = std::tmpfile();
  if (f == nullptr) {
    state.SkipWithError("no temporary file");
    return;
  }
  static char buffer[1 << 20];
  std::setvbuf(f, buffer, _IOFBF, sizeof buffer);
  road(state, f, 16384);
  std::fclose(f);
}
BENCHMARK(BM_Road_TextToFile);

// The ASN.1 text to /dev/null (through a stream with a buffer of 1 MB): the library's own
// cost, without the page cache.
void BM_Road_TextToDevNull(benchmark::State& state) {
  FILE* f = std::fopen("/dev/null", "w");
  if (f == nullptr) {
    state.SkipWithError("no /dev/null");
    return;
  }
  static char buffer[1 << 20];
  std::setvbuf(f, buffer, _IOFBF, sizeof buffer);
  road(state, f, 0);
  std::fclose(f);
}
BENCHMARK(BM_Road_TextToDevNull);

// No ASN.1 text: umts_sib_print_to(NULL).
void BM_Road_TextOff(benchmark::State& state) { road(state, nullptr, 0); }
BENCHMARK(BM_Road_TextOff);

// The same into a set of the caller's own memory: every record written with zeros whole
// before its conversion (4.4 MB at each SIB5).
void BM_Road_TextOff_CallersSet(benchmark::State& state) { road(state, nullptr, 0, callersSet()); }
BENCHMARK(BM_Road_TextOff_CallersSet);

// ---- One decode, with and without its context ---------------------------------------------

// The decode alone: one context reused, reset between messages.
template <typename T>
void decodeAlone(benchmark::State& state, int (*decode)(rtxContext*, T*), const std::vector<Bytes>& inputs) {
  rtxContext ctx;
  rtInitContext(&ctx);
  T value;
  size_t i = 0;
  for (auto _ : state) {
    const Bytes& b = inputs[i];
    i = i + 1 == inputs.size() ? 0 : i + 1;
    rtxResetContext(&ctx);
    pu_setBuffer(&ctx, b.data(), static_cast<uint32_t>(b.size()), 0);
    std::memset(&value, 0, sizeof value);
    benchmark::DoNotOptimize(decode(&ctx, &value));
    benchmark::DoNotOptimize(value);
  }
  rtFreeContext(&ctx);
  state.SetItemsProcessed(state.iterations());
}

// The whole decode as the BCH entry and the conversions make it: a local context
// initialised, the buffer set, the decode, the context freed.
template <typename T>
void decodeWhole(benchmark::State& state, int (*decode)(rtxContext*, T*), const std::vector<Bytes>& inputs) {
  size_t i = 0;
  for (auto _ : state) {
    const Bytes& b = inputs[i];
    i = i + 1 == inputs.size() ? 0 : i + 1;
    rtxContext ctx;
    rtInitContextUsingKey(&ctx, nullptr, 0);
    pu_setBuffer(&ctx, b.data(), static_cast<uint32_t>(b.size()), 0);
    T value;
    std::memset(&value, 0, sizeof value);
    benchmark::DoNotOptimize(decode(&ctx, &value));
    benchmark::DoNotOptimize(value);
    rtFreeContext(&ctx);
  }
  state.SetItemsProcessed(state.iterations());
}

// The SIB of the sample cell, padded to the decode window as a slot holds it.
std::vector<Bytes> sib(const char* name) {
  auto it = sibs().find(name);
  if (it == sibs().end()) return {};
  Bytes b = it->second;
  b.resize(UMTS_SIB_DECODE_LENGTH, 0);
  return {b};
}

void BM_DecodeAlone_BchBlock(benchmark::State& s) { decodeAlone(s, asn1PD_UMTS_BCCH_BCH_Message, cycle()); }
void BM_DecodeWhole_BchBlock(benchmark::State& s) { decodeWhole(s, asn1PD_UMTS_BCCH_BCH_Message, cycle()); }
BENCHMARK(BM_DecodeAlone_BchBlock);
BENCHMARK(BM_DecodeWhole_BchBlock);

// ---- Conversions --------------------------------------------------------------------------

// A conversion as the driver runs it (context, decode, record cleared and filled), its slot
// holding the sample cell's SIB, with the text off; into a set of the library (the record
// cleared by what the conversion before wrote) or of the caller's own (written whole).
template <typename R>
void convert(benchmark::State& state, umts_sib_id id, uint8_t (*conversion)(R*), R umts_sib_set::*member,
             umts_sib_set* set) {
  std::vector<Bytes> bytes = sib(umts_sib_name(id));
  if (bytes.empty()) {
    state.SkipWithError("the sample cell does not carry this block");
    return;
  }
  emptySlots();
  const int null_fd = open("/dev/null", O_WRONLY);
  StdoutTo messages(null_fd);
  umts_sib_print_to(nullptr);
  g_umts_ctxt.slots[id].buffer = bytes[0].data();
  R* record = &(set->*member);
  for (auto _ : state) benchmark::DoNotOptimize(conversion(record));
  g_umts_ctxt.slots[id].buffer = nullptr;
  umts_sib_print_to(stdout);
  close(null_fd);
  state.SetItemsProcessed(state.iterations());
}

// Per block of the sample cell: the decode alone, the decode with its context, and the
// conversion (which holds the decode with its context) into either set.
#define BLOCK_BENCH(Name, name, Type, id, conversion, member)                                         \
  void BM_DecodeAlone_##Name(benchmark::State& s) { decodeAlone(s, asn1PD_UMTS_##Type, sib(name)); } \
  void BM_DecodeWhole_##Name(benchmark::State& s) { decodeWhole(s, asn1PD_UMTS_##Type, sib(name)); } \
  void BM_Convert_##Name(benchmark::State& s) {                                                     \
    convert(s, id, conversion, &umts_sib_set::member, resultSet());                                 \
  }                                                                                                 \
  void BM_ConvertCallersSet_##Name(benchmark::State& s) {                                           \
    convert(s, id, conversion, &umts_sib_set::member, callersSet());                                \
  }                                                                                                 \
  BENCHMARK(BM_DecodeAlone_##Name);                                                                 \
  BENCHMARK(BM_DecodeWhole_##Name);                                                                 \
  BENCHMARK(BM_Convert_##Name);                                                                     \
  BENCHMARK(BM_ConvertCallersSet_##Name);

BLOCK_BENCH(MIB, "mib", MasterInformationBlock, umts_sib_mib, umts_convert_mib, mib)
BLOCK_BENCH(SB1, "sb1", SysInfoTypeSB1, umts_sib_sb1, convert_scheduling_block1, sb1)
BLOCK_BENCH(SIB1, "sib1", SysInfoType1, umts_sib_sib1, umts_convert_sib1, sib1)
BLOCK_BENCH(SIB3, "sib3", SysInfoType3, umts_sib_sib3, umts_convert_sib3, sib3)
BLOCK_BENCH(SIB18, "sib18", SysInfoType18, umts_sib_sib18, umts_convert_sib18, sib18)
BLOCK_BENCH(SIB5, "sib5", SysInfoType5, umts_sib_sib5, umts_convert_sib5, sib5)
BLOCK_BENCH(SIB11, "sib11", SysInfoType11, umts_sib_sib11, umts_convert_sib11, sib11)
BLOCK_BENCH(SIB12, "sib12", SysInfoType12, umts_sib_sib12, umts_convert_sib12, sib12)

}  // namespace

BENCHMARK_MAIN();
