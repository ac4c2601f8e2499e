/*
 * SIB5 records of the TDD channels and their later-release forms: the PUSCH and PDSCH system
 * information of 3.84 Mcps TDD and of the 1.28 Mcps (LCR), HCR and 7.68 Mcps (VHCR) forms,
 * the LCR and VHCR PRACH, the 1.28 Mcps S-CCPCH extensions, the HCR/VHCR S-CCPCH list, and
 * the MBMS S-CCPCH of v690 and v770. Included by umts_sib_sib5.h, whose timeslot, midamble,
 * transport format and TFCS records they reuse.
 *
 * Each chip rate repeats the same shapes with its own timeslot record; the shapes are written
 * once below (UMTS_TS_*) and each family names its records with them.
 */
#ifndef UMTS_SIB_SIB5_TDD_H
#define UMTS_SIB_SIB5_TDD_H

/* ==== Shapes shared by the timeslot families ============================================ */

#define UMTS_CHOICE_FIELDS(F, union_type)                \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, union_type, u, 1, UMTS_ALWAYS, choice_tag)

#define UMTS_LIST_FIELDS(F, count_type, entry_type, name, bound) \
  F(SCALAR, count_type, count, 1, UMTS_ALWAYS, _)                \
  F(ARRAY, entry_type, name, bound, UMTS_ALWAYS, count)

/* newParameters of an additional timeslot: its timeslot and its codes. */
#define UMTS_TS_NEW_PARAMETERS_FIELDS(F, timeslot_type, codes_type, codes_name)          \
  F(RECORD, timeslot_type, individualTimeslotInfo, 1, UMTS_ALWAYS, _)                   \
  F(RECORD, codes_type, codes_name, 1, UMTS_ALWAYS, _)

/* parameters of an additional timeslot: 1 sameAsLast, 2 newParameters. */
#define UMTS_TS_PARAMETERS_U_FIELDS(F, new_type)                          \
  F(RECORD, umts_timeslot_same_as_last, sameAsLast, 1, 1, _)              \
  F(RECORD, new_type, newParameters, 1, 2, _)

/* additionalTimeslots: 1 consecutive, 2 timeslotList. */
#define UMTS_TS_ADDITIONAL_U_FIELDS(F, list_type)                           \
  F(RECORD, umts_consecutive_timeslots, consecutive, 1, 1, _)               \
  F(RECORD, list_type, timeslotList, 1, 2, _)

/* moreTimeslots: 1 noMore (no value), 2 additionalTimeslots. */
#define UMTS_TS_MORE_U_FIELDS(F, additional_type) F(RECORD, additional_type, additionalTimeslots, 1, 2, _)

#define umts_timeslot_same_as_last_FIELDS(F) F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)
#define umts_consecutive_timeslots_FIELDS(F) F(SCALAR, uint8_t, numAdditionalTimeslots, 1, UMTS_ALWAYS, _)

/* UL-TS-ChannelisationCodeList (and its VHCR form, of the same layout): up to 2 codes. */
#define umts_ul_ts_channelisation_code_list_FIELDS(F) UMTS_LIST_FIELDS(F, uint32_t, uint32_t, codes, 2)

/* DL-TS-ChannelisationCodesShort: 1 consecutive (first and last code), 2 bitmap. */
#define umts_dl_ts_channelisation_codes_consecutive_FIELDS(F)        \
  F(SCALAR, uint32_t, firstChannelisationCode, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, uint32_t, lastChannelisationCode, 1, UMTS_ALWAYS, _)

#define umts_dl_ts_channelisation_codes_short_u_FIELDS(F)                          \
  F(RECORD, umts_dl_ts_channelisation_codes_consecutive, consecutive, 1, 1, _)     \
  F(RECORD, umts_bit_string32, bitmap, 1, 2, _)

#define umts_dl_ts_channelisation_codes_short_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_dl_ts_channelisation_codes_short_u)
/* The VHCR form: a bitmap of 32 codes, the same layout. */
#define umts_dl_ts_channelisation_codes_short_vhcr_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_dl_ts_channelisation_codes_short_u)

/* ==== Timeslot records of the chip rates ================================================ */

/* MidambleShiftAndBurstType-r7 and -VHCR: types 1 to 3 as the base form, and a fourth tag,
   mbsfnBurstType4, with no value. */
#define umts_midamble_shift_and_burst_type_r7_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_midamble_shift_and_burst_type_u)
#define umts_midamble_shift_and_burst_type_vhcr_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_midamble_shift_and_burst_type_u)

#define umts_individual_timeslot_info_r7_FIELDS(F)                                                 \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)                                            \
  F(BOOL, uint8_t, tfci_Existence, 1, UMTS_ALWAYS, _)                                              \
  F(RECORD, umts_midamble_shift_and_burst_type_r7, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _)

#define umts_individual_timeslot_info_vhcr_FIELDS(F)                                                   \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)                                                \
  F(BOOL, uint8_t, tfci_Existence, 1, UMTS_ALWAYS, _)                                                  \
  F(RECORD, umts_midamble_shift_and_burst_type_vhcr, midambleShiftAndBurstType_VHCR, 1, UMTS_ALWAYS, _)

/* MidambleShiftAndBurstType-LCR-r4: the allocation mode (3 ueSpecificMidamble, whose shift
   is `midambleShift`), then the configuration. */
#define umts_midamble_shift_and_burst_type_lcr_r4_FIELDS(F)      \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint8_t, midambleShift, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint8_t, midambleConfiguration, 1, UMTS_ALWAYS, _)

/* IndividualTimeslotInfo-LCR-r4: bit 0 stands for additionalSS_TPC_Symbols, the one optional
   member (the message's own bit 0). */
#define umts_individual_timeslot_info_lcr_r4_FIELDS(F)                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                           \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)                                              \
  F(BOOL, uint8_t, tfci_Existence, 1, UMTS_ALWAYS, _)                                                \
  F(RECORD, umts_midamble_shift_and_burst_type_lcr_r4, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint32_t, modulation, 1, UMTS_ALWAYS, _)                                                 \
  F(SCALAR, uint32_t, ss_TPC_Symbols, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, uint8_t, additionalSS_TPC_Symbols, 1, 0, _)

/* ==== Uplink timeslots and codes: 3.84 Mcps (13 more timeslots), LCR (5), VHCR (13) ======= */

#define umts_uplink_additional_timeslots_new_parameters_FIELDS(F) \
  UMTS_TS_NEW_PARAMETERS_FIELDS(F, umts_individual_timeslot_info, umts_ul_ts_channelisation_code_list, ul_TS_ChannelisationCodeList)
#define umts_uplink_additional_timeslots_u_FIELDS(F) UMTS_TS_PARAMETERS_U_FIELDS(F, umts_uplink_additional_timeslots_new_parameters)
#define umts_uplink_additional_timeslots_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_uplink_additional_timeslots_u)
#define umts_uplink_timeslot_list_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_uplink_additional_timeslots, parameters, 13)
#define umts_uplink_additional_timeslots_choice_u_FIELDS(F) UMTS_TS_ADDITIONAL_U_FIELDS(F, umts_uplink_timeslot_list)
#define umts_uplink_additional_timeslots_choice_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_uplink_additional_timeslots_choice_u)
#define umts_uplink_more_timeslots_u_FIELDS(F) UMTS_TS_MORE_U_FIELDS(F, umts_uplink_additional_timeslots_choice)
#define umts_uplink_more_timeslots_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_uplink_more_timeslots_u)
#define umts_uplink_timeslots_codes_FIELDS(F)                                                           \
  F(SCALAR, uint8_t, dynamicSFusage, 1, UMTS_ALWAYS, _)                                                 \
  F(RECORD, umts_individual_timeslot_info, firstIndividualTimeslotInfo, 1, UMTS_ALWAYS, _)              \
  F(RECORD, umts_ul_ts_channelisation_code_list, ul_TS_ChannelisationCodeList, 1, UMTS_ALWAYS, _)       \
  F(RECORD, umts_uplink_more_timeslots, moreTimeslots, 1, UMTS_ALWAYS, _)

#define umts_uplink_additional_timeslots_new_parameters_lcr_r4_FIELDS(F) \
  UMTS_TS_NEW_PARAMETERS_FIELDS(F, umts_individual_timeslot_info_lcr_r4, umts_ul_ts_channelisation_code_list, ul_TS_ChannelisationCodeList)
