/*
 * SIB11 and SIB12 beyond their measurement control information: the v4b0 records with the
 * LCR FACH byte, and the chains of non-critical extensions, SIB11 from v590 to v860 and
 * SIB12 from v590 to v7b0.
 *
 * The two blocks have decoded types of their own for every level but the same contents, so
 * that both fill the same records (umts_v590ext_ies, umts_v690ext_ies, umts_v6b0ext_ies and
 * umts_v7b0ext_ies, the last one shared with SIB11bis). Where the decoded type of a member is
 * the same in both, the SIB12 function passes on to the SIB11 one.
 */
#include <algorithm>
#include <cstring>

#include "convert_frame.h"
#include "convert_meas.h"
#include "umts_sib_convert.h"

namespace {

/* A v590 cell list, each element by `element`. */
template <class Element>
void v590_cells(const rtxDList* src, umts_cell_select_reselect_info_v590ext_list* dst, Element element) {
  umts_meas::copy_list<CellSelectReselectInfo_v590ext>(src, &dst->count, dst->entries, element);
}

/* The v590 extension of either block: each member by its bit, in the order of the bits. */
template <class Src, class Intra, class Inter, class Rat, class Deltas, class Reporting1b, class Event1d>
void v590_members(const Src* src, umts_v590ext_ies* dst, Intra intra, Inter inter, Rat rat, Deltas deltas,
                  Reporting1b reporting_1b, Event1d event_1d) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, intra, newIntraFrequencyCellInfoList_v590ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, inter, newInterFrequencyCellInfoList_v590ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, rat, newInterRATCellInfoList_v590ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, deltas, intraFreqEventCriteriaList_v590ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 16u, reporting_1b, intraFreqReportingCriteria_1b_r5);
  UMTS_CONVERT_OPTIONAL(src, dst, 32u, event_1d, intraFreqEvent_1d_r5);
}

}  // namespace

/* ---- v4b0 ------------------------------------------------------------------------------------- */

void convert_sysInfoType11_v4b0ext(const SysInfoType11_v4b0ext_IEs* src, umts_sib11_v4b0ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_fach_MeasurementOccasionInfo_LCR_Ext, fach_MeasurementOccasionInfo_LCR_Ext);
  convert_MeasurementControlSysInfo_LCR_r4(&src->measurementControlSysInfo_LCR, &dst->measurementControlSysInfo_LCR);
}

void convert_sysinfotype12_v4b0ext_ies(const SysInfoType12_v4b0ext_IEs* src, umts_sib12_v4b0ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_fach_measurement_occasion_info_lcr_r4_ext,
                        fach_MeasurementOccasionInfo_LCR_Ext);
  convert_measurement_control_sys_info_lcr_r4_ext(&src->measurementControlSysInfo_LCR, &dst->measurementControlSysInfo_LCR);
}

/* The record's one boolean, inter_freq_TDD128_meas_ind, is the byte. */
void convert_fach_MeasurementOccasionInfo_LCR_Ext(const FACH_MeasurementOccasionInfo_LCR_r4_ext* src, uint8_t* dst) {
  *dst = src->inter_freq_TDD128_meas_ind;
}

void convert_fach_measurement_occasion_info_lcr_r4_ext(const FACH_MeasurementOccasionInfo_LCR_r4_ext* src, uint8_t* dst) {
  *dst = src->inter_freq_TDD128_meas_ind;
}

/* ---- The links of SIB11: the extension always (it is mandatory in its link), then the next
        link under bit 0 ---------------------------------------------------------------------- */

void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension(
    const SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension* src, umts_sib11_v590_nc_extension* dst) {
  convert_SysInfoType11_v590ext_IEs(&src->sysInfoType11_v590ext, &dst->sysInfoType11_v590ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u,
                        convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions,
                        v690NonCriticalExtensions);
}

void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions(
    const umts_sib11_v690_nces_src* src, umts_sib11_v690_nc_extensions* dst) {
  convert_SysInfoType11_v690ext_IEs(&src->sysInfoType11_v690ext, &dst->sysInfoType11_v690ext);
  UMTS_CONVERT_OPTIONAL(
      src, dst, 1u,
      convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions,
      v6b0NonCriticalExtensions);
}

void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions(
    const umts_sib11_v6b0_nces_src* src, umts_sib11_v6b0_nc_extensions* dst) {
  convert_SysInfoType11_v6b0ext_IEs(&src->sysInfoType11_v6b0ext, &dst->sysInfoType11_v6b0ext);
  UMTS_CONVERT_OPTIONAL(
      src, dst, 1u,
      convert_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions,
      v770NonCriticalExtensions);
}

