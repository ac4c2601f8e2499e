// Codec speed: decoding and encoding of BCH transport blocks and of the SIB types that the
// library converts, codec only (no conversion, no printing). One context is reused and reset
// between messages, as a scanner decoding block after block would do.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "codec_test_util.h"

namespace {

struct Encoding {
  std::vector<uint8_t> bytes;
  uint64_t bits;
};

std::vector<Encoding> readVectors(const std::string& type_name) {
  std::vector<Encoding> out;
  std::ifstream in(UMTS_TEST_DATA_DIR "/roundtrip_vectors.txt");
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream ls(line);
    std::string type, hex;
    Encoding e;
    ls >> type >> e.bits >> hex;
    if (type != type_name || hex == "-") continue;
    e.bytes = testutil::fromHex(hex);
    out.push_back(std::move(e));
  }
  return out;
}

// The whole SIBs of the sample cell, by type: what a real cell broadcasts.
std::map<std::string, std::vector<Encoding>> loadSamples() {
  static const std::map<std::string, std::string> kTypes = {
      {"mib", "MasterInformationBlock"}, {"sb1", "SysInfoTypeSB1"}, {"sb2", "SysInfoTypeSB2"},
      {"sib1", "SysInfoType1"},          {"sib2", "SysInfoType2"},  {"sib3", "SysInfoType3"},
      {"sib5", "SysInfoType5"},          {"sib7", "SysInfoType7"},  {"sib11", "SysInfoType11"},
      {"sib11bis", "SysInfoType11bis"},  {"sib12", "SysInfoType12"}, {"sib18", "SysInfoType18"}};
  std::map<std::string, std::vector<Encoding>> out;
  std::ifstream in(UMTS_SAMPLES_DIR "/fdd_cell_sibs.txt");
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream ls(line);
    std::string name, hex;
    ls >> name >> hex;
    auto it = kTypes.find(name);
    if (it == kTypes.end()) continue;
    Encoding e;
    e.bytes = testutil::fromHex(hex);
    e.bits = 8 * e.bytes.size();
    out[it->second].push_back(std::move(e));
  }
  return out;
}

// Encodings of a type: the sample cell's (realistic sizes) or the generated round-trip
// vectors (random values, every optional part exercised).
const std::vector<Encoding>& encodings(const std::string& type_name, bool random) {
  static std::map<std::string, std::vector<Encoding>> vectors;
  static const auto samples = loadSamples();
  static const std::vector<Encoding> none;
  if (!random) {
    auto it = samples.find(type_name);
    return it == samples.end() ? none : it->second;
  }
  auto it = vectors.find(type_name);
  if (it == vectors.end()) it = vectors.emplace(type_name, readVectors(type_name)).first;
  return it->second;
}

// The transport blocks of the sample cell, and a real one captured from a cell.
std::vector<std::vector<uint8_t>> loadBlocks() {
  std::vector<std::vector<uint8_t>> out;
  out.push_back(testutil::fromHex("a143f686e52a22282f36928cc1852026d2519830afacda4a330614909b4944"));
  std::ifstream in(UMTS_SAMPLES_DIR "/fdd_cell.bch");
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    out.push_back(testutil::fromHex(line));
  }
  return out;
}

const std::vector<std::vector<uint8_t>>& blocks() {
  static const auto all = loadBlocks();
  return all;
}

void BM_DecodeBchBlock(benchmark::State& state) {
  rtxContext ctx;
  rtInitContext(&ctx);
  BCCH_BCH_Message msg;
  const auto& all = blocks();
  size_t i = 0;
  for (auto _ : state) {
    const std::vector<uint8_t>& b = all[i];
    i = i + 1 == all.size() ? 0 : i + 1;
    rtxResetContext(&ctx);
    pu_setBuffer(&ctx, b.data(), static_cast<uint32_t>(b.size()), 0);
    int stat = asn1PD_UMTS_BCCH_BCH_Message(&ctx, &msg);
    benchmark::DoNotOptimize(stat);
    benchmark::DoNotOptimize(msg);
  }
  rtFreeContext(&ctx);
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_DecodeBchBlock);

void BM_EncodeBchBlock(benchmark::State& state) {
  const auto& all = blocks();
  std::vector<std::unique_ptr<testutil::Decoded>> values;
  const umts_type_info* type = umts_type_lookup("BCCH_BCH_Message");
  for (const auto& b : all) {
    values.emplace_back(new testutil::Decoded);
    testutil::decode(type, b, *values.back());
  }
  rtxContext ctx;
  rtInitContext(&ctx);
  uint8_t out[64];
  size_t i = 0;
  for (auto _ : state) {
    testutil::Decoded& v = *values[i];
    i = i + 1 == values.size() ? 0 : i + 1;
    rtxInitContextBuffer(&ctx, out, sizeof out);
    int stat = asn1PE_UMTS_BCCH_BCH_Message(&ctx, static_cast<const BCCH_BCH_Message*>(v.value()));
    benchmark::DoNotOptimize(stat);
    benchmark::DoNotOptimize(out);
  }
  rtFreeContext(&ctx);
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_EncodeBchBlock);

