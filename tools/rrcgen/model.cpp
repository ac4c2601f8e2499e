// Resolution of the parsed modules into the model: names, inline types, constants, derived
// properties, order.
#include "model.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <set>
#include <stdexcept>

namespace rrcgen {
namespace {

const std::set<std::string>& reservedWords() {
  // C and C++ keywords and a few names that the standard headers reserve as macros.
  static const std::set<std::string> words = {
      "alignas", "alignof", "and", "and_eq", "asm", "auto", "bitand", "bitor", "bool", "break",
      "case", "catch", "char", "class", "compl", "const", "constexpr", "const_cast", "continue",
      "decltype", "default", "delete", "do", "double", "dynamic_cast", "else", "enum", "explicit",
      "export", "extern", "false", "float", "for", "friend", "goto", "if", "inline", "int", "long",
      "mutable", "namespace", "new", "noexcept", "not", "not_eq", "nullptr", "operator", "or",
      "or_eq", "private", "protected", "public", "register", "reinterpret_cast", "restrict",
      "return", "short", "signed", "sizeof", "static", "static_assert", "static_cast", "struct",
      "switch", "template", "this", "thread_local", "throw", "true", "try", "typedef", "typeid",
      "typename", "union", "unsigned", "using", "virtual", "void", "volatile", "wchar_t", "while",
      "xor", "xor_eq", "NULL", "EOF", "errno", "stdin", "stdout", "stderr", "unix", "linux"};
  return words;
}

std::string hyphensToUnderscores(std::string s) {
  std::replace(s.begin(), s.end(), '-', '_');
  return s;
}

// C name of an element: hyphens become underscores, reserved words get a trailing '_'.
std::string fieldCName(const std::string& asn) {
  std::string c = hyphensToUnderscores(asn);
  if (reservedWords().count(c)) c += "_";
  return c;
}

class Builder {
 public:
  explicit Builder(Model& m) : m_(m) {}

  void run(const std::vector<AstModule>& modules) {
    collectConstants(modules);
    declareNamedTypes(modules);
    for (auto& [def, ast] : named_) fill(def, *ast);
    resolvePendingDefaults();
    for (auto& d : m_.defs) derive(d.get());
    for (auto& d : m_.defs) computeInit(d.get());
    orderForHeader();
    markReachedAndTop();
    orderForCode();
    for (Def* d : m_.code_order) bodySteps(d);
    checkNames();
  }

 private:
  Model& m_;
  std::vector<std::pair<Def*, const AstType*>> named_;
  int order_ = 0;

  [[noreturn]] void fail(const std::string& where, int line, const std::string& what) {
    throw std::runtime_error(where + ":" + std::to_string(line) + ": " + what);
  }

  void collectConstants(const std::vector<AstModule>& modules) {
    std::map<std::string, AstValue> raw;
    for (auto& mod : modules)
      for (auto& a : mod.assignments)
        if (a.is_value) raw[a.name] = a.value;
    std::function<long long(const std::string&, int)> eval = [&](const std::string& name, int depth) {
      auto it = raw.find(name);
      if (it == raw.end() || depth > 16) throw std::runtime_error("unknown constant " + name);
      if (it->second.is_number) return it->second.number;
      return eval(it->second.name, depth + 1);
    };
    for (auto& [name, v] : raw) m_.constants[name] = eval(name, 0);
  }

  long long value(const AstValue& v, const std::string& where, int line) {
    if (v.is_number) return v.number;
    auto it = m_.constants.find(v.name);
    if (it == m_.constants.end()) fail(where, line, "unknown value " + v.name);
    return it->second;
  }

  Def* newDef() {
    m_.defs.push_back(std::make_unique<Def>());
    Def* d = m_.defs.back().get();
    d->schema_order = order_++;
    return d;
  }

