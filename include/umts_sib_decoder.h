/*
 * libsibdecoder_umts: system information of a UMTS cell, from BCH transport blocks or whole
 * SIBs, into flat records.
 *
 * A caller hands one BCH transport block at a time to umts_sib_decoder (segments of each SIB
 * are collected across calls in g_umts_ctxt) or one assembled SIB to umts_sib_msg_decoder,
 * and reads the blocks converted by the call in its own umts_sib_set: bit n of
 * presence_bitmask says that sub-record n was filled (the numbering of umts_sib_id).
 *
 * Several streams (cells, carriers, captures) are decoded apart through decoder instances
 * (umts_sib_decoder_t below): each holds all the state of one stream, and instances on
 * different threads need no lock. The entries without an instance work on the default
 * instance, whose state is the global g_umts_ctxt: calls on it are to come from one thread
 * at a time.
 *
 * Text: the library prints the ASN.1 value of every block that it decodes, and a few
 * messages, on standard output by default (umts_sib_print_to chooses another stream, or none).
 * An instance prints nothing until it is given a stream of its own.
 */
#ifndef UMTS_SIB_DECODER_H
#define UMTS_SIB_DECODER_H

#include <stdint.h>
#include <stdio.h>

#include "umts_sib_mib.h"
#include "umts_sib_sb.h"
#include "umts_sib_sib1.h"
#include "umts_sib_sib2_sib7.h"
#include "umts_sib_sib3.h"
#include "umts_sib_sib5.h"
#include "umts_sib_meas.h"
#include "umts_sib_sib16.h"
#include "umts_sib_sib18.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Slot index of a SIB, and its bit (1 << id) in request_bitmask and presence_bitmask. */
typedef enum umts_sib_id {
  umts_sib_mib = 0,
  umts_sib_sib1 = 1,
  umts_sib_sib2 = 2,
  umts_sib_sib3 = 3,
  umts_sib_sib5 = 4,
  umts_sib_sib7 = 5,
  umts_sib_sib11 = 6,
  umts_sib_sib11bis = 7,
  umts_sib_sib12 = 8,
  umts_sib_sib18 = 9,
  umts_sib_sb1 = 10,
  umts_sib_sb2 = 11,
  umts_sib_count = 12 /* number of slots, and "invalid" */
} umts_sib_id;

/* Bytes of one SIB between calls. An empty slot has all its fields zero. The segments of a
   SIB are joined bit by bit: each starts at the bit after the last one of the segment before. */
typedef struct umts_sib_slot {
  uint8_t* buffer;             /* base of the SIB's bytes, owned by the slot */
  uint8_t* write_cursor;       /* the octet where the next segment's bits go */
  uint8_t total_segments;      /* SEG-COUNT of the first segment */
  uint8_t remaining_segments;  /* segments still to come */
  uint8_t write_bit;           /* bits of *write_cursor that the segments before took, 0 to 7 */
} umts_sib_slot;

/* Where one scheduling block (MIB, SB1 or SB2), as last converted, has the cell send SIB11bis:
   the SIB's first segment in the frames with SFN mod rep = frame[0], segment i in those with
   SFN mod rep = frame[i]. */
typedef struct umts_sib11bis_schedule {
  uint8_t scheduled;           /* 1 when the block schedules SIB11bis */
  uint8_t seg_count;           /* SEG_COUNT of the schedule */
  uint16_t rep;                /* SIB_REP, in frames */
  uint16_t frame[16];          /* SIB_POS of each segment, below rep */
} umts_sib11bis_schedule;

/* Sources of umts_sib11bis_schedule entries. */
enum { umts_schedule_mib = 0, umts_schedule_sb1 = 1, umts_schedule_sb2 = 2, umts_schedule_count = 3 };

typedef struct umts_decoder_ctxt {
  uint32_t request_bitmask;    /* bit n: the SIB of slot n is complete and waits for conversion */
  umts_sib_slot slots[umts_sib_count];
  uint16_t sfn_prime;          /* SFN' of the transport block being filed */
  /* What the MIB, SB1 and SB2 converted last schedule of SIB11bis: a segment of SIB-Type
     extensionType is SIB11bis only where one of them places it. */
  umts_sib11bis_schedule sib11bis_schedules[umts_schedule_count];
} umts_decoder_ctxt;

/* The library's one global: zero at load, never reset as a whole. */
extern umts_decoder_ctxt g_umts_ctxt;

