/*
 * SIB3: the chain of non-critical extensions, v4b0 to v920, and the records under it.
 *
 * Every level converts its own extension whatever the decoded presence word says (an absent
 * level is a zeroed decoded value and writes nothing), then, when the next level is present,
 * sets bit 0 and converts that level. Each extension tests its own elements in the order of
 * their presence bits.
 */
#include <cstring>

#include "convert_frame.h"
#include "umts_sib_convert.h"

namespace {

/* The decoded records of the levels, by the version that the level adds. */
typedef SysInfoType3_v4b0NonCriticalExtensions Level_v4b0;
typedef SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension Level_v590;
typedef SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension Level_v5c0;
typedef SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension
    Level_v670;
typedef SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension
    Level_v770;
typedef SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension
    Level_v830;
typedef SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension_v860NonCriticalExtension
    Level_v860;
typedef SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension_v860NonCriticalExtension_v870NonCriticalExtension
    Level_v870;
typedef SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension_v860NonCriticalExtension_v870NonCriticalExtension_v900NonCriticalExtension
    Level_v900;
typedef SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension_v5c0NoncriticalExtension_v670NonCriticalExtension_v770NonCriticalExtension_v830NonCriticalExtension_v860NonCriticalExtension_v870NonCriticalExtension_v900NonCriticalExtension_nonCriticalExtensions
    Level_nce;

constexpr uint32_t kAccessClassBound = sizeof(umts_location_registration_access_class_barred_list::entries) / sizeof(uint32_t);
constexpr uint32_t kTddQuantityBound = sizeof(umts_intra_freq_meas_quantity_tdd_sib3_list::entries) / sizeof(uint32_t);

}  // namespace

/* ---- The levels --------------------------------------------------------------------------- */

void convert_sysinfotype3_v4b0_nc_extensions(const Level_v4b0* src, umts_sib3_v4b0_nce* dst) {
  convert_sysinfotype3_v4b0ext_ies_t(&src->sysInfoType3_v4b0ext, &dst->sysInfoType3_v4b0ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype3_v4b0nces_v590nce, v590NonCriticalExtension);
}

void convert_sysinfotype3_v4b0nces_v590nce(const Level_v590* src, umts_sib3_v590_nce* dst) {
  convert_sysinfotype3_v590ext(&src->sysInfoType3_v590ext, &dst->sysInfoType3_v590ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype3_v4b0nces_v590nce_v5c0nce, v5c0NoncriticalExtension);
}

void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce(const Level_v5c0* src, umts_sib3_v5c0_nce* dst) {
  convert_sysinfotype3_v5c0ext_ies(&src->sysInfoType3_v5c0ext, &dst->sysInfoType3_v5c0ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce, v670NonCriticalExtension);
}

void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce(const Level_v670* src, umts_sib3_v670_nce* dst) {
  convert_sysinfotype3_v670ext(&src->sysInfoType3_v670ext, &dst->sysInfoType3_v670ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce,
                        v770NonCriticalExtension);
}

void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce(const Level_v770* src, umts_sib3_v770_nce* dst) {
  convert_sysinfotype3_v770ext_ies(&src->sysInfoType3_v770ext, &dst->sysInfoType3_v770ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce,
                        v830NonCriticalExtension);
}

void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce(const Level_v830* src,
                                                                            umts_sib3_v830_nce* dst) {
  convert_sysinfotype3_v830ext_ies(&src->sysInfoType3_v830ext, &dst->sysInfoType3_v830ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce,
                        v860NonCriticalExtension);
}

void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce(const Level_v860* src,
                                                                                    umts_sib3_v860_nce* dst) {
  convert_sysinfotype3_v860ext_ies(&src->sysInfoType3_v860ext, &dst->sysInfoType3_v860ext);
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce_v870nce(
        &src->v870NonCriticalExtension, &dst->v870NonCriticalExtension);
  }
}

void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce_v870nce(const Level_v870* src,
                                                                                            umts_sib3_v870_nce* dst) {
  convert_sysinfotype3_v870ext_ies(&src->sysInfoType3_v870ext, &dst->sysInfoType3_v870ext);
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce_v870nce_v900nce(
        &src->v900NonCriticalExtension, &dst->v900NonCriticalExtension);
  }
}

void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce_v870nce_v900nce(
    const Level_v900* src, umts_sib3_v900_nce* dst) {
  convert_sysinfotype3_v920ext_ies(&src->sysInfoType3_v920ext, &dst->sysInfoType3_v920ext);
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce_v870nce_v900nce_nce(
        &src->nonCriticalExtensions, &dst->nonCriticalExtensions);
  }
}

