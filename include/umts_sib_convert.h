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

/* PrimaryCCPCH-Info, shared by SIB5 and the measurement records. An unknown tag is kept with
   an empty union. */
void convert_primary_ccpch_info(const PrimaryCCPCH_Info* src, umts_primary_ccpch_info* dst);

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

/* ==== SB1 and SB2 ========================================================================= */

/* The reference list of both blocks; a tag without a value is printed, not logged. */
void convert_sib_reference_list(const SIB_ReferenceList* src, umts_sib_reference_list* dst);
void fill_scheduling_info_sib(const SchedulingInformationSIB* src, umts_scheduling_info_sib* dst);
void fill_sib_type(const SIB_TypeAndTag* src, umts_sib_type* dst);

/* SB1's non-critical extensions. */
void convert_sysinfotypesb1_v6b0_nc_extensions(const SysInfoTypeSB1_v6b0NonCriticalExtensions* src,
                                               umts_sb_v6b0_nc_extensions* dst);
void convert_sysinfotypesb1_v6b0_ext(const SysInfoTypeSB1_v6b0ext* src, umts_sb_v6b0_ext* dst);
void convert_sysinfotypesb1_v6b0_nc_extensions_v860_nc_extensions(
    const SysInfoTypeSB1_v6b0NonCriticalExtensions_v860NonCriticalExtensions* src, umts_sb_v860_nc_extensions* dst);
void convert_sysinfotypesb1_v860_ext(const SysInfoTypeSB1_v860ext* src, umts_sb_v860_ext* dst);
void convert_sysinfotypesb1_v6b0_nc_extensions_v860_nc_extensions_nc_extensions(
    const SysInfoTypeSB1_v6b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions* src,
    uint8_t* dst);

/* SB2's non-critical extensions. */
void convert_sysinfotypesb2_v6b0_nc_extensions(const SysInfoTypeSB2_v6b0NonCriticalExtensions* src,
                                               umts_sb_v6b0_nc_extensions* dst);
void convert_sysinfotypesb2_v6b0_ext(const SysInfoTypeSB2_v6b0ext* src, umts_sb_v6b0_ext* dst);
void convert_sysinfotypesb2_v6b0_nc_extensions_v860_nc_extensions(
    const SysInfoTypeSB2_v6b0NonCriticalExtensions_v860NonCriticalExtensions* src, umts_sb_v860_nc_extensions* dst);
void convert_sysinfotypesb2_v860_ext(const SysInfoTypeSB2_v860ext* src, umts_sb_v860_ext* dst);
void convert_sysinfotypesb2_v6b0_nc_extensions_v860_nc_extensions_nc_extensions(
    const SysInfoTypeSB2_v6b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions* src,
    uint8_t* dst);

/* ==== SIB1 ================================================================================ */

/* NAS system information. The ANSI-41 parameter's count is its number of bits; that many of
   its octets are kept, at most the 256 of the record. */
void convert_nas_system_gsm_map_info(const NAS_SystemInformationGSM_MAP* src, umts_nas_system_gsm_map_info* dst);
void convert_nas_system_ansi_41_info(const NAS_SystemInformationANSI_41* src, umts_nas_system_ansi_41_info* dst);
void convert_cn_domainsysinfo_cn_type(const CN_DomainSysInfo_cn_Type* src, umts_cn_domain_sysinfo_cn_type* dst);
void convert_cn_domain_sysinfo_list(const CN_DomainSysInfoList* src, umts_cn_domain_sysinfo_list* dst);

/* SIB1's non-critical extensions; the record is zeroed first. */
void fill_sysinfotype1_v3a0_nce(const SysInfoType1_v3a0NonCriticalExtensions* src, umts_sysinfotype1_v3a0_nce* dst);

/* ==== SIB2 and SIB7 ======================================================================= */

/* The empty nonCriticalExtensions of SIB2: its one byte, 0. */
void convert_sysinfotype2_non_critical_extensions(const SysInfoType2_nonCriticalExtensions* src, uint8_t* dst);
void convert_sysinfotype7_modespecificinfo(const SysInfoType7_modeSpecificInfo* src,
                                           umts_sysinfotype7_modespecificinfo* dst);
void convert_sysinfotype7_modespecificinfo_fdd(const SysInfoType7_modeSpecificInfo_fdd* src, int8_t* ul_Interference);
void convert_dynamic_persistencelevel_list(const DynamicPersistenceLevelList* src,
                                           umts_dynamic_persistence_level_list* dst);

/* ==== SIB3 ================================================================================ */

/* Cell selection and reselection. */
void convert_cell_select_reselect_infoSIB_3_4(const CellSelectReselectInfoSIB_3_4* src,
                                              umts_cell_select_reselect_info_sib_3_4* dst);
void convert_mapping_info(const MappingInfo* src, umts_mapping_info* dst);
void convert_mapping_function_parameter_list(const MappingFunctionParameterList* src,
                                             umts_mapping_function_parameter_list* dst);
void convert_mapping_lcr_r4(const Mapping_LCR_r4* src, umts_mapping_function_parameter_list* dst);
void convert_call_select_reselect_infoSIB3_4_cell_select_quality_measure(
    const CellSelectReselectInfoSIB_3_4_cellSelectQualityMeasure* src, umts_cell_select_quality_measure* dst);
