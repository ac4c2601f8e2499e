/*
 * SIB19 in the per-cell summary. The library keeps no record of SIB19, so its segments are
 * taken from each transport block through the codec: a part of SIB-Type extensionType is
 * SIB19's when the cell's MIB, SB1 or SB2 schedules SIB19's segment of that index in the
 * block's frame; the pieces are joined bit by bit as the cell cut them, and the whole SIB is
 * decoded by the codec when the summary is made.
 */
#include <cstring>

#include "summary.h"
#include "umts_rrc.h"
#include "umts_rrc_rt.h"

namespace {

/* Appends the first `bits` bits of `data` (first bit at the top of data[0]) at bit `*at`. */
void append_bits(std::vector<uint8_t>& out, uint32_t* at, const uint8_t* data, uint32_t bits) {
  for (uint32_t i = 0; i < bits; i++, ++*at) {
    if ((*at & 7u) == 0) out.push_back(0);
    if (data[i >> 3] & (0x80u >> (i & 7u))) out.back() = static_cast<uint8_t>(out.back() | (0x80u >> (*at & 7u)));
  }
}

/* The bits of a decoded bit string, within its array. */
template <class Data>
uint32_t bits_of(const Data& d) {
  return d.numbits < 8u * sizeof d.data ? d.numbits : 8u * static_cast<uint32_t>(sizeof d.data);
}

bool is_extension(SIB_Type type) { return type == UMTS_SIB_Type_extensionType; }

SummaryNode missing(const char* why) { return SummaryNode::object().add("missing", why); }

/* A value of `factor` x coded (+ `offset`) in `unit`, with the coded value. */
SummaryNode scaled(long coded, long factor, long offset, const char* unit) {
  return SummaryNode::object().add("value", coded * factor + offset).add("unit", unit).add("coded", coded);
}

template <class T>
const T& item(const rtxDListNode* node) {
  return *static_cast<const T*>(node->data);
}

SummaryNode utra_serving(const UTRA_PriorityInfoList_utra_ServingCell& s) {
  SummaryNode n = SummaryNode::object();
  n.add("priority", static_cast<unsigned>(s.priority));
  n.add("s_priority_search1", scaled(s.s_PrioritySearch1, 2, 0, "dB"));
  if (s.m & 1u) n.add("s_priority_search2", scaled(s.s_PrioritySearch2, 1, 0, "dB"));
  else n.add("s_priority_search2", scaled(0, 1, 0, "dB")); /* its default */
  n.add("thresh_serving_low", scaled(s.threshServingLow, 2, 0, "dB"));
  return n;
}

SummaryNode utra_frequencies(const SysInfoType19& sib) {
  SummaryNode list = SummaryNode::list();
  if ((sib.utra_PriorityInfoList.m & 1u) == 0) return list;
  for (const rtxDListNode* p = sib.utra_PriorityInfoList.utran_FDD_FrequencyList.head; p != nullptr; p = p->next) {
    const UTRAN_FDD_Frequency& f = item<UTRAN_FDD_Frequency>(p);
    SummaryNode n = SummaryNode::object();
    n.add("uarfcn", static_cast<unsigned>(f.uarfcn)).add("priority", static_cast<unsigned>(f.priority));
    n.add("thresh_x_high", scaled(f.threshXhigh, 2, 0, "dB")).add("thresh_x_low", scaled(f.threshXlow, 2, 0, "dB"));
    if (f.m & 1u) n.add("q_qualmin_fdd", scaled(f.qQualMinFDD, 1, 0, "dB"));
    if (f.m & 2u) n.add("q_rxlevmin_fdd", scaled(f.qRxLevMinFDD, 2, 1, "dBm"));
    list.push(std::move(n));
  }
  return list;
}

SummaryNode gsm_groups(const SysInfoType19& sib) {
  SummaryNode list = SummaryNode::list();
  if ((sib.m & 1u) == 0) return list;
  for (const rtxDListNode* p = sib.gsm_PriorityInfoList.head; p != nullptr; p = p->next) {
    const GSM_PriorityInfo& g = item<GSM_PriorityInfo>(p);
    SummaryNode n = SummaryNode::object();
    n.add("starting_arfcn", static_cast<unsigned>(g.gsmCellGroup.startingARFCN));
    n.add("band", SummaryNode::object()
                      .add("name", UMTS_GSM_CellGroup_bandIndicator_ToString(g.gsmCellGroup.bandIndicator))
                      .add("coded", static_cast<unsigned>(g.gsmCellGroup.bandIndicator)));
    n.add("priority", static_cast<unsigned>(g.priority));
    n.add("q_rxlevmin_gsm", scaled(g.qRxLevMinGSM, 2, 1, "dBm"));
    n.add("thresh_x_high", scaled(g.threshXhigh, 2, 0, "dB")).add("thresh_x_low", scaled(g.threshXlow, 2, 0, "dB"));
    list.push(std::move(n));
  }
  return list;
}

SummaryNode eutra_frequencies(const SysInfoType19& sib) {
  SummaryNode list = SummaryNode::list();
  if ((sib.m & 2u) == 0) return list;
  for (const rtxDListNode* p = sib.eutra_FrequencyAndPriorityInfoList.head; p != nullptr; p = p->next) {
    const EUTRA_FrequencyAndPriorityInfo& f = item<EUTRA_FrequencyAndPriorityInfo>(p);
    SummaryNode n = SummaryNode::object();
    n.add("earfcn", static_cast<unsigned>(f.earfcn));
    if (f.m & 1u)
      n.add("measurement_bandwidth", SummaryNode::object()
                                         .add("name", UMTS_EUTRA_MeasurementBandwidth_ToString(f.measurementBandwidth))
                                         .add("coded", static_cast<unsigned>(f.measurementBandwidth)));
    n.add("priority", static_cast<unsigned>(f.priority));
    n.add("q_rxlevmin_eutra", scaled(f.qRxLevMinEUTRA, 2, 0, "dBm"));
    n.add("thresh_x_high", scaled(f.threshXhigh, 2, 0, "dB")).add("thresh_x_low", scaled(f.threshXlow, 2, 0, "dB"));
    n.add("blacklisted_cells", static_cast<unsigned>((f.m & 2u) ? f.eutra_blackListedCellList.count : 0u));
    n.add("eutra_detection", f.eutraDetection != 0);
    list.push(std::move(n));
  }
  return list;
}

}  // namespace