#define umts_uplink_additional_timeslots_lcr_r4_u_FIELDS(F) UMTS_TS_PARAMETERS_U_FIELDS(F, umts_uplink_additional_timeslots_new_parameters_lcr_r4)
#define umts_uplink_additional_timeslots_lcr_r4_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_uplink_additional_timeslots_lcr_r4_u)
#define umts_uplink_timeslot_list_lcr_r4_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_uplink_additional_timeslots_lcr_r4, parameters, 5)
#define umts_uplink_additional_timeslots_choice_lcr_r4_u_FIELDS(F) UMTS_TS_ADDITIONAL_U_FIELDS(F, umts_uplink_timeslot_list_lcr_r4)
#define umts_uplink_additional_timeslots_choice_lcr_r4_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_uplink_additional_timeslots_choice_lcr_r4_u)
#define umts_uplink_more_timeslots_lcr_r4_u_FIELDS(F) UMTS_TS_MORE_U_FIELDS(F, umts_uplink_additional_timeslots_choice_lcr_r4)
#define umts_uplink_more_timeslots_lcr_r4_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_uplink_more_timeslots_lcr_r4_u)
#define umts_uplink_timeslots_codes_lcr_r4_FIELDS(F)                                                    \
  F(SCALAR, uint8_t, dynamicSFusage, 1, UMTS_ALWAYS, _)                                                 \
  F(RECORD, umts_individual_timeslot_info_lcr_r4, firstIndividualTimeslotInfo, 1, UMTS_ALWAYS, _)       \
  F(RECORD, umts_ul_ts_channelisation_code_list, ul_TS_ChannelisationCodeList, 1, UMTS_ALWAYS, _)       \
  F(RECORD, umts_uplink_more_timeslots_lcr_r4, moreTimeslots, 1, UMTS_ALWAYS, _)

/* VHCR: the entries of timeslotList keep the base code list. */
#define umts_uplink_additional_timeslots_new_parameters_vhcr_FIELDS(F) \
  UMTS_TS_NEW_PARAMETERS_FIELDS(F, umts_individual_timeslot_info_vhcr, umts_ul_ts_channelisation_code_list, ul_TS_ChannelisationCodeList)
#define umts_uplink_additional_timeslots_vhcr_u_FIELDS(F) UMTS_TS_PARAMETERS_U_FIELDS(F, umts_uplink_additional_timeslots_new_parameters_vhcr)
#define umts_uplink_additional_timeslots_vhcr_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_uplink_additional_timeslots_vhcr_u)
#define umts_uplink_timeslot_list_vhcr_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_uplink_additional_timeslots_vhcr, parameters, 13)
#define umts_uplink_additional_timeslots_choice_vhcr_u_FIELDS(F) UMTS_TS_ADDITIONAL_U_FIELDS(F, umts_uplink_timeslot_list_vhcr)
#define umts_uplink_additional_timeslots_choice_vhcr_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_uplink_additional_timeslots_choice_vhcr_u)
#define umts_uplink_more_timeslots_vhcr_u_FIELDS(F) UMTS_TS_MORE_U_FIELDS(F, umts_uplink_additional_timeslots_choice_vhcr)
#define umts_uplink_more_timeslots_vhcr_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_uplink_more_timeslots_vhcr_u)
#define umts_uplink_timeslots_codes_vhcr_FIELDS(F)                                                      \
  F(SCALAR, uint8_t, dynamicSFusage, 1, UMTS_ALWAYS, _)                                                 \
  F(RECORD, umts_individual_timeslot_info_vhcr, firstIndividualTimeslotInfo, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_ul_ts_channelisation_code_list, ul_TS_ChannelisationCodeList, 1, UMTS_ALWAYS, _)       \
  F(RECORD, umts_uplink_more_timeslots_vhcr, moreTimeslots, 1, UMTS_ALWAYS, _)

/* ==== Downlink timeslots and codes: 3.84 Mcps, LCR, VHCR and r7 ============================ */

#define UMTS_DL_TIMESLOTS_CODES_FIELDS(F, timeslot_type, codes_type, more_type)                 \
  F(RECORD, timeslot_type, firstIndividualTimeslotInfo, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, codes_type, dl_TS_ChannelisationCodesShort, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, more_type, moreTimeslots, 1, UMTS_ALWAYS, _)

#define umts_downlink_additional_timeslots_new_parameters_FIELDS(F) \
  UMTS_TS_NEW_PARAMETERS_FIELDS(F, umts_individual_timeslot_info, umts_dl_ts_channelisation_codes_short, dl_TS_ChannelisationCodesShort)
#define umts_downlink_additional_timeslots_u_FIELDS(F) UMTS_TS_PARAMETERS_U_FIELDS(F, umts_downlink_additional_timeslots_new_parameters)
#define umts_downlink_additional_timeslots_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_additional_timeslots_u)
#define umts_downlink_timeslot_list_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_downlink_additional_timeslots, parameters, 13)
#define umts_downlink_additional_timeslots_choice_u_FIELDS(F) UMTS_TS_ADDITIONAL_U_FIELDS(F, umts_downlink_timeslot_list)
#define umts_downlink_additional_timeslots_choice_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_additional_timeslots_choice_u)
#define umts_downlink_more_timeslots_u_FIELDS(F) UMTS_TS_MORE_U_FIELDS(F, umts_downlink_additional_timeslots_choice)
#define umts_downlink_more_timeslots_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_more_timeslots_u)
#define umts_downlink_timeslots_codes_FIELDS(F) \
  UMTS_DL_TIMESLOTS_CODES_FIELDS(F, umts_individual_timeslot_info, umts_dl_ts_channelisation_codes_short, umts_downlink_more_timeslots)

#define umts_downlink_additional_timeslots_new_parameters_lcr_r4_FIELDS(F) \
  UMTS_TS_NEW_PARAMETERS_FIELDS(F, umts_individual_timeslot_info_lcr_r4, umts_dl_ts_channelisation_codes_short, dl_TS_ChannelisationCodesShort)
#define umts_downlink_additional_timeslots_lcr_r4_u_FIELDS(F) UMTS_TS_PARAMETERS_U_FIELDS(F, umts_downlink_additional_timeslots_new_parameters_lcr_r4)
#define umts_downlink_additional_timeslots_lcr_r4_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_additional_timeslots_lcr_r4_u)
#define umts_downlink_timeslot_list_lcr_r4_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_downlink_additional_timeslots_lcr_r4, parameters, 5)
#define umts_downlink_additional_timeslots_choice_lcr_r4_u_FIELDS(F) UMTS_TS_ADDITIONAL_U_FIELDS(F, umts_downlink_timeslot_list_lcr_r4)
#define umts_downlink_additional_timeslots_choice_lcr_r4_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_additional_timeslots_choice_lcr_r4_u)
#define umts_downlink_more_timeslots_lcr_r4_u_FIELDS(F) UMTS_TS_MORE_U_FIELDS(F, umts_downlink_additional_timeslots_choice_lcr_r4)
#define umts_downlink_more_timeslots_lcr_r4_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_more_timeslots_lcr_r4_u)
#define umts_downlink_timeslots_codes_lcr_r4_FIELDS(F) \
  UMTS_DL_TIMESLOTS_CODES_FIELDS(F, umts_individual_timeslot_info_lcr_r4, umts_dl_ts_channelisation_codes_short, umts_downlink_more_timeslots_lcr_r4)

#define umts_downlink_additional_timeslots_new_parameters_vhcr_FIELDS(F) \
  UMTS_TS_NEW_PARAMETERS_FIELDS(F, umts_individual_timeslot_info_vhcr, umts_dl_ts_channelisation_codes_short_vhcr, dl_TS_ChannelisationCodesShort)
#define umts_downlink_additional_timeslots_vhcr_u_FIELDS(F) UMTS_TS_PARAMETERS_U_FIELDS(F, umts_downlink_additional_timeslots_new_parameters_vhcr)
#define umts_downlink_additional_timeslots_vhcr_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_additional_timeslots_vhcr_u)
#define umts_downlink_timeslot_list_vhcr_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_downlink_additional_timeslots_vhcr, parameters, 13)
#define umts_downlink_additional_timeslots_choice_vhcr_u_FIELDS(F) UMTS_TS_ADDITIONAL_U_FIELDS(F, umts_downlink_timeslot_list_vhcr)
#define umts_downlink_additional_timeslots_choice_vhcr_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_additional_timeslots_choice_vhcr_u)
#define umts_downlink_more_timeslots_vhcr_u_FIELDS(F) UMTS_TS_MORE_U_FIELDS(F, umts_downlink_additional_timeslots_choice_vhcr)
#define umts_downlink_more_timeslots_vhcr_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_more_timeslots_vhcr_u)
#define umts_downlink_timeslots_codes_vhcr_FIELDS(F) \
  UMTS_DL_TIMESLOTS_CODES_FIELDS(F, umts_individual_timeslot_info_vhcr, umts_dl_ts_channelisation_codes_short_vhcr, umts_downlink_more_timeslots_vhcr)

