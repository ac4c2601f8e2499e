/*
 * SIB11, SIB11bis and SIB12: measurement control system information.
 *
 * The frame runs (decoder, print, messages); the record is left zeroed after a successful
 * decoding until its copy is written here.
 */
#include "convert_frame.h"

namespace {

const umts_frame_desc kSib11Frame = {
    umts_sib_sib11, "Decoded SysInfoType11\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib11:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib11bisFrame = {
    umts_sib_sib11bis, "Decoded SysInfoType11bis\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib11bis:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib12Frame = {
    umts_sib_sib12, "Decoded SysInfoType12\n",
    {UMTS_FRAME_PUTS, UMTS_FRAME_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib12:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

}  // namespace

uint8_t umts_convert_sib11(umts_sib11_info* sib11) {
  rtxContext ctx;
  SysInfoType11 decoded;
  if (!umts_frame_open(&ctx, &kSib11Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType11, decoded, kSib11Frame, sib11)) return 0;
  return umts_frame_close(&ctx, &kSib11Frame);
}

uint8_t umts_convert_sib11bis(umts_sib11bis_info* sib11bis) {
  rtxContext ctx;
  SysInfoType11bis decoded;
  if (!umts_frame_open(&ctx, &kSib11bisFrame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType11bis, decoded, kSib11bisFrame, sib11bis)) return 0;
  return umts_frame_close(&ctx, &kSib11bisFrame);
}

uint8_t umts_convert_sib12(umts_sib12_info* sib12) {
  rtxContext ctx;
  SysInfoType12 decoded;
  if (!umts_frame_open(&ctx, &kSib12Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType12, decoded, kSib12Frame, sib12)) return 0;
  return umts_frame_close(&ctx, &kSib12Frame);
}
