// A set of umts_sib_set_alloc is cleared record by record from what the last conversion wrote
// (lists to their counts, unions in their tag's member), not written whole. Whatever
// sequence of conversions it receives, each record must read byte for byte as in a set of
// the caller's own, where the whole record is written with zeros before each conversion.
// The sequences here: every random valid encoding of each block that the generator wrote
// for the round-trip tests and for these tests (tests/data/block_vectors.txt, more of them;
// tests/data/extension_vectors.txt, every extension level present), one after another in
// both orders, and the sample cell's SIBs.
// The same records check the JSON writers compiled from the field lists against the writer
// that reads the run-time descriptions.
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
using Bytes = std::vector<uint8_t>;

Bytes fromHex(const std::string& hex) {
  Bytes out;
  for (size_t i = 0; i + 1 < hex.size(); i += 2) out.push_back(static_cast<uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
  return out;
}

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

// The sample cell's SIBs, whole.
std::vector<Encoding> sampleEncodings() {
  std::vector<Encoding> out;
  std::ifstream in(UMTS_SAMPLES_DIR "/fdd_cell_sibs.txt");
  std::string line;
  while (std::getline(in, line)) {
    std::istringstream fields(line);
    std::string name, hex;
    if (line.empty() || line[0] == '#' || !(fields >> name >> hex)) continue;
    const umts_sib_id id = umts_sib_id_of_name(name.c_str(), name.size());
    if (id != umts_sib_count) out.push_back({id, fromHex(hex)});
  }
  return out;
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

TEST_F(LibrarySetClearing, RandomEncodingsInTurnReadAsInTheCallersSet) {
  ASSERT_NE(own, nullptr);
  const std::vector<Encoding> all = randomEncodings();
  ASSERT_EQ(all.size(), (12u + kBlockVectors + kExtensionVectors) * blockTypes().size());
  for (size_t i = 0; i < all.size(); i++) convertBoth(all[i], "random encoding " + std::to_string(i));
  for (size_t i = all.size(); i-- > 0;) convertBoth(all[i], "random encoding " + std::to_string(i) + ", backwards");
}

TEST_F(LibrarySetClearing, SampleCellAfterRandomEncodings) {
  ASSERT_NE(own, nullptr);
  const std::vector<Encoding> samples = sampleEncodings();
  ASSERT_GE(samples.size(), 12u);
  for (const Encoding& e : randomEncodings()) convertBoth(e, "random encoding");
  for (const Encoding& e : samples) convertBoth(e, std::string("sample ") + umts_sib_name(e.id));
  // And back: the sample's small lists over the random ones' long lists, then the random
  // ones over the sample's.
  for (const Encoding& e : randomEncodings()) convertBoth(e, "random encoding after the samples");
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
    for (char& c : printed) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (type.second == umts_sib_mib) EXPECT_EQ(printed, "") << "the MIB's failure is silent";
    else EXPECT_NE(printed.find("decoding failed"), std::string::npos) << type.first << ": " << printed;
  }
  EXPECT_TRUE(sameBytes());
}

}  // namespace