void convert_call_select_reselect_infoSIB3_4_cell_select_quality_measure_cpich_Ec_N0(
    const CellSelectReselectInfoSIB_3_4_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_cell_select_quality_measure_cpich_ec_n0* dst);
void convert_call_select_reselect_infoSIB3_4_mode_specific_info(const CellSelectReselectInfoSIB_3_4_modeSpecificInfo* src,
                                                                umts_sib3_mode_specific_info* dst);
void convert_call_select_reselect_infoSIB3_4_mode_specific_info_fdd(
    const CellSelectReselectInfoSIB_3_4_modeSpecificInfo_fdd* src, umts_sib3_fdd_info* dst);
void convert_call_select_reselect_infoSIB3_4_mode_specific_info_tdd(
    const CellSelectReselectInfoSIB_3_4_modeSpecificInfo_tdd* src, umts_sib3_tdd_info* dst);
void convert_rat_fdd_info_list(const RAT_FDD_InfoList* src, umts_rat_info_list* dst);
void convert_rat_tdd_info_list(const RAT_TDD_InfoList* src, umts_rat_info_list* dst);
void convert_hsc_serving_cell_information(const HCS_ServingCellInformation* src, umts_hcs_serving_cell_information* dst);
void convert_T_cr_max(const T_CRMax* src, umts_t_cr_max* dst);

/* Access restriction. */
void convert_cell_access_restriction(const CellAccessRestriction* src, umts_cell_access_restriction* dst);
void convert_call_barred(const CellBarred* src, umts_cell_barred* dst);
void convert_callBarred_barred(const CellBarred_barred* src, umts_cell_barred_barred* dst);
void convert_access_class_barred_list(const AccessClassBarredList* src, umts_access_class_barred_list* dst);

/* The levels of the extension chain: each converts its own extension, then the next level
   when that is present. */
void convert_sysinfotype3_v4b0_nc_extensions(const SysInfoType3_v4b0NonCriticalExtensions* src, umts_sib3_v4b0_nce* dst);
void convert_sysinfotype3_v4b0nces_v590nce(const SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension* src,
                                           umts_sib3_v590_nce* dst);
void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce(
    const SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension* src,
    umts_sib3_v5c0_nce* dst);
void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce(
    const SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension*
        src,
    umts_sib3_v670_nce* dst);
void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce(
    const SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension*
        src,
    umts_sib3_v770_nce* dst);
void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce(
    const SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension*
        src,
    umts_sib3_v830_nce* dst);
void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce(
    const SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension_v860NonCriticalExtension*
        src,
    umts_sib3_v860_nce* dst);
void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce_v870nce(
    const SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension_v860NonCriticalExtension_v870NonCriticalExtension*
        src,
    umts_sib3_v870_nce* dst);
void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce_v870nce_v900nce(
    const SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension_v860NonCriticalExtension_v870NonCriticalExtension_v900NonCriticalExtension*
        src,
    umts_sib3_v900_nce* dst);
void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce_v870nce_v900nce_nce(
    const SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension_v860NonCriticalExtension_v870NonCriticalExtension_v900NonCriticalExtension_nonCriticalExtensions*
        src,
    uint8_t* dst);

/* The extensions of the levels. */
void convert_sysinfotype3_v4b0ext_ies_t(const SysInfoType3_v4b0ext_IEs* src, umts_sib3_v4b0ext* dst);
void convert_sysinfotype3_v590ext(const SysInfoType3_v590ext* src, umts_sib3_v590ext* dst);
void convert_sysinfotype3_v5c0ext_ies(const SysInfoType3_v5c0ext_IEs* src, umts_sib3_v5c0ext* dst);
void convert_sysinfotype3_v670ext(const SysInfoType3_v670ext* src, umts_sib3_v670ext* dst);
void convert_sysinfotype3_v770ext_ies(const SysInfoType3_v770ext_IEs* src, umts_sib3_v770ext* dst);
void convert_sysinfotype3_v830ext_ies(const SysInfoType3_v830ext_IEs* src, umts_sib3_v830ext* dst);
void convert_sysinfotype3_v860ext_ies(const SysInfoType3_v860ext_IEs* src, umts_sib3_v860ext* dst);
void convert_sysinfotype3_v870ext_ies(const SysInfoType3_v870ext_IEs* src, umts_sib3_v870ext* dst);
void convert_sysinfotype3_v920ext_ies(const SysInfoType3_v920ext_IEs* src, umts_sib3_v920ext* dst);

/* Cell records of v590 and v5c0; the v590 one serves SIB11bis too. */
void convert_cell_select_reselect_info_v590_ext(const CellSelectReselectInfo_v590ext* src,
                                                umts_cell_select_reselect_info_v590ext* dst);
void convert_cell_select_reselect_info_t_reselection_scaling_v5c0ext(
    const CellSelectReselectInfoTreselectionScaling_v5c0ext* src,
    umts_cell_select_reselect_info_treselection_scaling_v5c0ext* dst);

