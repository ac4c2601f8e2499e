/*
 * Print helpers used by the generated print functions.
 *
 * Layout: three spaces per level; "name {" opens a record and "}" closes it; fields are
 * "name = value". Only rtxPrintIndent and the braces write indentation. Output is collected
 * in one process-wide buffer and handed to the print stream with fwrite when the buffer
 * would overflow, when the stream changes and on rtxPrintFlush, and on standard output also
 * when a line is finished at level 0 (a top-level record closed); the stream itself is
 * flushed only by rtxPrintFlush (and by its own buffering), so that printing makes no
 * system call per record. The print state is process-wide and not synchronised:
 * print from one thread at a time.
 */
#include <cstring>

#include "rt_internal.h"
#include "umts_rrc_rt_print.h"

namespace {

constexpr size_t kBufSize = 64 * 1024;
constexpr uint32_t kIndentWidth = 3;

char g_buf[kBufSize];
size_t g_len = 0;
uint32_t g_level = 0;
FILE* g_stream = nullptr;
bool g_off = false;

const char kHexDigits[] = "0123456789abcdef";

FILE* outStream() { return g_stream != nullptr ? g_stream : stdout; }

/* What is gathered goes to the stream's own buffer. */
void handOver() {
  if (g_len == 0) return;
  fwrite(g_buf, 1, g_len, outStream());
  g_len = 0;
}

/* Room for `n` bytes (at most kBufSize) at the end of what is gathered; the caller writes
   there and ends with done(). */
inline char* room(size_t n) {
  if (n > kBufSize - g_len) handOver();
  return g_buf + g_len;
}

inline void done(char* end) { g_len = static_cast<size_t>(end - g_buf); }

void put(const char* s, size_t n) {
  if (n > kBufSize) {
    handOver();
    fwrite(s, 1, n, outStream());
    return;
  }
  char* p = room(n);
  std::memcpy(p, s, n);
  done(p + n);
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
inline char* putName(const char* name, size_t extra) {
  const size_t n = name != nullptr ? std::strlen(name) : 0;
  if (n + extra > kBufSize) {
    put(name, n);
    return room(extra);
  }
  char* p = room(n + extra);
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

void putHex(const uint8_t* data, size_t n) {
  put("0x", 2);
  if (data == nullptr) return;
  while (n > 0) {
    const size_t k = n < kBufSize / 4 ? n : kBufSize / 4;
    char* p = room(2 * k);
    for (size_t i = 0; i < k; i++) {
      p[2 * i] = kHexDigits[data[i] >> 4];
      p[2 * i + 1] = kHexDigits[data[i] & 0x0Fu];
    }
    done(p + 2 * k);
    data += k;
    n -= k;
  }
}

void putIndent() {
  size_t n = static_cast<size_t>(g_level) * kIndentWidth;
  while (n > 0) {
    const size_t k = n < kBufSize / 2 ? n : kBufSize / 2;
    /* Whole words of blanks; the room covers the last word's overhang. */
    char* p = room(k + 8);
    const uint64_t blanks = 0x2020202020202020ull;
    for (size_t i = 0; i < k; i += 8) std::memcpy(p + i, &blanks, 8);
    done(p + k);
    n -= k;
  }
}

/* End of a line at p. A finished top-level line goes to standard output at once, where the
   process's puts and printf write too; another stream gets the text in large pieces. */
inline void lineEnd(char* p) {
  *p++ = '\n';
  done(p);
  if (g_level == 0 && outStream() == stdout) handOver();
}

/* "name = " where the caller has put the indentation, then room for `extra` bytes. */
inline char* fieldStart(const char* name, size_t extra) {
  char* p = putName(name, 3 + extra);
  std::memcpy(p, " = ", 3);
  return p + 3;
}

}  // namespace

void rtxPrintSetStream(FILE* stream) {
  handOver();
  g_stream = stream;
}

void rtxPrintFlush(void) {
  handOver();
  fflush(outStream());
}

void rtxPrintSetOn(int on) { g_off = on == 0; }

int rtxPrintIsOn(void) { return g_off ? 0 : 1; }

void rtxPrintIndent(void) {
  if (g_off) return;
  putIndent();
}

void rtxPrintOpenBrace(const char* name) {
  if (g_off) return;
  putIndent();
  char* p = putName(name, 3);
  std::memcpy(p, " {\n", 3);
  done(p + 3);
  g_level++;
}

void rtxPrintCloseBrace(void) {
  if (g_off) return;
  if (g_level > 0) g_level--;
  putIndent();
  char* p = room(2);
  *p++ = '}';
  lineEnd(p);
}

void rtxPrintUnsigned(const char* name, uint32_t value) {
  if (g_off) return;
  lineEnd(writeUInt(fieldStart(name, 11), value));
}

void rtxPrintInteger(const char* name, int32_t value) {
  if (g_off) return;
  lineEnd(writeInt(fieldStart(name, 12), value));
}

void rtxPrintBoolean(const char* name, uint8_t value) {
  if (g_off) return;
  char* p = fieldStart(name, 6);
  if (value) {
    std::memcpy(p, "TRUE", 4);
    p += 4;
  } else {
    std::memcpy(p, "FALSE", 5);
    p += 5;
  }
  lineEnd(p);
}

void rtxPrintNull(const char* name) {
  if (g_off) return;
  char* p = fieldStart(name, 5);
  std::memcpy(p, "NULL", 4);
  lineEnd(p + 4);
}

void rtxPrintEnum(const char* name, const char* valueName) {
  if (g_off) return;
  done(fieldStart(name, 0));
  lineEnd(putName(valueName != nullptr ? valueName : "?", 1));
}

void rtPrintBitStrBraceText(const char* name, uint32_t numbits, const uint8_t* data) {
  if (g_off) return;
  char* p = fieldStart(name, 12 + 10 + 9);
  std::memcpy(p, "{ numbits = ", 12);
  p = writeUInt(p + 12, numbits);
  std::memcpy(p, ", data = ", 9);
  done(p + 9);
  putHex(data, (static_cast<size_t>(numbits) + 7u) / 8u);
  p = room(3);
  std::memcpy(p, " }", 2);
  lineEnd(p + 2);
}

void rtxPrintHexStr(const char* name, uint32_t numocts, const uint8_t* data) {
  if (g_off) return;
  done(fieldStart(name, 0));
  putHex(data, numocts);
  lineEnd(room(1));
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
