/*
 * SIB5: common physical and transport channels.
 *
 * The frame runs (decoder, print, messages); the record is left zeroed after a successful
 * decoding until its copy is written here.
 */
#include "convert_frame.h"

namespace {

const umts_frame_desc kSib5Frame = {
    umts_sib_sib5, "Decoded SysInfoType5\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib5:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

}  // namespace

uint8_t umts_convert_sib5(umts_sib5_info* sib5) {
  rtxContext ctx;
  SysInfoType5 decoded;
  if (!umts_frame_open(&ctx, &kSib5Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType5, decoded, kSib5Frame, sib5)) return 0;
  return umts_frame_close(&ctx, &kSib5Frame);
}
