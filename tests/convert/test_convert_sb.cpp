// The scheduling blocks SB1 and SB2: built in code, encoded by the codec, sent whole and
// over the BCH, and compared field by field with what they were built from.
#include "convert_test.h"

using namespace frametest;

namespace {

// The two blocks have one shape, decoded and flat; a block is built as SB1 and sent as either.
static_assert(sizeof(SysInfoTypeSB1) == sizeof(SysInfoTypeSB2) && sizeof(umts_sb1_info) == sizeof(umts_sb2_info), "");

struct Block {
  umts_sib_id id;
  uint32_t sibType;
  const char* title;
};
const Block kBlocks[] = {{umts_sib_sb1, 27, "Decoded SysInfoTypeSB1\n"}, {umts_sib_sb2, 28, "Decoded SysInfoTypeSB2\n"}};

uint8_t cellTag(uint32_t tag) { return static_cast<uint8_t>(tag % 4 + 1); }          // CellValueTag 1..4
uint16_t lastPos(uint32_t posTag) { return static_cast<uint16_t>((1u << posTag) - 1); }  // rep4 0..1 ... rep4096 0..2047
bool noValue(uint32_t tag) { return tag == 7 || tag == 9 || tag == 10 || tag == 18 || tag == 21 || tag >= 29; }

struct Builder {
  converttest::Pool pool;
  SysInfoTypeSB1 sb{};
  PredefinedConfigIdentityAndValueTag predefined{15, 7};
  SIBOccurrenceIdentityAndValueTag occurrences[3]{{3, 12}, {4, 11}, {9, 6}};

  // Entry i has the alternative i + 1 (every alternative of SIB-TypeAndTag) and every
  // repetition period at its largest position; every tenth entry has offsets.
  explicit Builder(uint32_t n, bool extensions) {
    for (uint32_t i = 0; i < n; i++) {
      const uint32_t tag = i + 1, posTag = i % 11 + 1;
      std::vector<uint32_t> offsets;
      if (i == 0) offsets = {15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1};  // the longest SibOFF-List
      if (i % 10 == 0 && i != 0) offsets = {i % 16};
      SchedulingInformationSIB& ref = *pool.add<SchedulingInformationSIB>(sb.sib_ReferenceList);
      ref = {{tag, {}}, scheduling(posTag, lastPos(posTag), static_cast<uint8_t>(i % 16 + 1), offsets)};
      auto& u = ref.sib_Type.u;
      if (tag == 1) u.sysInfoType1 = 256;
      else if (tag == 20) u.sysInfoType16 = &predefined;
      else if (tag == 23 || tag == 24) u.sysInfoType15_2 = &occurrences[tag - 23];
      else if (!noValue(tag)) u.sysInfoType2 = cellTag(tag);  // every CellValueTag alternative lies here
    }
    if (!extensions) return;
    sb.m = 1;
    auto& v6b0 = sb.v6b0NonCriticalExtensions;
    v6b0.m = 1;
    v6b0.v860NonCriticalExtensions.m = 1;
    v6b0.sysInfoTypeSB1_v6b0ext.m = 1;
    pool.add(v6b0.sysInfoTypeSB1_v6b0ext.extSIBTypeInfoSchedulingInfo_List,
             ExtSIBTypeInfoSchedulingInfo{{5, {}}, scheduling(6, 63, 3, {2}), {2, {}}})
        ->valueTagInfo.u.cellValueTag = 4;
    SysInfoTypeSB1_v860ext& v860 = v6b0.v860NonCriticalExtensions.sysInfoTypeSB1_v860ext;
    v860.m = 3;
    pool.add(v860.extSIBTypeInfoSchedulingInfo_List, ExtSIBTypeInfoSchedulingInfo2{{2, {}}, scheduling(9, 300), {4, {}}})
        ->valueTagInfo.u.sIBOccurrenceIdentityAndValueTag = &occurrences[2];
    auto* ganss = pool.add(v860.extGANSS_SIBTypeInfoSchedulingInfoList, ExtGANSS_SIBTypeInfoSchedulingInfo{2, 0, 3, {}});
    pool.add(ganss->ganssScheduling, ExtGANSS_SchedulingInfo{{4, {}}, scheduling(2, 3), {3, {}}})->valueTagInfo.u.plmn_ValueTag = 200;
  }

