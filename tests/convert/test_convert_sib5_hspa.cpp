// SIB5 of an HSPA cell: HS-DSCH common and paging information (v770 fdd), DRX in CELL_FACH
// (v860) and common E-DCH (v890, v8d0). Built in code, encoded by the codec, converted, and
// compared field by field with what went in; whole and over the BCH.
#include "convert_test.h"
#include "sib5_builder.h"

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

// The sample-shaped SIB5 with the HSPA chain: v680 HS-DSCH and v690 E-DCH indicators, v770
// HS-DSCH common and paging information, v860 DRX, v890 and v8d0 common E-DCH.
struct HspaSib5 : sib5test::Sib5Builder {
  SysInfoType5_v770ext_IEs_modeSpecificInfo_fdd v770Fdd;
  Common_MAC_ehs_ReorderingQueue queues[2];
  HARQ_Info_memoryPartitioning_explicit_ memory;
  PICH_ForHSDPASupportedPaging paging[16];
  PICH_Info_fdd pagingPich[16];
  CommonEDCHSystemInfo_modeSpecificInfo_fdd v890Fdd;
  EdchFddParts v890Parts, v8d0Parts;
  rtxDListNode hspaNodes[32];
  unsigned hspaUsed = 0;
  unsigned nPaging = 2, nResources890 = 1, nResources8d0 = 32, nFlows = 8;

  void build() {
    chain(10);
    v680().sysInfoType5_v680ext.m = 1;
    v690().sysInfoType5_v690ext.m = 1;
    SysInfoType5_v770ext_IEs& e770 = v770().sysInfoType5_v770ext;
    e770.m = 1;
    e770.modeSpecificInfo.t = 1;
    e770.modeSpecificInfo.u.fdd = &v770Fdd;
    HS_DSCH_CommonSystemInformation& c = v770Fdd.hs_dsch_CommonSystemInformation;
    c.ccch_MappingInfo = {1, 2};
    c.m = 1;
    c.srb1_MappingInfo = {3, 4};
    queues[0] = {1, 5, 14, 3, 6};
    queues[1] = {0, 7, 2, 0, 1};
    for (auto& q : queues) append(c.common_MAC_ehs_ReorderingQueueList, hspaNodes[hspaUsed++], q);
    c.hs_scch_SystemInfo.m = 1;
    c.hs_scch_SystemInfo.dl_ScramblingCode = 5;
    c.hs_scch_SystemInfo.hS_SCCHChannelisationCodeInfo.n = 4;
    for (uint8_t i = 0; i < 4; i++) c.hs_scch_SystemInfo.hS_SCCHChannelisationCodeInfo.elem[i] = static_cast<uint8_t>(120 + i);
    c.harq_SystemInfo.numberOfProcesses = 6;
    c.harq_SystemInfo.memoryPartitioning.t = 2;
    c.harq_SystemInfo.memoryPartitioning.u.explicit_ = &memory;
    memory.n = 8;
    for (uint32_t i = 0; i < 8; i++) memory.elem[i] = 60 - i;
    c.common_H_RNTI_information.n = 4;
    for (uint8_t i = 0; i < 4; i++) c.common_H_RNTI_information.elem[i] = bitString<H_RNTI>({0x10, static_cast<uint8_t>(i)}, 16);
    c.bcchSpecific_H_RNTI = bitString<H_RNTI>({0xBC, 0xCB}, 16);
    HS_DSCH_PagingSystemInformation& pg = v770Fdd.hs_dsch_PagingSystemInformation;
    v770Fdd.m = 1;
    pg.m = 1;
    pg.dlScramblingCode = 9;
    for (unsigned i = 0; i < nPaging; i++) {
      paging[i].hsdpa_AssociatedPichInfo.t = 1;
      paging[i].hsdpa_AssociatedPichInfo.u.fdd = &pagingPich[i];
      pagingPich[i] = {static_cast<uint8_t>(100 + i), 2, static_cast<uint8_t>(i % 2)};
      paging[i].hs_pdschChannelisationCode = static_cast<uint8_t>(1 + i % 15);
      append(pg.pich_ForHSDPASupportedPagingList, hspaNodes[hspaUsed++], paging[i]);
    }
    pg.numberOfPcchTransmissions = 5;
    pg.transportBlockSizeList.n = 2;
    pg.transportBlockSizeList.elem[0] = 1;
    pg.transportBlockSizeList.elem[1] = 32;

    v860Fdd.m = 1;
    v860Fdd.hs_dsch_DrxCellfach_info = {2, 3, 1, 1};

    SysInfoType5_v890ext_IEs& e890 = v890().sysInfoType5_v890ext;
    e890.m = 2;
    e890.commonEDCHSystemInfo.modeSpecificInfo.t = 1;
    e890.commonEDCHSystemInfo.modeSpecificInfo.u.fdd = &v890Fdd;
    v890Parts.fill(e890.commonEDCHSystemInfo, v890Fdd, 1, nResources890, 2, 1u);
    SysInfoType5_v8d0ext_IEs& e8d0 = v8d0().sysInfoType5_v8d0ext;
    e8d0.m = 1;
    v8d0Parts.fill(e8d0.commonEDCHSystemInfoFDD, e8d0.commonEDCHSystemInfoFDD, 2, nResources8d0, nFlows, 2u);
  }
};

