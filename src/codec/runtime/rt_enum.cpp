/*
 * Enumerated-name tables: lookup by name (tables sorted by name bytes) and by value.
 */
#include <cstring>

#include "rt_internal.h"

namespace {

/* Byte order of names, a shorter name before any longer name it begins. */
int compareName(const char* a, size_t alen, const char* b, size_t blen) {
  size_t n = alen < blen ? alen : blen;
  int c = n > 0 ? std::memcmp(a, b, n) : 0;
  if (c != 0) return c;
  return alen < blen ? -1 : (alen > blen ? 1 : 0);
}

}  // namespace

int32_t rtxLookupEnum(const char* text, size_t length, const rtxEnumEntry* table, uint32_t count) {
  if (text == nullptr || table == nullptr) return -1;
  uint32_t lo = 0, hi = count;
  while (lo < hi) {
    uint32_t mid = lo + (hi - lo) / 2;
    const rtxEnumEntry& e = table[mid];
    int c = compareName(text, length, e.name, e.length);
    if (c == 0) return static_cast<int32_t>(mid);
    if (c < 0) hi = mid;
    else lo = mid + 1;
  }
  return -1;
}

int32_t rtxLookupEnumByValue(uint32_t value, const rtxEnumEntry* table, uint32_t count) {
  if (table == nullptr) return -1;
  /* With values 0..count-1, table[value].index names the place directly. */
  if (value < count) {
    uint32_t place = table[value].index;
    if (place < count && table[place].value == value) return static_cast<int32_t>(place);
  }
  for (uint32_t i = 0; i < count; i++)
    if (table[i].value == value) return static_cast<int32_t>(i);
  return -1;
}

size_t rtxUTF8LenBytes(const char* text) { return text != nullptr ? std::strlen(text) : 0; }
