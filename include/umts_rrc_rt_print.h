/*
 * Print output of the runtime (beside the print operations of umts_rrc_rt.h).
 *
 * Print text is gathered in one process-wide buffer of 64 KB and handed to the print stream
 * (rtxPrintSetStream; standard output unless set) with fwrite when the buffer fills, when
 * the stream is changed and on rtxPrintFlush, which also flushes the stream; on standard
 * output also whenever a top-level record is closed, so that what the process writes there
 * with puts or printf stays in order with it. The stream's own buffering decides when the
 * system is called.
 *
 * Only rtxPrintIndent and the braces write indentation: a value operation (rtxPrintUnsigned
 * and the others) writes "name = value" where its caller has put the indentation.
 */
#ifndef UMTS_RRC_RT_PRINT_H
#define UMTS_RRC_RT_PRINT_H

#ifdef __cplusplus
extern "C" {
#endif

/* Printing on (nonzero, the default) or off for the whole process. Off, the print operations
   write nothing, and callers that print whole records (the conversions, the BCH entry) skip
   the print functions altogether, so that no text is formatted. */
void rtxPrintSetOn(int on);
int rtxPrintIsOn(void);

#ifdef __cplusplus
}
#endif

#endif /* UMTS_RRC_RT_PRINT_H */
