/*
 * Print states of the runtime, for the library's decoder instances; not part of the public
 * interface.
 *
 * Every print operation writes through the current print state of the calling thread: the
 * process's own (standard output, on, 64 KB) unless the thread has made another current. A
 * decoder instance owns a state of its own (off and without a stream until told otherwise)
 * and makes it current for the span of each of its calls, so that instances on different
 * threads never share a buffer.
 */
#ifndef UMTS_RRC_RT_PRINT_STATE_H
#define UMTS_RRC_RT_PRINT_STATE_H

#include <stdio.h>

#if defined(__GNUC__) || defined(__clang__)
#define RT_PRINT_LOCAL __attribute__((visibility("hidden")))
#else
#define RT_PRINT_LOCAL
#endif

struct rtxPrintState;

/* A new state, printing off, no stream; null when memory is short. */
RT_PRINT_LOCAL rtxPrintState* rtxPrintStateNew(void);
/* Hands what is gathered to the state's stream and releases the state. */
RT_PRINT_LOCAL void rtxPrintStateFree(rtxPrintState* state);
/* Makes `state` (null: the process's own) the current state of the calling thread; returns
   the one current before. */
RT_PRINT_LOCAL rtxPrintState* rtxPrintStateUse(rtxPrintState* state);

/* A message of the library (a line when `line` is set, else the text as it stands): on the
   process's state to standard output with puts or fputs, as always; on an instance's state
   into its text, in order with the decoded values, and nowhere while its printing is off. */
RT_PRINT_LOCAL void rtxPrintSay(const char* text, int line);

#endif /* UMTS_RRC_RT_PRINT_STATE_H */
