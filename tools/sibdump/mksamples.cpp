/*
 * mksamples: the system information of a plausible UMTS FDD cell, built value by value,
 * encoded with the codec (asn1PE_UMTS_<SIB type>) and cut into BCH transport blocks.
 *
 *   mksamples DIR   writes DIR/fdd_cell.bch        one broadcast cycle, a transport block per
 *                                                  line in hex, '#' comments on what each
 *                                                  block carries (input of sibdump)
 *                          DIR/fdd_cell_sibs.txt   the same SIBs whole, '<name> <hex>'
 *                                                  (input of sibdump --sibs), then a
 *                                                  SIB11bis and a second form of SIB11
 *                                                  (HCS in use, Ec/N0) not in the cycle
 *                          DIR/tdd128_cell_sibs.txt  SIB11 and SIB12 of a 1.28 Mcps TDD
 *                                                  cell, whole
 *   mksamples DIR CYCLE  also writes CYCLE: the cell's broadcast as its MIB and SB1
 *                        schedule it, over one SFN cycle (the benchmarks' input)
 *
 * The cell: MCC 262, MNC 01, LAC 0x4E21, RAC 5, cell identity 0x01A2B3C (RNC 26, C-Id 11068),
 * primary scrambling code 123 on one carrier, in four URAs, a dozen intra-frequency neighbours
 * (one shared with a roaming partner, MNC 02), three cells on the operator's second carrier
 * and three GSM neighbours of that partner, with the
 * Rel-8 extensions of SB1, SIB1 and SIB18, and a second form of its SIB5 after the cycle.
 * Every SIB is decoded again after encoding, so that a value the decoder would not read back
 * stops the run.
 */
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

#include "bch_segmenter.h"
#include "umts_rrc.h"
#include "umts_rrc_rt.h"

