/*
 * SIB5: the TDD channels and their later-release forms. PUSCH and PDSCH system information of
 * 3.84 Mcps TDD, of 1.28 Mcps (LCR r4, v4b0 tdd128SpecificInfo), of HCR (v590) and of
 * 7.68 Mcps (VHCR and r7, v770 tdd768); the LCR and VHCR PRACH; the 1.28 Mcps S-CCPCH
 * extensions; the HCR/VHCR S-CCPCH list of v770; and the timeslot records they share.
 *
 * Each chip rate repeats the shapes of the 3.84 Mcps records with its own timeslot record:
 * the shapes are the templates and macros below, and every decoded type keeps a function of
 * its own name that applies them. `conv` picks the named function of a decoded type.
 */
#include <cstring>

#include "convert_frame.h"
#include "convert_list.h"
#include "umts_sib_convert.h"

namespace {

/* The named conversion of each decoded type that the shapes below hold. */
inline void conv(const IndividualTimeslotInfo* s, umts_individual_timeslot_info* d) { convert_individual_timeslot_info(s, d); }
inline void conv(const IndividualTimeslotInfo_LCR_r4* s, umts_individual_timeslot_info_lcr_r4* d) { convert_individual_timeslot_info_lcr_r4(s, d); }
inline void conv(const IndividualTimeslotInfo_VHCR* s, umts_individual_timeslot_info_vhcr* d) { convert_individual_timeslot_info_vhcr(s, d); }
inline void conv(const IndividualTimeslotInfo_r7* s, umts_individual_timeslot_info_r7* d) { convert_individual_timeslot_info_r7(s, d); }
inline void conv(const UL_TS_ChannelisationCodeList* s, umts_ul_ts_channelisation_code_list* d) { convert_ul_ts_channelisation_code_list(s, d); }
inline void conv(const UL_TS_ChannelisationCodeList_VHCR* s, umts_ul_ts_channelisation_code_list* d) { convert_ul_ts_channelisation_code_list_vhcr(s, d); }
inline void conv(const DL_TS_ChannelisationCodesShort* s, umts_dl_ts_channelisation_codes_short* d) { convert_dl_ts_channelisation_codes_short(s, d); }
inline void conv(const DL_TS_ChannelisationCodesShort_VHCR* s, umts_dl_ts_channelisation_codes_short_vhcr* d) { convert_dl_ts_channelisation_codes_short_vhcr(s, d); }
inline void conv(const UplinkTimeslotsCodes* s, umts_uplink_timeslots_codes* d) { convert_uplink_timeslots_codes(s, d); }
inline void conv(const UplinkTimeslotsCodes_LCR_r4* s, umts_uplink_timeslots_codes_lcr_r4* d) { convert_uplink_timeslots_codes_lcr_r4(s, d); }
inline void conv(const UplinkTimeslotsCodes_VHCR* s, umts_uplink_timeslots_codes_vhcr* d) { convert_uplink_timeslots_codes_vhcr(s, d); }
inline void conv(const DownlinkTimeslotsCodes* s, umts_downlink_timeslots_codes* d) { convert_downlink_timeslots_codes(s, d); }
inline void conv(const DownlinkTimeslotsCodes_LCR_r4* s, umts_downlink_timeslots_codes_lcr_r4* d) { convert_downlink_timeslots_codes_lcr_r4(s, d); }
inline void conv(const DownlinkTimeslotsCodes_VHCR* s, umts_downlink_timeslots_codes_vhcr* d) { convert_downlink_timeslots_codes_vhcr(s, d); }
inline void conv(const UplinkTimeslotsCodes_moreTimeslots* s, umts_uplink_more_timeslots* d) { convert_uplink_timeslots_codes_more_timeslots(s, d); }
inline void conv(const UplinkTimeslotsCodes_LCR_r4_moreTimeslots* s, umts_uplink_more_timeslots_lcr_r4* d) { convert_uplink_timeslots_codes_lcr_r4_more_timeslots(s, d); }
inline void conv(const UplinkTimeslotsCodes_VHCR_moreTimeslots* s, umts_uplink_more_timeslots_vhcr* d) { convert_uplink_timeslots_codes_vhcr_more_timeslots(s, d); }
inline void conv(const DownlinkTimeslotsCodes_moreTimeslots* s, umts_downlink_more_timeslots* d) { convert_downlink_timeslots_codes_more_timeslots(s, d); }
inline void conv(const DownlinkTimeslotsCodes_LCR_r4_moreTimeslots* s, umts_downlink_more_timeslots_lcr_r4* d) { convert_downlink_timeslots_codes_lcr_r4_more_timeslots(s, d); }
inline void conv(const DownlinkTimeslotsCodes_VHCR_moreTimeslots* s, umts_downlink_more_timeslots_vhcr* d) { convert_downlink_timeslots_codes_vhcr_more_timeslots(s, d); }
inline void conv(const UplinkAdditionalTimeslots* s, umts_uplink_additional_timeslots* d) { convert_uplink_additional_timeslots(s, d); }
inline void conv(const UplinkAdditionalTimeslots_LCR_r4* s, umts_uplink_additional_timeslots_lcr_r4* d) { convert_uplink_additional_timeslots_lcr_r4(s, d); }
inline void conv(const UplinkAdditionalTimeslots_VHCR* s, umts_uplink_additional_timeslots_vhcr* d) { convert_uplink_additional_timeslots_vhcr(s, d); }
inline void conv(const DownlinkAdditionalTimeslots* s, umts_downlink_additional_timeslots* d) { convert_downlink_additional_timeslots(s, d); }
inline void conv(const DownlinkAdditionalTimeslots_LCR_r4* s, umts_downlink_additional_timeslots_lcr_r4* d) { convert_downlink_additional_timeslots_lcr_r4(s, d); }
inline void conv(const DownlinkAdditionalTimeslots_VHCR* s, umts_downlink_additional_timeslots_vhcr* d) { convert_downlink_additional_timeslots_vhcr(s, d); }
inline void conv(const DownlinkAdditionalTimeslots_r7* s, umts_downlink_additional_timeslots_r7* d) { convert_downlink_additional_timeslots_r7(s, d); }
inline void conv(const UplinkAdditionalTimeslots_parameters_newParameters* s, umts_uplink_additional_timeslots_new_parameters* d) { convert_uplink_additional_timeslots_parameters_new_parameters(s, d); }
inline void conv(const UplinkAdditionalTimeslots_LCR_r4_parameters_newParameters* s, umts_uplink_additional_timeslots_new_parameters_lcr_r4* d) { convert_uplink_additional_timeslots_lcr_r4_parameters_new_parameters(s, d); }
inline void conv(const UplinkAdditionalTimeslots_VHCR_parameters_newParameters* s, umts_uplink_additional_timeslots_new_parameters_vhcr* d) { convert_uplink_additional_timeslots_vhcr_parameters_new_parameters(s, d); }
inline void conv(const DownlinkAdditionalTimeslots_parameters_newParameters* s, umts_downlink_additional_timeslots_new_parameters* d) { convert_downlink_additional_timeslots_parameters_new_parameters(s, d); }
inline void conv(const DownlinkAdditionalTimeslots_LCR_r4_parameters_newParameters* s, umts_downlink_additional_timeslots_new_parameters_lcr_r4* d) { convert_downlink_additional_timeslots_lcr_r4_parameters_new_paramaters(s, d); }
inline void conv(const DownlinkAdditionalTimeslots_VHCR_parameters_newParameters* s, umts_downlink_additional_timeslots_new_parameters_vhcr* d) { convert_downlink_additional_timeslots_vhcr_parameters_new_parameters(s, d); }
inline void conv(const DownlinkAdditionalTimeslots_r7_parameters_newParameters* s, umts_downlink_additional_timeslots_new_parameters_r7* d) { convert_downlink_additional_timeslots_r7_parameters_new_parameters(s, d); }
inline void conv(const TransportFormatSet* s, umts_transport_format_set* d) { convert_transport_format_set(s, d); }
inline void conv(const USCH_TransportChannelsInfo* s, umts_usch_transport_channels_info* d) { convert_usch_transport_channels_info(s, d); }
inline void conv(const DSCH_TransportChannelsInfo* s, umts_dsch_transport_channels_info* d) { convert_dsch_transport_channels_info(s, d); }

/* ---- Shapes of the timeslot records ---------------------------------------------------- */

/* consecutive: the uplink holds numAdditionalTimeslots behind a pointer, the downlink inline;
   the record keeps one octet in both. */
inline uint8_t num_additional_timeslots(uint8_t inline_value) { return inline_value; }
template <class Consecutive>
uint8_t num_additional_timeslots(const Consecutive* consecutive) {
  return consecutive != nullptr ? consecutive->numAdditionalTimeslots : 0;
}

/* additionalTimeslots: 1 consecutive, 2 timeslotList (at most `bound` entries). */
template <class Entry, class Src, class Dst>
void convert_additional_timeslots(const Src* src, Dst* dst, uint32_t bound) {
  dst->choice_tag = src->t;
  if (src->t == 1) {
    dst->u.consecutive.numAdditionalTimeslots = num_additional_timeslots(src->u.consecutive);
  } else if (src->t == 2 && src->u.timeslotList != nullptr) {
    dst->u.timeslotList.count = static_cast<uint8_t>(src->u.timeslotList->count);
    umts_for_each_node<Entry>(src->u.timeslotList, bound,
                              [dst](const Entry* entry, uint32_t i) { conv(entry, &dst->u.timeslotList.parameters[i]); });
  }
}

/* moreTimeslots: 1 noMore (the tag alone), 2 additionalTimeslots. */
template <class Entry, class Src, class Dst>
void convert_more_timeslots(const Src* src, Dst* dst, uint32_t bound) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.additionalTimeslots != nullptr)
    convert_additional_timeslots<Entry>(src->u.additionalTimeslots, &dst->u.additionalTimeslots, bound);
}