  void declareNamedTypes(const std::vector<AstModule>& modules) {
    // Module order of the generated codec: information elements, PDUs, message classes,
    // internode definitions.
    auto rank = [](const std::string& name) {
      if (name == "InformationElements") return 0;
      if (name == "PDU-definitions") return 1;
      if (name == "Class-definitions") return 2;
      if (name == "Internode-definitions") return 3;
      return 4;
    };
    std::vector<const AstModule*> sorted;
    for (auto& mod : modules) sorted.push_back(&mod);
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](const AstModule* a, const AstModule* b) { return rank(a->name) < rank(b->name); });
    for (const AstModule* mod : sorted) {
      for (auto& a : mod->assignments) {
        if (a.is_value) continue;
        if (m_.by_asn_name.count(a.name)) fail(mod->file, a.line, "type " + a.name + " defined twice");
        Def* d = newDef();
        d->asn_name = a.name;
        d->c_name = hyphensToUnderscores(a.name);
        d->named = true;
        d->module = rank(mod->name);
        d->line = a.line;
        file_of_[d] = mod->file;
        m_.by_asn_name[a.name] = d;
        named_.emplace_back(d, a.type.get());
      }
    }
  }

  std::map<const Def*, std::string> file_of_;

  Def* lookup(const std::string& name, const Def* from, int line) {
    auto it = m_.by_asn_name.find(name);
    if (it == m_.by_asn_name.end()) fail(file_of_[from], line, "unknown type " + name);
    return it->second;
  }

  void sizeOf(Def* d, const AstType& ast) {
    if (ast.size_lo.present()) {
      d->sized = true;
      d->size_lo = value(ast.size_lo, file_of_[d], ast.line);
      d->size_hi = value(ast.size_hi, file_of_[d], ast.line);
    }
  }

  // The type of an element or alternative: a named type, an inline type of its own, or an
  // anonymous scalar stored in the parent.
  Def* elementType(Def* outer, const std::string& elem_c_name, const std::string& elem_asn_name,
                   const AstType& ast) {
    if (ast.kind == AstType::Ref) {
      if (ast.range_lo.present() || ast.size_lo.present() || !ast.containing.empty())
        fail(file_of_[outer], ast.line, "constrained type reference is not supported");
      return lookup(ast.ref, outer, ast.line);
    }
    Def* d = newDef();
    d->module = outer->module;
    d->line = ast.line;
    file_of_[d] = file_of_[outer];
    d->c_name = outer->c_name + "_" + elem_c_name;
    d->asn_name = elem_asn_name;
    // Scalars, and strings that fit a runtime record (32 bits or fewer, or unbounded), are
    // stored in their parent and have no type of their own; named bits make a type.
    bool bits = ast.kind == AstType::BitString, octs = ast.kind == AstType::OctetString;
    bool sized = ast.size_lo.present();
    long long hi = sized ? value(ast.size_hi, file_of_[d], ast.line) : 0;
    d->emitted = !(ast.kind == AstType::Integer || ast.kind == AstType::Boolean || ast.kind == AstType::Null ||
                   (bits && ast.named_bits.empty() && (!sized || hi <= 32)) || (octs && !sized));
    fill(d, ast);
    return d;
  }

  void fill(Def* d, const AstType& ast) {
    const std::string& file = file_of_[d];
    switch (ast.kind) {
      case AstType::Ref:
        if (ast.range_lo.present() || ast.size_lo.present() || !ast.containing.empty())
          fail(file, ast.line, "constrained type reference is not supported");
        d->kind = Kind::Alias;
        d->target = lookup(ast.ref, d, ast.line);
        break;
      case AstType::Integer:
        d->kind = Kind::Integer;
        if (!ast.range_lo.present()) fail(file, ast.line, "unconstrained INTEGER is not supported");
        d->lo = value(ast.range_lo, file, ast.line);
        d->hi = value(ast.range_hi, file, ast.line);
        if (d->hi < d->lo) fail(file, ast.line, "empty INTEGER range");
        break;
      case AstType::Boolean:
        d->kind = Kind::Boolean;
        break;
      case AstType::Null:
        d->kind = Kind::Null;
        break;
      case AstType::Enumerated:
        d->kind = Kind::Enumerated;
        d->enumerators = ast.enumerators;
        break;
      case AstType::BitString:
      case AstType::OctetString:
        d->kind = ast.kind == AstType::BitString ? Kind::BitString : Kind::OctetString;
        if (!ast.containing.empty()) fail(file, ast.line, "CONTAINING is supported on elements only");
        d->named_bits = ast.named_bits;
        sizeOf(d, ast);
        break;
      case AstType::SequenceOf: {
        d->kind = Kind::SequenceOf;
        sizeOf(d, ast);
        if (!d->sized) fail(file, ast.line, "SEQUENCE OF without a size is not supported");
        d->element = elementType(d, "element", "element", *ast.element);
        d->element->emitted = true;  // the element of an inline SEQUENCE OF is a type of its own
        break;
      }
      case AstType::Sequence:
      case AstType::Choice: {
        d->kind = ast.kind == AstType::Sequence ? Kind::Sequence : Kind::Choice;
        for (auto& af : ast.fields) {
          Field f;
          f.asn_name = af.name;
          f.c_name = fieldCName(af.name);
          f.optional = af.optional;
          f.has_default = af.has_default;
          const AstType& t = *af.type;
          if ((t.kind == AstType::BitString || t.kind == AstType::OctetString) && !t.containing.empty()) {
            if (d->kind != Kind::Sequence) fail(file, af.line, "CONTAINING outside a SEQUENCE");
            f.containing = true;
            f.containing_octets = t.kind == AstType::OctetString;
            f.type = lookup(t.containing, d, af.line);
          } else {
            f.type = elementType(d, f.c_name, af.name, t);
          }
          if (af.has_default) f.default_value = defaultValue(f.type, af.default_value, file, af.line);
          d->fields.push_back(std::move(f));
        }
        break;
      }
    }
  }

