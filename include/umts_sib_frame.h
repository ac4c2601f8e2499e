/*
 * The BCH intake behind umts_sib_decoder: the dispatch of a decoded BCCH-BCH-Message and the
 * handlers that file the bytes of each segment in the slot of its SIB in g_umts_ctxt.
 *
 * Segments are joined by octets: a segment of n bits adds (n + 7) / 8 octets at the slot's
 * write cursor, its padding bits included, and the next segment starts on the next octet.
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
   used. Returns the handler's result, or that of the first conversion pass it started. */
uint8_t umts_check_and_decode_sibs(rtxContext* context, const BCCH_BCH_Message* message, umts_sib_set* result);

/* Handlers of the payload alternatives: 1 when the SIB data was filed as the alternative
   requires (see each), 0 otherwise. */
uint8_t check_decode_first_segment(const FirstSegment* segment);
uint8_t check_decode_subsequent_segment(const SubsequentSegment* segment);
/* 1 only when the segment completed its SIB. */
uint8_t check_decode_last_segment_short(const LastSegmentShort* segment);
uint8_t check_decode_last_segment(const LastSegment* segment);
/* The result of the first segment part. */
uint8_t check_decode_last_and_first(const SystemInformation_BCH_payload_lastAndFirst* payload);
/* 1 when every entry of the list was filed. */
uint8_t check_decode_last_and_complete(const SystemInformation_BCH_payload_lastAndComplete* payload);
/* The result of the first segment part. */
uint8_t check_decode_last_and_complete_and_first(const SystemInformation_BCH_payload_lastAndCompleteAndFirst* payload);
/* Decided by the last entry of the list: 1 when it was filed. */
uint8_t check_decode_completeSIB_list(const CompleteSIB_List* list);
/* The result of the first segment part. */
uint8_t check_decode_complete_and_first(const SystemInformation_BCH_payload_completeAndFirst* payload);
uint8_t check_decode_complete_SIB(const CompleteSIB* sib);

/* Zeroes `copy` and copies the list's entries into it, at most 16. */
void convert_completesib_info_list(const CompleteSIB_List* list, complete_sib_list_copy* copy);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_SIB_FRAME_H */
