/*
 * The LCR (TDD 1.28 Mcps) measurement control information of SIB12 (the v4b0 extension,
 * MeasurementControlSysInfo-LCR-r4-ext) and of SIB11bis (MeasurementControlSysInfoExtension-
 * LCR-r4), and the LCR cell records that both trees share. SIB11 has a tree of its own
 * (convert_lcr_sib11.cpp) that uses the HCS_ECN0 cell of this file.
 *
 * An LCR record is its main record with the TDD members of the cell directly in the cell,
 * the LCR primary CCPCH, at most 6 timeslots and LCR forbidden cells in events 1a and 1b;
 * wherever a record is the main one (removed cells, quantities, reporting mode, events 1c,
 * 1e, 1f, frequency) the main conversion runs. Every quality alternative converts its intra-
 * and its inter-frequency part, each by its own bit, and every inter-frequency cell its
 * frequency by its bit.
 */
#include "convert_frame.h"
#include "convert_lcr.h"
#include "convert_meas.h"
#include "umts_sib_convert.h"

namespace {

using namespace umts_lcr;
using umts_meas::both_cell_lists;
using umts_meas::both_frequencies;

}  // namespace

/* ---- Cell members ------------------------------------------------------------------------------ */

void convert_primary_ccpch_info_lcr_r4(const PrimaryCCPCH_Info_LCR_r4* src, umts_primary_ccpch_info_lcr_r4* dst) {
  dst->tstd_Indicator = src->tstd_Indicator;
  UMTS_COPY_OPTIONAL(src, dst, 1u, cellParametersID);
  dst->sctd_Indicator = src->sctd_Indicator;
}

void convert_timeslot_info_list_lcr_r4(const TimeslotInfoList_LCR_r4* src, umts_timeslot_info_list_lcr_r4* dst) {
  umts_meas::copy_list<TimeslotInfo_LCR_r4>(src, &dst->count, dst->entries,
                                            [](const TimeslotInfo_LCR_r4* e, uint8_t* flat) { *flat = e->timeslotNumber; });
}

/* ---- The four forms: cell, new-cell lists, cell info lists, measurement records ----------------- */

#define UMTS_LCR_FORM(v, V)                                                                                     \
  void convert_cell_info_si_##v##_lcr_r4(const CellInfoSI_##V##_LCR_r4* src, umts_cell_info_si_##v##_lcr_r4* dst) { \
    cell(src, dst, convert_reference_time_difference_to_cell, convert_primary_ccpch_info_lcr_r4,                \
         convert_timeslot_info_list_lcr_r4,                                                                     \
         convert_cell_select_reselect_info_sib_11_12_##v);                                                      \
  }                                                                                                             \
  void convert_new_intra_freq_cell_si_list_##v##_lcr_r4(const NewIntraFreqCellSI_List_##V##_LCR_r4* src,        \
                                                        umts_new_intra_freq_cell_si_list_##v##_lcr_r4* dst) {   \
    new_intra_freq_cells<NewIntraFreqCellSI_##V##_LCR_r4>(src, dst, convert_cell_info_si_##v##_lcr_r4);         \
  }                                                                                                             \
  void convert_new_inter_freq_cell_si_list_##v##_lcr_r4(const NewInterFreqCellSI_List_##V##_LCR_r4* src,        \
                                                        umts_new_inter_freq_cell_si_list_##v##_lcr_r4* dst) {   \
    new_inter_freq_cells<NewInterFreqCellSI_##V##_LCR_r4>(src, dst, convert_frequency_info,                     \
                                                          convert_cell_info_si_##v##_lcr_r4);                   \
  }                                                                                                             \
  void convert_intra_freq_cell_info_si_list_##v##_lcr_r4(const IntraFreqCellInfoSI_List_##V##_LCR_r4* src,      \
                                                         umts_intra_freq_cell_info_si_list_##v##_lcr_r4* dst) { \
    UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_removed_intra_freq_cell_list, removedIntraFreqCellList);        \
    convert_new_intra_freq_cell_si_list_##v##_lcr_r4(&src->newIntraFreqCellList, &dst->newIntraFreqCellList);  \
  }                                                                                                             \
  void convert_inter_freq_cell_info_si_list_##v##_lcr(const InterFreqCellInfoSI_List_##V##_LCR* src,            \
                                                      umts_inter_freq_cell_info_si_list_##v##_lcr* dst) {       \
    UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_removed_inter_freq_cell_list, removedInterFreqCellList);        \
    UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_new_inter_freq_cell_si_list_##v##_lcr_r4, newInterFreqCellList); \
  }                                                                                                             \
  void convert_intra_freq_measurement_sys_info_##v##_lcr_r4(const IntraFreqMeasurementSysInfo_##V##_LCR_r4* src, \
                                                            umts_intra_freq_measurement_sys_info_##v##_lcr_r4* dst) { \
    intra_freq_measurement(src, dst, convert_intra_freq_cell_info_si_list_##v##_lcr_r4,                         \
                           convert_intra_freq_meas_quantity, convert_intra_freq_reporting_quantity_for_rach,    \
                           convert_reporting_info_for_cell_dch_lcr_r4);                                         \
  }                                                                                                             \
  void convert_inter_freq_measurement_sys_info_##v##_lcr_r4(const InterFreqMeasurementSysInfo_##V##_LCR_r4* src, \
                                                            umts_inter_freq_measurement_sys_info_##v##_lcr_r4* dst) { \
    UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_inter_freq_cell_info_si_list_##v##_lcr, interFreqCellInfoSI_List); \
  }

