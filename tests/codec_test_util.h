// Helpers shared by the codec tests: hex text, captured print output, owned records.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "umts_rrc_registry.h"

namespace testutil {

inline std::vector<uint8_t> fromHex(const std::string& hex) {
  std::vector<uint8_t> out;
  for (size_t i = 0; i + 1 < hex.size(); i += 2) out.push_back(static_cast<uint8_t>(std::stoul(hex.substr(i, 2), nullptr, 16)));
  return out;
}

inline std::string toHex(const uint8_t* data, size_t n) {
  static const char* digits = "0123456789abcdef";
  std::string s;
  for (size_t i = 0; i < n; i++) {
    s += digits[data[i] >> 4];
    s += digits[data[i] & 15];
  }
  return s;
}

// Runs `fn` with the codec's print output captured and returns the text.
template <typename Fn>
std::string capturePrint(Fn fn) {
  FILE* f = std::tmpfile();
  rtxPrintSetStream(f);
  fn();
  rtxPrintFlush();
  rtxPrintSetStream(stdout);
  std::string text;
  std::rewind(f);
  char buf[4096];
  size_t n;
  while ((n = std::fread(buf, 1, sizeof buf, f)) > 0) text.append(buf, n);
  std::fclose(f);
  return text;
}

// A zeroed record of a registry type, with the context that owns its decoded parts.
struct Decoded {
  const umts_type_info* type = nullptr;
  std::unique_ptr<uint8_t[]> record;
  rtxContext ctx;
  Decoded() { rtInitContext(&ctx); }
  ~Decoded() { rtFreeContext(&ctx); }
  Decoded(const Decoded&) = delete;
  Decoded& operator=(const Decoded&) = delete;
  void* value() { return record.get(); }
};

// Decodes `bytes` as `type` into a fresh record; the buffer is given its exact size.
inline int decode(const umts_type_info* type, const std::vector<uint8_t>& bytes, Decoded& out) {
  out.type = type;
  out.record.reset(new uint8_t[type->size]());
  pu_setBuffer(&out.ctx, bytes.empty() ? nullptr : bytes.data(), static_cast<uint32_t>(bytes.size()), 0);
  return type->decode(&out.ctx, out.value());
}

// Encodes a record into a growing buffer; returns the status, the bytes and the bit count.
inline int encode(const umts_type_info* type, const void* value, std::vector<uint8_t>& bytes, uint64_t& bits,
                  std::string* error = nullptr) {
  rtxContext ctx;
  rtInitContext(&ctx);
  int stat = rtxInitContextBuffer(&ctx, nullptr, 0);
  if (stat == 0) stat = type->encode(&ctx, value);
  if (stat == 0) {
    bits = rtxBitPos(&ctx);
    bytes.assign(ctx.buffer_data, ctx.buffer_data + pu_getMsgLen(&ctx));
  } else if (error) {
    char text[512];
    rtxErrGetText(&ctx, text, sizeof text);
    *error = text;
  }
  rtFreeContext(&ctx);
  return stat;
}

inline std::string print(const umts_type_info* type, const void* value) {
  return capturePrint([&] { type->print("value", value); });
}

}  // namespace testutil
