/*
 * The run-time descriptions of the flat records and their JSON.
 */
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "json_check.h"
#include "umts_record_desc_define.h"
#include "umts_sib_json.h"

/* Records of every kind, written as the library writes its own. */
#define test_inner_FIELDS(F)                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _) \
  F(SCALAR, int8_t, offset, 1, UMTS_ALWAYS, _)        \
  F(SCALAR, uint32_t, extra, 1, 0, _)

#define test_choice_FIELDS(F)                 \
  F(RECORD, test_inner, inner, 1, 1, _)       \
  F(SCALAR, int16_t, number, 1, 2, _)         \
  F(BYTES, uint8_t, raw, 3, 4, _)

#define test_outer_FIELDS(F)                                 \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)   \
  F(BOOL, uint8_t, flag, 1, UMTS_ALWAYS, _)                  \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)               \
  F(ARRAY, test_inner, entries, 3, UMTS_ALWAYS, count)       \
  F(SCALAR, uint32_t, n, 1, UMTS_ALWAYS, _)                  \
  F(ARRAY, int16_t, values, 4, UMTS_ALWAYS, n)               \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)         \
  F(UNION, test_choice, u, 1, UMTS_ALWAYS, choice_tag)       \
  F(RECORD, test_inner, extension, 1, 0, _)                  \
  F(BYTES, uint8_t, octets, 2, 1, _)                         \
  F(SCALAR, int32_t, last, 1, 2, _)

UMTS_RECORD(test_inner)
UMTS_UNION(test_choice)
UMTS_RECORD(test_outer)

#define TEST_RECORDS(X)   \
  X(RECORD, test_inner)   \
  X(UNION, test_choice)   \
  X(RECORD, test_outer)
TEST_RECORDS(UMTS_DESC_DECLARE)
TEST_RECORDS(UMTS_DESC_DEFINE)

