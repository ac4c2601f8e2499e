// A SysInfoType5 built in code, for the SIB5 conversion tests.
#ifndef UMTS_TEST_SIB5_BUILDER_H
#define UMTS_TEST_SIB5_BUILDER_H

#include <cstring>
#include <vector>

#include "frame_test_util.h"

namespace sib5test {

using namespace frametest;

// A SysInfoType5 built in code, with the storage of its lists and alternatives. Starts as the
// sample cell's shape: fdd, P-CCPCH with TX diversity, one PRACH (common TFS tti20, TFCS,
// partitioning, persistence, AC-to-ASC), two S-CCPCHs (PCH + FACH with a PICH; PICH alone),
// CBS DRX, no extensions.
struct Sib5Builder {
  SysInfoType5 s;
  SysInfoType5_modeSpecificInfo_fdd fdd;
  PrimaryCCPCH_Info_fdd pccpch;
  PRACH_SystemInformation prach[16];
  PRACH_RACH_Info_modeSpecificInfo_fdd rach[16];
  PRACH_SystemInformation_modeSpecificInfo_fdd prachFdd;
  CommonTransChTFS commonTfs;
  CommonDynamicTF_InfoList commonList;
  CommonDynamicTF_Info commonInfo[2];
  CommonDynamicTF_Info_rlc_Size_fdd rlcFdd[2];
  NumberOfTransportBlocks blocks[8];
  ExplicitTFCS_Configuration explicitTfcs;
  TFCS_ReconfAdd reconfAdd;
  TFCS_ReconfAdd_ctfcSize_ctfc2Bit ctfc2;
  TFCS_ReconfAdd_ctfcSize_ctfc2Bit_element ctfc2Entries[4];
  SignalledGainFactors gains;
  SignalledGainFactors_modeSpecificInfo_fdd gainsFdd;
  PRACH_Partitioning_fdd partitions;
  ASCSetting_FDD asc[8];
  SCCPCH_SystemInformation sccpch[16];
  SecondaryCCPCH_Info_modeSpecificInfo_fdd sccpchFdd[16];
  PICH_Info_fdd pich[16];
  FACH_PCH_Information fach[8];
  DedicatedTransChTFS dedicatedTfs[8];
  DedicatedDynamicTF_InfoList dedicatedList[8];
  DedicatedDynamicTF_Info dedicatedInfo[8];
  OctetModeRLC_SizeInfoType1 octet1[8];
  rtxDListNode nodes[256];
  unsigned usedNodes = 0;

  Sib5Builder() {
    std::memset(static_cast<void*>(this), 0, sizeof *this);
    s.sib6indicator = 1;
    s.pich_PowerOffset = -7;
    s.modeSpecificInfo.t = 1;
    s.modeSpecificInfo.u.fdd = &fdd;
    fdd.aich_PowerOffset = -5;
    s.m |= 1u;
    s.primaryCCPCH_Info.t = 1;
    s.primaryCCPCH_Info.u.fdd = &pccpch;
    pccpch.tx_DiversityIndicator = 1;
    addPrach(0);
    PRACH_SystemInformation& p = prach[0];
    p.m = 0x1Fu;
    p.rach_TransportFormatSet.t = 2;
    p.rach_TransportFormatSet.u.commonTransChTFS = &commonTfs;
    commonTfs.tti.t = 2;
    commonTfs.tti.u.tti20 = &commonList;
    for (int i = 0; i < 2; i++) {
      commonInfo[i].rlc_Size.t = 1;
      commonInfo[i].rlc_Size.u.fdd = &rlcFdd[i];
      rlcFdd[i].octetModeRLC_SizeInfoType2.t = 1;
      rlcFdd[i].octetModeRLC_SizeInfoType2.u.sizeType1 = static_cast<uint8_t>(10 + i);
      blocks[2 * i].t = 2;                                 // one
      blocks[2 * i + 1].t = 3;                             // small
      blocks[2 * i + 1].u.small = static_cast<uint8_t>(5 + i);
      add(commonInfo[i].numberOfTbSizeList, blocks[2 * i]);
      add(commonInfo[i].numberOfTbSizeList, blocks[2 * i + 1]);
      commonInfo[i].logicalChannelList.t = 1;
      add(commonList, commonInfo[i]);
    }
    commonTfs.semistaticTF_Information.channelCodingType.t = 2;
    commonTfs.semistaticTF_Information.channelCodingType.u.convolutional = 1;
    commonTfs.semistaticTF_Information.rateMatchingAttribute = 150;
    commonTfs.semistaticTF_Information.crc_Size = 2;
    p.rach_TFCS.t = 1;
    p.rach_TFCS.u.normalTFCI_Signalling = &explicitTfcs;
    explicitTfcs.t = 1;
    explicitTfcs.u.complete = &reconfAdd;
    reconfAdd.ctfcSize.t = 1;
    reconfAdd.ctfcSize.u.ctfc2Bit = &ctfc2;
    for (uint8_t i = 0; i < 2; i++) {
      ctfc2Entries[i].ctfc2 = static_cast<uint8_t>(i + 1);
      this->add(ctfc2, ctfc2Entries[i]);
    }
    ctfc2Entries[1].m = 1;
    ctfc2Entries[1].powerOffsetInformation.m = 1;
    ctfc2Entries[1].powerOffsetInformation.powerOffsetPp_m = -5;
    ctfc2Entries[1].powerOffsetInformation.gainFactorInformation.t = 1;
    ctfc2Entries[1].powerOffsetInformation.gainFactorInformation.u.signalledGainFactors = &gains;
    gains.m = 1;
    gains.modeSpecificInfo.t = 1;
    gains.modeSpecificInfo.u.fdd = &gainsFdd;
    gainsFdd.gainFactorBetaC = 11;
    gains.gainFactorBetaD = 15;
    gains.referenceTFC_ID = 3;
    p.prach_Partitioning.t = 1;
    p.prach_Partitioning.u.fdd = &partitions;
    for (uint8_t i = 0; i < 3; i++) {
      asc[i].m = i == 1 ? 0u : 1u;  // the second class without its setting
      asc[i].accessServiceClass_FDD.availableSignatureStartIndex = i;
      asc[i].accessServiceClass_FDD.availableSignatureEndIndex = static_cast<uint8_t>(15 - i);
      asc[i].accessServiceClass_FDD.assignedSubChannelNumber = bitString<AccessServiceClass_FDD_assignedSubChannelNumber>({0xA0}, 4);
      add(partitions, asc[i]);
    }
    p.persistenceScalingFactorList.n = 2;
    p.persistenceScalingFactorList.elem[0] = 3;
    p.persistenceScalingFactorList.elem[1] = 7;
    p.ac_To_ASC_MappingTable.n = 7;
    for (uint8_t i = 0; i < 7; i++) p.ac_To_ASC_MappingTable.elem[i] = i;
    p.modeSpecificInfo.u.fdd = &prachFdd;
    prachFdd.m = 0x1Fu;
    prachFdd.primaryCPICH_TX_Power = 33;
    prachFdd.constantValue = -10;
    prachFdd.prach_PowerOffset = {3, 8};
    prachFdd.rach_TransmissionParameters = {2, 0, 10};
    prachFdd.aich_Info = {2, 1, 1};

    addSccpch(0, 1);  // PCH: one dedicated TFS, with a PICH
    addSccpch(1, 0);  // PICH alone
    s.m |= 2u;
    s.cbs_DRX_Level1Information.ctch_AllocationPeriod = 256;
    s.cbs_DRX_Level1Information.cbs_FrameOffset = 9;
  }
  Sib5Builder(const Sib5Builder&) = delete;

