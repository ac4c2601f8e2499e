/*
 * sibdump: BCH transport blocks (or whole SIBs) from a text file through libsibdecoder_umts,
 * one JSON line per converted block on standard output.
 */
#include <errno.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "parallel_feed.h"
#include "sibdump_inputs.h"
#include "summary.h"
#include "umts_rrc_rt.h"
#include "umts_sib_convert.h"
#include "umts_sib_decoder.h"
#include "umts_sib_json.h"
#include "umts_sib_log.h"

namespace {

constexpr size_t kMaxBchOctets = 64;
constexpr size_t kMaxSibOctets = 2048; /* what umts_sib_msg_decoder accepts */

const char kUsage[] =
    "Usage: sibdump [OPTIONS] [FILE...]\n"
    "       sibdump [OPTIONS] CAPTURE.pcap|CAPTURE.pcapng...\n"
    "       sibdump [OPTIONS] --udp [[ADDRESS:]PORT]\n"
    "\n"
    "Decodes the system information of a UMTS cell with libsibdecoder_umts and writes every\n"
    "block that the library converts as one JSON line on standard output.\n"
    "\n"
    "Input (FILE, or standard input when FILE is absent or '-'):\n"
    "  one BCH transport block per line, in hexadecimal; blanks may stand between the digits,\n"
    "  '#' starts a comment, empty lines are ignored. The blocks are handed in order to\n"
    "  umts_sib_decoder, which collects the segments of each SIB across blocks.\n"
    "\n"
    "  Or a pcap or pcapng capture (told by its first octets; %s) of\n"
    "  GSMTAP over UDP (port 4729) on Ethernet, Linux cooked capture (v1, v2) or raw IP. GSMTAP\n"
    "  UMTS RRC messages of sub-type BCCH-BCH go to umts_sib_decoder as transport blocks, those\n"
    "  of the whole-SIB sub-types (MIB, SIB1 ... SB2) to umts_sib_msg_decoder; anything else is\n"
    "  counted and skipped. Each cell (the sender's address and the GSMTAP ARFCN) has its\n"
    "  segments collected apart.\n"
    "\n"
    "  Several inputs are decoded apart, each from its first line or frame, and written in the\n"
    "  order given; each JSON line then starts with \"input\" (the file's name).\n"
    "\n"
    "Options:\n"
    "  --sibs             lines are whole SIBs, '<name> <hex>', handed to umts_sib_msg_decoder;\n"
    "                     names: %s\n"
    "  --asn1-text FILE   write the text that the library prints on standard output (the\n"
    "                     decoded ASN.1 values and its messages) to FILE; '-' means standard\n"
    "                     error. Without this option that text is discarded.\n"
    "  --log-level N      threshold of the library's log (zvtLogLevelThreshold): above 1 shows\n"
    "                     errors, above 5 also traces; written to standard error. Default 0.\n"
    "  --udp [[ADDRESS:]PORT]  listen for GSMTAP datagrams (as a phone-to-GSMTAP bridge sends\n"
    "                     them) on ADDRESS:PORT, default " SIBDUMP_UDP_DEFAULT "; records are written\n"
    "                     as they are decoded (written out whenever the socket goes quiet)\n"
    "                     until SIGINT (Ctrl-C) or SIGTERM, then a count summary per cell\n"
    "                     goes to standard error, with the datagrams that the kernel dropped\n"
    "                     because they came while the receive buffer was full\n"
    "  --udp-buffer SIZE  the receive buffer that --udp asks for, in bytes or with K or M\n"
    "                     (KiB, MiB); default 16M. Above net.core.rmem_max it takes\n"
    "                     CAP_NET_ADMIN; what is granted when less is said.\n"
    "  --summary[=FORMAT] instead of the records, one summary per cell once the input ends\n"
    "                     (for --udp: once interrupted): identity, access, cell selection\n"
    "                     and reselection, the broadcast schedule, common channels and\n"
    "                     neighbours, in names and units beside the coded values, and\n"
    "                     what was not received. FORMAT: text (default), json (one\n"
    "                     object per cell and line) or html (one self-contained page with\n"
    "                     the tables and a drawing of the schedule over the SFN cycle).\n"
    "  --jobs N           decode on N threads (default: the number of cores): several inputs\n"
    "                     at once, and the cells of a capture apart; the output is the same\n"
    "                     bytes as with --jobs 1\n"
    "  -h, --help         show this help\n"
    "\n"
    "Output: after each input line, one line per block converted by that call, e.g.\n"
    "  {\"line\":12,\"block\":\"sib3\",\"record\":{\"presence_bitmask\":1,...}}\n"
    "Fields appear under their names in the library's records; integers are numbers,\n"
    "booleans true/false, octet arrays hex strings, lists hold their used entries only,\n"
    "a choice shows its one chosen member, and optional fields appear only when present.\n"
    "\n"
    "Messages about bad input lines (bad hex digit, odd digit count, unknown SIB name, empty\n"
    "block, block too long: %u octets for BCH, %u for --sibs) go to standard error with the\n"
    "line number; the line is skipped. A summary ends the run on standard error.\n"
    "Captures and datagrams: each line starts with the frame (or datagram) number, its time\n"
    "(UTC), the sender and the ARFCN instead of the line number:\n"
    "  {\"frame\":3,\"time\":\"2026-01-01T00:00:00.040000Z\",\"source\":\"127.0.0.1\",\"arfcn\":10700,\n"
    "   \"block\":\"sib1\",\"record\":{...}}\n"
    "Frames too short for their headers, a damaged capture (reading stops there; the frames\n"
    "before it are kept) and bad GSMTAP headers are reported with the frame number.\n"
    "\n"
    "Exit status: 0 all lines (frames) read, 1 some were bad, 2 usage error or unreadable input.\n"
    "\n"
    "Example:\n"
    "  sibdump samples/fdd_cell.bch\n"
    "  sibdump --sibs --asn1-text asn1.txt samples/fdd_cell_sibs.txt | grep '\"block\":\"mib\"'\n"
    "  sibdump samples/fdd_cell.pcapng\n"
    "  sibdump --udp 127.0.0.1:4729\n";

/* Result sets kept from one input to the next on one thread (sibdump_run_file's): the
   library's set, which like any of its sets serves conversion after conversion, and the
   cells' record sets of a summary. Their pages are touched once, not for every input. */
struct Reuse {
  SetStore cells;
  umts_sib_set* library = nullptr;
  Reuse() = default;
  ~Reuse() { umts_sib_set_free(library); }
  Reuse(const Reuse&) = delete;
  Reuse& operator=(const Reuse&) = delete;
};

struct Options {
  bool sibs = false;
  bool help = false;
  std::vector<const char*> inputs;
  unsigned jobs = 0; /* 0: the number of cores */
  const char* asn1_text = nullptr;
  unsigned long log_level = 0;
  bool log_level_set = false;
  bool udp = false;
  const char* udp_address = nullptr; /* null: the default */
  size_t udp_buffer = 0;             /* 0: the default */
  const char* summary = nullptr;     /* "text", "json" or "html"; null: records */
  Reuse* reuse = nullptr;            /* null: each input's sets its own */
};

struct Counts {
  unsigned long lines = 0;
  unsigned long blocks = 0;
  unsigned long records = 0;
  unsigned long bad = 0;
};

/* The sub-records of umts_sib_set by their names, in slot order. */
std::string sib_names() {
  std::string names;
  for (uint32_t i = 0; i < umts_sib_count; i++) {
    if (!names.empty()) names += ", ";
    names += umts_sib_name(static_cast<umts_sib_id>(i));
  }
  return names + ", sib16";
}

int sib_id_of(const char* name, size_t length) {
  const umts_sib_id id = umts_sib_id_of_name(name, length);
  return id == umts_sib_count ? -1 : static_cast<int>(id);
}

void usage_text(FILE* out) {
#ifdef UMTS_NO_CAPTURE_REASON
  const char* capture = "NOT AVAILABLE: " UMTS_NO_CAPTURE_REASON;
#else
  const char* capture = capture_input_available() ? "read through libpcap" : "NOT AVAILABLE: built without libpcap";
#endif
  std::fprintf(out, kUsage, capture,
               sib_names().c_str(), static_cast<unsigned>(kMaxBchOctets),
               static_cast<unsigned>(kMaxSibOctets));
}

bool parse_args(int argc, char** argv, Options* opt) {
  for (int i = 1; i < argc; i++) {
    const char* a = argv[i];
    const char* value = nullptr;
    auto take_value = [&](const char* name) -> bool {
      const size_t n = std::strlen(name);
      if (std::strncmp(a, name, n) != 0) return false;
      if (a[n] == '=') {
        value = a + n + 1;
        return true;
      }
      if (a[n] != '\0') return false;
      if (i + 1 >= argc) {
        std::fprintf(stderr, "sibdump: option %s needs a value\n", name);
        value = nullptr;
        return true;
      }
      value = argv[++i];
      return true;
    };
    if (std::strcmp(a, "-h") == 0 || std::strcmp(a, "--help") == 0) {
      opt->help = true;
    } else if (std::strcmp(a, "--sibs") == 0) {
      opt->sibs = true;
    } else if (std::strcmp(a, "--udp") == 0 || std::strncmp(a, "--udp=", 6) == 0) {
      /* The address is optional: the next argument is it unless it is an option. */
      opt->udp = true;
      if (a[5] == '=') opt->udp_address = a + 6;
      else if (i + 1 < argc && argv[i + 1][0] != '-') opt->udp_address = argv[++i];
    } else if (std::strcmp(a, "--summary") == 0 || std::strncmp(a, "--summary=", 10) == 0) {
      opt->summary = a[9] == '=' ? a + 10 : "text";
      if (std::strcmp(opt->summary, "text") != 0 && std::strcmp(opt->summary, "json") != 0 &&
          std::strcmp(opt->summary, "html") != 0) {
        std::fprintf(stderr, "sibdump: --summary takes text, json or html, not '%s'\n", opt->summary);
        return false;
      }
    } else if (take_value("--udp-buffer")) {
      if (value == nullptr) return false;
      char* end = nullptr;
      errno = 0;
      const unsigned long long size = std::strtoull(value, &end, 10);
      const unsigned long long unit = *end == 'K' || *end == 'k' ? 1ull << 10 : *end == 'M' || *end == 'm' ? 1ull << 20 : 1;
      if (unit != 1) end++;
      if (*value < '0' || *value > '9' || *end != '\0' || errno != 0 || size == 0 || size > (1ull << 30) / unit) {
        std::fprintf(stderr, "sibdump: --udp-buffer needs a size of 1 byte to 1024M (e.g. 65536, 512K, 16M), not '%s'\n",
                     value);
        return false;
      }
      opt->udp_buffer = static_cast<size_t>(size * unit);
    } else if (take_value("--asn1-text")) {
      if (value == nullptr) return false;
      opt->asn1_text = value;
    } else if (take_value("--jobs")) {
      if (value == nullptr) return false;
      char* end = nullptr;
      errno = 0;
      const unsigned long jobs = std::strtoul(value, &end, 10);
      if (*value == '\0' || *end != '\0' || errno != 0 || *value == '-' || jobs == 0 || jobs > 1024) {
        std::fprintf(stderr, "sibdump: --jobs needs a number from 1 to 1024, not '%s'\n", value);
        return false;
      }
      opt->jobs = static_cast<unsigned>(jobs);
    } else if (take_value("--log-level")) {
      if (value == nullptr) return false;
      char* end = nullptr;
      errno = 0;
      opt->log_level = std::strtoul(value, &end, 10);
      if (*value == '\0' || *end != '\0' || errno != 0 || *value == '-' || opt->log_level > 0xFFFFFFFFul) {
        std::fprintf(stderr, "sibdump: --log-level needs a number, not '%s'\n", value);
        return false;
      }
      opt->log_level_set = true;
    } else if (a[0] == '-' && a[1] != '\0') {
      std::fprintf(stderr, "sibdump: unknown option '%s'\n", a);
      return false;
    } else {
      opt->inputs.push_back(a);
    }
  }
  if (opt->udp && (!opt->inputs.empty() || opt->sibs)) {
    std::fprintf(stderr, "sibdump: --udp reads no file and no --sibs\n");
    return false;
  }
  if (opt->udp_buffer != 0 && !opt->udp) {
    std::fprintf(stderr, "sibdump: --udp-buffer goes with --udp\n");
    return false;
  }
  return true;
}

/* Value of a hex digit, -1 for any other byte. */
struct HexTable {
  int8_t value[256];
  HexTable() {
    for (int c = 0; c < 256; c++) value[c] = -1;
    for (int c = '0'; c <= '9'; c++) value[c] = static_cast<int8_t>(c - '0');
    for (int c = 'a'; c <= 'f'; c++) value[c] = static_cast<int8_t>(c - 'a' + 10);
    for (int c = 'A'; c <= 'F'; c++) value[c] = static_cast<int8_t>(c - 'A' + 10);
  }
};
const HexTable kHex;

int hex_value(unsigned char c) { return kHex.value[c]; }

/* Value of two hex digits, indexed by the first in the high byte; -1 where either is none. */
struct HexPairTable {
  int16_t value[1 << 16];
  HexPairTable() {
    for (int hi = 0; hi < 256; hi++)
      for (int lo = 0; lo < 256; lo++)
        value[hi << 8 | lo] = kHex.value[hi] < 0 || kHex.value[lo] < 0 ? int16_t(-1) : int16_t(kHex.value[hi] << 4 | kHex.value[lo]);
  }
};
const HexPairTable kHexPairs;

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f'; }

/* Hex digits of text[0..length) into out; blanks are skipped. Returns false with a message. */
bool parse_hex(const char* text, size_t length, uint8_t* out, size_t capacity, size_t* octets, char* why,
               size_t why_size) {
  size_t digits = 0;
  size_t i = 0;
  /* Pairs of digits, as a line of hex without blanks is made of, an octet at a time. */
  const size_t pairs = std::min(length / 2, capacity);
  for (size_t k = 0; k < pairs; k++) {
    const int v = kHexPairs.value[static_cast<unsigned char>(text[2 * k]) << 8 | static_cast<unsigned char>(text[2 * k + 1])];
    if (v < 0) break;
    out[k] = static_cast<uint8_t>(v);
    i += 2;
  }
  digits = i;
  for (; i < length; i++) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    const int v = hex_value(c);
    if (v < 0 && is_blank(static_cast<char>(c))) continue;
    if (v < 0) {
      if (c >= 0x20 && c < 0x7F) std::snprintf(why, why_size, "bad hex digit '%c' at column %zu", c, i + 1);
      else std::snprintf(why, why_size, "bad hex digit (byte 0x%02x) at column %zu", c, i + 1);
      return false;
    }
    if (digits / 2 < capacity) {
      if (digits % 2 == 0) out[digits / 2] = static_cast<uint8_t>(v << 4);
      else out[digits / 2] |= static_cast<uint8_t>(v);
    }
    digits++;
  }
  if (digits % 2 != 0) {
    std::snprintf(why, why_size, "odd number of hex digits (%zu)", digits);
    return false;
  }
  *octets = digits / 2;
  if (*octets > capacity) {
    std::snprintf(why, why_size, "block of %zu octets is longer than %zu", *octets, capacity);
    return false;
  }
  return true;
}