/* The caller's result. It holds no pointers; the library keeps none to it (it notes only the
   address range of a set from umts_sib_set_alloc). It is large (the SIB5 record has long
   fixed arrays): allocate it once and pass it by pointer. */
#define umts_sib_set_FIELDS(F)                                          \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)              \
  F(RECORD, umts_mib_info, mib, 1, 0, _)                                \
  F(RECORD, umts_sib1_info, sib1, 1, 1, _)                              \
  F(RECORD, umts_sib2_info, sib2, 1, 2, _)                              \
  F(RECORD, umts_sib3_info, sib3, 1, 3, _)                              \
  F(RECORD, umts_sib5_info, sib5, 1, 4, _)                              \
  F(RECORD, umts_sib7_info, sib7, 1, 5, _)                              \
  F(RECORD, umts_sib11_info, sib11, 1, 6, _)                            \
  F(RECORD, umts_sib11bis_info, sib11bis, 1, 7, _)                      \
  F(RECORD, umts_sib12_info, sib12, 1, 8, _)                            \
  F(RECORD, umts_sib18_info, sib18, 1, 9, _)                            \
  F(RECORD, umts_sb1_info, sb1, 1, 10, _)                               \
  F(RECORD, umts_sb2_info, sb2, 1, 11, _)
UMTS_RECORD(umts_sib_set)

/* Every flat record of the library, each after the records it holds. */
#define UMTS_ALL_RECORDS(X) \
  UMTS_COMMON_RECORDS(X)    \
  UMTS_MIB_RECORDS(X)       \
  UMTS_SB_RECORDS(X)        \
  UMTS_SIB1_RECORDS(X)      \
  UMTS_SIB2_SIB7_RECORDS(X) \
  UMTS_SIB3_RECORDS(X)      \
  UMTS_SIB5_RECORDS(X)      \
  UMTS_MEAS_RECORDS(X)      \
  UMTS_SIB18_RECORDS(X)     \
  UMTS_SIB16_RECORDS(X)     \
  X(RECORD, umts_sib_set)

/* ---- Entries ------------------------------------------------------------------------- */

/* One BCH transport block of `length` bytes. Returns 1 when the block's segments were filed
   and the SIBs they completed were converted, 0 otherwise. With a null `result` the segments
   are filed all the same, and the SIBs they complete wait for a call with a record. */
uint8_t umts_sib_decoder(const uint8_t* data, umts_sib_set* result, uint32_t length);

/* One complete SIB of `length` bytes (1 to 2048) for slot `sib_id`. Clears
   result->presence_bitmask first; returns 1 when every conversion that ran succeeded. */
uint8_t umts_sib_msg_decoder(umts_sib_id sib_id, const uint8_t* data, umts_sib_set* result, uint32_t length);

/* ---- Decoder instances ---------------------------------------------------------------- */

/* The state of one broadcast stream: the SIBs in collection, what the stream's last MIB, SB1
   and SB2 scheduled, and its print stream and buffer. Instances are independent: the calls
   of one read and write nothing of another's, so different instances may be used on
   different threads at once without a lock; one instance is to be used by one thread at a
   time. Memory: about 1 KB, plus 1000 bytes per SIB in collection (at most 12), plus a print
   buffer of 16 KB once printing is switched on: under 30 KB in all. */
typedef struct umts_sib_decoder_instance umts_sib_decoder_t;

/* A new instance with nothing in collection and printing off; null when memory is short. */
umts_sib_decoder_t* umts_sib_decoder_new(void);
/* Releases an instance, its segments in collection and its print buffer (what was gathered
   is handed to its stream first); null and the default instance are ignored. */
void umts_sib_decoder_free(umts_sib_decoder_t* decoder);
/* Drops the segments in collection, the waiting requests and the schedules kept from the
   stream's MIB, SB1 and SB2: the instance reads the next block as a new stream would (after
   a retune, say). The print stream stays. */
void umts_sib_decoder_reset(umts_sib_decoder_t* decoder);
/* The instance behind the entries without an instance: its state is g_umts_ctxt, its text
   the process's print stream (umts_sib_print_to). Never freed. */
umts_sib_decoder_t* umts_sib_decoder_default(void);
/* The state of an instance, for reading (the slots of the SIBs in collection). */
const umts_decoder_ctxt* umts_sib_decoder_state(const umts_sib_decoder_t* decoder);

/* umts_sib_decoder and umts_sib_msg_decoder on an instance: the same statuses, records and
   messages. A null decoder returns 0 and does nothing. */
