/*
 * The frame that every conversion run by the driver shares.
 *
 * A conversion decodes the bytes waiting in its slot of g_umts_ctxt with the generated
 * decoder of its SIB, prints the decoded value, and only then replaces its flat record by
 * the copy of the decoded tree. It owns a runtime context for that time; the decoded tree
 * lives in the context and dies with it, so the record keeps no pointer into it. The slot
 * itself is released by the driver afterwards, not here.
 *
 * What differs between blocks is data, held in one constant umts_frame_desc per block: the
 * slot, the print title and five messages, each with the channel it goes to. A message
 * whose channel is UMTS_FRAME_QUIET is not given.
 *
 *   static const umts_frame_desc kSib3Frame = {
 *       umts_sib_sib3, "Decoded SysInfoType3\n",
 *       {UMTS_FRAME_PUTS, "ASN context initialisation failed "},     init_failed
 *       {UMTS_FRAME_QUIET, nullptr},                                 initialised
 *       {UMTS_FRAME_PUTS, "umts_convert_sib3:asn decoding failed"},  decode_failed
 *       {UMTS_FRAME_QUIET, nullptr},                                 decoded
 *       {UMTS_FRAME_QUIET, nullptr}};                                closing
 *
 *   uint8_t umts_convert_sib3(umts_sib3_info* sib3) {
 *     rtxContext ctx;
 *     SysInfoType3 decoded;
 *     if (!umts_frame_open(&ctx, &kSib3Frame)) return 0;
 *     if (!UMTS_FRAME_DECODE(ctx, SysInfoType3, decoded, kSib3Frame, sib3)) return 0;
 *     ... copy `decoded` into *sib3 ...
 *     return umts_frame_close(&ctx, &kSib3Frame);
 *   }
 *
 * The steps, and what each leaves behind:
 *   umts_frame_open    initialises the context through the licence-keyed call (no clearing);
 *                      on failure: init_failed, context freed, 0. Otherwise initialised,
 *                      and the slot's buffer becomes the decode buffer with the fixed length
 *                      UMTS_SIB_DECODE_LENGTH (every slot buffer holds that many bytes). An
 *                      emptied slot (null buffer) leaves the decode buffer empty, so that the
 *                      decoding then fails at its first bit.
 *   UMTS_FRAME_DECODE  zeroes `decoded` and runs asn1PD_UMTS_<Type>; on a nonzero status:
 *                      decode_failed, context freed, 0, the record untouched. Otherwise
 *                      asn1Print_UMTS_<Type> with the title (unless the host switched the
 *                      text off), decoded, the record cleared (umts_clear_record: in a set of the library only
 *                      what the last conversion wrote), 1.
 *   umts_frame_close   closing, context freed, 1.
 * After a 0 from either of the first two the context is already freed: just return 0.
 *
 * The channels are those of the system: the MIB's messages go to the log service (level 2
 * errors, level 6 trace, each guarded by the threshold), the other blocks print with puts,
 * or with printf where the text is to stay without a line end.
 */
#ifndef UMTS_CONVERT_FRAME_H
#define UMTS_CONVERT_FRAME_H

#include <string.h>

#include "umts_rrc.h"
#include "umts_rrc_rt_print.h"
#include "umts_sib_decoder.h"
#include "umts_sib_frame.h"
#include "../frame/sib_set_alloc.h"

#if defined(__GNUC__) || defined(__clang__)
#define UMTS_FRAME_LOCAL __attribute__((visibility("hidden")))
#else
#define UMTS_FRAME_LOCAL
#endif

/* The context message of every block but the MIB and SB1. */
#define UMTS_FRAME_CONTEXT_FAILED_TEXT "ASN context initialisation failed "

/* Where a frame message goes. */
typedef enum umts_frame_channel {
  UMTS_FRAME_QUIET = 0,  /* nowhere */
  UMTS_FRAME_LOG_ERROR,  /* log service, level 2 */
  UMTS_FRAME_LOG_TRACE,  /* log service, level 6 */
  UMTS_FRAME_PUTS,       /* standard output, the text and a line end */
  UMTS_FRAME_PRINTF      /* standard output, the text as it stands */
} umts_frame_channel;

/* A message of the frame: a plain text, with no conversions in it. */
typedef struct umts_frame_message {
  umts_frame_channel channel;
  const char* text;
} umts_frame_message;

/* What one block's frame says and where it reads. */
typedef struct umts_frame_desc {
  umts_sib_id slot;                 /* whose buffer is decoded */
  const char* title;                /* name given to the print of the decoded value */
  umts_frame_message init_failed;   /* the context could not be initialised */
  umts_frame_message initialised;   /* the context is ready */
  umts_frame_message decode_failed; /* the decoder returned a nonzero status */
  umts_frame_message decoded;       /* after the print of the decoded value */
  umts_frame_message closing;       /* before the context is freed on success */
} umts_frame_desc;

