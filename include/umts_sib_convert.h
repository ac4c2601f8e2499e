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

/* The decoded levels of the SIB5 chain from v680 on, under shorter names. */
typedef SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions_v650NonCriticalExtensions_v680NonCriticalExtensions
    umts_sib5_v680_nces_src;
typedef SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions_v650NonCriticalExtensions_v680NonCriticalExtensions_v690NonCriticalExtensions
    umts_sib5_v690_nces_src;
typedef SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions_v650NonCriticalExtensions_v680NonCriticalExtensions_v690NonCriticalExtensions_v770NonCriticalExtensions
    umts_sib5_v770_nces_src;
typedef SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions_v650NonCriticalExtensions_v680NonCriticalExtensions_v690NonCriticalExtensions_v770NonCriticalExtensions_v860NonCriticalExtensions
    umts_sib5_v860_nces_src;
typedef SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions_v650NonCriticalExtensions_v680NonCriticalExtensions_v690NonCriticalExtensions_v770NonCriticalExtensions_v860NonCriticalExtensions_v890NonCriticalExtensions
    umts_sib5_v890_nces_src;
typedef SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions_v650NonCriticalExtensions_v680NonCriticalExtensions_v690NonCriticalExtensions_v770NonCriticalExtensions_v860NonCriticalExtensions_v890NonCriticalExtensions_v8b0NonCriticalExtensions
    umts_sib5_v8b0_nces_src;
typedef SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions_v650NonCriticalExtensions_v680NonCriticalExtensions_v690NonCriticalExtensions_v770NonCriticalExtensions_v860NonCriticalExtensions_v890NonCriticalExtensions_v8b0NonCriticalExtensions_v8d0NonCriticalExtensions
    umts_sib5_v8d0_nces_src;

/* ==== SIB5: top and extension chain ====================================================== */
void convert_sib_type_5_mode_specific_info(const SysInfoType5_modeSpecificInfo* src, umts_sib5_mode_specific_info* dst);
void convert_cbs_drx_level1_information(const CBS_DRX_Level1Information* src, umts_cbs_drx_level1_information* dst);
void convert_sysinfotype5_v4b0nces(const SysInfoType5_v4b0NonCriticalExtensions* src, umts_sib5_v4b0_nces* dst);
void convert_sysinfotype5_v4b0nces_v590nces(const SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions* src, umts_sib5_v590_nces* dst);
void convert_sysinfotype5_v4b0nces_v590nces_v650nces( const SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions_v650NonCriticalExtensions* src, umts_sib5_v650_nces* dst);
void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces(const umts_sib5_v680_nces_src* src, umts_sib5_v680_nces* dst);
void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces(const umts_sib5_v690_nces_src* src, umts_sib5_v690_nces* dst);
void convert_sysinfotype5_v4b0ncess_v590nces_v650nces_v680nces_v690nces_v770nces(const umts_sib5_v770_nces_src* src, umts_sib5_v770_nces* dst);
void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces(const umts_sib5_v860_nces_src* src, umts_sib5_v860_nces* dst);
void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces_v890nces( const umts_sib5_v890_nces_src* src, umts_sib5_v890_nces* dst);
void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces_v890nces_v8b0nces( const umts_sib5_v8b0_nces_src* src, umts_sib5_v8b0_nces* dst);
void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces_v890nces_v8b0nces_v8d0nces( const umts_sib5_v8d0_nces_src* src, umts_sib5_v8d0_nces* dst);
void convert_sysinfotype5_v4b0ext_ies(const SysInfoType5_v4b0ext_IEs* src, umts_sib5_v4b0ext* dst);
void convert_sysinfotype5_v590ext_ies(const SysInfoType5_v590ext_IEs* src, umts_sib5_v590ext* dst);
void convert_sysinfotype5_v650ext_ies(const SysInfoType5_v650ext_IEs* src, umts_sib5_v650ext* dst);
void convert_sysinfotype5_v680ext_ies(const SysInfoType5_v680ext_IEs* src, umts_sib5_v680ext* dst);
void convert_sysinfotype5_v690ext_ies(const SysInfoType5_v690ext_IEs* src, umts_sib5_v690ext* dst);
void convert_sysinfotype5_v770ext_ies(const SysInfoType5_v770ext_IEs* src, umts_sib5_v770ext* dst);
void convert_tdd_mbsfn_information(const TDD_MBSFNInformation* src, umts_tdd_mbsfn_information* dst);
void convert_sysinfotype5_v860ext_ies(const SysInfoType5_v860ext_IEs* src, umts_sib5_v860ext* dst);
void convert_sysinfotype5_v890ext_ies(const SysInfoType5_v890ext_IEs* src, umts_sib5_v890ext* dst);
void convert_sysinfotype5_v8b0ext_ies(const SysInfoType5_v8b0ext_IEs* src, umts_sib5_v8b0ext* dst);
void convert_sysinfotype5_v8d0ext_ies(const SysInfoType5_v8d0ext_IEs* src, umts_sib5_v8d0ext* dst);

/* ==== SIB16: the radio bearers of a predefined configuration =============================== */
/* Decodes a SysInfoType16 from the host's `context` (its PER buffer set) into the host's area
   `decoded`, eight bytes in (the area holds 8 + sizeof(SysInfoType16) bytes, aligned for the
   tree; its first eight bytes are not touched), clears `out` and converts the tree into it,
   whether the decode succeeded or not. Returns the decoder's status (0 on success), or 0 with
   nothing done when `decoded` is null. Called by nothing in the library. */
int umts_convert_sib16(rtxContext* context, void* decoded, umts_sib16_info* out);
/* The same, its messages going with the text of `decoder` (umts_sib_decoder_print_to) rather
   than to standard output; a null decoder returns -1 and does nothing. */
int umts_sib_decoder_convert_sib16(umts_sib_decoder_t* decoder, rtxContext* context, void* decoded, umts_sib16_info* out);
/* The furthest offset in umts_sib16_info that the longest open lists write. */
size_t umts_sib16_furthest_write(void);
void decode_pre_def_radio_configuration(const PreDefRadioConfiguration* src, umts_sib16_pre_def_radio_configuration* dst);
void decode_predefined_rb_configuration(const PredefinedRB_Configuration* src, umts_sib16_predefined_rb_configuration* dst);
void fill_srb_information_setup_list(const SRB_InformationSetupList* src, umts_sib16_open_list* dst);
void decode_srb_information_setup(const SRB_InformationSetup* src, umts_sib16_srb_information_setup* dst);
void fill_rb_information_setup_list(const RB_InformationSetupList* src, umts_sib16_open_list* dst);
void decode_rb_information_setup(const RB_InformationSetup* src, umts_sib16_rb_information_setup* dst);
void decode_rlc_info_choice(const RLC_InfoChoice* src, umts_sib16_rlc_info_choice* dst);
void decode_rlc_info(const RLC_Info* src, umts_sib16_rlc_info* dst);
void decode_ul_rlc_mode(const UL_RLC_Mode* src, umts_sib16_ul_rlc_mode* dst);
void decode_ul_am_rlc_mode(const UL_AM_RLC_Mode* src, umts_sib16_ul_am_rlc_mode* dst);
void decode_ul_um_rlc_mode(const UL_UM_RLC_Mode* src, umts_sib16_ul_um_rlc_mode* dst);
void decode_ul_tm_rlc_mode(const UL_TM_RLC_Mode* src, umts_sib16_ul_tm_rlc_mode* dst);
void decode_transmission_rlc_discard(const TransmissionRLC_Discard* src, umts_sib16_transmission_rlc_discard* dst);
void decode_explicit_discard(const ExplicitDiscard* src, umts_sib16_explicit_discard* dst);
void decode_max_dat_retransmissions(const MaxDAT_Retransmissions* src, umts_sib16_max_dat_retransmissions* dst);
void decode_polling_info(const PollingInfo* src, umts_sib16_polling_info* dst);
void decode_dl_rlc_mode(const DL_RLC_Mode* src, umts_sib16_dl_rlc_mode* dst);
void decode_dl_am_rlc_mode(const DL_AM_RLC_Mode* src, umts_sib16_dl_am_rlc_mode* dst);
void decode_dl_tm_rlc_mode(const DL_TM_RLC_Mode* src, uint8_t* dst);
void decode_dl_rlc_status_info(const DL_RLC_StatusInfo* src, umts_sib16_dl_rlc_status_info* dst);
void fill_rb_mapping_info_list(const RB_MappingInfo* src, umts_sib16_open_list* dst);
void decode_rb_mapping_option(const RB_MappingOption* src, umts_sib16_rb_mapping_option* dst);
void decode_ul_logical_channel_mappings_s(const UL_LogicalChannelMappings* src, umts_sib16_ul_logical_channel_mappings* dst);
void fill_ul_logical_channel_mapping_list(const UL_LogicalChannelMappingList* src, umts_sib16_ul_logical_channel_mapping_list* dst);
void fill_ul_logicalchannelmappinglist_ul_logicalchannelmapping(const UL_LogicalChannelMappingList_ul_LogicalChannelMapping* src,
                                                                umts_sib16_ul_logical_channel_mapping_list* dst);
void decode_one_ul_logical_channel_mapping(const UL_LogicalChannelMapping* src, umts_sib16_ul_logical_channel_mapping* dst);
void decode_ul_transport_channel_type(const UL_TransportChannelType* src, umts_sib16_ul_transport_channel_type* dst);
void fill_ul_logical_channel_mapping_rlc_size_list(const UL_LogicalChannelMapping_rlc_SizeList* src, umts_sib16_rlc_size_list* dst);
void fill_rlc_size_explicit_list(const RLC_SizeExplicitList* src, umts_sib16_rlc_size_list* dst);
void fill_dl_logical_channel_mappings(const DL_LogicalChannelMappingList* src, umts_sib16_open_list* dst);
void decode_dl_logical_channel_mapping(const DL_LogicalChannelMapping* src, umts_sib16_dl_logical_channel_mapping* dst);
void decode_dl_transport_channel_type(const DL_TransportChannelType* src, umts_sib16_dl_transport_channel_type* dst);
void decode_pdcp_info(const PDCP_Info* src, umts_sib16_pdcp_info* dst);
void decode_lossless_srns_reloc_support(const LosslessSRNS_RelocSupport* src, umts_sib16_lossless_srns_reloc_support* dst);
void decode_header_compression_info_list(const HeaderCompressionInfoList* src, umts_sib16_open_list* dst);
void decode_header_compression_info(const HeaderCompressionInfo* src, umts_sib16_algorithm_specific_info* dst);
void decode_algorithm_specific_info(const AlgorithmSpecificInfo* src, umts_sib16_algorithm_specific_info* dst);
void decode_rfc2507_info(const RFC2507_Info* src, umts_sib16_rfc2507_info* dst);

