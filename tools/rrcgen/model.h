// The resolved model of the schema: every type that the codec generates, with its C name,
// its decoded form and its PER constraints, in one place for all emitters.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "asn1_ast.h"

namespace rrcgen {

enum class Kind { Sequence, Choice, SequenceOf, Enumerated, Integer, Boolean, Null, BitString, OctetString, Alias };

struct Def;

struct Field {
  std::string asn_name;  // "mib-ValueTag"
  std::string c_name;    // "mib_ValueTag"
  Def* type = nullptr;
  bool optional = false;
  bool has_default = false;
  long long default_value = 0;  // number, enumerator position, or 0/1
  int opt_bit = -1;             // bit in `m` for an OPTIONAL element
  // A BIT or OCTET STRING carrier holding a complete encoding of `type`.
  bool containing = false;
  bool containing_octets = false;
};

struct Def {
  std::string asn_name;  // name in the schema, or the composed name with hyphens for inline types
  std::string c_name;    // record and function name part
  bool named = false;    // declared by name in the schema: its decoder pushes the type name
  bool emitted = true;   // false for inline scalars, NULL and small or unbounded strings,
                         // which their parent stores and codes itself
  Kind kind = Kind::Null;
  int module = 0;        // 0 IEs, 1 PDUs, 2 message classes, 3 internode
  int schema_order = 0;
  int line = 0;

  long long lo = 0, hi = 0;  // INTEGER range
  std::vector<std::string> enumerators;
  std::vector<std::pair<std::string, long long>> named_bits;
  bool sized = false;         // strings and SEQUENCE OF: a SIZE constraint is present
  long long size_lo = 0, size_hi = 0;
  std::vector<Field> fields;  // SEQUENCE, CHOICE
  Def* element = nullptr;     // SEQUENCE OF
  Def* target = nullptr;      // Alias

  // Derived
  bool has_m = false;
  int opt_count = 0;       // OPTIONAL elements
  int preamble_bits = 0;   // OPTIONAL and DEFAULT elements
  bool has_init = false;
  bool reached = false;    // reached from the blocks that the library decodes
  bool toplevel = false;   // referred to by no other type, or a system information block
  int refcount = 0;
  // Steps of the decoder or encoder body, with the bodies that are merged into it, and whether
  // this body is itself merged into its callers.
  int body_steps = -1;
  bool inline_body = false;
};

struct Model {
  std::vector<std::unique_ptr<Def>> defs;  // all defs, including anonymous ones
  std::vector<Def*> types;                 // emitted defs in header (dependency) order
  std::vector<Def*> code_order;            // emitted defs in the order functions are written
  std::map<std::string, Def*> by_asn_name; // named types
  std::map<std::string, long long> constants;
};

// Reads the modules and resolves them; throws std::runtime_error on anything unsupported.
Model buildModel(const std::vector<AstModule>& modules);

// Helpers shared by the emitters.
const Def* base(const Def* d);               // follows aliases
Def* base(Def* d);
bool isScalar(const Def* d);                 // INTEGER, ENUMERATED, BOOLEAN (after aliases)
bool isPrimitiveElement(const Def* d);       // stored inline in an array when listed
bool isArray(const Def* d);                  // SEQUENCE OF stored as n + elem[]
std::string cType(const Def* d);             // C type of a value of d
std::string presenceBit(int bit);            // literal of bit `bit` of a presence word `m`
std::string intCType(long long lo, long long hi);
bool intSigned(const Def* d);
bool isFixedSizeBitStr32(const Def* d);
int rangeBits(unsigned long long range);
std::string bitStringKind(const Def* d);     // "32", "fixed", "dyn"
long long stringCapacity(const Def* d);      // bytes of storage for bounded strings
bool passedByValue(const Def* d);            // encoder's second argument form
bool isInlineString(const Def* d);           // a string stored in its parent's record

}  // namespace rrcgen