  long long defaultValue(Def* type, const AstValue& v, const std::string& file, int line) {
    // The type may be a named type that is defined later: resolve from its AST if needed.
    Def* b = type;
    while (b->kind == Kind::Alias && b->target) b = b->target;
    if (!v.is_number && (v.name == "TRUE" || v.name == "FALSE")) return v.name == "TRUE";
    if (v.is_number) return v.number;
    // Enumerator name, or a constant.
    if (b->kind == Kind::Enumerated || b->enumerators.size()) {
      auto& e = b->enumerators;
      auto it = std::find(e.begin(), e.end(), v.name);
      if (it != e.end()) return it - e.begin();
    }
    auto c = m_.constants.find(v.name);
    if (c != m_.constants.end()) return c->second;
    pending_defaults_.push_back({type, v.name, file, line});
    return -1;
  }

  struct PendingDefault {
    Def* type;
    std::string name;
    std::string file;
    int line;
  };
  std::vector<PendingDefault> pending_defaults_;

  void resolvePendingDefaults() {
    for (auto& d : m_.defs)
      for (auto& f : d->fields)
        if (f.has_default && f.default_value == -1) {
          const Def* b = base(f.type);
          bool done = false;
          for (auto& p : pending_defaults_) {
            if (p.type != f.type) continue;
            auto it = std::find(b->enumerators.begin(), b->enumerators.end(), p.name);
            if (it != b->enumerators.end()) {
              f.default_value = it - b->enumerators.begin();
              done = true;
              break;
            }
          }
          if (!done) fail(file_of_[d.get()], d->line, "unresolved DEFAULT of " + f.asn_name);
        }
  }

  void derive(Def* d) {
    if (d->kind != Kind::Sequence) return;
    int bit = 0;
    for (auto& f : d->fields) {
      if (f.optional) f.opt_bit = bit++;
      if (f.optional || f.has_default) d->preamble_bits++;
    }
    d->opt_count = bit;
    d->has_m = bit > 0;
    if (bit > 64) fail(file_of_[d], d->line, "more than 64 OPTIONAL elements");
  }

  std::map<const Def*, int> init_state_;  // 0 unknown, 1 in progress, 2 done

  bool computeInit(Def* d) {
    int& st = init_state_[d];
    if (st == 2) return d->has_init;
    if (st == 1) fail(file_of_[d], d->line, "recursive type " + d->c_name);
    st = 1;
    bool has = false;
    switch (d->kind) {
      case Kind::Choice:
      case Kind::SequenceOf:
      case Kind::BitString:
      case Kind::OctetString:
        has = true;
        break;
      case Kind::Sequence:
        has = d->has_m;
        for (auto& f : d->fields) {
          bool fi = computeInit(f.type);
          if (f.has_default || fi) has = true;
        }
        break;
      case Kind::Alias:
        has = computeInit(d->target);
        break;
      default:
        has = false;
    }
    if (d->kind == Kind::SequenceOf) computeInit(d->element);
    d->has_init = has && d->emitted;
    st = 2;
    return d->has_init;
  }

