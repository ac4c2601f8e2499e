/*
 * BCH segmenter. See bch_segmenter.h for the cut.
 */
#include "bch_segmenter.h"

#include <cstring>
#include <new>

#include "umts_rrc.h"
#include "umts_rrc_rt.h"

namespace {

constexpr uint32_t kSfnPrimeBits = 11;
constexpr uint32_t kPayloadTagBits = 4;
constexpr uint32_t kFixedBits = 222;         /* SIB-Data-fixed */
constexpr uint32_t kCompleteBits = 226;      /* sib-Data-fixed of CompleteSIB */
constexpr uint32_t kVariableMaxBits = 214;   /* SIB-Data-variable */
constexpr uint32_t kMaxSegments = 16;        /* SegCount */
constexpr uint32_t kMaxListEntries = 16;     /* CompleteSIB-List */
/* SIB-Type, SegCount or SegmentIndex, and the length of a SIB-Data-variable. */
constexpr uint32_t kShortSegmentOverhead = 5 + 4 + 8;
/* SIB-Type and the length of a SIB-Data-variable. */
constexpr uint32_t kCompleteShortOverhead = 5 + 8;
constexpr uint32_t kListLengthBits = 4;

enum PayloadTag : uint8_t {
  kFirstSegment = 2,
  kSubsequentSegment = 3,
  kLastSegmentShort = 4,
  kLastAndFirst = 5,
  kLastAndComplete = 6,
  kLastAndCompleteAndFirst = 7,
  kCompleteSibList = 8,
  kCompleteAndFirst = 9,
  kCompleteSib = 10,
  kLastSegment = 11
};

/* The block being filled: a lastSegmentShort, then CompleteSIBshort entries, then a
   FirstSegmentShort, each optional, in the order of the combined alternatives. */
struct Pending {
  bool has_last;
  bool has_first;
  uint32_t list_count;
  umts_bch_piece last;
  umts_bch_piece list[kMaxListEntries];
  umts_bch_piece first;
};

struct Run {
  const umts_bch_sib* sibs;
  umts_bch_block* blocks;
  uint32_t max_blocks;
  uint32_t count;
  uint16_t sfn_prime;
  rtxContext ctx;
  Pending pending;
};

/* How a SIB too long for one block is cut: a first segment of `first_bits`, then 222-bit
   subsequent segments, then the last segment with the rest. */
struct Plan {
  uint32_t first_bits;
  uint32_t segments;
};

/* Segments of a SIB of `numbits` bits whose first segment takes `first_bits`. */
uint32_t segments_after(uint32_t numbits, uint32_t first_bits) {
  return 1u + (numbits - first_bits + kFixedBits - 1u) / kFixedBits;
}

bool bit_of(const umts_bch_sib& sib, uint32_t bit) {
  return bit < sib.numbits && ((sib.data[bit >> 3] >> (7u - (bit & 7u))) & 1u) != 0;
}

umts_bch_piece make_piece(uint32_t index, const umts_bch_sib& sib, umts_bch_piece_kind kind, uint32_t segment,
                          uint32_t seg_count, uint32_t first_bit, uint32_t numbits) {
  umts_bch_piece p;
  p.sib = index;
  p.sib_type = sib.sib_type;
  p.kind = static_cast<uint8_t>(kind);
  p.segment = static_cast<uint8_t>(segment);
  p.seg_count = static_cast<uint8_t>(seg_count);
  p.first_bit = static_cast<uint16_t>(first_bit);
  p.numbits = static_cast<uint16_t>(numbits);
  return p;
}

/* The bits of the carried part of `piece` into `dst` of `capacity` octets, from the top of
   dst[0]; the rest zero. */
void copy_bits(const Run& run, const umts_bch_piece& piece, uint8_t* dst, uint32_t capacity) {
  const umts_bch_sib& sib = run.sibs[piece.sib];
  std::memset(dst, 0, capacity);
  for (uint32_t i = 0; i < piece.numbits && i < 8u * capacity; i++) {
    if (bit_of(sib, piece.first_bit + i)) dst[i >> 3] = static_cast<uint8_t>(dst[i >> 3] | (0x80u >> (i & 7u)));
  }
}

void put_fixed(const Run& run, const umts_bch_piece& piece, SIB_Data_fixed* d) {
  d->numbits = kFixedBits;
  copy_bits(run, piece, d->data, sizeof d->data);
}

void put_variable(const Run& run, const umts_bch_piece& piece, SIB_Data_variable* d) {
  d->numbits = piece.numbits;
  copy_bits(run, piece, d->data, sizeof d->data);
}

void put_last_short(const Run& run, const umts_bch_piece& piece, LastSegmentShort* s) {
  s->sib_Type = piece.sib_type;
  s->segmentIndex = piece.segment;
  put_variable(run, piece, &s->sib_Data_variable);
}

void put_first_short(const Run& run, const umts_bch_piece& piece, FirstSegmentShort* s) {
  s->sib_Type = piece.sib_type;
  s->seg_Count = piece.seg_count;
  put_variable(run, piece, &s->sib_Data_variable);
}

/* The completeSIB-List of pieces [from, to) of the block. */
struct ListStore {
  CompleteSIBshort entries[kMaxListEntries];
  rtxDListNode nodes[kMaxListEntries];
};

void put_list(const Run& run, const umts_bch_block& block, uint32_t from, uint32_t to, ListStore* store,
              CompleteSIB_List* list) {
  rtxDListInit(list);
  for (uint32_t i = from; i < to; i++) {
    CompleteSIBshort* e = &store->entries[i - from];
    e->sib_Type = block.pieces[i].sib_type;
    put_variable(run, block.pieces[i], &e->sib_Data_variable);
    store->nodes[i - from].data = e;
    rtxDListAppendNode(list, &store->nodes[i - from]);
  }
}

/* Encodes the message of `block` (pieces and payload set) into its 31 octets. */
umts_bch_status encode_block(Run& run, umts_bch_block& block) {
  BCCH_BCH_Message msg;
  std::memset(&msg, 0, sizeof msg);
  msg.message.sfn_Prime = block.sfn_prime;
  msg.message.payload.t = block.payload;

  FirstSegment first;
  SubsequentSegment subsequent;
  LastSegment last;
  LastSegmentShort last_short;
  CompleteSIB complete;
  SystemInformation_BCH_payload_lastAndFirst last_and_first;
  SystemInformation_BCH_payload_lastAndComplete last_and_complete;
  SystemInformation_BCH_payload_lastAndCompleteAndFirst last_complete_first;
  SystemInformation_BCH_payload_completeAndFirst complete_and_first;
  CompleteSIB_List list;
  ListStore store;
  const umts_bch_piece* p = block.pieces;
  const uint32_t n = block.piece_count;

  switch (block.payload) {
    case kFirstSegment:
      first.sib_Type = p[0].sib_type;
      first.seg_Count = p[0].seg_count;
      put_fixed(run, p[0], &first.sib_Data_fixed);
      msg.message.payload.u.firstSegment = &first;
      break;
    case kSubsequentSegment:
      subsequent.sib_Type = p[0].sib_type;
      subsequent.segmentIndex = p[0].segment;
      put_fixed(run, p[0], &subsequent.sib_Data_fixed);
      msg.message.payload.u.subsequentSegment = &subsequent;
      break;
    case kLastSegment:
      last.sib_Type = p[0].sib_type;
      last.segmentIndex = p[0].segment;
      put_fixed(run, p[0], &last.sib_Data_fixed);
      msg.message.payload.u.lastSegment = &last;
      break;
    case kLastSegmentShort:
      put_last_short(run, p[0], &last_short);
      msg.message.payload.u.lastSegmentShort = &last_short;
      break;
    case kCompleteSib:
      complete.sib_Type = p[0].sib_type;
      complete.sib_Data_fixed.numbits = kCompleteBits;
      copy_bits(run, p[0], complete.sib_Data_fixed.data, sizeof complete.sib_Data_fixed.data);
      msg.message.payload.u.completeSIB = &complete;
      break;
    case kCompleteSibList:
      put_list(run, block, 0, n, &store, &list);
      msg.message.payload.u.completeSIB_List = &list;
      break;
    case kLastAndFirst:
      put_last_short(run, p[0], &last_and_first.lastSegmentShort);
      put_first_short(run, p[1], &last_and_first.firstSegment);
      msg.message.payload.u.lastAndFirst = &last_and_first;
      break;
    case kLastAndComplete:
      put_last_short(run, p[0], &last_and_complete.lastSegmentShort);
      put_list(run, block, 1, n, &store, &last_and_complete.completeSIB_List);
      msg.message.payload.u.lastAndComplete = &last_and_complete;
      break;
    case kLastAndCompleteAndFirst:
      put_last_short(run, p[0], &last_complete_first.lastSegmentShort);
      put_list(run, block, 1, n - 1, &store, &last_complete_first.completeSIB_List);
      put_first_short(run, p[n - 1], &last_complete_first.firstSegment);
      msg.message.payload.u.lastAndCompleteAndFirst = &last_complete_first;
      break;
    case kCompleteAndFirst:
      put_list(run, block, 0, n - 1, &store, &complete_and_first.completeSIB_List);
      put_first_short(run, p[n - 1], &complete_and_first.firstSegment);
      msg.message.payload.u.completeAndFirst = &complete_and_first;
      break;
    default:
      return umts_bch_encode_failed;
  }

  uint8_t buf[64];
  if (rtxInitContextBuffer(&run.ctx, buf, sizeof buf) != 0) return umts_bch_encode_failed;
  if (asn1PE_UMTS_BCCH_BCH_Message(&run.ctx, &msg) != 0 || rtxBitPos(&run.ctx) > UMTS_BCH_BLOCK_BITS) {
    rtxErrReset(&run.ctx);
    return umts_bch_encode_failed;
  }
  std::memcpy(block.data, buf, UMTS_BCH_BLOCK_OCTETS);
  return umts_bch_ok;
}

/* Appends a block of `payload` carrying `count` pieces. */
umts_bch_status emit(Run& run, uint8_t payload, const umts_bch_piece* pieces, uint32_t count) {
  if (run.count >= run.max_blocks) return umts_bch_out_of_blocks;
  umts_bch_block& block = run.blocks[run.count];
  std::memset(&block, 0, sizeof block);
  block.sfn_prime = run.sfn_prime;
  block.payload = payload;
  block.piece_count = static_cast<uint8_t>(count);
  std::memcpy(block.pieces, pieces, count * sizeof *pieces);
  umts_bch_status st = encode_block(run, block);
  if (st != umts_bch_ok) return st;
  run.count++;
  run.sfn_prime = static_cast<uint16_t>((run.sfn_prime + 1u) & 0x7FFu);
  return umts_bch_ok;
}

bool pending_empty(const Pending& p) { return !p.has_last && !p.has_first && p.list_count == 0; }

uint32_t pending_bits(const Pending& p) {
  uint32_t bits = kSfnPrimeBits + kPayloadTagBits;
  if (p.has_last) bits += kShortSegmentOverhead + p.last.numbits;
  if (p.list_count != 0) {
    bits += kListLengthBits;
    for (uint32_t i = 0; i < p.list_count; i++) bits += kCompleteShortOverhead + p.list[i].numbits;
  }
  if (p.has_first) bits += kShortSegmentOverhead + p.first.numbits;
  return bits;
}

/* Sends the block being filled, if it holds anything, and starts an empty one. */
umts_bch_status flush(Run& run) {
  Pending& p = run.pending;
  if (pending_empty(p)) return umts_bch_ok;
  umts_bch_piece pieces[UMTS_BCH_MAX_PIECES];
  uint32_t n = 0;
  if (p.has_last) pieces[n++] = p.last;
  for (uint32_t i = 0; i < p.list_count; i++) pieces[n++] = p.list[i];
  if (p.has_first) pieces[n++] = p.first;

  uint8_t payload;
  if (p.has_last) {
    payload = p.list_count == 0 ? (p.has_first ? kLastAndFirst : kLastSegmentShort)
                                : (p.has_first ? kLastAndCompleteAndFirst : kLastAndComplete);
  } else {
    /* A FirstSegmentShort is only ever added beside other content. */
    payload = p.has_first ? kCompleteAndFirst : kCompleteSibList;
  }
  std::memset(&p, 0, sizeof p);
  return emit(run, payload, pieces, n);
}

umts_bch_status carry_segmented(Run& run, uint32_t index) {
  const umts_bch_sib& sib = run.sibs[index];
  Pending& p = run.pending;

  /* A FirstSegmentShort in the block being filled saves a block. */
  Plan plan{0, 0};
  if (!pending_empty(p) && !p.has_first) {
    const uint32_t free_bits = UMTS_BCH_BLOCK_BITS - pending_bits(p);
    uint32_t first_bits = free_bits > kShortSegmentOverhead ? free_bits - kShortSegmentOverhead : 0u;
    if (first_bits > kVariableMaxBits) first_bits = kVariableMaxBits;
    if (first_bits != 0 && segments_after(sib.numbits, first_bits) <= kMaxSegments)
      plan = Plan{first_bits, segments_after(sib.numbits, first_bits)};
  }
  const bool use_short = plan.segments != 0;
  if (!use_short) {
    if (segments_after(sib.numbits, kFixedBits) > kMaxSegments) return umts_bch_too_long;
    plan = Plan{kFixedBits, segments_after(sib.numbits, kFixedBits)};
  }

  umts_bch_status st;
  if (use_short) {
    p.has_first = true;
    p.first = make_piece(index, sib, umts_bch_first_short, 0, plan.segments, 0, plan.first_bits);
    st = flush(run);
  } else {
    st = flush(run);
    if (st == umts_bch_ok) {
      umts_bch_piece piece = make_piece(index, sib, umts_bch_first, 0, plan.segments, 0, kFixedBits);
      st = emit(run, kFirstSegment, &piece, 1);
    }
  }
  uint32_t bit = plan.first_bits;
  for (uint32_t segment = 1; st == umts_bch_ok && segment + 1u < plan.segments; segment++) {
    umts_bch_piece piece = make_piece(index, sib, umts_bch_subsequent, segment, plan.segments, bit, kFixedBits);
    st = emit(run, kSubsequentSegment, &piece, 1);
    bit += kFixedBits;
  }
  if (st != umts_bch_ok) return st;

  /* The rest, 1 to 222 bits: a lastSegment from 215 bits, else a lastSegmentShort that the
     next content may share a block with. */
  const uint32_t remaining = sib.numbits - bit;
  if (remaining > kVariableMaxBits) {
    umts_bch_piece piece = make_piece(index, sib, umts_bch_last, plan.segments - 1u, plan.segments, bit, remaining);
    return emit(run, kLastSegment, &piece, 1);
  }
  p.has_last = true;
  p.last = make_piece(index, sib, umts_bch_last_short, plan.segments - 1u, plan.segments, bit, remaining);
  return umts_bch_ok;
}

umts_bch_status carry(Run& run, uint32_t index) {
  const umts_bch_sib& sib = run.sibs[index];
  Pending& p = run.pending;
  if (sib.numbits <= kVariableMaxBits) {
    const uint32_t cost = kCompleteShortOverhead + sib.numbits + (p.list_count == 0 ? kListLengthBits : 0u);
    if (p.has_first || p.list_count == kMaxListEntries || pending_bits(p) + cost > UMTS_BCH_BLOCK_BITS) {
      umts_bch_status st = flush(run);
      if (st != umts_bch_ok) return st;
    }
    p.list[p.list_count++] = make_piece(index, sib, umts_bch_complete_short, 0, 1, 0, sib.numbits);
    return umts_bch_ok;
  }
  if (sib.numbits <= kCompleteBits) {
    umts_bch_status st = flush(run);
    if (st != umts_bch_ok) return st;
    umts_bch_piece piece = make_piece(index, sib, umts_bch_complete, 0, 1, 0, sib.numbits);
    return emit(run, kCompleteSib, &piece, 1);
  }
  return carry_segmented(run, index);
}

}  // namespace

