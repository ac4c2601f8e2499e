/*
 * SIB5: HS-DSCH reception in CELL_FACH and paging (v770 fdd, v860) and common E-DCH (v890
 * commonEDCHSystemInfo, v8d0 commonEDCHSystemInfoFDD): what an HSPA cell broadcasts.
 *
 * The v890 fdd alternative and the v8d0 record carry the same members under decoded types of
 * their own; one template converts both. The 1.28 Mcps common E-DCH resources of v890 are at
 * the end; the TDD channel lists of v770 are in convert_sib5_tdd.cpp.
 */
#include <cstring>

#include "convert_frame.h"
#include "convert_list.h"
#include "umts_sib_convert.h"

namespace {

/* Copies `n` integers of an inline decoded array into a flat array of `bound` entries. */
template <class Dst, class Src>
void copy_inline(Dst* dst, const Src* src, uint32_t n, uint32_t bound) {
  for (uint32_t i = 0; i < n && i < bound; i++) dst[i] = static_cast<Dst>(src[i]);
}

void convert_common_rb_mapping_info(const CommonRBMappingInfo* src, umts_common_rb_mapping_info* dst) {
  dst->logicalChannelIdentity = src->logicalChannelIdentity;
  dst->mac_ehs_QueueId = src->mac_ehs_QueueId;
}

/* The FDD members of common E-DCH, from either decoded type; `feedback` is the option bit of
   measurement_Feedback_Info in `src` and in `dst` alike. */
template <class Src, class Dst>
void convert_common_edch_fdd_members(const Src* src, Dst* dst, uint32_t feedback) {
  convert_prach_preamble_for_enhanced_uplink(&src->prach_PreambleForEnhancedUplink, &dst->prach_PreambleForEnhancedUplink);
  dst->initialServingGrantValue = src->initialServingGrantValue;
  dst->e_dch_TTI = src->e_dch_TTI;
  dst->e_agch_Information.e_AGCH_ChannelisationCode = src->e_agch_Information.e_AGCH_ChannelisationCode;
  convert_harq_info(&src->harq_Info, &dst->harq_Info);
  convert_ul_dpch_power_control_info_for_common_edch(&src->ul_DPCHpowerControlInfoForCommonEDCH,
                                                     &dst->ul_DPCHpowerControlInfoForCommonEDCH);
  convert_e_dpcch_info_r7(&src->e_dpcch_Info, &dst->e_dpcch_Info);
  convert_e_dpdch_info_r8(&src->e_dpdch_Info, &dst->e_dpdch_Info);
  dst->dl_FDPCH_TPCcommandErrorRate = src->dl_FDPCH_TPCcommandErrorRate;
  dst->additional_E_DCH_TransmitBackoff = src->additional_E_DCH_TransmitBackoff;
  dst->max_CCCH_ResourceAllocation = src->max_CCCH_ResourceAllocation;
  dst->max_PeriodForCollisionResolution = src->max_PeriodForCollisionResolution;
  dst->e_dch_TransmitContinuationOffset = src->e_dch_TransmitContinuationOffset;
  dst->ack_nack_support_on_HS_DPCCH = src->ack_nack_support_on_HS_DPCCH;
  UMTS_CONVERT_OPTIONAL(src, dst, feedback, convert_measurement_feedback_info_r7, measurement_Feedback_Info);
  convert_common_edch_resource_info_list(&src->common_E_DCH_ResourceInfoList, &dst->common_E_DCH_ResourceInfoList);
}

/* ul_InterferenceForCommonEDCH (bit 0) and the MAC-d flows, the head of both records. */
template <class Src, class Dst>
void convert_common_edch_head(const Src* src, Dst* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, ul_InterferenceForCommonEDCH);
  convert_common_e_dch_mac_d_flow_list(&src->common_E_DCH_MAC_d_FlowList, &dst->common_E_DCH_MAC_d_FlowList);
}

}  // namespace

/* ==== v770 fdd: HS-DSCH common and paging system information ============================ */

void convert_sysinfotype5_v770ext_ies_mode_specific_info(const SysInfoType5_v770ext_IEs_modeSpecificInfo* src,
                                                         umts_sib5_v770_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) {
    const SysInfoType5_v770ext_IEs_modeSpecificInfo_fdd* fdd = src->u.fdd;
    convert_hs_dsch_common_system_information(&fdd->hs_dsch_CommonSystemInformation,
                                              &dst->u.fdd.hs_dsch_CommonSystemInformation);
    UMTS_CONVERT_OPTIONAL(fdd, &dst->u.fdd, 1u, convert_hs_dsch_paging_system_information, hs_dsch_PagingSystemInformation);
  } else if (src->t == 2 && src->u.tdd768 != nullptr) {
    convert_sysinfotype5_v770ext_ies_mode_specific_info_tdd768(src->u.tdd768, &dst->u.tdd768);
  } else if (src->t == 3 && src->u.tdd128 != nullptr) {
    convert_sysinfotype5_v770ext_ies_mode_specific_info_tdd128(src->u.tdd128, &dst->u.tdd128);
  }
}

