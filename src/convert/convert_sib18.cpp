/*
 * SIB18 (slot 9) into umts_sib18_info: the PLMN identities of the neighbouring cells for
 * idle and connected mode, those for SIB11bis (v6b0) and the multiple PLMNs per cell (v860).
 *
 * Messages print with puts; nothing below the frame reports anything. Lists are walked while
 * the index is below their 8-bit count, and never past their node chain or the flat array.
 */
#include <cstdio>
#include <cstring>

#include "convert_frame.h"
#include "umts_sib_convert.h"
#include "../frame/decoder_state.h"

namespace {

/* SIB18's decoding message has a blank after the colon, unlike its siblings. */
const umts_frame_desc kSib18Frame = {
    umts_sib_sib18, "Decoded SysInfoType18\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib18: asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

template <typename T, size_t N>
constexpr uint32_t bound_of(const T (&)[N]) {
  return static_cast<uint32_t>(N);
}

/* The intra-frequency, inter-frequency and inter-RAT lists: entries of an optional
   PLMN-Identity, each element type of the same shape. */
template <typename Element>
void copy_plmns_of_cells(const rtxDList* src, umts_plmns_of_cells_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < bound_of(dst->entries) && node != nullptr; i++, node = node->next) {
    const Element* element = static_cast<const Element*>(node->data);
    if (element->m & 1u) {
      dst->entries[i].presence_bitmask |= 1u;
      fill_plmn_identity(&element->plmn_Identity, &dst->entries[i].plmn_Identity);
    }
  }
}

/* The PLMNs of one neighbour cell. */
void copy_multiple_plmn_list(const rtxDList* src, umts_multiple_plmn_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  if (dst->count == 0) return;
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < bound_of(dst->entries) && node != nullptr; i++, node = node->next) {
    convert_plmn_identity_with_optional_mcc_r6(static_cast<const PLMN_IdentityWithOptionalMCC_r6*>(node->data),
                                               &dst->entries[i]);
  }
}

/* The intra- and inter-frequency lists of multiple PLMNs, each element with its own copy of
   the PLMN list. */
template <typename Element, void (*CopyPlmns)(const decltype(Element::multiplePLMN_list)*, umts_multiple_plmn_list*)>
void copy_multiple_plmns_of_cells(const rtxDList* src, umts_multiple_plmns_of_cells_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < bound_of(dst->entries) && node != nullptr; i++, node = node->next) {
    const Element* element = static_cast<const Element*>(node->data);
    if (element->m & 1u) {
      dst->entries[i].presence_bitmask |= 1u;
      CopyPlmns(&element->multiplePLMN_list, &dst->entries[i].multiplePLMN_list);
    }
  }
}

}  // namespace

/* ---- The neighbour cell lists ---------------------------------------------------------- */

void convert_plmn_intra_freq_list(const PLMNsOfIntraFreqCellsList* src, umts_plmns_of_cells_list* dst) {
  copy_plmns_of_cells<PLMNsOfIntraFreqCellsList_element>(src, dst);
}

void convert_plmn_inter_freq_list(const PLMNsOfInterFreqCellsList* src, umts_plmns_of_cells_list* dst) {
  copy_plmns_of_cells<PLMNsOfInterFreqCellsList_element>(src, dst);
}

void convert_plmn_inter_rat_list(const PLMNsOfInterRATCellsList* src, umts_plmns_of_cells_list* dst) {
  copy_plmns_of_cells<PLMNsOfInterRATCellsList_element>(src, dst);
}

void convert_plmn_identities_of_neighbour_cells(const PLMNIdentitiesOfNeighbourCells* src,
                                                umts_plmn_identities_of_neighbour_cells* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_plmn_intra_freq_list, plmnsOfIntraFreqCellsList);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_plmn_inter_freq_list, plmnsOfInterFreqCellsList);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_plmn_inter_rat_list, plmnsOfInterRATCellsList);
}

/* ---- Multiple PLMNs of the neighbour cells --------------------------------------------- */

void convert_multiple_plmns_of_intra_freq_cells_list_element_multiple_plmn_list(
    const MultiplePLMNsOfIntraFreqCellsList_element_multiplePLMN_list* src, umts_multiple_plmn_list* dst) {
  copy_multiple_plmn_list(src, dst);
}

void convert_multiple_plmns_of_inter_freq_cells_list_element_multiple_plmn_list(
    const MultiplePLMNsOfInterFreqCellsList_element_multiplePLMN_list* src, umts_multiple_plmn_list* dst) {
  copy_multiple_plmn_list(src, dst);
}

