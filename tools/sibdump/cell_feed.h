/*
 * GSMTAP datagrams of several cells through the library, each cell's segments collected
 * apart: the library keeps the slots of a SIB in collection in g_umts_ctxt, so each cell
 * keeps a umts_decoder_ctxt of its own that is moved into g_umts_ctxt for its calls and out
 * again after them. A cell is the sender of the datagrams (the IP source address) and the
 * ARFCN of the GSMTAP header.
 */
#ifndef UMTS_TOOLS_CELL_FEED_H
#define UMTS_TOOLS_CELL_FEED_H

#include <stdint.h>
#include <stdio.h>

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "gsmtap.h"
#include "umts_sib_decoder.h"

/* Where the records go: `write` writes one JSON line per sub-record whose presence bit the
   last call set, each starting with `head` (JSON members, without braces), and returns how
   many it wrote; `flush` ends each datagram (live input), or is empty. */
struct RecordOutput {
  std::function<size_t(const std::string& head)> write;
  std::function<void()> flush;
  /* Each transport block after its records, with the same head; may be empty. */
  std::function<void(const std::string& head, const uint8_t* block, size_t length)> block = nullptr;
};

/* Counts of one cell. */
struct CellCounts {
  unsigned long blocks = 0;  /* transport blocks handed to umts_sib_decoder */
  unsigned long sibs = 0;    /* whole SIBs handed to umts_sib_msg_decoder */
  unsigned long records = 0; /* JSON lines written */
  unsigned long skipped = 0; /* GSMTAP messages that are not converted */
  unsigned long errors = 0;  /* GSMTAP messages refused */
};

class CellFeed {
 public:
  /* `set` is the caller's result record, reused for every call. `input` names the input in
     the messages ("sibdump: <input>: frame N: ...", written to `messages`); `unit` is "frame"
     or "datagram". */
  CellFeed(umts_sib_set* set, RecordOutput output, std::string input, const char* unit, FILE* messages = stderr);
  ~CellFeed(); /* releases the segments still in collection */
  CellFeed(const CellFeed&) = delete;
  CellFeed& operator=(const CellFeed&) = delete;

  /* One UDP datagram from or to the GSMTAP port, number `number` of the input, received at
     `time_us` (microseconds since 1970). */
  void datagram(unsigned long number, uint64_t time_us, const gsmtap::Datagram& d);
  /* A frame that holds no GSMTAP datagram. */
  void not_gsmtap() { not_gsmtap_++; }
  /* A frame or datagram that cannot be read: the message, with its number. */
  void bad(unsigned long number, const std::string& why);

  /* The summary on standard error: a line per cell, then the totals. */
  void summary(FILE* out, unsigned long frames) const;
  unsigned long errors() const { return bad_ + cell_errors(); }

  /* "2026-01-01T00:00:00.020000Z" */
  static std::string time_text(uint64_t time_us);

 private:
  struct Cell {
    umts_decoder_ctxt ctxt{}; /* the cell's slots while it is not being decoded */
    CellCounts counts;
  };
  using Key = std::pair<std::string, uint16_t>; /* source address, ARFCN */

  void message(unsigned long number, const std::string& why) const;
  void decode(Cell& cell, bool transport_block, int sib_id, const uint8_t* data, size_t length);
  unsigned long cell_errors() const;

  umts_sib_set* set_;
  RecordOutput output_;
  std::string input_;
  const char* unit_;
  FILE* messages_;
  std::map<Key, Cell> cells_;
  unsigned long not_gsmtap_ = 0; /* frames of other protocols */
  unsigned long bad_ = 0;        /* frames refused before a cell was known */
};

#endif /* UMTS_TOOLS_CELL_FEED_H */
