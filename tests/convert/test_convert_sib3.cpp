// The SIB3 conversion: built in code, encoded by the codec, sent whole and over the BCH.
#include <cstddef>

#include "convert_test.h"

using namespace converttest;

namespace {

// A tdd cell keeps q_RxlevMin where an fdd cell keeps q_QualMin.
static_assert(offsetof(umts_sib3_tdd_info, q_RxlevMin) == offsetof(umts_sib3_fdd_info, q_QualMin), "tdd q_RxlevMin");

// A SysInfoType3 built in code, with the storage of its lists and alternatives. Starts as the
// smallest SIB3: fdd without optional elements, cpich-RSCP, notBarred, no extensions.
struct Sib3Builder {
  SysInfoType3 s;
  CellSelectReselectInfoSIB_3_4_cellSelectQualityMeasure_cpich_Ec_N0 ecN0;
  CellSelectReselectInfoSIB_3_4_modeSpecificInfo_fdd fdd;
  CellSelectReselectInfoSIB_3_4_modeSpecificInfo_tdd tdd;
  Mapping mappings[16];
  MappingFunctionParameter params[60];
  RAT_FDD_Info fddRats[15];
  RAT_TDD_Info tddRats[15];
  N_CR_T_CRMaxHyst hyst[2];
  CellBarred_barred barred;
  DomainSpecificAccessRestriction_v670ext_restriction restrictions[4];
  DomainSpecificAccessRestrictionList_v670ext operators;
  DomainSpecificAccessRestrictionParam_v670ext forAll;
  DeferredMeasurementControlReadingSupport_modeSpecificInfo_fdd deferredFdd;
  DeferredMeasurementControlReadingSupport_modeSpecificInfo_tdd deferredTdd;
  LocationRegistrationAccessClassBarredList registrations[2];
  PagingPermissionWithAccessControlList pagingOperators;
  PagingPermissionWithAccessControlParameters pagingForAll;
  rtxDListNode nodes[120];
  unsigned usedNodes = 0;
  unsigned usedParams = 0;

  Sib3Builder() {
    std::memset(static_cast<void*>(this), 0, sizeof *this);
    s.sib4indicator = 1;
    s.cellIdentity = bitString<CellIdentity>({0x12, 0x34, 0x56, 0x7F}, 28);
    CellSelectReselectInfoSIB_3_4& c = s.cellSelectReselectInfo;
    c.cellSelectQualityMeasure.t = 2;
    c.modeSpecificInfo.t = 1;
    c.modeSpecificInfo.u.fdd = &fdd;
    fdd.q_QualMin = -24;
    fdd.q_RxlevMin = -13;
    c.q_Hyst_l_S = 20;
    c.t_Reselection_S = 31;
    c.maxAllowedUL_TX_Power = -50;
    s.cellAccessRestriction.cellBarred.t = 2;
    s.cellAccessRestriction.cellReservationExtension = 1;
  }
  Sib3Builder(const Sib3Builder&) = delete;

  template <typename T>
  void add(rtxDList& list, T& value) {
    append(list, nodes[usedNodes++], value);
  }
  // `n` parameters: parameter j has mapParameter1 when j is 1, upperLimit when j is 2.
  void addParams(rtxDList& list, unsigned n, unsigned seed) {
    for (unsigned j = 0; j < n; j++) {
      MappingFunctionParameter& p = params[usedParams++];
      p.m = j == 1 ? 1u : j == 2 ? 2u : 0u;
      p.functionType = (seed + j) % 4;
      p.mapParameter1 = static_cast<uint8_t>(100 + j);
      p.mapParameter2 = static_cast<uint8_t>(seed + 10 * j);
      p.upperLimit = 91;
      add(list, p);
    }
  }
  SysInfoType3_v4b0NonCriticalExtensions& v4b0() { return s.v4b0NonCriticalExtensions; }
  auto& v590() { return v4b0().v590NonCriticalExtension; }
  auto& v5c0() { return v590().v5c0NoncriticalExtension; }
  auto& v670() { return v5c0().v670NonCriticalExtension; }
  auto& v770() { return v670().v770NonCriticalExtension; }
  auto& v830() { return v770().v830NonCriticalExtension; }
  auto& v860() { return v830().v860NonCriticalExtension; }
  auto& v870() { return v860().v870NonCriticalExtension; }
  auto& v900() { return v870().v900NonCriticalExtension; }
  // Extension levels present down to `depth`: 0 none, 1 v4b0 ... 9 v900, 10 nonCriticalExtensions.
  void chain(int depth) {
    uint32_t* words[] = {&s.m, &v4b0().m, &v590().m, &v5c0().m, &v670().m, &v770().m, &v830().m, &v860().m,
                         &v870().m, &v900().m};
    for (int i = 0; i < depth; i++) *words[i] |= 1u;
  }

