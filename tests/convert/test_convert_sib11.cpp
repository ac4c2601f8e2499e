// SIB11, SIB11bis and SIB12: values built in code, encoded by the codec, converted by the
// library (whole and over the BCH) and compared with what was built.
#include <string>

#include "convert_test.h"
#include "meas_builder.h"

using namespace converttest;
using namespace meastest;

namespace {

// ---- Cells: built from their index, in any of the four forms ---------------------------------

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
    auto* fdd = p.alloc(mode.u.fdd);
    fdd->m = (i / 2) % 4;
    fdd->primaryCPICH_Info.primaryScramblingCode = static_cast<uint16_t>((300 + 7 * i) % 512);
    fdd->primaryCPICH_TX_Power = static_cast<int8_t>(-10 + static_cast<int>(i));
    fdd->readSFN_Indicator = (i / 2) & 1;
    fdd->tx_DiversityIndicator = (i / 4) & 1;
  } else {
    mode.t = 2;
    auto* tdd = p.alloc(mode.u.tdd);
    tdd->primaryCCPCH_Info.t = 2;
    auto* ccpch = p.alloc(tdd->primaryCCPCH_Info.u.tdd);
    ccpch->m = 3;
    ccpch->syncCase.t = 2;
    p.alloc(ccpch->syncCase.u.syncCase2)->timeslotSync2 = static_cast<uint8_t>(i % 7);
    ccpch->cellParametersID = static_cast<uint8_t>(i % 128);
    ccpch->sctd_Indicator = 1;
    tdd->m = 1 + i % 3;  // the TX power, the timeslots or both
    tdd->primaryCCPCH_TX_Power = static_cast<uint8_t>(6 + i % 38);
    for (unsigned k = 0; k < 2 + i % 13; k++) {
      TimeslotInfo* t = p.add<TimeslotInfo>(tdd->timeslotInfoList);
      t->timeslotNumber = static_cast<uint8_t>(k);
      t->burstType = k % 2;
    }
    tdd->readSFN_Indicator = 1;
  }
  if (i % 3 != 1) {
    c.m |= 2u;
    buildSelection(p, c.cellSelectionReselectionInfo, i, i % 4 == 0);
  }
}

// The converted cell `i` of buildCell, its values worked out here apart from the builder.
template <class Flat>
void checkCell(const Flat& f, unsigned i) {
  SCOPED_TRACE("cell " + std::to_string(i));
  EXPECT_EQ(f.presence_bitmask, (i % 4 != 3 ? 1u : 0u) | (i % 3 != 1 ? 2u : 0u));
  // The width follows the accuracy: 16 bits for accuracy40, the low byte otherwise.
  const uint16_t timing[] = {static_cast<uint16_t>(i == 0 ? 960 : 700 + i), static_cast<uint16_t>(100 + i),
                             static_cast<uint16_t>(i % 15), 0};
  EXPECT_EQ(f.referenceTimeDifferenceToCell.choice_tag, i % 4 == 3 ? 0u : 1 + i % 4);
  EXPECT_EQ(f.referenceTimeDifferenceToCell.u.accuracy40, timing[i % 4]);
  if (i % 2 == 0) {
    const auto& g = f.modeSpecificInfo.u.fdd;
    ASSERT_EQ(f.modeSpecificInfo.choice_tag, 1u);
    EXPECT_EQ(g.presence_bitmask, (i / 2) % 4);
    EXPECT_EQ(g.primaryCPICH_Info, (i / 2) % 2 ? (300 + 7 * i) % 512 : 0u);
    EXPECT_EQ(g.primaryCPICH_TX_Power, (i / 2) % 4 >= 2 ? -10 + static_cast<int>(i) : 0);
  } else {
    const auto& g = f.modeSpecificInfo.u.tdd;
    ASSERT_EQ(f.modeSpecificInfo.choice_tag, 2u);
    EXPECT_EQ(g.presence_bitmask, 1 + i % 3);
    EXPECT_EQ(g.primaryCCPCH_Info.u.tdd.syncCase.choice_tag, 2u);
    EXPECT_EQ(g.primaryCCPCH_Info.u.tdd.syncCase.u.timeslot, i % 7);
    EXPECT_EQ(g.primaryCCPCH_TX_Power, i % 3 != 1 ? 6 + i % 38 : 0u);
    ASSERT_EQ(g.timeslotInfoList.count, i % 3 != 0 ? 2 + i % 13 : 0u);
    if (g.timeslotInfoList.count > 0) { EXPECT_EQ(g.timeslotInfoList.entries[1].burstType, 1u); }
  }
  if (i % 3 == 1) {
    EXPECT_TRUE(allZero(f.cellSelectionReselectionInfo));
    return;
  }
  const auto& s = f.cellSelectionReselectionInfo;
  EXPECT_EQ(s.maxAllowedUL_TX_Power, i % 2 ? -50 + static_cast<int>(i) : 0);
  ASSERT_EQ(s.modeSpecificInfo.choice_tag, 1 + i % 3);
  if (i % 3 == 0) EXPECT_EQ(s.modeSpecificInfo.u.fdd.q_RxlevMin, i % 4 >= 2 ? -58 + static_cast<int>(i) : 0);
  else EXPECT_EQ(s.modeSpecificInfo.u.gsm.q_RxlevMin, i % 2 ? -40 : 0);
}

