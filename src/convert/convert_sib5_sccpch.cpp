/*
 * SIB5: the S-CCPCH system information list. Per secondary common control physical channel
 * its physical parameters, TFCS, FACH and PCH transport channels and the PICH that goes with
 * it; also the timeslot and midamble records that the TDD channel records reuse.
 */
#include "convert_frame.h"
#include "convert_list.h"
#include "umts_sib_convert.h"

/* Bit 1 stands for the FACH/PCH list and for the PICH alike (a PICH sets bit 1, not bit 2):
   a reader learns of a PICH from the tag of pich_Info. */
void convert_sccpch_system_information_list(const SCCPCH_SystemInformationList* src,
                                            umts_sccpch_system_information_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<SCCPCH_SystemInformation>(src, 16u, [dst](const SCCPCH_SystemInformation* entry, uint32_t i) {
    umts_sccpch_system_information* out = &dst->entries[i];
    convert_secondary_ccpch_info(&entry->secondaryCCPCH_Info, &out->secondaryCCPCH_Info);
    UMTS_CONVERT_OPTIONAL(entry, out, 1u, convert_tfcs, tfcs);
    UMTS_CONVERT_OPTIONAL(entry, out, 2u, convert_fach_pch_information_list, fach_PCH_InformationList);
    if (entry->m & 4u) {
      out->presence_bitmask |= 2u;
      convert_pich_info(&entry->pich_Info, &out->pich_Info);
    }
  });
}

void convert_secondary_ccpch_info(const SecondaryCCPCH_Info* src, umts_secondary_ccpch_info* dst) {
  const SecondaryCCPCH_Info_modeSpecificInfo& mode = src->modeSpecificInfo;
  dst->choice_tag = mode.t;
  if (mode.t == 1 && mode.u.fdd != nullptr) convert_secondary_ccpch_info_modespecific_info_fdd(mode.u.fdd, &dst->u.fdd);
  else if (mode.t == 2 && mode.u.tdd != nullptr) convert_secondary_ccpch_info_modespecific_info_tdd(mode.u.tdd, &dst->u.tdd);
}

void convert_secondary_ccpch_info_modespecific_info_fdd(const SecondaryCCPCH_Info_modeSpecificInfo_fdd* src,
                                                        umts_secondary_ccpch_info_fdd* dst) {
  dst->dummy1 = src->dummy1;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_secondary_cpich_info, dummy2);
  UMTS_COPY_OPTIONAL(src, dst, 2u, secondaryScramblingCode);
  dst->sttd_Indicator = src->sttd_Indicator;
  convert_sf256_and_code_num(&src->sf_AndCodeNumber, &dst->sf_AndCodeNumber);
  dst->pilotSymbolExistence = src->pilotSymbolExistence;
  dst->tfci_Existence = src->tfci_Existence;
  dst->positionFixedOrFlexible = src->positionFixedOrFlexible;
  dst->timingOffset = src->timingOffset; /* the octet widened, never sign-extended */
}

void convert_secondary_ccpch_info_modespecific_info_tdd(const SecondaryCCPCH_Info_modeSpecificInfo_tdd* src,
                                                        umts_secondary_ccpch_info_tdd* dst) {
  convert_common_timeslot_info_sccpch(&src->commonTimeslotInfo, &dst->commonTimeslotInfo);
  convert_individual_timeslot_info(&src->individualTimeslotInfo, &dst->individualTimeslotInfo);
  convert_sccpch_channelisation_code_list(&src->channelisationCode, &dst->channelisationCode);
}

void convert_secondary_cpich_info(const SecondaryCPICH_Info* src, umts_secondary_cpich_info* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, secondaryDL_ScramblingCode);
  dst->channelisationCode = src->channelisationCode;
}

/* Every alternative holds its code number in the same octet of the decoded union. */
void convert_sf256_and_code_num(const SF256_AndCodeNumber* src, umts_sf256_and_code_number* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 1 && src->t <= 7) dst->u.sf4 = src->u.sf4;
}

void convert_sf256_and_code_number(const SF256_AndCodeNumber* src, umts_sf256_and_code_number* dst) {
  convert_sf256_and_code_num(src, dst);
}

/* ---- TDD timeslots ---------------------------------------------------------------------- */

