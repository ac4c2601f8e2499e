/*
 * PER runtime of the RRC codec: decoding context, bit reader and writer, context heap,
 * linked lists, name path, error record, print helpers and enumerated-name lookup.
 *
 * Unaligned PER (X.691) only. Every generated function of the codec takes an rtxContext as
 * its first argument; a context serves one outermost decode or encode and owns everything
 * allocated during it, released in one step by rtFreeContext.
 *
 * The header is C-compatible. The fast paths of the bit reader, the bit writer and the name
 * path are inline so that the generated code never makes a call per bit.
 */
#ifndef UMTS_RRC_RT_H
#define UMTS_RRC_RT_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>
#include <string.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The fast paths below are small and called from generated code many times per message:
   they are always inlined. */
#if defined(__GNUC__) || defined(__clang__)
#define RT_INLINE static inline __attribute__((always_inline))
#else
#define RT_INLINE static inline
#endif

/* Branch hints: the fast path of a read, and failures. */
#if defined(__GNUC__) || defined(__clang__)
#define RT_LIKELY(x) __builtin_expect(!!(x), 1)
#define RT_UNLIKELY(x) __builtin_expect(!!(x), 0)
#else
#define RT_LIKELY(x) (x)
#define RT_UNLIKELY(x) (x)
#endif

/* ---- Statuses ------------------------------------------------------------------------- */

#define RT_OK 0
#define RT_ERR_BUFOVFLW (-1)  /* encode buffer full (fixed buffer) */
#define RT_ERR_ENDOFBUF (-2)  /* decode ran past the end of the buffer */
#define RT_ERR_INVPARAM (-3)  /* null or otherwise unusable argument */
#define RT_ERR_INVENUM (-4)   /* bad enumerated value or name */
#define RT_ERR_NOTINIT (-8)   /* context used before initialisation or after release */
#define RT_ERR_INVOPT (-9)    /* bad CHOICE index */
#define RT_ERR_NOMEM (-10)    /* context heap exhausted */
#define RT_ERR_BADLEN (-11)   /* length determinant that PER does not allow */
#define RT_ERR_CONSVIO (-16)  /* size or value outside its constraint */

/* Source name that the codec reports in its diagnostics. */
#define RT_CODEC_SRC "src/umtsSibParsing"

/* ---- Context -------------------------------------------------------------------------- */

typedef struct rtxSizeConstraint {
  uint32_t lower;
  uint32_t upper;
  uint32_t ext_lower; /* always 0: the schema has no extensible sizes */
  uint32_t ext_upper; /* always 0 */
} rtxSizeConstraint;

#define RT_MAX_PATH 48     /* name path entries kept; deeper pushes are counted only */
#define RT_MAX_ERR_LOCS 64 /* source positions kept per error */
#define RT_MAX_ERR_PARMS 5
#define RT_ERR_PARM_LEN 64
#define RT_HEAP_INLINE 4096 /* first heap block, inside the context: no malloc for small trees */

typedef struct rtxNameEntry {
  const char* name;
  int32_t index; /* array index, or -1 */
  uint32_t kind; /* 0 type name, 1 element name, 2 array element */
} rtxNameEntry;

typedef struct rtxErrLoc {
  const char* file;
  uint32_t line;
} rtxErrLoc;

typedef struct rtxErrInfo {
  int32_t status;  /* first failure status, 0 when none */
  uint32_t nlocs;  /* source positions, innermost first */
  rtxErrLoc locs[RT_MAX_ERR_LOCS];
  uint32_t nparms;
  char parms[RT_MAX_ERR_PARMS][RT_ERR_PARM_LEN];
  /* Names recorded by the generated code on its way out of a failure, innermost first;
     they continue the pushed path (rtxCtxtGetPath joins both). */
  uint32_t nunwound;
  rtxNameEntry unwound[RT_MAX_PATH];
} rtxErrInfo;

typedef struct rtxHeapBlock rtxHeapBlock; /* malloc'd overflow block, private to the runtime */

typedef struct rtxMemHeap {
  uint8_t* cur;          /* next free byte of the current block */
  uint8_t* end;          /* end of the current block */
  uint8_t* last;         /* start of the most recent allocation, for FreePtr */
  rtxHeapBlock* blocks;  /* overflow blocks, newest first */
  size_t used;           /* bytes handed out since the last reset */
  size_t limit;          /* 0: no limit; otherwise exhaustion is simulated beyond it */
  uint64_t inline_block[RT_HEAP_INLINE / 8];
} rtxMemHeap;

/* A context holds its first heap block inside itself: it is used in place and never copied
   by assignment (rtxCopyContext copies the buffer state only). */
typedef struct rtxContext {
  /* Buffer state. The generated code reads and writes these fields directly. */
  uint8_t* buffer_data;   /* bytes being decoded or written */
  uint32_t byte_index;    /* index of the byte now being read or written */
  uint32_t buffer_size;   /* bytes in the buffer (capacity when encoding) */
  int16_t bit_offset;     /* bits still free in the current byte: 8 at a byte start */
  uint8_t aligned;        /* 0: unaligned PER throughout */
  uint8_t dynamic;        /* encode buffer grows on the context heap */
  rtxSizeConstraint* size_constraint; /* constraint for the next length or string op */
  /* Everything below is the runtime's own. */
  rtxSizeConstraint size_constraint_store;
  uint32_t magic;         /* set by initialisation, cleared by rtFreeContext */
  uint32_t path_depth;
  rtxNameEntry path[RT_MAX_PATH];
  rtxErrInfo err;
  rtxMemHeap heap;
} rtxContext;