#define umts_downlink_additional_timeslots_new_parameters_r7_FIELDS(F) \
  UMTS_TS_NEW_PARAMETERS_FIELDS(F, umts_individual_timeslot_info_r7, umts_dl_ts_channelisation_codes_short, dl_TS_ChannelisationCodesShort)
#define umts_downlink_additional_timeslots_r7_u_FIELDS(F) UMTS_TS_PARAMETERS_U_FIELDS(F, umts_downlink_additional_timeslots_new_parameters_r7)
#define umts_downlink_additional_timeslots_r7_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_additional_timeslots_r7_u)
#define umts_downlink_timeslot_list_r7_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_downlink_additional_timeslots_r7, parameters, 13)
#define umts_downlink_additional_timeslots_choice_r7_u_FIELDS(F) UMTS_TS_ADDITIONAL_U_FIELDS(F, umts_downlink_timeslot_list_r7)
#define umts_downlink_additional_timeslots_choice_r7_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_downlink_additional_timeslots_choice_r7_u)
/* The r7 form never stores its tag (it stays 0): additionalTimeslots holds a value whenever
   its own tag is set. */
#define umts_downlink_more_timeslots_r7_FIELDS(F)                                                          \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                                                     \
  F(RECORD, umts_downlink_additional_timeslots_choice_r7, additionalTimeslots, 1, UMTS_ALWAYS, _)
#define umts_downlink_timeslots_codes_r7_FIELDS(F) \
  UMTS_DL_TIMESLOTS_CODES_FIELDS(F, umts_individual_timeslot_info_r7, umts_dl_ts_channelisation_codes_short, umts_downlink_more_timeslots_r7)

/* ==== PUSCH and PDSCH system information ================================================== */

#define umts_sfn_time_info_FIELDS(F)                            \
  F(SCALAR, uint16_t, activationTimeSFN, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint16_t, physChDuration, 1, UMTS_ALWAYS, _)

/* PUSCH-Info / PDSCH-Info and their forms: bit 0 commonTimeslotInfo, bit 1 the timeslots. */
#define UMTS_SHARED_CH_INFO_FIELDS(F, codes_type, codes_name)                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                            \
  F(SCALAR, uint8_t, tfcs_ID, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_common_timeslot_info, commonTimeslotInfo, 1, 0, _)                   \
  F(RECORD, codes_type, codes_name, 1, 1, _)

/* PUSCH-SysInfo / PDSCH-SysInfo and their forms: bit 0 the transport channels, bit 1 TFCS. */
#define UMTS_SHARED_CH_SYS_INFO_FIELDS(F, id, info_type, info, tfs_type, tfs, tfcs)   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                            \
  F(SCALAR, uint8_t, id, 1, UMTS_ALWAYS, _)                                           \
  F(RECORD, info_type, info, 1, UMTS_ALWAYS, _)                                       \
  F(RECORD, tfs_type, tfs, 1, 0, _)                                                   \
  F(RECORD, umts_tfcs, tfcs, 1, 1, _)

/* An entry of a list with SFN: bit 0 sfn_TimeInfo. */
#define UMTS_SHARED_CH_SFN_FIELDS(F, sys_type, sys)                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                            \
  F(RECORD, sys_type, sys, 1, UMTS_ALWAYS, _)                                         \
  F(RECORD, umts_sfn_time_info, sfn_TimeInfo, 1, 0, _)

/* The transport channels of an HCR/VHCR entry: identity and format set, up to 32. */
#define umts_usch_transport_channel_FIELDS(F)                                   \
  F(SCALAR, uint8_t, usch_TransportChannelIdentity, 1, UMTS_ALWAYS, _)          \
  F(RECORD, umts_transport_format_set, usch_TFS, 1, UMTS_ALWAYS, _)
#define umts_usch_transport_channels_info_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_usch_transport_channel, entries, 32)
#define umts_dsch_transport_channel_FIELDS(F)                                   \
  F(SCALAR, uint8_t, dsch_transport_channel_identity, 1, UMTS_ALWAYS, _)        \
  F(RECORD, umts_transport_format_set, dsch_TFS, 1, UMTS_ALWAYS, _)
#define umts_dsch_transport_channels_info_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_dsch_transport_channel, entries, 32)

/* 3.84 Mcps */
#define umts_pusch_info_FIELDS(F) UMTS_SHARED_CH_INFO_FIELDS(F, umts_uplink_timeslots_codes, pusch_TimeslotsCodes)
#define umts_pusch_sys_info_FIELDS(F) \
  UMTS_SHARED_CH_SYS_INFO_FIELDS(F, pusch_Identity, umts_pusch_info, pusch_Info, umts_transport_format_set, usch_TFS, usch_TFCS)
#define umts_pusch_sysinfo_sfn_FIELDS(F) UMTS_SHARED_CH_SFN_FIELDS(F, umts_pusch_sys_info, pusch_SysInfo)
#define umts_pusch_sysinfo_list_sfn_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_pusch_sysinfo_sfn, entries, 8)
#define umts_pdsch_info_FIELDS(F) UMTS_SHARED_CH_INFO_FIELDS(F, umts_downlink_timeslots_codes, pdsch_TimeslotsCodes)
#define umts_pdsch_sys_info_FIELDS(F) \
  UMTS_SHARED_CH_SYS_INFO_FIELDS(F, pdsch_Identity, umts_pdsch_info, pdsch_Info, umts_transport_format_set, dsch_TFS, dsch_TFCS)
#define umts_pdsch_sysinfo_sfn_FIELDS(F) UMTS_SHARED_CH_SFN_FIELDS(F, umts_pdsch_sys_info, pdsch_SysInfo)
#define umts_pdsch_sysinfo_list_sfn_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_pdsch_sysinfo_sfn, entries, 8)

/* 1.28 Mcps */
#define umts_pusch_info_lcr_r4_FIELDS(F) UMTS_SHARED_CH_INFO_FIELDS(F, umts_uplink_timeslots_codes_lcr_r4, pusch_TimeslotsCodes)
#define umts_pusch_sys_info_lcr_r4_FIELDS(F) \
  UMTS_SHARED_CH_SYS_INFO_FIELDS(F, pusch_Identity, umts_pusch_info_lcr_r4, pusch_Info, umts_transport_format_set, usch_TFS, usch_TFCS)
#define umts_pusch_sysinfo_sfn_lcr_r4_FIELDS(F) UMTS_SHARED_CH_SFN_FIELDS(F, umts_pusch_sys_info_lcr_r4, pusch_SysInfo)
#define umts_pusch_sysinfo_list_sfn_lcr_r4_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_pusch_sysinfo_sfn_lcr_r4, entries, 8)
#define umts_pdsch_info_lcr_r4_FIELDS(F) UMTS_SHARED_CH_INFO_FIELDS(F, umts_downlink_timeslots_codes_lcr_r4, pdsch_TimeslotsCodes)
#define umts_pdsch_sys_info_lcr_r4_FIELDS(F) \
  UMTS_SHARED_CH_SYS_INFO_FIELDS(F, pdsch_Identity, umts_pdsch_info_lcr_r4, pdsch_Info, umts_transport_format_set, dsch_TFS, dsch_TFCS)
#define umts_pdsch_sysinfo_sfn_lcr_r4_FIELDS(F) UMTS_SHARED_CH_SFN_FIELDS(F, umts_pdsch_sys_info_lcr_r4, pdsch_SysInfo)
#define umts_pdsch_sysinfo_list_sfn_lcr_r4_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_pdsch_sysinfo_sfn_lcr_r4, entries, 8)

/* HCR r5: the 3.84 Mcps info, and a format set per transport channel. */
#define umts_pusch_sys_info_hcr_r5_FIELDS(F)                                                             \
  UMTS_SHARED_CH_SYS_INFO_FIELDS(F, pusch_Identity, umts_pusch_info, pusch_Info, umts_usch_transport_channels_info, \
                                 usch_TransportChannelsInfo, usch_TFCS)
