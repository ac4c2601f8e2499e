// The SIB5 conversion: the sample cell's SIB5 sent whole and over the BCH; and the stores
// that SIB5's channel records have always made, each on a decoded value of its own.
#include "convert_test.h"

using namespace converttest;

namespace {

class ConvertSib5 : public ConvertTest {};

// The sample cell's SIB5 as mksamples sets it: one PRACH (all 16 signatures, RACH of 15-octet
// blocks at 20 ms, CTFCs 0 and 1), one S-CCPCH (SF64 code 1) carrying the PCH and a FACH,
// with its PICH.
TEST_F(ConvertSib5, SampleCellWholeAndOverTheBch) {
  const SampleSib sib5 = sampleSib("fdd_cell_sibs.txt", "sib5");
  std::string out;
  ASSERT_EQ(whole(umts_sib_sib5, sib5.bytes, &out), 1);
  EXPECT_EQ(out.rfind("Decoded SysInfoType5\n", 0), 0u);
  const umts_sib5_info& f = result->sib5;
  EXPECT_EQ(f.presence_bitmask, 1);
  EXPECT_EQ(f.pich_PowerOffset, -7);
  EXPECT_EQ(f.modeSpecificInfo.u.fdd.aich_PowerOffset, -6);

  ASSERT_EQ(f.prach_SystemInformationList.count, 1);
  const umts_prach_system_information& p = f.prach_SystemInformationList.entries[0];
  EXPECT_EQ(p.presence_bitmask, 0x13);
  // The signatures' 16 bits and the sub-channels' 12, each told as a count of octets, are
  // held to the four octets of their fields.
  EXPECT_EQ(octets(p.prach_RACH_Info.u.fdd.availableSignatures), (Bytes{0xFF, 0xFF, 0, 0}));
  EXPECT_EQ(octets(p.prach_RACH_Info.u.fdd.availableSubChannelNumbers), (Bytes{0xFF, 0xF0, 0, 0}));
  EXPECT_EQ(p.transportChannelIdentity, 15);
  const umts_common_trans_ch_tfs& tfs = p.rach_TransportFormatSet.u.commonTransChTFS;
  ASSERT_EQ(tfs.tti.choice_tag, 2u);
  ASSERT_EQ(tfs.tti.u.tti20.count, 1);
  EXPECT_EQ(tfs.tti.u.tti20.entries[0].rlc_Size.u.octetModeRLC_SizeInfoType2.u.sizeType1, 15);
  EXPECT_EQ(tfs.tti.u.tti20.entries[0].numberOfTbSizeList.entries[0].numberOfTransportBlocks.choice_tag, 2u);  // one
  EXPECT_EQ(tfs.semistaticTF_Information.rateMatchingAttribute, 150);
  const umts_tfcs_reconf_add& ctfcs = p.rach_TFCS.u.normalTFCI_Signalling.u.complete;
  ASSERT_EQ(ctfcs.count, 2);
  EXPECT_EQ(ctfcs.entries[1].ctfc, 1);
  EXPECT_EQ(p.ac_To_ASC_MappingTable.count, 7u);
  EXPECT_EQ(p.ac_To_ASC_MappingTable.entries[4] * 10 + p.ac_To_ASC_MappingTable.entries[5], 10u);
  const umts_prach_system_information_fdd& pf = p.modeSpecificInfo.u.fdd;
  EXPECT_EQ(pf.constantValue, -20);
  EXPECT_EQ(pf.prach_PowerOffset.powerRampStep, 2);
  EXPECT_EQ(pf.rach_TransmissionParameters.mmax, 4);
  EXPECT_EQ(pf.rach_TransmissionParameters.nb01Max, 10);
  EXPECT_EQ(pf.aich_Info.channelisationCode256, 2);

  ASSERT_EQ(f.sCCPCH_SystemInformationList.count, 1);
  const umts_sccpch_system_information& c = f.sCCPCH_SystemInformationList.entries[0];
  // tfcs, the FACH/PCH list and the PICH: the PICH stands under bit 1 with the list; bit 2
  // stays clear.
  EXPECT_EQ(c.presence_bitmask, 3);
  EXPECT_EQ(c.secondaryCCPCH_Info.u.fdd.sf_AndCodeNumber.choice_tag, 5u);
  EXPECT_EQ(c.secondaryCCPCH_Info.u.fdd.sf_AndCodeNumber.u.sf64, 1);
  EXPECT_EQ(c.tfcs.u.normalTFCI_Signalling.u.complete.entries[3].ctfc, 3);
  ASSERT_EQ(c.fach_PCH_InformationList.count, 2u);
  EXPECT_EQ(c.fach_PCH_InformationList.entries[1].transportChannelIdentity, 13);
  EXPECT_EQ(c.fach_PCH_InformationList.entries[1].transportFormatSet.u.commonTransChTFS.semistaticTF_Information.rateMatchingAttribute,
            220);
  EXPECT_EQ(c.pich_Info.u.fdd.channelisationCode256, 3);
  expectSameOverTheBch(umts_sib_sib5, 5, &umts_sib_set::sib5, sib5.bytes, sib5.bits);
}

// ---- Transport formats and TFCS, converted from values built in code ---------------------

// Every CTFC of an added TFCS is kept in one octet, whatever its size; complete and addition
// differ only in the tag; an unknown tag is kept alone.
TEST(ConvertTfcs, CtfcInOneOctetAndTheExplicitConfigurations) {
  Pool p;
  rtxDList l12{}, l16{}, l24{};
  p.add(l12, TFCS_ReconfAdd_ctfcSize_ctfc12Bit_element{0, 0x123, {}});
  p.add(l12, TFCS_ReconfAdd_ctfcSize_ctfc12Bit_element{0, 4095, {}});
  p.add(l16, TFCS_ReconfAdd_ctfcSize_ctfc16Bit_element{0, 0xBEEF, {}});
  p.add(l24, TFCS_ReconfAdd_ctfcSize_ctfc24Bit_element{0, 66051, {}});
  const struct {
    uint32_t tag;
    rtxDList* list;
    Bytes ctfcs;
  } cases[] = {{5, &l12, {0x23, 0xFF}}, {6, &l16, {0xEF}}, {7, &l24, {3}}};
  auto flat = std::make_unique<umts_explicit_tfcs_configuration>();
  for (const auto& c : cases) {
    for (uint32_t config : {1u, 2u}) {
      SCOPED_TRACE(std::to_string(c.tag) + " " + std::to_string(config));
      TFCS_ReconfAdd add{};
      add.ctfcSize.t = c.tag;
      add.ctfcSize.u.ctfc12Bit = static_cast<TFCS_ReconfAdd_ctfcSize_ctfc12Bit*>(c.list);
      const ExplicitTFCS_Configuration src{config, {&add}};
      *flat = umts_explicit_tfcs_configuration{};
      convert_explicit_tfcs_configuration(&src, flat.get());
      EXPECT_EQ(flat->choice_tag, config);
      const umts_tfcs_reconf_add& out = config == 1 ? flat->u.complete : flat->u.addition;
      EXPECT_EQ(out.choice_tag, c.tag);
      ASSERT_EQ(out.count, c.ctfcs.size());
      for (size_t i = 0; i < c.ctfcs.size(); i++) EXPECT_EQ(out.entries[i].ctfc, c.ctfcs[i]);
    }
  }
  ExplicitTFCS_Configuration src{9, {}};
  *flat = umts_explicit_tfcs_configuration{};
  convert_explicit_tfcs_configuration(&src, flat.get());
  EXPECT_EQ(flat->choice_tag, 9u);
  EXPECT_TRUE(allZero(flat->u));
}

// tfci-Range: 255 ranges keep their count; 256 read 0 in the octet, with all 256 written.
TEST(ConvertTfcs, TfciRangeCountInOneOctet) {
  Pool p;
  auto flat = std::make_unique<umts_tfci_range_list>();
  for (unsigned n : {255u, 256u}) {
    SCOPED_TRACE(n);
    TFCI_RangeList list{};
    for (unsigned i = 0; i < n; i++) {
      TFCI_Range* r = p.add<TFCI_Range>(list);
      r->maxTFCIField2Value = static_cast<uint16_t>(i + 1);
      r->tfcs_InfoForDSCH.t = 7;
      r->tfcs_InfoForDSCH.u.ctfc24bit = 66051 + i;
    }
    *flat = umts_tfci_range_list{};
    convert_tfci_rangelist(&list, flat.get());
    EXPECT_EQ(flat->count, n == 256 ? 0 : 255);
    EXPECT_EQ(flat->entries[n - 1].maxTFCIField2Value, n);
    EXPECT_EQ(flat->entries[n - 1].tfcs_InfoForDSCH.u.ctfc24bit, 66051 + n - 1);  // full width here
  }
}

// The dynamic list of a common set ends with its last element in entry 0 and its full count;
// a commonTDD-Choice tag keeps its low 16 bits.
TEST(ConvertTransportFormat, DynamicListsAndTheCommonTddTag) {
  Pool p;
  CommonDynamicTF_InfoList_DynamicTTI list{};
  for (int i = 0; i < 3; i++) {
    CommonDynamicTF_Info_DynamicTTI* element = p.add<CommonDynamicTF_Info_DynamicTTI>(list);
    element->commonTDD_Choice.t = 2;
    *p.alloc(element->commonTDD_Choice.u.octetModeRLC_SizeInfoType1) = {1, {static_cast<uint8_t>(40 + i)}};
    NumberOfTbSizeAndTTIList_element* tti = p.add<NumberOfTbSizeAndTTIList_element>(element->numberOfTbSizeAndTTIList);
    tti->numberOfTransportBlocks.t = 4;
    tti->numberOfTransportBlocks.u.large = static_cast<uint16_t>(500 + i);
    tti->transmissionTimeInterval = static_cast<uint32_t>(i);
    if (i > 0) continue;  // the first element's second block count, small
    auto* second = p.add<NumberOfTbSizeAndTTIList_element>(element->numberOfTbSizeAndTTIList);
    second->numberOfTransportBlocks.t = 3;
    second->numberOfTransportBlocks.u.small = 17;
  }
  auto flat = std::make_unique<umts_common_dynamic_tf_info_list_dynamic_tti>();
  convert_common_dynamic_tf_info_list_dynamic_tti(&list, flat.get());
  EXPECT_EQ(flat->count, 3);
  const umts_common_dynamic_tf_info_dynamic_tti& e = flat->entries[0];
  EXPECT_EQ(e.commonTDD_Choice.u.octetModeRLC_SizeInfoType1.u.sizeType1, 42);
  ASSERT_EQ(e.numberOfTbSizeAndTTIList.count, 1);
  EXPECT_EQ(e.numberOfTbSizeAndTTIList.entries[0].numberOfTransportBlocks.u.large, 502);
  EXPECT_EQ(e.numberOfTbSizeAndTTIList.entries[0].transmissionTimeInterval, 2u);
  // Written over the first element: its second block count stays beyond the last's count.
  EXPECT_EQ(e.numberOfTbSizeAndTTIList.entries[1].numberOfTransportBlocks.u.small, 17);
  EXPECT_TRUE(allZero(flat->entries[1]));

  CommonDynamicTF_Info_DynamicTTI_commonTDD_Choice wide{};
  wide.t = 0x00030002u;
  umts_common_tdd_choice tag{};
  convert_commmon_dynamic_tf_ino_common_tdd_choice(&wide, &tag);
  EXPECT_EQ(tag.choice_tag, 2);
  EXPECT_TRUE(allZero(tag.u));  // the 32-bit tag was not 2: nothing converted

}

// ---- S-CCPCH and PRACH records --------------------------------------------------------------

TEST(ConvertSccpch, RepetitionPeriodsMidamblesAndTimingOffset) {
  // Repetition periods: 1 the tag alone, 2 its offset in the first octet, 4..64 both.
  RepetitionPeriodLengthAndOffset_repetitionPeriod2 p2{5};
  RepetitionPeriodLengthAndOffset_repetitionPeriod4 p4{3, 2};
  RepetitionPeriodLengthAndOffset rep{};
  umts_repetition_period_length_and_offset flat{};
  rep.t = 1;
  convert_repetition_period_length_and_offset(&rep, &flat);
  EXPECT_TRUE(allZero(flat.u));
  rep.t = 2;
  rep.u.repetitionPeriod2 = &p2;
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
    if (c.burst == 1) t1.midambleAllocationMode.t = c.mode, m.burstType.u.type1 = &t1;
    else t3.midambleAllocationMode.t = c.mode, m.burstType.u.type3 = &t3;
    umts_midamble_shift_and_burst_type out{};
    convert_midamble_shift_and_burst_type(&m, &out);
    EXPECT_EQ(out.u.type1.midambleAllocationMode, c.mode);
    EXPECT_EQ(out.u.type1.midambleShift, c.shift) << c.burst << "/" << c.mode;
  }

