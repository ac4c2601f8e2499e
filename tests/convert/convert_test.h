// Helpers of the conversion tests: storage of decoded values built in code, and the check
// that a SIB sent over the BCH gives the record that it gives whole.
#ifndef UMTS_TEST_CONVERT_TEST_H
#define UMTS_TEST_CONVERT_TEST_H

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "bch_segmenter.h"
#include "frame_test_util.h"
#include "umts_sib_convert.h"

namespace converttest {

using namespace frametest;
using Bytes = std::vector<uint8_t>;

// Zeroed decoded values, freed together, and list nodes appended to a decoded list.
struct Pool {
  std::vector<std::shared_ptr<void>> held;
  template <class T>
  T* make() {
    held.emplace_back(std::calloc(1, sizeof(T)), std::free);
    return static_cast<T*>(held.back().get());
  }
  template <class T>
  T* add(rtxDList& list) {
    T* value = make<T>();
    append(list, *make<rtxDListNode>(), *value);
    return value;
  }
  template <class T>
  T* add(rtxDList& list, const T& value) {
    T* p = add<T>(list);
    *p = value;
    return p;
  }
  // A new zeroed value behind `ptr`.
  template <class P>
  P* alloc(P*& ptr) {
    return ptr = make<P>();
  }
};

// The octets of a bit string of up to 32 bits.
template <class BitString>
Bytes octets(const BitString& b) {
  return Bytes(b.data, b.data + sizeof b.data);
}

// A SIB of a sample cell's list (samples/*_sibs.txt, written by mksamples from values set
// there): the `nth` line named `name`, with the bit count of the comment above it.
struct SampleSib {
  Bytes bytes;
  uint32_t bits = 0;
};
inline SampleSib sampleSib(const char* file, const std::string& name, unsigned nth = 0) {
  std::ifstream in(std::string(UMTS_SAMPLES_DIR) + "/" + file);
  std::string line, comment;
  while (std::getline(in, line)) {
    std::istringstream fields(line);
    std::string first, hex;
    if (line.rfind("#", 0) == 0) comment = line;
    else if (fields >> first >> hex && first == name && nth-- == 0)
      return {fromHex(hex), static_cast<uint32_t>(std::stoul(comment.substr(comment.rfind(", ") + 2)))};
  }
  ADD_FAILURE() << name << " is not in " << file;
  return {};
}

class ConvertTest : public FrameTest {
 protected:
  // SIB `id` (schedule type `type`, `bits` long) whole, then over the BCH behind a SIB7 in
  // segments joined bit by bit: the record `member` reads the same both ways, every byte of it
  // rewritten. Returns the number of blocks.
  template <class Record>
  uint32_t expectSameOverTheBch(umts_sib_id id, uint32_t type, Record umts_sib_set::*member, const Bytes& bytes,
                                uint32_t bits) {
    EXPECT_EQ(whole(id, bytes), 1);
    Bytes expected(sizeof(Record));
    std::memcpy(expected.data(), &(result->*member), expected.size());
    const Bytes sib7 = fromHex(kSib7Hex);
    const umts_bch_sib in[] = {{7, sib7.data(), 11, 0}, {type, bytes.data(), bits, 0}};
    std::vector<umts_bch_block> blocks(64);
    uint32_t count = 0;
    EXPECT_EQ(umts_bch_segment(in, 2, 0, blocks.data(), 64, &count, nullptr), umts_bch_ok);
    std::memset(&(result->*member), 0xEE, sizeof(Record));
    result->presence_bitmask = 0;
    for (uint32_t i = 0; i < count; i++)
      EXPECT_EQ(feed(Bytes(blocks[i].data, blocks[i].data + UMTS_BCH_BLOCK_OCTETS)), 1) << i;
    EXPECT_EQ(result->presence_bitmask, (1u << id) | (1u << umts_sib_sib7));
    EXPECT_EQ(std::memcmp(&(result->*member), expected.data(), expected.size()), 0) << count << " blocks";
    return count;
  }
};

}  // namespace converttest

#endif /* UMTS_TEST_CONVERT_TEST_H */
