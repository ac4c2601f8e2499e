/*
 * The cells of one capture decoded on several threads, the output as one thread writes it.
 *
 * Frames are read on the calling thread and gathered in batches. Each cell has a CellFeed of
 * its own, writing into buffers of its own; a batch's frames of one cell are a unit of work,
 * and any thread takes the next unit whose cell is not being decoded elsewhere (the cells it
 * decoded last first), so that a cell's frames are decoded in order while the threads share
 * the work by what each gets done (processors differ in speed, and one of them also reads and
 * writes). The calling thread is one of the N threads of N jobs: it reads while there is room
 * for another batch, and decodes otherwise. When a batch is decoded the calling thread writes
 * what each frame produced, frame by frame, to the real streams: the records, the ASN.1 text
 * and the messages come out in the same bytes as from one CellFeed. What a cell's output must
 * do on the calling thread (a summary to write, say) it defers to the frame it belongs to.
 */
#ifndef UMTS_TOOLS_PARALLEL_FEED_H
#define UMTS_TOOLS_PARALLEL_FEED_H

#include <stdint.h>
#include <stdio.h>
#include <cstdlib>
#include <cstring>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cell_feed.h"

/* Text gathered in one block of memory that grows as needed. */
struct TextBuffer {
  char* data = nullptr;
  size_t len = 0, cap = 0;
  TextBuffer() = default;
  ~TextBuffer() { std::free(data); }
  TextBuffer(TextBuffer&& o) noexcept : data(o.data), len(o.len), cap(o.cap) {
    o.data = nullptr;
    o.len = o.cap = 0;
  }
  TextBuffer(const TextBuffer&) = delete;
  TextBuffer& operator=(const TextBuffer&) = delete;
  /* Makes room for `more` octets after `len` (the process ends when memory is out). */
  void reserve(size_t more);
  void append(const char* s, size_t n) {
    if (cap - len < n) reserve(n);
    std::memcpy(data + len, s, n);
    len += n;
  }
};

/* Batches in flight at once: gathered, being decoded or waiting to be written. */
constexpr int kParallelBatches = 4;

/* What the decoding of one cell writes: a set of buffers for each batch in flight, so that
   the cell's next frames are decoded while the calling thread writes out the ones before. */
class CellOutput {
 public:
  CellOutput();
  ~CellOutput();
  CellOutput(const CellOutput&) = delete;
  CellOutput& operator=(const CellOutput&) = delete;

  /* Streams that append to the buffers of the batch being decoded, unbuffered. */
  FILE* records() const { return records_stream_; }
  FILE* text() const { return text_stream_; }
  FILE* messages() const { return messages_stream_; }
  /* Where records() gathers the records of the batch being decoded: a writer that puts its
     text there itself, without the stream, saves a copy. */
  TextBuffer* const* records_buffer() const { return &records_; }
  /* `action` runs on the calling thread after the output of the frame being decoded. */
  void defer(std::function<void()> action) { buffers_[current_].deferred.emplace_back(item_, std::move(action)); }

 private:
  friend class ParallelFeed;
  /* Where the buffers ended after a frame. */
  struct Ends {
    size_t records, text, messages;
  };
  /* Each in cache lines of its own: the calling thread clears one batch's while another
     thread writes the next. */
  struct alignas(64) Buffers {
    TextBuffer records;
    std::string text, messages;
    std::vector<std::pair<size_t, std::function<void()>>> deferred;
    std::vector<Ends> ends; /* one for each frame of the cell in the batch, in order */
  };
  static ssize_t append_records(void* cookie, const char* buf, size_t size);
  static ssize_t append_text(void* cookie, const char* buf, size_t size);
  static ssize_t append_messages(void* cookie, const char* buf, size_t size);

  Buffers buffers_[kParallelBatches];
  alignas(64) int current_ = 0; /* the buffers of the batch being decoded */
  TextBuffer* records_ = &buffers_[0].records;
  FILE* records_stream_;
  FILE* text_stream_;
  FILE* messages_stream_;
  size_t item_ = 0; /* the frame being decoded, by its place in the batch */
};

/* The decoding of one cell: its feed, and how to point the feed at a result set (each thread
   has one, which the conversions of whatever cell it decodes fill). */
struct CellDecoding {
  std::unique_ptr<CellFeed> feed;
  std::function<void(umts_sib_set* set)> use_set;
};

class ParallelFeed : public FrameSink {
 public:
  /* `make_feed(out)` builds the decoding of a cell, its feed writing its records, text and
     messages to the streams of `out` (or its records to out.records_buffer()) by the end of
     each frame; it is called on the calling thread for each cell as it is first heard, and
     once for the frames of no cell. Each batch's output goes to `records`, `text` (null:
     none) and `messages`. */
  ParallelFeed(unsigned workers, const std::function<CellDecoding(CellOutput& out)>& make_feed, FILE* records,
               FILE* text, FILE* messages, const char* unit);
  ~ParallelFeed() override;
  ParallelFeed(const ParallelFeed&) = delete;
  ParallelFeed& operator=(const ParallelFeed&) = delete;

  void datagram(unsigned long number, uint64_t time_us, const gsmtap::Datagram& d) override;
  void not_gsmtap() override;
  void bad(unsigned long number, const std::string& why) override;
  /* Decodes and writes the frames still gathered. */
  void finish() override;
  void summary(FILE* out, unsigned long frames) const override;
  unsigned long errors() const override;

 private:
  struct Item;
  struct Unit;
  struct Cell;
  struct Shared;
  /* Hands the batch gathered to the threads and writes out every batch that is decoded;
     decodes while no batch is free to gather the next frames in. */
  void next_batch();
  /* Decodes, and writes out in order, until fewer than `room` batches are in flight. */
  void work_until(unsigned long room);
  /* Writes out, in order, the batches that are decoded. */
  void write_finished();
  /* The next unit that may be decoded, taken (under the mutex); false: none. */
  bool take_unit(unsigned thread, unsigned long* batch, size_t* unit);
  void decode_unit(unsigned thread, unsigned long batch, size_t unit);
  void write_batch(int batch);
  bool write_records_only(int batch);
  void clear_batch(int batch);
  Cell* cell_of(const std::string& source, uint16_t arfcn);
  /* The unit of the batch gathered that takes the cell's frames. */
  Unit& unit_of(Cell* c);
  void add(Unit& unit, const Item& item);

  std::unique_ptr<Shared> shared_;
};

#endif /* UMTS_TOOLS_PARALLEL_FEED_H */
