/*
 * BCH entry and segment collection: each transport block's segments are filed in the slots
 * of their SIBs in g_umts_ctxt, and the SIBs completed by the block are converted.
 *
 * Diagnostics of this unit go to standard output with puts or printf, unguarded.
 *
 * Slot invariant: write_cursor is null or points into `buffer`, which then came from a first
 * segment and holds UMTS_SIB_DECODE_LENGTH bytes. A complete SIB that replaces the buffer of
 * a collection under way detaches the cursor: the later segments of that collection are
 * still counted, but their bytes go nowhere and the complete SIB's bytes stay as they came.
 */
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "umts_rrc_rt.h"
#include "umts_rrc_rt_print.h"
#include "umts_sib_decoder.h"
#include "umts_sib_frame.h"

namespace {

/* Octets of a bit string of `numbits` bits, with its last octet's padding; kept to the low
   8 bits as the slots count bytes of segments. */
inline uint32_t octets_of(uint32_t numbits) {
  return (numbits & 7u) != 0 ? (((numbits >> 3) + 1u) & 0xFFu) : ((numbits >> 3) & 0xFFu);
}

/* The octets of a decoded bit string, within the `capacity` bytes of its field. */
inline uint32_t octets_within(uint32_t numbits, uint32_t capacity) {
  const uint32_t n = octets_of(numbits);
  return n < capacity ? n : capacity;
}

uint8_t* new_slot_buffer() { return static_cast<uint8_t*>(std::calloc(UMTS_SIB_DECODE_LENGTH, 1)); }

void empty_slot(umts_sib_slot* slot) {
  std::free(slot->buffer);
  std::memset(slot, 0, sizeof *slot);
}

/* A complete SIB takes the slot: the old buffer is released and the cursor detached, the
   segment counts stay. `bytes` may be null after a failed allocation. */
void take_complete(umts_sib_slot* slot, uint8_t* bytes) {
  std::free(slot->buffer);
  slot->buffer = bytes;
  slot->write_cursor = nullptr;
}

/* Copies `n` octets to the write cursor, and moves it past them when `advance` is set. A
   detached cursor takes nothing. The index test admits at most 15 segments after the first,
   so decoded segments always end within the buffer; the bound is tested all the same for
   callers that build their own segments. */
void put_at_cursor(umts_sib_slot* slot, const uint8_t* data, uint32_t n, bool advance) {
  uint8_t* at = slot->write_cursor;
  if (at == nullptr) return;
  if (static_cast<size_t>(at - slot->buffer) + n > UMTS_SIB_DECODE_LENGTH) return;
  std::memcpy(at, data, n);
  if (advance) slot->write_cursor = at + n;
}

enum SegmentResult { kSegmentRefused, kSegmentFiled, kSegmentPending };

/* A subsequent or last segment. kSegmentRefused for an unknown type or an index that does
   not follow the slot's (the slot is then emptied, silently); kSegmentPending for a last
   segment whose SIB still misses segments; kSegmentFiled otherwise. A last segment leaves
   the cursor where it was, so that a further segment overwrites its bytes. */
SegmentResult file_segment(uint32_t sib_type, uint8_t index, uint32_t numbits, const uint8_t* data,
                           uint32_t capacity, bool subsequent, const char* invalid_text) {
  const umts_sib_id id = get_sib_type(sib_type);
  if (id == umts_sib_count) {
    std::puts(invalid_text);
    return kSegmentRefused;
  }
  umts_sib_slot* slot = &g_umts_ctxt.slots[id];
  if (static_cast<int>(index) != static_cast<int>(slot->total_segments) - static_cast<int>(slot->remaining_segments)) {
    empty_slot(slot);
    return kSegmentRefused;
  }
  slot->remaining_segments = static_cast<uint8_t>(slot->remaining_segments - 1u);
  put_at_cursor(slot, data, octets_within(numbits, capacity), subsequent);
  if (subsequent) return kSegmentFiled;
  if (slot->remaining_segments != 0) return kSegmentPending;
  umts_sib_decoder_set_gb_ctxt_bitmask(id);
  return kSegmentFiled;
}

/* A first segment: the slot starts collecting anew in a fresh buffer. Without memory the
   slot keeps its old buffer behind a detached cursor and `alloc_text` is printed; with no
   text (the long first segment) the old buffer is dropped as well. Returns 1 when filed. */
uint8_t file_first_segment(uint32_t sib_type, uint8_t seg_count, uint32_t numbits, const uint8_t* data,
                           uint32_t capacity, const char* invalid_text, const char* alloc_text) {
  const umts_sib_id id = get_sib_type(sib_type);
  if (id == umts_sib_count) {
    std::puts(invalid_text);
    return 0;
  }
  umts_sib_slot* slot = &g_umts_ctxt.slots[id];
  slot->total_segments = seg_count;
  slot->remaining_segments = static_cast<uint8_t>(seg_count - 1u);
  uint8_t* bytes = new_slot_buffer();
  slot->write_cursor = bytes;
  if (bytes == nullptr) {
    if (alloc_text != nullptr) {
      std::puts(alloc_text);
    } else {
      /* The long first segment stores the null pointer as its buffer too; nothing is
         written through it. */
      std::free(slot->buffer);
      slot->buffer = nullptr;
    }
    return 0;
  }
  std::free(slot->buffer);
  slot->buffer = bytes;
  put_at_cursor(slot, data, octets_within(numbits, capacity), true);
  return 1;
}

enum ListResult { kListAborted, kListEmpty, kListFiled, kListLastRefused };

/* The entries of a CompleteSIB-List, each into a fresh buffer of its slot and marked. An
   unknown type aborts the list, or with `skip_unknown` is passed over, and then only the
   last entry decides between kListFiled and kListLastRefused. Entries marked before an
   abort stay marked. */
ListResult file_complete_list(const CompleteSIB_List* list, bool skip_unknown, const char* invalid_text,
                              const char* alloc_text) {
  complete_sib_list_copy copy;
  convert_completesib_info_list(list, &copy);
  if (copy.entry_count == 0) return kListEmpty;
  bool last_filed = true;
  for (unsigned i = 0; i < copy.entry_count; i++) {
    const complete_sib_entry* entry = &copy.entries[i];
    const umts_sib_id id = get_sib_type(entry->sib_Type);
    if (id == umts_sib_count) {
      std::puts(invalid_text);
      if (!skip_unknown) return kListAborted;
      last_filed = false;
      continue;
    }
    umts_sib_slot* slot = &g_umts_ctxt.slots[id];
    uint8_t* bytes = new_slot_buffer();
    take_complete(slot, bytes);
    if (bytes == nullptr) {
      std::puts(alloc_text);
      return kListAborted;
    }
    std::memcpy(bytes, entry->sib_Data_variable.data,
                octets_within(entry->sib_Data_variable.numbits, sizeof entry->sib_Data_variable.data));
    umts_sib_decoder_set_gb_ctxt_bitmask(id);
    last_filed = true;
  }
  return last_filed ? kListFiled : kListLastRefused;
}

}  // namespace

