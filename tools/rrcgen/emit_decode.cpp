// Decoder family: asn1PD_UMTS_<T>, one function per type, straight-line PER steps.
//
// Each type has a body, dec_<T>, static to its file, that reads through a cursor held by its
// caller (rtxDecCur): the unread bits stay in registers from field to field and from level to
// level, and small bodies are merged into their callers. The exported asn1PD_UMTS_<T> runs the
// body at the context's position. The context shows the position again at a failure (the step
// that failed brings it up to date) and when the exported function returns.
//
// A decoder pushes no names while it works: each failure site names its own level (the type
// of a scalar read in line, the element, the function's type) as the failure travels up, so
// that the context's name path ends at the failing element while a message that decodes pays
// nothing for it.
#include <stdexcept>

#include "emit.h"

namespace rrcgen {
namespace {

class DecodeEmitter {
 public:
  Unit function(const Def* d) {
    Writer& w = w_;
    calls_.clear();
    own_ = d->named ? quote(d->asn_name) : "0";
    elem_ = "0";
    index_ = "-1";
    inner_ = "0";
    const std::string sig = std::string(d->inline_body ? "RT_MERGED_BODY" : "static") + " int dec_" + d->c_name +
                            "(rtxContext* RT_RESTRICT ctx, " + d->c_name + "* RT_RESTRICT pvalue, rtxDecCur* RT_RESTRICT cur)";
    w.line(sig);
    w.open("{");
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
        w.line("int stat;");
        scalarRead(d, "*pvalue");
        w.line("return 0;");
        break;
      case Kind::BitString:
      case Kind::OctetString:
        w.line("int stat;");
        string(d, "pvalue", "pvalue->");
        w.line("return 0;");
        break;
      case Kind::Alias:
        w.line("int stat;");
        call(d->target, "pvalue");
        w.line("return 0;");
        break;
      case Kind::Null:
        throw std::logic_error("NULL has no decoder");
    }
    w.close("}");
    w.line();
    w.line("int asn1PD_UMTS_" + d->c_name + "(rtxContext* RT_RESTRICT ctx, " + d->c_name + "* RT_RESTRICT pvalue)");
    w.open("{");
    w.line("RT_DECODE_ENTRY(ctx, dec_" + d->c_name + ", pvalue);");
    w.close("}");
    Unit u{d, w.take(), sig + ";\n", calls_};
    return u;
  }

 private:
  Writer w_;
  std::vector<const Def*> calls_;  // bodies that this function calls
  // Names of the level that a failure site reports, as C literals or "0".
  std::string own_, elem_, index_, inner_;
  bool in_array_ = false;  // a failing array element cuts the count back first

  std::string names() const { return inner_ + ", " + elem_ + ", " + index_ + ", " + own_; }

  // The check after a step: a step of this level (`local`) brings the context's position up
  // to date before it reports; a call has done so where it failed.
  void check(bool local = true) {
    const std::string how = local ? "_AT(ctx, cur, stat, " : "(ctx, stat, ";
    if (!in_array_) {
      w_.line("RT_CHECK" + how + names() + ");");
      return;
    }
    w_.open("if (stat != 0) {");
    w_.line("pvalue->n = i + 1;");
    w_.line("RT_FAIL" + how + names() + ");");
    w_.close("}");
  }

  void fail(const std::string& status) { w_.line("RT_FAIL_AT(ctx, cur, " + status + ", " + names() + ");"); }

  // The body of type t on the record at `ptr`.
  void call(const Def* t, const std::string& ptr) {
    calls_.push_back(t);
    w_.line("stat = dec_" + t->c_name + "(ctx, " + ptr + ", cur);");
    check(false);
  }

  // Address of an lvalue: "*pvalue" is "pvalue", "pvalue->x" is "&pvalue->x".
  static std::string addr(const std::string& lv) { return lv[0] == '*' ? lv.substr(1) : "&" + lv; }