/* parameters of an additional timeslot: sameAsLast stores its timeslot number alone. */
template <class Src, class Dst>
void convert_timeslot_parameters(const Src* src, Dst* dst) {
  dst->choice_tag = src->parameters.t;
  if (src->parameters.t == 1 && src->parameters.u.sameAsLast != nullptr)
    dst->u.sameAsLast.timeslotNumber = src->parameters.u.sameAsLast->timeslotNumber;
  else if (src->parameters.t == 2 && src->parameters.u.newParameters != nullptr)
    conv(src->parameters.u.newParameters, &dst->u.newParameters);
}

template <class Src, class Dst>
void convert_uplink_new_parameters(const Src* src, Dst* dst) {
  conv(&src->individualTimeslotInfo, &dst->individualTimeslotInfo);
  conv(&src->ul_TS_ChannelisationCodeList, &dst->ul_TS_ChannelisationCodeList);
}

template <class Src, class Dst>
void convert_downlink_new_parameters(const Src* src, Dst* dst) {
  conv(&src->individualTimeslotInfo, &dst->individualTimeslotInfo);
  conv(&src->dl_TS_ChannelisationCodesShort, &dst->dl_TS_ChannelisationCodesShort);
}

template <class Src, class Dst>
void convert_uplink_codes(const Src* src, Dst* dst) {
  dst->dynamicSFusage = src->dynamicSFusage;
  conv(&src->firstIndividualTimeslotInfo, &dst->firstIndividualTimeslotInfo);
  conv(&src->ul_TS_ChannelisationCodeList, &dst->ul_TS_ChannelisationCodeList);
  conv(&src->moreTimeslots, &dst->moreTimeslots);
}

template <class Src, class Dst>
void convert_downlink_codes(const Src* src, Dst* dst) {
  conv(&src->firstIndividualTimeslotInfo, &dst->firstIndividualTimeslotInfo);
  conv(&src->dl_TS_ChannelisationCodesShort, &dst->dl_TS_ChannelisationCodesShort);
  conv(&src->moreTimeslots, &dst->moreTimeslots);
}

/* DL-TS-ChannelisationCodesShort and its VHCR form. The bitmap (16 or 32 bits, told as as
   many octets) is held to its four octets: the octets after it in the decoded type are not
   the bitmap's, and are not read. */
template <class Src, class Dst>
void convert_dl_codes(const Src* src, Dst* dst) {
  const auto& rep = src->codesRepresentation;
  dst->choice_tag = rep.t;
  if (rep.t == 1 && rep.u.consecutive != nullptr) {
    dst->u.consecutive.firstChannelisationCode = rep.u.consecutive->firstChannelisationCode;
    dst->u.consecutive.lastChannelisationCode = rep.u.consecutive->lastChannelisationCode;
  } else if (rep.t == 2 && rep.u.bitmap != nullptr) {
    umts_copy_bit_string(*rep.u.bitmap, &dst->u.bitmap);
  }
}

/* The allocation mode of one burst type: its tag, and the shift for ueSpecificMidamble. */
template <class Mode>
void convert_allocation_mode(const Mode& mode, uint32_t ue_specific_tag, umts_midamble_burst_type* dst) {
  convert_midamble_shift_and_burst_type_midamble_allocation_mode(
      mode.t, ue_specific_tag, mode.u.ueSpecificMidamble != nullptr ? &mode.u.ueSpecificMidamble->midambleShift : nullptr, dst);
}

/* The r7 and VHCR burst types: 1 to 3 as the base form, 4 mbsfnBurstType4 the tag alone. */
template <class Burst, class Dst>
void convert_burst_type(const Burst& burst, Dst* dst) {
  dst->choice_tag = burst.t;
  if (burst.t == 1 && burst.u.type1 != nullptr) {
    dst->u.type1.midambleConfiguration = burst.u.type1->midambleConfigurationBurstType1and3;
    convert_allocation_mode(burst.u.type1->midambleAllocationMode, 3u, &dst->u.type1);
  } else if (burst.t == 2 && burst.u.type2 != nullptr) {
    dst->u.type2.midambleConfiguration = burst.u.type2->midambleConfigurationBurstType2;
    convert_allocation_mode(burst.u.type2->midambleAllocationMode, 3u, &dst->u.type2);
  } else if (burst.t == 3 && burst.u.type3 != nullptr) {
    dst->u.type3.midambleConfiguration = burst.u.type3->midambleConfigurationBurstType1and3;
    convert_allocation_mode(burst.u.type3->midambleAllocationMode, 2u, &dst->u.type3);
  }
}

/* ---- Shapes of the PUSCH and PDSCH records --------------------------------------------- */

