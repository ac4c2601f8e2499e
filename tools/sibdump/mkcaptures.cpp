/*
 * mkcaptures: the sample cycle as GSMTAP captures, as a phone-to-GSMTAP bridge on the same
 * machine would have sent it and a capture on the loopback device would have kept it.
 *
 *   mkcaptures DIR   reads  DIR/fdd_cell.bch      the transport blocks (written by mksamples)
 *                    writes DIR/fdd_cell.pcap     one Ethernet frame per block: IPv4
 *                           DIR/fdd_cell.pcapng   127.0.0.1 to 127.0.0.1, UDP to port 4729,
 *                                                 GSMTAP UMTS RRC, sub-type BCCH-BCH
 *
 * The blocks follow each other one BCH TTI (20 ms) apart from 2026-01-01T00:00:00Z; the
 * GSMTAP frame number is the SFN of the block (two frames per TTI), the ARFCN the cell's
 * downlink UARFCN, 10700.
 */
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "capture_writer.h"

namespace {

constexpr uint64_t kStartUs = 1767225600ull * 1000000u; /* 2026-01-01T00:00:00Z */
constexpr uint64_t kTtiUs = 20000;
constexpr uint16_t kUarfcn = 10700;

int hex_value(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

/* The blocks of a file in sibdump's text form (the samples hold no blanks inside a block). */
bool read_blocks(const std::string& path, std::vector<capture::Bytes>* blocks) {
  std::ifstream in(path);
  if (!in) return false;
  for (std::string line; std::getline(in, line);) {
    const size_t hash = line.find('#');
    if (hash != std::string::npos) line.resize(hash);
    capture::Bytes block;
    int high = -1;
    for (char c : line) {
      if (c == ' ' || c == '\t' || c == '\r') continue;
      const int v = hex_value(c);
      if (v < 0) {
        std::fprintf(stderr, "mkcaptures: %s: bad hex digit '%c'\n", path.c_str(), c);
        return false;
      }
      if (high < 0) {
        high = v;
      } else {
        block.push_back(static_cast<uint8_t>(high << 4 | v));
        high = -1;
      }
    }
    if (high >= 0) {
      std::fprintf(stderr, "mkcaptures: %s: odd number of hex digits\n", path.c_str());
      return false;
    }
    if (!block.empty()) blocks->push_back(block);
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "Usage: mkcaptures DIR\nReads DIR/fdd_cell.bch, writes DIR/fdd_cell.pcap and DIR/fdd_cell.pcapng.\n");
    return 2;
  }
  const std::string dir = argv[1];
  std::vector<capture::Bytes> blocks;
  if (!read_blocks(dir + "/fdd_cell.bch", &blocks) || blocks.empty()) {
    std::fprintf(stderr, "mkcaptures: cannot read the transport blocks of %s/fdd_cell.bch\n", dir.c_str());
    return 1;
  }
  std::vector<capture::Frame> frames;
  for (size_t k = 0; k < blocks.size(); k++) {
    capture::GsmtapMessage m;
    m.arfcn = kUarfcn;
    m.frame_number = static_cast<uint32_t>(2 * k);
    m.message = blocks[k];
    frames.push_back({kStartUs + k * kTtiUs, capture::udp_frame(gsmtap::Link::ethernet, capture::Route(),
                                                                 capture::gsmtap_datagram(m)), 0});
  }
  for (const char* name : {"/fdd_cell.pcap", "/fdd_cell.pcapng"}) {
    const bool ng = std::strstr(name, "pcapng") != nullptr;
    const capture::Bytes file = ng ? capture::pcapng_file(gsmtap::Link::ethernet, frames)
                                   : capture::pcap_file(gsmtap::Link::ethernet, frames);
    if (!capture::write_file(dir + name, file)) {
      std::fprintf(stderr, "mkcaptures: cannot write %s%s: %s\n", dir.c_str(), name, std::strerror(errno));
      return 1;
    }
  }
  std::printf("mkcaptures: %zu transport blocks written to %s/fdd_cell.pcap and fdd_cell.pcapng\n", blocks.size(),
              dir.c_str());
  return 0;
}
