/*
 * Flat records of the System Information Block type 5: the common physical channels (PRACH,
 * S-CCPCH with its PICH), their transport formats and TFCS, and the extension chain from v4b0
 * to v8d0.
 *
 * Every list has its full bound reserved inline and a nested list is reserved once per outer
 * entry, so the record is large (see README); it lives in umts_sib_set, which the caller
 * owns (never on the stack). Values are copied as the decoder delivers them: enumerations as
 * 32-bit ordinals, INTEGER and BOOLEAN members as single bytes unless a field says otherwise.
 * A choice is its `choice_tag` (alternative counted from 1) and the union `u`; an unknown tag
 * is kept with a zero union. A bit string is its `numbits` and its octets.
 */
#ifndef UMTS_SIB_SIB5_H
#define UMTS_SIB_SIB5_H

#include "umts_sib_common.h"

/* ==== Transport formats ================================================================= */

/* OctetModeRLC-SizeInfoType2: 1 sizeType1 .. 3 sizeType3. */
#define umts_octet_mode_rlc_size_info_type2_u_FIELDS(F)  \
  F(SCALAR, uint8_t, sizeType1, 1, 1, _)                 \
  F(SCALAR, uint8_t, sizeType2, 1, 2, _)                 \
  F(SCALAR, uint8_t, sizeType3, 1, 3, _)

#define umts_octet_mode_rlc_size_info_type2_FIELDS(F)    \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_octet_mode_rlc_size_info_type2_u, u, 1, UMTS_ALWAYS, choice_tag)

/* The part1/part2 pair of the larger RLC size types. */
#define umts_rlc_size_parts_FIELDS(F)                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint8_t, part1, 1, UMTS_ALWAYS, _)                 \
  F(SCALAR, uint8_t, part2, 1, 0, _)

/* BitModeRLC-SizeInfo: 1 sizeType1, 2..4 sizeType2..4. */
#define umts_bit_mode_rlc_size_info_u_FIELDS(F)              \
  F(SCALAR, uint8_t, sizeType1, 1, 1, _)                     \
  F(RECORD, umts_rlc_size_parts, sizeType2, 1, 2, _)         \
  F(RECORD, umts_rlc_size_parts, sizeType3, 1, 3, _)         \
  F(RECORD, umts_rlc_size_parts, sizeType4, 1, 4, _)

#define umts_bit_mode_rlc_size_info_FIELDS(F)            \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_bit_mode_rlc_size_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* OctetModeRLC-SizeInfoType1: 1 sizeType1, 2 and 3 the pair. */
#define umts_octet_mode_rlc_size_info_type1_u_FIELDS(F)      \
  F(SCALAR, uint8_t, sizeType1, 1, 1, _)                     \
  F(RECORD, umts_rlc_size_parts, sizeType2, 1, 2, _)         \
  F(RECORD, umts_rlc_size_parts, sizeType3, 1, 3, _)

#define umts_octet_mode_rlc_size_info_type1_FIELDS(F)    \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_octet_mode_rlc_size_info_type1_u, u, 1, UMTS_ALWAYS, choice_tag)

/* commonTDD-Choice: 1 bitModeRLC-SizeInfo, 2 octetModeRLC-SizeInfoType1. Its tag is stored in
   16 bits: the decoder's 32-bit tag keeps its low half. */
#define umts_common_tdd_choice_u_FIELDS(F)                                        \
  F(RECORD, umts_bit_mode_rlc_size_info, bitModeRLC_SizeInfo, 1, 1, _)            \
  F(RECORD, umts_octet_mode_rlc_size_info_type1, octetModeRLC_SizeInfoType1, 1, 2, _)

#define umts_common_tdd_choice_FIELDS(F)                 \
  F(SCALAR, uint16_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_common_tdd_choice_u, u, 1, UMTS_ALWAYS, choice_tag)

/* rlc-Size of a common transport channel: 1 fdd, 2 tdd. */
#define umts_common_rlc_size_u_FIELDS(F)                                          \
  F(RECORD, umts_octet_mode_rlc_size_info_type2, octetModeRLC_SizeInfoType2, 1, 1, _) \
  F(RECORD, umts_common_tdd_choice, commonTDD_Choice, 1, 2, _)

#define umts_common_rlc_size_FIELDS(F)                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_common_rlc_size_u, u, 1, UMTS_ALWAYS, choice_tag)

/* rlc-Size of a dedicated transport channel: 1 bitMode, 2 octetModeType1. */
#define umts_dedicated_rlc_size_u_FIELDS(F)                                   \
  F(RECORD, umts_bit_mode_rlc_size_info, bitMode, 1, 1, _)                    \
  F(RECORD, umts_octet_mode_rlc_size_info_type1, octetModeType1, 1, 2, _)

#define umts_dedicated_rlc_size_FIELDS(F)                \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_dedicated_rlc_size_u, u, 1, UMTS_ALWAYS, choice_tag)

/* NumberOfTransportBlocks: 1 zero, 2 one (no value), 3 small, 4 large. */
#define umts_number_of_transport_blocks_u_FIELDS(F)  \
  F(SCALAR, uint8_t, small, 1, 3, _)                 \
  F(SCALAR, uint16_t, large, 1, 4, _)

#define umts_number_of_transport_blocks_FIELDS(F)        \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_number_of_transport_blocks_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_number_of_tb_size_FIELDS(F)                                            \
  F(RECORD, umts_number_of_transport_blocks, numberOfTransportBlocks, 1, UMTS_ALWAYS, _)

#define umts_number_of_tb_size_list_FIELDS(F)                       \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                      \
  F(ARRAY, umts_number_of_tb_size, entries, 32, UMTS_ALWAYS, count)

#define umts_number_of_tb_size_and_tti_FIELDS(F)                                      \
  F(RECORD, umts_number_of_transport_blocks, numberOfTransportBlocks, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint32_t, transmissionTimeInterval, 1, UMTS_ALWAYS, _)

#define umts_number_of_tb_size_and_tti_list_FIELDS(F)                     \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                            \
  F(ARRAY, umts_number_of_tb_size_and_tti, entries, 32, UMTS_ALWAYS, count)

#define umts_logical_channel_by_rb_FIELDS(F)                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint8_t, rb_Identity, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint8_t, logChOfRb, 1, 0, _)

#define umts_logical_channel_explicit_list_FIELDS(F)                     \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                           \
  F(ARRAY, umts_logical_channel_by_rb, entries, 15, UMTS_ALWAYS, count)

/* LogicalChannelList: 1 allSizes, 2 configured (no value), 3 explicitList. */
#define umts_logical_channel_list_u_FIELDS(F)                               \
  F(RECORD, umts_logical_channel_explicit_list, explicitList, 1, 3, _)

#define umts_logical_channel_list_FIELDS(F)              \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_logical_channel_list_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_common_dynamic_tf_info_FIELDS(F)                                            \
  F(RECORD, umts_common_rlc_size, rlc_Size, 1, UMTS_ALWAYS, _)                           \
  F(RECORD, umts_number_of_tb_size_list, numberOfTbSizeList, 1, UMTS_ALWAYS, _)          \
  F(RECORD, umts_logical_channel_list, logicalChannelList, 1, UMTS_ALWAYS, _)

#define umts_common_dynamic_tf_info_list_FIELDS(F)                         \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                             \
  F(ARRAY, umts_common_dynamic_tf_info, entries, 32, UMTS_ALWAYS, count)

#define umts_common_dynamic_tf_info_dynamic_tti_FIELDS(F)                                     \
  F(RECORD, umts_common_tdd_choice, commonTDD_Choice, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_number_of_tb_size_and_tti_list, numberOfTbSizeAndTTIList, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_logical_channel_list, logicalChannelList, 1, UMTS_ALWAYS, _)

/* The dynamic list of a common set. Every element is converted into entries[0], so that it
   holds the last one while `count` holds them all (see the conversion). */