void convert_hs_dsch_common_system_information(const HS_DSCH_CommonSystemInformation* src,
                                               umts_hs_dsch_common_system_information* dst) {
  convert_common_rb_mapping_info(&src->ccch_MappingInfo, &dst->ccch_MappingInfo);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_common_rb_mapping_info, srb1_MappingInfo);
  convert_common_mac_ehs_reordering_queue_list(&src->common_MAC_ehs_ReorderingQueueList,
                                               &dst->common_MAC_ehs_ReorderingQueueList);
  convert_hs_scch_system_info(&src->hs_scch_SystemInfo, &dst->hs_scch_SystemInfo);
  convert_harq_system_info(&src->harq_SystemInfo, &dst->harq_SystemInfo);
  convert_hs_dsch_common_system_information_common_h_rnti_information(&src->common_H_RNTI_information,
                                                                     &dst->common_H_RNTI_information);
  convert_h_rnti(&src->bcchSpecific_H_RNTI, &dst->bcchSpecific_H_RNTI);
}

/* The 1.28 Mcps form: its own HS-SCCH information and the HS-PDSCH midamble. */
void convert_hs_dsch_common_system_information_tdd128(const HS_DSCH_CommonSystemInformation_TDD128* src,
                                                      umts_hs_dsch_common_system_information_tdd128* dst) {
  convert_common_rb_mapping_info(&src->ccch_MappingInfo, &dst->ccch_MappingInfo);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_common_rb_mapping_info, srb1_MappingInfo);
  convert_common_mac_ehs_reordering_queue_list(&src->common_MAC_ehs_ReorderingQueueList,
                                               &dst->common_MAC_ehs_ReorderingQueueList);
  convert_hs_scch_system_info_tdd128(&src->hs_scch_SystemInfo_tdd128, &dst->hs_scch_SystemInfo_tdd128);
  convert_harq_system_info(&src->harq_SystemInfo, &dst->harq_SystemInfo);
  convert_hs_pdsch_midamble_configuration_tdd128(&src->hs_pdsch_MidambleConfiguration, &dst->hs_pdsch_MidambleConfiguration);
  /* Its loop index is 32 bits wide; it stops at the count all the same. */
  dst->common_H_RNTI_information.count = src->common_H_RNTI_information.n;
  for (uint32_t i = 0; i < src->common_H_RNTI_information.n && i < 4u; i++)
    convert_h_rnti(&src->common_H_RNTI_information.elem[i], &dst->common_H_RNTI_information.entries[i]);
  convert_h_rnti(&src->bcchSpecific_H_RNTI, &dst->bcchSpecific_H_RNTI);
}

/* Each HS-SCCH: its midamble shift inline (tag 3); its HS-SICH's through a pointer (tag 2). */
void convert_hs_scch_system_info_tdd128(const HS_SCCH_SystemInfo_TDD128* src, umts_hs_scch_system_info_tdd128* dst) {
  dst->hs_SCCH_SetConfiguration.count = static_cast<uint8_t>(src->hs_SCCH_SetConfiguration.count);
  umts_for_each_node<HS_SCCH_TDD128_r6>(&src->hs_SCCH_SetConfiguration, 4u, [dst](const HS_SCCH_TDD128_r6* scch, uint32_t i) {
    umts_hs_scch_tdd128* out = &dst->hs_SCCH_SetConfiguration.entries[i];
    out->timeslotNumber = scch->timeslotNumber;
    out->firstChannelisationCode = scch->firstChannelisationCode;
    out->secondChannelisationCode = scch->secondChannelisationCode;
    out->midambleAllocationMode.choice_tag = scch->midambleAllocationMode.t;
    if (scch->midambleAllocationMode.t == 3) out->midambleAllocationMode.u.ueSpecificMidamble = scch->midambleAllocationMode.u.ueSpecificMidamble;
    out->midambleConfiguration = scch->midambleConfiguration;
    const HS_SICH_Configuration_TDD128_r6& sich = scch->hs_sich_configuration;
    out->hs_sich_configuration.timeslotNumber = sich.timeslotNumber;
    out->hs_sich_configuration.channelisationCode = sich.channelisationCode;
    out->hs_sich_configuration.midambleAllocationMode.choice_tag = sich.midambleAllocationMode.t;
    if (sich.midambleAllocationMode.t == 2 && sich.midambleAllocationMode.u.ueSpecificMidamble != nullptr)
      out->hs_sich_configuration.midambleAllocationMode.u.ueSpecificMidamble = sich.midambleAllocationMode.u.ueSpecificMidamble->midambleShift;
    out->hs_sich_configuration.midambleConfiguration = sich.midambleConfiguration;
  });
  dst->power_level_HSSICH = src->power_level_HSSICH;
  dst->nack_ack_power_offset = src->nack_ack_power_offset;
  dst->tpc_step_size = src->tpc_step_size;
  dst->bler_target = src->bler_target;
  UMTS_COPY_OPTIONAL(src, dst, 1u, power_control_gap);
  UMTS_COPY_OPTIONAL(src, dst, 2u, pathloss_compensation_switch);
}

void convert_common_mac_ehs_reordering_queue_list(const Common_MAC_ehs_ReorderingQueueList* src,
                                                  umts_common_mac_ehs_reordering_queue_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<Common_MAC_ehs_ReorderingQueue>(src, 2u, [dst](const Common_MAC_ehs_ReorderingQueue* q, uint32_t i) {
    umts_common_mac_ehs_reordering_queue* out = &dst->entries[i];
    out->mac_ehs_QueueId = q->mac_ehs_QueueId;
    out->t1_ReleaseTimer = q->t1_ReleaseTimer;
    UMTS_COPY_OPTIONAL(q, out, 1u, reorderingResetTimer);
    out->mac_ehsWindowSize = q->mac_ehsWindowSize;
  });
}

