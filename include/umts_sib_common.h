/*
 * Flat records shared by several blocks: PLMN identities, scheduling, value tags and the
 * primary CCPCH.
 *
 * Values are copied as the decoder delivers them: enumerated values as their 32-bit
 * ordinals, the ansi-41 bit strings as their raw octets. A choice is its `choice_tag`
 * (alternative counted from 1 in the order of TS 25.331) and the union `u` of the
 * alternatives that carry a value; an alternative without a member leaves `u` zero.
 */
#ifndef UMTS_SIB_COMMON_H
#define UMTS_SIB_COMMON_H

#include "umts_sib_record_macros.h"

/* ---- PLMN identities ------------------------------------------------------------------- */

/* Mobile country code: `count` digits of 0..9. */
#define umts_mcc_FIELDS(F)                              \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)         \
  F(ARRAY, uint8_t, digits, 3, UMTS_ALWAYS, count)

/* Mobile network code: 2 or 3 digits. */
#define umts_mnc_FIELDS(F)                              \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)         \
  F(ARRAY, uint8_t, digits, 3, UMTS_ALWAYS, count)

#define umts_plmn_identity_FIELDS(F)                    \
  F(RECORD, umts_mcc, mcc, 1, UMTS_ALWAYS, _)           \
  F(RECORD, umts_mnc, mnc, 1, UMTS_ALWAYS, _)

/* p_REV and min_P_REV are the octets of 8-bit strings; sid (15 bits) and nid (16 bits) are
   their two octets as one 16-bit word in memory order, unswapped. */
#define umts_plmn_type_ansi_41_FIELDS(F)                \
  F(SCALAR, uint8_t, p_REV, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint8_t, min_P_REV, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint16_t, sid, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint16_t, nid, 1, UMTS_ALWAYS, _)

#define umts_plmn_type_gsm_map_ansi_41_FIELDS(F)                \
  F(RECORD, umts_plmn_identity, plmn_Identity, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, p_REV, 1, UMTS_ALWAYS, _)                  \
  F(SCALAR, uint8_t, min_P_REV, 1, UMTS_ALWAYS, _)              \
  F(SCALAR, uint16_t, sid, 1, UMTS_ALWAYS, _)                   \
  F(SCALAR, uint16_t, nid, 1, UMTS_ALWAYS, _)

#define umts_plmn_identity_with_optional_mcc_r6_FIELDS(F)  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_mcc, mcc, 1, 0, _)                        \
  F(RECORD, umts_mnc, mnc, 1, UMTS_ALWAYS, _)

/* PLMN-Type: 1 gsm-MAP, 2 ansi-41, 3 gsm-MAP-and-ANSI-41, 4 spare (no member). */
#define umts_plmn_type_u_FIELDS(F)                                   \
  F(RECORD, umts_plmn_identity, gsm_MAP, 1, 1, _)                    \
  F(RECORD, umts_plmn_type_ansi_41, ansi_41, 1, 2, _)                \
  F(RECORD, umts_plmn_type_gsm_map_ansi_41, gsm_MAP_and_ANSI_41, 1, 3, _)

#define umts_plmn_type_FIELDS(F)                        \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_plmn_type_u, u, 1, UMTS_ALWAYS, choice_tag)

/* ---- Scheduling ------------------------------------------------------------------------ */

/* sib-Pos: the repetition period is the alternative, the value the position. */
#define umts_scheduling_pos_u_FIELDS(F)         \
  F(SCALAR, uint8_t, rep4, 1, 1, _)             \
  F(SCALAR, uint8_t, rep8, 1, 2, _)             \
  F(SCALAR, uint8_t, rep16, 1, 3, _)            \
  F(SCALAR, uint8_t, rep32, 1, 4, _)            \
  F(SCALAR, uint8_t, rep64, 1, 5, _)            \
  F(SCALAR, uint8_t, rep128, 1, 6, _)           \
  F(SCALAR, uint8_t, rep256, 1, 7, _)           \
  F(SCALAR, uint8_t, rep512, 1, 8, _)           \
  F(SCALAR, uint16_t, rep1024, 1, 9, _)         \
  F(SCALAR, uint16_t, rep2048, 1, 10, _)        \
  F(SCALAR, uint16_t, rep4096, 1, 11, _)

#define umts_scheduling_pos_FIELDS(F)                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_scheduling_pos_u, u, 1, UMTS_ALWAYS, choice_tag)

