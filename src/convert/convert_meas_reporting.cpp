/*
 * Traffic volume, UE internal measurement, and the quantities and criteria by which the
 * terminal measures and reports: intra-frequency and RACH reporting quantities, cell
 * reporting quantities, the event criteria with events 1a to 1i, and CELL_DCH reporting.
 */
#include <cstring>

#include "convert_frame.h"
#include "convert_meas.h"
#include "umts_sib_convert.h"

namespace {

/* Two adjacent 32-bit words of the decoded value as one block into two of the record. */
template <class Src, class Dst>
void copy_two_words(const Src* src, Dst* dst) {
  static_assert(sizeof(Src) == 8 && sizeof(Dst) == 8, "two words");
  std::memcpy(dst, src, 8);
}

}  // namespace

/* ---- Traffic volume ------------------------------------------------------------------------ */

void convert_traffic_vol_meas_sys_info(const TrafficVolumeMeasSysInfo* src, umts_traffic_vol_meas_sys_info* dst) {
  dst->trafficVolumeMeasurementID = src->trafficVolumeMeasurementID;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_traffic_volume_measurement_object_list, trafficVolumeMeasurementObjectList);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_traffic_volume_meas_quantity, trafficVolumeMeasQuantity);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_traffic_volume_reporting_quantity, trafficVolumeReportingQuantity);
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, convert_traffic_volume_reporting_criteria, dummy);
  UMTS_CONVERT_OPTIONAL(src, dst, 16u, convert_measurement_validity, measurementValidity);
  convert_measurement_reporting_mode(&src->measurementReportingMode, &dst->measurementReportingMode);
  convert_traffic_volume_report_criteria_sys_info(&src->reportCriteriaSysInf, &dst->reportCriteriaSysInf);
}

/* Its own loop, not convert_ul_tr_ch_identity: only dch and usch bring their identity, so a
   rachorcpch entry keeps a zero value. */
void convert_traffic_volume_measurement_object_list(const TrafficVolumeMeasurementObjectList* src,
                                                    umts_traffic_volume_measurement_object_list* dst) {
  umts_meas::copy_list<UL_TrCH_Identity>(src, &dst->count, dst->entries,
                                         [](const UL_TrCH_Identity* e, umts_ul_tr_ch_identity* flat) {
                                           flat->choice_tag = e->t;
                                           if (e->t == 1) flat->u.dch = e->u.dch;
                                           else if (e->t == 3) flat->u.usch = e->u.usch;
                                         });
}

void convert_traffic_volume_meas_quantity(const TrafficVolumeMeasQuantity* src, umts_traffic_volume_meas_quantity* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2) dst->u.averageRLC_BufferPayload = src->u.averageRLC_BufferPayload;
  else if (src->t == 3) dst->u.varianceOfRLC_BufferPayload = src->u.varianceOfRLC_BufferPayload;
}

void convert_traffic_volume_reporting_quantity(const TrafficVolumeReportingQuantity* src,
                                               umts_traffic_volume_reporting_quantity* dst) {
  dst->rlc_RB_BufferPayload = src->rlc_RB_BufferPayload;
  dst->rlc_RB_BufferPayloadAverage = src->rlc_RB_BufferPayloadAverage;
  dst->rlc_RB_BufferPayloadVariance = src->rlc_RB_BufferPayloadVariance;
}

/* The tag and, whatever the tag, the decoded identity byte zero-extended (a rachorcpch
   identity keeps what that byte held), not the padding bytes that follow it. */
void convert_ul_tr_ch_identity(const UL_TrCH_Identity* src, umts_ul_tr_ch_identity* dst) {
  dst->choice_tag = src->t;
  dst->u.dch = src->u.dch;
}

void convert_traffic_volume_event_param(const TrafficVolumeEventParam* src, umts_traffic_volume_event_param* dst) {
  dst->eventID = src->eventID;
  dst->reportingThreshold = src->reportingThreshold;
  UMTS_COPY_OPTIONAL(src, dst, 1u, timeToTrigger);
  UMTS_COPY_OPTIONAL(src, dst, 2u, pendingTimeAfterTrigger);
  UMTS_COPY_OPTIONAL(src, dst, 4u, tx_InterruptionAfterTrigger);
}

void convert_trans_ch_criteria_event_specific_parameters(const TransChCriteria_eventSpecificParameters* src,
                                                         umts_event_specific_parameters* dst) {
  umts_meas::copy_list<TrafficVolumeEventParam>(src, &dst->count, dst->entries, convert_traffic_volume_event_param);
}