/* Gives one message on its channel. */
UMTS_FRAME_LOCAL void umts_frame_say(const umts_frame_message* message);

/* Prepares `ctx` to decode the slot of `desc`. 1 when ready; 0 with the context freed. */
UMTS_FRAME_LOCAL uint8_t umts_frame_open(rtxContext* ctx, const umts_frame_desc* desc);

/* Takes the decoder's status. 1 when it is 0; otherwise decode_failed, the context freed,
   0. */
UMTS_FRAME_LOCAL uint8_t umts_frame_decoded(rtxContext* ctx, int status, const umts_frame_desc* desc);

/* Ends a successful conversion: closing, the context freed, 1. */
UMTS_FRAME_LOCAL uint8_t umts_frame_close(rtxContext* ctx, const umts_frame_desc* desc);

/* Decodes the slot's bytes as `Type` into `decoded`, prints it under the title and clears the
   record `*record` (umts_clear_record); true on success, false with the context freed and the record untouched.
   `ctx`, `decoded` and `desc` are named objects, `record` a pointer. */
#define UMTS_FRAME_DECODE(ctx, Type, decoded, desc, record)                                       \
  (memset(&(decoded), 0, sizeof(decoded)),                                                        \
   umts_frame_decoded(&(ctx), asn1PD_UMTS_##Type(&(ctx), &(decoded)), &(desc)) &&                 \
       ((rtxPrintIsOn() ? asn1Print_UMTS_##Type((desc).title, &(decoded)) : (void)0),             \
        umts_frame_say(&(desc).decoded),                                                          \
        umts_clear_record(record), 1))

/* An OPTIONAL element copied as it stands: its presence bit, then its value. */
#define UMTS_COPY_OPTIONAL(src, dst, bit, field) \
  do {                                            \
    if ((src)->m & (bit)) {                       \
      (dst)->presence_bitmask |= (bit);           \
      (dst)->field = (src)->field;                \
    }                                             \
  } while (0)

/* An OPTIONAL element converted by `convert`: its presence bit, then the conversion of the
   decoded element into the record's field of the same name. */
#define UMTS_CONVERT_OPTIONAL(src, dst, bit, convert, field) \
  do {                                                       \
    if ((src)->m & (bit)) {                                  \
      (dst)->presence_bitmask |= (bit);                      \
      convert(&(src)->field, &(dst)->field);                 \
    }                                                        \
  } while (0)

#ifdef __cplusplus
/* SIB-TypeAndTag (SB1, SB2) and SIBSb-TypeAndTag (MIB) share their first twenty alternatives
   and the records of their values; the tags that carry a value among them are copied here.
   False for every other tag, which each block's fill function treats in its own way. */
template <class Src, class Dst>
inline bool umts_fill_shared_sib_tag(const Src* src, Dst* dst) {
  switch (src->t) {
    case 1: dst->u.sysInfoType1 = src->u.sysInfoType1; return true;
    case 2: dst->u.sysInfoType2 = src->u.sysInfoType2; return true;
    case 3: dst->u.sysInfoType3 = src->u.sysInfoType3; return true;
    case 4: dst->u.sysInfoType4 = src->u.sysInfoType4; return true;
    case 5: dst->u.sysInfoType5 = src->u.sysInfoType5; return true;
    case 6: dst->u.sysInfoType6 = src->u.sysInfoType6; return true;
    case 8: dst->u.dummy = src->u.dummy; return true;
    case 11: dst->u.sysInfoType11 = src->u.sysInfoType11; return true;
    case 12: dst->u.sysInfoType12 = src->u.sysInfoType12; return true;
    case 13: dst->u.sysInfoType13 = src->u.sysInfoType13; return true;
    case 14: dst->u.sysInfoType13_1 = src->u.sysInfoType13_1; return true;
    case 15: dst->u.sysInfoType13_2 = src->u.sysInfoType13_2; return true;
    case 16: dst->u.sysInfoType13_3 = src->u.sysInfoType13_3; return true;
    case 17: dst->u.sysInfoType13_4 = src->u.sysInfoType13_4; return true;
    case 19: dst->u.sysInfoType15 = src->u.sysInfoType15; return true;
    case 20:
      if (src->u.sysInfoType16 != nullptr) {
        dst->u.sysInfoType16.predefinedConfigIdentity = src->u.sysInfoType16->predefinedConfigIdentity;
        dst->u.sysInfoType16.predefinedConfigValueTag = src->u.sysInfoType16->predefinedConfigValueTag;
      }
      return true;
    default: return false;
  }
}
#endif

#endif /* UMTS_CONVERT_FRAME_H */
