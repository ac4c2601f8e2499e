// SIB1: built in code, encoded by the codec, sent whole and over the BCH, and compared field
// by field with what it was built from.
#include <algorithm>

#include "convert_test.h"

using namespace converttest;

namespace {

// The timers, each with a value of its own within its type.
#define CONN_TIMERS(X)                                                                              \
  X(t_301, 1) X(n_301, 7) X(t_302, 2) X(n_302, 6) X(t_304, 3) X(n_304, 5) X(t_305, 0) X(t_307, 3)  \
  X(t_308, 1) X(t_309, 8) X(t_310, 2) X(n_310, 1) X(t_311, 3) X(t_312, 14) X(n_312, 4) X(t_313, 13) \
  X(n_313, 2) X(t_314, 3) X(t_315, 2) X(n_315, 1) X(t_316, 0) X(t_317, 2)
#define IDLE_TIMERS(X) X(t_300, 5) X(n_300, 6) X(t_312, 11) X(n_312, 3)

// A domain: identity, DRX coefficient, 1 gsm-MAP of `length` octets or 2 ansi-41 of
// `length` bits, whose octets count up from `first`.
struct Domain {
  uint32_t identity;
  uint8_t drx;
  uint32_t tag;
  uint32_t length;
  uint8_t first;
  // Octet i as the record keeps it: ansi-41 counts bits, so octets past the string are 0.
  uint8_t octet(uint32_t i) const {
    const uint32_t held = tag == 1 ? length : (length + 7) / 8;
    if (i >= held) return 0;
    const uint8_t value = static_cast<uint8_t>(first + i);
    return tag == 2 && i == held - 1 && length % 8 != 0 ? static_cast<uint8_t>(value & (0xFF00u >> (length % 8))) : value;
  }
};

struct Sib1Case {
  const char* name;
  std::vector<Domain> domains;
  uint32_t m;         // timers and v3a0NonCriticalExtensions
  uint32_t v3a0Conn;  // n-312 and n-315 of the v3a0 timers
  uint32_t v3a0Idle;
  uint32_t v860;      // 0 absent, 1 present, 3 with its nonCriticalExtensions
  uint32_t t323;
};

const Sib1Case kCases[] = {
    // Four domains (the list's bound) mixing both alternatives; 8 ansi-41 bits keep eight
    // octets of which the first is the string.
    {"four domains, every option",
     {{0, 6, 1, 8, 0x10}, {1, 9, 2, 8, 0xC3}, {0, 7, 1, 1, 0x20}, {1, 8, 2, 13, 0x5B}}, 7, 3, 1, 3, 1},
    {"no timers, v3a0 without v860", {{1, 8, 1, 3, 0x30}}, 4, 2, 0, 0, 1},
    {"v860 without its extensions or t-323", {{0, 6, 2, 1, 0x80}, {1, 7, 2, 255, 0x01}}, 5, 1, 1, 1, 0},
    {"idle timers only", {{0, 9, 1, 8, 0xF0}}, 2, 0, 0, 0, 0},
    // Longer than the 256 octets that the record keeps of a count of bits: all 256 are the
    // string's, and the entry after it is whole.
    {"ansi-41 of 2048 bits", {{1, 9, 2, 2048, 0x01}, {0, 6, 1, 2, 0x44}}, 0, 0, 0, 0, 0},
    {"ansi-41 of 2047 and 257 bits", {{0, 7, 2, 2047, 0x80}, {1, 8, 2, 257, 0x33}}, 1, 0, 0, 0, 0},
};

struct Sib1Builder {
  SysInfoType1 sib;
  CN_DomainSysInfo domains[4];
  NAS_SystemInformationGSM_MAP gsm[4];
  NAS_SystemInformationANSI_41 ansi[4];
  rtxDListNode nodes[4];