  template <typename T>
  void add(rtxDList& list, T& value) {
    append(list, nodes[usedNodes++], value);
  }
  void addPrach(unsigned i) {
    PRACH_SystemInformation& p = prach[i];
    p.prach_RACH_Info.modeSpecificInfo.t = 1;
    p.prach_RACH_Info.modeSpecificInfo.u.fdd = &rach[i];
    rach[i].availableSignatures = bitString<AvailableSignatures>({0xAB, 0xCD}, 16);
    rach[i].availableSF = 2;
    rach[i].preambleScramblingCodeWordNumber = static_cast<uint8_t>(i % 16);
    rach[i].puncturingLimit = 3;
    rach[i].availableSubChannelNumbers = bitString<AvailableSubChannelNumbers>({0xFF, 0xF0}, 12);
    p.transportChannelIdentity = static_cast<uint8_t>(1 + i);
    p.modeSpecificInfo.t = 1;
    p.modeSpecificInfo.u.fdd = &prachFdd;
    add(s.prach_SystemInformationList, p);
  }
  // An S-CCPCH with `fachs` FACH/PCH channels (dedicated TFS, tti10) and a PICH.
  void addSccpch(unsigned i, unsigned fachs) {
    SCCPCH_SystemInformation& c = sccpch[i];
    c.secondaryCCPCH_Info.modeSpecificInfo.t = 1;
    c.secondaryCCPCH_Info.modeSpecificInfo.u.fdd = &sccpchFdd[i];
    SecondaryCCPCH_Info_modeSpecificInfo_fdd& f = sccpchFdd[i];
    f.m = 2;
    f.dummy1 = 1;
    f.secondaryScramblingCode = 4;
    f.sttd_Indicator = 1;
    f.sf_AndCodeNumber.t = 7;
    f.sf_AndCodeNumber.u.sf256 = static_cast<uint8_t>(200 + i);
    f.pilotSymbolExistence = 1;
    f.tfci_Existence = i % 2;  // unlike pilotSymbolExistence on the first
    f.positionFixedOrFlexible = 1;
    f.timingOffset = 149;
    for (unsigned j = 0; j < fachs; j++) {
      FACH_PCH_Information& x = fach[j];
      x.transportFormatSet.t = 1;
      x.transportFormatSet.u.dedicatedTransChTFS = &dedicatedTfs[j];
      dedicatedTfs[j].tti.t = 1;
      dedicatedTfs[j].tti.u.tti10 = &dedicatedList[j];
      dedicatedInfo[j].rlc_Size.t = 2;
      dedicatedInfo[j].rlc_Size.u.octetModeType1 = &octet1[j];
      octet1[j].t = 1;
      octet1[j].u.sizeType1 = 30;
      dedicatedInfo[j].logicalChannelList.t = 2;
      add(dedicatedInfo[j].numberOfTbSizeList, blocks[0]);
      add(dedicatedList[j], dedicatedInfo[j]);
      dedicatedTfs[j].semistaticTF_Information.channelCodingType.t = 3;
      dedicatedTfs[j].semistaticTF_Information.rateMatchingAttribute = 230;
      dedicatedTfs[j].semistaticTF_Information.crc_Size = 3;
      x.transportChannelIdentity = static_cast<uint8_t>(12 + j);
      x.ctch_Indicator = j % 2;
      add(c.fach_PCH_InformationList, x);
      c.m |= 2u;
    }
    c.m |= 4u;
    c.pich_Info.t = 1;
    c.pich_Info.u.fdd = &pich[i];
    pich[i] = {static_cast<uint8_t>(2 + i), 1, 1};
    add(s.sCCPCH_SystemInformationList, c);
  }

  std::vector<uint8_t> encode(uint32_t* bits = nullptr) const { return frametest::encode(asn1PE_UMTS_SysInfoType5, s, bits); }
};

}  // namespace sib5test

#endif
