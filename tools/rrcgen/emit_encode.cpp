// Encoder family: asn1PE_UMTS_<T>, the mirror of the decoders, with the same way of naming
// the failing element on the way out of a failure. Each type has a body, enc_<T>, that writes
// through a cursor held by its caller (rtxEncCur), and an exported function that runs the body
// at the context's position; small bodies are merged into their callers, as the decoders' are.
#include <algorithm>
#include <stdexcept>

#include "emit.h"

namespace rrcgen {
namespace {

class EncodeEmitter {
 public:
  Unit function(const Def* d) {
    Writer& w = w_;
    const std::string& c = d->c_name;
    calls_.clear();
    const std::string arg = passedByValue(d) ? c + " value" : "const " + c + "* RT_RESTRICT pvalue";
    const std::string sig = std::string(d->inline_body ? "RT_MERGED_BODY" : "static") + " int enc_" + c +
                            "(rtxContext* RT_RESTRICT ctx, " + arg + ", rtxEncCur* RT_RESTRICT cur)";
    w.line(sig);
    w.open("{");
    own_ = d->named ? quote(d->asn_name) : "0";
    elem_ = "0";
    index_ = "-1";
    inner_ = "0";
    w.line("int stat = 0;");
    if (!passedByValue(d)) fail("RT_ERR_INVPARAM", "pvalue == 0");
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
        scalarWrite(d, "value");
        w.line("return 0;");
        break;
      case Kind::BitString:
      case Kind::OctetString:
        if (passedByValue(d)) string(d, "&value", "value.");
        else string(d, "pvalue", "pvalue->");
        w.line("return 0;");
        break;
      case Kind::Alias:
        call(d->target, passedByValue(d) ? "value" : "pvalue");
        w.line("return 0;");
        break;
      case Kind::Null:
        throw std::logic_error("NULL has no encoder");
    }
    w.close("}");
    w.line();
    if (passedByValue(d)) w.line("int asn1PE_UMTS_" + c + "(rtxContext* RT_RESTRICT ctx, " + c + " value)");
    else w.line("int asn1PE_UMTS_" + c + "(rtxContext* RT_RESTRICT ctx, const " + c + "* RT_RESTRICT pvalue)");
    w.open("{");
    w.line("RT_ENCODE_ENTRY(ctx, enc_" + c + ", " + (passedByValue(d) ? "value" : "pvalue") + ");");
    w.close("}");
    return Unit{d, w.take(), sig + ";\n", calls_};
  }

 private:
  Writer w_;
  // Names of the level that a failure site reports, as C literals or "0".
  std::string own_, elem_, index_, inner_;

  std::vector<const Def*> calls_;  // bodies that this function calls

