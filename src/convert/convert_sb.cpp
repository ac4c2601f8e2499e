/*
 * Conversion of the scheduling blocks SB1 (slot 10) and SB2 (slot 11) into umts_sb1_info
 * and umts_sb2_info.
 *
 * The two blocks are one design: the same record shape and the same steps, differing only
 * in the decoded types and the frame's texts. Where the decoded records of the two blocks
 * are alike up to their type, one template serves both. These functions print with puts
 * and do not log; the shared extension lists below them log as they do for the MIB.
 */
#include <cstdio>
#include <cstring>

#include "convert_frame.h"
#include "umts_sib_convert.h"
#include "../frame/decoder_state.h"

namespace {

const umts_frame_desc kSb1Frame = {
    umts_sib_sb1, "Decoded SysInfoTypeSB1\n",
    {UMTS_FRAME_PUTS, "convert_scheduling_block1:ASN context initialisation failed "},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "asn1PD_UMTS_SysInfoTypeSB1:asn Decoding Failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

/* SB2 reports a failed decoding with the SB1 text. */
const umts_frame_desc kSb2Frame = {
    umts_sib_sb2, "Decoded SysInfoTypeSB2\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "asn1PD_UMTS_SysInfoTypeSB1:asn Decoding Failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

/* ---- Steps shared by the two blocks ----------------------------------------------------- */

/* SysInfoTypeSB1-v6b0ext / SysInfoTypeSB2-v6b0ext. */
template <typename V6b0Ext>
void copy_v6b0_ext(const V6b0Ext* src, umts_sb_v6b0_ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_ext_sib_type_info_scheduling_info_list,
                        extSIBTypeInfoSchedulingInfo_List);
}

/* SysInfoTypeSB1-v860ext / SysInfoTypeSB2-v860ext. */
template <typename V860Ext>
void copy_v860_ext(const V860Ext* src, umts_sb_v860_ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_ext_sib_type_info_scheduling_info_list2,
                        extSIBTypeInfoSchedulingInfo_List);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_ext_ganss_sib_type_info_scheduling_info_list,
                        extGANSS_SIBTypeInfoSchedulingInfoList);
}

/* The empty nonCriticalExtensions sequence: its one byte, 0. */
template <typename Empty>
void copy_empty(const Empty* src, uint8_t* dst) {
  static_assert(sizeof(Empty) == 1, "an empty decoded sequence is one byte");
  std::memcpy(dst, src, 1);
}

/* The sub-record of either block, after a successful decoding zeroed it. */
template <typename Decoded, typename Flat, typename FirstExtension>
void copy_block(const Decoded& decoded, Flat* flat, FirstExtension first_extension) {
  convert_sib_reference_list(&decoded.sib_ReferenceList, &flat->sib_ReferenceList);
  if (decoded.m & 1u) {
    flat->presence_bitmask |= 1u;
    first_extension(&decoded.v6b0NonCriticalExtensions, &flat->v6b0NonCriticalExtensions);
  }
}

}  // namespace

/* ---- Top conversions ------------------------------------------------------------------- */

uint8_t convert_scheduling_block1(umts_sb1_info* sb1) {
  rtxContext ctx;
  SysInfoTypeSB1 decoded;
  if (!umts_frame_open(&ctx, &kSb1Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoTypeSB1, decoded, kSb1Frame, sb1)) return 0;
  copy_block(decoded, sb1, convert_sysinfotypesb1_v6b0_nc_extensions);
  return umts_frame_close(&ctx, &kSb1Frame);
}

uint8_t convert_scheduling_block2(umts_sb2_info* sb2) {
  rtxContext ctx;
  SysInfoTypeSB2 decoded;
  if (!umts_frame_open(&ctx, &kSb2Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoTypeSB2, decoded, kSb2Frame, sb2)) return 0;
  copy_block(decoded, sb2, convert_sysinfotypesb2_v6b0_nc_extensions);
  return umts_frame_close(&ctx, &kSb2Frame);
}

/* ---- The reference list ---------------------------------------------------------------- */

void convert_sib_reference_list(const SIB_ReferenceList* src, umts_sib_reference_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  const rtxDListNode* node = src->head;
  for (uint32_t i = 0; i < dst->count && i < 32u && node != nullptr; i++, node = node->next) {
    fill_scheduling_info_sib(static_cast<const SchedulingInformationSIB*>(node->data), &dst->entries[i]);
  }
}

void fill_scheduling_info_sib(const SchedulingInformationSIB* src, umts_scheduling_info_sib* dst) {
  fill_sib_type(&src->sib_Type, &dst->sib_Type);
  fill_scheduling_info(&src->scheduling, &dst->scheduling);
}