  // Reads an INTEGER, ENUMERATED or BOOLEAN value of type t into `lv`.
  void scalarRead(const Def* t, const std::string& lv) {
    Writer& w = w_;
    switch (t->kind) {
      case Kind::Integer: {
        std::string ct = intCType(t->lo, t->hi);
        std::string op = ct == "uint8_t"    ? "pd_ConsUInt8At"
                         : ct == "uint16_t" ? "pd_ConsUInt16At"
                         : ct == "uint32_t" ? "pd_ConsUInt32At"
                         : ct == "int8_t"   ? "pd_ConsInt8At"
                         : ct == "int16_t"  ? "pd_ConsInt16At"
                         : ct == "int32_t"  ? "pd_ConsIntegerAt"
                                            : "";
        if (op.empty()) throw std::runtime_error("no decoder for INTEGER storage " + ct);
        w.line("stat = " + op + "(ctx, cur, " + addr(lv) + ", " + num(t->lo) + ", " + num(t->hi) + ");");
        check();
        break;
      }
      case Kind::Enumerated:
        if (t->enumerators.size() == 1) {
          // One name: no bits are read, and any value but 0 would be a bad enumerated value.
          w.open("{");
          w.line("uint32_t ui;");
          w.line("stat = pd_ConsUnsignedAt(ctx, cur, &ui, 0, 0);");
          check();
          w.line("stat = ui != 0 ? RT_ERR_INVENUM : 0;");
          check();
          w.line(lv + " = ui;");
          w.close("}");
        } else {
          w.line("stat = pd_ConsUnsignedAt(ctx, cur, " + addr(lv) + ", 0, " + std::to_string(t->enumerators.size() - 1) + ");");
          check();
        }
        break;
      case Kind::Boolean:
        w.line("stat = rtxDecBitAt(ctx, cur, " + addr(lv) + ");");
        check();
        break;
      default:
        throw std::logic_error("not a scalar");
    }
  }

  // Decodes a value of type t in place at `lv`. Scalars of a type of their own are read in
  // line, their type named as their own decoder would.
  void value(const Def* t, const std::string& lv) {
    if (t->kind == Kind::Integer || t->kind == Kind::Enumerated || t->kind == Kind::Boolean) {
      inner_ = t->named ? quote(t->asn_name) : "0";
      scalarRead(t, lv);
      inner_ = "0";
      return;
    }
    if (isInlineString(t)) {
      string(t, "&" + lv, lv + ".");
      return;
    }
    call(t, "&" + lv);
  }