namespace {
/* repetitionPeriod4 to 64: one layout, the length and the offset. */
template <class Src>
void copy_length_offset(const Src* src, umts_repetition_period_length_offset* dst) {
  if (src == nullptr) return;
  dst->length = src->length;
  dst->offset = src->offset;
}
}  // namespace

void convert_common_timeslot_info_sccpch(const CommonTimeslotInfoSCCPCH* src, umts_common_timeslot_info_sccpch* dst) {
  dst->secondInterleavingMode = src->secondInterleavingMode;
  UMTS_COPY_OPTIONAL(src, dst, 1u, tfci_Coding);
  dst->puncturingLimit = src->puncturingLimit;
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_repetition_period_length_and_offset, repetitionPeriodLengthAndOffset);
}

/* repetitionPeriod1 is the tag alone; repetitionPeriod2 puts its offset in the first octet,
   where the longer periods hold their length. */
void convert_repetition_period_length_and_offset(const RepetitionPeriodLengthAndOffset* src,
                                                 umts_repetition_period_length_and_offset* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 2:
      if (src->u.repetitionPeriod2 != nullptr) dst->u.repetitionPeriod2 = src->u.repetitionPeriod2->offset;
      break;
    case 3: convert_repetition_period_n_length(src->u.repetitionPeriod4, &dst->u.repetitionPeriod4); break;
    case 4: copy_length_offset(src->u.repetitionPeriod8, &dst->u.repetitionPeriod8); break;
    case 5: copy_length_offset(src->u.repetitionPeriod16, &dst->u.repetitionPeriod16); break;
    case 6: copy_length_offset(src->u.repetitionPeriod32, &dst->u.repetitionPeriod32); break;
    case 7: copy_length_offset(src->u.repetitionPeriod64, &dst->u.repetitionPeriod64); break;
    default: break;
  }
}

/* The length and offset of repetitionPeriod4 to 64, which share one layout. */
void convert_repetition_period_n_length(const RepetitionPeriodLengthAndOffset_repetitionPeriod4* src,
                                        umts_repetition_period_length_offset* dst) {
  copy_length_offset(src, dst);
}

void convert_common_timeslot_info(const CommonTimeslotInfo* src, umts_common_timeslot_info* dst) {
  dst->secondInterleavingMode = src->secondInterleavingMode;
  UMTS_COPY_OPTIONAL(src, dst, 1u, tfci_Coding);
  dst->puncturingLimit = src->puncturingLimit;
  if (src->m & 2u) {
    dst->presence_bitmask |= 2u;
    dst->repetitionPeriodAndLength.choice_tag = src->repetitionPeriodAndLength.t;
    /* Tags 2 to 7 hold their length in the same octet. */
    if (src->repetitionPeriodAndLength.t >= 2 && src->repetitionPeriodAndLength.t <= 7)
      dst->repetitionPeriodAndLength.u.repetitionPeriod2 = src->repetitionPeriodAndLength.u.repetitionPeriod2;
  }
}

void convert_individual_timeslot_info(const IndividualTimeslotInfo* src, umts_individual_timeslot_info* dst) {
  dst->timeslotNumber = src->timeslotNumber;
  dst->tfci_Existence = src->tfci_Existence;
  convert_midamble_shift_and_burst_type(&src->midambleShiftAndBurstType, &dst->midambleShiftAndBurstType);
}

void convert_midamble_shift_and_burst_type(const MidambleShiftAndBurstType* src, umts_midamble_shift_and_burst_type* dst) {
  const MidambleShiftAndBurstType_burstType& burst = src->burstType;
  dst->choice_tag = burst.t;
  if (burst.t == 1 && burst.u.type1 != nullptr) convert_midamble_shift_and_burst_type_burst_type_type1(burst.u.type1, &dst->u.type1);
  else if (burst.t == 2 && burst.u.type2 != nullptr) convert_midamble_shift_and_burst_type_burst_type_type2(burst.u.type2, &dst->u.type2);
  else if (burst.t == 3 && burst.u.type3 != nullptr) convert_midamble_shift_and_burst_type_burst_type_type3(burst.u.type3, &dst->u.type3);
}

void convert_midamble_shift_and_burst_type_burst_type_type1(const MidambleShiftAndBurstType_burstType_type1* src,
                                                            umts_midamble_burst_type* dst) {
  dst->midambleConfiguration = src->midambleConfigurationBurstType1and3;
  convert_midamble_shift_and_burst_type_midamble_allocation_mode(
      src->midambleAllocationMode.t, 3u,
      src->midambleAllocationMode.u.ueSpecificMidamble ? &src->midambleAllocationMode.u.ueSpecificMidamble->midambleShift : nullptr,
      dst);
}

