/*
 * Lists and bit strings of the channel records (SIB5 and the blocks that reuse its records).
 *
 * A decoded SEQUENCE OF is a linked list with a 32-bit count; its flat form is a count of the
 * record's own width and an array at the schema's bound. The walk follows the decoder's
 * count and nodes, and never passes the array: the PER size constraint has already held the
 * count to the bound, so nothing is lost. A count of 256 in an 8-bit field reads 0 while all
 * 256 entries are written.
 */
#ifndef UMTS_CONVERT_LIST_H
#define UMTS_CONVERT_LIST_H

#include <string.h>

#include "umts_rrc.h"

#ifdef __cplusplus
/* Calls fn(entry, index) for each element of `list`, at most `bound` of them. */
template <class Entry, class Fn>
inline void umts_for_each_node(const rtxDList* list, uint32_t bound, Fn fn) {
  uint32_t i = 0;
  for (const rtxDListNode* node = list->head; node != nullptr && i < list->count && i < bound; node = node->next, i++)
    fn(static_cast<const Entry*>(node->data), i);
}

/* A bit string of up to 32 bits. The copy is told `numbits` as its number of octets; it is
   held to the field's four octets. Where it ran on over the members stored after the field,
   those are stored afterwards in every case and hold their own values; what it left beyond
   the enclosing member is not the cell's and is not written. */
template <class Src, class Dst>
inline void umts_copy_bit_string(const Src& src, Dst* dst) {
  dst->numbits = src.numbits;
  memcpy(dst->data, src.data, src.numbits < sizeof dst->data ? src.numbits : sizeof dst->data);
}
#endif

#endif /* UMTS_CONVERT_LIST_H */
