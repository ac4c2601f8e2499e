/*
 * SIB11, SIB11bis and SIB12: the tops of the three blocks (slots 6, 7 and 8), the FACH
 * measurement occasion, and the use_of_HCS / cellSelectQualityMeasure trees that choose the
 * form (RSCP, ECN0, HCS_RSCP, HCS_ECN0) of every neighbour cell record below them.
 *
 * Nothing here logs: the frame's messages are the only output of the blocks.
 */
#include <cstring>

#include "convert_frame.h"
#include "convert_meas.h"
#include "umts_sib_convert.h"

namespace {

const umts_frame_desc kSib11Frame = {
    umts_sib_sib11, "Decoded SysInfoType11\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib11:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib11bisFrame = {
    umts_sib_sib11bis, "Decoded SysInfoType11bis\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib11bis:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib12Frame = {
    umts_sib_sib12, "Decoded SysInfoType12\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib12:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

using umts_meas::both_cell_lists;
using umts_meas::both_frequencies;

}  // namespace

/* ---- The tops ---------------------------------------------------------------------------------- */

uint8_t umts_convert_sib11(umts_sib11_info* sib11) {
  rtxContext ctx;
  SysInfoType11 decoded;
  if (!umts_frame_open(&ctx, &kSib11Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType11, decoded, kSib11Frame, sib11)) return 0;
  sib11->sib12indicator = decoded.sib12indicator;
  UMTS_CONVERT_OPTIONAL(&decoded, sib11, 1u, convert_fach_measurement_occasion_info, fach_MeasurementOccasionInfo);
  convert_measurement_control_sys_info(&decoded.measurementControlSysInfo, &sib11->measurementControlSysInfo);
  if (decoded.m & 2u) {
    sib11->presence_bitmask |= 2u;
    convert_sysinfotype11_v4b0_nc_extensions(&decoded.v4b0NonCriticalExtensions, &sib11->v4b0NonCriticalExtensions);
  }
  return umts_frame_close(&ctx, &kSib11Frame);
}

uint8_t umts_convert_sib12(umts_sib12_info* sib12) {
  rtxContext ctx;
  SysInfoType12 decoded;
  if (!umts_frame_open(&ctx, &kSib12Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType12, decoded, kSib12Frame, sib12)) return 0;
  UMTS_CONVERT_OPTIONAL(&decoded, sib12, 1u, convert_fach_measurement_occasion_info, fach_MeasurementOccasionInfo);
  convert_measurement_control_sys_info(&decoded.measurementControlSysInfo, &sib12->measurementControlSysInfo);
  if (decoded.m & 2u) {
    sib12->presence_bitmask |= 2u;
    convert_sysinfotype12_v4b0_nc_extensions(&decoded.v4b0NonCriticalExtensions, &sib12->v4b0NonCriticalExtensions);
  }
  return umts_frame_close(&ctx, &kSib12Frame);
}

uint8_t umts_convert_sib11bis(umts_sib11bis_info* sib11bis) {
  rtxContext ctx;
  SysInfoType11bis decoded;
  if (!umts_frame_open(&ctx, &kSib11bisFrame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType11bis, decoded, kSib11bisFrame, sib11bis)) return 0;
  UMTS_CONVERT_OPTIONAL(&decoded, sib11bis, 1u, convert_measurement_control_sys_info_extension, measurementControlSysInfo);
  UMTS_CONVERT_OPTIONAL(&decoded, sib11bis, 2u, convert_measurement_control_sys_info_extension_lcr_r4,
                        measurementControlSysInfo_LCR);
  UMTS_CONVERT_OPTIONAL(&decoded, sib11bis, 4u, convert_measurement_control_sys_info_extension_addon_r5,
                        measurementControlSysInfoExtensionAddon_r5);
  UMTS_CONVERT_OPTIONAL(&decoded, sib11bis, 8u, convert_sysinfotype11bis_v7b0_nc_extensions, v7b0NonCriticalExtensions);
  return umts_frame_close(&ctx, &kSib11bisFrame);
}

/* ---- FACH measurement occasion ------------------------------------------------------------------ */

void convert_fach_measurement_occasion_info(const FACH_MeasurementOccasionInfo* src,
                                            umts_fach_measurement_occasion_info* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, fACH_meas_occasion_coeff);
  dst->inter_freq_FDD_meas_ind = src->inter_freq_FDD_meas_ind;
  dst->inter_freq_TDD_meas_ind = src->inter_freq_TDD_meas_ind;
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_fach_measurement_occasion_info_inter_rat_meas_ind, inter_RAT_meas_ind);
}