/* JSON lines gathered in one buffer and written in large pieces. */
class JsonLines {
 public:
  explicit JsonLines(FILE* out) : out_(out) { own_.reserve(kInitial); }
  /* The lines go to the buffer at `*where` (which may change between lines) and stay there
     for its owner to write: none of the stream's own (a megabyte, for each of a capture's
     cells when they are decoded on several threads). */
  explicit JsonLines(TextBuffer* const* where) : out_(nullptr), where_(where) {}
  JsonLines(const JsonLines&) = delete;
  JsonLines& operator=(const JsonLines&) = delete;

  bool ok() const { return own_.data != nullptr; }

  /* Members that start every line ("input":"<name>",), or empty. */
  void set_prefix(std::string prefix) { prefix_ = std::move(prefix); }

  /* {"line":N,"block":"<name>","record":<record>}\n */
  void record(unsigned long line, const umts_sib_set* set, umts_sib_id id) {
    put_head(line, umts_sib_name(id));
    put_record(set, id);
  }

  /* {<head>,"block":"<name>","record":<record>}\n, `head` being members of the object. */
  void record(const std::string& head, const umts_sib_set* set, umts_sib_id id) {
    put("{", 1);
    put(prefix_.data(), prefix_.size());
    put(head.data(), head.size());
    put(",\"block\":\"", 10);
    const char* name = umts_sib_name(id);
    put(name, std::strlen(name));
    put("\",\"record\":", 11);
    put_record(set, id);
  }

