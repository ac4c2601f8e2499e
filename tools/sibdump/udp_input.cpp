/*
 * sibdump's live input: GSMTAP datagrams on a UDP socket, as a phone-to-GSMTAP bridge sends
 * them, decoded and written as they arrive until SIGINT or SIGTERM.
 *
 * Under load the datagrams are taken from the socket in batches and the records written out
 * when the socket goes quiet (or when the writer's buffer fills), not after each datagram.
 * The kernel drops what arrives while the receive buffer is full: on Linux those drops are
 * counted (the socket's drop counter, which comes with each datagram read and is read once
 * more at the end) and said in the counts and in the summaries.
 */
#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>
#ifdef __linux__
#include <linux/sock_diag.h> /* SK_MEMINFO_DROPS */
#endif

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "sibdump_inputs.h"

namespace {

volatile sig_atomic_t g_stop = 0;

void on_signal(int) { g_stop = 1; }

/* "[ADDRESS:]PORT", "[IPv6]:PORT"; the address defaults to 127.0.0.1. */
bool split_address(const std::string& where, std::string* host, std::string* port) {
  const size_t colon = where.rfind(':');
  if (colon == std::string::npos) {
    *host = "127.0.0.1";
    *port = where;
  } else {
    *host = where.substr(0, colon);
    *port = where.substr(colon + 1);
    if (host->size() >= 2 && (*host)[0] == '[' && host->back() == ']') *host = host->substr(1, host->size() - 2);
  }
  if (host->empty() || port->empty() || port->size() > 5 ||
      port->find_first_not_of("0123456789") != std::string::npos || std::stoul(*port) > 65535)
    return false;
  return true;
}

std::string address_text(const sockaddr_storage& a, bool with_port) {
  char host[INET6_ADDRSTRLEN] = "?";
  unsigned port = 0;
  if (a.ss_family == AF_INET) {
    const sockaddr_in* v4 = reinterpret_cast<const sockaddr_in*>(&a);
    inet_ntop(AF_INET, &v4->sin_addr, host, sizeof host);
    port = ntohs(v4->sin_port);
  } else if (a.ss_family == AF_INET6) {
    const sockaddr_in6* v6 = reinterpret_cast<const sockaddr_in6*>(&a);
    inet_ntop(AF_INET6, &v6->sin6_addr, host, sizeof host);
    port = ntohs(v6->sin6_port);
  }
  if (!with_port) return host;
  return (a.ss_family == AF_INET6 ? "[" + std::string(host) + "]" : std::string(host)) + ":" + std::to_string(port);
}

int open_socket(const char* where, std::string* bound) {
  std::string host, port;
  if (!split_address(where, &host, &port)) {
    std::fprintf(stderr, "sibdump: --udp needs [ADDRESS:]PORT, not '%s'\n", where);
    return -1;
  }
  addrinfo hints;
  std::memset(&hints, 0, sizeof hints);
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_DGRAM;
  hints.ai_flags = AI_PASSIVE | AI_NUMERICSERV;
  addrinfo* found = nullptr;
  const int gai = getaddrinfo(host.c_str(), port.c_str(), &hints, &found);
  if (gai != 0) {
    std::fprintf(stderr, "sibdump: --udp %s: %s\n", where, gai_strerror(gai));
    return -1;
  }
  int fd = -1;
  int last_errno = 0;
  for (addrinfo* a = found; a != nullptr && fd < 0; a = a->ai_next) {
    fd = socket(a->ai_family, a->ai_socktype | SOCK_CLOEXEC, a->ai_protocol);
    if (fd < 0) {
      last_errno = errno;
      continue;
    }
    if (bind(fd, a->ai_addr, a->ai_addrlen) != 0) {
      last_errno = errno;
      close(fd);
      fd = -1;
    }
  }
  freeaddrinfo(found);
  if (fd < 0) {
    std::fprintf(stderr, "sibdump: cannot listen on %s: %s\n", where, std::strerror(last_errno));
    return -1;
  }
  sockaddr_storage local;
  socklen_t length = sizeof local;
  std::memset(&local, 0, sizeof local);
  getsockname(fd, reinterpret_cast<sockaddr*>(&local), &length);
  *bound = address_text(local, true);
  return fd;
}

/* Asks for a receive buffer of `asked` bytes: beyond the system's limit where the process may
   (SO_RCVBUFFORCE), else up to it. Returns what was granted, in bytes of datagrams as asked
   (Linux reports twice that: its bookkeeping of each datagram counts too). */
size_t ask_receive_buffer(int fd, size_t asked) {
  const int value = static_cast<int>(asked);
  bool set = false;
#ifdef SO_RCVBUFFORCE
  set = setsockopt(fd, SOL_SOCKET, SO_RCVBUFFORCE, &value, sizeof value) == 0;
#endif
  if (!set) setsockopt(fd, SOL_SOCKET, SO_RCVBUF, &value, sizeof value);
  int granted = 0;
  socklen_t length = sizeof granted;
  if (getsockopt(fd, SOL_SOCKET, SO_RCVBUF, &granted, &length) != 0 || granted <= 0) return 0;
#ifdef __linux__
  granted /= 2;
#endif
  return static_cast<size_t>(granted);
}

uint64_t now_us() {
  timespec t;
  clock_gettime(CLOCK_REALTIME, &t);
  return static_cast<uint64_t>(t.tv_sec) * 1000000u + static_cast<uint64_t>(t.tv_nsec) / 1000u;
}

/* The datagrams waiting on the socket, taken a batch at a time without waiting, each with
   its sender, its time of arrival and the count of datagrams that the kernel had dropped
   before it. */
class Receiver {
 public:
  static constexpr unsigned kBatch = 64;

