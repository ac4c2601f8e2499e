// SIB11, SIB11bis and SIB12: values built in code, encoded by the codec, converted by the
// library (whole and over the BCH) and compared field by field with what was built.
#include <cstdlib>
#include <type_traits>

#include "bch_segmenter.h"
#include "frame_test_util.h"
#include "meas_pool.h"
#include "umts_sib_convert.h"

using namespace frametest;
using meastest::Pool;

namespace {

template <class P>
using Pointee = std::remove_pointer_t<P>;

#define UMTS_HAS_MEMBER(trait, member)                                                      \
  template <class T, class = void>                                                          \
  struct trait : std::false_type {};                                                        \
  template <class T>                                                                        \
  struct trait<T, std::void_t<decltype(std::declval<T&>().member)>> : std::true_type {};
UMTS_HAS_MEMBER(HasOneOffset, q_OffsetS_N)
UMTS_HAS_MEMBER(HasHcsRscp, hcs_NeighbouringCellInformation_RSCP)
UMTS_HAS_MEMBER(HasHcsEcn0, hcs_NeighbouringCellInformation_ECN0)
UMTS_HAS_MEMBER(HasSib12Indicator, sib12indicator)
static_assert(HasSib12Indicator<umts_sib11_info>::value && !HasSib12Indicator<umts_sib12_info>::value,
              "sib12indicator is SIB11's alone");

// ---- Cells: built from their index, in any of the four forms ---------------------------------

template <class Sel>
void buildSelection(Pool& p, Sel& s, unsigned i) {
  if constexpr (HasOneOffset<Sel>::value) {
    s.q_OffsetS_N = static_cast<int8_t>(static_cast<int>(i) - 16);
  } else {
    s.q_Offset1S_N = static_cast<int8_t>(-static_cast<int>(i));
    s.q_Offset2S_N = static_cast<int8_t>(i);
  }
  if (i % 2) {
    s.m |= 1u;
    s.maxAllowedUL_TX_Power = static_cast<int8_t>(-50 + static_cast<int>(i));
  }
  if constexpr (HasHcsRscp<Sel>::value) {
    if (i % 4 == 0) {
      s.m |= 2u;
      auto& h = s.hcs_NeighbouringCellInformation_RSCP;
      h.hcs_PRIO = static_cast<uint8_t>(i % 8);
      h.q_HCS = static_cast<uint8_t>(90 + i % 10);
      h.hcs_CellReselectInformation.penaltyTime.t = 1 + (i / 4) % 7;
      if (h.hcs_CellReselectInformation.penaltyTime.t >= 2) h.hcs_CellReselectInformation.penaltyTime.u.pt10 = i % 8;
    }
  }
  if constexpr (HasHcsEcn0<Sel>::value) {
    if (i % 4 == 0) {
      s.m |= 2u;
      auto& h = s.hcs_NeighbouringCellInformation_ECN0;
      h.hcs_PRIO = static_cast<uint8_t>(i % 8);
      h.q_HCS = static_cast<uint8_t>(90 + i % 10);
      auto& pt = h.hcs_CellReselectInformation.penaltyTime;
      pt.t = 1 + (i / 4) % 7;
      if (pt.t >= 2) {
        pt.u.pt10 = p.make<TemporaryOffsetList>();
        pt.u.pt10->temporaryOffset1 = i % 8;
        pt.u.pt10->temporaryOffset2 = 7 - i % 8;
      }
    }
  }
  auto& mode = s.modeSpecificInfo;
  mode.t = 1 + i % 3;
  if (mode.t == 1) {
    auto* fdd = p.make<Pointee<decltype(mode.u.fdd)>>();
    mode.u.fdd = fdd;
    fdd->m = i % 4;
    fdd->q_QualMin = static_cast<int8_t>(-static_cast<int>(i % 25));
    fdd->q_RxlevMin = static_cast<int8_t>(-58 + static_cast<int>(i));
  } else if (mode.t == 2) {
    auto* tdd = p.make<Pointee<decltype(mode.u.tdd)>>();
    mode.u.tdd = tdd;
    tdd->m = i % 2;
    tdd->q_RxlevMin = static_cast<int8_t>(-13 - static_cast<int>(i));
  } else {
    auto* gsm = p.make<Pointee<decltype(mode.u.gsm)>>();
    mode.u.gsm = gsm;
    gsm->m = 1;
    gsm->q_RxlevMin = -40;
  }
}

template <class Sel, class Flat>
void checkSelection(const Sel& s, const Flat& f) {
  EXPECT_EQ(f.presence_bitmask, s.m);
  if constexpr (HasOneOffset<Sel>::value) {
    EXPECT_EQ(f.q_OffsetS_N, s.q_OffsetS_N);
  } else {
    EXPECT_EQ(f.q_Offset1S_N, s.q_Offset1S_N);
    EXPECT_EQ(f.q_Offset2S_N, s.q_Offset2S_N);
  }
  EXPECT_EQ(f.maxAllowedUL_TX_Power, s.m & 1u ? s.maxAllowedUL_TX_Power : 0);
  if constexpr (HasHcsRscp<Sel>::value) {
    const auto& h = s.hcs_NeighbouringCellInformation_RSCP;
    const auto& g = f.hcs_NeighbouringCellInformation_RSCP;
    if (s.m & 2u) {
      EXPECT_EQ(g.hcs_PRIO, h.hcs_PRIO);
      EXPECT_EQ(g.q_HCS, h.q_HCS);
      EXPECT_EQ(g.penaltyTime.choice_tag, h.hcs_CellReselectInformation.penaltyTime.t);
      EXPECT_EQ(g.penaltyTime.u.pt10,
                h.hcs_CellReselectInformation.penaltyTime.t >= 2 ? h.hcs_CellReselectInformation.penaltyTime.u.pt10 : 0u);
    } else {
      EXPECT_TRUE(allZero(g));
    }
  }
  if constexpr (HasHcsEcn0<Sel>::value) {
    const auto& h = s.hcs_NeighbouringCellInformation_ECN0;
    const auto& g = f.hcs_NeighbouringCellInformation_ECN0;
    if (s.m & 2u) {
      const auto& pt = h.hcs_CellReselectInformation.penaltyTime;
      EXPECT_EQ(g.hcs_PRIO, h.hcs_PRIO);
      EXPECT_EQ(g.q_HCS, h.q_HCS);
      EXPECT_EQ(g.penaltyTime.choice_tag, pt.t);
      EXPECT_EQ(g.penaltyTime.u.pt10.temporaryOffset1, pt.t >= 2 ? pt.u.pt10->temporaryOffset1 : 0u);
      EXPECT_EQ(g.penaltyTime.u.pt10.temporaryOffset2, pt.t >= 2 ? pt.u.pt10->temporaryOffset2 : 0u);
    } else {
      EXPECT_TRUE(allZero(g));
    }
  }
  const auto& mode = s.modeSpecificInfo;
  ASSERT_EQ(f.modeSpecificInfo.choice_tag, mode.t);
  if (mode.t == 1) {
    const auto& g = f.modeSpecificInfo.u.fdd;
    EXPECT_EQ(g.presence_bitmask, mode.u.fdd->m);
    EXPECT_EQ(g.q_QualMin, mode.u.fdd->m & 1u ? mode.u.fdd->q_QualMin : 0);
    EXPECT_EQ(g.q_RxlevMin, mode.u.fdd->m & 2u ? mode.u.fdd->q_RxlevMin : 0);
  } else {
    const auto& g = mode.t == 2 ? f.modeSpecificInfo.u.tdd : f.modeSpecificInfo.u.gsm;
    const uint32_t m = mode.t == 2 ? mode.u.tdd->m : mode.u.gsm->m;
    const int8_t q = mode.t == 2 ? mode.u.tdd->q_RxlevMin : mode.u.gsm->q_RxlevMin;
    EXPECT_EQ(g.presence_bitmask, m);
    EXPECT_EQ(g.q_RxlevMin, m ? q : 0);
  }
}

void buildPrimaryCcpch(Pool& p, PrimaryCCPCH_Info& c, unsigned i) {
  c.t = 2;
  c.u.tdd = p.make<PrimaryCCPCH_Info_tdd>();
  c.u.tdd->m = i % 4;
  c.u.tdd->syncCase.t = 1 + i % 2;
  if (c.u.tdd->syncCase.t == 1) {
    c.u.tdd->syncCase.u.syncCase1 = p.make<PrimaryCCPCH_Info_tdd_syncCase_syncCase1>();
    c.u.tdd->syncCase.u.syncCase1->timeslot = static_cast<uint8_t>(i % 15);
  } else {
    c.u.tdd->syncCase.u.syncCase2 = p.make<PrimaryCCPCH_Info_tdd_syncCase_syncCase2>();
    c.u.tdd->syncCase.u.syncCase2->timeslotSync2 = static_cast<uint8_t>(i % 7);
  }
  c.u.tdd->cellParametersID = static_cast<uint8_t>(i % 128);
  c.u.tdd->sctd_Indicator = 1;
}

void checkPrimaryCcpch(const PrimaryCCPCH_Info& c, const umts_primary_ccpch_info& f) {
  ASSERT_EQ(f.choice_tag, 2u);
  const umts_primary_ccpch_info_tdd& g = f.u.tdd;
  EXPECT_EQ(g.presence_bitmask, c.u.tdd->m);
  if (c.u.tdd->m & 1u) {
    EXPECT_EQ(g.syncCase.choice_tag, c.u.tdd->syncCase.t);
    EXPECT_EQ(g.syncCase.u.timeslot, c.u.tdd->syncCase.t == 1 ? c.u.tdd->syncCase.u.syncCase1->timeslot
                                                              : c.u.tdd->syncCase.u.syncCase2->timeslotSync2);
  } else {
    EXPECT_TRUE(allZero(g.syncCase));
  }
  EXPECT_EQ(g.cellParametersID, c.u.tdd->m & 2u ? c.u.tdd->cellParametersID : 0);
  EXPECT_EQ(g.sctd_Indicator, 1);
}

// CellInfoSI: timing in turn of the three accuracies and none, fdd cells at even and tdd
// cells at odd indices, a selection record on two cells of three.
template <class Cell>
void buildCell(Pool& p, Cell& c, unsigned i) {
  c.cellIndividualOffset = static_cast<int8_t>(static_cast<int>(i % 41) - 20);
  c.referenceTimeDifferenceToCell.t = 1 + i % 4;
  if (i % 4 != 3) c.m |= 1u;
  if (i % 4 == 0) c.referenceTimeDifferenceToCell.u.accuracy40 = static_cast<uint16_t>(i == 0 ? 960 : 700 + i);
  else if (i % 4 == 1) c.referenceTimeDifferenceToCell.u.accuracy256 = static_cast<uint8_t>(100 + i);
  else if (i % 4 == 2) c.referenceTimeDifferenceToCell.u.accuracy2560 = static_cast<uint8_t>(i % 15);
  else c.referenceTimeDifferenceToCell.t = 0;
  auto& mode = c.modeSpecificInfo;
  if (i % 2 == 0) {
    mode.t = 1;
    auto* fdd = p.make<Pointee<decltype(mode.u.fdd)>>();
    mode.u.fdd = fdd;
    fdd->m = (i / 2) % 4;
    fdd->primaryCPICH_Info.primaryScramblingCode = static_cast<uint16_t>((300 + 7 * i) % 512);
    fdd->primaryCPICH_TX_Power = static_cast<int8_t>(-10 + static_cast<int>(i));
    fdd->readSFN_Indicator = (i / 2) & 1;
    fdd->tx_DiversityIndicator = (i / 4) & 1;
  } else {
    mode.t = 2;
    auto* tdd = p.make<Pointee<decltype(mode.u.tdd)>>();
    mode.u.tdd = tdd;
    buildPrimaryCcpch(p, tdd->primaryCCPCH_Info, i);
    if (i % 3 == 0) {
      tdd->m |= 1u;
      tdd->primaryCCPCH_TX_Power = static_cast<uint8_t>(6 + i % 38);
    }
    if (i % 3 == 1) {
      tdd->m |= 2u;
      for (unsigned k = 0; k < 2 + i % 13; k++) {
        TimeslotInfo* t = p.add<TimeslotInfo>(tdd->timeslotInfoList);
        t->timeslotNumber = static_cast<uint8_t>(k);
        t->burstType = k % 2;
      }
    }
    tdd->readSFN_Indicator = 1;
  }
  if (i % 3 != 1) {
    c.m |= 2u;
    buildSelection(p, c.cellSelectionReselectionInfo, i);
  }
}

template <class Cell, class Flat>
void checkCell(const Cell& c, const Flat& f) {
  EXPECT_EQ(f.presence_bitmask, c.m);
  EXPECT_EQ(f.cellIndividualOffset, c.cellIndividualOffset);
  if (c.m & 1u) {
    EXPECT_EQ(f.referenceTimeDifferenceToCell.choice_tag, c.referenceTimeDifferenceToCell.t);
    // The width follows the accuracy: 16 bits for accuracy40, the low byte otherwise.
    if (c.referenceTimeDifferenceToCell.t == 1)
      EXPECT_EQ(f.referenceTimeDifferenceToCell.u.accuracy40, c.referenceTimeDifferenceToCell.u.accuracy40);
    else
      EXPECT_EQ(f.referenceTimeDifferenceToCell.u.accuracy40, c.referenceTimeDifferenceToCell.u.accuracy256);
  } else {
    EXPECT_TRUE(allZero(f.referenceTimeDifferenceToCell));
  }
  const auto& mode = c.modeSpecificInfo;
  ASSERT_EQ(f.modeSpecificInfo.choice_tag, mode.t);
  if (mode.t == 1) {
    const umts_cell_info_si_mode_specific_info_fdd& g = f.modeSpecificInfo.u.fdd;
    EXPECT_EQ(g.presence_bitmask, mode.u.fdd->m);
    EXPECT_EQ(g.primaryCPICH_Info, mode.u.fdd->m & 1u ? mode.u.fdd->primaryCPICH_Info.primaryScramblingCode : 0);
    EXPECT_EQ(g.primaryCPICH_TX_Power, mode.u.fdd->m & 2u ? mode.u.fdd->primaryCPICH_TX_Power : 0);
    EXPECT_EQ(g.readSFN_Indicator, mode.u.fdd->readSFN_Indicator);
    EXPECT_EQ(g.tx_DiversityIndicator, mode.u.fdd->tx_DiversityIndicator);
  } else {
    const umts_cell_info_si_mode_specific_info_tdd& g = f.modeSpecificInfo.u.tdd;
    EXPECT_EQ(g.presence_bitmask, mode.u.tdd->m);
    checkPrimaryCcpch(mode.u.tdd->primaryCCPCH_Info, g.primaryCCPCH_Info);
    EXPECT_EQ(g.primaryCCPCH_TX_Power, mode.u.tdd->m & 1u ? mode.u.tdd->primaryCCPCH_TX_Power : 0);
    EXPECT_EQ(g.timeslotInfoList.count, mode.u.tdd->m & 2u ? mode.u.tdd->timeslotInfoList.count : 0u);
    for (uint32_t k = 0; k < g.timeslotInfoList.count; k++) {
      EXPECT_EQ(g.timeslotInfoList.entries[k].timeslotNumber, k);
      EXPECT_EQ(g.timeslotInfoList.entries[k].burstType, k % 2);
    }
    EXPECT_EQ(g.readSFN_Indicator, 1);
  }
  if (c.m & 2u) checkSelection(c.cellSelectionReselectionInfo, f.cellSelectionReselectionInfo);
  else EXPECT_TRUE(allZero(f.cellSelectionReselectionInfo));
}

// A new intra-frequency cell list of `n` cells; every third one without its identity.
template <class Element>
void buildIntraCells(Pool& p, rtxDList& list, unsigned n, unsigned first = 0) {
  for (unsigned i = first; i < first + n; i++) {
    Element* e = p.add<Element>(list);
    if (i % 3 != 2) {
      e->m = 1;
      e->intraFreqCellID = static_cast<uint8_t>(31 - i % 32);
    }
    buildCell(p, e->cellInfo, i);
  }
}

template <class Element, class FlatList>
void checkIntraCells(const rtxDList& list, const FlatList& f) {
  ASSERT_EQ(f.count, list.count);
  const rtxDListNode* node = list.head;
  for (uint32_t i = 0; i < list.count; i++, node = node->next) {
    SCOPED_TRACE(i);
    const Element* e = static_cast<const Element*>(node->data);
    EXPECT_EQ(f.entries[i].presence_bitmask, e->m);
    EXPECT_EQ(f.entries[i].intraFreqCellID, e->m ? e->intraFreqCellID : 0);
    checkCell(e->cellInfo, f.entries[i].cellInfo);
  }
}

// A new inter-frequency cell list: an fdd frequency without uarfcn-UL, a tdd one, none.
template <class Element>
void buildInterCells(Pool& p, rtxDList& list, unsigned first) {
  for (unsigned i = first; i < first + 3; i++) {
    Element* e = p.add<Element>(list);
    e->m = i % 3 == 2 ? 0u : 1u;
    e->interFreqCellID = static_cast<uint8_t>(i % 32);
    FrequencyInfo_modeSpecificInfo& f = e->frequencyInfo.modeSpecificInfo;
    if (i % 3 == 0) {
      e->m |= 2u;
      f.t = 1;
      f.u.fdd = p.make<FrequencyInfoFDD>();
      f.u.fdd->uarfcn_DL = static_cast<uint16_t>(10700 + i);
    } else if (i % 3 == 1) {
      e->m |= 2u;
      f.t = 2;
      f.u.tdd = p.make<FrequencyInfoTDD>();
      f.u.tdd->uarfcn_Nt = static_cast<uint16_t>(9500 + i);
    }
    buildCell(p, e->cellInfo, i);
  }
}

// `ecn0`: the ECN0 form converts every frequency and never sets bit 1.
template <class Element, class FlatList>
void checkInterCells(const rtxDList& list, const FlatList& f, bool ecn0) {
  ASSERT_EQ(f.count, list.count);
  const rtxDListNode* node = list.head;
  for (uint32_t i = 0; i < list.count; i++, node = node->next) {
    SCOPED_TRACE(i);
    const Element* e = static_cast<const Element*>(node->data);
    const auto& g = f.entries[i];
    EXPECT_EQ(g.presence_bitmask, ecn0 ? e->m & 1u : e->m);
    EXPECT_EQ(g.interFreqCellID, e->m & 1u ? e->interFreqCellID : 0);
    const FrequencyInfo_modeSpecificInfo& fi = e->frequencyInfo.modeSpecificInfo;
    EXPECT_EQ(g.frequencyInfo.choice_tag, fi.t);
    if (fi.t == 1) {
      EXPECT_EQ(g.frequencyInfo.u.fdd.presence_bitmask, 0);
      EXPECT_EQ(g.frequencyInfo.u.fdd.uarfcn_UL, 0);
      EXPECT_EQ(g.frequencyInfo.u.fdd.uarfcn_DL, fi.u.fdd->uarfcn_DL);
    } else if (fi.t == 2) {
      EXPECT_EQ(g.frequencyInfo.u.tdd.uarfcn_Nt, fi.u.tdd->uarfcn_Nt);
    } else {
      EXPECT_TRUE(allZero(g.frequencyInfo));
    }
    checkCell(e->cellInfo, g.cellInfo);
  }
}

// ---- Events and reporting -----------------------------------------------------------------------

void buildEvent(Pool& p, IntraFreqEventCriteria& c, uint32_t tag) {
  IntraFreqEvent& e = c.event;
  e.t = tag;
  auto forbidden = [&](rtxDList& list) {
    ForbiddenAffectCell* a = p.add<ForbiddenAffectCell>(list);
    a->t = 1;
    a->u.fdd = p.make<PrimaryCPICH_Info>();
    a->u.fdd->primaryScramblingCode = 511;
    ForbiddenAffectCell* b = p.add<ForbiddenAffectCell>(list);
    b->t = 2;
    b->u.tdd = p.make<PrimaryCCPCH_Info>();
    buildPrimaryCcpch(p, *b->u.tdd, 3);
  };
  switch (tag) {
    case 1:
      e.u.e1a = p.make<Event1a>();
      e.u.e1a->m = 1;
      e.u.e1a->triggeringCondition = 2;
      e.u.e1a->reportingRange = 29;
      forbidden(e.u.e1a->forbiddenAffectCellList);
      e.u.e1a->w = 20;
      e.u.e1a->reportDeactivationThreshold = 7;
      e.u.e1a->reportingAmount = 6;
      e.u.e1a->reportingInterval = 5;
      break;
    case 2:
      e.u.e1b = p.make<Event1b>();
      e.u.e1b->triggeringCondition = 1;
      e.u.e1b->reportingRange = 3;
      e.u.e1b->w = 1;
      break;
    case 3:
      e.u.e1c = p.make<Event1c>();
      e.u.e1c->replacementActivationThreshold = 7;
      e.u.e1c->reportingAmount = 7;
      e.u.e1c->reportingInterval = 1;
      break;
    case 5:
      e.u.e1e = p.make<Event1e>();
      e.u.e1e->triggeringCondition = 2;
      e.u.e1e->thresholdUsedFrequency = -115;
      break;
    case 6:
      e.u.e1f = p.make<Event1f>();
      e.u.e1f->triggeringCondition = 1;
      e.u.e1f->thresholdUsedFrequency = 165;
      break;
    case 8: e.u.e1h = -115; break;
    case 9: e.u.e1i = 42; break;
    default: break;
  }
  c.hysteresis = static_cast<uint8_t>(tag);
  c.timeToTrigger = 15 - tag;
  if (tag % 2) {
    c.m = 1;
    c.reportingCellStatus.t = tag;  // 1..9: within the 14 alternatives
    c.reportingCellStatus.u.withinActiveSet = tag % 6;
  }
}

void checkEvent(const IntraFreqEventCriteria& c, const umts_intra_freq_event_criteria& f) {
  SCOPED_TRACE(c.event.t);
  EXPECT_EQ(f.presence_bitmask, c.m);
  EXPECT_EQ(f.hysteresis, c.hysteresis);
  EXPECT_EQ(f.timeToTrigger, c.timeToTrigger);
  EXPECT_EQ(f.reportingCellStatus.choice_tag, c.m ? c.reportingCellStatus.t : 0u);
  EXPECT_EQ(f.reportingCellStatus.u.withinActiveSet, c.m ? c.reportingCellStatus.u.withinActiveSet : 0u);
  const umts_intra_freq_event& e = f.event;
  ASSERT_EQ(e.choice_tag, c.event.t);
  switch (c.event.t) {
    case 1: {
      const umts_event_1a& g = e.u.e1a;
      EXPECT_EQ(g.presence_bitmask, 1);
      EXPECT_EQ(g.triggeringCondition, 2u);
      EXPECT_EQ(g.reportingRange, 29);
      ASSERT_EQ(g.forbiddenAffectCellList.count, 2);
      EXPECT_EQ(g.forbiddenAffectCellList.entries[0].choice_tag, 1u);
      EXPECT_EQ(g.forbiddenAffectCellList.entries[0].u.fdd, 511);
      EXPECT_EQ(g.forbiddenAffectCellList.entries[1].choice_tag, 2u);
      const rtxDListNode* second = c.event.u.e1a->forbiddenAffectCellList.head->next;
      checkPrimaryCcpch(*static_cast<const ForbiddenAffectCell*>(second->data)->u.tdd,
                        g.forbiddenAffectCellList.entries[1].u.tdd);
      EXPECT_EQ(g.w, 20);
      EXPECT_EQ(g.reportDeactivationThreshold, 7u);
      EXPECT_EQ(g.reportingAmount, 6u);
      EXPECT_EQ(g.reportingInterval, 5u);
      break;
    }
    case 2:
      EXPECT_EQ(e.u.e1b.presence_bitmask, 0);
      EXPECT_EQ(e.u.e1b.triggeringCondition, 1u);
      EXPECT_EQ(e.u.e1b.reportingRange, 3);
      EXPECT_EQ(e.u.e1b.w, 1);
      EXPECT_TRUE(allZero(e.u.e1b.forbiddenAffectCellList));
      break;
    case 3:
      EXPECT_EQ(e.u.e1c.replacementActivationThreshold, 7u);
      EXPECT_EQ(e.u.e1c.reportingAmount, 7u);
      EXPECT_EQ(e.u.e1c.reportingInterval, 1u);
      break;
    case 5:
      EXPECT_EQ(e.u.e1e.triggeringCondition, 2u);
      EXPECT_EQ(e.u.e1e.thresholdUsedFrequency, -115);
      break;
    case 6:
      EXPECT_EQ(e.u.e1f.triggeringCondition, 1u);
      EXPECT_EQ(e.u.e1f.thresholdUsedFrequency, 165);
      break;
    case 8: EXPECT_EQ(static_cast<uint16_t>(e.u.e1h), 0xFF8Du); break;  // -115, 16 bits
    case 9: EXPECT_EQ(e.u.e1i, 42); break;
    default: EXPECT_TRUE(allZero(e.u)); break;  // e1d, e1g: the tag only
  }
}

// ReportingInfoForCellDCH with the events of `tags` (at most 8).
void buildReporting(Pool& p, ReportingInfoForCellDCH& r, const std::vector<uint32_t>& tags) {
  IntraFreqReportingQuantity& q = r.intraFreqReportingQuantity;
  q.m = 1;
  CellReportingQuantities* sets[] = {&q.activeSetReportingQuantities, &q.monitoredSetReportingQuantities,
                                     &q.detectedSetReportingQuantities};
  for (int k = 0; k < 3; k++) {
    sets[k]->dummy = static_cast<uint32_t>(k);
    sets[k]->cellIdentity_reportingIndicator = k == 1;
    sets[k]->cellSynchronisationInfoReportingIndicator = k != 1;
    sets[k]->modeSpecificInfo.t = k == 2 ? 2 : 1;
    if (k == 2) {
      sets[k]->modeSpecificInfo.u.tdd = p.make<CellReportingQuantities_modeSpecificInfo_tdd>();
      sets[k]->modeSpecificInfo.u.tdd->proposedTGSN_ReportingRequired = 1;
      sets[k]->modeSpecificInfo.u.tdd->pathloss_reportingIndicator = 1;
    } else {
      sets[k]->modeSpecificInfo.u.fdd = p.make<CellReportingQuantities_modeSpecificInfo_fdd>();
      sets[k]->modeSpecificInfo.u.fdd->cpich_RSCP_reportingIndicator = 1;
    }
  }
  r.measurementReportingMode.measurementReportTransferMode = 1;
  r.measurementReportingMode.periodicalOrEventTrigger = 1;
  r.reportCriteria.t = 1;
  r.reportCriteria.u.intraFreqReportingCriteria = p.make<IntraFreqReportingCriteria>();
  r.reportCriteria.u.intraFreqReportingCriteria->m = 1;
  for (uint32_t tag : tags)
    buildEvent(p, *p.add<IntraFreqEventCriteria>(r.reportCriteria.u.intraFreqReportingCriteria->eventCriteriaList), tag);
}

void checkReporting(const ReportingInfoForCellDCH& r, const umts_reporting_info_for_cell_dch& f) {
  const umts_intra_freq_reporting_quantity& q = f.intraFreqReportingQuantity;
  EXPECT_EQ(q.presence_bitmask, 1);
  const umts_cell_reporting_quantities* sets[] = {&q.activeSetReportingQuantities, &q.monitoredSetReportingQuantities,
                                                  &q.detectedSetReportingQuantities};
  for (int k = 0; k < 3; k++) {
    EXPECT_EQ(sets[k]->dummy, static_cast<uint32_t>(k));
    EXPECT_EQ(sets[k]->cellIdentity_reportingIndicator, k == 1);
    EXPECT_EQ(sets[k]->cellSynchronisationInfoReportingIndicator, k != 1);
    EXPECT_EQ(sets[k]->modeSpecificInfo.choice_tag, k == 2 ? 2u : 1u);
  }
  EXPECT_EQ(q.activeSetReportingQuantities.modeSpecificInfo.u.fdd.cpich_RSCP_reportingIndicator, 1);
  EXPECT_EQ(q.activeSetReportingQuantities.modeSpecificInfo.u.fdd.cpich_Ec_N0_reportingIndicator, 0);
  EXPECT_EQ(q.detectedSetReportingQuantities.modeSpecificInfo.u.tdd.proposedTGSN_ReportingRequired, 1);
  EXPECT_EQ(q.detectedSetReportingQuantities.modeSpecificInfo.u.tdd.pathloss_reportingIndicator, 1);
  EXPECT_EQ(q.detectedSetReportingQuantities.modeSpecificInfo.u.tdd.timeslotISCP_reportingIndicator, 0);
  EXPECT_EQ(f.measurementReportingMode.measurementReportTransferMode, 1u);
  EXPECT_EQ(f.measurementReportingMode.periodicalOrEventTrigger, 1u);
  ASSERT_EQ(f.reportCriteria.choice_tag, 1u);
  const umts_intra_freq_reporting_criteria& c = f.reportCriteria.u.intraFreqReportingCriteria;
  const rtxDList& events = r.reportCriteria.u.intraFreqReportingCriteria->eventCriteriaList;
  EXPECT_EQ(c.presence_bitmask, 1);
  ASSERT_EQ(c.eventCriteriaList.count, events.count);
  const rtxDListNode* node = events.head;
  for (uint32_t i = 0; i < events.count; i++, node = node->next)
    checkEvent(*static_cast<const IntraFreqEventCriteria*>(node->data), c.eventCriteriaList.entries[i]);
}

// ---- The intra-frequency measurement record in any form -----------------------------------------

// Everything but the new cells, which the caller adds in the form's element type.
template <class Intra>
void buildIntra(Pool& p, Intra& m) {
  m.intraFreqMeasurementID = 16;
  m.m = 0x1Fu;
  m.intraFreqCellInfoSI_List.m = 1;
  m.intraFreqCellInfoSI_List.removedIntraFreqCellList.t = 2;
  auto* some = p.make<RemovedIntraFreqCellList_removeSomeIntraFreqCells>();
  m.intraFreqCellInfoSI_List.removedIntraFreqCellList.u.removeSomeIntraFreqCells = some;
  some->n = 3;
  some->elem[0] = 4, some->elem[1] = 31, some->elem[2] = 0;
  m.intraFreqMeasQuantity.filterCoefficient = 3;
  m.intraFreqMeasQuantity.modeSpecificInfo.t = 2;
  m.intraFreqMeasQuantity.modeSpecificInfo.u.tdd = p.make<IntraFreqMeasQuantity_modeSpecificInfo_tdd>();
  m.intraFreqMeasQuantity.modeSpecificInfo.u.tdd->intraFreqMeasQuantity_TDDList = {4, {0, 1, 2, 3}};
  m.intraFreqReportingQuantityForRACH.sfn_SFN_OTD_Type = 2;
  m.intraFreqReportingQuantityForRACH.modeSpecificInfo.t = 2;
  m.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.tdd = p.make<IntraFreqReportingQuantityForRACH_modeSpecificInfo_tdd>();
  m.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.tdd->intraFreqRepQuantityRACH_TDDList = {2, {1, 0}};
  m.maxReportedCellsOnRACH = 7;
  buildReporting(p, m.reportingInfoForCellDCH, {1, 2, 3, 4, 5, 6, 7, 8});
}

template <class Element, class Intra, class Flat>
void checkIntra(const Intra& m, const Flat& f) {
  EXPECT_EQ(f.presence_bitmask, 0x1F);
  EXPECT_EQ(f.intraFreqMeasurementID, 16);
  EXPECT_EQ(f.intraFreqCellInfoSI_List.presence_bitmask, 1);
  const auto& removed = f.intraFreqCellInfoSI_List.removedIntraFreqCellList;
  EXPECT_EQ(removed.choice_tag, 2u);
  EXPECT_EQ(removed.u.removeSomeIntraFreqCells.count, 3u);
  EXPECT_EQ(std::vector<uint8_t>(removed.u.removeSomeIntraFreqCells.entries, removed.u.removeSomeIntraFreqCells.entries + 3),
            (std::vector<uint8_t>{4, 31, 0}));
  checkIntraCells<Element>(m.intraFreqCellInfoSI_List.newIntraFreqCellList, f.intraFreqCellInfoSI_List.newIntraFreqCellList);
  EXPECT_EQ(f.intraFreqMeasQuantity.filterCoefficient, 3u);
  EXPECT_EQ(f.intraFreqMeasQuantity.modeSpecificInfo.choice_tag, 2u);
  const auto& tddList = f.intraFreqMeasQuantity.modeSpecificInfo.u.intraFreqMeasQuantity_TDDList;
  EXPECT_EQ(tddList.count, 4u);
  EXPECT_EQ(std::vector<uint32_t>(tddList.entries, tddList.entries + 4), (std::vector<uint32_t>{0, 1, 2, 3}));
  EXPECT_EQ(f.intraFreqReportingQuantityForRACH.sfn_SFN_OTD_Type, 2u);
  const auto& rach = f.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.intraFreqRepQuantityRACH_TDDList;
  EXPECT_EQ(rach.count, 2u);
  EXPECT_EQ(rach.entries[0], 1u);
  EXPECT_EQ(rach.entries[1], 0u);
  EXPECT_EQ(f.maxReportedCellsOnRACH, 7u);
  checkReporting(m.reportingInfoForCellDCH, f.reportingInfoForCellDCH);
}

template <class Inter>
void buildInter(Pool& p, Inter& m) {
  m.m = 1;
  m.interFreqCellInfoSI_List.m = 3;
  m.interFreqCellInfoSI_List.removedInterFreqCellList.t = 2;
  auto* some = p.make<RemovedInterFreqCellList_removeSomeInterFreqCells>();
  m.interFreqCellInfoSI_List.removedInterFreqCellList.u.removeSomeInterFreqCells = some;
  some->n = 5;
  for (uint8_t k = 0; k < 5; k++) some->elem[k] = static_cast<uint8_t>(10 + k);
}

template <class Flat>
void checkInterHead(const Flat& f) {
  EXPECT_EQ(f.presence_bitmask, 1);
  EXPECT_EQ(f.interFreqCellInfoSI_List.presence_bitmask, 3);
  const auto& removed = f.interFreqCellInfoSI_List.removedInterFreqCellList;
  EXPECT_EQ(removed.choice_tag, 2u);
  EXPECT_EQ(removed.u.removeSomeInterFreqCells.count, 5u);
  for (int k = 0; k < 32; k++) EXPECT_EQ(removed.u.removeSomeInterFreqCells.entries[k], k < 5 ? 10 + k : 0) << k;
}

// ---- One of the four forms of SIB11 / SIB12 ------------------------------------------------------

// The alternative of cellSelectQualityMeasure with both frequency records, or with the one
// of `which` (1 intra, 2 inter).
template <class Alternative>
Alternative* buildAlternative(Pool& p, unsigned which) {
  Alternative* a = p.make<Alternative>();
  if (which & 1u) {
    a->m |= 1u;
    buildIntra(p, a->intraFreqMeasurementSysInfo);
  }
  if (which & 2u) {
    a->m |= 2u;
    buildInter(p, a->interFreqMeasurementSysInfo);
  }
  return a;
}

template <class Gsm>
void buildGsm(Pool& p, Gsm& g, unsigned i) {
  g.m = i % 2;
  if (g.m) {
    g.cellSelectionReselectionInfo.m = 7;
    g.cellSelectionReselectionInfo.q_Offset1S_N = -50;
    g.cellSelectionReselectionInfo.q_Offset2S_N = 50;
    g.cellSelectionReselectionInfo.maxAllowedUL_TX_Power = 33;
    g.cellSelectionReselectionInfo.hcs_NeighbouringCellInformation_RSCP.hcs_PRIO = 7;
    g.cellSelectionReselectionInfo.hcs_NeighbouringCellInformation_RSCP.q_HCS = 99;
    g.cellSelectionReselectionInfo.hcs_NeighbouringCellInformation_RSCP.hcs_CellReselectInformation.penaltyTime.t = 7;
    g.cellSelectionReselectionInfo.hcs_NeighbouringCellInformation_RSCP.hcs_CellReselectInformation.penaltyTime.u.pt60 = 7;
    g.cellSelectionReselectionInfo.modeSpecificInfo.t = 3;
    g.cellSelectionReselectionInfo.modeSpecificInfo.u.gsm = p.make<CellSelectReselectInfoSIB_11_12_modeSpecificInfo_gsm>();
    g.cellSelectionReselectionInfo.modeSpecificInfo.u.gsm->m = 1;
    g.cellSelectionReselectionInfo.modeSpecificInfo.u.gsm->q_RxlevMin = -58;
  } else {
    g.cellSelectionReselectionInfo.modeSpecificInfo.t = 1;
    g.cellSelectionReselectionInfo.modeSpecificInfo.u.fdd = p.make<CellSelectReselectInfoSIB_11_12_modeSpecificInfo_fdd>();
  }
  g.interRATCellIndividualOffset = static_cast<int8_t>(-50 + static_cast<int>(i));
  g.bsic.ncc = static_cast<uint8_t>(i % 8);
  g.bsic.bcc = static_cast<uint8_t>(7 - i % 8);
  g.frequency_band = i % 2;
  g.bcch_ARFCN = static_cast<uint16_t>(1000 + i);
}

// The GSM neighbour `i`, in the full (`b` false) or B form.
template <class Gsm>
void checkGsm(const Gsm& g, const umts_new_inter_rat_cell_gsm& f, bool b) {
  EXPECT_EQ(f.presence_bitmask, g.m & 1u);  // bit 1 (bsic valid) never: the decoded dummy is not there
  if (g.m & 1u) {
    const umts_cell_select_reselect_info_sib_11_12& s = f.cellSelectionReselectionInfo;
    EXPECT_EQ(s.presence_bitmask, 7);
    EXPECT_EQ(s.q_Offset1S_N, -50);
    EXPECT_EQ(s.q_Offset2S_N, 50);
    EXPECT_EQ(s.maxAllowedUL_TX_Power, 33);
    EXPECT_EQ(s.hcs_NeighbouringCellInformation_RSCP.hcs_PRIO, 7);
    EXPECT_EQ(s.hcs_NeighbouringCellInformation_RSCP.q_HCS, 99);
    EXPECT_EQ(s.hcs_NeighbouringCellInformation_RSCP.penaltyTime.choice_tag, 7u);
    EXPECT_EQ(s.hcs_NeighbouringCellInformation_RSCP.penaltyTime.u.pt60, 7u);
    EXPECT_EQ(s.modeSpecificInfo.choice_tag, 3u);
    EXPECT_EQ(s.modeSpecificInfo.u.gsm.presence_bitmask, 1);
    EXPECT_EQ(s.modeSpecificInfo.u.gsm.q_RxlevMin, -58);
  } else {
    EXPECT_TRUE(allZero(f.cellSelectionReselectionInfo));
  }
  EXPECT_EQ(f.interRATCellIndividualOffset, g.interRATCellIndividualOffset);
  EXPECT_EQ(f.bsic.ncc, b ? g.bsic.ncc : 0);
  EXPECT_EQ(f.bsic.bcc, b ? g.bsic.bcc : 0);
  EXPECT_EQ(f.frequency_band, g.frequency_band);
  EXPECT_EQ(f.bcch_ARFCN, g.bcch_ARFCN);
}

// Inter-RAT cells: GSM, IS-2000, absent, GSM ...
template <class Cell>
void buildInterRatCells(Pool& p, rtxDList& list, unsigned n) {
  for (unsigned i = 0; i < n; i++) {
    Cell* c = p.add<Cell>(list);
    c->m = i % 2 ? 0u : 1u;
    c->interRATCellID = static_cast<uint8_t>(i);
    c->technologySpecificInfo.t = i % 4 == 1 ? 2 : i % 4 == 2 ? 3 : 1;
    if (c->technologySpecificInfo.t == 1) {
      auto* g = p.make<Pointee<decltype(c->technologySpecificInfo.u.gsm)>>();
      buildGsm(p, *g, i);
      c->technologySpecificInfo.u.gsm = g;
    } else if (c->technologySpecificInfo.t == 2) {
      c->technologySpecificInfo.u.is_2000 = p.make<Pointee<decltype(c->technologySpecificInfo.u.is_2000)>>();
      c->technologySpecificInfo.u.is_2000->is_2000SpecificMeasInfo = 1;
    }
  }
}

template <class Cell, class FlatList>
void checkInterRatCells(const rtxDList& list, const FlatList& f, bool b) {
  ASSERT_EQ(f.count, list.count);
  const rtxDListNode* node = list.head;
  for (uint32_t i = 0; i < list.count; i++, node = node->next) {
    SCOPED_TRACE(i);
    const Cell* c = static_cast<const Cell*>(node->data);
    const umts_new_inter_rat_cell& g = f.entries[i];
    EXPECT_EQ(g.presence_bitmask, c->m);
    EXPECT_EQ(g.interRATCellID, c->m ? c->interRATCellID : 0);
    EXPECT_EQ(g.technologySpecificInfo.choice_tag, c->technologySpecificInfo.t);
    if (c->technologySpecificInfo.t == 1) checkGsm(*c->technologySpecificInfo.u.gsm, g.technologySpecificInfo.u.gsm, b);
    else if (c->technologySpecificInfo.t == 2) EXPECT_EQ(g.technologySpecificInfo.u.is_2000SpecificMeasInfo, 1u);
    else EXPECT_TRUE(allZero(g.technologySpecificInfo.u));  // absent: the tag only
  }
}

// ---- The SIB11 cases: the four forms, each with both frequency records ---------------------------

struct FormCase {
  const char* name;
  uint32_t hcs;      // use_of_HCS: 1 hcs_not_used, 2 hcs_used
  uint32_t quality;  // cellSelectQualityMeasure: 1 cpich_RSCP, 2 cpich_Ec_N0
};
const FormCase kForms[] = {{"RSCP", 1, 1}, {"ECN0", 1, 2}, {"HCS_RSCP", 2, 1}, {"HCS_ECN0", 2, 2}};

// A MeasurementControlSysInfo of form `fc` with the frequency records of `which` and, under
// each use_of_HCS, its inter-RAT form.
struct MeasBuilder {
  Pool pool;
  MeasurementControlSysInfo mc{};
  unsigned cells;
  MeasBuilder(const FormCase& fc, unsigned which, unsigned cells_ = 12) : cells(cells_) {
    mc.use_of_HCS.t = fc.hcs;
    if (fc.hcs == 1) {
      auto* nu = pool.make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used>();
      mc.use_of_HCS.u.hcs_not_used = nu;
      nu->cellSelectQualityMeasure.t = fc.quality;
      if (fc.quality == 1) {
        auto* a = buildAlternative<MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP>(pool, which);
        nu->cellSelectQualityMeasure.u.cpich_RSCP = a;
        cellsOf<NewIntraFreqCellSI_RSCP, NewInterFreqCellSI_RSCP>(*a);
      } else {
        auto* a = buildAlternative<MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_Ec_N0>(pool, which);
        nu->cellSelectQualityMeasure.u.cpich_Ec_N0 = a;
        cellsOf<NewIntraFreqCellSI_ECN0, NewInterFreqCellSI_ECN0>(*a);
      }
      nu->m = 1;
      nu->interRATMeasurementSysInfo.m = 1;
      nu->interRATMeasurementSysInfo.interRATCellInfoList.removedInterRATCellList.t = 1;
      buildInterRatCells<NewInterRATCell_B>(pool, nu->interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList, 5);
    } else {
      auto* hu = pool.make<MeasurementControlSysInfo_use_of_HCS_hcs_used>();
      mc.use_of_HCS.u.hcs_used = hu;
      hu->cellSelectQualityMeasure.t = fc.quality;
      if (fc.quality == 1) {
        auto* a = buildAlternative<MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_RSCP>(pool, which);
        hu->cellSelectQualityMeasure.u.cpich_RSCP = a;
        cellsOf<NewIntraFreqCellSI_HCS_RSCP, NewInterFreqCellSI_HCS_RSCP>(*a);
      } else {
        auto* a = buildAlternative<MeasurementControlSysInfo_use_of_HCS_hcs_used_cellSelectQualityMeasure_cpich_Ec_N0>(pool, which);
        hu->cellSelectQualityMeasure.u.cpich_Ec_N0 = a;
        cellsOf<NewIntraFreqCellSI_HCS_ECN0, NewInterFreqCellSI_HCS_ECN0>(*a);
      }
      hu->m = 1;
      hu->interRATMeasurementSysInfo.m = 1;
      InterRATCellInfoList& l = hu->interRATMeasurementSysInfo.interRATCellInfoList;
      l.removedInterRATCellList.t = 2;
      l.removedInterRATCellList.u.removeSomeInterRATCells = pool.make<RemovedInterRATCellList_removeSomeInterRATCells>();
      l.removedInterRATCellList.u.removeSomeInterRATCells->n = 2;
      l.removedInterRATCellList.u.removeSomeInterRATCells->elem[0] = 9;
      l.removedInterRATCellList.u.removeSomeInterRATCells->elem[1] = 17;
      buildInterRatCells<NewInterRATCell>(pool, l.newInterRATCellList, 5);
      l.m = 1;
      l.cellsForInterRATMeasList.n = 6;
      for (uint8_t k = 0; k < 6; k++) l.cellsForInterRATMeasList.elem[k] = static_cast<uint8_t>(20 + k);
    }
  }
  template <class IntraElement, class InterElement, class Alternative>
  void cellsOf(Alternative& a) {
    if (a.m & 1u) buildIntraCells<IntraElement>(pool, a.intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList, cells);
    if (a.m & 2u) buildInterCells<InterElement>(pool, a.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList, 40);
  }
};

// Checks the alternative: each record by its own bit.
template <class IntraElement, class InterElement, class Alternative, class Flat>
void checkAlternative(const Alternative& a, const Flat& f) {
  const uint32_t expected = a.m;
  EXPECT_EQ(f.presence_bitmask, expected);
  if (a.m & 1u) checkIntra<IntraElement>(a.intraFreqMeasurementSysInfo, f.intraFreqMeasurementSysInfo);
  else EXPECT_TRUE(allZero(f.intraFreqMeasurementSysInfo));
  if (expected & 2u) {
    checkInterHead(f.interFreqMeasurementSysInfo);
    checkInterCells<InterElement>(a.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList,
                                  f.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList,
                                  std::is_same<InterElement, NewInterFreqCellSI_ECN0>::value);
  } else {
    EXPECT_TRUE(allZero(f.interFreqMeasurementSysInfo));
  }
}

void checkMeasurement(const MeasurementControlSysInfo& mc, const umts_measurement_control_sys_info& f) {
  ASSERT_EQ(f.use_of_HCS.choice_tag, mc.use_of_HCS.t);
  if (mc.use_of_HCS.t == 1) {
    const auto* nu = mc.use_of_HCS.u.hcs_not_used;
    const umts_hcs_not_used& g = f.use_of_HCS.u.hcs_not_used;
    ASSERT_EQ(g.cellSelectQualityMeasure.choice_tag, nu->cellSelectQualityMeasure.t);
    if (nu->cellSelectQualityMeasure.t == 1)
      checkAlternative<NewIntraFreqCellSI_RSCP, NewInterFreqCellSI_RSCP>(*nu->cellSelectQualityMeasure.u.cpich_RSCP,
                                                                         g.cellSelectQualityMeasure.u.cpich_RSCP);
    else
      checkAlternative<NewIntraFreqCellSI_ECN0, NewInterFreqCellSI_ECN0>(*nu->cellSelectQualityMeasure.u.cpich_Ec_N0,
                                                                         g.cellSelectQualityMeasure.u.cpich_Ec_N0);
    EXPECT_EQ(g.presence_bitmask, 1);
    EXPECT_EQ(g.interRATMeasurementSysInfo.presence_bitmask, 1);
    EXPECT_EQ(g.interRATMeasurementSysInfo.interRATCellInfoList.removedInterRATCellList.choice_tag, 1u);
    checkInterRatCells<NewInterRATCell_B>(nu->interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList,
                                          g.interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList, true);
  } else {
    const auto* hu = mc.use_of_HCS.u.hcs_used;
    const umts_hcs_used& g = f.use_of_HCS.u.hcs_used;
    ASSERT_EQ(g.cellSelectQualityMeasure.choice_tag, hu->cellSelectQualityMeasure.t);
    if (hu->cellSelectQualityMeasure.t == 1)
      checkAlternative<NewIntraFreqCellSI_HCS_RSCP, NewInterFreqCellSI_HCS_RSCP>(
          *hu->cellSelectQualityMeasure.u.cpich_RSCP, g.cellSelectQualityMeasure.u.cpich_RSCP);
    else
      checkAlternative<NewIntraFreqCellSI_HCS_ECN0, NewInterFreqCellSI_HCS_ECN0>(
          *hu->cellSelectQualityMeasure.u.cpich_Ec_N0, g.cellSelectQualityMeasure.u.cpich_Ec_N0);
    EXPECT_EQ(g.presence_bitmask, 1);
    const umts_inter_rat_cell_info_list& l = g.interRATMeasurementSysInfo.interRATCellInfoList;
    EXPECT_EQ(g.interRATMeasurementSysInfo.presence_bitmask, 1);
    EXPECT_EQ(l.presence_bitmask, 1);
    EXPECT_EQ(l.removedInterRATCellList.choice_tag, 2u);
    EXPECT_EQ(l.removedInterRATCellList.u.removeSomeInterRATCells.count, 2u);
    EXPECT_EQ(l.removedInterRATCellList.u.removeSomeInterRATCells.entries[0], 9);
    EXPECT_EQ(l.removedInterRATCellList.u.removeSomeInterRATCells.entries[1], 17);
    checkInterRatCells<NewInterRATCell>(hu->interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList,
                                        l.newInterRATCellList, false);
    // cellsForInterRATMeasList of 6: the count, the first 2 identities, 4 zero bytes.
    EXPECT_EQ(l.cellsForInterRATMeasList.count, 6u);
    EXPECT_EQ(std::vector<uint8_t>(l.cellsForInterRATMeasList.entries, l.cellsForInterRATMeasList.entries + 8),
              (std::vector<uint8_t>{20, 21, 0, 0, 0, 0, 0, 0}));
  }
}

class ConvertSib11 : public FrameTest {
 protected:
  uint8_t sib11(const SysInfoType11& s, std::string* out = nullptr) {
    return whole(umts_sib_sib11, encode(asn1PE_UMTS_SysInfoType11, s), out);
  }
};

TEST_F(ConvertSib11, FourFormsWithBothFrequencyRecords) {
  for (const FormCase& fc : kForms) {
    SCOPED_TRACE(fc.name);
    MeasBuilder b(fc, 3);
    SysInfoType11 s{};
    s.sib12indicator = 1;
    s.measurementControlSysInfo = b.mc;
    std::string out;
    ASSERT_EQ(sib11(s, &out), 1);
    EXPECT_EQ(out.rfind("Decoded SysInfoType11\n", 0), 0u);
    EXPECT_EQ(result->presence_bitmask, 1u << umts_sib_sib11);
    EXPECT_EQ(result->sib11.presence_bitmask, 0);
    EXPECT_EQ(result->sib11.sib12indicator, 1);
    EXPECT_TRUE(allZero(result->sib11.fach_MeasurementOccasionInfo));
    EXPECT_EQ(result->sib11.measurementControlSysInfo.presence_bitmask, 0);
    checkMeasurement(b.mc, result->sib11.measurementControlSysInfo);
  }
}

// Under hcs_not_used with cpich_Ec_N0, the configuration of most cells, both records come
// through, each by its own bit (the letter stopped after the intra-frequency record).
TEST_F(ConvertSib11, Ecn0WithoutHcsConvertsBothFrequencyRecords) {
  for (unsigned which : {1u, 2u, 3u}) {
    SCOPED_TRACE(which);
    MeasBuilder b(kForms[1], which);
    SysInfoType11 s{};
    s.measurementControlSysInfo = b.mc;
    ASSERT_EQ(sib11(s), 1);
    const umts_hcs_not_used_cpich_ec_n0& f =
        result->sib11.measurementControlSysInfo.use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_Ec_N0;
    EXPECT_EQ(f.presence_bitmask, which);
    EXPECT_EQ(allZero(f.interFreqMeasurementSysInfo), which == 1);
    checkMeasurement(b.mc, result->sib11.measurementControlSysInfo);
  }
  // The RSCP twin converts both.
  MeasBuilder rscp(kForms[0], 3);
  SysInfoType11 s{};
  s.measurementControlSysInfo = rscp.mc;
  ASSERT_EQ(sib11(s), 1);
  EXPECT_EQ(result->sib11.measurementControlSysInfo.use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_RSCP
                .presence_bitmask,
            3);
}

// 32 intra-frequency cells, the schema's bound, in each form.
TEST_F(ConvertSib11, ThirtyTwoIntraFrequencyCells) {
  for (const FormCase& fc : kForms) {
    SCOPED_TRACE(fc.name);
    MeasBuilder b(fc, 1, 32);
    SysInfoType11 s{};
    s.measurementControlSysInfo = b.mc;
    ASSERT_EQ(sib11(s), 1);
    checkMeasurement(b.mc, result->sib11.measurementControlSysInfo);
    const auto& u = result->sib11.measurementControlSysInfo.use_of_HCS.u;
    const uint8_t count = fc.hcs == 1
        ? (fc.quality == 1 ? u.hcs_not_used.cellSelectQualityMeasure.u.cpich_RSCP.intraFreqMeasurementSysInfo
                                 .intraFreqCellInfoSI_List.newIntraFreqCellList.count
                           : u.hcs_not_used.cellSelectQualityMeasure.u.cpich_Ec_N0.intraFreqMeasurementSysInfo
                                 .intraFreqCellInfoSI_List.newIntraFreqCellList.count)
        : (fc.quality == 1 ? u.hcs_used.cellSelectQualityMeasure.u.cpich_RSCP.intraFreqMeasurementSysInfo
                                 .intraFreqCellInfoSI_List.newIntraFreqCellList.count
                           : u.hcs_used.cellSelectQualityMeasure.u.cpich_Ec_N0.intraFreqMeasurementSysInfo
                                 .intraFreqCellInfoSI_List.newIntraFreqCellList.count);
    EXPECT_EQ(count, 32);
  }
}

// Events 1a to 1i, each with its record (e1d and e1g only their tag); the list holds 8.
TEST_F(ConvertSib11, EventsOneAToOneI) {
  for (const std::vector<uint32_t>& tags : {std::vector<uint32_t>{1, 2, 3, 4, 5, 6, 7, 8}, std::vector<uint32_t>{9}}) {
    MeasBuilder b(kForms[0], 1, 2);
    auto& intra = b.mc.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.u.cpich_RSCP->intraFreqMeasurementSysInfo;
    intra.reportingInfoForCellDCH = {};
    buildReporting(b.pool, intra.reportingInfoForCellDCH, tags);
    SysInfoType11 s{};
    s.measurementControlSysInfo = b.mc;
    ASSERT_EQ(sib11(s), 1);
    checkMeasurement(b.mc, result->sib11.measurementControlSysInfo);
  }
}

// FACH occasion, traffic volume and the UE internal measurement (the element dummy).
TEST_F(ConvertSib11, FachOccasionTrafficVolumeAndUeInternal) {
  Pool p;
  SysInfoType11 s{};
  s.m = 1;
  FACH_MeasurementOccasionInfo& fach = s.fach_MeasurementOccasionInfo;
  fach.m = 3;
  fach.fACH_meas_occasion_coeff = 12;
  fach.inter_freq_FDD_meas_ind = 1;
  fach.inter_RAT_meas_ind.n = 2;
  fach.inter_RAT_meas_ind.elem[0] = 1;
  fach.inter_RAT_meas_ind.elem[1] = 0;
  MeasurementControlSysInfo& mc = s.measurementControlSysInfo;
  mc.use_of_HCS.t = 1;
  mc.use_of_HCS.u.hcs_not_used = p.make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used>();
  mc.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.t = 1;
  mc.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.u.cpich_RSCP =
      p.make<MeasurementControlSysInfo_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP>();
  mc.m = 3;
  TrafficVolumeMeasSysInfo& tv = mc.trafficVolumeMeasSysInfo;
  tv.m = 0x1F;
  tv.trafficVolumeMeasurementID = 4;
  const uint32_t objectTags[] = {1, 2, 3};
  for (uint32_t t : objectTags) {
    UL_TrCH_Identity* id = p.add<UL_TrCH_Identity>(tv.trafficVolumeMeasurementObjectList);
    id->t = t;
    if (t != 2) id->u.dch = static_cast<uint8_t>(10 * t);
  }
  tv.trafficVolumeMeasQuantity.t = 3;
  tv.trafficVolumeMeasQuantity.u.varianceOfRLC_BufferPayload = 13;
  tv.trafficVolumeReportingQuantity.rlc_RB_BufferPayloadAverage = 1;
  tv.dummy.m = 1;
  TransChCriteria* tc = p.add<TransChCriteria>(tv.dummy.transChCriteriaList);
  tc->m = 3;
  tc->ul_transportChannelID.t = 1;
  tc->ul_transportChannelID.u.dch = 32;
  for (uint32_t k = 0; k < 2; k++) {
    TrafficVolumeEventParam* e = p.add<TrafficVolumeEventParam>(tc->eventSpecificParameters);
    e->m = k ? 5u : 2u;
    e->eventID = k;
    e->reportingThreshold = 10 + k;
    e->timeToTrigger = 3;
    e->pendingTimeAfterTrigger = 4;
    e->tx_InterruptionAfterTrigger = 5;
  }
  TransChCriteria* rach = p.add<TransChCriteria>(tv.dummy.transChCriteriaList);
  rach->m = 1;
  rach->ul_transportChannelID.t = 2;
  tv.measurementValidity.ue_State = 2;
  tv.measurementReportingMode = {1, 1};
  tv.reportCriteriaSysInf.t = 2;
  tv.reportCriteriaSysInf.u.periodicalReportingCriteria = p.make<PeriodicalReportingCriteria>();
  *tv.reportCriteriaSysInf.u.periodicalReportingCriteria = {5, 14};
  mc.dummy.ue_InternalMeasurementID = 16;
  mc.dummy.ue_InternalMeasQuantity = {2, 9};
  ASSERT_EQ(sib11(s), 1);

  const umts_sib11_info& f = result->sib11;
  EXPECT_EQ(f.presence_bitmask, 1);
  EXPECT_EQ(f.sib12indicator, 0);  // copied, whatever the optional elements
  const umts_fach_measurement_occasion_info& g = f.fach_MeasurementOccasionInfo;
  EXPECT_EQ(g.presence_bitmask, 3);
  EXPECT_EQ(g.fACH_meas_occasion_coeff, 12);
  EXPECT_EQ(g.inter_freq_FDD_meas_ind, 1);
  EXPECT_EQ(g.inter_freq_TDD_meas_ind, 0);
  EXPECT_EQ(g.inter_RAT_meas_ind.count, 2u);
  EXPECT_EQ(g.inter_RAT_meas_ind.entries[0], 1u);
  for (int k = 1; k < 15; k++) EXPECT_EQ(g.inter_RAT_meas_ind.entries[k], 0u) << k;

  const umts_measurement_control_sys_info& m = f.measurementControlSysInfo;
  EXPECT_EQ(m.presence_bitmask, 3);
  EXPECT_EQ(m.use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.choice_tag, 1u);
  EXPECT_TRUE(allZero(m.use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_RSCP));
  const umts_traffic_vol_meas_sys_info& t = m.trafficVolumeMeasSysInfo;
  EXPECT_EQ(t.presence_bitmask, 0x1F);
  EXPECT_EQ(t.trafficVolumeMeasurementID, 4);
  ASSERT_EQ(t.trafficVolumeMeasurementObjectList.count, 3);
  for (int k = 0; k < 3; k++) {
    EXPECT_EQ(t.trafficVolumeMeasurementObjectList.entries[k].choice_tag, objectTags[k]);
    EXPECT_EQ(t.trafficVolumeMeasurementObjectList.entries[k].u.dch, k == 1 ? 0u : 10u * objectTags[k]);
  }
  EXPECT_EQ(t.trafficVolumeMeasQuantity.choice_tag, 3u);
  EXPECT_EQ(t.trafficVolumeMeasQuantity.u.varianceOfRLC_BufferPayload, 13);
  EXPECT_EQ(t.trafficVolumeReportingQuantity.rlc_RB_BufferPayload, 0);
  EXPECT_EQ(t.trafficVolumeReportingQuantity.rlc_RB_BufferPayloadAverage, 1);
  EXPECT_EQ(t.dummy.presence_bitmask, 1);
  ASSERT_EQ(t.dummy.transChCriteriaList.count, 2);
  const umts_trans_ch_criteria& c0 = t.dummy.transChCriteriaList.entries[0];
  EXPECT_EQ(c0.presence_bitmask, 3);
  EXPECT_EQ(c0.ul_transportChannelID.choice_tag, 1u);
  EXPECT_EQ(c0.ul_transportChannelID.u.dch, 32u);
  ASSERT_EQ(c0.eventSpecificParameters.count, 2);
  for (uint32_t k = 0; k < 2; k++) {
    const umts_traffic_volume_event_param& e = c0.eventSpecificParameters.entries[k];
    EXPECT_EQ(e.presence_bitmask, k ? 5 : 2);
    EXPECT_EQ(e.eventID, k);
    EXPECT_EQ(e.reportingThreshold, 10 + k);
    EXPECT_EQ(e.timeToTrigger, k ? 3u : 0u);
    EXPECT_EQ(e.pendingTimeAfterTrigger, k ? 0u : 4u);
    EXPECT_EQ(e.tx_InterruptionAfterTrigger, k ? 5u : 0u);
  }
  // A rachorcpch identity here keeps the decoded value's word: zero in this decoded value.
  EXPECT_EQ(t.dummy.transChCriteriaList.entries[1].presence_bitmask, 1);
  EXPECT_EQ(t.dummy.transChCriteriaList.entries[1].ul_transportChannelID.choice_tag, 2u);
  EXPECT_EQ(t.measurementValidity, 2u);
  EXPECT_EQ(t.measurementReportingMode.measurementReportTransferMode, 1u);
  EXPECT_EQ(t.measurementReportingMode.periodicalOrEventTrigger, 1u);
  EXPECT_EQ(t.reportCriteriaSysInf.choice_tag, 2u);
  EXPECT_EQ(t.reportCriteriaSysInf.u.periodicalReportingCriteria.reportingAmount, 5u);
  EXPECT_EQ(t.reportCriteriaSysInf.u.periodicalReportingCriteria.reportingInterval, 14u);
  EXPECT_EQ(m.dummy.ue_InternalMeasurementID, 16);
  EXPECT_EQ(m.dummy.ue_InternalMeasQuantity.measurementQuantity, 2u);
  EXPECT_EQ(m.dummy.ue_InternalMeasQuantity.filterCoefficient, 9u);
}

// convert_ul_tr_ch_identity copies the value word whatever the tag; the object list's loop
// copies it for dch and usch only.
TEST(ConvertTrafficVolume, RachorcpchValue) {
  UL_TrCH_Identity id{};
  id.t = 2;
  id.u.dch = 7;
  umts_ul_tr_ch_identity flat{};
  convert_ul_tr_ch_identity(&id, &flat);
  EXPECT_EQ(flat.choice_tag, 2u);
  EXPECT_EQ(flat.u.dch, 7u);
  rtxDList list{};
  rtxDListNode node{};
  append(list, node, id);
  umts_traffic_volume_measurement_object_list objects{};
  convert_traffic_volume_measurement_object_list(&list, &objects);
  EXPECT_EQ(objects.count, 1);
  EXPECT_EQ(objects.entries[0].choice_tag, 2u);
  EXPECT_EQ(objects.entries[0].u.dch, 0u);
}

// cellsForInterRATMeasList is copied from the start of the decoded value: n identities
// leave the first n - 4, and 4 or fewer none. The copy stays within both records.
TEST(ConvertInterRat, CellsForInterRatMeasListFromItsCount) {
  for (uint32_t n : {0u, 3u, 4u, 6u, 32u}) {
    SCOPED_TRACE(n);
    CellsForInterRATMeasList src{};
    src.n = n;
    for (uint32_t k = 0; k < 32; k++) src.elem[k] = static_cast<uint8_t>(k + 1);
    umts_cells_for_inter_rat_meas_list flat{};
    convert_cells_for_inter_rat_meas_list(&src, &flat);
    EXPECT_EQ(flat.count, n);
    for (uint32_t k = 0; k < 32; k++) EXPECT_EQ(flat.entries[k], k + 4 < n ? k + 1 : 0u) << k;
  }
}

// removeSomeIntraFreqCells copies all 32 bytes of the decoder's array; the inter-frequency
// and inter-RAT twins only those in use.
TEST(ConvertRemovedCells, IntraCopiesTheWholeArray) {
  RemovedIntraFreqCellList_removeSomeIntraFreqCells intra{};
  intra.n = 3;
  for (uint8_t k = 0; k < 32; k++) intra.elem[k] = static_cast<uint8_t>(k + 1);
  umts_removed_intra_freq_cells a{};
  convert_removed_intra_freq_cell_list_remove_some_intra_freq_cells(&intra, &a);
  EXPECT_EQ(a.count, 3u);
  EXPECT_EQ(a.entries[31], 32);
  RemovedInterFreqCellList_removeSomeInterFreqCells inter{};
  inter.n = 3;
  std::memcpy(inter.elem, intra.elem, 32);
  umts_removed_inter_freq_cells b{};
  convert_removed_inter_freq_cell_list_remove_some_inter_freq_cells(&inter, &b);
  EXPECT_EQ(b.entries[2], 3);
  EXPECT_EQ(b.entries[3], 0);
}

// ---- SIB12 --------------------------------------------------------------------------------------

TEST_F(ConvertSib11, Sib12SharesTheTree) {
  for (const FormCase& fc : kForms) {
    SCOPED_TRACE(fc.name);
    MeasBuilder b(fc, 3, 5);
    SysInfoType12 s{};
    s.m = 2;  // v4b0NonCriticalExtensions, without content
    s.measurementControlSysInfo = b.mc;
    std::string out;
    ASSERT_EQ(whole(umts_sib_sib12, encode(asn1PE_UMTS_SysInfoType12, s), &out), 1);
    EXPECT_EQ(out.rfind("Decoded SysInfoType12\n", 0), 0u);
    EXPECT_EQ(result->presence_bitmask, 1u << umts_sib_sib12);
    EXPECT_EQ(result->sib12.presence_bitmask, 2);
    EXPECT_EQ(result->sib12.v4b0NonCriticalExtensions.presence_bitmask, 0);
    checkMeasurement(b.mc, result->sib12.measurementControlSysInfo);
  }
}

// ---- SIB11bis -----------------------------------------------------------------------------------

template <class Alternative, class IntraElement, class InterElement>
Alternative* buildExtAlternative(Pool& p, unsigned which) {
  Alternative* a = p.make<Alternative>();
  a->m = which;
  if (which & 1u) buildIntraCells<IntraElement>(p, a->newIntraFreqCellList, 6, 5);
  if (which & 2u) buildInterCells<InterElement>(p, a->newInterFreqCellList, 9);
  return a;
}

template <class IntraElement, class InterElement, class Alternative, class Flat>
void checkExtAlternative(const Alternative& a, const Flat& f) {
  const uint32_t expected = a.m;
  EXPECT_EQ(f.presence_bitmask, expected);
  if (a.m & 1u) checkIntraCells<IntraElement>(a.newIntraFreqCellList, f.newIntraFreqCellList);
  if (expected & 2u)
    checkInterCells<InterElement>(a.newInterFreqCellList, f.newInterFreqCellList,
                                  std::is_same<InterElement, NewInterFreqCellSI_ECN0>::value);
  else
    EXPECT_TRUE(allZero(f.newInterFreqCellList));
}

TEST_F(ConvertSib11, Sib11bisFourFormsAndItsOtherMembers) {
  for (const FormCase& fc : kForms) {
    for (unsigned which : {1u, 2u, 3u}) {
      SCOPED_TRACE(std::string(fc.name) + " " + std::to_string(which));
      Pool p;
      SysInfoType11bis s{};
      s.m = 0xF;
      auto& use = s.measurementControlSysInfo.use_of_HCS;
      use.t = fc.hcs;
      NewInterRATCellList* rat = nullptr;
      if (fc.hcs == 1) {
        use.u.hcs_not_used = p.make<MeasurementControlSysInfoExtension_use_of_HCS_hcs_not_used>();
        auto& q = use.u.hcs_not_used->cellSelectQualityMeasure;
        q.t = fc.quality;
        if (fc.quality == 1)
          q.u.cpich_RSCP = buildExtAlternative<std::remove_pointer_t<decltype(q.u.cpich_RSCP)>, NewIntraFreqCellSI_RSCP,
                                               NewInterFreqCellSI_RSCP>(p, which);
        else
          q.u.cpich_Ec_N0 = buildExtAlternative<std::remove_pointer_t<decltype(q.u.cpich_Ec_N0)>, NewIntraFreqCellSI_ECN0,
                                                NewInterFreqCellSI_ECN0>(p, which);
        use.u.hcs_not_used->m = 1;
        rat = &use.u.hcs_not_used->newInterRATCellList;
      } else {
        use.u.hcs_used = p.make<MeasurementControlSysInfoExtension_use_of_HCS_hcs_used>();
        auto& q = use.u.hcs_used->cellSelectQualityMeasure;
        q.t = fc.quality;
        if (fc.quality == 1)
          q.u.cpich_RSCP = buildExtAlternative<std::remove_pointer_t<decltype(q.u.cpich_RSCP)>, NewIntraFreqCellSI_HCS_RSCP,
                                               NewInterFreqCellSI_HCS_RSCP>(p, which);
        else
          q.u.cpich_Ec_N0 = buildExtAlternative<std::remove_pointer_t<decltype(q.u.cpich_Ec_N0)>,
                                                NewIntraFreqCellSI_HCS_ECN0, NewInterFreqCellSI_HCS_ECN0>(p, which);
        use.u.hcs_used->m = 1;
        rat = &use.u.hcs_used->newInterRATCellList;
      }
      buildInterRatCells<NewInterRATCell>(p, *rat, 3);
      s.measurementControlSysInfo_LCR.use_of_HCS.t = 1;
      s.measurementControlSysInfo_LCR.use_of_HCS.u.hcs_not_used =
          p.make<MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used>();
      s.measurementControlSysInfo_LCR.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.t = 1;
      s.measurementControlSysInfo_LCR.use_of_HCS.u.hcs_not_used->cellSelectQualityMeasure.u.cpich_RSCP =
          p.make<MeasurementControlSysInfoExtension_LCR_r4_use_of_HCS_hcs_not_used_cellSelectQualityMeasure_cpich_RSCP>();
      s.measurementControlSysInfoExtensionAddon_r5.m = 0;
      std::string out;
      ASSERT_EQ(whole(umts_sib_sib11bis, encode(asn1PE_UMTS_SysInfoType11bis, s), &out), 1);
      EXPECT_EQ(out.rfind("Decoded SysInfoType11bis\n", 0), 0u);
      EXPECT_EQ(result->presence_bitmask, 1u << umts_sib_sib11bis);
      const umts_sib11bis_info& f = result->sib11bis;
      EXPECT_EQ(f.presence_bitmask, 0xF);
      EXPECT_EQ(f.measurementControlSysInfo_LCR.use_of_HCS.choice_tag, 1u);
      const umts_ext_use_of_hcs& g = f.measurementControlSysInfo.use_of_HCS;
      ASSERT_EQ(g.choice_tag, fc.hcs);
      if (fc.hcs == 1) {
        const auto& q = use.u.hcs_not_used->cellSelectQualityMeasure;
        EXPECT_EQ(g.u.hcs_not_used.presence_bitmask, 1);
        ASSERT_EQ(g.u.hcs_not_used.cellSelectQualityMeasure.choice_tag, fc.quality);
        if (fc.quality == 1)
          checkExtAlternative<NewIntraFreqCellSI_RSCP, NewInterFreqCellSI_RSCP>(
              *q.u.cpich_RSCP, g.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_RSCP);
        else
          checkExtAlternative<NewIntraFreqCellSI_ECN0, NewInterFreqCellSI_ECN0>(
              *q.u.cpich_Ec_N0, g.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_Ec_N0);
        checkInterRatCells<NewInterRATCell>(*rat, g.u.hcs_not_used.newInterRATCellList, false);
      } else {
        const auto& q = use.u.hcs_used->cellSelectQualityMeasure;
        EXPECT_EQ(g.u.hcs_used.presence_bitmask, 1);
        ASSERT_EQ(g.u.hcs_used.cellSelectQualityMeasure.choice_tag, fc.quality);
        if (fc.quality == 1)
          checkExtAlternative<NewIntraFreqCellSI_HCS_RSCP, NewInterFreqCellSI_HCS_RSCP>(
              *q.u.cpich_RSCP, g.u.hcs_used.cellSelectQualityMeasure.u.cpich_RSCP);
        else
          checkExtAlternative<NewIntraFreqCellSI_HCS_ECN0, NewInterFreqCellSI_HCS_ECN0>(
              *q.u.cpich_Ec_N0, g.u.hcs_used.cellSelectQualityMeasure.u.cpich_Ec_N0);
        checkInterRatCells<NewInterRATCell>(*rat, g.u.hcs_used.newInterRATCellList, false);
      }
    }
  }
}

// ---- Failure, replacement and the BCH -----------------------------------------------------------

TEST_F(ConvertSib11, FailedDecodingKeepsThePreviousRecordAndASecondLeavesNothingOfTheFirst) {
  MeasBuilder big(kForms[3], 3);
  SysInfoType11 s{};
  s.m = 1;
  s.fach_MeasurementOccasionInfo.inter_freq_TDD_meas_ind = 1;
  s.measurementControlSysInfo = big.mc;
  ASSERT_EQ(sib11(s), 1);
  const umts_sib11_info before = result->sib11;
  std::string out;
  EXPECT_EQ(whole(umts_sib_sib11, std::vector<uint8_t>(40, 0xFF), &out), 0);
  EXPECT_NE(out.find("umts_convert_sib11:asn decoding failed\n"), std::string::npos);
  EXPECT_EQ(out.find("Decoded SysInfoType11"), std::string::npos);
  EXPECT_EQ(std::memcmp(&result->sib11, &before, sizeof before), 0);
  EXPECT_EQ(result->sib11.presence_bitmask, 1);
  EXPECT_TRUE(logged("2:decode_system_info_msg:umts_convert_sib11 failed"));

  // A small SIB11 afterwards: nothing of the big one stays.
  MeasBuilder small(kForms[0], 0);
  SysInfoType11 t{};
  t.measurementControlSysInfo = small.mc;
  ASSERT_EQ(sib11(t), 1);
  umts_sib11_info expected{};
  expected.measurementControlSysInfo.use_of_HCS.choice_tag = 1;
  expected.measurementControlSysInfo.use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.choice_tag = 1;
  umts_hcs_not_used& nu = expected.measurementControlSysInfo.use_of_HCS.u.hcs_not_used;
  nu.presence_bitmask = 1;
  nu.interRATMeasurementSysInfo.presence_bitmask = 1;
  nu.interRATMeasurementSysInfo.interRATCellInfoList.removedInterRATCellList.choice_tag = 1;
  checkInterRatCells<NewInterRATCell_B>(
      small.mc.use_of_HCS.u.hcs_not_used->interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList,
      result->sib11.measurementControlSysInfo.use_of_HCS.u.hcs_not_used.interRATMeasurementSysInfo.interRATCellInfoList
          .newInterRATCellList,
      true);
  nu.interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList =
      result->sib11.measurementControlSysInfo.use_of_HCS.u.hcs_not_used.interRATMeasurementSysInfo.interRATCellInfoList
          .newInterRATCellList;
  EXPECT_EQ(std::memcmp(&result->sib11, &expected, sizeof expected), 0);

  // The same for SIB11bis and SIB12: a failure keeps the record and its presence bits.
  result->sib12.presence_bitmask = 3;
  result->sib11bis.presence_bitmask = 5;
  EXPECT_EQ(whole(umts_sib_sib12, std::vector<uint8_t>(40, 0xFF)), 0);
  EXPECT_EQ(whole(umts_sib_sib11bis, std::vector<uint8_t>(40, 0xFF)), 0);
  EXPECT_EQ(result->sib12.presence_bitmask, 3);
  EXPECT_EQ(result->sib11bis.presence_bitmask, 5);
}

// The sample cell's SIB11 form over the BCH, with 12 cells and with the 32 of the schema's
// bound: the segments, joined bit by bit, give the record of the whole SIB.
TEST_F(ConvertSib11, OverTheBchInSeveralBlocks) {
  const std::vector<uint8_t> sib7 = fromHex(kSib7Hex);
  for (unsigned cells : {12u, 32u}) {
    SCOPED_TRACE(cells);
    MeasBuilder b(kForms[1], 1, cells);
    SysInfoType11 s{};
    s.sib12indicator = 1;
    s.measurementControlSysInfo = b.mc;
    uint32_t bits = 0;
    const std::vector<uint8_t> bytes = encode(asn1PE_UMTS_SysInfoType11, s, &bits);
    const umts_bch_sib in[] = {{7, sib7.data(), 11, 0}, {11, bytes.data(), bits, 0}};
    std::vector<umts_bch_block> blocks(40);
    uint32_t count = 0;
    ASSERT_EQ(umts_bch_segment(in, 2, 0, blocks.data(), 40, &count, nullptr), umts_bch_ok);
    EXPECT_GT(count, cells == 32 ? 4u : 2u);
    ASSERT_EQ(whole(umts_sib_sib11, bytes), 1);
    const umts_sib11_info expected = result->sib11;
    std::memset(&result->sib11, 0xEE, sizeof result->sib11);
    result->presence_bitmask = 0;
    for (uint32_t i = 0; i < count; i++)
      EXPECT_EQ(feed(std::vector<uint8_t>(blocks[i].data, blocks[i].data + UMTS_BCH_BLOCK_OCTETS)), 1) << i;
    EXPECT_EQ(result->presence_bitmask, (1u << umts_sib_sib11) | (1u << umts_sib_sib7));
    EXPECT_EQ(std::memcmp(&result->sib11, &expected, sizeof expected), 0);
    checkMeasurement(b.mc, result->sib11.measurementControlSysInfo);
  }
}

}  // namespace

