/*
 * Print helpers used by the generated print functions.
 *
 * Layout: three spaces per level; "name {" opens a record and "}" closes it; fields are
 * "name = value". Only rtxPrintIndent and the braces write indentation. Output is collected
 * in the buffer of a print state and handed to its stream with fwrite when the buffer would
 * overflow, when the stream changes and on rtxPrintFlush, and on standard output also when a
 * line is finished at level 0 (a top-level record closed); the stream itself is flushed only
 * by rtxPrintFlush (and by its own buffering), so that printing makes no system call per
 * record.
 *
 * Print states: the process's own (64 KB, standard output, on), used by every thread that
 * has not chosen another, and those of decoder instances (rtxPrintStateNew), each made the
 * current one of a thread for the span of an instance's call (rtxPrintStateUse). A state is
 * not synchronised: the process's state is to be used by one thread at a time, an instance's
 * by the thread that runs the instance.
 */
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "rt_internal.h"
#include "rt_print_state.h"
#include "umts_rrc_rt_print.h"

struct rtxPrintState {
  char* buf;
  size_t cap; /* bytes of buf; 0 while an instance's state has no buffer yet */
  size_t len;
  uint32_t level;
  FILE* stream; /* null: standard output */
  bool off;
};

namespace {

constexpr size_t kProcessBufSize = 64 * 1024;
/* An instance's buffer, taken when its printing is first switched on. */
constexpr size_t kInstanceBufSize = 16 * 1024;
constexpr uint32_t kIndentWidth = 3;

char g_processBuf[kProcessBufSize];
rtxPrintState g_process = {g_processBuf, kProcessBufSize, 0, 0, nullptr, false};

/* The state that the calls of this thread print through; null for the process's own. Read
   on every print call, so in the thread's static TLS block: one load, no call. */
__thread rtxPrintState* t_current __attribute__((tls_model("initial-exec"))) = nullptr;

inline rtxPrintState& cur() {
  rtxPrintState* s = t_current;
  return s != nullptr ? *s : g_process;
}

const char kHexDigits[] = "0123456789abcdef";

FILE* outStream(const rtxPrintState& s) { return s.stream != nullptr ? s.stream : stdout; }

/* What is gathered goes to the stream's own buffer. */
void handOver(rtxPrintState& s) {
  if (s.len == 0) return;
  fwrite(s.buf, 1, s.len, outStream(s));
  s.len = 0;
}

/* Room for `n` bytes (at most the buffer's size) at the end of what is gathered; the caller writes
   there and ends with done(). */
inline char* room(rtxPrintState& s, size_t n) {
  if (n > s.cap - s.len) handOver(s);
  return s.buf + s.len;
}

inline void done(rtxPrintState& s, char* end) { s.len = static_cast<size_t>(end - s.buf); }

void put(rtxPrintState& s, const char* text, size_t n) {
  if (n > s.cap) {
    handOver(s);
    fwrite(text, 1, n, outStream(s));
    return;
  }
  char* p = room(s, n);
  std::memcpy(p, text, n);
  done(s, p + n);
}

/* A short piece of n bytes: two overlapping moves of a fixed size instead of a call. */
inline void copyShort(char* d, const char* s, size_t n) {
  if (n >= 16) {
    if (n > 32) {
      std::memcpy(d, s, n);
      return;
    }
    std::memcpy(d, s, 16);
    std::memcpy(d + n - 16, s + n - 16, 16);
  } else if (n >= 8) {
    std::memcpy(d, s, 8);
    std::memcpy(d + n - 8, s + n - 8, 8);
  } else if (n >= 4) {
    std::memcpy(d, s, 4);
    std::memcpy(d + n - 4, s + n - 4, 4);
  } else {
    for (size_t i = 0; i < n; i++) d[i] = s[i];
  }
}

/* `name`, then room for `extra` more bytes (extra is small): returns where they go. */
inline char* putName(rtxPrintState& s, const char* name, size_t extra) {
  const size_t n = name != nullptr ? std::strlen(name) : 0;
  if (n + extra > s.cap) {
    put(s, name, n);
    return room(s, extra);
  }
  char* p = room(s, n + extra);
  copyShort(p, name, n);
  return p + n;
}

/* The digits of v at p; returns the end. */
inline char* writeUInt(char* p, uint32_t v) {
  uint32_t digits = 1;
  for (uint32_t t = v; t >= 10u; t /= 10u) digits++;
  char* end = p + digits;
  char* q = end;
  do {
    *--q = static_cast<char>('0' + v % 10u);
    v /= 10u;
  } while (v != 0);
  return end;
}

inline char* writeInt(char* p, int32_t v) {
  if (v < 0) {
    *p++ = '-';
    return writeUInt(p, 0u - static_cast<uint32_t>(v));
  }
  return writeUInt(p, static_cast<uint32_t>(v));
}

void putHex(rtxPrintState& s, const uint8_t* data, size_t n) {
  put(s, "0x", 2);
  if (data == nullptr) return;
  while (n > 0) {
    const size_t k = n < s.cap / 4 ? n : s.cap / 4;
    char* p = room(s, 2 * k);
    for (size_t i = 0; i < k; i++) {
      p[2 * i] = kHexDigits[data[i] >> 4];
      p[2 * i + 1] = kHexDigits[data[i] & 0x0Fu];
    }
    done(s, p + 2 * k);
    data += k;
    n -= k;
  }
}

void putIndent(rtxPrintState& s) {
  size_t n = static_cast<size_t>(s.level) * kIndentWidth;
  while (n > 0) {
    const size_t k = n < s.cap / 2 ? n : s.cap / 2;
    /* Whole words of blanks; the room covers the last word's overhang. */
    char* p = room(s, k + 8);
    const uint64_t blanks = 0x2020202020202020ull;
    for (size_t i = 0; i < k; i += 8) std::memcpy(p + i, &blanks, 8);
    done(s, p + k);
    n -= k;
  }
}

/* End of a line at p. A finished top-level line goes to standard output at once, where the
   process's puts and printf write too; another stream gets the text in large pieces. */
inline void lineEnd(rtxPrintState& s, char* p) {
  *p++ = '\n';
  done(s, p);
  if (s.level == 0 && outStream(s) == stdout) handOver(s);
}

/* "name = " where the caller has put the indentation, then room for `extra` bytes. */
inline char* fieldStart(rtxPrintState& s, const char* name, size_t extra) {
  char* p = putName(s, name, 3 + extra);
  std::memcpy(p, " = ", 3);
  return p + 3;
}

}  // namespace

