/*
 * The BCH segmenter: every block is decoded again with the codec and the segments are joined
 * as a receiver joins them, bit by bit in the order of their indices; the join must give back
 * each SIB's encoding, with nothing but zero padding after it.
 */
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "bch_segmenter.h"
#include "tools_test_util.h"
#include "umts_rrc.h"
#include "umts_rrc_rt.h"

namespace {

struct TestSib {
  uint32_t sib_type;
  std::vector<uint8_t> bytes;
  uint32_t numbits;
  uint8_t own_block;
};

/* Pseudo-random octets. Bits beyond numbits are zero, as an encoder leaves them. */
TestSib make_sib(uint32_t type, uint32_t numbits, uint32_t seed, uint8_t own_block = 0) {
  TestSib s{type, std::vector<uint8_t>((numbits + 7) / 8), numbits, own_block};
  uint32_t x = seed * 2654435761u + 12345u;
  for (uint8_t& b : s.bytes) {
    x = x * 1103515245u + 12345u;
    b = static_cast<uint8_t>(x >> 16);
  }
  if (numbits % 8 != 0) s.bytes.back() &= static_cast<uint8_t>(0xFF << (8 - numbits % 8));
  return s;
}

struct Cut {
  umts_bch_status status;
  uint32_t failed;
  std::vector<umts_bch_block> blocks;
};

Cut cut(const std::vector<TestSib>& sibs, uint16_t first_sfn_prime = 0, uint32_t max_blocks = 64) {
  std::vector<umts_bch_sib> in;
  for (const TestSib& s : sibs) in.push_back({s.sib_type, s.bytes.data(), s.numbits, s.own_block});
  Cut c;
  c.blocks.resize(max_blocks);
  uint32_t count = 0;
  c.status = umts_bch_segment(in.data(), static_cast<uint32_t>(in.size()), first_sfn_prime, c.blocks.data(),
                              max_blocks, &count, &c.failed);
  c.blocks.resize(count);
  return c;
}

using Bits = std::vector<bool>;

Bits bits_of(const uint8_t* data, uint32_t numbits) {
  Bits b(numbits);
  for (uint32_t i = 0; i < numbits; i++) b[i] = ((data[i / 8] >> (7 - i % 8)) & 1) != 0;
  return b;
}

/* A receiver's reassembly, one slot per SIB-Type: segments in the order of their indices,
   joined bit by bit. */
struct Join {
  struct Slot {
    Bits bits;
    int total = 0;
    int next = 0;
  };
  std::map<uint32_t, Slot> slots;
  std::vector<std::pair<uint32_t, Bits>> completed;
  std::set<uint32_t> payloads;

  void first(uint32_t type, uint32_t count, uint32_t numbits, const uint8_t* data) {
    Slot& s = slots[type];
    s.bits = bits_of(data, numbits);
    s.total = static_cast<int>(count);
    s.next = 1;
  }
  void next(uint32_t type, uint32_t index, uint32_t numbits, const uint8_t* data, bool last) {
    Slot& s = slots[type];
    ASSERT_EQ(static_cast<int>(index), s.next) << "segment out of order";
    ASSERT_LT(s.next, s.total);
    const Bits more = bits_of(data, numbits);
    s.bits.insert(s.bits.end(), more.begin(), more.end());
    s.next++;
    ASSERT_EQ(last, s.next == s.total) << "segment kind against the count";
    if (last) completed.push_back({type, s.bits});
  }
  void whole(uint32_t type, uint32_t numbits, const uint8_t* data) { completed.push_back({type, bits_of(data, numbits)}); }
  void list(const CompleteSIB_List& l) {
    for (const rtxDListNode* n = l.head; n != nullptr; n = n->next) {
      const CompleteSIBshort* c = static_cast<const CompleteSIBshort*>(n->data);
      whole(c->sib_Type, c->sib_Data_variable.numbits, c->sib_Data_variable.data);
    }
  }
  void last_short(const LastSegmentShort& l) {
    next(l.sib_Type, l.segmentIndex, l.sib_Data_variable.numbits, l.sib_Data_variable.data, true);
  }
  void first_short(const FirstSegmentShort& f) {
    first(f.sib_Type, f.seg_Count, f.sib_Data_variable.numbits, f.sib_Data_variable.data);
  }

