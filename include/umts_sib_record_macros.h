/*
 * How the flat records of umts_sib_set are written down.
 *
 * Each record is described once, as a list of its fields:
 *
 *   #define umts_example_FIELDS(F)                                                  \
 *     F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
 *     F(SCALAR, uint8_t, value, 1, UMTS_ALWAYS, _)                                  \
 *     F(RECORD, umts_other, nested, 1, 0, _)          present when bit 0 is set      \
 *     F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                  \
 *     F(ARRAY, umts_entry, entries, 32, UMTS_ALWAYS, count)                         \
 *     F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)                            \
 *     F(UNION, umts_example_u, u, 1, UMTS_ALWAYS, choice_tag)
 *
 * and declared by UMTS_RECORD(umts_example) (or UMTS_UNION for a union, whose members carry
 * their choice tag in `cond`). The same lists give the records' descriptions at run time, from
 * which sibdump writes its JSON, so a field is never listed twice.
 *
 * F(kind, type, name, dim, cond, aux):
 *   kind  SCALAR  an integer of `type` (uint8_t ... int32_t)
 *         BOOL    a one-byte boolean
 *         RECORD  a nested record of `type`
 *         UNION   a union of `type`, its member chosen by the tag in field `aux`
 *         ARRAY   `dim` entries of `type` (record or integer), of which field `aux` counts
 *                 the ones in use
 *         BYTES   `dim` raw octets of `type` uint8_t
 *   cond  UMTS_ALWAYS, or the bit of the record's presence_bitmask that says that the field
 *         holds a value; in a union, the choice tag of the member; or UMTS_BY_TAG for a
 *         nested RECORD that holds a value when its own choice_tag (its first field) is not
 *         0, whatever bit the record may have for it (a frequency converted for every cell
 *         of a list, with no bit set)
 *   aux   the count or tag field named above, `_` otherwise
 */
#ifndef UMTS_SIB_RECORD_MACROS_H
#define UMTS_SIB_RECORD_MACROS_H

#include <stdint.h>

#define UMTS_ALWAYS (-1)
#define UMTS_BY_TAG (-2)

#define UMTS_FIELD_DECL(kind, type, name, dim, cond, aux) UMTS_FIELD_DECL_##kind(type, name, dim)
#define UMTS_FIELD_DECL_SCALAR(type, name, dim) type name;
#define UMTS_FIELD_DECL_BOOL(type, name, dim) type name;
#define UMTS_FIELD_DECL_RECORD(type, name, dim) type name;
#define UMTS_FIELD_DECL_UNION(type, name, dim) type name;
#define UMTS_FIELD_DECL_ARRAY(type, name, dim) type name[dim];
#define UMTS_FIELD_DECL_BYTES(type, name, dim) type name[dim];

#define UMTS_RECORD(name) \
  typedef struct name {   \
    name##_FIELDS(UMTS_FIELD_DECL) \
  } name;
#define UMTS_UNION(name) \
  typedef union name {   \
    name##_FIELDS(UMTS_FIELD_DECL) \
  } name;

/* Declares every record of a list X(RECORD, name) / X(UNION, name). */
#define UMTS_DEFINE(kind, name) UMTS_##kind(name)

#endif /* UMTS_SIB_RECORD_MACROS_H */