void convert_completesib_info_list(const CompleteSIB_List* list, complete_sib_list_copy* copy) {
  std::memset(copy, 0, sizeof *copy);
  if (list == nullptr) return;
  const uint8_t count = static_cast<uint8_t>(list->count);
  const rtxDListNode* node = list->head;
  uint8_t i = 0;
  for (; i < count && i < 16u && node != nullptr && node->data != nullptr; i++, node = node->next) {
    copy->entries[i] = *static_cast<const CompleteSIBshort*>(node->data);
  }
  /* The decoder bounds the list to 16 linked entries, so this is the list's count. */
  copy->entry_count = i;
}

uint8_t check_decode_first_segment(const FirstSegment* segment) {
  if (segment == nullptr) return 0;
  return file_first_segment(segment->sib_Type, segment->seg_Count, segment->sib_Data_fixed.numbits,
                            segment->sib_Data_fixed.data, sizeof segment->sib_Data_fixed.data,
                            "check_decode_first_segment:Invalid sib type", nullptr);
}

uint8_t check_decode_subsequent_segment(const SubsequentSegment* segment) {
  if (segment == nullptr) return 0;
  return file_segment(segment->sib_Type, segment->segmentIndex, segment->sib_Data_fixed.numbits,
                      segment->sib_Data_fixed.data, sizeof segment->sib_Data_fixed.data, true,
                      "check_decode_subsequent_segment:Invalid sib type") == kSegmentFiled;
}

