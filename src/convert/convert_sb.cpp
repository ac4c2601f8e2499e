/*
 * The scheduling blocks SB1 and SB2.
 *
 * The frame runs (decoder, print, messages); the record is left zeroed after a successful
 * decoding until its copy is written here.
 */
#include "convert_frame.h"

namespace {

const umts_frame_desc kSb1Frame = {
    umts_sib_sb1, "Decoded SysInfoTypeSB1\n",
    {UMTS_FRAME_PUTS, "convert_scheduling_block1:ASN context initialisation failed "},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "asn1PD_UMTS_SysInfoTypeSB1:asn Decoding Failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

/* SB2 reports a failed decoding with the SB1 text. */
const umts_frame_desc kSb2Frame = {
    umts_sib_sb2, "Decoded SysInfoTypeSB2\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "asn1PD_UMTS_SysInfoTypeSB1:asn Decoding Failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

}  // namespace

uint8_t convert_scheduling_block1(umts_sb1_info* sb1) {
  rtxContext ctx;
  SysInfoTypeSB1 decoded;
  if (!umts_frame_open(&ctx, &kSb1Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoTypeSB1, decoded, kSb1Frame, sb1)) return 0;
  return umts_frame_close(&ctx, &kSb1Frame);
}

uint8_t convert_scheduling_block2(umts_sb2_info* sb2) {
  rtxContext ctx;
  SysInfoTypeSB2 decoded;
  if (!umts_frame_open(&ctx, &kSb2Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoTypeSB2, decoded, kSb2Frame, sb2)) return 0;
  return umts_frame_close(&ctx, &kSb2Frame);
}