/* ==== SIB5: HS-DSCH and common E-DCH ===================================================== */
void convert_sysinfotype5_v770ext_ies_mode_specific_info(const SysInfoType5_v770ext_IEs_modeSpecificInfo* src,
                                                         umts_sib5_v770_mode_specific_info* dst);
void convert_hs_dsch_common_system_information(const HS_DSCH_CommonSystemInformation* src,
                                               umts_hs_dsch_common_system_information* dst);
void convert_common_mac_ehs_reordering_queue_list(const Common_MAC_ehs_ReorderingQueueList* src,
                                                  umts_common_mac_ehs_reordering_queue_list* dst);
void convert_hs_scch_system_info(const HS_SCCH_SystemInfo* src, umts_hs_scch_system_info* dst);
void convert_hs_dsch_common_system_information_tdd128(const HS_DSCH_CommonSystemInformation_TDD128* src,
                                                      umts_hs_dsch_common_system_information_tdd128* dst);
void convert_hs_scch_system_info_tdd128(const HS_SCCH_SystemInfo_TDD128* src, umts_hs_scch_system_info_tdd128* dst);
void convert_hs_dsch_paging_system_information_tdd128(const HS_DSCH_PagingSystemInformation_TDD128* src,
                                                      umts_hs_dsch_paging_system_information_tdd128* dst);
void convert_hs_pdsch_midamble_configuration_tdd128(const HS_PDSCH_Midamble_Configuration_TDD128* src,
                                                    umts_hs_pdsch_midamble_configuration_tdd128* dst);
void convert_midamble_shift_and_burst_type_lcr_r4(const MidambleShiftAndBurstType_LCR_r4* src,
                                                  umts_midamble_shift_and_burst_type_lcr_r4* dst);
void convert_pich_info_lcr_r4(const PICH_Info_LCR_r4* src, umts_pich_info_lcr_r4* dst);
void convert_harq_system_info(const HARQ_Info* src, umts_harq_info* dst);
void convert_h_rnti(const H_RNTI* src, umts_bit_string32* dst);
void convert_hs_dsch_common_system_information_common_h_rnti_information(
    const HS_DSCH_CommonSystemInformation_common_H_RNTI_information* src, umts_h_rnti_list* dst);
void convert_hs_dsch_paging_system_information(const HS_DSCH_PagingSystemInformation* src,
                                               umts_hs_dsch_paging_system_information* dst);
void convert_sysinfotype5_v860ext_ies_mode_specific_info(const SysInfoType5_v860ext_IEs_modeSpecificInfo* src,
                                                         umts_sib5_v860_mode_specific_info* dst);
void convert_common_edch_system_info(const CommonEDCHSystemInfo* src, umts_common_edch_system_info* dst);
void convert_common_edch_system_info_mode_specific_info(const CommonEDCHSystemInfo_modeSpecificInfo* src,
                                                        umts_common_edch_mode_specific_info* dst);
void convert_common_edch_system_info_fdd(const CommonEDCHSystemInfoFDD* src, umts_common_edch_system_info_fdd* dst);
void convert_common_e_dch_mac_d_flow_list(const Common_E_DCH_MAC_d_FlowList* src, umts_common_e_dch_mac_d_flow_list* dst);
void convert_harq_info(const uint32_t* src, uint32_t* dst);
void convert_umts1_bit_str32(const rtxBitStr32* src, umts_bit_string32* dst);
void convert_prach_preamble_for_enhanced_uplink(const PRACH_PreambleForEnhancedUplink* src,
                                                umts_prach_preamble_for_enhanced_uplink* dst);
void convert_available_sub_channel_numbers(const AvailableSubChannelNumbers* src, umts_bit_string32* dst);
void convert_persistence_scaling_factor_list(const PersistenceScalingFactorList* src,
                                             umts_persistence_scaling_factor_list* dst);
void convert_prach_partitioning_r7(const PRACH_Partitioning_r7* src, umts_prach_partitioning_r7* dst);
void convert_ul_dpch_power_control_info_for_common_edch(const UL_DPCHpowerControlInfoForCommonEDCH* src,
                                                        umts_ul_dpch_power_control_info_for_common_edch* dst);
void convert_e_dpcch_info_r7(const E_DPCCH_Info_r7* src, umts_e_dpcch_info* dst);
void convert_e_dpdch_info_r8(const E_DPDCH_Info_r8* src, umts_e_dpdch_info_r8* dst);
void convert_measurement_feedback_info_r7(const Measurement_Feedback_Info_r7* src, umts_measurement_feedback_info* dst);
void convert_common_edch_resource_info_list(const rtxDList* src, umts_common_e_dch_resource_info_list* dst);