  explicit Receiver(int fd) : fd_(fd) {
#ifdef __linux__
    const int on = 1;
    drops_counted_ = setsockopt(fd, SOL_SOCKET, SO_RXQ_OVFL, &on, sizeof on) == 0;
    setsockopt(fd, SOL_SOCKET, SO_TIMESTAMP, &on, sizeof on);
    for (unsigned i = 0; i < kBatch; i++) {
      iov_[i].iov_base = slots_[i].data;
      iov_[i].iov_len = sizeof slots_[i].data;
      msgs_[i].msg_hdr.msg_iov = &iov_[i];
      msgs_[i].msg_hdr.msg_iovlen = 1;
    }
#endif
  }

  Receiver(const Receiver&) = delete;
  Receiver& operator=(const Receiver&) = delete;

  /* Up to kBatch datagrams: their number, 0 when none is waiting, -1 with errno. */
  int receive() {
#ifdef __linux__
    for (unsigned i = 0; i < kBatch; i++) {
      msgs_[i].msg_hdr.msg_name = &slots_[i].from;
      msgs_[i].msg_hdr.msg_namelen = sizeof slots_[i].from;
      msgs_[i].msg_hdr.msg_control = slots_[i].control;
      msgs_[i].msg_hdr.msg_controllen = sizeof slots_[i].control;
      msgs_[i].msg_hdr.msg_flags = 0;
    }
    const int n = recvmmsg(fd_, msgs_, kBatch, MSG_DONTWAIT, nullptr);
    if (n < 0) return errno == EAGAIN || errno == EWOULDBLOCK ? 0 : -1;
    for (int i = 0; i < n; i++) {
      Slot& s = slots_[i];
      s.length = msgs_[i].msg_len;
      s.time_us = 0;
      for (cmsghdr* c = CMSG_FIRSTHDR(&msgs_[i].msg_hdr); c != nullptr; c = CMSG_NXTHDR(&msgs_[i].msg_hdr, c)) {
        if (c->cmsg_level != SOL_SOCKET) continue;
        if (c->cmsg_type == SO_RXQ_OVFL) {
          uint32_t counter;
          std::memcpy(&counter, CMSG_DATA(c), sizeof counter);
          count_drops(counter);
        } else if (c->cmsg_type == SCM_TIMESTAMP) {
          timeval t;
          std::memcpy(&t, CMSG_DATA(c), sizeof t);
          s.time_us = static_cast<uint64_t>(t.tv_sec) * 1000000u + static_cast<uint64_t>(t.tv_usec);
        }
      }
      if (s.time_us == 0) s.time_us = now_us();
      s.dropped_before = dropped_;
    }
    return n;
#else
    Slot& s = slots_[0];
    socklen_t from_length = sizeof s.from;
    const ssize_t n = recvfrom(fd_, s.data, sizeof s.data, MSG_DONTWAIT, reinterpret_cast<sockaddr*>(&s.from), &from_length);
    if (n < 0) return errno == EAGAIN || errno == EWOULDBLOCK ? 0 : -1;
    s.length = static_cast<size_t>(n);
    s.time_us = now_us();
    s.dropped_before = 0;
    return 1;
#endif
  }