void convert_multiple_plmns_of_intra_freq_cells_list(const MultiplePLMNsOfIntraFreqCellsList* src,
                                                     umts_multiple_plmns_of_cells_list* dst) {
  copy_multiple_plmns_of_cells<MultiplePLMNsOfIntraFreqCellsList_element,
                               convert_multiple_plmns_of_intra_freq_cells_list_element_multiple_plmn_list>(src, dst);
}

void convert_multiple_plmns_of_inter_freq_cells_list(const MultiplePLMNsOfInterFreqCellsList* src,
                                                     umts_multiple_plmns_of_cells_list* dst) {
  copy_multiple_plmns_of_cells<MultiplePLMNsOfInterFreqCellsList_element,
                               convert_multiple_plmns_of_inter_freq_cells_list_element_multiple_plmn_list>(src, dst);
}

void convert_plmn_identities_of_neighbour_cells_v860ext(const PLMNIdentitiesOfNeighbourCells_v860ext* src,
                                                        umts_plmn_identities_of_neighbour_cells_v860ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_multiple_plmns_of_intra_freq_cells_list,
                        multipleplmnsOfIntraFreqCellsList);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_multiple_plmns_of_inter_freq_cells_list,
                        multipleplmnsOfInterFreqCellsList);
}

/* ---- Non-critical extensions ----------------------------------------------------------- */

void convert_sysinfotype18_v860ext(const SysInfoType18_v860ext* src, umts_sysinfotype18_v860ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_plmn_identities_of_neighbour_cells_v860ext, idleModePLMNIdentities);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_plmn_identities_of_neighbour_cells_v860ext, connectedModePLMNIdentities);
}

void convert_sysinfotype18_v6b0_nce_v860_nce_nce(
    const SysInfoType18_v6b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions* src, uint8_t* dst) {
  /* The decoded sequence is empty: its one byte is the zero of the cleared value. */
  std::memcpy(dst, src, 1);
}

void convert_sysinfotype18_v6b0_nce_v860_nce(const SysInfoType18_v6b0NonCriticalExtensions_v860NonCriticalExtensions* src,
                                             umts_sysinfotype18_v860_nce* dst) {
  convert_sysinfotype18_v860ext(&src->sysInfoType18_v860ext, &dst->sysInfoType18_v860ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype18_v6b0_nce_v860_nce_nce, nonCriticalExtensions);
}

void convert_sysinfotype18_v6b0ext(const SysInfoType18_v6b0ext* src, umts_sysinfotype18_v6b0ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_plmn_identities_of_neighbour_cells, idleModePLMNIdentitiesSIB11bis);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_plmn_identities_of_neighbour_cells, connectedModePLMNIdentitiesSIB11bis);
}

namespace {

/* The extensions into a record already zero. */
void fill_cleared_v6b0_nce(const SysInfoType18_v6b0NonCriticalExtensions* value, umts_sysinfotype18_v6b0_nce* record) {
  convert_sysinfotype18_v6b0ext(&value->sysInfoType18_v6b0ext, &record->sysInfoType18_v6b0ext);
  if (value->m & 1u) {
    record->presence_bitmask |= 1u;
    convert_sysinfotype18_v6b0_nce_v860_nce(&value->v860NonCriticalExtensions, &record->v860NonCriticalExtensions);
  }
}

}  // namespace

uint8_t fill_sysinfotype18_v3a0_nce(const SysInfoType18_v6b0NonCriticalExtensions* value,
                                    umts_sysinfotype18_v6b0_nce* record) {
  if (value == nullptr) {
    umts_say("fill_sysinfotype18_v3a0_nce: null value received for p_v6b0NonCriticalExtensions");
    return 0;
  }
  umts_clear_record(record);
  fill_cleared_v6b0_nce(value, record);
  return 1;
}

/* ---- The block ------------------------------------------------------------------------- */

uint8_t umts_convert_sib18(umts_sib18_info* sib18) {
  rtxContext ctx;
  SysInfoType18 decoded;
  if (!umts_frame_open(&ctx, &kSib18Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType18, decoded, kSib18Frame, sib18)) return 0;

  if (decoded.m & 1u) {
    sib18->presence_bitmask |= 1u;
    convert_plmn_identities_of_neighbour_cells(&decoded.idleModePLMNIdentities, &sib18->idleModePLMNIdentities);
  }
  if (decoded.m & 2u) {
    sib18->presence_bitmask |= 2u;
    convert_plmn_identities_of_neighbour_cells(&decoded.connectedModePLMNIdentities, &sib18->connectedModePLMNIdentities);
  }
  if (decoded.m & 4u) {
    sib18->presence_bitmask |= 4u;
    /* The record was cleared with the block's: filled without clearing its 20 KB again. */
    fill_cleared_v6b0_nce(&decoded.v6b0NonCriticalExtensions, &sib18->v6b0NonCriticalExtensions);
  }
  return umts_frame_close(&ctx, &kSib18Frame);
}
