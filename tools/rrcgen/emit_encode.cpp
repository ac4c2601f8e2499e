// Encoder family: asn1PE_UMTS_<T>, the mirror of the decoders.
#include <algorithm>
#include <stdexcept>

#include "emit.h"

namespace rrcgen {
namespace {

class EncodeEmitter {
 public:
  std::string function(const Def* d) {
    Writer& w = w_;
    const std::string& c = d->c_name;
    if (passedByValue(d)) w.line("int asn1PE_UMTS_" + c + "(rtxContext* ctx, " + c + " value)");
    else w.line("int asn1PE_UMTS_" + c + "(rtxContext* ctx, const " + c + "* pvalue)");
    w.open("{");
    w.line("int stat = 0;");
    if (!passedByValue(d)) w.line("if (pvalue == 0) RT_RAISE(ctx, RT_ERR_INVPARAM);");
    switch (d->kind) {
      case Kind::Sequence:
        sequence(d);
        break;
      case Kind::Choice:
        choice(d);
        break;
      case Kind::SequenceOf:
        if (isArray(d)) array(d);
        else list(d);
        break;
      case Kind::Integer:
      case Kind::Enumerated:
      case Kind::Boolean:
        pushType(d);
        scalarWrite(d, "value");
        popType(d);
        w.line("return 0;");
        break;
      case Kind::BitString:
      case Kind::OctetString:
        pushType(d);
        if (passedByValue(d)) string(d, "&value", "value.");
        else string(d, "pvalue", "pvalue->");
        popType(d);
        w.line("return 0;");
        break;
      case Kind::Alias:
        pushType(d);
        w.line("stat = asn1PE_UMTS_" + d->target->c_name + (passedByValue(d) ? "(ctx, value);" : "(ctx, pvalue);"));
        w.line("RT_CHECK(ctx, stat);");
        popType(d);
        w.line("return 0;");
        break;
      case Kind::Null:
        throw std::logic_error("NULL has no encoder");
    }
    w.close("}");
    return w.take();
  }

 private:
  Writer w_;

  void pushType(const Def* d) {
    if (d->named) w_.line("rtxCtxtPushTypeName(ctx, " + quote(d->asn_name) + ");");
  }
  void popType(const Def* d) {
    if (d->named) w_.line("rtxCtxtPopTypeName(ctx);");
  }

  // Writes an INTEGER, ENUMERATED or BOOLEAN value; the value is tested before any bit.
  void scalarWrite(const Def* t, const std::string& v) {
    Writer& w = w_;
    switch (t->kind) {
      case Kind::Integer: {
        std::string ct = intCType(t->lo, t->hi);
        bool fills = (ct == "uint8_t" && t->lo == 0 && t->hi == 255) ||
                     (ct == "uint16_t" && t->lo == 0 && t->hi == 65535) ||
                     (ct == "uint32_t" && t->lo == 0 && t->hi == 4294967295LL) ||
                     (ct == "int8_t" && t->lo == -128 && t->hi == 127) ||
                     (ct == "int16_t" && t->lo == -32768 && t->hi == 32767);
        if (t->lo < 0) {
          if (!fills) {
            w.open("if (" + v + " < " + num(t->lo) + " || " + v + " > " + num(t->hi) + ") {");
            w.line("rtxErrAddElemNameParm(ctx);");
            w.line("rtxErrAddIntParm(ctx, " + v + ");");
            w.line("RT_RAISE(ctx, RT_ERR_CONSVIO);");
            w.close("}");
          }
          w.line("stat = pe_ConsInt64(ctx, " + v + ", " + num(t->lo) + ", " + num(t->hi) + ");");
        } else {
          if (!fills) {
            std::string test = t->lo == 0 ? "(uint64_t)" + v + " > " + unum(t->hi) + "u"
                                          : "(uint64_t)(" + v + " - " + num(t->lo) + ") > " +
                                                unum(static_cast<unsigned long long>(t->hi - t->lo)) + "u";
            w.open("if (" + test + ") {");
            w.line("rtxErrAddElemNameParm(ctx);");
            w.line("rtxErrAddUIntParm(ctx, " + v + ");");
            w.line("RT_RAISE(ctx, RT_ERR_CONSVIO);");
            w.close("}");
          }
          w.line("stat = pe_ConsUInt64(ctx, " + v + ", " + num(t->lo) + ", " + unum(static_cast<unsigned long long>(t->hi)) + ");");
        }
        w.line("RT_CHECK(ctx, stat);");
        break;
      }
      case Kind::Enumerated: {
        std::string top = std::to_string(t->enumerators.size() - 1);
        w.open("if (" + v + " > " + top + ") {");
        w.line("rtxErrAddUIntParm(ctx, " + v + ");");
        w.line("RT_RAISE(ctx, RT_ERR_INVENUM);");
        w.close("}");
        w.line("stat = pe_ConsUInt64(ctx, " + v + ", 0, " + top + ");");
        w.line("RT_CHECK(ctx, stat);");
        break;
      }
      case Kind::Boolean:
        w.line("stat = rtxEncBit(ctx, " + v + ");");
        w.line("RT_CHECK(ctx, stat);");
        break;
      default:
        throw std::logic_error("not a scalar");
    }
  }

