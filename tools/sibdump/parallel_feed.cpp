/*
 * The cells of one capture decoded on several threads: see parallel_feed.h.
 *
 * Batches go round a ring of kParallelBatches: the calling thread gathers one while the
 * workers decode those handed out before, and writes out each batch once every worker is done
 * with it. A worker goes on with the next batch as soon as it is done with its share of one,
 * without waiting for the others: a worker whose cells cost more in one batch catches up in
 * the next ones, and no core stands idle at the end of each batch.
 */
#include "parallel_feed.h"

#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <condition_variable>
#include <cstring>
#include <map>
#include <mutex>
#include <thread>
#include <unordered_map>

namespace {

/* Frames gathered before the workers decode them. A batch's records (some 300 KB for 256
   frames of the sample cycle) stay in the workers' buffers until the batch is written out:
   larger batches spread the ring over more memory than the caches hold, smaller ones cost
   more hand-overs. */
constexpr size_t kBatchFrames = 256;
/* A worker wakes the calling thread once it is done with every this many batches (or has
   caught up with the batches handed out), so that the calling thread, when it waits for room
   in the ring, writes out half the ring at a time rather than taking a core from a worker
   for every batch. */
constexpr unsigned long kWakeEvery = kParallelBatches / 2;

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

void put(FILE* out, const char* s, size_t from, size_t to) {
  if (out != nullptr && to > from) std::fwrite(s + from, 1, to - from, out);
}

}  // namespace

void TextBuffer::reserve(size_t more) {
  if (cap - len >= more) return;
  size_t grown = cap == 0 ? 4096 : cap;
  while (grown - len < more) grown *= 2;
  char* p = static_cast<char*>(std::realloc(data, grown));
  if (p == nullptr) {
    std::fprintf(stderr, "sibdump: out of memory\n");
    std::exit(2);
  }
  data = p;
  cap = grown;
}

ssize_t WorkerOutput::append_records(void* cookie, const char* buf, size_t size) {
  WorkerOutput* o = static_cast<WorkerOutput*>(cookie);
  o->records_->append(buf, size);
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
};

struct ParallelFeed::Shared {
  unsigned workers = 1;
  std::vector<std::unique_ptr<WorkerOutput>> outs;
  std::vector<std::unique_ptr<CellFeed>> feeds;
  FILE* records = nullptr;
  FILE* text = nullptr;
  FILE* messages = nullptr;
  const char* unit = "frame";
  unsigned long not_gsmtap = 0;

  struct KeyHash {
    size_t operator()(const CellKey& k) const { return std::hash<std::string>()(k.first) * 31u + k.second; }
  };
  std::unordered_map<CellKey, unsigned, KeyHash> owner; /* each cell's worker */
  unsigned next_worker = 0;
  /* A batch: its frames, each worker's frames by their places in it, the datagrams' octets.
     The workers only read it. */
  struct Batch {
    std::vector<Item> items;
    std::vector<std::vector<uint32_t>> shares;
    std::vector<uint8_t> arena;
  };
  Batch batches[kParallelBatches]; /* batch number n lies at n % kParallelBatches */
  /* The cells last looked up, before `owner` is searched. */
  struct Recent {
    CellKey key;
    unsigned worker;
  };
  std::vector<Recent> recent;
  size_t recent_next = 0;
  std::vector<iovec> pieces; /* write_records_only's list, kept for its room */

  std::vector<std::thread> threads;
  std::mutex mutex;
  std::condition_variable start, done;
  /* Batch numbers, counted from the first: those handed to the workers, those each worker is
     done with (under `mutex`), those written out (by the calling thread). The batch gathered
     is number `handed`. */
  unsigned long handed = 0;
  std::vector<unsigned long> finished;
  unsigned long written = 0;
  bool stop = false;

  Batch& gathering() { return batches[handed % kParallelBatches]; }
  /* Whether every worker is done with the oldest batch not written out (under `mutex`). */
  bool oldest_done() const {
    for (const unsigned long f : finished)
      if (f <= written) return false;
    return true;
  }
};

ParallelFeed::ParallelFeed(unsigned workers, const std::function<std::unique_ptr<CellFeed>(WorkerOutput& out)>& make_feed,
                           FILE* records, FILE* text, FILE* messages, const char* unit)
    : shared_(new Shared) {
  Shared& s = *shared_;
  s.workers = workers == 0 ? 1 : workers;
  s.records = records;
  s.text = text;
  s.messages = messages;
  s.unit = unit;
  for (unsigned w = 0; w < s.workers; w++) {
    s.outs.emplace_back(new WorkerOutput);
    s.feeds.push_back(make_feed(*s.outs.back()));
  }
  for (Shared::Batch& b : s.batches) {
    b.items.reserve(kBatchFrames);
    b.shares.resize(s.workers);
  }
  s.finished.assign(s.workers, 0);
  /* The calling thread is worker 0 itself: it decodes its share of each batch as it hands the
     batch out, so that N jobs are N threads on N processors. */
  for (unsigned w = 1; w < s.workers; w++) {
    s.threads.emplace_back([this, w] {
      Shared& sh = *shared_;
      for (unsigned long next = 0;; next++) {
        {
          std::unique_lock<std::mutex> lock(sh.mutex);
          sh.start.wait(lock, [&] { return sh.stop || sh.handed > next; });
          if (sh.handed <= next) return; /* stopped, with nothing left */
        }
        decode_share(w, static_cast<int>(next % kParallelBatches));
        std::lock_guard<std::mutex> lock(sh.mutex);
        sh.finished[w] = next + 1;
        if ((next + 1) % kWakeEvery == 0 || next + 1 == sh.handed) sh.done.notify_one();
      }
    });
  }
}

