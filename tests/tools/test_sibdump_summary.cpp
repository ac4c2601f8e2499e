/*
 * sibdump --summary: the sample cell against values worked out by hand from how the cell was
 * built (mksamples) and the units of the standard, captures that miss blocks, several cells.
 */
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "capture_choice.h"
#include "capture_writer.h"
#include "gsmtap.h"
#include "json_check.h"
#include "summary.h"
#include "sibdump_child.h"
#include "tools_test_util.h"
#include "umts_sib_summary.h"

namespace {

using namespace tt;

/* Inputs made for these tests: see the comments in each file. */
const std::string kData = std::string(UMTS_SOURCE_DIR) + "/tests/tools/data/";

/* The summaries of a run, one JSON object per line, each checked for syntax. */
std::vector<std::string> summaries(const Outcome& r) {
  std::vector<std::string> out = lines_of(r.out);
  for (const std::string& l : out) EXPECT_TRUE(json_check::valid(l)) << l;
  return out;
}

Outcome run_capture(const std::string& name, const std::vector<capture::Frame>& frames, const char* format) {
  const std::string path = temp_dir() + "/" + name;
  EXPECT_TRUE(capture::write_file(path, capture::pcap_file(gsmtap::Link::ethernet, frames)));
  return run_sibdump(std::string("--summary=") + format + " '" + path + "'");
}

/* Blocks of the sample cycle (0-based) as its comments name them: the MIB's, the one that
   completes SIB3, and the last segments of the two SIB5s. */
constexpr size_t kMibBlock = 0, kSib3Block = 3, kSib5Blocks[] = {5, 20};

/* ---- The sample cell ---------------------------------------------------------------------- */

/* Worked out from the cell as built: MCC 262, MNC 01, LAC 0x4E21, RAC 5 (first octet of the PS
   domain's NAS information), cell identity 0x01A2B3C = 1715004 with RNC-Id 0x01A = 26 and C-Id
   0x2B3C = 11068, URAs 0x0123 ... 0x0126. */
const char kIdentity[] =
    "\"identity\":{\"plmn\":\"262-01\",\"lac\":20001,\"rac\":5,"
    "\"cell_identity\":{\"value\":1715004,\"rnc_id\":26,\"c_id\":11068},"
    "\"ura_identities\":[291,292,293,294],\"frequency_band\":{\"name\":\"fdd2100\",\"coded\":0}}";

/* Not barred (cellBarred alternative 2), no class barred (all sixteen notBarred). */
const char kAccess[] =
    "\"access\":{\"cell_barred\":{\"name\":\"notBarred\",\"coded\":2},"
    "\"reserved_for_operator_use\":{\"name\":\"notReserved\",\"coded\":1},"
    "\"reservation_extension\":{\"name\":\"notReserved\",\"coded\":1},\"access_classes_barred\":[],"
    "\"intra_freq_cell_reselection\":{\"missing\":\"sent only when the cell is barred\"},"
    "\"t_barred\":{\"missing\":\"sent only when the cell is barred\"}}";

/* Qqualmin in dB as coded; Qrxlevmin = 2 x -58 + 1 = -115 dBm; Sintrasearch 2 x 6 = 12 dB,
   Sintersearch 2 x 4 = 8 dB, SsearchRAT 2 x 2 = 4 dB; DeltaQrxlevmin 2 x -2 = -4 dB; Qhyst1s
   2 x 2 = 4 dB; Treselection 1 s; maximum UL power 24 dBm. */
const char kSelection[] =
    "\"selection\":{\"quality_measure\":{\"name\":\"cpich-RSCP\",\"coded\":2},"
    "\"q_qualmin\":{\"value\":-18,\"unit\":\"dB\",\"coded\":-18},"
    "\"q_rxlevmin\":{\"value\":-115,\"unit\":\"dBm\",\"coded\":-58},"
    "\"s_intrasearch\":{\"value\":12,\"unit\":\"dB\",\"coded\":6},"
    "\"s_intersearch\":{\"value\":8,\"unit\":\"dB\",\"coded\":4},"
    "\"s_search_rat\":[{\"rat\":{\"name\":\"gsm\",\"coded\":0},"
    "\"s_search_rat\":{\"value\":4,\"unit\":\"dB\",\"coded\":2},"
    "\"s_limit_search_rat\":{\"value\":0,\"unit\":\"dB\",\"coded\":0}}],"
    "\"delta_q_rxlevmin\":{\"value\":-4,\"unit\":\"dB\",\"coded\":-2},"
    "\"q_hyst1_s\":{\"value\":4,\"unit\":\"dB\",\"coded\":2},"
    "\"t_reselection\":{\"value\":1,\"unit\":\"s\",\"coded\":1},"
    "\"max_allowed_ul_tx_power\":{\"value\":24,\"unit\":\"dBm\",\"coded\":24},"
    "\"hcs\":{\"missing\":\"no HCS serving cell information\"}}";

/* The last SIB5 of the cycle (the second form): 2 PRACHs, 2 S-CCPCHs, AICH -6 dB, PICH
   -5 dB, HSDPA and E-DCH cell indicators, nothing of v770 or v890. */
const char kCommonChannels[] =
    "\"common_channels\":{\"prach_count\":2,\"sccpch_count\":2,"
    "\"aich_power_offset\":{\"value\":-6,\"unit\":\"dB\",\"coded\":-6},"
    "\"pich_power_offset\":{\"value\":-5,\"unit\":\"dB\",\"coded\":-5},"
    "\"hsdpa_cell\":true,\"hs_dsch_in_cell_fach\":false,\"edch_cell\":true,\"common_edch\":false}";

/* One entry of the schedule as sibdump writes it. */
std::string entry(const char* sib, const char* by, int rep, int pos, int segs, const char* frames, const char* tag,
                  const char* seen) {
  return std::string("{\"sib\":\"") + sib + "\",\"announced_by\":\"" + by + "\",\"repetition_frames\":" +
         std::to_string(rep) + ",\"position_frame\":" + std::to_string(pos) + ",\"segment_count\":" +
         std::to_string(segs) + ",\"segment_frames\":[" + frames + "],\"value_tag\":" + tag + ",\"seen\":" + seen + "}";
}

/* SIB_POS is twice the coded position; further segments follow two frames later unless the
   entry lists offsets (SIB_OFF): SIB5's so6, so2 give 12, 18, 20, SIB11's so8, so16 give 34,
   42, 58. The MIB names SB1 and the blocks for camping, SB1 the rest and SIB7 again, and in its
   extension SIB11bis, once in the SFN cycle (rep4096) at frame 28, and SIB19. */
std::string sample_schedule() {
  return "\"schedule\":[" + entry("masterInformationBlock", "fixed", 8, 0, 1, "0", "3", "true") + "," +
         entry("sysInfoTypeSB1", "mib", 64, 2, 1, "2", "2", "true") + "," +
         entry("sysInfoType1", "mib", 32, 4, 1, "4", "17", "true") + "," +
         entry("sysInfoType3", "mib", 16, 6, 1, "6", "2", "true") + "," +
         entry("sysInfoType5", "mib", 32, 12, 3, "12,18,20", "2", "true") + "," +
         entry("sysInfoType7", "mib", 16, 14, 1, "14", "null", "true") + "," +
         entry("sysInfoType2", "sb1", 128, 10, 1, "10", "2", "true") + "," +
         entry("sysInfoType7", "sb1", 16, 14, 1, "14", "null", "true") + "," +
         entry("sysInfoType11", "sb1", 128, 34, 3, "34,42,58", "2", "true") + "," +
         entry("sysInfoType12", "sb1", 128, 60, 1, "60", "2", "true") + "," +
         entry("sysInfoType18", "sb1", 256, 74, 1, "74", "2", "true") + "," +
         entry("systemInfoType11bis", "sb1", 4096, 28, 1, "28", "2", "true") + "," +
         entry("systemInfoType19", "sb1", 128, 26, 1, "26", "2", "false") + "]";
}

/* The sample cell from its file of blocks: one cell, named by the file (a capture's cells are
   named by sender and ARFCN: CaptureOfTwoCellsThatMissBlocks). */
TEST(Summary, SampleCell) {
  const std::string path = kSamples + "/fdd_cell.bch";
  const Outcome r = run_sibdump("--summary=json '" + path + "'");
  EXPECT_EQ(r.status, 0) << r.err;
  const std::vector<std::string> cells = summaries(r);
  ASSERT_EQ(cells.size(), 1u) << r.out;
  const std::string& s = cells[0];
  EXPECT_EQ(s.rfind("{\"cell\":\"" + path + "\",", 0), 0u) << s;
  EXPECT_TRUE(has(s, "\"blocks_received\":[\"mib\",\"sib1\",\"sib2\",\"sib3\",\"sib5\",\"sib7\",\"sib11\",\"sib11bis\","
                     "\"sib12\",\"sib18\",\"sb1\"]")) << s;
  for (const std::string& part : {std::string(kIdentity), std::string(kAccess), std::string(kSelection),
                                 sample_schedule(), std::string(kCommonChannels)})
    EXPECT_TRUE(has(s, part)) << "expected: " << part << "\nin: " << s;
  /* Neighbours: PSC 140 with Qoffset2 -2 dB; GSM ARFCN 62 on DCS 1800, BSIC 3-1. */
  EXPECT_TRUE(has(s, "{\"cell_id\":3,\"primary_scrambling_code\":140,"
                     "\"cell_individual_offset\":{\"value\":0,\"unit\":\"dB\",\"coded\":0},"
                     "\"q_offset1_s_n\":{\"value\":0,\"unit\":\"dB\",\"coded\":0},"
                     "\"q_offset2_s_n\":{\"value\":-2,\"unit\":\"dB\",\"coded\":-2}}")) << s;
  EXPECT_TRUE(has(s, "{\"cell_id\":0,\"bcch_arfcn\":62,\"band\":{\"name\":\"dcs1800BandUsed\",\"coded\":0},"
                     "\"bsic\":\"3-1\"")) << s;
  /* The second carrier, UARFCN 10663, named by its first cell. */
  EXPECT_TRUE(has(s, "\"inter_frequency\":[{\"cell_id\":0,\"uarfcn_dl\":10663,\"primary_scrambling_code\":301,")) << s;
  EXPECT_TRUE(has(s, "{\"cell_id\":2,\"uarfcn_dl\":\"same as the cell before\",\"primary_scrambling_code\":328,"))
      << s;
  size_t neighbours = 0;
  for (size_t at = s.find("\"primary_scrambling_code\":"); at != std::string::npos;
       at = s.find("\"primary_scrambling_code\":", at + 1))
    neighbours++;
  EXPECT_EQ(neighbours, 12u + 3u); /* intra-frequency and inter-frequency */

  /* The text says the same in lines. */
  const Outcome t = run_sibdump("--summary '" + kSamples + "/fdd_cell.bch'");
  EXPECT_EQ(t.status, 0);
  for (const char* line : {"cell " /* first line */, "    plmn: 262-01\n",
                           "    cell_identity: value 1715004, rnc_id 26, c_id 11068\n",
                           "    q_rxlevmin: -115 dBm (coded -58)\n", "    t_reselection: 1 s (coded 1)\n",
                           "    cell_barred: notBarred (coded 2)\n", "    - sib sysInfoType5, announced_by mib, repetition_frames 32, position_frame 12, segment_count 3, "
                           "segment_frames 12 18 20, value_tag 2, seen yes\n",
                           "bsic 5-2"})
    EXPECT_TRUE(has(t.out, line)) << line << "\n" << t.out;
}

/* ---- Files of whole SIBs ------------------------------------------------------------------ */

/* The summary of a file of whole SIBs: what it holds (`present`) and what it does not. */
TEST(Summary, FilesOfWholeSibs) {
  const struct {
    std::string path;
    std::vector<std::string> present, absent;
  } files[] = {
      /* Every SIB of the sibs file, of which the last forms count: SIB11 with HCS in use, the
         HSPA SIB5. The GSM cells of the HCS form's full list come without the element dummy, so
         their record holds no BSIC: said missing, not shown as 0-0. */
      {kSamples + "/fdd_cell_sibs.txt",
       {"\"use_of_hcs\":{\"name\":\"hcs-used\",\"coded\":2}",
        "\"primary_scrambling_code\":124,"
        "\"cell_individual_offset\":{\"value\":0,\"unit\":\"dB\",\"coded\":0},"
        "\"q_offset1_s_n\":{\"value\":0,\"unit\":\"dB\",\"coded\":0},"
        "\"q_offset2_s_n\":{\"value\":0,\"unit\":\"dB\",\"coded\":0},\"hcs_priority\":5,\"q_hcs_coded\":30}",
        "\"hsdpa_cell\":true,\"hs_dsch_in_cell_fach\":true,\"edch_cell\":true,\"common_edch\":true", "\"sib11bis\"",
        "{\"cell_id\":2,\"bcch_arfcn\":81,\"band\":{\"name\":\"dcs1800BandUsed\",\"coded\":0},"
        "\"bsic\":{\"missing\":\"not in the record without the element dummy\"}"},
       {"\"bsic\":\""}},
      /* A barred cell that sends no SB1: the barring in names (access class 10 barred,
         reselection not allowed, Tbarred 80 s), SB1 announced by the MIB but not seen, and
         nothing of what only SB1 schedules (SIB19). */
      {kData + "barred_cell_sibs.txt",
       {"\"access\":{\"cell_barred\":{\"name\":\"barred\",\"coded\":1},"
        "\"reserved_for_operator_use\":{\"name\":\"notReserved\",\"coded\":1},"
        "\"reservation_extension\":{\"name\":\"notReserved\",\"coded\":1},"
        "\"access_classes_barred\":[10],"
        "\"intra_freq_cell_reselection\":{\"name\":\"notAllowed\",\"coded\":1},"
        "\"t_barred\":{\"name\":\"s80\",\"coded\":3}}",
        entry("sysInfoTypeSB1", "mib", 64, 2, 1, "2", "2", "false"),
        "\"priorities\":{\"missing\":\"no SIB19 announced\"}", "\"blocks_received\":[\"mib\",\"sib3\"]"},
       {"\"announced_by\":\"sb1\"", "systemInfoType19"}},
      /* Two inter-frequency cells: the offset in 0.5 dB steps (coded 2: 1 dB); the second on
         the frequency of the cell before, with thresholds of its own (Qrxlevmin 2 x -50 + 1 =
         -99 dBm). The twelfth intra-frequency cell and the GSM cells stay. */
      {kData + "inter_frequency_sibs.txt",
       {"\"inter_frequency\":[{\"cell_id\":1,\"uarfcn_dl\":10563,\"primary_scrambling_code\":300,"
        "\"cell_individual_offset\":{\"value\":1,\"unit\":\"dB\",\"coded\":2}},"
        "{\"uarfcn_dl\":\"same as the cell before\",\"primary_scrambling_code\":301,"
        "\"cell_individual_offset\":{\"value\":0,\"unit\":\"dB\",\"coded\":0},"
        "\"q_offset1_s_n\":{\"value\":0,\"unit\":\"dB\",\"coded\":0},"
        "\"q_offset2_s_n\":{\"value\":0,\"unit\":\"dB\",\"coded\":0},"
        "\"max_allowed_ul_tx_power\":{\"value\":21,\"unit\":\"dBm\",\"coded\":21},"
        "\"q_qualmin\":{\"value\":-20,\"unit\":\"dB\",\"coded\":-20},"
        "\"q_rxlevmin\":{\"value\":-99,\"unit\":\"dBm\",\"coded\":-50}}]",
        "\"primary_scrambling_code\":240,", "\"bcch_arfcn\":81,"},
       {}},
  };
  for (const auto& f : files) {
    const Outcome r = run_sibdump("--sibs --summary=json '" + f.path + "'");
    EXPECT_EQ(r.status, 0) << r.err;
    const std::vector<std::string> cells = summaries(r);
    ASSERT_EQ(cells.size(), 1u) << f.path;
    for (const std::string& part : f.present) EXPECT_TRUE(has(cells[0], part)) << part << "\nin: " << cells[0];
    for (const std::string& part : f.absent) EXPECT_FALSE(has(cells[0], part)) << part << "\nin: " << cells[0];
  }
}

/* ---- What is missing ---------------------------------------------------------------------- */

/* Two cells in one capture, told apart by their ARFCN, their blocks interleaved: each has its
   own summary, in the order first heard, and what one lacks does not come from the other. The
   first misses the MIB's block and the blocks that complete the SIB5s: their first segments
   arrive, the SIBs never do. Its part ends within the second SIB5 (1326 bits: 6 segments of at
   most 222), of which all but the last came. The second misses the SIB3's block. */
TEST(Summary, CaptureOfTwoCellsThatMissBlocks) {
  UMTS_SKIP_WITHOUT_CAPTURE();
  const std::vector<capture::Frame> a = cycle_frames(gsmtap::Link::ethernet, capture::Route(), 10700, kT0,
                                                     {kMibBlock, kSib5Blocks[0], kSib5Blocks[1]}),
                                    b = cycle_frames(gsmtap::Link::ethernet, capture::Route(), 10713, kT0 + 10000,
                                                     {kSib3Block});
  std::vector<capture::Frame> frames;
  for (size_t k = 0; k < b.size(); k++) {
    if (k < a.size()) frames.push_back(a[k]);
    frames.push_back(b[k]);
  }
  const Outcome r = run_capture("two_cells.pcap", frames, "json");
  const std::vector<std::string> cells = summaries(r);
  ASSERT_EQ(cells.size(), 2u) << r.out << r.err;
  for (const char* part :
       {"\"cell\":\"source 127.0.0.1, ARFCN 10700\"", "\"plmn\":{\"missing\":\"no MIB received\"}",
        "\"schedule\":{\"missing\":\"no MIB received\"}",
        "\"frequency_band\":{\"missing\":\"SIB5 incomplete: 5 of 6 segments received\"}",
        "\"common_channels\":{\"missing\":\"SIB5 incomplete: 5 of 6 segments received\"}",
        "\"lac\":20001", "\"c_id\":11068"})
    EXPECT_TRUE(has(cells[0], part)) << part << "\n" << cells[0];
  EXPECT_FALSE(has(cells[0], "\"mib\"")) << cells[0];
  EXPECT_FALSE(has(cells[0], "\"sib5\"")) << cells[0];
  const std::vector<std::string> second = {
      "\"cell\":\"source 127.0.0.1, ARFCN 10713\"", "\"cell_identity\":{\"missing\":\"SIB3 not received\"}",
      "\"access\":{\"missing\":\"SIB3 not received\"}", entry("sysInfoType3", "mib", 16, 6, 1, "6", "2", "false")};
  for (const std::string& part : second) EXPECT_TRUE(has(cells[1], part)) << part << "\n" << cells[1];

  const Outcome t = run_capture("two_cells.pcap", frames, "text");
  EXPECT_TRUE(has(t.out, "  schedule: (no MIB received)\n")) << t.out;
  EXPECT_TRUE(has(t.out, "  common_channels: (SIB5 incomplete: 5 of 6 segments received)\n")) << t.out;
  const Outcome h = run_capture("two_cells.pcap", frames, "html");
  EXPECT_TRUE(has(h.out, "SIB5 incomplete: 5 of 6 segments received")) << h.out;

  /* Nothing converted at all: said so, not an empty output. */
  const Outcome e = run_capture("none.pcap", {}, "json");
  EXPECT_EQ(e.out, "{\"cell\":null,\"missing\":\"no block of any cell was converted\"}\n");
}

/* ---- SIB19 and a new configuration ------------------------------------------------------- */

/* A block of tests/tools/data/summary_blocks.txt, as hex. */
std::string extra_block(const std::string& name) {
  for (const auto& b : named_hex(kData + "summary_blocks.txt"))
    if (b.first == name) return hex_of(b.second);
  ADD_FAILURE() << "no block " << name;
  return "";
}

/* A file of the sample cycle followed by `extra` blocks; sibdump's summary of it. */
Outcome summary_of(const std::string& name, const std::vector<std::string>& extra, const char* format = "json") {
  std::string text = read_file(kSamples + "/fdd_cell.bch");
  for (const std::string& l : extra) text += l + "\n";
  const std::string path = temp_dir() + "/" + name;
  write_file(path, text);
  return run_sibdump(std::string("--summary=") + format + " '" + path + "'");
}

/* SB1 schedules SIB19 at frame 26 of 128, further segments two frames apart. The SIB comes
   as extensionType, whole or cut in two; its frequencies in units (Qrxlevmin 2 x coded dBm,
   thresholds 2 x coded dB: the first -128 dBm, 12 and 6 dB, the eighth -114 dBm). Parts in
   frames where SIB19 is not scheduled, or a last segment without its first, give no SIB19. */
TEST(Summary, Sib19PlacedByItsSchedule) {
  const std::string first =
      "{\"earfcn\":6300,\"measurement_bandwidth\":{\"name\":\"mbw50\",\"coded\":3},\"priority\":5,"
      "\"q_rxlevmin_eutra\":{\"value\":-128,\"unit\":\"dBm\",\"coded\":-64},"
      "\"thresh_x_high\":{\"value\":12,\"unit\":\"dB\",\"coded\":6},"
      "\"thresh_x_low\":{\"value\":6,\"unit\":\"dB\",\"coded\":3},\"blacklisted_cells\":0,\"eutra_detection\":true}";
  const std::string eighth =
      "{\"earfcn\":7000,\"priority\":5,\"q_rxlevmin_eutra\":{\"value\":-114,\"unit\":\"dBm\",\"coded\":-57},";
  const std::string serving =
      "\"serving_cell\":{\"priority\":3,\"s_priority_search1\":{\"value\":10,\"unit\":\"dB\",\"coded\":5},"
      "\"s_priority_search2\":{\"value\":0,\"unit\":\"dB\",\"coded\":0},"
      "\"thresh_serving_low\":{\"value\":4,\"unit\":\"dB\",\"coded\":2}}";
  const std::string none = "\"priorities\":{\"missing\":\"SIB19 not received\"}";
  const std::vector<std::string> cut = {extra_block("sib19_first"), extra_block("sib19_last")};
  const struct {
    const char* name;
    std::vector<std::string> blocks;
    std::vector<std::string> expected;
  } cases[] = {
      {"whole", {extra_block("sib19_whole")}, {serving, "\"eutra_frequencies\":[" + first + "]"}},
      {"cut", cut, {serving, "\"eutra_frequencies\":[" + first, eighth}},
      {"late", {extra_block("sib19_late")}, {none}},
      {"no_first", {cut[1]}, {none}},
  };
  for (const auto& c : cases) {
    const Outcome r = summary_of(std::string("sib19_") + c.name + ".bch", c.blocks);
    EXPECT_EQ(r.status, 0) << r.err;
    const std::vector<std::string> cells = summaries(r);
    ASSERT_EQ(cells.size(), 1u) << c.name;
    for (const std::string& part : c.expected) EXPECT_TRUE(has(cells[0], part)) << c.name << ": " << part << "\n" << cells[0];
    const bool received = c.expected.size() > 1;
    EXPECT_EQ(has(cells[0], "\"sib18\",\"sb1\",\"sib19\"]"), received) << c.name;
    EXPECT_TRUE(has(cells[0], entry("systemInfoType19", "sb1", 128, 26, 1, "26", "2", received ? "true" : "false")))
        << c.name;
  }
  const Outcome t = summary_of("sib19_text.bch", cut, "text");
  EXPECT_TRUE(has(t.out, "earfcn 6300, measurement_bandwidth mbw50 (coded 3), priority 5, q_rxlevmin_eutra -128 dBm"))
      << t.out;
}

/* A MIB with a new value tag ends the configuration so far: its summary is written with what
   ended it, and the new one starts empty (here only the new MIB and the SIB3 that follows). */
void expect_ended_then_new(const std::vector<std::string>& cells) {
  ASSERT_EQ(cells.size(), 2u);
  EXPECT_TRUE(has(cells[0], "\"ended_by\":\"MIB value tag 3 changed to 4\"")) << cells[0];
  EXPECT_TRUE(has(cells[0], kIdentity)) << cells[0];
  EXPECT_FALSE(has(cells[1], "ended_by")) << cells[1];
  EXPECT_TRUE(has(cells[1], "\"blocks_received\":[\"mib\",\"sib3\"]")) << cells[1];
  EXPECT_TRUE(has(cells[1], entry("masterInformationBlock", "fixed", 8, 0, 1, "0", "4", "true"))) << cells[1];
  EXPECT_TRUE(has(cells[1], "\"lac\":{\"missing\":\"SIB1 not received\"}")) << cells[1];
}

TEST(Summary, NewMibValueTagEndsTheConfiguration) {
  const std::string sib3 = hex_of(sample_blocks()[kSib3Block]);
  expect_ended_then_new(summaries(summary_of("new_tag.bch", {extra_block("mib_tag_4"), sib3})));
}

/* Live: the ended configuration's summary arrives as soon as the new MIB does, before the
   stream is interrupted; the interruption brings the cell as it stands. */
TEST(Summary, LiveStreamShowsTheChangeAsItComes) {
  LiveSibdump live(kSibdump, {"--summary=json"});
  ASSERT_GT(live.port, 0) << live.err;
  std::vector<Bytes> blocks = sample_blocks();
  blocks.push_back(hex_bytes(extra_block("mib_tag_4")));
  blocks.push_back(sample_blocks()[kSib3Block]);
  for (const Bytes& b : blocks) EXPECT_TRUE(live.send(block_datagram(b)));
  EXPECT_TRUE(read_until(live.c.out, &live.out, [](const std::string& t) { return t.find('\n') != std::string::npos; }))
      << live.out;
  live.stop();
  const std::vector<std::string> cells = summaries(Outcome{0, live.out, live.err});
  expect_ended_then_new(cells);
  EXPECT_TRUE(!cells.empty() && has(cells[0], "\"cell\":\"source 127.0.0.1, ARFCN 10700\""));
}

/* ---- The library's C entry points --------------------------------------------------------- */

/* The sample's blocks through umts_sib_decoder and umts_summary_take give sibdump's summary;
   arguments that name nothing are refused. */
TEST(SummaryLibrary, SameSummaryAsSibdump) {
  const std::string path = kSamples + "/fdd_cell.bch";
  umts_summary* s = umts_summary_new();
  umts_sib_set* set = umts_sib_set_alloc();
  ASSERT_NE(s, nullptr);
  ASSERT_NE(set, nullptr);
  for (const Bytes& b : sample_blocks()) {
    set->presence_bitmask = 0;
    umts_sib_decoder(b.data(), set, static_cast<uint32_t>(b.size()));
    EXPECT_EQ(umts_summary_take(s, "", path.c_str(), set, b.data(), b.size()), 0);
  }
  char* json = umts_summary_text(s, "json");
  ASSERT_NE(json, nullptr);
  EXPECT_EQ(std::string(json), run_sibdump("--summary=json '" + path + "'").out);
  umts_summary_text_free(json);
  char* text = umts_summary_text(s, "text");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(std::string(text), run_sibdump("--summary '" + path + "'").out);
  umts_summary_text_free(text);

  EXPECT_EQ(umts_summary_text(s, "xml"), nullptr);
  EXPECT_EQ(umts_summary_text(nullptr, "json"), nullptr);
  EXPECT_EQ(umts_summary_take(s, nullptr, "", set, nullptr, 0), -1);
  EXPECT_EQ(umts_summary_take(s, "", "", nullptr, nullptr, 0), -1);
  umts_sib_set_free(set);
  umts_summary_free(s);
  umts_summary_free(nullptr);
}

/* A cell's set given back to a store comes out again for the next cell, zeroed where the
   first cell's records were copied in. */
TEST(SummarySets, GivenBackZeroed) {
  SetStore store;
  umts_sib_set* set = umts_sib_set_alloc();
  ASSERT_NE(set, nullptr);
  const umts_sib_set* first = nullptr;
  {
    CellRecords cell("first", &store);
    for (const Bytes& b : sample_blocks()) {
      set->presence_bitmask = 0;
      umts_sib_decoder(b.data(), set, static_cast<uint32_t>(b.size()));
      cell.take(set);
    }
    ASSERT_NE(cell.seen(), 0u);
    first = &cell.records();
  }
  CellRecords next("next", &store);
  ASSERT_EQ(&next.records(), first);
  const unsigned char* p = reinterpret_cast<const unsigned char*>(first);
  EXPECT_TRUE(std::all_of(p, p + sizeof(umts_sib_set), [](unsigned char c) { return c == 0; }));
  umts_sib_set_free(set);
}

/* ---- The page, in a real browser ---------------------------------------------------------- */

/* The page: self-contained (nothing fetched from elsewhere), heads in the notation of the
   standard with the field's name as the tooltip (words for the rest); in a real browser its
   script runs and the tables hold the cell. */
TEST(SummaryHtml, PageInHeadlessChromium) {
  const std::string page = temp_dir() + "/cell.html";
  const Outcome made = run_sibdump("--summary=html '" + kSamples + "/fdd_cell.bch' >'" + page + "'");
  ASSERT_EQ(made.status, 0) << made.err;
  const std::string html = read_file(page);
  EXPECT_FALSE(has(html, "src=")) << "the page refers to another resource";
  EXPECT_FALSE(has(html, "href=")) << "the page refers to another resource";
  for (const char* head : {"<span title=\"q_rxlevmin\">Qrxlevmin</span>", "<span title=\"q_qualmin\">Qqualmin</span>",
                           "<span title=\"s_intrasearch\">Sintrasearch</span>",
                           "<span title=\"t_reselection\">Treselections</span>",
                           "<span title=\"q_hyst1_s\">Qhyst1s</span>", "<span title=\"cell_barred\">cell barred</span>"})
    EXPECT_TRUE(has(html, head)) << head;
  EXPECT_FALSE(has(html, ">q rxlevmin<"));
  /* The headless browser: UMTS_CHROMIUM, else Debian's (as for the archive's index page). */
  const char* given = std::getenv("UMTS_CHROMIUM");
  const std::string browser = given != nullptr && *given != '\0' ? given : "/usr/bin/chromium";
  if (access(browser.c_str(), X_OK) != 0)
    GTEST_SKIP() << "no " << browser << " (apt-get install chromium, or .ci/install-packages)";

  const std::string flags = " --headless --no-sandbox --disable-gpu --hide-scrollbars --user-data-dir='" + temp_dir() +
                            "/profile' --enable-logging=stderr --v=0 ";
  /* The DOM after loading: the script ran (one cell section), the tables hold the cell. */
  const Outcome dom = run_shell("'" + browser + "'" + flags + "--dump-dom 'file://" + page + "'");
  ASSERT_EQ(dom.status, 0) << dom.err;
  EXPECT_TRUE(has(dom.out, "data-cells=\"1\"")) << dom.out.substr(0, 400);
  for (const char* cell : {"<td>262-01</td>", "<td>20001</td>", "<td>value 1715004, rnc_id 26, c_id 11068</td>",
                           "<td>-115 dBm (coded -58)</td>", "<td>notBarred (coded 2)</td>", "<td>12 18 20</td>",
                           "<td>dcs1800BandUsed (coded 0)</td>", "<td>3-1</td>",
                           "<title>sysInfoType5 segment 2 at SFN 18</title>"})
    EXPECT_TRUE(has(dom.out, cell)) << cell;
  EXPECT_FALSE(has(dom.err, "Uncaught")) << dom.err;
  EXPECT_FALSE(has(dom.err, "Failed to load resource")) << dom.err;

  /* A screenshot of the page: a PNG file. */
  const std::string shot = temp_dir() + "/cell.png";
  const Outcome s = run_shell("'" + browser + "'" + flags + "--window-size=1400,2400 --screenshot='" + shot +
                                     "' 'file://" + page + "'");
  ASSERT_EQ(s.status, 0) << s.err;
  const std::string png = read_file(shot);
  ASSERT_GT(png.size(), 1000u);
  EXPECT_EQ(png.substr(0, 8), std::string("\x89PNG\r\n\x1a\n", 8));
  RecordProperty("screenshot", shot);
}

}  // namespace