void convert_hs_scch_system_info(const HS_SCCH_SystemInfo* src, umts_hs_scch_system_info* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, dl_ScramblingCode);
  dst->hS_SCCHChannelisationCodeInfo.count = src->hS_SCCHChannelisationCodeInfo.n;
  copy_inline(dst->hS_SCCHChannelisationCodeInfo.entries, src->hS_SCCHChannelisationCodeInfo.elem,
              src->hS_SCCHChannelisationCodeInfo.n, 4u);
}

/* implicit stores its tag; explicit its sizes, `count * 4` bytes. */
void convert_harq_system_info(const HARQ_Info* src, umts_harq_info* dst) {
  dst->numberOfProcesses = src->numberOfProcesses;
  dst->memoryPartitioning.choice_tag = src->memoryPartitioning.t;
  if (src->memoryPartitioning.t == 2 && src->memoryPartitioning.u.explicit_ != nullptr) {
    const HARQ_Info_memoryPartitioning_explicit_* sizes = src->memoryPartitioning.u.explicit_;
    dst->memoryPartitioning.u.explicit_.count = sizes->n;
    copy_inline(dst->memoryPartitioning.u.explicit_.entries, sizes->elem, sizes->n, 8u);
  }
}

/* The copy is told the H-RNTI's 16 bits as 16 octets. An entry's run-on lands on the entry
   after it, which is converted afterwards (or stays as the decoder left it: zero); the last
   one's on bcchSpecific_H_RNTI, also converted afterwards. Only bcchSpecific_H_RNTI's own
   run-on would leave the record, and it is not written. */
void convert_h_rnti(const H_RNTI* src, umts_bit_string32* dst) { umts_copy_bit_string(*src, dst); }

void convert_hs_dsch_common_system_information_common_h_rnti_information(
    const HS_DSCH_CommonSystemInformation_common_H_RNTI_information* src, umts_h_rnti_list* dst) {
  dst->count = src->n;
  for (uint8_t i = 0; i < src->n && i < 4u; i++) convert_h_rnti(&src->elem[i], &dst->entries[i]);
}

void convert_hs_dsch_paging_system_information(const HS_DSCH_PagingSystemInformation* src,
                                               umts_hs_dsch_paging_system_information* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, dlScramblingCode);
  dst->pich_ForHSDPASupportedPagingList.count = static_cast<uint8_t>(src->pich_ForHSDPASupportedPagingList.count);
  umts_for_each_node<PICH_ForHSDPASupportedPaging>(
      &src->pich_ForHSDPASupportedPagingList, 16u, [dst](const PICH_ForHSDPASupportedPaging* p, uint32_t i) {
        umts_pich_for_hsdpa_supported_paging* out = &dst->pich_ForHSDPASupportedPagingList.entries[i];
        convert_pich_info(&p->hsdpa_AssociatedPichInfo, &out->hsdpa_AssociatedPichInfo);
        out->hs_pdschChannelisationCode = p->hs_pdschChannelisationCode;
      });
  dst->numberOfPcchTransmissions = src->numberOfPcchTransmissions;
  dst->transportBlockSizeList.count = src->transportBlockSizeList.n;
  copy_inline(dst->transportBlockSizeList.entries, src->transportBlockSizeList.elem, src->transportBlockSizeList.n, 2u);
}

/* ==== v860: HS-DSCH DRX in CELL_FACH ====================================================== */

void convert_sysinfotype5_v860ext_ies_mode_specific_info(const SysInfoType5_v860ext_IEs_modeSpecificInfo* src,
                                                         umts_sib5_v860_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) {
    const SysInfoType5_v860ext_IEs_modeSpecificInfo_fdd* fdd = src->u.fdd;
    if (fdd->m & 1u) {
      umts_hs_dsch_drx_cellfach_info* out = &dst->u.fdd.hs_dsch_DrxCellfach_info;
      dst->u.fdd.presence_bitmask |= 1u;
      out->t_321 = fdd->hs_dsch_DrxCellfach_info.t_321;
      out->hs_dsch_DrxCycleFach = fdd->hs_dsch_DrxCellfach_info.hs_dsch_DrxCycleFach;
      out->hs_dsch_DrxBurstFach = fdd->hs_dsch_DrxCellfach_info.hs_dsch_DrxBurstFach;
      out->drxInterruption_hs_dsch = fdd->hs_dsch_DrxCellfach_info.drxInterruption_hs_dsch;
    }
  } else if (src->t == 2 && src->u.tdd128 != nullptr) {
    const SysInfoType5_v860ext_IEs_modeSpecificInfo_tdd128* tdd = src->u.tdd128;
    umts_sib5_v860_mode_specific_info_tdd128* out = &dst->u.tdd128;
    if (tdd->m & 1u) {
      const SysInfoType5_v860ext_IEs_modeSpecificInfo_tdd128_hs_dsch_CommonSysInfo& info = tdd->hs_dsch_CommonSysInfo;
      out->presence_bitmask |= 1u;
      convert_hs_dsch_common_system_information_tdd128(&info.hs_dsch_CommonSystemInformation,
                                                       &out->hs_dsch_CommonSysInfo.hs_dsch_CommonSystemInformation);
      UMTS_CONVERT_OPTIONAL(&info, &out->hs_dsch_CommonSysInfo, 1u, convert_hs_dsch_paging_system_information_tdd128,
                            hs_dsch_PagingSystemInformation);
    }
    if (tdd->m & 2u) {
      out->presence_bitmask |= 2u;
      out->hs_dsch_DrxCellfach_info.t_321 = tdd->hs_dsch_DrxCellfach_info.t_321;
      out->hs_dsch_DrxCellfach_info.hs_dsch_DrxCycleFach = tdd->hs_dsch_DrxCellfach_info.hs_dsch_DrxCycleFach;
      out->hs_dsch_DrxCellfach_info.hs_dsch_DrxBurstFach = tdd->hs_dsch_DrxCellfach_info.hs_dsch_DrxBurstFach;
    }
  }
}

