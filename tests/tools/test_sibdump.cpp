/*
 * sibdump as a user runs it, on the committed samples and on bad input.
 */
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "tools_test_util.h"

namespace {

using namespace tt;

const std::string kMksamples = MKSAMPLES_PATH;

Outcome run(const std::string& tool, const std::string& args) { return run_shell("'" + tool + "' " + args); }

/* The records of a run by block name. */
std::map<std::string, std::vector<std::string>> records_of(const std::string& out) { return records_by_block(parse_lines(out)); }

/* The records of a run, each as its block name and record, sorted. */
std::vector<std::string> forms_of(const std::map<std::string, std::vector<std::string>>& by_block) {
  std::vector<std::string> forms;
  for (const auto& [name, records] : by_block)
    for (const std::string& r : records) forms.push_back(name + r);
  std::sort(forms.begin(), forms.end());
  return forms;
}

/* The sample cycle's blocks, and its SIBs whole: the cycle's (SIB5 in two forms), the cycle's
   second SIB11 and its SIB11bis, the HSPA form of SIB5 and a SIB16 that the cycle does not
   carry. All but those last two give the records of the cycle's blocks. */
TEST(Sibdump, SampleCycleAndItsSibsWhole) {
  const Outcome blocks = run(kSibdump, "'" + kSamples + "/fdd_cell.bch'");
  EXPECT_EQ(blocks.status, 0) << blocks.err;
  EXPECT_TRUE(has(blocks.err, "sibdump: " + std::to_string(sample_blocks().size()) + " blocks read, 13 records written, 0 bad lines"))
      << blocks.err;
  /* The MIB is whole in the first block: MCC 262, MNC 01. */
  const auto records = records_of(blocks.out);
  ASSERT_EQ(records.count("mib"), 1u);
  EXPECT_TRUE(has(records.at("mib")[0], "\"mcc\":{\"count\":3,\"digits\":[2,6,2]},\"mnc\":{\"count\":2,\"digits\":[0,1]}"))
      << records.at("mib")[0];
  const Outcome whole = run(kSibdump, "--sibs '" + kSamples + "/fdd_cell_sibs.txt'");
  EXPECT_EQ(whole.status, 0) << whole.err;
  EXPECT_TRUE(has(whole.err, "sibdump: 15 SIBs read, 15 records written, 0 bad lines")) << whole.err;
  auto by_sib = records_of(whole.out);
  // SIB16, converted by sibdump through umts_convert_sib16: two SRBs, one RB.
  ASSERT_EQ(by_sib.count("sib16"), 1u);
  EXPECT_NE(by_sib.at("sib16")[0].find("\"srb_InformationList\":{\"count\":2},\"rb_InformationList\":{\"count\":1}"),
            std::string::npos)
      << by_sib.at("sib16")[0];
  by_sib.erase("sib16");
  ASSERT_EQ(by_sib["sib5"].size(), 3u);
  by_sib["sib5"].pop_back();
  EXPECT_EQ(forms_of(by_sib), forms_of(records));
}

TEST(Sibdump, BadLinesAreReportedAndSkipped) {
  const std::string mib_block = hex_of(sample_blocks()[0]); /* the MIB's block */
  std::string spaced;
  for (size_t i = 0; i < mib_block.size(); i += 2) spaced += mib_block.substr(i, 2) + (i % 8 == 6 ? "\t" : " ");

  const std::string bch = temp_dir() + "/bad.bch";
  write_file(bch, "# a comment\n" + mib_block + "  # the MIB\n" + "0e zz 00\n" + "abc\n" +
                      std::string(140, 'a') + "\n\n   \n" + spaced + "\n");
  const Outcome r = run(kSibdump, "'" + bch + "'");
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find(bch + ":3: bad hex digit 'z' at column 4"), std::string::npos) << r.err;
  EXPECT_NE(r.err.find(bch + ":4: odd number of hex digits (3)"), std::string::npos) << r.err;
  EXPECT_NE(r.err.find(bch + ":5: block of 70 octets is longer than 64"), std::string::npos) << r.err;
  EXPECT_NE(r.err.find("sibdump: 2 blocks read, 2 records written, 3 bad lines"), std::string::npos) << r.err;
  const std::vector<Line> lines = parse_lines(r.out);
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].head + " " + lines[0].block, "\"line\":2 mib");
  EXPECT_EQ(lines[1].head + " " + lines[1].block, "\"line\":8 mib");

  const std::string sibs = temp_dir() + "/bad_sibs.txt";
  write_file(sibs, "sib4 0011\nmib\nmib # nothing\nmib " + hex_of(sample_sibs()[0].second) /* the MIB */ + "\n");
  const Outcome s = run(kSibdump, "--sibs < '" + sibs + "'");
  EXPECT_EQ(s.status, 1);
  EXPECT_NE(s.err.find("<stdin>:1: unknown SIB name 'sib4'"), std::string::npos) << s.err;
  EXPECT_NE(s.err.find("<stdin>:2: empty block"), std::string::npos) << s.err;
  EXPECT_NE(s.err.find("<stdin>:3: empty block"), std::string::npos) << s.err;
  EXPECT_NE(s.err.find("sibdump: 1 SIBs read, 1 records written, 3 bad lines"), std::string::npos) << s.err;
  const std::vector<Line> sib_lines = parse_lines(s.out);
  ASSERT_EQ(sib_lines.size(), 1u);
  EXPECT_EQ(sib_lines[0].head + " " + sib_lines[0].block, "\"line\":4 mib");
}

