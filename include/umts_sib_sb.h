/*
 * Flat records of the Scheduling blocks SB1 and SB2.
 *
 * Both blocks have the same shape: a reference list of the SIBs they schedule and the
 * v6b0/v860 extensions, whose scheduling lists are the records of the MIB's extensions.
 */
#ifndef UMTS_SIB_SB_H
#define UMTS_SIB_SB_H

#include "umts_sib_common.h"
#include "umts_sib_mib.h"

/* ---- The reference list ---------------------------------------------------------------- */

/* SIB-TypeAndTag: the value tag of the alternative. sysInfoType7 (7), dummy2 (9), dummy3 (10),
   sysInfoType14 (18), sysInfoType17 (21) and spare4 to spare1 (29 to 32) carry none. */
#define umts_sib_type_u_FIELDS(F)                                                       \
  UMTS_SHARED_SIB_TAG_FIELDS(F)                                                         \
  F(SCALAR, uint8_t, sysInfoType15_1, 1, 22, _)                                         \
  F(RECORD, umts_sib_occurrence_identity_and_value_tag, sysInfoType15_2, 1, 23, _)      \
  F(RECORD, umts_sib_occurrence_identity_and_value_tag, sysInfoType15_3, 1, 24, _)      \
  F(SCALAR, uint8_t, sysInfoType15_4, 1, 25, _)                                         \
  F(SCALAR, uint8_t, sysInfoType18, 1, 26, _)                                           \
  F(SCALAR, uint8_t, sysInfoType15_5, 1, 27, _)                                         \
  F(SCALAR, uint8_t, sysInfoType5bis, 1, 28, _)

#define umts_sib_type_FIELDS(F)                         \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_sib_type_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_scheduling_info_sib_FIELDS(F)                      \
  F(RECORD, umts_sib_type, sib_Type, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_scheduling_info, scheduling, 1, UMTS_ALWAYS, _)

#define umts_sib_reference_list_FIELDS(F)                                   \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                              \
  F(ARRAY, umts_scheduling_info_sib, entries, 32, UMTS_ALWAYS, count)

/* ---- Extensions ------------------------------------------------------------------------ */

#define umts_sb_v6b0_ext_FIELDS(F)                                                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_ext_sib_type_info_scheduling_info_list, extSIBTypeInfoSchedulingInfo_List, 1, 0, _)

#define umts_sb_v860_ext_FIELDS(F)                                                                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                      \
  F(RECORD, umts_ext_sib_type_info_scheduling_info_list2, extSIBTypeInfoSchedulingInfo_List, 1, 0, _)           \
  F(RECORD, umts_ext_ganss_sib_type_info_scheduling_info_list, extGANSS_SIBTypeInfoSchedulingInfoList, 1, 1, _)

/* nonCriticalExtensions: an empty sequence, stored as one byte that is always 0. */
#define umts_sb_v860_nc_extensions_FIELDS(F)                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sb_v860_ext, sysInfoTypeSB_v860ext, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, nonCriticalExtensions, 1, 0, _)

#define umts_sb_v6b0_nc_extensions_FIELDS(F)                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sb_v6b0_ext, sysInfoTypeSB_v6b0ext, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sb_v860_nc_extensions, v860NonCriticalExtensions, 1, 0, _)

/* ---- The blocks ------------------------------------------------------------------------ */

#define umts_sb1_info_FIELDS(F)                                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_sib_reference_list, sib_ReferenceList, 1, UMTS_ALWAYS, _)              \
  F(RECORD, umts_sb_v6b0_nc_extensions, v6b0NonCriticalExtensions, 1, 0, _)

#define umts_sb2_info_FIELDS(F)                                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_sib_reference_list, sib_ReferenceList, 1, UMTS_ALWAYS, _)              \
  F(RECORD, umts_sb_v6b0_nc_extensions, v6b0NonCriticalExtensions, 1, 0, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SB_RECORDS(X)                      \
  X(UNION, umts_sib_type_u)                     \
  X(RECORD, umts_sib_type)                      \
  X(RECORD, umts_scheduling_info_sib)           \
  X(RECORD, umts_sib_reference_list)            \
  X(RECORD, umts_sb_v6b0_ext)                   \
  X(RECORD, umts_sb_v860_ext)                   \
  X(RECORD, umts_sb_v860_nc_extensions)         \
  X(RECORD, umts_sb_v6b0_nc_extensions)         \
  X(RECORD, umts_sb1_info)                      \
  X(RECORD, umts_sb2_info)

UMTS_SB_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SB_H */