  // timingOffset: the decoder's octet widened, no sign extension; an unknown sf tag alone.
  SecondaryCCPCH_Info_modeSpecificInfo_fdd sfdd{};
  sfdd.timingOffset = 255;
  sfdd.sf_AndCodeNumber.t = 9;
  sfdd.sf_AndCodeNumber.u.sf4 = 3;
  umts_secondary_ccpch_info_fdd sflat{};
  convert_secondary_ccpch_info_modespecific_info_fdd(&sfdd, &sflat);
  EXPECT_EQ(sflat.timingOffset, 255u);
  EXPECT_EQ(sflat.sf_AndCodeNumber.choice_tag, 9u);
  EXPECT_EQ(sflat.sf_AndCodeNumber.u.sf4, 0);
}

// availableSubChannelNumbers, 12 bits told as 12 octets, is held to its four octets: the
// eight after the field, where the longer copy would have gone on, stay as they were.
TEST(ConvertPrach, SubChannelNumbersStayInTheirField) {
  struct {
    AvailableSubChannelNumbers bits;
    uint8_t after[16];
  } src;
  std::memset(&src, 0x5A, sizeof src);
  src.bits = bitString<AvailableSubChannelNumbers>({0xFF, 0xF0}, 12);
  struct {
    umts_prach_rach_info_fdd fdd;
    uint8_t after[16];
  } dst{};
  static_assert(offsetof(umts_prach_rach_info_fdd, availableSubChannelNumbers) + sizeof(umts_bit_string32) ==
                    sizeof(umts_prach_rach_info_fdd),
                "the last member");
  convert_available_subchannel_numbers(&src.bits, &dst.fdd.availableSubChannelNumbers);
  EXPECT_EQ(dst.fdd.availableSubChannelNumbers.numbits, 12u);
  EXPECT_EQ(octets(dst.fdd.availableSubChannelNumbers), (Bytes{0xFF, 0xF0, 0, 0}));
  EXPECT_TRUE(allZero(dst.after));
  // A bit string of 0 bits writes its count and no octet.
  AvailableSignatures none{};
  none.data[0] = 0xFF;
  umts_bit_string32 bits{};
  convert_available_signatures(&none, &bits);
  EXPECT_TRUE(allZero(bits));
}

