/*
 * Transport format sets and TFCS: the two largest records of the channel tree, embedded by
 * value wherever a channel needs them.
 *
 * Kept as the system has always stored them: every CTFC of an added set in one octet, the
 * commonTDD-Choice tag in 16 bits, a tfci-Range count of 256 as 0 in its octet, and the
 * dynamic list of a common set converted into its first entry (see below).
 */
#include "convert_frame.h"
#include "convert_list.h"
#include "umts_sib_convert.h"

/* ---- Transport format sets ------------------------------------------------------------ */

void convert_transport_format_set(const TransportFormatSet* src, umts_transport_format_set* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.dedicatedTransChTFS != nullptr)
    convert_dedicated_trans_ch_tfs(src->u.dedicatedTransChTFS, &dst->u.dedicatedTransChTFS);
  else if (src->t == 2 && src->u.commonTransChTFS != nullptr)
    convert_common_trans_ch_tfs(src->u.commonTransChTFS, &dst->u.commonTransChTFS);
}

void convert_transport_format_set_lcr(const TransportFormatSet_LCR* src, umts_transport_format_set_lcr* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.dedicatedTransChTFS != nullptr)
    convert_dedicated_trans_ch_tfs(src->u.dedicatedTransChTFS, &dst->u.dedicatedTransChTFS);
  else if (src->t == 2 && src->u.commonTransChTFS_LCR != nullptr)
    convert_common_trans_ch_tfs_lcr(src->u.commonTransChTFS_LCR, &dst->u.commonTransChTFS_LCR);
}

void convert_common_trans_ch_tfs(const CommonTransChTFS* src, umts_common_trans_ch_tfs* dst) {
  convert_common_trans_ch_tfs_tti(&src->tti, &dst->tti);
  convert_semistatic_tf_information(&src->semistaticTF_Information, &dst->semistaticTF_Information);
}

void convert_dedicated_trans_ch_tfs(const DedicatedTransChTFS* src, umts_dedicated_trans_ch_tfs* dst) {
  convert_dedicated_trans_ch_tfs_tti(&src->tti, &dst->tti);
  convert_semistatic_tf_information(&src->semistaticTF_Information, &dst->semistaticTF_Information);
}

void convert_common_trans_ch_tfs_lcr(const CommonTransChTFS_LCR* src, umts_common_trans_ch_tfs_lcr* dst) {
  convert_common_trans_ch_tfs_lcr_tti(&src->tti, &dst->tti);
  convert_semistatic_tf_information(&src->semistaticTF_Information, &dst->semistaticTF_Information);
}

/* The plain lists tti10 .. tti80 share one layout in the decoded union and in the record. */
void convert_common_trans_ch_tfs_tti(const CommonTransChTFS_tti* src, umts_common_trans_ch_tfs_tti* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 1 && src->t <= 4 && src->u.tti10 != nullptr) {
    umts_common_dynamic_tf_info_list* lists[] = {&dst->u.tti10, &dst->u.tti20, &dst->u.tti40, &dst->u.tti80};
    convert_common_dynamic_tf_info_list(src->u.tti10, lists[src->t - 1]);
  } else if (src->t == 5 && src->u.dynamic != nullptr) {
    convert_common_dynamic_tf_info_list_dynamic_tti(src->u.dynamic, &dst->u.dynamic);
  }
}

void convert_common_trans_ch_tfs_lcr_tti(const CommonTransChTFS_LCR_tti* src, umts_common_trans_ch_tfs_lcr_tti* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 1 && src->t <= 5 && src->u.tti5 != nullptr) {
    umts_common_dynamic_tf_info_list* lists[] = {&dst->u.tti5, &dst->u.tti10, &dst->u.tti20, &dst->u.tti40, &dst->u.tti80};
    convert_common_dynamic_tf_info_list(src->u.tti5, lists[src->t - 1]);
  } else if (src->t == 6 && src->u.dynamic != nullptr) {
    convert_common_dynamic_tf_info_list_dynamic_tti(src->u.dynamic, &dst->u.dynamic);
  }
}

