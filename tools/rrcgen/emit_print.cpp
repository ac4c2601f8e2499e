// Print family: asn1Print_UMTS_<T>, the decoded record as indented text on the print stream.
#include <stdexcept>

#include "emit.h"

namespace rrcgen {
namespace {

class PrintEmitter {
 public:
  std::string function(const Def* d) {
    Writer& w = w_;
    const std::string& c = d->c_name;
    w.line("void asn1Print_UMTS_" + c + "(const char* name, const " + c + "* pvalue)");
    w.open("{");
    switch (d->kind) {
      case Kind::Sequence:
        sequence(d);
        break;
      case Kind::Choice:
        choice(d);
        break;
      case Kind::SequenceOf:
        sequenceOf(d);
        break;
      case Kind::Integer:
      case Kind::Boolean:
        scalar(d, "name", "*pvalue");
        break;
      case Kind::Enumerated: {
        std::string names;
        for (size_t i = 0; i < d->enumerators.size(); i++) names += (i ? ", " : "") + quote(d->enumerators[i]);
        w.line("static const char* const names[] = { " + names + " };");
        w.line("rtxPrintIndent();");
        w.line("rtxPrintEnum(name, *pvalue < " + std::to_string(d->enumerators.size()) +
               " ? names[*pvalue] : \"???\");");
        break;
      }
      case Kind::BitString:
      case Kind::OctetString:
        string(d, "name", "pvalue->");
        break;
      case Kind::Alias:
        w.line("asn1Print_UMTS_" + d->target->c_name + "(name, pvalue);");
        break;
      case Kind::Null:
        throw std::logic_error("NULL has no print function");
    }
    w.close("}");
    return w.take();
  }

 private:
  Writer w_;

  // INTEGER and BOOLEAN values, widened to the print operation's type.
  void scalar(const Def* t, const std::string& name, const std::string& v) {
    w_.line("rtxPrintIndent();");
    if (t->kind == Kind::Boolean) w_.line("rtxPrintBoolean(" + name + ", " + v + ");");
    else if (t->lo < 0) w_.line("rtxPrintInteger(" + name + ", (int32_t)" + v + ");");
    else w_.line("rtxPrintUnsigned(" + name + ", (uint32_t)" + v + ");");
  }

  void string(const Def* t, const std::string& label, const std::string& mem) {
    w_.line("rtxPrintIndent();");
    if (t->kind == Kind::BitString) w_.line("rtPrintBitStrBraceText(" + label + ", " + mem + "numbits, " + mem + "data);");
    else w_.line("rtxPrintHexStr(" + label + ", " + mem + "numocts, " + mem + "data);");
  }

  // Prints a value of type t found at `lv` under the given label literal.
  void value(const Def* t, const std::string& label, const std::string& lv) {
    if (isInlineString(t)) string(t, label, lv + ".");
    else if (!t->emitted) scalar(t, label, lv);
    else w_.line("asn1Print_UMTS_" + t->c_name + "(" + label + ", &" + lv + ");");
  }

  void sequence(const Def* d) {
    Writer& w = w_;
    w.line("rtxPrintOpenBrace(name);");
    for (const Field& f : d->fields) {
      std::string label = quote(f.c_name);
      bool block = f.optional;
      if (block) w.open("if (pvalue->m & " + presenceBit(f.opt_bit) + ") {");
      if (base(f.type)->kind == Kind::Null) {
        w.line("rtxPrintIndent();");
        w.line("rtxPrintNull(" + label + ");");
      } else {
        value(f.type, label, "pvalue->" + f.c_name);
      }
      if (block) w.close("}");
    }
    w.line("rtxPrintCloseBrace();");
  }


  void choice(const Def* d) {
    Writer& w = w_;
    w.line("rtxPrintOpenBrace(name);");
    w.open("switch (pvalue->t) {");
    for (size_t i = 0; i < d->fields.size(); i++) {
      const Field& f = d->fields[i];
      std::string label = quote(f.asn_name);  // alternatives keep the schema's spelling
      std::string lv = "pvalue->u." + f.c_name;
      w.open("case " + std::to_string(i + 1) + ":");
      if (base(f.type)->kind == Kind::Null) {
        w.line("rtxPrintIndent();");
        w.line("rtxPrintNull(" + label + ");");
      } else if (isScalar(f.type)) {
        value(f.type, label, lv);
      } else if (isInlineString(f.type)) {
        w.open("if (" + lv + " != 0) {");
        string(f.type, label, lv + "->");
        w.close("}");
      } else {
        w.line("if (" + lv + " != 0) asn1Print_UMTS_" + f.type->c_name + "(" + label + ", " + lv + ");");
      }
      w.line("break;");
      w.outdent();
    }
    w.open("default:");
    w.line("break;");
    w.outdent();
    w.close("}");
    w.line("rtxPrintCloseBrace();");
  }

  void sequenceOf(const Def* d) {
    Writer& w = w_;
    const Def* e = d->element;
    w.line("char index[32];");
    w.line("char label[512];");
    w.line("uint32_t i;");
    if (isArray(d)) {
      w.open("for (i = 0; i < pvalue->n && i < " + std::to_string(d->size_hi) + "; i++) {");
    } else {
      w.line("const rtxDListNode* node;");
      w.open("for (node = pvalue->head, i = 0; node != 0; node = node->next, i++) {");
    }
    w.line("rtxUIntToCharStr(i, index, sizeof(index), 0);");
    w.line("rtxStrJoin(label, sizeof(label), name, \"[\", index, \"]\", 0);");
    if (isArray(d)) {
      value(e, "label", "pvalue->elem[i]");
    } else {
      w.line("if (node->data != 0) asn1Print_UMTS_" + e->c_name + "(label, (const " + e->c_name + "*)node->data);");
    }
    w.close("}");
  }
};

}  // namespace

std::vector<Unit> emitPrinters(const Model& m) {
  std::vector<Unit> units;
  PrintEmitter e;
  for (const Def* d : m.code_order) units.push_back({d, e.function(d), "", {}});
  return units;
}

}  // namespace rrcgen
