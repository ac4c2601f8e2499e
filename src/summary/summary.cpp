/*
 * The per-cell summary: the records of a cell read as a radio engineer reads a cell, values
 * in their units beside the coded value, enumerations by the codec's names.
 */
#include "summary.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <cstdlib>
#include <cstring>

#include "umts_record_desc.h"
#include "umts_rrc.h"
#include "umts_sib_json.h"

/* ---- Nodes ------------------------------------------------------------------------------ */

const SummaryNode* SummaryNode::find(const std::string& key) const {
  for (const auto& m : members)
    if (m.first == key) return &m.second;
  return nullptr;
}

/* ---- Records of a cell ------------------------------------------------------------------ */

namespace {

/* A zeroed set of its own pages, which stay untouched until copies write them: the SIB5
   record alone is 28 MB, of which a cell fills a few kilobytes. */
size_t set_pages() {
  const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
  return (sizeof(umts_sib_set) + page - 1) / page * page;
}

umts_sib_set* zeroed_set() {
  void* p = mmap(nullptr, set_pages(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  return p == MAP_FAILED ? nullptr : static_cast<umts_sib_set*>(p);
}

}  // namespace

SetStore::~SetStore() {
  for (umts_sib_set* set : spare_) munmap(set, set_pages());
}

umts_sib_set* SetStore::take() {
  if (spare_.empty()) return zeroed_set();
  umts_sib_set* set = spare_.back();
  spare_.pop_back();
  return set;
}

void SetStore::give(umts_sib_set* set) {
  if (spare_.size() >= kKept) {
    munmap(set, set_pages());
    return;
  }
  umts_record_clear_written(describe_umts_sib_set(), set);
  spare_.push_back(set);
}

CellRecords::CellRecords(std::string label, SetStore* sets)
    : label_(std::move(label)), sets_(sets), records_(sets != nullptr ? sets->take() : zeroed_set()) {
  if (records_ == nullptr) {
    std::fprintf(stderr, "sibdump: out of memory\n");
    std::exit(2);
  }
}

CellRecords::~CellRecords() {
  if (sets_ != nullptr)
    sets_->give(records_);
  else
    munmap(records_, set_pages());
}

void CellRecords::take(const umts_sib_set* set) {
  const uint32_t present = set->presence_bitmask;
  /* Copied by what the conversion wrote, not whole: the SIB5 record alone is 28 MB. */
#define UMTS_TAKE(slot, member)                                                        \
  if ((present >> (slot)) & 1u) {                                                      \
    umts_record_copy_written(umts_desc_of(&records_->member), &records_->member, &set->member); \
    conversions_[slot]++;                                                              \
  }
  UMTS_TAKE(umts_sib_mib, mib)
  UMTS_TAKE(umts_sib_sib1, sib1)
  UMTS_TAKE(umts_sib_sib2, sib2)
  UMTS_TAKE(umts_sib_sib3, sib3)
  UMTS_TAKE(umts_sib_sib5, sib5)
  UMTS_TAKE(umts_sib_sib7, sib7)
  UMTS_TAKE(umts_sib_sib11, sib11)
  UMTS_TAKE(umts_sib_sib11bis, sib11bis)
  UMTS_TAKE(umts_sib_sib12, sib12)
  UMTS_TAKE(umts_sib_sib18, sib18)
  UMTS_TAKE(umts_sib_sb1, sb1)
  UMTS_TAKE(umts_sib_sb2, sb2)
#undef UMTS_TAKE
  seen_ |= present & ((1u << umts_sib_count) - 1u);
  records_->presence_bitmask = static_cast<uint16_t>(seen_);
}

bool CellRecords::configuration_changes(const umts_sib_set* set) const {
  return (set->presence_bitmask & (1u << umts_sib_mib)) != 0 && has(umts_sib_mib) &&
         set->mib.mib_ValueTag != records_->mib.mib_ValueTag;
}

void CellRecords::take_collection(const umts_decoder_ctxt* state) {
  for (uint32_t i = 0; i < umts_sib_count; i++) {
    const umts_sib_slot& slot = state->slots[i];
    const bool begun = slot.total_segments != 0 && slot.remaining_segments != 0 &&
                       slot.remaining_segments < slot.total_segments;
    partial_[i] = begun ? std::make_pair(static_cast<unsigned>(slot.total_segments - slot.remaining_segments),
                                         static_cast<unsigned>(slot.total_segments))
                        : std::make_pair(0u, 0u);
  }
}

void CellRecords::reset() {
  umts_record_clear_written(describe_umts_sib_set(), records_);
  std::fill(std::begin(partial_), std::end(partial_), std::make_pair(0u, 0u));
  seen_ = 0;
  std::fill(std::begin(conversions_), std::end(conversions_), 0ul);
  sib19_part_ = Collection();
  sib19_.clear();
}

CellRecords& CellCollection::cell(const std::string& key, const std::string& label) {
  auto it = index_.find(key);
  if (it != index_.end()) return *cells_[it->second];
  index_.emplace(key, cells_.size());
  cells_.emplace_back(new CellRecords(label, sets_));
  return *cells_.back();
}

/* ---- Small pieces ----------------------------------------------------------------------- */

namespace {

SummaryNode missing(const std::string& why) { return SummaryNode::object().add("missing", why); }

/* A value in its unit, with the coded value beside it. */
SummaryNode quantity(double value, const char* unit, long coded) {
  SummaryNode n = SummaryNode::object();
  if (value == static_cast<double>(static_cast<long long>(value))) n.add("value", static_cast<long long>(value));
  else n.add("value", value);
  return n.add("unit", unit).add("coded", coded);
}

/* An enumerated value by its name, with its ordinal. */
SummaryNode named(const char* name, uint32_t ordinal) {
  return SummaryNode::object().add("name", name).add("coded", static_cast<unsigned long>(ordinal));
}

/* Why block `id` is missing from the cell: not received, or received in part (a SIB whose
   first segments came and whose last did not: "SIB5 incomplete: 3 of 13 segments received"). */
std::string block_missing(const CellRecords& cell, umts_sib_id id) {
  const char* field = umts_sib_name(id);
  if (field == nullptr) return "not received";
  /* The block as people write it: the letters before the number in capitals ("sib11bis" ->
     "SIB11bis", "mib" -> "MIB"). */
  std::string name = field;
  for (char& c : name) {
    if (c >= '0' && c <= '9') break;
    c = static_cast<char>(c - 'a' + 'A');
  }
  if (cell.segments_total(id) != 0)
    return name + " incomplete: " + std::to_string(cell.segments_received(id)) + " of " +
           std::to_string(cell.segments_total(id)) + " segments received";
  if (id == umts_sib_mib) return "no MIB received";
  return name + " not received";
}

std::string digits(const uint8_t* d, uint32_t count) {
  std::string s;
  for (uint32_t i = 0; i < count && i < 3; i++) s += static_cast<char>('0' + (d[i] % 10));
  return s;
}

std::string plmn_text(const umts_plmn_identity& p) {
  return digits(p.mcc.digits, p.mcc.count) + "-" + digits(p.mnc.digits, p.mnc.count);
}

/* Alternatives of SIBSb-TypeAndTag (MIB) and SIB-TypeAndTag (SB1, SB2), from 1. */
const char* const kSibSbTypes[] = {
    "sysInfoType1",    "sysInfoType2",    "sysInfoType3",    "sysInfoType4",    "sysInfoType5",
    "sysInfoType6",    "sysInfoType7",    "dummy",           "dummy2",          "dummy3",
    "sysInfoType11",   "sysInfoType12",   "sysInfoType13",   "sysInfoType13-1", "sysInfoType13-2",
    "sysInfoType13-3", "sysInfoType13-4", "sysInfoType14",   "sysInfoType15",   "sysInfoType16",
    "sysInfoType17",   "sysInfoTypeSB1",  "sysInfoTypeSB2",  "sysInfoType15-1", "sysInfoType15-2",
    "sysInfoType15-3", "sysInfoType15-4", "sysInfoType18",   "sysInfoType15-5", "sysInfoType5bis",
    "spare2",          "spare1"};
const char* const kSibTypes[] = {
    "sysInfoType1",    "sysInfoType2",    "sysInfoType3",    "sysInfoType4",    "sysInfoType5",
    "sysInfoType6",    "sysInfoType7",    "dummy",           "dummy2",          "dummy3",
    "sysInfoType11",   "sysInfoType12",   "sysInfoType13",   "sysInfoType13-1", "sysInfoType13-2",
    "sysInfoType13-3", "sysInfoType13-4", "sysInfoType14",   "sysInfoType15",   "sysInfoType16",
    "sysInfoType17",   "sysInfoType15-1", "sysInfoType15-2", "sysInfoType15-3", "sysInfoType15-4",
    "sysInfoType18",   "sysInfoType15-5", "sysInfoType5bis", "spare4",          "spare3",
    "spare2",          "spare1"};
/* SIB-TypeExt and SIB-TypeExt2, from 1. */
const char* const kSibTypesExt[] = {"systemInfoType11bis", "systemInfoType15bis", "systemInfoType15-1bis",
                                    "systemInfoType15-2bis", "systemInfoType15-3bis", "systemInfoType15-6",
                                    "systemInfoType15-7", "systemInfoType15-8"};
const char* const kSibTypesExt2[] = {"systemInfoType19", "systemInfoType15-2ter", "systemInfoType20", "spare5",
                                     "spare4",           "spare3",                "spare2",           "spare1"};

const char* alternative(const char* const* names, size_t count, uint32_t tag) {
  return tag >= 1 && tag <= count ? names[tag - 1] : "unknown";
}

/* The slot that holds a block of this name, or umts_sib_count. */
umts_sib_id slot_of(const std::string& name) {
  static const std::pair<const char*, umts_sib_id> kSlots[] = {
      {"sysInfoType1", umts_sib_sib1},    {"sysInfoType2", umts_sib_sib2},   {"sysInfoType3", umts_sib_sib3},
      {"sysInfoType5", umts_sib_sib5},    {"sysInfoType7", umts_sib_sib7},   {"sysInfoType11", umts_sib_sib11},
      {"sysInfoType12", umts_sib_sib12},  {"sysInfoType18", umts_sib_sib18}, {"sysInfoTypeSB1", umts_sib_sb1},
      {"sysInfoTypeSB2", umts_sib_sb2},   {"systemInfoType11bis", umts_sib_sib11bis}};
  for (const auto& s : kSlots)
    if (name == s.first) return s.second;
  return umts_sib_count;
}

/* Repetition period in frames and position of a sib-Pos choice. */
bool position(const umts_scheduling_pos& pos, unsigned* rep, unsigned* at) {
  if (pos.choice_tag < 1 || pos.choice_tag > 11) return false;
  *rep = 4u << (pos.choice_tag - 1);
  const umts_scheduling_pos_u& u = pos.u;
  switch (pos.choice_tag) {
    case 1: *at = u.rep4; break;
    case 2: *at = u.rep8; break;
    case 3: *at = u.rep16; break;
    case 4: *at = u.rep32; break;
    case 5: *at = u.rep64; break;
    case 6: *at = u.rep128; break;
    case 7: *at = u.rep256; break;
    case 8: *at = u.rep512; break;
    case 9: *at = u.rep1024; break;
    case 10: *at = u.rep2048; break;
    default: *at = u.rep4096; break;
  }
  *at *= 2; /* the position counts frame pairs */
  return true;
}

}  // namespace

/* The first segment at SFN mod rep = position, each further one two frames later, or at the
   offsets the block lists (SibOFF so2 ... so32: 2 ... 32 frames). */
bool segment_frame(const umts_scheduling_info& s, unsigned i, unsigned* rep, unsigned* frame) {
  unsigned at = 0;
  if (!position(s.sib_Pos, rep, &at)) return false;
  for (unsigned k = 1; k <= i && k < 16; k++) {
    const bool listed = (s.presence_bitmask & 1u) && k - 1 < s.sib_PosOffsetInfo.count && k - 1 < 15;
    at += listed ? 2u * (s.sib_PosOffsetInfo.entries[k - 1] + 1u) : 2u;
  }
  *frame = at % *rep;
  return true;
}

namespace {

/* One scheduled block: name, period, position, segments, value tag, seen. */
SummaryNode schedule_entry(const CellRecords& cell, const char* name, const umts_scheduling_info& s,
                           const char* announced_by, SummaryNode value_tag) {
  SummaryNode e = SummaryNode::object();
  e.add("sib", name).add("announced_by", announced_by);
  unsigned rep = 0, at = 0;
  if (position(s.sib_Pos, &rep, &at)) {
    e.add("repetition_frames", rep).add("position_frame", at);
  } else {
    e.add("repetition_frames", SummaryNode()).add("position_frame", SummaryNode());
  }
  e.add("segment_count", static_cast<unsigned>(s.segCount));
  SummaryNode frames = SummaryNode::list();
  unsigned frame = 0;
  for (unsigned i = 0; i < s.segCount && i < 16 && segment_frame(s, i, &rep, &frame); i++) frames.push(frame);
  e.add("segment_frames", frames);
  e.add("value_tag", std::move(value_tag));
  const umts_sib_id slot = slot_of(name);
  if (std::strcmp(name, "systemInfoType19") == 0) e.add("seen", !cell.sib19().empty());
  else if (slot == umts_sib_count) e.add("seen", SummaryNode());
  else e.add("seen", cell.has(slot));
  /* Begun but not completed: how many of its segments came, of how many its first segment
     announced (which may differ from the schedule's count when the cell changed the SIB). */
  if (slot != umts_sib_count && !cell.has(slot) && cell.segments_total(slot) != 0)
    e.add("segments_received", cell.segments_received(slot)).add("segments_total", cell.segments_total(slot));
  return e;
}

/* Value tag of an alternative of SIBSb-TypeAndTag or SIB-TypeAndTag (`sb` the latter). */
template <class U>
SummaryNode value_tag(uint32_t tag, const U& u, bool sb) {
  if (tag == 1) return SummaryNode(static_cast<unsigned>(u.sysInfoType1));
  if (tag == 20) return SummaryNode(static_cast<unsigned>(u.sysInfoType16.predefinedConfigValueTag));
  const uint32_t occurrence_a = sb ? 23 : 25, occurrence_b = sb ? 24 : 26;
  if (tag == occurrence_a) return SummaryNode(static_cast<unsigned>(u.sysInfoType15_2.sibOccurValueTag));
  if (tag == occurrence_b) return SummaryNode(static_cast<unsigned>(u.sysInfoType15_3.sibOccurValueTag));
  /* No tag: sysInfoType7, dummy2, dummy3, sysInfoType14, sysInfoType17 and the spares. */
  if (tag == 7 || tag == 9 || tag == 10 || tag == 18 || tag == 21 || tag > (sb ? 28u : 30u)) return SummaryNode();
  return SummaryNode(static_cast<unsigned>(u.sysInfoType2)); /* the one-octet tags share their place */
}

SummaryNode ext_value_tag(const umts_value_tag_info& v) {
  switch (v.choice_tag) {
    case 2: return SummaryNode(static_cast<unsigned>(v.u.cellValueTag));
    case 3: return SummaryNode(static_cast<unsigned>(v.u.plmn_ValueTag));
    case 4: return SummaryNode(static_cast<unsigned>(v.u.sIBOccurrenceIdentityAndValueTag.sibOccurValueTag));
    default: return SummaryNode();
  }
}

/* The extension SIBs that a block schedules: its v6b0 list (SIB-TypeExt) and its v860 list
   (SIB-TypeExt2), each null when the block does not send it. */
struct ExtLists {
  const umts_ext_sib_type_info_scheduling_info_list* v6b0 = nullptr;
  const umts_ext_sib_type_info_scheduling_info_list2* v860 = nullptr;
};

ExtLists ext_lists(const umts_mib_info& mib) {
  ExtLists l;
  if ((mib.presence_bitmask & 1u) == 0) return l;
  const umts_mib_v690_nce& v690 = mib.v690NonCriticalExtensions;
  if ((v690.presence_bitmask & 1u) == 0) return l;
  const umts_mib_v690_nce_v6b0_nce& v6b0 = v690.v6b0NonCriticalExtensions;
  if (v6b0.masterInformationBlock_v6b0ext.presence_bitmask & 1u)
    l.v6b0 = &v6b0.masterInformationBlock_v6b0ext.extSIBTypeInfoSchedulingInfo_List;
  if ((v6b0.presence_bitmask & 1u) == 0) return l;
  const umts_mib_v860ext_ies& v860 = v6b0.v860NonCriticalExtensions.masterInformationBlock_v860ext;
  if (v860.presence_bitmask & 1u) l.v860 = &v860.extSIBTypeInfoSchedulingInfo_List;
  return l;
}

template <class Sb>
ExtLists ext_lists(const Sb& sb) {
  ExtLists l;
  if ((sb.presence_bitmask & 1u) == 0) return l;
  const umts_sb_v6b0_nc_extensions& v6b0 = sb.v6b0NonCriticalExtensions;
  if (v6b0.sysInfoTypeSB_v6b0ext.presence_bitmask & 1u) l.v6b0 = &v6b0.sysInfoTypeSB_v6b0ext.extSIBTypeInfoSchedulingInfo_List;
  if ((v6b0.presence_bitmask & 1u) == 0) return l;
  const umts_sb_v860_ext& v860 = v6b0.v860NonCriticalExtensions.sysInfoTypeSB_v860ext;
  if (v860.presence_bitmask & 1u) l.v860 = &v860.extSIBTypeInfoSchedulingInfo_List;
  return l;
}

/* The extension lists of the cell's MIB, SB1 and SB2, with the block that sent each. */
std::vector<std::pair<const char*, ExtLists>> ext_schedules(const CellRecords& cell) {
  std::vector<std::pair<const char*, ExtLists>> all;
  if (cell.has(umts_sib_mib)) all.emplace_back("mib", ext_lists(cell.records().mib));
  if (cell.has(umts_sib_sb1)) all.emplace_back("sb1", ext_lists(cell.records().sb1));
  if (cell.has(umts_sib_sb2)) all.emplace_back("sb2", ext_lists(cell.records().sb2));
  return all;
}

void schedule_of_ext(const CellRecords& cell, const ExtLists& ext, const char* by, SummaryNode& out) {
  if (ext.v6b0 != nullptr)
    for (unsigned i = 0; i < ext.v6b0->count && i < 32; i++)
      out.push(schedule_entry(cell, alternative(kSibTypesExt, 8, ext.v6b0->entries[i].extensionSIB_Type),
                              ext.v6b0->entries[i].schedulingInfo, by, ext_value_tag(ext.v6b0->entries[i].valueTagInfo)));
  if (ext.v860 != nullptr)
    for (unsigned i = 0; i < ext.v860->count && i < 32; i++)
      out.push(schedule_entry(cell, alternative(kSibTypesExt2, 8, ext.v860->entries[i].extensionSIB_Type2),
                              ext.v860->entries[i].schedulingInfo, by, ext_value_tag(ext.v860->entries[i].valueTagInfo)));
}

/* The SIBs of a scheduling block (SB1 or SB2). */
template <class Sb>
void schedule_of_sb(const CellRecords& cell, const Sb& sb, const char* by, SummaryNode& out) {
  const umts_sib_reference_list& l = sb.sib_ReferenceList;
  for (unsigned i = 0; i < l.count && i < 32; i++) {
    const umts_scheduling_info_sib& e = l.entries[i];
    const uint32_t tag = e.sib_Type.choice_tag;
    out.push(schedule_entry(cell, alternative(kSibTypes, 32, tag), e.scheduling, by,
                            value_tag(tag, e.sib_Type.u, true)));
  }
  schedule_of_ext(cell, ext_lists(sb), by, out);
}

/* ---- Neighbour lists of the four SIB11 forms --------------------------------------------- */

template <class Info>
void add_offsets(SummaryNode& n, const Info& cell) {
  n.add("cell_individual_offset", quantity(cell.cellIndividualOffset * 0.5, "dB", cell.cellIndividualOffset));
}

/* The thresholds that a neighbour has of its own, where the cell sends them (else the
   serving cell's apply): the maximum UL power, and by mode Qqualmin and Qrxlevmin (TS 25.331:
   Qrxlevmin is 2 x coded + 1 dBm, for a GSM cell as well). */
void add_thresholds(SummaryNode& n, bool max_power_sent, int max_power,
                    const umts_cell_select_reselect_mode_specific_info& m) {
  if (max_power_sent) n.add("max_allowed_ul_tx_power", quantity(max_power, "dBm", max_power));
  if (m.choice_tag == 1) {
    if (m.u.fdd.presence_bitmask & 1u) n.add("q_qualmin", quantity(m.u.fdd.q_QualMin, "dB", m.u.fdd.q_QualMin));
    if (m.u.fdd.presence_bitmask & 2u)
      n.add("q_rxlevmin", quantity(2 * m.u.fdd.q_RxlevMin + 1, "dBm", m.u.fdd.q_RxlevMin));
  } else if (m.choice_tag == 2 || m.choice_tag == 3) {
    const umts_cell_select_reselect_mode_specific_info_rxlev& r = m.choice_tag == 2 ? m.u.tdd : m.u.gsm;
    if (r.presence_bitmask & 1u) n.add("q_rxlevmin", quantity(2 * r.q_RxlevMin + 1, "dBm", r.q_RxlevMin));
  }
}

void add_reselection(SummaryNode& n, const umts_cell_select_reselect_info_sib_11_12_rscp& r) {
  n.add("q_offset_s_n", quantity(r.q_OffsetS_N, "dB", r.q_OffsetS_N));
  add_thresholds(n, r.presence_bitmask & 1u, r.maxAllowedUL_TX_Power, r.modeSpecificInfo);
}
void add_reselection(SummaryNode& n, const umts_cell_select_reselect_info_sib_11_12_hcs_rscp& r) {
  n.add("q_offset_s_n", quantity(r.q_OffsetS_N, "dB", r.q_OffsetS_N));
  if (r.presence_bitmask & 2u)
    n.add("hcs_priority", static_cast<unsigned>(r.hcs_NeighbouringCellInformation_RSCP.hcs_PRIO))
        .add("q_hcs_coded", static_cast<unsigned>(r.hcs_NeighbouringCellInformation_RSCP.q_HCS));
  add_thresholds(n, r.presence_bitmask & 1u, r.maxAllowedUL_TX_Power, r.modeSpecificInfo);
}
void add_reselection(SummaryNode& n, const umts_cell_select_reselect_info_sib_11_12_ecno& r) {
  n.add("q_offset1_s_n", quantity(r.q_Offset1S_N, "dB", r.q_Offset1S_N));
  n.add("q_offset2_s_n", quantity(r.q_Offset2S_N, "dB", r.q_Offset2S_N));
  add_thresholds(n, r.presence_bitmask & 1u, r.maxAllowedUL_TX_Power, r.modeSpecificInfo);
}
void add_reselection(SummaryNode& n, const umts_cell_select_reselect_info_sib_11_12_hcs_ecno& r) {
  n.add("q_offset1_s_n", quantity(r.q_Offset1S_N, "dB", r.q_Offset1S_N));
  n.add("q_offset2_s_n", quantity(r.q_Offset2S_N, "dB", r.q_Offset2S_N));
  if (r.presence_bitmask & 2u)
    n.add("hcs_priority", static_cast<unsigned>(r.hcs_NeighbouringCellInformation_ECN0.hcs_PRIO))
        .add("q_hcs_coded", static_cast<unsigned>(r.hcs_NeighbouringCellInformation_ECN0.q_HCS));
  add_thresholds(n, r.presence_bitmask & 1u, r.maxAllowedUL_TX_Power, r.modeSpecificInfo);
}

/* Scrambling code, offsets and reselection values of one cell of a list. */
template <class CellInfo>
SummaryNode utran_cell(const CellInfo& c) {
  SummaryNode n = SummaryNode::object();
  if (c.modeSpecificInfo.choice_tag == 1 && (c.modeSpecificInfo.u.fdd.presence_bitmask & 1u))
    n.add("primary_scrambling_code", static_cast<unsigned>(c.modeSpecificInfo.u.fdd.primaryCPICH_Info));
  else
    n.add("primary_scrambling_code", SummaryNode());
  add_offsets(n, c);
  if (c.presence_bitmask & 2u) add_reselection(n, c.cellSelectionReselectionInfo);
  return n;
}

template <class Alternative>
void utran_lists(const Alternative& a, SummaryNode& intra, SummaryNode& inter) {
  if (a.presence_bitmask & 1u) {
    const auto& m = a.intraFreqMeasurementSysInfo;
    if (m.presence_bitmask & 1u) {
      const auto& l = m.intraFreqCellInfoSI_List.newIntraFreqCellList;
      for (unsigned i = 0; i < l.count && i < 32; i++) {
        SummaryNode n = SummaryNode::object();
        if (l.entries[i].presence_bitmask & 1u) n.add("cell_id", static_cast<unsigned>(l.entries[i].intraFreqCellID));
        for (auto& member : utran_cell(l.entries[i].cellInfo).members) n.add(member.first, member.second);
        intra.push(std::move(n));
      }
    }
  }
  if (a.presence_bitmask & 2u) {
    const auto& m = a.interFreqMeasurementSysInfo;
    if ((m.presence_bitmask & 1u) && (m.interFreqCellInfoSI_List.presence_bitmask & 2u)) {
      const auto& l = m.interFreqCellInfoSI_List.newInterFreqCellList;
      for (unsigned i = 0; i < l.count && i < 32; i++) {
        const auto& e = l.entries[i];
        SummaryNode n = SummaryNode::object();
        if (e.presence_bitmask & 1u) n.add("cell_id", static_cast<unsigned>(e.interFreqCellID));
        if (e.frequencyInfo.choice_tag == 1) n.add("uarfcn_dl", static_cast<unsigned>(e.frequencyInfo.u.fdd.uarfcn_DL));
        else if (e.frequencyInfo.choice_tag == 2) n.add("uarfcn", static_cast<unsigned>(e.frequencyInfo.u.tdd.uarfcn_Nt));
        else n.add("uarfcn_dl", "same as the cell before");
        for (auto& member : utran_cell(e.cellInfo).members) n.add(member.first, member.second);
        inter.push(std::move(n));
      }
    }
  }
}

/* `bsic_always`: the list of the B form (without HCS), whose cells always bring their BSIC to
   the record; in the full list (with HCS) the record has a cell's BSIC only with bit 1 (the
   element dummy came with it), and without it the BSIC is said to be missing, not 0-0. */
template <class List>
void gsm_list(const List& l, bool bsic_always, SummaryNode& gsm) {
  for (unsigned i = 0; i < l.count && i < 32; i++) {
    const umts_new_inter_rat_cell& c = l.entries[i];
    if (c.technologySpecificInfo.choice_tag != 1) continue;
    const umts_new_inter_rat_cell_gsm& g = c.technologySpecificInfo.u.gsm;
    SummaryNode n = SummaryNode::object();
    if (c.presence_bitmask & 1u) n.add("cell_id", static_cast<unsigned>(c.interRATCellID));
    char bsic[8];
    std::snprintf(bsic, sizeof bsic, "%u-%u", g.bsic.ncc, g.bsic.bcc);
    n.add("bcch_arfcn", static_cast<unsigned>(g.bcch_ARFCN))
        .add("band", named(UMTS_Frequency_Band_ToString(g.frequency_band), g.frequency_band))
        .add("bsic", bsic_always || (g.presence_bitmask & 2u) ? SummaryNode(std::string(bsic))
                                                              : missing("not in the record without the element dummy"))
        .add("individual_offset", quantity(g.interRATCellIndividualOffset, "dB", g.interRATCellIndividualOffset));
    if (g.presence_bitmask & 1u) {
      const umts_cell_select_reselect_info_sib_11_12& r = g.cellSelectionReselectionInfo;
      n.add("q_offset1_s_n", quantity(r.q_Offset1S_N, "dB", r.q_Offset1S_N));
      add_thresholds(n, r.presence_bitmask & 2u, r.maxAllowedUL_TX_Power, r.modeSpecificInfo);
    }
    gsm.push(std::move(n));
  }
}

/* ---- Output ----------------------------------------------------------------------------- */

void json_string(std::string& out, const std::string& s) {
  out += '"';
  for (unsigned char c : s) {
    if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c < 0x20) {
      char esc[8];
      std::snprintf(esc, sizeof esc, "\\u%04x", c);
      out += esc;
    } else {
      out += static_cast<char>(c);
    }
  }
  out += '"';
}

void json_node(std::string& out, const SummaryNode& n) {
  char num[40];
  switch (n.kind) {
    case SummaryNode::Null: out += "null"; break;
    case SummaryNode::Bool: out += n.flag ? "true" : "false"; break;
    case SummaryNode::Int: out += std::to_string(n.integer); break;
    case SummaryNode::Real:
      std::snprintf(num, sizeof num, "%g", n.real);
      out += num;
      break;
    case SummaryNode::Text: json_string(out, n.text); break;
    case SummaryNode::Object:
      out += '{';
      for (size_t i = 0; i < n.members.size(); i++) {
        if (i) out += ',';
        json_string(out, n.members[i].first);
        out += ':';
        json_node(out, n.members[i].second);
      }
      out += '}';
      break;
    case SummaryNode::List:
      out += '[';
      for (size_t i = 0; i < n.items.size(); i++) {
        if (i) out += ',';
        json_node(out, n.items[i]);
      }
      out += ']';
      break;
  }
}

/* A value on one line: scalars as they are, quantities as "v unit (coded c)", names as
   "name (coded c)", small flat objects as "k=v, k=v". */
bool inline_text(const SummaryNode& n, std::string& out) {
  char num[40];
  switch (n.kind) {
    case SummaryNode::Null: out += "-"; return true;
    case SummaryNode::Bool: out += n.flag ? "yes" : "no"; return true;
    case SummaryNode::Int: out += std::to_string(n.integer); return true;
    case SummaryNode::Real:
      std::snprintf(num, sizeof num, "%g", n.real);
      out += num;
      return true;
    case SummaryNode::Text: out += n.text; return true;
    case SummaryNode::Object: {
      const SummaryNode* value = n.find("value");
      const SummaryNode* unit = n.find("unit");
      const SummaryNode* coded = n.find("coded");
      const SummaryNode* name = n.find("name");
      const SummaryNode* why = n.find("missing");
      if (why != nullptr && n.members.size() == 1) {
        out += "(" + why->text + ")";
        return true;
      }
      if (value && unit && coded && n.members.size() == 3) {
        inline_text(*value, out);
        out += " " + unit->text + " (coded ";
        inline_text(*coded, out);
        out += ")";
        return true;
      }
      if (name && coded && n.members.size() == 2) {
        out += name->text + " (coded ";
        inline_text(*coded, out);
        out += ")";
        return true;
      }
      /* Lists of plain values (frames of a schedule) go on the line; lists of records do not. */
      for (const auto& m : n.members)
        if (m.second.kind == SummaryNode::List)
          for (const auto& item : m.second.items)
            if (item.kind == SummaryNode::Object || item.kind == SummaryNode::List) return false;
      if (n.members.size() > 12) return false;
      for (size_t i = 0; i < n.members.size(); i++) {
        const SummaryNode& v = n.members[i].second;
        if (v.kind == SummaryNode::Object && !v.find("missing") && !v.find("unit") && !v.find("name")) return false;
        if (i) out += ", ";
        out += n.members[i].first + " ";
        if (!inline_text(v, out)) return false;
      }
      return true;
    }
    case SummaryNode::List: {
      if (n.items.empty()) {
        out += "none";
        return true;
      }
      for (const auto& item : n.items)
        if (item.kind == SummaryNode::Object || item.kind == SummaryNode::List) return false;
      for (size_t i = 0; i < n.items.size(); i++) {
        if (i) out += " ";
        inline_text(n.items[i], out);
      }
      return true;
    }
  }
  return false;
}

void text_node(std::string& out, const std::string& key, const SummaryNode& n, int depth) {
  const std::string indent(static_cast<size_t>(depth) * 2, ' ');
  std::string line;
  if (inline_text(n, line)) {
    /* A list's items as "- ...", members as "key: ...". */
    out += indent + key + (key.empty() ? "" : key == "-" ? " " : ": ") + line + "\n";
    return;
  }
  out += indent + key + (key.empty() ? "" : ":") + "\n";
  if (n.kind == SummaryNode::List) {
    for (const auto& item : n.items) text_node(out, "-", item, depth + 1);
  } else {
    for (const auto& m : n.members) text_node(out, m.first, m.second, depth + 1);
  }
}

}  // namespace

/* ---- Sections --------------------------------------------------------------------------- */

SummaryNode summary_identity(const CellRecords& cell) {
  const umts_sib_set& r = cell.records();
  SummaryNode n = SummaryNode::object();
  /* PLMN: the MIB's PLMN-Type. */
  if (!cell.has(umts_sib_mib)) {
    n.add("plmn", missing(block_missing(cell, umts_sib_mib)));
  } else {
    const umts_plmn_type& t = r.mib.plmn_Type;
    if (t.choice_tag == 1) n.add("plmn", plmn_text(t.u.gsm_MAP));
    else if (t.choice_tag == 3) n.add("plmn", plmn_text(t.u.gsm_MAP_and_ANSI_41.plmn_Identity));
    else n.add("plmn", missing("the MIB carries no GSM-MAP PLMN identity"));
  }
  /* LAC: the first two octets of the common GSM-MAP NAS information; RAC: the first octet
     of the PS domain's. */
  if (!cell.has(umts_sib_sib1)) {
    n.add("lac", missing(block_missing(cell, umts_sib_sib1))).add("rac", missing(block_missing(cell, umts_sib_sib1)));
  } else {
    const umts_nas_system_gsm_map_info& common = r.sib1.cn_CommonGSM_MAP_NAS_SysInfo;
    if (common.count >= 2) n.add("lac", (static_cast<unsigned>(common.octets[0]) << 8) | common.octets[1]);
    else n.add("lac", missing("SIB1's common NAS information is shorter than a LAC"));
    SummaryNode rac = missing("SIB1 has no PS domain");
    const umts_cn_domain_sysinfo_list& l = r.sib1.cn_DomainSysInfoList;
    for (unsigned i = 0; i < l.count && i < 4; i++) {
      const umts_cn_domain_sysinfo& d = l.entries[i];
      if (d.cn_DomainIdentity == 1 && d.cn_Type.choice_tag == 1 && d.cn_Type.u.gsm_MAP.count >= 1)
        rac = SummaryNode(static_cast<unsigned>(d.cn_Type.u.gsm_MAP.octets[0]));
    }
    n.add("rac", rac);
  }
  /* Cell identity: 28 bits, the top 12 the RNC-Id, the low 16 the C-Id. */
  if (!cell.has(umts_sib_sib3)) {
    n.add("cell_identity", missing(block_missing(cell, umts_sib_sib3)));
  } else {
    const uint8_t* d = r.sib3.cellIdentity.data;
    const uint32_t id = (static_cast<uint32_t>(d[0]) << 20) | (static_cast<uint32_t>(d[1]) << 12) |
                        (static_cast<uint32_t>(d[2]) << 4) | (d[3] >> 4);
    n.add("cell_identity", SummaryNode::object()
                               .add("value", static_cast<unsigned long>(id))
                               .add("rnc_id", static_cast<unsigned long>(id >> 16))
                               .add("c_id", static_cast<unsigned long>(id & 0xFFFFu)));
  }
  if (!cell.has(umts_sib_sib2)) {
    n.add("ura_identities", missing(block_missing(cell, umts_sib_sib2)));
  } else {
    SummaryNode ura = SummaryNode::list();
    const umts_ura_identity_list& l = r.sib2.ura_IdentityList;
    for (unsigned i = 0; i < l.count && i < 8; i++)
      ura.push((static_cast<unsigned>(l.entries[i].data[0]) << 8) | l.entries[i].data[1]);
    n.add("ura_identities", ura);
  }
  /* Frequency band: SIB5's v4b0 extension, and its second indicator from v650. */
  if (!cell.has(umts_sib_sib5)) {
    n.add("frequency_band", missing(block_missing(cell, umts_sib_sib5)));
  } else {
    const umts_sib5_info& s = r.sib5;
    const umts_sib5_v4b0_nces& v4b0 = s.v4b0NonCriticalExtensions;
    const bool has_v4b0 = (s.presence_bitmask & 4u) != 0;
    if (has_v4b0 && (v4b0.presence_bitmask & 1u) && (v4b0.sysInfoType5_v4b0ext.presence_bitmask & 16u)) {
      const uint32_t b = v4b0.sysInfoType5_v4b0ext.frequencyBandIndicator;
      n.add("frequency_band", named(UMTS_RadioFrequencyBandFDD_ToString(b), b));
    } else {
      n.add("frequency_band", missing("SIB5 sends no frequency band indicator"));
    }
    /* The second indicator counts when the first says extension-indicator. */
    const umts_sib5_v590_nces& v590 = v4b0.v590NonCriticalExtensions;
    const umts_sib5_v650_nces& v650 = v590.v650NonCriticalExtensions;
    const bool extended = has_v4b0 && (v4b0.presence_bitmask & 1u) &&
                          (v4b0.sysInfoType5_v4b0ext.presence_bitmask & 16u) &&
                          v4b0.sysInfoType5_v4b0ext.frequencyBandIndicator == UMTS_RadioFrequencyBandFDD_extension_indicator;
    if (extended && (v4b0.presence_bitmask & 2u) && (v590.presence_bitmask & 2u) && (v650.presence_bitmask & 1u)) {
      const uint32_t b2 = v650.sysInfoType5_v650ext.frequencyBandIndicator2;
      n.add("frequency_band2", named(UMTS_RadioFrequencyBandFDD2_ToString(b2), b2));
    }
  }
  return n;
}

SummaryNode summary_access(const CellRecords& cell) {
  if (!cell.has(umts_sib_sib3)) return missing(block_missing(cell, umts_sib_sib3));
  const umts_cell_access_restriction& a = cell.records().sib3.cellAccessRestriction;
  SummaryNode n = SummaryNode::object();
  const bool barred = a.cellBarred.choice_tag == 1;
  n.add("cell_barred", named(barred ? "barred" : "notBarred", a.cellBarred.choice_tag));
  n.add("reserved_for_operator_use",
        named(UMTS_ReservedIndicator_ToString(a.cellReservedForOperatorUse), a.cellReservedForOperatorUse));
  n.add("reservation_extension",
        named(UMTS_ReservedIndicator_ToString(a.cellReservationExtension), a.cellReservationExtension));
  SummaryNode classes = SummaryNode::list();
  if (a.presence_bitmask & 1u) {
    for (unsigned i = 0; i < a.accessClassBarredList.count && i < 16; i++)
      if (a.accessClassBarredList.entries[i] == UMTS_AccessClassBarred_barred) classes.push(i);
  }
  n.add("access_classes_barred", classes);
  if (barred) {
    const umts_cell_barred_barred& b = a.cellBarred.u.barred;
    n.add("intra_freq_cell_reselection",
          named(UMTS_AllowedIndicator_ToString(b.intraFreqCellReselectionInd), b.intraFreqCellReselectionInd));
    n.add("t_barred", named(UMTS_T_Barred_ToString(b.t_Barred), b.t_Barred));
  } else {
    n.add("intra_freq_cell_reselection", missing("sent only when the cell is barred"));
    n.add("t_barred", missing("sent only when the cell is barred"));
  }
  return n;
}

SummaryNode summary_selection(const CellRecords& cell) {
  if (!cell.has(umts_sib_sib3)) return missing(block_missing(cell, umts_sib_sib3));
  const umts_sib3_info& s3 = cell.records().sib3;
  const umts_cell_select_reselect_info_sib_3_4& s = s3.cellSelectReselectInfo;
  SummaryNode n = SummaryNode::object();
  const uint32_t q = s.cellSelectQualityMeasure.choice_tag;
  n.add("quality_measure", named(q == 1 ? "cpich-Ec-N0" : q == 2 ? "cpich-RSCP" : "unknown", q));
  if (s.modeSpecificInfo.choice_tag == 1) {
    const umts_sib3_fdd_info& f = s.modeSpecificInfo.u.fdd;
    n.add("q_qualmin", quantity(f.q_QualMin, "dB", f.q_QualMin));
    n.add("q_rxlevmin", quantity(2 * f.q_RxlevMin + 1, "dBm", f.q_RxlevMin));
    n.add("s_intrasearch", (f.presence_bitmask & 1u) ? quantity(2 * f.s_Intrasearch, "dB", f.s_Intrasearch)
                                                     : missing("not sent"));
    n.add("s_intersearch", (f.presence_bitmask & 2u) ? quantity(2 * f.s_Intersearch, "dB", f.s_Intersearch)
                                                     : missing("not sent"));
    SummaryNode rats = SummaryNode::list();
    if (f.presence_bitmask & 8u) {
      for (unsigned i = 0; i < f.rat_List.count && i < 15; i++) {
        const umts_rat_info& r = f.rat_List.entries[i];
        rats.push(SummaryNode::object()
                      .add("rat", named(UMTS_RAT_Identifier_ToString(r.rat_Identifier), r.rat_Identifier))
                      .add("s_search_rat", quantity(2 * r.s_SearchRAT, "dB", r.s_SearchRAT))
                      .add("s_limit_search_rat", quantity(2 * r.s_Limit_SearchRAT, "dB", r.s_Limit_SearchRAT)));
      }
    }
    n.add("s_search_rat", rats);
  } else if (s.modeSpecificInfo.choice_tag == 2) {
    const umts_sib3_tdd_info& t = s.modeSpecificInfo.u.tdd;
    n.add("q_rxlevmin", quantity(2 * t.q_RxlevMin + 1, "dBm", t.q_RxlevMin));
  }
  /* Qrxlevmin's extension: DeltaQrxlevmin in steps of 2 dB. */
  const umts_sib3_v4b0_nce& v4b0 = s3.v4b0NonCriticalExtensions;
  const umts_sib3_v590ext& v590 = v4b0.v590NonCriticalExtension.sysInfoType3_v590ext;
  if ((v4b0.presence_bitmask & 1u) && (v590.presence_bitmask & 1u) &&
      (v590.cellSelectReselectInfo_v590ext.presence_bitmask & 1u)) {
    const int d = v590.cellSelectReselectInfo_v590ext.deltaQrxlevmin;
    n.add("delta_q_rxlevmin", quantity(2 * d, "dB", d));
  }
  n.add("q_hyst1_s", quantity(2 * s.q_Hyst_l_S, "dB", s.q_Hyst_l_S));
  if (q == 1 && (s.cellSelectQualityMeasure.u.cpich_Ec_N0.presence_bitmask & 1u)) {
    const int h2 = s.cellSelectQualityMeasure.u.cpich_Ec_N0.q_HYST_2_S;
    n.add("q_hyst2_s", quantity(2 * h2, "dB", h2));
  }
  n.add("t_reselection", quantity(s.t_Reselection_S, "s", s.t_Reselection_S));
  n.add("max_allowed_ul_tx_power", quantity(s.maxAllowedUL_TX_Power, "dBm", s.maxAllowedUL_TX_Power));
  if (s.presence_bitmask & 2u) {
    const umts_hcs_serving_cell_information& h = s.hcs_ServingCellInformation;
    n.add("hcs", SummaryNode::object()
                     .add("priority", static_cast<unsigned>(h.hcs_PRIO))
                     .add("q_hcs_coded", static_cast<unsigned>(h.q_HCS)));
  } else {
    n.add("hcs", missing("no HCS serving cell information"));
  }
  return n;
}

SummaryNode summary_schedule(const CellRecords& cell) {
  SummaryNode list = SummaryNode::list();
  if (!cell.has(umts_sib_mib)) return missing(block_missing(cell, umts_sib_mib));
  const umts_mib_info& mib = cell.records().mib;
  /* The MIB itself: every eighth frame, at SFN mod 8 = 0. */
  SummaryNode m = SummaryNode::object();
  m.add("sib", "masterInformationBlock").add("announced_by", "fixed").add("repetition_frames", 8)
      .add("position_frame", 0).add("segment_count", 1).add("segment_frames", SummaryNode::list().push(0))
      .add("value_tag", static_cast<unsigned>(mib.mib_ValueTag)).add("seen", true);
  list.push(std::move(m));
  const umts_sibsb_reference_list& l = mib.sibSb_ReferenceList;
  for (unsigned i = 0; i < l.count && i < 32; i++) {
    const uint32_t tag = l.entries[i].sibSb_Type.choice_tag;
    list.push(schedule_entry(cell, alternative(kSibSbTypes, 32, tag), l.entries[i].scheduling, "mib",
                             value_tag(tag, l.entries[i].sibSb_Type.u, false)));
  }
  schedule_of_ext(cell, ext_lists(mib), "mib", list);
  if (cell.has(umts_sib_sb1)) schedule_of_sb(cell, cell.records().sb1, "sb1", list);
  if (cell.has(umts_sib_sb2)) schedule_of_sb(cell, cell.records().sb2, "sb2", list);
  return list;
}

SummaryNode summary_common_channels(const CellRecords& cell) {
  if (!cell.has(umts_sib_sib5)) return missing(block_missing(cell, umts_sib_sib5));
  const umts_sib5_info& s = cell.records().sib5;
  SummaryNode n = SummaryNode::object();
  n.add("prach_count", static_cast<unsigned>(s.prach_SystemInformationList.count));
  n.add("sccpch_count", static_cast<unsigned>(s.sCCPCH_SystemInformationList.count));
  if (s.modeSpecificInfo.choice_tag == 1) {
    const int aich = s.modeSpecificInfo.u.fdd.aich_PowerOffset;
    n.add("aich_power_offset", quantity(aich, "dB", aich));
  }
  n.add("pich_power_offset", quantity(s.pich_PowerOffset, "dB", s.pich_PowerOffset));
  /* The extension chain: HSDPA cell (v680), E-DCH cell (v690), HS-DSCH in CELL_FACH (v770),
     common E-DCH (v890). */
  bool hsdpa = false, edch = false, hs_dsch_fach = false, common_edch = false;
  const umts_sib5_v4b0_nces& v4b0 = s.v4b0NonCriticalExtensions;
  const umts_sib5_v590_nces& v590 = v4b0.v590NonCriticalExtensions;
  const umts_sib5_v650_nces& v650 = v590.v650NonCriticalExtensions;
  const umts_sib5_v680_nces& v680 = v650.v680NonCriticalExtensions;
  const umts_sib5_v690_nces& v690 = v680.v690NonCriticalExtensions;
  const umts_sib5_v770_nces& v770 = v690.v770NonCriticalExtensions;
  const umts_sib5_v860_nces& v860 = v770.v860NonCriticalExtensions;
  const umts_sib5_v890_nces& v890 = v860.v890NonCriticalExtensions;
  if ((s.presence_bitmask & 4u) && (v4b0.presence_bitmask & 2u) && (v590.presence_bitmask & 2u) &&
      (v650.presence_bitmask & 2u)) {
    hsdpa = (v680.presence_bitmask & 1u) && (v680.sysInfoType5_v680ext.presence_bitmask & 1u);
    if (v680.presence_bitmask & 2u) {
      edch = (v690.sysInfoType5_v690ext.presence_bitmask & 1u) != 0;
      if (v690.presence_bitmask & 1u) {
        const umts_sib5_v770ext& e770 = v770.sysInfoType5_v770ext;
        hs_dsch_fach = (e770.presence_bitmask & 1u) && e770.modeSpecificInfo.choice_tag == 1;
        if ((v770.presence_bitmask & 1u) && (v860.presence_bitmask & 1u))
          common_edch = (v890.sysInfoType5_v890ext.presence_bitmask & 2u) != 0;
      }
    }
  }
  n.add("hsdpa_cell", hsdpa).add("hs_dsch_in_cell_fach", hs_dsch_fach);
  n.add("edch_cell", edch).add("common_edch", common_edch);
  return n;
}

SummaryNode summary_neighbours(const CellRecords& cell) {
  if (!cell.has(umts_sib_sib11)) return missing(block_missing(cell, umts_sib_sib11));
  const umts_measurement_control_sys_info& m = cell.records().sib11.measurementControlSysInfo;
  SummaryNode intra = SummaryNode::list(), inter = SummaryNode::list(), gsm = SummaryNode::list();
  SummaryNode n = SummaryNode::object();
  const uint32_t hcs = m.use_of_HCS.choice_tag;
  n.add("use_of_hcs", named(hcs == 1 ? "hcs-not-used" : hcs == 2 ? "hcs-used" : "unknown", hcs));
  uint32_t quality = 0;
  if (hcs == 1) {
    const umts_hcs_not_used& h = m.use_of_HCS.u.hcs_not_used;
    quality = h.cellSelectQualityMeasure.choice_tag;
    if (quality == 1) utran_lists(h.cellSelectQualityMeasure.u.cpich_RSCP, intra, inter);
    if (quality == 2) utran_lists(h.cellSelectQualityMeasure.u.cpich_Ec_N0, intra, inter);
    if ((h.presence_bitmask & 1u) && (h.interRATMeasurementSysInfo.presence_bitmask & 1u))
      gsm_list(h.interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList, true, gsm);
  } else if (hcs == 2) {
    const umts_hcs_used& h = m.use_of_HCS.u.hcs_used;
    quality = h.cellSelectQualityMeasure.choice_tag;
    if (quality == 1) utran_lists(h.cellSelectQualityMeasure.u.cpich_RSCP, intra, inter);
    if (quality == 2) utran_lists(h.cellSelectQualityMeasure.u.cpich_Ec_N0, intra, inter);
    if ((h.presence_bitmask & 1u) && (h.interRATMeasurementSysInfo.presence_bitmask & 1u))
      gsm_list(h.interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList, false, gsm);
  }
  n.add("quality_measure", named(quality == 1 ? "cpich-RSCP" : quality == 2 ? "cpich-Ec-N0" : "unknown", quality));
  n.add("intra_frequency", intra).add("inter_frequency", inter).add("gsm", gsm);
  return n;
}

SummaryNode cell_summary(const CellRecords& cell) {
  SummaryNode n = SummaryNode::object();
  n.add("cell", cell.label());
  SummaryNode blocks = SummaryNode::list();
  for (uint32_t i = 0; i < umts_sib_count; i++)
    if (cell.has(static_cast<umts_sib_id>(i))) blocks.push(umts_sib_name(static_cast<umts_sib_id>(i)));
  if (!cell.sib19().empty()) blocks.push("sib19");
  n.add("blocks_received", blocks);
  n.add("identity", summary_identity(cell));
  n.add("access", summary_access(cell));
  n.add("selection", summary_selection(cell));
  n.add("schedule", summary_schedule(cell));
  n.add("common_channels", summary_common_channels(cell));
  n.add("neighbours", summary_neighbours(cell));
  n.add("priorities", summary_priorities(cell));
  return n;
}

void CellCollection::take(const std::string& key, const std::string& label, const umts_sib_set* set,
                          std::vector<SummaryNode>* ended) {
  if (set->presence_bitmask == 0) return;
  take(cell(key, label), set, ended);
}

void CellCollection::take(CellRecords& c, const umts_sib_set* set, std::vector<SummaryNode>* ended) {
  if (set->presence_bitmask == 0) return;
  if (c.configuration_changes(set)) {
    SummaryNode n = cell_summary(c);
    /* Right after the cell's name: what ended this configuration. */
    char why[80];
    std::snprintf(why, sizeof why, "MIB value tag %u changed to %u", static_cast<unsigned>(c.records().mib.mib_ValueTag),
                  static_cast<unsigned>(set->mib.mib_ValueTag));
    n.members.insert(n.members.begin() + 1, {"ended_by", SummaryNode(why)});
    if (ended != nullptr) ended->push_back(std::move(n));
    c.reset();
  }
  c.take(set);
}

bool sib19_scheduled_at(const CellRecords& cell, unsigned sfn, unsigned segment) {
  for (const auto& by : ext_schedules(cell)) {
    const umts_ext_sib_type_info_scheduling_info_list2* l = by.second.v860;
    for (unsigned i = 0; l != nullptr && i < l->count && i < 32; i++) {
      unsigned rep = 0, frame = 0;
      if (l->entries[i].extensionSIB_Type2 == 1 /* systemInfoType19 */ &&
          segment_frame(l->entries[i].schedulingInfo, segment, &rep, &frame) && sfn % rep == frame)
        return true;
    }
  }
  return false;
}

/* ---- Where the summaries go -------------------------------------------------------------- */

namespace {

const char kDropped[] = "datagrams_dropped_by_kernel";

}  // namespace

void SummaryWriter::write(const SummaryNode& summary) {
  any_ = true;
  SummaryNode live;
  if (live_) {
    live = summary;
    auto at = live.members.begin();
    while (at != live.members.end() && at->first != "blocks_received") ++at;
    live.members.insert(at == live.members.end() ? at : at + 1, {kDropped, SummaryNode(static_cast<unsigned long>(dropped_))});
  }
  const SummaryNode& n = live_ ? live : summary;
  if (format_ == "html") {
    page_.push_back(n);
  } else if (format_ == "json") {
    std::fprintf(out_, "%s\n", summary_json(n).c_str());
  } else {
    std::fprintf(out_, "%s%s", wrote_text_ ? "\n" : "", summary_text(n).c_str());
    wrote_text_ = true;
  }
  std::fflush(out_);
}

void SummaryWriter::finish(const CellCollection& cells) {
  std::vector<const CellRecords*> order;
  for (const auto& cell : cells.cells()) order.push_back(cell.get());
  finish(order);
}

void SummaryWriter::finish(const std::vector<const CellRecords*>& cells) {
  for (const CellRecords* cell : cells) write(cell_summary(*cell));
  if (!any_) {
    const std::string dropped = std::to_string(dropped_);
    if (format_ == "json")
      std::fprintf(out_, "{\"cell\":null,\"missing\":\"no block of any cell was converted\"%s}\n",
                   live_ ? (",\"" + std::string(kDropped) + "\":" + dropped).c_str() : "");
    else if (format_ == "text")
      std::fprintf(out_, "no block of any cell was converted\n%s",
                   live_ ? (std::string(kDropped) + ": " + dropped + "\n").c_str() : "");
  }
  if (format_ == "html") {
    const std::string page = summary_html(page_, live_ && page_.empty() ? std::to_string(dropped_) : std::string());
    std::fwrite(page.data(), 1, page.size(), out_);
  }
  std::fflush(out_);
}

bool summary_value_text(const SummaryNode& node, std::string* out) {
  std::string text;
  if (!inline_text(node, text)) return false;
  *out = text;
  return true;
}

std::string summary_json(const SummaryNode& node) {
  std::string out;
  json_node(out, node);
  return out;
}

std::string summary_text(const SummaryNode& cell) {
  std::string out;
  const SummaryNode* label = cell.find("cell");
  out += "cell " + (label ? label->text : std::string()) + "\n";
  /* A section takes a line per member; what it holds may go on one line. */
  for (const auto& m : cell.members) {
    if (m.first == "cell") continue;
    if (m.second.kind == SummaryNode::Object && m.second.find("missing") == nullptr) {
      out += "  " + m.first + ":\n";
      for (const auto& member : m.second.members) text_node(out, member.first, member.second, 2);
    } else {
      text_node(out, m.first, m.second, 1);
    }
  }
  return out;
}
