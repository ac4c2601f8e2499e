/*
 * Flat records of the Scheduling blocks SB1 and SB2.
 */
#ifndef UMTS_SIB_SB_H
#define UMTS_SIB_SB_H

#include "umts_sib_common.h"

/* Fields are added as the conversion of this block lands. */
#define umts_sb1_info_FIELDS(F) F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)

/* Fields are added as the conversion of this block lands. */
#define umts_sb2_info_FIELDS(F) F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SB_RECORDS(X) \
  X(RECORD, umts_sb1_info) \
  X(RECORD, umts_sb2_info)

UMTS_SB_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SB_H */
