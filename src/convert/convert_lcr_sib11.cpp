/*
 * The LCR (TDD 1.28 Mcps) measurement control information of SIB11 (the v4b0 extension,
 * MeasurementControlSysInfo-LCR-r4-ext), under the schema's mixed-case names.
 *
 * It is the tree of SIB12 (convert_lcr.cpp) but for these places, which SIB11 keeps:
 * - an RSCP new intra-frequency cell without intraFreqCellID keeps a zero cellInfo;
 * - the ECN0 cell converts primaryCCPCH_Info (and sets bit 3) only when
 *   cellSelectionReselectionInfo came, and converts the selection record in any case;
 * - the HCS_RSCP selection record converts modeSpecificInfo only when the neighbouring HCS
 *   information came, and that information in any case, last;
 * - the ECN0 new inter-frequency cell ORs interFreqCellID into its field;
 * - the RSCP inter-frequency list converts its new cells first and its removed cells second,
 *   and removeSomeInterFreqCells copies 4 bytes per identity (see below);
 * - removeSomeIntraFreqCells copies only the identities in use;
 * - the event dispatch sends e1d to event 1e and copies 16 bits for e1g;
 * - the reporting cell status keeps its value for tags 1 to 14 only;
 * - the TDD quantity lists copy one 32-bit entry per counted entry.
 * Its functions clear their presence_bitmask where the record may hold an earlier value, and
 * its lists read their count back from the flat 8-bit field; for every count the decoder
 * delivers the result is that of the other trees.
 */
#include <cstddef>
#include <cstring>

#include "convert_frame.h"
#include "convert_lcr.h"
#include "convert_meas.h"
#include "umts_sib_convert.h"

namespace {

using namespace umts_lcr;
using umts_meas::both_cell_lists;
using umts_meas::both_frequencies;

/* A list whose walk reads its count back from the flat 8-bit field. */
template <class Element, class Dst, class Convert>
void flat_count_list(const rtxDList* src, Dst* dst, Convert convert) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < umts_meas::bound_of(dst->entries) && node != nullptr; i++, node = node->next)
    if (node->data != nullptr) convert(static_cast<const Element*>(node->data), &dst->entries[i]);
}

/* removeSomeInterFreqCells copies 4 bytes per identity from the decoded array. Up to 8
   identities that stays within the 32-byte array; above 8 the copy ran on behind the array,
   over the first 4 x count - 32 bytes of the list record's newInterFreqCellList (its count
   first), with bytes read from behind the decoded array. Those bytes are not the message's:
   here they are zero, so the new-cell count reads 0. The entries that this count no longer
   covers are cleared with it, so that the list reads empty byte for byte: a set of
   umts_sib_set_alloc clears a list up to its count before the next conversion, and would
   otherwise keep them. In the RSCP list, which converts its new cells first, the list thus
   reads empty; in the other forms the new-cell list is converted over it afterwards. */
template <class List>
void removed_inter_freq_overrun(const RemovedInterFreqCellList* src, List* dst) {
  if (src->t != 2 || src->u.removeSomeInterFreqCells == nullptr) return;
  const uint32_t copied = 4u * src->u.removeSomeInterFreqCells->n;
  constexpr uint32_t array = sizeof dst->removedInterFreqCellList.u.removeSomeInterFreqCells.entries;
  if (copied <= array) return;
  static_assert(offsetof(List, newInterFreqCellList) ==
                    offsetof(List, removedInterFreqCellList) + sizeof dst->removedInterFreqCellList,
                "the new-cell list follows the removed-cell array");
  static_assert(offsetof(umts_removed_inter_freq_cell_list, u) + offsetof(umts_removed_inter_freq_cells, entries) +
                        array == sizeof(umts_removed_inter_freq_cell_list),
                "the removed-cell array ends its record");
  std::memset(&dst->newInterFreqCellList, 0, sizeof dst->newInterFreqCellList);
}

}  // namespace

/* ---- Top, branches and quality alternatives ---------------------------------------------------------- */

void convert_MeasurementControlSysInfo_LCR_r4(const MeasurementControlSysInfo_LCR_r4_ext* src,
                                              umts_measurement_control_sys_info_lcr_r4_ext* dst) {
  conver_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS(&src->use_of_HCS, &dst->use_of_HCS);
}

void conver_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS(const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS* src,
                                                            umts_use_of_hcs_lcr_r4_ext* dst) {
  use_of_hcs(src, dst, convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used,
             convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used);
}

void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used* src, umts_lcr_hcs_not_used* dst) {
  convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure(
      &src->cellSelectQualityMeasure, &dst->cellSelectQualityMeasure);
}

