/*
 * Intra-frequency measurement system information of SIB11 and SIB12, and the neighbour cell
 * records (CellInfoSI) that the inter-frequency lists and SIB11bis share.
 *
 * Every record that holds a cell exists in four forms (RSCP, ECN0, HCS_RSCP, HCS_ECN0) that
 * differ only in cellSelectionReselectionInfo. The steps are written once, as templates
 * over the decoded types, and each form's exported functions pass on to them.
 */
#include <cstring>

#include "convert_frame.h"
#include "convert_meas.h"
#include "umts_sib_convert.h"

namespace {

/* ---- Steps shared by the four forms ------------------------------------------------------ */

template <class Src>
void cell_mode_fdd(const Src* src, umts_cell_info_si_mode_specific_info_fdd* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    convert_primary_cpich_info(&src->primaryCPICH_Info, &dst->primaryCPICH_Info);
  }
  UMTS_COPY_OPTIONAL(src, dst, 2u, primaryCPICH_TX_Power);
  dst->readSFN_Indicator = src->readSFN_Indicator;
  dst->tx_DiversityIndicator = src->tx_DiversityIndicator;
}

template <class Src>
void cell_mode_tdd(const Src* src, umts_cell_info_si_mode_specific_info_tdd* dst) {
  convert_primary_ccpch_info(&src->primaryCCPCH_Info, &dst->primaryCCPCH_Info);
  UMTS_COPY_OPTIONAL(src, dst, 1u, primaryCCPCH_TX_Power);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_timeslot_info_list, timeslotInfoList);
  dst->readSFN_Indicator = src->readSFN_Indicator;
}

template <class Src, class Fdd, class Tdd>
void cell_mode(const Src* src, umts_cell_info_si_mode_specific_info* dst, Fdd fdd, Tdd tdd) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr) tdd(src->u.tdd, &dst->u.tdd);
}

template <class Src>
void selection_mode_fdd(const Src* src, umts_cell_select_reselect_mode_specific_info_fdd* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, q_QualMin);
  UMTS_COPY_OPTIONAL(src, dst, 2u, q_RxlevMin);
}

template <class Src>
void selection_mode_rxlev(const Src* src, umts_cell_select_reselect_mode_specific_info_rxlev* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, q_RxlevMin);
}

template <class Src, class Fdd, class Tdd, class Gsm>
void selection_mode(const Src* src, umts_cell_select_reselect_mode_specific_info* dst, Fdd fdd, Tdd tdd, Gsm gsm) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr) tdd(src->u.tdd, &dst->u.tdd);
  else if (src->t == 3 && src->u.gsm != nullptr) gsm(src->u.gsm, &dst->u.gsm);
}

/* CellInfoSI: offset, timing, the mode-specific identity, then the selection record. */
template <class Src, class Dst, class Mode, class Selection>
void cell_info(const Src* src, Dst* dst, Mode mode, Selection selection) {
  dst->cellIndividualOffset = src->cellIndividualOffset;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_reference_time_difference_to_cell, referenceTimeDifferenceToCell);
  mode(&src->modeSpecificInfo, &dst->modeSpecificInfo);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, selection, cellSelectionReselectionInfo);
}

/* The new-cell list: an element without an identity still carries its cell. */
template <class Element, class Dst, class Cell>
void new_intra_freq_cells(const rtxDList* src, Dst* dst, Cell cell) {
  umts_meas::copy_list<Element>(src, &dst->count, dst->entries, [&](const Element* e, auto* flat) {
    UMTS_COPY_OPTIONAL(e, flat, 1u, intraFreqCellID);
    cell(&e->cellInfo, &flat->cellInfo);
  });
}

template <class Src, class Dst, class NewCells>
void intra_freq_cell_info_list(const Src* src, Dst* dst, NewCells new_cells) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_removed_intra_freq_cell_list, removedIntraFreqCellList);
  new_cells(&src->newIntraFreqCellList, &dst->newIntraFreqCellList);
}

