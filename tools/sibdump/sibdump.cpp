/*
 * sibdump: BCH transport blocks (or whole SIBs) from a text file through libsibdecoder_umts,
 * one JSON line per converted block on standard output.
 */
#include <errno.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

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
    "Usage: sibdump [OPTIONS] [FILE]\n"
    "       sibdump [OPTIONS] CAPTURE.pcap|CAPTURE.pcapng\n"
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
    "                     as they are decoded until SIGINT (Ctrl-C) or SIGTERM, then a count\n"
    "                     summary per cell goes to standard error\n"
    "  --summary[=FORMAT] instead of the records, one summary per cell once the input ends\n"
    "                     (for --udp: once interrupted): identity, access, cell selection\n"
    "                     and reselection, the broadcast schedule, common channels and\n"
    "                     neighbours, in names and units beside the coded values, and\n"
    "                     what was not received. FORMAT: text (default), json (one\n"
    "                     object per cell and line) or html (one self-contained page with\n"
    "                     the tables and a drawing of the schedule over the SFN cycle).\n"
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

struct Options {
  bool sibs = false;
  bool help = false;
  const char* input = nullptr;
  const char* asn1_text = nullptr;
  unsigned long log_level = 0;
  bool log_level_set = false;
  bool udp = false;
  const char* udp_address = nullptr; /* null: the default */
  const char* summary = nullptr;     /* "text", "json" or "html"; null: records */
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
  std::fprintf(out, kUsage, capture_input_available() ? "read through libpcap" : "NOT AVAILABLE: built without libpcap",
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
    } else if (take_value("--asn1-text")) {
      if (value == nullptr) return false;
      opt->asn1_text = value;
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
    } else if (opt->input != nullptr) {
      std::fprintf(stderr, "sibdump: one input file only ('%s' and '%s')\n", opt->input, a);
      return false;
    } else {
      opt->input = a;
    }
  }
  if (opt->udp && (opt->input != nullptr || opt->sibs)) {
    std::fprintf(stderr, "sibdump: --udp reads no file and no --sibs\n");
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
  explicit JsonLines(FILE* out) : out_(out), buf_(static_cast<char*>(std::malloc(kInitial))), cap_(kInitial) {}
  ~JsonLines() { std::free(buf_); }
  JsonLines(const JsonLines&) = delete;
  JsonLines& operator=(const JsonLines&) = delete;

  bool ok() const { return buf_ != nullptr; }

  /* {"line":N,"block":"<name>","record":<record>}\n */
  void record(unsigned long line, const umts_sib_set* set, umts_sib_id id) {
    put_head(line, umts_sib_name(id));
    put_record(set, id);
  }

  /* {<head>,"block":"<name>","record":<record>}\n, `head` being members of the object. */
  void record(const std::string& head, const umts_sib_set* set, umts_sib_id id) {
    put("{", 1);
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
    size_t room = cap_ - len_;
    size_t need = write(buf_ + len_, room);
    if (need >= room) {
      /* A record larger than the room left: write out what is gathered, grow if needed. */
      write_out();
      reserve(need + 3);
      need = write(buf_ + len_, cap_ - len_);
    }
    len_ += need;
    put("}\n", 2);
    if (len_ >= kWriteAt) write_out();
  }

  /* {"line":N,"block":"<name>","record": */
  void put_head(unsigned long line, const char* name) {
    char head[96];
    char* p = head;
    std::memcpy(p, "{\"line\":", 8);
    p += 8;
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
    if (len_ > 0) std::fwrite(buf_, 1, len_, out_);
    len_ = 0;
  }

 private:
  static constexpr size_t kInitial = 1u << 20;
  static constexpr size_t kWriteAt = 1u << 19;

  void reserve(size_t more) {
    if (cap_ - len_ >= more) return;
    size_t cap = cap_;
    while (cap - len_ < more) cap *= 2;
    char* grown = static_cast<char*>(std::realloc(buf_, cap));
    if (grown == nullptr) {
      std::fprintf(stderr, "sibdump: out of memory\n");
      std::exit(2);
    }
    buf_ = grown;
    cap_ = cap;
  }
  void put(const char* s, size_t n) {
    if (cap_ - len_ < n) {
      write_out();
      reserve(n);
    }
    std::memcpy(buf_ + len_, s, n);
    len_ += n;
  }

  FILE* out_;
  char* buf_;
  size_t cap_;
  size_t len_ = 0;
};

