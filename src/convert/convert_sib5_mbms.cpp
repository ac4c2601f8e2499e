/*
 * SIB5: the MBMS S-CCPCH of v690 (r6) and v770 (r7) with its MCCH, MTCH and MSCH transport
 * channels, and the additional PRACH transport formats for CCCH of v690.
 *
 * The r6 and r7 records share their shape (SCCPCH_MBMS below); each decoded type keeps a
 * function of its own name.
 */
#include "convert_frame.h"
#include "convert_list.h"
#include "umts_sib_convert.h"

namespace {

inline void conv(const SecondaryCCPCHInfo_MBMS_r6* s, umts_secondary_ccpch_info_mbms_r6* d) { convert_secondary_ccpch_info_mbms_r6(s, d); }
inline void conv(const SecondaryCCPCHInfo_MBMS_r7* s, umts_secondary_ccpch_info_mbms_r7* d) { convert_secondary_ccpch_info_mbms_r7(s, d); }
inline void conv(const SCCPCH_SystemInformation_MBMS_r6_fachCarryingMCCH* s, umts_fach_carrying_mcch* d) {
  convert_sccpch_system_information_mbms_r6_fach_carrying_mcch(s, d);
}
inline void conv(const SCCPCH_SystemInformation_MBMS_r7_fachCarryingMCCH* s, umts_fach_carrying_mcch* d) {
  convert_sccpch_system_information_mbms_r7_fach_carrying_mcch(s, d);
}
inline void conv(const SCCPCH_SystemInformation_MBMS_r6_fachCarryingMSCH* s, umts_fach_carrying_msch_r6* d) {
  convert_sccpch_system_information_mbms_r6_fach_carrying_msch(s, d);
}
inline void conv(const SCCPCH_SystemInformation_MBMS_r7_fachCarryingMSCH* s, umts_fach_carrying_msch_r7* d) {
  convert_sccpch_system_information_mbms_r7_fach_carrying_msch(s, d);
}

/* SCCPCH-SystemInformation-MBMS: the S-CCPCH, its TFCS and MCCH, then bit 0 the MTCH list
   and bit 1 the MSCH. */
template <class Src, class Dst>
void convert_sccpch_mbms(const Src* src, Dst* dst) {
  conv(&src->secondaryCCPCHInfo_MBMS, &dst->secondaryCCPCHInfo_MBMS);
  convert_tfcs(&src->transportFormatCombinationSet, &dst->transportFormatCombinationSet);
  conv(&src->fachCarryingMCCH, &dst->fachCarryingMCCH);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_mbms_fach_carrying_mtch_list, fachCarryingMTCH_List);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, conv, fachCarryingMSCH);
}

template <class Src>
void convert_mcch(const Src* src, umts_fach_carrying_mcch* dst) {
  convert_transport_format_set(&src->mcch_transportFormatSet, &dst->mcch_transportFormatSet);
  convert_mbms_mcch_configuration_info_r6(&src->mcch_ConfigurationInfo, &dst->mcch_ConfigurationInfo);
}

/* The fdd alternative of both releases: bit 0 secondaryScramblingCode. */
template <class Src, class Dst>
void convert_mbms_fdd(const Src* src, Dst* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, secondaryScramblingCode);
  dst->sttd_Indicator = src->sttd_Indicator;
  convert_sf256_and_code_number(&src->sf_AndCodeNumber, &dst->sf_AndCodeNumber);
  dst->timingOffset = src->timingOffset;
}

}  // namespace

/* ==== The v690 and v770 choices ============================================================ */