  std::vector<uint8_t> encode(uint32_t* bits = nullptr) const {
    return frametest::encode(asn1PE_UMTS_SysInfoType3, s, bits);
  }
};

// The flat levels below umts_sib3_info, outermost first: bit 0 of each says the next is there.
std::vector<uint16_t> levelBits(const umts_sib3_info& f) {
  const umts_sib3_v4b0_nce& l0 = f.v4b0NonCriticalExtensions;
  const auto& l1 = l0.v590NonCriticalExtension;
  const auto& l2 = l1.v5c0NoncriticalExtension;
  const auto& l3 = l2.v670NonCriticalExtension;
  const auto& l4 = l3.v770NonCriticalExtension;
  const auto& l5 = l4.v830NonCriticalExtension;
  const auto& l6 = l5.v860NonCriticalExtension;
  const auto& l7 = l6.v870NonCriticalExtension;
  const auto& l8 = l7.v900NonCriticalExtension;
  return {l0.presence_bitmask, l1.presence_bitmask, l2.presence_bitmask, l3.presence_bitmask, l4.presence_bitmask,
          l5.presence_bitmask, l6.presence_bitmask, l7.presence_bitmask, l8.presence_bitmask};
}

// ---- The cases: each builds on the smallest SIB3 and checks what it built ----------------

void checkSmallest(const umts_sib3_info& f) {
  EXPECT_EQ(f.presence_bitmask, 0);
  EXPECT_EQ(f.sib4indicator, 1);
  EXPECT_EQ(f.cellIdentity.numbits, 28u);
  EXPECT_EQ(std::vector<uint8_t>(f.cellIdentity.data, f.cellIdentity.data + 4), (std::vector<uint8_t>{0x12, 0x34, 0x56, 0x70}));
  const umts_cell_select_reselect_info_sib_3_4& c = f.cellSelectReselectInfo;
  EXPECT_EQ(c.q_Hyst_l_S, 20);
  EXPECT_EQ(c.t_Reselection_S, 31);
  EXPECT_EQ(c.maxAllowedUL_TX_Power, -50);
  EXPECT_EQ(f.cellAccessRestriction.cellReservedForOperatorUse, 0u);
  EXPECT_EQ(f.cellAccessRestriction.cellReservationExtension, 1u);
}

// cpich-RSCP: its tag and nothing under it.
void checkRscp(const umts_sib3_info& f) {
  checkSmallest(f);
  const umts_cell_select_reselect_info_sib_3_4& c = f.cellSelectReselectInfo;
  EXPECT_EQ(c.presence_bitmask, 0);
  EXPECT_EQ(c.cellSelectQualityMeasure.choice_tag, 2u);
  EXPECT_TRUE(allZero(c.cellSelectQualityMeasure.u));
}

void buildFddFull(Sib3Builder& b) {
  CellSelectReselectInfoSIB_3_4& c = b.s.cellSelectReselectInfo;
  c.m = 3;
  for (unsigned i = 0; i < 16; i++) {
    b.mappings[i].rat = i % 4;
    b.addParams(b.mappings[i].mappingFunctionParameterList, 3, i);
    b.add(c.mappingInfo, b.mappings[i]);
  }
  b.ecN0 = {1, 7};
  c.cellSelectQualityMeasure = {1, {&b.ecN0}};
  b.fdd.m = 15;
  b.fdd.s_Intrasearch = -16;
  b.fdd.s_Intersearch = 10;
  b.fdd.s_SearchHCS = -53;
  for (int i = 0; i < 15; i++) {
    b.fddRats[i] = {i % 2 == 0 ? 1u : 0u, static_cast<uint32_t>(i % 2), static_cast<int8_t>(-16 + i),
                    static_cast<int8_t>(-53 + i), static_cast<int8_t>(10 - i)};
    b.add(b.fdd.rat_List, b.fddRats[i]);
  }
  b.hyst[0] = {16, 7};
  c.hcs_ServingCellInformation = {1, 7, 99, {6, {&b.hyst[0]}}};
  CellAccessRestriction& a = b.s.cellAccessRestriction;
  b.barred = {1, 7};
  a.cellBarred = {1, {&b.barred}};
  a.m = 1;
  a.accessClassBarredList.n = 16;
  for (uint32_t i = 0; i < 16; i++) a.accessClassBarredList.elem[i] = i % 2;
}

void checkFddFull(const umts_sib3_info& f) {
  checkSmallest(f);
  const umts_cell_select_reselect_info_sib_3_4& c = f.cellSelectReselectInfo;
  EXPECT_EQ(c.presence_bitmask, 3);
  ASSERT_EQ(c.mappingInfo.count, 16);
  for (unsigned i = 0; i < 16; i++) {
    SCOPED_TRACE(i);
    const umts_mapping& m = c.mappingInfo.entries[i];
    EXPECT_EQ(m.rat, i % 4);
    ASSERT_EQ(m.mappingFunctionParameterList.count, 3);
    const umts_mapping_function_parameter* p = m.mappingFunctionParameterList.entries;
    // The first parameter of the first mapping also carries the quality measure's tag, 1.
    EXPECT_EQ(p[0].presence_bitmask, i == 0 ? 1 : 0);
    EXPECT_EQ(p[0].mapParameter1 + p[0].upperLimit, 0);
    EXPECT_EQ(p[1].presence_bitmask, 1);
    EXPECT_EQ(p[1].mapParameter1, 101);
    EXPECT_EQ(p[2].presence_bitmask, 2);
    EXPECT_EQ(p[2].upperLimit, 91);
    for (unsigned j = 0; j < 3; j++) {
      EXPECT_EQ(p[j].functionType, (i + j) % 4);
      EXPECT_EQ(p[j].mapParameter2, i + 10 * j);
    }
  }
  EXPECT_EQ(c.cellSelectQualityMeasure.choice_tag, 1u);
  EXPECT_EQ(c.cellSelectQualityMeasure.u.cpich_Ec_N0.presence_bitmask, 1);
  EXPECT_EQ(c.cellSelectQualityMeasure.u.cpich_Ec_N0.q_HYST_2_S, 7);
  ASSERT_EQ(c.modeSpecificInfo.choice_tag, 1u);
  const umts_sib3_fdd_info& fdd = c.modeSpecificInfo.u.fdd;
  EXPECT_EQ(fdd.presence_bitmask, 15);
  EXPECT_EQ(fdd.s_Intrasearch, -16);
  EXPECT_EQ(fdd.s_Intersearch, 10);
  EXPECT_EQ(fdd.s_SearchHCS, -53);
  EXPECT_EQ(fdd.q_QualMin, -24);
  EXPECT_EQ(fdd.q_RxlevMin, -13);
  ASSERT_EQ(fdd.rat_List.count, 15);
  for (int i = 0; i < 15; i++) {
    const umts_rat_info& r = fdd.rat_List.entries[i];
    EXPECT_EQ(r.presence_bitmask, i % 2 == 0 ? 1 : 0) << i;
    EXPECT_EQ(r.rat_Identifier, static_cast<uint32_t>(i % 2)) << i;
    EXPECT_EQ(r.s_SearchRAT, -16 + i) << i;
    EXPECT_EQ(r.s_HCS_RAT, i % 2 == 0 ? -53 + i : 0) << i;
    EXPECT_EQ(r.s_Limit_SearchRAT, 10 - i) << i;
  }
  const umts_hcs_serving_cell_information& h = c.hcs_ServingCellInformation;
  EXPECT_EQ(h.presence_bitmask, 1);
  EXPECT_EQ(h.hcs_PRIO, 7);
  EXPECT_EQ(h.q_HCS, 99);
  EXPECT_EQ(h.t_CR_Max.choice_tag, 6u);
  EXPECT_EQ(h.t_CR_Max.u.t240.n_CR, 16);
  EXPECT_EQ(h.t_CR_Max.u.t240.t_CRMaxHyst, 7u);
  const umts_cell_access_restriction& a = f.cellAccessRestriction;
  EXPECT_EQ(a.presence_bitmask, 1);
  EXPECT_EQ(a.cellBarred.choice_tag, 1u);
  EXPECT_EQ(a.cellBarred.u.barred.intraFreqCellReselectionInd, 1u);
  EXPECT_EQ(a.cellBarred.u.barred.t_Barred, 7u);
  ASSERT_EQ(a.accessClassBarredList.count, 16u);
  for (uint32_t i = 0; i < 16; i++) EXPECT_EQ(a.accessClassBarredList.entries[i], i % 2);
  EXPECT_TRUE(allZero(f.v4b0NonCriticalExtensions));
}

void buildTdd(Sib3Builder& b) {
  CellSelectReselectInfoSIB_3_4& c = b.s.cellSelectReselectInfo;
  c.m = 2;
  b.ecN0 = {0, 5};  // q_HYST_2_S absent
  c.cellSelectQualityMeasure = {1, {&b.ecN0}};
  c.modeSpecificInfo.t = 2;
  c.modeSpecificInfo.u.tdd = &b.tdd;
  b.tdd = {15, -53, 45, 0, {}, -58};
  b.tddRats[0] = {0, 1, 45, 0, -53};
  b.tddRats[1] = {1, 0, -1, 44, 3};
  for (int i = 0; i < 2; i++) b.add(b.tdd.rat_List, b.tddRats[i]);
  c.hcs_ServingCellInformation = {1, 0, 0, {1, {}}};  // notUsed
}

void checkTdd(const umts_sib3_info& f) {
  checkSmallest(f);
  const umts_cell_select_reselect_info_sib_3_4& c = f.cellSelectReselectInfo;
  EXPECT_EQ(c.presence_bitmask, 2);
  // The cell identity's octets stay in their field: nothing reaches the absent mappingInfo.
  EXPECT_TRUE(allZero(c.mappingInfo));
  EXPECT_EQ(c.cellSelectQualityMeasure.choice_tag, 1u);
  EXPECT_TRUE(allZero(c.cellSelectQualityMeasure.u));
  ASSERT_EQ(c.modeSpecificInfo.choice_tag, 2u);
  const umts_sib3_tdd_info& tdd = c.modeSpecificInfo.u.tdd;
  EXPECT_EQ(tdd.presence_bitmask, 15);
  EXPECT_EQ(tdd.s_Intrasearch, -53);
  EXPECT_EQ(tdd.s_Intersearch, 45);
  EXPECT_EQ(tdd.s_SearchHCS, 0);
  EXPECT_EQ(tdd.q_RxlevMin, -58);
  ASSERT_EQ(tdd.rat_List.count, 2);
  EXPECT_EQ(tdd.rat_List.entries[0].presence_bitmask, 0);
  EXPECT_EQ(tdd.rat_List.entries[0].rat_Identifier, 1u);
  EXPECT_EQ(tdd.rat_List.entries[0].s_SearchRAT, 45);
  EXPECT_EQ(tdd.rat_List.entries[0].s_Limit_SearchRAT, -53);
  EXPECT_EQ(tdd.rat_List.entries[1].presence_bitmask, 1);
  EXPECT_EQ(tdd.rat_List.entries[1].s_HCS_RAT, 44);
  EXPECT_EQ(c.hcs_ServingCellInformation.presence_bitmask, 1);
  EXPECT_EQ(c.hcs_ServingCellInformation.t_CR_Max.choice_tag, 1u);
  EXPECT_TRUE(allZero(c.hcs_ServingCellInformation.t_CR_Max.u));
  EXPECT_EQ(f.cellAccessRestriction.presence_bitmask, 0);
  EXPECT_EQ(f.cellAccessRestriction.cellBarred.choice_tag, 2u);
  EXPECT_TRUE(allZero(f.cellAccessRestriction.cellBarred.u));
  EXPECT_EQ(f.cellAccessRestriction.accessClassBarredList.count, 0u);
}

// Under mappingInfo, the quality measure's tag shows in the first parameter's presence bits:
// cpich-RSCP (2) as bit 1 although that parameter has no upperLimit.
void buildRscpWithMapping(Sib3Builder& b) {
  CellSelectReselectInfoSIB_3_4& c = b.s.cellSelectReselectInfo;
  c.m = 1;
  b.mappings[0].rat = 3;
  b.addParams(b.mappings[0].mappingFunctionParameterList, 2, 4);
  b.add(c.mappingInfo, b.mappings[0]);
}

void checkRscpWithMapping(const umts_sib3_info& f) {
  const umts_mapping_function_parameter_list& p = f.cellSelectReselectInfo.mappingInfo.entries[0].mappingFunctionParameterList;
  EXPECT_EQ(f.cellSelectReselectInfo.cellSelectQualityMeasure.choice_tag, 2u);
  ASSERT_EQ(p.count, 2);
  EXPECT_EQ(p.entries[0].presence_bitmask, 2);
  EXPECT_EQ(p.entries[0].upperLimit, 0);
  EXPECT_EQ(p.entries[1].presence_bitmask, 1);
}

void buildChain(Sib3Builder& b) {
  b.chain(10);
  b.v4b0().sysInfoType3_v4b0ext.m = 1;
  b.addParams(b.v4b0().sysInfoType3_v4b0ext.mapping_LCR.mappingFunctionParameterList, 3, 1);
  b.v590().sysInfoType3_v590ext = {1, {3, -2, -5}};
  b.v5c0().sysInfoType3_v5c0ext.m = 1;
  b.hyst[1] = {1, 3};
  b.v5c0().sysInfoType3_v5c0ext.cellSelectReselectInfoTreselectionScaling_v5c0ext = {15, {2, {&b.hyst[1]}}, 10, 4, 19};
  SysInfoType3_v670ext& v670 = b.v670().sysInfoType3_v670ext;
  v670.m = 3;
  b.restrictions[0].m = 1;
  b.restrictions[0].domainSpecficAccessClassBarredList.n = 16;
  for (uint32_t i = 0; i < 16; i++) b.restrictions[0].domainSpecficAccessClassBarredList.elem[i] = i % 3 == 0 ? 0 : 1;
  v670.domainSpecificAccessRestrictionParametersForPLMNOfMIB = {{1, {}}, {2, {&b.restrictions[0]}}};
  b.operators.m = 0x15;  // operators 1, 3 and 5
  b.operators.domainSpecificAccessRestrictionParametersForOperator1 = {{2, {&b.restrictions[1]}}, {1, {}}};
  b.operators.domainSpecificAccessRestrictionParametersForOperator3 = {{1, {}}, {2, {&b.restrictions[0]}}};
  b.operators.domainSpecificAccessRestrictionParametersForOperator5 = {{2, {&b.restrictions[1]}}, {2, {&b.restrictions[1]}}};
  v670.domainSpecificAccessRestictionForSharedNetwork.t = 1;
  v670.domainSpecificAccessRestictionForSharedNetwork.u.domainSpecificAccessRestictionList = &b.operators;
  b.deferredFdd.intraFreqMeasQuantity_FDD = 1;
  b.v770().sysInfoType3_v770ext = {15, {1, {1, {}}}, 16, 8, 0};
  b.v770().sysInfoType3_v770ext.deferredMeasurementControlReadingSupport.modeSpecificInfo.u.fdd = &b.deferredFdd;
  SysInfoType3_v830ext_IEs& v830 = b.v830().sysInfoType3_v830ext;
  v830.m = 3;
  b.registrations[0].n = 15;
  for (uint32_t i = 0; i < 15; i++) b.registrations[0].elem[i] = i % 2;
  v830.pagingPermissionWithAccessControlParametersForPLMNOfMIB = {3, 2, {2, {&b.registrations[0]}}};
  b.pagingForAll = {1, 0, {1, {}}};
  v830.pagingPermissionWithAccessControlParametersForSharedNetwork.t = 2;
  v830.pagingPermissionWithAccessControlParametersForSharedNetwork.u.pagingPermissionWithAccessControlForAll = &b.pagingForAll;
  b.v860().sysInfoType3_v860ext = {3, bitString<CSG_Identity>({0xAB, 0xCD, 0xEF, 0xFF}, 27), {1, 63, 12, 63}};
  b.v870().sysInfoType3_v870ext = {1, {1, 0}};
  b.v900().sysInfoType3_v920ext = {1, 0};
}

void checkChain(const umts_sib3_info& f) {
  checkSmallest(f);
  EXPECT_EQ(f.presence_bitmask, 0);  // never set, although the chain is there
  EXPECT_EQ(levelBits(f), std::vector<uint16_t>(9, 1));
  const umts_sib3_v4b0_nce& l0 = f.v4b0NonCriticalExtensions;
  const umts_mapping_function_parameter_list& lcr = l0.sysInfoType3_v4b0ext.mapping_LCR;
  EXPECT_EQ(l0.sysInfoType3_v4b0ext.presence_bitmask, 1);
  ASSERT_EQ(lcr.count, 3);
  EXPECT_EQ(lcr.entries[0].presence_bitmask, 0);  // the quality measure's tag stays in mappingInfo
  EXPECT_EQ(lcr.entries[1].mapParameter1, 101);
  EXPECT_EQ(lcr.entries[2].mapParameter2, 21);
  const umts_sib3_v590_nce& l1 = l0.v590NonCriticalExtension;
  EXPECT_EQ(l1.sysInfoType3_v590ext.presence_bitmask, 1);
  const umts_cell_select_reselect_info_v590ext& v590 = l1.sysInfoType3_v590ext.cellSelectReselectInfo_v590ext;
  EXPECT_EQ(v590.presence_bitmask, 3);
  EXPECT_EQ(v590.deltaQrxlevmin, -2);
  EXPECT_EQ(v590.deltaQhcs, -5);
  const umts_sib3_v5c0_nce& l2 = l1.v5c0NoncriticalExtension;
  const umts_cell_select_reselect_info_treselection_scaling_v5c0ext& v5c0 =
      l2.sysInfoType3_v5c0ext.cellSelectReselectInfoTreselectionScaling_v5c0ext;
  EXPECT_EQ(l2.sysInfoType3_v5c0ext.presence_bitmask, 1);
  EXPECT_EQ(v5c0.presence_bitmask, 15);
  EXPECT_EQ(v5c0.non_HCS_t_CR_Max.choice_tag, 2u);
  EXPECT_EQ(v5c0.non_HCS_t_CR_Max.u.t30.n_CR, 1);
  EXPECT_EQ(v5c0.non_HCS_t_CR_Max.u.t30.t_CRMaxHyst, 3u);
  EXPECT_EQ(v5c0.speedDependentScalingFactor, 10);
  EXPECT_EQ(v5c0.interFrequencyTreselectionScalingFactor, 4);
  EXPECT_EQ(v5c0.interRATTreselectionScalingFactor, 19);
  const umts_sib3_v670_nce& l3 = l2.v670NonCriticalExtension;
  const umts_sib3_v670ext& v670 = l3.sysInfoType3_v670ext;
  EXPECT_EQ(v670.presence_bitmask, 3);
  const umts_domain_specific_access_restriction_param_v670ext& mib = v670.domainSpecificAccessRestrictionParametersForPLMNOfMIB;
  EXPECT_EQ(mib.cSDomainSpecificAccessRestriction.choice_tag, 1u);
  EXPECT_TRUE(allZero(mib.cSDomainSpecificAccessRestriction.u));
  ASSERT_EQ(mib.pSDomainSpecificAccessRestriction.choice_tag, 2u);
  const umts_domain_specific_access_restriction_v670ext_restriction& r = mib.pSDomainSpecificAccessRestriction.u.restriction;
  EXPECT_EQ(r.presence_bitmask, 1);
  ASSERT_EQ(r.domainSpecficAccessClassBarredList.count, 16u);
  for (uint32_t i = 0; i < 16; i++) EXPECT_EQ(r.domainSpecficAccessClassBarredList.entries[i], i % 3 == 0 ? 0u : 1u);
  ASSERT_EQ(v670.domainSpecificAccessRestictionForSharedNetwork.choice_tag, 1u);
  const umts_domain_specific_access_restriction_list_v670ext& ops =
      v670.domainSpecificAccessRestictionForSharedNetwork.u.domainSpecificAccessRestictionList;
  EXPECT_EQ(ops.presence_bitmask, 0x15);
  EXPECT_EQ(ops.domainSpecificAccessRestrictionParametersForOperator1.cSDomainSpecificAccessRestriction.choice_tag, 2u);
  EXPECT_EQ(ops.domainSpecificAccessRestrictionParametersForOperator1.cSDomainSpecificAccessRestriction.u.restriction
                .presence_bitmask,
            0);
  EXPECT_TRUE(allZero(ops.domainSpecificAccessRestrictionParametersForOperator2));
  EXPECT_EQ(std::memcmp(&ops.domainSpecificAccessRestrictionParametersForOperator3.pSDomainSpecificAccessRestriction,
                        &mib.pSDomainSpecificAccessRestriction, sizeof mib.pSDomainSpecificAccessRestriction),
            0);
  EXPECT_EQ(ops.domainSpecificAccessRestrictionParametersForOperator5.pSDomainSpecificAccessRestriction.choice_tag, 2u);
  const umts_sib3_v770_nce& l4 = l3.v770NonCriticalExtension;
  const umts_sib3_v770ext& v770 = l4.sysInfoType3_v770ext;
  EXPECT_EQ(v770.presence_bitmask, 15);
  EXPECT_EQ(v770.deferredMeasurementControlReadingSupport.presence_bitmask, 1);
  EXPECT_EQ(v770.deferredMeasurementControlReadingSupport.modeSpecificInfo.choice_tag, 1u);
  EXPECT_EQ(v770.deferredMeasurementControlReadingSupport.modeSpecificInfo.u.fdd.intraFreqMeasQuantity_FDD, 1u);
  EXPECT_EQ(v770.q_QualMin_Offset, 16);
  EXPECT_EQ(v770.q_RxlevMin_Offset, 8);
  EXPECT_EQ(v770.mbsfnOnlyService, 0u);
  const umts_sib3_v830_nce& l5 = l4.v830NonCriticalExtension;
  const umts_sib3_v830ext& v830 = l5.sysInfoType3_v830ext;
  EXPECT_EQ(v830.presence_bitmask, 3);
  const umts_paging_permission_with_access_control_parameters& p = v830.pagingPermissionWithAccessControlParametersForPLMNOfMIB;
  EXPECT_EQ(p.pagingResponseRestrictionIndicator, 3u);
  EXPECT_EQ(p.locationRegistrationRestrictionIndicator, 2u);
  ASSERT_EQ(p.locationRegistration.choice_tag, 2u);
  ASSERT_EQ(p.locationRegistration.u.restriction.count, 15u);
  for (uint32_t i = 0; i < 15; i++) EXPECT_EQ(p.locationRegistration.u.restriction.entries[i], i % 2);
  ASSERT_EQ(v830.pagingPermissionWithAccessControlParametersForSharedNetwork.choice_tag, 2u);
  const umts_paging_permission_with_access_control_parameters& all =
      v830.pagingPermissionWithAccessControlParametersForSharedNetwork.u.pagingPermissionWithAccessControlForAll;
  EXPECT_EQ(all.pagingResponseRestrictionIndicator, 1u);
  EXPECT_EQ(all.locationRegistrationRestrictionIndicator, 0u);
  EXPECT_EQ(all.locationRegistration.choice_tag, 1u);
  EXPECT_TRUE(allZero(all.locationRegistration.u));
  const umts_sib3_v860_nce& l6 = l5.v860NonCriticalExtension;
  const umts_sib3_v860ext& v860 = l6.sysInfoType3_v860ext;
  EXPECT_EQ(v860.presence_bitmask, 3);
  EXPECT_EQ(v860.csgIdentity.numbits, 27u);
  EXPECT_EQ(std::vector<uint8_t>(v860.csgIdentity.data, v860.csgIdentity.data + 4), (std::vector<uint8_t>{0xAB, 0xCD, 0xEF, 0xE0}));
  EXPECT_EQ(v860.csg_PSCSplitInfo.presence_bitmask, 1);
  EXPECT_EQ(v860.csg_PSCSplitInfo.startPSC, 63);
  EXPECT_EQ(v860.csg_PSCSplitInfo.numberOfPSCs, 12u);
  EXPECT_EQ(v860.csg_PSCSplitInfo.pscRange2Offset, 63);
  const umts_sib3_v870_nce& l7 = l6.v870NonCriticalExtension;
  EXPECT_EQ(l7.sysInfoType3_v870ext.presence_bitmask, 1);
  EXPECT_EQ(l7.sysInfoType3_v870ext.cellAccessRestriction.presence_bitmask, 1);
  EXPECT_EQ(l7.sysInfoType3_v870ext.cellAccessRestriction.cellReservedForCSG, 0u);
  const umts_sib3_v900_nce& l8 = l7.v900NonCriticalExtension;
  EXPECT_EQ(l8.sysInfoType3_v920ext.presence_bitmask, 1);
  EXPECT_EQ(l8.sysInfoType3_v920ext.imsEmergencySupportIndicator, 0u);
  EXPECT_EQ(l8.nonCriticalExtensions, 0);
}

// The other alternatives, and a chain that ends at v860 with only the CSG identity.
void buildOtherChain(Sib3Builder& b) {
  b.chain(7);
  SysInfoType3_v670ext& v670 = b.v670().sysInfoType3_v670ext;
  v670.m = 2;
  b.restrictions[2].m = 1;
  b.restrictions[2].domainSpecficAccessClassBarredList.n = 16;
  b.restrictions[2].domainSpecficAccessClassBarredList.elem[15] = 1;
  b.forAll = {{2, {&b.restrictions[2]}}, {2, {&b.restrictions[3]}}};
  v670.domainSpecificAccessRestictionForSharedNetwork.t = 2;
  v670.domainSpecificAccessRestictionForSharedNetwork.u.domainSpecificAccessRestictionParametersForAll = &b.forAll;
  b.deferredTdd.intraFreqMeasQuantity_TDDList = {2, {1, 0}};
  b.v770().sysInfoType3_v770ext = {1, {1, {2, {}}}, 0, 0, 0};
  b.v770().sysInfoType3_v770ext.deferredMeasurementControlReadingSupport.modeSpecificInfo.u.tdd = &b.deferredTdd;
  b.pagingOperators.m = 0x0A;  // operators 2 and 4
  b.pagingOperators.pagingPermissionWithAccessControlParametersForOperator2 = {2, 1, {1, {}}};
  b.registrations[1].n = 15;
  b.registrations[1].elem[14] = 1;
  b.pagingOperators.pagingPermissionWithAccessControlParametersForOperator4 = {0, 0, {2, {&b.registrations[1]}}};
  SysInfoType3_v830ext_IEs& v830 = b.v830().sysInfoType3_v830ext;
  v830.m = 2;
  v830.pagingPermissionWithAccessControlParametersForSharedNetwork.t = 1;
  v830.pagingPermissionWithAccessControlParametersForSharedNetwork.u.pagingPermissionWithAccessControlList = &b.pagingOperators;
  b.v860().sysInfoType3_v860ext = {1, bitString<CSG_Identity>({0xFF, 0xFF, 0xFF, 0xFF}, 27), {}};
}

void checkOtherChain(const umts_sib3_info& f) {
  checkSmallest(f);
  EXPECT_EQ(levelBits(f), (std::vector<uint16_t>{1, 1, 1, 1, 1, 1, 0, 0, 0}));
  const umts_sib3_v670_nce& l3 = f.v4b0NonCriticalExtensions.v590NonCriticalExtension.v5c0NoncriticalExtension.v670NonCriticalExtension;
  EXPECT_EQ(l3.sysInfoType3_v670ext.presence_bitmask, 2);
  ASSERT_EQ(l3.sysInfoType3_v670ext.domainSpecificAccessRestictionForSharedNetwork.choice_tag, 2u);
  const umts_domain_specific_access_restriction_param_v670ext& all =
      l3.sysInfoType3_v670ext.domainSpecificAccessRestictionForSharedNetwork.u.domainSpecificAccessRestictionParametersForAll;
  EXPECT_EQ(all.cSDomainSpecificAccessRestriction.u.restriction.presence_bitmask, 1);
  EXPECT_EQ(all.cSDomainSpecificAccessRestriction.u.restriction.domainSpecficAccessClassBarredList.entries[15], 1u);
  EXPECT_EQ(all.pSDomainSpecificAccessRestriction.choice_tag, 2u);
  EXPECT_TRUE(allZero(all.pSDomainSpecificAccessRestriction.u.restriction));
  const umts_sib3_v770ext& v770 = l3.v770NonCriticalExtension.sysInfoType3_v770ext;
  EXPECT_EQ(v770.presence_bitmask, 1);
  const auto& mode = v770.deferredMeasurementControlReadingSupport.modeSpecificInfo;
  ASSERT_EQ(mode.choice_tag, 2u);
  EXPECT_EQ(mode.u.tdd.count, 2u);
  EXPECT_EQ(mode.u.tdd.entries[0], 1u);
  EXPECT_EQ(mode.u.tdd.entries[1], 0u);
  const umts_sib3_v830_nce& l5 = l3.v770NonCriticalExtension.v830NonCriticalExtension;
  const umts_sib3_v830ext& v830 = l5.sysInfoType3_v830ext;
  EXPECT_EQ(v830.presence_bitmask, 2);
  EXPECT_TRUE(allZero(v830.pagingPermissionWithAccessControlParametersForPLMNOfMIB));
  ASSERT_EQ(v830.pagingPermissionWithAccessControlParametersForSharedNetwork.choice_tag, 1u);
  const umts_paging_permission_with_access_control_list& ops =
      v830.pagingPermissionWithAccessControlParametersForSharedNetwork.u.pagingPermissionWithAccessControlList;
  EXPECT_EQ(ops.presence_bitmask, 0x0A);
  EXPECT_EQ(ops.pagingPermissionWithAccessControlParametersForOperator2.pagingResponseRestrictionIndicator, 2u);
  EXPECT_EQ(ops.pagingPermissionWithAccessControlParametersForOperator2.locationRegistration.choice_tag, 1u);
  const umts_location_registration_parameters& reg = ops.pagingPermissionWithAccessControlParametersForOperator4.locationRegistration;
  ASSERT_EQ(reg.choice_tag, 2u);
  EXPECT_EQ(reg.u.restriction.count, 15u);
  EXPECT_EQ(reg.u.restriction.entries[14], 1u);
  EXPECT_TRUE(allZero(ops.pagingPermissionWithAccessControlParametersForOperator5));
  // The CSG identity's 27 is taken as a count of octets, held to the field's 4: the absent
  // split info and the absent next level read as zero.
  const umts_sib3_v860_nce& l6 = l5.v860NonCriticalExtension;
  EXPECT_EQ(l6.sysInfoType3_v860ext.presence_bitmask, 1);
  EXPECT_EQ(l6.sysInfoType3_v860ext.csgIdentity.numbits, 27u);
  EXPECT_EQ(l6.sysInfoType3_v860ext.csgIdentity.data[3], 0xE0);
  EXPECT_TRUE(allZero(l6.sysInfoType3_v860ext.csg_PSCSplitInfo));
  EXPECT_TRUE(allZero(l6.v870NonCriticalExtension));
}

const struct {
  const char* name;
  void (*build)(Sib3Builder&);
  void (*check)(const umts_sib3_info&);
} kCases[] = {
    {"smallest, cpich-RSCP", [](Sib3Builder&) {}, checkRscp},
    {"fdd, every optional element, the longest lists", buildFddFull, checkFddFull},
    {"tdd, q_HYST_2_S absent, t_CR_Max notUsed", buildTdd, checkTdd},
    {"cpich-RSCP under mappingInfo", buildRscpWithMapping, checkRscpWithMapping},
    {"every extension level, first alternatives", buildChain, checkChain},
    {"extensions to v860, other alternatives", buildOtherChain, checkOtherChain},
};

class ConvertSib3 : public ConvertTest {};

// Each SIB3 sent whole gives the record it was built from; sent over the BCH, cut into
// transport blocks, it gives the same record as sent whole.
TEST_F(ConvertSib3, WholeAndBchGiveTheRecordBuilt) {
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.name);
    Sib3Builder builder;
    c.build(builder);
    std::string out;
    ASSERT_EQ(whole(umts_sib_sib3, builder.encode(), &out), 1);
    EXPECT_EQ(out.rfind("Decoded SysInfoType3\n", 0), 0u);
    c.check(result->sib3);
    uint32_t bits = 0;
    const Bytes sib3 = builder.encode(&bits);
    expectSameOverTheBch(umts_sib_sib3, 3, &umts_sib_set::sib3, sib3, bits);
  }
}

