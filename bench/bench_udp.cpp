// sibdump --udp under load: the transport blocks of bench/bch_cycle.bch (the sample cell's
// broadcast over one SFN cycle, in turn) as GSMTAP datagrams of one cell, sent over the
// loopback address by this program at a fixed rate, to a sibdump whose records go to
// /dev/null (or to a file, Arg 1). sibdump runs on one core (the last), the sender on another
// (the first), when there are two.
//
// Each run sends `rate` x 2 s datagrams (at most 400,000; the sender gives up after 10 s),
// then interrupts sibdump, which reads what is still queued and writes its counts. Counters:
// sent_per_s (the rate the sender held), received_per_s (the datagrams sibdump read over
// the time from the first datagram sent to sibdump's end), dropped (what sibdump says the
// kernel dropped), sibdump_cpu_us (sibdump's user and system time per datagram read, from
// its start to its end: under 10 us, one core holds 100,000 datagrams/s), unaccounted
// (sent - read - dropped: 0 when the drops are counted exactly).
//
// SIBDUMP=<path> runs another sibdump (one built from an earlier commit, for a comparison;
// one that counts no drops leaves all it lost in `unaccounted`).
#include <benchmark/benchmark.h>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sched.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <fcntl.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "capture_writer.h"

namespace {

using Bytes = std::vector<uint8_t>;

const std::vector<Bytes>& datagrams() {
  static const std::vector<Bytes> all = [] {
    std::vector<Bytes> out;
    std::ifstream in(UMTS_BENCH_DIR "/bch_cycle.bch");
    uint32_t fn = 0;
    for (std::string line; std::getline(in, line);) {
      if (line.empty() || line[0] == '#') continue;
      capture::GsmtapMessage m;
      m.arfcn = 10700;
      m.frame_number = fn++;
      for (size_t i = 0; i + 1 < line.size(); i += 2)
        m.message.push_back(static_cast<uint8_t>(std::stoul(line.substr(i, 2), nullptr, 16)));
      out.push_back(capture::gsmtap_datagram(m));
    }
    return out;
  }();
  return all;
}

double now_s() {
  timespec t;
  clock_gettime(CLOCK_MONOTONIC, &t);
  return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

void pin_to(int cpu) {
  if (cpu < 0) return;
  cpu_set_t set;
  CPU_ZERO(&set);
  CPU_SET(cpu, &set);
  sched_setaffinity(0, sizeof set, &set);
}

struct Sibdump {
  pid_t pid = -1;
  int err = -1;
};

// sibdump --udp 127.0.0.1:0, its records to `records`, its messages on a pipe.
Sibdump start(const std::string& records, int cpu) {
  const char* path = std::getenv("SIBDUMP");
  const std::string sibdump = path != nullptr && *path != '\0' ? path : SIBDUMP_PATH;
  int err[2];
  Sibdump s;
  if (pipe(err) != 0) return s;
  s.pid = fork();
  if (s.pid == 0) {
    pin_to(cpu);
    const int out = open(records.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    dup2(out, 1);
    dup2(err[1], 2);
    close(err[0]);
    execl(sibdump.c_str(), sibdump.c_str(), "--udp", "127.0.0.1:0", static_cast<char*>(nullptr));
    _exit(127);
  }
  close(err[1]);
  s.err = err[0];
  return s;
}

// Reads `fd` into `text` until `until` is in it, the stream ends or `seconds` pass.
bool read_until(int fd, std::string* text, const char* until, double seconds) {
  const double end = now_s() + seconds;
  while (until == nullptr || text->find(until) == std::string::npos) {
    const double left = end - now_s();
    if (left <= 0) return false;
    pollfd p = {fd, POLLIN, 0};
    if (poll(&p, 1, static_cast<int>(left * 1000) + 1) <= 0) continue;
    char buf[4096];
    const ssize_t n = read(fd, buf, sizeof buf);
    if (n <= 0) return until == nullptr;
    text->append(buf, static_cast<size_t>(n));
  }
  return true;
}

// The number before `what` on the line that has it ("sibdump: 1664 datagrams read"), or -1.
long count_before(const std::string& text, const std::string& what) {
  const size_t at = text.find(what);
  if (at == std::string::npos) return -1;
  size_t start = at;
  while (start > 0 && text[start - 1] >= '0' && text[start - 1] <= '9') start--;
  return start == at ? -1 : std::atol(text.c_str() + start);
}

void BM_Sibdump_Udp(benchmark::State& state) {
  const long rate = state.range(0);
  const bool to_file = state.range(1) != 0;
  const long count = std::min(rate * 2, 400000L);
  const long cpus = sysconf(_SC_NPROCESSORS_ONLN);
  const std::vector<Bytes>& all = datagrams();
  std::string records = "/dev/null";
  if (to_file) {
    char dir[] = "/tmp/bench_udp_XXXXXX";
    if (mkdtemp(dir) == nullptr) {
      state.SkipWithError("cannot make a temporary directory");
      return;
    }
    records = std::string(dir) + "/records.json";
  }
  long sent = 0, read_count = -1, dropped = -1;
  double send_time = 0, run_time = 0, cpu_time = 0;
  for (auto _ : state) {
    Sibdump s = start(records, cpus > 1 ? static_cast<int>(cpus - 1) : -1);
    std::string err;
    const char* listening = "sibdump: listening for GSMTAP on 127.0.0.1:";
    if (s.pid < 0 || !read_until(s.err, &err, " (interrupt to stop)\n", 30)) {
      if (s.pid > 0) kill(s.pid, SIGKILL), waitpid(s.pid, nullptr, 0);
      state.SkipWithError(("sibdump did not start: " + err).c_str());
      return;
    }
    const int port = std::atoi(err.c_str() + err.find(listening) + std::strlen(listening));
    const int fd = socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in to;
    std::memset(&to, 0, sizeof to);
    to.sin_family = AF_INET;
    to.sin_port = htons(static_cast<uint16_t>(port));
    to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    pin_to(cpus > 1 ? 0 : -1);

    // Each datagram at its time (start + i / rate); when late, the sender catches up with
    // those due in one call (up to 32).
    constexpr unsigned kBatch = 32;
    mmsghdr msgs[kBatch];
    iovec iov[kBatch];
    const double start_s = now_s();
    const double give_up = start_s + 10;
    for (sent = 0; sent < count;) {
      const double t = now_s();
      if (t > give_up) break;
      const long due = std::min(count, static_cast<long>((t - start_s) * static_cast<double>(rate)) + 1);
      if (due <= sent) continue;
      const unsigned n = static_cast<unsigned>(std::min<long>(due - sent, kBatch));
      for (unsigned k = 0; k < n; k++) {
        const Bytes& d = all[static_cast<size_t>(sent + k) % all.size()];
        iov[k].iov_base = const_cast<uint8_t*>(d.data());
        iov[k].iov_len = d.size();
        std::memset(&msgs[k], 0, sizeof msgs[k]);
        msgs[k].msg_hdr.msg_name = &to;
        msgs[k].msg_hdr.msg_namelen = sizeof to;
        msgs[k].msg_hdr.msg_iov = &iov[k];
        msgs[k].msg_hdr.msg_iovlen = 1;
      }
      const int done = sendmmsg(fd, msgs, n, 0);
      if (done > 0) sent += done;
    }
    send_time = now_s() - start_s;
    close(fd);
    kill(s.pid, SIGINT);
    read_until(s.err, &err, nullptr, 60);
    int status = 0;
    rusage usage;
    wait4(s.pid, &status, 0, &usage);
    cpu_time = static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
               static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) * 1e-6;
    run_time = now_s() - start_s;
    close(s.err);
    read_count = count_before(err, " datagrams read");
    dropped = count_before(err, " datagrams dropped by the kernel before they were read");
    if (read_count < 0) {
      state.SkipWithError(("no counts from sibdump: " + err).c_str());
      return;
    }
  }
  if (to_file) {
    std::remove(records.c_str());
    std::remove(records.substr(0, records.rfind('/')).c_str());
  }
  state.counters["sent"] = static_cast<double>(sent);
  state.counters["sent_per_s"] = static_cast<double>(sent) / send_time;
  state.counters["received_per_s"] = static_cast<double>(read_count) / run_time;
  state.counters["dropped"] = static_cast<double>(dropped);
  state.counters["sibdump_cpu_us"] = cpu_time * 1e6 / static_cast<double>(std::max(read_count, 1L));
  state.counters["unaccounted"] = static_cast<double>(sent - read_count - std::max(dropped, 0L));
}
BENCHMARK(BM_Sibdump_Udp)
    ->ArgNames({"rate", "to_file"})
    ->Args({20000, 0})
    ->Args({50000, 0})
    ->Args({100000, 0})
    ->Args({100000, 1})
    ->Args({150000, 0})
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