/* ---- Collection -------------------------------------------------------------------------- */

void CellRecords::sib19_first(unsigned sfn, unsigned count, const uint8_t* data, uint32_t bits) {
  if (!sib19_scheduled_at(*this, sfn, 0)) return;
  sib19_part_ = Collection();
  append_bits(sib19_part_.bytes, &sib19_part_.bits, data, bits);
  sib19_part_.next = 1;
  sib19_part_.total = count;
}

void CellRecords::sib19_segment(unsigned sfn, unsigned index, const uint8_t* data, uint32_t bits, bool last) {
  if (!sib19_scheduled_at(*this, sfn, index)) return;
  /* A segment out of order (one was missed): the SIB is dropped until its next first segment. */
  if (sib19_part_.next == 0 || index != sib19_part_.next || index >= sib19_part_.total) {
    sib19_part_ = Collection();
    return;
  }
  append_bits(sib19_part_.bytes, &sib19_part_.bits, data, bits);
  sib19_part_.next++;
  if (!last) return;
  if (sib19_part_.next == sib19_part_.total) sib19_ = sib19_part_.bytes;
  sib19_part_ = Collection();
}

void CellRecords::take_block(const uint8_t* block, size_t length) {
  /* Until the MIB or a scheduling block has said where SIB19 is, no part can be placed. */
  if (!has(umts_sib_mib) || length == 0 || length > 64) return;
  rtxContext ctx;
  if (rtInitContext(&ctx) != 0) return;
  BCCH_BCH_Message msg;
  std::memset(&msg, 0, sizeof msg);
  if (pu_setBuffer(&ctx, block, static_cast<uint32_t>(length), 0) != 0 || asn1PD_UMTS_BCCH_BCH_Message(&ctx, &msg) != 0) {
    rtFreeContext(&ctx);
    return;
  }
  const unsigned sfn = 2u * msg.message.sfn_Prime; /* the block's first frame */
  const SystemInformation_BCH_payload& p = msg.message.payload;

  auto last = [&](const LastSegmentShort& s) {
    if (is_extension(s.sib_Type)) sib19_segment(sfn, s.segmentIndex, s.sib_Data_variable.data, bits_of(s.sib_Data_variable), true);
  };
  auto first = [&](const FirstSegmentShort& s) {
    if (is_extension(s.sib_Type)) sib19_first(sfn, s.seg_Count, s.sib_Data_variable.data, bits_of(s.sib_Data_variable));
  };
  auto complete = [&](SIB_Type type, const uint8_t* data, uint32_t bits) {
    if (!is_extension(type) || !sib19_scheduled_at(*this, sfn, 0)) return;
    std::vector<uint8_t> whole;
    uint32_t at = 0;
    append_bits(whole, &at, data, bits);
    sib19_ = whole;
  };
  auto list = [&](const CompleteSIB_List& l) {
    for (const rtxDListNode* n = l.head; n != nullptr; n = n->next) {
      const CompleteSIBshort& c = item<CompleteSIBshort>(n);
      complete(c.sib_Type, c.sib_Data_variable.data, bits_of(c.sib_Data_variable));
    }
  };

  switch (p.t) {
    case 2: {
      const FirstSegment& s = *p.u.firstSegment;
      if (is_extension(s.sib_Type)) sib19_first(sfn, s.seg_Count, s.sib_Data_fixed.data, bits_of(s.sib_Data_fixed));
      break;
    }
    case 3: {
      const SubsequentSegment& s = *p.u.subsequentSegment;
      if (is_extension(s.sib_Type)) sib19_segment(sfn, s.segmentIndex, s.sib_Data_fixed.data, bits_of(s.sib_Data_fixed), false);
      break;
    }
    case 4: last(*p.u.lastSegmentShort); break;
    case 5:
      last(p.u.lastAndFirst->lastSegmentShort);
      first(p.u.lastAndFirst->firstSegment);
      break;
    case 6:
      last(p.u.lastAndComplete->lastSegmentShort);
      list(p.u.lastAndComplete->completeSIB_List);
      break;
    case 7:
      last(p.u.lastAndCompleteAndFirst->lastSegmentShort);
      list(p.u.lastAndCompleteAndFirst->completeSIB_List);
      first(p.u.lastAndCompleteAndFirst->firstSegment);
      break;
    case 8: list(*p.u.completeSIB_List); break;
    case 9:
      list(p.u.completeAndFirst->completeSIB_List);
      first(p.u.completeAndFirst->firstSegment);
      break;
    case 10: {
      const CompleteSIB& c = *p.u.completeSIB;
      complete(c.sib_Type, c.sib_Data_fixed.data, bits_of(c.sib_Data_fixed));
      break;
    }
    case 11: {
      const LastSegment& s = *p.u.lastSegment;
      if (is_extension(s.sib_Type)) sib19_segment(sfn, s.segmentIndex, s.sib_Data_fixed.data, bits_of(s.sib_Data_fixed), true);
      break;
    }
    default: break;
  }
  rtFreeContext(&ctx);
}