void convert_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions(
    const umts_sib11_v770_nces_src* src, umts_sib11_v770_nc_extensions* dst) {
  convert_SysInfoType11_v770ext_IEs(&src->sysInfoType11_v770ext, &dst->sysInfoType11_v770ext);
  UMTS_CONVERT_OPTIONAL(
      src, dst, 1u,
      convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions_v7b0NonCriticalExtensions,
      v7b0NonCriticalExtensions);
}

void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions_v7b0NonCriticalExtensions(
    const umts_sib11_v7b0_nces_src* src, umts_sib11_v7b0_nc_extensions* dst) {
  convert_SysInfoType11_v7b0ext_IEs(&src->sysInfoType11_v7b0ext, &dst->sysInfoType11_v7b0ext);
  UMTS_CONVERT_OPTIONAL(
      src, dst, 1u,
      convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions_v7b0NonCriticalExtensions_v860NonCriticalExtensions,
      v860NonCriticalExtensions);
}

void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions_v7b0NonCriticalExtensions_v860NonCriticalExtensions(
    const umts_sib11_v860_nces_src* src, umts_sib11_v860_nc_extensions* dst) {
  convert_SysInfoType11_v860ext_IEs(&src->sysInfoType11_v860ext, &dst->sysInfoType11_v860ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_SysInfoType11_nonCriticalExtensions, nonCriticalExtensions);
}

/* The one byte of the empty sequence. */
void convert_SysInfoType11_nonCriticalExtensions(const umts_sib11_nces_src* src, uint8_t* dst) {
  *dst = src->_unused;
}

/* ---- The links of SIB12 ------------------------------------------------------------------------- */

void convert_sysinfotype12_v4b0nces_v590nce(const SysInfoType12_v4b0NonCriticalExtensions_v590NonCriticalExtension* src,
                                            umts_sib12_v590_nc_extension* dst) {
  convert_sysinfotype12_v590ext_ies(&src->sysInfoType12_v590ext, &dst->sysInfoType12_v590ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype12_v4b0nces_v590nce_v690nces, v690NonCriticalExtensions);
}

void convert_sysinfotype12_v4b0nces_v590nce_v690nces(
    const SysInfoType12_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions* src,
    umts_sib12_v690_nc_extensions* dst) {
  convert_sysinfotype12_v690ext_ies(&src->sysInfoType12_v690ext, &dst->sysInfoType12_v690ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype12_v4b0nces_v590nce_v690nces_v6b0nces, v6b0NonCriticalExtensions);
}

void convert_sysinfotype12_v4b0nces_v590nce_v690nces_v6b0nces(const umts_sib12_v6b0_nces_src* src,
                                                              umts_sib12_v6b0_nc_extensions* dst) {
  convert_sysinfotype12_v6b0ext_ies(&src->sysInfoType12_v6b0ext, &dst->sysInfoType12_v6b0ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype12_v4b0nces_v590nce_v690nces_v6b0nces_v7b0nces,
                        v7b0NonCriticalExtensions);
}

void convert_sysinfotype12_v4b0nces_v590nce_v690nces_v6b0nces_v7b0nces(const umts_sib12_v7b0_nces_src* src,
                                                                       umts_sib12_v7b0_nc_extensions* dst) {
  convert_sysinfotype12_v7b0ext_ies(&src->sysInfoType12_v7b0ext, &dst->sysInfoType12_v7b0ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype12_v4b0nces_v590nce_v690nces_v6b0nces_v7b0nces_nces,
                        nonCriticalExtensions);
}

void convert_sysinfotype12_v4b0nces_v590nce_v690nces_v6b0nces_v7b0nces_nces(const umts_sib12_nces_src* src, uint8_t* dst) {
  *dst = src->_unused;
}

/* ---- The extension records ---------------------------------------------------------------------- */

void convert_SysInfoType11_v590ext_IEs(const SysInfoType11_v590ext_IEs* src, umts_v590ext_ies* dst) {
  v590_members(src, dst, convert_SysInfoType11_v590ext_IEs_newIntraFrequencyCellInfoList_v590ext,
               convert_SysInfoType11_v590ext_IEs_newInterFrequencyCellInfoList_v590ext,
               convert_SysInfoType11_v590ext_IEs_newInterRATCellInfoList_v590ext, convert_Intra_FreqEventCriteriaList_v590ext,
               convert_IntraFreqReportingCriteria_1b_r5, convert_IntraFreqEvent_1d_r5);
}