void convert_dedicated_trans_ch_tfs_tti(const DedicatedTransChTFS_tti* src, umts_dedicated_trans_ch_tfs_tti* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 1 && src->t <= 4 && src->u.tti10 != nullptr) {
    umts_dedicated_dynamic_tf_info_list* lists[] = {&dst->u.tti10, &dst->u.tti20, &dst->u.tti40, &dst->u.tti80};
    convert_dedicated_dynamic_tf_info_list(src->u.tti10, lists[src->t - 1]);
  } else if (src->t == 5 && src->u.dynamic != nullptr) {
    convert_dedicated_dynamic_tf_info_list_dynamic_tti(src->u.dynamic, &dst->u.dynamic);
  }
}

void convert_common_dynamic_tf_info_list(const CommonDynamicTF_InfoList* src, umts_common_dynamic_tf_info_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<CommonDynamicTF_Info>(src, 32u, [dst](const CommonDynamicTF_Info* entry, uint32_t i) {
    umts_common_dynamic_tf_info* out = &dst->entries[i];
    out->rlc_Size.choice_tag = entry->rlc_Size.t;
    if (entry->rlc_Size.t == 1 && entry->rlc_Size.u.fdd != nullptr)
      convert_octet_mode_rlc_size_info_type2(&entry->rlc_Size.u.fdd->octetModeRLC_SizeInfoType2,
                                             &out->rlc_Size.u.octetModeRLC_SizeInfoType2);
    else if (entry->rlc_Size.t == 2 && entry->rlc_Size.u.tdd != nullptr)
      convert_common_dynamic_tf_info_rlc_size_tdd_common_tdd_choice(&entry->rlc_Size.u.tdd->commonTDD_Choice,
                                                                    &out->rlc_Size.u.commonTDD_Choice);
    convert_common_dynamic_tf_info_num_of_tb_size_list(&entry->numberOfTbSizeList, &out->numberOfTbSizeList);
    convert_logical_channel_list(&entry->logicalChannelList, &out->logicalChannelList);
  });
}

/* The dynamic list of a common set. Every element is converted into entries[0], over the one
   before it (what an earlier element wrote and a later one does not write stays), so that it
   ends with the last one while `count` holds them all. The walk goes on while the list has
   nodes: the continuation words that the system once read lay past the list header, outside
   the decoded value, and are not read. What the earlier elements wrote beyond the last one's
   own counts stays in entries[0]; a set of the library clears that entry whole, as it clears
   every entry of this size. */
static_assert(sizeof(umts_common_dynamic_tf_info_dynamic_tti) <= UMTS_RECORD_WRITE_WHOLE,
              "entries[0] of a common dynamic TTI list must be cleared whole");
void convert_common_dynamic_tf_info_list_dynamic_tti(const CommonDynamicTF_InfoList_DynamicTTI* src,
                                                     umts_common_dynamic_tf_info_list_dynamic_tti* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_common_dynamic_tf_info_dynamic_tti* out = &dst->entries[0];
  umts_for_each_node<CommonDynamicTF_Info_DynamicTTI>(src, 32u, [out](const CommonDynamicTF_Info_DynamicTTI* entry, uint32_t) {
    convert_commmon_dynamic_tf_ino_common_tdd_choice(&entry->commonTDD_Choice, &out->commonTDD_Choice);
    convert_number_of_tb_size_n_tti_list(&entry->numberOfTbSizeAndTTIList, &out->numberOfTbSizeAndTTIList);
    convert_logical_channel_list(&entry->logicalChannelList, &out->logicalChannelList);
  });
}

