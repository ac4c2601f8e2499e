/*
 * SIB5 records of HS-DSCH reception in CELL_FACH and paging (v770 fdd, v860) and of common
 * E-DCH (v890 commonEDCHSystemInfo, v8d0 commonEDCHSystemInfoFDD). Included by
 * umts_sib_sib5.h, whose PICH, PRACH and bit string records they reuse.
 *
 * The TDD channel lists of v770 tdd768 and tdd128 are records of umts_sib_sib5_tdd.h; the
 * 1.28 Mcps common E-DCH resources (E-RUCCH, E-PUCH, E-HICH, E-AGCH) are here.
 */
#ifndef UMTS_SIB_SIB5_HSPA_H
#define UMTS_SIB_SIB5_HSPA_H

/* ==== HS-DSCH common system information ================================================== */

#define umts_common_rb_mapping_info_FIELDS(F)                   \
  F(SCALAR, uint8_t, logicalChannelIdentity, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, mac_ehs_QueueId, 1, UMTS_ALWAYS, _)

#define umts_common_mac_ehs_reordering_queue_FIELDS(F)          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, mac_ehs_QueueId, 1, UMTS_ALWAYS, _)        \
  F(SCALAR, uint32_t, t1_ReleaseTimer, 1, UMTS_ALWAYS, _)       \
  F(SCALAR, uint32_t, reorderingResetTimer, 1, 0, _)            \
  F(SCALAR, uint32_t, mac_ehsWindowSize, 1, UMTS_ALWAYS, _)

#define umts_common_mac_ehs_reordering_queue_list_FIELDS(F)  \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)               \
  F(ARRAY, umts_common_mac_ehs_reordering_queue, entries, 2, UMTS_ALWAYS, count)

/* The HS-SCCH codes, one octet each. */
#define umts_hs_scch_channelisation_code_info_FIELDS(F) \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)         \
  F(ARRAY, uint8_t, entries, 4, UMTS_ALWAYS, count)

#define umts_hs_scch_system_info_FIELDS(F)                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                     \
  F(SCALAR, uint8_t, dl_ScramblingCode, 1, 0, _)                                               \
  F(RECORD, umts_hs_scch_channelisation_code_info, hS_SCCHChannelisationCodeInfo, 1, UMTS_ALWAYS, _)

#define umts_harq_memory_size_list_FIELDS(F)      \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)   \
  F(ARRAY, uint32_t, entries, 8, UMTS_ALWAYS, count)

/* memoryPartitioning: 1 implicit (no value), 2 explicit. */
#define umts_harq_memory_partitioning_u_FIELDS(F) F(RECORD, umts_harq_memory_size_list, explicit_, 1, 2, _)

#define umts_harq_memory_partitioning_FIELDS(F)          \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_harq_memory_partitioning_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_harq_info_FIELDS(F)                              \
  F(SCALAR, uint8_t, numberOfProcesses, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_harq_memory_partitioning, memoryPartitioning, 1, UMTS_ALWAYS, _)

#define umts_h_rnti_list_FIELDS(F)                \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)   \
  F(ARRAY, umts_bit_string32, entries, 4, UMTS_ALWAYS, count)

#define umts_hs_dsch_common_system_information_FIELDS(F)                                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                  \
  F(RECORD, umts_common_rb_mapping_info, ccch_MappingInfo, 1, UMTS_ALWAYS, _)                               \
  F(RECORD, umts_common_rb_mapping_info, srb1_MappingInfo, 1, 0, _)                                         \
  F(RECORD, umts_common_mac_ehs_reordering_queue_list, common_MAC_ehs_ReorderingQueueList, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_hs_scch_system_info, hs_scch_SystemInfo, 1, UMTS_ALWAYS, _)                                \
  F(RECORD, umts_harq_info, harq_SystemInfo, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_h_rnti_list, common_H_RNTI_information, 1, UMTS_ALWAYS, _)                                 \
  F(RECORD, umts_bit_string32, bcchSpecific_H_RNTI, 1, UMTS_ALWAYS, _)

#define umts_pich_for_hsdpa_supported_paging_FIELDS(F)                    \
  F(RECORD, umts_pich_info, hsdpa_AssociatedPichInfo, 1, UMTS_ALWAYS, _)  \
  F(SCALAR, uint8_t, hs_pdschChannelisationCode, 1, UMTS_ALWAYS, _)

#define umts_pich_for_hsdpa_supported_paging_list_FIELDS(F) \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)              \
  F(ARRAY, umts_pich_for_hsdpa_supported_paging, entries, 16, UMTS_ALWAYS, count)

#define umts_transport_block_size_list_FIELDS(F)  \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)   \
  F(ARRAY, uint8_t, entries, 2, UMTS_ALWAYS, count)

#define umts_hs_dsch_paging_system_information_FIELDS(F)                                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                               \
  F(SCALAR, uint8_t, dlScramblingCode, 1, 0, _)                                                          \
  F(RECORD, umts_pich_for_hsdpa_supported_paging_list, pich_ForHSDPASupportedPagingList, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, numberOfPcchTransmissions, 1, UMTS_ALWAYS, _)                                       \
  F(RECORD, umts_transport_block_size_list, transportBlockSizeList, 1, UMTS_ALWAYS, _)

/* v770 modeSpecificInfo: 1 fdd, 2 tdd768, 3 tdd128. */
#define umts_sib5_v770_mode_specific_info_fdd_FIELDS(F)                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                        \
  F(RECORD, umts_hs_dsch_common_system_information, hs_dsch_CommonSystemInformation, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_hs_dsch_paging_system_information, hs_dsch_PagingSystemInformation, 1, 0, _)

