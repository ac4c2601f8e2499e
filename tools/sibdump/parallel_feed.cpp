/*
 * The cells of one capture decoded on several threads: see parallel_feed.h.
 *
 * Two batches take turns: while the workers decode one, the calling thread writes out the
 * output of the one before and gathers the next, so that reading and writing, which only
 * the calling thread can do in order, overlap the decoding.
 */
#include "parallel_feed.h"

#include <condition_variable>
#include <cstring>
#include <map>
#include <mutex>
#include <thread>

namespace {

/* Frames gathered before the workers decode them. */
constexpr size_t kBatchFrames = 1024;

FILE* append_stream(void* cookie, ssize_t (*append)(void*, const char*, size_t)) {
  const cookie_io_functions_t io = {nullptr, append, nullptr, nullptr};
  FILE* f = fopencookie(cookie, "w", io);
  if (f == nullptr) {
    std::fprintf(stderr, "sibdump: out of memory\n");
    std::exit(2);
  }
  /* What is written reaches the buffer at once: the writers gather their text themselves. */
  std::setvbuf(f, nullptr, _IONBF, 0);
  return f;
}

void put(FILE* out, const std::string& s, size_t from, size_t to) {
  if (out != nullptr && to > from) std::fwrite(s.data() + from, 1, to - from, out);
}

}  // namespace

ssize_t WorkerOutput::append_records(void* cookie, const char* buf, size_t size) {
  WorkerOutput* o = static_cast<WorkerOutput*>(cookie);
  o->buffers_[o->current_].records.append(buf, size);
  return static_cast<ssize_t>(size);
}

ssize_t WorkerOutput::append_text(void* cookie, const char* buf, size_t size) {
  WorkerOutput* o = static_cast<WorkerOutput*>(cookie);
  o->buffers_[o->current_].text.append(buf, size);
  return static_cast<ssize_t>(size);
}

ssize_t WorkerOutput::append_messages(void* cookie, const char* buf, size_t size) {
  WorkerOutput* o = static_cast<WorkerOutput*>(cookie);
  o->buffers_[o->current_].messages.append(buf, size);
  return static_cast<ssize_t>(size);
}

WorkerOutput::WorkerOutput()
    : records_stream_(append_stream(this, append_records)), text_stream_(append_stream(this, append_text)),
      messages_stream_(append_stream(this, append_messages)) {}

WorkerOutput::~WorkerOutput() {
  std::fclose(records_stream_);
  std::fclose(text_stream_);
  std::fclose(messages_stream_);
}

struct ParallelFeed::Item {
  enum Kind { kDatagram, kBad } kind;
  unsigned long number;
  uint64_t time_us;
  unsigned worker;
  size_t offset, length; /* the datagram's octets in the batch's arena */
  std::string source;    /* the sender; for kBad the message */
  uint16_t source_port, destination_port;
  /* Where the worker's buffers ended after this frame. */
  size_t records_end, text_end, messages_end;
};

struct ParallelFeed::Shared {
  unsigned workers = 1;
  std::vector<std::unique_ptr<WorkerOutput>> outs;
  std::vector<std::unique_ptr<CellFeed>> feeds;
  std::function<void(unsigned)> flush_records;
  FILE* records = nullptr;
  FILE* text = nullptr;
  FILE* messages = nullptr;
  const char* unit = "frame";
  unsigned long not_gsmtap = 0;

  std::map<CellKey, unsigned> owner; /* each cell's worker */
  unsigned next_worker = 0;
  std::vector<Item> items[2];
  std::vector<uint8_t> arena[2];
  int gathering = 0; /* the batch that frames are gathered in */

  std::vector<std::thread> threads;
  std::mutex mutex;
  std::condition_variable start, done;
  unsigned long generation = 0; /* batches handed to the workers */
  int decoding = -1;            /* the batch they decode, or -1 */
  unsigned pending = 0;         /* workers not done with it */
  bool stop = false;
};

ParallelFeed::ParallelFeed(unsigned workers, const std::function<std::unique_ptr<CellFeed>(WorkerOutput& out)>& make_feed,
                           std::function<void(unsigned)> flush_records, FILE* records, FILE* text, FILE* messages,
                           const char* unit)
    : shared_(new Shared) {
  Shared& s = *shared_;
  s.workers = workers == 0 ? 1 : workers;
  s.flush_records = std::move(flush_records);
  s.records = records;
  s.text = text;
  s.messages = messages;
  s.unit = unit;
  for (unsigned w = 0; w < s.workers; w++) {
    s.outs.emplace_back(new WorkerOutput);
    s.feeds.push_back(make_feed(*s.outs.back()));
  }
  for (int b = 0; b < 2; b++) s.items[b].reserve(kBatchFrames);
  for (unsigned w = 0; w < s.workers; w++) {
    s.threads.emplace_back([this, w] {
      Shared& sh = *shared_;
      unsigned long seen = 0;
      for (;;) {
        int batch;
        {
          std::unique_lock<std::mutex> lock(sh.mutex);
          sh.start.wait(lock, [&] { return sh.stop || sh.generation != seen; });
          if (sh.stop) return;
          seen = sh.generation;
          batch = sh.decoding;
        }
        decode_share(w, batch);
        std::lock_guard<std::mutex> lock(sh.mutex);
        if (--sh.pending == 0) sh.done.notify_one();
      }
    });
  }
}

ParallelFeed::~ParallelFeed() {
  Shared& s = *shared_;
  wait_for_workers();
  {
    std::lock_guard<std::mutex> lock(s.mutex);
    s.stop = true;
  }
  s.start.notify_all();
  for (std::thread& t : s.threads) t.join();
  s.feeds.clear();
}