/* PUSCH-Info / PDSCH-Info: bit 0 commonTimeslotInfo, bit 1 the timeslots and codes. */
#define UMTS_CONVERT_SHARED_CH_INFO(src, dst, codes_src, codes_dst)                      \
  do {                                                                                   \
    (dst)->tfcs_ID = (src)->tfcs_ID;                                                     \
    UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_common_timeslot_info, commonTimeslotInfo); \
    if ((src)->m & 2u) {                                                                 \
      (dst)->presence_bitmask |= 2u;                                                     \
      conv(&(src)->codes_src, &(dst)->codes_dst);                                        \
    }                                                                                    \
  } while (0)

/* PUSCH-SysInfo / PDSCH-SysInfo: the identity, the info, then bit 0 the transport channels
   and bit 1 the TFCS. */
#define UMTS_CONVERT_SHARED_CH_SYS_INFO(src, dst, id, convert_info, info_src, info_dst, tfs, tfcs) \
  do {                                                                                            \
    (dst)->id = (src)->id;                                                                        \
    convert_info(&(src)->info_src, &(dst)->info_dst);                                             \
    UMTS_CONVERT_OPTIONAL(src, dst, 1u, conv, tfs);                                               \
    UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_tfcs, tfcs);                                      \
  } while (0)

/* A list entry with SFN: the system information, then bit 0 sfn_TimeInfo. */
template <class Src, class Dst, class Sys, class DstSys, class ConvertSys>
void convert_sfn_entry(const Src* src, Dst* dst, const Sys& sys, DstSys& dst_sys, ConvertSys convert) {
  convert(&sys, &dst_sys);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sfn_time_info, sfn_TimeInfo);
}

/* A list of up to `Bound` entries under an 8-bit count. */
template <class Entry, uint32_t Bound, class Dst, class ConvertEntry>
void convert_list(const rtxDList* src, Dst* dst, ConvertEntry convert) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<Entry>(src, Bound, [dst, convert](const Entry* entry, uint32_t i) { convert(entry, &dst->entries[i]); });
}

/* subchannelSize of the LCR and r7 access service classes: size2 its subchannel as a 32-bit
   word; size4 and up a bit string whose bit count is taken as its octet count, held to the
   four octets of the field (the octets after it in the decoded type are not the string's). */
template <class Src, class Dst>
void convert_subchannel_size_tags(const Src* src, Dst* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.size2 != nullptr) {
    UMTS_COPY_OPTIONAL(src->u.size2, &dst->u.size2, 1u, subchannels);
  } else if (src->t == 3 && src->u.size4 != nullptr && (src->u.size4->m & 1u)) {
    dst->u.size4.presence_bitmask |= 1u;
    umts_copy_bit_string(src->u.size4->subchannels, &dst->u.size4.subchannels);
  } else if (src->t == 4 && src->u.size8 != nullptr && (src->u.size8->m & 1u)) {
    dst->u.size8.presence_bitmask |= 1u;
    umts_copy_bit_string(src->u.size8->subchannels, &dst->u.size8.subchannels);
  }
}

}  // namespace

/* ==== Timeslot records ==================================================================== */

void convert_ul_ts_channelisation_code_list(const UL_TS_ChannelisationCodeList* src, umts_ul_ts_channelisation_code_list* dst) {
  dst->count = src->n;
  for (uint32_t i = 0; i < src->n && i < 2u; i++) dst->codes[i] = src->elem[i];
}

/* The VHCR list is copied as one block: the count and both codes. */
void convert_ul_ts_channelisation_code_list_vhcr(const UL_TS_ChannelisationCodeList_VHCR* src,
                                                 umts_ul_ts_channelisation_code_list* dst) {
  static_assert(sizeof *src == sizeof *dst, "a count and two codes");
  std::memcpy(dst, src, sizeof *dst);
}

void convert_dl_ts_channelisation_codes_short(const DL_TS_ChannelisationCodesShort* src, umts_dl_ts_channelisation_codes_short* dst) {
  convert_dl_codes(src, dst);
}

void convert_dl_ts_channelisation_codes_short_vhcr(const DL_TS_ChannelisationCodesShort_VHCR* src,
                                                   umts_dl_ts_channelisation_codes_short_vhcr* dst) {
  convert_dl_codes(src, dst);
}

void convert_midamble_shift_and_burst_type_r7(const MidambleShiftAndBurstType_r7* src, umts_midamble_shift_and_burst_type_r7* dst) {
  convert_burst_type(src->burstType, dst);
}

void convert_midamble_shift_and_burst_type_vhcr(const MidambleShiftAndBurstType_VHCR* src,
                                                umts_midamble_shift_and_burst_type_vhcr* dst) {
  convert_burst_type(src->burstType, dst);
}

void convert_individual_timeslot_info_r7(const IndividualTimeslotInfo_r7* src, umts_individual_timeslot_info_r7* dst) {
  dst->timeslotNumber = src->timeslotNumber;
  dst->tfci_Existence = src->tfci_Existence;
  convert_midamble_shift_and_burst_type_r7(&src->midambleShiftAndBurstType, &dst->midambleShiftAndBurstType);
}

void convert_individual_timeslot_info_vhcr(const IndividualTimeslotInfo_VHCR* src, umts_individual_timeslot_info_vhcr* dst) {
  dst->timeslotNumber = src->timeslotNumber;
  dst->tfci_Existence = src->tfci_Existence;
  convert_midamble_shift_and_burst_type_vhcr(&src->midambleShiftAndBurstType_VHCR, &dst->midambleShiftAndBurstType_VHCR);
}

void convert_individual_timeslot_info_lcr_r4(const IndividualTimeslotInfo_LCR_r4* src, umts_individual_timeslot_info_lcr_r4* dst) {
  dst->timeslotNumber = src->timeslotNumber;
  dst->tfci_Existence = src->tfci_Existence;
  convert_midamble_shift_and_burst_type_lcr_r4(&src->midambleShiftAndBurstType, &dst->midambleShiftAndBurstType);
  dst->modulation = src->modulation;
  dst->ss_TPC_Symbols = src->ss_TPC_Symbols;
  UMTS_COPY_OPTIONAL(src, dst, 1u, additionalSS_TPC_Symbols);
}

/* ---- Uplink: 3.84 Mcps, LCR, VHCR ---------------------------------------------------------- */

void convert_uplink_timeslots_codes(const UplinkTimeslotsCodes* src, umts_uplink_timeslots_codes* dst) { convert_uplink_codes(src, dst); }

void convert_uplink_timeslots_codes_more_timeslots(const UplinkTimeslotsCodes_moreTimeslots* src, umts_uplink_more_timeslots* dst) {
  convert_more_timeslots<UplinkAdditionalTimeslots>(src, dst, 13u);
}

void convert_uplink_additional_timeslots(const UplinkAdditionalTimeslots* src, umts_uplink_additional_timeslots* dst) {
  convert_timeslot_parameters(src, dst);
}

void convert_uplink_additional_timeslots_parameters_new_parameters(const UplinkAdditionalTimeslots_parameters_newParameters* src,
                                                                   umts_uplink_additional_timeslots_new_parameters* dst) {
  convert_uplink_new_parameters(src, dst);
}

void convert_uplink_timeslots_codes_lcr_r4(const UplinkTimeslotsCodes_LCR_r4* src, umts_uplink_timeslots_codes_lcr_r4* dst) {
  convert_uplink_codes(src, dst);
}

