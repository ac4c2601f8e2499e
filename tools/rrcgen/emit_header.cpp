// The decoded records of every type and the prototypes of the five families.
#include <set>
#include <stdexcept>

#include "emit.h"

namespace rrcgen {
namespace {

// The helpers that every generated unit includes.
const char* const kInternalHeader = R"(#ifndef UMTS_RRC_CODEC_INTERNAL_H
#define UMTS_RRC_CODEC_INTERNAL_H

#include "umts_rrc.h"

/* The record being decoded never overlaps the context or the cursor. */
#if defined(__GNUC__) || defined(__clang__)
#define RT_RESTRICT __restrict
#else
#define RT_RESTRICT
#endif

/* A failure of one level: its status and source position, and the names of the level,
   innermost first: the type of a scalar read in line, the element (with its array index,
   or -1), the type of this function; 0 leaves a name out. */
#define RT_FAIL(ctx, stat, inner, elem, index, outer) \
   return rtxErrUnwind((ctx), (stat), RT_CODEC_SRC, __LINE__, (inner), (elem), (index), (outer))
/* The failure of a call to another level, which has reported its own. */
#define RT_CHECK(ctx, stat, inner, elem, index, outer) \
   do { \
      if (RT_UNLIKELY((stat) != 0)) RT_FAIL(ctx, stat, inner, elem, index, outer); \
   } while (0)
/* The failure of a step of this level: the context shows the position first. */
#define RT_FAIL_AT(ctx, cur, stat, inner, elem, index, outer) \
   do { \
      rtxCurSync((ctx), (cur)); \
      RT_FAIL(ctx, stat, inner, elem, index, outer); \
   } while (0)
#define RT_CHECK_AT(ctx, cur, stat, inner, elem, index, outer) \
   do { \
      if (RT_UNLIKELY((stat) != 0)) RT_FAIL_AT(ctx, cur, stat, inner, elem, index, outer); \
   } while (0)

/* The size constraint that the next length or string operation applies. */
#define RT_SET_SIZE(ctx, lo, hi) \
   do { \
      (ctx)->size_constraint->lower = (lo); \
      (ctx)->size_constraint->upper = (hi); \
      (ctx)->size_constraint->ext_lower = 0; \
      (ctx)->size_constraint->ext_upper = 0; \
   } while (0)

/* Each type's decoder is a body that reads through a cursor held by its caller, and the
   exported function that runs the body at the context's position. Small bodies, and those
   that one place uses, are merged into their callers. */
#if defined(__GNUC__) || defined(__clang__)
#define RT_MERGED_BODY static inline __attribute__((always_inline))
#else
#define RT_MERGED_BODY static inline
#endif
#define RT_DECODE_ENTRY(ctx, body, pvalue) \
   rtxDecCur cur; \
   int stat; \
   rtxCurStart(&cur, rtxBitPos(ctx)); \
   stat = body((ctx), (pvalue), &cur); \
   if (stat == 0) rtxCurSync((ctx), &cur); \
   return stat

/* The encoders' bodies write through a cursor in the same way; a failing step of this level
   stores what has been gathered, so that the context shows the position. */
#define RT_FAIL_PUT(ctx, cur, stat, inner, elem, index, outer) \
   do { \
      rtxEncCurSync((ctx), (cur)); \
      RT_FAIL(ctx, stat, inner, elem, index, outer); \
   } while (0)
#define RT_CHECK_PUT(ctx, cur, stat, inner, elem, index, outer) \
   do { \
      if (RT_UNLIKELY((stat) != 0)) RT_FAIL_PUT(ctx, cur, stat, inner, elem, index, outer); \
   } while (0)
#define RT_ENCODE_ENTRY(ctx, body, arg) \
   rtxEncCur cur; \
   int stat; \
   rtxEncCurStart((ctx), &cur); \
   stat = body((ctx), (arg), &cur); \
   if (stat == 0) rtxEncCurSync((ctx), &cur); \
   return stat

/* The bodies of types that another unit holds, reached through their exported functions. */
#define RT_DECODE_EXTERN(T) \
   static inline int dec_##T(rtxContext* RT_RESTRICT ctx, T* RT_RESTRICT pvalue, rtxDecCur* RT_RESTRICT cur) \
   { \
      int stat; \
      rtxCurSync(ctx, cur); \
      stat = asn1PD_UMTS_##T(ctx, pvalue); \
      rtxCurStart(cur, rtxBitPos(ctx)); \
      return stat; \
   }
#define RT_ENCODE_EXTERN(T) \
   static inline int enc_##T(rtxContext* RT_RESTRICT ctx, const T* RT_RESTRICT pvalue, rtxEncCur* RT_RESTRICT cur) \
   { \
      int stat; \
      rtxEncCurSync(ctx, cur); \
      stat = asn1PE_UMTS_##T(ctx, pvalue); \
      rtxEncCurStart(ctx, cur); \
      return stat; \
   }
#define RT_ENCODE_EXTERN_VALUE(T) \
   static inline int enc_##T(rtxContext* RT_RESTRICT ctx, T value, rtxEncCur* RT_RESTRICT cur) \
   { \
      int stat; \
      rtxEncCurSync(ctx, cur); \
      stat = asn1PE_UMTS_##T(ctx, value); \
      rtxEncCurStart(ctx, cur); \
      return stat; \
   }

#endif /* UMTS_RRC_CODEC_INTERNAL_H */
)";

bool isStructKind(const Def* d) {
  switch (d->kind) {
    case Kind::Sequence:
    case Kind::Choice:
      return true;
    case Kind::SequenceOf:
      return isArray(d);
    case Kind::BitString:
      return bitStringKind(d) == "fixed";
    case Kind::OctetString:
      return d->sized;
    default:
      return false;
  }
}

std::string simpleTypedef(const Def* d) {
  switch (d->kind) {
    case Kind::Integer:
      return intCType(d->lo, d->hi);
    case Kind::Enumerated:
      return "uint32_t";
    case Kind::Boolean:
      return "uint8_t";
    case Kind::BitString:
      return bitStringKind(d) == "32" ? "rtxBitStr32" : "rtxDynBitStr";
    case Kind::OctetString:
      return "rtxDynOctStr";
    case Kind::SequenceOf:
      return "rtxDList";
    default:
      throw std::logic_error("no simple typedef for " + d->c_name);
  }
}

void structBody(Writer& w, const Def* d) {
  w.open("struct " + d->c_name + " {");
  switch (d->kind) {
    case Kind::Sequence: {
      std::set<std::string> names;
      if (d->has_m) {
        w.line(std::string(d->opt_count > 32 ? "uint64_t" : "uint32_t") + " m; /* presence bits of the OPTIONAL elements */");
        names.insert("m");
      }
      int members = 0;
      for (const Field& f : d->fields) {
        if (base(f.type)->kind == Kind::Null) continue;
        if (!names.insert(f.c_name).second)
          throw std::runtime_error("member name " + f.c_name + " clashes in " + d->c_name);
        std::string note;
        if (f.optional) note = " /* m bit " + std::to_string(f.opt_bit) + " */";
        w.line(cType(f.type) + " " + f.c_name + ";" + note);
        members++;
      }
      if (members == 0 && !d->has_m) w.line("uint8_t _unused; /* no element holds a value */");
      break;
    }
    case Kind::Choice: {
      w.line("uint32_t t; /* position of the alternative plus one, 0 for none */");
      w.open("union {");
      int members = 0;
      int pos = 1;
      for (const Field& f : d->fields) {
        std::string note = " /* t = " + std::to_string(pos++) + " */";
        if (base(f.type)->kind == Kind::Null) continue;
        if (isScalar(f.type)) w.line(cType(f.type) + " " + f.c_name + ";" + note);
        else w.line(cType(f.type) + "* " + f.c_name + ";" + note);
        members++;
      }
      if (members == 0) w.line("uint8_t _none; /* every alternative is NULL */");
      w.close("} u;");
      break;
    }
    case Kind::SequenceOf:
      w.line("uint32_t n;");
      w.line(cType(d->element) + " elem[" + std::to_string(d->size_hi) + "];");
      break;
    case Kind::BitString:
      w.line("uint32_t numbits;");
      w.line("uint8_t data[" + std::to_string(stringCapacity(d)) + "];");
      break;
    case Kind::OctetString:
      w.line("uint32_t numocts;");
      w.line("uint8_t data[" + std::to_string(stringCapacity(d)) + "];");
      break;
    default:
      break;
  }
  w.close("};");
}

std::string cIdent(const std::string& s) {
  std::string out = s;
  for (char& c : out)
    if (c == '-') c = '_';
  return out;
}

}  // namespace

