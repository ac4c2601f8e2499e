/*
 * Flat records of the System Information Block type 3: cell identity, cell selection and
 * reselection, access restrictions, and the chain of non-critical extensions from v4b0 to
 * v920.
 *
 * Values are those of the decoder: enumerated values as their 32-bit ordinals, integers as
 * they are coded in the schema (the signed ones as int8_t), with no scaling. Each level of
 * the extension chain holds its own extension record and, under bit 0 of its
 * presence_bitmask, the next level.
 *
 * umts_cell_select_reselect_info_v590ext and umts_csg_psc_split_info serve SIB11bis too.
 */
#ifndef UMTS_SIB_SIB3_H
#define UMTS_SIB_SIB3_H

#include "umts_sib_common.h"

/* ---- Cell identity ----------------------------------------------------------------------- */

/* CellIdentity: a 28-bit string, first bit in the top of data[0]. */
#define umts_cell_identity_FIELDS(F)                    \
  F(SCALAR, uint32_t, numbits, 1, UMTS_ALWAYS, _)       \
  F(BYTES, uint8_t, data, 4, UMTS_ALWAYS, _)

/* ---- Mapping ----------------------------------------------------------------------------- */

#define umts_mapping_function_parameter_FIELDS(F)               \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, functionType, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint8_t, mapParameter1, 1, 0, _)                    \
  F(SCALAR, uint8_t, mapParameter2, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint8_t, upperLimit, 1, 1, _)

#define umts_mapping_function_parameter_list_FIELDS(F)                          \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                  \
  F(ARRAY, umts_mapping_function_parameter, entries, 3, UMTS_ALWAYS, count)

#define umts_mapping_FIELDS(F)                                                          \
  F(SCALAR, uint32_t, rat, 1, UMTS_ALWAYS, _)                                           \
  F(RECORD, umts_mapping_function_parameter_list, mappingFunctionParameterList, 1, UMTS_ALWAYS, _)

#define umts_mapping_info_FIELDS(F)                             \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                  \
  F(ARRAY, umts_mapping, entries, 16, UMTS_ALWAYS, count)

/* ---- Cell selection and reselection ------------------------------------------------------- */

#define umts_cell_select_quality_measure_cpich_ec_n0_FIELDS(F)  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, q_HYST_2_S, 1, 0, _)

/* cellSelectQualityMeasure: 1 cpich-Ec-N0, 2 cpich-RSCP (no member). */
#define umts_cell_select_quality_measure_u_FIELDS(F) \
  F(RECORD, umts_cell_select_quality_measure_cpich_ec_n0, cpich_Ec_N0, 1, 1, _)

#define umts_cell_select_quality_measure_FIELDS(F)      \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_cell_select_quality_measure_u, u, 1, UMTS_ALWAYS, choice_tag)

/* RAT-FDD-Info and RAT-TDD-Info alike. */
#define umts_rat_info_FIELDS(F)                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, rat_Identifier, 1, UMTS_ALWAYS, _)        \
  F(SCALAR, int8_t, s_SearchRAT, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, int8_t, s_HCS_RAT, 1, 0, _)                         \
  F(SCALAR, int8_t, s_Limit_SearchRAT, 1, UMTS_ALWAYS, _)

#define umts_rat_info_list_FIELDS(F)                            \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                  \
  F(ARRAY, umts_rat_info, entries, 15, UMTS_ALWAYS, count)

#define umts_sib3_fdd_info_FIELDS(F)                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, int8_t, s_Intrasearch, 1, 0, _)                     \
  F(SCALAR, int8_t, s_Intersearch, 1, 1, _)                     \
  F(SCALAR, int8_t, s_SearchHCS, 1, 2, _)                       \
  F(RECORD, umts_rat_info_list, rat_List, 1, 3, _)              \
  F(SCALAR, int8_t, q_QualMin, 1, UMTS_ALWAYS, _)               \
  F(SCALAR, int8_t, q_RxlevMin, 1, UMTS_ALWAYS, _)

/* As the fdd record without q_QualMin: q_RxlevMin stands where the fdd q_QualMin does. */
#define umts_sib3_tdd_info_FIELDS(F)                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, int8_t, s_Intrasearch, 1, 0, _)                     \
  F(SCALAR, int8_t, s_Intersearch, 1, 1, _)                     \
  F(SCALAR, int8_t, s_SearchHCS, 1, 2, _)                       \
  F(RECORD, umts_rat_info_list, rat_List, 1, 3, _)              \
  F(SCALAR, int8_t, q_RxlevMin, 1, UMTS_ALWAYS, _)