#define umts_pusch_sysinfo_sfn_hcr_r5_FIELDS(F) UMTS_SHARED_CH_SFN_FIELDS(F, umts_pusch_sys_info_hcr_r5, pusch_SysInfo)
#define umts_pusch_sysinfo_list_sfn_hcr_r5_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_pusch_sysinfo_sfn_hcr_r5, entries, 8)
#define umts_pdsch_sys_info_hcr_r5_FIELDS(F)                                                             \
  UMTS_SHARED_CH_SYS_INFO_FIELDS(F, pdsch_Identity, umts_pdsch_info, pdsch_Info, umts_dsch_transport_channels_info, \
                                 dsch_TransportChannelsInfo, dsch_TFCS)
#define umts_pdsch_sysinfo_sfn_hcr_r5_FIELDS(F) UMTS_SHARED_CH_SFN_FIELDS(F, umts_pdsch_sys_info_hcr_r5, pdsch_SysInfo)
#define umts_pdsch_sysinfo_list_sfn_hcr_r5_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_pdsch_sysinfo_sfn_hcr_r5, entries, 8)

/* VHCR (PUSCH) and r7 (PDSCH, whose entries have no SFN time) of v770 tdd768. */
#define umts_pusch_info_vhcr_FIELDS(F) UMTS_SHARED_CH_INFO_FIELDS(F, umts_uplink_timeslots_codes_vhcr, pusch_TimeslotsCodes_VHCR)
#define umts_pusch_sys_info_vhcr_FIELDS(F)                                                               \
  UMTS_SHARED_CH_SYS_INFO_FIELDS(F, pusch_Identity, umts_pusch_info_vhcr, pusch_Info_VHCR, umts_usch_transport_channels_info, \
                                 usch_TransportChannelsInfo, usch_TFCS)
#define umts_pusch_sysinfo_sfn_vhcr_FIELDS(F) UMTS_SHARED_CH_SFN_FIELDS(F, umts_pusch_sys_info_vhcr, pusch_SysInfo_VHCR)
#define umts_pusch_sysinfo_list_sfn_vhcr_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_pusch_sysinfo_sfn_vhcr, entries, 8)

/* PDSCH-Info-r7 tddOption: 1 tdd384, 2 tdd768, 3 tdd128, each bit 0 pdsch_TimeslotsCodes. */
#define UMTS_PDSCH_TDD_OPTION_FIELDS(F, codes_type)                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)           \
  F(RECORD, codes_type, pdsch_TimeslotsCodes, 1, 0, _)
#define umts_pdsch_info_r7_tdd384_FIELDS(F) UMTS_PDSCH_TDD_OPTION_FIELDS(F, umts_downlink_timeslots_codes)
#define umts_pdsch_info_r7_tdd768_FIELDS(F) UMTS_PDSCH_TDD_OPTION_FIELDS(F, umts_downlink_timeslots_codes_vhcr)
#define umts_pdsch_info_r7_tdd128_FIELDS(F) UMTS_PDSCH_TDD_OPTION_FIELDS(F, umts_downlink_timeslots_codes_lcr_r4)
#define umts_pdsch_info_r7_tdd_option_u_FIELDS(F)                 \
  F(RECORD, umts_pdsch_info_r7_tdd384, tdd384, 1, 1, _)           \
  F(RECORD, umts_pdsch_info_r7_tdd768, tdd768, 1, 2, _)           \
  F(RECORD, umts_pdsch_info_r7_tdd128, tdd128, 1, 3, _)
#define umts_pdsch_info_r7_tdd_option_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_pdsch_info_r7_tdd_option_u)
#define umts_pdsch_info_r7_FIELDS(F)                                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                           \
  F(SCALAR, uint8_t, tfcs_ID, 1, UMTS_ALWAYS, _)                                     \
  F(RECORD, umts_common_timeslot_info, commonTimeslotInfo, 1, 0, _)                  \
  F(RECORD, umts_pdsch_info_r7_tdd_option, tddOption, 1, UMTS_ALWAYS, _)
#define umts_pdsch_sys_info_vhcr_r7_FIELDS(F)                                                            \
  UMTS_SHARED_CH_SYS_INFO_FIELDS(F, pdsch_Identity, umts_pdsch_info_r7, pdsch_Info, umts_dsch_transport_channels_info, \
                                 dsch_TransportChannelsInfo, dsch_TFCS)
#define umts_pdsch_sysinfo_list_vhcr_r7_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_pdsch_sys_info_vhcr_r7, entries, 8)

/* ==== PRACH of 1.28 Mcps (r4) and 7.68 Mcps (VHCR r7) ====================================== */

/* SYNC-UL-Info-r4: the Sync-UL codes bitmap (8 bits), then the UpPCH parameters. */
#define umts_sync_ul_info_r4_FIELDS(F)                                          \
  F(RECORD, umts_bit_string32, sync_UL_Codes_Bitmap, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, prxUpPCHdes, 1, UMTS_ALWAYS, _)                            \
  F(SCALAR, uint8_t, powerRampStep, 1, UMTS_ALWAYS, _)                          \
  F(SCALAR, uint32_t, max_SYNC_UL_Transmissions, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint8_t, mmax, 1, UMTS_ALWAYS, _)

#define umts_prach_chan_codes_lcr_r4_FIELDS(F) UMTS_LIST_FIELDS(F, uint32_t, uint32_t, codes, 4)

#define umts_fpach_info_r4_FIELDS(F)                                                                     \
  F(SCALAR, uint8_t, timeslot, 1, UMTS_ALWAYS, _)                                                       \
  F(SCALAR, uint32_t, channelisationCode, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_midamble_shift_and_burst_type_lcr_r4, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, uint8_t, wi, 1, UMTS_ALWAYS, _)

#define umts_prach_definition_lcr_r4_FIELDS(F)                                                           \
  F(SCALAR, uint8_t, timeslot, 1, UMTS_ALWAYS, _)                                                       \
  F(RECORD, umts_prach_chan_codes_lcr_r4, prach_ChanCodes_LCR, 1, UMTS_ALWAYS, _)                       \
  F(RECORD, umts_midamble_shift_and_burst_type_lcr_r4, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_fpach_info_r4, fpach_Info, 1, UMTS_ALWAYS, _)

#define umts_prach_definition_list_lcr_r4_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_prach_definition_lcr_r4, entries, 8)

#define umts_prach_rach_info_lcr_r4_FIELDS(F)                                               \
  F(RECORD, umts_sync_ul_info_r4, sync_UL_Info, 1, UMTS_ALWAYS, _)                         \
  F(RECORD, umts_prach_definition_list_lcr_r4, prach_DefinitionList, 1, UMTS_ALWAYS, _)

/* AccessServiceClass-TDD-LCR-r4: bit 0 availableSYNC_UlCodesIndics; subchannelSize as TDD. */
#define umts_access_service_class_tdd_lcr_r4_FIELDS(F)                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                   \
  F(RECORD, umts_bit_string32, availableSYNC_UlCodesIndics, 1, 0, _)                         \
  F(RECORD, umts_subchannel_size, subchannelSize, 1, UMTS_ALWAYS, _)

#define umts_asc_setting_tdd_lcr_r4_FIELDS(F)                                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                   \
  F(RECORD, umts_access_service_class_tdd_lcr_r4, accessServiceClass_TDD_LCR, 1, 0, _)

#define umts_prach_partitioning_lcr_r4_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_asc_setting_tdd_lcr_r4, entries, 8)

#define umts_prach_system_information_lcr_r4_FIELDS(F)                                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                              \
  F(RECORD, umts_prach_rach_info_lcr_r4, prach_RACH_Info_LCR, 1, UMTS_ALWAYS, _)                        \
  F(RECORD, umts_transport_format_set_lcr, rach_TransportFormatSet_LCR, 1, 0, _)                        \
  F(RECORD, umts_prach_partitioning_lcr_r4, prach_Partitioning_LCR, 1, 1, _)

#define umts_prach_system_information_list_lcr_r4_FIELDS(F) \
  UMTS_LIST_FIELDS(F, uint8_t, umts_prach_system_information_lcr_r4, entries, 16)

/* subchannelSize of AccessServiceClass-TDD-r7: 1 size1 (no value), 2 size2, 3..5 size4,
   size8, size16. */
#define umts_subchannel_size_r7_u_FIELDS(F)                     \
  F(RECORD, umts_subchannel_size2, size2, 1, 2, _)              \
  F(RECORD, umts_subchannel_size_bits, size4, 1, 3, _)          \
  F(RECORD, umts_subchannel_size_bits, size8, 1, 4, _)          \
  F(RECORD, umts_subchannel_size_bits, size16, 1, 5, _)
