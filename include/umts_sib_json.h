/*
 * The flat records of umts_sib_set as JSON, written into the caller's buffer.
 *
 * The text comes from the one description of each record (the field lists of the headers
 * include/umts_sib_*.h), so that it follows the records without a second list. Form:
 *   - a record is an object of its fields in declaration order;
 *   - integers are numbers, booleans true/false, octet arrays strings of two lower-case hex
 *     digits per octet, nested records objects;
 *   - a list holds its used entries only (its count, never more than its dimension);
 *   - a choice's union is an object of the one member that its tag selects, e.g.
 *     "u":{"gsm_MAP":{...}}; with a tag that selects none the union is left out;
 *   - an optional field appears only when its bit of the record's presence_bitmask is set.
 * No blanks, no line end. `sibdump` writes one line per converted block around this text:
 *   {"line":12,"block":"sib3","record":<umts_sib_record_json>}
 *
 * Every writer works like snprintf: it writes at most `size` bytes, the text ended by a null
 * (truncated when it does not fit), and returns the length of the whole text without the
 * null, so that a return value of `size` or more says that a buffer of (return + 1) bytes is
 * needed. `buf` may be null when `size` is 0. Nothing is allocated; the record is only read.
 */
#ifndef UMTS_SIB_JSON_H
#define UMTS_SIB_JSON_H

#include <stddef.h>

#include "umts_sib_decoder.h"

#ifdef __cplusplus
extern "C" {
#endif

/* sizeof(umts_sib_set): what a host without the C declarations (a binding through a foreign
   function interface) allocates, zeroed, for the record that the entries fill. */
size_t umts_sib_set_size(void);

/* Name of the sub-record of block `id` in umts_sib_set and in the JSON: "mib", "sib1", ...
   "sb2"; null for an id of umts_sib_count or beyond. */
const char* umts_sib_name(umts_sib_id id);

/* The block whose name is the `length` bytes at `name` (not null-ended), or umts_sib_count. */
umts_sib_id umts_sib_id_of_name(const char* name, size_t length);

/* JSON object of the sub-record of block `id` (whether or not its presence bit is set). An
   id of umts_sib_count or beyond writes nothing and returns 0. */
size_t umts_sib_record_json(const umts_sib_set* set, umts_sib_id id, char* buf, size_t size);

/* JSON object of the blocks whose bits are set in set->presence_bitmask, named by
   umts_sib_name, in the order of umts_sib_id:
     {"presence_bitmask":9,"mib":{...},"sib3":{...}} */
size_t umts_sib_set_json(const umts_sib_set* set, char* buf, size_t size);

/* JSON object of a SIB16 record (umts_convert_sib16), in the same form. */
size_t umts_sib16_json(const umts_sib16_info* sib16, char* buf, size_t size);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_SIB_JSON_H */
