// The whole-SIB entry, the request mask, the SIB-Type map and the conversion driver.
#include "frame_test_util.h"

using namespace frametest;

namespace {

class FrameDriver : public FrameTest {};

TEST_F(FrameDriver, SibTypesMapToTheirSlotsOrAreRefusedWithAMessage) {
  const int kept[][2] = {{0, umts_sib_mib},    {1, umts_sib_sib1}, {2, umts_sib_sib2}, {3, umts_sib_sib3},
                         {5, umts_sib_sib5},    {7, umts_sib_sib7}, {11, umts_sib_sib11}, {12, umts_sib_sib12},
                         {26, umts_sib_sib18},  {27, umts_sib_sb1}, {28, umts_sib_sb2}, {31, umts_sib_sib11bis}};
  std::vector<umts_sib_id> want(40, umts_sib_count);
  for (const auto& k : kept) want[k[0]] = static_cast<umts_sib_id>(k[1]);
  for (uint32_t value = 0; value < want.size(); value++) {
    umts_sib_id got = umts_sib_mib;
    const std::string out = captureStdout([&] { got = get_sib_type(value); });
    EXPECT_EQ(got, want[value]) << value;
    EXPECT_EQ(out, got == umts_sib_count ? "get_sib_type:No such option available \n" : "") << value;
  }
}

TEST_F(FrameDriver, RequestBitsAndTheirLogLinesEachGuardedByTheThreshold) {
  for (unsigned threshold : {0u, 1u, 2u, 5u, 6u}) {
    resetContext();
    logLines().clear();
    zvtLogLevelThreshold = threshold;
    for (int id = 0; id < 13; id++) umts_sib_decoder_set_gb_ctxt_bitmask(static_cast<umts_sib_id>(id));
    EXPECT_EQ(g_umts_ctxt.request_bitmask, 0xFFFu);
    std::vector<std::string> want;
    for (unsigned mask = 1; threshold > 5 && mask <= 0xFFF; mask = mask * 2 + 1)
      want.push_back("6:ASN context filled bitmask=" + std::to_string(mask));
    if (threshold > 1) want.push_back("2:umts_sib_decoder_set_gb_ctxt_bitmask:no such option available");
    if (threshold > 5) want.push_back("6:ASN context filled bitmask=4095");
    EXPECT_EQ(logLines(), want) << threshold;
  }
}

TEST_F(FrameDriver, WholeSibEntryRefusesBadParametersBeforeTouchingAnything) {
  const std::vector<uint8_t> bytes(2049, 0);
  const struct {
    int id;
    const uint8_t* data;
    bool with_result;
    uint32_t length;
    const char* line;
  } cases[] = {
      {0, bytes.data(), true, 0, "2:Invalid param!"},         {0, bytes.data(), true, 2049, "2:Invalid param!"},
      {0, nullptr, true, 10, "2:Invalid param!"},             {0, bytes.data(), false, 10, "2:Invalid param!"},
      {12, bytes.data(), true, 10, "2:invalid sib type 12"},  {13, bytes.data(), true, 10, "2:invalid sib type 13"},
      {-1, bytes.data(), true, 10, "2:invalid sib type -1"},
  };
  for (const auto& c : cases) {
    logLines().clear();
    g_umts_ctxt.request_bitmask = 0x10;
    result->presence_bitmask = 0xABCD;
    uint8_t ret = 1;
    const std::string out = captureStdout([&] {
      ret = umts_sib_msg_decoder(static_cast<umts_sib_id>(c.id), c.data, c.with_result ? result : nullptr, c.length);
    });
    EXPECT_EQ(ret, 0);
    EXPECT_TRUE(logged(c.line)) << c.line;
    EXPECT_EQ(result->presence_bitmask, 0xABCD);
    EXPECT_EQ(g_umts_ctxt.request_bitmask, 0x10u);
    EXPECT_EQ(out, "");
    for (const auto& slot : g_umts_ctxt.slots) EXPECT_EQ(slot.buffer, nullptr);
  }
}

// A failed conversion ends the pass: earlier bits stay requested over emptied slots, later
// ones keep their slots; the next passes rerun the emptied ones, which fail cleanly.
TEST_F(FrameDriver, FailedConversionEndsThePassAndRerunsOverEmptiedSlotsFail) {
  putSlot(umts_sib_mib, MibBuilder().encode());
  g_umts_ctxt.request_bitmask |= 1u << umts_sib_sib3;  // requested over an empty slot
  putSlot(umts_sib_sib7, fromHex(kSib7Hex));
  const uint8_t* sib7_bytes = g_umts_ctxt.slots[umts_sib_sib7].buffer;
  uint8_t ret = 1;
  std::string out = captureStdout([&] { ret = decode_system_info_msg(result); });
  EXPECT_EQ(ret, 0);
  EXPECT_EQ(result->presence_bitmask, 1u << umts_sib_mib);
  EXPECT_EQ(g_umts_ctxt.request_bitmask, (1u << umts_sib_mib) | (1u << umts_sib_sib7));
  EXPECT_EQ(g_umts_ctxt.slots[umts_sib_mib].buffer, nullptr);
  EXPECT_EQ(g_umts_ctxt.slots[umts_sib_sib7].buffer, sib7_bytes);
  EXPECT_TRUE(logged("2:decode_system_info_msg:umts_convert_sib3 failed"));
  EXPECT_EQ(out.rfind("Decoded MIB\n", 0), 0u);
  EXPECT_NE(out.find("umts_convert_sib3:asn decoding failed\n"), std::string::npos);
  EXPECT_EQ(out.find("SysInfoType7"), std::string::npos);

  out = captureStdout([&] { ret = decode_system_info_msg(result); });  // the MIB over nothing
  EXPECT_EQ(ret, 0);
  EXPECT_TRUE(logged("2:decode_system_info_msg:umts_convert_mib failed!"));
  EXPECT_EQ(result->mib.mib_ValueTag, 3);  // the record stays
  out = captureStdout([&] { ret = decode_system_info_msg(result); });
  EXPECT_EQ(ret, 1);
  EXPECT_EQ(result->presence_bitmask, (1u << umts_sib_mib) | (1u << umts_sib_sib7));
  EXPECT_EQ(out.rfind("Decoded SysInfoType7\n", 0), 0u);

  logLines().clear();  // with nothing requested, nothing happens
  out = captureStdout([&] { ret = decode_system_info_msg(result); });
  EXPECT_EQ(ret, 1);
  EXPECT_EQ(out, "");
  EXPECT_TRUE(logLines().empty());
}

// Each block's frame: its decoding-failure text on its own channel, the driver's log line.
TEST_F(FrameDriver, EveryBlockReportsItsFailureOnItsOwnChannel) {
  const char* const printed[12] = {
      "",
      "umts_convert_sib1:asn decoding failed\n",
      "umts_convert_sib2:asn decoding failed\n",
      "umts_convert_sib3:asn decoding failed\n",
      "umts_convert_sib5:asn decoding failed\n",
      "umts_convert_sib7:asn decoding failed",
      "umts_convert_sib11:asn decoding failed\n",
      "umts_convert_sib11bis:asn decoding failed\n",
      "umts_convert_sib12:asn decoding failed\n",
      "umts_convert_sib18: asn decoding failed\n",
      "asn1PD_UMTS_SysInfoTypeSB1:asn Decoding Failed\n",
      "asn1PD_UMTS_SysInfoTypeSB1:asn Decoding Failed\n",
  };
  const char* const names[12] = {"mib failed!", "sib1",  "sib2",     "sib3",  "sib5",  "sib7",
                                 "sib11",       "sib11bis", "sib12", "sib18", "scheduling_block1", "scheduling_block2"};
  for (int id = 0; id < 12; id++) {
    logLines().clear();
    g_umts_ctxt.request_bitmask = 1u << id;  // over an empty slot
    uint8_t ret = 1;
    const std::string out = captureStdout([&] { ret = decode_system_info_msg(result); });
    EXPECT_EQ(ret, 0);
    EXPECT_EQ(out, printed[id]);
    std::vector<std::string> want = {std::string("2:decode_system_info_msg:umts_convert_") + names[id] +
                                     (id == 0 ? "" : " failed")};
    if (id == 0) want.insert(want.begin(), {"6:Initialized ASN mib context", "2:ASN mib decode failed"});
    EXPECT_EQ(logLines(), want);
    EXPECT_EQ(g_umts_ctxt.request_bitmask, 0u);
  }
}

// Each block decodes a real encoding with its own decoder, prints it under its title and
// replaces its record (presence bits as the encoding has them); a second whole SIB drops the
// presence bit of the first. Whole SIBs of 1 and of 2048 bytes are taken.
TEST_F(FrameDriver, EveryPendingBlockDecodesItsEncodingAndZeroesItsRecord) {
  const struct {
    umts_sib_id id;
    const char* hex;
    const char* title;
    uint16_t* record_presence;
    uint16_t presence;  // what the encoding carries
  } cases[] = {
      {umts_sib_sib1, "0154c000", "Decoded SysInfoType1\n", &result->sib1.presence_bitmask, 0},
      {umts_sib_sib2, "06e860", "Decoded SysInfoType2\n", &result->sib2.presence_bitmask, 0},
      {umts_sib_sib3, kSib3Hex, "Decoded SysInfoType3\n", &result->sib3.presence_bitmask, 0},
      {umts_sib_sib5, "0f2001c073400232", "Decoded SysInfoType5\n", &result->sib5.presence_bitmask, 0},
      {umts_sib_sib7, kSib7Hex, "Decoded SysInfoType7\n", &result->sib7.presence_bitmask, 0},
      {umts_sib_sib11, "2000", "Decoded SysInfoType11\n", &result->sib11.presence_bitmask, 0},
      {umts_sib_sib11bis, "1800", "Decoded SysInfoType11bis\n", &result->sib11bis.presence_bitmask, 8},
      {umts_sib_sib12, "462800", "Decoded SysInfoType12\n", &result->sib12.presence_bitmask, 2},
      {umts_sib_sib18, "00", "Decoded SysInfoType18\n", &result->sib18.presence_bitmask, 0},
      {umts_sib_sb1, "00c040", "Decoded SysInfoTypeSB1\n", &result->sb1.presence_bitmask, 0},
      {umts_sib_sb2, "00c000", "Decoded SysInfoTypeSB2\n", &result->sb2.presence_bitmask, 0},
  };
  for (const auto& c : cases) {
    *c.record_presence = 0xFFFF;
    std::vector<uint8_t> bytes = fromHex(c.hex);
    if (c.id == umts_sib_sib7) bytes.resize(2048, 0);
    std::string out;
    EXPECT_EQ(whole(c.id, bytes, &out), 1) << c.title;
    EXPECT_EQ(result->presence_bitmask, 1u << c.id) << c.title;
    EXPECT_EQ(*c.record_presence, c.presence) << c.title;
    EXPECT_EQ(out.rfind(c.title, 0), 0u) << out;
  }
}

// The text of the decoded values goes to the stream that the host chose, or nowhere; the
// library's messages stay on standard output, after the text made before them.
TEST_F(FrameDriver, TextGoesToTheChosenStreamOrNowhere) {
  struct Restore {
    ~Restore() { umts_sib_print_to(stdout); }
  } restore;
  const std::string message = "umts_convert_sib3:asn decoding failed\n";
  // The MIB converts and prints, then SIB3, requested over an empty slot, fails with a message.
  auto run = [&]() {
    resetContext();
    putSlot(umts_sib_mib, MibBuilder().encode());
    g_umts_ctxt.request_bitmask |= 1u << umts_sib_sib3;
    return captureStdout([&] { decode_system_info_msg(result); });
  };

  const std::string both = run();
  const umts_mib_info mib = result->mib;
  ASSERT_EQ(both.rfind("Decoded MIB\n {\n", 0), 0u) << both;
  ASSERT_GT(both.size(), message.size());
  EXPECT_EQ(both.substr(both.size() - message.size()), message) << "the message follows the text made before it";
  const std::string text = both.substr(0, both.size() - message.size());
  EXPECT_EQ(text.substr(text.size() - 2), "}\n");

  umts_sib_print_to(nullptr);
  std::memset(&result->mib, 0xA5, sizeof result->mib);
  EXPECT_EQ(run(), message);
  EXPECT_EQ(std::memcmp(&result->mib, &mib, sizeof mib), 0) << "the record does not depend on the text";

  FILE* f = std::tmpfile();
  ASSERT_NE(f, nullptr);
  umts_sib_print_to(f);
  EXPECT_EQ(run(), message);
  umts_sib_print_flush();
  umts_sib_print_to(stdout);
  EXPECT_EQ(readAndClose(f), text);
}

}  // namespace
