/*
 * SIB16: the radio bearer part of a predefined configuration, umts_sib16_info. It stands
 * outside umts_sib_set: umts_convert_sib16 is called by the host with a runtime context of
 * its own (the library's driver never runs it).
 *
 * Open lists. srb_InformationList, rb_InformationList, rb_MappingInfo,
 * dl_LogicalChannelMappingList and headerCompressionInfoList are a count with no entries
 * behind it in their record: entry 0 starts right after the count, at the first address
 * aligned for the entry (umts_sib16_entries), entry n + 1 right after entry n, over whatever
 * follows the list. So an entry that ends in an open list has its nested entries written over
 * the next entry, which its own conversion then writes over in turn: only what the last
 * writer left stands. The SRB entries start where rb_InformationList stands and are written
 * over by the RB list, converted second. umts_sib16_entries gives the address of an entry for
 * reading; the accessors below give the lists of the record.
 *
 * Writes beyond its count: every open list, and the sizes of an rlc_SizeList explicitList,
 * packed after its count (the first three in `sizes`, the fourth under
 * mac_LogicalChannelPriority, stored afterwards, the rest over what follows).
 *
 * The lists run into open_list_room, which holds what the longest lists write:
 * UMTS_SIB16_OPEN_LIST_ROOM bytes (1,700; the record is 1,712 bytes), enough for 8 SRBs and
 * 8 RBs, each with 8 mapping options of 2 downlink mappings and 32 RLC sizes, and 8 header
 * compression entries per RB: the furthest of those writes ends at byte 1,708
 * (umts_sib16_furthest_write, checked when the library is built). No write goes beyond the
 * record. (The exported decode_/fill_ functions, called on their own, write the same way
 * after the list they are given: give them a list inside a umts_sib16_info.)
 */
#ifndef UMTS_SIB_SIB16_H
#define UMTS_SIB_SIB16_H

#include <stddef.h>

#include "umts_sib_record_macros.h"

#define UMTS_SIB16_OPEN_LIST_ROOM 1700

/* A list written past its record: the count alone. */
#define umts_sib16_open_list_FIELDS(F) F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)

#define umts_sib16_explicit_discard_FIELDS(F)        \
  F(SCALAR, uint32_t, timerMRW, 1, UMTS_ALWAYS, _)   \
  F(SCALAR, uint32_t, timerDiscard, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint32_t, maxMRW, 1, UMTS_ALWAYS, _)

#define umts_sib16_max_dat_retransmissions_FIELDS(F) \
  F(SCALAR, uint32_t, maxDAT, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint32_t, timerMRW, 1, UMTS_ALWAYS, _)   \
  F(SCALAR, uint32_t, maxMRW, 1, UMTS_ALWAYS, _)

/* TransmissionRLC-Discard: 1 timerBasedExplicit, 2 timerBasedNoExplicit, 3
   maxDAT-Retransmissions, 4 noDiscard. */
#define umts_sib16_transmission_rlc_discard_u_FIELDS(F)                                   \
  F(RECORD, umts_sib16_explicit_discard, timerBasedExplicit, 1, 1, _)                     \
  F(SCALAR, uint32_t, timerBasedNoExplicit, 1, 2, _)                                      \
  F(RECORD, umts_sib16_max_dat_retransmissions, maxDAT_Retransmissions, 1, 3, _)          \
  F(SCALAR, uint32_t, noDiscard, 1, 4, _)

#define umts_sib16_transmission_rlc_discard_FIELDS(F)    \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib16_transmission_rlc_discard_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_sib16_polling_info_FIELDS(F)                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint32_t, timerPollProhibit, 1, 0, _)                      \
  F(SCALAR, uint32_t, timerPoll, 1, 1, _)                              \
  F(SCALAR, uint32_t, poll_PDU, 1, 2, _)                               \
  F(SCALAR, uint32_t, poll_SDU, 1, 3, _)                               \
  F(BOOL, uint8_t, lastTransmissionPDU_Poll, 1, UMTS_ALWAYS, _)        \
  F(BOOL, uint8_t, lastRetransmissionPDU_Poll, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, pollWindow, 1, 4, _)                             \
  F(SCALAR, uint32_t, timerPollPeriodic, 1, 5, _)

#define umts_sib16_ul_am_rlc_mode_FIELDS(F)                                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                   \
  F(RECORD, umts_sib16_transmission_rlc_discard, transmissionRLC_Discard, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint32_t, transmissionWindowSize, 1, UMTS_ALWAYS, _)                             \
  F(SCALAR, uint32_t, timerRST, 1, UMTS_ALWAYS, _)                                           \
  F(SCALAR, uint32_t, max_RST, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_sib16_polling_info, pollingInfo, 1, 0, _)