/* SibOFF-List: each entry a SibOFF ordinal. */
#define umts_sib_off_list_FIELDS(F)                     \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)         \
  F(ARRAY, uint32_t, entries, 15, UMTS_ALWAYS, count)

#define umts_scheduling_info_FIELDS(F)                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)   \
  F(SCALAR, uint8_t, segCount, 1, UMTS_ALWAYS, _)            \
  F(RECORD, umts_scheduling_pos, sib_Pos, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_sib_off_list, sib_PosOffsetInfo, 1, 0, _)

/* The two octets of SIBOccurrenceIdentityAndValueTag. */
#define umts_sib_occurrence_identity_and_value_tag_FIELDS(F) \
  F(SCALAR, uint8_t, sibOccurIdentity, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint8_t, sibOccurValueTag, 1, UMTS_ALWAYS, _)

/* The two octets of PredefinedConfigIdentityAndValueTag. */
#define umts_predefined_config_identity_and_value_tag_FIELDS(F) \
  F(SCALAR, uint8_t, predefinedConfigIdentity, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, predefinedConfigValueTag, 1, UMTS_ALWAYS, _)

/* The first twenty alternatives of SIB-TypeAndTag and SIBSb-TypeAndTag, which both share:
   those with a value. */
#define UMTS_SHARED_SIB_TAG_FIELDS(F)                                                   \
  F(SCALAR, uint16_t, sysInfoType1, 1, 1, _)                                            \
  F(SCALAR, uint8_t, sysInfoType2, 1, 2, _)                                             \
  F(SCALAR, uint8_t, sysInfoType3, 1, 3, _)                                             \
  F(SCALAR, uint8_t, sysInfoType4, 1, 4, _)                                             \
  F(SCALAR, uint8_t, sysInfoType5, 1, 5, _)                                             \
  F(SCALAR, uint8_t, sysInfoType6, 1, 6, _)                                             \
  F(SCALAR, uint8_t, dummy, 1, 8, _)                                                    \
  F(SCALAR, uint8_t, sysInfoType11, 1, 11, _)                                           \
  F(SCALAR, uint8_t, sysInfoType12, 1, 12, _)                                           \
  F(SCALAR, uint8_t, sysInfoType13, 1, 13, _)                                           \
  F(SCALAR, uint8_t, sysInfoType13_1, 1, 14, _)                                         \
  F(SCALAR, uint8_t, sysInfoType13_2, 1, 15, _)                                         \
  F(SCALAR, uint8_t, sysInfoType13_3, 1, 16, _)                                         \
  F(SCALAR, uint8_t, sysInfoType13_4, 1, 17, _)                                         \
  F(SCALAR, uint8_t, sysInfoType15, 1, 19, _)                                           \
  F(RECORD, umts_predefined_config_identity_and_value_tag, sysInfoType16, 1, 20, _)

/* SIBSb-TypeAndTag: the value tag of the alternative. sysInfoType7 (7), dummy2 (9),
   dummy3 (10), sysInfoType14 (18), sysInfoType17 (21), spare2 (31) and spare1 (32) carry
   none. */
#define umts_sib_sb_type_u_FIELDS(F)                                                    \
  UMTS_SHARED_SIB_TAG_FIELDS(F)                                                         \
  F(SCALAR, uint8_t, sysInfoTypeSB1, 1, 22, _)                                          \
  F(SCALAR, uint8_t, sysInfoTypeSB2, 1, 23, _)                                          \
  F(SCALAR, uint8_t, sysInfoType15_1, 1, 24, _)                                         \
  F(RECORD, umts_sib_occurrence_identity_and_value_tag, sysInfoType15_2, 1, 25, _)      \
  F(RECORD, umts_sib_occurrence_identity_and_value_tag, sysInfoType15_3, 1, 26, _)      \
  F(SCALAR, uint8_t, sysInfoType15_4, 1, 27, _)                                         \
  F(SCALAR, uint8_t, sysInfoType18, 1, 28, _)                                           \
  F(SCALAR, uint8_t, sysInfoType15_5, 1, 29, _)                                         \
  F(SCALAR, uint8_t, sysInfoType5bis, 1, 30, _)

#define umts_sib_sb_type_FIELDS(F)                      \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_sib_sb_type_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_scheduling_info_sib_sb_FIELDS(F)                   \
  F(RECORD, umts_sib_sb_type, sibSb_Type, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_scheduling_info, scheduling, 1, UMTS_ALWAYS, _)

