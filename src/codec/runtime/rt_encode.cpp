/*
 * Bit writer: output buffers (fixed or growing on the context heap), the write cursor, wide
 * constrained whole numbers, length determinants and bit and octet strings.
 *
 * Every store sets the bytes it covers (the bits after the position in them are zero), so no
 * write relies on what lies beyond the position. Operations that write several fields
 * reserve room for all of them first, so a failed operation writes nothing and leaves the
 * position alone.
 */
#include <cstring>

#include "rt_internal.h"

using umts_rt::Bounds;
using umts_rt::boundsOf;
using umts_rt::kContextMagic;
using umts_rt::kFragmentUnit;
using umts_rt::usesConstrainedCount;

namespace {

constexpr uint32_t kInitialDynamicSize = 256;

/* Make sure `nbits` more bits can be written without failing. */
inline int encReserve(rtxContext* ctx, uint64_t nbits) {
  uint64_t end = rtxBitPos(ctx) + nbits;
  if (end + 64u > static_cast<uint64_t>(ctx->buffer_size) * 8u) return rtxEncGrow(ctx, end);
  return 0;
}

inline bool inBounds(const Bounds& b, uint64_t count) {
  return !b.constrained || (count >= b.lower && count <= b.upper);
}

/* Bits of the general-form length determinants of `count` units, fragment headers included. */
uint64_t generalLengthBits(uint32_t count) {
  uint64_t bits = 0;
  while (count >= kFragmentUnit) {
    uint32_t m = count / kFragmentUnit;
    if (m > 4) m = 4;
    count -= m * kFragmentUnit;
    bits += 8;
  }
  return bits + (count < 128 ? 8 : 16);
}

/* A general-form length below 16K; the caller has reserved the room. */
inline void putGeneralLength(rtxContext* ctx, uint32_t count) {
  if (count < 128) rtxEncBitsFast(ctx, count, 8);
  else rtxEncBitsFast(ctx, 0x8000u | count, 16);
}

/* A string of `count` units of `unit` bits (1 or 8) under `b`, from `data` (first bit in the
   top of data[0]). */
int encString(rtxContext* ctx, const Bounds& b, uint32_t unit, uint32_t count, const uint8_t* data) {
  if (count > 0 && data == nullptr) return RT_ERR_INVPARAM;
  if (!inBounds(b, count)) return RT_ERR_CONSVIO;
  const uint64_t bits = static_cast<uint64_t>(count) * unit;
  if (bits > 0xFFFFFFFFull) return RT_ERR_BADLEN;
  if (usesConstrainedCount(b)) {
    uint32_t lenBits = rtxRangeBits(b.upper - b.lower);
    int stat = encReserve(ctx, lenBits + bits);
    if (stat != 0) return stat;
    rtxEncBitsFast(ctx, count - b.lower, lenBits);
    return rtxEncBytesBits(ctx, data, static_cast<uint32_t>(bits));
  }
  int stat = encReserve(ctx, generalLengthBits(count) + bits);
  if (stat != 0) return stat;
  uint32_t left = count;
  const uint8_t* p = data;
  while (left >= kFragmentUnit) {
    uint32_t m = left / kFragmentUnit;
    if (m > 4) m = 4;
    uint32_t fragBits = m * kFragmentUnit * unit; /* a multiple of 8 */
    rtxEncBitsFast(ctx, 0xC0u | m, 8);
    rtxEncBytesBits(ctx, p, fragBits);
    p += fragBits / 8u;
    left -= m * kFragmentUnit;
  }
  putGeneralLength(ctx, left);
  return rtxEncBytesBits(ctx, p, left * unit);
}

/* Bits that a write cursor may gather from `pos` on before it looks at the buffer again. */
inline uint64_t gatherLimit(const rtxContext* ctx, uint64_t pos) {
  const uint64_t cap = static_cast<uint64_t>(ctx->buffer_size) * 8u;
  if (cap <= pos) return 0;
  return cap - pos < 64u ? cap - pos : 64u;
}

/* Store the top `nbytes` bytes of `w` at bit position `pos` (the start of a byte); the
   caller has checked that they lie inside the buffer. */
inline void storeTop(rtxContext* ctx, uint64_t pos, uint64_t w, uint64_t nbytes) {
  const uint64_t bi = pos >> 3;
  if (bi + 8u <= ctx->buffer_size) {
    const uint64_t be = rtxBigEndian64(w);
    std::memcpy(ctx->buffer_data + bi, &be, 8);
    return;
  }
  for (uint64_t i = 0; i < nbytes; i++) ctx->buffer_data[bi + i] = static_cast<uint8_t>(w >> (56u - 8u * i));
}

/* The whole bytes that a cursor has gathered go to the buffer; fewer than 8 bits stay. */
inline void storeWholeBytes(rtxContext* ctx, rtxEncCur* cur) {
  const uint64_t whole = cur->n >> 3;
  if (whole == 0) return;
  storeTop(ctx, cur->pos, cur->w, whole);
  cur->pos += whole * 8u;
  cur->w = whole < 8 ? cur->w << (whole * 8u) : 0;
  cur->n -= whole * 8u;
}

}  // namespace