  const uint8_t* data(int i) const { return slots_[i].data; }
  size_t length(int i) const { return slots_[i].length; }
  const sockaddr_storage& from(int i) const { return slots_[i].from; }
  uint64_t time_us(int i) const { return slots_[i].time_us; }
  /* The datagrams that the kernel dropped before datagram i of the batch arrived. */
  uint64_t dropped_before(int i) const { return slots_[i].dropped_before; }

  /* Whether this system tells what the kernel drops. */
  bool drops_counted() const { return drops_counted_; }
  /* The datagrams dropped until now: the counter comes only with a datagram read, and those
     dropped after the last one read are added from the socket's own count. */
  uint64_t dropped_now() {
#if defined(__linux__) && defined(SO_MEMINFO)
    uint32_t info[SK_MEMINFO_VARS] = {};
    socklen_t length = sizeof info;
    if (drops_counted_ && getsockopt(fd_, SOL_SOCKET, SO_MEMINFO, info, &length) == 0 &&
        length > SK_MEMINFO_DROPS * sizeof(uint32_t))
      count_drops(info[SK_MEMINFO_DROPS]);
#endif
    return dropped_;
  }

 private:
  struct Slot {
    uint8_t data[65536];
    sockaddr_storage from;
    alignas(cmsghdr) unsigned char control[128];
    size_t length;
    uint64_t time_us;
    uint64_t dropped_before;
  };

  /* The kernel's counter is cumulative for the socket and 32 bits wide: what it grew by. */
  void count_drops(uint32_t counter) {
    dropped_ += static_cast<uint32_t>(counter - last_counter_);
    last_counter_ = counter;
  }

  int fd_;
  bool drops_counted_ = false;
  uint32_t last_counter_ = 0;
  uint64_t dropped_ = 0;
  Slot slots_[kBatch];
#ifdef __linux__
  iovec iov_[kBatch];
  mmsghdr msgs_[kBatch];
#endif
};

/* Whether two senders have the same address (their ports aside). */
bool same_host(const sockaddr_storage& a, const sockaddr_storage& b) {
  if (a.ss_family != b.ss_family) return false;
  if (a.ss_family == AF_INET)
    return reinterpret_cast<const sockaddr_in&>(a).sin_addr.s_addr == reinterpret_cast<const sockaddr_in&>(b).sin_addr.s_addr;
  if (a.ss_family == AF_INET6)
    return std::memcmp(&reinterpret_cast<const sockaddr_in6&>(a).sin6_addr, &reinterpret_cast<const sockaddr_in6&>(b).sin6_addr,
                       sizeof(in6_addr)) == 0;
  return false;
}

/* "16384 KiB", "208 KiB", "512 bytes" */
std::string size_text(size_t bytes) {
  if (bytes % 1024 != 0) return std::to_string(bytes) + " bytes";
  return std::to_string(bytes / 1024) + " KiB";
}

}  // namespace