void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used* src, umts_lcr_hcs_used* dst) {
  convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure(
      &src->cellSelectQualityMeasure, &dst->cellSelectQualityMeasure);
}

void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_lcr_hcs_not_used_quality_measure* dst) {
  quality_measure(src, dst, convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP,
                  convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0);
}

void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_lcr_hcs_used_quality_measure* dst) {
  quality_measure(src, dst, convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP,
                  convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0);
}

void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_lcr_hcs_not_used_cpich_rscp* dst) {
  dst->presence_bitmask = 0;
  both_frequencies(src, dst, convert_intraFreqMeasurementSysInfo, convert_InterFreqMeasurementSysInfo_RSCP_LCR_r4);
}

void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_lcr_hcs_not_used_cpich_ec_n0* dst) {
  dst->presence_bitmask = 0;
  both_frequencies(src, dst, convert_IntraFreqMeasurementSysInfo_ECN0_LCR_r4, convert_InterFreqMeasurementSysInfo_ECN0_LCR_r4);
}

void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_lcr_hcs_used_cpich_rscp* dst) {
  dst->presence_bitmask = 0;
  both_frequencies(src, dst, convert_IntraFreqMeasurementSysInfo_HCS_RSCP_LCR_r4,
                   convert_InterFreqMeasurementSysInfo_HCS_RSCP_LCR_r4);
}

void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_lcr_hcs_used_cpich_ec_n0* dst) {
  dst->presence_bitmask = 0;
  both_frequencies(src, dst, convert_IntraFreqMeasurementSysInfo_HCS_ECN0_LCR_r4,
                   convert_InterFreqMeasurementSysInfo_HCS_ECN0_LCR_r4);
}

/* ---- Measurement records and cell lists of the forms ----------------------------------------------- */

#define UMTS_LCR_SIB11_INTRA_MEASUREMENT(name, V, v)                                                           \
  void name(const IntraFreqMeasurementSysInfo_##V##_LCR_r4* src, umts_intra_freq_measurement_sys_info_##v##_lcr_r4* dst) { \
    dst->presence_bitmask = 0;                                                                                 \
    intra_freq_measurement(src, dst, convert_IntraFreqCellInfoSI_List_##V##_LCR_r4, convert_IntraFreqMeasQuantity, \
                           convert_IntraFreqReportingQuantityForRACH, convert_ReportingInfoForCellDCH_LCR_r4); \
  }
UMTS_LCR_SIB11_INTRA_MEASUREMENT(convert_intraFreqMeasurementSysInfo, RSCP, rscp)
UMTS_LCR_SIB11_INTRA_MEASUREMENT(convert_IntraFreqMeasurementSysInfo_ECN0_LCR_r4, ECN0, ecno)
UMTS_LCR_SIB11_INTRA_MEASUREMENT(convert_IntraFreqMeasurementSysInfo_HCS_RSCP_LCR_r4, HCS_RSCP, hcs_rscp)
UMTS_LCR_SIB11_INTRA_MEASUREMENT(convert_IntraFreqMeasurementSysInfo_HCS_ECN0_LCR_r4, HCS_ECN0, hcs_ecno)

/* cell: the cell function of the form. The new inter-frequency cell of each form other than
   ECN0 and its inter-frequency list with the removed cells first. */
#define UMTS_LCR_SIB11_FORM(v, V, cell)                                                                        \
  void convert_IntraFreqCellInfoSI_List_##V##_LCR_r4(const IntraFreqCellInfoSI_List_##V##_LCR_r4* src,         \
                                                     umts_intra_freq_cell_info_si_list_##v##_lcr_r4* dst) {    \
    dst->presence_bitmask = 0;                                                                                 \
    UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_RemovedIntraFreqCellList, removedIntraFreqCellList);          \
    convert_NewIntraFreqCellSI_List_##V##_LCR_r4(&src->newIntraFreqCellList, &dst->newIntraFreqCellList);      \
  }                                                                                                            \
  void convert_NewIntraFreqCellSI_List_##V##_LCR_r4(const NewIntraFreqCellSI_List_##V##_LCR_r4* src,           \
                                                    umts_new_intra_freq_cell_si_list_##v##_lcr_r4* dst) {     \
    flat_count_list<NewIntraFreqCellSI_##V##_LCR_r4>(src, dst, convert_NewIntraFreqCellSI_##V##_LCR_r4);       \
  }                                                                                                            \
  void convert_InterFreqMeasurementSysInfo_##V##_LCR_r4(const InterFreqMeasurementSysInfo_##V##_LCR_r4* src,   \
                                                        umts_inter_freq_measurement_sys_info_##v##_lcr_r4* dst) { \
    dst->presence_bitmask = 0;                                                                                 \
    UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_InterFreqCellInfoSI_List_##V##_LCR, interFreqCellInfoSI_List); \
  }                                                                                                            \
  void convert_NewInterFreqCellSI_List_##V##_LCR_r4(const NewInterFreqCellSI_List_##V##_LCR_r4* src,           \
                                                    umts_new_inter_freq_cell_si_list_##v##_lcr_r4* dst) {     \
    flat_count_list<NewInterFreqCellSI_##V##_LCR_r4>(src, dst, convert_NewInterFreqCellSI_##V##_LCR_r4);       \
  }