#define umts_sib16_ul_um_rlc_mode_FIELDS(F)                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                         \
  F(RECORD, umts_sib16_transmission_rlc_discard, transmissionRLC_Discard, 1, 0, _)

#define umts_sib16_ul_tm_rlc_mode_FIELDS(F)                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                         \
  F(RECORD, umts_sib16_transmission_rlc_discard, transmissionRLC_Discard, 1, 0, _) \
  F(BOOL, uint8_t, segmentationIndication, 1, UMTS_ALWAYS, _)

#define umts_sib16_ul_rlc_mode_u_FIELDS(F)                           \
  F(RECORD, umts_sib16_ul_am_rlc_mode, ul_AM_RLC_Mode, 1, 1, _)      \
  F(RECORD, umts_sib16_ul_um_rlc_mode, ul_UM_RLC_Mode, 1, 2, _)      \
  F(RECORD, umts_sib16_ul_tm_rlc_mode, ul_TM_RLC_Mode, 1, 3, _)

#define umts_sib16_ul_rlc_mode_FIELDS(F)                 \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib16_ul_rlc_mode_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_sib16_dl_rlc_status_info_FIELDS(F)                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)       \
  F(SCALAR, uint32_t, timerStatusProhibit, 1, 0, _)              \
  F(SCALAR, uint32_t, dummy, 1, 1, _)                            \
  F(BOOL, uint8_t, missingPDU_Indicator, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, timerStatusPeriodic, 1, 2, _)

#define umts_sib16_dl_am_rlc_mode_FIELDS(F)                                        \
  F(BOOL, uint8_t, inSequenceDelivery, 1, UMTS_ALWAYS, _)                          \
  F(SCALAR, uint32_t, receivingWindowSize, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_sib16_dl_rlc_status_info, dl_RLC_StatusInfo, 1, UMTS_ALWAYS, _)

/* DL-RLC-Mode as the conversion reads it: tag 1 the AM mode, tag 2 (the message's
   dl-UM-RLC-Mode) a TM segmentation indication; the message's TM (tag 3) keeps its tag only. */
#define umts_sib16_dl_rlc_mode_u_FIELDS(F)                            \
  F(RECORD, umts_sib16_dl_am_rlc_mode, dl_AM_RLC_Mode, 1, 1, _)       \
  F(BOOL, uint8_t, segmentationIndication, 1, 2, _)

#define umts_sib16_dl_rlc_mode_FIELDS(F)                 \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib16_dl_rlc_mode_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_sib16_rlc_info_FIELDS(F)                              \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib16_ul_rlc_mode, ul_RLC_Mode, 1, 0, _)          \
  F(RECORD, umts_sib16_dl_rlc_mode, dl_RLC_Mode, 1, 1, _)

#define umts_sib16_rlc_info_choice_u_FIELDS(F)                 \
  F(RECORD, umts_sib16_rlc_info, rlc_Info, 1, 1, _)            \
  F(SCALAR, uint8_t, same_as_RB, 1, 2, _)

#define umts_sib16_rlc_info_choice_FIELDS(F)             \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib16_rlc_info_choice_u, u, 1, UMTS_ALWAYS, choice_tag)

/* UL-TransportChannelType: 1 dch, 2 rach, 3 dummy, 4 usch. */
#define umts_sib16_ul_transport_channel_type_u_FIELDS(F) \
  F(SCALAR, uint8_t, dch, 1, 1, _)                       \
  F(SCALAR, uint8_t, usch, 1, 4, _)

#define umts_sib16_ul_transport_channel_type_FIELDS(F)   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib16_ul_transport_channel_type_u, u, 1, UMTS_ALWAYS, choice_tag)

/* rlc-SizeList: 1 allSizes, 2 configured, 3 explicitList. The sizes of explicitList are
   packed after `count`: the first three fill `sizes`, the rest run on (see above). */
#define umts_sib16_rlc_size_list_FIELDS(F)               \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)           \
  F(BYTES, uint8_t, sizes, 3, UMTS_ALWAYS, _)

#define umts_sib16_ul_logical_channel_mapping_FIELDS(F)                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                               \
  F(RECORD, umts_sib16_ul_transport_channel_type, ul_TransportChannelType, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, logicalChannelIdentity, 1, 0, _)                                    \
  F(RECORD, umts_sib16_rlc_size_list, rlc_SizeList, 1, UMTS_ALWAYS, _)                   \
  F(SCALAR, uint8_t, mac_LogicalChannelPriority, 1, UMTS_ALWAYS, _)

