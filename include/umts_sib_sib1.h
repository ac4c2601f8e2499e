/*
 * Flat records of the System Information Block type 1: the NAS information of the core
 * network, its per-domain list and the UE timers and constants.
 *
 * Timers and counters are kept as the decoder types them: enumerated ones as 32-bit
 * ordinals, integer ones as octets. No default of the schema is applied here: an absent
 * group of timers stays zero.
 */
#ifndef UMTS_SIB_SIB1_H
#define UMTS_SIB_SIB1_H

#include "umts_sib_common.h"

/* ---- NAS system information ------------------------------------------------------------ */

/* NAS-SystemInformationGSM-MAP: `count` octets (1 to 8). */
#define umts_nas_system_gsm_map_info_FIELDS(F)          \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)         \
  F(ARRAY, uint8_t, octets, 8, UMTS_ALWAYS, count)

/* ANSI-41-NAS-Parameter: a bit string of 1 to 2048 bits, whose first `count` octets are
   copied although `count` is its number of BITS. So the octets beyond the string's
   ceil(count / 8) hold what the decoder left there (zeros), and for more than 256 bits
   all 256 octets are copied (the record stops there). */
#define umts_nas_system_ansi_41_info_FIELDS(F)          \
  F(SCALAR, uint32_t, count, 1, UMTS_ALWAYS, _)         \
  F(ARRAY, uint8_t, octets, 256, UMTS_ALWAYS, count)

/* cn-Type: 1 gsm-MAP, 2 ansi-41. */
#define umts_cn_domain_sysinfo_cn_type_u_FIELDS(F)                      \
  F(RECORD, umts_nas_system_gsm_map_info, gsm_MAP, 1, 1, _)             \
  F(RECORD, umts_nas_system_ansi_41_info, ansi_41, 1, 2, _)

#define umts_cn_domain_sysinfo_cn_type_FIELDS(F)        \
  F(SCALAR, uint32_t, choice_tag, 1, UMTS_ALWAYS, _)    \
  F(UNION, umts_cn_domain_sysinfo_cn_type_u, u, 1, UMTS_ALWAYS, choice_tag)

/* cn_DomainIdentity: the CN-DomainIdentity ordinal (0 cs-domain, 1 ps-domain). */
#define umts_cn_domain_sysinfo_FIELDS(F)                                        \
  F(SCALAR, uint32_t, cn_DomainIdentity, 1, UMTS_ALWAYS, _)                     \
  F(RECORD, umts_cn_domain_sysinfo_cn_type, cn_Type, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, cn_DRX_CycleLengthCoeff, 1, UMTS_ALWAYS, _)

#define umts_cn_domain_sysinfo_list_FIELDS(F)                                   \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                  \
  F(ARRAY, umts_cn_domain_sysinfo, entries, 4, UMTS_ALWAYS, count)

/* ---- UE timers and constants ----------------------------------------------------------- */

#define umts_ue_conn_timers_and_constants_FIELDS(F)     \
  F(SCALAR, uint32_t, t_301, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, n_301, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint32_t, t_302, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, n_302, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint32_t, t_304, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, n_304, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint32_t, t_305, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint32_t, t_307, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint32_t, t_308, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, t_309, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint32_t, t_310, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, n_310, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint32_t, t_311, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, t_312, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint32_t, n_312, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, t_313, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint32_t, n_313, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint32_t, t_314, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint32_t, t_315, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint32_t, n_315, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint32_t, t_316, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint32_t, t_317, 1, UMTS_ALWAYS, _)

#define umts_ue_idle_timers_and_constants_FIELDS(F)     \
  F(SCALAR, uint32_t, t_300, 1, UMTS_ALWAYS, _)         \
  F(SCALAR, uint8_t, n_300, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint8_t, t_312, 1, UMTS_ALWAYS, _)          \
  F(SCALAR, uint32_t, n_312, 1, UMTS_ALWAYS, _)

/* ---- Extensions ------------------------------------------------------------------------ */

#define umts_ue_conn_timers_and_constants_v3a0ext_FIELDS(F)     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, n_312, 1, 0, _)                           \
  F(SCALAR, uint32_t, n_315, 1, 1, _)

#define umts_ue_idle_timers_and_constants_v3a0ext_FIELDS(F)     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, n_312, 1, 0, _)

#define umts_ue_conn_timers_and_constants_v860ext_FIELDS(F)     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(SCALAR, uint32_t, t_323, 1, 0, _)

/* nonCriticalExtensions: an empty sequence, stored as one byte that is always 0. */
#define umts_sysinfotype1_v860_nce_FIELDS(F)                                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_ue_conn_timers_and_constants_v860ext, ue_ConnTimersAndConstants, 1, UMTS_ALWAYS, _) \
  F(SCALAR, uint8_t, nonCriticalExtensions, 1, 0, _)

/* v860NonCriticalExtentions keeps the schema's spelling. */
#define umts_sysinfotype1_v3a0_nce_FIELDS(F)                                                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                                      \
  F(RECORD, umts_ue_conn_timers_and_constants_v3a0ext, ue_ConnTimersAndConstants_v3a0ext, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_ue_idle_timers_and_constants_v3a0ext, ue_IdleTimersAndConstants_v3a0ext, 1, UMTS_ALWAYS, _)    \
  F(RECORD, umts_sysinfotype1_v860_nce, v860NonCriticalExtentions, 1, 0, _)

/* ---- The block ------------------------------------------------------------------------- */

#define umts_sib1_info_FIELDS(F)                                                                \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_nas_system_gsm_map_info, cn_CommonGSM_MAP_NAS_SysInfo, 1, UMTS_ALWAYS, _)      \
  F(RECORD, umts_cn_domain_sysinfo_list, cn_DomainSysInfoList, 1, UMTS_ALWAYS, _)               \
  F(RECORD, umts_ue_conn_timers_and_constants, ue_ConnTimersAndConstants, 1, 0, _)              \
  F(RECORD, umts_ue_idle_timers_and_constants, ue_IdleTimersAndConstants, 1, 1, _)              \
  F(RECORD, umts_sysinfotype1_v3a0_nce, v3a0NonCriticalExtensions, 1, 2, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SIB1_RECORDS(X)                            \
  X(RECORD, umts_nas_system_gsm_map_info)               \
  X(RECORD, umts_nas_system_ansi_41_info)               \
  X(UNION, umts_cn_domain_sysinfo_cn_type_u)            \
  X(RECORD, umts_cn_domain_sysinfo_cn_type)             \
  X(RECORD, umts_cn_domain_sysinfo)                     \
  X(RECORD, umts_cn_domain_sysinfo_list)                \
  X(RECORD, umts_ue_conn_timers_and_constants)          \
  X(RECORD, umts_ue_idle_timers_and_constants)          \
  X(RECORD, umts_ue_conn_timers_and_constants_v3a0ext)  \
  X(RECORD, umts_ue_idle_timers_and_constants_v3a0ext)  \
  X(RECORD, umts_ue_conn_timers_and_constants_v860ext)  \
  X(RECORD, umts_sysinfotype1_v860_nce)                 \
  X(RECORD, umts_sysinfotype1_v3a0_nce)                 \
  X(RECORD, umts_sib1_info)

UMTS_SIB1_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SIB1_H */