void convert_sysinfotype3_v4b0nces_v590nce_v5c0nce_v670nce_v770nce_v830nce_v860nce_v870nce_v900nce_nce(
    const Level_nce* src, uint8_t* dst) {
  /* The decoded sequence is empty: its one byte is the zero of the cleared record. */
  std::memcpy(dst, src, 1);
}

/* ---- v4b0, v590, v5c0 --------------------------------------------------------------------- */

void convert_sysinfotype3_v4b0ext_ies_t(const SysInfoType3_v4b0ext_IEs* src, umts_sib3_v4b0ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_mapping_lcr_r4, mapping_LCR);
}

void convert_sysinfotype3_v590ext(const SysInfoType3_v590ext* src, umts_sib3_v590ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_cell_select_reselect_info_v590_ext, cellSelectReselectInfo_v590ext);
}

void convert_cell_select_reselect_info_v590_ext(const CellSelectReselectInfo_v590ext* src,
                                                umts_cell_select_reselect_info_v590ext* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, deltaQrxlevmin);
  UMTS_COPY_OPTIONAL(src, dst, 2u, deltaQhcs);
}

void convert_sysinfotype3_v5c0ext_ies(const SysInfoType3_v5c0ext_IEs* src, umts_sib3_v5c0ext* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    convert_cell_select_reselect_info_t_reselection_scaling_v5c0ext(
        &src->cellSelectReselectInfoTreselectionScaling_v5c0ext, &dst->cellSelectReselectInfoTreselectionScaling_v5c0ext);
  }
}

void convert_cell_select_reselect_info_t_reselection_scaling_v5c0ext(
    const CellSelectReselectInfoTreselectionScaling_v5c0ext* src,
    umts_cell_select_reselect_info_treselection_scaling_v5c0ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_T_cr_max, non_HCS_t_CR_Max);
  UMTS_COPY_OPTIONAL(src, dst, 2u, speedDependentScalingFactor);
  UMTS_COPY_OPTIONAL(src, dst, 4u, interFrequencyTreselectionScalingFactor);
  UMTS_COPY_OPTIONAL(src, dst, 8u, interRATTreselectionScalingFactor);
}

/* ---- v670 --------------------------------------------------------------------------------- */

void convert_sysinfotype3_v670ext(const SysInfoType3_v670ext* src, umts_sib3_v670ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_domain_specific_access_restriction_param_v670ext,
                        domainSpecificAccessRestrictionParametersForPLMNOfMIB);
  if (src->m & 2u) {
    dst->presence_bitmask |= 2u;
    convert_domain_specific_access_restriction_for_shared_network_v670ext(
        &src->domainSpecificAccessRestictionForSharedNetwork, &dst->domainSpecificAccessRestictionForSharedNetwork);
  }
}

void convert_domain_specific_access_restriction_param_v670ext(const DomainSpecificAccessRestrictionParam_v670ext* src,
                                                              umts_domain_specific_access_restriction_param_v670ext* dst) {
  convert_domain_specific_access_restriction_v670ext(&src->cSDomainSpecificAccessRestriction,
                                                     &dst->cSDomainSpecificAccessRestriction);
  convert_domain_specific_access_restriction_v670ext(&src->pSDomainSpecificAccessRestriction,
                                                     &dst->pSDomainSpecificAccessRestriction);
}

void convert_domain_specific_access_restriction_v670ext(const DomainSpecificAccessRestriction_v670ext* src,
                                                        umts_domain_specific_access_restriction_v670ext* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.restriction != nullptr)
    convert_domain_specific_access_restriction_v670ext_restriction(src->u.restriction, &dst->u.restriction);
}

void convert_domain_specific_access_restriction_v670ext_restriction(
    const DomainSpecificAccessRestriction_v670ext_restriction* src,
    umts_domain_specific_access_restriction_v670ext_restriction* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_access_class_barred_list, domainSpecficAccessClassBarredList);
}

void convert_domain_specific_access_restriction_list_v670ext(const DomainSpecificAccessRestrictionList_v670ext* src,
                                                             umts_domain_specific_access_restriction_list_v670ext* dst) {
  const DomainSpecificAccessRestrictionParam_v670ext* from[5] = {
      &src->domainSpecificAccessRestrictionParametersForOperator1, &src->domainSpecificAccessRestrictionParametersForOperator2,
      &src->domainSpecificAccessRestrictionParametersForOperator3, &src->domainSpecificAccessRestrictionParametersForOperator4,
      &src->domainSpecificAccessRestrictionParametersForOperator5};
  umts_domain_specific_access_restriction_param_v670ext* to[5] = {
      &dst->domainSpecificAccessRestrictionParametersForOperator1, &dst->domainSpecificAccessRestrictionParametersForOperator2,
      &dst->domainSpecificAccessRestrictionParametersForOperator3, &dst->domainSpecificAccessRestrictionParametersForOperator4,
      &dst->domainSpecificAccessRestrictionParametersForOperator5};
  for (uint32_t bit = 0; bit < 5; bit++) {
    if (src->m & (1u << bit)) {
      dst->presence_bitmask |= static_cast<uint16_t>(1u << bit);
      convert_domain_specific_access_restriction_param_v670ext(from[bit], to[bit]);
    }
  }
}