#define umts_subchannel_size_r7_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_subchannel_size_r7_u)

/* channelisationCodeIndices has 16 bits here (code indices 15 to 0): it is kept as a bit string
   of four octets, both octets of the codes copied, where the base class has one octet (the
   second octet, codes 7 to 0, would be lost). */
#define umts_access_service_class_tdd_r7_FIELDS(F)                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                           \
  F(RECORD, umts_bit_string32, channelisationCodeIndices, 1, 0, _)                   \
  F(RECORD, umts_subchannel_size_r7, subchannelSize, 1, UMTS_ALWAYS, _)

#define umts_asc_setting_tdd_r7_FIELDS(F)                                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                           \
  F(RECORD, umts_access_service_class_tdd_r7, accessServiceClass_TDD, 1, 0, _)

/* PRACH-Partitioning-r7 keeps an 8-bit count where PRACH-Partitioning has 32 bits. */
#define umts_prach_partitioning_r7_fdd_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_asc_setting_fdd, entries, 8)
#define umts_prach_partitioning_r7_tdd_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_asc_setting_tdd_r7, entries, 8)

#define umts_prach_partitioning_r7_u_FIELDS(F)                  \
  F(RECORD, umts_prach_partitioning_r7_fdd, fdd, 1, 1, _)       \
  F(RECORD, umts_prach_partitioning_r7_tdd, tdd, 1, 2, _)
#define umts_prach_partitioning_r7_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_prach_partitioning_r7_u)

/* TDD768-PRACH-CCodeList: 1 sf32, 2 sf16, and the codes of either. */
#define umts_tdd768_prach_ccode_list_FIELDS(F)           \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)          \
  F(ARRAY, uint32_t, codes, 16, UMTS_ALWAYS, count)

#define umts_prach_rach_info_vhcr_r7_FIELDS(F)                                          \
  F(SCALAR, uint8_t, timeslot, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_tdd768_prach_ccode_list, channelisationCodeList, 1, UMTS_ALWAYS, _)   \
  F(SCALAR, uint32_t, prach_Midamble, 1, UMTS_ALWAYS, _)

#define umts_prach_system_information_vhcr_r7_FIELDS(F)                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_prach_rach_info_vhcr_r7, prach_RACH_Info, 1, UMTS_ALWAYS, _)           \
  F(RECORD, umts_prach_partitioning_r7, prach_Partitioning_r7, 1, 0, _)

#define umts_prach_system_information_list_vhcr_r7_FIELDS(F) \
  UMTS_LIST_FIELDS(F, uint8_t, umts_prach_system_information_vhcr_r7, entries, 16)

/* The v770 tdd128 PRACH list: an E-RUCCH Sync-UL codes bitmap per PRACH. */
#define umts_prach_system_information_list_lcr_v770ext_FIELDS(F) \
  UMTS_LIST_FIELDS(F, uint8_t, umts_bit_string32, e_RUCCH_Sync_UL_Codes_Bitmap, 16)

/* ==== 1.28 Mcps S-CCPCH extensions and PICH ================================================ */

#define umts_pich_channelisation_code_list_lcr_r4_FIELDS(F) UMTS_LIST_FIELDS(F, uint32_t, uint32_t, entries, 2)

/* PICH-Info-LCR-r4: bit 0 timeslot, bit 1 repetitionPeriodLengthOffset. */
#define umts_pich_info_lcr_r4_FIELDS(F)                                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                  \
  F(SCALAR, uint8_t, timeslot, 1, 0, _)                                                                     \
  F(RECORD, umts_pich_channelisation_code_list_lcr_r4, pichChannelisationCodeList_LCR_r4, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_midamble_shift_and_burst_type_lcr_r4, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _)        \
  F(RECORD, umts_rep_per_length_offset_pich, repetitionPeriodLengthOffset, 1, 1, _)                         \
  F(SCALAR, uint32_t, pagingIndicatorLength, 1, UMTS_ALWAYS, _)                                             \
  F(SCALAR, uint32_t, n_GAP, 1, UMTS_ALWAYS, _)                                                             \
  F(SCALAR, uint8_t, n_PCH, 1, UMTS_ALWAYS, _)

#define umts_individual_timeslot_info_lcr_r4_ext_FIELDS(F)                                               \
  F(RECORD, umts_midamble_shift_and_burst_type_lcr_r4, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, uint32_t, modulation, 1, UMTS_ALWAYS, _)                                                    \
  F(SCALAR, uint32_t, ss_TPC_Symbols, 1, UMTS_ALWAYS, _)

#define umts_sccpch_system_information_lcr_r4_ext_FIELDS(F)                                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                              \
  F(RECORD, umts_individual_timeslot_info_lcr_r4_ext, individualTimeslotLCR_Ext, 1, UMTS_ALWAYS, _)     \
  F(RECORD, umts_pich_info_lcr_r4, pich_Info, 1, 0, _)

#define umts_sccpch_system_information_list_lcr_r4_ext_FIELDS(F) \
  UMTS_LIST_FIELDS(F, uint8_t, umts_sccpch_system_information_lcr_r4_ext, entries, 16)

/* tdd128SpecificInfo of v4b0: bit 0 PUSCH, 1 PDSCH, 2 pCCPCH_LCR_Extensions (tstd_Indicator). */
#define umts_sib5_tdd128_specific_info_FIELDS(F)                                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                \
  F(RECORD, umts_pusch_sysinfo_list_sfn_lcr_r4, pusch_SysInfoList_SFN, 1, 0, _)                           \
  F(RECORD, umts_pdsch_sysinfo_list_sfn_lcr_r4, pdsch_SysInfoList_SFN, 1, 1, _)                           \
  F(BOOL, uint8_t, tstd_Indicator, 1, 2, _)                                                               \
  F(RECORD, umts_sccpch_system_information_list_lcr_r4_ext, sCCPCH_LCR_ExtensionsList, 1, UMTS_ALWAYS, _)

/* hcr_r5_SpecificInfo of v590: bit 0 PUSCH, 1 PDSCH. */
#define umts_sib5_hcr_r5_specific_info_FIELDS(F)                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_pusch_sysinfo_list_sfn_hcr_r5, pusch_SysInfoList_SFN, 1, 0, _)         \
  F(RECORD, umts_pdsch_sysinfo_list_sfn_hcr_r5, pdsch_SysInfoList_SFN, 1, 1, _)

/* ==== HCR/VHCR S-CCPCH of v770 ============================================================= */

#define umts_sccpch_channelisation_code_list_vhcr_FIELDS(F) UMTS_LIST_FIELDS(F, uint32_t, uint32_t, codes, 32)

#define umts_secondary_ccpch_info_hcr_vhcr_r7_tdd384_FIELDS(F)                                  \
  F(RECORD, umts_individual_timeslot_info_r7, individualTimeslotInfo, 1, UMTS_ALWAYS, _)       \
  F(RECORD, umts_sccpch_channelisation_code_list, channelisationCode, 1, UMTS_ALWAYS, _)
#define umts_secondary_ccpch_info_hcr_vhcr_r7_tdd768_FIELDS(F)                                  \
  F(RECORD, umts_individual_timeslot_info_vhcr, individualTimeslotInfo, 1, UMTS_ALWAYS, _)     \
  F(RECORD, umts_sccpch_channelisation_code_list_vhcr, channelisationCode, 1, UMTS_ALWAYS, _)
#define umts_secondary_ccpch_info_hcr_vhcr_r7_u_FIELDS(F)                       \
  F(RECORD, umts_secondary_ccpch_info_hcr_vhcr_r7_tdd384, tdd384, 1, 1, _)      \
  F(RECORD, umts_secondary_ccpch_info_hcr_vhcr_r7_tdd768, tdd768, 1, 2, _)
#define umts_secondary_ccpch_info_hcr_vhcr_r7_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_secondary_ccpch_info_hcr_vhcr_r7_u)

#define umts_pich_channelisation_code_hcr_vhcr_r7_u_FIELDS(F) \
  F(SCALAR, uint32_t, tdd384, 1, 1, _)                        \
  F(SCALAR, uint32_t, tdd768, 1, 2, _)
#define umts_pich_channelisation_code_hcr_vhcr_r7_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_pich_channelisation_code_hcr_vhcr_r7_u)

