// Soak run of the BCH entry: a million transport blocks (by default) through
// umts_sib_decoder, of three kinds: the sample cell's blocks in broadcast order (so that
// whole SIBs are collected and converted), mutations of sample blocks (bit flips, bytes
// replaced, cut, lengthened, spliced) and random blocks. After every call the global context
// must be sound: no request left, every write cursor within its slot's buffer.
//
// Resident memory (VmRSS) is sampled at the start, after a warm-up, every tenth of the run,
// at the end and after the context and the result record are released. The run passes when
// the context stays sound and the resident memory at the end exceeds that after the warm-up
// by no more than --max-growth-kb (1024 by default).
//
//   umts_soak [--blocks N] [--seed S] [--samples DIR] [--max-growth-kb K]
//
// The library's own output goes to /dev/null during the run; the report is printed after.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "umts_rrc_rt.h"
#include "umts_sib_decoder.h"
#include "umts_sib_frame.h"

namespace {

using Bytes = std::vector<uint8_t>;

long residentKb() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.compare(0, 6, "VmRSS:") == 0) return std::strtol(line.c_str() + 6, nullptr, 10);
  return -1;
}

std::vector<Bytes> loadBlocks(const std::string& path) {
  std::vector<Bytes> blocks;
  std::ifstream in(path);
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    Bytes b;
    for (size_t i = 0; i + 1 < line.size(); i += 2) b.push_back(static_cast<uint8_t>(std::stoul(line.substr(i, 2), nullptr, 16)));
    if (!b.empty()) blocks.push_back(b);
  }
  return blocks;
}

// One to four mutations of a sample block.
Bytes mutate(const std::vector<Bytes>& samples, std::mt19937& rng) {
  Bytes b = samples[rng() % samples.size()];
  for (uint32_t k = 1 + rng() % 4; k > 0; k--) {
    switch (rng() % 6) {
      case 0:
      case 1:
        if (!b.empty()) b[rng() % b.size()] ^= static_cast<uint8_t>(1u << rng() % 8);
        break;
      case 2:
        if (!b.empty()) b[rng() % b.size()] = static_cast<uint8_t>(rng());
        break;
      case 3:
        b.resize(rng() % (b.size() + 1));
        break;
      case 4:
        for (uint32_t n = 1 + rng() % 8; n > 0; n--) b.push_back(static_cast<uint8_t>(rng()));
        break;
      default: {  // the head of this block, the tail of another
        const Bytes& other = samples[rng() % samples.size()];
        const size_t cut = b.empty() ? 0 : rng() % b.size();
        b.resize(cut);
        if (cut < other.size()) b.insert(b.end(), other.begin() + static_cast<long>(cut), other.end());
        break;
      }
    }
  }
  return b;
}

bool contextSound() {
  if (g_umts_ctxt.request_bitmask != 0) return false;
  for (const umts_sib_slot& s : g_umts_ctxt.slots) {
    if (s.write_bit > 7) return false;
    if (s.write_cursor == nullptr) continue;
    if (s.buffer == nullptr || s.write_cursor < s.buffer || s.write_cursor > s.buffer + UMTS_SIB_DECODE_LENGTH) return false;
  }
  return true;
}

const char* const kSibNames[umts_sib_count] = {"MIB",   "SIB1",     "SIB2",  "SIB3",  "SIB5", "SIB7",
                                               "SIB11", "SIB11bis", "SIB12", "SIB18", "SB1",  "SB2"};

}  // namespace

