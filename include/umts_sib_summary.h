/*
 * The per-cell summary: what a cell broadcasts, in names and units beside the coded values,
 * from the records that the decoder converted (and SIB19, which the set does not hold, from
 * the transport blocks through the codec). It is what `sibdump --summary` writes, as a
 * library of its own beside the decoder: libsibdecoder_umts_summary.
 *
 *   umts_summary* s = umts_summary_new();
 *   for each transport block b of n octets:
 *     umts_sib_decoder(b, set, n);
 *     umts_summary_take(s, "", "my cell", set, b, n);
 *     umts_summary_take_collection(s, "", &g_umts_ctxt);  // SIBs received in part
 *   char* json = umts_summary_text(s, "json");   // one object per cell and line
 *   ...
 *   umts_summary_text_free(json);
 *   umts_summary_free(s);
 */
#ifndef UMTS_SIB_SUMMARY_H
#define UMTS_SIB_SUMMARY_H

#include <stddef.h>
#include <stdint.h>

#include "umts_sib_decoder.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The cells of one input, and the configurations that ended in it. */
typedef struct umts_summary umts_summary;

/* A new, empty collection; null without memory. */
umts_summary* umts_summary_new(void);
void umts_summary_free(umts_summary* summary);

/* After a call of umts_sib_decoder (`block` its transport block of `length` octets) or of
   umts_sib_msg_decoder (`block` null): the records that `set` carries (its presence_bitmask)
   join those of the cell named `cell` (any text; "" for an input of one cell), whose summary
   is headed `label` (given the first time the cell is named). A MIB with a new value tag ends
   the cell's configuration so far, whose summary is kept. Returns 1 when this call ended
   one, 0 otherwise, -1 for a null argument or without memory. */
int umts_summary_take(umts_summary* summary, const char* cell, const char* label, const umts_sib_set* set,
                      const uint8_t* block, size_t length);

/* After umts_summary_take: the SIBs that the cell's decoder is still collecting (`state`:
   umts_sib_decoder_state of the cell's instance, or &g_umts_ctxt) are told in the cell's
   summary with the segments received ("SIB5 incomplete: 3 of 13 segments received") until
   they are completed. Returns 0, or -1 for a null argument or a cell not yet taken. */
int umts_summary_take_collection(umts_summary* summary, const char* cell, const umts_decoder_ctxt* state);

/* The summaries of the ended configurations and of every cell as it stands, in `format`:
   "text", "json" (one object per line) or "html" (one self-contained page). A new string,
   released with umts_summary_text_free; null for another format or without memory. */
char* umts_summary_text(const umts_summary* summary, const char* format);
void umts_summary_text_free(char* text);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_SIB_SUMMARY_H */