/* ---- The section ------------------------------------------------------------------------- */

SummaryNode summary_priorities(const CellRecords& cell) {
  if (cell.sib19().empty()) {
    bool announced = false;
    for (unsigned frame = 0; frame < 4096 && !announced; frame += 2) announced = sib19_scheduled_at(cell, frame, 0);
    return missing(announced ? "SIB19 not received" : "no SIB19 announced");
  }
  rtxContext ctx;
  if (rtInitContext(&ctx) != 0) return missing("out of memory");
  SysInfoType19 sib;
  std::memset(&sib, 0, sizeof sib);
  const std::vector<uint8_t>& bytes = cell.sib19();
  SummaryNode n;
  if (pu_setBuffer(&ctx, bytes.data(), static_cast<uint32_t>(bytes.size()), 0) != 0 ||
      asn1PD_UMTS_SysInfoType19(&ctx, &sib) != 0) {
    n = missing("SIB19 received, but it does not decode");
  } else {
    n = SummaryNode::object();
    n.add("serving_cell", utra_serving(sib.utra_PriorityInfoList.utra_ServingCell));
    n.add("utra_fdd_frequencies", utra_frequencies(sib));
    n.add("gsm_cell_groups", gsm_groups(sib));
    n.add("eutra_frequencies", eutra_frequencies(sib));
  }
  rtFreeContext(&ctx);
  return n;
}