std::vector<OutFile> emitHeader(const Model& m) {
  Writer w;
  w.line("#ifndef UMTS_RRC_H");
  w.line("#define UMTS_RRC_H");
  w.line();
  w.line("#include \"umts_rrc_rt.h\"");
  w.line();
  w.line("#ifdef __cplusplus");
  w.line("extern \"C\" {");
  w.line("#endif");
  w.line();
  w.line("/* Records declared as structures, so that pointers to them can stand anywhere. */");
  for (const Def* d : m.types)
    if (isStructKind(d)) w.line("typedef struct " + d->c_name + " " + d->c_name + ";");
  w.line();
  w.line("/* Scalars, strings and lists held in runtime records. */");
  for (const Def* d : m.types)
    if (!isStructKind(d) && d->kind != Kind::Alias) w.line("typedef " + simpleTypedef(d) + " " + d->c_name + ";");
  w.line();
  w.line("/* Types defined as another type. */");
  for (const Def* d : m.types)
    if (d->kind == Kind::Alias) w.line("typedef " + d->target->c_name + " " + d->c_name + ";");
  w.line();
  w.line("/* Values of the enumerated types: the position of the name in the schema. */");
  std::set<std::string> constants;
  for (const Def* d : m.types) {
    if (d->kind != Kind::Enumerated) continue;
    std::string line = "enum {";
    for (size_t i = 0; i < d->enumerators.size(); i++) {
      std::string c = "UMTS_" + d->c_name + "_" + cIdent(d->enumerators[i]);
      if (!constants.insert(c).second) throw std::runtime_error("enumerated constant " + c + " is not unique");
      line += (i ? ", " : " ") + c + " = " + std::to_string(i);
    }
    w.line(line + " };");
  }
  w.line();
  w.line("/* Records, each after the records that it holds by value. */");
  for (const Def* d : m.types) {
    if (!isStructKind(d)) continue;
    structBody(w, d);
    w.line();
  }
  w.line("/* Decoders, encoders, print and init functions, enumerated names. */");
  for (const Def* d : m.types) {
    const std::string& c = d->c_name;
    w.line("int asn1PD_UMTS_" + c + "(rtxContext* ctx, " + c + "* pvalue);");
    if (passedByValue(d)) w.line("int asn1PE_UMTS_" + c + "(rtxContext* ctx, " + c + " value);");
    else w.line("int asn1PE_UMTS_" + c + "(rtxContext* ctx, const " + c + "* pvalue);");
    w.line("void asn1Print_UMTS_" + c + "(const char* name, const " + c + "* pvalue);");
    if (d->has_init) w.line("void asn1Init_UMTS_" + c + "(" + c + "* pvalue);");
    if (d->kind == Kind::Enumerated) {
      w.line("const char* UMTS_" + c + "_ToString(uint32_t value);");
      w.line("int UMTS_" + c + "_ToEnum(rtxContext* ctx, const char* text, " + c + "* pvalue);");
      w.line("int UMTS_" + c + "_ToEnum2(rtxContext* ctx, const char* text, size_t length, " + c + "* pvalue);");
    }
  }
  w.line();
  w.line("#ifdef __cplusplus");
  w.line("}");
  w.line("#endif");
  w.line();
  w.line("#endif /* UMTS_RRC_H */");

  std::vector<OutFile> files;
  files.push_back({"umts_rrc.h", banner("Decoded records and codec functions of every RRC type.") + w.take()});

  files.push_back({"umts_rrc_codec_internal.h", banner("Helpers of the generated codec units.") + kInternalHeader});
  return files;
}

}  // namespace rrcgen
