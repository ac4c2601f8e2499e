/*
 * PLMN identities, scheduling information, value tags and the extension scheduling lists:
 * the flat copies shared by the MIB and the other blocks.
 *
 * Diagnostics go to the log service. Lists are walked while the index is below their count,
 * and never past their node chain or the flat array.
 */
#include <cstring>

#include "convert_frame.h"
#include "umts_sib_convert.h"
#include "umts_sib_log.h"

namespace {

inline uint32_t at_most(uint32_t n, uint32_t bound) { return n < bound ? n : bound; }

/* The value of a sib-Pos alternative; false for a tag that has none. */
bool copy_sib_pos(const SchedulingInformation_scheduling_sib_Pos* src, umts_scheduling_pos* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1: dst->u.rep4 = src->u.rep4; return true;
    case 2: dst->u.rep8 = src->u.rep8; return true;
    case 3: dst->u.rep16 = src->u.rep16; return true;
    case 4: dst->u.rep32 = src->u.rep32; return true;
    case 5: dst->u.rep64 = src->u.rep64; return true;
    case 6: dst->u.rep128 = src->u.rep128; return true;
    case 7: dst->u.rep256 = src->u.rep256; return true;
    case 8: dst->u.rep512 = src->u.rep512; return true;
    case 9: dst->u.rep1024 = src->u.rep1024; return true;
    case 10: dst->u.rep2048 = src->u.rep2048; return true;
    case 11: dst->u.rep4096 = src->u.rep4096; return true;
    default: return false;
  }
}

/* The ansi-41 octets: p-REV and min-P-REV are one octet each; sid and nid move as a raw
   16-bit word in memory order. */
void copy_ansi_41(const P_REV& p_rev, const Min_P_REV& min_p_rev, const SID& sid, const NID& nid, uint8_t* dst_p_rev,
                  uint8_t* dst_min_p_rev, uint16_t* dst_sid, uint16_t* dst_nid) {
  *dst_p_rev = p_rev.data[0];
  *dst_min_p_rev = min_p_rev.data[0];
  std::memcpy(dst_sid, sid.data, sizeof *dst_sid);
  std::memcpy(dst_nid, nid.data, sizeof *dst_nid);
}

}  // namespace

/* ---- PLMN identities ------------------------------------------------------------------- */

void convert_mcc(const MCC* src, umts_mcc* dst) {
  dst->count = src->n;
  std::memcpy(dst->digits, src->elem, at_most(src->n, sizeof dst->digits));
}

void convert_mnc(const MNC* src, umts_mnc* dst) {
  dst->count = src->n;
  std::memcpy(dst->digits, src->elem, at_most(src->n, sizeof dst->digits));
}

void fill_plmn_identity(const PLMN_Identity* src, umts_plmn_identity* dst) {
  convert_mcc(&src->mcc, &dst->mcc);
  convert_mnc(&src->mnc, &dst->mnc);
}

void fill_plmn_type_gsm_map(const PLMN_Type_gsm_MAP* src, umts_plmn_identity* dst) {
  fill_plmn_identity(&src->plmn_Identity, dst);
}

void fill_plmn_type_ansi_41(const PLMN_Type_ansi_41* src, umts_plmn_type_ansi_41* dst) {
  copy_ansi_41(src->p_REV, src->min_P_REV, src->sid, src->nid, &dst->p_REV, &dst->min_P_REV, &dst->sid, &dst->nid);
}

void fill_plmn_type_gsm_map_ansi_41(const PLMN_Type_gsm_MAP_and_ANSI_41* src, umts_plmn_type_gsm_map_ansi_41* dst) {
  fill_plmn_identity(&src->plmn_Identity, &dst->plmn_Identity);
  copy_ansi_41(src->p_REV, src->min_P_REV, src->sid, src->nid, &dst->p_REV, &dst->min_P_REV, &dst->sid, &dst->nid);
}

void convert_plmn_type(const PLMN_Type* src, umts_plmn_type* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1:
      if (src->u.gsm_MAP != nullptr) fill_plmn_type_gsm_map(src->u.gsm_MAP, &dst->u.gsm_MAP);
      break;
    case 2:
      if (src->u.ansi_41 != nullptr) fill_plmn_type_ansi_41(src->u.ansi_41, &dst->u.ansi_41);
      break;
    case 3:
      if (src->u.gsm_MAP_and_ANSI_41 != nullptr)
        fill_plmn_type_gsm_map_ansi_41(src->u.gsm_MAP_and_ANSI_41, &dst->u.gsm_MAP_and_ANSI_41);
      break;
    default: /* spare: the tag alone */
      break;
  }
}

