// The GSMTAP entry: frames of a capture or datagrams of a live stream, as sibdump takes them,
// through the link, IP and UDP layers, the GSMTAP header and the per-cell collection, and the
// per-cell summary of what was converted (SIB19 collected from the blocks) in its three forms.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "cell_feed.h"
#include "fuzz_entries.h"
#include "gsmtap.h"
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
  RecordOutput output{[&](const std::string& head) {
                        size_t lines = 0;
                        for (unsigned id = 0; id < umts_sib_count; id++) {
                          if ((set->presence_bitmask >> id & 1u) == 0) continue;
                          size_t n = umts_sib_record_json(set, static_cast<umts_sib_id>(id), json.data(), json.size());
                          if (n >= json.size()) {
                            json.resize(n + 1);
                            n = umts_sib_record_json(set, static_cast<umts_sib_id>(id), json.data(), json.size());
                          }
                          if (n == 0 || json[0] != '{' || json[n - 1] != '}') problem = "record " + std::to_string(id) + ": not a JSON object";
                          lines++;
                        }
                        if (umts_summary_take(summary, head.c_str(), "fuzz", set, nullptr, 0) < 0) problem = "summary refused the records";
                        return lines;
                      },
                      nullptr};
  output.block = [&](const std::string& head, const uint8_t* block, size_t length, const umts_decoder_ctxt* state) {
    if (umts_summary_take(summary, head.c_str(), "fuzz", noRecords(), block, length) < 0) problem = "summary refused a block";
    umts_summary_take_collection(summary, head.c_str(), state);
  };
  {
    CellFeed feed(set, output, "fuzz", "frame", discard());
    size_t pos = 1;
    unsigned long number = 0;
    while (pos < size && problem.empty()) {
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
            problem = "frame " + std::to_string(number) + ": datagram outside its frame";
          else
            feed.datagram(number, number * 10000u, d);
          break;
        case gsmtap::Unwrap::other:
          feed.not_gsmtap();
          break;
        case gsmtap::Unwrap::damaged:
          if (why.empty()) problem = "frame " + std::to_string(number) + ": damaged without a reason";
          feed.bad(number, why);
          break;
      }
    }
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
  return problem;
}

}  // namespace umts_fuzz
