/*
 * Conversion of the Master Information Block (slot 0) into umts_mib_info.
 *
 * The MIB and everything under it report through the log service.
 */
#include <cstring>

#include "convert_frame.h"
#include "umts_sib_convert.h"
#include "umts_sib_log.h"

namespace {

const umts_frame_desc kMibFrame = {
    umts_sib_mib,
    "Decoded MIB\n",
    {UMTS_FRAME_LOG_ERROR, "ASN mib context initialisation failed"},
    {UMTS_FRAME_LOG_TRACE, "Initialized ASN mib context"},
    {UMTS_FRAME_LOG_ERROR, "ASN mib decode failed"},
    {UMTS_FRAME_LOG_TRACE, "ASN mib info decoded"},
    {UMTS_FRAME_LOG_TRACE, "Free ASN mib context"},
};

}  // namespace

uint8_t umts_convert_mib(umts_mib_info* mib) {
  rtxContext ctx;
  MasterInformationBlock decoded;
  if (!umts_frame_open(&ctx, &kMibFrame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, MasterInformationBlock, decoded, kMibFrame, mib)) return 0;

  mib->mib_ValueTag = decoded.mib_ValueTag;
  UMTS_LOG_TRACE("Convert plmn type %d", static_cast<int>(decoded.plmn_Type.t));
  convert_plmn_type(&decoded.plmn_Type, &mib->plmn_Type);
  convert_sibsb_reference_list(&decoded.sibSb_ReferenceList, &mib->sibSb_ReferenceList);
  if (decoded.m & 1u) {
    mib->presence_bitmask |= 1u;
    UMTS_LOG_TRACE("Convert v690 Non Critical Extensions");
    decode_mib_v690_nce(&decoded.v690NonCriticalExtensions, &mib->v690NonCriticalExtensions);
  }
  return umts_frame_close(&ctx, &kMibFrame);
}

/* ---- The reference list ---------------------------------------------------------------- */

void fill_sib_sb_type(const SIBSb_TypeAndTag* src, umts_sib_sb_type* dst) {
  dst->choice_tag = src->t;
  if (umts_fill_shared_sib_tag(src, dst)) return;
  switch (src->t) {
    case 22: dst->u.sysInfoTypeSB1 = src->u.sysInfoTypeSB1; break;
    case 23: dst->u.sysInfoTypeSB2 = src->u.sysInfoTypeSB2; break;
    case 24: dst->u.sysInfoType15_1 = src->u.sysInfoType15_1; break;
    case 25:
      if (src->u.sysInfoType15_2 != nullptr)
        convert_sib_occurrence_identity_value_tag(src->u.sysInfoType15_2, &dst->u.sysInfoType15_2);
      break;
    case 26:
      if (src->u.sysInfoType15_3 != nullptr)
        convert_sib_occurrence_identity_value_tag(src->u.sysInfoType15_3, &dst->u.sysInfoType15_3);
      break;
    case 27: dst->u.sysInfoType15_4 = src->u.sysInfoType15_4; break;
    case 28: dst->u.sysInfoType18 = src->u.sysInfoType18; break;
    case 29: dst->u.sysInfoType15_5 = src->u.sysInfoType15_5; break;
    case 30: dst->u.sysInfoType5bis = src->u.sysInfoType5bis; break;
    /* sysInfoType7, dummy2, dummy3, sysInfoType14, sysInfoType17, spare2, spare1: no value. */
    case 7: UMTS_LOG_TRACE("fill_sib_sb_type: %ld option not available", 7L); break;
    case 9: UMTS_LOG_TRACE("fill_sib_sb_type: %ld option not available", 9L); break;
    case 10: UMTS_LOG_TRACE("fill_sib_sb_type: %ld option not available", 10L); break;
    case 18: UMTS_LOG_TRACE("fill_sib_sb_type: %ld option not available", 18L); break;
    case 21: UMTS_LOG_TRACE("fill_sib_sb_type: %ld option not available", 21L); break;
    case 31: UMTS_LOG_TRACE("fill_sib_sb_type: %ld option not available", 31L); break;
    case 32: UMTS_LOG_TRACE("fill_sib_sb_type: %ld option not available", 32L); break;
    default: UMTS_LOG_ERROR("fill_sib_sb_type: No such option (%ld) available", static_cast<long>(src->t)); break;
  }
}

void fill_scheduling_info_sib_sb(const SchedulingInformationSIBSb* src, umts_scheduling_info_sib_sb* dst) {
  fill_sib_sb_type(&src->sibSb_Type, &dst->sibSb_Type);
  fill_scheduling_info(&src->scheduling, &dst->scheduling);
}

