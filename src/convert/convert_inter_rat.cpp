/*
 * Inter-RAT measurement system information: the GSM and IS-2000 neighbours. The full form
 * (InterRATMeasurementSysInfo) serves hcs_used, the B form hcs_not_used; SIB11bis carries
 * the bare new-cell list.
 */
#include <cstring>

#include "convert_frame.h"
#include "convert_meas.h"
#include "umts_sib_convert.h"

namespace {

template <class Src>
void gsm_common(const Src* src, umts_new_inter_rat_cell_gsm* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_cell_select_reselect_info_sib_11_12, cellSelectionReselectionInfo);
  dst->interRATCellIndividualOffset = src->interRATCellIndividualOffset;
}

template <class Src, class Gsm, class Is2000>
void technology_specific_info(const Src* src, umts_new_inter_rat_cell_technology_specific_info* dst, Gsm gsm,
                              Is2000 is_2000) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.gsm != nullptr) gsm(src->u.gsm, &dst->u.gsm);
  else if (src->t == 2 && src->u.is_2000 != nullptr) is_2000(src->u.is_2000, &dst->u.is_2000SpecificMeasInfo);
}

}  // namespace

void convert_inter_rat_measurement_sys_info(const InterRATMeasurementSysInfo* src,
                                            umts_inter_rat_measurement_sys_info* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_inter_rat_cell_info_list, interRATCellInfoList);
}

void convert_inter_rat_cell_info_list(const InterRATCellInfoList* src, umts_inter_rat_cell_info_list* dst) {
  convert_removed_inter_rat_cell_list(&src->removedInterRATCellList, &dst->removedInterRATCellList);
  convert_new_inter_rat_cell_list(&src->newInterRATCellList, &dst->newInterRATCellList);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_cells_for_inter_rat_meas_list, cellsForInterRATMeasList);
}

/*
 * The count, then count bytes copied from the start of the decoded value to the start of
 * the flat one: the copy begins at the count field, not at the identities. It rewrites the
 * count's four bytes with the same count and puts what is left of its length on the
 * identities, so that n identities leave the first n - 4 of them, and 4 or fewer none. The
 * two records hold at least 4 + 32 bytes and n is at most 32, so the copy stays in both.
 */
void convert_cells_for_inter_rat_meas_list(const CellsForInterRATMeasList* src, umts_cells_for_inter_rat_meas_list* dst) {
  dst->count = src->n;
  const uint32_t n = src->n < umts_meas::bound_of(src->elem) ? src->n : umts_meas::bound_of(src->elem);
  uint8_t bytes[sizeof dst->count + sizeof dst->entries];
  std::memcpy(bytes, &dst->count, sizeof dst->count);
  std::memcpy(bytes + sizeof dst->count, dst->entries, sizeof dst->entries);
  std::memcpy(bytes, &src->n, n < sizeof src->n ? n : sizeof src->n);
  if (n > sizeof src->n) std::memcpy(bytes + sizeof src->n, src->elem, n - sizeof src->n);
  std::memcpy(&dst->count, bytes, sizeof dst->count);
  std::memcpy(dst->entries, bytes + sizeof dst->count, sizeof dst->entries);
}

void convert_new_inter_rat_cell_list(const NewInterRATCellList* src, umts_new_inter_rat_cell_list* dst) {
  umts_meas::copy_list<NewInterRATCell>(src, &dst->count, dst->entries,
                                        [](const NewInterRATCell* e, umts_new_inter_rat_cell* flat) {
                                          UMTS_COPY_OPTIONAL(e, flat, 1u, interRATCellID);
                                          convert_new_inter_rat_cell_technology_specific_info(
                                              &e->technologySpecificInfo, &flat->technologySpecificInfo);
                                        });
}

void convert_new_inter_rat_cell_technology_specific_info(const NewInterRATCell_technologySpecificInfo* src,
                                                         umts_new_inter_rat_cell_technology_specific_info* dst) {
  technology_specific_info(src, dst, convert_new_inter_rat_cell_technology_specific_info_gsm,
                           convert_new_inter_rat_cell_technology_specific_info_is_2000);
}

/* bsic reaches the record only with decoded bit 1, the presence of the element dummy; bit 1
   of the flat mask marks it as valid. */
void convert_new_inter_rat_cell_technology_specific_info_gsm(const NewInterRATCell_technologySpecificInfo_gsm* src,
                                                             umts_new_inter_rat_cell_gsm* dst) {
  gsm_common(src, dst);
  if (src->m & 2u) {
    dst->presence_bitmask |= 2u;
    convert_bsic(&src->bsic, &dst->bsic);
  }
  dst->bcch_ARFCN = src->bcch_ARFCN;
  dst->frequency_band = src->frequency_band;
}

void convert_new_inter_rat_cell_technology_specific_info_is_2000(
    const NewInterRATCell_technologySpecificInfo_is_2000* src, uint32_t* dst) {
  *dst = src->is_2000SpecificMeasInfo;
}

void convert_inter_rat_measurement_sysinfo_b(const InterRATMeasurementSysInfo_B* src,
                                             umts_inter_rat_measurement_sysinfo_b* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_inter_rat_cell_info_list_b, interRATCellInfoList);
}