/* ==== Common E-DCH ======================================================================= */

void convert_common_edch_system_info(const CommonEDCHSystemInfo* src, umts_common_edch_system_info* dst) {
  convert_common_edch_head(src, dst);
  convert_common_edch_system_info_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

/* fdd converts its members (the message's first alternative is the FDD resources, not a
   byte); tdd stores its inner tag, of which tdd128 (3) alone has members: E-RUCCH, E-PUCH,
   E-HICH, E-AGCH, HARQ and CCCH transmission, in that order. */
void convert_common_edch_system_info_mode_specific_info(const CommonEDCHSystemInfo_modeSpecificInfo* src,
                                                        umts_common_edch_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) {
    convert_common_edch_fdd_members(src->u.fdd, &dst->u.fdd, 1u);
  } else if (src->t == 2 && src->u.tdd != nullptr) {
    dst->u.tdd.choice_tag = src->u.tdd->t;
    if (src->u.tdd->t == 3 && src->u.tdd->u.tdd128 != nullptr) {
      const CommonEDCHSystemInfo_modeSpecificInfo_tdd_tdd128* tdd128 = src->u.tdd->u.tdd128;
      umts_common_edch_tdd128* out = &dst->u.tdd.u.tdd128;
      convert_e_rucch_info_tdd128(&tdd128->e_RUCCH_Info, &out->e_RUCCH_Info);
      convert_e_puch_info_tdd128(&tdd128->e_PUCH_Info, &out->e_PUCH_Info);
      convert_e_hich_information_tdd128(&tdd128->e_hich_Information, &out->e_hich_Information);
      convert_e_agch_information_tdd128(&tdd128->e_agch_Information, &out->e_agch_Information);
      convert_harq_info(&tdd128->harq_Info, &out->harq_Info);
      convert_ccch_transmission_info_tdd128(&tdd128->ccch_transmission_Info, &out->ccch_transmission_Info);
    }
  }
}

void convert_common_edch_system_info_fdd(const CommonEDCHSystemInfoFDD* src, umts_common_edch_system_info_fdd* dst) {
  convert_common_edch_head(src, dst);
  convert_common_edch_fdd_members(src, dst, 2u);
}

void convert_common_e_dch_mac_d_flow_list(const Common_E_DCH_MAC_d_FlowList* src, umts_common_e_dch_mac_d_flow_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<Common_E_DCH_MAC_d_Flow>(src, 8u, [dst](const Common_E_DCH_MAC_d_Flow* flow, uint32_t i) {
    umts_common_e_dch_mac_d_flow* out = &dst->entries[i];
    out->mac_d_FlowIdentity = flow->mac_d_FlowIdentity;
    out->mac_d_FlowPowerOffset = flow->mac_d_FlowPowerOffset;
    out->mac_d_FlowMaxRetrans = flow->mac_d_FlowMaxRetrans;
    if (flow->m & 1u) {
      out->presence_bitmask |= 1u;
      convert_umts1_bit_str32(&flow->mac_d_FlowMultiplexingList, &out->mac_d_FlowMultiplexingList);
    }
    UMTS_COPY_OPTIONAL(flow, out, 2u, e_dch_mac_d_flow_retransmission_timer);
  });
}

/* harq-Info of common E-DCH: rv0 or rvtable. */
void convert_harq_info(const uint32_t* src, uint32_t* dst) { *dst = *src; }

void convert_umts1_bit_str32(const rtxBitStr32* src, umts_bit_string32* dst) { umts_copy_bit_string(*src, dst); }

/* The message always carries availableSignatures, preambleScramblingCodeWordNumber and
   availableSubChannelNumbers: bits 0 to 2. Its eight optional members take bits 3 to 10. */
void convert_prach_preamble_for_enhanced_uplink(const PRACH_PreambleForEnhancedUplink* src,
                                                umts_prach_preamble_for_enhanced_uplink* dst) {
  dst->presence_bitmask = static_cast<uint16_t>(7u | ((src->m & 0xFFu) << 3));
  convert_umts1_bit_str32(&src->availableSignatures, &dst->availableSignatures);
  dst->e_ai_Indication = src->e_ai_Indication;
  dst->preambleScramblingCodeWordNumber = src->preambleScramblingCodeWordNumber;
  convert_available_sub_channel_numbers(&src->availableSubChannelNumbers, &dst->availableSubChannelNumbers);
  if (src->m & 0x01u) convert_prach_partitioning_r7(&src->prach_Partitioning, &dst->prach_Partitioning);
  if (src->m & 0x02u) convert_persistence_scaling_factor_list(&src->persistenceScalingFactorList, &dst->persistenceScalingFactorList);
  if (src->m & 0x04u) convert_ac_to_asc_mapping_table(&src->ac_To_ASC_MappingTable, &dst->ac_To_ASC_MappingTable);
  if (src->m & 0x08u) dst->primaryCPICH_TX_Power = src->primaryCPICH_TX_Power;
  if (src->m & 0x10u) dst->constantValue = src->constantValue;
  if (src->m & 0x20u) convert_prach_poweroffset(&src->prach_PowerOffset, &dst->prach_PowerOffset);
  if (src->m & 0x40u) convert_rach_transmission_parameters(&src->rach_TransmissionParameters, &dst->rach_TransmissionParameters);
  if (src->m & 0x80u) convert_aich_info(&src->aich_Info, &dst->aich_Info);
  dst->powerOffsetPp_e = src->powerOffsetPp_e;
}

