/*
 * Flat records of the System Information Block types 11, 11bis and 12: the measurement
 * control system information with its neighbour cell lists, traffic volume, UE internal
 * measurement and reporting records.
 *
 * The schema has four parallel forms of every record that holds a neighbour cell, chosen by
 * use_of_HCS and cellSelectQualityMeasure: RSCP (hcs_not_used, cpich_RSCP), ECN0
 * (hcs_not_used, cpich_Ec_N0), HCS_RSCP (hcs_used, cpich_RSCP) and HCS_ECN0 (hcs_used,
 * cpich_Ec_N0). They differ only in cellSelectionReselectionInfo; each form is written down
 * once here per record name.
 *
 * Values are those of the decoder: enumerated values as their 32-bit ordinals, integers as
 * they are coded in the schema (the signed ones as int8_t / int16_t), with no scaling.
 */
#ifndef UMTS_SIB_MEAS_H
#define UMTS_SIB_MEAS_H

#include "umts_sib_common.h"
#include "umts_sib_sib3.h"

/* ==== Cells of the intra-frequency lists ================================================ */

/* ReferenceTimeDifferenceToCell: the width follows the accuracy. */
#define umts_reference_time_difference_to_cell_u_FIELDS(F)     \
  F(SCALAR, uint16_t, accuracy40, 1, 1, _)                      \
  F(SCALAR, uint8_t, accuracy256, 1, 2, _)                      \
  F(SCALAR, uint8_t, accuracy2560, 1, 3, _)

#define umts_reference_time_difference_to_cell_FIELDS(F)       \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_reference_time_difference_to_cell_u, u, 1, UMTS_ALWAYS, choice_tag)

/* primaryCPICH_Info is the primary scrambling code. */
#define umts_cell_info_si_mode_specific_info_fdd_FIELDS(F)     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint16_t, primaryCPICH_Info, 1, 0, _)              \
  F(SCALAR, int8_t, primaryCPICH_TX_Power, 1, 1, _)            \
  F(BOOL, uint8_t, readSFN_Indicator, 1, UMTS_ALWAYS, _)       \
  F(BOOL, uint8_t, tx_DiversityIndicator, 1, UMTS_ALWAYS, _)

/* burstType: the decoder's ordinal. */
#define umts_timeslot_info_FIELDS(F)                           \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)        \
  F(SCALAR, uint32_t, burstType, 1, UMTS_ALWAYS, _)

#define umts_timeslot_info_list_FIELDS(F)                      \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, umts_timeslot_info, entries, 14, UMTS_ALWAYS, count)

#define umts_cell_info_si_mode_specific_info_tdd_FIELDS(F)                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                     \
  F(RECORD, umts_primary_ccpch_info, primaryCCPCH_Info, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint8_t, primaryCCPCH_TX_Power, 1, 0, _)                           \
  F(RECORD, umts_timeslot_info_list, timeslotInfoList, 1, 1, _)                \
  F(BOOL, uint8_t, readSFN_Indicator, 1, UMTS_ALWAYS, _)

#define umts_cell_info_si_mode_specific_info_u_FIELDS(F)                       \
  F(RECORD, umts_cell_info_si_mode_specific_info_fdd, fdd, 1, 1, _)            \
  F(RECORD, umts_cell_info_si_mode_specific_info_tdd, tdd, 1, 2, _)

/* One shape for the four forms: 1 fdd, 2 tdd. */
#define umts_cell_info_si_mode_specific_info_FIELDS(F)         \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_cell_info_si_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_cell_select_reselect_mode_specific_info_fdd_FIELDS(F)     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, int8_t, q_QualMin, 1, 0, _)                                \
  F(SCALAR, int8_t, q_RxlevMin, 1, 1, _)

/* The tdd and the gsm alternative alike. */
#define umts_cell_select_reselect_mode_specific_info_rxlev_FIELDS(F)   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, int8_t, q_RxlevMin, 1, 0, _)

#define umts_cell_select_reselect_mode_specific_info_u_FIELDS(F)                       \
  F(RECORD, umts_cell_select_reselect_mode_specific_info_fdd, fdd, 1, 1, _)            \
  F(RECORD, umts_cell_select_reselect_mode_specific_info_rxlev, tdd, 1, 2, _)          \
  F(RECORD, umts_cell_select_reselect_mode_specific_info_rxlev, gsm, 1, 3, _)

/* One shape for all forms: 1 fdd, 2 tdd, 3 gsm. */
#define umts_cell_select_reselect_mode_specific_info_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_cell_select_reselect_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* PenaltyTime-RSCP: 1 notUsed (no member), 2 pt10 ... 7 pt60, each the temporaryOffset1
   ordinal. */
#define umts_penalty_time_rscp_u_FIELDS(F)     \
  F(SCALAR, uint32_t, pt10, 1, 2, _)           \
  F(SCALAR, uint32_t, pt20, 1, 3, _)           \
  F(SCALAR, uint32_t, pt30, 1, 4, _)           \
  F(SCALAR, uint32_t, pt40, 1, 5, _)           \
  F(SCALAR, uint32_t, pt50, 1, 6, _)           \
  F(SCALAR, uint32_t, pt60, 1, 7, _)

#define umts_penalty_time_rscp_FIELDS(F)                       \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_penalty_time_rscp_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_hcs_neighbouring_cell_info_rscp_FIELDS(F)                 \
  F(SCALAR, uint8_t, hcs_PRIO, 1, UMTS_ALWAYS, _)                      \
  F(SCALAR, uint8_t, q_HCS, 1, UMTS_ALWAYS, _)                         \
  F(RECORD, umts_penalty_time_rscp, penaltyTime, 1, UMTS_ALWAYS, _)

/* Both ordinals. */
#define umts_temporary_offset_list_FIELDS(F)                   \
  F(SCALAR, uint32_t, temporaryOffset1, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint32_t, temporaryOffset2, 1, UMTS_ALWAYS, _)

/* PenaltyTime-ECN0: the tags of PenaltyTime-RSCP, each with both offsets. */
#define umts_penalty_time_ecno_u_FIELDS(F)                     \
  F(RECORD, umts_temporary_offset_list, pt10, 1, 2, _)         \
  F(RECORD, umts_temporary_offset_list, pt20, 1, 3, _)         \
  F(RECORD, umts_temporary_offset_list, pt30, 1, 4, _)         \
  F(RECORD, umts_temporary_offset_list, pt40, 1, 5, _)         \
  F(RECORD, umts_temporary_offset_list, pt50, 1, 6, _)         \
  F(RECORD, umts_temporary_offset_list, pt60, 1, 7, _)

#define umts_penalty_time_ecno_FIELDS(F)                       \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_penalty_time_ecno_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_hcs_neighbouring_cell_info_ecno_FIELDS(F)                 \
  F(SCALAR, uint8_t, hcs_PRIO, 1, UMTS_ALWAYS, _)                      \
  F(SCALAR, uint8_t, q_HCS, 1, UMTS_ALWAYS, _)                         \
  F(RECORD, umts_penalty_time_ecno, penaltyTime, 1, UMTS_ALWAYS, _)

/* The four cellSelectionReselectionInfo records: one offset for RSCP, two for ECN0, and the
   neighbouring HCS record in the HCS forms. */
#define umts_cell_select_reselect_info_sib_11_12_rscp_FIELDS(F)                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, int8_t, q_OffsetS_N, 1, UMTS_ALWAYS, _)                                                    \
  F(SCALAR, int8_t, maxAllowedUL_TX_Power, 1, 0, _)                                                    \
  F(RECORD, umts_cell_select_reselect_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_cell_select_reselect_info_sib_11_12_ecno_FIELDS(F)                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, int8_t, q_Offset1S_N, 1, UMTS_ALWAYS, _)                                                   \
  F(SCALAR, int8_t, q_Offset2S_N, 1, UMTS_ALWAYS, _)                                                   \
  F(SCALAR, int8_t, maxAllowedUL_TX_Power, 1, 0, _)                                                    \
  F(RECORD, umts_cell_select_reselect_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_cell_select_reselect_info_sib_11_12_hcs_rscp_FIELDS(F)                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, int8_t, q_OffsetS_N, 1, UMTS_ALWAYS, _)                                                    \
  F(SCALAR, int8_t, maxAllowedUL_TX_Power, 1, 0, _)                                                    \
  F(RECORD, umts_hcs_neighbouring_cell_info_rscp, hcs_NeighbouringCellInformation_RSCP, 1, 1, _)       \
  F(RECORD, umts_cell_select_reselect_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_cell_select_reselect_info_sib_11_12_hcs_ecno_FIELDS(F)                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, int8_t, q_Offset1S_N, 1, UMTS_ALWAYS, _)                                                   \
  F(SCALAR, int8_t, q_Offset2S_N, 1, UMTS_ALWAYS, _)                                                   \
  F(SCALAR, int8_t, maxAllowedUL_TX_Power, 1, 0, _)                                                    \
  F(RECORD, umts_hcs_neighbouring_cell_info_ecno, hcs_NeighbouringCellInformation_ECN0, 1, 1, _)       \
  F(RECORD, umts_cell_select_reselect_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

/* CellInfoSI in its four forms. cellIndividualOffset holds the schema default when the
   cell leaves it out. */
#define UMTS_CELL_INFO_SI_FIELDS(F, selection)                                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, int8_t, cellIndividualOffset, 1, UMTS_ALWAYS, _)                                           \
  F(RECORD, umts_reference_time_difference_to_cell, referenceTimeDifferenceToCell, 1, 0, _)            \
  F(RECORD, umts_cell_info_si_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)                 \
  F(RECORD, selection, cellSelectionReselectionInfo, 1, 1, _)

#define umts_cell_info_si_rscp_FIELDS(F) UMTS_CELL_INFO_SI_FIELDS(F, umts_cell_select_reselect_info_sib_11_12_rscp)
#define umts_cell_info_si_ecno_FIELDS(F) UMTS_CELL_INFO_SI_FIELDS(F, umts_cell_select_reselect_info_sib_11_12_ecno)
#define umts_cell_info_si_hcs_rscp_FIELDS(F) \
  UMTS_CELL_INFO_SI_FIELDS(F, umts_cell_select_reselect_info_sib_11_12_hcs_rscp)
#define umts_cell_info_si_hcs_ecno_FIELDS(F) \
  UMTS_CELL_INFO_SI_FIELDS(F, umts_cell_select_reselect_info_sib_11_12_hcs_ecno)

/* NewIntraFreqCellSI and its list (at most 32 cells), in the four forms. */
#define UMTS_NEW_INTRA_FREQ_CELL_SI_FIELDS(F, cell)            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint8_t, intraFreqCellID, 1, 0, _)                 \
  F(RECORD, cell, cellInfo, 1, UMTS_ALWAYS, _)

#define umts_new_intra_freq_cell_si_rscp_FIELDS(F) UMTS_NEW_INTRA_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_rscp)
#define umts_new_intra_freq_cell_si_ecno_FIELDS(F) UMTS_NEW_INTRA_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_ecno)
#define umts_new_intra_freq_cell_si_hcs_rscp_FIELDS(F) UMTS_NEW_INTRA_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_hcs_rscp)
#define umts_new_intra_freq_cell_si_hcs_ecno_FIELDS(F) UMTS_NEW_INTRA_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_hcs_ecno)

#define UMTS_CELL_LIST_FIELDS(F, entry, bound)                 \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, entry, entries, bound, UMTS_ALWAYS, count)

#define umts_new_intra_freq_cell_si_list_rscp_FIELDS(F) UMTS_CELL_LIST_FIELDS(F, umts_new_intra_freq_cell_si_rscp, 32)
#define umts_new_intra_freq_cell_si_list_ecno_FIELDS(F) UMTS_CELL_LIST_FIELDS(F, umts_new_intra_freq_cell_si_ecno, 32)
#define umts_new_intra_freq_cell_si_list_hcs_rscp_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_intra_freq_cell_si_hcs_rscp, 32)
#define umts_new_intra_freq_cell_si_list_hcs_ecno_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_intra_freq_cell_si_hcs_ecno, 32)

/* removeSomeIntraFreqCells: the decoder's whole array of 32 identities is kept. */
#define umts_removed_intra_freq_cells_FIELDS(F)                \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, uint8_t, entries, 32, UMTS_ALWAYS, count)

/* 1 removeAllIntraFreqCells, 2 removeSomeIntraFreqCells, 3 removeNoIntraFreqCells. */
#define umts_removed_intra_freq_cell_list_u_FIELDS(F) \
  F(RECORD, umts_removed_intra_freq_cells, removeSomeIntraFreqCells, 1, 2, _)

#define umts_removed_intra_freq_cell_list_FIELDS(F)            \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_removed_intra_freq_cell_list_u, u, 1, UMTS_ALWAYS, choice_tag)

/* The new-cell list is mandatory. */
#define UMTS_INTRA_FREQ_CELL_INFO_SI_LIST_FIELDS(F, list)                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_removed_intra_freq_cell_list, removedIntraFreqCellList, 1, 0, _)      \
  F(RECORD, list, newIntraFreqCellList, 1, UMTS_ALWAYS, _)

#define umts_intra_freq_cell_info_si_list_rscp_FIELDS(F) \
  UMTS_INTRA_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_intra_freq_cell_si_list_rscp)
#define umts_intra_freq_cell_info_si_list_ecno_FIELDS(F) \
  UMTS_INTRA_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_intra_freq_cell_si_list_ecno)
