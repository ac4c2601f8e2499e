/*
 * The cells of one capture decoded on several threads, the output as one thread writes it.
 *
 * Frames are read on the calling thread and gathered in batches. Each cell belongs to one
 * worker (the cells in the order they are first heard, dealt out in turn), and each worker
 * decodes the frames of its cells, in order, through a CellFeed of its own, into buffers of
 * its own. The calling thread is the first worker: it decodes its share of each batch as it
 * hands the batch out, and is dealt fewer cells, since it also reads and writes; N workers
 * are N threads. When a batch is decoded the calling thread writes what each frame produced, frame
 * by frame, to the real streams: the records, the ASN.1 text and the messages come out in the
 * same bytes as from one CellFeed. What a worker's output must do on the calling thread (a
 * summary to write, say) it defers to the frame it belongs to.
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
constexpr int kParallelBatches = 8;

/* What one worker writes while it decodes a batch: a set of buffers for each batch in flight,
   so that a worker goes on with the next batch while the calling thread writes out the ones
   before. */
class WorkerOutput {
 public:
  WorkerOutput();
  ~WorkerOutput();
  WorkerOutput(const WorkerOutput&) = delete;
  WorkerOutput& operator=(const WorkerOutput&) = delete;

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
  struct Buffers {
    TextBuffer records;
    std::string text, messages;
    std::vector<std::pair<size_t, std::function<void()>>> deferred;
    std::vector<Ends> ends; /* one for each frame of the worker's share, in order */
  };
  static ssize_t append_records(void* cookie, const char* buf, size_t size);
  static ssize_t append_text(void* cookie, const char* buf, size_t size);
  static ssize_t append_messages(void* cookie, const char* buf, size_t size);

  Buffers buffers_[kParallelBatches];
  int current_ = 0; /* the buffers of the batch being decoded */
  TextBuffer* records_ = &buffers_[0].records;
  FILE* records_stream_;
  FILE* text_stream_;
  FILE* messages_stream_;
  size_t item_ = 0; /* the frame being decoded, by its place in the batch */
};

class ParallelFeed : public FrameSink {
 public:
  /* `make_feed(out)` builds a worker's CellFeed, writing its records, text and messages to
     the streams of `out` (or its records to out.records_buffer()) by the end of each frame.
     Each batch's output goes to `records`, `text` (null: none) and `messages`. */
  ParallelFeed(unsigned workers, const std::function<std::unique_ptr<CellFeed>(WorkerOutput& out)>& make_feed,
               FILE* records, FILE* text, FILE* messages, const char* unit);
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
  struct Shared;
  /* Hands the batch gathered to the workers and writes out every batch that all workers are
     done with; waits only when no batch is free to gather the next frames in. */
  void next_batch();
  /* Writes out, in order, the batches that every worker is done with; with `all`, waits for
     the workers to be done with every batch handed out. */
  void write_finished(bool all);
  void decode_share(unsigned worker, int batch);
  void write_batch(int batch);
  bool write_records_only(int batch);
  void clear_batch(int batch);
  unsigned worker_of(const std::string& source, uint16_t arfcn);
  void add(Item&& item);

  std::unique_ptr<Shared> shared_;
};

#endif /* UMTS_TOOLS_PARALLEL_FEED_H */
