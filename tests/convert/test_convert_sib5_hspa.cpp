// SIB5 of an HSPA cell: the records of common E-DCH (v890, v8d0) and HS-DSCH (v770) where the
// conversion does more than copy, on the sample cell's HSPA SIB5 and on decoded values of
// their own. The random encodings
// with every extension level (test_convert_clearing.cpp) reach the rest of the chain.
#include <memory>

#include "convert_test.h"

using namespace converttest;

namespace {

// The common E-DCH members of the HSPA sample (mksamples sets both records alike, with
// `resources` resources) where the conversion does more than copy: the MAC-d flows'
// multiplexing list (8 bits told as 8 octets, held to its field), the preamble's three
// members always there (bits 0 to 2) and its options (bits 3 to 10), the resources' two
// members always there (bits 0 and 1), and the DPCCH scrambling code, which the message always
// carries, copied without a bit of its own.
template <class Head, class Fdd>
void checkSampleEdch(const Head& head, const Fdd& f, unsigned resources) {
  EXPECT_EQ(head.ul_InterferenceForCommonEDCH, -95);
  ASSERT_EQ(head.common_E_DCH_MAC_d_FlowList.count, 2);
  for (unsigned i = 0; i < 2; i++) {
    const umts_common_e_dch_mac_d_flow& fl = head.common_E_DCH_MAC_d_FlowList.entries[i];
    EXPECT_EQ(fl.presence_bitmask, 1) << i;
    EXPECT_EQ(fl.mac_d_FlowPowerOffset, 2 * i) << i;
    EXPECT_EQ(octets(fl.mac_d_FlowMultiplexingList), (Bytes{static_cast<uint8_t>(0x80 >> i), 0, 0, 0})) << i;
  }
  const umts_prach_preamble_for_enhanced_uplink& p = f.prach_PreambleForEnhancedUplink;
  EXPECT_EQ(p.presence_bitmask, 0x7C7);  // options 3 to 7 of the message are bits 6 to 10
  EXPECT_EQ(octets(p.availableSignatures), (Bytes{0x00, 0xFF, 0, 0}));
  EXPECT_EQ(octets(p.availableSubChannelNumbers), (Bytes{0xFF, 0xF0, 0, 0}));
  EXPECT_EQ(p.preambleScramblingCodeWordNumber, 1);
  EXPECT_EQ(p.rach_TransmissionParameters.mmax, 8);
  EXPECT_EQ(p.powerOffsetPp_e, 2);
  EXPECT_EQ(f.e_agch_Information.e_AGCH_ChannelisationCode, 250);
  EXPECT_EQ(f.ul_DPCHpowerControlInfoForCommonEDCH.presence_bitmask, 7);
  EXPECT_EQ(f.e_dpdch_Info.reference_E_TFCIs.count, 3);
  EXPECT_EQ(f.e_dpdch_Info.reference_E_TFCIs.entries[2].reference_E_TFCI_PO, 16);
  EXPECT_EQ(f.max_PeriodForCollisionResolution, 16);
  ASSERT_EQ(f.common_E_DCH_ResourceInfoList.count, resources);
  for (unsigned i = 0; i < resources; i++) {
    const umts_common_e_dch_resource_info& r = f.common_E_DCH_ResourceInfoList.entries[i];
    EXPECT_EQ(r.presence_bitmask, 3) << i;
    EXPECT_EQ(r.f_dpch_ChannelisationCodeNumber, 10 + i) << i;
    EXPECT_EQ(r.e_hich_Info.signatureSequence, 2 * i) << i;
    EXPECT_EQ(r.ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCode, 0x100000u + i) << i;
  }
}

class ConvertSib5Hspa : public ConvertTest {};

// The sample cell's SIB5 of an HSPA cell carries common E-DCH in both records: v890's first
// alternative is the cell's FDD configuration and is converted as such, into the members
// that v8d0's record has too. Its common H-RNTIs keep their 16 bits.
TEST_F(ConvertSib5Hspa, SampleCommonEdchInBothRecords) {
  ASSERT_EQ(whole(umts_sib_sib5, sampleSib("fdd_cell_sibs.txt", "sib5", 2).bytes), 1);
  const auto& v770 = result->sib5.v4b0NonCriticalExtensions.v590NonCriticalExtensions.v650NonCriticalExtensions
                         .v680NonCriticalExtensions.v690NonCriticalExtensions.v770NonCriticalExtensions;
  const auto& v890 = v770.v860NonCriticalExtensions.v890NonCriticalExtensions;
  const umts_common_edch_system_info& ce = v890.sysInfoType5_v890ext.commonEDCHSystemInfo;
  ASSERT_EQ(ce.modeSpecificInfo.choice_tag, 1u);
  EXPECT_EQ(ce.modeSpecificInfo.u.fdd.presence_bitmask, 0);
  checkSampleEdch(ce, ce.modeSpecificInfo.u.fdd, 2);
  const umts_common_edch_system_info_fdd& fdd =
      v890.v8b0NonCriticalExtensions.v8d0NonCriticalExtensions.sysInfoType5_v8d0ext.commonEDCHSystemInfoFDD;
  EXPECT_EQ(fdd.presence_bitmask, 1);
  checkSampleEdch(fdd, fdd, 4);
  const auto& hs = v770.sysInfoType5_v770ext.modeSpecificInfo.u.fdd.hs_dsch_CommonSystemInformation;
  EXPECT_EQ(octets(hs.common_H_RNTI_information.entries[1]), (Bytes{0xFF, 0x02, 0, 0}));
}

// A resource with its e-RGCH information: bit 2, and rg_CombinationIndex kept.
TEST(ConvertSib5HspaParts, ResourceKeepsItsRgCombinationIndex) {
  Common_E_DCH_ResourceInfoList resource{};
  resource.m = 1;
  resource.e_RGCH_Information = {7, 5};
  rtxDList list{};
  Pool p;
  p.add(list, resource);
  auto out = std::make_unique<umts_common_e_dch_resource_info_list>();
  convert_common_edch_resource_info_list(&list, out.get());
  EXPECT_EQ(out->entries[0].presence_bitmask, 7);
  EXPECT_EQ(out->entries[0].e_RGCH_Information.signatureSequence, 7);
  EXPECT_EQ(out->entries[0].e_RGCH_Information.rg_CombinationIndex, 5);
}

// The four common H-RNTIs, 16 bits told as 16 octets, are each held to their four octets.
TEST(ConvertSib5HspaParts, HRntisStayInTheirFields) {
  HS_DSCH_CommonSystemInformation_common_H_RNTI_information src{};
  src.n = 4;
  for (uint8_t i = 0; i < 4; i++) src.elem[i] = bitString<H_RNTI>({0x10, i}, 16);
  struct {
    umts_h_rnti_list list;
    uint8_t after[16];
  } out{};
  convert_hs_dsch_common_system_information_common_h_rnti_information(&src, &out.list);
  ASSERT_EQ(out.list.count, 4u);
  for (uint8_t i = 0; i < 4; i++) EXPECT_EQ(octets(out.list.entries[i]), (Bytes{0x10, i, 0, 0})) << static_cast<int>(i);
  EXPECT_TRUE(allZero(out.after));
}

// A v770 mode tag that the decoder never delivers is kept alone.
TEST(ConvertSib5HspaParts, V770UnknownModeTagIsKeptAlone) {
  SysInfoType5_v770ext_IEs_modeSpecificInfo src = {};
  src.t = 9;
  static umts_sib5_v770_mode_specific_info out;  // megabytes: not on the stack
  convert_sysinfotype5_v770ext_ies_mode_specific_info(&src, &out);
  EXPECT_EQ(out.choice_tag, 9u);
  EXPECT_TRUE(allZero(out.u));
}

// Common E-DCH of a tdd cell: its inner tag, whatever it is.
TEST(ConvertSib5HspaParts, CommonEdchTddTags) {
  for (uint32_t inner : {1u, 2u, 3u}) {
    CommonEDCHSystemInfo_modeSpecificInfo_tdd tdd{};
    tdd.t = inner;
    CommonEDCHSystemInfo_modeSpecificInfo m{};
    m.t = 2;
    m.u.tdd = &tdd;
    umts_common_edch_mode_specific_info out{};
    convert_common_edch_system_info_mode_specific_info(&m, &out);
    EXPECT_EQ(out.choice_tag, 2u);
    EXPECT_EQ(out.u.tdd.choice_tag, inner);
  }
}

// E-DPDCH-Info-r8: each option bit n of the message is bit n + 4 of the record.
TEST(ConvertSib5HspaParts, EdpdchPresenceBitsFourPlacesUp) {
  for (uint32_t m = 0; m < 16; m++) {
    E_DPDCH_Info_r8 src = {};
    src.m = m;
    src.e_DCH_MinimumSet_E_TFCI = 1;
    src.minReduced_E_DPDCH_GainFactor = 2;
    src.threeIndexStepThreshold = 3;
    src.twoIndexStepThreshold = 4;
    umts_e_dpdch_info_r8 out = {};
    convert_e_dpdch_info_r8(&src, &out);
    EXPECT_EQ(out.presence_bitmask, m << 4);
    EXPECT_EQ(out.e_DCH_MinimumSet_E_TFCI, (m & 1) ? 1 : 0);
    EXPECT_EQ(out.minReduced_E_DPDCH_GainFactor, (m & 2) ? 2u : 0u);
    EXPECT_EQ(out.threeIndexStepThreshold, (m & 4) ? 3 : 0);
    EXPECT_EQ(out.twoIndexStepThreshold, (m & 8) ? 4 : 0);
  }
}

// The preamble's three members always there take bits 0 to 2; each option n is bit n + 3.
TEST(ConvertSib5HspaParts, PreamblePresenceBits) {
  for (uint32_t n = 0; n < 8; n++) {
    PRACH_PreambleForEnhancedUplink src = {};
    src.m = 1u << n;
    umts_prach_preamble_for_enhanced_uplink out = {};
    convert_prach_preamble_for_enhanced_uplink(&src, &out);
    EXPECT_EQ(out.presence_bitmask, 7u | (1u << (n + 3)));
  }
}

}  // namespace
