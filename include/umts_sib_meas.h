/*
 * Flat records of the System Information Block types 11, 11bis and 12.
 */
#ifndef UMTS_SIB_MEAS_H
#define UMTS_SIB_MEAS_H

#include "umts_sib_common.h"

/* Fields are added as the conversion of this block lands. */
#define umts_sib11_info_FIELDS(F) F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)

/* Fields are added as the conversion of this block lands. */
#define umts_sib11bis_info_FIELDS(F) F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)

/* Fields are added as the conversion of this block lands. */
#define umts_sib12_info_FIELDS(F) F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_MEAS_RECORDS(X) \
  X(RECORD, umts_sib11_info) \
  X(RECORD, umts_sib11bis_info) \
  X(RECORD, umts_sib12_info)

UMTS_MEAS_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_MEAS_H */