// A chain cut at any level leaves that level's bit 0 and everything below it zero.
TEST_F(ConvertSib3, ChainCutAtEachLevel) {
  for (int depth = 0; depth <= 10; depth++) {
    SCOPED_TRACE(depth);
    Sib3Builder builder;
    buildChain(builder);
    uint32_t* words[] = {&builder.s.m, &builder.v4b0().m, &builder.v590().m, &builder.v5c0().m, &builder.v670().m,
                         &builder.v770().m, &builder.v830().m, &builder.v860().m, &builder.v870().m, &builder.v900().m};
    if (depth < 10) *words[depth] = 0;
    ASSERT_EQ(whole(umts_sib_sib3, builder.encode()), 1);
    const std::vector<uint16_t> got = levelBits(result->sib3);
    for (int level = 0; level < 9; level++) EXPECT_EQ(got[level], level + 1 < depth ? 1 : 0) << level;
    EXPECT_EQ(result->sib3.presence_bitmask, 0);
    if (depth == 0) {
      EXPECT_TRUE(allZero(result->sib3.v4b0NonCriticalExtensions));
    }
    if (depth == 10) checkChain(result->sib3);
  }
}

// A failed decoding leaves the previous record and says so; the next success replaces it.
TEST_F(ConvertSib3, FailedDecodingKeepsThePreviousRecord) {
  Sib3Builder chain;
  buildChain(chain);
  ASSERT_EQ(whole(umts_sib_sib3, chain.encode()), 1);
  const umts_sib3_info before = result->sib3;
  std::string out;
  EXPECT_EQ(whole(umts_sib_sib3, std::vector<uint8_t>(40, 0xFF), &out), 0);
  EXPECT_NE(out.find("umts_convert_sib3:asn decoding failed\n"), std::string::npos);
  EXPECT_EQ(out.find("Decoded SysInfoType3"), std::string::npos);
  EXPECT_EQ(std::memcmp(&result->sib3, &before, sizeof before), 0);
  EXPECT_EQ(result->presence_bitmask, 0);
  EXPECT_TRUE(logged("2:decode_system_info_msg:umts_convert_sib3 failed"));

  ASSERT_EQ(whole(umts_sib_sib3, Sib3Builder().encode()), 1);
  checkSmallest(result->sib3);
  EXPECT_TRUE(allZero(result->sib3.v4b0NonCriticalExtensions));
}