template <class Src, class Dst, class CellList>
void intra_freq_measurement(const Src* src, Dst* dst, CellList cell_list) {
  dst->intraFreqMeasurementID = src->intraFreqMeasurementID;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, cell_list, intraFreqCellInfoSI_List);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_intra_freq_meas_quantity, intraFreqMeasQuantity);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_intra_freq_reporting_quantity_for_rach, intraFreqReportingQuantityForRACH);
  UMTS_COPY_OPTIONAL(src, dst, 8u, maxReportedCellsOnRACH);
  UMTS_CONVERT_OPTIONAL(src, dst, 16u, convert_reporting_info_for_cell_dch, reportingInfoForCellDCH);
}

}  // namespace

/* ---- The exported functions of each form --------------------------------------------------- */

/* v: the flat name of the form; V: the decoded one; sysinfo: how its measurement function
   spells system information. */
#define UMTS_INTRA_FREQ_FORM(v, V, sysinfo)                                                                    \
  void convert_cell_info_si_##v##_mode_specific_info_fdd(const CellInfoSI_##V##_modeSpecificInfo_fdd* src,     \
                                                         umts_cell_info_si_mode_specific_info_fdd* dst) {      \
    cell_mode_fdd(src, dst);                                                                                   \
  }                                                                                                            \
  void convert_cell_info_si_##v##_mode_specific_info_tdd(const CellInfoSI_##V##_modeSpecificInfo_tdd* src,     \
                                                         umts_cell_info_si_mode_specific_info_tdd* dst) {      \
    cell_mode_tdd(src, dst);                                                                                   \
  }                                                                                                            \
  void convert_cell_info_si_##v##_mode_specific_info(const CellInfoSI_##V##_modeSpecificInfo* src,             \
                                                     umts_cell_info_si_mode_specific_info* dst) {              \
    cell_mode(src, dst, convert_cell_info_si_##v##_mode_specific_info_fdd,                                     \
              convert_cell_info_si_##v##_mode_specific_info_tdd);                                              \
  }                                                                                                            \
  void convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info_fdd(                               \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_fdd* src,                                   \
      umts_cell_select_reselect_mode_specific_info_fdd* dst) {                                                 \
    selection_mode_fdd(src, dst);                                                                              \
  }                                                                                                            \
  void convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info_tdd(                               \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_tdd* src,                                   \
      umts_cell_select_reselect_mode_specific_info_rxlev* dst) {                                               \
    selection_mode_rxlev(src, dst);                                                                            \
  }                                                                                                            \
  void convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info_gsm(                               \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_gsm* src,                                   \
      umts_cell_select_reselect_mode_specific_info_rxlev* dst) {                                               \
    selection_mode_rxlev(src, dst);                                                                            \
  }                                                                                                            \
  void convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info(                                   \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo* src,                                       \
      umts_cell_select_reselect_mode_specific_info* dst) {                                                     \
    selection_mode(src, dst, convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info_fdd,         \
                   convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info_tdd,                   \
                   convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info_gsm);                  \
  }                                                                                                            \
  void convert_cell_info_si_##v(const CellInfoSI_##V* src, umts_cell_info_si_##v* dst) {                       \
    cell_info(src, dst, convert_cell_info_si_##v##_mode_specific_info,                                         \
              convert_cell_select_reselect_info_sib_11_12_##v);                                                \
  }                                                                                                            \
  void convert_new_intra_freq_cell_si_list_##v(const NewIntraFreqCellSI_List_##V* src,                         \
                                               umts_new_intra_freq_cell_si_list_##v* dst) {                    \
    new_intra_freq_cells<NewIntraFreqCellSI_##V>(src, dst, convert_cell_info_si_##v);                          \
  }                                                                                                            \
  void convert_intra_freq_cell_info_si_list_##v(const IntraFreqCellInfoSI_List_##V* src,                       \
                                                umts_intra_freq_cell_info_si_list_##v* dst) {                  \
    intra_freq_cell_info_list(src, dst, convert_new_intra_freq_cell_si_list_##v);                              \
  }                                                                                                            \
  void convert_intra_freq_measurement_##sysinfo(const IntraFreqMeasurementSysInfo_##V* src,                    \
                                                umts_intra_freq_measurement_##sysinfo* dst) {                  \
    intra_freq_measurement(src, dst, convert_intra_freq_cell_info_si_list_##v);                                \
  }