/* Initialisation. The key is accepted for interface compatibility and not checked. */
int rtInitContext(rtxContext* ctx);
int rtInitContextUsingKey(rtxContext* ctx, const uint8_t* key, size_t keylen);
/* Release the heap and everything decoded into it. Safe on a zeroed or released context. */
void rtFreeContext(rtxContext* ctx);
/* Reset for the next message: heap emptied in one step, error and name path cleared. */
void rtxResetContext(rtxContext* ctx);
/* Copy the buffer state (data, position, size, flags, size constraint) from src to dst. */
void rtxCopyContext(rtxContext* dst, const rtxContext* src);

/* ---- Heap ----------------------------------------------------------------------------- */

void* rtxMemHeapAllocSlow(rtxContext* ctx, size_t size);

/* Checking builds (the fuzz targets) define RT_HEAP_REDZONES to 1 for every unit: each
   allocation is then made out of line and followed by a gap that AddressSanitizer reports
   when touched. Allocations are no longer adjacent in such a build. */
#ifndef RT_HEAP_REDZONES
#define RT_HEAP_REDZONES 0
#endif

/* Memory from the context heap, 8-byte aligned and zeroed; null on exhaustion. Neither the
   context nor its heap blocks are cleared when they are set up or reused, so each allocation
   is cleared here: a decoded value never shows what an earlier decoding, or the stack that
   holds the context, left in its memory (members that a decoder leaves alone read as zero). */
RT_INLINE void* rtxMemHeapAlloc(rtxContext* ctx, size_t size) {
  size_t rounded = (size + 7u) & ~(size_t)7u;
  rtxMemHeap* h = &ctx->heap;
  void* p;
  if (!RT_HEAP_REDZONES && size <= RT_HEAP_INLINE && (size_t)(h->end - h->cur) >= rounded && (h->limit == 0 || h->used + rounded <= h->limit)) {
    uint8_t* q = h->cur;
    h->last = q;
    h->cur = q + rounded;
    h->used += rounded;
    p = q;
  } else {
    p = rtxMemHeapAllocSlow(ctx, size);
  }
  if (p) memset(p, 0, size);
  return p;
}

/* The same: every allocation is zeroed. */
RT_INLINE void* rtxMemHeapAllocZ(rtxContext* ctx, size_t size) { return rtxMemHeapAlloc(ctx, size); }

/* Give back one block. Only the most recent allocation is actually reclaimed; anything
   else stays until the context is reset or freed. */
void rtxMemHeapFreePtr(rtxContext* ctx, void* ptr);
/* Free everything on the heap at once. */
void rtxMemHeapReset(rtxContext* ctx);
/* Test hook: make allocations fail once `limit` bytes are in use (0 removes the limit). */
void rtxMemHeapSetLimit(rtxContext* ctx, size_t limit);

/* ---- Lists ---------------------------------------------------------------------------- */

typedef struct rtxDListNode {
  void* data;
  struct rtxDListNode* next;
  struct rtxDListNode* prev;
} rtxDListNode;

typedef struct rtxDList {
  uint32_t count;
  rtxDListNode* head;
  rtxDListNode* tail;
} rtxDList;

RT_INLINE void rtxDListInit(rtxDList* list) {
  list->count = 0;
  list->head = 0;
  list->tail = 0;
}

RT_INLINE void rtxDListAppendNode(rtxDList* list, rtxDListNode* node) {
  node->next = 0;
  node->prev = list->tail;
  if (list->tail) list->tail->next = node;
  else list->head = node;
  list->tail = node;
  list->count++;
}

/* ---- String records shared by the generated types ------------------------------------- */

typedef struct rtxBitStr32 {
  uint32_t numbits;
  uint8_t data[4];
} rtxBitStr32;

typedef struct rtxDynBitStr {
  uint32_t numbits;
  const uint8_t* data;
} rtxDynBitStr;

typedef struct rtxDynOctStr {
  uint32_t numocts;
  const uint8_t* data;
} rtxDynOctStr;

/* ---- Name path ------------------------------------------------------------------------ */

RT_INLINE void rtxCtxtPushName(rtxContext* ctx, const char* name, int32_t index, uint32_t kind) {
  uint32_t d = ctx->path_depth;
  if (d < RT_MAX_PATH) {
    ctx->path[d].name = name;
    ctx->path[d].index = index;
    ctx->path[d].kind = kind;
  }
  ctx->path_depth = d + 1;
}
RT_INLINE void rtxCtxtPopName(rtxContext* ctx) {
  if (ctx->path_depth) ctx->path_depth--;
}
RT_INLINE void rtxCtxtPushTypeName(rtxContext* ctx, const char* name) { rtxCtxtPushName(ctx, name, -1, 0); }
RT_INLINE void rtxCtxtPopTypeName(rtxContext* ctx) { rtxCtxtPopName(ctx); }
RT_INLINE void rtxCtxtPushElemName(rtxContext* ctx, const char* name) { rtxCtxtPushName(ctx, name, -1, 1); }
RT_INLINE void rtxCtxtPopElemName(rtxContext* ctx) { rtxCtxtPopName(ctx); }
RT_INLINE void rtxCtxtPushArrayElemName(rtxContext* ctx, const char* name, uint32_t index) {
  rtxCtxtPushName(ctx, name, (int32_t)index, 2);
}
RT_INLINE void rtxCtxtPopArrayElemName(rtxContext* ctx) { rtxCtxtPopName(ctx); }

/* The path as text, "MasterInformationBlock.plmn-Type.PLMN-Type.gsm-MAP..." with array
   elements as "Name[3]": the pushed names, then those recorded by a failure. Returns the number of characters written (truncated to size-1). */
size_t rtxCtxtGetPath(const rtxContext* ctx, char* buf, size_t size);

/* ---- Errors --------------------------------------------------------------------------- */

