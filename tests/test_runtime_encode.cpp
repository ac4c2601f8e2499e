// Bit writer: output compared with hand-computed PER bytes, buffer growth and overflow,
// the zero-beyond-position invariant, fragmentation, and seeded encode/decode round trips.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "runtime_test_util.h"

using namespace rt_test;

namespace {

Bytes output(rtxContext* ctx) {
  const uint8_t* p = rtxEncGetBuffer(ctx);
  return Bytes(p, p + pu_getMsgLen(ctx));
}

// Every bit of the buffer past the write position must be zero.
void expectZeroBeyondPosition(rtxContext* ctx) {
  const uint64_t pos = rtxBitPos(ctx);
  for (uint64_t i = pos; i < uint64_t(ctx->buffer_size) * 8; i++)
    ASSERT_EQ(0u, bitAt(ctx->buffer_data, i)) << "bit " << i << " past " << pos;
}

TEST(EncodeInt, HandVectors) {
  for (const IntVector& v : intVectors()) {
    SCOPED_TRACE(testing::Message() << v.lower << ".." << v.upper << " value " << v.value);
    Ctx ctx;
    ASSERT_EQ(0, rtxInitContextBuffer(ctx, nullptr, 0));
    const int stat = v.lower < 0 ? pe_ConsInt64(ctx, v.value, v.lower, v.upper)
                                 : pe_ConsUInt64(ctx, uint64_t(v.value), uint64_t(v.lower), uint64_t(v.upper));
    ASSERT_EQ(0, stat);
    EXPECT_EQ(v.nbits, rtxBitPos(ctx));
    EXPECT_EQ(v.bytes, output(ctx));
  }
}

TEST(EncodeInt, WideRangesAndOutOfRange) {
  Ctx ctx;
  rtxInitContextBuffer(ctx, nullptr, 0);
  EXPECT_EQ(RT_ERR_CONSVIO, pe_ConsUInt64(ctx, 10, 0, 9));
  EXPECT_EQ(RT_ERR_CONSVIO, pe_ConsUInt64(ctx, 0, 1, 256));
  EXPECT_EQ(RT_ERR_CONSVIO, pe_ConsInt64(ctx, -51, -50, 33));
  EXPECT_EQ(RT_ERR_CONSVIO, pe_ConsInt64(ctx, 34, -50, 33));
  EXPECT_EQ(RT_ERR_CONSVIO, pe_ConsUInt64Slow(ctx, 5, 6, ~0ull));
  EXPECT_EQ(0u, rtxBitPos(ctx));

  ASSERT_EQ(0, pe_ConsUInt64(ctx, 0x0123456789ull, 0, 1ull << 40));  // 41 bits
  EXPECT_EQ((Bytes{0x00, 0x91, 0xA2, 0xB3, 0xC4, 0x80}), output(ctx));

  rtxInitContextBuffer(ctx, nullptr, 0);
  ASSERT_EQ(0, rtxEncBits(ctx, 1, 1));
  ASSERT_EQ(0, pe_ConsUInt64(ctx, 0x0123456789ABCDEFull, 0, ~0ull));  // 64 bits after a 1
  EXPECT_EQ((Bytes{0x80, 0x91, 0xA2, 0xB3, 0xC4, 0xD5, 0xE6, 0xF7, 0x80}), output(ctx));
  ASSERT_EQ(0, pe_ConsInt64(ctx, INT64_MIN + 3, INT64_MIN, INT64_MAX));
  EXPECT_EQ(65u + 64u, rtxBitPos(ctx));
  EXPECT_EQ(RT_ERR_INVPARAM, rtxEncBits(ctx, 0, 33));
}

TEST(EncodeLength, HandVectorsAndFailures) {
  for (const LengthVector& v : lengthVectors()) {
    Ctx ctx;
    rtxInitContextBuffer(ctx, nullptr, 0);
    setConstraint(ctx, v.lower, v.upper);
    ASSERT_EQ(int(v.count), pe_Length(ctx, v.count));
    EXPECT_EQ(v.nbits, rtxBitPos(ctx));
    EXPECT_EQ(v.bytes, output(ctx)) << v.lower << ".." << v.upper << " count " << v.count;
  }
  Ctx ctx;
  rtxInitContextBuffer(ctx, nullptr, 0);
  setConstraint(ctx, 1, 32);
  EXPECT_EQ(RT_ERR_CONSVIO, pe_Length(ctx, 0));
  EXPECT_EQ(RT_ERR_CONSVIO, pe_Length(ctx, 33));
  setConstraint(ctx, 0, 100000);
  EXPECT_EQ(RT_ERR_BADLEN, pe_Length(ctx, 16384));  // would need fragments
  EXPECT_EQ(RT_ERR_CONSVIO, pe_Length(ctx, 100001));
  EXPECT_EQ(0u, rtxBitPos(ctx));
}

TEST(EncodeString, HandVectors) {
  for (const StringVector& v : stringVectors()) {
    SCOPED_TRACE(testing::Message() << (v.octets ? "octets " : "bits ") << v.lower << ".." << v.upper);
    Bytes src = v.content;  // with ones past the last bit: they must not be copied
    if (!v.octets && v.count % 8) src.back() |= uint8_t(0xFF >> (v.count % 8));
    Bytes want(v.bytes.begin(), v.bytes.begin() + (v.nbits + 7) / 8);
    if (v.nbits % 8) want.back() &= uint8_t(0xFF << (8 - v.nbits % 8));
    Ctx ctx;
    rtxInitContextBuffer(ctx, nullptr, 0);
    setConstraint(ctx, v.lower, v.upper);
    ASSERT_EQ(0, v.octets ? pe_OctetString(ctx, v.count, src.data()) : pe_BitString(ctx, v.count, src.data()));
    EXPECT_EQ(v.nbits, rtxBitPos(ctx));
    EXPECT_EQ(want, output(ctx));
  }
}

TEST(EncodeString, OutsideTheBounds) {
  const uint8_t abc[] = {0xAA, 0xBB, 0xCC};
  Ctx ctx;
  rtxInitContextBuffer(ctx, nullptr, 0);
  setConstraint(ctx, 1, 8);
  EXPECT_EQ(RT_ERR_CONSVIO, pe_OctetString(ctx, 0, abc));
  EXPECT_EQ(RT_ERR_CONSVIO, pe_OctetString(ctx, 9, abc));
  setConstraint(ctx, 28, 28);
  EXPECT_EQ(RT_ERR_CONSVIO, pe_BitString(ctx, 27, abc));
  EXPECT_EQ(0u, rtxBitPos(ctx));
}

TEST(EncodeString, FragmentedOctets) {
  const uint32_t n = 16384 * 5 + 300;  // 64K, 16K, then 300 = 0x812C
  const Bytes data = pattern(n, 5);
  Ctx ctx;
  rtxInitContextBuffer(ctx, nullptr, 0);
  ASSERT_EQ(0, rtxEncBits(ctx, 0x5, 3));  // start unaligned
  setConstraint(ctx, 0, 0xFFFFFFFFu);
  ASSERT_EQ(0, pe_OctetString(ctx, n, data.data()));
  EXPECT_EQ(3u + 32 + n * 8, rtxBitPos(ctx));
  const Bytes out = output(ctx);
  auto byteAt = [&](uint64_t bit) {
    uint32_t v = 0;
    for (int i = 0; i < 8; i++) v = (v << 1) | bitAt(out.data(), bit + i);
    return v;
  };
  EXPECT_EQ(0xC4u, byteAt(3));
  EXPECT_EQ(0xC1u, byteAt(3 + 8 + 65536 * 8));
  EXPECT_EQ(0x81u, byteAt(3 + 16 + 81920 * 8));
  EXPECT_EQ(0x2Cu, byteAt(3 + 24 + 81920 * 8));

  Ctx dec;
  pu_setBuffer(dec, out.data(), uint32_t(out.size()), 0);
  uint32_t prefix;
  rtxDecBits(dec, &prefix, 3);
  rtxDynOctStr os{};
  ASSERT_EQ(0, pd_DynOctetString(dec, &os));
  ASSERT_EQ(n, os.numocts);
  EXPECT_TRUE(sameBytes(data.data(), os.data, n));
  EXPECT_EQ(rtxBitPos(ctx), rtxBitPos(dec));

  // A multiple of 16K ends with an empty final part.
  rtxInitContextBuffer(ctx, nullptr, 0);
  ASSERT_EQ(0, pe_OctetString(ctx, 32768, data.data()));
  EXPECT_EQ(0xC2, rtxEncGetBuffer(ctx)[0]);
  EXPECT_EQ(0x00, rtxEncGetBuffer(ctx)[1 + 32768]);
  EXPECT_EQ(1u + 32768 + 1, pu_getMsgLen(ctx));
}

TEST(EncodeBuffer, FixedBufferOverflow) {
  uint8_t area[8];
  std::memset(area, 0xEE, sizeof area);
  Ctx ctx;
  ASSERT_EQ(0, rtxInitContextBuffer(ctx, area, 2));
  EXPECT_EQ((Bytes{0, 0, 0xEE}), Bytes(area, area + 3));  // zeroed, and no further
  ASSERT_EQ(0, rtxEncBits(ctx, 0xABC, 12));
  EXPECT_EQ(RT_ERR_BUFOVFLW, rtxEncBits(ctx, 0x1F, 5));
  const uint8_t two[] = {1, 2};
  setConstraint(ctx, 2, 2);
  EXPECT_EQ(RT_ERR_BUFOVFLW, pe_OctetString(ctx, 2, two));
  EXPECT_EQ(RT_ERR_BUFOVFLW, pe_ConsUInt64Slow(ctx, 1, 0, ~0ull));
  EXPECT_EQ(12u, rtxBitPos(ctx));
  ASSERT_EQ(0, rtxEncBits(ctx, 0x9, 4));
  EXPECT_EQ(RT_ERR_BUFOVFLW, rtxEncBit(ctx, 1));
  EXPECT_EQ((Bytes{0xAB, 0xC9}), output(ctx));
  for (int i = 2; i < 8; i++) EXPECT_EQ(0xEE, area[i]) << i;

  // A larger buffer is filled with 64-bit windows up to its end, and no further.
  Bytes big(64 + 16, 0xEE);
  ASSERT_EQ(0, rtxInitContextBuffer(ctx, big.data(), 64));
  uint32_t written = 0;
  while (rtxEncBits(ctx, 0x5, 3) == 0) written += 3;
  EXPECT_EQ(510u, written);
  for (size_t i = 64; i < big.size(); i++) EXPECT_EQ(0xEE, big[i]);
  for (uint32_t i = 0; i < written; i++) ASSERT_EQ(i % 3 != 1, bitAt(big.data(), i) == 1) << i;
}

TEST(EncodeBuffer, DynamicBufferGrowsAndKeepsContents) {
  Ctx ctx;
  ASSERT_EQ(0, rtxInitContextBuffer(ctx, nullptr, 0));
  EXPECT_EQ(0u, pu_getMsgLen(ctx));
  rtxEncBit(ctx, 1);
  EXPECT_EQ(1u, pu_getMsgLen(ctx));
  for (uint32_t i = 0; i < 20000; i++) {
    ASSERT_EQ(0, rtxEncBits(ctx, i & 0xFFFF, 17));
    if (i % 1000 == 0) {  // the buffer is then no longer the newest heap block
      ASSERT_NE(nullptr, rtxMemHeapAlloc(ctx, 24));
    }
  }
  EXPECT_EQ((1u + 20000u * 17u + 7u) / 8u, pu_getMsgLen(ctx));
  EXPECT_GE(uint64_t(ctx->buffer_size) * 8, rtxBitPos(ctx) + 64);
  expectZeroBeyondPosition(ctx);
  const uint8_t* out = rtxEncGetBuffer(ctx);
  for (uint32_t i = 0; i < 20000; i++) {
    uint32_t v = 0;
    for (uint32_t k = 0; k < 17; k++) v = (v << 1) | bitAt(out, 1 + i * 17 + k);
    ASSERT_EQ(i & 0xFFFF, v) << i;
  }

  Ctx limited;
  rtxMemHeapSetLimit(limited, 256);
  ASSERT_EQ(0, rtxInitContextBuffer(limited, nullptr, 0));
  Bytes data(300, 1);
  setConstraint(limited, 300, 300);
  EXPECT_EQ(RT_ERR_NOMEM, pe_OctetString(limited, 300, data.data()));
  EXPECT_EQ(0u, rtxBitPos(limited));
  EXPECT_EQ(RT_ERR_INVPARAM, rtxInitContextBuffer(limited, nullptr, 4));
  Ctx tiny;
  rtxMemHeapSetLimit(tiny, 8);
  EXPECT_EQ(RT_ERR_NOMEM, rtxInitContextBuffer(tiny, nullptr, 0));
}

TEST(EncodeBits, LastBitSet) {
  struct Case {
    Bytes data;
    uint32_t nbits;
    int32_t want;
  };
  const Case cases[] = {
      {{0x00, 0x00}, 16, -1}, {{0x80}, 1, 0},         {{0x01}, 8, 7},        {{0x01}, 7, -1},
      {{0x00, 0x40}, 16, 9},  {{0xFF, 0xFF}, 12, 11}, {{0xFF, 0x08}, 12, 7}, {{}, 0, -1},
  };
  for (const Case& c : cases) EXPECT_EQ(c.want, rtxLastBitSet(c.data.data(), c.nbits)) << c.nbits;
}

// Seeded round trips: a random mix of fields after a random prefix, encoded into a growing
// buffer, decoded and compared.
struct Field {
  enum Kind { Unsigned, Signed, String, Length } kind;
  uint64_t lower, upper, value;
  bool octets, bounded;
  Bytes data;
};

TEST(RoundTrip, RandomFieldsAtRandomOffsets) {
  std::mt19937_64 rng(20240611);
  auto pick = [&](uint64_t lo, uint64_t hi) { return lo + rng() % (hi - lo + 1); };
  for (int iter = 0; iter < 300; iter++) {
    SCOPED_TRACE(testing::Message() << "iteration " << iter);
    std::vector<Field> fields(pick(1, 25));
    for (Field& f : fields) {
      f.kind = Field::Kind(pick(0, 3));
      if (f.kind == Field::Unsigned) {  // 0..32 bits
        const uint64_t nb = pick(0, 32), range = nb == 0 ? 0 : rng() >> (64 - nb);
        f.lower = range > 0xFFFFFFFFull - 1000 ? 0 : pick(0, 1000);
        f.upper = f.lower + range;
        f.value = pick(f.lower, f.upper);
      } else if (f.kind == Field::Signed) {
        const int64_t lo = -int64_t(pick(0, 70000)), hi = int64_t(pick(0, 70000));
        f.lower = uint64_t(lo);
        f.upper = uint64_t(hi);
        f.value = uint64_t(lo + int64_t(pick(0, uint64_t(hi - lo))));
      } else if (f.kind == Field::String) {
        f.octets = pick(0, 1);
        f.bounded = pick(0, 1);
        f.lower = f.bounded ? pick(0, 40) : 0;
        f.upper = !f.bounded ? 0xFFFFFFFFu : pick(0, 3) == 0 ? f.lower : f.lower + pick(0, 300);
        f.value = f.bounded ? pick(f.lower, f.upper) : pick(0, 40) == 0 ? pick(16000, 70000) : pick(0, 200);
        f.data.resize(f.octets ? f.value : (f.value + 7) / 8);
        for (auto& b : f.data) b = uint8_t(rng());
        if (!f.octets && (f.value & 7)) f.data.back() &= uint8_t(0xFF << (8 - (f.value & 7)));
      } else {
        f.lower = pick(0, 10);
        f.upper = f.lower + pick(0, 70000);
        f.value = pick(f.lower, f.upper < 16383 ? f.upper : 16383);
      }
    }

    const uint32_t prefix = uint32_t(pick(0, 15));
    Ctx enc;
    ASSERT_EQ(0, rtxInitContextBuffer(enc, nullptr, 0));
    ASSERT_EQ(0, rtxEncBits(enc, 0xFFFFFFFFu, prefix));
    for (const Field& f : fields) {
      const uint32_t n = uint32_t(f.value);
      setConstraint(enc, uint32_t(f.lower), uint32_t(f.upper));
      switch (f.kind) {
        case Field::Unsigned: ASSERT_EQ(0, pe_ConsUInt64(enc, f.value, f.lower, f.upper)); break;
        case Field::Signed: ASSERT_EQ(0, pe_ConsInt64(enc, int64_t(f.value), int64_t(f.lower), int64_t(f.upper))); break;
        case Field::String: ASSERT_EQ(0, f.octets ? pe_OctetString(enc, n, f.data.data()) : pe_BitString(enc, n, f.data.data())); break;
        case Field::Length: ASSERT_EQ(int(n), pe_Length(enc, n)); break;
      }
    }
    ASSERT_NO_FATAL_FAILURE(expectZeroBeyondPosition(enc));
    const Bytes out = output(enc);

    Ctx dec;
    pu_setBuffer(dec, out.data(), uint32_t(out.size()), 0);
    uint32_t skip, count = 0;
    ASSERT_EQ(0, rtxDecBits(dec, &skip, prefix));
    for (const Field& f : fields) {
      setConstraint(dec, uint32_t(f.lower), uint32_t(f.upper));
      if (f.kind == Field::Unsigned) {
        uint32_t v;
        ASSERT_EQ(0, pd_ConsUInt32(dec, &v, f.lower, f.upper));
        EXPECT_EQ(f.value, v);
      } else if (f.kind == Field::Signed) {
        int32_t v;
        ASSERT_EQ(0, pd_ConsInteger(dec, &v, int64_t(f.lower), int64_t(f.upper)));
        EXPECT_EQ(int64_t(f.value), v);
      } else if (f.kind == Field::String) {
        uint8_t fixed[400];
        const uint8_t* data = fixed;
        rtxDynOctStr os{};
        rtxDynBitStr bs{};
        int stat;
        if (f.bounded) {
          stat = f.octets ? pd_OctetString(dec, &count, fixed, sizeof fixed) : pd_BitString(dec, &count, fixed, sizeof fixed);
        } else if (f.octets) {
          stat = pd_DynOctetString(dec, &os);
          count = os.numocts;
          data = os.data;
        } else {
          stat = pd_DynBitString(dec, &bs);
          count = bs.numbits;
          data = bs.data;
        }
        ASSERT_EQ(0, stat);
        ASSERT_EQ(f.value, count);
        EXPECT_TRUE(sameBytes(f.data.data(), data, f.data.size()));
      } else {
        ASSERT_EQ(0, pd_Length(dec, &count));
        EXPECT_EQ(f.value, count);
      }
    }
    EXPECT_EQ(rtxBitPos(enc), rtxBitPos(dec));
  }
}

}  // namespace
