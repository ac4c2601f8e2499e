// SIB5 of TDD cells and the later-release channel forms: PUSCH/PDSCH of 3.84, 1.28 and
// 7.68 Mcps and HCR, the LCR and VHCR PRACH, the 1.28 Mcps S-CCPCH extensions, the HCR/VHCR
// S-CCPCH list, the MBMS S-CCPCH of v690 and v770 and the 1.28 Mcps common E-DCH of v890.
// Built in code, encoded by the codec, converted through umts_sib_msg_decoder and compared
// field by field with what went in.
#include <deque>
#include <memory>
#include <type_traits>

#include "frame_test_util.h"
#include "sib5_builder.h"
#include "umts_sib_convert.h"

using namespace frametest;

namespace {

// Zeroed decoded values that live as long as the test's message.
struct Pool {
  std::deque<std::shared_ptr<void>> held;
  template <class T>
  T* make() {
    std::shared_ptr<void> p(std::calloc(1, sizeof(T)), std::free);
    held.push_back(p);
    return static_cast<T*>(p.get());
  }
  template <class T>
  void add(rtxDList& list, T& value) {
    append(list, *make<rtxDListNode>(), value);
  }
  template <class T>
  T* addNew(rtxDList& list, const T& value) {
    T* p = make<T>();
    *p = value;
    add(list, *p);
    return p;
  }
  template <class P>
  auto* alloc(P*& ptr) {
    ptr = make<std::remove_pointer_t<std::remove_reference_t<decltype(ptr)>>>();
    return ptr;
  }
};

// ---- Timeslots: the value of timeslot `n` of every chip rate -------------------------------

// Burst types 1 to `tags` (4: mbsfnBurstType4 with no value), each with a UE-specific shift.
template <class Burst>
void fillBurst(Pool& pool, Burst& b, unsigned n, unsigned tags) {
  b.t = 1 + n % tags;
  auto mode = [&](auto& m, uint32_t ue) {
    m.t = ue;
    pool.alloc(m.u.ueSpecificMidamble)->midambleShift = static_cast<uint8_t>(n % 5);
  };
  if (b.t == 1) {
    pool.alloc(b.u.type1)->midambleConfigurationBurstType1and3 = n % 2;
    mode(b.u.type1->midambleAllocationMode, 3);
  } else if (b.t == 2) {
    pool.alloc(b.u.type2)->midambleConfigurationBurstType2 = n % 2;
    mode(b.u.type2->midambleAllocationMode, 3);
  } else if (b.t == 3) {
    pool.alloc(b.u.type3)->midambleConfigurationBurstType1and3 = n % 2;
    mode(b.u.type3->midambleAllocationMode, 2);
  }
}

template <class Flat>
void checkBurst(const Flat& f, unsigned n, unsigned tags) {
  ASSERT_EQ(f.choice_tag, 1 + n % tags);
  if (f.choice_tag == 4) {
    EXPECT_TRUE(allZero(f.u)) << "mbsfnBurstType4 is its tag alone";
    return;
  }
  const umts_midamble_burst_type& b = f.choice_tag == 1 ? f.u.type1 : f.choice_tag == 2 ? f.u.type2 : f.u.type3;
  EXPECT_EQ(b.midambleConfiguration, n % 2);
  EXPECT_EQ(b.midambleAllocationMode, f.choice_tag == 3 ? 2u : 3u);
  EXPECT_EQ(b.midambleShift, n % 5);
}

void fillLcrMidamble(Pool& pool, MidambleShiftAndBurstType_LCR_r4& m, unsigned n) {
  m.midambleAllocationMode.t = 3;
  pool.alloc(m.midambleAllocationMode.u.ueSpecificMidamble)->midambleShift = static_cast<uint8_t>(n % 16);
  m.midambleConfiguration = static_cast<uint8_t>(1 + n % 8);
}
void checkLcrMidamble(const umts_midamble_shift_and_burst_type_lcr_r4& f, unsigned n) {
  EXPECT_EQ(f.choice_tag, 3u);
  EXPECT_EQ(f.midambleShift, n % 16);
  EXPECT_EQ(f.midambleConfiguration, 1 + n % 8);
}

void fillTs(Pool& pool, IndividualTimeslotInfo& t, unsigned n) {
  t.timeslotNumber = static_cast<uint8_t>(n % 7);
  t.tfci_Existence = n % 2;
  fillBurst(pool, t.midambleShiftAndBurstType.burstType, n, 3);
}
void fillTs(Pool& pool, IndividualTimeslotInfo_r7& t, unsigned n) {
  t.timeslotNumber = static_cast<uint8_t>(n % 7);
  t.tfci_Existence = n % 2;
  fillBurst(pool, t.midambleShiftAndBurstType.burstType, n, 4);
}
void fillTs(Pool& pool, IndividualTimeslotInfo_VHCR& t, unsigned n) {
  t.timeslotNumber = static_cast<uint8_t>(n % 7);
  t.tfci_Existence = n % 2;
  fillBurst(pool, t.midambleShiftAndBurstType_VHCR.burstType, n, 4);
}
void fillTs(Pool& pool, IndividualTimeslotInfo_LCR_r4& t, unsigned n) {
  t.m = n % 2;
  t.timeslotNumber = static_cast<uint8_t>(n % 7);
  t.tfci_Existence = n % 2;
  fillLcrMidamble(pool, t.midambleShiftAndBurstType, n);
  t.modulation = n % 2;
  t.ss_TPC_Symbols = n % 3;
  t.additionalSS_TPC_Symbols = static_cast<uint8_t>(1 + n % 15);
}

template <class Flat>
void checkTsHead(const Flat& f, unsigned n) {
  EXPECT_EQ(f.timeslotNumber, n % 7);
  EXPECT_EQ(f.tfci_Existence, n % 2);
}
void checkTs(const umts_individual_timeslot_info& f, unsigned n) { checkTsHead(f, n), checkBurst(f.midambleShiftAndBurstType, n, 3); }
void checkTs(const umts_individual_timeslot_info_r7& f, unsigned n) { checkTsHead(f, n), checkBurst(f.midambleShiftAndBurstType, n, 4); }
void checkTs(const umts_individual_timeslot_info_vhcr& f, unsigned n) {
  checkTsHead(f, n), checkBurst(f.midambleShiftAndBurstType_VHCR, n, 4);
}
void checkTs(const umts_individual_timeslot_info_lcr_r4& f, unsigned n) {
  checkTsHead(f, n);
  checkLcrMidamble(f.midambleShiftAndBurstType, n);
  EXPECT_EQ(f.presence_bitmask, n % 2);
  EXPECT_EQ(f.modulation, n % 2);
  EXPECT_EQ(f.ss_TPC_Symbols, n % 3);
  EXPECT_EQ(f.additionalSS_TPC_Symbols, n % 2 ? 1 + n % 15 : 0u) << "only under its bit";
}

// Codes of timeslot n: uplink one or two codes; downlink consecutive (even n) or bitmap.
template <class List>
auto fillCodes(Pool&, List& l, unsigned n) -> decltype(l.elem, void()) {
  l.n = 1 + n % 2;
  for (uint32_t i = 0; i < l.n; i++) l.elem[i] = (n + i) % 16;
}
template <class Short>
auto fillCodes(Pool& pool, Short& s, unsigned n) -> decltype(s.codesRepresentation, void()) {
  auto& rep = s.codesRepresentation;
  rep.t = 1 + n % 2;
  if (rep.t == 1) {
    pool.alloc(rep.u.consecutive)->firstChannelisationCode = n % 8;
    rep.u.consecutive->lastChannelisationCode = 8 + n % 8;
  } else {
    using Bits = std::remove_pointer_t<decltype(rep.u.bitmap)>;
    *pool.alloc(rep.u.bitmap) = bitString<Bits>({static_cast<uint8_t>(n), 0x5A}, std::is_same_v<Short, DL_TS_ChannelisationCodesShort_VHCR> ? 32 : 16);
  }
}
void checkCodes(const umts_ul_ts_channelisation_code_list& f, unsigned n) {
  ASSERT_EQ(f.count, 1 + n % 2);
  for (uint32_t i = 0; i < f.count; i++) EXPECT_EQ(f.codes[i], (n + i) % 16);
}
template <class Flat>
auto checkCodes(const Flat& f, unsigned n) -> decltype(f.u.bitmap, void()) {
  ASSERT_EQ(f.choice_tag, 1 + n % 2);
  if (f.choice_tag == 1) {
    EXPECT_EQ(f.u.consecutive.firstChannelisationCode, n % 8);
    EXPECT_EQ(f.u.consecutive.lastChannelisationCode, 8 + n % 8);
  } else {
    constexpr uint32_t bits = std::is_same_v<Flat, umts_dl_ts_channelisation_codes_short_vhcr> ? 32u : 16u;
    EXPECT_EQ(f.u.bitmap.numbits, bits);
    EXPECT_EQ(f.u.bitmap.data[0], n & 0xFF);
    EXPECT_EQ(f.u.bitmap.data[1], 0x5A);
    EXPECT_EQ(f.u.bitmap.data[2] | f.u.bitmap.data[3], 0) << "16 or 32 bits told as octets stay in the field";
  }
}

template <class T>
auto codesOf(T& np) -> decltype((np.ul_TS_ChannelisationCodeList)) { return np.ul_TS_ChannelisationCodeList; }
template <class T>
auto codesOf(T& np) -> decltype((np.dl_TS_ChannelisationCodesShort)) { return np.dl_TS_ChannelisationCodesShort; }

// moreTimeslots of form 0 noMore, 1 consecutive (3), 2 a list of `len` timeslots: every
// third one sameAsLast, the others new timeslots numbered from 100.
template <class Entry, class More>
void fillMore(Pool& pool, More& more, unsigned form, unsigned len) {
  more.t = form == 0 ? 1 : 2;
  if (form == 0) return;
  auto* add = pool.alloc(more.u.additionalTimeslots);
  add->t = form;
  if (form == 1) {
    using C = std::remove_reference_t<decltype(add->u.consecutive)>;
    if constexpr (std::is_pointer_v<C>) pool.alloc(add->u.consecutive)->numAdditionalTimeslots = 3;  // uplink: a pointer
    else add->u.consecutive = 3;                                                                     // downlink: inline
    return;
  }
  auto* list = pool.alloc(add->u.timeslotList);
  for (unsigned i = 0; i < len; i++) {
    Entry* e = pool.make<Entry>();
    auto& p = e->parameters;
    if (i % 3 == 2) {
      p.t = 1;
      pool.alloc(p.u.sameAsLast)->timeslotNumber = static_cast<uint8_t>(i % 7);
    } else {
      p.t = 2;
      auto* np = pool.alloc(p.u.newParameters);
      fillTs(pool, np->individualTimeslotInfo, 100 + i);
      fillCodes(pool, codesOf(*np), 100 + i);
    }
    pool.add(*list, *e);
  }
}

template <class Add>
void checkAdditional(const Add& add, unsigned form, unsigned len) {
  ASSERT_EQ(add.choice_tag, form);
  if (form == 1) {
    EXPECT_EQ(add.u.consecutive.numAdditionalTimeslots, 3);
    return;
  }
  ASSERT_EQ(add.u.timeslotList.count, len);
  for (unsigned i = 0; i < len; i++) {
    const auto& p = add.u.timeslotList.parameters[i];
    if (i % 3 == 2) {
      EXPECT_EQ(p.choice_tag, 1u);
      EXPECT_EQ(p.u.sameAsLast.timeslotNumber, i % 7);
      auto rest = p.u;
      rest.sameAsLast.timeslotNumber = 0;
      EXPECT_TRUE(allZero(rest)) << "sameAsLast is its timeslot number alone";
    } else {
      EXPECT_EQ(p.choice_tag, 2u);
      checkTs(p.u.newParameters.individualTimeslotInfo, 100 + i);
      checkCodes(codesOf(p.u.newParameters), 100 + i);
    }
  }
}

template <class More>
void checkMore(const More& more, unsigned form, unsigned len) {
  ASSERT_EQ(more.choice_tag, form == 0 ? 1u : 2u);
  if (form == 0) EXPECT_TRUE(allZero(more.u)) << "noMore is its tag alone";
  else checkAdditional(more.u.additionalTimeslots, form, len);
}
// The r7 downlink form keeps its own tag at 0.
void checkMore(const umts_downlink_more_timeslots_r7& more, unsigned form, unsigned len) {
  EXPECT_EQ(more.choice_tag, 0u);
  if (form == 0) EXPECT_TRUE(allZero(more.additionalTimeslots));
  else checkAdditional(more.additionalTimeslots, form, len);
}

// Timeslots and codes whose first timeslot is `n`, with moreTimeslots of `form`.
template <class C>
auto setDynamicSF(C& c, unsigned n, int) -> decltype(c.dynamicSFusage, void()) {
  c.dynamicSFusage = n % 2;
}
template <class C>
void setDynamicSF(C&, unsigned, long) {}
template <class C>
auto checkDynamicSF(const C& c, unsigned n, int) -> decltype(c.dynamicSFusage, void()) {
  EXPECT_EQ(c.dynamicSFusage, n % 2);
}
template <class C>
void checkDynamicSF(const C&, unsigned, long) {}

template <class Entry, class Codes>
void fillTimeslotsCodes(Pool& pool, Codes& c, unsigned n, unsigned form, unsigned len) {
  setDynamicSF(c, n, 0);
  fillTs(pool, c.firstIndividualTimeslotInfo, n);
  fillCodes(pool, codesOf(c), n);
  fillMore<Entry>(pool, c.moreTimeslots, form, len);
}
template <class Flat>
void checkTimeslotsCodes(const Flat& f, unsigned n, unsigned form, unsigned len) {
  checkDynamicSF(f, n, 0);
  checkTs(f.firstIndividualTimeslotInfo, n);
  checkCodes(codesOf(f), n);
  checkMore(f.moreTimeslots, form, len);
}

// ---- PUSCH / PDSCH: entry e of every family ------------------------------------------------

// The info of entry e: bit 0 commonTimeslotInfo and bit 1 the timeslots vary with e; entry 2
// holds the longest timeslot list (`longest`), the others lists of two.
template <class Entry, class Info, class Codes>
void fillInfo(Pool& pool, Info& info, unsigned e, unsigned longest, Codes codes) {
  info.tfcs_ID = static_cast<uint8_t>(1 + e % 8);
  info.m = e % 4 == 3 ? 0u : e % 4 == 1 ? 1u : 3u;
  info.commonTimeslotInfo.m = 1;
  info.commonTimeslotInfo.secondInterleavingMode = e % 2;
  info.commonTimeslotInfo.tfci_Coding = e % 4;
  info.commonTimeslotInfo.puncturingLimit = e % 16;
  if (info.m & 2u) fillTimeslotsCodes<Entry>(pool, codes(info), e, e % 3, e == 2 ? longest : 2);
}
template <class Flat, class Codes>
void checkInfo(const Flat& f, unsigned e, unsigned longest, Codes codes) {
  SCOPED_TRACE(e);
  EXPECT_EQ(f.tfcs_ID, 1 + e % 8);
  const uint16_t bits = e % 4 == 3 ? 0 : e % 4 == 1 ? 1 : 3;
  EXPECT_EQ(f.presence_bitmask, bits);
  if (bits & 1u) {
    EXPECT_EQ(f.commonTimeslotInfo.presence_bitmask, 1);
    EXPECT_EQ(f.commonTimeslotInfo.secondInterleavingMode, e % 2);
    EXPECT_EQ(f.commonTimeslotInfo.tfci_Coding, e % 4);
    EXPECT_EQ(f.commonTimeslotInfo.puncturingLimit, e % 16);
  } else {
    EXPECT_TRUE(allZero(f.commonTimeslotInfo));
  }
  if (bits & 2u) checkTimeslotsCodes(codes(f), e, e % 3, e == 2 ? longest : 2);
  else EXPECT_TRUE(allZero(codes(f)));
}

// An entry with SFN: sfn_TimeInfo on odd entries.
template <class Element>
void fillSfn(Element& el, unsigned e) {
  el.m = e % 2;
  el.sfn_TimeInfo.activationTimeSFN = static_cast<uint16_t>(100 * e);
  el.sfn_TimeInfo.physChDuration = static_cast<uint16_t>(1 + e);
}
template <class Flat>
void checkSfn(const Flat& f, unsigned e) {
  EXPECT_EQ(f.presence_bitmask, e % 2);
  EXPECT_EQ(f.sfn_TimeInfo.activationTimeSFN, e % 2 ? 100 * e : 0u);
  EXPECT_EQ(f.sfn_TimeInfo.physChDuration, e % 2 ? 1 + e : 0u);
}

#define CODES(member) [](auto& i) -> auto& { return i.member; }

class ConvertSib5Tdd : public FrameTest {
 protected:
  void TearDown() override {
    umts_sib_set_free(library);
    FrameTest::TearDown();
  }
  // Encodes `b`, converts it whole and returns the SIB5 record. The same bytes go into a set
  // of umts_sib_set_alloc, cleared by what the test's conversion before wrote: its record
  // must read byte for byte as the caller's set, written with zeros whole.
  const umts_sib5_info& convert(const sib5test::Sib5Builder& b) {
    const std::vector<uint8_t> bytes = b.encode();
    EXPECT_FALSE(bytes.empty());
    EXPECT_LE(bytes.size(), 1000u) << "the conversion reads 1000 octets";
    EXPECT_EQ(whole(umts_sib_sib5, bytes), 1);
    captureStdout([&] { umts_sib_msg_decoder(umts_sib_sib5, bytes.data(), library, static_cast<uint32_t>(bytes.size())); });
    EXPECT_TRUE(same(library->sib5, result->sib5)) << "the library set's record differs from the caller's";
    return result->sib5;
  }
  // The transport format set and TFCS that the builder's sample cell already carries, and
  // their records as converted in the same message (an independent path for the copies).
  static const TransportFormatSet& sampleTfs(const sib5test::Sib5Builder& b) { return b.fach[0].transportFormatSet; }
  static const TFCS& sampleTfcs(const sib5test::Sib5Builder& b) { return b.prach[0].rach_TFCS; }
  const umts_transport_format_set& flatTfs() const {
    return result->sib5.sCCPCH_SystemInformationList.entries[0].fach_PCH_InformationList.entries[0].transportFormatSet;
  }
  const umts_tfcs& flatTfcs() const { return result->sib5.prach_SystemInformationList.entries[0].rach_TFCS; }
  template <class T>
  bool same(const T& a, const T& b) const {
    return std::memcmp(&a, &b, sizeof a) == 0;
  }
  Pool pool;
  umts_sib_set* library = umts_sib_set_alloc();
};

// 3.84 Mcps TDD: eight PUSCHs and eight PDSCHs, each form of moreTimeslots, the longest
// timeslot list (13), consecutive uplink (behind a pointer) and downlink (inline) alike.
TEST_F(ConvertSib5Tdd, Tdd384SharedChannels) {
  static sib5test::Sib5Builder b;
  SysInfoType5_modeSpecificInfo_tdd* tdd = pool.make<SysInfoType5_modeSpecificInfo_tdd>();
  b.s.modeSpecificInfo.t = 2;
  b.s.modeSpecificInfo.u.tdd = tdd;
  tdd->m = 3;
  tdd->openLoopPowerControl_TDD = {1, 30, 4, -35, -10, 0};
  for (unsigned e = 0; e < 8; e++) {
    auto* u = pool.make<PUSCH_SysInfoList_SFN_element>();
    fillSfn(*u, e);
    u->pusch_SysInfo.pusch_Identity = static_cast<uint8_t>(1 + e);
    fillInfo<UplinkAdditionalTimeslots>(pool, u->pusch_SysInfo.pusch_Info, e, 13, CODES(pusch_TimeslotsCodes));
    auto* d = pool.make<PDSCH_SysInfoList_SFN_element>();
    fillSfn(*d, e + 1);
    d->pdsch_SysInfo.pdsch_Identity = static_cast<uint8_t>(11 + e);
    fillInfo<DownlinkAdditionalTimeslots>(pool, d->pdsch_SysInfo.pdsch_Info, e, 13, CODES(pdsch_TimeslotsCodes));
    if (e == 0) {
      u->pusch_SysInfo.m = 1, u->pusch_SysInfo.usch_TFS = sampleTfs(b);
      d->pdsch_SysInfo.m = 2, d->pdsch_SysInfo.dsch_TFCS = sampleTfcs(b);
    }
    pool.add(tdd->pusch_SysInfoList_SFN, *u);
    pool.add(tdd->pdsch_SysInfoList_SFN, *d);
  }
  const umts_sib5_info& f = convert(b);
  ASSERT_EQ(f.modeSpecificInfo.choice_tag, 2u);
  const umts_sib5_mode_specific_info_tdd& t = f.modeSpecificInfo.u.tdd;
  EXPECT_EQ(t.presence_bitmask, 3);
  EXPECT_EQ(t.openLoopPowerControl_TDD.prach_ConstantValue, -35);
  ASSERT_EQ(t.pusch_SysInfoList_SFN.count, 8);
  ASSERT_EQ(t.pdsch_SysInfoList_SFN.count, 8);
  for (unsigned e = 0; e < 8; e++) {
    const umts_pusch_sysinfo_sfn& u = t.pusch_SysInfoList_SFN.entries[e];
    checkSfn(u, e);
    EXPECT_EQ(u.pusch_SysInfo.pusch_Identity, 1 + e);
    checkInfo(u.pusch_SysInfo.pusch_Info, e, 13, CODES(pusch_TimeslotsCodes));
    const umts_pdsch_sysinfo_sfn& d = t.pdsch_SysInfoList_SFN.entries[e];
    checkSfn(d, e + 1);
    EXPECT_EQ(d.pdsch_SysInfo.pdsch_Identity, 11 + e);
    checkInfo(d.pdsch_SysInfo.pdsch_Info, e, 13, CODES(pdsch_TimeslotsCodes));
    EXPECT_EQ(u.pusch_SysInfo.presence_bitmask, e == 0 ? 1 : 0);
    EXPECT_EQ(d.pdsch_SysInfo.presence_bitmask, e == 0 ? 2 : 0);
  }
  EXPECT_TRUE(same(t.pusch_SysInfoList_SFN.entries[0].pusch_SysInfo.usch_TFS, flatTfs()));
  EXPECT_TRUE(same(t.pdsch_SysInfoList_SFN.entries[0].pdsch_SysInfo.dsch_TFCS, flatTfcs()));
  EXPECT_TRUE(allZero(t.pdsch_SysInfoList_SFN.entries[0].pdsch_SysInfo.dsch_TFS));
}

// 1.28 Mcps: the LCR PRACH list and tdd128SpecificInfo of v4b0 (PUSCH and PDSCH with LCR
// timeslots, the longest list of 5, the P-CCPCH TSTD indicator, the S-CCPCH extensions with
// and without their PICH).
TEST_F(ConvertSib5Tdd, Tdd128SpecificInfoAndLcrPrach) {
  static sib5test::Sib5Builder b;
  b.chain(1);
  SysInfoType5_v4b0ext_IEs& v4 = b.s.v4b0NonCriticalExtensions.sysInfoType5_v4b0ext;
  v4.m = 0x0F;
  v4.pNBSCH_Allocation_r4.numberOfRepetitionsPerSFNPeriod = 3;
  v4.openLoopPowerControl_IPDL_TDD = {2, 1};
  for (unsigned p = 0; p < 2; p++) {
    auto* prach = pool.make<PRACH_SystemInformation_LCR_r4>();
    prach->prach_RACH_Info_LCR.sync_UL_Info = {bitString<Sync_UL_Codes_Bitmap>({static_cast<uint8_t>(0xA5 + p)}, 8),
                                               static_cast<uint8_t>(40 + p), 2, 3, static_cast<uint8_t>(30 + p)};
    for (unsigned k = 0; k < 8; k++) {
      auto* def = pool.addNew(prach->prach_RACH_Info_LCR.prach_DefinitionList,
                              PRACH_Definition_LCR_r4{static_cast<uint8_t>(1 + k % 6), {4, {k % 8, (k + 1) % 8, (k + 2) % 8, (k + 3) % 8}}, {},
                                                      {static_cast<uint8_t>(k % 7), 15 - k, {}, static_cast<uint8_t>(1 + k % 4)}});
      fillLcrMidamble(pool, def->midambleShiftAndBurstType, k);
      fillLcrMidamble(pool, def->fpach_Info.midambleShiftAndBurstType, k + 1);
    }
    if (p == 1) {
      prach->m = 2;
      for (unsigned a = 0; a < 3; a++) {
        auto* asc = pool.make<ASCSetting_TDD_LCR_r4>();
        asc->m = a != 1;
        asc->accessServiceClass_TDD_LCR.m = 1;
        asc->accessServiceClass_TDD_LCR.availableSYNC_UlCodesIndics = bitString<Sync_UL_Codes_Bitmap>({0xF0}, 8);
        auto& size = asc->accessServiceClass_TDD_LCR.subchannelSize;
        size.t = 2 + a;
        if (a == 0) pool.alloc(size.u.size2)->m = 1, size.u.size2->subchannels = 1;
        if (a == 2) pool.alloc(size.u.size8)->m = 1, size.u.size8->subchannels = bitString<Sync_UL_Codes_Bitmap>({0x81}, 8);
        pool.add(prach->prach_Partitioning_LCR, *asc);
      }
    }
    pool.add(v4.prach_SystemInformationList_LCR_r4, *prach);
  }
  SysInfoType5_v4b0ext_IEs_tdd128SpecificInfo& t128 = v4.tdd128SpecificInfo;
  t128.m = 7;
  t128.pCCPCH_LCR_Extensions.tstd_Indicator = 1;
  for (unsigned e = 0; e < 8; e++) {
    auto* u = pool.make<PUSCH_SysInfoList_SFN_LCR_r4_element>();
    fillSfn(*u, e);
    u->pusch_SysInfo.pusch_Identity = static_cast<uint8_t>(1 + e);
    fillInfo<UplinkAdditionalTimeslots_LCR_r4>(pool, u->pusch_SysInfo.pusch_Info, e, 5, CODES(pusch_TimeslotsCodes));
    pool.add(t128.pusch_SysInfoList_SFN, *u);
    auto* d = pool.make<PDSCH_SysInfoList_SFN_LCR_r4_element>();
    fillSfn(*d, e);
    d->pdsch_SysInfo.pdsch_Identity = static_cast<uint8_t>(1 + e);
    fillInfo<DownlinkAdditionalTimeslots_LCR_r4>(pool, d->pdsch_SysInfo.pdsch_Info, e, 5, CODES(pdsch_TimeslotsCodes));
    pool.add(t128.pdsch_SysInfoList_SFN, *d);
  }
  for (unsigned k = 0; k < 2; k++) {
    auto* ext = pool.make<SCCPCH_SystemInformation_LCR_r4_ext>();
    fillLcrMidamble(pool, ext->secondaryCCPCH_LCR_Extensions.individualTimeslotLCR_Ext.midambleShiftAndBurstType, 7 + k);
    ext->secondaryCCPCH_LCR_Extensions.individualTimeslotLCR_Ext.modulation = 1;
    ext->secondaryCCPCH_LCR_Extensions.individualTimeslotLCR_Ext.ss_TPC_Symbols = 2;
    if (k == 1) ext->m = 1, ext->pich_Info.pichChannelisationCodeList_LCR_r4 = {2, {0, 9}}, ext->pich_Info.n_PCH = 4;
    fillLcrMidamble(pool, ext->pich_Info.midambleShiftAndBurstType, 3);
    pool.add(t128.sCCPCH_LCR_ExtensionsList, *ext);
  }
  const umts_sib5_info& f = convert(b);
  const umts_sib5_v4b0ext& x = f.v4b0NonCriticalExtensions.sysInfoType5_v4b0ext;
  EXPECT_EQ(x.presence_bitmask, 0x0F);
  EXPECT_EQ(x.pNBSCH_Allocation_r4.numberOfRepetitionsPerSFNPeriod, 3u);
  EXPECT_EQ(x.openLoopPowerControl_IPDL_TDD.maxPowerIncrease, 1);
  ASSERT_EQ(x.prach_SystemInformationList_LCR_r4.count, 2);
  for (unsigned p = 0; p < 2; p++) {
    const umts_prach_system_information_lcr_r4& prach = x.prach_SystemInformationList_LCR_r4.entries[p];
    const umts_sync_ul_info_r4& sync = prach.prach_RACH_Info_LCR.sync_UL_Info;
    // The 8-bit bitmap told as 8 octets: its own octet, and the members after it unharmed.
    EXPECT_EQ(sync.sync_UL_Codes_Bitmap.numbits, 8u);
    EXPECT_EQ(sync.sync_UL_Codes_Bitmap.data[0], 0xA5 + p);
    EXPECT_EQ(sync.sync_UL_Codes_Bitmap.data[1], 0);
    EXPECT_EQ(sync.prxUpPCHdes, 40 + p);
    EXPECT_EQ(sync.powerRampStep, 2);
    EXPECT_EQ(sync.max_SYNC_UL_Transmissions, 3u);
    EXPECT_EQ(sync.mmax, 30 + p);
    ASSERT_EQ(prach.prach_RACH_Info_LCR.prach_DefinitionList.count, 8);
    for (unsigned k = 0; k < 8; k++) {
      const umts_prach_definition_lcr_r4& def = prach.prach_RACH_Info_LCR.prach_DefinitionList.entries[k];
      EXPECT_EQ(def.timeslot, 1 + k % 6);
      ASSERT_EQ(def.prach_ChanCodes_LCR.count, 4u);
      EXPECT_EQ(def.prach_ChanCodes_LCR.codes[3], (k + 3) % 8);
      checkLcrMidamble(def.midambleShiftAndBurstType, k);
      EXPECT_EQ(def.fpach_Info.timeslot, k % 7);
      EXPECT_EQ(def.fpach_Info.channelisationCode, 15 - k);
      checkLcrMidamble(def.fpach_Info.midambleShiftAndBurstType, k + 1);
      EXPECT_EQ(def.fpach_Info.wi, 1 + k % 4);
    }
    EXPECT_EQ(prach.presence_bitmask, p == 1 ? 2 : 0);
  }
  const umts_prach_partitioning_lcr_r4& part = x.prach_SystemInformationList_LCR_r4.entries[1].prach_Partitioning_LCR;
  ASSERT_EQ(part.count, 3);
  EXPECT_EQ(part.entries[0].accessServiceClass_TDD_LCR.subchannelSize.choice_tag, 2u);
  EXPECT_EQ(part.entries[0].accessServiceClass_TDD_LCR.subchannelSize.u.size2.subchannels, 1u);
  EXPECT_EQ(part.entries[0].accessServiceClass_TDD_LCR.availableSYNC_UlCodesIndics.data[0], 0xF0);
  EXPECT_TRUE(allZero(part.entries[1])) << "a class without its setting keeps its place";
  EXPECT_EQ(part.entries[2].accessServiceClass_TDD_LCR.subchannelSize.u.size8.subchannels.data[0], 0x81);

  const umts_sib5_tdd128_specific_info& s = x.tdd128SpecificInfo;
  EXPECT_EQ(s.presence_bitmask, 7);
  EXPECT_EQ(s.tstd_Indicator, 1);
  ASSERT_EQ(s.pusch_SysInfoList_SFN.count, 8);
  ASSERT_EQ(s.pdsch_SysInfoList_SFN.count, 8);
  for (unsigned e = 0; e < 8; e++) {
    checkSfn(s.pusch_SysInfoList_SFN.entries[e], e);
    checkInfo(s.pusch_SysInfoList_SFN.entries[e].pusch_SysInfo.pusch_Info, e, 5, CODES(pusch_TimeslotsCodes));
    checkSfn(s.pdsch_SysInfoList_SFN.entries[e], e);
    EXPECT_EQ(s.pdsch_SysInfoList_SFN.entries[e].pdsch_SysInfo.pdsch_Identity, 1 + e);
    checkInfo(s.pdsch_SysInfoList_SFN.entries[e].pdsch_SysInfo.pdsch_Info, e, 5, CODES(pdsch_TimeslotsCodes));
  }
  ASSERT_EQ(s.sCCPCH_LCR_ExtensionsList.count, 2);
  const umts_sccpch_system_information_lcr_r4_ext& e0 = s.sCCPCH_LCR_ExtensionsList.entries[0];
  const umts_sccpch_system_information_lcr_r4_ext& e1 = s.sCCPCH_LCR_ExtensionsList.entries[1];
  checkLcrMidamble(e0.individualTimeslotLCR_Ext.midambleShiftAndBurstType, 7);
  EXPECT_EQ(e0.individualTimeslotLCR_Ext.ss_TPC_Symbols, 2u);
  EXPECT_EQ(e0.presence_bitmask, 0);
  EXPECT_TRUE(allZero(e0.pich_Info));
  EXPECT_EQ(e1.presence_bitmask, 1);
  EXPECT_EQ(e1.pich_Info.pichChannelisationCodeList_LCR_r4.entries[1], 9u);
  checkLcrMidamble(e1.pich_Info.midambleShiftAndBurstType, 3);
  EXPECT_EQ(e1.pich_Info.n_PCH, 4);
}

// HCR (v590): the 3.84 Mcps info with a format set per transport channel.
TEST_F(ConvertSib5Tdd, HcrSharedChannels) {
  static sib5test::Sib5Builder b;
  b.chain(2);
  SysInfoType5_v590ext_IEs_hcr_r5_SpecificInfo& hcr = b.v590().sysInfoType5_v590ext.hcr_r5_SpecificInfo;
  b.v590().sysInfoType5_v590ext.m = 1;
  hcr.m = 3;
  for (unsigned e = 0; e < 2; e++) {
    auto* u = pool.make<PUSCH_SysInfoList_SFN_HCR_r5_element>();
    fillSfn(*u, e);
    u->pusch_SysInfo.pusch_Identity = static_cast<uint8_t>(5 + e);
    fillInfo<UplinkAdditionalTimeslots>(pool, u->pusch_SysInfo.pusch_Info, e, 13, CODES(pusch_TimeslotsCodes));
    auto* d = pool.make<PDSCH_SysInfoList_SFN_HCR_r5_element>();
    d->pdsch_SysInfo.pdsch_Identity = static_cast<uint8_t>(7 + e);
    fillInfo<DownlinkAdditionalTimeslots>(pool, d->pdsch_SysInfo.pdsch_Info, e + 2, 13, CODES(pdsch_TimeslotsCodes));
    if (e == 1) {
      u->pusch_SysInfo.m = 3;
      u->pusch_SysInfo.usch_TFCS = sampleTfcs(b);
      d->pdsch_SysInfo.m = 1;
      for (uint8_t c = 0; c < 2; c++) {
        pool.addNew(u->pusch_SysInfo.usch_TransportChannelsInfo, USCH_TransportChannelsInfo_element{static_cast<uint8_t>(20 + c), sampleTfs(b)});
        pool.addNew(d->pdsch_SysInfo.dsch_TransportChannelsInfo, DSCH_TransportChannelsInfo_element{static_cast<uint8_t>(30 + c), sampleTfs(b)});
      }
    }
    pool.add(hcr.pusch_SysInfoList_SFN, *u);
    pool.add(hcr.pdsch_SysInfoList_SFN, *d);
  }
  const umts_sib5_info& f = convert(b);
  const umts_sib5_v590ext& x = f.v4b0NonCriticalExtensions.v590NonCriticalExtensions.sysInfoType5_v590ext;
  EXPECT_EQ(x.presence_bitmask, 1);
  const umts_sib5_hcr_r5_specific_info& h = x.hcr_r5_SpecificInfo;
  EXPECT_EQ(h.presence_bitmask, 3);
  ASSERT_EQ(h.pusch_SysInfoList_SFN.count, 2);
  ASSERT_EQ(h.pdsch_SysInfoList_SFN.count, 2);
  for (unsigned e = 0; e < 2; e++) {
    const umts_pusch_sys_info_hcr_r5& u = h.pusch_SysInfoList_SFN.entries[e].pusch_SysInfo;
    checkSfn(h.pusch_SysInfoList_SFN.entries[e], e);
    EXPECT_EQ(u.pusch_Identity, 5 + e);
    checkInfo(u.pusch_Info, e, 13, CODES(pusch_TimeslotsCodes));
    const umts_pdsch_sys_info_hcr_r5& d = h.pdsch_SysInfoList_SFN.entries[e].pdsch_SysInfo;
    EXPECT_EQ(d.pdsch_Identity, 7 + e);
    checkInfo(d.pdsch_Info, e + 2, 13, CODES(pdsch_TimeslotsCodes));
    EXPECT_EQ(u.presence_bitmask, e == 1 ? 3 : 0);
    EXPECT_EQ(d.presence_bitmask, e == 1 ? 1 : 0);
  }
  const umts_pusch_sys_info_hcr_r5& u1 = h.pusch_SysInfoList_SFN.entries[1].pusch_SysInfo;
  const umts_pdsch_sys_info_hcr_r5& d1 = h.pdsch_SysInfoList_SFN.entries[1].pdsch_SysInfo;
  ASSERT_EQ(u1.usch_TransportChannelsInfo.count, 2);
  ASSERT_EQ(d1.dsch_TransportChannelsInfo.count, 2);
  for (unsigned c = 0; c < 2; c++) {
    EXPECT_EQ(u1.usch_TransportChannelsInfo.entries[c].usch_TransportChannelIdentity, 20 + c);
    EXPECT_TRUE(same(u1.usch_TransportChannelsInfo.entries[c].usch_TFS, flatTfs()));
    EXPECT_EQ(d1.dsch_TransportChannelsInfo.entries[c].dsch_transport_channel_identity, 30 + c);
    EXPECT_TRUE(same(d1.dsch_TransportChannelsInfo.entries[c].dsch_TFS, flatTfs()));
  }
  EXPECT_TRUE(same(u1.usch_TFCS, flatTfcs()));
}

// 7.68 Mcps (v770 tdd768): VHCR PUSCHs (the first code list copied as a block, burst type 4),
// r7 PDSCHs with each tddOption, and VHCR PRACHs: sf32 and sf16 code lists of 16 (count * 4
// octets alike), the r7 partitioning with its 8-bit count and every subchannel size.
TEST_F(ConvertSib5Tdd, Tdd768Channels) {
  static sib5test::Sib5Builder b;
  b.chain(6);
  SysInfoType5_v770ext_IEs& e770 = b.v770().sysInfoType5_v770ext;
  e770.m = 1;
  e770.modeSpecificInfo.t = 2;
  auto* t768 = pool.alloc(e770.modeSpecificInfo.u.tdd768);
  t768->m = 7;
  for (unsigned e = 0; e < 3; e++) {
    auto* u = pool.make<PUSCH_SysInfoList_SFN_VHCR_element>();
    fillSfn(*u, e);
    u->pusch_SysInfo_VHCR.pusch_Identity = static_cast<uint8_t>(1 + e);
    fillInfo<UplinkAdditionalTimeslots_VHCR>(pool, u->pusch_SysInfo_VHCR.pusch_Info_VHCR, e, 4, CODES(pusch_TimeslotsCodes_VHCR));
    pool.add(t768->pusch_SysInfoList_SFN, *u);
    auto* d = pool.make<PDSCH_SysInfo_VHCR_r7>();
    d->pdsch_Identity = static_cast<uint8_t>(2 + e);
    d->pdsch_Info.tfcs_ID = static_cast<uint8_t>(1 + e);
    auto& opt = d->pdsch_Info.tddOption;
    opt.t = 1 + e;
    if (e == 0) pool.alloc(opt.u.tdd384)->m = 1, fillTimeslotsCodes<DownlinkAdditionalTimeslots>(pool, opt.u.tdd384->pdsch_TimeslotsCodes, 4, 2, 3);
    if (e == 1) pool.alloc(opt.u.tdd768)->m = 1, fillTimeslotsCodes<DownlinkAdditionalTimeslots_VHCR>(pool, opt.u.tdd768->pdsch_TimeslotsCodes, 5, 2, 3);
    if (e == 2) pool.alloc(opt.u.tdd128)->m = 0;
    pool.add(t768->pdsch_SysInfoList_SFN, *d);
  }
  for (unsigned p = 0; p < 2; p++) {
    auto* prach = pool.make<PRACH_SystemInformation_VHCR_r7>();
    prach->prach_RACH_Info.timeslot = static_cast<uint8_t>(3 + p);
    prach->prach_RACH_Info.prach_Midamble = p;
    auto& codes = prach->prach_RACH_Info.channelisationCodeList;
    codes.t = 1 + p;
    auto fill16 = [](auto* list, uint32_t base) {
      list->n = 16;
      for (uint32_t c = 0; c < 16; c++) list->elem[c] = (base + c) % 16;
    };
    if (p == 0) fill16(pool.alloc(codes.u.sf32), 7);
    else fill16(pool.alloc(codes.u.sf16), 2);
    if (p == 1) {
      prach->m = 1;
      prach->prach_Partitioning.t = 2;
      auto* tddList = pool.alloc(prach->prach_Partitioning.u.tdd);
      for (unsigned a = 0; a < 5; a++) {
        auto* asc = pool.make<ASCSetting_TDD_r7>();
        asc->m = 1;
        AccessServiceClass_TDD_r7& cls = asc->accessServiceClass_TDD;
        cls.m = a == 0;
        cls.channelisationCodeIndices = bitString<AccessServiceClass_TDD_r7_channelisationCodeIndices>({0x12, 0x34}, 16);
        cls.subchannelSize.t = 1 + a;
        auto bits = [&](auto*& size, uint32_t n, uint8_t v) {
          pool.alloc(size)->m = 1;
          using Bits = decltype(size->subchannels);
          size->subchannels = bitString<Bits>({v, static_cast<uint8_t>(v + 1)}, n);
        };
        if (a == 1) pool.alloc(cls.subchannelSize.u.size2)->m = 1, cls.subchannelSize.u.size2->subchannels = 1;
        if (a == 2) bits(cls.subchannelSize.u.size4, 4, 0xA0);
        if (a == 3) bits(cls.subchannelSize.u.size8, 8, 0xB1);
        if (a == 4) bits(cls.subchannelSize.u.size16, 16, 0xC2);
        pool.add(*tddList, *asc);
      }
    }
    pool.add(t768->prach_SystemInformationList, *prach);
  }
  const umts_sib5_info& f = convert(b);
  const umts_sib5_v770_mode_specific_info& m =
      f.v4b0NonCriticalExtensions.v590NonCriticalExtensions.v650NonCriticalExtensions.v680NonCriticalExtensions
          .v690NonCriticalExtensions.v770NonCriticalExtensions.sysInfoType5_v770ext.modeSpecificInfo;
  ASSERT_EQ(m.choice_tag, 2u);
  const umts_sib5_v770_mode_specific_info_tdd768& t = m.u.tdd768;
  EXPECT_EQ(t.presence_bitmask, 7);
  ASSERT_EQ(t.pusch_SysInfoList_SFN.count, 3);
  ASSERT_EQ(t.pdsch_SysInfoList_SFN.count, 3);
  for (unsigned e = 0; e < 3; e++) {
    checkSfn(t.pusch_SysInfoList_SFN.entries[e], e);
    EXPECT_EQ(t.pusch_SysInfoList_SFN.entries[e].pusch_SysInfo_VHCR.pusch_Identity, 1 + e);
    checkInfo(t.pusch_SysInfoList_SFN.entries[e].pusch_SysInfo_VHCR.pusch_Info_VHCR, e, 4, CODES(pusch_TimeslotsCodes_VHCR));
    const umts_pdsch_sys_info_vhcr_r7& d = t.pdsch_SysInfoList_SFN.entries[e];
    EXPECT_EQ(d.pdsch_Identity, 2 + e);
    EXPECT_EQ(d.pdsch_Info.tfcs_ID, 1 + e);
    EXPECT_EQ(d.pdsch_Info.tddOption.choice_tag, 1 + e);
  }
  checkTimeslotsCodes(t.pdsch_SysInfoList_SFN.entries[0].pdsch_Info.tddOption.u.tdd384.pdsch_TimeslotsCodes, 4, 2, 3);
  checkTimeslotsCodes(t.pdsch_SysInfoList_SFN.entries[1].pdsch_Info.tddOption.u.tdd768.pdsch_TimeslotsCodes, 5, 2, 3);
  EXPECT_EQ(t.pdsch_SysInfoList_SFN.entries[1].pdsch_Info.tddOption.u.tdd768.presence_bitmask, 1);
  EXPECT_TRUE(allZero(t.pdsch_SysInfoList_SFN.entries[2].pdsch_Info.tddOption.u.tdd128));

  ASSERT_EQ(t.prach_SystemInformationList.count, 2);
  for (unsigned p = 0; p < 2; p++) {
    const umts_prach_rach_info_vhcr_r7& r = t.prach_SystemInformationList.entries[p].prach_RACH_Info;
    EXPECT_EQ(r.timeslot, 3 + p);
    EXPECT_EQ(r.prach_Midamble, p);
    EXPECT_EQ(r.channelisationCodeList.choice_tag, 1 + p);
    ASSERT_EQ(r.channelisationCodeList.count, 16u);
    for (uint32_t c = 0; c < 16; c++) EXPECT_EQ(r.channelisationCodeList.codes[c], ((p ? 2 : 7) + c) % 16);
  }
  const umts_prach_system_information_vhcr_r7& p1 = t.prach_SystemInformationList.entries[1];
  EXPECT_EQ(p1.presence_bitmask, 1);
  ASSERT_EQ(p1.prach_Partitioning_r7.choice_tag, 2u);
  const umts_prach_partitioning_r7_tdd& part = p1.prach_Partitioning_r7.u.tdd;
  ASSERT_EQ(part.count, 5);
  EXPECT_EQ(part.entries[0].accessServiceClass_TDD.presence_bitmask, 1);
  EXPECT_EQ(part.entries[0].accessServiceClass_TDD.channelisationCodeIndices.numbits, 16u);
  EXPECT_EQ(part.entries[0].accessServiceClass_TDD.channelisationCodeIndices.data[1], 0x34);
  EXPECT_EQ(part.entries[0].accessServiceClass_TDD.subchannelSize.choice_tag, 1u);
  EXPECT_TRUE(allZero(part.entries[0].accessServiceClass_TDD.subchannelSize.u));
  EXPECT_EQ(part.entries[1].accessServiceClass_TDD.subchannelSize.u.size2.subchannels, 1u);
  // size4, size8, size16: numbits, then as many octets, held to the four of the field; the
  // next class (converted after) is whole.
  const umts_subchannel_size_bits* sizes[] = {&part.entries[2].accessServiceClass_TDD.subchannelSize.u.size4,
                                              &part.entries[3].accessServiceClass_TDD.subchannelSize.u.size8,
                                              &part.entries[4].accessServiceClass_TDD.subchannelSize.u.size16};
  const uint32_t numbits[] = {4, 8, 16};
  for (unsigned k = 0; k < 3; k++) {
    EXPECT_EQ(sizes[k]->presence_bitmask, 1);
    EXPECT_EQ(sizes[k]->subchannels.numbits, numbits[k]);
    EXPECT_EQ(sizes[k]->subchannels.data[0], 0xA0 + 0x11 * k);
    EXPECT_EQ(sizes[k]->subchannels.data[1], k == 2 ? 0xC3 : 0);
    EXPECT_EQ(part.entries[2 + k].accessServiceClass_TDD.subchannelSize.choice_tag, 3 + k);
  }
  EXPECT_EQ(part.entries[4].presence_bitmask, 1);
  EXPECT_TRUE(allZero(part.entries[5]));
}

// v770: the tdd128 PRACH list (each 8-bit bitmap told as 8 octets, over the entry after it),
// the HCR/VHCR S-CCPCH list (tdd384 and tdd768, PICH codes of both) and tdd128 with no list.
TEST_F(ConvertSib5Tdd, V770Tdd128ListAndHcrVhcrSccpch) {
  static sib5test::Sib5Builder b;
  b.chain(6);
  SysInfoType5_v770ext_IEs& e770 = b.v770().sysInfoType5_v770ext;
  e770.m = 3;
  e770.modeSpecificInfo.t = 3;
  auto* t128 = pool.alloc(e770.modeSpecificInfo.u.tdd128);
  t128->m = 1;
  for (unsigned p = 0; p < 3; p++)
    pool.addNew(t128->prach_SystemInformationList,
                PRACH_SystemInformation_LCR_v770ext{{bitString<Sync_UL_Codes_Bitmap>({static_cast<uint8_t>(0x11 * (p + 1))}, 8)}});
  for (unsigned k = 0; k < 2; k++) {
    auto* c = pool.make<SCCPCH_SystemInformation_HCR_VHCR_r7>();
    auto& mode = c->secondaryCCPCH_Info.modeSpecificInfo;
    mode.t = 1 + k;
    if (k == 0) {
      fillTs(pool, pool.alloc(mode.u.tdd384)->individualTimeslotInfo, 3);
      mode.u.tdd384->channelisationCode.n = 16;
      for (uint32_t i = 0; i < 16; i++) mode.u.tdd384->channelisationCode.elem[i] = i;
    } else {
      fillTs(pool, pool.alloc(mode.u.tdd768)->individualTimeslotInfo, 4);
      mode.u.tdd768->channelisationCode.n = 32;
      for (uint32_t i = 0; i < 32; i++) mode.u.tdd768->channelisationCode.elem[i] = 31 - i;
    }
    c->m = k == 0 ? 4u : 7u;
    if (k == 1) c->tfcs = sampleTfcs(b), c->fach_PCH_InformationList = b.sccpch[0].fach_PCH_InformationList;
    c->pich_Info = {k == 0 ? 1u : 7u, {1 + k, {10 + 15 * k}}, 6, {}, {4, {7}}, 2, 1, static_cast<uint8_t>(3 + k)};
    fillBurst(pool, c->pich_Info.midambleShiftAndBurstType.burstType, 2, 3);
    pool.add(e770.sccpch_SystemInformationList, *c);
  }
  const umts_sib5_info& f = convert(b);
  const umts_sib5_v770ext& x = f.v4b0NonCriticalExtensions.v590NonCriticalExtensions.v650NonCriticalExtensions
                                   .v680NonCriticalExtensions.v690NonCriticalExtensions.v770NonCriticalExtensions.sysInfoType5_v770ext;
  EXPECT_EQ(x.presence_bitmask, 3);
  ASSERT_EQ(x.modeSpecificInfo.choice_tag, 3u);
  const umts_sib5_v770_mode_specific_info_tdd128& t = x.modeSpecificInfo.u.tdd128;
  EXPECT_EQ(t.presence_bitmask, 1);
  ASSERT_EQ(t.prach_SystemInformationList.count, 3);
  for (unsigned p = 0; p < 3; p++) {
    const umts_bit_string32& bm = t.prach_SystemInformationList.e_RUCCH_Sync_UL_Codes_Bitmap[p];
    EXPECT_EQ(bm.numbits, 8u);
    EXPECT_EQ(bm.data[0], 0x11 * (p + 1));
  }
  // What the last bitmap ran over lies beyond the decoded string: never read, kept zero.
  EXPECT_TRUE(allZero(t.prach_SystemInformationList.e_RUCCH_Sync_UL_Codes_Bitmap[3]));

  ASSERT_EQ(x.sccpch_SystemInformationList.count, 2);
  const umts_sccpch_system_information_hcr_vhcr_r7& c0 = x.sccpch_SystemInformationList.entries[0];
  const umts_sccpch_system_information_hcr_vhcr_r7& c1 = x.sccpch_SystemInformationList.entries[1];
  EXPECT_EQ(c0.presence_bitmask, 4) << "the PICH has a bit of its own here";
  EXPECT_EQ(c1.presence_bitmask, 7);
  ASSERT_EQ(c0.secondaryCCPCH_Info.choice_tag, 1u);
  checkTs(c0.secondaryCCPCH_Info.u.tdd384.individualTimeslotInfo, 3);
  ASSERT_EQ(c0.secondaryCCPCH_Info.u.tdd384.channelisationCode.count, 16u);
  EXPECT_EQ(c0.secondaryCCPCH_Info.u.tdd384.channelisationCode.codes[15], 15u);
  ASSERT_EQ(c1.secondaryCCPCH_Info.choice_tag, 2u);
  checkTs(c1.secondaryCCPCH_Info.u.tdd768.individualTimeslotInfo, 4);
  ASSERT_EQ(c1.secondaryCCPCH_Info.u.tdd768.channelisationCode.count, 32u);
  EXPECT_EQ(c1.secondaryCCPCH_Info.u.tdd768.channelisationCode.codes[31], 0u);
  EXPECT_TRUE(same(c1.tfcs, flatTfcs()));
  EXPECT_TRUE(same(c1.fach_PCH_InformationList, result->sib5.sCCPCH_SystemInformationList.entries[0].fach_PCH_InformationList));
  EXPECT_EQ(c0.pich_Info.presence_bitmask, 1);
  EXPECT_EQ(c0.pich_Info.channelisationCode.choice_tag, 1u);
  EXPECT_EQ(c0.pich_Info.channelisationCode.u.tdd384, 10u);
  EXPECT_EQ(c0.pich_Info.timeslot, 0) << "bit 1 clear";
  EXPECT_EQ(c1.pich_Info.channelisationCode.u.tdd768, 25u);
  EXPECT_EQ(c1.pich_Info.timeslot, 6);
  checkBurst(c1.pich_Info.midambleShiftAndBurstType, 2, 3);
  EXPECT_EQ(c1.pich_Info.repetitionPeriodLengthOffset.u.rpp16_2, 7);
  EXPECT_EQ(c1.pich_Info.n_PCH, 4);

  // tdd128 with no list: its tag, no bit, nothing else.
  t128->m = 0;
  const umts_sib5_info& g = convert(b);
  const auto& m2 = g.v4b0NonCriticalExtensions.v590NonCriticalExtensions.v650NonCriticalExtensions.v680NonCriticalExtensions
                       .v690NonCriticalExtensions.v770NonCriticalExtensions.sysInfoType5_v770ext.modeSpecificInfo;
  EXPECT_EQ(m2.choice_tag, 3u);
  EXPECT_TRUE(allZero(m2.u.tdd128));
}

// MBMS of v690 (r6) and v770 (r7): every alternative of the S-CCPCH, the MCCH, MTCH and MSCH.
// The r7 tdd384 downlink timeslots never store their moreTimeslots tag.
TEST_F(ConvertSib5Tdd, MbmsSccpch) {
  static sib5test::Sib5Builder b;
  b.chain(6);
  SysInfoType5_v690ext_IEs& e690 = b.v690().sysInfoType5_v690ext;
  SysInfoType5_v770ext_IEs& e770 = b.v770().sysInfoType5_v770ext;
  auto mcch = [&](MBMS_MCCH_ConfigurationInfo_r6& c, unsigned k) {
    c.accessInfoPeriodCoefficient = static_cast<uint8_t>(k % 4);
    c.repetitionPeriodCoefficient = 3;
    c.modificationPeriodCoefficient = static_cast<uint8_t>(7 + k % 4);
    c.rlc_Info.dl_UM_RLC_LI_size = 1;
    c.rlc_Info.m = 1;
    c.rlc_Info.dl_UM_RLC_OutOSeqDelivery_Info = {1, 2, 3};
    c.m = k % 2;
  };
  auto checkMcch = [](const umts_mbms_mcch_configuration_info& c, unsigned k) {
    EXPECT_EQ(c.accessInfoPeriodCoefficient, k % 4);
    EXPECT_EQ(c.modificationPeriodCoefficient, 7 + k % 4);
    EXPECT_EQ(c.rlc_Info.presence_bitmask, 1);
    EXPECT_EQ(c.rlc_Info.dl_UM_RLC_LI_size, 1u);
    EXPECT_EQ(c.rlc_Info.dl_UM_RLC_OutOSeqDelivery_Info.timer_OSD, 2u);
    EXPECT_EQ(c.rlc_Info.dl_UM_RLC_OutOSeqDelivery_Info.windowSize_OSD, 3u);
    EXPECT_EQ(c.presence_bitmask, k % 2);
  };
  auto common = [&](auto& s, unsigned k) {
    s.transportFormatCombinationSet = sampleTfcs(b);
    s.fachCarryingMCCH.mcch_transportFormatSet = sampleTfs(b);
    mcch(s.fachCarryingMCCH.mcch_ConfigurationInfo, k);
    s.m = 3;
    for (unsigned i = 0; i < 8; i++) pool.add(s.fachCarryingMTCH_List, b.fach[0].transportFormatSet);
    s.fachCarryingMSCH.msch_transportFormatSet = sampleTfs(b);
  };
  auto checkCommon = [&](const auto& s, unsigned k) {
    EXPECT_EQ(s.presence_bitmask, 3);
    EXPECT_TRUE(same(s.transportFormatCombinationSet, flatTfcs()));
    EXPECT_TRUE(same(s.fachCarryingMCCH.mcch_transportFormatSet, flatTfs()));
    checkMcch(s.fachCarryingMCCH.mcch_ConfigurationInfo, k);
    ASSERT_EQ(s.fachCarryingMTCH_List.count, 8);
    EXPECT_TRUE(same(s.fachCarryingMTCH_List.entries[7], flatTfs()));
    EXPECT_TRUE(same(s.fachCarryingMSCH.msch_transportFormatSet, flatTfs()));
  };
  // Alternative k: r6 1 fdd, 2 tdd384, 3 tdd128; r7 1 fdd, 2 tdd384, 3 tdd768, 4 tdd128.
  for (unsigned k = 1; k <= 4; k++) {
    SCOPED_TRACE(k);
    e690.m = 6;
    e690.sccpch_SystemInformation_MBMS.t = 2;
    auto* r6 = pool.alloc(e690.sccpch_SystemInformation_MBMS.u.mcchOnSCCPCHusedOnlyForMBMS);
    common(*r6, k);
    r6->fachCarryingMSCH.dummy.m = 7;
    r6->fachCarryingMSCH.dummy.mschShedulingInfo.t = 5;
    r6->fachCarryingMSCH.dummy.mschShedulingInfo.u.schedulingPeriod_512_Offset = 300;
    r6->fachCarryingMSCH.dummy.rlc_Info.dl_UM_RLC_LI_size = 1;
    auto& m6 = r6->secondaryCCPCHInfo_MBMS.modeSpecificInfo;
    m6.t = k == 4 ? 3 : k;
    CommonTimeslotInfoMBMS cts = {1, 1, 2, 9};
    if (m6.t == 1) *pool.alloc(m6.u.fdd) = {1, 10, 1, {7, {200}}, 5};
    if (m6.t == 2) pool.alloc(m6.u.tdd384)->commonTimeslotInfoMBMS = cts,
                   fillTimeslotsCodes<DownlinkAdditionalTimeslots>(pool, m6.u.tdd384->downlinkTimeslotsCodes, 6, 1, 0);
    if (m6.t == 3) pool.alloc(m6.u.tdd128)->commonTimeslotInfoMBMS = cts,
                   fillTimeslotsCodes<DownlinkAdditionalTimeslots_LCR_r4>(pool, m6.u.tdd128->downlinkTimeslotsCodes, 6, 2, 5);
    auto* ext = pool.make<AdditionalPRACH_TF_and_TFCS_CCCH>();
    ext->m = 1;
    ext->additionalPRACH_TF_and_TFCS_CCCH_IEs.powerOffsetInformation = b.ctfc2Entries[1].powerOffsetInformation;
    ext->additionalPRACH_TF_and_TFCS_CCCH_IEs.dynamicTFInformationCCCH.octetModeRLC_SizeInfoType2 = b.rlcFdd[0].octetModeRLC_SizeInfoType2;
    e690.additionalPRACH_TF_and_TFCS_CCCH_List = {};
    pool.add(e690.additionalPRACH_TF_and_TFCS_CCCH_List, *ext);
    pool.add(e690.additionalPRACH_TF_and_TFCS_CCCH_List, *pool.make<AdditionalPRACH_TF_and_TFCS_CCCH>());

    e770.m = 4;
    e770.sccpch_SystemInformation_MBMS.t = 1;
    auto* r7 = pool.alloc(e770.sccpch_SystemInformation_MBMS.u.mcchOnSCCPCHusedOnlyForMBMS);
    common(*r7, k + 1);
    auto& m7 = r7->secondaryCCPCHInfo_MBMS.modeSpecificInfo;
    m7.t = k;
    if (k == 1) {
      auto* fdd = pool.alloc(m7.u.fdd);
      fdd->m = 2, fdd->sttd_Indicator = 1, fdd->sf_AndCodeNumber.t = 3, fdd->sf_AndCodeNumber.u.sf16 = 9, fdd->timingOffset = 4;
      fdd->modulation.t = 2, fdd->modulation.u.mod16QAM = -7;
    }
    if (k == 2) pool.alloc(m7.u.tdd384)->commonTimeslotInfoMBMS = cts, m7.u.tdd384->modulation = 1,
                fillTimeslotsCodes<DownlinkAdditionalTimeslots_r7>(pool, m7.u.tdd384->downlinkTimeslotsCodes, 8, 2, 3);
    if (k == 3) pool.alloc(m7.u.tdd768)->commonTimeslotInfoMBMS = cts, m7.u.tdd768->modulation = 1,
                fillTimeslotsCodes<DownlinkAdditionalTimeslots_VHCR>(pool, m7.u.tdd768->downlinkTimeslotsCodes, 9, 1, 0);
    if (k == 4) pool.alloc(m7.u.tdd128)->commonTimeslotInfoMBMS = cts, m7.u.tdd128->m = 1, m7.u.tdd128->mbsfnSpecialTimeSlot = 2,
                m7.u.tdd128->modulation = 1, fillTimeslotsCodes<DownlinkAdditionalTimeslots_LCR_r4>(pool, m7.u.tdd128->downlinkTimeslotsCodes, 10, 0, 0);

    const umts_sib5_info& f = convert(b);
    const auto& n690 = f.v4b0NonCriticalExtensions.v590NonCriticalExtensions.v650NonCriticalExtensions.v680NonCriticalExtensions
                           .v690NonCriticalExtensions;
    const umts_sib5_v690ext& x6 = n690.sysInfoType5_v690ext;
    EXPECT_EQ(x6.presence_bitmask, 6);
    ASSERT_EQ(x6.sccpch_SystemInformation_MBMS.choice_tag, 2u);
    const umts_sccpch_system_information_mbms_r6& s6 = x6.sccpch_SystemInformation_MBMS.u.mcchOnSCCPCHusedOnlyForMBMS;
    checkCommon(s6, k);
    EXPECT_EQ(s6.fachCarryingMSCH.presence_bitmask, 7);
    EXPECT_EQ(s6.fachCarryingMSCH.mschShedulingInfo.choice_tag, 5u);
    EXPECT_EQ(s6.fachCarryingMSCH.mschShedulingInfo.offset, 300u);
    EXPECT_EQ(s6.fachCarryingMSCH.dl_UM_RLC_LI_size, 1u);
    const umts_secondary_ccpch_info_mbms_r6& c6 = s6.secondaryCCPCHInfo_MBMS;
    ASSERT_EQ(c6.choice_tag, m6.t);
    auto checkCts = [](const umts_common_timeslot_info_mbms& c) {
      EXPECT_EQ(c.presence_bitmask, 1);
      EXPECT_EQ(c.secondInterleavingMode, 1u);
      EXPECT_EQ(c.tfci_Coding, 2u);
      EXPECT_EQ(c.puncturingLimit, 9u);
    };
    if (m6.t == 1) {
      EXPECT_EQ(c6.u.fdd.presence_bitmask, 1);
      EXPECT_EQ(c6.u.fdd.secondaryScramblingCode, 10);
      EXPECT_EQ(c6.u.fdd.sf_AndCodeNumber.u.sf256, 200);
      EXPECT_EQ(c6.u.fdd.timingOffset, 5);
    }
    if (m6.t == 2) checkCts(c6.u.tdd384.commonTimeslotInfoMBMS), checkTimeslotsCodes(c6.u.tdd384.downlinkTimeslotsCodes, 6, 1, 0);
    if (m6.t == 3) checkCts(c6.u.tdd128.commonTimeslotInfoMBMS), checkTimeslotsCodes(c6.u.tdd128.downlinkTimeslotsCodes, 6, 2, 5);
    ASSERT_EQ(x6.additionalPRACH_TF_and_TFCS_CCCH_List.count, 2);
    const umts_additional_prach_tf_and_tfcs_ccch& a0 = x6.additionalPRACH_TF_and_TFCS_CCCH_List.entries[0];
    EXPECT_EQ(a0.presence_bitmask, 1);
    EXPECT_TRUE(same(a0.powerOffsetInformation,
                     flatTfcs().u.normalTFCI_Signalling.u.complete.entries[1].powerOffsetInformation));
    EXPECT_EQ(a0.dynamicTFInformationCCCH.choice_tag, 1u);
    EXPECT_EQ(a0.dynamicTFInformationCCCH.u.sizeType1, 10);
    EXPECT_TRUE(allZero(x6.additionalPRACH_TF_and_TFCS_CCCH_List.entries[1]));

    const umts_sib5_v770ext& x7 = n690.v770NonCriticalExtensions.sysInfoType5_v770ext;
    EXPECT_EQ(x7.presence_bitmask, 4);
    ASSERT_EQ(x7.sccpch_SystemInformation_MBMS.choice_tag, 1u);
    const umts_sccpch_system_information_mbms_r7& s7 = x7.sccpch_SystemInformation_MBMS.u.mcchOnSCCPCHusedOnlyForMBMS;
    checkCommon(s7, k + 1);
    const umts_secondary_ccpch_info_mbms_r7& c7 = s7.secondaryCCPCHInfo_MBMS;
    ASSERT_EQ(c7.choice_tag, k);
    if (k == 1) {
      EXPECT_EQ(c7.u.fdd.presence_bitmask, 2);
      EXPECT_EQ(c7.u.fdd.sttd_Indicator, 1);
      EXPECT_EQ(c7.u.fdd.sf_AndCodeNumber.u.sf16, 9);
      EXPECT_EQ(c7.u.fdd.modulation.choice_tag, 2u);
      EXPECT_EQ(c7.u.fdd.modulation.u.mod16QAM, -7);
    }
    if (k == 2) {
      checkCts(c7.u.tdd384.commonTimeslotInfoMBMS);
      checkTimeslotsCodes(c7.u.tdd384.downlinkTimeslotsCodes, 8, 2, 3);
      EXPECT_EQ(c7.u.tdd384.modulation, 1u);
    }
    if (k == 3) checkCts(c7.u.tdd768.commonTimeslotInfoMBMS), checkTimeslotsCodes(c7.u.tdd768.downlinkTimeslotsCodes, 9, 1, 0);
    if (k == 4) {
      EXPECT_EQ(c7.u.tdd128.spare, 0u);
      checkCts(c7.u.tdd128.commonTimeslotInfoMBMS);
      checkTimeslotsCodes(c7.u.tdd128.downlinkTimeslotsCodes, 10, 0, 0);
      EXPECT_EQ(c7.u.tdd128.mbsfnSpecialTimeSlot, 2u);
      EXPECT_EQ(c7.u.tdd128.modulation, 1u);
    }
  }
  // v690's other alternative: the MCCH configuration alone.
  e690.sccpch_SystemInformation_MBMS.t = 1;
  mcch(*pool.alloc(e690.sccpch_SystemInformation_MBMS.u.mcchOnSCCPCHusedForNonMBMS), 5);
  const umts_sib5_v690_sccpch_mbms& v =
      convert(b).v4b0NonCriticalExtensions.v590NonCriticalExtensions.v650NonCriticalExtensions.v680NonCriticalExtensions
          .v690NonCriticalExtensions.sysInfoType5_v690ext.sccpch_SystemInformation_MBMS;
  ASSERT_EQ(v.choice_tag, 1u);
  checkMcch(v.u.mcchOnSCCPCHusedForNonMBMS, 5);
}

// The r7 tdd128 S-CCPCH copies mbsfnSpecialTimeSlot with modulation whatever its option says,
// and its members sit one word later than those of tdd384 and tdd768.
TEST(ConvertSib5TddParts, MbmsTdd128SpecialTimeslotTravelsWithModulation) {
  static_assert(offsetof(umts_secondary_ccpch_info_mbms_r7_tdd128, commonTimeslotInfoMBMS) ==
                    offsetof(umts_secondary_ccpch_info_mbms_r7_tdd384, commonTimeslotInfoMBMS) + 4,
                "one word later");
  static_assert(sizeof(umts_prach_partitioning_r7_tdd::count) == 1 && sizeof(umts_prach_partitioning_r7_fdd::count) == 1 &&
                    sizeof(umts_prach_partitioning_tdd::count) == 4,
                "the r7 partitioning counts are 8-bit, the base ones 32-bit");
  SecondaryCCPCHInfo_MBMS_r7_modeSpecificInfo_tdd128 src = {};
  src.m = 0;  // option clear, value left in the decoded record
  src.mbsfnSpecialTimeSlot = 3;
  src.modulation = 1;
  src.downlinkTimeslotsCodes.moreTimeslots.t = 1;
  umts_secondary_ccpch_info_mbms_r7_tdd128 out = {};
  convert_secondary_ccpch_info_mbms_r7_mode_specific_info_tdd128(&src, &out);
  EXPECT_EQ(out.mbsfnSpecialTimeSlot, 3u);
  EXPECT_EQ(out.modulation, 1u);
  EXPECT_EQ(out.spare, 0u);
  EXPECT_EQ(out.downlinkTimeslotsCodes.moreTimeslots.choice_tag, 1u);

  // The r7 downlink timeslots with noMore: nothing stored at all, not even the tag.
  DownlinkTimeslotsCodes_r7_moreTimeslots more = {};
  more.t = 1;
  umts_downlink_more_timeslots_r7 flat = {};
  convert_downlink_timeslots_codes_r7_more_timeslots(&more, &flat);
  EXPECT_TRUE(allZero(flat));
}

// v890 common E-DCH of 1.28 Mcps: E-RUCCH (all nine members), E-PUCH, E-HICH, E-AGCH, HARQ
// and CCCH transmission; another inner tag leaves the members zero.
TEST_F(ConvertSib5Tdd, Tdd128CommonEdch) {
  static sib5test::Sib5Builder b;
  b.chain(8);
  SysInfoType5_v890ext_IEs& e890 = b.v890().sysInfoType5_v890ext;
  e890.m = 2;
  CommonEDCHSystemInfo& ce = e890.commonEDCHSystemInfo;
  pool.add(ce.common_E_DCH_MAC_d_FlowList, *pool.make<Common_E_DCH_MAC_d_Flow>());
  ce.modeSpecificInfo.t = 2;
  auto* tdd = pool.alloc(ce.modeSpecificInfo.u.tdd);
  tdd->t = 3;
  auto* t = pool.alloc(tdd->u.tdd128);
  E_RUCCH_Info_TDD128& ru = t->e_RUCCH_Info;
  ru.m = 0x1FF;
  ru.t_RUCCH = 15, ru.n_RUCCH = 7, ru.t_WAIT = 6, ru.t_SI = 5, ru.extendedEstimationWindow = 4;
  pool.add(ru.e_RUCCH_AccessServiceClass, *pool.make<ASCSetting_TDD_LCR_r4>());
  ru.e_RUCCH_PersistenceScalingFactor = {6, {0, 1, 2, 3, 4, 5}};
  SYNC_UL_InfoForE_RUCCH& sync = ru.sync_UL_InfoForE_RUCCH;
  sync.m = 5, sync.prxUpPCHdes = 62, sync.powerRampStep = 3 /* bit 1 clear */, sync.max_SYNC_UL_Transmissions = 2, sync.mmax = 32;
  sync.e_RUCCH_Sync_UL_Codes_Bitmap = bitString<Sync_UL_Codes_Bitmap>({0x3C}, 8);
  for (unsigned k = 0; k < 8; k++) {
    auto* pi = pool.make<PRACH_Information_LCR>();
    pi->m = k % 2, pi->timeslot = static_cast<uint8_t>(1 + k % 6), pi->fpach_Info.channelisationCode = k, pi->fpach_Info.wi = 2;
    pi->prach_ChanCodes_list_LCR = {2, {0, k}};
    fillLcrMidamble(pool, pi->midambleShiftAndBurstType, k);
    fillLcrMidamble(pool, pi->fpach_Info.midambleShiftAndBurstType, k + 2);
    pool.add(ru.prach_information, *pi);
  }
  E_PUCH_Info_TDD128& pu = t->e_PUCH_Info;
  pu.m = 0x1B;  // pebase_PowerControlGAP absent
  for (unsigned i = 0; i < 8; i++)
    pool.addNew(pu.e_TFCS_Info.reference_Beta_QPSK_List, Reference_Beta_QPSK{static_cast<uint8_t>(i), static_cast<int8_t>(-15 + i)});
  pool.addNew(pu.e_TFCS_Info.reference_Beta_16QAM_List, Reference_Beta_16QAM{10, 16});
  pu.snpl_ReportType = 1, pu.prxBASEdes = -112, pu.beaconPLEst = 1, pu.tpc_StepSize = 2, pu.pebase_PowerControlGAP = 9;
  pu.ul_SynchronisationParameters = {8, 1};
  for (unsigned i = 0; i < 5; i++)
    pool.addNew(pu.e_PUCH_TS_ConfigurationList,
                E_PUCH_TS_Slots_LCR{static_cast<uint8_t>(i + 1), {1 + i % 2, {static_cast<uint8_t>(10 + i)}}, static_cast<uint8_t>(1 + i)});
  pu.minimum_Allowed_Code_Rate = 1, pu.maximum_Allowed_Code_Rate = 63, pu.maximumNumOfRetransSchedInfo = 15;
  pu.retransTimerForSchedInfo = 4, pu.dummy = 1;
  t->e_hich_Information.n_E_HICH = 15;
  t->e_agch_Information = {1, 1, {}, -30};
  for (unsigned i = 0; i < 4; i++) {
    const uint8_t n = static_cast<uint8_t>(i);
    pool.addNew(t->e_hich_Information.e_HICH_InfoList, E_HICH_Information_LCR{n, static_cast<uint8_t>(n + 2), 15 - i, {2, {n}}, 8});
    pool.addNew(t->e_agch_Information.e_AGCH_Set_Config, E_AGCH_Individual_LCR{n, i, 15 - i, {3, {static_cast<uint8_t>(5 + i)}}, 4});
  }
  t->harq_Info = 1;
  auto& ccch = t->ccch_transmission_Info;
  for (unsigned i = 0; i < 3; i++)
    pool.addNew(ccch.common_e_rnti_Info, Common_E_RNTI_Info_element{bitString<E_RNTI>({static_cast<uint8_t>(0xE0 + i), 0x0F}, 16),
                                                                    static_cast<uint8_t>(3 + i), static_cast<uint8_t>(1 + i % 2)});
  ccch.harq_MaximumNumberOfRetransmissions = 7, ccch.harq_retransmission_timer = 3, ccch.harq_power_offset = 6;

  auto edch = [](const umts_sib5_info& f) -> const umts_common_edch_system_info& {
    return f.v4b0NonCriticalExtensions.v590NonCriticalExtensions.v650NonCriticalExtensions.v680NonCriticalExtensions
        .v690NonCriticalExtensions.v770NonCriticalExtensions.v860NonCriticalExtensions.v890NonCriticalExtensions
        .sysInfoType5_v890ext.commonEDCHSystemInfo;
  };
  // First the longest E-RNTI list, 256 groups under an 8-bit count that reads 0; the three
  // groups after it must leave no trace of the others in either set.
  const rtxDList three = ccch.common_e_rnti_Info;
  ccch.common_e_rnti_Info = {};
  for (unsigned i = 0; i < 256; i++)
    pool.addNew(ccch.common_e_rnti_Info, Common_E_RNTI_Info_element{bitString<E_RNTI>({0xAB, static_cast<uint8_t>(i)}, 16), 1, 1});
  const umts_common_e_rnti_info_list& full = edch(convert(b)).modeSpecificInfo.u.tdd.u.tdd128.ccch_transmission_Info.common_e_rnti_Info;
  EXPECT_EQ(full.count, 0);
  EXPECT_EQ(full.entries[255].starting_E_RNTI.data[1], 255);
  ccch.common_e_rnti_Info = three;
  const umts_common_edch_system_info& out = edch(convert(b));
  ASSERT_EQ(out.modeSpecificInfo.choice_tag, 2u);
  ASSERT_EQ(out.modeSpecificInfo.u.tdd.choice_tag, 3u);
  const umts_common_edch_tdd128& o = out.modeSpecificInfo.u.tdd.u.tdd128;
  const umts_e_rucch_info_tdd128& r = o.e_RUCCH_Info;
  EXPECT_EQ(r.presence_bitmask, 0x1FF);
  EXPECT_EQ(r.t_RUCCH, 15u);
  EXPECT_EQ(r.n_RUCCH, 7u);
  EXPECT_EQ(r.t_WAIT, 6u);
  EXPECT_EQ(r.t_SI, 5u);
  EXPECT_EQ(r.extendedEstimationWindow, 4u);
  EXPECT_EQ(r.e_RUCCH_AccessServiceClass.count, 1);
  EXPECT_EQ(r.e_RUCCH_PersistenceScalingFactor.entries[5], 5u);
  const umts_sync_ul_info_for_e_rucch& so = r.sync_UL_InfoForE_RUCCH;
  EXPECT_EQ(so.presence_bitmask, 5);
  EXPECT_EQ(so.prxUpPCHdes, 62);
  EXPECT_EQ(so.powerRampStep, 0) << "its bit clear";
  EXPECT_EQ(so.max_SYNC_UL_Transmissions, 2u);
  EXPECT_EQ(so.e_RUCCH_Sync_UL_Codes_Bitmap.data[0], 0x3C);
  EXPECT_EQ(so.mmax, 32) << "stored after the bitmap that ran over it";
  ASSERT_EQ(r.prach_information.count, 8);
  for (unsigned k = 0; k < 8; k++) {
    const umts_prach_information_lcr& p = r.prach_information.entries[k];
    EXPECT_EQ(p.presence_bitmask, k % 2);
    EXPECT_EQ(p.timeslot, 1 + k % 6);
    EXPECT_EQ(p.prach_ChanCodes_list_LCR.codes[1], k);
    checkLcrMidamble(p.midambleShiftAndBurstType, k);
    if (k % 2) checkLcrMidamble(p.fpach_Info.midambleShiftAndBurstType, k + 2);
    else EXPECT_TRUE(allZero(p.fpach_Info));
  }
  const umts_e_puch_info_tdd128& p = o.e_PUCH_Info;
  EXPECT_EQ(p.presence_bitmask, 0x1B);
  ASSERT_EQ(p.e_TFCS_Info.reference_Beta_QPSK_List.count, 8);
  EXPECT_EQ(p.e_TFCS_Info.reference_Beta_QPSK_List.entries[7].reference_Beta, -8);
  EXPECT_EQ(p.e_TFCS_Info.reference_Beta_16QAM_List.entries[0].reference_Beta, 16);
  EXPECT_EQ(p.prxBASEdes, -112);
  EXPECT_EQ(p.pebase_PowerControlGAP, 0);
  EXPECT_EQ(p.ul_SynchronisationParameters.stepSize, 8);
  ASSERT_EQ(p.e_PUCH_TS_ConfigurationList.count, 5);
  for (unsigned i = 0; i < 5; i++) {
    const umts_e_puch_ts_slots_lcr& s = p.e_PUCH_TS_ConfigurationList.entries[i];
    EXPECT_EQ(s.midambleAllocationMode.choice_tag, 1 + i % 2);
    EXPECT_EQ(s.midambleAllocationMode.u.ueSpecificMidamble, i % 2 ? 10 + i : 0u) << "the shift of tag 2 alone";
    EXPECT_EQ(s.midambleConfiguration, 1 + i);
  }
  EXPECT_EQ(p.retransTimerForSchedInfo, 4u);
  EXPECT_EQ(p.maximum_Allowed_Code_Rate, 63);
  EXPECT_EQ(p.dummy, 1u);
  ASSERT_EQ(o.e_hich_Information.e_HICH_InfoList.count, 4);
  EXPECT_EQ(o.e_hich_Information.e_HICH_InfoList.entries[3].channelisation_Code, 12u);
  EXPECT_EQ(o.e_hich_Information.e_HICH_InfoList.entries[3].midambleAllocationMode.u.ueSpecificMidamble, 3);
  EXPECT_EQ(o.e_agch_Information.e_AGCH_BLER_Target, -30);
  ASSERT_EQ(o.e_agch_Information.e_AGCH_Set_Config.count, 4);
  EXPECT_EQ(o.e_agch_Information.e_AGCH_Set_Config.entries[2].secondChannelisationCode, 13u);
  EXPECT_EQ(o.e_agch_Information.e_AGCH_Set_Config.entries[2].midambleAllocationMode.u.ueSpecificMidamble, 7);
  EXPECT_EQ(o.harq_Info, 1u);
  ASSERT_EQ(o.ccch_transmission_Info.common_e_rnti_Info.count, 3);
  for (unsigned i = 0; i < 3; i++) {
    const umts_common_e_rnti_info& e = o.ccch_transmission_Info.common_e_rnti_Info.entries[i];
    EXPECT_EQ(e.starting_E_RNTI.data[0], 0xE0 + i);
    EXPECT_EQ(e.number_of_group, 3 + i) << "stored after the E-RNTI that ran over it";
    EXPECT_EQ(e.number_of_ENRTI_per_group, 1 + i % 2);
  }
  EXPECT_EQ(o.ccch_transmission_Info.harq_power_offset, 6);

  tdd->t = 1;  // another inner tag: the tag, and the members of tdd128 zero
  const umts_common_edch_mode_specific_info& m = edch(convert(b)).modeSpecificInfo;
  EXPECT_EQ(m.u.tdd.choice_tag, 1u);
  EXPECT_TRUE(allZero(m.u.tdd.u));
}

}  // namespace