int run_udp(const UdpInput& input, umts_sib_set* set, const RecordOutput& output, FILE* text) {
  const char* where = input.address != nullptr ? input.address : SIBDUMP_UDP_DEFAULT;
  std::string bound;
  const int fd = open_socket(where, &bound);
  if (fd < 0) return 2;
  const size_t asked = input.buffer != 0 ? input.buffer : SIBDUMP_UDP_BUFFER;
  const size_t granted = ask_receive_buffer(fd, asked);

  /* SIGINT and SIGTERM are held back except while waiting for a datagram and between two
     batches, so that one arriving during a batch ends the run after it. */
  sigset_t stop_signals, original, waiting;
  sigemptyset(&stop_signals);
  sigaddset(&stop_signals, SIGINT);
  sigaddset(&stop_signals, SIGTERM);
  sigprocmask(SIG_BLOCK, &stop_signals, &original);
  waiting = original;
  sigdelset(&waiting, SIGINT);
  sigdelset(&waiting, SIGTERM);
  struct sigaction action;
  std::memset(&action, 0, sizeof action);
  action.sa_handler = on_signal;
  sigemptyset(&action.sa_mask);
  struct sigaction old_int, old_term;
  sigaction(SIGINT, &action, &old_int);
  sigaction(SIGTERM, &action, &old_term);

  std::fprintf(stderr, "sibdump: listening for GSMTAP on %s (interrupt to stop)\n", bound.c_str());
  if (granted < asked)
    std::fprintf(stderr,
                 "sibdump: a receive buffer of %s was granted where %s was asked: the kernel drops what comes "
                 "while it is full (the limit is net.core.rmem_max; above it needs CAP_NET_ADMIN)\n",
                 size_text(granted).c_str(), size_text(asked).c_str());
  std::fflush(stderr);

  int status = 0;
  unsigned long received = 0;
  {
    CellFeed feed(set, output, "udp " + bound, "datagram", stderr, text);
    std::unique_ptr<Receiver> batches(new Receiver(fd)); /* 4 MiB: room for the largest datagrams */
    Receiver& receiver = *batches;
    /* Drops are said as they grow, at most once a second, and counted at the end. */
    uint64_t dropped = 0;
    uint64_t said_at_s = 0;
    auto note_dropped = [&](uint64_t now, bool at_end) {
      if (now == dropped) return;
      dropped = now;
      if (input.dropped) input.dropped(dropped);
      timespec t;
      clock_gettime(CLOCK_MONOTONIC, &t);
      const uint64_t second = static_cast<uint64_t>(t.tv_sec) + 1;
      if (at_end || second == said_at_s) return;
      said_at_s = second;
      std::fprintf(stderr, "sibdump: udp %s: %llu datagrams dropped by the kernel so far: the receive buffer (%s) was full\n",
                   bound.c_str(), static_cast<unsigned long long>(dropped), size_text(granted).c_str());
    };
    /* The sender's address as text, made again only when the sender changes. */
    sockaddr_storage last_from;
    std::memset(&last_from, 0, sizeof last_from);
    std::string source;
    auto take = [&](int n) {
      for (int i = 0; i < n; i++) {
        note_dropped(receiver.dropped_before(i), false);
        if (source.empty() || !same_host(receiver.from(i), last_from)) {
          last_from = receiver.from(i);
          source = address_text(last_from, false);
        }
        received++;
        gsmtap::Datagram d;
        d.payload = receiver.data(i);
        d.length = receiver.length(i);
        d.source = source;
        d.source_port = 0;
        d.destination_port = 0;
        feed.datagram(received, receiver.time_us(i), d);
      }
    };
    const timespec no_wait = {0, 0};
    while (!g_stop) {
      const int n = receiver.receive();
      if (n > 0) {
        take(n);
        /* A stop signal that came during the batch is taken here. */
        ppoll(nullptr, 0, &no_wait, &waiting);
        continue;
      }
      if (n < 0 && errno != EINTR) {
        std::fprintf(stderr, "sibdump: receiving: %s\n", std::strerror(errno));
        status = 2;
        break;
      }
      /* The socket is quiet: what was gathered goes out, then the wait. */
      if (output.flush) output.flush();
      pollfd p = {fd, POLLIN, 0};
      if (ppoll(&p, 1, nullptr, &waiting) < 0 && errno != EINTR) {
        std::fprintf(stderr, "sibdump: waiting for datagrams: %s\n", std::strerror(errno));
        status = 2;
        break;
      }
    }
    /* What the kernel had received before the stop is read still (as much as the buffer can
       hold, while more may be arriving). */
    for (size_t left = status == 0 ? granted / 256 + Receiver::kBatch : 0; left > 0;) {
      const int n = receiver.receive();
      if (n <= 0) break;
      take(n);
      left -= std::min(left, static_cast<size_t>(n));
    }
    note_dropped(receiver.dropped_now(), true);
    if (output.flush) output.flush();
    std::fprintf(stderr, "sibdump: %s; counts of this run:\n", g_stop ? "interrupted" : "stopped");
    feed.summary(stderr, received);
    if (receiver.drops_counted())
      std::fprintf(stderr, "sibdump: %llu datagrams dropped by the kernel before they were read (receive buffer %s)\n",
                   static_cast<unsigned long long>(dropped), size_text(granted).c_str());
    else
      std::fprintf(stderr, "sibdump: datagrams dropped by the kernel: not counted on this system\n");
    if (status == 0 && feed.errors() != 0) status = 1;
  }
  close(fd);
  sigaction(SIGINT, &old_int, nullptr);
  sigaction(SIGTERM, &old_term, nullptr);
  sigprocmask(SIG_SETMASK, &original, nullptr);
  return status;
}