void convert_sysinfotype5_v690ext_ies_sccpch_system_information_mbms(const SysInfoType5_v690ext_IEs_sccpch_SystemInformation_MBMS* src,
                                                                    umts_sib5_v690_sccpch_mbms* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.mcchOnSCCPCHusedForNonMBMS != nullptr)
    convert_mbms_mcch_configuration_info_r6(src->u.mcchOnSCCPCHusedForNonMBMS, &dst->u.mcchOnSCCPCHusedForNonMBMS);
  else if (src->t == 2 && src->u.mcchOnSCCPCHusedOnlyForMBMS != nullptr)
    convert_sccpch_system_information_mbms_r6(src->u.mcchOnSCCPCHusedOnlyForMBMS, &dst->u.mcchOnSCCPCHusedOnlyForMBMS);
}

/* One alternative, mcchOnSCCPCHusedOnlyForMBMS (1); any other tag is stored alone. */
void convert_sysinfotype5_v770ext_ies_sccpch_system_information_mbms(const SysInfoType5_v770ext_IEs_sccpch_SystemInformation_MBMS* src,
                                                                    umts_sib5_v770_sccpch_mbms* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.mcchOnSCCPCHusedOnlyForMBMS != nullptr)
    convert_sccpch_system_information_mbms_r7(src->u.mcchOnSCCPCHusedOnlyForMBMS, &dst->u.mcchOnSCCPCHusedOnlyForMBMS);
}

/* ==== MCCH, MTCH, MSCH ===================================================================== */

void convert_um_rlc_out_o_seq_delivery_info_r6(const UM_RLC_OutOSeqDelivery_Info_r6* src, umts_um_rlc_out_o_seq_delivery_info* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, timer_OSD);
  dst->windowSize_OSD = src->windowSize_OSD;
}

void convert_rlc_info_mcch_r6(const RLC_Info_MCCH_r6* src, umts_rlc_info_mcch* dst) {
  dst->dl_UM_RLC_LI_size = src->dl_UM_RLC_LI_size;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_um_rlc_out_o_seq_delivery_info_r6, dl_UM_RLC_OutOSeqDelivery_Info);
}

void convert_mbms_mcch_configuration_info_r6(const MBMS_MCCH_ConfigurationInfo_r6* src, umts_mbms_mcch_configuration_info* dst) {
  dst->accessInfoPeriodCoefficient = src->accessInfoPeriodCoefficient;
  dst->repetitionPeriodCoefficient = src->repetitionPeriodCoefficient;
  dst->modificationPeriodCoefficient = src->modificationPeriodCoefficient;
  convert_rlc_info_mcch_r6(&src->rlc_Info, &dst->rlc_Info);
  UMTS_COPY_OPTIONAL(src, dst, 1u, tctf_Presence);
}

void convert_sccpch_system_information_mbms_r6_fach_carrying_mcch(const SCCPCH_SystemInformation_MBMS_r6_fachCarryingMCCH* src,
                                                                 umts_fach_carrying_mcch* dst) {
  convert_mcch(src, dst);
}

void convert_sccpch_system_information_mbms_r7_fach_carrying_mcch(const SCCPCH_SystemInformation_MBMS_r7_fachCarryingMCCH* src,
                                                                 umts_fach_carrying_mcch* dst) {
  convert_mcch(src, dst);
}

void convert_mbms_fach_carrying_mtch_list(const MBMS_FACHCarryingMTCH_List* src, umts_fach_carrying_mtch_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<TransportFormatSet>(src, 8u, [dst](const TransportFormatSet* tfs, uint32_t i) {
    convert_transport_format_set(tfs, &dst->entries[i]);
  });
}

/* The scheduling period's offset: one octet for periods 32 to 256, 16 bits for 512 and 1024. */
void convert_mbms_msch_scheduling_info(const MBMS_MSCHSchedulingInfo* src, umts_mbms_msch_scheduling_info* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 1 && src->t <= 4) dst->offset = src->u.schedulingPeriod_32_Offset;
  else if (src->t == 5 || src->t == 6) dst->offset = src->u.schedulingPeriod_512_Offset;
}