void convert_available_sub_channel_numbers(const AvailableSubChannelNumbers* src, umts_bit_string32* dst) {
  umts_copy_bit_string(*src, dst);
}

/* One block copy of the levels, `count * 4` bytes. */
void convert_persistence_scaling_factor_list(const PersistenceScalingFactorList* src,
                                             umts_persistence_scaling_factor_list* dst) {
  dst->count = src->n;
  std::memcpy(dst->entries, src->elem, (src->n < 6u ? src->n : 6u) * sizeof dst->entries[0]);
}

/* PRACH-Partitioning-r7: 1 fdd, 2 tdd, each with an 8-bit count. */
void convert_prach_partitioning_r7(const PRACH_Partitioning_r7* src, umts_prach_partitioning_r7* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_prach_partitioning_r7_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr) convert_prach_partitioning_r7_tdd(src->u.tdd, &dst->u.tdd);
}

void convert_ul_dpch_power_control_info_for_common_edch(const UL_DPCHpowerControlInfoForCommonEDCH* src,
                                                        umts_ul_dpch_power_control_info_for_common_edch* dst) {
  dst->powerControlAlgorithm.choice_tag = src->powerControlAlgorithm.t;
  if (src->powerControlAlgorithm.t == 1) dst->powerControlAlgorithm.u.algorithm1 = src->powerControlAlgorithm.u.algorithm1;
  UMTS_COPY_OPTIONAL(src, dst, 1u, deltaACK);
  UMTS_COPY_OPTIONAL(src, dst, 2u, deltaNACK);
  UMTS_COPY_OPTIONAL(src, dst, 4u, ack_NACK_repetition_factor);
}

void convert_e_dpcch_info_r7(const E_DPCCH_Info_r7* src, umts_e_dpcch_info* dst) {
  dst->e_DPCCH_DPCCH_PowerOffset = src->e_DPCCH_DPCCH_PowerOffset;
  dst->happyBit_DelayCondition = src->happyBit_DelayCondition;
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->e_TFC_Boost_Info.e_TFCI_Boost = src->e_TFC_Boost_Info.e_TFCI_Boost;
    UMTS_COPY_OPTIONAL(&src->e_TFC_Boost_Info, &dst->e_TFC_Boost_Info, 1u, delta_T2TP);
  }
  UMTS_COPY_OPTIONAL(src, dst, 2u, e_DPDCH_PowerInterpolation);
}

/* Option bits 0 to 3 are kept as 0x10, 0x20, 0x40, 0x80: the record's own contract. */
void convert_e_dpdch_info_r8(const E_DPDCH_Info_r8* src, umts_e_dpdch_info_r8* dst) {
  dst->e_TFCI_TableIndex = src->e_TFCI_TableIndex;
  if (src->m & 1u) {
    dst->presence_bitmask |= 0x10u;
    dst->e_DCH_MinimumSet_E_TFCI = src->e_DCH_MinimumSet_E_TFCI;
  }
  dst->reference_E_TFCIs.count = static_cast<uint8_t>(src->reference_E_TFCIs.count);
  umts_for_each_node<E_DPDCH_Reference_E_TFCI_r7>(&src->reference_E_TFCIs, 8u,
                                                  [dst](const E_DPDCH_Reference_E_TFCI_r7* ref, uint32_t i) {
                                                    dst->reference_E_TFCIs.entries[i].reference_E_TFCI = ref->reference_E_TFCI;
                                                    dst->reference_E_TFCIs.entries[i].reference_E_TFCI_PO = ref->reference_E_TFCI_PO_r7;
                                                  });
  if (src->m & 2u) {
    dst->presence_bitmask |= 0x20u;
    dst->minReduced_E_DPDCH_GainFactor = src->minReduced_E_DPDCH_GainFactor;
  }
  dst->maxChannelisationCodes = src->maxChannelisationCodes;
  dst->pl_NonMax = src->pl_NonMax;
  const E_DPDCH_SchedulingInfoConfiguration& sched = src->schedulingInfoConfiguration;
  UMTS_COPY_OPTIONAL(&sched, &dst->schedulingInfoConfiguration, 1u, periodicityOfSchedInfo_NoGrant);
  UMTS_COPY_OPTIONAL(&sched, &dst->schedulingInfoConfiguration, 2u, periodicityOfSchedInfo_Grant);
  dst->schedulingInfoConfiguration.powerOffsetForSchedInfo = sched.powerOffsetForSchedInfo;
  if (src->m & 4u) {
    dst->presence_bitmask |= 0x40u;
    dst->threeIndexStepThreshold = src->threeIndexStepThreshold;
  }
  if (src->m & 8u) {
    dst->presence_bitmask |= 0x80u;
    dst->twoIndexStepThreshold = src->twoIndexStepThreshold;
  }
}

