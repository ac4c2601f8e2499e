// Enumerated-name family: a sorted name table per ENUMERATED type and the trio
// UMTS_<T>_ToString, UMTS_<T>_ToEnum, UMTS_<T>_ToEnum2.
#include <algorithm>

#include "emit.h"

namespace rrcgen {

std::vector<Unit> emitNames(const Model& m) {
  std::vector<Unit> units;
  Writer w;
  for (const Def* d : m.code_order) {
    if (d->kind != Kind::Enumerated) continue;
    const std::string& c = d->c_name;
    const auto& names = d->enumerators;
    size_t n = names.size();
    // Entries sorted by the bytes of the names; index[v] is the place of the entry of value v.
    std::vector<size_t> order(n);
    for (size_t i = 0; i < n; i++) order[i] = i;
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) { return names[a] < names[b]; });
    std::vector<size_t> place_of(n);
    for (size_t p = 0; p < n; p++) place_of[order[p]] = p;
    std::string table = "UMTS_" + c + "_ENUMTAB";
    w.open("static const rtxEnumEntry " + table + "[] = {");
    for (size_t p = 0; p < n; p++) {
      const std::string& name = names[order[p]];
      w.line("{ " + quote(name) + ", " + std::to_string(order[p]) + ", " + std::to_string(name.size()) + ", " +
             std::to_string(place_of[p]) + " },");
    }
    w.close("};");
    w.line();
    w.line("const char* UMTS_" + c + "_ToString(uint32_t value)");
    w.open("{");
    if (n == 1) {
      w.line("return rtxLookupEnumByValue(value, " + table + ", 1) == 0 ? " + quote(names[0]) + " : \"_UNKNOWN_\";");
    } else {
      w.line("if (value > " + std::to_string(n - 1) + ") return \"_UNKNOWN_\";");
      w.line("return " + table + "[" + table + "[value].index].name;");
    }
    w.close("}");
    w.line();
    w.line("int UMTS_" + c + "_ToEnum2(rtxContext* ctx, const char* text, size_t length, " + c + "* pvalue)");
    w.open("{");
    w.line("int32_t place = rtxLookupEnum(text, length, " + table + ", " + std::to_string(n) + ");");
    w.open("if (place >= 0) {");
    w.line("*pvalue = " + table + "[place].value;");
    w.line("return 0;");
    w.close("}");
    w.line("rtxErrAddStrnParm(ctx, text, length);");
    w.line("RT_FAIL(ctx, RT_ERR_INVENUM, 0, 0, -1, 0);");
    w.close("}");
    w.line();
    w.line("int UMTS_" + c + "_ToEnum(rtxContext* ctx, const char* text, " + c + "* pvalue)");
    w.open("{");
    w.line("return UMTS_" + c + "_ToEnum2(ctx, text, rtxUTF8LenBytes(text), pvalue);");
    w.close("}");
    units.push_back({d, w.take(), "", {}});
  }
  return units;
}

}  // namespace rrcgen
