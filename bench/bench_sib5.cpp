// SIB5 conversion speed: one conversion of the sample cell's SIB5 through
// umts_sib_msg_decoder (context, decode, print to a discarded stream, clearing of the
// multi-megabyte record, copy), next to the codec's decode of the same bytes. The record is
// cleared in the caller's own memory (zeros written) or in a set of umts_sib_set_alloc
// (pages handed back).
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "codec_test_util.h"
#include "umts_sib_decoder.h"

namespace {

// The `index`-th SIB5 of the sample cell (0: the cycle's, 1: the second form, 2: the HSPA
// form, when present).
std::vector<uint8_t> sampleSib5(size_t index) {
  std::ifstream in(UMTS_SAMPLES_DIR "/fdd_cell_sibs.txt");
  std::string line;
  size_t seen = 0;
  while (std::getline(in, line)) {
    std::istringstream ls(line);
    std::string name, hex;
    ls >> name >> hex;
    if (name == "sib5" && seen++ == index) return testutil::fromHex(hex);
  }
  return {};
}

// Standard output goes to /dev/null while a conversion benchmark runs.
struct DiscardStdout {
  int saved;
  DiscardStdout() {
    std::fflush(stdout);
    saved = dup(1);
    const int null_fd = open("/dev/null", O_WRONLY);
    dup2(null_fd, 1);
    close(null_fd);
  }
  ~DiscardStdout() {
    std::fflush(stdout);
    rtxPrintFlush();
    dup2(saved, 1);
    close(saved);
  }
};

void decodeOnly(benchmark::State& state, size_t index) {
  const std::vector<uint8_t> bytes = sampleSib5(index);
  if (bytes.empty()) {
    state.SkipWithError("no such SIB5 in samples/fdd_cell_sibs.txt");
    return;
  }
  rtxContext ctx;
  rtInitContext(&ctx);
  SysInfoType5 value;
  for (auto _ : state) {
    rtxResetContext(&ctx);
    pu_setBuffer(&ctx, bytes.data(), static_cast<uint32_t>(bytes.size()), 0);
    benchmark::DoNotOptimize(asn1PD_UMTS_SysInfoType5(&ctx, &value));
  }
  rtFreeContext(&ctx);
}

// With `cold`, 64 MiB are written between conversions (outside the timing), as other work of
// a receiver would do, so that the record is no longer in the caches.
void convert(benchmark::State& state, size_t index, bool library_set, bool cold = false) {
  const std::vector<uint8_t> bytes = sampleSib5(index);
  if (bytes.empty()) {
    state.SkipWithError("no such SIB5 in samples/fdd_cell_sibs.txt");
    return;
  }
  umts_sib_set* set = library_set ? umts_sib_set_alloc() : static_cast<umts_sib_set*>(std::calloc(1, sizeof(umts_sib_set)));
  std::vector<uint8_t> other(cold ? 64u << 20 : 0);
  DiscardStdout discard;
  for (auto _ : state) {
    if (cold) {
      state.PauseTiming();
      std::memset(other.data(), static_cast<int>(state.iterations()), other.size());
      benchmark::ClobberMemory();
      state.ResumeTiming();
    }
    benchmark::DoNotOptimize(umts_sib_msg_decoder(umts_sib_sib5, bytes.data(), set, static_cast<uint32_t>(bytes.size())));
  }
  if (library_set) umts_sib_set_free(set);
  else std::free(set);
}

void BM_Sib5_Decode(benchmark::State& s) { decodeOnly(s, 0); }
void BM_Sib5_Convert_CallerSet(benchmark::State& s) { convert(s, 0, false); }
void BM_Sib5_Convert_LibrarySet(benchmark::State& s) { convert(s, 0, true); }
void BM_Sib5Second_Decode(benchmark::State& s) { decodeOnly(s, 1); }
void BM_Sib5Second_Convert_CallerSet(benchmark::State& s) { convert(s, 1, false); }
void BM_Sib5Second_Convert_LibrarySet(benchmark::State& s) { convert(s, 1, true); }
void BM_Sib5Hspa_Decode(benchmark::State& s) { decodeOnly(s, 2); }
void BM_Sib5Hspa_Convert_CallerSet(benchmark::State& s) { convert(s, 2, false); }
void BM_Sib5Hspa_Convert_LibrarySet(benchmark::State& s) { convert(s, 2, true); }
void BM_Sib5_Convert_CallerSet_Cold(benchmark::State& s) { convert(s, 0, false, true); }
void BM_Sib5_Convert_LibrarySet_Cold(benchmark::State& s) { convert(s, 0, true, true); }
BENCHMARK(BM_Sib5_Decode);
BENCHMARK(BM_Sib5_Convert_CallerSet_Cold)->Iterations(200);
BENCHMARK(BM_Sib5_Convert_LibrarySet_Cold)->Iterations(200);
BENCHMARK(BM_Sib5_Convert_CallerSet);
BENCHMARK(BM_Sib5_Convert_LibrarySet);
BENCHMARK(BM_Sib5Second_Decode);
BENCHMARK(BM_Sib5Second_Convert_CallerSet);
BENCHMARK(BM_Sib5Second_Convert_LibrarySet);
BENCHMARK(BM_Sib5Hspa_Decode);
BENCHMARK(BM_Sib5Hspa_Convert_CallerSet);
BENCHMARK(BM_Sib5Hspa_Convert_LibrarySet);

}  // namespace

BENCHMARK_MAIN();
