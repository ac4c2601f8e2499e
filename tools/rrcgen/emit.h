// The emitters: one per family, each over the resolved model.
#pragma once

#include <string>
#include <vector>

#include "model.h"

namespace rrcgen {

// A generated file: name relative to the output directory, and its text.
struct OutFile {
  std::string name;
  std::string text;
};

// Text of one function (or table) per type, in code order, for a family. A decoder or
// encoder unit also has the declaration of its body (a static function of its file) and the
// types whose bodies it calls, which its file declares or reaches through a shim.
struct Unit {
  const Def* def;
  std::string text;
  std::string decl;
  std::vector<const Def*> calls;
};

// How a family's files reach bodies that other files hold: the shim line for a type.
using ShimFn = std::string (*)(const Def*);

// Code writer with indentation by three spaces, as the generated files are laid out.
class Writer {
 public:
  void line(const std::string& s = std::string());
  void open(const std::string& s);   // line, then indent
  void close(const std::string& s);  // unindent, then line
  void indent() { level_++; }
  void outdent() { level_--; }
  const std::string& text() const { return out_; }
  std::string take();

 private:
  std::string out_;
  int level_ = 0;
};

std::string quote(const std::string& s);      // C string literal
std::string num(long long v);                 // C integer literal
std::string unum(unsigned long long v);       // C unsigned literal
std::string banner(const std::string& what);  // first lines of every generated file

// Families.
std::vector<OutFile> emitHeader(const Model& m);
std::vector<Unit> emitDecoders(const Model& m);
std::vector<Unit> emitEncoders(const Model& m);
std::vector<Unit> emitPrinters(const Model& m);
std::vector<Unit> emitInits(const Model& m);
std::vector<Unit> emitNames(const Model& m);
std::vector<OutFile> emitRegistry(const Model& m);
// Random valid PER encodings of the top-level types, as test vectors.
OutFile emitVectors(const Model& m, unsigned seed, int per_type, bool all_extensions = false);

// Packs the units of a family into files of about `lines_per_file` lines.
// Each file starts with the declarations of its bodies and a shim for every body that it
// calls from another file.
std::vector<OutFile> packUnits(const std::vector<Unit>& units, const std::string& prefix,
                               const std::string& what, size_t lines_per_file, ShimFn shim = nullptr);
std::string decodeShim(const Def* d);
std::string encodeShim(const Def* d);

// Counts by construct, as printed by the compiler.
std::string countsTable(const Model& m);

}  // namespace rrcgen
