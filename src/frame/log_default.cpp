/*
 * Default log service: silent unless the threshold is raised, then one line per call on
 * standard error, tagged with its level.
 *
 * A host that has a log service of its own defines zvtLogItC and zvtLogLevelThreshold in its
 * program; the dynamic linker then binds the library's calls to those. This unit holds
 * nothing else, so that no call site of the library is bound to these definitions at build
 * time.
 */
#include <cstdarg>
#include <cstdio>

#include "umts_sib_log.h"

/* A host's definition replaces this one. Clang's AddressSanitizer takes two instrumented
   definitions of one variable for a violation of the one-definition rule, so this one, meant
   to be replaced, is left out of its checks. */
#if defined(__clang__)
__attribute__((no_sanitize("address")))
#endif
unsigned int zvtLogLevelThreshold = 0;

void zvtLogItC(int level, int module, int instance, int flags, const char* format, ...) {
  (void)module;
  (void)instance;
  (void)flags;
  char text[1024];
  va_list args;
  va_start(args, format);
  std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
  std::fprintf(stderr, "[umts:%d] %s\n", level, text);
}
