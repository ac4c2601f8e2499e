// Reassembly on the BCH road as cells broadcast: segments joined bit by bit, each part of a
// block on its own, extension SIBs by the cell's schedule. Checked against transport blocks
// of a live network with the SIBs that a phone reassembled from them, and against SIBs of
// every length cut by the BCH segmenter.
#include <algorithm>
#include <cstddef>
#include <map>
#include <random>
#include <set>

#include "bch_segmenter.h"
#include "frame_test_util.h"

using namespace frametest;

namespace {

// A live network. SIB1 over two blocks: the first also carries a MIB and a SIB7 whole
// (completeAndFirst, SFN' 4), the second a SIB2 whole (lastAndComplete, SFN' 5).
const char* const kSib1Blocks[] = {"0090209850820205075c220405162289e464204604a81b9c400500110de4bc",
                                   "00aa107546423c02440404100163aa54d866a0042605e8c000000000000000"};
constexpr char kSib1[] = "e4bd1908f00910101040058ea953619a80";
// SIB18 over two blocks, the first beside a SIB3 whole (completeAndFirst, SFN' 1139), the
// second alone (lastSegmentShort, SFN' 1141).
const char* const kSib18Blocks[] = {"8e7003a48242b85042fbdda052691200014afffffaddc0a22e847e7b800000",
                                    "8ea7a04a120001208088a80000000000000000000000000000000000000001"};
constexpr char kSib18[] = "9ee00000120001208088a8000000";
// The first segment of an extensionType SIB (a SIB19 by the cell's schedule), seg_Count 7,
// SFN' 1290.
constexpr char kExtensionBlock[] = "a143f686e52a22282f36928cc1852026d2519830afacda4a330614909b4944";

// The bit position of a slot lies in its padding and the schedules follow the slots: the
// fields that hosts read of g_umts_ctxt keep their places.
static_assert(offsetof(umts_sib_slot, buffer) == 0 && offsetof(umts_sib_slot, write_cursor) == sizeof(void*) &&
                  offsetof(umts_sib_slot, total_segments) == 2 * sizeof(void*) &&
                  offsetof(umts_sib_slot, remaining_segments) == 2 * sizeof(void*) + 1 &&
                  sizeof(umts_sib_slot) == 3 * sizeof(void*),
              "umts_sib_slot keeps its layout");
static_assert(offsetof(umts_decoder_ctxt, request_bitmask) == 0 && offsetof(umts_decoder_ctxt, slots) == sizeof(void*) &&
                  offsetof(umts_decoder_ctxt, sfn_prime) == sizeof(void*) + umts_sib_count * sizeof(umts_sib_slot),
              "the fields of g_umts_ctxt before the schedules keep their places");

constexpr uint16_t bit(umts_sib_id id) { return static_cast<uint16_t>(1u << id); }

const umts_sib_slot& slot(umts_sib_id id) { return g_umts_ctxt.slots[id]; }

// SysInfoType11bis with nothing but its mandatory parts: a SIB that decodes as SIB11bis.
std::vector<uint8_t> minimalSib11bis(uint32_t* bits) {
  SysInfoType11bis sib;
  std::memset(&sib, 0, sizeof sib);
  return encode(asn1PE_UMTS_SysInfoType11bis, sib, bits);
}

// The default MIB with SIB11bis in its v6b0 list of extension SIBs, at `s`.
std::vector<uint8_t> mibScheduling11bis(const SchedulingInformation& s, uint32_t* bits = nullptr) {
  MibBuilder b;
  auto& v6b0 = b.mib.v690NonCriticalExtensions.v6b0NonCriticalExtensions;
  b.mib.m = b.mib.v690NonCriticalExtensions.m = v6b0.masterInformationBlock_v6b0ext.m = 1;
  b.ext = {{1, {}}, s, {1, {}}};
  b.add(v6b0.masterInformationBlock_v6b0ext.extSIBTypeInfoSchedulingInfo_List, b.ext);
  return b.encode(bits);
}

// The transport blocks of `sibs`, cut by the segmenter from SFN' `sfnPrime` on.
std::vector<umts_bch_block> cut(const std::vector<umts_bch_sib>& sibs, uint16_t sfnPrime = 0) {
  std::vector<umts_bch_block> blocks(64);
  uint32_t count = 0;
  EXPECT_EQ(umts_bch_segment(sibs.data(), static_cast<uint32_t>(sibs.size()), sfnPrime, blocks.data(),
                             static_cast<uint32_t>(blocks.size()), &count, nullptr),
            umts_bch_ok);
  blocks.resize(count);
  return blocks;
}
std::vector<uint8_t> bytesOf(const umts_bch_block& b) { return {b.data, b.data + UMTS_BCH_BLOCK_OCTETS}; }

class FrameReassembly : public FrameTest {
 protected:
  // The sub-record `field` after the BCH road, then after the whole-SIB road, byte for byte.
  template <typename Record>
  void expectSameRecord(Record umts_sib_set::*field, umts_sib_id id, const char* wholeHex) {
    const std::unique_ptr<Record> bch(new Record(result->*field));
    std::memset(&(result->*field), 0xEE, sizeof(Record));
    resetContext();
    ASSERT_EQ(whole(id, fromHex(wholeHex)), 1);
    EXPECT_EQ(std::memcmp(bch.get(), &(result->*field), sizeof(Record)), 0);
  }
};

TEST_F(FrameReassembly, RealSib1OverTwoBlocksIsThePhonesSib1) {
  EXPECT_EQ(feed(fromHex(kSib1Blocks[0])), 1);
  EXPECT_EQ(result->presence_bitmask, bit(umts_sib_mib) | bit(umts_sib_sib7));
  EXPECT_EQ(slot(umts_sib_sib1).total_segments, 2);
  EXPECT_EQ(slot(umts_sib_sib1).write_bit, 6);  // 14 bits taken
  result->presence_bitmask = 0;
  EXPECT_EQ(feed(fromHex(kSib1Blocks[1])), 1);
  EXPECT_EQ(result->presence_bitmask, bit(umts_sib_sib1) | bit(umts_sib_sib2));
  const umts_sib1_info& s = result->sib1;
  ASSERT_EQ(s.cn_CommonGSM_MAP_NAS_SysInfo.count, 2u);  // location area 0x2f46
  EXPECT_EQ(s.cn_CommonGSM_MAP_NAS_SysInfo.octets[0], 0x2F);
  EXPECT_EQ(s.cn_CommonGSM_MAP_NAS_SysInfo.octets[1], 0x46);
  ASSERT_EQ(s.cn_DomainSysInfoList.count, 2);
  for (unsigned i = 0; i < 2; i++) {
    EXPECT_EQ(s.cn_DomainSysInfoList.entries[i].cn_DomainIdentity, i);      // cs-domain, ps-domain
    EXPECT_EQ(s.cn_DomainSysInfoList.entries[i].cn_Type.choice_tag, 1u);  // gsm-MAP
  }
  expectSameRecord(&umts_sib_set::sib1, umts_sib_sib1, kSib1);
}

TEST_F(FrameReassembly, RealSib18OverTwoBlocksIsThePhonesSib18) {
  EXPECT_EQ(feed(fromHex(kSib18Blocks[0])), 1);
  EXPECT_EQ(result->presence_bitmask, bit(umts_sib_sib3));
  result->presence_bitmask = 0;
  EXPECT_EQ(feed(fromHex(kSib18Blocks[1])), 1);
  EXPECT_EQ(result->presence_bitmask, bit(umts_sib_sib18));
  EXPECT_NE(result->sib18.presence_bitmask, 0);
  expectSameRecord(&umts_sib_set::sib18, umts_sib_sib18, kSib18);
}

// Files the blocks' segments (without a record: nothing is converted) and takes each SIB that
// they complete out of its slot.
struct Reassembly {
  std::map<unsigned, std::vector<uint8_t>> completed;  // by slot, the whole buffer
  std::set<uint32_t> payloads;