void convert_sysinfotype12_v590ext_ies(const SysInfoType12_v590ext_IEs* src, umts_v590ext_ies* dst) {
  v590_members(src, dst, convert_sysinfotype12_v590ext_ies_new_intra_frequency_cell_info_list_v590ext,
               convert_sysinfotype12_v590ext_ies_new_inter_frequency_cell_info_list_v590ext,
               convert_sysinfotype12_v590ext_ies_new_inter_rat_cell_info_list_v590ext,
               convert_intra_freq_event_criteria_list_v590ext, convert_intra_freq_reporting_criteria_1b_r5,
               convert_intra_freq_event_1d_r5);
}

void convert_SysInfoType11_v690ext_IEs(const SysInfoType11_v690ext_IEs* src, umts_v690ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_Dummy_InterFreqRACHReportingInfo, dummy);
}

void convert_sysinfotype12_v690ext_ies(const SysInfoType12_v690ext_IEs* src, umts_v690ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_dummy_inter_freq_rach_reporting_info, dummy);
}

void convert_SysInfoType11_v6b0ext_IEs(const SysInfoType11_v6b0ext_IEs* src, umts_v6b0ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_InterFreqRACHReportingInfo, interFreqRACHReportingInfo);
}

void convert_sysinfotype12_v6b0ext_ies(const SysInfoType12_v6b0ext_IEs* src, umts_v6b0ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_inter_freq_rach_reporting_info, interFreqRACHReportingInfo);
}

void convert_SysInfoType11_v770ext_IEs(const SysInfoType11_v770ext_IEs* src, umts_sib11_v770ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_MBSFNFrequencyList, mbsfnFrequencyList);
}

void convert_SysInfoType11_v7b0ext_IEs(const SysInfoType11_v7b0ext_IEs* src, umts_v7b0ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_NewInterFreqCellList_v7b0ext, newInterFreqCellList);
}

void convert_sysinfotype12_v7b0ext_ies(const SysInfoType12_v7b0ext_IEs* src, umts_v7b0ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_new_inter_freq_cell_list_v7b0ext, newInterFreqCellList);
}

void convert_SysInfoType11_v860ext_IEs(const SysInfoType11_v860ext_IEs* src, umts_sib11_v860ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_MBSFNFrequencyList_v860ext, mbsfnFrequencyList);
}

/* ---- v590 members --------------------------------------------------------------------------------- */

void convert_SysInfoType11_v590ext_IEs_newIntraFrequencyCellInfoList_v590ext(
    const SysInfoType11_v590ext_IEs_newIntraFrequencyCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst) {
  v590_cells(src, dst, convert_CellSelectReselectInfo_v590ext);
}

void convert_SysInfoType11_v590ext_IEs_newInterFrequencyCellInfoList_v590ext(
    const SysInfoType11_v590ext_IEs_newInterFrequencyCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst) {
  v590_cells(src, dst, convert_CellSelectReselectInfo_v590ext);
}

void convert_SysInfoType11_v590ext_IEs_newInterRATCellInfoList_v590ext(
    const SysInfoType11_v590ext_IEs_newInterRATCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst) {
  v590_cells(src, dst, convert_CellSelectReselectInfo_v590ext);
}

void convert_sysinfotype12_v590ext_ies_new_intra_frequency_cell_info_list_v590ext(
    const SysInfoType12_v590ext_IEs_newIntraFrequencyCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst) {
  v590_cells(src, dst, convert_cell_select_reselect_info_v590ext);
}

void convert_sysinfotype12_v590ext_ies_new_inter_frequency_cell_info_list_v590ext(
    const SysInfoType12_v590ext_IEs_newInterFrequencyCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst) {
  v590_cells(src, dst, convert_cell_select_reselect_info_v590ext);
}

void convert_sysinfotype12_v590ext_ies_new_inter_rat_cell_info_list_v590ext(
    const SysInfoType12_v590ext_IEs_newInterRATCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst) {
  v590_cells(src, dst, convert_cell_select_reselect_info_v590ext);
}

/* The cell record of SIB3 and of the SIB11bis add-on. */
void convert_CellSelectReselectInfo_v590ext(const CellSelectReselectInfo_v590ext* src,
                                            umts_cell_select_reselect_info_v590ext* dst) {
  convert_cell_select_reselect_info_v590_ext(src, dst);
}

