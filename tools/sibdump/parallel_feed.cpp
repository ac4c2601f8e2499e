/*
 * The cells of one capture decoded on several threads: see parallel_feed.h.
 *
 * Batches go round a ring of kParallelBatches: the calling thread gathers one while the
 * threads decode those handed out before, and writes out each batch once all its units (its
 * frames of one cell each) are decoded. A thread takes a unit whose cell no thread is decoding
 * and has no earlier unit left to take, oldest batch first, and one of the cells it decoded
 * last before any other: each cell's frames are decoded in their order, one unit after the
 * other, on whichever thread is free, and stay on one processor while it has work. So no
 * thread waits for another while there is a cell to decode, and a slower processor simply
 * takes fewer units. A unit holds its frames and their octets one after the other, written
 * past the caches (see append_streamed), and what one thread writes often lies in cache lines
 * apart from what another does: a line that passes between processors costs some 250 ns on
 * a virtual machine.
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

/* Streaming stores where the processor has them, but for the sanitizers, which see only the
   plain ones. */
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define SIBDUMP_STREAMING_STORES 1
#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#undef SIBDUMP_STREAMING_STORES
#endif
#endif
#endif
#if defined(SIBDUMP_STREAMING_STORES)
#include <immintrin.h>
#endif

namespace {

/* Frames gathered before the threads decode them. A batch's records (some 600 KB for 512
   frames of the sample cycle) stay in the cells' buffers until the batch is written out:
   larger batches spread the ring over more memory than the caches hold, smaller ones cost
   more hand-overs (a unit's first frame takes about a microsecond more than the others). */
constexpr size_t kBatchFrames = 512;

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

/* Appends `n` octets to `b`, from a multiple of 8 octets on, and returns where they start.
   On x86-64 they are written with streaming stores, which go to memory without fetching the
   cache lines first. The calling thread gathers a unit where another thread read one a few
   batches before: with plain stores each line had to be taken back from that processor's
   cache first, and the reading that followed (the capture, in small pieces) waited for them,
   taking twice as long as in one thread. The thread that decodes the unit reads it from
   memory, in order. */
size_t append_streamed(TextBuffer& b, const void* from, size_t n) {
  const size_t at = b.len;
  const size_t padded = (n + 7) & ~size_t(7);
  b.reserve(padded);
  const char* src = static_cast<const char*>(from);
  char* dst = b.data + at;
#if defined(SIBDUMP_STREAMING_STORES)
  size_t k = 0;
  for (; k + 8 <= n; k += 8) {
    long long word;
    std::memcpy(&word, src + k, 8);
    _mm_stream_si64(reinterpret_cast<long long*>(dst + k), word);
  }
  if (k < n) {
    long long word = 0;
    std::memcpy(&word, src + k, n - k);
    _mm_stream_si64(reinterpret_cast<long long*>(dst + k), word);
  }
#else
  std::memcpy(dst, src, n);
#endif
  b.len = at + padded;
  return at;
}

/* Streaming stores are not ordered with the others: this orders those made so far before
   what follows (the mutex that hands their memory to another thread). */
void publish_streamed() {
#if defined(SIBDUMP_STREAMING_STORES)
  _mm_sfence();
#endif
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

ssize_t CellOutput::append_records(void* cookie, const char* buf, size_t size) {
  CellOutput* o = static_cast<CellOutput*>(cookie);
  o->records_->append(buf, size);
  return static_cast<ssize_t>(size);
}

ssize_t CellOutput::append_text(void* cookie, const char* buf, size_t size) {
  CellOutput* o = static_cast<CellOutput*>(cookie);
  o->buffers_[o->current_].text.append(buf, size);
  return static_cast<ssize_t>(size);
}

ssize_t CellOutput::append_messages(void* cookie, const char* buf, size_t size) {
  CellOutput* o = static_cast<CellOutput*>(cookie);
  o->buffers_[o->current_].messages.append(buf, size);
  return static_cast<ssize_t>(size);
}

CellOutput::CellOutput()
    : records_stream_(append_stream(this, append_records)), text_stream_(append_stream(this, append_text)),
      messages_stream_(append_stream(this, append_messages)) {}

CellOutput::~CellOutput() {
  std::fclose(records_stream_);
  std::fclose(text_stream_);
  std::fclose(messages_stream_);
}

struct ParallelFeed::Cell {
  std::unique_ptr<CellOutput> out;
  CellDecoding decoding;
  /* Under the mutex: whether a thread is decoding the cell, the last search for a unit that
     passed the cell over, the thread that decoded it last. Apart from the calling thread's
     fields below: what one processor writes often lies in a cache line of its own. */
  alignas(64) bool busy = false;
  unsigned long passed = 0;
  unsigned thread = 0;
  /* The calling thread's: the batch whose unit of this cell is being gathered, and its place. */
  alignas(64) unsigned long gathering = ULONG_MAX;
  size_t unit = 0;
  /* The calling thread's, while it writes a batch out: the cell's frames written, where its
     buffers were written up to (its records alone, in a batch of records only), its
     deferred actions run. */
  size_t written = 0, deferred_run = 0, records_written = 0;
  const CellOutput::Ends* at = nullptr;
  const std::string* source = nullptr; /* the sender of the cell's frames (none: the frames of no cell) */
};

/* A frame, in its unit. */
struct ParallelFeed::Item {
  enum Kind : uint8_t { kDatagram, kBad } kind;
  uint16_t source_port, destination_port;
  uint32_t place;          /* in the batch */
  uint32_t offset, length; /* the datagram's octets in the unit's arena */
  uint32_t text;           /* in the unit's texts: the sender (kOwnSource: the cell's), or for kBad the message */
  unsigned long number;
  uint64_t time_us;
};

/* A batch's frames of one cell, and their octets, one after the other: the thread that
   decodes them reads them in the order they lie, rather than picking them out of the
   batch's frames of every cell. */
struct ParallelFeed::Unit {
  Cell* cell = nullptr;
  TextBuffer items; /* Item after Item, streamed */
  TextBuffer arena; /* the datagrams' octets, streamed */
  std::vector<std::string> texts; /* for the frames of no cell */
  bool taken = false;             /* under the mutex */
};

namespace {
constexpr uint32_t kOwnSource = UINT32_MAX;
}

struct ParallelFeed::Shared {
  unsigned threads = 1;
  std::function<CellDecoding(CellOutput&)> make_feed;
  std::vector<std::unique_ptr<Cell>> cells; /* added by the calling thread only */
  Cell* no_cell = nullptr;                  /* frames whose cell is not known: reported there */
  std::vector<umts_sib_set*> sets;          /* each thread's result set */
  FILE* records = nullptr;
  FILE* text = nullptr;
  FILE* messages = nullptr;
  const char* unit = "frame";
  unsigned long not_gsmtap = 0;

  struct KeyHash {
    size_t operator()(const CellKey& k) const { return std::hash<std::string>()(k.first) * 31u + k.second; }
  };
  std::unordered_map<CellKey, Cell*, KeyHash> by_key;
  /* The cells last looked up, before `by_key` is searched. */
  struct Recent {
    CellKey key;
    Cell* cell;
  };
  std::vector<Recent> recent;
  size_t recent_next = 0;

  /* A batch: its units (the first `unit_count` of `units`, kept with their room from batch
     to batch) and the unit of each frame, in the order of the frames. The threads only read
     it, but for the units' and the batch's counts under the mutex. */
  struct alignas(64) Batch {
    std::vector<uint32_t> order;
    std::vector<Unit> units;
    size_t unit_count = 0;
    size_t first_open = 0; /* the units before it are taken (under the mutex) */
    size_t units_done = 0; /* under the mutex */
  };
  Batch batches[kParallelBatches]; /* batch number n lies at n % kParallelBatches */
  std::vector<iovec> pieces;       /* write_records_only's list, kept for its room */

  std::vector<std::thread> pool;
  alignas(64) std::mutex mutex;
  std::condition_variable work, done;
  /* Batch numbers, counted from the first: those handed to the threads, the first with a unit
     not taken (both under the mutex), those written out (by the calling thread). The batch
     gathered is number `handed`. */
  unsigned long handed = 0;
  unsigned long open = 0;
  unsigned long written = 0;
  /* Under the mutex: searches for a unit so far, units decoded so far, threads waiting for a
     unit, whether the calling thread waits for one to be decoded. */
  unsigned long searches = 0;
  unsigned long units_decoded = 0;
  unsigned idle = 0;
  bool caller_waits = false;
  bool stop = false;

  Batch& batch(unsigned long number) { return batches[number % kParallelBatches]; }
  Cell* new_cell() {
    cells.emplace_back(new Cell);
    Cell* c = cells.back().get();
    c->out.reset(new CellOutput);
    c->decoding = make_feed(*c->out);
    return c;
  }
};

ParallelFeed::ParallelFeed(unsigned workers, const std::function<CellDecoding(CellOutput& out)>& make_feed,
                           FILE* records, FILE* text, FILE* messages, const char* unit)
    : shared_(new Shared) {
  Shared& s = *shared_;
  s.threads = workers == 0 ? 1 : workers;
  s.make_feed = make_feed;
  s.records = records;
  s.text = text;
  s.messages = messages;
  s.unit = unit;
  s.no_cell = s.new_cell();
  for (unsigned t = 0; t < s.threads; t++) {
    umts_sib_set* set = umts_sib_set_alloc();
    if (set == nullptr) {
      std::fprintf(stderr, "sibdump: out of memory\n");
      std::exit(2);
    }
    s.sets.push_back(set);
  }
  for (Shared::Batch& b : s.batches) b.order.reserve(kBatchFrames);
  /* The calling thread is one of the threads: N jobs are N threads on N processors. */
  for (unsigned t = 1; t < s.threads; t++) {
    s.pool.emplace_back([this, t] {
      Shared& sh = *shared_;
      for (;;) {
        unsigned long batch;
        size_t unit;
        {
          std::unique_lock<std::mutex> lock(sh.mutex);
          while (!take_unit(t, &batch, &unit)) {
            if (sh.stop) return;
            sh.idle++;
            sh.work.wait(lock);
            sh.idle--;
          }
        }
        decode_unit(t, batch, unit);
      }
    });
  }
}

ParallelFeed::~ParallelFeed() {
  Shared& s = *shared_;
  work_until(1);
  {
    std::lock_guard<std::mutex> lock(s.mutex);
    s.stop = true;
  }
  s.work.notify_all();
  for (std::thread& t : s.pool) t.join();
  s.cells.clear();
  for (umts_sib_set* set : s.sets) umts_sib_set_free(set);
}

ParallelFeed::Cell* ParallelFeed::cell_of(const std::string& source, uint16_t arfcn) {
  Shared& s = *shared_;
  /* A capture comes from a few cells at a time: they are found among the last ones. */
  constexpr size_t kRecent = 16;
  for (const Shared::Recent& r : s.recent)
    if (r.key.second == arfcn && r.key.first == source) return r.cell;
  CellKey key(source, arfcn);
  Cell* c;
  auto it = s.by_key.find(key);
  if (it != s.by_key.end()) {
    c = it->second;
  } else {
    c = s.new_cell();
    c->source = &s.by_key.emplace(key, c).first->first.first;
  }
  if (s.recent.size() < kRecent) {
    s.recent.push_back(Shared::Recent{std::move(key), c});
  } else {
    s.recent[s.recent_next] = Shared::Recent{std::move(key), c};
    s.recent_next = (s.recent_next + 1) % kRecent;
  }
  return c;
}

ParallelFeed::Unit& ParallelFeed::unit_of(Cell* c) {
  Shared& s = *shared_;
  Shared::Batch& b = s.batch(s.handed);
  if (c->gathering != s.handed) {
    c->gathering = s.handed;
    c->unit = b.unit_count++;
    if (b.units.size() < b.unit_count) b.units.emplace_back();
    b.units[c->unit].cell = c;
  }
  return b.units[c->unit];
}

void ParallelFeed::add(Unit& unit, const Item& item) {
  Shared& s = *shared_;
  Shared::Batch& b = s.batch(s.handed);
  static_assert(sizeof(Item) % 8 == 0, "items lie one after the other, each from a multiple of 8 octets");
  Item placed = item;
  placed.place = static_cast<uint32_t>(b.order.size());
  append_streamed(unit.items, &placed, sizeof placed);
  b.order.push_back(unit.cell->unit);
  if (b.order.size() >= kBatchFrames) next_batch();
}

void ParallelFeed::datagram(unsigned long number, uint64_t time_us, const gsmtap::Datagram& d) {
  Shared& s = *shared_;
  /* The cell decides the feed; a datagram whose header cannot be read goes to the feed of no
     cell, which reports it. */
  gsmtap::Header h;
  size_t message_at = 0;
  std::string why;
  Cell* cell = s.no_cell;
  if (gsmtap::parse_header(d.payload, d.length, &h, &message_at, &why))
    cell = cell_of(d.source, gsmtap::arfcn_number(h.arfcn));
  Unit& unit = unit_of(cell);
  uint32_t text = kOwnSource;
  if (cell->source == nullptr) {
    text = static_cast<uint32_t>(unit.texts.size());
    unit.texts.push_back(d.source);
  }
  const size_t offset = append_streamed(unit.arena, d.payload, d.length);
  add(unit, Item{Item::kDatagram, d.source_port, d.destination_port, 0, static_cast<uint32_t>(offset),
                 static_cast<uint32_t>(d.length), text, number, time_us});
}

void ParallelFeed::not_gsmtap() { shared_->not_gsmtap++; }

void ParallelFeed::bad(unsigned long number, const std::string& why) {
  Unit& unit = unit_of(shared_->no_cell);
  unit.texts.push_back(why);
  add(unit, Item{Item::kBad, 0, 0, 0, 0, 0, static_cast<uint32_t>(unit.texts.size() - 1), number, 0});
}

void ParallelFeed::finish() {
  Shared& s = *shared_;
  if (!s.batch(s.handed).order.empty()) next_batch();
  work_until(1);
}

bool ParallelFeed::take_unit(unsigned thread, unsigned long* batch, size_t* unit) {
  Shared& s = *shared_;
  auto take = [&](unsigned long n, size_t u) {
    Shared::Batch& b = s.batch(n);
    Unit& taken = b.units[u];
    taken.taken = true;
    taken.cell->busy = true;
    taken.cell->thread = thread;
    while (b.first_open < b.unit_count && b.units[b.first_open].taken) b.first_open++;
    while (s.open < s.handed && s.batch(s.open).first_open == s.batch(s.open).unit_count) s.open++;
    *batch = n;
    *unit = u;
    return true;
  };
  /* A cell passed over in this search (busy, with a unit not taken, or one that may be
     taken but not the thread's own) is not taken from a later batch either. A thread keeps
     to the cells it decoded last while it finds one of them: a cell's state lies in the
     cache of the processor that decoded it, and fetching it from the other costs more than
     decoding a unit's frames. With none of its own, it takes the first that may be taken. */
  const unsigned long search = ++s.searches;
  unsigned long first_batch = 0;
  size_t first_unit = SIZE_MAX;
  for (unsigned long n = s.open; n < s.handed; n++) {
    Shared::Batch& b = s.batch(n);
    for (size_t u = b.first_open; u < b.unit_count; u++) {
      Unit& candidate = b.units[u];
      if (candidate.taken) continue;
      Cell& c = *candidate.cell;
      if (c.busy || c.passed == search) {
        c.passed = search;
        continue;
      }
      c.passed = search;
      if (c.thread == thread) return take(n, u);
      if (first_unit == SIZE_MAX) {
        first_batch = n;
        first_unit = u;
      }
    }
  }
  return first_unit != SIZE_MAX && take(first_batch, first_unit);
}

void ParallelFeed::decode_unit(unsigned thread, unsigned long batch, size_t unit) {
  Shared& s = *shared_;
  const int slot = static_cast<int>(batch % kParallelBatches);
  const Unit& u = s.batches[slot].units[unit];
  Cell& cell = *u.cell;
  cell.decoding.use_set(s.sets[thread]);
  CellFeed& feed = *cell.decoding.feed;
  CellOutput& out = *cell.out;
  out.current_ = slot;
  out.records_ = &out.buffers_[slot].records;
  CellOutput::Buffers& buffers = out.buffers_[slot];
  gsmtap::Datagram d;
  if (cell.source != nullptr) d.source = *cell.source;
  const uint8_t* const arena = reinterpret_cast<const uint8_t*>(u.arena.data);
  for (size_t at = 0; at < u.items.len; at += sizeof(Item)) {
    Item item;
    std::memcpy(&item, u.items.data + at, sizeof item);
    out.item_ = item.place;
    if (item.kind == Item::kBad) {
      feed.bad(item.number, u.texts[item.text]);
    } else {
      d.payload = arena + item.offset;
      d.length = item.length;
      if (item.text != kOwnSource) d.source = u.texts[item.text];
      d.source_port = item.source_port;
      d.destination_port = item.destination_port;
      feed.datagram(item.number, item.time_us, d);
    }
    buffers.ends.push_back(CellOutput::Ends{buffers.records.len, buffers.text.size(), buffers.messages.size()});
  }
  std::lock_guard<std::mutex> lock(s.mutex);
  cell.busy = false;
  s.batches[slot].units_done++;
  s.units_decoded++;
  if (s.caller_waits) s.done.notify_one();
  if (s.idle > 0) s.work.notify_one(); /* the cell's next unit may be waiting */
}

void ParallelFeed::write_finished() {
  Shared& s = *shared_;
  while (s.written < s.handed) {
    Shared::Batch& b = s.batch(s.written);
    {
      std::lock_guard<std::mutex> lock(s.mutex);
      if (b.units_done < b.unit_count) return;
    }
    write_batch(static_cast<int>(s.written % kParallelBatches));
    s.written++;
  }
}

void ParallelFeed::work_until(unsigned long room) {
  Shared& s = *shared_;
  for (;;) {
    write_finished();
    if (s.handed - s.written < room) return;
    unsigned long batch;
    size_t unit;
    {
      std::unique_lock<std::mutex> lock(s.mutex);
      if (!take_unit(0, &batch, &unit)) {
        /* Every unit left is being decoded, or waits for its cell: wait for one to be done,
           unless the oldest batch was done since it was last looked at (then nothing more
           may be decoded before it is written out). */
        const Shared::Batch& oldest = s.batch(s.written);
        if (oldest.units_done < oldest.unit_count) {
          const unsigned long decoded = s.units_decoded;
          s.caller_waits = true;
          s.done.wait(lock, [&] { return s.units_decoded != decoded; });
          s.caller_waits = false;
        }
        continue;
      }
    }
    decode_unit(0, batch, unit);
  }
}

void ParallelFeed::next_batch() {
  Shared& s = *shared_;
  publish_streamed();
  {
    std::lock_guard<std::mutex> lock(s.mutex);
    s.handed++;
    if (s.idle > 0) s.work.notify_all();
  }
  /* The next batch is gathered where the batch kParallelBatches before it lay: that one must
     be written out first. Until then the calling thread decodes too. */
  work_until(kParallelBatches);
}

void ParallelFeed::write_batch(int batch) {
  Shared& s = *shared_;
  if (write_records_only(batch)) return;
  Shared::Batch& b = s.batches[batch];
  static const CellOutput::Ends zero = {0, 0, 0};
  for (size_t u = 0; u < b.unit_count; u++) {
    Cell& c = *b.units[u].cell;
    c.written = c.deferred_run = 0;
    c.at = &zero;
  }
  for (size_t i = 0; i < b.order.size(); i++) {
    Cell& c = *b.units[b.order[i]].cell;
    CellOutput::Buffers& out = c.out->buffers_[batch];
    const CellOutput::Ends& end = out.ends[c.written++];
    /* The text may be going where the messages go (standard error): what came before first. */
    if (end.messages > c.at->messages && s.text != nullptr) std::fflush(s.text);
    put(s.messages, out.messages.data(), c.at->messages, end.messages);
    put(s.records, out.records.data, c.at->records, end.records);
    put(s.text, out.text.data(), c.at->text, end.text);
    c.at = &end;
    for (size_t& k = c.deferred_run; k < out.deferred.size() && out.deferred[k].first == i; k++) out.deferred[k].second();
  }
  clear_batch(batch);
}

/* The usual batch has records and nothing else: its records go to the stream's file as they
   lie in the cells' buffers, a frame's piece after the other, in a few gathered writes
   rather than a copy of each piece into the stream's buffer and a write for every few
   frames. Returns false, having written nothing, for any other batch or a stream that is no
   file. */
bool ParallelFeed::write_records_only(int batch) {
  Shared& s = *shared_;
  if (s.records == nullptr) return false;
  Shared::Batch& b = s.batches[batch];
  for (size_t u = 0; u < b.unit_count; u++) {
    const CellOutput::Buffers& out = b.units[u].cell->out->buffers_[batch];
    if (!out.text.empty() || !out.messages.empty() || !out.deferred.empty()) return false;
  }
  const int fd = fileno(s.records);
  if (fd < 0) return false;
  for (size_t u = 0; u < b.unit_count; u++) {
    Cell& c = *b.units[u].cell;
    c.written = 0;
    c.records_written = 0;
  }
  std::vector<iovec>& pieces = s.pieces;
  pieces.clear();
  for (const uint32_t u : b.order) {
    Cell& c = *b.units[u].cell;
    const CellOutput::Buffers& out = c.out->buffers_[batch];
    const size_t end = out.ends[c.written++].records;
    if (end == c.records_written) continue;
    char* from = out.records.data + c.records_written;
    const size_t length = end - c.records_written;
    c.records_written = end;
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
  Shared::Batch& b = s.batches[batch];
  for (size_t u = 0; u < b.unit_count; u++) {
    Unit& unit = b.units[u];
    CellOutput::Buffers& out = unit.cell->out->buffers_[batch];
    out.records.len = 0;
    out.text.clear();
    out.messages.clear();
    out.deferred.clear();
    out.ends.clear();
    unit.items.len = 0;
    unit.arena.len = 0;
    unit.texts.clear();
  }
  std::lock_guard<std::mutex> lock(s.mutex);
  for (size_t u = 0; u < b.unit_count; u++) b.units[u].taken = false;
  b.unit_count = b.first_open = b.units_done = 0;
  b.order.clear();
}

void ParallelFeed::summary(FILE* out, unsigned long frames) const {
  std::map<CellKey, CellCounts> cells;
  unsigned long not_gsmtap = shared_->not_gsmtap, bad = 0;
  for (const auto& c : shared_->cells) c->decoding.feed->add_counts(&cells, &not_gsmtap, &bad);
  CellFeed::write_counts(out, shared_->unit, frames, cells, not_gsmtap, bad);
}

unsigned long ParallelFeed::errors() const {
  unsigned long n = 0;
  for (const auto& c : shared_->cells) n += c->decoding.feed->errors();
  return n;
}