/* The count and all 15 entries, used or not, as the decoder laid them out. */
void convert_fach_measurement_occasion_info_inter_rat_meas_ind(const FACH_MeasurementOccasionInfo_inter_RAT_meas_ind* src,
                                                               umts_inter_rat_meas_ind* dst) {
  static_assert(sizeof *src == sizeof *dst, "count and 15 entries");
  std::memcpy(dst, src, sizeof *dst);
}

/* ---- SIB11 and SIB12: MeasurementControlSysInfo ------------------------------------------------- */

void convert_measurement_control_sys_info(const MeasurementControlSysInfo* src, umts_measurement_control_sys_info* dst) {
  convert_measurement_control_sys_info_use_of_hcs(&src->use_of_HCS, &dst->use_of_HCS);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_traffic_vol_meas_sys_info, trafficVolumeMeasSysInfo);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_ue_internal_meas_sys_info, dummy);
}

void convert_measurement_control_sys_info_use_of_hcs(const MeasurementControlSysInfo_use_of_HCS* src,
                                                     umts_use_of_hcs* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.hcs_not_used != nullptr)
    convert_measurement_control_sys_info_use_of_hcs_hcs_not_used(src->u.hcs_not_used, &dst->u.hcs_not_used);
  else if (src->t == 2 && src->u.hcs_used != nullptr)
    convert_measurement_control_sys_info_use_of_hcs_hcs_used(src->u.hcs_used, &dst->u.hcs_used);
}

void convert_measurement_control_sys_info_use_of_hcs_hcs_not_used(
    const MeasurementControlSysInfo_use_of_HCS_hcs_not_used* src, umts_hcs_not_used* dst) {
  convert_measurement_control_sys_info_use_of_hcs_hcs_not_used_cell_select_quality_measure(
      &src->cellSelectQualityMeasure, &dst->cellSelectQualityMeasure);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_inter_rat_measurement_sysinfo_b, interRATMeasurementSysInfo);
}

void convert_measurement_control_sys_info_use_of_hcs_hcs_used(const MeasurementControlSysInfo_use_of_HCS_hcs_used* src,
                                                              umts_hcs_used* dst) {
  convert_measurement_control_sys_info_use_of_hcs_hcs_used_cell_select_quality_measure(&src->cellSelectQualityMeasure,
                                                                                       &dst->cellSelectQualityMeasure);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_inter_rat_measurement_sys_info, interRATMeasurementSysInfo);
}

void convert_measurement_control_sys_info_use_of_hcs_hcs_not_used_cell_select_quality_measure(
    const MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_hcs_not_used_quality_measure* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.cpich_RSCP != nullptr)
    convert_measurement_control_sys_info_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
        src->u.cpich_RSCP, &dst->u.cpich_RSCP);
  else if (src->t == 2 && src->u.cpich_Ec_N0 != nullptr)
    convert_measurement_control_sys_info_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
        src->u.cpich_Ec_N0, &dst->u.cpich_Ec_N0);
}

void convert_measurement_control_sys_info_use_of_hcs_hcs_used_cell_select_quality_measure(
    const MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_hcs_used_quality_measure* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.cpich_RSCP != nullptr)
    convert_measurement_control_sys_info_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
        src->u.cpich_RSCP, &dst->u.cpich_RSCP);
  else if (src->t == 2 && src->u.cpich_Ec_N0 != nullptr)
    convert_measurement_control_sys_info_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ec_no(
        src->u.cpich_Ec_N0, &dst->u.cpich_Ec_N0);
}

void convert_measurement_control_sys_info_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_hcs_not_used_cpich_rscp* dst) {
  both_frequencies(src, dst, convert_intra_freq_measurement_sysinfo_rscp, convert_inter_freq_measurement_sysinfo_rscp);
}

/* Intra, then inter, as in the other branches. The letter of this branch stopped after the
   intra-frequency record and left the inter-frequency one unread whenever both came; but
   "no HCS, Ec/N0" is what most cells broadcast, with both lists, and their inter-frequency
   neighbours would never reach the record. Both are converted. */
void convert_measurement_control_sys_info_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_hcs_not_used_cpich_ec_n0* dst) {
  both_frequencies(src, dst, convert_intra_freq_measurement_sysinfo_ecno, convert_inter_freq_measurement_sysinfo_ecno);
}