rtxPrintState* rtxPrintStateNew(void) {
  rtxPrintState* s = static_cast<rtxPrintState*>(std::calloc(1, sizeof(rtxPrintState)));
  if (s != nullptr) s->off = true;
  return s;
}

void rtxPrintStateFree(rtxPrintState* state) {
  if (state == nullptr || state == &g_process) return;
  handOver(*state);
  std::free(state->buf);
  std::free(state);
}

rtxPrintState* rtxPrintStateUse(rtxPrintState* state) {
  rtxPrintState* before = t_current;
  t_current = state;
  return before;
}

void rtxPrintSay(const char* text, int line) {
  rtxPrintState& s = cur();
  if (&s == &g_process) {
    /* The process's messages go to standard output as they are, beside the gathered text. */
    if (line) std::puts(text);
    else std::fputs(text, stdout);
    return;
  }
  /* An instance's messages join its text, in order, and go where it goes. */
  if (s.off || s.stream == nullptr) return;
  put(s, text, std::strlen(text));
  if (line) put(s, "\n", 1);
  /* On standard output a message goes out at once, as the process's own do. */
  if (outStream(s) == stdout) handOver(s);
}

void rtxPrintSetStream(FILE* stream) {
  rtxPrintState& s = cur();
  handOver(s);
  s.stream = stream;
}

void rtxPrintFlush(void) {
  rtxPrintState& s = cur();
  handOver(s);
  /* An instance's state without a stream has nothing to flush. */
  if (&s == &g_process || s.stream != nullptr) fflush(outStream(s));
}

void rtxPrintSetOn(int on) {
  rtxPrintState& s = cur();
  if (on != 0 && s.cap == 0) {
    /* An instance's state takes its buffer when its printing is first switched on; without
       one it stays off. */
    s.buf = static_cast<char*>(std::malloc(kInstanceBufSize));
    if (s.buf == nullptr) return;
    s.cap = kInstanceBufSize;
  }
  s.off = on == 0;
}