UMTS_INTRA_FREQ_FORM(rscp, RSCP, sysinfo_rscp)
UMTS_INTRA_FREQ_FORM(ecno, ECN0, sysinfo_ecno)
UMTS_INTRA_FREQ_FORM(hcs_rscp, HCS_RSCP, sys_info_hcs_rscp)
UMTS_INTRA_FREQ_FORM(hcs_ecno, HCS_ECN0, sys_info_hcs_ecno)

/* ---- cellSelectionReselectionInfo in its four forms ------------------------------------------ */

void convert_cell_select_reselect_info_sib_11_12_rscp(const CellSelectReselectInfoSIB_11_12_RSCP* src,
                                                      umts_cell_select_reselect_info_sib_11_12_rscp* dst) {
  dst->q_OffsetS_N = src->q_OffsetS_N;
  UMTS_COPY_OPTIONAL(src, dst, 1u, maxAllowedUL_TX_Power);
  convert_cell_select_reselect_info_sib_11_12_rscp_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_cell_select_reselect_info_sib_11_12_ecno(const CellSelectReselectInfoSIB_11_12_ECN0* src,
                                                      umts_cell_select_reselect_info_sib_11_12_ecno* dst) {
  dst->q_Offset1S_N = src->q_Offset1S_N;
  dst->q_Offset2S_N = src->q_Offset2S_N;
  UMTS_COPY_OPTIONAL(src, dst, 1u, maxAllowedUL_TX_Power);
  convert_cell_select_reselect_info_sib_11_12_ecno_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_cell_select_reselect_info_sib_11_12_hcs_rscp(const CellSelectReselectInfoSIB_11_12_HCS_RSCP* src,
                                                          umts_cell_select_reselect_info_sib_11_12_hcs_rscp* dst) {
  dst->q_OffsetS_N = src->q_OffsetS_N;
  UMTS_COPY_OPTIONAL(src, dst, 1u, maxAllowedUL_TX_Power);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_hcs_neighbouring_cell_info_rscp, hcs_NeighbouringCellInformation_RSCP);
  convert_cell_select_reselect_info_sib_11_12_hcs_rscp_mode_specific_info(&src->modeSpecificInfo,
                                                                          &dst->modeSpecificInfo);
}

void convert_cell_select_reselect_info_sib_11_12_hcs_ecno(const CellSelectReselectInfoSIB_11_12_HCS_ECN0* src,
                                                          umts_cell_select_reselect_info_sib_11_12_hcs_ecno* dst) {
  dst->q_Offset1S_N = src->q_Offset1S_N;
  dst->q_Offset2S_N = src->q_Offset2S_N;
  UMTS_COPY_OPTIONAL(src, dst, 1u, maxAllowedUL_TX_Power);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_hcs_neighbouring_cell_info_ecno, hcs_NeighbouringCellInformation_ECN0);
  convert_cell_select_reselect_info_sib_11_12_hcs_ecno_mode_specific_info(&src->modeSpecificInfo,
                                                                          &dst->modeSpecificInfo);
}

/* ---- Records without a form ------------------------------------------------------------------ */

void convert_removed_intra_freq_cell_list(const RemovedIntraFreqCellList* src, umts_removed_intra_freq_cell_list* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.removeSomeIntraFreqCells != nullptr)
    convert_removed_intra_freq_cell_list_remove_some_intra_freq_cells(src->u.removeSomeIntraFreqCells,
                                                                      &dst->u.removeSomeIntraFreqCells);
}