/* tdd768: bit 0 PUSCH, 1 PDSCH, 2 PRACH list; tdd128: bit 0 its PRACH list. */
#define umts_sib5_v770_mode_specific_info_tdd768_FIELDS(F)                                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_pusch_sysinfo_list_sfn_vhcr, pusch_SysInfoList_SFN, 1, 0, _)                          \
  F(RECORD, umts_pdsch_sysinfo_list_vhcr_r7, pdsch_SysInfoList_SFN, 1, 1, _)                           \
  F(RECORD, umts_prach_system_information_list_vhcr_r7, prach_SystemInformationList, 1, 2, _)
#define umts_sib5_v770_mode_specific_info_tdd128_FIELDS(F)                                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_prach_system_information_list_lcr_v770ext, prach_SystemInformationList, 1, 0, _)

#define umts_sib5_v770_mode_specific_info_u_FIELDS(F)                             \
  F(RECORD, umts_sib5_v770_mode_specific_info_fdd, fdd, 1, 1, _)                  \
  F(RECORD, umts_sib5_v770_mode_specific_info_tdd768, tdd768, 1, 2, _)            \
  F(RECORD, umts_sib5_v770_mode_specific_info_tdd128, tdd128, 1, 3, _)

#define umts_sib5_v770_mode_specific_info_FIELDS(F)      \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib5_v770_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* ==== v860: HS-DSCH DRX in CELL_FACH ====================================================== */

#define umts_hs_dsch_drx_cellfach_info_FIELDS(F)                \
  F(SCALAR, uint32_t, t_321, 1, UMTS_ALWAYS, _)                 \
  F(SCALAR, uint32_t, hs_dsch_DrxCycleFach, 1, UMTS_ALWAYS, _)  \
  F(SCALAR, uint32_t, hs_dsch_DrxBurstFach, 1, UMTS_ALWAYS, _)  \
  F(BOOL, uint8_t, drxInterruption_hs_dsch, 1, UMTS_ALWAYS, _)

#define umts_hs_dsch_drx_cellfach_info_tdd128_FIELDS(F)         \
  F(SCALAR, uint32_t, t_321, 1, UMTS_ALWAYS, _)                 \
  F(SCALAR, uint32_t, hs_dsch_DrxCycleFach, 1, UMTS_ALWAYS, _)  \
  F(SCALAR, uint32_t, hs_dsch_DrxBurstFach, 1, UMTS_ALWAYS, _)

/* ==== 1.28 Mcps TDD: HS-DSCH common system information ===================================== */

/* Midamble allocation of an HS-SCCH or HS-PDSCH: 3 ueSpecificMidamble (its shift). */
#define umts_hs_scch_midamble_allocation_mode_u_FIELDS(F) F(SCALAR, uint8_t, ueSpecificMidamble, 1, 3, _)

#define umts_hs_scch_midamble_allocation_mode_FIELDS(F)  \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_hs_scch_midamble_allocation_mode_u, u, 1, UMTS_ALWAYS, choice_tag)

/* Midamble allocation of an HS-SICH: 2 ueSpecificMidamble (its shift). */
#define umts_hs_sich_midamble_allocation_mode_u_FIELDS(F) F(SCALAR, uint8_t, ueSpecificMidamble, 1, 2, _)

#define umts_hs_sich_midamble_allocation_mode_FIELDS(F)  \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_hs_sich_midamble_allocation_mode_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_hs_sich_configuration_tdd128_FIELDS(F)                                               \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)                                           \
  F(SCALAR, uint32_t, channelisationCode, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_hs_sich_midamble_allocation_mode, midambleAllocationMode, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, midambleConfiguration, 1, UMTS_ALWAYS, _)

#define umts_hs_scch_tdd128_FIELDS(F)                                                             \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)                                           \
  F(SCALAR, uint32_t, firstChannelisationCode, 1, UMTS_ALWAYS, _)                                 \
  F(SCALAR, uint32_t, secondChannelisationCode, 1, UMTS_ALWAYS, _)                                \
  F(RECORD, umts_hs_scch_midamble_allocation_mode, midambleAllocationMode, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, midambleConfiguration, 1, UMTS_ALWAYS, _)                                    \
  F(RECORD, umts_hs_sich_configuration_tdd128, hs_sich_configuration, 1, UMTS_ALWAYS, _)

#define umts_hs_scch_set_configuration_tdd128_FIELDS(F) \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)          \
  F(ARRAY, umts_hs_scch_tdd128, entries, 4, UMTS_ALWAYS, count)

#define umts_hs_scch_system_info_tdd128_FIELDS(F)                                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                         \
  F(RECORD, umts_hs_scch_set_configuration_tdd128, hs_SCCH_SetConfiguration, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, int8_t, power_level_HSSICH, 1, UMTS_ALWAYS, _)                                         \
  F(SCALAR, int8_t, nack_ack_power_offset, 1, UMTS_ALWAYS, _)                                      \
  F(SCALAR, uint32_t, tpc_step_size, 1, UMTS_ALWAYS, _)                                            \
  F(SCALAR, int8_t, bler_target, 1, UMTS_ALWAYS, _)                                                \
  F(SCALAR, uint8_t, power_control_gap, 1, 0, _)                                                   \
  F(BOOL, uint8_t, pathloss_compensation_switch, 1, 1, _)

#define umts_hs_pdsch_midamble_configuration_tdd128_FIELDS(F)                                      \
  F(RECORD, umts_hs_scch_midamble_allocation_mode, midambleAllocationMode, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, midambleConfiguration, 1, UMTS_ALWAYS, _)

