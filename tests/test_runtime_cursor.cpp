// The read and write cursors that the generated code runs on, checked against a plain model
// that reads and writes one bit at a time: long sequences of reads and writes of every width
// from every start, across the loads and stores of 8-byte words and the last bytes of a
// buffer, and the failures at its end.
#include <gtest/gtest.h>

#include <random>

#include "runtime_test_util.h"

using rt_test::Bytes;
using rt_test::Ctx;

namespace {

// Random widths 0..maxw, with an occasional run of single bits (presence bits, arrays).
std::vector<uint32_t> widths(std::mt19937& rng, size_t n, uint32_t maxw) {
  std::vector<uint32_t> w(n);
  for (size_t i = 0; i < n; i++) w[i] = rng() % 4 == 0 ? 1 : rng() % (maxw + 1);
  return w;
}

uint64_t modelRead(const Bytes& b, uint64_t pos, uint32_t n) {
  uint64_t v = 0;
  for (uint32_t i = 0; i < n; i++) v = (v << 1) | rt_test::bitAt(b.data(), pos + i);
  return v;
}

void modelWrite(Bytes& b, uint64_t pos, uint64_t v, uint32_t n) {
  for (uint32_t i = 0; i < n; i++) {
    const uint64_t bit = pos + i;
    const uint8_t mask = uint8_t(0x80u >> (bit & 7));
    if ((v >> (n - 1 - i)) & 1u) b[bit >> 3] |= mask;
    else b[bit >> 3] &= uint8_t(~mask);
  }
}

TEST(DecodeCursor, ReadSequencesMatchTheBitsUpToTheEnd) {
  std::mt19937 rng(2511);
  for (uint32_t size = 0; size <= 24; size++) {
    for (int round = 0; round < 40; round++) {
      Bytes buf(size);
      for (auto& x : buf) x = uint8_t(rng());
      Ctx ctx;
      ASSERT_EQ(0, pu_setBuffer(ctx, buf.data(), size, 0));
      const uint64_t end = uint64_t(size) * 8;
      const uint64_t start = end ? rng() % (end + 1) : 0;
      rtxDecCur cur;
      rtxCurStart(&cur, start);
      uint64_t pos = start;
      for (uint32_t n : widths(rng, 80, 32)) {
        SCOPED_TRACE(testing::Message() << "size " << size << " at bit " << pos << " width " << n);
        uint32_t v = 0xDEADBEEF;
        int stat = rtxDecBitsAt(ctx, &cur, n, &v);
        if (pos + n > end) {
          // The end fails the read and leaves the position; a shorter read goes on.
          EXPECT_EQ(RT_ERR_ENDOFBUF, stat);
          EXPECT_EQ(pos, rtxCurPos(&cur));
          continue;
        }
        ASSERT_EQ(0, stat);
        EXPECT_EQ(modelRead(buf, pos, n), v);
        pos += n;
        ASSERT_EQ(pos, rtxCurPos(&cur));
      }
      rtxCurSync(ctx, &cur);
      EXPECT_EQ(pos, rtxBitPos(ctx));
    }
  }
}

TEST(DecodeCursor, ConstrainedReadOutOfRangeTakesNoBits) {
  const Bytes buf = {0xFF, 0x00};
  Ctx ctx;
  pu_setBuffer(ctx, buf.data(), 2, 0);
  rtxDecCur cur;
  rtxCurStart(&cur, 0);
  uint8_t v = 0;
  // 0..9 in 4 bits: 15 is out of range, and the position stays at the value.
  EXPECT_EQ(RT_ERR_CONSVIO, pd_ConsUInt8At(ctx, &cur, &v, 0, 9));
  EXPECT_EQ(0u, rtxCurPos(&cur));
  EXPECT_EQ(0, pd_ConsUInt8At(ctx, &cur, &v, 0, 15));
  EXPECT_EQ(15, v);
}

// Guard bytes on either side of a fixed buffer.
constexpr size_t kGuard = 16;

TEST(EncodeCursor, WriteSequencesMatchTheModelAndStopAtTheEnd) {
  std::mt19937 rng(25331);
  for (uint32_t size = 1; size <= 24; size++) {
    for (int round = 0; round < 40; round++) {
      SCOPED_TRACE(testing::Message() << "size " << size << " round " << round);
      Bytes area(size + 2 * kGuard, 0xA5);
      uint8_t* data = area.data() + kGuard;
      Ctx ctx;
      ASSERT_EQ(0, rtxInitContextBuffer(ctx, data, size));
      Bytes model(size, 0);
      // Some bits through the context first: the cursor keeps them.
      uint64_t pos = rng() % (uint64_t(size) * 8 < 13 ? uint64_t(size) * 8 : 13);
      const uint64_t lead = rng() & ((uint64_t(1) << pos) - 1);
      ASSERT_EQ(0, rtxEncBitsFast(ctx, lead, uint32_t(pos)));
      modelWrite(model, 0, lead, uint32_t(pos));
      rtxEncCur cur;
      rtxEncCurStart(ctx, &cur);
      for (uint32_t n : widths(rng, 60, 57)) {
        const uint64_t v = (uint64_t(rng()) << 32) | rng();
        int stat = rtxEncBitsAt(ctx, &cur, v, n);
        if (pos + n > uint64_t(size) * 8) {
          EXPECT_EQ(RT_ERR_BUFOVFLW, stat) << "width " << n << " at bit " << pos;
          continue;
        }
        ASSERT_EQ(0, stat) << "width " << n << " at bit " << pos;
        modelWrite(model, pos, n ? v & (~uint64_t(0) >> (64 - n)) : 0, n);
        pos += n;
      }
      rtxEncCurSync(ctx, &cur);
      EXPECT_EQ(pos, rtxBitPos(ctx));
      EXPECT_EQ((pos + 7) / 8, pu_getMsgLen(ctx));
      // Every bit written is the model's, the rest of the buffer is zero, the guards untouched.
      EXPECT_EQ(model, Bytes(data, data + size));
      for (size_t i = 0; i < kGuard; i++) {
        EXPECT_EQ(0xA5, area[i]);
        EXPECT_EQ(0xA5, area[area.size() - 1 - i]);
      }
    }
  }
}

TEST(EncodeCursor, GrowingBufferKeepsEveryBit) {
  std::mt19937 rng(7);
  Ctx ctx;
  ASSERT_EQ(0, rtxInitContextBuffer(ctx, nullptr, 0));
  Bytes model(40000, 0);
  uint64_t pos = 0;
  rtxEncCur cur;
  rtxEncCurStart(ctx, &cur);
  for (uint32_t n : widths(rng, 5000, 57)) {
    const uint64_t v = ((uint64_t(rng()) << 32) | rng()) & (n ? ~uint64_t(0) >> (64 - n) : 0);
    ASSERT_EQ(0, rtxEncBitsAt(ctx, &cur, v, n));
    modelWrite(model, pos, v, n);
    pos += n;
  }
  rtxEncCurSync(ctx, &cur);
  ASSERT_EQ(pos, rtxBitPos(ctx));
  model.resize((pos + 7) / 8);
  EXPECT_EQ(model, Bytes(rtxEncGetBuffer(ctx), rtxEncGetBuffer(ctx) + model.size()));
}

// Bounded strings through both cursors at every bit offset: the bytes are those of the model,
// a buffer one byte short refuses the string and writes nothing of it.
TEST(StringCursor, BoundedStringsAtEveryOffsetBothWays) {
  std::mt19937 rng(99);
  for (uint32_t unit : {1u, 8u}) {
    for (uint32_t offset = 0; offset < 8; offset++) {
      for (uint32_t count = 0; count <= (unit == 1 ? 300u : 40u); count += (unit == 1 ? 7u : 1u)) {
        SCOPED_TRACE(testing::Message() << "unit " << unit << " offset " << offset << " count " << count);
        const uint32_t upper = unit == 1 ? 300 : 40;
        Bytes value((count * unit + 7) / 8);
        for (auto& x : value) x = uint8_t(rng());
        if ((count * unit) & 7) value.back() &= uint8_t(0xFF << (8 - ((count * unit) & 7)));
        const uint32_t k = rtxRangeBits(upper);
        const uint64_t total = offset + k + uint64_t(count) * unit;
        Bytes model((total + 7) / 8, 0);
        modelWrite(model, 0, 0x55 & ((1u << offset) - 1), offset);
        modelWrite(model, offset, count, k);
        for (uint64_t i = 0; i < uint64_t(count) * unit; i++) modelWrite(model, offset + k + i, rt_test::bitAt(value.data(), i), 1);

        for (int shortBy = 0; shortBy <= 1; shortBy++) {
          if (shortBy && (model.size() - 1) * 8 < offset) continue;  // no room even for the lead bits
          Bytes out(model.size() - shortBy + 8, 0xEE);
          Ctx ctx;
          rtxInitContextBuffer(ctx, out.data(), uint32_t(model.size() - shortBy));
          rtxEncCur cur;
          rtxEncCurStart(ctx, &cur);
          ASSERT_EQ(0, rtxEncBitsAt(ctx, &cur, 0x55 & ((1u << offset) - 1), offset));
          rt_test::setConstraint(ctx, 0, upper);
          int stat = unit == 1 ? pe_BitStringAt(ctx, &cur, count, value.data())
                               : pe_OctetStringAt(ctx, &cur, count, value.data());
          rtxEncCurSync(ctx, &cur);
          if (shortBy) {
            EXPECT_EQ(RT_ERR_BUFOVFLW, stat);
            EXPECT_EQ(offset, rtxBitPos(ctx));
            continue;
          }
          ASSERT_EQ(0, stat);
          ASSERT_EQ(total, rtxBitPos(ctx));
          EXPECT_EQ(model, Bytes(out.begin(), out.begin() + model.size()));
          EXPECT_EQ(0xEE, out[model.size()]);

          // And back, into storage of exactly the string's size.
          Ctx dctx;
          pu_setBuffer(dctx, model.data(), uint32_t(model.size()), 0);
          rtxDecCur dcur;
          rtxCurStart(&dcur, offset);
          rt_test::setConstraint(dctx, 0, upper);
          Bytes back(value.size() + 1, 0xEE);
          uint32_t got = 0;
          stat = unit == 1 ? pd_BitStringAt(dctx, &dcur, &got, back.data(), uint32_t(value.size()))
                           : pd_OctetStringAt(dctx, &dcur, &got, back.data(), uint32_t(value.size()));
          ASSERT_EQ(0, stat);
          EXPECT_EQ(count, got);
          EXPECT_EQ(total, rtxCurPos(&dcur));
          EXPECT_EQ(value, Bytes(back.begin(), back.end() - 1));
          EXPECT_EQ(0xEE, back.back());
        }
      }
    }
  }
}

}  // namespace
