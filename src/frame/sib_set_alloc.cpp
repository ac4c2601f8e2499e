/*
 * Result sets that the library allocates itself, and the clearing of large records.
 *
 * A set from umts_sib_set_alloc is an anonymous private mapping of whole pages. Its address
 * range is noted in a small table, so that umts_clear_record can tell such memory from the
 * caller's own: there, the whole pages of a record are handed back with MADV_DONTNEED, after
 * which the kernel supplies zero-filled pages on the next touch, exactly what writing zeros
 * would have left; the partial pages at the edges (shared with neighbouring records) are
 * written. Anywhere else the record is written with zeros.
 */
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstring>

#include "umts_sib_decoder.h"
#include "sib_set_alloc.h"

namespace {

struct Mapping {
  uintptr_t base;
  size_t length;
};

/* Sets alive at once; a set beyond them is still allocated, and cleared by writing. */
constexpr int kMaxMappings = 16;
Mapping g_mappings[kMaxMappings];

size_t page_size() {
  static const size_t size = static_cast<size_t>(sysconf(_SC_PAGESIZE));
  return size;
}

size_t mapped_length() {
  const size_t page = page_size();
  return (sizeof(umts_sib_set) + page - 1) / page * page;
}

bool in_mapping(uintptr_t begin, uintptr_t end) {
  for (const Mapping& m : g_mappings)
    if (m.length != 0 && begin >= m.base && end <= m.base + m.length) return true;
  return false;
}

}  // namespace

umts_sib_set* umts_sib_set_alloc(void) {
  void* p = mmap(nullptr, mapped_length(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (p == MAP_FAILED) return nullptr;
  /* Small pages: a record's first touch after a clear then costs a 4 KiB page, not the
     zeroing of a 2 MiB one. Only speed depends on it. */
  madvise(p, mapped_length(), MADV_NOHUGEPAGE);
  for (Mapping& m : g_mappings) {
    if (m.length == 0) {
      m = {reinterpret_cast<uintptr_t>(p), mapped_length()};
      break;
    }
  }
  return static_cast<umts_sib_set*>(p);
}

void umts_sib_set_free(umts_sib_set* set) {
  if (set == nullptr) return;
  for (Mapping& m : g_mappings)
    if (m.base == reinterpret_cast<uintptr_t>(set)) m = {0, 0};
  munmap(set, mapped_length());
}

void umts_clear_record(void* record, size_t size) {
  const uintptr_t begin = reinterpret_cast<uintptr_t>(record), end = begin + size;
  const size_t page = page_size();
  const uintptr_t first = (begin + page - 1) / page * page, last = end / page * page;
  if (last <= first || !in_mapping(begin, end)) {
    std::memset(record, 0, size);
    return;
  }
  std::memset(record, 0, first - begin);
  if (madvise(reinterpret_cast<void*>(first), last - first, MADV_DONTNEED) != 0)
    std::memset(reinterpret_cast<void*>(first), 0, last - first);
  std::memset(reinterpret_cast<void*>(last), 0, end - last);
}