void convert_measurement_control_sys_info_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_hcs_used_cpich_rscp* dst) {
  both_frequencies(src, dst, convert_intra_freq_measurement_sys_info_hcs_rscp,
                   convert_inter_freq_measurement_sys_info_hcs_rscp);
}

void convert_measurement_control_sys_info_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_hcs_used_cpich_ec_n0* dst) {
  both_frequencies(src, dst, convert_intra_freq_measurement_sys_info_hcs_ecno,
                   convert_inter_freq_measurement_sys_info_hcs_ecno);
}

/* ---- SIB11bis: MeasurementControlSysInfoExtension ----------------------------------------------- */

void convert_measurement_control_sys_info_extension(const MeasurementControlSysInfoExtension* src,
                                                    umts_measurement_control_sys_info_extension* dst) {
  convert_measurement_control_sys_info_extension_use_of_hcs(&src->use_of_HCS, &dst->use_of_HCS);
}

void convert_measurement_control_sys_info_extension_use_of_hcs(const MeasurementControlSysInfoExtension_use_of_HCS* src,
                                                               umts_ext_use_of_hcs* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.hcs_not_used != nullptr)
    convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used(src->u.hcs_not_used, &dst->u.hcs_not_used);
  else if (src->t == 2 && src->u.hcs_used != nullptr)
    convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used(src->u.hcs_used, &dst->u.hcs_used);
}

void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used* src, umts_ext_hcs_not_used* dst) {
  convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used_cell_select_quality_measure(
      &src->cellSelectQualityMeasure, &dst->cellSelectQualityMeasure);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_new_inter_rat_cell_list, newInterRATCellList);
}

void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_used* src, umts_ext_hcs_used* dst) {
  convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used_cell_select_quality_measure(
      &src->cellSelectQualityMeasure, &dst->cellSelectQualityMeasure);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_new_inter_rat_cell_list, newInterRATCellList);
}

void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used_cell_select_quality_measure(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_ext_hcs_not_used_quality_measure* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.cpich_RSCP != nullptr)
    convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
        src->u.cpich_RSCP, &dst->u.cpich_RSCP);
  else if (src->t == 2 && src->u.cpich_Ec_N0 != nullptr)
    convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
        src->u.cpich_Ec_N0, &dst->u.cpich_Ec_N0);
}

void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used_cell_select_quality_measure(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_ext_hcs_used_quality_measure* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.cpich_RSCP != nullptr)
    convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
        src->u.cpich_RSCP, &dst->u.cpich_RSCP);
  else if (src->t == 2 && src->u.cpich_Ec_N0 != nullptr)
    convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ec_no(
        src->u.cpich_Ec_N0, &dst->u.cpich_Ec_N0);
}

void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_ext_hcs_not_used_cpich_rscp* dst) {
  both_cell_lists(src, dst, convert_new_intra_freq_cell_si_list_rscp, convert_new_inter_freq_cell_si_list_rscp);
}

/* As in SIB11: both lists, where the letter left newInterFreqCellList unread beside
   newIntraFreqCellList. */
void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_ext_hcs_not_used_cpich_ec_n0* dst) {
  both_cell_lists(src, dst, convert_new_intra_freq_cell_si_list_ecno, convert_new_inter_freq_cell_si_list_ecno);
}

void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_ext_hcs_used_cpich_rscp* dst) {
  both_cell_lists(src, dst, convert_new_intra_freq_cell_si_list_hcs_rscp, convert_new_inter_freq_cell_si_list_hcs_rscp);
}

void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_ext_hcs_used_cpich_ec_n0* dst) {
  both_cell_lists(src, dst, convert_new_intra_freq_cell_si_list_hcs_ecno, convert_new_inter_freq_cell_si_list_hcs_ecno);
}

/* ---- Heads of the SIB11 and SIB12 extension chains --------------------------------------------- */

void convert_sysinfotype11_v4b0_nc_extensions(const SysInfoType11_v4b0NonCriticalExtensions* src,
                                              umts_sib11_v4b0_nc_extensions* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysInfoType11_v4b0ext, sysInfoType11_v4b0ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension,
                        v590NonCriticalExtension);
}

void convert_sysinfotype12_v4b0_nc_extensions(const SysInfoType12_v4b0NonCriticalExtensions* src,
                                              umts_sib12_v4b0_nc_extensions* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype12_v4b0ext_ies, sysInfoType12_v4b0ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_sysinfotype12_v4b0nces_v590nce, v590NonCriticalExtension);
}
