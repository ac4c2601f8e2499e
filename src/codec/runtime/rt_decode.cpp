/*
 * Bit reader: buffer setup, bits, wide constrained whole numbers, length determinants and
 * bit and octet strings. Every read checks the remaining bits first; a read that fails
 * leaves the position where it was.
 */
#include <cstring>

#include "rt_internal.h"

using umts_rt::Bounds;
using umts_rt::boundsOf;
using umts_rt::kContextMagic;
using umts_rt::kFragmentUnit;
using umts_rt::usesConstrainedCount;

namespace {

/* Shared target of zero-length dynamic strings, so that their data is never null. */
const uint8_t kEmpty[1] = {0};

inline bool haveBits(const rtxContext* ctx, uint64_t nbits) {
  return rtxBitPos(ctx) + nbits <= static_cast<uint64_t>(ctx->buffer_size) * 8u;
}

/* Length determinant of the general form. A fragment header gives *fragment = true and
   *count = m * 16K; the caller restores the position on failure. */
int decGeneralLength(rtxContext* ctx, uint32_t* count, bool* fragment) {
  uint32_t first;
  int stat = rtxDecBitsFast(ctx, &first, 8);
  if (stat != 0) return stat;
  if ((first & 0x80u) == 0) {
    *count = first;
    *fragment = false;
    return 0;
  }
  if ((first & 0x40u) == 0) {
    uint32_t second;
    stat = rtxDecBitsFast(ctx, &second, 8);
    if (stat != 0) return stat;
    *count = ((first & 0x3Fu) << 8) | second;
    *fragment = false;
    return 0;
  }
  uint32_t m = first & 0x3Fu;
  if (m < 1 || m > 4) return RT_ERR_BADLEN;
  *count = m * kFragmentUnit;
  *fragment = true;
  return 0;
}

/* First length determinant of a counted item under `b`. A constrained count is checked
   against the bounds here; a general-form count is checked by the caller once known. */
int decCount(rtxContext* ctx, const Bounds& b, uint32_t* count, bool* fragment) {
  if (usesConstrainedCount(b)) {
    if (b.lower > b.upper) return RT_ERR_CONSVIO;
    uint32_t raw;
    int stat = rtxDecBitsFast(ctx, &raw, rtxRangeBits(b.upper - b.lower));
    if (stat != 0) return stat;
    if (raw > b.upper - b.lower) return RT_ERR_CONSVIO;
    *count = b.lower + raw;
    *fragment = false;
    return 0;
  }
  return decGeneralLength(ctx, count, fragment);
}

inline bool inBounds(const Bounds& b, uint64_t count) {
  return !b.constrained || (count >= b.lower && count <= b.upper);
}

/*
 * A string of `unit`-bit units (1: bits, 8: octets) under `b`: length determinant(s), then
 * the units. The whole item, fragments included, is checked before anything is stored.
 * With `heap` set the storage comes from the context heap and is returned in *pheap;
 * otherwise it is `dst` of `capacity` bytes, and a longer string fails with RT_ERR_CONSVIO.
 */
int decString(rtxContext* ctx, const Bounds& b, uint32_t unit, uint8_t* dst, uint32_t capacity,
              bool heap, const uint8_t** pheap, uint32_t* pcount) {
  const uint64_t start = rtxBitPos(ctx);
  uint32_t firstCount = 0, count = 0;
  bool firstFragment = false, fragment = false;
  uint64_t total = 0, dataStart = 0, endPos = 0, nbytes = 0;
  uint8_t* out = nullptr;

  int stat = decCount(ctx, b, &firstCount, &firstFragment);
  if (stat != 0) goto fail;
  dataStart = rtxBitPos(ctx);

  /* First pass: walk the fragments, checking lengths and the bits that remain. */
  count = firstCount;
  fragment = firstFragment;
  for (;;) {
    uint64_t bits = static_cast<uint64_t>(count) * unit;
    if (!fragment && !inBounds(b, total + count)) {
      stat = RT_ERR_CONSVIO;
      goto fail;
    }
    if (!haveBits(ctx, bits)) {
      stat = RT_ERR_ENDOFBUF;
      goto fail;
    }
    rtxSetBitPos(ctx, rtxBitPos(ctx) + bits);
    total += count;
    if (total > 0xFFFFFFFFull) {
      stat = RT_ERR_BADLEN;
      goto fail;
    }
    if (!fragment) break;
    stat = decGeneralLength(ctx, &count, &fragment);
    if (stat != 0) goto fail;
  }
  endPos = rtxBitPos(ctx);

  /* Storage. */
  nbytes = (total * unit + 7u) / 8u;
  if (heap) {
    if (nbytes == 0) {
      *pheap = kEmpty;
    } else {
      out = static_cast<uint8_t*>(rtxMemHeapAlloc(ctx, static_cast<size_t>(nbytes)));
      if (out == nullptr) {
        stat = RT_ERR_NOMEM;
        goto fail;
      }
      *pheap = out;
    }
  } else {
    if (nbytes > capacity) {
      stat = RT_ERR_CONSVIO;
      goto fail;
    }
    if (nbytes > 0 && dst == nullptr) {
      stat = RT_ERR_INVPARAM;
      goto fail;
    }
    out = dst;
  }

  /* Second pass: copy. Fragments hold whole octets, so each starts on a byte of `out`. */
  if (nbytes > 0) {
    uint64_t outByte = 0;
    rtxSetBitPos(ctx, dataStart);
    count = firstCount;
    fragment = firstFragment;
    for (;;) {
      uint32_t bits = count * unit;
      rtxDecBitsToBytes(ctx, out + outByte, bits);
      outByte += bits / 8u;
      if (!fragment) break;
      decGeneralLength(ctx, &count, &fragment);
    }
  }
  rtxSetBitPos(ctx, endPos);
  *pcount = static_cast<uint32_t>(total);
  return 0;

fail:
  rtxSetBitPos(ctx, start);
  return stat;
}

/* The common case of a bounded string whose length is a constrained count (upper bound
   below 64K), read in line through a cursor at the context's position. Returns 1 when the
   string was not of that kind and the general path must run. */
int decBoundedString(rtxContext* ctx, uint32_t unit, uint8_t* dst, uint32_t capacity, uint32_t* pcount, int* pstat) {
  rtxDecCur cur;
  rtxCurStart(&cur, rtxBitPos(ctx));
  if (rtxDecBoundedStringAt(ctx, &cur, unit, pcount, dst, capacity, pstat) != 0) return 1;
  if (*pstat == 0) rtxCurSync(ctx, &cur);
  return 0;
}

}  // namespace

