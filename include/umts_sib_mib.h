/*
 * Flat records of the Master Information Block and its non-critical extensions.
 */
#ifndef UMTS_SIB_MIB_H
#define UMTS_SIB_MIB_H

#include "umts_sib_common.h"

/* ---- v690 ------------------------------------------------------------------------------ */

#define umts_multiple_plmns_FIELDS(F)                                                   \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                          \
  F(ARRAY, umts_plmn_identity_with_optional_mcc_r6, entries, 5, UMTS_ALWAYS, count)

#define umts_multiple_plmn_list_r6_FIELDS(F)                        \
  F(BOOL, uint8_t, mibPLMN_Identity, 1, UMTS_ALWAYS, _)             \
  F(RECORD, umts_multiple_plmns, multiplePLMNs, 1, UMTS_ALWAYS, _)

#define umts_mib_v690ext_FIELDS(F)                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)          \
  F(RECORD, umts_multiple_plmn_list_r6, multiplePLMN_List, 1, 0, _)

/* ---- v6b0 ------------------------------------------------------------------------------ */

/* extensionSIB_Type: the alternative of SIB-TypeExt, as its tag. */
#define umts_ext_sib_type_info_scheduling_info_FIELDS(F)                \
  F(SCALAR, uint32_t, extensionSIB_Type, 1, UMTS_ALWAYS, _)             \
  F(RECORD, umts_scheduling_info, schedulingInfo, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_value_tag_info, valueTagInfo, 1, UMTS_ALWAYS, _)

#define umts_ext_sib_type_info_scheduling_info_list_FIELDS(F)                           \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                          \
  F(ARRAY, umts_ext_sib_type_info_scheduling_info, entries, 32, UMTS_ALWAYS, count)

#define umts_mib_v6b0_ext_ie_FIELDS(F)                                                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_ext_sib_type_info_scheduling_info_list, extSIBTypeInfoSchedulingInfo_List, 1, 0, _)

/* ---- v860 ------------------------------------------------------------------------------ */

/* extensionSIB_Type2: the alternative of SIB-TypeExt2, as its tag. */
#define umts_ext_sib_type_info_scheduling_info2_FIELDS(F)               \
  F(SCALAR, uint32_t, extensionSIB_Type2, 1, UMTS_ALWAYS, _)            \
  F(RECORD, umts_scheduling_info, schedulingInfo, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_value_tag_info, valueTagInfo, 1, UMTS_ALWAYS, _)

#define umts_ext_sib_type_info_scheduling_info_list2_FIELDS(F)                          \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                          \
  F(ARRAY, umts_ext_sib_type_info_scheduling_info2, entries, 32, UMTS_ALWAYS, count)

/* extensionGANSS_SIBType: the alternative of SIB-TypeExtGANSS, as its tag. */
#define umts_ext_ganss_scheduling_info_FIELDS(F)                        \
  F(SCALAR, uint32_t, extensionGANSS_SIBType, 1, UMTS_ALWAYS, _)        \
  F(RECORD, umts_scheduling_info, schedulingInfo, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_value_tag_info, valueTagInfo, 1, UMTS_ALWAYS, _)

#define umts_ext_ganss_scheduling_FIELDS(F)                                     \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                  \
  F(ARRAY, umts_ext_ganss_scheduling_info, entries, 32, UMTS_ALWAYS, count)

/* sbasID: the UE-Positioning-GANSS-SBAS-ID ordinal. */
#define umts_ext_ganss_sib_type_info_scheduling_info_FIELDS(F)                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(SCALAR, uint8_t, ganssID, 1, 0, _)                                          \
  F(SCALAR, uint32_t, sbasID, 1, 1, _)                                          \
  F(RECORD, umts_ext_ganss_scheduling, ganssScheduling, 1, UMTS_ALWAYS, _)

#define umts_ext_ganss_sib_type_info_scheduling_info_list_FIELDS(F)                             \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                                  \
  F(ARRAY, umts_ext_ganss_sib_type_info_scheduling_info, entries, 8, UMTS_ALWAYS, count)

/* csg_Indicator: the ordinal of ENUMERATED { true }. */
#define umts_mib_v860ext_ies_FIELDS(F)                                                                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                      \
  F(RECORD, umts_ext_sib_type_info_scheduling_info_list2, extSIBTypeInfoSchedulingInfo_List, 1, 0, _)           \
  F(RECORD, umts_ext_ganss_sib_type_info_scheduling_info_list, extGANSS_SIBTypeInfoSchedulingInfoList, 1, 1, _) \
  F(SCALAR, uint32_t, csg_Indicator, 1, 2, _)

/* nonCriticalExtensions: an empty sequence, stored as one byte that is always 0. */
#define umts_mib_v690_nce_v6b0_nce_v860_nce_FIELDS(F)                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_mib_v860ext_ies, masterInformationBlock_v860ext, 1, UMTS_ALWAYS, _)            \
  F(SCALAR, uint8_t, nonCriticalExtensions, 1, 0, _)

#define umts_mib_v690_nce_v6b0_nce_FIELDS(F)                                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_mib_v6b0_ext_ie, masterInformationBlock_v6b0ext, 1, UMTS_ALWAYS, _)            \
  F(RECORD, umts_mib_v690_nce_v6b0_nce_v860_nce, v860NonCriticalExtensions, 1, 0, _)

#define umts_mib_v690_nce_FIELDS(F)                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_mib_v690ext, masterInformationBlock_v690ext, 1, UMTS_ALWAYS, _)        \
  F(RECORD, umts_mib_v690_nce_v6b0_nce, v6b0NonCriticalExtensions, 1, 0, _)

/* ---- The block ------------------------------------------------------------------------- */

#define umts_mib_info_FIELDS(F)                                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(SCALAR, uint8_t, mib_ValueTag, 1, UMTS_ALWAYS, _)                           \
  F(RECORD, umts_plmn_type, plmn_Type, 1, UMTS_ALWAYS, _)                       \
  F(RECORD, umts_sibsb_reference_list, sibSb_ReferenceList, 1, UMTS_ALWAYS, _)  \
  F(RECORD, umts_mib_v690_nce, v690NonCriticalExtensions, 1, 0, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_MIB_RECORDS(X)                                     \
  X(RECORD, umts_multiple_plmns)                                \
  X(RECORD, umts_multiple_plmn_list_r6)                         \
  X(RECORD, umts_mib_v690ext)                                   \
  X(RECORD, umts_ext_sib_type_info_scheduling_info)             \
  X(RECORD, umts_ext_sib_type_info_scheduling_info_list)        \
  X(RECORD, umts_mib_v6b0_ext_ie)                               \
  X(RECORD, umts_ext_sib_type_info_scheduling_info2)            \
  X(RECORD, umts_ext_sib_type_info_scheduling_info_list2)       \
  X(RECORD, umts_ext_ganss_scheduling_info)                     \
  X(RECORD, umts_ext_ganss_scheduling)                          \
  X(RECORD, umts_ext_ganss_sib_type_info_scheduling_info)       \
  X(RECORD, umts_ext_ganss_sib_type_info_scheduling_info_list)  \
  X(RECORD, umts_mib_v860ext_ies)                               \
  X(RECORD, umts_mib_v690_nce_v6b0_nce_v860_nce)                \
  X(RECORD, umts_mib_v690_nce_v6b0_nce)                         \
  X(RECORD, umts_mib_v690_nce)                                  \
  X(RECORD, umts_mib_info)

UMTS_MIB_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_MIB_H */