#define umts_hs_dsch_common_system_information_tdd128_FIELDS(F)                                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                  \
  F(RECORD, umts_common_rb_mapping_info, ccch_MappingInfo, 1, UMTS_ALWAYS, _)                               \
  F(RECORD, umts_common_rb_mapping_info, srb1_MappingInfo, 1, 0, _)                                         \
  F(RECORD, umts_common_mac_ehs_reordering_queue_list, common_MAC_ehs_ReorderingQueueList, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_hs_scch_system_info_tdd128, hs_scch_SystemInfo_tdd128, 1, UMTS_ALWAYS, _)                  \
  F(RECORD, umts_harq_info, harq_SystemInfo, 1, UMTS_ALWAYS, _)                                             \
  F(RECORD, umts_hs_pdsch_midamble_configuration_tdd128, hs_pdsch_MidambleConfiguration, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_h_rnti_list, common_H_RNTI_information, 1, UMTS_ALWAYS, _)                                 \
  F(RECORD, umts_bit_string32, bcchSpecific_H_RNTI, 1, UMTS_ALWAYS, _)

#define umts_pich_for_hsdpa_implicit_tdd128_FIELDS(F)                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                \
  F(SCALAR, uint8_t, occurrenceSequenceNumberOfPICH, 1, 0, _)

/* PICH-ForHSDPASupportedPaging-TDD128: 1 implicit, 2 explicit. */
#define umts_pich_for_hsdpa_supported_paging_tdd128_u_FIELDS(F)              \
  F(RECORD, umts_pich_for_hsdpa_implicit_tdd128, implicit, 1, 1, _)          \
  F(RECORD, umts_pich_info_lcr_r4, explicit_, 1, 2, _)

#define umts_pich_for_hsdpa_supported_paging_tdd128_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)           \
  F(UNION, umts_pich_for_hsdpa_supported_paging_tdd128_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_pich_for_hsdsch_list_tdd128_FIELDS(F)  \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)       \
  F(ARRAY, umts_pich_for_hsdpa_supported_paging_tdd128, entries, 16, UMTS_ALWAYS, count)

#define umts_code_resource_information_tdd128_FIELDS(F)  \
  F(SCALAR, uint32_t, start_code, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, stop_code, 1, UMTS_ALWAYS, _)

#define umts_paging_associated_hspdsch_info_FIELDS(F)                                                     \
  F(RECORD, umts_hs_pdsch_midamble_configuration_tdd128, hs_pdsch_MidambleConfiguration, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_bit_string32, timeslotResourceRelatedInfo, 1, UMTS_ALWAYS, _)                            \
  F(RECORD, umts_code_resource_information_tdd128, codeResourceInformation, 1, UMTS_ALWAYS, _)

#define umts_paging_associated_hspdsch_info_list_FIELDS(F) \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)             \
  F(ARRAY, umts_paging_associated_hspdsch_info, entries, 16, UMTS_ALWAYS, count)

#define umts_pcch_information_list_FIELDS(F)                                                            \
  F(RECORD, umts_paging_associated_hspdsch_info_list, paging_associatedHspdschInfo, 1, UMTS_ALWAYS, _)  \
  F(SCALAR, uint8_t, paging_sub_Channel_size, 1, UMTS_ALWAYS, _)                                        \
  F(RECORD, umts_transport_block_size_list, transportBlockSizeList, 1, UMTS_ALWAYS, _)

/* The 1.28 Mcps paging information: bit 0 pcch_InformationList. */
#define umts_hs_dsch_paging_system_information_tdd128_FIELDS(F)                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_pich_for_hsdsch_list_tdd128, pich_ForHsdschList, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, uint8_t, dtch_DCCH_reception_window_size, 1, UMTS_ALWAYS, _)                \
  F(RECORD, umts_pcch_information_list, pcch_InformationList, 1, 0, _)

/* v860 tdd128 hs_dsch_CommonSysInfo: bit 0 the paging information. */
#define umts_hs_dsch_common_sys_info_tdd128_FIELDS(F)                                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                    \
  F(RECORD, umts_hs_dsch_common_system_information_tdd128, hs_dsch_CommonSystemInformation, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_hs_dsch_paging_system_information_tdd128, hs_dsch_PagingSystemInformation, 1, 0, _)

#define umts_sib5_v860_mode_specific_info_fdd_FIELDS(F)                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                    \
  F(RECORD, umts_hs_dsch_drx_cellfach_info, hs_dsch_DrxCellfach_info, 1, 0, _)

#define umts_sib5_v860_mode_specific_info_tdd128_FIELDS(F)                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_hs_dsch_common_sys_info_tdd128, hs_dsch_CommonSysInfo, 1, 0, _)        \
  F(RECORD, umts_hs_dsch_drx_cellfach_info_tdd128, hs_dsch_DrxCellfach_info, 1, 1, _)

/* v860 modeSpecificInfo: 1 fdd, 2 tdd128. */
#define umts_sib5_v860_mode_specific_info_u_FIELDS(F)                   \
  F(RECORD, umts_sib5_v860_mode_specific_info_fdd, fdd, 1, 1, _)        \
  F(RECORD, umts_sib5_v860_mode_specific_info_tdd128, tdd128, 1, 2, _)

#define umts_sib5_v860_mode_specific_info_FIELDS(F)      \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib5_v860_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* ==== Common E-DCH ======================================================================= */

#define umts_common_e_dch_mac_d_flow_FIELDS(F)                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                         \
  F(SCALAR, uint8_t, mac_d_FlowIdentity, 1, UMTS_ALWAYS, _)                        \
  F(SCALAR, uint8_t, mac_d_FlowPowerOffset, 1, UMTS_ALWAYS, _)                     \
  F(SCALAR, uint8_t, mac_d_FlowMaxRetrans, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_bit_string32, mac_d_FlowMultiplexingList, 1, 0, _)                \
  F(SCALAR, uint32_t, e_dch_mac_d_flow_retransmission_timer, 1, 1, _)

#define umts_common_e_dch_mac_d_flow_list_FIELDS(F) \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)      \
  F(ARRAY, umts_common_e_dch_mac_d_flow, entries, 8, UMTS_ALWAYS, count)