void convert_dedicated_dynamic_tf_info_list(const DedicatedDynamicTF_InfoList* src,
                                            umts_dedicated_dynamic_tf_info_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<DedicatedDynamicTF_Info>(src, 32u, [dst](const DedicatedDynamicTF_Info* entry, uint32_t i) {
    umts_dedicated_dynamic_tf_info* out = &dst->entries[i];
    out->rlc_Size.choice_tag = entry->rlc_Size.t;
    if (entry->rlc_Size.t == 1 && entry->rlc_Size.u.bitMode != nullptr)
      convert_bit_mode_rlc_size_info(entry->rlc_Size.u.bitMode, &out->rlc_Size.u.bitMode);
    else if (entry->rlc_Size.t == 2 && entry->rlc_Size.u.octetModeType1 != nullptr)
      convert_octet_mode_rlc_size_info_type_1(entry->rlc_Size.u.octetModeType1, &out->rlc_Size.u.octetModeType1);
    convert_dedicated_dynamic_tf_info_num_of_tb_size_list(&entry->numberOfTbSizeList, &out->numberOfTbSizeList);
    convert_logical_channel_list(&entry->logicalChannelList, &out->logicalChannelList);
  });
}

void convert_dedicated_dynamic_tf_info_list_dynamic_tti(const DedicatedDynamicTF_InfoList_DynamicTTI* src,
                                                        umts_dedicated_dynamic_tf_info_list_dynamic_tti* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<DedicatedDynamicTF_Info_DynamicTTI>(
      src, 32u, [dst](const DedicatedDynamicTF_Info_DynamicTTI* entry, uint32_t i) {
        umts_dedicated_dynamic_tf_info_dynamic_tti* out = &dst->entries[i];
        out->rlc_Size.choice_tag = entry->rlc_Size.t;
        if (entry->rlc_Size.t == 1 && entry->rlc_Size.u.bitMode != nullptr)
          convert_bit_mode_rlc_size_info(entry->rlc_Size.u.bitMode, &out->rlc_Size.u.bitMode);
        else if (entry->rlc_Size.t == 2 && entry->rlc_Size.u.octetModeType1 != nullptr)
          convert_octet_mode_rlc_size_info_type_1(entry->rlc_Size.u.octetModeType1, &out->rlc_Size.u.octetModeType1);
        convert_number_of_tb_size_n_tti_list(&entry->numberOfTbSizeAndTTIList, &out->numberOfTbSizeAndTTIList);
        convert_logical_channel_list(&entry->logicalChannelList, &out->logicalChannelList);
      });
}

/* ---- Numbers of transport blocks ---------------------------------------------------------- */

namespace {
/* zero and one are the tag alone; small is an octet, large 16 bits. */
void copy_number_of_transport_blocks(const NumberOfTransportBlocks* src, umts_number_of_transport_blocks* dst) {
  dst->choice_tag = src->t;
  if (src->t == 3) dst->u.small = src->u.small;
  else if (src->t == 4) dst->u.large = src->u.large;
}

void copy_tb_size_list(const rtxDList* src, umts_number_of_tb_size_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<NumberOfTransportBlocks>(src, 32u, [dst](const NumberOfTransportBlocks* entry, uint32_t i) {
    copy_number_of_transport_blocks(entry, &dst->entries[i].numberOfTransportBlocks);
  });
}

/* The 16-bit store of a commonTDD-Choice tag: the decoder's 32-bit tag keeps its low half. */
template <class Src>
void copy_common_tdd_choice(const Src* src, umts_common_tdd_choice* dst) {
  dst->choice_tag = static_cast<uint16_t>(src->t);
  if (src->t == 1 && src->u.bitModeRLC_SizeInfo != nullptr)
    convert_bit_mode_rlc_size_info(src->u.bitModeRLC_SizeInfo, &dst->u.bitModeRLC_SizeInfo);
  else if (src->t == 2 && src->u.octetModeRLC_SizeInfoType1 != nullptr)
    convert_octet_mode_rlc_size_info_type_1(src->u.octetModeRLC_SizeInfoType1, &dst->u.octetModeRLC_SizeInfoType1);
}
}  // namespace

