/*
 * Where the ASN.1 text of the decoded blocks goes: a stream of the host's, or nowhere.
 */
#include "umts_rrc_rt.h"
#include "umts_rrc_rt_print.h"
#include "umts_sib_decoder.h"

void umts_sib_print_to(FILE* stream) {
  /* What was gathered belongs to the stream that was in force when it was made. */
  rtxPrintSetStream(stream != nullptr ? stream : stdout);
  rtxPrintSetOn(stream != nullptr);
}

void umts_sib_print_flush(void) { rtxPrintFlush(); }
