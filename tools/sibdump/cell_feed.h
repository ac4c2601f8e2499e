/*
 * GSMTAP datagrams of several cells through the library, each cell's segments collected
 * apart: each cell has a decoder instance of its own. A cell is the sender of the datagrams
 * (the IP source address) and the ARFCN of the GSMTAP header.
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

/* A cell: the source address and the ARFCN. */
using CellKey = std::pair<std::string, uint16_t>;

/* Where the records go: `write` writes one JSON line per sub-record whose presence bit the
   last call set, each starting with `head` (JSON members, without braces), and returns how
   many it wrote; `cell` is the frame's cell, the same object for every frame of that cell
   while the feed lives (an output may know the cell again by its address). `flush` writes
   out what is gathered (the live input calls it whenever the socket goes quiet), or is
   empty. */
struct RecordOutput {
  std::function<size_t(const std::string& head, const CellKey& cell)> write;
  std::function<void()> flush;
  /* Each transport block after its records, with the same head and cell and the state of the
     cell's decoder (the SIBs in collection); may be empty. */
  std::function<void(const std::string& head, const CellKey& cell, const uint8_t* block, size_t length,
                     const umts_decoder_ctxt* state)>
      block = nullptr;
};

/* Counts of one cell. */
struct CellCounts {
  unsigned long blocks = 0;  /* transport blocks handed to the cell's decoder */
  unsigned long sibs = 0;    /* whole SIBs handed to it */
  unsigned long records = 0; /* JSON lines written */
  unsigned long skipped = 0; /* GSMTAP messages that are not converted */
  unsigned long errors = 0;  /* GSMTAP messages refused */

  CellCounts& operator+=(const CellCounts& n) {
    blocks += n.blocks;
    sibs += n.sibs;
    records += n.records;
    skipped += n.skipped;
    errors += n.errors;
    return *this;
  }
};

/* What reads frames hands them to: a CellFeed, or several through ParallelFeed. */
class FrameSink {
 public:
  virtual ~FrameSink() = default;
  /* One UDP datagram from or to the GSMTAP port, number `number` of the input, received at
     `time_us` (microseconds since 1970). */
  virtual void datagram(unsigned long number, uint64_t time_us, const gsmtap::Datagram& d) = 0;
  /* A frame that holds no GSMTAP datagram. */
  virtual void not_gsmtap() = 0;
  /* A frame or datagram that cannot be read: the message, with its number. */
  virtual void bad(unsigned long number, const std::string& why) = 0;
  /* After the last frame: what is still gathered is decoded and written. */
  virtual void finish() {}
  /* The counts on `out`: a line per cell, then the totals. */
  virtual void summary(FILE* out, unsigned long frames) const = 0;
  virtual unsigned long errors() const = 0;
};

class CellFeed : public FrameSink {
 public:
  /* `set` is the caller's result record, reused for every call (null: given by use_set before
     the first frame). `input` names the input in the messages ("sibdump: <input>: frame N:
     ...", written to `messages`); `unit` is "frame" or "datagram". The cells' decoders print
     their ASN.1 text and messages on `text` (null: nowhere). */
  CellFeed(umts_sib_set* set, RecordOutput output, std::string input, const char* unit, FILE* messages = stderr,
           FILE* text = nullptr);
  ~CellFeed() override; /* releases the cells' decoders and the segments in collection */
  CellFeed(const CellFeed&) = delete;
  CellFeed& operator=(const CellFeed&) = delete;

  /* The result record from now on (one of each thread that decodes this feed's frames). */
  void use_set(umts_sib_set* set) { set_ = set; }

  void datagram(unsigned long number, uint64_t time_us, const gsmtap::Datagram& d) override;
  void not_gsmtap() override { not_gsmtap_++; }
  void bad(unsigned long number, const std::string& why) override;
  void summary(FILE* out, unsigned long frames) const override;
  unsigned long errors() const override { return bad_ + cell_errors(); }

  /* The counts of each cell, added into `cells`; the frames of other protocols and those
     refused before a cell was known, added into the two counts. */
  void add_counts(std::map<CellKey, CellCounts>* cells, unsigned long* not_gsmtap, unsigned long* bad) const;
  /* The counts as summary() writes them. */
  static void write_counts(FILE* out, const char* unit, unsigned long frames, const std::map<CellKey, CellCounts>& cells,
                           unsigned long not_gsmtap, unsigned long bad);

  /* "2026-01-01T00:00:00.020000Z" */
  static std::string time_text(uint64_t time_us);
  /* The same into `out` (room for kTimeText octets); returns its length. */
  static constexpr size_t kTimeText = 48;
  static size_t time_text(uint64_t time_us, char* out);

 private:
  struct Cell {
    umts_sib_decoder_t* decoder = nullptr; /* the cell's segments in collection */
    CellCounts counts;
  };

  void message(unsigned long number, const std::string& why) const;
  void decode(Cell& cell, bool transport_block, int sib_id, const uint8_t* data, size_t length);
  unsigned long cell_errors() const;

  umts_sib_set* set_;
  RecordOutput output_;
  std::string input_;
  const char* unit_;
  FILE* messages_;
  FILE* text_;
  std::map<CellKey, Cell> cells_;
  /* The cell of the last frame, found again without a search: a capture's frames come from a
     few cells, often several in a row from the same. */
  const CellKey* last_key_ = nullptr;
  Cell* last_cell_ = nullptr;
  std::string head_; /* the records' head, reused from frame to frame */
  unsigned long not_gsmtap_ = 0; /* frames of other protocols */
  unsigned long bad_ = 0;        /* frames refused before a cell was known */
};

#endif /* UMTS_TOOLS_CELL_FEED_H */