/* Record status and source position; the first status wins, each level adds its position.
   Returns `status`. */
int rtxErrSetData(rtxContext* ctx, int status, const char* file, int line);
/* rtxErrSetData, then the names of the level that fails, innermost first: the type of a
   scalar read in line, the element (with its array index, or -1), the type whose decoder or
   encoder this is; null names are skipped. The generated code builds the name path this way,
   on the way out of a failure, so that a message that decodes pays nothing for it. */
int rtxErrUnwind(rtxContext* ctx, int status, const char* file, int line, const char* inner, const char* elem,
                 int32_t index, const char* outer);
int rtxErrAddElemNameParm(rtxContext* ctx);
int rtxErrAddUIntParm(rtxContext* ctx, uint32_t value);
int rtxErrAddIntParm(rtxContext* ctx, int32_t value);
int rtxErrAddStrParm(rtxContext* ctx, const char* text);
/* As rtxErrAddStrParm for a text of `length` bytes that need not end in a null. */
int rtxErrAddStrnParm(rtxContext* ctx, const char* text, size_t length);
void rtxErrReset(rtxContext* ctx);
/* Text of a status, e.g. "end of buffer". */
const char* rtxErrStatusText(int status);
/* One-line report of the context's error: status, text, path, parameters, innermost
   source position. Returns the number of characters written (truncated to size-1). */
size_t rtxErrGetText(const rtxContext* ctx, char* buf, size_t size);

/* ---- Decoding ------------------------------------------------------------------------- */

/* Make `data` the decode buffer from its first bit. */
int pu_setBuffer(rtxContext* ctx, const uint8_t* data, uint32_t size, uint8_t aligned);

/* Absolute bit position of the next read or write. */
RT_INLINE uint64_t rtxBitPos(const rtxContext* ctx) {
  return (uint64_t)ctx->byte_index * 8u + (uint64_t)(8 - ctx->bit_offset);
}

RT_INLINE void rtxSetBitPos(rtxContext* ctx, uint64_t pos) {
  ctx->byte_index = (uint32_t)(pos >> 3);
  ctx->bit_offset = (int16_t)(8 - (int)(pos & 7u));
}

/* Host word to big-endian order and back. */
RT_INLINE uint64_t rtxBigEndian64(uint64_t w) {
#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
  return w;
#elif defined(__GNUC__) || defined(__clang__)
  return __builtin_bswap64(w);
#else
  return ((w & 0x00000000000000FFull) << 56) | ((w & 0x000000000000FF00ull) << 40) |
         ((w & 0x0000000000FF0000ull) << 24) | ((w & 0x00000000FF000000ull) << 8) |
         ((w & 0x000000FF00000000ull) >> 8) | ((w & 0x0000FF0000000000ull) >> 24) |
         ((w & 0x00FF000000000000ull) >> 40) | ((w & 0xFF00000000000000ull) >> 56);
#endif
}

/* The bits of the buffer from bit `pos` on, first on top, zero past the end (out of line:
   the reads near the end of a buffer). */
uint64_t rtxLoadTail(const rtxContext* ctx, uint64_t pos);

/* Big-endian window of 64 bits starting at byte `bi`, zero past the end. */
RT_INLINE uint64_t rtxLoadWindow(const rtxContext* ctx, uint32_t bi) {
  uint64_t w;
  if (RT_LIKELY((uint64_t)bi + 8u <= ctx->buffer_size)) {
    memcpy(&w, ctx->buffer_data + bi, 8);
    return rtxBigEndian64(w);
  }
  return rtxLoadTail(ctx, (uint64_t)bi * 8u);
}

/* Number of bits PER gives to a constrained whole number of the range 0..range. */
RT_INLINE uint32_t rtxRangeBits(uint64_t range) {
#if defined(__GNUC__) || defined(__clang__)
  return range ? 64u - (uint32_t)__builtin_clzll(range) : 0u;
#else
  uint32_t n = 0;
  while (range) {
    n++;
    range >>= 1;
  }
  return n;
#endif
}

/* ---- The read cursor -------------------------------------------------------------------

   The generated decoders read through a cursor that the bodies of one message hand to each
   other, so that it lives in registers while fields are read: the next bits of the buffer,
   first bit on top, as many as one 8-byte load gives. A read takes its bits from the top and
   shifts them out; only when too few are left does it load again, and only a load near the
   end of the buffer looks for the end. byte_index and bit_offset are brought up to date where
   the context must show the position: before a runtime call that reads through the context,
   at a failure, and when the outermost decoder returns. A read that fails leaves the position
   where it was. */
typedef struct rtxDecCur {
  uint64_t w;    /* the unread bits, first on top, zero below them */
  uint64_t left; /* bits of w that are unread and inside the buffer */
  uint64_t end;  /* bit position just past them: the next read is at end - left */
} rtxDecCur;

RT_INLINE uint64_t rtxCurPos(const rtxDecCur* cur) { return cur->end - cur->left; }

/* Start reading at bit `pos`; the first read loads. */
RT_INLINE void rtxCurStart(rtxDecCur* cur, uint64_t pos) {
  cur->w = 0;
  cur->left = 0;
  cur->end = pos;
}

/* The context shows the cursor's position. */
RT_INLINE void rtxCurSync(rtxContext* ctx, const rtxDecCur* cur) { rtxSetBitPos(ctx, rtxCurPos(cur)); }