  // Types that must be complete before d's record can be declared.
  std::vector<Def*> valueDeps(Def* d) {
    std::vector<Def*> out;
    switch (d->kind) {
      case Kind::Sequence:
        for (auto& f : d->fields) out.push_back(f.type);
        break;
      case Kind::Choice:
        for (auto& f : d->fields)
          if (isScalar(f.type)) out.push_back(f.type);
        break;
      case Kind::SequenceOf:
        if (isArray(d)) out.push_back(d->element);
        break;
      case Kind::Alias:
        out.push_back(d->target);
        break;
      default:
        break;
    }
    return out;
  }

  // Every type whose functions d's functions call.
  std::vector<Def*> allDeps(Def* d) {
    std::vector<Def*> out;
    for (auto& f : d->fields) out.push_back(f.type);
    if (d->element) out.push_back(d->element);
    if (d->target) out.push_back(d->target);
    return out;
  }

  void orderForHeader() {
    std::map<Def*, int> state;
    std::function<void(Def*)> visit = [&](Def* d) {
      int& s = state[d];
      if (s == 2) return;
      if (s == 1) fail(file_of_[d], d->line, "recursive record " + d->c_name);
      s = 1;
      for (Def* dep : valueDeps(d)) visit(dep);
      s = 2;
      if (d->emitted) m_.types.push_back(d);
    };
    for (size_t i = 0; i < m_.defs.size(); i++) visit(m_.defs[i].get());
  }

  void markReachedAndTop() {
    for (auto& d : m_.defs)
      for (Def* dep : allDeps(d.get()))
        if (dep != d.get()) dep->refcount++;
    static const char* roots[] = {"BCCH-BCH-Message", "MasterInformationBlock", "SysInfoType1",
                                  "SysInfoType2", "SysInfoType3", "SysInfoType5", "SysInfoType7",
                                  "SysInfoType11", "SysInfoType11bis", "SysInfoType12",
                                  "SysInfoType16", "SysInfoType18", "SysInfoTypeSB1",
                                  "SysInfoTypeSB2"};
    std::function<void(Def*)> reach = [&](Def* d) {
      if (d->reached) return;
      d->reached = true;
      for (Def* dep : allDeps(d)) reach(dep);
    };
    for (const char* r : roots) {
      auto it = m_.by_asn_name.find(r);
      if (it == m_.by_asn_name.end()) throw std::runtime_error(std::string("schema lacks ") + r);
      reach(it->second);
    }
    for (auto& d : m_.defs) {
      if (!d->named) continue;
      bool sib = (d->asn_name.rfind("SysInfoType", 0) == 0 && d->asn_name.find("ext") == std::string::npos) ||
                 d->asn_name == "MasterInformationBlock";
      if (d->refcount == 0 || sib) d->toplevel = true;
    }
  }

  // Functions are written with the blocks that the library decodes first, each closure
  // together and callees before callers, so that a unit holds what a block's decode calls.
  void orderForCode() {
    std::set<Def*> seen;
    std::function<void(Def*)> visit = [&](Def* d) {
      if (!seen.insert(d).second) return;
      for (Def* dep : allDeps(d)) visit(dep);
      if (d->emitted) m_.code_order.push_back(d);
    };
    static const char* hot[] = {"BCCH-BCH-Message", "MasterInformationBlock", "SysInfoType3",
                                "SysInfoTypeSB1", "SysInfoTypeSB2", "SysInfoType1", "SysInfoType2",
                                "SysInfoType7", "SysInfoType18", "SysInfoType5", "SysInfoType11",
                                "SysInfoType11bis", "SysInfoType12", "SysInfoType16"};
    for (const char* h : hot) visit(m_.by_asn_name[h]);
    for (Def* d : m_.types) visit(d);
  }

  // Bodies that are merged into their callers: those of at most kSmallBody steps, and those
  // of at most kSingleUseBody steps that one place uses. Steps are counted with the merged
  // bodies of the callees, so that no body grows beyond these sizes by merging.
  static constexpr int kSmallBody = 12;
  static constexpr int kSingleUseBody = 40;

  // Steps that a value of type t takes where it is used.
  int useSteps(Def* t) {
    if (isScalar(t)) return 1;
    if (isInlineString(t)) return 2;
    if (base(t)->kind == Kind::Null) return 0;
    int steps = bodySteps(t);
    return t->inline_body ? steps : 2;
  }