void convert_measurement_feedback_info_r7(const Measurement_Feedback_Info_r7* src, umts_measurement_feedback_info* dst) {
  dst->choice_tag = src->modeSpecificInfo.t;
  if (src->modeSpecificInfo.t == 1 && src->modeSpecificInfo.u.fdd != nullptr) {
    const Measurement_Feedback_Info_r7_modeSpecificInfo_fdd* fdd = src->modeSpecificInfo.u.fdd;
    dst->u.fdd.measurementPowerOffset = fdd->measurementPowerOffset;
    dst->u.fdd.feedback_cycle = fdd->feedback_cycle;
    dst->u.fdd.cqi_RepetitionFactor = fdd->cqi_RepetitionFactor;
    dst->u.fdd.deltaCQI = fdd->deltaCQI;
  }
}

/* s_offset and f_dpch_ChannelisationCodeNumber are always carried: bits 0 and 1 always set;
   e_RGCH_Information's option bit 0 is kept as bit 2. The members of e_RGCH_Information,
   e_hich_Info and ul_DPCH_CodeInfoForCommonEDCH are never optional in the message: they are
   copied without a bit of their own, the DPCCH scrambling code as well as its type. */
void convert_common_edch_resource_info_list(const rtxDList* src, umts_common_e_dch_resource_info_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<Common_E_DCH_ResourceInfoList>(src, 32u, [dst](const Common_E_DCH_ResourceInfoList* res, uint32_t i) {
    umts_common_e_dch_resource_info* out = &dst->entries[i];
    out->presence_bitmask = 3u;
    out->s_offset = res->s_offset;
    out->f_dpch_ChannelisationCodeNumber = res->f_dpch_ChannelisationCodeNumber;
    if (res->m & 1u) {
      out->presence_bitmask |= 4u;
      out->e_RGCH_Information.signatureSequence = res->e_RGCH_Information.signatureSequence;
      out->e_RGCH_Information.rg_CombinationIndex = res->e_RGCH_Information.rg_CombinationIndex;
    }
    out->e_hich_Info.channelisationCode = res->e_hich_Info.channelisationCode;
    out->e_hich_Info.signatureSequence = res->e_hich_Info.signatureSequence;
    out->ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCodeType = res->ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCodeType;
    out->ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCode = res->ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCode;
  });
}

/* ==== 1.28 Mcps TDD: HS-DSCH paging ====================================================== */

void convert_hs_dsch_paging_system_information_tdd128(const HS_DSCH_PagingSystemInformation_TDD128* src,
                                                      umts_hs_dsch_paging_system_information_tdd128* dst) {
  dst->pich_ForHsdschList.count = static_cast<uint8_t>(src->pich_ForHsdschList.count);
  umts_for_each_node<PICH_ForHSDPASupportedPaging_TDD128>(
      &src->pich_ForHsdschList, 16u, [dst](const PICH_ForHSDPASupportedPaging_TDD128* pich, uint32_t i) {
        umts_pich_for_hsdpa_supported_paging_tdd128* out = &dst->pich_ForHsdschList.entries[i];
        out->choice_tag = pich->t;
        if (pich->t == 1 && pich->u.implicit != nullptr) {
          UMTS_COPY_OPTIONAL(pich->u.implicit, &out->u.implicit, 1u, occurrenceSequenceNumberOfPICH);
        } else if (pich->t == 2 && pich->u.explicit_ != nullptr) {
          convert_pich_info_lcr_r4(pich->u.explicit_, &out->u.explicit_);
        }
      });
  dst->dtch_DCCH_reception_window_size = src->dtch_DCCH_reception_window_size;
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    const PCCH_InformationList& pcch = src->pcch_InformationList;
    umts_pcch_information_list* out = &dst->pcch_InformationList;
    out->paging_associatedHspdschInfo.count = static_cast<uint8_t>(pcch.paging_associatedHspdschInfo.count);
    umts_for_each_node<PCCH_InformationList_paging_associatedHspdschInfo_element>(
        &pcch.paging_associatedHspdschInfo, 16u,
        [out](const PCCH_InformationList_paging_associatedHspdschInfo_element* e, uint32_t i) {
          umts_paging_associated_hspdsch_info* info = &out->paging_associatedHspdschInfo.entries[i];
          convert_hs_pdsch_midamble_configuration_tdd128(&e->hs_pdsch_MidambleConfiguration, &info->hs_pdsch_MidambleConfiguration);
          umts_copy_bit_string(e->timeslotResourceRelatedInfo, &info->timeslotResourceRelatedInfo);
          info->codeResourceInformation.start_code = e->codeResourceInformation.start_code;
          info->codeResourceInformation.stop_code = e->codeResourceInformation.stop_code;
        });
    out->paging_sub_Channel_size = pcch.paging_sub_Channel_size;
    out->transportBlockSizeList.count = pcch.transportBlockSizeList.n;
    copy_inline(out->transportBlockSizeList.entries, pcch.transportBlockSizeList.elem, pcch.transportBlockSizeList.n, 2u);
  }
}

void convert_hs_pdsch_midamble_configuration_tdd128(const HS_PDSCH_Midamble_Configuration_TDD128* src,
                                                    umts_hs_pdsch_midamble_configuration_tdd128* dst) {
  dst->midambleAllocationMode.choice_tag = src->midambleAllocationMode.t;
  if (src->midambleAllocationMode.t == 3) dst->midambleAllocationMode.u.ueSpecificMidamble = src->midambleAllocationMode.u.ueSpecificMidamble;
  dst->midambleConfiguration = src->midambleConfiguration;
}

