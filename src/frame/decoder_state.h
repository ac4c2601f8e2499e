/*
 * The state that a call of the library works on, inside the library.
 *
 * Every call runs for one decoder instance: the slots, requests and schedules that it reads
 * and writes are those of the calling thread's current instance, which an instance's entry
 * makes current for the span of its call (null: the process's own, g_umts_ctxt). Messages
 * go through the current print state (rtxPrintSay): to standard output for the process's
 * own state, into the instance's text otherwise.
 */
#ifndef UMTS_FRAME_DECODER_STATE_H
#define UMTS_FRAME_DECODER_STATE_H

#include "rt_print_state.h"
#include "umts_sib_decoder.h"

#if defined(__GNUC__) || defined(__clang__)
#define UMTS_STATE_LOCAL __attribute__((visibility("hidden")))
#define UMTS_STATE_TLS __attribute__((tls_model("initial-exec"), visibility("hidden")))
#else
#define UMTS_STATE_LOCAL
#define UMTS_STATE_TLS
#endif

/* The current instance's state of the calling thread; null for g_umts_ctxt. */
extern __thread umts_decoder_ctxt* umts_current_ctxt UMTS_STATE_TLS;

inline umts_decoder_ctxt& umts_ctxt() {
  umts_decoder_ctxt* c = umts_current_ctxt;
  return c != nullptr ? *c : g_umts_ctxt;
}

/* The bodies of the two entries, on the calling thread's current instance. */
UMTS_STATE_LOCAL uint8_t umts_decode_transport_block(const uint8_t* data, umts_sib_set* result, uint32_t length);
/* `sib_id` is the caller's umts_sib_id as the integer it passed (any value of its type). */
UMTS_STATE_LOCAL uint8_t umts_decode_whole_sib(uint32_t sib_id, const uint8_t* data, umts_sib_set* result,
                                               uint32_t length);
/* The value of a umts_sib_id parameter as the caller passed it. A C caller may pass any value
   of the enumeration's integer type, while reading the parameter as the C++ enumeration is
   undefined beyond the enumeration's range (0 to 15): its bytes are read instead. */
inline uint32_t umts_sib_id_bits(const umts_sib_id& sib_id) {
  static_assert(sizeof(umts_sib_id) == sizeof(uint32_t), "umts_sib_id is a 32-bit integer");
  uint32_t value;
  __builtin_memcpy(&value, &sib_id, sizeof value);
  return value;
}

/* A message line, as puts writes it. */
inline void umts_say(const char* text) { rtxPrintSay(text, 1); }
/* A message without a line end, as fputs writes it. */
inline void umts_say_part(const char* text) { rtxPrintSay(text, 0); }

#endif /* UMTS_FRAME_DECODER_STATE_H */