// Decoding of every encoding of one type in turn.
void decodeType(benchmark::State& state, const char* type_name, bool random) {
  const umts_type_info* type = umts_type_lookup(type_name);
  const std::vector<Encoding>& list = encodings(type->c_name, random);
  if (list.empty()) {
    state.SkipWithError("no encodings");
    return;
  }
  std::vector<uint8_t> record(type->size);
  rtxContext ctx;
  rtInitContext(&ctx);
  size_t i = 0, bits = 0;
  for (auto _ : state) {
    const Encoding& e = list[i];
    i = i + 1 == list.size() ? 0 : i + 1;
    rtxResetContext(&ctx);
    pu_setBuffer(&ctx, e.bytes.data(), static_cast<uint32_t>(e.bytes.size()), 0);
    int stat = type->decode(&ctx, record.data());
    benchmark::DoNotOptimize(stat);
    bits += e.bits;
  }
  rtFreeContext(&ctx);
  state.SetItemsProcessed(state.iterations());
  state.counters["bits"] = benchmark::Counter(static_cast<double>(bits) / static_cast<double>(state.iterations()));
}

// Encoding of the same values; each is decoded once beforehand into a context of its own.
void encodeType(benchmark::State& state, const char* type_name, bool random) {
  const umts_type_info* type = umts_type_lookup(type_name);
  const std::vector<Encoding>& list = encodings(type->c_name, random);
  if (list.empty()) {
    state.SkipWithError("no encodings");
    return;
  }
  std::vector<std::unique_ptr<testutil::Decoded>> values;
  for (const Encoding& e : list) {
    values.emplace_back(new testutil::Decoded);
    testutil::decode(type, e.bytes, *values.back());
  }
  rtxContext ctx;
  rtInitContext(&ctx);
  // The output buffer holds the largest encoding of the set, rounded up to 64 bytes, as a
  // caller sizes its buffer for the messages it writes (a new buffer is cleared, so its size
  // counts in the time).
  size_t largest = 0;
  for (const Encoding& e : list) largest = std::max(largest, e.bytes.size());
  std::vector<uint8_t> out((largest + 63) / 64 * 64);
  size_t i = 0;
  for (auto _ : state) {
    testutil::Decoded& v = *values[i];
    i = i + 1 == values.size() ? 0 : i + 1;
    rtxInitContextBuffer(&ctx, out.data(), static_cast<uint32_t>(out.size()));
    int stat = type->encode(&ctx, v.value());
    benchmark::DoNotOptimize(stat);
  }
  rtFreeContext(&ctx);
  state.SetItemsProcessed(state.iterations());
}

// Decode and encode of the sample cell's value of a type (when the cell carries it) and of
// the generated random values.
// Random values of a type, and for the blocks that the sample cell carries its own value too.
#define RANDOM_BENCH(T)                                                                \
  void BM_DecodeRandom_##T(benchmark::State& s) { decodeType(s, #T, true); }           \
  BENCHMARK(BM_DecodeRandom_##T);                                                      \
  void BM_EncodeRandom_##T(benchmark::State& s) { encodeType(s, #T, true); }           \
  BENCHMARK(BM_EncodeRandom_##T);
#define SIB_BENCH(T)                                                                   \
  void BM_Decode_##T(benchmark::State& s) { decodeType(s, #T, false); }                \
  BENCHMARK(BM_Decode_##T);                                                            \
  void BM_Encode_##T(benchmark::State& s) { encodeType(s, #T, false); }                \
  BENCHMARK(BM_Encode_##T);                                                            \
  RANDOM_BENCH(T)

SIB_BENCH(MasterInformationBlock)
SIB_BENCH(SysInfoTypeSB1)
RANDOM_BENCH(SysInfoTypeSB2)
SIB_BENCH(SysInfoType1)
SIB_BENCH(SysInfoType2)
SIB_BENCH(SysInfoType3)
SIB_BENCH(SysInfoType5)
SIB_BENCH(SysInfoType7)
SIB_BENCH(SysInfoType11)
RANDOM_BENCH(SysInfoType11bis)
SIB_BENCH(SysInfoType12)
RANDOM_BENCH(SysInfoType16)
SIB_BENCH(SysInfoType18)

}  // namespace

BENCHMARK_MAIN();
