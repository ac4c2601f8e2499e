// SIB5 of TDD cells and the later-release channel forms: the stores that their records have
// always made, each on a decoded value of its own. The random encodings with every extension
// level (test_convert_clearing.cpp) reach the rest of these conversions.
#include <memory>

#include "convert_test.h"

using namespace converttest;

namespace {

// A decoded value followed by octets that are not its own, where a copy that ran past the
// value would read.
template <class T>
T* padded(Pool& pool) {
  struct Padded {
    T value;
    uint8_t after[16];
  };
  Padded* p = pool.make<Padded>();
  std::memset(static_cast<void*>(p), 0x5A, sizeof *p);
  std::memset(static_cast<void*>(&p->value), 0, sizeof p->value);
  return &p->value;
}

// A bit string told its bit count as an octet count is held to the four octets of its field:
// the Sync-UL bitmaps of the v770 tdd128 PRACH list (past the last one the record keeps its
// zero), the DL-TS codes bitmap (16 bits, 32 for VHCR) and the r7 subchannels (4, 8, 16 bits).
TEST(ConvertSib5TddParts, BitStringsStayInTheirFields) {
  Pool pool;
  rtxDList prachs{};
  for (uint8_t p = 0; p < 3; p++) {
    auto* e = padded<PRACH_SystemInformation_LCR_v770ext>(pool);
    e->prach_RACH_Info_LCR.e_RUCCH_Sync_UL_Codes_Bitmap = bitString<Sync_UL_Codes_Bitmap>({static_cast<uint8_t>(0x11 * (p + 1))}, 8);
    append(prachs, *pool.make<rtxDListNode>(), *e);
  }
  umts_prach_system_information_list_lcr_v770ext list{};
  convert_prach_system_information_list_lcr_v770ext(&prachs, &list);
  ASSERT_EQ(list.count, 3);
  for (unsigned p = 0; p < 3; p++) {
    EXPECT_EQ(list.e_RUCCH_Sync_UL_Codes_Bitmap[p].numbits, 8u);
    EXPECT_EQ(octets(list.e_RUCCH_Sync_UL_Codes_Bitmap[p]), (Bytes{static_cast<uint8_t>(0x11 * (p + 1)), 0, 0, 0}));
  }
  EXPECT_TRUE(allZero(list.e_RUCCH_Sync_UL_Codes_Bitmap[3]));

  DL_TS_ChannelisationCodesShort dl{};
  dl.codesRepresentation.t = 2;
  *pool.alloc(dl.codesRepresentation.u.bitmap) = bitString<std::remove_pointer_t<decltype(dl.codesRepresentation.u.bitmap)>>({0xC3, 0x5A}, 16);
  umts_dl_ts_channelisation_codes_short dlFlat{};
  convert_dl_ts_channelisation_codes_short(&dl, &dlFlat);
  EXPECT_EQ(dlFlat.u.bitmap.numbits, 16u);
  EXPECT_EQ(octets(dlFlat.u.bitmap), (Bytes{0xC3, 0x5A, 0, 0}));
  DL_TS_ChannelisationCodesShort_VHCR vhcr{};
  vhcr.codesRepresentation.t = 2;
  *pool.alloc(vhcr.codesRepresentation.u.bitmap) =
      bitString<std::remove_pointer_t<decltype(vhcr.codesRepresentation.u.bitmap)>>({1, 2, 3, 4}, 32);
  umts_dl_ts_channelisation_codes_short_vhcr vhcrFlat{};
  convert_dl_ts_channelisation_codes_short_vhcr(&vhcr, &vhcrFlat);
  EXPECT_EQ(vhcrFlat.u.bitmap.numbits, 32u);
  EXPECT_EQ(octets(vhcrFlat.u.bitmap), (Bytes{1, 2, 3, 4}));

  // An r7 access class: its 16 code indices, and subchannels of size4 to size16, numbits and
  // at most four octets; nothing is written past the record.
  for (uint32_t tag = 3; tag <= 5; tag++) {
    SCOPED_TRACE(tag);
    AccessServiceClass_TDD_r7 cls{};
    cls.m = 1;
    cls.channelisationCodeIndices = bitString<AccessServiceClass_TDD_r7_channelisationCodeIndices>({0x12, 0x34}, 16);
    AccessServiceClass_TDD_r7_subchannelSize& src = cls.subchannelSize;
    src.t = tag;
    auto bits = [&](auto*& size, uint32_t n) {
      size = padded<std::remove_pointer_t<std::remove_reference_t<decltype(size)>>>(pool);
      size->m = 1;
      size->subchannels = bitString<decltype(size->subchannels)>({0xB1, 0xB2}, n);
    };
    if (tag == 3) bits(src.u.size4, 4);
    if (tag == 4) bits(src.u.size8, 8);
    if (tag == 5) bits(src.u.size16, 16);
    struct {
      umts_access_service_class_tdd_r7 cls;
      uint8_t after[16];
    } out{};
    convert_access_service_class_tdd_r7(&cls, &out.cls);
    EXPECT_EQ(out.cls.presence_bitmask, 1);
    EXPECT_EQ(out.cls.channelisationCodeIndices.numbits, 16u);
    EXPECT_EQ(octets(out.cls.channelisationCodeIndices), (Bytes{0x12, 0x34, 0, 0}));
    const umts_subchannel_size_r7& size = out.cls.subchannelSize;
    EXPECT_EQ(size.choice_tag, tag);
    EXPECT_TRUE(allZero(out.after));
    const umts_subchannel_size_bits& s = tag == 3 ? size.u.size4 : tag == 4 ? size.u.size8 : size.u.size16;
    EXPECT_EQ(s.presence_bitmask, 1);
    EXPECT_EQ(s.subchannels.numbits, 1u << (tag - 1));
    EXPECT_EQ(octets(s.subchannels), (Bytes{static_cast<uint8_t>(tag == 3 ? 0xB0 : 0xB1), static_cast<uint8_t>(tag == 5 ? 0xB2 : 0), 0, 0}));
  }
}

// VHCR additional timeslots with new parameters, uplink and downlink, which the random
// encodings do not reach: the one shape, checked for each direction.
template <class NewParameters, class Timeslots, class Out>
void expectNewParameters(void (*convert)(const Timeslots*, Out*), uint8_t timeslot) {
  NewParameters parameters{};
  parameters.individualTimeslotInfo.timeslotNumber = timeslot;
  Timeslots in{};
  in.parameters.t = 2;
  in.parameters.u.newParameters = &parameters;
  Out out{};
  convert(&in, &out);
  EXPECT_EQ(out.u.newParameters.individualTimeslotInfo.timeslotNumber, timeslot);
}

TEST(ConvertSib5TddParts, VhcrAdditionalTimeslotsWithNewParameters) {
  expectNewParameters<UplinkAdditionalTimeslots_VHCR_parameters_newParameters>(
      convert_uplink_additional_timeslots_vhcr, 5);
  expectNewParameters<DownlinkAdditionalTimeslots_VHCR_parameters_newParameters>(
      convert_downlink_additional_timeslots_vhcr, 6);
}

// The 1.28 Mcps common E-DCH keeps up to 256 E-RNTI groups under an 8-bit count (a full list
// reads 0); each E-RNTI is held to its four octets, the group numbers after it are its own.
TEST(ConvertSib5TddParts, ERntiGroupsUnderAnOctetCount) {
  for (unsigned n : {3u, 256u}) {
    SCOPED_TRACE(n);
    Pool pool;
    CommonEDCHSystemInfo_modeSpecificInfo_tdd_tdd128_ccch_transmission_Info src{};
    for (unsigned i = 0; i < n; i++)
      pool.add(src.common_e_rnti_Info, Common_E_RNTI_Info_element{bitString<E_RNTI>({0xE0, static_cast<uint8_t>(i)}, 16),
                                                                   static_cast<uint8_t>(1 + i % 32), static_cast<uint8_t>(1 + i % 2)});
    auto out = std::make_unique<umts_ccch_transmission_info_tdd128>();
    convert_ccch_transmission_info_tdd128(&src, out.get());
    EXPECT_EQ(out->common_e_rnti_Info.count, n == 256 ? 0u : n);
    const umts_common_e_rnti_info& last = out->common_e_rnti_Info.entries[n - 1];
    EXPECT_EQ(octets(last.starting_E_RNTI), (Bytes{0xE0, static_cast<uint8_t>(n - 1), 0, 0}));
    EXPECT_EQ(last.number_of_group, 1 + (n - 1) % 32);
    EXPECT_EQ(last.number_of_ENRTI_per_group, 1 + (n - 1) % 2);
  }
}

// A TDD768 PRACH code list copies its count and `count * 4` octets of codes, sf32 and sf16
// alike.
TEST(ConvertSib5TddParts, Tdd768PrachCodesOfBothSpreadingFactors) {
  TDD768_PRACH_CCodeList_sf32 sf32{};
  TDD768_PRACH_CCodeList_sf16 sf16{};
  sf32.n = sf16.n = 16;
  for (uint32_t c = 0; c < 16; c++) sf32.elem[c] = 31 - c, sf16.elem[c] = c;
  for (uint32_t tag : {1u, 2u}) {
    TDD768_PRACH_CCodeList src{tag, {}};
    if (tag == 1) src.u.sf32 = &sf32;
    else src.u.sf16 = &sf16;
    umts_tdd768_prach_ccode_list out{};
    convert_tdd768_prach_c_code_list(&src, &out);
    EXPECT_EQ(out.choice_tag, tag);
    ASSERT_EQ(out.count, 16u);
    for (uint32_t c = 0; c < 16; c++) EXPECT_EQ(out.codes[c], tag == 1 ? 31 - c : c);
  }
}

// The r7 tdd128 S-CCPCH copies mbsfnSpecialTimeSlot with modulation whatever its option says,
// and its members sit one word later than those of tdd384 and tdd768.
TEST(ConvertSib5TddParts, MbmsTdd128SpecialTimeslotTravelsWithModulation) {
  static_assert(offsetof(umts_secondary_ccpch_info_mbms_r7_tdd128, commonTimeslotInfoMBMS) ==
                    offsetof(umts_secondary_ccpch_info_mbms_r7_tdd384, commonTimeslotInfoMBMS) + 4,
                "one word later");
  static_assert(sizeof(umts_prach_partitioning_r7_tdd::count) == 1 && sizeof(umts_prach_partitioning_r7_fdd::count) == 1 &&
                    sizeof(umts_prach_partitioning_tdd::count) == 4,
                "the r7 partitioning counts are 8-bit, the base ones 32-bit");
  SecondaryCCPCHInfo_MBMS_r7_modeSpecificInfo_tdd128 src = {};
  src.m = 0;  // option clear, value left in the decoded record
  src.mbsfnSpecialTimeSlot = 3;
  src.modulation = 1;
  src.downlinkTimeslotsCodes.moreTimeslots.t = 1;
  umts_secondary_ccpch_info_mbms_r7_tdd128 out = {};
  convert_secondary_ccpch_info_mbms_r7_mode_specific_info_tdd128(&src, &out);
  EXPECT_EQ(out.mbsfnSpecialTimeSlot, 3u);
  EXPECT_EQ(out.modulation, 1u);
  EXPECT_EQ(out.spare, 0u);
  EXPECT_EQ(out.downlinkTimeslotsCodes.moreTimeslots.choice_tag, 1u);

  // The r7 downlink timeslots never store their moreTimeslots tag: noMore leaves nothing at
  // all; additionalTimeslots holds its own tag and value.
  DownlinkTimeslotsCodes_r7_moreTimeslots_additionalTimeslots consecutive{};
  consecutive.t = 1;
  consecutive.u.consecutive = 3;
  for (uint32_t tag : {1u, 2u}) {
    DownlinkTimeslotsCodes_r7_moreTimeslots more{tag, {}};
    more.u.additionalTimeslots = &consecutive;
    umts_downlink_more_timeslots_r7 flat{};
    convert_downlink_timeslots_codes_r7_more_timeslots(&more, &flat);
    if (tag == 1) {
      EXPECT_TRUE(allZero(flat)) << "noMore: not even the tag";
      continue;
    }
    EXPECT_EQ(flat.choice_tag, 0u);
    EXPECT_EQ(flat.additionalTimeslots.choice_tag, 1u);
    EXPECT_EQ(flat.additionalTimeslots.u.consecutive.numAdditionalTimeslots, 3);
  }
}

}  // namespace