/* Bits 0 to 2 stand for the three members that the message always carries; bits 3 to 10 for
   the optional ones, in order. */
#define umts_prach_preamble_for_enhanced_uplink_FIELDS(F)                                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_bit_string32, availableSignatures, 1, 0, _)                                    \
  F(BOOL, uint8_t, e_ai_Indication, 1, UMTS_ALWAYS, _)                                          \
  F(SCALAR, uint8_t, preambleScramblingCodeWordNumber, 1, 1, _)                                 \
  F(RECORD, umts_bit_string32, availableSubChannelNumbers, 1, 2, _)                             \
  F(RECORD, umts_prach_partitioning_r7, prach_Partitioning, 1, 3, _)                            \
  F(RECORD, umts_persistence_scaling_factor_list, persistenceScalingFactorList, 1, 4, _)        \
  F(RECORD, umts_ac_to_asc_mapping_table, ac_To_ASC_MappingTable, 1, 5, _)                      \
  F(SCALAR, int8_t, primaryCPICH_TX_Power, 1, 6, _)                                             \
  F(SCALAR, int8_t, constantValue, 1, 7, _)                                                     \
  F(RECORD, umts_prach_power_offset, prach_PowerOffset, 1, 8, _)                                \
  F(RECORD, umts_rach_transmission_parameters, rach_TransmissionParameters, 1, 9, _)            \
  F(RECORD, umts_aich_info, aich_Info, 1, 10, _)                                                \
  F(SCALAR, int8_t, powerOffsetPp_e, 1, UMTS_ALWAYS, _)

#define umts_e_agch_information_FIELDS(F) F(SCALAR, uint8_t, e_AGCH_ChannelisationCode, 1, UMTS_ALWAYS, _)

/* PowerControlAlgorithm: 1 algorithm1 (TPC step size), 2 algorithm2 (no value). */
#define umts_power_control_algorithm_u_FIELDS(F) F(SCALAR, uint8_t, algorithm1, 1, 1, _)

#define umts_power_control_algorithm_FIELDS(F)           \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_power_control_algorithm_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_ul_dpch_power_control_info_for_common_edch_FIELDS(F)                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                       \
  F(RECORD, umts_power_control_algorithm, powerControlAlgorithm, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, deltaACK, 1, 0, _)                                          \
  F(SCALAR, uint8_t, deltaNACK, 1, 1, _)                                         \
  F(SCALAR, uint8_t, ack_NACK_repetition_factor, 1, 2, _)

#define umts_e_tfc_boost_info_FIELDS(F)                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, uint8_t, e_TFCI_Boost, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, delta_T2TP, 1, 0, _)

#define umts_e_dpcch_info_FIELDS(F)                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint8_t, e_DPCCH_DPCCH_PowerOffset, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint32_t, happyBit_DelayCondition, 1, UMTS_ALWAYS, _)      \
  F(RECORD, umts_e_tfc_boost_info, e_TFC_Boost_Info, 1, 0, _)          \
  F(BOOL, uint8_t, e_DPDCH_PowerInterpolation, 1, 1, _)

#define umts_e_dpdch_reference_e_tfci_FIELDS(F)              \
  F(SCALAR, uint8_t, reference_E_TFCI, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, uint8_t, reference_E_TFCI_PO, 1, UMTS_ALWAYS, _)

#define umts_e_dpdch_reference_e_tfci_list_FIELDS(F) \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)       \
  F(ARRAY, umts_e_dpdch_reference_e_tfci, entries, 8, UMTS_ALWAYS, count)

#define umts_e_dpdch_scheduling_info_configuration_FIELDS(F)          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)            \
  F(SCALAR, uint32_t, periodicityOfSchedInfo_NoGrant, 1, 0, _)        \
  F(SCALAR, uint32_t, periodicityOfSchedInfo_Grant, 1, 1, _)          \
  F(SCALAR, uint8_t, powerOffsetForSchedInfo, 1, UMTS_ALWAYS, _)

/* E-DPDCH-Info-r8: its presence bits sit four places above the message's (0x10 to 0x80). */
#define umts_e_dpdch_info_r8_FIELDS(F)                                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                    \
  F(SCALAR, uint8_t, e_TFCI_TableIndex, 1, UMTS_ALWAYS, _)                                    \
  F(SCALAR, uint8_t, e_DCH_MinimumSet_E_TFCI, 1, 4, _)                                        \
  F(RECORD, umts_e_dpdch_reference_e_tfci_list, reference_E_TFCIs, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint32_t, minReduced_E_DPDCH_GainFactor, 1, 5, _)                                 \
  F(SCALAR, uint32_t, maxChannelisationCodes, 1, UMTS_ALWAYS, _)                              \
  F(SCALAR, uint8_t, pl_NonMax, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_e_dpdch_scheduling_info_configuration, schedulingInfoConfiguration, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, threeIndexStepThreshold, 1, 6, _)                                        \
  F(SCALAR, uint8_t, twoIndexStepThreshold, 1, 7, _)

#define umts_measurement_feedback_info_fdd_FIELDS(F)             \
  F(SCALAR, int8_t, measurementPowerOffset, 1, UMTS_ALWAYS, _)   \
  F(SCALAR, uint32_t, feedback_cycle, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, cqi_RepetitionFactor, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, uint8_t, deltaCQI, 1, UMTS_ALWAYS, _)

/* Measurement-Feedback-Info-r7: 1 fdd, 2 tdd (no value). */
#define umts_measurement_feedback_info_u_FIELDS(F) F(RECORD, umts_measurement_feedback_info_fdd, fdd, 1, 1, _)

#define umts_measurement_feedback_info_FIELDS(F)         \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_measurement_feedback_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* The three member records of an E-DCH resource have no presence_bitmask: the message
   carries every one of their members (none is optional), and each is copied as it came,
   ul_DPCCHscramblingCode with the rest. */