/* The midamble shift of ueSpecificMidamble (3) is read through the decoder's pointer. */
void convert_midamble_shift_and_burst_type_lcr_r4(const MidambleShiftAndBurstType_LCR_r4* src,
                                                  umts_midamble_shift_and_burst_type_lcr_r4* dst) {
  dst->choice_tag = src->midambleAllocationMode.t;
  if (src->midambleAllocationMode.t == 3 && src->midambleAllocationMode.u.ueSpecificMidamble != nullptr)
    dst->midambleShift = src->midambleAllocationMode.u.ueSpecificMidamble->midambleShift;
  dst->midambleConfiguration = src->midambleConfiguration;
}

void convert_pich_info_lcr_r4(const PICH_Info_LCR_r4* src, umts_pich_info_lcr_r4* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, timeslot);
  dst->pichChannelisationCodeList_LCR_r4.count = src->pichChannelisationCodeList_LCR_r4.n;
  copy_inline(dst->pichChannelisationCodeList_LCR_r4.entries, src->pichChannelisationCodeList_LCR_r4.elem,
              src->pichChannelisationCodeList_LCR_r4.n, 2u);
  convert_midamble_shift_and_burst_type_lcr_r4(&src->midambleShiftAndBurstType, &dst->midambleShiftAndBurstType);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_rep_per_length_offset_pich, repetitionPeriodLengthOffset);
  dst->pagingIndicatorLength = src->pagingIndicatorLength;
  dst->n_GAP = src->n_GAP;
  dst->n_PCH = src->n_PCH;
}

/* ==== 1.28 Mcps TDD: common E-DCH resources ============================================== */

namespace {

/* A midamble allocation mode whose ueSpecificMidamble shift is inline, under `ue_tag`. */
template <class Mode, class Dst>
void convert_inline_midamble_mode(const Mode& mode, uint32_t ue_tag, Dst* dst) {
  dst->choice_tag = mode.t;
  if (mode.t == ue_tag) dst->u.ueSpecificMidamble = mode.u.ueSpecificMidamble;
}

template <class Entry>
void convert_reference_beta_list(const rtxDList* src, umts_reference_beta_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<Entry>(src, 8u, [dst](const Entry* e, uint32_t i) {
    dst->entries[i].reference_Code_Rate = e->reference_Code_Rate;
    dst->entries[i].reference_Beta = e->reference_Beta;
  });
}

}  // namespace

/* Nine optional members, bits 0 to 8 as the message's. */
void convert_e_rucch_info_tdd128(const E_RUCCH_Info_TDD128* src, umts_e_rucch_info_tdd128* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 0x001u, t_RUCCH);
  UMTS_COPY_OPTIONAL(src, dst, 0x002u, n_RUCCH);
  UMTS_COPY_OPTIONAL(src, dst, 0x004u, t_WAIT);
  UMTS_COPY_OPTIONAL(src, dst, 0x008u, t_SI);
  UMTS_COPY_OPTIONAL(src, dst, 0x010u, extendedEstimationWindow);
  UMTS_CONVERT_OPTIONAL(src, dst, 0x020u, convert_prach_partitioning_lcr_r4, e_RUCCH_AccessServiceClass);
  UMTS_CONVERT_OPTIONAL(src, dst, 0x040u, convert_persistence_scaling_factor_list, e_RUCCH_PersistenceScalingFactor);
  UMTS_CONVERT_OPTIONAL(src, dst, 0x080u, convert_sync_ul_info_for_e_rucch, sync_UL_InfoForE_RUCCH);
  UMTS_CONVERT_OPTIONAL(src, dst, 0x100u, convert_prach_information_lcr_list, prach_information);
}

void convert_sync_ul_info_for_e_rucch(const SYNC_UL_InfoForE_RUCCH* src, umts_sync_ul_info_for_e_rucch* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, prxUpPCHdes);
  UMTS_COPY_OPTIONAL(src, dst, 2u, powerRampStep);
  UMTS_COPY_OPTIONAL(src, dst, 4u, max_SYNC_UL_Transmissions);
  convert_sync_ul_codes_bitmap(&src->e_RUCCH_Sync_UL_Codes_Bitmap, &dst->e_RUCCH_Sync_UL_Codes_Bitmap);
  dst->mmax = src->mmax;
}

void convert_prach_information_lcr_list(const PRACH_Information_LCR_List* src, umts_prach_information_lcr_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<PRACH_Information_LCR>(src, 8u, [dst](const PRACH_Information_LCR* e, uint32_t i) {
    umts_prach_information_lcr* out = &dst->entries[i];
    out->timeslot = e->timeslot;
    out->prach_ChanCodes_list_LCR.count = e->prach_ChanCodes_list_LCR.n;
    copy_inline(out->prach_ChanCodes_list_LCR.codes, e->prach_ChanCodes_list_LCR.elem, e->prach_ChanCodes_list_LCR.n, 2u);
    convert_midamble_shift_and_burst_type_lcr_r4(&e->midambleShiftAndBurstType, &out->midambleShiftAndBurstType);
    UMTS_CONVERT_OPTIONAL(e, out, 1u, convert_fpach_info_r4, fpach_Info);
  });
}

