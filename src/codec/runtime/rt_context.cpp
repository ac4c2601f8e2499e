/*
 * Context life cycle, context heap, name path text and error record.
 */
#include <cstdlib>
#include <cstring>

#include "rt_internal.h"

#if defined(__SANITIZE_ADDRESS__)
#define RT_HEAP_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define RT_HEAP_ASAN 1
#endif
#endif
#if RT_HEAP_REDZONES && defined(RT_HEAP_ASAN)
#include <sanitizer/asan_interface.h>
#endif

using umts_rt::kContextMagic;
using umts_rt::kHeapMaxAlloc;

/* Overflow block: this header, then the block's bytes. */
struct rtxHeapBlock {
  rtxHeapBlock* next;
  size_t size; /* bytes after the header */
};

namespace {

/* The header is padded so that block data keeps malloc's 16-byte alignment. */
constexpr size_t kBlockHeader = (sizeof(rtxHeapBlock) + 15u) & ~size_t(15);
constexpr size_t kMinBlock = 8 * 1024;
constexpr size_t kMaxGrownBlock = 1024 * 1024;

uint8_t* blockData(rtxHeapBlock* b) { return reinterpret_cast<uint8_t*>(b) + kBlockHeader; }

/* Checking builds: a gap after every allocation, and free heap space marked unaddressable,
   so that AddressSanitizer reports any access outside the allocations handed out. */
#if RT_HEAP_REDZONES
constexpr size_t kRedzone = 16;
#else
constexpr size_t kRedzone = 0;
#endif

inline void poison(const void* p, size_t n) {
#if RT_HEAP_REDZONES && defined(RT_HEAP_ASAN)
  ASAN_POISON_MEMORY_REGION(p, n);
#else
  (void)p;
  (void)n;
#endif
}

inline void unpoison(const void* p, size_t n) {
#if RT_HEAP_REDZONES && defined(RT_HEAP_ASAN)
  ASAN_UNPOISON_MEMORY_REGION(p, n);
#else
  (void)p;
  (void)n;
#endif
}

void freeBlocks(rtxMemHeap* h) {
  rtxHeapBlock* b = h->blocks;
  while (b != nullptr) {
    rtxHeapBlock* next = b->next;
    std::free(b);
    b = next;
  }
  h->blocks = nullptr;
}

void pointAtInlineBlock(rtxMemHeap* h) {
  h->cur = reinterpret_cast<uint8_t*>(h->inline_block);
  h->end = h->cur + RT_HEAP_INLINE;
  h->last = nullptr;
  h->used = 0;
  poison(h->inline_block, RT_HEAP_INLINE);
}

/* Bounded text writer: keeps the text NUL-terminated and never writes past `size`. */
struct TextOut {
  char* buf;
  size_t size;
  size_t len;

  TextOut(char* b, size_t s) : buf(b), size(b != nullptr ? s : 0), len(0) {
    if (size > 0) buf[0] = '\0';
  }
  void put(const char* s, size_t n) {
    if (size == 0) return;
    size_t room = size - 1 - len;
    if (n > room) n = room;
    if (n == 0) return;
    std::memcpy(buf + len, s, n);
    len += n;
    buf[len] = '\0';
  }
  void put(const char* s) { put(s, std::strlen(s)); }
  void putUInt(uint32_t v) {
    char tmp[16];
    int n = rtxUIntToCharStr(v, tmp, sizeof tmp, 0);
    if (n > 0) put(tmp, static_cast<size_t>(n));
  }
  void putInt(int32_t v) {
    if (v < 0) {
      put("-", 1);
      putUInt(0u - static_cast<uint32_t>(v));
    } else {
      putUInt(static_cast<uint32_t>(v));
    }
  }
};

void putEntry(TextOut& out, const rtxNameEntry& e) {
  out.put(e.name != nullptr ? e.name : "?");
  if (e.index >= 0) {
    out.put("[", 1);
    out.putUInt(static_cast<uint32_t>(e.index));
    out.put("]", 1);
  }
}

void putPath(TextOut& out, const rtxContext* ctx) {
  uint32_t n = ctx->path_depth < RT_MAX_PATH ? ctx->path_depth : RT_MAX_PATH;
  for (uint32_t i = 0; i < n; i++) {
    if (i > 0) out.put(".", 1);
    putEntry(out, ctx->path[i]);
  }
  /* Names recorded on the way out of a failure, outermost first. */
  for (uint32_t i = ctx->err.nunwound; i > 0; i--) {
    if (n > 0 || i < ctx->err.nunwound) out.put(".", 1);
    putEntry(out, ctx->err.unwound[i - 1]);
  }
}

void unwindName(rtxErrInfo* e, const char* name, int32_t index, uint32_t kind) {
  if (name == nullptr || e->nunwound >= RT_MAX_PATH) return;
  e->unwound[e->nunwound].name = name;
  e->unwound[e->nunwound].index = index;
  e->unwound[e->nunwound].kind = kind;
  e->nunwound++;
}

/* Next free parameter slot, or null when all are taken. */
char* nextParm(rtxContext* ctx) {
  if (ctx == nullptr || ctx->err.nparms >= RT_MAX_ERR_PARMS) return nullptr;
  return ctx->err.parms[ctx->err.nparms];
}

}  // namespace