// The HCS information of cell `i` (a multiple of 4) in the RSCP and ECN0 forms.
template <class Flat>
void checkHcs(const Flat& s, unsigned i) {
  if constexpr (HasHcsRscp<Flat>::value) {
    EXPECT_EQ(s.hcs_NeighbouringCellInformation_RSCP.q_HCS, 90 + i % 10);
    EXPECT_EQ(s.hcs_NeighbouringCellInformation_RSCP.penaltyTime.u.pt10, 1 + i % 7);
  }
  if constexpr (HasHcsEcn0<Flat>::value) {
    EXPECT_EQ(s.hcs_NeighbouringCellInformation_ECN0.q_HCS, 90 + i % 10);
    EXPECT_EQ(s.hcs_NeighbouringCellInformation_ECN0.penaltyTime.u.pt10.temporaryOffset1, 1 + i % 7);
    EXPECT_EQ(s.hcs_NeighbouringCellInformation_ECN0.penaltyTime.u.pt10.temporaryOffset2, 6 - i % 7);
  }
}

// New intra-frequency cells first..first+n-1; every third one without its identity.
template <class Element>
void buildIntraCells(Pool& p, rtxDList& list, unsigned n, unsigned first = 0) {
  for (unsigned i = first; i < first + n; i++) {
    Element* e = p.add<Element>(list);
    e->m = i % 3 != 2;
    e->intraFreqCellID = static_cast<uint8_t>(31 - i % 32);
    buildCell(p, e->cellInfo, i);
  }
}

template <class FlatList>
void checkIntraCells(const FlatList& f, unsigned n, unsigned first = 0) {
  ASSERT_EQ(f.count, n);
  for (unsigned i = first; i < first + n; i++) {
    EXPECT_EQ(f.entries[i - first].intraFreqCellID, i % 3 != 2 ? 31 - i % 32 : 0u) << i;
    checkCell(f.entries[i - first].cellInfo, i);
    if (i % 4 == 0 && i % 3 != 1) checkHcs(f.entries[i - first].cellInfo.cellSelectionReselectionInfo, i);
  }
}

// New inter-frequency cells: an fdd frequency (uarfcn-DL alone), a tdd one, none.
template <class Element>
void buildInterCells(Pool& p, rtxDList& list, unsigned first) {
  for (unsigned i = first; i < first + 3; i++) {
    Element* e = p.add<Element>(list);
    e->m = i % 3 == 2 ? 0u : 3u;
    e->interFreqCellID = static_cast<uint8_t>(i % 32);
    FrequencyInfo_modeSpecificInfo& f = e->frequencyInfo.modeSpecificInfo;
    if (i % 3 == 0) p.alloc(f.u.fdd)->uarfcn_DL = static_cast<uint16_t>(10700 + i);
    if (i % 3 == 1) p.alloc(f.u.tdd)->uarfcn_Nt = static_cast<uint16_t>(9500 + i);
    f.t = i % 3 == 2 ? 0 : 1 + i % 3;
    buildCell(p, e->cellInfo, i);
  }
}

