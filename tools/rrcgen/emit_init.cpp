// Init family: asn1Init_UMTS_<T>, a record's empty state, for the types that hold something
// to clear.
#include "emit.h"

namespace rrcgen {

std::vector<Unit> emitInits(const Model& m) {
  std::vector<Unit> units;
  Writer w;
  for (const Def* d : m.code_order) {
    if (!d->has_init) continue;
    const std::string& c = d->c_name;
    w.line("void asn1Init_UMTS_" + c + "(" + c + "* pvalue)");
    w.open("{");
    w.line("if (pvalue == 0) return;");
    switch (d->kind) {
      case Kind::Choice:
        w.line("pvalue->t = 0;");
        w.line("memset(&pvalue->u, 0, sizeof(pvalue->u));");
        break;
      case Kind::Sequence:
        if (d->has_m) w.line("pvalue->m = 0;");
        for (const Field& f : d->fields) {
          if (f.has_default) w.line("pvalue->" + f.c_name + " = " + num(f.default_value) + ";");
          else if (f.type->has_init) w.line("asn1Init_UMTS_" + f.type->c_name + "(&pvalue->" + f.c_name + ");");
        }
        break;
      case Kind::SequenceOf:
        if (isArray(d)) w.line("pvalue->n = 0;");
        else w.line("rtxDListInit(pvalue);");
        break;
      case Kind::BitString:
        w.line("pvalue->numbits = 0;");
        if (bitStringKind(d) == "dyn") w.line("pvalue->data = 0;");
        break;
      case Kind::OctetString:
        w.line("pvalue->numocts = 0;");
        if (!d->sized) w.line("pvalue->data = 0;");
        break;
      case Kind::Alias:
        w.line("asn1Init_UMTS_" + d->target->c_name + "(pvalue);");
        break;
      default:
        break;
    }
    w.close("}");
    units.push_back({d, w.take(), "", {}});
  }
  return units;
}

}  // namespace rrcgen