int pu_setBuffer(rtxContext* ctx, const uint8_t* data, uint32_t size, uint8_t aligned) {
  if (ctx == nullptr) return RT_ERR_INVPARAM;
  if (ctx->magic != kContextMagic) return RT_ERR_NOTINIT;
  if (data == nullptr && size > 0) return RT_ERR_INVPARAM;
  /* The decoder never writes through buffer_data. */
  ctx->buffer_data = const_cast<uint8_t*>(data);
  ctx->byte_index = 0;
  ctx->buffer_size = size;
  ctx->bit_offset = 8;
  ctx->aligned = aligned;
  ctx->dynamic = 0;
  return 0;
}

int rtxDecBit(rtxContext* ctx, uint8_t* pvalue) {
  if (ctx->byte_index >= ctx->buffer_size) return RT_ERR_ENDOFBUF;
  uint8_t byte = ctx->buffer_data[ctx->byte_index];
  ctx->bit_offset--;
  if (ctx->bit_offset <= 0) {
    *pvalue = static_cast<uint8_t>(byte & 1u);
    ctx->byte_index++;
    ctx->bit_offset = 8;
  } else {
    *pvalue = static_cast<uint8_t>((byte >> ctx->bit_offset) & 1u);
  }
  return 0;
}

int rtxDecBits(rtxContext* ctx, uint32_t* pvalue, uint32_t nbits) {
  if (nbits > 32) return RT_ERR_INVPARAM;
  return rtxDecBitsFast(ctx, pvalue, nbits);
}

