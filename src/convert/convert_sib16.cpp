/*
 * SIB16: the radio bearer part of a predefined configuration, for a host that decodes the
 * block itself (umts_convert_sib16 is exported and called by nothing in the library).
 *
 * The open lists (see include/umts_sib_sib16.h) put each entry right after the one before,
 * from the first aligned address after the list's count, over whatever follows. Entries are
 * therefore reached through pointers computed from the list's own address, and overlapping
 * entries of different record types are written one after the other: this unit is built
 * without type-based alias analysis, so that every store lands in the order written.
 *
 * Writes beyond its count: every open list, and the sizes of an explicit RLC size list. Each
 * list is held to its schema bound (8 SRBs, 8 RBs, 8 mapping options, 2 downlink mappings,
 * 32 sizes, 8 header compression entries); with those bounds nothing is written beyond
 * umts_sib16_info (checked at compile time below).
 */
#include <cstdio>
#include <cstring>

#include "convert_frame.h"
#include "convert_list.h"
#include "umts_sib_convert.h"
#include "../frame/decoder_state.h"

namespace {

constexpr size_t align_up(size_t at, size_t align) { return (at + align - 1) / align * align; }

/* Entry `index` of the open list at `list`. */
template <class Entry>
Entry* open_entry(umts_sib16_open_list* list, uint32_t index) {
  const size_t first = align_up(reinterpret_cast<uintptr_t>(list) + sizeof *list, alignof(Entry));
  return reinterpret_cast<Entry*>(first + static_cast<size_t>(index) * sizeof(Entry));
}

/* The `fill_` loops: the count cut to 8 bits first, the walk on the flat count, held to the
   list's bound. */
template <class Src, class Fn>
void fill_open_list(const rtxDList* src, uint8_t* count, uint32_t bound, Fn fn) {
  *count = static_cast<uint8_t>(src->count);
  uint32_t i = 0;
  for (const rtxDListNode* node = src->head; node != nullptr && i < *count && i < bound; node = node->next, i++)
    fn(static_cast<const Src*>(node->data), i);
}

/* ---- The furthest byte that the longest lists write, as an offset in umts_sib16_info ---- */

#define UMTS_OFF(type, member) offsetof(type, member)

constexpr size_t kSrbs = 8, kRbs = 8, kMappings = 8, kDlMappings = 2, kSizes = 32, kCompressions = 8;

constexpr size_t max2(size_t a, size_t b) { return a > b ? a : b; }

constexpr size_t list_first(size_t list, size_t align) { return align_up(list + sizeof(umts_sib16_open_list), align); }

/* An uplink mapping at `at`: its sizes run from after the count. */
constexpr size_t ul_mapping_end(size_t at) {
  return max2(at + sizeof(umts_sib16_ul_logical_channel_mapping),
              at + UMTS_OFF(umts_sib16_ul_logical_channel_mapping, rlc_SizeList) + UMTS_OFF(umts_sib16_rlc_size_list, count) + 1 + kSizes);
}

constexpr size_t mapping_option_end(size_t at) {
  const size_t ul = at + UMTS_OFF(umts_sib16_rb_mapping_option, ul_LogicalChannelMappings) +
                    UMTS_OFF(umts_sib16_ul_logical_channel_mappings, u);
  const size_t two = ul + UMTS_OFF(umts_sib16_ul_logical_channel_mapping_list, entries);
  const size_t dl = list_first(at + UMTS_OFF(umts_sib16_rb_mapping_option, dl_LogicalChannelMappingList),
                               alignof(umts_sib16_dl_logical_channel_mapping)) +
                    kDlMappings * sizeof(umts_sib16_dl_logical_channel_mapping);
  return max2(max2(at + sizeof(umts_sib16_rb_mapping_option), ul_mapping_end(ul)),
              max2(ul_mapping_end(two + sizeof(umts_sib16_ul_logical_channel_mapping)), dl));
}

constexpr size_t mapping_list_end(size_t list) {
  return mapping_option_end(list_first(list, alignof(umts_sib16_rb_mapping_option)) +
                            (kMappings - 1) * sizeof(umts_sib16_rb_mapping_option));
}

constexpr size_t srb_end(size_t at) {
  return max2(at + sizeof(umts_sib16_srb_information_setup),
              mapping_list_end(at + UMTS_OFF(umts_sib16_srb_information_setup, rb_MappingInfo)));
}

constexpr size_t rb_end(size_t at) {
  const size_t hc = list_first(at + UMTS_OFF(umts_sib16_rb_information_setup, pdcp_Info) +
                                   UMTS_OFF(umts_sib16_pdcp_info, headerCompressionInfoList),
                               alignof(umts_sib16_algorithm_specific_info)) +
                    kCompressions * sizeof(umts_sib16_algorithm_specific_info);
  return max2(max2(at + sizeof(umts_sib16_rb_information_setup), hc),
              mapping_list_end(at + UMTS_OFF(umts_sib16_rb_information_setup, rb_MappingInfo)));
}

constexpr size_t kRbConfiguration =
    UMTS_OFF(umts_sib16_info, preDefinedRadioConfiguration) + UMTS_OFF(umts_sib16_pre_def_radio_configuration, predefinedRB_Configuration);
constexpr size_t kSrbListEnd = srb_end(
    list_first(kRbConfiguration + UMTS_OFF(umts_sib16_predefined_rb_configuration, srb_InformationList),
               alignof(umts_sib16_srb_information_setup)) +
    (kSrbs - 1) * sizeof(umts_sib16_srb_information_setup));
constexpr size_t kRbListEnd = rb_end(
    list_first(kRbConfiguration + UMTS_OFF(umts_sib16_predefined_rb_configuration, rb_InformationList),
               alignof(umts_sib16_rb_information_setup)) +
    (kRbs - 1) * sizeof(umts_sib16_rb_information_setup));

static_assert(max2(kSrbListEnd, kRbListEnd) <= sizeof(umts_sib16_info),
              "UMTS_SIB16_OPEN_LIST_ROOM must hold what the longest lists write");
static_assert(alignof(umts_sib16_info) >= alignof(umts_sib16_rb_information_setup), "entries are aligned in the record");

}  // namespace