/* ==== SIB5: TDD, LCR, HCR and VHCR channels ========================================= */
void convert_ul_ts_channelisation_code_list(const UL_TS_ChannelisationCodeList* src, umts_ul_ts_channelisation_code_list* dst);
void convert_ul_ts_channelisation_code_list_vhcr(const UL_TS_ChannelisationCodeList_VHCR* src, umts_ul_ts_channelisation_code_list* dst);
void convert_dl_ts_channelisation_codes_short(const DL_TS_ChannelisationCodesShort* src, umts_dl_ts_channelisation_codes_short* dst);
void convert_dl_ts_channelisation_codes_short_vhcr(const DL_TS_ChannelisationCodesShort_VHCR* src, umts_dl_ts_channelisation_codes_short_vhcr* dst);
void convert_midamble_shift_and_burst_type_r7(const MidambleShiftAndBurstType_r7* src, umts_midamble_shift_and_burst_type_r7* dst);
void convert_midamble_shift_and_burst_type_vhcr(const MidambleShiftAndBurstType_VHCR* src, umts_midamble_shift_and_burst_type_vhcr* dst);
void convert_individual_timeslot_info_r7(const IndividualTimeslotInfo_r7* src, umts_individual_timeslot_info_r7* dst);
void convert_individual_timeslot_info_vhcr(const IndividualTimeslotInfo_VHCR* src, umts_individual_timeslot_info_vhcr* dst);
void convert_individual_timeslot_info_lcr_r4(const IndividualTimeslotInfo_LCR_r4* src, umts_individual_timeslot_info_lcr_r4* dst);
void convert_uplink_timeslots_codes(const UplinkTimeslotsCodes* src, umts_uplink_timeslots_codes* dst);
void convert_uplink_timeslots_codes_more_timeslots(const UplinkTimeslotsCodes_moreTimeslots* src, umts_uplink_more_timeslots* dst);
void convert_uplink_additional_timeslots(const UplinkAdditionalTimeslots* src, umts_uplink_additional_timeslots* dst);
void convert_uplink_additional_timeslots_parameters_new_parameters(const UplinkAdditionalTimeslots_parameters_newParameters* src, umts_uplink_additional_timeslots_new_parameters* dst);
void convert_uplink_timeslots_codes_lcr_r4(const UplinkTimeslotsCodes_LCR_r4* src, umts_uplink_timeslots_codes_lcr_r4* dst);
void convert_uplink_timeslots_codes_lcr_r4_more_timeslots(const UplinkTimeslotsCodes_LCR_r4_moreTimeslots* src, umts_uplink_more_timeslots_lcr_r4* dst);
void convert_uplink_additional_timeslots_lcr_r4(const UplinkAdditionalTimeslots_LCR_r4* src, umts_uplink_additional_timeslots_lcr_r4* dst);
void convert_uplink_additional_timeslots_lcr_r4_parameters_new_parameters(const UplinkAdditionalTimeslots_LCR_r4_parameters_newParameters* src, umts_uplink_additional_timeslots_new_parameters_lcr_r4* dst);
void convert_uplink_timeslots_codes_vhcr(const UplinkTimeslotsCodes_VHCR* src, umts_uplink_timeslots_codes_vhcr* dst);
void convert_uplink_timeslots_codes_vhcr_more_timeslots(const UplinkTimeslotsCodes_VHCR_moreTimeslots* src, umts_uplink_more_timeslots_vhcr* dst);
void convert_uplink_additional_timeslots_vhcr(const UplinkAdditionalTimeslots_VHCR* src, umts_uplink_additional_timeslots_vhcr* dst);
void convert_uplink_additional_timeslots_vhcr_parameters_new_parameters(const UplinkAdditionalTimeslots_VHCR_parameters_newParameters* src, umts_uplink_additional_timeslots_new_parameters_vhcr* dst);
void convert_downlink_timeslots_codes(const DownlinkTimeslotsCodes* src, umts_downlink_timeslots_codes* dst);
void convert_downlink_timeslots_codes_more_timeslots(const DownlinkTimeslotsCodes_moreTimeslots* src, umts_downlink_more_timeslots* dst);
void convert_downlink_additional_timeslots(const DownlinkAdditionalTimeslots* src, umts_downlink_additional_timeslots* dst);
void convert_downlink_additional_timeslots_parameters_new_parameters(const DownlinkAdditionalTimeslots_parameters_newParameters* src, umts_downlink_additional_timeslots_new_parameters* dst);
void convert_downlink_timeslots_codes_lcr_r4(const DownlinkTimeslotsCodes_LCR_r4* src, umts_downlink_timeslots_codes_lcr_r4* dst);
void convert_downlink_timeslots_codes_lcr_r4_more_timeslots(const DownlinkTimeslotsCodes_LCR_r4_moreTimeslots* src, umts_downlink_more_timeslots_lcr_r4* dst);
void convert_downlink_additional_timeslots_lcr_r4(const DownlinkAdditionalTimeslots_LCR_r4* src, umts_downlink_additional_timeslots_lcr_r4* dst);
void convert_downlink_additional_timeslots_lcr_r4_parameters_new_paramaters(const DownlinkAdditionalTimeslots_LCR_r4_parameters_newParameters* src, umts_downlink_additional_timeslots_new_parameters_lcr_r4* dst);
void convert_downlink_timeslots_codes_vhcr(const DownlinkTimeslotsCodes_VHCR* src, umts_downlink_timeslots_codes_vhcr* dst);
void convert_downlink_timeslots_codes_vhcr_more_timeslots(const DownlinkTimeslotsCodes_VHCR_moreTimeslots* src, umts_downlink_more_timeslots_vhcr* dst);
void convert_downlink_additional_timeslots_vhcr(const DownlinkAdditionalTimeslots_VHCR* src, umts_downlink_additional_timeslots_vhcr* dst);
void convert_downlink_additional_timeslots_vhcr_parameters_new_parameters(const DownlinkAdditionalTimeslots_VHCR_parameters_newParameters* src, umts_downlink_additional_timeslots_new_parameters_vhcr* dst);
void convert_downlink_timeslots_codes_r7(const DownlinkTimeslotsCodes_r7* src, umts_downlink_timeslots_codes_r7* dst);
void convert_downlink_timeslots_codes_r7_more_timeslots(const DownlinkTimeslotsCodes_r7_moreTimeslots* src, umts_downlink_more_timeslots_r7* dst);
void convert_downlink_additional_timeslots_r7(const DownlinkAdditionalTimeslots_r7* src, umts_downlink_additional_timeslots_r7* dst);
void convert_downlink_additional_timeslots_r7_parameters_new_parameters(const DownlinkAdditionalTimeslots_r7_parameters_newParameters* src, umts_downlink_additional_timeslots_new_parameters_r7* dst);
void convert_sfn_time_info(const SFN_TimeInfo* src, umts_sfn_time_info* dst);
void convert_usch_transport_channels_info(const USCH_TransportChannelsInfo* src, umts_usch_transport_channels_info* dst);
void convert_dsch_transport_channels_info(const DSCH_TransportChannelsInfo* src, umts_dsch_transport_channels_info* dst);
void convert_pusch_info(const PUSCH_Info* src, umts_pusch_info* dst);
void convert_pusch_sys_info(const PUSCH_SysInfo* src, umts_pusch_sys_info* dst);
void convert_pusch_sysinfo_list_sfn_element(const PUSCH_SysInfoList_SFN_element* src, umts_pusch_sysinfo_sfn* dst);
void convert_pusch_sysinfo_list_sfn(const PUSCH_SysInfoList_SFN* src, umts_pusch_sysinfo_list_sfn* dst);
void convert_pdsch_info(const PDSCH_Info* src, umts_pdsch_info* dst);
void convert_pdsch_SysInfo(const PDSCH_SysInfo* src, umts_pdsch_sys_info* dst);
void convert_pdsch_sysinfo_list_sfn_element(const PDSCH_SysInfoList_SFN_element* src, umts_pdsch_sysinfo_sfn* dst);
void convert_pdsch_sysinfo_list_sfn(const PDSCH_SysInfoList_SFN* src, umts_pdsch_sysinfo_list_sfn* dst);
void convert_pusch_info_lcr_r4(const PUSCH_Info_LCR_r4* src, umts_pusch_info_lcr_r4* dst);
void convert_pusch_sys_info_lcr_r4(const PUSCH_SysInfo_LCR_r4* src, umts_pusch_sys_info_lcr_r4* dst);
void convert_pusch_sysinfo_list_sfn_lcr_r4_element(const PUSCH_SysInfoList_SFN_LCR_r4_element* src, umts_pusch_sysinfo_sfn_lcr_r4* dst);
void convert_pusch_sysinfo_list_sfn_lcr_r4(const PUSCH_SysInfoList_SFN_LCR_r4* src, umts_pusch_sysinfo_list_sfn_lcr_r4* dst);
void convert_pdsch_info_lcr_r4(const PDSCH_Info_LCR_r4* src, umts_pdsch_info_lcr_r4* dst);
void convert_pdsch_sys_info_lcr_r4(const PDSCH_SysInfo_LCR_r4* src, umts_pdsch_sys_info_lcr_r4* dst);
void convert_pdsch_sysInfolist_sfn_lcr_r4_element(const PDSCH_SysInfoList_SFN_LCR_r4_element* src, umts_pdsch_sysinfo_sfn_lcr_r4* dst);
void convert_pdsch_sysinfo_list_sfn_lcr_r4(const PDSCH_SysInfoList_SFN_LCR_r4* src, umts_pdsch_sysinfo_list_sfn_lcr_r4* dst);
void convert_pusch_sys_info_hcr_r5(const PUSCH_SysInfo_HCR_r5* src, umts_pusch_sys_info_hcr_r5* dst);
void convert_pusch_sysinfo_list_sfn_hcr_r5_element(const PUSCH_SysInfoList_SFN_HCR_r5_element* src, umts_pusch_sysinfo_sfn_hcr_r5* dst);
void convert_pusch_sysinfo_list_sfn_hcr_r5(const PUSCH_SysInfoList_SFN_HCR_r5* src, umts_pusch_sysinfo_list_sfn_hcr_r5* dst);
void convert_pdsch_sys_info_hcr_r5(const PDSCH_SysInfo_HCR_r5* src, umts_pdsch_sys_info_hcr_r5* dst);
void convert_pdsch_sysinfo_list_sfn_hcr_r5_element(const PDSCH_SysInfoList_SFN_HCR_r5_element* src, umts_pdsch_sysinfo_sfn_hcr_r5* dst);
void convert_pdsch_sysinfo_list_sfn_hcr_r5(const PDSCH_SysInfoList_SFN_HCR_r5* src, umts_pdsch_sysinfo_list_sfn_hcr_r5* dst);
void convert_sysinfotype5_v590ext_ies_hcr_r5_specific_info(const SysInfoType5_v590ext_IEs_hcr_r5_SpecificInfo* src, umts_sib5_hcr_r5_specific_info* dst);
void convert_pusch_info_vhcr(const PUSCH_Info_VHCR* src, umts_pusch_info_vhcr* dst);
void convert_pusch_sys_info_vhcr(const PUSCH_SysInfo_VHCR* src, umts_pusch_sys_info_vhcr* dst);
void convert_pusch_sysinfo_list_sfn_vhcr_element(const PUSCH_SysInfoList_SFN_VHCR_element* src, umts_pusch_sysinfo_sfn_vhcr* dst);
void convert_pusch_sysinfo_list_sfn_vhcr(const PUSCH_SysInfoList_SFN_VHCR* src, umts_pusch_sysinfo_list_sfn_vhcr* dst);
void convert_pdsch_info_r7_tdd_option(const PDSCH_Info_r7_tddOption* src, umts_pdsch_info_r7_tdd_option* dst);
void convert_pdsch_info_r7(const PDSCH_Info_r7* src, umts_pdsch_info_r7* dst);
void convert_pdsch_sys_info_vhcr_r7(const PDSCH_SysInfo_VHCR_r7* src, umts_pdsch_sys_info_vhcr_r7* dst);
void convert_pdsch_sysinfo_list_vhcr_r7(const PDSCH_SysInfoList_VHCR_r7* src, umts_pdsch_sysinfo_list_vhcr_r7* dst);
void convert_sync_ul_codes_bitmap(const Sync_UL_Codes_Bitmap* src, umts_bit_string32* dst);
void convert_sync_ul_info_r4(const SYNC_UL_Info_r4* src, umts_sync_ul_info_r4* dst);
void convert_prach_chan_codes_lcr_r4(const PRACH_ChanCodes_LCR_r4* src, umts_prach_chan_codes_lcr_r4* dst);
void convert_fpach_info_r4(const FPACH_Info_r4* src, umts_fpach_info_r4* dst);
void convert_prach_definition_lcr_r4(const PRACH_Definition_LCR_r4* src, umts_prach_definition_lcr_r4* dst);
void convert_prach_rach_info_lcr_r4(const PRACH_RACH_Info_LCR_r4* src, umts_prach_rach_info_lcr_r4* dst);
void convert_access_service_class_tdd_lcr_r4_subchannel_size(const AccessServiceClass_TDD_LCR_r4_subchannelSize* src, umts_subchannel_size* dst);
void convert_access_service_class_tdd_lcr_r4(const AccessServiceClass_TDD_LCR_r4* src, umts_access_service_class_tdd_lcr_r4* dst);
void convert_prach_partitioning_lcr_r4(const PRACH_Partitioning_LCR_r4* src, umts_prach_partitioning_lcr_r4* dst);
void convert_prach_system_information_lcr_r4(const PRACH_SystemInformation_LCR_r4* src, umts_prach_system_information_lcr_r4* dst);
void convert_prach_system_information_list_lcr_r4(const PRACH_SystemInformationList_LCR_r4* src, umts_prach_system_information_list_lcr_r4* dst);
void convert_tdd768_prach_c_code_list(const TDD768_PRACH_CCodeList* src, umts_tdd768_prach_ccode_list* dst);
void convert_prach_rach_info_vhcr_r7(const PRACH_RACH_Info_VHCR_r7* src, umts_prach_rach_info_vhcr_r7* dst);
void convert_prach_system_information_vhcr_r7(const PRACH_SystemInformation_VHCR_r7* src, umts_prach_system_information_vhcr_r7* dst);
void convert_prach_system_information_list_vhcr_r7(const PRACH_SystemInformationList_VHCR_r7* src, umts_prach_system_information_list_vhcr_r7* dst);
void convert_access_service_class_tdd_r7_subchannel_size(const AccessServiceClass_TDD_r7_subchannelSize* src, umts_subchannel_size_r7* dst);
void convert_access_service_class_tdd_r7(const AccessServiceClass_TDD_r7* src, umts_access_service_class_tdd_r7* dst);
void convert_prach_partitioning_r7_fdd(const PRACH_Partitioning_r7_fdd* src, umts_prach_partitioning_r7_fdd* dst);
void convert_prach_partitioning_r7_tdd(const PRACH_Partitioning_r7_tdd* src, umts_prach_partitioning_r7_tdd* dst);
void convert_prach_system_information_list_lcr_v770ext(const PRACH_SystemInformationList_LCR_v770ext* src, umts_prach_system_information_list_lcr_v770ext* dst);
void convert_pnbsch_allocation_r4(const PNBSCH_Allocation_r4* src, umts_pnbsch_allocation_r4* dst);
void convert_open_loop_power_control_ipdl_tdd_r4(const OpenLoopPowerControl_IPDL_TDD_r4* src, umts_open_loop_power_control_ipdl_tdd* dst);
void convert_individual_timeslot_info_lcr_r4_ext(const IndividualTimeslotInfo_LCR_r4_ext* src, umts_individual_timeslot_info_lcr_r4_ext* dst);
void convert_sccpch_system_information_lcr_r4_ext(const SCCPCH_SystemInformation_LCR_r4_ext* src, umts_sccpch_system_information_lcr_r4_ext* dst);
void convert_sccpch_system_information_list_lcr_r4_ext(const SCCPCH_SystemInformationList_LCR_r4_ext* src, umts_sccpch_system_information_list_lcr_r4_ext* dst);
void convert_sysinfotype5_v4b0ext_ies_tdd128_specific_info(const SysInfoType5_v4b0ext_IEs_tdd128SpecificInfo* src, umts_sib5_tdd128_specific_info* dst);
void convert_sysinfotype5_v770ext_ies_mode_specific_info_tdd768(const SysInfoType5_v770ext_IEs_modeSpecificInfo_tdd768* src, umts_sib5_v770_mode_specific_info_tdd768* dst);
void convert_sysinfotype5_v770ext_ies_mode_specific_info_tdd128(const SysInfoType5_v770ext_IEs_modeSpecificInfo_tdd128* src, umts_sib5_v770_mode_specific_info_tdd128* dst);
void convert_sccpch_channelisation_code_list_vhcr(const SCCPCH_ChannelisationCodeList_VHCR* src, umts_sccpch_channelisation_code_list_vhcr* dst);
void convert_secondary_ccpch_info_hcr_vhcr_r7(const SecondaryCCPCH_Info_HCR_VHCR_r7* src, umts_secondary_ccpch_info_hcr_vhcr_r7* dst);
void convert_pich_info_hcr_vhcr_r7(const PICH_Info_HCR_VHCR_r7* src, umts_pich_info_hcr_vhcr_r7* dst);
void convert_sccpch_system_information_hcr_vhcr_r7(const SCCPCH_SystemInformation_HCR_VHCR_r7* src, umts_sccpch_system_information_hcr_vhcr_r7* dst);
void convert_sccpch_system_information_list_hcr_vhcr_r7(const SCCPCH_SystemInformationList_HCR_VHCR_r7* src, umts_sccpch_system_information_list_hcr_vhcr_r7* dst);

