/*
 * BCH segmenter: whole encoded SIBs in, BCH transport blocks out.
 *
 * Each transport block is one BCCH-BCH-Message (TS 25.331, SystemInformation-BCH) encoded in
 * unaligned PER with the codec's asn1PE_UMTS_BCCH_BCH_Message: an 11-bit SFN-Prime, counting
 * up by one per block from the caller's first value (modulo 2048), and a payload that carries
 * segments of the SIBs in the order given:
 *
 *   completeSIB-List   1 to 16 CompleteSIBshort, each a whole SIB of at most 214 bits
 *   completeSIB        a whole SIB of 215 to 226 bits, padded with zero bits to 226
 *   firstSegment       the first 222 bits of a SIB, in a block of its own
 *   subsequentSegment  the next 222 bits
 *   lastSegment        the last 215 to 222 bits, padded with zero bits to 222
 *   lastSegmentShort   the last 1 to 214 bits
 *   lastAndFirst, lastAndComplete, lastAndCompleteAndFirst, completeAndFirst
 *                      a lastSegmentShort, a completeSIB-List and a FirstSegmentShort (1 to
 *                      214 bits) sharing one block, in that order
 *
 * Every block takes 246 bits at most and is delivered as 31 octets, its last bits zero.
 *
 * The cut is that of TS 25.331: the SIB's encoding is one bit string, cut into consecutive
 * pieces with no regard for octets, and a receiver joins the pieces bit by bit in the order
 * of their segment indices. A SIB that does not fit a block whole starts with a
 * FirstSegmentShort that takes the room left in the block being filled, when there is any,
 * and otherwise with a firstSegment of 222 bits; 222-bit subsequent segments follow, and the
 * rest goes into the last segment. A SIB that would need more than 16 segments is refused.
 */
#ifndef UMTS_BCH_SEGMENTER_H
#define UMTS_BCH_SEGMENTER_H

#include <stdint.h>

#define UMTS_BCH_BLOCK_BITS 246
#define UMTS_BCH_BLOCK_OCTETS 31
/* A lastSegmentShort, 16 CompleteSIBshort and a FirstSegmentShort. */
#define UMTS_BCH_MAX_PIECES 18

/* One whole SIB to carry. */
typedef struct umts_bch_sib {
  uint32_t sib_type;    /* SIB-Type value, 0 (masterInformationBlock) to 31 (extensionType) */
  const uint8_t* data;  /* its unaligned PER encoding, first bit in the top of data[0] */
  uint32_t numbits;     /* bits of the encoding, at least 1 */
  uint8_t own_block;    /* 1: nothing else shares a block with this SIB (e.g. the MIB) */
} umts_bch_sib;

typedef enum umts_bch_piece_kind {
  umts_bch_complete_short = 0, /* CompleteSIBshort of a completeSIB-List */
  umts_bch_complete,           /* CompleteSIB */
  umts_bch_first,              /* firstSegment (FirstSegment, 222 bits) */
  umts_bch_first_short,        /* FirstSegmentShort of a combined block */
  umts_bch_subsequent,         /* subsequentSegment */
  umts_bch_last,               /* lastSegment (222 bits) */
  umts_bch_last_short          /* lastSegmentShort */
} umts_bch_piece_kind;

/* What one block carries of one SIB. */
typedef struct umts_bch_piece {
  uint32_t sib;        /* index of the SIB in the caller's array */
  uint32_t sib_type;
  uint8_t kind;        /* umts_bch_piece_kind */
  uint8_t segment;     /* 0 for the first (or only) piece, else its SegmentIndex */
  uint8_t seg_count;   /* pieces of this SIB, 1 when it is carried whole */
  uint16_t first_bit;  /* first bit of the encoding carried here */
  uint16_t numbits;    /* bits of the encoding carried here, before any padding */
} umts_bch_piece;

typedef struct umts_bch_block {
  uint8_t data[UMTS_BCH_BLOCK_OCTETS];
  uint16_t sfn_prime;
  uint8_t payload;     /* tag of SystemInformation-BCH payload: 2 firstSegment ... 11 lastSegment */
  uint8_t piece_count;
  umts_bch_piece pieces[UMTS_BCH_MAX_PIECES]; /* in the order of the message */
} umts_bch_block;

typedef enum umts_bch_status {
  umts_bch_ok = 0,
  umts_bch_bad_sib,       /* SIB-Type above 31, no bits, or no data */
  umts_bch_too_long,      /* the SIB needs more than 16 segments */
  umts_bch_out_of_blocks, /* more blocks needed than the caller's array holds */
  umts_bch_encode_failed  /* the codec refused a message */
} umts_bch_status;

#ifdef __cplusplus
extern "C" {
#endif

/* Cuts `count` SIBs, in order, into transport blocks written to blocks[0..max_blocks).
   On umts_bch_ok *block_count is the number of blocks. Otherwise *block_count holds the
   blocks written before the failure and *failed_sib (when not null) the index of the SIB
   concerned (count for a failure not tied to one SIB). */
umts_bch_status umts_bch_segment(const umts_bch_sib* sibs, uint32_t count, uint16_t first_sfn_prime,
                                 umts_bch_block* blocks, uint32_t max_blocks, uint32_t* block_count,
                                 uint32_t* failed_sib);

const char* umts_bch_status_text(umts_bch_status status);
/* Name of the message element of a piece kind: "completeSIB-List", "firstSegment", ... */
const char* umts_bch_piece_kind_name(umts_bch_piece_kind kind);
/* Name of a payload alternative by its tag (1 "noSegment" to 11 "lastSegment"). */
const char* umts_bch_payload_name(uint32_t tag);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_BCH_SEGMENTER_H */