size_t umts_sib16_furthest_write(void) { return max2(kSrbListEnd, kRbListEnd); }

const void* umts_sib16_entries(const void* record, size_t record_size, const umts_sib16_open_list* list, size_t entry_size,
                               size_t entry_align, uint32_t index) {
  const uintptr_t begin = reinterpret_cast<uintptr_t>(record), end = begin + record_size;
  const uintptr_t at = align_up(reinterpret_cast<uintptr_t>(list) + sizeof *list, entry_align) + index * entry_size;
  if (record == nullptr || list == nullptr || reinterpret_cast<uintptr_t>(list) < begin || at < begin || at + entry_size > end)
    return nullptr;
  return reinterpret_cast<const void*>(at);
}

/* ==== Top ================================================================================ */

/* The tree is decoded eight bytes into `decoded`; the host's first eight bytes stay as they
   are. The tree is cleared first, so that a failed decode leaves zeros, not the area's old
   contents, where it stopped: the conversion then reads the part that was decoded. */
int umts_convert_sib16(rtxContext* context, void* decoded, umts_sib16_info* out) {
  if (decoded == nullptr) return 0;
  SysInfoType16* tree = reinterpret_cast<SysInfoType16*>(static_cast<uint8_t*>(decoded) + 8);
  std::memset(tree, 0, sizeof *tree);
  const int status = asn1PD_UMTS_SysInfoType16(context, tree);
  std::memset(out, 0, sizeof *out);
  out->presence_bitmask = static_cast<uint16_t>(tree->m & 1u);
  decode_pre_def_radio_configuration(&tree->preDefinedRadioConfiguration, &out->preDefinedRadioConfiguration);
  return status;
}

/* Only the radio bearers: the transport and physical channel configurations are dropped. */
void decode_pre_def_radio_configuration(const PreDefRadioConfiguration* src, umts_sib16_pre_def_radio_configuration* dst) {
  decode_predefined_rb_configuration(&src->predefinedRB_Configuration, &dst->predefinedRB_Configuration);
}

void decode_predefined_rb_configuration(const PredefinedRB_Configuration* src, umts_sib16_predefined_rb_configuration* dst) {
  dst->re_EstablishmentTimer = src->re_EstablishmentTimer;
  fill_srb_information_setup_list(&src->srb_InformationList, &dst->srb_InformationList);
  fill_rb_information_setup_list(&src->rb_InformationList, &dst->rb_InformationList);
}

/* ==== Radio bearers ====================================================================== */