void rtxEncCurStart(rtxContext* ctx, rtxEncCur* cur) {
  const uint64_t p = rtxBitPos(ctx);
  cur->pos = p & ~static_cast<uint64_t>(7);
  cur->n = p & 7u;
  cur->w = 0;
  /* The bits already written in the current byte come first. */
  if (cur->n != 0 && (p >> 3) < ctx->buffer_size)
    cur->w = static_cast<uint64_t>(ctx->buffer_data[p >> 3] & static_cast<uint8_t>(0xFF00u >> cur->n)) << 56;
  cur->lim = gatherLimit(ctx, cur->pos);
}

int rtxEncCurFlush(rtxContext* ctx, rtxEncCur* cur, uint32_t nbits) {
  storeWholeBytes(ctx, cur);
  uint64_t lim = gatherLimit(ctx, cur->pos);
  if (cur->n + nbits > lim && ctx->dynamic) {
    /* The buffer grows from the bytes stored so far. */
    rtxSetBitPos(ctx, cur->pos);
    int stat = rtxEncGrow(ctx, cur->pos + cur->n + nbits);
    if (stat != 0) return stat;
    lim = gatherLimit(ctx, cur->pos);
  }
  cur->lim = lim;
  return cur->n + nbits > lim ? RT_ERR_BUFOVFLW : 0;
}

int rtxEncCurReserve(rtxContext* ctx, rtxEncCur* cur, uint64_t nbits) {
  const uint64_t end = cur->pos + cur->n + nbits;
  if (end <= static_cast<uint64_t>(ctx->buffer_size) * 8u) return 0;
  if (!ctx->dynamic) return RT_ERR_BUFOVFLW;
  /* Store what is gathered, so that the buffer grows with every bit written so far. */
  rtxEncCurSync(ctx, cur);
  int stat = rtxEncGrow(ctx, end);
  cur->lim = gatherLimit(ctx, cur->pos);
  return stat;
}

int rtxEncBytesBitsAt(rtxContext* ctx, rtxEncCur* cur, const uint8_t* src, uint32_t nbits) {
  if (nbits == 0) return 0;
  int stat = rtxEncCurReserve(ctx, cur, nbits);
  if (stat != 0) return stat;
  storeWholeBytes(ctx, cur);
  /* Eight source bytes at a time go in below the bits in w and out to the buffer, and the
     source bits that do not fit stay in w: the room is reserved, so only the last bytes of a
     fixed buffer are stored one by one. */
  uint32_t i = 0;
  const uint32_t full = nbits / 8u;
  for (; i + 8u <= full; i += 8) {
    uint64_t v;
    std::memcpy(&v, src + i, 8);
    v = rtxBigEndian64(v);
    storeTop(ctx, cur->pos, cur->w | (v >> cur->n), 8);
    cur->pos += 64u;
    cur->w = cur->n ? v << (64u - cur->n) : 0;
  }
  cur->lim = gatherLimit(ctx, cur->pos);
  /* The rest, at most 63 bits, in pieces of at most 7 bytes. */
  for (uint32_t left = nbits - i * 8u; left > 0;) {
    const uint32_t take = left > 56u ? 56u : left;
    const uint32_t nbytes = (take + 7u) / 8u;
    uint64_t v = 0;
    for (uint32_t k = 0; k < nbytes; k++) v = (v << 8) | src[i + k];
    stat = rtxEncBitsAt(ctx, cur, v >> (nbytes * 8u - take), take);
    if (stat != 0) return stat;
    i += nbytes;
    left -= take;
  }
  return 0;
}