  // Reads a BIT or OCTET STRING into the record at `ptr`, whose members are `mem` + name.
  void string(const Def* d, const std::string& ptr, const std::string& mem) {
    Writer& w = w_;
    bool bits = d->kind == Kind::BitString;
    if (!d->sized) {
      w.line(std::string("stat = ") + (bits ? "pd_DynBitStringAt" : "pd_DynOctetStringAt") + "(ctx, cur, " + ptr + ");");
      check();
      return;
    }
    w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
    if (bits && bitStringKind(d) == "32") {
      w.line("stat = pd_BitString32At(ctx, cur, " + ptr + ", " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
    } else if (bits) {
      w.line("stat = pd_BitStringAt(ctx, cur, &" + mem + "numbits, " + mem + "data, sizeof(" + mem + "data));");
    } else {
      w.line("stat = pd_OctetStringAt(ctx, cur, &" + mem + "numocts, " + mem + "data, sizeof(" + mem + "data));");
    }
    check();
  }

  void sequence(const Def* d) {
    Writer& w = w_;
    bool carriers = false;
    for (const Field& f : d->fields) carriers |= f.containing;
    w.line("int stat = 0;");
    int k = d->preamble_bits;
    if (k > 0) w.line(k > 32 ? "uint64_t present;" : "uint32_t present;");
    if (d->has_m) w.line("pvalue->m = 0;");
    if (k > 0) {
      w.line("/* presence bits of the OPTIONAL and DEFAULT elements, in schema order */");
      if (k <= 32) {
        w.line("stat = rtxDecBitsAt(ctx, cur, " + std::to_string(k) + ", &present);");
        check();
      } else {
        w.open("{");
        w.line("uint32_t hi, lo;");
        w.line("stat = rtxDecBitsAt(ctx, cur, " + std::to_string(k - 32) + ", &hi);");
        check();
        w.line("stat = rtxDecBitsAt(ctx, cur, 32, &lo);");
        check();
        w.line("present = ((uint64_t)hi << 32) | lo;");
        w.close("}");
      }
    }
    int pos = 0;
    for (const Field& f : d->fields) {
      bool flagged = f.optional || f.has_default;
      w.line("/* " + f.asn_name + " */");
      if (flagged) {
        int shift = k - 1 - pos++;
        w.open("if (present & ((" + std::string(k > 32 ? "uint64_t" : "uint32_t") + ")1 << " + std::to_string(shift) + ")) {");
      }
      elem_ = quote(f.asn_name);
      if (f.optional) w.line("pvalue->m |= " + presenceBit(f.opt_bit) + ";");
      if (f.containing) carrier(f);
      else if (base(f.type)->kind != Kind::Null) value(f.type, "pvalue->" + f.c_name);
      elem_ = "0";
      if (f.has_default) {
        w.close("}");
        w.open("else {");
        w.line("pvalue->" + f.c_name + " = " + num(f.default_value) + ";");
        w.close("}");
      } else if (flagged) {
        w.close("}");
      }
    }
    w.line(carriers ? "return stat;" : "return 0;");
  }

  // An element that carries a complete encoding of its type in a BIT or OCTET STRING. The
  // contained type is decoded by its exported function on a buffer of its own.
  void carrier(const Field& f) {
    Writer& w = w_;
    bool octs = f.containing_octets;
    w.open("{");
    w.line(std::string(octs ? "rtxDynOctStr" : "rtxDynBitStr") + " carrier;");
    w.line("rtxContext outer;");
    w.line(std::string("stat = ") + (octs ? "pd_DynOctetStringAt" : "pd_DynBitStringAt") + "(ctx, cur, &carrier);");
    check();
    w.line("rtxCurSync(ctx, cur);");
    w.line("rtxCopyContext(&outer, ctx);");
    if (octs) w.line("stat = pu_setBuffer(ctx, carrier.data, carrier.numocts, ctx->aligned);");
    else w.line("stat = pu_setBuffer(ctx, carrier.data, (carrier.numbits + 7) / 8, ctx->aligned);");
    w.open("if (stat == 0) {");
    w.line("/* a failure leaves the context on the inner buffer: nothing goes on decoding on it */");
    w.line("stat = asn1PD_UMTS_" + f.type->c_name + "(ctx, &pvalue->" + f.c_name + ");");
    check(false);
    w.close("}");
    w.line("rtxCopyContext(ctx, &outer);");
    w.line("rtxCurStart(cur, rtxBitPos(ctx));");
    w.line("rtxMemHeapFreePtr(ctx, (void*)carrier.data);");
    w.close("}");
  }

  void choice(const Def* d) {
    Writer& w = w_;
    size_t n = d->fields.size();
    w.line("int stat;");
    w.line("uint32_t ui;");
    w.line("stat = pd_ConsUnsignedAt(ctx, cur, &ui, 0, " + std::to_string(n - 1) + ");");
    check();
    w.line("pvalue->t = ui + 1;");
    w.open("switch (ui) {");
    for (size_t i = 0; i < n; i++) {
      const Field& f = d->fields[i];
      const Def* b = base(f.type);
      w.open("case " + std::to_string(i) + ": /* " + f.asn_name + " */");
      elem_ = quote(f.asn_name);
      std::string lv = "pvalue->u." + f.c_name;
      if (b->kind == Kind::Null) {
        // nothing on the wire
      } else if (isScalar(f.type)) {
        value(f.type, lv);
      } else if (isInlineString(f.type)) {
        std::string ct = cType(f.type);
        w.line(lv + " = (" + ct + "*)rtxMemHeapAlloc(ctx, sizeof(" + ct + "));");
        w.line("if (" + lv + " == 0) RT_FAIL_AT(ctx, cur, RT_ERR_NOMEM, " + names() + ");");
        string(f.type, lv, lv + "->");
      } else {
        const std::string& ct = f.type->c_name;
        w.line(lv + " = (" + ct + "*)" + (f.type->has_init ? "rtxMemHeapAlloc" : "rtxMemHeapAllocZ") + "(ctx, sizeof(" +
               ct + "));");
        w.line("if (" + lv + " == 0) RT_FAIL_AT(ctx, cur, RT_ERR_NOMEM, " + names() + ");");
        if (f.type->has_init) w.line("asn1Init_UMTS_" + ct + "(" + lv + ");");
        call(f.type, lv);
      }
      elem_ = "0";
      w.line("break;");
      w.outdent();
    }
    w.open("default:");
    fail("RT_ERR_INVOPT");
    w.outdent();
    w.close("}");
    w.line("return 0;");
  }

  static std::string elementName(const Def* e) { return e->named ? e->asn_name : std::string("element"); }

  void list(const Def* d) {
    Writer& w = w_;
    const Def* e = d->element;
    const std::string& ct = e->c_name;
    w.line("int stat;");
    w.line("uint32_t count, i;");
    w.line("RT_SET_SIZE(ctx, " + num(d->size_lo) + ", " + num(d->size_hi) + ");");
    w.line("stat = pd_LengthAt(ctx, cur, &count);");
    check();
    w.line("rtxDListInit(pvalue);");
    w.open("for (i = 0; i < count; i++) {");
    w.line("rtxDListNode* node;");
    w.line(ct + "* elem;");
    elem_ = quote(elementName(e));
    index_ = "(int32_t)i";
    w.line("node = (rtxDListNode*)rtxMemHeapAlloc(ctx, sizeof(rtxDListNode) + sizeof(" + ct + "));");
    w.line("if (node == 0) RT_FAIL_AT(ctx, cur, RT_ERR_NOMEM, " + names() + ");");
    w.line("elem = (" + ct + "*)(node + 1);");
    w.line("node->data = elem;");
    if (e->has_init) w.line("asn1Init_UMTS_" + ct + "(elem);");
    w.line("rtxDListAppendNode(pvalue, node);");
    call(e, "elem");
    elem_ = "0";
    index_ = "-1";
    w.close("}");
    w.line("return 0;");
  }

  void array(const Def* d) {
    Writer& w = w_;
    const Def* e = d->element;
    w.line("int stat;");
    w.line("uint32_t i, n;");
    if (d->size_lo == d->size_hi) {
      w.line("pvalue->n = n = " + num(d->size_hi) + ";");
    } else {
      long long range = d->size_hi - d->size_lo;
      w.open("{");
      w.line("uint32_t raw;");
      w.line("stat = rtxDecBitsAt(ctx, cur, " + std::to_string(rangeBits(static_cast<unsigned long long>(range))) + ", &raw);");
      check();
      w.line("pvalue->n = n = raw + " + num(d->size_lo) + ";");
      w.open("if (raw > " + num(range) + ") {");
      w.line("rtxErrAddStrParm(ctx, " + quote(d->asn_name) + ");");
      w.line("rtxErrAddUIntParm(ctx, n);");
      fail("RT_ERR_CONSVIO");
      w.close("}");
      w.close("}");
    }
    w.open("for (i = 0; i < n; i++) {");
    std::string lv = "pvalue->elem[i]";
    if (e->has_init) w.line("asn1Init_UMTS_" + e->c_name + "(&" + lv + ");");
    else if (isScalar(e)) w.line(lv + " = 0;");
    elem_ = quote(elementName(e));
    index_ = "(int32_t)i";
    in_array_ = true;
    value(e, lv);
    in_array_ = false;
    elem_ = "0";
    index_ = "-1";
    w.close("}");
    w.line("return 0;");
  }
};

}  // namespace

std::vector<Unit> emitDecoders(const Model& m) {
  std::vector<Unit> units;
  DecodeEmitter e;
  for (const Def* d : m.code_order) units.push_back(e.function(d));
  return units;
}

}  // namespace rrcgen