  std::string names() const { return inner_ + ", " + elem_ + ", " + index_ + ", " + own_; }
  // The check after a step: a step of this level stores what the cursor has gathered before it
  // reports; a call has done so where it failed.
  void check(bool local = true) {
    w_.line(std::string(local ? "RT_CHECK_PUT(ctx, cur, stat, " : "RT_CHECK(ctx, stat, ") + names() + ");");
  }
  void fail(const std::string& status) { w_.line("RT_FAIL_PUT(ctx, cur, " + status + ", " + names() + ");"); }
  void fail(const std::string& status, const std::string& test) {
    w_.line("if (" + test + ") RT_FAIL_PUT(ctx, cur, " + status + ", " + names() + ");");
  }
  // The body of type t on the value `arg` (a pointer, or the value itself for scalars and short
  // bit strings).
  void call(const Def* t, const std::string& arg) {
    calls_.push_back(t);
    w_.line("stat = enc_" + t->c_name + "(ctx, " + arg + ", cur);");
    check(false);
  }
  // The name that a parameter of a failing value reports: the innermost one known.
  std::string topName() const { return inner_ != "0" ? inner_ : elem_ != "0" ? elem_ : own_; }

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
            w.line("rtxErrAddStrParm(ctx, " + topName() + ");");
            w.line("rtxErrAddIntParm(ctx, " + v + ");");
            fail("RT_ERR_CONSVIO");
            w.close("}");
          }
          w.line("stat = pe_ConsInt64At(ctx, cur, " + v + ", " + num(t->lo) + ", " + num(t->hi) + ");");
        } else {
          if (!fills) {
            std::string test = t->lo == 0 ? "(uint64_t)" + v + " > " + unum(t->hi) + "u"
                                          : "(uint64_t)(" + v + " - " + num(t->lo) + ") > " +
                                                unum(static_cast<unsigned long long>(t->hi - t->lo)) + "u";
            w.open("if (" + test + ") {");
            w.line("rtxErrAddStrParm(ctx, " + topName() + ");");
            w.line("rtxErrAddUIntParm(ctx, " + v + ");");
            fail("RT_ERR_CONSVIO");
            w.close("}");
          }
          w.line("stat = pe_ConsUInt64At(ctx, cur, " + v + ", " + num(t->lo) + ", " + unum(static_cast<unsigned long long>(t->hi)) + ");");
        }
        check();
        break;
      }
      case Kind::Enumerated: {
        std::string top = std::to_string(t->enumerators.size() - 1);
        w.open("if (" + v + " > " + top + ") {");
        w.line("rtxErrAddUIntParm(ctx, " + v + ");");
        fail("RT_ERR_INVENUM");
        w.close("}");
        w.line("stat = pe_ConsUInt64At(ctx, cur, " + v + ", 0, " + top + ");");
        check();
        break;
      }
      case Kind::Boolean:
        w.line("stat = rtxEncBitAt(ctx, cur, " + v + ");");
        check();
        break;
      default:
        throw std::logic_error("not a scalar");
    }
  }

  // Encodes a value of type t held at `lv` (an lvalue).
  void value(const Def* t, const std::string& lv) {
    if (t->kind == Kind::Integer || t->kind == Kind::Enumerated || t->kind == Kind::Boolean) {
      inner_ = t->named ? quote(t->asn_name) : "0";
      scalarWrite(t, lv);
      inner_ = "0";
      return;
    }
    if (isInlineString(t)) {
      string(t, "&" + lv, lv + ".");
      return;
    }
    call(t, passedByValue(t) ? lv : "&" + lv);
  }

  // Writes a BIT or OCTET STRING held in the record at `ptr`, whose members are `mem` + name.
  void string(const Def* d, const std::string& ptr, const std::string& mem) {
    Writer& w = w_;
    bool bits = d->kind == Kind::BitString;
    const char* op = bits ? "pe_BitString" : "pe_OctetString";
    std::string size = mem + (bits ? "numbits" : "numocts");
    if (!d->sized) {
      w.line("RT_SET_SIZE(ctx, 0, 0xFFFFFFFFu);");
      w.line(std::string("stat = ") + op + "At(ctx, cur, " + size + ", " + mem + "data);");
      check();
      return;
    }
    if (bits && bitStringKind(d) == "32") {
      if (!d->named_bits.empty() && d->size_lo == d->size_hi) {
        // Named bits: trailing zero bits may have been dropped; the wire carries the full size.
        w.open("{");
        w.line("int32_t last = rtxLastBitSet(" + mem + "data, " + mem + "numbits > 32 ? 32 : " + mem + "numbits);");
        w.line("uint32_t used = (uint32_t)(last + 1);");
        w.line(mem + "numbits = used <= " + num(d->size_hi) + " ? " + num(d->size_hi) + " : used;");
        fail("RT_ERR_CONSVIO", "last < -1");
        w.close("}");
      }
      w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
      w.line("stat = pe_BitString32At(ctx, cur, " + ptr + ", " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
    } else {
      if (!d->named_bits.empty()) throw std::runtime_error("named bits on a long string: " + d->c_name);
      w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
      w.line(std::string("stat = ") + op + "At(ctx, cur, " + size + ", " + mem + "data);");
    }
    check();
  }

  void sequence(const Def* d) {
    Writer& w = w_;
    bool carriers = false;
    for (const Field& f : d->fields) carriers |= f.containing;
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
        w.line("stat = rtxEncBitsAt(ctx, cur, " + expr + ", " + std::to_string(count) + ");");
        check();
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
      elem_ = quote(f.asn_name);
      if (f.containing) carrier(f);
      else if (base(f.type)->kind != Kind::Null) value(f.type, "pvalue->" + f.c_name);
      elem_ = "0";
      if (block) w.close("}");
    }
    w.line(carriers ? "return stat;" : "return 0;");
  }


  // A complete encoding of the element's type, written into a buffer of its own and then
  // carried as a BIT or OCTET STRING. The cursor's bits are stored first, and it goes on from
  // where the string leaves the context.
  void carrier(const Field& f) {
    Writer& w = w_;
    bool octs = f.containing_octets;
    w.open("{");
    w.line("rtxContext outer;");
    w.line("const uint8_t* data;");
    w.line("uint32_t len;");
    w.line("rtxEncCurSync(ctx, cur);");
    w.line("rtxCopyContext(&outer, ctx);");
    w.line("stat = rtxInitContextBuffer(ctx, 0, 0);");
    check(false);
    w.line("stat = asn1PE_UMTS_" + f.type->c_name + "(ctx, &pvalue->" + f.c_name + ");");
    check(false);
    w.line("data = ctx->buffer_data;");
    if (octs) w.line("len = pu_getMsgLen(ctx);");
    else w.line("len = ctx->byte_index * 8 + 8 - ctx->bit_offset;");
    w.line("rtxCopyContext(ctx, &outer);");
    w.line("RT_SET_SIZE(ctx, 0, 0xFFFFFFFFu);");
    w.line(std::string("stat = ") + (octs ? "pe_OctetString" : "pe_BitString") + "(ctx, len, data);");
    w.line("rtxMemHeapFreePtr(ctx, (void*)data);");
    w.line("rtxEncCurStart(ctx, cur);");
    check(false);
    w.close("}");
  }

  void choice(const Def* d) {
    Writer& w = w_;
    size_t n = d->fields.size();
    std::string top = std::to_string(n - 1);
    elem_ = "\"t\"";
    w.line("stat = pe_ConsUInt64At(ctx, cur, (uint64_t)(int64_t)(int32_t)(pvalue->t - 1), 0, " + top + ");");
    check();
    elem_ = "0";
    fail("RT_ERR_INVOPT", "pvalue->t - 1 > " + top);
    w.open("switch (pvalue->t) {");
    for (size_t i = 0; i < n; i++) {
      const Field& f = d->fields[i];
      const Def* b = base(f.type);
      w.open("case " + std::to_string(i + 1) + ":");
      elem_ = quote(f.asn_name);
      std::string lv = "pvalue->u." + f.c_name;
      if (b->kind == Kind::Null) {
      } else if (isScalar(f.type)) {
        value(f.type, lv);
      } else if (isInlineString(f.type)) {
        fail("RT_ERR_INVPARAM", lv + " == 0");
        string(f.type, lv, lv + "->");
      } else {
        fail("RT_ERR_INVPARAM", lv + " == 0");
        call(f.type, passedByValue(f.type) ? "*" + lv : lv);
      }
      elem_ = "0";
      w.line("break;");
      w.outdent();
    }
    w.open("default:");
    w.line("break;");
    w.outdent();
    w.close("}");
    w.line("return 0;");
  }

  static std::string elementName(const Def* e) { return e->named ? e->asn_name : std::string("element"); }

  void list(const Def* d) {
    Writer& w = w_;
    const Def* e = d->element;
    const std::string& ct = e->c_name;
    w.line("const rtxDListNode* node;");
    w.line("uint32_t i;");
    w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
    w.line("stat = pe_LengthAt(ctx, cur, pvalue->count);");
    fail("stat", "stat < 0");
    w.open("for (node = pvalue->head, i = 0; node != 0 && i < pvalue->count; node = node->next, i++) {");
    elem_ = quote(elementName(e));
    index_ = "(int32_t)i";
    fail("RT_ERR_INVPARAM", "node->data == 0");
    call(e, passedByValue(e) ? "*(const " + ct + "*)node->data" : "(const " + ct + "*)node->data");
    elem_ = "0";
    index_ = "-1";
    w.close("}");
    w.line("return 0;");
  }

  void array(const Def* d) {
    Writer& w = w_;
    const Def* e = d->element;
    w.line("uint32_t i;");
    if (d->size_lo == d->size_hi) {
      // A fixed count is not on the wire; a record that holds another count cannot be written.
      w.open("if (pvalue->n != " + num(d->size_hi) + ") {");
      w.line("rtxErrAddStrParm(ctx, " + topName() + ");");
      w.line("rtxErrAddUIntParm(ctx, pvalue->n);");
      fail("RT_ERR_CONSVIO");
      w.close("}");
    } else {
      w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
      w.line("stat = pe_LengthAt(ctx, cur, pvalue->n);");
      fail("stat", "stat < 0");
    }
    w.open("for (i = 0; i < pvalue->n; i++) {");
    elem_ = quote(elementName(e));
    index_ = "(int32_t)i";
    value(e, "pvalue->elem[i]");
    elem_ = "0";
    index_ = "-1";
    w.close("}");
    w.line("return 0;");
  }
};

}  // namespace

std::vector<Unit> emitEncoders(const Model& m) {
  std::vector<Unit> units;
  EncodeEmitter e;
  for (const Def* d : m.code_order) units.push_back(e.function(d));
  return units;
}

}  // namespace rrcgen