const umts_sib5_v680_nces& v680(const umts_sib5_info& f) {
  return f.v4b0NonCriticalExtensions.v590NonCriticalExtensions.v650NonCriticalExtensions.v680NonCriticalExtensions;
}

// The HSPA chain of the builder: the HS-DSCH common and paging information (four H-RNTIs,
// each copy held to its four octets), DRX, and both common E-DCH records (v890's first
// alternative is the cell's FDD configuration, converted as such).
void checkHspa(const umts_sib5_info& f, const HspaSib5& in) {
  const umts_sib5_v680_nces& l680 = v680(f);
  EXPECT_EQ(l680.presence_bitmask, 3);
  const umts_sib5_v690_nces& l690 = l680.v690NonCriticalExtensions;
  const umts_sib5_v770_mode_specific_info_fdd& fdd = l690.v770NonCriticalExtensions.sysInfoType5_v770ext.modeSpecificInfo.u.fdd;
  const umts_hs_dsch_common_system_information& c = fdd.hs_dsch_CommonSystemInformation;
  EXPECT_EQ(c.srb1_MappingInfo.mac_ehs_QueueId, 4);
  ASSERT_EQ(c.common_MAC_ehs_ReorderingQueueList.count, 2);
  EXPECT_EQ(c.common_MAC_ehs_ReorderingQueueList.entries[0].reorderingResetTimer, 3u);
  EXPECT_EQ(c.common_MAC_ehs_ReorderingQueueList.entries[1].reorderingResetTimer, 0u) << "its bit clear";
  EXPECT_EQ(c.hs_scch_SystemInfo.hS_SCCHChannelisationCodeInfo.entries[3], 123);
  EXPECT_EQ(c.harq_SystemInfo.memoryPartitioning.u.explicit_.entries[7], 53u);
  ASSERT_EQ(c.common_H_RNTI_information.count, 4u);
  for (uint8_t i = 0; i < 4; i++)
    EXPECT_EQ(octets(c.common_H_RNTI_information.entries[i]), (Bytes{0x10, i, 0, 0})) << static_cast<int>(i);
  EXPECT_EQ(octets(c.bcchSpecific_H_RNTI), (Bytes{0xBC, 0xCB, 0, 0}));
  const umts_hs_dsch_paging_system_information& pg = fdd.hs_dsch_PagingSystemInformation;
  ASSERT_EQ(pg.pich_ForHSDPASupportedPagingList.count, in.nPaging);
  for (unsigned i = 0; i < in.nPaging; i++) {
    EXPECT_EQ(pg.pich_ForHSDPASupportedPagingList.entries[i].hsdpa_AssociatedPichInfo.u.fdd.channelisationCode256, 100 + i);
    EXPECT_EQ(pg.pich_ForHSDPASupportedPagingList.entries[i].hs_pdschChannelisationCode, 1 + i % 15);
  }
  EXPECT_EQ(pg.transportBlockSizeList.entries[1], 32);
  const umts_sib5_v860_nces& l860 = l690.v770NonCriticalExtensions.v860NonCriticalExtensions;
  EXPECT_EQ(l860.sysInfoType5_v860ext.modeSpecificInfo.u.fdd.hs_dsch_DrxCellfach_info.hs_dsch_DrxCycleFach, 3u);
  const umts_common_edch_system_info& ce = l860.v890NonCriticalExtensions.sysInfoType5_v890ext.commonEDCHSystemInfo;
  ASSERT_EQ(ce.modeSpecificInfo.choice_tag, 1u);
  EXPECT_EQ(ce.modeSpecificInfo.u.fdd.presence_bitmask, 1);
  checkEdch(ce, ce.modeSpecificInfo.u.fdd, 1, 2, in.nResources890);
  const umts_common_edch_system_info_fdd& cf =
      l860.v890NonCriticalExtensions.v8b0NonCriticalExtensions.v8d0NonCriticalExtensions.sysInfoType5_v8d0ext.commonEDCHSystemInfoFDD;
  EXPECT_EQ(cf.presence_bitmask, 3);
  checkEdch(cf, cf, 2, in.nFlows, in.nResources8d0);
}

