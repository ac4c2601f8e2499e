/*
 * Print helpers used by the generated print functions.
 *
 * Layout: three spaces per level; "name {" opens a record and "}" closes it; fields are
 * "name = value". Output is collected in one process-wide buffer and written to the print
 * stream when a top-level record closes, when a line is finished at level 0, when the
 * buffer would overflow, and on rtxPrintFlush. The print state is process-wide and not
 * synchronised: print from one thread at a time.
 */
#include <cstring>

#include "rt_internal.h"

namespace {

constexpr size_t kBufSize = 64 * 1024;
constexpr uint32_t kIndentWidth = 3;

char g_buf[kBufSize];
size_t g_len = 0;
uint32_t g_level = 0;
FILE* g_stream = nullptr;

const char kHexDigits[] = "0123456789abcdef";

FILE* outStream() { return g_stream != nullptr ? g_stream : stdout; }

void flushBuffer() {
  if (g_len == 0) return;
  FILE* f = outStream();
  fwrite(g_buf, 1, g_len, f);
  fflush(f);
  g_len = 0;
}

void put(const char* s, size_t n) {
  if (n > kBufSize - g_len) {
    flushBuffer();
    if (n > kBufSize) {
      FILE* f = outStream();
      fwrite(s, 1, n, f);
      fflush(f);
      return;
    }
  }
  std::memcpy(g_buf + g_len, s, n);
  g_len += n;
}

void put(const char* s) {
  if (s != nullptr) put(s, std::strlen(s));
}

void putUInt(uint32_t v) {
  char tmp[10];
  size_t n = 0;
  do {
    tmp[sizeof tmp - 1 - n] = static_cast<char>('0' + v % 10u);
    v /= 10u;
    n++;
  } while (v != 0);
  put(tmp + sizeof tmp - n, n);
}

void putInt(int32_t v) {
  if (v < 0) {
    put("-", 1);
    putUInt(0u - static_cast<uint32_t>(v));
  } else {
    putUInt(static_cast<uint32_t>(v));
  }
}

void putHex(const uint8_t* data, size_t n) {
  put("0x", 2);
  if (data == nullptr) return;
  for (size_t i = 0; i < n; i++) {
    if (kBufSize - g_len < 2) flushBuffer();
    g_buf[g_len++] = kHexDigits[data[i] >> 4];
    g_buf[g_len++] = kHexDigits[data[i] & 0x0Fu];
  }
}

void putIndent() {
  static const char spaces[] = "                                ";
  size_t n = static_cast<size_t>(g_level) * kIndentWidth;
  while (n > 0) {
    size_t k = n < sizeof spaces - 1 ? n : sizeof spaces - 1;
    put(spaces, k);
    n -= k;
  }
}

/* "name = " at the current indentation. */
void fieldStart(const char* name) {
  putIndent();
  put(name);
  put(" = ", 3);
}

/* End of a line; a finished top-level line goes out at once. */
void lineEnd() {
  put("\n", 1);
  if (g_level == 0) flushBuffer();
}

}  // namespace

void rtxPrintSetStream(FILE* stream) {
  flushBuffer();
  g_stream = stream;
}

void rtxPrintFlush(void) { flushBuffer(); }

void rtxPrintIndent(void) { putIndent(); }

void rtxPrintOpenBrace(const char* name) {
  putIndent();
  put(name);
  put(" {\n", 3);
  g_level++;
}

void rtxPrintCloseBrace(void) {
  if (g_level > 0) g_level--;
  putIndent();
  put("}", 1);
  lineEnd();
}

void rtxPrintUnsigned(const char* name, uint32_t value) {
  fieldStart(name);
  putUInt(value);
  lineEnd();
}

void rtxPrintInteger(const char* name, int32_t value) {
  fieldStart(name);
  putInt(value);
  lineEnd();
}

void rtxPrintBoolean(const char* name, uint8_t value) {
  fieldStart(name);
  put(value ? "TRUE" : "FALSE");
  lineEnd();
}

void rtxPrintNull(const char* name) {
  fieldStart(name);
  put("NULL", 4);
  lineEnd();
}

void rtxPrintEnum(const char* name, const char* valueName) {
  fieldStart(name);
  put(valueName != nullptr ? valueName : "?");
  lineEnd();
}

void rtPrintBitStrBraceText(const char* name, uint32_t numbits, const uint8_t* data) {
  fieldStart(name);
  put("{ numbits = ", 12);
  putUInt(numbits);
  put(", data = ", 9);
  putHex(data, (static_cast<size_t>(numbits) + 7u) / 8u);
  put(" }", 2);
  lineEnd();
}

void rtxPrintHexStr(const char* name, uint32_t numocts, const uint8_t* data) {
  fieldStart(name);
  putHex(data, numocts);
  lineEnd();
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
    size_t room = size - 1 - len;
    if (n > room) n = room;
    std::memcpy(dest + len, s, n);
    len += n;
    if (len == size - 1) break;
  }
  dest[len] = '\0';
  return dest;
}