// Decoded lists longer than their record (which the decoder never delivers) are copied up to
// the record's bound; the count keeps what the list said.
TEST_F(ConvertSib3, ListsAreCopiedWithinTheirBound) {
  Sib3Builder b;
  MappingInfo mappings{};
  for (int i = 0; i < 20; i++) b.add(mappings, b.mappings[i % 16]);
  RAT_FDD_InfoList rats{};
  for (int i = 0; i < 17; i++) b.add(rats, b.fddRats[i % 15]);
  b.fddRats[14].s_SearchRAT = 9;
  AccessClassBarredList classes{};
  classes.n = 20;
  classes.elem[15] = 1;
  LocationRegistrationAccessClassBarredList registration{};
  registration.n = 16;
  IntraFreqMeasQuantity_TDD_sib3List tdd{3, {1, 1}};

  struct {
    umts_mapping_info mappings;
    umts_rat_info_list rats;
    umts_access_class_barred_list classes;
    umts_location_registration_access_class_barred_list registration;
    umts_intra_freq_meas_quantity_tdd_sib3_list tdd;
    uint8_t guard[64];
  } flat;
  std::memset(&flat, 0, sizeof flat);
  convert_mapping_info(&mappings, &flat.mappings);
  convert_rat_fdd_info_list(&rats, &flat.rats);
  convert_access_class_barred_list(&classes, &flat.classes);
  convert_location_registration_access_class_barred_list(&registration, &flat.registration);
  convert_intra_freq_meas_quantity_tdd_sib3_list(&tdd, &flat.tdd);
  EXPECT_EQ(flat.mappings.count, 20);
  EXPECT_EQ(flat.rats.count, 17);
  EXPECT_EQ(flat.rats.entries[14].s_SearchRAT, 9);
  EXPECT_EQ(flat.classes.count, 20u);
  EXPECT_EQ(flat.classes.entries[15], 1u);
  EXPECT_EQ(flat.registration.count, 16u);
  EXPECT_EQ(flat.tdd.count, 3u);
  EXPECT_EQ(flat.tdd.entries[1], 1u);
  EXPECT_TRUE(allZero(flat.guard));
}

