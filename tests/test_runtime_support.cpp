// Context life cycle, context heap, name path, error record, printing, text helpers and
// enumerated-name lookup.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "runtime_test_util.h"
#include "umts_rrc.h"
#include "umts_rrc_rt_print.h"

using namespace rt_test;

namespace {

// ---- Context and heap -------------------------------------------------------------------

TEST(Context, FreeIsSafeOnZeroedAndReleasedContexts) {
  EXPECT_EQ(RT_ERR_INVPARAM, rtInitContext(nullptr));
  rtxContext c;
  const uint8_t key[] = {1, 2, 3};
  ASSERT_EQ(0, rtInitContextUsingKey(&c, key, sizeof key));
  EXPECT_EQ(&c.size_constraint_store, c.size_constraint);
  EXPECT_NE(nullptr, rtxMemHeapAlloc(&c, 10000));  // an overflow block
  rtFreeContext(&c);
  rtFreeContext(&c);
  EXPECT_EQ(nullptr, rtxMemHeapAlloc(&c, 8));
  EXPECT_EQ(RT_ERR_NOTINIT, rtxInitContextBuffer(&c, nullptr, 0));
  EXPECT_EQ(RT_ERR_NOTINIT, pu_setBuffer(&c, key, 3, 0));
  std::memset(&c, 0, sizeof c);
  rtFreeContext(&c);
  rtxResetContext(&c);
  rtFreeContext(nullptr);
  EXPECT_EQ(nullptr, rtxMemHeapAlloc(&c, 8));
}

TEST(Context, ResetAndCopy) {
  Ctx ctx;
  rtxCtxtPushTypeName(ctx, "MasterInformationBlock");
  rtxErrSetData(ctx, RT_ERR_ENDOFBUF, RT_CODEC_SRC, 10);
  ASSERT_NE(nullptr, rtxMemHeapAlloc(ctx, 100000));
  rtxInitContextBuffer(ctx, nullptr, 0);
  rtxEncBits(ctx, 3, 2);
  rtxResetContext(ctx);
  EXPECT_EQ(0u, ctx->path_depth);
  EXPECT_EQ(0, ctx->err.status);
  EXPECT_EQ(nullptr, ctx->buffer_data);
  EXPECT_EQ(nullptr, ctx->heap.blocks);
  EXPECT_EQ(static_cast<void*>(ctx->heap.inline_block), rtxMemHeapAlloc(ctx, 8));

  // Copy: buffer state and constraint, not the path, errors or heap.
  const uint8_t data[] = {0xFF, 0x00, 0xAA};
  Ctx src;
  pu_setBuffer(src, data, 3, 0);
  uint32_t skip;
  rtxDecBits(src, &skip, 13);
  setConstraint(src, 1, 8);
  rtxCtxtPushTypeName(src, "Src");
  rtxErrSetData(src, RT_ERR_CONSVIO, "x", 1);
  auto* before = static_cast<uint8_t*>(rtxMemHeapAlloc(ctx, 16));
  rtxCopyContext(ctx, src);
  EXPECT_EQ(data, ctx->buffer_data);
  EXPECT_EQ(13u, rtxBitPos(ctx));
  EXPECT_EQ(8u, ctx->size_constraint->upper);
  EXPECT_EQ(0u, ctx->path_depth);
  EXPECT_EQ(0, ctx->err.status);
  EXPECT_EQ(before + 16, rtxMemHeapAlloc(ctx, 8));
}

// The limit that simulates exhaustion counts rounded sizes; freeing reclaims only the last
// block.
TEST(Heap, LimitAndFreePtr) {
  Ctx ctx;
  rtxMemHeapSetLimit(ctx, ctx->heap.used + 100);
  EXPECT_NE(nullptr, rtxMemHeapAlloc(ctx, 64));
  EXPECT_EQ(nullptr, rtxMemHeapAlloc(ctx, 64));
  EXPECT_NE(nullptr, rtxMemHeapAlloc(ctx, 30));  // rounds to 32: exactly at the limit
  EXPECT_EQ(nullptr, rtxMemHeapAlloc(ctx, 1));
  rtxMemHeapSetLimit(ctx, 0);
  auto* p = static_cast<uint8_t*>(rtxMemHeapAlloc(ctx, 32));
  auto* q = static_cast<uint8_t*>(rtxMemHeapAlloc(ctx, 32));
  const size_t used = ctx->heap.used;
  rtxMemHeapFreePtr(ctx, p);  // not the last: stays
  EXPECT_EQ(used, ctx->heap.used);
  rtxMemHeapFreePtr(ctx, q);
  EXPECT_EQ(used - 32, ctx->heap.used);
  EXPECT_EQ(q, rtxMemHeapAlloc(ctx, 20));
  auto* big = static_cast<uint8_t*>(rtxMemHeapAlloc(ctx, 50000));  // in an overflow block
  rtxMemHeapFreePtr(ctx, big);
  EXPECT_EQ(big, rtxMemHeapAlloc(ctx, 40000));
}

TEST(Heap, ManySmallAndBigAllocationsThenReset) {
  Ctx ctx;
  std::vector<std::pair<uint8_t*, size_t>> blocks;
  for (size_t i = 0; i < 6000; i++) {
    size_t n = i % 1000 == 999 ? (size_t(3) << 20) : 1 + (i * 37) % 300;
    auto* p = static_cast<uint8_t*>(rtxMemHeapAlloc(ctx, n));
    ASSERT_NE(nullptr, p);
    ASSERT_EQ(0u, reinterpret_cast<uintptr_t>(p) % 8);
    std::memset(p, int(i & 0xFF), n);
    blocks.emplace_back(p, n);
  }
  for (size_t i = 0; i < blocks.size(); i++)
    for (size_t k = 0; k < blocks[i].second; k++) ASSERT_EQ(uint8_t(i & 0xFF), blocks[i].first[k]) << i;
  auto* z = static_cast<uint8_t*>(rtxMemHeapAllocZ(ctx, 3000));
  EXPECT_EQ(Bytes(3000, 0), Bytes(z, z + 3000));
  EXPECT_EQ(nullptr, rtxMemHeapAlloc(ctx, SIZE_MAX / 2));
  EXPECT_EQ(nullptr, rtxMemHeapAlloc(ctx, size_t(1) << 31));
  rtxMemHeapReset(ctx);
  EXPECT_EQ(nullptr, ctx->heap.blocks);
  EXPECT_EQ(0u, ctx->heap.used);
  EXPECT_EQ(static_cast<void*>(ctx->heap.inline_block), rtxMemHeapAlloc(ctx, 8));
}

// A context that is initialised over old memory (a stack slot that held another context, a
// heap block used before) hands out zeroed memory all the same, in its first block, in the
// blocks after it and after a reset, so that a decoded value never shows what was there.
TEST(Heap, AllocationsAreZeroedWhateverTheMemoryHeld) {
  alignas(rtxContext) static unsigned char storage[sizeof(rtxContext)];
  std::memset(storage, 0xA5, sizeof storage);
  auto* c = reinterpret_cast<rtxContext*>(storage);
  ASSERT_EQ(0, rtInitContext(c));
  for (int round = 0; round < 2; round++) {
    for (size_t n : {size_t(8), size_t(100), size_t(3000), size_t(9000), size_t(40)}) {
      auto* p = static_cast<uint8_t*>(rtxMemHeapAlloc(c, n));
      ASSERT_NE(nullptr, p);
      EXPECT_EQ(Bytes(n, 0), Bytes(p, p + n)) << "round " << round << ", " << n << " octets";
      std::memset(p, 0x5A, n);  // what the next round finds in the reused memory
    }
    rtxMemHeapReset(c);
  }
  rtFreeContext(c);
}

// ---- Name path --------------------------------------------------------------------------

std::string pathOf(rtxContext* ctx) {
  char buf[4096];
  size_t n = rtxCtxtGetPath(ctx, buf, sizeof buf);
  EXPECT_EQ(std::strlen(buf), n);
  return buf;
}

TEST(NamePath, Text) {
  Ctx ctx;
  EXPECT_EQ("", pathOf(ctx));
  rtxCtxtPushTypeName(ctx, "MasterInformationBlock");
  rtxCtxtPushElemName(ctx, "plmn-Type");
  rtxCtxtPushTypeName(ctx, "PLMN-Type");
  rtxCtxtPushElemName(ctx, "gsm-MAP");
  EXPECT_EQ("MasterInformationBlock.plmn-Type.PLMN-Type.gsm-MAP", pathOf(ctx));
  rtxCtxtPopElemName(ctx);
  rtxCtxtPopTypeName(ctx);
  rtxCtxtPopElemName(ctx);
  rtxCtxtPushElemName(ctx, "sibSb-ReferenceList");
  rtxCtxtPushArrayElemName(ctx, "SchedulingInformationSIBSb", 3);
  EXPECT_EQ("MasterInformationBlock.sibSb-ReferenceList.SchedulingInformationSIBSb[3]", pathOf(ctx));

  char small[10];
  std::memset(small, 'x', sizeof small);
  EXPECT_EQ(9u, rtxCtxtGetPath(ctx, small, sizeof small));
  EXPECT_STREQ("MasterInf", small);
  char untouched = 'x';
  EXPECT_EQ(0u, rtxCtxtGetPath(ctx, &untouched, 0));
  EXPECT_EQ('x', untouched);
}

TEST(NamePath, DeeperThanKeptEntries) {
  std::vector<std::string> names;
  for (int i = 0; i < 60; i++) names.push_back("n" + std::to_string(i));
  Ctx ctx;
  for (const auto& n : names) rtxCtxtPushElemName(ctx, n.c_str());
  EXPECT_EQ(60u, ctx->path_depth);
  std::string full;
  for (int i = 0; i < RT_MAX_PATH; i++) full += (i ? "." : "") + names[i];
  EXPECT_EQ(full, pathOf(ctx));
  for (int i = 0; i < 60 - RT_MAX_PATH; i++) rtxCtxtPopElemName(ctx);
  EXPECT_EQ(full, pathOf(ctx));
  rtxCtxtPopElemName(ctx);
  EXPECT_EQ(full.substr(0, full.rfind('.')), pathOf(ctx));
  for (int i = 0; i < 100; i++) rtxCtxtPopElemName(ctx);
  EXPECT_EQ(0u, ctx->path_depth);
}

// ---- Error record -----------------------------------------------------------------------

TEST(ErrorRecord, FirstStatusWinsAndLocationsAccumulate) {
  Ctx ctx;
  EXPECT_EQ(0, rtxErrSetData(ctx, 0, "a", 1));
  EXPECT_EQ(0u, ctx->err.nlocs);
  EXPECT_EQ(RT_ERR_ENDOFBUF, rtxErrSetData(ctx, RT_ERR_ENDOFBUF, "inner", 10));
  EXPECT_EQ(RT_ERR_CONSVIO, rtxErrSetData(ctx, RT_ERR_CONSVIO, "outer", 20));
  EXPECT_EQ(RT_ERR_ENDOFBUF, ctx->err.status);
  ASSERT_EQ(2u, ctx->err.nlocs);
  EXPECT_EQ(10u, ctx->err.locs[0].line);
  EXPECT_EQ(20u, ctx->err.locs[1].line);
  for (int i = 0; i < 100; i++) rtxErrSetData(ctx, RT_ERR_ENDOFBUF, "x", 100 + i);
  EXPECT_EQ(uint32_t(RT_MAX_ERR_LOCS), ctx->err.nlocs);
  EXPECT_EQ(100u + RT_MAX_ERR_LOCS - 3, ctx->err.locs[RT_MAX_ERR_LOCS - 1].line);
  rtxErrReset(ctx);
  EXPECT_EQ(0, ctx->err.status);
  EXPECT_EQ(0u, ctx->err.nlocs);
}

TEST(ErrorRecord, ParametersAndText) {
  Ctx ctx;
  rtxCtxtPushTypeName(ctx, "MasterInformationBlock");
  rtxCtxtPushElemName(ctx, "sibSb-ReferenceList");
  rtxCtxtPushElemName(ctx, "mnc");
  EXPECT_EQ(0, rtxErrAddElemNameParm(ctx));
  rtxCtxtPopElemName(ctx);
  EXPECT_EQ(0, rtxErrAddUIntParm(ctx, 4));
  rtxErrSetData(ctx, RT_ERR_CONSVIO, RT_CODEC_SRC, 1234);
  rtxErrSetData(ctx, RT_ERR_CONSVIO, RT_CODEC_SRC, 99);
  const std::string want =
      "status -16 (value or size outside its constraint) at MasterInformationBlock.sibSb-ReferenceList; "
      "parameters: mnc, 4; src/umtsSibParsing:1234";
  char buf[512];
  EXPECT_EQ(want.size(), rtxErrGetText(ctx, buf, sizeof buf));
  EXPECT_EQ(want, buf);
  char small[21];
  EXPECT_EQ(20u, rtxErrGetText(ctx, small, sizeof small));
  EXPECT_EQ(want.substr(0, 20), small);

  EXPECT_EQ(0, rtxErrAddIntParm(ctx, INT32_MIN));
  EXPECT_EQ(0, rtxErrAddStrParm(ctx, std::string(100, 'z').c_str()));
  EXPECT_EQ(0, rtxErrAddStrnParm(ctx, "fivefold", 4));
  EXPECT_EQ(RT_ERR_INVPARAM, rtxErrAddUIntParm(ctx, 6));  // all slots taken
  EXPECT_EQ(std::string("-2147483648"), ctx->err.parms[2]);
  EXPECT_EQ(std::string(RT_ERR_PARM_LEN - 1, 'z'), ctx->err.parms[3]);
  EXPECT_EQ(std::string("five"), ctx->err.parms[4]);

  Ctx fresh;
  EXPECT_EQ(RT_ERR_INVPARAM, rtxErrAddElemNameParm(fresh));  // no name to add
  rtxErrGetText(fresh, buf, sizeof buf);
  EXPECT_STREQ("status 0 (no error)", buf);
  // Every status has a text of its own, and a status of no name says so.
  std::set<std::string> texts;
  for (int status : {0, RT_ERR_BUFOVFLW, RT_ERR_ENDOFBUF, RT_ERR_INVPARAM, RT_ERR_INVENUM, RT_ERR_NOTINIT, RT_ERR_INVOPT,
                     RT_ERR_NOMEM, RT_ERR_BADLEN, RT_ERR_CONSVIO})
    texts.insert(rtxErrStatusText(status));
  EXPECT_EQ(10u, texts.size());
  EXPECT_STREQ("unknown status", rtxErrStatusText(-12345));
}

// ---- Printing ---------------------------------------------------------------------------

// What a file holds so far; the file stays positioned at its end.
std::string contents(FILE* f) {
  std::string s;
  fseek(f, 0, SEEK_SET);
  char buf[4096];
  size_t n;
  while ((n = fread(buf, 1, sizeof buf, f)) > 0) s.append(buf, n);
  fseek(f, 0, SEEK_END);
  return s;
}

struct Capture {
  FILE* f = tmpfile();
  Capture() { rtxPrintSetStream(f); }
  ~Capture() {
    rtxPrintSetStream(nullptr);
    fclose(f);
  }
  std::string text() { return contents(f); }
};

TEST(Print, LayoutAndHandOver) {
  Capture cap;
  ASSERT_NE(nullptr, cap.f);
  const uint8_t bits[] = {0x86, 0xE5};
  const uint8_t octs[] = {0x0A, 0x0B, 0xFF};
  rtxPrintOpenBrace("Decoded MIB\n");  // a label is written as it is
  // The value operations write where the indentation was put, as the print functions do.
  rtxPrintIndent();
  rtxPrintUnsigned("sfn-Prefix", 4294967295u);
  rtxPrintIndent();
  rtxPrintInteger("offset", -7);
  rtxPrintIndent();
  rtxPrintInteger("least", INT32_MIN);
  rtxPrintIndent();
  rtxPrintBoolean("flag", 1);
  rtxPrintIndent();
  rtxPrintBoolean("other", 0);
  rtxPrintIndent();
  rtxPrintNull("nothing");
  rtxPrintIndent();
  rtxPrintEnum("mode", "tfci-bits-8");
  rtxPrintOpenBrace("inner");
  rtxPrintIndent();
  rtPrintBitStrBraceText("cellIdentity", 12, bits);
  rtxPrintIndent();
  rtxPrintHexStr("octets", 3, octs);
  rtxPrintHexStr("empty", 0, nullptr);  // no indentation of its own
  rtxPrintIndent();
  rtxPrintCloseBrace();
  EXPECT_EQ("", cap.text());  // still gathered
  rtxPrintCloseBrace();
  rtxPrintCloseBrace();  // never below level 0
  rtxPrintUnsigned("top", 0);
  EXPECT_EQ("", cap.text());  // a stream other than standard output gets large pieces
  rtxPrintFlush();
  EXPECT_EQ(
      "Decoded MIB\n {\n"
      "   sfn-Prefix = 4294967295\n"
      "   offset = -7\n"
      "   least = -2147483648\n"
      "   flag = TRUE\n"
      "   other = FALSE\n"
      "   nothing = NULL\n"
      "   mode = tfci-bits-8\n"
      "   inner {\n"
      "      cellIdentity = { numbits = 12, data = 0x86e5 }\n"
      "      octets = 0x0a0bff\n"
      "empty = 0x\n"
      "         }\n"
      "}\n"
      "}\n"
      "top = 0\n",
      cap.text());
}

// The text of generated print functions, whole, with the value nested at depth 1 to 4: each
// line stands three spaces deeper per level, scalars as deep as the records beside them.
TEST(Print, NestedValueAtEveryDepth) {
  // gsm-MAP, MCC 262, MNC 01: 00 | 0010 0110 0010 | 0 | 0000 0001; cell identity 0x1234567.
  const uint8_t plmnBits[] = {0x09, 0x88, 0x02}, cellBits[] = {0x12, 0x34, 0x56, 0x70};
  Ctx ctx;
  PLMN_Type plmn{};
  CellIdentity cell{};
  pu_setBuffer(ctx, plmnBits, sizeof plmnBits, 0);
  ASSERT_EQ(0, asn1PD_UMTS_PLMN_Type(ctx, &plmn));
  pu_setBuffer(ctx, cellBits, sizeof cellBits, 0);
  ASSERT_EQ(0, asn1PD_UMTS_CellIdentity(ctx, &cell));
  const RAT rat = 2;
  const MIB_ValueTag tag = 5;

  // The value's lines at depth 0, then indented per level.
  const char* const lines[] = {"rat = gsm",
                               "cellIdentity = { numbits = 28, data = 0x12345670 }",
                               "plmn_Type {",
                               "   gsm-MAP {",
                               "      plmn_Identity {",
                               "         mcc[0] = 2",
                               "         mcc[1] = 6",
                               "         mcc[2] = 2",
                               "         mnc[0] = 0",
                               "         mnc[1] = 1",
                               "      }",
                               "   }",
                               "}",
                               "mib_ValueTag = 5"};
  for (int depth = 1; depth <= 4; depth++) {
    Capture cap;
    std::string want;
    for (int d = 0; d < depth; d++) {
      rtxPrintOpenBrace(("level" + std::to_string(d)).c_str());
      want += std::string(3 * d, ' ') + "level" + std::to_string(d) + " {\n";
    }
    asn1Print_UMTS_RAT("rat", &rat);
    asn1Print_UMTS_CellIdentity("cellIdentity", &cell);
    asn1Print_UMTS_PLMN_Type("plmn_Type", &plmn);
    asn1Print_UMTS_MIB_ValueTag("mib_ValueTag", &tag);
    for (const char* line : lines) want += std::string(3 * depth, ' ') + line + "\n";
    for (int d = depth - 1; d >= 0; d--) {
      rtxPrintCloseBrace();
      want += std::string(3 * d, ' ') + "}\n";
    }
    rtxPrintFlush();
    EXPECT_EQ(want, cap.text()) << "depth " << depth;
  }
}

// Off, nothing is written and nothing is gathered; on again, printing goes on as before.
TEST(Print, SwitchedOff) {
  Capture cap;
  EXPECT_EQ(1, rtxPrintIsOn());
  rtxPrintSetOn(0);
  EXPECT_EQ(0, rtxPrintIsOn());
  const MIB_ValueTag tag = 5;
  rtxPrintOpenBrace("top");
  asn1Print_UMTS_MIB_ValueTag("mib_ValueTag", &tag);
  rtxPrintCloseBrace();
  rtxPrintFlush();
  rtxPrintSetOn(1);
  EXPECT_EQ("", cap.text());
  asn1Print_UMTS_MIB_ValueTag("mib_ValueTag", &tag);
  rtxPrintFlush();
  EXPECT_EQ("mib_ValueTag = 5\n", cap.text());
}

// On standard output each finished top-level record goes to the stream at once, so that
// what the process writes there itself stays in order with it.
TEST(Print, StandardOutputGetsEachTopLevelRecord) {
  std::fflush(stdout);
  FILE* tmp = std::tmpfile();
  ASSERT_NE(nullptr, tmp);
  const int saved = dup(1);
  dup2(fileno(tmp), 1);
  rtxPrintSetStream(stdout);
  rtxPrintOpenBrace("first");
  rtxPrintCloseBrace();
  std::fputs("between\n", stdout);
  rtxPrintOpenBrace("second");
  std::fputs("inside\n", stdout);  // a record still open is still gathered
  rtxPrintCloseBrace();
  std::fflush(stdout);
  dup2(saved, 1);
  close(saved);
  rtxPrintSetStream(nullptr);
  EXPECT_EQ("first {\n}\nbetween\ninside\nsecond {\n}\n", contents(tmp));
  std::fclose(tmp);
}

TEST(Print, OutputLargerThanTheBuffer) {
  Capture cap;
  std::string want = "list {\n";
  rtxPrintOpenBrace("list");
  for (uint32_t i = 0; i < 5000; i++) {
    rtxPrintIndent();
    rtxPrintUnsigned("value", i * 1000003u);
    want += "   value = " + std::to_string(i * 1000003u) + "\n";
  }
  std::vector<uint8_t> big(40000, 0xAB);
  rtxPrintIndent();
  rtxPrintHexStr("big", uint32_t(big.size()), big.data());
  want += "   big = 0x";
  for (size_t i = 0; i < big.size(); i++) want += "ab";
  want += "\n";
  EXPECT_FALSE(cap.text().empty());  // the full buffer went out early
  rtxPrintCloseBrace();
  want += "}\n";
  rtxPrintFlush();
  EXPECT_EQ(want, cap.text());
}

TEST(Text, UIntToCharStr) {
  struct Case {
    uint32_t value, size, pad;
    int ret;
    const char* text;
  };
  const Case cases[] = {
      {0, 2, 0, 1, "0"},          {7, 4, 3, 3, "007"},         {12345, 10, 3, 5, "12345"},
      {4294967295u, 11, 0, 10, "4294967295"},                  {4294967295u, 10, 0, -1, ""},
      {42, 3, 0, 2, "42"},        {42, 2, 0, -1, ""},          {5, 3, 3, -1, ""},
  };
  for (const Case& c : cases) {
    char buf[16];
    std::memset(buf, 'x', sizeof buf);
    EXPECT_EQ(c.ret, rtxUIntToCharStr(c.value, buf, c.size, c.pad)) << c.value;
    EXPECT_STREQ(c.text, buf);
  }
  char one = 'x';
  EXPECT_EQ(-1, rtxUIntToCharStr(1, &one, 0, 0));
  EXPECT_EQ('x', one);
}

TEST(Text, ListElementNamesWithStrJoin) {
  char idx[12], name[512];
  rtxUIntToCharStr(17, idx, sizeof idx, 0);
  EXPECT_STREQ("prach-SystemInformationList[17]",
               rtxStrJoin(name, sizeof name, "prach-SystemInformationList", "[", idx, "]", nullptr));
  EXPECT_STREQ("ab", rtxStrJoin(name, sizeof name, "a", "b", nullptr, "d", "e"));
  const std::string longName(600, 'n');
  rtxStrJoin(name, sizeof name, longName.c_str(), "[", idx, "]", nullptr);
  EXPECT_EQ(std::string(511, 'n'), name);
  std::string nearly(505, 'm');
  rtxStrJoin(name, sizeof name, nearly.c_str(), "[", "12345", "]", nullptr);
  EXPECT_EQ(nearly + "[12345", name);  // 511 characters
  char tiny[1] = {'x'};
  rtxStrJoin(tiny, 1, "abc", nullptr, nullptr, nullptr, nullptr);
  EXPECT_EQ('\0', tiny[0]);
}

// ---- Enumerated names -------------------------------------------------------------------

const rtxEnumEntry kTfci[] = {
    {"tfci-bits-16", 2, 12, 2},
    {"tfci-bits-32", 3, 12, 3},
    {"tfci-bits-4", 0, 11, 0},
    {"tfci-bits-8", 1, 11, 1},
};

TEST(Enum, LookupByNameAndValue) {
  struct Case {
    const char* text;
    int32_t place;
  };
  const Case cases[] = {{"tfci-bits-16", 0}, {"tfci-bits-32", 1}, {"tfci-bits-4", 2}, {"tfci-bits-8", 3},
                        {"", -1},            {"tfci-bits-1", -1}, {"tfci-bits-80", -1}, {"tfci-bits-9", -1},
                        {"a", -1},           {"z", -1}};
  for (const Case& c : cases) EXPECT_EQ(c.place, rtxLookupEnum(c.text, rtxUTF8LenBytes(c.text), kTfci, 4)) << c.text;
  // The length decides, not a terminator.
  EXPECT_EQ(2, rtxLookupEnum("tfci-bits-4x", 11, kTfci, 4));
  EXPECT_EQ(-1, rtxLookupEnum("tfci-bits-8", 11, kTfci, 0));
  EXPECT_EQ(-1, rtxLookupEnum(nullptr, 0, kTfci, 4));

  for (uint32_t v = 0; v < 4; v++) {
    int32_t place = rtxLookupEnumByValue(v, kTfci, 4);
    ASSERT_GE(place, 0);
    EXPECT_EQ(v, kTfci[place].value);
  }
  EXPECT_EQ(2, rtxLookupEnumByValue(0, kTfci, 4));
  EXPECT_EQ(-1, rtxLookupEnumByValue(4, kTfci, 4));
  EXPECT_EQ(0u, rtxUTF8LenBytes(nullptr));
}

}  // namespace