UMTS_LCR_FORM(rscp, RSCP)
UMTS_LCR_FORM(ecno, ECN0)
UMTS_LCR_FORM(hcs_rscp, HCS_RSCP)
UMTS_LCR_FORM(hcs_ecno, HCS_ECN0)

/* ---- Reporting in CELL_DCH with the LCR events ---------------------------------------------------- */

void convert_reporting_info_for_cell_dch_lcr_r4(const ReportingInfoForCellDCH_LCR_r4* src,
                                                umts_reporting_info_for_cell_dch_lcr_r4* dst) {
  convert_intra_freq_reporting_quantity(&src->intraFreqReportingQuantity, &dst->intraFreqReportingQuantity);
  convert_measurement_reporting_mode(&src->measurementReportingMode, &dst->measurementReportingMode);
  convert_cell_dch_report_criteria_lcr_r4(&src->reportCriteria, &dst->reportCriteria);
}

void convert_cell_dch_report_criteria_lcr_r4(const CellDCH_ReportCriteria_LCR_r4* src,
                                             umts_cell_dch_report_criteria_lcr_r4* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.intraFreqReportingCriteria != nullptr)
    convert_intra_freq_reporting_criteria_lcr_r4(src->u.intraFreqReportingCriteria, &dst->u.intraFreqReportingCriteria);
  else if (src->t == 2 && src->u.periodicalReportingCriteria != nullptr)
    convert_periodical_reporting_criteria(src->u.periodicalReportingCriteria, &dst->u.periodicalReportingCriteria);
}

void convert_intra_freq_reporting_criteria_lcr_r4(const IntraFreqReportingCriteria_LCR_r4* src,
                                                  umts_intra_freq_reporting_criteria_lcr_r4* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_intra_freq_event_criteria_list_lcr_r4, eventCriteriaList);
}

void convert_intra_freq_event_criteria_list_lcr_r4(const IntraFreqEventCriteriaList_LCR_r4* src,
                                                   umts_intra_freq_event_criteria_list_lcr_r4* dst) {
  umts_meas::copy_list<IntraFreqEventCriteria_LCR_r4>(src, &dst->count, dst->entries,
                                                      convert_intra_freq_event_criteria_lcr_r4);
}

void convert_intra_freq_event_criteria_lcr_r4(const IntraFreqEventCriteria_LCR_r4* src,
                                              umts_intra_freq_event_criteria_lcr_r4* dst) {
  event_criteria(src, dst, convert_intra_freq_event_lcr_r4, convert_reporting_cell_status);
}

/* The tag rows of IntraFreqEvent: e1d (4) and e1g (7) carry nothing. */
void convert_intra_freq_event_lcr_r4(const IntraFreqEvent_LCR_r4* src, umts_intra_freq_event_lcr_r4* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1: if (src->u.e1a != nullptr) convert_event_1a_lcr_r4(src->u.e1a, &dst->u.e1a); break;
    case 2: if (src->u.e1b != nullptr) convert_event_1b_lcr_r4(src->u.e1b, &dst->u.e1b); break;
    case 3: if (src->u.e1c != nullptr) convert_event_1c(src->u.e1c, &dst->u.e1c); break;
    case 5: if (src->u.e1e != nullptr) convert_event_1e(src->u.e1e, &dst->u.e1e); break;
    case 6: if (src->u.e1f != nullptr) convert_event_1f(src->u.e1f, &dst->u.e1f); break;
    case 8: dst->u.e1h = src->u.e1h; break;
    case 9: dst->u.e1i = src->u.e1i; break;
    default: break;
  }
}

void convert_event_1a_lcr_r4(const Event1a_LCR_r4* src, umts_event_1a_lcr_r4* dst) {
  event_1a(src, dst, convert_forbidden_affect_cell_list_lcr_r4);
}

void convert_event_1b_lcr_r4(const Event1b_LCR_r4* src, umts_event_1b_lcr_r4* dst) {
  event_1b(src, dst, convert_forbidden_affect_cell_list_lcr_r4);
}

void convert_forbidden_affect_cell_list_lcr_r4(const ForbiddenAffectCellList_LCR_r4* src,
                                               umts_forbidden_affect_cell_list_lcr_r4* dst) {
  umts_meas::copy_list<ForbiddenAffectCell_LCR_r4>(
      src, &dst->count, dst->entries,
      [](const ForbiddenAffectCell_LCR_r4* e, umts_primary_ccpch_info_lcr_r4* flat) {
        convert_primary_ccpch_info_lcr_r4(&e->tdd, flat);
      });
}