void fill_srb_information_setup_list(const SRB_InformationSetupList* src, umts_sib16_open_list* dst) {
  fill_open_list<SRB_InformationSetup>(src, &dst->count, kSrbs, [dst](const SRB_InformationSetup* srb, uint32_t i) {
    decode_srb_information_setup(srb, open_entry<umts_sib16_srb_information_setup>(dst, i));
  });
}

void decode_srb_information_setup(const SRB_InformationSetup* src, umts_sib16_srb_information_setup* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->rb_Identity = src->rb_Identity;
  }
  decode_rlc_info_choice(&src->rlc_InfoChoice, &dst->rlc_InfoChoice);
  fill_rb_mapping_info_list(&src->rb_MappingInfo, &dst->rb_MappingInfo);
}

void fill_rb_information_setup_list(const RB_InformationSetupList* src, umts_sib16_open_list* dst) {
  fill_open_list<RB_InformationSetup>(src, &dst->count, kRbs, [dst](const RB_InformationSetup* rb, uint32_t i) {
    decode_rb_information_setup(rb, open_entry<umts_sib16_rb_information_setup>(dst, i));
  });
}

/* pdcp_Info first, rb_Identity after it. */
void decode_rb_information_setup(const RB_InformationSetup* src, umts_sib16_rb_information_setup* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    decode_pdcp_info(&src->pdcp_Info, &dst->pdcp_Info);
  }
  dst->rb_Identity = src->rb_Identity;
  decode_rlc_info_choice(&src->rlc_InfoChoice, &dst->rlc_InfoChoice);
  fill_rb_mapping_info_list(&src->rb_MappingInfo, &dst->rb_MappingInfo);
}

/* ==== RLC ================================================================================ */

void decode_rlc_info_choice(const RLC_InfoChoice* src, umts_sib16_rlc_info_choice* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) {
    if (src->u.rlc_Info != nullptr) decode_rlc_info(src->u.rlc_Info, &dst->u.rlc_Info);
  } else if (src->t == 2) {
    dst->u.same_as_RB = src->u.same_as_RB;
  } else {
    umts_say("\ndecode_rlc_info_choice:No such option available");
  }
}

void decode_rlc_info(const RLC_Info* src, umts_sib16_rlc_info* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    decode_ul_rlc_mode(&src->ul_RLC_Mode, &dst->ul_RLC_Mode);
  }
  if (src->m & 2u) {
    dst->presence_bitmask |= 2u;
    decode_dl_rlc_mode(&src->dl_RLC_Mode, &dst->dl_RLC_Mode);
  }
}

void decode_ul_rlc_mode(const UL_RLC_Mode* src, umts_sib16_ul_rlc_mode* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) {
    if (src->u.ul_AM_RLC_Mode != nullptr) decode_ul_am_rlc_mode(src->u.ul_AM_RLC_Mode, &dst->u.ul_AM_RLC_Mode);
  } else if (src->t == 2) {
    if (src->u.ul_UM_RLC_Mode != nullptr) decode_ul_um_rlc_mode(src->u.ul_UM_RLC_Mode, &dst->u.ul_UM_RLC_Mode);
  } else if (src->t == 3) {
    if (src->u.ul_TM_RLC_Mode != nullptr) decode_ul_tm_rlc_mode(src->u.ul_TM_RLC_Mode, &dst->u.ul_TM_RLC_Mode);
  } else {
    umts_say("\ndecode_ul_rlc_mode:No such option available");
  }
}

void decode_ul_am_rlc_mode(const UL_AM_RLC_Mode* src, umts_sib16_ul_am_rlc_mode* dst) {
  decode_transmission_rlc_discard(&src->transmissionRLC_Discard, &dst->transmissionRLC_Discard);
  dst->transmissionWindowSize = src->transmissionWindowSize;
  dst->timerRST = src->timerRST;
  dst->max_RST = src->max_RST;
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    decode_polling_info(&src->pollingInfo, &dst->pollingInfo);
  }
}

void decode_ul_um_rlc_mode(const UL_UM_RLC_Mode* src, umts_sib16_ul_um_rlc_mode* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    decode_transmission_rlc_discard(&src->transmissionRLC_Discard, &dst->transmissionRLC_Discard);
  }
}

