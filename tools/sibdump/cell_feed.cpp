/*
 * GSMTAP datagrams of several cells through the library, each cell's segments apart.
 */
#include "cell_feed.h"

#include <time.h>

#include <charconv>
#include <cstdlib>
#include <cstring>

namespace {

constexpr size_t kMaxBchOctets = 64;   /* as for hexadecimal input */
constexpr size_t kMaxSibOctets = 2048; /* what umts_sib_msg_decoder accepts */

}  // namespace

CellFeed::CellFeed(umts_sib_set* set, RecordOutput output, std::string input, const char* unit, FILE* messages,
                   FILE* text)
    : set_(set), output_(std::move(output)), input_(std::move(input)), unit_(unit), messages_(messages), text_(text) {}

CellFeed::~CellFeed() {
  for (auto& c : cells_) umts_sib_decoder_free(c.second.decoder);
}

std::string CellFeed::time_text(uint64_t time_us) {
  char buf[kTimeText];
  return std::string(buf, time_text(time_us, buf));
}

size_t CellFeed::time_text(uint64_t time_us, char* buf) {
  /* The calendar by arithmetic (days since 1970 to year, month, day in the proleptic
     Gregorian calendar): gmtime_r takes the C library's time zone lock at every call, which
     threads decoding the cells of a capture would all wait for. */
  const uint64_t seconds = time_us / 1000000u;
  const uint64_t z = seconds / 86400u + 719468u; /* days since 0000-03-01 */
  const uint64_t era = z / 146097u;
  const uint64_t doe = z - era * 146097u;
  const uint64_t yoe = (doe - doe / 1460u + doe / 36524u - doe / 146096u) / 365u;
  const uint64_t doy = doe - (365u * yoe + yoe / 4u - yoe / 100u);
  const uint64_t mp = (5u * doy + 2u) / 153u;
  const unsigned day = static_cast<unsigned>(doy - (153u * mp + 2u) / 5u + 1u);
  const unsigned month = static_cast<unsigned>(mp < 10u ? mp + 3u : mp - 9u);
  const uint64_t year = yoe + era * 400u + (month <= 2u ? 1u : 0u);
  const unsigned of_day = static_cast<unsigned>(seconds % 86400u);
  char* p = buf;
  if (year < 10000u) {
    for (int i = 3, y = static_cast<int>(year); i >= 0; i--, y /= 10) p[i] = static_cast<char>('0' + y % 10);
    p += 4;
  } else {
    p = std::to_chars(p, p + 24, year).ptr;
  }
  auto two = [&p](char sep, unsigned v) {
    *p++ = sep;
    *p++ = static_cast<char>('0' + v / 10u);
    *p++ = static_cast<char>('0' + v % 10u);
  };
  two('-', month);
  two('-', day);
  two('T', of_day / 3600u);
  two(':', of_day / 60u % 60u);
  two(':', of_day % 60u);
  *p++ = '.';
  unsigned us = static_cast<unsigned>(time_us % 1000000u);
  for (int i = 5; i >= 0; i--, us /= 10u) p[i] = static_cast<char>('0' + us % 10u);
  p += 6;
  *p++ = 'Z';
  return static_cast<size_t>(p - buf);
}

void CellFeed::message(unsigned long number, const std::string& why) const {
  if (text_ == stdout) std::fflush(stdout); /* the text may be going to standard error too */
  std::fprintf(messages_, "sibdump: %s: %s %lu: %s\n", input_.c_str(), unit_, number, why.c_str());
}

void CellFeed::bad(unsigned long number, const std::string& why) {
  message(number, why);
  bad_++;
}