#define UMTS_LCR_SIB11_LATER_FORM(v, V, cell)                                                                  \
  UMTS_LCR_SIB11_FORM(v, V, cell)                                                                              \
  void convert_NewIntraFreqCellSI_##V##_LCR_r4(const NewIntraFreqCellSI_##V##_LCR_r4* src,                     \
                                               umts_new_intra_freq_cell_si_##v##_lcr_r4* dst) {               \
    dst->presence_bitmask = 0;                                                                                 \
    new_intra_freq_cell(src, dst, cell);                                                                       \
  }                                                                                                            \
  void convert_InterFreqCellInfoSI_List_##V##_LCR(const InterFreqCellInfoSI_List_##V##_LCR* src,               \
                                                  umts_inter_freq_cell_info_si_list_##v##_lcr* dst) {         \
    dst->presence_bitmask = 0;                                                                                 \
    if (src->m & 1u) {                                                                                         \
      dst->presence_bitmask |= 1u;                                                                             \
      convert_RemovedInterFreqCellList(&src->removedInterFreqCellList, &dst->removedInterFreqCellList);       \
      removed_inter_freq_overrun(&src->removedInterFreqCellList, dst);                                         \
    }                                                                                                          \
    UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_NewInterFreqCellSI_List_##V##_LCR_r4, newInterFreqCellList);  \
  }

UMTS_LCR_SIB11_FORM(rscp, RSCP, convert_CellInfoSI_RSCP_LCR_r4)
UMTS_LCR_SIB11_LATER_FORM(ecno, ECN0, convert_CellInfoSI_ECN0_LCR_r4)
UMTS_LCR_SIB11_LATER_FORM(hcs_rscp, HCS_RSCP, convert_CellInfoSI_HCS_RSCP_LCR_r4)
UMTS_LCR_SIB11_LATER_FORM(hcs_ecno, HCS_ECN0, convert_cell_info_si_hcs_ecno_lcr_r4)

/* An element without an identity returns at once: its cellInfo stays zero. */
void convert_NewIntraFreqCellSI_RSCP_LCR_r4(const NewIntraFreqCellSI_RSCP_LCR_r4* src,
                                            umts_new_intra_freq_cell_si_rscp_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  if (!(src->m & 1u)) return;
  new_intra_freq_cell(src, dst, convert_CellInfoSI_RSCP_LCR_r4);
}

/* The new cells first, the removed cells second: removed identities of more than 8 run on
   over the converted new-cell list (removed_inter_freq_overrun). */
void convert_InterFreqCellInfoSI_List_RSCP_LCR(const InterFreqCellInfoSI_List_RSCP_LCR* src,
                                               umts_inter_freq_cell_info_si_list_rscp_lcr* dst) {
  dst->presence_bitmask = 0;
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_NewInterFreqCellSI_List_RSCP_LCR_r4, newInterFreqCellList);
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    convert_RemovedInterFreqCellList(&src->removedInterFreqCellList, &dst->removedInterFreqCellList);
    removed_inter_freq_overrun(&src->removedInterFreqCellList, dst);
  }
}

void convert_NewInterFreqCellSI_RSCP_LCR_r4(const NewInterFreqCellSI_RSCP_LCR_r4* src,
                                            umts_new_inter_freq_cell_si_rscp_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  new_inter_freq_cell(src, dst, convert_FrequencyInfo, convert_CellInfoSI_RSCP_LCR_r4);
}

/* The identity is ORed into its field, which holds zero. */
void convert_NewInterFreqCellSI_ECN0_LCR_r4(const NewInterFreqCellSI_ECN0_LCR_r4* src,
                                            umts_new_inter_freq_cell_si_ecno_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->interFreqCellID |= src->interFreqCellID;
  }
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_FrequencyInfo, frequencyInfo);
  convert_CellInfoSI_ECN0_LCR_r4(&src->cellInfo, &dst->cellInfo);
}

