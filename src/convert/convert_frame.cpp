/*
 * The conversion frame: context, decode buffer and the messages of each block.
 */
#include "convert_frame.h"

#include <cstdio>
#include <cstring>

#include "umts_rrc_rt.h"
#include "umts_sib_log.h"
#include "../frame/decoder_state.h"

/* The frame's texts are plain constants without conversions; they go to the log service as
   its format, exactly as written. */
#if defined(__GNUC__) || defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#endif

void umts_frame_say(const umts_frame_message* message) {
  switch (message->channel) {
    case UMTS_FRAME_LOG_ERROR: UMTS_LOG_ERROR(message->text); break;
    case UMTS_FRAME_LOG_TRACE: UMTS_LOG_TRACE(message->text); break;
    case UMTS_FRAME_PUTS: umts_say(message->text); break;
    case UMTS_FRAME_PRINTF: umts_say_part(message->text); break;
    case UMTS_FRAME_QUIET: break;
  }
}

#if defined(__GNUC__) || defined(__clang__)
#pragma GCC diagnostic pop
#endif

uint8_t umts_frame_open(rtxContext* ctx, const umts_frame_desc* desc) {
  /* The initialisation sets every field that is read before it is written; the context's
     path, error and first heap block are not cleared, which would cost more than the
     decoding of most blocks. */
  if (rtInitContextUsingKey(ctx, nullptr, 0) != 0) {
    umts_frame_say(&desc->init_failed);
    rtFreeContext(ctx);
    return 0;
  }
  umts_frame_say(&desc->initialised);
  /* The fixed length, whatever the slot holds: every slot buffer is at least this long. A
     null buffer is refused here and leaves the context without bytes to decode. */
  pu_setBuffer(ctx, umts_ctxt().slots[desc->slot].buffer, UMTS_SIB_DECODE_LENGTH, 0);
  return 1;
}

uint8_t umts_frame_decoded(rtxContext* ctx, int status, const umts_frame_desc* desc) {
  if (status == 0) return 1;
  umts_frame_say(&desc->decode_failed);
  rtFreeContext(ctx);
  return 0;
}

uint8_t umts_frame_close(rtxContext* ctx, const umts_frame_desc* desc) {
  umts_frame_say(&desc->closing);
  rtFreeContext(ctx);
  return 1;
}
