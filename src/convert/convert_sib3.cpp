/*
 * SIB3: cell selection and reselection, access restrictions and their extensions (slot 3).
 *
 * This file holds the top conversion and the records of the block's body; the chain of
 * non-critical extensions is in convert_sib3_ext.cpp. Nothing here logs: the frame's
 * messages are the only output of the block.
 */
#include <cstring>

#include "convert_frame.h"
#include "umts_sib_convert.h"

namespace {

const umts_frame_desc kSib3Frame = {
    umts_sib_sib3, "Decoded SysInfoType3\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib3:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

/* A bit count taken as a number of octets, held to the octets of the field. */
size_t octets_within(uint32_t numbits, size_t field_octets) { return numbits < field_octets ? numbits : field_octets; }

constexpr uint32_t kMappingBound = sizeof(umts_mapping_info::entries) / sizeof(umts_mapping);
constexpr uint32_t kParameterBound =
    sizeof(umts_mapping_function_parameter_list::entries) / sizeof(umts_mapping_function_parameter);
constexpr uint32_t kRatBound = sizeof(umts_rat_info_list::entries) / sizeof(umts_rat_info);
constexpr uint32_t kAccessClassBound = sizeof(umts_access_class_barred_list::entries) / sizeof(uint32_t);

/* RAT-FDD-Info and RAT-TDD-Info have the same elements. */
template <typename Rat>
void copy_rat_info(const Rat* src, umts_rat_info* dst) {
  dst->rat_Identifier = src->rat_Identifier;
  dst->s_SearchRAT = src->s_SearchRAT;
  UMTS_COPY_OPTIONAL(src, dst, 1u, s_HCS_RAT);
  dst->s_Limit_SearchRAT = src->s_Limit_SearchRAT;
}

}  // namespace

/*
 * The cell identity's bit count (28) is taken as a number of octets. Copied in full, that
 * count would carry the 24 octets behind the decoded string over the head of the flat
 * cellSelectReselectInfo, before that record is converted. For memory safety the copy stays
 * within the field's 4 octets; of what the longer copy would leave behind, only the part
 * with a fixed meaning is reproduced: the decoded presence word in the record's
 * presence_bitmask and, when mappingInfo is present, the tag of cellSelectQualityMeasure in
 * the presence_bitmask of the first parameter of the first mapping. The conversion of the
 * record then ORs its own bits over both.
 */
uint8_t umts_convert_sib3(umts_sib3_info* sib3) {
  rtxContext ctx;
  SysInfoType3 decoded;
  if (!umts_frame_open(&ctx, &kSib3Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType3, decoded, kSib3Frame, sib3)) return 0;

  sib3->sib4indicator = decoded.sib4indicator;
  sib3->cellIdentity.numbits = decoded.cellIdentity.numbits;
  std::memcpy(sib3->cellIdentity.data, decoded.cellIdentity.data,
              octets_within(decoded.cellIdentity.numbits, sizeof sib3->cellIdentity.data));
  const CellSelectReselectInfoSIB_3_4& info = decoded.cellSelectReselectInfo;
  umts_cell_select_reselect_info_sib_3_4& flat = sib3->cellSelectReselectInfo;
  flat.presence_bitmask = static_cast<uint16_t>(info.m);
  if (info.m & 1u)
    flat.mappingInfo.entries[0].mappingFunctionParameterList.entries[0].presence_bitmask =
        static_cast<uint16_t>(info.cellSelectQualityMeasure.t);

  convert_cell_select_reselect_infoSIB_3_4(&info, &flat);
  convert_cell_access_restriction(&decoded.cellAccessRestriction, &sib3->cellAccessRestriction);
  /* Always: an absent chain is a zeroed decoded value, whose conversion writes nothing. */
  convert_sysinfotype3_v4b0_nc_extensions(&decoded.v4b0NonCriticalExtensions, &sib3->v4b0NonCriticalExtensions);
  return umts_frame_close(&ctx, &kSib3Frame);
}

/* ---- Cell selection and reselection --------------------------------------------------------- */

void convert_cell_select_reselect_infoSIB_3_4(const CellSelectReselectInfoSIB_3_4* src,
                                              umts_cell_select_reselect_info_sib_3_4* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_mapping_info, mappingInfo);
  convert_call_select_reselect_infoSIB3_4_cell_select_quality_measure(&src->cellSelectQualityMeasure,
                                                                      &dst->cellSelectQualityMeasure);
  convert_call_select_reselect_infoSIB3_4_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
  dst->q_Hyst_l_S = src->q_Hyst_l_S;
  dst->t_Reselection_S = src->t_Reselection_S;
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_hsc_serving_cell_information, hcs_ServingCellInformation);
  dst->maxAllowedUL_TX_Power = src->maxAllowedUL_TX_Power;
}

void convert_mapping_info(const MappingInfo* src, umts_mapping_info* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < src->count && i < kMappingBound && node != nullptr; i++, node = node->next) {
    const Mapping* mapping = static_cast<const Mapping*>(node->data);
    dst->entries[i].rat = mapping->rat;
    convert_mapping_function_parameter_list(&mapping->mappingFunctionParameterList,
                                            &dst->entries[i].mappingFunctionParameterList);
  }
}

