// The MIB conversion: built in code, encoded by the codec, sent whole and over the BCH.
#include "bch_segmenter.h"
#include "frame_test_util.h"
#include "umts_sib_convert.h"

using namespace frametest;

namespace {

void setAnsi(P_REV& p_rev, Min_P_REV& min_p_rev, SID& sid, NID& nid) {
  p_rev = {8, {0x12}};
  min_p_rev = {8, {0x34}};
  sid = {15, {0xAB, 0xCC}};
  nid = {16, {0xDE, 0xAD}};
}

template <typename Flat>
void expectAnsi(const Flat& a) {
  EXPECT_EQ(a.p_REV, 0x12);
  EXPECT_EQ(a.min_P_REV, 0x34);
  EXPECT_EQ(std::memcmp(&a.sid, "\xAB\xCC", 2), 0);  // the octets in memory order, unswapped
  EXPECT_EQ(std::memcmp(&a.nid, "\xDE\xAD", 2), 0);
}

// ---- The cases: each builds on the default MIB and checks what it built -----------------

void buildReferences(MibBuilder& b) {
  b.addRef(3, scheduling(8, 255, 4, {0, 15})).sibSb_Type.u.sysInfoType3 = 4;
  b.addRef(7, scheduling(1, 1));
  b.predefined = {3, 9};
  b.addRef(20, scheduling(5, 17)).sibSb_Type.u.sysInfoType16 = &b.predefined;
  b.occurrences[0] = {5, 2};
  b.addRef(25, scheduling(11, 2047)).sibSb_Type.u.sysInfoType15_2 = &b.occurrences[0];
  b.addRef(8, scheduling(10, 1000)).sibSb_Type.u.dummy = 2;
}

void checkReferences(const umts_mib_info& m) {
  EXPECT_EQ(m.mib_ValueTag, 3);
  EXPECT_EQ(m.plmn_Type.u.gsm_MAP.mcc.digits[2], 2);
  EXPECT_EQ(m.plmn_Type.u.gsm_MAP.mnc.count, 2u);
  const umts_scheduling_info_sib_sb* e = m.sibSb_ReferenceList.entries;
  ASSERT_EQ(m.sibSb_ReferenceList.count, 6);
  EXPECT_EQ(e[0].sibSb_Type.u.sysInfoType1, 256);
  EXPECT_EQ(e[0].scheduling.sib_Pos.u.rep1024, 511);
  EXPECT_EQ(e[0].scheduling.segCount, 1);  // the default
  EXPECT_EQ(e[0].scheduling.presence_bitmask | e[0].scheduling.sib_PosOffsetInfo.count, 0u);
  EXPECT_EQ(e[1].sibSb_Type.u.sysInfoType3, 4);
  EXPECT_EQ(e[1].scheduling.sib_Pos.u.rep512, 255);
  EXPECT_EQ(e[1].scheduling.presence_bitmask, 1);
  EXPECT_EQ(e[1].scheduling.sib_PosOffsetInfo.entries[1], 15u);
  EXPECT_EQ(e[2].sibSb_Type.choice_tag, 7u);  // the tag, no value
  EXPECT_TRUE(allZero(e[2].sibSb_Type.u));
  EXPECT_EQ(e[3].sibSb_Type.u.sysInfoType16.predefinedConfigValueTag, 9);
  EXPECT_EQ(e[4].sibSb_Type.u.sysInfoType15_2.sibOccurIdentity, 5);
  EXPECT_EQ(e[4].scheduling.sib_Pos.u.rep4096, 2047);
  EXPECT_EQ(e[5].sibSb_Type.u.dummy, 2);  // copied, unlike dummy2 and dummy3
}

void buildAnsi(MibBuilder& b) {
  setAnsi(b.ansi.p_REV, b.ansi.min_P_REV, b.ansi.sid, b.ansi.nid);
  b.mib.plmn_Type.t = 2;
  b.mib.plmn_Type.u.ansi_41 = &b.ansi;
}

void checkAnsi(const umts_mib_info& m) {
  EXPECT_EQ(m.plmn_Type.choice_tag, 2u);
  expectAnsi(m.plmn_Type.u.ansi_41);
}

void buildBoth(MibBuilder& b) {
  b.both.plmn_Identity = plmnIdentity("310", "260");
  setAnsi(b.both.p_REV, b.both.min_P_REV, b.both.sid, b.both.nid);
  b.mib.plmn_Type.t = 3;
  b.mib.plmn_Type.u.gsm_MAP_and_ANSI_41 = &b.both;
}

void checkBoth(const umts_mib_info& m) {
  EXPECT_EQ(m.plmn_Type.choice_tag, 3u);
  const umts_plmn_type_gsm_map_ansi_41& a = m.plmn_Type.u.gsm_MAP_and_ANSI_41;
  EXPECT_EQ(a.plmn_Identity.mcc.digits[0], 3);
  EXPECT_EQ(a.plmn_Identity.mnc.count, 3u);
  EXPECT_EQ(a.plmn_Identity.mnc.digits[2], 0);
  EXPECT_EQ(a.plmn_Identity.mnc.digits[1], 6);
  expectAnsi(a);
}

void buildSpare(MibBuilder& b) { b.mib.plmn_Type.t = 4; }

void checkSpare(const umts_mib_info& m) {
  EXPECT_EQ(m.plmn_Type.choice_tag, 4u);
  EXPECT_TRUE(allZero(m.plmn_Type.u));
}

void buildExtensions(MibBuilder& b) {
  b.mib.m = 1;
  auto& v690 = b.mib.v690NonCriticalExtensions;
  v690.m = 1;
  v690.masterInformationBlock_v690ext.m = 1;
  MultiplePLMN_List_r6& plmns = v690.masterInformationBlock_v690ext.multiplePLMN_List;
  plmns.mibPLMN_Identity = 1;
  for (int i = 0; i < 5; i++) {
    const PLMN_Identity id = plmnIdentity(i == 1 ? "901" : "234", i == 4 ? "123" : "07");
    b.plmns[i] = {i == 0 ? 0u : 1u, id.mcc, id.mnc};  // the first without its MCC
    b.add(plmns.multiplePLMNs, b.plmns[i]);
  }
  auto& v6b0 = v690.v6b0NonCriticalExtensions;
  v6b0.m = 1;
  v6b0.masterInformationBlock_v6b0ext.m = 1;
  b.ext = {{2, {}}, scheduling(3, 5), {2, {}}};
  b.ext.valueTagInfo.u.cellValueTag = 3;
  b.add(v6b0.masterInformationBlock_v6b0ext.extSIBTypeInfoSchedulingInfo_List, b.ext);
  auto& v860 = v6b0.v860NonCriticalExtensions;
  v860.m = 1;
  MasterInformationBlock_v860ext_IEs& ies = v860.masterInformationBlock_v860ext;
  ies.m = 7;
  b.ext2 = {{3, {}}, scheduling(10, 1000, 2, {1, 14}), {3, {}}};
  b.ext2.valueTagInfo.u.plmn_ValueTag = 77;
  b.add(ies.extSIBTypeInfoSchedulingInfo_List, b.ext2);
  b.ganss.m = 3;
  b.ganss.ganssID = 5;
  b.ganss.sbasID = 2;
  b.ganssScheduling[0] = {{1, {}}, scheduling(1, 1), {1, {}}};
  b.occurrences[1] = {4, 1};
  b.ganssScheduling[1] = {{7, {}}, scheduling(11, 2047), {4, {}}};
  b.ganssScheduling[1].valueTagInfo.u.sIBOccurrenceIdentityAndValueTag = &b.occurrences[1];
  for (auto& s : b.ganssScheduling) b.add(b.ganss.ganssScheduling, s);
  b.add(ies.extGANSS_SIBTypeInfoSchedulingInfoList, b.ganss);
}

void checkExtensions(const umts_mib_info& m) {
  ASSERT_EQ(m.presence_bitmask, 1);
  const umts_mib_v690_nce& v690 = m.v690NonCriticalExtensions;
  const umts_multiple_plmn_list_r6& list = v690.masterInformationBlock_v690ext.multiplePLMN_List;
  EXPECT_EQ(v690.masterInformationBlock_v690ext.presence_bitmask & list.mibPLMN_Identity, 1);
  ASSERT_EQ(list.multiplePLMNs.count, 5);
  const umts_plmn_identity_with_optional_mcc_r6* p = list.multiplePLMNs.entries;
  EXPECT_EQ(p[0].presence_bitmask, 0);
  EXPECT_TRUE(allZero(p[0].mcc));
  EXPECT_EQ(p[0].mnc.digits[1], 7);
  EXPECT_EQ(p[1].presence_bitmask, 1);
  EXPECT_EQ(p[1].mcc.digits[0], 9);
  EXPECT_EQ(p[4].mnc.count, 3u);
  const umts_mib_v690_nce_v6b0_nce& v6b0 = v690.v6b0NonCriticalExtensions;
  const auto& ext = v6b0.masterInformationBlock_v6b0ext.extSIBTypeInfoSchedulingInfo_List;
  EXPECT_EQ(v690.presence_bitmask & v6b0.masterInformationBlock_v6b0ext.presence_bitmask, 1);
  ASSERT_EQ(ext.count, 1);
  EXPECT_EQ(ext.entries[0].extensionSIB_Type, 2u);
  EXPECT_EQ(ext.entries[0].schedulingInfo.sib_Pos.u.rep16, 5);
  EXPECT_EQ(ext.entries[0].valueTagInfo.u.cellValueTag, 3);
  const umts_mib_v860ext_ies& ies = v6b0.v860NonCriticalExtensions.masterInformationBlock_v860ext;
  EXPECT_EQ(v6b0.presence_bitmask & v6b0.v860NonCriticalExtensions.presence_bitmask, 1);
  EXPECT_EQ(ies.presence_bitmask, 7);
  const umts_ext_sib_type_info_scheduling_info2& e2 = ies.extSIBTypeInfoSchedulingInfo_List.entries[0];
  EXPECT_EQ(e2.extensionSIB_Type2, 3u);
  EXPECT_EQ(e2.schedulingInfo.sib_PosOffsetInfo.entries[1], 14u);
  EXPECT_EQ(e2.valueTagInfo.u.plmn_ValueTag, 77);
  const umts_ext_ganss_sib_type_info_scheduling_info& g = ies.extGANSS_SIBTypeInfoSchedulingInfoList.entries[0];
  EXPECT_EQ(g.presence_bitmask, 3);
  EXPECT_EQ(g.ganssID + g.sbasID, 7u);
  ASSERT_EQ(g.ganssScheduling.count, 2);
  EXPECT_EQ(g.ganssScheduling.entries[1].extensionGANSS_SIBType, 7u);
  EXPECT_EQ(g.ganssScheduling.entries[1].valueTagInfo.u.sIBOccurrenceIdentityAndValueTag.sibOccurIdentity, 4);
}

const struct {
  const char* name;
  void (*build)(MibBuilder&);
  void (*check)(const umts_mib_info&);
} kCases[] = {
    {"gsm-MAP with every kind of reference", buildReferences, checkReferences},
    {"ansi-41", buildAnsi, checkAnsi},
    {"gsm-MAP-and-ANSI-41", buildBoth, checkBoth},
    {"spare", buildSpare, checkSpare},
    {"v690, v6b0 and v860 extensions", buildExtensions, checkExtensions},
};

class FrameMib : public FrameTest {};

// Each MIB, sent whole and cut into transport blocks by the segmenter, gives the same record
// (rewritten whole by each), and that record holds what the MIB was built from.
TEST_F(FrameMib, WholeAndSegmentedMibGiveTheSameRecord) {
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.name);
    MibBuilder builder;
    c.build(builder);
    uint32_t bits = 0;
    const std::vector<uint8_t> mib = builder.encode(&bits);
    std::string out;
    ASSERT_EQ(whole(umts_sib_mib, mib, &out), 1);
    EXPECT_EQ(out.rfind("Decoded MIB\n", 0), 0u);
    c.check(result->mib);
    const umts_mib_info expected = result->mib;
    std::memset(&result->mib, 0xEE, sizeof result->mib);
    const umts_bch_sib sib{0, mib.data(), bits, 1};
    umts_bch_block blocks[4];
    uint32_t count = 0;
    ASSERT_EQ(umts_bch_segment(&sib, 1, 0, blocks, 4, &count, nullptr), umts_bch_ok);
    for (uint32_t i = 0; i < count; i++) EXPECT_EQ(feed({blocks[i].data, blocks[i].data + UMTS_BCH_BLOCK_OCTETS}), 1);
    EXPECT_EQ(std::memcmp(&result->mib, &expected, sizeof expected), 0);
    EXPECT_EQ(g_umts_ctxt.request_bitmask, 0u);
  }
}

