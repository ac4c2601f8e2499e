/*
 * SIB5: common physical and transport channels. The top of the record, its mode-specific
 * part, and the chain of non-critical extensions from v4b0 to v8d0.
 *
 * The PRACH list is in convert_sib5_prach.cpp, the S-CCPCH list with its PICH in
 * convert_sib5_sccpch.cpp, transport format sets and TFCS in convert_transport_format.cpp.
 * HS-DSCH and common E-DCH members are in convert_sib5_hspa.cpp, the TDD, LCR, HCR and VHCR
 * channels in convert_sib5_tdd.cpp, the MBMS S-CCPCH in convert_sib5_mbms.cpp.
 */
#include <cstring>

#include "convert_frame.h"
#include "convert_list.h"
#include "umts_sib_convert.h"

namespace {

const umts_frame_desc kSib5Frame = {
    umts_sib_sib5, "Decoded SysInfoType5\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib5:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

/* Levels v4b0 to v680: bit 0 the extension, bit 1 the next level, each converted when set. */
template <class Src, class Dst, class ConvertExt, class ConvertNext>
void convert_optional_level(const Src* src, Dst* dst, ConvertExt ext, ConvertNext next) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    ext(src, dst);
  }
  if (src->m & 2u) {
    dst->presence_bitmask |= 2u;
    next(src, dst);
  }
}

}  // namespace

uint8_t umts_convert_sib5(umts_sib5_info* sib5) {
  rtxContext ctx;
  SysInfoType5 decoded;
  if (!umts_frame_open(&ctx, &kSib5Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType5, decoded, kSib5Frame, sib5)) return 0;

  sib5->sib6indicator = decoded.sib6indicator;
  sib5->pich_PowerOffset = decoded.pich_PowerOffset;
  convert_sib_type_5_mode_specific_info(&decoded.modeSpecificInfo, &sib5->modeSpecificInfo);
  UMTS_CONVERT_OPTIONAL(&decoded, sib5, 1u, convert_primary_ccpch_info, primaryCCPCH_Info);
  convert_prach_system_information_list(&decoded.prach_SystemInformationList, &sib5->prach_SystemInformationList);
  convert_sccpch_system_information_list(&decoded.sCCPCH_SystemInformationList, &sib5->sCCPCH_SystemInformationList);
  UMTS_CONVERT_OPTIONAL(&decoded, sib5, 2u, convert_cbs_drx_level1_information, cbs_DRX_Level1Information);
  UMTS_CONVERT_OPTIONAL(&decoded, sib5, 4u, convert_sysinfotype5_v4b0nces, v4b0NonCriticalExtensions);
  return umts_frame_close(&ctx, &kSib5Frame);
}

/* ---- Top ------------------------------------------------------------------------------ */

void convert_sib_type_5_mode_specific_info(const SysInfoType5_modeSpecificInfo* src, umts_sib5_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) {
    dst->u.fdd.aich_PowerOffset = src->u.fdd->aich_PowerOffset;
  } else if (src->t == 2 && src->u.tdd != nullptr) {
    const SysInfoType5_modeSpecificInfo_tdd* tdd = src->u.tdd;
    umts_sib5_mode_specific_info_tdd* out = &dst->u.tdd;
    UMTS_CONVERT_OPTIONAL(tdd, out, 1u, convert_pusch_sysinfo_list_sfn, pusch_SysInfoList_SFN);
    UMTS_CONVERT_OPTIONAL(tdd, out, 2u, convert_pdsch_sysinfo_list_sfn, pdsch_SysInfoList_SFN);
    const OpenLoopPowerControl_TDD& olpc = tdd->openLoopPowerControl_TDD;
    umts_open_loop_power_control_tdd& flat = out->openLoopPowerControl_TDD;
    flat.primaryCCPCH_TX_Power = olpc.primaryCCPCH_TX_Power;
    UMTS_COPY_OPTIONAL(&olpc, &flat, 1u, alpha);
    flat.prach_ConstantValue = olpc.prach_ConstantValue;
    flat.dpch_ConstantValue = olpc.dpch_ConstantValue;
    UMTS_COPY_OPTIONAL(&olpc, &flat, 2u, pusch_ConstantValue);
  }
}

void convert_cbs_drx_level1_information(const CBS_DRX_Level1Information* src, umts_cbs_drx_level1_information* dst) {
  dst->ctch_AllocationPeriod = src->ctch_AllocationPeriod;
  dst->cbs_FrameOffset = src->cbs_FrameOffset;
}