/* v670: domain specific access restriction. */
void convert_domain_specific_access_restriction_param_v670ext(const DomainSpecificAccessRestrictionParam_v670ext* src,
                                                              umts_domain_specific_access_restriction_param_v670ext* dst);
void convert_domain_specific_access_restriction_v670ext(const DomainSpecificAccessRestriction_v670ext* src,
                                                        umts_domain_specific_access_restriction_v670ext* dst);
void convert_domain_specific_access_restriction_v670ext_restriction(
    const DomainSpecificAccessRestriction_v670ext_restriction* src,
    umts_domain_specific_access_restriction_v670ext_restriction* dst);
void convert_domain_specific_access_restriction_list_v670ext(const DomainSpecificAccessRestrictionList_v670ext* src,
                                                             umts_domain_specific_access_restriction_list_v670ext* dst);
void convert_domain_specific_access_restriction_for_shared_network_v670ext(
    const DomainSpecificAccessRestrictionForSharedNetwork_v670ext* src,
    umts_domain_specific_access_restriction_for_shared_network_v670ext* dst);

/* v770: deferred measurement control reading. */
void convert_deferred_measurement_control_reading_support(const DeferredMeasurementControlReadingSupport* src,
                                                          umts_deferred_measurement_control_reading_support* dst);
void convert_deferred_measurement_control_reading_support_mode_specific_info(
    const DeferredMeasurementControlReadingSupport_modeSpecificInfo* src,
    umts_deferred_measurement_control_reading_support_mode_specific_info* dst);
void convert_deferred_measurement_control_reading_support_mode_specific_info_fdd(
    const DeferredMeasurementControlReadingSupport_modeSpecificInfo_fdd* src,
    umts_deferred_measurement_control_reading_support_fdd* dst);
void convert_deferred_measurement_control_reading_support_mode_specific_info_tdd(
    const DeferredMeasurementControlReadingSupport_modeSpecificInfo_tdd* src,
    umts_intra_freq_meas_quantity_tdd_sib3_list* dst);
void convert_intra_freq_meas_quantity_tdd_sib3_list(const IntraFreqMeasQuantity_TDD_sib3List* src,
                                                    umts_intra_freq_meas_quantity_tdd_sib3_list* dst);

/* v830: paging permission with access control. */
void convert_paging_permission_with_access_control_parameters(const PagingPermissionWithAccessControlParameters* src,
                                                              umts_paging_permission_with_access_control_parameters* dst);
void convert_location_registration_parameters(const LocationRegistrationParameters* src,
                                              umts_location_registration_parameters* dst);
void convert_location_registration_access_class_barred_list(const LocationRegistrationAccessClassBarredList* src,
                                                            umts_location_registration_access_class_barred_list* dst);
void convert_paging_permission_with_access_control_list(const PagingPermissionWithAccessControlList* src,
                                                        umts_paging_permission_with_access_control_list* dst);
void convert_paging_permission_with_access_control_for_shared_network(
    const PagingPermissionWithAccessControlForSharedNetwork* src,
    umts_paging_permission_with_access_control_for_shared_network* dst);

/* v860 (the split info serves SIB11bis too) and v870. */
void convert_csg_identity(const CSG_Identity* src, umts_csg_identity* dst);
void convert_csg_psc_split_info(const CSG_PSCSplitInfo* src, umts_csg_psc_split_info* dst);
void convert_cell_access_restriction_v870ext(const CellAccessRestriction_v870ext* src,
                                             umts_cell_access_restriction_v870ext* dst);

/* ==== SIB18 =============================================================================== */

/* PLMN identities of the neighbour cells; the three list copies are one loop. */
void convert_plmn_identities_of_neighbour_cells(const PLMNIdentitiesOfNeighbourCells* src,
                                                umts_plmn_identities_of_neighbour_cells* dst);
void convert_plmn_intra_freq_list(const PLMNsOfIntraFreqCellsList* src, umts_plmns_of_cells_list* dst);
void convert_plmn_inter_freq_list(const PLMNsOfInterFreqCellsList* src, umts_plmns_of_cells_list* dst);
void convert_plmn_inter_rat_list(const PLMNsOfInterRATCellsList* src, umts_plmns_of_cells_list* dst);

/* The v6b0 level (the name says v3a0): 1, or 0 with nothing done when `value` is null. */
uint8_t fill_sysinfotype18_v3a0_nce(const SysInfoType18_v6b0NonCriticalExtensions* value,
                                    umts_sysinfotype18_v6b0_nce* record);
void convert_sysinfotype18_v6b0ext(const SysInfoType18_v6b0ext* src, umts_sysinfotype18_v6b0ext* dst);
void convert_sysinfotype18_v6b0_nce_v860_nce(const SysInfoType18_v6b0NonCriticalExtensions_v860NonCriticalExtensions* src,
                                             umts_sysinfotype18_v860_nce* dst);
void convert_sysinfotype18_v6b0_nce_v860_nce_nce(
    const SysInfoType18_v6b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions* src, uint8_t* dst);
void convert_sysinfotype18_v860ext(const SysInfoType18_v860ext* src, umts_sysinfotype18_v860ext* dst);
void convert_plmn_identities_of_neighbour_cells_v860ext(const PLMNIdentitiesOfNeighbourCells_v860ext* src,
                                                        umts_plmn_identities_of_neighbour_cells_v860ext* dst);