void convert_NewInterFreqCellSI_HCS_RSCP_LCR_r4(const NewInterFreqCellSI_HCS_RSCP_LCR_r4* src,
                                                umts_new_inter_freq_cell_si_hcs_rscp_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  new_inter_freq_cell(src, dst, convert_FrequencyInfo, convert_CellInfoSI_HCS_RSCP_LCR_r4);
}

void convert_NewInterFreqCellSI_HCS_ECN0_LCR_r4(const NewInterFreqCellSI_HCS_ECN0_LCR_r4* src,
                                                umts_new_inter_freq_cell_si_hcs_ecno_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  new_inter_freq_cell(src, dst, convert_FrequencyInfo, convert_cell_info_si_hcs_ecno_lcr_r4);
}

/* ---- Cells ------------------------------------------------------------------------------------------- */

void convert_CellInfoSI_RSCP_LCR_r4(const CellInfoSI_RSCP_LCR_r4* src, umts_cell_info_si_rscp_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  cell(src, dst, convert_ReferenceTimeDifferenceToCell, convert_PrimaryCCPCH_Info_LCR_r4, convert_TimeslotInfoList_LCR_r4,
       convert_CellSelectReselectInfoSIB_11_12_RSCP);
}

/* Bit 3 (cellSelectionReselectionInfo) gates primaryCCPCH_Info, and the selection record is
   converted in any case: a cell without it keeps a zero primaryCCPCH_Info and bit 3 clear. */
void convert_CellInfoSI_ECN0_LCR_r4(const CellInfoSI_ECN0_LCR_r4* src, umts_cell_info_si_ecno_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  dst->cellIndividualOffset = src->cellIndividualOffset;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_ReferenceTimeDifferenceToCell, referenceTimeDifferenceToCell);
  if (src->m & 8u) {
    dst->presence_bitmask |= 8u;
    convert_PrimaryCCPCH_Info_LCR_r4(&src->primaryCCPCH_Info, &dst->primaryCCPCH_Info);
  }
  UMTS_COPY_OPTIONAL(src, dst, 2u, primaryCCPCH_TX_Power);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_TimeslotInfoList_LCR_r4, timeslotInfoList);
  dst->readSFN_Indicator = src->readSFN_Indicator;
  convert_CellSelectReselectInfoSIB_11_12_ECN0(&src->cellSelectionReselectionInfo, &dst->cellSelectionReselectionInfo);
}

void convert_CellInfoSI_HCS_RSCP_LCR_r4(const CellInfoSI_HCS_RSCP_LCR_r4* src, umts_cell_info_si_hcs_rscp_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  cell(src, dst, convert_ReferenceTimeDifferenceToCell, convert_PrimaryCCPCH_Info_LCR_r4, convert_TimeslotInfoList_LCR_r4,
       convert_CellSelectReselectInfoSIB_11_12_HCS_RSCP);
}

/* ---- Cell selection ------------------------------------------------------------------------------------ */

#define UMTS_LCR_SIB11_SELECTION_MODE(V)                                                                       \
  void convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_fdd(                                     \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_fdd* src,                                   \
      umts_cell_select_reselect_mode_specific_info_fdd* dst) {                                                 \
    dst->presence_bitmask = 0;                                                                                 \
    UMTS_COPY_OPTIONAL(src, dst, 1u, q_QualMin);                                                               \
    UMTS_COPY_OPTIONAL(src, dst, 2u, q_RxlevMin);                                                              \
  }                                                                                                            \
  void convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_tdd(                                     \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_tdd* src,                                   \
      umts_cell_select_reselect_mode_specific_info_rxlev* dst) {                                               \
    dst->presence_bitmask = 0;                                                                                 \
    UMTS_COPY_OPTIONAL(src, dst, 1u, q_RxlevMin);                                                              \
  }                                                                                                            \
  void convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_gsm(                                     \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_gsm* src,                                   \
      umts_cell_select_reselect_mode_specific_info_rxlev* dst) {                                               \
    dst->presence_bitmask = 0;                                                                                 \
    UMTS_COPY_OPTIONAL(src, dst, 1u, q_RxlevMin);                                                              \
  }                                                                                                            \
  void convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo(                                         \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo* src,                                       \
      umts_cell_select_reselect_mode_specific_info* dst) {                                                     \
    dst->choice_tag = src->t;                                                                                  \
    if (src->t == 1 && src->u.fdd != nullptr)                                                                  \
      convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_fdd(src->u.fdd, &dst->u.fdd);            \
    else if (src->t == 2 && src->u.tdd != nullptr)                                                             \
      convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_tdd(src->u.tdd, &dst->u.tdd);            \
    else if (src->t == 3 && src->u.gsm != nullptr)                                                             \
      convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_gsm(src->u.gsm, &dst->u.gsm);            \
  }