void convert_uplink_timeslots_codes_lcr_r4_more_timeslots(const UplinkTimeslotsCodes_LCR_r4_moreTimeslots* src,
                                                          umts_uplink_more_timeslots_lcr_r4* dst) {
  convert_more_timeslots<UplinkAdditionalTimeslots_LCR_r4>(src, dst, 5u);
}

void convert_uplink_additional_timeslots_lcr_r4(const UplinkAdditionalTimeslots_LCR_r4* src, umts_uplink_additional_timeslots_lcr_r4* dst) {
  convert_timeslot_parameters(src, dst);
}

void convert_uplink_additional_timeslots_lcr_r4_parameters_new_parameters(
    const UplinkAdditionalTimeslots_LCR_r4_parameters_newParameters* src, umts_uplink_additional_timeslots_new_parameters_lcr_r4* dst) {
  convert_uplink_new_parameters(src, dst);
}

void convert_uplink_timeslots_codes_vhcr(const UplinkTimeslotsCodes_VHCR* src, umts_uplink_timeslots_codes_vhcr* dst) {
  convert_uplink_codes(src, dst);
}

void convert_uplink_timeslots_codes_vhcr_more_timeslots(const UplinkTimeslotsCodes_VHCR_moreTimeslots* src,
                                                        umts_uplink_more_timeslots_vhcr* dst) {
  convert_more_timeslots<UplinkAdditionalTimeslots_VHCR>(src, dst, 13u);
}

void convert_uplink_additional_timeslots_vhcr(const UplinkAdditionalTimeslots_VHCR* src, umts_uplink_additional_timeslots_vhcr* dst) {
  convert_timeslot_parameters(src, dst);
}

void convert_uplink_additional_timeslots_vhcr_parameters_new_parameters(
    const UplinkAdditionalTimeslots_VHCR_parameters_newParameters* src, umts_uplink_additional_timeslots_new_parameters_vhcr* dst) {
  convert_uplink_new_parameters(src, dst);
}

/* ---- Downlink: 3.84 Mcps, LCR, VHCR, r7 ---------------------------------------------------- */

void convert_downlink_timeslots_codes(const DownlinkTimeslotsCodes* src, umts_downlink_timeslots_codes* dst) {
  convert_downlink_codes(src, dst);
}

void convert_downlink_timeslots_codes_more_timeslots(const DownlinkTimeslotsCodes_moreTimeslots* src, umts_downlink_more_timeslots* dst) {
  convert_more_timeslots<DownlinkAdditionalTimeslots>(src, dst, 13u);
}

void convert_downlink_additional_timeslots(const DownlinkAdditionalTimeslots* src, umts_downlink_additional_timeslots* dst) {
  convert_timeslot_parameters(src, dst);
}

void convert_downlink_additional_timeslots_parameters_new_parameters(const DownlinkAdditionalTimeslots_parameters_newParameters* src,
                                                                     umts_downlink_additional_timeslots_new_parameters* dst) {
  convert_downlink_new_parameters(src, dst);
}

void convert_downlink_timeslots_codes_lcr_r4(const DownlinkTimeslotsCodes_LCR_r4* src, umts_downlink_timeslots_codes_lcr_r4* dst) {
  convert_downlink_codes(src, dst);
}

void convert_downlink_timeslots_codes_lcr_r4_more_timeslots(const DownlinkTimeslotsCodes_LCR_r4_moreTimeslots* src,
                                                            umts_downlink_more_timeslots_lcr_r4* dst) {
  convert_more_timeslots<DownlinkAdditionalTimeslots_LCR_r4>(src, dst, 5u);
}

void convert_downlink_additional_timeslots_lcr_r4(const DownlinkAdditionalTimeslots_LCR_r4* src,
                                                  umts_downlink_additional_timeslots_lcr_r4* dst) {
  convert_timeslot_parameters(src, dst);
}

void convert_downlink_additional_timeslots_lcr_r4_parameters_new_paramaters(
    const DownlinkAdditionalTimeslots_LCR_r4_parameters_newParameters* src, umts_downlink_additional_timeslots_new_parameters_lcr_r4* dst) {
  convert_downlink_new_parameters(src, dst);
}

void convert_downlink_timeslots_codes_vhcr(const DownlinkTimeslotsCodes_VHCR* src, umts_downlink_timeslots_codes_vhcr* dst) {
  convert_downlink_codes(src, dst);
}

void convert_downlink_timeslots_codes_vhcr_more_timeslots(const DownlinkTimeslotsCodes_VHCR_moreTimeslots* src,
                                                          umts_downlink_more_timeslots_vhcr* dst) {
  convert_more_timeslots<DownlinkAdditionalTimeslots_VHCR>(src, dst, 13u);
}

void convert_downlink_additional_timeslots_vhcr(const DownlinkAdditionalTimeslots_VHCR* src, umts_downlink_additional_timeslots_vhcr* dst) {
  convert_timeslot_parameters(src, dst);
}

void convert_downlink_additional_timeslots_vhcr_parameters_new_parameters(
    const DownlinkAdditionalTimeslots_VHCR_parameters_newParameters* src, umts_downlink_additional_timeslots_new_parameters_vhcr* dst) {
  convert_downlink_new_parameters(src, dst);
}

void convert_downlink_timeslots_codes_r7(const DownlinkTimeslotsCodes_r7* src, umts_downlink_timeslots_codes_r7* dst) {
  conv(&src->firstIndividualTimeslotInfo, &dst->firstIndividualTimeslotInfo);
  conv(&src->dl_TS_ChannelisationCodesShort, &dst->dl_TS_ChannelisationCodesShort);
  convert_downlink_timeslots_codes_r7_more_timeslots(&src->moreTimeslots, &dst->moreTimeslots);
}

/* The r7 form does not store its own tag, which stays 0 (noMore leaves nothing); for
   additionalTimeslots it stores the inner tag and its value. */
void convert_downlink_timeslots_codes_r7_more_timeslots(const DownlinkTimeslotsCodes_r7_moreTimeslots* src,
                                                        umts_downlink_more_timeslots_r7* dst) {
  if (src->t == 2 && src->u.additionalTimeslots != nullptr)
    convert_additional_timeslots<DownlinkAdditionalTimeslots_r7>(src->u.additionalTimeslots, &dst->additionalTimeslots, 13u);
}

void convert_downlink_additional_timeslots_r7(const DownlinkAdditionalTimeslots_r7* src, umts_downlink_additional_timeslots_r7* dst) {
  convert_timeslot_parameters(src, dst);
}

void convert_downlink_additional_timeslots_r7_parameters_new_parameters(
    const DownlinkAdditionalTimeslots_r7_parameters_newParameters* src, umts_downlink_additional_timeslots_new_parameters_r7* dst) {
  convert_downlink_new_parameters(src, dst);
}

/* ==== PUSCH and PDSCH system information ==================================================== */

void convert_sfn_time_info(const SFN_TimeInfo* src, umts_sfn_time_info* dst) {
  dst->activationTimeSFN = src->activationTimeSFN;
  dst->physChDuration = src->physChDuration;
}

void convert_usch_transport_channels_info(const USCH_TransportChannelsInfo* src, umts_usch_transport_channels_info* dst) {
  convert_list<USCH_TransportChannelsInfo_element, 32u>(src, dst, [](const USCH_TransportChannelsInfo_element* e, umts_usch_transport_channel* d) {
    d->usch_TransportChannelIdentity = e->usch_TransportChannelIdentity;
    convert_transport_format_set(&e->usch_TFS, &d->usch_TFS);
  });
}