uint8_t umts_sib_decoder_feed_block(umts_sib_decoder_t* decoder, const uint8_t* data, umts_sib_set* result,
                                    uint32_t length);
uint8_t umts_sib_decoder_feed_sib(umts_sib_decoder_t* decoder, umts_sib_id sib_id, const uint8_t* data,
                                  umts_sib_set* result, uint32_t length);
/* (umts_sib_decoder_convert_sib16, in umts_sib_convert.h, converts a SIB16 on an instance.) */

/* Where the instance's ASN.1 text and messages go: `stream`, or nowhere with a null stream
   (the default of a new instance; no text is formatted then). The text is gathered in the
   instance's buffer and handed to the stream when the buffer is full, on
   umts_sib_decoder_print_flush, when another stream is chosen and when the instance is freed;
   on standard output also after each decoded value. Give each thread's instance its own
   stream (a file, a pipe, open_memstream). */
void umts_sib_decoder_print_to(umts_sib_decoder_t* decoder, FILE* stream);
/* Hands the instance's gathered text to its stream and flushes the stream. */
void umts_sib_decoder_print_flush(umts_sib_decoder_t* decoder);

/* ---- Printed text --------------------------------------------------------------------- */

/* Where the ASN.1 text of the decoded blocks goes: `stream` (standard output until this is
   called), or, with a null stream, nowhere: the library then formats no text at all. The
   text is gathered in the library's buffer of 64 KB. On standard output it is handed to the
   stream with fwrite after each decoded value, so that the library's messages (puts and
   printf on standard output) and the host's own writes stay in order with it, and the
   stream's own buffering decides when it reaches the system. On any other stream it is
   handed over only when the buffer is full, on umts_sib_print_flush and when another stream
   is chosen: call umts_sib_print_flush before writing to that stream yourself, before
   closing it and before the process ends. Give a file a large buffer with setvbuf. */
void umts_sib_print_to(FILE* stream);

/* Hands the gathered text to the stream and flushes the stream. */
void umts_sib_print_flush(void);

/* ---- Result sets allocated by the library ------------------------------------------- */

/* A zeroed umts_sib_set in whole pages of its own, or null when memory is short. The caller
   may equally allocate the set itself; the records read the same either way. Before a
   conversion fills a record, the record is cleared: in the caller's own memory by writing
   zeros over all of it (28 MB for SIB5), in a set from here by zeroing only what the
   conversion before wrote (each list up to its count, each choice in its alternative), which
   costs what the cell sent, not the record's size. So write nothing into a set from here
   yourself (presence_bitmask aside): what a conversion did not write would not be cleared.
   Only the pages that conversions wrote are resident. */
umts_sib_set* umts_sib_set_alloc(void);
/* Releases a set of umts_sib_set_alloc; null is ignored. */
void umts_sib_set_free(umts_sib_set* set);

/* ---- Driver -------------------------------------------------------------------------- */

/* Runs the conversions requested in g_umts_ctxt, MIB first; 0 at the first failure. A
   null `result` converts nothing: 1 when nothing waits, else 0 with the requests kept. */
uint8_t decode_system_info_msg(umts_sib_set* result);
/* Raises the request bit of one SIB. */
void umts_sib_decoder_set_gb_ctxt_bitmask(umts_sib_id sib_id);
/* The slot of a decoded SIB-Type value; umts_sib_count for the types not kept. */
umts_sib_id get_sib_type(uint32_t sib_type);

/* ---- Conversions: one per block, reading the slot of its SIB ------------------------- */

uint8_t umts_convert_mib(umts_mib_info* mib);
uint8_t umts_convert_sib1(umts_sib1_info* sib1);
uint8_t umts_convert_sib2(umts_sib2_info* sib2);
uint8_t umts_convert_sib3(umts_sib3_info* sib3);
uint8_t umts_convert_sib5(umts_sib5_info* sib5);
uint8_t umts_convert_sib7(umts_sib7_info* sib7);
uint8_t umts_convert_sib11(umts_sib11_info* sib11);
uint8_t umts_convert_sib11bis(umts_sib11bis_info* sib11bis);
uint8_t umts_convert_sib12(umts_sib12_info* sib12);
uint8_t umts_convert_sib18(umts_sib18_info* sib18);
uint8_t convert_scheduling_block1(umts_sb1_info* sb1);
uint8_t convert_scheduling_block2(umts_sb2_info* sb2);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_SIB_DECODER_H */