/* ---- Context -------------------------------------------------------------------------- */

int rtInitContext(rtxContext* ctx) {
  if (ctx == nullptr) return RT_ERR_INVPARAM;
  /* Counters and pointers only: the path, error and heap storage behind them is written
     before it is read, so a context starts in a few stores. */
  ctx->buffer_data = nullptr;
  ctx->byte_index = 0;
  ctx->buffer_size = 0;
  ctx->bit_offset = 8;
  ctx->aligned = 0;
  ctx->dynamic = 0;
  std::memset(&ctx->size_constraint_store, 0, sizeof ctx->size_constraint_store);
  ctx->size_constraint = &ctx->size_constraint_store;
  ctx->path_depth = 0;
  ctx->err.status = 0;
  ctx->err.nlocs = 0;
  ctx->err.nparms = 0;
  ctx->err.nunwound = 0;
  ctx->heap.blocks = nullptr;
  ctx->heap.limit = 0;
  pointAtInlineBlock(&ctx->heap);
  ctx->magic = kContextMagic;
  return 0;
}

int rtInitContextUsingKey(rtxContext* ctx, const uint8_t* key, size_t keylen) {
  (void)key;
  (void)keylen;
  return rtInitContext(ctx);
}

void rtFreeContext(rtxContext* ctx) {
  if (ctx == nullptr) return;
  rtxMemHeap* h = &ctx->heap;
  freeBlocks(h);
  h->cur = nullptr;
  h->end = nullptr;
  h->last = nullptr;
  h->used = 0;
  /* The context's memory goes back to its owner whole. */
  unpoison(h->inline_block, RT_HEAP_INLINE);
  if (ctx->dynamic) {
    /* The buffer lived on the heap just released. */
    ctx->buffer_data = nullptr;
    ctx->buffer_size = 0;
    ctx->byte_index = 0;
    ctx->bit_offset = 8;
    ctx->dynamic = 0;
  }
  ctx->magic = 0;
}

void rtxResetContext(rtxContext* ctx) {
  if (ctx == nullptr || ctx->magic != kContextMagic) return;
  rtxMemHeapReset(ctx);
  rtxErrReset(ctx);
  ctx->path_depth = 0;
  ctx->buffer_data = nullptr;
  ctx->byte_index = 0;
  ctx->buffer_size = 0;
  ctx->bit_offset = 8;
  ctx->dynamic = 0;
  std::memset(&ctx->size_constraint_store, 0, sizeof ctx->size_constraint_store);
  ctx->size_constraint = &ctx->size_constraint_store;
}

void rtxCopyContext(rtxContext* dst, const rtxContext* src) {
  if (dst == nullptr || src == nullptr || dst == src) return;
  dst->buffer_data = src->buffer_data;
  dst->byte_index = src->byte_index;
  dst->buffer_size = src->buffer_size;
  dst->bit_offset = src->bit_offset;
  dst->aligned = src->aligned;
  dst->dynamic = src->dynamic;
  if (src->size_constraint == &src->size_constraint_store) {
    /* Keep the copy independent of the source's own storage. */
    dst->size_constraint_store = src->size_constraint_store;
    dst->size_constraint = &dst->size_constraint_store;
  } else {
    dst->size_constraint = src->size_constraint;
  }
}

