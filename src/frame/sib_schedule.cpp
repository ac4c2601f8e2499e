/*
 * Where the cell sends SIB11bis.
 *
 * SIB-Type extensionType stands for every SIB beyond the 31 types of the list: SIB11bis,
 * SIB15bis and its kin, SIB19, SIB20, the GANSS SIBs. A segment does not say which one it
 * carries; its frames do. The MIB, SB1 and SB2 schedule each extension SIB in their extension
 * lists, and a SIB so scheduled has its first segment in the frames with SFN mod SIB_REP =
 * SIB_POS and segment i in those with SFN mod SIB_REP = SIB_POS(i-1) + SIB_OFF(i). A
 * transport block covers two frames, the first of them SFN = 2 * SFN'.
 *
 * Of all this only SIB11bis is kept, the one extension SIB that the library converts: the
 * driver notes what each of the three blocks says of it whenever it converts one, and the
 * BCH intake asks here before it files an extensionType segment as SIB11bis.
 */
#include <cstring>

#include "umts_sib_decoder.h"
#include "umts_sib_frame.h"
#include "decoder_state.h"

namespace {

/* systemInfoType11bis, the first alternative of SIB-TypeExt, as its tag. */
constexpr uint32_t kSibTypeExtSib11bis = 1;
constexpr uint32_t kMaxSegments = 16;
/* SIB_OFF when sib-PosOffsetInfo gives none. */
constexpr uint32_t kDefaultOffset = 2;

/* SIB_REP of a sib-Pos alternative, rep4 (tag 1) to rep4096 (tag 11); 0 for another tag. */
uint32_t repetition(const umts_scheduling_pos& pos) {
  return pos.choice_tag >= 1 && pos.choice_tag <= 11 ? 4u << (pos.choice_tag - 1u) : 0u;
}

/* SIB_POS: the alternative's value, which counts pairs of frames, times two. */
uint32_t position(const umts_scheduling_pos& pos) {
  return 2u * (pos.choice_tag <= 8 ? pos.u.rep4 : pos.u.rep1024);
}

/* SIB_OFF(i), i from 1: so2 ... so32 are the SibOFF ordinals 0 to 15, in frames. */
uint32_t offset(const umts_scheduling_info& info, uint32_t i) {
  const bool listed = (info.presence_bitmask & 1u) != 0 && i - 1u < info.sib_PosOffsetInfo.count && i - 1u < 15u;
  if (!listed) return kDefaultOffset;
  const uint32_t ordinal = info.sib_PosOffsetInfo.entries[i - 1u];
  return ordinal < 16u ? 2u * (ordinal + 1u) : kDefaultOffset;
}

}  // namespace

void umts_note_sib11bis_schedule(unsigned source, const umts_ext_sib_type_info_scheduling_info_list* list) {
  if (source >= umts_schedule_count) return;
  umts_sib11bis_schedule* s = &umts_ctxt().sib11bis_schedules[source];
  std::memset(s, 0, sizeof *s);
  if (list == nullptr) return;
  for (uint32_t i = 0; i < list->count && i < 32u; i++) {
    const umts_ext_sib_type_info_scheduling_info& entry = list->entries[i];
    if (entry.extensionSIB_Type != kSibTypeExtSib11bis) continue;
    const umts_scheduling_info& info = entry.schedulingInfo;
    const uint32_t rep = repetition(info.sib_Pos);
    if (rep == 0) continue;
    s->scheduled = 1;
    s->rep = static_cast<uint16_t>(rep);
    s->seg_count = info.segCount == 0 ? 1 : info.segCount > kMaxSegments ? kMaxSegments : info.segCount;
    uint32_t frame = position(info.sib_Pos) % rep;
    for (uint32_t segment = 0; segment < kMaxSegments; segment++) {
      s->frame[segment] = static_cast<uint16_t>(frame);
      frame = (frame + offset(info, segment + 1u)) % rep;
    }
    return; /* a block schedules a SIB once */
  }
}

uint8_t umts_sib11bis_scheduled_at(uint16_t sfn_prime, uint32_t segment) {
  if (segment >= kMaxSegments) return 0;
  const uint32_t sfn = 2u * (sfn_prime & 0x7FFu);
  for (const umts_sib11bis_schedule& s : umts_ctxt().sib11bis_schedules) {
    if (s.scheduled != 0 && s.rep != 0 && segment < s.seg_count && sfn % s.rep == s.frame[segment]) return 1;
  }
  return 0;
}