#define umts_intra_freq_cell_info_si_list_hcs_rscp_FIELDS(F) \
  UMTS_INTRA_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_intra_freq_cell_si_list_hcs_rscp)
#define umts_intra_freq_cell_info_si_list_hcs_ecno_FIELDS(F) \
  UMTS_INTRA_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_intra_freq_cell_si_list_hcs_ecno)

/* ==== Traffic volume ====================================================================== */

/* UL-TrCH-Identity: 1 dch, 2 rachorcpch (no member), 3 usch; the transport channel identity
   in a 32-bit position. */
#define umts_ul_tr_ch_identity_u_FIELDS(F)     \
  F(SCALAR, uint32_t, dch, 1, 1, _)            \
  F(SCALAR, uint32_t, usch, 1, 3, _)

#define umts_ul_tr_ch_identity_FIELDS(F)                       \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_ul_tr_ch_identity_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_traffic_volume_measurement_object_list_FIELDS(F)  \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, umts_ul_tr_ch_identity, entries, 32, UMTS_ALWAYS, count)

/* 1 rlc-BufferPayload (no member), 2 averageRLC-BufferPayload, 3 varianceOfRLC-BufferPayload:
   the time interval. */
#define umts_traffic_volume_meas_quantity_u_FIELDS(F)          \
  F(SCALAR, uint8_t, averageRLC_BufferPayload, 1, 2, _)        \
  F(SCALAR, uint8_t, varianceOfRLC_BufferPayload, 1, 3, _)

#define umts_traffic_volume_meas_quantity_FIELDS(F)            \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_traffic_volume_meas_quantity_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_traffic_volume_reporting_quantity_FIELDS(F)       \
  F(BOOL, uint8_t, rlc_RB_BufferPayload, 1, UMTS_ALWAYS, _)    \
  F(BOOL, uint8_t, rlc_RB_BufferPayloadAverage, 1, UMTS_ALWAYS, _) \
  F(BOOL, uint8_t, rlc_RB_BufferPayloadVariance, 1, UMTS_ALWAYS, _)

/* All five are ordinals. */
#define umts_traffic_volume_event_param_FIELDS(F)                      \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint32_t, eventID, 1, UMTS_ALWAYS, _)                      \
  F(SCALAR, uint32_t, reportingThreshold, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint32_t, timeToTrigger, 1, 0, _)                          \
  F(SCALAR, uint32_t, pendingTimeAfterTrigger, 1, 1, _)                \
  F(SCALAR, uint32_t, tx_InterruptionAfterTrigger, 1, 2, _)

#define umts_event_specific_parameters_FIELDS(F)               \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, umts_traffic_volume_event_param, entries, 2, UMTS_ALWAYS, count)

#define umts_trans_ch_criteria_FIELDS(F)                                               \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_ul_tr_ch_identity, ul_transportChannelID, 1, 0, _)                    \
  F(RECORD, umts_event_specific_parameters, eventSpecificParameters, 1, 1, _)

#define umts_trans_ch_criteria_list_FIELDS(F)                  \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, umts_trans_ch_criteria, entries, 32, UMTS_ALWAYS, count)

#define umts_traffic_volume_reporting_criteria_FIELDS(F)                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                     \
  F(RECORD, umts_trans_ch_criteria_list, transChCriteriaList, 1, 0, _)

#define umts_measurement_reporting_mode_FIELDS(F)                      \
  F(SCALAR, uint32_t, measurementReportTransferMode, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint32_t, periodicalOrEventTrigger, 1, UMTS_ALWAYS, _)

#define umts_periodical_reporting_criteria_FIELDS(F)           \
  F(SCALAR, uint32_t, reportingAmount, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, reportingInterval, 1, UMTS_ALWAYS, _)

#define umts_traffic_volume_report_criteria_sys_info_u_FIELDS(F)                               \
  F(RECORD, umts_traffic_volume_reporting_criteria, trafficVolumeReportingCriteria, 1, 1, _)   \
  F(RECORD, umts_periodical_reporting_criteria, periodicalReportingCriteria, 1, 2, _)

#define umts_traffic_volume_report_criteria_sys_info_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_traffic_volume_report_criteria_sys_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* dummy is carried in full; measurementValidity is the ue-State ordinal. */
#define umts_traffic_vol_meas_sys_info_FIELDS(F)                                                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, uint8_t, trafficVolumeMeasurementID, 1, UMTS_ALWAYS, _)                                    \
  F(RECORD, umts_traffic_volume_measurement_object_list, trafficVolumeMeasurementObjectList, 1, 0, _)  \
  F(RECORD, umts_traffic_volume_meas_quantity, trafficVolumeMeasQuantity, 1, 1, _)                     \
  F(RECORD, umts_traffic_volume_reporting_quantity, trafficVolumeReportingQuantity, 1, 2, _)           \
  F(RECORD, umts_traffic_volume_reporting_criteria, dummy, 1, 3, _)                                    \
  F(SCALAR, uint32_t, measurementValidity, 1, 4, _)                                                    \
  F(RECORD, umts_measurement_reporting_mode, measurementReportingMode, 1, UMTS_ALWAYS, _)              \
  F(RECORD, umts_traffic_volume_report_criteria_sys_info, reportCriteriaSysInf, 1, UMTS_ALWAYS, _)

/* ==== UE internal measurement ============================================================== */

#define umts_ue_internal_meas_quantity_FIELDS(F)               \
  F(SCALAR, uint32_t, measurementQuantity, 1, UMTS_ALWAYS, _)  \
  F(SCALAR, uint32_t, filterCoefficient, 1, UMTS_ALWAYS, _)

#define umts_ue_internal_meas_sys_info_FIELDS(F)                                       \
  F(SCALAR, uint8_t, ue_InternalMeasurementID, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_ue_internal_meas_quantity, ue_InternalMeasQuantity, 1, UMTS_ALWAYS, _)

/* ==== Intra-frequency quantities =========================================================== */

#define umts_intra_freq_meas_quantity_tdd_list_FIELDS(F)       \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, uint32_t, entries, 4, UMTS_ALWAYS, count)

#define umts_intra_freq_meas_quantity_mode_specific_info_u_FIELDS(F)                           \
  F(SCALAR, uint32_t, intraFreqMeasQuantity_FDD, 1, 1, _)                                      \
  F(RECORD, umts_intra_freq_meas_quantity_tdd_list, intraFreqMeasQuantity_TDDList, 1, 2, _)

