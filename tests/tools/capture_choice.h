/*
 * Whether this build reads captures, as the build chose it (UMTS_BUILD_CAPTURE and libpcap):
 * the compile definitions that umts_capture_input passes on. A test that needs capture input
 * starts with UMTS_SKIP_WITHOUT_CAPTURE(), which reports it skipped with the reason.
 */
#ifndef UMTS_TESTS_CAPTURE_CHOICE_H
#define UMTS_TESTS_CAPTURE_CHOICE_H

#ifdef UMTS_HAVE_PCAP
constexpr bool kCaptureInput = true;
#define UMTS_SKIP_WITHOUT_CAPTURE() static_cast<void>(0)
#else
constexpr bool kCaptureInput = false;
#define UMTS_SKIP_WITHOUT_CAPTURE() GTEST_SKIP() << "sibdump is built without capture input: " UMTS_NO_CAPTURE_REASON
#endif

#endif
