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
 *
 *   mkcaptures --cells CELLS OUTPUT
 *                    writes OUTPUT (.pcap, .pcapng, or .bch: the transport blocks as hex
 *                    text, for CELLS of one cell) with the cells that CELLS describes, each
 *                    cell's whole SIBs cut into transport blocks by the BCH segmenter:
 *
 *     start SECONDS          time of the first frame (UTC, seconds since 1970; default
 *                            2026-01-01T00:00:00Z)
 *     part [CYCLES]          the cells that follow are heard together, their cycles sent
 *                            CYCLES times (default 1); parts follow each other in time
 *     cell SOURCE ARFCN      a cell: the sender's IP address and the GSMTAP ARFCN
 *     SIB-TYPE BITS HEX      one whole SIB of the cell (SIB-Type number, 0 the MIB, 27 SB1;
 *                            its encoding's bit count; the encoding), in the cycle's order
 *
 *   A part sends its cells in rounds one BCH TTI apart, a block of each cell per round (a
 *   cell whose cycle is shorter idles), the cells 100 us apart within a round. '#' starts a
 *   comment. Archives of many captures (the tests and the benchmark of the archive) are
 *   written this way.
 */
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "bch_segmenter.h"
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

/* One cell of a --cells part: where its datagrams come from, and its blocks. */
struct PlannedCell {
  std::string source;
  uint16_t arfcn = 0;
  std::vector<capture::Bytes> sibs;
  std::vector<umts_bch_sib> in;
  std::vector<capture::Bytes> blocks;
};
struct PlannedPart {
  unsigned cycles = 1;
  std::vector<PlannedCell> cells;
};

bool hex_octets(const std::string& text, capture::Bytes* out) {
  if (text.size() % 2 != 0) return false;
  for (size_t i = 0; i < text.size(); i += 2) {
    const int h = hex_value(text[i]), l = hex_value(text[i + 1]);
    if (h < 0 || l < 0) return false;
    out->push_back(static_cast<uint8_t>(h << 4 | l));
  }
  return true;
}

int cells_error(const std::string& path, unsigned line, const std::string& why) {
  std::fprintf(stderr, "mkcaptures: %s:%u: %s\n", path.c_str(), line, why.c_str());
  return 1;
}

/* Cuts a cell's SIBs into transport blocks (the MIB in a block of its own). */
bool cut_cell(PlannedCell& cell) {
  for (size_t i = 0; i < cell.in.size(); i++) cell.in[i].data = cell.sibs[i].data();
  std::vector<umts_bch_block> blocks(4096);
  uint32_t count = 0, failed = 0;
  const umts_bch_status st = umts_bch_segment(cell.in.data(), static_cast<uint32_t>(cell.in.size()), 0, blocks.data(),
                                              static_cast<uint32_t>(blocks.size()), &count, &failed);
  if (st != umts_bch_ok) {
    std::fprintf(stderr, "mkcaptures: cell %s ARFCN %u: SIB %u cannot be cut: %s\n", cell.source.c_str(),
                 static_cast<unsigned>(cell.arfcn), static_cast<unsigned>(failed), umts_bch_status_text(st));
    return false;
  }
  for (uint32_t k = 0; k < count; k++) cell.blocks.emplace_back(blocks[k].data, blocks[k].data + UMTS_BCH_BLOCK_OCTETS);
  return true;
}

/* The first 11 bits of a BCCH-BCH-Message are SFN' (SFN / 2). */
void set_sfn_prime(capture::Bytes& block, uint32_t sfn_prime) {
  const uint32_t first = (sfn_prime << 5) | (((block[0] << 8) | block[1]) & 0x1Fu);
  block[0] = static_cast<uint8_t>(first >> 8);
  block[1] = static_cast<uint8_t>(first);
}

int write_cells(const std::string& cells_path, const std::string& output) {
  std::ifstream in(cells_path);
  if (!in) return cells_error(cells_path, 0, "cannot open");
  uint64_t start_us = kStartUs;
  std::vector<PlannedPart> parts;
  unsigned number = 0;
  for (std::string line; std::getline(in, line);) {
    number++;
    const size_t hash = line.find('#');
    if (hash != std::string::npos) line.resize(hash);
    std::istringstream words(line);
    std::string word;
    if (!(words >> word)) continue;
    if (word == "start") {
      double seconds = 0;
      if (!(words >> seconds) || seconds < 0) return cells_error(cells_path, number, "start takes seconds since 1970");
      start_us = static_cast<uint64_t>(seconds * 1e6 + 0.5);
    } else if (word == "part") {
      parts.emplace_back();
      std::string cycles;
      if (words >> cycles) parts.back().cycles = static_cast<unsigned>(std::strtoul(cycles.c_str(), nullptr, 10));
      if (parts.back().cycles == 0) return cells_error(cells_path, number, "part takes a cycle count of 1 or more");
    } else if (word == "cell") {
      if (parts.empty()) parts.emplace_back();
      PlannedCell cell;
      unsigned arfcn = 0;
      if (!(words >> cell.source >> arfcn) || arfcn > 0x3FFF) return cells_error(cells_path, number, "cell takes SOURCE ARFCN");
      cell.arfcn = static_cast<uint16_t>(arfcn);
      parts.back().cells.push_back(cell);
    } else {
      if (parts.empty() || parts.back().cells.empty()) return cells_error(cells_path, number, "a SIB before any cell");
      PlannedCell& cell = parts.back().cells.back();
      umts_bch_sib sib{};
      std::string hex;
      sib.sib_type = static_cast<uint32_t>(std::strtoul(word.c_str(), nullptr, 10));
      capture::Bytes bytes;
      if (!(words >> sib.numbits >> hex) || !hex_octets(hex, &bytes) || sib.numbits == 0 || sib.numbits > bytes.size() * 8)
        return cells_error(cells_path, number, "expected SIB-TYPE BITS HEX");
      sib.own_block = sib.sib_type == 0 ? 1 : 0;
      cell.sibs.push_back(bytes);
      cell.in.push_back(sib);
    }
  }
  std::vector<capture::Frame> frames;
  std::vector<capture::Bytes> text_blocks;
  std::string text_cell;
  uint64_t round = 0;
  for (PlannedPart& part : parts) {
    size_t longest = 0;
    for (PlannedCell& cell : part.cells) {
      if (!cut_cell(cell)) return 1;
      longest = std::max(longest, cell.blocks.size());
    }
    for (unsigned c = 0; c < part.cycles; c++) {
      for (size_t k = 0; k < longest; k++, round++) {
        for (size_t i = 0; i < part.cells.size(); i++) {
          const PlannedCell& cell = part.cells[i];
          if (k >= cell.blocks.size()) continue;
          capture::Bytes block = cell.blocks[k];
          set_sfn_prime(block, static_cast<uint32_t>(round % 2048));
          text_blocks.push_back(block);
          const std::string who = cell.source + " " + std::to_string(cell.arfcn);
          if (text_cell.empty()) text_cell = who;
          else if (text_cell != who) text_cell = "several";
          capture::GsmtapMessage m;
          m.arfcn = cell.arfcn;
          m.frame_number = static_cast<uint32_t>(2 * round % 4096);
          m.message = std::move(block);
          capture::Route route;
          route.source = cell.source;
          frames.push_back({start_us + round * kTtiUs + i * 100,
                            capture::udp_frame(gsmtap::Link::ethernet, route, capture::gsmtap_datagram(m)), 0});
        }
      }
    }
  }
  const auto ends = [&output](const char* suffix) {
    const size_t n = std::strlen(suffix);
    return output.size() >= n && output.compare(output.size() - n, n, suffix) == 0;
  };
  capture::Bytes file;
  if (ends(".bch")) {
    if (text_cell == "several") {
      std::fprintf(stderr, "mkcaptures: %s: a text file of transport blocks holds one cell only\n", output.c_str());
      return 1;
    }
    std::string text = "# Transport blocks of one cell, written by mkcaptures --cells from " + cells_path + "\n";
    static const char digits[] = "0123456789abcdef";
    for (const capture::Bytes& b : text_blocks) {
      for (uint8_t o : b) {
        text += digits[o >> 4];
        text += digits[o & 15];
      }
      text += '\n';
    }
    file.assign(text.begin(), text.end());
  } else {
    file = ends(".pcapng") ? capture::pcapng_file(gsmtap::Link::ethernet, frames)
                           : capture::pcap_file(gsmtap::Link::ethernet, frames);
  }
  if (!capture::write_file(output, file)) {
    std::fprintf(stderr, "mkcaptures: cannot write %s: %s\n", output.c_str(), std::strerror(errno));
    return 1;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4 && std::strcmp(argv[1], "--cells") == 0) return write_cells(argv[2], argv[3]);
  if (argc != 2) {
    std::fprintf(stderr,
                 "Usage: mkcaptures DIR\nReads DIR/fdd_cell.bch, writes DIR/fdd_cell.pcap and DIR/fdd_cell.pcapng.\n"
                 "       mkcaptures --cells CELLS OUTPUT\nWrites the cells of CELLS (see the source) to OUTPUT "
                 "(.pcap, .pcapng or .bch).\n");
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