void convert_domain_specific_access_restriction_for_shared_network_v670ext(
    const DomainSpecificAccessRestrictionForSharedNetwork_v670ext* src,
    umts_domain_specific_access_restriction_for_shared_network_v670ext* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.domainSpecificAccessRestictionList != nullptr)
    convert_domain_specific_access_restriction_list_v670ext(src->u.domainSpecificAccessRestictionList,
                                                            &dst->u.domainSpecificAccessRestictionList);
  else if (src->t == 2 && src->u.domainSpecificAccessRestictionParametersForAll != nullptr)
    convert_domain_specific_access_restriction_param_v670ext(src->u.domainSpecificAccessRestictionParametersForAll,
                                                             &dst->u.domainSpecificAccessRestictionParametersForAll);
}

/* ---- v770 --------------------------------------------------------------------------------- */

void convert_sysinfotype3_v770ext_ies(const SysInfoType3_v770ext_IEs* src, umts_sib3_v770ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_deferred_measurement_control_reading_support,
                        deferredMeasurementControlReadingSupport);
  UMTS_COPY_OPTIONAL(src, dst, 2u, q_QualMin_Offset);
  UMTS_COPY_OPTIONAL(src, dst, 4u, q_RxlevMin_Offset);
  UMTS_COPY_OPTIONAL(src, dst, 8u, mbsfnOnlyService);
}

void convert_deferred_measurement_control_reading_support(const DeferredMeasurementControlReadingSupport* src,
                                                          umts_deferred_measurement_control_reading_support* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_deferred_measurement_control_reading_support_mode_specific_info,
                        modeSpecificInfo);
}

void convert_deferred_measurement_control_reading_support_mode_specific_info(
    const DeferredMeasurementControlReadingSupport_modeSpecificInfo* src,
    umts_deferred_measurement_control_reading_support_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr)
    convert_deferred_measurement_control_reading_support_mode_specific_info_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_deferred_measurement_control_reading_support_mode_specific_info_tdd(src->u.tdd, &dst->u.tdd);
}

void convert_deferred_measurement_control_reading_support_mode_specific_info_fdd(
    const DeferredMeasurementControlReadingSupport_modeSpecificInfo_fdd* src,
    umts_deferred_measurement_control_reading_support_fdd* dst) {
  dst->intraFreqMeasQuantity_FDD = src->intraFreqMeasQuantity_FDD;
}

void convert_deferred_measurement_control_reading_support_mode_specific_info_tdd(
    const DeferredMeasurementControlReadingSupport_modeSpecificInfo_tdd* src,
    umts_intra_freq_meas_quantity_tdd_sib3_list* dst) {
  convert_intra_freq_meas_quantity_tdd_sib3_list(&src->intraFreqMeasQuantity_TDDList, dst);
}

void convert_intra_freq_meas_quantity_tdd_sib3_list(const IntraFreqMeasQuantity_TDD_sib3List* src,
                                                    umts_intra_freq_meas_quantity_tdd_sib3_list* dst) {
  dst->count = src->n;
  const uint32_t n = src->n < kTddQuantityBound ? src->n : kTddQuantityBound;
  for (uint32_t i = 0; i < n; i++) dst->entries[i] = src->elem[i];
}

/* ---- v830 --------------------------------------------------------------------------------- */

void convert_sysinfotype3_v830ext_ies(const SysInfoType3_v830ext_IEs* src, umts_sib3_v830ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_paging_permission_with_access_control_parameters,
                        pagingPermissionWithAccessControlParametersForPLMNOfMIB);
  if (src->m & 2u) {
    dst->presence_bitmask |= 2u;
    convert_paging_permission_with_access_control_for_shared_network(
        &src->pagingPermissionWithAccessControlParametersForSharedNetwork,
        &dst->pagingPermissionWithAccessControlParametersForSharedNetwork);
  }
}