/* ==== SIB5: MBMS S-CCPCH and additional PRACH formats =============================== */
void convert_sysinfotype5_v690ext_ies_sccpch_system_information_mbms(const SysInfoType5_v690ext_IEs_sccpch_SystemInformation_MBMS* src, umts_sib5_v690_sccpch_mbms* dst);
void convert_sysinfotype5_v770ext_ies_sccpch_system_information_mbms(const SysInfoType5_v770ext_IEs_sccpch_SystemInformation_MBMS* src, umts_sib5_v770_sccpch_mbms* dst);
void convert_um_rlc_out_o_seq_delivery_info_r6(const UM_RLC_OutOSeqDelivery_Info_r6* src, umts_um_rlc_out_o_seq_delivery_info* dst);
void convert_rlc_info_mcch_r6(const RLC_Info_MCCH_r6* src, umts_rlc_info_mcch* dst);
void convert_mbms_mcch_configuration_info_r6(const MBMS_MCCH_ConfigurationInfo_r6* src, umts_mbms_mcch_configuration_info* dst);
void convert_sccpch_system_information_mbms_r6_fach_carrying_mcch(const SCCPCH_SystemInformation_MBMS_r6_fachCarryingMCCH* src, umts_fach_carrying_mcch* dst);
void convert_sccpch_system_information_mbms_r7_fach_carrying_mcch(const SCCPCH_SystemInformation_MBMS_r7_fachCarryingMCCH* src, umts_fach_carrying_mcch* dst);
void convert_mbms_fach_carrying_mtch_list(const MBMS_FACHCarryingMTCH_List* src, umts_fach_carrying_mtch_list* dst);
void convert_mbms_msch_scheduling_info(const MBMS_MSCHSchedulingInfo* src, umts_mbms_msch_scheduling_info* dst);
void convert_sccpch_system_information_mbms_r6_fach_carrying_msch(const SCCPCH_SystemInformation_MBMS_r6_fachCarryingMSCH* src, umts_fach_carrying_msch_r6* dst);
void convert_sccpch_system_information_mbms_r7_fach_carrying_msch(const SCCPCH_SystemInformation_MBMS_r7_fachCarryingMSCH* src, umts_fach_carrying_msch_r7* dst);
void convert_common_timeslot_info_mbms(const CommonTimeslotInfoMBMS* src, umts_common_timeslot_info_mbms* dst);
void convert_secondary_ccpch_info_mbms_r6(const SecondaryCCPCHInfo_MBMS_r6* src, umts_secondary_ccpch_info_mbms_r6* dst);
void convert_secondary_ccpch_info_mbms_r7(const SecondaryCCPCHInfo_MBMS_r7* src, umts_secondary_ccpch_info_mbms_r7* dst);
void convert_secondary_ccpch_info_mbms_r7_mode_specific_info_tdd128(const SecondaryCCPCHInfo_MBMS_r7_modeSpecificInfo_tdd128* src, umts_secondary_ccpch_info_mbms_r7_tdd128* dst);
void convert_sccpch_system_information_mbms_r6(const SCCPCH_SystemInformation_MBMS_r6* src, umts_sccpch_system_information_mbms_r6* dst);
void convert_sccpch_system_information_mbms_r7(const SCCPCH_SystemInformation_MBMS_r7* src, umts_sccpch_system_information_mbms_r7* dst);
void convert_additional_prach_tf_and_tfcs_ccch_list(const AdditionalPRACH_TF_and_TFCS_CCCH_List* src, umts_additional_prach_tf_and_tfcs_ccch_list* dst);

/* ==== SIB5: 1.28 Mcps common E-DCH ================================================== */
void convert_reference_beta_list(const rtxDList* src, umts_reference_beta_list* dst);
void convert_e_rucch_info_tdd128(const E_RUCCH_Info_TDD128* src, umts_e_rucch_info_tdd128* dst);
void convert_sync_ul_info_for_e_rucch(const SYNC_UL_InfoForE_RUCCH* src, umts_sync_ul_info_for_e_rucch* dst);
void convert_prach_information_lcr_list(const PRACH_Information_LCR_List* src, umts_prach_information_lcr_list* dst);
void convert_e_puch_info_tdd128(const E_PUCH_Info_TDD128* src, umts_e_puch_info_tdd128* dst);
void convert_e_hich_information_tdd128(const E_HICH_Information_TDD128* src, umts_e_hich_information_tdd128* dst);
void convert_e_agch_information_tdd128(const E_AGCH_Information_TDD128* src, umts_e_agch_information_tdd128* dst);
void convert_ccch_transmission_info_tdd128(const CommonEDCHSystemInfo_modeSpecificInfo_tdd_tdd128_ccch_transmission_Info* src, umts_ccch_transmission_info_tdd128* dst);

/* ==== SIB5: PRACH system information ===================================================== */
void convert_prach_system_information_list(const PRACH_SystemInformationList* src, umts_prach_system_information_list* dst);
void convert_prach_system_information(const PRACH_SystemInformation* src, umts_prach_system_information* dst);
void convert_prach_rach_info(const PRACH_RACH_Info* src, umts_prach_rach_info* dst);
void convert_prach_rach_info_modespecific_info(const PRACH_RACH_Info_modeSpecificInfo* src, umts_prach_rach_info* dst);
void convert_prach_rach_info_modespecific_info_fdd(const PRACH_RACH_Info_modeSpecificInfo_fdd* src, umts_prach_rach_info_fdd* dst);
void convert_available_signatures(const AvailableSignatures* src, umts_bit_string32* dst);
void convert_available_subchannel_numbers(const AvailableSubChannelNumbers* src, umts_bit_string32* dst);
void convert_prach_rach_info_modespecific_info_tdd(const PRACH_RACH_Info_modeSpecificInfo_tdd* src, umts_prach_rach_info_tdd* dst);
void convert_tdd_prach_ccode_list(const TDD_PRACH_CCodeList* src, umts_tdd_prach_ccode_list* dst);
void convert_tdd_prach_ccode_list_sf8(const TDD_PRACH_CCodeList_sf8* src, umts_tdd_prach_ccode_list_n* dst);
void convert_tdd_prach_ccode_list_sf16(const TDD_PRACH_CCodeList_sf16* src, umts_tdd_prach_ccode_list_n* dst);
void convert_prach_partitioning(const PRACH_Partitioning* src, umts_prach_partitioning* dst);
void convert_prach_partitioning_fdd(const PRACH_Partitioning_fdd* src, umts_prach_partitioning_fdd* dst);
void convert_prach_partitioning_tdd(const PRACH_Partitioning_tdd* src, umts_prach_partitioning_tdd* dst);
void convert_access_service_class_fdd(const AccessServiceClass_FDD* src, umts_access_service_class_fdd* dst);
void convert_access_service_class_fdd_assigned_sub_channel_number(const AccessServiceClass_FDD_assignedSubChannelNumber* src, umts_bit_string32* dst);
void convert_access_service_class_tdd(const AccessServiceClass_TDD* src, umts_access_service_class_tdd* dst);
void convert_access_service_class_tdd_subchannel_size(const AccessServiceClass_TDD_subchannelSize* src, umts_subchannel_size* dst);
void convert_access_service_class_tdd_subchannel_size_size2(const AccessServiceClass_TDD_subchannelSize_size2* src, umts_subchannel_size2* dst);
void convert_access_service_class_tdd_subchannel_size_size4(const AccessServiceClass_TDD_subchannelSize_size4* src, umts_subchannel_size_bits* dst);
void convert_access_service_class_tdd_subchannel_size_size8(const AccessServiceClass_TDD_subchannelSize_size8* src, umts_subchannel_size_bits* dst);
void convert_persistence_scaling_factorlist(const PersistenceScalingFactorList* src, umts_persistence_scaling_factor_list* dst);
void convert_ac_to_asc_mapping_table(const AC_To_ASC_MappingTable* src, umts_ac_to_asc_mapping_table* dst);
void convert_prach_system_information_modespecific_info(const PRACH_SystemInformation_modeSpecificInfo* src, umts_prach_system_information_mode_specific_info* dst);
void convert_prach_system_information_modespecific_info_fdd(const PRACH_SystemInformation_modeSpecificInfo_fdd* src, umts_prach_system_information_fdd* dst);
void convert_prach_poweroffset(const PRACH_PowerOffset* src, umts_prach_power_offset* dst);
void convert_rach_transmission_parameters(const RACH_TransmissionParameters* src, umts_rach_transmission_parameters* dst);
void convert_aich_info(const AICH_Info* src, umts_aich_info* dst);