  // Encodes a value of type t held at `lv` (an lvalue).
  void value(const Def* t, const std::string& lv) {
    Writer& w = w_;
    if (t->kind == Kind::Integer || t->kind == Kind::Enumerated || t->kind == Kind::Boolean) {
      pushType(t);
      scalarWrite(t, lv);
      popType(t);
      return;
    }
    if (isInlineString(t)) {
      string(t, "&" + lv, lv + ".");
      return;
    }
    if (passedByValue(t)) w.line("stat = asn1PE_UMTS_" + t->c_name + "(ctx, " + lv + ");");
    else w.line("stat = asn1PE_UMTS_" + t->c_name + "(ctx, &" + lv + ");");
    w.line("RT_CHECK(ctx, stat);");
  }

  // Writes a BIT or OCTET STRING held in the record at `ptr`, whose members are `mem` + name.
  void string(const Def* d, const std::string& ptr, const std::string& mem) {
    Writer& w = w_;
    bool bits = d->kind == Kind::BitString;
    const char* op = bits ? "pe_BitString" : "pe_OctetString";
    std::string size = mem + (bits ? "numbits" : "numocts");
    if (!d->sized) {
      w.line("RT_SET_SIZE(ctx, 0, 0xFFFFFFFFu);");
      w.line(std::string("stat = ") + op + "(ctx, " + size + ", " + mem + "data);");
      w.line("RT_CHECK(ctx, stat);");
      return;
    }
    if (bits && bitStringKind(d) == "32") {
      if (!d->named_bits.empty() && d->size_lo == d->size_hi) {
        // Named bits: trailing zero bits may have been dropped; the wire carries the full size.
        w.open("{");
        w.line("int32_t last = rtxLastBitSet(" + mem + "data, " + mem + "numbits > 32 ? 32 : " + mem + "numbits);");
        w.line("uint32_t used = (uint32_t)(last + 1);");
        w.line(mem + "numbits = used <= " + num(d->size_hi) + " ? " + num(d->size_hi) + " : used;");
        w.line("if (last < -1) RT_RAISE(ctx, RT_ERR_CONSVIO);");
        w.close("}");
      }
      w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
      w.line("stat = pe_BitString32(ctx, " + ptr + ", " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
    } else {
      if (!d->named_bits.empty()) throw std::runtime_error("named bits on a long string: " + d->c_name);
      w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
      w.line(std::string("stat = ") + op + "(ctx, " + size + ", " + mem + "data);");
    }
    w.line("RT_CHECK(ctx, stat);");
  }

  void sequence(const Def* d) {
    Writer& w = w_;
    bool carriers = false;
    for (const Field& f : d->fields) carriers |= f.containing;
    pushType(d);
    int k = d->preamble_bits;
    if (k > 0) {
      w.line("/* presence bits of the OPTIONAL and DEFAULT elements, in schema order */");
      std::vector<std::string> bits;
      for (const Field& f : d->fields) {
        if (!(f.optional || f.has_default)) continue;
        bits.push_back(f.optional ? "((pvalue->m >> " + std::to_string(f.opt_bit) + ") & 1u)"
                                  : "(pvalue->" + f.c_name + " != " + num(f.default_value) + ")");
      }
      // In words of at most 32 bits, first element first.
      for (size_t first = 0; first < bits.size(); first += 32) {
        size_t count = std::min<size_t>(32, bits.size() - first);
        std::string expr;
        for (size_t j = 0; j < count; j++) {
          std::string term = "((uint64_t)" + bits[first + j] + " << " + std::to_string(count - 1 - j) + ")";
          expr += (expr.empty() ? "" : " |\n      ") + term;
        }
        w.line("stat = rtxEncBitsFast(ctx, " + expr + ", " + std::to_string(count) + ");");
        w.line("RT_CHECK(ctx, stat);");
      }
    }
    for (const Field& f : d->fields) {
      w.line("/* " + f.asn_name + " */");
      bool block = false;
      if (f.optional) {
        w.open("if (pvalue->m & " + presenceBit(f.opt_bit) + ") {");
        block = true;
      } else if (f.has_default) {
        w.open("if (pvalue->" + f.c_name + " != " + num(f.default_value) + ") {");
        block = true;
      }
      w.line("rtxCtxtPushElemName(ctx, " + quote(f.asn_name) + ");");
      if (f.containing) carrier(f);
      else if (base(f.type)->kind != Kind::Null) value(f.type, "pvalue->" + f.c_name);
      w.line("rtxCtxtPopElemName(ctx);");
      if (block) w.close("}");
    }
    popType(d);
    w.line(carriers ? "return stat;" : "return 0;");
  }


  // A complete encoding of the element's type, written into a buffer of its own and then
  // carried as a BIT or OCTET STRING.
  void carrier(const Field& f) {
    Writer& w = w_;
    bool octs = f.containing_octets;
    w.open("{");
    w.line("rtxContext outer;");
    w.line("const uint8_t* data;");
    w.line("uint32_t len;");
    w.line("rtxCopyContext(&outer, ctx);");
    w.line("stat = rtxInitContextBuffer(ctx, 0, 0);");
    w.line("RT_CHECK(ctx, stat);");
    w.line("stat = asn1PE_UMTS_" + f.type->c_name + "(ctx, &pvalue->" + f.c_name + ");");
    w.line("RT_CHECK(ctx, stat);");
    w.line("data = ctx->buffer_data;");
    if (octs) w.line("len = pu_getMsgLen(ctx);");
    else w.line("len = ctx->byte_index * 8 + 8 - ctx->bit_offset;");
    w.line("rtxCopyContext(ctx, &outer);");
    w.line("RT_SET_SIZE(ctx, 0, 0xFFFFFFFFu);");
    w.line(std::string("stat = ") + (octs ? "pe_OctetString" : "pe_BitString") + "(ctx, len, data);");
    w.line("rtxMemHeapFreePtr(ctx, (void*)data);");
    w.line("RT_CHECK(ctx, stat);");
    w.close("}");
  }

  void choice(const Def* d) {
    Writer& w = w_;
    size_t n = d->fields.size();
    std::string top = std::to_string(n - 1);
    pushType(d);
    w.line("rtxCtxtPushElemName(ctx, \"t\");");
    w.line("stat = pe_ConsUInt64(ctx, (uint64_t)(int64_t)(int32_t)(pvalue->t - 1), 0, " + top + ");");
    w.line("RT_CHECK(ctx, stat);");
    w.line("rtxCtxtPopElemName(ctx);");
    w.line("if (pvalue->t - 1 > " + top + ") RT_RAISE(ctx, RT_ERR_INVOPT);");
    w.open("switch (pvalue->t) {");
    for (size_t i = 0; i < n; i++) {
      const Field& f = d->fields[i];
      const Def* b = base(f.type);
      w.open("case " + std::to_string(i + 1) + ":");
      w.line("rtxCtxtPushElemName(ctx, " + quote(f.asn_name) + ");");
      std::string lv = "pvalue->u." + f.c_name;
      if (b->kind == Kind::Null) {
      } else if (isScalar(f.type)) {
        value(f.type, lv);
      } else if (isInlineString(f.type)) {
        w.line("if (" + lv + " == 0) RT_RAISE(ctx, RT_ERR_INVPARAM);");
        string(f.type, lv, lv + "->");
      } else {
        w.line("if (" + lv + " == 0) RT_RAISE(ctx, RT_ERR_INVPARAM);");
        if (passedByValue(f.type)) w.line("stat = asn1PE_UMTS_" + f.type->c_name + "(ctx, *" + lv + ");");
        else w.line("stat = asn1PE_UMTS_" + f.type->c_name + "(ctx, " + lv + ");");
        w.line("RT_CHECK(ctx, stat);");
      }
      w.line("rtxCtxtPopElemName(ctx);");
      w.line("break;");
      w.outdent();
    }
    w.open("default:");
    w.line("break;");
    w.outdent();
    w.close("}");
    popType(d);
    w.line("return 0;");
  }

  static std::string elementName(const Def* e) { return e->named ? e->asn_name : std::string("element"); }

  void list(const Def* d) {
    Writer& w = w_;
    const Def* e = d->element;
    const std::string& ct = e->c_name;
    w.line("const rtxDListNode* node;");
    w.line("uint32_t i;");
    pushType(d);
    w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
    w.line("stat = pe_Length(ctx, pvalue->count);");
    w.line("if (stat < 0) RT_RAISE(ctx, stat);");
    w.open("for (node = pvalue->head, i = 0; node != 0 && i < pvalue->count; node = node->next, i++) {");
    w.line("rtxCtxtPushArrayElemName(ctx, " + quote(elementName(e)) + ", i);");
    w.line("if (node->data == 0) RT_RAISE(ctx, RT_ERR_INVPARAM);");
    if (passedByValue(e)) w.line("stat = asn1PE_UMTS_" + ct + "(ctx, *(const " + ct + "*)node->data);");
    else w.line("stat = asn1PE_UMTS_" + ct + "(ctx, (const " + ct + "*)node->data);");
    w.line("RT_CHECK(ctx, stat);");
    w.line("rtxCtxtPopArrayElemName(ctx);");
    w.close("}");
    popType(d);
    w.line("return 0;");
  }

  void array(const Def* d) {
    Writer& w = w_;
    const Def* e = d->element;
    w.line("uint32_t i;");
    pushType(d);
    if (d->size_lo == d->size_hi) {
      // A fixed count is not on the wire; a record that holds another count cannot be written.
      w.open("if (pvalue->n != " + num(d->size_hi) + ") {");
      w.line("rtxErrAddElemNameParm(ctx);");
      w.line("rtxErrAddUIntParm(ctx, pvalue->n);");
      w.line("RT_RAISE(ctx, RT_ERR_CONSVIO);");
      w.close("}");
    } else {
      w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
      w.line("stat = pe_Length(ctx, pvalue->n);");
      w.line("if (stat < 0) RT_RAISE(ctx, stat);");
    }
    w.open("for (i = 0; i < pvalue->n; i++) {");
    w.line("rtxCtxtPushArrayElemName(ctx, " + quote(elementName(e)) + ", i);");
    value(e, "pvalue->elem[i]");
    w.line("rtxCtxtPopArrayElemName(ctx);");
    w.close("}");
    popType(d);
    w.line("return 0;");
  }
};

}  // namespace

std::vector<Unit> emitEncoders(const Model& m) {
  std::vector<Unit> units;
  EncodeEmitter e;
  for (const Def* d : m.code_order) units.push_back({d, e.function(d)});
  return units;
}

}  // namespace rrcgen