/* Load the bits from the cursor's position on: at least 57 of them while 8 bytes are left. */
RT_INLINE void rtxCurFill(const rtxContext* ctx, rtxDecCur* cur) {
  const uint64_t p = cur->end - cur->left;
  const uint32_t bi = (uint32_t)(p >> 3);
  if (RT_LIKELY((uint64_t)bi + 8u <= ctx->buffer_size)) {
    uint64_t w;
    memcpy(&w, ctx->buffer_data + bi, 8);
    cur->w = rtxBigEndian64(w) << (p & 7u);
    cur->end = ((uint64_t)bi + 8u) * 8u;
  } else {
    cur->w = rtxLoadTail(ctx, p);
    cur->end = (uint64_t)ctx->buffer_size * 8u;
  }
  cur->left = cur->end - p;
}

/* Make `nbits` (0..57) readable: RT_ERR_ENDOFBUF if the buffer ends before them. */
RT_INLINE int rtxCurNeed(const rtxContext* ctx, rtxDecCur* cur, uint32_t nbits) {
  if (RT_LIKELY(cur->left >= nbits)) return 0;
  rtxCurFill(ctx, cur);
  return cur->left >= nbits ? 0 : RT_ERR_ENDOFBUF;
}

/* The next `nbits` (0..57) as a number, after rtxCurNeed; two shifts, so that 0 bits give 0. */
RT_INLINE uint64_t rtxCurPeek(const rtxDecCur* cur, uint32_t nbits) { return (cur->w >> (63u - nbits)) >> 1; }

RT_INLINE void rtxCurSkip(rtxDecCur* cur, uint32_t nbits) {
  cur->w <<= nbits;
  cur->left -= nbits;
}

/* Read `nbits` (0..32) as an unsigned number, first bit most significant. */
RT_INLINE int rtxDecBitsAt(const rtxContext* ctx, rtxDecCur* cur, uint32_t nbits, uint32_t* pvalue) {
  if (nbits == 0) {
    *pvalue = 0;
    return 0;
  }
  if (RT_UNLIKELY(rtxCurNeed(ctx, cur, nbits) != 0)) return RT_ERR_ENDOFBUF;
  *pvalue = (uint32_t)rtxCurPeek(cur, nbits);
  rtxCurSkip(cur, nbits);
  return 0;
}

/* One presence or BOOLEAN bit. */
RT_INLINE int rtxDecBitAt(const rtxContext* ctx, rtxDecCur* cur, uint8_t* pbit) {
  uint32_t v;
  int stat = rtxDecBitsAt(ctx, cur, 1, &v);
  if (stat == 0) *pbit = (uint8_t)v;
  return stat;
}

/* Read `nbits` (0..32) at the context's position. */
RT_INLINE int rtxDecBitsFast(rtxContext* ctx, uint32_t* pvalue, uint32_t nbits) {
  rtxDecCur cur;
  int stat;
  rtxCurStart(&cur, rtxBitPos(ctx));
  stat = rtxDecBitsAt(ctx, &cur, nbits, pvalue);
  if (stat == 0) rtxCurSync(ctx, &cur);
  return stat;
}

int rtxDecBit(rtxContext* ctx, uint8_t* pvalue);
int rtxDecBits(rtxContext* ctx, uint32_t* pvalue, uint32_t nbits);

/* Read one presence or BOOLEAN bit: inline while the buffer lasts, rtxDecBit at its end. */
RT_INLINE int rtxDecBitInline(rtxContext* ctx, uint8_t* pbit) {
  if (ctx->byte_index >= ctx->buffer_size) return rtxDecBit(ctx, pbit);
  {
    uint8_t byte = ctx->buffer_data[ctx->byte_index];
    ctx->bit_offset--;
    if (ctx->bit_offset == 0) {
      *pbit = (uint8_t)(byte & 1u);
      ctx->byte_index++;
      ctx->bit_offset = 8;
    } else {
      *pbit = (uint8_t)((byte >> ctx->bit_offset) & 1u);
    }
  }
  return 0;
}

int pd_ConsUnsignedSlow(rtxContext* ctx, uint64_t* pvalue, uint64_t lower, uint64_t upper);
int rtxDecConsRangeWide(rtxContext* ctx, uint64_t* praw, uint64_t range);

/* A runtime call at the context's position: the context shows the cursor's position first,
   and the cursor goes on from where the call left the context. */
RT_INLINE int rtxCurResume(const rtxContext* ctx, rtxDecCur* cur, int stat) {
  rtxCurStart(cur, rtxBitPos(ctx));
  return stat;
}
#define RT_CUR_CALL(ctx, cur, call) (rtxCurSync((ctx), (cur)), rtxCurResume((ctx), (cur), (call)))

/* Constrained whole number lower..upper. The value is not tested against `upper` here: a
   CHOICE index or ENUMERATED value is tested (or not) by the generated code. */
RT_INLINE int pd_ConsUnsignedAt(rtxContext* ctx, rtxDecCur* cur, uint32_t* pvalue, uint64_t lower, uint64_t upper) {
  uint64_t range = upper - lower;
  if (range <= 0xFFFFFFFFull) {
    uint32_t raw;
    int stat = rtxDecBitsAt(ctx, cur, rtxRangeBits(range), &raw);
    if (stat != 0) return stat;
    *pvalue = (uint32_t)(lower + raw);
    return 0;
  } else {
    uint64_t v;
    int stat = RT_CUR_CALL(ctx, cur, pd_ConsUnsignedSlow(ctx, &v, lower, upper));
    if (stat == 0) *pvalue = (uint32_t)v;
    return stat;
  }
}

/* Offset from the lower bound of a constrained integer; beyond `range` it fails with
   RT_ERR_CONSVIO and reads nothing. Ranges wider than 32 bits take the out-of-line path. */