TEST(ConvertPrach, TddAlternativesAndUnknownTags) {
  // TDD access classes: channelisationCodeIndices is its count and one octet; subchannel
  // sizes 1 (tag alone) to 8.
  AccessServiceClass_TDD_subchannelSize_size4 s4{1, bitString<AccessServiceClass_TDD_subchannelSize_size4_subchannels>({0xC0}, 2)};
  Pool p;
  PRACH_Partitioning_tdd list{};
  ASCSetting_TDD* settings[2] = {p.add<ASCSetting_TDD>(list), p.add<ASCSetting_TDD>(list)};
  settings[0]->m = 1;
  settings[0]->accessServiceClass_TDD.m = 1;
  settings[0]->accessServiceClass_TDD.channelisationCodeIndices = bitString<AccessServiceClass_TDD_channelisationCodeIndices>({0xA5}, 8);
  settings[0]->accessServiceClass_TDD.subchannelSize.t = 1;
  settings[1]->m = 1;
  settings[1]->accessServiceClass_TDD.subchannelSize.t = 3;
  settings[1]->accessServiceClass_TDD.subchannelSize.u.size4 = &s4;
  PRACH_Partitioning part{2, {}};
  part.u.tdd = &list;
  auto flat = std::make_unique<umts_prach_partitioning>();
  convert_prach_partitioning(&part, flat.get());
  ASSERT_EQ(flat->u.tdd.count, 2u);
  const umts_access_service_class_tdd& a = flat->u.tdd.entries[0].accessServiceClass_TDD;
  EXPECT_EQ(a.channelisationCodeIndices.numbits, 8u);
  EXPECT_EQ(a.channelisationCodeIndices.data[0], 0xA5);
  EXPECT_TRUE(allZero(a.subchannelSize.u));
  const umts_access_service_class_tdd& b = flat->u.tdd.entries[1].accessServiceClass_TDD;
  EXPECT_EQ(b.presence_bitmask, 0);
  EXPECT_EQ(b.subchannelSize.u.size4.subchannels.numbits, 2u);
  EXPECT_EQ(b.subchannelSize.u.size4.subchannels.data[0], 0xC0);
  // size8: its 8 bits, told as 8 octets, are held to the four of the field: nothing behind the
  // decoded string is read, nothing behind the field written.
  struct { AccessServiceClass_TDD_subchannelSize_size8 s; uint8_t behind[8]; } s8;
  std::memset(&s8, 0xEE, sizeof s8);
  s8.s.m = 1;
  s8.s.subchannels = bitString<AccessServiceClass_TDD_subchannelSize_size8_subchannels>({0x81}, 8);
  struct { umts_subchannel_size_bits bits; uint8_t behind[8]; } f8{};
  convert_access_service_class_tdd_subchannel_size_size8(&s8.s, &f8.bits);
  EXPECT_EQ(f8.bits.subchannels.numbits, 8u);
  EXPECT_EQ(octets(f8.bits.subchannels), (Bytes{0x81, 0, 0, 0}));
  EXPECT_TRUE(allZero(f8.behind));

  // Unknown tags of the P-CCPCH and of SIB5's modeSpecificInfo are kept alone, silently.
  PrimaryCCPCH_Info src{5, {}};
  umts_primary_ccpch_info pflat{};
  SysInfoType5_modeSpecificInfo_fdd fdd{-3};
  SysInfoType5_modeSpecificInfo mode{3, {&fdd}};
  static umts_sib5_mode_specific_info mflat;  // its TDD lists make it large: not on the stack
  EXPECT_EQ(captureStdout([&] {
              convert_primary_ccpch_info(&src, &pflat);
              convert_sib_type_5_mode_specific_info(&mode, &mflat);
            }),
            "");
  EXPECT_EQ(pflat.choice_tag, 5u);
  EXPECT_TRUE(allZero(pflat.u));
  EXPECT_EQ(mflat.choice_tag, 3u);
  EXPECT_TRUE(allZero(mflat.u));
}

}  // namespace