void decode_ul_tm_rlc_mode(const UL_TM_RLC_Mode* src, umts_sib16_ul_tm_rlc_mode* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    decode_transmission_rlc_discard(&src->transmissionRLC_Discard, &dst->transmissionRLC_Discard);
  }
  dst->segmentationIndication = src->segmentationIndication;
}

void decode_transmission_rlc_discard(const TransmissionRLC_Discard* src, umts_sib16_transmission_rlc_discard* dst) {
  dst->choice_tag = src->t;
  switch (src->t) {
    case 1:
      if (src->u.timerBasedExplicit != nullptr) decode_explicit_discard(src->u.timerBasedExplicit, &dst->u.timerBasedExplicit);
      break;
    case 2: dst->u.timerBasedNoExplicit = src->u.timerBasedNoExplicit; break;
    case 3:
      if (src->u.maxDAT_Retransmissions != nullptr)
        decode_max_dat_retransmissions(src->u.maxDAT_Retransmissions, &dst->u.maxDAT_Retransmissions);
      break;
    case 4: dst->u.noDiscard = src->u.noDiscard; break;
    default: umts_say("\ndecode_transmission_rlc_discard:No such option available");
  }
}

void decode_explicit_discard(const ExplicitDiscard* src, umts_sib16_explicit_discard* dst) {
  dst->timerMRW = src->timerMRW;
  dst->timerDiscard = src->timerDiscard;
  dst->maxMRW = src->maxMRW;
}

void decode_max_dat_retransmissions(const MaxDAT_Retransmissions* src, umts_sib16_max_dat_retransmissions* dst) {
  dst->maxDAT = src->maxDAT;
  dst->timerMRW = src->timerMRW;
  dst->maxMRW = src->maxMRW;
}

void decode_polling_info(const PollingInfo* src, umts_sib16_polling_info* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 0x01u, timerPollProhibit);
  UMTS_COPY_OPTIONAL(src, dst, 0x02u, timerPoll);
  UMTS_COPY_OPTIONAL(src, dst, 0x04u, poll_PDU);
  UMTS_COPY_OPTIONAL(src, dst, 0x08u, poll_SDU);
  dst->lastTransmissionPDU_Poll = src->lastTransmissionPDU_Poll;
  dst->lastRetransmissionPDU_Poll = src->lastRetransmissionPDU_Poll;
  UMTS_COPY_OPTIONAL(src, dst, 0x10u, pollWindow);
  UMTS_COPY_OPTIONAL(src, dst, 0x20u, timerPollPeriodic);
}

/* Tag 1 is the AM mode; tag 2 (the message's dl-UM-RLC-Mode, which carries nothing) is read
   as a TM mode through the choice's payload, which the decoder leaves null for it, so that
   nothing is read and segmentationIndication stays 0; tag 3, the message's TM mode, is not
   known here. */
void decode_dl_rlc_mode(const DL_RLC_Mode* src, umts_sib16_dl_rlc_mode* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) {
    if (src->u.dl_AM_RLC_Mode != nullptr) decode_dl_am_rlc_mode(src->u.dl_AM_RLC_Mode, &dst->u.dl_AM_RLC_Mode);
  } else if (src->t == 2) {
    if (src->u.dl_TM_RLC_Mode != nullptr) decode_dl_tm_rlc_mode(src->u.dl_TM_RLC_Mode, &dst->u.segmentationIndication);
  } else {
    umts_say("\ndecode_dl_rlc_mode:No such option available");
  }
}

void decode_dl_am_rlc_mode(const DL_AM_RLC_Mode* src, umts_sib16_dl_am_rlc_mode* dst) {
  dst->inSequenceDelivery = src->inSequenceDelivery;
  dst->receivingWindowSize = src->receivingWindowSize;
  decode_dl_rlc_status_info(&src->dl_RLC_StatusInfo, &dst->dl_RLC_StatusInfo);
}

void decode_dl_tm_rlc_mode(const DL_TM_RLC_Mode* src, uint8_t* dst) { *dst = src->segmentationIndication; }

void decode_dl_rlc_status_info(const DL_RLC_StatusInfo* src, umts_sib16_dl_rlc_status_info* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, timerStatusProhibit);
  UMTS_COPY_OPTIONAL(src, dst, 2u, dummy);
  dst->missingPDU_Indicator = src->missingPDU_Indicator;
  UMTS_COPY_OPTIONAL(src, dst, 4u, timerStatusPeriodic);
}