TEST_F(FrameMib, ConversionTraceIsLoggedInOrderAndOnlyAboveItsThreshold) {
  const std::vector<uint8_t> mib = MibBuilder().encode();
  ASSERT_EQ(whole(umts_sib_mib, mib), 1);
  const std::vector<std::string> want = {
      "6:ASN context initialised",
      "6:ASN context bch data for sib_type 0 allocated, len=" + std::to_string(mib.size()),
      "6:ASN context bch data copied", "6:ASN context filled bitmask=1", "6:Initialized ASN mib context",
      "6:ASN mib info decoded", "6:Convert plmn type 1", "6:Convert SIB SB Reference List",
      "6:  umts_sibsb_reference_list count=1", "6:Free ASN mib context", "6:system info msg decoded, ret_val=1"};
  EXPECT_EQ(logLines(), want);

  MibBuilder chain;
  buildExtensions(chain);
  for (uint32_t t : {7u, 9u, 10u, 18u, 21u, 31u, 32u}) chain.addRef(t, scheduling(1, 0));
  logLines().clear();
  ASSERT_EQ(whole(umts_sib_mib, chain.encode()), 1);
  for (const char* line : {"6:Convert v690 Non Critical Extensions", "6:Decode multiple plmn list r6",
                           "6:Convert multiple plmn list", "6:  p_multiple_plmns count=5, pvalue count=5",
                           "6:Decode mib_v690_nce_v6b0_nce", "6:Convert ExtSIBTypeInfoSchedulingInfo_List",
                           "6:  p_ext_sib_type_info_scheduling_info_list count=1",
                           "6:Convert mib_v690_nce_v6b0_nce_v860_nce"})
    EXPECT_TRUE(logged(line)) << line;
  for (int t : {7, 9, 10, 18, 21, 31, 32})
    EXPECT_TRUE(logged("6:fill_sib_sb_type: " + std::to_string(t) + " option not available")) << t;

  logLines().clear();
  zvtLogLevelThreshold = 5;
  ASSERT_EQ(whole(umts_sib_mib, chain.encode()), 1);
  EXPECT_TRUE(logLines().empty());
}