/* ==== SIB5: S-CCPCH, PICH and the TDD timeslot records =================================== */
void convert_sccpch_system_information_list(const SCCPCH_SystemInformationList* src, umts_sccpch_system_information_list* dst);
void convert_secondary_ccpch_info(const SecondaryCCPCH_Info* src, umts_secondary_ccpch_info* dst);
void convert_secondary_ccpch_info_modespecific_info_fdd(const SecondaryCCPCH_Info_modeSpecificInfo_fdd* src, umts_secondary_ccpch_info_fdd* dst);
void convert_secondary_ccpch_info_modespecific_info_tdd(const SecondaryCCPCH_Info_modeSpecificInfo_tdd* src, umts_secondary_ccpch_info_tdd* dst);
void convert_secondary_cpich_info(const SecondaryCPICH_Info* src, umts_secondary_cpich_info* dst);
void convert_sf256_and_code_num(const SF256_AndCodeNumber* src, umts_sf256_and_code_number* dst);
void convert_sf256_and_code_number(const SF256_AndCodeNumber* src, umts_sf256_and_code_number* dst);
void convert_common_timeslot_info_sccpch(const CommonTimeslotInfoSCCPCH* src, umts_common_timeslot_info_sccpch* dst);
void convert_repetition_period_length_and_offset(const RepetitionPeriodLengthAndOffset* src, umts_repetition_period_length_and_offset* dst);
void convert_repetition_period_n_length(const RepetitionPeriodLengthAndOffset_repetitionPeriod4* src, umts_repetition_period_length_offset* dst);
void convert_common_timeslot_info(const CommonTimeslotInfo* src, umts_common_timeslot_info* dst);
void convert_individual_timeslot_info(const IndividualTimeslotInfo* src, umts_individual_timeslot_info* dst);
void convert_midamble_shift_and_burst_type(const MidambleShiftAndBurstType* src, umts_midamble_shift_and_burst_type* dst);
void convert_midamble_shift_and_burst_type_burst_type_type1(const MidambleShiftAndBurstType_burstType_type1* src, umts_midamble_burst_type* dst);
void convert_midamble_shift_and_burst_type_burst_type_type2(const MidambleShiftAndBurstType_burstType_type2* src, umts_midamble_burst_type* dst);
void convert_midamble_shift_and_burst_type_burst_type_type3(const MidambleShiftAndBurstType_burstType_type3* src, umts_midamble_burst_type* dst);
void convert_midamble_shift_and_burst_type_midamble_allocation_mode(uint32_t tag, uint32_t ue_specific_tag, const uint8_t* midamble_shift, umts_midamble_burst_type* dst);
void convert_sccpch_channelisation_code_list(const SCCPCH_ChannelisationCodeList* src, umts_sccpch_channelisation_code_list* dst);
void convert_fach_pch_information_list(const FACH_PCH_InformationList* src, umts_fach_pch_information_list* dst);
void convert_pich_info(const PICH_Info* src, umts_pich_info* dst);
void convert_pich_info_fdd(const PICH_Info_fdd* src, umts_pich_info_fdd* dst);
void convert_pich_info_tdd(const PICH_Info_tdd* src, umts_pich_info_tdd* dst);
void convert_rep_per_length_offset_pich(const RepPerLengthOffset_PICH* src, umts_rep_per_length_offset_pich* dst);

/* ==== Transport format sets and TFCS ===================================================== */
void convert_transport_format_set(const TransportFormatSet* src, umts_transport_format_set* dst);
void convert_transport_format_set_lcr(const TransportFormatSet_LCR* src, umts_transport_format_set_lcr* dst);
void convert_common_trans_ch_tfs(const CommonTransChTFS* src, umts_common_trans_ch_tfs* dst);
void convert_dedicated_trans_ch_tfs(const DedicatedTransChTFS* src, umts_dedicated_trans_ch_tfs* dst);
void convert_common_trans_ch_tfs_lcr(const CommonTransChTFS_LCR* src, umts_common_trans_ch_tfs_lcr* dst);
void convert_common_trans_ch_tfs_tti(const CommonTransChTFS_tti* src, umts_common_trans_ch_tfs_tti* dst);
void convert_common_trans_ch_tfs_lcr_tti(const CommonTransChTFS_LCR_tti* src, umts_common_trans_ch_tfs_lcr_tti* dst);
void convert_dedicated_trans_ch_tfs_tti(const DedicatedTransChTFS_tti* src, umts_dedicated_trans_ch_tfs_tti* dst);
void convert_common_dynamic_tf_info_list(const CommonDynamicTF_InfoList* src, umts_common_dynamic_tf_info_list* dst);
void convert_common_dynamic_tf_info_list_dynamic_tti(const CommonDynamicTF_InfoList_DynamicTTI* src, umts_common_dynamic_tf_info_list_dynamic_tti* dst);
void convert_dedicated_dynamic_tf_info_list(const DedicatedDynamicTF_InfoList* src, umts_dedicated_dynamic_tf_info_list* dst);
void convert_dedicated_dynamic_tf_info_list_dynamic_tti(const DedicatedDynamicTF_InfoList_DynamicTTI* src, umts_dedicated_dynamic_tf_info_list_dynamic_tti* dst);
void convert_common_dynamic_tf_info_num_of_tb_size_list(const CommonDynamicTF_Info_numberOfTbSizeList* src, umts_number_of_tb_size_list* dst);
void convert_dedicated_dynamic_tf_info_num_of_tb_size_list(const DedicatedDynamicTF_Info_numberOfTbSizeList* src, umts_number_of_tb_size_list* dst);
void convert_number_of_tb_size_n_tti_list(const NumberOfTbSizeAndTTIList* src, umts_number_of_tb_size_and_tti_list* dst);
void convert_commmon_dynamic_tf_ino_common_tdd_choice(const CommonDynamicTF_Info_DynamicTTI_commonTDD_Choice* src, umts_common_tdd_choice* dst);
void convert_common_dynamic_tf_info_rlc_size_tdd_common_tdd_choice( const CommonDynamicTF_Info_rlc_Size_tdd_commonTDD_Choice* src, umts_common_tdd_choice* dst);
void convert_octet_mode_rlc_size_info_type2(const OctetModeRLC_SizeInfoType2* src, umts_octet_mode_rlc_size_info_type2* dst);
void convert_octet_mode_rlc_size_info_type_1(const OctetModeRLC_SizeInfoType1* src, umts_octet_mode_rlc_size_info_type1* dst);
void convert_bit_mode_rlc_size_info(const BitModeRLC_SizeInfo* src, umts_bit_mode_rlc_size_info* dst);
void convert_rlc_size_info_size_type2(const BitModeRLC_SizeInfo_sizeType2* src, umts_rlc_size_parts* dst);
void convert_rlc_size_info_size_type3(const BitModeRLC_SizeInfo_sizeType3* src, umts_rlc_size_parts* dst);
void convert_rlc_size_info_size_type4(const BitModeRLC_SizeInfo_sizeType4* src, umts_rlc_size_parts* dst);
void convert_logical_channel_list(const LogicalChannelList* src, umts_logical_channel_list* dst);
void convert_logical_channel_list_explicitList(const LogicalChannelList_explicitList* src, umts_logical_channel_explicit_list* dst);
void convert_semistatic_tf_information(const SemistaticTF_Information* src, umts_semistatic_tf_information* dst);
void convert_channel_coding_type(const ChannelCodingType* src, umts_channel_coding_type* dst);
void convert_tfcs(const TFCS* src, umts_tfcs* dst);
void convert_explicit_tfcs_configuration(const ExplicitTFCS_Configuration* src, umts_explicit_tfcs_configuration* dst);
void convert_explicit_tfcs_configuration_replacement(const ExplicitTFCS_Configuration_replacement* src, umts_explicit_tfcs_replacement* dst);
void convert_tfcs_removal_list(const TFCS_RemovalList* src, umts_tfcs_removal_list* dst);
void convert_tfcs_reconf_add_ctfcSize_ctfc2Bit(const TFCS_ReconfAdd_ctfcSize_ctfc2Bit* src, umts_tfcs_reconf_add* dst);
void convert_tfcs_reconf_add_ctfcSize_ctfc4Bit(const TFCS_ReconfAdd_ctfcSize_ctfc4Bit* src, umts_tfcs_reconf_add* dst);
void convert_tfcs_reconf_add_ctfcSize_ctfc6Bit(const TFCS_ReconfAdd_ctfcSize_ctfc6Bit* src, umts_tfcs_reconf_add* dst);
void convert_tfcs_reconf_add_ctfcSize_ctfc8Bit(const TFCS_ReconfAdd_ctfcSize_ctfc8Bit* src, umts_tfcs_reconf_add* dst);
void convert_tfcs_reconf_add_ctfcSize_ctfc12Bit(const TFCS_ReconfAdd_ctfcSize_ctfc12Bit* src, umts_tfcs_reconf_add* dst);
void convert_tfcs_reconf_add_ctfcSize_ctfc16Bit(const TFCS_ReconfAdd_ctfcSize_ctfc16Bit* src, umts_tfcs_reconf_add* dst);
void convert_tfcs_reconf_add_ctfcSize_ctfc24Bit(const TFCS_ReconfAdd_ctfcSize_ctfc24Bit* src, umts_tfcs_reconf_add* dst);
void convert_tfcs_reconf_add(const TFCS_ReconfAdd* src, umts_tfcs_reconf_add* dst);
void convert_split_tfci_signalling(const SplitTFCI_Signalling* src, umts_split_tfci_signalling* dst);
void convert_tfci_field2_information(const TFCI_Field2_Information* src, umts_tfci_field2_information* dst);
void convert_tfci_rangelist(const TFCI_RangeList* src, umts_tfci_range_list* dst);
void convert_tfcs_info_for_dsch(const TFCS_InfoForDSCH* src, umts_tfcs_info_for_dsch* dst);
void convert_power_offset_information(const PowerOffsetInformation* src, umts_power_offset_information* dst);
void convert_gain_factor_information(const GainFactorInformation* src, umts_gain_factor_information* dst);
void convert_signalled_gain_factors(const SignalledGainFactors* src, umts_signalled_gain_factors* dst);
void convert_signalled_gain_factors_mode_specific_info(const SignalledGainFactors_modeSpecificInfo* src, umts_signalled_gain_factors_mode_specific_info* dst);

/* ==== SIB11, SIB11bis and SIB12 ========================================================== */

/* FACH measurement occasion; inter_RAT_meas_ind is copied with all 15 entries. */
void convert_fach_measurement_occasion_info(const FACH_MeasurementOccasionInfo* src,
                                            umts_fach_measurement_occasion_info* dst);
void convert_fach_measurement_occasion_info_inter_rat_meas_ind(const FACH_MeasurementOccasionInfo_inter_RAT_meas_ind* src,
                                                               umts_inter_rat_meas_ind* dst);

/* MeasurementControlSysInfo of SIB11 and SIB12: use_of_HCS, then cellSelectQualityMeasure,
   choose the form of the cell records; in every form the intra-frequency and the
   inter-frequency records are both converted when present. */
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

/* Heads of the SIB11 and SIB12 extension chains: v4b0 under bit 0, the v590 link under bit 1. */
void convert_sysinfotype11_v4b0_nc_extensions(const SysInfoType11_v4b0NonCriticalExtensions* src,
                                              umts_sib11_v4b0_nc_extensions* dst);
void convert_sysinfotype12_v4b0_nc_extensions(const SysInfoType12_v4b0NonCriticalExtensions* src,
                                              umts_sib12_v4b0_nc_extensions* dst);

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

/* ==== SIB11 and SIB12: the v4b0 records and the extension chains ========================== */

/* The decoded links of the SIB11 chain from v690 on and of the SIB12 chain from v6b0 on,
   under shorter names. */
typedef SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions
    umts_sib11_v690_nces_src;
typedef SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions
    umts_sib11_v6b0_nces_src;
typedef SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions
    umts_sib11_v770_nces_src;
typedef SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions_v7b0NonCriticalExtensions
    umts_sib11_v7b0_nces_src;