uint8_t check_decode_last_segment_short(const LastSegmentShort* segment) {
  if (segment == nullptr) return 0;
  return file_segment(segment->sib_Type, segment->segmentIndex, segment->sib_Data_variable.numbits,
                      segment->sib_Data_variable.data, sizeof segment->sib_Data_variable.data, false,
                      "check_decode_last_segment_short:Invalid sib type") == kSegmentFiled;
}

uint8_t check_decode_last_segment(const LastSegment* segment) {
  if (segment == nullptr) return 0;
  return file_segment(segment->sib_Type, segment->segmentIndex, segment->sib_Data_fixed.numbits,
                      segment->sib_Data_fixed.data, sizeof segment->sib_Data_fixed.data, false,
                      "check_decode_last_segment:Invalid sib type") == kSegmentFiled;
}

namespace {

SegmentResult file_last_short(const LastSegmentShort* segment, const char* invalid_text) {
  return file_segment(segment->sib_Type, segment->segmentIndex, segment->sib_Data_variable.numbits,
                      segment->sib_Data_variable.data, sizeof segment->sib_Data_variable.data, false,
                      invalid_text);
}

uint8_t file_first_short(const FirstSegmentShort* segment, const char* invalid_text, const char* alloc_text) {
  return file_first_segment(segment->sib_Type, segment->seg_Count, segment->sib_Data_variable.numbits,
                            segment->sib_Data_variable.data, sizeof segment->sib_Data_variable.data,
                            invalid_text, alloc_text);
}

}  // namespace

uint8_t check_decode_last_and_first(const SystemInformation_BCH_payload_lastAndFirst* payload) {
  static const char kInvalid[] = "check_decode_last_and_first:Invalid sib type";
  static const char kAlloc[] = "check_decode_last_and_first: Memory Allocation Failure";
  if (payload == nullptr) return 0;
  if (file_last_short(&payload->lastSegmentShort, kInvalid) == kSegmentRefused) return 0;
  return file_first_short(&payload->firstSegment, kInvalid, kAlloc);
}

uint8_t check_decode_last_and_complete(const SystemInformation_BCH_payload_lastAndComplete* payload) {
  static const char kInvalid[] = "check_decode_last_and_complete:Invalid sib type";
  static const char kAlloc[] = "check_decode_last_and_complete: Memory Allocation Failure";
  if (payload == nullptr) return 0;
  if (file_last_short(&payload->lastSegmentShort, kInvalid) == kSegmentRefused) return 0;
  return file_complete_list(&payload->completeSIB_List, false, kInvalid, kAlloc) == kListFiled;
}

uint8_t check_decode_last_and_complete_and_first(const SystemInformation_BCH_payload_lastAndCompleteAndFirst* payload) {
  static const char kInvalid[] = "check_decode_last_and_complete_and_first:Invalid sib type";
  static const char kAlloc[] = "check_decode_last_and_complete_and_first: Memory Allocation Failure";
  if (payload == nullptr) return 0;
  if (file_last_short(&payload->lastSegmentShort, kInvalid) == kSegmentRefused) return 0;
  if (file_complete_list(&payload->completeSIB_List, false, kInvalid, kAlloc) == kListAborted) return 0;
  return file_first_short(&payload->firstSegment, kInvalid, kAlloc);
}

uint8_t check_decode_completeSIB_list(const CompleteSIB_List* list) {
  if (list == nullptr) return 0;
  return file_complete_list(list, true, "check_decode_completeSIB_list:Invalid sib type",
                            "check_decode_completeSIB_list: Memory Allocation Failure") == kListFiled;
}

uint8_t check_decode_complete_and_first(const SystemInformation_BCH_payload_completeAndFirst* payload) {
  static const char kInvalid[] = "check_decode_complete_and_first:Invalid sib type";
  static const char kAlloc[] = "check_decode_complete_and_first: Memory Allocation Failure";
  if (payload == nullptr) return 0;
  if (file_complete_list(&payload->completeSIB_List, false, kInvalid, kAlloc) == kListAborted) return 0;
  return file_first_short(&payload->firstSegment, kInvalid, kAlloc);
}