TEST(Sibdump, HelpAndUsageErrors) {
  const Outcome help = run(kSibdump, "--help");
  EXPECT_EQ(help.status, 0);
  for (const char* text : {"Usage: sibdump", "--sibs", "--asn1-text FILE", "--log-level N", "Exit status",
                           "Example:", "mib, sib1, sib2, sib3, sib5, sib7, sib11, sib11bis, sib12, sib18, sb1, sb2"})
    EXPECT_NE(help.out.find(text), std::string::npos) << text;

  const struct {
    const char* args;
    const char* message;
  } errors[] = {
      {"--bogus", "unknown option '--bogus'"},
      {"'/nonexistent/cell.bch'", "cannot open '/nonexistent/cell.bch'"},
      {"--log-level many", "--log-level needs a number"},
      {"--asn1-text", "option --asn1-text needs a value"},
      {"--asn1-text /nonexistent/dir/out.txt /dev/null", "cannot open '/nonexistent/dir/out.txt'"},
      {"--jobs 0 /dev/null", "--jobs needs a number from 1 to 1024"},
      {"--summary=xml /dev/null", "--summary takes text, json or html, not 'xml'"},
      {"--udp nowhere", "--udp needs [ADDRESS:]PORT, not 'nowhere'"},
      {"--udp 127.0.0.1:99999", "--udp needs [ADDRESS:]PORT, not '127.0.0.1:99999'"},
      {"--udp 127.0.0.1:", "--udp needs [ADDRESS:]PORT, not '127.0.0.1:'"},
      {"--udp x.bch:1 extra", "--udp reads no file and no --sibs"},
      {"--udp --sibs", "--udp reads no file and no --sibs"},
  };
  for (const auto& e : errors) {
    const Outcome r = run(kSibdump, e.args);
    EXPECT_EQ(r.status, 2) << e.args;
    EXPECT_NE(r.err.find(e.message), std::string::npos) << e.args << ": " << r.err;
    EXPECT_TRUE(r.out.empty()) << e.args;
  }
}

/* The library's own standard output never mixes with the JSON; --log-level reaches the
   library's log. */
TEST(Sibdump, LibraryTextAndLogGoApart) {
  const std::string input = "'" + kSamples + "/fdd_cell.bch'";
  const Outcome plain = run(kSibdump, input);
  const std::string text_path = temp_dir() + "/asn1.txt";
  const Outcome to_file = run(kSibdump, "--asn1-text '" + text_path + "' " + input);
  EXPECT_EQ(to_file.status, 0);
  EXPECT_EQ(to_file.out, plain.out);
  const std::string text = read_file(text_path);
  EXPECT_NE(text.find("UMTS_BCCH_BCH_Message"), std::string::npos);
  EXPECT_NE(text.find("Decoded MIB"), std::string::npos);

  const Outcome to_stderr = run(kSibdump, "--asn1-text - " + input);
  EXPECT_EQ(to_stderr.out, plain.out);
  EXPECT_NE(to_stderr.err.find("UMTS_BCCH_BCH_Message"), std::string::npos);
  EXPECT_EQ(plain.err.find("UMTS_BCCH_BCH_Message"), std::string::npos);

  const std::string sibs = "--sibs '" + kSamples + "/fdd_cell_sibs.txt'";
  EXPECT_EQ(run(kSibdump, sibs).err.find("ASN context initialised"), std::string::npos);
  EXPECT_NE(run(kSibdump, "--log-level 6 " + sibs).err.find("ASN context initialised"), std::string::npos);
  EXPECT_EQ(run(kSibdump, "--log-level=2 " + sibs).err.find("ASN context initialised"), std::string::npos);
}

/* The committed samples are what mksamples writes, the captures what mkcaptures writes. */
TEST(Samples, AreUpToDate) {
  const Outcome r = run(kMksamples, "'" + temp_dir() + "' '" + temp_dir() + "/bch_cycle.bch'");
  ASSERT_EQ(r.status, 0) << r.err;
  ASSERT_EQ(run(MKCAPTURES_PATH, "'" + temp_dir() + "'").status, 0);
  for (const char* name : {"/fdd_cell.bch", "/fdd_cell_sibs.txt", "/tdd128_cell_sibs.txt", "/fdd_cell.pcap", "/fdd_cell.pcapng"})
    EXPECT_EQ(read_file(temp_dir() + name), read_file(kSamples + name)) << name << ": run 'make samples'";
  EXPECT_EQ(read_file(temp_dir() + "/bch_cycle.bch"), read_file(std::string(UMTS_SOURCE_DIR) + "/bench/bch_cycle.bch"))
      << "bench/bch_cycle.bch: run 'make samples'";
}

}  // namespace