void convert_common_dynamic_tf_info_num_of_tb_size_list(const CommonDynamicTF_Info_numberOfTbSizeList* src,
                                                        umts_number_of_tb_size_list* dst) {
  copy_tb_size_list(src, dst);
}

void convert_dedicated_dynamic_tf_info_num_of_tb_size_list(const DedicatedDynamicTF_Info_numberOfTbSizeList* src,
                                                           umts_number_of_tb_size_list* dst) {
  copy_tb_size_list(src, dst);
}

void convert_number_of_tb_size_n_tti_list(const NumberOfTbSizeAndTTIList* src, umts_number_of_tb_size_and_tti_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<NumberOfTbSizeAndTTIList_element>(
      src, 32u, [dst](const NumberOfTbSizeAndTTIList_element* entry, uint32_t i) {
        copy_number_of_transport_blocks(&entry->numberOfTransportBlocks, &dst->entries[i].numberOfTransportBlocks);
        dst->entries[i].transmissionTimeInterval = entry->transmissionTimeInterval;
      });
}

/* ---- RLC sizes ------------------------------------------------------------------------------ */

void convert_commmon_dynamic_tf_ino_common_tdd_choice(const CommonDynamicTF_Info_DynamicTTI_commonTDD_Choice* src,
                                                      umts_common_tdd_choice* dst) {
  copy_common_tdd_choice(src, dst);
}

void convert_common_dynamic_tf_info_rlc_size_tdd_common_tdd_choice(
    const CommonDynamicTF_Info_rlc_Size_tdd_commonTDD_Choice* src, umts_common_tdd_choice* dst) {
  copy_common_tdd_choice(src, dst);
}

void convert_octet_mode_rlc_size_info_type2(const OctetModeRLC_SizeInfoType2* src, umts_octet_mode_rlc_size_info_type2* dst) {
  dst->choice_tag = src->t;
  if (src->t >= 1 && src->t <= 3) dst->u.sizeType1 = src->u.sizeType1; /* one octet for all three */
}

void convert_octet_mode_rlc_size_info_type_1(const OctetModeRLC_SizeInfoType1* src, umts_octet_mode_rlc_size_info_type1* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) {
    dst->u.sizeType1 = src->u.sizeType1;
  } else if (src->t == 2 && src->u.sizeType2 != nullptr) {
    dst->u.sizeType2.part1 = src->u.sizeType2->part1;
    UMTS_COPY_OPTIONAL(src->u.sizeType2, &dst->u.sizeType2, 1u, part2);
  } else if (src->t == 3 && src->u.sizeType3 != nullptr) {
    dst->u.sizeType3.part1 = src->u.sizeType3->part1;
    UMTS_COPY_OPTIONAL(src->u.sizeType3, &dst->u.sizeType3, 1u, part2);
  }
}

void convert_bit_mode_rlc_size_info(const BitModeRLC_SizeInfo* src, umts_bit_mode_rlc_size_info* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1: dst->u.sizeType1 = src->u.sizeType1; break;
    case 2: convert_rlc_size_info_size_type2(src->u.sizeType2, &dst->u.sizeType2); break;
    case 3: convert_rlc_size_info_size_type3(src->u.sizeType3, &dst->u.sizeType3); break;
    case 4: convert_rlc_size_info_size_type4(src->u.sizeType4, &dst->u.sizeType4); break;
    default: break;
  }
}

namespace {
template <class Src>
void copy_parts(const Src* src, umts_rlc_size_parts* dst) {
  if (src == nullptr) return;
  dst->part1 = src->part1;
  UMTS_COPY_OPTIONAL(src, dst, 1u, part2);
}
}  // namespace