RT_INLINE int rtxDecConsRangeAt(rtxContext* ctx, rtxDecCur* cur, uint64_t* praw, uint64_t range) {
  const uint32_t nbits = rtxRangeBits(range);
  uint64_t raw;
  if (nbits > 32) return RT_CUR_CALL(ctx, cur, rtxDecConsRangeWide(ctx, praw, range));
  if (nbits == 0) {
    *praw = 0;
    return 0;
  }
  if (RT_UNLIKELY(rtxCurNeed(ctx, cur, nbits) != 0)) return RT_ERR_ENDOFBUF;
  raw = rtxCurPeek(cur, nbits);
  if (raw > range) return RT_ERR_CONSVIO;
  rtxCurSkip(cur, nbits);
  *praw = raw;
  return 0;
}

/* Integer reads: the value must lie within lower..upper, else RT_ERR_CONSVIO. */
#define RT_DEFINE_CONS_AT(name, ctype, btype)                                                          \
  RT_INLINE int name(rtxContext* ctx, rtxDecCur* cur, ctype* pvalue, btype lower, btype upper) {      \
    uint64_t raw;                                                                                       \
    int stat = rtxDecConsRangeAt(ctx, cur, &raw, (uint64_t)upper - (uint64_t)lower);                   \
    if (stat == 0) *pvalue = (ctype)((uint64_t)lower + raw);                                           \
    return stat;                                                                                        \
  }
RT_DEFINE_CONS_AT(pd_ConsUInt8At, uint8_t, uint64_t)
RT_DEFINE_CONS_AT(pd_ConsUInt16At, uint16_t, uint64_t)
RT_DEFINE_CONS_AT(pd_ConsUInt32At, uint32_t, uint64_t)
RT_DEFINE_CONS_AT(pd_ConsInt8At, int8_t, int64_t)
RT_DEFINE_CONS_AT(pd_ConsInt16At, int16_t, int64_t)
RT_DEFINE_CONS_AT(pd_ConsIntegerAt, int32_t, int64_t)
#undef RT_DEFINE_CONS_AT

/* The same reads at the context's position. */
#define RT_DEFINE_CONS(name, at, ctype, btype)                                                         \
  RT_INLINE int name(rtxContext* ctx, ctype* pvalue, btype lower, btype upper) {                      \
    rtxDecCur cur;                                                                                      \
    int stat;                                                                                           \
    rtxCurStart(&cur, rtxBitPos(ctx));                                                                  \
    stat = at(ctx, &cur, pvalue, lower, upper);                                                         \
    if (stat == 0) rtxCurSync(ctx, &cur);                                                               \
    return stat;                                                                                        \
  }
RT_DEFINE_CONS(pd_ConsUnsigned, pd_ConsUnsignedAt, uint32_t, uint64_t)
RT_DEFINE_CONS(pd_ConsUInt8, pd_ConsUInt8At, uint8_t, uint64_t)
RT_DEFINE_CONS(pd_ConsUInt16, pd_ConsUInt16At, uint16_t, uint64_t)
RT_DEFINE_CONS(pd_ConsUInt32, pd_ConsUInt32At, uint32_t, uint64_t)
RT_DEFINE_CONS(pd_ConsInt8, pd_ConsInt8At, int8_t, int64_t)
RT_DEFINE_CONS(pd_ConsInt16, pd_ConsInt16At, int16_t, int64_t)
RT_DEFINE_CONS(pd_ConsInteger, pd_ConsIntegerAt, int32_t, int64_t)
#undef RT_DEFINE_CONS

/* Length determinant under size_constraint: a constrained count when the upper bound is
   below 64K, the general form otherwise. A count outside lower..upper fails. */
int pd_Length(rtxContext* ctx, uint32_t* pvalue);
/* Bit strings. The fixed forms never write beyond their storage. */
int pd_BitString32(rtxContext* ctx, rtxBitStr32* pvalue, uint32_t lower, uint32_t upper);
int pd_BitString(rtxContext* ctx, uint32_t* numbits, uint8_t* data, uint32_t capacity);
int pd_DynBitString(rtxContext* ctx, rtxDynBitStr* pvalue);
int pd_OctetString(rtxContext* ctx, uint32_t* numocts, uint8_t* data, uint32_t capacity);
int pd_DynOctetString(rtxContext* ctx, rtxDynOctStr* pvalue);
/* Copy `nbits` from the buffer to `dst` (first bit in the top of dst[0]); the caller has
   checked that dst holds (nbits + 7) / 8 bytes. Unused low bits of the last byte are 0. */
int rtxDecBitsToBytes(rtxContext* ctx, uint8_t* dst, uint32_t nbits);
/* The same at bit `*pos`, which it advances. */
int rtxDecBitsToBytesAt(const rtxContext* ctx, uint64_t* pos, uint8_t* dst, uint32_t nbits);

/* Length determinant. A constrained count (upper bound below 64K) is read in line. */
RT_INLINE int pd_LengthAt(rtxContext* ctx, rtxDecCur* cur, uint32_t* pvalue) {
  const rtxSizeConstraint* sc = ctx->size_constraint;
  if (sc != 0 && sc->upper < 65536u && sc->lower <= sc->upper) {
    uint64_t raw;
    int stat = rtxDecConsRangeAt(ctx, cur, &raw, sc->upper - sc->lower);
    if (stat == 0) *pvalue = sc->lower + (uint32_t)raw;
    return stat;
  }
  return RT_CUR_CALL(ctx, cur, pd_Length(ctx, pvalue));
}