void convert_mapping_function_parameter_list(const MappingFunctionParameterList* src,
                                             umts_mapping_function_parameter_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < src->count && i < kParameterBound && node != nullptr; i++, node = node->next) {
    const MappingFunctionParameter* p = static_cast<const MappingFunctionParameter*>(node->data);
    umts_mapping_function_parameter& e = dst->entries[i];
    e.functionType = p->functionType;
    if (p->m & 1u) {
      e.presence_bitmask |= 1u;
      e.mapParameter1 = p->mapParameter1;
    }
    e.mapParameter2 = p->mapParameter2;
    if (p->m & 2u) {
      e.presence_bitmask |= 2u;
      e.upperLimit = p->upperLimit;
    }
  }
}

void convert_mapping_lcr_r4(const Mapping_LCR_r4* src, umts_mapping_function_parameter_list* dst) {
  convert_mapping_function_parameter_list(&src->mappingFunctionParameterList, dst);
}

void convert_call_select_reselect_infoSIB3_4_cell_select_quality_measure(
    const CellSelectReselectInfoSIB_3_4_cellSelectQualityMeasure* src, umts_cell_select_quality_measure* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.cpich_Ec_N0 != nullptr)
    convert_call_select_reselect_infoSIB3_4_cell_select_quality_measure_cpich_Ec_N0(src->u.cpich_Ec_N0,
                                                                                    &dst->u.cpich_Ec_N0);
}

void convert_call_select_reselect_infoSIB3_4_cell_select_quality_measure_cpich_Ec_N0(
    const CellSelectReselectInfoSIB_3_4_cellSelectQualityMeasure_cpich_Ec_N0* src,
    umts_cell_select_quality_measure_cpich_ec_n0* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, q_HYST_2_S);
}

void convert_call_select_reselect_infoSIB3_4_mode_specific_info(const CellSelectReselectInfoSIB_3_4_modeSpecificInfo* src,
                                                                umts_sib3_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr)
    convert_call_select_reselect_infoSIB3_4_mode_specific_info_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr)
    convert_call_select_reselect_infoSIB3_4_mode_specific_info_tdd(src->u.tdd, &dst->u.tdd);
}

void convert_call_select_reselect_infoSIB3_4_mode_specific_info_fdd(
    const CellSelectReselectInfoSIB_3_4_modeSpecificInfo_fdd* src, umts_sib3_fdd_info* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, s_Intrasearch);
  UMTS_COPY_OPTIONAL(src, dst, 2u, s_Intersearch);
  UMTS_COPY_OPTIONAL(src, dst, 4u, s_SearchHCS);
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, convert_rat_fdd_info_list, rat_List);
  dst->q_QualMin = src->q_QualMin;
  dst->q_RxlevMin = src->q_RxlevMin;
}

void convert_call_select_reselect_infoSIB3_4_mode_specific_info_tdd(
    const CellSelectReselectInfoSIB_3_4_modeSpecificInfo_tdd* src, umts_sib3_tdd_info* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, s_Intrasearch);
  UMTS_COPY_OPTIONAL(src, dst, 2u, s_Intersearch);
  UMTS_COPY_OPTIONAL(src, dst, 4u, s_SearchHCS);
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, convert_rat_tdd_info_list, rat_List);
  dst->q_RxlevMin = src->q_RxlevMin;
}

void convert_rat_fdd_info_list(const RAT_FDD_InfoList* src, umts_rat_info_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < src->count && i < kRatBound && node != nullptr; i++, node = node->next)
    copy_rat_info(static_cast<const RAT_FDD_Info*>(node->data), &dst->entries[i]);
}

void convert_rat_tdd_info_list(const RAT_TDD_InfoList* src, umts_rat_info_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < src->count && i < kRatBound && node != nullptr; i++, node = node->next)
    copy_rat_info(static_cast<const RAT_TDD_Info*>(node->data), &dst->entries[i]);
}

void convert_hsc_serving_cell_information(const HCS_ServingCellInformation* src, umts_hcs_serving_cell_information* dst) {
  dst->hcs_PRIO = src->hcs_PRIO;
  dst->q_HCS = src->q_HCS;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_T_cr_max, t_CR_Max);
}

void convert_T_cr_max(const T_CRMax* src, umts_t_cr_max* dst) {
  dst->choice_tag = src->t;
  /* t30 to t240 share one form; notUsed and unknown tags carry nothing. */
  if (src->t >= 2 && src->t <= 6 && src->u.t30 != nullptr) {
    dst->u.t30.n_CR = src->u.t30->n_CR;
    dst->u.t30.t_CRMaxHyst = src->u.t30->t_CRMaxHyst;
  }
}

/* ---- Access restriction --------------------------------------------------------------------- */

void convert_cell_access_restriction(const CellAccessRestriction* src, umts_cell_access_restriction* dst) {
  convert_call_barred(&src->cellBarred, &dst->cellBarred);
  dst->cellReservedForOperatorUse = src->cellReservedForOperatorUse;
  dst->cellReservationExtension = src->cellReservationExtension;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_access_class_barred_list, accessClassBarredList);
}

void convert_call_barred(const CellBarred* src, umts_cell_barred* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.barred != nullptr) convert_callBarred_barred(src->u.barred, &dst->u.barred);
}

void convert_callBarred_barred(const CellBarred_barred* src, umts_cell_barred_barred* dst) {
  dst->intraFreqCellReselectionInd = src->intraFreqCellReselectionInd;
  dst->t_Barred = src->t_Barred;
}

void convert_access_class_barred_list(const AccessClassBarredList* src, umts_access_class_barred_list* dst) {
  dst->count = src->n;
  const uint32_t n = src->n < kAccessClassBound ? src->n : kAccessClassBound;
  for (uint32_t i = 0; i < n; i++) dst->entries[i] = src->elem[i];
}