void fill_sib_type(const SIB_TypeAndTag* src, umts_sib_type* dst) {
  static const char kNoValue[] = "fill_sib_type: option not available";
  dst->choice_tag = src->t;
  if (umts_fill_shared_sib_tag(src, dst)) return;
  switch (src->t) {
    case 22: dst->u.sysInfoType15_1 = src->u.sysInfoType15_1; break;
    case 23:
      if (src->u.sysInfoType15_2 != nullptr)
        convert_sib_occurrence_identity_value_tag(src->u.sysInfoType15_2, &dst->u.sysInfoType15_2);
      break;
    case 24:
      if (src->u.sysInfoType15_3 != nullptr)
        convert_sib_occurrence_identity_value_tag(src->u.sysInfoType15_3, &dst->u.sysInfoType15_3);
      break;
    case 25: dst->u.sysInfoType15_4 = src->u.sysInfoType15_4; break;
    case 26: dst->u.sysInfoType18 = src->u.sysInfoType18; break;
    case 27: dst->u.sysInfoType15_5 = src->u.sysInfoType15_5; break;
    case 28: dst->u.sysInfoType5bis = src->u.sysInfoType5bis; break;
    /* sysInfoType7, dummy2, sysInfoType14, sysInfoType17 and the spares carry no value. */
    case 7:
    case 9:
    case 18:
    case 21:
    case 29:
    case 30:
    case 31:
    case 32: umts_say(kNoValue); break;
    case 10: /* dummy3: no value, and nothing said */ break;
    default: umts_say("\nfill_sib_type: No such option available"); break;
  }
}

/* ---- SB1 extensions -------------------------------------------------------------------- */

void convert_sysinfotypesb1_v6b0_nc_extensions(const SysInfoTypeSB1_v6b0NonCriticalExtensions* src,
                                               umts_sb_v6b0_nc_extensions* dst) {
  convert_sysinfotypesb1_v6b0_ext(&src->sysInfoTypeSB1_v6b0ext, &dst->sysInfoTypeSB_v6b0ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotypesb1_v6b0_nc_extensions_v860_nc_extensions,
                        v860NonCriticalExtensions);
}

void convert_sysinfotypesb1_v6b0_ext(const SysInfoTypeSB1_v6b0ext* src, umts_sb_v6b0_ext* dst) {
  copy_v6b0_ext(src, dst);
}

void convert_sysinfotypesb1_v6b0_nc_extensions_v860_nc_extensions(
    const SysInfoTypeSB1_v6b0NonCriticalExtensions_v860NonCriticalExtensions* src, umts_sb_v860_nc_extensions* dst) {
  convert_sysinfotypesb1_v860_ext(&src->sysInfoTypeSB1_v860ext, &dst->sysInfoTypeSB_v860ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotypesb1_v6b0_nc_extensions_v860_nc_extensions_nc_extensions,
                        nonCriticalExtensions);
}

void convert_sysinfotypesb1_v860_ext(const SysInfoTypeSB1_v860ext* src, umts_sb_v860_ext* dst) {
  copy_v860_ext(src, dst);
}

void convert_sysinfotypesb1_v6b0_nc_extensions_v860_nc_extensions_nc_extensions(
    const SysInfoTypeSB1_v6b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions* src,
    uint8_t* dst) {
  copy_empty(src, dst);
}

/* ---- SB2 extensions -------------------------------------------------------------------- */

void convert_sysinfotypesb2_v6b0_nc_extensions(const SysInfoTypeSB2_v6b0NonCriticalExtensions* src,
                                               umts_sb_v6b0_nc_extensions* dst) {
  convert_sysinfotypesb2_v6b0_ext(&src->sysInfoTypeSB2_v6b0ext, &dst->sysInfoTypeSB_v6b0ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotypesb2_v6b0_nc_extensions_v860_nc_extensions,
                        v860NonCriticalExtensions);
}

void convert_sysinfotypesb2_v6b0_ext(const SysInfoTypeSB2_v6b0ext* src, umts_sb_v6b0_ext* dst) {
  copy_v6b0_ext(src, dst);
}

void convert_sysinfotypesb2_v6b0_nc_extensions_v860_nc_extensions(
    const SysInfoTypeSB2_v6b0NonCriticalExtensions_v860NonCriticalExtensions* src, umts_sb_v860_nc_extensions* dst) {
  convert_sysinfotypesb2_v860_ext(&src->sysInfoTypeSB2_v860ext, &dst->sysInfoTypeSB_v860ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotypesb2_v6b0_nc_extensions_v860_nc_extensions_nc_extensions,
                        nonCriticalExtensions);
}

void convert_sysinfotypesb2_v860_ext(const SysInfoTypeSB2_v860ext* src, umts_sb_v860_ext* dst) {
  copy_v860_ext(src, dst);
}

void convert_sysinfotypesb2_v6b0_nc_extensions_v860_nc_extensions_nc_extensions(
    const SysInfoTypeSB2_v6b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions* src,
    uint8_t* dst) {
  copy_empty(src, dst);
}