void rtxEncCurSync(rtxContext* ctx, rtxEncCur* cur) {
  if (cur->n > 0) storeTop(ctx, cur->pos, cur->w, (cur->n + 7u) / 8u);
  rtxSetBitPos(ctx, cur->pos + cur->n);
}

int rtxInitContextBuffer(rtxContext* ctx, uint8_t* data, uint32_t size) {
  if (ctx == nullptr) return RT_ERR_INVPARAM;
  if (ctx->magic != kContextMagic) return RT_ERR_NOTINIT;
  if (data == nullptr) {
    if (size != 0) return RT_ERR_INVPARAM;
    /* A buffer already in use is left alone: a nested encoding begins a new buffer while
       the outer one is only saved, and the heap takes everything back at its reset. */
    auto* p = static_cast<uint8_t*>(rtxMemHeapAlloc(ctx, kInitialDynamicSize));
    if (p == nullptr) return RT_ERR_NOMEM;
    std::memset(p, 0, kInitialDynamicSize);
    ctx->buffer_data = p;
    ctx->buffer_size = kInitialDynamicSize;
    ctx->dynamic = 1;
  } else {
    /* A new buffer starts cleared: the padding after a message is zero. */
    std::memset(data, 0, size);
    ctx->buffer_data = data;
    ctx->buffer_size = size;
    ctx->dynamic = 0;
  }
  ctx->byte_index = 0;
  ctx->bit_offset = 8;
  return 0;
}

int rtxEncGrow(rtxContext* ctx, uint64_t endbit) {
  const uint32_t size = ctx->buffer_size;
  if (!ctx->dynamic) return endbit > static_cast<uint64_t>(size) * 8u ? RT_ERR_BUFOVFLW : 0;

  /* Room for a whole 64-bit window at the end position. */
  const uint64_t need = (endbit + 64u + 7u) / 8u;
  if (need <= size) return 0;
  if (need > 0xFFFFFFF8ull) return RT_ERR_NOMEM;
  uint64_t cap = size < kInitialDynamicSize ? kInitialDynamicSize : size;
  while (cap < need) cap *= 2;
  if (cap > 0xFFFFFFF8ull) cap = 0xFFFFFFF8ull;

  rtxMemHeap* h = &ctx->heap;
  uint8_t* old = ctx->buffer_data;
  const size_t oldRounded = (static_cast<size_t>(size) + 7u) & ~size_t(7);
  const size_t newRounded = (static_cast<size_t>(cap) + 7u) & ~size_t(7);
  if (old != nullptr && old == h->last && h->cur == old + oldRounded &&
      static_cast<size_t>(h->end - old) >= newRounded &&
      (h->limit == 0 || h->used + (newRounded - oldRounded) <= h->limit)) {
    /* The buffer is the newest allocation and its block has room: extend it in place. */
    h->cur = old + newRounded;
    h->used += newRounded - oldRounded;
    std::memset(old + size, 0, static_cast<size_t>(cap) - size);
    ctx->buffer_size = static_cast<uint32_t>(cap);
    return 0;
  }
  auto* p = static_cast<uint8_t*>(rtxMemHeapAlloc(ctx, static_cast<size_t>(cap)));
  if (p == nullptr) return RT_ERR_NOMEM;
  uint64_t written = (rtxBitPos(ctx) + 7u) / 8u;
  size_t keep = written < size ? static_cast<size_t>(written) : size;
  if (keep > 0) std::memcpy(p, old, keep);
  std::memset(p + keep, 0, static_cast<size_t>(cap) - keep);
  ctx->buffer_data = p;
  ctx->buffer_size = static_cast<uint32_t>(cap);
  return 0;
}

