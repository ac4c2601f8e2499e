// Registry of every generated type for the test suite, the fuzzers and the benchmarks: name,
// record size and the functions of the type behind one uniform signature. It is not part of
// the library.
#include "emit.h"

namespace rrcgen {

std::vector<OutFile> emitRegistry(const Model& m) {
  Writer h;
  h.line("#ifndef UMTS_RRC_REGISTRY_H");
  h.line("#define UMTS_RRC_REGISTRY_H");
  h.line();
  h.line("#include \"umts_rrc.h\"");
  h.line();
  h.line("#ifdef __cplusplus");
  h.line("extern \"C\" {");
  h.line("#endif");
  h.line();
  h.line("#define UMTS_TYPE_NAMED 1u    /* declared by name in the schema */");
  h.line("#define UMTS_TYPE_TOPLEVEL 2u /* referred to by no other type, or a system information block */");
  h.line("#define UMTS_TYPE_REACHED 4u  /* reached from the blocks that the library decodes */");
  h.line();
  h.open("typedef struct umts_type_info {");
  h.line("const char* name;      /* schema name */");
  h.line("const char* c_name;    /* record name */");
  h.line("size_t size;           /* sizeof the record */");
  h.line("uint32_t flags;");
  h.line("int (*decode)(rtxContext* ctx, void* pvalue);");
  h.line("int (*encode)(rtxContext* ctx, const void* pvalue);");
  h.line("void (*print)(const char* name, const void* pvalue);");
  h.line("void (*init)(void* pvalue); /* null when the type has no init function */");
  h.close("} umts_type_info;");
  h.line();
  h.line("extern const umts_type_info umts_type_registry[];");
  h.line("extern const uint32_t umts_type_registry_count;");
  h.line("/* The entry of a type by schema name or record name, or null. */");
  h.line("const umts_type_info* umts_type_lookup(const char* name);");
  h.line();
  h.line("#ifdef __cplusplus");
  h.line("}");
  h.line("#endif");
  h.line();
  h.line("#endif /* UMTS_RRC_REGISTRY_H */");

  Writer c;
  c.line("#include <string.h>");
  c.line();
  c.line("#include \"umts_rrc_registry.h\"");
  c.line();
  for (const Def* d : m.types) {
    const std::string& n = d->c_name;
    c.line("static int dec_" + n + "(rtxContext* ctx, void* p) { return asn1PD_UMTS_" + n + "(ctx, (" + n + "*)p); }");
    if (passedByValue(d))
      c.line("static int enc_" + n + "(rtxContext* ctx, const void* p) { return asn1PE_UMTS_" + n + "(ctx, *(const " + n + "*)p); }");
    else
      c.line("static int enc_" + n + "(rtxContext* ctx, const void* p) { return asn1PE_UMTS_" + n + "(ctx, (const " + n + "*)p); }");
    c.line("static void print_" + n + "(const char* name, const void* p) { asn1Print_UMTS_" + n + "(name, (const " + n + "*)p); }");
    if (d->has_init) c.line("static void init_" + n + "(void* p) { asn1Init_UMTS_" + n + "((" + n + "*)p); }");
  }
  c.line();
  c.open("const umts_type_info umts_type_registry[] = {");
  for (const Def* d : m.types) {
    const std::string& n = d->c_name;
    std::string flags;
    if (d->named) flags += "UMTS_TYPE_NAMED";
    if (d->toplevel) flags += std::string(flags.empty() ? "" : " | ") + "UMTS_TYPE_TOPLEVEL";
    if (d->reached) flags += std::string(flags.empty() ? "" : " | ") + "UMTS_TYPE_REACHED";
    if (flags.empty()) flags = "0";
    std::string asn = d->named ? d->asn_name : n;
    c.line("{ " + quote(asn) + ", " + quote(n) + ", sizeof(" + n + "), " + flags + ", dec_" + n + ", enc_" + n +
           ", print_" + n + ", " + (d->has_init ? "init_" + n : std::string("0")) + " },");
  }
  c.close("};");
  c.line("const uint32_t umts_type_registry_count = " + std::to_string(m.types.size()) + ";");
  c.line();
  c.line("const umts_type_info* umts_type_lookup(const char* name)");
  c.open("{");
  c.line("uint32_t i;");
  c.open("for (i = 0; i < umts_type_registry_count; i++) {");
  c.line("if (strcmp(umts_type_registry[i].name, name) == 0 || strcmp(umts_type_registry[i].c_name, name) == 0)");
  c.line("   return &umts_type_registry[i];");
  c.close("}");
  c.line("return 0;");
  c.close("}");

  std::vector<OutFile> files;
  files.push_back({"umts_rrc_registry.h", banner("Registry of the generated types (tests, fuzzers, benchmarks).") + h.take()});
  files.push_back({"umts_rrc_registry.cpp", banner("Registry of the generated types (tests, fuzzers, benchmarks).") + c.take()});
  return files;
}

}  // namespace rrcgen