void convert_rlc_size_info_size_type2(const BitModeRLC_SizeInfo_sizeType2* src, umts_rlc_size_parts* dst) {
  copy_parts(src, dst);
}
void convert_rlc_size_info_size_type3(const BitModeRLC_SizeInfo_sizeType3* src, umts_rlc_size_parts* dst) {
  copy_parts(src, dst);
}
void convert_rlc_size_info_size_type4(const BitModeRLC_SizeInfo_sizeType4* src, umts_rlc_size_parts* dst) {
  copy_parts(src, dst);
}

/* ---- Logical channels and semi-static information --------------------------------------- */

void convert_logical_channel_list(const LogicalChannelList* src, umts_logical_channel_list* dst) {
  dst->choice_tag = src->t;
  if (src->t == 3 && src->u.explicitList != nullptr)
    convert_logical_channel_list_explicitList(src->u.explicitList, &dst->u.explicitList);
}

void convert_logical_channel_list_explicitList(const LogicalChannelList_explicitList* src,
                                               umts_logical_channel_explicit_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<LogicalChannelByRB>(src, 15u, [dst](const LogicalChannelByRB* entry, uint32_t i) {
    dst->entries[i].rb_Identity = entry->rb_Identity;
    UMTS_COPY_OPTIONAL(entry, &dst->entries[i], 1u, logChOfRb);
  });
}

void convert_semistatic_tf_information(const SemistaticTF_Information* src, umts_semistatic_tf_information* dst) {
  convert_channel_coding_type(&src->channelCodingType, &dst->channelCodingType);
  dst->rateMatchingAttribute = src->rateMatchingAttribute;
  dst->crc_Size = src->crc_Size;
}

void convert_channel_coding_type(const ChannelCodingType* src, umts_channel_coding_type* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2) dst->u.convolutional = src->u.convolutional;
}

/* ---- TFCS ------------------------------------------------------------------------------------ */

void convert_tfcs(const TFCS* src, umts_tfcs* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.normalTFCI_Signalling != nullptr)
    convert_explicit_tfcs_configuration(src->u.normalTFCI_Signalling, &dst->u.normalTFCI_Signalling);
  else if (src->t == 2 && src->u.dummy != nullptr)
    convert_split_tfci_signalling(src->u.dummy, &dst->u.dummy);
}

/* complete and addition share the add record and differ only in the tag. */
void convert_explicit_tfcs_configuration(const ExplicitTFCS_Configuration* src, umts_explicit_tfcs_configuration* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1:
      if (src->u.complete != nullptr) convert_tfcs_reconf_add(src->u.complete, &dst->u.complete);
      break;
    case 2:
      if (src->u.addition != nullptr) convert_tfcs_reconf_add(src->u.addition, &dst->u.addition);
      break;
    case 3:
      if (src->u.removal != nullptr) convert_tfcs_removal_list(src->u.removal, &dst->u.removal);
      break;
    case 4:
      if (src->u.replacement != nullptr) convert_explicit_tfcs_configuration_replacement(src->u.replacement, &dst->u.replacement);
      break;
    default: break;
  }
}

void convert_explicit_tfcs_configuration_replacement(const ExplicitTFCS_Configuration_replacement* src,
                                                     umts_explicit_tfcs_replacement* dst) {
  convert_tfcs_removal_list(&src->tfcsRemoval, &dst->tfcsRemoval);
  convert_tfcs_reconf_add(&src->tfcsAdd, &dst->tfcsAdd);
}

void convert_tfcs_removal_list(const TFCS_RemovalList* src, umts_tfcs_removal_list* dst) {
  dst->count = static_cast<uint16_t>(src->count);
  umts_for_each_node<TFCS_Removal>(src, 1024u, [dst](const TFCS_Removal* entry, uint32_t i) { dst->tfci[i] = entry->tfci; });
}

