// Random valid PER encodings, written straight from the model by a bit writer of the
// generator's own, independent of the generated code. The round-trip tests decode them with
// the generated decoders and expect the generated encoders to give back the same bits.
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <map>
#include <random>
#include <stdexcept>

#include "emit.h"

namespace rrcgen {
namespace {

class BitWriter {
 public:
  void put(unsigned long long v, int n) {
    for (int i = n - 1; i >= 0; i--) bit((v >> i) & 1u);
  }
  void bit(unsigned b) {
    if (nbits_ % 8 == 0) bytes_.push_back(0);
    if (b) bytes_.back() |= static_cast<unsigned char>(0x80u >> (nbits_ % 8));
    nbits_++;
  }
  void append(const BitWriter& o) {
    for (size_t i = 0; i < o.nbits_; i++) bit((o.bytes_[i / 8] >> (7 - i % 8)) & 1u);
  }
  size_t bits() const { return nbits_; }
  const std::vector<unsigned char>& bytes() const { return bytes_; }

 private:
  std::vector<unsigned char> bytes_;
  size_t nbits_ = 0;
};

class RandomEncoder {
 public:
  RandomEncoder(unsigned seed, bool all_extensions) : rng_(seed), all_extensions_(all_extensions) {}

  // With all_extensions_, the chain of the next value ends after `level` containers (-1: it
  // goes on to its end).
  void endChainAt(int level) { chain_end_ = level; }

  // One random value of d; `budget` bounds the size in bits that optional parts may add.
  void value(const Def* d, BitWriter& out, long budget) {
    switch (d->kind) {
      case Kind::Alias:
        value(d->target, out, budget);
        break;
      case Kind::Integer: {
        unsigned long long range = static_cast<unsigned long long>(d->hi - d->lo);
        out.put(pickUpTo(range), rangeBits(range));
        break;
      }
      case Kind::Enumerated: {
        unsigned long long top = d->enumerators.size() - 1;
        out.put(pickUpTo(top), rangeBits(top));
        break;
      }
      case Kind::Boolean:
        out.put(rng_() & 1u, 1);
        break;
      case Kind::Null:
        break;
      case Kind::BitString:
      case Kind::OctetString: {
        unsigned long long count = count_of(d, budget, d->kind == Kind::BitString ? 1 : 8);
        length(d, count, out);
        for (unsigned long long i = 0; i < count; i++) out.put(rng_(), d->kind == Kind::BitString ? 1 : 8);
        break;
      }
      case Kind::SequenceOf: {
        long each = std::max<long>(1, minBits(d->element));
        unsigned long long count = count_of(d, budget, each);
        length(d, count, out);
        long share = count ? budget / static_cast<long>(count) : 0;
        for (unsigned long long i = 0; i < count; i++) value(d->element, out, share);
        break;
      }
      case Kind::Sequence:
        sequence(d, out, budget);
        break;
      case Kind::Choice: {
        size_t n = d->fields.size();
        size_t pick;
        if (budget <= 0) {
          pick = 0;
          for (size_t i = 1; i < n; i++)
            if (minBits(d->fields[i].type) < minBits(d->fields[pick].type)) pick = i;
        } else {
          pick = rng_() % n;
        }
        out.put(pick, rangeBits(n - 1));
        value(d->fields[pick].type, out, budget - 8);
        break;
      }
    }
  }

 private:
  std::mt19937_64 rng_;
  bool all_extensions_;
  int chain_end_ = -1, chain_level_ = 0;
  std::map<const Def*, long> min_bits_;

  // A value in 0..top, its bounds more often than the rest.
  unsigned long long pickUpTo(unsigned long long top) {
    unsigned r = rng_() % 5;
    if (r == 0 || top == 0) return 0;
    if (r == 1) return top;
    return top == ~0ull ? rng_() : rng_() % (top + 1);
  }

  unsigned long long count_of(const Def* d, long budget, long each) {
    long long lo = d->sized ? d->size_lo : 0;
    long long hi = d->sized ? d->size_hi : 64;
    if (budget <= 0 || lo == hi) return static_cast<unsigned long long>(lo);
    long long cap = std::min<long long>(hi, lo + std::max<long>(1, budget / each));
    if (rng_() % 4 == 0 && hi <= 16 && hi <= cap) return static_cast<unsigned long long>(hi);
    cap = std::min<long long>(cap, lo + 6);
    return static_cast<unsigned long long>(lo + static_cast<long long>(rng_() % static_cast<unsigned long long>(cap - lo + 1)));
  }

  // The count of a string or list: constrained below 64K, the general form otherwise.
  void length(const Def* d, unsigned long long count, BitWriter& out) {
    if (d->sized && d->size_hi < 65536) {
      unsigned long long range = static_cast<unsigned long long>(d->size_hi - d->size_lo);
      out.put(count - static_cast<unsigned long long>(d->size_lo), rangeBits(range));
      return;
    }
    generalLength(count, out);
  }

  static void generalLength(unsigned long long count, BitWriter& out) {
    if (count >= 16384) throw std::logic_error("random values stay below the fragmented lengths");
    if (count < 128) {
      out.put(0, 1);
      out.put(count, 7);
    } else {
      out.put(2, 2);
      out.put(count, 14);
    }
  }

