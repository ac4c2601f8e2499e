// Bit reader: hand-computed PER bit patterns decoded at every bit offset, constraint
// failures, general and fragmented lengths, strings, and reads cut short at every byte.
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

TEST(DecodeInt, HandVectorsAtEveryOffset) {
  for (const IntVector& v : intVectors()) {
    for (unsigned prefix = 0; prefix < 8; prefix++) {
      SCOPED_TRACE(testing::Message() << v.lower << ".." << v.upper << " value " << v.value << " prefix " << prefix);
      Bytes buf = shifted(v.bytes, v.nbits, prefix);
      Ctx ctx;
      ASSERT_EQ(0, pu_setBuffer(ctx, buf.data(), uint32_t(buf.size()), 0));
      uint32_t skip;
      ASSERT_EQ(0, rtxDecBits(ctx, &skip, prefix));
      int64_t got = -999;
      ASSERT_EQ(0, decodeInt(ctx, v, &got));
      EXPECT_EQ(v.value, got);
      EXPECT_EQ(prefix + v.nbits, rtxBitPos(ctx));
    }
  }
}

TEST(DecodeInt, OutOfRangeIsConstraintViolation) {
  const IntVector cases[] = {
      {0, 9, 0, 4, {0xA0}},                          // 1010 = 10
      {-50, 33, 0, 7, {0xA8}},                       // 84
      {-50, 33, 0, 7, {0xFE}},                       // 127
      {0, 1000, 0, 10, {0xFF, 0xC0}},                // 1023
      {0, 2147483648LL, 0, 32, {0x80, 0, 0, 0x01}},  // 2^31 + 1
      {-32768, 32768, 0, 17, {0x80, 0x00, 0x80}},    // 65537
  };
  for (const IntVector& c : cases) {
    Ctx ctx;
    pu_setBuffer(ctx, c.bytes.data(), uint32_t(c.bytes.size()), 0);
    int64_t got;
    EXPECT_EQ(RT_ERR_CONSVIO, decodeInt(ctx, c, &got)) << c.lower << ".." << c.upper;
  }
}

TEST(DecodeInt, WiderThan32Bits) {
  Ctx ctx;
  // 0..2^40 takes 41 bits: 0x0123456789 is a 0 followed by its 40 bits.
  const uint8_t b41[] = {0x00, 0x91, 0xA2, 0xB3, 0xC4, 0x80};
  pu_setBuffer(ctx, b41, sizeof b41, 0);
  uint64_t v = 0;
  ASSERT_EQ(0, pd_ConsUnsignedSlow(ctx, &v, 0, 1ull << 40));
  EXPECT_EQ(0x0123456789ull, v);
  EXPECT_EQ(41u, rtxBitPos(ctx));

  const uint8_t b64[] = {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF};
  pu_setBuffer(ctx, b64, 8, 0);
  ASSERT_EQ(0, pd_ConsUnsignedSlow(ctx, &v, 10, ~0ull));
  EXPECT_EQ(0x0123456789ABCDEFull + 10, v);
  pu_setBuffer(ctx, b64, 7, 0);
  EXPECT_EQ(RT_ERR_ENDOFBUF, pd_ConsUnsignedSlow(ctx, &v, 0, ~0ull));
  EXPECT_EQ(0u, rtxBitPos(ctx));
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
  const Bytes data = {0xA5, 0x3C};  // 10100101 00111100
  const unsigned want[16] = {1, 0, 1, 0, 0, 1, 0, 1, 0, 0, 1, 1, 1, 1, 0, 0};
  Ctx ctx;
  pu_setBuffer(ctx, data.data(), 2, 0);
  uint8_t bit;
  for (unsigned i = 0; i < 16; i++) {
    ASSERT_EQ(0, rtxDecBitInline(ctx, &bit));
    EXPECT_EQ(want[i], bit) << i;
    EXPECT_EQ((i + 1) / 8, ctx->byte_index);
    EXPECT_EQ(int(8 - (i + 1) % 8), ctx->bit_offset);
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

TEST(DecodeLength, UnderSizeConstraints) {
  for (const LengthVector& v : lengthVectors()) {
    for (unsigned prefix = 0; prefix < 8; prefix += 3) {
      SCOPED_TRACE(testing::Message() << v.lower << ".." << v.upper << " count " << v.count << " prefix " << prefix);
      Bytes buf = shifted(v.bytes, v.nbits, prefix);
      Ctx ctx;
      pu_setBuffer(ctx, buf.data(), uint32_t(buf.size()), 0);
      uint32_t skip, count = 999;
      ASSERT_EQ(0, rtxDecBits(ctx, &skip, prefix));
      setConstraint(ctx, v.lower, v.upper);
      ASSERT_EQ(0, pd_Length(ctx, &count));
      EXPECT_EQ(v.count, count);
      EXPECT_EQ(prefix + v.nbits, rtxBitPos(ctx));
    }
  }
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

int decodeString(rtxContext* ctx, const StringVector& v, uint32_t* count, uint8_t* data, uint32_t capacity) {
  setConstraint(ctx, v.lower, v.upper);
  return v.octets ? pd_OctetString(ctx, count, data, capacity) : pd_BitString(ctx, count, data, capacity);
}

TEST(DecodeString, HandVectorsAtEveryOffset) {
  for (const StringVector& v : stringVectors()) {
    for (unsigned prefix = 0; prefix < 8; prefix++) {
      SCOPED_TRACE(testing::Message() << (v.octets ? "octets " : "bits ") << v.lower << ".." << v.upper << " prefix " << prefix);
      Bytes buf = shifted(v.bytes, v.nbits, prefix);
      Ctx ctx;
      pu_setBuffer(ctx, buf.data(), uint32_t(buf.size()), 0);
      uint32_t skip, count = 999;
      rtxDecBits(ctx, &skip, prefix);
      uint8_t data[40];
      std::memset(data, 0xEE, sizeof data);
      ASSERT_EQ(0, decodeString(ctx, v, &count, data, uint32_t(v.content.size())));
      EXPECT_EQ(v.count, count);
      EXPECT_TRUE(sameBytes(v.content.data(), data, v.content.size()));
      EXPECT_EQ(0xEE, data[v.content.size()]) << "wrote beyond the string";
      EXPECT_EQ(prefix + v.nbits, rtxBitPos(ctx));
    }
  }
}

TEST(DecodeString, RefusesWhatTheStorageOrBoundCannotHold) {
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

TEST(DecodeString, CutAtEveryByteEndsTheBuffer) {
  // Exact-size copies: a read past the end would trip the address sanitizer.
  for (const StringVector& v : stringVectors()) {
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
  for (const IntVector& v : intVectors()) {
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

TEST(DecodeDynOctets, GeneralLengthForms) {
  const std::pair<size_t, Bytes> cases[] = {
      {0, build({{{0x00}, 0}})},
      {3, build({{{0x03}, 3}})},
      {200, build({{{0x80, 0xC8}, 200}})},
      {16384, build({{{0xC1}, 16384}, {{0x00}, 0}})},  // one 16K fragment, then an empty part
      {65541, build({{{0xC4}, 65536}, {{0x05}, 5}})},
      {82220, build({{{0xC4}, 65536}, {{0xC1}, 16384}, {{0x81, 0x2C}, 300}})},
  };
  for (const auto& [count, encoded] : cases) {
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

}  // namespace