void convert_dsch_transport_channels_info(const DSCH_TransportChannelsInfo* src, umts_dsch_transport_channels_info* dst) {
  convert_list<DSCH_TransportChannelsInfo_element, 32u>(src, dst, [](const DSCH_TransportChannelsInfo_element* e, umts_dsch_transport_channel* d) {
    d->dsch_transport_channel_identity = e->dsch_transport_channel_identity;
    convert_transport_format_set(&e->dsch_TFS, &d->dsch_TFS);
  });
}

/* ---- 3.84 Mcps ---- */

void convert_pusch_info(const PUSCH_Info* src, umts_pusch_info* dst) {
  UMTS_CONVERT_SHARED_CH_INFO(src, dst, pusch_TimeslotsCodes, pusch_TimeslotsCodes);
}

void convert_pusch_sys_info(const PUSCH_SysInfo* src, umts_pusch_sys_info* dst) {
  UMTS_CONVERT_SHARED_CH_SYS_INFO(src, dst, pusch_Identity, convert_pusch_info, pusch_Info, pusch_Info, usch_TFS, usch_TFCS);
}

void convert_pusch_sysinfo_list_sfn_element(const PUSCH_SysInfoList_SFN_element* src, umts_pusch_sysinfo_sfn* dst) {
  convert_sfn_entry(src, dst, src->pusch_SysInfo, dst->pusch_SysInfo, convert_pusch_sys_info);
}

void convert_pusch_sysinfo_list_sfn(const PUSCH_SysInfoList_SFN* src, umts_pusch_sysinfo_list_sfn* dst) {
  convert_list<PUSCH_SysInfoList_SFN_element, 8u>(src, dst, convert_pusch_sysinfo_list_sfn_element);
}

void convert_pdsch_info(const PDSCH_Info* src, umts_pdsch_info* dst) {
  UMTS_CONVERT_SHARED_CH_INFO(src, dst, pdsch_TimeslotsCodes, pdsch_TimeslotsCodes);
}

void convert_pdsch_SysInfo(const PDSCH_SysInfo* src, umts_pdsch_sys_info* dst) {
  UMTS_CONVERT_SHARED_CH_SYS_INFO(src, dst, pdsch_Identity, convert_pdsch_info, pdsch_Info, pdsch_Info, dsch_TFS, dsch_TFCS);
}

void convert_pdsch_sysinfo_list_sfn_element(const PDSCH_SysInfoList_SFN_element* src, umts_pdsch_sysinfo_sfn* dst) {
  convert_sfn_entry(src, dst, src->pdsch_SysInfo, dst->pdsch_SysInfo, convert_pdsch_SysInfo);
}

void convert_pdsch_sysinfo_list_sfn(const PDSCH_SysInfoList_SFN* src, umts_pdsch_sysinfo_list_sfn* dst) {
  convert_list<PDSCH_SysInfoList_SFN_element, 8u>(src, dst, convert_pdsch_sysinfo_list_sfn_element);
}

/* ---- 1.28 Mcps ---- */

void convert_pusch_info_lcr_r4(const PUSCH_Info_LCR_r4* src, umts_pusch_info_lcr_r4* dst) {
  UMTS_CONVERT_SHARED_CH_INFO(src, dst, pusch_TimeslotsCodes, pusch_TimeslotsCodes);
}

void convert_pusch_sys_info_lcr_r4(const PUSCH_SysInfo_LCR_r4* src, umts_pusch_sys_info_lcr_r4* dst) {
  UMTS_CONVERT_SHARED_CH_SYS_INFO(src, dst, pusch_Identity, convert_pusch_info_lcr_r4, pusch_Info, pusch_Info, usch_TFS, usch_TFCS);
}

void convert_pusch_sysinfo_list_sfn_lcr_r4_element(const PUSCH_SysInfoList_SFN_LCR_r4_element* src, umts_pusch_sysinfo_sfn_lcr_r4* dst) {
  convert_sfn_entry(src, dst, src->pusch_SysInfo, dst->pusch_SysInfo, convert_pusch_sys_info_lcr_r4);
}

void convert_pusch_sysinfo_list_sfn_lcr_r4(const PUSCH_SysInfoList_SFN_LCR_r4* src, umts_pusch_sysinfo_list_sfn_lcr_r4* dst) {
  convert_list<PUSCH_SysInfoList_SFN_LCR_r4_element, 8u>(src, dst, convert_pusch_sysinfo_list_sfn_lcr_r4_element);
}

void convert_pdsch_info_lcr_r4(const PDSCH_Info_LCR_r4* src, umts_pdsch_info_lcr_r4* dst) {
  UMTS_CONVERT_SHARED_CH_INFO(src, dst, pdsch_TimeslotsCodes, pdsch_TimeslotsCodes);
}

void convert_pdsch_sys_info_lcr_r4(const PDSCH_SysInfo_LCR_r4* src, umts_pdsch_sys_info_lcr_r4* dst) {
  UMTS_CONVERT_SHARED_CH_SYS_INFO(src, dst, pdsch_Identity, convert_pdsch_info_lcr_r4, pdsch_Info, pdsch_Info, dsch_TFS, dsch_TFCS);
}

void convert_pdsch_sysInfolist_sfn_lcr_r4_element(const PDSCH_SysInfoList_SFN_LCR_r4_element* src, umts_pdsch_sysinfo_sfn_lcr_r4* dst) {
  convert_sfn_entry(src, dst, src->pdsch_SysInfo, dst->pdsch_SysInfo, convert_pdsch_sys_info_lcr_r4);
}

void convert_pdsch_sysinfo_list_sfn_lcr_r4(const PDSCH_SysInfoList_SFN_LCR_r4* src, umts_pdsch_sysinfo_list_sfn_lcr_r4* dst) {
  convert_list<PDSCH_SysInfoList_SFN_LCR_r4_element, 8u>(src, dst, convert_pdsch_sysInfolist_sfn_lcr_r4_element);
}

/* ---- HCR r5: the 3.84 Mcps info, a format set per transport channel ---- */

void convert_pusch_sys_info_hcr_r5(const PUSCH_SysInfo_HCR_r5* src, umts_pusch_sys_info_hcr_r5* dst) {
  UMTS_CONVERT_SHARED_CH_SYS_INFO(src, dst, pusch_Identity, convert_pusch_info, pusch_Info, pusch_Info, usch_TransportChannelsInfo,
                                  usch_TFCS);
}

void convert_pusch_sysinfo_list_sfn_hcr_r5_element(const PUSCH_SysInfoList_SFN_HCR_r5_element* src, umts_pusch_sysinfo_sfn_hcr_r5* dst) {
  convert_sfn_entry(src, dst, src->pusch_SysInfo, dst->pusch_SysInfo, convert_pusch_sys_info_hcr_r5);
}

void convert_pusch_sysinfo_list_sfn_hcr_r5(const PUSCH_SysInfoList_SFN_HCR_r5* src, umts_pusch_sysinfo_list_sfn_hcr_r5* dst) {
  convert_list<PUSCH_SysInfoList_SFN_HCR_r5_element, 8u>(src, dst, convert_pusch_sysinfo_list_sfn_hcr_r5_element);
}

