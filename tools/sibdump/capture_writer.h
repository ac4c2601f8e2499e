/*
 * A small writer of GSMTAP captures, in pcap and pcapng, for the samples and the tests:
 * GSMTAP messages in UDP datagrams, in IPv4 or IPv6 packets, in frames of Ethernet, Linux
 * cooked capture (v1, v2) or raw IP. Little-endian files, times in microseconds.
 */
#ifndef UMTS_TOOLS_CAPTURE_WRITER_H
#define UMTS_TOOLS_CAPTURE_WRITER_H

#include <stdint.h>

#include <string>
#include <vector>

#include "gsmtap.h"

namespace capture {

using Bytes = std::vector<uint8_t>;

/* One GSMTAP message: the header's fields that sibdump reads, and the RRC message. */
struct GsmtapMessage {
  uint8_t type = gsmtap::kTypeUmtsRrc;
  uint8_t sub_type = gsmtap::kSubBcchBch;
  uint16_t arfcn = 0;
  uint32_t frame_number = 0;
  Bytes message;
};
Bytes gsmtap_datagram(const GsmtapMessage& m);

/* Where a datagram travels: IPv4 addresses as "a.b.c.d", IPv6 ones with colons. */
struct Route {
  std::string source = "127.0.0.1";
  std::string destination = "127.0.0.1";
  uint16_t source_port = 40000;
  uint16_t destination_port = gsmtap::kPort;
};

/* The frame of one UDP payload on `link` (Link::ipv4/ipv6 are raw IP as well). */
Bytes udp_frame(gsmtap::Link link, const Route& route, const Bytes& payload);

struct Frame {
  uint64_t time_us;      /* since 1970-01-01T00:00:00Z */
  Bytes bytes;           /* as captured */
  uint32_t on_wire = 0;  /* the frame's length on the wire; 0: bytes.size() */
};

/* The link-layer type numbers of the files (LINKTYPE_*). */
uint32_t linktype_of(gsmtap::Link link);

/* Whole files. */
Bytes pcap_file(gsmtap::Link link, const std::vector<Frame>& frames);
Bytes pcapng_file(gsmtap::Link link, const std::vector<Frame>& frames);

/* Writes bytes to a file; false with errno set when it cannot. */
bool write_file(const std::string& path, const Bytes& bytes);

}  // namespace capture

#endif /* UMTS_TOOLS_CAPTURE_WRITER_H */
