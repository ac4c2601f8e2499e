// SIB2 and SIB7: built in code, encoded by the codec, sent whole and over the BCH, and the
// records compared with the values they were built from.
#include "bch_segmenter.h"
#include "frame_test_util.h"

using namespace frametest;

namespace {

SysInfoType2 sib2(uint32_t identities, bool extensions) {
  SysInfoType2 s;
  std::memset(&s, 0, sizeof s);
  s.m = extensions ? 1 : 0;
  s.ura_IdentityList.n = identities;
  for (uint32_t i = 0; i < identities; i++)
    s.ura_IdentityList.elem[i] = bitString<URA_Identity>({static_cast<uint8_t>(0xF0 - i), static_cast<uint8_t>(i * 17 + 1)}, 16);
  return s;
}

struct Sib7 {
  SysInfoType7 s;
  SysInfoType7_modeSpecificInfo_fdd fdd;
  // mode 1 fdd, 2 tdd; an empty SIB6 list or a zero factor is left out.
  Sib7(uint32_t mode, int8_t ul, const std::vector<uint8_t>& sib5, const std::vector<uint8_t>& sib6, uint8_t factor,
       bool extensions) {
    std::memset(static_cast<void*>(this), 0, sizeof *this);
    s.modeSpecificInfo.t = mode;
    fdd.ul_Interference = ul;
    if (mode == 1) s.modeSpecificInfo.u.fdd = &fdd;
    s.prach_Information_SIB5_List.n = static_cast<uint32_t>(sib5.size());
    std::copy(sib5.begin(), sib5.end(), s.prach_Information_SIB5_List.elem);
    s.prach_Information_SIB6_List.n = static_cast<uint32_t>(sib6.size());
    std::copy(sib6.begin(), sib6.end(), s.prach_Information_SIB6_List.elem);
    s.expirationTimeFactor = factor;
    s.m = (sib6.empty() ? 0 : 1) | (factor ? 2 : 0) | (extensions ? 4 : 0);
  }
};

void expectList(const DynamicPersistenceLevelList& in, const umts_dynamic_persistence_level_list& out) {
  EXPECT_EQ(out.count, in.n);
  EXPECT_EQ(std::memcmp(out.entries, in.elem, 16), 0);  // unused entries zero on both sides
}

class ConvertSib2Sib7 : public FrameTest {
 protected:
  // Sent whole, then cut by the segmenter and fed block by block: both give `*record`, and
  // the record is rewritten whole each time.
  template <typename Record>
  void wholeAndOverBch(umts_sib_id id, uint32_t sibType, const std::vector<uint8_t>& bytes, uint32_t bits,
                       Record* record, void (*check)(const Record&)) {
    std::memset(record, 0xEE, sizeof *record);
    ASSERT_EQ(whole(id, bytes), 1);
    EXPECT_EQ(result->presence_bitmask, 1u << id);
    check(*record);

    const Record expected = *record;
    std::memset(record, 0xEE, sizeof *record);
    result->presence_bitmask = 0;
    const umts_bch_sib sib{sibType, bytes.data(), bits, 0};
    umts_bch_block blocks[8];
    uint32_t count = 0;
    ASSERT_EQ(umts_bch_segment(&sib, 1, 0, blocks, 8, &count, nullptr), umts_bch_ok);
    for (uint32_t i = 0; i < count; i++) EXPECT_EQ(feed({blocks[i].data, blocks[i].data + UMTS_BCH_BLOCK_OCTETS}), 1);
    EXPECT_EQ(result->presence_bitmask, 1u << id);
    EXPECT_EQ(std::memcmp(record, &expected, sizeof expected), 0);
  }
};

// The second copy of each identity takes its 16 bits as 16 octets; it is kept inside the
// entry, so with 7 or 8 identities nothing past umts_sib2_info is written (guarded here up to
// 16 octets into sib3) while the record holds what the longer copy left in it.
TEST_F(ConvertSib2Sib7, Sib2IdentitiesAreCopiedWithinTheRecord) {
  static SysInfoType2 in;
  for (const auto& c : {std::make_pair(1u, false), std::make_pair(7u, true), std::make_pair(8u, true)}) {
    SCOPED_TRACE(c.first);
    in = sib2(c.first, c.second);
    uint8_t* after = reinterpret_cast<uint8_t*>(&result->sib2 + 1);
    const std::vector<uint8_t> guard(reinterpret_cast<uint8_t*>(&result->sib3) + 16 - after, 0xA5);
    std::memcpy(after, guard.data(), guard.size());
    uint32_t bits = 0;
    const std::vector<uint8_t> bytes = encode(asn1PE_UMTS_SysInfoType2, in, &bits);
    wholeAndOverBch<umts_sib2_info>(umts_sib_sib2, 2, bytes, bits, &result->sib2, [](const umts_sib2_info& out) {
      EXPECT_EQ(out.presence_bitmask, in.m);
      EXPECT_EQ(out.nonCriticalExtensions, 0);
      EXPECT_EQ(out.ura_IdentityList.count, in.ura_IdentityList.n);
      for (uint32_t i = 0; i < 8; i++) {
        const umts_ura_identity& e = out.ura_IdentityList.entries[i];
        EXPECT_EQ(e.numbits, i < in.ura_IdentityList.n ? 16u : 0u) << i;
        EXPECT_EQ(std::memcmp(e.data, in.ura_IdentityList.elem[i].data, 4), 0) << i;
      }
    });
    EXPECT_EQ(std::vector<uint8_t>(after, after + guard.size()), guard);
  }
}

TEST_F(ConvertSib2Sib7, Sib7GivesTheValuesBuilt) {
  static const Sib7 cases[] = {
      {1, -105, {1, 2, 3, 4, 5, 6, 7, 8, 8, 7, 6, 5, 4, 3, 2, 1}, {3, 1, 4, 1, 5, 2, 6, 8, 7, 2, 1, 8, 3, 4, 5, 6}, 8, true},
      {2, 0, {8}, {}, 0, false},  // tdd: the tag alone; no SIB6 list, its count 0
      {1, -70, {1, 1}, {2}, 1, false},
      {1, -110, {5, 6, 7}, {}, 0, true},
  };
  static const SysInfoType7* in;
  for (const Sib7& c : cases) {
    SCOPED_TRACE(&c - cases);
    in = &c.s;
    uint32_t bits = 0;
    const std::vector<uint8_t> bytes = encode(asn1PE_UMTS_SysInfoType7, c.s, &bits);
    wholeAndOverBch<umts_sib7_info>(umts_sib_sib7, 7, bytes, bits, &result->sib7, [](const umts_sib7_info& out) {
      EXPECT_EQ(out.presence_bitmask, in->m);
      EXPECT_EQ(out.modeSpecificInfo.choice_tag, in->modeSpecificInfo.t);
      EXPECT_EQ(out.modeSpecificInfo.u.ul_Interference, in->modeSpecificInfo.t == 1 ? in->modeSpecificInfo.u.fdd->ul_Interference : 0);
      expectList(in->prach_Information_SIB5_List, out.prach_Information_SIB5_List);
      expectList(in->prach_Information_SIB6_List, out.prach_Information_SIB6_List);
      EXPECT_EQ(out.expirationTimeFactor, in->expirationTimeFactor);
      EXPECT_EQ(out.nonCriticalExtensions, 0);
    });
  }
}

// A failed decoding prints its message, SIB7's without a line end, and keeps the record (as
// every block's: test_convert_clearing.cpp). Every bit pattern is a SIB2, so its decoding
// fails only over an emptied slot.
TEST_F(ConvertSib2Sib7, FailedDecodingKeepsThePreviousRecord) {
  ASSERT_EQ(whole(umts_sib_sib2, encode(asn1PE_UMTS_SysInfoType2, sib2(3, true))), 1);
  const umts_sib2_info sib2_before = result->sib2;
  std::string out;
  EXPECT_EQ(whole(umts_sib_sib7, {0x0F, 0xC0}, &out), 0);  // UL-Interference offset 63 of 0..40
  EXPECT_EQ(out, "umts_convert_sib7:asn decoding failed");
  uint8_t ret = 0xEE;
  out = captureStdout([&] { ret = umts_convert_sib2(&result->sib2); });
  EXPECT_EQ(ret, 0);
  EXPECT_EQ(out, "umts_convert_sib2:asn decoding failed\n");
  EXPECT_EQ(std::memcmp(&result->sib2, &sib2_before, sizeof sib2_before), 0);
}

}  // namespace
