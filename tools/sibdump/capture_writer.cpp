/*
 * A small writer of GSMTAP captures in pcap and pcapng.
 */
#include "capture_writer.h"

#include <arpa/inet.h>

#include <cstdio>
#include <stdexcept>

namespace capture {

namespace {

void put16be(Bytes& b, uint32_t v) {
  b.push_back(static_cast<uint8_t>(v >> 8));
  b.push_back(static_cast<uint8_t>(v));
}
void put32be(Bytes& b, uint32_t v) {
  put16be(b, v >> 16);
  put16be(b, v & 0xFFFFu);
}
void put16le(Bytes& b, uint32_t v) {
  b.push_back(static_cast<uint8_t>(v));
  b.push_back(static_cast<uint8_t>(v >> 8));
}
void put32le(Bytes& b, uint32_t v) {
  put16le(b, v & 0xFFFFu);
  put16le(b, v >> 16);
}
void append(Bytes& b, const Bytes& more) { b.insert(b.end(), more.begin(), more.end()); }

/* The one's complement sum of the IPv4 header. */
uint16_t ip_checksum(const uint8_t* p, size_t n) {
  uint32_t sum = 0;
  for (size_t i = 0; i + 1 < n; i += 2) sum += static_cast<uint32_t>(p[i] << 8 | p[i + 1]);
  while (sum >> 16) sum = (sum & 0xFFFFu) + (sum >> 16);
  return static_cast<uint16_t>(~sum);
}

Bytes address_octets(const std::string& text, int* family) {
  uint8_t a[16];
  if (inet_pton(AF_INET, text.c_str(), a) == 1) {
    *family = 4;
    return Bytes(a, a + 4);
  }
  if (inet_pton(AF_INET6, text.c_str(), a) == 1) {
    *family = 6;
    return Bytes(a, a + 16);
  }
  throw std::invalid_argument("not an IP address: " + text);
}

}  // namespace

Bytes gsmtap_datagram(const GsmtapMessage& m) {
  Bytes b;
  b.push_back(gsmtap::kVersion);
  b.push_back(static_cast<uint8_t>(gsmtap::kHeaderOctets / 4));
  b.push_back(m.type);
  b.push_back(0); /* timeslot */
  put16be(b, m.arfcn);
  b.push_back(0); /* signal */
  b.push_back(0); /* SNR */
  put32be(b, m.frame_number);
  b.push_back(m.sub_type);
  b.push_back(0); /* antenna */
  b.push_back(0); /* sub-slot */
  b.push_back(0); /* reserved */
  append(b, m.message);
  return b;
}

Bytes udp_frame(gsmtap::Link link, const Route& route, const Bytes& payload) {
  int family = 0, family2 = 0;
  const Bytes source = address_octets(route.source, &family);
  const Bytes destination = address_octets(route.destination, &family2);
  if (family != family2) throw std::invalid_argument("source and destination of different IP versions");

  Bytes udp;
  put16be(udp, route.source_port);
  put16be(udp, route.destination_port);
  put16be(udp, static_cast<uint32_t>(8 + payload.size()));
  put16be(udp, 0); /* no checksum (IPv4); the tools do not check it */
  append(udp, payload);

  Bytes ip;
  if (family == 4) {
    ip = {0x45, 0x00};
    put16be(ip, static_cast<uint32_t>(20 + udp.size()));
    put16be(ip, 0);      /* identification */
    put16be(ip, 0x4000); /* don't fragment */
    ip.push_back(64);    /* TTL */
    ip.push_back(17);    /* UDP */
    put16be(ip, 0);
    append(ip, source);
    append(ip, destination);
    const uint16_t sum = ip_checksum(ip.data(), ip.size());
    ip[10] = static_cast<uint8_t>(sum >> 8);
    ip[11] = static_cast<uint8_t>(sum);
  } else {
    ip = {0x60, 0, 0, 0};
    put16be(ip, static_cast<uint32_t>(udp.size()));
    ip.push_back(17);
    ip.push_back(64);
    append(ip, source);
    append(ip, destination);
  }
  append(ip, udp);

  const uint16_t ethertype = family == 4 ? 0x0800 : 0x86DD;
  Bytes frame;
  switch (link) {
    case gsmtap::Link::ethernet:
      frame.assign(12, 0); /* destination and source MAC, as on the loopback device */
      put16be(frame, ethertype);
      break;
    case gsmtap::Link::linux_sll:
      put16be(frame, 0);   /* packet type: to us */
      put16be(frame, 772); /* ARPHRD_LOOPBACK */
      put16be(frame, 6);   /* address length */
      frame.resize(frame.size() + 8, 0);
      put16be(frame, ethertype);
      break;
    case gsmtap::Link::linux_sll2:
      put16be(frame, ethertype);
      put16be(frame, 0);   /* reserved */
      put32be(frame, 1);   /* interface index */
      put16be(frame, 772); /* ARPHRD_LOOPBACK */
      frame.push_back(0);  /* packet type */
      frame.push_back(6);  /* address length */
      frame.resize(frame.size() + 8, 0);
      break;
    case gsmtap::Link::raw_ip:
    case gsmtap::Link::ipv4:
    case gsmtap::Link::ipv6:
      break;
  }
  append(frame, ip);
  return frame;
}

uint32_t linktype_of(gsmtap::Link link) {
  switch (link) {
    case gsmtap::Link::ethernet:
      return 1;
    case gsmtap::Link::linux_sll:
      return 113;
    case gsmtap::Link::linux_sll2:
      return 276;
    case gsmtap::Link::raw_ip:
      return 101;
    case gsmtap::Link::ipv4:
      return 228;
    case gsmtap::Link::ipv6:
      return 229;
  }
  return 0;
}

constexpr uint32_t kSnapLength = 262144;

Bytes pcap_file(gsmtap::Link link, const std::vector<Frame>& frames) {
  Bytes b;
  put32le(b, 0xA1B2C3D4u); /* microsecond times */
  put16le(b, 2);
  put16le(b, 4);
  put32le(b, 0); /* zone */
  put32le(b, 0); /* accuracy */
  put32le(b, kSnapLength);
  put32le(b, linktype_of(link));
  for (const Frame& f : frames) {
    put32le(b, static_cast<uint32_t>(f.time_us / 1000000u));
    put32le(b, static_cast<uint32_t>(f.time_us % 1000000u));
    put32le(b, static_cast<uint32_t>(f.bytes.size()));
    put32le(b, f.on_wire != 0 ? f.on_wire : static_cast<uint32_t>(f.bytes.size()));
    append(b, f.bytes);
  }
  return b;
}

Bytes pcapng_file(gsmtap::Link link, const std::vector<Frame>& frames) {
  Bytes b;
  /* Section header block: byte-order magic, version 1.0, section length unknown. */
  put32le(b, 0x0A0D0D0Au);
  put32le(b, 28);
  put32le(b, 0x1A2B3C4Du);
  put16le(b, 1);
  put16le(b, 0);
  put32le(b, 0xFFFFFFFFu);
  put32le(b, 0xFFFFFFFFu);
  put32le(b, 28);
  /* Interface description block; the default time resolution is the microsecond. */
  put32le(b, 1);
  put32le(b, 20);
  put16le(b, linktype_of(link));
  put16le(b, 0);
  put32le(b, kSnapLength);
  put32le(b, 20);
  /* An enhanced packet block per frame. */
  for (const Frame& f : frames) {
    const uint32_t padded = static_cast<uint32_t>((f.bytes.size() + 3) & ~size_t{3});
    const uint32_t total = 32 + padded;
    put32le(b, 6);
    put32le(b, total);
    put32le(b, 0); /* interface */
    put32le(b, static_cast<uint32_t>(f.time_us >> 32));
    put32le(b, static_cast<uint32_t>(f.time_us & 0xFFFFFFFFu));
    put32le(b, static_cast<uint32_t>(f.bytes.size()));
    put32le(b, f.on_wire != 0 ? f.on_wire : static_cast<uint32_t>(f.bytes.size()));
    append(b, f.bytes);
    b.resize(b.size() + (padded - f.bytes.size()), 0);
    put32le(b, total);
  }
  return b;
}

bool write_file(const std::string& path, const Bytes& bytes) {
  FILE* f = std::fopen(path.c_str(), "wb");
  if (f == nullptr) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
  return std::fclose(f) == 0 && written;
}

}  // namespace capture