void convert_pdsch_sys_info_hcr_r5(const PDSCH_SysInfo_HCR_r5* src, umts_pdsch_sys_info_hcr_r5* dst) {
  UMTS_CONVERT_SHARED_CH_SYS_INFO(src, dst, pdsch_Identity, convert_pdsch_info, pdsch_Info, pdsch_Info, dsch_TransportChannelsInfo,
                                  dsch_TFCS);
}

void convert_pdsch_sysinfo_list_sfn_hcr_r5_element(const PDSCH_SysInfoList_SFN_HCR_r5_element* src, umts_pdsch_sysinfo_sfn_hcr_r5* dst) {
  convert_sfn_entry(src, dst, src->pdsch_SysInfo, dst->pdsch_SysInfo, convert_pdsch_sys_info_hcr_r5);
}

void convert_pdsch_sysinfo_list_sfn_hcr_r5(const PDSCH_SysInfoList_SFN_HCR_r5* src, umts_pdsch_sysinfo_list_sfn_hcr_r5* dst) {
  convert_list<PDSCH_SysInfoList_SFN_HCR_r5_element, 8u>(src, dst, convert_pdsch_sysinfo_list_sfn_hcr_r5_element);
}

void convert_sysinfotype5_v590ext_ies_hcr_r5_specific_info(const SysInfoType5_v590ext_IEs_hcr_r5_SpecificInfo* src,
                                                           umts_sib5_hcr_r5_specific_info* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_pusch_sysinfo_list_sfn_hcr_r5, pusch_SysInfoList_SFN);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_pdsch_sysinfo_list_sfn_hcr_r5, pdsch_SysInfoList_SFN);
}

/* ---- VHCR (PUSCH) and r7 (PDSCH) of v770 tdd768 ---- */

void convert_pusch_info_vhcr(const PUSCH_Info_VHCR* src, umts_pusch_info_vhcr* dst) {
  UMTS_CONVERT_SHARED_CH_INFO(src, dst, pusch_TimeslotsCodes_VHCR, pusch_TimeslotsCodes_VHCR);
}

void convert_pusch_sys_info_vhcr(const PUSCH_SysInfo_VHCR* src, umts_pusch_sys_info_vhcr* dst) {
  UMTS_CONVERT_SHARED_CH_SYS_INFO(src, dst, pusch_Identity, convert_pusch_info_vhcr, pusch_Info_VHCR, pusch_Info_VHCR,
                                  usch_TransportChannelsInfo, usch_TFCS);
}

void convert_pusch_sysinfo_list_sfn_vhcr_element(const PUSCH_SysInfoList_SFN_VHCR_element* src, umts_pusch_sysinfo_sfn_vhcr* dst) {
  convert_sfn_entry(src, dst, src->pusch_SysInfo_VHCR, dst->pusch_SysInfo_VHCR, convert_pusch_sys_info_vhcr);
}

void convert_pusch_sysinfo_list_sfn_vhcr(const PUSCH_SysInfoList_SFN_VHCR* src, umts_pusch_sysinfo_list_sfn_vhcr* dst) {
  convert_list<PUSCH_SysInfoList_SFN_VHCR_element, 8u>(src, dst, convert_pusch_sysinfo_list_sfn_vhcr_element);
}

/* tddOption: each chip rate its own timeslots and codes, under bit 0 of its record. */
void convert_pdsch_info_r7_tdd_option(const PDSCH_Info_r7_tddOption* src, umts_pdsch_info_r7_tdd_option* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.tdd384 != nullptr) {
    UMTS_CONVERT_OPTIONAL(src->u.tdd384, &dst->u.tdd384, 1u, conv, pdsch_TimeslotsCodes);
  } else if (src->t == 2 && src->u.tdd768 != nullptr) {
    UMTS_CONVERT_OPTIONAL(src->u.tdd768, &dst->u.tdd768, 1u, conv, pdsch_TimeslotsCodes);
  } else if (src->t == 3 && src->u.tdd128 != nullptr) {
    UMTS_CONVERT_OPTIONAL(src->u.tdd128, &dst->u.tdd128, 1u, conv, pdsch_TimeslotsCodes);
  }
}

void convert_pdsch_info_r7(const PDSCH_Info_r7* src, umts_pdsch_info_r7* dst) {
  dst->tfcs_ID = src->tfcs_ID;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_common_timeslot_info, commonTimeslotInfo);
  convert_pdsch_info_r7_tdd_option(&src->tddOption, &dst->tddOption);
}

/* The entries of this list are the system information itself, with no SFN time. */
void convert_pdsch_sys_info_vhcr_r7(const PDSCH_SysInfo_VHCR_r7* src, umts_pdsch_sys_info_vhcr_r7* dst) {
  UMTS_CONVERT_SHARED_CH_SYS_INFO(src, dst, pdsch_Identity, convert_pdsch_info_r7, pdsch_Info, pdsch_Info, dsch_TransportChannelsInfo,
                                  dsch_TFCS);
}

void convert_pdsch_sysinfo_list_vhcr_r7(const PDSCH_SysInfoList_VHCR_r7* src, umts_pdsch_sysinfo_list_vhcr_r7* dst) {
  convert_list<PDSCH_SysInfo_VHCR_r7, 8u>(src, dst, convert_pdsch_sys_info_vhcr_r7);
}

/* ==== PRACH of 1.28 Mcps (r4) ============================================================== */

/* The Sync-UL codes bitmap is 8 bits, told as 8 octets: the copy is held to the field's four
   octets. What the longer copy ran over is stored after it (prxUpPCHdes and powerRampStep
   here; mmax after the E-RUCCH bitmap; the next entry in the v770 tdd128 list) or would
   have come from beyond the decoded string (after the last entry of that list): there the
   record keeps its zero. */
void convert_sync_ul_codes_bitmap(const Sync_UL_Codes_Bitmap* src, umts_bit_string32* dst) { umts_copy_bit_string(*src, dst); }

void convert_sync_ul_info_r4(const SYNC_UL_Info_r4* src, umts_sync_ul_info_r4* dst) {
  convert_sync_ul_codes_bitmap(&src->sync_UL_Codes_Bitmap, &dst->sync_UL_Codes_Bitmap);
  dst->prxUpPCHdes = src->prxUpPCHdes;
  dst->powerRampStep = src->powerRampStep;
  dst->max_SYNC_UL_Transmissions = src->max_SYNC_UL_Transmissions;
  dst->mmax = src->mmax;
}

void convert_prach_chan_codes_lcr_r4(const PRACH_ChanCodes_LCR_r4* src, umts_prach_chan_codes_lcr_r4* dst) {
  dst->count = src->n;
  for (uint32_t i = 0; i < src->n && i < 4u; i++) dst->codes[i] = src->elem[i];
}

void convert_fpach_info_r4(const FPACH_Info_r4* src, umts_fpach_info_r4* dst) {
  dst->timeslot = src->timeslot;
  dst->channelisationCode = src->channelisationCode;
  convert_midamble_shift_and_burst_type_lcr_r4(&src->midambleShiftAndBurstType, &dst->midambleShiftAndBurstType);
  dst->wi = src->wi;
}

void convert_prach_definition_lcr_r4(const PRACH_Definition_LCR_r4* src, umts_prach_definition_lcr_r4* dst) {
  dst->timeslot = src->timeslot;
  convert_prach_chan_codes_lcr_r4(&src->prach_ChanCodes_LCR, &dst->prach_ChanCodes_LCR);
  convert_midamble_shift_and_burst_type_lcr_r4(&src->midambleShiftAndBurstType, &dst->midambleShiftAndBurstType);
  convert_fpach_info_r4(&src->fpach_Info, &dst->fpach_Info);
}

