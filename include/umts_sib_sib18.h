/*
 * Flat records of the System Information Block type 18.
 */
#ifndef UMTS_SIB_SIB18_H
#define UMTS_SIB_SIB18_H

#include "umts_sib_common.h"

/* Fields are added as the conversion of this block lands. */
#define umts_sib18_info_FIELDS(F) F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SIB18_RECORDS(X) \
  X(RECORD, umts_sib18_info)

UMTS_SIB18_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SIB18_H */