#define umts_pich_info_hcr_vhcr_r7_FIELDS(F)                                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_pich_channelisation_code_hcr_vhcr_r7, channelisationCode, 1, 0, _)                   \
  F(SCALAR, uint8_t, timeslot, 1, 1, _)                                                               \
  F(RECORD, umts_midamble_shift_and_burst_type, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_rep_per_length_offset_pich, repetitionPeriodLengthOffset, 1, 2, _)                   \
  F(SCALAR, uint32_t, pagingIndicatorLength, 1, UMTS_ALWAYS, _)                                       \
  F(SCALAR, uint32_t, n_GAP, 1, UMTS_ALWAYS, _)                                                       \
  F(SCALAR, uint8_t, n_PCH, 1, UMTS_ALWAYS, _)

/* Here each member has its own bit: 0 tfcs, 1 fach_PCH_InformationList, 2 pich_Info. */
#define umts_sccpch_system_information_hcr_vhcr_r7_FIELDS(F)                                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                           \
  F(RECORD, umts_secondary_ccpch_info_hcr_vhcr_r7, secondaryCCPCH_Info, 1, UMTS_ALWAYS, _)           \
  F(RECORD, umts_tfcs, tfcs, 1, 0, _)                                                                \
  F(RECORD, umts_fach_pch_information_list, fach_PCH_InformationList, 1, 1, _)                       \
  F(RECORD, umts_pich_info_hcr_vhcr_r7, pich_Info, 1, 2, _)

#define umts_sccpch_system_information_list_hcr_vhcr_r7_FIELDS(F) \
  UMTS_LIST_FIELDS(F, uint8_t, umts_sccpch_system_information_hcr_vhcr_r7, entries, 16)

/* ==== MBMS S-CCPCH of v690 (r6) and v770 (r7) ============================================== */

#define umts_um_rlc_out_o_seq_delivery_info_FIELDS(F)            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, timer_OSD, 1, 0, _)                       \
  F(SCALAR, uint32_t, windowSize_OSD, 1, UMTS_ALWAYS, _)

#define umts_rlc_info_mcch_FIELDS(F)                                                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                          \
  F(SCALAR, uint32_t, dl_UM_RLC_LI_size, 1, UMTS_ALWAYS, _)                                         \
  F(RECORD, umts_um_rlc_out_o_seq_delivery_info, dl_UM_RLC_OutOSeqDelivery_Info, 1, 0, _)

#define umts_mbms_mcch_configuration_info_FIELDS(F)                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                   \
  F(SCALAR, uint8_t, accessInfoPeriodCoefficient, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, repetitionPeriodCoefficient, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, modificationPeriodCoefficient, 1, UMTS_ALWAYS, _)       \
  F(RECORD, umts_rlc_info_mcch, rlc_Info, 1, UMTS_ALWAYS, _)                 \
  F(SCALAR, uint32_t, tctf_Presence, 1, 0, _)

#define umts_fach_carrying_mcch_FIELDS(F)                                                   \
  F(RECORD, umts_transport_format_set, mcch_transportFormatSet, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_mbms_mcch_configuration_info, mcch_ConfigurationInfo, 1, UMTS_ALWAYS, _)

#define umts_fach_carrying_mtch_list_FIELDS(F) UMTS_LIST_FIELDS(F, uint8_t, umts_transport_format_set, entries, 8)

/* MBMS-MSCHSchedulingInfo: 1..6 schedulingPeriod_32 .. 1024, the offset. */
#define umts_mbms_msch_scheduling_info_FIELDS(F)         \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint32_t, offset, 1, UMTS_ALWAYS, _)

/* fachCarryingMSCH of r6: the format set, then (bit 0) the scheduling, (bit 1) the RLC LI
   size, (bit 2) the TCTF presence. */
#define umts_fach_carrying_msch_r6_FIELDS(F)                                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                  \
  F(RECORD, umts_transport_format_set, msch_transportFormatSet, 1, UMTS_ALWAYS, _)          \
  F(RECORD, umts_mbms_msch_scheduling_info, mschShedulingInfo, 1, 0, _)                     \
  F(SCALAR, uint32_t, dl_UM_RLC_LI_size, 1, 1, _)                                           \
  F(SCALAR, uint32_t, tctf_Presence, 1, 2, _)

#define umts_fach_carrying_msch_r7_FIELDS(F) \
  F(RECORD, umts_transport_format_set, msch_transportFormatSet, 1, UMTS_ALWAYS, _)

#define umts_common_timeslot_info_mbms_FIELDS(F)                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)            \
  F(SCALAR, uint32_t, secondInterleavingMode, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, tfci_Coding, 1, 0, _)                           \
  F(SCALAR, uint32_t, puncturingLimit, 1, UMTS_ALWAYS, _)

/* The fdd alternative; bit 0 secondaryScramblingCode (r7: bit 1 modulation). */
#define UMTS_SECONDARY_CCPCH_MBMS_FDD_FIELDS(F)                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(SCALAR, uint8_t, secondaryScramblingCode, 1, 0, _)                                  \
  F(BOOL, uint8_t, sttd_Indicator, 1, UMTS_ALWAYS, _)                                   \
  F(RECORD, umts_sf256_and_code_number, sf_AndCodeNumber, 1, UMTS_ALWAYS, _)            \
  F(SCALAR, uint8_t, timingOffset, 1, UMTS_ALWAYS, _)

#define UMTS_SECONDARY_CCPCH_MBMS_TDD_FIELDS(F, codes_type)                                  \
  F(RECORD, umts_common_timeslot_info_mbms, commonTimeslotInfoMBMS, 1, UMTS_ALWAYS, _)      \
  F(RECORD, codes_type, downlinkTimeslotsCodes, 1, UMTS_ALWAYS, _)

#define umts_secondary_ccpch_info_mbms_r6_fdd_FIELDS(F) UMTS_SECONDARY_CCPCH_MBMS_FDD_FIELDS(F)
#define umts_secondary_ccpch_info_mbms_r6_tdd384_FIELDS(F) UMTS_SECONDARY_CCPCH_MBMS_TDD_FIELDS(F, umts_downlink_timeslots_codes)
#define umts_secondary_ccpch_info_mbms_r6_tdd128_FIELDS(F) UMTS_SECONDARY_CCPCH_MBMS_TDD_FIELDS(F, umts_downlink_timeslots_codes_lcr_r4)
/* SecondaryCCPCHInfo-MBMS-r6: 1 fdd, 2 tdd384, 3 tdd128. */
#define umts_secondary_ccpch_info_mbms_r6_u_FIELDS(F)                         \
  F(RECORD, umts_secondary_ccpch_info_mbms_r6_fdd, fdd, 1, 1, _)              \
  F(RECORD, umts_secondary_ccpch_info_mbms_r6_tdd384, tdd384, 1, 2, _)        \
  F(RECORD, umts_secondary_ccpch_info_mbms_r6_tdd128, tdd128, 1, 3, _)
#define umts_secondary_ccpch_info_mbms_r6_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_secondary_ccpch_info_mbms_r6_u)

/* modulation of the r7 fdd alternative: 1 modQPSK (no value), 2 mod16QAM. */
#define umts_mbms_fdd_modulation_u_FIELDS(F) F(SCALAR, int8_t, mod16QAM, 1, 2, _)
#define umts_mbms_fdd_modulation_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_mbms_fdd_modulation_u)

#define umts_secondary_ccpch_info_mbms_r7_fdd_FIELDS(F) \
  UMTS_SECONDARY_CCPCH_MBMS_FDD_FIELDS(F)              \
  F(RECORD, umts_mbms_fdd_modulation, modulation, 1, 1, _)
#define umts_secondary_ccpch_info_mbms_r7_tdd384_FIELDS(F)                          \
  UMTS_SECONDARY_CCPCH_MBMS_TDD_FIELDS(F, umts_downlink_timeslots_codes_r7)         \
  F(SCALAR, uint32_t, modulation, 1, UMTS_ALWAYS, _)
#define umts_secondary_ccpch_info_mbms_r7_tdd768_FIELDS(F)                          \
  UMTS_SECONDARY_CCPCH_MBMS_TDD_FIELDS(F, umts_downlink_timeslots_codes_vhcr)       \
  F(SCALAR, uint32_t, modulation, 1, UMTS_ALWAYS, _)
/* The tdd128 form begins with a word of its own (never written: zero), so that its members
   sit one word later than those of tdd384 and tdd768. mbsfnSpecialTimeSlot and modulation are
   copied together whatever the message's option says; no bit marks the special timeslot. */
