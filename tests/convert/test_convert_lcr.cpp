// The LCR (TDD 1.28 Mcps) measurement control trees: SIB12 and SIB11 (v4b0 extension) and
// SIB11bis. Values built in code in each of the four forms, encoded by the codec and converted
// by the library: SIB12's record is checked against the values built, SIB11's against SIB12's
// but where SIB11 keeps conversions of its own, and SIB11bis's cell lists against SIB12's.
#include <string>

#include "convert_test.h"
#include "meas_builder.h"
#include "umts_sib_json.h"

using namespace converttest;
using meastest::buildSelection;

namespace {

// The decoded types of a form.
#define LCR_FORM(Name, V)                                         \
  struct Name {                                                   \
    using NewIntra = NewIntraFreqCellSI_##V##_LCR_r4;             \
    using NewInter = NewInterFreqCellSI_##V##_LCR_r4;             \
    using IntraMeas = IntraFreqMeasurementSysInfo_##V##_LCR_r4;   \
    using InterMeas = InterFreqMeasurementSysInfo_##V##_LCR_r4;   \
  };
LCR_FORM(Rscp, RSCP)
LCR_FORM(Ecno, ECN0)
LCR_FORM(HcsRscp, HCS_RSCP)
LCR_FORM(HcsEcno, HCS_ECN0)

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
    buildSelection(p, c.cellSelectionReselectionInfo, salt, shape.hcsInfo);
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
      p.alloc(e->frequencyInfo.modeSpecificInfo.u.tdd)->uarfcn_Nt = static_cast<uint16_t>(10054 + i);
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
  auto* tdd = p.alloc(r.intraFreqReportingQuantity.activeSetReportingQuantities.modeSpecificInfo.u.tdd);
  tdd->timeslotISCP_reportingIndicator = 1;
  tdd->pathloss_reportingIndicator = 1;
  r.intraFreqReportingQuantity.activeSetReportingQuantities.cellIdentity_reportingIndicator = 1;
  r.intraFreqReportingQuantity.monitoredSetReportingQuantities.modeSpecificInfo.t = 2;
  r.intraFreqReportingQuantity.monitoredSetReportingQuantities.modeSpecificInfo.u.tdd = tdd;
  r.intraFreqReportingQuantity.monitoredSetReportingQuantities.dummy = 1;
  r.measurementReportingMode.measurementReportTransferMode = 1;
  r.measurementReportingMode.periodicalOrEventTrigger = 1;
  r.reportCriteria.t = 1;
  auto* crit = p.alloc(r.reportCriteria.u.intraFreqReportingCriteria);
  crit->m = 1;
  auto* c1 = p.add<IntraFreqEventCriteria_LCR_r4>(crit->eventCriteriaList);
  c1->event.t = 1;
  p.alloc(c1->event.u.e1a)->m = 1;
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
  p.alloc(c2->event.u.e1b)->m = 1;
  fillForbidden(p, c2->event.u.e1b->forbiddenAffectCellList, 1);
  c2->event.u.e1b->triggeringCondition = 1;
  c2->event.u.e1b->reportingRange = 29;
  c2->event.u.e1b->w = 20;
  c2->hysteresis = 15;
  auto* c3 = p.add<IntraFreqEventCriteria_LCR_r4>(crit->eventCriteriaList);
  c3->event.t = s.event;
  if (s.event == 3) *p.alloc(c3->event.u.e1c) = Event1c{5, 2, 7};
  if (s.event == 5) *p.alloc(c3->event.u.e1e) = Event1e{1, -80};
  if (s.event == 6) *p.alloc(c3->event.u.e1f) = Event1f{1, -80};
  if (s.event == 8 || s.event == 9) c3->event.u.e1h = static_cast<int16_t>(s.event == 8 ? 150 : -115);
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
    auto* some = p.alloc(list.removedIntraFreqCellList.u.removeSomeIntraFreqCells);
    some->n = s.removedIntra;
    for (unsigned i = 0; i < s.removedIntra; i++) some->elem[i] = static_cast<uint8_t>(31 - i);
  }
  buildNewIntra<F>(p, list.newIntraFreqCellList, s);
  m.intraFreqMeasQuantity.filterCoefficient = 3;
  m.intraFreqMeasQuantity.modeSpecificInfo.t = 2;
  p.alloc(m.intraFreqMeasQuantity.modeSpecificInfo.u.tdd)->intraFreqMeasQuantity_TDDList = {3, {0, 2, 1}};
  m.intraFreqReportingQuantityForRACH.sfn_SFN_OTD_Type = 1;
  m.intraFreqReportingQuantityForRACH.modeSpecificInfo.t = 2;
  p.alloc(m.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.tdd)->intraFreqRepQuantityRACH_TDDList = {1, {1}};
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
    auto* some = p.alloc(list.removedInterFreqCellList.u.removeSomeInterFreqCells);
    some->n = s.removedInter;
    for (unsigned i = 0; i < s.removedInter; i++) some->elem[i] = static_cast<uint8_t>((1 + i) % 32);
  }
  if (s.interCells > 0) {
    list.m |= 2u;
    buildNewInter<F>(p, list.newInterFreqCellList, s);
  }
}