// A failed decoding leaves the record as it was; a successful one replaces all of it, so
// extensions that the new MIB lacks are zero.
TEST_F(FrameMib, RecordIsReplacedWholeOnSuccessAndKeptOnFailure) {
  MibBuilder chain;
  buildExtensions(chain);
  ASSERT_EQ(whole(umts_sib_mib, chain.encode()), 1);
  const umts_mib_info before = result->mib;
  logLines().clear();
  EXPECT_EQ(whole(umts_sib_mib, {0x03, 0xC0}), 0);  // an MCC digit of 15
  EXPECT_EQ(std::memcmp(&result->mib, &before, sizeof before), 0);
  EXPECT_EQ(result->presence_bitmask, 0);
  EXPECT_TRUE(logged("2:ASN mib decode failed"));
  EXPECT_TRUE(logged("6:system info msg decoded, ret_val=0"));

  ASSERT_EQ(whole(umts_sib_mib, MibBuilder().encode()), 1);
  EXPECT_EQ(result->mib.presence_bitmask, 0);
  EXPECT_TRUE(allZero(result->mib.v690NonCriticalExtensions));
}

// Tags that the decoder cannot deliver are kept; only the functions that log say so.
TEST_F(FrameMib, UnknownTagsAreKeptAndLoggedOnlyWhereTheFunctionLogs) {
  const SchedulingInformation_scheduling_sib_Pos pos{12, {}};
  umts_scheduling_pos flat_pos = {};
  fill_scheduling_pos(&pos, &flat_pos);
  convert_schedulingInformation_scheduling_sib_pos(&pos, &flat_pos);
  const SIBSb_TypeAndTag type{40, {}};
  umts_sib_sb_type flat_type = {};
  fill_sib_sb_type(&type, &flat_type);
  const ValueTagInfo tag{9, {}};
  umts_value_tag_info flat_tag = {};
  flat_tag.u.plmn_ValueTag = 0x1234;
  convert_value_tag_info(&tag, &flat_tag);
  EXPECT_EQ(logLines(), (std::vector<std::string>{"2:fill_scheduling_pos:No such option available",
                                                  "2:fill_sib_sb_type: No such option (40) available"}));
  EXPECT_EQ(flat_pos.choice_tag + flat_type.choice_tag + flat_tag.choice_tag, 12u + 40u + 9u);
  EXPECT_EQ(flat_tag.u.plmn_ValueTag, 0x1234);  // the union as it was
}

}  // namespace
