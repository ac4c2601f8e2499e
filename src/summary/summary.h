/*
 * The per-cell summary of sibdump: what a cell broadcasts, in names and units, built from
 * the records that the library converted for it.
 *
 * A CellRecords keeps the last converted record of each block of one cell. A summary is a
 * tree of SummaryNode (objects, lists, strings, numbers), written as JSON (one object per
 * cell) or as indented text. A value with a unit is an object {"value", "unit", "coded"};
 * what the cell did not let us see is {"missing": "<why>"}.
 */
#ifndef UMTS_TOOLS_SUMMARY_H
#define UMTS_TOOLS_SUMMARY_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "umts_sib_decoder.h"

struct SummaryNode {
  enum Kind { Null, Bool, Int, Real, Text, Object, List };
  Kind kind = Null;
  bool flag = false;
  long long integer = 0;
  double real = 0;
  std::string text;
  std::vector<std::pair<std::string, SummaryNode>> members; /* Object, in order */
  std::vector<SummaryNode> items;                           /* List */

  static SummaryNode object() { SummaryNode n; n.kind = Object; return n; }
  static SummaryNode list() { SummaryNode n; n.kind = List; return n; }
  SummaryNode() = default;
  SummaryNode(bool b) : kind(Bool), flag(b) {}
  SummaryNode(int v) : kind(Int), integer(v) {}
  SummaryNode(unsigned v) : kind(Int), integer(v) {}
  SummaryNode(long v) : kind(Int), integer(v) {}
  SummaryNode(unsigned long v) : kind(Int), integer(static_cast<long long>(v)) {}
  SummaryNode(long long v) : kind(Int), integer(v) {}
  SummaryNode(double v) : kind(Real), real(v) {}
  SummaryNode(const char* s) : kind(Text), text(s) {}
  SummaryNode(std::string s) : kind(Text), text(std::move(s)) {}

  /* Adds a member (objects) and returns *this. */
  SummaryNode& add(const std::string& key, SummaryNode value) {
    members.emplace_back(key, std::move(value));
    return *this;
  }
  /* Adds an item (lists). */
  SummaryNode& push(SummaryNode value) {
    items.push_back(std::move(value));
    return *this;
  }
  /* The member `key`, or null. */
  const SummaryNode* find(const std::string& key) const;
};

/* Zeroed sets for the cells' records, kept from one input to the next: each set's pages are
   touched by the copies of the cell it served, and a fresh set would touch them again (a
   page fault each, some 48 pages a cell). One thread at a time. */
class SetStore {
 public:
  SetStore() = default;
  ~SetStore();
  SetStore(const SetStore&) = delete;
  SetStore& operator=(const SetStore&) = delete;
  /* A zeroed set: one given back, or a new one (null when memory is out). */
  umts_sib_set* take();
  /* `set`, from take(), written by record copies only: zeroed where they wrote, and kept for
     the next take() (beyond kKept, released). */
  void give(umts_sib_set* set);

 private:
  static constexpr size_t kKept = 16;
  std::vector<umts_sib_set*> spare_;
};

/* The blocks of one cell, each as last converted. */
class CellRecords {
 public:
  /* `sets`, when given, provides the cell's set and takes it back. */
  explicit CellRecords(std::string label, SetStore* sets = nullptr);
  ~CellRecords();
  CellRecords(const CellRecords&) = delete;
  CellRecords& operator=(const CellRecords&) = delete;

  /* Copies every sub-record whose presence bit `set` carries. */
  void take(const umts_sib_set* set);
  /* A BCH transport block of the cell, after the library converted it: the parts of SIB19,
     which the library does not keep, are collected here through the codec, placed by the
     schedule of the cell's MIB, SB1 and SB2 (its segments come as extensionType). */
  void take_block(const uint8_t* block, size_t length);
  /* The cell's decoder state after a call (umts_sib_decoder_state): the SIBs whose segments
     it is still collecting, each with the segments received of how many. */
  void take_collection(const umts_decoder_ctxt* state);
  /* Segments received of a SIB that the cell's decoder began but has not completed, and of
     how many (0 and 0 when none is in collection). */
  unsigned segments_received(umts_sib_id id) const { return partial_[id].first; }
  unsigned segments_total(umts_sib_id id) const { return partial_[id].second; }
  /* The MIB of `set` has another value tag than the cell's: what was collected belongs to the
     cell's former configuration. */
  bool configuration_changes(const umts_sib_set* set) const;
  /* Forgets every record and SIB19, to collect the new configuration. */
  void reset();

  /* The last SIB19 received whole, as encoded; empty when none. */
  const std::vector<uint8_t>& sib19() const { return sib19_; }

  const std::string& label() const { return label_; }
  /* Bit n: block n (umts_sib_id) was converted at least once. */
  uint32_t seen() const { return seen_; }
  bool has(umts_sib_id id) const { return ((seen_ >> id) & 1u) != 0; }
  const umts_sib_set& records() const { return *records_; }
  unsigned long conversions(umts_sib_id id) const { return conversions_[id]; }