/* Bit string of at most 32 bits, read in line. */
RT_INLINE int pd_BitString32At(rtxContext* ctx, rtxDecCur* cur, rtxBitStr32* pvalue, uint32_t lower, uint32_t upper) {
  if (pvalue != 0 && upper <= 32u && lower <= upper) {
    const uint32_t k = rtxRangeBits(upper - lower);
    uint32_t numbits, bits;
    if (RT_UNLIKELY(rtxCurNeed(ctx, cur, k) != 0)) return RT_ERR_ENDOFBUF;
    numbits = lower + (uint32_t)rtxCurPeek(cur, k);
    if (numbits > upper) return RT_ERR_CONSVIO;
    if (RT_UNLIKELY(rtxCurNeed(ctx, cur, k + numbits) != 0)) return RT_ERR_ENDOFBUF;
    bits = (uint32_t)(((cur->w << k) >> 32) & ~(0xFFFFFFFFull >> numbits));
    rtxCurSkip(cur, k + numbits);
    pvalue->numbits = numbits;
    pvalue->data[0] = (uint8_t)(bits >> 24);
    pvalue->data[1] = (uint8_t)(bits >> 16);
    pvalue->data[2] = (uint8_t)(bits >> 8);
    pvalue->data[3] = (uint8_t)bits;
    return 0;
  }
  return RT_CUR_CALL(ctx, cur, pd_BitString32(ctx, pvalue, lower, upper));
}

/* A string of `unit`-bit units (1 or 8) whose count is constrained below 64K, copied into
   `data` of `capacity` bytes. Returns 1 when the string is not of that kind. */
RT_INLINE int rtxDecBoundedStringAt(rtxContext* ctx, rtxDecCur* cur, uint32_t unit, uint32_t* pcount, uint8_t* data,
                                    uint32_t capacity, int* pstat) {
  const rtxSizeConstraint* sc = ctx->size_constraint;
  if (pcount == 0 || data == 0 || sc == 0 || sc->upper >= 65536u || sc->lower > sc->upper) return 1;
  {
    const uint32_t k = rtxRangeBits(sc->upper - sc->lower);
    uint32_t count;
    uint64_t pos;
    if (RT_UNLIKELY(rtxCurNeed(ctx, cur, k) != 0)) {
      *pstat = RT_ERR_ENDOFBUF;
      return 0;
    }
    count = sc->lower + (uint32_t)rtxCurPeek(cur, k);
    if (count > sc->upper || ((uint64_t)count * unit + 7u) / 8u > capacity) {
      *pstat = RT_ERR_CONSVIO;
      return 0;
    }
    pos = rtxCurPos(cur) + k;
    *pstat = rtxDecBitsToBytesAt(ctx, &pos, data, count * unit);
    if (*pstat == 0) {
      rtxCurStart(cur, pos);
      *pcount = count;
    }
    return 0;
  }
}

/* Bounded bit and octet strings: those with a count below 64K are read without a call. */
RT_INLINE int pd_BitStringAt(rtxContext* ctx, rtxDecCur* cur, uint32_t* numbits, uint8_t* data, uint32_t capacity) {
  int stat;
  if (rtxDecBoundedStringAt(ctx, cur, 1, numbits, data, capacity, &stat) == 0) return stat;
  return RT_CUR_CALL(ctx, cur, pd_BitString(ctx, numbits, data, capacity));
}

RT_INLINE int pd_OctetStringAt(rtxContext* ctx, rtxDecCur* cur, uint32_t* numocts, uint8_t* data, uint32_t capacity) {
  int stat;
  if (rtxDecBoundedStringAt(ctx, cur, 8, numocts, data, capacity, &stat) == 0) return stat;
  return RT_CUR_CALL(ctx, cur, pd_OctetString(ctx, numocts, data, capacity));
}

RT_INLINE int pd_DynBitStringAt(rtxContext* ctx, rtxDecCur* cur, rtxDynBitStr* pvalue) {
  return RT_CUR_CALL(ctx, cur, pd_DynBitString(ctx, pvalue));
}

RT_INLINE int pd_DynOctetStringAt(rtxContext* ctx, rtxDecCur* cur, rtxDynOctStr* pvalue) {
  return RT_CUR_CALL(ctx, cur, pd_DynOctetString(ctx, pvalue));
}

/* ---- Encoding ------------------------------------------------------------------------- */

/* Begin a new output buffer; data null and size 0 ask for one that grows on the heap. */
int rtxInitContextBuffer(rtxContext* ctx, uint8_t* data, uint32_t size);
/* Bytes encoded so far in the current buffer (a started byte counts). */
uint32_t pu_getMsgLen(const rtxContext* ctx);
/* Start of the encoded bytes of the current buffer. */
static inline const uint8_t* rtxEncGetBuffer(const rtxContext* ctx) { return ctx->buffer_data; }

int rtxEncGrow(rtxContext* ctx, uint64_t endbit);

/* ---- The write cursor ------------------------------------------------------------------

   The generated encoders write through a cursor that their bodies hand to each other, the
   mirror of the read cursor: new bits are gathered in a register below those already there,
   and the buffer is written a whole 8-byte word at a time when the register is full. Where
   the context must show the position (around runtime calls, at a failure, on return) the
   gathered bits are stored and byte_index/bit_offset brought up to date. Nothing relies on
   the bytes beyond the position: every store sets them. */
typedef struct rtxEncCur {
  uint64_t w;   /* bits not yet stored, first on top, zero below them */
  uint64_t n;   /* how many */
  uint64_t pos; /* bit position of the first of them, at the start of a byte */
  uint64_t lim; /* bits that w may hold before the buffer is looked at: at most 64, and no
                   more than the buffer holds from pos on */
} rtxEncCur;

/* Start writing at the context's position (the bits of its current byte are kept). */
void rtxEncCurStart(rtxContext* ctx, rtxEncCur* cur);
/* Store the whole bytes gathered and make room for `nbits` more: a fixed buffer that cannot
   hold them fails with RT_ERR_BUFOVFLW, a growing one grows. Nothing is written by a failure. */