void convert_trans_ch_criteria(const TransChCriteria* src, umts_trans_ch_criteria* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_ul_tr_ch_identity, ul_transportChannelID);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_trans_ch_criteria_event_specific_parameters, eventSpecificParameters);
}

void convert_trans_ch_criteria_list(const TransChCriteriaList* src, umts_trans_ch_criteria_list* dst) {
  umts_meas::copy_list<TransChCriteria>(src, &dst->count, dst->entries, convert_trans_ch_criteria);
}

void convert_traffic_volume_reporting_criteria(const TrafficVolumeReportingCriteria* src,
                                               umts_traffic_volume_reporting_criteria* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_trans_ch_criteria_list, transChCriteriaList);
}

void convert_traffic_volume_report_criteria_sys_info(const TrafficVolumeReportCriteriaSysInfo* src,
                                                     umts_traffic_volume_report_criteria_sys_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.trafficVolumeReportingCriteria != nullptr)
    convert_traffic_volume_reporting_criteria(src->u.trafficVolumeReportingCriteria,
                                              &dst->u.trafficVolumeReportingCriteria);
  else if (src->t == 2 && src->u.periodicalReportingCriteria != nullptr)
    convert_periodical_reporting_criteria(src->u.periodicalReportingCriteria, &dst->u.periodicalReportingCriteria);
}

void convert_measurement_validity(const MeasurementValidity* src, uint32_t* dst) { *dst = src->ue_State; }

void convert_measurement_reporting_mode(const MeasurementReportingMode* src, umts_measurement_reporting_mode* dst) {
  copy_two_words(src, dst);
}

void convert_periodical_reporting_criteria(const PeriodicalReportingCriteria* src,
                                           umts_periodical_reporting_criteria* dst) {
  copy_two_words(src, dst);
}

/* ---- UE internal measurement --------------------------------------------------------------- */

void convert_ue_internal_meas_quantity(const UE_InternalMeasQuantity* src, umts_ue_internal_meas_quantity* dst) {
  copy_two_words(src, dst);
}

void convert_ue_internal_meas_sys_info(const UE_InternalMeasurementSysInfo* src, umts_ue_internal_meas_sys_info* dst) {
  dst->ue_InternalMeasurementID = src->ue_InternalMeasurementID;
  convert_ue_internal_meas_quantity(&src->ue_InternalMeasQuantity, &dst->ue_InternalMeasQuantity);
}

/* ---- Intra-frequency quantities ------------------------------------------------------------ */

void convert_intra_freq_meas_quantity(const IntraFreqMeasQuantity* src, umts_intra_freq_meas_quantity* dst) {
  dst->filterCoefficient = src->filterCoefficient;
  convert_intra_freq_meas_quantity_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_intra_freq_meas_quantity_mode_specific_info(const IntraFreqMeasQuantity_modeSpecificInfo* src,
                                                         umts_intra_freq_meas_quantity_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr)
    convert_intra_freq_meas_quantity_mode_specific_info_fdd(src->u.fdd, &dst->u.intraFreqMeasQuantity_FDD);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_intra_freq_meas_quantity_mode_specific_info_tdd(src->u.tdd, &dst->u.intraFreqMeasQuantity_TDDList);
}

void convert_intra_freq_meas_quantity_mode_specific_info_fdd(const IntraFreqMeasQuantity_modeSpecificInfo_fdd* src,
                                                             uint32_t* dst) {
  *dst = src->intraFreqMeasQuantity_FDD;
}

void convert_intra_freq_meas_quantity_mode_specific_info_tdd(const IntraFreqMeasQuantity_modeSpecificInfo_tdd* src,
                                                             umts_intra_freq_meas_quantity_tdd_list* dst) {
  convert_intra_freq_meas_quantity_tdd_list(&src->intraFreqMeasQuantity_TDDList, dst);
}

/* The count and all 4 entries as the decoder holds them. */
void convert_intra_freq_meas_quantity_tdd_list(const IntraFreqMeasQuantity_TDDList* src,
                                               umts_intra_freq_meas_quantity_tdd_list* dst) {
  static_assert(sizeof *src == sizeof *dst, "count and 4 entries");
  std::memcpy(dst, src, sizeof *dst);
}

