/*
 * SIB2 (URA identities) and SIB7 (uplink interference, dynamic persistence).
 *
 * The frame runs (decoder, print, messages); the record is left zeroed after a successful
 * decoding until its copy is written here.
 */
#include "convert_frame.h"

namespace {

const umts_frame_desc kSib2Frame = {
    umts_sib_sib2, "Decoded SysInfoType2\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib2:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

/* SIB7's decoding message has no line end. */
const umts_frame_desc kSib7Frame = {
    umts_sib_sib7, "Decoded SysInfoType7\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PRINTF, "umts_convert_sib7:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

}  // namespace

uint8_t umts_convert_sib2(umts_sib2_info* sib2) {
  rtxContext ctx;
  SysInfoType2 decoded;
  if (!umts_frame_open(&ctx, &kSib2Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType2, decoded, kSib2Frame, sib2)) return 0;
  return umts_frame_close(&ctx, &kSib2Frame);
}

uint8_t umts_convert_sib7(umts_sib7_info* sib7) {
  rtxContext ctx;
  SysInfoType7 decoded;
  if (!umts_frame_open(&ctx, &kSib7Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType7, decoded, kSib7Frame, sib7)) return 0;
  return umts_frame_close(&ctx, &kSib7Frame);
}
