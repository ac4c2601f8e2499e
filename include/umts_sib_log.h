/*
 * The log service of the host process. The library calls zvtLogItC as
 * zvtLogItC(level, 0, -1, 0, format, values...) with level 2 (errors) or 6 (trace), each call
 * guarded by its own test of zvtLogLevelThreshold: level 2 when the threshold is above 1,
 * level 6 when it is above 5.
 *
 * The library ships a default: one line on standard error per call, tagged with its level,
 * and a threshold of 0 (silent). A host replaces both by defining them in its own program.
 *
 * Threads: decoder instances on different threads call zvtLogItC at the same time, so a
 * host's replacement must allow calls from any thread at once (the default writes each line
 * with one fprintf, which the C library serialises per stream). The library only reads
 * zvtLogLevelThreshold, as an atomic word at each call site; a host that changes it while
 * decoders run should store it atomically too (__atomic_store_n), or set it before they start.
 */
#ifndef UMTS_SIB_LOG_H
#define UMTS_SIB_LOG_H

#ifdef __cplusplus
extern "C" {
#endif

extern unsigned int zvtLogLevelThreshold;
void zvtLogItC(int level, int module, int instance, int flags, const char* format, ...)
#if defined(__GNUC__) || defined(__clang__)
    __attribute__((format(printf, 5, 6)))
#endif
    ;

#ifdef __cplusplus
}
#endif

/* The threshold as a call site reads it: afresh, as one atomic word, so that a host may
   change it on one thread while others decode. */
#if defined(__GNUC__) || defined(__clang__)
#define UMTS_LOG_THRESHOLD() __atomic_load_n(&zvtLogLevelThreshold, __ATOMIC_RELAXED)
#else
#define UMTS_LOG_THRESHOLD() zvtLogLevelThreshold
#endif

/* A guarded call of the log service, as every call site of the library makes it. */
#define UMTS_LOG_ERROR(...)                                              \
  do {                                                                   \
    if (UMTS_LOG_THRESHOLD() > 1) zvtLogItC(2, 0, -1, 0, __VA_ARGS__);   \
  } while (0)
#define UMTS_LOG_TRACE(...)                                              \
  do {                                                                   \
    if (UMTS_LOG_THRESHOLD() > 5) zvtLogItC(6, 0, -1, 0, __VA_ARGS__);   \
  } while (0)

#endif /* UMTS_SIB_LOG_H */