void convert_cell_select_reselect_info_v590ext(const CellSelectReselectInfo_v590ext* src,
                                               umts_cell_select_reselect_info_v590ext* dst) {
  convert_cell_select_reselect_info_v590_ext(src, dst);
}

/* The decoder's 32-bit count, and the deltas in use. */
void convert_Intra_FreqEventCriteriaList_v590ext(const Intra_FreqEventCriteriaList_v590ext* src,
                                                 umts_intra_freq_event_criteria_list_v590ext* dst) {
  static_assert(sizeof dst->deltaRSCP == sizeof src->elem, "one byte per delta, up to 8");
  dst->count = src->n;
  std::memcpy(dst->deltaRSCP, src->elem, std::min<uint32_t>(src->n, umts_meas::bound_of(dst->deltaRSCP)));
}

void convert_intra_freq_event_criteria_list_v590ext(const Intra_FreqEventCriteriaList_v590ext* src,
                                                    umts_intra_freq_event_criteria_list_v590ext* dst) {
  convert_Intra_FreqEventCriteriaList_v590ext(src, dst);
}

void convert_IntraFreqReportingCriteria_1b_r5(const IntraFreqReportingCriteria_1b_r5* src,
                                              umts_intra_freq_reporting_criteria_1b_r5* dst) {
  convert_PeriodicReportingInfo_1b(&src->periodicReportingInfo_1b, &dst->periodicReportingInfo_1b);
}

void convert_PeriodicReportingInfo_1b(const PeriodicReportingInfo_1b* src, umts_periodic_reporting_info_1b* dst) {
  dst->reportingAmount = src->reportingAmount;
  dst->reportingInterval = src->reportingInterval;
}

void convert_intra_freq_reporting_criteria_1b_r5(const IntraFreqReportingCriteria_1b_r5* src,
                                                 umts_intra_freq_reporting_criteria_1b_r5* dst) {
  convert_IntraFreqReportingCriteria_1b_r5(src, dst);
}

void convert_IntraFreqEvent_1d_r5(const IntraFreqEvent_1d_r5* src, umts_intra_freq_event_1d_r5* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, triggeringCondition);
  UMTS_COPY_OPTIONAL(src, dst, 2u, useCIO);
}

void convert_intra_freq_event_1d_r5(const IntraFreqEvent_1d_r5* src, umts_intra_freq_event_1d_r5* dst) {
  convert_IntraFreqEvent_1d_r5(src, dst);
}

/* ---- Inter-frequency RACH reporting ------------------------------------------------------------- */

void convert_Dummy_InterFreqRACHReportingInfo(const Dummy_InterFreqRACHReportingInfo* src,
                                              umts_dummy_inter_freq_rach_reporting_info* dst) {
  convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

/* 1 fdd, 2 tdd, and the two values that the dummy form has as further alternatives: 3 the
   threshold, 4 the cell count, each one byte at the start of the union. */
void convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo(
    const Dummy_InterFreqRACHReportingInfo_modeSpecificInfo* src,
    umts_dummy_inter_freq_rach_reporting_info_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr)
    convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_fdd(src->u.fdd, &dst->u.interFreqRepQuantityRACH_FDD);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_tdd(src->u.tdd, &dst->u.interFreqRepQuantityRACH_TDDList);
  else if (src->t == 3)
    dst->u.interFreqRACHReportingThreshold = src->u.interFreqRACHReportingThreshold;
  else if (src->t == 4)
    dst->u.maxReportedCellsOnRACHinterFreq = src->u.maxReportedCellsOnRACHinterFreq;
}

void convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_fdd(
    const Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_fdd* src, uint32_t* dst) {
  *dst = src->interFreqRepQuantityRACH_FDD;
}

void convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_tdd(
    const Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_tdd* src, umts_inter_freq_rep_quantity_rach_tdd_list* dst) {
  convert_InterFreqRepQuantityRACH_TDDList(&src->interFreqRepQuantityRACH_TDDList, dst);
}