#define umts_secondary_ccpch_info_mbms_r7_tdd128_FIELDS(F)                          \
  F(SCALAR, uint32_t, spare, 1, UMTS_ALWAYS, _)                                     \
  UMTS_SECONDARY_CCPCH_MBMS_TDD_FIELDS(F, umts_downlink_timeslots_codes_lcr_r4)     \
  F(SCALAR, uint32_t, mbsfnSpecialTimeSlot, 1, UMTS_ALWAYS, _)                      \
  F(SCALAR, uint32_t, modulation, 1, UMTS_ALWAYS, _)
/* SecondaryCCPCHInfo-MBMS-r7: 1 fdd, 2 tdd384, 3 tdd768, 4 tdd128. */
#define umts_secondary_ccpch_info_mbms_r7_u_FIELDS(F)                         \
  F(RECORD, umts_secondary_ccpch_info_mbms_r7_fdd, fdd, 1, 1, _)              \
  F(RECORD, umts_secondary_ccpch_info_mbms_r7_tdd384, tdd384, 1, 2, _)        \
  F(RECORD, umts_secondary_ccpch_info_mbms_r7_tdd768, tdd768, 1, 3, _)        \
  F(RECORD, umts_secondary_ccpch_info_mbms_r7_tdd128, tdd128, 1, 4, _)
#define umts_secondary_ccpch_info_mbms_r7_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_secondary_ccpch_info_mbms_r7_u)

/* SCCPCH-SystemInformation-MBMS: bit 0 fachCarryingMTCH_List, bit 1 fachCarryingMSCH. */
#define UMTS_SCCPCH_MBMS_FIELDS(F, info_type, msch_type)                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, info_type, secondaryCCPCHInfo_MBMS, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_tfcs, transportFormatCombinationSet, 1, UMTS_ALWAYS, _)                        \
  F(RECORD, umts_fach_carrying_mcch, fachCarryingMCCH, 1, UMTS_ALWAYS, _)                       \
  F(RECORD, umts_fach_carrying_mtch_list, fachCarryingMTCH_List, 1, 0, _)                       \
  F(RECORD, msch_type, fachCarryingMSCH, 1, 1, _)
#define umts_sccpch_system_information_mbms_r6_FIELDS(F) \
  UMTS_SCCPCH_MBMS_FIELDS(F, umts_secondary_ccpch_info_mbms_r6, umts_fach_carrying_msch_r6)
#define umts_sccpch_system_information_mbms_r7_FIELDS(F) \
  UMTS_SCCPCH_MBMS_FIELDS(F, umts_secondary_ccpch_info_mbms_r7, umts_fach_carrying_msch_r7)

/* sccpch_SystemInformation_MBMS of v690: 1 mcchOnSCCPCHusedForNonMBMS (the MCCH
   configuration), 2 mcchOnSCCPCHusedOnlyForMBMS. */
#define umts_sib5_v690_sccpch_mbms_u_FIELDS(F)                                                   \
  F(RECORD, umts_mbms_mcch_configuration_info, mcchOnSCCPCHusedForNonMBMS, 1, 1, _)             \
  F(RECORD, umts_sccpch_system_information_mbms_r6, mcchOnSCCPCHusedOnlyForMBMS, 1, 2, _)
#define umts_sib5_v690_sccpch_mbms_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_sib5_v690_sccpch_mbms_u)

/* sccpch_SystemInformation_MBMS of v770: 1 mcchOnSCCPCHusedOnlyForMBMS; other tags are kept. */
#define umts_sib5_v770_sccpch_mbms_u_FIELDS(F) \
  F(RECORD, umts_sccpch_system_information_mbms_r7, mcchOnSCCPCHusedOnlyForMBMS, 1, 1, _)
#define umts_sib5_v770_sccpch_mbms_FIELDS(F) UMTS_CHOICE_FIELDS(F, umts_sib5_v770_sccpch_mbms_u)

/* additionalPRACH-TF-and-TFCS-CCCH: bit 0 its IEs. */
#define umts_additional_prach_tf_and_tfcs_ccch_FIELDS(F)                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                         \
  F(RECORD, umts_power_offset_information, powerOffsetInformation, 1, 0, _)                        \
  F(RECORD, umts_octet_mode_rlc_size_info_type2, dynamicTFInformationCCCH, 1, 0, _)
#define umts_additional_prach_tf_and_tfcs_ccch_list_FIELDS(F) \
  UMTS_LIST_FIELDS(F, uint8_t, umts_additional_prach_tf_and_tfcs_ccch, entries, 16)

