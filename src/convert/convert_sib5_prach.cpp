/*
 * SIB5: the PRACH system information list. Per random access channel its physical
 * parameters, its transport formats and TFCS, its partitioning into access service classes,
 * and the persistence and AC-to-ASC tables.
 */
#include "convert_frame.h"
#include "convert_list.h"
#include "umts_sib_convert.h"

void convert_prach_system_information_list(const PRACH_SystemInformationList* src,
                                           umts_prach_system_information_list* dst) {
  dst->count = static_cast<uint8_t>(src->count);
  umts_for_each_node<PRACH_SystemInformation>(src, 16u, [dst](const PRACH_SystemInformation* entry, uint32_t i) {
    convert_prach_system_information(entry, &dst->entries[i]);
  });
}

void convert_prach_system_information(const PRACH_SystemInformation* src, umts_prach_system_information* dst) {
  convert_prach_rach_info(&src->prach_RACH_Info, &dst->prach_RACH_Info);
  dst->transportChannelIdentity = src->transportChannelIdentity;
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_transport_format_set, rach_TransportFormatSet);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_tfcs, rach_TFCS);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_prach_partitioning, prach_Partitioning);
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, convert_persistence_scaling_factorlist, persistenceScalingFactorList);
  UMTS_CONVERT_OPTIONAL(src, dst, 16u, convert_ac_to_asc_mapping_table, ac_To_ASC_MappingTable);
  convert_prach_system_information_modespecific_info(&src->modeSpecificInfo, &dst->modeSpecificInfo);
}

/* ---- PRACH-RACH-Info ------------------------------------------------------------------ */

void convert_prach_rach_info(const PRACH_RACH_Info* src, umts_prach_rach_info* dst) {
  convert_prach_rach_info_modespecific_info(&src->modeSpecificInfo, dst);
}

void convert_prach_rach_info_modespecific_info(const PRACH_RACH_Info_modeSpecificInfo* src, umts_prach_rach_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_prach_rach_info_modespecific_info_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr) convert_prach_rach_info_modespecific_info_tdd(src->u.tdd, &dst->u.tdd);
}

/* availableSignatures first: its copy is the one that runs on (16 bits told as 16 octets) over
   the three members after it, which are stored afterwards. */
void convert_prach_rach_info_modespecific_info_fdd(const PRACH_RACH_Info_modeSpecificInfo_fdd* src,
                                                   umts_prach_rach_info_fdd* dst) {
  convert_available_signatures(&src->availableSignatures, &dst->availableSignatures);
  dst->availableSF = src->availableSF;
  dst->preambleScramblingCodeWordNumber = src->preambleScramblingCodeWordNumber;
  dst->puncturingLimit = src->puncturingLimit;
  convert_available_subchannel_numbers(&src->availableSubChannelNumbers, &dst->availableSubChannelNumbers);
}

void convert_available_signatures(const AvailableSignatures* src, umts_bit_string32* dst) {
  umts_copy_bit_string(*src, dst);
}

void convert_available_subchannel_numbers(const AvailableSubChannelNumbers* src, umts_bit_string32* dst) {
  umts_copy_bit_string(*src, dst);
}

void convert_prach_rach_info_modespecific_info_tdd(const PRACH_RACH_Info_modeSpecificInfo_tdd* src,
                                                   umts_prach_rach_info_tdd* dst) {
  dst->timeslot = src->timeslot;
  convert_tdd_prach_ccode_list(&src->channelisationCodeList, &dst->channelisationCodeList);
  dst->prach_Midamble = src->prach_Midamble;
}

void convert_tdd_prach_ccode_list(const TDD_PRACH_CCodeList* src, umts_tdd_prach_ccode_list* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.sf8 != nullptr) convert_tdd_prach_ccode_list_sf8(src->u.sf8, &dst->u.sf8);
  else if (src->t == 2 && src->u.sf16 != nullptr) convert_tdd_prach_ccode_list_sf16(src->u.sf16, &dst->u.sf16);
}

namespace {
template <class Src>
void copy_code_list(const Src* src, umts_tdd_prach_ccode_list_n* dst) {
  dst->count = src->n;
  for (uint32_t i = 0; i < src->n && i < 8u; i++) dst->codes[i] = src->elem[i];
}
}  // namespace

void convert_tdd_prach_ccode_list_sf8(const TDD_PRACH_CCodeList_sf8* src, umts_tdd_prach_ccode_list_n* dst) {
  copy_code_list(src, dst);
}

void convert_tdd_prach_ccode_list_sf16(const TDD_PRACH_CCodeList_sf16* src, umts_tdd_prach_ccode_list_n* dst) {
  copy_code_list(src, dst);
}

/* ---- Partitioning ------------------------------------------------------------------------ */

void convert_prach_partitioning(const PRACH_Partitioning* src, umts_prach_partitioning* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_prach_partitioning_fdd(src->u.fdd, &dst->u.fdd);
  else if (src->t == 2 && src->u.tdd != nullptr) convert_prach_partitioning_tdd(src->u.tdd, &dst->u.tdd);
}

/* An ASC setting without its class keeps its position (the ASC index) with a zero entry. */
void convert_prach_partitioning_fdd(const PRACH_Partitioning_fdd* src, umts_prach_partitioning_fdd* dst) {
  dst->count = src->count;
  umts_for_each_node<ASCSetting_FDD>(src, 8u, [dst](const ASCSetting_FDD* entry, uint32_t i) {
    UMTS_CONVERT_OPTIONAL(entry, &dst->entries[i], 1u, convert_access_service_class_fdd, accessServiceClass_FDD);
  });
}