class ConvertSib5Hspa : public ConvertTest {};

TEST_F(ConvertSib5Hspa, HsdschAndCommonEdchWholeAndOverTheBch) {
  static HspaSib5 builder;  // large: built once
  builder.nResources8d0 = 4;  // short enough for the 16 segments of the BCH
  builder.nFlows = 2;
  builder.build();
  // Whole, then over the BCH after SIB7 in segments joined bit by bit.
  uint32_t bits = 0;
  const Bytes sib5 = builder.encode(&bits);
  expectSameOverTheBch(umts_sib_sib5, 5, &umts_sib_set::sib5, sib5, bits);
  checkHspa(result->sib5, builder);
}

// The longest lists: 16 paging PICHs, 32 E-DCH resources in both records, 8 MAC-d flows.
TEST_F(ConvertSib5Hspa, LongestLists) {
  static HspaSib5 builder;
  builder.nPaging = 16;
  builder.nResources890 = 32;
  builder.build();
  ASSERT_EQ(whole(umts_sib_sib5, builder.encode()), 1);
  checkHspa(result->sib5, builder);
}

// 1.28 Mcps TDD: the HS-DSCH common information of v860, four HS-SCCHs with their HS-SICHs
// (midamble shift inline for the HS-SCCH, through a pointer for the HS-SICH), the HS-PDSCH
// midamble, the DRX values; the paging information with an implicit PICH (its option clear)
// and an explicit one.
TEST_F(ConvertSib5Hspa, Tdd128HsdschCommonInformation) {
  static sib5test::Sib5Builder b;
  b.chain(7);
  static SysInfoType5_v860ext_IEs_modeSpecificInfo_tdd128 tdd;
  static HS_SCCH_TDD128_r6 scch[4];
  static HS_SICH_Configuration_TDD128_r6_midambleAllocationMode_ueSpecificMidamble sichShift[4];
  static Common_MAC_ehs_ReorderingQueue queue = {0, 3, 1, 0, 2};
  static PICH_ForHSDPASupportedPaging_TDD128 pich;
  static rtxDListNode nodes[8];
  b.v860().sysInfoType5_v860ext.modeSpecificInfo.t = 2;
  b.v860().sysInfoType5_v860ext.modeSpecificInfo.u.tdd128 = &tdd;
  tdd.m = 3;
  tdd.hs_dsch_DrxCellfach_info = {1, 2, 3};
  auto& info = tdd.hs_dsch_CommonSysInfo;
  HS_DSCH_CommonSystemInformation_TDD128& c = info.hs_dsch_CommonSystemInformation;
  c.ccch_MappingInfo = {5, 6};
  append(c.common_MAC_ehs_ReorderingQueueList, nodes[0], queue);
  for (uint8_t i = 0; i < 4; i++) {
    scch[i].timeslotNumber = static_cast<uint8_t>(1 + i);
    scch[i].firstChannelisationCode = i;
    scch[i].secondChannelisationCode = 15u - i;
    scch[i].midambleAllocationMode.t = i % 2 == 0 ? 3 : 1;
    scch[i].midambleAllocationMode.u.ueSpecificMidamble = static_cast<uint8_t>(i % 2 == 0 ? 10 + i : 0);
    scch[i].midambleConfiguration = 8;
    scch[i].hs_sich_configuration.timeslotNumber = static_cast<uint8_t>(6 - i);
    scch[i].hs_sich_configuration.channelisationCode = 4u + i;
    scch[i].hs_sich_configuration.midambleAllocationMode.t = i < 2 ? 2 : 1;
    sichShift[i].midambleShift = static_cast<uint8_t>(i + 1);
    if (i < 2) scch[i].hs_sich_configuration.midambleAllocationMode.u.ueSpecificMidamble = &sichShift[i];
    scch[i].hs_sich_configuration.midambleConfiguration = 4;
    append(c.hs_scch_SystemInfo_tdd128.hs_SCCH_SetConfiguration, nodes[1 + i], scch[i]);
  }
  c.hs_scch_SystemInfo_tdd128.power_level_HSSICH = -100;
  c.hs_scch_SystemInfo_tdd128.nack_ack_power_offset = -7;
  c.hs_scch_SystemInfo_tdd128.tpc_step_size = 2;
  c.hs_scch_SystemInfo_tdd128.bler_target = -20;
  c.hs_scch_SystemInfo_tdd128.m = 2;
  c.hs_scch_SystemInfo_tdd128.pathloss_compensation_switch = 1;
  c.harq_SystemInfo.numberOfProcesses = 2;
  c.harq_SystemInfo.memoryPartitioning.t = 1;
  c.hs_pdsch_MidambleConfiguration.midambleAllocationMode.t = 3;
  c.hs_pdsch_MidambleConfiguration.midambleAllocationMode.u.ueSpecificMidamble = 7;
  c.hs_pdsch_MidambleConfiguration.midambleConfiguration = 6;
  c.common_H_RNTI_information.n = 1;
  c.common_H_RNTI_information.elem[0] = bitString<H_RNTI>({0xAA, 0x55}, 16);
  c.bcchSpecific_H_RNTI = bitString<H_RNTI>({0x01, 0x02}, 16);
  info.m = 1;
  info.hs_dsch_PagingSystemInformation.m = 1;
  pich.t = 1;
  static PICH_ForHSDPASupportedPaging_TDD128_implicit implicitPich;
  pich.u.implicit = &implicitPich;
  append(info.hs_dsch_PagingSystemInformation.pich_ForHsdschList, nodes[5], pich);
  static PICH_ForHSDPASupportedPaging_TDD128 pich2;
  static PICH_Info_LCR_r4 lcr;
  static MidambleShiftAndBurstType_LCR_r4_midambleAllocationMode_ueSpecificMidamble lcrShift = {9};
  pich2.t = 2;
  pich2.u.explicit_ = &lcr;
  lcr.m = 3;
  lcr.timeslot = 4;
  lcr.pichChannelisationCodeList_LCR_r4.n = 2;
  lcr.pichChannelisationCodeList_LCR_r4.elem[0] = 3;
  lcr.pichChannelisationCodeList_LCR_r4.elem[1] = 11;
  lcr.midambleShiftAndBurstType.midambleAllocationMode.t = 3;
  lcr.midambleShiftAndBurstType.midambleAllocationMode.u.ueSpecificMidamble = &lcrShift;
  lcr.midambleShiftAndBurstType.midambleConfiguration = 8;
  lcr.repetitionPeriodLengthOffset.t = 2;
  lcr.repetitionPeriodLengthOffset.u.rpp8_2 = 5;
  lcr.pagingIndicatorLength = 1;
  lcr.n_GAP = 2;
  lcr.n_PCH = 7;
  append(info.hs_dsch_PagingSystemInformation.pich_ForHsdschList, nodes[7], pich2);
  info.hs_dsch_PagingSystemInformation.dtch_DCCH_reception_window_size = 4;
  static PCCH_InformationList_paging_associatedHspdschInfo_element paging;
  paging.hs_pdsch_MidambleConfiguration.midambleAllocationMode.t = 1;
  paging.hs_pdsch_MidambleConfiguration.midambleConfiguration = 2;
  paging.codeResourceInformation = {1, 14};
  paging.timeslotResourceRelatedInfo = bitString<decltype(paging.timeslotResourceRelatedInfo)>({0x10}, 6);
  append(info.hs_dsch_PagingSystemInformation.pcch_InformationList.paging_associatedHspdschInfo, nodes[6], paging);
  info.hs_dsch_PagingSystemInformation.pcch_InformationList.paging_sub_Channel_size = 1;
  info.hs_dsch_PagingSystemInformation.pcch_InformationList.transportBlockSizeList.n = 1;
  info.hs_dsch_PagingSystemInformation.pcch_InformationList.transportBlockSizeList.elem[0] = 3;
  ASSERT_EQ(whole(umts_sib_sib5, b.encode()), 1);

  const umts_sib5_v860_mode_specific_info& m =
      v680(result->sib5).v690NonCriticalExtensions.v770NonCriticalExtensions.v860NonCriticalExtensions.sysInfoType5_v860ext.modeSpecificInfo;
  ASSERT_EQ(m.choice_tag, 2u);
  EXPECT_EQ(m.u.tdd128.hs_dsch_DrxCellfach_info.hs_dsch_DrxCycleFach, 2u);
  const umts_hs_dsch_paging_system_information_tdd128& pg = m.u.tdd128.hs_dsch_CommonSysInfo.hs_dsch_PagingSystemInformation;
  ASSERT_EQ(pg.pich_ForHsdschList.count, 2);
  EXPECT_EQ(pg.pich_ForHsdschList.entries[0].choice_tag, 1u);  // implicit, its option clear: the tag alone
  EXPECT_TRUE(allZero(pg.pich_ForHsdschList.entries[0].u));
  const umts_pich_info_lcr_r4& lp = pg.pich_ForHsdschList.entries[1].u.explicit_;
  EXPECT_EQ(lp.presence_bitmask, 3);
  EXPECT_EQ(lp.pichChannelisationCodeList_LCR_r4.entries[1], 11u);
  EXPECT_EQ(lp.midambleShiftAndBurstType.midambleShift, 9);
  EXPECT_EQ(lp.repetitionPeriodLengthOffset.u.rpp8_2, 5);
  EXPECT_EQ(lp.pagingIndicatorLength, 1u);
  EXPECT_EQ(lp.n_GAP, 2u);
  EXPECT_EQ(lp.n_PCH, 7);
  const umts_paging_associated_hspdsch_info& ai = pg.pcch_InformationList.paging_associatedHspdschInfo.entries[0];
  EXPECT_EQ(ai.hs_pdsch_MidambleConfiguration.midambleConfiguration, 2);
  EXPECT_EQ(octets(ai.timeslotResourceRelatedInfo), (Bytes{0x10, 0, 0, 0}));
  EXPECT_EQ(ai.codeResourceInformation.stop_code, 14u);
  EXPECT_EQ(pg.pcch_InformationList.transportBlockSizeList.entries[0], 3);
  const umts_hs_dsch_common_system_information_tdd128& t = m.u.tdd128.hs_dsch_CommonSysInfo.hs_dsch_CommonSystemInformation;
  EXPECT_EQ(t.ccch_MappingInfo.mac_ehs_QueueId, 6);
  const umts_hs_scch_system_info_tdd128& h = t.hs_scch_SystemInfo_tdd128;
  EXPECT_EQ(h.presence_bitmask, 2);
  ASSERT_EQ(h.hs_SCCH_SetConfiguration.count, 4);
  for (uint8_t i = 0; i < 4; i++) {
    SCOPED_TRACE(i);
    const umts_hs_scch_tdd128& e = h.hs_SCCH_SetConfiguration.entries[i];
    EXPECT_EQ(e.secondChannelisationCode, 15u - i);
    EXPECT_EQ(e.midambleAllocationMode.u.ueSpecificMidamble, i % 2 == 0 ? 10 + i : 0);
    EXPECT_EQ(e.hs_sich_configuration.channelisationCode, 4u + i);
    EXPECT_EQ(e.hs_sich_configuration.midambleAllocationMode.u.ueSpecificMidamble, i < 2 ? i + 1 : 0);
  }
  EXPECT_EQ(h.bler_target, -20);
  EXPECT_EQ(h.power_control_gap, 0);
  EXPECT_EQ(t.hs_pdsch_MidambleConfiguration.midambleAllocationMode.u.ueSpecificMidamble, 7);
  EXPECT_EQ(octets(t.common_H_RNTI_information.entries[0]), (Bytes{0xAA, 0x55, 0, 0}));
  EXPECT_TRUE(allZero(t.common_H_RNTI_information.entries[1]));
  EXPECT_EQ(t.bcchSpecific_H_RNTI.data[1], 0x02);
}

