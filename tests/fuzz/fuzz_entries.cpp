// The entry code of the fuzz targets; see fuzz_entries.h for the input formats.
#include "fuzz_entries.h"

#include "umts_sib_convert.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "codec_test_util.h"
#include "umts_rrc_registry.h"
#include "umts_sib_decoder.h"
#include "umts_sib_frame.h"
#include "umts_sib_log.h"

// This program's log function, which replaces the library's default: every call formats its
// text (so that a format that does not match its values shows up) and drops it. The
// threshold stays the library's own: a second definition of a variable, interposed, is an
// ODR violation to clang's AddressSanitizer.
void zvtLogItC(int level, int module, int instance, int flags, const char* format, ...) {
  (void)level;
  (void)module;
  (void)instance;
  (void)flags;
  char text[1024];
  va_list args;
  va_start(args, format);
  std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
}

namespace umts_fuzz {

namespace {

struct FreeDeleter {
  void operator()(void* p) const { std::free(p); }
};
using Bytes = std::unique_ptr<uint8_t[], FreeDeleter>;

// A heap copy of exactly `n` bytes, so that a read past the input is reported.
Bytes exactCopy(const uint8_t* data, size_t n) {
  Bytes copy(static_cast<uint8_t*>(std::malloc(n > 0 ? n : 1)));
  if (n > 0) std::memcpy(copy.get(), data, n);
  return copy;
}

// The caller's record: large, so made once and kept for the life of the program.
umts_sib_set* resultRecord() {
  static umts_sib_set* const record = static_cast<umts_sib_set*>(std::calloc(1, sizeof(umts_sib_set)));
  return record;
}

// The same record from the library: its records are cleared by what the conversion before
// wrote, and must read byte for byte as the caller's own, which are written with zeros whole.
umts_sib_set* librarySet() {
  static umts_sib_set* const record = umts_sib_set_alloc();
  return record;
}

// Where each block's record lies in the set: after the presence word, by slot.
struct RecordSpan {
  size_t offset, size;
};
#define UMTS_FUZZ_SPAN(kind, type, name, dim, cond, aux) {offsetof(umts_sib_set, name), sizeof(type)},
const RecordSpan kRecordSpans[umts_sib_count + 1] = {umts_sib_set_FIELDS(UMTS_FUZZ_SPAN)};
#undef UMTS_FUZZ_SPAN

void resetContext() {
  for (umts_sib_slot& slot : g_umts_ctxt.slots) std::free(slot.buffer);
  std::memset(&g_umts_ctxt, 0, sizeof g_umts_ctxt);
}

// Every write cursor lies within its slot's buffer, at a bit of its octet.
std::string checkSlots() {
  for (unsigned id = 0; id < umts_sib_count; id++) {
    const umts_sib_slot& s = g_umts_ctxt.slots[id];
    if (s.write_bit > 7) return "slot " + std::to_string(id) + ": write bit beyond its octet";
    if (s.write_cursor == nullptr) continue;
    if (s.buffer == nullptr || s.write_cursor < s.buffer || s.write_cursor > s.buffer + UMTS_SIB_DECODE_LENGTH)
      return "slot " + std::to_string(id) + ": write cursor outside its buffer";
  }
  return "";
}

}  // namespace

QuietOutput::QuietOutput() : saved_stdout_(-1) {
  std::fflush(stdout);
  rtxPrintFlush();
  saved_stdout_ = dup(1);
  const int null_fd = open("/dev/null", O_WRONLY);
  if (null_fd >= 0) {
    dup2(null_fd, 1);
    close(null_fd);
  }
  zvtLogLevelThreshold = 6;
}

QuietOutput::~QuietOutput() {
  std::fflush(stdout);
  rtxPrintFlush();
  if (saved_stdout_ >= 0) {
    dup2(saved_stdout_, 1);
    close(saved_stdout_);
  }
  zvtLogLevelThreshold = 0;
}

std::string run_bch(const uint8_t* data, size_t size) {
  umts_sib_set* result = resultRecord();
  if (result == nullptr) return "";
  resetContext();
  result->presence_bitmask = 0;
  std::string problem;
  size_t pos = 0, block = 0;
  while (pos < size && problem.empty()) {
    size_t n = data[pos++] & 0x3Fu;
    if (n > size - pos) n = size - pos;
    const Bytes copy = exactCopy(data + pos, n);
    pos += n;
    const uint8_t status = umts_sib_decoder(copy.get(), result, static_cast<uint32_t>(n));
    const std::string at = "block " + std::to_string(block++) + ": ";
    if (status > 1) problem = at + "status " + std::to_string(status);
    else if (g_umts_ctxt.request_bitmask != 0) problem = at + "requests left after the call";
    else if ((result->presence_bitmask & ~0xFFFu) != 0) problem = at + "presence bit beyond the last block";
    else if (!(problem = checkSlots()).empty()) problem = at + problem;
  }
  resetContext();
  return problem;
}

std::string run_sib_msg(const uint8_t* data, size_t size) {
  umts_sib_set* result = resultRecord();
  if (result == nullptr || size == 0) return "";
  resetContext();
  result->presence_bitmask = 0;
  // Ids from 0xF0 up stand for a C caller's value beyond the enumeration: refused.
  const uint32_t id = data[0] < 0xF0u ? data[0] % umts_sib_count : data[0];
  const size_t n = size - 1;
  const Bytes copy = exactCopy(data + 1, n);
  const uint8_t status = umts_sib_msg_decoder(static_cast<umts_sib_id>(id), copy.get(), result, static_cast<uint32_t>(n));
  std::string problem;
  const uint16_t expected = status == 1 ? static_cast<uint16_t>(1u << id) : 0;
  if (status > 1) problem = "status " + std::to_string(status);
  else if (id >= umts_sib_count && status != 0) problem = "an id beyond the slots was taken";
  else if (result->presence_bitmask != expected) problem = "presence bits do not match the status";
  else if (g_umts_ctxt.request_bitmask != 0) problem = "requests left after the call";
  else if (id < umts_sib_count && g_umts_ctxt.slots[id].buffer != nullptr) problem = "slot not emptied after its conversion";
  else problem = checkSlots();
  resetContext();
  umts_sib_set* own = librarySet();
  if (problem.empty() && own != nullptr && id < umts_sib_count) {
    const uint8_t again = umts_sib_msg_decoder(static_cast<umts_sib_id>(id), copy.get(), own, static_cast<uint32_t>(n));
    const RecordSpan span = kRecordSpans[id + 1];
    if (again != status) problem = "the library's set gave another status";
    else if (std::memcmp(reinterpret_cast<const uint8_t*>(own) + span.offset,
                         reinterpret_cast<const uint8_t*>(result) + span.offset, span.size) != 0)
      problem = "the library's set reads otherwise than the caller's after the same conversions";
    resetContext();
  }
  return problem;
}

std::string run_sib16(const uint8_t* data, size_t size) {
  static umts_sib16_info* const record = static_cast<umts_sib16_info*>(std::malloc(sizeof(umts_sib16_info)));
  static uint64_t* const area = static_cast<uint64_t*>(std::malloc(8 + sizeof(SysInfoType16)));
  if (record == nullptr || area == nullptr) return "";
  const Bytes copy = exactCopy(data, size);
  rtxContext ctx;
  rtInitContext(&ctx);
  pu_setBuffer(&ctx, copy.get(), static_cast<uint32_t>(size), 0);
  std::memset(record, 0xA5, sizeof *record);
  const int status = umts_convert_sib16(&ctx, area, record);
  rtFreeContext(&ctx);
  const umts_sib16_predefined_rb_configuration& c = record->preDefinedRadioConfiguration.predefinedRB_Configuration;
  if (status > 0) return "status " + std::to_string(status);
  if (record->presence_bitmask > 1) return "presence word beyond bit 0";
  if (status == 0 && (c.srb_InformationList.count == 0 || c.srb_InformationList.count > 8 || c.rb_InformationList.count == 0 ||
                      c.rb_InformationList.count > 8))
    return "list counts outside their bounds after a good decode";
  return "";
}

std::string run_codec(const uint8_t* data, size_t size) {
  if (size < 2 || umts_type_registry_count == 0) return "";
  const umts_type_info* type = &umts_type_registry[((uint32_t(data[0]) << 8) | data[1]) % umts_type_registry_count];
  const std::string name = std::string(type->name) + ": ";
  testutil::Decoded first, second;
  /* A vector of exactly the input's size, so that a read past the input is reported. */
  if (testutil::decode(type, std::vector<uint8_t>(data + 2, data + size), first) != 0) return "";
  if (rtxBitPos(&first.ctx) > uint64_t(size - 2) * 8u) return name + "the decoder consumed more bits than it was given";

  std::vector<uint8_t> again, third;
  uint64_t again_bits = 0, third_bits = 0;
  std::string error;
  const int stat = testutil::encode(type, first.value(), again, again_bits, &error);
  // A multi-name ENUMERATED decodes any number its bits can hold; the encoder refuses the
  // ones past the last name.
  if (stat == RT_ERR_INVENUM) return "";
  if (stat != 0) return name + "re-encoding a decoded value failed: " + error;

  if (testutil::decode(type, again, second) != 0) return name + "the re-encoding does not decode";
  if (rtxBitPos(&second.ctx) != again_bits) return name + "the second decode did not consume exactly the re-encoding";
  if (testutil::encode(type, second.value(), third, third_bits, &error) != 0)
    return name + "encoding the second decode failed: " + error;
  if (third_bits != again_bits || third != again) return name + "the two re-encodings differ";
  if (testutil::print(type, first.value()) != testutil::print(type, second.value()))
    return name + "the value printed differently after the round trip";
  return "";
}

}  // namespace umts_fuzz
