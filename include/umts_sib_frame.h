/*
 * The BCH intake behind umts_sib_decoder: the dispatch of a decoded BCCH-BCH-Message and the
 * handlers that file the bytes of each segment in the slot of its SIB in g_umts_ctxt.
 *
 * Segments are joined bit by bit, as the cell cut the SIB's encoding: a segment of n bits adds
 * its n bits at the slot's write position (write_cursor and write_bit), and the next segment
 * starts at the bit after them.
 *
 * A segment of SIB-Type extensionType is SIB11bis only where the scheduling of the cell (the
 * extension lists of the MIB, SB1 and SB2 that were converted) places SIB11bis in the frames
 * of its transport block; any other is refused as a type that is not kept.
 *
 * Every slot buffer holds at least UMTS_SIB_DECODE_LENGTH zero-filled bytes, since each
 * conversion decodes that many bytes from it whatever the SIB's true length.
 */
#ifndef UMTS_SIB_FRAME_H
#define UMTS_SIB_FRAME_H

#include <stdint.h>

#include "umts_rrc.h"
#include "umts_sib_decoder.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Bytes that every conversion hands to the decoder of its SIB, and so the least size of a
   slot buffer. It also exceeds the largest reassembled SIB (16 segments of 28 octets). */
#define UMTS_SIB_DECODE_LENGTH 1000u

/* A whole-record copy of one CompleteSIBshort of a CompleteSIB-List. */
typedef CompleteSIBshort complete_sib_entry;

/* The entries of a CompleteSIB-List (at most 16), copied out of the decoded list. */
typedef struct complete_sib_list_copy {
  uint8_t entry_count;
  complete_sib_entry entries[16];
} complete_sib_list_copy;

/* Dispatches one decoded transport block by its payload, converts the SIBs that it
   completed, and repeats the conversion pass until no request is left. `context` is not
   used. Returns the handler's result, or that of the first conversion pass it started.
   Without `result` the segments are filed and completed SIBs wait, requested, in their
   slots for a call with a record. */
uint8_t umts_check_and_decode_sibs(rtxContext* context, const BCCH_BCH_Message* message, umts_sib_set* result);

/* Handlers of the payload alternatives: 1 when the SIB data was filed as the alternative
   requires (see each), 0 otherwise. Each part of a combined alternative is filed on its own,
   whatever became of the parts before it. */
uint8_t check_decode_first_segment(const FirstSegment* segment);
uint8_t check_decode_subsequent_segment(const SubsequentSegment* segment);
/* 1 only when the segment completed its SIB. */
uint8_t check_decode_last_segment_short(const LastSegmentShort* segment);
uint8_t check_decode_last_segment(const LastSegment* segment);
/* The result of the first segment part. */
uint8_t check_decode_last_and_first(const SystemInformation_BCH_payload_lastAndFirst* payload);
/* 1 when every entry of the list was filed. */
uint8_t check_decode_last_and_complete(const SystemInformation_BCH_payload_lastAndComplete* payload);
/* The result of the first segment part; 0 when an entry of the list was not filed. */
uint8_t check_decode_last_and_complete_and_first(const SystemInformation_BCH_payload_lastAndCompleteAndFirst* payload);
/* Decided by the last entry of the list: 1 when it was filed. */
uint8_t check_decode_completeSIB_list(const CompleteSIB_List* list);
/* The result of the first segment part; 0 when an entry of the list was not filed. */
uint8_t check_decode_complete_and_first(const SystemInformation_BCH_payload_completeAndFirst* payload);
uint8_t check_decode_complete_SIB(const CompleteSIB* sib);

/* Keeps what one scheduling block (umts_schedule_mib, _sb1 or _sb2) says of SIB11bis, from
   its converted extension list (null: the block has none). */
void umts_note_sib11bis_schedule(unsigned source, const umts_ext_sib_type_info_scheduling_info_list* list);
/* 1 when a kept schedule has segment `segment` (0 for the first or a complete SIB) of SIB11bis
   in the frames of the transport block with SFN' `sfn_prime`. */
uint8_t umts_sib11bis_scheduled_at(uint16_t sfn_prime, uint32_t segment);

/* Zeroes `copy` and copies the list's entries into it, at most 16. */
void convert_completesib_info_list(const CompleteSIB_List* list, complete_sib_list_copy* copy);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_SIB_FRAME_H */