int rtxDecConsRangeWide(rtxContext* ctx, uint64_t* praw, uint64_t range) {
  const uint32_t nbits = rtxRangeBits(range);
  if (!haveBits(ctx, nbits)) return RT_ERR_ENDOFBUF;
  const uint64_t start = rtxBitPos(ctx);
  uint32_t hi = 0, lo = 0;
  rtxDecBitsFast(ctx, &hi, nbits - 32);
  rtxDecBitsFast(ctx, &lo, 32);
  const uint64_t raw = (static_cast<uint64_t>(hi) << 32) | lo;
  if (raw > range) {
    rtxSetBitPos(ctx, start);
    return RT_ERR_CONSVIO;
  }
  *praw = raw;
  return 0;
}

int pd_ConsUnsignedSlow(rtxContext* ctx, uint64_t* pvalue, uint64_t lower, uint64_t upper) {
  uint32_t nbits = rtxRangeBits(upper - lower);
  if (!haveBits(ctx, nbits)) return RT_ERR_ENDOFBUF;
  uint64_t raw;
  if (nbits <= 32) {
    uint32_t v = 0;
    rtxDecBitsFast(ctx, &v, nbits);
    raw = v;
  } else {
    uint32_t hi = 0, lo = 0;
    rtxDecBitsFast(ctx, &hi, nbits - 32);
    rtxDecBitsFast(ctx, &lo, 32);
    raw = (static_cast<uint64_t>(hi) << 32) | lo;
  }
  *pvalue = lower + raw;
  return 0;
}

int pd_Length(rtxContext* ctx, uint32_t* pvalue) {
  const uint64_t start = rtxBitPos(ctx);
  const Bounds b = boundsOf(ctx->size_constraint);
  uint32_t count;
  bool fragment;
  int stat = decCount(ctx, b, &count, &fragment);
  /* A fragmented count needs the item to be read between fragments: only strings do that. */
  if (stat == 0 && fragment) stat = RT_ERR_BADLEN;
  if (stat == 0 && !inBounds(b, count)) stat = RT_ERR_CONSVIO;
  if (stat != 0) {
    rtxSetBitPos(ctx, start);
    return stat;
  }
  *pvalue = count;
  return 0;
}

int pd_BitString32(rtxContext* ctx, rtxBitStr32* pvalue, uint32_t lower, uint32_t upper) {
  if (pvalue == nullptr) return RT_ERR_INVPARAM;
  uint8_t data[4] = {0, 0, 0, 0};
  uint32_t numbits;
  if (upper <= 32 && lower <= upper) {
    /* At most 32 bits: count and data straight from one window. */
    const uint64_t start = rtxBitPos(ctx);
    uint32_t raw = 0, bits;
    int stat = rtxDecBitsFast(ctx, &raw, rtxRangeBits(upper - lower));
    if (stat != 0) return stat;
    numbits = lower + raw;
    if (numbits > upper) {
      rtxSetBitPos(ctx, start);
      return RT_ERR_CONSVIO;
    }
    stat = rtxDecBitsFast(ctx, &bits, numbits);
    if (stat != 0) {
      rtxSetBitPos(ctx, start);
      return stat;
    }
    bits = numbits ? bits << (32u - numbits) : 0u;
    pvalue->numbits = numbits;
    pvalue->data[0] = static_cast<uint8_t>(bits >> 24);
    pvalue->data[1] = static_cast<uint8_t>(bits >> 16);
    pvalue->data[2] = static_cast<uint8_t>(bits >> 8);
    pvalue->data[3] = static_cast<uint8_t>(bits);
    return 0;
  }
  int stat = decString(ctx, Bounds{true, lower, upper}, 1, data, 4, false, nullptr, &numbits);
  if (stat != 0) return stat;
  pvalue->numbits = numbits;
  std::memcpy(pvalue->data, data, 4);
  return 0;
}

int pd_BitString(rtxContext* ctx, uint32_t* numbits, uint8_t* data, uint32_t capacity) {
  if (numbits == nullptr) return RT_ERR_INVPARAM;
  int stat;
  if (decBoundedString(ctx, 1, data, capacity, numbits, &stat) == 0) return stat;
  return decString(ctx, boundsOf(ctx->size_constraint), 1, data, capacity, false, nullptr, numbits);
}

int pd_DynBitString(rtxContext* ctx, rtxDynBitStr* pvalue) {
  if (pvalue == nullptr) return RT_ERR_INVPARAM;
  const uint8_t* data = nullptr;
  uint32_t numbits;
  int stat = decString(ctx, Bounds{false, 0, 0}, 1, nullptr, 0, true, &data, &numbits);
  if (stat != 0) return stat;
  pvalue->numbits = numbits;
  pvalue->data = data;
  return 0;
}