// `ecn0`: the ECN0 form converts every frequency and never sets bit 1.
template <class FlatList>
void checkInterCells(const FlatList& f, unsigned first, bool ecn0) {
  ASSERT_EQ(f.count, 3);
  for (unsigned i = first; i < first + 3; i++) {
    const auto& g = f.entries[i - first];
    EXPECT_EQ(g.presence_bitmask, i % 3 == 2 ? 0u : ecn0 ? 1u : 3u) << i;
    EXPECT_EQ(g.interFreqCellID, i % 3 == 2 ? 0u : i % 32) << i;
    EXPECT_EQ(g.frequencyInfo.choice_tag, i % 3 == 2 ? 0u : 1 + i % 3) << i;
    if (i % 3 == 0) { EXPECT_EQ(g.frequencyInfo.u.fdd.uarfcn_UL, 0); }
    if (i % 3 == 0) { EXPECT_EQ(g.frequencyInfo.u.fdd.uarfcn_DL, 10700 + i); }
    if (i % 3 == 1) { EXPECT_EQ(g.frequencyInfo.u.tdd.uarfcn_Nt, 9500 + i); }
    if (i % 3 == 2) { EXPECT_TRUE(allZero(g.frequencyInfo)); }
    checkCell(g.cellInfo, i);
  }
}

// The intra-frequency record but its new cells: removed cells and TDD quantities.
template <class Intra>
void buildIntra(Pool& p, Intra& m) {
  m.intraFreqMeasurementID = 16;
  m.m = 0x0Fu;  // no reporting information
  m.intraFreqCellInfoSI_List.m = 1;
  m.intraFreqCellInfoSI_List.removedIntraFreqCellList.t = 2;
  *p.alloc(m.intraFreqCellInfoSI_List.removedIntraFreqCellList.u.removeSomeIntraFreqCells) = {3, {4, 31, 0}};
  m.intraFreqMeasQuantity.filterCoefficient = 3;
  m.intraFreqMeasQuantity.modeSpecificInfo.t = 2;
  p.alloc(m.intraFreqMeasQuantity.modeSpecificInfo.u.tdd)->intraFreqMeasQuantity_TDDList = {4, {0, 1, 2, 3}};
  m.intraFreqReportingQuantityForRACH.sfn_SFN_OTD_Type = 2;
  m.intraFreqReportingQuantityForRACH.modeSpecificInfo.t = 2;
  p.alloc(m.intraFreqReportingQuantityForRACH.modeSpecificInfo.u.tdd)->intraFreqRepQuantityRACH_TDDList = {2, {1, 0}};
  m.maxReportedCellsOnRACH = 7;
}

template <class Flat>
void checkIntra(const Flat& f, unsigned cells) {
  EXPECT_EQ(f.presence_bitmask, 0x0F);
  EXPECT_EQ(f.intraFreqCellInfoSI_List.removedIntraFreqCellList.u.removeSomeIntraFreqCells.entries[1], 31);
  checkIntraCells(f.intraFreqCellInfoSI_List.newIntraFreqCellList, cells);
  EXPECT_EQ(f.intraFreqMeasQuantity.modeSpecificInfo.u.intraFreqMeasQuantity_TDDList.entries[3], 3u);
  EXPECT_EQ(f.maxReportedCellsOnRACH, 7u);
}

// ---- The four forms of SIB11 / SIB12 ------------------------------------------------------------

template <class Gsm>
void buildGsm(Pool& p, Gsm& g, unsigned i) {
  g.m = i % 2;
  auto& s = g.cellSelectionReselectionInfo;
  s.modeSpecificInfo.t = g.m ? 3 : 1;
  if (g.m) {
    s.m = 7;
    s.q_Offset1S_N = -50;
    s.q_Offset2S_N = 50;
    s.maxAllowedUL_TX_Power = 33;
    s.hcs_NeighbouringCellInformation_RSCP.q_HCS = 99;
    s.hcs_NeighbouringCellInformation_RSCP.hcs_CellReselectInformation.penaltyTime.t = 7;
    s.hcs_NeighbouringCellInformation_RSCP.hcs_CellReselectInformation.penaltyTime.u.pt60 = 7;
    *p.alloc(s.modeSpecificInfo.u.gsm) = {1, -58};
  } else {
    p.alloc(s.modeSpecificInfo.u.fdd);
  }
  g.interRATCellIndividualOffset = static_cast<int8_t>(-50 + static_cast<int>(i));
  g.bsic = {static_cast<uint8_t>(i % 8), static_cast<uint8_t>(7 - i % 8)};
  g.frequency_band = i % 2;
  g.bcch_ARFCN = static_cast<uint16_t>(1000 + i);
}

