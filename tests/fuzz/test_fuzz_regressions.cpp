// Replays the saved fuzz findings (regressions/<target>/*) through the same entry code as the
// libFuzzer programs, without libFuzzer: each must pass every check of its entry. Under the
// sanitizer build the sanitizers watch the replay as they watched the fuzzer.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include "fuzz_entries.h"

namespace {

namespace fs = std::filesystem;
using Entry = std::string (*)(const uint8_t*, size_t);

struct Target {
  const char* name;
  Entry run;
};

void PrintTo(const Target& t, std::ostream* os) { *os << t.name; }

const Target kTargets[] = {{"bch", umts_fuzz::run_bch},
                           {"sib_msg", umts_fuzz::run_sib_msg},
                           {"sib16", umts_fuzz::run_sib16},
                           {"gsmtap", umts_fuzz::run_gsmtap},
                           {"codec", umts_fuzz::run_codec}};

std::vector<uint8_t> readFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::vector<uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::string run(const Target& t, const std::vector<uint8_t>& input) {
  umts_fuzz::QuietOutput quiet;
  return t.run(input.data(), input.size());
}

class FuzzRegressions : public ::testing::TestWithParam<Target> {};

TEST_P(FuzzRegressions, SavedInputsPassEveryCheck) {
  const fs::path dir = fs::path(UMTS_FUZZ_REGRESSIONS_DIR) / GetParam().name;
  std::vector<fs::path> files;
  if (fs::is_directory(dir))
    for (const auto& e : fs::directory_iterator(dir))
      if (e.is_regular_file() && e.path().filename().string()[0] != '.') files.push_back(e.path());
  std::sort(files.begin(), files.end());
  for (const fs::path& f : files) {
    SCOPED_TRACE(f.string());
    EXPECT_EQ("", run(GetParam(), readFile(f)));
  }
}

// Inputs at the edges of each format: nothing, one byte, lengths past the end, all bits 0
// or 1, and the longest whole SIB with one byte more.
TEST_P(FuzzRegressions, DegenerateInputsPassEveryCheck) {
  std::vector<std::vector<uint8_t>> inputs = {{}, {0x00}, {0xFF}, {0x3F}, {0x3F, 0x00}, {0x00, 0x00}, {0xFF, 0xFF}};
  for (size_t n : {31u, 32u, 64u, 2049u, 2050u}) {
    inputs.emplace_back(n, 0x00);
    inputs.emplace_back(n, 0xFF);
  }
  for (const auto& input : inputs) {
    SCOPED_TRACE(std::to_string(input.size()) + " bytes");
    EXPECT_EQ("", run(GetParam(), input));
  }
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzRegressions, ::testing::ValuesIn(kTargets),
                         [](const ::testing::TestParamInfo<Target>& info) { return std::string(info.param.name); });

}  // namespace
