// sibdump on several threads: the cells of one capture and several inputs decoded apart give
// the same bytes, on every stream, as on one thread.
#include <gtest/gtest.h>

#include "capture_choice.h"
#include "capture_writer.h"
#include "cell_feed.h"
#include "tools_test_util.h"

namespace {

using namespace tt;

struct Result {
  int status;
  std::string out, err, text;
};

// sibdump with `args`, its standard output, standard error and ASN.1 text (--asn1-text).
Result run(const std::string& args) {
  const Outcome r = run_sibdump("--asn1-text '" + temp_dir() + "/text' " + args);
  return {r.status, r.out, r.err, read_file(temp_dir() + "/text")};
}

// Eight cells (four senders, two ARFCNs each) whose cycles are interleaved, each heard from
// another block on, with a damaged frame, a frame of another protocol and a block too long
// among them.
std::string eight_cells() {
  const std::vector<Bytes>& blocks = sample_blocks();
  std::vector<capture::Frame> frames;
  uint64_t t = kT0;
  const size_t n = blocks.size();
  for (size_t k = 0; k < 3 * n; k++) {
    for (unsigned cell = 0; cell < 8; cell++) {
      capture::Route route;
      route.source = "127.0.0." + std::to_string(1 + cell / 2);
      frames.push_back(gsmtap_frame(gsmtap::Link::ethernet, t += 10000, blocks[(k + 3 * cell) % n],
                                    static_cast<uint16_t>(10700 + 13 * (cell % 2)), gsmtap::kSubBcchBch, route));
    }
    if (k == 7) {
      capture::Frame cut = frames.back();
      cut.bytes.resize(20);
      frames.push_back(cut);
      frames.push_back(gsmtap_frame(gsmtap::Link::ethernet, t += 1, Bytes(80, 0x11), 0));
      capture::Route other;
      other.destination_port = 53;
      frames.push_back({t += 1, capture::udp_frame(gsmtap::Link::ethernet, other, {1, 2, 3})});
    }
  }
  const std::string path = temp_dir() + "/eight_cells.pcap";
  EXPECT_TRUE(capture::write_file(path, capture::pcap_file(gsmtap::Link::ethernet, frames)));
  return path;
}

void expect_same(const Result& one, const Result& many, const std::string& what) {
  EXPECT_EQ(one.status, many.status) << what;
  EXPECT_EQ(one.out, many.out) << what;
  EXPECT_EQ(one.err, many.err) << what;
  EXPECT_EQ(one.text, many.text) << what;
}

TEST(SibdumpJobs, CellsOfOneCaptureOnSeveralThreads) {
  UMTS_SKIP_WITHOUT_CAPTURE();
  const std::string capture = "'" + eight_cells() + "'";
  for (const char* mode : {"", "--summary=json", "--summary=text", "--summary=html"}) {
    const Result one = run(std::string("--jobs 1 ") + mode + " " + capture);
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
  const Result one = run("--jobs 1 " + inputs);
  const Result many = run("--jobs 2 " + inputs);
  expect_same(one, many, "two jobs");
  const Result alone = run(cycle);
  const std::string member = "{\"input\":\"" + kSamples + "/fdd_cell.bch\",";
  std::string expected;
  std::istringstream lines(alone.out);
  for (std::string line; std::getline(lines, line);) expected += member + line.substr(1) + "\n";
  EXPECT_EQ(0u, one.out.find(expected + expected));
  EXPECT_EQ(0u, one.text.find(alone.text + alone.text));
  const Result summaries = run("--jobs 2 --summary=json " + inputs);
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