void convert_multiple_plmns_of_intra_freq_cells_list(const MultiplePLMNsOfIntraFreqCellsList* src,
                                                     umts_multiple_plmns_of_cells_list* dst);
void convert_multiple_plmns_of_inter_freq_cells_list(const MultiplePLMNsOfInterFreqCellsList* src,
                                                     umts_multiple_plmns_of_cells_list* dst);
void convert_multiple_plmns_of_intra_freq_cells_list_element_multiple_plmn_list(
    const MultiplePLMNsOfIntraFreqCellsList_element_multiplePLMN_list* src, umts_multiple_plmn_list* dst);
void convert_multiple_plmns_of_inter_freq_cells_list_element_multiple_plmn_list(
    const MultiplePLMNsOfInterFreqCellsList_element_multiplePLMN_list* src, umts_multiple_plmn_list* dst);

/* ==== SIB11, SIB11bis and SIB12 ========================================================== */

/* FACH measurement occasion; inter_RAT_meas_ind is copied with all 15 entries. */
void convert_fach_measurement_occasion_info(const FACH_MeasurementOccasionInfo* src,
                                            umts_fach_measurement_occasion_info* dst);
void convert_fach_measurement_occasion_info_inter_rat_meas_ind(const FACH_MeasurementOccasionInfo_inter_RAT_meas_ind* src,
                                                               umts_inter_rat_meas_ind* dst);

/* MeasurementControlSysInfo of SIB11 and SIB12: use_of_HCS, then cellSelectQualityMeasure,
   choose the form of the cell records. Under hcs_not_used with cpich_Ec_N0 an
   intra-frequency record present leaves the inter-frequency one unconverted. */
void convert_measurement_control_sys_info(const MeasurementControlSysInfo* src, umts_measurement_control_sys_info* dst);
void convert_measurement_control_sys_info_use_of_hcs(const MeasurementControlSysInfo_use_of_HCS* src,
                                                     umts_use_of_hcs* dst);
void convert_measurement_control_sys_info_use_of_hcs_hcs_not_used(
    const MeasurementControlSysInfo_use_of_HCS_hcs_not_used* src, umts_hcs_not_used* dst);
void convert_measurement_control_sys_info_use_of_hcs_hcs_used(const MeasurementControlSysInfo_use_of_HCS_hcs_used* src,
                                                              umts_hcs_used* dst);
void convert_measurement_control_sys_info_use_of_hcs_hcs_not_used_cell_select_quality_measure(
    const MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_hcs_not_used_quality_measure* dst);
void convert_measurement_control_sys_info_use_of_hcs_hcs_used_cell_select_quality_measure(
    const MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_hcs_used_quality_measure* dst);
void convert_measurement_control_sys_info_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_hcs_not_used_cpich_rscp* dst);
void convert_measurement_control_sys_info_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_hcs_not_used_cpich_ec_n0* dst);
void convert_measurement_control_sys_info_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_hcs_used_cpich_rscp* dst);
void convert_measurement_control_sys_info_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_hcs_used_cpich_ec_n0* dst);

/* MeasurementControlSysInfoExtension of SIB11bis, of the same shape with the new-cell lists. */
void convert_measurement_control_sys_info_extension(const MeasurementControlSysInfoExtension* src,
                                                    umts_measurement_control_sys_info_extension* dst);
void convert_measurement_control_sys_info_extension_use_of_hcs(const MeasurementControlSysInfoExtension_use_of_HCS* src,
                                                               umts_ext_use_of_hcs* dst);
void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used* src, umts_ext_hcs_not_used* dst);
void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_used* src, umts_ext_hcs_used* dst);
void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used_cell_select_quality_measure(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_ext_hcs_not_used_quality_measure* dst);
void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used_cell_select_quality_measure(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_ext_hcs_used_quality_measure* dst);
void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_ext_hcs_not_used_cpich_rscp* dst);
void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_ext_hcs_not_used_cpich_ec_n0* dst);
void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_ext_hcs_used_cpich_rscp* dst);
void convert_measurement_control_sys_info_extension_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfoExtension_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_ext_hcs_used_cpich_ec_n0* dst);

/* Heads of the SIB11 and SIB12 extension chains and the LCR tree of SIB11bis: presence bits
   (and the LCR tree's use_of_HCS tag) until their contents are converted. */
void convert_sysinfotype11_v4b0_nc_extensions(const SysInfoType11_v4b0NonCriticalExtensions* src,
                                              umts_sib11_v4b0_nc_extensions* dst);
void convert_sysinfotype12_v4b0_nc_extensions(const SysInfoType12_v4b0NonCriticalExtensions* src,
                                              umts_sib12_v4b0_nc_extensions* dst);
void convert_measurement_control_sys_info_extension_lcr_r4(const MeasurementControlSysInfoExtension_LCR_r4* src,
                                                           umts_measurement_control_sys_info_extension_lcr_r4* dst);

/* SIB11bis: the add-on of Release 5 (v590 cell records of the new cells) and the extension
   chain v7b0, v860. */