int pd_OctetString(rtxContext* ctx, uint32_t* numocts, uint8_t* data, uint32_t capacity) {
  if (numocts == nullptr) return RT_ERR_INVPARAM;
  int stat;
  if (decBoundedString(ctx, 8, data, capacity, numocts, &stat) == 0) return stat;
  return decString(ctx, boundsOf(ctx->size_constraint), 8, data, capacity, false, nullptr, numocts);
}

int pd_DynOctetString(rtxContext* ctx, rtxDynOctStr* pvalue) {
  if (pvalue == nullptr) return RT_ERR_INVPARAM;
  const uint8_t* data = nullptr;
  uint32_t numocts;
  int stat = decString(ctx, Bounds{false, 0, 0}, 8, nullptr, 0, true, &data, &numocts);
  if (stat != 0) return stat;
  pvalue->numocts = numocts;
  pvalue->data = data;
  return 0;
}

uint64_t rtxLoadTail(const rtxContext* ctx, uint64_t pos) {
  const uint8_t* data = ctx->buffer_data;
  const uint32_t size = ctx->buffer_size;
  const uint64_t end = static_cast<uint64_t>(size) * 8u;
  if (pos >= end) return 0;
  const uint32_t bi = static_cast<uint32_t>(pos >> 3);
  uint64_t w;
  if (static_cast<uint64_t>(bi) + 8u <= size) {
    std::memcpy(&w, data + bi, 8);
    return rtxBigEndian64(w) << (pos & 7u);
  }
  if (size >= 8u) {
    /* The last 8 bytes, shifted so that bit `pos` comes on top. */
    std::memcpy(&w, data + size - 8u, 8);
    return rtxBigEndian64(w) << (pos + 64u - end);
  }
  w = 0;
  for (uint32_t i = bi; i < size; i++) w |= static_cast<uint64_t>(data[i]) << (56u - 8u * (i - bi));
  return w << (pos & 7u);
}

int rtxDecBitsToBytes(rtxContext* ctx, uint8_t* dst, uint32_t nbits) {
  uint64_t pos = rtxBitPos(ctx);
  int stat = rtxDecBitsToBytesAt(ctx, &pos, dst, nbits);
  if (stat == 0) rtxSetBitPos(ctx, pos);
  return stat;
}

int rtxDecBitsToBytesAt(const rtxContext* ctx, uint64_t* ppos, uint8_t* dst, uint32_t nbits) {
  if (nbits == 0) return 0;
  const uint64_t pos = *ppos;
  const uint32_t size = ctx->buffer_size;
  if (pos + nbits > static_cast<uint64_t>(size) * 8u) return RT_ERR_ENDOFBUF;
  const uint32_t bi = static_cast<uint32_t>(pos >> 3);
  const uint32_t shift = static_cast<uint32_t>(pos & 7u);
  const uint32_t nbytes = (nbits + 7u) / 8u;
  if (shift == 0) {
    std::memcpy(dst, ctx->buffer_data + bi, nbytes);
  } else {
    /* Seven output bytes from each 8-byte load, shifted into place; the eighth byte stored
       is rewritten by the next step. Output byte o takes input bytes bi + o and bi + o + 1. */
    const uint8_t* src = ctx->buffer_data + bi;
    uint32_t o = 0;
    for (; o + 8u <= nbytes && bi + o + 8u <= size; o += 7u) {
      uint64_t w;
      std::memcpy(&w, src + o, 8);
      w = rtxBigEndian64(rtxBigEndian64(w) << shift);
      std::memcpy(dst + o, &w, 8);
    }
    /* At most seven bytes are left: one window (zero past the end of the buffer). */
    if (o < nbytes) {
      const uint64_t w = rtxLoadWindow(ctx, bi + o) << shift;
      for (uint32_t k = 0; o + k < nbytes; k++) dst[o + k] = static_cast<uint8_t>(w >> (56u - 8u * k));
    }
  }
  if (nbits & 7u) dst[nbytes - 1] &= static_cast<uint8_t>(0xFFu << (8u - (nbits & 7u)));
  *ppos = pos + nbits;
  return 0;
}
