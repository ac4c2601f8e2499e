/*
 * Clearing a record by what was written into it, read from its description.
 *
 * The records reserve every list at its bound: the SIB5 record is 28 MB, of which a cell's
 * SIB5 fills a few kilobytes. Writing zeros over the whole record before each conversion
 * costs far more than the conversion. Walked by its description, a record is cleared in the
 * parts that its counts and tags say are in use: a list up to its count, a union in the
 * member of its tag, every other field whole. Parts up to UMTS_RECORD_WRITE_WHOLE bytes are
 * written whole, which costs less than reading their description.
 *
 * The descriptions are read once into a plan per record: the spans of plain bytes to write
 * (neighbouring fields joined into one span) and the lists and unions to walk. A nested
 * record adds its own spans and walks to the plan of the record that holds it.
 */
#include <cstring>
#include <memory>
#include <unordered_map>
#include <vector>

#include "umts_record_desc.h"

namespace {

constexpr uint32_t kWriteWhole = UMTS_RECORD_WRITE_WHOLE;

struct Plan;

/* A part to walk: a list to its count or a union in its tag's member. */
struct Walk {
  enum Kind { kList, kUnion } kind;
  uint32_t offset;      /* of the part in its record */
  uint32_t aux_offset;  /* list: the count; union: the tag */
  uint32_t aux_size;
  uint32_t dim;         /* list: entries reserved */
  uint32_t elem_size;   /* list: bytes per entry */
  const Plan* elem;     /* list entries to walk; null: list entries written whole */
  const umts_record_desc* members; /* union: its description */
  std::vector<const Plan*> member_plans; /* union: per member of `members`, null when whole */
};

struct Span {
  uint32_t offset, size;
};

struct Plan {
  std::vector<Walk> walks; /* first, while counts and tags still stand */
  std::vector<Span> spans; /* then the plain bytes */
};

class Plans {
 public:
  Plans() {
    size_t count = 0;
    const umts_record_desc* const* all = umts_all_record_descs(&count);
    for (size_t i = 0; i < count; i++) plan_of(all[i]);
  }
  const Plan* find(const umts_record_desc* desc) const {
    auto it = plans_.find(desc);
    return it == plans_.end() ? nullptr : it->second.get();
  }

 private:
  /* The plan of a record or union description; null when it is written whole. */
  const Plan* plan_of(const umts_record_desc* desc) {
    auto it = plans_.find(desc);
    if (it != plans_.end()) return it->second.get();
    if (desc->size <= kWriteWhole) {
      plans_.emplace(desc, nullptr);
      return nullptr;
    }
    auto plan = std::make_unique<Plan>();
    if (!desc->is_union) {
      for (uint32_t i = 0; i < desc->field_count; i++) add_field(*plan, desc->fields[i]);
    }
    const Plan* made = plan.get();
    plans_.emplace(desc, std::move(plan));
    return made;
  }

  static void add_span(Plan& plan, uint32_t offset, uint32_t size) {
    if (!plan.spans.empty()) {
      Span& last = plan.spans.back();
      /* Joined across padding, which may as well be written. */
      if (offset >= last.offset + last.size && offset - (last.offset + last.size) < 8) {
        last.size = offset + size - last.offset;
        return;
      }
    }
    plan.spans.push_back({offset, size});
  }

  void add_field(Plan& plan, const umts_field_desc& f) {
    if (f.size <= kWriteWhole || f.kind == umts_field_scalar || f.kind == umts_field_bool ||
        f.kind == umts_field_bytes) {
      add_span(plan, f.offset, f.size);
      return;
    }
    Walk w{};
    w.offset = f.offset;
    w.aux_offset = f.aux_offset < 0 ? 0u : static_cast<uint32_t>(f.aux_offset);
    w.aux_size = f.aux_size;
    switch (f.kind) {
      case umts_field_record: {
        /* A nested record's own parts join the plan at the record's offset: no step of its own. */
        const Plan* nested = plan_of(f.elem_desc);
        if (nested == nullptr) {
          add_span(plan, f.offset, f.size);
          return;
        }
        for (Walk inner : nested->walks) {
          inner.offset += f.offset;
          inner.aux_offset += f.offset;
          plan.walks.push_back(std::move(inner));
        }
        for (const Span& inner : nested->spans) add_span(plan, f.offset + inner.offset, inner.size);
        return;
      }
      case umts_field_array:
        w.kind = Walk::kList;
        w.dim = f.dim;
        w.elem_size = f.elem_size;
        w.elem = f.elem_desc != nullptr ? plan_of(f.elem_desc) : nullptr;
        break;
      case umts_field_union:
        w.kind = Walk::kUnion;
        w.members = f.elem_desc;
        for (uint32_t i = 0; i < f.elem_desc->field_count; i++) {
          const umts_field_desc& m = f.elem_desc->fields[i];
          w.member_plans.push_back(m.kind == umts_field_record ? plan_of(m.elem_desc) : nullptr);
        }
        break;
      default:
        break;
    }
    plan.walks.push_back(std::move(w));
  }

