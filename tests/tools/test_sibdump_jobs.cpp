// sibdump on several threads: the cells of one capture and several inputs decoded apart give
// the same bytes, on every stream, as on one thread.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "capture_choice.h"
#include "capture_writer.h"
#include "cell_feed.h"

namespace {

const std::string kSibdump = SIBDUMP_PATH;
const std::string kSamples = UMTS_SAMPLES_DIR;

// The test's directory, removed when the program ends (kept apart from the static objects,
// which are gone by then).
const std::string* g_dir = nullptr;

std::string temp_dir() {
  if (g_dir == nullptr) {
    char name[] = "/tmp/sibdump_jobs_XXXXXX";
    g_dir = new std::string(mkdtemp(name));
    std::atexit([] {
      if (std::system(("rm -rf '" + *g_dir + "'").c_str()) != 0) std::fprintf(stderr, "cannot remove %s\n", g_dir->c_str());
    });
  }
  return *g_dir;
}

std::string read_file(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

struct Outcome {
  int status;
  std::string out, err, text;
};

// sibdump with `args`, its standard output, standard error and ASN.1 text (--asn1-text).
Outcome run(const std::string& args) {
  const std::string d = temp_dir();
  const std::string cmd = "'" + kSibdump + "' --asn1-text '" + d + "/text' " + args + " >'" + d + "/out' 2>'" + d + "/err'";
  const int s = std::system(cmd.c_str());
  return {WIFEXITED(s) ? WEXITSTATUS(s) : -1, read_file(d + "/out"), read_file(d + "/err"), read_file(d + "/text")};
}

std::vector<capture::Bytes> sample_blocks() {
  std::ifstream in(kSamples + "/fdd_cell.bch");
  std::vector<capture::Bytes> out;
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    capture::Bytes b;
    for (size_t i = 0; i + 1 < line.size(); i += 2) b.push_back(static_cast<uint8_t>(std::stoul(line.substr(i, 2), nullptr, 16)));
    out.push_back(b);
  }
  return out;
}

// Eight cells (four senders, two ARFCNs each) whose cycles are interleaved, each heard from
// another block on, with a damaged frame, a frame of another protocol and a block too long
// among them.
std::string eight_cells() {
  const std::vector<capture::Bytes> blocks = sample_blocks();
  std::vector<capture::Frame> frames;
  uint64_t t = 1767225600000000ull;
  const size_t n = blocks.size();
  for (size_t k = 0; k < 3 * n; k++) {
    for (unsigned cell = 0; cell < 8; cell++) {
      capture::GsmtapMessage m;
      m.arfcn = static_cast<uint16_t>(10700 + 13 * (cell % 2));
      m.frame_number = static_cast<uint32_t>(k);
      m.message = blocks[(k + 3 * cell) % n];
      capture::Route route;
      route.source = "127.0.0." + std::to_string(1 + cell / 2);
      frames.push_back({t += 10000, capture::udp_frame(gsmtap::Link::ethernet, route, capture::gsmtap_datagram(m))});
    }
    if (k == 7) {
      capture::Frame cut = frames.back();
      cut.bytes.resize(20);
      frames.push_back(cut);
      capture::GsmtapMessage m;
      m.message.assign(80, 0x11);
      frames.push_back({t += 1, capture::udp_frame(gsmtap::Link::ethernet, capture::Route(), capture::gsmtap_datagram(m))});
      capture::Route other;
      other.destination_port = 53;
      frames.push_back({t += 1, capture::udp_frame(gsmtap::Link::ethernet, other, {1, 2, 3})});
    }
  }
  const std::string path = temp_dir() + "/eight_cells.pcap";
  EXPECT_TRUE(capture::write_file(path, capture::pcap_file(gsmtap::Link::ethernet, frames)));
  return path;
}

void expect_same(const Outcome& one, const Outcome& many, const std::string& what) {
  EXPECT_EQ(one.status, many.status) << what;
  EXPECT_EQ(one.out, many.out) << what;
  EXPECT_EQ(one.err, many.err) << what;
  EXPECT_EQ(one.text, many.text) << what;
}

TEST(SibdumpJobs, CellsOfOneCaptureOnSeveralThreads) {
  UMTS_SKIP_WITHOUT_CAPTURE();
  const std::string capture = "'" + eight_cells() + "'";
  for (const char* mode : {"", "--summary=json", "--summary=text", "--summary=html"}) {
    const Outcome one = run(std::string("--jobs 1 ") + mode + " " + capture);
    EXPECT_EQ(1, one.status) << one.err;  // the damaged frame and the long block
    EXPECT_NE(one.err.find("cell 127.0.0.4 ARFCN 10713"), std::string::npos) << one.err;
    if (*mode == '\0') {
      EXPECT_GT(one.out.size(), 100000u);
      EXPECT_GT(one.text.size(), one.out.size());
    }
    for (const char* jobs : {"--jobs 2 ", "--jobs 3 ", "--jobs 8 "}) expect_same(one, run(jobs + std::string(mode) + " " + capture), std::string(jobs) + mode);
  }
}

// Inputs in the order given, each decoded from its start as if alone: the same bytes on one
// thread and on several, and each input's records those of the input alone.
TEST(SibdumpJobs, SeveralInputsInTheirOrder) {
  const std::string cycle = "'" + kSamples + "/fdd_cell.bch'";
  std::string inputs = cycle + " " + cycle;
  if (kCaptureInput) inputs += " '" + kSamples + "/fdd_cell.pcap' '" + eight_cells() + "'";
  const Outcome one = run("--jobs 1 " + inputs);
  const Outcome many = run("--jobs 2 " + inputs);
  expect_same(one, many, "two jobs");
  const Outcome alone = run(cycle);
  const std::string member = "{\"input\":\"" + kSamples + "/fdd_cell.bch\",";
  std::string expected;
  std::istringstream lines(alone.out);
  for (std::string line; std::getline(lines, line);) expected += member + line.substr(1) + "\n";
  EXPECT_EQ(0u, one.out.find(expected + expected));
  EXPECT_EQ(0u, one.text.find(alone.text + alone.text));
  const Outcome summaries = run("--jobs 2 --summary=json " + inputs);
  expect_same(run("--jobs 1 --summary=json " + inputs), summaries, "summaries");
}

// The frame times of the JSON lines, computed without the C library's time zone lock, against
// gmtime_r: leap days, century years, the ends of days and of years.
TEST(SibdumpJobs, FrameTimesAreThoseOfTheCalendar) {
  for (const uint64_t s : {0ull, 951782400ull, 1709164800ull, 4107542400ull, 946684799ull, 1767225599ull,
                           13574563200ull, 253402300799ull}) {
    const time_t t = static_cast<time_t>(s);
    struct tm c;
    gmtime_r(&t, &c);
    char expected[64];
    std::snprintf(expected, sizeof expected, "%04d-%02d-%02dT%02d:%02d:%02d.%06uZ", c.tm_year + 1900, c.tm_mon + 1,
                  c.tm_mday, c.tm_hour, c.tm_min, c.tm_sec, 123456u);
    EXPECT_EQ(expected, CellFeed::time_text(s * 1000000u + 123456u)) << s;
  }
}

}  // namespace