#define umts_e_rgch_information_FIELDS(F)                        \
  F(SCALAR, uint8_t, signatureSequence, 1, UMTS_ALWAYS, _)       \
  F(SCALAR, uint8_t, rg_CombinationIndex, 1, UMTS_ALWAYS, _)

#define umts_e_hich_info_FIELDS(F)                               \
  F(SCALAR, uint8_t, channelisationCode, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, signatureSequence, 1, UMTS_ALWAYS, _)

#define umts_ul_dpch_code_info_for_common_edch_FIELDS(F)              \
  F(SCALAR, uint32_t, ul_DPCCHscramblingCodeType, 1, UMTS_ALWAYS, _)  \
  F(SCALAR, uint32_t, ul_DPCCHscramblingCode, 1, UMTS_ALWAYS, _)

/* Bits 0 s_offset and 1 f_dpch_ChannelisationCodeNumber are always set (the message always
   carries both); bit 2 e_RGCH_Information as sent. */
#define umts_common_e_dch_resource_info_FIELDS(F)                                                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                              \
  F(SCALAR, uint8_t, s_offset, 1, 0, _)                                                                 \
  F(SCALAR, uint8_t, f_dpch_ChannelisationCodeNumber, 1, 1, _)                                          \
  F(RECORD, umts_e_rgch_information, e_RGCH_Information, 1, 2, _)                                       \
  F(RECORD, umts_e_hich_info, e_hich_Info, 1, UMTS_ALWAYS, _)                                           \
  F(RECORD, umts_ul_dpch_code_info_for_common_edch, ul_DPCH_CodeInfoForCommonEDCH, 1, UMTS_ALWAYS, _)

#define umts_common_e_dch_resource_info_list_FIELDS(F) \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)         \
  F(ARRAY, umts_common_e_dch_resource_info, entries, 32, UMTS_ALWAYS, count)

/* The FDD members of common E-DCH, shared by the v890 fdd alternative and the v8d0 record;
   `feedback` is the bit of measurement_Feedback_Info in the record that holds them. */
#define UMTS_COMMON_EDCH_FDD_MEMBERS(F, feedback)                                                          \
  F(RECORD, umts_prach_preamble_for_enhanced_uplink, prach_PreambleForEnhancedUplink, 1, UMTS_ALWAYS, _)   \
  F(SCALAR, uint8_t, initialServingGrantValue, 1, UMTS_ALWAYS, _)                                          \
  F(SCALAR, uint32_t, e_dch_TTI, 1, UMTS_ALWAYS, _)                                                        \
  F(RECORD, umts_e_agch_information, e_agch_Information, 1, UMTS_ALWAYS, _)                                \
  F(SCALAR, uint32_t, harq_Info, 1, UMTS_ALWAYS, _)                                                        \
  F(RECORD, umts_ul_dpch_power_control_info_for_common_edch, ul_DPCHpowerControlInfoForCommonEDCH, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_e_dpcch_info, e_dpcch_Info, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_e_dpdch_info_r8, e_dpdch_Info, 1, UMTS_ALWAYS, _)                                         \
  F(SCALAR, uint8_t, dl_FDPCH_TPCcommandErrorRate, 1, UMTS_ALWAYS, _)                                      \
  F(SCALAR, uint8_t, additional_E_DCH_TransmitBackoff, 1, UMTS_ALWAYS, _)                                  \
  F(SCALAR, uint32_t, max_CCCH_ResourceAllocation, 1, UMTS_ALWAYS, _)                                      \
  F(SCALAR, uint8_t, max_PeriodForCollisionResolution, 1, UMTS_ALWAYS, _)                                  \
  F(SCALAR, uint32_t, e_dch_TransmitContinuationOffset, 1, UMTS_ALWAYS, _)                                 \
  F(BOOL, uint8_t, ack_nack_support_on_HS_DPCCH, 1, UMTS_ALWAYS, _)                                        \
  F(RECORD, umts_measurement_feedback_info, measurement_Feedback_Info, 1, feedback, _)                     \
  F(RECORD, umts_common_e_dch_resource_info_list, common_E_DCH_ResourceInfoList, 1, UMTS_ALWAYS, _)

/* v890 commonEDCHSystemInfo, modeSpecificInfo fdd: bit 0 measurement_Feedback_Info. */
#define umts_common_edch_mode_fdd_FIELDS(F)                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)    \
  UMTS_COMMON_EDCH_FDD_MEMBERS(F, 0)

/* ---- 1.28 Mcps common E-DCH resources ---- */

/* SYNC-UL-InfoForE-RUCCH: bits 0 to 2 the three optional members, then the bitmap and mmax. */
#define umts_sync_ul_info_for_e_rucch_FIELDS(F)                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                            \
  F(SCALAR, uint8_t, prxUpPCHdes, 1, 0, _)                                            \
  F(SCALAR, uint8_t, powerRampStep, 1, 1, _)                                          \
  F(SCALAR, uint32_t, max_SYNC_UL_Transmissions, 1, 2, _)                             \
  F(RECORD, umts_bit_string32, e_RUCCH_Sync_UL_Codes_Bitmap, 1, UMTS_ALWAYS, _)       \
  F(SCALAR, uint8_t, mmax, 1, UMTS_ALWAYS, _)

#define umts_prach_chan_codes_list_lcr_FIELDS(F)  \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)   \
  F(ARRAY, uint32_t, codes, 2, UMTS_ALWAYS, count)

#define umts_prach_information_lcr_FIELDS(F)                                                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                              \
  F(SCALAR, uint8_t, timeslot, 1, UMTS_ALWAYS, _)                                                       \
  F(RECORD, umts_prach_chan_codes_list_lcr, prach_ChanCodes_list_LCR, 1, UMTS_ALWAYS, _)                \
  F(RECORD, umts_midamble_shift_and_burst_type_lcr_r4, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_fpach_info_r4, fpach_Info, 1, 0, _)