void convert_measurement_control_sys_info_extension_addon_r5(const MeasurementControlSysInfoExtensionAddon_r5* src,
                                                             umts_measurement_control_sys_info_extension_addon_r5* dst);
void convert_measurement_control_sys_info_extension_addon_r5_new_intra_frequency_cell_info_list_addon_r5(
    const MeasurementControlSysInfoExtensionAddon_r5_newIntraFrequencyCellInfoListAddon_r5* src,
    umts_cell_select_reselect_info_v590ext_list* dst);
void convert_measurement_control_sys_info_extension_addon_r5_new_inter_frequency_cell_info_list_addon_r5(
    const MeasurementControlSysInfoExtensionAddon_r5_newInterFrequencyCellInfoListAddon_r5* src,
    umts_cell_select_reselect_info_v590ext_list* dst);
void convert_measurement_control_sys_info_extension_addon_r5_new_inter_rat_cell_info_list_addon_r5(
    const MeasurementControlSysInfoExtensionAddon_r5_newInterRATCellInfoListAddon_r5* src,
    umts_cell_select_reselect_info_v590ext_list* dst);
void convert_sysinfotype11bis_v7b0_nc_extensions(const SysInfoType11bis_v7b0NonCriticalExtensions* src,
                                                 umts_sib11bis_v7b0_nc_extensions* dst);
void convert_sysinfotype11bis_v7b0ext_ies(const SysInfoType11bis_v7b0ext_IEs* src, umts_v7b0ext_ies* dst);
void convert_new_inter_freq_cell_list_v7b0ext(const NewInterFreqCellList_v7b0ext* src,
                                              umts_new_inter_freq_cell_list_v7b0ext* dst);
void convert_sysinfotype11bis_v7b0nces_v860nces(const SysInfoType11bis_v7b0NonCriticalExtensions_v860NonCriticalExtensions* src,
                                                umts_sib11bis_v860_nc_extensions* dst);
void convert_sysinfotype11bis_v860ext_ies(const SysInfoType11bis_v860ext_IEs* src, umts_sib11bis_v860ext_ies* dst);
void convert_csg_dedicated_frequency_info_list(const CSG_DedicatedFrequencyInfoList* src,
                                               umts_csg_dedicated_frequency_info_list* dst);
void convert_sysinfotype11bis_v7b0nces_v860nces_nces(
    const SysInfoType11bis_v7b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions* src, uint8_t* dst);

/* Cells of the intra-frequency lists, in the four forms. v is the flat name of the form
   (rscp, ecno, hcs_rscp, hcs_ecno), V the decoded one (RSCP, ECN0, HCS_RSCP, HCS_ECN0),
   sysinfo the spelling of its measurement function (sysinfo_rscp, sysinfo_ecno,
   sys_info_hcs_rscp, sys_info_hcs_ecno). */
#define UMTS_DECLARE_INTRA_FREQ_FORM(v, V, sysinfo)                                                            \
  void convert_intra_freq_measurement_##sysinfo(const IntraFreqMeasurementSysInfo_##V* src,                    \
                                                umts_intra_freq_measurement_##sysinfo* dst);                   \
  void convert_intra_freq_cell_info_si_list_##v(const IntraFreqCellInfoSI_List_##V* src,                       \
                                                umts_intra_freq_cell_info_si_list_##v* dst);                   \
  void convert_new_intra_freq_cell_si_list_##v(const NewIntraFreqCellSI_List_##V* src,                         \
                                               umts_new_intra_freq_cell_si_list_##v* dst);                     \
  void convert_cell_info_si_##v(const CellInfoSI_##V* src, umts_cell_info_si_##v* dst);                        \
  void convert_cell_info_si_##v##_mode_specific_info(const CellInfoSI_##V##_modeSpecificInfo* src,             \
                                                     umts_cell_info_si_mode_specific_info* dst);               \
  void convert_cell_info_si_##v##_mode_specific_info_fdd(const CellInfoSI_##V##_modeSpecificInfo_fdd* src,     \
                                                         umts_cell_info_si_mode_specific_info_fdd* dst);       \
  void convert_cell_info_si_##v##_mode_specific_info_tdd(const CellInfoSI_##V##_modeSpecificInfo_tdd* src,     \
                                                         umts_cell_info_si_mode_specific_info_tdd* dst);       \
  void convert_cell_select_reselect_info_sib_11_12_##v(const CellSelectReselectInfoSIB_11_12_##V* src,         \
                                                       umts_cell_select_reselect_info_sib_11_12_##v* dst);     \
  void convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info(                                   \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo* src,                                       \
      umts_cell_select_reselect_mode_specific_info* dst);                                                      \
  void convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info_fdd(                               \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_fdd* src,                                   \
      umts_cell_select_reselect_mode_specific_info_fdd* dst);                                                  \
  void convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info_tdd(                               \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_tdd* src,                                   \
      umts_cell_select_reselect_mode_specific_info_rxlev* dst);                                                \
  void convert_cell_select_reselect_info_sib_11_12_##v##_mode_specific_info_gsm(                               \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_gsm* src,                                   \
      umts_cell_select_reselect_mode_specific_info_rxlev* dst);