/* r6: the format set, then the MSCH configuration under bits 0 to 2. */
void convert_sccpch_system_information_mbms_r6_fach_carrying_msch(const SCCPCH_SystemInformation_MBMS_r6_fachCarryingMSCH* src,
                                                                 umts_fach_carrying_msch_r6* dst) {
  convert_transport_format_set(&src->msch_transportFormatSet, &dst->msch_transportFormatSet);
  const MBMS_MSCH_ConfigurationInfo_r6& cfg = src->dummy;
  if (cfg.m & 1u) {
    dst->presence_bitmask |= 1u;
    convert_mbms_msch_scheduling_info(&cfg.mschShedulingInfo, &dst->mschShedulingInfo);
  }
  if (cfg.m & 2u) {
    dst->presence_bitmask |= 2u;
    dst->dl_UM_RLC_LI_size = cfg.rlc_Info.dl_UM_RLC_LI_size;
  }
  if (cfg.m & 4u) {
    dst->presence_bitmask |= 4u;
    dst->tctf_Presence = cfg.tctf_Presence;
  }
}

void convert_sccpch_system_information_mbms_r7_fach_carrying_msch(const SCCPCH_SystemInformation_MBMS_r7_fachCarryingMSCH* src,
                                                                 umts_fach_carrying_msch_r7* dst) {
  convert_transport_format_set(&src->msch_transportFormatSet, &dst->msch_transportFormatSet);
}

/* ==== The MBMS S-CCPCH ===================================================================== */

void convert_common_timeslot_info_mbms(const CommonTimeslotInfoMBMS* src, umts_common_timeslot_info_mbms* dst) {
  dst->secondInterleavingMode = src->secondInterleavingMode;
  UMTS_COPY_OPTIONAL(src, dst, 1u, tfci_Coding);
  dst->puncturingLimit = src->puncturingLimit;
}

void convert_secondary_ccpch_info_mbms_r6(const SecondaryCCPCHInfo_MBMS_r6* src, umts_secondary_ccpch_info_mbms_r6* dst) {
  const SecondaryCCPCHInfo_MBMS_r6_modeSpecificInfo& mode = src->modeSpecificInfo;
  dst->choice_tag = mode.t;
  if (mode.t == 1 && mode.u.fdd != nullptr) {
    convert_mbms_fdd(mode.u.fdd, &dst->u.fdd);
  } else if (mode.t == 2 && mode.u.tdd384 != nullptr) {
    convert_common_timeslot_info_mbms(&mode.u.tdd384->commonTimeslotInfoMBMS, &dst->u.tdd384.commonTimeslotInfoMBMS);
    convert_downlink_timeslots_codes(&mode.u.tdd384->downlinkTimeslotsCodes, &dst->u.tdd384.downlinkTimeslotsCodes);
  } else if (mode.t == 3 && mode.u.tdd128 != nullptr) {
    convert_common_timeslot_info_mbms(&mode.u.tdd128->commonTimeslotInfoMBMS, &dst->u.tdd128.commonTimeslotInfoMBMS);
    convert_downlink_timeslots_codes_lcr_r4(&mode.u.tdd128->downlinkTimeslotsCodes, &dst->u.tdd128.downlinkTimeslotsCodes);
  }
}

/* r7: tdd768 is the third alternative and tdd128 moves to the fourth; the fdd modulation is
   optional (bit 1), the TDD ones are not. */