#define umts_prach_information_lcr_list_FIELDS(F) \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)    \
  F(ARRAY, umts_prach_information_lcr, entries, 8, UMTS_ALWAYS, count)

/* E-RUCCH-Info-TDD128: nine optional members, bits 0 to 8 in order. */
#define umts_e_rucch_info_tdd128_FIELDS(F)                                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                          \
  F(SCALAR, uint32_t, t_RUCCH, 1, 0, _)                                                             \
  F(SCALAR, uint8_t, n_RUCCH, 1, 1, _)                                                              \
  F(SCALAR, uint32_t, t_WAIT, 1, 2, _)                                                              \
  F(SCALAR, uint32_t, t_SI, 1, 3, _)                                                                \
  F(SCALAR, uint8_t, extendedEstimationWindow, 1, 4, _)                                             \
  F(RECORD, umts_prach_partitioning_lcr_r4, e_RUCCH_AccessServiceClass, 1, 5, _)                    \
  F(RECORD, umts_persistence_scaling_factor_list, e_RUCCH_PersistenceScalingFactor, 1, 6, _)        \
  F(RECORD, umts_sync_ul_info_for_e_rucch, sync_UL_InfoForE_RUCCH, 1, 7, _)                         \
  F(RECORD, umts_prach_information_lcr_list, prach_information, 1, 8, _)

/* A reference code rate and its beta, packed. */
#define umts_reference_beta_FIELDS(F)                             \
  F(SCALAR, uint8_t, reference_Code_Rate, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, int8_t, reference_Beta, 1, UMTS_ALWAYS, _)

#define umts_reference_beta_list_FIELDS(F)        \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)    \
  F(ARRAY, umts_reference_beta, entries, 8, UMTS_ALWAYS, count)

#define umts_e_tfcs_info_FIELDS(F)                                                 \
  F(RECORD, umts_reference_beta_list, reference_Beta_QPSK_List, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_reference_beta_list, reference_Beta_16QAM_List, 1, UMTS_ALWAYS, _)

#define umts_ul_synchronisation_parameters_FIELDS(F)   \
  F(SCALAR, uint8_t, stepSize, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, frequency, 1, UMTS_ALWAYS, _)

/* An E-PUCH timeslot: its midamble shift (ueSpecificMidamble, tag 2) inline. */
#define umts_e_puch_ts_slots_lcr_FIELDS(F)                                                          \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_hs_sich_midamble_allocation_mode, midambleAllocationMode, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, midambleConfiguration, 1, UMTS_ALWAYS, _)

#define umts_e_puch_ts_configuration_list_FIELDS(F) \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)      \
  F(ARRAY, umts_e_puch_ts_slots_lcr, entries, 5, UMTS_ALWAYS, count)

/* E-PUCH-Info-TDD128: bits 0 snpl_ReportType, 1 beaconPLEst, 2 pebase_PowerControlGAP,
   3 ul_SynchronisationParameters, 4 dummy. */
#define umts_e_puch_info_tdd128_FIELDS(F)                                                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                           \
  F(RECORD, umts_e_tfcs_info, e_TFCS_Info, 1, UMTS_ALWAYS, _)                                        \
  F(SCALAR, uint32_t, snpl_ReportType, 1, 0, _)                                                      \
  F(SCALAR, int8_t, prxBASEdes, 1, UMTS_ALWAYS, _)                                                   \
  F(BOOL, uint8_t, beaconPLEst, 1, 1, _)                                                             \
  F(SCALAR, uint8_t, tpc_StepSize, 1, UMTS_ALWAYS, _)                                                \
  F(SCALAR, uint8_t, pebase_PowerControlGAP, 1, 2, _)                                                \
  F(RECORD, umts_ul_synchronisation_parameters, ul_SynchronisationParameters, 1, 3, _)               \
  F(RECORD, umts_e_puch_ts_configuration_list, e_PUCH_TS_ConfigurationList, 1, UMTS_ALWAYS, _)       \
  F(SCALAR, uint8_t, minimum_Allowed_Code_Rate, 1, UMTS_ALWAYS, _)                                   \
  F(SCALAR, uint8_t, maximum_Allowed_Code_Rate, 1, UMTS_ALWAYS, _)                                   \
  F(SCALAR, uint8_t, maximumNumOfRetransSchedInfo, 1, UMTS_ALWAYS, _)                                \
  F(SCALAR, uint32_t, retransTimerForSchedInfo, 1, UMTS_ALWAYS, _)                                   \
  F(SCALAR, uint8_t, dummy, 1, 4, _)

#define umts_e_hich_information_lcr_FIELDS(F)                                                       \
  F(SCALAR, uint8_t, ei, 1, UMTS_ALWAYS, _)                                                        \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)                                            \
  F(SCALAR, uint32_t, channelisation_Code, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_hs_sich_midamble_allocation_mode, midambleAllocationMode, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, midambleConfiguration, 1, UMTS_ALWAYS, _)

#define umts_e_hich_information_lcr_list_FIELDS(F) \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)     \
  F(ARRAY, umts_e_hich_information_lcr, entries, 4, UMTS_ALWAYS, count)

#define umts_e_hich_information_tdd128_FIELDS(F)                                            \
  F(SCALAR, uint8_t, n_E_HICH, 1, UMTS_ALWAYS, _)                                          \
  F(RECORD, umts_e_hich_information_lcr_list, e_HICH_InfoList, 1, UMTS_ALWAYS, _)