#define umts_sib16_ul_logical_channel_mapping_list_FIELDS(F)                  \
  F(BOOL, uint8_t, rlc_LogicalChannelMappingIndicator, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                \
  F(ARRAY, umts_sib16_ul_logical_channel_mapping, entries, 2, UMTS_ALWAYS, count)

#define umts_sib16_ul_logical_channel_mappings_u_FIELDS(F)                                 \
  F(RECORD, umts_sib16_ul_logical_channel_mapping, oneLogicalChannel, 1, 1, _)             \
  F(RECORD, umts_sib16_ul_logical_channel_mapping_list, twoLogicalChannels, 1, 2, _)

#define umts_sib16_ul_logical_channel_mappings_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib16_ul_logical_channel_mappings_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_sib16_dch_and_dsch_FIELDS(F)                        \
  F(SCALAR, uint8_t, dch_transport_ch_id, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint8_t, dsch_transport_ch_id, 1, UMTS_ALWAYS, _)

/* DL-TransportChannelType: 1 dch, 2 fach, 3 dsch, 4 dch-and-dsch. */
#define umts_sib16_dl_transport_channel_type_u_FIELDS(F)          \
  F(SCALAR, uint8_t, dch, 1, 1, _)                                \
  F(SCALAR, uint8_t, dsch, 1, 3, _)                               \
  F(RECORD, umts_sib16_dch_and_dsch, dch_and_dsch, 1, 4, _)

#define umts_sib16_dl_transport_channel_type_FIELDS(F)   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib16_dl_transport_channel_type_u, u, 1, UMTS_ALWAYS, choice_tag)

/* An entry of the open dl_LogicalChannelMappingList. */
#define umts_sib16_dl_logical_channel_mapping_FIELDS(F)                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                               \
  F(RECORD, umts_sib16_dl_transport_channel_type, dl_TransportChannelType, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, logicalChannelIdentity, 1, 0, _)

/* An entry of the open rb_MappingInfo. */
#define umts_sib16_rb_mapping_option_FIELDS(F)                                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_sib16_ul_logical_channel_mappings, ul_LogicalChannelMappings, 1, 0, _)         \
  F(RECORD, umts_sib16_open_list, dl_LogicalChannelMappingList, 1, 1, _)

/* An entry of the open srb_InformationList. */
#define umts_sib16_srb_information_setup_FIELDS(F)                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                         \
  F(SCALAR, uint8_t, rb_Identity, 1, 0, _)                                         \
  F(RECORD, umts_sib16_rlc_info_choice, rlc_InfoChoice, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sib16_open_list, rb_MappingInfo, 1, UMTS_ALWAYS, _)

#define umts_sib16_rfc2507_info_FIELDS(F)                        \
  F(SCALAR, uint16_t, f_MAX_PERIOD, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint8_t, f_MAX_TIME, 1, UMTS_ALWAYS, _)              \
  F(SCALAR, uint16_t, max_HEADER, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint8_t, tcp_SPACE, 1, UMTS_ALWAYS, _)               \
  F(SCALAR, uint16_t, non_TCP_SPACE, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint32_t, expectReordering, 1, UMTS_ALWAYS, _)

/* An entry of the open headerCompressionInfoList: algorithmSpecificInfo, 1 rfc2507-Info. */
#define umts_sib16_algorithm_specific_info_u_FIELDS(F) F(RECORD, umts_sib16_rfc2507_info, rfc2507_Info, 1, 1, _)

#define umts_sib16_algorithm_specific_info_FIELDS(F)     \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib16_algorithm_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* LosslessSRNS-RelocSupport: 1 supported (its window size), 2 notSupported. */
#define umts_sib16_lossless_srns_reloc_support_u_FIELDS(F) F(SCALAR, uint32_t, supported, 1, 1, _)

#define umts_sib16_lossless_srns_reloc_support_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib16_lossless_srns_reloc_support_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_sib16_pdcp_info_FIELDS(F)                                                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_sib16_lossless_srns_reloc_support, losslessSRNS_RelocSupport, 1, 0, _)         \
  F(SCALAR, uint32_t, pdcp_PDU_Header, 1, UMTS_ALWAYS, _)                                       \
  F(RECORD, umts_sib16_open_list, headerCompressionInfoList, 1, 1, _)

/* An entry of the open rb_InformationList. */
#define umts_sib16_rb_information_setup_FIELDS(F)                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                        \
  F(SCALAR, uint8_t, rb_Identity, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_sib16_pdcp_info, pdcp_Info, 1, 0, _)                             \
  F(RECORD, umts_sib16_rlc_info_choice, rlc_InfoChoice, 1, UMTS_ALWAYS, _)        \
  F(RECORD, umts_sib16_open_list, rb_MappingInfo, 1, UMTS_ALWAYS, _)

#define umts_sib16_predefined_rb_configuration_FIELDS(F)                      \
  F(SCALAR, uint32_t, re_EstablishmentTimer, 1, UMTS_ALWAYS, _)               \
  F(RECORD, umts_sib16_open_list, srb_InformationList, 1, UMTS_ALWAYS, _)     \
  F(RECORD, umts_sib16_open_list, rb_InformationList, 1, UMTS_ALWAYS, _)

/* The radio bearer configuration, then the room its open lists run into. */
#define umts_sib16_pre_def_radio_configuration_FIELDS(F)                                             \
  F(RECORD, umts_sib16_predefined_rb_configuration, predefinedRB_Configuration, 1, UMTS_ALWAYS, _)   \
  F(BYTES, uint8_t, open_list_room, UMTS_SIB16_OPEN_LIST_ROOM, UMTS_ALWAYS, _)

/* bit 0 v770NonCriticalExtensions (the flag only). */
#define umts_sib16_info_FIELDS(F)                                                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                        \
  F(RECORD, umts_sib16_pre_def_radio_configuration, preDefinedRadioConfiguration, 1, UMTS_ALWAYS, _)

#define UMTS_SIB16_RECORDS(X)                                    \
  X(RECORD, umts_sib16_open_list)                                \
  X(RECORD, umts_sib16_explicit_discard)                         \
  X(RECORD, umts_sib16_max_dat_retransmissions)                  \
  X(UNION, umts_sib16_transmission_rlc_discard_u)                \
  X(RECORD, umts_sib16_transmission_rlc_discard)                 \
  X(RECORD, umts_sib16_polling_info)                             \
  X(RECORD, umts_sib16_ul_am_rlc_mode)                           \
  X(RECORD, umts_sib16_ul_um_rlc_mode)                           \
  X(RECORD, umts_sib16_ul_tm_rlc_mode)                           \
  X(UNION, umts_sib16_ul_rlc_mode_u)                             \
  X(RECORD, umts_sib16_ul_rlc_mode)                              \
  X(RECORD, umts_sib16_dl_rlc_status_info)                       \
  X(RECORD, umts_sib16_dl_am_rlc_mode)                           \
  X(UNION, umts_sib16_dl_rlc_mode_u)                             \
  X(RECORD, umts_sib16_dl_rlc_mode)                              \
  X(RECORD, umts_sib16_rlc_info)                                 \
  X(UNION, umts_sib16_rlc_info_choice_u)                         \
  X(RECORD, umts_sib16_rlc_info_choice)                          \
  X(UNION, umts_sib16_ul_transport_channel_type_u)               \
  X(RECORD, umts_sib16_ul_transport_channel_type)                \
  X(RECORD, umts_sib16_rlc_size_list)                            \
  X(RECORD, umts_sib16_ul_logical_channel_mapping)               \
  X(RECORD, umts_sib16_ul_logical_channel_mapping_list)          \
  X(UNION, umts_sib16_ul_logical_channel_mappings_u)             \
  X(RECORD, umts_sib16_ul_logical_channel_mappings)              \
  X(RECORD, umts_sib16_dch_and_dsch)                             \
  X(UNION, umts_sib16_dl_transport_channel_type_u)               \
  X(RECORD, umts_sib16_dl_transport_channel_type)                \
  X(RECORD, umts_sib16_dl_logical_channel_mapping)               \
  X(RECORD, umts_sib16_rb_mapping_option)                        \
  X(RECORD, umts_sib16_srb_information_setup)                    \
  X(RECORD, umts_sib16_rfc2507_info)                             \
  X(UNION, umts_sib16_algorithm_specific_info_u)                 \
  X(RECORD, umts_sib16_algorithm_specific_info)                  \
  X(UNION, umts_sib16_lossless_srns_reloc_support_u)             \
  X(RECORD, umts_sib16_lossless_srns_reloc_support)              \
  X(RECORD, umts_sib16_pdcp_info)                                \
  X(RECORD, umts_sib16_rb_information_setup)                     \
  X(RECORD, umts_sib16_predefined_rb_configuration)              \
  X(RECORD, umts_sib16_pre_def_radio_configuration)              \
  X(RECORD, umts_sib16_info)

UMTS_SIB16_RECORDS(UMTS_DEFINE)

#ifdef __cplusplus
extern "C" {
#endif

/* Address of entry `index` of the open list `list` inside `record` (an entry of
   `entry_size` bytes aligned to `entry_align`), or null when the entry would not lie whole
   inside the record's `record_size` bytes. */
const void* umts_sib16_entries(const void* record, size_t record_size, const umts_sib16_open_list* list,
                               size_t entry_size, size_t entry_align, uint32_t index);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_SIB_SIB16_H */