  int bodySteps(Def* d) {
    if (d->body_steps >= 0) return d->body_steps;
    int steps = 0;
    switch (d->kind) {
      case Kind::Sequence:
        steps = d->preamble_bits > 0 ? 1 : 0;
        for (auto& f : d->fields) steps += f.containing ? 6 : useSteps(f.type);
        break;
      case Kind::Choice:
        steps = 2;
        for (auto& f : d->fields) {
          if (isScalar(f.type) || base(f.type)->kind == Kind::Null) steps += useSteps(f.type);
          else if (isInlineString(f.type)) steps += 3;
          else steps += 2 + useSteps(f.type);
        }
        break;
      case Kind::SequenceOf:
        steps = (isArray(d) ? 2 : 4) + useSteps(d->element);
        break;
      case Kind::Alias:
        steps = useSteps(d->target);
        break;
      default:
        steps = 2;
    }
    d->body_steps = steps;
    d->inline_body = d->emitted && (steps <= kSmallBody || (d->refcount <= 1 && steps <= kSingleUseBody));
    return steps;
  }

  void checkNames() {
    std::map<std::string, const Def*> seen;
    for (Def* d : m_.types) {
      auto [it, ok] = seen.emplace(d->c_name, d);
      if (!ok)
        fail(file_of_[d], d->line,
             "C name " + d->c_name + " is shared with the type of line " + std::to_string(it->second->line));
    }
  }
};

}  // namespace

const Def* base(const Def* d) {
  while (d && d->kind == Kind::Alias) d = d->target;
  return d;
}
Def* base(Def* d) {
  while (d && d->kind == Kind::Alias) d = d->target;
  return d;
}

bool isScalar(const Def* d) {
  const Def* b = base(d);
  return b->kind == Kind::Integer || b->kind == Kind::Enumerated || b->kind == Kind::Boolean;
}

bool isPrimitiveElement(const Def* d) {
  const Def* b = base(d);
  return isScalar(b) || b->kind == Kind::BitString || b->kind == Kind::OctetString;
}

bool isArray(const Def* d) {
  const Def* b = base(d);
  return b->kind == Kind::SequenceOf && isPrimitiveElement(b->element);
}

std::string intCType(long long lo, long long hi) {
  if (lo >= 0) {
    if (hi <= 255) return "uint8_t";
    if (hi <= 65535) return "uint16_t";
    if (hi <= 4294967295LL) return "uint32_t";
    return "uint64_t";
  }
  if (lo >= -128 && hi <= 127) return "int8_t";
  if (lo >= -32768 && hi <= 32767) return "int16_t";
  return "int32_t";
}

bool intSigned(const Def* d) { return base(d)->lo < 0; }

int rangeBits(unsigned long long range) {
  int n = 0;
  while (range) {
    n++;
    range >>= 1;
  }
  return n;
}

std::string bitStringKind(const Def* d) {
  const Def* b = base(d);
  if (!b->sized) return "dyn";
  if (b->size_hi <= 32) return "32";
  return "fixed";
}

long long stringCapacity(const Def* d) {
  const Def* b = base(d);
  if (b->kind == Kind::BitString) return (b->size_hi + 7) / 8;
  return b->size_hi;
}

bool isFixedSizeBitStr32(const Def* d) {
  const Def* b = base(d);
  return b->kind == Kind::BitString && b->sized && b->size_hi <= 32;
}

bool passedByValue(const Def* d) {
  const Def* b = base(d);
  return isScalar(b) || isFixedSizeBitStr32(b);
}

std::string cType(const Def* d) {
  if (d->emitted) return d->c_name;
  switch (d->kind) {
    case Kind::Integer:
      return intCType(d->lo, d->hi);
    case Kind::Boolean:
      return "uint8_t";
    case Kind::BitString:
      return d->sized ? "rtxBitStr32" : "rtxDynBitStr";
    case Kind::OctetString:
      return "rtxDynOctStr";
    default:
      return "";
  }
}

bool isInlineString(const Def* d) {
  return !d->emitted && (d->kind == Kind::BitString || d->kind == Kind::OctetString);
}

std::string presenceBit(int bit) {
  char buf[32];
  if (bit < 32) std::snprintf(buf, sizeof buf, "0x%xu", 1u << bit);
  else std::snprintf(buf, sizeof buf, "0x%llxull", 1ull << bit);
  return buf;
}

Model buildModel(const std::vector<AstModule>& modules) {
  Model m;
  Builder b(m);
  b.run(modules);
  return m;
}

}  // namespace rrcgen