namespace {

// Decoded lists longer than their record (which the decoder never delivers) fill the array
// and stop at its bound; the count keeps the low 8 bits of the decoded count.
TEST(ConvertMeasLists, CopiedWithinTheirBound) {
  Pool p;
  rtxDList cells{};
  for (unsigned i = 0; i < 40; i++) p.add<NewIntraFreqCellSI_RSCP>(cells)->intraFreqCellID = static_cast<uint8_t>(i);
  for (rtxDListNode* n = cells.head; n != nullptr; n = n->next) static_cast<NewIntraFreqCellSI_RSCP*>(n->data)->m = 1;
  struct {
    umts_new_intra_freq_cell_si_list_rscp list;
    uint8_t after[64];
  } flat{};
  convert_new_intra_freq_cell_si_list_rscp(&cells, &flat.list);
  EXPECT_EQ(flat.list.count, 40);
  EXPECT_EQ(flat.list.entries[31].intraFreqCellID, 31);
  EXPECT_TRUE(allZero(flat.after));

  rtxDList events{};
  for (unsigned i = 0; i < 9; i++) p.add<IntraFreqEventCriteria>(events)->hysteresis = static_cast<uint8_t>(i + 1);
  struct {
    umts_intra_freq_event_criteria_list list;
    uint8_t after[64];
  } criteria{};
  convert_intra_freq_event_criteria_list(&events, &criteria.list);
  EXPECT_EQ(criteria.list.count, 9);
  EXPECT_EQ(criteria.list.entries[7].hysteresis, 8);
  EXPECT_TRUE(allZero(criteria.after));
}

}  // namespace

