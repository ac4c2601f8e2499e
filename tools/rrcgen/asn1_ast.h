// Syntax tree of the ASN.1 subset that the RRC modules of TS 25.331 use.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace rrcgen {

// A value in a constraint or a DEFAULT: a number, or the name of a constant or enumerator.
struct AstValue {
  bool is_number = false;
  long long number = 0;
  std::string name;  // constant reference, enumerator name, TRUE/FALSE
  bool present() const { return is_number || !name.empty(); }
};

struct AstType;
using AstTypeP = std::shared_ptr<AstType>;

struct AstField {
  std::string name;
  AstTypeP type;
  bool optional = false;
  bool has_default = false;
  AstValue default_value;
  int line = 0;
};

struct AstType {
  enum Kind { Sequence, Choice, SequenceOf, Enumerated, Integer, Boolean, Null, BitString, OctetString, Ref };
  Kind kind = Null;
  int line = 0;
  std::vector<AstField> fields;                       // Sequence, Choice
  std::vector<std::string> enumerators;               // Enumerated
  std::vector<std::pair<std::string, long long>> named_bits;  // BitString
  AstTypeP element;                                   // SequenceOf
  std::string ref;                                    // Ref
  // Constraints: a value range (INTEGER), a size range (strings, SEQUENCE OF), CONTAINING.
  AstValue range_lo, range_hi;
  AstValue size_lo, size_hi;
  std::string containing;
};

struct AstAssignment {
  std::string name;
  bool is_value = false;  // value assignment `name INTEGER ::= 5`
  AstValue value;
  AstTypeP type;
  int line = 0;
};

struct AstModule {
  std::string name;
  std::string file;
  std::vector<AstAssignment> assignments;
};

// Parses one module file; throws std::runtime_error with file:line on a syntax error.
AstModule parseModule(const std::string& path);

}  // namespace rrcgen
