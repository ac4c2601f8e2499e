/*
 * Decoder instances: the state of one broadcast stream each, and the entries that run the
 * library's road on one of them.
 *
 * An entry makes its instance the current one of the calling thread (its slots and its print
 * state) for the span of the call and puts back what was current before. The entries without
 * an instance run on the default instance, whose state is g_umts_ctxt and whose text is the
 * process's print stream; nothing else of the library is global and writable.
 */
#include <cstdlib>
#include <cstring>

#include "umts_rrc_rt.h"
#include "umts_rrc_rt_print.h"
#include "umts_sib_convert.h"
#include "umts_sib_decoder.h"
#include "decoder_state.h"

struct umts_sib_decoder_instance {
  umts_decoder_ctxt* ctxt; /* the state decoded into: &own, or null for g_umts_ctxt */
  rtxPrintState* print;    /* the instance's print state, or null for the process's */
  umts_decoder_ctxt own;
};

__thread umts_decoder_ctxt* umts_current_ctxt UMTS_STATE_TLS = nullptr;

namespace {

/* The default instance: never written. */
const umts_sib_decoder_instance kDefault = {nullptr, nullptr, {}};

/* The instance made current for a call, and what was current before put back after it. */
class Current {
 public:
  explicit Current(const umts_sib_decoder_instance* d)
      : ctxt_before_(umts_current_ctxt), print_before_(rtxPrintStateUse(d->print)) {
    umts_current_ctxt = d->ctxt;
  }
  ~Current() {
    umts_current_ctxt = ctxt_before_;
    rtxPrintStateUse(print_before_);
  }
  Current(const Current&) = delete;
  Current& operator=(const Current&) = delete;

 private:
  umts_decoder_ctxt* ctxt_before_;
  rtxPrintState* print_before_;
};

umts_decoder_ctxt& state_of(umts_sib_decoder_instance* d) { return d->ctxt != nullptr ? *d->ctxt : g_umts_ctxt; }

}  // namespace

uint8_t umts_sib_decoder(const uint8_t* data, umts_sib_set* result, uint32_t length) {
  Current current(&kDefault);
  return umts_decode_transport_block(data, result, length);
}

uint8_t umts_sib_msg_decoder(umts_sib_id sib_id, const uint8_t* data, umts_sib_set* result, uint32_t length) {
  Current current(&kDefault);
  return umts_decode_whole_sib(umts_sib_id_bits(sib_id), data, result, length);
}

umts_sib_decoder_t* umts_sib_decoder_new(void) {
  umts_sib_decoder_instance* d = static_cast<umts_sib_decoder_instance*>(std::calloc(1, sizeof *d));
  if (d == nullptr) return nullptr;
  d->print = rtxPrintStateNew();
  if (d->print == nullptr) {
    std::free(d);
    return nullptr;
  }
  d->ctxt = &d->own;
  return d;
}

void umts_sib_decoder_reset(umts_sib_decoder_t* decoder) {
  if (decoder == nullptr) return;
  umts_decoder_ctxt& c = state_of(decoder);
  for (umts_sib_slot& slot : c.slots) std::free(slot.buffer);
  std::memset(&c, 0, sizeof c);
}

void umts_sib_decoder_free(umts_sib_decoder_t* decoder) {
  if (decoder == nullptr || decoder == &kDefault) return;
  umts_sib_decoder_reset(decoder);
  rtxPrintStateFree(decoder->print);
  std::free(decoder);
}

umts_sib_decoder_t* umts_sib_decoder_default(void) {
  /* Handed out for the entries below, which only read it. */
  return const_cast<umts_sib_decoder_instance*>(&kDefault);
}

const umts_decoder_ctxt* umts_sib_decoder_state(const umts_sib_decoder_t* decoder) {
  if (decoder == nullptr) return nullptr;
  return decoder->ctxt != nullptr ? decoder->ctxt : &g_umts_ctxt;
}

uint8_t umts_sib_decoder_feed_block(umts_sib_decoder_t* decoder, const uint8_t* data, umts_sib_set* result,
                                    uint32_t length) {
  if (decoder == nullptr) return 0;
  Current current(decoder);
  return umts_decode_transport_block(data, result, length);
}

uint8_t umts_sib_decoder_feed_sib(umts_sib_decoder_t* decoder, umts_sib_id sib_id, const uint8_t* data,
                                  umts_sib_set* result, uint32_t length) {
  if (decoder == nullptr) return 0;
  Current current(decoder);
  return umts_decode_whole_sib(umts_sib_id_bits(sib_id), data, result, length);
}

int umts_sib_decoder_convert_sib16(umts_sib_decoder_t* decoder, rtxContext* context, void* decoded,
                                   umts_sib16_info* out) {
  if (decoder == nullptr) return -1;
  Current current(decoder);
  return umts_convert_sib16(context, decoded, out);
}

void umts_sib_decoder_print_to(umts_sib_decoder_t* decoder, FILE* stream) {
  if (decoder == nullptr) return;
  if (decoder == &kDefault) {
    umts_sib_print_to(stream);
    return;
  }
  Current current(decoder);
  rtxPrintSetStream(stream);
  rtxPrintSetOn(stream != nullptr);
}

void umts_sib_decoder_print_flush(umts_sib_decoder_t* decoder) {
  if (decoder == nullptr) return;
  Current current(decoder);
  rtxPrintFlush();
}