#define umts_intra_freq_meas_quantity_mode_specific_info_FIELDS(F)     \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                   \
  F(UNION, umts_intra_freq_meas_quantity_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_intra_freq_meas_quantity_FIELDS(F)                                                        \
  F(SCALAR, uint32_t, filterCoefficient, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_intra_freq_meas_quantity_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_intra_freq_rep_quantity_rach_tdd_list_FIELDS(F)   \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, uint32_t, entries, 2, UMTS_ALWAYS, count)

#define umts_intra_freq_reporting_quantity_for_rach_mode_specific_info_u_FIELDS(F)                     \
  F(SCALAR, uint32_t, intraFreqRepQuantityRACH_FDD, 1, 1, _)                                           \
  F(RECORD, umts_intra_freq_rep_quantity_rach_tdd_list, intraFreqRepQuantityRACH_TDDList, 1, 2, _)

#define umts_intra_freq_reporting_quantity_for_rach_mode_specific_info_FIELDS(F)       \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                                   \
  F(UNION, umts_intra_freq_reporting_quantity_for_rach_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_intra_freq_reporting_quantity_for_rach_FIELDS(F)                                                  \
  F(SCALAR, uint32_t, sfn_SFN_OTD_Type, 1, UMTS_ALWAYS, _)                                                     \
  F(RECORD, umts_intra_freq_reporting_quantity_for_rach_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_cell_reporting_quantities_fdd_FIELDS(F)                   \
  F(BOOL, uint8_t, cpich_Ec_N0_reportingIndicator, 1, UMTS_ALWAYS, _)  \
  F(BOOL, uint8_t, cpich_RSCP_reportingIndicator, 1, UMTS_ALWAYS, _)   \
  F(BOOL, uint8_t, pathloss_reportingIndicator, 1, UMTS_ALWAYS, _)

#define umts_cell_reporting_quantities_tdd_FIELDS(F)                           \
  F(BOOL, uint8_t, timeslotISCP_reportingIndicator, 1, UMTS_ALWAYS, _)         \
  F(BOOL, uint8_t, proposedTGSN_ReportingRequired, 1, UMTS_ALWAYS, _)          \
  F(BOOL, uint8_t, primaryCCPCH_RSCP_reportingIndicator, 1, UMTS_ALWAYS, _)    \
  F(BOOL, uint8_t, pathloss_reportingIndicator, 1, UMTS_ALWAYS, _)

#define umts_cell_reporting_quantities_mode_specific_info_u_FIELDS(F)  \
  F(RECORD, umts_cell_reporting_quantities_fdd, fdd, 1, 1, _)          \
  F(RECORD, umts_cell_reporting_quantities_tdd, tdd, 1, 2, _)

#define umts_cell_reporting_quantities_mode_specific_info_FIELDS(F)    \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                   \
  F(UNION, umts_cell_reporting_quantities_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* dummy: the SFN-SFN-OTD-Type ordinal. */
#define umts_cell_reporting_quantities_FIELDS(F)                                                       \
  F(SCALAR, uint32_t, dummy, 1, UMTS_ALWAYS, _)                                                        \
  F(BOOL, uint8_t, cellIdentity_reportingIndicator, 1, UMTS_ALWAYS, _)                                 \
  F(BOOL, uint8_t, cellSynchronisationInfoReportingIndicator, 1, UMTS_ALWAYS, _)                       \
  F(RECORD, umts_cell_reporting_quantities_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_intra_freq_reporting_quantity_FIELDS(F)                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                     \
  F(RECORD, umts_cell_reporting_quantities, activeSetReportingQuantities, 1, UMTS_ALWAYS, _)   \
  F(RECORD, umts_cell_reporting_quantities, monitoredSetReportingQuantities, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_cell_reporting_quantities, detectedSetReportingQuantities, 1, 0, _)

/* ==== Events 1a to 1i ===================================================================== */

/* ForbiddenAffectCell: 1 fdd (the primary scrambling code), 2 tdd. */
#define umts_forbidden_affect_cell_u_FIELDS(F)                 \
  F(SCALAR, uint16_t, fdd, 1, 1, _)                            \
  F(RECORD, umts_primary_ccpch_info, tdd, 1, 2, _)

#define umts_forbidden_affect_cell_FIELDS(F)                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_forbidden_affect_cell_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_forbidden_affect_cell_list_FIELDS(F)              \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, umts_forbidden_affect_cell, entries, 32, UMTS_ALWAYS, count)

/* triggeringCondition, reportDeactivationThreshold, reportingAmount and reportingInterval
   are ordinals. */
#define UMTS_EVENT_1B_FIELDS(F, forbidden)                                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(SCALAR, uint32_t, triggeringCondition, 1, UMTS_ALWAYS, _)                          \
  F(SCALAR, uint8_t, reportingRange, 1, UMTS_ALWAYS, _)                                \
  F(RECORD, forbidden, forbiddenAffectCellList, 1, 0, _)                               \
  F(SCALAR, uint8_t, w, 1, UMTS_ALWAYS, _)

#define UMTS_EVENT_1A_FIELDS(F, forbidden)                             \
  UMTS_EVENT_1B_FIELDS(F, forbidden)                                   \
  F(SCALAR, uint32_t, reportDeactivationThreshold, 1, UMTS_ALWAYS, _)  \
  F(SCALAR, uint32_t, reportingAmount, 1, UMTS_ALWAYS, _)              \
  F(SCALAR, uint32_t, reportingInterval, 1, UMTS_ALWAYS, _)

#define umts_event_1a_FIELDS(F) UMTS_EVENT_1A_FIELDS(F, umts_forbidden_affect_cell_list)
#define umts_event_1b_FIELDS(F) UMTS_EVENT_1B_FIELDS(F, umts_forbidden_affect_cell_list)

#define umts_event_1c_FIELDS(F)                                                \
  F(SCALAR, uint32_t, replacementActivationThreshold, 1, UMTS_ALWAYS, _)       \
  F(SCALAR, uint32_t, reportingAmount, 1, UMTS_ALWAYS, _)                      \
  F(SCALAR, uint32_t, reportingInterval, 1, UMTS_ALWAYS, _)

#define umts_event_1e_FIELDS(F)                                        \
  F(SCALAR, uint32_t, triggeringCondition, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, int16_t, thresholdUsedFrequency, 1, UMTS_ALWAYS, _)

#define umts_event_1f_FIELDS(F) umts_event_1e_FIELDS(F)

/* IntraFreqEvent: e1d (4) and e1g (7) carry nothing. */
#define umts_intra_freq_event_u_FIELDS(F)              \
  F(RECORD, umts_event_1a, e1a, 1, 1, _)               \
  F(RECORD, umts_event_1b, e1b, 1, 2, _)               \
  F(RECORD, umts_event_1c, e1c, 1, 3, _)               \
  F(RECORD, umts_event_1e, e1e, 1, 5, _)               \
  F(RECORD, umts_event_1f, e1f, 1, 6, _)               \
  F(SCALAR, int16_t, e1h, 1, 8, _)                     \
  F(SCALAR, int16_t, e1i, 1, 9, _)

#define umts_intra_freq_event_FIELDS(F)                        \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_intra_freq_event_u, u, 1, UMTS_ALWAYS, choice_tag)

/* ReportingCellStatus: each alternative a MaxNumberOfReportingCellsType1/2/3 ordinal. */
#define umts_reporting_cell_status_u_FIELDS(F)                                                 \
  F(SCALAR, uint32_t, withinActiveSet, 1, 1, _)                                                \
  F(SCALAR, uint32_t, withinMonitoredSetUsedFreq, 1, 2, _)                                     \
  F(SCALAR, uint32_t, withinActiveAndOrMonitoredUsedFreq, 1, 3, _)                             \
  F(SCALAR, uint32_t, withinDetectedSetUsedFreq, 1, 4, _)                                      \
  F(SCALAR, uint32_t, withinMonitoredAndOrDetectedUsedFreq, 1, 5, _)                           \
  F(SCALAR, uint32_t, allActiveplusMonitoredSet, 1, 6, _)                                      \
  F(SCALAR, uint32_t, allActivePlusDetectedSet, 1, 7, _)                                       \
  F(SCALAR, uint32_t, allActivePlusMonitoredAndOrDetectedSet, 1, 8, _)                         \
  F(SCALAR, uint32_t, withinVirtualActSet, 1, 9, _)                                            \
  F(SCALAR, uint32_t, withinMonitoredSetNonUsedFreq, 1, 10, _)                                 \
  F(SCALAR, uint32_t, withinMonitoredAndOrVirtualActiveSetNonUsedFreq, 1, 11, _)               \
  F(SCALAR, uint32_t, allVirtualActSetplusMonitoredSetNonUsedFreq, 1, 12, _)                   \
  F(SCALAR, uint32_t, withinActSetOrVirtualActSet_InterRATcells, 1, 13, _)                     \
  F(SCALAR, uint32_t, withinActSetAndOrMonitoredUsedFreqOrVirtualActSetAndOrMonitoredNonUsedFreq, 1, 14, _)

#define umts_reporting_cell_status_FIELDS(F)                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_reporting_cell_status_u, u, 1, UMTS_ALWAYS, choice_tag)

/* timeToTrigger: the ordinal. */
#define UMTS_INTRA_FREQ_EVENT_CRITERIA_FIELDS(F, event_type)                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, event_type, event, 1, UMTS_ALWAYS, _)                                      \
  F(SCALAR, uint8_t, hysteresis, 1, UMTS_ALWAYS, _)                                    \
  F(SCALAR, uint32_t, timeToTrigger, 1, UMTS_ALWAYS, _)                                \
  F(RECORD, umts_reporting_cell_status, reportingCellStatus, 1, 0, _)

#define umts_intra_freq_event_criteria_FIELDS(F) UMTS_INTRA_FREQ_EVENT_CRITERIA_FIELDS(F, umts_intra_freq_event)

#define umts_intra_freq_event_criteria_list_FIELDS(F)          \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, umts_intra_freq_event_criteria, entries, 8, UMTS_ALWAYS, count)

#define umts_intra_freq_reporting_criteria_FIELDS(F)                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_intra_freq_event_criteria_list, eventCriteriaList, 1, 0, _)

#define umts_cell_dch_report_criteria_u_FIELDS(F)                                              \
  F(RECORD, umts_intra_freq_reporting_criteria, intraFreqReportingCriteria, 1, 1, _)           \
  F(RECORD, umts_periodical_reporting_criteria, periodicalReportingCriteria, 1, 2, _)

#define umts_cell_dch_report_criteria_FIELDS(F)                \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_cell_dch_report_criteria_u, u, 1, UMTS_ALWAYS, choice_tag)

#define UMTS_REPORTING_INFO_FOR_CELL_DCH_FIELDS(F, criteria)                                           \
  F(RECORD, umts_intra_freq_reporting_quantity, intraFreqReportingQuantity, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_measurement_reporting_mode, measurementReportingMode, 1, UMTS_ALWAYS, _)              \
  F(RECORD, criteria, reportCriteria, 1, UMTS_ALWAYS, _)

#define umts_reporting_info_for_cell_dch_FIELDS(F) UMTS_REPORTING_INFO_FOR_CELL_DCH_FIELDS(F, umts_cell_dch_report_criteria)

/* ==== Intra-frequency measurement system information ====================================== */

/* maxReportedCellsOnRACH: the ordinal. */
#define UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, list) \
  UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FORM_FIELDS(F, list, umts_reporting_info_for_cell_dch)
#define UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FORM_FIELDS(F, list, dch)                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                     \
  F(SCALAR, uint8_t, intraFreqMeasurementID, 1, UMTS_ALWAYS, _)                                                \
  F(RECORD, list, intraFreqCellInfoSI_List, 1, 0, _)                                                           \
  F(RECORD, umts_intra_freq_meas_quantity, intraFreqMeasQuantity, 1, 1, _)                                     \
  F(RECORD, umts_intra_freq_reporting_quantity_for_rach, intraFreqReportingQuantityForRACH, 1, 2, _)           \
  F(SCALAR, uint32_t, maxReportedCellsOnRACH, 1, 3, _)                                                         \
  F(RECORD, dch, reportingInfoForCellDCH, 1, 4, _)

#define umts_intra_freq_measurement_sysinfo_rscp_FIELDS(F) \
  UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_intra_freq_cell_info_si_list_rscp)
#define umts_intra_freq_measurement_sysinfo_ecno_FIELDS(F) \
  UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_intra_freq_cell_info_si_list_ecno)
#define umts_intra_freq_measurement_sys_info_hcs_rscp_FIELDS(F) \
  UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_intra_freq_cell_info_si_list_hcs_rscp)
#define umts_intra_freq_measurement_sys_info_hcs_ecno_FIELDS(F) \
  UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_intra_freq_cell_info_si_list_hcs_ecno)

/* ==== Inter-frequency cells ================================================================ */

#define umts_frequency_info_fdd_FIELDS(F)                      \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint16_t, uarfcn_UL, 1, 0, _)                      \
  F(SCALAR, uint16_t, uarfcn_DL, 1, UMTS_ALWAYS, _)

#define umts_frequency_info_tdd_FIELDS(F) F(SCALAR, uint16_t, uarfcn_Nt, 1, UMTS_ALWAYS, _)

#define umts_frequency_info_u_FIELDS(F)                        \
  F(RECORD, umts_frequency_info_fdd, fdd, 1, 1, _)             \
  F(RECORD, umts_frequency_info_tdd, tdd, 1, 2, _)

/* FrequencyInfo: 1 fdd, 2 tdd. */
#define umts_frequency_info_FIELDS(F)                          \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_frequency_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* removeSomeInterFreqCells: only the identities in use are copied. */
#define umts_removed_inter_freq_cells_FIELDS(F)                \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, uint8_t, entries, 32, UMTS_ALWAYS, count)

/* 1 removeAllInterFreqCells, 2 removeSomeInterFreqCells, 3 removeNoInterFreqCells. */
#define umts_removed_inter_freq_cell_list_u_FIELDS(F) \
  F(RECORD, umts_removed_inter_freq_cells, removeSomeInterFreqCells, 1, 2, _)

#define umts_removed_inter_freq_cell_list_FIELDS(F)            \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_removed_inter_freq_cell_list_u, u, 1, UMTS_ALWAYS, choice_tag)

/* `frequency`: how the cell tells that frequencyInfo came: bit 1, or in the ECN0 form, where
   bit 1 stays clear, the choice_tag of frequencyInfo (UMTS_BY_TAG). */
#define UMTS_NEW_INTER_FREQ_CELL_SI_FIELDS(F, cell, frequency)         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint8_t, interFreqCellID, 1, 0, _)                         \
  F(RECORD, umts_frequency_info, frequencyInfo, 1, frequency, _)       \
  F(RECORD, cell, cellInfo, 1, UMTS_ALWAYS, _)

#define umts_new_inter_freq_cell_si_rscp_FIELDS(F) UMTS_NEW_INTER_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_rscp, 1)
#define umts_new_inter_freq_cell_si_ecno_FIELDS(F) \
  UMTS_NEW_INTER_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_ecno, UMTS_BY_TAG)
#define umts_new_inter_freq_cell_si_hcs_rscp_FIELDS(F) \
  UMTS_NEW_INTER_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_hcs_rscp, 1)
#define umts_new_inter_freq_cell_si_hcs_ecno_FIELDS(F) \
  UMTS_NEW_INTER_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_hcs_ecno, 1)

#define umts_new_inter_freq_cell_si_list_rscp_FIELDS(F) UMTS_CELL_LIST_FIELDS(F, umts_new_inter_freq_cell_si_rscp, 32)
#define umts_new_inter_freq_cell_si_list_ecno_FIELDS(F) UMTS_CELL_LIST_FIELDS(F, umts_new_inter_freq_cell_si_ecno, 32)
#define umts_new_inter_freq_cell_si_list_hcs_rscp_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_inter_freq_cell_si_hcs_rscp, 32)
#define umts_new_inter_freq_cell_si_list_hcs_ecno_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_inter_freq_cell_si_hcs_ecno, 32)

/* The new-cell list is optional here. */
#define UMTS_INTER_FREQ_CELL_INFO_SI_LIST_FIELDS(F, list)                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_removed_inter_freq_cell_list, removedInterFreqCellList, 1, 0, _)      \
  F(RECORD, list, newInterFreqCellList, 1, 1, _)

#define umts_inter_freq_cell_info_si_list_rscp_FIELDS(F) \
  UMTS_INTER_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_inter_freq_cell_si_list_rscp)
#define umts_inter_freq_cell_info_si_list_ecno_FIELDS(F) \
  UMTS_INTER_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_inter_freq_cell_si_list_ecno)
#define umts_inter_freq_cell_info_si_list_hcs_rscp_FIELDS(F) \
  UMTS_INTER_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_inter_freq_cell_si_list_hcs_rscp)
#define umts_inter_freq_cell_info_si_list_hcs_ecno_FIELDS(F) \
  UMTS_INTER_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_inter_freq_cell_si_list_hcs_ecno)

#define UMTS_INTER_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, list)   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)     \
  F(RECORD, list, interFreqCellInfoSI_List, 1, 0, _)

#define umts_inter_freq_measurement_sysinfo_rscp_FIELDS(F) \
  UMTS_INTER_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_inter_freq_cell_info_si_list_rscp)
#define umts_inter_freq_measurement_sysinfo_ecno_FIELDS(F) \
  UMTS_INTER_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_inter_freq_cell_info_si_list_ecno)
#define umts_inter_freq_measurement_sys_info_hcs_rscp_FIELDS(F) \
  UMTS_INTER_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_inter_freq_cell_info_si_list_hcs_rscp)
#define umts_inter_freq_measurement_sys_info_hcs_ecno_FIELDS(F) \
  UMTS_INTER_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_inter_freq_cell_info_si_list_hcs_ecno)

/* ==== Inter-RAT cells ====================================================================== */

/* removeSomeInterRATCells: only the identities in use are copied. */
#define umts_removed_inter_rat_cells_FIELDS(F)                 \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, uint8_t, entries, 32, UMTS_ALWAYS, count)

/* 1 removeAllInterRATCells, 2 removeSomeInterRATCells, 3 removeNoInterRATCells. */
#define umts_removed_inter_rat_cell_list_u_FIELDS(F) \
  F(RECORD, umts_removed_inter_rat_cells, removeSomeInterRATCells, 1, 2, _)

#define umts_removed_inter_rat_cell_list_FIELDS(F)             \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_removed_inter_rat_cell_list_u, u, 1, UMTS_ALWAYS, choice_tag)