void convert_e_puch_info_tdd128(const E_PUCH_Info_TDD128* src, umts_e_puch_info_tdd128* dst) {
  convert_reference_beta_list<Reference_Beta_QPSK>(&src->e_TFCS_Info.reference_Beta_QPSK_List, &dst->e_TFCS_Info.reference_Beta_QPSK_List);
  convert_reference_beta_list<Reference_Beta_16QAM>(&src->e_TFCS_Info.reference_Beta_16QAM_List,
                                                    &dst->e_TFCS_Info.reference_Beta_16QAM_List);
  UMTS_COPY_OPTIONAL(src, dst, 1u, snpl_ReportType);
  dst->prxBASEdes = src->prxBASEdes;
  UMTS_COPY_OPTIONAL(src, dst, 2u, beaconPLEst);
  dst->tpc_StepSize = src->tpc_StepSize;
  UMTS_COPY_OPTIONAL(src, dst, 4u, pebase_PowerControlGAP);
  if (src->m & 8u) {
    dst->presence_bitmask |= 8u;
    dst->ul_SynchronisationParameters.stepSize = src->ul_SynchronisationParameters.stepSize;
    dst->ul_SynchronisationParameters.frequency = src->ul_SynchronisationParameters.frequency;
  }
  dst->e_PUCH_TS_ConfigurationList.count = static_cast<uint8_t>(src->e_PUCH_TS_ConfigurationList.count);
  umts_for_each_node<E_PUCH_TS_Slots_LCR>(&src->e_PUCH_TS_ConfigurationList, 5u, [dst](const E_PUCH_TS_Slots_LCR* e, uint32_t i) {
    umts_e_puch_ts_slots_lcr* out = &dst->e_PUCH_TS_ConfigurationList.entries[i];
    out->timeslotNumber = e->timeslotNumber;
    convert_inline_midamble_mode(e->midambleAllocationMode, 2u, &out->midambleAllocationMode);
    out->midambleConfiguration = e->midambleConfiguration;
  });
  dst->minimum_Allowed_Code_Rate = src->minimum_Allowed_Code_Rate;
  dst->maximum_Allowed_Code_Rate = src->maximum_Allowed_Code_Rate;
  dst->maximumNumOfRetransSchedInfo = src->maximumNumOfRetransSchedInfo;
  dst->retransTimerForSchedInfo = src->retransTimerForSchedInfo;
  UMTS_COPY_OPTIONAL(src, dst, 16u, dummy);
}

void convert_e_hich_information_tdd128(const E_HICH_Information_TDD128* src, umts_e_hich_information_tdd128* dst) {
  dst->n_E_HICH = src->n_E_HICH;
  dst->e_HICH_InfoList.count = static_cast<uint8_t>(src->e_HICH_InfoList.count);
  umts_for_each_node<E_HICH_Information_LCR>(&src->e_HICH_InfoList, 4u, [dst](const E_HICH_Information_LCR* e, uint32_t i) {
    umts_e_hich_information_lcr* out = &dst->e_HICH_InfoList.entries[i];
    out->ei = e->ei;
    out->timeslotNumber = e->timeslotNumber;
    out->channelisation_Code = e->channelisation_Code;
    convert_inline_midamble_mode(e->midambleAllocationMode, 2u, &out->midambleAllocationMode);
    out->midambleConfiguration = e->midambleConfiguration;
  });
}

void convert_e_agch_information_tdd128(const E_AGCH_Information_TDD128* src, umts_e_agch_information_tdd128* dst) {
  dst->rdi_Indicator = src->rdi_Indicator;
  dst->tpc_StepSize = src->tpc_StepSize;
  dst->e_AGCH_Set_Config.count = static_cast<uint8_t>(src->e_AGCH_Set_Config.count);
  umts_for_each_node<E_AGCH_Individual_LCR>(&src->e_AGCH_Set_Config, 4u, [dst](const E_AGCH_Individual_LCR* e, uint32_t i) {
    umts_e_agch_individual_lcr* out = &dst->e_AGCH_Set_Config.entries[i];
    out->timeslotNumber = e->timeslotNumber;
    out->firstChannelisationCode = e->firstChannelisationCode;
    out->secondChannelisationCode = e->secondChannelisationCode;
    convert_inline_midamble_mode(e->midambleAllocationMode, 3u, &out->midambleAllocationMode);
    out->midambleConfiguration = e->midambleConfiguration;
  });
  dst->e_AGCH_BLER_Target = src->e_AGCH_BLER_Target;
}

/* Up to 256 E-RNTI groups under an 8-bit count (a full list reads 0). Each starting E-RNTI
   (16 bits, told as 16 octets) is held to its four octets; the group numbers it ran over are
   stored after it. */
void convert_ccch_transmission_info_tdd128(const CommonEDCHSystemInfo_modeSpecificInfo_tdd_tdd128_ccch_transmission_Info* src,
                                           umts_ccch_transmission_info_tdd128* dst) {
  dst->common_e_rnti_Info.count = static_cast<uint8_t>(src->common_e_rnti_Info.count);
  umts_for_each_node<Common_E_RNTI_Info_element>(&src->common_e_rnti_Info, 256u, [dst](const Common_E_RNTI_Info_element* e, uint32_t i) {
    umts_common_e_rnti_info* out = &dst->common_e_rnti_Info.entries[i];
    umts_copy_bit_string(e->starting_E_RNTI, &out->starting_E_RNTI);
    out->number_of_group = e->number_of_group;
    out->number_of_ENRTI_per_group = e->number_of_ENRTI_per_group;
  });
  dst->harq_MaximumNumberOfRetransmissions = src->harq_MaximumNumberOfRetransmissions;
  dst->harq_retransmission_timer = src->harq_retransmission_timer;
  dst->harq_power_offset = src->harq_power_offset;
}
