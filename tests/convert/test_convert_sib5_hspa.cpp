// SIB5 of an HSPA cell: the records of common E-DCH (v890, v8d0) and HS-DSCH (v770) where the
// conversion does more than copy, each on a decoded value of its own. The random encodings
// with every extension level (test_convert_clearing.cpp) reach the rest of the chain.
#include <memory>

#include "convert_test.h"

using namespace converttest;

namespace {

// The FDD members of common E-DCH, in either decoded type, and their storage.
struct EdchFddParts {
  PRACH_Partitioning_r7_fdd partitions;
  ASCSetting_FDD asc[8];
  Measurement_Feedback_Info_r7_modeSpecificInfo_fdd feedback;
  E_DPDCH_Reference_E_TFCI_r7 refs[8];
  Common_E_DCH_ResourceInfoList resources[32];
  Common_E_DCH_MAC_d_Flow flows[8];
  rtxDListNode nodes[64];
  unsigned used = 0;
  template <typename T>
  void add(rtxDList& list, T& value) {
    append(list, nodes[used++], value);
  }

  // `k` varies the values between the two records; `resources` and `flows` set list lengths.
  template <class Head, class Fdd>
  void fill(Head& head, Fdd& f, unsigned k, unsigned nResources, unsigned nFlows, uint32_t feedbackBit) {
    head.m |= 1u;
    head.ul_InterferenceForCommonEDCH = static_cast<int8_t>(-100 + k);
    for (unsigned i = 0; i < nFlows; i++) {
      flows[i].mac_d_FlowIdentity = static_cast<uint8_t>(i);
      flows[i].mac_d_FlowPowerOffset = static_cast<uint8_t>((i + k) % 7);
      flows[i].mac_d_FlowMaxRetrans = static_cast<uint8_t>(15 - i);
      if (i % 2 == 0) {
        flows[i].m |= 1u;
        flows[i].mac_d_FlowMultiplexingList = bitString<E_DCH_MAC_d_FlowMultiplexingList>({static_cast<uint8_t>(0xA5 ^ i)}, 8);
      } else {
        flows[i].m |= 2u;
        flows[i].e_dch_mac_d_flow_retransmission_timer = i % 8;
      }
      add(head.common_E_DCH_MAC_d_FlowList, flows[i]);
    }
    PRACH_PreambleForEnhancedUplink& p = f.prach_PreambleForEnhancedUplink;
    p.availableSignatures = bitString<AvailableSignatures>({0xF0, static_cast<uint8_t>(k)}, 16);
    p.e_ai_Indication = 1;
    p.preambleScramblingCodeWordNumber = static_cast<uint8_t>(k % 16);
    p.availableSubChannelNumbers = bitString<AvailableSubChannelNumbers>({0xAB, 0xC0}, 12);
    p.m = 0xFFu;
    p.prach_Partitioning.t = 1;
    p.prach_Partitioning.u.fdd = &partitions;
    for (uint8_t i = 0; i < 8; i++) {
      asc[i].m = i == 3 ? 0u : 1u;
      asc[i].accessServiceClass_FDD.availableSignatureStartIndex = i;
      asc[i].accessServiceClass_FDD.availableSignatureEndIndex = 15;
      asc[i].accessServiceClass_FDD.assignedSubChannelNumber = bitString<AccessServiceClass_FDD_assignedSubChannelNumber>({0x50}, 4);
      add(partitions, asc[i]);
    }
    p.persistenceScalingFactorList.n = 6;
    for (uint32_t i = 0; i < 6; i++) p.persistenceScalingFactorList.elem[i] = i;
    p.ac_To_ASC_MappingTable.n = 7;
    for (uint8_t i = 0; i < 7; i++) p.ac_To_ASC_MappingTable.elem[i] = static_cast<uint8_t>(6 - i);
    p.primaryCPICH_TX_Power = 30;
    p.constantValue = -20;
    p.prach_PowerOffset = {2, 10};
    p.rach_TransmissionParameters = {4, 1, 9};
    p.aich_Info = {3, 1, 1};
    p.powerOffsetPp_e = -3;
    f.initialServingGrantValue = static_cast<uint8_t>(20 + k);
    f.e_dch_TTI = 1;
    f.e_agch_Information.e_AGCH_ChannelisationCode = static_cast<uint8_t>(200 + k);
    f.harq_Info = 1;
    UL_DPCHpowerControlInfoForCommonEDCH& pc = f.ul_DPCHpowerControlInfoForCommonEDCH;
    pc.powerControlAlgorithm.t = 1;
    pc.powerControlAlgorithm.u.algorithm1 = 1;
    pc.m = 5;  // deltaACK and the repetition factor
    pc.deltaACK = 7;
    pc.ack_NACK_repetition_factor = 3;
    E_DPCCH_Info_r7& c = f.e_dpcch_Info;
    c.e_DPCCH_DPCCH_PowerOffset = 6;
    c.happyBit_DelayCondition = 4;
    c.m = 3;
    c.e_TFC_Boost_Info.e_TFCI_Boost = 100;
    c.e_TFC_Boost_Info.m = 1;
    c.e_TFC_Boost_Info.delta_T2TP = 5;
    c.e_DPDCH_PowerInterpolation = 1;
    E_DPDCH_Info_r8& d = f.e_dpdch_Info;
    d.e_TFCI_TableIndex = 1;
    d.m = 0x0Du;  // minimum set, three- and two-index thresholds; no gain factor
    d.e_DCH_MinimumSet_E_TFCI = 9;
    for (uint8_t i = 0; i < 8; i++) {
      refs[i] = {static_cast<uint8_t>(10 * i), static_cast<uint8_t>(31 - i)};
      add(d.reference_E_TFCIs, refs[i]);
    }
    d.maxChannelisationCodes = 5;
    d.pl_NonMax = 20;
    d.schedulingInfoConfiguration.m = 2;
    d.schedulingInfoConfiguration.periodicityOfSchedInfo_Grant = 3;
    d.schedulingInfoConfiguration.powerOffsetForSchedInfo = 6;
    d.threeIndexStepThreshold = 30;
    d.twoIndexStepThreshold = 37;
    f.dl_FDPCH_TPCcommandErrorRate = 10;
    f.additional_E_DCH_TransmitBackoff = 15;
    f.max_CCCH_ResourceAllocation = 7;
    f.max_PeriodForCollisionResolution = 24;
    f.e_dch_TransmitContinuationOffset = 5;
    f.ack_nack_support_on_HS_DPCCH = 1;
    f.m |= feedbackBit;
    f.measurement_Feedback_Info.modeSpecificInfo.t = 1;
    f.measurement_Feedback_Info.modeSpecificInfo.u.fdd = &feedback;
    feedback = {-12, 3, 4, 8};
    for (unsigned i = 0; i < nResources; i++) {
      Common_E_DCH_ResourceInfoList& r = resources[i];
      r.s_offset = static_cast<uint8_t>(i % 10);
      r.f_dpch_ChannelisationCodeNumber = static_cast<uint8_t>(255 - i);
      r.m = i % 3 == 0 ? 1u : 0u;
      r.e_RGCH_Information = {static_cast<uint8_t>(i), static_cast<uint8_t>(i % 6)};
      r.e_hich_Info = {static_cast<uint8_t>(127 - i), static_cast<uint8_t>(39 - i)};
      r.ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCodeType = i % 2;
      r.ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCode = 0xFFFFFFu - 1000u * i - k;
      add(f.common_E_DCH_ResourceInfoList, r);
    }
  }
};

// The common E-DCH members that fill() gave `k`, `nFlows` and `nResources`, where the
// conversion does more than copy: the MAC-d flows' multiplexing list (8 bits told as 8
// octets, held to its field), the preamble's three members always there (bits 0 to 2) and its
// options (bits 3 to 10), the E-DPDCH options four places up, the resources' two members
// always there (bits 0 and 1), rg_CombinationIndex, and the DPCCH scrambling code, which the
// message always carries, copied without a bit of its own.
template <class Head, class Fdd>
void checkEdch(const Head& head, const Fdd& f, unsigned k, unsigned nFlows, unsigned nResources) {
  EXPECT_EQ(head.ul_InterferenceForCommonEDCH, -100 + static_cast<int>(k));
  ASSERT_EQ(head.common_E_DCH_MAC_d_FlowList.count, nFlows);
  for (unsigned i = 0; i < nFlows; i++) {
    const umts_common_e_dch_mac_d_flow& fl = head.common_E_DCH_MAC_d_FlowList.entries[i];
    EXPECT_EQ(fl.presence_bitmask, i % 2 == 0 ? 1 : 2) << i;
    EXPECT_EQ(fl.mac_d_FlowPowerOffset, (i + k) % 7) << i;
    EXPECT_EQ(fl.mac_d_FlowMaxRetrans, 15 - i) << i;
    EXPECT_EQ(octets(fl.mac_d_FlowMultiplexingList), (Bytes{static_cast<uint8_t>(i % 2 == 0 ? 0xA5 ^ i : 0), 0, 0, 0})) << i;
    EXPECT_EQ(fl.e_dch_mac_d_flow_retransmission_timer, i % 2 == 0 ? 0u : i % 8) << i;
  }
  const umts_prach_preamble_for_enhanced_uplink& p = f.prach_PreambleForEnhancedUplink;
  EXPECT_EQ(p.presence_bitmask, 0x7FF);
  EXPECT_EQ(octets(p.availableSignatures), (Bytes{0xF0, static_cast<uint8_t>(k), 0, 0}));
  EXPECT_EQ(p.preambleScramblingCodeWordNumber, k % 16);
  EXPECT_EQ(octets(p.availableSubChannelNumbers), (Bytes{0xAB, 0xC0, 0, 0}));
  ASSERT_EQ(p.prach_Partitioning.u.fdd.count, 8);
  EXPECT_TRUE(allZero(p.prach_Partitioning.u.fdd.entries[3]));
  EXPECT_EQ(p.prach_Partitioning.u.fdd.entries[7].accessServiceClass_FDD.availableSignatureStartIndex, 7);
  EXPECT_EQ(p.ac_To_ASC_MappingTable.entries[6], 0u);
  EXPECT_EQ(p.rach_TransmissionParameters.nb01Min, 1);
  EXPECT_EQ(p.powerOffsetPp_e, -3);
  EXPECT_EQ(f.initialServingGrantValue, 20 + k);
  EXPECT_EQ(f.e_agch_Information.e_AGCH_ChannelisationCode, 200 + k);
  EXPECT_EQ(f.ul_DPCHpowerControlInfoForCommonEDCH.presence_bitmask, 5);
  EXPECT_EQ(f.ul_DPCHpowerControlInfoForCommonEDCH.deltaACK, 7);
  EXPECT_EQ(f.ul_DPCHpowerControlInfoForCommonEDCH.ack_NACK_repetition_factor, 3);
  EXPECT_EQ(f.e_dpcch_Info.e_TFC_Boost_Info.delta_T2TP, 5);
  // Option bits 0, 2, 3 of the message become 0x10, 0x40, 0x80.
  const umts_e_dpdch_info_r8& d = f.e_dpdch_Info;
  EXPECT_EQ(d.presence_bitmask, 0xD0);
  EXPECT_EQ(d.reference_E_TFCIs.count, 8);
  EXPECT_EQ(d.reference_E_TFCIs.entries[7].reference_E_TFCI_PO, 24);
  EXPECT_EQ(d.schedulingInfoConfiguration.powerOffsetForSchedInfo, 6);
  EXPECT_EQ(d.twoIndexStepThreshold, 37);
  EXPECT_EQ(f.max_PeriodForCollisionResolution, 24);
  EXPECT_EQ(f.measurement_Feedback_Info.u.fdd.measurementPowerOffset, -12);
  EXPECT_EQ(f.measurement_Feedback_Info.u.fdd.deltaCQI, 8);
  ASSERT_EQ(f.common_E_DCH_ResourceInfoList.count, nResources);
  for (unsigned i = 0; i < nResources; i++) {
    const umts_common_e_dch_resource_info& r = f.common_E_DCH_ResourceInfoList.entries[i];
    EXPECT_EQ(r.presence_bitmask, i % 3 == 0 ? 7 : 3) << i;
    EXPECT_EQ(r.f_dpch_ChannelisationCodeNumber, 255 - i) << i;
    EXPECT_EQ(r.e_RGCH_Information.rg_CombinationIndex, i % 3 == 0 ? i % 6 : 0) << i;
    EXPECT_EQ(r.e_hich_Info.signatureSequence, 39 - i) << i;
    EXPECT_EQ(r.ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCode, 0xFFFFFFu - 1000u * i - k) << i;
  }
}

// Common E-DCH in both decoded types, at the longest lists: v890's first alternative is the
// cell's FDD configuration and is converted as such, into the members that v8d0's record has
// too.
TEST(ConvertSib5HspaParts, CommonEdchFddOfBothRecords) {
  static EdchFddParts parts890, parts8d0;  // large: not on the stack
  static CommonEDCHSystemInfo ce;
  static CommonEDCHSystemInfo_modeSpecificInfo_fdd fdd;
  ce.modeSpecificInfo.t = 1;
  ce.modeSpecificInfo.u.fdd = &fdd;
  parts890.fill(ce, fdd, 1, 32, 2, 1u);
  auto out890 = std::make_unique<umts_common_edch_system_info>();
  convert_common_edch_system_info(&ce, out890.get());
  ASSERT_EQ(out890->modeSpecificInfo.choice_tag, 1u);
  EXPECT_EQ(out890->modeSpecificInfo.u.fdd.presence_bitmask, 1);
  checkEdch(*out890, out890->modeSpecificInfo.u.fdd, 1, 2, 32);

  static CommonEDCHSystemInfoFDD fdd8d0;
  parts8d0.fill(fdd8d0, fdd8d0, 2, 32, 8, 2u);
  auto out8d0 = std::make_unique<umts_common_edch_system_info_fdd>();
  convert_common_edch_system_info_fdd(&fdd8d0, out8d0.get());
  EXPECT_EQ(out8d0->presence_bitmask, 3);
  checkEdch(*out8d0, *out8d0, 2, 8, 32);
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

// v770: tdd768 with its three lists announced (empty), tdd128 with none, and a tag that the
// decoder never delivers: the tag, the presence bits, nothing else.
TEST(ConvertSib5HspaParts, V770ModeAlternatives) {
  SysInfoType5_v770ext_IEs_modeSpecificInfo_tdd768 t768 = {};
  t768.m = 7;
  SysInfoType5_v770ext_IEs_modeSpecificInfo_tdd128 t128 = {};
  struct Case770 {
    uint32_t tag;
    void* alt;
    uint16_t bits768, bits128;
  } cases770[] = {{2, &t768, 7, 0}, {3, &t128, 0, 0}, {9, nullptr, 0, 0}};
  for (const Case770& k : cases770) {
    SysInfoType5_v770ext_IEs_modeSpecificInfo src = {};
    src.t = k.tag;
    src.u.tdd768 = static_cast<SysInfoType5_v770ext_IEs_modeSpecificInfo_tdd768*>(k.alt);
    static umts_sib5_v770_mode_specific_info out;  // megabytes: not on the stack
    std::memset(static_cast<void*>(&out), 0, sizeof out);
    convert_sysinfotype5_v770ext_ies_mode_specific_info(&src, &out);
    EXPECT_EQ(out.choice_tag, k.tag);
    if (k.tag == 2) EXPECT_EQ(out.u.tdd768.presence_bitmask, k.bits768);
    else EXPECT_TRUE(allZero(out.u));
  }
}

// The HS-SCCH system information: the scrambling code under its bit, then the four codes.
// Common E-DCH of a tdd cell: its inner tag, whatever it is.
TEST(ConvertSib5HspaParts, HsScchCodesAndCommonEdchTddTags) {
  for (uint32_t m : {0u, 1u}) {
    HS_SCCH_SystemInfo src{};
    src.m = m;
    src.dl_ScramblingCode = 5;
    src.hS_SCCHChannelisationCodeInfo.n = 4;
    for (uint8_t i = 0; i < 4; i++) src.hS_SCCHChannelisationCodeInfo.elem[i] = static_cast<uint8_t>(120 + i);
    umts_hs_scch_system_info out{};
    convert_hs_scch_system_info(&src, &out);
    EXPECT_EQ(out.presence_bitmask, m);
    EXPECT_EQ(out.dl_ScramblingCode, m ? 5 : 0);
    ASSERT_EQ(out.hS_SCCHChannelisationCodeInfo.count, 4u);
    EXPECT_EQ(out.hS_SCCHChannelisationCodeInfo.entries[3], 123);
  }
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