namespace {

// SIB11bis with the add-on of Release 5 and its extension chain, cut after v7b0 or whole.
TEST_F(ConvertSib11, Sib11bisAddonAndExtensionChain) {
  for (bool v860 : {false, true}) {
    SCOPED_TRACE(v860);
    Pool p;
    SysInfoType11bis s{};
    s.m = 4 | 8;
    MeasurementControlSysInfoExtensionAddon_r5& addon = s.measurementControlSysInfoExtensionAddon_r5;
    addon.m = 5;  // intra-frequency and inter-RAT lists
    for (unsigned i = 0; i < 32; i++) {
      CellSelectReselectInfo_v590ext* c = p.add<CellSelectReselectInfo_v590ext>(addon.newIntraFrequencyCellInfoListAddon_r5);
      c->m = i % 4;
      c->deltaQrxlevmin = -2;
      c->deltaQhcs = static_cast<int8_t>(-static_cast<int>(i % 5) - 1);
    }
    p.add<CellSelectReselectInfo_v590ext>(addon.newInterRATCellInfoListAddon_r5)->m = 0;
    SysInfoType11bis_v7b0NonCriticalExtensions& v7b0 = s.v7b0NonCriticalExtensions;
    v7b0.sysInfoType11bis_v7b0ext.m = 1;
    for (unsigned i = 0; i < 32; i++)
      p.add<NewInterFreqCell_v7b0ext>(v7b0.sysInfoType11bis_v7b0ext.newInterFreqCellList)->intraSecondaryFreqIndicator =
          i == 31 || i % 3 == 0;
    if (v860) {
      v7b0.m = 1;
      SysInfoType11bis_v860ext_IEs& ext = v7b0.v860NonCriticalExtensions.sysInfoType11bis_v860ext;
      v7b0.v860NonCriticalExtensions.m = 1;
      ext.m = 3;
      ext.csg_PSCSplitInfo.startPSC = 63;
      ext.csg_PSCSplitInfo.numberOfPSCs = 3;
      for (unsigned i = 0; i < 4; i++) {
        FrequencyInfo* f = p.add<FrequencyInfo>(ext.csg_DedicatedFrequencyInfoList);
        f->modeSpecificInfo.t = 1;
        f->modeSpecificInfo.u.fdd = p.make<FrequencyInfoFDD>();
        f->modeSpecificInfo.u.fdd->m = i % 2;
        f->modeSpecificInfo.u.fdd->uarfcn_UL = static_cast<uint16_t>(9600 + i);
        f->modeSpecificInfo.u.fdd->uarfcn_DL = static_cast<uint16_t>(10550 + i);
      }
    }
    ASSERT_EQ(whole(umts_sib_sib11bis, encode(asn1PE_UMTS_SysInfoType11bis, s)), 1);
    const umts_sib11bis_info& f = result->sib11bis;
    EXPECT_EQ(f.presence_bitmask, 12);
    EXPECT_TRUE(allZero(f.measurementControlSysInfo));
    const umts_measurement_control_sys_info_extension_addon_r5& a = f.measurementControlSysInfoExtensionAddon_r5;
    EXPECT_EQ(a.presence_bitmask, 5);
    ASSERT_EQ(a.newIntraFrequencyCellInfoListAddon_r5.count, 32);
    for (unsigned i = 0; i < 32; i++) {
      const umts_cell_select_reselect_info_v590ext& c = a.newIntraFrequencyCellInfoListAddon_r5.entries[i];
      EXPECT_EQ(c.presence_bitmask, i % 4) << i;
      EXPECT_EQ(c.deltaQrxlevmin, i % 2 ? -2 : 0) << i;
      EXPECT_EQ(c.deltaQhcs, i % 4 >= 2 ? -static_cast<int>(i % 5) - 1 : 0) << i;
    }
    EXPECT_TRUE(allZero(a.newInterFrequencyCellInfoListAddon_r5));
    EXPECT_EQ(a.newInterRATCellInfoListAddon_r5.count, 1);
    const umts_sib11bis_v7b0_nc_extensions& l = f.v7b0NonCriticalExtensions;
    EXPECT_EQ(l.presence_bitmask, v860 ? 1 : 0);
    EXPECT_EQ(l.sysInfoType11bis_v7b0ext.presence_bitmask, 1);
    ASSERT_EQ(l.sysInfoType11bis_v7b0ext.newInterFreqCellList.count, 32);
    for (unsigned i = 0; i < 32; i++)
      EXPECT_EQ(l.sysInfoType11bis_v7b0ext.newInterFreqCellList.intraSecondaryFreqIndicator[i], i == 31 || i % 3 == 0) << i;
    if (!v860) {
      EXPECT_TRUE(allZero(l.v860NonCriticalExtensions));
      continue;
    }
    const umts_sib11bis_v860_nc_extensions& n = l.v860NonCriticalExtensions;
    EXPECT_EQ(n.presence_bitmask, 1);
    EXPECT_EQ(n.nonCriticalExtensions, 0);
    const umts_sib11bis_v860ext_ies& e = n.sysInfoType11bis_v860ext;
    EXPECT_EQ(e.presence_bitmask, 3);
    EXPECT_EQ(e.csg_PSCSplitInfo.presence_bitmask, 0);  // no pscRange2Offset
    EXPECT_EQ(e.csg_PSCSplitInfo.startPSC, 63);
    EXPECT_EQ(e.csg_PSCSplitInfo.numberOfPSCs, 3u);
    ASSERT_EQ(e.csg_DedicatedFrequencyInfoList.count, 4);
    for (unsigned i = 0; i < 4; i++) {
      const umts_frequency_info& fi = e.csg_DedicatedFrequencyInfoList.entries[i];
      EXPECT_EQ(fi.choice_tag, 1u);
      EXPECT_EQ(fi.u.fdd.presence_bitmask, i % 2);
      EXPECT_EQ(fi.u.fdd.uarfcn_UL, i % 2 ? 9600 + i : 0u);
      EXPECT_EQ(fi.u.fdd.uarfcn_DL, 10550 + i);
    }
  }
}

}  // namespace
