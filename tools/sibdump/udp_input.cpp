/*
 * sibdump's live input: GSMTAP datagrams on a UDP socket, as a phone-to-GSMTAP bridge sends
 * them, decoded and written as they arrive until SIGINT or SIGTERM.
 */
#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include "sibdump_inputs.h"

namespace {

volatile sig_atomic_t g_stop = 0;

void on_signal(int) { g_stop = 1; }

/* "[ADDRESS:]PORT", "[IPv6]:PORT"; the address defaults to 127.0.0.1. */
bool split_address(const std::string& spec, std::string* host, std::string* port) {
  const size_t colon = spec.rfind(':');
  if (colon == std::string::npos) {
    *host = "127.0.0.1";
    *port = spec;
  } else {
    *host = spec.substr(0, colon);
    *port = spec.substr(colon + 1);
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

int open_socket(const char* spec, std::string* bound) {
  std::string host, port;
  if (!split_address(spec, &host, &port)) {
    std::fprintf(stderr, "sibdump: --udp needs [ADDRESS:]PORT, not '%s'\n", spec);
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
    std::fprintf(stderr, "sibdump: --udp %s: %s\n", spec, gai_strerror(gai));
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
    std::fprintf(stderr, "sibdump: cannot listen on %s: %s\n", spec, std::strerror(last_errno));
    return -1;
  }
  /* Room for bursts while the library decodes. */
  const int room = 1 << 20;
  setsockopt(fd, SOL_SOCKET, SO_RCVBUF, &room, sizeof room);
  sockaddr_storage local;
  socklen_t length = sizeof local;
  std::memset(&local, 0, sizeof local);
  getsockname(fd, reinterpret_cast<sockaddr*>(&local), &length);
  *bound = address_text(local, true);
  return fd;
}

uint64_t now_us() {
  timespec t;
  clock_gettime(CLOCK_REALTIME, &t);
  return static_cast<uint64_t>(t.tv_sec) * 1000000u + static_cast<uint64_t>(t.tv_nsec) / 1000u;
}

}  // namespace

int run_udp(const char* spec, umts_sib_set* set, const RecordOutput& output, FILE* text) {
  if (spec == nullptr) spec = SIBDUMP_UDP_DEFAULT;
  std::string bound;
  const int fd = open_socket(spec, &bound);
  if (fd < 0) return 2;

  /* SIGINT and SIGTERM are held back except while waiting for a datagram, so that one
     arriving between two datagrams ends the wait at once. */
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
  std::fflush(stderr);

  int status = 0;
  unsigned long received = 0;
  {
    CellFeed feed(set, output, "udp " + bound, "datagram", stderr, text);
    static uint8_t buffer[65536];
    while (!g_stop) {
      pollfd p = {fd, POLLIN, 0};
      const int ready = ppoll(&p, 1, nullptr, &waiting);
      if (ready < 0) {
        if (errno == EINTR) continue;
        std::fprintf(stderr, "sibdump: waiting for datagrams: %s\n", std::strerror(errno));
        status = 2;
        break;
      }
      sockaddr_storage from;
      socklen_t from_length = sizeof from;
      const ssize_t n = recvfrom(fd, buffer, sizeof buffer, MSG_DONTWAIT, reinterpret_cast<sockaddr*>(&from),
                                 &from_length);
      if (n < 0) {
        if (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR) continue;
        std::fprintf(stderr, "sibdump: receiving: %s\n", std::strerror(errno));
        status = 2;
        break;
      }
      received++;
      gsmtap::Datagram d;
      d.payload = buffer;
      d.length = static_cast<size_t>(n);
      d.source = address_text(from, false);
      d.source_port = 0;
      d.destination_port = 0;
      feed.datagram(received, now_us(), d);
    }
    if (output.flush) output.flush();
    std::fprintf(stderr, "sibdump: %s; counts of this run:\n", g_stop ? "interrupted" : "stopped");
    feed.summary(stderr, received);
    if (status == 0 && feed.errors() != 0) status = 1;
  }
  close(fd);
  sigaction(SIGINT, &old_int, nullptr);
  sigaction(SIGTERM, &old_term, nullptr);
  sigprocmask(SIG_SETMASK, &original, nullptr);
  return status;
}