unsigned ParallelFeed::worker_of(const CellKey& key) {
  Shared& s = *shared_;
  auto it = s.owner.find(key);
  if (it != s.owner.end()) return it->second;
  const unsigned w = s.next_worker;
  s.next_worker = (s.next_worker + 1) % s.workers;
  s.owner.emplace(key, w);
  return w;
}

void ParallelFeed::datagram(unsigned long number, uint64_t time_us, const gsmtap::Datagram& d) {
  Shared& s = *shared_;
  /* The cell decides the worker; a datagram whose header cannot be read goes to the first,
     whose feed reports it. */
  gsmtap::Header h;
  size_t message_at = 0;
  std::string why;
  unsigned worker = 0;
  if (gsmtap::parse_header(d.payload, d.length, &h, &message_at, &why))
    worker = worker_of(CellKey(d.source, gsmtap::arfcn_number(h.arfcn)));
  std::vector<uint8_t>& arena = s.arena[s.gathering];
  s.items[s.gathering].push_back(Item{Item::kDatagram, number, time_us, worker, arena.size(), d.length, d.source,
                                      d.source_port, d.destination_port, 0, 0, 0});
  arena.insert(arena.end(), d.payload, d.payload + d.length);
  if (s.items[s.gathering].size() >= kBatchFrames) next_batch();
}

void ParallelFeed::not_gsmtap() { shared_->not_gsmtap++; }

void ParallelFeed::bad(unsigned long number, const std::string& why) {
  Shared& s = *shared_;
  s.items[s.gathering].push_back(Item{Item::kBad, number, 0, 0, 0, 0, why, 0, 0, 0, 0, 0});
  if (s.items[s.gathering].size() >= kBatchFrames) next_batch();
}

void ParallelFeed::finish() {
  Shared& s = *shared_;
  if (!s.items[s.gathering].empty()) next_batch();
  wait_for_workers();
}

void ParallelFeed::wait_for_workers() {
  Shared& s = *shared_;
  int batch;
  {
    std::unique_lock<std::mutex> lock(s.mutex);
    s.done.wait(lock, [&] { return s.pending == 0; });
    batch = s.decoding;
    s.decoding = -1;
  }
  if (batch >= 0) write_batch(batch);
}

void ParallelFeed::next_batch() {
  Shared& s = *shared_;
  /* The batch before is written out while the workers decode this one. */
  std::unique_lock<std::mutex> lock(s.mutex);
  s.done.wait(lock, [&] { return s.pending == 0; });
  const int before = s.decoding;
  s.decoding = s.gathering;
  s.pending = s.workers;
  s.generation++;
  lock.unlock();
  s.start.notify_all();
  s.gathering = 1 - s.gathering;
  if (before >= 0) write_batch(before);
}

void ParallelFeed::decode_share(unsigned worker, int batch) {
  Shared& s = *shared_;
  WorkerOutput& out = *s.outs[worker];
  CellFeed& feed = *s.feeds[worker];
  out.current_ = batch;
  std::vector<Item>& items = s.items[batch];
  const std::vector<uint8_t>& arena = s.arena[batch];
  WorkerOutput::Buffers& buffers = out.buffers_[batch];
  for (size_t i = 0; i < items.size(); i++) {
    Item& item = items[i];
    if (item.worker != worker) continue;
    out.item_ = i;
    if (item.kind == Item::kBad) {
      feed.bad(item.number, item.source);
    } else {
      gsmtap::Datagram d;
      d.payload = arena.data() + item.offset;
      d.length = item.length;
      d.source = item.source;
      d.source_port = item.source_port;
      d.destination_port = item.destination_port;
      feed.datagram(item.number, item.time_us, d);
      s.flush_records(worker);
    }
    item.records_end = buffers.records.size();
    item.text_end = buffers.text.size();
    item.messages_end = buffers.messages.size();
  }
}

void ParallelFeed::write_batch(int batch) {
  Shared& s = *shared_;
  std::vector<size_t> records_at(s.workers, 0), text_at(s.workers, 0), messages_at(s.workers, 0), deferred_at(s.workers, 0);
  std::vector<Item>& items = s.items[batch];
  for (size_t i = 0; i < items.size(); i++) {
    const Item& item = items[i];
    const unsigned w = item.worker;
    WorkerOutput::Buffers& b = s.outs[w]->buffers_[batch];
    /* The text may be going where the messages go (standard error): what came before first. */
    if (item.messages_end > messages_at[w] && s.text != nullptr) std::fflush(s.text);
    put(s.messages, b.messages, messages_at[w], item.messages_end);
    put(s.records, b.records, records_at[w], item.records_end);
    put(s.text, b.text, text_at[w], item.text_end);
    messages_at[w] = item.messages_end;
    records_at[w] = item.records_end;
    text_at[w] = item.text_end;
    for (size_t& k = deferred_at[w]; k < b.deferred.size() && b.deferred[k].first == i; k++) b.deferred[k].second();
  }
  for (auto& out : s.outs) {
    WorkerOutput::Buffers& b = out->buffers_[batch];
    b.records.clear();
    b.text.clear();
    b.messages.clear();
    b.deferred.clear();
  }
  items.clear();
  s.arena[batch].clear();
}

void ParallelFeed::summary(FILE* out, unsigned long frames) const {
  std::map<CellKey, CellCounts> cells;
  unsigned long not_gsmtap = shared_->not_gsmtap, bad = 0;
  for (const auto& f : shared_->feeds) f->add_counts(&cells, &not_gsmtap, &bad);
  CellFeed::write_counts(out, shared_->unit, frames, cells, not_gsmtap, bad);
}

unsigned long ParallelFeed::errors() const {
  unsigned long n = 0;
  for (const auto& f : shared_->feeds) n += f->errors();
  return n;
}