void convert_inter_rat_cell_info_list_b(const InterRATCellInfoList_B* src, umts_inter_rat_cell_info_list_b* dst) {
  convert_removed_inter_rat_cell_list(&src->removedInterRATCellList, &dst->removedInterRATCellList);
  convert_new_inter_rat_cell_list_b(&src->newInterRATCellList, &dst->newInterRATCellList);
}

void convert_new_inter_rat_cell_list_b(const NewInterRATCellList_B* src, umts_new_inter_rat_cell_list_b* dst) {
  umts_meas::copy_list<NewInterRATCell_B>(src, &dst->count, dst->entries, convert_new_inter_rat_cell_b);
}

void convert_new_inter_rat_cell_b(const NewInterRATCell_B* src, umts_new_inter_rat_cell* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, interRATCellID);
  convert_new_inter_rat_cell_list_b_technology_specific_info(&src->technologySpecificInfo, &dst->technologySpecificInfo);
}

void convert_new_inter_rat_cell_list_b_technology_specific_info(const NewInterRATCell_B_technologySpecificInfo* src,
                                                                umts_new_inter_rat_cell_technology_specific_info* dst) {
  technology_specific_info(src, dst, convert_new_inter_rat_cell_list_b_technology_specific_info_gsm,
                           convert_new_inter_rat_cell_list_b_technology_specific_info_is_2000);
}

/* The B form: bsic always, bit 1 always clear. */
void convert_new_inter_rat_cell_list_b_technology_specific_info_gsm(const NewInterRATCell_B_technologySpecificInfo_gsm* src,
                                                                    umts_new_inter_rat_cell_gsm* dst) {
  gsm_common(src, dst);
  convert_bsic(&src->bsic, &dst->bsic);
  dst->bcch_ARFCN = src->bcch_ARFCN;
  dst->frequency_band = src->frequency_band;
}

void convert_new_inter_rat_cell_list_b_technology_specific_info_is_2000(
    const NewInterRATCell_B_technologySpecificInfo_is_2000* src, uint32_t* dst) {
  *dst = src->is_2000SpecificMeasInfo;
}

void convert_removed_inter_rat_cell_list(const RemovedInterRATCellList* src, umts_removed_inter_rat_cell_list* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.removeSomeInterRATCells != nullptr)
    convert_removed_inter_rat_cell_list_remove_some_inter_rat_cells(src->u.removeSomeInterRATCells,
                                                                    &dst->u.removeSomeInterRATCells);
}

/* Only the identities in use. */
void convert_removed_inter_rat_cell_list_remove_some_inter_rat_cells(
    const RemovedInterRATCellList_removeSomeInterRATCells* src, umts_removed_inter_rat_cells* dst) {
  dst->count = src->n;
  const uint32_t n = src->n < umts_meas::bound_of(dst->entries) ? src->n : umts_meas::bound_of(dst->entries);
  std::memcpy(dst->entries, src->elem, n);
}

void convert_cell_select_reselect_info_sib_11_12(const CellSelectReselectInfoSIB_11_12* src,
                                                 umts_cell_select_reselect_info_sib_11_12* dst) {
  dst->q_Offset1S_N = src->q_Offset1S_N;
  UMTS_COPY_OPTIONAL(src, dst, 1u, q_Offset2S_N);
  UMTS_COPY_OPTIONAL(src, dst, 2u, maxAllowedUL_TX_Power);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_hcs_neighboring_cell_info_rscp, hcs_NeighbouringCellInformation_RSCP);
  convert_cell_select_reselect_info_sib_11_12_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_cell_select_reselect_info_sib_11_12_mode_specific_info(
    const CellSelectReselectInfoSIB_11_12_modeSpecificInfo* src, umts_cell_select_reselect_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr)
    convert_cell_select_reselect_info_sib_11_12_mode_specific_info_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_cell_select_reselect_info_sib_11_12_mode_specific_info_tdd(src->u.tdd, &dst->u.tdd);
  else if (src->t == 3 && src->u.gsm != nullptr)
    convert_cell_select_reselect_info_sib_11_12_mode_specific_info_gsm(src->u.gsm, &dst->u.gsm);
}

void convert_cell_select_reselect_info_sib_11_12_mode_specific_info_fdd(
    const CellSelectReselectInfoSIB_11_12_modeSpecificInfo_fdd* src, umts_cell_select_reselect_mode_specific_info_fdd* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, q_QualMin);
  UMTS_COPY_OPTIONAL(src, dst, 2u, q_RxlevMin);
}

void convert_cell_select_reselect_info_sib_11_12_mode_specific_info_tdd(
    const CellSelectReselectInfoSIB_11_12_modeSpecificInfo_tdd* src,
    umts_cell_select_reselect_mode_specific_info_rxlev* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, q_RxlevMin);
}

void convert_cell_select_reselect_info_sib_11_12_mode_specific_info_gsm(
    const CellSelectReselectInfoSIB_11_12_modeSpecificInfo_gsm* src,
    umts_cell_select_reselect_mode_specific_info_rxlev* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, q_RxlevMin);
}

void convert_bsic(const BSIC* src, umts_bsic* dst) {
  dst->ncc = src->ncc;
  dst->bcc = src->bcc;
}
