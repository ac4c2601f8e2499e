/*
 * The blocks whose copy is still to be written: each runs its frame (decoder, print, messages)
 * and leaves its record zeroed after a successful decoding. A block moves to a file of its
 * own, with its copy, when that lands.
 *
 * These blocks print their messages with puts (SIB7's decoding message with printf, without
 * a line end).
 */
#include "convert_frame.h"

namespace {

#define UMTS_CONTEXT_FAILED_TEXT "ASN context initialisation failed "

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
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "asn1PD_UMTS_SysInfoTypeSB1:asn Decoding Failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib1Frame = {
    umts_sib_sib1, "Decoded SysInfoType1\n",
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib1:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib2Frame = {
    umts_sib_sib2, "Decoded SysInfoType2\n",
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib2:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib3Frame = {
    umts_sib_sib3, "Decoded SysInfoType3\n",
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib3:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib5Frame = {
    umts_sib_sib5, "Decoded SysInfoType5\n",
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib5:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

/* SIB7's decoding message has no line end. */
const umts_frame_desc kSib7Frame = {
    umts_sib_sib7, "Decoded SysInfoType7\n",
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PRINTF, "umts_convert_sib7:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib11Frame = {
    umts_sib_sib11, "Decoded SysInfoType11\n",
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib11:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib11bisFrame = {
    umts_sib_sib11bis, "Decoded SysInfoType11bis\n",
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib11bis:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

const umts_frame_desc kSib12Frame = {
    umts_sib_sib12, "Decoded SysInfoType12\n",
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib12:asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

/* SIB18's decoding message has a blank after the colon, unlike its siblings. */
const umts_frame_desc kSib18Frame = {
    umts_sib_sib18, "Decoded SysInfoType18\n",
    {UMTS_FRAME_PUTS, UMTS_CONTEXT_FAILED_TEXT},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_PUTS, "umts_convert_sib18: asn decoding failed"},
    {UMTS_FRAME_QUIET, nullptr},
    {UMTS_FRAME_QUIET, nullptr},
};

#undef UMTS_CONTEXT_FAILED_TEXT

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

uint8_t umts_convert_sib1(umts_sib1_info* sib1) {
  rtxContext ctx;
  SysInfoType1 decoded;
  if (!umts_frame_open(&ctx, &kSib1Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType1, decoded, kSib1Frame, sib1)) return 0;
  return umts_frame_close(&ctx, &kSib1Frame);
}

uint8_t umts_convert_sib2(umts_sib2_info* sib2) {
  rtxContext ctx;
  SysInfoType2 decoded;
  if (!umts_frame_open(&ctx, &kSib2Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType2, decoded, kSib2Frame, sib2)) return 0;
  return umts_frame_close(&ctx, &kSib2Frame);
}

uint8_t umts_convert_sib3(umts_sib3_info* sib3) {
  rtxContext ctx;
  SysInfoType3 decoded;
  if (!umts_frame_open(&ctx, &kSib3Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType3, decoded, kSib3Frame, sib3)) return 0;
  return umts_frame_close(&ctx, &kSib3Frame);
}

uint8_t umts_convert_sib5(umts_sib5_info* sib5) {
  rtxContext ctx;
  SysInfoType5 decoded;
  if (!umts_frame_open(&ctx, &kSib5Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType5, decoded, kSib5Frame, sib5)) return 0;
  return umts_frame_close(&ctx, &kSib5Frame);
}

uint8_t umts_convert_sib7(umts_sib7_info* sib7) {
  rtxContext ctx;
  SysInfoType7 decoded;
  if (!umts_frame_open(&ctx, &kSib7Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType7, decoded, kSib7Frame, sib7)) return 0;
  return umts_frame_close(&ctx, &kSib7Frame);
}

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

uint8_t umts_convert_sib18(umts_sib18_info* sib18) {
  rtxContext ctx;
  SysInfoType18 decoded;
  if (!umts_frame_open(&ctx, &kSib18Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType18, decoded, kSib18Frame, sib18)) return 0;
  return umts_frame_close(&ctx, &kSib18Frame);
}
