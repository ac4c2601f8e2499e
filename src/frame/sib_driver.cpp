/*
 * The whole-SIB entry, the global context, the SIB-Type mapping and the conversion driver.
 *
 * Diagnostics of this unit go to the log service; get_sib_type alone prints with puts.
 */
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "umts_rrc_rt.h"
#include "umts_sib_decoder.h"
#include "umts_sib_frame.h"
#include "umts_sib_log.h"
#include "decoder_state.h"

umts_decoder_ctxt g_umts_ctxt;

namespace {

/* Slot of each SIB-Type value (TS 25.331 order); umts_sib_count for the types not kept.
   extensionType maps to the slot of SIB11bis, the one extension SIB kept here; the BCH intake
   files such a segment there only where the cell's scheduling places SIB11bis. */
const uint8_t kSlotOfSibType[32] = {
    umts_sib_mib,     umts_sib_sib1,  umts_sib_sib2,  umts_sib_sib3,  umts_sib_count, /* 4 */
    umts_sib_sib5,    umts_sib_count, umts_sib_sib7,  umts_sib_count, umts_sib_count, /* 9 */
    umts_sib_count,   umts_sib_sib11, umts_sib_sib12, umts_sib_count, umts_sib_count, /* 14 */
    umts_sib_count,   umts_sib_count, umts_sib_count, umts_sib_count, umts_sib_count, /* 19 */
    umts_sib_count,   umts_sib_count, umts_sib_count, umts_sib_count, umts_sib_count, /* 24 */
    umts_sib_count,   umts_sib_sib18, umts_sib_sb1,   umts_sib_sb2,   umts_sib_count, /* 29 */
    umts_sib_count,   umts_sib_sib11bis};

/* Runs the conversion of slot `id` into its sub-record of `result`. */
uint8_t convert_slot(unsigned id, umts_sib_set* result) {
  switch (id) {
    case umts_sib_mib: return umts_convert_mib(&result->mib);
    case umts_sib_sib1: return umts_convert_sib1(&result->sib1);
    case umts_sib_sib2: return umts_convert_sib2(&result->sib2);
    case umts_sib_sib3: return umts_convert_sib3(&result->sib3);
    case umts_sib_sib5: return umts_convert_sib5(&result->sib5);
    case umts_sib_sib7: return umts_convert_sib7(&result->sib7);
    case umts_sib_sib11: return umts_convert_sib11(&result->sib11);
    case umts_sib_sib11bis: return umts_convert_sib11bis(&result->sib11bis);
    case umts_sib_sib12: return umts_convert_sib12(&result->sib12);
    case umts_sib_sib18: return umts_convert_sib18(&result->sib18);
    case umts_sib_sb1: return convert_scheduling_block1(&result->sb1);
    case umts_sib_sb2: return convert_scheduling_block2(&result->sb2);
    default: return 0;
  }
}

void log_conversion_failure(unsigned id) {
  switch (id) {
    case umts_sib_mib: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_mib failed!"); break;
    case umts_sib_sib1: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_sib1 failed"); break;
    case umts_sib_sib2: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_sib2 failed"); break;
    case umts_sib_sib3: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_sib3 failed"); break;
    case umts_sib_sib5: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_sib5 failed"); break;
    case umts_sib_sib7: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_sib7 failed"); break;
    case umts_sib_sib11: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_sib11 failed"); break;
    case umts_sib_sib11bis: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_sib11bis failed"); break;
    case umts_sib_sib12: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_sib12 failed"); break;
    case umts_sib_sib18: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_sib18 failed"); break;
    case umts_sib_sb1: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_scheduling_block1 failed"); break;
    case umts_sib_sb2: UMTS_LOG_ERROR("decode_system_info_msg:umts_convert_scheduling_block2 failed"); break;
    default: break;
  }
}

/* The extension list of a converted MIB (v6b0 level), or null when it has none. */
const umts_ext_sib_type_info_scheduling_info_list* extension_list(const umts_mib_info& mib) {
  if ((mib.presence_bitmask & 1u) == 0) return nullptr;
  const umts_mib_v690_nce& v690 = mib.v690NonCriticalExtensions;
  if ((v690.presence_bitmask & 1u) == 0) return nullptr;
  const umts_mib_v6b0_ext_ie& v6b0 = v690.v6b0NonCriticalExtensions.masterInformationBlock_v6b0ext;
  return (v6b0.presence_bitmask & 1u) != 0 ? &v6b0.extSIBTypeInfoSchedulingInfo_List : nullptr;
}

/* The same of a converted SB1 or SB2. */
template <typename SchedulingBlock>
const umts_ext_sib_type_info_scheduling_info_list* extension_list(const SchedulingBlock& sb) {
  if ((sb.presence_bitmask & 1u) == 0) return nullptr;
  const umts_sb_v6b0_ext& v6b0 = sb.v6b0NonCriticalExtensions.sysInfoTypeSB_v6b0ext;
  return (v6b0.presence_bitmask & 1u) != 0 ? &v6b0.extSIBTypeInfoSchedulingInfo_List : nullptr;
}

/* After a scheduling block has been converted, what it says of SIB11bis is kept for the BCH
   intake (SIB11bis is scheduled in the v6b0 lists only). */
void note_schedule(unsigned id, const umts_sib_set* result) {
  switch (id) {
    case umts_sib_mib: umts_note_sib11bis_schedule(umts_schedule_mib, extension_list(result->mib)); break;
    case umts_sib_sb1: umts_note_sib11bis_schedule(umts_schedule_sb1, extension_list(result->sb1)); break;
    case umts_sib_sb2: umts_note_sib11bis_schedule(umts_schedule_sb2, extension_list(result->sb2)); break;
    default: break;
  }
}

}  // namespace

