/*
 * The functions below the top conversions: each copies one decoded value (a record of
 * umts_rrc.h) into its flat record. They take (decoded source, flat destination), return
 * nothing and cannot fail; an optional element present in the source sets its bit in the
 * destination's presence_bitmask, which the caller has zeroed.
 *
 * The top conversions (umts_convert_mib ...) are declared in umts_sib_decoder.h.
 */
#ifndef UMTS_SIB_CONVERT_H
#define UMTS_SIB_CONVERT_H

#include <stdint.h>

#include "umts_rrc.h"
#include "umts_sib_decoder.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== MIB, and the PLMN, scheduling and value-tag records shared by the blocks ========== */

/* PLMN identities. */
void convert_plmn_type(const PLMN_Type* src, umts_plmn_type* dst);
void fill_plmn_identity(const PLMN_Identity* src, umts_plmn_identity* dst);
void fill_plmn_type_gsm_map(const PLMN_Type_gsm_MAP* src, umts_plmn_identity* dst);
void fill_plmn_type_ansi_41(const PLMN_Type_ansi_41* src, umts_plmn_type_ansi_41* dst);
void fill_plmn_type_gsm_map_ansi_41(const PLMN_Type_gsm_MAP_and_ANSI_41* src, umts_plmn_type_gsm_map_ansi_41* dst);
void convert_mcc(const MCC* src, umts_mcc* dst);
void convert_mnc(const MNC* src, umts_mnc* dst);
void convert_plmn_identity_with_optional_mcc_r6(const PLMN_IdentityWithOptionalMCC_r6* src,
                                                umts_plmn_identity_with_optional_mcc_r6* dst);

/* Scheduling of the reference lists; an unknown sib-Pos tag is logged. */
void fill_scheduling_info(const SchedulingInformation* src, umts_scheduling_info* dst);
void fill_scheduling_pos(const SchedulingInformation_scheduling_sib_Pos* src, umts_scheduling_pos* dst);

/* Scheduling of the extension lists, the same copy; an unknown sib-Pos tag is kept silently.
   convert_scheduling_info and convert_scheduling_information both forward to
   convert_scheduling_information_scheduling. */
void convert_scheduling_info(const SchedulingInformation* src, umts_scheduling_info* dst);
void convert_scheduling_information(const SchedulingInformation* src, umts_scheduling_info* dst);
void convert_scheduling_information_scheduling(const SchedulingInformation_scheduling* src, umts_scheduling_info* dst);
void convert_schedulingInformation_scheduling_sib_pos(const SchedulingInformation_scheduling_sib_Pos* src,
                                                      umts_scheduling_pos* dst);
void convert_sib_off_list(const SibOFF_List* src, umts_sib_off_list* dst);

/* Value tags. */
void convert_value_tag_info(const ValueTagInfo* src, umts_value_tag_info* dst);
void convert_sib_occurrence_identity_value_tag(const SIBOccurrenceIdentityAndValueTag* src,
                                               umts_sib_occurrence_identity_and_value_tag* dst);

/* Extension SIB types: the tag of the decoded alternative. */
void convert_sib_type_ext(const SIB_TypeExt* src, uint32_t* dst);
void convert_sib_type_ext2(const SIB_TypeExt2* src, uint32_t* dst);
void convert_sib_type_ext_ganss(const SIB_TypeExtGANSS* src, uint32_t* dst);

/* Extension scheduling lists, shared with the scheduling blocks. */
void convert_ext_sib_type_info_scheduling_info_list(const ExtSIBTypeInfoSchedulingInfo_List* src,
                                                    umts_ext_sib_type_info_scheduling_info_list* dst);
void convert_ext_sib_type_info_scheduling_info_list2(const ExtSIBTypeInfoSchedulingInfo_List2* src,
                                                     umts_ext_sib_type_info_scheduling_info_list2* dst);
void convert_ext_ganss_sib_type_info_scheduling_info_list(const ExtGANSS_SIBTypeInfoSchedulingInfoList* src,
                                                          umts_ext_ganss_sib_type_info_scheduling_info_list* dst);
void convert_ext_ganss_sib_type_info_scheduling_info_ganss_scheduling(
    const ExtGANSS_SIBTypeInfoSchedulingInfo_ganssScheduling* src, umts_ext_ganss_scheduling* dst);

/* The MIB's reference list. */
void convert_sibsb_reference_list(const SIBSb_ReferenceList* src, umts_sibsb_reference_list* dst);
void fill_scheduling_info_sib_sb(const SchedulingInformationSIBSb* src, umts_scheduling_info_sib_sb* dst);
void fill_sib_sb_type(const SIBSb_TypeAndTag* src, umts_sib_sb_type* dst);

/* The MIB's non-critical extensions. */
void decode_mib_v690_nce(const MasterInformationBlock_v690NonCriticalExtensions* src, umts_mib_v690_nce* dst);
void decode_mib_v690ext(const MasterInformationBlock_v690ext* src, umts_mib_v690ext* dst);
void decode_multiple_plmn_list_r6(const MultiplePLMN_List_r6* src, umts_multiple_plmn_list_r6* dst);
void decode_multiple_plmn_list_r6_multiple_plmns(const MultiplePLMN_List_r6_multiplePLMNs* src, umts_multiple_plmns* dst);
void decode_mib_v690_nce_v6b0_nce(const MasterInformationBlock_v690NonCriticalExtensions_v6b0NonCriticalExtensions* src,
                                  umts_mib_v690_nce_v6b0_nce* dst);
void convert_mib_v6b0_ext_ie(const MasterInformationBlock_v6b0ext_IEs* src, umts_mib_v6b0_ext_ie* dst);
void convert_mib_v690_nce_v6b0_nce_v860_nce(
    const MasterInformationBlock_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v860NonCriticalExtensions* src,
    umts_mib_v690_nce_v6b0_nce_v860_nce* dst);
void convert_mib_v860ext_ies(const MasterInformationBlock_v860ext_IEs* src, umts_mib_v860ext_ies* dst);
void convert_mib_v690_nce_v6b0_nce_v860_nce_nce(
    const MasterInformationBlock_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions*
        src,
    uint8_t* dst);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_SIB_CONVERT_H */
