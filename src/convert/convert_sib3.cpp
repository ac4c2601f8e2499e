/*
 * SIB3: cell selection and reselection, access restrictions and their extensions.
 *
 * The frame runs (decoder, print, messages); the record is left zeroed after a successful
 * decoding until its copy is written here.
 */
#include "convert_frame.h"

namespace {

const umts_frame_desc kSib3Frame = {
    umts_sib_sib3, "Decoded SysInfoType3\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib3:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

}  // namespace

uint8_t umts_convert_sib3(umts_sib3_info* sib3) {
  rtxContext ctx;
  SysInfoType3 decoded;
  if (!umts_frame_open(&ctx, &kSib3Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType3, decoded, kSib3Frame, sib3)) return 0;
  return umts_frame_close(&ctx, &kSib3Frame);
}
