/*
 * Helpers shared by the measurement control conversions of SIB11, SIB11bis and SIB12.
 */
#ifndef UMTS_CONVERT_MEAS_H
#define UMTS_CONVERT_MEAS_H

#include <stddef.h>

#include "convert_frame.h"
#include "umts_rrc.h"

namespace umts_meas {

/*
 * A decoded linked list into a count and a fixed array: the count keeps the low 8 bits of
 * the decoded count, and entry i comes from node i through `convert(element, entry)`. The
 * walk stops at the array's bound and at the list's end; the PER size constraint already
 * holds the decoded count within the bound.
 */
template <class Element, class Entry, size_t N, class Convert>
inline void copy_list(const rtxDList* src, uint8_t* count, Entry (&entries)[N], Convert convert) {
  *count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < src->count && i < N && node != nullptr; i++, node = node->next)
    if (node->data != nullptr) convert(static_cast<const Element*>(node->data), &entries[i]);
}

/* Number of entries of a fixed array. */
template <class Entry, size_t N>
constexpr uint32_t bound_of(const Entry (&)[N]) {
  return static_cast<uint32_t>(N);
}

/* The two frequency records of a quality alternative (intraFreqMeasurementSysInfo,
   interFreqMeasurementSysInfo), or the two new-cell lists of SIB11bis's (newIntraFreqCellList,
   newInterFreqCellList): each by its own presence bit, intra first. */
template <class Src, class Dst, class Intra, class Inter>
void both_frequencies(const Src* src, Dst* dst, Intra intra, Inter inter) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, intra, intraFreqMeasurementSysInfo);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, inter, interFreqMeasurementSysInfo);
}

template <class Src, class Dst, class Intra, class Inter>
void both_cell_lists(const Src* src, Dst* dst, Intra intra, Inter inter) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, intra, newIntraFreqCellList);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, inter, newInterFreqCellList);
}

}  // namespace umts_meas

#endif /* UMTS_CONVERT_MEAS_H */