// The alternative of the form (hcs, quality) under `use`: 1 1 RSCP, 1 2 ECN0, 2 1 HCS_RSCP,
// 2 2 HCS_ECN0; `build` fills it, given the form's decoded types.
template <class Use, class Build>
void buildForm(Pool& p, Use& use, int form, Build build) {
  use.t = form < 2 ? 1 : 2;
  auto quality = [&](auto& q, auto rscp, auto ecno) {
    q.t = 1 + form % 2;
    if (form % 2 == 0) build(rscp, *p.alloc(q.u.cpich_RSCP));
    else build(ecno, *p.alloc(q.u.cpich_Ec_N0));
  };
  if (form < 2) quality(p.alloc(use.u.hcs_not_used)->cellSelectQualityMeasure, Rscp{}, Ecno{});
  else quality(p.alloc(use.u.hcs_used)->cellSelectQualityMeasure, HcsRscp{}, HcsEcno{});
}

// The tree of SIB11 and SIB12: both frequency records.
void buildExt(Pool& p, MeasurementControlSysInfo_LCR_r4_ext& e, int form, const Shape& s) {
  buildForm(p, e.use_of_HCS, form, [&](auto f, auto& q) {
    q.m = 3;
    buildIntraMeas<decltype(f)>(p, q.intraFreqMeasurementSysInfo, s);
    buildInterMeas<decltype(f)>(p, q.interFreqMeasurementSysInfo, s);
  });
}

// SIB11bis: the two new-cell lists, and one inter-RAT cell in the hcs_used branch.
void buildBis(Pool& p, MeasurementControlSysInfoExtension_LCR_r4& e, int form, const Shape& s) {
  buildForm(p, e.use_of_HCS, form, [&](auto f, auto& q) {
    q.m = 3;
    buildNewIntra<decltype(f)>(p, q.newIntraFreqCellList, s);
    buildNewInter<decltype(f)>(p, q.newInterFreqCellList, s);
  });
  if (form < 2) return;
  auto& h = *e.use_of_HCS.u.hcs_used;
  h.m = 1;
  NewInterRATCell* rat = p.add<NewInterRATCell>(h.newInterRATCellList);
  rat->m = 1;
  rat->interRATCellID = 17;
  rat->technologySpecificInfo.t = 3;  // absent
}

// ---- Checks ---------------------------------------------------------------------------------

// The quality alternative of `form` in an LCR record of either tree, given to fn.
template <class Use, class Fn>
void alternativeOf(const Use& use, int form, Fn fn) {
  ASSERT_EQ(use.choice_tag, form < 2 ? 1u : 2u);
  const auto& nu = use.u.hcs_not_used.cellSelectQualityMeasure;
  const auto& hu = use.u.hcs_used.cellSelectQualityMeasure;
  ASSERT_EQ(form < 2 ? nu.choice_tag : hu.choice_tag, 1u + form % 2);
  if (form == 0) fn(nu.u.cpich_RSCP);
  if (form == 1) fn(nu.u.cpich_Ec_N0);
  if (form == 2) fn(hu.u.cpich_RSCP);
  if (form == 3) fn(hu.u.cpich_Ec_N0);
}

