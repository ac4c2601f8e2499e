// The GSMTAP entry: frames of a capture or datagrams of a live stream, as sibdump takes them,
// through the link, IP and UDP layers, the GSMTAP header and the per-cell collection, and the
// per-cell summary of what was converted (SIB19 collected from the blocks) in its three forms;
// then the same frames through one CellFeed and through the cells on two threads (sibdump
// --jobs 1 and --jobs 2), which must write the same bytes.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "cell_feed.h"
#include "fuzz_entries.h"
#include "gsmtap.h"
#include "parallel_feed.h"
#include "umts_sib_json.h"
#include "umts_sib_summary.h"

namespace umts_fuzz {

namespace {

/* A set of the library, as sibdump takes: its records are cleared by what was written, not
   written with zeros whole (28 MB at each SIB5). */
umts_sib_set* feedRecord() {
  static umts_sib_set* const record = umts_sib_set_alloc();
  return record;
}

/* A set that carries nothing: hands the summary a transport block without records again. */
const umts_sib_set* noRecords() {
  static umts_sib_set* const record = static_cast<umts_sib_set*>(std::calloc(1, sizeof(umts_sib_set)));
  return record;
}

FILE* discard() {
  static FILE* const sink = std::fopen("/dev/null", "w");
  return sink;
}

const gsmtap::Link kLinks[] = {gsmtap::Link::ethernet, gsmtap::Link::linux_sll, gsmtap::Link::linux_sll2,
                               gsmtap::Link::raw_ip,   gsmtap::Link::ipv4,      gsmtap::Link::ipv6};

/* Each frame of the input after its first octet (two octets of length, then the frame) to
   `sink`, as sibdump's capture reader hands them; a frame unwrapped wrongly is a problem.
   Returns the frames read. */
unsigned long feed_frames(gsmtap::Link link, const uint8_t* data, size_t size, FrameSink& sink, std::string* problem) {
  size_t pos = 1;
  unsigned long number = 0;
  while (pos < size && problem->empty()) {
    size_t n = data[pos++];
    if (pos < size) n = n << 8 | data[pos++];
    if (n > size - pos) n = size - pos;
    // An exact copy, so that a read past the frame is reported; the wire length may claim more.
    std::vector<uint8_t> frame(data + pos, data + pos + n);
    pos += n;
    number++;
    gsmtap::Datagram d;
    std::string why;
    switch (gsmtap::unwrap_frame(link, frame.data(), frame.size(), frame.size() + (number % 3 == 0), &d, &why)) {
      case gsmtap::Unwrap::udp:
        if (d.payload < frame.data() || d.payload + d.length > frame.data() + frame.size())
          *problem = "frame " + std::to_string(number) + ": datagram outside its frame";
        else
          sink.datagram(number, number * 10000u, d);
        break;
      case gsmtap::Unwrap::other:
        sink.not_gsmtap();
        break;
      case gsmtap::Unwrap::damaged:
        if (why.empty()) *problem = "frame " + std::to_string(number) + ": damaged without a reason";
        sink.bad(number, why);
        break;
    }
  }
  return number;
}

/* The JSON of record `id` of `set` in `json` (grown as needed); returns its length. */
size_t record_json(const umts_sib_set* set, unsigned id, std::vector<char>& json) {
  size_t n = umts_sib_record_json(set, static_cast<umts_sib_id>(id), json.data(), json.size());
  if (n >= json.size()) {
    json.resize(n + 1);
    n = umts_sib_record_json(set, static_cast<umts_sib_id>(id), json.data(), json.size());
  }
  return n;
}

/* A line per record that the last call converted into `set`: the head, then the record. */
size_t json_lines(const umts_sib_set* set, const std::string& head, FILE* out, std::vector<char>& json) {
  size_t lines = 0;
  for (unsigned id = 0; id < umts_sib_count; id++) {
    if ((set->presence_bitmask >> id & 1u) == 0) continue;
    const size_t n = record_json(set, id, json);
    std::fputs(head.c_str(), out);
    std::fwrite(json.data(), 1, n, out);
    std::fputc('\n', out);
    lines++;
  }
  return lines;
}

/* Text gathered in memory. */
struct Gathered {
  char* text = nullptr;
  size_t length = 0;
  FILE* stream = open_memstream(&text, &length);
  ~Gathered() {
    if (stream != nullptr) std::fclose(stream);
    std::free(text);
  }
  std::string close() {
    std::fclose(stream);
    stream = nullptr;
    return std::string(text != nullptr ? text : "", length);
  }
};

/* The frames through one CellFeed and through a ParallelFeed of two threads: the same
   records and messages, byte for byte. */
std::string compare_threads(gsmtap::Link link, const uint8_t* data, size_t size) {
  std::string problem;
  Gathered records[2], messages[2];
  if (records[0].stream == nullptr || records[1].stream == nullptr || messages[0].stream == nullptr ||
      messages[1].stream == nullptr)
    return "";
  umts_sib_set* set = feedRecord();
  std::vector<char> json(1 << 16);
  {
    CellFeed feed(set, RecordOutput{[&](const std::string& head, const CellKey&) { return json_lines(set, head, records[0].stream, json); },
                                    nullptr},
                  "fuzz", "frame", messages[0].stream);
    feed.summary(messages[0].stream, feed_frames(link, data, size, feed, &problem));
  }
  struct Cell {
    umts_sib_set* set = nullptr;
    std::vector<char> json = std::vector<char>(1 << 16);
  };
  std::vector<std::unique_ptr<Cell>> cells;
  auto make_feed = [&cells](CellOutput& out) {
    cells.emplace_back(new Cell);
    Cell* c = cells.back().get();
    FILE* lines = out.records();
    CellDecoding decoding;
    decoding.feed.reset(new CellFeed(
        nullptr, RecordOutput{[c, lines](const std::string& head, const CellKey&) { return json_lines(c->set, head, lines, c->json); }, nullptr},
        "fuzz", "frame", out.messages()));
    CellFeed* feed = decoding.feed.get();
    decoding.use_set = [c, feed](umts_sib_set* s) {
      c->set = s;
      feed->use_set(s);
    };
    return decoding;
  };
  {
    ParallelFeed feed(2, make_feed, records[1].stream, nullptr, messages[1].stream, "frame");
    std::string ignored;
    const unsigned long frames = feed_frames(link, data, size, feed, &ignored);
    feed.finish();
    feed.summary(messages[1].stream, frames);
  }
  if (!problem.empty()) return problem;
  if (records[0].close() != records[1].close()) return "records on two threads differ from those on one";
  if (messages[0].close() != messages[1].close()) return "messages on two threads differ from those on one";
  return "";
}

}  // namespace

std::string run_gsmtap(const uint8_t* data, size_t size) {
  umts_sib_set* set = feedRecord();
  if (set == nullptr || discard() == nullptr || size == 0) return "";
  const gsmtap::Link link = kLinks[data[0] % (sizeof kLinks / sizeof kLinks[0])];
  std::string problem;
  std::vector<char> json(1 << 16);
  if (noRecords() == nullptr) return "";
  umts_summary* summary = umts_summary_new();
  if (summary == nullptr) return "";
  // Every record that a datagram completes is written as sibdump writes it, so that the JSON
  // of whatever the conversions left in the record is made too.
  RecordOutput output{[&](const std::string& head, const CellKey&) {
                        size_t lines = 0;
                        for (unsigned id = 0; id < umts_sib_count; id++) {
                          if ((set->presence_bitmask >> id & 1u) == 0) continue;
                          const size_t n = record_json(set, id, json);
                          if (n == 0 || json[0] != '{' || json[n - 1] != '}') problem = "record " + std::to_string(id) + ": not a JSON object";
                          lines++;
                        }
                        if (umts_summary_take(summary, head.c_str(), "fuzz", set, nullptr, 0) < 0) problem = "summary refused the records";
                        return lines;
                      },
                      nullptr};
  output.block = [&](const std::string& head, const CellKey&, const uint8_t* block, size_t length,
                     const umts_decoder_ctxt* state) {
    if (umts_summary_take(summary, head.c_str(), "fuzz", noRecords(), block, length) < 0) problem = "summary refused a block";
    umts_summary_take_collection(summary, head.c_str(), state);
  };
  {
    CellFeed feed(set, output, "fuzz", "frame", discard());
    const unsigned long number = feed_frames(link, data, size, feed, &problem);
    feed.summary(discard(), number);
  }  // the feed releases the segments of every cell
  for (const char* format : {"json", "text", "html"}) {
    char* text = umts_summary_text(summary, format);
    if (text == nullptr || text[0] == '\0') problem = std::string("no ") + format + " summary";
    else if (format[0] == 'j' && text[0] != '{') problem = "JSON summary not an object";
    umts_summary_text_free(text);
  }
  umts_summary_free(summary);
  for (const umts_sib_slot& slot : g_umts_ctxt.slots)
    if (slot.buffer != nullptr && problem.empty()) problem = "a slot left in the global context";
  if (problem.empty()) problem = compare_threads(link, data, size);
  return problem;
}

}  // namespace umts_fuzz