/* ---- Heap ----------------------------------------------------------------------------- */

void* rtxMemHeapAllocSlow(rtxContext* ctx, size_t size) {
  if (ctx == nullptr || ctx->magic != kContextMagic) return nullptr;
  if (size > kHeapMaxAlloc) return nullptr;
  rtxMemHeap* h = &ctx->heap;
  size_t rounded = (size + 7u) & ~size_t(7);
  const size_t taken = rounded + kRedzone;
  if (h->limit != 0 && h->used + rounded > h->limit) return nullptr;
  if (static_cast<size_t>(h->end - h->cur) < taken) {
    size_t bsize = h->blocks != nullptr ? h->blocks->size * 2 : kMinBlock;
    if (bsize > kMaxGrownBlock) bsize = kMaxGrownBlock;
    if (bsize < kMinBlock) bsize = kMinBlock;
    if (bsize < taken) bsize = taken;
    auto* b = static_cast<rtxHeapBlock*>(std::malloc(kBlockHeader + bsize));
    if (b == nullptr) return nullptr;
    b->size = bsize;
    b->next = h->blocks;
    h->blocks = b;
    h->cur = blockData(b);
    h->end = h->cur + bsize;
    poison(h->cur, bsize);
  }
  uint8_t* p = h->cur;
  unpoison(p, size);
  h->last = p;
  h->cur = p + taken;
  h->used += rounded;
  return p;
}

void rtxMemHeapFreePtr(rtxContext* ctx, void* ptr) {
  if (ctx == nullptr || ptr == nullptr) return;
  rtxMemHeap* h = &ctx->heap;
  /* Every allocation is carved from the current block, so `last` lies within it. */
  if (static_cast<uint8_t*>(ptr) != h->last) return;
  h->used -= static_cast<size_t>(h->cur - h->last) - kRedzone;
  poison(h->last, static_cast<size_t>(h->cur - h->last));
  h->cur = h->last;
  h->last = nullptr;
}

void rtxMemHeapReset(rtxContext* ctx) {
  if (ctx == nullptr) return;
  rtxMemHeap* h = &ctx->heap;
  freeBlocks(h);
  if (ctx->magic == kContextMagic) {
    pointAtInlineBlock(h);
  } else {
    h->cur = h->end = h->last = nullptr;
    h->used = 0;
  }
}

void rtxMemHeapSetLimit(rtxContext* ctx, size_t limit) {
  if (ctx != nullptr) ctx->heap.limit = limit;
}

/* ---- Name path ------------------------------------------------------------------------ */

size_t rtxCtxtGetPath(const rtxContext* ctx, char* buf, size_t size) {
  TextOut out(buf, size);
  if (ctx != nullptr) putPath(out, ctx);
  return out.len;
}

/* ---- Errors --------------------------------------------------------------------------- */

int rtxErrSetData(rtxContext* ctx, int status, const char* file, int line) {
  if (ctx == nullptr || status == 0) return status;
  rtxErrInfo* e = &ctx->err;
  if (e->status == 0) e->status = status;
  if (e->nlocs < RT_MAX_ERR_LOCS) {
    e->locs[e->nlocs].file = file;
    e->locs[e->nlocs].line = static_cast<uint32_t>(line);
    e->nlocs++;
  }
  return status;
}

int rtxErrUnwind(rtxContext* ctx, int status, const char* file, int line, const char* inner, const char* elem,
                 int32_t index, const char* outer) {
  if (ctx == nullptr || status == 0) return status;
  rtxErrSetData(ctx, status, file, line);
  rtxErrInfo* e = &ctx->err;
  unwindName(e, inner, -1, 0);
  unwindName(e, elem, index, index >= 0 ? 2u : 1u);
  unwindName(e, outer, -1, 0);
  return status;
}