/* ==== Mappings =========================================================================== */

void fill_rb_mapping_info_list(const RB_MappingInfo* src, umts_sib16_open_list* dst) {
  fill_open_list<RB_MappingOption>(src, &dst->count, kMappings, [dst](const RB_MappingOption* option, uint32_t i) {
    decode_rb_mapping_option(option, open_entry<umts_sib16_rb_mapping_option>(dst, i));
  });
}

void decode_rb_mapping_option(const RB_MappingOption* src, umts_sib16_rb_mapping_option* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    decode_ul_logical_channel_mappings_s(&src->ul_LogicalChannelMappings, &dst->ul_LogicalChannelMappings);
  }
  if (src->m & 2u) {
    dst->presence_bitmask |= 2u;
    fill_dl_logical_channel_mappings(&src->dl_LogicalChannelMappingList, &dst->dl_LogicalChannelMappingList);
  }
}

void decode_ul_logical_channel_mappings_s(const UL_LogicalChannelMappings* src, umts_sib16_ul_logical_channel_mappings* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) {
    if (src->u.oneLogicalChannel != nullptr) decode_one_ul_logical_channel_mapping(src->u.oneLogicalChannel, &dst->u.oneLogicalChannel);
  } else if (src->t == 2) {
    if (src->u.twoLogicalChannels != nullptr) fill_ul_logical_channel_mapping_list(src->u.twoLogicalChannels, &dst->u.twoLogicalChannels);
  } else {
    umts_say("\ndecode_ul_logical_channel_mappings_s:No such option available");
  }
}

void fill_ul_logical_channel_mapping_list(const UL_LogicalChannelMappingList* src, umts_sib16_ul_logical_channel_mapping_list* dst) {
  dst->rlc_LogicalChannelMappingIndicator = src->rlc_LogicalChannelMappingIndicator;
  fill_ul_logicalchannelmappinglist_ul_logicalchannelmapping(&src->ul_LogicalChannelMapping, dst);
}

void fill_ul_logicalchannelmappinglist_ul_logicalchannelmapping(const UL_LogicalChannelMappingList_ul_LogicalChannelMapping* src,
                                                                umts_sib16_ul_logical_channel_mapping_list* dst) {
  fill_open_list<UL_LogicalChannelMapping>(src, &dst->count, 2u, [dst](const UL_LogicalChannelMapping* m, uint32_t i) {
    decode_one_ul_logical_channel_mapping(m, &dst->entries[i]);
  });
}

/* The sizes first, the priority after them (over the fourth size). */
void decode_one_ul_logical_channel_mapping(const UL_LogicalChannelMapping* src, umts_sib16_ul_logical_channel_mapping* dst) {
  decode_ul_transport_channel_type(&src->ul_TransportChannelType, &dst->ul_TransportChannelType);
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->logicalChannelIdentity = src->logicalChannelIdentity;
  }
  fill_ul_logical_channel_mapping_rlc_size_list(&src->rlc_SizeList, &dst->rlc_SizeList);
  dst->mac_LogicalChannelPriority = src->mac_LogicalChannelPriority;
}

void decode_ul_transport_channel_type(const UL_TransportChannelType* src, umts_sib16_ul_transport_channel_type* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) dst->u.dch = src->u.dch;
  else if (src->t == 4) dst->u.usch = src->u.usch;
  else if (src->t == 2 || src->t == 3) umts_say("decode_ul_transport_channel_type: Not used");
  else umts_say("\ndecode_ul_transport_channel_type:No such option available");
}

void fill_ul_logical_channel_mapping_rlc_size_list(const UL_LogicalChannelMapping_rlc_SizeList* src, umts_sib16_rlc_size_list* dst) {
  dst->choice_tag = src->t;
  if (src->t == 3) {
    if (src->u.explicitList != nullptr) fill_rlc_size_explicit_list(src->u.explicitList, dst);
  } else if (src->t == 1 || src->t == 2) {
    umts_say("\nfill_ul_logical_channel_mapping_rlc_size_list: Option not used");
  } else {
    umts_say("\nfill_ul_logical_channel_mapping_rlc_size_list:No such option available");
  }
}

/* Every size byte takes the value of the FIRST element: the walk never advances. The bytes
   are packed after `count`, the first three in `sizes`, the others over what follows. */
