// SIB18: built in code, encoded by the codec, sent whole and over the BCH, and the record
// compared with the values it was built from at every level of its extensions.
#include <array>

#include "convert_test.h"

using namespace converttest;

namespace {

// A SysInfoType18 built in code, with the storage of its list elements. List sizes are given
// as {intra, inter, inter-RAT} (or {intra, inter} for multiple PLMNs); 0 leaves a list out.
struct Sib18 {
  Pool pool;
  SysInfoType18 s{};
  uint32_t seed = 0;

  PLMN_Identity next() {
    seed++;
    return plmnIdentity(std::to_string(200 + seed).c_str(), std::to_string(seed % 2 ? 10 + seed : 100 + seed).c_str());
  }
  // Every third cell, from the second on, without its identity.
  void neighbours(PLMNIdentitiesOfNeighbourCells& n, std::array<uint32_t, 3> sizes) {
    rtxDList* lists[] = {&n.plmnsOfIntraFreqCellsList, &n.plmnsOfInterFreqCellsList, &n.plmnsOfInterRATCellsList};
    for (uint32_t l = 0; l < 3; l++) {
      n.m |= sizes[l] ? 1u << l : 0;
      for (uint32_t i = 0; i < sizes[l]; i++) {
        auto& e = *pool.add<PLMNsOfIntraFreqCellsList_element>(*lists[l]);  // the three element types share one shape
        if (i % 3 != 1) e = {1, next()};
      }
    }
  }
  // Cell i holds 6 - i % 6 PLMNs, every other one with its MCC; every fourth cell, from the
  // third on, holds no list.
  void multipleNeighbours(PLMNIdentitiesOfNeighbourCells_v860ext& n, std::array<uint32_t, 2> sizes) {
    rtxDList* lists[] = {&n.multipleplmnsOfIntraFreqCellsList, &n.multipleplmnsOfInterFreqCellsList};
    for (uint32_t l = 0; l < 2; l++) {
      n.m |= sizes[l] ? 1u << l : 0;
      for (uint32_t i = 0; i < sizes[l]; i++) {
        auto& e = *pool.add<MultiplePLMNsOfIntraFreqCellsList_element>(*lists[l]);  // so do these two
        e.m = i % 4 != 2;
        for (uint32_t j = 0; e.m && j < 6 - i % 6; j++) {
          const PLMN_Identity id = next();
          *pool.add<PLMN_IdentityWithOptionalMCC_r6>(e.multiplePLMN_list) = {j % 2 == 0, j % 2 == 0 ? id.mcc : MCC{}, id.mnc};
        }
      }
    }
  }
  SysInfoType18_v6b0ext& v6b0() {
    s.m |= 4;
    return s.v6b0NonCriticalExtensions.sysInfoType18_v6b0ext;
  }
  SysInfoType18_v860ext& v860(bool extensions) {
    s.m |= 4;
    s.v6b0NonCriticalExtensions.m = 1;
    s.v6b0NonCriticalExtensions.v860NonCriticalExtensions.m = extensions;
    return s.v6b0NonCriticalExtensions.v860NonCriticalExtensions.sysInfoType18_v860ext;
  }
};

// ---- Field by field against the value built; an absent element is zero on both sides -----

void expectPlmn(const MCC& mcc, const MNC& mnc, const umts_mcc& out_mcc, const umts_mnc& out_mnc) {
  EXPECT_EQ(out_mcc.count, mcc.n);
  EXPECT_EQ(out_mnc.count, mnc.n);
  EXPECT_EQ(std::memcmp(out_mcc.digits, mcc.elem, 3) | std::memcmp(out_mnc.digits, mnc.elem, 3), 0);
}

// Each entry of a list against the element it was built from. The entries past the count are
// those of the record that the frame clears before every conversion (checked on SIB1's domains).
template <class Element, class Flat, class Check>
void expectEach(const rtxDList& in, const Flat& out, Check check) {
  ASSERT_EQ(out.count, in.count);
  uint32_t i = 0;
  for (const rtxDListNode* node = in.head; node != nullptr; node = node->next, i++) {
    SCOPED_TRACE(i);
    check(*static_cast<const Element*>(node->data), out.entries[i]);
  }
}

void expectCells(const rtxDList& in, const umts_plmns_of_cells_list& out) {
  expectEach<PLMNsOfIntraFreqCellsList_element>(in, out, [](const auto& e, const auto& f) {
    EXPECT_EQ(f.presence_bitmask, e.m);
    expectPlmn(e.plmn_Identity.mcc, e.plmn_Identity.mnc, f.plmn_Identity.mcc, f.plmn_Identity.mnc);
  });
}

void expectNeighbours(const PLMNIdentitiesOfNeighbourCells& in, const umts_plmn_identities_of_neighbour_cells& out) {
  EXPECT_EQ(out.presence_bitmask, in.m);
  expectCells(in.plmnsOfIntraFreqCellsList, out.plmnsOfIntraFreqCellsList);
  expectCells(in.plmnsOfInterFreqCellsList, out.plmnsOfInterFreqCellsList);
  expectCells(in.plmnsOfInterRATCellsList, out.plmnsOfInterRATCellsList);
}

void expectMultipleCells(const rtxDList& in, const umts_multiple_plmns_of_cells_list& out) {
  expectEach<MultiplePLMNsOfIntraFreqCellsList_element>(in, out, [](const auto& e, const auto& f) {
    EXPECT_EQ(f.presence_bitmask, e.m);
    expectEach<PLMN_IdentityWithOptionalMCC_r6>(e.multiplePLMN_list, f.multiplePLMN_list, [](const auto& id, const auto& g) {
      EXPECT_EQ(g.presence_bitmask, id.m);
      expectPlmn(id.mcc, id.mnc, g.mcc, g.mnc);
    });
  });
}

void expectSib18(const SysInfoType18& in, const umts_sib18_info& out) {
  EXPECT_EQ(out.presence_bitmask, in.m);
  expectNeighbours(in.idleModePLMNIdentities, out.idleModePLMNIdentities);
  expectNeighbours(in.connectedModePLMNIdentities, out.connectedModePLMNIdentities);
  const auto& v6b0 = in.v6b0NonCriticalExtensions;
  const umts_sysinfotype18_v6b0_nce& flat = out.v6b0NonCriticalExtensions;
  EXPECT_EQ(flat.presence_bitmask, v6b0.m);
  EXPECT_EQ(flat.sysInfoType18_v6b0ext.presence_bitmask, v6b0.sysInfoType18_v6b0ext.m);
  expectNeighbours(v6b0.sysInfoType18_v6b0ext.idleModePLMNIdentitiesSIB11bis,
                   flat.sysInfoType18_v6b0ext.idleModePLMNIdentitiesSIB11bis);
  expectNeighbours(v6b0.sysInfoType18_v6b0ext.connectedModePLMNIdentitiesSIB11bis,
                   flat.sysInfoType18_v6b0ext.connectedModePLMNIdentitiesSIB11bis);
  const auto& v860 = v6b0.v860NonCriticalExtensions;
  EXPECT_EQ(flat.v860NonCriticalExtensions.presence_bitmask, v860.m);
  EXPECT_EQ(flat.v860NonCriticalExtensions.nonCriticalExtensions, 0);
  const umts_sysinfotype18_v860ext& ext = flat.v860NonCriticalExtensions.sysInfoType18_v860ext;
  EXPECT_EQ(ext.presence_bitmask, v860.sysInfoType18_v860ext.m);
  for (const auto& pair : {std::make_pair(&v860.sysInfoType18_v860ext.idleModePLMNIdentities, &ext.idleModePLMNIdentities),
                           std::make_pair(&v860.sysInfoType18_v860ext.connectedModePLMNIdentities,
                                          &ext.connectedModePLMNIdentities)}) {
    EXPECT_EQ(pair.second->presence_bitmask, pair.first->m);
    expectMultipleCells(pair.first->multipleplmnsOfIntraFreqCellsList, pair.second->multipleplmnsOfIntraFreqCellsList);
    expectMultipleCells(pair.first->multipleplmnsOfInterFreqCellsList, pair.second->multipleplmnsOfInterFreqCellsList);
  }
}

// ---- The cases --------------------------------------------------------------------------

const struct {
  const char* name;
  void (*build)(Sib18&);
  bool bch;  // short enough for the 16 segments of the BCH
} kCases[] = {
    {"nothing optional", [](Sib18&) {}, true},
    {"idle and connected mode, 32 intra-frequency cells, cells without identity",
     [](Sib18& b) {
       b.neighbours(b.s.idleModePLMNIdentities, {32, 2, 3});
       b.neighbours(b.s.connectedModePLMNIdentities, {2, 0, 0});
       b.s.m = 3;
     },
     true},
    {"v6b0 and v860 levels with the empty extension",
     [](Sib18& b) {
       b.v6b0().m = 3;
       b.neighbours(b.v6b0().idleModePLMNIdentitiesSIB11bis, {4, 0, 2});
       b.neighbours(b.v6b0().connectedModePLMNIdentitiesSIB11bis, {0, 3, 0});
       SysInfoType18_v860ext& ext = b.v860(true);
       ext.m = 3;
       b.multipleNeighbours(ext.idleModePLMNIdentities, {3, 0});
       b.multipleNeighbours(ext.connectedModePLMNIdentities, {0, 2});
     },
     true},
    {"32 cells of up to 6 PLMNs, v6b0 without its lists",
     [](Sib18& b) {
       b.s.m = 2;
       b.neighbours(b.s.connectedModePLMNIdentities, {0, 0, 32});
       SysInfoType18_v860ext& ext = b.v860(false);
       ext.m = 1;
       b.multipleNeighbours(ext.idleModePLMNIdentities, {32, 1});
     },
     false},
};

class ConvertSib18 : public ConvertTest {};

TEST_F(ConvertSib18, WholeAndOverBchGivesTheValuesBuilt) {
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.name);
    Sib18 b;
    c.build(b);
    uint32_t bits = 0;
    const std::vector<uint8_t> bytes = encode(asn1PE_UMTS_SysInfoType18, b.s, &bits);
    ASSERT_LE(bytes.size(), static_cast<size_t>(UMTS_SIB_DECODE_LENGTH));

    std::memset(&result->sib18, 0xEE, sizeof result->sib18);
    ASSERT_EQ(whole(umts_sib_sib18, bytes), 1);
    expectSib18(b.s, result->sib18);
    if (c.bch) expectSameOverTheBch(umts_sib_sib18, 26, &umts_sib_set::sib18, bytes, bits);
  }
}

// The extension's filler refuses a null value with its message, leaving the record alone.
TEST_F(ConvertSib18, NullExtensionValueIsRefused) {
  umts_sysinfotype18_v6b0_nce record;
  std::memset(&record, 0x5A, sizeof record);
  const umts_sysinfotype18_v6b0_nce before = record;
  uint8_t ret = 0xEE;
  EXPECT_EQ(captureStdout([&] { ret = fill_sysinfotype18_v3a0_nce(nullptr, &record); }),
            "fill_sysinfotype18_v3a0_nce: null value received for p_v6b0NonCriticalExtensions\n");
  EXPECT_EQ(ret, 0);
  EXPECT_EQ(std::memcmp(&record, &before, sizeof record), 0);
}

}  // namespace