void CellFeed::datagram(unsigned long number, uint64_t time_us, const gsmtap::Datagram& d) {
  gsmtap::Header h;
  size_t message_at = 0;
  std::string why;
  if (!gsmtap::parse_header(d.payload, d.length, &h, &message_at, &why)) {
    bad(number, why);
    return;
  }
  const uint16_t arfcn = gsmtap::arfcn_number(h.arfcn);
  if (last_key_ == nullptr || last_key_->second != arfcn || last_key_->first != d.source) {
    auto it = cells_.try_emplace(CellKey(d.source, arfcn)).first;
    last_key_ = &it->first;
    last_cell_ = &it->second;
  }
  Cell& cell = *last_cell_;
  if (cell.decoder == nullptr) {
    cell.decoder = umts_sib_decoder_new();
    if (cell.decoder == nullptr) {
      std::fprintf(stderr, "sibdump: out of memory\n");
      std::exit(2);
    }
    umts_sib_decoder_print_to(cell.decoder, text_);
  }
  int sib_id = -1;
  const gsmtap::Use use = h.type == gsmtap::kTypeUmtsRrc ? gsmtap::use_of(h.sub_type, &sib_id) : gsmtap::Use::other;
  if (use == gsmtap::Use::other || use == gsmtap::Use::not_converted) {
    cell.counts.skipped++;
    return;
  }
  const uint8_t* data = d.payload + message_at;
  const size_t length = d.length - message_at;
  const bool block = use == gsmtap::Use::transport_block;
  const size_t limit = block ? kMaxBchOctets : kMaxSibOctets;
  if (length == 0 || length > limit) {
    char text[160];
    std::snprintf(text, sizeof text, "%s of %zu octets (ARFCN %u): expected 1 to %zu", block ? "transport block" : "SIB",
                  length, static_cast<unsigned>(arfcn), limit);
    message(number, text);
    cell.counts.errors++;
    return;
  }
  decode(cell, block, sib_id, data, length);
  /* "frame":N,"time":"...","source":"...","arfcn":N, built in place */
  char number_text[24], time[kTimeText], arfcn_text[8];
  std::string& head = head_;
  head.assign("\"frame\":");
  head.append(number_text, std::to_chars(number_text, number_text + sizeof number_text, number).ptr);
  head.append(",\"time\":\"");
  head.append(time, time_text(time_us, time));
  head.append("\",\"source\":\"");
  head.append(d.source);
  head.append("\",\"arfcn\":");
  head.append(arfcn_text, std::to_chars(arfcn_text, arfcn_text + sizeof arfcn_text, arfcn).ptr);
  cell.counts.records += output_.write(head, *last_key_);
  if (block && output_.block) output_.block(head, *last_key_, data, length, umts_sib_decoder_state(cell.decoder));
}

void CellFeed::decode(Cell& cell, bool transport_block, int sib_id, const uint8_t* data, size_t length) {
  set_->presence_bitmask = 0;
  if (transport_block) {
    cell.counts.blocks++;
    umts_sib_decoder_feed_block(cell.decoder, data, set_, static_cast<uint32_t>(length));
  } else {
    cell.counts.sibs++;
    umts_sib_decoder_feed_sib(cell.decoder, static_cast<umts_sib_id>(sib_id), data, set_, static_cast<uint32_t>(length));
  }
  /* On standard output a decoder hands its text over after each value; elsewhere the text of
     each call goes out now, so that the cells' texts keep the order of the calls. */
  if (text_ != nullptr && text_ != stdout) umts_sib_decoder_print_flush(cell.decoder);
}

unsigned long CellFeed::cell_errors() const {
  unsigned long n = 0;
  for (const auto& c : cells_) n += c.second.counts.errors;
  return n;
}

void CellFeed::add_counts(std::map<CellKey, CellCounts>* cells, unsigned long* not_gsmtap, unsigned long* bad) const {
  for (const auto& c : cells_) (*cells)[c.first] += c.second.counts;
  *not_gsmtap += not_gsmtap_;
  *bad += bad_;
}

void CellFeed::summary(FILE* out, unsigned long frames) const {
  std::map<CellKey, CellCounts> cells;
  unsigned long not_gsmtap = 0, bad = 0;
  add_counts(&cells, &not_gsmtap, &bad);
  write_counts(out, unit_, frames, cells, not_gsmtap, bad);
}

void CellFeed::write_counts(FILE* out, const char* unit, unsigned long frames, const std::map<CellKey, CellCounts>& cells,
                            unsigned long not_gsmtap, unsigned long bad) {
  CellCounts total;
  for (const auto& c : cells) {
    const CellCounts& n = c.second;
    std::fprintf(out, "sibdump: cell %s ARFCN %u: %lu blocks, %lu SIBs, %lu records, %lu skipped, %lu errors\n",
                 c.first.first.c_str(), static_cast<unsigned>(c.first.second), n.blocks, n.sibs, n.records, n.skipped,
                 n.errors);
    total += n;
  }
  std::fprintf(out,
               "sibdump: %lu %ss read, %lu blocks, %lu SIBs, %lu records written, %lu skipped, %lu not GSMTAP, "
               "%lu bad %ss\n",
               frames, unit, total.blocks, total.sibs, total.records, total.skipped, not_gsmtap, bad + total.errors,
               unit);
}