void convert_dummy_inter_freq_rach_reporting_info(const Dummy_InterFreqRACHReportingInfo* src,
                                                  umts_dummy_inter_freq_rach_reporting_info* dst) {
  convert_dummy_inter_freq_rach_reporting_info_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_dummy_inter_freq_rach_reporting_info_mode_specific_info(
    const Dummy_InterFreqRACHReportingInfo_modeSpecificInfo* src,
    umts_dummy_inter_freq_rach_reporting_info_mode_specific_info* dst) {
  convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo(src, dst);
}

/* Threshold and cell count before the mode choice here, after it in the SIB12 function: the
   record is the same. */
void convert_InterFreqRACHReportingInfo(const InterFreqRACHReportingInfo* src, umts_inter_freq_rach_reporting_info* dst) {
  dst->interFreqRACHReportingThreshold = src->interFreqRACHReportingThreshold;
  dst->maxReportedCellsOnRACHinterFreq = src->maxReportedCellsOnRACHinterFreq;
  convert_InterFreqRACHReportingInfo_modeSpecificInfo(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_InterFreqRACHReportingInfo_modeSpecificInfo(const InterFreqRACHReportingInfo_modeSpecificInfo* src,
                                                         umts_inter_freq_rach_reporting_info_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr)
    convert_InterFreqRACHReportingInfo_modeSpecificInfo_fdd(src->u.fdd, &dst->u.interFreqRepQuantityRACH_FDD);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_InterFreqRACHReportingInfo_modeSpecificInfo_tdd(src->u.tdd, &dst->u.interFreqRepQuantityRACH_TDDList);
}

void convert_InterFreqRACHReportingInfo_modeSpecificInfo_fdd(const InterFreqRACHReportingInfo_modeSpecificInfo_fdd* src,
                                                             uint32_t* dst) {
  *dst = src->interFreqRepQuantityRACH_FDD;
}

void convert_InterFreqRACHReportingInfo_modeSpecificInfo_tdd(const InterFreqRACHReportingInfo_modeSpecificInfo_tdd* src,
                                                             umts_inter_freq_rep_quantity_rach_tdd_list* dst) {
  convert_InterFreqRepQuantityRACH_TDDList(&src->interFreqRepQuantityRACH_TDDList, dst);
}

/* The decoder's count, and the entries in use. */
void convert_InterFreqRepQuantityRACH_TDDList(const InterFreqRepQuantityRACH_TDDList* src,
                                              umts_inter_freq_rep_quantity_rach_tdd_list* dst) {
  static_assert(sizeof dst->entries == sizeof src->elem, "two 32-bit entries");
  dst->count = src->n;
  std::memcpy(dst->entries, src->elem,
              sizeof dst->entries[0] * std::min<uint32_t>(src->n, umts_meas::bound_of(dst->entries)));
}

void convert_inter_freq_rach_reporting_info(const InterFreqRACHReportingInfo* src, umts_inter_freq_rach_reporting_info* dst) {
  convert_inter_freq_rach_reporting_info_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
  dst->interFreqRACHReportingThreshold = src->interFreqRACHReportingThreshold;
  dst->maxReportedCellsOnRACHinterFreq = src->maxReportedCellsOnRACHinterFreq;
}

void convert_inter_freq_rach_reporting_info_mode_specific_info(const InterFreqRACHReportingInfo_modeSpecificInfo* src,
                                                               umts_inter_freq_rach_reporting_info_mode_specific_info* dst) {
  convert_InterFreqRACHReportingInfo_modeSpecificInfo(src, dst);
}

/* ---- MBSFN frequencies ---------------------------------------------------------------------------- */

void convert_MBSFNFrequencyList(const MBSFNFrequencyList* src, umts_mbsfn_frequency_list* dst) {
  umts_meas::copy_list<MBSFNFrequency>(src, &dst->count, dst->entries, convert_MBSFNFrequency);
}

void convert_MBSFNFrequency(const MBSFNFrequency* src, umts_mbsfn_frequency* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, cellParametersID);
  convert_frequency_info(&src->frequencyInfo, &dst->frequencyInfo);
}

void convert_MBSFNFrequencyList_v860ext(const MBSFNFrequencyList_v860ext* src, umts_mbsfn_frequency_list_v860ext* dst) {
  umts_meas::copy_list<MBSFNFrequency_v860ext>(src, &dst->count, dst->entries, convert_MBSFNFrequency_v860ext);
}

void convert_MBSFNFrequency_v860ext(const MBSFNFrequency_v860ext* src, umts_mbsfn_frequency_v860ext* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, imb_Indication);
}

/* ---- v7b0 of SIB11 ------------------------------------------------------------------------------ */

void convert_NewInterFreqCellList_v7b0ext(const NewInterFreqCellList_v7b0ext* src,
                                          umts_new_inter_freq_cell_list_v7b0ext* dst) {
  convert_new_inter_freq_cell_list_v7b0ext(src, dst);
}

void convert_NewInterFreqCell_v7b0ext(const NewInterFreqCell_v7b0ext* src, uint8_t* dst) {
  *dst = src->intraSecondaryFreqIndicator;
}
