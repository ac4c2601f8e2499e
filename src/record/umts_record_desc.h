/*
 * Run-time descriptions of the flat records of umts_sib_set, and their JSON (the library's
 * own; hosts use include/umts_sib_json.h).
 *
 * Every flat record is written once, as the field list <record>_FIELDS(F) of its header
 * (see umts_sib_record_macros.h). The descriptions here are expanded from those same lists
 * (umts_record_desc_define.h), so a field added to a header appears in the JSON without
 * any change here.
 *
 * JSON form of a record described by umts_record_desc:
 *   - a record is an object of its fields in declaration order;
 *   - SCALAR is a number, BOOL true/false, BYTES a string of two lower-case hex digits per
 *     octet, RECORD an object;
 *   - ARRAY is a list of its first `count` entries (count read from the field named by the
 *     array's aux, never more than the dimension; umts_record_list_entries);
 *   - UNION is an object holding the one member whose cond equals the tag field named by
 *     the union's aux, e.g. "u":{"gsm_MAP":{...}}; when no member has that tag the field is
 *     left out;
 *   - a field with cond >= 0 outside a union is written only when bit `cond` of the
 *     record's presence_bitmask is set; a field with cond UMTS_BY_TAG only when its
 *     choice_tag is not 0.
 * A record's JSON thus shows every value that the record holds: the parts that it leaves out
 * are zero (umts_record_field_held and umts_record_entries_held tell which parts it shows).
 */
#ifndef UMTS_RECORD_DESC_H
#define UMTS_RECORD_DESC_H

#include <stddef.h>
#include <stdint.h>

#include <string>

#include "umts_sib_decoder.h"

typedef enum umts_field_kind {
  umts_field_scalar = 0,
  umts_field_bool,
  umts_field_record,
  umts_field_union,
  umts_field_array,
  umts_field_bytes
} umts_field_kind;

typedef struct umts_record_desc umts_record_desc;

typedef struct umts_field_desc {
  const char* name;
  umts_field_kind kind;
  uint32_t offset;      /* in the enclosing record or union */
  uint32_t size;        /* of the whole field, every entry of an array */
  uint32_t align;       /* alignment of the field's type */
  uint32_t elem_size;   /* of one entry; the field's size when it is not an array */
  uint32_t dim;         /* entries of an ARRAY, octets of BYTES, 1 otherwise */
  uint8_t elem_signed;  /* integer entries: 1 when the type is signed */
  const umts_record_desc* elem_desc; /* RECORD, UNION, ARRAY of records; null for integers */
  int32_t cond;         /* UMTS_ALWAYS, the presence bit, UMTS_BY_TAG, or in a union the member's tag */
  const char* aux_name; /* ARRAY: the count field; UNION: the tag field; null otherwise */
  int32_t aux_offset;   /* offset of that field in the enclosing record, -1 without one */
  uint32_t aux_size;
  const char* json_key; /* ",\"name\":", as the JSON writes it after another field */
  uint32_t json_key_length;
} umts_field_desc;

struct umts_record_desc {
  const char* name;
  uint32_t size;
  uint32_t align;
  uint8_t is_union;
  int32_t presence_offset; /* offset of presence_bitmask, -1 when the record has none */
  uint32_t presence_size;
  uint32_t field_count;
  const umts_field_desc* fields;
};

/* const umts_record_desc* describe_<record>(void) for every record of UMTS_ALL_RECORDS. */
#define UMTS_DESCRIBE_DECL(kind, name) const umts_record_desc* describe_##name(void);
UMTS_ALL_RECORDS(UMTS_DESCRIBE_DECL)
#undef UMTS_DESCRIBE_DECL

