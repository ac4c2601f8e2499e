/*
 * SIB18: PLMN identities of the neighbouring cells.
 *
 * The frame runs (decoder, print, messages); the record is left zeroed after a successful
 * decoding until its copy is written here.
 */
#include "convert_frame.h"

namespace {

/* SIB18's decoding message has a blank after the colon, unlike its siblings. */
const umts_frame_desc kSib18Frame = {
    umts_sib_sib18, "Decoded SysInfoType18\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib18: asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

}  // namespace

uint8_t umts_convert_sib18(umts_sib18_info* sib18) {
  rtxContext ctx;
  SysInfoType18 decoded;
  if (!umts_frame_open(&ctx, &kSib18Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType18, decoded, kSib18Frame, sib18)) return 0;
  return umts_frame_close(&ctx, &kSib18Frame);
}
