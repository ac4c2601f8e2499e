/*
 * Flat records of the System Information Block types 2 and 7.
 */
#ifndef UMTS_SIB_SIB2_SIB7_H
#define UMTS_SIB_SIB2_SIB7_H

#include "umts_sib_common.h"

/* ---- SIB2: URA identities -------------------------------------------------------------- */

/* URA-Identity: a 16-bit string, kept as the decoder holds it: its bit count and octets. */
#define umts_ura_identity_FIELDS(F)                     \
  F(SCALAR, uint32_t, numbits, 1, UMTS_ALWAYS, _)       \
  F(BYTES, uint8_t, data, 4, UMTS_ALWAYS, _)

/* `count` is the decoded count narrowed to 16 bits. */
#define umts_ura_identity_list_FIELDS(F)                        \
  F(SCALAR, uint16_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, umts_ura_identity, entries, 8, UMTS_ALWAYS, count)

/* nonCriticalExtensions: an empty sequence, stored as one byte that is always 0. */
#define umts_sib2_info_FIELDS(F)                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_ura_identity_list, ura_IdentityList, 1, UMTS_ALWAYS, _)        \
  F(SCALAR, uint8_t, nonCriticalExtensions, 1, 0, _)

/* ---- SIB7: uplink interference and dynamic persistence --------------------------------- */

/* modeSpecificInfo: 1 fdd, with the UL-Interference in dBm (-110..-70); 2 tdd, no member. */
#define umts_sysinfotype7_modespecificinfo_u_FIELDS(F)  \
  F(SCALAR, int8_t, ul_Interference, 1, 1, _)

#define umts_sysinfotype7_modespecificinfo_FIELDS(F)    \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_sysinfotype7_modespecificinfo_u, u, 1, UMTS_ALWAYS, choice_tag)

/* One DynamicPersistenceLevel (1..8) per PRACH. */
#define umts_dynamic_persistence_level_list_FIELDS(F)   \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)         \
  F(ARRAY, uint8_t, entries, 16, UMTS_ALWAYS, count)

/* nonCriticalExtensions: an empty sequence, stored as one byte that is always 0. */
#define umts_sib7_info_FIELDS(F)                                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_sysinfotype7_modespecificinfo, modeSpecificInfo, 1, UMTS_ALWAYS, _)            \
  F(RECORD, umts_dynamic_persistence_level_list, prach_Information_SIB5_List, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_dynamic_persistence_level_list, prach_Information_SIB6_List, 1, 0, _)          \
  F(SCALAR, uint8_t, expirationTimeFactor, 1, 1, _)                                             \
  F(SCALAR, uint8_t, nonCriticalExtensions, 1, 2, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SIB2_SIB7_RECORDS(X)                       \
  X(RECORD, umts_ura_identity)                          \
  X(RECORD, umts_ura_identity_list)                     \
  X(RECORD, umts_sib2_info)                             \
  X(UNION, umts_sysinfotype7_modespecificinfo_u)        \
  X(RECORD, umts_sysinfotype7_modespecificinfo)         \
  X(RECORD, umts_dynamic_persistence_level_list)        \
  X(RECORD, umts_sib7_info)

UMTS_SIB2_SIB7_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SIB2_SIB7_H */
