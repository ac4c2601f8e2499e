// The SIB5 conversion: built in code, encoded by the codec, sent whole and over the BCH.
#include <algorithm>

#include "bch_segmenter.h"
#include "frame_test_util.h"
#include "sib5_builder.h"
#include "umts_sib_convert.h"

using namespace frametest;
using sib5test::Sib5Builder;

namespace {

// The flat levels of the chain, outermost first.
std::vector<uint16_t> levelBits(const umts_sib5_info& f) {
  const auto& l0 = f.v4b0NonCriticalExtensions;
  const auto& l1 = l0.v590NonCriticalExtensions;
  const auto& l2 = l1.v650NonCriticalExtensions;
  const auto& l3 = l2.v680NonCriticalExtensions;
  const auto& l4 = l3.v690NonCriticalExtensions;
  const auto& l5 = l4.v770NonCriticalExtensions;
  const auto& l6 = l5.v860NonCriticalExtensions;
  const auto& l7 = l6.v890NonCriticalExtensions;
  const auto& l8 = l7.v8b0NonCriticalExtensions;
  const auto& l9 = l8.v8d0NonCriticalExtensions;
  return {f.presence_bitmask,  l0.presence_bitmask, l1.presence_bitmask, l2.presence_bitmask,
          l3.presence_bitmask, l4.presence_bitmask, l5.presence_bitmask, l6.presence_bitmask,
          l7.presence_bitmask, l8.presence_bitmask, l9.presence_bitmask};
}

// The record of the builder as it starts.
void checkSample(const umts_sib5_info& f) {
  EXPECT_EQ(f.presence_bitmask, 3);
  EXPECT_EQ(f.sib6indicator, 1);
  EXPECT_EQ(f.pich_PowerOffset, -7);
  EXPECT_EQ(f.modeSpecificInfo.choice_tag, 1u);
  EXPECT_EQ(f.modeSpecificInfo.u.fdd.aich_PowerOffset, -5);
  EXPECT_EQ(f.primaryCCPCH_Info.choice_tag, 1u);
  EXPECT_EQ(f.primaryCCPCH_Info.u.fdd.tx_DiversityIndicator, 1);
  EXPECT_EQ(f.cbs_DRX_Level1Information.ctch_AllocationPeriod, 256);
  EXPECT_EQ(f.cbs_DRX_Level1Information.cbs_FrameOffset, 9);

  ASSERT_EQ(f.prach_SystemInformationList.count, 1);
  const umts_prach_system_information& p = f.prach_SystemInformationList.entries[0];
  EXPECT_EQ(p.presence_bitmask, 0x1F);
  ASSERT_EQ(p.prach_RACH_Info.choice_tag, 1u);
  const umts_prach_rach_info_fdd& r = p.prach_RACH_Info.u.fdd;
  EXPECT_EQ(r.availableSignatures.numbits, 16u);
  EXPECT_EQ(std::vector<uint8_t>(r.availableSignatures.data, r.availableSignatures.data + 4), (std::vector<uint8_t>{0xAB, 0xCD, 0, 0}));
  // Stored after the signatures' copy, which would have run over them.
  EXPECT_EQ(r.availableSF, 2u);
  EXPECT_EQ(r.preambleScramblingCodeWordNumber, 0);
  EXPECT_EQ(r.puncturingLimit, 3u);
  EXPECT_EQ(r.availableSubChannelNumbers.numbits, 12u);
  EXPECT_EQ(r.availableSubChannelNumbers.data[0], 0xFF);
  EXPECT_EQ(r.availableSubChannelNumbers.data[1], 0xF0);
  EXPECT_EQ(p.transportChannelIdentity, 1);

  ASSERT_EQ(p.rach_TransportFormatSet.choice_tag, 2u);
  const umts_common_trans_ch_tfs& tfs = p.rach_TransportFormatSet.u.commonTransChTFS;
  ASSERT_EQ(tfs.tti.choice_tag, 2u);
  ASSERT_EQ(tfs.tti.u.tti20.count, 2);
  for (int i = 0; i < 2; i++) {
    const umts_common_dynamic_tf_info& e = tfs.tti.u.tti20.entries[i];
    EXPECT_EQ(e.rlc_Size.choice_tag, 1u);
    EXPECT_EQ(e.rlc_Size.u.octetModeRLC_SizeInfoType2.choice_tag, 1u);
    EXPECT_EQ(e.rlc_Size.u.octetModeRLC_SizeInfoType2.u.sizeType1, 10 + i);
    ASSERT_EQ(e.numberOfTbSizeList.count, 2);
    EXPECT_EQ(e.numberOfTbSizeList.entries[0].numberOfTransportBlocks.choice_tag, 2u);
    EXPECT_TRUE(allZero(e.numberOfTbSizeList.entries[0].numberOfTransportBlocks.u));
    EXPECT_EQ(e.numberOfTbSizeList.entries[1].numberOfTransportBlocks.choice_tag, 3u);
    EXPECT_EQ(e.numberOfTbSizeList.entries[1].numberOfTransportBlocks.u.small, 5 + i);
    EXPECT_EQ(e.logicalChannelList.choice_tag, 1u);
  }
  EXPECT_EQ(tfs.semistaticTF_Information.channelCodingType.choice_tag, 2u);
  EXPECT_EQ(tfs.semistaticTF_Information.channelCodingType.u.convolutional, 1u);
  EXPECT_EQ(tfs.semistaticTF_Information.rateMatchingAttribute, 150);
  EXPECT_EQ(tfs.semistaticTF_Information.crc_Size, 2u);

  ASSERT_EQ(p.rach_TFCS.choice_tag, 1u);
  ASSERT_EQ(p.rach_TFCS.u.normalTFCI_Signalling.choice_tag, 1u);
  const umts_tfcs_reconf_add& add = p.rach_TFCS.u.normalTFCI_Signalling.u.complete;
  EXPECT_EQ(add.choice_tag, 1u);
  ASSERT_EQ(add.count, 2);
  EXPECT_EQ(add.entries[0].presence_bitmask, 0);
  EXPECT_EQ(add.entries[0].ctfc, 1);
  EXPECT_TRUE(allZero(add.entries[0].powerOffsetInformation));
  EXPECT_EQ(add.entries[1].presence_bitmask, 1);
  EXPECT_EQ(add.entries[1].ctfc, 2);
  const umts_power_offset_information& po = add.entries[1].powerOffsetInformation;
  EXPECT_EQ(po.presence_bitmask, 1);
  EXPECT_EQ(po.powerOffsetPp_m, -5);
  ASSERT_EQ(po.gainFactorInformation.choice_tag, 1u);
  const umts_signalled_gain_factors& g = po.gainFactorInformation.u.signalledGainFactors;
  EXPECT_EQ(g.presence_bitmask, 1);
  EXPECT_EQ(g.modeSpecificInfo.choice_tag, 1u);
  EXPECT_EQ(g.modeSpecificInfo.u.fdd.gainFactorBetaC, 11);
  EXPECT_EQ(g.gainFactorBetaD, 15);
  EXPECT_EQ(g.referenceTFC_ID, 3);

  ASSERT_EQ(p.prach_Partitioning.choice_tag, 1u);
  const umts_prach_partitioning_fdd& part = p.prach_Partitioning.u.fdd;
  ASSERT_EQ(part.count, 3u);
  EXPECT_TRUE(allZero(part.entries[1]));  // keeps its position
  for (int i : {0, 2}) {
    EXPECT_EQ(part.entries[i].presence_bitmask, 1);
    EXPECT_EQ(part.entries[i].accessServiceClass_FDD.availableSignatureStartIndex, i);
    EXPECT_EQ(part.entries[i].accessServiceClass_FDD.availableSignatureEndIndex, 15 - i);
    EXPECT_EQ(part.entries[i].accessServiceClass_FDD.assignedSubChannelNumber.numbits, 4u);
    EXPECT_EQ(part.entries[i].accessServiceClass_FDD.assignedSubChannelNumber.data[0], 0xA0);
  }
  EXPECT_EQ(p.persistenceScalingFactorList.count, 2u);
  EXPECT_EQ(p.persistenceScalingFactorList.entries[1], 7u);
  ASSERT_EQ(p.ac_To_ASC_MappingTable.count, 7u);
  for (uint32_t i = 0; i < 7; i++) EXPECT_EQ(p.ac_To_ASC_MappingTable.entries[i], i);
  ASSERT_EQ(p.modeSpecificInfo.choice_tag, 1u);
  const umts_prach_system_information_fdd& pf = p.modeSpecificInfo.u.fdd;
  EXPECT_EQ(pf.presence_bitmask, 0x1F);
  EXPECT_EQ(pf.primaryCPICH_TX_Power, 33);
  EXPECT_EQ(pf.constantValue, -10);
  EXPECT_EQ(pf.prach_PowerOffset.powerRampStep, 3);
  EXPECT_EQ(pf.prach_PowerOffset.preambleRetransMax, 8);
  EXPECT_EQ(pf.rach_TransmissionParameters.mmax, 2);
  EXPECT_EQ(pf.rach_TransmissionParameters.nb01Max, 10);
  EXPECT_EQ(pf.aich_Info.channelisationCode256, 2);
  EXPECT_EQ(pf.aich_Info.sttd_Indicator, 1);
  EXPECT_EQ(pf.aich_Info.aich_TransmissionTiming, 1u);

  ASSERT_EQ(f.sCCPCH_SystemInformationList.count, 2);
  for (int i = 0; i < 2; i++) {
    SCOPED_TRACE(i);
    const umts_sccpch_system_information& c = f.sCCPCH_SystemInformationList.entries[i];
    // A PICH sets bit 1, as the FACH/PCH list does; bit 2 stays clear.
    EXPECT_EQ(c.presence_bitmask, 2);
    ASSERT_EQ(c.secondaryCCPCH_Info.choice_tag, 1u);
    const umts_secondary_ccpch_info_fdd& sf = c.secondaryCCPCH_Info.u.fdd;
    EXPECT_EQ(sf.presence_bitmask, 2);
    EXPECT_EQ(sf.dummy1, 1u);
    EXPECT_TRUE(allZero(sf.dummy2));
    EXPECT_EQ(sf.secondaryScramblingCode, 4);
    EXPECT_EQ(sf.sttd_Indicator, 1);
    EXPECT_EQ(sf.sf_AndCodeNumber.choice_tag, 7u);
    EXPECT_EQ(sf.sf_AndCodeNumber.u.sf256, 200 + i);
    EXPECT_EQ(sf.pilotSymbolExistence + sf.tfci_Existence, 2);
    EXPECT_EQ(sf.positionFixedOrFlexible, 1u);
    EXPECT_EQ(sf.timingOffset, 149u);
    EXPECT_EQ(c.pich_Info.choice_tag, 1u);
    EXPECT_EQ(c.pich_Info.u.fdd.channelisationCode256, 2 + i);
    EXPECT_EQ(c.pich_Info.u.fdd.pi_CountPerFrame, 1u);
    EXPECT_EQ(c.pich_Info.u.fdd.sttd_Indicator, 1);
  }
  const umts_fach_pch_information_list& fachs = f.sCCPCH_SystemInformationList.entries[0].fach_PCH_InformationList;
  ASSERT_EQ(fachs.count, 1u);
  EXPECT_EQ(fachs.entries[0].transportChannelIdentity, 12);
  EXPECT_EQ(fachs.entries[0].transportFormatSet.choice_tag, 1u);
  const umts_dedicated_trans_ch_tfs& d = fachs.entries[0].transportFormatSet.u.dedicatedTransChTFS;
  EXPECT_EQ(d.tti.choice_tag, 1u);
  ASSERT_EQ(d.tti.u.tti10.count, 1);
  EXPECT_EQ(d.tti.u.tti10.entries[0].rlc_Size.choice_tag, 2u);
  EXPECT_EQ(d.tti.u.tti10.entries[0].rlc_Size.u.octetModeType1.u.sizeType1, 30);
  EXPECT_EQ(d.tti.u.tti10.entries[0].logicalChannelList.choice_tag, 2u);
  EXPECT_EQ(d.semistaticTF_Information.channelCodingType.choice_tag, 3u);
  EXPECT_EQ(d.semistaticTF_Information.channelCodingType.u.convolutional, 0u);
  EXPECT_EQ(d.semistaticTF_Information.rateMatchingAttribute, 230);
  // The PICH-only S-CCPCH: bit 1 set, no FACH.
  EXPECT_EQ(f.sCCPCH_SystemInformationList.entries[1].fach_PCH_InformationList.count, 0u);
  EXPECT_TRUE(allZero(f.v4b0NonCriticalExtensions));
}

class ConvertSib5 : public FrameTest {};

TEST_F(ConvertSib5, SampleShapeWholeAndOverTheBch) {
  Sib5Builder builder;
  std::string out;
  ASSERT_EQ(whole(umts_sib_sib5, builder.encode(), &out), 1);
  EXPECT_EQ(out.rfind("Decoded SysInfoType5\n", 0), 0u);
  EXPECT_EQ(result->presence_bitmask, 1u << umts_sib_sib5);
  checkSample(result->sib5);

  // Over the BCH, beside a SIB7, in segments joined bit by bit: the same record.
  const std::vector<uint8_t> sib7 = fromHex(kSib7Hex);
  uint32_t bits = 0;
  const std::vector<uint8_t> sib5 = builder.encode(&bits);
  const umts_bch_sib in[] = {{7, sib7.data(), 11, 0}, {5, sib5.data(), bits, 0}};
  std::vector<umts_bch_block> blocks(20);
  uint32_t count = 0;
  ASSERT_EQ(umts_bch_segment(in, 2, 0, blocks.data(), 20, &count, nullptr), umts_bch_ok);
  EXPECT_GT(count, 1u);
  std::vector<uint8_t> expected(sizeof(umts_sib5_info));
  std::memcpy(expected.data(), &result->sib5, expected.size());
  std::memset(&result->sib5, 0xEE, sizeof result->sib5);  // the BCH path must rewrite all of it
  result->presence_bitmask = 0;
  for (uint32_t i = 0; i < count; i++)
    EXPECT_EQ(feed(std::vector<uint8_t>(blocks[i].data, blocks[i].data + UMTS_BCH_BLOCK_OCTETS)), 1) << i;
  EXPECT_EQ(result->presence_bitmask, (1u << umts_sib_sib5) | (1u << umts_sib_sib7));
  EXPECT_EQ(std::memcmp(&result->sib5, expected.data(), expected.size()), 0) << count << " blocks";
}

// A chain cut at each level: the bits of the levels above, and nothing of the levels below.
TEST_F(ConvertSib5, ChainCutAtEachLevel) {
  for (int depth = 0; depth <= 11; depth++) {
    SCOPED_TRACE(depth);
    Sib5Builder builder;
    builder.chain(depth);
    builder.v680().sysInfoType5_v680ext.m = 1;
    builder.v680().sysInfoType5_v680ext.hsdpa_CellIndicator = 0;
    builder.v650().sysInfoType5_v650ext.frequencyBandIndicator2 = 2;
    builder.v690().sysInfoType5_v690ext.m = 9;
    builder.v690().sysInfoType5_v690ext.edch_CellIndicator = 0;
    builder.v690().sysInfoType5_v690ext.cBS_DRX_Level1Information_extension = 3;
    TDD_MBSFNTSlotInfo slots[14];
    rtxDListNode slotNodes[14];
    for (uint8_t i = 0; i < 14; i++) {
      slots[i] = {static_cast<uint8_t>(i), static_cast<uint8_t>(100 + i)};
      append(builder.v770().sysInfoType5_v770ext.tDD_MBSFNInformation, slotNodes[i], slots[i]);
    }
    builder.v770().sysInfoType5_v770ext.m = 8;
    builder.v890().sysInfoType5_v890ext.m = 1;
    builder.v890().sysInfoType5_v890ext.secondFrequencyInfo.uarfcn_Nt = 16383;
    builder.v8b0().sysInfoType5_v8b0ext.m = 3;
    builder.v8b0().sysInfoType5_v8b0ext.tresetUsageIndicator = 0;
    builder.v8b0().sysInfoType5_v8b0ext.upPCHpositionInfo = 127;
    builder.s.v4b0NonCriticalExtensions.sysInfoType5_v4b0ext.m = 0x13;
    builder.s.v4b0NonCriticalExtensions.sysInfoType5_v4b0ext.pNBSCH_Allocation_r4.numberOfRepetitionsPerSFNPeriod = 5;
    builder.s.v4b0NonCriticalExtensions.sysInfoType5_v4b0ext.openLoopPowerControl_IPDL_TDD = {2, 1};
    builder.s.v4b0NonCriticalExtensions.sysInfoType5_v4b0ext.frequencyBandIndicator = 7;
    ASSERT_EQ(whole(umts_sib_sib5, builder.encode()), 1);
    const umts_sib5_info& f = result->sib5;
    std::vector<uint16_t> expected(11, 0);
    expected[0] = static_cast<uint16_t>(depth >= 1 ? 7 : 3);
    for (int level = 1; level <= 4; level++)
      if (depth >= level) expected[level] = static_cast<uint16_t>(1 | (depth > level ? 2 : 0));
    for (int level = 5; level <= 10; level++)
      if (depth > level) expected[level] = 1;
    EXPECT_EQ(levelBits(f), expected);
    const auto& v4 = f.v4b0NonCriticalExtensions.sysInfoType5_v4b0ext;
    if (depth >= 1) {
      EXPECT_EQ(v4.presence_bitmask, 0x13);
      EXPECT_EQ(v4.pNBSCH_Allocation_r4.numberOfRepetitionsPerSFNPeriod, 5u);
      EXPECT_EQ(v4.openLoopPowerControl_IPDL_TDD.ipdl_alpha, 2);
      EXPECT_EQ(v4.frequencyBandIndicator, 7u);
    } else {
      EXPECT_TRUE(allZero(f.v4b0NonCriticalExtensions));
    }
    const auto& l5 = f.v4b0NonCriticalExtensions.v590NonCriticalExtensions.v650NonCriticalExtensions.v680NonCriticalExtensions
                         .v690NonCriticalExtensions;
    // v690 is filled when its level is there, whether v770 follows or not.
    EXPECT_EQ(l5.sysInfoType5_v690ext.presence_bitmask, depth >= 5 ? 9 : 0);
    EXPECT_EQ(l5.sysInfoType5_v690ext.cBS_DRX_Level1Information_extension, depth >= 5 ? 3u : 0u);
    // The MBSFN time slots at their bound, packed pairs.
    const umts_tdd_mbsfn_information& mbsfn = l5.v770NonCriticalExtensions.sysInfoType5_v770ext.tDD_MBSFNInformation;
    EXPECT_EQ(mbsfn.count, depth >= 6 ? 14 : 0);
    EXPECT_EQ(mbsfn.entries[13].cellParametersID, depth >= 6 ? 113 : 0);
    static_assert(sizeof(umts_tdd_mbsfn_information) == 1 + 2 * 14, "packed pairs");
    const auto& l8 = l5.v770NonCriticalExtensions.v860NonCriticalExtensions.v890NonCriticalExtensions;
    EXPECT_EQ(l8.sysInfoType5_v890ext.secondFrequencyInfo.uarfcn_Nt, depth >= 8 ? 16383 : 0);
    EXPECT_EQ(l8.v8b0NonCriticalExtensions.sysInfoType5_v8b0ext.upPCHpositionInfo, depth >= 9 ? 127 : 0);
  }
}

TEST_F(ConvertSib5, FailedDecodingKeepsThePreviousRecordAndASecondLeavesNothingOfTheFirst) {
  // A tdd SIB5 without P-CCPCH or CBS, converted into a zeroed record: what a second
  // conversion must leave whatever came before.
  Sib5Builder second;
  SysInfoType5_modeSpecificInfo_tdd tdd{};
  tdd.openLoopPowerControl_TDD = {1, 30, 4, -35, -10, 0};
  second.s.m = 0;
  second.s.modeSpecificInfo.t = 2;
  second.s.modeSpecificInfo.u.tdd = &tdd;
  const std::vector<uint8_t> secondBytes = second.encode();
  ASSERT_EQ(whole(umts_sib_sib5, secondBytes), 1);
  const umts_sib5_info& f = result->sib5;
  EXPECT_EQ(f.presence_bitmask, 0);
  EXPECT_TRUE(allZero(f.primaryCCPCH_Info));
  EXPECT_EQ(f.modeSpecificInfo.choice_tag, 2u);
  const umts_open_loop_power_control_tdd& olpc = f.modeSpecificInfo.u.tdd.openLoopPowerControl_TDD;
  EXPECT_EQ(olpc.presence_bitmask, 1);
  EXPECT_EQ(olpc.primaryCCPCH_TX_Power, 30);
  EXPECT_EQ(olpc.alpha, 4);
  EXPECT_EQ(olpc.prach_ConstantValue, -35);
  EXPECT_EQ(olpc.dpch_ConstantValue, -10);
  EXPECT_EQ(olpc.pusch_ConstantValue, 0);
  std::vector<uint8_t> alone(sizeof(umts_sib5_info));
  std::memcpy(alone.data(), &f, alone.size());

  Sib5Builder first;
  first.chain(11);
  for (unsigned i = 1; i < 16; i++) first.addPrach(i);
  ASSERT_EQ(whole(umts_sib_sib5, first.encode()), 1);
  std::vector<uint8_t> kept(sizeof(umts_sib5_info));
  std::memcpy(kept.data(), &f, kept.size());
  std::string out;
  EXPECT_EQ(whole(umts_sib_sib5, std::vector<uint8_t>(40, 0xFF), &out), 0);
  EXPECT_NE(out.find("umts_convert_sib5:asn decoding failed"), std::string::npos);
  EXPECT_EQ(std::memcmp(&f, kept.data(), kept.size()), 0);

  ASSERT_EQ(whole(umts_sib_sib5, secondBytes), 1);
  EXPECT_EQ(std::memcmp(&f, alone.data(), alone.size()), 0);
}

// A set of umts_sib_set_alloc is cleared from what the conversion before wrote: the record
// reads exactly as in the caller's own memory, whatever SIB5 came before, and the
// neighbouring records stay as they were.
TEST_F(ConvertSib5, LibraryAllocatedSetReadsTheSame) {
  Sib5Builder builder;
  const std::vector<uint8_t> bytes = builder.encode();
  ASSERT_EQ(whole(umts_sib_sib5, bytes), 1);
  umts_sib_set* own = umts_sib_set_alloc();
  ASSERT_NE(own, nullptr);
  EXPECT_TRUE(allZero(*own));
  Sib5Builder longer;
  for (unsigned i = 1; i < 16; i++) longer.addPrach(i);
  for (unsigned i = 2; i < 16; i++) longer.addSccpch(i, i == 2 ? 8 : 0);
  const std::vector<uint8_t> longBytes = longer.encode();
  for (int round = 0; round < 2; round++) {
    ASSERT_EQ(umts_sib_msg_decoder(umts_sib_sib5, longBytes.data(), own, static_cast<uint32_t>(longBytes.size())), 1);
    const uint8_t ret = umts_sib_msg_decoder(umts_sib_sib5, bytes.data(), own, static_cast<uint32_t>(bytes.size()));
    ASSERT_EQ(ret, 1);
    EXPECT_EQ(std::memcmp(&own->sib5, &result->sib5, sizeof own->sib5), 0);
    const uint8_t* sib3 = reinterpret_cast<const uint8_t*>(&own->sib3);
    const uint8_t* sib7 = reinterpret_cast<const uint8_t*>(&own->sib7);
    EXPECT_EQ(std::count(sib3, sib3 + sizeof own->sib3, 0), static_cast<long>(sizeof own->sib3));
    EXPECT_EQ(std::count(sib7, sib7 + sizeof own->sib7, 0), static_cast<long>(sizeof own->sib7));
  }
  umts_sib_set_free(own);
  umts_sib_set_free(nullptr);
}

// Sixteen PRACHs and sixteen S-CCPCHs fill their arrays exactly.
TEST_F(ConvertSib5, ListsAtTheirBound) {
  Sib5Builder builder;
  for (unsigned i = 1; i < 16; i++) builder.addPrach(i);
  for (unsigned i = 2; i < 16; i++) builder.addSccpch(i, i == 2 ? 8 : 0);
  ASSERT_EQ(whole(umts_sib_sib5, builder.encode()), 1);
  const umts_sib5_info& f = result->sib5;
  ASSERT_EQ(f.prach_SystemInformationList.count, 16);
  EXPECT_EQ(f.prach_SystemInformationList.entries[15].transportChannelIdentity, 16);
  EXPECT_EQ(f.prach_SystemInformationList.entries[15].prach_RACH_Info.u.fdd.preambleScramblingCodeWordNumber, 15);
  ASSERT_EQ(f.sCCPCH_SystemInformationList.count, 16);
  EXPECT_EQ(f.sCCPCH_SystemInformationList.entries[15].secondaryCCPCH_Info.u.fdd.sf_AndCodeNumber.u.sf256, 215);
  const umts_fach_pch_information_list& fachs = f.sCCPCH_SystemInformationList.entries[2].fach_PCH_InformationList;
  ASSERT_EQ(fachs.count, 8u);
  EXPECT_EQ(fachs.entries[7].transportChannelIdentity, 19);
  EXPECT_EQ(fachs.entries[7].ctch_Indicator, 1);
}

// ---- Transport formats and TFCS, converted from values built in code ---------------------

struct TfcsStore {
  TFCS_ReconfAdd_ctfcSize_ctfc12Bit_element e12[2]{};
  TFCS_ReconfAdd_ctfcSize_ctfc16Bit_element e16[1]{};
  TFCS_ReconfAdd_ctfcSize_ctfc24Bit_element e24[1]{};
  rtxDList l12{}, l16{}, l24{};
  rtxDListNode nodes[600]{};
  unsigned used = 0;
  template <typename T>
  void add(rtxDList& list, T& value) {
    append(list, nodes[used++], value);
  }
};

// Every CTFC is kept in one octet, whatever its size.
TEST(ConvertTfcs, CtfcKeepsItsLowOctet) {
  auto store = std::make_unique<TfcsStore>();
  store->e12[0].ctfc12 = 0x123;
  store->e12[1].ctfc12 = 4095;
  store->e16[0].ctfc16 = 0xBEEF;
  store->e24[0].ctfc24 = 66051;
  store->add(store->l12, store->e12[0]);
  store->add(store->l12, store->e12[1]);
  store->add(store->l16, store->e16[0]);
  store->add(store->l24, store->e24[0]);
  auto flat = std::make_unique<umts_tfcs_reconf_add>();
  const struct {
    uint32_t tag;
    void* list;
    std::vector<uint8_t> ctfcs;
  } cases[] = {{5, &store->l12, {0x23, 0xFF}}, {6, &store->l16, {0xEF}}, {7, &store->l24, {3}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.tag);
    TFCS_ReconfAdd add{};
    add.ctfcSize.t = c.tag;
    add.ctfcSize.u.ctfc12Bit = static_cast<TFCS_ReconfAdd_ctfcSize_ctfc12Bit*>(c.list);
    *flat = umts_tfcs_reconf_add{};
    convert_tfcs_reconf_add(&add, flat.get());
    EXPECT_EQ(flat->choice_tag, c.tag);
    ASSERT_EQ(flat->count, c.ctfcs.size());
    for (size_t i = 0; i < c.ctfcs.size(); i++) EXPECT_EQ(flat->entries[i].ctfc, c.ctfcs[i]);
  }
}

// complete and addition differ only in the tag; removal and replacement keep their TFCIs;
// an unknown tag is kept alone.
TEST(ConvertTfcs, ExplicitConfigurations) {
  auto store = std::make_unique<TfcsStore>();
  store->e12[0].ctfc12 = 7;
  store->add(store->l12, store->e12[0]);
  TFCS_ReconfAdd add{};
  add.ctfcSize.t = 5;
  add.ctfcSize.u.ctfc12Bit = &store->l12;
  TFCS_Removal removals[3] = {{1}, {512}, {1023}};
  TFCS_RemovalList removal{};
  for (auto& r : removals) store->add(removal, r);
  ExplicitTFCS_Configuration_replacement replacement{};
  replacement.tfcsAdd = add;
  for (auto& r : removals) store->add(replacement.tfcsRemoval, r);

  auto complete = std::make_unique<umts_explicit_tfcs_configuration>();
  auto addition = std::make_unique<umts_explicit_tfcs_configuration>();
  ExplicitTFCS_Configuration src{};
  src.t = 1;
  src.u.complete = &add;
  convert_explicit_tfcs_configuration(&src, complete.get());
  src.t = 2;
  convert_explicit_tfcs_configuration(&src, addition.get());
  EXPECT_EQ(complete->choice_tag, 1u);
  EXPECT_EQ(addition->choice_tag, 2u);
  EXPECT_EQ(std::memcmp(&complete->u, &addition->u, sizeof complete->u), 0);
  EXPECT_EQ(complete->u.complete.entries[0].ctfc, 7);

  auto flat = std::make_unique<umts_explicit_tfcs_configuration>();
  src.t = 3;
  src.u.removal = &removal;
  convert_explicit_tfcs_configuration(&src, flat.get());
  ASSERT_EQ(flat->u.removal.count, 3);
  EXPECT_EQ(flat->u.removal.tfci[2], 1023);
  *flat = umts_explicit_tfcs_configuration{};
  src.t = 4;
  src.u.replacement = &replacement;
  convert_explicit_tfcs_configuration(&src, flat.get());
  EXPECT_EQ(flat->u.replacement.tfcsRemoval.count, 3);
  EXPECT_EQ(flat->u.replacement.tfcsRemoval.tfci[1], 512);
  EXPECT_EQ(flat->u.replacement.tfcsAdd.choice_tag, 5u);
  EXPECT_EQ(flat->u.replacement.tfcsAdd.entries[0].ctfc, 7);
  *flat = umts_explicit_tfcs_configuration{};
  src.t = 9;
  convert_explicit_tfcs_configuration(&src, flat.get());
  EXPECT_EQ(flat->choice_tag, 9u);
  EXPECT_TRUE(allZero(flat->u));
}

// tfci-Range: 255 ranges keep their count; 256 read 0 in the octet, with all 256 written.
TEST(ConvertTfcs, TfciRangeCountInOneOctet) {
  auto store = std::make_unique<TfcsStore>();
  std::vector<TFCI_Range> ranges(256);
  for (unsigned i = 0; i < 256; i++) {
    ranges[i].maxTFCIField2Value = static_cast<uint16_t>(i + 1);
    ranges[i].tfcs_InfoForDSCH.t = 7;
    ranges[i].tfcs_InfoForDSCH.u.ctfc24bit = 66051 + i;
  }
  auto flat = std::make_unique<umts_tfci_range_list>();
  for (unsigned n : {255u, 256u}) {
    SCOPED_TRACE(n);
    TFCI_RangeList list{};
    store->used = 0;
    for (unsigned i = 0; i < n; i++) store->add(list, ranges[i]);
    *flat = umts_tfci_range_list{};
    convert_tfci_rangelist(&list, flat.get());
    EXPECT_EQ(flat->count, n == 256 ? 0 : 255);
    EXPECT_EQ(flat->entries[n - 1].maxTFCIField2Value, n);
    EXPECT_EQ(flat->entries[n - 1].tfcs_InfoForDSCH.u.ctfc24bit, 66051 + n - 1);  // full width here
  }
}

// The dynamic list of a common set ends with its last element in entry 0 and its full count;
// a commonTDD-Choice tag keeps its low 16 bits. The dedicated twin is a proper list.
TEST(ConvertTransportFormat, DynamicListsAndTheCommonTddTag) {
  CommonDynamicTF_Info_DynamicTTI elements[3]{};
  OctetModeRLC_SizeInfoType1 sizes[3]{};
  NumberOfTbSizeAndTTIList_element tti[3]{};
  rtxDListNode nodes[6]{};
  CommonDynamicTF_InfoList_DynamicTTI list{};
  NumberOfTbSizeAndTTIList_element firstsSecond{};
  firstsSecond.numberOfTransportBlocks.t = 3;
  firstsSecond.numberOfTransportBlocks.u.small = 17;
  rtxDListNode extra{};
  for (int i = 0; i < 3; i++) {
    sizes[i].t = 1;
    sizes[i].u.sizeType1 = static_cast<uint8_t>(40 + i);
    elements[i].commonTDD_Choice.t = 2;
    elements[i].commonTDD_Choice.u.octetModeRLC_SizeInfoType1 = &sizes[i];
    tti[i].numberOfTransportBlocks.t = 4;
    tti[i].numberOfTransportBlocks.u.large = static_cast<uint16_t>(500 + i);
    tti[i].transmissionTimeInterval = static_cast<uint32_t>(i);
    append(elements[i].numberOfTbSizeAndTTIList, nodes[3 + i], tti[i]);
    if (i == 0) append(elements[i].numberOfTbSizeAndTTIList, extra, firstsSecond);
    elements[i].logicalChannelList.t = 1;
    append(list, nodes[i], elements[i]);
  }
  auto flat = std::make_unique<umts_common_dynamic_tf_info_list_dynamic_tti>();
  convert_common_dynamic_tf_info_list_dynamic_tti(&list, flat.get());
  EXPECT_EQ(flat->count, 3);
  const umts_common_dynamic_tf_info_dynamic_tti& e = flat->entries[0];
  EXPECT_EQ(e.commonTDD_Choice.choice_tag, 2);
  EXPECT_EQ(e.commonTDD_Choice.u.octetModeRLC_SizeInfoType1.u.sizeType1, 42);
  ASSERT_EQ(e.numberOfTbSizeAndTTIList.count, 1);
  EXPECT_EQ(e.numberOfTbSizeAndTTIList.entries[0].numberOfTransportBlocks.u.large, 502);
  EXPECT_EQ(e.numberOfTbSizeAndTTIList.entries[0].transmissionTimeInterval, 2u);
  // Written over the first element: its second block count stays beyond the last's count.
  EXPECT_EQ(e.numberOfTbSizeAndTTIList.entries[1].numberOfTransportBlocks.u.small, 17);
  EXPECT_TRUE(allZero(flat->entries[1]));
  EXPECT_TRUE(allZero(flat->entries[2]));

  CommonDynamicTF_Info_DynamicTTI_commonTDD_Choice wide{};
  wide.t = 0x00030002u;
  umts_common_tdd_choice tag{};
  convert_commmon_dynamic_tf_ino_common_tdd_choice(&wide, &tag);
  EXPECT_EQ(tag.choice_tag, 2);
  EXPECT_TRUE(allZero(tag.u));  // the 32-bit tag was not 2: nothing converted

  DedicatedDynamicTF_Info_DynamicTTI dedicated[3]{};
  BitModeRLC_SizeInfo bits[3]{};
  BitModeRLC_SizeInfo_sizeType2 parts{1, 9, 3};
  DedicatedDynamicTF_InfoList_DynamicTTI dlist{};
  rtxDListNode dnodes[3]{};
  for (int i = 0; i < 3; i++) {
    bits[i].t = i == 1 ? 2 : 1;
    if (i == 1) bits[i].u.sizeType2 = &parts;
    else bits[i].u.sizeType1 = static_cast<uint8_t>(100 + i);
    dedicated[i].rlc_Size.t = 1;
    dedicated[i].rlc_Size.u.bitMode = &bits[i];
    append(dlist, dnodes[i], dedicated[i]);
  }
  auto dflat = std::make_unique<umts_dedicated_dynamic_tf_info_list_dynamic_tti>();
  convert_dedicated_dynamic_tf_info_list_dynamic_tti(&dlist, dflat.get());
  ASSERT_EQ(dflat->count, 3);
  EXPECT_EQ(dflat->entries[0].rlc_Size.u.bitMode.u.sizeType1, 100);
  EXPECT_EQ(dflat->entries[1].rlc_Size.u.bitMode.u.sizeType2.presence_bitmask, 1);
  EXPECT_EQ(dflat->entries[1].rlc_Size.u.bitMode.u.sizeType2.part1, 9);
  EXPECT_EQ(dflat->entries[1].rlc_Size.u.bitMode.u.sizeType2.part2, 3);
  EXPECT_EQ(dflat->entries[2].rlc_Size.u.bitMode.u.sizeType1, 102);
}

// ---- S-CCPCH, PICH, PRACH records with TDD alternatives ------------------------------------

TEST(ConvertSccpch, TimeslotsMidamblesAndPich) {
  // Repetition periods: 1 the tag alone, 2 its offset in the first octet, 4..64 both.
  RepetitionPeriodLengthAndOffset_repetitionPeriod2 p2{5};
  RepetitionPeriodLengthAndOffset_repetitionPeriod4 p4{3, 2};
  RepetitionPeriodLengthAndOffset rep{};
  umts_repetition_period_length_and_offset flat{};
  rep.t = 1;
  convert_repetition_period_length_and_offset(&rep, &flat);
  EXPECT_EQ(flat.choice_tag, 1u);
  EXPECT_TRUE(allZero(flat.u));
  rep.t = 2;
  rep.u.repetitionPeriod2 = &p2;
  flat = {};
  convert_repetition_period_length_and_offset(&rep, &flat);
  EXPECT_EQ(flat.u.repetitionPeriod4.length, 5);  // the octet where the others hold the length
  rep.t = 3;
  rep.u.repetitionPeriod4 = &p4;
  flat = {};
  convert_repetition_period_length_and_offset(&rep, &flat);
  EXPECT_EQ(flat.u.repetitionPeriod4.length, 3);
  EXPECT_EQ(flat.u.repetitionPeriod4.offset, 2);

  // Midamble: the shift is copied only for ueSpecificMidamble (3 in type1/2, 2 in type3).
  MidambleShiftAndBurstType_burstType_type1 t1{};
  MidambleShiftAndBurstType_burstType_type1_midambleAllocationMode_ueSpecificMidamble shift1{9};
  t1.midambleConfigurationBurstType1and3 = 2;
  t1.midambleAllocationMode.u.ueSpecificMidamble = &shift1;
  MidambleShiftAndBurstType_burstType_type3 t3{};
  MidambleShiftAndBurstType_burstType_type3_midambleAllocationMode_ueSpecificMidamble shift3{11};
  t3.midambleAllocationMode.u.ueSpecificMidamble = &shift3;
  const struct {
    uint32_t burst, mode;
    uint8_t shift;
  } cases[] = {{1, 1, 0}, {1, 3, 9}, {1, 2, 0}, {3, 2, 11}, {3, 1, 0}};
  for (const auto& c : cases) {
    MidambleShiftAndBurstType m{};
    m.burstType.t = c.burst;
    if (c.burst == 1) {
      t1.midambleAllocationMode.t = c.mode;
      m.burstType.u.type1 = &t1;
    } else {
      t3.midambleAllocationMode.t = c.mode;
      m.burstType.u.type3 = &t3;
    }
    umts_midamble_shift_and_burst_type out{};
    convert_midamble_shift_and_burst_type(&m, &out);
    EXPECT_EQ(out.choice_tag, c.burst);
    EXPECT_EQ(out.u.type1.midambleAllocationMode, c.mode);
    EXPECT_EQ(out.u.type1.midambleShift, c.shift) << c.burst << "/" << c.mode;
  }

  // PICH tdd: optional members, then paging indicator length, gap and PCH count.
  PICH_Info_tdd ptdd{};
  ptdd.m = 5;
  ptdd.channelisationCode = 12;
  ptdd.timeslot = 9;  // bit 1 clear: not copied
  ptdd.midambleShiftAndBurstType.burstType.t = 1;
  ptdd.midambleShiftAndBurstType.burstType.u.type1 = &t1;
  ptdd.repetitionPeriodLengthOffset.t = 9;
  ptdd.repetitionPeriodLengthOffset.u.rpp64_4 = 60;
  ptdd.pagingIndicatorLength = 2;
  ptdd.n_GAP = 1;
  ptdd.n_PCH = 8;
  PICH_Info pich{};
  pich.t = 2;
  pich.u.tdd = &ptdd;
  umts_pich_info pflat{};
  convert_pich_info(&pich, &pflat);
  EXPECT_EQ(pflat.u.tdd.presence_bitmask, 5);
  EXPECT_EQ(pflat.u.tdd.channelisationCode, 12u);
  EXPECT_EQ(pflat.u.tdd.timeslot, 0);
  EXPECT_EQ(pflat.u.tdd.repetitionPeriodLengthOffset.choice_tag, 9u);
  EXPECT_EQ(pflat.u.tdd.repetitionPeriodLengthOffset.u.rpp64_4, 60);
  EXPECT_EQ(pflat.u.tdd.pagingIndicatorLength + pflat.u.tdd.n_GAP, 3u);
  EXPECT_EQ(pflat.u.tdd.n_PCH, 8);

  // timingOffset: the decoder's octet widened, no sign extension.
  SecondaryCCPCH_Info_modeSpecificInfo_fdd sfdd{};
  sfdd.timingOffset = 255;
  sfdd.sf_AndCodeNumber.t = 9;  // unknown: the tag alone
  sfdd.sf_AndCodeNumber.u.sf4 = 3;
  umts_secondary_ccpch_info_fdd sflat{};
  convert_secondary_ccpch_info_modespecific_info_fdd(&sfdd, &sflat);
  EXPECT_EQ(sflat.timingOffset, 255u);
  EXPECT_EQ(sflat.sf_AndCodeNumber.choice_tag, 9u);
  EXPECT_EQ(sflat.sf_AndCodeNumber.u.sf4, 0);
}

TEST(ConvertPrach, TddAlternativesAndBitStrings) {
  // The tdd alternative of the PRACH's modeSpecificInfo is its tag alone.
  PRACH_SystemInformation_modeSpecificInfo mode{};
  mode.t = 2;
  umts_prach_system_information_mode_specific_info mflat{};
  convert_prach_system_information_modespecific_info(&mode, &mflat);
  EXPECT_EQ(mflat.choice_tag, 2u);
  EXPECT_TRUE(allZero(mflat.u));

  // A bit string of 0 bits writes its count and no octet.
  AvailableSignatures none{};
  none.data[0] = 0xFF;
  umts_bit_string32 bits{};
  convert_available_signatures(&none, &bits);
  EXPECT_TRUE(allZero(bits));

  // TDD access classes: channelisationCodeIndices is its count and one octet; subchannel
  // sizes 1 (tag alone) to 8.
  AccessServiceClass_TDD_subchannelSize_size4 s4{1, bitString<AccessServiceClass_TDD_subchannelSize_size4_subchannels>({0xC0}, 2)};
  ASCSetting_TDD settings[2]{};
  settings[0].m = 1;
  settings[0].accessServiceClass_TDD.m = 1;
  settings[0].accessServiceClass_TDD.channelisationCodeIndices = bitString<AccessServiceClass_TDD_channelisationCodeIndices>({0xA5}, 8);
  settings[0].accessServiceClass_TDD.subchannelSize.t = 1;
  settings[1].m = 1;
  settings[1].accessServiceClass_TDD.subchannelSize.t = 3;
  settings[1].accessServiceClass_TDD.subchannelSize.u.size4 = &s4;
  PRACH_Partitioning_tdd list{};
  rtxDListNode nodes[2]{};
  append(list, nodes[0], settings[0]);
  append(list, nodes[1], settings[1]);
  PRACH_Partitioning part{};
  part.t = 2;
  part.u.tdd = &list;
  auto flat = std::make_unique<umts_prach_partitioning>();
  convert_prach_partitioning(&part, flat.get());
  ASSERT_EQ(flat->u.tdd.count, 2u);
  const umts_access_service_class_tdd& a = flat->u.tdd.entries[0].accessServiceClass_TDD;
  EXPECT_EQ(a.presence_bitmask, 1);
  EXPECT_EQ(a.channelisationCodeIndices.numbits, 8u);
  EXPECT_EQ(a.channelisationCodeIndices.data[0], 0xA5);
  EXPECT_EQ(a.subchannelSize.choice_tag, 1u);
  EXPECT_TRUE(allZero(a.subchannelSize.u));
  const umts_access_service_class_tdd& b = flat->u.tdd.entries[1].accessServiceClass_TDD;
  EXPECT_EQ(b.presence_bitmask, 0);
  EXPECT_EQ(b.subchannelSize.u.size4.presence_bitmask, 1);
  EXPECT_EQ(b.subchannelSize.u.size4.subchannels.numbits, 2u);
  EXPECT_EQ(b.subchannelSize.u.size4.subchannels.data[0], 0xC0);

  // The TDD RACH: timeslot, code list, midamble.
  TDD_PRACH_CCodeList_sf16 sf16{3, {1, 4, 7}};
  PRACH_RACH_Info_modeSpecificInfo_tdd rtdd{};
  rtdd.timeslot = 6;
  rtdd.channelisationCodeList.t = 2;
  rtdd.channelisationCodeList.u.sf16 = &sf16;
  rtdd.prach_Midamble = 1;
  PRACH_RACH_Info rach{};
  rach.modeSpecificInfo.t = 2;
  rach.modeSpecificInfo.u.tdd = &rtdd;
  umts_prach_rach_info rflat{};
  convert_prach_rach_info(&rach, &rflat);
  EXPECT_EQ(rflat.u.tdd.timeslot, 6);
  EXPECT_EQ(rflat.u.tdd.channelisationCodeList.choice_tag, 2u);
  EXPECT_EQ(rflat.u.tdd.channelisationCodeList.u.sf16.count, 3u);
  EXPECT_EQ(rflat.u.tdd.channelisationCodeList.u.sf16.codes[2], 7u);
  EXPECT_EQ(rflat.u.tdd.prach_Midamble, 1u);
}

// An unknown modeSpecificInfo tag of SIB5 is kept with an all-zero union; no message.
TEST(ConvertSib5Top, UnknownModeTagIsKeptAlone) {
  SysInfoType5_modeSpecificInfo_fdd fdd{-3};
  SysInfoType5_modeSpecificInfo mode{};
  mode.t = 3;
  mode.u.fdd = &fdd;
  static umts_sib5_mode_specific_info flat;  // its TDD lists make it large: not on the stack
  std::memset(static_cast<void*>(&flat), 0, sizeof flat);
  const std::string out = captureStdout([&] { convert_sib_type_5_mode_specific_info(&mode, &flat); });
  EXPECT_EQ(flat.choice_tag, 3u);
  EXPECT_TRUE(allZero(flat.u));
  EXPECT_EQ(out, "");
}

TEST(ConvertPrimaryCcpch, TddSyncCases) {
  PrimaryCCPCH_Info_tdd tdd{};
  PrimaryCCPCH_Info_tdd_syncCase_syncCase2 sync2{130};
  tdd.m = 3;
  tdd.syncCase.t = 2;
  tdd.syncCase.u.syncCase2 = &sync2;
  tdd.cellParametersID = 127;
  tdd.sctd_Indicator = 1;
  PrimaryCCPCH_Info src{};
  src.t = 2;
  src.u.tdd = &tdd;
  umts_primary_ccpch_info flat{};
  convert_primary_ccpch_info(&src, &flat);
  EXPECT_EQ(flat.choice_tag, 2u);
  EXPECT_EQ(flat.u.tdd.presence_bitmask, 3);
  EXPECT_EQ(flat.u.tdd.syncCase.choice_tag, 2u);
  EXPECT_EQ(flat.u.tdd.syncCase.u.timeslotSync2, 130);
  EXPECT_EQ(flat.u.tdd.cellParametersID, 127);
  EXPECT_EQ(flat.u.tdd.sctd_Indicator, 1);
  src.t = 5;  // unknown: the tag with an empty union
  flat = {};
  convert_primary_ccpch_info(&src, &flat);
  EXPECT_EQ(flat.choice_tag, 5u);
  EXPECT_TRUE(allZero(flat.u));
}

}  // namespace