ParallelFeed::~ParallelFeed() {
  Shared& s = *shared_;
  write_finished(true);
  {
    std::lock_guard<std::mutex> lock(s.mutex);
    s.stop = true;
  }
  s.start.notify_all();
  for (std::thread& t : s.threads) t.join();
  s.feeds.clear();
}

unsigned ParallelFeed::worker_of(const std::string& source, uint16_t arfcn) {
  Shared& s = *shared_;
  /* A capture comes from a few cells at a time: they are found among the last ones. */
  constexpr size_t kRecent = 16;
  for (const Shared::Recent& r : s.recent)
    if (r.key.second == arfcn && r.key.first == source) return r.worker;
  CellKey key(source, arfcn);
  unsigned w;
  auto it = s.owner.find(key);
  if (it != s.owner.end()) {
    w = it->second;
  } else {
    /* New cells are dealt out in turn, the calling thread, which also reads and writes,
       taking one turn in three among two workers (one in 2N-1 among N) rather than one in two. */
    const unsigned turns = 2 * s.workers - 1;
    const unsigned turn = s.next_worker;
    s.next_worker = (s.next_worker + 1) % turns;
    w = s.workers == 1 ? 0 : (turn == 0 ? 0 : 1 + (turn - 1) % (s.workers - 1));
    s.owner.emplace(key, w);
  }
  if (s.recent.size() < kRecent) {
    s.recent.push_back(Shared::Recent{std::move(key), w});
  } else {
    s.recent[s.recent_next] = Shared::Recent{std::move(key), w};
    s.recent_next = (s.recent_next + 1) % kRecent;
  }
  return w;
}

void ParallelFeed::add(Item&& item) {
  Shared& s = *shared_;
  Shared::Batch& b = s.gathering();
  b.shares[item.worker].push_back(static_cast<uint32_t>(b.items.size()));
  b.items.push_back(std::move(item));
  if (b.items.size() >= kBatchFrames) next_batch();
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
    worker = worker_of(d.source, gsmtap::arfcn_number(h.arfcn));
  std::vector<uint8_t>& arena = s.gathering().arena;
  const size_t offset = arena.size();
  arena.insert(arena.end(), d.payload, d.payload + d.length);
  add(Item{Item::kDatagram, number, time_us, worker, offset, d.length, d.source, d.source_port, d.destination_port});
}

void ParallelFeed::not_gsmtap() { shared_->not_gsmtap++; }

void ParallelFeed::bad(unsigned long number, const std::string& why) {
  add(Item{Item::kBad, number, 0, 0, 0, 0, why, 0, 0});
}

void ParallelFeed::finish() {
  Shared& s = *shared_;
  if (!s.gathering().items.empty()) next_batch();
  write_finished(true);
}

void ParallelFeed::write_finished(bool all) {
  Shared& s = *shared_;
  while (s.written < s.handed) {
    {
      std::unique_lock<std::mutex> lock(s.mutex);
      if (all)
        s.done.wait(lock, [&] { return s.oldest_done(); });
      else if (!s.oldest_done())
        return;
    }
    write_batch(static_cast<int>(s.written % kParallelBatches));
    s.written++;
  }
}

void ParallelFeed::next_batch() {
  Shared& s = *shared_;
  const unsigned long number = s.handed;
  {
    std::lock_guard<std::mutex> lock(s.mutex);
    s.handed++;
  }
  s.start.notify_all();
  decode_share(0, static_cast<int>(number % kParallelBatches));
  {
    std::lock_guard<std::mutex> lock(s.mutex);
    s.finished[0] = number + 1;
  }
  write_finished(false);
  /* The next batch is gathered where the batch kParallelBatches before it lay: that one must
     be written out first. */
  while (s.handed - s.written >= static_cast<unsigned long>(kParallelBatches)) {
    {
      std::unique_lock<std::mutex> lock(s.mutex);
      s.done.wait(lock, [&] { return s.oldest_done(); });
    }
    write_finished(false);
  }
}