void convert_plmn_identity_with_optional_mcc_r6(const PLMN_IdentityWithOptionalMCC_r6* src,
                                                umts_plmn_identity_with_optional_mcc_r6* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_mcc, mcc);
  convert_mnc(&src->mnc, &dst->mnc);
}

/* ---- Scheduling ------------------------------------------------------------------------ */

void fill_scheduling_pos(const SchedulingInformation_scheduling_sib_Pos* src, umts_scheduling_pos* dst) {
  if (!copy_sib_pos(src, dst)) UMTS_LOG_ERROR("fill_scheduling_pos:No such option available");
}

void fill_scheduling_info(const SchedulingInformation* src, umts_scheduling_info* dst) {
  const SchedulingInformation_scheduling* scheduling = &src->scheduling;
  dst->segCount = scheduling->segCount;
  fill_scheduling_pos(&scheduling->sib_Pos, &dst->sib_Pos);
  if (scheduling->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->sib_PosOffsetInfo.count = scheduling->sib_PosOffsetInfo.n;
    std::memcpy(dst->sib_PosOffsetInfo.entries, scheduling->sib_PosOffsetInfo.elem,
                at_most(scheduling->sib_PosOffsetInfo.n, 15u) * sizeof dst->sib_PosOffsetInfo.entries[0]);
  }
}

void convert_schedulingInformation_scheduling_sib_pos(const SchedulingInformation_scheduling_sib_Pos* src,
                                                      umts_scheduling_pos* dst) {
  copy_sib_pos(src, dst);
}

void convert_sib_off_list(const SibOFF_List* src, umts_sib_off_list* dst) {
  dst->count = src->n;
  std::memcpy(dst->entries, src->elem, at_most(src->n, 15u) * sizeof dst->entries[0]);
}

void convert_scheduling_information_scheduling(const SchedulingInformation_scheduling* src, umts_scheduling_info* dst) {
  dst->segCount = src->segCount;
  convert_schedulingInformation_scheduling_sib_pos(&src->sib_Pos, &dst->sib_Pos);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sib_off_list, sib_PosOffsetInfo);
}

void convert_scheduling_info(const SchedulingInformation* src, umts_scheduling_info* dst) {
  convert_scheduling_information_scheduling(&src->scheduling, dst);
}

void convert_scheduling_information(const SchedulingInformation* src, umts_scheduling_info* dst) {
  convert_scheduling_information_scheduling(&src->scheduling, dst);
}

/* ---- Value tags ------------------------------------------------------------------------ */

void convert_sib_occurrence_identity_value_tag(const SIBOccurrenceIdentityAndValueTag* src,
                                               umts_sib_occurrence_identity_and_value_tag* dst) {
  dst->sibOccurIdentity = src->sibOccurIdentity;
  dst->sibOccurValueTag = src->sibOccurValueTag;
}

void convert_value_tag_info(const ValueTagInfo* src, umts_value_tag_info* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 2: dst->u.cellValueTag = src->u.cellValueTag; break;
    case 3: dst->u.plmn_ValueTag = src->u.plmn_ValueTag; break;
    case 4:
      if (src->u.sIBOccurrenceIdentityAndValueTag != nullptr)
        convert_sib_occurrence_identity_value_tag(src->u.sIBOccurrenceIdentityAndValueTag,
                                                  &dst->u.sIBOccurrenceIdentityAndValueTag);
      break;
    default: /* none, or a tag without a value */
      break;
  }
}

/* ---- Extension scheduling lists -------------------------------------------------------- */

void convert_sib_type_ext(const SIB_TypeExt* src, uint32_t* dst) { *dst = src->t; }
void convert_sib_type_ext2(const SIB_TypeExt2* src, uint32_t* dst) { *dst = src->t; }
void convert_sib_type_ext_ganss(const SIB_TypeExtGANSS* src, uint32_t* dst) { *dst = src->t; }