int rtxEncCurFlush(rtxContext* ctx, rtxEncCur* cur, uint32_t nbits);
/* Store everything gathered; the context shows the position. */
void rtxEncCurSync(rtxContext* ctx, rtxEncCur* cur);

/* Append `nbits` (0..57) of `value`, most significant first. */
RT_INLINE int rtxEncBitsAt(rtxContext* ctx, rtxEncCur* cur, uint64_t value, uint32_t nbits) {
  if (RT_UNLIKELY(cur->n + nbits > cur->lim)) {
    int stat = rtxEncCurFlush(ctx, cur, nbits);
    if (stat != 0) return stat;
  }
  if (nbits != 0) cur->w |= (value << (64u - nbits)) >> cur->n;
  cur->n += nbits;
  return 0;
}

RT_INLINE int rtxEncBitAt(rtxContext* ctx, rtxEncCur* cur, uint8_t bit) { return rtxEncBitsAt(ctx, cur, bit ? 1u : 0u, 1); }

/* A runtime call at the context's position: the gathered bits are stored first, and the
   cursor goes on from where the call left the context. */
RT_INLINE int rtxEncCurResume(rtxContext* ctx, rtxEncCur* cur, int stat) {
  rtxEncCurStart(ctx, cur);
  return stat;
}
#define RT_ENC_CALL(ctx, cur, call) (rtxEncCurSync((ctx), (cur)), rtxEncCurResume((ctx), (cur), (call)))

/* Append `nbits` (0..57) of `value` at the context's position. */
RT_INLINE int rtxEncBitsFast(rtxContext* ctx, uint64_t value, uint32_t nbits) {
  rtxEncCur cur;
  int stat;
  rtxEncCurStart(ctx, &cur);
  stat = rtxEncBitsAt(ctx, &cur, value, nbits);
  rtxEncCurSync(ctx, &cur);
  return stat;
}

RT_INLINE int rtxEncBit(rtxContext* ctx, uint8_t bit) { return rtxEncBitsFast(ctx, bit ? 1u : 0u, 1); }
int rtxEncBits(rtxContext* ctx, uint32_t value, uint32_t nbits);

/* Constrained whole numbers; a value outside lower..upper fails with RT_ERR_CONSVIO before
   any bit is written. */
int pe_ConsUInt64Slow(rtxContext* ctx, uint64_t value, uint64_t lower, uint64_t upper);
RT_INLINE int pe_ConsUInt64At(rtxContext* ctx, rtxEncCur* cur, uint64_t value, uint64_t lower, uint64_t upper) {
  uint64_t range = upper - lower;
  if (value < lower || value > upper) return RT_ERR_CONSVIO;
  if (range <= 0x01FFFFFFFFFFFFFFull) return rtxEncBitsAt(ctx, cur, value - lower, rtxRangeBits(range));
  return RT_ENC_CALL(ctx, cur, pe_ConsUInt64Slow(ctx, value, lower, upper));
}
RT_INLINE int pe_ConsInt64At(rtxContext* ctx, rtxEncCur* cur, int64_t value, int64_t lower, int64_t upper) {
  uint64_t range = (uint64_t)upper - (uint64_t)lower;
  if (value < lower || value > upper) return RT_ERR_CONSVIO;
  if (range <= 0x01FFFFFFFFFFFFFFull)
    return rtxEncBitsAt(ctx, cur, (uint64_t)value - (uint64_t)lower, rtxRangeBits(range));
  return RT_ENC_CALL(ctx, cur, pe_ConsUInt64Slow(ctx, (uint64_t)value - (uint64_t)lower, 0, range));
}
/* The same writes at the context's position. */
#define RT_DEFINE_CONS_PUT(name, at, vtype)                                             \
  RT_INLINE int name(rtxContext* ctx, vtype value, vtype lower, vtype upper) {         \
    rtxEncCur cur;                                                                       \
    int stat;                                                                            \
    rtxEncCurStart(ctx, &cur);                                                           \
    stat = at(ctx, &cur, value, lower, upper);                                           \
    rtxEncCurSync(ctx, &cur);                                                            \
    return stat;                                                                         \
  }
RT_DEFINE_CONS_PUT(pe_ConsUInt64, pe_ConsUInt64At, uint64_t)
RT_DEFINE_CONS_PUT(pe_ConsInt64, pe_ConsInt64At, int64_t)
#undef RT_DEFINE_CONS_PUT

/* Length under size_constraint. Returns a negative status, or the count (not negative). */
int pe_Length(rtxContext* ctx, uint32_t count);
int pe_BitString32(rtxContext* ctx, const rtxBitStr32* pvalue, uint32_t lower, uint32_t upper);
int pe_BitString(rtxContext* ctx, uint32_t numbits, const uint8_t* data);
int pe_OctetString(rtxContext* ctx, uint32_t numocts, const uint8_t* data);
/* Append `nbits` taken from `src` (first bit in the top of src[0]). */
int rtxEncBytesBits(rtxContext* ctx, const uint8_t* src, uint32_t nbits);
/* Index of the last bit that is 1 among the first `nbits` of `data`, -1 if none. */
int32_t rtxLastBitSet(const uint8_t* data, uint32_t nbits);

/* Length under size_constraint; a constrained count (upper bound below 64K) is written in
   line. Returns a negative status, or the count. */
RT_INLINE int pe_LengthAt(rtxContext* ctx, rtxEncCur* cur, uint32_t count) {
  const rtxSizeConstraint* sc = ctx->size_constraint;
  if (sc != 0 && sc->upper < 65536u && sc->lower <= sc->upper) {
    int stat;
    if (count < sc->lower || count > sc->upper) return RT_ERR_CONSVIO;
    stat = rtxEncBitsAt(ctx, cur, count - sc->lower, rtxRangeBits(sc->upper - sc->lower));
    return stat != 0 ? stat : (int)count;
  }
  return RT_ENC_CALL(ctx, cur, pe_Length(ctx, count));
}