/* umts_desc_of(record): the description of a record, chosen by the record's type. */
#define UMTS_DESC_OF(kind, name) \
  inline const umts_record_desc* umts_desc_of(const name*) { return describe_##name(); }
UMTS_ALL_RECORDS(UMTS_DESC_OF)
#undef UMTS_DESC_OF

/* Every description of UMTS_ALL_RECORDS, in that order; *count receives their number. */
const umts_record_desc* const* umts_all_record_descs(size_t* count);

/* Checks one description against the C layout: fields in declaration order, each at the
   first offset its alignment allows after the one before (so nothing overlaps and nothing
   is left out), the record's size the end of its last field rounded to its alignment (for
   a union: every member at offset 0, size that of the largest member rounded); kinds and
   entry sizes consistent; optional fields backed by a presence_bitmask placed first, fields
   held by their tag (UMTS_BY_TAG) records that begin with their choice_tag; count
   and tag fields integers of the same record; union member tags distinct and not negative.
   Returns the number of problems and writes them, one per line, to *report when not null. */
size_t umts_record_desc_check(const umts_record_desc* desc, std::string* report);

/* The JSON object of the record at `record` into buf, snprintf-style: at most `size` bytes
   with the null, returns the whole text's length. */
size_t umts_json_write_record(const umts_record_desc* desc, const void* record, char* buf, size_t size);

/* The integer of `size` octets (1, 2, 4 or 8) at `p`, unsigned; 0 for another size. */
uint64_t umts_record_load_unsigned(const void* p, uint32_t size);

/* The member of union description `desc` whose tag is `tag`, or null. */
const umts_field_desc* umts_record_union_member(const umts_record_desc* desc, uint64_t tag);

/* Whether field `f` of the record at `record` (of description `desc`, not a union) holds a
   value, which its JSON then shows: by its presence bit, its choice tag (UMTS_BY_TAG) or, for
   a union, a member for its tag. */
bool umts_record_field_held(const umts_record_desc* desc, const umts_field_desc& f, const void* record);

/* The entries in use of a list of `dim` entries whose count field of `count_size` octets
   reads `count`: the count, within the bound; a list whose bound the count cannot hold (256
   under 8 bits: tfci-Range, the common E-RNTI groups) reads 0 when full, and a count of 0
   then stands for the whole list. */
inline uint64_t umts_record_list_entries(uint64_t count, uint32_t count_size, uint64_t dim) {
  if (count > dim) return dim;
  if (count == 0 && count_size < 8 && dim > (uint64_t{1} << (8 * count_size)) - 1) return dim;
  return count;
}

/* The entries that array field `f` of the record at `record` holds. */
inline uint64_t umts_record_entries_held(const umts_field_desc& f, const void* record) {
  return umts_record_list_entries(
      umts_record_load_unsigned(static_cast<const uint8_t*>(record) + f.aux_offset, f.aux_size), f.aux_size, f.dim);
}

/* Records, unions and list entries up to this size are cleared whole by
   umts_record_clear_written, which costs less than reading their description. A conversion
   that writes an entry beyond what its counts show relies on it (and asserts it). */
#define UMTS_RECORD_WRITE_WHOLE 512u

/* Leaves the record at `record` as zero as a whole clearing would, provided that before the
   writes since its last clearing it was all zero and that those writes stayed within what
   the record's counts and tags show: each list up to its count, each union in the member of
   its tag, every other field. Costs what those parts hold, not the record's size. */
void umts_record_clear_written(const umts_record_desc* desc, void* record);

/* Makes the record at `dst` read as the one at `src`, at the cost of what the two hold: `dst`
   is cleared by what was written into it (as umts_record_clear_written, with the same
   condition), then `src` is copied in the parts that its counts and tags say are in use, parts
   up to UMTS_RECORD_WRITE_WHOLE bytes whole. Holds when the writes into `src` since it was
   zero stayed within its counts and tags, as the conversions' do. */
void umts_record_copy_written(const umts_record_desc* desc, void* dst, const void* src);

/* Appends the JSON object of the record at `record`. */
inline void umts_json_append_record(std::string& out, const umts_record_desc* desc, const void* record) {
  const size_t at = out.size();
  out.resize(at + 256);
  size_t n = umts_json_write_record(desc, record, &out[at], 257);
  if (n > 256) {
    out.resize(at + n);
    umts_json_write_record(desc, record, &out[at], n + 1);
  }
  out.resize(at + n);
}

#endif /* UMTS_RECORD_DESC_H */