#define umts_sib3_mode_specific_info_u_FIELDS(F)        \
  F(RECORD, umts_sib3_fdd_info, fdd, 1, 1, _)           \
  F(RECORD, umts_sib3_tdd_info, tdd, 1, 2, _)

#define umts_sib3_mode_specific_info_FIELDS(F)          \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_sib3_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* N-CR-T-CRMaxHyst: t_CRMaxHyst is the decoder's ordinal. */
#define umts_n_cr_t_crmax_hyst_FIELDS(F)                \
  F(SCALAR, uint8_t, n_CR, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint32_t, t_CRMaxHyst, 1, UMTS_ALWAYS, _)

/* T-CRMax: 1 notUsed (no member), 2 t30, 3 t60, 4 t120, 5 t180, 6 t240. */
#define umts_t_cr_max_u_FIELDS(F)                       \
  F(RECORD, umts_n_cr_t_crmax_hyst, t30, 1, 2, _)       \
  F(RECORD, umts_n_cr_t_crmax_hyst, t60, 1, 3, _)       \
  F(RECORD, umts_n_cr_t_crmax_hyst, t120, 1, 4, _)      \
  F(RECORD, umts_n_cr_t_crmax_hyst, t180, 1, 5, _)      \
  F(RECORD, umts_n_cr_t_crmax_hyst, t240, 1, 6, _)

#define umts_t_cr_max_FIELDS(F)                         \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_t_cr_max_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_hcs_serving_cell_information_FIELDS(F)             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, hcs_PRIO, 1, UMTS_ALWAYS, _)               \
  F(SCALAR, uint8_t, q_HCS, 1, UMTS_ALWAYS, _)                  \
  F(RECORD, umts_t_cr_max, t_CR_Max, 1, 0, _)

#define umts_cell_select_reselect_info_sib_3_4_FIELDS(F)                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_mapping_info, mappingInfo, 1, 0, _)                                            \
  F(RECORD, umts_cell_select_quality_measure, cellSelectQualityMeasure, 1, UMTS_ALWAYS, _)      \
  F(RECORD, umts_sib3_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)                  \
  F(SCALAR, uint8_t, q_Hyst_l_S, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, uint8_t, t_Reselection_S, 1, UMTS_ALWAYS, _)                                        \
  F(RECORD, umts_hcs_serving_cell_information, hcs_ServingCellInformation, 1, 1, _)             \
  F(SCALAR, int8_t, maxAllowedUL_TX_Power, 1, UMTS_ALWAYS, _)

/* ---- Access restriction ------------------------------------------------------------------ */

#define umts_cell_barred_barred_FIELDS(F)                               \
  F(SCALAR, uint32_t, intraFreqCellReselectionInd, 1, UMTS_ALWAYS, _)   \
  F(SCALAR, uint32_t, t_Barred, 1, UMTS_ALWAYS, _)

/* cellBarred: 1 barred, 2 notBarred (no member). */
#define umts_cell_barred_u_FIELDS(F) F(RECORD, umts_cell_barred_barred, barred, 1, 1, _)

#define umts_cell_barred_FIELDS(F)                      \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_cell_barred_u, u, 1, UMTS_ALWAYS, choice_tag)

/* AccessClassBarredList: the decoder always delivers 16 entries. */
#define umts_access_class_barred_list_FIELDS(F)         \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)         \
  F(ARRAY, uint32_t, entries, 16, UMTS_ALWAYS, count)

#define umts_cell_access_restriction_FIELDS(F)                                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_cell_barred, cellBarred, 1, UMTS_ALWAYS, _)                            \
  F(SCALAR, uint32_t, cellReservedForOperatorUse, 1, UMTS_ALWAYS, _)                    \
  F(SCALAR, uint32_t, cellReservationExtension, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_access_class_barred_list, accessClassBarredList, 1, 0, _)

/* ---- v4b0, v590, v5c0 -------------------------------------------------------------------- */

#define umts_sib3_v4b0ext_FIELDS(F)                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(RECORD, umts_mapping_function_parameter_list, mapping_LCR, 1, 0, _)

#define umts_cell_select_reselect_info_v590ext_FIELDS(F)        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, int8_t, deltaQrxlevmin, 1, 0, _)                    \
  F(SCALAR, int8_t, deltaQhcs, 1, 1, _)