typedef SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions_v7b0NonCriticalExtensions_v860NonCriticalExtensions
    umts_sib11_v860_nces_src;
typedef SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions_v7b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions
    umts_sib11_nces_src;
typedef SysInfoType12_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions
    umts_sib12_v6b0_nces_src;
typedef SysInfoType12_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v7b0NonCriticalExtensions
    umts_sib12_v7b0_nces_src;
typedef SysInfoType12_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v7b0NonCriticalExtensions_nonCriticalExtensions
    umts_sib12_nces_src;

/* v4b0: the LCR FACH byte and the LCR measurement control tree (SIB11:
   convert_MeasurementControlSysInfo_LCR_r4, SIB12: convert_measurement_control_sys_info_lcr_r4_ext,
   declared with the LCR trees below). */
void convert_sysInfoType11_v4b0ext(const SysInfoType11_v4b0ext_IEs* src, umts_sib11_v4b0ext* dst);
void convert_sysinfotype12_v4b0ext_ies(const SysInfoType12_v4b0ext_IEs* src, umts_sib12_v4b0ext* dst);
void convert_fach_MeasurementOccasionInfo_LCR_Ext(const FACH_MeasurementOccasionInfo_LCR_r4_ext* src, uint8_t* dst);
void convert_fach_measurement_occasion_info_lcr_r4_ext(const FACH_MeasurementOccasionInfo_LCR_r4_ext* src, uint8_t* dst);

/* The links of SIB11: each converts its extension, then the next link under bit 0. */
void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension(
    const SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension* src, umts_sib11_v590_nc_extension* dst);
void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions(
    const umts_sib11_v690_nces_src* src, umts_sib11_v690_nc_extensions* dst);
void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions(
    const umts_sib11_v6b0_nces_src* src, umts_sib11_v6b0_nc_extensions* dst);
void convert_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions(
    const umts_sib11_v770_nces_src* src, umts_sib11_v770_nc_extensions* dst);
void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions_v7b0NonCriticalExtensions(
    const umts_sib11_v7b0_nces_src* src, umts_sib11_v7b0_nc_extensions* dst);
void convert_SysInfoType11_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v770NonCriticalExtensions_v7b0NonCriticalExtensions_v860NonCriticalExtensions(
    const umts_sib11_v860_nces_src* src, umts_sib11_v860_nc_extensions* dst);
void convert_SysInfoType11_nonCriticalExtensions(const umts_sib11_nces_src* src, uint8_t* dst);

/* The links of SIB12. */
void convert_sysinfotype12_v4b0nces_v590nce(const SysInfoType12_v4b0NonCriticalExtensions_v590NonCriticalExtension* src,
                                            umts_sib12_v590_nc_extension* dst);
void convert_sysinfotype12_v4b0nces_v590nce_v690nces(
    const SysInfoType12_v4b0NonCriticalExtensions_v590NonCriticalExtension_v690NonCriticalExtensions* src,
    umts_sib12_v690_nc_extensions* dst);
void convert_sysinfotype12_v4b0nces_v590nce_v690nces_v6b0nces(const umts_sib12_v6b0_nces_src* src,
                                                              umts_sib12_v6b0_nc_extensions* dst);
void convert_sysinfotype12_v4b0nces_v590nce_v690nces_v6b0nces_v7b0nces(const umts_sib12_v7b0_nces_src* src,
                                                                       umts_sib12_v7b0_nc_extensions* dst);
void convert_sysinfotype12_v4b0nces_v590nce_v690nces_v6b0nces_v7b0nces_nces(const umts_sib12_nces_src* src, uint8_t* dst);

/* The extension records of SIB11, then those of SIB12. */
void convert_SysInfoType11_v590ext_IEs(const SysInfoType11_v590ext_IEs* src, umts_v590ext_ies* dst);
void convert_SysInfoType11_v690ext_IEs(const SysInfoType11_v690ext_IEs* src, umts_v690ext_ies* dst);
void convert_SysInfoType11_v6b0ext_IEs(const SysInfoType11_v6b0ext_IEs* src, umts_v6b0ext_ies* dst);
void convert_SysInfoType11_v770ext_IEs(const SysInfoType11_v770ext_IEs* src, umts_sib11_v770ext_ies* dst);
void convert_SysInfoType11_v7b0ext_IEs(const SysInfoType11_v7b0ext_IEs* src, umts_v7b0ext_ies* dst);
void convert_SysInfoType11_v860ext_IEs(const SysInfoType11_v860ext_IEs* src, umts_sib11_v860ext_ies* dst);
void convert_sysinfotype12_v590ext_ies(const SysInfoType12_v590ext_IEs* src, umts_v590ext_ies* dst);
void convert_sysinfotype12_v690ext_ies(const SysInfoType12_v690ext_IEs* src, umts_v690ext_ies* dst);
void convert_sysinfotype12_v6b0ext_ies(const SysInfoType12_v6b0ext_IEs* src, umts_v6b0ext_ies* dst);
void convert_sysinfotype12_v7b0ext_ies(const SysInfoType12_v7b0ext_IEs* src, umts_v7b0ext_ies* dst);

/* v590: the cell lists (each element the v590 cell record of SIB3), the RSCP deltas, event 1b
   reporting and event 1d. */
void convert_SysInfoType11_v590ext_IEs_newIntraFrequencyCellInfoList_v590ext(
    const SysInfoType11_v590ext_IEs_newIntraFrequencyCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst);
void convert_SysInfoType11_v590ext_IEs_newInterFrequencyCellInfoList_v590ext(
    const SysInfoType11_v590ext_IEs_newInterFrequencyCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst);
void convert_SysInfoType11_v590ext_IEs_newInterRATCellInfoList_v590ext(
    const SysInfoType11_v590ext_IEs_newInterRATCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst);
void convert_sysinfotype12_v590ext_ies_new_intra_frequency_cell_info_list_v590ext(
    const SysInfoType12_v590ext_IEs_newIntraFrequencyCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst);
void convert_sysinfotype12_v590ext_ies_new_inter_frequency_cell_info_list_v590ext(
    const SysInfoType12_v590ext_IEs_newInterFrequencyCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst);
void convert_sysinfotype12_v590ext_ies_new_inter_rat_cell_info_list_v590ext(
    const SysInfoType12_v590ext_IEs_newInterRATCellInfoList_v590ext* src, umts_cell_select_reselect_info_v590ext_list* dst);
void convert_CellSelectReselectInfo_v590ext(const CellSelectReselectInfo_v590ext* src,
                                            umts_cell_select_reselect_info_v590ext* dst);
void convert_cell_select_reselect_info_v590ext(const CellSelectReselectInfo_v590ext* src,
                                               umts_cell_select_reselect_info_v590ext* dst);
void convert_Intra_FreqEventCriteriaList_v590ext(const Intra_FreqEventCriteriaList_v590ext* src,
                                                 umts_intra_freq_event_criteria_list_v590ext* dst);
void convert_intra_freq_event_criteria_list_v590ext(const Intra_FreqEventCriteriaList_v590ext* src,
                                                    umts_intra_freq_event_criteria_list_v590ext* dst);
void convert_IntraFreqReportingCriteria_1b_r5(const IntraFreqReportingCriteria_1b_r5* src,
                                              umts_intra_freq_reporting_criteria_1b_r5* dst);
void convert_PeriodicReportingInfo_1b(const PeriodicReportingInfo_1b* src, umts_periodic_reporting_info_1b* dst);
void convert_intra_freq_reporting_criteria_1b_r5(const IntraFreqReportingCriteria_1b_r5* src,
                                                 umts_intra_freq_reporting_criteria_1b_r5* dst);
void convert_IntraFreqEvent_1d_r5(const IntraFreqEvent_1d_r5* src, umts_intra_freq_event_1d_r5* dst);
void convert_intra_freq_event_1d_r5(const IntraFreqEvent_1d_r5* src, umts_intra_freq_event_1d_r5* dst);

/* v690 (dummy) and v6b0: the inter-frequency RACH reporting information. */
void convert_Dummy_InterFreqRACHReportingInfo(const Dummy_InterFreqRACHReportingInfo* src,
                                              umts_dummy_inter_freq_rach_reporting_info* dst);
void convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo(
    const Dummy_InterFreqRACHReportingInfo_modeSpecificInfo* src,
    umts_dummy_inter_freq_rach_reporting_info_mode_specific_info* dst);
void convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_fdd(
    const Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_fdd* src, uint32_t* dst);
void convert_Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_tdd(
    const Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_tdd* src, umts_inter_freq_rep_quantity_rach_tdd_list* dst);
void convert_dummy_inter_freq_rach_reporting_info(const Dummy_InterFreqRACHReportingInfo* src,
                                                  umts_dummy_inter_freq_rach_reporting_info* dst);
void convert_dummy_inter_freq_rach_reporting_info_mode_specific_info(
    const Dummy_InterFreqRACHReportingInfo_modeSpecificInfo* src,
    umts_dummy_inter_freq_rach_reporting_info_mode_specific_info* dst);
void convert_InterFreqRACHReportingInfo(const InterFreqRACHReportingInfo* src, umts_inter_freq_rach_reporting_info* dst);
void convert_InterFreqRACHReportingInfo_modeSpecificInfo(const InterFreqRACHReportingInfo_modeSpecificInfo* src,
                                                         umts_inter_freq_rach_reporting_info_mode_specific_info* dst);
void convert_InterFreqRACHReportingInfo_modeSpecificInfo_fdd(const InterFreqRACHReportingInfo_modeSpecificInfo_fdd* src,
                                                             uint32_t* dst);
void convert_InterFreqRACHReportingInfo_modeSpecificInfo_tdd(const InterFreqRACHReportingInfo_modeSpecificInfo_tdd* src,
                                                             umts_inter_freq_rep_quantity_rach_tdd_list* dst);
void convert_InterFreqRepQuantityRACH_TDDList(const InterFreqRepQuantityRACH_TDDList* src,
                                              umts_inter_freq_rep_quantity_rach_tdd_list* dst);
void convert_inter_freq_rach_reporting_info(const InterFreqRACHReportingInfo* src, umts_inter_freq_rach_reporting_info* dst);
void convert_inter_freq_rach_reporting_info_mode_specific_info(const InterFreqRACHReportingInfo_modeSpecificInfo* src,
                                                               umts_inter_freq_rach_reporting_info_mode_specific_info* dst);

/* v770 and v860 of SIB11: the MBSFN frequencies and their IMB indications. */
void convert_MBSFNFrequencyList(const MBSFNFrequencyList* src, umts_mbsfn_frequency_list* dst);
void convert_MBSFNFrequency(const MBSFNFrequency* src, umts_mbsfn_frequency* dst);
void convert_MBSFNFrequencyList_v860ext(const MBSFNFrequencyList_v860ext* src, umts_mbsfn_frequency_list_v860ext* dst);
void convert_MBSFNFrequency_v860ext(const MBSFNFrequency_v860ext* src, umts_mbsfn_frequency_v860ext* dst);