  std::vector<uint8_t> encode(umts_sib_id id, uint32_t* bits = nullptr) const {
    if (id == umts_sib_sb1) return frametest::encode(asn1PE_UMTS_SysInfoTypeSB1, sb, bits);
    SysInfoTypeSB2 sb2;
    std::memcpy(&sb2, &sb, sizeof sb2);
    return frametest::encode(asn1PE_UMTS_SysInfoTypeSB2, sb2, bits);
  }
};

void checkReferences(const umts_sib_reference_list& list, uint32_t n) {
  ASSERT_EQ(list.count, n);
  for (uint32_t i = 0; i < n; i++) {
    SCOPED_TRACE("entry " + std::to_string(i));
    const umts_scheduling_info_sib& e = list.entries[i];
    const uint32_t tag = i + 1, posTag = i % 11 + 1;
    const auto& u = e.sib_Type.u;
    EXPECT_EQ(e.sib_Type.choice_tag, tag);
    if (tag == 1) EXPECT_EQ(u.sysInfoType1, 256);
    else if (tag == 20) EXPECT_EQ(u.sysInfoType16.predefinedConfigIdentity * 16 + u.sysInfoType16.predefinedConfigValueTag, 15 * 16 + 7);
    else if (tag == 23) EXPECT_EQ(u.sysInfoType15_2.sibOccurIdentity * 16 + u.sysInfoType15_2.sibOccurValueTag, 3 * 16 + 12);
    else if (tag == 24) EXPECT_EQ(u.sysInfoType15_3.sibOccurIdentity * 16 + u.sysInfoType15_3.sibOccurValueTag, 4 * 16 + 11);
    else if (noValue(tag)) EXPECT_TRUE(allZero(u));
    else EXPECT_EQ(u.sysInfoType2 + 256 * reinterpret_cast<const uint8_t*>(&u)[1], cellTag(tag));  // one octet
    const umts_scheduling_info& s = e.scheduling;
    EXPECT_EQ(s.segCount, i % 16 + 1);
    EXPECT_EQ(s.sib_Pos.choice_tag, posTag);
    EXPECT_EQ(posTag >= 9 ? s.sib_Pos.u.rep1024 : s.sib_Pos.u.rep4, lastPos(posTag));
    EXPECT_EQ(s.presence_bitmask, i % 10 == 0 ? 1 : 0);
    EXPECT_EQ(s.sib_PosOffsetInfo.count, i == 0 ? 15u : i % 10 == 0 ? 1u : 0u);
    EXPECT_EQ(s.sib_PosOffsetInfo.entries[0], i == 0 ? 15u : i % 16 * (i % 10 == 0));
  }
  EXPECT_EQ(list.entries[0].scheduling.sib_PosOffsetInfo.entries[14], 1u);
}

// The extension lists are the MIB's, checked there; here, that each lands at its level.
void checkExtensions(const umts_sb1_info& f) {
  ASSERT_EQ(f.presence_bitmask, 1);
  const umts_sb_v6b0_nc_extensions& v6b0 = f.v6b0NonCriticalExtensions;
  const auto& ext = v6b0.sysInfoTypeSB_v6b0ext.extSIBTypeInfoSchedulingInfo_List;
  EXPECT_EQ(v6b0.presence_bitmask + v6b0.sysInfoTypeSB_v6b0ext.presence_bitmask, 2);
  EXPECT_EQ(ext.count, 1);
  EXPECT_EQ(ext.entries[0].valueTagInfo.u.cellValueTag, 4);
  const umts_sb_v860_nc_extensions& v860 = v6b0.v860NonCriticalExtensions;
  EXPECT_EQ(v860.presence_bitmask, 1);
  EXPECT_EQ(v860.nonCriticalExtensions, 0);
  const umts_sb_v860_ext& ies = v860.sysInfoTypeSB_v860ext;
  ASSERT_EQ(ies.presence_bitmask, 3);
  EXPECT_EQ(ies.extSIBTypeInfoSchedulingInfo_List.entries[0].valueTagInfo.u.sIBOccurrenceIdentityAndValueTag.sibOccurIdentity, 9);
  const umts_ext_ganss_sib_type_info_scheduling_info& g = ies.extGANSS_SIBTypeInfoSchedulingInfoList.entries[0];
  EXPECT_EQ(g.presence_bitmask * 16 + g.sbasID, 2u * 16 + 3);  // sbasID without ganssID
  EXPECT_EQ(g.ganssScheduling.entries[0].valueTagInfo.u.plmn_ValueTag, 200);
}

class ConvertSb : public FrameTest {
 protected:
  umts_sb1_info record(const Block& b) const {
    umts_sb1_info r;
    std::memcpy(&r, b.id == umts_sib_sb1 ? static_cast<const void*>(&result->sb1) : &result->sb2, sizeof r);
    return r;
  }
  // A short SIB7 ahead lets the segmenter choose where the block's first segment ends.
  uint8_t overBch(const Block& b, const std::vector<uint8_t>& bytes, uint32_t bits) {
    const std::vector<uint8_t> sib7 = fromHex(kSib7Hex);
    const umts_bch_sib sibs[2] = {{7, sib7.data(), 11, 0}, {b.sibType, bytes.data(), bits, 0}};
    umts_bch_block blocks[16];
    uint32_t count = 0;
    EXPECT_EQ(umts_bch_segment(sibs, 2, 0, blocks, 16, &count, nullptr), umts_bch_ok);
    uint8_t ok = count > 0;
    for (uint32_t i = 0; i < count; i++) ok &= feed({blocks[i].data, blocks[i].data + UMTS_BCH_BLOCK_OCTETS});
    return ok;
  }
};

// 32 references (the list's bound), one per alternative, and every extension level: the
// same record whole and over the BCH, holding what the block was built from.
TEST_F(ConvertSb, EveryAlternativeAndExtensionWholeAndOverTheBch) {
  const Builder built(32, true);
  for (const Block& b : kBlocks) {
    SCOPED_TRACE(b.title);
    uint32_t bits = 0;
    const std::vector<uint8_t> bytes = built.encode(b.id, &bits);
    std::string out;
    logLines().clear();
    ASSERT_EQ(whole(b.id, bytes, &out), 1);
    EXPECT_EQ(result->presence_bitmask, 1u << b.id);
    EXPECT_EQ(out.rfind(b.title, 0), 0u);
    // The block's own functions print and never log; between the entry's lines only the v6b0
    // list that it shares with the MIB reports, as it does there.
    const std::vector<std::string> trace = {
        "6:ASN context initialised",
        "6:ASN context bch data for sib_type " + std::to_string(b.id) + " allocated, len=" + std::to_string(bytes.size()),
        "6:ASN context bch data copied", "6:ASN context filled bitmask=" + std::to_string(1u << b.id),
        "6:Convert ExtSIBTypeInfoSchedulingInfo_List", "6:  p_ext_sib_type_info_scheduling_info_list count=1",
        "6:system info msg decoded, ret_val=1"};
    EXPECT_EQ(logLines(), trace);
    // sysInfoType7, dummy2, sysInfoType14, sysInfoType17 and the four spares say so; dummy3
    // is silent.
    size_t lines = 0;
    for (size_t at = 0; (at = out.find("\nfill_sib_type: option not available", at)) != std::string::npos; at++) lines++;
    EXPECT_EQ(lines, 8u);
    const umts_sb1_info flat = record(b);
    checkReferences(flat.sib_ReferenceList, 32);
    checkExtensions(flat);

    result->presence_bitmask = 0;
    std::memset(b.id == umts_sib_sb1 ? static_cast<void*>(&result->sb1) : &result->sb2, 0xEE, sizeof flat);
    ASSERT_EQ(overBch(b, bytes, bits), 1);
    EXPECT_TRUE(result->presence_bitmask & (1u << b.id));
    const umts_sb1_info again = record(b);
    EXPECT_EQ(std::memcmp(&again, &flat, sizeof flat), 0);
  }
}

// Each extension level is nested in the one above: an absent level leaves everything below
// it zero. A failed decoding prints the SB1 text for either block (the record that it keeps
// and its log line: test_convert_clearing.cpp).
TEST_F(ConvertSb, AbsentLevelsStayZeroAndFailureKeepsTheRecord) {
  for (const Block& b : kBlocks) {
    SCOPED_TRACE(b.title);
    ASSERT_EQ(whole(b.id, Builder(3, true).encode(b.id)), 1);
    Builder bare(1, true);  // v6b0 and v860 present, without their lists
    bare.sb.v6b0NonCriticalExtensions = {1, {}, {}};
    ASSERT_EQ(whole(b.id, bare.encode(b.id)), 1);
    umts_sb1_info flat = record(b);
    EXPECT_EQ(flat.presence_bitmask, 1);
    EXPECT_EQ(flat.v6b0NonCriticalExtensions.presence_bitmask, 1);
    EXPECT_TRUE(allZero(flat.v6b0NonCriticalExtensions.sysInfoTypeSB_v6b0ext));
    EXPECT_TRUE(allZero(flat.v6b0NonCriticalExtensions.v860NonCriticalExtensions));
    checkReferences(flat.sib_ReferenceList, 1);
    EXPECT_TRUE(allZero(flat.sib_ReferenceList.entries[1]));
    ASSERT_EQ(whole(b.id, Builder(2, false).encode(b.id)), 1);
    flat = record(b);
    EXPECT_EQ(flat.presence_bitmask, 0);
    EXPECT_TRUE(allZero(flat.v6b0NonCriticalExtensions));

    std::string out;  // 32 spare1 entries, the first with a sib-Pos index of 15 of 11
    EXPECT_EQ(whole(b.id, {0xFF, 0xFF, 0xFF, 0xFF}, &out), 0);
    EXPECT_EQ(out, "asn1PD_UMTS_SysInfoTypeSB1:asn Decoding Failed\n");
  }
}

// Tags that the decoder cannot deliver are kept, the union untouched, and printed.
TEST_F(ConvertSb, UnknownTagIsKeptAndPrinted) {
  for (uint32_t tag : {0u, 33u, 99u}) {
    const SIB_TypeAndTag type{tag, {}};
    umts_sib_type flat;
    std::memset(&flat, 0x5A, sizeof flat);
    EXPECT_EQ(captureStdout([&] { fill_sib_type(&type, &flat); }), "\nfill_sib_type: No such option available\n");
    EXPECT_EQ(flat.choice_tag, tag);
    EXPECT_EQ(flat.u.sysInfoType1, 0x5A5A);
  }
  EXPECT_TRUE(logLines().empty());
}

}  // namespace