UMTS_DECLARE_INTRA_FREQ_FORM(rscp, RSCP, sysinfo_rscp)
UMTS_DECLARE_INTRA_FREQ_FORM(ecno, ECN0, sysinfo_ecno)
UMTS_DECLARE_INTRA_FREQ_FORM(hcs_rscp, HCS_RSCP, sys_info_hcs_rscp)
UMTS_DECLARE_INTRA_FREQ_FORM(hcs_ecno, HCS_ECN0, sys_info_hcs_ecno)

/* Intra-frequency records without a form. removeSomeIntraFreqCells keeps all 32 identity
   bytes of the decoder. */
void convert_removed_intra_freq_cell_list(const RemovedIntraFreqCellList* src, umts_removed_intra_freq_cell_list* dst);
void convert_removed_intra_freq_cell_list_remove_some_intra_freq_cells(
    const RemovedIntraFreqCellList_removeSomeIntraFreqCells* src, umts_removed_intra_freq_cells* dst);
void convert_reference_time_difference_to_cell(const ReferenceTimeDifferenceToCell* src,
                                               umts_reference_time_difference_to_cell* dst);
void convert_primary_cpich_info(const PrimaryCPICH_Info* src, uint16_t* dst);
void convert_timeslot_info_list(const TimeslotInfoList* src, umts_timeslot_info_list* dst);
void convert_penalty_time_rscp(const PenaltyTime_RSCP* src, umts_penalty_time_rscp* dst);
void convert_hcs_cell_reselect_info_rscp(const HCS_CellReselectInformation_RSCP* src, umts_penalty_time_rscp* dst);
void convert_hcs_neighbouring_cell_info_rscp(const HCS_NeighbouringCellInformation_RSCP* src,
                                             umts_hcs_neighbouring_cell_info_rscp* dst);
/* The same copy, for the inter-RAT cells. */
void convert_hcs_neighboring_cell_info_rscp(const HCS_NeighbouringCellInformation_RSCP* src,
                                            umts_hcs_neighbouring_cell_info_rscp* dst);
void convert_temporary_offset_list(const TemporaryOffsetList* src, umts_temporary_offset_list* dst);
void convert_penalty_time_ecno(const PenaltyTime_ECN0* src, umts_penalty_time_ecno* dst);
void convert_hcs_cell_reselect_info_ecno(const HCS_CellReselectInformation_ECN0* src, umts_penalty_time_ecno* dst);
void convert_hcs_neighbouring_cell_info_ecno(const HCS_NeighbouringCellInformation_ECN0* src,
                                             umts_hcs_neighbouring_cell_info_ecno* dst);

/* Inter-frequency cells, in the four forms. The ECN0 new-cell list converts frequencyInfo
   of every element and never sets its bit. */
#define UMTS_DECLARE_INTER_FREQ_FORM(v, V, sysinfo)                                                            \
  void convert_inter_freq_measurement_##sysinfo(const InterFreqMeasurementSysInfo_##V* src,                    \
                                                umts_inter_freq_measurement_##sysinfo* dst);                   \
  void convert_inter_freq_cell_info_si_list_##v(const InterFreqCellInfoSI_List_##V* src,                       \
                                                umts_inter_freq_cell_info_si_list_##v* dst);                   \
  void convert_new_inter_freq_cell_si_list_##v(const NewInterFreqCellSI_List_##V* src,                         \
                                               umts_new_inter_freq_cell_si_list_##v* dst);
UMTS_DECLARE_INTER_FREQ_FORM(rscp, RSCP, sysinfo_rscp)
UMTS_DECLARE_INTER_FREQ_FORM(ecno, ECN0, sysinfo_ecno)
UMTS_DECLARE_INTER_FREQ_FORM(hcs_rscp, HCS_RSCP, sys_info_hcs_rscp)
UMTS_DECLARE_INTER_FREQ_FORM(hcs_ecno, HCS_ECN0, sys_info_hcs_ecno)

/* removeSomeInterFreqCells keeps only the identities in use. */
void convert_removed_inter_freq_cell_list(const RemovedInterFreqCellList* src, umts_removed_inter_freq_cell_list* dst);
void convert_removed_inter_freq_cell_list_remove_some_inter_freq_cells(
    const RemovedInterFreqCellList_removeSomeInterFreqCells* src, umts_removed_inter_freq_cells* dst);
void convert_frequency_info(const FrequencyInfo* src, umts_frequency_info* dst);
void convert_frequency_info_mode_specific_info(const FrequencyInfo_modeSpecificInfo* src, umts_frequency_info* dst);
void convert_frequency_info_fdd(const FrequencyInfoFDD* src, umts_frequency_info_fdd* dst);
void convert_frequency_info_tdd(const FrequencyInfoTDD* src, uint16_t* uarfcn_Nt);

/* Inter-RAT cells: the full form under hcs_used and in SIB11bis, the B form under
   hcs_not_used. */
void convert_inter_rat_measurement_sys_info(const InterRATMeasurementSysInfo* src,
                                            umts_inter_rat_measurement_sys_info* dst);
