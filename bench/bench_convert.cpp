// Conversion speed of the measurement blocks: the sample cell's SIB11 and SIB12 through
// umts_sib_msg_decoder (slot copy, decoding, the print of the decoded value to a discarded
// standard output, clearing and filling of the record), next to the codec's decode of the
// same bytes alone.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "codec_test_util.h"
#include "umts_sib_decoder.h"

namespace {

std::vector<uint8_t> sampleSib(const std::string& name) {
  std::ifstream in(UMTS_SAMPLES_DIR "/fdd_cell_sibs.txt");
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream ls(line);
    std::string n, hex;
    ls >> n >> hex;
    if (n == name) return testutil::fromHex(hex);
  }
  return {};
}

// The codec alone: one context, reset between messages.
void codecDecode(benchmark::State& state, const char* name, const char* type_name) {
  const std::vector<uint8_t> bytes = sampleSib(name);
  const umts_type_info* type = umts_type_lookup(type_name);
  if (bytes.empty() || type == nullptr) {
    state.SkipWithError("no sample");
    return;
  }
  std::vector<uint8_t> record(type->size);
  rtxContext ctx;
  rtInitContext(&ctx);
  for (auto _ : state) {
    rtxResetContext(&ctx);
    pu_setBuffer(&ctx, const_cast<uint8_t*>(bytes.data()), static_cast<uint32_t>(bytes.size()), 0);
    int stat = type->decode(&ctx, record.data());
    benchmark::DoNotOptimize(stat);
  }
  rtFreeContext(&ctx);
  state.SetItemsProcessed(state.iterations());
}

// The whole conversion, standard output sent to /dev/null for the print.
void convert(benchmark::State& state, const char* name, umts_sib_id id) {
  const std::vector<uint8_t> bytes = sampleSib(name);
  if (bytes.empty()) {
    state.SkipWithError("no sample");
    return;
  }
  umts_sib_set* set = static_cast<umts_sib_set*>(std::calloc(1, sizeof(umts_sib_set)));
  std::fflush(stdout);
  const int saved = dup(1);
  const int null = open("/dev/null", O_WRONLY);
  dup2(null, 1);
  uint8_t ok = 1;
  for (auto _ : state) {
    ok &= umts_sib_msg_decoder(id, bytes.data(), set, static_cast<uint32_t>(bytes.size()));
    benchmark::DoNotOptimize(set->presence_bitmask);
  }
  std::fflush(stdout);
  rtxPrintFlush();
  dup2(saved, 1);
  close(saved);
  close(null);
  std::free(set);
  if (!ok) state.SkipWithError("conversion failed");
  state.SetItemsProcessed(state.iterations());
}

void BM_CodecDecode_Sib11(benchmark::State& s) { codecDecode(s, "sib11", "SysInfoType11"); }
void BM_Convert_Sib11(benchmark::State& s) { convert(s, "sib11", umts_sib_sib11); }
void BM_CodecDecode_Sib12(benchmark::State& s) { codecDecode(s, "sib12", "SysInfoType12"); }
void BM_Convert_Sib12(benchmark::State& s) { convert(s, "sib12", umts_sib_sib12); }
BENCHMARK(BM_CodecDecode_Sib11);
BENCHMARK(BM_Convert_Sib11);
BENCHMARK(BM_CodecDecode_Sib12);
BENCHMARK(BM_Convert_Sib12);

}  // namespace

BENCHMARK_MAIN();
