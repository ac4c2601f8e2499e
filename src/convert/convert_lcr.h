/*
 * The steps of the LCR (TDD 1.28 Mcps) measurement control records, shared by the tree of
 * SIB12 and SIB11bis and by the tree of SIB11. Each step takes the conversions of the records
 * below it, so that each tree passes its own functions.
 */
#ifndef UMTS_CONVERT_LCR_H
#define UMTS_CONVERT_LCR_H

#include "convert_frame.h"
#include "convert_meas.h"

namespace umts_lcr {

/* CellInfoSI-*-LCR-r4: offset, timing, primary CCPCH, power, timeslots, SFN indicator, then
   the selection record of the form. */
template <class Src, class Dst, class Timing, class Ccpch, class Timeslots, class Selection>
void cell(const Src* src, Dst* dst, Timing timing, Ccpch ccpch, Timeslots timeslots, Selection selection) {
  dst->cellIndividualOffset = src->cellIndividualOffset;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, timing, referenceTimeDifferenceToCell);
  ccpch(&src->primaryCCPCH_Info, &dst->primaryCCPCH_Info);
  UMTS_COPY_OPTIONAL(src, dst, 2u, primaryCCPCH_TX_Power);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, timeslots, timeslotInfoList);
  dst->readSFN_Indicator = src->readSFN_Indicator;
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, selection, cellSelectionReselectionInfo);
}

/* A new intra-frequency cell: the identity by its bit, the cell in any case. */
template <class Element, class Flat, class Cell>
void new_intra_freq_cell(const Element* src, Flat* dst, Cell cell_fn) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, intraFreqCellID);
  cell_fn(&src->cellInfo, &dst->cellInfo);
}

/* A new inter-frequency cell: identity and frequency, each by its bit, then the cell. */
template <class Element, class Flat, class Frequency, class Cell>
void new_inter_freq_cell(const Element* src, Flat* dst, Frequency frequency, Cell cell_fn) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, interFreqCellID);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, frequency, frequencyInfo);
  cell_fn(&src->cellInfo, &dst->cellInfo);
}

template <class Element, class Dst, class Cell>
void new_intra_freq_cells(const rtxDList* src, Dst* dst, Cell cell_fn) {
  umts_meas::copy_list<Element>(src, &dst->count, dst->entries,
                                [&](const Element* e, auto* flat) { new_intra_freq_cell(e, flat, cell_fn); });
}

template <class Element, class Dst, class Frequency, class Cell>
void new_inter_freq_cells(const rtxDList* src, Dst* dst, Frequency frequency, Cell cell_fn) {
  umts_meas::copy_list<Element>(src, &dst->count, dst->entries,
                                [&](const Element* e, auto* flat) { new_inter_freq_cell(e, flat, frequency, cell_fn); });
}

template <class Src, class Dst, class CellList, class MeasQuantity, class RachQuantity, class Dch>
void intra_freq_measurement(const Src* src, Dst* dst, CellList cell_list, MeasQuantity meas_quantity,
                            RachQuantity rach_quantity, Dch dch) {
  dst->intraFreqMeasurementID = src->intraFreqMeasurementID;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, cell_list, intraFreqCellInfoSI_List);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, meas_quantity, intraFreqMeasQuantity);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, rach_quantity, intraFreqReportingQuantityForRACH);
  UMTS_COPY_OPTIONAL(src, dst, 8u, maxReportedCellsOnRACH);
  UMTS_CONVERT_OPTIONAL(src, dst, 16u, dch, reportingInfoForCellDCH);
}

template <class Src, class Dst, class Event, class Status>
void event_criteria(const Src* src, Dst* dst, Event event, Status status) {
  event(&src->event, &dst->event);
  dst->hysteresis = src->hysteresis;
  dst->timeToTrigger = src->timeToTrigger;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, status, reportingCellStatus);
}

/* What events 1a and 1b share, as far as w. */
template <class Src, class Dst, class Forbidden>
void event_1b(const Src* src, Dst* dst, Forbidden forbidden) {
  dst->triggeringCondition = src->triggeringCondition;
  dst->reportingRange = src->reportingRange;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, forbidden, forbiddenAffectCellList);
  dst->w = src->w;
}

template <class Src, class Dst, class Forbidden>
void event_1a(const Src* src, Dst* dst, Forbidden forbidden) {
  event_1b(src, dst, forbidden);
  dst->reportDeactivationThreshold = src->reportDeactivationThreshold;
  dst->reportingAmount = src->reportingAmount;
  dst->reportingInterval = src->reportingInterval;
}

/* use_of_HCS: 1 hcs_not_used, 2 hcs_used. */
template <class Src, class Dst, class NotUsed, class Used>
void use_of_hcs(const Src* src, Dst* dst, NotUsed not_used, Used used) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.hcs_not_used != nullptr) not_used(src->u.hcs_not_used, &dst->u.hcs_not_used);
  else if (src->t == 2 && src->u.hcs_used != nullptr) used(src->u.hcs_used, &dst->u.hcs_used);
}

/* cellSelectQualityMeasure: 1 cpich_RSCP, 2 cpich_Ec_N0. */
template <class Src, class Dst, class Rscp, class Ecno>
void quality_measure(const Src* src, Dst* dst, Rscp rscp, Ecno ecno) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.cpich_RSCP != nullptr) rscp(src->u.cpich_RSCP, &dst->u.cpich_RSCP);
  else if (src->t == 2 && src->u.cpich_Ec_N0 != nullptr) ecno(src->u.cpich_Ec_N0, &dst->u.cpich_Ec_N0);
}

}  // namespace umts_lcr

#endif /* UMTS_CONVERT_LCR_H */