#define umts_common_dynamic_tf_info_list_dynamic_tti_FIELDS(F)                         \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                         \
  F(ARRAY, umts_common_dynamic_tf_info_dynamic_tti, entries, 32, UMTS_ALWAYS, count)

#define umts_dedicated_dynamic_tf_info_FIELDS(F)                                         \
  F(RECORD, umts_dedicated_rlc_size, rlc_Size, 1, UMTS_ALWAYS, _)                        \
  F(RECORD, umts_number_of_tb_size_list, numberOfTbSizeList, 1, UMTS_ALWAYS, _)          \
  F(RECORD, umts_logical_channel_list, logicalChannelList, 1, UMTS_ALWAYS, _)

#define umts_dedicated_dynamic_tf_info_list_FIELDS(F)                      \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                             \
  F(ARRAY, umts_dedicated_dynamic_tf_info, entries, 32, UMTS_ALWAYS, count)

#define umts_dedicated_dynamic_tf_info_dynamic_tti_FIELDS(F)                                  \
  F(RECORD, umts_dedicated_rlc_size, rlc_Size, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_number_of_tb_size_and_tti_list, numberOfTbSizeAndTTIList, 1, UMTS_ALWAYS, _) \
  F(RECORD, umts_logical_channel_list, logicalChannelList, 1, UMTS_ALWAYS, _)

#define umts_dedicated_dynamic_tf_info_list_dynamic_tti_FIELDS(F)                      \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                         \
  F(ARRAY, umts_dedicated_dynamic_tf_info_dynamic_tti, entries, 32, UMTS_ALWAYS, count)

/* ChannelCodingType: 1 noCoding, 2 convolutional (CodingRate), 3 turbo. */
#define umts_channel_coding_type_u_FIELDS(F) F(SCALAR, uint32_t, convolutional, 1, 2, _)

#define umts_channel_coding_type_FIELDS(F)               \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_channel_coding_type_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_semistatic_tf_information_FIELDS(F)                                   \
  F(RECORD, umts_channel_coding_type, channelCodingType, 1, UMTS_ALWAYS, _)        \
  F(SCALAR, uint16_t, rateMatchingAttribute, 1, UMTS_ALWAYS, _)                    \
  F(SCALAR, uint32_t, crc_Size, 1, UMTS_ALWAYS, _)

/* tti of a common set: 1..4 tti10..tti80 (plain list), 5 dynamic. */
#define umts_common_trans_ch_tfs_tti_u_FIELDS(F)                                         \
  F(RECORD, umts_common_dynamic_tf_info_list, tti10, 1, 1, _)                            \
  F(RECORD, umts_common_dynamic_tf_info_list, tti20, 1, 2, _)                            \
  F(RECORD, umts_common_dynamic_tf_info_list, tti40, 1, 3, _)                            \
  F(RECORD, umts_common_dynamic_tf_info_list, tti80, 1, 4, _)                            \
  F(RECORD, umts_common_dynamic_tf_info_list_dynamic_tti, dynamic, 1, 5, _)

#define umts_common_trans_ch_tfs_tti_FIELDS(F)           \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_common_trans_ch_tfs_tti_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_common_trans_ch_tfs_FIELDS(F)                                                    \
  F(RECORD, umts_common_trans_ch_tfs_tti, tti, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_semistatic_tf_information, semistaticTF_Information, 1, UMTS_ALWAYS, _)

/* tti of the 1.28 Mcps TDD common set: 1..5 tti5..tti80, 6 dynamic. */
#define umts_common_trans_ch_tfs_lcr_tti_u_FIELDS(F)                                     \
  F(RECORD, umts_common_dynamic_tf_info_list, tti5, 1, 1, _)                             \
  F(RECORD, umts_common_dynamic_tf_info_list, tti10, 1, 2, _)                            \
  F(RECORD, umts_common_dynamic_tf_info_list, tti20, 1, 3, _)                            \
  F(RECORD, umts_common_dynamic_tf_info_list, tti40, 1, 4, _)                            \
  F(RECORD, umts_common_dynamic_tf_info_list, tti80, 1, 5, _)                            \
  F(RECORD, umts_common_dynamic_tf_info_list_dynamic_tti, dynamic, 1, 6, _)

#define umts_common_trans_ch_tfs_lcr_tti_FIELDS(F)       \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_common_trans_ch_tfs_lcr_tti_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_common_trans_ch_tfs_lcr_FIELDS(F)                                                \
  F(RECORD, umts_common_trans_ch_tfs_lcr_tti, tti, 1, UMTS_ALWAYS, _)                         \
  F(RECORD, umts_semistatic_tf_information, semistaticTF_Information, 1, UMTS_ALWAYS, _)

/* tti of a dedicated set: 1..4 tti10..tti80, 5 dynamic. */
#define umts_dedicated_trans_ch_tfs_tti_u_FIELDS(F)                                      \
  F(RECORD, umts_dedicated_dynamic_tf_info_list, tti10, 1, 1, _)                         \
  F(RECORD, umts_dedicated_dynamic_tf_info_list, tti20, 1, 2, _)                         \
  F(RECORD, umts_dedicated_dynamic_tf_info_list, tti40, 1, 3, _)                         \
  F(RECORD, umts_dedicated_dynamic_tf_info_list, tti80, 1, 4, _)                         \
  F(RECORD, umts_dedicated_dynamic_tf_info_list_dynamic_tti, dynamic, 1, 5, _)

#define umts_dedicated_trans_ch_tfs_tti_FIELDS(F)        \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_dedicated_trans_ch_tfs_tti_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_dedicated_trans_ch_tfs_FIELDS(F)                                                 \
  F(RECORD, umts_dedicated_trans_ch_tfs_tti, tti, 1, UMTS_ALWAYS, _)                          \
  F(RECORD, umts_semistatic_tf_information, semistaticTF_Information, 1, UMTS_ALWAYS, _)

/* TransportFormatSet: 1 dedicatedTransChTFS, 2 commonTransChTFS. */
#define umts_transport_format_set_u_FIELDS(F)                                 \
  F(RECORD, umts_dedicated_trans_ch_tfs, dedicatedTransChTFS, 1, 1, _)        \
  F(RECORD, umts_common_trans_ch_tfs, commonTransChTFS, 1, 2, _)

#define umts_transport_format_set_FIELDS(F)              \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_transport_format_set_u, u, 1, UMTS_ALWAYS, choice_tag)

/* TransportFormatSet-LCR: 1 dedicatedTransChTFS, 2 commonTransChTFS-LCR. */
#define umts_transport_format_set_lcr_u_FIELDS(F)                             \
  F(RECORD, umts_dedicated_trans_ch_tfs, dedicatedTransChTFS, 1, 1, _)        \
  F(RECORD, umts_common_trans_ch_tfs_lcr, commonTransChTFS_LCR, 1, 2, _)

#define umts_transport_format_set_lcr_FIELDS(F)          \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_transport_format_set_lcr_u, u, 1, UMTS_ALWAYS, choice_tag)

/* ==== TFCS =============================================================================== */

#define umts_signalled_gain_factors_fdd_FIELDS(F) F(SCALAR, uint8_t, gainFactorBetaC, 1, UMTS_ALWAYS, _)

/* modeSpecificInfo of SignalledGainFactors: 1 fdd, 2 tdd (no value). */
#define umts_signalled_gain_factors_mode_specific_info_u_FIELDS(F) \
  F(RECORD, umts_signalled_gain_factors_fdd, fdd, 1, 1, _)

#define umts_signalled_gain_factors_mode_specific_info_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)             \
  F(UNION, umts_signalled_gain_factors_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_signalled_gain_factors_FIELDS(F)                                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_signalled_gain_factors_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, gainFactorBetaD, 1, UMTS_ALWAYS, _)                                        \
  F(SCALAR, uint8_t, referenceTFC_ID, 1, 0, _)

