// The LCR (TDD 1.28 Mcps) measurement control trees: SIB12 and SIB11 (v4b0 extension) and
// SIB11bis. Values built in code in each of the four forms, encoded by the codec, converted by
// the library and compared field by field with what was built; where the SIB11 tree converts
// otherwise, the expectation says so, and the same message through SIB12 shows the difference.
#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "frame_test_util.h"
#include "meas_pool.h"
#include "umts_sib_convert.h"
#include "umts_sib_json.h"

using namespace frametest;
using meastest::Pool;

namespace {

template <class T>
const T& at(const rtxDList& list, unsigned i) {
  const rtxDListNode* n = list.head;
  while (i-- > 0) n = n->next;
  return *static_cast<const T*>(n->data);
}

enum class Tree { Sib11, Sib12, Sib11bis };

// The decoded types of a form, and which form it is.
#define LCR_FORM_TYPES(V)                                     \
  using Cell = CellInfoSI_##V##_LCR_r4;                       \
  using NewIntra = NewIntraFreqCellSI_##V##_LCR_r4;           \
  using NewInter = NewInterFreqCellSI_##V##_LCR_r4;           \
  using IntraMeas = IntraFreqMeasurementSysInfo_##V##_LCR_r4; \
  using InterMeas = InterFreqMeasurementSysInfo_##V##_LCR_r4;
struct Rscp {
  LCR_FORM_TYPES(RSCP)
  static constexpr int id = 0;
};
struct Ecno {
  LCR_FORM_TYPES(ECN0)
  static constexpr int id = 1;
};
struct HcsRscp {
  LCR_FORM_TYPES(HCS_RSCP)
  static constexpr int id = 2;
};
struct HcsEcno {
  LCR_FORM_TYPES(HCS_ECN0)
  static constexpr int id = 3;
};

// What a tree holds. Every cell's values follow from its salt.
struct Shape {
  unsigned intraCells = 3;
  unsigned interCells = 2;
  unsigned removedIntra = 3;  // 0: absent
  unsigned removedInter = 2;  // 0: absent
  unsigned timeslots = 2;     // per cell, 0: absent
  bool selection = true;      // cellSelectionReselectionInfo in every cell
  bool hcsInfo = true;        // the neighbouring HCS information in the HCS selection records
  int noIdAt = -1;            // the new intra-frequency cell without intraFreqCellID
  uint32_t event = 5;         // the tag of the third event criteria (the first two are 1a, 1b)
};

// ---- Builders ------------------------------------------------------------------------------

template <class Mode>
void buildMode(Pool& p, Mode& m, unsigned salt) {
  m.t = 1 + salt % 3;
  if (m.t == 1) {
    auto* f = p.make<std::remove_pointer_t<decltype(m.u.fdd)>>();
    f->m = 1 + salt % 3;
    f->q_QualMin = static_cast<int8_t>(-static_cast<int>(salt % 20));
    f->q_RxlevMin = static_cast<int8_t>(-20 - static_cast<int>(salt % 30));
    m.u.fdd = f;
  } else if (m.t == 2) {
    auto* t = p.make<std::remove_pointer_t<decltype(m.u.tdd)>>();
    t->m = 1;
    t->q_RxlevMin = static_cast<int8_t>(-30 - static_cast<int>(salt % 10));
    m.u.tdd = t;
  } else {
    auto* g = p.make<std::remove_pointer_t<decltype(m.u.gsm)>>();
    g->m = salt % 2;
    g->q_RxlevMin = -40;
    m.u.gsm = g;
  }
}

template <class Sel>
void buildSelection(Pool& p, Sel& s, unsigned salt, const Shape& shape) {
  if constexpr (std::is_same_v<Sel, CellSelectReselectInfoSIB_11_12_RSCP> ||
                std::is_same_v<Sel, CellSelectReselectInfoSIB_11_12_HCS_RSCP>) {
    s.q_OffsetS_N = static_cast<int8_t>(-10 + static_cast<int>(salt));
  } else {
    s.q_Offset1S_N = static_cast<int8_t>(-10 + static_cast<int>(salt));
    s.q_Offset2S_N = static_cast<int8_t>(20 - static_cast<int>(salt));
  }
  if (salt % 2 == 1) {
    s.m |= 1u;
    s.maxAllowedUL_TX_Power = static_cast<int8_t>(-5 - static_cast<int>(salt));
  }
  if constexpr (std::is_same_v<Sel, CellSelectReselectInfoSIB_11_12_HCS_RSCP>) {
    if (shape.hcsInfo) {
      s.m |= 2u;
      s.hcs_NeighbouringCellInformation_RSCP.hcs_PRIO = salt % 8;
      s.hcs_NeighbouringCellInformation_RSCP.q_HCS = static_cast<uint8_t>(10 + salt);
      s.hcs_NeighbouringCellInformation_RSCP.hcs_CellReselectInformation.penaltyTime.t = 3;  // pt20
      s.hcs_NeighbouringCellInformation_RSCP.hcs_CellReselectInformation.penaltyTime.u.pt20 = salt % 8;
    }
  }
  if constexpr (std::is_same_v<Sel, CellSelectReselectInfoSIB_11_12_HCS_ECN0>) {
    if (shape.hcsInfo) {
      s.m |= 2u;
      auto& n = s.hcs_NeighbouringCellInformation_ECN0;
      n.hcs_PRIO = 7 - salt % 8;
      n.q_HCS = static_cast<uint8_t>(20 + salt);
      n.hcs_CellReselectInformation.penaltyTime.t = 4;  // pt30
      n.hcs_CellReselectInformation.penaltyTime.u.pt30 = p.make<TemporaryOffsetList>();
      n.hcs_CellReselectInformation.penaltyTime.u.pt30->temporaryOffset1 = salt % 8;
      n.hcs_CellReselectInformation.penaltyTime.u.pt30->temporaryOffset2 = 1;
    }
  }
  buildMode(p, s.modeSpecificInfo, salt);
}

template <class Cell>
void buildCell(Pool& p, Cell& c, unsigned salt, const Shape& shape) {
  c.cellIndividualOffset = static_cast<int8_t>(-5 + static_cast<int>(salt % 10));
  if (salt % 2 == 0) {
    c.m |= 1u;
    c.referenceTimeDifferenceToCell.t = 2;
    c.referenceTimeDifferenceToCell.u.accuracy256 = static_cast<uint8_t>(10 + salt);
  }
  c.primaryCCPCH_Info.tstd_Indicator = salt % 2;
  if (salt % 3 != 1) {
    c.primaryCCPCH_Info.m = 1;
    c.primaryCCPCH_Info.cellParametersID = static_cast<uint8_t>((salt * 7 + 3) % 128);
  }
  c.primaryCCPCH_Info.sctd_Indicator = 1 - salt % 2;
  if (salt % 4 != 3) {
    c.m |= 2u;
    c.primaryCCPCH_TX_Power = static_cast<uint8_t>(6 + salt % 30);
  }
  if (shape.timeslots > 0) {
    c.m |= 4u;
    for (unsigned i = 0; i < shape.timeslots; i++)
      p.add<TimeslotInfo_LCR_r4>(c.timeslotInfoList)->timeslotNumber = static_cast<uint8_t>((i + salt) % 7);
  }
  c.readSFN_Indicator = salt % 3 == 0;
  if (shape.selection) {
    c.m |= 8u;
    buildSelection(p, c.cellSelectionReselectionInfo, salt, shape);
  }
}

template <class F>
void buildNewIntra(Pool& p, rtxDList& list, const Shape& s) {
  for (unsigned i = 0; i < s.intraCells; i++) {
    auto* e = p.add<typename F::NewIntra>(list);
    if (static_cast<int>(i) != s.noIdAt) {
      e->m = 1;
      e->intraFreqCellID = static_cast<uint8_t>(3 + i);
    }
    buildCell(p, e->cellInfo, i + 1, s);
  }
}

template <class F>
void buildNewInter(Pool& p, rtxDList& list, const Shape& s) {
  for (unsigned i = 0; i < s.interCells; i++) {
    auto* e = p.add<typename F::NewInter>(list);
    e->m = i % 3 == 2 ? 0u : 1u;
    e->interFreqCellID = static_cast<uint8_t>(20 + i);
    if (i % 2 == 0) {
      e->m |= 2u;
      e->frequencyInfo.modeSpecificInfo.t = 2;
      e->frequencyInfo.modeSpecificInfo.u.tdd = p.make<FrequencyInfoTDD>();
      e->frequencyInfo.modeSpecificInfo.u.tdd->uarfcn_Nt = static_cast<uint16_t>(10054 + i);
    }
    buildCell(p, e->cellInfo, 10 + i, s);
  }
}

void fillForbidden(Pool& p, rtxDList& list, unsigned n) {
  for (unsigned i = 0; i < n; i++) {
    auto* f = p.add<ForbiddenAffectCell_LCR_r4>(list);
    f->tdd.tstd_Indicator = i % 2;
    f->tdd.m = i % 2;
    f->tdd.cellParametersID = static_cast<uint8_t>(40 + i);
    f->tdd.sctd_Indicator = 1;
  }
}

void buildReporting(Pool& p, ReportingInfoForCellDCH_LCR_r4& r, const Shape& s) {
  r.intraFreqReportingQuantity.activeSetReportingQuantities.modeSpecificInfo.t = 2;
  auto* tdd = p.make<CellReportingQuantities_modeSpecificInfo_tdd>();
  tdd->timeslotISCP_reportingIndicator = 1;
  tdd->pathloss_reportingIndicator = 1;
  r.intraFreqReportingQuantity.activeSetReportingQuantities.modeSpecificInfo.u.tdd = tdd;
  r.intraFreqReportingQuantity.activeSetReportingQuantities.cellIdentity_reportingIndicator = 1;
  r.intraFreqReportingQuantity.monitoredSetReportingQuantities.modeSpecificInfo.t = 2;
  r.intraFreqReportingQuantity.monitoredSetReportingQuantities.modeSpecificInfo.u.tdd = tdd;
  r.intraFreqReportingQuantity.monitoredSetReportingQuantities.dummy = 1;
  r.measurementReportingMode.measurementReportTransferMode = 1;
  r.measurementReportingMode.periodicalOrEventTrigger = 1;
  r.reportCriteria.t = 1;
  auto* crit = p.make<IntraFreqReportingCriteria_LCR_r4>();
  r.reportCriteria.u.intraFreqReportingCriteria = crit;
  crit->m = 1;
  auto* c1 = p.add<IntraFreqEventCriteria_LCR_r4>(crit->eventCriteriaList);
  c1->event.t = 1;
  c1->event.u.e1a = p.make<Event1a_LCR_r4>();
  c1->event.u.e1a->m = 1;
  fillForbidden(p, c1->event.u.e1a->forbiddenAffectCellList, 3);
  c1->event.u.e1a->triggeringCondition = 2;
  c1->event.u.e1a->reportingRange = 12;
  c1->event.u.e1a->w = 5;
  c1->event.u.e1a->reportDeactivationThreshold = 3;
  c1->event.u.e1a->reportingAmount = 4;
  c1->event.u.e1a->reportingInterval = 6;
  c1->hysteresis = 4;
  c1->timeToTrigger = 9;
  c1->m = 1;
  c1->reportingCellStatus.t = 7;
  c1->reportingCellStatus.u.allActivePlusDetectedSet = 2;
  auto* c2 = p.add<IntraFreqEventCriteria_LCR_r4>(crit->eventCriteriaList);
  c2->event.t = 2;
  c2->event.u.e1b = p.make<Event1b_LCR_r4>();
  c2->event.u.e1b->m = 1;
  fillForbidden(p, c2->event.u.e1b->forbiddenAffectCellList, 1);
  c2->event.u.e1b->triggeringCondition = 1;
  c2->event.u.e1b->reportingRange = 29;
  c2->event.u.e1b->w = 20;
  c2->hysteresis = 15;
  auto* c3 = p.add<IntraFreqEventCriteria_LCR_r4>(crit->eventCriteriaList);
  c3->event.t = s.event;
  if (s.event == 3) {
    c3->event.u.e1c = p.make<Event1c>();
    *c3->event.u.e1c = Event1c{5, 2, 7};
  } else if (s.event == 5) {
    c3->event.u.e1e = p.make<Event1e>();
    *c3->event.u.e1e = Event1e{1, -80};
  } else if (s.event == 6) {
    c3->event.u.e1f = p.make<Event1f>();
    *c3->event.u.e1f = Event1f{1, -80};
  } else if (s.event == 8 || s.event == 9) {
    c3->event.u.e1h = static_cast<int16_t>(s.event == 8 ? 150 : -115);
  }
  c3->timeToTrigger = 1;
}

template <class F>
void buildIntraMeas(Pool& p, typename F::IntraMeas& m, const Shape& s) {
  m.intraFreqMeasurementID = 7;
  m.m = 1u | 2u | 4u | 8u | 16u;
  auto& list = m.intraFreqCellInfoSI_List;
  if (s.removedIntra > 0) {
    list.m = 1;
    list.removedIntraFreqCellList.t = 2;
    auto* some = p.make<RemovedIntraFreqCellList_removeSomeIntraFreqCells>();
    some->n = s.removedIntra;
    for (unsigned i = 0; i < s.removedIntra; i++) some->elem[i] = static_cast<uint8_t>(31 - i);
    list.removedIntraFreqCellList.u.removeSomeIntraFreqCells = some;
  }
  buildNewIntra<F>(p, list.newIntraFreqCellList, s);
  m.intraFreqMeasQuantity.filterCoefficient = 3;
  m.intraFreqMeasQuantity.modeSpecificInfo.t = 2;
  auto* q = p.make<IntraFreqMeasQuantity_modeSpecificInfo_tdd>();
  q->intraFreqMeasQuantity_TDDList.n = 3;
  q->intraFreqMeasQuantity_TDDList.elem[0] = 0;
  q->intraFreqMeasQuantity_TDDList.elem[1] = 2;
  q->intraFreqMeasQuantity_TDDList.elem[2] = 1;
  m.intraFreqMeasQuantity.modeSpecificInfo.u.tdd = q;
  m.intraFreqReportingQuantityForRACH.sfn_SFN_OTD_Type = 1;
  m.intraFreqReportingQuantityForRACH.modeSpecificInfo.t = 2;
  auto* r = p.make<IntraFreqReportingQuantityForRACH_modeSpecificInfo_tdd>();
  r->intraFreqRepQuantityRACH_TDDList.n = 1;
  r->intraFreqRepQuantityRACH_TDDList.elem[0] = 1;
  m.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.tdd = r;
  m.maxReportedCellsOnRACH = 4;
  buildReporting(p, m.reportingInfoForCellDCH, s);
}

template <class F>
void buildInterMeas(Pool& p, typename F::InterMeas& m, const Shape& s) {
  m.m = 1;
  auto& list = m.interFreqCellInfoSI_List;
  if (s.removedInter > 0) {
    list.m |= 1u;
    list.removedInterFreqCellList.t = 2;
    auto* some = p.make<RemovedInterFreqCellList_removeSomeInterFreqCells>();
    some->n = s.removedInter;
    for (unsigned i = 0; i < s.removedInter; i++) some->elem[i] = static_cast<uint8_t>((1 + i) % 32);
    list.removedInterFreqCellList.u.removeSomeInterFreqCells = some;
  }
  if (s.interCells > 0) {
    list.m |= 2u;
    buildNewInter<F>(p, list.newInterFreqCellList, s);
  }
}

// The tree of SIB11 and SIB12 in the form (hcs, quality): 1 1 RSCP, 1 2 ECN0, 2 1 HCS_RSCP,
// 2 2 HCS_ECN0.
template <class F, class Q>
void buildQuality(Pool& p, Q*& q, const Shape& s) {
  q = p.make<Q>();
  q->m = 3;
  buildIntraMeas<F>(p, q->intraFreqMeasurementSysInfo, s);
  buildInterMeas<F>(p, q->interFreqMeasurementSysInfo, s);
}

void buildExt(Pool& p, MeasurementControlSysInfo_LCR_r4_ext& e, int form, const Shape& s) {
  auto& use = e.use_of_HCS;
  use.t = form < 2 ? 1 : 2;
  if (form < 2) {
    use.u.hcs_not_used = p.make<MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_not_used>();
    auto& q = use.u.hcs_not_used->cellSelectQualityMeasure;
    q.t = 1 + form % 2;
    if (form == 0) buildQuality<Rscp>(p, q.u.cpich_RSCP, s);
    else buildQuality<Ecno>(p, q.u.cpich_Ec_N0, s);
  } else {
    use.u.hcs_used = p.make<MeasurementControlSysInfo_LCR_r4_ext_use_of_HCS_hcs_used>();
    auto& q = use.u.hcs_used->cellSelectQualityMeasure;
    q.t = 1 + form % 2;
    if (form == 2) buildQuality<HcsRscp>(p, q.u.cpich_RSCP, s);
    else buildQuality<HcsEcno>(p, q.u.cpich_Ec_N0, s);
  }
}

// SIB11bis: the two new-cell lists, and one inter-RAT cell in the hcs_used branch.
template <class F, class Q>
void buildBisQuality(Pool& p, Q*& q, const Shape& s) {
  q = p.make<Q>();
  q->m = 3;
  buildNewIntra<F>(p, q->newIntraFreqCellList, s);
  buildNewInter<F>(p, q->newInterFreqCellList, s);
}

void buildBis(Pool& p, MeasurementControlSysInfoExtension_LCR_r4& e, int form, const Shape& s) {
  auto& use = e.use_of_HCS;
  use.t = form < 2 ? 1 : 2;
  if (form < 2) {
    use.u.hcs_not_used = p.make<MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used>();
    auto& q = use.u.hcs_not_used->cellSelectQualityMeasure;
    q.t = 1 + form % 2;
    if (form == 0) buildBisQuality<Rscp>(p, q.u.cpich_RSCP, s);
    else buildBisQuality<Ecno>(p, q.u.cpich_Ec_N0, s);
  } else {
    use.u.hcs_used = p.make<MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_used>();
    auto& h = *use.u.hcs_used;
    h.m = 1;
    NewInterRATCell* rat = p.add<NewInterRATCell>(h.newInterRATCellList);
    rat->m = 1;
    rat->interRATCellID = 17;
    rat->technologySpecificInfo.t = 3;  // absent
    auto& q = h.cellSelectQualityMeasure;
    q.t = 1 + form % 2;
    if (form == 2) buildBisQuality<HcsRscp>(p, q.u.cpich_RSCP, s);
    else buildBisQuality<HcsEcno>(p, q.u.cpich_Ec_N0, s);
  }
}

// ---- Checks, against the built values -------------------------------------------------------

void checkCcpch(const PrimaryCCPCH_Info_LCR_r4& d, const umts_primary_ccpch_info_lcr_r4& f) {
  EXPECT_EQ(f.presence_bitmask, d.m);
  EXPECT_EQ(f.tstd_Indicator, d.tstd_Indicator);
  EXPECT_EQ(f.cellParametersID, d.m ? d.cellParametersID : 0);
  EXPECT_EQ(f.sctd_Indicator, d.sctd_Indicator);
}

template <class Mode>
void checkMode(const Mode& m, const umts_cell_select_reselect_mode_specific_info& f) {
  ASSERT_EQ(f.choice_tag, m.t);
  if (m.t == 1) {
    EXPECT_EQ(f.u.fdd.presence_bitmask, m.u.fdd->m);
    EXPECT_EQ(f.u.fdd.q_QualMin, m.u.fdd->m & 1u ? m.u.fdd->q_QualMin : 0);
    EXPECT_EQ(f.u.fdd.q_RxlevMin, m.u.fdd->m & 2u ? m.u.fdd->q_RxlevMin : 0);
  } else {
    const auto& rx = m.t == 2 ? f.u.tdd : f.u.gsm;
    const uint32_t bit = m.t == 2 ? m.u.tdd->m : m.u.gsm->m;
    EXPECT_EQ(rx.presence_bitmask, bit);
    EXPECT_EQ(rx.q_RxlevMin, bit ? (m.t == 2 ? m.u.tdd->q_RxlevMin : m.u.gsm->q_RxlevMin) : 0);
  }
}

template <class Sel, class Flat>
void checkSelection(const Sel& s, const Flat& f, Tree tree) {
  // SIB11 converts the HCS_RSCP mode only with the HCS information.
  constexpr bool hcsRscp = std::is_same_v<Sel, CellSelectReselectInfoSIB_11_12_HCS_RSCP>;
  const bool mode = !(hcsRscp && tree == Tree::Sib11 && !(s.m & 2u));
  EXPECT_EQ(f.presence_bitmask, s.m);
  if constexpr (std::is_same_v<Sel, CellSelectReselectInfoSIB_11_12_RSCP> || hcsRscp) {
    EXPECT_EQ(f.q_OffsetS_N, s.q_OffsetS_N);
  } else {
    EXPECT_EQ(f.q_Offset1S_N, s.q_Offset1S_N);
    EXPECT_EQ(f.q_Offset2S_N, s.q_Offset2S_N);
  }
  EXPECT_EQ(f.maxAllowedUL_TX_Power, s.m & 1u ? s.maxAllowedUL_TX_Power : 0);
  if constexpr (hcsRscp) {
    const auto& n = f.hcs_NeighbouringCellInformation_RSCP;
    if (s.m & 2u) {
      EXPECT_EQ(n.hcs_PRIO, s.hcs_NeighbouringCellInformation_RSCP.hcs_PRIO);
      EXPECT_EQ(n.q_HCS, s.hcs_NeighbouringCellInformation_RSCP.q_HCS);
      EXPECT_EQ(n.penaltyTime.choice_tag, 3u);
      EXPECT_EQ(n.penaltyTime.u.pt20, s.hcs_NeighbouringCellInformation_RSCP.hcs_CellReselectInformation.penaltyTime.u.pt20);
    } else {
      EXPECT_TRUE(allZero(n));
    }
  }
  if constexpr (std::is_same_v<Sel, CellSelectReselectInfoSIB_11_12_HCS_ECN0>) {
    const auto& n = f.hcs_NeighbouringCellInformation_ECN0;
    if (s.m & 2u) {
      const auto& d = s.hcs_NeighbouringCellInformation_ECN0;
      EXPECT_EQ(n.hcs_PRIO, d.hcs_PRIO);
      EXPECT_EQ(n.q_HCS, d.q_HCS);
      EXPECT_EQ(n.penaltyTime.choice_tag, 4u);
      EXPECT_EQ(n.penaltyTime.u.pt30.temporaryOffset1, d.hcs_CellReselectInformation.penaltyTime.u.pt30->temporaryOffset1);
      EXPECT_EQ(n.penaltyTime.u.pt30.temporaryOffset2, 1u);
    } else {
      EXPECT_TRUE(allZero(n));
    }
  }
  if (mode) checkMode(s.modeSpecificInfo, f.modeSpecificInfo);
  else EXPECT_TRUE(allZero(f.modeSpecificInfo));
}

template <class Cell, class Flat>
void checkCell(const Cell& c, const Flat& f, Tree tree) {
  // SIB11 converts the ECN0 cell's primary CCPCH only with cellSelectionReselectionInfo.
  constexpr bool ecno = std::is_same_v<Cell, CellInfoSI_ECN0_LCR_r4>;
  EXPECT_EQ(f.presence_bitmask, c.m);
  EXPECT_EQ(f.cellIndividualOffset, c.cellIndividualOffset);
  EXPECT_EQ(f.referenceTimeDifferenceToCell.choice_tag, c.m & 1u ? 2u : 0u);
  EXPECT_EQ(f.referenceTimeDifferenceToCell.u.accuracy256, c.m & 1u ? c.referenceTimeDifferenceToCell.u.accuracy256 : 0);
  if (ecno && tree == Tree::Sib11 && !(c.m & 8u)) EXPECT_TRUE(allZero(f.primaryCCPCH_Info));
  else checkCcpch(c.primaryCCPCH_Info, f.primaryCCPCH_Info);
  EXPECT_EQ(f.primaryCCPCH_TX_Power, c.m & 2u ? c.primaryCCPCH_TX_Power : 0);
  const unsigned slots = c.m & 4u ? c.timeslotInfoList.count : 0;
  ASSERT_EQ(f.timeslotInfoList.count, slots);
  for (unsigned i = 0; i < 6; i++)
    EXPECT_EQ(f.timeslotInfoList.entries[i], i < slots ? at<TimeslotInfo_LCR_r4>(c.timeslotInfoList, i).timeslotNumber : 0);
  EXPECT_EQ(f.readSFN_Indicator, c.readSFN_Indicator);
  if (c.m & 8u) checkSelection(c.cellSelectionReselectionInfo, f.cellSelectionReselectionInfo, tree);
  else EXPECT_TRUE(allZero(f.cellSelectionReselectionInfo));
}

template <class F, class Flat>
void checkNewIntra(const rtxDList& l, const Flat& f, Tree tree) {
  ASSERT_EQ(f.count, l.count);
  for (unsigned i = 0; i < l.count; i++) {
    SCOPED_TRACE("new intra-frequency cell " + std::to_string(i));
    const auto& e = at<typename F::NewIntra>(l, i);
    // SIB11 keeps an RSCP cell without identity zero.
    if (std::is_same_v<F, Rscp> && tree == Tree::Sib11 && !(e.m & 1u)) {
      EXPECT_TRUE(allZero(f.entries[i]));
      continue;
    }
    EXPECT_EQ(f.entries[i].presence_bitmask, e.m);
    EXPECT_EQ(f.entries[i].intraFreqCellID, e.m ? e.intraFreqCellID : 0);
    checkCell(e.cellInfo, f.entries[i].cellInfo, tree);
  }
  for (unsigned i = l.count; i < 32; i++) EXPECT_TRUE(allZero(f.entries[i])) << i;
}

template <class F, class Flat>
void checkNewInter(const rtxDList& l, const Flat& f, Tree tree) {
  ASSERT_EQ(f.count, l.count);
  for (unsigned i = 0; i < l.count; i++) {
    SCOPED_TRACE("new inter-frequency cell " + std::to_string(i));
    const auto& e = at<typename F::NewInter>(l, i);
    EXPECT_EQ(f.entries[i].presence_bitmask, e.m);
    EXPECT_EQ(f.entries[i].interFreqCellID, e.m & 1u ? e.interFreqCellID : 0);
    EXPECT_EQ(f.entries[i].frequencyInfo.choice_tag, e.m & 2u ? 2u : 0u);
    EXPECT_EQ(f.entries[i].frequencyInfo.u.tdd.uarfcn_Nt, e.m & 2u ? e.frequencyInfo.modeSpecificInfo.u.tdd->uarfcn_Nt : 0);
    checkCell(e.cellInfo, f.entries[i].cellInfo, tree);
  }
  for (unsigned i = l.count; i < 32; i++) EXPECT_TRUE(allZero(f.entries[i])) << i;
}

template <class Flat>
void checkForbidden(const rtxDList& l, const Flat& f) {
  ASSERT_EQ(f.count, l.count);
  for (unsigned i = 0; i < l.count; i++) checkCcpch(at<ForbiddenAffectCell_LCR_r4>(l, i).tdd, f.entries[i]);
}

void checkReporting(const ReportingInfoForCellDCH_LCR_r4& r, const umts_reporting_info_for_cell_dch_lcr_r4& f) {
  const auto& active = f.intraFreqReportingQuantity.activeSetReportingQuantities;
  EXPECT_EQ(active.cellIdentity_reportingIndicator, 1);
  EXPECT_EQ(active.modeSpecificInfo.choice_tag, 2u);
  EXPECT_EQ(active.modeSpecificInfo.u.tdd.timeslotISCP_reportingIndicator, 1);
  EXPECT_EQ(active.modeSpecificInfo.u.tdd.pathloss_reportingIndicator, 1);
  EXPECT_EQ(f.intraFreqReportingQuantity.monitoredSetReportingQuantities.dummy, 1u);
  EXPECT_EQ(f.intraFreqReportingQuantity.presence_bitmask, 0);
  EXPECT_EQ(f.measurementReportingMode.measurementReportTransferMode, 1u);
  EXPECT_EQ(f.measurementReportingMode.periodicalOrEventTrigger, 1u);
  ASSERT_EQ(f.reportCriteria.choice_tag, 1u);
  const auto& crit = f.reportCriteria.u.intraFreqReportingCriteria;
  EXPECT_EQ(crit.presence_bitmask, 1);
  const rtxDList& list = r.reportCriteria.u.intraFreqReportingCriteria->eventCriteriaList;
  ASSERT_EQ(crit.eventCriteriaList.count, 3);
  const auto& e1 = crit.eventCriteriaList.entries[0];
  const Event1a_LCR_r4& a = *at<IntraFreqEventCriteria_LCR_r4>(list, 0).event.u.e1a;
  EXPECT_EQ(e1.event.choice_tag, 1u);
  EXPECT_EQ(e1.event.u.e1a.presence_bitmask, 1);
  EXPECT_EQ(e1.event.u.e1a.triggeringCondition, 2u);
  EXPECT_EQ(e1.event.u.e1a.reportingRange, 12);
  EXPECT_EQ(e1.event.u.e1a.w, 5);
  EXPECT_EQ(e1.event.u.e1a.reportDeactivationThreshold, 3u);
  EXPECT_EQ(e1.event.u.e1a.reportingAmount, 4u);
  EXPECT_EQ(e1.event.u.e1a.reportingInterval, 6u);
  checkForbidden(a.forbiddenAffectCellList, e1.event.u.e1a.forbiddenAffectCellList);
  EXPECT_EQ(e1.hysteresis, 4);
  EXPECT_EQ(e1.timeToTrigger, 9u);
  EXPECT_EQ(e1.presence_bitmask, 1);
  EXPECT_EQ(e1.reportingCellStatus.choice_tag, 7u);
  EXPECT_EQ(e1.reportingCellStatus.u.allActivePlusDetectedSet, 2u);
  const auto& e2 = crit.eventCriteriaList.entries[1];
  EXPECT_EQ(e2.event.choice_tag, 2u);
  EXPECT_EQ(e2.event.u.e1b.triggeringCondition, 1u);
  EXPECT_EQ(e2.event.u.e1b.reportingRange, 29);
  EXPECT_EQ(e2.event.u.e1b.w, 20);
  checkForbidden(at<IntraFreqEventCriteria_LCR_r4>(list, 1).event.u.e1b->forbiddenAffectCellList,
                 e2.event.u.e1b.forbiddenAffectCellList);
  EXPECT_EQ(e2.hysteresis, 15);
  EXPECT_EQ(e2.presence_bitmask, 0);
  EXPECT_TRUE(allZero(e2.reportingCellStatus));
  // The third event: its tag, and the union as the tag's row leaves it (e1d and e1g: zero).
  const auto& e3 = crit.eventCriteriaList.entries[2];
  const uint32_t tag = at<IntraFreqEventCriteria_LCR_r4>(list, 2).event.t;
  EXPECT_EQ(e3.event.choice_tag, tag);
  umts_intra_freq_event_lcr_r4_u expected{};
  if (tag == 3) expected.e1c = umts_event_1c{5, 2, 7};
  if (tag == 5) expected.e1e = umts_event_1e{1, -80};
  if (tag == 6) expected.e1f = umts_event_1f{1, -80};
  if (tag == 8) expected.e1h = 150;
  if (tag == 9) expected.e1i = -115;
  EXPECT_EQ(std::memcmp(&e3.event.u, &expected, sizeof expected), 0) << "event tag " << tag;
  EXPECT_EQ(e3.timeToTrigger, 1u);
}

template <class F, class Flat>
void checkIntraMeas(const typename F::IntraMeas& m, const Flat& f, Tree tree) {
  EXPECT_EQ(f.presence_bitmask, m.m);
  EXPECT_EQ(f.intraFreqMeasurementID, 7);
  const auto& list = f.intraFreqCellInfoSI_List;
  EXPECT_EQ(list.presence_bitmask, m.intraFreqCellInfoSI_List.m);
  if (m.intraFreqCellInfoSI_List.m & 1u) {
    const auto* some = m.intraFreqCellInfoSI_List.removedIntraFreqCellList.u.removeSomeIntraFreqCells;
    EXPECT_EQ(list.removedIntraFreqCellList.choice_tag, 2u);
    EXPECT_EQ(list.removedIntraFreqCellList.u.removeSomeIntraFreqCells.count, some->n);
    EXPECT_EQ(std::memcmp(list.removedIntraFreqCellList.u.removeSomeIntraFreqCells.entries, some->elem, 32), 0);
  } else {
    EXPECT_TRUE(allZero(list.removedIntraFreqCellList));
  }
  checkNewIntra<F>(m.intraFreqCellInfoSI_List.newIntraFreqCellList, list.newIntraFreqCellList, tree);
  EXPECT_EQ(f.intraFreqMeasQuantity.filterCoefficient, 3u);
  EXPECT_EQ(f.intraFreqMeasQuantity.modeSpecificInfo.choice_tag, 2u);
  const auto& tdd = f.intraFreqMeasQuantity.modeSpecificInfo.u.intraFreqMeasQuantity_TDDList;
  EXPECT_EQ(tdd.count, 3u);
  EXPECT_EQ(tdd.entries[0], 0u);
  EXPECT_EQ(tdd.entries[1], 2u);
  EXPECT_EQ(tdd.entries[2], 1u);
  EXPECT_EQ(tdd.entries[3], 0u);
  EXPECT_EQ(f.intraFreqReportingQuantityForRACH.sfn_SFN_OTD_Type, 1u);
  EXPECT_EQ(f.intraFreqReportingQuantityForRACH.modeSpecificInfo.choice_tag, 2u);
  EXPECT_EQ(f.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.intraFreqRepQuantityRACH_TDDList.count, 1u);
  EXPECT_EQ(f.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.intraFreqRepQuantityRACH_TDDList.entries[0], 1u);
  EXPECT_EQ(f.maxReportedCellsOnRACH, 4u);
  checkReporting(m.reportingInfoForCellDCH, f.reportingInfoForCellDCH);
}

template <class F, class Flat>
void checkInterMeas(const typename F::InterMeas& m, const Flat& f, Tree tree) {
  EXPECT_EQ(f.presence_bitmask, 1);
  const auto& d = m.interFreqCellInfoSI_List;
  const auto& list = f.interFreqCellInfoSI_List;
  EXPECT_EQ(list.presence_bitmask, d.m);
  const auto& removed = list.removedInterFreqCellList;
  if (d.m & 1u) {
    const auto* some = d.removedInterFreqCellList.u.removeSomeInterFreqCells;
    EXPECT_EQ(removed.choice_tag, 2u);
    EXPECT_EQ(removed.u.removeSomeInterFreqCells.count, some->n);
    for (unsigned i = 0; i < 32; i++)
      EXPECT_EQ(removed.u.removeSomeInterFreqCells.entries[i], i < some->n ? some->elem[i] : 0) << i;
  } else {
    EXPECT_TRUE(allZero(removed));
  }
  if (!(d.m & 2u)) {
    EXPECT_TRUE(allZero(list.newInterFreqCellList));
    return;
  }
  // SIB11's RSCP list converts its new cells before its removed cells; removed identities
  // above 8 run on over the new-cell list, which then reads empty.
  const uint32_t removedCount = d.m & 1u ? d.removedInterFreqCellList.u.removeSomeInterFreqCells->n : 0;
  if (std::is_same_v<F, Rscp> && tree == Tree::Sib11 && removedCount > 8) {
    EXPECT_TRUE(allZero(list.newInterFreqCellList));
    return;
  }
  checkNewInter<F>(d.newInterFreqCellList, list.newInterFreqCellList, tree);
}

template <class F, class Q, class Flat>
void checkQuality(const Q* q, const Flat& f, Tree tree) {
  EXPECT_EQ(f.presence_bitmask, 3);
  checkIntraMeas<F>(q->intraFreqMeasurementSysInfo, f.intraFreqMeasurementSysInfo, tree);
  checkInterMeas<F>(q->interFreqMeasurementSysInfo, f.interFreqMeasurementSysInfo, tree);
}

void checkExt(const MeasurementControlSysInfo_LCR_r4_ext& e, const umts_measurement_control_sys_info_lcr_r4_ext& f,
              int form, Tree tree) {
  ASSERT_EQ(f.use_of_HCS.choice_tag, form < 2 ? 1u : 2u);
  if (form < 2) {
    const auto& q = e.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure;
    const auto& g = f.use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure;
    ASSERT_EQ(g.choice_tag, q.t);
    if (form == 0) checkQuality<Rscp>(q.u.cpich_RSCP, g.u.cpich_RSCP, tree);
    else checkQuality<Ecno>(q.u.cpich_Ec_N0, g.u.cpich_Ec_N0, tree);
  } else {
    const auto& q = e.use_of_HCS.u.hcs_used->cellSelectQualityMeasure;
    const auto& g = f.use_of_HCS.u.hcs_used.cellSelectQualityMeasure;
    ASSERT_EQ(g.choice_tag, q.t);
    if (form == 2) checkQuality<HcsRscp>(q.u.cpich_RSCP, g.u.cpich_RSCP, tree);
    else checkQuality<HcsEcno>(q.u.cpich_Ec_N0, g.u.cpich_Ec_N0, tree);
  }
}

template <class F, class Q, class Flat>
void checkBisQuality(const Q* q, const Flat& f) {
  EXPECT_EQ(f.presence_bitmask, 3);
  checkNewIntra<F>(q->newIntraFreqCellList, f.newIntraFreqCellList, Tree::Sib11bis);
  checkNewInter<F>(q->newInterFreqCellList, f.newInterFreqCellList, Tree::Sib11bis);
}

void checkBis(const MeasurementControlSysInfoExtension_LCR_r4& e, const umts_measurement_control_sys_info_extension_lcr_r4& f,
              int form) {
  ASSERT_EQ(f.use_of_HCS.choice_tag, form < 2 ? 1u : 2u);
  if (form < 2) {
    const auto& q = e.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure;
    const auto& g = f.use_of_HCS.u.hcs_not_used;
    EXPECT_EQ(g.presence_bitmask, 0);
    EXPECT_TRUE(allZero(g.newInterRATCellList));
    ASSERT_EQ(g.cellSelectQualityMeasure.choice_tag, q.t);
    if (form == 0) checkBisQuality<Rscp>(q.u.cpich_RSCP, g.cellSelectQualityMeasure.u.cpich_RSCP);
    else checkBisQuality<Ecno>(q.u.cpich_Ec_N0, g.cellSelectQualityMeasure.u.cpich_Ec_N0);
  } else {
    const auto& q = e.use_of_HCS.u.hcs_used->cellSelectQualityMeasure;
    const auto& g = f.use_of_HCS.u.hcs_used;
    EXPECT_EQ(g.presence_bitmask, 1);
    ASSERT_EQ(g.newInterRATCellList.count, 1);
    EXPECT_EQ(g.newInterRATCellList.entries[0].interRATCellID, 17);
    EXPECT_EQ(g.newInterRATCellList.entries[0].technologySpecificInfo.choice_tag, 3u);
    ASSERT_EQ(g.cellSelectQualityMeasure.choice_tag, q.t);
    if (form == 2) checkBisQuality<HcsRscp>(q.u.cpich_RSCP, g.cellSelectQualityMeasure.u.cpich_RSCP);
    else checkBisQuality<HcsEcno>(q.u.cpich_Ec_N0, g.cellSelectQualityMeasure.u.cpich_Ec_N0);
  }
}

const char* const kFormNames[] = {"RSCP", "ECN0", "HCS_RSCP", "HCS_ECN0"};

// The smallest main measurement control information: hcs_not_used, cpich_RSCP, no member.
void buildMeasurementControl(Pool& p, MeasurementControlSysInfo& mc) {
  mc.use_of_HCS.t = 1;
  mc.use_of_HCS.u.hcs_not_used = p.make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used>();
  mc.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.t = 1;
  mc.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.u.cpich_RSCP =
      p.make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP>();
}

// The messages: SIB11 and SIB12 with the LCR tree in their v4b0 extension (beside the smallest
// main tree), SIB11bis with its LCR tree alone.
MeasurementControlSysInfo_LCR_r4_ext& lcrOf(SysInfoType11& m) {
  return m.v4b0NonCriticalExtensions.sysInfoType11_v4b0ext.measurementControlSysInfo_LCR;
}
MeasurementControlSysInfo_LCR_r4_ext& lcrOf(SysInfoType12& m) {
  return m.v4b0NonCriticalExtensions.sysInfoType12_v4b0ext.measurementControlSysInfo_LCR;
}

template <class Sib>
Sib v4b0Message(Pool& p, int form, const Shape& s) {
  Sib m{};
  buildMeasurementControl(p, m.measurementControlSysInfo);
  m.m = 2;
  m.v4b0NonCriticalExtensions.m = 1;
  buildExt(p, lcrOf(m), form, s);
  return m;
}

SysInfoType11bis bisMessage(Pool& p, int form, const Shape& s) {
  SysInfoType11bis m{};
  m.m = 2;
  buildBis(p, m.measurementControlSysInfo_LCR, form, s);
  return m;
}

std::vector<uint8_t> encoded(Pool& p, umts_sib_id id, int form, const Shape& s) {
  if (id == umts_sib_sib11) return encode(asn1PE_UMTS_SysInfoType11, v4b0Message<SysInfoType11>(p, form, s));
  if (id == umts_sib_sib12) return encode(asn1PE_UMTS_SysInfoType12, v4b0Message<SysInfoType12>(p, form, s));
  return encode(asn1PE_UMTS_SysInfoType11bis, bisMessage(p, form, s));
}

class ConvertLcr : public FrameTest {
 protected:
  // One message of the form and shape through the tree; its LCR record, checked.
  const umts_measurement_control_sys_info_lcr_r4_ext& sib11(Pool& p, int form, const Shape& s) {
    SysInfoType11 m = v4b0Message<SysInfoType11>(p, form, s);
    EXPECT_EQ(whole(umts_sib_sib11, encode(asn1PE_UMTS_SysInfoType11, m)), 1);
    const auto& f = result->sib11.v4b0NonCriticalExtensions.sysInfoType11_v4b0ext.measurementControlSysInfo_LCR;
    checkExt(lcrOf(m), f, form, Tree::Sib11);
    return f;
  }
  const umts_measurement_control_sys_info_lcr_r4_ext& sib12(Pool& p, int form, const Shape& s) {
    SysInfoType12 m = v4b0Message<SysInfoType12>(p, form, s);
    EXPECT_EQ(whole(umts_sib_sib12, encode(asn1PE_UMTS_SysInfoType12, m)), 1);
    const auto& f = result->sib12.v4b0NonCriticalExtensions.sysInfoType12_v4b0ext.measurementControlSysInfo_LCR;
    checkExt(lcrOf(m), f, form, Tree::Sib12);
    return f;
  }
  void sib11bis(Pool& p, int form, const Shape& s) {
    const SysInfoType11bis m = bisMessage(p, form, s);
    EXPECT_EQ(whole(umts_sib_sib11bis, encode(asn1PE_UMTS_SysInfoType11bis, m)), 1);
    EXPECT_EQ(result->sib11bis.presence_bitmask, 2);
    checkBis(m.measurementControlSysInfo_LCR, result->sib11bis.measurementControlSysInfo_LCR, form);
  }
  void allTrees(int form, const Shape& s) {
    SCOPED_TRACE(kFormNames[form]);
    Pool p;
    {
      SCOPED_TRACE("SIB11");
      sib11(p, form, s);
    }
    {
      SCOPED_TRACE("SIB12");
      sib12(p, form, s);
    }
    SCOPED_TRACE("SIB11bis");
    sib11bis(p, form, s);
  }
};

// ---- Tests --------------------------------------------------------------------------------------

// Each form in each tree, with cells of every member, both lists and the reporting records.
TEST_F(ConvertLcr, EachFormInEachTree) {
  for (int form = 0; form < 4; form++) allTrees(form, Shape{});
}

// The third event criteria in each of its rows: e1d and e1g carry nothing and leave the union
// zero in every tree (SIB11 sends e1d to event 1e, whose pointer the decoder leaves null).
TEST_F(ConvertLcr, EventRows) {
  for (uint32_t tag : {3u, 4u, 5u, 6u, 7u, 8u, 9u}) {
    SCOPED_TRACE("event " + std::to_string(tag));
    Shape s;
    s.event = tag;
    Pool p;
    sib11(p, 0, s);
    sib12(p, 3, s);
  }
}

// A cell with 6 timeslots fills its array; cells without timeslots or primary CCPCH identity.
TEST_F(ConvertLcr, SixTimeslotsFillTheArray) {
  Shape s;
  s.timeslots = 6;
  for (int form = 0; form < 4; form++) allTrees(form, s);
  s.timeslots = 0;
  allTrees(1, s);
}

// Without cellSelectionReselectionInfo an LCR cell keeps its primary CCPCH in SIB12 and
// SIB11bis, bit 3 clear; the ECN0 cell of SIB11 has a zero primaryCCPCH_Info (the others keep it).
TEST_F(ConvertLcr, CellWithoutSelectionInfo) {
  Shape s;
  s.selection = false;
  for (int form = 0; form < 4; form++) allTrees(form, s);
  Pool p;
  const auto& g11 = sib11(p, 1, s).use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_Ec_N0;
  const umts_cell_info_si_ecno_lcr_r4& c11 = g11.intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList.entries[1].cellInfo;
  EXPECT_EQ(c11.presence_bitmask & 8u, 0);
  EXPECT_TRUE(allZero(c11.primaryCCPCH_Info));
  const auto& g12 = sib12(p, 1, s).use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_Ec_N0;
  const umts_cell_info_si_ecno_lcr_r4& c12 = g12.intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList.entries[1].cellInfo;
  EXPECT_EQ(c12.primaryCCPCH_Info.cellParametersID, 17);  // the second cell, salt 2: (2 * 7 + 3) % 128
  EXPECT_EQ(c12.primaryCCPCH_Info.sctd_Indicator, 1);
}

// An RSCP element without intraFreqCellID: in SIB11 all zero but for the list count that
// holds it; SIB12, SIB11bis and the other forms of SIB11 keep its cell.
TEST_F(ConvertLcr, IntraCellWithoutIdentity) {
  Shape s;
  s.noIdAt = 1;
  for (int form = 0; form < 4; form++) allTrees(form, s);
  Pool p;
  const auto& list = sib11(p, 0, s)
                         .use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_RSCP.intraFreqMeasurementSysInfo
                         .intraFreqCellInfoSI_List.newIntraFreqCellList;
  EXPECT_EQ(list.count, 3);
  EXPECT_TRUE(allZero(list.entries[1]));
  EXPECT_EQ(list.entries[2].intraFreqCellID, 5);
}

// HCS_RSCP selection records without the neighbouring HCS information: SIB11 leaves their
// mandatory modeSpecificInfo zero, SIB12 and SIB11bis convert it.
TEST_F(ConvertLcr, HcsRscpSelectionWithoutHcsInformation) {
  Shape s;
  s.hcsInfo = false;
  for (int form = 2; form < 4; form++) allTrees(form, s);
  Pool p;
  const auto& c11 = sib11(p, 2, s).use_of_HCS.u.hcs_used.cellSelectQualityMeasure.u.cpich_RSCP.intraFreqMeasurementSysInfo
                        .intraFreqCellInfoSI_List.newIntraFreqCellList.entries[0].cellInfo.cellSelectionReselectionInfo;
  EXPECT_TRUE(allZero(c11.modeSpecificInfo));
  const auto& c12 = sib12(p, 2, s).use_of_HCS.u.hcs_used.cellSelectQualityMeasure.u.cpich_RSCP.intraFreqMeasurementSysInfo
                        .intraFreqCellInfoSI_List.newIntraFreqCellList.entries[0].cellInfo.cellSelectionReselectionInfo;
  EXPECT_EQ(c12.modeSpecificInfo.choice_tag, 2u);  // salt 1
}

// removeSomeInterFreqCells of more than 8 identities: in SIB11's RSCP list, converted after
// the new cells, the copy of 4 bytes per identity runs on over the first bytes of
// newInterFreqCellList, its count first, which reads 0, and the list reads empty byte for
// byte; SIB12 keeps the list intact, and so do the other forms of SIB11, whose new cells are
// converted afterwards. 8 identities stay within the array.
TEST_F(ConvertLcr, RemovedInterFreqCellsRunOnInSib11Rscp) {
  for (unsigned n : {8u, 9u, 12u, 32u}) {
    SCOPED_TRACE(std::to_string(n) + " removed identities");
    Shape s;
    s.removedInter = n;
    for (int form = 0; form < 4; form++) allTrees(form, s);
    Pool p;
    const umts_inter_freq_cell_info_si_list_rscp_lcr own =
        sib11(p, 0, s).use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_RSCP.interFreqMeasurementSysInfo
            .interFreqCellInfoSI_List;
    umts_inter_freq_cell_info_si_list_rscp_lcr expected =
        sib12(p, 0, s).use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_RSCP.interFreqMeasurementSysInfo
            .interFreqCellInfoSI_List;
    ASSERT_EQ(expected.newInterFreqCellList.count, 2);
    if (n > 8) std::memset(&expected.newInterFreqCellList, 0, sizeof expected.newInterFreqCellList);
    EXPECT_EQ(std::memcmp(&own, &expected, sizeof own), 0);
    EXPECT_EQ(own.newInterFreqCellList.count, n > 8 ? 0 : 2);
  }
}

// The JSON of the records names the LCR members, from the one field description.
TEST_F(ConvertLcr, LcrMembersInTheJson) {
  Pool p;
  sib12(p, 2, Shape{});
  std::vector<char> json(1 << 22);
  umts_sib_record_json(result, umts_sib_sib12, json.data(), json.size());
  const std::string text(json.data());
  for (const char* name : {"\"tstd_Indicator\"", "\"cellParametersID\"", "\"timeslotInfoList\"",
                           "\"hcs_NeighbouringCellInformation_RSCP\"", "\"forbiddenAffectCellList\"",
                           "\"interFreqCellInfoSI_List\""})
    EXPECT_NE(text.find(name), std::string::npos) << name;
}

// A set of umts_sib_set_alloc, cleared by what the conversion before wrote, reads as the
// caller's set after LCR trees of other forms and shapes, also after a SIB11 RSCP list whose
// removed cells ran on over its new cells.
TEST_F(ConvertLcr, LibrarySetAfterOtherForms) {
  umts_sib_set* own = umts_sib_set_alloc();
  ASSERT_NE(own, nullptr);
  Shape small;
  small.intraCells = 1;
  small.interCells = 1;
  small.timeslots = 1;
  small.event = 4;
  Shape big;
  big.intraCells = 6;
  big.timeslots = 6;
  Shape runOn = big;
  runOn.removedInter = 12;
  for (int step = 0; step < 10; step++) {
    const int form = step < 4 ? 0 : (step * 3) % 4;
    const Shape& s = step % 2 ? small : step % 4 == 0 ? runOn : big;
    for (umts_sib_id id : {umts_sib_sib11, umts_sib_sib12, umts_sib_sib11bis}) {
      SCOPED_TRACE(std::string(umts_sib_name(id)) + " step " + std::to_string(step));
      Pool p;
      const std::vector<uint8_t> bytes = encoded(p, id, form, s);
      ASSERT_EQ(whole(id, bytes), 1);
      uint8_t mine = 0;
      captureStdout([&] { mine = umts_sib_msg_decoder(id, bytes.data(), own, static_cast<uint32_t>(bytes.size())); });
      ASSERT_EQ(mine, 1);
      EXPECT_EQ(std::memcmp(own, result, sizeof *own), 0);
    }
  }
  umts_sib_set_free(own);
}

}  // namespace