void ParallelFeed::decode_share(unsigned worker, int batch) {
  Shared& s = *shared_;
  WorkerOutput& out = *s.outs[worker];
  CellFeed& feed = *s.feeds[worker];
  out.current_ = batch;
  out.records_ = &out.buffers_[batch].records;
  const std::vector<Item>& items = s.batches[batch].items;
  const std::vector<uint8_t>& arena = s.batches[batch].arena;
  WorkerOutput::Buffers& buffers = out.buffers_[batch];
  gsmtap::Datagram d;
  for (const uint32_t i : s.batches[batch].shares[worker]) {
    const Item& item = items[i];
    out.item_ = i;
    if (item.kind == Item::kBad) {
      feed.bad(item.number, item.source);
    } else {
      d.payload = arena.data() + item.offset;
      d.length = item.length;
      d.source = item.source;
      d.source_port = item.source_port;
      d.destination_port = item.destination_port;
      feed.datagram(item.number, item.time_us, d);
    }
    buffers.ends.push_back(WorkerOutput::Ends{buffers.records.len, buffers.text.size(), buffers.messages.size()});
  }
}

void ParallelFeed::write_batch(int batch) {
  Shared& s = *shared_;
  if (write_records_only(batch)) return;
  std::vector<size_t> done(s.workers, 0), deferred_at(s.workers, 0);
  WorkerOutput::Ends zero = {0, 0, 0};
  std::vector<const WorkerOutput::Ends*> at(s.workers, &zero);
  std::vector<Item>& items = s.batches[batch].items;
  for (size_t i = 0; i < items.size(); i++) {
    const unsigned w = items[i].worker;
    WorkerOutput::Buffers& b = s.outs[w]->buffers_[batch];
    const WorkerOutput::Ends& end = b.ends[done[w]++];
    /* The text may be going where the messages go (standard error): what came before first. */
    if (end.messages > at[w]->messages && s.text != nullptr) std::fflush(s.text);
    put(s.messages, b.messages.data(), at[w]->messages, end.messages);
    put(s.records, b.records.data, at[w]->records, end.records);
    put(s.text, b.text.data(), at[w]->text, end.text);
    at[w] = &end;
    for (size_t& k = deferred_at[w]; k < b.deferred.size() && b.deferred[k].first == i; k++) b.deferred[k].second();
  }
  clear_batch(batch);
}

/* The usual batch has records and nothing else: its records go to the stream's file as they
   lie in the workers' buffers, a frame's piece after the other, in a few gathered writes
   rather than a copy of each piece into the stream's buffer and a write for every few
   frames. Returns false, having written nothing, for any other batch or a stream that is no
   file. */
bool ParallelFeed::write_records_only(int batch) {
  Shared& s = *shared_;
  if (s.records == nullptr) return false;
  for (auto& out : s.outs) {
    const WorkerOutput::Buffers& b = out->buffers_[batch];
    if (!b.text.empty() || !b.messages.empty() || !b.deferred.empty()) return false;
  }
  const int fd = fileno(s.records);
  if (fd < 0) return false;
  std::vector<iovec>& pieces = s.pieces;
  pieces.clear();
  std::vector<size_t> records_at(s.workers, 0), done(s.workers, 0);
  for (const Item& item : s.batches[batch].items) {
    const unsigned w = item.worker;
    const WorkerOutput::Buffers& b = s.outs[w]->buffers_[batch];
    const size_t end = b.ends[done[w]++].records;
    if (end == records_at[w]) continue;
    char* from = b.records.data + records_at[w];
    const size_t length = end - records_at[w];
    records_at[w] = end;
    if (!pieces.empty() && static_cast<char*>(pieces.back().iov_base) + pieces.back().iov_len == from)
      pieces.back().iov_len += length;
    else
      pieces.push_back(iovec{from, length});
  }
  /* What the stream holds goes first. */
  std::fflush(s.records);
  size_t next = 0;
  while (next < pieces.size()) {
    const int count = static_cast<int>(std::min<size_t>(pieces.size() - next, IOV_MAX));
    const ssize_t n = writev(fd, &pieces[next], count);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      /* The stream writes the rest and keeps the error, as it would have. */
      for (; next < pieces.size(); next++) std::fwrite(pieces[next].iov_base, 1, pieces[next].iov_len, s.records);
      break;
    }
    size_t written = static_cast<size_t>(n);
    while (written > 0 && written >= pieces[next].iov_len) written -= pieces[next++].iov_len;
    if (written > 0) {
      pieces[next].iov_base = static_cast<char*>(pieces[next].iov_base) + written;
      pieces[next].iov_len -= written;
    }
  }
  clear_batch(batch);
  return true;
}

void ParallelFeed::clear_batch(int batch) {
  Shared& s = *shared_;
  for (auto& out : s.outs) {
    WorkerOutput::Buffers& b = out->buffers_[batch];
    b.records.len = 0;
    b.text.clear();
    b.messages.clear();
    b.deferred.clear();
    b.ends.clear();
  }
  Shared::Batch& b = s.batches[batch];
  b.items.clear();
  b.arena.clear();
  for (std::vector<uint32_t>& share : b.shares) share.clear();
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