/* ---- SIB11 and SIB12 form, as SIB12 converts it --------------------------------------------------- */

void convert_measurement_control_sys_info_lcr_r4_ext(const MeasurementControlSysInfo_LCR_r4_ext* src,
                                                     umts_measurement_control_sys_info_lcr_r4_ext* dst) {
  convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs(&src->use_of_HCS, &dst->use_of_HCS);
}

void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs(const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS* src,
                                                                umts_use_of_hcs_lcr_r4_ext* dst) {
  use_of_hcs(src, dst, convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used,
             convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used);
}

void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used* src, umts_lcr_hcs_not_used* dst) {
  convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used_cell_select_quality_measure(
      &src->cellSelectQualityMeasure, &dst->cellSelectQualityMeasure);
}

void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used* src, umts_lcr_hcs_used* dst) {
  convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used_cell_select_quality_measure(
      &src->cellSelectQualityMeasure, &dst->cellSelectQualityMeasure);
}

void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used_cell_select_quality_measure(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_lcr_hcs_not_used_quality_measure* dst) {
  quality_measure(src, dst,
                  convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp,
                  convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no);
}

void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used_cell_select_quality_measure(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_lcr_hcs_used_quality_measure* dst) {
  quality_measure(src, dst,
                  convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp,
                  convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ecno);
}

void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_lcr_hcs_not_used_cpich_rscp* dst) {
  both_frequencies(src, dst, convert_intra_freq_measurement_sys_info_rscp_lcr_r4,
                   convert_inter_freq_measurement_sys_info_rscp_lcr_r4);
}

void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_lcr_hcs_not_used_cpich_ec_n0* dst) {
  both_frequencies(src, dst, convert_intra_freq_measurement_sys_info_ecno_lcr_r4,
                   convert_inter_freq_measurement_sys_info_ecno_lcr_r4);
}

void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_lcr_hcs_used_cpich_rscp* dst) {
  both_frequencies(src, dst, convert_intra_freq_measurement_sys_info_hcs_rscp_lcr_r4,
                   convert_inter_freq_measurement_sys_info_hcs_rscp_lcr_r4);
}

void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ecno(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_lcr_hcs_used_cpich_ec_n0* dst) {
  both_frequencies(src, dst, convert_intra_freq_measurement_sys_info_hcs_ecno_lcr_r4,
                   convert_inter_freq_measurement_sys_info_hcs_ecno_lcr_r4);
}

/* ---- SIB11bis form: the new-cell lists and the inter-RAT list --------------------------------------- */

void convert_measurement_control_sys_info_extension_lcr_r4(const MeasurementControlSysInfoExtension_LCR_r4* src,
                                                           umts_measurement_control_sys_info_extension_lcr_r4* dst) {
  convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs(&src->use_of_HCS, &dst->use_of_HCS);
}

void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS* src, umts_ext_use_of_hcs_lcr_r4* dst) {
  use_of_hcs(src, dst, convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used,
             convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used);
}

void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used* src, umts_ext_hcs_not_used_lcr_r4* dst) {
  convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used_cell_select_quality_measure(
      &src->cellSelectQualityMeasure, &dst->cellSelectQualityMeasure);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_new_inter_rat_cell_list, newInterRATCellList);
}

void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_used* src, umts_ext_hcs_used_lcr_r4* dst) {
  convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used_cell_select_quality_measure(
      &src->cellSelectQualityMeasure, &dst->cellSelectQualityMeasure);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_new_inter_rat_cell_list, newInterRATCellList);
}

void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used_cell_select_quality_measure(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_ext_hcs_not_used_quality_measure_lcr_r4* dst) {
  quality_measure(
      src, dst,
      convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp,
      convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no);
}

void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used_cell_select_quality_measure(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_ext_hcs_used_quality_measure_lcr_r4* dst) {
  quality_measure(
      src, dst,
      convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp,
      convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ecno);
}

void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_ext_hcs_not_used_cpich_rscp_lcr_r4* dst) {
  both_cell_lists(src, dst, convert_new_intra_freq_cell_si_list_rscp_lcr_r4, convert_new_inter_freq_cell_si_list_rscp_lcr_r4);
}

void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_ext_hcs_not_used_cpich_ec_n0_lcr_r4* dst) {
  both_cell_lists(src, dst, convert_new_intra_freq_cell_si_list_ecno_lcr_r4, convert_new_inter_freq_cell_si_list_ecno_lcr_r4);
}

void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_ext_hcs_used_cpich_rscp_lcr_r4* dst) {
  both_cell_lists(src, dst, convert_new_intra_freq_cell_si_list_hcs_rscp_lcr_r4,
                  convert_new_inter_freq_cell_si_list_hcs_rscp_lcr_r4);
}

void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ecno(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_ext_hcs_used_cpich_ec_n0_lcr_r4* dst) {
  both_cell_lists(src, dst, convert_new_intra_freq_cell_si_list_hcs_ecno_lcr_r4,
                  convert_new_inter_freq_cell_si_list_hcs_ecno_lcr_r4);
}