/* ---- Extension chain ------------------------------------------------------------------ */

void convert_sysinfotype5_v4b0nces(const SysInfoType5_v4b0NonCriticalExtensions* src, umts_sib5_v4b0_nces* dst) {
  convert_optional_level(
      src, dst, [](auto* s, auto* d) { convert_sysinfotype5_v4b0ext_ies(&s->sysInfoType5_v4b0ext, &d->sysInfoType5_v4b0ext); },
      [](auto* s, auto* d) { convert_sysinfotype5_v4b0nces_v590nces(&s->v590NonCriticalExtensions, &d->v590NonCriticalExtensions); });
}

void convert_sysinfotype5_v4b0nces_v590nces(const SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions* src,
                                            umts_sib5_v590_nces* dst) {
  convert_optional_level(
      src, dst, [](auto* s, auto* d) { convert_sysinfotype5_v590ext_ies(&s->sysInfoType5_v590ext, &d->sysInfoType5_v590ext); },
      [](auto* s, auto* d) {
        convert_sysinfotype5_v4b0nces_v590nces_v650nces(&s->v650NonCriticalExtensions, &d->v650NonCriticalExtensions);
      });
}

void convert_sysinfotype5_v4b0nces_v590nces_v650nces(
    const SysInfoType5_v4b0NonCriticalExtensions_v590NonCriticalExtensions_v650NonCriticalExtensions* src,
    umts_sib5_v650_nces* dst) {
  convert_optional_level(
      src, dst, [](auto* s, auto* d) { convert_sysinfotype5_v650ext_ies(&s->sysInfoType5_v650ext, &d->sysInfoType5_v650ext); },
      [](auto* s, auto* d) {
        convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces(&s->v680NonCriticalExtensions, &d->v680NonCriticalExtensions);
      });
}

void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces(const umts_sib5_v680_nces_src* src, umts_sib5_v680_nces* dst) {
  convert_optional_level(
      src, dst, [](auto* s, auto* d) { convert_sysinfotype5_v680ext_ies(&s->sysInfoType5_v680ext, &d->sysInfoType5_v680ext); },
      [](auto* s, auto* d) {
        convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces(&s->v690NonCriticalExtensions,
                                                                          &d->v690NonCriticalExtensions);
      });
}

/* From v690 on the extension is mandatory in its level; only the next level is optional. */
void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces(const umts_sib5_v690_nces_src* src,
                                                                       umts_sib5_v690_nces* dst) {
  convert_sysinfotype5_v690ext_ies(&src->sysInfoType5_v690ext, &dst->sysInfoType5_v690ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype5_v4b0ncess_v590nces_v650nces_v680nces_v690nces_v770nces,
                        v770NonCriticalExtensions);
}

void convert_sysinfotype5_v4b0ncess_v590nces_v650nces_v680nces_v690nces_v770nces(const umts_sib5_v770_nces_src* src,
                                                                                 umts_sib5_v770_nces* dst) {
  convert_sysinfotype5_v770ext_ies(&src->sysInfoType5_v770ext, &dst->sysInfoType5_v770ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces,
                        v860NonCriticalExtensions);
}

void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces(const umts_sib5_v860_nces_src* src,
                                                                                         umts_sib5_v860_nces* dst) {
  convert_sysinfotype5_v860ext_ies(&src->sysInfoType5_v860ext, &dst->sysInfoType5_v860ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u,
                        convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces_v890nces,
                        v890NonCriticalExtensions);
}

void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces_v890nces(
    const umts_sib5_v890_nces_src* src, umts_sib5_v890_nces* dst) {
  convert_sysinfotype5_v890ext_ies(&src->sysInfoType5_v890ext, &dst->sysInfoType5_v890ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u,
                        convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces_v890nces_v8b0nces,
                        v8b0NonCriticalExtensions);
}

void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces_v890nces_v8b0nces(
    const umts_sib5_v8b0_nces_src* src, umts_sib5_v8b0_nces* dst) {
  convert_sysinfotype5_v8b0ext_ies(&src->sysInfoType5_v8b0ext, &dst->sysInfoType5_v8b0ext);
  UMTS_CONVERT_OPTIONAL(
      src, dst, 1u,
      convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces_v890nces_v8b0nces_v8d0nces,
      v8d0NonCriticalExtensions);
}

