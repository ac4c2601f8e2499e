/*
 * SIB2 (URA identities, slot 2) and SIB7 (uplink interference and dynamic persistence,
 * slot 5) into umts_sib2_info and umts_sib7_info.
 *
 * Both print with puts (SIB7's decoding message with printf, without a line end) and log
 * nothing below their frame.
 */
#include <cstddef>
#include <cstring>

#include "convert_frame.h"
#include "umts_sib_convert.h"

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

inline uint32_t at_most(uint32_t n, uint32_t bound) { return n < bound ? n : bound; }

/* The URA list is copied as a block of the decoded array, so both must have one shape. */
static_assert(sizeof(umts_ura_identity) == sizeof(URA_Identity), "URA-Identity entries differ in size");
static_assert(offsetof(umts_ura_identity, data) == offsetof(URA_Identity, data), "URA-Identity octets moved");
static_assert(sizeof(umts_ura_identity_list::entries) == sizeof(URA_IdentityList::elem), "URA lists differ in length");

/* The URA identities, written twice: the whole decoded array first, used entries or not,
   then each used entry again, its bit count and its octets.
   The second copy takes the bit count as a count of octets. Within the array the octets
   beyond an entry's four are the following entries, already holding the same values; from
   the seventh entry on the copy would run past the array, over nonCriticalExtensions (which
   holds the zero of the empty sequence either way) and, from the eighth, beyond umts_sib2_info
   into the next record of the caller's set. It is kept to the entry's four octets, which
   leaves every value of the record as the longer copy would and writes nothing outside it. */
void convert_ura_identity_list(const URA_IdentityList* src, umts_ura_identity_list* dst) {
  dst->count = static_cast<uint16_t>(src->n);
  std::memcpy(dst->entries, src->elem, sizeof dst->entries);
  const uint32_t used = at_most(dst->count, sizeof dst->entries / sizeof dst->entries[0]);
  for (uint32_t i = 0; i < used; i++) {
    dst->entries[i].numbits = src->elem[i].numbits;
    std::memcpy(dst->entries[i].data, src->elem[i].data, at_most(src->elem[i].numbits, sizeof dst->entries[i].data));
  }
}

}  // namespace

/* ---- SIB2 ------------------------------------------------------------------------------ */

void convert_sysinfotype2_non_critical_extensions(const SysInfoType2_nonCriticalExtensions* src, uint8_t* dst) {
  /* The decoded sequence is empty: its one byte is the zero of the cleared value. */
  std::memcpy(dst, src, 1);
}

uint8_t umts_convert_sib2(umts_sib2_info* sib2) {
  rtxContext ctx;
  SysInfoType2 decoded;
  if (!umts_frame_open(&ctx, &kSib2Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType2, decoded, kSib2Frame, sib2)) return 0;

  convert_ura_identity_list(&decoded.ura_IdentityList, &sib2->ura_IdentityList);
  if (decoded.m & 1u) {
    sib2->presence_bitmask |= 1u;
    convert_sysinfotype2_non_critical_extensions(&decoded.nonCriticalExtensions, &sib2->nonCriticalExtensions);
  }
  return umts_frame_close(&ctx, &kSib2Frame);
}

/* ---- SIB7 ------------------------------------------------------------------------------ */

void convert_sysinfotype7_modespecificinfo_fdd(const SysInfoType7_modeSpecificInfo_fdd* src, int8_t* ul_Interference) {
  *ul_Interference = src->ul_Interference;
}

void convert_sysinfotype7_modespecificinfo(const SysInfoType7_modeSpecificInfo* src,
                                           umts_sysinfotype7_modespecificinfo* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_sysinfotype7_modespecificinfo_fdd(src->u.fdd, &dst->u.ul_Interference);
  /* tdd, or a tag without a value: the tag alone. */
}

void convert_dynamic_persistencelevel_list(const DynamicPersistenceLevelList* src,
                                           umts_dynamic_persistence_level_list* dst) {
  dst->count = src->n;
  std::memcpy(dst->entries, src->elem, at_most(src->n, sizeof dst->entries));
}

uint8_t umts_convert_sib7(umts_sib7_info* sib7) {
  rtxContext ctx;
  SysInfoType7 decoded;
  if (!umts_frame_open(&ctx, &kSib7Frame)) return 0;
  if (!UMTS_FRAME_DECODE(ctx, SysInfoType7, decoded, kSib7Frame, sib7)) return 0;

  convert_sysinfotype7_modespecificinfo(&decoded.modeSpecificInfo, &sib7->modeSpecificInfo);
  convert_dynamic_persistencelevel_list(&decoded.prach_Information_SIB5_List, &sib7->prach_Information_SIB5_List);
  if (decoded.m & 1u) {
    sib7->presence_bitmask |= 1u;
    convert_dynamic_persistencelevel_list(&decoded.prach_Information_SIB6_List, &sib7->prach_Information_SIB6_List);
  }
  if (decoded.m & 2u) {
    sib7->presence_bitmask |= 2u;
    sib7->expirationTimeFactor = decoded.expirationTimeFactor;
  }
  if (decoded.m & 4u) {
    sib7->presence_bitmask |= 4u;
    std::memcpy(&sib7->nonCriticalExtensions, &decoded.nonCriticalExtensions, 1);
  }
  return umts_frame_close(&ctx, &kSib7Frame);
}
