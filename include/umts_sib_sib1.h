/*
 * Flat records of the System Information Block type 1.
 */
#ifndef UMTS_SIB_SIB1_H
#define UMTS_SIB_SIB1_H

#include "umts_sib_common.h"

/* Fields are added as the conversion of this block lands. */
#define umts_sib1_info_FIELDS(F) F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SIB1_RECORDS(X) \
  X(RECORD, umts_sib1_info)

UMTS_SIB1_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SIB1_H */
