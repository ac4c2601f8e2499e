// The SIB3 conversion: built in code, encoded by the codec, sent whole and over the BCH.
#include "convert_test.h"

using namespace converttest;

namespace {

// A SysInfoType3 built in code, with the storage of its lists and alternatives. Starts as the
// smallest SIB3: fdd without optional elements, cpich-RSCP, notBarred, no extensions.
struct Sib3Builder {
  Pool pool;
  SysInfoType3 s{};
  CellSelectReselectInfoSIB_3_4_modeSpecificInfo_fdd& fdd = *pool.make<CellSelectReselectInfoSIB_3_4_modeSpecificInfo_fdd>();

  Sib3Builder() {
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

  // A mapping of `rat` with `n` parameters: parameter j has mapParameter1 when j is 1,
  // upperLimit when j is 2.
  void addMapping(uint32_t rat, unsigned n, unsigned seed) {
    Mapping* m = pool.add<Mapping>(s.cellSelectReselectInfo.mappingInfo);
    m->rat = rat;
    for (unsigned j = 0; j < n; j++) {
      MappingFunctionParameter* p = pool.add<MappingFunctionParameter>(m->mappingFunctionParameterList);
      p->m = j == 1 ? 1u : j == 2 ? 2u : 0u;
      p->functionType = (seed + j) % 4;
      p->mapParameter1 = static_cast<uint8_t>(100 + j);
      p->mapParameter2 = static_cast<uint8_t>(seed + 10 * j);
      p->upperLimit = 91;
    }
  }
  std::vector<uint8_t> encode(uint32_t* bits = nullptr) const {
    return frametest::encode(asn1PE_UMTS_SysInfoType3, s, bits);
  }
};

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

void buildFddFull(Sib3Builder& b) {
  CellSelectReselectInfoSIB_3_4& c = b.s.cellSelectReselectInfo;
  c.m = 3;
  for (unsigned i = 0; i < 16; i++) b.addMapping(i % 4, 3, i);
  c.cellSelectQualityMeasure.t = 1;
  *b.pool.alloc(c.cellSelectQualityMeasure.u.cpich_Ec_N0) = {1, 7};
  b.fdd.m = 15;
  b.fdd.s_Intrasearch = -16;
  b.fdd.s_Intersearch = 10;
  b.fdd.s_SearchHCS = -53;
  for (int i = 0; i < 15; i++)
    b.pool.add(b.fdd.rat_List, RAT_FDD_Info{i % 2 == 0 ? 1u : 0u, static_cast<uint32_t>(i % 2), static_cast<int8_t>(-16 + i),
                                            static_cast<int8_t>(-53 + i), static_cast<int8_t>(10 - i)});
  c.hcs_ServingCellInformation = {1, 7, 99, {6, {b.pool.make<N_CR_T_CRMaxHyst>()}}};
  *c.hcs_ServingCellInformation.t_CR_Max.u.t240 = {16, 7};
  CellAccessRestriction& a = b.s.cellAccessRestriction;
  a.cellBarred.t = 1;
  *b.pool.alloc(a.cellBarred.u.barred) = {1, 7};
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
    EXPECT_EQ(p[2].mapParameter2, i + 20);
  }
  EXPECT_EQ(c.cellSelectQualityMeasure.choice_tag, 1u);
  EXPECT_EQ(c.cellSelectQualityMeasure.u.cpich_Ec_N0.presence_bitmask, 1);
  EXPECT_EQ(c.cellSelectQualityMeasure.u.cpich_Ec_N0.q_HYST_2_S, 7);
  ASSERT_EQ(c.modeSpecificInfo.choice_tag, 1u);
  const umts_sib3_fdd_info& fdd = c.modeSpecificInfo.u.fdd;
  EXPECT_EQ(fdd.presence_bitmask, 15);
  ASSERT_EQ(fdd.rat_List.count, 15);
  for (int i = 0; i < 15; i++) {
    const umts_rat_info& r = fdd.rat_List.entries[i];
    EXPECT_EQ(r.presence_bitmask, i % 2 == 0 ? 1 : 0) << i;
    EXPECT_EQ(r.s_HCS_RAT, i % 2 == 0 ? -53 + i : 0) << i;
  }
  EXPECT_EQ(c.hcs_ServingCellInformation.t_CR_Max.u.t240.t_CRMaxHyst, 7u);
  const umts_cell_access_restriction& a = f.cellAccessRestriction;
  EXPECT_EQ(a.presence_bitmask, 1);
  ASSERT_EQ(a.accessClassBarredList.count, 16u);
  for (uint32_t i = 0; i < 16; i++) EXPECT_EQ(a.accessClassBarredList.entries[i], i % 2);
  EXPECT_TRUE(allZero(f.v4b0NonCriticalExtensions));
}

void buildTdd(Sib3Builder& b) {
  CellSelectReselectInfoSIB_3_4& c = b.s.cellSelectReselectInfo;
  c.m = 2;
  c.cellSelectQualityMeasure.t = 1;
  *b.pool.alloc(c.cellSelectQualityMeasure.u.cpich_Ec_N0) = {0, 5};  // q_HYST_2_S absent
  c.modeSpecificInfo.t = 2;
  auto* tdd = b.pool.alloc(c.modeSpecificInfo.u.tdd);
  *tdd = {15, -53, 45, 0, {}, -58};
  b.pool.add(tdd->rat_List, RAT_TDD_Info{0, 1, 45, 0, -53});
  b.pool.add(tdd->rat_List, RAT_TDD_Info{1, 0, -1, 44, 3});
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
  EXPECT_EQ(tdd.q_RxlevMin, -58);
  ASSERT_EQ(tdd.rat_List.count, 2);
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
  b.addMapping(3, 2, 4);
}

void checkRscpWithMapping(const umts_sib3_info& f) {
  checkSmallest(f);
  const umts_mapping_function_parameter_list& p = f.cellSelectReselectInfo.mappingInfo.entries[0].mappingFunctionParameterList;
  EXPECT_EQ(f.cellSelectReselectInfo.cellSelectQualityMeasure.choice_tag, 2u);
  EXPECT_TRUE(allZero(f.cellSelectReselectInfo.cellSelectQualityMeasure.u));  // the tag alone
  ASSERT_EQ(p.count, 2);
  EXPECT_EQ(p.entries[0].presence_bitmask, 2);
  EXPECT_EQ(p.entries[0].upperLimit, 0);
  EXPECT_EQ(p.entries[1].presence_bitmask, 1);
}

const struct {
  const char* name;
  void (*build)(Sib3Builder&);
  void (*check)(const umts_sib3_info&);
} kCases[] = {
    {"fdd, every optional element, the longest lists", buildFddFull, checkFddFull},
    {"tdd, q_HYST_2_S absent, t_CR_Max notUsed", buildTdd, checkTdd},
    {"cpich-RSCP under mappingInfo", buildRscpWithMapping, checkRscpWithMapping},
};

class ConvertSib3 : public ConvertTest {};

// Each SIB3 sent whole gives the record it was built from; sent over the BCH, cut into
// transport blocks, it gives the same record as sent whole.
TEST_F(ConvertSib3, WholeAndBchGiveTheRecordBuilt) {
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.name);
    Sib3Builder builder;
    c.build(builder);
    ASSERT_EQ(whole(umts_sib_sib3, builder.encode()), 1);
    c.check(result->sib3);
    uint32_t bits = 0;
    const Bytes sib3 = builder.encode(&bits);
    expectSameOverTheBch(umts_sib_sib3, 3, &umts_sib_set::sib3, sib3, bits);
  }
}

// Decoded lists longer than their record (which the decoder never delivers) are copied up to
// the record's bound; the count keeps what the list said.
TEST_F(ConvertSib3, ListsAreCopiedWithinTheirBound) {
  Pool p;
  MappingInfo mappings{};
  for (int i = 0; i < 20; i++) p.add<Mapping>(mappings);
  RAT_FDD_InfoList rats{};
  for (int i = 0; i < 17; i++) p.add<RAT_FDD_Info>(rats)->s_SearchRAT = static_cast<int8_t>(i == 14 ? 9 : 0);
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
