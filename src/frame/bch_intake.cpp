/*
 * BCH entry and segment collection: each transport block's segments are filed in the slots
 * of their SIBs in the state of the instance being decoded (g_umts_ctxt for the global
 * entry), and the SIBs completed by the block are converted.
 *
 * Diagnostics of this unit are messages of the current print state (see decoder_state.h):
 * on standard output with puts or printf, unguarded, for the process's own state.
 *
 * Slot invariant: write_cursor is null or points into `buffer`, which then came from a first
 * segment and holds UMTS_SIB_DECODE_LENGTH bytes; write_bit is below 8. A complete SIB that
 * replaces the buffer of a collection under way detaches the cursor: the later segments of
 * that collection are still counted, but their bits go nowhere and the complete SIB's bytes
 * stay as they came.
 *
 * Two choices here follow what cells broadcast:
 *  - The segments of a SIB are joined bit by bit. The cell cuts the SIB's encoding as one bit
 *    string into pieces of 222 bits (SIB-Data-fixed) and a last one of 1 to 214
 *    (SIB-Data-variable) or up to 222; joining each piece's whole octets instead would move
 *    every bit after the first 222 by two places.
 *  - Each part of a block stands on its own: a last part that is refused (its first segments
 *    never came, as at the start of any capture) or a list entry of a type that is not kept
 *    does not keep the block's other parts from being filed. The handlers' results are those
 *    of the parts that decided them before.
 */
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "umts_rrc_rt.h"
#include "umts_rrc_rt_print.h"
#include "umts_sib_decoder.h"
#include "umts_sib_frame.h"
#include "decoder_state.h"

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

/* The bits of a decoded bit string within those octets: all of them for any string that the
   decoder delivers. */
inline uint32_t bits_within(uint32_t numbits, uint32_t capacity) {
  const uint32_t bits = 8u * octets_within(numbits, capacity);
  return numbits < bits ? numbits : bits;
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
  slot->write_bit = 0;
}

/* The slot of a part of SIB-Type `sib_type` that is segment `segment` of its SIB (0 for a
   first segment or a whole SIB), or umts_sib_count when the part is not kept. extensionType
   names every extension SIB alike; such a part is SIB11bis only where the cell's scheduling
   has SIB11bis in the frames of this block, and is otherwise refused like any type that is
   not kept (filing every one as SIB11bis would decode, say, a SIB19 as a SIB11bis). */
umts_sib_id slot_of(uint32_t sib_type, uint32_t segment) {
  const umts_sib_id id = get_sib_type(sib_type);
  if (id == umts_sib_sib11bis && umts_sib11bis_scheduled_at(umts_ctxt().sfn_prime, segment) == 0) return umts_sib_count;
  return id;
}

/* Joins the first `numbits` bits of `data` (first bit at the top of data[0]) to the slot's
   SIB at its write position, and moves the position past them when `advance` is set. A
   detached cursor takes nothing. The index test admits at most 15 segments after the first,
   so decoded segments always end within the buffer; the bound is tested all the same for
   callers that build their own segments. */
void put_at_cursor(umts_sib_slot* slot, const uint8_t* data, uint32_t numbits, bool advance) {
  uint8_t* at = slot->write_cursor;
  if (at == nullptr) return;
  const uint32_t shift = slot->write_bit & 7u;
  const uint32_t n = (numbits + 7u) / 8u;
  /* Bits that start within an octet reach into one octet more. */
  if (static_cast<size_t>(at - slot->buffer) + n + (shift != 0 ? 1u : 0u) > UMTS_SIB_DECODE_LENGTH) return;
  for (uint32_t i = 0; i < n; i++) {
    uint8_t v = data[i];
    if (i + 1u == n && (numbits & 7u) != 0) v = static_cast<uint8_t>(v & (0xFFu << (8u - (numbits & 7u))));
    if (shift == 0) {
      at[i] = v;
    } else {
      at[i] = static_cast<uint8_t>((at[i] & (0xFFu << (8u - shift))) | (v >> shift));
      at[i + 1u] = static_cast<uint8_t>(v << (8u - shift));
    }
  }
  if (advance) {
    const uint32_t end = shift + numbits;
    slot->write_cursor = at + end / 8u;
    slot->write_bit = static_cast<uint8_t>(end % 8u);
  }
}

enum SegmentResult { kSegmentRefused, kSegmentFiled, kSegmentPending };

/* A subsequent or last segment. kSegmentRefused for an unknown type or an index that does
   not follow the slot's (the slot is then emptied, silently); kSegmentPending for a last
   segment whose SIB still misses segments; kSegmentFiled otherwise. A last segment leaves
   the write position where it was, so that a further segment overwrites its bits. */