// The alternatives that the conversion treats apart, each on its own decoded value.
TEST(ConvertSib5HspaParts, ModeAlternativesAndTheirTags) {
  // v770: tdd768 with its three lists announced (empty), tdd128 with none: tag and presence.
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

  // v860 tdd128: the common information's presence and the three DRX values.
  SysInfoType5_v860ext_IEs_modeSpecificInfo_tdd128 d128 = {};
  d128.m = 3;
  d128.hs_dsch_CommonSysInfo.m = 1;
  d128.hs_dsch_DrxCellfach_info = {1, 2, 3};
  SysInfoType5_v860ext_IEs_modeSpecificInfo m860 = {};
  m860.t = 2;
  m860.u.tdd128 = &d128;
  umts_sib5_v860_mode_specific_info o860 = {};
  convert_sysinfotype5_v860ext_ies_mode_specific_info(&m860, &o860);
  EXPECT_EQ(o860.choice_tag, 2u);
  EXPECT_EQ(o860.u.tdd128.presence_bitmask, 3);
  EXPECT_EQ(o860.u.tdd128.hs_dsch_CommonSysInfo.presence_bitmask, 1);
  EXPECT_EQ(o860.u.tdd128.hs_dsch_DrxCellfach_info.t_321, 1u);
  EXPECT_EQ(o860.u.tdd128.hs_dsch_DrxCellfach_info.hs_dsch_DrxBurstFach, 3u);

  // Common E-DCH tdd: the inner tag, and nothing else when tdd128 has no value.
  for (uint32_t inner : {1u, 2u, 3u}) {
    CommonEDCHSystemInfo_modeSpecificInfo_tdd tdd = {};
    tdd.t = inner;
    CommonEDCHSystemInfo_modeSpecificInfo m = {};
    m.t = 2;
    m.u.tdd = &tdd;
    umts_common_edch_mode_specific_info out = {};
    convert_common_edch_system_info_mode_specific_info(&m, &out);
    EXPECT_EQ(out.choice_tag, 2u);
    EXPECT_EQ(out.u.tdd.choice_tag, inner);
  }

  // memoryPartitioning implicit: the tag alone.
  HARQ_Info harq = {};
  harq.numberOfProcesses = 8;
  harq.memoryPartitioning.t = 1;
  umts_harq_info h = {};
  convert_harq_system_info(&harq, &h);
  EXPECT_EQ(h.numberOfProcesses, 8);
  EXPECT_EQ(h.memoryPartitioning.choice_tag, 1u);
  EXPECT_TRUE(allZero(h.memoryPartitioning.u));
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