struct Dumper {
  JsonLines& json;
  const char* input_name;
  umts_sib_set* set;
  Counts counts;
  CellCollection* cells = nullptr;   /* --summary: the records are collected here */
  SummaryWriter* summaries = nullptr; /* and the summaries written here */
};

/* Bits set in the set's presence_bitmask: the blocks the last call converted. */
size_t converted(const umts_sib_set* set) {
  size_t n = 0;
  for (uint32_t i = 0; i < umts_sib_count; i++) n += (set->presence_bitmask >> i) & 1u;
  return n;
}

/* The cell of a capture line's members: what follows "source" ("...","arfcn":N). */
std::string cell_key(const std::string& head) {
  const size_t at = head.find("\"source\":");
  return at == std::string::npos ? std::string() : head.substr(at);
}

/* "source 127.0.0.1, ARFCN 10700" from the key. */
std::string cell_label(const std::string& key) {
  const size_t s = key.find(":\"");
  const size_t e = s == std::string::npos ? s : key.find('"', s + 2);
  const size_t a = key.find("\"arfcn\":");
  if (s == std::string::npos || e == std::string::npos || a == std::string::npos) return key;
  return "source " + key.substr(s + 2, e - s - 2) + ", ARFCN " + key.substr(a + 8);
}

/* The records of the last call join the cell's; a MIB with a new value tag first ends the
   configuration collected so far, whose summary is written then. */
void collect(Dumper& d, const std::string& key, const std::string& label) {
  std::vector<SummaryNode> ended;
  d.cells->take(key, label, d.set, &ended);
  for (const SummaryNode& n : ended) d.summaries->write(n);
}

void bad_line(Dumper& d, unsigned long line, const char* why) {
  /* The library's text may be going to standard error too: keep the order readable. */
  umts_sib_print_flush();
  std::fflush(stdout);
  std::fprintf(stderr, "sibdump: %s:%lu: %s\n", d.input_name, line, why);
  d.counts.bad++;
}

/* A whole SIB16: not a block of umts_sib_set, so sibdump decodes it itself, with its own
   context and decoded area, through umts_convert_sib16. A failed decode is a bad line. */