int main(int argc, char** argv) {
  long blocks = 1000000;
  unsigned seed = 25331;
  long max_growth_kb = 1024;
  std::string samples = UMTS_SAMPLES_DIR;
  for (int i = 1; i < argc; i++) {
    const std::string a = argv[i];
    if (a == "--blocks" && i + 1 < argc) blocks = std::strtol(argv[++i], nullptr, 10);
    else if (a == "--seed" && i + 1 < argc) seed = static_cast<unsigned>(std::strtoul(argv[++i], nullptr, 10));
    else if (a == "--samples" && i + 1 < argc) samples = argv[++i];
    else if (a == "--max-growth-kb" && i + 1 < argc) max_growth_kb = std::strtol(argv[++i], nullptr, 10);
    else {
      std::fprintf(stderr, "usage: umts_soak [--blocks N] [--seed S] [--samples DIR] [--max-growth-kb K]\n");
      return 2;
    }
  }
  const std::vector<Bytes> cell = loadBlocks(samples + "/fdd_cell.bch");
  if (cell.empty() || blocks <= 0) {
    std::fprintf(stderr, "umts_soak: no transport blocks in %s/fdd_cell.bch\n", samples.c_str());
    return 2;
  }
  auto* result = static_cast<umts_sib_set*>(std::calloc(1, sizeof(umts_sib_set)));
  if (result == nullptr) return 2;

  std::fflush(stdout);
  const int saved_stdout = dup(1), null_fd = open("/dev/null", O_WRONLY);
  dup2(null_fd, 1);

  const long rss_start = residentKb();
  const long warmup = std::min<long>(20000, blocks / 10);
  long rss_warm = rss_start, rss_max = rss_start;
  std::vector<std::pair<long, long>> samples_taken;
  std::mt19937 rng(seed);
  long accepted = 0, unsound = 0, first_unsound = -1, kinds[3] = {0, 0, 0};
  long converted[umts_sib_count] = {};
  size_t next_in_cycle = 0;
  const auto t0 = std::chrono::steady_clock::now();
  for (long i = 0; i < blocks; i++) {
    Bytes block;
    const uint32_t pick = rng() % 8;
    if (pick == 0) {
      block = cell[next_in_cycle++ % cell.size()];
      kinds[0]++;
    } else if (pick == 1) {
      block.resize(rng() % 41);
      for (auto& b : block) b = static_cast<uint8_t>(rng());
      kinds[2]++;
    } else {
      block = mutate(cell, rng);
      kinds[1]++;
    }
    result->presence_bitmask = 0;
    if (umts_sib_decoder(block.empty() ? nullptr : block.data(), result, static_cast<uint32_t>(block.size())) == 1) accepted++;
    for (unsigned id = 0; id < umts_sib_count; id++)
      if (result->presence_bitmask & (1u << id)) converted[id]++;
    if (!contextSound()) {
      if (first_unsound < 0) first_unsound = i;
      unsound++;
    }
    if (i + 1 == warmup) rss_warm = residentKb();
    if ((i + 1) % (blocks / 10 > 0 ? blocks / 10 : 1) == 0) {
      const long rss = residentKb();
      samples_taken.emplace_back(i + 1, rss);
      rss_max = std::max(rss_max, rss);
    }
  }
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
  const long rss_end = residentKb();
  for (umts_sib_slot& s : g_umts_ctxt.slots) std::free(s.buffer);
  std::memset(&g_umts_ctxt, 0, sizeof g_umts_ctxt);
  std::free(result);
  const long rss_released = residentKb();

  std::fflush(stdout);
  rtxPrintFlush();
  dup2(saved_stdout, 1);
  close(saved_stdout);
  close(null_fd);

  std::printf("umts_soak: %ld transport blocks (seed %u): %ld in cell order, %ld mutated, %ld random\n", blocks,
              seed, kinds[0], kinds[1], kinds[2]);
  std::printf("  %.1f s, %.0f blocks/s; status 1 for %ld blocks\n", seconds, blocks / seconds, accepted);
  std::printf("  conversions:");
  for (unsigned id = 0; id < umts_sib_count; id++) std::printf(" %s %ld", kSibNames[id], converted[id]);
  std::printf("\n  VmRSS kB: start %ld, after %ld blocks %ld, max %ld, end %ld, after release %ld\n", rss_start,
              warmup, rss_warm, rss_max, rss_end, rss_released);
  std::printf("  VmRSS kB by blocks:");
  for (const auto& s : samples_taken) std::printf(" %ld:%ld", s.first, s.second);
  std::printf("\n");
  const long growth = rss_end - rss_warm;
  const bool flat = growth <= max_growth_kb;
  std::printf("  context unsound after %ld calls%s\n", unsound,
              first_unsound >= 0 ? (" (first at block " + std::to_string(first_unsound) + ")").c_str() : "");
  std::printf("result: %s (growth after warm-up %ld kB, limit %ld kB)\n", unsound == 0 && flat ? "PASS" : "FAIL", growth,
              max_growth_kb);
  return unsound == 0 && flat ? 0 : 1;
}