void convert_ext_sib_type_info_scheduling_info_list(const ExtSIBTypeInfoSchedulingInfo_List* src,
                                                    umts_ext_sib_type_info_scheduling_info_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  UMTS_LOG_TRACE("Convert ExtSIBTypeInfoSchedulingInfo_List");
  UMTS_LOG_TRACE("  p_ext_sib_type_info_scheduling_info_list count=%ld", static_cast<long>(dst->count));
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < 32u && node != nullptr; i++, node = node->next) {
    const ExtSIBTypeInfoSchedulingInfo* entry = static_cast<const ExtSIBTypeInfoSchedulingInfo*>(node->data);
    umts_ext_sib_type_info_scheduling_info* out = &dst->entries[i];
    convert_sib_type_ext(&entry->extensionSIB_Type, &out->extensionSIB_Type);
    convert_scheduling_info(&entry->schedulingInfo, &out->schedulingInfo);
    convert_value_tag_info(&entry->valueTagInfo, &out->valueTagInfo);
  }
}

void convert_ext_sib_type_info_scheduling_info_list2(const ExtSIBTypeInfoSchedulingInfo_List2* src,
                                                     umts_ext_sib_type_info_scheduling_info_list2* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < 32u && node != nullptr; i++, node = node->next) {
    const ExtSIBTypeInfoSchedulingInfo2* entry = static_cast<const ExtSIBTypeInfoSchedulingInfo2*>(node->data);
    umts_ext_sib_type_info_scheduling_info2* out = &dst->entries[i];
    convert_sib_type_ext2(&entry->extensionSIB_Type2, &out->extensionSIB_Type2);
    convert_scheduling_information(&entry->schedulingInfo, &out->schedulingInfo);
    convert_value_tag_info(&entry->valueTagInfo, &out->valueTagInfo);
  }
}

void convert_ext_ganss_sib_type_info_scheduling_info_ganss_scheduling(
    const ExtGANSS_SIBTypeInfoSchedulingInfo_ganssScheduling* src, umts_ext_ganss_scheduling* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < 32u && node != nullptr; i++, node = node->next) {
    const ExtGANSS_SchedulingInfo* entry = static_cast<const ExtGANSS_SchedulingInfo*>(node->data);
    umts_ext_ganss_scheduling_info* out = &dst->entries[i];
    convert_sib_type_ext_ganss(&entry->extensionGANSS_SIBType, &out->extensionGANSS_SIBType);
    convert_scheduling_information(&entry->schedulingInfo, &out->schedulingInfo);
    convert_value_tag_info(&entry->valueTagInfo, &out->valueTagInfo);
  }
}

void convert_ext_ganss_sib_type_info_scheduling_info_list(const ExtGANSS_SIBTypeInfoSchedulingInfoList* src,
                                                          umts_ext_ganss_sib_type_info_scheduling_info_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < 8u && node != nullptr; i++, node = node->next) {
    const ExtGANSS_SIBTypeInfoSchedulingInfo* entry = static_cast<const ExtGANSS_SIBTypeInfoSchedulingInfo*>(node->data);
    umts_ext_ganss_sib_type_info_scheduling_info* out = &dst->entries[i];
    if (entry->m & 1u) {
      out->presence_bitmask |= 1u;
      out->ganssID = entry->ganssID;
    }
    if (entry->m & 2u) {
      out->presence_bitmask |= 2u;
      out->sbasID = entry->sbasID;
    }
    convert_ext_ganss_sib_type_info_scheduling_info_ganss_scheduling(&entry->ganssScheduling, &out->ganssScheduling);
  }
}

/* ---- Primary CCPCH --------------------------------------------------------------------- */

void convert_primary_ccpch_info(const PrimaryCCPCH_Info* src, umts_primary_ccpch_info* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1:
      if (src->u.fdd != nullptr) dst->u.fdd.tx_DiversityIndicator = src->u.fdd->tx_DiversityIndicator;
      break;
    case 2: {
      const PrimaryCCPCH_Info_tdd* tdd = src->u.tdd;
      if (tdd == nullptr) break;
      umts_primary_ccpch_info_tdd* out = &dst->u.tdd;
      if (tdd->m & 1u) {
        out->presence_bitmask |= 1u;
        out->syncCase.choice_tag = tdd->syncCase.t;
        if (tdd->syncCase.t == 1 && tdd->syncCase.u.syncCase1 != nullptr)
          out->syncCase.u.timeslot = tdd->syncCase.u.syncCase1->timeslot;
        else if (tdd->syncCase.t == 2 && tdd->syncCase.u.syncCase2 != nullptr)
          out->syncCase.u.timeslotSync2 = tdd->syncCase.u.syncCase2->timeslotSync2;
      }
      UMTS_COPY_OPTIONAL(tdd, out, 2u, cellParametersID);
      out->sctd_Indicator = tdd->sctd_Indicator;
      break;
    }
    default:
      break;
  }
}
