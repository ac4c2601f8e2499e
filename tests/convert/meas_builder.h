// The cell selection records of SIB11 and SIB12 built in code, shared by the tests of the FDD
// and the 1.28 Mcps TDD measurement control trees.
#ifndef UMTS_TEST_MEAS_BUILDER_H
#define UMTS_TEST_MEAS_BUILDER_H

#include <type_traits>

#include "convert_test.h"

namespace meastest {

using converttest::Pool;

#define UMTS_HAS_MEMBER(trait, member)                                                      \
  template <class T, class = void>                                                          \
  struct trait : std::false_type {};                                                        \
  template <class T>                                                                        \
  struct trait<T, std::void_t<decltype(std::declval<T&>().member)>> : std::true_type {};
UMTS_HAS_MEMBER(HasOneOffset, q_OffsetS_N)
UMTS_HAS_MEMBER(HasHcsRscp, hcs_NeighbouringCellInformation_RSCP)
UMTS_HAS_MEMBER(HasHcsEcn0, hcs_NeighbouringCellInformation_ECN0)

// The selection record of cell `i`, in any of the four forms: offsets, the TX power on odd
// cells, the HCS information where `hcs` (the ECN0 penalty time through a pointer), and the
// fdd, tdd and gsm modes in turn (gsm's q_RxlevMin on odd cells).
template <class Sel>
void buildSelection(Pool& p, Sel& s, unsigned i, bool hcs) {
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
  if constexpr (HasHcsRscp<Sel>::value || HasHcsEcn0<Sel>::value) {
    if (hcs) {
      s.m |= 2u;
      if constexpr (HasHcsRscp<Sel>::value) {
        auto& h = s.hcs_NeighbouringCellInformation_RSCP;
        h.hcs_PRIO = static_cast<uint8_t>(i % 8);
        h.q_HCS = static_cast<uint8_t>(90 + i % 10);
        h.hcs_CellReselectInformation.penaltyTime.t = 2;
        h.hcs_CellReselectInformation.penaltyTime.u.pt10 = 1 + i % 7;
      } else {
        auto& h = s.hcs_NeighbouringCellInformation_ECN0;
        h.hcs_PRIO = static_cast<uint8_t>(i % 8);
        h.q_HCS = static_cast<uint8_t>(90 + i % 10);
        h.hcs_CellReselectInformation.penaltyTime.t = 2;
        p.alloc(h.hcs_CellReselectInformation.penaltyTime.u.pt10)->temporaryOffset1 = 1 + i % 7;
        h.hcs_CellReselectInformation.penaltyTime.u.pt10->temporaryOffset2 = 6 - i % 7;
      }
    }
  }
  auto& mode = s.modeSpecificInfo;
  mode.t = 1 + i % 3;
  if (mode.t == 1) {
    auto* fdd = p.alloc(mode.u.fdd);
    fdd->m = i % 4;
    fdd->q_QualMin = static_cast<int8_t>(-static_cast<int>(i % 25));
    fdd->q_RxlevMin = static_cast<int8_t>(-58 + static_cast<int>(i));
  } else if (mode.t == 2) {
    auto* tdd = p.alloc(mode.u.tdd);
    tdd->m = 1;
    tdd->q_RxlevMin = static_cast<int8_t>(-13 - static_cast<int>(i));
  } else {
    auto* gsm = p.alloc(mode.u.gsm);
    gsm->m = i % 2;
    gsm->q_RxlevMin = -40;
  }
}

}  // namespace meastest

#endif /* UMTS_TEST_MEAS_BUILDER_H */