void convert_intra_freq_reporting_quantity_for_rach(const IntraFreqReportingQuantityForRACH* src,
                                                    umts_intra_freq_reporting_quantity_for_rach* dst) {
  dst->sfn_SFN_OTD_Type = src->sfn_SFN_OTD_Type;
  convert_intra_freq_reporting_quantity_for_rach_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_intra_freq_reporting_quantity_for_rach_mode_specific_info(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo* src,
    umts_intra_freq_reporting_quantity_for_rach_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr)
    convert_intra_freq_reporting_quantity_for_rach_mode_specific_info_fdd(src->u.fdd,
                                                                          &dst->u.intraFreqRepQuantityRACH_FDD);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_intra_freq_reporting_quantity_for_rach_mode_specific_info_tdd(src->u.tdd,
                                                                          &dst->u.intraFreqRepQuantityRACH_TDDList);
}

void convert_intra_freq_reporting_quantity_for_rach_mode_specific_info_fdd(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo_fdd* src, uint32_t* dst) {
  *dst = src->intraFreqRepQuantityRACH_FDD;
}

void convert_intra_freq_reporting_quantity_for_rach_mode_specific_info_tdd(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo_tdd* src, umts_intra_freq_rep_quantity_rach_tdd_list* dst) {
  convert_intra_freq_reporting_quantity_for_rach_tdd_list(&src->intraFreqRepQuantityRACH_TDDList, dst);
}

/* The count and both entries as the decoder holds them. */
void convert_intra_freq_reporting_quantity_for_rach_tdd_list(const IntraFreqRepQuantityRACH_TDDList* src,
                                                             umts_intra_freq_rep_quantity_rach_tdd_list* dst) {
  static_assert(sizeof *src == sizeof *dst, "count and 2 entries");
  std::memcpy(dst, src, sizeof *dst);
}

void convert_intra_freq_reporting_quantity(const IntraFreqReportingQuantity* src, umts_intra_freq_reporting_quantity* dst) {
  convert_cell_reporting_quantities(&src->activeSetReportingQuantities, &dst->activeSetReportingQuantities);
  convert_cell_reporting_quantities(&src->monitoredSetReportingQuantities, &dst->monitoredSetReportingQuantities);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_cell_reporting_quantities, detectedSetReportingQuantities);
}

void convert_cell_reporting_quantities(const CellReportingQuantities* src, umts_cell_reporting_quantities* dst) {
  dst->dummy = src->dummy;
  dst->cellIdentity_reportingIndicator = src->cellIdentity_reportingIndicator;
  dst->cellSynchronisationInfoReportingIndicator = src->cellSynchronisationInfoReportingIndicator;
  convert_cell_reporting_quantities_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_cell_reporting_quantities_mode_specific_info(const CellReportingQuantities_modeSpecificInfo* src,
                                                          umts_cell_reporting_quantities_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_cell_reporting_quantities_mode_specific_info_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_cell_reporting_quantities_mode_specific_info_tdd(src->u.tdd, &dst->u.tdd);
}

void convert_cell_reporting_quantities_mode_specific_info_fdd(const CellReportingQuantities_modeSpecificInfo_fdd* src,
                                                              umts_cell_reporting_quantities_fdd* dst) {
  dst->cpich_Ec_N0_reportingIndicator = src->cpich_Ec_N0_reportingIndicator;
  dst->cpich_RSCP_reportingIndicator = src->cpich_RSCP_reportingIndicator;
  dst->pathloss_reportingIndicator = src->pathloss_reportingIndicator;
}

void convert_cell_reporting_quantities_mode_specific_info_tdd(const CellReportingQuantities_modeSpecificInfo_tdd* src,
                                                              umts_cell_reporting_quantities_tdd* dst) {
  dst->timeslotISCP_reportingIndicator = src->timeslotISCP_reportingIndicator;
  dst->proposedTGSN_ReportingRequired = src->proposedTGSN_ReportingRequired;
  dst->primaryCCPCH_RSCP_reportingIndicator = src->primaryCCPCH_RSCP_reportingIndicator;
  dst->pathloss_reportingIndicator = src->pathloss_reportingIndicator;
}

/* ---- Reporting for CELL_DCH and the events -------------------------------------------------- */

void convert_reporting_info_for_cell_dch(const ReportingInfoForCellDCH* src, umts_reporting_info_for_cell_dch* dst) {
  convert_intra_freq_reporting_quantity(&src->intraFreqReportingQuantity, &dst->intraFreqReportingQuantity);
  convert_measurement_reporting_mode(&src->measurementReportingMode, &dst->measurementReportingMode);
  convert_cell_dch_report_criteria(&src->reportCriteria, &dst->reportCriteria);
}

void convert_cell_dch_report_criteria(const CellDCH_ReportCriteria* src, umts_cell_dch_report_criteria* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.intraFreqReportingCriteria != nullptr)
    convert_intra_freq_reporting_criteria(src->u.intraFreqReportingCriteria, &dst->u.intraFreqReportingCriteria);
  else if (src->t == 2 && src->u.periodicalReportingCriteria != nullptr)
    convert_periodical_reporting_criteria(src->u.periodicalReportingCriteria, &dst->u.periodicalReportingCriteria);
}

