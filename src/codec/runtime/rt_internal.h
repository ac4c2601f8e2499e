/*
 * Definitions shared by the runtime's own units; not part of the public interface.
 */
#ifndef UMTS_RRC_RT_INTERNAL_H
#define UMTS_RRC_RT_INTERNAL_H

#include "umts_rrc_rt.h"

namespace umts_rt {

/* Set in rtxContext.magic by initialisation, cleared by rtFreeContext. */
constexpr uint32_t kContextMagic = 0x52524331u;

/* Largest single allocation the context heap accepts; anything bigger is a corrupt length. */
constexpr size_t kHeapMaxAlloc = size_t(1) << 30;

/* Units counted by one fragment multiplier of the general length form. */
constexpr uint32_t kFragmentUnit = 16384;

/* Size bounds in force for one length or string operation. */
struct Bounds {
  bool constrained;
  uint32_t lower;
  uint32_t upper;
};

inline Bounds boundsOf(const rtxSizeConstraint* sc) {
  if (sc == nullptr) return Bounds{false, 0, 0};
  return Bounds{true, sc->lower, sc->upper};
}

/* A constrained count is used below 64K; otherwise the general form with fragments. */
inline bool usesConstrainedCount(const Bounds& b) { return b.constrained && b.upper < 65536u; }

}  // namespace umts_rt

#endif /* UMTS_RRC_RT_INTERNAL_H */
