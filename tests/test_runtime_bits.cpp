// Bit reader and writer: hand-computed PER bit patterns checked both ways (written, and read
// at every bit offset), constraint failures, general and fragmented lengths, reads cut short
// at every byte, buffer growth and overflow, and the zero-beyond-position invariant.
#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "runtime_test_util.h"

using namespace rt_test;

namespace {

int decodeInt(rtxContext* ctx, const IntVector& v, int64_t* out) {
  int stat;
  if (v.lower < 0) {
    int32_t x = 0;
    stat = pd_ConsInteger(ctx, &x, v.lower, v.upper);
    *out = x;
  } else {
    uint32_t x = 0;
    stat = pd_ConsUInt32(ctx, &x, uint64_t(v.lower), uint64_t(v.upper));
    *out = x;
  }
  return stat;
}

int encodeInt(rtxContext* ctx, const IntVector& v) {
  return v.lower < 0 ? pe_ConsInt64(ctx, v.value, v.lower, v.upper)
                     : pe_ConsUInt64(ctx, uint64_t(v.value), uint64_t(v.lower), uint64_t(v.upper));
}

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

TEST(IntVectors, WrittenAndReadAtEveryOffsetAndCutAtEveryByte) {
  for (const IntVector& v : intVectors()) {
    SCOPED_TRACE(testing::Message() << v.lower << ".." << v.upper << " value " << v.value);
    Ctx enc;
    ASSERT_EQ(0, rtxInitContextBuffer(enc, nullptr, 0));
    ASSERT_EQ(0, encodeInt(enc, v));
    EXPECT_EQ(v.nbits, rtxBitPos(enc));
    EXPECT_EQ(v.bytes, output(enc));
    for (unsigned prefix = 0; prefix < 8; prefix++) {
      Bytes buf = shifted(v.bytes, v.nbits, prefix);
      Ctx ctx;
      ASSERT_EQ(0, pu_setBuffer(ctx, buf.data(), uint32_t(buf.size()), 0));
      uint32_t skip;
      ASSERT_EQ(0, rtxDecBits(ctx, &skip, prefix));
      int64_t got = -999;
      ASSERT_EQ(0, decodeInt(ctx, v, &got));
      EXPECT_EQ(v.value, got) << "prefix " << prefix;
      EXPECT_EQ(prefix + v.nbits, rtxBitPos(ctx));
    }
    // Exact-size copies: a read past the end would trip the address sanitizer.
    for (size_t cut = 0; cut * 8 < v.nbits; cut++) {
      Bytes part(v.bytes.begin(), v.bytes.begin() + cut);
      Ctx ctx;
      pu_setBuffer(ctx, part.data(), uint32_t(cut), 0);
      int64_t got;
      EXPECT_EQ(RT_ERR_ENDOFBUF, decodeInt(ctx, v, &got));
      EXPECT_EQ(0u, rtxBitPos(ctx));
    }
  }
}

TEST(IntVectors, OutOfRangeIsConstraintViolationBothWays) {
  // The value is refused by the writer, its bits by the reader.
  const IntVector cases[] = {
      {0, 9, 10, 4, {0xA0}},                                 // 1010 = 10
      {-50, 33, 34, 7, {0xA8}},                              // 84 - 50
      {-50, 33, 77, 7, {0xFE}},                              // 127 - 50
      {0, 1000, 1023, 10, {0xFF, 0xC0}},                     // 1023
      {0, 2147483648LL, 2147483649LL, 32, {0x80, 0, 0, 0x01}},  // 2^31 + 1
      {-32768, 32768, 32769, 17, {0x80, 0x00, 0x80}},        // 65537 - 32768
  };
  for (const IntVector& c : cases) {
    Ctx ctx;
    rtxInitContextBuffer(ctx, nullptr, 0);
    EXPECT_EQ(RT_ERR_CONSVIO, encodeInt(ctx, c)) << c.lower << ".." << c.upper;
    pu_setBuffer(ctx, c.bytes.data(), uint32_t(c.bytes.size()), 0);
    int64_t got;
    EXPECT_EQ(RT_ERR_CONSVIO, decodeInt(ctx, c, &got)) << c.lower << ".." << c.upper;
    EXPECT_EQ(0u, rtxBitPos(ctx));
  }
  Ctx ctx;
  rtxInitContextBuffer(ctx, nullptr, 0);
  EXPECT_EQ(RT_ERR_CONSVIO, pe_ConsUInt64(ctx, 0, 1, 256));
  EXPECT_EQ(RT_ERR_CONSVIO, pe_ConsInt64(ctx, -51, -50, 33));
  EXPECT_EQ(RT_ERR_CONSVIO, pe_ConsUInt64Slow(ctx, 5, 6, ~0ull));
  EXPECT_EQ(0u, rtxBitPos(ctx));
}

TEST(IntVectors, WiderThan32Bits) {
  // 0..2^40 takes 41 bits: 0x0123456789 is a 0 followed by its 40 bits.
  const Bytes b41 = {0x00, 0x91, 0xA2, 0xB3, 0xC4, 0x80};
  Ctx ctx;
  rtxInitContextBuffer(ctx, nullptr, 0);
  ASSERT_EQ(0, pe_ConsUInt64(ctx, 0x0123456789ull, 0, 1ull << 40));
  EXPECT_EQ(b41, output(ctx));
  pu_setBuffer(ctx, b41.data(), uint32_t(b41.size()), 0);
  uint64_t v = 0;
  ASSERT_EQ(0, pd_ConsUnsignedSlow(ctx, &v, 0, 1ull << 40));
  EXPECT_EQ(0x0123456789ull, v);
  EXPECT_EQ(41u, rtxBitPos(ctx));

  // 64 bits after a 1; the reader takes the same 64 bits at 10 above the lower bound.
  rtxInitContextBuffer(ctx, nullptr, 0);
  ASSERT_EQ(0, rtxEncBits(ctx, 1, 1));
  ASSERT_EQ(0, pe_ConsUInt64(ctx, 0x0123456789ABCDEFull, 0, ~0ull));
  EXPECT_EQ((Bytes{0x80, 0x91, 0xA2, 0xB3, 0xC4, 0xD5, 0xE6, 0xF7, 0x80}), output(ctx));
  ASSERT_EQ(0, pe_ConsInt64(ctx, INT64_MIN + 3, INT64_MIN, INT64_MAX));
  EXPECT_EQ(65u + 64u, rtxBitPos(ctx));
  EXPECT_EQ(RT_ERR_INVPARAM, rtxEncBits(ctx, 0, 33));
  const uint8_t b64[] = {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF};
  pu_setBuffer(ctx, b64, 8, 0);
  ASSERT_EQ(0, pd_ConsUnsignedSlow(ctx, &v, 10, ~0ull));
  EXPECT_EQ(0x0123456789ABCDEFull + 10, v);
  pu_setBuffer(ctx, b64, 7, 0);
  EXPECT_EQ(RT_ERR_ENDOFBUF, pd_ConsUnsignedSlow(ctx, &v, 0, ~0ull));
  EXPECT_EQ(0u, rtxBitPos(ctx));
}

TEST(LengthVectors, WrittenAndReadUnderSizeConstraints) {
  for (const LengthVector& v : lengthVectors()) {
    SCOPED_TRACE(testing::Message() << v.lower << ".." << v.upper << " count " << v.count);
    Ctx enc;
    rtxInitContextBuffer(enc, nullptr, 0);
    setConstraint(enc, v.lower, v.upper);
    ASSERT_EQ(int(v.count), pe_Length(enc, v.count));
    EXPECT_EQ(v.nbits, rtxBitPos(enc));
    EXPECT_EQ(v.bytes, output(enc));
    for (unsigned prefix = 0; prefix < 8; prefix += 3) {
      Bytes buf = shifted(v.bytes, v.nbits, prefix);
      Ctx ctx;
      pu_setBuffer(ctx, buf.data(), uint32_t(buf.size()), 0);
      uint32_t skip, count = 999;
      ASSERT_EQ(0, rtxDecBits(ctx, &skip, prefix));
      setConstraint(ctx, v.lower, v.upper);
      ASSERT_EQ(0, pd_Length(ctx, &count));
      EXPECT_EQ(v.count, count) << "prefix " << prefix;
      EXPECT_EQ(prefix + v.nbits, rtxBitPos(ctx));
    }
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

int decodeString(rtxContext* ctx, const StringVector& v, uint32_t* count, uint8_t* data, uint32_t capacity) {
  setConstraint(ctx, v.lower, v.upper);
  return v.octets ? pd_OctetString(ctx, count, data, capacity) : pd_BitString(ctx, count, data, capacity);
}

TEST(StringVectors, WrittenAndReadAtEveryOffsetAndCutAtEveryByte) {
  for (const StringVector& v : stringVectors()) {
    SCOPED_TRACE(testing::Message() << (v.octets ? "octets " : "bits ") << v.lower << ".." << v.upper);
    Bytes src = v.content;  // with ones past the last bit: they must not be copied
    if (!v.octets && v.count % 8) src.back() |= uint8_t(0xFF >> (v.count % 8));
    Bytes want(v.bytes.begin(), v.bytes.begin() + (v.nbits + 7) / 8);
    if (v.nbits % 8) want.back() &= uint8_t(0xFF << (8 - v.nbits % 8));
    Ctx enc;
    rtxInitContextBuffer(enc, nullptr, 0);
    setConstraint(enc, v.lower, v.upper);
    ASSERT_EQ(0, v.octets ? pe_OctetString(enc, v.count, src.data()) : pe_BitString(enc, v.count, src.data()));
    EXPECT_EQ(v.nbits, rtxBitPos(enc));
    EXPECT_EQ(want, output(enc));
    for (unsigned prefix = 0; prefix < 8; prefix++) {
      Bytes buf = shifted(v.bytes, v.nbits, prefix);
      Ctx ctx;
      pu_setBuffer(ctx, buf.data(), uint32_t(buf.size()), 0);
      uint32_t skip, count = 999;
      rtxDecBits(ctx, &skip, prefix);
      uint8_t data[40];
      std::memset(data, 0xEE, sizeof data);
      ASSERT_EQ(0, decodeString(ctx, v, &count, data, uint32_t(v.content.size())));
      EXPECT_EQ(v.count, count) << "prefix " << prefix;
      EXPECT_TRUE(sameBytes(v.content.data(), data, v.content.size()));
      EXPECT_EQ(0xEE, data[v.content.size()]) << "wrote beyond the string";
      EXPECT_EQ(prefix + v.nbits, rtxBitPos(ctx));
    }
    for (size_t cut = 0; cut * 8 < v.nbits; cut++) {
      Bytes part(v.bytes.begin(), v.bytes.begin() + cut);
      Ctx ctx;
      pu_setBuffer(ctx, part.data(), uint32_t(cut), 0);
      uint8_t data[40];
      uint32_t count;
      EXPECT_EQ(RT_ERR_ENDOFBUF, decodeString(ctx, v, &count, data, sizeof data)) << cut;
      EXPECT_EQ(0u, rtxBitPos(ctx));
    }
  }
}

TEST(DecodeBits, EveryWidthAtEveryOffsetMatchesBitByBit) {
  const Bytes data = {0xA5, 0x3C, 0xF0, 0x0F, 0x96, 0x69, 0x5A, 0xC3, 0x7E, 0x81};
  for (unsigned offset = 0; offset < 8; offset++) {
    for (unsigned n = 0; n <= 32; n++) {
      Ctx ctx;
      pu_setBuffer(ctx, data.data(), uint32_t(data.size()), 0);
      uint32_t skip, got;
      ASSERT_EQ(0, rtxDecBits(ctx, &skip, offset));
      ASSERT_EQ(0, rtxDecBits(ctx, &got, n));
      uint32_t want = 0;
      for (unsigned i = 0; i < n; i++) want = (want << 1) | bitAt(data.data(), offset + i);
      EXPECT_EQ(want, got) << "offset " << offset << " width " << n;
      EXPECT_EQ(offset + n, rtxBitPos(ctx));
    }
  }
  Ctx ctx;
  uint32_t v;
  pu_setBuffer(ctx, data.data(), uint32_t(data.size()), 0);
  EXPECT_EQ(RT_ERR_INVPARAM, rtxDecBits(ctx, &v, 33));
}

TEST(DecodeBits, InlineBitReaderAcrossByteEnds) {
  const Bytes data = {0xA5, 0x3C};
  Ctx ctx;
  pu_setBuffer(ctx, data.data(), 2, 0);
  uint8_t bit;
  for (unsigned i = 0; i < 16; i++) {
    ASSERT_EQ(0, rtxDecBitInline(ctx, &bit));
    EXPECT_EQ(bitAt(data.data(), i), bit) << i;
    EXPECT_EQ(i + 1, rtxBitPos(ctx));
  }
  EXPECT_EQ(RT_ERR_ENDOFBUF, rtxDecBitInline(ctx, &bit));
  EXPECT_EQ(RT_ERR_ENDOFBUF, rtxDecBit(ctx, &bit));
  EXPECT_EQ(16u, rtxBitPos(ctx));

  EXPECT_EQ(RT_ERR_INVPARAM, pu_setBuffer(ctx, nullptr, 4, 0));
  ASSERT_EQ(0, pu_setBuffer(ctx, nullptr, 0, 0));  // empty: every read ends the buffer
  uint32_t v;
  rtxDynOctStr os;
  EXPECT_EQ(RT_ERR_ENDOFBUF, rtxDecBitInline(ctx, &bit));
  EXPECT_EQ(RT_ERR_ENDOFBUF, pd_ConsUInt32(ctx, &v, 0, 1));
  EXPECT_EQ(RT_ERR_ENDOFBUF, pd_DynOctetString(ctx, &os));
}

TEST(DecodeLength, FailuresLeaveThePosition) {
  struct Case {
    uint32_t lower, upper;
    Bytes bytes;
    int status;
  };
  const Case cases[] = {
      {0, 8, {0x90}, RT_ERR_CONSVIO},        // 9 in 0..8
      {10, 70000, {0x05}, RT_ERR_CONSVIO},   // general form, 5 below 10
      {0, 100000, {0xC1}, RT_ERR_BADLEN},    // a fragment needs a string
      {0, 100000, {0xC5}, RT_ERR_BADLEN},    // no such fragment multiplier
      {0, 100000, {0x80}, RT_ERR_ENDOFBUF},  // second byte missing
  };
  for (const Case& c : cases) {
    Ctx ctx;
    pu_setBuffer(ctx, c.bytes.data(), uint32_t(c.bytes.size()), 0);
    setConstraint(ctx, c.lower, c.upper);
    uint32_t count;
    EXPECT_EQ(c.status, pd_Length(ctx, &count)) << c.lower << ".." << c.upper;
    EXPECT_EQ(0u, rtxBitPos(ctx));
  }
}

TEST(StringVectors, RefusedWhenTheStorageOrBoundCannotHoldThem) {
  for (const StringVector& v : stringVectors()) {
    if (v.content.empty()) continue;
    Ctx ctx;
    pu_setBuffer(ctx, v.bytes.data(), uint32_t(v.bytes.size()), 0);
    uint8_t data[40];
    std::memset(data, 0xEE, sizeof data);
    uint32_t count;
    EXPECT_EQ(RT_ERR_CONSVIO, decodeString(ctx, v, &count, data, uint32_t(v.content.size() - 1)));
    EXPECT_EQ(0xEE, data[0]);
    EXPECT_EQ(0u, rtxBitPos(ctx));
  }
  const uint8_t raw255[] = {0xFF, 0, 0, 0};  // 1..214: 255 + 1 = 256
  Ctx ctx;
  pu_setBuffer(ctx, raw255, sizeof raw255, 0);
  setConstraint(ctx, 1, 214);
  uint8_t data[32];
  uint32_t n;
  EXPECT_EQ(RT_ERR_CONSVIO, pd_BitString(ctx, &n, data, sizeof data));
  // Counts outside the bounds are not written.
  const uint8_t abc[] = {0xAA, 0xBB, 0xCC};
  rtxInitContextBuffer(ctx, nullptr, 0);
  setConstraint(ctx, 1, 8);
  EXPECT_EQ(RT_ERR_CONSVIO, pe_OctetString(ctx, 0, abc));
  EXPECT_EQ(RT_ERR_CONSVIO, pe_OctetString(ctx, 9, abc));
  setConstraint(ctx, 28, 28);
  EXPECT_EQ(RT_ERR_CONSVIO, pe_BitString(ctx, 27, abc));
  EXPECT_EQ(0u, rtxBitPos(ctx));
}

TEST(BitString32, BothWays) {
  struct Case {
    uint32_t lower, upper, numbits;
    Bytes encoded, data;
  };
  const Case cases[] = {
      {28, 28, 28, {0x12, 0x34, 0x56, 0x70}, {0x12, 0x34, 0x56, 0x70}},
      {1, 32, 3, {0x15}, {0xA0, 0, 0, 0}},  // length 00010, then 101
      {0, 32, 32, {0x83, 0xFF, 0xFF, 0xFF, 0xFC}, {0xFF, 0xFF, 0xFF, 0xFF}},  // 100000, 32 ones
  };
  for (const Case& c : cases) {
    Ctx ctx;
    rtxBitStr32 bs;
    pu_setBuffer(ctx, c.encoded.data(), uint32_t(c.encoded.size()), 0);
    ASSERT_EQ(0, pd_BitString32(ctx, &bs, c.lower, c.upper));
    EXPECT_EQ(c.numbits, bs.numbits);
    EXPECT_EQ(c.data, Bytes(bs.data, bs.data + 4));
    rtxInitContextBuffer(ctx, nullptr, 0);
    ASSERT_EQ(0, pe_BitString32(ctx, &bs, c.lower, c.upper));
    EXPECT_EQ(c.encoded, Bytes(ctx->buffer_data, ctx->buffer_data + pu_getMsgLen(ctx)));
  }
  Ctx ctx;
  rtxBitStr32 bs = {33, {0xFF, 0xFF, 0xFF, 0xFF}};
  EXPECT_EQ(RT_ERR_CONSVIO, pe_BitString32(ctx, &bs, 0, 40));
  const uint8_t b33[] = {0x87, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};  // 0..40: 100001 = 33 bits
  pu_setBuffer(ctx, b33, sizeof b33, 0);
  EXPECT_EQ(RT_ERR_CONSVIO, pd_BitString32(ctx, &bs, 0, 40));
}

// General form: header bytes as literals, each followed by that many bytes of a pattern.
Bytes build(const std::vector<std::pair<Bytes, size_t>>& parts) {
  size_t total = 0, at = 0;
  for (const auto& p : parts) total += p.second;
  const Bytes all = pattern(total, 1);
  Bytes out;
  for (const auto& p : parts) {
    append(out, p.first);
    out.insert(out.end(), all.begin() + at, all.begin() + at + p.second);
    at += p.second;
  }
  return out;
}

TEST(DynOctets, GeneralLengthFormsBothWays) {
  const std::pair<size_t, Bytes> cases[] = {
      {0, build({{{0x00}, 0}})},
      {3, build({{{0x03}, 3}})},
      {200, build({{{0x80, 0xC8}, 200}})},
      {16384, build({{{0xC1}, 16384}, {{0x00}, 0}})},  // one 16K fragment, then an empty part
      {32768, build({{{0xC2}, 32768}, {{0x00}, 0}})},
      {65541, build({{{0xC4}, 65536}, {{0x05}, 5}})},
      {82220, build({{{0xC4}, 65536}, {{0xC1}, 16384}, {{0x81, 0x2C}, 300}})},
  };
  for (const auto& [count, encoded] : cases) {
    Ctx enc;
    rtxInitContextBuffer(enc, nullptr, 0);
    setConstraint(enc, 0, 0xFFFFFFFFu);
    ASSERT_EQ(0, pe_OctetString(enc, uint32_t(count), pattern(count, 1).data()));
    EXPECT_EQ(encoded, output(enc)) << count;
    Ctx ctx;
    pu_setBuffer(ctx, encoded.data(), uint32_t(encoded.size()), 0);
    rtxDynOctStr os{};
    ASSERT_EQ(0, pd_DynOctetString(ctx, &os)) << count;
    ASSERT_EQ(count, os.numocts);
    ASSERT_NE(nullptr, os.data);
    EXPECT_TRUE(sameBytes(pattern(count, 1).data(), os.data, count)) << count;
    EXPECT_EQ(encoded.size() * 8, rtxBitPos(ctx));
    // Cuts across headers and fragments all end the buffer and leave the position alone.
    const size_t n = encoded.size();
    for (size_t cut : {size_t(0), size_t(1), size_t(2), n / 2, size_t(65537), size_t(65538), n - 1}) {
      if (cut >= n) continue;
      Bytes part(encoded.begin(), encoded.begin() + cut);
      pu_setBuffer(ctx, part.data(), uint32_t(cut), 0);
      EXPECT_EQ(RT_ERR_ENDOFBUF, pd_DynOctetString(ctx, &os)) << count << " cut " << cut;
      EXPECT_EQ(0u, rtxBitPos(ctx));
    }
  }
}

TEST(DecodeDynOctets, BadFragmentHeaderAndExhaustedHeap) {
  Ctx ctx;
  rtxDynOctStr os;
  for (uint8_t header : {0xC0, 0xC5, 0xFF}) {
    const uint8_t b[] = {header, 0x00};
    pu_setBuffer(ctx, b, 2, 0);
    EXPECT_EQ(RT_ERR_BADLEN, pd_DynOctetString(ctx, &os)) << int(header);
  }
  const Bytes e = build({{{0x80, 0xC8}, 200}});
  pu_setBuffer(ctx, e.data(), uint32_t(e.size()), 0);
  rtxMemHeapSetLimit(ctx, ctx->heap.used + 64);
  EXPECT_EQ(RT_ERR_NOMEM, pd_DynOctetString(ctx, &os));
  EXPECT_EQ(0u, rtxBitPos(ctx));
}

TEST(DecodeDynBits, FragmentedAtAnOffset) {
  // 3 prefix bits, one 16K-bit fragment, then a final part of 3 bits 101.
  const Bytes body = build({{{0xC1}, 2048}, {{0x03, 0xA0}, 0}});
  const uint64_t nbits = body.size() * 8 - 5;
  const Bytes buf = shifted(body, nbits, 3);
  Ctx ctx;
  pu_setBuffer(ctx, buf.data(), uint32_t(buf.size()), 0);
  uint32_t skip;
  rtxDecBits(ctx, &skip, 3);
  rtxDynBitStr bs{};
  ASSERT_EQ(0, pd_DynBitString(ctx, &bs));
  EXPECT_EQ(16384u + 3, bs.numbits);
  Bytes want = pattern(2048, 1);
  want.push_back(0xA0);
  EXPECT_TRUE(sameBytes(want.data(), bs.data, want.size()));
  EXPECT_EQ(3 + nbits, rtxBitPos(ctx));
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

}  // namespace
