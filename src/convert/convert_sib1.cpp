/*
 * SIB1: NAS system information and UE timers and constants.
 *
 * The frame runs (decoder, print, messages); the record is left zeroed after a successful
 * decoding until its copy is written here.
 */
#include "convert_frame.h"

namespace {

const umts_frame_desc kSib1Frame = {
    umts_sib_sib1, "Decoded SysInfoType1\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib1:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

}  // namespace

uint8_t umts_convert_sib1(umts_sib1_info* sib1) {
  rtxContext ctx;
  SysInfoType1 decoded;
  if (!umts_frame_open(&ctx, &kSib1Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType1, decoded, kSib1Frame, sib1)) return 0;
  return umts_frame_close(&ctx, &kSib1Frame);
}