uint8_t check_decode_complete_SIB(const CompleteSIB* sib) {
  if (sib == nullptr) return 0;
  const umts_sib_id id = get_sib_type(sib->sib_Type);
  if (id == umts_sib_count) {
    std::puts("check_decode_complete_SIB:invalid sib type");
    return 0;
  }
  uint8_t* bytes = new_slot_buffer();
  take_complete(&g_umts_ctxt.slots[id], bytes);
  if (bytes == nullptr) {
    std::puts("check_decode_complete_SIB: Memory Allocation Failure");
    return 0;
  }
  std::memcpy(bytes, sib->sib_Data_fixed.data, octets_within(sib->sib_Data_fixed.numbits, sizeof sib->sib_Data_fixed.data));
  umts_sib_decoder_set_gb_ctxt_bitmask(id);
  return 1;
}

uint8_t umts_check_and_decode_sibs(rtxContext* context, const BCCH_BCH_Message* message, umts_sib_set* result) {
  (void)context;
  if (message == nullptr || result == nullptr) return 0;
  const SystemInformation_BCH_payload* payload = &message->message.payload;
  uint8_t status = 0;
  bool completes = true; /* whether the alternative can complete a SIB */
  switch (payload->t) {
    case 1:
      std::puts("No system info provided");
      completes = false;
      break;
    case 2:
      status = check_decode_first_segment(payload->u.firstSegment);
      completes = false;
      break;
    case 3:
      status = check_decode_subsequent_segment(payload->u.subsequentSegment);
      completes = false;
      break;
    case 4: status = check_decode_last_segment_short(payload->u.lastSegmentShort); break;
    case 5: status = check_decode_last_and_first(payload->u.lastAndFirst); break;
    case 6: status = check_decode_last_and_complete(payload->u.lastAndComplete); break;
    case 7: status = check_decode_last_and_complete_and_first(payload->u.lastAndCompleteAndFirst); break;
    case 8: status = check_decode_completeSIB_list(payload->u.completeSIB_List); break;
    case 9: status = check_decode_complete_and_first(payload->u.completeAndFirst); break;
    case 10: status = check_decode_complete_SIB(payload->u.completeSIB); break;
    case 11: status = check_decode_last_segment(payload->u.lastSegment); break;
    case 12: case 13: case 14: case 15: case 16: /* spare5 .. spare1 */
      completes = false;
      break;
    default:
      std::fputs("umts_check_and_decode_sibs:Invalid Option recived as asn_decoded_sibs->message.payload.t", stdout);
      completes = false;
      break;
  }
  if (completes && status == 1) status = decode_system_info_msg(result);
  /* SIBs marked before a refusal, and those left by a failed pass, are converted all the
     same; each pass clears at least one request, so this ends. */
  while (g_umts_ctxt.request_bitmask != 0) decode_system_info_msg(result);
  return status;
}

uint8_t umts_sib_decoder(const uint8_t* data, umts_sib_set* result, uint32_t length) {
  /* Without a result no conversion could be stored; nothing is decoded or filed. */
  if (result == nullptr) return 0;
  rtxContext ctx;
  if (rtInitContextUsingKey(&ctx, nullptr, 0) != 0) {
    std::puts("ASN context initialisation failed ");
    return 0;
  }
  /* A null `data` leaves the buffer empty and the decoding fails at its first bit. */
  pu_setBuffer(&ctx, data, length, 0);
  BCCH_BCH_Message message;
  std::memset(&message, 0, sizeof message);
  const int stat = asn1PD_UMTS_BCCH_BCH_Message(&ctx, &message);
  if (stat != 0) {
    std::printf("Can't decode BCH: %d", stat);
    rtFreeContext(&ctx);
    return 0;
  }
  if (rtxPrintIsOn()) asn1Print_UMTS_BCCH_BCH_Message("UMTS_BCCH_BCH_Message", &message);
  const uint8_t result_status = umts_check_and_decode_sibs(&ctx, &message, result);
  rtFreeContext(&ctx);
  return result_status;
}