// Inter-RAT cells: GSM, IS-2000, absent, GSM, GSM.
template <class Cell>
void buildInterRatCells(Pool& p, rtxDList& list, unsigned n) {
  for (unsigned i = 0; i < n; i++) {
    Cell* c = p.add<Cell>(list);
    c->m = i % 2 ? 0u : 1u;
    c->interRATCellID = static_cast<uint8_t>(i);
    c->technologySpecificInfo.t = i % 4 == 1 ? 2 : i % 4 == 2 ? 3 : 1;
    if (c->technologySpecificInfo.t == 1) buildGsm(p, *p.alloc(c->technologySpecificInfo.u.gsm), i);
    if (c->technologySpecificInfo.t == 2) p.alloc(c->technologySpecificInfo.u.is_2000)->is_2000SpecificMeasInfo = 1;
  }
}

// `b`: the B form, which brings the BSIC; bit 1 (bsic valid) is never set.
template <class FlatList>
void checkInterRatCells(const FlatList& f, bool b) {
  ASSERT_EQ(f.count, 5);
  for (unsigned i = 0; i < 5; i++) {
    SCOPED_TRACE("inter-RAT cell " + std::to_string(i));
    const umts_new_inter_rat_cell& g = f.entries[i];
    EXPECT_EQ(g.presence_bitmask, i % 2 ? 0 : 1);
    EXPECT_EQ(g.interRATCellID, i % 2 ? 0 : i);
    EXPECT_EQ(g.technologySpecificInfo.choice_tag, i % 4 == 1 ? 2u : i % 4 == 2 ? 3u : 1u);
    if (i % 4 == 1) { EXPECT_EQ(g.technologySpecificInfo.u.is_2000SpecificMeasInfo, 1u); }
    if (i % 4 == 2) { EXPECT_TRUE(allZero(g.technologySpecificInfo.u)); }
    if (i % 4 == 1 || i % 4 == 2) continue;
    const umts_new_inter_rat_cell_gsm& gsm = g.technologySpecificInfo.u.gsm;
    EXPECT_EQ(gsm.presence_bitmask, i % 2);
    if (i % 2) EXPECT_EQ(gsm.cellSelectionReselectionInfo.hcs_NeighbouringCellInformation_RSCP.penaltyTime.u.pt60, 7u);
    else EXPECT_TRUE(allZero(gsm.cellSelectionReselectionInfo));
    EXPECT_EQ(gsm.bsic.bcc, b ? 7 - i % 8 : 0);
    EXPECT_EQ(gsm.bcch_ARFCN, 1000 + i);
  }
}

struct FormCase {
  const char* name;
  uint32_t hcs;      // use_of_HCS: 1 hcs_not_used, 2 hcs_used
  uint32_t quality;  // cellSelectQualityMeasure: 1 cpich_RSCP, 2 cpich_Ec_N0
};
const FormCase kForms[] = {{"RSCP", 1, 1}, {"ECN0", 1, 2}, {"HCS_RSCP", 2, 1}, {"HCS_ECN0", 2, 2}};