/* GainFactorInformation: 1 signalledGainFactors, 2 computedGainFactors. */
#define umts_gain_factor_information_u_FIELDS(F)                              \
  F(RECORD, umts_signalled_gain_factors, signalledGainFactors, 1, 1, _)       \
  F(SCALAR, uint8_t, computedGainFactors, 1, 2, _)

#define umts_gain_factor_information_FIELDS(F)           \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_gain_factor_information_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_power_offset_information_FIELDS(F)                                         \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_gain_factor_information, gainFactorInformation, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, int8_t, powerOffsetPp_m, 1, 0, _)

/* One CTFC of an added set. `ctfc` is a single byte for every CTFC size: the 12, 16 and
   24-bit values keep their low octet. */
#define umts_tfcs_ctfc_entry_FIELDS(F)                                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                               \
  F(SCALAR, uint8_t, ctfc, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_power_offset_information, powerOffsetInformation, 1, 0, _)

/* TFCS-ReconfAdd: choice_tag 1..7 ctfc2Bit .. ctfc24Bit, then the entries. */
#define umts_tfcs_reconf_add_FIELDS(F)                                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                     \
  F(SCALAR, uint16_t, count, 1, UMTS_ALWAYS, _)                          \
  F(ARRAY, umts_tfcs_ctfc_entry, entries, 1024, UMTS_ALWAYS, count)

#define umts_tfcs_removal_list_FIELDS(F)                 \
  F(SCALAR, uint16_t, count, 1, UMTS_ALWAYS, _)          \
  F(ARRAY, uint16_t, tfci, 1024, UMTS_ALWAYS, count)

#define umts_explicit_tfcs_replacement_FIELDS(F)                            \
  F(RECORD, umts_tfcs_removal_list, tfcsRemoval, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_tfcs_reconf_add, tfcsAdd, 1, UMTS_ALWAYS, _)

/* ExplicitTFCS-Configuration: 1 complete, 2 addition, 3 removal, 4 replacement. */
#define umts_explicit_tfcs_configuration_u_FIELDS(F)                        \
  F(RECORD, umts_tfcs_reconf_add, complete, 1, 1, _)                        \
  F(RECORD, umts_tfcs_reconf_add, addition, 1, 2, _)                        \
  F(RECORD, umts_tfcs_removal_list, removal, 1, 3, _)                       \
  F(RECORD, umts_explicit_tfcs_replacement, replacement, 1, 4, _)

#define umts_explicit_tfcs_configuration_FIELDS(F)       \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_explicit_tfcs_configuration_u, u, 1, UMTS_ALWAYS, choice_tag)

/* TFCS-InfoForDSCH: 1..4 ctfc2bit..ctfc8bit, 5, 6 ctfc12bit, ctfc16bit, 7 ctfc24bit. */
#define umts_tfcs_info_for_dsch_u_FIELDS(F)     \
  F(SCALAR, uint8_t, ctfc2bit, 1, 1, _)         \
  F(SCALAR, uint8_t, ctfc4bit, 1, 2, _)         \
  F(SCALAR, uint8_t, ctfc6bit, 1, 3, _)         \
  F(SCALAR, uint8_t, ctfc8bit, 1, 4, _)         \
  F(SCALAR, uint16_t, ctfc12bit, 1, 5, _)       \
  F(SCALAR, uint16_t, ctfc16bit, 1, 6, _)       \
  F(SCALAR, uint32_t, ctfc24bit, 1, 7, _)

#define umts_tfcs_info_for_dsch_FIELDS(F)                \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_tfcs_info_for_dsch_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_tfci_range_FIELDS(F)                                               \
  F(SCALAR, uint16_t, maxTFCIField2Value, 1, UMTS_ALWAYS, _)                    \
  F(RECORD, umts_tfcs_info_for_dsch, tfcs_InfoForDSCH, 1, UMTS_ALWAYS, _)

/* tfci-Range: up to 256 entries under an 8-bit count, which reads 0 for 256. */
#define umts_tfci_range_list_FIELDS(F)                                  \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                          \
  F(ARRAY, umts_tfci_range, entries, 256, UMTS_ALWAYS, count)

/* TFCI-Field2-Information: 1 tfci-Range, 2 explicit-config. */
#define umts_tfci_field2_information_u_FIELDS(F)                               \
  F(RECORD, umts_tfci_range_list, tfci_Range, 1, 1, _)                         \
  F(RECORD, umts_explicit_tfcs_configuration, explicit_config, 1, 2, _)

#define umts_tfci_field2_information_FIELDS(F)           \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_tfci_field2_information_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_split_tfci_signalling_FIELDS(F)                                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                     \
  F(SCALAR, uint32_t, splitType, 1, 0, _)                                                      \
  F(SCALAR, uint8_t, tfci_Field2_Length, 1, 1, _)                                              \
  F(RECORD, umts_explicit_tfcs_configuration, tfci_Field1_Information, 1, 2, _)                \
  F(RECORD, umts_tfci_field2_information, tfci_Field2_Information, 1, 3, _)

/* TFCS: 1 normalTFCI-Signalling, 2 dummy (split signalling). */
#define umts_tfcs_u_FIELDS(F)                                                       \
  F(RECORD, umts_explicit_tfcs_configuration, normalTFCI_Signalling, 1, 1, _)       \
  F(RECORD, umts_split_tfci_signalling, dummy, 1, 2, _)

#define umts_tfcs_FIELDS(F)                              \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_tfcs_u, u, 1, UMTS_ALWAYS, choice_tag)

/* ==== PRACH ============================================================================== */

/* A bit string of up to 32 bits: `numbits`, then its octets. */
#define umts_bit_string32_FIELDS(F)                      \
  F(SCALAR, uint32_t, numbits, 1, UMTS_ALWAYS, _)        \
  F(BYTES, uint8_t, data, 4, UMTS_ALWAYS, _)

#define umts_prach_rach_info_fdd_FIELDS(F)                                            \
  F(RECORD, umts_bit_string32, availableSignatures, 1, UMTS_ALWAYS, _)                \
  F(SCALAR, uint32_t, availableSF, 1, UMTS_ALWAYS, _)                                 \
  F(SCALAR, uint8_t, preambleScramblingCodeWordNumber, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint32_t, puncturingLimit, 1, UMTS_ALWAYS, _)                             \
  F(RECORD, umts_bit_string32, availableSubChannelNumbers, 1, UMTS_ALWAYS, _)

/* TDD-PRACH-CCodeList sf8 / sf16: the codes as ordinals. */
#define umts_tdd_prach_ccode_list_n_FIELDS(F)             \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)           \
  F(ARRAY, uint32_t, codes, 8, UMTS_ALWAYS, count)

#define umts_tdd_prach_ccode_list_u_FIELDS(F)               \
  F(RECORD, umts_tdd_prach_ccode_list_n, sf8, 1, 1, _)      \
  F(RECORD, umts_tdd_prach_ccode_list_n, sf16, 1, 2, _)

#define umts_tdd_prach_ccode_list_FIELDS(F)              \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_tdd_prach_ccode_list_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_prach_rach_info_tdd_FIELDS(F)                                            \
  F(SCALAR, uint8_t, timeslot, 1, UMTS_ALWAYS, _)                                     \
  F(RECORD, umts_tdd_prach_ccode_list, channelisationCodeList, 1, UMTS_ALWAYS, _)     \
  F(SCALAR, uint32_t, prach_Midamble, 1, UMTS_ALWAYS, _)

/* PRACH-RACH-Info modeSpecificInfo: 1 fdd, 2 tdd. */
#define umts_prach_rach_info_u_FIELDS(F)                   \
  F(RECORD, umts_prach_rach_info_fdd, fdd, 1, 1, _)        \
  F(RECORD, umts_prach_rach_info_tdd, tdd, 1, 2, _)