 private:
  std::string label_;
  SetStore* sets_;
  umts_sib_set* records_; /* zeroed, then each sub-record copied in */
  uint32_t seen_ = 0;
  unsigned long conversions_[umts_sib_count] = {};
  std::pair<unsigned, unsigned> partial_[umts_sib_count] = {};

  /* SIB19 under collection: its bits so far, the segments it has and will have. */
  struct Collection {
    std::vector<uint8_t> bytes;
    uint32_t bits = 0;
    unsigned next = 0;
    unsigned total = 0;
  };
  Collection sib19_part_;
  std::vector<uint8_t> sib19_;

  void sib19_first(unsigned sfn, unsigned count, const uint8_t* data, uint32_t bits);
  void sib19_segment(unsigned sfn, unsigned index, const uint8_t* data, uint32_t bits, bool last);
};

/* The frame of segment `i` of a scheduled block, modulo its repetition period `*rep`; false
   when the sib-Pos names no period. */
bool segment_frame(const umts_scheduling_info& s, unsigned i, unsigned* rep, unsigned* frame);
/* Whether the cell's MIB, SB1 or SB2 schedules segment `segment` of SIB19 in frame `sfn`. */
bool sib19_scheduled_at(const CellRecords& cell, unsigned sfn, unsigned segment);

/* The cells of one input, in the order they were first heard. */
class CellCollection {
 public:
  /* `sets`, when given, provides the cells' sets (it outlives the collection). */
  explicit CellCollection(SetStore* sets = nullptr) : sets_(sets) {}
  /* The cell of `key` (created with `label` the first time). */
  CellRecords& cell(const std::string& key, const std::string& label);
  bool has(const std::string& key) const { return index_.count(key) != 0; }
  /* The records that `set` carries join those of the cell of `key`. A MIB with a new value
     tag ends the configuration collected so far: its summary, with what ended it, is added
     to `ended`, and the cell starts anew. */
  void take(const std::string& key, const std::string& label, const umts_sib_set* set, std::vector<SummaryNode>* ended);
  /* The same into `cell`, a cell of this collection. */
  void take(CellRecords& cell, const umts_sib_set* set, std::vector<SummaryNode>* ended);
  const std::vector<std::unique_ptr<CellRecords>>& cells() const { return cells_; }

 private:
  SetStore* sets_;
  std::map<std::string, size_t> index_;
  std::vector<std::unique_ptr<CellRecords>> cells_;
};

/* The summary of one cell. */
SummaryNode cell_summary(const CellRecords& cell);

/* Sections, each from the blocks it names. */
SummaryNode summary_identity(const CellRecords& cell);
SummaryNode summary_access(const CellRecords& cell);
SummaryNode summary_selection(const CellRecords& cell);
SummaryNode summary_schedule(const CellRecords& cell);
SummaryNode summary_common_channels(const CellRecords& cell);
SummaryNode summary_neighbours(const CellRecords& cell);
/* Priority-based reselection (SIB19): the serving cell's priority and thresholds, the UTRA,
   GSM and E-UTRA frequencies with theirs. */
SummaryNode summary_priorities(const CellRecords& cell);

/* One line of JSON, without a line end. */
std::string summary_json(const SummaryNode& node);
/* Indented text, one member per line. */
std::string summary_text(const SummaryNode& cell);
/* A value as one line of text ("-115 dBm (coded -58)", "(SIB3 not received)"), or false
   for a value that takes several lines. */
bool summary_value_text(const SummaryNode& node, std::string* out);
/* One self-contained HTML page of the cells' summaries: their tables and a drawing of the
   broadcast schedule across the 4096-frame SFN cycle. A page of no cell from live input says
   `dropped`, the datagrams that the kernel dropped (a cell's summary says it itself). */
std::string summary_html(const std::vector<SummaryNode>& cells, const std::string& dropped = std::string());

/* Where summaries go: text and JSON as each is made, so that a live stream shows a cell's
   summary when its configuration changes; a page whole at the end. */
class SummaryWriter {
 public:
  SummaryWriter(FILE* out, std::string format) : out_(out), format_(std::move(format)) {}
  /* One summary (text and JSON written at once). */
  void write(const SummaryNode& summary);
  /* The cells as they stand at the end of the input. */
  void finish(const CellCollection& cells);
  /* The same, of cells in the order given. */
  void finish(const std::vector<const CellRecords*>& cells);
  /* Live input: the datagrams that the kernel dropped so far (of every cell: a dropped
     datagram names none). Each summary written from now on says it, after the blocks
     received. */
  void set_dropped(uint64_t dropped) {
    dropped_ = dropped;
    live_ = true;
  }

 private:
  FILE* out_;
  std::string format_;
  std::vector<SummaryNode> page_; /* html: every summary, for the one page */
  bool any_ = false;
  bool wrote_text_ = false;
  bool live_ = false;
  uint64_t dropped_ = 0;
};

#endif /* UMTS_TOOLS_SUMMARY_H */