void convert_sib16(Dumper& d, unsigned long line, uint8_t* bytes, size_t octets) {
  static uint64_t area[(8 + sizeof(SysInfoType16)) / 8 + 1];
  static umts_sib16_info record;
  rtxContext ctx;
  int status = rtInitContext(&ctx);
  if (status == 0) status = pu_setBuffer(&ctx, bytes, static_cast<uint32_t>(octets), 0);
  if (status == 0) status = umts_convert_sib16(&ctx, area, &record);
  rtFreeContext(&ctx);
  if (status != 0) {
    char why[96];
    std::snprintf(why, sizeof why, "SIB16 decoding failed (status %d)", status);
    bad_line(d, line, why);
    return;
  }
  if (d.cells == nullptr) d.json.sib16(line, &record); /* a summary does not show SIB16 */
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
size_t write_records(Dumper& d, const std::string& head) {
  if (d.cells != nullptr) {
    const std::string key = cell_key(head);
    collect(d, key, cell_label(key));
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

void process_line(Dumper& d, bool sibs, unsigned long line, char* text, size_t length) {
  /* A comment runs to the end of the line. */
  const char* hash = static_cast<const char*>(std::memchr(text, '#', length));
  if (hash != nullptr) length = static_cast<size_t>(hash - text);
  size_t start = 0;
  while (start < length && is_blank(text[start])) start++;
  if (start == length) return;

  static uint8_t bytes[kMaxSibOctets];
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
    umts_sib_decoder(bytes, d.set, static_cast<uint32_t>(octets));
    write_records(d, line);
    if (d.cells != nullptr && d.cells->has("")) d.cells->cell("", d.input_name).take_block(bytes, octets);
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
  umts_sib_msg_decoder(static_cast<umts_sib_id>(id), bytes, d.set, static_cast<uint32_t>(octets));
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

}  // namespace

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

  FILE* in = stdin;
  const char* input_name = "<stdin>";
  if (opt.input != nullptr && std::strcmp(opt.input, "-") != 0) {
    in = std::fopen(opt.input, "r");
    if (in == nullptr) {
      std::fprintf(stderr, "sibdump: cannot open '%s': %s\n", opt.input, std::strerror(errno));
      return 2;
    }
    input_name = opt.input;
  }
  /* A capture is told by its first octets; live input reads no file. */
  bool capture = false;
  if (opt.udp) {
    in = nullptr;
  } else if ((in = peek_input(in, input_name, &capture)) == nullptr) {
    return 2;
  }

  /* The result record is large (fixed arrays of SIB5): one for the whole run, from the
     library, which then clears each record by what the conversion before wrote instead of
     writing zeros over all of it. */
  umts_sib_set* set = umts_sib_set_alloc();
  if (set == nullptr) {
    std::fprintf(stderr, "sibdump: out of memory\n");
    if (in != nullptr) std::fclose(in);
    return 2;
  }
  FILE* json = split_stdout(opt.asn1_text);
  if (json == nullptr) {
    umts_sib_set_free(set);
    if (in != nullptr) std::fclose(in);
    return 2;
  }
  if (opt.log_level_set) zvtLogLevelThreshold = static_cast<unsigned int>(opt.log_level);

  JsonLines lines(json);
  if (!lines.ok()) {
    std::fprintf(stderr, "sibdump: out of memory\n");
    std::fclose(json);
    umts_sib_set_free(set);
    if (in != nullptr) std::fclose(in);
    return 2;
  }
  Dumper d{lines, input_name, set, Counts()};
  CellCollection cells;
  SummaryWriter summaries(json, opt.summary != nullptr ? opt.summary : "text");
  if (opt.summary != nullptr) {
    d.cells = &cells;
    d.summaries = &summaries;
  }
  if (opt.udp || capture) {
    RecordOutput output{[&d](const std::string& head) { return write_records(d, head); }, nullptr};
    if (d.cells != nullptr)
      output.block = [&d](const std::string& head, const uint8_t* block, size_t length) {
        const std::string key = cell_key(head);
        if (d.cells->has(key)) d.cells->cell(key, cell_label(key)).take_block(block, length);
      };
    /* Live records reach the stream as each datagram is decoded. */
    if (opt.udp) output.flush = [&lines, json] {
      lines.write_out();
      std::fflush(json);
    };
    /* run_capture closes `in`. */
    int status = opt.udp ? run_udp(opt.udp_address, set, output) : run_capture(in, input_name, set, output);
    lines.write_out();
    if (opt.summary != nullptr) summaries.finish(cells);
    umts_sib_print_flush();
    std::fflush(stdout);
    if (std::fclose(json) != 0) {
      std::fprintf(stderr, "sibdump: error writing the JSON output\n");
      status = 2;
    }
    umts_sib_set_free(set);
    return status;
  }
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
  umts_sib_print_flush();
  std::fflush(stdout);
  const bool write_error = std::fclose(json) != 0;
  umts_sib_set_free(set);

  std::fprintf(stderr, "sibdump: %lu %s read, %lu records written, %lu bad lines\n", d.counts.blocks,
               opt.sibs ? "SIBs" : "blocks", d.counts.records, d.counts.bad);
  if (read_error) {
    std::fprintf(stderr, "sibdump: error reading %s\n", input_name);
    return 2;
  }
  if (write_error) {
    std::fprintf(stderr, "sibdump: error writing the JSON output\n");
    return 2;
  }
  return d.counts.bad != 0 ? 1 : 0;
}
