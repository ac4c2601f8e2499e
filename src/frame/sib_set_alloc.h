/*
 * Clearing of large records, inside the library: see sib_set_alloc.cpp.
 */
#ifndef UMTS_SIB_SET_ALLOC_H
#define UMTS_SIB_SET_ALLOC_H

#include <stddef.h>

#include "umts_record_desc.h"

/* Leaves the record at `record`, described by `desc`, zero: in a set of umts_sib_set_alloc by
   clearing what the conversions wrote there, elsewhere by writing zeros over all of it. */
__attribute__((visibility("hidden"))) void umts_clear_record(void* record, const umts_record_desc* desc);

/* The same, the description chosen by the record's type. */
template <class Record>
inline void umts_clear_record(Record* record) {
  umts_clear_record(record, umts_desc_of(record));
}

#endif /* UMTS_SIB_SET_ALLOC_H */