void convert_intra_freq_reporting_criteria(const IntraFreqReportingCriteria* src, umts_intra_freq_reporting_criteria* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_intra_freq_event_criteria_list, eventCriteriaList);
}

void convert_intra_freq_event_criteria_list(const IntraFreqEventCriteriaList* src,
                                            umts_intra_freq_event_criteria_list* dst) {
  umts_meas::copy_list<IntraFreqEventCriteria>(src, &dst->count, dst->entries, convert_intra_freq_event_criteria);
}

void convert_intra_freq_event_criteria(const IntraFreqEventCriteria* src, umts_intra_freq_event_criteria* dst) {
  convert_intra_freq_event(&src->event, &dst->event);
  dst->hysteresis = src->hysteresis;
  dst->timeToTrigger = src->timeToTrigger;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_reporting_cell_status, reportingCellStatus);
}

/* e1d (4) and e1g (7) carry nothing. */
void convert_intra_freq_event(const IntraFreqEvent* src, umts_intra_freq_event* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1: if (src->u.e1a != nullptr) convert_event_1a(src->u.e1a, &dst->u.e1a); break;
    case 2: if (src->u.e1b != nullptr) convert_event_1b(src->u.e1b, &dst->u.e1b); break;
    case 3: if (src->u.e1c != nullptr) convert_event_1c(src->u.e1c, &dst->u.e1c); break;
    case 5: if (src->u.e1e != nullptr) convert_event_1e(src->u.e1e, &dst->u.e1e); break;
    case 6: if (src->u.e1f != nullptr) convert_event_1f(src->u.e1f, &dst->u.e1f); break;
    case 8: dst->u.e1h = src->u.e1h; break;
    case 9: dst->u.e1i = src->u.e1i; break;
    default: break;
  }
}

namespace {

/* What events 1a and 1b share, as far as w. */
template <class Src, class Dst>
void event_1a_1b(const Src* src, Dst* dst) {
  dst->triggeringCondition = src->triggeringCondition;
  dst->reportingRange = src->reportingRange;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_forbidden_affect_cell_list, forbiddenAffectCellList);
  dst->w = src->w;
}

}  // namespace

void convert_event_1a(const Event1a* src, umts_event_1a* dst) {
  event_1a_1b(src, dst);
  dst->reportDeactivationThreshold = src->reportDeactivationThreshold;
  dst->reportingAmount = src->reportingAmount;
  dst->reportingInterval = src->reportingInterval;
}

void convert_event_1b(const Event1b* src, umts_event_1b* dst) { event_1a_1b(src, dst); }

void convert_event_1c(const Event1c* src, umts_event_1c* dst) {
  dst->replacementActivationThreshold = src->replacementActivationThreshold;
  dst->reportingAmount = src->reportingAmount;
  dst->reportingInterval = src->reportingInterval;
}

void convert_event_1e(const Event1e* src, umts_event_1e* dst) {
  dst->triggeringCondition = src->triggeringCondition;
  dst->thresholdUsedFrequency = src->thresholdUsedFrequency;
}

void convert_event_1f(const Event1f* src, umts_event_1f* dst) {
  dst->triggeringCondition = src->triggeringCondition;
  dst->thresholdUsedFrequency = src->thresholdUsedFrequency;
}

/* The tag and the value's word, whatever the tag. */
void convert_reporting_cell_status(const ReportingCellStatus* src, umts_reporting_cell_status* dst) {
  dst->choice_tag = src->t;
  dst->u.withinActiveSet = src->u.withinActiveSet;
}

void convert_forbidden_affect_cell_list(const ForbiddenAffectCellList* src, umts_forbidden_affect_cell_list* dst) {
  umts_meas::copy_list<ForbiddenAffectCell>(src, &dst->count, dst->entries, convert_forbidden_affect_cell);
}

void convert_forbidden_affect_cell(const ForbiddenAffectCell* src, umts_forbidden_affect_cell* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_primary_cpich_info(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr) convert_primary_ccpch_info(src->u.tdd, &dst->u.tdd);
}
