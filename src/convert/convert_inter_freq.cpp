/*
 * Inter-frequency measurement system information of SIB11 and SIB12, and the new-cell lists
 * that SIB11bis uses directly. Each new cell holds an identity, its frequency and a cell
 * record of the intra-frequency lists, in the same four forms.
 */
#include <cstring>

#include "convert_frame.h"
#include "convert_meas.h"
#include "umts_sib_convert.h"

namespace {

/* An element: the identity, the frequency by its bit, then the cell. */
template <class Element, class Dst, class Cell>
void new_inter_freq_cells(const rtxDList* src, Dst* dst, Cell cell) {
  umts_meas::copy_list<Element>(src, &dst->count, dst->entries, [&](const Element* e, auto* flat) {
    UMTS_COPY_OPTIONAL(e, flat, 1u, interFreqCellID);
    UMTS_CONVERT_OPTIONAL(e, flat, 2u, convert_frequency_info, frequencyInfo);
    cell(&e->cellInfo, &flat->cellInfo);
  });
}

template <class Src, class Dst, class NewCells>
void inter_freq_cell_info_list(const Src* src, Dst* dst, NewCells new_cells) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_removed_inter_freq_cell_list, removedInterFreqCellList);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, new_cells, newInterFreqCellList);
}

template <class Src, class Dst, class CellList>
void inter_freq_measurement(const Src* src, Dst* dst, CellList cell_list) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, cell_list, interFreqCellInfoSI_List);
}

}  // namespace

void convert_new_inter_freq_cell_si_list_rscp(const NewInterFreqCellSI_List_RSCP* src,
                                              umts_new_inter_freq_cell_si_list_rscp* dst) {
  new_inter_freq_cells<NewInterFreqCellSI_RSCP>(src, dst, convert_cell_info_si_rscp);
}

/* This form converts frequencyInfo for every element without looking at its bit, and never
   sets bit 1: a frequency that came shows in the choice_tag of frequencyInfo, an absent one
   leaves it zero. */
void convert_new_inter_freq_cell_si_list_ecno(const NewInterFreqCellSI_List_ECN0* src,
                                              umts_new_inter_freq_cell_si_list_ecno* dst) {
  umts_meas::copy_list<NewInterFreqCellSI_ECN0>(
      src, &dst->count, dst->entries, [](const NewInterFreqCellSI_ECN0* e, umts_new_inter_freq_cell_si_ecno* flat) {
        UMTS_COPY_OPTIONAL(e, flat, 1u, interFreqCellID);
        convert_frequency_info(&e->frequencyInfo, &flat->frequencyInfo);
        convert_cell_info_si_ecno(&e->cellInfo, &flat->cellInfo);
      });
}

void convert_new_inter_freq_cell_si_list_hcs_rscp(const NewInterFreqCellSI_List_HCS_RSCP* src,
                                                  umts_new_inter_freq_cell_si_list_hcs_rscp* dst) {
  new_inter_freq_cells<NewInterFreqCellSI_HCS_RSCP>(src, dst, convert_cell_info_si_hcs_rscp);
}

void convert_new_inter_freq_cell_si_list_hcs_ecno(const NewInterFreqCellSI_List_HCS_ECN0* src,
                                                  umts_new_inter_freq_cell_si_list_hcs_ecno* dst) {
  new_inter_freq_cells<NewInterFreqCellSI_HCS_ECN0>(src, dst, convert_cell_info_si_hcs_ecno);
}

#define UMTS_INTER_FREQ_FORM(v, V, sysinfo)                                                                    \
  void convert_inter_freq_cell_info_si_list_##v(const InterFreqCellInfoSI_List_##V* src,                       \
                                                umts_inter_freq_cell_info_si_list_##v* dst) {                  \
    inter_freq_cell_info_list(src, dst, convert_new_inter_freq_cell_si_list_##v);                              \
  }                                                                                                            \
  void convert_inter_freq_measurement_##sysinfo(const InterFreqMeasurementSysInfo_##V* src,                    \
                                                umts_inter_freq_measurement_##sysinfo* dst) {                  \
    inter_freq_measurement(src, dst, convert_inter_freq_cell_info_si_list_##v);                                \
  }

UMTS_INTER_FREQ_FORM(rscp, RSCP, sysinfo_rscp)
UMTS_INTER_FREQ_FORM(ecno, ECN0, sysinfo_ecno)
UMTS_INTER_FREQ_FORM(hcs_rscp, HCS_RSCP, sys_info_hcs_rscp)
UMTS_INTER_FREQ_FORM(hcs_ecno, HCS_ECN0, sys_info_hcs_ecno)

void convert_removed_inter_freq_cell_list(const RemovedInterFreqCellList* src, umts_removed_inter_freq_cell_list* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.removeSomeInterFreqCells != nullptr)
    convert_removed_inter_freq_cell_list_remove_some_inter_freq_cells(src->u.removeSomeInterFreqCells,
                                                                      &dst->u.removeSomeInterFreqCells);
}

/* Only the identities in use: one byte each. */
void convert_removed_inter_freq_cell_list_remove_some_inter_freq_cells(
    const RemovedInterFreqCellList_removeSomeInterFreqCells* src, umts_removed_inter_freq_cells* dst) {
  dst->count = src->n;
  const uint32_t n = src->n < umts_meas::bound_of(dst->entries) ? src->n : umts_meas::bound_of(dst->entries);
  std::memcpy(dst->entries, src->elem, n);
}

void convert_frequency_info(const FrequencyInfo* src, umts_frequency_info* dst) {
  convert_frequency_info_mode_specific_info(&src->modeSpecificInfo, dst);
}

void convert_frequency_info_mode_specific_info(const FrequencyInfo_modeSpecificInfo* src, umts_frequency_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_frequency_info_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr) convert_frequency_info_tdd(src->u.tdd, &dst->u.tdd.uarfcn_Nt);
}

void convert_frequency_info_fdd(const FrequencyInfoFDD* src, umts_frequency_info_fdd* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, uarfcn_UL);
  dst->uarfcn_DL = src->uarfcn_DL;
}

void convert_frequency_info_tdd(const FrequencyInfoTDD* src, uint16_t* uarfcn_Nt) { *uarfcn_Nt = src->uarfcn_Nt; }
