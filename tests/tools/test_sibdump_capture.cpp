/*
 * sibdump on GSMTAP: the header and the layers around it, pcap and pcapng captures of the
 * sample cell on every link layer read, cells collected apart, damaged captures, and live
 * datagrams over the loopback address.
 */
#include <gtest/gtest.h>
#include <sys/time.h>

#include <algorithm>
#include <bitset>
#include <map>

#include "capture_choice.h"
#include "capture_writer.h"
#include "gsmtap.h"
#include "sibdump_child.h"
#include "sibdump_inputs.h"
#include "tools_test_util.h"
#include "umts_rrc_rt.h"
#include "umts_sib_decoder.h"

namespace {

using namespace tt;
using gsmtap::Link;

Outcome run_on(const std::string& name, const Bytes& file) {
  const std::string path = temp_dir() + "/" + name;
  EXPECT_TRUE(capture::write_file(path, file));
  return run_sibdump("'" + path + "'");
}

/* The records of the hexadecimal sample, the reference for every capture of the cycle. */
const std::map<std::string, std::vector<std::string>>& hex_records() {
  static std::map<std::string, std::vector<std::string>> m;
  if (m.empty()) {
    const Outcome r = run_sibdump("'" + kSamples + "/fdd_cell.bch'");
    EXPECT_EQ(r.status, 0) << r.err;
    m = records_by_block(parse_lines(r.out));
    EXPECT_EQ(m.size(), 11u); /* every block of the cell but SB2 */
  }
  return m;
}

/* The number of records of the hexadecimal sample, and of its transport blocks, as text. */
size_t hex_record_count() {
  size_t n = 0;
  for (const auto& b : hex_records()) n += b.second.size();
  return n;
}
std::string n_of(size_t n) { return std::to_string(n); }

/* Every link layer read, over IPv4 and, where the link carries it, IPv6. */
const struct {
  Link link;
  bool ipv6;
  const char* name;
} kLinks[] = {
    {Link::ethernet, false, "ethernet"}, {Link::linux_sll, false, "sll"}, {Link::linux_sll2, false, "sll2"},
    {Link::raw_ip, false, "raw"},        {Link::ipv4, false, "ipv4"},     {Link::ethernet, true, "ethernet_v6"},
    {Link::linux_sll2, true, "sll2_v6"}, {Link::raw_ip, true, "raw_v6"},  {Link::ipv6, true, "ipv6"},
};
capture::Route route_of(bool ipv6) {
  capture::Route r;
  if (ipv6) {
    r.source = "2001:db8::7";
    r.destination = "::1";
  }
  return r;
}

/* ---- GSMTAP and the layers around it ------------------------------------------------------ */

TEST(Gsmtap, HeaderFields) {
  /* version 2, 4 words, type 12, timeslot 1, ARFCN 10700 with the uplink flag, -80 dBm,
     SNR 5, frame 0x01020304, sub-type 19 (SIB3), antenna 0, sub-slot 2; then the message. */
  const Bytes d = hex_bytes("02040c01" "69cc" "b005" "01020304" "13000200" "aa");
  gsmtap::Header h;
  size_t at = 0;
  std::string why;
  ASSERT_TRUE(gsmtap::parse_header(d.data(), d.size(), &h, &at, &why)) << why;
  EXPECT_EQ(at, 16u);
  EXPECT_EQ(h.type, 12);
  EXPECT_EQ(h.timeslot, 1);
  EXPECT_EQ(h.arfcn, 0x69CC);
  EXPECT_EQ(gsmtap::arfcn_number(h.arfcn), 10700);
  EXPECT_EQ(h.signal_dbm, -80);
  EXPECT_EQ(h.snr_db, 5);
  EXPECT_EQ(h.frame_number, 0x01020304u);
  EXPECT_EQ(h.sub_type, 19);
  EXPECT_EQ(h.sub_slot, 2);

  /* A header length of 3 or 5 words in a datagram of 16 octets. */
  for (const char* words : {"03", "05"}) {
    const Bytes x = hex_bytes(std::string("02") + words + "0c0129cc00000000000008000000");
    EXPECT_FALSE(gsmtap::parse_header(x.data(), x.size(), &h, &at, &why)) << words;
    EXPECT_EQ(why, "GSMTAP header length " + std::string(words[1] == '3' ? "12" : "20") + " octets does not fit its 16-octet datagram");
  }
  /* A longer header is skipped whole. */
  const Bytes longer = hex_bytes("02050c0129cc0000000000000800000011223344aa");
  ASSERT_TRUE(gsmtap::parse_header(longer.data(), longer.size(), &h, &at, &why));
  EXPECT_EQ(at, 20u);
}

/* The writer's Ethernet frame, octet by octet (the IPv4 checksum computed by hand). */
TEST(Gsmtap, WrittenFrameAsOnTheWire) {
  capture::GsmtapMessage m;
  m.arfcn = 10700;
  m.frame_number = 6;
  m.message = {0xAB, 0xCD};
  const Bytes frame = capture::udp_frame(Link::ethernet, capture::Route(), capture::gsmtap_datagram(m));
  const Bytes expected = hex_bytes(
      "000000000000000000000000" "0800"                                  /* Ethernet */
      "4500002e00004000" "40113cbd" "7f000001" "7f000001"                /* IPv4 */
      "9c40127900" "1a0000"                                              /* UDP, 26 octets */
      "02040c0029cc0000" "00000006" "08000000"                           /* GSMTAP */
      "abcd");
  EXPECT_EQ(frame, expected);
}

/* Every link layer, IPv4 and IPv6, gives the datagram back; other protocols are not GSMTAP. */
TEST(Gsmtap, UnwrapEveryLink) {
  const Bytes payload = {1, 2, 3, 4, 5};
  for (const auto& c : kLinks) {
    const Bytes frame = capture::udp_frame(c.link, route_of(c.ipv6), payload);
    gsmtap::Datagram d;
    std::string why;
    ASSERT_EQ(gsmtap::unwrap_frame(c.link, frame.data(), frame.size(), frame.size(), &d, &why), gsmtap::Unwrap::udp)
        << c.name << ": " << why;
    EXPECT_EQ(Bytes(d.payload, d.payload + d.length), payload);
    EXPECT_EQ(d.source, c.ipv6 ? "2001:db8::7" : "127.0.0.1") << c.name;
    EXPECT_EQ(d.destination_port, gsmtap::kPort);
    /* Every cut inside the headers is damaged. */
    for (size_t n = 0; n < frame.size() - payload.size(); n++)
      EXPECT_EQ(gsmtap::unwrap_frame(c.link, frame.data(), n, frame.size(), &d, &why), gsmtap::Unwrap::damaged) << n;
  }
  /* Ethernet padding after the datagram is not part of it. */
  Bytes padded = capture::udp_frame(Link::ethernet, capture::Route(), payload);
  padded.resize(60, 0);
  gsmtap::Datagram d;
  std::string why;
  ASSERT_EQ(gsmtap::unwrap_frame(Link::ethernet, padded.data(), padded.size(), 60, &d, &why), gsmtap::Unwrap::udp);
  EXPECT_EQ(d.length, payload.size());
  /* A frame that is not IP (ARP); UDP to another port is counted in CellsAreCollectedApart. */
  Bytes arp = hex_bytes("ffffffffffff0000000000000806");
  arp.resize(42, 0);
  EXPECT_EQ(gsmtap::unwrap_frame(Link::ethernet, arp.data(), arp.size(), arp.size(), &d, &why), gsmtap::Unwrap::other);
}

/* ---- Captures ----------------------------------------------------------------------------- */

class Capture : public ::testing::Test {
 protected:
  void SetUp() override { UMTS_SKIP_WITHOUT_CAPTURE(); }
};

/* Every link layer in both formats gives the hex sample's records, each line with its sender;
   Ethernet over IPv4 is read from the committed sample captures (what mkcaptures writes),
   whose lines also give the frame and its time, with the counts. */
TEST_F(Capture, EveryLinkLayerInBothFormats) {
  for (const auto& c : kLinks) {
    const std::vector<capture::Frame> frames = cycle_frames(c.link, route_of(c.ipv6));
    for (bool ng : {false, true}) {
      const std::string name = std::string(c.name) + (ng ? ".pcapng" : ".pcap");
      const bool sample = c.link == Link::ethernet && !c.ipv6;
      const Outcome r = sample ? run_sibdump("'" + kSamples + "/fdd_cell" + (ng ? ".pcapng'" : ".pcap'"))
                               : run_on(name, ng ? capture::pcapng_file(c.link, frames) : capture::pcap_file(c.link, frames));
      EXPECT_EQ(r.status, 0) << name << ": " << r.err;
      const std::vector<Line> lines = parse_lines(r.out);
      EXPECT_EQ(records_by_block(lines), hex_records()) << name;
      for (const Line& l : lines)
        EXPECT_TRUE(has(l.head, c.ipv6 ? "\"source\":\"2001:db8::7\"" : "\"source\":\"127.0.0.1\"")) << l.head;
      if (!sample) continue;
      ASSERT_FALSE(lines.empty());
      EXPECT_EQ(lines[0].head, "\"frame\":1,\"time\":\"2026-01-01T00:00:00.000000Z\",\"source\":\"127.0.0.1\",\"arfcn\":10700")
          << name;
      const std::string blocks = n_of(sample_blocks().size()), records = n_of(hex_record_count());
      EXPECT_TRUE(has(r.err, "sibdump: cell 127.0.0.1 ARFCN 10700: " + blocks + " blocks, 0 SIBs, " + records +
                                 " records, 0 skipped, 0 errors"))
          << r.err;
      EXPECT_TRUE(has(r.err, "sibdump: " + blocks + " frames read, " + blocks + " blocks, 0 SIBs, " + records +
                                 " records written, 0 skipped, 0 not GSMTAP, 0 bad frames"))
          << r.err;
      /* The MIB's block is the first, the SIB3's the fourth (at 60 ms). */
      for (const Line& l : lines)
        EXPECT_TRUE(l.block != "sib3" || has(l.head, "\"frame\":4,\"time\":\"2026-01-01T00:00:00.060000Z\"")) << l.head;
    }
  }
  /* A capture on standard input, named "-" or not, from a pipe as well. */
  for (const std::string& how : {"'" + kSibdump + "' < '" + kSamples + "/fdd_cell.pcapng'",
                                 "cat '" + kSamples + "/fdd_cell.pcap' | '" + kSibdump + "' -"}) {
    const Outcome r = run_shell(how);
    EXPECT_EQ(r.status, 0) << how << ": " << r.err;
    EXPECT_EQ(records_by_block(parse_lines(r.out)), hex_records()) << how;
  }
  /* Other link layers are refused as a whole. */
  Bytes wifi_file = capture::pcap_file(Link::ethernet, {});
  wifi_file[20] = 105; /* IEEE 802.11 */
  const Outcome wifi = run_on("wifi.pcap", wifi_file);
  EXPECT_EQ(wifi.status, 2);
  EXPECT_TRUE(has(wifi.err, "link-layer type 105 (IEEE802_11) is not read")) << wifi.err;
}

/* Three cells whose segments interleave frame by frame: each cell's records come whole. Cells
   differ by ARFCN, or by sender on one ARFCN. Whole SIBs and skipped messages mix in. */
TEST_F(Capture, CellsAreCollectedApart) {
  const std::pair<const char*, uint16_t> cells[] = {{"127.0.0.1", 10700}, {"127.0.0.1", 10713}, {"127.0.0.2", 10700}};
  std::vector<capture::Frame> frames;
  uint64_t t = kT0;
  for (const Bytes& block : sample_blocks())
    for (const auto& [source, arfcn] : cells) {
      capture::Route route;
      route.source = source;
      frames.push_back(gsmtap_frame(Link::ethernet, t += 10000, block, arfcn, gsmtap::kSubBcchBch, route));
    }
  const Outcome r = run_on("three_cells.pcapng", capture::pcapng_file(Link::ethernet, frames));
  EXPECT_EQ(r.status, 0) << r.err;
  const std::vector<Line> lines = parse_lines(r.out);
  EXPECT_EQ(lines.size(), 3 * hex_record_count());
  for (const auto& [source, arfcn] : cells) {
    const std::string cell = "\"source\":\"" + std::string(source) + "\",\"arfcn\":" + n_of(arfcn);
    EXPECT_EQ(records_by_block(lines, cell), hex_records()) << cell;
  }

  /* One cell through the whole-SIB sub-types, with a GSM message (type 1), a SIB16 (sub-type
     51), a SIB19 (54), a SIB4 (20) and a DNS datagram among them: the records of the --sibs
     path, the rest counted. */
  const std::map<std::string, uint8_t> sub_type = {
      {"mib", 16}, {"sib1", 17}, {"sib2", 18}, {"sib3", 19}, {"sib5", 21},  {"sib7", 24},
      {"sib11", 28}, {"sib12", 30}, {"sib18", 53}, {"sb1", 58}, {"sb2", 59}, {"sib11bis", 29}};
  frames.clear();
  /* The sample SIB16 is left out: GSMTAP's SIB16 is counted and skipped (below), sibdump
     converts a SIB16 only from --sibs. */
  size_t carried = 0;
  for (const auto& sib : sample_sibs()) {
    if (sib.first == "sib16") continue;
    carried++;
    ASSERT_EQ(sub_type.count(sib.first), 1u) << sib.first;
    frames.push_back(gsmtap_frame(Link::linux_sll, t += 1000, sib.second, 10700, sub_type.at(sib.first)));
  }
  frames.push_back(gsmtap_frame(Link::linux_sll, t += 1000, {0x01, 0x02}, 10700, 1, capture::Route(), 1));
  for (const uint8_t skipped : {51, 54, 20})
    frames.push_back(gsmtap_frame(Link::linux_sll, t += 1000, {0x01, 0x02}, 10700, skipped));
  capture::Route dns;
  dns.destination_port = 53;
  frames.push_back({t += 1000, capture::udp_frame(Link::linux_sll, dns, {1, 2, 3}), 0});
  const Outcome whole = run_on("whole_sibs.pcap", capture::pcap_file(Link::linux_sll, frames));
  EXPECT_EQ(whole.status, 0) << whole.err;
  const Outcome by_text = run_sibdump("--sibs '" + kSamples + "/fdd_cell_sibs.txt'");
  auto by_text_records = records_by_block(parse_lines(by_text.out));
  const size_t sib16_records = by_text_records.count("sib16") ? by_text_records.at("sib16").size() : 0;
  by_text_records.erase("sib16");
  EXPECT_EQ(records_by_block(parse_lines(whole.out)), by_text_records);
  const std::string sibs = n_of(carried), records = n_of(parse_lines(by_text.out).size() - sib16_records);
  EXPECT_TRUE(has(whole.err, "ARFCN 10700: 0 blocks, " + sibs + " SIBs, " + records + " records, 4 skipped, 0 errors"))
      << whole.err;
  EXPECT_TRUE(has(whole.err, n_of(carried + 5) + " frames read, 0 blocks, " + sibs + " SIBs, " + records +
                                 " records written, 4 skipped, 1 not GSMTAP"))
      << whole.err;
}

/* A capture read in this process, as sibdump reads it: the frames read, the records
   converted and the messages. The library's ASN.1 text is discarded meanwhile. */
struct InProcess {
  long frames;
  size_t records;
  std::string messages;
};

InProcess read_in_process(const std::string& name, Bytes file) {
  static umts_sib_set* set = static_cast<umts_sib_set*>(std::calloc(1, sizeof(umts_sib_set)));
  static FILE* discard = std::fopen("/dev/null", "w");
  InProcess r{-1, 0, ""};
  if (file.empty()) file.push_back(0); /* fmemopen needs a buffer */
  FILE* in = fmemopen(file.data(), file.size(), "r");
  char* text = nullptr;
  size_t text_size = 0;
  FILE* messages = open_memstream(&text, &text_size);
  if (in == nullptr || messages == nullptr || set == nullptr || discard == nullptr) return r;
  RecordOutput output{[&r](const std::string&, const CellKey&) {
                        const size_t n = std::bitset<32>(set->presence_bitmask).count();
                        r.records += n;
                        return n;
                      },
                      nullptr};
  rtxPrintSetStream(discard);
  {
    CellFeed feed(set, output, name, "frame", messages);
    r.frames = read_capture(in, name.c_str(), feed, messages);
  }
  rtxPrintFlush();
  rtxPrintSetStream(stdout);
  std::fclose(messages);
  r.messages.assign(text, text_size);
  std::free(text);
  return r;
}

/* A capture cut at every length of its last frame: the message names that frame and the
   frames before it are kept; cut at the frame's start it simply ends after the one before. */
TEST_F(Capture, CutAtEveryLengthOfTheLastFrame) {
  const std::vector<capture::Frame> frames = cycle_frames(Link::ethernet);
  const size_t kept = frames.size() - 1;
  const std::string last = "frame " + n_of(frames.size());
  const std::vector<capture::Frame> first9(frames.begin(), frames.begin() + static_cast<std::ptrdiff_t>(kept));
  /* The frames before the last give the sample's records but the second SIB5, which the last
     block completes (as the sample's comments say). */
  auto nine = hex_records();
  nine["sib5"].pop_back();

  for (bool ng : {false, true}) {
    const std::string name = ng ? "cut.pcapng" : "cut.pcap";
    const Bytes whole = ng ? capture::pcapng_file(Link::ethernet, frames) : capture::pcap_file(Link::ethernet, frames);
    const size_t end9 = (ng ? capture::pcapng_file(Link::ethernet, first9) : capture::pcap_file(Link::ethernet, first9)).size();
    ASSERT_LT(end9, whole.size());
    EXPECT_EQ(read_in_process(name, whole).records, hex_record_count());
    for (size_t cut = end9; cut < whole.size(); cut++) {
      const InProcess r = read_in_process(name, Bytes(whole.begin(), whole.begin() + cut));
      EXPECT_EQ(static_cast<size_t>(r.frames), kept) << name << " cut at " << cut;
      EXPECT_EQ(r.records, hex_record_count() - 1) << name << " cut at " << cut;
      if (cut == end9) {
        EXPECT_EQ(r.messages, "") << cut;
      } else {
        EXPECT_EQ(r.messages.rfind("sibdump: " + name + ": " + last + ": damaged capture, reading stops here (", 0), 0u)
            << name << " cut at " << cut << ": " << r.messages;
        EXPECT_TRUE(has(r.messages, "); the frames before it are kept\n")) << r.messages;
      }
    }
    /* One cut through sibdump itself: the status, the message and the records. */
    const Outcome r = run_on(name, Bytes(whole.begin(), whole.begin() + (end9 + whole.size()) / 2));
    EXPECT_EQ(r.status, 1);
    EXPECT_TRUE(has(r.err, name + ": " + last + ": damaged capture, reading stops here (")) << r.err;
    EXPECT_TRUE(has(r.err, "sibdump: " + n_of(kept) + " frames read, " + n_of(kept) + " blocks")) << r.err;
    EXPECT_EQ(records_by_block(parse_lines(r.out)), nine);
  }
  /* A file cut inside its own header is no capture at all. */
  const Bytes whole = capture::pcap_file(Link::ethernet, frames);
  const Outcome header = run_on("header.pcap", Bytes(whole.begin(), whole.begin() + 10));
  EXPECT_EQ(header.status, 2);
  EXPECT_TRUE(has(header.err, "header.pcap: not a capture that can be read")) << header.err;
  EXPECT_TRUE(header.out.empty());
}

/* Frames that cannot be read are reported with their number; the others are decoded. */
TEST_F(Capture, DamagedFramesAreReportedAndSkipped) {
  std::vector<capture::Frame> frames = cycle_frames(Link::ethernet);
  const size_t gsmtap_at = 14 + 20 + 8;
  /* Frame 3 (SIB1 and SIB2): GSMTAP version 1. */
  frames[2].bytes[gsmtap_at] = 1;
  /* The frame after the cycle: a UDP payload of 10 octets, shorter than the GSMTAP header. */
  frames.push_back({kT0 + 300000, capture::udp_frame(Link::ethernet, capture::Route(), Bytes(10, 0x02)), 0});
  /* The next: a frame too short for its IPv4 header. */
  frames.push_back({kT0 + 320000, Bytes(frames[0].bytes.begin(), frames[0].bytes.begin() + 24), 0});
  /* The next: the capture kept 50 of the 89 octets. */
  capture::Frame cut = frames[0];
  cut.bytes.resize(50);
  cut.on_wire = 89;
  cut.time_us = kT0 + 340000;
  frames.push_back(cut);
  /* The next: a transport block longer than 64 octets. */
  frames.push_back(gsmtap_frame(Link::ethernet, kT0 + 360000, Bytes(65, 0)));
  /* The last: the MIB again, after all of that. */
  frames.push_back(gsmtap_frame(Link::ethernet, kT0 + 380000, sample_blocks()[0]));

  const Outcome r = run_on("damaged.pcap", capture::pcap_file(Link::ethernet, frames));
  EXPECT_EQ(r.status, 1);
  const size_t n = sample_blocks().size();
  auto frame = [&](size_t k) { return "damaged.pcap: frame " + n_of(n + k) + ": "; };
  for (const std::string& message : {
           std::string("damaged.pcap: frame 3: GSMTAP version 1 (expected 2)"),
           frame(1) + "UDP payload of 10 octets is shorter than the GSMTAP header (16)",
           frame(2) + "frame too short for its IPv4 header (10 octets)",
           frame(3) + "IPv4 packet of 75 octets cut to 36 (the capture kept 50 of the frame's 89 octets)",
           frame(4) + "transport block of 65 octets (ARFCN 10700): expected 1 to 64",
           "sibdump: cell 127.0.0.1 ARFCN 10700: " + n_of(n) + " blocks, 0 SIBs, " + n_of(hex_record_count() - 1) +
               " records, 0 skipped, 1 errors",
           "sibdump: " + n_of(n + 5) + " frames read, " + n_of(n) + " blocks, 0 SIBs, " + n_of(hex_record_count() - 1) +
               " records written, 0 skipped, 0 not GSMTAP, 5 bad frames"})
    EXPECT_TRUE(has(r.err, message)) << message << "\n" << r.err;
  auto expected = hex_records();
  expected.erase("sib1");
  expected.erase("sib2");
  expected["mib"].push_back(expected["mib"][0]);
  EXPECT_EQ(records_by_block(parse_lines(r.out)), expected);
}

/* ---- Live datagrams ----------------------------------------------------------------------- */

/* The sample cycle in datagrams over the loopback address, a malformed one after the third:
   the records arrive as they are decoded (before the end of the run), the bad one is named,
   and an interruption ends the run with the counts. */
TEST(Live, DatagramsOverLoopback) {
  LiveSibdump live(kSibdump);
  ASSERT_GT(live.port, 0) << live.err;
  for (size_t k = 0; k < sample_blocks().size(); k++) {
    EXPECT_TRUE(live.send(block_datagram(sample_blocks()[k])));
    if (k == 2) {
      Bytes bad = block_datagram(sample_blocks()[k]);
      bad[0] = 3; /* version */
      EXPECT_TRUE(live.send(bad));
    }
  }
  const size_t expected_lines = hex_record_count();
  EXPECT_TRUE(read_until(live.c.out, &live.out, [&](const std::string& t) {
    return static_cast<size_t>(std::count(t.begin(), t.end(), '\n')) >= expected_lines;
  })) << live.out;
  EXPECT_EQ(live.stop(), 1); /* one bad datagram */
  const std::vector<Line> lines = parse_lines(live.out);
  EXPECT_EQ(records_by_block(lines), hex_records());
  for (const Line& l : lines) EXPECT_TRUE(has(l.head, "\"source\":\"127.0.0.1\",\"arfcn\":10700")) << l.head;
  const std::string where = "sibdump: udp 127.0.0.1:" + std::to_string(live.port) + ": datagram 4: ";
  for (const std::string& message : {where + "GSMTAP version 3 (expected 2)", std::string("sibdump: interrupted; counts of this run:"),
                                     "sibdump: cell 127.0.0.1 ARFCN 10700: " + n_of(sample_blocks().size()) + " blocks, 0 SIBs, " +
                                         n_of(hex_record_count()) + " records, 0 skipped, 0 errors",
                                     "sibdump: " + n_of(sample_blocks().size() + 1) + " datagrams read, " +
                                         n_of(sample_blocks().size()) + " blocks, 0 SIBs, " + n_of(hex_record_count()) +
                                         " records written, 0 skipped, 0 not GSMTAP, 1 bad datagrams"})
    EXPECT_TRUE(has(live.err, message)) << message << "\n" << live.err;
}

/* The number before `what` in `text` ("... 12 datagrams read"), or -1. */
long count_before(const std::string& text, const std::string& what) {
  const size_t at = text.find(what);
  size_t start = at;
  while (start != std::string::npos && start > 0 && text[start - 1] >= '0' && text[start - 1] <= '9') start--;
  return at == std::string::npos || start == at ? -1 : std::atol(text.c_str() + start);
}

/* sibdump is stopped (SIGSTOP) while 300 datagrams arrive at a receive buffer of 4 KiB, which
   holds a few: the kernel drops the rest, sibdump reads what was kept once it goes on, and its
   counts add up to what was sent, in the counts and in the summary. */
TEST(Live, OverfilledReceiveBufferIsCountedExactly) {
#ifndef __linux__
  GTEST_SKIP() << "the kernel's drop count is read on Linux only";
#endif
  LiveSibdump live(kSibdump, {"--udp-buffer", "4K", "--summary=json"});
  ASSERT_GT(live.port, 0) << live.err;
  ASSERT_EQ(kill(live.c.pid, SIGSTOP), 0);
  long sent = 0;
  for (size_t k = 0; k < 300; k++) sent += live.send(block_datagram(sample_blocks()[k % sample_blocks().size()])) ? 1 : 0;
  /* A datagram to this test's own socket, received back: the loopback device has delivered
     those sent before it, so that each is now queued or dropped. */
  const int probe = socket(AF_INET, SOCK_DGRAM, 0);
  sockaddr_in self{};
  self.sin_family = AF_INET;
  self.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t self_length = sizeof self;
  const timeval limit = {60, 0};
  ASSERT_EQ(bind(probe, reinterpret_cast<sockaddr*>(&self), sizeof self), 0);
  getsockname(probe, reinterpret_cast<sockaddr*>(&self), &self_length);
  setsockopt(probe, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  char byte = 0;
  sendto(live.fd, &byte, 1, 0, reinterpret_cast<sockaddr*>(&self), sizeof self);
  EXPECT_EQ(recv(probe, &byte, 1, 0), 1);
  close(probe);
  kill(live.c.pid, SIGCONT);
  EXPECT_EQ(live.stop(), 0) << live.err;

  const long read = count_before(live.err, " datagrams read,");
  const long dropped = count_before(live.err, " datagrams dropped by the kernel before they were read (receive buffer 4 KiB)\n");
  EXPECT_EQ(sent, 300);
  EXPECT_GT(read, 0) << live.err;
  EXPECT_GT(dropped, 0) << live.err;
  EXPECT_EQ(read + dropped, sent) << live.err;
  EXPECT_TRUE(has(live.out, "\"datagrams_dropped_by_kernel\":" + std::to_string(dropped) + ",")) << live.out;
}

}  // namespace