umts_bch_status umts_bch_segment(const umts_bch_sib* sibs, uint32_t count, uint16_t first_sfn_prime,
                                 umts_bch_block* blocks, uint32_t max_blocks, uint32_t* block_count,
                                 uint32_t* failed_sib) {
  if (block_count != nullptr) *block_count = 0;
  if (failed_sib != nullptr) *failed_sib = count;
  if ((sibs == nullptr && count != 0) || blocks == nullptr || block_count == nullptr) return umts_bch_bad_sib;

  /* The run holds a runtime context with its first heap block: keep it off the stack. */
  static_assert(sizeof(Run) < (1u << 20), "run state");
  Run* run = new (std::nothrow) Run;
  if (run == nullptr) return umts_bch_encode_failed;
  std::memset(run, 0, sizeof *run);
  run->sibs = sibs;
  run->blocks = blocks;
  run->max_blocks = max_blocks;
  run->sfn_prime = static_cast<uint16_t>(first_sfn_prime & 0x7FFu);

  umts_bch_status st = rtInitContext(&run->ctx) == 0 ? umts_bch_ok : umts_bch_encode_failed;
  uint32_t i = 0;
  for (; st == umts_bch_ok && i < count; i++) {
    const umts_bch_sib& sib = sibs[i];
    if (sib.sib_type > 31 || sib.numbits == 0 || sib.data == nullptr) {
      st = umts_bch_bad_sib;
      break;
    }
    if (sib.own_block) st = flush(*run);
    if (st == umts_bch_ok) st = carry(*run, i);
    if (st == umts_bch_ok && sib.own_block) st = flush(*run);
    if (st != umts_bch_ok) break;
  }
  if (st == umts_bch_ok) {
    /* The last block holds the end of the last SIBs. */
    const Pending& p = run->pending;
    const uint32_t tail = p.has_last ? p.last.sib : p.list_count != 0 ? p.list[0].sib : count;
    st = flush(*run);
    if (st != umts_bch_ok && failed_sib != nullptr) *failed_sib = tail;
  } else if (failed_sib != nullptr) {
    *failed_sib = i;
  }

  *block_count = run->count;
  rtFreeContext(&run->ctx);
  delete run;
  return st;
}

