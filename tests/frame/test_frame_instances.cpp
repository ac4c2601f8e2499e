// Decoder instances: several streams through one process, interleaved on one thread or each
// on a thread of its own, give each stream the records that a lone decoder gives it.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "frame_test_util.h"
#include "umts_sib_decoder.h"
#include "umts_sib_json.h"

namespace {

// One call: a transport block (sib < 0) or a whole SIB of slot `sib`.
struct Input {
  int sib;
  std::vector<uint8_t> bytes;
};

// What one call gave: its status, and per converted block its JSON and a digest of the
// sub-record's bytes (the SIB5 record alone is 28 MB).
struct Output {
  uint8_t status;
  std::vector<std::string> records;
  bool operator==(const Output& o) const { return status == o.status && records == o.records; }
};

// The lines of a sample: transport blocks (sib < 0) of a .bch file, else whole SIBs of slots.
std::vector<Input> sample(const std::string& file) {
  std::ifstream in(std::string(UMTS_SAMPLES_DIR) + "/" + file);
  const bool blocks = file.find(".bch") != std::string::npos;
  std::vector<Input> out;
  for (std::string line; std::getline(in, line);) {
    std::istringstream words(line);
    std::string name, hex;
    if (line.empty() || line[0] == '#' || !(words >> name) || (!blocks && !(words >> hex))) continue;
    const umts_sib_id id = blocks ? umts_sib_count : umts_sib_id_of_name(name.c_str(), name.size());
    if (blocks) out.push_back({-1, frametest::fromHex(name)});
    else if (id != umts_sib_count) out.push_back({static_cast<int>(id), frametest::fromHex(hex)});
  }
  return out;
}

// The streams: the sample cell's cycle; the same cell heard from its sixth block on (its
// first parts continue SIBs never begun); its whole SIBs; the 1.28 Mcps cell's SIBs; and
// damaged input: blocks cut short, noise, refused SIB slots, a SIB that fails to decode.
std::vector<std::vector<Input>> streams() {
  std::vector<std::vector<Input>> s;
  s.push_back(sample("fdd_cell.bch"));
  std::vector<Input> late(s[0].begin() + 5, s[0].end());
  late.insert(late.end(), s[0].begin(), s[0].end());
  s.push_back(late);
  s.push_back(sample("fdd_cell_sibs.txt"));
  s.push_back(sample("tdd128_cell_sibs.txt"));
  std::vector<Input> bad;
  for (const Input& b : s[0]) {
    bad.push_back({-1, std::vector<uint8_t>(b.bytes.begin(), b.bytes.begin() + 7)});
    bad.push_back({-1, std::vector<uint8_t>(31, 0xA5)});
    bad.push_back({umts_sib_sib3, {0xFF, 0xFF, 0xFF}});
    bad.push_back({umts_sib_count, b.bytes});
    bad.push_back(b);
  }
  s.push_back(bad);
  for (const auto& stream : s) EXPECT_GE(stream.size(), 2u);
  return s;
}

// The sub-record of slot `id` in the set, from the set's field list.
std::pair<const void*, size_t> subRecord(const umts_sib_set* s, unsigned id) {
#define SPAN(kind, type, name, dim, cond, aux) {offsetof(umts_sib_set, name), sizeof(type)},
  static const std::pair<size_t, size_t> spans[] = {umts_sib_set_FIELDS(SPAN)};
#undef SPAN
  return {reinterpret_cast<const uint8_t*>(s) + spans[id + 1].first, spans[id + 1].second};
}

// Feeds one input to `d` (the global entries for null) and notes what the call converted.
Output feed(umts_sib_decoder_t* d, umts_sib_set* set, const Input& in) {
  Output out;
  set->presence_bitmask = 0;
  const uint32_t n = static_cast<uint32_t>(in.bytes.size());
  if (d == nullptr)
    out.status = in.sib < 0 ? umts_sib_decoder(in.bytes.data(), set, n)
                            : umts_sib_msg_decoder(static_cast<umts_sib_id>(in.sib), in.bytes.data(), set, n);
  else
    out.status = in.sib < 0 ? umts_sib_decoder_feed_block(d, in.bytes.data(), set, n)
                            : umts_sib_decoder_feed_sib(d, static_cast<umts_sib_id>(in.sib), in.bytes.data(), set, n);
  std::vector<char> json(1 << 20);
  for (unsigned id = 0; id < umts_sib_count; id++) {
    if ((set->presence_bitmask >> id & 1u) == 0) continue;
    const size_t len = umts_sib_record_json(set, static_cast<umts_sib_id>(id), json.data(), json.size());
    const auto rec = subRecord(set, id);
    const size_t digest = std::hash<std::string_view>()({static_cast<const char*>(rec.first), rec.second});
    out.records.push_back(std::string(json.data(), len) + " #" + std::to_string(digest));
  }
  return out;
}

// A new instance with a set of its own, both freed at scope end.
struct Instance {
  umts_sib_decoder_t* d = umts_sib_decoder_new();
  umts_sib_set* set = umts_sib_set_alloc();
  Instance() = default;
  Instance(const Instance&) = delete;
  ~Instance() {
    umts_sib_set_free(set);
    umts_sib_decoder_free(d);
  }
};

// A stream through a lone, new instance.
std::vector<Output> alone(const std::vector<Input>& stream) {
  Instance i;
  std::vector<Output> out;
  for (const Input& in : stream) out.push_back(feed(i.d, i.set, in));
  return out;
}

class Instances : public ::testing::Test {
 protected:
  void SetUp() override {
    frametest::resetContext();
    umts_sib_print_to(nullptr);
    all_ = streams();
    for (const auto& s : all_) lone_.push_back(alone(s));
  }
  void TearDown() override {
    frametest::resetContext();
    umts_sib_print_to(stdout);
  }
  std::vector<std::vector<Input>> all_;
  std::vector<std::vector<Output>> lone_;
};

TEST_F(Instances, InterleavedOnOneThreadEachStreamGetsItsOwnRecords) {
  std::vector<Instance> inst(all_.size());
  std::vector<std::vector<Output>> got(all_.size());
  for (size_t step = 0;; step++) {
    bool any = false;
    for (size_t i = 0; i < all_.size(); i++) {
      if (step >= all_[i].size()) continue;
      any = true;
      got[i].push_back(feed(inst[i].d, inst[i].set, all_[i][step]));
    }
    if (!any) break;
  }
  for (size_t i = 0; i < all_.size(); i++) EXPECT_EQ(lone_[i], got[i]) << "stream " << i;
  // The sample cell's cycle converts every block it carries.
  size_t records = 0;
  for (const Output& o : got[0]) records += o.records.size();
  EXPECT_GE(records, 12u);
}

TEST_F(Instances, OneThreadPerInstanceGivesTheSameRecords) {
  std::vector<std::vector<Output>> got(all_.size());
  std::vector<std::thread> threads;
  for (size_t i = 0; i < all_.size(); i++) {
    // Twice each, so that more threads than streams decode at once.
    threads.emplace_back([this, i, &got] { got[i] = alone(all_[i]); });
  }
  std::vector<std::vector<Output>> again(all_.size());
  for (size_t i = 0; i < all_.size(); i++) threads.emplace_back([this, i, &again] { again[i] = alone(all_[i]); });
  for (std::thread& t : threads) t.join();
  for (size_t i = 0; i < all_.size(); i++) {
    EXPECT_EQ(lone_[i], got[i]) << "stream " << i;
    EXPECT_EQ(lone_[i], again[i]) << "stream " << i;
  }
}

// The global entries and an instance on one thread: each keeps its own segments, and a call
// of one leaves the other's state as it was, byte for byte.
TEST_F(Instances, TheGlobalEntriesAndAnInstanceSeeNothingOfEachOther) {
  const std::vector<Input>& a = all_[0];
  const std::vector<Input>& b = all_[1];
  Instance global, inst;
  umts_sib_decoder_t* d = inst.d;
  auto snapshot = [](const umts_decoder_ctxt& c) {
    std::string s(reinterpret_cast<const char*>(&c), sizeof c);
    for (const umts_sib_slot& slot : c.slots)
      if (slot.buffer != nullptr) s.append(reinterpret_cast<const char*>(slot.buffer), UMTS_SIB_DECODE_LENGTH);
    return s;
  };
  std::vector<Output> from_global, from_instance;
  bool global_held_segments = false, instance_held_segments = false;
  for (size_t i = 0; i < a.size() || i < b.size(); i++) {
    if (i < a.size()) {
      const std::string before = snapshot(*umts_sib_decoder_state(d));
      from_global.push_back(feed(nullptr, global.set, a[i]));
      EXPECT_EQ(before, snapshot(*umts_sib_decoder_state(d))) << "block " << i;
    }
    for (const umts_sib_slot& slot : g_umts_ctxt.slots) global_held_segments |= slot.remaining_segments != 0;
    if (i < b.size()) {
      const std::string before = snapshot(g_umts_ctxt);
      from_instance.push_back(feed(d, inst.set, b[i]));
      EXPECT_EQ(before, snapshot(g_umts_ctxt)) << "block " << i;
    }
    for (const umts_sib_slot& slot : umts_sib_decoder_state(d)->slots) instance_held_segments |= slot.remaining_segments != 0;
  }
  EXPECT_TRUE(global_held_segments && instance_held_segments);
  EXPECT_EQ(lone_[0], from_global);
  EXPECT_EQ(lone_[1], from_instance);
  EXPECT_EQ(umts_sib_decoder_default(), umts_sib_decoder_default());
  EXPECT_EQ(&g_umts_ctxt, umts_sib_decoder_state(umts_sib_decoder_default()));
}

// Reset drops what is in collection: a SIB whose first segment came before the reset does
// not complete after it.
TEST_F(Instances, ResetDropsTheSegmentsInCollection) {
  const std::vector<Input>& cycle = all_[0];
  Instance inst;
  umts_sib_decoder_t* d = inst.d;
  size_t first = 0;  // the first block that leaves a segment waiting
  for (; first < cycle.size(); first++) {
    feed(d, inst.set, cycle[first]);
    bool waiting = false;
    for (const umts_sib_slot& slot : umts_sib_decoder_state(d)->slots) waiting |= slot.buffer != nullptr;
    if (waiting) break;
  }
  ASSERT_LT(first + 1, cycle.size());
  umts_sib_decoder_reset(d);
  const umts_decoder_ctxt zero{};
  EXPECT_EQ(0, std::memcmp(&zero, umts_sib_decoder_state(d), sizeof zero));
  // The next block continues the dropped SIB: its segment is refused now, as a lone decoder
  // that starts there refuses it.
  const std::vector<Input> rest(cycle.begin() + static_cast<long>(first) + 1, cycle.end());
  std::vector<Output> after;
  for (const Input& in : rest) after.push_back(feed(d, inst.set, in));
  EXPECT_EQ(alone(rest), after);
}

// An instance prints nothing until it has a stream; with one, its text is what the global
// entries print on standard output for the same stream: the decoded values and the messages
// in their order.
TEST_F(Instances, TextOfAnInstanceIsTheTextOfTheGlobalEntries) {
  std::vector<Input> stream = all_[4];  // damaged input among good blocks: messages and values
  stream.insert(stream.end(), all_[0].begin(), all_[0].end());
  Instance silent;
  umts_sib_set* set = silent.set;
  EXPECT_EQ("", frametest::captureStdout([&] {
              for (const Input& in : stream) feed(silent.d, set, in);
              umts_sib_decoder_print_flush(silent.d);
            }));

  umts_sib_print_to(stdout);
  const std::string global = frametest::captureStdout([&] {
    for (const Input& in : stream) feed(nullptr, set, in);
  });
  umts_sib_print_to(nullptr);
  EXPECT_NE(global.find("Can't decode BCH"), std::string::npos);
  EXPECT_NE(global.find("UMTS_BCCH_BCH_Message"), std::string::npos);

  FILE* f = std::tmpfile();
  umts_sib_decoder_t* d = umts_sib_decoder_new();
  umts_sib_decoder_print_to(d, f);
  const std::string out = frametest::captureStdout([&] {
    for (const Input& in : stream) feed(d, set, in);
  });
  EXPECT_EQ("", out);
  umts_sib_decoder_free(d);  // hands over what is gathered
  EXPECT_EQ(global, frametest::readAndClose(f));
}

TEST_F(Instances, NullInstancesAreRefused) {
  Instance inst;
  const Input& mib = all_[0][0];
  EXPECT_EQ(0, umts_sib_decoder_feed_block(nullptr, mib.bytes.data(), inst.set, 31));
  EXPECT_EQ(0, umts_sib_decoder_feed_sib(nullptr, umts_sib_mib, mib.bytes.data(), inst.set, 31));
  EXPECT_EQ(nullptr, umts_sib_decoder_state(nullptr));
  umts_sib_decoder_free(nullptr);
  umts_sib_decoder_free(umts_sib_decoder_default());  // ignored
  umts_sib_decoder_reset(nullptr);
}

}  // namespace