void convert_inter_rat_cell_info_list(const InterRATCellInfoList* src, umts_inter_rat_cell_info_list* dst);
void convert_cells_for_inter_rat_meas_list(const CellsForInterRATMeasList* src, umts_cells_for_inter_rat_meas_list* dst);
void convert_new_inter_rat_cell_list(const NewInterRATCellList* src, umts_new_inter_rat_cell_list* dst);
void convert_new_inter_rat_cell_technology_specific_info(const NewInterRATCell_technologySpecificInfo* src,
                                                         umts_new_inter_rat_cell_technology_specific_info* dst);
void convert_new_inter_rat_cell_technology_specific_info_gsm(const NewInterRATCell_technologySpecificInfo_gsm* src,
                                                             umts_new_inter_rat_cell_gsm* dst);
void convert_new_inter_rat_cell_technology_specific_info_is_2000(
    const NewInterRATCell_technologySpecificInfo_is_2000* src, uint32_t* dst);
void convert_inter_rat_measurement_sysinfo_b(const InterRATMeasurementSysInfo_B* src,
                                             umts_inter_rat_measurement_sysinfo_b* dst);
void convert_inter_rat_cell_info_list_b(const InterRATCellInfoList_B* src, umts_inter_rat_cell_info_list_b* dst);
void convert_new_inter_rat_cell_list_b(const NewInterRATCellList_B* src, umts_new_inter_rat_cell_list_b* dst);
void convert_new_inter_rat_cell_b(const NewInterRATCell_B* src, umts_new_inter_rat_cell* dst);
void convert_new_inter_rat_cell_list_b_technology_specific_info(const NewInterRATCell_B_technologySpecificInfo* src,
                                                                umts_new_inter_rat_cell_technology_specific_info* dst);
void convert_new_inter_rat_cell_list_b_technology_specific_info_gsm(
    const NewInterRATCell_B_technologySpecificInfo_gsm* src, umts_new_inter_rat_cell_gsm* dst);
void convert_new_inter_rat_cell_list_b_technology_specific_info_is_2000(
    const NewInterRATCell_B_technologySpecificInfo_is_2000* src, uint32_t* dst);
void convert_removed_inter_rat_cell_list(const RemovedInterRATCellList* src, umts_removed_inter_rat_cell_list* dst);
void convert_removed_inter_rat_cell_list_remove_some_inter_rat_cells(
    const RemovedInterRATCellList_removeSomeInterRATCells* src, umts_removed_inter_rat_cells* dst);
void convert_cell_select_reselect_info_sib_11_12(const CellSelectReselectInfoSIB_11_12* src,
                                                 umts_cell_select_reselect_info_sib_11_12* dst);
void convert_cell_select_reselect_info_sib_11_12_mode_specific_info(
    const CellSelectReselectInfoSIB_11_12_modeSpecificInfo* src, umts_cell_select_reselect_mode_specific_info* dst);
void convert_cell_select_reselect_info_sib_11_12_mode_specific_info_fdd(
    const CellSelectReselectInfoSIB_11_12_modeSpecificInfo_fdd* src, umts_cell_select_reselect_mode_specific_info_fdd* dst);
void convert_cell_select_reselect_info_sib_11_12_mode_specific_info_tdd(
    const CellSelectReselectInfoSIB_11_12_modeSpecificInfo_tdd* src,
    umts_cell_select_reselect_mode_specific_info_rxlev* dst);
void convert_cell_select_reselect_info_sib_11_12_mode_specific_info_gsm(
    const CellSelectReselectInfoSIB_11_12_modeSpecificInfo_gsm* src,
    umts_cell_select_reselect_mode_specific_info_rxlev* dst);
void convert_bsic(const BSIC* src, umts_bsic* dst);

/* Traffic volume. The object list copies an identity only for dch and usch;
   convert_ul_tr_ch_identity copies the value whatever the tag. */
void convert_traffic_vol_meas_sys_info(const TrafficVolumeMeasSysInfo* src, umts_traffic_vol_meas_sys_info* dst);
void convert_traffic_volume_measurement_object_list(const TrafficVolumeMeasurementObjectList* src,
                                                    umts_traffic_volume_measurement_object_list* dst);
void convert_traffic_volume_meas_quantity(const TrafficVolumeMeasQuantity* src, umts_traffic_volume_meas_quantity* dst);
void convert_traffic_volume_reporting_quantity(const TrafficVolumeReportingQuantity* src,
                                               umts_traffic_volume_reporting_quantity* dst);
void convert_ul_tr_ch_identity(const UL_TrCH_Identity* src, umts_ul_tr_ch_identity* dst);
void convert_traffic_volume_event_param(const TrafficVolumeEventParam* src, umts_traffic_volume_event_param* dst);
void convert_trans_ch_criteria_event_specific_parameters(const TransChCriteria_eventSpecificParameters* src,
                                                         umts_event_specific_parameters* dst);
void convert_trans_ch_criteria(const TransChCriteria* src, umts_trans_ch_criteria* dst);
void convert_trans_ch_criteria_list(const TransChCriteriaList* src, umts_trans_ch_criteria_list* dst);
void convert_traffic_volume_reporting_criteria(const TrafficVolumeReportingCriteria* src,
                                               umts_traffic_volume_reporting_criteria* dst);
