// One libFuzzer program per entry: built once per entry, with UMTS_FUZZ_ENTRY naming the run_*
// function of fuzz_entries.h (fuzz_bch, fuzz_sib_msg, fuzz_sib16, fuzz_gsmtap, fuzz_codec).
#include <cstdio>
#include <cstdlib>

#include "fuzz_entries.h"

#ifndef UMTS_FUZZ_ENTRY
#error "UMTS_FUZZ_ENTRY names the entry of this program"
#endif
#define UMTS_FUZZ_TEXT2(x) #x
#define UMTS_FUZZ_TEXT(x) UMTS_FUZZ_TEXT2(x)

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  (void)argc;
  (void)argv;
  // The library's own output is large and of no use here; libFuzzer reports on stderr.
  static umts_fuzz::QuietOutput quiet;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string problem = umts_fuzz::UMTS_FUZZ_ENTRY(data, size);
  if (!problem.empty()) {
    std::fprintf(stderr, "%s: %s\n", UMTS_FUZZ_TEXT(UMTS_FUZZ_ENTRY), problem.c_str());
    std::abort();
  }
  return 0;
}