namespace {
/* One CTFC size: each entry's CTFC in one octet (the 12, 16 and 24-bit values keep their low
   octet), then its power offset. `ctfc` reads the entry's CTFC at the source's own width. */
template <class Element, class Ctfc>
void copy_ctfc_entries(const rtxDList* src, umts_tfcs_reconf_add* dst, Ctfc ctfc) {
  dst->count = static_cast<uint16_t>(src->count);
  umts_for_each_node<Element>(src, 1024u, [dst, ctfc](const Element* entry, uint32_t i) {
    umts_tfcs_ctfc_entry* out = &dst->entries[i];
    out->ctfc = static_cast<uint8_t>(ctfc(entry));
    UMTS_CONVERT_OPTIONAL(entry, out, 1u, convert_power_offset_information, powerOffsetInformation);
  });
}
}  // namespace

void convert_tfcs_reconf_add_ctfcSize_ctfc2Bit(const TFCS_ReconfAdd_ctfcSize_ctfc2Bit* src, umts_tfcs_reconf_add* dst) {
  copy_ctfc_entries<TFCS_ReconfAdd_ctfcSize_ctfc2Bit_element>(src, dst, [](auto* e) { return e->ctfc2; });
}
void convert_tfcs_reconf_add_ctfcSize_ctfc4Bit(const TFCS_ReconfAdd_ctfcSize_ctfc4Bit* src, umts_tfcs_reconf_add* dst) {
  copy_ctfc_entries<TFCS_ReconfAdd_ctfcSize_ctfc4Bit_element>(src, dst, [](auto* e) { return e->ctfc4; });
}
void convert_tfcs_reconf_add_ctfcSize_ctfc6Bit(const TFCS_ReconfAdd_ctfcSize_ctfc6Bit* src, umts_tfcs_reconf_add* dst) {
  copy_ctfc_entries<TFCS_ReconfAdd_ctfcSize_ctfc6Bit_element>(src, dst, [](auto* e) { return e->ctfc6; });
}
void convert_tfcs_reconf_add_ctfcSize_ctfc8Bit(const TFCS_ReconfAdd_ctfcSize_ctfc8Bit* src, umts_tfcs_reconf_add* dst) {
  copy_ctfc_entries<TFCS_ReconfAdd_ctfcSize_ctfc8Bit_element>(src, dst, [](auto* e) { return e->ctfc8; });
}
void convert_tfcs_reconf_add_ctfcSize_ctfc12Bit(const TFCS_ReconfAdd_ctfcSize_ctfc12Bit* src, umts_tfcs_reconf_add* dst) {
  copy_ctfc_entries<TFCS_ReconfAdd_ctfcSize_ctfc12Bit_element>(src, dst, [](auto* e) { return e->ctfc12; });
}
void convert_tfcs_reconf_add_ctfcSize_ctfc16Bit(const TFCS_ReconfAdd_ctfcSize_ctfc16Bit* src, umts_tfcs_reconf_add* dst) {
  copy_ctfc_entries<TFCS_ReconfAdd_ctfcSize_ctfc16Bit_element>(src, dst, [](auto* e) { return e->ctfc16; });
}
void convert_tfcs_reconf_add_ctfcSize_ctfc24Bit(const TFCS_ReconfAdd_ctfcSize_ctfc24Bit* src, umts_tfcs_reconf_add* dst) {
  copy_ctfc_entries<TFCS_ReconfAdd_ctfcSize_ctfc24Bit_element>(src, dst, [](auto* e) { return e->ctfc24; });
}

void convert_tfcs_reconf_add(const TFCS_ReconfAdd* src, umts_tfcs_reconf_add* dst) {
  const TFCS_ReconfAdd_ctfcSize& size = src->ctfcSize;
  dst->choice_tag = size.t;
  if (size.u.ctfc2Bit == nullptr) return;
  switch (size.t) {
    case 1: convert_tfcs_reconf_add_ctfcSize_ctfc2Bit(size.u.ctfc2Bit, dst); break;
    case 2: convert_tfcs_reconf_add_ctfcSize_ctfc4Bit(size.u.ctfc4Bit, dst); break;
    case 3: convert_tfcs_reconf_add_ctfcSize_ctfc6Bit(size.u.ctfc6Bit, dst); break;
    case 4: convert_tfcs_reconf_add_ctfcSize_ctfc8Bit(size.u.ctfc8Bit, dst); break;
    case 5: convert_tfcs_reconf_add_ctfcSize_ctfc12Bit(size.u.ctfc12Bit, dst); break;
    case 6: convert_tfcs_reconf_add_ctfcSize_ctfc16Bit(size.u.ctfc16Bit, dst); break;
    case 7: convert_tfcs_reconf_add_ctfcSize_ctfc24Bit(size.u.ctfc24Bit, dst); break;
    default: break;
  }
}