void fill_rlc_size_explicit_list(const RLC_SizeExplicitList* src, umts_sib16_rlc_size_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  if (src->head == nullptr) return;
  const uint8_t first = static_cast<const RLC_SizeInfo*>(src->head->data)->rlc_SizeIndex;
  uint8_t* sizes = &dst->count + 1;
  for (uint32_t i = 0; i < dst->count && i < kSizes; i++) sizes[i] = first;
}

void fill_dl_logical_channel_mappings(const DL_LogicalChannelMappingList* src, umts_sib16_open_list* dst) {
  fill_open_list<DL_LogicalChannelMapping>(src, &dst->count, kDlMappings, [dst](const DL_LogicalChannelMapping* m, uint32_t i) {
    decode_dl_logical_channel_mapping(m, open_entry<umts_sib16_dl_logical_channel_mapping>(dst, i));
  });
}

void decode_dl_logical_channel_mapping(const DL_LogicalChannelMapping* src, umts_sib16_dl_logical_channel_mapping* dst) {
  decode_dl_transport_channel_type(&src->dl_TransportChannelType, &dst->dl_TransportChannelType);
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->logicalChannelIdentity = src->logicalChannelIdentity;
  }
}

void decode_dl_transport_channel_type(const DL_TransportChannelType* src, umts_sib16_dl_transport_channel_type* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) {
    dst->u.dch = src->u.dch;
  } else if (src->t == 3) {
    dst->u.dsch = src->u.dsch;
  } else if (src->t == 4) {
    if (src->u.dch_and_dsch != nullptr) {
      dst->u.dch_and_dsch.dch_transport_ch_id = src->u.dch_and_dsch->dch_transport_ch_id;
      dst->u.dch_and_dsch.dsch_transport_ch_id = src->u.dch_and_dsch->dsch_transport_ch_id;
    }
  } else if (src->t == 2) {
    umts_say("\ndecode_dl_transport_channel_type: Option not used");
  } else {
    umts_say("\ndecode_dl_transport_channel_type:No such option available");
  }
}

/* ==== PDCP =============================================================================== */

void decode_pdcp_info(const PDCP_Info* src, umts_sib16_pdcp_info* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    decode_lossless_srns_reloc_support(&src->losslessSRNS_RelocSupport, &dst->losslessSRNS_RelocSupport);
  }
  dst->pdcp_PDU_Header = src->pdcp_PDU_Header;
  if (src->m & 2u) {
    dst->presence_bitmask |= 2u;
    decode_header_compression_info_list(&src->headerCompressionInfoList, &dst->headerCompressionInfoList);
  }
}

/* notSupported is not known here. */
void decode_lossless_srns_reloc_support(const LosslessSRNS_RelocSupport* src, umts_sib16_lossless_srns_reloc_support* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) dst->u.supported = src->u.supported;
  else umts_say("decode_lossless_srns_reloc_support:no such option available");
}

void decode_header_compression_info_list(const HeaderCompressionInfoList* src, umts_sib16_open_list* dst) {
  fill_open_list<HeaderCompressionInfo>(src, &dst->count, kCompressions, [dst](const HeaderCompressionInfo* h, uint32_t i) {
    decode_header_compression_info(h, open_entry<umts_sib16_algorithm_specific_info>(dst, i));
  });
}

void decode_header_compression_info(const HeaderCompressionInfo* src, umts_sib16_algorithm_specific_info* dst) {
  decode_algorithm_specific_info(&src->algorithmSpecificInfo, dst);
}

void decode_algorithm_specific_info(const AlgorithmSpecificInfo* src, umts_sib16_algorithm_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1) {
    if (src->u.rfc2507_Info != nullptr) decode_rfc2507_info(src->u.rfc2507_Info, &dst->u.rfc2507_Info);
  } else {
    umts_say("decode_algorithm_specific_info:No such option available");
  }
}

void decode_rfc2507_info(const RFC2507_Info* src, umts_sib16_rfc2507_info* dst) {
  dst->f_MAX_PERIOD = src->f_MAX_PERIOD;
  dst->f_MAX_TIME = src->f_MAX_TIME;
  dst->max_HEADER = src->max_HEADER;
  dst->tcp_SPACE = src->tcp_SPACE;
  dst->non_TCP_SPACE = src->non_TCP_SPACE;
  dst->expectReordering = src->expectReordering;
}