// The cells of salt 1 and 2 (the first two new intra-frequency cells) and 10 (the first
// inter-frequency cell), as the builder's rules give them, in a tree that converts them whole.
template <class Intra, class Inter>
void checkCells(const Intra& intra, const Inter& inter, const Shape& s) {
  ASSERT_EQ(intra.count, s.intraCells);
  const auto& c1 = intra.entries[0].cellInfo;
  const auto& c2 = intra.entries[1].cellInfo;
  EXPECT_EQ(intra.entries[1].intraFreqCellID, s.noIdAt == 1 ? 0 : 4);
  EXPECT_EQ(c1.presence_bitmask, 2u | (s.timeslots ? 4u : 0u) | (s.selection ? 8u : 0u));
  EXPECT_EQ(c1.primaryCCPCH_Info.presence_bitmask, 0);
  EXPECT_EQ(c1.primaryCCPCH_Info.tstd_Indicator, 1);
  EXPECT_EQ(c2.referenceTimeDifferenceToCell.choice_tag, 2u);
  EXPECT_EQ(c2.referenceTimeDifferenceToCell.u.accuracy256, 12);
  EXPECT_EQ(c2.primaryCCPCH_Info.cellParametersID, 17);  // (2 * 7 + 3) % 128
  EXPECT_EQ(c2.timeslotInfoList.count, s.timeslots);
  for (unsigned i = 0; i < 6; i++) EXPECT_EQ(c2.timeslotInfoList.entries[i], i < s.timeslots ? (i + 2) % 7 : 0) << i;
  if (s.selection) {
    EXPECT_EQ(c1.cellSelectionReselectionInfo.maxAllowedUL_TX_Power, -49);
    EXPECT_EQ(c2.cellSelectionReselectionInfo.modeSpecificInfo.choice_tag, 3u);  // gsm, salt 2
    EXPECT_EQ(c2.cellSelectionReselectionInfo.modeSpecificInfo.u.gsm.q_RxlevMin, 0) << "its bit clear";
  } else {
    EXPECT_TRUE(allZero(c1.cellSelectionReselectionInfo));
  }
  if (s.interCells == 0) return;
  ASSERT_EQ(inter.count, s.interCells);
  EXPECT_EQ(inter.entries[0].presence_bitmask, 3);
  EXPECT_EQ(inter.entries[0].frequencyInfo.u.tdd.uarfcn_Nt, 10054);
  EXPECT_EQ(inter.entries[1].frequencyInfo.choice_tag, 0u);
}

// The SIB12 record of the tree: every list and the reporting records.
void checkSib12(const umts_measurement_control_sys_info_lcr_r4_ext& f, int form, const Shape& s) {
  alternativeOf(f.use_of_HCS, form, [&](const auto& q) {
    EXPECT_EQ(q.presence_bitmask, 3);
    const auto& intra = q.intraFreqMeasurementSysInfo;
    const auto& removed = intra.intraFreqCellInfoSI_List.removedIntraFreqCellList.u.removeSomeIntraFreqCells;
    EXPECT_EQ(removed.count, s.removedIntra);
    if (s.removedIntra) { EXPECT_EQ(removed.entries[s.removedIntra - 1], 32 - s.removedIntra); }
    const auto& events = intra.reportingInfoForCellDCH.reportCriteria.u.intraFreqReportingCriteria.eventCriteriaList;
    ASSERT_EQ(events.count, 3);
    const auto& e1a = events.entries[0].event.u.e1a;
    EXPECT_EQ(e1a.reportingInterval, 6u);
    ASSERT_EQ(e1a.forbiddenAffectCellList.count, 3);
    EXPECT_EQ(e1a.forbiddenAffectCellList.entries[1].presence_bitmask, 1);
    EXPECT_EQ(e1a.forbiddenAffectCellList.entries[1].cellParametersID, 41);
    EXPECT_EQ(e1a.forbiddenAffectCellList.entries[2].cellParametersID, 0) << "its bit clear";
    EXPECT_EQ(events.entries[1].event.u.e1b.w, 20);
    // The third event: its tag, and the union as the tag's row leaves it (e1d and e1g: zero).
    umts_intra_freq_event_lcr_r4_u expected{};
    if (s.event == 3) expected.e1c = umts_event_1c{5, 2, 7};
    if (s.event == 5) expected.e1e = umts_event_1e{1, -80};
    if (s.event == 6) expected.e1f = umts_event_1f{1, -80};
    if (s.event == 8) expected.e1h = 150;
    if (s.event == 9) expected.e1i = -115;
    EXPECT_EQ(events.entries[2].event.choice_tag, s.event);
    EXPECT_EQ(std::memcmp(&events.entries[2].event.u, &expected, sizeof expected), 0) << "event tag " << s.event;
    const auto& inter = q.interFreqMeasurementSysInfo.interFreqCellInfoSI_List;
    EXPECT_EQ(inter.removedInterFreqCellList.u.removeSomeInterFreqCells.count, s.removedInter);
    for (unsigned i = 0; i < 32; i++)
      EXPECT_EQ(inter.removedInterFreqCellList.u.removeSomeInterFreqCells.entries[i], i < s.removedInter ? (1 + i) % 32 : 0) << i;
    checkCells(intra.intraFreqCellInfoSI_List.newIntraFreqCellList, inter.newInterFreqCellList, s);
  });
}