void convert_prach_rach_info_lcr_r4(const PRACH_RACH_Info_LCR_r4* src, umts_prach_rach_info_lcr_r4* dst) {
  convert_sync_ul_info_r4(&src->sync_UL_Info, &dst->sync_UL_Info);
  convert_list<PRACH_Definition_LCR_r4, 8u>(&src->prach_DefinitionList, &dst->prach_DefinitionList, convert_prach_definition_lcr_r4);
}

void convert_access_service_class_tdd_lcr_r4_subchannel_size(const AccessServiceClass_TDD_LCR_r4_subchannelSize* src,
                                                             umts_subchannel_size* dst) {
  convert_subchannel_size_tags(src, dst);
}

void convert_access_service_class_tdd_lcr_r4(const AccessServiceClass_TDD_LCR_r4* src, umts_access_service_class_tdd_lcr_r4* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    umts_copy_bit_string(src->availableSYNC_UlCodesIndics, &dst->availableSYNC_UlCodesIndics);
  }
  convert_access_service_class_tdd_lcr_r4_subchannel_size(&src->subchannelSize, &dst->subchannelSize);
}

void convert_prach_partitioning_lcr_r4(const PRACH_Partitioning_LCR_r4* src, umts_prach_partitioning_lcr_r4* dst) {
  convert_list<ASCSetting_TDD_LCR_r4, 8u>(src, dst, [](const ASCSetting_TDD_LCR_r4* e, umts_asc_setting_tdd_lcr_r4* d) {
    UMTS_CONVERT_OPTIONAL(e, d, 1u, convert_access_service_class_tdd_lcr_r4, accessServiceClass_TDD_LCR);
  });
}

void convert_prach_system_information_lcr_r4(const PRACH_SystemInformation_LCR_r4* src, umts_prach_system_information_lcr_r4* dst) {
  convert_prach_rach_info_lcr_r4(&src->prach_RACH_Info_LCR, &dst->prach_RACH_Info_LCR);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_transport_format_set_lcr, rach_TransportFormatSet_LCR);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_prach_partitioning_lcr_r4, prach_Partitioning_LCR);
}

void convert_prach_system_information_list_lcr_r4(const PRACH_SystemInformationList_LCR_r4* src,
                                                  umts_prach_system_information_list_lcr_r4* dst) {
  convert_list<PRACH_SystemInformation_LCR_r4, 16u>(src, dst, convert_prach_system_information_lcr_r4);
}

/* ==== PRACH of 7.68 Mcps (VHCR r7) and PRACH-Partitioning-r7 =============================== */

/* sf32 and sf16 alike: the count, then `count * 4` octets of codes (at most the 16 of both). */
void convert_tdd768_prach_c_code_list(const TDD768_PRACH_CCodeList* src, umts_tdd768_prach_ccode_list* dst) {
  dst->choice_tag = src->t;
  const uint32_t* codes = nullptr;
  uint32_t n = 0;
  if (src->t == 1 && src->u.sf32 != nullptr) {
    n = src->u.sf32->n;
    codes = src->u.sf32->elem;
  } else if (src->t == 2 && src->u.sf16 != nullptr) {
    n = src->u.sf16->n;
    codes = src->u.sf16->elem;
  }
  if (codes == nullptr) return;
  dst->count = n;
  std::memcpy(dst->codes, codes, (n < 16u ? n : 16u) * sizeof dst->codes[0]);
}

void convert_prach_rach_info_vhcr_r7(const PRACH_RACH_Info_VHCR_r7* src, umts_prach_rach_info_vhcr_r7* dst) {
  dst->timeslot = src->timeslot;
  convert_tdd768_prach_c_code_list(&src->channelisationCodeList, &dst->channelisationCodeList);
  dst->prach_Midamble = src->prach_Midamble;
}

void convert_prach_system_information_vhcr_r7(const PRACH_SystemInformation_VHCR_r7* src, umts_prach_system_information_vhcr_r7* dst) {
  convert_prach_rach_info_vhcr_r7(&src->prach_RACH_Info, &dst->prach_RACH_Info);
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    convert_prach_partitioning_r7(&src->prach_Partitioning, &dst->prach_Partitioning_r7);
  }
}

void convert_prach_system_information_list_vhcr_r7(const PRACH_SystemInformationList_VHCR_r7* src,
                                                   umts_prach_system_information_list_vhcr_r7* dst) {
  convert_list<PRACH_SystemInformation_VHCR_r7, 16u>(src, dst, convert_prach_system_information_vhcr_r7);
}

/* size2 stores its subchannel as a 32-bit word; size4, size8 and size16 their bit string,
   `numbits` and then `numbits` octets, held to the field's four octets: size8 and size16
   (8 and 16 bits) would read past the decoded string, which is not done. */
void convert_access_service_class_tdd_r7_subchannel_size(const AccessServiceClass_TDD_r7_subchannelSize* src,
                                                         umts_subchannel_size_r7* dst) {
  convert_subchannel_size_tags(src, dst);
  if (src->t == 5 && src->u.size16 != nullptr && (src->u.size16->m & 1u)) {
    dst->u.size16.presence_bitmask |= 1u;
    umts_copy_bit_string(src->u.size16->subchannels, &dst->u.size16.subchannels);
  }
}

void convert_access_service_class_tdd_r7(const AccessServiceClass_TDD_r7* src, umts_access_service_class_tdd_r7* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    umts_copy_bit_string(src->channelisationCodeIndices, &dst->channelisationCodeIndices);
  }
  convert_access_service_class_tdd_r7_subchannel_size(&src->subchannelSize, &dst->subchannelSize);
}

/* The r7 forms keep an 8-bit count where PRACH-Partitioning has 32 bits. */
void convert_prach_partitioning_r7_fdd(const PRACH_Partitioning_r7_fdd* src, umts_prach_partitioning_r7_fdd* dst) {
  convert_list<ASCSetting_FDD, 8u>(src, dst, [](const ASCSetting_FDD* e, umts_asc_setting_fdd* d) {
    UMTS_CONVERT_OPTIONAL(e, d, 1u, convert_access_service_class_fdd, accessServiceClass_FDD);
  });
}

void convert_prach_partitioning_r7_tdd(const PRACH_Partitioning_r7_tdd* src, umts_prach_partitioning_r7_tdd* dst) {
  convert_list<ASCSetting_TDD_r7, 8u>(src, dst, [](const ASCSetting_TDD_r7* e, umts_asc_setting_tdd_r7* d) {
    UMTS_CONVERT_OPTIONAL(e, d, 1u, convert_access_service_class_tdd_r7, accessServiceClass_TDD);
  });
}

/* The v770 tdd128 PRACH list: each entry's bitmap runs (told 8 octets) over the next entry,
   which is converted afterwards; see convert_sync_ul_codes_bitmap. */
void convert_prach_system_information_list_lcr_v770ext(const PRACH_SystemInformationList_LCR_v770ext* src,
                                                       umts_prach_system_information_list_lcr_v770ext* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<PRACH_SystemInformation_LCR_v770ext>(src, 16u, [dst](const PRACH_SystemInformation_LCR_v770ext* e, uint32_t i) {
    convert_sync_ul_codes_bitmap(&e->prach_RACH_Info_LCR.e_RUCCH_Sync_UL_Codes_Bitmap, &dst->e_RUCCH_Sync_UL_Codes_Bitmap[i]);
  });
}