/* CellSelectReselectInfoSIB-11-12 of the GSM neighbours. */
#define umts_cell_select_reselect_info_sib_11_12_FIELDS(F)                                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, int8_t, q_Offset1S_N, 1, UMTS_ALWAYS, _)                                                   \
  F(SCALAR, int8_t, q_Offset2S_N, 1, 0, _)                                                             \
  F(SCALAR, int8_t, maxAllowedUL_TX_Power, 1, 1, _)                                                    \
  F(RECORD, umts_hcs_neighbouring_cell_info_rscp, hcs_NeighbouringCellInformation_RSCP, 1, 2, _)       \
  F(RECORD, umts_cell_select_reselect_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_bsic_FIELDS(F)                            \
  F(SCALAR, uint8_t, ncc, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint8_t, bcc, 1, UMTS_ALWAYS, _)

/* bsic is valid when bit 1 is set: in the full list only a cell with the decoded dummy
   element brings it; in the B list it is always copied and bit 1 stays clear. frequency_band
   is the Frequency-Band ordinal. */
#define umts_new_inter_rat_cell_gsm_FIELDS(F)                                                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_cell_select_reselect_info_sib_11_12, cellSelectionReselectionInfo, 1, 0, _)           \
  F(SCALAR, int8_t, interRATCellIndividualOffset, 1, UMTS_ALWAYS, _)                                   \
  F(RECORD, umts_bsic, bsic, 1, UMTS_ALWAYS, _)                                                        \
  F(SCALAR, uint32_t, frequency_band, 1, UMTS_ALWAYS, _)                                               \
  F(SCALAR, uint16_t, bcch_ARFCN, 1, UMTS_ALWAYS, _)

/* 1 gsm, 2 is-2000 (the IS-2000 measurement ordinal), 3 absent, 4 spare1. */
#define umts_new_inter_rat_cell_technology_specific_info_u_FIELDS(F)   \
  F(RECORD, umts_new_inter_rat_cell_gsm, gsm, 1, 1, _)                 \
  F(SCALAR, uint32_t, is_2000SpecificMeasInfo, 1, 2, _)

#define umts_new_inter_rat_cell_technology_specific_info_FIELDS(F)     \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                   \
  F(UNION, umts_new_inter_rat_cell_technology_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_new_inter_rat_cell_FIELDS(F)                                                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, uint8_t, interRATCellID, 1, 0, _)                                                          \
  F(RECORD, umts_new_inter_rat_cell_technology_specific_info, technologySpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_new_inter_rat_cell_list_FIELDS(F) UMTS_CELL_LIST_FIELDS(F, umts_new_inter_rat_cell, 32)
#define umts_new_inter_rat_cell_list_b_FIELDS(F) UMTS_CELL_LIST_FIELDS(F, umts_new_inter_rat_cell, 32)

/* What cellsForInterRATMeasList holds is told at its conversion. */
#define umts_cells_for_inter_rat_meas_list_FIELDS(F)           \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, uint8_t, entries, 32, UMTS_ALWAYS, count)

#define umts_inter_rat_cell_info_list_FIELDS(F)                                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_removed_inter_rat_cell_list, removedInterRATCellList, 1, UMTS_ALWAYS, _)              \
  F(RECORD, umts_new_inter_rat_cell_list, newInterRATCellList, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_cells_for_inter_rat_meas_list, cellsForInterRATMeasList, 1, 0, _)

#define umts_inter_rat_cell_info_list_b_FIELDS(F)                                                      \
  F(RECORD, umts_removed_inter_rat_cell_list, removedInterRATCellList, 1, UMTS_ALWAYS, _)              \
  F(RECORD, umts_new_inter_rat_cell_list_b, newInterRATCellList, 1, UMTS_ALWAYS, _)

#define umts_inter_rat_measurement_sys_info_FIELDS(F)                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_inter_rat_cell_info_list, interRATCellInfoList, 1, 0, _)

#define umts_inter_rat_measurement_sysinfo_b_FIELDS(F)                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_inter_rat_cell_info_list_b, interRATCellInfoList, 1, 0, _)

/* ==== Measurement control system information of SIB11 and SIB12 =========================== */

#define UMTS_QUALITY_ALTERNATIVE_FIELDS(F, intra, inter)               \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(RECORD, intra, intraFreqMeasurementSysInfo, 1, 0, _)               \
  F(RECORD, inter, interFreqMeasurementSysInfo, 1, 1, _)

/* Each form holds both records, each under its presence bit: the intra-frequency record
   (bit 0) and the inter-frequency record (bit 1), in every branch, hcs_not_used with
   cpich_Ec_N0 among them. */
#define umts_hcs_not_used_cpich_rscp_FIELDS(F) \
  UMTS_QUALITY_ALTERNATIVE_FIELDS(F, umts_intra_freq_measurement_sysinfo_rscp, umts_inter_freq_measurement_sysinfo_rscp)
#define umts_hcs_not_used_cpich_ec_n0_FIELDS(F) \
  UMTS_QUALITY_ALTERNATIVE_FIELDS(F, umts_intra_freq_measurement_sysinfo_ecno, umts_inter_freq_measurement_sysinfo_ecno)
#define umts_hcs_used_cpich_rscp_FIELDS(F)                                             \
  UMTS_QUALITY_ALTERNATIVE_FIELDS(F, umts_intra_freq_measurement_sys_info_hcs_rscp,    \
                                  umts_inter_freq_measurement_sys_info_hcs_rscp)
#define umts_hcs_used_cpich_ec_n0_FIELDS(F)                                            \
  UMTS_QUALITY_ALTERNATIVE_FIELDS(F, umts_intra_freq_measurement_sys_info_hcs_ecno,    \
                                  umts_inter_freq_measurement_sys_info_hcs_ecno)

/* cellSelectQualityMeasure: 1 cpich_RSCP, 2 cpich_Ec_N0. */
#define umts_hcs_not_used_quality_measure_u_FIELDS(F)                  \
  F(RECORD, umts_hcs_not_used_cpich_rscp, cpich_RSCP, 1, 1, _)         \
  F(RECORD, umts_hcs_not_used_cpich_ec_n0, cpich_Ec_N0, 1, 2, _)

#define umts_hcs_not_used_quality_measure_FIELDS(F)            \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_hcs_not_used_quality_measure_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_hcs_used_quality_measure_u_FIELDS(F)                      \
  F(RECORD, umts_hcs_used_cpich_rscp, cpich_RSCP, 1, 1, _)             \
  F(RECORD, umts_hcs_used_cpich_ec_n0, cpich_Ec_N0, 1, 2, _)

#define umts_hcs_used_quality_measure_FIELDS(F)                \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_hcs_used_quality_measure_u, u, 1, UMTS_ALWAYS, choice_tag)

/* hcs_not_used carries the B form of the inter-RAT record, hcs_used the full one. */
#define umts_hcs_not_used_FIELDS(F)                                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                     \
  F(RECORD, umts_hcs_not_used_quality_measure, cellSelectQualityMeasure, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_inter_rat_measurement_sysinfo_b, interRATMeasurementSysInfo, 1, 0, _)

#define umts_hcs_used_FIELDS(F)                                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                     \
  F(RECORD, umts_hcs_used_quality_measure, cellSelectQualityMeasure, 1, UMTS_ALWAYS, _)        \
  F(RECORD, umts_inter_rat_measurement_sys_info, interRATMeasurementSysInfo, 1, 0, _)

#define umts_use_of_hcs_u_FIELDS(F)                            \
  F(RECORD, umts_hcs_not_used, hcs_not_used, 1, 1, _)          \
  F(RECORD, umts_hcs_used, hcs_used, 1, 2, _)

/* use_of_HCS: 1 hcs_not_used, 2 hcs_used. */
#define umts_use_of_hcs_FIELDS(F)                              \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_use_of_hcs_u, u, 1, UMTS_ALWAYS, choice_tag)

/* dummy carries a UE-InternalMeasurementSysInfo in full. */
#define umts_measurement_control_sys_info_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                     \
  F(RECORD, umts_use_of_hcs, use_of_HCS, 1, UMTS_ALWAYS, _)                                    \
  F(RECORD, umts_traffic_vol_meas_sys_info, trafficVolumeMeasSysInfo, 1, 0, _)                 \
  F(RECORD, umts_ue_internal_meas_sys_info, dummy, 1, 1, _)

/* inter_RAT_meas_ind: the decoder's count and all 15 RAT-Type ordinals as it laid them out. */
#define umts_inter_rat_meas_ind_FIELDS(F)                      \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, uint32_t, entries, 15, UMTS_ALWAYS, count)

#define umts_fach_measurement_occasion_info_FIELDS(F)                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                     \
  F(SCALAR, uint8_t, fACH_meas_occasion_coeff, 1, 0, _)                        \
  F(BOOL, uint8_t, inter_freq_FDD_meas_ind, 1, UMTS_ALWAYS, _)                 \
  F(BOOL, uint8_t, inter_freq_TDD_meas_ind, 1, UMTS_ALWAYS, _)                 \
  F(RECORD, umts_inter_rat_meas_ind, inter_RAT_meas_ind, 1, 1, _)

/* ==== Measurement control system information of SIB11bis ================================== */

#define UMTS_EXT_QUALITY_ALTERNATIVE_FIELDS(F, intra, inter)           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(RECORD, intra, newIntraFreqCellList, 1, 0, _)                      \
  F(RECORD, inter, newInterFreqCellList, 1, 1, _)

/* As in SIB11, every form holds both new-cell lists, each under its presence bit
   (intra-frequency bit 0, inter-frequency bit 1), hcs_not_used with cpich_Ec_N0 among them. */
#define umts_ext_hcs_not_used_cpich_rscp_FIELDS(F) \
  UMTS_EXT_QUALITY_ALTERNATIVE_FIELDS(F, umts_new_intra_freq_cell_si_list_rscp, umts_new_inter_freq_cell_si_list_rscp)
#define umts_ext_hcs_not_used_cpich_ec_n0_FIELDS(F) \
  UMTS_EXT_QUALITY_ALTERNATIVE_FIELDS(F, umts_new_intra_freq_cell_si_list_ecno, umts_new_inter_freq_cell_si_list_ecno)
#define umts_ext_hcs_used_cpich_rscp_FIELDS(F)                                         \
  UMTS_EXT_QUALITY_ALTERNATIVE_FIELDS(F, umts_new_intra_freq_cell_si_list_hcs_rscp,    \
                                      umts_new_inter_freq_cell_si_list_hcs_rscp)
#define umts_ext_hcs_used_cpich_ec_n0_FIELDS(F)                                        \
  UMTS_EXT_QUALITY_ALTERNATIVE_FIELDS(F, umts_new_intra_freq_cell_si_list_hcs_ecno,    \
                                      umts_new_inter_freq_cell_si_list_hcs_ecno)

#define umts_ext_hcs_not_used_quality_measure_u_FIELDS(F)              \
  F(RECORD, umts_ext_hcs_not_used_cpich_rscp, cpich_RSCP, 1, 1, _)     \
  F(RECORD, umts_ext_hcs_not_used_cpich_ec_n0, cpich_Ec_N0, 1, 2, _)

#define umts_ext_hcs_not_used_quality_measure_FIELDS(F)        \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_ext_hcs_not_used_quality_measure_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_ext_hcs_used_quality_measure_u_FIELDS(F)                  \
  F(RECORD, umts_ext_hcs_used_cpich_rscp, cpich_RSCP, 1, 1, _)         \
  F(RECORD, umts_ext_hcs_used_cpich_ec_n0, cpich_Ec_N0, 1, 2, _)

#define umts_ext_hcs_used_quality_measure_FIELDS(F)            \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_ext_hcs_used_quality_measure_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_ext_hcs_not_used_FIELDS(F)                                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_ext_hcs_not_used_quality_measure, cellSelectQualityMeasure, 1, UMTS_ALWAYS, _)        \
  F(RECORD, umts_new_inter_rat_cell_list, newInterRATCellList, 1, 0, _)

#define umts_ext_hcs_used_FIELDS(F)                                                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_ext_hcs_used_quality_measure, cellSelectQualityMeasure, 1, UMTS_ALWAYS, _)            \
  F(RECORD, umts_new_inter_rat_cell_list, newInterRATCellList, 1, 0, _)

#define umts_ext_use_of_hcs_u_FIELDS(F)                        \
  F(RECORD, umts_ext_hcs_not_used, hcs_not_used, 1, 1, _)      \
  F(RECORD, umts_ext_hcs_used, hcs_used, 1, 2, _)

#define umts_ext_use_of_hcs_FIELDS(F)                          \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_ext_use_of_hcs_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_measurement_control_sys_info_extension_FIELDS(F) \
  F(RECORD, umts_ext_use_of_hcs, use_of_HCS, 1, UMTS_ALWAYS, _)

/* ==== SIB11bis: the add-on of Release 5 and the extension chain ============================ */

/* The v590 cell records of the new cells, in the order of the cell lists. */
#define umts_cell_select_reselect_info_v590ext_list_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_cell_select_reselect_info_v590ext, 32)

#define umts_measurement_control_sys_info_extension_addon_r5_FIELDS(F)                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                     \
  F(RECORD, umts_cell_select_reselect_info_v590ext_list, newIntraFrequencyCellInfoListAddon_r5, 1, 0, _)       \
  F(RECORD, umts_cell_select_reselect_info_v590ext_list, newInterFrequencyCellInfoListAddon_r5, 1, 1, _)       \
  F(RECORD, umts_cell_select_reselect_info_v590ext_list, newInterRATCellInfoListAddon_r5, 1, 2, _)

/* NewInterFreqCellList-v7b0ext: one intraSecondaryFreqIndicator (boolean) per new cell. */
#define umts_new_inter_freq_cell_list_v7b0ext_FIELDS(F)        \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, uint8_t, intraSecondaryFreqIndicator, 32, UMTS_ALWAYS, count)

#define umts_v7b0ext_ies_FIELDS(F)                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_new_inter_freq_cell_list_v7b0ext, newInterFreqCellList, 1, 0, _)

#define umts_csg_dedicated_frequency_info_list_FIELDS(F)       \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, umts_frequency_info, entries, 4, UMTS_ALWAYS, count)

#define umts_sib11bis_v860ext_ies_FIELDS(F)                                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_csg_psc_split_info, csg_PSCSplitInfo, 1, 0, _)                                        \
  F(RECORD, umts_csg_dedicated_frequency_info_list, csg_DedicatedFrequencyInfoList, 1, 1, _)

/* Each link: its extension, always, then the next link under bit 0. nonCriticalExtensions is
   the byte of an empty sequence. */
#define umts_sib11bis_v860_nc_extensions_FIELDS(F)                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_sib11bis_v860ext_ies, sysInfoType11bis_v860ext, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, uint8_t, nonCriticalExtensions, 1, 0, _)

#define umts_sib11bis_v7b0_nc_extensions_FIELDS(F)                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_v7b0ext_ies, sysInfoType11bis_v7b0ext, 1, UMTS_ALWAYS, _)             \
  F(RECORD, umts_sib11bis_v860_nc_extensions, v860NonCriticalExtensions, 1, 0, _)

/* ==== LCR (TDD 1.28 Mcps) forms of the measurement control information ===================== */

/* An LCR record is its main record with the TDD members of the cell directly in the cell (an
   LCR cell is always TDD), the LCR primary CCPCH, at most 6 timeslots, and forbidden cells of
   events 1a and 1b that are LCR primary CCPCHs without a choice. */
#define umts_primary_ccpch_info_lcr_r4_FIELDS(F)               \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)     \
  F(BOOL, uint8_t, tstd_Indicator, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint8_t, cellParametersID, 1, 0, _)                \
  F(BOOL, uint8_t, sctd_Indicator, 1, UMTS_ALWAYS, _)

/* The timeslot numbers. */
#define umts_timeslot_info_list_lcr_r4_FIELDS(F)               \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, uint8_t, entries, 6, UMTS_ALWAYS, count)

#define UMTS_CELL_INFO_SI_LCR_R4_FIELDS(F, selection)                                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, int8_t, cellIndividualOffset, 1, UMTS_ALWAYS, _)                                           \
  F(RECORD, umts_reference_time_difference_to_cell, referenceTimeDifferenceToCell, 1, 0, _)            \
  F(RECORD, umts_primary_ccpch_info_lcr_r4, primaryCCPCH_Info, 1, UMTS_ALWAYS, _)                      \
  F(SCALAR, uint8_t, primaryCCPCH_TX_Power, 1, 1, _)                                                   \
  F(RECORD, umts_timeslot_info_list_lcr_r4, timeslotInfoList, 1, 2, _)                                 \
  F(BOOL, uint8_t, readSFN_Indicator, 1, UMTS_ALWAYS, _)                                               \
  F(RECORD, selection, cellSelectionReselectionInfo, 1, 3, _)

/* In SIB11 the ECN0 cell has bit 3 say whether primaryCCPCH_Info was converted: a cell
   without cellSelectionReselectionInfo keeps a zero primaryCCPCH_Info there. */
#define umts_cell_info_si_rscp_lcr_r4_FIELDS(F) \
  UMTS_CELL_INFO_SI_LCR_R4_FIELDS(F, umts_cell_select_reselect_info_sib_11_12_rscp)
#define umts_cell_info_si_ecno_lcr_r4_FIELDS(F) \
  UMTS_CELL_INFO_SI_LCR_R4_FIELDS(F, umts_cell_select_reselect_info_sib_11_12_ecno)
#define umts_cell_info_si_hcs_rscp_lcr_r4_FIELDS(F) \
  UMTS_CELL_INFO_SI_LCR_R4_FIELDS(F, umts_cell_select_reselect_info_sib_11_12_hcs_rscp)
#define umts_cell_info_si_hcs_ecno_lcr_r4_FIELDS(F) \
  UMTS_CELL_INFO_SI_LCR_R4_FIELDS(F, umts_cell_select_reselect_info_sib_11_12_hcs_ecno)

#define umts_new_intra_freq_cell_si_rscp_lcr_r4_FIELDS(F) \
  UMTS_NEW_INTRA_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_rscp_lcr_r4)
#define umts_new_intra_freq_cell_si_ecno_lcr_r4_FIELDS(F) \
  UMTS_NEW_INTRA_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_ecno_lcr_r4)
