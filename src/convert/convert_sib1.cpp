/*
 * Conversion of SIB1 (slot 1) into umts_sib1_info: the NAS system information common to
 * the core network, the per-domain list and the UE timers and constants.
 *
 * This block prints with puts and does not log.
 */
#include <cstring>

#include "convert_frame.h"
#include "umts_sib_convert.h"

namespace {

const umts_frame_desc kSib1Frame = {
    umts_sib_sib1, "Decoded SysInfoType1\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib1:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

void copy_conn_timers(const UE_ConnTimersAndConstants* src, umts_ue_conn_timers_and_constants* dst) {
  dst->t_301 = src->t_301;
  dst->n_301 = src->n_301;
  dst->t_302 = src->t_302;
  dst->n_302 = src->n_302;
  dst->t_304 = src->t_304;
  dst->n_304 = src->n_304;
  dst->t_305 = src->t_305;
  dst->t_307 = src->t_307;
  dst->t_308 = src->t_308;
  dst->t_309 = src->t_309;
  dst->t_310 = src->t_310;
  dst->n_310 = src->n_310;
  dst->t_311 = src->t_311;
  dst->t_312 = src->t_312;
  dst->n_312 = src->n_312;
  dst->t_313 = src->t_313;
  dst->n_313 = src->n_313;
  dst->t_314 = src->t_314;
  dst->t_315 = src->t_315;
  dst->n_315 = src->n_315;
  dst->t_316 = src->t_316;
  dst->t_317 = src->t_317;
}

void copy_idle_timers(const UE_IdleTimersAndConstants* src, umts_ue_idle_timers_and_constants* dst) {
  dst->t_300 = src->t_300;
  dst->n_300 = src->n_300;
  dst->t_312 = src->t_312;
  dst->n_312 = src->n_312;
}

}  // namespace

uint8_t umts_convert_sib1(umts_sib1_info* sib1) {
  rtxContext ctx;
  SysInfoType1 decoded;
  if (!umts_frame_open(&ctx, &kSib1Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType1, decoded, kSib1Frame, sib1)) return 0;

  convert_nas_system_gsm_map_info(&decoded.cn_CommonGSM_MAP_NAS_SysInfo, &sib1->cn_CommonGSM_MAP_NAS_SysInfo);
  convert_cn_domain_sysinfo_list(&decoded.cn_DomainSysInfoList, &sib1->cn_DomainSysInfoList);
  /* An absent group stays zero: the schema's defaults are not applied here. */
  if (decoded.m & 1u) {
    sib1->presence_bitmask |= 1u;
    copy_conn_timers(&decoded.ue_ConnTimersAndConstants, &sib1->ue_ConnTimersAndConstants);
  }
  if (decoded.m & 2u) {
    sib1->presence_bitmask |= 2u;
    copy_idle_timers(&decoded.ue_IdleTimersAndConstants, &sib1->ue_IdleTimersAndConstants);
  }
  if (decoded.m & 4u) {
    sib1->presence_bitmask |= 4u;
    fill_sysinfotype1_v3a0_nce(&decoded.v3a0NonCriticalExtensions, &sib1->v3a0NonCriticalExtensions);
  }
  return umts_frame_close(&ctx, &kSib1Frame);
}

/* ---- NAS system information ------------------------------------------------------------ */

void convert_nas_system_gsm_map_info(const NAS_SystemInformationGSM_MAP* src, umts_nas_system_gsm_map_info* dst) {
  dst->count = src->numocts;
  for (uint32_t i = 0; i < src->numocts && i < sizeof dst->octets && i < sizeof src->data; i++)
    dst->octets[i] = src->data[i];
}

/* The parameter's count is a number of BITS, and the record keeps that many octets: for
   8 bits, eight octets of which only the first is meaningful. The octets come from the
   string as far as it reaches (ceil(count / 8)); the rest of that span is written as zero
   rather than read from the decoder's store, which leaves it undefined, and the span ends
   at the record's 256 octets however many bits the string has (up to 2048). */
void convert_nas_system_ansi_41_info(const NAS_SystemInformationANSI_41* src, umts_nas_system_ansi_41_info* dst) {
  dst->count = src->numbits;
  const uint32_t span = src->numbits < sizeof dst->octets ? src->numbits : sizeof dst->octets;
  const uint32_t held = (src->numbits + 7u) / 8u;
  for (uint32_t i = 0; i < span; i++) dst->octets[i] = i < held && i < sizeof src->data ? src->data[i] : 0;
}

void convert_cn_domainsysinfo_cn_type(const CN_DomainSysInfo_cn_Type* src, umts_cn_domain_sysinfo_cn_type* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1:
      if (src->u.gsm_MAP != nullptr) convert_nas_system_gsm_map_info(src->u.gsm_MAP, &dst->u.gsm_MAP);
      break;
    case 2:
      if (src->u.ansi_41 != nullptr) convert_nas_system_ansi_41_info(src->u.ansi_41, &dst->u.ansi_41);
      break;
    default: /* the tag alone, without a word */
      break;
  }
}