namespace {

rtxContext g_ctx; /* every value built here lives on this context's heap */

[[noreturn]] void die(const char* what) {
  std::fprintf(stderr, "mksamples: %s\n", what);
  std::exit(1);
}

template <class T>
T* make() {
  T* p = static_cast<T*>(rtxMemHeapAllocZ(&g_ctx, sizeof(T)));
  if (p == nullptr) die("out of memory");
  return p;
}

void append(rtxDList* list, void* data) {
  rtxDListNode* node = make<rtxDListNode>();
  node->data = data;
  rtxDListAppendNode(list, node);
}

void set_digits(uint32_t* n, uint8_t* elem, const char* digits) {
  *n = 0;
  for (const char* d = digits; *d != '\0'; d++) elem[(*n)++] = static_cast<uint8_t>(*d - '0');
}

void set_plmn(PLMN_Identity* p, const char* mcc, const char* mnc) {
  set_digits(&p->mcc.n, p->mcc.elem, mcc);
  set_digits(&p->mnc.n, p->mnc.elem, mnc);
}

void set_bits(rtxBitStr32* b, uint32_t numbits, uint32_t value) {
  b->numbits = numbits;
  const uint32_t left = value << (32u - numbits);
  for (int i = 0; i < 4; i++) b->data[i] = static_cast<uint8_t>(left >> (24 - 8 * i));
}

/* One encoded SIB. */
struct Sib {
  const char* name;     /* as sibdump --sibs names it */
  const char* label;    /* as the comments name it */
  uint32_t sib_type;    /* SIB-Type value */
  std::vector<uint8_t> bytes;
  uint32_t numbits;
};

#define MKS_ENCODE(Type, value, sib)                                                            \
  do {                                                                                          \
    if (rtxInitContextBuffer(&g_ctx, nullptr, 0) != 0 || asn1PE_UMTS_##Type(&g_ctx, (value)) != 0) \
      encode_failed(#Type);                                                                     \
    (sib).numbits = static_cast<uint32_t>(rtxBitPos(&g_ctx));                                   \
    (sib).bytes.assign(rtxEncGetBuffer(&g_ctx), rtxEncGetBuffer(&g_ctx) + pu_getMsgLen(&g_ctx)); \
    check_decode_##Type(sib);                                                                   \
  } while (0)

[[noreturn]] void encode_failed(const char* type) {
  char text[512];
  rtxErrGetText(&g_ctx, text, sizeof text);
  std::fprintf(stderr, "mksamples: encoding %s failed: %s\n", type, text);
  std::exit(1);
}

/* Decodes an encoding again; it must succeed and read exactly the encoded bits. */
#define MKS_DEFINE_CHECK(Type)                                                                  \
  void check_decode_##Type(const Sib& sib) {                                                    \
    rtxContext* ctx = new rtxContext;                                                           \
    std::memset(ctx, 0, sizeof *ctx);                                                           \
    Type value;                                                                                 \
    std::memset(&value, 0, sizeof value);                                                       \
    int stat = rtInitContext(ctx);                                                              \
    if (stat == 0) stat = pu_setBuffer(ctx, sib.bytes.data(), static_cast<uint32_t>(sib.bytes.size()), 0); \
    if (stat == 0) stat = asn1PD_UMTS_##Type(ctx, &value);                                      \
    const bool ok = stat == 0 && rtxBitPos(ctx) == sib.numbits;                                 \
    char text[512] = "";                                                                        \
    if (!ok) rtxErrGetText(ctx, text, sizeof text);                                             \
    rtFreeContext(ctx);                                                                         \
    delete ctx;                                                                                 \
    if (!ok) {                                                                                  \
      std::fprintf(stderr, "mksamples: %s does not decode back: %s\n", #Type, text);            \
      std::exit(1);                                                                             \
    }                                                                                           \
  }
MKS_DEFINE_CHECK(MasterInformationBlock)
MKS_DEFINE_CHECK(SysInfoTypeSB1)
MKS_DEFINE_CHECK(SysInfoType1)
MKS_DEFINE_CHECK(SysInfoType2)
MKS_DEFINE_CHECK(SysInfoType3)
MKS_DEFINE_CHECK(SysInfoType5)
MKS_DEFINE_CHECK(SysInfoType7)
MKS_DEFINE_CHECK(SysInfoType11)
MKS_DEFINE_CHECK(SysInfoType11bis)
MKS_DEFINE_CHECK(SysInfoType12)
MKS_DEFINE_CHECK(SysInfoType18)

/* ---- Scheduling -------------------------------------------------------------------------- */

/* Where a block is broadcast: SIB_REP in frames, SIB_POS (an even frame number) and the frames
   from each segment to the next (SIB_OFF, 2 to 32), one per segment after the first. */
struct Schedule {
  uint32_t rep;
  uint32_t pos;
  std::vector<uint32_t> offsets;
  uint32_t segments() const { return static_cast<uint32_t>(offsets.size()) + 1u; }
};

constexpr uint32_t kSfnCycle = 4096; /* frames */

/* The frames of the SFN cycle that the blocks placed so far take. A cell never sends two
   blocks in one frame: each block placed finds frames of its own. */
struct FrameMap {
  std::vector<bool> taken = std::vector<bool>(kSfnCycle, false);

  bool free_every(uint32_t rep, uint32_t frame) const {
    for (uint32_t f = frame % rep; f < kSfnCycle; f += rep)
      if (taken[f]) return false;
    return true;
  }

  /* The first position from `want` on (within one period) where every segment finds a
     free frame in each repetition, each segment as soon after the one before as that allows. */
  Schedule place(uint32_t rep, uint32_t want, uint32_t segments, const char* what) {
    for (uint32_t tried = 0; tried < rep; tried += 2) {
      const uint32_t pos = (want + tried) % rep;
      if (!free_every(rep, pos)) continue;
      Schedule at{rep, pos, {}};
      uint32_t last = pos;
      while (at.segments() < segments) {
        uint32_t next = last + 2;
        while (next - last <= 32 && next < pos + rep && !free_every(rep, next)) next += 2;
        if (next - last > 32 || next >= pos + rep) break;
        at.offsets.push_back(next - last);
        last = next;
      }
      if (at.segments() < segments) continue;
      uint32_t frame = pos;
      for (uint32_t i = 0; i < segments; i++) {
        for (uint32_t f = frame % rep; f < kSfnCycle; f += rep) taken[f] = true;
        if (i < at.offsets.size()) frame += at.offsets[i];
      }
      return at;
    }
    std::fprintf(stderr, "mksamples: no frames left for %s (%u segments every %u frames)\n", what, segments, rep);
    std::exit(1);
  }
};

/* With `list_offsets`, a block of several segments lists the offsets of its later segments
   even where each is two frames (so2), which is also what an absent list means; a list with
   another offset is always given. */
void set_scheduling(SchedulingInformation* s, const Schedule& at, bool list_offsets = false) {
  asn1Init_UMTS_SchedulingInformation(s);
  SchedulingInformation_scheduling* sch = &s->scheduling;
  sch->segCount = static_cast<uint8_t>(at.segments());
  /* sib-Pos counts in units of two frames: rep4 (1) ... rep4096 (11). */
  uint32_t t = 1;
  for (uint32_t r = 4; r < at.rep; r *= 2) t++;
  sch->sib_Pos.t = t;
  const uint32_t value = at.pos / 2u;
  if (t <= 8) {
    sch->sib_Pos.u.rep4 = static_cast<uint8_t>(value);
  } else {
    sch->sib_Pos.u.rep1024 = static_cast<uint16_t>(value);
  }
  bool other = false;
  for (uint32_t o : at.offsets) other = other || o != 2;
  if ((list_offsets || other) && !at.offsets.empty()) {
    sch->m |= 1u; /* sib-PosOffsetInfo */
    sch->sib_PosOffsetInfo.n = static_cast<uint32_t>(at.offsets.size());
    for (size_t i = 0; i < at.offsets.size(); i++) sch->sib_PosOffsetInfo.elem[i] = at.offsets[i] / 2 - 1; /* so2 = 0 */
  }
}

/* The value tags of the cycle: changing a SIB means raising its tag. */
constexpr uint8_t kMibValueTag = 3;
constexpr uint16_t kPlmnValueTag = 17;
constexpr uint8_t kCellValueTag = 2;

/* The SIBs of the cycle. */
/* The SIBs of the cycle, in the order they are sent. */
enum CycleIndex : uint32_t {
  kMib, kSb1, kSib1, kSib2, kSib3, kSib5, kSib7, kSib11Hcs, kSib11, kSib12, kSib18, kSib11bis, kSib5Second, kCycleSize
};

/* A block that the MIB or SB1 references: its SIBSb-TypeAndTag / SIB-TypeAndTag alternative. */
struct Ref {
  uint32_t tag;
  uint32_t sib_index; /* in the cycle's SIB list */
};

/* Where each block of the cycle is broadcast, with the segment count found by cutting it. */
struct Plan {
  std::vector<Schedule> at = std::vector<Schedule>(kCycleSize); /* by cycle index; MIB included */
  Schedule sib19;
};

/* systemInfoType11bis, the first alternative of SIB-TypeExt. */
const uint32_t kTagExtSysInfoType11bis = 1;

const uint32_t kTagSysInfoType1 = 1, kTagSysInfoType2 = 2, kTagSysInfoType3 = 3, kTagSysInfoType5 = 5,
               kTagSysInfoType7 = 7, kTagSysInfoType11 = 11, kTagSysInfoType12 = 12;
/* In SIBSb-TypeAndTag; SIB-TypeAndTag has no SB entries and numbers SIB18 26. */
const uint32_t kTagSbSysInfoTypeSB1 = 22, kTagSbSysInfoType18 = 28, kTagSibSysInfoType18 = 26;
/* SIB19 (priorities for UTRA and E-UTRA reselection), scheduled by SB1's Rel-8 extension. It
   is not part of the cycle written here: the library does not convert it. */
const uint32_t kTagExt2SysInfoType19 = 1;

/* The references of the MIB and SB1, in their order. The MIB, which must fit one transport
   block, references SB1 and the blocks that a UE needs first to camp (SIB1, SIB3, SIB5, SIB7);
   SB1 the rest: SIB2, the measurement blocks and SIB18, and SIB7 once more (whose entry has no
   value tag: SIB7 expires instead). */
const Ref kMibRefs[] = {{kTagSbSysInfoTypeSB1, kSb1}, {kTagSysInfoType1, kSib1}, {kTagSysInfoType3, kSib3},
                        {kTagSysInfoType5, kSib5},     {kTagSysInfoType7, kSib7}};
const Ref kSb1Refs[] = {{kTagSysInfoType2, kSib2},
                        {kTagSysInfoType7, kSib7},
                        {kTagSysInfoType11, kSib11},
                        {kTagSysInfoType12, kSib12},
                        {kTagSibSysInfoType18, kSib18}};

/* Repetition and wanted position of each block, placed in this order (shortest repetition
   first): the MIB every 8 frames at SFN 0; SIB3 and SIB7 often, SIB1, SIB5 and SB1 less, the
   measurement blocks, SIB2, SIB18 and SIB11bis seldom. SIB19 (rep 128 at 26, which SB1
   schedules though the cycle does not carry it) is placed before SIB11. In the cycle of
   samples/fdd_cell.bch, whose blocks follow each other, SIB11bis (which a receiver takes for
   one only where the schedule puts it) is instead placed first, once in the SFN cycle, in the
   frame of the block that carries it there. */
struct Wish {
  uint32_t sib_index;
  uint32_t rep;
  uint32_t pos;
};
const Wish kWishes[] = {{kMib, 8, 0},     {kSib3, 16, 6},    {kSib7, 16, 14},   {kSib1, 32, 4},
                        {kSib5, 32, 12},  {kSb1, 64, 2},     {kSib2, 128, 10},  {kSib11, 128, 18},
                        {kSib12, 128, 42}, {kSib18, 256, 50}, {kSib11bis, 256, 90}};

/* With `sib11bis_frame` at 0 or above, SIB11bis is placed first at that frame, once per SFN
   cycle. */
Plan place_cycle(const std::vector<uint32_t>& seg_counts, const std::vector<Sib>& sibs, int32_t sib11bis_frame = -1) {
  FrameMap map;
  Plan plan;
  if (sib11bis_frame >= 0) {
    plan.at[kSib11bis] = map.place(kSfnCycle, static_cast<uint32_t>(sib11bis_frame), seg_counts[kSib11bis], "SIB11bis");
    if (plan.at[kSib11bis].pos != static_cast<uint32_t>(sib11bis_frame)) die("SIB11bis cannot have its block's frame");
  }
  for (const Wish& w : kWishes) {
    if (w.sib_index == kSib11) plan.sib19 = map.place(128, 26, 1, "SIB19");
    if (w.sib_index == kSib11bis && sib11bis_frame >= 0) continue;
    plan.at[w.sib_index] = map.place(w.rep, w.pos, seg_counts[w.sib_index], sibs[w.sib_index].label);
  }
  if (plan.at[kMib].pos != 0) die("the MIB cannot have the frames of SFN mod 8 = 0");
  return plan;
}

/* Every alternative used here but the first holds a CellValueTag (u8) at the start of the
   union, sysInfoType7 nothing. */
template <class TypeAndTag>
void set_type_and_tag(TypeAndTag* t, uint32_t tag) {
  t->t = tag;
  if (tag == kTagSysInfoType1) {
    t->u.sysInfoType1 = kPlmnValueTag;
  } else if (tag != kTagSysInfoType7) {
    const uint8_t value = kCellValueTag;
    std::memcpy(&t->u, &value, sizeof value);
  }
}

/* ---- The blocks --------------------------------------------------------------------------- */

void build_mib(Sib& sib, const Plan& plan) {
  MasterInformationBlock* mib = make<MasterInformationBlock>();
  asn1Init_UMTS_MasterInformationBlock(mib);
  mib->mib_ValueTag = kMibValueTag;
  mib->plmn_Type.t = 1; /* gsm-MAP */
  mib->plmn_Type.u.gsm_MAP = make<PLMN_Type_gsm_MAP>();
  set_plmn(&mib->plmn_Type.u.gsm_MAP->plmn_Identity, "262", "01");
  for (const Ref& r : kMibRefs) {
    SchedulingInformationSIBSb* e = make<SchedulingInformationSIBSb>();
    set_type_and_tag(&e->sibSb_Type, r.tag);
    set_scheduling(&e->scheduling, plan.at[r.sib_index]);
    append(&mib->sibSb_ReferenceList, e);
  }
  MKS_ENCODE(MasterInformationBlock, mib, sib);
}

void build_sb1(Sib& sib, const Plan& plan) {
  SysInfoTypeSB1* sb1 = make<SysInfoTypeSB1>();
  asn1Init_UMTS_SysInfoTypeSB1(sb1);
  for (const Ref& r : kSb1Refs) {
    SchedulingInformationSIB* e = make<SchedulingInformationSIB>();
    set_type_and_tag(&e->sib_Type, r.tag);
    set_scheduling(&e->scheduling, plan.at[r.sib_index], true);
    append(&sb1->sib_ReferenceList, e);
  }
  /* The v6b0 level schedules SIB11bis and carries the v860 level, which schedules SIB19. */
  sb1->m |= 1u;
  SysInfoTypeSB1_v6b0NonCriticalExtensions* v6b0 = &sb1->v6b0NonCriticalExtensions;
  v6b0->sysInfoTypeSB1_v6b0ext.m = 1u; /* extSIBTypeInfoSchedulingInfo-List */
  ExtSIBTypeInfoSchedulingInfo* sib11bis = make<ExtSIBTypeInfoSchedulingInfo>();
  sib11bis->extensionSIB_Type.t = kTagExtSysInfoType11bis;
  set_scheduling(&sib11bis->schedulingInfo, plan.at[kSib11bis], true);
  sib11bis->valueTagInfo.t = 2; /* cellValueTag */
  sib11bis->valueTagInfo.u.cellValueTag = kCellValueTag;
  append(&v6b0->sysInfoTypeSB1_v6b0ext.extSIBTypeInfoSchedulingInfo_List, sib11bis);
  v6b0->m |= 1u;
  SysInfoTypeSB1_v860ext* v860 = &v6b0->v860NonCriticalExtensions.sysInfoTypeSB1_v860ext;
  v860->m |= 1u; /* extSIBTypeInfoSchedulingInfo-List */
  ExtSIBTypeInfoSchedulingInfo2* sib19 = make<ExtSIBTypeInfoSchedulingInfo2>();
  sib19->extensionSIB_Type2.t = kTagExt2SysInfoType19;
  set_scheduling(&sib19->schedulingInfo, plan.sib19);
  sib19->valueTagInfo.t = 2; /* cellValueTag */
  sib19->valueTagInfo.u.cellValueTag = kCellValueTag;
  append(&v860->extSIBTypeInfoSchedulingInfo_List, sib19);
  MKS_ENCODE(SysInfoTypeSB1, sb1, sib);
}

void set_nas(NAS_SystemInformationGSM_MAP* nas, std::initializer_list<uint8_t> octets) {
  nas->numocts = 0;
  for (uint8_t o : octets) nas->data[nas->numocts++] = o;
}

void build_sib1(Sib& sib) {
  SysInfoType1* s = make<SysInfoType1>();
  asn1Init_UMTS_SysInfoType1(s);
  set_nas(&s->cn_CommonGSM_MAP_NAS_SysInfo, {0x4E, 0x21}); /* LAC */
  CN_DomainSysInfo* cs = make<CN_DomainSysInfo>();
  asn1Init_UMTS_CN_DomainSysInfo(cs);
  cs->cn_DomainIdentity = UMTS_CN_DomainIdentity_cs_domain;
  cs->cn_Type.t = 1;
  cs->cn_Type.u.gsm_MAP = make<NAS_SystemInformationGSM_MAP>();
  set_nas(cs->cn_Type.u.gsm_MAP, {0x0A, 0x01}); /* T3212 60 min, ATT */
  cs->cn_DRX_CycleLengthCoeff = 7;
  append(&s->cn_DomainSysInfoList, cs);
  CN_DomainSysInfo* ps = make<CN_DomainSysInfo>();
  asn1Init_UMTS_CN_DomainSysInfo(ps);
  ps->cn_DomainIdentity = UMTS_CN_DomainIdentity_ps_domain;
  ps->cn_Type.t = 1;
  ps->cn_Type.u.gsm_MAP = make<NAS_SystemInformationGSM_MAP>();
  set_nas(ps->cn_Type.u.gsm_MAP, {0x05, 0x01}); /* RAC 5, network mode of operation II */
  ps->cn_DRX_CycleLengthCoeff = 7;
  append(&s->cn_DomainSysInfoList, ps);

  s->m |= 1u << 0; /* ue-ConnTimersAndConstants: the defaults but T305 and N302 */
  s->ue_ConnTimersAndConstants.t_305 = 3; /* m30 */
  s->ue_ConnTimersAndConstants.n_302 = 5;
  s->m |= 1u << 1; /* ue-IdleTimersAndConstants */
  s->ue_IdleTimersAndConstants.t_300 = UMTS_T_300_ms2000;
  s->ue_IdleTimersAndConstants.n_300 = 3;
  s->ue_IdleTimersAndConstants.t_312 = 1;
  s->ue_IdleTimersAndConstants.n_312 = UMTS_N_312_s1;
  /* N312 of 4 in both modes, a value that only the v3a0 extension can give, and T323 of 5 s
     for the UE's fast dormancy requests (v860). */
  s->m |= 1u << 2;
  SysInfoType1_v3a0NonCriticalExtensions* v3a0 = &s->v3a0NonCriticalExtensions;
  v3a0->sysInfoType1_v3a0ext.ue_ConnTimersAndConstants_v3a0ext.m = 1u;
  v3a0->sysInfoType1_v3a0ext.ue_ConnTimersAndConstants_v3a0ext.n_312 = UMTS_N_312ext_s4;
  v3a0->sysInfoType1_v3a0ext.ue_IdleTimersAndConstants_v3a0ext.m = 1u;
  v3a0->sysInfoType1_v3a0ext.ue_IdleTimersAndConstants_v3a0ext.n_312 = UMTS_N_312ext_s4;
  v3a0->m = 1u;
  UE_ConnTimersAndConstants_v860ext* v860 = &v3a0->v860NonCriticalExtentions.sysInfoType1_v860ext.ue_ConnTimersAndConstants;
  v860->m = 1u;
  v860->t_323 = UMTS_T_323_s5;
  MKS_ENCODE(SysInfoType1, s, sib);
}

void build_sib2(Sib& sib) {
  SysInfoType2* s = make<SysInfoType2>();
  asn1Init_UMTS_SysInfoType2(s);
  /* The cell lies where four URAs overlap. */
  const uint16_t uras[] = {0x0123, 0x0124, 0x0125, 0x0126};
  for (uint16_t ura : uras) set_bits(&s->ura_IdentityList.elem[s->ura_IdentityList.n++], 16, ura);
  MKS_ENCODE(SysInfoType2, s, sib);
}

void build_sib3(Sib& sib) {
  SysInfoType3* s = make<SysInfoType3>();
  asn1Init_UMTS_SysInfoType3(s);
  s->sib4indicator = 0;
  set_bits(&s->cellIdentity, 28, 0x01A2B3C);

  CellSelectReselectInfoSIB_3_4* c = &s->cellSelectReselectInfo;
  c->cellSelectQualityMeasure.t = 2; /* cpich-RSCP, a NULL: no q-HYST-2-S */
  c->modeSpecificInfo.t = 1;
  CellSelectReselectInfoSIB_3_4_modeSpecificInfo_fdd* fdd = make<CellSelectReselectInfoSIB_3_4_modeSpecificInfo_fdd>();
  asn1Init_UMTS_CellSelectReselectInfoSIB_3_4_modeSpecificInfo_fdd(fdd);
  c->modeSpecificInfo.u.fdd = fdd;
  fdd->m = (1u << 0) | (1u << 1) | (1u << 3);
  fdd->s_Intrasearch = 6;  /* 12 dB */
  fdd->s_Intersearch = 4;  /* 8 dB */
  RAT_FDD_Info* gsm = make<RAT_FDD_Info>();
  asn1Init_UMTS_RAT_FDD_Info(gsm);
  gsm->rat_Identifier = 0; /* gsm */
  gsm->s_SearchRAT = 2;
  gsm->s_Limit_SearchRAT = 0;
  append(&fdd->rat_List, gsm);
  fdd->q_QualMin = -18;    /* dB */
  fdd->q_RxlevMin = -58;   /* -115 dBm */
  c->q_Hyst_l_S = 2;
  c->t_Reselection_S = 1;
  c->maxAllowedUL_TX_Power = 24;

  CellAccessRestriction* a = &s->cellAccessRestriction;
  a->cellBarred.t = 2; /* notBarred */
  a->cellReservedForOperatorUse = UMTS_ReservedIndicator_notReserved;
  a->cellReservationExtension = UMTS_ReservedIndicator_notReserved;
  a->m = 1;
  a->accessClassBarredList.n = 16;
  for (uint32_t i = 0; i < 16; i++) a->accessClassBarredList.elem[i] = UMTS_AccessClassBarred_notBarred;

  /* Extensions up to Rel-7: deltaQrxlevmin and deferred reading of SIB11/12. */
  s->m |= 1;
  SysInfoType3_v4b0NonCriticalExtensions* v4b0 = &s->v4b0NonCriticalExtensions;
  v4b0->m = 1;
  SysInfoType3_v4b0NonCriticalExtensions_v590NonCriticalExtension* v590 = &v4b0->v590NonCriticalExtension;
  v590->sysInfoType3_v590ext.m = 1;
  v590->sysInfoType3_v590ext.cellSelectReselectInfo_v590ext.m = 1;
  v590->sysInfoType3_v590ext.cellSelectReselectInfo_v590ext.deltaQrxlevmin = -2; /* -4 dB */
  v590->m = 1;
  v590->v5c0NoncriticalExtension.m = 1;
  v590->v5c0NoncriticalExtension.v670NonCriticalExtension.m = 1;
  SysInfoType3_v770ext_IEs* v770 =
      &v590->v5c0NoncriticalExtension.v670NonCriticalExtension.v770NonCriticalExtension.sysInfoType3_v770ext;
  v770->m = 1; /* deferredMeasurementControlReadingSupport, with no mode-specific part */
  MKS_ENCODE(SysInfoType3, s, sib);
}

/* A common transport channel's formats: TTI (tti10 1 ... tti80 4), RLC sizes as sizeType1
   of octet mode type 2 (8 * sizeType1 + 48 bits), transport blocks per format, coding. */
TransportFormatSet common_tfs(uint32_t tti_tag, std::initializer_list<uint8_t> size_type1,
                              std::initializer_list<uint32_t> blocks, uint32_t coding_tag, uint32_t rate,
                              uint16_t rate_matching, uint32_t crc) {
  TransportFormatSet tfs;
  asn1Init_UMTS_TransportFormatSet(&tfs);
  tfs.t = 2; /* commonTransChTFS */
  CommonTransChTFS* c = make<CommonTransChTFS>();
  asn1Init_UMTS_CommonTransChTFS(c);
  tfs.u.commonTransChTFS = c;
  c->tti.t = tti_tag;
  CommonDynamicTF_InfoList* list = make<CommonDynamicTF_InfoList>();
  switch (tti_tag) {
    case 1:
      c->tti.u.tti10 = list;
      break;
    case 2:
      c->tti.u.tti20 = list;
      break;
    case 3:
      c->tti.u.tti40 = list;
      break;
    default:
      c->tti.t = 4;
      c->tti.u.tti80 = list;
      break;
  }
  for (uint8_t size : size_type1) {
    CommonDynamicTF_Info* tf = make<CommonDynamicTF_Info>();
    asn1Init_UMTS_CommonDynamicTF_Info(tf);
    tf->rlc_Size.t = 1;
    tf->rlc_Size.u.fdd = make<CommonDynamicTF_Info_rlc_Size_fdd>();
    tf->rlc_Size.u.fdd->octetModeRLC_SizeInfoType2.t = 1;
    tf->rlc_Size.u.fdd->octetModeRLC_SizeInfoType2.u.sizeType1 = size;
    for (uint32_t n : blocks) {
      NumberOfTransportBlocks* nb = make<NumberOfTransportBlocks>();
      if (n <= 1) {
        nb->t = n + 1; /* zero, one */
      } else {
        nb->t = 3;
        nb->u.small = static_cast<uint8_t>(n);
      }
      append(&tf->numberOfTbSizeList, nb);
    }
    tf->logicalChannelList.t = 1; /* allSizes */
    append(list, tf);
  }
  c->semistaticTF_Information.channelCodingType.t = coding_tag;
  if (coding_tag == 2) c->semistaticTF_Information.channelCodingType.u.convolutional = rate;
  c->semistaticTF_Information.rateMatchingAttribute = rate_matching;
  c->semistaticTF_Information.crc_Size = crc;
  return tfs;
}

TFCS tfcs_2bit(std::initializer_list<uint8_t> ctfcs) {
  TFCS t;
  asn1Init_UMTS_TFCS(&t);
  t.t = 1;
  ExplicitTFCS_Configuration* e = make<ExplicitTFCS_Configuration>();
  t.u.normalTFCI_Signalling = e;
  e->t = 1; /* complete */
  TFCS_ReconfAdd* add = make<TFCS_ReconfAdd>();
  e->u.complete = add;
  add->ctfcSize.t = 1;
  add->ctfcSize.u.ctfc2Bit = make<TFCS_ReconfAdd_ctfcSize_ctfc2Bit>();
  for (uint8_t v : ctfcs) {
    TFCS_ReconfAdd_ctfcSize_ctfc2Bit_element* el = make<TFCS_ReconfAdd_ctfcSize_ctfc2Bit_element>();
    el->ctfc2 = v;
    append(add->ctfcSize.u.ctfc2Bit, el);
  }
  return t;
}

/* The SIB5 of the cycle, before encoding. */
SysInfoType5* sib5_first_form() {
  SysInfoType5* s = make<SysInfoType5>();
  asn1Init_UMTS_SysInfoType5(s);
  s->sib6indicator = 0;
  s->pich_PowerOffset = -7;
  s->modeSpecificInfo.t = 1;
  s->modeSpecificInfo.u.fdd = make<SysInfoType5_modeSpecificInfo_fdd>();
  s->modeSpecificInfo.u.fdd->aich_PowerOffset = -6;
  s->m |= 1; /* primaryCCPCH-Info */
  s->primaryCCPCH_Info.t = 1;
  s->primaryCCPCH_Info.u.fdd = make<PrimaryCCPCH_Info_fdd>();
  s->primaryCCPCH_Info.u.fdd->tx_DiversityIndicator = 0;

  /* The PRACH: all 16 signatures, SF64, RACH of 168-bit blocks at 20 ms. */
  PRACH_SystemInformation* prach = make<PRACH_SystemInformation>();
  asn1Init_UMTS_PRACH_SystemInformation(prach);
  prach->prach_RACH_Info.modeSpecificInfo.t = 1;
  PRACH_RACH_Info_modeSpecificInfo_fdd* ri = make<PRACH_RACH_Info_modeSpecificInfo_fdd>();
  prach->prach_RACH_Info.modeSpecificInfo.u.fdd = ri;
  set_bits(&ri->availableSignatures, 16, 0xFFFF);
  ri->availableSF = UMTS_SF_PRACH_sfpr64;
  ri->preambleScramblingCodeWordNumber = 0;
  ri->puncturingLimit = UMTS_PuncturingLimit_pl1;
  set_bits(&ri->availableSubChannelNumbers, 12, 0xFFF);
  prach->transportChannelIdentity = 15;
  prach->m |= (1u << 0) | (1u << 1) | (1u << 4);
  prach->rach_TransportFormatSet = common_tfs(2, {15}, {1}, 2, UMTS_CodingRate_half, 150, UMTS_CRC_Size_crc16);
  prach->rach_TFCS = tfcs_2bit({0, 1});
  prach->ac_To_ASC_MappingTable.n = 7;
  for (uint32_t i = 0; i < 7; i++) prach->ac_To_ASC_MappingTable.elem[i] = i < 5 ? 1 : 0;
  prach->modeSpecificInfo.t = 1;
  PRACH_SystemInformation_modeSpecificInfo_fdd* pf = make<PRACH_SystemInformation_modeSpecificInfo_fdd>();
  prach->modeSpecificInfo.u.fdd = pf;
  pf->m = 0x1F;
  pf->primaryCPICH_TX_Power = 33;
  pf->constantValue = -20;
  pf->prach_PowerOffset.powerRampStep = 2;
  pf->prach_PowerOffset.preambleRetransMax = 8;
  pf->rach_TransmissionParameters.mmax = 4;
  pf->rach_TransmissionParameters.nb01Min = 0;
  pf->rach_TransmissionParameters.nb01Max = 10;
  pf->aich_Info.channelisationCode256 = 2;
  pf->aich_Info.sttd_Indicator = 0;
  pf->aich_Info.aich_TransmissionTiming = UMTS_AICH_TransmissionTiming_e1;
  append(&s->prach_SystemInformationList, prach);

  /* One S-CCPCH, SF64 code 1, carrying the PCH and a FACH, with its PICH. */
  SCCPCH_SystemInformation* sc = make<SCCPCH_SystemInformation>();
  asn1Init_UMTS_SCCPCH_SystemInformation(sc);
  sc->secondaryCCPCH_Info.modeSpecificInfo.t = 1;
  SecondaryCCPCH_Info_modeSpecificInfo_fdd* sf = make<SecondaryCCPCH_Info_modeSpecificInfo_fdd>();
  asn1Init_UMTS_SecondaryCCPCH_Info_modeSpecificInfo_fdd(sf);
  sc->secondaryCCPCH_Info.modeSpecificInfo.u.fdd = sf;
  sf->dummy1 = UMTS_PCPICH_UsageForChannelEst_mayBeUsed;
  sf->sttd_Indicator = 0;
  sf->sf_AndCodeNumber.t = 5; /* sf64 */
  sf->sf_AndCodeNumber.u.sf64 = 1;
  sf->pilotSymbolExistence = 0;
  sf->tfci_Existence = 1;
  sf->positionFixedOrFlexible = UMTS_PositionFixedOrFlexible_flexible;
  sc->m = 0x7;
  sc->tfcs = tfcs_2bit({0, 1, 2, 3});
  FACH_PCH_Information* pch = make<FACH_PCH_Information>();
  pch->transportFormatSet = common_tfs(1, {4}, {0, 1}, 2, UMTS_CodingRate_half, 230, UMTS_CRC_Size_crc16);
  pch->transportChannelIdentity = 12;
  pch->ctch_Indicator = 0;
  append(&sc->fach_PCH_InformationList, pch);
  FACH_PCH_Information* fach = make<FACH_PCH_Information>();
  fach->transportFormatSet = common_tfs(1, {15}, {0, 1}, 2, UMTS_CodingRate_half, 220, UMTS_CRC_Size_crc16);
  fach->transportChannelIdentity = 13;
  fach->ctch_Indicator = 0;
  append(&sc->fach_PCH_InformationList, fach);
  sc->pich_Info.t = 1;
  sc->pich_Info.u.fdd = make<PICH_Info_fdd>();
  sc->pich_Info.u.fdd->channelisationCode256 = 3;
  sc->pich_Info.u.fdd->pi_CountPerFrame = UMTS_PI_CountPerFrame_e72;
  sc->pich_Info.u.fdd->sttd_Indicator = 0;
  append(&s->sCCPCH_SystemInformationList, sc);
  return s;
}

void build_sib5(Sib& sib) { MKS_ENCODE(SysInfoType5, sib5_first_form(), sib); }

/* ---- The second SIB5 form ------------------------------------------------------------------ */

/* The same cell's SIB5 as it stands after a reconfiguration that uses what the first form
   leaves out: dedicated and dynamic transport formats, TFCS with 12-bit CTFCs and gain
   factors, removal and replacement, the split TFCI signalling with a TFCI range, all eight
   access service classes and six persistence factors, an S-CCPCH with eight FACHs, CBS DRX
   and the extension chain to v690. It follows the cycle, after SIB18. */
TransportFormatSet dedicated_dynamic_tfs(std::initializer_list<uint8_t> size_type1, unsigned log_ch) {
  TransportFormatSet tfs;
  asn1Init_UMTS_TransportFormatSet(&tfs);
  tfs.t = 1; /* dedicatedTransChTFS */
  DedicatedTransChTFS* d = make<DedicatedTransChTFS>();
  tfs.u.dedicatedTransChTFS = d;
  d->tti.t = 5; /* dynamic */
  d->tti.u.dynamic = make<DedicatedDynamicTF_InfoList_DynamicTTI>();
  uint32_t k = 0;
  for (uint8_t size : size_type1) {
    DedicatedDynamicTF_Info_DynamicTTI* tf = make<DedicatedDynamicTF_Info_DynamicTTI>();
    tf->rlc_Size.t = 1; /* bitMode */
    tf->rlc_Size.u.bitMode = make<BitModeRLC_SizeInfo>();
    tf->rlc_Size.u.bitMode->t = 1;
    tf->rlc_Size.u.bitMode->u.sizeType1 = size;
    NumberOfTbSizeAndTTIList_element* n = make<NumberOfTbSizeAndTTIList_element>();
    n->numberOfTransportBlocks.t = k == 0 ? 2 : 4; /* one, large */
    if (k != 0) n->numberOfTransportBlocks.u.large = 20;
    n->transmissionTimeInterval = k == 0 ? UMTS_TransmissionTimeInterval_tti10 : UMTS_TransmissionTimeInterval_tti20;
    append(&tf->numberOfTbSizeAndTTIList, n);
    tf->logicalChannelList.t = 3; /* explicitList */
    tf->logicalChannelList.u.explicitList = make<LogicalChannelList_explicitList>();
    LogicalChannelByRB* rb = make<LogicalChannelByRB>();
    rb->rb_Identity = static_cast<uint8_t>(1 + k);
    if ((log_ch >> k) & 1u) {
      rb->m = 1;
      rb->logChOfRb = 1;
    }
    append(tf->logicalChannelList.u.explicitList, rb);
    append(d->tti.u.dynamic, tf);
    k++;
  }
  d->semistaticTF_Information.channelCodingType.t = 3; /* turbo */
  d->semistaticTF_Information.rateMatchingAttribute = 180;
  d->semistaticTF_Information.crc_Size = UMTS_CRC_Size_crc12;
  return tfs;
}

/* 12-bit CTFCs, the first with signalled gain factors, the second with computed ones. */
TFCS_ReconfAdd* tfcs_add_12bit(std::initializer_list<uint16_t> ctfcs, size_t count = 1024) {
  TFCS_ReconfAdd* add = make<TFCS_ReconfAdd>();
  add->ctfcSize.t = 5;
  add->ctfcSize.u.ctfc12Bit = make<TFCS_ReconfAdd_ctfcSize_ctfc12Bit>();
  uint32_t k = 0;
  for (uint16_t v : ctfcs) {
    if (k == count) break;
    TFCS_ReconfAdd_ctfcSize_ctfc12Bit_element* el = make<TFCS_ReconfAdd_ctfcSize_ctfc12Bit_element>();
    el->ctfc12 = v;
    if (k < 2) {
      el->m = 1;
      PowerOffsetInformation* po = &el->powerOffsetInformation;
      po->m = 1;
      po->powerOffsetPp_m = -2;
      if (k == 0) {
        po->gainFactorInformation.t = 1;
        SignalledGainFactors* g = make<SignalledGainFactors>();
        g->modeSpecificInfo.t = 1;
        g->modeSpecificInfo.u.fdd = make<SignalledGainFactors_modeSpecificInfo_fdd>();
        g->modeSpecificInfo.u.fdd->gainFactorBetaC = 11;
        g->gainFactorBetaD = 15;
        g->m = 1;
        g->referenceTFC_ID = 0;
        po->gainFactorInformation.u.signalledGainFactors = g;
      } else {
        po->gainFactorInformation.t = 2;
        po->gainFactorInformation.u.computedGainFactors = 0;
      }
    }
    append(add->ctfcSize.u.ctfc12Bit, el);
    k++;
  }
  return add;
}

/* `variant` picks among shapes of one cell that give the encoding different lengths: whether
   the P-CCPCH information is sent (bit 0), whether each of the two radio bearers of the
   RACH's formats names its logical channel (bits 1, 2), how many CTFCs the RACH's TFCS
   holds (3 to 6, bits 3, 4), which access classes carry their own setting (bits 5 to 12),
   then how many persistence factors (1 to 6) and how many FACHs (1 to 8) there are. */
void build_sib5_second(Sib& sib, unsigned variant) {
  const bool pccpch = (variant & 1u) == 0;
  const unsigned log_ch = (variant >> 1) & 3u, ctfc_count = 6 - ((variant >> 3) & 3u), classes = (variant >> 5) & 0xFFu;
  const unsigned persistence = 6 - (variant >> 13) % 6, fachs = 8 - (variant >> 13) / 6 % 8;
  SysInfoType5* s = make<SysInfoType5>();
  asn1Init_UMTS_SysInfoType5(s);
  s->sib6indicator = 1;
  s->pich_PowerOffset = -5;
  s->modeSpecificInfo.t = 1;
  s->modeSpecificInfo.u.fdd = make<SysInfoType5_modeSpecificInfo_fdd>();
  s->modeSpecificInfo.u.fdd->aich_PowerOffset = -6;
  if (pccpch) {
    s->m |= 1;
    s->primaryCCPCH_Info.t = 1;
    s->primaryCCPCH_Info.u.fdd = make<PrimaryCCPCH_Info_fdd>();
    s->primaryCCPCH_Info.u.fdd->tx_DiversityIndicator = 1;
  }

  /* PRACH 1: dedicated dynamic formats, a complete 12-bit TFCS, all eight access classes. */
  for (int n = 0; n < 2; n++) {
    PRACH_SystemInformation* prach = make<PRACH_SystemInformation>();
    prach->prach_RACH_Info.modeSpecificInfo.t = 1;
    PRACH_RACH_Info_modeSpecificInfo_fdd* ri = make<PRACH_RACH_Info_modeSpecificInfo_fdd>();
    prach->prach_RACH_Info.modeSpecificInfo.u.fdd = ri;
    set_bits(&ri->availableSignatures, 16, n == 0 ? 0xFF00 : 0x00FF);
    ri->availableSF = UMTS_SF_PRACH_sfpr32;
    ri->preambleScramblingCodeWordNumber = static_cast<uint8_t>(n);
    ri->puncturingLimit = UMTS_PuncturingLimit_pl1;
    set_bits(&ri->availableSubChannelNumbers, 12, 0xAAA);
    prach->transportChannelIdentity = static_cast<uint8_t>(15 + n);
    prach->modeSpecificInfo.t = 1;
    PRACH_SystemInformation_modeSpecificInfo_fdd* pf = make<PRACH_SystemInformation_modeSpecificInfo_fdd>();
    prach->modeSpecificInfo.u.fdd = pf;
    pf->m = 1u << 4;
    pf->aich_Info.channelisationCode256 = static_cast<uint8_t>(2 + n);
    pf->aich_Info.aich_TransmissionTiming = UMTS_AICH_TransmissionTiming_e0;
    if (n == 0) {
      prach->m = 0x1F;
      prach->rach_TransportFormatSet = dedicated_dynamic_tfs({42, 90}, log_ch);
      asn1Init_UMTS_TFCS(&prach->rach_TFCS);
      prach->rach_TFCS.t = 1;
      ExplicitTFCS_Configuration* e = make<ExplicitTFCS_Configuration>();
      e->t = 1;
      e->u.complete = tfcs_add_12bit({0, 1, 291, 4095, 2, 3}, ctfc_count);
      prach->rach_TFCS.u.normalTFCI_Signalling = e;
      prach->prach_Partitioning.t = 1;
      prach->prach_Partitioning.u.fdd = make<PRACH_Partitioning_fdd>();
      for (uint8_t a = 0; a < 8; a++) {
        ASCSetting_FDD* asc = make<ASCSetting_FDD>();
        if (((classes >> a) & 1u) == 0) { /* a class without its own setting takes the one before */
          asc->m = 1;
          asc->accessServiceClass_FDD.availableSignatureStartIndex = a;
          asc->accessServiceClass_FDD.availableSignatureEndIndex = 15;
          set_bits(&asc->accessServiceClass_FDD.assignedSubChannelNumber, 4, 0xF);
        }
        append(prach->prach_Partitioning.u.fdd, asc);
      }
      prach->persistenceScalingFactorList.n = persistence;
      for (uint32_t i = 0; i < persistence; i++) prach->persistenceScalingFactorList.elem[i] = i;
      prach->ac_To_ASC_MappingTable.n = 7;
      for (uint32_t i = 0; i < 7; i++) prach->ac_To_ASC_MappingTable.elem[i] = i % 7;
    } else {
      /* PRACH 2: the split TFCI signalling, with a TFCI range. */
      prach->m = 0x2;
      prach->rach_TFCS.t = 2;
      SplitTFCI_Signalling* split = make<SplitTFCI_Signalling>();
      split->m = 0xF;
      split->splitType = UMTS_SplitType_logicalSplit;
      split->tfci_Field2_Length = 5;
      split->tfci_Field1_Information.t = 3; /* removal */
      split->tfci_Field1_Information.u.removal = make<TFCS_RemovalList>();
      for (uint16_t tfci : {3, 7}) {
        TFCS_Removal* r = make<TFCS_Removal>();
        r->tfci = tfci;
        append(split->tfci_Field1_Information.u.removal, r);
      }
      split->tfci_Field2_Information.t = 1;
      split->tfci_Field2_Information.u.tfci_Range = make<TFCI_RangeList>();
      for (uint16_t i = 0; i < 3; i++) {
        TFCI_Range* range = make<TFCI_Range>();
        range->maxTFCIField2Value = static_cast<uint16_t>(10 * (i + 1));
        range->tfcs_InfoForDSCH.t = i == 2 ? 7 : 5;
        if (i == 2) range->tfcs_InfoForDSCH.u.ctfc24bit = 66051;
        else range->tfcs_InfoForDSCH.u.ctfc12bit = static_cast<uint16_t>(291 + i);
        append(split->tfci_Field2_Information.u.tfci_Range, range);
      }
      prach->rach_TFCS.u.dummy = split;
    }
    append(&s->prach_SystemInformationList, prach);
  }

  /* S-CCPCH 1: a replacement TFCS and eight FACHs; S-CCPCH 2: the PCH with its PICH. */
  for (int n = 0; n < 2; n++) {
    SCCPCH_SystemInformation* sc = make<SCCPCH_SystemInformation>();
    sc->secondaryCCPCH_Info.modeSpecificInfo.t = 1;
    SecondaryCCPCH_Info_modeSpecificInfo_fdd* sf = make<SecondaryCCPCH_Info_modeSpecificInfo_fdd>();
    sc->secondaryCCPCH_Info.modeSpecificInfo.u.fdd = sf;
    sf->m = n == 0 ? 3 : 0;
    sf->dummy1 = UMTS_PCPICH_UsageForChannelEst_mayBeUsed;
    sf->dummy2.m = 1;
    sf->dummy2.secondaryDL_ScramblingCode = 2;
    sf->dummy2.channelisationCode = 7;
    sf->secondaryScramblingCode = 3;
    sf->sf_AndCodeNumber.t = n == 0 ? 3 : 7; /* sf16, sf256 */
    sf->sf_AndCodeNumber.u.sf16 = static_cast<uint8_t>(n == 0 ? 2 : 200);
    sf->tfci_Existence = 1;
    sf->positionFixedOrFlexible = UMTS_PositionFixedOrFlexible_fixed;
    sf->timingOffset = static_cast<uint8_t>(n == 0 ? 149 : 10);
    if (n == 0) {
      sc->m = 0x3;
      sc->tfcs.t = 1;
      ExplicitTFCS_Configuration* e = make<ExplicitTFCS_Configuration>();
      e->t = 4; /* replacement */
      e->u.replacement = make<ExplicitTFCS_Configuration_replacement>();
      TFCS_Removal* r = make<TFCS_Removal>();
      r->tfci = 2;
      append(&e->u.replacement->tfcsRemoval, r);
      e->u.replacement->tfcsAdd = *tfcs_add_12bit({5, 6, 7});
      sc->tfcs.u.normalTFCI_Signalling = e;
      for (uint8_t f = 0; f < fachs; f++) {
        FACH_PCH_Information* fach = make<FACH_PCH_Information>();
        fach->transportFormatSet = common_tfs(1 + f % 4, {static_cast<uint8_t>(10 + f)}, {0, 1}, 2, UMTS_CodingRate_half,
                                              static_cast<uint16_t>(200 + f), UMTS_CRC_Size_crc16);
        fach->transportChannelIdentity = static_cast<uint8_t>(20 + f);
        fach->ctch_Indicator = f + 1u == fachs ? 1 : 0;
        append(&sc->fach_PCH_InformationList, fach);
      }
    } else {
      sc->m = 0x6;
      FACH_PCH_Information* pch = make<FACH_PCH_Information>();
      pch->transportFormatSet = common_tfs(1, {4}, {0, 1}, 2, UMTS_CodingRate_half, 230, UMTS_CRC_Size_crc16);
      pch->transportChannelIdentity = 12;
      append(&sc->fach_PCH_InformationList, pch);
      sc->pich_Info.t = 1;
      sc->pich_Info.u.fdd = make<PICH_Info_fdd>();
      sc->pich_Info.u.fdd->channelisationCode256 = 3;
      sc->pich_Info.u.fdd->pi_CountPerFrame = UMTS_PI_CountPerFrame_e36;
      sc->pich_Info.u.fdd->sttd_Indicator = 1;
    }
    append(&s->sCCPCH_SystemInformationList, sc);
  }

  s->m |= 2; /* cbs-DRX-Level1Information */
  s->cbs_DRX_Level1Information.ctch_AllocationPeriod = 64;
  s->cbs_DRX_Level1Information.cbs_FrameOffset = 8;
  s->m |= 4; /* v4b0 .. v690 */
  SysInfoType5_v4b0NonCriticalExtensions* v4b0 = &s->v4b0NonCriticalExtensions;
  v4b0->m = 3;
  v4b0->sysInfoType5_v4b0ext.m = 1u << 4;
  v4b0->sysInfoType5_v4b0ext.frequencyBandIndicator = 0; /* bandI */
  auto* v590 = &v4b0->v590NonCriticalExtensions;
  v590->m = 2;
  auto* v650 = &v590->v650NonCriticalExtensions;
  v650->m = 3;
  v650->sysInfoType5_v650ext.frequencyBandIndicator2 = 0;
  auto* v680 = &v650->v680NonCriticalExtensions;
  v680->m = 3;
  v680->sysInfoType5_v680ext.m = 1;
  v680->sysInfoType5_v680ext.hsdpa_CellIndicator = 0;
  auto* v690 = &v680->v690NonCriticalExtensions;
  v690->sysInfoType5_v690ext.m = 9;
  v690->sysInfoType5_v690ext.edch_CellIndicator = 0;
  v690->sysInfoType5_v690ext.cBS_DRX_Level1Information_extension = 2;
  MKS_ENCODE(SysInfoType5, s, sib);
}

void build_sib7(Sib& sib) {
  SysInfoType7* s = make<SysInfoType7>();
  asn1Init_UMTS_SysInfoType7(s);
  s->modeSpecificInfo.t = 1;
  s->modeSpecificInfo.u.fdd = make<SysInfoType7_modeSpecificInfo_fdd>();
  s->modeSpecificInfo.u.fdd->ul_Interference = -105; /* dBm */
  s->prach_Information_SIB5_List.n = 1;
  s->prach_Information_SIB5_List.elem[0] = 1;
  s->m |= 1u << 1;
  s->expirationTimeFactor = 2;
  MKS_ENCODE(SysInfoType7, s, sib);
}

/* The intra-frequency neighbours: primary scrambling codes and Ec/N0 offsets. */
struct Neighbour {
  uint16_t psc;
  int8_t q_offset2;
};
const Neighbour kIntraNeighbours[] = {{124, 0}, {131, 0}, {140, -2}, {152, 0}, {163, 0}, {171, 2},
                                      {188, 0}, {197, 0}, {203, -2}, {215, 0}, {226, 0}, {240, 0}};
struct GsmNeighbour {
  uint8_t ncc, bcc;
  uint16_t arfcn;
};
const GsmNeighbour kGsmNeighbours[] = {{3, 1, 62}, {3, 4, 70}, {5, 2, 81}};

IntraFreqMeasurementSysInfo_ECN0 intra_freq(size_t neighbours, bool for_sib12) {
  IntraFreqMeasurementSysInfo_ECN0 m;
  asn1Init_UMTS_IntraFreqMeasurementSysInfo_ECN0(&m);
  m.m |= 1u << 0;
  IntraFreqCellInfoSI_List_ECN0* list = &m.intraFreqCellInfoSI_List;
  for (size_t i = 0; i < neighbours; i++) {
    NewIntraFreqCellSI_ECN0* cell = make<NewIntraFreqCellSI_ECN0>();
    asn1Init_UMTS_NewIntraFreqCellSI_ECN0(cell);
    cell->m = 1;
    cell->intraFreqCellID = static_cast<uint8_t>(i + 1);
    cell->cellInfo.modeSpecificInfo.t = 1;
    CellInfoSI_ECN0_modeSpecificInfo_fdd* fdd = make<CellInfoSI_ECN0_modeSpecificInfo_fdd>();
    cell->cellInfo.modeSpecificInfo.u.fdd = fdd;
    fdd->m = 1;
    fdd->primaryCPICH_Info.primaryScramblingCode = kIntraNeighbours[i].psc;
    fdd->readSFN_Indicator = 0;
    fdd->tx_DiversityIndicator = 0;
    if (kIntraNeighbours[i].q_offset2 != 0) {
      cell->cellInfo.m |= 1u << 1;
      CellSelectReselectInfoSIB_11_12_ECN0* r = &cell->cellInfo.cellSelectionReselectionInfo;
      asn1Init_UMTS_CellSelectReselectInfoSIB_11_12_ECN0(r);
      r->q_Offset2S_N = kIntraNeighbours[i].q_offset2;
      r->modeSpecificInfo.t = 1;
      r->modeSpecificInfo.u.fdd = make<CellSelectReselectInfoSIB_11_12_ECN0_modeSpecificInfo_fdd>();
    }
    append(&list->newIntraFreqCellList, cell);
  }
  if (for_sib12) {
    m.m |= (1u << 1) | (1u << 2) | (1u << 3);
    m.intraFreqMeasQuantity.filterCoefficient = UMTS_FilterCoefficient_fc3;
    m.intraFreqMeasQuantity.modeSpecificInfo.t = 1;
    m.intraFreqMeasQuantity.modeSpecificInfo.u.fdd = make<IntraFreqMeasQuantity_modeSpecificInfo_fdd>();
    m.intraFreqMeasQuantity.modeSpecificInfo.u.fdd->intraFreqMeasQuantity_FDD = 0; /* cpich-Ec-N0 */
    m.intraFreqReportingQuantityForRACH.sfn_SFN_OTD_Type = UMTS_SFN_SFN_OTD_Type_noReport;
    m.intraFreqReportingQuantityForRACH.modeSpecificInfo.t = 1;
    m.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.fdd = make<IntraFreqReportingQuantityForRACH_modeSpecificInfo_fdd>();
    m.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.fdd->intraFreqRepQuantityRACH_FDD = 0; /* cpich-EcN0 */
    m.maxReportedCellsOnRACH = UMTS_MaxReportedCellsOnRACH_currentCell;
  }
  return m;
}

MeasurementControlSysInfo measurement_control(size_t neighbours, bool gsm, bool for_sib12) {
  MeasurementControlSysInfo mc;
  asn1Init_UMTS_MeasurementControlSysInfo(&mc);
  mc.use_of_HCS.t = 1; /* hcs-not-used */
  MeasurementControlSysInfo_use_of_HCS_hcs_not_used* nu = make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used>();
  asn1Init_UMTS_MeasurementControlSysInfo_use_of_HCS_hcs_not_used(nu);
  mc.use_of_HCS.u.hcs_not_used = nu;
  nu->cellSelectQualityMeasure.t = 2; /* cpich-Ec-N0 */
  MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* ec =
      make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0>();
  nu->cellSelectQualityMeasure.u.cpich_Ec_N0 = ec;
  ec->m = 1;
  ec->intraFreqMeasurementSysInfo = intra_freq(neighbours, for_sib12);
  if (gsm) {
    nu->m = 1;
    nu->interRATMeasurementSysInfo.m = 1;
    InterRATCellInfoList_B* l = &nu->interRATMeasurementSysInfo.interRATCellInfoList;
    l->removedInterRATCellList.t = 3; /* removeNoInterRATCells */
    for (size_t i = 0; i < sizeof kGsmNeighbours / sizeof kGsmNeighbours[0]; i++) {
      NewInterRATCell_B* cell = make<NewInterRATCell_B>();
      asn1Init_UMTS_NewInterRATCell_B(cell);
      cell->m = 1;
      cell->interRATCellID = static_cast<uint8_t>(i);
      cell->technologySpecificInfo.t = 1;
      NewInterRATCell_B_technologySpecificInfo_gsm* g = make<NewInterRATCell_B_technologySpecificInfo_gsm>();
      asn1Init_UMTS_NewInterRATCell_B_technologySpecificInfo_gsm(g);
      cell->technologySpecificInfo.u.gsm = g;
      g->bsic.ncc = kGsmNeighbours[i].ncc;
      g->bsic.bcc = kGsmNeighbours[i].bcc;
      g->frequency_band = UMTS_Frequency_Band_dcs1800BandUsed;
      g->bcch_ARFCN = kGsmNeighbours[i].arfcn;
      append(&l->newInterRATCellList, cell);
    }
  }
  return mc;
}

/* The operator's second UMTS carrier (downlink UARFCN 10663, uplink 9713) and three of its
   cells: the first names the frequency, the others are on the same one. */
const uint16_t kSecondCarrierDL = 10663;
const uint16_t kSecondCarrierUL = 9713;
const uint16_t kInterNeighbours[] = {301, 315, 328};
const size_t kInterNeighbourCount = sizeof kInterNeighbours / sizeof kInterNeighbours[0];

InterFreqMeasurementSysInfo_ECN0 inter_freq() {
  InterFreqMeasurementSysInfo_ECN0 m;
  std::memset(&m, 0, sizeof m);
  m.m = 1u << 0; /* interFreqCellInfoSI-List */
  m.interFreqCellInfoSI_List.m = 1u << 1; /* newInterFreqCellList */
  for (size_t i = 0; i < kInterNeighbourCount; i++) {
    NewInterFreqCellSI_ECN0* cell = make<NewInterFreqCellSI_ECN0>();
    cell->m = 1u << 0; /* interFreqCellID */
    cell->interFreqCellID = static_cast<uint8_t>(i);
    if (i == 0) {
      cell->m |= 1u << 1; /* frequencyInfo */
      cell->frequencyInfo.modeSpecificInfo.t = 1;
      FrequencyInfoFDD* fdd = make<FrequencyInfoFDD>();
      fdd->m = 1u << 0;
      fdd->uarfcn_UL = kSecondCarrierUL;
      fdd->uarfcn_DL = kSecondCarrierDL;
      cell->frequencyInfo.modeSpecificInfo.u.fdd = fdd;
    }
    cell->cellInfo.modeSpecificInfo.t = 1;
    CellInfoSI_ECN0_modeSpecificInfo_fdd* fdd = make<CellInfoSI_ECN0_modeSpecificInfo_fdd>();
    fdd->m = 1u << 0;
    fdd->primaryCPICH_Info.primaryScramblingCode = kInterNeighbours[i];
    cell->cellInfo.modeSpecificInfo.u.fdd = fdd;
    append(&m.interFreqCellInfoSI_List.newInterFreqCellList, cell);
  }
  return m;
}

/* The non-critical extensions of the cycle's SIB11, each level down to v860: v590 lowers
   Qrxlevmin of the first intra-frequency neighbour by 2 dB (the list has an entry for each
   cell), v7b0 says that the second carrier's cells are not on a secondary frequency, and the
   other levels carry nothing of their own. */
void add_sib11_extensions(SysInfoType11* s) {
  s->m |= 1u << 1;
  SysInfoType11_v4b0NonCriticalExtensions* v4b0 = &s->v4b0NonCriticalExtensions;
  v4b0->m = 1u << 1; /* no v4b0 IEs (they are for 1.28 Mcps TDD), the v590 level */
  auto* v590 = &v4b0->v590NonCriticalExtension;
  v590->sysInfoType11_v590ext.m = 1u << 0; /* newIntraFrequencyCellInfoList-v590ext */
  for (size_t i = 0; i < sizeof kIntraNeighbours / sizeof kIntraNeighbours[0]; i++) {
    CellSelectReselectInfo_v590ext* e = make<CellSelectReselectInfo_v590ext>();
    if (i == 0) {
      e->m = 1u << 0;
      e->deltaQrxlevmin = -1; /* 2 dB */
    }
    append(&v590->sysInfoType11_v590ext.newIntraFrequencyCellInfoList_v590ext, e);
  }
  v590->m = 1;
  auto* v690 = &v590->v690NonCriticalExtensions;
  v690->m = 1;
  auto* v6b0 = &v690->v6b0NonCriticalExtensions;
  v6b0->m = 1;
  auto* v770 = &v6b0->v770NonCriticalExtensions;
  v770->m = 1;
  auto* v7b0 = &v770->v7b0NonCriticalExtensions;
  v7b0->sysInfoType11_v7b0ext.m = 1u << 0; /* newInterFreqCellList */
  for (size_t i = 0; i < kInterNeighbourCount; i++)
    append(&v7b0->sysInfoType11_v7b0ext.newInterFreqCellList, make<NewInterFreqCell_v7b0ext>());
  v7b0->m = 1; /* v860, with nothing of its own and no later level */
}

void build_sib11(Sib& sib) {
  SysInfoType11* s = make<SysInfoType11>();
  asn1Init_UMTS_SysInfoType11(s);
  s->sib12indicator = 1;
  s->measurementControlSysInfo = measurement_control(sizeof kIntraNeighbours / sizeof kIntraNeighbours[0], true, false);
  MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* ec =
      s->measurementControlSysInfo.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.u.cpich_Ec_N0;
  ec->m |= 1u << 1; /* interFreqMeasurementSysInfo */
  ec->interFreqMeasurementSysInfo = inter_freq();
  add_sib11_extensions(s);
  MKS_ENCODE(SysInfoType11, s, sib);
}

void build_sib12(Sib& sib) {
  SysInfoType12* s = make<SysInfoType12>();
  asn1Init_UMTS_SysInfoType12(s);
  s->measurementControlSysInfo = measurement_control(4, false, true);
  MKS_ENCODE(SysInfoType12, s, sib);
}

/* The same neighbours as the cell would list them with hierarchical cell structures in use
   and Ec/N0 as quality measure: each intra-frequency cell with its HCS priority, quality
   threshold and penalty time, the GSM cells in the full inter-RAT list. Written to the
   whole-SIB file only, as a second form of SIB11 beside the one of the cycle. */
void build_sib11_hcs(Sib& sib) {
  SysInfoType11* s = make<SysInfoType11>();
  asn1Init_UMTS_SysInfoType11(s);
  s->sib12indicator = 1;
  MeasurementControlSysInfo* mc = &s->measurementControlSysInfo;
  mc->use_of_HCS.t = 2; /* hcs-used */
  MeasurementControlSysInfo_use_of_HCS_hcs_used* hu = make<MeasurementControlSysInfo_use_of_HCS_hcs_used>();
  mc->use_of_HCS.u.hcs_used = hu;
  hu->cellSelectQualityMeasure.t = 2; /* cpich-Ec-N0 */
  MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0* ec =
      make<MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0>();
  hu->cellSelectQualityMeasure.u.cpich_Ec_N0 = ec;
  ec->m = 1;
  IntraFreqMeasurementSysInfo_HCS_ECN0* intra = &ec->intraFreqMeasurementSysInfo;
  intra->intraFreqMeasurementID = 1;
  intra->m = 1;
  for (size_t i = 0; i < sizeof kIntraNeighbours / sizeof kIntraNeighbours[0]; i++) {
    NewIntraFreqCellSI_HCS_ECN0* cell = make<NewIntraFreqCellSI_HCS_ECN0>();
    cell->m = 1;
    cell->intraFreqCellID = static_cast<uint8_t>(i + 1);
    cell->cellInfo.modeSpecificInfo.t = 1;
    CellInfoSI_HCS_ECN0_modeSpecificInfo_fdd* fdd = make<CellInfoSI_HCS_ECN0_modeSpecificInfo_fdd>();
    cell->cellInfo.modeSpecificInfo.u.fdd = fdd;
    fdd->m = 1;
    fdd->primaryCPICH_Info.primaryScramblingCode = kIntraNeighbours[i].psc;
    /* Micro cells (every third) have the higher priority and a penalty of 20 s with offsets. */
    cell->cellInfo.m |= 1u << 1;
    CellSelectReselectInfoSIB_11_12_HCS_ECN0* r = &cell->cellInfo.cellSelectionReselectionInfo;
    r->q_Offset2S_N = kIntraNeighbours[i].q_offset2;
    r->m = 1u << 1; /* hcs-NeighbouringCellInformation-ECN0 */
    const bool micro = i % 3 == 0;
    r->hcs_NeighbouringCellInformation_ECN0.hcs_PRIO = micro ? 5 : 2;
    r->hcs_NeighbouringCellInformation_ECN0.q_HCS = micro ? 30 : 20;
    PenaltyTime_ECN0* pt = &r->hcs_NeighbouringCellInformation_ECN0.hcs_CellReselectInformation.penaltyTime;
    pt->t = micro ? 3 : 1; /* pt20 or notUsed */
    if (micro) {
      pt->u.pt20 = make<TemporaryOffsetList>();
      pt->u.pt20->temporaryOffset1 = UMTS_TemporaryOffset1_to6;
      pt->u.pt20->temporaryOffset2 = UMTS_TemporaryOffset2_to4;
    }
    r->modeSpecificInfo.t = 1;
    r->modeSpecificInfo.u.fdd = make<CellSelectReselectInfoSIB_11_12_HCS_ECN0_modeSpecificInfo_fdd>();
    append(&intra->intraFreqCellInfoSI_List.newIntraFreqCellList, cell);
  }
  hu->m = 1;
  hu->interRATMeasurementSysInfo.m = 1;
  InterRATCellInfoList* l = &hu->interRATMeasurementSysInfo.interRATCellInfoList;
  l->removedInterRATCellList.t = 3; /* removeNoInterRATCells */
  for (size_t i = 0; i < sizeof kGsmNeighbours / sizeof kGsmNeighbours[0]; i++) {
    NewInterRATCell* cell = make<NewInterRATCell>();
    cell->m = 1;
    cell->interRATCellID = static_cast<uint8_t>(i);
    cell->technologySpecificInfo.t = 1;
    NewInterRATCell_technologySpecificInfo_gsm* g = make<NewInterRATCell_technologySpecificInfo_gsm>();
    cell->technologySpecificInfo.u.gsm = g;
    g->bsic.ncc = kGsmNeighbours[i].ncc;
    g->bsic.bcc = kGsmNeighbours[i].bcc;
    g->frequency_band = UMTS_Frequency_Band_dcs1800BandUsed;
    g->bcch_ARFCN = kGsmNeighbours[i].arfcn;
    append(&l->newInterRATCellList, cell);
  }
  MKS_ENCODE(SysInfoType11, s, sib);
}

/* SIB11bis: further neighbours beyond those of SIB11, four intra-frequency cells and one GSM
   cell, Ec/N0 without HCS as in SIB11. Written to the whole-SIB file only: the cycle does
   not schedule it. */
const uint16_t kMoreIntraNeighbours[] = {251, 262, 277, 290};
void build_sib11bis(Sib& sib) {
  SysInfoType11bis* s = make<SysInfoType11bis>();
  asn1Init_UMTS_SysInfoType11bis(s);
  s->m = 1; /* measurementControlSysInfo */
  MeasurementControlSysInfoExtension_use_of_HCS* use = &s->measurementControlSysInfo.use_of_HCS;
  use->t = 1; /* hcs-not-used */
  MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used* nu =
      make<MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used>();
  use->u.hcs_not_used = nu;
  nu->cellSelectQualityMeasure.t = 2; /* cpich-Ec-N0 */
  MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0* ec =
      make<MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0>();
  nu->cellSelectQualityMeasure.u.cpich_Ec_N0 = ec;
  ec->m = 1;
  for (size_t i = 0; i < sizeof kMoreIntraNeighbours / sizeof kMoreIntraNeighbours[0]; i++) {
    NewIntraFreqCellSI_ECN0* cell = make<NewIntraFreqCellSI_ECN0>();
    asn1Init_UMTS_NewIntraFreqCellSI_ECN0(cell);
    cell->m = 1;
    cell->intraFreqCellID = static_cast<uint8_t>(13 + i);
    cell->cellInfo.modeSpecificInfo.t = 1;
    CellInfoSI_ECN0_modeSpecificInfo_fdd* fdd = make<CellInfoSI_ECN0_modeSpecificInfo_fdd>();
    cell->cellInfo.modeSpecificInfo.u.fdd = fdd;
    fdd->m = 1;
    fdd->primaryCPICH_Info.primaryScramblingCode = kMoreIntraNeighbours[i];
    append(&ec->newIntraFreqCellList, cell);
  }
  nu->m = 1; /* newInterRATCellList */
  NewInterRATCell* gsm = make<NewInterRATCell>();
  gsm->m = 1;
  gsm->interRATCellID = 3;
  gsm->technologySpecificInfo.t = 1;
  NewInterRATCell_technologySpecificInfo_gsm* g = make<NewInterRATCell_technologySpecificInfo_gsm>();
  gsm->technologySpecificInfo.u.gsm = g;
  g->bsic.ncc = 5;
  g->bsic.bcc = 6;
  g->frequency_band = UMTS_Frequency_Band_dcs1800BandUsed;
  g->bcch_ARFCN = 94;
  append(&nu->newInterRATCellList, gsm);
  MKS_ENCODE(SysInfoType11bis, s, sib);
}

/* ---- 1.28 Mcps TDD forms of SIB11 and SIB12 ---------------------------------------------- */

/* A 1.28 Mcps TDD cell sends its neighbours in the LCR tree of the v4b0 extension; the main
   tree, which it must send too, only names P-CCPCH RSCP as the quality measure. Its
   intra-frequency neighbours by cell parameters ID, with the timeslots to measure on; the
   first reselects with its own Qrxlevmin. Its inter-frequency neighbours on a second carrier
   (UARFCN 10080), the first naming it. */
struct LcrNeighbour {
  uint8_t cell_parameters_id;
  std::initializer_list<uint8_t> timeslots;
};
const LcrNeighbour kLcrIntraNeighbours[] = {{12, {1, 2}}, {25, {1}}, {37, {}}, {54, {2, 4, 5}}};
const uint8_t kLcrInterNeighbours[] = {66, 71};
const uint16_t kLcrSecondCarrier = 10080;

void set_lcr_cell(CellInfoSI_RSCP_LCR_r4* c, uint8_t cell_parameters_id, std::initializer_list<uint8_t> timeslots) {
  c->primaryCCPCH_Info.m = 1u << 0;
  c->primaryCCPCH_Info.cellParametersID = cell_parameters_id;
  if (timeslots.size() != 0) {
    c->m |= 1u << 2; /* timeslotInfoList */
    for (uint8_t ts : timeslots) {
      TimeslotInfo_LCR_r4* t = make<TimeslotInfo_LCR_r4>();
      t->timeslotNumber = ts;
      append(&c->timeslotInfoList, t);
    }
  }
}

MeasurementControlSysInfo_LCR_r4_ext lcr_measurement_control(size_t intra, size_t inter) {
  MeasurementControlSysInfo_LCR_r4_ext lcr;
  std::memset(&lcr, 0, sizeof lcr);
  lcr.use_of_HCS.t = 1; /* hcs-not-used */
  auto* nu = make<MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used>();
  lcr.use_of_HCS.u.hcs_not_used = nu;
  nu->cellSelectQualityMeasure.t = 1; /* cpich-RSCP, which a TDD cell reads as P-CCPCH RSCP */
  auto* rscp = make<MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP>();
  nu->cellSelectQualityMeasure.u.cpich_RSCP = rscp;
  rscp->m = 1u << 0;
  rscp->intraFreqMeasurementSysInfo.intraFreqMeasurementID = 1;
  rscp->intraFreqMeasurementSysInfo.m = 1u << 0;
  for (size_t i = 0; i < intra; i++) {
    NewIntraFreqCellSI_RSCP_LCR_r4* cell = make<NewIntraFreqCellSI_RSCP_LCR_r4>();
    cell->m = 1u << 0;
    cell->intraFreqCellID = static_cast<uint8_t>(i + 1);
    set_lcr_cell(&cell->cellInfo, kLcrIntraNeighbours[i].cell_parameters_id, kLcrIntraNeighbours[i].timeslots);
    if (i == 0) {
      cell->cellInfo.m |= 1u << 3; /* cellSelectionReselectionInfo */
      CellSelectReselectInfoSIB_11_12_RSCP* r = &cell->cellInfo.cellSelectionReselectionInfo;
      r->q_OffsetS_N = 2;
      r->modeSpecificInfo.t = 2;
      r->modeSpecificInfo.u.tdd = make<CellSelectReselectInfoSIB_11_12_RSCP_modeSpecificInfo_tdd>();
      r->modeSpecificInfo.u.tdd->m = 1u << 0;
      r->modeSpecificInfo.u.tdd->q_RxlevMin = -50; /* -99 dBm */
    }
    append(&rscp->intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList, cell);
  }
  if (inter != 0) {
    rscp->m |= 1u << 1;
    rscp->interFreqMeasurementSysInfo.m = 1u << 0;
    InterFreqCellInfoSI_List_RSCP_LCR* l = &rscp->interFreqMeasurementSysInfo.interFreqCellInfoSI_List;
    l->m = 1u << 1; /* newInterFreqCellList */
    for (size_t i = 0; i < inter; i++) {
      NewInterFreqCellSI_RSCP_LCR_r4* cell = make<NewInterFreqCellSI_RSCP_LCR_r4>();
      cell->m = 1u << 0;
      cell->interFreqCellID = static_cast<uint8_t>(i);
      if (i == 0) {
        cell->m |= 1u << 1;
        cell->frequencyInfo.modeSpecificInfo.t = 2;
        cell->frequencyInfo.modeSpecificInfo.u.tdd = make<FrequencyInfoTDD>();
        cell->frequencyInfo.modeSpecificInfo.u.tdd->uarfcn_Nt = kLcrSecondCarrier;
      }
      set_lcr_cell(&cell->cellInfo, kLcrInterNeighbours[i], {});
      append(&l->newInterFreqCellList, cell);
    }
  }
  return lcr;
}

/* The main tree of a 1.28 Mcps cell: no HCS, P-CCPCH RSCP, nothing else. */
void set_lcr_main_tree(MeasurementControlSysInfo* mc) {
  asn1Init_UMTS_MeasurementControlSysInfo(mc);
  mc->use_of_HCS.t = 1;
  auto* nu = make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used>();
  mc->use_of_HCS.u.hcs_not_used = nu;
  nu->cellSelectQualityMeasure.t = 1;
  nu->cellSelectQualityMeasure.u.cpich_RSCP =
      make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP>();
}

void build_sib11_lcr(Sib& sib) {
  SysInfoType11* s = make<SysInfoType11>();
  asn1Init_UMTS_SysInfoType11(s);
  s->sib12indicator = 1;
  set_lcr_main_tree(&s->measurementControlSysInfo);
  s->m |= 1u << 1;
  s->v4b0NonCriticalExtensions.m = 1u << 0;
  SysInfoType11_v4b0ext_IEs* v4b0 = &s->v4b0NonCriticalExtensions.sysInfoType11_v4b0ext;
  v4b0->m = 1u << 0; /* the FACH measurement occasion of 1.28 Mcps TDD */
  v4b0->fach_MeasurementOccasionInfo_LCR_Ext.inter_freq_TDD128_meas_ind = 1;
  v4b0->measurementControlSysInfo_LCR =
      lcr_measurement_control(sizeof kLcrIntraNeighbours / sizeof kLcrIntraNeighbours[0],
                              sizeof kLcrInterNeighbours / sizeof kLcrInterNeighbours[0]);
  MKS_ENCODE(SysInfoType11, s, sib);
}

void build_sib12_lcr(Sib& sib) {
  SysInfoType12* s = make<SysInfoType12>();
  asn1Init_UMTS_SysInfoType12(s);
  set_lcr_main_tree(&s->measurementControlSysInfo);
  s->m |= 1u << 1;
  s->v4b0NonCriticalExtensions.m = 1u << 0;
  SysInfoType12_v4b0ext_IEs* v4b0 = &s->v4b0NonCriticalExtensions.sysInfoType12_v4b0ext;
  v4b0->measurementControlSysInfo_LCR = lcr_measurement_control(2, 0);
  MKS_ENCODE(SysInfoType12, s, sib);
}

/* A neighbour list of SIB18: `cells` entries, the first with MCC 262 and `mnc`, the others
   without an identity, which means the same PLMN as the entry before. */
template <class Element>
void add_plmns_of_cells(rtxDList* list, size_t cells, const char* mnc) {
  for (size_t i = 0; i < cells; i++) {
    Element* e = make<Element>();
    if (i == 0) {
      e->m = 1;
      set_plmn(&e->plmn_Identity, "262", mnc);
    }
    append(list, e);
  }
}

/* The multiple PLMNs of `cells` intra-frequency neighbours: the one at `shared` is shared
   with the roaming partner and broadcasts both PLMNs (the partner's MCC left out, being the
   same); the others carry no list. */
void add_shared_neighbour(PLMNIdentitiesOfNeighbourCells_v860ext* n, size_t cells, size_t shared) {
  n->m |= 1u; /* multipleplmnsOfIntraFreqCellsList */
  for (size_t i = 0; i < cells; i++) {
    MultiplePLMNsOfIntraFreqCellsList_element* e = make<MultiplePLMNsOfIntraFreqCellsList_element>();
    if (i == shared) {
      e->m = 1;
      PLMN_IdentityWithOptionalMCC_r6* own = make<PLMN_IdentityWithOptionalMCC_r6>();
      own->m = 1;
      set_digits(&own->mcc.n, own->mcc.elem, "262");
      set_digits(&own->mnc.n, own->mnc.elem, "01");
      append(&e->multiplePLMN_list, own);
      PLMN_IdentityWithOptionalMCC_r6* partner = make<PLMN_IdentityWithOptionalMCC_r6>();
      set_digits(&partner->mnc.n, partner->mnc.elem, "02");
      append(&e->multiplePLMN_list, partner);
    }
    append(&n->multipleplmnsOfIntraFreqCellsList, e);
  }
}

void build_sib18(Sib& sib) {
  SysInfoType18* s = make<SysInfoType18>();
  asn1Init_UMTS_SysInfoType18(s);
  /* Idle mode: the intra-frequency neighbours share the cell's PLMN; the GSM ones belong
     to a national roaming partner, MCC 262 MNC 02. */
  s->m |= 1;
  PLMNIdentitiesOfNeighbourCells* idle = &s->idleModePLMNIdentities;
  idle->m = (1u << 0) | (1u << 2);
  add_plmns_of_cells<PLMNsOfIntraFreqCellsList_element>(&idle->plmnsOfIntraFreqCellsList, 4, "01");
  add_plmns_of_cells<PLMNsOfInterRATCellsList_element>(&idle->plmnsOfInterRATCellsList, 3, "02");
  /* Connected mode: the four intra-frequency neighbours of SIB12, in the cell's PLMN. */
  s->m |= 2;
  s->connectedModePLMNIdentities.m = 1u << 0;
  add_plmns_of_cells<PLMNsOfIntraFreqCellsList_element>(&s->connectedModePLMNIdentities.plmnsOfIntraFreqCellsList, 4,
                                                        "01");
  /* Rel-8: the third intra-frequency neighbour is shared, in both modes. The v6b0 level (no
     SIB11bis here, so no lists of its own) only carries the v860 level. */
  s->m |= 4;
  s->v6b0NonCriticalExtensions.m = 1;
  SysInfoType18_v860ext* v860 = &s->v6b0NonCriticalExtensions.v860NonCriticalExtensions.sysInfoType18_v860ext;
  v860->m = (1u << 0) | (1u << 1);
  add_shared_neighbour(&v860->idleModePLMNIdentities, 4, 2);
  add_shared_neighbour(&v860->connectedModePLMNIdentities, 4, 2);
  MKS_ENCODE(SysInfoType18, s, sib);
}

/* ---- The HSPA form of SIB5 ------------------------------------------------------------------ */

/* Common E-DCH of the cell: two MAC-d flows, the preamble of enhanced uplink, 10 ms TTI, and
   `resources` common E-DCH resources. Fills the FDD members of either decoded type. */
template <class Head, class Fdd>
void set_common_edch(Head* head, Fdd* f, unsigned resources) {
  head->m |= 1;
  head->ul_InterferenceForCommonEDCH = -95;
  for (uint8_t i = 0; i < 2; i++) {
    Common_E_DCH_MAC_d_Flow* flow = make<Common_E_DCH_MAC_d_Flow>();
    flow->mac_d_FlowIdentity = i;
    flow->mac_d_FlowPowerOffset = static_cast<uint8_t>(2 * i);
    flow->mac_d_FlowMaxRetrans = 4;
    flow->m = 1;
    set_bits(&flow->mac_d_FlowMultiplexingList, 8, 0x80u >> i);
    append(&head->common_E_DCH_MAC_d_FlowList, flow);
  }
  PRACH_PreambleForEnhancedUplink* p = &f->prach_PreambleForEnhancedUplink;
  set_bits(&p->availableSignatures, 16, 0x00FF);
  p->e_ai_Indication = 1;
  p->preambleScramblingCodeWordNumber = 1;
  set_bits(&p->availableSubChannelNumbers, 12, 0xFFF);
  p->m = (1u << 3) | (1u << 4) | (1u << 5) | (1u << 6) | (1u << 7);
  p->primaryCPICH_TX_Power = 33;
  p->constantValue = -20;
  p->prach_PowerOffset.powerRampStep = 2;
  p->prach_PowerOffset.preambleRetransMax = 16;
  p->rach_TransmissionParameters.mmax = 8;
  p->rach_TransmissionParameters.nb01Min = 0;
  p->rach_TransmissionParameters.nb01Max = 10;
  p->aich_Info.channelisationCode256 = 4;
  p->aich_Info.aich_TransmissionTiming = UMTS_AICH_TransmissionTiming_e1;
  p->powerOffsetPp_e = 2;
  f->initialServingGrantValue = 16;
  f->e_dch_TTI = UMTS_E_DCH_TTI_tti10;
  f->e_agch_Information.e_AGCH_ChannelisationCode = 250;
  f->ul_DPCHpowerControlInfoForCommonEDCH.powerControlAlgorithm.t = 1;
  f->ul_DPCHpowerControlInfoForCommonEDCH.powerControlAlgorithm.u.algorithm1 = 0;
  f->ul_DPCHpowerControlInfoForCommonEDCH.m = 7;
  f->ul_DPCHpowerControlInfoForCommonEDCH.deltaACK = 5;
  f->ul_DPCHpowerControlInfoForCommonEDCH.deltaNACK = 5;
  f->ul_DPCHpowerControlInfoForCommonEDCH.ack_NACK_repetition_factor = 1;
  f->e_dpcch_Info.e_DPCCH_DPCCH_PowerOffset = 4;
  f->e_dpcch_Info.happyBit_DelayCondition = 3;
  E_DPDCH_Info_r8* d = &f->e_dpdch_Info;
  d->e_TFCI_TableIndex = 0;
  for (uint8_t i = 0; i < 3; i++) {
    E_DPDCH_Reference_E_TFCI_r7* r = make<E_DPDCH_Reference_E_TFCI_r7>();
    r->reference_E_TFCI = static_cast<uint8_t>(10 + 30 * i);
    r->reference_E_TFCI_PO_r7 = static_cast<uint8_t>(4 + 6 * i);
    append(&d->reference_E_TFCIs, r);
  }
  d->maxChannelisationCodes = 5;
  d->pl_NonMax = 21;
  d->schedulingInfoConfiguration.powerOffsetForSchedInfo = 2;
  f->dl_FDPCH_TPCcommandErrorRate = 1;
  f->additional_E_DCH_TransmitBackoff = 2;
  f->max_CCCH_ResourceAllocation = 2;
  f->max_PeriodForCollisionResolution = 16;
  f->e_dch_TransmitContinuationOffset = 2;
  f->ack_nack_support_on_HS_DPCCH = 1;
  for (unsigned i = 0; i < resources; i++) {
    Common_E_DCH_ResourceInfoList* r = make<Common_E_DCH_ResourceInfoList>();
    r->s_offset = static_cast<uint8_t>(i);
    r->f_dpch_ChannelisationCodeNumber = static_cast<uint8_t>(10 + i);
    r->e_hich_Info.channelisationCode = 20;
    r->e_hich_Info.signatureSequence = static_cast<uint8_t>(2 * i);
    r->ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCodeType = 1;
    r->ul_DPCH_CodeInfoForCommonEDCH.ul_DPCCHscramblingCode = 0x100000u + i;
    append(&f->common_E_DCH_ResourceInfoList, r);
  }
}

/* The cycle's SIB5 as an HSPA cell sends it: the HS-DSCH and E-DCH indicators (v680, v690),
   HS-DSCH in CELL_FACH with its paging (v770 fdd), DRX in CELL_FACH (v860), and common
   E-DCH (v890, and v8d0 for Release 8 UEs). */
void build_sib5_hspa(Sib& sib) {
  SysInfoType5* s = sib5_first_form();
  s->m |= 4;
  auto* v4b0 = &s->v4b0NonCriticalExtensions;
  v4b0->m = 2;
  auto* v590 = &v4b0->v590NonCriticalExtensions;
  v590->m = 2;
  auto* v650 = &v590->v650NonCriticalExtensions;
  v650->m = 2;
  auto* v680 = &v650->v680NonCriticalExtensions;
  v680->m = 3;
  v680->sysInfoType5_v680ext.m = 1;
  v680->sysInfoType5_v680ext.hsdpa_CellIndicator = 0;
  auto* v690 = &v680->v690NonCriticalExtensions;
  v690->m = 1;
  v690->sysInfoType5_v690ext.m = 1;
  v690->sysInfoType5_v690ext.edch_CellIndicator = 0;
  auto* v770 = &v690->v770NonCriticalExtensions;
  v770->m = 1;
  v770->sysInfoType5_v770ext.m = 1;
  v770->sysInfoType5_v770ext.modeSpecificInfo.t = 1;
  auto* fdd = make<SysInfoType5_v770ext_IEs_modeSpecificInfo_fdd>();
  v770->sysInfoType5_v770ext.modeSpecificInfo.u.fdd = fdd;
  HS_DSCH_CommonSystemInformation* c = &fdd->hs_dsch_CommonSystemInformation;
  c->ccch_MappingInfo.logicalChannelIdentity = 1;
  c->ccch_MappingInfo.mac_ehs_QueueId = 0;
  c->m = 1;
  c->srb1_MappingInfo.logicalChannelIdentity = 2;
  c->srb1_MappingInfo.mac_ehs_QueueId = 1;
  for (uint8_t i = 0; i < 2; i++) {
    Common_MAC_ehs_ReorderingQueue* q = make<Common_MAC_ehs_ReorderingQueue>();
    q->mac_ehs_QueueId = i;
    q->t1_ReleaseTimer = UMTS_T1_ReleaseTimer_rt100;
    q->mac_ehsWindowSize = UMTS_MAC_hs_WindowSize_mws16;
    append(&c->common_MAC_ehs_ReorderingQueueList, q);
  }
  c->hs_scch_SystemInfo.hS_SCCHChannelisationCodeInfo.n = 2;
  c->hs_scch_SystemInfo.hS_SCCHChannelisationCodeInfo.elem[0] = 126;
  c->hs_scch_SystemInfo.hS_SCCHChannelisationCodeInfo.elem[1] = 127;
  c->harq_SystemInfo.numberOfProcesses = 4;
  c->harq_SystemInfo.memoryPartitioning.t = 1; /* implicit */
  c->common_H_RNTI_information.n = 2;
  set_bits(&c->common_H_RNTI_information.elem[0], 16, 0xFF01);
  set_bits(&c->common_H_RNTI_information.elem[1], 16, 0xFF02);
  set_bits(&c->bcchSpecific_H_RNTI, 16, 0xFFFE);
  fdd->m = 1;
  HS_DSCH_PagingSystemInformation* pg = &fdd->hs_dsch_PagingSystemInformation;
  PICH_ForHSDPASupportedPaging* pich = make<PICH_ForHSDPASupportedPaging>();
  pich->hsdpa_AssociatedPichInfo.t = 1;
  pich->hsdpa_AssociatedPichInfo.u.fdd = make<PICH_Info_fdd>();
  pich->hsdpa_AssociatedPichInfo.u.fdd->channelisationCode256 = 5;
  pich->hsdpa_AssociatedPichInfo.u.fdd->pi_CountPerFrame = UMTS_PI_CountPerFrame_e72;
  pich->hs_pdschChannelisationCode = 15;
  append(&pg->pich_ForHSDPASupportedPagingList, pich);
  pg->numberOfPcchTransmissions = 2;
  pg->transportBlockSizeList.n = 2;
  pg->transportBlockSizeList.elem[0] = 5;
  pg->transportBlockSizeList.elem[1] = 9;
  auto* v860 = &v770->v860NonCriticalExtensions;
  v860->m = 1;
  v860->sysInfoType5_v860ext.modeSpecificInfo.t = 1;
  auto* drx = make<SysInfoType5_v860ext_IEs_modeSpecificInfo_fdd>();
  v860->sysInfoType5_v860ext.modeSpecificInfo.u.fdd = drx;
  drx->m = 1;
  drx->hs_dsch_DrxCellfach_info.t_321 = 2;
  drx->hs_dsch_DrxCellfach_info.hs_dsch_DrxCycleFach = 1;
  drx->hs_dsch_DrxCellfach_info.hs_dsch_DrxBurstFach = 0;
  drx->hs_dsch_DrxCellfach_info.drxInterruption_hs_dsch = 1;
  auto* v890 = &v860->v890NonCriticalExtensions;
  v890->m = 1;
  v890->sysInfoType5_v890ext.m = 2;
  CommonEDCHSystemInfo* ce = &v890->sysInfoType5_v890ext.commonEDCHSystemInfo;
  ce->modeSpecificInfo.t = 1;
  ce->modeSpecificInfo.u.fdd = make<CommonEDCHSystemInfo_modeSpecificInfo_fdd>();
  set_common_edch(ce, ce->modeSpecificInfo.u.fdd, 2);
  auto* v8b0 = &v890->v8b0NonCriticalExtensions;
  v8b0->m = 1;
  auto* v8d0 = &v8b0->v8d0NonCriticalExtensions;
  v8d0->sysInfoType5_v8d0ext.m = 1;
  set_common_edch(&v8d0->sysInfoType5_v8d0ext.commonEDCHSystemInfoFDD, &v8d0->sysInfoType5_v8d0ext.commonEDCHSystemInfoFDD, 4);
  MKS_ENCODE(SysInfoType5, s, sib);
}

/* ---- SIB16 ------------------------------------------------------------------------------- */

MKS_DEFINE_CHECK(SysInfoType16)

/* AM RLC both ways, as a signalling bearer uses it. */
RLC_InfoChoice am_rlc(uint32_t window) {
  RLC_Info* rlc = make<RLC_Info>();
  rlc->m = 3;
  rlc->ul_RLC_Mode.t = 1;
  UL_AM_RLC_Mode* ul = make<UL_AM_RLC_Mode>();
  rlc->ul_RLC_Mode.u.ul_AM_RLC_Mode = ul;
  ul->transmissionRLC_Discard.t = 4; /* noDiscard */
  ul->transmissionRLC_Discard.u.noDiscard = 3;
  ul->transmissionWindowSize = window;
  ul->timerRST = 5;
  ul->max_RST = 2;
  ul->m = 1;
  ul->pollingInfo.m = 0x03;
  ul->pollingInfo.timerPollProhibit = 4;
  ul->pollingInfo.timerPoll = 6;
  ul->pollingInfo.lastTransmissionPDU_Poll = 1;
  ul->pollingInfo.lastRetransmissionPDU_Poll = 1;
  rlc->dl_RLC_Mode.t = 1;
  DL_AM_RLC_Mode* dl = make<DL_AM_RLC_Mode>();
  rlc->dl_RLC_Mode.u.dl_AM_RLC_Mode = dl;
  dl->inSequenceDelivery = 1;
  dl->receivingWindowSize = window;
  dl->dl_RLC_StatusInfo.missingPDU_Indicator = 1;
  RLC_InfoChoice c = {};
  c.t = 1;
  c.u.rlc_Info = rlc;
  return c;
}

/* Logical channel `lch` on DCH `dch` both ways, with one explicit RLC size. */
void add_mapping(rtxDList* list, uint8_t dch, uint8_t lch) {
  RB_MappingOption* o = make<RB_MappingOption>();
  o->m = 3;
  o->ul_LogicalChannelMappings.t = 1;
  UL_LogicalChannelMapping* ul = make<UL_LogicalChannelMapping>();
  o->ul_LogicalChannelMappings.u.oneLogicalChannel = ul;
  ul->ul_TransportChannelType.t = 1;
  ul->ul_TransportChannelType.u.dch = dch;
  ul->m = 1;
  ul->logicalChannelIdentity = lch;
  ul->rlc_SizeList.t = 3;
  ul->rlc_SizeList.u.explicitList = make<RLC_SizeExplicitList>();
  RLC_SizeInfo* size = make<RLC_SizeInfo>();
  size->rlc_SizeIndex = 1;
  append(ul->rlc_SizeList.u.explicitList, size);
  ul->mac_LogicalChannelPriority = lch;
  DL_LogicalChannelMapping* dl = make<DL_LogicalChannelMapping>();
  dl->dl_TransportChannelType.t = 1;
  dl->dl_TransportChannelType.u.dch = dch;
  dl->m = 1;
  dl->logicalChannelIdentity = lch;
  append(&o->dl_LogicalChannelMappingList, dl);
  append(list, o);
}

/* A predefined configuration: SRB2 and SRB3 on AM RLC and one AM radio bearer with PDCP
   (RFC 2507 header compression), all on DCH 1, over a 10 ms DCH of 30-octet blocks. */
void build_sib16(Sib& sib) {
  SysInfoType16* s = make<SysInfoType16>();
  asn1Init_UMTS_SysInfoType16(s);
  PredefinedRB_Configuration* rb = &s->preDefinedRadioConfiguration.predefinedRB_Configuration;
  rb->re_EstablishmentTimer = UMTS_Re_EstablishmentTimer_useT315;
  for (uint8_t id = 2; id <= 3; id++) {
    SRB_InformationSetup* srb = make<SRB_InformationSetup>();
    srb->m = 1;
    srb->rb_Identity = id;
    srb->rlc_InfoChoice = am_rlc(4);
    add_mapping(&srb->rb_MappingInfo, 1, id);
    append(&rb->srb_InformationList, srb);
  }
  RB_InformationSetup* bearer = make<RB_InformationSetup>();
  bearer->rb_Identity = 5;
  bearer->m = 1;
  bearer->pdcp_Info.m = 3;
  bearer->pdcp_Info.losslessSRNS_RelocSupport.t = 1;
  bearer->pdcp_Info.losslessSRNS_RelocSupport.u.supported = 1;
  HeaderCompressionInfo* hc = make<HeaderCompressionInfo>();
  hc->algorithmSpecificInfo.t = 1;
  RFC2507_Info* rfc = make<RFC2507_Info>();
  hc->algorithmSpecificInfo.u.rfc2507_Info = rfc;
  rfc->f_MAX_PERIOD = 256;
  rfc->f_MAX_TIME = 5;
  rfc->max_HEADER = 168;
  rfc->tcp_SPACE = 15;
  rfc->non_TCP_SPACE = 15;
  append(&bearer->pdcp_Info.headerCompressionInfoList, hc);
  bearer->rlc_InfoChoice = am_rlc(8);
  add_mapping(&bearer->rb_MappingInfo, 1, 6);
  append(&rb->rb_InformationList, bearer);

  PreDefTransChConfiguration* t = &s->preDefinedRadioConfiguration.preDefTransChConfiguration;
  DedicatedTransChTFS* tfs = make<DedicatedTransChTFS>();
  DedicatedDynamicTF_InfoList* dynamic = make<DedicatedDynamicTF_InfoList>();
  DedicatedDynamicTF_Info* info = make<DedicatedDynamicTF_Info>();
  info->rlc_Size.t = 2;
  info->rlc_Size.u.octetModeType1 = make<OctetModeRLC_SizeInfoType1>();
  info->rlc_Size.u.octetModeType1->t = 1;
  info->rlc_Size.u.octetModeType1->u.sizeType1 = 30;
  NumberOfTransportBlocks* one = make<NumberOfTransportBlocks>();
  one->t = 2;
  append(&info->numberOfTbSizeList, one);
  info->logicalChannelList.t = 1;
  append(dynamic, info);
  tfs->tti.t = 1;
  tfs->tti.u.tti10 = dynamic;
  tfs->semistaticTF_Information.channelCodingType.t = 3; /* turbo */
  tfs->semistaticTF_Information.rateMatchingAttribute = 200;
  tfs->semistaticTF_Information.crc_Size = UMTS_CRC_Size_crc16;
  UL_AddReconfTransChInformation* ul = make<UL_AddReconfTransChInformation>();
  ul->transportChannelIdentity = 1;
  ul->transportFormatSet.t = 1;
  ul->transportFormatSet.u.dedicatedTransChTFS = tfs;
  append(&t->ul_AddReconfTrChInfoList, ul);
  DL_AddReconfTransChInformation* dl = make<DL_AddReconfTransChInformation>();
  dl->dl_transportChannelIdentity = 1;
  dl->tfs_SignallingMode.t = 2;
  dl->tfs_SignallingMode.u.sameAsULTrCH = make<UL_TransportChannelIdentity>();
  dl->tfs_SignallingMode.u.sameAsULTrCH->ul_TransportChannelIdentity = 1;
  append(&t->dl_TrChInfoList, dl);
  t->dl_CommonTransChInfo.modeSpecificInfo.t = 1;
  t->dl_CommonTransChInfo.modeSpecificInfo.u.fdd = make<DL_CommonTransChInfo_modeSpecificInfo_fdd>();
  PreDefPhyChConfiguration* p = &s->preDefinedRadioConfiguration.preDefPhyChConfiguration;
  p->ul_DPCH_InfoPredef.ul_DPCH_PowerControlInfo.t = 1;
  p->ul_DPCH_InfoPredef.ul_DPCH_PowerControlInfo.u.fdd = make<UL_DPCH_PowerControlInfoPredef_fdd>();
  p->ul_DPCH_InfoPredef.ul_DPCH_PowerControlInfo.u.fdd->powerControlAlgorithm.t = 1;
  p->ul_DPCH_InfoPredef.modeSpecificInfo.t = 1;
  p->ul_DPCH_InfoPredef.modeSpecificInfo.u.fdd = make<UL_DPCH_InfoPredef_modeSpecificInfo_fdd>();
  MKS_ENCODE(SysInfoType16, s, sib);
}

/* Blocks of the whole-SIB file for HSPA and SIB16 (not in the cycle). */
void add_hspa_samples(std::vector<Sib>& whole_only) {
  whole_only.push_back({"sib5", "SIB5 of an HSPA cell: HS-DSCH and common E-DCH (not in the cycle)", 5, {}, 0});
  build_sib5_hspa(whole_only.back());
  whole_only.push_back({"sib16", "SIB16, a predefined configuration (not in the cycle)", 14, {}, 0});
  build_sib16(whole_only.back());
}

/* ---- The cycle ---------------------------------------------------------------------------- */

std::string hex(const uint8_t* data, size_t n) {
  static const char digits[] = "0123456789abcdef";
  std::string s;
  s.reserve(n * 2);
  for (size_t i = 0; i < n; i++) {
    s += digits[data[i] >> 4];
    s += digits[data[i] & 0x0F];
  }
  return s;
}

/* Cuts the cycle; on failure names the SIB and stops. */
std::vector<umts_bch_block> cut(const std::vector<Sib>& sibs) {
  std::vector<umts_bch_sib> in(sibs.size());
  for (size_t i = 0; i < sibs.size(); i++) {
    in[i].sib_type = sibs[i].sib_type;
    in[i].data = sibs[i].bytes.data();
    in[i].numbits = sibs[i].numbits;
    in[i].own_block = i == kMib || i == kSib5Second ? 1 : 0;
  }
  std::vector<umts_bch_block> blocks(256);
  uint32_t count = 0, failed = 0;
  const uint16_t first_sfn_prime = 0; /* the cycle starts at SFN 0 */
  umts_bch_status st = umts_bch_segment(in.data(), static_cast<uint32_t>(in.size()), first_sfn_prime, blocks.data(),
                                        static_cast<uint32_t>(blocks.size()), &count, &failed);
  if (st != umts_bch_ok) {
    std::fprintf(stderr, "mksamples: cannot cut %s into transport blocks: %s\n",
                 failed < sibs.size() ? sibs[failed].label : "the cycle", umts_bch_status_text(st));
    std::exit(1);
  }
  blocks.resize(count);
  return blocks;
}

/* One SIB cut on its own, as a cell cuts a block that has frames of its own. */
std::vector<umts_bch_block> cut_alone(const Sib& sib) {
  const umts_bch_sib alone = {sib.sib_type, sib.bytes.data(), sib.numbits, 1};
  std::vector<umts_bch_block> blocks(16);
  uint32_t count = 0;
  if (umts_bch_segment(&alone, 1, 0, blocks.data(), 16, &count, nullptr) != umts_bch_ok) die("cannot cut a SIB alone");
  blocks.resize(count);
  return blocks;
}

/* The first 11 bits of a BCCH-BCH-Message are SFN' (SFN / 2). */
void set_sfn_prime(uint8_t* block, uint32_t sfn_prime) {
  const uint32_t first = (sfn_prime << 5) | (((block[0] << 8) | block[1]) & 0x1Fu);
  block[0] = static_cast<uint8_t>(first >> 8);
  block[1] = static_cast<uint8_t>(first);
}

/* The cycle broadcast as its MIB and SB1 schedule it, over one SFN cycle of 4096 frames:
   each block in the frames of its segments and nowhere else, cut on its own (so its segment
   counts, and with them the MIB and SB1, are those of that cut). The frames that nothing
   occupies (and those of SIB19) carry no block. The benchmarks' input. */
std::string scheduled_cycle(std::vector<Sib> sibs) {
  std::vector<uint32_t> counts(kCycleSize, 1);
  Plan plan;
  std::vector<std::vector<umts_bch_block>> cuts(kCycleSize);
  for (int pass = 0;; pass++) {
    if (pass == 4) die("segment counts of the scheduled cycle do not settle");
    plan = place_cycle(counts, sibs);
    build_sb1(sibs[kSb1], plan);
    build_mib(sibs[kMib], plan);
    std::vector<uint32_t> found(kCycleSize, 1);
    for (uint32_t i = 0; i < kCycleSize; i++) {
      if (i == kSib5Second || i == kSib11Hcs) continue; /* the forms that the schedule does not name */
      cuts[i] = cut_alone(sibs[i]);
      found[i] = static_cast<uint32_t>(cuts[i].size());
    }
    if (found == counts) break;
    counts = found;
  }
  std::vector<int32_t> at(kSfnCycle, -1); /* cycle index * 16 + segment of each frame */
  for (const Wish& w : kWishes) {
    const Schedule& sch = plan.at[w.sib_index];
    uint32_t frame = sch.pos;
    for (uint32_t seg = 0; seg < sch.segments(); seg++) {
      for (uint32_t f = frame; f < kSfnCycle; f += sch.rep) at[f] = static_cast<int32_t>(w.sib_index * 16 + seg);
      if (seg < sch.offsets.size()) frame += sch.offsets[seg];
    }
  }
  std::string text =
      "# The sample cell's broadcast as its MIB and SB1 schedule it, over one SFN cycle (4096\n"
      "# frames): each SIB in the frames of its segments, cut on its own, the frames that nothing\n"
      "# occupies (and those of SIB19, which the cycle does not carry) without a block. The input\n"
      "# of the benchmarks of the whole road (bench/bench_road.cpp) and of timing sibdump; not a\n"
      "# recording. Written by mksamples (make samples) with the SIBs of samples/fdd_cell.bch\n"
      "# (the first forms of SIB5 and SIB11). One transport block per line, in hexadecimal,\n"
      "# SFN' in order.\n"
      "#\n"
      "# Block: repetition, position and frames of its segments (frames of the period), blocks sent\n";
  uint32_t sent = 0;
  for (const Wish& w : kWishes) {
    const Schedule& sch = plan.at[w.sib_index];
    std::string frames = std::to_string(sch.pos);
    uint32_t frame = sch.pos;
    for (uint32_t o : sch.offsets) frames += "," + std::to_string(frame += o);
    const uint32_t count = sch.segments() * (kSfnCycle / sch.rep);
    sent += count;
    text += "#   " + std::string(sibs[w.sib_index].label) + ": " + std::to_string(sch.rep) + ", " +
            std::to_string(sch.pos) + ", " + frames + "; " + std::to_string(count) + "\n";
  }
  text += "#   " + std::to_string(sent) + " blocks\n";
  for (uint32_t frame = 0; frame < kSfnCycle; frame += 2) {
    if (at[frame] < 0) continue;
    umts_bch_block b = cuts[static_cast<uint32_t>(at[frame]) / 16][static_cast<uint32_t>(at[frame]) % 16];
    set_sfn_prime(b.data, frame / 2);
    text += hex(b.data, UMTS_BCH_BLOCK_OCTETS) + "\n";
  }
  return text;
}

std::string describe(const umts_bch_block& b, const std::vector<Sib>& sibs) {
  std::string s = "SFN' " + std::to_string(b.sfn_prime) + " " + umts_bch_payload_name(b.payload) + ":";
  for (uint32_t i = 0; i < b.piece_count; i++) {
    const umts_bch_piece& p = b.pieces[i];
    s += i == 0 ? " " : "; ";
    s += sibs[p.sib].label;
    if (p.seg_count == 1) {
      s += " complete (" + std::to_string(p.numbits) + " bits)";
    } else {
      s += " segment " + std::to_string(p.segment + 1) + "/" + std::to_string(p.seg_count) + " (" +
           std::to_string(p.numbits) + " bits)";
    }
  }
  return s;
}

bool write_file(const std::string& path, const std::string& text) {
  FILE* f = std::fopen(path.c_str(), "w");
  if (f == nullptr) {
    std::fprintf(stderr, "mksamples: cannot write %s: %s\n", path.c_str(), std::strerror(errno));
    return false;
  }
  const bool ok = std::fwrite(text.data(), 1, text.size(), f) == text.size();
  return std::fclose(f) == 0 && ok;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argc > 3 || argv[1][0] == '-') {
    std::fprintf(stderr, "Usage: mksamples DIR [CYCLE]\nWrites DIR/fdd_cell.bch, DIR/fdd_cell_sibs.txt and DIR/tdd128_cell_sibs.txt,\n"
                 "and with CYCLE the cell's broadcast as scheduled over one SFN cycle to that file.\n");
    return 2;
  }
  const std::string dir = argv[1];
  if (rtInitContext(&g_ctx) != 0) die("cannot initialise a runtime context");

  std::vector<Sib> sibs(kCycleSize);
  sibs[kMib] = {"mib", "MIB", 0, {}, 0};
  sibs[kSb1] = {"sb1", "SB1", 27, {}, 0};
  sibs[kSib1] = {"sib1", "SIB1", 1, {}, 0};
  sibs[kSib2] = {"sib2", "SIB2", 2, {}, 0};
  sibs[kSib3] = {"sib3", "SIB3", 3, {}, 0};
  sibs[kSib5] = {"sib5", "SIB5", 5, {}, 0};
  sibs[kSib7] = {"sib7", "SIB7", 7, {}, 0};
  sibs[kSib11Hcs] = {"sib11", "SIB11, the form with HCS (Ec/N0)", 11, {}, 0};
  sibs[kSib11] = {"sib11", "SIB11", 11, {}, 0};
  sibs[kSib12] = {"sib12", "SIB12", 12, {}, 0};
  sibs[kSib18] = {"sib18", "SIB18", 26, {}, 0};
  sibs[kSib5Second] = {"sib5", "SIB5 (second form)", 5, {}, 0};
  sibs[kSib11bis] = {"sib11bis", "SIB11bis", 31, {}, 0};

  build_sib1(sibs[kSib1]);
  build_sib2(sibs[kSib2]);
  build_sib3(sibs[kSib3]);
  build_sib5(sibs[kSib5]);
  build_sib7(sibs[kSib7]);
  build_sib11_hcs(sibs[kSib11Hcs]);
  build_sib11(sibs[kSib11]);
  build_sib11bis(sibs[kSib11bis]);
  build_sib12(sibs[kSib12]);
  build_sib18(sibs[kSib18]);
  /* The second SIB5 starts a block of its own, in the first of its shapes (from the fullest
     down) that the sixteen segments of a SIB can carry. */
  for (unsigned variant = 0;; variant++) {
    if (variant == (1u << 13) * 6 * 8) {
      std::fprintf(stderr, "mksamples: SIB5 (second form), %u bits: ", sibs[kSib5Second].numbits);
      die("no shape of it can be cut into transport blocks");
    }
    build_sib5_second(sibs[kSib5Second], variant);
    const umts_bch_sib alone = {5, sibs[kSib5Second].bytes.data(), sibs[kSib5Second].numbits, 1};
    std::vector<umts_bch_block> trial(64);
    uint32_t count = 0;
    if (umts_bch_segment(&alone, 1, 0, trial.data(), 64, &count, nullptr) == umts_bch_ok) break;
  }

  /* Blocks of the whole-SIB file that the cycle does not carry. */
  std::vector<Sib> whole_only;

  /* The measurement blocks of a 1.28 Mcps TDD cell, in a file of their own. */
  std::vector<Sib> tdd128(2);
  tdd128[0] = {"sib11", "SIB11 of a 1.28 Mcps TDD cell", 11, {}, 0};
  tdd128[1] = {"sib12", "SIB12 of a 1.28 Mcps TDD cell", 12, {}, 0};
  build_sib11_lcr(tdd128[0]);
  build_sib12_lcr(tdd128[1]);
  add_hspa_samples(whole_only);

  /* The segment counts go into the scheduling, so cut once with counts of 1, then again. */
  std::vector<uint32_t> seg_counts(kCycleSize, 1);
  std::vector<umts_bch_block> blocks;
  /* So do the frame of the block that starts SIB11bis, which SB1 schedules it in. */
  int32_t sib11bis_frame = -1;
  for (int pass = 0; pass < 4; pass++) {
    const Plan plan = place_cycle(seg_counts, sibs, sib11bis_frame);
    build_sb1(sibs[kSb1], plan);
    build_mib(sibs[kMib], plan);
    blocks = cut(sibs);
    std::vector<uint32_t> found(kCycleSize, 1);
    int32_t found_frame = -1;
    for (const umts_bch_block& b : blocks)
      for (uint32_t i = 0; i < b.piece_count; i++) {
        found[b.pieces[i].sib] = b.pieces[i].seg_count;
        if (b.pieces[i].sib == kSib11bis && b.pieces[i].segment == 0) found_frame = 2 * b.sfn_prime;
      }
    if (found == seg_counts && found_frame == sib11bis_frame) break;
    seg_counts = found;
    sib11bis_frame = found_frame;
  }
  for (const umts_bch_block& b : blocks)
    for (uint32_t i = 0; i < b.piece_count; i++)
      if (b.pieces[i].seg_count != seg_counts[b.pieces[i].sib]) die("segment counts do not settle");

  std::string bch =
      "# One broadcast cycle of a UMTS FDD cell: MCC 262, MNC 01, LAC 0x4E21, cell identity\n"
      "# 0x01A2B3C, primary scrambling code 123. Written by mksamples (make samples).\n"
      "# SB1 also schedules SIB19, which the library does not convert: it is left out here.\n"
      "# SIB11 comes first in the form the cell sent while it used HCS, then as it is now;\n"
      "# SIB11bis follows SIB18, in the frame where SB1 schedules it; last comes a second form\n"
      "# of SIB5, as the cell sends it after a reconfiguration (dedicated and dynamic transport\n"
      "# formats, fuller TFCS, eight FACHs), where the MIB schedules the first.\n"
      "#\n"
      "# One BCH transport block per line, in hexadecimal: a BCCH-BCH-Message of TS 25.331,\n"
      "# 246 bits in 31 octets, SFN' counting up by one per block (here the blocks follow\n"
      "# each other; on air each stands at the position that the MIB and SB1 schedule, and so\n"
      "# does SIB11bis here, which a receiver takes for one only there). The comment before\n"
      "# each block says what it carries. Decode with: sibdump samples/fdd_cell.bch\n";
  for (const umts_bch_block& b : blocks) {
    bch += "\n# " + describe(b, sibs) + "\n";
    bch += hex(b.data, UMTS_BCH_BLOCK_OCTETS) + "\n";
  }
  std::string whole =
      "# The SIBs of samples/fdd_cell.bch, whole: '<name> <hex of the unaligned PER encoding>'.\n"
      "# Written by mksamples (make samples). Decode with: sibdump --sibs samples/fdd_cell_sibs.txt\n";
  /* The cycle's SIBs, the second form of SIB11 and SIB11bis after the others. */
  std::vector<Sib> in_order;
  for (uint32_t i = 0; i < kCycleSize; i++)
    if (i != kSib11Hcs && i != kSib11bis) in_order.push_back(sibs[i]);
  in_order.push_back(sibs[kSib11Hcs]);
  in_order.push_back(sibs[kSib11bis]);
  for (const Sib& s : in_order)
    whole += "\n# " + std::string(s.label) + ", " + std::to_string(s.numbits) + " bits\n" + s.name + " " +
             hex(s.bytes.data(), s.bytes.size()) + "\n";
  for (const Sib& s : whole_only)
    whole += "\n# " + std::string(s.label) + ", " + std::to_string(s.numbits) + " bits\n" + s.name + " " +
             hex(s.bytes.data(), s.bytes.size()) + "\n";

  std::string lcr =
      "# SIB11 and SIB12 of a 1.28 Mcps TDD cell, whole: '<name> <hex of the unaligned PER encoding>'.\n"
      "# The neighbours are in the LCR tree of the v4b0 extension; the main tree only names the\n"
      "# quality measure. Written by mksamples (make samples).\n"
      "# Decode with: sibdump --sibs samples/tdd128_cell_sibs.txt\n";
  for (const Sib& s : tdd128)
    lcr += "\n# " + std::string(s.label) + ", " + std::to_string(s.numbits) + " bits\n" + s.name + " " +
           hex(s.bytes.data(), s.bytes.size()) + "\n";

  const bool ok = write_file(dir + "/fdd_cell.bch", bch) && write_file(dir + "/fdd_cell_sibs.txt", whole) &&
                  write_file(dir + "/tdd128_cell_sibs.txt", lcr) &&
                  (argc < 3 || write_file(argv[2], scheduled_cycle(sibs)));
  rtFreeContext(&g_ctx);
  if (!ok) return 1;
  std::printf("mksamples: %zu SIBs in %zu transport blocks written to %s\n", sibs.size(), blocks.size(), dir.c_str());
  return 0;
}