// A MeasurementControlSysInfo of form `fc` with the frequency records of `which` (1 intra,
// 2 inter), `cells` intra-frequency cells, and under each use_of_HCS its inter-RAT form.
struct MeasBuilder {
  Pool pool;
  MeasurementControlSysInfo mc{};
  unsigned which, cells;
  MeasBuilder(const FormCase& fc, unsigned which_, unsigned cells_ = 12) : which(which_), cells(cells_) {
    mc.use_of_HCS.t = fc.hcs;
    if (fc.hcs == 1) {
      auto* nu = pool.alloc(mc.use_of_HCS.u.hcs_not_used);
      nu->cellSelectQualityMeasure.t = fc.quality;
      if (fc.quality == 1) alternative<NewIntraFreqCellSI_RSCP, NewInterFreqCellSI_RSCP>(nu->cellSelectQualityMeasure.u.cpich_RSCP);
      else alternative<NewIntraFreqCellSI_ECN0, NewInterFreqCellSI_ECN0>(nu->cellSelectQualityMeasure.u.cpich_Ec_N0);
      nu->m = 1;
      nu->interRATMeasurementSysInfo.m = 1;
      nu->interRATMeasurementSysInfo.interRATCellInfoList.removedInterRATCellList.t = 1;
      buildInterRatCells<NewInterRATCell_B>(pool, nu->interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList, 5);
    } else {
      auto* hu = pool.alloc(mc.use_of_HCS.u.hcs_used);
      hu->cellSelectQualityMeasure.t = fc.quality;
      if (fc.quality == 1) alternative<NewIntraFreqCellSI_HCS_RSCP, NewInterFreqCellSI_HCS_RSCP>(hu->cellSelectQualityMeasure.u.cpich_RSCP);
      else alternative<NewIntraFreqCellSI_HCS_ECN0, NewInterFreqCellSI_HCS_ECN0>(hu->cellSelectQualityMeasure.u.cpich_Ec_N0);
      hu->m = 1;
      hu->interRATMeasurementSysInfo.m = 1;
      InterRATCellInfoList& l = hu->interRATMeasurementSysInfo.interRATCellInfoList;
      l.removedInterRATCellList.t = 2;
      *pool.alloc(l.removedInterRATCellList.u.removeSomeInterRATCells) = {2, {9, 17}};
      buildInterRatCells<NewInterRATCell>(pool, l.newInterRATCellList, 5);
      l.m = 1;
      l.cellsForInterRATMeasList = {6, {20, 21, 22, 23, 24, 25}};
    }
  }
  template <class IntraElement, class InterElement, class Alternative>
  void alternative(Alternative*& a) {
    pool.alloc(a)->m = which;
    if (which & 1u) {
      buildIntra(pool, a->intraFreqMeasurementSysInfo);
      buildIntraCells<IntraElement>(pool, a->intraFreqMeasurementSysInfo.intraFreqCellInfoSI_List.newIntraFreqCellList, cells);
    }
    if (which & 2u) {
      auto& inter = a->interFreqMeasurementSysInfo;
      inter.m = 1;
      inter.interFreqCellInfoSI_List.m = 3;
      inter.interFreqCellInfoSI_List.removedInterFreqCellList.t = 2;
      *pool.alloc(inter.interFreqCellInfoSI_List.removedInterFreqCellList.u.removeSomeInterFreqCells) = {5, {10, 11, 12, 13, 14}};
      buildInterCells<InterElement>(pool, inter.interFreqCellInfoSI_List.newInterFreqCellList, 40);
    }
  }
};

// Each frequency record by its own bit, in every form (the ECN0 form without HCS included).
template <class Flat>
void checkAlternative(const Flat& f, const MeasBuilder& b, bool ecn0) {
  EXPECT_EQ(f.presence_bitmask, b.which);
  if (b.which & 1u) checkIntra(f.intraFreqMeasurementSysInfo, b.cells);
  else EXPECT_TRUE(allZero(f.intraFreqMeasurementSysInfo));
  if (!(b.which & 2u)) {
    EXPECT_TRUE(allZero(f.interFreqMeasurementSysInfo));
    return;
  }
  const auto& list = f.interFreqMeasurementSysInfo.interFreqCellInfoSI_List;
  EXPECT_EQ(list.presence_bitmask, 3);
  EXPECT_EQ(list.removedInterFreqCellList.u.removeSomeInterFreqCells.count, 5u);
  for (int k = 0; k < 32; k++) EXPECT_EQ(list.removedInterFreqCellList.u.removeSomeInterFreqCells.entries[k], k < 5 ? 10 + k : 0) << k;
  checkInterCells(list.newInterFreqCellList, 40, ecn0);
}

void checkMeasurement(const umts_measurement_control_sys_info& f, const FormCase& fc, const MeasBuilder& b) {
  ASSERT_EQ(f.use_of_HCS.choice_tag, fc.hcs);
  if (fc.hcs == 1) {
    const umts_hcs_not_used& g = f.use_of_HCS.u.hcs_not_used;
    ASSERT_EQ(g.cellSelectQualityMeasure.choice_tag, fc.quality);
    if (fc.quality == 1) checkAlternative(g.cellSelectQualityMeasure.u.cpich_RSCP, b, false);
    else checkAlternative(g.cellSelectQualityMeasure.u.cpich_Ec_N0, b, true);
    EXPECT_EQ(g.interRATMeasurementSysInfo.interRATCellInfoList.removedInterRATCellList.choice_tag, 1u);
    checkInterRatCells(g.interRATMeasurementSysInfo.interRATCellInfoList.newInterRATCellList, true);
  } else {
    const umts_hcs_used& g = f.use_of_HCS.u.hcs_used;
    ASSERT_EQ(g.cellSelectQualityMeasure.choice_tag, fc.quality);
    if (fc.quality == 1) checkAlternative(g.cellSelectQualityMeasure.u.cpich_RSCP, b, false);
    else checkAlternative(g.cellSelectQualityMeasure.u.cpich_Ec_N0, b, false);
    const umts_inter_rat_cell_info_list& l = g.interRATMeasurementSysInfo.interRATCellInfoList;
    checkInterRatCells(l.newInterRATCellList, false);
    // cellsForInterRATMeasList of 6: the count, the first 2 identities, 4 zero bytes.
    EXPECT_EQ(l.cellsForInterRATMeasList.count, 6u);
    EXPECT_EQ(Bytes(l.cellsForInterRATMeasList.entries, l.cellsForInterRATMeasList.entries + 8), (Bytes{20, 21, 0, 0, 0, 0, 0, 0}));
  }
}