void convert_traffic_volume_report_criteria_sys_info(const TrafficVolumeReportCriteriaSysInfo* src,
                                                     umts_traffic_volume_report_criteria_sys_info* dst);
void convert_measurement_validity(const MeasurementValidity* src, uint32_t* dst);
void convert_measurement_reporting_mode(const MeasurementReportingMode* src, umts_measurement_reporting_mode* dst);
void convert_periodical_reporting_criteria(const PeriodicalReportingCriteria* src,
                                           umts_periodical_reporting_criteria* dst);

/* UE internal measurement. */
void convert_ue_internal_meas_quantity(const UE_InternalMeasQuantity* src, umts_ue_internal_meas_quantity* dst);
void convert_ue_internal_meas_sys_info(const UE_InternalMeasurementSysInfo* src, umts_ue_internal_meas_sys_info* dst);

/* Intra-frequency and RACH reporting quantities; the tdd lists are copied whole. */
void convert_intra_freq_meas_quantity(const IntraFreqMeasQuantity* src, umts_intra_freq_meas_quantity* dst);
void convert_intra_freq_meas_quantity_mode_specific_info(const IntraFreqMeasQuantity_modeSpecificInfo* src,
                                                         umts_intra_freq_meas_quantity_mode_specific_info* dst);
void convert_intra_freq_meas_quantity_mode_specific_info_fdd(const IntraFreqMeasQuantity_modeSpecificInfo_fdd* src,
                                                             uint32_t* dst);
void convert_intra_freq_meas_quantity_mode_specific_info_tdd(const IntraFreqMeasQuantity_modeSpecificInfo_tdd* src,
                                                             umts_intra_freq_meas_quantity_tdd_list* dst);
void convert_intra_freq_meas_quantity_tdd_list(const IntraFreqMeasQuantity_TDDList* src,
                                               umts_intra_freq_meas_quantity_tdd_list* dst);
void convert_intra_freq_reporting_quantity_for_rach(const IntraFreqReportingQuantityForRACH* src,
                                                    umts_intra_freq_reporting_quantity_for_rach* dst);
void convert_intra_freq_reporting_quantity_for_rach_mode_specific_info(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo* src,
    umts_intra_freq_reporting_quantity_for_rach_mode_specific_info* dst);
void convert_intra_freq_reporting_quantity_for_rach_mode_specific_info_fdd(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo_fdd* src, uint32_t* dst);
void convert_intra_freq_reporting_quantity_for_rach_mode_specific_info_tdd(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo_tdd* src, umts_intra_freq_rep_quantity_rach_tdd_list* dst);
void convert_intra_freq_reporting_quantity_for_rach_tdd_list(const IntraFreqRepQuantityRACH_TDDList* src,
                                                             umts_intra_freq_rep_quantity_rach_tdd_list* dst);
void convert_intra_freq_reporting_quantity(const IntraFreqReportingQuantity* src, umts_intra_freq_reporting_quantity* dst);
void convert_cell_reporting_quantities(const CellReportingQuantities* src, umts_cell_reporting_quantities* dst);
void convert_cell_reporting_quantities_mode_specific_info(const CellReportingQuantities_modeSpecificInfo* src,
                                                          umts_cell_reporting_quantities_mode_specific_info* dst);
void convert_cell_reporting_quantities_mode_specific_info_fdd(const CellReportingQuantities_modeSpecificInfo_fdd* src,
                                                              umts_cell_reporting_quantities_fdd* dst);
void convert_cell_reporting_quantities_mode_specific_info_tdd(const CellReportingQuantities_modeSpecificInfo_tdd* src,
                                                              umts_cell_reporting_quantities_tdd* dst);

/* Reporting for CELL_DCH, event criteria and events 1a to 1i. */
void convert_reporting_info_for_cell_dch(const ReportingInfoForCellDCH* src, umts_reporting_info_for_cell_dch* dst);
void convert_cell_dch_report_criteria(const CellDCH_ReportCriteria* src, umts_cell_dch_report_criteria* dst);
void convert_intra_freq_reporting_criteria(const IntraFreqReportingCriteria* src, umts_intra_freq_reporting_criteria* dst);
void convert_intra_freq_event_criteria_list(const IntraFreqEventCriteriaList* src,
                                            umts_intra_freq_event_criteria_list* dst);
void convert_intra_freq_event_criteria(const IntraFreqEventCriteria* src, umts_intra_freq_event_criteria* dst);
void convert_intra_freq_event(const IntraFreqEvent* src, umts_intra_freq_event* dst);
void convert_event_1a(const Event1a* src, umts_event_1a* dst);
void convert_event_1b(const Event1b* src, umts_event_1b* dst);
void convert_event_1c(const Event1c* src, umts_event_1c* dst);
void convert_event_1e(const Event1e* src, umts_event_1e* dst);
void convert_event_1f(const Event1f* src, umts_event_1f* dst);
void convert_reporting_cell_status(const ReportingCellStatus* src, umts_reporting_cell_status* dst);
void convert_forbidden_affect_cell_list(const ForbiddenAffectCellList* src, umts_forbidden_affect_cell_list* dst);
void convert_forbidden_affect_cell(const ForbiddenAffectCell* src, umts_forbidden_affect_cell* dst);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_SIB_CONVERT_H */