  /* <record>}\n */
  void put_record(const umts_sib_set* set, umts_sib_id id) {
    put_json([set, id](char* buf, size_t size) { return umts_sib_record_json(set, id, buf, size); });
  }

  /* {"line":N,"block":"sib16","record":<umts_sib16_info>}\n */
  void sib16(unsigned long line, const umts_sib16_info* sib16) {
    put_head(line, "sib16");
    put_json([sib16](char* buf, size_t size) { return umts_sib16_json(sib16, buf, size); });
  }

  /* The text of `write` (a JSON writer of the library), then }\n. */
  template <class Write>
  void put_json(Write write) {
    TextBuffer& b = **where_;
    size_t room = b.cap - b.len;
    size_t need = write(b.data + b.len, room);
    if (need >= room) {
      /* A record larger than the room left: write out what is gathered, grow if needed. */
      write_out();
      b.reserve(need + 3);
      need = write(b.data + b.len, b.cap - b.len);
    }
    b.len += need;
    put("}\n", 2);
    if (b.len >= kWriteAt) write_out();
  }

  /* {"line":N,"block":"<name>","record": */
  void put_head(unsigned long line, const char* name) {
    put("{", 1);
    put(prefix_.data(), prefix_.size());
    char head[96];
    char* p = head;
    std::memcpy(p, "\"line\":", 7);
    p += 7;
    char digits[24];
    size_t n = 0;
    do {
      digits[n++] = static_cast<char>('0' + line % 10u);
      line /= 10u;
    } while (line != 0);
    while (n > 0) *p++ = digits[--n];
    std::memcpy(p, ",\"block\":\"", 10);
    p += 10;
    put(head, static_cast<size_t>(p - head));
    put(name, std::strlen(name));
    put("\",\"record\":", 11);
  }