// SIB11's record of the tree is SIB12's but where SIB11 keeps its own conversions: an RSCP
// cell without identity stays zero; the ECN0 cell's primary CCPCH needs
// cellSelectionReselectionInfo; the HCS_RSCP selection record's mode needs the HCS
// information; the RSCP inter-frequency list converts new cells before removed cells, and
// above 8 removed identities the new-cell list reads empty.
void expectSib11AsSib12(const umts_measurement_control_sys_info_lcr_r4_ext& sib11,
                        const umts_measurement_control_sys_info_lcr_r4_ext& fromSib12, int form, const Shape& s) {
  const auto copy = std::make_unique<umts_measurement_control_sys_info_lcr_r4_ext>(fromSib12);
  auto& sib12 = *copy;
  auto& use = sib12.use_of_HCS;
  auto& nu = use.u.hcs_not_used.cellSelectQualityMeasure.u;
  auto& hu = use.u.hcs_used.cellSelectQualityMeasure.u;
  auto& intraRscp = nu.cpich_RSCP.intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList;
  if (form == 0 && s.noIdAt >= 0) std::memset(&intraRscp.entries[s.noIdAt], 0, sizeof intraRscp.entries[0]);
  if (form == 0 && s.removedInter > 8)
    std::memset(&nu.cpich_RSCP.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList, 0,
                sizeof nu.cpich_RSCP.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList);
  auto& intraEcno = nu.cpich_Ec_N0.intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList;
  auto& interEcno = nu.cpich_Ec_N0.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList;
  if (form == 1 && !s.selection) {
    for (auto& e : intraEcno.entries) std::memset(&e.cellInfo.primaryCCPCH_Info, 0, sizeof e.cellInfo.primaryCCPCH_Info);
    for (auto& e : interEcno.entries) std::memset(&e.cellInfo.primaryCCPCH_Info, 0, sizeof e.cellInfo.primaryCCPCH_Info);
  }
  auto& intraHcs = hu.cpich_RSCP.intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList;
  auto& interHcs = hu.cpich_RSCP.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList;
  if (form == 2 && !s.hcsInfo) {
    for (auto& e : intraHcs.entries) std::memset(&e.cellInfo.cellSelectionReselectionInfo.modeSpecificInfo, 0, sizeof e.cellInfo.cellSelectionReselectionInfo.modeSpecificInfo);
    for (auto& e : interHcs.entries) std::memset(&e.cellInfo.cellSelectionReselectionInfo.modeSpecificInfo, 0, sizeof e.cellInfo.cellSelectionReselectionInfo.modeSpecificInfo);
  }
  EXPECT_EQ(std::memcmp(&sib11, &sib12, sizeof sib12), 0);
}