// The CSG identity's 27 bits, taken as a count of octets, are held to the field's four: the
// absent split info behind it reads zero.
TEST(ConvertSib3Parts, CsgIdentityStaysInItsField) {
  SysInfoType3_v860ext_IEs src{};
  src.m = 1;
  src.csgIdentity = bitString<CSG_Identity>({0xFF, 0xFF, 0xFF, 0xFF}, 27);
  std::memset(&src.csg_PSCSplitInfo, 0x5A, sizeof src.csg_PSCSplitInfo);
  umts_sib3_v860ext flat{};
  convert_sysinfotype3_v860ext_ies(&src, &flat);
  EXPECT_EQ(flat.presence_bitmask, 1);
  EXPECT_EQ(flat.csgIdentity.numbits, 27u);
  EXPECT_EQ(octets(flat.csgIdentity), (Bytes{0xFF, 0xFF, 0xFF, 0xE0}));
  EXPECT_TRUE(allZero(flat.csg_PSCSplitInfo));
}

// Tags that the decoder cannot deliver are kept with nothing under them, without a word.
TEST_F(ConvertSib3, UnknownTagsAreKeptSilently) {
  const std::string out = captureStdout([] {
    const T_CRMax tcr{7, {}};
    umts_t_cr_max flat_tcr{};
    convert_T_cr_max(&tcr, &flat_tcr);
    EXPECT_EQ(flat_tcr.choice_tag, 7u);
    EXPECT_TRUE(allZero(flat_tcr.u));
    const CellBarred barred{3, {}};
    umts_cell_barred flat_barred{};
    convert_call_barred(&barred, &flat_barred);
    EXPECT_EQ(flat_barred.choice_tag, 3u);
    const LocationRegistrationParameters reg{5, {}};
    umts_location_registration_parameters flat_reg{};
    convert_location_registration_parameters(&reg, &flat_reg);
    EXPECT_EQ(flat_reg.choice_tag, 5u);
    EXPECT_TRUE(allZero(flat_reg.u));
    const CellSelectReselectInfoSIB_3_4_modeSpecificInfo mode{3, {}};
    umts_sib3_mode_specific_info flat_mode{};
    convert_call_select_reselect_infoSIB3_4_mode_specific_info(&mode, &flat_mode);
    EXPECT_EQ(flat_mode.choice_tag, 3u);
    EXPECT_TRUE(allZero(flat_mode.u));
  });
  EXPECT_EQ(out, "");
  EXPECT_TRUE(logLines().empty());
}

}  // namespace
