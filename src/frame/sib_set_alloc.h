/*
 * Clearing of large records, inside the library: see sib_set_alloc.cpp.
 */
#ifndef UMTS_SIB_SET_ALLOC_H
#define UMTS_SIB_SET_ALLOC_H

#include <stddef.h>

/* Leaves `size` bytes at `record` zero: by handing whole pages back to the system when the
   record lies in a set of umts_sib_set_alloc, by writing zeros otherwise. */
__attribute__((visibility("hidden"))) void umts_clear_record(void* record, size_t size);

#endif /* UMTS_SIB_SET_ALLOC_H */