void convert_cn_domain_sysinfo_list(const CN_DomainSysInfoList* src, umts_cn_domain_sysinfo_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  if (dst->count == 0) return;
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < 4u && node != nullptr; i++, node = node->next) {
    const CN_DomainSysInfo* entry = static_cast<const CN_DomainSysInfo*>(node->data);
    umts_cn_domain_sysinfo* out = &dst->entries[i];
    out->cn_DomainIdentity = entry->cn_DomainIdentity;
    convert_cn_domainsysinfo_cn_type(&entry->cn_Type, &out->cn_Type);
    out->cn_DRX_CycleLengthCoeff = entry->cn_DRX_CycleLengthCoeff;
  }
}

/* ---- Non-critical extensions ----------------------------------------------------------- */

void fill_sysinfotype1_v3a0_nce(const SysInfoType1_v3a0NonCriticalExtensions* src, umts_sysinfotype1_v3a0_nce* dst) {
  std::memset(dst, 0, sizeof *dst);

  const UE_ConnTimersAndConstants_v3a0ext* conn = &src->sysInfoType1_v3a0ext.ue_ConnTimersAndConstants_v3a0ext;
  if (conn->m & 1u) {
    dst->ue_ConnTimersAndConstants_v3a0ext.presence_bitmask |= 1u;
    dst->ue_ConnTimersAndConstants_v3a0ext.n_312 = conn->n_312;
  }
  if (conn->m & 2u) {
    dst->ue_ConnTimersAndConstants_v3a0ext.presence_bitmask |= 2u;
    dst->ue_ConnTimersAndConstants_v3a0ext.n_315 = conn->n_315;
  }
  const UE_IdleTimersAndConstants_v3a0ext* idle = &src->sysInfoType1_v3a0ext.ue_IdleTimersAndConstants_v3a0ext;
  if (idle->m & 1u) {
    dst->ue_IdleTimersAndConstants_v3a0ext.presence_bitmask |= 1u;
    dst->ue_IdleTimersAndConstants_v3a0ext.n_312 = idle->n_312;
  }

  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    const SysInfoType1_v3a0NonCriticalExtensions_v860NonCriticalExtentions* v860 = &src->v860NonCriticalExtentions;
    umts_sysinfotype1_v860_nce* out = &dst->v860NonCriticalExtentions;
    const UE_ConnTimersAndConstants_v860ext* timers = &v860->sysInfoType1_v860ext.ue_ConnTimersAndConstants;
    if (timers->m & 1u) {
      out->ue_ConnTimersAndConstants.presence_bitmask |= 1u;
      out->ue_ConnTimersAndConstants.t_323 = timers->t_323;
    }
    if (v860->m & 1u) {
      out->presence_bitmask |= 1u;
      /* The decoded sequence is empty: its one byte is the zero of the cleared record. */
      std::memcpy(&out->nonCriticalExtensions, &v860->nonCriticalExtensions, 1);
    }
  }
}