const char* umts_bch_status_text(umts_bch_status status) {
  switch (status) {
    case umts_bch_ok:
      return "ok";
    case umts_bch_bad_sib:
      return "bad SIB (SIB-Type above 31, no bits or no data)";
    case umts_bch_too_long:
      return "SIB needs more than 16 segments";
    case umts_bch_out_of_blocks:
      return "more transport blocks needed than room was given for";
    case umts_bch_encode_failed:
      return "BCCH-BCH-Message encoding failed";
  }
  return "unknown status";
}

const char* umts_bch_piece_kind_name(umts_bch_piece_kind kind) {
  switch (kind) {
    case umts_bch_complete_short:
      return "completeSIB-List";
    case umts_bch_complete:
      return "completeSIB";
    case umts_bch_first:
      return "firstSegment";
    case umts_bch_first_short:
      return "firstSegment(short)";
    case umts_bch_subsequent:
      return "subsequentSegment";
    case umts_bch_last:
      return "lastSegment";
    case umts_bch_last_short:
      return "lastSegmentShort";
  }
  return "?";
}

const char* umts_bch_payload_name(uint32_t tag) {
  static const char* const names[] = {"noSegment",         "firstSegment",           "subsequentSegment",
                                      "lastSegmentShort",  "lastAndFirst",           "lastAndComplete",
                                      "lastAndCompleteAndFirst", "completeSIB-List", "completeAndFirst",
                                      "completeSIB",       "lastSegment"};
  return tag >= 1 && tag <= 11 ? names[tag - 1] : "spare";
}