umts_sib_id get_sib_type(uint32_t sib_type) {
  umts_sib_id id = sib_type < 32u ? static_cast<umts_sib_id>(kSlotOfSibType[sib_type]) : umts_sib_count;
  if (id == umts_sib_count) umts_say("get_sib_type:No such option available ");
  return id;
}

void umts_sib_decoder_set_gb_ctxt_bitmask(umts_sib_id sib_id) {
  const uint32_t id = umts_sib_id_bits(sib_id);
  if (id < umts_sib_count) {
    umts_ctxt().request_bitmask |= 1u << id;
  } else {
    UMTS_LOG_ERROR("umts_sib_decoder_set_gb_ctxt_bitmask:no such option available");
  }
  UMTS_LOG_TRACE("ASN context filled bitmask=%ld", static_cast<long>(umts_ctxt().request_bitmask));
}

uint8_t decode_system_info_msg(umts_sib_set* result) {
  /* Without a record the conversions have nowhere to go: the waiting SIBs stay in their
     slots, requested, for a call that brings one. With nothing waiting this is a success. */
  if (result == nullptr) return umts_ctxt().request_bitmask == 0 ? 1 : 0;
  /* The conversions read their slots only, so the mask read here stays valid for the pass. */
  const uint32_t requests = umts_ctxt().request_bitmask;
  for (unsigned id = 0; id < umts_sib_count; id++) {
    const uint32_t bit = 1u << id;
    if ((requests & bit) == 0) continue;
    const uint8_t converted = convert_slot(id, result);
    umts_sib_slot* slot = &umts_ctxt().slots[id];
    std::free(slot->buffer);
    std::memset(slot, 0, sizeof *slot);
    if (converted == 0) {
      log_conversion_failure(id);
      umts_ctxt().request_bitmask ^= bit;
      return 0;
    }
    result->presence_bitmask = static_cast<uint16_t>(result->presence_bitmask | bit);
    note_schedule(id, result);
  }
  umts_ctxt().request_bitmask = 0;
  return 1;
}

uint8_t umts_decode_whole_sib(uint32_t sib_id, const uint8_t* data, umts_sib_set* result, uint32_t length) {
  if (data == nullptr || result == nullptr || length - 1u >= 0x800u) {
    UMTS_LOG_ERROR("Invalid param!");
    return 0;
  }
  /* A context of this entry's own: it decodes nothing and lives until the entry returns. */
  rtxContext ctx;
  if (rtInitContextUsingKey(&ctx, nullptr, 0) != 0) {
    UMTS_LOG_ERROR("ASN context initialisation failed!");
    return 0;
  }
  UMTS_LOG_TRACE("ASN context initialised");
  /* Any id past the last slot is refused, not only the "invalid" value 12. */
  const uint32_t id = sib_id;
  if (id >= umts_sib_count) {
    UMTS_LOG_ERROR("invalid sib type %d", static_cast<int>(id));
    rtFreeContext(&ctx);
    return 0;
  }
  result->presence_bitmask = 0;

  /* The slot takes a fresh buffer; the one it held is released. The buffer is at least as
     long as the conversions' decode window, zero beyond the SIB. A write cursor still
     pointing into the old buffer is detached: later segments of a collection that was under
     way keep counting but write nothing, so these bytes stay as they were given. */
  umts_sib_slot* slot = &umts_ctxt().slots[id];
  const size_t size = length > UMTS_SIB_DECODE_LENGTH ? length : UMTS_SIB_DECODE_LENGTH;
  uint8_t* bytes = static_cast<uint8_t*>(std::calloc(size, 1));
  std::free(slot->buffer);
  slot->buffer = bytes;
  slot->write_cursor = nullptr;
  slot->write_bit = 0;
  if (bytes == nullptr) {
    UMTS_LOG_ERROR("Memory allocation failure");
    rtFreeContext(&ctx);
    return 0;
  }
  UMTS_LOG_TRACE("ASN context bch data for sib_type %d allocated, len=%d", static_cast<int>(id),
                 static_cast<int>(length));
  std::memcpy(bytes, data, length);
  UMTS_LOG_TRACE("ASN context bch data copied");

  umts_sib_decoder_set_gb_ctxt_bitmask(static_cast<umts_sib_id>(id));
  const uint8_t ret = decode_system_info_msg(result);
  UMTS_LOG_TRACE("system info msg decoded, ret_val=%d", ret);
  rtFreeContext(&ctx);
  return ret;
}
