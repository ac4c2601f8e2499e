/*
 * The descriptions of every flat record of the library, expanded from the headers' field
 * lists.
 */
#include "umts_record_desc_define.h"

UMTS_ALL_RECORDS(UMTS_DESC_DECLARE)
UMTS_ALL_RECORDS(UMTS_DESC_DEFINE)

#define UMTS_DESCRIBE_DEF(kind, name) \
  const umts_record_desc* describe_##name(void) { return &umts_desc_##name; }
UMTS_ALL_RECORDS(UMTS_DESCRIBE_DEF)
#undef UMTS_DESCRIBE_DEF

const umts_record_desc* const* umts_all_record_descs(size_t* count) {
#define UMTS_DESC_ADDR(kind, name) &umts_desc_##name,
  static const umts_record_desc* const all[] = {UMTS_ALL_RECORDS(UMTS_DESC_ADDR)};
#undef UMTS_DESC_ADDR
  if (count != nullptr) *count = sizeof all / sizeof all[0];
  return all;
}