  std::unordered_map<const umts_record_desc*, std::unique_ptr<Plan>> plans_;
};

void clear(const Plan* plan, uint8_t* record, uint32_t size);

/* The entries of a list that its count says are in use (as the JSON shows them). */
uint64_t entries_in_use(const Walk& w, const uint8_t* base) {
  return umts_record_list_entries(umts_record_load_unsigned(base + w.aux_offset, w.aux_size), w.aux_size, w.dim);
}

void clear_walk(const Walk& w, uint8_t* base) {
  uint8_t* p = base + w.offset;
  switch (w.kind) {
    case Walk::kList: {
      const uint64_t count = entries_in_use(w, base);
      if (w.elem == nullptr) std::memset(p, 0, count * w.elem_size);
      else
        for (uint64_t i = 0; i < count; i++) clear(w.elem, p + i * w.elem_size, 0);
      break;
    }
    case Walk::kUnion: {
      const uint64_t tag = umts_record_load_unsigned(base + w.aux_offset, w.aux_size);
      for (uint32_t i = 0; i < w.members->field_count; i++) {
        const umts_field_desc& m = w.members->fields[i];
        if (m.cond < 0 || static_cast<uint64_t>(m.cond) != tag) continue;
        if (w.member_plans[i] != nullptr) clear(w.member_plans[i], p, 0);
        else std::memset(p, 0, m.size);
        break;
      }
      break;
    }
  }
}

/* A record by its plan; a null plan writes its `size` bytes whole. */
void clear(const Plan* plan, uint8_t* record, uint32_t size) {
  if (plan == nullptr) {
    std::memset(record, 0, size);
    return;
  }
  for (const Walk& w : plan->walks) clear_walk(w, record);
  for (const Span& s : plan->spans) std::memset(record + s.offset, 0, s.size);
}

void copy(const Plan* plan, uint8_t* dst, const uint8_t* src, uint32_t size);

/* The same walk, copying from `src` what its counts and tags show. */
void copy_walk(const Walk& w, uint8_t* dst_base, const uint8_t* src_base) {
  uint8_t* dst = dst_base + w.offset;
  const uint8_t* src = src_base + w.offset;
  switch (w.kind) {
    case Walk::kList: {
      const uint64_t count = entries_in_use(w, src_base);
      if (w.elem == nullptr) std::memcpy(dst, src, count * w.elem_size);
      else
        for (uint64_t i = 0; i < count; i++) copy(w.elem, dst + i * w.elem_size, src + i * w.elem_size, 0);
      break;
    }
    case Walk::kUnion: {
      const uint64_t tag = umts_record_load_unsigned(src_base + w.aux_offset, w.aux_size);
      for (uint32_t i = 0; i < w.members->field_count; i++) {
        const umts_field_desc& m = w.members->fields[i];
        if (m.cond < 0 || static_cast<uint64_t>(m.cond) != tag) continue;
        if (w.member_plans[i] != nullptr) copy(w.member_plans[i], dst, src, 0);
        else std::memcpy(dst, src, m.size);
        break;
      }
      break;
    }
  }
}

void copy(const Plan* plan, uint8_t* dst, const uint8_t* src, uint32_t size) {
  if (plan == nullptr) {
    std::memcpy(dst, src, size);
    return;
  }
  for (const Walk& w : plan->walks) copy_walk(w, dst, src);
  for (const Span& s : plan->spans) std::memcpy(dst + s.offset, src + s.offset, s.size);
}

const Plans& plans() {
  static const Plans all;
  return all;
}

}  // namespace

void umts_record_clear_written(const umts_record_desc* desc, void* record) {
  clear(plans().find(desc), static_cast<uint8_t*>(record), desc->size);
}

void umts_record_copy_written(const umts_record_desc* desc, void* dst, const void* src) {
  const Plan* plan = plans().find(desc);
  clear(plan, static_cast<uint8_t*>(dst), desc->size);
  copy(plan, static_cast<uint8_t*>(dst), static_cast<const uint8_t*>(src), desc->size);
}