uint32_t pu_getMsgLen(const rtxContext* ctx) {
  if (ctx == nullptr) return 0;
  return static_cast<uint32_t>((rtxBitPos(ctx) + 7u) / 8u);
}

int rtxEncBits(rtxContext* ctx, uint32_t value, uint32_t nbits) {
  if (nbits > 32) return RT_ERR_INVPARAM;
  return rtxEncBitsFast(ctx, value, nbits);
}

int pe_ConsUInt64Slow(rtxContext* ctx, uint64_t value, uint64_t lower, uint64_t upper) {
  if (value < lower || value > upper) return RT_ERR_CONSVIO;
  const uint64_t offset = value - lower;
  const uint32_t nbits = rtxRangeBits(upper - lower);
  int stat = encReserve(ctx, nbits);
  if (stat != 0) return stat;
  if (nbits <= 32) return rtxEncBitsFast(ctx, offset, nbits);
  rtxEncBitsFast(ctx, offset >> 32, nbits - 32);
  return rtxEncBitsFast(ctx, offset & 0xFFFFFFFFull, 32);
}

int pe_Length(rtxContext* ctx, uint32_t count) {
  const Bounds b = boundsOf(ctx->size_constraint);
  if (!inBounds(b, count)) return RT_ERR_CONSVIO;
  int stat;
  if (usesConstrainedCount(b)) {
    stat = rtxEncBitsFast(ctx, count - b.lower, rtxRangeBits(b.upper - b.lower));
  } else if (count < kFragmentUnit) {
    stat = encReserve(ctx, count < 128 ? 8 : 16);
    if (stat == 0) putGeneralLength(ctx, count);
  } else {
    /* A fragmented count needs the items written between fragments: only strings do that. */
    stat = RT_ERR_BADLEN;
  }
  return stat != 0 ? stat : static_cast<int>(count);
}

int pe_BitString32(rtxContext* ctx, const rtxBitStr32* pvalue, uint32_t lower, uint32_t upper) {
  if (pvalue == nullptr) return RT_ERR_INVPARAM;
  if (pvalue->numbits > 32) return RT_ERR_CONSVIO;
  return encString(ctx, Bounds{true, lower, upper}, 1, pvalue->numbits, pvalue->data);
}

int pe_BitString(rtxContext* ctx, uint32_t numbits, const uint8_t* data) {
  return encString(ctx, boundsOf(ctx->size_constraint), 1, numbits, data);
}

int pe_OctetString(rtxContext* ctx, uint32_t numocts, const uint8_t* data) {
  return encString(ctx, boundsOf(ctx->size_constraint), 8, numocts, data);
}

int rtxEncBytesBits(rtxContext* ctx, const uint8_t* src, uint32_t nbits) {
  if (nbits == 0) return 0;
  if (src == nullptr) return RT_ERR_INVPARAM;
  rtxEncCur cur;
  rtxEncCurStart(ctx, &cur);
  int stat = rtxEncBytesBitsAt(ctx, &cur, src, nbits);
  if (stat == 0) rtxEncCurSync(ctx, &cur);
  return stat;
}

int32_t rtxLastBitSet(const uint8_t* data, uint32_t nbits) {
  if (data == nullptr || nbits == 0) return -1;
  uint32_t nbytes = (nbits + 7u) / 8u;
  for (uint32_t i = nbytes; i-- > 0;) {
    uint32_t byte = data[i];
    if (i == nbytes - 1 && (nbits & 7u)) byte &= 0xFFu << (8u - (nbits & 7u));
    if (byte == 0) continue;
    uint32_t bit = 7;
    while ((byte & 1u) == 0) {
      byte >>= 1;
      bit--;
    }
    return static_cast<int32_t>(i * 8u + bit);
  }
  return -1;
}
