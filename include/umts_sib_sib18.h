/*
 * Flat records of the System Information Block type 18: the PLMN identities of the
 * neighbouring cells, in idle and connected mode.
 */
#ifndef UMTS_SIB_SIB18_H
#define UMTS_SIB_SIB18_H

#include "umts_sib_common.h"

/* ---- PLMN identities of the neighbour cells -------------------------------------------- */

/* One neighbour cell of a list; an entry without plmn_Identity still counts. */
#define umts_plmns_of_cells_entry_FIELDS(F)                     \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)      \
  F(RECORD, umts_plmn_identity, plmn_Identity, 1, 0, _)

#define umts_plmns_of_cells_list_FIELDS(F)                                  \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                              \
  F(ARRAY, umts_plmns_of_cells_entry, entries, 32, UMTS_ALWAYS, count)

#define umts_plmn_identities_of_neighbour_cells_FIELDS(F)                       \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                      \
  F(RECORD, umts_plmns_of_cells_list, plmnsOfIntraFreqCellsList, 1, 0, _)       \
  F(RECORD, umts_plmns_of_cells_list, plmnsOfInterFreqCellsList, 1, 1, _)       \
  F(RECORD, umts_plmns_of_cells_list, plmnsOfInterRATCellsList, 1, 2, _)

/* ---- Multiple PLMNs of the neighbour cells (v860) -------------------------------------- */

/* The PLMNs of one neighbour cell, 1 to 6. */
#define umts_multiple_plmn_list_FIELDS(F)                                                       \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                                  \
  F(ARRAY, umts_plmn_identity_with_optional_mcc_r6, entries, 6, UMTS_ALWAYS, count)

#define umts_multiple_plmns_of_cells_entry_FIELDS(F)                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)              \
  F(RECORD, umts_multiple_plmn_list, multiplePLMN_list, 1, 0, _)

#define umts_multiple_plmns_of_cells_list_FIELDS(F)                                     \
  F(SCALAR, uint8_t, count, 1, UMTS_ALWAYS, _)                                          \
  F(ARRAY, umts_multiple_plmns_of_cells_entry, entries, 32, UMTS_ALWAYS, count)

/* multipleplmnsOfIntraFreqCellsList and multipleplmnsOfInterFreqCellsList keep the lower-case
   "plmns" of their ASN.1 names. */
#define umts_plmn_identities_of_neighbour_cells_v860ext_FIELDS(F)                               \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_multiple_plmns_of_cells_list, multipleplmnsOfIntraFreqCellsList, 1, 0, _)      \
  F(RECORD, umts_multiple_plmns_of_cells_list, multipleplmnsOfInterFreqCellsList, 1, 1, _)

/* ---- Non-critical extensions ----------------------------------------------------------- */

#define umts_sysinfotype18_v860ext_FIELDS(F)                                                    \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_plmn_identities_of_neighbour_cells_v860ext, idleModePLMNIdentities, 1, 0, _)   \
  F(RECORD, umts_plmn_identities_of_neighbour_cells_v860ext, connectedModePLMNIdentities, 1, 1, _)

/* nonCriticalExtensions: an empty sequence, stored as one byte that is always 0. */
#define umts_sysinfotype18_v860_nce_FIELDS(F)                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_sysinfotype18_v860ext, sysInfoType18_v860ext, 1, UMTS_ALWAYS, _)       \
  F(SCALAR, uint8_t, nonCriticalExtensions, 1, 0, _)

/* The neighbour PLMNs that SIB11bis refers to. */
#define umts_sysinfotype18_v6b0ext_FIELDS(F)                                                            \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                              \
  F(RECORD, umts_plmn_identities_of_neighbour_cells, idleModePLMNIdentitiesSIB11bis, 1, 0, _)           \
  F(RECORD, umts_plmn_identities_of_neighbour_cells, connectedModePLMNIdentitiesSIB11bis, 1, 1, _)

#define umts_sysinfotype18_v6b0_nce_FIELDS(F)                                           \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                              \
  F(RECORD, umts_sysinfotype18_v6b0ext, sysInfoType18_v6b0ext, 1, UMTS_ALWAYS, _)       \
  F(RECORD, umts_sysinfotype18_v860_nce, v860NonCriticalExtensions, 1, 0, _)

/* ---- The block ------------------------------------------------------------------------- */

#define umts_sib18_info_FIELDS(F)                                                               \
  F(SCALAR, uint16_t, presence_bitmask, 1, UMTS_ALWAYS, _)                                      \
  F(RECORD, umts_plmn_identities_of_neighbour_cells, idleModePLMNIdentities, 1, 0, _)           \
  F(RECORD, umts_plmn_identities_of_neighbour_cells, connectedModePLMNIdentities, 1, 1, _)      \
  F(RECORD, umts_sysinfotype18_v6b0_nce, v6b0NonCriticalExtensions, 1, 2, _)

/* Every record of this header, each after the records it holds. */
#define UMTS_SIB18_RECORDS(X)                                   \
  X(RECORD, umts_plmns_of_cells_entry)                          \
  X(RECORD, umts_plmns_of_cells_list)                           \
  X(RECORD, umts_plmn_identities_of_neighbour_cells)            \
  X(RECORD, umts_multiple_plmn_list)                            \
  X(RECORD, umts_multiple_plmns_of_cells_entry)                 \
  X(RECORD, umts_multiple_plmns_of_cells_list)                  \
  X(RECORD, umts_plmn_identities_of_neighbour_cells_v860ext)    \
  X(RECORD, umts_sysinfotype18_v860ext)                         \
  X(RECORD, umts_sysinfotype18_v860_nce)                        \
  X(RECORD, umts_sysinfotype18_v6b0ext)                         \
  X(RECORD, umts_sysinfotype18_v6b0_nce)                        \
  X(RECORD, umts_sib18_info)

UMTS_SIB18_RECORDS(UMTS_DEFINE)

#endif /* UMTS_SIB_SIB18_H */
