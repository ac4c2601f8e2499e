// Lexer and recursive-descent parser for the ASN.1 of the RRC modules.
#include <cctype>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "asn1_ast.h"

namespace rrcgen {
namespace {

struct Token {
  enum Kind { Ident, Number, Punct, End } kind = End;
  std::string text;
  int line = 0;
};

std::vector<Token> tokenize(const std::string& src, const std::string& file) {
  std::vector<Token> out;
  size_t i = 0, n = src.size();
  int line = 1;
  while (i < n) {
    char c = src[i];
    if (c == '\n') {
      line++;
      i++;
      continue;
    }
    if (std::isspace(static_cast<unsigned char>(c))) {
      i++;
      continue;
    }
    // Comment: "--" up to the next "--" or the end of the line.
    if (c == '-' && i + 1 < n && src[i + 1] == '-') {
      i += 2;
      while (i < n && src[i] != '\n') {
        if (src[i] == '-' && i + 1 < n && src[i + 1] == '-') {
          i += 2;
          break;
        }
        i++;
      }
      continue;
    }
    Token t;
    t.line = line;
    if (std::isalpha(static_cast<unsigned char>(c))) {
      // Identifiers may hold single hyphens between letters or digits: "maxCellMeas-1".
      size_t j = i + 1;
      while (j < n) {
        char d = src[j];
        if (std::isalnum(static_cast<unsigned char>(d))) {
          j++;
        } else if (d == '-' && j + 1 < n && std::isalnum(static_cast<unsigned char>(src[j + 1]))) {
          j++;
        } else {
          break;
        }
      }
      t.kind = Token::Ident;
      t.text = src.substr(i, j - i);
      i = j;
    } else if (std::isdigit(static_cast<unsigned char>(c))) {
      size_t j = i;
      while (j < n && std::isdigit(static_cast<unsigned char>(src[j]))) j++;
      t.kind = Token::Number;
      t.text = src.substr(i, j - i);
      i = j;
    } else if (src.compare(i, 3, "::=") == 0) {
      t.kind = Token::Punct;
      t.text = "::=";
      i += 3;
    } else if (src.compare(i, 2, "..") == 0) {
      t.kind = Token::Punct;
      t.text = "..";
      i += 2;
    } else if (std::string("{}(),;|-").find(c) != std::string::npos) {
      t.kind = Token::Punct;
      t.text = std::string(1, c);
      i++;
    } else {
      throw std::runtime_error(file + ":" + std::to_string(line) + ": unexpected character '" +
                               std::string(1, c) + "'");
    }
    out.push_back(t);
  }
  Token end;
  end.line = line;
  out.push_back(end);
  return out;
}

class Parser {
 public:
  Parser(std::vector<Token> toks, std::string file) : t_(std::move(toks)), file_(std::move(file)) {}

  AstModule module() {
    AstModule m;
    m.file = file_;
    m.name = ident();
    expectWord("DEFINITIONS");
    while (isWord("AUTOMATIC") || isWord("TAGS")) next();
    expect("::=");
    expectWord("BEGIN");
    if (isWord("IMPORTS")) {
      next();
      while (!isPunct(";")) next();  // the names are resolved across all modules anyway
      next();
    }
    while (!isWord("END")) m.assignments.push_back(assignment());
    return m;
  }

 private:
  std::vector<Token> t_;
  std::string file_;
  size_t p_ = 0;

  const Token& cur() const { return t_[p_]; }
  const Token& peek(size_t k = 1) const { return t_[std::min(p_ + k, t_.size() - 1)]; }
  void next() {
    if (cur().kind != Token::End) p_++;
  }
  [[noreturn]] void fail(const std::string& what) const {
    throw std::runtime_error(file_ + ":" + std::to_string(cur().line) + ": " + what + " (at '" +
                             cur().text + "')");
  }
  bool isPunct(const char* s) const { return cur().kind == Token::Punct && cur().text == s; }
  bool isWord(const char* s) const { return cur().kind == Token::Ident && cur().text == s; }
  void expect(const char* s) {
    if (!isPunct(s)) fail(std::string("expected '") + s + "'");
    next();
  }
  void expectWord(const char* s) {
    if (!isWord(s)) fail(std::string("expected ") + s);
    next();
  }
  std::string ident() {
    if (cur().kind != Token::Ident) fail("expected an identifier");
    std::string s = cur().text;
    next();
    return s;
  }

  AstAssignment assignment() {
    AstAssignment a;
    a.line = cur().line;
    a.name = ident();
    if (!isPunct("::=")) {
      // Value assignment: name Type ::= value
      a.is_value = true;
      a.type = type();
      expect("::=");
      a.value = value();
      return a;
    }
    next();
    a.type = type();
    return a;
  }