  /* Everything gathered goes to the stream. */
  void write_out() {
    if (out_ == nullptr) return;
    if (own_.len > 0) std::fwrite(own_.data, 1, own_.len, out_);
    own_.len = 0;
  }

 private:
  static constexpr size_t kInitial = 1u << 20;
  static constexpr size_t kWriteAt = 1u << 19;

  void put(const char* s, size_t n) {
    TextBuffer& b = **where_;
    if (b.cap - b.len < n) write_out();
    b.append(s, n);
  }

  FILE* out_; /* null: the lines stay in the buffer */
  TextBuffer own_;
  TextBuffer* own_at_ = &own_;
  TextBuffer* const* where_ = &own_at_;
  std::string prefix_;
};

/* One stream of decoding: an input, or one cell of a capture decoded on several threads. */
struct Dumper {
  Dumper(JsonLines& j, const char* name, umts_sib_set* s) : json(j), input_name(name), set(s) {}
  JsonLines& json;
  const char* input_name;
  umts_sib_set* set;
  umts_sib_decoder_t* decoder = nullptr; /* text input: the input's stream */
  FILE* messages = stderr;
  FILE* text = nullptr;                  /* where the decoders' text goes, or null */
  Counts counts;
  CellCollection* cells = nullptr;   /* --summary: the records are collected here */
  SummaryWriter* summaries = nullptr; /* and the summaries written here */
  /* A cell of a capture decoded on several threads: what must reach the summary writer goes
     through here, in the order of the frames, into `order` (the cells in the order first
     heard). */
  CellOutput* cell_out = nullptr;
  std::vector<const CellRecords*>* order = nullptr;
  /* --summary of a capture: each cell's records in `cells`, by the feed's object of the cell. */
  std::unordered_map<const CellKey*, CellRecords*> cell_records;
};

/* Bits set in the set's presence_bitmask: the blocks the last call converted. */
size_t converted(const umts_sib_set* set) {
  size_t n = 0;
  for (uint32_t i = 0; i < umts_sib_count; i++) n += (set->presence_bitmask >> i) & 1u;
  return n;
}

/* The records of the last call join `cell`'s (`created` by this call or not); a MIB with a
   new value tag first ends the configuration collected so far, whose summary is written then. */
void collect_into(Dumper& d, CellRecords& cell, bool created) {
  std::vector<SummaryNode> ended;
  d.cells->take(cell, d.set, &ended);
  if (d.cell_out == nullptr) {
    for (const SummaryNode& n : ended) d.summaries->write(n);
    return;
  }
  if (created) {
    const CellRecords* c = &cell;
    std::vector<const CellRecords*>* order = d.order;
    d.cell_out->defer([order, c] { order->push_back(c); });
  }
  for (SummaryNode& n : ended) {
    SummaryWriter* summaries = d.summaries;
    auto node = std::make_shared<SummaryNode>(std::move(n));
    d.cell_out->defer([summaries, node] { summaries->write(*node); });
  }
}

/* The same into the cell of `key`, made with `label` the first time. */
void collect(Dumper& d, const std::string& key, const std::string& label) {
  if (d.set->presence_bitmask == 0) return;
  const size_t before = d.cells->cells().size();
  CellRecords& cell = d.cells->cell(key, label);
  collect_into(d, cell, d.cells->cells().size() != before);
}