int rtxPrintIsOn(void) { return cur().off ? 0 : 1; }

void rtxPrintIndent(void) {
  rtxPrintState& s = cur();
  if (s.off) return;
  putIndent(s);
}

void rtxPrintOpenBrace(const char* name) {
  rtxPrintState& s = cur();
  if (s.off) return;
  putIndent(s);
  char* p = putName(s, name, 3);
  std::memcpy(p, " {\n", 3);
  done(s, p + 3);
  s.level++;
}

void rtxPrintCloseBrace(void) {
  rtxPrintState& s = cur();
  if (s.off) return;
  if (s.level > 0) s.level--;
  putIndent(s);
  char* p = room(s, 2);
  *p++ = '}';
  lineEnd(s, p);
}

void rtxPrintUnsigned(const char* name, uint32_t value) {
  rtxPrintState& s = cur();
  if (s.off) return;
  lineEnd(s, writeUInt(fieldStart(s, name, 11), value));
}

void rtxPrintInteger(const char* name, int32_t value) {
  rtxPrintState& s = cur();
  if (s.off) return;
  lineEnd(s, writeInt(fieldStart(s, name, 12), value));
}

void rtxPrintBoolean(const char* name, uint8_t value) {
  rtxPrintState& s = cur();
  if (s.off) return;
  char* p = fieldStart(s, name, 6);
  if (value) {
    std::memcpy(p, "TRUE", 4);
    p += 4;
  } else {
    std::memcpy(p, "FALSE", 5);
    p += 5;
  }
  lineEnd(s, p);
}

void rtxPrintNull(const char* name) {
  rtxPrintState& s = cur();
  if (s.off) return;
  char* p = fieldStart(s, name, 5);
  std::memcpy(p, "NULL", 4);
  lineEnd(s, p + 4);
}

void rtxPrintEnum(const char* name, const char* valueName) {
  rtxPrintState& s = cur();
  if (s.off) return;
  done(s, fieldStart(s, name, 0));
  lineEnd(s, putName(s, valueName != nullptr ? valueName : "?", 1));
}

void rtPrintBitStrBraceText(const char* name, uint32_t numbits, const uint8_t* data) {
  rtxPrintState& s = cur();
  if (s.off) return;
  char* p = fieldStart(s, name, 12 + 10 + 9);
  std::memcpy(p, "{ numbits = ", 12);
  p = writeUInt(p + 12, numbits);
  std::memcpy(p, ", data = ", 9);
  done(s, p + 9);
  putHex(s, data, (static_cast<size_t>(numbits) + 7u) / 8u);
  p = room(s, 3);
  std::memcpy(p, " }", 2);
  lineEnd(s, p + 2);
}

void rtxPrintHexStr(const char* name, uint32_t numocts, const uint8_t* data) {
  rtxPrintState& s = cur();
  if (s.off) return;
  done(s, fieldStart(s, name, 0));
  putHex(s, data, numocts);
  lineEnd(s, room(s, 1));
}

int rtxUIntToCharStr(uint32_t value, char* dest, uint32_t size, uint32_t pad) {
  if (dest == nullptr || size == 0) return -1;
  uint32_t digits = 1;
  for (uint32_t v = value; v >= 10u; v /= 10u) digits++;
  uint32_t width = pad > digits ? pad : digits;
  if (width >= size) {
    dest[0] = '\0';
    return -1;
  }
  dest[width] = '\0';
  uint32_t i = width;
  do {
    dest[--i] = static_cast<char>('0' + value % 10u);
    value /= 10u;
  } while (value != 0);
  while (i > 0) dest[--i] = '0';
  return static_cast<int>(width);
}

char* rtxStrJoin(char* dest, size_t size, const char* s1, const char* s2, const char* s3,
                 const char* s4, const char* s5) {
  if (dest == nullptr || size == 0) return dest;
  const char* parts[5] = {s1, s2, s3, s4, s5};
  size_t len = 0;
  for (const char* s : parts) {
    if (s == nullptr) break;
    size_t n = std::strlen(s);
    const size_t room_left = size - 1 - len;
    if (n > room_left) n = room_left;
    copyShort(dest + len, s, n);
    len += n;
    if (len == size - 1) break;
  }
  dest[len] = '\0';
  return dest;
}
