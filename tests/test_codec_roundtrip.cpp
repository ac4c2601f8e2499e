// Round trips through the generated decoders and encoders. The encodings come from the
// generator's own random bit writer, which works from the schema model and shares no code
// with the generated functions: decoding one must consume exactly its bits, encoding the
// decoded value must give the same bits back, and a second decode must print the same. Cut
// short at any byte, an encoding of a top-level type fails cleanly.
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <map>
#include <sstream>

#include "codec_test_util.h"

namespace {

struct Vector {
  std::string type;
  uint64_t bits = 0;
  std::vector<uint8_t> bytes;
  int line = 0;
};

std::map<std::string, std::vector<Vector>> loadVectors(const std::string& path) {
  std::map<std::string, std::vector<Vector>> by_type;
  std::ifstream in(path);
  std::string line;
  int n = 0;
  while (std::getline(in, line)) {
    n++;
    if (line.empty() || line[0] == '#') continue;
    std::istringstream ls(line);
    Vector v;
    std::string hex;
    ls >> v.type >> v.bits >> hex;
    if (hex != "-") v.bytes = testutil::fromHex(hex);
    v.line = n;
    by_type[v.type].push_back(std::move(v));
  }
  return by_type;
}

void checkRoundTrip(const Vector& v, bool cuts) {
  SCOPED_TRACE("vector line " + std::to_string(v.line) + " (" + v.type + ", " + std::to_string(v.bits) + " bits)");
  const umts_type_info* type = umts_type_lookup(v.type.c_str());
  ASSERT_NE(type, nullptr);

  testutil::Decoded first;
  int stat = testutil::decode(type, v.bytes, first);
  if (stat != 0) {
    char err[512];
    rtxErrGetText(&first.ctx, err, sizeof err);
    FAIL() << "decode failed: " << err;
  }
  EXPECT_EQ(rtxBitPos(&first.ctx), v.bits) << "the decoder must consume exactly the encoding";

  std::vector<uint8_t> again;
  uint64_t bits = 0;
  std::string error;
  ASSERT_EQ(testutil::encode(type, first.value(), again, bits, &error), 0) << error;
  EXPECT_EQ(bits, v.bits);
  EXPECT_EQ(testutil::toHex(again.data(), again.size()), testutil::toHex(v.bytes.data(), v.bytes.size()));

  testutil::Decoded second;
  ASSERT_EQ(testutil::decode(type, again, second), 0);
  EXPECT_EQ(testutil::print(type, first.value()), testutil::print(type, second.value()));

  // End of buffer, and a path from the type down to the element being read once there was
  // something to read; nothing is read outside the (exactly sized) buffer.
  for (size_t cut = 0; cuts && cut * 8 < v.bits; cut++) {
    testutil::Decoded d;
    const std::vector<uint8_t> part(v.bytes.begin(), v.bytes.begin() + long(cut));
    ASSERT_EQ(testutil::decode(type, part, d), RT_ERR_ENDOFBUF) << "cut at byte " << cut;
    char path[512];
    rtxCtxtGetPath(&d.ctx, path, sizeof path);
    EXPECT_EQ(std::string(path).rfind(type->name, 0), 0u) << path;
    EXPECT_TRUE(cut == 0 || std::strlen(path) > std::strlen(type->name)) << "cut " << cut << ": " << path;
  }
}

class TopLevelRoundTrip : public ::testing::TestWithParam<std::string> {};

const std::map<std::string, std::vector<Vector>>& topLevelVectors() {
  static const auto vectors = loadVectors(UMTS_TEST_DATA_DIR "/roundtrip_vectors.txt");
  return vectors;
}

std::vector<std::string> topLevelTypes() {
  std::vector<std::string> names;
  for (auto& kv : topLevelVectors()) names.push_back(kv.first);
  return names;
}

TEST_P(TopLevelRoundTrip, EncodeDecodeEncodeGivesTheSameBits) {
  for (const Vector& v : topLevelVectors().at(GetParam())) checkRoundTrip(v, true);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, TopLevelRoundTrip, ::testing::ValuesIn(topLevelTypes()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

TEST(TopLevelRoundTrip, CoversEveryTopLevelTypeOfTheRegistry) {
  const auto& vectors = topLevelVectors();
  int top = 0;
  for (uint32_t i = 0; i < umts_type_registry_count; i++) {
    const umts_type_info& t = umts_type_registry[i];
    if (!(t.flags & UMTS_TYPE_TOPLEVEL)) continue;
    top++;
    EXPECT_TRUE(vectors.count(t.c_name)) << t.name << " has no round-trip vectors";
  }
  EXPECT_GT(top, 50);
}

// Two values of every type of the catalogue, written by the generator at build time when the
// schema is at hand.
TEST(EveryTypeRoundTrip, EncodeDecodeEncodeGivesTheSameBits) {
  std::ifstream probe(UMTS_ALL_VECTORS_FILE);
  if (!probe) GTEST_SKIP() << "no vectors of every type (the schema was not found at build time)";
  auto vectors = loadVectors(UMTS_ALL_VECTORS_FILE);
  EXPECT_EQ(vectors.size(), umts_type_registry_count);
  for (auto& kv : vectors)
    for (const Vector& v : kv.second) checkRoundTrip(v, false);
}

}  // namespace