/* The records of a capture's cell in the collection; one that the collection does not have
   yet is made when `create` holds ("source 127.0.0.1, ARFCN 10700"), null otherwise. */
CellRecords* records_of(Dumper& d, const CellKey& cell, bool create, bool* created) {
  const auto known = d.cell_records.find(&cell);
  if (known != d.cell_records.end()) return known->second;
  if (!create) return nullptr;
  const std::string arfcn = std::to_string(cell.second);
  const size_t before = d.cells->cells().size();
  CellRecords* records = &d.cells->cell(cell.first + '/' + arfcn, "source " + cell.first + ", ARFCN " + arfcn);
  *created = d.cells->cells().size() != before;
  d.cell_records.emplace(&cell, records);
  return records;
}

void bad_line(Dumper& d, unsigned long line, const char* why) {
  /* The text may be going to standard error too: keep the order readable. */
  if (d.decoder != nullptr) umts_sib_decoder_print_flush(d.decoder);
  std::fflush(stdout);
  std::fprintf(d.messages, "sibdump: %s:%lu: %s\n", d.input_name, line, why);
  d.counts.bad++;
}

/* A whole SIB16: not a block of umts_sib_set, so sibdump decodes it itself, with its own
   context and decoded area, through the stream's decoder. A failed decode is a bad line. */
void convert_sib16(Dumper& d, unsigned long line, uint8_t* bytes, size_t octets) {
  std::vector<uint64_t> area((8 + sizeof(SysInfoType16)) / 8 + 1);
  std::unique_ptr<umts_sib16_info> record(new umts_sib16_info);
  rtxContext ctx;
  int status = rtInitContext(&ctx);
  if (status == 0) status = pu_setBuffer(&ctx, bytes, static_cast<uint32_t>(octets), 0);
  if (status == 0) status = umts_sib_decoder_convert_sib16(d.decoder, &ctx, area.data(), record.get());
  rtFreeContext(&ctx);
  if (status != 0) {
    char why[96];
    std::snprintf(why, sizeof why, "SIB16 decoding failed (status %d)", status);
    bad_line(d, line, why);
    return;
  }
  if (d.cells == nullptr) d.json.sib16(line, record.get()); /* a summary does not show SIB16 */
  d.counts.records++;
}

/* One JSON line per sub-record whose presence bit the last call set. */
void write_records(Dumper& d, unsigned long line) {
  if (d.cells != nullptr) {
    collect(d, "", d.input_name);
    d.counts.records += converted(d.set);
    return;
  }
  const uint32_t present = d.set->presence_bitmask;
  for (uint32_t i = 0; i < umts_sib_count; i++) {
    if (((present >> i) & 1u) == 0) continue;
    d.json.record(line, d.set, static_cast<umts_sib_id>(i));
    d.counts.records++;
  }
}

/* The same, each line starting with the members `head` (a capture's frame, time and cell).
   Returns the number of lines. */
size_t write_records(Dumper& d, const std::string& head, const CellKey& cell) {
  if (d.cells != nullptr) {
    if (d.set->presence_bitmask != 0) {
      bool created = false;
      CellRecords* records = records_of(d, cell, true, &created);
      collect_into(d, *records, created);
    }
    d.counts.records += converted(d.set);
    return converted(d.set);
  }
  size_t written = 0;
  const uint32_t present = d.set->presence_bitmask;
  for (uint32_t i = 0; i < umts_sib_count; i++) {
    if (((present >> i) & 1u) == 0) continue;
    d.json.record(head, d.set, static_cast<umts_sib_id>(i));
    d.counts.records++;
    written++;
  }
  return written;
}

/* Where a capture's records go (and, with a summary, its blocks). */
RecordOutput record_output(Dumper& d) {
  RecordOutput output{[&d](const std::string& head, const CellKey& cell) { return write_records(d, head, cell); },
                      nullptr};
  if (d.cells != nullptr)
    output.block = [&d](const std::string&, const CellKey& cell, const uint8_t* block, size_t length,
                        const umts_decoder_ctxt* state) {
      CellRecords* records = records_of(d, cell, false, nullptr);
      if (records == nullptr) return;
      records->take_block(block, length);
      records->take_collection(state);
    };
  return output;
}

void process_line(Dumper& d, bool sibs, unsigned long line, char* text, size_t length) {
  /* A comment runs to the end of the line. */
  const char* hash = static_cast<const char*>(std::memchr(text, '#', length));
  if (hash != nullptr) length = static_cast<size_t>(hash - text);
  size_t start = 0;
  while (start < length && is_blank(text[start])) start++;
  if (start == length) return;

  uint8_t bytes[kMaxSibOctets];
  char why[160];
  size_t octets = 0;
  d.counts.lines++;
  if (!sibs) {
    if (!parse_hex(text + start, length - start, bytes, kMaxBchOctets, &octets, why, sizeof why)) {
      bad_line(d, line, why);
      return;
    }
    d.counts.blocks++;
    d.set->presence_bitmask = 0;
    umts_sib_decoder_feed_block(d.decoder, bytes, d.set, static_cast<uint32_t>(octets));
    write_records(d, line);
    if (d.cells != nullptr && d.cells->has("")) {
      CellRecords& cell = d.cells->cell("", d.input_name);
      cell.take_block(bytes, octets);
      cell.take_collection(umts_sib_decoder_state(d.decoder));
    }
    return;
  }

  size_t name_end = start;
  while (name_end < length && !is_blank(text[name_end])) name_end++;
  const int id = sib_id_of(text + start, name_end - start);
  const bool sib16 = name_end - start == 5 && std::memcmp(text + start, "sib16", 5) == 0;
  if (id < 0 && !sib16) {
    std::snprintf(why, sizeof why, "unknown SIB name '%.*s' (expected one of %s)", static_cast<int>(name_end - start),
                  text + start, sib_names().c_str());
    bad_line(d, line, why);
    return;
  }
  if (!parse_hex(text + name_end, length - name_end, bytes, kMaxSibOctets, &octets, why, sizeof why)) {
    bad_line(d, line, why);
    return;
  }
  if (octets == 0) {
    bad_line(d, line, "empty block: no hex digits after the SIB name");
    return;
  }
  d.counts.blocks++;
  if (sib16) {
    convert_sib16(d, line, bytes, octets);
    return;
  }
  d.set->presence_bitmask = 0;
  umts_sib_decoder_feed_sib(d.decoder, static_cast<umts_sib_id>(id), bytes, d.set, static_cast<uint32_t>(octets));
  write_records(d, line);
}