#define umts_new_intra_freq_cell_si_hcs_rscp_lcr_r4_FIELDS(F) \
  UMTS_NEW_INTRA_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_hcs_rscp_lcr_r4)
#define umts_new_intra_freq_cell_si_hcs_ecno_lcr_r4_FIELDS(F) \
  UMTS_NEW_INTRA_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_hcs_ecno_lcr_r4)

#define umts_new_intra_freq_cell_si_list_rscp_lcr_r4_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_intra_freq_cell_si_rscp_lcr_r4, 32)
#define umts_new_intra_freq_cell_si_list_ecno_lcr_r4_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_intra_freq_cell_si_ecno_lcr_r4, 32)
#define umts_new_intra_freq_cell_si_list_hcs_rscp_lcr_r4_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_intra_freq_cell_si_hcs_rscp_lcr_r4, 32)
#define umts_new_intra_freq_cell_si_list_hcs_ecno_lcr_r4_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_intra_freq_cell_si_hcs_ecno_lcr_r4, 32)

/* Every LCR form sets bit 1 when frequencyInfo came. */
#define umts_new_inter_freq_cell_si_rscp_lcr_r4_FIELDS(F) \
  UMTS_NEW_INTER_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_rscp_lcr_r4, 1)
#define umts_new_inter_freq_cell_si_ecno_lcr_r4_FIELDS(F) \
  UMTS_NEW_INTER_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_ecno_lcr_r4, 1)
#define umts_new_inter_freq_cell_si_hcs_rscp_lcr_r4_FIELDS(F) \
  UMTS_NEW_INTER_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_hcs_rscp_lcr_r4, 1)
#define umts_new_inter_freq_cell_si_hcs_ecno_lcr_r4_FIELDS(F) \
  UMTS_NEW_INTER_FREQ_CELL_SI_FIELDS(F, umts_cell_info_si_hcs_ecno_lcr_r4, 1)

#define umts_new_inter_freq_cell_si_list_rscp_lcr_r4_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_inter_freq_cell_si_rscp_lcr_r4, 32)
#define umts_new_inter_freq_cell_si_list_ecno_lcr_r4_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_inter_freq_cell_si_ecno_lcr_r4, 32)
#define umts_new_inter_freq_cell_si_list_hcs_rscp_lcr_r4_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_inter_freq_cell_si_hcs_rscp_lcr_r4, 32)
#define umts_new_inter_freq_cell_si_list_hcs_ecno_lcr_r4_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_new_inter_freq_cell_si_hcs_ecno_lcr_r4, 32)

#define umts_intra_freq_cell_info_si_list_rscp_lcr_r4_FIELDS(F) \
  UMTS_INTRA_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_intra_freq_cell_si_list_rscp_lcr_r4)
#define umts_intra_freq_cell_info_si_list_ecno_lcr_r4_FIELDS(F) \
  UMTS_INTRA_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_intra_freq_cell_si_list_ecno_lcr_r4)
#define umts_intra_freq_cell_info_si_list_hcs_rscp_lcr_r4_FIELDS(F) \
  UMTS_INTRA_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_intra_freq_cell_si_list_hcs_rscp_lcr_r4)
#define umts_intra_freq_cell_info_si_list_hcs_ecno_lcr_r4_FIELDS(F) \
  UMTS_INTRA_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_intra_freq_cell_si_list_hcs_ecno_lcr_r4)

/* In SIB11 the RSCP form's removeSomeInterFreqCells of more than 8 identities runs on over
   newInterFreqCellList, which then reads empty (see its conversion). */
#define umts_inter_freq_cell_info_si_list_rscp_lcr_FIELDS(F) \
  UMTS_INTER_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_inter_freq_cell_si_list_rscp_lcr_r4)
#define umts_inter_freq_cell_info_si_list_ecno_lcr_FIELDS(F) \
  UMTS_INTER_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_inter_freq_cell_si_list_ecno_lcr_r4)
#define umts_inter_freq_cell_info_si_list_hcs_rscp_lcr_FIELDS(F) \
  UMTS_INTER_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_inter_freq_cell_si_list_hcs_rscp_lcr_r4)
#define umts_inter_freq_cell_info_si_list_hcs_ecno_lcr_FIELDS(F) \
  UMTS_INTER_FREQ_CELL_INFO_SI_LIST_FIELDS(F, umts_new_inter_freq_cell_si_list_hcs_ecno_lcr_r4)

/* The reporting records: events 1a and 1b with LCR forbidden cells. */
#define umts_forbidden_affect_cell_list_lcr_r4_FIELDS(F) \
  UMTS_CELL_LIST_FIELDS(F, umts_primary_ccpch_info_lcr_r4, 32)

#define umts_event_1a_lcr_r4_FIELDS(F) UMTS_EVENT_1A_FIELDS(F, umts_forbidden_affect_cell_list_lcr_r4)
#define umts_event_1b_lcr_r4_FIELDS(F) UMTS_EVENT_1B_FIELDS(F, umts_forbidden_affect_cell_list_lcr_r4)

/* IntraFreqEvent-LCR-r4: the tags of IntraFreqEvent; e1d (4) and e1g (7) carry nothing. */
#define umts_intra_freq_event_lcr_r4_u_FIELDS(F)       \
  F(RECORD, umts_event_1a_lcr_r4, e1a, 1, 1, _)        \
  F(RECORD, umts_event_1b_lcr_r4, e1b, 1, 2, _)        \
  F(RECORD, umts_event_1c, e1c, 1, 3, _)               \
  F(RECORD, umts_event_1e, e1e, 1, 5, _)               \
  F(RECORD, umts_event_1f, e1f, 1, 6, _)               \
  F(SCALAR, int16_t, e1h, 1, 8, _)                     \
  F(SCALAR, int16_t, e1i, 1, 9, _)

#define umts_intra_freq_event_lcr_r4_FIELDS(F)                 \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_intra_freq_event_lcr_r4_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_intra_freq_event_criteria_lcr_r4_FIELDS(F) UMTS_INTRA_FREQ_EVENT_CRITERIA_FIELDS(F, umts_intra_freq_event_lcr_r4)

#define umts_intra_freq_event_criteria_list_lcr_r4_FIELDS(F) UMTS_CELL_LIST_FIELDS(F, umts_intra_freq_event_criteria_lcr_r4, 8)

#define umts_intra_freq_reporting_criteria_lcr_r4_FIELDS(F)                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_intra_freq_event_criteria_list_lcr_r4, eventCriteriaList, 1, 0, _)

#define umts_cell_dch_report_criteria_lcr_r4_u_FIELDS(F)                                       \
  F(RECORD, umts_intra_freq_reporting_criteria_lcr_r4, intraFreqReportingCriteria, 1, 1, _)    \
  F(RECORD, umts_periodical_reporting_criteria, periodicalReportingCriteria, 1, 2, _)

#define umts_cell_dch_report_criteria_lcr_r4_FIELDS(F)         \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_cell_dch_report_criteria_lcr_r4_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_reporting_info_for_cell_dch_lcr_r4_FIELDS(F) \
  UMTS_REPORTING_INFO_FOR_CELL_DCH_FIELDS(F, umts_cell_dch_report_criteria_lcr_r4)

/* The measurement records. */
#define umts_intra_freq_measurement_sys_info_rscp_lcr_r4_FIELDS(F)                                     \
  UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FORM_FIELDS(F, umts_intra_freq_cell_info_si_list_rscp_lcr_r4,   \
                                                   umts_reporting_info_for_cell_dch_lcr_r4)
#define umts_intra_freq_measurement_sys_info_ecno_lcr_r4_FIELDS(F)                                     \
  UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FORM_FIELDS(F, umts_intra_freq_cell_info_si_list_ecno_lcr_r4,   \
                                                   umts_reporting_info_for_cell_dch_lcr_r4)
#define umts_intra_freq_measurement_sys_info_hcs_rscp_lcr_r4_FIELDS(F)                                 \
  UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FORM_FIELDS(F, umts_intra_freq_cell_info_si_list_hcs_rscp_lcr_r4, \
                                                   umts_reporting_info_for_cell_dch_lcr_r4)
#define umts_intra_freq_measurement_sys_info_hcs_ecno_lcr_r4_FIELDS(F)                                 \
  UMTS_INTRA_FREQ_MEASUREMENT_SYS_INFO_FORM_FIELDS(F, umts_intra_freq_cell_info_si_list_hcs_ecno_lcr_r4, \
                                                   umts_reporting_info_for_cell_dch_lcr_r4)

#define umts_inter_freq_measurement_sys_info_rscp_lcr_r4_FIELDS(F) \
  UMTS_INTER_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_inter_freq_cell_info_si_list_rscp_lcr)
#define umts_inter_freq_measurement_sys_info_ecno_lcr_r4_FIELDS(F) \
  UMTS_INTER_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_inter_freq_cell_info_si_list_ecno_lcr)
#define umts_inter_freq_measurement_sys_info_hcs_rscp_lcr_r4_FIELDS(F) \
  UMTS_INTER_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_inter_freq_cell_info_si_list_hcs_rscp_lcr)
#define umts_inter_freq_measurement_sys_info_hcs_ecno_lcr_r4_FIELDS(F) \
  UMTS_INTER_FREQ_MEASUREMENT_SYS_INFO_FIELDS(F, umts_inter_freq_cell_info_si_list_hcs_ecno_lcr)

/* SIB11 and SIB12 (MeasurementControlSysInfo-LCR-r4-ext): each use_of_HCS alternative holds
   only cellSelectQualityMeasure; every quality alternative converts the intra- and the
   inter-frequency record, each by its own bit. */
#define umts_lcr_hcs_not_used_cpich_rscp_FIELDS(F)                                             \
  UMTS_QUALITY_ALTERNATIVE_FIELDS(F, umts_intra_freq_measurement_sys_info_rscp_lcr_r4,         \
                                  umts_inter_freq_measurement_sys_info_rscp_lcr_r4)
#define umts_lcr_hcs_not_used_cpich_ec_n0_FIELDS(F)                                            \
  UMTS_QUALITY_ALTERNATIVE_FIELDS(F, umts_intra_freq_measurement_sys_info_ecno_lcr_r4,         \
                                  umts_inter_freq_measurement_sys_info_ecno_lcr_r4)
#define umts_lcr_hcs_used_cpich_rscp_FIELDS(F)                                                 \
  UMTS_QUALITY_ALTERNATIVE_FIELDS(F, umts_intra_freq_measurement_sys_info_hcs_rscp_lcr_r4,     \
                                  umts_inter_freq_measurement_sys_info_hcs_rscp_lcr_r4)