  /* Decodes one transport block, checks its size and files its segments. */
  void block(const umts_bch_block& b, uint16_t expected_sfn_prime) {
    rtxContext* ctx = new rtxContext;
    std::memset(ctx, 0, sizeof *ctx);
    ASSERT_EQ(rtInitContext(ctx), 0);
    BCCH_BCH_Message msg;
    std::memset(&msg, 0, sizeof msg);
    ASSERT_EQ(pu_setBuffer(ctx, b.data, UMTS_BCH_BLOCK_OCTETS, 0), 0);
    ASSERT_EQ(asn1PD_UMTS_BCCH_BCH_Message(ctx, &msg), 0);
    const uint64_t used = rtxBitPos(ctx);
    EXPECT_LE(used, static_cast<uint64_t>(UMTS_BCH_BLOCK_BITS));
    for (uint64_t bit = used; bit < 8u * UMTS_BCH_BLOCK_OCTETS; bit++)
      EXPECT_EQ((b.data[bit / 8] >> (7 - bit % 8)) & 1, 0) << "padding bit " << bit;
    EXPECT_EQ(msg.message.sfn_Prime, expected_sfn_prime);
    EXPECT_EQ(msg.message.payload.t, b.payload);
    payloads.insert(msg.message.payload.t);
    const auto& u = msg.message.payload.u;
    switch (msg.message.payload.t) {
      case 2:
        first(u.firstSegment->sib_Type, u.firstSegment->seg_Count, u.firstSegment->sib_Data_fixed.numbits,
              u.firstSegment->sib_Data_fixed.data);
        break;
      case 3:
        next(u.subsequentSegment->sib_Type, u.subsequentSegment->segmentIndex,
             u.subsequentSegment->sib_Data_fixed.numbits, u.subsequentSegment->sib_Data_fixed.data, false);
        break;
      case 4:
        last_short(*u.lastSegmentShort);
        break;
      case 5:
        last_short(u.lastAndFirst->lastSegmentShort);
        first_short(u.lastAndFirst->firstSegment);
        break;
      case 6:
        last_short(u.lastAndComplete->lastSegmentShort);
        list(u.lastAndComplete->completeSIB_List);
        break;
      case 7:
        last_short(u.lastAndCompleteAndFirst->lastSegmentShort);
        list(u.lastAndCompleteAndFirst->completeSIB_List);
        first_short(u.lastAndCompleteAndFirst->firstSegment);
        break;
      case 8:
        list(*u.completeSIB_List);
        break;
      case 9:
        list(u.completeAndFirst->completeSIB_List);
        first_short(u.completeAndFirst->firstSegment);
        break;
      case 10:
        whole(u.completeSIB->sib_Type, u.completeSIB->sib_Data_fixed.numbits, u.completeSIB->sib_Data_fixed.data);
        break;
      case 11:
        next(u.lastSegment->sib_Type, u.lastSegment->segmentIndex, u.lastSegment->sib_Data_fixed.numbits,
             u.lastSegment->sib_Data_fixed.data, true);
        break;
      default:
        ADD_FAILURE() << "payload " << msg.message.payload.t;
    }
    rtFreeContext(ctx);
    delete ctx;
  }
};

/* Joins every block and compares each SIB with its encoding: the joined bits start with the
   encoding and are zero beyond it (the padding of a lastSegment or completeSIB). */
void expect_round_trip(const std::vector<TestSib>& sibs, const Cut& c, uint16_t first_sfn_prime, Join* join) {
  for (size_t i = 0; i < c.blocks.size(); i++)
    join->block(c.blocks[i], static_cast<uint16_t>((first_sfn_prime + i) & 0x7FF));
  ASSERT_EQ(join->completed.size(), sibs.size());
  for (size_t i = 0; i < sibs.size(); i++) {
    const auto& got = join->completed[i];
    EXPECT_EQ(got.first, sibs[i].sib_type);
    const Bits want = bits_of(sibs[i].bytes.data(), sibs[i].numbits);
    ASSERT_GE(got.second.size(), want.size());
    EXPECT_TRUE(std::equal(want.begin(), want.end(), got.second.begin())) << "SIB " << i;
    EXPECT_LE(got.second.size(), want.size() + 11) << "SIB " << i; /* 215 bits in a completeSIB */
    for (size_t k = want.size(); k < got.second.size(); k++) EXPECT_FALSE(got.second[k]) << "SIB " << i;
  }
}

TEST(BchSegmenter, EverySegmentKindJoinsBack) {
  struct Scenario {
    const char* what;
    std::vector<TestSib> sibs;
    std::set<uint32_t> payloads;
  };
  const std::vector<Scenario> scenarios = {
      {"MIB in a block of its own", {make_sib(0, 205, 1, 1), make_sib(1, 40, 2)}, {8}},
      {"226-bit completeSIB", {make_sib(3, 220, 3)}, {10}},
      {"first, subsequent, last short", {make_sib(11, 600, 4)}, {2, 3, 4}},
      {"last segment of 222 bits", {make_sib(5, 444, 5)}, {2, 11}},
      {"complete and first", {make_sib(7, 50, 6), make_sib(11, 600, 7)}, {9, 3, 4}},
      {"last and first", {make_sib(11, 600, 8), make_sib(12, 600, 9)}, {2, 3, 5, 4}},
      {"last and complete", {make_sib(11, 600, 10), make_sib(7, 20, 11)}, {2, 3, 6}},
      {"last, complete and first",
       {make_sib(11, 500, 12), make_sib(7, 20, 13), make_sib(12, 600, 14)},
       {2, 3, 7, 4}},
      {"the largest SIB: 16 segments of 222 bits", {make_sib(5, 16 * 222, 15)}, {2, 3, 11}},
  };
  std::set<uint32_t> seen;
  for (const Scenario& s : scenarios) {
    SCOPED_TRACE(s.what);
    const Cut c = cut(s.sibs, 2046);
    ASSERT_EQ(c.status, umts_bch_ok) << umts_bch_status_text(c.status);
    Join join;
    expect_round_trip(s.sibs, c, 2046, &join);
    for (uint32_t p : s.payloads) EXPECT_EQ(join.payloads.count(p), 1u) << umts_bch_payload_name(p);
    seen.insert(join.payloads.begin(), join.payloads.end());
  }
  EXPECT_EQ(seen, (std::set<uint32_t>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

/* Random content of random lengths: every cycle is carried and joins back. */
TEST(BchSegmenter, RandomSibsJoinBack) {
  for (uint32_t seed = 1; seed <= 150; seed++) {
    std::vector<TestSib> sibs;
    for (uint32_t k = 0; k < 3; k++) sibs.push_back(make_sib(k + 1, 1 + (seed * 97 + k * 331) % 1800, seed * 3 + k));
    const Cut c = cut(sibs, static_cast<uint16_t>(seed));
    ASSERT_EQ(c.status, umts_bch_ok) << umts_bch_status_text(c.status) << " seed " << seed;
    Join join;
    expect_round_trip(sibs, c, static_cast<uint16_t>(seed), &join);
    if (HasFatalFailure()) return;
  }
}

TEST(BchSegmenter, Refusals) {
  struct Case {
    const char* what;
    std::vector<TestSib> sibs;
    uint32_t max_blocks;
    umts_bch_status status;
    uint32_t failed;
  };
  const std::vector<Case> cases = {
      {"SIB-Type above 31", {make_sib(0, 40, 1), make_sib(32, 40, 1)}, 8, umts_bch_bad_sib, 1},
      {"no bits", {make_sib(3, 0, 1)}, 8, umts_bch_bad_sib, 0},
      {"more than 16 segments", {make_sib(5, 16 * 222 + 1, 16)}, 64, umts_bch_too_long, 0},
      {"too few blocks", {make_sib(11, 600, 4)}, 2, umts_bch_out_of_blocks, 0},
  };
  for (const Case& k : cases) {
    const Cut c = cut(k.sibs, 0, k.max_blocks);
    EXPECT_EQ(c.status, k.status) << k.what;
    EXPECT_EQ(c.failed, k.failed) << k.what;
  }
}

/* A real transport block: the first segment of an extension SIB, SFN' 1290. The segmenter
   gives the same 31 octets for a SIB of 7 segments that starts with those 222 bits. */
TEST(BchSegmenter, ReproducesARealTransportBlock) {
  const std::vector<uint8_t> real = tt::hex_bytes("a143f686e52a22282f36928cc1852026d2519830afacda4a330614909b4944");
  const std::vector<uint8_t> data = tt::hex_bytes("86e52a22282f36928cc1852026d2519830afacda4a330614909b4944");

  TestSib sib{31, data, 0, 0};
  sib.numbits = 6 * 222 + 80;
  sib.bytes.resize((sib.numbits + 7) / 8, 0);
  sib.bytes[27] &= 0xFC; /* the first 222 bits only */
  const Cut c = cut({sib}, 1290);
  ASSERT_EQ(c.status, umts_bch_ok);
  ASSERT_EQ(c.blocks.size(), 7u);
  EXPECT_EQ(std::vector<uint8_t>(c.blocks[0].data, c.blocks[0].data + UMTS_BCH_BLOCK_OCTETS), real);
  EXPECT_EQ(c.blocks[0].payload, 2u);
  EXPECT_EQ(c.blocks[0].pieces[0].seg_count, 7u);
}

}  // namespace

#include "umts_sib_decoder.h"
#include "umts_sib_json.h"

namespace {

/* The record of block `id` as JSON. */
std::string record_json(const umts_sib_set* set, umts_sib_id id) {
  std::vector<char> text(1 << 20);
  umts_sib_record_json(set, id, text.data(), text.size());
  return text.data();
}

/* Every whole SIB of the sample files (the FDD cell's forms, and the 1.28 Mcps TDD cell's
   SIB11 and SIB12 with their LCR trees), cut into transport blocks and fed to the BCH entry,
   gives the record that the whole-SIB entry gives. */
TEST(BchSegmenter, SampleSibsOverTheBchAreTheWholeSibs) {
  umts_sib_print_to(nullptr);
  umts_sib_set* whole = umts_sib_set_alloc();
  umts_sib_set* over_bch = umts_sib_set_alloc();
  ASSERT_NE(whole, nullptr);
  ASSERT_NE(over_bch, nullptr);
  size_t compared = 0;
  for (const char* file : {"fdd_cell_sibs.txt", "tdd128_cell_sibs.txt"}) {
    for (const auto& [name, bytes] : tt::sample_sibs(file)) {
      const umts_sib_id id = umts_sib_id_of_name(name.c_str(), name.size());
      if (id == umts_sib_count) continue; /* SIB16 stands outside the set */
      SCOPED_TRACE(std::string(file) + " " + name);
      ASSERT_EQ(umts_sib_msg_decoder(id, bytes.data(), whole, static_cast<uint32_t>(bytes.size())), 1);
      /* SIB-Type of each block: 0 MIB ... 12 SIB12, 26 SIB18, 27 SB1, 28 SB2, 31 extension. */
      static const uint32_t kSibType[] = {0, 1, 2, 3, 5, 7, 11, 31, 12, 26, 27, 28};
      if (id == umts_sib_sib11bis) continue; /* an extension SIB is filed only where a schedule puts it */
      const umts_bch_sib sib = {kSibType[id], bytes.data(), static_cast<uint32_t>(bytes.size() * 8), 1};
      std::vector<umts_bch_block> blocks(16);
      uint32_t count = 0;
      ASSERT_EQ(umts_bch_segment(&sib, 1, 0, blocks.data(), 16, &count, nullptr), umts_bch_ok);
      over_bch->presence_bitmask = 0;
      for (uint32_t i = 0; i < count; i++) umts_sib_decoder(blocks[i].data, over_bch, UMTS_BCH_BLOCK_OCTETS);
      EXPECT_EQ(over_bch->presence_bitmask, 1u << id);
      EXPECT_EQ(record_json(over_bch, id), record_json(whole, id));
      compared++;
    }
  }
  EXPECT_GE(compared, 14u);
  umts_sib_set_free(whole);
  umts_sib_set_free(over_bch);
  umts_sib_print_to(stdout);
}

}  // namespace