void convert_prach_partitioning_tdd(const PRACH_Partitioning_tdd* src, umts_prach_partitioning_tdd* dst) {
  dst->count = src->count;
  umts_for_each_node<ASCSetting_TDD>(src, 8u, [dst](const ASCSetting_TDD* entry, uint32_t i) {
    UMTS_CONVERT_OPTIONAL(entry, &dst->entries[i], 1u, convert_access_service_class_tdd, accessServiceClass_TDD);
  });
}

void convert_access_service_class_fdd(const AccessServiceClass_FDD* src, umts_access_service_class_fdd* dst) {
  dst->availableSignatureStartIndex = src->availableSignatureStartIndex;
  dst->availableSignatureEndIndex = src->availableSignatureEndIndex;
  convert_access_service_class_fdd_assigned_sub_channel_number(&src->assignedSubChannelNumber, &dst->assignedSubChannelNumber);
}

void convert_access_service_class_fdd_assigned_sub_channel_number(const AccessServiceClass_FDD_assignedSubChannelNumber* src,
                                                                  umts_bit_string32* dst) {
  umts_copy_bit_string(*src, dst);
}

/* channelisationCodeIndices: its count and one octet, not the octet loop of the other strings. */
void convert_access_service_class_tdd(const AccessServiceClass_TDD* src, umts_access_service_class_tdd* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    dst->channelisationCodeIndices.numbits = src->channelisationCodeIndices.numbits;
    if (src->channelisationCodeIndices.numbits != 0) dst->channelisationCodeIndices.data[0] = src->channelisationCodeIndices.data[0];
  }
  convert_access_service_class_tdd_subchannel_size(&src->subchannelSize, &dst->subchannelSize);
}

void convert_access_service_class_tdd_subchannel_size(const AccessServiceClass_TDD_subchannelSize* src,
                                                      umts_subchannel_size* dst) {
  dst->choice_tag = src->t;
  if (src->t == 2 && src->u.size2 != nullptr) convert_access_service_class_tdd_subchannel_size_size2(src->u.size2, &dst->u.size2);
  else if (src->t == 3 && src->u.size4 != nullptr) convert_access_service_class_tdd_subchannel_size_size4(src->u.size4, &dst->u.size4);
  else if (src->t == 4 && src->u.size8 != nullptr) convert_access_service_class_tdd_subchannel_size_size8(src->u.size8, &dst->u.size8);
}

void convert_access_service_class_tdd_subchannel_size_size2(const AccessServiceClass_TDD_subchannelSize_size2* src,
                                                            umts_subchannel_size2* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, subchannels);
}

void convert_access_service_class_tdd_subchannel_size_size4(const AccessServiceClass_TDD_subchannelSize_size4* src,
                                                            umts_subchannel_size_bits* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    umts_copy_bit_string(src->subchannels, &dst->subchannels);
  }
}

/* Its 8 bits would be copied as 8 octets: held to the field's four (umts_copy_bit_string),
   nothing behind the decoded string is read and nothing behind the field written. */
void convert_access_service_class_tdd_subchannel_size_size8(const AccessServiceClass_TDD_subchannelSize_size8* src,
                                                            umts_subchannel_size_bits* dst) {
  if (src->m & 1u) {
    dst->presence_bitmask |= 1u;
    umts_copy_bit_string(src->subchannels, &dst->subchannels);
  }
}

/* ---- Tables and FDD parameters ---------------------------------------------------------- */

void convert_persistence_scaling_factorlist(const PersistenceScalingFactorList* src,
                                            umts_persistence_scaling_factor_list* dst) {
  dst->count = src->n;
  for (uint32_t i = 0; i < src->n && i < 6u; i++) dst->entries[i] = src->elem[i];
}

/* Each one-octet mapping is widened to 32 bits. */
void convert_ac_to_asc_mapping_table(const AC_To_ASC_MappingTable* src, umts_ac_to_asc_mapping_table* dst) {
  dst->count = src->n;
  for (uint32_t i = 0; i < src->n && i < 7u; i++) dst->entries[i] = src->elem[i];
}

void convert_prach_system_information_modespecific_info(const PRACH_SystemInformation_modeSpecificInfo* src,
                                                        umts_prach_system_information_mode_specific_info* dst) {
  dst->choice_tag = src->t;
  if (src->t == 1 && src->u.fdd != nullptr) convert_prach_system_information_modespecific_info_fdd(src->u.fdd, &dst->u.fdd);
}

void convert_prach_system_information_modespecific_info_fdd(const PRACH_SystemInformation_modeSpecificInfo_fdd* src,
                                                            umts_prach_system_information_fdd* dst) {
  UMTS_COPY_OPTIONAL(src, dst, 1u, primaryCPICH_TX_Power);
  UMTS_COPY_OPTIONAL(src, dst, 2u, constantValue);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_prach_poweroffset, prach_PowerOffset);
  UMTS_CONVERT_OPTIONAL(src, dst, 8u, convert_rach_transmission_parameters, rach_TransmissionParameters);
  UMTS_CONVERT_OPTIONAL(src, dst, 16u, convert_aich_info, aich_Info);
}

void convert_prach_poweroffset(const PRACH_PowerOffset* src, umts_prach_power_offset* dst) {
  dst->powerRampStep = src->powerRampStep;
  dst->preambleRetransMax = src->preambleRetransMax;
}

void convert_rach_transmission_parameters(const RACH_TransmissionParameters* src, umts_rach_transmission_parameters* dst) {
  dst->mmax = src->mmax;
  dst->nb01Min = src->nb01Min;
  dst->nb01Max = src->nb01Max;
}

void convert_aich_info(const AICH_Info* src, umts_aich_info* dst) {
  dst->channelisationCode256 = src->channelisationCode256;
  dst->sttd_Indicator = src->sttd_Indicator;
  dst->aich_TransmissionTiming = src->aich_TransmissionTiming;
}