  AstValue value() {
    AstValue v;
    if (isPunct("-")) {
      next();
      if (cur().kind != Token::Number) fail("expected a number after '-'");
      v.is_number = true;
      v.number = -std::stoll(cur().text);
      next();
    } else if (cur().kind == Token::Number) {
      v.is_number = true;
      v.number = std::stoll(cur().text);
      next();
    } else if (cur().kind == Token::Ident) {
      v.name = cur().text;
      next();
    } else {
      fail("expected a value");
    }
    return v;
  }

  // "lo..hi" or a single value.
  void range(AstValue& lo, AstValue& hi) {
    lo = value();
    if (isPunct("..")) {
      next();
      hi = value();
    } else {
      hi = lo;
    }
  }

  // "(SIZE (lo..hi))" with the outer parenthesis already consumed.
  void sizeConstraint(AstType& ty) {
    expectWord("SIZE");
    expect("(");
    range(ty.size_lo, ty.size_hi);
    expect(")");
  }

  // A parenthesised constraint after a type.
  void constraint(AstType& ty) {
    expect("(");
    if (isWord("SIZE")) {
      sizeConstraint(ty);
    } else if (isWord("CONTAINING")) {
      next();
      ty.containing = ident();
    } else {
      range(ty.range_lo, ty.range_hi);
    }
    expect(")");
  }

  std::vector<AstField> fieldList() {
    std::vector<AstField> fields;
    expect("{");
    while (!isPunct("}")) {
      AstField f;
      f.line = cur().line;
      f.name = ident();
      f.type = type();
      if (isWord("OPTIONAL")) {
        f.optional = true;
        next();
      } else if (isWord("DEFAULT")) {
        next();
        f.has_default = true;
        f.default_value = value();
      }
      fields.push_back(std::move(f));
      if (isPunct(",")) {
        next();
        continue;
      }
      if (!isPunct("}")) fail("expected ',' or '}'");
    }
    next();
    return fields;
  }

  AstTypeP type() {
    auto ty = std::make_shared<AstType>();
    ty->line = cur().line;
    if (isWord("SEQUENCE")) {
      next();
      if (isPunct("{")) {
        ty->kind = AstType::Sequence;
        ty->fields = fieldList();
      } else {
        ty->kind = AstType::SequenceOf;
        if (isPunct("(")) {
          next();
          sizeConstraint(*ty);
          expect(")");
        } else if (isWord("SIZE")) {
          next();
          expect("(");
          range(ty->size_lo, ty->size_hi);
          expect(")");
        }
        expectWord("OF");
        ty->element = type();
      }
    } else if (isWord("CHOICE")) {
      next();
      ty->kind = AstType::Choice;
      ty->fields = fieldList();
    } else if (isWord("ENUMERATED")) {
      next();
      ty->kind = AstType::Enumerated;
      expect("{");
      while (!isPunct("}")) {
        ty->enumerators.push_back(ident());
        if (isPunct(",")) next();
        else if (!isPunct("}")) fail("expected ',' or '}' in ENUMERATED");
      }
      next();
    } else if (isWord("INTEGER")) {
      next();
      ty->kind = AstType::Integer;
      if (isPunct("(")) constraint(*ty);
    } else if (isWord("BOOLEAN")) {
      next();
      ty->kind = AstType::Boolean;
    } else if (isWord("NULL")) {
      next();
      ty->kind = AstType::Null;
    } else if (isWord("BIT") || isWord("OCTET")) {
      ty->kind = isWord("BIT") ? AstType::BitString : AstType::OctetString;
      next();
      expectWord("STRING");
      if (ty->kind == AstType::BitString && isPunct("{")) {
        next();
        while (!isPunct("}")) {
          std::string name = ident();
          expect("(");
          AstValue v = value();
          expect(")");
          ty->named_bits.emplace_back(name, v.number);
          if (isPunct(",")) next();
          else if (!isPunct("}")) fail("expected ',' or '}' in named bits");
        }
        next();
      }
      if (isPunct("(")) constraint(*ty);
    } else if (cur().kind == Token::Ident && std::isupper(static_cast<unsigned char>(cur().text[0]))) {
      ty->kind = AstType::Ref;
      ty->ref = ident();
      if (isPunct("(")) constraint(*ty);
    } else {
      fail("expected a type");
    }
    return ty;
  }
};

}  // namespace

AstModule parseModule(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path);
  std::stringstream ss;
  ss << in.rdbuf();
  std::string base = path.substr(path.find_last_of('/') + 1);
  Parser p(tokenize(ss.str(), base), base);
  return p.module();
}

}  // namespace rrcgen