void convert_midamble_shift_and_burst_type_burst_type_type2(const MidambleShiftAndBurstType_burstType_type2* src,
                                                            umts_midamble_burst_type* dst) {
  dst->midambleConfiguration = src->midambleConfigurationBurstType2;
  convert_midamble_shift_and_burst_type_midamble_allocation_mode(
      src->midambleAllocationMode.t, 3u,
      src->midambleAllocationMode.u.ueSpecificMidamble ? &src->midambleAllocationMode.u.ueSpecificMidamble->midambleShift : nullptr,
      dst);
}

void convert_midamble_shift_and_burst_type_burst_type_type3(const MidambleShiftAndBurstType_burstType_type3* src,
                                                            umts_midamble_burst_type* dst) {
  dst->midambleConfiguration = src->midambleConfigurationBurstType1and3;
  convert_midamble_shift_and_burst_type_midamble_allocation_mode(
      src->midambleAllocationMode.t, 2u,
      src->midambleAllocationMode.u.ueSpecificMidamble ? &src->midambleAllocationMode.u.ueSpecificMidamble->midambleShift : nullptr,
      dst);
}

/* The mode's tag, and the shift when the tag is that of ueSpecificMidamble in this burst type
   (3 after defaultMidamble and commonMidamble in types 1 and 2; 2 in type 3). */
void convert_midamble_shift_and_burst_type_midamble_allocation_mode(uint32_t tag, uint32_t ue_specific_tag,
                                                                    const uint8_t* midamble_shift,
                                                                    umts_midamble_burst_type* dst) {
  dst->midambleAllocationMode = tag;
  if (tag == ue_specific_tag && midamble_shift != nullptr) dst->midambleShift = *midamble_shift;
}

void convert_sccpch_channelisation_code_list(const SCCPCH_ChannelisationCodeList* src,
                                             umts_sccpch_channelisation_code_list* dst) {
  dst->count = src->n;
  for (uint32_t i = 0; i < src->n && i < 16u; i++) dst->codes[i] = src->elem[i];
}

/* ---- FACH/PCH and PICH ------------------------------------------------------------------ */

void convert_fach_pch_information_list(const FACH_PCH_InformationList* src, umts_fach_pch_information_list* dst) {
  dst->count = src->count;
  umts_for_each_node<FACH_PCH_Information>(src, 8u, [dst](const FACH_PCH_Information* entry, uint32_t i) {
    umts_fach_pch_information* out = &dst->entries[i];
    convert_transport_format_set(&entry->transportFormatSet, &out->transportFormatSet);
    out->transportChannelIdentity = entry->transportChannelIdentity;
    out->ctch_Indicator = entry->ctch_Indicator;
  });
}

void convert_pich_info(const PICH_Info* src, umts_pich_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_pich_info_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr) convert_pich_info_tdd(src->u.tdd, &dst->u.tdd);
}

void convert_pich_info_fdd(const PICH_Info_fdd* src, umts_pich_info_fdd* dst) {
  dst->channelisationCode256 = src->channelisationCode256;
  dst->pi_CountPerFrame = src->pi_CountPerFrame;
  dst->sttd_Indicator = src->sttd_Indicator;
}

void convert_pich_info_tdd(const PICH_Info_tdd* src, umts_pich_info_tdd* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, channelisationCode);
  UMTS_COPY_OPTIONAL(src, dst, 2u, timeslot);
  convert_midamble_shift_and_burst_type(&src->midambleShiftAndBurstType, &dst->midambleShiftAndBurstType);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_rep_per_length_offset_pich, repetitionPeriodLengthOffset);
  dst->pagingIndicatorLength = src->pagingIndicatorLength;
  dst->n_GAP = src->n_GAP;
  dst->n_PCH = src->n_PCH;
}

/* Every alternative holds its offset in the same octet of the decoded union. */
void convert_rep_per_length_offset_pich(const RepPerLengthOffset_PICH* src, umts_rep_per_length_offset_pich* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 1 && src->t <= 9) dst->u.rpp4_2 = src->u.rpp4_2;
}