#define umts_prach_rach_info_FIELDS(F)                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_prach_rach_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_access_service_class_fdd_FIELDS(F)                                       \
  F(SCALAR, uint8_t, availableSignatureStartIndex, 1, UMTS_ALWAYS, _)                 \
  F(SCALAR, uint8_t, availableSignatureEndIndex, 1, UMTS_ALWAYS, _)                   \
  F(RECORD, umts_bit_string32, assignedSubChannelNumber, 1, UMTS_ALWAYS, _)

#define umts_asc_setting_fdd_FIELDS(F)                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                            \
  F(RECORD, umts_access_service_class_fdd, accessServiceClass_FDD, 1, 0, _)

/* channelisationCodeIndices: `numbits` and its one octet. */
#define umts_channelisation_code_indices_FIELDS(F)       \
  F(SCALAR, uint32_t, numbits, 1, UMTS_ALWAYS, _)        \
  F(BYTES, uint8_t, data, 1, UMTS_ALWAYS, _)

#define umts_subchannel_size2_FIELDS(F)                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)        \
  F(SCALAR, uint32_t, subchannels, 1, 0, _)

#define umts_subchannel_size_bits_FIELDS(F)                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(RECORD, umts_bit_string32, subchannels, 1, 0, _)

/* subchannelSize: 1 size1 (no value), 2 size2, 3 size4, 4 size8. */
#define umts_subchannel_size_u_FIELDS(F)                        \
  F(RECORD, umts_subchannel_size2, size2, 1, 2, _)              \
  F(RECORD, umts_subchannel_size_bits, size4, 1, 3, _)          \
  F(RECORD, umts_subchannel_size_bits, size8, 1, 4, _)

#define umts_subchannel_size_FIELDS(F)                   \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_subchannel_size_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_access_service_class_tdd_FIELDS(F)                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                \
  F(RECORD, umts_channelisation_code_indices, channelisationCodeIndices, 1, 0, _)         \
  F(RECORD, umts_subchannel_size, subchannelSize, 1, UMTS_ALWAYS, _)

#define umts_asc_setting_tdd_FIELDS(F)                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                            \
  F(RECORD, umts_access_service_class_tdd, accessServiceClass_TDD, 1, 0, _)

#define umts_prach_partitioning_fdd_FIELDS(F)                      \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                    \
  F(ARRAY, umts_asc_setting_fdd, entries, 8, UMTS_ALWAYS, count)

#define umts_prach_partitioning_tdd_FIELDS(F)                      \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                    \
  F(ARRAY, umts_asc_setting_tdd, entries, 8, UMTS_ALWAYS, count)

/* PRACH-Partitioning: 1 fdd, 2 tdd. */
#define umts_prach_partitioning_u_FIELDS(F)                        \
  F(RECORD, umts_prach_partitioning_fdd, fdd, 1, 1, _)             \
  F(RECORD, umts_prach_partitioning_tdd, tdd, 1, 2, _)

#define umts_prach_partitioning_FIELDS(F)                \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_prach_partitioning_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_persistence_scaling_factor_list_FIELDS(F)   \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)          \
  F(ARRAY, uint32_t, entries, 6, UMTS_ALWAYS, count)

/* AC-To-ASC-MappingTable: each one-octet mapping widened to 32 bits. */
#define umts_ac_to_asc_mapping_table_FIELDS(F)           \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)          \
  F(ARRAY, uint32_t, entries, 7, UMTS_ALWAYS, count)

#define umts_prach_power_offset_FIELDS(F)                          \
  F(SCALAR, uint8_t, powerRampStep, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint8_t, preambleRetransMax, 1, UMTS_ALWAYS, _)

#define umts_rach_transmission_parameters_FIELDS(F)      \
  F(SCALAR, uint8_t, mmax, 1, UMTS_ALWAYS, _)            \
  F(SCALAR, uint8_t, nb01Min, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, nb01Max, 1, UMTS_ALWAYS, _)

#define umts_aich_info_FIELDS(F)                                   \
  F(SCALAR, uint8_t, channelisationCode256, 1, UMTS_ALWAYS, _)     \
  F(BOOL, uint8_t, sttd_Indicator, 1, UMTS_ALWAYS, _)              \
  F(SCALAR, uint32_t, aich_TransmissionTiming, 1, UMTS_ALWAYS, _)

#define umts_prach_system_information_fdd_FIELDS(F)                                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                \
  F(SCALAR, int8_t, primaryCPICH_TX_Power, 1, 0, _)                                       \
  F(SCALAR, int8_t, constantValue, 1, 1, _)                                               \
  F(RECORD, umts_prach_power_offset, prach_PowerOffset, 1, 2, _)                          \
  F(RECORD, umts_rach_transmission_parameters, rach_TransmissionParameters, 1, 3, _)      \
  F(RECORD, umts_aich_info, aich_Info, 1, 4, _)

/* modeSpecificInfo of PRACH-SystemInformation: 1 fdd, 2 tdd (no value). */
#define umts_prach_system_information_mode_specific_info_u_FIELDS(F) \
  F(RECORD, umts_prach_system_information_fdd, fdd, 1, 1, _)

