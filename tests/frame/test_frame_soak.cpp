// A long run of random and mutated transport blocks: the slots stay sound and memory flat.
#include <fcntl.h>
#include <malloc.h>

#include <random>

#include "frame_test_util.h"

using namespace frametest;

namespace {

constexpr int kBlocks = 200000;

std::vector<std::vector<uint8_t>> seedBlocks() {
  const std::vector<uint8_t> x = filled(0x5A), mib = MibBuilder().encode();
  const FirstSegment fs{3, 3, bitString<SIB_Data_fixed>(x, 222)};
  const SubsequentSegment ss{3, 1, bitString<SIB_Data_fixed>(x, 222)};
  const LastSegmentShort ls{3, 2, bitString<SIB_Data_variable>(x, 100)};
  CompleteSIBshort entries[2] = {{0, bitString<SIB_Data_variable>(mib, 64)}, {7, bitString<SIB_Data_variable>(fromHex(kSib7Hex), 11)}};
  SystemInformation_BCH_payload_lastAndCompleteAndFirst lacf{ls, {}, {31, 2, bitString<SIB_Data_variable>(x, 40)}};
  rtxDListNode nodes[2];
  for (int i = 0; i < 2; i++) append(lacf.completeSIB_List, nodes[i], entries[i]);
  return {fromHex("a143f686e52a22282f36928cc1852026d2519830afacda4a330614909b4944"), encodeBch(2, &fs),
          encodeBch(3, &ss), encodeBch(4, &ls), encodeBch(7, &lacf)};
}

// Cursors stay within the first segment's buffer: a first segment and at most 15 more, of
// 222 bits each.
void expectSoundSlots() {
  ASSERT_EQ(g_umts_ctxt.request_bitmask & ~0xFFFu, 0u);
  for (const umts_sib_slot& s : g_umts_ctxt.slots) {
    ASSERT_LT(s.write_bit, 8);
    if (s.write_cursor == nullptr) continue;
    ASSERT_NE(s.buffer, nullptr);
    ASSERT_GE(s.write_cursor - s.buffer, 0);
    ASSERT_LE(8 * (s.write_cursor - s.buffer) + s.write_bit, 16 * 222);
  }
}

class FrameSoak : public FrameTest {};

TEST_F(FrameSoak, RandomAndMutatedBlocksKeepTheSlotsSoundAndMemoryFlat) {
  zvtLogLevelThreshold = 0;
  const std::vector<std::vector<uint8_t>> seeds = seedBlocks();
  std::mt19937 rng(25331);
  size_t heap_at_start = 0;
  std::fflush(stdout);
  const int saved = dup(1), null_fd = open("/dev/null", O_WRONLY);
  dup2(null_fd, 1);
  for (int i = 0; i < kBlocks && !HasFatalFailure(); i++) {
    if (i == 1000) heap_at_start = mallinfo2().uordblks;
    std::vector<uint8_t> block;
    if (rng() % 8 == 0) {
      block.resize(1 + rng() % 40);
      for (auto& b : block) b = static_cast<uint8_t>(rng());
    } else {
      block = seeds[rng() % seeds.size()];
      for (uint32_t flips = rng() % 4; flips > 0; flips--) block[rng() % block.size()] ^= static_cast<uint8_t>(1u << rng() % 8);
      if (rng() % 8 == 0) block.resize(rng() % (block.size() + 1));
    }
    umts_sib_decoder(block.empty() ? nullptr : block.data(), result, static_cast<uint32_t>(block.size()));
    ASSERT_EQ(g_umts_ctxt.request_bitmask, 0u);
    expectSoundSlots();
    if (i % 64 == 0) {  // a whole SIB now and then, also over slots that are collecting
      std::vector<uint8_t> bytes(1 + rng() % 64);
      for (auto& b : bytes) b = static_cast<uint8_t>(rng());
      umts_sib_msg_decoder(static_cast<umts_sib_id>(rng() % 13), bytes.data(), result, static_cast<uint32_t>(bytes.size()));
      expectSoundSlots();
    }
  }
  std::fflush(stdout);
  rtxPrintFlush();
  dup2(saved, 1);
  close(saved);
  close(null_fd);
  // Nothing outlives a call but the twelve slot buffers (whole SIBs reach 2048 bytes).
  EXPECT_LE(mallinfo2().uordblks, heap_at_start + 12 * (2048 + 64));
}

}  // namespace