  explicit Sib1Builder(const Sib1Case& c) {
    std::memset(static_cast<void*>(this), 0, sizeof *this);
    sib.m = c.m;
    sib.cn_CommonGSM_MAP_NAS_SysInfo = {8, {0xA0, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0xA7}};
    for (size_t i = 0; i < c.domains.size(); i++) {
      const Domain& d = c.domains[i];
      domains[i] = {d.identity, {d.tag, {}}, d.drx};
      gsm[i].numocts = ansi[i].numbits = d.length;
      for (uint32_t o = 0; o < 256; o++) {
        if (o < 8) gsm[i].data[o] = d.octet(o);
        ansi[i].data[o] = d.octet(o);
      }
      if (d.tag == 1) domains[i].cn_Type.u.gsm_MAP = &gsm[i];
      else domains[i].cn_Type.u.ansi_41 = &ansi[i];
      append(sib.cn_DomainSysInfoList, nodes[i], domains[i]);
    }
#define SET(field, value) sib.ue_ConnTimersAndConstants.field = value;
    CONN_TIMERS(SET)
#undef SET
#define SET(field, value) sib.ue_IdleTimersAndConstants.field = value;
    IDLE_TIMERS(SET)
#undef SET
    auto& v3a0 = sib.v3a0NonCriticalExtensions;
    v3a0.sysInfoType1_v3a0ext = {{c.v3a0Conn, 2, 3}, {c.v3a0Idle, 1}};
    v3a0.m = c.v860 != 0;
    v3a0.v860NonCriticalExtentions.m = c.v860 == 3;
    v3a0.v860NonCriticalExtentions.sysInfoType1_v860ext.ue_ConnTimersAndConstants = {c.t323, 7};
  }
};

void checkRecord(const umts_sib1_info& f, const Sib1Case& c) {
  EXPECT_EQ(f.presence_bitmask, c.m);
  const uint8_t common[] = {0xA0, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0xA7};
  EXPECT_EQ(f.cn_CommonGSM_MAP_NAS_SysInfo.count, 8u);
  EXPECT_EQ(std::memcmp(f.cn_CommonGSM_MAP_NAS_SysInfo.octets, common, 8), 0);
  ASSERT_EQ(f.cn_DomainSysInfoList.count, c.domains.size());
  for (size_t i = 0; i < c.domains.size(); i++) {
    SCOPED_TRACE("domain " + std::to_string(i));
    const Domain& d = c.domains[i];
    const umts_cn_domain_sysinfo& e = f.cn_DomainSysInfoList.entries[i];
    EXPECT_EQ(e.cn_DomainIdentity, d.identity);
    EXPECT_EQ(e.cn_DRX_CycleLengthCoeff, d.drx);  // after the union, in every entry
    ASSERT_EQ(e.cn_Type.choice_tag, d.tag);
    EXPECT_EQ(d.tag == 1 ? e.cn_Type.u.gsm_MAP.count : e.cn_Type.u.ansi_41.count, d.length);
    const uint8_t* octets = d.tag == 1 ? e.cn_Type.u.gsm_MAP.octets : e.cn_Type.u.ansi_41.octets;
    for (uint32_t o = 0; o < (d.tag == 1 ? 8 : 256); o++) EXPECT_EQ(octets[o], d.octet(o)) << o;
  }
  for (size_t i = c.domains.size(); i < 4; i++) EXPECT_TRUE(allZero(f.cn_DomainSysInfoList.entries[i])) << i;

  // Absent groups stay zero: no default of the schema is applied.
  umts_ue_conn_timers_and_constants conn = {};
  umts_ue_idle_timers_and_constants idle = {};
#define SET(field, value) conn.field = c.m & 1 ? value : 0;
  CONN_TIMERS(SET)
#undef SET
#define SET(field, value) idle.field = c.m & 2 ? value : 0;
  IDLE_TIMERS(SET)
#undef SET
  EXPECT_EQ(std::memcmp(&f.ue_ConnTimersAndConstants, &conn, sizeof conn), 0);
  EXPECT_EQ(std::memcmp(&f.ue_IdleTimersAndConstants, &idle, sizeof idle), 0);

  const umts_sysinfotype1_v3a0_nce& v3a0 = f.v3a0NonCriticalExtensions;
  if (!(c.m & 4)) {
    EXPECT_TRUE(allZero(v3a0));
    return;
  }
  const auto& conn3 = v3a0.ue_ConnTimersAndConstants_v3a0ext;
  EXPECT_EQ(conn3.presence_bitmask, c.v3a0Conn);
  EXPECT_EQ(conn3.n_312 * 10 + conn3.n_315, (c.v3a0Conn & 1 ? 20u : 0u) + (c.v3a0Conn & 2 ? 3u : 0u));
  EXPECT_EQ(v3a0.ue_IdleTimersAndConstants_v3a0ext.presence_bitmask, c.v3a0Idle);
  EXPECT_EQ(v3a0.ue_IdleTimersAndConstants_v3a0ext.n_312, c.v3a0Idle);
  EXPECT_EQ(v3a0.presence_bitmask, c.v860 != 0 ? 1 : 0);
  const umts_sysinfotype1_v860_nce& v860 = v3a0.v860NonCriticalExtentions;
  EXPECT_EQ(v860.presence_bitmask, c.v860 == 3 ? 1 : 0);
  EXPECT_EQ(v860.nonCriticalExtensions, 0);
  EXPECT_EQ(v860.ue_ConnTimersAndConstants.presence_bitmask, c.v860 != 0 && c.t323 != 0 ? 1 : 0);
  EXPECT_EQ(v860.ue_ConnTimersAndConstants.t_323, c.v860 != 0 && c.t323 != 0 ? 7u : 0u);
}

class ConvertSib1 : public ConvertTest {};

TEST_F(ConvertSib1, WholeAndOverTheBchGiveTheBuiltValues) {
  for (const Sib1Case& c : kCases) {
    SCOPED_TRACE(c.name);
    uint32_t bits = 0;
    const std::vector<uint8_t> bytes = encode(asn1PE_UMTS_SysInfoType1, Sib1Builder(c).sib, &bits);
    std::memset(&result->sib1, 0xEE, sizeof result->sib1);  // the conversion rewrites all of it
    ASSERT_EQ(whole(umts_sib_sib1, bytes), 1);
    checkRecord(result->sib1, c);
    expectSameOverTheBch(umts_sib_sib1, 1, &umts_sib_set::sib1, bytes, bits);
  }
}

// Values the decoder never delivers: an unknown cn-Type keeps its tag alone, silently; a bit
// count beyond the decoded store keeps the count, and the copy stops at the record's 256
// octets, reading nothing past the store.
TEST_F(ConvertSib1, UnknownTagAndOverlongCountStayInBounds) {
  const CN_DomainSysInfo_cn_Type type{3, {}};
  umts_cn_domain_sysinfo_cn_type flat = {};
  EXPECT_EQ(captureStdout([&] { convert_cn_domainsysinfo_cn_type(&type, &flat); }), "");
  EXPECT_EQ(flat.choice_tag, 3u);
  EXPECT_TRUE(allZero(flat.u));

  struct {
    NAS_SystemInformationANSI_41 src;
    uint8_t after[64];
  } padded;
  std::memset(&padded, 0x77, sizeof padded);
  padded.src.numbits = 4000;
  struct {
    umts_nas_system_ansi_41_info dst;
    uint8_t after[64];
  } guarded;
  std::memset(&guarded, 0xCC, sizeof guarded);
  convert_nas_system_ansi_41_info(&padded.src, &guarded.dst);
  EXPECT_EQ(guarded.dst.count, 4000u);
  EXPECT_EQ(std::count(guarded.dst.octets, guarded.dst.octets + 256, 0x77), 256);
  EXPECT_EQ(std::count(guarded.after, guarded.after + 64, 0xCC), 64);
  EXPECT_TRUE(logLines().empty());
}

}  // namespace