void convert_secondary_ccpch_info_mbms_r7(const SecondaryCCPCHInfo_MBMS_r7* src, umts_secondary_ccpch_info_mbms_r7* dst) {
  const SecondaryCCPCHInfo_MBMS_r7_modeSpecificInfo& mode = src->modeSpecificInfo;
  dst->choice_tag = mode.t;
  if (mode.t == 1 && mode.u.fdd != nullptr) {
    const SecondaryCCPCHInfo_MBMS_r7_modeSpecificInfo_fdd* fdd = mode.u.fdd;
    convert_mbms_fdd(fdd, &dst->u.fdd);
    if (fdd->m & 2u) {
      dst->u.fdd.presence_bitmask |= 2u;
      dst->u.fdd.modulation.choice_tag = fdd->modulation.t;
      if (fdd->modulation.t == 2) dst->u.fdd.modulation.u.mod16QAM = fdd->modulation.u.mod16QAM;
    }
  } else if (mode.t == 2 && mode.u.tdd384 != nullptr) {
    convert_common_timeslot_info_mbms(&mode.u.tdd384->commonTimeslotInfoMBMS, &dst->u.tdd384.commonTimeslotInfoMBMS);
    convert_downlink_timeslots_codes_r7(&mode.u.tdd384->downlinkTimeslotsCodes, &dst->u.tdd384.downlinkTimeslotsCodes);
    dst->u.tdd384.modulation = mode.u.tdd384->modulation;
  } else if (mode.t == 3 && mode.u.tdd768 != nullptr) {
    convert_common_timeslot_info_mbms(&mode.u.tdd768->commonTimeslotInfoMBMS, &dst->u.tdd768.commonTimeslotInfoMBMS);
    convert_downlink_timeslots_codes_vhcr(&mode.u.tdd768->downlinkTimeslotsCodes, &dst->u.tdd768.downlinkTimeslotsCodes);
    dst->u.tdd768.modulation = mode.u.tdd768->modulation;
  } else if (mode.t == 4 && mode.u.tdd128 != nullptr) {
    convert_secondary_ccpch_info_mbms_r7_mode_specific_info_tdd128(mode.u.tdd128, &dst->u.tdd128);
  }
}

/* mbsfnSpecialTimeSlot and modulation travel together, whatever the option of the special
   timeslot says (absent, it is the decoder's zero); the record has no bit for it. */
void convert_secondary_ccpch_info_mbms_r7_mode_specific_info_tdd128(const SecondaryCCPCHInfo_MBMS_r7_modeSpecificInfo_tdd128* src,
                                                                    umts_secondary_ccpch_info_mbms_r7_tdd128* dst) {
  convert_common_timeslot_info_mbms(&src->commonTimeslotInfoMBMS, &dst->commonTimeslotInfoMBMS);
  convert_downlink_timeslots_codes_lcr_r4(&src->downlinkTimeslotsCodes, &dst->downlinkTimeslotsCodes);
  dst->mbsfnSpecialTimeSlot = src->mbsfnSpecialTimeSlot;
  dst->modulation = src->modulation;
}

void convert_sccpch_system_information_mbms_r6(const SCCPCH_SystemInformation_MBMS_r6* src, umts_sccpch_system_information_mbms_r6* dst) {
  convert_sccpch_mbms(src, dst);
}

void convert_sccpch_system_information_mbms_r7(const SCCPCH_SystemInformation_MBMS_r7* src, umts_sccpch_system_information_mbms_r7* dst) {
  convert_sccpch_mbms(src, dst);
}

/* ==== Additional PRACH transport formats for CCCH ========================================== */

void convert_additional_prach_tf_and_tfcs_ccch_list(const AdditionalPRACH_TF_and_TFCS_CCCH_List* src,
                                                    umts_additional_prach_tf_and_tfcs_ccch_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<AdditionalPRACH_TF_and_TFCS_CCCH>(src, 16u, [dst](const AdditionalPRACH_TF_and_TFCS_CCCH* e, uint32_t i) {
    umts_additional_prach_tf_and_tfcs_ccch* out = &dst->entries[i];
    if (!(e->m & 1u)) return;
    out->presence_bitmask |= 1u;
    const AdditionalPRACH_TF_and_TFCS_CCCH_IEs& ies = e->additionalPRACH_TF_and_TFCS_CCCH_IEs;
    convert_power_offset_information(&ies.powerOffsetInformation, &out->powerOffsetInformation);
    convert_octet_mode_rlc_size_info_type2(&ies.dynamicTFInformationCCCH.octetModeRLC_SizeInfoType2, &out->dynamicTFInformationCCCH);
  });
}