/* The count and the decoder's whole array of 32 identities, whatever the count says. */
void convert_removed_intra_freq_cell_list_remove_some_intra_freq_cells(
    const RemovedIntraFreqCellList_removeSomeIntraFreqCells* src, umts_removed_intra_freq_cells* dst) {
  static_assert(sizeof src->elem == sizeof dst->entries, "all 32 identities");
  dst->count = src->n;
  std::memcpy(dst->entries, src->elem, sizeof dst->entries);
}

void convert_reference_time_difference_to_cell(const ReferenceTimeDifferenceToCell* src,
                                               umts_reference_time_difference_to_cell* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) dst->u.accuracy40 = src->u.accuracy40;
  else if (src->t == 2) dst->u.accuracy256 = src->u.accuracy256;
  else if (src->t == 3) dst->u.accuracy2560 = src->u.accuracy2560;
}

void convert_primary_cpich_info(const PrimaryCPICH_Info* src, uint16_t* dst) { *dst = src->primaryScramblingCode; }

void convert_timeslot_info_list(const TimeslotInfoList* src, umts_timeslot_info_list* dst) {
  umts_meas::copy_list<TimeslotInfo>(src, &dst->count, dst->entries, [](const TimeslotInfo* e, umts_timeslot_info* flat) {
    flat->timeslotNumber = e->timeslotNumber;
    flat->burstType = e->burstType;
  });
}

/* Every alternative but notUsed holds temporaryOffset1. */
void convert_penalty_time_rscp(const PenaltyTime_RSCP* src, umts_penalty_time_rscp* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 2 && src->t <= 7) dst->u.pt10 = src->u.pt10;
}

void convert_hcs_cell_reselect_info_rscp(const HCS_CellReselectInformation_RSCP* src, umts_penalty_time_rscp* dst) {
  convert_penalty_time_rscp(&src->penaltyTime, dst);
}

void convert_hcs_neighbouring_cell_info_rscp(const HCS_NeighbouringCellInformation_RSCP* src,
                                             umts_hcs_neighbouring_cell_info_rscp* dst) {
  dst->hcs_PRIO = src->hcs_PRIO;
  dst->q_HCS = src->q_HCS;
  convert_hcs_cell_reselect_info_rscp(&src->hcs_CellReselectInformation, &dst->penaltyTime);
}

void convert_hcs_neighboring_cell_info_rscp(const HCS_NeighbouringCellInformation_RSCP* src,
                                            umts_hcs_neighbouring_cell_info_rscp* dst) {
  convert_hcs_neighbouring_cell_info_rscp(src, dst);
}

void convert_temporary_offset_list(const TemporaryOffsetList* src, umts_temporary_offset_list* dst) {
  dst->temporaryOffset1 = src->temporaryOffset1;
  dst->temporaryOffset2 = src->temporaryOffset2;
}

/* Every alternative but notUsed holds both offsets. */
void convert_penalty_time_ecno(const PenaltyTime_ECN0* src, umts_penalty_time_ecno* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 2 && src->t <= 7 && src->u.pt10 != nullptr) convert_temporary_offset_list(src->u.pt10, &dst->u.pt10);
}

void convert_hcs_cell_reselect_info_ecno(const HCS_CellReselectInformation_ECN0* src, umts_penalty_time_ecno* dst) {
  convert_penalty_time_ecno(&src->penaltyTime, dst);
}

void convert_hcs_neighbouring_cell_info_ecno(const HCS_NeighbouringCellInformation_ECN0* src,
                                             umts_hcs_neighbouring_cell_info_ecno* dst) {
  dst->hcs_PRIO = src->hcs_PRIO;
  dst->q_HCS = src->q_HCS;
  convert_hcs_cell_reselect_info_ecno(&src->hcs_CellReselectInformation, &dst->penaltyTime);
}