#define umts_prach_system_information_mode_specific_info_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)               \
  F(UNION, umts_prach_system_information_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_prach_system_information_FIELDS(F)                                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                        \
  F(RECORD, umts_prach_rach_info, prach_RACH_Info, 1, UMTS_ALWAYS, _)                             \
  F(SCALAR, uint8_t, transportChannelIdentity, 1, UMTS_ALWAYS, _)                                 \
  F(RECORD, umts_transport_format_set, rach_TransportFormatSet, 1, 0, _)                          \
  F(RECORD, umts_tfcs, rach_TFCS, 1, 1, _)                                                        \
  F(RECORD, umts_prach_partitioning, prach_Partitioning, 1, 2, _)                                 \
  F(RECORD, umts_persistence_scaling_factor_list, persistenceScalingFactorList, 1, 3, _)          \
  F(RECORD, umts_ac_to_asc_mapping_table, ac_To_ASC_MappingTable, 1, 4, _)                        \
  F(RECORD, umts_prach_system_information_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_prach_system_information_list_FIELDS(F)                        \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                              \
  F(ARRAY, umts_prach_system_information, entries, 16, UMTS_ALWAYS, count)

/* ==== S-CCPCH, PICH and the TDD timeslot records ========================================= */

#define umts_secondary_cpich_info_FIELDS(F)                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint8_t, secondaryDL_ScramblingCode, 1, 0, _)              \
  F(SCALAR, uint8_t, channelisationCode, 1, UMTS_ALWAYS, _)

/* SF256-AndCodeNumber: 1 sf4 .. 7 sf256, the code number. */
#define umts_sf256_and_code_number_u_FIELDS(F) \
  F(SCALAR, uint8_t, sf4, 1, 1, _)             \
  F(SCALAR, uint8_t, sf8, 1, 2, _)             \
  F(SCALAR, uint8_t, sf16, 1, 3, _)            \
  F(SCALAR, uint8_t, sf32, 1, 4, _)            \
  F(SCALAR, uint8_t, sf64, 1, 5, _)            \
  F(SCALAR, uint8_t, sf128, 1, 6, _)           \
  F(SCALAR, uint8_t, sf256, 1, 7, _)

#define umts_sf256_and_code_number_FIELDS(F)             \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sf256_and_code_number_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_secondary_ccpch_info_fdd_FIELDS(F)                                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                            \
  F(SCALAR, uint32_t, dummy1, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_secondary_cpich_info, dummy2, 1, 0, _)                               \
  F(SCALAR, uint8_t, secondaryScramblingCode, 1, 1, _)                                \
  F(BOOL, uint8_t, sttd_Indicator, 1, UMTS_ALWAYS, _)                                 \
  F(RECORD, umts_sf256_and_code_number, sf_AndCodeNumber, 1, UMTS_ALWAYS, _)          \
  F(BOOL, uint8_t, pilotSymbolExistence, 1, UMTS_ALWAYS, _)                           \
  F(BOOL, uint8_t, tfci_Existence, 1, UMTS_ALWAYS, _)                                 \
  F(SCALAR, uint32_t, positionFixedOrFlexible, 1, UMTS_ALWAYS, _)                     \
  F(SCALAR, uint32_t, timingOffset, 1, UMTS_ALWAYS, _)

#define umts_repetition_period_length_offset_FIELDS(F)   \
  F(SCALAR, uint8_t, length, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint8_t, offset, 1, UMTS_ALWAYS, _)

/* repetitionPeriodLengthAndOffset: 1 repetitionPeriod1 (no value), 2 repetitionPeriod2 (its
   offset in the first byte), 3..7 repetitionPeriod4..64 (length, offset). */
#define umts_repetition_period_length_and_offset_u_FIELDS(F)                         \
  F(SCALAR, uint8_t, repetitionPeriod2, 1, 2, _)                                     \
  F(RECORD, umts_repetition_period_length_offset, repetitionPeriod4, 1, 3, _)        \
  F(RECORD, umts_repetition_period_length_offset, repetitionPeriod8, 1, 4, _)        \
  F(RECORD, umts_repetition_period_length_offset, repetitionPeriod16, 1, 5, _)       \
  F(RECORD, umts_repetition_period_length_offset, repetitionPeriod32, 1, 6, _)       \
  F(RECORD, umts_repetition_period_length_offset, repetitionPeriod64, 1, 7, _)

#define umts_repetition_period_length_and_offset_FIELDS(F) \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)       \
  F(UNION, umts_repetition_period_length_and_offset_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_common_timeslot_info_sccpch_FIELDS(F)                                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                           \
  F(SCALAR, uint32_t, secondInterleavingMode, 1, UMTS_ALWAYS, _)                                     \
  F(SCALAR, uint32_t, tfci_Coding, 1, 0, _)                                                          \
  F(SCALAR, uint32_t, puncturingLimit, 1, UMTS_ALWAYS, _)                                            \
  F(RECORD, umts_repetition_period_length_and_offset, repetitionPeriodLengthAndOffset, 1, 1, _)

/* RepetitionPeriodAndLength: 1 repetitionPeriod1 (no value), 2..7 the length. */
#define umts_repetition_period_and_length_u_FIELDS(F) \
  F(SCALAR, uint8_t, repetitionPeriod2, 1, 2, _)      \
  F(SCALAR, uint8_t, repetitionPeriod4, 1, 3, _)      \
  F(SCALAR, uint8_t, repetitionPeriod8, 1, 4, _)      \
  F(SCALAR, uint8_t, repetitionPeriod16, 1, 5, _)     \
  F(SCALAR, uint8_t, repetitionPeriod32, 1, 6, _)     \
  F(SCALAR, uint8_t, repetitionPeriod64, 1, 7, _)

#define umts_repetition_period_and_length_FIELDS(F)      \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_repetition_period_and_length_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_common_timeslot_info_FIELDS(F)                                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                    \
  F(SCALAR, uint32_t, secondInterleavingMode, 1, UMTS_ALWAYS, _)                              \
  F(SCALAR, uint32_t, tfci_Coding, 1, 0, _)                                                   \
  F(SCALAR, uint32_t, puncturingLimit, 1, UMTS_ALWAYS, _)                                     \
  F(RECORD, umts_repetition_period_and_length, repetitionPeriodAndLength, 1, 1, _)

/* One burst type: the midamble configuration, the allocation mode's tag, and the shift (for
   ueSpecificMidamble only: tag 3 in type1 and type2, tag 2 in type3). */
#define umts_midamble_burst_type_FIELDS(F)                         \
  F(SCALAR, uint32_t, midambleConfiguration, 1, UMTS_ALWAYS, _)    \
  F(SCALAR, uint32_t, midambleAllocationMode, 1, UMTS_ALWAYS, _)   \
  F(SCALAR, uint8_t, midambleShift, 1, UMTS_ALWAYS, _)

#define umts_midamble_shift_and_burst_type_u_FIELDS(F)       \
  F(RECORD, umts_midamble_burst_type, type1, 1, 1, _)        \
  F(RECORD, umts_midamble_burst_type, type2, 1, 2, _)        \
  F(RECORD, umts_midamble_burst_type, type3, 1, 3, _)

#define umts_midamble_shift_and_burst_type_FIELDS(F)     \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_midamble_shift_and_burst_type_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_individual_timeslot_info_FIELDS(F)                                                \
  F(SCALAR, uint8_t, timeslotNumber, 1, UMTS_ALWAYS, _)                                        \
  F(BOOL, uint8_t, tfci_Existence, 1, UMTS_ALWAYS, _)                                          \
  F(RECORD, umts_midamble_shift_and_burst_type, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _)

#define umts_sccpch_channelisation_code_list_FIELDS(F)   \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)          \
  F(ARRAY, uint32_t, codes, 16, UMTS_ALWAYS, count)

#define umts_secondary_ccpch_info_tdd_FIELDS(F)                                                  \
  F(RECORD, umts_common_timeslot_info_sccpch, commonTimeslotInfo, 1, UMTS_ALWAYS, _)             \
  F(RECORD, umts_individual_timeslot_info, individualTimeslotInfo, 1, UMTS_ALWAYS, _)            \
  F(RECORD, umts_sccpch_channelisation_code_list, channelisationCode, 1, UMTS_ALWAYS, _)

/* SecondaryCCPCH-Info modeSpecificInfo: 1 fdd, 2 tdd. */
#define umts_secondary_ccpch_info_u_FIELDS(F)                    \
  F(RECORD, umts_secondary_ccpch_info_fdd, fdd, 1, 1, _)         \
  F(RECORD, umts_secondary_ccpch_info_tdd, tdd, 1, 2, _)

#define umts_secondary_ccpch_info_FIELDS(F)              \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_secondary_ccpch_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_fach_pch_information_FIELDS(F)                                           \
  F(RECORD, umts_transport_format_set, transportFormatSet, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, transportChannelIdentity, 1, UMTS_ALWAYS, _)                     \
  F(BOOL, uint8_t, ctch_Indicator, 1, UMTS_ALWAYS, _)

#define umts_fach_pch_information_list_FIELDS(F)                           \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)                            \
  F(ARRAY, umts_fach_pch_information, entries, 8, UMTS_ALWAYS, count)

#define umts_pich_info_fdd_FIELDS(F)                                   \
  F(SCALAR, uint8_t, channelisationCode256, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint32_t, pi_CountPerFrame, 1, UMTS_ALWAYS, _)             \
  F(BOOL, uint8_t, sttd_Indicator, 1, UMTS_ALWAYS, _)

/* RepPerLengthOffset-PICH: 1..9 rpp4-2 .. rpp64-4, the offset. */
#define umts_rep_per_length_offset_pich_u_FIELDS(F) \
  F(SCALAR, uint8_t, rpp4_2, 1, 1, _)               \
  F(SCALAR, uint8_t, rpp8_2, 1, 2, _)               \
  F(SCALAR, uint8_t, rpp8_4, 1, 3, _)               \
  F(SCALAR, uint8_t, rpp16_2, 1, 4, _)              \
  F(SCALAR, uint8_t, rpp16_4, 1, 5, _)              \
  F(SCALAR, uint8_t, rpp32_2, 1, 6, _)              \
  F(SCALAR, uint8_t, rpp32_4, 1, 7, _)              \
  F(SCALAR, uint8_t, rpp64_2, 1, 8, _)              \
  F(SCALAR, uint8_t, rpp64_4, 1, 9, _)

#define umts_rep_per_length_offset_pich_FIELDS(F)        \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_rep_per_length_offset_pich_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_pich_info_tdd_FIELDS(F)                                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(SCALAR, uint32_t, channelisationCode, 1, 0, _)                                              \
  F(SCALAR, uint8_t, timeslot, 1, 1, _)                                                         \
  F(RECORD, umts_midamble_shift_and_burst_type, midambleShiftAndBurstType, 1, UMTS_ALWAYS, _)   \
  F(RECORD, umts_rep_per_length_offset_pich, repetitionPeriodLengthOffset, 1, 2, _)             \
  F(SCALAR, uint32_t, pagingIndicatorLength, 1, UMTS_ALWAYS, _)                                 \
  F(SCALAR, uint32_t, n_GAP, 1, UMTS_ALWAYS, _)                                                 \
  F(SCALAR, uint8_t, n_PCH, 1, UMTS_ALWAYS, _)

/* PICH-Info: 1 fdd, 2 tdd. */
#define umts_pich_info_u_FIELDS(F)                       \
  F(RECORD, umts_pich_info_fdd, fdd, 1, 1, _)            \
  F(RECORD, umts_pich_info_tdd, tdd, 1, 2, _)

#define umts_pich_info_FIELDS(F)                         \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_pich_info_u, u, 1, UMTS_ALWAYS, choice_tag)

/* One S-CCPCH. Bit 1 stands for the FACH/PCH list and for the PICH alike: a PICH is known by
   the tag of pich_Info (bit 2 is never set in this record). */
#define umts_sccpch_system_information_FIELDS(F)                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_secondary_ccpch_info, secondaryCCPCH_Info, 1, UMTS_ALWAYS, _)                  \
  F(RECORD, umts_tfcs, tfcs, 1, 0, _)                                                           \
  F(RECORD, umts_fach_pch_information_list, fach_PCH_InformationList, 1, 1, _)                  \
  F(RECORD, umts_pich_info, pich_Info, 1, UMTS_ALWAYS, _)

#define umts_sccpch_system_information_list_FIELDS(F)                        \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                               \
  F(ARRAY, umts_sccpch_system_information, entries, 16, UMTS_ALWAYS, count)

/* ==== SIB5 top ========================================================================== */

#define umts_open_loop_power_control_tdd_FIELDS(F)                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, uint8_t, primaryCCPCH_TX_Power, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, alpha, 1, 0, _)                                   \
  F(SCALAR, int8_t, prach_ConstantValue, 1, UMTS_ALWAYS, _)            \
  F(SCALAR, int8_t, dpch_ConstantValue, 1, UMTS_ALWAYS, _)             \
  F(SCALAR, int8_t, pusch_ConstantValue, 1, 1, _)

#include "umts_sib_sib5_tdd.h"
#include "umts_sib_sib5_hspa.h"

/* TDD-MBSFNInformation: a count, then the pairs packed right after it. */
#define umts_tdd_mbsfn_tslot_info_FIELDS(F)               \
  F(SCALAR, uint8_t, timeSlotNumber, 1, UMTS_ALWAYS, _)   \
  F(SCALAR, uint8_t, cellParametersID, 1, UMTS_ALWAYS, _)

#define umts_tdd_mbsfn_information_FIELDS(F)                          \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                        \
  F(ARRAY, umts_tdd_mbsfn_tslot_info, entries, 14, UMTS_ALWAYS, count)

#define umts_sib5_mode_specific_info_fdd_FIELDS(F) F(SCALAR, int8_t, aich_PowerOffset, 1, UMTS_ALWAYS, _)

#define umts_sib5_mode_specific_info_tdd_FIELDS(F)                                                   \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                           \
  F(RECORD, umts_pusch_sysinfo_list_sfn, pusch_SysInfoList_SFN, 1, 0, _)                             \
  F(RECORD, umts_pdsch_sysinfo_list_sfn, pdsch_SysInfoList_SFN, 1, 1, _)                             \
  F(RECORD, umts_open_loop_power_control_tdd, openLoopPowerControl_TDD, 1, UMTS_ALWAYS, _)

/* modeSpecificInfo of SIB5: 1 fdd, 2 tdd. */
#define umts_sib5_mode_specific_info_u_FIELDS(F)                     \
  F(RECORD, umts_sib5_mode_specific_info_fdd, fdd, 1, 1, _)          \
  F(RECORD, umts_sib5_mode_specific_info_tdd, tdd, 1, 2, _)

#define umts_sib5_mode_specific_info_FIELDS(F)           \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)     \
  F(UNION, umts_sib5_mode_specific_info_u, u, 1, UMTS_ALWAYS, choice_tag)

#define umts_cbs_drx_level1_information_FIELDS(F)                \
  F(SCALAR, uint16_t, ctch_AllocationPeriod, 1, UMTS_ALWAYS, _)  \
  F(SCALAR, uint8_t, cbs_FrameOffset, 1, UMTS_ALWAYS, _)

/* ---- Extensions ------------------------------------------------------------------------- */

#define umts_pnbsch_allocation_r4_FIELDS(F) \
  F(SCALAR, uint32_t, numberOfRepetitionsPerSFNPeriod, 1, UMTS_ALWAYS, _)

#define umts_open_loop_power_control_ipdl_tdd_FIELDS(F)  \
  F(SCALAR, uint8_t, ipdl_alpha, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint8_t, maxPowerIncrease, 1, UMTS_ALWAYS, _)

#define umts_sib5_v4b0ext_FIELDS(F)                                                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                           \
  F(RECORD, umts_pnbsch_allocation_r4, pNBSCH_Allocation_r4, 1, 0, _)                                \
  F(RECORD, umts_open_loop_power_control_ipdl_tdd, openLoopPowerControl_IPDL_TDD, 1, 1, _)           \
  F(RECORD, umts_prach_system_information_list_lcr_r4, prach_SystemInformationList_LCR_r4, 1, 2, _)  \
  F(RECORD, umts_sib5_tdd128_specific_info, tdd128SpecificInfo, 1, 3, _)                             \
  F(SCALAR, uint32_t, frequencyBandIndicator, 1, 4, _)

#define umts_sib5_v590ext_FIELDS(F)                                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                          \
  F(RECORD, umts_sib5_hcr_r5_specific_info, hcr_r5_SpecificInfo, 1, 0, _)

#define umts_sib5_v650ext_FIELDS(F) F(SCALAR, uint32_t, frequencyBandIndicator2, 1, UMTS_ALWAYS, _)

#define umts_sib5_v680ext_FIELDS(F)                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint32_t, hsdpa_CellIndicator, 1, 0, _)

#define umts_sib5_v690ext_FIELDS(F)                                                                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                \
  F(SCALAR, uint32_t, edch_CellIndicator, 1, 0, _)                                                        \
  F(RECORD, umts_sib5_v690_sccpch_mbms, sccpch_SystemInformation_MBMS, 1, 1, _)                    \
  F(RECORD, umts_additional_prach_tf_and_tfcs_ccch_list, additionalPRACH_TF_and_TFCS_CCCH_List, 1, 2, _)  \
  F(SCALAR, uint32_t, cBS_DRX_Level1Information_extension, 1, 3, _)

#define umts_sib5_v770ext_FIELDS(F)                                                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                 \
  F(RECORD, umts_sib5_v770_mode_specific_info, modeSpecificInfo, 1, 0, _)                                  \
  F(RECORD, umts_sccpch_system_information_list_hcr_vhcr_r7, sccpch_SystemInformationList, 1, 1, _)        \
  F(RECORD, umts_sib5_v770_sccpch_mbms, sccpch_SystemInformation_MBMS, 1, 2, _)                          \
  F(RECORD, umts_tdd_mbsfn_information, tDD_MBSFNInformation, 1, 3, _)

#define umts_sib5_v860ext_FIELDS(F)                                                             \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(SCALAR, uint8_t, dummy, 1, 0, _)                                                            \
  F(RECORD, umts_sib5_v860_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)

#define umts_second_frequency_info_FIELDS(F) F(SCALAR, uint16_t, uarfcn_Nt, 1, UMTS_ALWAYS, _)

#define umts_sib5_v890ext_FIELDS(F)                                                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_second_frequency_info, secondFrequencyInfo, 1, 0, _)                   \
  F(RECORD, umts_common_edch_system_info, commonEDCHSystemInfo, 1, 1, _)

#define umts_sib5_v8b0ext_FIELDS(F)                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)           \
  F(SCALAR, uint32_t, tresetUsageIndicator, 1, 0, _)                 \
  F(BOOL, uint8_t, upPCHpositionInfo, 1, 1, _)

#define umts_sib5_v8d0ext_FIELDS(F)                                                  \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                           \
  F(RECORD, umts_common_edch_system_info_fdd, commonEDCHSystemInfoFDD, 1, 0, _)

/* The chain: each level its extension and the next level. From v690 on the extension is
   always there once its level is. */
#define umts_sib5_v8d0_nces_FIELDS(F)                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                           \
  F(RECORD, umts_sib5_v8d0ext, sysInfoType5_v8d0ext, 1, UMTS_ALWAYS, _)              \
  F(SCALAR, uint8_t, nonCriticalExtensions, 1, 0, _)

#define UMTS_SIB5_NCES_ALWAYS(F, ext, next_type, next)                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                   \
  F(RECORD, umts_sib5_##ext, sysInfoType5_##ext, 1, UMTS_ALWAYS, _)          \
  F(RECORD, next_type, next, 1, 0, _)

#define umts_sib5_v8b0_nces_FIELDS(F) \
  UMTS_SIB5_NCES_ALWAYS(F, v8b0ext, umts_sib5_v8d0_nces, v8d0NonCriticalExtensions)
#define umts_sib5_v890_nces_FIELDS(F) \
  UMTS_SIB5_NCES_ALWAYS(F, v890ext, umts_sib5_v8b0_nces, v8b0NonCriticalExtensions)
#define umts_sib5_v860_nces_FIELDS(F) \
  UMTS_SIB5_NCES_ALWAYS(F, v860ext, umts_sib5_v890_nces, v890NonCriticalExtensions)
#define umts_sib5_v770_nces_FIELDS(F) \
  UMTS_SIB5_NCES_ALWAYS(F, v770ext, umts_sib5_v860_nces, v860NonCriticalExtensions)
#define umts_sib5_v690_nces_FIELDS(F) \
  UMTS_SIB5_NCES_ALWAYS(F, v690ext, umts_sib5_v770_nces, v770NonCriticalExtensions)

/* Levels v4b0 to v680: bit 0 the extension, bit 1 the next level. */
#define UMTS_SIB5_NCES_OPTIONAL(F, ext, next_type, next)                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                   \
  F(RECORD, umts_sib5_##ext, sysInfoType5_##ext, 1, 0, _)                    \
  F(RECORD, next_type, next, 1, 1, _)

#define umts_sib5_v680_nces_FIELDS(F) \
  UMTS_SIB5_NCES_OPTIONAL(F, v680ext, umts_sib5_v690_nces, v690NonCriticalExtensions)
#define umts_sib5_v650_nces_FIELDS(F) \
  UMTS_SIB5_NCES_OPTIONAL(F, v650ext, umts_sib5_v680_nces, v680NonCriticalExtensions)
#define umts_sib5_v590_nces_FIELDS(F) \
  UMTS_SIB5_NCES_OPTIONAL(F, v590ext, umts_sib5_v650_nces, v650NonCriticalExtensions)
#define umts_sib5_v4b0_nces_FIELDS(F) \
  UMTS_SIB5_NCES_OPTIONAL(F, v4b0ext, umts_sib5_v590_nces, v590NonCriticalExtensions)

#define umts_sib5_info_FIELDS(F)                                                                        \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                              \
  F(BOOL, uint8_t, sib6indicator, 1, UMTS_ALWAYS, _)                                                    \
  F(SCALAR, int8_t, pich_PowerOffset, 1, UMTS_ALWAYS, _)                                                \
  F(RECORD, umts_sib5_mode_specific_info, modeSpecificInfo, 1, UMTS_ALWAYS, _)                          \
  F(RECORD, umts_primary_ccpch_info, primaryCCPCH_Info, 1, 0, _)                                        \
  F(RECORD, umts_prach_system_information_list, prach_SystemInformationList, 1, UMTS_ALWAYS, _)         \
  F(RECORD, umts_sccpch_system_information_list, sCCPCH_SystemInformationList, 1, UMTS_ALWAYS, _)       \
  F(RECORD, umts_cbs_drx_level1_information, cbs_DRX_Level1Information, 1, 1, _)                        \
  F(RECORD, umts_sib5_v4b0_nces, v4b0NonCriticalExtensions, 1, 2, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SIB5_RECORDS(X)                                     \
  X(UNION, umts_octet_mode_rlc_size_info_type2_u)                \
  X(RECORD, umts_octet_mode_rlc_size_info_type2)                 \
  X(RECORD, umts_rlc_size_parts)                                 \
  X(UNION, umts_bit_mode_rlc_size_info_u)                        \
  X(RECORD, umts_bit_mode_rlc_size_info)                         \
  X(UNION, umts_octet_mode_rlc_size_info_type1_u)                \
  X(RECORD, umts_octet_mode_rlc_size_info_type1)                 \
  X(UNION, umts_common_tdd_choice_u)                             \
  X(RECORD, umts_common_tdd_choice)                              \
  X(UNION, umts_common_rlc_size_u)                               \
  X(RECORD, umts_common_rlc_size)                                \
  X(UNION, umts_dedicated_rlc_size_u)                            \
  X(RECORD, umts_dedicated_rlc_size)                             \
  X(UNION, umts_number_of_transport_blocks_u)                    \
  X(RECORD, umts_number_of_transport_blocks)                     \
  X(RECORD, umts_number_of_tb_size)                              \
  X(RECORD, umts_number_of_tb_size_list)                         \
  X(RECORD, umts_number_of_tb_size_and_tti)                      \
  X(RECORD, umts_number_of_tb_size_and_tti_list)                 \
  X(RECORD, umts_logical_channel_by_rb)                          \
  X(RECORD, umts_logical_channel_explicit_list)                  \
  X(UNION, umts_logical_channel_list_u)                          \
  X(RECORD, umts_logical_channel_list)                           \
  X(RECORD, umts_common_dynamic_tf_info)                         \
  X(RECORD, umts_common_dynamic_tf_info_list)                    \
  X(RECORD, umts_common_dynamic_tf_info_dynamic_tti)             \
  X(RECORD, umts_common_dynamic_tf_info_list_dynamic_tti)        \
  X(RECORD, umts_dedicated_dynamic_tf_info)                      \
  X(RECORD, umts_dedicated_dynamic_tf_info_list)                 \
  X(RECORD, umts_dedicated_dynamic_tf_info_dynamic_tti)          \
  X(RECORD, umts_dedicated_dynamic_tf_info_list_dynamic_tti)     \
  X(UNION, umts_channel_coding_type_u)                           \
  X(RECORD, umts_channel_coding_type)                            \
  X(RECORD, umts_semistatic_tf_information)                      \
  X(UNION, umts_common_trans_ch_tfs_tti_u)                       \
  X(RECORD, umts_common_trans_ch_tfs_tti)                        \
  X(RECORD, umts_common_trans_ch_tfs)                            \
  X(UNION, umts_common_trans_ch_tfs_lcr_tti_u)                   \
  X(RECORD, umts_common_trans_ch_tfs_lcr_tti)                    \
  X(RECORD, umts_common_trans_ch_tfs_lcr)                        \
  X(UNION, umts_dedicated_trans_ch_tfs_tti_u)                    \
  X(RECORD, umts_dedicated_trans_ch_tfs_tti)                     \
  X(RECORD, umts_dedicated_trans_ch_tfs)                         \
  X(UNION, umts_transport_format_set_u)                          \
  X(RECORD, umts_transport_format_set)                           \
  X(UNION, umts_transport_format_set_lcr_u)                      \
  X(RECORD, umts_transport_format_set_lcr)                       \
  X(RECORD, umts_signalled_gain_factors_fdd)                     \
  X(UNION, umts_signalled_gain_factors_mode_specific_info_u)     \
  X(RECORD, umts_signalled_gain_factors_mode_specific_info)      \
  X(RECORD, umts_signalled_gain_factors)                         \
  X(UNION, umts_gain_factor_information_u)                       \
  X(RECORD, umts_gain_factor_information)                        \
  X(RECORD, umts_power_offset_information)                       \
  X(RECORD, umts_tfcs_ctfc_entry)                                \
  X(RECORD, umts_tfcs_reconf_add)                                \
  X(RECORD, umts_tfcs_removal_list)                              \
  X(RECORD, umts_explicit_tfcs_replacement)                      \
  X(UNION, umts_explicit_tfcs_configuration_u)                   \
  X(RECORD, umts_explicit_tfcs_configuration)                    \
  X(UNION, umts_tfcs_info_for_dsch_u)                            \
  X(RECORD, umts_tfcs_info_for_dsch)                             \
  X(RECORD, umts_tfci_range)                                     \
  X(RECORD, umts_tfci_range_list)                                \
  X(UNION, umts_tfci_field2_information_u)                       \
  X(RECORD, umts_tfci_field2_information)                        \
  X(RECORD, umts_split_tfci_signalling)                          \
  X(UNION, umts_tfcs_u)                                          \
  X(RECORD, umts_tfcs)                                           \
  X(RECORD, umts_bit_string32)                                   \
  X(RECORD, umts_prach_rach_info_fdd)                            \
  X(RECORD, umts_tdd_prach_ccode_list_n)                         \
  X(UNION, umts_tdd_prach_ccode_list_u)                          \
  X(RECORD, umts_tdd_prach_ccode_list)                           \
  X(RECORD, umts_prach_rach_info_tdd)                            \
  X(UNION, umts_prach_rach_info_u)                               \
  X(RECORD, umts_prach_rach_info)                                \
  X(RECORD, umts_access_service_class_fdd)                       \
  X(RECORD, umts_asc_setting_fdd)                                \
  X(RECORD, umts_channelisation_code_indices)                    \
  X(RECORD, umts_subchannel_size2)                               \
  X(RECORD, umts_subchannel_size_bits)                           \
  X(UNION, umts_subchannel_size_u)                               \
  X(RECORD, umts_subchannel_size)                                \
  X(RECORD, umts_access_service_class_tdd)                       \
  X(RECORD, umts_asc_setting_tdd)                                \
  X(RECORD, umts_prach_partitioning_fdd)                         \
  X(RECORD, umts_prach_partitioning_tdd)                         \
  X(UNION, umts_prach_partitioning_u)                            \
  X(RECORD, umts_prach_partitioning)                             \
  X(RECORD, umts_persistence_scaling_factor_list)                \
  X(RECORD, umts_ac_to_asc_mapping_table)                        \
  X(RECORD, umts_prach_power_offset)                             \
  X(RECORD, umts_rach_transmission_parameters)                   \
  X(RECORD, umts_aich_info)                                      \
  X(RECORD, umts_prach_system_information_fdd)                   \
  X(UNION, umts_prach_system_information_mode_specific_info_u)   \
  X(RECORD, umts_prach_system_information_mode_specific_info)    \
  X(RECORD, umts_prach_system_information)                       \
  X(RECORD, umts_prach_system_information_list)                  \
  X(RECORD, umts_secondary_cpich_info)                           \
  X(UNION, umts_sf256_and_code_number_u)                         \
  X(RECORD, umts_sf256_and_code_number)                          \
  X(RECORD, umts_secondary_ccpch_info_fdd)                       \
  X(RECORD, umts_repetition_period_length_offset)                \
  X(UNION, umts_repetition_period_length_and_offset_u)           \
  X(RECORD, umts_repetition_period_length_and_offset)            \
  X(RECORD, umts_common_timeslot_info_sccpch)                    \
  X(UNION, umts_repetition_period_and_length_u)                  \
  X(RECORD, umts_repetition_period_and_length)                   \
  X(RECORD, umts_common_timeslot_info)                           \
  X(RECORD, umts_midamble_burst_type)                            \
  X(UNION, umts_midamble_shift_and_burst_type_u)                 \
  X(RECORD, umts_midamble_shift_and_burst_type)                  \
  X(RECORD, umts_individual_timeslot_info)                       \
  X(RECORD, umts_sccpch_channelisation_code_list)                \
  X(RECORD, umts_secondary_ccpch_info_tdd)                       \
  X(UNION, umts_secondary_ccpch_info_u)                          \
  X(RECORD, umts_secondary_ccpch_info)                           \
  X(RECORD, umts_fach_pch_information)                           \
  X(RECORD, umts_fach_pch_information_list)                      \
  X(RECORD, umts_pich_info_fdd)                                  \
  X(UNION, umts_rep_per_length_offset_pich_u)                    \
  X(RECORD, umts_rep_per_length_offset_pich)                     \
  X(RECORD, umts_pich_info_tdd)                                  \
  X(UNION, umts_pich_info_u)                                     \
  X(RECORD, umts_pich_info)                                      \
  X(RECORD, umts_sccpch_system_information)                      \
  X(RECORD, umts_sccpch_system_information_list)                 \
  X(RECORD, umts_open_loop_power_control_tdd)                    \
  UMTS_SIB5_TDD_RECORDS(X)                                       \
  UMTS_SIB5_HSPA_RECORDS(X)                                      \
  X(RECORD, umts_tdd_mbsfn_tslot_info)                           \
  X(RECORD, umts_tdd_mbsfn_information)                          \
  X(RECORD, umts_sib5_mode_specific_info_fdd)                    \
  X(RECORD, umts_sib5_mode_specific_info_tdd)                    \
  X(UNION, umts_sib5_mode_specific_info_u)                       \
  X(RECORD, umts_sib5_mode_specific_info)                        \
  X(RECORD, umts_cbs_drx_level1_information)                     \
  X(RECORD, umts_pnbsch_allocation_r4)                           \
  X(RECORD, umts_open_loop_power_control_ipdl_tdd)               \
  X(RECORD, umts_sib5_v4b0ext)                                   \
  X(RECORD, umts_sib5_v590ext)                                   \
  X(RECORD, umts_sib5_v650ext)                                   \
  X(RECORD, umts_sib5_v680ext)                                   \
  X(RECORD, umts_sib5_v690ext)                                   \
  X(RECORD, umts_sib5_v770ext)                                   \
  X(RECORD, umts_sib5_v860ext)                                   \
  X(RECORD, umts_second_frequency_info)                          \
  X(RECORD, umts_sib5_v890ext)                                   \
  X(RECORD, umts_sib5_v8b0ext)                                   \
  X(RECORD, umts_sib5_v8d0ext)                                   \
  X(RECORD, umts_sib5_v8d0_nces)                                 \
  X(RECORD, umts_sib5_v8b0_nces)                                 \
  X(RECORD, umts_sib5_v890_nces)                                 \
  X(RECORD, umts_sib5_v860_nces)                                 \
  X(RECORD, umts_sib5_v770_nces)                                 \
  X(RECORD, umts_sib5_v690_nces)                                 \
  X(RECORD, umts_sib5_v680_nces)                                 \
  X(RECORD, umts_sib5_v650_nces)                                 \
  X(RECORD, umts_sib5_v590_nces)                                 \
  X(RECORD, umts_sib5_v4b0_nces)                                 \
  X(RECORD, umts_sib5_info)

UMTS_SIB5_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SIB5_H */
