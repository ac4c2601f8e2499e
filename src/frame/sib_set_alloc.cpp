/*
 * Result sets that the library allocates itself, and the clearing of records before a
 * conversion fills them.
 *
 * A set from umts_sib_set_alloc is an anonymous private mapping of whole pages, zero when
 * made. Its address range is noted in a small table, so that umts_clear_record can tell such
 * memory from the caller's own. Only conversions write into it (the set is the library's
 * result; a host reads it), and each conversion writes within what its record's counts and
 * tags show. So a record there is cleared by walking its description and zeroing what the
 * last conversion left: the parts in use, kilobytes for a SIB5 record of 28 MB. Anywhere
 * else the record is written with zeros whole.
 */
#include <sys/mman.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <cstring>

#include "umts_sib_decoder.h"
#include "sib_set_alloc.h"

namespace {

/* Sets alive at once; a set beyond them is still allocated, and cleared by writing. Every
   set has the same length, so an entry is its base address alone (0: free). The table is
   the one piece of the library that threads share: entries are taken and given back with
   atomic operations, so that sets are made and released on any thread while others decode. */
constexpr int kMaxMappings = 16;
std::atomic<uintptr_t> g_mappings[kMaxMappings];

size_t page_size() {
  static const size_t size = static_cast<size_t>(sysconf(_SC_PAGESIZE));
  return size;
}

size_t mapped_length() {
  const size_t page = page_size();
  return (sizeof(umts_sib_set) + page - 1) / page * page;
}

bool in_mapping(uintptr_t begin, uintptr_t end) {
  const size_t length = mapped_length();
  for (const std::atomic<uintptr_t>& m : g_mappings) {
    const uintptr_t base = m.load(std::memory_order_acquire);
    if (base != 0 && begin >= base && end <= base + length) return true;
  }
  return false;
}

}  // namespace

umts_sib_set* umts_sib_set_alloc(void) {
  void* p = mmap(nullptr, mapped_length(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (p == MAP_FAILED) return nullptr;
  /* Small pages: only the pages that conversions write become resident, and a first touch
     costs a 4 KiB page, not the zeroing of a 2 MiB one. */
  madvise(p, mapped_length(), MADV_NOHUGEPAGE);
  for (std::atomic<uintptr_t>& m : g_mappings) {
    uintptr_t free_entry = 0;
    if (m.compare_exchange_strong(free_entry, reinterpret_cast<uintptr_t>(p), std::memory_order_acq_rel)) break;
  }
  return static_cast<umts_sib_set*>(p);
}

void umts_sib_set_free(umts_sib_set* set) {
  if (set == nullptr) return;
  uintptr_t base = reinterpret_cast<uintptr_t>(set);
  for (std::atomic<uintptr_t>& m : g_mappings) {
    uintptr_t expected = base;
    if (m.compare_exchange_strong(expected, 0, std::memory_order_acq_rel)) break;
  }
  munmap(set, mapped_length());
}

void umts_clear_record(void* record, const umts_record_desc* desc) {
  const uintptr_t begin = reinterpret_cast<uintptr_t>(record);
  if (in_mapping(begin, begin + desc->size)) umts_record_clear_written(desc, record);
  else std::memset(record, 0, desc->size);
}