  void sequence(const Def* d, BitWriter& out, long budget) {
    std::vector<bool> present;
    for (const Field& f : d->fields) {
      if (!(f.optional || f.has_default)) continue;
      bool p = extension(f) ? chain_end_ < 0 || chain_level_ < chain_end_ : budget > 0 && (rng_() % 2 == 0);
      if (p && f.has_default && !canDiffer(f)) p = false;
      present.push_back(p);
    }
    for (bool p : present) out.bit(p);
    long share = budget * 3 / 4;
    size_t k = 0;
    for (const Field& f : d->fields) {
      if (f.optional || f.has_default) {
        if (!present[k++]) continue;
      }
      if (f.containing) {
        BitWriter inner;
        value(f.type, inner, share);
        unsigned long long n = f.containing_octets ? inner.bytes().size() : inner.bits();
        generalLength(n, out);
        out.append(inner);
        if (f.containing_octets)
          for (size_t pad = inner.bits(); pad % 8; pad++) out.bit(0);
      } else if (f.has_default) {
        defaultDiffering(f, out);
      } else if (extension(f)) {
        chain_level_++;
        value(f.type, out, budget);
        chain_level_--;
      } else {
        value(f.type, out, share);
      }
    }
  }

  // With all_extensions_, the containers of later additions ("v4b0NonCriticalExtensions",
  // "v590NonCriticalExtension", "v5c0NoncriticalExtension", "nonCriticalExtensions") are
  // present down to the level that endChainAt gives, and each level gets the budget of the one
  // before, so that the whole chain of a block is reached.
  bool extension(const Field& f) const {
    if (!all_extensions_ || !f.optional) return false;
    std::string name = f.asn_name;
    for (char& c : name) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return name.find("noncriticalextension") != std::string::npos;
  }

  bool canDiffer(const Field& f) {
    const Def* b = base(f.type);
    if (b->kind == Kind::Integer) return b->hi > b->lo;
    if (b->kind == Kind::Enumerated) return b->enumerators.size() > 1;
    return true;
  }

  // A present DEFAULT element carries a value other than its default, which an encoder
  // would otherwise leave out.
  void defaultDiffering(const Field& f, BitWriter& out) {
    const Def* b = base(f.type);
    unsigned long long top, deflt;
    if (b->kind == Kind::Integer) {
      top = static_cast<unsigned long long>(b->hi - b->lo);
      deflt = static_cast<unsigned long long>(f.default_value - b->lo);
    } else if (b->kind == Kind::Enumerated) {
      top = b->enumerators.size() - 1;
      deflt = static_cast<unsigned long long>(f.default_value);
    } else if (b->kind == Kind::Boolean) {
      out.bit(f.default_value ? 0 : 1);
      return;
    } else {
      throw std::runtime_error("DEFAULT on an unsupported type in " + f.asn_name);
    }
    unsigned long long v = pickUpTo(top);
    if (v == deflt) v = (v + 1) % (top + 1);
    out.put(v, rangeBits(top));
  }

  // Fewest bits that a value of d takes, used to keep random values small.
  long minBits(const Def* d) {
    auto it = min_bits_.find(d);
    if (it != min_bits_.end()) return it->second;
    long bits = 0;
    switch (d->kind) {
      case Kind::Alias:
        bits = minBits(d->target);
        break;
      case Kind::Integer:
        bits = rangeBits(static_cast<unsigned long long>(d->hi - d->lo));
        break;
      case Kind::Enumerated:
        bits = rangeBits(d->enumerators.size() - 1);
        break;
      case Kind::Boolean:
        bits = 1;
        break;
      case Kind::Null:
        bits = 0;
        break;
      case Kind::BitString:
      case Kind::OctetString:
        bits = (d->sized ? d->size_lo : 0) * (d->kind == Kind::BitString ? 1 : 8) + 8;
        break;
      case Kind::SequenceOf:
        bits = (d->sized ? d->size_lo : 0) * minBits(d->element) + 8;
        break;
      case Kind::Sequence:
        bits = d->preamble_bits;
        for (const Field& f : d->fields)
          if (!f.optional && !f.has_default) bits += f.containing ? 8 + minBits(f.type) : minBits(f.type);
        break;
      case Kind::Choice: {
        long best = -1;
        for (const Field& f : d->fields) {
          long b = minBits(f.type);
          if (best < 0 || b < best) best = b;
        }
        bits = rangeBits(d->fields.size() - 1) + std::max<long>(0, best);
        break;
      }
    }
    min_bits_[d] = bits;
    return bits;
  }
};

std::string hexOf(const std::vector<unsigned char>& bytes) {
  static const char* digits = "0123456789abcdef";
  std::string s;
  for (unsigned char b : bytes) {
    s += digits[b >> 4];
    s += digits[b & 15];
  }
  return s;
}

}  // namespace

OutFile emitVectors(const Model& m, unsigned seed, int per_type, bool all_extensions) {
  RandomEncoder enc(seed, all_extensions);
  std::string text = "# Random valid unaligned PER encodings, made by rrcgen from the schema model (seed " +
                     std::to_string(seed) + (all_extensions ? ", every extension level present" : "") +
                     ").\n# type bits hex\n";
  for (const Def* d : m.types) {
    bool all = per_type < 0;
    if (!all && !d->toplevel) continue;
    int count = all ? 2 : per_type;
    for (int i = 0; i < count; i++) {
      BitWriter bw;
      // A third of the values are as small as the schema allows, the rest grow to a few
      // thousand bits.
      // With every extension level present, each level has a budget of its own: 600 bits
      // keeps a block of ten levels within the 1000 octets that a SIB may take.
      // Those as small as the schema allows end their chain of extensions after 0, 1, 2 ...
      // levels in turn.
      long budget = i % 3 == 0 ? 0 : all_extensions ? 600 : 3000;
      enc.endChainAt(all_extensions && budget == 0 ? i / 3 % 12 : -1);
      enc.value(d, bw, budget);
      text += d->c_name + " " + std::to_string(bw.bits()) + " " + (bw.bytes().empty() ? "-" : hexOf(bw.bytes())) + "\n";
    }
  }
  return {"", text};
}

}  // namespace rrcgen