/* An E-AGCH: as an HS-SCCH without its HS-SICH (midamble shift inline, tag 3). */
#define umts_e_agch_individual_lcr_FIELDS(F)                                                        \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)                                            \
  F(SCALAR, uint32_t, firstChannelisationCode, 1, UMTS_ALWAYS, _)                                  \
  F(SCALAR, uint32_t, secondChannelisationCode, 1, UMTS_ALWAYS, _)                                 \
  F(RECORD, umts_hs_scch_midamble_allocation_mode, midambleAllocationMode, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, midambleConfiguration, 1, UMTS_ALWAYS, _)

#define umts_e_agch_set_config_lcr_FIELDS(F)      \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)    \
  F(ARRAY, umts_e_agch_individual_lcr, entries, 4, UMTS_ALWAYS, count)

#define umts_e_agch_information_tdd128_FIELDS(F)                                         \
  F(BOOL, uint8_t, rdi_Indicator, 1, UMTS_ALWAYS, _)                                    \
  F(SCALAR, uint8_t, tpc_StepSize, 1, UMTS_ALWAYS, _)                                   \
  F(RECORD, umts_e_agch_set_config_lcr, e_AGCH_Set_Config, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, int8_t, e_AGCH_BLER_Target, 1, UMTS_ALWAYS, _)

#define umts_common_e_rnti_info_FIELDS(F)                                    \
  F(RECORD, umts_bit_string32, starting_E_RNTI, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint8_t, number_of_group, 1, UMTS_ALWAYS, _)                     \
  F(SCALAR, uint8_t, number_of_ENRTI_per_group, 1, UMTS_ALWAYS, _)

/* Up to 256 groups under an 8-bit count: a full list reads 0. */
#define umts_common_e_rnti_info_list_FIELDS(F)    \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)    \
  F(ARRAY, umts_common_e_rnti_info, entries, 256, UMTS_ALWAYS, count)

#define umts_ccch_transmission_info_tdd128_FIELDS(F)                                       \
  F(RECORD, umts_common_e_rnti_info_list, common_e_rnti_Info, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint8_t, harq_MaximumNumberOfRetransmissions, 1, UMTS_ALWAYS, _)              \
  F(SCALAR, uint32_t, harq_retransmission_timer, 1, UMTS_ALWAYS, _)                       \
  F(SCALAR, uint8_t, harq_power_offset, 1, UMTS_ALWAYS, _)

#define umts_common_edch_tdd128_FIELDS(F)                                                         \
  F(RECORD, umts_e_rucch_info_tdd128, e_RUCCH_Info, 1, UMTS_ALWAYS, _)                           \
  F(RECORD, umts_e_puch_info_tdd128, e_PUCH_Info, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_e_hich_information_tdd128, e_hich_Information, 1, UMTS_ALWAYS, _)               \
  F(RECORD, umts_e_agch_information_tdd128, e_agch_Information, 1, UMTS_ALWAYS, _)               \
  F(SCALAR, uint32_t, harq_Info, 1, UMTS_ALWAYS, _)                                              \
  F(RECORD, umts_ccch_transmission_info_tdd128, ccch_transmission_Info, 1, UMTS_ALWAYS, _)

/* tdd: the inner tag, of which 3 (tdd128) alone has members. */
#define umts_common_edch_mode_tdd_u_FIELDS(F) F(RECORD, umts_common_edch_tdd128, tdd128, 1, 3, _)
#define umts_common_edch_mode_tdd_FIELDS(F)              \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_common_edch_mode_tdd_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_common_edch_mode_specific_info_u_FIELDS(F)     \
  F(RECORD, umts_common_edch_mode_fdd, fdd, 1, 1, _)        \
  F(RECORD, umts_common_edch_mode_tdd, tdd, 1, 2, _)