class ConvertSib11 : public ConvertTest {
 protected:
  uint8_t sib11(const SysInfoType11& s) {
    return whole(umts_sib_sib11, encode(asn1PE_UMTS_SysInfoType11, s));
  }
};

// Each form with the intra-frequency record alone, the inter-frequency record alone, and both;
// under hcs_not_used with cpich_Ec_N0, the configuration of most cells, both come through,
// each by its own bit (the letter stopped after the intra-frequency record). SIB12 carries the
// same tree and gives the same record.
TEST_F(ConvertSib11, EachFormWithEitherAndBothFrequencyRecords) {
  for (const FormCase& fc : kForms) {
    for (unsigned which : {1u, 2u, 3u}) {
      SCOPED_TRACE(std::string(fc.name) + " " + std::to_string(which));
      MeasBuilder b(fc, which);
      SysInfoType11 s{};
      s.measurementControlSysInfo = b.mc;
      ASSERT_EQ(sib11(s), 1);
      checkMeasurement(result->sib11.measurementControlSysInfo, fc, b);
      const Bytes sib11Record(reinterpret_cast<const uint8_t*>(&result->sib11.measurementControlSysInfo),
                              reinterpret_cast<const uint8_t*>(&result->sib11.measurementControlSysInfo + 1));

      SysInfoType12 t{};
      t.m = 2;  // v4b0NonCriticalExtensions, without content
      t.measurementControlSysInfo = b.mc;
      ASSERT_EQ(whole(umts_sib_sib12, encode(asn1PE_UMTS_SysInfoType12, t)), 1);
      EXPECT_EQ(result->sib12.presence_bitmask, 2);
      EXPECT_EQ(std::memcmp(&result->sib12.measurementControlSysInfo, sib11Record.data(), sib11Record.size()), 0);
    }
  }
}

// convert_ul_tr_ch_identity keeps the tag and, whatever the tag, the decoded identity byte
// zero-extended, not the bytes that follow it in the decoded value; the object list's loop
// copies the identity for dch and usch only.
TEST(ConvertTrafficVolume, RachorcpchValue) {
  UL_TrCH_Identity id;
  std::memset(&id, 0xA5, sizeof id);  // what follows the identity byte is not zero
  id.t = 2;
  id.u.dch = 7;
  umts_ul_tr_ch_identity flat{};
  convert_ul_tr_ch_identity(&id, &flat);
  EXPECT_EQ(flat.choice_tag, 2u);
  EXPECT_EQ(flat.u.dch, 7u);
  rtxDList list{};
  Pool p;
  p.add(list, id);
  umts_traffic_volume_measurement_object_list objects{};
  convert_traffic_volume_measurement_object_list(&list, &objects);
  EXPECT_EQ(objects.count, 1);
  EXPECT_EQ(objects.entries[0].choice_tag, 2u);
  EXPECT_EQ(objects.entries[0].u.dch, 0u);
}

