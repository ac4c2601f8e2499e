/*
 * Where the ASN.1 text of the default instance goes (the process's print state): a stream of
 * the host's, or nowhere.
 */
#include "umts_rrc_rt.h"
#include "umts_rrc_rt_print.h"
#include "umts_sib_decoder.h"
#include "decoder_state.h"

void umts_sib_print_to(FILE* stream) {
  rtxPrintState* before = rtxPrintStateUse(nullptr);
  /* What was gathered belongs to the stream that was in force when it was made. */
  rtxPrintSetStream(stream != nullptr ? stream : stdout);
  rtxPrintSetOn(stream != nullptr);
  rtxPrintStateUse(before);
}

void umts_sib_print_flush(void) {
  rtxPrintState* before = rtxPrintStateUse(nullptr);
  rtxPrintFlush();
  rtxPrintStateUse(before);
}