void convert_sibsb_reference_list(const SIBSb_ReferenceList* src, umts_sibsb_reference_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  UMTS_LOG_TRACE("Convert SIB SB Reference List");
  UMTS_LOG_TRACE("  umts_sibsb_reference_list count=%ld", static_cast<long>(dst->count));
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < 32u && node != nullptr; i++, node = node->next) {
    fill_scheduling_info_sib_sb(static_cast<const SchedulingInformationSIBSb*>(node->data), &dst->entries[i]);
  }
}

/* ---- v690 ------------------------------------------------------------------------------ */

void decode_multiple_plmn_list_r6_multiple_plmns(const MultiplePLMN_List_r6_multiplePLMNs* src, umts_multiple_plmns* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  UMTS_LOG_TRACE("Convert multiple plmn list");
  UMTS_LOG_TRACE("  p_multiple_plmns count=%ld, pvalue count=%ld", static_cast<long>(dst->count),
                 static_cast<long>(src->count));
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < src->count && i < 5u && node != nullptr; i++, node = node->next) {
    convert_plmn_identity_with_optional_mcc_r6(static_cast<const PLMN_IdentityWithOptionalMCC_r6*>(node->data),
                                               &dst->entries[i]);
  }
}

void decode_multiple_plmn_list_r6(const MultiplePLMN_List_r6* src, umts_multiple_plmn_list_r6* dst) {
  dst->mibPLMN_Identity = src->mibPLMN_Identity;
  decode_multiple_plmn_list_r6_multiple_plmns(&src->multiplePLMNs, &dst->multiplePLMNs);
}

void decode_mib_v690ext(const MasterInformationBlock_v690ext* src, umts_mib_v690ext* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    UMTS_LOG_TRACE("Decode multiple plmn list r6");
    decode_multiple_plmn_list_r6(&src->multiplePLMN_List, &dst->multiplePLMN_List);
  }
}

void decode_mib_v690_nce(const MasterInformationBlock_v690NonCriticalExtensions* src, umts_mib_v690_nce* dst) {
  decode_mib_v690ext(&src->masterInformationBlock_v690ext, &dst->masterInformationBlock_v690ext);
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    UMTS_LOG_TRACE("Decode mib_v690_nce_v6b0_nce");
    decode_mib_v690_nce_v6b0_nce(&src->v6b0NonCriticalExtensions, &dst->v6b0NonCriticalExtensions);
  }
}

/* ---- v6b0 ------------------------------------------------------------------------------ */

void convert_mib_v6b0_ext_ie(const MasterInformationBlock_v6b0ext_IEs* src, umts_mib_v6b0_ext_ie* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_ext_sib_type_info_scheduling_info_list,
                        extSIBTypeInfoSchedulingInfo_List);
}

void decode_mib_v690_nce_v6b0_nce(const MasterInformationBlock_v690NonCriticalExtensions_v6b0NonCriticalExtensions* src,
                                  umts_mib_v690_nce_v6b0_nce* dst) {
  convert_mib_v6b0_ext_ie(&src->masterInformationBlock_v6b0ext, &dst->masterInformationBlock_v6b0ext);
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    UMTS_LOG_TRACE("Convert mib_v690_nce_v6b0_nce_v860_nce");
    convert_mib_v690_nce_v6b0_nce_v860_nce(&src->v860NonCriticalExtensions, &dst->v860NonCriticalExtensions);
  }
}

/* ---- v860 ------------------------------------------------------------------------------ */

void convert_mib_v860ext_ies(const MasterInformationBlock_v860ext_IEs* src, umts_mib_v860ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_ext_sib_type_info_scheduling_info_list2,
                        extSIBTypeInfoSchedulingInfo_List);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_ext_ganss_sib_type_info_scheduling_info_list,
                        extGANSS_SIBTypeInfoSchedulingInfoList);
  UMTS_COPY_OPTIONAL(src, dst, 4u, csg_Indicator);
}

void convert_mib_v690_nce_v6b0_nce_v860_nce_nce(
    const MasterInformationBlock_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions*
        src,
    uint8_t* dst) {
  /* The decoded sequence is empty: its one byte is the zero of the cleared record. */
  std::memcpy(dst, src, 1);
}

void convert_mib_v690_nce_v6b0_nce_v860_nce(
    const MasterInformationBlock_v690NonCriticalExtensions_v6b0NonCriticalExtensions_v860NonCriticalExtensions* src,
    umts_mib_v690_nce_v6b0_nce_v860_nce* dst) {
  convert_mib_v860ext_ies(&src->masterInformationBlock_v860ext, &dst->masterInformationBlock_v860ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_mib_v690_nce_v6b0_nce_v860_nce_nce, nonCriticalExtensions);
}