/* v7b0 of SIB11 (SIB12 and SIB11bis take convert_new_inter_freq_cell_list_v7b0ext). */
void convert_NewInterFreqCellList_v7b0ext(const NewInterFreqCellList_v7b0ext* src,
                                          umts_new_inter_freq_cell_list_v7b0ext* dst);
void convert_NewInterFreqCell_v7b0ext(const NewInterFreqCell_v7b0ext* src, uint8_t* dst);

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

/* ==== LCR (TDD 1.28 Mcps) measurement control information =============================== */

/* The LCR primary CCPCH and timeslots, shared by the three trees. */
void convert_primary_ccpch_info_lcr_r4(const PrimaryCCPCH_Info_LCR_r4* src, umts_primary_ccpch_info_lcr_r4* dst);
void convert_timeslot_info_list_lcr_r4(const TimeslotInfoList_LCR_r4* src, umts_timeslot_info_list_lcr_r4* dst);

/* The records of the four forms in the SIB12 and SIB11bis trees (v rscp, ecno, hcs_rscp,
   hcs_ecno; V RSCP, ECN0, HCS_RSCP, HCS_ECN0). Every new inter-frequency cell converts its
   frequency by its bit. */
#define UMTS_DECLARE_LCR_FORM(v, V)                                                                            \
  void convert_cell_info_si_##v##_lcr_r4(const CellInfoSI_##V##_LCR_r4* src, umts_cell_info_si_##v##_lcr_r4* dst); \
  void convert_new_intra_freq_cell_si_list_##v##_lcr_r4(const NewIntraFreqCellSI_List_##V##_LCR_r4* src,       \
                                                        umts_new_intra_freq_cell_si_list_##v##_lcr_r4* dst);  \
  void convert_new_inter_freq_cell_si_list_##v##_lcr_r4(const NewInterFreqCellSI_List_##V##_LCR_r4* src,       \
                                                        umts_new_inter_freq_cell_si_list_##v##_lcr_r4* dst);  \
  void convert_intra_freq_cell_info_si_list_##v##_lcr_r4(const IntraFreqCellInfoSI_List_##V##_LCR_r4* src,     \
                                                         umts_intra_freq_cell_info_si_list_##v##_lcr_r4* dst); \
  void convert_inter_freq_cell_info_si_list_##v##_lcr(const InterFreqCellInfoSI_List_##V##_LCR* src,           \
                                                      umts_inter_freq_cell_info_si_list_##v##_lcr* dst);      \
  void convert_intra_freq_measurement_sys_info_##v##_lcr_r4(const IntraFreqMeasurementSysInfo_##V##_LCR_r4* src, \
                                                            umts_intra_freq_measurement_sys_info_##v##_lcr_r4* dst); \
  void convert_inter_freq_measurement_sys_info_##v##_lcr_r4(const InterFreqMeasurementSysInfo_##V##_LCR_r4* src, \
                                                            umts_inter_freq_measurement_sys_info_##v##_lcr_r4* dst);
UMTS_DECLARE_LCR_FORM(rscp, RSCP)
UMTS_DECLARE_LCR_FORM(ecno, ECN0)
UMTS_DECLARE_LCR_FORM(hcs_rscp, HCS_RSCP)
UMTS_DECLARE_LCR_FORM(hcs_ecno, HCS_ECN0)

/* Reporting in CELL_DCH with events 1a and 1b of LCR forbidden cells. */
void convert_reporting_info_for_cell_dch_lcr_r4(const ReportingInfoForCellDCH_LCR_r4* src,
                                                umts_reporting_info_for_cell_dch_lcr_r4* dst);
void convert_cell_dch_report_criteria_lcr_r4(const CellDCH_ReportCriteria_LCR_r4* src,
                                             umts_cell_dch_report_criteria_lcr_r4* dst);
void convert_intra_freq_reporting_criteria_lcr_r4(const IntraFreqReportingCriteria_LCR_r4* src,
                                                  umts_intra_freq_reporting_criteria_lcr_r4* dst);
void convert_intra_freq_event_criteria_list_lcr_r4(const IntraFreqEventCriteriaList_LCR_r4* src,
                                                   umts_intra_freq_event_criteria_list_lcr_r4* dst);
void convert_intra_freq_event_criteria_lcr_r4(const IntraFreqEventCriteria_LCR_r4* src,
                                              umts_intra_freq_event_criteria_lcr_r4* dst);
void convert_intra_freq_event_lcr_r4(const IntraFreqEvent_LCR_r4* src, umts_intra_freq_event_lcr_r4* dst);
void convert_event_1a_lcr_r4(const Event1a_LCR_r4* src, umts_event_1a_lcr_r4* dst);
void convert_event_1b_lcr_r4(const Event1b_LCR_r4* src, umts_event_1b_lcr_r4* dst);
void convert_forbidden_affect_cell_list_lcr_r4(const ForbiddenAffectCellList_LCR_r4* src,
                                               umts_forbidden_affect_cell_list_lcr_r4* dst);

/* SIB12: MeasurementControlSysInfo-LCR-r4-ext of the v4b0 extension. */
void convert_measurement_control_sys_info_lcr_r4_ext(const MeasurementControlSysInfo_LCR_r4_ext* src,
                                                     umts_measurement_control_sys_info_lcr_r4_ext* dst);
void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs(const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS* src,
                                                                umts_use_of_hcs_lcr_r4_ext* dst);
void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used* src, umts_lcr_hcs_not_used* dst);
void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used* src, umts_lcr_hcs_used* dst);
void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used_cell_select_quality_measure(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_lcr_hcs_not_used_quality_measure* dst);
void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used_cell_select_quality_measure(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_lcr_hcs_used_quality_measure* dst);
void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_lcr_hcs_not_used_cpich_rscp* dst);
void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_lcr_hcs_not_used_cpich_ec_n0* dst);
void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_lcr_hcs_used_cpich_rscp* dst);
void convert_measurement_control_sys_info_lcr_r4_ext_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ecno(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_lcr_hcs_used_cpich_ec_n0* dst);

/* SIB11bis: MeasurementControlSysInfoExtension-LCR-r4, the new-cell lists. */
void convert_measurement_control_sys_info_extension_lcr_r4(const MeasurementControlSysInfoExtension_LCR_r4* src,
                                                           umts_measurement_control_sys_info_extension_lcr_r4* dst);
void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS* src, umts_ext_use_of_hcs_lcr_r4* dst);
void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used* src, umts_ext_hcs_not_used_lcr_r4* dst);
void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_used* src, umts_ext_hcs_used_lcr_r4* dst);
void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used_cell_select_quality_measure(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_ext_hcs_not_used_quality_measure_lcr_r4* dst);
void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used_cell_select_quality_measure(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_ext_hcs_used_quality_measure_lcr_r4* dst);
void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_ext_hcs_not_used_cpich_rscp_lcr_r4* dst);
void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_not_used_cell_select_quality_measure_cpich_ec_no(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_ext_hcs_not_used_cpich_ec_n0_lcr_r4* dst);
void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_rscp(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_ext_hcs_used_cpich_rscp_lcr_r4* dst);
void convert_measurement_control_sys_info_extension_lcr_r4_use_of_hcs_hcs_used_cell_select_quality_measure_cpich_ecno(
    const MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_ext_hcs_used_cpich_ec_n0_lcr_r4* dst);

/* SIB11: the same tree under the schema's names, with the places where it converts otherwise
   (see convert_lcr_sib11.cpp): an RSCP element without intraFreqCellID keeps a zero cell; the
   ECN0 cell converts primaryCCPCH_Info only with cellSelectionReselectionInfo; the HCS_RSCP
   selection record converts modeSpecificInfo only with the HCS information; the RSCP
   inter-frequency list converts its new cells before its removed cells, whose identities of
   more than 8 run on over the new-cell list and leave it empty; e1d and e1g dispatch as
   events 1e and 1h; the reporting cell status keeps its value for tags 1 to 14 only. */
void convert_MeasurementControlSysInfo_LCR_r4(const MeasurementControlSysInfo_LCR_r4_ext* src,
                                              umts_measurement_control_sys_info_lcr_r4_ext* dst);
void conver_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS(const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS* src,
                                                            umts_use_of_hcs_lcr_r4_ext* dst);
void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used* src, umts_lcr_hcs_not_used* dst);
void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used* src, umts_lcr_hcs_used* dst);
void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure* src,
    umts_lcr_hcs_not_used_quality_measure* dst);
void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure* src,
    umts_lcr_hcs_used_quality_measure* dst);
void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_lcr_hcs_not_used_cpich_rscp* dst);
void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_lcr_hcs_not_used_cpich_ec_n0* dst);
void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP* src,
    umts_lcr_hcs_used_cpich_rscp* dst);
void convert_MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0(
    const MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_lcr_hcs_used_cpich_ec_n0* dst);
void convert_intraFreqMeasurementSysInfo(const IntraFreqMeasurementSysInfo_RSCP_LCR_r4* src,
                                         umts_intra_freq_measurement_sys_info_rscp_lcr_r4* dst);
/* The records of the forms in the SIB11 tree (V RSCP, ECN0, HCS_RSCP, HCS_ECN0); the RSCP
   measurement record is convert_intraFreqMeasurementSysInfo above. */
#define UMTS_DECLARE_LCR_SIB11_FORM(v, V)                                                                      \
  void convert_IntraFreqCellInfoSI_List_##V##_LCR_r4(const IntraFreqCellInfoSI_List_##V##_LCR_r4* src,         \
                                                     umts_intra_freq_cell_info_si_list_##v##_lcr_r4* dst);     \
  void convert_NewIntraFreqCellSI_List_##V##_LCR_r4(const NewIntraFreqCellSI_List_##V##_LCR_r4* src,           \
                                                    umts_new_intra_freq_cell_si_list_##v##_lcr_r4* dst);      \
  void convert_NewIntraFreqCellSI_##V##_LCR_r4(const NewIntraFreqCellSI_##V##_LCR_r4* src,                     \
                                               umts_new_intra_freq_cell_si_##v##_lcr_r4* dst);                \
  void convert_InterFreqMeasurementSysInfo_##V##_LCR_r4(const InterFreqMeasurementSysInfo_##V##_LCR_r4* src,   \
                                                        umts_inter_freq_measurement_sys_info_##v##_lcr_r4* dst); \
  void convert_InterFreqCellInfoSI_List_##V##_LCR(const InterFreqCellInfoSI_List_##V##_LCR* src,               \
                                                  umts_inter_freq_cell_info_si_list_##v##_lcr* dst);          \
  void convert_NewInterFreqCellSI_List_##V##_LCR_r4(const NewInterFreqCellSI_List_##V##_LCR_r4* src,           \
                                                    umts_new_inter_freq_cell_si_list_##v##_lcr_r4* dst);      \
  void convert_NewInterFreqCellSI_##V##_LCR_r4(const NewInterFreqCellSI_##V##_LCR_r4* src,                     \
                                               umts_new_inter_freq_cell_si_##v##_lcr_r4* dst);