/* ==== v4b0 tdd128SpecificInfo and the 1.28 Mcps S-CCPCH extensions ========================= */

void convert_pnbsch_allocation_r4(const PNBSCH_Allocation_r4* src, umts_pnbsch_allocation_r4* dst) {
  dst->numberOfRepetitionsPerSFNPeriod = src->numberOfRepetitionsPerSFNPeriod;
}

void convert_open_loop_power_control_ipdl_tdd_r4(const OpenLoopPowerControl_IPDL_TDD_r4* src, umts_open_loop_power_control_ipdl_tdd* dst) {
  dst->ipdl_alpha = src->ipdl_alpha;
  dst->maxPowerIncrease = src->maxPowerIncrease;
}

void convert_individual_timeslot_info_lcr_r4_ext(const IndividualTimeslotInfo_LCR_r4_ext* src,
                                                 umts_individual_timeslot_info_lcr_r4_ext* dst) {
  convert_midamble_shift_and_burst_type_lcr_r4(&src->midambleShiftAndBurstType, &dst->midambleShiftAndBurstType);
  dst->modulation = src->modulation;
  dst->ss_TPC_Symbols = src->ss_TPC_Symbols;
}

void convert_sccpch_system_information_lcr_r4_ext(const SCCPCH_SystemInformation_LCR_r4_ext* src,
                                                  umts_sccpch_system_information_lcr_r4_ext* dst) {
  convert_individual_timeslot_info_lcr_r4_ext(&src->secondaryCCPCH_LCR_Extensions.individualTimeslotLCR_Ext, &dst->individualTimeslotLCR_Ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_pich_info_lcr_r4, pich_Info);
}

void convert_sccpch_system_information_list_lcr_r4_ext(const SCCPCH_SystemInformationList_LCR_r4_ext* src,
                                                       umts_sccpch_system_information_list_lcr_r4_ext* dst) {
  convert_list<SCCPCH_SystemInformation_LCR_r4_ext, 16u>(src, dst, convert_sccpch_system_information_lcr_r4_ext);
}

void convert_sysinfotype5_v4b0ext_ies_tdd128_specific_info(const SysInfoType5_v4b0ext_IEs_tdd128SpecificInfo* src,
                                                           umts_sib5_tdd128_specific_info* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_pusch_sysinfo_list_sfn_lcr_r4, pusch_SysInfoList_SFN);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_pdsch_sysinfo_list_sfn_lcr_r4, pdsch_SysInfoList_SFN);
  if (src->m & 4u) {
    dst->presence_bitmask |= 4u;
    dst->tstd_Indicator = src->pCCPCH_LCR_Extensions.tstd_Indicator;
  }
  convert_sccpch_system_information_list_lcr_r4_ext(&src->sCCPCH_LCR_ExtensionsList, &dst->sCCPCH_LCR_ExtensionsList);
}

/* ==== v770: tdd768 and tdd128 channels, HCR/VHCR S-CCPCH list ============================== */

void convert_sysinfotype5_v770ext_ies_mode_specific_info_tdd768(const SysInfoType5_v770ext_IEs_modeSpecificInfo_tdd768* src,
                                                                umts_sib5_v770_mode_specific_info_tdd768* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_pusch_sysinfo_list_sfn_vhcr, pusch_SysInfoList_SFN);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_pdsch_sysinfo_list_vhcr_r7, pdsch_SysInfoList_SFN);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_prach_system_information_list_vhcr_r7, prach_SystemInformationList);
}

void convert_sysinfotype5_v770ext_ies_mode_specific_info_tdd128(const SysInfoType5_v770ext_IEs_modeSpecificInfo_tdd128* src,
                                                                umts_sib5_v770_mode_specific_info_tdd128* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_prach_system_information_list_lcr_v770ext, prach_SystemInformationList);
}

void convert_sccpch_channelisation_code_list_vhcr(const SCCPCH_ChannelisationCodeList_VHCR* src,
                                                  umts_sccpch_channelisation_code_list_vhcr* dst) {
  dst->count = src->n;
  for (uint32_t i = 0; i < src->n && i < 32u; i++) dst->codes[i] = src->elem[i];
}

void convert_secondary_ccpch_info_hcr_vhcr_r7(const SecondaryCCPCH_Info_HCR_VHCR_r7* src, umts_secondary_ccpch_info_hcr_vhcr_r7* dst) {
  const SecondaryCCPCH_Info_HCR_VHCR_r7_modeSpecificInfo& mode = src->modeSpecificInfo;
  dst->choice_tag = mode.t;
  if (mode.t == 1 && mode.u.tdd384 != nullptr) {
    convert_individual_timeslot_info_r7(&mode.u.tdd384->individualTimeslotInfo, &dst->u.tdd384.individualTimeslotInfo);
    convert_sccpch_channelisation_code_list(&mode.u.tdd384->channelisationCode, &dst->u.tdd384.channelisationCode);
  } else if (mode.t == 2 && mode.u.tdd768 != nullptr) {
    convert_individual_timeslot_info_vhcr(&mode.u.tdd768->individualTimeslotInfo, &dst->u.tdd768.individualTimeslotInfo);
    convert_sccpch_channelisation_code_list_vhcr(&mode.u.tdd768->channelisationCode, &dst->u.tdd768.channelisationCode);
  }
}

void convert_pich_info_hcr_vhcr_r7(const PICH_Info_HCR_VHCR_r7* src, umts_pich_info_hcr_vhcr_r7* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->channelisationCode.choice_tag = src->channelisationCode.t;
    if (src->channelisationCode.t == 1) dst->channelisationCode.u.tdd384 = src->channelisationCode.u.tdd384;
    else if (src->channelisationCode.t == 2) dst->channelisationCode.u.tdd768 = src->channelisationCode.u.tdd768;
  }
  UMTS_COPY_OPTIONAL(src, dst, 2u, timeslot);
  convert_midamble_shift_and_burst_type(&src->midambleShiftAndBurstType, &dst->midambleShiftAndBurstType);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_rep_per_length_offset_pich, repetitionPeriodLengthOffset);
  dst->pagingIndicatorLength = src->pagingIndicatorLength;
  dst->n_GAP = src->n_GAP;
  dst->n_PCH = src->n_PCH;
}

/* Each member under its own bit (0 tfcs, 1 FACH/PCH list, 2 PICH). */
void convert_sccpch_system_information_hcr_vhcr_r7(const SCCPCH_SystemInformation_HCR_VHCR_r7* src,
                                                   umts_sccpch_system_information_hcr_vhcr_r7* dst) {
  convert_secondary_ccpch_info_hcr_vhcr_r7(&src->secondaryCCPCH_Info, &dst->secondaryCCPCH_Info);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_tfcs, tfcs);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_fach_pch_information_list, fach_PCH_InformationList);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_pich_info_hcr_vhcr_r7, pich_Info);
}

void convert_sccpch_system_information_list_hcr_vhcr_r7(const SCCPCH_SystemInformationList_HCR_VHCR_r7* src,
                                                        umts_sccpch_system_information_list_hcr_vhcr_r7* dst) {
  convert_list<SCCPCH_SystemInformation_HCR_VHCR_r7, 16u>(src, dst, convert_sccpch_system_information_hcr_vhcr_r7);
}
