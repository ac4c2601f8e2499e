// The entry code of the fuzz targets, shared by the libFuzzer programs and by the replay
// test of the default build, so that a saved input runs exactly the code that found it.
//
// Input formats:
//   bch      a sequence of transport blocks, each one length byte (its low 6 bits give
//            0..63 octets) followed by that many octets (fewer at the end of the input),
//            fed one after the other to umts_sib_decoder; segments carry across blocks.
//   sib_msg  first byte: below 0xF0, modulo 12 it is the umts_sib_id (all twelve); from
//            0xF0 up it is passed as it is, an id beyond the enumeration that a C caller
//            may pass and that must be refused. The rest is the SIB for
//            umts_sib_msg_decoder.
//   sib16    a SysInfoType16, handed to umts_convert_sib16 with a context and a decoded
//            area of this program's own (as a host calls it); the record must keep its
//            presence word to bit 0 and its open lists to their bounds.
//   gsmtap   first byte: modulo 6 the link of the frames (Ethernet, Linux cooked capture v1
//            and v2, raw IP, IPv4, IPv6); then frames, each two length bytes (big-endian;
//            fewer at the end of the input) and that many octets, taken as sibdump takes the
//            frames of a capture: link, IP and UDP layers, GSMTAP header, per-cell collection,
//            JSON of every converted record.
//   codec    the first two bytes, big-endian, modulo the registry's count pick the type;
//            the rest is decoded by its generated decoder, and a value that decodes is
//            encoded, decoded and encoded again.
//
// Each run starts and ends with an empty global context and frees all it allocated. A run
// returns an empty text when every check held, else a description of what broke.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace umts_fuzz {

std::string run_bch(const uint8_t* data, size_t size);
std::string run_sib_msg(const uint8_t* data, size_t size);
std::string run_sib16(const uint8_t* data, size_t size);
std::string run_gsmtap(const uint8_t* data, size_t size);
std::string run_codec(const uint8_t* data, size_t size);

// Sends everything that the library writes on standard output (its printf and puts, and the
// codec's print functions) to /dev/null for the life of the object, and sets the log
// threshold so that every log call of the library runs (into this program's silent log
// service).
class QuietOutput {
 public:
  QuietOutput();
  ~QuietOutput();
  QuietOutput(const QuietOutput&) = delete;
  QuietOutput& operator=(const QuietOutput&) = delete;

 private:
  int saved_stdout_;
};

}  // namespace umts_fuzz
