// Helpers of the frame tests: captured output and log lines, the global context, encoders.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "umts_sib_decoder.h"
#include "umts_sib_frame.h"
#include "umts_sib_log.h"

namespace frametest {

// Short encodings from the codec's round-trip vectors.
constexpr char kSib7Hex[] = "10e0";                // SysInfoType7, 11 bits
constexpr char kSib3Hex[] = "59b4f4b4c2d0768a00";  // SysInfoType3, 65 bits

// Lines given to this program's log service, as "level:text".
std::vector<std::string>& logLines();
bool logged(const std::string& line);
// Empties every slot and the request mask, as at load.
void resetContext();
std::vector<uint8_t> fromHex(const std::string& hex);
// A zero-filled slot buffer of the decode window's size holding `bytes`, its SIB requested.
void putSlot(umts_sib_id id, const std::vector<uint8_t>& bytes);

// What a file holds up to its position; the file is closed.
inline std::string readAndClose(FILE* f) {
  std::string text(static_cast<size_t>(std::ftell(f)), '\0');
  std::rewind(f);
  text.resize(std::fread(&text[0], 1, text.size(), f));
  std::fclose(f);
  return text;
}

// Everything written to file descriptor `fd` while fn runs; on 1 the codec's print included.
template <typename Fn>
std::string captureFd(int fd, Fn fn) {
  std::fflush(nullptr);
  FILE* tmp = std::tmpfile();
  const int saved = dup(fd);
  dup2(fileno(tmp), fd);
  fn();
  std::fflush(nullptr);
  rtxPrintFlush();
  dup2(saved, fd);
  close(saved);
  return readAndClose(tmp);
}
template <typename Fn>
std::string captureStdout(Fn fn) {
  return captureFd(1, fn);
}

// A handler's result on `value`, what it printed dropped.
template <typename T>
uint8_t quietly(uint8_t (*handler)(const T*), const T& value) {
  uint8_t ret = 0xEE;
  captureStdout([&] { ret = handler(&value); });
  return ret;
}

// The codec's unaligned PER encoding of `value`; `bits` gets its length in bits.
template <typename T>
std::vector<uint8_t> encode(int (*encoder)(rtxContext*, const T*), const T& value, uint32_t* bits = nullptr) {
  rtxContext ctx;
  rtInitContext(&ctx);
  int stat = rtxInitContextBuffer(&ctx, nullptr, 0);
  if (stat == 0) stat = encoder(&ctx, &value);
  std::vector<uint8_t> bytes;
  char error[512];
  if (stat == 0) bytes.assign(ctx.buffer_data, ctx.buffer_data + pu_getMsgLen(&ctx));
  else ADD_FAILURE() << "encoding failed: " << (rtxErrGetText(&ctx, error, sizeof error), error);
  if (bits != nullptr) *bits = static_cast<uint32_t>(rtxBitPos(&ctx));
  rtFreeContext(&ctx);
  return bytes;
}

// A transport block carrying one payload alternative.
std::vector<uint8_t> encodeBch(uint32_t t, const void* alternative, uint16_t sfnPrime = 0);

// A bit string field: `numbits` bits of `bytes` from bit `start` (a multiple of 8).
// A record that holds nothing but zero bytes.
template <typename T>
bool allZero(const T& value) {
  static const T zero = {};
  return std::memcmp(&value, &zero, sizeof value) == 0;
}

template <typename BitString>
BitString bitString(const std::vector<uint8_t>& bytes, uint32_t numbits, uint32_t start = 0) {
  BitString field;
  std::memset(&field, 0, sizeof field);
  field.numbits = numbits;
  for (uint32_t i = 0; i < (numbits + 7) / 8 && i < sizeof field.data; i++)
    field.data[i] = start / 8 + i < bytes.size() ? bytes[start / 8 + i] : 0;
  if (numbits % 8 != 0 && numbits <= 8 * sizeof field.data) field.data[numbits / 8] &= 0xFF00u >> (numbits % 8);
  return field;
}
inline std::vector<uint8_t> filled(uint8_t fill) { return std::vector<uint8_t>(29, fill); }

template <typename T>
void append(rtxDList& list, rtxDListNode& node, T& value) {
  node.data = &value;
  rtxDListAppendNode(&list, &node);
}

PLMN_Identity plmnIdentity(const char* mcc, const char* mnc);
SchedulingInformation scheduling(uint32_t posTag, uint16_t pos, uint8_t segCount = 1,
                                 const std::vector<uint32_t>& offsets = {});

// A MasterInformationBlock built in code, with the storage of its lists and alternatives.
// Starts as mib-ValueTag 3, gsm-MAP 262/01, one sibSb entry (sysInfoType1 256, rep1024 511).
struct MibBuilder {
  MasterInformationBlock mib;
  PLMN_Type_gsm_MAP gsm;
  PLMN_Type_ansi_41 ansi;
  PLMN_Type_gsm_MAP_and_ANSI_41 both;
  PredefinedConfigIdentityAndValueTag predefined;
  SIBOccurrenceIdentityAndValueTag occurrences[2];
  SchedulingInformationSIBSb refs[8];
  PLMN_IdentityWithOptionalMCC_r6 plmns[5];
  ExtSIBTypeInfoSchedulingInfo ext;
  ExtSIBTypeInfoSchedulingInfo2 ext2;
  ExtGANSS_SIBTypeInfoSchedulingInfo ganss;
  ExtGANSS_SchedulingInfo ganssScheduling[2];
  rtxDListNode nodes[20];
  unsigned used = 0;

  MibBuilder();
  MibBuilder(const MibBuilder&) = delete;
  template <typename T>
  void add(rtxDList& list, T& value) {
    append(list, nodes[used++], value);
  }
  SchedulingInformationSIBSb& addRef(uint32_t t, const SchedulingInformation& s);
  std::vector<uint8_t> encode(uint32_t* bits = nullptr) const;
};

// Each test starts from an empty context with the log threshold at its most verbose.
class FrameTest : public ::testing::Test {
 protected:
  void SetUp() override {
    resetContext();
    logLines().clear();
    zvtLogLevelThreshold = 6;
  }
  void TearDown() override {
    resetContext();
    zvtLogLevelThreshold = 0;
  }
  // The caller's record: megabytes, so allocated once for the whole program (never per
  // case, never on the stack) and cleared for each case.
  static umts_sib_set* sharedSet() {
    static umts_sib_set* const set = static_cast<umts_sib_set*>(std::calloc(1, sizeof(umts_sib_set)));
    return set;
  }
  umts_sib_set* result = static_cast<umts_sib_set*>(std::memset(sharedSet(), 0, sizeof(umts_sib_set)));

  // A transport block through the BCH entry; its result, and what it printed in `out`.
  uint8_t feed(const std::vector<uint8_t>& block, std::string* out = nullptr) {
    return printing(out, [&] { return umts_sib_decoder(block.data(), result, static_cast<uint32_t>(block.size())); });
  }
  // One whole SIB through the other entry.
  uint8_t whole(umts_sib_id id, const std::vector<uint8_t>& bytes, std::string* out = nullptr) {
    return printing(out, [&] { return umts_sib_msg_decoder(id, bytes.data(), result, static_cast<uint32_t>(bytes.size())); });
  }
  template <typename Fn>
  uint8_t printing(std::string* out, Fn entry) {
    uint8_t ret = 0xEE;
    const std::string text = captureStdout([&] { ret = entry(); });
    if (out != nullptr) *out = text;
    return ret;
  }
};

}  // namespace frametest