// SIB11bis carries the two new-cell lists of the tree: they read as in SIB12.
void expectBisAsSib12(const umts_measurement_control_sys_info_extension_lcr_r4& bis,
                      const umts_measurement_control_sys_info_lcr_r4_ext& sib12, int form) {
  alternativeOf(bis.use_of_HCS, form, [&](const auto& b) {
    alternativeOf(sib12.use_of_HCS, form, [&](const auto& q) {
      using IntraList = std::decay_t<decltype(q.intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList)>;
      using InterList = std::decay_t<decltype(q.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList)>;
      if constexpr (std::is_same_v<IntraList, std::decay_t<decltype(b.newIntraFreqCellList)>> &&
                    std::is_same_v<InterList, std::decay_t<decltype(b.newInterFreqCellList)>>) {
        EXPECT_EQ(b.presence_bitmask, 3);
        EXPECT_EQ(std::memcmp(&b.newIntraFreqCellList, &q.intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList,
                              sizeof(IntraList)), 0);
        EXPECT_EQ(std::memcmp(&b.newInterFreqCellList, &q.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList,
                              sizeof(InterList)), 0);
      }
    });
  });
  if (form < 2) return;
  ASSERT_EQ(bis.use_of_HCS.u.hcs_used.newInterRATCellList.count, 1);
  EXPECT_EQ(bis.use_of_HCS.u.hcs_used.newInterRATCellList.entries[0].interRATCellID, 17);
}

const char* const kFormNames[] = {"RSCP", "ECN0", "HCS_RSCP", "HCS_ECN0"};

// The smallest main measurement control information: hcs_not_used, cpich_RSCP, no member.
void buildMeasurementControl(Pool& p, MeasurementControlSysInfo& mc) {
  mc.use_of_HCS.t = 1;
  auto& q = p.alloc(mc.use_of_HCS.u.hcs_not_used)->cellSelectQualityMeasure;
  q.t = 1;
  p.alloc(q.u.cpich_RSCP);
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
  // The message of the form and shape through SIB12, SIB11 and SIB11bis: SIB12's record
  // checked against the builder's rules, SIB11's against SIB12's, SIB11bis's lists too.
  void allTrees(int form, const Shape& s) {
    SCOPED_TRACE(kFormNames[form]);
    Pool p;
    ASSERT_EQ(whole(umts_sib_sib12, encoded(p, umts_sib_sib12, form, s)), 1);
    const auto sib12 = std::make_unique<umts_measurement_control_sys_info_lcr_r4_ext>(
        result->sib12.v4b0NonCriticalExtensions.sysInfoType12_v4b0ext.measurementControlSysInfo_LCR);
    checkSib12(*sib12, form, s);
    ASSERT_EQ(whole(umts_sib_sib11, encoded(p, umts_sib_sib11, form, s)), 1);
    expectSib11AsSib12(result->sib11.v4b0NonCriticalExtensions.sysInfoType11_v4b0ext.measurementControlSysInfo_LCR, *sib12, form, s);
    ASSERT_EQ(whole(umts_sib_sib11bis, encoded(p, umts_sib_sib11bis, form, s)), 1);
    EXPECT_EQ(result->sib11bis.presence_bitmask, 2);
    expectBisAsSib12(result->sib11bis.measurementControlSysInfo_LCR, *sib12, form);
  }
};

// ---- Tests --------------------------------------------------------------------------------------

// Each form in each tree, in shapes that tell SIB11's own conversions apart: six timeslots
// (the array full) or none, cells without cellSelectionReselectionInfo, an RSCP cell without
// identity, HCS_RSCP selection records without the HCS information, more than 8 removed
// inter-frequency identities (their copy of 4 bytes each runs on over the new-cell list),
// and the third event criteria in each of its rows (e1d, which SIB11 sends to event 1e, and
// e1g carry nothing and leave the union zero).
TEST_F(ConvertLcr, EachFormInEachTreeAndShape) {
  std::vector<Shape> shapes(1);
  shapes.push_back(Shape{}), shapes.back().timeslots = 6;
  shapes.push_back(Shape{}), shapes.back().timeslots = 0, shapes.back().selection = false;
  shapes.push_back(Shape{}), shapes.back().noIdAt = 1;
  shapes.push_back(Shape{}), shapes.back().hcsInfo = false;
  for (unsigned removed : {8u, 9u, 12u, 32u}) shapes.push_back(Shape{}), shapes.back().removedInter = removed;
  for (uint32_t tag : {3u, 4u, 6u, 7u, 8u, 9u}) shapes.push_back(Shape{}), shapes.back().event = tag;
  for (size_t k = 0; k < shapes.size(); k++) {
    SCOPED_TRACE("shape " + std::to_string(k));
    for (int form = 0; form < 4; form++) allTrees(form, shapes[k]);
  }
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