#define umts_lcr_hcs_used_cpich_ec_n0_FIELDS(F)                                                \
  UMTS_QUALITY_ALTERNATIVE_FIELDS(F, umts_intra_freq_measurement_sys_info_hcs_ecno_lcr_r4,     \
                                  umts_inter_freq_measurement_sys_info_hcs_ecno_lcr_r4)

#define umts_lcr_hcs_not_used_quality_measure_u_FIELDS(F)              \
  F(RECORD, umts_lcr_hcs_not_used_cpich_rscp, cpich_RSCP, 1, 1, _)     \
  F(RECORD, umts_lcr_hcs_not_used_cpich_ec_n0, cpich_Ec_N0, 1, 2, _)

#define umts_lcr_hcs_not_used_quality_measure_FIELDS(F)        \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_lcr_hcs_not_used_quality_measure_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_lcr_hcs_used_quality_measure_u_FIELDS(F)                  \
  F(RECORD, umts_lcr_hcs_used_cpich_rscp, cpich_RSCP, 1, 1, _)         \
  F(RECORD, umts_lcr_hcs_used_cpich_ec_n0, cpich_Ec_N0, 1, 2, _)

#define umts_lcr_hcs_used_quality_measure_FIELDS(F)            \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_lcr_hcs_used_quality_measure_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_lcr_hcs_not_used_FIELDS(F) \
  F(RECORD, umts_lcr_hcs_not_used_quality_measure, cellSelectQualityMeasure, 1, UMTS_ALWAYS, _)
#define umts_lcr_hcs_used_FIELDS(F) \
  F(RECORD, umts_lcr_hcs_used_quality_measure, cellSelectQualityMeasure, 1, UMTS_ALWAYS, _)

#define umts_use_of_hcs_lcr_r4_ext_u_FIELDS(F)                 \
  F(RECORD, umts_lcr_hcs_not_used, hcs_not_used, 1, 1, _)      \
  F(RECORD, umts_lcr_hcs_used, hcs_used, 1, 2, _)

/* use_of_HCS: 1 hcs_not_used, 2 hcs_used. */
#define umts_use_of_hcs_lcr_r4_ext_FIELDS(F)                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_use_of_hcs_lcr_r4_ext_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_measurement_control_sys_info_lcr_r4_ext_FIELDS(F) \
  F(RECORD, umts_use_of_hcs_lcr_r4_ext, use_of_HCS, 1, UMTS_ALWAYS, _)

/* SIB11bis (MeasurementControlSysInfoExtension-LCR-r4): the shape of the main extension with
   the LCR new-cell lists; every quality alternative converts both lists by their own bits. */
#define umts_ext_hcs_not_used_cpich_rscp_lcr_r4_FIELDS(F)                                      \
  UMTS_EXT_QUALITY_ALTERNATIVE_FIELDS(F, umts_new_intra_freq_cell_si_list_rscp_lcr_r4,         \
                                      umts_new_inter_freq_cell_si_list_rscp_lcr_r4)
#define umts_ext_hcs_not_used_cpich_ec_n0_lcr_r4_FIELDS(F)                                     \
  UMTS_EXT_QUALITY_ALTERNATIVE_FIELDS(F, umts_new_intra_freq_cell_si_list_ecno_lcr_r4,         \
                                      umts_new_inter_freq_cell_si_list_ecno_lcr_r4)
#define umts_ext_hcs_used_cpich_rscp_lcr_r4_FIELDS(F)                                          \
  UMTS_EXT_QUALITY_ALTERNATIVE_FIELDS(F, umts_new_intra_freq_cell_si_list_hcs_rscp_lcr_r4,     \
                                      umts_new_inter_freq_cell_si_list_hcs_rscp_lcr_r4)
#define umts_ext_hcs_used_cpich_ec_n0_lcr_r4_FIELDS(F)                                         \
  UMTS_EXT_QUALITY_ALTERNATIVE_FIELDS(F, umts_new_intra_freq_cell_si_list_hcs_ecno_lcr_r4,     \
                                      umts_new_inter_freq_cell_si_list_hcs_ecno_lcr_r4)

#define umts_ext_hcs_not_used_quality_measure_lcr_r4_u_FIELDS(F)               \
  F(RECORD, umts_ext_hcs_not_used_cpich_rscp_lcr_r4, cpich_RSCP, 1, 1, _)      \
  F(RECORD, umts_ext_hcs_not_used_cpich_ec_n0_lcr_r4, cpich_Ec_N0, 1, 2, _)

#define umts_ext_hcs_not_used_quality_measure_lcr_r4_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_ext_hcs_not_used_quality_measure_lcr_r4_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_ext_hcs_used_quality_measure_lcr_r4_u_FIELDS(F)                   \
  F(RECORD, umts_ext_hcs_used_cpich_rscp_lcr_r4, cpich_RSCP, 1, 1, _)          \
  F(RECORD, umts_ext_hcs_used_cpich_ec_n0_lcr_r4, cpich_Ec_N0, 1, 2, _)

#define umts_ext_hcs_used_quality_measure_lcr_r4_FIELDS(F)     \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_ext_hcs_used_quality_measure_lcr_r4_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_ext_hcs_not_used_lcr_r4_FIELDS(F)                                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_ext_hcs_not_used_quality_measure_lcr_r4, cellSelectQualityMeasure, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_new_inter_rat_cell_list, newInterRATCellList, 1, 0, _)

#define umts_ext_hcs_used_lcr_r4_FIELDS(F)                                                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_ext_hcs_used_quality_measure_lcr_r4, cellSelectQualityMeasure, 1, UMTS_ALWAYS, _)     \
  F(RECORD, umts_new_inter_rat_cell_list, newInterRATCellList, 1, 0, _)

#define umts_ext_use_of_hcs_lcr_r4_u_FIELDS(F)                 \
  F(RECORD, umts_ext_hcs_not_used_lcr_r4, hcs_not_used, 1, 1, _) \
  F(RECORD, umts_ext_hcs_used_lcr_r4, hcs_used, 1, 2, _)

#define umts_ext_use_of_hcs_lcr_r4_FIELDS(F)                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_ext_use_of_hcs_lcr_r4_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_measurement_control_sys_info_extension_lcr_r4_FIELDS(F) \
  F(RECORD, umts_ext_use_of_hcs_lcr_r4, use_of_HCS, 1, UMTS_ALWAYS, _)

/* ==== SIB11 and SIB12: the v4b0 records and the extension chains =========================== */

/* v4b0: the LCR FACH byte (inter_freq_TDD128_meas_ind), then the LCR measurement control
   tree, always. */
#define UMTS_V4B0EXT_FIELDS(F)                                                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(BOOL, uint8_t, fach_MeasurementOccasionInfo_LCR_Ext, 1, 0, _)                                      \
  F(RECORD, umts_measurement_control_sys_info_lcr_r4_ext, measurementControlSysInfo_LCR, 1, UMTS_ALWAYS, _)
#define umts_sib11_v4b0ext_FIELDS(F) UMTS_V4B0EXT_FIELDS(F)
#define umts_sib12_v4b0ext_FIELDS(F) UMTS_V4B0EXT_FIELDS(F)

/* v590: the RSCP deltas of the intra-frequency events, the periodic reporting of event 1b
   and event 1d (the cell lists are those of the SIB11bis add-on). */
#define umts_intra_freq_event_criteria_list_v590ext_FIELDS(F)  \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, int8_t, deltaRSCP, 8, UMTS_ALWAYS, count)

#define umts_periodic_reporting_info_1b_FIELDS(F)              \
  F(SCALAR, uint32_t, reportingAmount, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, reportingInterval, 1, UMTS_ALWAYS, _)

#define umts_intra_freq_reporting_criteria_1b_r5_FIELDS(F) \
  F(RECORD, umts_periodic_reporting_info_1b, periodicReportingInfo_1b, 1, UMTS_ALWAYS, _)

#define umts_intra_freq_event_1d_r5_FIELDS(F)                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint32_t, triggeringCondition, 1, 0, _)            \
  F(BOOL, uint8_t, useCIO, 1, 1, _)

#define umts_v590ext_ies_FIELDS(F)                                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_cell_select_reselect_info_v590ext_list, newIntraFrequencyCellInfoList_v590ext, 1, 0, _) \
  F(RECORD, umts_cell_select_reselect_info_v590ext_list, newInterFrequencyCellInfoList_v590ext, 1, 1, _) \
  F(RECORD, umts_cell_select_reselect_info_v590ext_list, newInterRATCellInfoList_v590ext, 1, 2, _)     \
  F(RECORD, umts_intra_freq_event_criteria_list_v590ext, intraFreqEventCriteriaList_v590ext, 1, 3, _)  \
  F(RECORD, umts_intra_freq_reporting_criteria_1b_r5, intraFreqReportingCriteria_1b_r5, 1, 4, _)       \
  F(RECORD, umts_intra_freq_event_1d_r5, intraFreqEvent_1d_r5, 1, 5, _)

/* v690 and v6b0: the inter-frequency RACH reporting information. The v690 form (dummy) holds
   threshold and cell count as further alternatives of its mode choice; the v6b0 form has the
   mode choice of FDD and TDD only, and threshold and count beside it. */
#define umts_inter_freq_rep_quantity_rach_tdd_list_FIELDS(F)   \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, uint32_t, entries, 2, UMTS_ALWAYS, count)

#define UMTS_RACH_REPORTING_MODE_FIELDS(F)                                                             \
  F(SCALAR, uint32_t, interFreqRepQuantityRACH_FDD, 1, 1, _)                                           \
  F(RECORD, umts_inter_freq_rep_quantity_rach_tdd_list, interFreqRepQuantityRACH_TDDList, 1, 2, _)

#define umts_dummy_inter_freq_rach_reporting_info_mode_specific_info_u_FIELDS(F) \
  UMTS_RACH_REPORTING_MODE_FIELDS(F)                                            \
  F(SCALAR, int8_t, interFreqRACHReportingThreshold, 1, 3, _)                   \
  F(SCALAR, uint8_t, maxReportedCellsOnRACHinterFreq, 1, 4, _)

