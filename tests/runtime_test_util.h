// Helpers and hand-computed PER vectors shared by the runtime tests.
#ifndef UMTS_RUNTIME_TEST_UTIL_H
#define UMTS_RUNTIME_TEST_UTIL_H

#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "umts_rrc_rt.h"

namespace rt_test {

using Bytes = std::vector<uint8_t>;

// An initialised context released at scope end (heap-allocated: the context is large).
struct Ctx {
  std::unique_ptr<rtxContext> holder{new rtxContext()};
  rtxContext* p = holder.get();
  Ctx() { rtInitContext(p); }
  ~Ctx() { rtFreeContext(p); }
  rtxContext* operator->() { return p; }
  operator rtxContext*() { return p; }
};

inline void setConstraint(rtxContext* ctx, uint32_t lower, uint32_t upper) {
  ctx->size_constraint = &ctx->size_constraint_store;
  ctx->size_constraint->lower = lower;
  ctx->size_constraint->upper = upper;
}

// Byte comparison that accepts null pointers for empty ranges.
inline bool sameBytes(const uint8_t* a, const uint8_t* b, size_t n) { return n == 0 || std::memcmp(a, b, n) == 0; }

// Bit i of a byte string, first bit in the top of bytes[0].
inline unsigned bitAt(const uint8_t* bytes, uint64_t i) { return (bytes[i >> 3] >> (7 - (i & 7))) & 1u; }

// `prefix` one-bits, the first `nbits` of `bytes` (bit by bit), then one-bits up to the
// byte end: readers must neither need nor keep the bits around the item.
inline Bytes shifted(const Bytes& bytes, uint64_t nbits, unsigned prefix) {
  const uint64_t total = prefix + nbits;
  Bytes out((total + 7) / 8, 0);
  for (uint64_t i = 0; i < out.size() * 8; i++) {
    bool one = i < prefix || i >= total || bitAt(bytes.data(), i - prefix);
    if (one) out[i >> 3] |= uint8_t(0x80u >> (i & 7));
  }
  return out;
}

// A counting pattern of n bytes.
inline Bytes pattern(size_t n, uint8_t seed) {
  Bytes b(n);
  for (size_t i = 0; i < n; i++) b[i] = uint8_t(seed + i * 7);
  return b;
}

inline void append(Bytes& out, const Bytes& more) { out.insert(out.end(), more.begin(), more.end()); }

// Constrained whole numbers: lower..upper, value, bits used, the bits as bytes.
struct IntVector {
  int64_t lower, upper, value;
  uint32_t nbits;
  Bytes bytes;
};

inline const std::vector<IntVector>& intVectors() {
  static const std::vector<IntVector> v = {
      {0, 0, 0, 0, {}},
      {5, 5, 5, 0, {}},
      {0, 1, 0, 1, {0x00}},
      {0, 1, 1, 1, {0x80}},
      {0, 7, 5, 3, {0xA0}},
      {0, 9, 9, 4, {0x90}},
      {1, 256, 1, 8, {0x00}},
      {1, 256, 256, 8, {0xFF}},
      {0, 255, 0xAB, 8, {0xAB}},
      {0, 511, 511, 9, {0xFF, 0x80}},
      {0, 4095, 0xABC, 12, {0xAB, 0xC0}},
      {0, 65535, 0x1234, 16, {0x12, 0x34}},
      {0, 1048575, 0xABCDE, 20, {0xAB, 0xCD, 0xE0}},
      {0, 4294967295LL, 0, 32, {0x00, 0x00, 0x00, 0x00}},
      {0, 4294967295LL, 0xDEADBEEF, 32, {0xDE, 0xAD, 0xBE, 0xEF}},
      {0, 4294967295LL, 4294967295LL, 32, {0xFF, 0xFF, 0xFF, 0xFF}},
      {0, 2147483648LL, 2147483648LL, 32, {0x80, 0x00, 0x00, 0x00}},
      {-50, 33, -50, 7, {0x00}},
      {-50, 33, 0, 7, {0x64}},
      {-50, 33, 33, 7, {0xA6}},
      {-128, 127, -1, 8, {0x7F}},
      {-32768, 32768, -32768, 17, {0x00, 0x00, 0x00}},
      {-32768, 32768, -1, 17, {0x3F, 0xFF, 0x80}},
      {-32768, 32768, 32768, 17, {0x80, 0x00, 0x00}},
  };
  return v;
}

// Length determinants under a size constraint.
struct LengthVector {
  uint32_t lower, upper, count, nbits;
  Bytes bytes;
};

inline const std::vector<LengthVector>& lengthVectors() {
  static const std::vector<LengthVector> v = {
      {1, 32, 5, 5, {0x20}},         // 5-1 = 4 in 5 bits: 00100
      {1, 32, 32, 5, {0xF8}},        // 31: 11111
      {4, 4, 4, 0, {}},              // fixed size: no bits
      {0, 8, 0, 4, {0x00}},
      {0, 8, 8, 4, {0x80}},
      {1, 16, 16, 4, {0xF0}},
      {0, 65535, 5, 16, {0x00, 0x05}},
      {0, 65536, 5, 8, {0x05}},      // general form from 64K up
      {0, 65536, 127, 8, {0x7F}},
      {0, 65536, 128, 16, {0x80, 0x80}},
      {0, 65536, 16383, 16, {0xBF, 0xFF}},
  };
  return v;
}

// Bit and octet strings: constraint, encoded bits, content.
struct StringVector {
  bool octets;
  uint32_t lower, upper, count, nbits;
  Bytes bytes, content;
};

inline const std::vector<StringVector>& stringVectors() {
  static const std::vector<StringVector> v = [] {
    std::vector<StringVector> s = {
        // 1..8 octets, count 3: length 010, then AA BB CC
        {true, 1, 8, 3, 27, {0x55, 0x57, 0x79, 0x80}, {0xAA, 0xBB, 0xCC}},
        {true, 3, 3, 3, 24, {0x01, 0x02, 0x03}, {0x01, 0x02, 0x03}},
        // 1..214 bits, 13 bits: length 12 in 8 bits, then 1010101111001
        {false, 1, 214, 13, 21, {0x0C, 0xAB, 0xC8}, {0xAB, 0xC8}},
        {false, 28, 28, 28, 28, {0x12, 0x34, 0x56, 0x7F}, {0x12, 0x34, 0x56, 0x70}},
        {false, 0, 0, 0, 0, {}, {}},
        {false, 1, 214, 214, 222, {0xD5}, {}},      // length 213, content below
        {false, 222, 222, 222, 222, {}, {}},        // fixed: no length
    };
    for (int i = 1; i <= 26; i++) s[5].content.push_back(uint8_t(i));
    s[5].content.push_back(0xA8);  // last 6 bits 101010
    append(s[5].bytes, s[5].content);
    for (int i = 0; i < 27; i++) s[6].content.push_back(uint8_t(0x86 + i));
    s[6].content.push_back(0xFC);  // last 6 bits 111111
    s[6].bytes = s[6].content;
    s[6].bytes.back() = 0xFF;  // the 2 bits after the string are not part of it
    return s;
  }();
  return v;
}

}  // namespace rt_test

#endif
