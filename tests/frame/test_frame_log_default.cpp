// The library's own log service, in a program that brings none: silent at threshold 0, one
// level-tagged line per call on standard error above it.
#include "frame_test_util.h"

namespace {

TEST(FrameDefaultLog, SilentUntilTheThresholdIsRaised) {
  const uint8_t byte = 0;
  auto refused = [&] { umts_sib_msg_decoder(umts_sib_mib, &byte, nullptr, 0); };
  EXPECT_EQ(zvtLogLevelThreshold, 0u);
  EXPECT_EQ(frametest::captureFd(2, refused), "");
  zvtLogLevelThreshold = 2;
  EXPECT_EQ(frametest::captureFd(2, refused), "[umts:2] Invalid param!\n");
  zvtLogLevelThreshold = 6;
  EXPECT_EQ(frametest::captureFd(2, [] { umts_sib_decoder_set_gb_ctxt_bitmask(static_cast<umts_sib_id>(40)); }),
            "[umts:2] umts_sib_decoder_set_gb_ctxt_bitmask:no such option available\n"
            "[umts:6] ASN context filled bitmask=0\n");
  zvtLogLevelThreshold = 0;
}

}  // namespace