#define umts_dummy_inter_freq_rach_reporting_info_mode_specific_info_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                          \
  F(UNION, umts_dummy_inter_freq_rach_reporting_info_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_dummy_inter_freq_rach_reporting_info_FIELDS(F) \
  F(RECORD, umts_dummy_inter_freq_rach_reporting_info_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_v690ext_ies_FIELDS(F)                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_dummy_inter_freq_rach_reporting_info, dummy, 1, 0, _)

#define umts_inter_freq_rach_reporting_info_mode_specific_info_u_FIELDS(F) UMTS_RACH_REPORTING_MODE_FIELDS(F)

#define umts_inter_freq_rach_reporting_info_mode_specific_info_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                    \
  F(UNION, umts_inter_freq_rach_reporting_info_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_inter_freq_rach_reporting_info_FIELDS(F)                                                          \
  F(RECORD, umts_inter_freq_rach_reporting_info_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)       \
  F(SCALAR, int8_t, interFreqRACHReportingThreshold, 1, UMTS_ALWAYS, _)                                        \
  F(SCALAR, uint8_t, maxReportedCellsOnRACHinterFreq, 1, UMTS_ALWAYS, _)

#define umts_v6b0ext_ies_FIELDS(F)                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_inter_freq_rach_reporting_info, interFreqRACHReportingInfo, 1, 0, _)

/* v770 and v860 of SIB11: the MBSFN frequencies, and their IMB indications. */
#define umts_mbsfn_frequency_FIELDS(F)                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(RECORD, umts_frequency_info, frequencyInfo, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint8_t, cellParametersID, 1, 0, _)
#define umts_mbsfn_frequency_list_FIELDS(F) UMTS_CELL_LIST_FIELDS(F, umts_mbsfn_frequency, 16)

#define umts_sib11_v770ext_ies_FIELDS(F)                                               \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_mbsfn_frequency_list, mbsfnFrequencyList, 1, 0, _)

#define umts_mbsfn_frequency_v860ext_FIELDS(F)                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint32_t, imb_Indication, 1, 0, _)
#define umts_mbsfn_frequency_list_v860ext_FIELDS(F) UMTS_CELL_LIST_FIELDS(F, umts_mbsfn_frequency_v860ext, 16)

#define umts_sib11_v860ext_ies_FIELDS(F)                                               \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_mbsfn_frequency_list_v860ext, mbsfnFrequencyList, 1, 0, _)

/* The links, from the last one back: each its extension, always, then the next link under
   bit 0; the last one ends in the byte of an empty sequence. */
#define UMTS_NC_LINK_FIELDS(F, ext_type, ext_name, next_kind, next_type, next_name)    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, ext_type, ext_name, 1, UMTS_ALWAYS, _)                                     \
  F(next_kind, next_type, next_name, 1, 0, _)

#define umts_sib11_v860_nc_extensions_FIELDS(F) \
  UMTS_NC_LINK_FIELDS(F, umts_sib11_v860ext_ies, sysInfoType11_v860ext, SCALAR, uint8_t, nonCriticalExtensions)
#define umts_sib11_v7b0_nc_extensions_FIELDS(F)                                        \
  UMTS_NC_LINK_FIELDS(F, umts_v7b0ext_ies, sysInfoType11_v7b0ext, RECORD, umts_sib11_v860_nc_extensions, \
                      v860NonCriticalExtensions)
#define umts_sib11_v770_nc_extensions_FIELDS(F)                                        \
  UMTS_NC_LINK_FIELDS(F, umts_sib11_v770ext_ies, sysInfoType11_v770ext, RECORD, umts_sib11_v7b0_nc_extensions, \
                      v7b0NonCriticalExtensions)
#define umts_sib11_v6b0_nc_extensions_FIELDS(F)                                        \
  UMTS_NC_LINK_FIELDS(F, umts_v6b0ext_ies, sysInfoType11_v6b0ext, RECORD, umts_sib11_v770_nc_extensions, \
                      v770NonCriticalExtensions)
#define umts_sib11_v690_nc_extensions_FIELDS(F)                                        \
  UMTS_NC_LINK_FIELDS(F, umts_v690ext_ies, sysInfoType11_v690ext, RECORD, umts_sib11_v6b0_nc_extensions, \
                      v6b0NonCriticalExtensions)
#define umts_sib11_v590_nc_extension_FIELDS(F)                                         \
  UMTS_NC_LINK_FIELDS(F, umts_v590ext_ies, sysInfoType11_v590ext, RECORD, umts_sib11_v690_nc_extensions, \
                      v690NonCriticalExtensions)

#define umts_sib12_v7b0_nc_extensions_FIELDS(F) \
  UMTS_NC_LINK_FIELDS(F, umts_v7b0ext_ies, sysInfoType12_v7b0ext, SCALAR, uint8_t, nonCriticalExtensions)
#define umts_sib12_v6b0_nc_extensions_FIELDS(F)                                        \
  UMTS_NC_LINK_FIELDS(F, umts_v6b0ext_ies, sysInfoType12_v6b0ext, RECORD, umts_sib12_v7b0_nc_extensions, \
                      v7b0NonCriticalExtensions)
#define umts_sib12_v690_nc_extensions_FIELDS(F)                                        \
  UMTS_NC_LINK_FIELDS(F, umts_v690ext_ies, sysInfoType12_v690ext, RECORD, umts_sib12_v6b0_nc_extensions, \
                      v6b0NonCriticalExtensions)
#define umts_sib12_v590_nc_extension_FIELDS(F)                                         \
  UMTS_NC_LINK_FIELDS(F, umts_v590ext_ies, sysInfoType12_v590ext, RECORD, umts_sib12_v690_nc_extensions, \
                      v690NonCriticalExtensions)

/* ==== The blocks =========================================================================== */

#define umts_sib11_v4b0_nc_extensions_FIELDS(F)                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_sib11_v4b0ext, sysInfoType11_v4b0ext, 1, 0, _)                        \
  F(RECORD, umts_sib11_v590_nc_extension, v590NonCriticalExtension, 1, 1, _)

#define umts_sib12_v4b0_nc_extensions_FIELDS(F)                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_sib12_v4b0ext, sysInfoType12_v4b0ext, 1, 0, _)                        \
  F(RECORD, umts_sib12_v590_nc_extension, v590NonCriticalExtension, 1, 1, _)

#define umts_sib11_info_FIELDS(F)                                                                      \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(BOOL, uint8_t, sib12indicator, 1, UMTS_ALWAYS, _)                                                  \
  F(RECORD, umts_fach_measurement_occasion_info, fach_MeasurementOccasionInfo, 1, 0, _)                \
  F(RECORD, umts_measurement_control_sys_info, measurementControlSysInfo, 1, UMTS_ALWAYS, _)           \
  F(RECORD, umts_sib11_v4b0_nc_extensions, v4b0NonCriticalExtensions, 1, 1, _)

#define umts_sib11bis_info_FIELDS(F)                                                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                     \
  F(RECORD, umts_measurement_control_sys_info_extension, measurementControlSysInfo, 1, 0, _)                   \
  F(RECORD, umts_measurement_control_sys_info_extension_lcr_r4, measurementControlSysInfo_LCR, 1, 1, _)        \
  F(RECORD, umts_measurement_control_sys_info_extension_addon_r5, measurementControlSysInfoExtensionAddon_r5, 1, 2, _) \
  F(RECORD, umts_sib11bis_v7b0_nc_extensions, v7b0NonCriticalExtensions, 1, 3, _)

#define umts_sib12_info_FIELDS(F)                                                                      \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_fach_measurement_occasion_info, fach_MeasurementOccasionInfo, 1, 0, _)                \
  F(RECORD, umts_measurement_control_sys_info, measurementControlSysInfo, 1, UMTS_ALWAYS, _)           \
  F(RECORD, umts_sib12_v4b0_nc_extensions, v4b0NonCriticalExtensions, 1, 1, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_MEAS_RECORDS(X)                                            \
  X(UNION, umts_reference_time_difference_to_cell_u)                    \
  X(RECORD, umts_reference_time_difference_to_cell)                     \
  X(RECORD, umts_cell_info_si_mode_specific_info_fdd)                   \
  X(RECORD, umts_timeslot_info)                                         \
  X(RECORD, umts_timeslot_info_list)                                    \
  X(RECORD, umts_cell_info_si_mode_specific_info_tdd)                   \
  X(UNION, umts_cell_info_si_mode_specific_info_u)                      \
  X(RECORD, umts_cell_info_si_mode_specific_info)                       \
  X(RECORD, umts_cell_select_reselect_mode_specific_info_fdd)           \
  X(RECORD, umts_cell_select_reselect_mode_specific_info_rxlev)         \
  X(UNION, umts_cell_select_reselect_mode_specific_info_u)              \
  X(RECORD, umts_cell_select_reselect_mode_specific_info)               \
  X(UNION, umts_penalty_time_rscp_u)                                    \
  X(RECORD, umts_penalty_time_rscp)                                     \
  X(RECORD, umts_hcs_neighbouring_cell_info_rscp)                       \
  X(RECORD, umts_temporary_offset_list)                                 \
  X(UNION, umts_penalty_time_ecno_u)                                    \
  X(RECORD, umts_penalty_time_ecno)                                     \
  X(RECORD, umts_hcs_neighbouring_cell_info_ecno)                       \
  X(RECORD, umts_cell_select_reselect_info_sib_11_12_rscp)              \
  X(RECORD, umts_cell_select_reselect_info_sib_11_12_ecno)              \
  X(RECORD, umts_cell_select_reselect_info_sib_11_12_hcs_rscp)          \
  X(RECORD, umts_cell_select_reselect_info_sib_11_12_hcs_ecno)          \
  X(RECORD, umts_cell_info_si_rscp)                                     \
  X(RECORD, umts_cell_info_si_ecno)                                     \
  X(RECORD, umts_cell_info_si_hcs_rscp)                                 \
  X(RECORD, umts_cell_info_si_hcs_ecno)                                 \
  X(RECORD, umts_new_intra_freq_cell_si_rscp)                           \
  X(RECORD, umts_new_intra_freq_cell_si_ecno)                           \
  X(RECORD, umts_new_intra_freq_cell_si_hcs_rscp)                       \
  X(RECORD, umts_new_intra_freq_cell_si_hcs_ecno)                       \
  X(RECORD, umts_new_intra_freq_cell_si_list_rscp)                      \
  X(RECORD, umts_new_intra_freq_cell_si_list_ecno)                      \
  X(RECORD, umts_new_intra_freq_cell_si_list_hcs_rscp)                  \
  X(RECORD, umts_new_intra_freq_cell_si_list_hcs_ecno)                  \
  X(RECORD, umts_removed_intra_freq_cells)                              \
  X(UNION, umts_removed_intra_freq_cell_list_u)                         \
  X(RECORD, umts_removed_intra_freq_cell_list)                          \
  X(RECORD, umts_intra_freq_cell_info_si_list_rscp)                     \
  X(RECORD, umts_intra_freq_cell_info_si_list_ecno)                     \
  X(RECORD, umts_intra_freq_cell_info_si_list_hcs_rscp)                 \
  X(RECORD, umts_intra_freq_cell_info_si_list_hcs_ecno)                 \
  X(UNION, umts_ul_tr_ch_identity_u)                                    \
  X(RECORD, umts_ul_tr_ch_identity)                                     \
  X(RECORD, umts_traffic_volume_measurement_object_list)                \
  X(UNION, umts_traffic_volume_meas_quantity_u)                         \
  X(RECORD, umts_traffic_volume_meas_quantity)                          \
  X(RECORD, umts_traffic_volume_reporting_quantity)                     \
  X(RECORD, umts_traffic_volume_event_param)                            \
  X(RECORD, umts_event_specific_parameters)                             \
  X(RECORD, umts_trans_ch_criteria)                                     \
  X(RECORD, umts_trans_ch_criteria_list)                                \
  X(RECORD, umts_traffic_volume_reporting_criteria)                     \
  X(RECORD, umts_measurement_reporting_mode)                            \
  X(RECORD, umts_periodical_reporting_criteria)                         \
  X(UNION, umts_traffic_volume_report_criteria_sys_info_u)              \
  X(RECORD, umts_traffic_volume_report_criteria_sys_info)               \
  X(RECORD, umts_traffic_vol_meas_sys_info)                             \
  X(RECORD, umts_ue_internal_meas_quantity)                             \
  X(RECORD, umts_ue_internal_meas_sys_info)                             \
  X(RECORD, umts_intra_freq_meas_quantity_tdd_list)                     \
  X(UNION, umts_intra_freq_meas_quantity_mode_specific_info_u)          \
  X(RECORD, umts_intra_freq_meas_quantity_mode_specific_info)           \
  X(RECORD, umts_intra_freq_meas_quantity)                              \
  X(RECORD, umts_intra_freq_rep_quantity_rach_tdd_list)                 \
  X(UNION, umts_intra_freq_reporting_quantity_for_rach_mode_specific_info_u) \
  X(RECORD, umts_intra_freq_reporting_quantity_for_rach_mode_specific_info) \
  X(RECORD, umts_intra_freq_reporting_quantity_for_rach)                \
  X(RECORD, umts_cell_reporting_quantities_fdd)                         \
  X(RECORD, umts_cell_reporting_quantities_tdd)                         \
  X(UNION, umts_cell_reporting_quantities_mode_specific_info_u)         \
  X(RECORD, umts_cell_reporting_quantities_mode_specific_info)          \
  X(RECORD, umts_cell_reporting_quantities)                             \
  X(RECORD, umts_intra_freq_reporting_quantity)                         \
  X(UNION, umts_forbidden_affect_cell_u)                                \
  X(RECORD, umts_forbidden_affect_cell)                                 \
  X(RECORD, umts_forbidden_affect_cell_list)                            \
  X(RECORD, umts_event_1a)                                              \
  X(RECORD, umts_event_1b)                                              \
  X(RECORD, umts_event_1c)                                              \
  X(RECORD, umts_event_1e)                                              \
  X(RECORD, umts_event_1f)                                              \
  X(UNION, umts_intra_freq_event_u)                                     \
  X(RECORD, umts_intra_freq_event)                                      \
  X(UNION, umts_reporting_cell_status_u)                                \
  X(RECORD, umts_reporting_cell_status)                                 \
  X(RECORD, umts_intra_freq_event_criteria)                             \
  X(RECORD, umts_intra_freq_event_criteria_list)                        \
  X(RECORD, umts_intra_freq_reporting_criteria)                         \
  X(UNION, umts_cell_dch_report_criteria_u)                             \
  X(RECORD, umts_cell_dch_report_criteria)                              \
  X(RECORD, umts_reporting_info_for_cell_dch)                           \
  X(RECORD, umts_intra_freq_measurement_sysinfo_rscp)                   \
  X(RECORD, umts_intra_freq_measurement_sysinfo_ecno)                   \
  X(RECORD, umts_intra_freq_measurement_sys_info_hcs_rscp)              \
  X(RECORD, umts_intra_freq_measurement_sys_info_hcs_ecno)              \
  X(RECORD, umts_frequency_info_fdd)                                    \
  X(RECORD, umts_frequency_info_tdd)                                    \
  X(UNION, umts_frequency_info_u)                                       \
  X(RECORD, umts_frequency_info)                                        \
  X(RECORD, umts_removed_inter_freq_cells)                              \
  X(UNION, umts_removed_inter_freq_cell_list_u)                         \
  X(RECORD, umts_removed_inter_freq_cell_list)                          \
  X(RECORD, umts_new_inter_freq_cell_si_rscp)                           \
  X(RECORD, umts_new_inter_freq_cell_si_ecno)                           \
  X(RECORD, umts_new_inter_freq_cell_si_hcs_rscp)                       \
  X(RECORD, umts_new_inter_freq_cell_si_hcs_ecno)                       \
  X(RECORD, umts_new_inter_freq_cell_si_list_rscp)                      \
  X(RECORD, umts_new_inter_freq_cell_si_list_ecno)                      \
  X(RECORD, umts_new_inter_freq_cell_si_list_hcs_rscp)                  \
  X(RECORD, umts_new_inter_freq_cell_si_list_hcs_ecno)                  \
  X(RECORD, umts_inter_freq_cell_info_si_list_rscp)                     \
  X(RECORD, umts_inter_freq_cell_info_si_list_ecno)                     \
  X(RECORD, umts_inter_freq_cell_info_si_list_hcs_rscp)                 \
  X(RECORD, umts_inter_freq_cell_info_si_list_hcs_ecno)                 \
  X(RECORD, umts_inter_freq_measurement_sysinfo_rscp)                   \
  X(RECORD, umts_inter_freq_measurement_sysinfo_ecno)                   \
  X(RECORD, umts_inter_freq_measurement_sys_info_hcs_rscp)              \
  X(RECORD, umts_inter_freq_measurement_sys_info_hcs_ecno)              \
  X(RECORD, umts_removed_inter_rat_cells)                               \
  X(UNION, umts_removed_inter_rat_cell_list_u)                          \
  X(RECORD, umts_removed_inter_rat_cell_list)                           \
  X(RECORD, umts_cell_select_reselect_info_sib_11_12)                   \
  X(RECORD, umts_bsic)                                                  \
  X(RECORD, umts_new_inter_rat_cell_gsm)                                \
  X(UNION, umts_new_inter_rat_cell_technology_specific_info_u)          \
  X(RECORD, umts_new_inter_rat_cell_technology_specific_info)           \
  X(RECORD, umts_new_inter_rat_cell)                                    \
  X(RECORD, umts_new_inter_rat_cell_list)                               \
  X(RECORD, umts_new_inter_rat_cell_list_b)                             \
  X(RECORD, umts_cells_for_inter_rat_meas_list)                         \
  X(RECORD, umts_inter_rat_cell_info_list)                              \
  X(RECORD, umts_inter_rat_cell_info_list_b)                            \
  X(RECORD, umts_inter_rat_measurement_sys_info)                        \
  X(RECORD, umts_inter_rat_measurement_sysinfo_b)                       \
  X(RECORD, umts_hcs_not_used_cpich_rscp)                               \
  X(RECORD, umts_hcs_not_used_cpich_ec_n0)                              \
  X(RECORD, umts_hcs_used_cpich_rscp)                                   \
  X(RECORD, umts_hcs_used_cpich_ec_n0)                                  \
  X(UNION, umts_hcs_not_used_quality_measure_u)                         \
  X(RECORD, umts_hcs_not_used_quality_measure)                          \
  X(UNION, umts_hcs_used_quality_measure_u)                             \
  X(RECORD, umts_hcs_used_quality_measure)                              \
  X(RECORD, umts_hcs_not_used)                                          \
  X(RECORD, umts_hcs_used)                                              \
  X(UNION, umts_use_of_hcs_u)                                           \
  X(RECORD, umts_use_of_hcs)                                            \
  X(RECORD, umts_measurement_control_sys_info)                          \
  X(RECORD, umts_inter_rat_meas_ind)                                    \
  X(RECORD, umts_fach_measurement_occasion_info)                        \
  X(RECORD, umts_ext_hcs_not_used_cpich_rscp)                           \
  X(RECORD, umts_ext_hcs_not_used_cpich_ec_n0)                          \
  X(RECORD, umts_ext_hcs_used_cpich_rscp)                               \
  X(RECORD, umts_ext_hcs_used_cpich_ec_n0)                              \
  X(UNION, umts_ext_hcs_not_used_quality_measure_u)                     \
  X(RECORD, umts_ext_hcs_not_used_quality_measure)                      \
  X(UNION, umts_ext_hcs_used_quality_measure_u)                         \
  X(RECORD, umts_ext_hcs_used_quality_measure)                          \
  X(RECORD, umts_ext_hcs_not_used)                                      \
  X(RECORD, umts_ext_hcs_used)                                          \
  X(UNION, umts_ext_use_of_hcs_u)                                       \
  X(RECORD, umts_ext_use_of_hcs)                                        \
  X(RECORD, umts_measurement_control_sys_info_extension)                \
  X(RECORD, umts_primary_ccpch_info_lcr_r4)                             \
  X(RECORD, umts_timeslot_info_list_lcr_r4)                             \
  X(RECORD, umts_cell_info_si_rscp_lcr_r4)                              \
  X(RECORD, umts_cell_info_si_ecno_lcr_r4)                              \
  X(RECORD, umts_cell_info_si_hcs_rscp_lcr_r4)                          \
  X(RECORD, umts_cell_info_si_hcs_ecno_lcr_r4)                          \
  X(RECORD, umts_new_intra_freq_cell_si_rscp_lcr_r4)                    \
  X(RECORD, umts_new_intra_freq_cell_si_ecno_lcr_r4)                    \
  X(RECORD, umts_new_intra_freq_cell_si_hcs_rscp_lcr_r4)                \
  X(RECORD, umts_new_intra_freq_cell_si_hcs_ecno_lcr_r4)                \
  X(RECORD, umts_new_intra_freq_cell_si_list_rscp_lcr_r4)               \
  X(RECORD, umts_new_intra_freq_cell_si_list_ecno_lcr_r4)               \
  X(RECORD, umts_new_intra_freq_cell_si_list_hcs_rscp_lcr_r4)           \
  X(RECORD, umts_new_intra_freq_cell_si_list_hcs_ecno_lcr_r4)           \
  X(RECORD, umts_new_inter_freq_cell_si_rscp_lcr_r4)                    \
  X(RECORD, umts_new_inter_freq_cell_si_ecno_lcr_r4)                    \
  X(RECORD, umts_new_inter_freq_cell_si_hcs_rscp_lcr_r4)                \
  X(RECORD, umts_new_inter_freq_cell_si_hcs_ecno_lcr_r4)                \
  X(RECORD, umts_new_inter_freq_cell_si_list_rscp_lcr_r4)               \
  X(RECORD, umts_new_inter_freq_cell_si_list_ecno_lcr_r4)               \
  X(RECORD, umts_new_inter_freq_cell_si_list_hcs_rscp_lcr_r4)           \
  X(RECORD, umts_new_inter_freq_cell_si_list_hcs_ecno_lcr_r4)           \
  X(RECORD, umts_intra_freq_cell_info_si_list_rscp_lcr_r4)              \
  X(RECORD, umts_intra_freq_cell_info_si_list_ecno_lcr_r4)              \
  X(RECORD, umts_intra_freq_cell_info_si_list_hcs_rscp_lcr_r4)          \
  X(RECORD, umts_intra_freq_cell_info_si_list_hcs_ecno_lcr_r4)          \
  X(RECORD, umts_inter_freq_cell_info_si_list_rscp_lcr)                 \
  X(RECORD, umts_inter_freq_cell_info_si_list_ecno_lcr)                 \
  X(RECORD, umts_inter_freq_cell_info_si_list_hcs_rscp_lcr)             \
  X(RECORD, umts_inter_freq_cell_info_si_list_hcs_ecno_lcr)             \
  X(RECORD, umts_forbidden_affect_cell_list_lcr_r4)                     \
  X(RECORD, umts_event_1a_lcr_r4)                                       \
  X(RECORD, umts_event_1b_lcr_r4)                                       \
  X(UNION, umts_intra_freq_event_lcr_r4_u)                              \
  X(RECORD, umts_intra_freq_event_lcr_r4)                               \
  X(RECORD, umts_intra_freq_event_criteria_lcr_r4)                      \
  X(RECORD, umts_intra_freq_event_criteria_list_lcr_r4)                 \
  X(RECORD, umts_intra_freq_reporting_criteria_lcr_r4)                  \
  X(UNION, umts_cell_dch_report_criteria_lcr_r4_u)                      \
  X(RECORD, umts_cell_dch_report_criteria_lcr_r4)                       \
  X(RECORD, umts_reporting_info_for_cell_dch_lcr_r4)                    \
  X(RECORD, umts_intra_freq_measurement_sys_info_rscp_lcr_r4)           \
  X(RECORD, umts_intra_freq_measurement_sys_info_ecno_lcr_r4)           \
  X(RECORD, umts_intra_freq_measurement_sys_info_hcs_rscp_lcr_r4)       \
  X(RECORD, umts_intra_freq_measurement_sys_info_hcs_ecno_lcr_r4)       \
  X(RECORD, umts_inter_freq_measurement_sys_info_rscp_lcr_r4)           \
  X(RECORD, umts_inter_freq_measurement_sys_info_ecno_lcr_r4)           \
  X(RECORD, umts_inter_freq_measurement_sys_info_hcs_rscp_lcr_r4)       \
  X(RECORD, umts_inter_freq_measurement_sys_info_hcs_ecno_lcr_r4)       \
  X(RECORD, umts_lcr_hcs_not_used_cpich_rscp)                           \
  X(RECORD, umts_lcr_hcs_not_used_cpich_ec_n0)                          \
  X(RECORD, umts_lcr_hcs_used_cpich_rscp)                               \
  X(RECORD, umts_lcr_hcs_used_cpich_ec_n0)                              \
  X(UNION, umts_lcr_hcs_not_used_quality_measure_u)                     \
  X(RECORD, umts_lcr_hcs_not_used_quality_measure)                      \
  X(UNION, umts_lcr_hcs_used_quality_measure_u)                         \
  X(RECORD, umts_lcr_hcs_used_quality_measure)                          \
  X(RECORD, umts_lcr_hcs_not_used)                                      \
  X(RECORD, umts_lcr_hcs_used)                                          \
  X(UNION, umts_use_of_hcs_lcr_r4_ext_u)                                \
  X(RECORD, umts_use_of_hcs_lcr_r4_ext)                                 \
  X(RECORD, umts_measurement_control_sys_info_lcr_r4_ext)               \
  X(RECORD, umts_ext_hcs_not_used_cpich_rscp_lcr_r4)                    \
  X(RECORD, umts_ext_hcs_not_used_cpich_ec_n0_lcr_r4)                   \
  X(RECORD, umts_ext_hcs_used_cpich_rscp_lcr_r4)                        \
  X(RECORD, umts_ext_hcs_used_cpich_ec_n0_lcr_r4)                       \
  X(UNION, umts_ext_hcs_not_used_quality_measure_lcr_r4_u)              \
  X(RECORD, umts_ext_hcs_not_used_quality_measure_lcr_r4)               \
  X(UNION, umts_ext_hcs_used_quality_measure_lcr_r4_u)                  \
  X(RECORD, umts_ext_hcs_used_quality_measure_lcr_r4)                   \
  X(RECORD, umts_ext_hcs_not_used_lcr_r4)                               \
  X(RECORD, umts_ext_hcs_used_lcr_r4)                                   \
  X(UNION, umts_ext_use_of_hcs_lcr_r4_u)                                \
  X(RECORD, umts_ext_use_of_hcs_lcr_r4)                                 \
  X(RECORD, umts_measurement_control_sys_info_extension_lcr_r4)         \
  X(RECORD, umts_cell_select_reselect_info_v590ext_list)               \
  X(RECORD, umts_measurement_control_sys_info_extension_addon_r5)       \
  X(RECORD, umts_new_inter_freq_cell_list_v7b0ext)                      \
  X(RECORD, umts_v7b0ext_ies)                                           \
  X(RECORD, umts_csg_dedicated_frequency_info_list)                     \
  X(RECORD, umts_sib11bis_v860ext_ies)                                  \
  X(RECORD, umts_sib11bis_v860_nc_extensions)                           \
  X(RECORD, umts_sib11bis_v7b0_nc_extensions)                           \
  X(RECORD, umts_sib11_v4b0ext)                                         \
  X(RECORD, umts_sib12_v4b0ext)                                         \
  X(RECORD, umts_intra_freq_event_criteria_list_v590ext)                \
  X(RECORD, umts_periodic_reporting_info_1b)                            \
  X(RECORD, umts_intra_freq_reporting_criteria_1b_r5)                   \
  X(RECORD, umts_intra_freq_event_1d_r5)                                \
  X(RECORD, umts_v590ext_ies)                                           \
  X(RECORD, umts_inter_freq_rep_quantity_rach_tdd_list)                 \
  X(UNION, umts_dummy_inter_freq_rach_reporting_info_mode_specific_info_u)\
  X(RECORD, umts_dummy_inter_freq_rach_reporting_info_mode_specific_info)\
  X(RECORD, umts_dummy_inter_freq_rach_reporting_info)                  \
  X(RECORD, umts_v690ext_ies)                                           \
  X(UNION, umts_inter_freq_rach_reporting_info_mode_specific_info_u)    \
  X(RECORD, umts_inter_freq_rach_reporting_info_mode_specific_info)     \
  X(RECORD, umts_inter_freq_rach_reporting_info)                        \
  X(RECORD, umts_v6b0ext_ies)                                           \
  X(RECORD, umts_mbsfn_frequency)                                       \
  X(RECORD, umts_mbsfn_frequency_list)                                  \
  X(RECORD, umts_sib11_v770ext_ies)                                     \
  X(RECORD, umts_mbsfn_frequency_v860ext)                               \
  X(RECORD, umts_mbsfn_frequency_list_v860ext)                          \
  X(RECORD, umts_sib11_v860ext_ies)                                     \
  X(RECORD, umts_sib11_v860_nc_extensions)                              \
  X(RECORD, umts_sib11_v7b0_nc_extensions)                              \
  X(RECORD, umts_sib11_v770_nc_extensions)                              \
  X(RECORD, umts_sib11_v6b0_nc_extensions)                              \
  X(RECORD, umts_sib11_v690_nc_extensions)                              \
  X(RECORD, umts_sib11_v590_nc_extension)                               \
  X(RECORD, umts_sib12_v7b0_nc_extensions)                              \
  X(RECORD, umts_sib12_v6b0_nc_extensions)                              \
  X(RECORD, umts_sib12_v690_nc_extensions)                              \
  X(RECORD, umts_sib12_v590_nc_extension)                               \
  X(RECORD, umts_sib11_v4b0_nc_extensions)                              \
  X(RECORD, umts_sib12_v4b0_nc_extensions)                              \
  X(RECORD, umts_sib11_info)                                            \
  X(RECORD, umts_sib11bis_info)                                         \
  X(RECORD, umts_sib12_info)

UMTS_MEAS_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_MEAS_H */