UMTS_DECLARE_LCR_SIB11_FORM(rscp, RSCP)
UMTS_DECLARE_LCR_SIB11_FORM(ecno, ECN0)
UMTS_DECLARE_LCR_SIB11_FORM(hcs_rscp, HCS_RSCP)
UMTS_DECLARE_LCR_SIB11_FORM(hcs_ecno, HCS_ECN0)
void convert_IntraFreqMeasurementSysInfo_ECN0_LCR_r4(const IntraFreqMeasurementSysInfo_ECN0_LCR_r4* src,
                                                     umts_intra_freq_measurement_sys_info_ecno_lcr_r4* dst);
void convert_IntraFreqMeasurementSysInfo_HCS_RSCP_LCR_r4(const IntraFreqMeasurementSysInfo_HCS_RSCP_LCR_r4* src,
                                                         umts_intra_freq_measurement_sys_info_hcs_rscp_lcr_r4* dst);
void convert_IntraFreqMeasurementSysInfo_HCS_ECN0_LCR_r4(const IntraFreqMeasurementSysInfo_HCS_ECN0_LCR_r4* src,
                                                         umts_intra_freq_measurement_sys_info_hcs_ecno_lcr_r4* dst);
/* The cells (HCS_ECN0: convert_cell_info_si_hcs_ecno_lcr_r4) and their selection records. */
void convert_CellInfoSI_RSCP_LCR_r4(const CellInfoSI_RSCP_LCR_r4* src, umts_cell_info_si_rscp_lcr_r4* dst);
void convert_CellInfoSI_ECN0_LCR_r4(const CellInfoSI_ECN0_LCR_r4* src, umts_cell_info_si_ecno_lcr_r4* dst);
void convert_CellInfoSI_HCS_RSCP_LCR_r4(const CellInfoSI_HCS_RSCP_LCR_r4* src, umts_cell_info_si_hcs_rscp_lcr_r4* dst);
#define UMTS_DECLARE_LCR_SIB11_SELECTION(v, V)                                                                 \
  void convert_CellSelectReselectInfoSIB_11_12_##V(const CellSelectReselectInfoSIB_11_12_##V* src,             \
                                                   umts_cell_select_reselect_info_sib_11_12_##v* dst);        \
  void convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo(                                         \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo* src, umts_cell_select_reselect_mode_specific_info* dst); \
  void convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_fdd(                                     \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_fdd* src,                                   \
      umts_cell_select_reselect_mode_specific_info_fdd* dst);                                                  \
  void convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_tdd(                                     \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_tdd* src,                                   \
      umts_cell_select_reselect_mode_specific_info_rxlev* dst);                                                \
  void convert_CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_gsm(                                     \
      const CellSelectReselectInfoSIB_11_12_##V##_modeSpecificInfo_gsm* src,                                   \
      umts_cell_select_reselect_mode_specific_info_rxlev* dst);
UMTS_DECLARE_LCR_SIB11_SELECTION(rscp, RSCP)
UMTS_DECLARE_LCR_SIB11_SELECTION(ecno, ECN0)
void convert_CellSelectReselectInfoSIB_11_12_HCS_RSCP(const CellSelectReselectInfoSIB_11_12_HCS_RSCP* src,
                                                      umts_cell_select_reselect_info_sib_11_12_hcs_rscp* dst);
void convert_HCS_NeighbouringCellInformation_RSCP(const HCS_NeighbouringCellInformation_RSCP* src,
                                                  umts_hcs_neighbouring_cell_info_rscp* dst);
void convert_HCS_CellReselectInformation_RSCP(const HCS_CellReselectInformation_RSCP* src, umts_penalty_time_rscp* dst);
void convert_PenaltyTime_RSCP(const PenaltyTime_RSCP* src, umts_penalty_time_rscp* dst);
void convert_ReferenceTimeDifferenceToCell(const ReferenceTimeDifferenceToCell* src,
                                           umts_reference_time_difference_to_cell* dst);
void convert_PrimaryCCPCH_Info_LCR_r4(const PrimaryCCPCH_Info_LCR_r4* src, umts_primary_ccpch_info_lcr_r4* dst);
void convert_TimeslotInfoList_LCR_r4(const TimeslotInfoList_LCR_r4* src, umts_timeslot_info_list_lcr_r4* dst);
void convert_TimeslotInfo_LCR_r4(const TimeslotInfo_LCR_r4* src, uint8_t* dst);
/* Removed cells and frequencies. */
void convert_RemovedIntraFreqCellList(const RemovedIntraFreqCellList* src, umts_removed_intra_freq_cell_list* dst);
void convert_removeSomeIntraFreqCells(const RemovedIntraFreqCellList_removeSomeIntraFreqCells* src,
                                      umts_removed_intra_freq_cells* dst);
void convert_RemovedInterFreqCellList(const RemovedInterFreqCellList* src, umts_removed_inter_freq_cell_list* dst);
void convert_RemovedInterFreqCellList_removeSomeInterFreqCells(const RemovedInterFreqCellList_removeSomeInterFreqCells* src,
                                                               umts_removed_inter_freq_cells* dst);
void convert_FrequencyInfo(const FrequencyInfo* src, umts_frequency_info* dst);
void convert_FrequencyInfo_modeSpecificInfo(const FrequencyInfo_modeSpecificInfo* src, umts_frequency_info* dst);
void convert_FrequencyInfoFDD(const FrequencyInfoFDD* src, umts_frequency_info_fdd* dst);
/* Quantities. */
void convert_IntraFreqMeasQuantity(const IntraFreqMeasQuantity* src, umts_intra_freq_meas_quantity* dst);
void convert_IntraFreqMeasQuantity_modeSpecificInfo(const IntraFreqMeasQuantity_modeSpecificInfo* src,
                                                    umts_intra_freq_meas_quantity_mode_specific_info* dst);
void convert_IntraFreqMeasQuantity_modeSpecificInfo_fdd(const IntraFreqMeasQuantity_modeSpecificInfo_fdd* src,
                                                        uint32_t* dst);
void convert_IntraFreqMeasQuantity_modeSpecificInfo_tdd(const IntraFreqMeasQuantity_modeSpecificInfo_tdd* src,
                                                        umts_intra_freq_meas_quantity_tdd_list* dst);
void convert_intraFreqMeasQuantity_TDDList(const IntraFreqMeasQuantity_TDDList* src,
                                           umts_intra_freq_meas_quantity_tdd_list* dst);
void convert_IntraFreqReportingQuantityForRACH(const IntraFreqReportingQuantityForRACH* src,
                                               umts_intra_freq_reporting_quantity_for_rach* dst);
void convert_IntraFreqReportingQuantityForRACH_modeSpecificInfo(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo* src,
    umts_intra_freq_reporting_quantity_for_rach_mode_specific_info* dst);
void convert_IntraFreqReportingQuantityForRACH_modeSpecificInfo_fdd(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo_fdd* src, uint32_t* dst);
void convert_IntraFreqReportingQuantityForRACH_modeSpecificInfo_tdd(
    const IntraFreqReportingQuantityForRACH_modeSpecificInfo_tdd* src, umts_intra_freq_rep_quantity_rach_tdd_list* dst);
void convert_intraFreqReportingQuantity(const IntraFreqReportingQuantity* src, umts_intra_freq_reporting_quantity* dst);
void convert_detectedSetReportingQuantities(const CellReportingQuantities* src, umts_cell_reporting_quantities* dst);
void convert_CellReportingQuantities_modeSpecificInfo(const CellReportingQuantities_modeSpecificInfo* src,
                                                      umts_cell_reporting_quantities_mode_specific_info* dst);
void convert_CellReportingQuantities_modeSpecificInfo_fdd(const CellReportingQuantities_modeSpecificInfo_fdd* src,
                                                          umts_cell_reporting_quantities_fdd* dst);
void convert_CellReportingQuantities_modeSpecificInfo_tdd(const CellReportingQuantities_modeSpecificInfo_tdd* src,
                                                          umts_cell_reporting_quantities_tdd* dst);
void convert_measurementReportingMode(const MeasurementReportingMode* src, umts_measurement_reporting_mode* dst);
void convert_periodicalReportingCriteria(const PeriodicalReportingCriteria* src, umts_periodical_reporting_criteria* dst);
/* Reporting. */
void convert_ReportingInfoForCellDCH_LCR_r4(const ReportingInfoForCellDCH_LCR_r4* src,
                                            umts_reporting_info_for_cell_dch_lcr_r4* dst);
void convert_CellDCH_ReportCriteria_LCR_r4(const CellDCH_ReportCriteria_LCR_r4* src,
                                           umts_cell_dch_report_criteria_lcr_r4* dst);
void convert_intraFreqReportingCriteria(const IntraFreqReportingCriteria_LCR_r4* src,
                                        umts_intra_freq_reporting_criteria_lcr_r4* dst);
void convert_IntraFreqEventCriteriaList_LCR_r4(const IntraFreqEventCriteriaList_LCR_r4* src,
                                               umts_intra_freq_event_criteria_list_lcr_r4* dst);
void convert_IntraFreqEventCriteria_LCR_r4(const IntraFreqEventCriteria_LCR_r4* src,
                                           umts_intra_freq_event_criteria_lcr_r4* dst);
void convert_IntraFreqEvent_LCR_r4(const IntraFreqEvent_LCR_r4* src, umts_intra_freq_event_lcr_r4* dst);
void convert_Event1a_LCR_r4(const Event1a_LCR_r4* src, umts_event_1a_lcr_r4* dst);
void convert_Event1b_LCR_r4(const Event1b_LCR_r4* src, umts_event_1b_lcr_r4* dst);
void convert_Event1c(const Event1c* src, umts_event_1c* dst);
void convert_Event1e(const Event1e* src, umts_event_1e* dst);
void convert_Event1f(const Event1f* src, umts_event_1f* dst);
void convert_ReportingCellStatus(const ReportingCellStatus* src, umts_reporting_cell_status* dst);
void convert_ForbiddenAffectCellList_LCR_r4(const ForbiddenAffectCellList_LCR_r4* src,
                                            umts_forbidden_affect_cell_list_lcr_r4* dst);
void convert_ForbiddenAffectCell_LCR_r4(const ForbiddenAffectCell_LCR_r4* src, umts_primary_ccpch_info_lcr_r4* dst);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_SIB_CONVERT_H */