void convert_split_tfci_signalling(const SplitTFCI_Signalling* src, umts_split_tfci_signalling* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, splitType);
  UMTS_COPY_OPTIONAL(src, dst, 2u, tfci_Field2_Length);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_explicit_tfcs_configuration, tfci_Field1_Information);
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, convert_tfci_field2_information, tfci_Field2_Information);
}

void convert_tfci_field2_information(const TFCI_Field2_Information* src, umts_tfci_field2_information* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.tfci_Range != nullptr) convert_tfci_rangelist(src->u.tfci_Range, &dst->u.tfci_Range);
  else if (src->t == 2 && src->u.explicit_config != nullptr)
    convert_explicit_tfcs_configuration(src->u.explicit_config, &dst->u.explicit_config);
}

/* Up to 256 ranges under an 8-bit count: 256 reads 0, all 256 entries are written. */
void convert_tfci_rangelist(const TFCI_RangeList* src, umts_tfci_range_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<TFCI_Range>(src, 256u, [dst](const TFCI_Range* entry, uint32_t i) {
    dst->entries[i].maxTFCIField2Value = entry->maxTFCIField2Value;
    convert_tfcs_info_for_dsch(&entry->tfcs_InfoForDSCH, &dst->entries[i].tfcs_InfoForDSCH);
  });
}

void convert_tfcs_info_for_dsch(const TFCS_InfoForDSCH* src, umts_tfcs_info_for_dsch* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1: dst->u.ctfc2bit = src->u.ctfc2bit; break;
    case 2: dst->u.ctfc4bit = src->u.ctfc4bit; break;
    case 3: dst->u.ctfc6bit = src->u.ctfc6bit; break;
    case 4: dst->u.ctfc8bit = src->u.ctfc8bit; break;
    case 5: dst->u.ctfc12bit = src->u.ctfc12bit; break;
    case 6: dst->u.ctfc16bit = src->u.ctfc16bit; break;
    case 7: dst->u.ctfc24bit = src->u.ctfc24bit; break;
    default: break;
  }
}

/* ---- Power offsets ------------------------------------------------------------------------ */

void convert_power_offset_information(const PowerOffsetInformation* src, umts_power_offset_information* dst) {
  convert_gain_factor_information(&src->gainFactorInformation, &dst->gainFactorInformation);
  UMTS_COPY_OPTIONAL(src, dst, 1u, powerOffsetPp_m);
}

void convert_gain_factor_information(const GainFactorInformation* src, umts_gain_factor_information* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.signalledGainFactors != nullptr)
    convert_signalled_gain_factors(src->u.signalledGainFactors, &dst->u.signalledGainFactors);
  else if (src->t == 2)
    dst->u.computedGainFactors = src->u.computedGainFactors;
}

void convert_signalled_gain_factors(const SignalledGainFactors* src, umts_signalled_gain_factors* dst) {
  convert_signalled_gain_factors_mode_specific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
  dst->gainFactorBetaD = src->gainFactorBetaD;
  UMTS_COPY_OPTIONAL(src, dst, 1u, referenceTFC_ID);
}

void convert_signalled_gain_factors_mode_specific_info(const SignalledGainFactors_modeSpecificInfo* src,
                                                       umts_signalled_gain_factors_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) dst->u.fdd.gainFactorBetaC = src->u.fdd->gainFactorBetaC;
}
