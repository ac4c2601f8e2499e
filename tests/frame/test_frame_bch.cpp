// The BCH entry and segment collection: slots, indices, bit joins and the handlers' results.
#include <algorithm>

#include "frame_test_util.h"

using namespace frametest;

namespace {

using Fixed = SIB_Data_fixed;
using Variable = SIB_Data_variable;
const umts_sib_slot& slot(umts_sib_id id) { return g_umts_ctxt.slots[id]; }
size_t cursor(umts_sib_id id) { return static_cast<size_t>(slot(id).write_cursor - slot(id).buffer); }
// The write position in bits.
size_t position(umts_sib_id id) { return 8 * cursor(id) + slot(id).write_bit; }
bool empty(umts_sib_id id) {
  const umts_sib_slot& s = slot(id);
  return s.buffer == nullptr && s.write_cursor == nullptr && s.total_segments == 0 && s.remaining_segments == 0 &&
         s.write_bit == 0;
}
std::vector<uint8_t> bytesOf(umts_sib_id id, size_t n) { return {slot(id).buffer, slot(id).buffer + n}; }

class FrameBch : public FrameTest {};

// A segment adds its bits; a bit string's count is taken within its octets as the slots count
// them (a count of 2048 gives no octet, 2049 one).
TEST_F(FrameBch, SegmentsAddTheirBits) {
  const uint32_t cases[][3] = {{222, 222, 28}, {214, 214, 27}, {216, 216, 27}, {8, 8, 1},
                               {1, 1, 1},      {2048, 0, 0},    {2049, 8, 1},   {2055, 8, 1}};
  for (const auto& c : cases) {
    resetContext();
    EXPECT_EQ(quietly(check_decode_first_segment, FirstSegment{0, 2, bitString<Fixed>(filled(0xA5), c[0])}), 1);
    EXPECT_EQ(position(umts_sib_mib), c[1]) << c[0];
    const uint8_t* b = slot(umts_sib_mib).buffer;
    EXPECT_EQ(UMTS_SIB_DECODE_LENGTH - std::count(b, b + UMTS_SIB_DECODE_LENGTH, 0), c[2]) << c[0];
  }
  // The 226 bits of a complete SIB give 29 octets.
  EXPECT_EQ(quietly(check_decode_complete_SIB, CompleteSIB{3, bitString<CompleteSIB_sib_Data_fixed>(filled(0xFF), 226)}), 1);
  EXPECT_EQ(bytesOf(umts_sib_sib3, 30).back(), 0);
  EXPECT_EQ(slot(umts_sib_sib3).buffer[28], 0xC0);
  EXPECT_EQ(g_umts_ctxt.request_bitmask, 1u << umts_sib_sib3);
}

// Segments join bit by bit, as the cell cut the SIB: the second 222-bit segment starts at bit
// 222, in the last octet of the first (a join of whole octets would start it at octet 28 and
// move every later bit by two places).
TEST_F(FrameBch, SubsequentSegmentsFollowBitByBitWhileTheIndexFollows) {
  EXPECT_EQ(quietly(check_decode_first_segment, FirstSegment{3, 5, bitString<Fixed>(filled(0x11), 222)}), 1);
  EXPECT_EQ(quietly(check_decode_subsequent_segment, SubsequentSegment{3, 1, bitString<Fixed>(filled(0xFF), 222)}), 1);
  EXPECT_EQ(slot(umts_sib_sib3).remaining_segments, 3);
  EXPECT_EQ(position(umts_sib_sib3), 444u);
  const std::vector<uint8_t> b = bytesOf(umts_sib_sib3, 57);
  EXPECT_EQ(b[26], 0x11);
  EXPECT_EQ(b[27], 0x13);  // six bits of 0x11, then the first two of the next segment
  EXPECT_EQ(b[28], 0xFF);
  EXPECT_EQ(b[54], 0xFF);
  EXPECT_EQ(b[55], 0xF0);
  EXPECT_EQ(b[56], 0x00);
  // An index that does not follow empties the slot, silently; so does one with no collection.
  std::string out = captureStdout([] {
    const SubsequentSegment wrong{3, 3, bitString<Fixed>(filled(0x22), 222)};
    EXPECT_EQ(check_decode_subsequent_segment(&wrong), 0);
    const LastSegment orphan{2, 1, bitString<Fixed>(filled(0x22), 222)};
    EXPECT_EQ(check_decode_last_segment(&orphan), 0);
  });
  EXPECT_EQ(out, "");
  EXPECT_TRUE(empty(umts_sib_sib3));
  EXPECT_TRUE(empty(umts_sib_sib2));
}

// A last segment that leaves segments outstanding keeps the write position, so the next
// overwrites its bits; after seg_Count 1 one more last segment passes with a wrapped count.
TEST_F(FrameBch, LastSegmentsKeepTheCursorAndTheCountWraps) {
  quietly(check_decode_first_segment, FirstSegment{3, 3, bitString<Fixed>(filled(0x11), 222)});
  EXPECT_EQ(quietly(check_decode_last_segment_short, LastSegmentShort{3, 1, bitString<Variable>(filled(0x22), 16)}), 0);
  EXPECT_EQ(position(umts_sib_sib3), 222u);
  EXPECT_EQ(quietly(check_decode_last_segment_short, LastSegmentShort{3, 2, bitString<Variable>(filled(0x33), 8)}), 1);
  // 0x33 from bit 222 over the bits of 0x2222, of which 0x88 of the second octet stays.
  EXPECT_EQ(bytesOf(umts_sib_sib3, 30), [] { auto v = filled(0x11); v.resize(30); v[27] = 0x10; v[28] = 0xCC; v[29] = 0x88; return v; }());
  EXPECT_EQ(g_umts_ctxt.request_bitmask, 1u << umts_sib_sib3);

  const LastSegment last{0, 1, bitString<Fixed>(filled(0x44), 222)};
  quietly(check_decode_first_segment, FirstSegment{0, 1, bitString<Fixed>(filled(0x11), 222)});
  EXPECT_EQ(quietly(check_decode_last_segment, last), 0);
  EXPECT_EQ(slot(umts_sib_mib).remaining_segments, 255);
  EXPECT_EQ(slot(umts_sib_mib).buffer[28], 0x11);  // within the slot's buffer: 0x44 two bits on
  EXPECT_EQ(g_umts_ctxt.request_bitmask, 1u << umts_sib_sib3);
  EXPECT_EQ(quietly(check_decode_last_segment, last), 0);
  EXPECT_TRUE(empty(umts_sib_mib));
}

// A complete SIB over a collection under way releases the collection's buffer and detaches
// its cursor: the collection still counts its segments, but writes nothing, and the complete
// SIB's octets are what gets converted. Both entries do so.
TEST_F(FrameBch, CompleteSibOverACollectionKeepsItsOctets) {
  const std::vector<uint8_t> sib3 = fromHex(kSib3Hex);
  for (bool bch : {true, false}) {
    resetContext();
    quietly(check_decode_first_segment, FirstSegment{3, 3, bitString<Fixed>(filled(0x11), 222)});
    if (bch) {
      EXPECT_EQ(quietly(check_decode_complete_SIB, CompleteSIB{3, bitString<CompleteSIB_sib_Data_fixed>(sib3, 226)}), 1);
    } else {
      g_umts_ctxt.request_bitmask = 1u << umts_sib_mib;  // over an empty slot: the pass stops there
      EXPECT_EQ(whole(umts_sib_sib3, sib3), 0);
    }
    EXPECT_EQ(slot(umts_sib_sib3).write_cursor, nullptr);
    EXPECT_EQ(slot(umts_sib_sib3).write_bit, 0);
    EXPECT_EQ(quietly(check_decode_subsequent_segment, SubsequentSegment{3, 1, bitString<Fixed>(filled(0x22), 222)}), 1);
    EXPECT_EQ(quietly(check_decode_last_segment, LastSegment{3, 2, bitString<Fixed>(filled(0x33), 222)}), 1);
    EXPECT_EQ(bytesOf(umts_sib_sib3, UMTS_SIB_DECODE_LENGTH), [&] { auto v = sib3; v.resize(UMTS_SIB_DECODE_LENGTH); return v; }());
    std::string out = captureStdout([&] { EXPECT_EQ(decode_system_info_msg(result), 1); });
    EXPECT_NE(out.find("Decoded SysInfoType3\n"), std::string::npos);
  }
}

// Every handler names itself when a segment's SIB type is not kept, after get_sib_type.
TEST_F(FrameBch, UnsupportedSibTypeIsRefusedWithTheHandlersMessage) {
  const std::vector<uint8_t> x = filled(0x11);
  const LastSegmentShort lss{4, 1, bitString<Variable>(x, 8)};
  const FirstSegmentShort fss{6, 2, bitString<Variable>(x, 8)};
  CompleteSIBshort sib16{23, bitString<Variable>(x, 8)};
  CompleteSIB_List list;
  rtxDListInit(&list);
  rtxDListNode node;
  append(list, node, sib16);
  const FirstSegment fs{4, 2, bitString<Fixed>(x, 222)};
  const SubsequentSegment ss{4, 1, bitString<Fixed>(x, 222)};
  const LastSegment ls{4, 1, bitString<Fixed>(x, 222)};
  const SystemInformation_BCH_payload_lastAndFirst laf{lss, fss};
  const SystemInformation_BCH_payload_lastAndComplete lac{lss, list};
  const SystemInformation_BCH_payload_lastAndCompleteAndFirst lacf{lss, list, fss};
  const SystemInformation_BCH_payload_completeAndFirst caf{list, fss};
  const CompleteSIB cs{6, bitString<CompleteSIB_sib_Data_fixed>(x, 226)};
  const struct {
    uint32_t t;
    const void* alternative;
    const char* message;
  } cases[] = {
      {2, &fs, "check_decode_first_segment:Invalid sib type"},
      {3, &ss, "check_decode_subsequent_segment:Invalid sib type"},
      {4, &lss, "check_decode_last_segment_short:Invalid sib type"},
      {5, &laf, "check_decode_last_and_first:Invalid sib type"},
      {6, &lac, "check_decode_last_and_complete:Invalid sib type"},
      {7, &lacf, "check_decode_last_and_complete_and_first:Invalid sib type"},
      {8, &list, "check_decode_completeSIB_list:Invalid sib type"},
      {9, &caf, "check_decode_complete_and_first:Invalid sib type"},
      {10, &cs, "check_decode_complete_SIB:invalid sib type"},
      {11, &ls, "check_decode_last_segment:Invalid sib type"},
  };
  for (const auto& c : cases) {
    std::string out;
    EXPECT_EQ(feed(encodeBch(c.t, c.alternative), &out), 0) << c.t;
    const std::string want = std::string("get_sib_type:No such option available \n") + c.message + "\n";
    EXPECT_EQ(out.substr(out.size() - std::min(out.size(), want.size())), want) << c.t;
    EXPECT_EQ(g_umts_ctxt.request_bitmask | result->presence_bitmask, 0u);
  }
}

// A list's last entry decides its result; what it marked is converted either way. The SIBs
// of one block are converted in slot order, and failed passes are followed by others until
// no request is left, the entry reporting the first.
TEST_F(FrameBch, CompleteListsAreConvertedInSlotOrderWhateverTheResult) {
  uint32_t bits = 0;
  const std::vector<uint8_t> mib = MibBuilder().encode(&bits), junk = filled(0x11);
  const std::vector<uint8_t> sib7 = fromHex(kSib7Hex), sib3 = fromHex(kSib3Hex), bad_mib = {0x03, 0xC0};
  const struct {
    std::vector<CompleteSIBshort> entries;
    uint8_t ret;
    uint16_t presence;
  } cases[] = {
      {{{4, bitString<Variable>(junk, 8)}, {0, bitString<Variable>(mib, bits)}}, 1, 1},
      {{{0, bitString<Variable>(mib, bits)}, {4, bitString<Variable>(junk, 8)}}, 0, 1},
      {{{7, bitString<Variable>(sib7, 11)}, {0, bitString<Variable>(bad_mib, 16)}, {3, bitString<Variable>(sib3, 65)}},
       0, (1u << umts_sib_sib3) | (1u << umts_sib_sib7)},
  };
  for (auto c : cases) {
    resetContext();
    result->presence_bitmask = 0;
    CompleteSIB_List list;
    rtxDListInit(&list);
    rtxDListNode nodes[3];
    for (size_t i = 0; i < c.entries.size(); i++) append(list, nodes[i], c.entries[i]);
    std::string out;
    EXPECT_EQ(feed(encodeBch(8, &list), &out), c.ret);
    EXPECT_EQ(result->presence_bitmask, c.presence);
    EXPECT_EQ(g_umts_ctxt.request_bitmask, 0u);
    for (const auto& s : g_umts_ctxt.slots) EXPECT_EQ(s.buffer, nullptr);
    if (c.presence != 1) {
      EXPECT_LT(out.find("Decoded SysInfoType3\n"), out.find("Decoded SysInfoType7\n"));
    }
  }
  EXPECT_TRUE(logged("2:decode_system_info_msg:umts_convert_mib failed!"));
}

TEST_F(FrameBch, BlocksWithoutSegmentsOrUndecodableConvertNothing) {
  for (uint32_t t : {1u, 12u, 16u}) {
    std::string out;
    EXPECT_EQ(feed(encodeBch(t, nullptr), &out), 0);
    EXPECT_EQ(out.find("No system info provided\n") != std::string::npos, t == 1) << t;
  }
  for (uint32_t t : {0u, 17u}) {
    BCCH_BCH_Message m;
    std::memset(&m, 0, sizeof m);
    m.message.payload.t = t;
    uint8_t ret = 1;
    const std::string out = captureStdout([&] { ret = umts_check_and_decode_sibs(nullptr, &m, result); });
    EXPECT_EQ(ret, 0);
    EXPECT_EQ(out, "umts_check_and_decode_sibs:Invalid Option recived as asn_decoded_sibs->message.payload.t");
  }
  std::string out;
  EXPECT_EQ(feed({0xA1}, &out), 0);
  EXPECT_EQ(out, "Can't decode BCH: -2");
  out = captureStdout([&] { EXPECT_EQ(umts_sib_decoder(nullptr, result, 31), 0); });
  EXPECT_EQ(out, "Can't decode BCH: -2");
  EXPECT_EQ(result->presence_bitmask, 0);
}

}  // namespace