void convert_sysinfotype5_v4b0nces_v590nces_v650nces_v680nces_v690nces_v770nces_v860nces_v890nces_v8b0nces_v8d0nces(
    const umts_sib5_v8d0_nces_src* src, umts_sib5_v8d0_nces* dst) {
  convert_sysinfotype5_v8d0ext_ies(&src->sysInfoType5_v8d0ext, &dst->sysInfoType5_v8d0ext);
  /* An empty type: its one byte is copied all the same. */
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->nonCriticalExtensions = src->nonCriticalExtensions._unused;
  }
}

/* ---- Extension contents --------------------------------------------------------------- */

void convert_sysinfotype5_v4b0ext_ies(const SysInfoType5_v4b0ext_IEs* src, umts_sib5_v4b0ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_pnbsch_allocation_r4, pNBSCH_Allocation_r4);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_open_loop_power_control_ipdl_tdd_r4, openLoopPowerControl_IPDL_TDD);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_prach_system_information_list_lcr_r4, prach_SystemInformationList_LCR_r4);
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, convert_sysinfotype5_v4b0ext_ies_tdd128_specific_info, tdd128SpecificInfo);
  UMTS_COPY_OPTIONAL(src, dst, 0x10u, frequencyBandIndicator);
}

void convert_sysinfotype5_v590ext_ies(const SysInfoType5_v590ext_IEs* src, umts_sib5_v590ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype5_v590ext_ies_hcr_r5_specific_info, hcr_r5_SpecificInfo);
}

void convert_sysinfotype5_v650ext_ies(const SysInfoType5_v650ext_IEs* src, umts_sib5_v650ext* dst) {
  dst->frequencyBandIndicator2 = src->frequencyBandIndicator2;
}

void convert_sysinfotype5_v680ext_ies(const SysInfoType5_v680ext_IEs* src, umts_sib5_v680ext* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, hsdpa_CellIndicator);
}

void convert_sysinfotype5_v690ext_ies(const SysInfoType5_v690ext_IEs* src, umts_sib5_v690ext* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, edch_CellIndicator);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_sysinfotype5_v690ext_ies_sccpch_system_information_mbms, sccpch_SystemInformation_MBMS);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_additional_prach_tf_and_tfcs_ccch_list, additionalPRACH_TF_and_TFCS_CCCH_List);
  UMTS_COPY_OPTIONAL(src, dst, 8u, cBS_DRX_Level1Information_extension);
}

void convert_sysinfotype5_v770ext_ies(const SysInfoType5_v770ext_IEs* src, umts_sib5_v770ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype5_v770ext_ies_mode_specific_info, modeSpecificInfo);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_sccpch_system_information_list_hcr_vhcr_r7, sccpch_SystemInformationList);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_sysinfotype5_v770ext_ies_sccpch_system_information_mbms, sccpch_SystemInformation_MBMS);
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, convert_tdd_mbsfn_information, tDD_MBSFNInformation);
}

void convert_tdd_mbsfn_information(const TDD_MBSFNInformation* src, umts_tdd_mbsfn_information* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<TDD_MBSFNTSlotInfo>(src, 14u, [dst](const TDD_MBSFNTSlotInfo* entry, uint32_t i) {
    dst->entries[i].timeSlotNumber = entry->timeSlotNumber;
    dst->entries[i].cellParametersID = entry->cellParametersID;
  });
}

void convert_sysinfotype5_v860ext_ies(const SysInfoType5_v860ext_IEs* src, umts_sib5_v860ext* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->dummy = src->dummy._unused;
  }
  convert_sysinfotype5_v860ext_ies_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

void convert_sysinfotype5_v890ext_ies(const SysInfoType5_v890ext_IEs* src, umts_sib5_v890ext* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->secondFrequencyInfo.uarfcn_Nt = src->secondFrequencyInfo.uarfcn_Nt;
  }
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_common_edch_system_info, commonEDCHSystemInfo);
}

void convert_sysinfotype5_v8b0ext_ies(const SysInfoType5_v8b0ext_IEs* src, umts_sib5_v8b0ext* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, tresetUsageIndicator);
  UMTS_COPY_OPTIONAL(src, dst, 2u, upPCHpositionInfo);
}

void convert_sysinfotype5_v8d0ext_ies(const SysInfoType5_v8d0ext_IEs* src, umts_sib5_v8d0ext* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_common_edch_system_info_fdd, commonEDCHSystemInfoFDD);
}
