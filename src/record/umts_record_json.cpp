/*
 * JSON of a flat record from its description, written straight into the caller's buffer, and
 * the layout check of the descriptions.
 */
#include <charconv>
#include <cstring>
#include <type_traits>

#include "umts_record_desc.h"
#include "umts_sib_json.h"

namespace {

uint64_t load_unsigned(const uint8_t* p, uint32_t size) {
  switch (size) {
    case 1:
      return *p;
    case 2: {
      uint16_t v;
      std::memcpy(&v, p, 2);
      return v;
    }
    case 4: {
      uint32_t v;
      std::memcpy(&v, p, 4);
      return v;
    }
    case 8: {
      uint64_t v;
      std::memcpy(&v, p, 8);
      return v;
    }
    default:
      return 0;
  }
}

int64_t load_signed(const uint8_t* p, uint32_t size) {
  switch (size) {
    case 1: {
      int8_t v;
      std::memcpy(&v, p, 1);
      return v;
    }
    case 2: {
      int16_t v;
      std::memcpy(&v, p, 2);
      return v;
    }
    case 4: {
      int32_t v;
      std::memcpy(&v, p, 4);
      return v;
    }
    case 8: {
      int64_t v;
      std::memcpy(&v, p, 8);
      return v;
    }
    default:
      return 0;
  }
}

/* The JSON text, snprintf-style: bytes beyond the buffer are counted, not written. `lim`
   leaves room for the null. */
struct JsonOut {
  char* cur;
  char* lim;
  size_t dropped;

