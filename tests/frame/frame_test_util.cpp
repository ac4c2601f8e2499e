#include "frame_test_util.h"

#include <algorithm>
#include <cstdarg>

// This program's log service. It replaces the library's default at link time, so every line
// below comes from the library's calls through the dynamic symbol.
unsigned int zvtLogLevelThreshold = 0;

void zvtLogItC(int level, int module, int instance, int flags, const char* format, ...) {
  EXPECT_TRUE(module == 0 && instance == -1 && flags == 0);
  char text[1024];
  va_list args;
  va_start(args, format);
  std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
  frametest::logLines().push_back(std::to_string(level) + ":" + text);
}

namespace frametest {

std::vector<std::string>& logLines() {
  static std::vector<std::string> lines;
  return lines;
}

bool logged(const std::string& line) {
  for (const auto& l : logLines())
    if (l == line) return true;
  return false;
}

void resetContext() {
  for (auto& slot : g_umts_ctxt.slots) std::free(slot.buffer);
  std::memset(&g_umts_ctxt, 0, sizeof g_umts_ctxt);
}

std::vector<uint8_t> fromHex(const std::string& hex) {
  std::vector<uint8_t> out;
  for (size_t i = 0; i + 1 < hex.size(); i += 2) out.push_back(static_cast<uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
  return out;
}

void putSlot(umts_sib_id id, const std::vector<uint8_t>& bytes) {
  umts_sib_slot& slot = g_umts_ctxt.slots[id];
  std::free(slot.buffer);
  slot.buffer = static_cast<uint8_t*>(std::calloc(UMTS_SIB_DECODE_LENGTH, 1));
  std::memcpy(slot.buffer, bytes.data(), bytes.size());
  g_umts_ctxt.request_bitmask |= 1u << id;
}

std::vector<uint8_t> encodeBch(uint32_t t, const void* alternative, uint16_t sfnPrime) {
  BCCH_BCH_Message message;
  std::memset(&message, 0, sizeof message);
  message.message.sfn_Prime = sfnPrime;
  message.message.payload.t = t;
  std::memcpy(&message.message.payload.u, &alternative, sizeof alternative);
  return encode(asn1PE_UMTS_BCCH_BCH_Message, message);
}

PLMN_Identity plmnIdentity(const char* mcc, const char* mnc) {
  PLMN_Identity id;
  std::memset(&id, 0, sizeof id);
  for (; id.mcc.n < 3 && mcc[id.mcc.n] != '\0'; id.mcc.n++) id.mcc.elem[id.mcc.n] = static_cast<uint8_t>(mcc[id.mcc.n] - '0');
  for (; id.mnc.n < 3 && mnc[id.mnc.n] != '\0'; id.mnc.n++) id.mnc.elem[id.mnc.n] = static_cast<uint8_t>(mnc[id.mnc.n] - '0');
  return id;
}

SchedulingInformation scheduling(uint32_t posTag, uint16_t pos, uint8_t segCount, const std::vector<uint32_t>& offsets) {
  SchedulingInformation s;
  std::memset(&s, 0, sizeof s);
  s.scheduling.segCount = segCount;
  s.scheduling.sib_Pos.t = posTag;
  if (posTag >= 9) s.scheduling.sib_Pos.u.rep1024 = pos;
  else s.scheduling.sib_Pos.u.rep4 = static_cast<uint8_t>(pos);
  s.scheduling.m = offsets.empty() ? 0 : 1;
  s.scheduling.sib_PosOffsetInfo.n = static_cast<uint32_t>(offsets.size());
  std::copy(offsets.begin(), offsets.end(), s.scheduling.sib_PosOffsetInfo.elem);
  return s;
}

MibBuilder::MibBuilder() {
  std::memset(static_cast<void*>(this), 0, sizeof *this);
  mib.mib_ValueTag = 3;
  gsm.plmn_Identity = plmnIdentity("262", "01");
  mib.plmn_Type.t = 1;
  mib.plmn_Type.u.gsm_MAP = &gsm;
  addRef(1, scheduling(9, 511)).sibSb_Type.u.sysInfoType1 = 256;
}

SchedulingInformationSIBSb& MibBuilder::addRef(uint32_t t, const SchedulingInformation& s) {
  SchedulingInformationSIBSb& ref = refs[mib.sibSb_ReferenceList.count];
  ref.sibSb_Type.t = t;
  ref.scheduling = s;
  add(mib.sibSb_ReferenceList, ref);
  return ref;
}

std::vector<uint8_t> MibBuilder::encode(uint32_t* bits) const {
  return frametest::encode(asn1PE_UMTS_MasterInformationBlock, mib, bits);
}

}  // namespace frametest