/* Bit string of at most 32 bits, written in line. */
RT_INLINE int pe_BitString32At(rtxContext* ctx, rtxEncCur* cur, const rtxBitStr32* pvalue, uint32_t lower, uint32_t upper) {
  if (pvalue != 0 && upper <= 32u && lower <= upper && pvalue->numbits >= lower && pvalue->numbits <= upper) {
    const uint32_t k = rtxRangeBits(upper - lower);
    const uint32_t numbits = pvalue->numbits;
    const uint64_t bits = ((uint64_t)pvalue->data[0] << 24) | ((uint64_t)pvalue->data[1] << 16) |
                          ((uint64_t)pvalue->data[2] << 8) | (uint64_t)pvalue->data[3];
    /* count and bits in one write: at most 6 + 32 bits */
    return rtxEncBitsAt(ctx, cur, (((uint64_t)(numbits - lower) << 32) | bits) >> (32u - numbits), k + numbits);
  }
  return RT_ENC_CALL(ctx, cur, pe_BitString32(ctx, pvalue, lower, upper));
}

/* Room in the buffer for `nbits` more from the cursor's position: a fixed buffer that cannot
   hold them fails with RT_ERR_BUFOVFLW, a growing one grows. */
int rtxEncCurReserve(rtxContext* ctx, rtxEncCur* cur, uint64_t nbits);
/* Append `nbits` taken from `src` (first bit in the top of src[0]). */
int rtxEncBytesBitsAt(rtxContext* ctx, rtxEncCur* cur, const uint8_t* src, uint32_t nbits);

/* A string of `count` units of `unit` bits (1 or 8) whose count is constrained below 64K:
   count and units, with room for both made first. Returns 1 when the string is not of that
   kind. */
RT_INLINE int rtxEncBoundedStringAt(rtxContext* ctx, rtxEncCur* cur, uint32_t unit, uint32_t count,
                                    const uint8_t* data, int* pstat) {
  const rtxSizeConstraint* sc = ctx->size_constraint;
  if (sc == 0 || sc->upper >= 65536u || sc->lower > sc->upper || (data == 0 && count > 0)) return 1;
  if (count < sc->lower || count > sc->upper) {
    *pstat = RT_ERR_CONSVIO;
    return 0;
  }
  {
    const uint32_t k = rtxRangeBits(sc->upper - sc->lower);
    int stat = rtxEncCurReserve(ctx, cur, (uint64_t)k + (uint64_t)count * unit);
    if (stat == 0) stat = rtxEncBitsAt(ctx, cur, count - sc->lower, k);
    if (stat == 0) stat = rtxEncBytesBitsAt(ctx, cur, data, count * unit);
    *pstat = stat;
  }
  return 0;
}

RT_INLINE int pe_BitStringAt(rtxContext* ctx, rtxEncCur* cur, uint32_t numbits, const uint8_t* data) {
  int stat;
  if (rtxEncBoundedStringAt(ctx, cur, 1, numbits, data, &stat) == 0) return stat;
  return RT_ENC_CALL(ctx, cur, pe_BitString(ctx, numbits, data));
}

RT_INLINE int pe_OctetStringAt(rtxContext* ctx, rtxEncCur* cur, uint32_t numocts, const uint8_t* data) {
  int stat;
  if (rtxEncBoundedStringAt(ctx, cur, 8, numocts, data, &stat) == 0) return stat;
  return RT_ENC_CALL(ctx, cur, pe_OctetString(ctx, numocts, data));
}

/* ---- Printing ------------------------------------------------------------------------- */

/* Print output goes through one process-wide buffer, flushed to the print stream (standard
   output unless set) whenever a top-level record is closed or the buffer fills. */
void rtxPrintSetStream(FILE* stream);
void rtxPrintFlush(void);
void rtxPrintIndent(void);
void rtxPrintOpenBrace(const char* name);
void rtxPrintCloseBrace(void);
void rtxPrintUnsigned(const char* name, uint32_t value);
void rtxPrintInteger(const char* name, int32_t value);
void rtxPrintBoolean(const char* name, uint8_t value);
void rtxPrintNull(const char* name);
void rtxPrintEnum(const char* name, const char* valueName);
void rtPrintBitStrBraceText(const char* name, uint32_t numbits, const uint8_t* data);
void rtxPrintHexStr(const char* name, uint32_t numocts, const uint8_t* data);
int rtxUIntToCharStr(uint32_t value, char* dest, uint32_t size, uint32_t pad);
/* Concatenate up to five texts (a null ends the list) into dest of `size` bytes. */
char* rtxStrJoin(char* dest, size_t size, const char* s1, const char* s2, const char* s3,
                 const char* s4, const char* s5);

/* ---- Enumerated names ----------------------------------------------------------------- */

typedef struct rtxEnumEntry {
  const char* name;  /* the schema's name, hyphens kept */
  uint32_t value;    /* position in the schema */
  uint16_t length;   /* bytes in name */
  uint16_t index;    /* place in the table of the entry whose value is this entry's place */
} rtxEnumEntry;

/* Place of the entry named `text` in a table sorted by name bytes, or -1. */
int32_t rtxLookupEnum(const char* text, size_t length, const rtxEnumEntry* table, uint32_t count);
/* Place of the entry with `value`, or -1. */
int32_t rtxLookupEnumByValue(uint32_t value, const rtxEnumEntry* table, uint32_t count);
size_t rtxUTF8LenBytes(const char* text);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_RRC_RT_H */