/* Standard output becomes the library's; JSON keeps the original descriptor. Returns the
   JSON stream, or null with a message. */
FILE* split_stdout(const char* asn1_text) {
  std::fflush(stdout);
  const int json_fd = dup(STDOUT_FILENO);
  if (json_fd < 0) {
    std::fprintf(stderr, "sibdump: cannot duplicate standard output: %s\n", std::strerror(errno));
    return nullptr;
  }
  int target;
  if (asn1_text == nullptr) target = open("/dev/null", O_WRONLY);
  else if (std::strcmp(asn1_text, "-") == 0) target = dup(STDERR_FILENO);
  else target = open(asn1_text, O_WRONLY | O_CREAT | O_TRUNC, 0644);
  if (target < 0) {
    std::fprintf(stderr, "sibdump: cannot open '%s' for the ASN.1 text: %s\n",
                 asn1_text != nullptr ? asn1_text : "/dev/null", std::strerror(errno));
    close(json_fd);
    return nullptr;
  }
  if (dup2(target, STDOUT_FILENO) < 0) {
    std::fprintf(stderr, "sibdump: cannot redirect standard output: %s\n", std::strerror(errno));
    close(target);
    close(json_fd);
    return nullptr;
  }
  close(target);
  if (asn1_text == nullptr) {
    /* Discarded: the library formats no ASN.1 text at all; its few messages still go to
       standard output, which is /dev/null now. */
    umts_sib_print_to(nullptr);
  } else {
    static char text_buffer[1 << 20];
    std::setvbuf(stdout, text_buffer, _IOFBF, sizeof text_buffer);
    umts_sib_print_to(stdout);
  }
  FILE* json = fdopen(json_fd, "w");
  if (json == nullptr) {
    std::fprintf(stderr, "sibdump: cannot write JSON: %s\n", std::strerror(errno));
    close(json_fd);
    return nullptr;
  }
  static char json_buffer[1 << 16];
  std::setvbuf(json, json_buffer, _IOFBF, sizeof json_buffer);
  return json;
}

/* Where one input's output goes. */
struct Outputs {
  FILE* json;
  FILE* text; /* the decoders' ASN.1 text and messages, or null */
  FILE* messages;
};

/* A result set from the library, or exit on a shortage. */
umts_sib_set* new_set() {
  umts_sib_set* set = umts_sib_set_alloc();
  if (set == nullptr) {
    std::fprintf(stderr, "sibdump: out of memory\n");
    std::exit(2);
  }
  return set;
}

/* A capture's cells on `jobs` threads, each cell with its own record writer and collection
   of cells, each thread with its own result set; the summaries and the cells' order are kept
   on this thread. */
int run_parallel_capture(const Options& opt, FILE* in, const char* name, const Outputs& out, const std::string& prefix,
                         SummaryWriter& summaries, std::vector<const CellRecords*>& order, unsigned jobs) {
  struct Cell {
    std::unique_ptr<JsonLines> json;
    std::unique_ptr<CellCollection> cells;
    std::unique_ptr<Dumper> dumper;
  };
  std::vector<std::unique_ptr<Cell>> cells;
  auto make_feed = [&](CellOutput& co) {
    std::unique_ptr<Cell> c(new Cell);
    c->json.reset(new JsonLines(co.records_buffer()));
    c->json->set_prefix(prefix);
    c->dumper.reset(new Dumper(*c->json, name, nullptr));
    Dumper& d = *c->dumper;
    d.messages = co.messages();
    d.text = out.text != nullptr ? co.text() : nullptr;
    if (opt.summary != nullptr) {
      c->cells.reset(new CellCollection);
      d.cells = c->cells.get();
      d.summaries = &summaries;
      d.cell_out = &co;
      d.order = &order;
    }
    CellDecoding decoding;
    decoding.feed.reset(new CellFeed(nullptr, record_output(d), name, "frame", d.messages, d.text));
    CellFeed* feed = decoding.feed.get();
    decoding.use_set = [&d, feed](umts_sib_set* set) {
      d.set = set;
      feed->use_set(set);
    };
    cells.push_back(std::move(c));
    return decoding;
  };
  int status;
  {
    ParallelFeed feed(jobs, make_feed, out.json, out.text, out.messages, "frame");
    status = run_capture(in, name, feed, out.messages);
  }
  /* The cells live in the collections of their own. */
  if (opt.summary != nullptr) summaries.finish(order);
  return status;
}

