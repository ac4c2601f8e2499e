// Codec speed: decoding and encoding of BCH transport blocks and of the SIB types that the
// library converts, codec only (no conversion, no printing). One context is reused and reset
// between messages, as a scanner decoding block after block would do.
#include <benchmark/benchmark.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "codec_test_util.h"

namespace {

struct Encoding {
  std::vector<uint8_t> bytes;
  uint64_t bits;
};

// Encodings by type: the whole SIBs of the sample cell when present, else the generated
// round-trip vectors.
std::map<std::string, std::vector<Encoding>> loadEncodings() {
  std::map<std::string, std::vector<Encoding>> out;
  std::ifstream in(UMTS_TEST_DATA_DIR "/roundtrip_vectors.txt");
  std::string line;
  while (std::getline(in, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::istringstream ls(line);
    std::string type, hex;
    Encoding e;
    ls >> type >> e.bits >> hex;
    if (hex == "-") continue;
    e.bytes = testutil::fromHex(hex);
    out[type].push_back(std::move(e));
  }
  return out;
}

const std::map<std::string, std::vector<Encoding>>& encodings() {
  static const auto all = loadEncodings();
  return all;
}

const std::vector<uint8_t> kBchBlock =
    testutil::fromHex("a143f686e52a22282f36928cc1852026d2519830afacda4a330614909b4944");

void BM_DecodeBchBlock(benchmark::State& state) {
  rtxContext ctx;
  rtInitContext(&ctx);
  BCCH_BCH_Message msg;
  for (auto _ : state) {
    rtxResetContext(&ctx);
    pu_setBuffer(&ctx, kBchBlock.data(), static_cast<uint32_t>(kBchBlock.size()), 0);
    int stat = asn1PD_UMTS_BCCH_BCH_Message(&ctx, &msg);
    benchmark::DoNotOptimize(stat);
    benchmark::DoNotOptimize(msg);
  }
  rtFreeContext(&ctx);
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_DecodeBchBlock);

void BM_EncodeBchBlock(benchmark::State& state) {
  rtxContext dctx, ectx;
  rtInitContext(&dctx);
  rtInitContext(&ectx);
  BCCH_BCH_Message msg;
  pu_setBuffer(&dctx, kBchBlock.data(), static_cast<uint32_t>(kBchBlock.size()), 0);
  asn1PD_UMTS_BCCH_BCH_Message(&dctx, &msg);
  uint8_t out[64];
  for (auto _ : state) {
    rtxInitContextBuffer(&ectx, out, sizeof out);
    int stat = asn1PE_UMTS_BCCH_BCH_Message(&ectx, &msg);
    benchmark::DoNotOptimize(stat);
    benchmark::DoNotOptimize(out);
  }
  rtFreeContext(&dctx);
  rtFreeContext(&ectx);
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_EncodeBchBlock);

// Decoding of every encoding of one type in turn.
void decodeType(benchmark::State& state, const char* type_name) {
  const umts_type_info* type = umts_type_lookup(type_name);
  auto it = encodings().find(type->c_name);
  if (it == encodings().end()) {
    state.SkipWithError("no encodings");
    return;
  }
  const std::vector<Encoding>& list = it->second;
  std::vector<uint8_t> record(type->size);
  rtxContext ctx;
  rtInitContext(&ctx);
  size_t i = 0, bits = 0;
  for (auto _ : state) {
    const Encoding& e = list[i];
    i = i + 1 == list.size() ? 0 : i + 1;
    rtxResetContext(&ctx);
    pu_setBuffer(&ctx, e.bytes.data(), static_cast<uint32_t>(e.bytes.size()), 0);
    int stat = type->decode(&ctx, record.data());
    benchmark::DoNotOptimize(stat);
    bits += e.bits;
  }
  rtFreeContext(&ctx);
  state.SetItemsProcessed(state.iterations());
  state.counters["bits"] = benchmark::Counter(static_cast<double>(bits) / static_cast<double>(state.iterations()));
}

// Encoding of the same values; each is decoded once beforehand into a context of its own.
void encodeType(benchmark::State& state, const char* type_name) {
  const umts_type_info* type = umts_type_lookup(type_name);
  auto it = encodings().find(type->c_name);
  if (it == encodings().end()) {
    state.SkipWithError("no encodings");
    return;
  }
  std::vector<std::unique_ptr<testutil::Decoded>> values;
  for (const Encoding& e : it->second) {
    values.emplace_back(new testutil::Decoded);
    testutil::decode(type, e.bytes, *values.back());
  }
  rtxContext ctx;
  rtInitContext(&ctx);
  std::vector<uint8_t> out(8192);
  size_t i = 0;
  for (auto _ : state) {
    testutil::Decoded& v = *values[i];
    i = i + 1 == values.size() ? 0 : i + 1;
    rtxInitContextBuffer(&ctx, out.data(), static_cast<uint32_t>(out.size()));
    int stat = type->encode(&ctx, v.value());
    benchmark::DoNotOptimize(stat);
  }
  rtFreeContext(&ctx);
  state.SetItemsProcessed(state.iterations());
}

#define SIB_BENCH(T)                                                           \
  void BM_Decode_##T(benchmark::State& s) { decodeType(s, #T); }               \
  BENCHMARK(BM_Decode_##T);                                                    \
  void BM_Encode_##T(benchmark::State& s) { encodeType(s, #T); }               \
  BENCHMARK(BM_Encode_##T);

SIB_BENCH(MasterInformationBlock)
SIB_BENCH(SysInfoTypeSB1)
SIB_BENCH(SysInfoTypeSB2)
SIB_BENCH(SysInfoType1)
SIB_BENCH(SysInfoType2)
SIB_BENCH(SysInfoType3)
SIB_BENCH(SysInfoType5)
SIB_BENCH(SysInfoType7)
SIB_BENCH(SysInfoType11)
SIB_BENCH(SysInfoType11bis)
SIB_BENCH(SysInfoType12)
SIB_BENCH(SysInfoType16)
SIB_BENCH(SysInfoType18)

}  // namespace

BENCHMARK_MAIN();