  void put_slow(const char* s, size_t n) {
    const size_t room = static_cast<size_t>(lim - cur);
    std::memcpy(cur, s, room);
    cur = lim;
    dropped += n - room;
  }
  /* Inlined: with the constant lengths of keys the copy below reduces to a move or two. */
  __attribute__((always_inline)) void put(const char* s, size_t n) {
    if (n <= static_cast<size_t>(lim - cur)) {
      copy_short(cur, s, n);
      cur += n;
    } else {
      put_slow(s, n);
    }
  }
  /* Keys and numbers are short: two overlapping moves of a fixed size instead of a call. */
  __attribute__((always_inline)) static void copy_short(char* d, const char* s, size_t n) {
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
  __attribute__((always_inline)) void put(char c) {
    if (cur < lim) *cur++ = c;
    else dropped++;
  }
};

void put_integer(JsonOut& out, const uint8_t* p, uint32_t size, bool is_signed) {
  char text[48]; /* beyond the 20 digits: room that the short copy may be thought to reach */
  std::to_chars_result r = is_signed ? std::to_chars(text, text + sizeof text, load_signed(p, size))
                                     : std::to_chars(text, text + sizeof text, load_unsigned(p, size));
  out.put(text, static_cast<size_t>(r.ptr - text));
}

/* The member of a union whose tag is `tag`, or null. */
const umts_field_desc* union_member(const umts_record_desc* desc, uint64_t tag) {
  for (uint32_t i = 0; i < desc->field_count; i++) {
    const umts_field_desc& m = desc->fields[i];
    if (m.cond >= 0 && static_cast<uint64_t>(m.cond) == tag) return &m;
  }
  return nullptr;
}

/* Whether field `f` of a record holds a value by what marks it: its presence bit, or its
   own choice tag (UMTS_BY_TAG); always, for the other fields. */
bool held_by_mark(const umts_record_desc* desc, const umts_field_desc& f, const uint8_t* record) {
  if (f.cond == UMTS_BY_TAG) {
    const umts_field_desc& tag = f.elem_desc->fields[0];
    return load_unsigned(record + f.offset + tag.offset, tag.elem_size) != 0;
  }
  if (f.cond < 0) return true;
  if (desc->presence_offset < 0 || static_cast<uint32_t>(f.cond) >= desc->presence_size * 8u) return false;
  return ((load_unsigned(record + desc->presence_offset, desc->presence_size) >> f.cond) & 1u) != 0;
}

void put_record(JsonOut& out, const umts_record_desc* desc, const uint8_t* record);

void put_hex(JsonOut& out, const uint8_t* p, uint32_t n) {
  static const char kHex[] = "0123456789abcdef";
  char text[64];
  out.put('"');
  while (n > 0) {
    const uint32_t k = n < sizeof text / 2 ? n : static_cast<uint32_t>(sizeof text / 2);
    for (uint32_t i = 0; i < k; i++) {
      text[2 * i] = kHex[p[i] >> 4];
      text[2 * i + 1] = kHex[p[i] & 0x0Fu];
    }
    out.put(text, 2u * k);
    p += k;
    n -= k;
  }
  out.put('"');
}

/* The key of field `f`, with the comma that separates it from the field before. */
inline void put_key(JsonOut& out, const umts_field_desc& f, bool first) {
  out.put(f.json_key + (first ? 1 : 0), f.json_key_length - (first ? 1u : 0u));
}

/* The value of field `f` of the record or union at `base`; `member` is the selected member
   of a union field. */
void put_value(JsonOut& out, const umts_field_desc& f, const uint8_t* base, const umts_field_desc* member) {
  const uint8_t* p = base + f.offset;
  switch (f.kind) {
    case umts_field_scalar:
      put_integer(out, p, f.elem_size, f.elem_signed != 0);
      break;
    case umts_field_bool:
      if (*p != 0) out.put("true", 4);
      else out.put("false", 5);
      break;
    case umts_field_record:
      put_record(out, f.elem_desc, p);
      break;
    case umts_field_union:
      if (member == nullptr) member = union_member(f.elem_desc, load_unsigned(base + f.aux_offset, f.aux_size));
      out.put('{');
      if (member != nullptr) {
        put_key(out, *member, true);
        put_value(out, *member, p, nullptr);
      }
      out.put('}');
      break;
    case umts_field_array: {
      const uint64_t count = umts_record_entries_held(f, base);
      out.put('[');
      for (uint64_t i = 0; i < count; i++) {
        if (i != 0) out.put(',');
        const uint8_t* e = p + i * f.elem_size;
        if (f.elem_desc != nullptr) put_record(out, f.elem_desc, e);
        else put_integer(out, e, f.elem_size, f.elem_signed != 0);
      }
      out.put(']');
      break;
    }
    case umts_field_bytes:
      put_hex(out, p, f.dim);
      break;
  }
}

void put_record(JsonOut& out, const umts_record_desc* desc, const uint8_t* record) {
  out.put('{');
  /* A union reached without its tag has no member to show. */
  if (!desc->is_union) {
    bool first = true;
    for (uint32_t i = 0; i < desc->field_count; i++) {
      const umts_field_desc& f = desc->fields[i];
      if (!held_by_mark(desc, f, record)) continue;
      const umts_field_desc* member = nullptr;
      if (f.kind == umts_field_union) {
        member = union_member(f.elem_desc, load_unsigned(record + f.aux_offset, f.aux_size));
        if (member == nullptr) continue;
      }
      put_key(out, f, first);
      first = false;
      put_value(out, f, record, member);
    }
  }
  out.put('}');
}

void note(std::string* report, size_t& problems, const umts_record_desc* desc, const char* field,
          const char* what) {
  problems++;
  if (report == nullptr) return;
  *report += desc->name;
  if (field != nullptr) {
    *report += '.';
    *report += field;
  }
  *report += ": ";
  *report += what;
  *report += '\n';
}

uint32_t round_up(uint32_t value, uint32_t align) { return align == 0 ? value : (value + align - 1) / align * align; }

bool is_integer_size(uint32_t size) { return size == 1 || size == 2 || size == 4 || size == 8; }

/* The field of `desc` at `offset` named `name`, which must be a scalar. */
bool integer_field_at(const umts_record_desc* desc, const char* name, int32_t offset) {
  for (uint32_t i = 0; i < desc->field_count; i++) {
    const umts_field_desc& f = desc->fields[i];
    if (std::strcmp(f.name, name) == 0)
      return f.kind == umts_field_scalar && static_cast<int32_t>(f.offset) == offset;
  }
  return false;
}

}  // namespace

uint64_t umts_record_load_unsigned(const void* p, uint32_t size) {
  return load_unsigned(static_cast<const uint8_t*>(p), size);
}

const umts_field_desc* umts_record_union_member(const umts_record_desc* desc, uint64_t tag) {
  return union_member(desc, tag);
}

bool umts_record_field_held(const umts_record_desc* desc, const umts_field_desc& f, const void* record) {
  const uint8_t* r = static_cast<const uint8_t*>(record);
  if (!held_by_mark(desc, f, r)) return false;
  return f.kind != umts_field_union || union_member(f.elem_desc, load_unsigned(r + f.aux_offset, f.aux_size)) != nullptr;
}

size_t umts_json_write_record(const umts_record_desc* desc, const void* record, char* buf, size_t size) {
  char none = 0;
  if (buf == nullptr || size == 0) {
    buf = &none;
    size = 1;
  }
  JsonOut out{buf, buf + size - 1, 0};
  put_record(out, desc, static_cast<const uint8_t*>(record));
  *out.cur = '\0';
  return static_cast<size_t>(out.cur - buf) + out.dropped;
}

/* ---- Writers compiled from the field lists --------------------------------------------- */

/* The same JSON as put_record, for each record type written out by the compiler from its
   field list: the keys are constants, each field is read at its known place and type, and
   nothing is looked up at run time. The exported writers use these; put_record stays the
   writer of any description (and the reference that the tests compare these with). */
namespace direct {

/* Whether field `field` of record `r` holds a value by what marks it (held_by_mark). */
template <int Cond, class R, class T>
inline bool present(const R& r, const T& field) {
  if constexpr (Cond == UMTS_BY_TAG) {
    (void)r;
    return field.choice_tag != 0;
  } else if constexpr (Cond < 0) {
    (void)r;
    (void)field;
    return true;
  } else {
    (void)field;
    return ((static_cast<uint64_t>(r.presence_bitmask) >> Cond) & 1u) != 0;
  }
}

/* An integer's digits, straight into the buffer when there is room for any (20 digits and a
   sign); the last bytes of a short buffer go through put. */
template <class T, bool = std::is_enum<T>::value>
struct integer_of {
  using type = T;
};
template <class T>
struct integer_of<T, true> {
  using type = std::underlying_type_t<T>;
};

template <class T>
__attribute__((always_inline)) inline void put_int(JsonOut& out, T value) {
  using Wide = std::conditional_t<std::is_signed<typename integer_of<T>::type>::value, int64_t, uint64_t>;
  const Wide v = static_cast<Wide>(value);
  if (out.lim - out.cur >= 21) {
    /* Most values of a record are small: one or two digits without a call. */
    if (v >= 0 && v < 10) {
      *out.cur++ = static_cast<char>('0' + v);
    } else if (v >= 10 && v < 100) {
      out.cur[0] = static_cast<char>('0' + v / 10);
      out.cur[1] = static_cast<char>('0' + v % 10);
      out.cur += 2;
    } else {
      out.cur = std::to_chars(out.cur, out.lim, v).ptr;
    }
    return;
  }
  char text[48]; /* beyond the digits: room that the short copy may be thought to reach */
  const std::to_chars_result r = std::to_chars(text, text + 24, v);
  out.put(text, static_cast<size_t>(r.ptr - text));
}

/* Keys, each written whole with the comma that separates it from the field before (a copy
   of a constant length): the first key's comma is the brace that opens the object, written
   over it; an object without fields is closed as "{}". */
#define UMTS_JSON_KEY(name)                                                   \
  do {                                                                        \
    static const char key[] = ",\"" #name "\":";                              \
    char* const at = out.cur;                                                 \
    out.put(key, sizeof key - 1);                                             \
    if (first && at < out.lim) *at = '{';                                     \
    first = false;                                                            \
  } while (0)

/* Records that no field of the set reaches (parts of SIB16's open lists) have writers too. */
#define UMTS_JSON_DECLARE_RECORD(rec) [[maybe_unused]] void json_of(JsonOut& out, const rec& r);
#define UMTS_JSON_DECLARE_UNION(rec)                                          \
  [[maybe_unused]] void json_of(JsonOut& out, const rec& r, uint64_t tag);    \
  [[maybe_unused]] bool has_member(const rec& r, uint64_t tag);
#define UMTS_JSON_DECLARE(kind, rec) UMTS_JSON_DECLARE_##kind(rec)
UMTS_ALL_RECORDS(UMTS_JSON_DECLARE)

template <class T>
inline void put_entry(JsonOut& out, const T& e) {
  if constexpr (std::is_integral<T>::value || std::is_enum<T>::value) put_int(out, e);
  else json_of(out, e);
}

#define UMTS_JSON_VALUE_SCALAR(type, name, dim, aux) put_int(out, r.name);
#define UMTS_JSON_VALUE_BOOL(type, name, dim, aux) \
  if (r.name != 0) out.put("true", 4);             \
  else out.put("false", 5);
#define UMTS_JSON_VALUE_RECORD(type, name, dim, aux) json_of(out, r.name);
#define UMTS_JSON_VALUE_UNION(type, name, dim, aux) json_of(out, r.name, static_cast<uint64_t>(r.aux));
#define UMTS_JSON_VALUE_ARRAY(type, name, dim, aux)                                 \
  {                                                                                 \
    const uint64_t count = umts_record_list_entries(static_cast<uint64_t>(r.aux), sizeof r.aux, (dim)); \
    out.put('[');                                                                   \
    for (uint64_t i = 0; i < count; i++) {                                          \
      if (i != 0) out.put(',');                                                     \
      put_entry(out, r.name[i]);                                                    \
    }                                                                               \
    out.put(']');                                                                   \
  }
#define UMTS_JSON_VALUE_BYTES(type, name, dim, aux) put_hex(out, r.name, (dim));

/* A union field without a member for its tag is left out, key and all. */
#define UMTS_JSON_SHOWN_SCALAR(type, name, aux) true
#define UMTS_JSON_SHOWN_BOOL(type, name, aux) true
#define UMTS_JSON_SHOWN_RECORD(type, name, aux) true
#define UMTS_JSON_SHOWN_ARRAY(type, name, aux) true
#define UMTS_JSON_SHOWN_BYTES(type, name, aux) true
#define UMTS_JSON_SHOWN_UNION(type, name, aux) has_member(r.name, static_cast<uint64_t>(r.aux))

#define UMTS_JSON_FIELD(kind, type, name, dim, cond, aux)                     \
  if (present<(cond)>(r, r.name) && UMTS_JSON_SHOWN_##kind(type, name, aux)) { \
    UMTS_JSON_KEY(name);                                                      \
    UMTS_JSON_VALUE_##kind(type, name, dim, aux)                              \
  }

/* A union's member: the one whose tag (its `cond`) is the tag given. */
#define UMTS_JSON_MEMBER(kind, type, name, dim, cond, aux) \
  if (tag == static_cast<uint64_t>(cond)) {                 \
    UMTS_JSON_KEY(name);                                    \
    UMTS_JSON_VALUE_##kind(type, name, dim, aux)            \
  }
#define UMTS_JSON_IS_MEMBER(kind, type, name, dim, cond, aux) || tag == static_cast<uint64_t>(cond)

#define UMTS_JSON_DEFINE_RECORD(rec)            \
  void json_of(JsonOut& out, const rec& r) {    \
    bool first = true;                          \
    rec##_FIELDS(UMTS_JSON_FIELD)               \
    if (first) out.put('{');                    \
    out.put('}');                               \
  }
#define UMTS_JSON_DEFINE_UNION(rec)                                   \
  bool has_member(const rec&, uint64_t tag) {                         \
    return false rec##_FIELDS(UMTS_JSON_IS_MEMBER);                   \
  }                                                                   \
  void json_of(JsonOut& out, const rec& r, uint64_t tag) {            \
    bool first = true;                                                \
    rec##_FIELDS(UMTS_JSON_MEMBER)                                    \
    if (first) out.put('{');                                          \
    out.put('}');                                                     \
  }
#define UMTS_JSON_DEFINE(kind, rec) UMTS_JSON_DEFINE_##kind(rec)
UMTS_ALL_RECORDS(UMTS_JSON_DEFINE)

/* The record as JSON into buf, snprintf-style. */
template <class R>
size_t write(const R& record, char* buf, size_t size) {
  char none = 0;
  if (buf == nullptr || size == 0) {
    buf = &none;
    size = 1;
  }
  JsonOut out{buf, buf + size - 1, 0};
  json_of(out, record);
  *out.cur = '\0';
  return static_cast<size_t>(out.cur - buf) + out.dropped;
}

}  // namespace direct

/* ---- The exported writers ------------------------------------------------------------- */

namespace {

/* The field of umts_sib_set that holds block `id`: the one whose presence bit is `id`. */
const umts_field_desc* set_field(umts_sib_id id) {
  const umts_record_desc* set = describe_umts_sib_set();
  for (uint32_t i = 0; i < set->field_count; i++)
    if (set->fields[i].cond >= 0 && static_cast<uint32_t>(set->fields[i].cond) == static_cast<uint32_t>(id))
      return &set->fields[i];
  return nullptr;
}

}  // namespace

size_t umts_sib_set_size(void) { return sizeof(umts_sib_set); }

size_t umts_sib16_json(const umts_sib16_info* sib16, char* buf, size_t size) {
  return direct::write(*sib16, buf, size);
}

const char* umts_sib_name(umts_sib_id id) {
  static const umts_field_desc* const* fields = [] {
    static const umts_field_desc* by_id[umts_sib_count];
    for (uint32_t i = 0; i < umts_sib_count; i++) by_id[i] = set_field(static_cast<umts_sib_id>(i));
    return by_id;
  }();
  if (static_cast<uint32_t>(id) >= umts_sib_count || fields[id] == nullptr) return nullptr;
  return fields[id]->name;
}

umts_sib_id umts_sib_id_of_name(const char* name, size_t length) {
  const umts_record_desc* set = describe_umts_sib_set();
  if (name == nullptr) return umts_sib_count;
  for (uint32_t i = 0; i < set->field_count; i++) {
    const umts_field_desc& f = set->fields[i];
    if (f.cond >= 0 && std::strlen(f.name) == length && std::memcmp(f.name, name, length) == 0)
      return static_cast<umts_sib_id>(f.cond);
  }
  return umts_sib_count;
}

size_t umts_sib_record_json(const umts_sib_set* set, umts_sib_id id, char* buf, size_t size) {
  if (set == nullptr || static_cast<uint32_t>(id) >= umts_sib_count) {
    if (buf != nullptr && size > 0) buf[0] = '\0';
    return 0;
  }
  /* The field of the set whose presence bit is `id`. */
#define UMTS_JSON_OF_BLOCK(kind, type, name, dim, cond, aux) UMTS_JSON_OF_BLOCK_##kind(name, cond)
#define UMTS_JSON_OF_BLOCK_SCALAR(name, cond)
#define UMTS_JSON_OF_BLOCK_RECORD(name, cond) \
  if (static_cast<uint32_t>(cond) == static_cast<uint32_t>(id)) return direct::write(set->name, buf, size);
  umts_sib_set_FIELDS(UMTS_JSON_OF_BLOCK)
#undef UMTS_JSON_OF_BLOCK_RECORD
#undef UMTS_JSON_OF_BLOCK_SCALAR
#undef UMTS_JSON_OF_BLOCK
  if (buf != nullptr && size > 0) buf[0] = '\0';
  return 0;
}

size_t umts_sib_set_json(const umts_sib_set* set, char* buf, size_t size) {
  if (set == nullptr) {
    if (buf != nullptr && size > 0) buf[0] = '\0';
    return 0;
  }
  return direct::write(*set, buf, size);
}

size_t umts_record_desc_check(const umts_record_desc* desc, std::string* report) {
  size_t problems = 0;
  if (desc->field_count == 0) note(report, problems, desc, nullptr, "no fields");

  uint32_t end = 0;
  uint32_t max_align = 1;
  bool optional = false;
  for (uint32_t i = 0; i < desc->field_count; i++) {
    const umts_field_desc& f = desc->fields[i];
    if (f.align > max_align) max_align = f.align;

    if (desc->is_union) {
      if (f.offset != 0) note(report, problems, desc, f.name, "union member not at offset 0");
      if (f.offset + f.size > end) end = f.offset + f.size;
      if (f.cond < 0) note(report, problems, desc, f.name, "union member without a tag");
      for (uint32_t j = 0; j < i; j++)
        if (desc->fields[j].cond == f.cond) note(report, problems, desc, f.name, "union member tag used twice");
    } else {
      if (f.offset != round_up(end, f.align))
        note(report, problems, desc, f.name, "not at the offset that follows the field before it");
      end = f.offset + f.size;
      if (f.cond == UMTS_BY_TAG &&
          (f.kind != umts_field_record || f.elem_desc == nullptr || f.elem_desc->field_count == 0 ||
           f.elem_desc->fields[0].kind != umts_field_scalar || f.elem_desc->fields[0].offset != 0 ||
           std::strcmp(f.elem_desc->fields[0].name, "choice_tag") != 0))
        note(report, problems, desc, f.name, "held by its tag but not a record that begins with choice_tag");
      else if (f.cond < UMTS_ALWAYS && f.cond != UMTS_BY_TAG)
        note(report, problems, desc, f.name, "unknown presence rule");
      if (f.cond >= 0) {
        optional = true;
        if (desc->presence_offset < 0 || static_cast<uint32_t>(f.cond) >= desc->presence_size * 8u)
          note(report, problems, desc, f.name, "presence bit outside presence_bitmask");
      }
    }

    const uint32_t dim = (f.kind == umts_field_array || f.kind == umts_field_bytes) ? f.dim : 1u;
    if (dim == 0 || f.size != f.elem_size * dim) note(report, problems, desc, f.name, "size is not entries times entry size");
    switch (f.kind) {
      case umts_field_scalar:
        if (!is_integer_size(f.elem_size)) note(report, problems, desc, f.name, "integer of an odd size");
        break;
      case umts_field_bool:
      case umts_field_bytes:
        if (f.elem_size != 1) note(report, problems, desc, f.name, "entries are not single octets");
        break;
      case umts_field_record:
        if (f.elem_desc == nullptr || f.elem_desc->is_union || f.elem_desc->size != f.elem_size)
          note(report, problems, desc, f.name, "nested record without a matching description");
        break;
      case umts_field_union:
        if (f.elem_desc == nullptr || !f.elem_desc->is_union || f.elem_desc->size != f.elem_size)
          note(report, problems, desc, f.name, "union without a matching description");
        break;
      case umts_field_array:
        if (f.elem_desc != nullptr ? (f.elem_desc->is_union || f.elem_desc->size != f.elem_size)
                                   : !is_integer_size(f.elem_size))
          note(report, problems, desc, f.name, "array entries are neither records nor integers");
        break;
    }
    if ((f.kind == umts_field_array || f.kind == umts_field_union) &&
        (f.aux_name == nullptr || !integer_field_at(desc, f.aux_name, f.aux_offset)))
      note(report, problems, desc, f.name, "count or tag field is not an integer field of the same record");
  }

  if (desc->align != max_align) note(report, problems, desc, nullptr, "alignment differs from that of its fields");
  if (desc->size != round_up(end, max_align))
    note(report, problems, desc, nullptr, "size is not covered by the fields");
  if (optional && desc->presence_offset != 0)
    note(report, problems, desc, nullptr, "optional fields but presence_bitmask is not the first field");
  return problems;
}