#define umts_sib3_v590ext_FIELDS(F)                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(RECORD, umts_cell_select_reselect_info_v590ext, cellSelectReselectInfo_v590ext, 1, 0, _)

#define umts_cell_select_reselect_info_treselection_scaling_v5c0ext_FIELDS(F)   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_t_cr_max, non_HCS_t_CR_Max, 1, 0, _)                           \
  F(SCALAR, uint8_t, speedDependentScalingFactor, 1, 1, _)                      \
  F(SCALAR, uint8_t, interFrequencyTreselectionScalingFactor, 1, 2, _)          \
  F(SCALAR, uint8_t, interRATTreselectionScalingFactor, 1, 3, _)

#define umts_sib3_v5c0ext_FIELDS(F)                                                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_cell_select_reselect_info_treselection_scaling_v5c0ext,                        \
    cellSelectReselectInfoTreselectionScaling_v5c0ext, 1, 0, _)

/* ---- v670: domain specific access restriction -------------------------------------------- */

#define umts_domain_specific_access_restriction_v670ext_restriction_FIELDS(F)   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_access_class_barred_list, domainSpecficAccessClassBarredList, 1, 0, _)

/* 1 noRestriction (no member), 2 restriction. */
#define umts_domain_specific_access_restriction_v670ext_u_FIELDS(F) \
  F(RECORD, umts_domain_specific_access_restriction_v670ext_restriction, restriction, 1, 2, _)

