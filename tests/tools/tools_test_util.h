/*
 * Helpers of the tool tests: files, hex, the sample cell as blocks, SIBs and captured
 * frames, and sibdump run through the shell.
 */
#ifndef UMTS_TESTS_TOOLS_TEST_UTIL_H
#define UMTS_TESTS_TOOLS_TEST_UTIL_H

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "capture_writer.h"
#include "json_check.h"

namespace tt {

using Bytes = std::vector<uint8_t>;
inline const std::string kSibdump = SIBDUMP_PATH;
inline const std::string kSamples = UMTS_SAMPLES_DIR;
constexpr uint64_t kT0 = 1767225600ull * 1000000u; /* 2026-01-01T00:00:00Z */

/* The program's own directory, removed when it ends. */
inline std::string temp_dir() {
  static const std::string* dir = nullptr;
  if (dir == nullptr) {
    char name[] = "/tmp/umts_tools_test_XXXXXX";
    dir = new std::string(mkdtemp(name) != nullptr ? name : "/tmp");
    std::atexit([] {
      if (*dir != "/tmp" && std::system(("rm -rf '" + *dir + "'").c_str()) != 0) std::perror("rm");
    });
  }
  return *dir;
}

inline std::string read_file(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}
inline void write_file(const std::string& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

inline std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string l; std::getline(in, l);) lines.push_back(l);
  return lines;
}

inline bool has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

inline Bytes hex_bytes(const std::string& hex) {
  Bytes b;
  for (size_t i = 0; i + 1 < hex.size(); i += 2) b.push_back(static_cast<uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
  return b;
}
inline std::string hex_of(const Bytes& b) {
  std::string out;
  char digits[3];
  for (uint8_t x : b) out += (std::snprintf(digits, sizeof digits, "%02x", x), digits);
  return out;
}

/* A JSON line of sibdump split into its head (the members before "block": line, or frame,
   time and cell), the block and the rest; each line checked for syntax. */
struct Line {
  std::string head;
  std::string block;
  std::string record; /* from ,"record": on */
};

inline std::vector<Line> parse_lines(const std::string& out) {
  std::vector<Line> lines;
  for (const std::string& l : lines_of(out)) {
    EXPECT_TRUE(json_check::valid(l)) << l;
    const size_t b = l.find(",\"block\":\"");
    const size_t r = l.find(",\"record\":");
    if (b == std::string::npos || r == std::string::npos) {
      ADD_FAILURE() << l;
      continue;
    }
    lines.push_back({l.substr(1, b - 1), l.substr(b + 10, l.find('"', b + 10) - b - 10), l.substr(r)});
  }
  return lines;
}

/* block name -> record part, of the lines whose head contains `cell` (all when empty). */
inline std::map<std::string, std::vector<std::string>> records_by_block(const std::vector<Line>& lines,
                                                                        const std::string& cell = "") {
  std::map<std::string, std::vector<std::string>> m;
  for (const Line& l : lines)
    if (cell.empty() || l.head.find(cell) != std::string::npos) m[l.block].push_back(l.record);
  return m;
}

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

/* A shell command, its standard output and error. */
inline Outcome run_shell(const std::string& command) {
  const std::string err_path = temp_dir() + "/stderr.txt";
  Outcome r{-1, "", ""};
  FILE* p = popen((command + " 2>'" + err_path + "'").c_str(), "r");
  if (p == nullptr) return r;
  char buf[4096];
  for (size_t n; (n = std::fread(buf, 1, sizeof buf, p)) > 0;) r.out.append(buf, n);
  const int status = pclose(p);
  r.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  r.err = read_file(err_path);
  return r;
}
inline Outcome run_sibdump(const std::string& args) { return run_shell("'" + kSibdump + "' " + args); }

/* The transport blocks of the sample cycle. The '<name> <hex>' lines of a file as (name,
   bytes); the SIBs of a sample file whole. */
inline const std::vector<Bytes>& sample_blocks() {
  static std::vector<Bytes> blocks;
  if (blocks.empty())
    for (const std::string& l : lines_of(read_file(kSamples + "/fdd_cell.bch")))
      if (!l.empty() && l[0] != '#') blocks.push_back(hex_bytes(l));
  return blocks;
}
inline std::vector<std::pair<std::string, Bytes>> named_hex(const std::string& path) {
  std::vector<std::pair<std::string, Bytes>> sibs;
  for (const std::string& l : lines_of(read_file(path))) {
    const size_t blank = l.find(' ');
    if (!l.empty() && l[0] != '#' && blank != std::string::npos) sibs.emplace_back(l.substr(0, blank), hex_bytes(l.substr(blank + 1)));
  }
  return sibs;
}
inline std::vector<std::pair<std::string, Bytes>> sample_sibs(const std::string& file = "fdd_cell_sibs.txt") {
  return named_hex(kSamples + "/" + file);
}

/* A captured frame of one GSMTAP message. */
inline capture::Frame gsmtap_frame(gsmtap::Link link, uint64_t time_us, const Bytes& message, uint16_t arfcn = 10700,
                                   uint8_t sub_type = gsmtap::kSubBcchBch, const capture::Route& route = capture::Route(),
                                   uint8_t type = gsmtap::kTypeUmtsRrc) {
  capture::GsmtapMessage m;
  m.type = type;
  m.sub_type = sub_type;
  m.arfcn = arfcn;
  m.message = message;
  return {time_us, capture::udp_frame(link, route, capture::gsmtap_datagram(m)), 0};
}

/* A GSMTAP datagram of one transport block on ARFCN 10700. */
inline Bytes block_datagram(const Bytes& block) {
  capture::GsmtapMessage m;
  m.arfcn = 10700;
  m.message = block;
  return capture::gsmtap_datagram(m);
}

/* The sample cycle's blocks 20 ms apart from `t0`, except the blocks `left_out` (0-based). */
inline std::vector<capture::Frame> cycle_frames(gsmtap::Link link, const capture::Route& route = capture::Route(),
                                                uint16_t arfcn = 10700, uint64_t t0 = kT0,
                                                const std::set<size_t>& left_out = {}) {
  std::vector<capture::Frame> frames;
  for (size_t k = 0; k < sample_blocks().size(); k++)
    if (!left_out.count(k))
      frames.push_back(gsmtap_frame(link, t0 + 20000 * k, sample_blocks()[k], arfcn, gsmtap::kSubBcchBch, route));
  return frames;
}

}  // namespace tt

#endif /* UMTS_TESTS_TOOLS_TEST_UTIL_H */