/* One input through its own decoders: records to out.json, text to out.text, messages and
   counts to out.messages. `label` names the input in the counts when there are several. The
   cells of a capture are decoded on `jobs` threads. Returns the exit status. */
int run_input(const Options& opt, const char* path, const Outputs& out, const std::string& prefix, bool several,
              unsigned jobs) {
  FILE* in = stdin;
  const char* input_name = "<stdin>";
  if (path != nullptr && std::strcmp(path, "-") != 0) {
    in = std::fopen(path, "r");
    if (in == nullptr) {
      std::fprintf(out.messages, "sibdump: cannot open '%s': %s\n", path, std::strerror(errno));
      return 2;
    }
    input_name = path;
  }
  bool capture = false;
  if ((in = peek_input(in, input_name, &capture)) == nullptr) return 2;

  /* The result record is large (fixed arrays of SIB5): one for the whole input, from the
     library, which then clears each record by what the conversion before wrote instead of
     writing zeros over all of it. */
  umts_sib_set* set = nullptr;
  if (opt.reuse != nullptr) std::swap(set, opt.reuse->library);
  if (set == nullptr) set = new_set();
  /* Back to `opt.reuse`, or freed, once the input is done. */
  auto release_set = [&opt, set] {
    if (opt.reuse != nullptr)
      opt.reuse->library = set;
    else
      umts_sib_set_free(set);
  };
  JsonLines lines(out.json);
  if (!lines.ok()) {
    std::fprintf(stderr, "sibdump: out of memory\n");
    std::exit(2);
  }
  lines.set_prefix(prefix);
  Dumper d(lines, input_name, set);
  d.messages = out.messages;
  d.text = out.text;
  CellCollection cells(opt.reuse != nullptr ? &opt.reuse->cells : nullptr);
  SummaryWriter summaries(out.json, opt.summary != nullptr ? opt.summary : "text");
  if (opt.summary != nullptr) {
    d.cells = &cells;
    d.summaries = &summaries;
  }
  int status;
  if (capture) {
    /* run_capture closes `in`. */
    if (jobs > 1) {
      std::vector<const CellRecords*> order;
      status = run_parallel_capture(opt, in, input_name, out, prefix, summaries, order, jobs);
    } else {
      {
        CellFeed feed(set, record_output(d), input_name, "frame", out.messages, out.text);
        status = run_capture(in, input_name, feed, out.messages);
      }
      lines.write_out();
      if (opt.summary != nullptr) summaries.finish(cells);
    }
    release_set();
    return status;
  }

  d.decoder = umts_sib_decoder_new();
  if (d.decoder == nullptr) {
    std::fprintf(stderr, "sibdump: out of memory\n");
    std::exit(2);
  }
  umts_sib_decoder_print_to(d.decoder, out.text);
  char* text = nullptr;
  size_t capacity = 0;
  unsigned long line = 0;
  ssize_t length;
  while ((length = getline(&text, &capacity, in)) >= 0) {
    line++;
    process_line(d, opt.sibs, line, text, static_cast<size_t>(length));
  }
  const bool read_error = std::ferror(in) != 0;
  std::free(text);
  std::fclose(in);
  lines.write_out();
  if (opt.summary != nullptr) summaries.finish(cells);
  umts_sib_decoder_free(d.decoder); /* hands over its last text */
  release_set();

  if (several)
    std::fprintf(out.messages, "sibdump: %s: %lu %s read, %lu records written, %lu bad lines\n", input_name,
                 d.counts.blocks, opt.sibs ? "SIBs" : "blocks", d.counts.records, d.counts.bad);
  else
    std::fprintf(out.messages, "sibdump: %lu %s read, %lu records written, %lu bad lines\n", d.counts.blocks,
                 opt.sibs ? "SIBs" : "blocks", d.counts.records, d.counts.bad);
  if (read_error) {
    std::fprintf(out.messages, "sibdump: error reading %s\n", input_name);
    return 2;
  }
  return d.counts.bad != 0 ? 1 : 0;
}

/* `from` (a temporary file) appended to `to`. */
void copy_out(FILE* from, FILE* to) {
  if (from == nullptr || to == nullptr) return;
  std::fflush(from);
  std::rewind(from);
  char buf[1 << 16];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, from)) > 0) std::fwrite(buf, 1, n, to);
}

/* "input":"<name>", with the name as a JSON string. */
std::string input_member(const char* name) {
  std::string m = "\"input\":\"";
  for (const char* p = name; *p != '\0'; p++) {
    const unsigned char c = static_cast<unsigned char>(*p);
    if (c == '"' || c == '\\') {
      m += '\\';
      m += static_cast<char>(c);
    } else if (c < 0x20) {
      char esc[8];
      std::snprintf(esc, sizeof esc, "\\u%04x", c);
      m += esc;
    } else {
      m += static_cast<char>(c);
    }
  }
  return m + "\",";
}

/* Several inputs on `jobs` threads, each into temporary files that are written out in the
   order of the command line as soon as the inputs before are. */
