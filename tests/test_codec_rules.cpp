// The generated codec against hand-computed PER bits, a real BCH transport block, the
// failure statuses and the print and name rules.
#include <gtest/gtest.h>

#include <cstring>

#include "codec_test_util.h"
#include "runtime_test_util.h"

using testutil::fromHex;
using testutil::toHex;
using rt_test::Ctx;

namespace {

// How many bits a type reads, what it makes of them and that the encoder writes them back:
// the digits of a PLMN, the count bit of an MNC, the spare alternative of a PLMN-Type
// (nothing after its index), an enumerated type of one name (no bits at all), a list of lower
// size 0 with no elements (its count only).
TEST(CodecPatterns, HandComputedBitsBothWays) {
  const struct {
    const char* type;
    const char* hex;
    uint64_t bits;
    const char* printed;
  } cases[] = {
      // gsm-MAP, MCC 234, MNC 15: 00 | 0010 0011 0100 | 0 | 0001 0101
      {"PLMN-Type", "08d02a", 23,
       "value {\n   gsm-MAP {\n      plmn_Identity {\n         mcc[0] = 2\n         mcc[1] = 3\n         mcc[2] = 4\n"
       "         mnc[0] = 1\n         mnc[1] = 5\n      }\n   }\n}\n"},
      {"MNC", "0900", 9, "value[0] = 1\nvalue[1] = 2\n"},  // 0 0001 0010: two digits
      {"MNC", "8000", 13, "value[0] = 0\nvalue[1] = 0\nvalue[2] = 0\n"},  // 1 0000 0000 0000: three
      {"PLMN-Type", "c0", 2, "value {\n   spare = NULL\n}\n"},  // index 3
      {"IntegrityProtectionAlgorithm", "ff", 0, "value = uia1\n"},
      {"UL-CCTrChTPCList", "00", 4, ""},  // count 0 in 4 bits
  };
  for (const auto& c : cases) {
    testutil::Decoded d;
    ASSERT_EQ(testutil::decode(umts_type_lookup(c.type), fromHex(c.hex), d), 0) << c.type;
    EXPECT_EQ(rtxBitPos(&d.ctx), c.bits) << c.type;
    EXPECT_EQ(testutil::print(d.type, d.value()), c.printed) << c.type;
    std::vector<uint8_t> bytes;
    uint64_t bits = 0;
    ASSERT_EQ(testutil::encode(d.type, d.value(), bytes, bits), 0) << c.type;
    EXPECT_EQ(bits, c.bits) << c.type;
    EXPECT_EQ(toHex(bytes.data(), bytes.size()), std::string(c.hex).substr(0, (c.bits + 7) / 8 * 2)) << c.type;
  }
}

// A BCH block decoded independently: sfn-Prime 1290, firstSegment of extensionType,
// seg-Count 7, 222 bits of data.
const char kBchBlock[] = "a143f686e52a22282f36928cc1852026d2519830afacda4a330614909b4944";

TEST(CodecPatterns, RealBchTransportBlock) {
  auto block = fromHex(kBchBlock);
  Ctx ctx;
  BCCH_BCH_Message msg{};
  pu_setBuffer(ctx, block.data(), static_cast<uint32_t>(block.size()), 0);
  ASSERT_EQ(asn1PD_UMTS_BCCH_BCH_Message(ctx, &msg), 0);
  EXPECT_EQ(msg.message.sfn_Prime, 1290);
  ASSERT_EQ(msg.message.payload.t, 2u);
  const FirstSegment* seg = msg.message.payload.u.firstSegment;
  EXPECT_EQ(seg->sib_Type, 31u);  // extensionType
  EXPECT_EQ(seg->seg_Count, 7);
  EXPECT_EQ(seg->sib_Data_fixed.numbits, 222u);
  EXPECT_EQ(toHex(seg->sib_Data_fixed.data, 28), "86e52a22282f36928cc1852026d2519830afacda4a330614909b4944");
  EXPECT_EQ(rtxBitPos(ctx), 246u);

  Ctx enc;
  ASSERT_EQ(rtxInitContextBuffer(enc, nullptr, 0), 0);
  ASSERT_EQ(asn1PE_UMTS_BCCH_BCH_Message(enc, &msg), 0);
  EXPECT_EQ(toHex(enc->buffer_data, pu_getMsgLen(enc)), toHex(block.data(), block.size()));
}

TEST(CodecDefaults, AbsentDefaultsTakeTheirValuesAndEqualValuesStayOffTheWire) {
  // 22 presence bits, all clear: every timer and constant takes its default.
  const uint8_t zeros[3] = {0, 0, 0};
  Ctx a, b;
  UE_ConnTimersAndConstants zeroed{}, initialised;
  std::memset(&initialised, 0xA5, sizeof initialised);
  asn1Init_UMTS_UE_ConnTimersAndConstants(&initialised);
  pu_setBuffer(a, zeros, 3, 0);
  pu_setBuffer(b, zeros, 3, 0);
  ASSERT_EQ(asn1PD_UMTS_UE_ConnTimersAndConstants(a, &zeroed), 0);
  ASSERT_EQ(asn1PD_UMTS_UE_ConnTimersAndConstants(b, &initialised), 0);
  EXPECT_EQ(rtxBitPos(a), 22u);
  EXPECT_EQ(zeroed.t_301, UMTS_T_301_ms2000);
  EXPECT_EQ(zeroed.t_301, 10u);
  EXPECT_EQ(zeroed.n_301, 2);
  EXPECT_EQ(zeroed.t_302, 12u);
  const umts_type_info* info = umts_type_lookup("UE-ConnTimersAndConstants");
  EXPECT_EQ(testutil::print(info, &zeroed), testutil::print(info, &initialised));

  Ctx enc;
  rtxInitContextBuffer(enc, nullptr, 0);
  ASSERT_EQ(asn1PE_UMTS_UE_ConnTimersAndConstants(enc, &zeroed), 0);
  EXPECT_EQ(rtxBitPos(enc), 22u) << "values equal to their defaults are left out";
}

TEST(CodecFailures, ChoiceIndexAboveTheLastAlternative) {
  Ctx ctx;
  OctetModeRLC_SizeInfoType1 v{};
  const uint8_t bits = 0xC0;  // index 3 of 3 alternatives
  pu_setBuffer(ctx, &bits, 1, 0);
  EXPECT_EQ(asn1PD_UMTS_OctetModeRLC_SizeInfoType1(ctx, &v), RT_ERR_INVOPT);
  EXPECT_EQ(v.t, 4u) << "t is stored before the index is tested";
  EXPECT_EQ(ctx->err.status, RT_ERR_INVOPT);
}

TEST(CodecFailures, ArrayCountOutsideItsSizeKeepsPrintInBounds) {
  Ctx ctx;
  PersistenceScalingFactorList v{};
  const uint8_t bits = 0xE0;  // count field 7: 8 elements of at most 6
  pu_setBuffer(ctx, &bits, 1, 0);
  EXPECT_EQ(asn1PD_UMTS_PersistenceScalingFactorList(ctx, &v), RT_ERR_CONSVIO);
  EXPECT_EQ(v.n, 8u);
  char err[512];
  rtxErrGetText(ctx, err, sizeof err);
  EXPECT_NE(std::string(err).find("8"), std::string::npos) << err;
  // Printing a record left by a failed decode reads no further than the array's storage.
  std::string text = testutil::capturePrint([&] { asn1Print_UMTS_PersistenceScalingFactorList("list", &v); });
  EXPECT_NE(text.find("list[5]"), std::string::npos);
  EXPECT_EQ(text.find("list[6]"), std::string::npos);
}

TEST(CodecFailures, HeapExhaustionIsReportedWithThePathAtTheFailingElement) {
  auto block = fromHex(kBchBlock);
  Ctx ctx;
  rtxMemHeapSetLimit(ctx, 8);
  BCCH_BCH_Message msg{};
  pu_setBuffer(ctx, block.data(), static_cast<uint32_t>(block.size()), 0);
  EXPECT_EQ(asn1PD_UMTS_BCCH_BCH_Message(ctx, &msg), RT_ERR_NOMEM);
  char path[512];
  rtxCtxtGetPath(ctx, path, sizeof path);
  EXPECT_STREQ(path, "BCCH-BCH-Message.message.SystemInformation-BCH.payload.firstSegment");
  EXPECT_GE(ctx->err.nlocs, 3u) << "each level adds its own position";
}

TEST(CodecFailures, EncoderTestsValuesBeforeWriting) {
  Ctx enc;
  rtxInitContextBuffer(enc, nullptr, 0);
  EXPECT_EQ(asn1PE_UMTS_Digit(enc, 10), RT_ERR_CONSVIO);
  EXPECT_EQ(rtxBitPos(enc), 0u);
  EXPECT_EQ(asn1PE_UMTS_SIB_Type(enc, 32), RT_ERR_INVENUM);
  EXPECT_EQ(asn1PE_UMTS_IntegrityProtectionAlgorithm(enc, 1), RT_ERR_INVENUM);
  EXPECT_EQ(asn1PE_UMTS_MIB_ValueTag(enc, 0), RT_ERR_CONSVIO);
  EXPECT_EQ(asn1PE_UMTS_MIB_ValueTag(enc, 9), RT_ERR_CONSVIO);
  EXPECT_EQ(rtxBitPos(enc), 0u);
  PLMN_Type none{};  // t = 0 reaches the runtime as a huge index
  int stat = asn1PE_UMTS_PLMN_Type(enc, &none);
  EXPECT_LT(stat, 0);
  EXPECT_NE(stat, RT_ERR_INVOPT);
}

TEST(CodecFailures, NamedBitStringIsWrittenAtItsFullSize) {
  Ctx enc;
  rtxInitContextBuffer(enc, nullptr, 0);
  AvailableSubChannelNumbers v{};
  v.numbits = 5;
  v.data[0] = 0xA8;  // 10101
  ASSERT_EQ(asn1PE_UMTS_AvailableSubChannelNumbers(enc, v), 0);
  EXPECT_EQ(rtxBitPos(enc), 12u);
  Ctx dec;
  AvailableSubChannelNumbers back{};
  pu_setBuffer(dec, enc->buffer_data, pu_getMsgLen(enc), 0);
  ASSERT_EQ(asn1PD_UMTS_AvailableSubChannelNumbers(dec, &back), 0);
  EXPECT_EQ(back.numbits, 12u);
  EXPECT_EQ(back.data[0], 0xA8);
}

TEST(CodecFailures, ListCountBeyondItsChainWritesOnlyTheChain) {
  // A SIBSb-ReferenceList that claims two elements but links one.
  Ctx dec;
  SIBSb_ReferenceList list;
  rtxDListInit(&list);
  SchedulingInformationSIBSb elem{};
  elem.sibSb_Type.t = 7;  // sysInfoType7, NULL
  elem.scheduling.scheduling.segCount = 1;
  elem.scheduling.scheduling.sib_Pos.t = 1;  // rep4
  rtxDListNode node{&elem, nullptr, nullptr};
  rtxDListAppendNode(&list, &node);
  list.count = 2;
  Ctx enc;
  rtxInitContextBuffer(enc, nullptr, 0);
  ASSERT_EQ(asn1PE_UMTS_SIBSb_ReferenceList(enc, &list), 0);
  // 5 bits of count (1), then one element: 5 bits of choice, 2 presence bits, 4 + 1 bits.
  EXPECT_EQ(rtxBitPos(enc), 5u + 5u + 2u + 4u + 1u);
}

TEST(CodecPrint, OptionalAbsentElementsPrintNothingAndLabelsKeepTheirNewline) {
  MasterInformationBlock mib{};
  mib.mib_ValueTag = 3;
  PLMN_Type_gsm_MAP gsm{};
  mib.plmn_Type.t = 1;
  mib.plmn_Type.u.gsm_MAP = &gsm;
  rtxDListInit(&mib.sibSb_ReferenceList);
  std::string text = testutil::capturePrint([&] { asn1Print_UMTS_MasterInformationBlock("Decoded MIB\n", &mib); });
  EXPECT_EQ(text.rfind("Decoded MIB\n", 0), 0u);
  EXPECT_NE(text.find("mib_ValueTag = 3"), std::string::npos);
  EXPECT_EQ(text.find("v690NonCriticalExtensions"), std::string::npos);
  EXPECT_EQ(text.find("sibSb_ReferenceList"), std::string::npos) << "an empty list prints nothing";
}

TEST(CodecPrint, EnumeratedValueWithoutANamePrintsQuestionMarks) {
  // A two-name type given value 2.
  EXPECT_EQ(UMTS_CN_DomainIdentity_ToString(1), std::string("ps-domain"));
  uint32_t v = 2;
  std::string text = testutil::capturePrint([&] { asn1Print_UMTS_CN_DomainIdentity("domain", &v); });
  EXPECT_NE(text.find("domain = ???"), std::string::npos) << text;
}

TEST(CodecNames, LookupsBothWays) {
  EXPECT_STREQ(UMTS_SIB_Type_ToString(32), "_UNKNOWN_");
  EXPECT_STREQ(UMTS_SIB_Type_ToString(31), "extensionType");
  EXPECT_STREQ(UMTS_SIB_Type_ToString(14), "systemInformationBlockType13-1");
  EXPECT_STREQ(UMTS_TFCI_Coding_ToString(0), "tfci-bits-4");
  EXPECT_STREQ(UMTS_IntegrityProtectionAlgorithm_ToString(0), "uia1");
  EXPECT_STREQ(UMTS_IntegrityProtectionAlgorithm_ToString(1), "_UNKNOWN_");

  Ctx ctx;
  uint32_t v = 77;
  EXPECT_EQ(UMTS_TFCI_Coding_ToEnum(ctx, "tfci-bits-8", &v), 0);
  EXPECT_EQ(v, 1u) << "the entry stands at place 3, its value is 1";
  EXPECT_EQ(UMTS_SIB_Type_ToEnum(ctx, "systemInformationBlockType15-5", &v), 0);
  EXPECT_EQ(v, 29u);
  v = 77;
  EXPECT_EQ(UMTS_TFCI_Coding_ToEnum(ctx, "", &v), RT_ERR_INVENUM);
  EXPECT_EQ(UMTS_TFCI_Coding_ToEnum(ctx, "tfci_bits_8", &v), RT_ERR_INVENUM);
  EXPECT_EQ(v, 77u) << "a failed lookup leaves the value";
  // ToEnum2 takes a length: the text need not end in a null.
  const char text[] = {'t', 'f', 'c', 'i', '-', 'b', 'i', 't', 's', '-', '1', '6', 'X'};
  EXPECT_EQ(UMTS_TFCI_Coding_ToEnum2(ctx, text, 12, &v), 0);
  EXPECT_EQ(v, 2u);
  EXPECT_EQ(UMTS_TFCI_Coding_ToEnum2(ctx, text, 13, &v), RT_ERR_INVENUM);
}

}  // namespace
