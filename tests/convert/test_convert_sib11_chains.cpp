// The non-critical extension chains of SIB11 (v590 to v860) and SIB12 (v590 to v7b0), with
// their v4b0 records: values built in code, encoded by the codec, converted by the library and
// compared field by field with what was built, level by level, and behind the last level
// present nothing but zeros.
#include <algorithm>
#include <string>

#include "convert_test.h"
#include "umts_sib_json.h"

using namespace converttest;

namespace {

// The i-th element of a decoded list.
template <class T>
const T& at(const rtxDList& list, unsigned i) {
  const rtxDListNode* n = list.head;
  while (i-- > 0) n = n->next;
  return *static_cast<const T*>(n->data);
}

template <class T>
std::vector<uint8_t> bytesOf(const T& value) {
  const uint8_t* b = reinterpret_cast<const uint8_t*>(&value);
  return std::vector<uint8_t>(b, b + sizeof value);
}

// ---- What each level holds ---------------------------------------------------------------------

// v590: the lengths of its three cell lists and of its delta list (0: absent), event 1b
// reporting, and the presence bits of event 1d (-1: absent), which come in all four forms.
struct V590Case {
  const char* name;
  unsigned intra, inter, rat, deltas;
  bool reporting1b;
  int event1d;
};

const V590Case kV590Cases[] = {
    {"empty", 0, 0, 0, 0, false, -1},
    {"longest lists", 32, 32, 32, 8, true, 3},
    {"one of each", 1, 1, 1, 1, true, 0},
    {"intra-frequency cells only", 5, 0, 0, 0, false, -1},
    {"inter-RAT cells and 1d triggering", 0, 0, 7, 0, false, 1},
    {"deltas and 1d useCIO", 0, 3, 0, 4, false, 2},
};

// The mode of the RACH reporting of v690 (dummy: tags 1 to 4) and v6b0 (tags 1 and 2).
struct RachCase {
  const char* name;
  uint32_t tag;
  uint32_t fdd;                 // tag 1
  std::vector<uint32_t> tdd;    // tag 2
  int8_t threshold;             // tag 3 of the dummy; beside the choice in v6b0
  uint8_t maxCells;             // tag 4 of the dummy; beside the choice in v6b0
  std::vector<uint8_t> unionBytes;  // the dummy's union, by hand (little-endian)
};

const RachCase kRachCases[] = {
    {"fdd cpich-RSCP", 1, 1, {}, -115, 1, {1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"fdd cpich-EcN0", 1, 0, {}, 0, 8, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"tdd one entry", 2, 0, {1}, -50, 3, {1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}},
    {"tdd two entries", 2, 0, {1, 0}, -1, 4, {2, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}},
    // -87 is 0xA9: one byte at the start of the union, where tag 1 keeps its quantity.
    {"threshold", 3, 0, {}, -87, 5, {0xA9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    {"cell count", 4, 0, {}, -20, 6, {6, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
};

struct Levels {
  int fachLcr = 1;        // the v4b0 byte: -1 absent
  uint32_t lcrTag = 1;    // use_of_HCS of the LCR tree
  V590Case v590 = kV590Cases[1];
  RachCase dummy = kRachCases[3];
  RachCase rach = kRachCases[2];
  unsigned mbsfn = 16;    // v770; 0..16, or absent with mbsfnPresent false
  bool mbsfnPresent = true;
  unsigned v7b0 = 32;     // 0: absent
  unsigned mbsfn860 = 16;
  bool mbsfn860Present = true;
};

// ---- Builders, shared by the decoded types of both blocks --------------------------------------

void buildCells(Pool& p, rtxDList& list, unsigned n, unsigned salt) {
  for (unsigned i = 0; i < n; i++) {
    CellSelectReselectInfo_v590ext* c = p.add<CellSelectReselectInfo_v590ext>(list);
    c->m = (i + salt) % 4;
    c->deltaQrxlevmin = static_cast<int8_t>(-1 - static_cast<int>((i + salt) % 2));
    c->deltaQhcs = static_cast<int8_t>(-1 - static_cast<int>((i + salt) % 5));
  }
}

template <class Ies>
void buildV590(Pool& p, Ies& e, const V590Case& c) {
  e.m = (c.intra ? 1u : 0u) | (c.inter ? 2u : 0u) | (c.rat ? 4u : 0u);
  buildCells(p, e.newIntraFrequencyCellInfoList_v590ext, c.intra, 0);
  buildCells(p, e.newInterFrequencyCellInfoList_v590ext, c.inter, 1);
  buildCells(p, e.newInterRATCellInfoList_v590ext, c.rat, 2);
  if (c.deltas) {
    e.m |= 8u;
    e.intraFreqEventCriteriaList_v590ext.n = c.deltas;
    for (unsigned i = 0; i < c.deltas; i++)
      e.intraFreqEventCriteriaList_v590ext.elem[i] = static_cast<int8_t>(-5 + static_cast<int>(i % 5));
  }
  if (c.reporting1b) {
    e.m |= 16u;
    e.intraFreqReportingCriteria_1b_r5.periodicReportingInfo_1b.reportingAmount = 7;  // ra-Infinity
    e.intraFreqReportingCriteria_1b_r5.periodicReportingInfo_1b.reportingInterval = 5;  // ri4
  }
  if (c.event1d >= 0) {
    e.m |= 32u;
    e.intraFreqEvent_1d_r5.m = static_cast<uint32_t>(c.event1d);
    e.intraFreqEvent_1d_r5.triggeringCondition = 4;  // detectedSetAndMonitoredSetCells
    e.intraFreqEvent_1d_r5.useCIO = 1;
  }
}

void buildDummy(Pool& p, Dummy_InterFreqRACHReportingInfo& d, const RachCase& c) {
  auto& mode = d.modeSpecificInfo;
  mode.t = c.tag;
  if (c.tag == 1) {
    mode.u.fdd = p.make<Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_fdd>();
    mode.u.fdd->interFreqRepQuantityRACH_FDD = c.fdd;
  } else if (c.tag == 2) {
    mode.u.tdd = p.make<Dummy_InterFreqRACHReportingInfo_modeSpecificInfo_tdd>();
    mode.u.tdd->interFreqRepQuantityRACH_TDDList.n = static_cast<uint32_t>(c.tdd.size());
    for (size_t i = 0; i < c.tdd.size(); i++) mode.u.tdd->interFreqRepQuantityRACH_TDDList.elem[i] = c.tdd[i];
  } else if (c.tag == 3) {
    mode.u.interFreqRACHReportingThreshold = c.threshold;
  } else {
    mode.u.maxReportedCellsOnRACHinterFreq = c.maxCells;
  }
}

void buildRach(Pool& p, InterFreqRACHReportingInfo& r, const RachCase& c) {
  auto& mode = r.modeSpecificInfo;
  mode.t = c.tag;
  if (c.tag == 1) {
    mode.u.fdd = p.make<InterFreqRACHReportingInfo_modeSpecificInfo_fdd>();
    mode.u.fdd->interFreqRepQuantityRACH_FDD = c.fdd;
  } else {
    mode.u.tdd = p.make<InterFreqRACHReportingInfo_modeSpecificInfo_tdd>();
    mode.u.tdd->interFreqRepQuantityRACH_TDDList.n = static_cast<uint32_t>(c.tdd.size());
    for (size_t i = 0; i < c.tdd.size(); i++) mode.u.tdd->interFreqRepQuantityRACH_TDDList.elem[i] = c.tdd[i];
  }
  r.interFreqRACHReportingThreshold = c.threshold;
  r.maxReportedCellsOnRACHinterFreq = c.maxCells;
}

// MBSFN frequency i: fdd at even, tdd at odd indices; cellParametersID on every third.
void buildMbsfn(Pool& p, rtxDList& list, unsigned n) {
  for (unsigned i = 0; i < n; i++) {
    MBSFNFrequency* f = p.add<MBSFNFrequency>(list);
    auto& mode = f->frequencyInfo.modeSpecificInfo;
    mode.t = 1 + i % 2;
    if (mode.t == 1) {
      mode.u.fdd = p.make<FrequencyInfoFDD>();
      mode.u.fdd->m = (i / 2) % 2;
      mode.u.fdd->uarfcn_UL = static_cast<uint16_t>(9612 + i);
      mode.u.fdd->uarfcn_DL = static_cast<uint16_t>(10562 + i);
    } else {
      mode.u.tdd = p.make<FrequencyInfoTDD>();
      mode.u.tdd->uarfcn_Nt = static_cast<uint16_t>(9500 + i);
    }
    if (i % 3 == 0) {
      f->m = 1;
      f->cellParametersID = static_cast<uint8_t>((i * 8 + 5) % 128);
    }
  }
}

void buildMbsfn860(Pool& p, rtxDList& list, unsigned n) {
  for (unsigned i = 0; i < n; i++) p.add<MBSFNFrequency_v860ext>(list)->m = i % 2 == 0 ? 1u : 0u;  // imb true
}

template <class Ies>
void buildV7b0(Pool& p, Ies& e, unsigned n) {
  if (n == 0) return;
  e.m = 1;
  for (unsigned i = 0; i < n; i++)
    p.add<NewInterFreqCell_v7b0ext>(e.newInterFreqCellList)->intraSecondaryFreqIndicator = i % 3 == 0 || i == n - 1;
}

template <class V4b0>
void buildV4b0(Pool& p, V4b0& e, const Levels& lv) {
  if (lv.fachLcr >= 0) {
    e.m = 1;
    e.fach_MeasurementOccasionInfo_LCR_Ext.inter_freq_TDD128_meas_ind = static_cast<uint8_t>(lv.fachLcr);
  }
  auto& use = e.measurementControlSysInfo_LCR.use_of_HCS;
  use.t = lv.lcrTag;
  if (lv.lcrTag == 1) {
    use.u.hcs_not_used = p.make<MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used>();
    use.u.hcs_not_used->cellSelectQualityMeasure.t = 1;
    use.u.hcs_not_used->cellSelectQualityMeasure.u.cpich_RSCP =
        p.make<MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP>();
  } else {
    use.u.hcs_used = p.make<MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used>();
    use.u.hcs_used->cellSelectQualityMeasure.t = 2;
    use.u.hcs_used->cellSelectQualityMeasure.u.cpich_Ec_N0 =
        p.make<MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0>();
  }
}

// The smallest measurement control information: hcs_not_used, cpich_RSCP, no member.
void buildMeasurementControl(Pool& p, MeasurementControlSysInfo& mc) {
  mc.use_of_HCS.t = 1;
  mc.use_of_HCS.u.hcs_not_used = p.make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used>();
  mc.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.t = 1;
  mc.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.u.cpich_RSCP =
      p.make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP>();
}

// A SIB11 whose chain reaches `depth`: 0 v4b0 only, 1 v590, 2 v690, 3 v6b0, 4 v770, 5 v7b0,
// 6 v860, 7 the last byte. Every level is filled, also those that the depth leaves out (the
// encoder does not write them).
SysInfoType11 buildSib11(Pool& p, unsigned depth, const Levels& lv) {
  SysInfoType11 s{};
  s.sib12indicator = 1;
  buildMeasurementControl(p, s.measurementControlSysInfo);
  s.m = 2;
  auto& head = s.v4b0NonCriticalExtensions;
  head.m = 1u | (depth >= 1 ? 2u : 0u);
  buildV4b0(p, head.sysInfoType11_v4b0ext, lv);
  auto& l590 = head.v590NonCriticalExtension;
  buildV590(p, l590.sysInfoType11_v590ext, lv.v590);
  l590.m = depth >= 2;
  auto& l690 = l590.v690NonCriticalExtensions;
  l690.sysInfoType11_v690ext.m = 1;
  buildDummy(p, l690.sysInfoType11_v690ext.dummy, lv.dummy);
  l690.m = depth >= 3;
  auto& l6b0 = l690.v6b0NonCriticalExtensions;
  l6b0.sysInfoType11_v6b0ext.m = 1;
  buildRach(p, l6b0.sysInfoType11_v6b0ext.interFreqRACHReportingInfo, lv.rach);
  l6b0.m = depth >= 4;
  auto& l770 = l6b0.v770NonCriticalExtensions;
  l770.sysInfoType11_v770ext.m = lv.mbsfnPresent;
  buildMbsfn(p, l770.sysInfoType11_v770ext.mbsfnFrequencyList, lv.mbsfn);
  l770.m = depth >= 5;
  auto& l7b0 = l770.v7b0NonCriticalExtensions;
  buildV7b0(p, l7b0.sysInfoType11_v7b0ext, lv.v7b0);
  l7b0.m = depth >= 6;
  auto& l860 = l7b0.v860NonCriticalExtensions;
  l860.sysInfoType11_v860ext.m = lv.mbsfn860Present;
  buildMbsfn860(p, l860.sysInfoType11_v860ext.mbsfnFrequencyList, lv.mbsfn860);
  l860.m = depth >= 7;
  return s;
}

// The same for SIB12: 0 v4b0 only, 1 v590, 2 v690, 3 v6b0, 4 v7b0, 5 the last byte.
SysInfoType12 buildSib12(Pool& p, unsigned depth, const Levels& lv) {
  SysInfoType12 s{};
  buildMeasurementControl(p, s.measurementControlSysInfo);
  s.m = 2;
  auto& head = s.v4b0NonCriticalExtensions;
  head.m = 1u | (depth >= 1 ? 2u : 0u);
  buildV4b0(p, head.sysInfoType12_v4b0ext, lv);
  auto& l590 = head.v590NonCriticalExtension;
  buildV590(p, l590.sysInfoType12_v590ext, lv.v590);
  l590.m = depth >= 2;
  auto& l690 = l590.v690NonCriticalExtensions;
  l690.sysInfoType12_v690ext.m = 1;
  buildDummy(p, l690.sysInfoType12_v690ext.dummy, lv.dummy);
  l690.m = depth >= 3;
  auto& l6b0 = l690.v6b0NonCriticalExtensions;
  l6b0.sysInfoType12_v6b0ext.m = 1;
  buildRach(p, l6b0.sysInfoType12_v6b0ext.interFreqRACHReportingInfo, lv.rach);
  l6b0.m = depth >= 4;
  auto& l7b0 = l6b0.v7b0NonCriticalExtensions;
  buildV7b0(p, l7b0.sysInfoType12_v7b0ext, lv.v7b0);
  l7b0.m = depth >= 5;
  return s;
}

// ---- Checks, each against the value that was built ---------------------------------------------

void checkCells(bool present, const rtxDList& list, const umts_cell_select_reselect_info_v590ext_list& f) {
  if (!present) {
    EXPECT_TRUE(allZero(f));
    return;
  }
  ASSERT_EQ(f.count, list.count);
  for (unsigned i = 0; i < list.count; i++) {
    const CellSelectReselectInfo_v590ext& c = at<CellSelectReselectInfo_v590ext>(list, i);
    const umts_cell_select_reselect_info_v590ext& g = f.entries[i];
    EXPECT_EQ(g.presence_bitmask, c.m) << i;
    EXPECT_EQ(g.deltaQrxlevmin, c.m & 1u ? c.deltaQrxlevmin : 0) << i;
    EXPECT_EQ(g.deltaQhcs, c.m & 2u ? c.deltaQhcs : 0) << i;
  }
  for (unsigned i = list.count; i < 32; i++) EXPECT_TRUE(allZero(f.entries[i])) << i;
}

template <class Ies>
void checkV590(const Ies& e, const umts_v590ext_ies& f) {
  EXPECT_EQ(f.presence_bitmask, e.m);
  checkCells(e.m & 1u, e.newIntraFrequencyCellInfoList_v590ext, f.newIntraFrequencyCellInfoList_v590ext);
  checkCells(e.m & 2u, e.newInterFrequencyCellInfoList_v590ext, f.newInterFrequencyCellInfoList_v590ext);
  checkCells(e.m & 4u, e.newInterRATCellInfoList_v590ext, f.newInterRATCellInfoList_v590ext);
  const umts_intra_freq_event_criteria_list_v590ext& d = f.intraFreqEventCriteriaList_v590ext;
  const uint32_t deltas = e.m & 8u ? e.intraFreqEventCriteriaList_v590ext.n : 0;
  EXPECT_EQ(d.count, deltas);
  for (unsigned i = 0; i < 8; i++)
    EXPECT_EQ(d.deltaRSCP[i], i < deltas ? e.intraFreqEventCriteriaList_v590ext.elem[i] : 0) << i;
  const umts_periodic_reporting_info_1b& r = f.intraFreqReportingCriteria_1b_r5.periodicReportingInfo_1b;
  EXPECT_EQ(r.reportingAmount, e.m & 16u ? 7u : 0u);
  EXPECT_EQ(r.reportingInterval, e.m & 16u ? 5u : 0u);
  const umts_intra_freq_event_1d_r5& ev = f.intraFreqEvent_1d_r5;
  const uint32_t bits = e.m & 32u ? e.intraFreqEvent_1d_r5.m : 0;
  EXPECT_EQ(ev.presence_bitmask, bits);
  EXPECT_EQ(ev.triggeringCondition, bits & 1u ? 4u : 0u);
  EXPECT_EQ(ev.useCIO, bits & 2u ? 1 : 0);
}

void checkDummy(const RachCase& c, const umts_v690ext_ies& f) {
  EXPECT_EQ(f.presence_bitmask, 1);
  const auto& mode = f.dummy.modeSpecificInfo;
  EXPECT_EQ(mode.choice_tag, c.tag);
  EXPECT_EQ(bytesOf(mode.u), c.unionBytes);
  if (c.tag == 1) {
    EXPECT_EQ(mode.u.interFreqRepQuantityRACH_FDD, c.fdd);
  }
  if (c.tag == 2) {
    EXPECT_EQ(mode.u.interFreqRepQuantityRACH_TDDList.count, c.tdd.size());
    for (size_t i = 0; i < c.tdd.size(); i++) EXPECT_EQ(mode.u.interFreqRepQuantityRACH_TDDList.entries[i], c.tdd[i]);
  }
  if (c.tag == 3) {
    EXPECT_EQ(mode.u.interFreqRACHReportingThreshold, c.threshold);
  }
  if (c.tag == 4) {
    EXPECT_EQ(mode.u.maxReportedCellsOnRACHinterFreq, c.maxCells);
  }
}

void checkRach(const RachCase& c, const umts_v6b0ext_ies& f) {
  EXPECT_EQ(f.presence_bitmask, 1);
  const umts_inter_freq_rach_reporting_info& r = f.interFreqRACHReportingInfo;
  EXPECT_EQ(r.modeSpecificInfo.choice_tag, c.tag);
  umts_inter_freq_rach_reporting_info_mode_specific_info_u expected{};
  if (c.tag == 1) {
    expected.interFreqRepQuantityRACH_FDD = c.fdd;
  } else {
    expected.interFreqRepQuantityRACH_TDDList.count = static_cast<uint32_t>(c.tdd.size());
    for (size_t i = 0; i < c.tdd.size(); i++) expected.interFreqRepQuantityRACH_TDDList.entries[i] = c.tdd[i];
  }
  EXPECT_EQ(bytesOf(r.modeSpecificInfo.u), bytesOf(expected));
  EXPECT_EQ(r.interFreqRACHReportingThreshold, c.threshold);
  EXPECT_EQ(r.maxReportedCellsOnRACHinterFreq, c.maxCells);
}

void checkFrequency(const FrequencyInfo& d, const umts_frequency_info& f) {
  ASSERT_EQ(f.choice_tag, d.modeSpecificInfo.t);
  if (d.modeSpecificInfo.t == 1) {
    const FrequencyInfoFDD& fdd = *d.modeSpecificInfo.u.fdd;
    EXPECT_EQ(f.u.fdd.presence_bitmask, fdd.m);
    EXPECT_EQ(f.u.fdd.uarfcn_UL, fdd.m & 1u ? fdd.uarfcn_UL : 0);
    EXPECT_EQ(f.u.fdd.uarfcn_DL, fdd.uarfcn_DL);
  } else {
    umts_frequency_info_u expected{};
    expected.tdd.uarfcn_Nt = d.modeSpecificInfo.u.tdd->uarfcn_Nt;
    EXPECT_EQ(bytesOf(f.u), bytesOf(expected));
  }
}

void checkMbsfn(bool present, const rtxDList& list, const umts_sib11_v770ext_ies& f) {
  EXPECT_EQ(f.presence_bitmask, present ? 1 : 0);
  const uint32_t n = present ? list.count : 0;
  ASSERT_EQ(f.mbsfnFrequencyList.count, n);
  for (unsigned i = 0; i < n; i++) {
    const MBSFNFrequency& d = at<MBSFNFrequency>(list, i);
    const umts_mbsfn_frequency& g = f.mbsfnFrequencyList.entries[i];
    EXPECT_EQ(g.presence_bitmask, d.m) << i;
    EXPECT_EQ(g.cellParametersID, d.m & 1u ? d.cellParametersID : 0) << i;
    checkFrequency(d.frequencyInfo, g.frequencyInfo);
  }
  for (unsigned i = n; i < 16; i++) EXPECT_TRUE(allZero(f.mbsfnFrequencyList.entries[i])) << i;
}

void checkMbsfn860(bool present, const rtxDList& list, const umts_sib11_v860ext_ies& f) {
  EXPECT_EQ(f.presence_bitmask, present ? 1 : 0);
  const uint32_t n = present ? list.count : 0;
  ASSERT_EQ(f.mbsfnFrequencyList.count, n);
  for (unsigned i = 0; i < n; i++) {
    const umts_mbsfn_frequency_v860ext& g = f.mbsfnFrequencyList.entries[i];
    EXPECT_EQ(g.presence_bitmask, at<MBSFNFrequency_v860ext>(list, i).m) << i;
    EXPECT_EQ(g.imb_Indication, 0u) << i;  // true, the enumeration's one value
  }
  for (unsigned i = n; i < 16; i++) EXPECT_TRUE(allZero(f.mbsfnFrequencyList.entries[i])) << i;
}

template <class Ies>
void checkV7b0(const Ies& e, const umts_v7b0ext_ies& f) {
  EXPECT_EQ(f.presence_bitmask, e.m);
  const uint32_t n = e.m ? e.newInterFreqCellList.count : 0;
  ASSERT_EQ(f.newInterFreqCellList.count, n);
  for (unsigned i = 0; i < 32; i++)
    EXPECT_EQ(f.newInterFreqCellList.intraSecondaryFreqIndicator[i],
              i < n ? at<NewInterFreqCell_v7b0ext>(e.newInterFreqCellList, i).intraSecondaryFreqIndicator : 0)
        << i;
}

template <class V4b0, class Flat>
void checkV4b0(const V4b0& e, const Flat& f) {
  EXPECT_EQ(f.presence_bitmask, e.m);
  EXPECT_EQ(f.fach_MeasurementOccasionInfo_LCR_Ext, e.m ? e.fach_MeasurementOccasionInfo_LCR_Ext.inter_freq_TDD128_meas_ind : 0);
  EXPECT_EQ(f.measurementControlSysInfo_LCR.use_of_HCS.choice_tag, e.measurementControlSysInfo_LCR.use_of_HCS.t);
}

// A link: its bit 0 says whether the next one came; if not, it reads as zero.
template <class Flat, class Next>
bool nextLink(const Flat& link, const Next& next, bool present) {
  EXPECT_EQ(link.presence_bitmask, present ? 1 : 0);
  if (!present) {
    EXPECT_TRUE(allZero(next));
  }
  return present;
}

void checkSib11(const SysInfoType11& s, unsigned depth, const umts_sib11_info& f) {
  EXPECT_EQ(f.presence_bitmask, 2);
  EXPECT_EQ(f.sib12indicator, 1);
  const auto& h = f.v4b0NonCriticalExtensions;
  const auto& d = s.v4b0NonCriticalExtensions;
  EXPECT_EQ(h.presence_bitmask, depth >= 1 ? 3 : 1);
  checkV4b0(d.sysInfoType11_v4b0ext, h.sysInfoType11_v4b0ext);
  if (depth < 1) {
    EXPECT_TRUE(allZero(h.v590NonCriticalExtension));
    return;
  }
  const auto& f590 = h.v590NonCriticalExtension;
  const auto& d590 = d.v590NonCriticalExtension;
  checkV590(d590.sysInfoType11_v590ext, f590.sysInfoType11_v590ext);
  if (!nextLink(f590, f590.v690NonCriticalExtensions, depth >= 2)) return;
  const auto& f690 = f590.v690NonCriticalExtensions;
  const auto& d690 = d590.v690NonCriticalExtensions;
  EXPECT_EQ(d690.sysInfoType11_v690ext.m, 1u);
  if (!nextLink(f690, f690.v6b0NonCriticalExtensions, depth >= 3)) return;
  const auto& f6b0 = f690.v6b0NonCriticalExtensions;
  const auto& d6b0 = d690.v6b0NonCriticalExtensions;
  if (!nextLink(f6b0, f6b0.v770NonCriticalExtensions, depth >= 4)) return;
  const auto& f770 = f6b0.v770NonCriticalExtensions;
  const auto& d770 = d6b0.v770NonCriticalExtensions;
  checkMbsfn(d770.sysInfoType11_v770ext.m, d770.sysInfoType11_v770ext.mbsfnFrequencyList, f770.sysInfoType11_v770ext);
  if (!nextLink(f770, f770.v7b0NonCriticalExtensions, depth >= 5)) return;
  const auto& f7b0 = f770.v7b0NonCriticalExtensions;
  const auto& d7b0 = d770.v7b0NonCriticalExtensions;
  checkV7b0(d7b0.sysInfoType11_v7b0ext, f7b0.sysInfoType11_v7b0ext);
  if (!nextLink(f7b0, f7b0.v860NonCriticalExtensions, depth >= 6)) return;
  const auto& f860 = f7b0.v860NonCriticalExtensions;
  const auto& d860 = d7b0.v860NonCriticalExtensions;
  checkMbsfn860(d860.sysInfoType11_v860ext.m, d860.sysInfoType11_v860ext.mbsfnFrequencyList, f860.sysInfoType11_v860ext);
  // The byte of the empty sequence: set bit 0, and a byte that says nothing.
  EXPECT_EQ(f860.presence_bitmask, depth >= 7 ? 1 : 0);
  EXPECT_EQ(f860.nonCriticalExtensions, 0);
}

void checkSib12(const SysInfoType12& s, unsigned depth, const umts_sib12_info& f) {
  EXPECT_EQ(f.presence_bitmask, 2);
  const auto& h = f.v4b0NonCriticalExtensions;
  const auto& d = s.v4b0NonCriticalExtensions;
  EXPECT_EQ(h.presence_bitmask, depth >= 1 ? 3 : 1);
  checkV4b0(d.sysInfoType12_v4b0ext, h.sysInfoType12_v4b0ext);
  if (depth < 1) {
    EXPECT_TRUE(allZero(h.v590NonCriticalExtension));
    return;
  }
  const auto& f590 = h.v590NonCriticalExtension;
  const auto& d590 = d.v590NonCriticalExtension;
  checkV590(d590.sysInfoType12_v590ext, f590.sysInfoType12_v590ext);
  if (!nextLink(f590, f590.v690NonCriticalExtensions, depth >= 2)) return;
  const auto& f690 = f590.v690NonCriticalExtensions;
  if (!nextLink(f690, f690.v6b0NonCriticalExtensions, depth >= 3)) return;
  const auto& f6b0 = f690.v6b0NonCriticalExtensions;
  if (!nextLink(f6b0, f6b0.v7b0NonCriticalExtensions, depth >= 4)) return;
  const auto& f7b0 = f6b0.v7b0NonCriticalExtensions;
  checkV7b0(d590.v690NonCriticalExtensions.v6b0NonCriticalExtensions.v7b0NonCriticalExtensions.sysInfoType12_v7b0ext,
            f7b0.sysInfoType12_v7b0ext);
  EXPECT_EQ(f7b0.presence_bitmask, depth >= 5 ? 1 : 0);
  EXPECT_EQ(f7b0.nonCriticalExtensions, 0);
}

// The dummy and RACH records, by the levels that hold them, where the depth reaches them.
void checkRachLevels(const Levels& lv, unsigned depth, const umts_v690ext_ies& v690, const umts_v6b0ext_ies& v6b0) {
  if (depth >= 2) checkDummy(lv.dummy, v690);
  if (depth >= 3) checkRach(lv.rach, v6b0);
}

class ConvertChains : public FrameTest {
 protected:
  // One SIB11 and one SIB12 of the levels `lv`, to the depths given (-1: none).
  void both(const Levels& lv, int depth11, int depth12) {
    if (depth11 >= 0) {
      SCOPED_TRACE("SIB11 to depth " + std::to_string(depth11));
      Pool p;
      const SysInfoType11 s = buildSib11(p, static_cast<unsigned>(depth11), lv);
      ASSERT_EQ(whole(umts_sib_sib11, encode(asn1PE_UMTS_SysInfoType11, s)), 1);
      checkSib11(s, static_cast<unsigned>(depth11), result->sib11);
      const auto& l590 = result->sib11.v4b0NonCriticalExtensions.v590NonCriticalExtension;
      checkRachLevels(lv, static_cast<unsigned>(depth11), l590.v690NonCriticalExtensions.sysInfoType11_v690ext,
                      l590.v690NonCriticalExtensions.v6b0NonCriticalExtensions.sysInfoType11_v6b0ext);
    }
    if (depth12 >= 0) {
      SCOPED_TRACE("SIB12 to depth " + std::to_string(depth12));
      Pool p;
      const SysInfoType12 s = buildSib12(p, static_cast<unsigned>(depth12), lv);
      ASSERT_EQ(whole(umts_sib_sib12, encode(asn1PE_UMTS_SysInfoType12, s)), 1);
      checkSib12(s, static_cast<unsigned>(depth12), result->sib12);
      const auto& l590 = result->sib12.v4b0NonCriticalExtensions.v590NonCriticalExtension;
      checkRachLevels(lv, static_cast<unsigned>(depth12), l590.v690NonCriticalExtensions.sysInfoType12_v690ext,
                      l590.v690NonCriticalExtensions.v6b0NonCriticalExtensions.sysInfoType12_v6b0ext);
    }
  }
};

// ---- Tests -----------------------------------------------------------------------------------------

// Each level of each chain present and absent: a chain that ends at a level has that level's
// extension filled, bit 0 of its link clear and zero in all links behind it.
TEST_F(ConvertChains, EveryDepthOfBothChains) {
  const Levels lv;
  for (int depth = 0; depth <= 7; depth++) both(lv, depth, depth <= 5 ? depth : -1);
}

// The JSON of the record shows the dummy's tag-3 member (the threshold) rather than the
// quantity that shares its byte.
TEST_F(ConvertChains, DummyThresholdInTheJson) {
  Pool p;
  Levels lv;
  lv.dummy = kRachCases[4];
  const SysInfoType11 s = buildSib11(p, 7, lv);
  ASSERT_EQ(whole(umts_sib_sib11, encode(asn1PE_UMTS_SysInfoType11, s)), 1);
  std::vector<char> json(1 << 20);
  umts_sib_record_json(result, umts_sib_sib11, json.data(), json.size());
  const std::string text(json.data());
  const size_t dummy = text.find("\"dummy\""), next = text.find("\"sysInfoType11_v6b0ext\"");
  ASSERT_LT(dummy, next);
  const std::string member = text.substr(dummy, next - dummy);
  EXPECT_NE(member.find("\"interFreqRACHReportingThreshold\":-87"), std::string::npos) << member;
  EXPECT_EQ(member.find("interFreqRepQuantityRACH_FDD"), std::string::npos) << member;
}

TEST_F(ConvertChains, V590Members) {
  for (const V590Case& c : kV590Cases) {
    SCOPED_TRACE(c.name);
    Levels lv;
    lv.v590 = c;
    both(lv, 1, 1);
  }
}

// The dummy with its four tags (one byte in the union for tags 3 and 4).
TEST_F(ConvertChains, DummyOfEachTag) {
  for (const RachCase& c : kRachCases) {
    SCOPED_TRACE(c.name);
    Levels lv;
    lv.dummy = c;
    both(lv, 2, 2);
  }
}

TEST_F(ConvertChains, RachReporting) {
  for (const RachCase& c : kRachCases) {
    if (c.tag > 2) continue;
    SCOPED_TRACE(c.name);
    Levels lv;
    lv.rach = c;
    both(lv, 3, 3);
  }
}

// mbsfnFrequencyList in both forms: absent, empty, short and at its 16 entries.
TEST_F(ConvertChains, MbsfnFrequencyLists) {
  struct Case {
    bool present;
    unsigned n;
  };
  for (const Case c : {Case{false, 0}, Case{true, 0}, Case{true, 3}, Case{true, 16}}) {
    SCOPED_TRACE(std::to_string(c.present) + " " + std::to_string(c.n));
    Levels lv;
    lv.mbsfnPresent = lv.mbsfn860Present = c.present;
    lv.mbsfn = lv.mbsfn860 = c.n;
    both(lv, 6, -1);
  }
}

// A v7b0 list of 32 entries fills its array up to the last byte; shorter ones leave the rest.
TEST_F(ConvertChains, V7b0Lists) {
  for (unsigned n : {0u, 1u, 31u, 32u}) {
    SCOPED_TRACE(n);
    Levels lv;
    lv.v7b0 = n;
    both(lv, 5, 4);
  }
  // The last of 32 entries is set (i == n - 1): the array is full to its last byte.
  EXPECT_EQ(result->sib12.v4b0NonCriticalExtensions.v590NonCriticalExtension.v690NonCriticalExtensions
                .v6b0NonCriticalExtensions.v7b0NonCriticalExtensions.sysInfoType12_v7b0ext.newInterFreqCellList
                .intraSecondaryFreqIndicator[31],
            1);
}

// v4b0: the LCR FACH byte absent, 0 and 1, and the LCR tree's tag behind it.
TEST_F(ConvertChains, V4b0FachByteAndLcrTag) {
  for (int fach : {-1, 0, 1}) {
    for (uint32_t tag : {1u, 2u}) {
      SCOPED_TRACE(std::to_string(fach) + " " + std::to_string(tag));
      Levels lv;
      lv.fachLcr = fach;
      lv.lcrTag = tag;
      both(lv, 0, 0);
      const umts_sib11_v4b0ext& e = result->sib11.v4b0NonCriticalExtensions.sysInfoType11_v4b0ext;
      EXPECT_EQ(e.presence_bitmask, fach >= 0 ? 1 : 0);
      EXPECT_EQ(e.fach_MeasurementOccasionInfo_LCR_Ext, fach > 0 ? 1 : 0);
      EXPECT_EQ(e.measurementControlSysInfo_LCR.use_of_HCS.choice_tag, tag);
    }
  }
}

// A set of umts_sib_set_alloc, cleared by what the conversion before wrote, reads byte for
// byte as the caller's set after chains of other depths, counts and tags.
TEST_F(ConvertChains, LibrarySetAfterChainsOfOtherShapes) {
  umts_sib_set* own = umts_sib_set_alloc();
  ASSERT_NE(own, nullptr);
  Levels full;
  Levels shallow;
  shallow.v590 = kV590Cases[3];
  shallow.dummy = kRachCases[4];
  shallow.rach = kRachCases[0];
  shallow.mbsfn = shallow.mbsfn860 = 3;
  shallow.v7b0 = 1;
  shallow.lcrTag = 2;
  struct Step {
    const Levels* lv;
    unsigned depth;
  };
  const Step steps[] = {{&full, 7}, {&shallow, 7}, {&full, 7}, {&full, 2}, {&shallow, 5}, {&full, 0}, {&full, 6}};
  for (const Step& step : steps) {
    for (umts_sib_id id : {umts_sib_sib11, umts_sib_sib12}) {
      SCOPED_TRACE(std::string(umts_sib_name(id)) + " to depth " + std::to_string(step.depth));
      Pool p;
      const std::vector<uint8_t> bytes =
          id == umts_sib_sib11 ? encode(asn1PE_UMTS_SysInfoType11, buildSib11(p, step.depth, *step.lv))
                               : encode(asn1PE_UMTS_SysInfoType12, buildSib12(p, std::min(step.depth, 5u), *step.lv));
      ASSERT_EQ(whole(id, bytes), 1);
      uint8_t mine = 0;
      captureStdout([&] { mine = umts_sib_msg_decoder(id, bytes.data(), own, static_cast<uint32_t>(bytes.size())); });
      ASSERT_EQ(mine, 1);
      if (id == umts_sib_sib11)
        EXPECT_EQ(std::memcmp(&own->sib11, &result->sib11, sizeof own->sib11), 0);
      else
        EXPECT_EQ(std::memcmp(&own->sib12, &result->sib12, sizeof own->sib12), 0);
    }
  }
  umts_sib_set_free(own);
}

}  // namespace