/* Every record of this header, each after the records it holds. */
#define UMTS_SIB5_TDD_RECORDS(X)                                        \
  X(RECORD, umts_timeslot_same_as_last)                                 \
  X(RECORD, umts_consecutive_timeslots)                                 \
  X(RECORD, umts_ul_ts_channelisation_code_list)                        \
  X(RECORD, umts_dl_ts_channelisation_codes_consecutive)                \
  X(UNION, umts_dl_ts_channelisation_codes_short_u)                     \
  X(RECORD, umts_dl_ts_channelisation_codes_short)                      \
  X(RECORD, umts_dl_ts_channelisation_codes_short_vhcr)                 \
  X(RECORD, umts_midamble_shift_and_burst_type_r7)                      \
  X(RECORD, umts_midamble_shift_and_burst_type_vhcr)                    \
  X(RECORD, umts_individual_timeslot_info_r7)                           \
  X(RECORD, umts_individual_timeslot_info_vhcr)                         \
  X(RECORD, umts_midamble_shift_and_burst_type_lcr_r4)                  \
  X(RECORD, umts_individual_timeslot_info_lcr_r4)                       \
  UMTS_TS_UPLINK_RECORDS(X, )                                           \
  UMTS_TS_UPLINK_RECORDS(X, _lcr_r4)                                    \
  UMTS_TS_UPLINK_RECORDS(X, _vhcr)                                      \
  UMTS_TS_DOWNLINK_RECORDS(X, )                                         \
  UMTS_TS_DOWNLINK_RECORDS(X, _lcr_r4)                                  \
  UMTS_TS_DOWNLINK_RECORDS(X, _vhcr)                                    \
  X(RECORD, umts_downlink_additional_timeslots_new_parameters_r7)       \
  X(UNION, umts_downlink_additional_timeslots_r7_u)                     \
  X(RECORD, umts_downlink_additional_timeslots_r7)                      \
  X(RECORD, umts_downlink_timeslot_list_r7)                             \
  X(UNION, umts_downlink_additional_timeslots_choice_r7_u)              \
  X(RECORD, umts_downlink_additional_timeslots_choice_r7)               \
  X(RECORD, umts_downlink_more_timeslots_r7)                            \
  X(RECORD, umts_downlink_timeslots_codes_r7)                           \
  X(RECORD, umts_sfn_time_info)                                         \
  X(RECORD, umts_usch_transport_channel)                                \
  X(RECORD, umts_usch_transport_channels_info)                          \
  X(RECORD, umts_dsch_transport_channel)                                \
  X(RECORD, umts_dsch_transport_channels_info)                          \
  X(RECORD, umts_pusch_info)                                            \
  X(RECORD, umts_pusch_sys_info)                                        \
  X(RECORD, umts_pusch_sysinfo_sfn)                                     \
  X(RECORD, umts_pusch_sysinfo_list_sfn)                                \
  X(RECORD, umts_pdsch_info)                                            \
  X(RECORD, umts_pdsch_sys_info)                                        \
  X(RECORD, umts_pdsch_sysinfo_sfn)                                     \
  X(RECORD, umts_pdsch_sysinfo_list_sfn)                                \
  X(RECORD, umts_pusch_info_lcr_r4)                                     \
  X(RECORD, umts_pusch_sys_info_lcr_r4)                                 \
  X(RECORD, umts_pusch_sysinfo_sfn_lcr_r4)                              \
  X(RECORD, umts_pusch_sysinfo_list_sfn_lcr_r4)                         \
  X(RECORD, umts_pdsch_info_lcr_r4)                                     \
  X(RECORD, umts_pdsch_sys_info_lcr_r4)                                 \
  X(RECORD, umts_pdsch_sysinfo_sfn_lcr_r4)                              \
  X(RECORD, umts_pdsch_sysinfo_list_sfn_lcr_r4)                         \
  X(RECORD, umts_pusch_sys_info_hcr_r5)                                 \
  X(RECORD, umts_pusch_sysinfo_sfn_hcr_r5)                              \
  X(RECORD, umts_pusch_sysinfo_list_sfn_hcr_r5)                         \
  X(RECORD, umts_pdsch_sys_info_hcr_r5)                                 \
  X(RECORD, umts_pdsch_sysinfo_sfn_hcr_r5)                              \
  X(RECORD, umts_pdsch_sysinfo_list_sfn_hcr_r5)                         \
  X(RECORD, umts_pusch_info_vhcr)                                       \
  X(RECORD, umts_pusch_sys_info_vhcr)                                   \
  X(RECORD, umts_pusch_sysinfo_sfn_vhcr)                                \
  X(RECORD, umts_pusch_sysinfo_list_sfn_vhcr)                           \
  X(RECORD, umts_pdsch_info_r7_tdd384)                                  \
  X(RECORD, umts_pdsch_info_r7_tdd768)                                  \
  X(RECORD, umts_pdsch_info_r7_tdd128)                                  \
  X(UNION, umts_pdsch_info_r7_tdd_option_u)                             \
  X(RECORD, umts_pdsch_info_r7_tdd_option)                              \
  X(RECORD, umts_pdsch_info_r7)                                         \
  X(RECORD, umts_pdsch_sys_info_vhcr_r7)                                \
  X(RECORD, umts_pdsch_sysinfo_list_vhcr_r7)                            \
  X(RECORD, umts_sync_ul_info_r4)                                       \
  X(RECORD, umts_prach_chan_codes_lcr_r4)                               \
  X(RECORD, umts_fpach_info_r4)                                         \
  X(RECORD, umts_prach_definition_lcr_r4)                               \
  X(RECORD, umts_prach_definition_list_lcr_r4)                          \
  X(RECORD, umts_prach_rach_info_lcr_r4)                                \
  X(RECORD, umts_access_service_class_tdd_lcr_r4)                       \
  X(RECORD, umts_asc_setting_tdd_lcr_r4)                                \
  X(RECORD, umts_prach_partitioning_lcr_r4)                             \
  X(RECORD, umts_prach_system_information_lcr_r4)                       \
  X(RECORD, umts_prach_system_information_list_lcr_r4)                  \
  X(UNION, umts_subchannel_size_r7_u)                                   \
  X(RECORD, umts_subchannel_size_r7)                                    \
  X(RECORD, umts_access_service_class_tdd_r7)                           \
  X(RECORD, umts_asc_setting_tdd_r7)                                    \
  X(RECORD, umts_prach_partitioning_r7_fdd)                             \
  X(RECORD, umts_prach_partitioning_r7_tdd)                             \
  X(UNION, umts_prach_partitioning_r7_u)                                \
  X(RECORD, umts_prach_partitioning_r7)                                 \
  X(RECORD, umts_tdd768_prach_ccode_list)                               \
  X(RECORD, umts_prach_rach_info_vhcr_r7)                               \
  X(RECORD, umts_prach_system_information_vhcr_r7)                      \
  X(RECORD, umts_prach_system_information_list_vhcr_r7)                 \
  X(RECORD, umts_prach_system_information_list_lcr_v770ext)             \
  X(RECORD, umts_pich_channelisation_code_list_lcr_r4)                  \
  X(RECORD, umts_pich_info_lcr_r4)                                      \
  X(RECORD, umts_individual_timeslot_info_lcr_r4_ext)                   \
  X(RECORD, umts_sccpch_system_information_lcr_r4_ext)                  \
  X(RECORD, umts_sccpch_system_information_list_lcr_r4_ext)             \
  X(RECORD, umts_sib5_tdd128_specific_info)                             \
  X(RECORD, umts_sib5_hcr_r5_specific_info)                             \
  X(RECORD, umts_sccpch_channelisation_code_list_vhcr)                  \
  X(RECORD, umts_secondary_ccpch_info_hcr_vhcr_r7_tdd384)               \
  X(RECORD, umts_secondary_ccpch_info_hcr_vhcr_r7_tdd768)               \
  X(UNION, umts_secondary_ccpch_info_hcr_vhcr_r7_u)                     \
  X(RECORD, umts_secondary_ccpch_info_hcr_vhcr_r7)                      \
  X(UNION, umts_pich_channelisation_code_hcr_vhcr_r7_u)                 \
  X(RECORD, umts_pich_channelisation_code_hcr_vhcr_r7)                  \
  X(RECORD, umts_pich_info_hcr_vhcr_r7)                                 \
  X(RECORD, umts_sccpch_system_information_hcr_vhcr_r7)                 \
  X(RECORD, umts_sccpch_system_information_list_hcr_vhcr_r7)            \
  X(RECORD, umts_um_rlc_out_o_seq_delivery_info)                        \
  X(RECORD, umts_rlc_info_mcch)                                         \
  X(RECORD, umts_mbms_mcch_configuration_info)                          \
  X(RECORD, umts_fach_carrying_mcch)                                    \
  X(RECORD, umts_fach_carrying_mtch_list)                               \
  X(RECORD, umts_mbms_msch_scheduling_info)                             \
  X(RECORD, umts_fach_carrying_msch_r6)                                 \
  X(RECORD, umts_fach_carrying_msch_r7)                                 \
  X(RECORD, umts_common_timeslot_info_mbms)                             \
  X(RECORD, umts_secondary_ccpch_info_mbms_r6_fdd)                      \
  X(RECORD, umts_secondary_ccpch_info_mbms_r6_tdd384)                   \
  X(RECORD, umts_secondary_ccpch_info_mbms_r6_tdd128)                   \
  X(UNION, umts_secondary_ccpch_info_mbms_r6_u)                         \
  X(RECORD, umts_secondary_ccpch_info_mbms_r6)                          \
  X(UNION, umts_mbms_fdd_modulation_u)                                  \
  X(RECORD, umts_mbms_fdd_modulation)                                   \
  X(RECORD, umts_secondary_ccpch_info_mbms_r7_fdd)                      \
  X(RECORD, umts_secondary_ccpch_info_mbms_r7_tdd384)                   \
  X(RECORD, umts_secondary_ccpch_info_mbms_r7_tdd768)                   \
  X(RECORD, umts_secondary_ccpch_info_mbms_r7_tdd128)                   \
  X(UNION, umts_secondary_ccpch_info_mbms_r7_u)                         \
  X(RECORD, umts_secondary_ccpch_info_mbms_r7)                          \
  X(RECORD, umts_sccpch_system_information_mbms_r6)                     \
  X(RECORD, umts_sccpch_system_information_mbms_r7)                     \
  X(UNION, umts_sib5_v690_sccpch_mbms_u)                                \
  X(RECORD, umts_sib5_v690_sccpch_mbms)                                 \
  X(UNION, umts_sib5_v770_sccpch_mbms_u)                                \
  X(RECORD, umts_sib5_v770_sccpch_mbms)                                 \
  X(RECORD, umts_additional_prach_tf_and_tfcs_ccch)                     \
  X(RECORD, umts_additional_prach_tf_and_tfcs_ccch_list)

/* The records of an uplink or downlink timeslot family, by the suffix of its names. */
#define UMTS_TS_UPLINK_RECORDS(X, s)                                    \
  X(RECORD, umts_uplink_additional_timeslots_new_parameters##s)         \
  X(UNION, umts_uplink_additional_timeslots##s##_u)                     \
  X(RECORD, umts_uplink_additional_timeslots##s)                        \
  X(RECORD, umts_uplink_timeslot_list##s)                               \
  X(UNION, umts_uplink_additional_timeslots_choice##s##_u)              \
  X(RECORD, umts_uplink_additional_timeslots_choice##s)                 \
  X(UNION, umts_uplink_more_timeslots##s##_u)                           \
  X(RECORD, umts_uplink_more_timeslots##s)                              \
  X(RECORD, umts_uplink_timeslots_codes##s)
#define UMTS_TS_DOWNLINK_RECORDS(X, s)                                  \
  X(RECORD, umts_downlink_additional_timeslots_new_parameters##s)       \
  X(UNION, umts_downlink_additional_timeslots##s##_u)                   \
  X(RECORD, umts_downlink_additional_timeslots##s)                      \
  X(RECORD, umts_downlink_timeslot_list##s)                             \
  X(UNION, umts_downlink_additional_timeslots_choice##s##_u)            \
  X(RECORD, umts_downlink_additional_timeslots_choice##s)               \
  X(UNION, umts_downlink_more_timeslots##s##_u)                         \
  X(RECORD, umts_downlink_more_timeslots##s)                            \
  X(RECORD, umts_downlink_timeslots_codes##s)

#endif /* UMTS_SIB_SIB5_TDD_H */
