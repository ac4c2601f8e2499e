// A set of umts_sib_set_alloc is cleared record by record from what the last conversion wrote
// (lists to their counts, unions in their tag's member), not written whole. Whatever
// sequence of conversions it receives, each record must read byte for byte as in a set of
// the caller's own, where the whole record is written with zeros before each conversion.
// The sequences here: every random valid encoding of each block that the generator wrote
// for the round-trip tests and for these tests (tests/data/block_vectors.txt, more of them;
// tests/data/extension_vectors.txt, every extension level present), one after another in
// both orders, and the sample cell's SIBs.
// The same records check the JSON writers compiled from the field lists against the writer
// that reads the run-time descriptions, and that the JSON shows every value of the record:
// each non-zero byte lies in a part that the JSON writes.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "frame_test_util.h"
#include "umts_record_desc.h"
#include "umts_sib_json.h"

namespace {

using frametest::captureStdout;
using frametest::FrameTest;
using frametest::fromHex;
using Bytes = std::vector<uint8_t>;

// The codec type of each block that a set holds.
const std::map<std::string, umts_sib_id>& blockTypes() {
  static const std::map<std::string, umts_sib_id> types = {
      {"MasterInformationBlock", umts_sib_mib}, {"SysInfoType1", umts_sib_sib1},   {"SysInfoType2", umts_sib_sib2},
      {"SysInfoType3", umts_sib_sib3},          {"SysInfoType5", umts_sib_sib5},   {"SysInfoType7", umts_sib_sib7},
      {"SysInfoType11", umts_sib_sib11},        {"SysInfoType11bis", umts_sib_sib11bis},
      {"SysInfoType12", umts_sib_sib12},        {"SysInfoType18", umts_sib_sib18}, {"SysInfoTypeSB1", umts_sib_sb1},
      {"SysInfoTypeSB2", umts_sib_sb2}};
  return types;
}

// Encodings of each block in tests/data/block_vectors.txt, written by
// `rrcgen --vectors FILE --per-type N --seed 28` and kept to the blocks of a set, and in
// tests/data/extension_vectors.txt (the same with --all-extensions).
constexpr size_t kBlockVectors = 100, kExtensionVectors = 60;

struct Encoding {
  umts_sib_id id;
  Bytes bytes;
};

// The generator's random encodings of the blocks, in file order.
std::vector<Encoding> randomEncodings() {
  std::vector<Encoding> out;
  for (const char* file : {"/roundtrip_vectors.txt", "/block_vectors.txt", "/extension_vectors.txt"}) {
    std::ifstream in(std::string(UMTS_TEST_DATA_DIR) + file);
    std::string line;
    while (std::getline(in, line)) {
      std::istringstream fields(line);
      std::string type, bits, hex;
      if (!(fields >> type >> bits >> hex)) continue;
      auto it = blockTypes().find(type);
      if (it != blockTypes().end()) out.push_back({it->second, fromHex(hex)});
    }
  }
  return out;
}

// The sample cells' SIBs, whole: the FDD cell's, then the 1.28 Mcps cell's.
std::vector<Encoding> sampleEncodings() {
  std::vector<Encoding> out;
  for (const char* file : {"/fdd_cell_sibs.txt", "/tdd128_cell_sibs.txt"}) {
    std::ifstream in(std::string(UMTS_SAMPLES_DIR) + file);
    std::string line;
    while (std::getline(in, line)) {
      std::istringstream fields(line);
      std::string name, hex;
      if (line.empty() || line[0] == '#' || !(fields >> name >> hex)) continue;
      const umts_sib_id id = umts_sib_id_of_name(name.c_str(), name.size());
      if (id != umts_sib_count) out.push_back({id, fromHex(hex)});
    }
  }
  return out;
}

// Where the record at `r` holds a non-zero byte that its JSON does not show (outside every
// field, list entry and union member that the writer writes): "path +offset"; empty when the
// JSON shows every value.
std::string unshown(const umts_record_desc* d, const uint8_t* r, const std::string& path);

std::string nonZero(const uint8_t* p, size_t from, size_t to, const std::string& path) {
  static const uint8_t zeros[4096] = {};
  for (size_t at = from; at < to; at += sizeof zeros) {
    const size_t n = to - at < sizeof zeros ? to - at : sizeof zeros;
    if (std::memcmp(p + at, zeros, n) == 0) continue;
    for (size_t i = at;; i++)
      if (p[i] != 0) return path + " +" + std::to_string(i);
  }
  return "";
}

// Field `f` of the record or union at `base`, which the JSON writes.
std::string unshownIn(const umts_field_desc& f, const uint8_t* base, const std::string& path) {
  const uint8_t* p = base + f.offset;
  size_t used = f.size;
  std::string inner;
  if (f.kind == umts_field_record) {
    inner = unshown(f.elem_desc, p, path);
  } else if (f.kind == umts_field_union) {
    const umts_field_desc* m =
        umts_record_union_member(f.elem_desc, umts_record_load_unsigned(base + f.aux_offset, f.aux_size));
    used = m != nullptr ? m->size : 0;
    if (m != nullptr) inner = unshownIn(*m, p, path + "." + m->name);
  } else if (f.kind == umts_field_array) {
    used = umts_record_entries_held(f, base) * f.elem_size;
    for (size_t i = 0; f.elem_desc != nullptr && i * f.elem_size < used && inner.empty(); i++)
      inner = unshown(f.elem_desc, p + i * f.elem_size, path + "[" + std::to_string(i) + "]");
  }
  return !inner.empty() ? inner : nonZero(p, used, f.size, path);
}

std::string unshown(const umts_record_desc* d, const uint8_t* r, const std::string& path) {
  // The one entry that a common dynamic list is written into keeps what its earlier elements
  // wrote beyond the last one's counts and tags: remnants, not values of the record.
  if (std::strcmp(d->name, "umts_common_dynamic_tf_info_dynamic_tti") == 0) return "";
  size_t end = 0;
  for (uint32_t i = 0; i < d->field_count; i++) {
    const umts_field_desc& f = d->fields[i];
    std::string at = nonZero(r, end, f.offset, path + " padding");
    if (at.empty())
      at = umts_record_field_held(d, f, r) ? unshownIn(f, r, path + "." + f.name)
                                           : nonZero(r + f.offset, 0, f.size, path + "." + f.name + " (left out)");
    if (!at.empty()) return at;
    end = f.offset + f.size;
  }
  return nonZero(r, end, d->size, path + " padding");
}

// The field of the set that holds block `id`.
const umts_field_desc* blockField(umts_sib_id id) {
  const umts_record_desc* d = describe_umts_sib_set();
  for (uint32_t i = 0; i < d->field_count; i++)
    if (d->fields[i].cond == static_cast<int32_t>(id)) return &d->fields[i];
  return nullptr;
}

// The record of block `id` as the description-driven writer gives it.
std::string describedJson(const umts_sib_set* set, umts_sib_id id) {
  const umts_record_desc* d = describe_umts_sib_set();
  std::string out;
  for (uint32_t i = 0; i < d->field_count; i++)
    if (d->fields[i].cond == static_cast<int32_t>(id))
      umts_json_append_record(out, d->fields[i].elem_desc, reinterpret_cast<const uint8_t*>(set) + d->fields[i].offset);
  return out;
}

class LibrarySetClearing : public FrameTest {
 protected:
  void TearDown() override {
    std::free(copied);
    umts_sib_set_free(own);
    FrameTest::TearDown();
  }
  // The record of `id` in both sets, as JSON where they differ (for the message).
  void expectSameRecord(umts_sib_id id, const std::string& what) {
    std::vector<char> a(1 << 20), b(1 << 20);
    umts_sib_record_json(own, id, a.data(), a.size());
    umts_sib_record_json(result, id, b.data(), b.size());
    EXPECT_EQ(std::string(a.data()), std::string(b.data())) << what;
    EXPECT_EQ(std::string(a.data()), describedJson(own, id)) << what << ": the compiled JSON writer differs";
    // A copy by what was written (as the summary keeps each cell's records) reads as the record.
    const umts_field_desc* f = blockField(id);
    ASSERT_NE(f, nullptr);
    EXPECT_EQ(unshown(f->elem_desc, reinterpret_cast<const uint8_t*>(own) + f->offset, f->name), "")
        << what << ": a value that the JSON does not show";
    uint8_t* copy = reinterpret_cast<uint8_t*>(copied) + f->offset;
    umts_record_copy_written(f->elem_desc, copy, reinterpret_cast<const uint8_t*>(own) + f->offset);
    EXPECT_EQ(std::memcmp(copy, reinterpret_cast<const uint8_t*>(result) + f->offset, f->size), 0)
        << what << ": the copy by what was written differs";
    EXPECT_TRUE(sameBytes()) << what << ": the records hold the same values but not the same bytes, from offset "
                             << firstDifference() << " of the set";
  }
  size_t firstDifference() const {
    const uint8_t* a = reinterpret_cast<const uint8_t*>(own);
    const uint8_t* b = reinterpret_cast<const uint8_t*>(result);
    size_t i = 0;
    while (i < sizeof *own && a[i] == b[i]) i++;
    return i;
  }
  bool sameBytes() const { return std::memcmp(own, result, sizeof *own) == 0; }
  // One conversion into both sets; both must agree on success.
  void convertBoth(const Encoding& e, const std::string& what) {
    uint8_t mine = 0, theirs = 0;
    captureStdout([&] {
      mine = umts_sib_msg_decoder(e.id, e.bytes.data(), own, static_cast<uint32_t>(e.bytes.size()));
      theirs = umts_sib_msg_decoder(e.id, e.bytes.data(), result, static_cast<uint32_t>(e.bytes.size()));
    });
    ASSERT_EQ(mine, theirs) << what;
    expectSameRecord(e.id, what);
  }
  umts_sib_set* own = umts_sib_set_alloc();
  umts_sib_set* copied = static_cast<umts_sib_set*>(std::calloc(1, sizeof(umts_sib_set)));
};

// The random encodings one after another, the sample's small lists over their long lists,
// then the random encodings backwards over the sample's: each follows both neighbours.
TEST_F(LibrarySetClearing, RandomEncodingsInTurnAndTheSampleCellReadAsInTheCallersSet) {
  ASSERT_NE(own, nullptr);
  const std::vector<Encoding> all = randomEncodings();
  ASSERT_EQ(all.size(), (12u + kBlockVectors + kExtensionVectors) * blockTypes().size());
  const std::vector<Encoding> samples = sampleEncodings();
  ASSERT_GE(samples.size(), 12u);
  for (size_t i = 0; i < all.size(); i++) convertBoth(all[i], "random encoding " + std::to_string(i));
  for (const Encoding& e : samples) convertBoth(e, std::string("sample ") + umts_sib_name(e.id));
  for (size_t i = all.size(); i-- > 0;) convertBoth(all[i], "random encoding " + std::to_string(i) + ", backwards");
}

// The ECN0 form of the inter-frequency list holds each cell's frequency with its bit clear:
// the JSON shows it by its tag (the sample cell's first SIB11: its first cell, UARFCN 10663).
TEST_F(LibrarySetClearing, Ecn0InterFrequencyCellsShowTheirFrequency) {
  ASSERT_NE(own, nullptr);
  const Encoding sib11 = sampleEncodings()[7];
  ASSERT_EQ(sib11.id, umts_sib_sib11);
  convertBoth(sib11, "sample SIB11");
  const auto& quality = own->sib11.measurementControlSysInfo.use_of_HCS.u.hcs_not_used.cellSelectQualityMeasure;
  ASSERT_EQ(quality.choice_tag, 2u);
  const auto& cell = quality.u.cpich_Ec_N0.interFreqMeasurementSysInfo.interFreqCellInfoSI_List.newInterFreqCellList.entries[0];
  EXPECT_EQ(cell.presence_bitmask & 2u, 0u);
  std::vector<char> json(1 << 16);
  umts_sib_record_json(own, umts_sib_sib11, json.data(), json.size());
  EXPECT_NE(std::string(json.data()).find("\"interFreqCellID\":0,\"frequencyInfo\":{\"choice_tag\":1,\"u\":{\"fdd\":{"
                                          "\"presence_bitmask\":1,\"uarfcn_UL\":9713,\"uarfcn_DL\":10663}}}"),
            std::string::npos)
      << json.data();
}

// The set holds zeros wherever no conversion wrote, and a failed conversion leaves the record
// as it was, in either set, and says so: the clearing runs only once the bytes decoded.
TEST_F(LibrarySetClearing, FailedDecodingClearsNothing) {
  ASSERT_NE(own, nullptr);
  for (const Encoding& e : sampleEncodings()) convertBoth(e, std::string("sample ") + umts_sib_name(e.id));
  const Bytes damaged(40, 0xFF);
  for (const auto& type : blockTypes()) {
    const umts_field_desc* f = blockField(type.second);
    ASSERT_NE(f, nullptr);
    const uint8_t* record = reinterpret_cast<const uint8_t*>(result) + f->offset;
    const Bytes before(record, record + f->size);
    uint8_t status = 0xEE;
    std::string printed = captureStdout(
        [&] { status = umts_sib_msg_decoder(type.second, damaged.data(), result, static_cast<uint32_t>(damaged.size())); });
    convertBoth({type.second, damaged}, "damaged " + type.first);
    if (status != 0) continue;  // every bit pattern is a SIB2
    EXPECT_EQ(std::memcmp(before.data(), record, before.size()), 0) << type.first;
    // The log names the conversion that failed (the scheduling blocks' as scheduling_block1, 2).
    const std::string name = type.second == umts_sib_sb1   ? "scheduling_block1"
                             : type.second == umts_sib_sb2 ? "scheduling_block2"
                                                           : umts_sib_name(type.second);
    EXPECT_TRUE(frametest::logged("2:decode_system_info_msg:umts_convert_" + name + (name == "mib" ? " failed!" : " failed")))
        << type.first;
    for (char& c : printed) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (type.second == umts_sib_mib) EXPECT_EQ(printed, "") << "the MIB's failure is silent";
    else EXPECT_NE(printed.find("decoding failed"), std::string::npos) << type.first << ": " << printed;
  }
  EXPECT_TRUE(sameBytes());
}

}  // namespace