UMTS_LCR_SIB11_SELECTION_MODE(RSCP)
UMTS_LCR_SIB11_SELECTION_MODE(ECN0)

void convert_CellSelectReselectInfoSIB_11_12_RSCP(const CellSelectReselectInfoSIB_11_12_RSCP* src,
                                                  umts_cell_select_reselect_info_sib_11_12_rscp* dst) {
  dst->presence_bitmask = 0;
  dst->q_OffsetS_N = src->q_OffsetS_N;
  UMTS_COPY_OPTIONAL(src, dst, 1u, maxAllowedUL_TX_Power);
  convert_CellSelectReselectInfoSIB_11_12_RSCP_modeSpecificInfo(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_CellSelectReselectInfoSIB_11_12_ECN0(const CellSelectReselectInfoSIB_11_12_ECN0* src,
                                                  umts_cell_select_reselect_info_sib_11_12_ecno* dst) {
  dst->presence_bitmask = 0;
  dst->q_Offset1S_N = src->q_Offset1S_N;
  dst->q_Offset2S_N = src->q_Offset2S_N;
  UMTS_COPY_OPTIONAL(src, dst, 1u, maxAllowedUL_TX_Power);
  convert_CellSelectReselectInfoSIB_11_12_ECN0_modeSpecificInfo(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

/* Bit 1 (the neighbouring HCS information) gates modeSpecificInfo; the HCS information is
   converted in any case, last. Without it, the mandatory modeSpecificInfo stays zero. */
void convert_CellSelectReselectInfoSIB_11_12_HCS_RSCP(const CellSelectReselectInfoSIB_11_12_HCS_RSCP* src,
                                                      umts_cell_select_reselect_info_sib_11_12_hcs_rscp* dst) {
  dst->presence_bitmask = 0;
  dst->q_OffsetS_N = src->q_OffsetS_N;
  UMTS_COPY_OPTIONAL(src, dst, 1u, maxAllowedUL_TX_Power);
  if (src->m & 2u) {
    dst->presence_bitmask |= 2u;
    convert_cell_select_reselect_info_sib_11_12_hcs_rscp_mode_specific_info(&src->modeSpecificInfo,
                                                                            &dst->modeSpecificInfo);
  }
  convert_HCS_NeighbouringCellInformation_RSCP(&src->hcs_NeighbouringCellInformation_RSCP,
                                               &dst->hcs_NeighbouringCellInformation_RSCP);
}

void convert_HCS_NeighbouringCellInformation_RSCP(const HCS_NeighbouringCellInformation_RSCP* src,
                                                  umts_hcs_neighbouring_cell_info_rscp* dst) {
  dst->hcs_PRIO = src->hcs_PRIO;
  dst->q_HCS = src->q_HCS;
  convert_HCS_CellReselectInformation_RSCP(&src->hcs_CellReselectInformation, &dst->penaltyTime);
}

void convert_HCS_CellReselectInformation_RSCP(const HCS_CellReselectInformation_RSCP* src, umts_penalty_time_rscp* dst) {
  convert_PenaltyTime_RSCP(&src->penaltyTime, dst);
}

void convert_PenaltyTime_RSCP(const PenaltyTime_RSCP* src, umts_penalty_time_rscp* dst) {
  convert_penalty_time_rscp(src, dst);
}

/* ---- Cell members ------------------------------------------------------------------------------------- */

void convert_ReferenceTimeDifferenceToCell(const ReferenceTimeDifferenceToCell* src,
                                           umts_reference_time_difference_to_cell* dst) {
  convert_reference_time_difference_to_cell(src, dst);
}

void convert_PrimaryCCPCH_Info_LCR_r4(const PrimaryCCPCH_Info_LCR_r4* src, umts_primary_ccpch_info_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  convert_primary_ccpch_info_lcr_r4(src, dst);
}

void convert_TimeslotInfoList_LCR_r4(const TimeslotInfoList_LCR_r4* src, umts_timeslot_info_list_lcr_r4* dst) {
  flat_count_list<TimeslotInfo_LCR_r4>(src, dst, convert_TimeslotInfo_LCR_r4);
}

void convert_TimeslotInfo_LCR_r4(const TimeslotInfo_LCR_r4* src, uint8_t* dst) { *dst = src->timeslotNumber; }

/* ---- Removed cells and frequencies ----------------------------------------------------------------------- */

void convert_RemovedIntraFreqCellList(const RemovedIntraFreqCellList* src, umts_removed_intra_freq_cell_list* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.removeSomeIntraFreqCells != nullptr)
    convert_removeSomeIntraFreqCells(src->u.removeSomeIntraFreqCells, &dst->u.removeSomeIntraFreqCells);
}

/* The count and the identities in use, one byte each. */
void convert_removeSomeIntraFreqCells(const RemovedIntraFreqCellList_removeSomeIntraFreqCells* src,
                                      umts_removed_intra_freq_cells* dst) {
  dst->count = src->n;
  const uint32_t n = src->n < umts_meas::bound_of(dst->entries) ? src->n : umts_meas::bound_of(dst->entries);
  std::memcpy(dst->entries, src->elem, n);
}

void convert_RemovedInterFreqCellList(const RemovedInterFreqCellList* src, umts_removed_inter_freq_cell_list* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.removeSomeInterFreqCells != nullptr)
    convert_RemovedInterFreqCellList_removeSomeInterFreqCells(src->u.removeSomeInterFreqCells,
                                                              &dst->u.removeSomeInterFreqCells);
}

/* The count, then 4 bytes per identity from the decoded array of one-byte identities: up to
   8 identities, 4 x count bytes of the array (the identities and the decoder's bytes after
   them); above 8, the whole array here, and what ran on behind it is written by the list
   (removed_inter_freq_overrun). */
void convert_RemovedInterFreqCellList_removeSomeInterFreqCells(const RemovedInterFreqCellList_removeSomeInterFreqCells* src,
                                                               umts_removed_inter_freq_cells* dst) {
  static_assert(sizeof src->elem == sizeof dst->entries, "32 identities of one byte");
  dst->count = src->n;
  const uint32_t bytes = 4u * src->n;
  std::memcpy(dst->entries, src->elem, bytes < sizeof dst->entries ? bytes : sizeof dst->entries);
}

void convert_FrequencyInfo(const FrequencyInfo* src, umts_frequency_info* dst) {
  convert_FrequencyInfo_modeSpecificInfo(&src->modeSpecificInfo, dst);
}

void convert_FrequencyInfo_modeSpecificInfo(const FrequencyInfo_modeSpecificInfo* src, umts_frequency_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_FrequencyInfoFDD(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr) dst->u.tdd.uarfcn_Nt = src->u.tdd->uarfcn_Nt;
}

void convert_FrequencyInfoFDD(const FrequencyInfoFDD* src, umts_frequency_info_fdd* dst) {
  dst->presence_bitmask = 0;
  UMTS_COPY_OPTIONAL(src, dst, 1u, uarfcn_UL);
  dst->uarfcn_DL = src->uarfcn_DL;
}

/* ---- Quantities ------------------------------------------------------------------------------------------ */

void convert_IntraFreqMeasQuantity(const IntraFreqMeasQuantity* src, umts_intra_freq_meas_quantity* dst) {
  dst->filterCoefficient = src->filterCoefficient;
  convert_IntraFreqMeasQuantity_modeSpecificInfo(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_IntraFreqMeasQuantity_modeSpecificInfo(const IntraFreqMeasQuantity_modeSpecificInfo* src,
                                                    umts_intra_freq_meas_quantity_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr)
    convert_IntraFreqMeasQuantity_modeSpecificInfo_fdd(src->u.fdd, &dst->u.intraFreqMeasQuantity_FDD);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_IntraFreqMeasQuantity_modeSpecificInfo_tdd(src->u.tdd, &dst->u.intraFreqMeasQuantity_TDDList);
}

void convert_IntraFreqMeasQuantity_modeSpecificInfo_fdd(const IntraFreqMeasQuantity_modeSpecificInfo_fdd* src,
                                                        uint32_t* dst) {
  *dst = src->intraFreqMeasQuantity_FDD;
}

void convert_IntraFreqMeasQuantity_modeSpecificInfo_tdd(const IntraFreqMeasQuantity_modeSpecificInfo_tdd* src,
                                                        umts_intra_freq_meas_quantity_tdd_list* dst) {
  convert_intraFreqMeasQuantity_TDDList(&src->intraFreqMeasQuantity_TDDList, dst);
}

namespace {

/* The count and one 32-bit entry per counted entry (at most the array). */
template <class Src, class Dst>
void counted_words(const Src* src, Dst* dst) {
  static_assert(sizeof src->elem == sizeof dst->entries, "entries of 32 bits");
  dst->count = src->n;
  const uint32_t n = src->n < umts_meas::bound_of(dst->entries) ? src->n : umts_meas::bound_of(dst->entries);
  std::memcpy(dst->entries, src->elem, 4u * n);
}

}  // namespace

void convert_intraFreqMeasQuantity_TDDList(const IntraFreqMeasQuantity_TDDList* src,
                                           umts_intra_freq_meas_quantity_tdd_list* dst) {
  counted_words(src, dst);
}

void convert_IntraFreqReportingQuantityForRACH(const IntraFreqReportingQuantityForRACH* src,
                                               umts_intra_freq_reporting_quantity_for_rach* dst) {
  dst->sfn_SFN_OTD_Type = src->sfn_SFN_OTD_Type;
  convert_IntraFreqReportingQuantityForRACH_modeSpecificInfo(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_IntraFreqReportingQuantityForRACH_modeSpecificInfo(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo* src,
    umts_intra_freq_reporting_quantity_for_rach_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr)
    convert_IntraFreqReportingQuantityForRACH_modeSpecificInfo_fdd(src->u.fdd, &dst->u.intraFreqRepQuantityRACH_FDD);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_IntraFreqReportingQuantityForRACH_modeSpecificInfo_tdd(src->u.tdd, &dst->u.intraFreqRepQuantityRACH_TDDList);
}

void convert_IntraFreqReportingQuantityForRACH_modeSpecificInfo_fdd(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo_fdd* src, uint32_t* dst) {
  *dst = src->intraFreqRepQuantityRACH_FDD;
}

void convert_IntraFreqReportingQuantityForRACH_modeSpecificInfo_tdd(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo_tdd* src, umts_intra_freq_rep_quantity_rach_tdd_list* dst) {
  counted_words(&src->intraFreqRepQuantityRACH_TDDList, dst);
}

void convert_intraFreqReportingQuantity(const IntraFreqReportingQuantity* src, umts_intra_freq_reporting_quantity* dst) {
  dst->presence_bitmask = 0;
  convert_detectedSetReportingQuantities(&src->activeSetReportingQuantities, &dst->activeSetReportingQuantities);
  convert_detectedSetReportingQuantities(&src->monitoredSetReportingQuantities, &dst->monitoredSetReportingQuantities);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_detectedSetReportingQuantities, detectedSetReportingQuantities);
}

void convert_detectedSetReportingQuantities(const CellReportingQuantities* src, umts_cell_reporting_quantities* dst) {
  dst->dummy = src->dummy;
  dst->cellIdentity_reportingIndicator = src->cellIdentity_reportingIndicator;
  dst->cellSynchronisationInfoReportingIndicator = src->cellSynchronisationInfoReportingIndicator;
  convert_CellReportingQuantities_modeSpecificInfo(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_CellReportingQuantities_modeSpecificInfo(const CellReportingQuantities_modeSpecificInfo* src,
                                                      umts_cell_reporting_quantities_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_CellReportingQuantities_modeSpecificInfo_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_CellReportingQuantities_modeSpecificInfo_tdd(src->u.tdd, &dst->u.tdd);
}

void convert_CellReportingQuantities_modeSpecificInfo_fdd(const CellReportingQuantities_modeSpecificInfo_fdd* src,
                                                          umts_cell_reporting_quantities_fdd* dst) {
  convert_cell_reporting_quantities_mode_specific_info_fdd(src, dst);
}

void convert_CellReportingQuantities_modeSpecificInfo_tdd(const CellReportingQuantities_modeSpecificInfo_tdd* src,
                                                          umts_cell_reporting_quantities_tdd* dst) {
  convert_cell_reporting_quantities_mode_specific_info_tdd(src, dst);
}

void convert_measurementReportingMode(const MeasurementReportingMode* src, umts_measurement_reporting_mode* dst) {
  dst->measurementReportTransferMode = src->measurementReportTransferMode;
  dst->periodicalOrEventTrigger = src->periodicalOrEventTrigger;
}

void convert_periodicalReportingCriteria(const PeriodicalReportingCriteria* src, umts_periodical_reporting_criteria* dst) {
  dst->reportingAmount = src->reportingAmount;
  dst->reportingInterval = src->reportingInterval;
}

/* ---- Reporting ------------------------------------------------------------------------------------------- */

void convert_ReportingInfoForCellDCH_LCR_r4(const ReportingInfoForCellDCH_LCR_r4* src,
                                            umts_reporting_info_for_cell_dch_lcr_r4* dst) {
  convert_intraFreqReportingQuantity(&src->intraFreqReportingQuantity, &dst->intraFreqReportingQuantity);
  convert_measurementReportingMode(&src->measurementReportingMode, &dst->measurementReportingMode);
  convert_CellDCH_ReportCriteria_LCR_r4(&src->reportCriteria, &dst->reportCriteria);
}

void convert_CellDCH_ReportCriteria_LCR_r4(const CellDCH_ReportCriteria_LCR_r4* src,
                                           umts_cell_dch_report_criteria_lcr_r4* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.intraFreqReportingCriteria != nullptr)
    convert_intraFreqReportingCriteria(src->u.intraFreqReportingCriteria, &dst->u.intraFreqReportingCriteria);
  else if (src->t == 2 && src->u.periodicalReportingCriteria != nullptr)
    convert_periodicalReportingCriteria(src->u.periodicalReportingCriteria, &dst->u.periodicalReportingCriteria);
}

void convert_intraFreqReportingCriteria(const IntraFreqReportingCriteria_LCR_r4* src,
                                        umts_intra_freq_reporting_criteria_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_IntraFreqEventCriteriaList_LCR_r4, eventCriteriaList);
}

void convert_IntraFreqEventCriteriaList_LCR_r4(const IntraFreqEventCriteriaList_LCR_r4* src,
                                               umts_intra_freq_event_criteria_list_lcr_r4* dst) {
  flat_count_list<IntraFreqEventCriteria_LCR_r4>(src, dst, convert_IntraFreqEventCriteria_LCR_r4);
}

void convert_IntraFreqEventCriteria_LCR_r4(const IntraFreqEventCriteria_LCR_r4* src,
                                           umts_intra_freq_event_criteria_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  event_criteria(src, dst, convert_IntraFreqEvent_LCR_r4, convert_ReportingCellStatus);
}

/* Rows 4 and 5 both go to event 1e, rows 7, 8 and 9 copy 16 bits. e1d (4) has no content:
   the decoder leaves its union pointer null, which the row follows only when it is set, so
   e1d converts nothing; e1g (7) copies the 16 bits of its empty union, zero. */
void convert_IntraFreqEvent_LCR_r4(const IntraFreqEvent_LCR_r4* src, umts_intra_freq_event_lcr_r4* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1: if (src->u.e1a != nullptr) convert_Event1a_LCR_r4(src->u.e1a, &dst->u.e1a); break;
    case 2: if (src->u.e1b != nullptr) convert_Event1b_LCR_r4(src->u.e1b, &dst->u.e1b); break;
    case 3: if (src->u.e1c != nullptr) convert_Event1c(src->u.e1c, &dst->u.e1c); break;
    case 4:
    case 5: if (src->u.e1e != nullptr) convert_Event1e(src->u.e1e, &dst->u.e1e); break;
    case 6: if (src->u.e1f != nullptr) convert_Event1f(src->u.e1f, &dst->u.e1f); break;
    case 7:
    case 8:
    case 9: dst->u.e1h = src->u.e1h; break;
    default: break;
  }
}

void convert_Event1a_LCR_r4(const Event1a_LCR_r4* src, umts_event_1a_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  event_1a(src, dst, convert_ForbiddenAffectCellList_LCR_r4);
}

void convert_Event1b_LCR_r4(const Event1b_LCR_r4* src, umts_event_1b_lcr_r4* dst) {
  dst->presence_bitmask = 0;
  event_1b(src, dst, convert_ForbiddenAffectCellList_LCR_r4);
}

void convert_Event1c(const Event1c* src, umts_event_1c* dst) { convert_event_1c(src, dst); }

void convert_Event1e(const Event1e* src, umts_event_1e* dst) { convert_event_1e(src, dst); }

void convert_Event1f(const Event1f* src, umts_event_1f* dst) { convert_event_1f(src, dst); }

/* The value only for the tags 1 to 14, which all hold one. */
void convert_ReportingCellStatus(const ReportingCellStatus* src, umts_reporting_cell_status* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 1 && src->t <= 14) dst->u.withinActiveSet = src->u.withinActiveSet;
}

void convert_ForbiddenAffectCellList_LCR_r4(const ForbiddenAffectCellList_LCR_r4* src,
                                            umts_forbidden_affect_cell_list_lcr_r4* dst) {
  flat_count_list<ForbiddenAffectCell_LCR_r4>(src, dst, convert_ForbiddenAffectCell_LCR_r4);
}

void convert_ForbiddenAffectCell_LCR_r4(const ForbiddenAffectCell_LCR_r4* src, umts_primary_ccpch_info_lcr_r4* dst) {
  convert_PrimaryCCPCH_Info_LCR_r4(&src->tdd, dst);
}