int rtxErrAddElemNameParm(rtxContext* ctx) {
  char* slot = nextParm(ctx);
  if (slot == nullptr) return RT_ERR_INVPARAM;
  uint32_t d = ctx->path_depth;
  if (d == 0 || d > RT_MAX_PATH) return RT_ERR_INVPARAM;
  TextOut out(slot, RT_ERR_PARM_LEN);
  putEntry(out, ctx->path[d - 1]);
  ctx->err.nparms++;
  return 0;
}

int rtxErrAddUIntParm(rtxContext* ctx, uint32_t value) {
  char* slot = nextParm(ctx);
  if (slot == nullptr) return RT_ERR_INVPARAM;
  TextOut out(slot, RT_ERR_PARM_LEN);
  out.putUInt(value);
  ctx->err.nparms++;
  return 0;
}

int rtxErrAddIntParm(rtxContext* ctx, int32_t value) {
  char* slot = nextParm(ctx);
  if (slot == nullptr) return RT_ERR_INVPARAM;
  TextOut out(slot, RT_ERR_PARM_LEN);
  out.putInt(value);
  ctx->err.nparms++;
  return 0;
}

int rtxErrAddStrParm(rtxContext* ctx, const char* text) {
  char* slot = nextParm(ctx);
  if (slot == nullptr || text == nullptr) return RT_ERR_INVPARAM;
  TextOut out(slot, RT_ERR_PARM_LEN);
  out.put(text);
  ctx->err.nparms++;
  return 0;
}

int rtxErrAddStrnParm(rtxContext* ctx, const char* text, size_t length) {
  char* slot = nextParm(ctx);
  if (slot == nullptr || (text == nullptr && length > 0)) return RT_ERR_INVPARAM;
  TextOut out(slot, RT_ERR_PARM_LEN);
  if (length > 0) out.put(text, length);
  ctx->err.nparms++;
  return 0;
}

void rtxErrReset(rtxContext* ctx) {
  if (ctx == nullptr) return;
  ctx->err.status = 0;
  ctx->err.nlocs = 0;
  ctx->err.nparms = 0;
  ctx->err.nunwound = 0;
}

const char* rtxErrStatusText(int status) {
  switch (status) {
    case RT_OK: return "no error";
    case RT_ERR_BUFOVFLW: return "encode buffer full";
    case RT_ERR_ENDOFBUF: return "end of buffer";
    case RT_ERR_INVPARAM: return "invalid argument";
    case RT_ERR_INVENUM: return "bad enumerated value or name";
    case RT_ERR_NOTINIT: return "context not initialised";
    case RT_ERR_INVOPT: return "bad CHOICE index";
    case RT_ERR_NOMEM: return "heap exhausted";
    case RT_ERR_BADLEN: return "bad length determinant";
    case RT_ERR_CONSVIO: return "value or size outside its constraint";
    default: return "unknown status";
  }
}

size_t rtxErrGetText(const rtxContext* ctx, char* buf, size_t size) {
  TextOut out(buf, size);
  if (ctx == nullptr) {
    out.put("no context");
    return out.len;
  }
  const rtxErrInfo& e = ctx->err;
  out.put("status ");
  out.putInt(e.status);
  out.put(" (");
  out.put(rtxErrStatusText(e.status));
  out.put(")");
  if (ctx->path_depth > 0) {
    out.put(" at ");
    putPath(out, ctx);
  }
  uint32_t np = e.nparms < RT_MAX_ERR_PARMS ? e.nparms : RT_MAX_ERR_PARMS;
  for (uint32_t i = 0; i < np; i++) {
    out.put(i == 0 ? "; parameters: " : ", ");
    const char* parm = e.parms[i];
    const void* nul = std::memchr(parm, '\0', RT_ERR_PARM_LEN);
    out.put(parm, nul != nullptr ? static_cast<size_t>(static_cast<const char*>(nul) - parm) : RT_ERR_PARM_LEN);
  }
  if (e.nlocs > 0) {
    out.put("; ");
    out.put(e.locs[0].file != nullptr ? e.locs[0].file : "?");
    out.put(":");
    out.putUInt(e.locs[0].line);
  }
  return out.len;
}