#define umts_common_edch_mode_specific_info_FIELDS(F)    \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_common_edch_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_common_edch_system_info_FIELDS(F)                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                    \
  F(SCALAR, int8_t, ul_InterferenceForCommonEDCH, 1, 0, _)                                    \
  F(RECORD, umts_common_e_dch_mac_d_flow_list, common_E_DCH_MAC_d_FlowList, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_common_edch_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

/* v8d0 commonEDCHSystemInfoFDD: bit 0 ul_InterferenceForCommonEDCH, bit 1 the feedback. */
#define umts_common_edch_system_info_fdd_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                    \
  F(SCALAR, int8_t, ul_InterferenceForCommonEDCH, 1, 0, _)                                    \
  F(RECORD, umts_common_e_dch_mac_d_flow_list, common_E_DCH_MAC_d_FlowList, 1, UMTS_ALWAYS, _) \
  UMTS_COMMON_EDCH_FDD_MEMBERS(F, 1)

#define UMTS_SIB5_HSPA_RECORDS(X)                                \
  X(RECORD, umts_common_rb_mapping_info)                         \
  X(RECORD, umts_common_mac_ehs_reordering_queue)                \
  X(RECORD, umts_common_mac_ehs_reordering_queue_list)           \
  X(RECORD, umts_hs_scch_channelisation_code_info)               \
  X(RECORD, umts_hs_scch_system_info)                            \
  X(RECORD, umts_harq_memory_size_list)                          \
  X(UNION, umts_harq_memory_partitioning_u)                      \
  X(RECORD, umts_harq_memory_partitioning)                       \
  X(RECORD, umts_harq_info)                                      \
  X(RECORD, umts_h_rnti_list)                                    \
  X(RECORD, umts_hs_dsch_common_system_information)              \
  X(RECORD, umts_pich_for_hsdpa_supported_paging)                \
  X(RECORD, umts_pich_for_hsdpa_supported_paging_list)           \
  X(RECORD, umts_transport_block_size_list)                      \
  X(RECORD, umts_hs_dsch_paging_system_information)              \
  X(RECORD, umts_sib5_v770_mode_specific_info_fdd)               \
  X(RECORD, umts_sib5_v770_mode_specific_info_tdd768)            \
  X(RECORD, umts_sib5_v770_mode_specific_info_tdd128)            \
  X(UNION, umts_sib5_v770_mode_specific_info_u)                  \
  X(RECORD, umts_sib5_v770_mode_specific_info)                   \
  X(RECORD, umts_hs_dsch_drx_cellfach_info)                      \
  X(RECORD, umts_hs_dsch_drx_cellfach_info_tdd128)               \
  X(UNION, umts_hs_scch_midamble_allocation_mode_u)             \
  X(RECORD, umts_hs_scch_midamble_allocation_mode)               \
  X(UNION, umts_hs_sich_midamble_allocation_mode_u)              \
  X(RECORD, umts_hs_sich_midamble_allocation_mode)               \
  X(RECORD, umts_hs_sich_configuration_tdd128)                   \
  X(RECORD, umts_hs_scch_tdd128)                                 \
  X(RECORD, umts_hs_scch_set_configuration_tdd128)               \
  X(RECORD, umts_hs_scch_system_info_tdd128)                     \
  X(RECORD, umts_hs_pdsch_midamble_configuration_tdd128)         \
  X(RECORD, umts_hs_dsch_common_system_information_tdd128)       \
  X(RECORD, umts_pich_for_hsdpa_implicit_tdd128)                 \
  X(UNION, umts_pich_for_hsdpa_supported_paging_tdd128_u)        \
  X(RECORD, umts_pich_for_hsdpa_supported_paging_tdd128)         \
  X(RECORD, umts_pich_for_hsdsch_list_tdd128)                    \
  X(RECORD, umts_code_resource_information_tdd128)               \
  X(RECORD, umts_paging_associated_hspdsch_info)                 \
  X(RECORD, umts_paging_associated_hspdsch_info_list)            \
  X(RECORD, umts_pcch_information_list)                          \
  X(RECORD, umts_hs_dsch_paging_system_information_tdd128)       \
  X(RECORD, umts_hs_dsch_common_sys_info_tdd128)                 \
  X(RECORD, umts_sib5_v860_mode_specific_info_fdd)               \
  X(RECORD, umts_sib5_v860_mode_specific_info_tdd128)            \
  X(UNION, umts_sib5_v860_mode_specific_info_u)                  \
  X(RECORD, umts_sib5_v860_mode_specific_info)                   \
  X(RECORD, umts_common_e_dch_mac_d_flow)                        \
  X(RECORD, umts_common_e_dch_mac_d_flow_list)                   \
  X(RECORD, umts_prach_preamble_for_enhanced_uplink)             \
  X(RECORD, umts_e_agch_information)                             \
  X(UNION, umts_power_control_algorithm_u)                       \
  X(RECORD, umts_power_control_algorithm)                        \
  X(RECORD, umts_ul_dpch_power_control_info_for_common_edch)     \
  X(RECORD, umts_e_tfc_boost_info)                               \
  X(RECORD, umts_e_dpcch_info)                                   \
  X(RECORD, umts_e_dpdch_reference_e_tfci)                       \
  X(RECORD, umts_e_dpdch_reference_e_tfci_list)                  \
  X(RECORD, umts_e_dpdch_scheduling_info_configuration)          \
  X(RECORD, umts_e_dpdch_info_r8)                                \
  X(RECORD, umts_measurement_feedback_info_fdd)                  \
  X(UNION, umts_measurement_feedback_info_u)                     \
  X(RECORD, umts_measurement_feedback_info)                      \
  X(RECORD, umts_e_rgch_information)                             \
  X(RECORD, umts_e_hich_info)                                    \
  X(RECORD, umts_ul_dpch_code_info_for_common_edch)              \
  X(RECORD, umts_common_e_dch_resource_info)                     \
  X(RECORD, umts_common_e_dch_resource_info_list)                \
  X(RECORD, umts_common_edch_mode_fdd)                           \
  X(RECORD, umts_sync_ul_info_for_e_rucch)                       \
  X(RECORD, umts_prach_chan_codes_list_lcr)                      \
  X(RECORD, umts_prach_information_lcr)                          \
  X(RECORD, umts_prach_information_lcr_list)                     \
  X(RECORD, umts_e_rucch_info_tdd128)                            \
  X(RECORD, umts_reference_beta)                                 \
  X(RECORD, umts_reference_beta_list)                            \
  X(RECORD, umts_e_tfcs_info)                                    \
  X(RECORD, umts_ul_synchronisation_parameters)                  \
  X(RECORD, umts_e_puch_ts_slots_lcr)                            \
  X(RECORD, umts_e_puch_ts_configuration_list)                   \
  X(RECORD, umts_e_puch_info_tdd128)                             \
  X(RECORD, umts_e_hich_information_lcr)                         \
  X(RECORD, umts_e_hich_information_lcr_list)                    \
  X(RECORD, umts_e_hich_information_tdd128)                      \
  X(RECORD, umts_e_agch_individual_lcr)                          \
  X(RECORD, umts_e_agch_set_config_lcr)                          \
  X(RECORD, umts_e_agch_information_tdd128)                      \
  X(RECORD, umts_common_e_rnti_info)                             \
  X(RECORD, umts_common_e_rnti_info_list)                        \
  X(RECORD, umts_ccch_transmission_info_tdd128)                  \
  X(RECORD, umts_common_edch_tdd128)                             \
  X(UNION, umts_common_edch_mode_tdd_u)                          \
  X(RECORD, umts_common_edch_mode_tdd)                           \
  X(UNION, umts_common_edch_mode_specific_info_u)                \
  X(RECORD, umts_common_edch_mode_specific_info)                 \
  X(RECORD, umts_common_edch_system_info)                        \
  X(RECORD, umts_common_edch_system_info_fdd)

#endif /* UMTS_SIB_SIB5_HSPA_H */