// cellsForInterRATMeasList is copied from the start of the decoded value: n identities
// leave the first n - 4, and 4 or fewer none. removeSomeIntraFreqCells copies all 32 bytes
// of the decoder's array; its inter-frequency twin only those in use.
TEST(ConvertInterRat, CellListsCopiedFromTheirCounts) {
  for (uint32_t n : {0u, 3u, 4u, 6u, 32u}) {
    CellsForInterRATMeasList src{};
    src.n = n;
    for (uint32_t k = 0; k < 32; k++) src.elem[k] = static_cast<uint8_t>(k + 1);
    umts_cells_for_inter_rat_meas_list flat{};
    convert_cells_for_inter_rat_meas_list(&src, &flat);
    EXPECT_EQ(flat.count, n);
    for (uint32_t k = 0; k < 32; k++) EXPECT_EQ(flat.entries[k], k + 4 < n ? k + 1 : 0u) << n << " " << k;
  }
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

// Decoded lists longer than their record (which the decoder never delivers) fill the array
// and stop at its bound; the count keeps the low 8 bits of the decoded count.
// Converts `src` into a record followed by guard bytes, and checks that the guard stays zero.
template <class Record, class Src, class Convert>
Record withinBound(Convert convert, const Src* src) {
  struct {
    Record list;
    uint8_t after[64];
  } flat{};
  convert(src, &flat.list);
  EXPECT_TRUE(allZero(flat.after));
  return flat.list;
}

TEST(ConvertMeasLists, CopiedWithinTheirBound) {
  Pool p;
  rtxDList cells{};
  for (unsigned i = 0; i < 40; i++) p.add(cells, NewIntraFreqCellSI_RSCP{1, static_cast<uint8_t>(i), {}});
  const auto list = withinBound<umts_new_intra_freq_cell_si_list_rscp>(convert_new_intra_freq_cell_si_list_rscp, &cells);
  EXPECT_EQ(list.count, 40);
  EXPECT_EQ(list.entries[31].intraFreqCellID, 31);

  rtxDList events{};
  for (unsigned i = 0; i < 9; i++) p.add<IntraFreqEventCriteria>(events)->hysteresis = static_cast<uint8_t>(i + 1);
  const auto criteria = withinBound<umts_intra_freq_event_criteria_list>(convert_intra_freq_event_criteria_list, &events);
  EXPECT_EQ(criteria.count, 9);
  EXPECT_EQ(criteria.entries[7].hysteresis, 8);
}

// SIB11bis without HCS and with the CPICH Ec/N0 measure converts each of its two cell lists
// by its own bit, whichever comes.
TEST_F(ConvertSib11, Sib11bisEcn0ConvertsBothCellLists) {
  for (unsigned which : {1u, 2u, 3u}) {
    SCOPED_TRACE(which);
    Pool p;
    SysInfoType11bis s{};
    s.m = 1;
    auto& use = s.measurementControlSysInfo.use_of_HCS;
    use.t = 1;
    auto& q = p.alloc(use.u.hcs_not_used)->cellSelectQualityMeasure;
    q.t = 2;
    auto* a = p.alloc(q.u.cpich_Ec_N0);
    a->m = which;
    if (which & 1u) buildIntraCells<NewIntraFreqCellSI_ECN0>(p, a->newIntraFreqCellList, 6, 5);
    if (which & 2u) buildInterCells<NewInterFreqCellSI_ECN0>(p, a->newInterFreqCellList, 9);
    ASSERT_EQ(whole(umts_sib_sib11bis, encode(asn1PE_UMTS_SysInfoType11bis, s)), 1);
    const auto& f = result->sib11bis.measurementControlSysInfo.use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure.u.cpich_Ec_N0;
    EXPECT_EQ(f.presence_bitmask, which);
    if (which & 1u) checkIntraCells(f.newIntraFreqCellList, 6, 5);
    else EXPECT_TRUE(allZero(f.newIntraFreqCellList));
    if (which & 2u) checkInterCells(f.newInterFreqCellList, 9, true);
    else EXPECT_TRUE(allZero(f.newInterFreqCellList));
  }
}

// The sample cell's SIB11 form over the BCH, with 12 cells and with the 32 of the schema's
// bound: the segments, joined bit by bit, give the record of the whole SIB.
TEST_F(ConvertSib11, OverTheBchInSeveralBlocks) {
  for (unsigned cells : {12u, 32u}) {
    SCOPED_TRACE(cells);
    MeasBuilder b(kForms[1], 1, cells);
    SysInfoType11 s{};
    s.sib12indicator = 1;
    s.measurementControlSysInfo = b.mc;
    uint32_t bits = 0;
    const Bytes bytes = encode(asn1PE_UMTS_SysInfoType11, s, &bits);
    EXPECT_GT(expectSameOverTheBch(umts_sib_sib11, 11, &umts_sib_set::sib11, bytes, bits), cells == 32 ? 4u : 2u);
    checkMeasurement(result->sib11.measurementControlSysInfo, kForms[1], b);
  }
}

}  // namespace