  void feed(const umts_bch_block& b) {
    rtxContext ctx;
    ASSERT_EQ(rtInitContext(&ctx), 0);
    pu_setBuffer(&ctx, b.data, UMTS_BCH_BLOCK_OCTETS, 0);
    BCCH_BCH_Message m;
    std::memset(&m, 0, sizeof m);
    ASSERT_EQ(asn1PD_UMTS_BCCH_BCH_Message(&ctx, &m), 0);
    payloads.insert(m.message.payload.t);
    umts_check_and_decode_sibs(&ctx, &m, nullptr);
    rtFreeContext(&ctx);
    for (unsigned id = 0; id < umts_sib_count; id++) {
      if ((g_umts_ctxt.request_bitmask & (1u << id)) == 0) continue;
      umts_sib_slot& s = g_umts_ctxt.slots[id];
      ASSERT_EQ(completed.count(id), 0u) << "slot " << id << " completed twice";
      completed[id].assign(s.buffer, s.buffer + UMTS_SIB_DECODE_LENGTH);
      std::free(s.buffer);
      std::memset(&s, 0, sizeof s);
    }
    g_umts_ctxt.request_bitmask = 0;
  }
};

// Pseudo-random bits of a SIB, zero beyond `bits` as an encoder leaves them.
std::vector<uint8_t> randomSib(std::mt19937& draw, uint32_t bits) {
  std::vector<uint8_t> bytes((bits + 7) / 8);
  for (uint8_t& b : bytes) b = static_cast<uint8_t>(draw());
  if (bits % 8 != 0) bytes.back() &= static_cast<uint8_t>(0xFF << (8 - bits % 8));
  return bytes;
}

std::vector<uint8_t> window(const std::vector<uint8_t>& sib) {
  std::vector<uint8_t> w(UMTS_SIB_DECODE_LENGTH, 0);
  std::copy(sib.begin(), sib.end(), w.begin());
  return w;
}

// Every length from 1 bit to the 3552 bits of 16 segments, followed by two SIBs of other
// lengths, so that the blocks take every combination of segment kinds: each SIB comes out of
// its slot as it was put in, bit for bit and zero beyond.
TEST_F(FrameReassembly, SibsOfEveryLengthComeBackBitForBit) {
  std::mt19937 draw(20261123);
  const uint32_t firstTypes[] = {1, 2, 3, 5}, lastTypes[] = {11, 12, 26, 27};
  std::set<uint32_t> payloads;
  const std::string out = captureStdout([&] {
    for (uint32_t length = 1; length <= 16 * 222 && !HasFatalFailure(); length++) {
      // The middle SIB is short, or on every third length long enough to be segmented.
      const uint32_t middle = length % 3 == 0 ? length * 53 % 1200 + 215 : length * 37 % 214 + 1;
      const uint32_t lengths[3] = {length, middle, length * 101 % 1500 + 1};
      const uint32_t types[3] = {firstTypes[length % 4], 7, lastTypes[length / 4 % 4]};
      std::vector<std::vector<uint8_t>> sibs;
      std::vector<umts_bch_sib> in;
      for (int k = 0; k < 3; k++) {
        sibs.push_back(randomSib(draw, lengths[k]));
        in.push_back({types[k], sibs.back().data(), lengths[k], static_cast<uint8_t>(k == 0 && length % 13 == 0)});
      }
      Reassembly r;
      for (const umts_bch_block& b : cut(in, static_cast<uint16_t>(length))) r.feed(b);
      for (int k = 0; k < 3; k++) {
        const umts_sib_id id = get_sib_type(types[k]);
        ASSERT_EQ(r.completed.count(id), 1u) << "length " << length << ", SIB " << k;
        EXPECT_EQ(r.completed[id], window(sibs[k])) << "length " << length << ", SIB " << k;
      }
      for (const umts_sib_slot& s : g_umts_ctxt.slots) ASSERT_EQ(s.buffer, nullptr);
      payloads.insert(r.payloads.begin(), r.payloads.end());
    }
  });
  EXPECT_EQ(out, "");  // no part was refused
  EXPECT_EQ(payloads, (std::set<uint32_t>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

// Segments of two SIBs in alternate blocks: each slot collects its own.
TEST_F(FrameReassembly, InterleavedSibsEachComeBack) {
  std::mt19937 draw(7);
  const std::vector<uint8_t> sib5 = randomSib(draw, 1501), sib11 = randomSib(draw, 911);
  const std::vector<umts_bch_block> a = cut({{5, sib5.data(), 1501, 0}}), b = cut({{11, sib11.data(), 911, 0}}, 40);
  ASSERT_EQ(a.size(), 7u);
  ASSERT_EQ(b.size(), 5u);
  Reassembly r;
  for (size_t i = 0; i < a.size(); i++) {
    r.feed(a[i]);
    if (i < b.size()) r.feed(b[i]);
  }
  EXPECT_EQ(r.completed[umts_sib_sib5], window(sib5));
  EXPECT_EQ(r.completed[umts_sib_sib11], window(sib11));
}

// A block that a capture begins with: its last part has no segments before it and is refused,
// and the SIBs that the block carries whole and the SIB that it starts are filed all the same.
TEST_F(FrameReassembly, OrphanedLastPartsLoseNothingElseOfTheirBlock) {
  // The real SIB1 case seen from its second block: the SIB2 beside the orphan is converted.
  std::string out;
  EXPECT_EQ(feed(fromHex(kSib1Blocks[1]), &out), 1);
  EXPECT_EQ(result->presence_bitmask, bit(umts_sib_sib2));
  EXPECT_EQ(out.find("Invalid sib type"), std::string::npos);  // an orphan is refused silently

  // An orphaned SIB12 ending beside a SIB7 whole and the first 14 bits of the real SIB1; the
  // SIB1 is completed by its real second block.
  const std::vector<uint8_t> sib1 = fromHex(kSib1), sib7 = fromHex(kSib7Hex);
  CompleteSIBshort entry{7, bitString<SIB_Data_variable>(sib7, 11)};
  SystemInformation_BCH_payload_lastAndCompleteAndFirst lacf{{12, 2, bitString<SIB_Data_variable>(sib7, 40)},
                                                             {},
                                                             {1, 2, bitString<SIB_Data_variable>(sib1, 14)}};
  rtxDListNode node;
  append(lacf.completeSIB_List, node, entry);
  const SystemInformation_BCH_payload_lastAndFirst laf{lacf.lastSegmentShort, lacf.firstSegment};
  for (bool withList : {true, false}) {
    resetContext();
    result->presence_bitmask = 0;
    EXPECT_EQ(feed(withList ? encodeBch(7, &lacf, 4) : encodeBch(5, &laf, 4)), 1);
    EXPECT_EQ(result->presence_bitmask, withList ? bit(umts_sib_sib7) : 0);
    EXPECT_EQ(slot(umts_sib_sib1).remaining_segments, 1);
    EXPECT_EQ(feed(fromHex(kSib1Blocks[1])), 1);
    EXPECT_EQ(result->presence_bitmask, (withList ? bit(umts_sib_sib7) : 0) | bit(umts_sib_sib1) | bit(umts_sib_sib2));
    expectSameRecord(&umts_sib_set::sib1, umts_sib_sib1, kSib1);
  }
}

// A block with a SIB11bis schedule of its own: first segment in frame 10 of 64, then SIB_OFF
// so4 and so6, or 2 frames each when the offsets are absent; frames wrap at SIB_REP.
TEST_F(FrameReassembly, Sib11bisSegmentsStandWhereTheScheduleSays) {
  const struct {
    uint32_t posTag, pos, segCount;
    std::vector<uint32_t> offsets;
    uint16_t sfnPrime;
    uint32_t segment;
    bool scheduled;
  } cases[] = {
      {5, 5, 3, {1, 2}, 5, 0, true},   {5, 5, 3, {1, 2}, 37, 0, true},  {5, 5, 3, {1, 2}, 5, 1, false},
      {5, 5, 3, {1, 2}, 7, 1, true},   {5, 5, 3, {1, 2}, 10, 2, true},  {5, 5, 3, {1, 2}, 6, 0, false},
      {5, 5, 3, {1, 2}, 12, 3, false}, {5, 5, 3, {}, 6, 1, true},       {5, 5, 3, {}, 7, 2, true},
      {5, 5, 3, {1}, 8, 2, true},      {3, 7, 2, {1}, 1, 1, true},      {3, 7, 2, {1}, 9, 1, true},
      {11, 2047, 1, {}, 2047, 0, true}, {11, 2047, 1, {}, 1023, 0, false},
  };
  for (const auto& c : cases) {
    umts_ext_sib_type_info_scheduling_info_list list;
    std::memset(&list, 0, sizeof list);
    list.count = 2;
    list.entries[0].extensionSIB_Type = 2;  // SIB15bis, scheduled elsewhere
    list.entries[0].schedulingInfo.sib_Pos.choice_tag = 1;
    umts_scheduling_info& info = list.entries[1].schedulingInfo;
    list.entries[1].extensionSIB_Type = 1;  // SIB11bis
    info.segCount = static_cast<uint8_t>(c.segCount);
    info.sib_Pos.choice_tag = c.posTag;
    if (c.posTag <= 8) info.sib_Pos.u.rep4 = static_cast<uint8_t>(c.pos);
    else info.sib_Pos.u.rep1024 = static_cast<uint16_t>(c.pos);
    info.presence_bitmask = c.offsets.empty() ? 0 : 1;
    info.sib_PosOffsetInfo.count = static_cast<uint32_t>(c.offsets.size());
    std::copy(c.offsets.begin(), c.offsets.end(), info.sib_PosOffsetInfo.entries);
    for (unsigned source = 0; source < umts_schedule_count; source++) {
      resetContext();
      umts_note_sib11bis_schedule(source, &list);
      EXPECT_EQ(umts_sib11bis_scheduled_at(c.sfnPrime, c.segment), c.scheduled)
          << "SFN' " << c.sfnPrime << " segment " << c.segment << " source " << source;
      umts_note_sib11bis_schedule(source, nullptr);  // the block again, without the entry
      EXPECT_EQ(umts_sib11bis_scheduled_at(c.sfnPrime, c.segment), 0);
    }
  }
}

// A cycle whose MIB schedules SIB11bis: the SIB11bis at its place is converted, the same
// bytes one block later are refused. Before any MIB, no extensionType part is filed.
TEST_F(FrameReassembly, MibScheduledSib11bisIsConvertedAtItsPlaceOnly) {
  uint32_t bits = 0;
  const std::vector<uint8_t> sib11bis = minimalSib11bis(&bits);
  std::string out;
  const std::vector<umts_bch_block> early = cut({{31, sib11bis.data(), bits, 0}}, 100);
  ASSERT_EQ(early.size(), 1u);
  EXPECT_EQ(feed(bytesOf(early[0]), &out), 0);
  EXPECT_NE(out.find("check_decode_completeSIB_list:Invalid sib type\n"), std::string::npos);
  EXPECT_EQ(result->presence_bitmask, 0);

  uint32_t mibBits = 0;
  const std::vector<uint8_t> mib = mibScheduling11bis(scheduling(5, 1), &mibBits);  // rep64 at frame 2: SFN' 1, 33, ...
  const std::vector<umts_bch_block> cycle = cut({{0, mib.data(), mibBits, 1}, {31, sib11bis.data(), bits, 0}}, 32);
  ASSERT_EQ(cycle.size(), 2u);
  for (const umts_bch_block& block : cycle) EXPECT_EQ(feed(bytesOf(block)), 1);
  EXPECT_EQ(result->presence_bitmask, bit(umts_sib_mib) | bit(umts_sib_sib11bis));
  EXPECT_EQ(g_umts_ctxt.sib11bis_schedules[umts_schedule_mib].rep, 64);

  result->presence_bitmask = 0;
  EXPECT_EQ(feed(bytesOf(cut({{31, sib11bis.data(), bits, 0}}, 34)[0]), &out), 0);
  EXPECT_NE(out.find("check_decode_completeSIB_list:Invalid sib type\n"), std::string::npos);
  EXPECT_EQ(result->presence_bitmask, 0);
}

// A cycle whose SB1 schedules SIB19 only: the extension SIB at SIB19's place is not taken for
// a SIB11bis, even when its bytes would decode as one.
TEST_F(FrameReassembly, Sb1ScheduledSib19IsNotASib11bis) {
  SysInfoTypeSB1 sb;
  std::memset(&sb, 0, sizeof sb);
  SchedulingInformationSIB ref{{2, {}}, scheduling(5, 3)};
  ref.sib_Type.u.sysInfoType2 = 1;
  rtxDListNode nodes[2];
  append(sb.sib_ReferenceList, nodes[0], ref);
  sb.m = 1;
  sb.v6b0NonCriticalExtensions.m = 1;
  sb.v6b0NonCriticalExtensions.v860NonCriticalExtensions.m = 1;
  SysInfoTypeSB1_v860ext& v860 = sb.v6b0NonCriticalExtensions.v860NonCriticalExtensions.sysInfoTypeSB1_v860ext;
  v860.m = 1;
  ExtSIBTypeInfoSchedulingInfo2 sib19{{1, {}}, scheduling(6, 13), {1, {}}};  // SIB19: rep128 at frame 26
  append(v860.extSIBTypeInfoSchedulingInfo_List, nodes[1], sib19);
  uint32_t sbBits = 0, bits = 0;
  const std::vector<uint8_t> sb1 = encode(asn1PE_UMTS_SysInfoTypeSB1, sb, &sbBits);
  const std::vector<uint8_t> extension = minimalSib11bis(&bits);

  const std::vector<umts_bch_block> cycle = cut({{27, sb1.data(), sbBits, 1}, {31, extension.data(), bits, 0}}, 12);
  ASSERT_EQ(cycle.size(), 2u);
  ASSERT_EQ(cycle[1].sfn_prime, 13);  // frame 26
  EXPECT_EQ(feed(bytesOf(cycle[0])), 1);
  EXPECT_EQ(result->presence_bitmask, bit(umts_sib_sb1));
  std::string out;
  result->presence_bitmask = 0;
  EXPECT_EQ(feed(bytesOf(cycle[1]), &out), 0);
  EXPECT_NE(out.find("check_decode_completeSIB_list:Invalid sib type\n"), std::string::npos);
  EXPECT_EQ(out.find("SysInfoType11bis"), std::string::npos);
  EXPECT_EQ(result->presence_bitmask, 0);
  EXPECT_EQ(slot(umts_sib_sib11bis).buffer, nullptr);
  EXPECT_EQ(g_umts_ctxt.sib11bis_schedules[umts_schedule_sb1].scheduled, 0);

  // The same block with SIB11bis in its v6b0 list, sent whole as an SB2, schedules it there.
  sb.v6b0NonCriticalExtensions.sysInfoTypeSB1_v6b0ext.m = 1;
  ExtSIBTypeInfoSchedulingInfo sib11bis{{1, {}}, scheduling(4, 9, 2, {3}), {1, {}}};  // rep32, 18, 26
  rtxDListNode node;
  append(sb.v6b0NonCriticalExtensions.sysInfoTypeSB1_v6b0ext.extSIBTypeInfoSchedulingInfo_List, node, sib11bis);
  ASSERT_EQ(whole(umts_sib_sb2, encode(asn1PE_UMTS_SysInfoTypeSB1, sb)), 1);
  const umts_sib11bis_schedule& sb2 = g_umts_ctxt.sib11bis_schedules[umts_schedule_sb2];
  EXPECT_EQ(sb2.scheduled, 1);
  EXPECT_EQ(sb2.rep, 32);
  EXPECT_EQ(sb2.seg_count, 2);
  EXPECT_EQ(sb2.frame[0], 18);
  EXPECT_EQ(sb2.frame[1], 26);
  EXPECT_EQ(umts_sib11bis_scheduled_at(13, 1), 1);  // frame 26
  g_umts_ctxt.sib11bis_schedules[umts_schedule_sb2] = umts_sib11bis_schedule{};

  // The real extension block, at SFN 2580: refused as well, until a MIB places SIB11bis there.
  EXPECT_EQ(feed(fromHex(kExtensionBlock), &out), 0);
  EXPECT_NE(out.find("check_decode_first_segment:Invalid sib type\n"), std::string::npos);
  EXPECT_EQ(slot(umts_sib_sib11bis).buffer, nullptr);
  ASSERT_EQ(whole(umts_sib_mib, mibScheduling11bis(scheduling(9, 2580 % 1024 / 2, 7))), 1);  // rep1024, 7 segments
  EXPECT_EQ(feed(fromHex(kExtensionBlock)), 1);
  EXPECT_EQ(slot(umts_sib_sib11bis).total_segments, 7);
  EXPECT_EQ(slot(umts_sib_sib11bis).write_cursor - slot(umts_sib_sib11bis).buffer, 27);
  EXPECT_EQ(slot(umts_sib_sib11bis).write_bit, 6);
}

// Tests of the combined handlers: the list after a last part, the first part after a list.
TEST_F(FrameReassembly, ListsBesideLastAndFirstParts) {
  const std::vector<uint8_t> sib3 = fromHex(kSib3Hex), sib7 = fromHex(kSib7Hex), sib1 = fromHex(kSib1);
  CompleteSIBshort bad{23, bitString<SIB_Data_variable>(sib7, 11)}, good{7, bitString<SIB_Data_variable>(sib7, 11)};
  const LastSegmentShort last{3, 1, bitString<SIB_Data_variable>({0}, 8)};
  const FirstSegmentShort first{1, 2, bitString<SIB_Data_variable>(sib1, 14)};

  // A bad entry after a valid last part: the handler says 0, yet the SIB3 that the last part
  // completed, the valid entry after the bad one and the first part are all filed.
  for (uint32_t t : {6u, 7u}) {
    resetContext();
    result->presence_bitmask = 0;
    quietly(check_decode_first_segment, FirstSegment{3, 2, bitString<SIB_Data_fixed>(sib3, 222)});
    rtxDListNode nodes[2];
    SystemInformation_BCH_payload_lastAndCompleteAndFirst lacf{last, {}, first};
    append(lacf.completeSIB_List, nodes[0], bad);
    append(lacf.completeSIB_List, nodes[1], good);
    const SystemInformation_BCH_payload_lastAndComplete lac{last, lacf.completeSIB_List};
    std::string out;
    EXPECT_EQ(feed(t == 6 ? encodeBch(6, &lac) : encodeBch(7, &lacf), &out), 0) << t;
    const std::string name = t == 6 ? "check_decode_last_and_complete" : "check_decode_last_and_complete_and_first";
    EXPECT_NE(out.find("get_sib_type:No such option available \n" + name + ":Invalid sib type\n"), std::string::npos);
    EXPECT_EQ(result->presence_bitmask, bit(umts_sib_sib3) | bit(umts_sib_sib7)) << t;
    EXPECT_EQ(slot(umts_sib_sib1).total_segments, t == 7 ? 2 : 0) << t;
  }

  // A last part that leaves segments to come goes on into the list and the first part.
  resetContext();
  result->presence_bitmask = 0;
  quietly(check_decode_first_segment, FirstSegment{3, 3, bitString<SIB_Data_fixed>(sib3, 222)});
  SystemInformation_BCH_payload_lastAndCompleteAndFirst pending{last, {}, first};
  rtxDListNode node;
  append(pending.completeSIB_List, node, good);
  EXPECT_EQ(feed(encodeBch(7, &pending)), 1);
  EXPECT_EQ(result->presence_bitmask, bit(umts_sib_sib7));
  EXPECT_EQ(slot(umts_sib_sib3).remaining_segments, 1);
  EXPECT_EQ(slot(umts_sib_sib3).write_cursor - slot(umts_sib_sib3).buffer, 27);  // not moved
  EXPECT_EQ(slot(umts_sib_sib1).remaining_segments, 1);

  // An empty list (which no block can carry) goes on to the first part; alone it is a 0.
  resetContext();
  const SystemInformation_BCH_payload_lastAndCompleteAndFirst emptyLacf{last, {}, first};
  const SystemInformation_BCH_payload_completeAndFirst emptyCaf{{}, first};
  const SystemInformation_BCH_payload_lastAndComplete emptyLac{last, {}};
  EXPECT_EQ(quietly(check_decode_last_and_complete_and_first, emptyLacf), 1);
  EXPECT_EQ(slot(umts_sib_sib1).total_segments, 2);
  resetContext();
  EXPECT_EQ(quietly(check_decode_complete_and_first, emptyCaf), 1);
  EXPECT_EQ(slot(umts_sib_sib1).total_segments, 2);
  EXPECT_EQ(quietly(check_decode_last_and_complete, emptyLac), 0);
  EXPECT_EQ(quietly(check_decode_completeSIB_list, emptyLac.completeSIB_List), 0);
}

// Without a record the segments are filed all the same; a SIB that they complete waits in
// its slot and is converted by the next call that brings a record.
TEST_F(FrameReassembly, NullResultFilesSegmentsAndLeavesCompletedSibsWaiting) {
  const std::vector<uint8_t> sib1 = fromHex(kSib1);
  const FirstSegment first{1, 2, bitString<SIB_Data_fixed>(sib1, 222)};
  std::string out = captureStdout([&] {
    const std::vector<uint8_t> block = encodeBch(2, &first);
    EXPECT_EQ(umts_sib_decoder(block.data(), nullptr, 31), 1);
  });
  EXPECT_EQ(out.rfind("UMTS_BCCH_BCH_Message", 0), 0u);
  EXPECT_EQ(slot(umts_sib_sib1).remaining_segments, 1);

  const LastSegmentShort last{1, 1, bitString<SIB_Data_variable>({0}, 8)};
  BCCH_BCH_Message m;
  std::memset(&m, 0, sizeof m);
  m.message.payload.t = 4;
  m.message.payload.u.lastSegmentShort = const_cast<LastSegmentShort*>(&last);
  out = captureStdout([&] { EXPECT_EQ(umts_check_and_decode_sibs(nullptr, &m, nullptr), 0); });
  EXPECT_EQ(out, "");
  EXPECT_EQ(g_umts_ctxt.request_bitmask, 1u << umts_sib_sib1);
  const uint8_t* waiting = slot(umts_sib_sib1).buffer;
  EXPECT_EQ(decode_system_info_msg(nullptr), 0);
  EXPECT_EQ(g_umts_ctxt.request_bitmask, 1u << umts_sib_sib1);
  EXPECT_EQ(slot(umts_sib_sib1).buffer, waiting);

  EXPECT_EQ(feed(encodeBch(1, nullptr), &out), 0);  // noSegment: nothing of its own
  EXPECT_NE(out.find("Decoded SysInfoType1\n"), std::string::npos);
  EXPECT_EQ(result->presence_bitmask, bit(umts_sib_sib1));
  EXPECT_EQ(g_umts_ctxt.request_bitmask, 0u);
  EXPECT_EQ(decode_system_info_msg(nullptr), 1);  // nothing waits
}

}  // namespace