namespace {

std::string json_of(const umts_record_desc* desc, const void* record) {
  std::string out;
  umts_json_append_record(out, desc, record);
  return out;
}

TEST(RecordDesc, EveryLibraryRecordMatchesItsLayout) {
  size_t count = 0;
  const umts_record_desc* const* all = umts_all_record_descs(&count);
  for (size_t i = 0; i < count; i++) {
    std::string report;
    EXPECT_EQ(umts_record_desc_check(all[i], &report), 0u) << report;
  }
  EXPECT_EQ(umts_record_desc_check(&umts_desc_test_outer, nullptr), 0u);
  EXPECT_EQ(umts_record_desc_check(&umts_desc_test_choice, nullptr), 0u);
}

/* A description that drifted from its record must be caught. */
TEST(RecordDesc, CheckFindsLayoutFaults) {
  const umts_record_desc& good = umts_desc_test_outer;
  struct Fault {
    const char* what;
    void (*apply)(std::vector<umts_field_desc>& fields, umts_record_desc& desc);
  };
  const Fault faults[] = {
      {"field left out", [](std::vector<umts_field_desc>& f, umts_record_desc&) { f.erase(f.begin() + 4); }},
      {"last field left out", [](std::vector<umts_field_desc>& f, umts_record_desc&) { f.pop_back(); }},
      {"fields swapped", [](std::vector<umts_field_desc>& f, umts_record_desc&) { std::swap(f[1], f[2]); }},
      {"wrong size", [](std::vector<umts_field_desc>& f, umts_record_desc&) { f[4].size = 2; }},
      {"presence bit out of range", [](std::vector<umts_field_desc>& f, umts_record_desc&) { f[8].cond = 16; }},
      {"no presence word", [](std::vector<umts_field_desc>&, umts_record_desc& d) { d.presence_offset = -1; }},
      {"count field not an integer",
       [](std::vector<umts_field_desc>& f, umts_record_desc&) { f[3].aux_name = "entries"; }},
      {"record without description",
       [](std::vector<umts_field_desc>& f, umts_record_desc&) { f[8].elem_desc = nullptr; }},
      {"record size", [](std::vector<umts_field_desc>&, umts_record_desc& d) { d.size += 8; }},
  };
  for (const Fault& fault : faults) {
    std::vector<umts_field_desc> fields(good.fields, good.fields + good.field_count);
    umts_record_desc desc = good;
    fault.apply(fields, desc);
    desc.fields = fields.data();
    desc.field_count = static_cast<uint32_t>(fields.size());
    EXPECT_GT(umts_record_desc_check(&desc, nullptr), 0u) << fault.what;
  }

  /* Union members share offset 0 and have distinct tags. */
  std::vector<umts_field_desc> members(umts_desc_test_choice.fields,
                                       umts_desc_test_choice.fields + umts_desc_test_choice.field_count);
  members[2].cond = members[1].cond;
  umts_record_desc u = umts_desc_test_choice;
  u.fields = members.data();
  EXPECT_GT(umts_record_desc_check(&u, nullptr), 0u);
}

TEST(RecordJson, NestedRecordsArraysUnionsAndCountsOutOfRange) {
  test_outer r;
  std::memset(&r, 0, sizeof r);
  r.presence_bitmask = 0x1; /* extension present; octets and last absent */
  r.flag = 1;
  r.count = 2;
  r.entries[0].offset = -3;
  r.entries[1].presence_bitmask = 1;
  r.entries[1].extra = 4000000000u;
  r.entries[2].offset = 99; /* beyond count */
  r.n = 3;
  r.values[0] = -32768;
  r.values[1] = 7;
  r.values[2] = 32767;
  r.choice_tag = 4;
  r.u.raw[0] = 0x0a;
  r.u.raw[1] = 0xff;
  r.u.raw[2] = 0x10;
  r.extension.offset = 5;
  r.octets[0] = 0xde;
  r.last = -1;
  const std::string expected =
      "{\"presence_bitmask\":1,\"flag\":true,\"count\":2,"
      "\"entries\":[{\"presence_bitmask\":0,\"offset\":-3},{\"presence_bitmask\":1,\"offset\":0,\"extra\":4000000000}],"
      "\"n\":3,\"values\":[-32768,7,32767],\"choice_tag\":4,\"u\":{\"raw\":\"0aff10\"},"
      "\"extension\":{\"presence_bitmask\":0,\"offset\":5}}";
  EXPECT_EQ(json_of(&umts_desc_test_outer, &r), expected);

  /* Another member, every optional field present. */
  r.presence_bitmask = 0x7;
  r.choice_tag = 1;
  std::memset(&r.u, 0, sizeof r.u);
  r.u.inner.offset = 1;
  r.flag = 0;
  r.count = 0;
  r.n = 0;
  EXPECT_EQ(json_of(&umts_desc_test_outer, &r),
            "{\"presence_bitmask\":7,\"flag\":false,\"count\":0,\"entries\":[],\"n\":0,\"values\":[],"
            "\"choice_tag\":1,\"u\":{\"inner\":{\"presence_bitmask\":0,\"offset\":1}},"
            "\"extension\":{\"presence_bitmask\":0,\"offset\":5},\"octets\":\"de00\",\"last\":-1}");

  /* Counts beyond the arrays are cut to them; a tag of no member leaves the union out. */
  std::memset(&r, 0, sizeof r);
  r.count = 200;
  r.n = 0xFFFFFFFFu;
  r.choice_tag = 3;
  EXPECT_EQ(json_of(&umts_desc_test_outer, &r),
            "{\"presence_bitmask\":0,\"flag\":false,\"count\":200,\"entries\":[{\"presence_bitmask\":0,\"offset\":0},"
            "{\"presence_bitmask\":0,\"offset\":0},{\"presence_bitmask\":0,\"offset\":0}],\"n\":4294967295,"
            "\"values\":[0,0,0,0],\"choice_tag\":3}");
}

/* Whatever the bytes of a record, its JSON is well formed and stays inside the record. */
TEST(RecordJson, EveryLibraryRecordGivesValidJsonForAnyContent) {
  size_t count = 0;
  const umts_record_desc* const* all = umts_all_record_descs(&count);
  for (size_t i = 0; i < count; i++) {
    const umts_record_desc* d = all[i];
    std::vector<uint8_t> zero(d->size, 0);
    EXPECT_TRUE(json_check::valid(json_of(d, zero.data()))) << d->name;
    /* All bits set: every optional field present, every count and tag out of range. The
       largest records (fixed arrays in the megabytes) would give gigabytes of text. */
    if (d->size <= (1u << 20)) {
      std::vector<uint8_t> ones(d->size, 0xFF);
      EXPECT_TRUE(json_check::valid(json_of(d, ones.data()))) << d->name;
    }
  }
  std::vector<uint8_t> set(sizeof(umts_sib_set), 0);
  EXPECT_EQ(json_of(describe_umts_sib_set(), set.data()), "{\"presence_bitmask\":0}");
}

/* The exported writers: names, a sub-record, the set, and snprintf-style lengths. The names
   in order are those that sibdump --help lists; each is read back to its id. */
TEST(SibJson, NamesAndIds) {
  for (uint32_t i = 0; i < umts_sib_count; i++) {
    const char* name = umts_sib_name(static_cast<umts_sib_id>(i));
    EXPECT_EQ(umts_sib_id_of_name(name, std::strlen(name)), static_cast<umts_sib_id>(i)) << name;
  }
  EXPECT_EQ(umts_sib_name(umts_sib_count), nullptr);
  EXPECT_EQ(umts_sib_set_size(), sizeof(umts_sib_set));
  EXPECT_EQ(umts_sib_id_of_name("sib11", 4), umts_sib_sib1); /* the length decides */
  EXPECT_EQ(umts_sib_id_of_name("sib4", 4), umts_sib_count);
  EXPECT_EQ(umts_sib_id_of_name("", 0), umts_sib_count);
  EXPECT_EQ(umts_sib_id_of_name(nullptr, 0), umts_sib_count);
}

TEST(SibJson, WritesLikeSnprintf) {
  static umts_sib_set set; /* large: once, not on the stack */
  std::memset(&set, 0, sizeof set);
  set.presence_bitmask = (1u << umts_sib_sib3) | (1u << umts_sib_mib);
  set.mib.mib_ValueTag = 3;
  set.sib3.sib4indicator = 1;
  const std::string mib = json_of(describe_umts_mib_info(), &set.mib);
  const std::string sib3 = json_of(describe_umts_sib3_info(), &set.sib3);
  ASSERT_NE(mib.find("\"mib_ValueTag\":3"), std::string::npos) << mib;

  std::vector<char> buf(mib.size() + 1, 'x');
  EXPECT_EQ(umts_sib_record_json(&set, umts_sib_mib, buf.data(), buf.size()), mib.size());
  EXPECT_EQ(std::string(buf.data()), mib);
  /* Cut at every length, down to one short (the nested objects' opening braces among the
     cuts): the text is cut, still ended by a null, and the length says so. */
  for (size_t size = 1; size <= mib.size(); size++) {
    std::vector<char> small(size + 1, 'x');
    EXPECT_EQ(umts_sib_record_json(&set, umts_sib_mib, small.data(), size), mib.size());
    EXPECT_EQ(std::string(small.data()), mib.substr(0, size - 1));
    EXPECT_EQ(small[size], 'x') << "written beyond the size given";
  }
  EXPECT_EQ(umts_sib_record_json(&set, umts_sib_mib, nullptr, 0), mib.size());
  /* An id beyond the blocks writes nothing. */
  buf.assign(4, 'x');
  EXPECT_EQ(umts_sib_record_json(&set, umts_sib_count, buf.data(), buf.size()), 0u);
  EXPECT_EQ(buf[0], '\0');

  /* The set: its presence word and the blocks that it marks, in slot order. */
  const std::string whole = "{\"presence_bitmask\":9,\"mib\":" + mib + ",\"sib3\":" + sib3 + "}";
  std::vector<char> all(whole.size() + 1);
  EXPECT_EQ(umts_sib_set_json(&set, all.data(), all.size()), whole.size());
  EXPECT_EQ(std::string(all.data()), whole);
  EXPECT_TRUE(json_check::valid(whole));
}

}  // namespace