#define umts_sibsb_reference_list_FIELDS(F)                                 \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                              \
  F(ARRAY, umts_scheduling_info_sib_sb, entries, 32, UMTS_ALWAYS, count)

/* ---- Value tags ------------------------------------------------------------------------ */

/* ValueTagInfo: 1 none (no member), 2 cellValueTag, 3 plmn-ValueTag,
   4 sIBOccurrenceIdentityAndValueTag. */
#define umts_value_tag_info_u_FIELDS(F)                                                          \
  F(SCALAR, uint8_t, cellValueTag, 1, 2, _)                                                      \
  F(SCALAR, uint16_t, plmn_ValueTag, 1, 3, _)                                                    \
  F(RECORD, umts_sib_occurrence_identity_and_value_tag, sIBOccurrenceIdentityAndValueTag, 1, 4, _)

#define umts_value_tag_info_FIELDS(F)                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_value_tag_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* ---- Primary CCPCH --------------------------------------------------------------------- */

/* PrimaryCCPCH-Info, shared by SIB5 and the measurement records. */
#define umts_primary_ccpch_info_fdd_FIELDS(F)           \
  F(BOOL, uint8_t, tx_DiversityIndicator, 1, UMTS_ALWAYS, _)

/* syncCase: 1 syncCase1 (timeslot), 2 syncCase2 (timeslotSync2), both in the one byte. */
#define umts_primary_ccpch_sync_case_u_FIELDS(F)        \
  F(SCALAR, uint8_t, timeslot, 1, 1, _)                 \
  F(SCALAR, uint8_t, timeslotSync2, 1, 2, _)

#define umts_primary_ccpch_sync_case_FIELDS(F)          \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_primary_ccpch_sync_case_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_primary_ccpch_info_tdd_FIELDS(F)                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)            \
  F(RECORD, umts_primary_ccpch_sync_case, syncCase, 1, 0, _)          \
  F(SCALAR, uint8_t, cellParametersID, 1, 1, _)                       \
  F(BOOL, uint8_t, sctd_Indicator, 1, UMTS_ALWAYS, _)

/* PrimaryCCPCH-Info: 1 fdd, 2 tdd. */
#define umts_primary_ccpch_info_u_FIELDS(F)                       \
  F(RECORD, umts_primary_ccpch_info_fdd, fdd, 1, 1, _)            \
  F(RECORD, umts_primary_ccpch_info_tdd, tdd, 1, 2, _)

#define umts_primary_ccpch_info_FIELDS(F)               \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_primary_ccpch_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* Every record of this header, each after the records it holds. */
#define UMTS_COMMON_RECORDS(X)                              \
  X(RECORD, umts_mcc)                                       \
  X(RECORD, umts_mnc)                                       \
  X(RECORD, umts_plmn_identity)                             \
  X(RECORD, umts_plmn_type_ansi_41)                         \
  X(RECORD, umts_plmn_type_gsm_map_ansi_41)                 \
  X(RECORD, umts_plmn_identity_with_optional_mcc_r6)        \
  X(UNION, umts_plmn_type_u)                                \
  X(RECORD, umts_plmn_type)                                 \
  X(UNION, umts_scheduling_pos_u)                           \
  X(RECORD, umts_scheduling_pos)                            \
  X(RECORD, umts_sib_off_list)                              \
  X(RECORD, umts_scheduling_info)                           \
  X(RECORD, umts_sib_occurrence_identity_and_value_tag)     \
  X(RECORD, umts_predefined_config_identity_and_value_tag)  \
  X(UNION, umts_sib_sb_type_u)                              \
  X(RECORD, umts_sib_sb_type)                               \
  X(RECORD, umts_scheduling_info_sib_sb)                    \
  X(RECORD, umts_sibsb_reference_list)                      \
  X(UNION, umts_value_tag_info_u)                           \
  X(RECORD, umts_value_tag_info)                            \
  X(RECORD, umts_primary_ccpch_info_fdd)                    \
  X(UNION, umts_primary_ccpch_sync_case_u)                  \
  X(RECORD, umts_primary_ccpch_sync_case)                   \
  X(RECORD, umts_primary_ccpch_info_tdd)                    \
  X(UNION, umts_primary_ccpch_info_u)                       \
  X(RECORD, umts_primary_ccpch_info)

UMTS_COMMON_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_COMMON_H */
