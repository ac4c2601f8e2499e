/*
 * Flat records of the System Information Block types 2 and 7.
 */
#ifndef UMTS_SIB_SIB2_SIB7_H
#define UMTS_SIB_SIB2_SIB7_H

#include "umts_sib_common.h"

/* Fields are added as the conversion of this block lands. */
#define umts_sib2_info_FIELDS(F) F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)

/* Fields are added as the conversion of this block lands. */
#define umts_sib7_info_FIELDS(F) F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SIB2_SIB7_RECORDS(X) \
  X(RECORD, umts_sib2_info) \
  X(RECORD, umts_sib7_info)

UMTS_SIB2_SIB7_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SIB2_SIB7_H */
