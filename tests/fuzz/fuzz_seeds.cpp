// Writes the seed corpora of the fuzz targets from the sample cell and the round-trip
// vector files, in the input formats of fuzz_entries.h:
//
//   fuzz_seeds <out-dir> <samples-dir> [<vector-file>...]
//
// <out-dir>/bch: each sample transport block, every run of three, and the whole cycle;
// the BCCH-BCH-Message vectors; SIBs over two blocks of a live network, and a MIB that
// schedules SIB11bis with the SIB11bis at its place. <out-dir>/gsmtap: the frames of the sample
// capture (samples/fdd_cell.pcap), each alone and all in order. <out-dir>/sib_msg: each sample SIB and the vectors of the
// twelve SIB types, behind their umts_sib_id. <out-dir>/codec: every vector and every sample
// behind the registry index of its type. A missing vector file is skipped. Files are named
// after a hash of their contents, so that a seed written twice is one file.
#include <sys/stat.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "codec_test_util.h"
#include "umts_rrc_registry.h"

namespace {

using Bytes = std::vector<uint8_t>;
using testutil::fromHex;

struct Writer {
  std::string dir;
  int count = 0;

  void put(const Bytes& bytes) {
    uint64_t h = 14695981039346656037ull;
    for (uint8_t b : bytes) h = (h ^ b) * 1099511628211ull;
    char name[32];
    std::snprintf(name, sizeof name, "/%016llx", static_cast<unsigned long long>(h));
    std::ofstream out(dir + name, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    count++;
  }
};

// A transport block as one element of a bch input; blocks beyond 63 octets do not fit.
bool appendBlock(Bytes& input, const Bytes& block) {
  if (block.size() > 63) return false;
  input.push_back(static_cast<uint8_t>(block.size()));
  input.insert(input.end(), block.begin(), block.end());
  return true;
}

void putCodec(Writer& w, const char* type_name, const Bytes& bytes) {
  const umts_type_info* t = umts_type_lookup(type_name);
  if (t == nullptr) return;
  const uint32_t index = static_cast<uint32_t>(t - umts_type_registry);
  Bytes input{static_cast<uint8_t>(index >> 8), static_cast<uint8_t>(index)};
  input.insert(input.end(), bytes.begin(), bytes.end());
  w.put(input);
}

// The sample names and the decoded types of the blocks, at their umts_sib_id.
const char* const kBlocks[][2] = {
    {"mib", "MasterInformationBlock"}, {"sib1", "SysInfoType1"},   {"sib2", "SysInfoType2"},
    {"sib3", "SysInfoType3"},          {"sib5", "SysInfoType5"},   {"sib7", "SysInfoType7"},
    {"sib11", "SysInfoType11"},        {"sib11bis", "SysInfoType11bis"}, {"sib12", "SysInfoType12"},
    {"sib18", "SysInfoType18"},        {"sb1", "SysInfoTypeSB1"},  {"sb2", "SysInfoTypeSB2"}};

// The umts_sib_id of a sample name or a decoded type (`column` 0 or 1), -1 for none.
int sibId(const std::string& name, int column) {
  for (int id = 0; id < 12; id++)
    if (name == kBlocks[id][column]) return id;
  return -1;
}

void putSib(Writer& w, int id, const Bytes& bytes) {
  Bytes input{static_cast<uint8_t>(id)};
  input.insert(input.end(), bytes.begin(), bytes.end());
  w.put(input);
}

// The frames of a little-endian pcap file with microsecond times, as gsmtap inputs: the link
// byte (the index of the link type in the entry's list), then each frame behind its length.
void putCapture(Writer& w, const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  const Bytes file((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  auto le32 = [&file](size_t at) {
    return uint32_t(file[at]) | uint32_t(file[at + 1]) << 8 | uint32_t(file[at + 2]) << 16 | uint32_t(file[at + 3]) << 24;
  };
  if (file.size() < 24 || le32(0) != 0xA1B2C3D4u) return;
  static const uint32_t kLinkTypes[] = {1, 113, 276, 101, 228, 229};
  uint8_t link = 0;
  while (link < 6 && kLinkTypes[link] != le32(20)) link++;
  if (link == 6) return;
  Bytes all{link};
  for (size_t at = 24; at + 16 <= file.size();) {
    const size_t n = le32(at + 8);
    if (n > 0xFFFF || at + 16 + n > file.size()) break;
    Bytes one{link};
    for (Bytes* input : {&one, &all}) {
      input->push_back(static_cast<uint8_t>(n >> 8));
      input->push_back(static_cast<uint8_t>(n));
      input->insert(input->end(), file.begin() + long(at + 16), file.begin() + long(at + 16 + n));
    }
    w.put(one);
    at += 16 + n;
  }
  w.put(all);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: fuzz_seeds <out-dir> <samples-dir> [<vector-file>...]\n");
    return 2;
  }
  const std::string out = argv[1], samples = argv[2];
  mkdir(out.c_str(), 0777);
  Writer bch{out + "/bch"}, sib{out + "/sib_msg"}, sib16{out + "/sib16"}, codec{out + "/codec"},
      gsmtap{out + "/gsmtap"};
  for (const Writer* w : {&bch, &sib, &sib16, &codec, &gsmtap}) mkdir(w->dir.c_str(), 0777);

  // The sample cell: its transport blocks in order, and its SIBs whole.
  std::vector<Bytes> blocks;
  std::ifstream cell(samples + "/fdd_cell.bch");
  for (std::string line; std::getline(cell, line);) {
    if (line.empty() || line[0] == '#') continue;
    blocks.push_back(fromHex(line));
  }
  if (blocks.empty()) {
    std::fprintf(stderr, "fuzz_seeds: no transport blocks in %s/fdd_cell.bch\n", samples.c_str());
    return 1;
  }
  Bytes cycle;
  for (size_t i = 0; i < blocks.size(); i++) {
    Bytes one, three;
    if (appendBlock(one, blocks[i])) bch.put(one);
    for (size_t k = i; k < i + 3 && k < blocks.size(); k++) appendBlock(three, blocks[k]);
    bch.put(three);
    appendBlock(cycle, blocks[i]);
    putCodec(codec, "BCCH_BCH_Message", blocks[i]);
  }
  bch.put(cycle);
  // Sequences beyond the sample cell: SIB1 and SIB18 of a live network, each over two blocks
  // beside whole SIBs; the first segment of one of its extension SIBs; a MIB whose extension
  // list schedules SIB11bis at SFN' 1 mod 32, then a SIB11bis at SFN' 33.
  const std::vector<std::vector<const char*>> sequences = {
      {"0090209850820205075c220405162289e464204604a81b9c400500110de4bc",
       "00aa107546423c02440404100163aa54d866a0042605e8c000000000000000"},
      {"8e7003a48242b85042fbdda052691200014afffffaddc0a22e847e7b800000",
       "8ea7a04a120001208088a80000000000000000000000000000000000000001"},
      {"a143f686e52a22282f36928cc1852026d2519830afacda4a330614909b4944"},
      {"040e0054a098802007f91ff900102000000000000000000000000000000000",
       "042e1f03000000000000000000000000000000000000000000000000000000"},
  };
  for (const auto& sequence : sequences) {
    Bytes input;
    for (const char* hex : sequence) appendBlock(input, fromHex(hex));
    bch.put(input);
  }
  std::ifstream sibs(samples + "/fdd_cell_sibs.txt");
  for (std::string line; std::getline(sibs, line);) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream ls(line);
    std::string name, hex;
    ls >> name >> hex;
    if (name == "sib16") sib16.put(fromHex(hex));
    const int id = sibId(name, 0);
    if (id < 0) continue;
    putSib(sib, id, fromHex(hex));
    putCodec(codec, kBlocks[id][1], fromHex(hex));
  }

  // The vector files: "<type> <bits> <hex>", "-" for no bytes.
  for (int f = 3; f < argc; f++) {
    std::ifstream in(argv[f]);
    for (std::string line; std::getline(in, line);) {
      if (line.empty() || line[0] == '#') continue;
      std::istringstream ls(line);
      std::string type, bits, hex;
      ls >> type >> bits >> hex;
      const Bytes bytes = hex == "-" ? Bytes() : fromHex(hex);
      putCodec(codec, type.c_str(), bytes);
      if (sibId(type, 1) >= 0) putSib(sib, sibId(type, 1), bytes);
      Bytes block;
      if (type == "BCCH_BCH_Message" && appendBlock(block, bytes)) bch.put(block);
    }
  }
  putCapture(gsmtap, samples + "/fdd_cell.pcap");
  std::printf("fuzz_seeds: %d bch, %d sib_msg, %d sib16, %d codec, %d gsmtap seeds in %s\n", bch.count, sib.count, sib16.count,
              codec.count, gsmtap.count, out.c_str());
  return 0;
}
