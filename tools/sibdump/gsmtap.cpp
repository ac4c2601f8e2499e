/*
 * GSMTAP over UDP: the layers around a datagram and the GSMTAP header.
 */
#include "gsmtap.h"

#include <arpa/inet.h>

#include <cstdio>

#include "umts_sib_decoder.h"

namespace gsmtap {

namespace {

uint16_t be16(const uint8_t* p) { return static_cast<uint16_t>(p[0] << 8 | p[1]); }
uint32_t be32(const uint8_t* p) {
  return static_cast<uint32_t>(p[0]) << 24 | static_cast<uint32_t>(p[1]) << 16 | static_cast<uint32_t>(p[2]) << 8 | p[3];
}

std::string text(const char* format, size_t a, size_t b = 0) {
  char buf[160];
  std::snprintf(buf, sizeof buf, format, a, b);
  return buf;
}

constexpr uint16_t kEtherIpv4 = 0x0800, kEtherIpv6 = 0x86DD, kEtherVlan = 0x8100, kEtherQinQ = 0x88A8;
constexpr uint8_t kProtoUdp = 17;

/* a.b.c.d into `out` (16 octets), as inet_ntop writes it: every frame of a capture needs its
   sender's address, and inet_ntop formats IPv4 through the C library's printf. */
void ipv4_text(const uint8_t* a, char* out) {
  for (int i = 0; i < 4; i++) {
    unsigned v = a[i];
    if (v >= 100) {
      *out++ = static_cast<char>('0' + v / 100);
      v %= 100;
      *out++ = static_cast<char>('0' + v / 10);
    } else if (v >= 10) {
      *out++ = static_cast<char>('0' + v / 10);
    }
    *out++ = static_cast<char>('0' + v % 10);
    *out++ = i < 3 ? '.' : '\0';
  }
}

/* The IP packet (v4 or v6 by its first nibble, or `only` when nonzero) at `ip`, with `avail`
   octets captured of it. */
Unwrap unwrap_ip(const uint8_t* ip, size_t avail, int only, Datagram* d, std::string* why) {
  if (avail < 1) {
    *why = "frame too short for its IP header (0 octets)";
    return Unwrap::damaged;
  }
  const int version = only != 0 ? only : ip[0] >> 4;
  const uint8_t* udp;
  size_t udp_avail;
  char address[INET6_ADDRSTRLEN] = "";
  if (version == 4) {
    if (avail < 20 || (ip[0] & 0x0F) * 4u < 20 || avail < (ip[0] & 0x0Fu) * 4u) {
      *why = text("frame too short for its IPv4 header (%zu octets)", avail);
      return Unwrap::damaged;
    }
    const size_t header = (ip[0] & 0x0Fu) * 4u;
    const size_t total = be16(ip + 2);
    /* A fragment other than a whole datagram is not read. */
    if (ip[9] != kProtoUdp || (be16(ip + 6) & 0x3FFFu) != 0) return Unwrap::other;
    if (total < header) {
      *why = text("IPv4 total length %zu is shorter than its header (%zu octets)", total, header);
      return Unwrap::damaged;
    }
    if (total > avail) {
      *why = text("IPv4 packet of %zu octets cut to %zu", total, avail);
      return Unwrap::damaged;
    }
    ipv4_text(ip + 12, address);
    udp = ip + header;
    udp_avail = total - header;
  } else if (version == 6) {
    if (avail < 40) {
      *why = text("frame too short for its IPv6 header (%zu octets)", avail);
      return Unwrap::damaged;
    }
    const size_t total = 40u + be16(ip + 4);
    if (total > avail) {
      *why = text("IPv6 packet of %zu octets cut to %zu", total, avail);
      return Unwrap::damaged;
    }
    /* Hop-by-hop, routing and destination options may stand before UDP. */
    uint8_t next = ip[6];
    size_t at = 40;
    while (next == 0 || next == 43 || next == 60) {
      if (at + 8 > total) {
        *why = text("IPv6 extension header beyond the packet's %zu octets", total);
        return Unwrap::damaged;
      }
      next = ip[at];
      at += 8u * (ip[at + 1] + 1u);
    }
    if (next != kProtoUdp || at > total) return Unwrap::other;
    inet_ntop(AF_INET6, ip + 8, address, sizeof address);
    udp = ip + at;
    udp_avail = total - at;
  } else {
    return Unwrap::other;
  }

  if (udp_avail < 8) {
    *why = text("frame too short for its UDP header (%zu octets)", udp_avail);
    return Unwrap::damaged;
  }
  const uint16_t source_port = be16(udp), destination_port = be16(udp + 2);
  if (source_port != kPort && destination_port != kPort) return Unwrap::other;
  const size_t length = be16(udp + 4);
  if (length < 8) {
    *why = text("UDP length %zu is shorter than its header", length);
    return Unwrap::damaged;
  }
  if (length > udp_avail) {
    *why = text("UDP datagram of %zu octets cut to %zu", length, udp_avail);
    return Unwrap::damaged;
  }
  d->payload = udp + 8;
  d->length = length - 8;
  d->source = address;
  d->source_port = source_port;
  d->destination_port = destination_port;
  return Unwrap::udp;
}

}  // namespace

bool parse_header(const uint8_t* data, size_t length, Header* h, size_t* message, std::string* why) {
  if (length < kHeaderOctets) {
    *why = text("UDP payload of %zu octets is shorter than the GSMTAP header (%zu)", length, kHeaderOctets);
    return false;
  }
  h->version = data[0];
  h->header_words = data[1];
  h->type = data[2];
  h->timeslot = data[3];
  h->arfcn = be16(data + 4);
  h->signal_dbm = static_cast<int8_t>(data[6]);
  h->snr_db = static_cast<int8_t>(data[7]);
  h->frame_number = be32(data + 8);
  h->sub_type = data[12];
  h->antenna = data[13];
  h->sub_slot = data[14];
  if (h->version != kVersion) {
    *why = text("GSMTAP version %zu (expected %zu)", h->version, kVersion);
    return false;
  }
  const size_t header = h->header_words * 4u;
  if (header < kHeaderOctets || header > length) {
    *why = text("GSMTAP header length %zu octets does not fit its %zu-octet datagram", header, length);
    return false;
  }
  *message = header;
  return true;
}

Use use_of(uint8_t sub_type, int* sib_id) {
  static const struct {
    uint8_t sub_type;
    umts_sib_id id;
  } kWhole[] = {
      {kSubMib, umts_sib_mib},     {kSubSib1, umts_sib_sib1},         {kSubSib2, umts_sib_sib2},
      {kSubSib3, umts_sib_sib3},   {kSubSib5, umts_sib_sib5},         {kSubSib7, umts_sib_sib7},
      {kSubSib11, umts_sib_sib11}, {kSubSib11bis, umts_sib_sib11bis}, {kSubSib12, umts_sib_sib12},
      {kSubSib18, umts_sib_sib18}, {kSubSb1, umts_sib_sb1},           {kSubSb2, umts_sib_sb2},
  };
  if (sub_type == kSubBcchBch) return Use::transport_block;
  for (const auto& w : kWhole) {
    if (w.sub_type == sub_type) {
      *sib_id = w.id;
      return Use::whole_sib;
    }
  }
  if (sub_type == kSubSib16 || sub_type == kSubSib19) return Use::not_converted;
  return Use::other;
}

Unwrap unwrap_frame(Link link, const uint8_t* frame, size_t captured, size_t on_wire, Datagram* d, std::string* why) {
  size_t at = 0;
  uint16_t protocol = 0;
  switch (link) {
    case Link::ethernet:
      at = 14;
      if (captured < at) break;
      protocol = be16(frame + 12);
      while ((protocol == kEtherVlan || protocol == kEtherQinQ) && captured >= at + 4) {
        protocol = be16(frame + at + 2);
        at += 4;
      }
      if (protocol == kEtherVlan || protocol == kEtherQinQ) at += 4; /* cut inside the tags */
      break;
    case Link::linux_sll:
      at = 16;
      if (captured >= at) protocol = be16(frame + 14);
      break;
    case Link::linux_sll2:
      at = 20;
      if (captured >= at) protocol = be16(frame);
      break;
    case Link::raw_ip:
    case Link::ipv4:
    case Link::ipv6:
      break;
  }
  if (captured < at) {
    *why = text("frame of %zu octets is too short for its link-layer header (%zu)", captured, at);
    return Unwrap::damaged;
  }
  int only = 0;
  if (link == Link::ipv4) only = 4;
  if (link == Link::ipv6) only = 6;
  if (at != 0) {
    if (protocol == kEtherIpv4) only = 4;
    else if (protocol == kEtherIpv6) only = 6;
    else return Unwrap::other;
  }
  const Unwrap r = unwrap_ip(frame + at, captured - at, only, d, why);
  if (r == Unwrap::damaged && captured < on_wire)
    *why += text(" (the capture kept %zu of the frame's %zu octets)", captured, on_wire);
  return r;
}

}  // namespace gsmtap