#define umts_domain_specific_access_restriction_v670ext_FIELDS(F)       \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                    \
  F(UNION, umts_domain_specific_access_restriction_v670ext_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_domain_specific_access_restriction_param_v670ext_FIELDS(F)                                         \
  F(RECORD, umts_domain_specific_access_restriction_v670ext, cSDomainSpecificAccessRestriction, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_domain_specific_access_restriction_v670ext, pSDomainSpecificAccessRestriction, 1, UMTS_ALWAYS, _)

#define umts_domain_specific_access_restriction_list_v670ext_FIELDS(F)                                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                      \
  F(RECORD, umts_domain_specific_access_restriction_param_v670ext,                                              \
    domainSpecificAccessRestrictionParametersForOperator1, 1, 0, _)                                             \
  F(RECORD, umts_domain_specific_access_restriction_param_v670ext,                                              \
    domainSpecificAccessRestrictionParametersForOperator2, 1, 1, _)                                             \
  F(RECORD, umts_domain_specific_access_restriction_param_v670ext,                                              \
    domainSpecificAccessRestrictionParametersForOperator3, 1, 2, _)                                             \
  F(RECORD, umts_domain_specific_access_restriction_param_v670ext,                                              \
    domainSpecificAccessRestrictionParametersForOperator4, 1, 3, _)                                             \
  F(RECORD, umts_domain_specific_access_restriction_param_v670ext,                                              \
    domainSpecificAccessRestrictionParametersForOperator5, 1, 4, _)

/* 1 domainSpecificAccessRestictionList, 2 domainSpecificAccessRestictionParametersForAll
   (the schema's spelling). */
#define umts_domain_specific_access_restriction_for_shared_network_v670ext_u_FIELDS(F)                          \
  F(RECORD, umts_domain_specific_access_restriction_list_v670ext, domainSpecificAccessRestictionList, 1, 1, _)  \
  F(RECORD, umts_domain_specific_access_restriction_param_v670ext, domainSpecificAccessRestictionParametersForAll, 1, 2, _)

#define umts_domain_specific_access_restriction_for_shared_network_v670ext_FIELDS(F)    \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                                    \
  F(UNION, umts_domain_specific_access_restriction_for_shared_network_v670ext_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_sib3_v670ext_FIELDS(F)                                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                              \
  F(RECORD, umts_domain_specific_access_restriction_param_v670ext,                                      \
    domainSpecificAccessRestrictionParametersForPLMNOfMIB, 1, 0, _)                                     \
  F(RECORD, umts_domain_specific_access_restriction_for_shared_network_v670ext,                         \
    domainSpecificAccessRestictionForSharedNetwork, 1, 1, _)

/* ---- v770: deferred measurement control reading ------------------------------------------- */

#define umts_deferred_measurement_control_reading_support_fdd_FIELDS(F) \
  F(SCALAR, uint32_t, intraFreqMeasQuantity_FDD, 1, UMTS_ALWAYS, _)

/* IntraFreqMeasQuantity-TDD-sib3List: 1 or 2 ordinals. */
#define umts_intra_freq_meas_quantity_tdd_sib3_list_FIELDS(F)   \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                 \
  F(ARRAY, uint32_t, entries, 2, UMTS_ALWAYS, count)

#define umts_deferred_measurement_control_reading_support_mode_specific_info_u_FIELDS(F)        \
  F(RECORD, umts_deferred_measurement_control_reading_support_fdd, fdd, 1, 1, _)               \
  F(RECORD, umts_intra_freq_meas_quantity_tdd_sib3_list, tdd, 1, 2, _)

#define umts_deferred_measurement_control_reading_support_mode_specific_info_FIELDS(F)  \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                                    \
  F(UNION, umts_deferred_measurement_control_reading_support_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_deferred_measurement_control_reading_support_FIELDS(F)                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_deferred_measurement_control_reading_support_mode_specific_info,       \
    modeSpecificInfo, 1, 0, _)

#define umts_sib3_v770ext_FIELDS(F)                                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                              \
  F(RECORD, umts_deferred_measurement_control_reading_support, deferredMeasurementControlReadingSupport, 1, 0, _) \
  F(SCALAR, uint8_t, q_QualMin_Offset, 1, 1, _)                                                         \
  F(SCALAR, uint8_t, q_RxlevMin_Offset, 1, 2, _)                                                        \
  F(SCALAR, uint32_t, mbsfnOnlyService, 1, 3, _)

/* ---- v830: paging permission with access control ------------------------------------------ */

/* LocationRegistrationAccessClassBarredList: the decoder always delivers 15 entries. */
#define umts_location_registration_access_class_barred_list_FIELDS(F)   \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                         \
  F(ARRAY, uint32_t, entries, 15, UMTS_ALWAYS, count)

/* 1 noRestriction (no member), 2 restriction. */
#define umts_location_registration_parameters_u_FIELDS(F) \
  F(RECORD, umts_location_registration_access_class_barred_list, restriction, 1, 2, _)

#define umts_location_registration_parameters_FIELDS(F)         \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)            \
  F(UNION, umts_location_registration_parameters_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_paging_permission_with_access_control_parameters_FIELDS(F)                 \
  F(SCALAR, uint32_t, pagingResponseRestrictionIndicator, 1, UMTS_ALWAYS, _)            \
  F(SCALAR, uint32_t, locationRegistrationRestrictionIndicator, 1, UMTS_ALWAYS, _)      \
  F(RECORD, umts_location_registration_parameters, locationRegistration, 1, UMTS_ALWAYS, _)

#define umts_paging_permission_with_access_control_list_FIELDS(F)                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_paging_permission_with_access_control_parameters,                      \
    pagingPermissionWithAccessControlParametersForOperator1, 1, 0, _)                   \
  F(RECORD, umts_paging_permission_with_access_control_parameters,                      \
    pagingPermissionWithAccessControlParametersForOperator2, 1, 1, _)                   \
  F(RECORD, umts_paging_permission_with_access_control_parameters,                      \
    pagingPermissionWithAccessControlParametersForOperator3, 1, 2, _)                   \
  F(RECORD, umts_paging_permission_with_access_control_parameters,                      \
    pagingPermissionWithAccessControlParametersForOperator4, 1, 3, _)                   \
  F(RECORD, umts_paging_permission_with_access_control_parameters,                      \
    pagingPermissionWithAccessControlParametersForOperator5, 1, 4, _)

/* 1 pagingPermissionWithAccessControlList, 2 pagingPermissionWithAccessControlForAll. */
#define umts_paging_permission_with_access_control_for_shared_network_u_FIELDS(F)                               \
  F(RECORD, umts_paging_permission_with_access_control_list, pagingPermissionWithAccessControlList, 1, 1, _)    \
  F(RECORD, umts_paging_permission_with_access_control_parameters, pagingPermissionWithAccessControlForAll, 1, 2, _)

#define umts_paging_permission_with_access_control_for_shared_network_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                            \
  F(UNION, umts_paging_permission_with_access_control_for_shared_network_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_sib3_v830ext_FIELDS(F)                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_paging_permission_with_access_control_parameters,                      \
    pagingPermissionWithAccessControlParametersForPLMNOfMIB, 1, 0, _)                   \
  F(RECORD, umts_paging_permission_with_access_control_for_shared_network,              \
    pagingPermissionWithAccessControlParametersForSharedNetwork, 1, 1, _)

/* ---- v860, v870, v920 --------------------------------------------------------------------- */

/* CSG-Identity: a 27-bit string, first bit in the top of data[0]. */
#define umts_csg_identity_FIELDS(F)                     \
  F(SCALAR, uint32_t, numbits, 1, UMTS_ALWAYS, _)       \
  F(BYTES, uint8_t, data, 4, UMTS_ALWAYS, _)

/* numberOfPSCs: the decoder's ordinal. */
#define umts_csg_psc_split_info_FIELDS(F)                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, startPSC, 1, UMTS_ALWAYS, _)               \
  F(SCALAR, uint32_t, numberOfPSCs, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint8_t, pscRange2Offset, 1, 0, _)

#define umts_sib3_v860ext_FIELDS(F)                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(RECORD, umts_csg_identity, csgIdentity, 1, 0, _)            \
  F(RECORD, umts_csg_psc_split_info, csg_PSCSplitInfo, 1, 1, _)

#define umts_cell_access_restriction_v870ext_FIELDS(F)          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, cellReservedForCSG, 1, 0, _)

#define umts_sib3_v870ext_FIELDS(F)                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(RECORD, umts_cell_access_restriction_v870ext, cellAccessRestriction, 1, 0, _)

#define umts_sib3_v920ext_FIELDS(F)                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, imsEmergencySupportIndicator, 1, 0, _)

/* ---- The levels of the extension chain, innermost first ------------------------------------ */

/* nonCriticalExtensions: an empty sequence, stored as one byte that is always 0. */
#define umts_sib3_v900_nce_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib3_v920ext, sysInfoType3_v920ext, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, nonCriticalExtensions, 1, 0, _)

#define umts_sib3_v870_nce_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib3_v870ext, sysInfoType3_v870ext, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib3_v900_nce, v900NonCriticalExtension, 1, 0, _)

#define umts_sib3_v860_nce_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib3_v860ext, sysInfoType3_v860ext, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib3_v870_nce, v870NonCriticalExtension, 1, 0, _)

#define umts_sib3_v830_nce_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib3_v830ext, sysInfoType3_v830ext, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib3_v860_nce, v860NonCriticalExtension, 1, 0, _)

#define umts_sib3_v770_nce_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib3_v770ext, sysInfoType3_v770ext, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib3_v830_nce, v830NonCriticalExtension, 1, 0, _)

#define umts_sib3_v670_nce_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib3_v670ext, sysInfoType3_v670ext, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib3_v770_nce, v770NonCriticalExtension, 1, 0, _)

#define umts_sib3_v5c0_nce_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib3_v5c0ext, sysInfoType3_v5c0ext, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib3_v670_nce, v670NonCriticalExtension, 1, 0, _)

#define umts_sib3_v590_nce_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib3_v590ext, sysInfoType3_v590ext, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib3_v5c0_nce, v5c0NoncriticalExtension, 1, 0, _)

#define umts_sib3_v4b0_nce_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib3_v4b0ext, sysInfoType3_v4b0ext, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib3_v590_nce, v590NonCriticalExtension, 1, 0, _)

/* ---- The block ------------------------------------------------------------------------------ */

/* presence_bitmask stays 0: v4b0NonCriticalExtensions is always converted, and an absent
   extension chain reads as all zero. */
#define umts_sib3_info_FIELDS(F)                                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(BOOL, uint8_t, sib4indicator, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_cell_identity, cellIdentity, 1, UMTS_ALWAYS, _)                                \
  F(RECORD, umts_cell_select_reselect_info_sib_3_4, cellSelectReselectInfo, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_cell_access_restriction, cellAccessRestriction, 1, UMTS_ALWAYS, _)             \
  F(RECORD, umts_sib3_v4b0_nce, v4b0NonCriticalExtensions, 1, UMTS_ALWAYS, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SIB3_RECORDS(X)                                                    \
  X(RECORD, umts_cell_identity)                                                 \
  X(RECORD, umts_mapping_function_parameter)                                    \
  X(RECORD, umts_mapping_function_parameter_list)                               \
  X(RECORD, umts_mapping)                                                       \
  X(RECORD, umts_mapping_info)                                                  \
  X(RECORD, umts_cell_select_quality_measure_cpich_ec_n0)                       \
  X(UNION, umts_cell_select_quality_measure_u)                                  \
  X(RECORD, umts_cell_select_quality_measure)                                   \
  X(RECORD, umts_rat_info)                                                      \
  X(RECORD, umts_rat_info_list)                                                 \
  X(RECORD, umts_sib3_fdd_info)                                                 \
  X(RECORD, umts_sib3_tdd_info)                                                 \
  X(UNION, umts_sib3_mode_specific_info_u)                                      \
  X(RECORD, umts_sib3_mode_specific_info)                                       \
  X(RECORD, umts_n_cr_t_crmax_hyst)                                             \
  X(UNION, umts_t_cr_max_u)                                                     \
  X(RECORD, umts_t_cr_max)                                                      \
  X(RECORD, umts_hcs_serving_cell_information)                                  \
  X(RECORD, umts_cell_select_reselect_info_sib_3_4)                             \
  X(RECORD, umts_cell_barred_barred)                                            \
  X(UNION, umts_cell_barred_u)                                                  \
  X(RECORD, umts_cell_barred)                                                   \
  X(RECORD, umts_access_class_barred_list)                                      \
  X(RECORD, umts_cell_access_restriction)                                       \
  X(RECORD, umts_sib3_v4b0ext)                                                  \
  X(RECORD, umts_cell_select_reselect_info_v590ext)                             \
  X(RECORD, umts_sib3_v590ext)                                                  \
  X(RECORD, umts_cell_select_reselect_info_treselection_scaling_v5c0ext)        \
  X(RECORD, umts_sib3_v5c0ext)                                                  \
  X(RECORD, umts_domain_specific_access_restriction_v670ext_restriction)        \
  X(UNION, umts_domain_specific_access_restriction_v670ext_u)                   \
  X(RECORD, umts_domain_specific_access_restriction_v670ext)                    \
  X(RECORD, umts_domain_specific_access_restriction_param_v670ext)              \
  X(RECORD, umts_domain_specific_access_restriction_list_v670ext)               \
  X(UNION, umts_domain_specific_access_restriction_for_shared_network_v670ext_u) \
  X(RECORD, umts_domain_specific_access_restriction_for_shared_network_v670ext) \
  X(RECORD, umts_sib3_v670ext)                                                  \
  X(RECORD, umts_deferred_measurement_control_reading_support_fdd)              \
  X(RECORD, umts_intra_freq_meas_quantity_tdd_sib3_list)                        \
  X(UNION, umts_deferred_measurement_control_reading_support_mode_specific_info_u) \
  X(RECORD, umts_deferred_measurement_control_reading_support_mode_specific_info) \
  X(RECORD, umts_deferred_measurement_control_reading_support)                  \
  X(RECORD, umts_sib3_v770ext)                                                  \
  X(RECORD, umts_location_registration_access_class_barred_list)                \
  X(UNION, umts_location_registration_parameters_u)                             \
  X(RECORD, umts_location_registration_parameters)                              \
  X(RECORD, umts_paging_permission_with_access_control_parameters)              \
  X(RECORD, umts_paging_permission_with_access_control_list)                    \
  X(UNION, umts_paging_permission_with_access_control_for_shared_network_u)     \
  X(RECORD, umts_paging_permission_with_access_control_for_shared_network)      \
  X(RECORD, umts_sib3_v830ext)                                                  \
  X(RECORD, umts_csg_identity)                                                  \
  X(RECORD, umts_csg_psc_split_info)                                            \
  X(RECORD, umts_sib3_v860ext)                                                  \
  X(RECORD, umts_cell_access_restriction_v870ext)                               \
  X(RECORD, umts_sib3_v870ext)                                                  \
  X(RECORD, umts_sib3_v920ext)                                                  \
  X(RECORD, umts_sib3_v900_nce)                                                 \
  X(RECORD, umts_sib3_v870_nce)                                                 \
  X(RECORD, umts_sib3_v860_nce)                                                 \
  X(RECORD, umts_sib3_v830_nce)                                                 \
  X(RECORD, umts_sib3_v770_nce)                                                 \
  X(RECORD, umts_sib3_v670_nce)                                                 \
  X(RECORD, umts_sib3_v5c0_nce)                                                 \
  X(RECORD, umts_sib3_v590_nce)                                                 \
  X(RECORD, umts_sib3_v4b0_nce)                                                 \
  X(RECORD, umts_sib3_info)

UMTS_SIB3_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SIB3_H */
