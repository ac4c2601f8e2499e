/*
 * sibdump's capture input: pcap and pcapng files of GSMTAP over UDP, read through libpcap,
 * on Ethernet, Linux cooked capture (v1, v2) or raw IP.
 */
#include <stdio_ext.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "sibdump_inputs.h"

#ifdef UMTS_HAVE_PCAP
#include <pcap/pcap.h>
#endif

namespace {

/* A stream that gives the octets already read from `in`, then the rest of `in`. */
struct Peeked {
  FILE* in;
  unsigned char head[4];
  size_t count;
  size_t at;
  /* A file is read 128 KiB at a time rather than in the C library's 4 KiB: a capture of ten
     million frames is a gigabyte. The buffer lives until `in` is closed; it is not cleared
     (only what is read is touched), and no larger than the file. Not larger either: each page
     of it costs a fault at its first touch, and the reads that a larger buffer saves cost
     less than those faults (a megabyte took 225 faults on a 900 KB capture against 7 reads
     of 128 KiB; a run over it 1,202 -> 1,011 faults). */
  std::unique_ptr<char[]> buffer;
};

ssize_t peeked_read(void* cookie, char* buf, size_t size) {
  Peeked* p = static_cast<Peeked*>(cookie);
  size_t n = 0;
  while (n < size && p->at < p->count) buf[n++] = static_cast<char>(p->head[p->at++]);
  if (n < size) {
    n += std::fread(buf + n, 1, size - n, p->in);
    if (n == 0 && std::ferror(p->in)) return -1;
  }
  return static_cast<ssize_t>(n);
}

int peeked_close(void* cookie) {
  Peeked* p = static_cast<Peeked*>(cookie);
  const int r = p->in != stdin ? std::fclose(p->in) : 0;
  delete p;
  return r;
}

}  // namespace

FILE* peek_input(FILE* in, const char* name, bool* is_capture) {
  Peeked* p = new Peeked{in, {0, 0, 0, 0}, 0, 0, nullptr};
  struct stat st;
  if (in != stdin && fstat(fileno(in), &st) == 0 && S_ISREG(st.st_mode) && st.st_size > 8192) {
    const size_t size = std::min<size_t>(size_t(128) << 10, static_cast<size_t>(st.st_size));
    p->buffer.reset(new char[size]);
    std::setvbuf(in, p->buffer.get(), _IOFBF, size);
  }
  p->count = std::fread(p->head, 1, sizeof p->head, in);
  static const unsigned char kMagics[][4] = {
      {0xD4, 0xC3, 0xB2, 0xA1}, {0xA1, 0xB2, 0xC3, 0xD4}, /* pcap, microseconds */
      {0x4D, 0x3C, 0xB2, 0xA1}, {0xA1, 0xB2, 0x3C, 0x4D}, /* pcap, nanoseconds */
      {0x0A, 0x0D, 0x0D, 0x0A},                           /* pcapng section header */
  };
  *is_capture = false;
  for (const auto& m : kMagics)
    if (p->count == 4 && std::memcmp(p->head, m, 4) == 0) *is_capture = true;
  const cookie_io_functions_t io = {peeked_read, nullptr, nullptr, peeked_close};
  FILE* f = fopencookie(p, "r", io);
  if (f == nullptr) {
    std::fprintf(stderr, "sibdump: cannot read '%s': %s\n", name, std::strerror(errno));
    peeked_close(p);
    return nullptr;
  }
  /* One thread reads a file: the stream's lock, taken at each of its small reads once the
     process has threads (--jobs), protects nothing. */
  __fsetlocking(in, FSETLOCKING_BYCALLER);
  __fsetlocking(f, FSETLOCKING_BYCALLER);
  return f;
}

int run_capture(FILE* in, const char* name, FrameSink& feed, FILE* messages) {
  const long frames = read_capture(in, name, feed, messages);
  feed.finish();
  if (frames < 0) return 2;
  feed.summary(messages, static_cast<unsigned long>(frames));
  return feed.errors() != 0 ? 1 : 0;
}

#ifndef UMTS_HAVE_PCAP

bool capture_input_available() { return false; }

long read_capture(FILE* in, const char* name, FrameSink&, FILE* messages) {
  std::fclose(in);
  std::fprintf(messages,
               "sibdump: %s is a pcap or pcapng capture, but this sibdump was built without capture input "
               "(%s)\n",
               name, UMTS_NO_CAPTURE_REASON);
  return -1;
}

#else

bool capture_input_available() { return true; }

namespace {

bool link_of(int dlt, gsmtap::Link* link) {
  switch (dlt) {
    case DLT_EN10MB:
      *link = gsmtap::Link::ethernet;
      return true;
    case DLT_LINUX_SLL:
      *link = gsmtap::Link::linux_sll;
      return true;
#ifdef DLT_LINUX_SLL2
    case DLT_LINUX_SLL2:
      *link = gsmtap::Link::linux_sll2;
      return true;
#endif
    case DLT_RAW:
      *link = gsmtap::Link::raw_ip;
      return true;
#ifdef DLT_IPV4
    case DLT_IPV4:
      *link = gsmtap::Link::ipv4;
      return true;
#endif
#ifdef DLT_IPV6
    case DLT_IPV6:
      *link = gsmtap::Link::ipv6;
      return true;
#endif
    default:
      return false;
  }
}

}  // namespace

long read_capture(FILE* in, const char* name, FrameSink& feed, FILE* messages) {
  char error[PCAP_ERRBUF_SIZE] = "";
  pcap_t* pcap = pcap_fopen_offline_with_tstamp_precision(in, PCAP_TSTAMP_PRECISION_MICRO, error);
  if (pcap == nullptr) {
    std::fclose(in);
    std::fprintf(messages, "sibdump: %s: not a capture that can be read: %s\n", name, error);
    return -1;
  }
  gsmtap::Link link;
  const int dlt = pcap_datalink(pcap);
  if (!link_of(dlt, &link)) {
    const char* dlt_name = pcap_datalink_val_to_name(dlt);
    std::fprintf(messages,
                 "sibdump: %s: link-layer type %d (%s) is not read: captures on Ethernet, Linux cooked capture "
                 "(v1, v2) or raw IP only\n",
                 name, dlt, dlt_name != nullptr ? dlt_name : "unknown");
    pcap_close(pcap); /* closes `in` */
    return -1;
  }

  long frames = 0;
  for (;;) {
    struct pcap_pkthdr* header = nullptr;
    const u_char* data = nullptr;
    const int r = pcap_next_ex(pcap, &header, &data);
    if (r == PCAP_ERROR_BREAK) break; /* the end of the file */
    if (r != 1) {
      feed.bad(static_cast<unsigned long>(frames) + 1, std::string("damaged capture, reading stops here (") +
                                                           pcap_geterr(pcap) + "); the frames before it are kept");
      break;
    }
    frames++;
    const uint64_t time_us = static_cast<uint64_t>(header->ts.tv_sec) * 1000000u +
                             static_cast<uint64_t>(header->ts.tv_usec);
    gsmtap::Datagram d;
    std::string why;
    switch (gsmtap::unwrap_frame(link, data, header->caplen, header->len, &d, &why)) {
      case gsmtap::Unwrap::udp:
        feed.datagram(static_cast<unsigned long>(frames), time_us, d);
        break;
      case gsmtap::Unwrap::other:
        feed.not_gsmtap();
        break;
      case gsmtap::Unwrap::damaged:
        feed.bad(static_cast<unsigned long>(frames), why);
        break;
    }
  }
  pcap_close(pcap); /* closes `in` */
  return frames;
}

#endif /* UMTS_HAVE_PCAP */