void convert_paging_permission_with_access_control_parameters(const PagingPermissionWithAccessControlParameters* src,
                                                              umts_paging_permission_with_access_control_parameters* dst) {
  dst->pagingResponseRestrictionIndicator = src->pagingResponseRestrictionIndicator;
  dst->locationRegistrationRestrictionIndicator = src->locationRegistrationRestrictionIndicator;
  convert_location_registration_parameters(&src->locationRegistration, &dst->locationRegistration);
}

void convert_location_registration_parameters(const LocationRegistrationParameters* src,
                                              umts_location_registration_parameters* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.restriction != nullptr)
    convert_location_registration_access_class_barred_list(src->u.restriction, &dst->u.restriction);
}

void convert_location_registration_access_class_barred_list(const LocationRegistrationAccessClassBarredList* src,
                                                            umts_location_registration_access_class_barred_list* dst) {
  dst->count = src->n;
  const uint32_t n = src->n < kAccessClassBound ? src->n : kAccessClassBound;
  for (uint32_t i = 0; i < n; i++) dst->entries[i] = src->elem[i];
}

void convert_paging_permission_with_access_control_list(const PagingPermissionWithAccessControlList* src,
                                                        umts_paging_permission_with_access_control_list* dst) {
  const PagingPermissionWithAccessControlParameters* from[5] = {
      &src->pagingPermissionWithAccessControlParametersForOperator1, &src->pagingPermissionWithAccessControlParametersForOperator2,
      &src->pagingPermissionWithAccessControlParametersForOperator3, &src->pagingPermissionWithAccessControlParametersForOperator4,
      &src->pagingPermissionWithAccessControlParametersForOperator5};
  umts_paging_permission_with_access_control_parameters* to[5] = {
      &dst->pagingPermissionWithAccessControlParametersForOperator1, &dst->pagingPermissionWithAccessControlParametersForOperator2,
      &dst->pagingPermissionWithAccessControlParametersForOperator3, &dst->pagingPermissionWithAccessControlParametersForOperator4,
      &dst->pagingPermissionWithAccessControlParametersForOperator5};
  for (uint32_t bit = 0; bit < 5; bit++) {
    if (src->m & (1u << bit)) {
      dst->presence_bitmask |= static_cast<uint16_t>(1u << bit);
      convert_paging_permission_with_access_control_parameters(from[bit], to[bit]);
    }
  }
}

void convert_paging_permission_with_access_control_for_shared_network(
    const PagingPermissionWithAccessControlForSharedNetwork* src,
    umts_paging_permission_with_access_control_for_shared_network* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.pagingPermissionWithAccessControlList != nullptr)
    convert_paging_permission_with_access_control_list(src->u.pagingPermissionWithAccessControlList,
                                                       &dst->u.pagingPermissionWithAccessControlList);
  else if (src->t == 2 && src->u.pagingPermissionWithAccessControlForAll != nullptr)
    convert_paging_permission_with_access_control_parameters(src->u.pagingPermissionWithAccessControlForAll,
                                                             &dst->u.pagingPermissionWithAccessControlForAll);
}

/* ---- v860, v870, v920 --------------------------------------------------------------------- */

void convert_sysinfotype3_v860ext_ies(const SysInfoType3_v860ext_IEs* src, umts_sib3_v860ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_csg_identity, csgIdentity);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_csg_psc_split_info, csg_PSCSplitInfo);
}

/* The identity's bit count is taken as a number of octets, as for the cell identity, but
   the copy stays within the 4 octets of the field: the octets that a copy of 27 would have
   carried into csg_PSCSplitInfo and the next level are not written, so where those are
   absent they read as zero. */
void convert_csg_identity(const CSG_Identity* src, umts_csg_identity* dst) {
  dst->numbits = src->numbits;
  const size_t octets = src->numbits < sizeof dst->data ? src->numbits : sizeof dst->data;
  std::memcpy(dst->data, src->data, octets);
}

void convert_csg_psc_split_info(const CSG_PSCSplitInfo* src, umts_csg_psc_split_info* dst) {
  dst->startPSC = src->startPSC;
  dst->numberOfPSCs = src->numberOfPSCs;
  UMTS_COPY_OPTIONAL(src, dst, 1u, pscRange2Offset);
}

void convert_sysinfotype3_v870ext_ies(const SysInfoType3_v870ext_IEs* src, umts_sib3_v870ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_cell_access_restriction_v870ext, cellAccessRestriction);
}

void convert_cell_access_restriction_v870ext(const CellAccessRestriction_v870ext* src,
                                             umts_cell_access_restriction_v870ext* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, cellReservedForCSG);
}

void convert_sysinfotype3_v920ext_ies(const SysInfoType3_v920ext_IEs* src, umts_sib3_v920ext* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, imsEmergencySupportIndicator);
}
