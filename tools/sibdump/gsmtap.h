/*
 * GSMTAP over UDP, as phone-to-GSMTAP bridges send it and captures hold it: the link, IP and
 * UDP layers around a datagram, the GSMTAP header, and what sibdump hands to the library for
 * each UMTS RRC sub-type.
 *
 * GSMTAP version 2: a 16-octet header (version, header length in 32-bit words, type,
 * timeslot, ARFCN, signal, SNR, frame number, sub-type, antenna, sub-slot, reserved), all
 * numbers big-endian, then the message. Type 12 is UMTS RRC; its sub-type names the RRC
 * message: 8 a BCCH-BCH-Message (a BCH transport block), 16 to 59 single SIBs.
 */
#ifndef UMTS_TOOLS_GSMTAP_H
#define UMTS_TOOLS_GSMTAP_H

#include <stddef.h>
#include <stdint.h>

#include <string>

namespace gsmtap {

constexpr uint16_t kPort = 4729;
constexpr uint8_t kVersion = 2;
constexpr size_t kHeaderOctets = 16;
constexpr uint8_t kTypeUmtsRrc = 12;
constexpr uint8_t kSubBcchBch = 8; /* BCCH-BCH-Message */

/* The whole-SIB sub-types of UMTS RRC. */
constexpr uint8_t kSubMib = 16, kSubSib1 = 17, kSubSib2 = 18, kSubSib3 = 19, kSubSib5 = 21, kSubSib7 = 24,
                  kSubSib11 = 28, kSubSib11bis = 29, kSubSib12 = 30, kSubSib16 = 51, kSubSib18 = 53, kSubSib19 = 54,
                  kSubSb1 = 58, kSubSb2 = 59;

struct Header {
  uint8_t version;
  uint8_t header_words; /* header length in 32-bit words */
  uint8_t type;
  uint8_t timeslot;
  uint16_t arfcn;       /* as sent; the flags are bits 15 (PCS) and 14 (uplink) */
  int8_t signal_dbm;
  int8_t snr_db;
  uint32_t frame_number;
  uint8_t sub_type;
  uint8_t antenna;
  uint8_t sub_slot;
};

/* The channel number without the PCS and uplink flags. */
inline uint16_t arfcn_number(uint16_t arfcn) { return static_cast<uint16_t>(arfcn & 0x3FFFu); }

/* Reads the header at the start of a UDP payload. On success *message is the offset of the
   message (the header length that the header gives). Otherwise false, with the reason. */
bool parse_header(const uint8_t* data, size_t length, Header* header, size_t* message, std::string* why);

/* What sibdump does with the message of a UMTS RRC sub-type. */
enum class Use {
  transport_block, /* umts_sib_decoder */
  whole_sib,       /* umts_sib_msg_decoder, for the slot of *sib_id */
  not_converted,   /* a SIB that the library does not convert (SIB16, SIB19) */
  other            /* not system information of the BCH */
};
Use use_of(uint8_t sub_type, int* sib_id);

/* The link layers of a capture. */
enum class Link { ethernet, linux_sll, linux_sll2, raw_ip, ipv4, ipv6 };

/* A UDP datagram inside a frame. */
struct Datagram {
  const uint8_t* payload;
  size_t length;
  std::string source; /* the sender's IP address, as text */
  uint16_t source_port;
  uint16_t destination_port;
};

enum class Unwrap {
  udp,     /* *datagram is set */
  other,   /* a frame of some other protocol, or UDP to ports other than GSMTAP's */
  damaged  /* too short for its headers, or cut by the capture; *why says how */
};

/* Takes the link, IP (v4 or v6) and UDP headers off a frame of `captured` octets (of
   `on_wire` octets on the wire). Only datagrams from or to the GSMTAP port are kept. */
Unwrap unwrap_frame(Link link, const uint8_t* frame, size_t captured, size_t on_wire, Datagram* datagram,
                    std::string* why);

}  // namespace gsmtap

#endif /* UMTS_TOOLS_GSMTAP_H */