int run_inputs(const Options& opt, const Outputs& out, unsigned jobs) {
  const size_t n = opt.inputs.size();
  struct Job {
    FILE* json = nullptr;
    FILE* text = nullptr;
    FILE* messages = nullptr;
    int status = 0;
    bool done = false;
  };
  std::vector<Job> jobs_of(n);
  std::mutex mutex;
  std::condition_variable finished;
  std::atomic<size_t> next(0);
  auto work = [&] {
    for (size_t k; (k = next.fetch_add(1)) < n;) {
      Job& j = jobs_of[k];
      j.json = std::tmpfile();
      j.messages = std::tmpfile();
      j.text = out.text != nullptr ? std::tmpfile() : nullptr;
      if (j.json == nullptr || j.messages == nullptr || (out.text != nullptr && j.text == nullptr)) {
        std::fprintf(stderr, "sibdump: cannot make a temporary file: %s\n", std::strerror(errno));
        std::exit(2);
      }
      const Outputs o{j.json, j.text, j.messages};
      const int status = run_input(opt, opt.inputs[k], o, input_member(opt.inputs[k]), true, 1);
      std::lock_guard<std::mutex> lock(mutex);
      j.status = status;
      j.done = true;
      finished.notify_all();
    }
  };
  std::vector<std::thread> threads;
  for (unsigned t = 0; t < jobs && t < n; t++) threads.emplace_back(work);
  int status = 0;
  for (size_t k = 0; k < n; k++) {
    Job& j = jobs_of[k];
    {
      std::unique_lock<std::mutex> lock(mutex);
      finished.wait(lock, [&] { return j.done; });
    }
    copy_out(j.messages, out.messages);
    copy_out(j.json, out.json);
    copy_out(j.text, out.text);
    for (FILE* f : {j.json, j.text, j.messages})
      if (f != nullptr) std::fclose(f);
    status = std::max(status, j.status);
  }
  for (std::thread& t : threads) t.join();
  return status;
}

}  // namespace

#ifdef SIBDUMP_LIBRARY
/* sibdump over one input inside the calling process: the archive's tasks decode their files
   this way, where a process started for each file cost more than the file's decoding. As
   `sibdump [--summary=FORMAT] --jobs 1 PATH` (`summary` null: the records), with what it
   writes on standard output gathered in *out and what it writes on standard error in *err,
   each released with sibdump_free. Returns sibdump's exit status. Any thread, one input each. */
extern "C" __attribute__((visibility("default"))) int sibdump_run_file(const char* path, const char* summary,
                                                                      char** out, size_t* out_length, char** err,
                                                                      size_t* err_length) {
  *out = *err = nullptr;
  *out_length = *err_length = 0;
  FILE* json = open_memstream(out, out_length);
  FILE* messages = open_memstream(err, err_length);
  if (json == nullptr || messages == nullptr) {
    if (json != nullptr) std::fclose(json);
    if (messages != nullptr) std::fclose(messages);
    return 2;
  }
  /* A host calls this file after file, on the same thread or a few (a Dask worker's): the
     sets of one call serve the next on its thread, and go when the thread ends. */
  static thread_local Reuse reuse;
  Options opt;
  opt.inputs.push_back(path);
  opt.jobs = 1;
  opt.summary = summary;
  opt.reuse = &reuse;
  const Outputs o{json, nullptr, messages};
  int status = run_input(opt, path, o, "", false, 1);
  if (std::fclose(json) != 0) status = 2;
  std::fclose(messages);
  return status;
}

extern "C" __attribute__((visibility("default"))) void sibdump_free(char* text) { std::free(text); }
#else
int main(int argc, char** argv) {
  Options opt;
  if (!parse_args(argc, argv, &opt)) {
    std::fprintf(stderr, "Try 'sibdump --help'.\n");
    return 2;
  }
  if (opt.help) {
    usage_text(stdout);
    return 0;
  }
  unsigned jobs = opt.jobs;
  if (jobs == 0) {
    jobs = std::thread::hardware_concurrency();
    if (jobs == 0) jobs = 1;
  }

  FILE* json = split_stdout(opt.asn1_text);
  if (json == nullptr) return 2;
  if (opt.log_level_set) zvtLogLevelThreshold = static_cast<unsigned int>(opt.log_level);
  /* The decoders' text goes where standard output now goes (the --asn1-text file), or
     nowhere. */
  const Outputs out{json, opt.asn1_text != nullptr ? stdout : nullptr, stderr};

  int status;
  if (opt.udp) {
    umts_sib_set* set = new_set();
    JsonLines lines(json);
    Dumper d(lines, "udp", set);
    d.text = out.text;
    CellCollection cells;
    SummaryWriter summaries(json, opt.summary != nullptr ? opt.summary : "text");
    if (opt.summary != nullptr) {
      d.cells = &cells;
      d.summaries = &summaries;
    }
    RecordOutput output = record_output(d);
    /* Live records reach the stream whenever the socket goes quiet. */
    output.flush = [&lines, json, &out] {
      lines.write_out();
      std::fflush(json);
      if (out.text != nullptr) std::fflush(out.text);
    };
    UdpInput input;
    input.address = opt.udp_address;
    input.buffer = opt.udp_buffer;
    input.dropped = [&summaries](uint64_t dropped) { summaries.set_dropped(dropped); };
    summaries.set_dropped(0);
    status = run_udp(input, set, output, out.text);
    lines.write_out();
    if (opt.summary != nullptr) summaries.finish(cells);
    umts_sib_set_free(set);
  } else if (opt.inputs.size() <= 1) {
    status = run_input(opt, opt.inputs.empty() ? nullptr : opt.inputs[0], out, "", false, jobs);
  } else if (jobs == 1) {
    status = 0;
    for (const char* input : opt.inputs)
      status = std::max(status, run_input(opt, input, out, input_member(input), true, 1));
  } else {
    status = run_inputs(opt, out, jobs);
  }
  std::fflush(stdout);
  if (std::fclose(json) != 0) {
    std::fprintf(stderr, "sibdump: error writing the JSON output\n");
    return 2;
  }
  return status;
}
#endif