SegmentResult file_segment(uint32_t sib_type, uint8_t index, uint32_t numbits, const uint8_t* data,
                           uint32_t capacity, bool subsequent, const char* invalid_text) {
  const umts_sib_id id = slot_of(sib_type, index);
  if (id == umts_sib_count) {
    umts_say(invalid_text);
    return kSegmentRefused;
  }
  umts_sib_slot* slot = &umts_ctxt().slots[id];
  if (static_cast<int>(index) != static_cast<int>(slot->total_segments) - static_cast<int>(slot->remaining_segments)) {
    empty_slot(slot);
    return kSegmentRefused;
  }
  slot->remaining_segments = static_cast<uint8_t>(slot->remaining_segments - 1u);
  put_at_cursor(slot, data, bits_within(numbits, capacity), subsequent);
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
  const umts_sib_id id = slot_of(sib_type, 0);
  if (id == umts_sib_count) {
    umts_say(invalid_text);
    return 0;
  }
  umts_sib_slot* slot = &umts_ctxt().slots[id];
  slot->total_segments = seg_count;
  slot->remaining_segments = static_cast<uint8_t>(seg_count - 1u);
  uint8_t* bytes = new_slot_buffer();
  slot->write_cursor = bytes;
  slot->write_bit = 0;
  if (bytes == nullptr) {
    if (alloc_text != nullptr) {
      umts_say(alloc_text);
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
  put_at_cursor(slot, data, bits_within(numbits, capacity), true);
  return 1;
}

/* What became of the entries of a CompleteSIB-List. */
struct ListOutcome {
  bool empty;         /* no entry at all */
  bool all_filed;     /* every entry was filed (so also when empty) */
  bool last_filed;    /* the last entry was filed */
  bool out_of_memory; /* an entry found no memory */
};

/* The entries of a CompleteSIB-List, each into a fresh buffer of its slot and marked. An
   entry that is refused (a type not kept) or finds no memory prints its message and is
   passed over; the others are filed all the same. */
ListOutcome file_complete_list(const CompleteSIB_List* list, const char* invalid_text, const char* alloc_text) {
  complete_sib_list_copy copy;
  convert_completesib_info_list(list, &copy);
  ListOutcome outcome{copy.entry_count == 0, true, false, false};
  for (unsigned i = 0; i < copy.entry_count; i++) {
    const complete_sib_entry* entry = &copy.entries[i];
    outcome.last_filed = false;
    const umts_sib_id id = slot_of(entry->sib_Type, 0);
    if (id == umts_sib_count) {
      umts_say(invalid_text);
      outcome.all_filed = false;
      continue;
    }
    umts_sib_slot* slot = &umts_ctxt().slots[id];
    uint8_t* bytes = new_slot_buffer();
    take_complete(slot, bytes);
    if (bytes == nullptr) {
      umts_say(alloc_text);
      outcome.all_filed = false;
      outcome.out_of_memory = true;
      continue;
    }
    std::memcpy(bytes, entry->sib_Data_variable.data,
                octets_within(entry->sib_Data_variable.numbits, sizeof entry->sib_Data_variable.data));
    umts_sib_decoder_set_gb_ctxt_bitmask(id);
    outcome.last_filed = true;
  }
  return outcome;
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

/* In the combined handlers below the last part is filed first, whatever becomes of it, and
   the list and first parts follow on their own. */

uint8_t check_decode_last_and_first(const SystemInformation_BCH_payload_lastAndFirst* payload) {
  static const char kInvalid[] = "check_decode_last_and_first:Invalid sib type";
  static const char kAlloc[] = "check_decode_last_and_first: Memory Allocation Failure";
  if (payload == nullptr) return 0;
  file_last_short(&payload->lastSegmentShort, kInvalid);
  return file_first_short(&payload->firstSegment, kInvalid, kAlloc);
}

uint8_t check_decode_last_and_complete(const SystemInformation_BCH_payload_lastAndComplete* payload) {
  static const char kInvalid[] = "check_decode_last_and_complete:Invalid sib type";
  static const char kAlloc[] = "check_decode_last_and_complete: Memory Allocation Failure";
  if (payload == nullptr) return 0;
  file_last_short(&payload->lastSegmentShort, kInvalid);
  const ListOutcome list = file_complete_list(&payload->completeSIB_List, kInvalid, kAlloc);
  return !list.empty && list.all_filed ? 1 : 0;
}

uint8_t check_decode_last_and_complete_and_first(const SystemInformation_BCH_payload_lastAndCompleteAndFirst* payload) {
  static const char kInvalid[] = "check_decode_last_and_complete_and_first:Invalid sib type";
  static const char kAlloc[] = "check_decode_last_and_complete_and_first: Memory Allocation Failure";
  if (payload == nullptr) return 0;
  file_last_short(&payload->lastSegmentShort, kInvalid);
  const ListOutcome list = file_complete_list(&payload->completeSIB_List, kInvalid, kAlloc);
  const uint8_t first = file_first_short(&payload->firstSegment, kInvalid, kAlloc);
  /* An entry that was not filed makes the result 0, as an empty list does not. */
  return list.all_filed ? first : 0;
}

uint8_t check_decode_completeSIB_list(const CompleteSIB_List* list) {
  if (list == nullptr) return 0;
  const ListOutcome outcome = file_complete_list(list, "check_decode_completeSIB_list:Invalid sib type",
                                                 "check_decode_completeSIB_list: Memory Allocation Failure");
  return !outcome.empty && !outcome.out_of_memory && outcome.last_filed ? 1 : 0;
}

uint8_t check_decode_complete_and_first(const SystemInformation_BCH_payload_completeAndFirst* payload) {
  static const char kInvalid[] = "check_decode_complete_and_first:Invalid sib type";
  static const char kAlloc[] = "check_decode_complete_and_first: Memory Allocation Failure";
  if (payload == nullptr) return 0;
  const ListOutcome list = file_complete_list(&payload->completeSIB_List, kInvalid, kAlloc);
  const uint8_t first = file_first_short(&payload->firstSegment, kInvalid, kAlloc);
  return list.all_filed ? first : 0;
}

uint8_t check_decode_complete_SIB(const CompleteSIB* sib) {
  if (sib == nullptr) return 0;
  const umts_sib_id id = slot_of(sib->sib_Type, 0);
  if (id == umts_sib_count) {
    umts_say("check_decode_complete_SIB:invalid sib type");
    return 0;
  }
  uint8_t* bytes = new_slot_buffer();
  take_complete(&umts_ctxt().slots[id], bytes);
  if (bytes == nullptr) {
    umts_say("check_decode_complete_SIB: Memory Allocation Failure");
    return 0;
  }
  std::memcpy(bytes, sib->sib_Data_fixed.data, octets_within(sib->sib_Data_fixed.numbits, sizeof sib->sib_Data_fixed.data));
  umts_sib_decoder_set_gb_ctxt_bitmask(id);
  return 1;
}

uint8_t umts_check_and_decode_sibs(rtxContext* context, const BCCH_BCH_Message* message, umts_sib_set* result) {
  (void)context;
  if (message == nullptr) return 0;
  /* The frames of the block tell which extension SIB its extensionType parts carry. */
  umts_ctxt().sfn_prime = static_cast<uint16_t>(message->message.sfn_Prime & 0x7FFu);
  const SystemInformation_BCH_payload* payload = &message->message.payload;
  uint8_t status = 0;
  bool completes = true; /* whether the alternative can complete a SIB */
  switch (payload->t) {
    case 1:
      umts_say("No system info provided");
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
      umts_say_part("umts_check_and_decode_sibs:Invalid Option recived as asn_decoded_sibs->message.payload.t");
      completes = false;
      break;
  }
  if (completes && status == 1) status = decode_system_info_msg(result);
  /* SIBs marked before a refusal, and those left by a failed pass, are converted all the
     same; each pass clears at least one request, so this ends. Without a record the segments
     are filed all the same, and completed SIBs wait in their slots for a call with one. */
  if (result != nullptr) {
    while (umts_ctxt().request_bitmask != 0) decode_system_info_msg(result);
  }
  return status;
}

uint8_t umts_decode_transport_block(const uint8_t* data, umts_sib_set* result, uint32_t length) {
  rtxContext ctx;
  if (rtInitContextUsingKey(&ctx, nullptr, 0) != 0) {
    umts_say("ASN context initialisation failed ");
    return 0;
  }
  /* A null `data` leaves the buffer empty and the decoding fails at its first bit. */
  pu_setBuffer(&ctx, data, length, 0);
  BCCH_BCH_Message message;
  std::memset(&message, 0, sizeof message);
  const int stat = asn1PD_UMTS_BCCH_BCH_Message(&ctx, &message);
  if (stat != 0) {
    char text[40];
    std::snprintf(text, sizeof text, "Can't decode BCH: %d", stat);
    umts_say_part(text);
    rtFreeContext(&ctx);
    return 0;
  }
  if (rtxPrintIsOn()) asn1Print_UMTS_BCCH_BCH_Message("UMTS_BCCH_BCH_Message", &message);
  const uint8_t result_status = umts_check_and_decode_sibs(&ctx, &message, result);
  rtFreeContext(&ctx);
  return result_status;
}
