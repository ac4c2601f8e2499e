/*
 * SIB11bis beyond its measurement control information: the add-on of Release 5 (the v590
 * cell records of the new cells) and the chain of non-critical extensions v7b0, v860.
 */
#include "convert_frame.h"
#include "convert_meas.h"
#include "umts_sib_convert.h"

namespace {

void v590_cells(const rtxDList* src, umts_cell_select_reselect_info_v590ext_list* dst) {
  umts_meas::copy_list<CellSelectReselectInfo_v590ext>(src, &dst->count, dst->entries,
                                                      convert_cell_select_reselect_info_v590_ext);
}

}  // namespace

void convert_measurement_control_sys_info_extension_addon_r5(const MeasurementControlSysInfoExtensionAddon_r5* src,
                                                             umts_measurement_control_sys_info_extension_addon_r5* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_measurement_control_sys_info_extension_addon_r5_new_intra_frequency_cell_info_list_addon_r5,
                        newIntraFrequencyCellInfoListAddon_r5);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_measurement_control_sys_info_extension_addon_r5_new_inter_frequency_cell_info_list_addon_r5,
                        newInterFrequencyCellInfoListAddon_r5);
  UMTS_CONVERT_OPTIONAL(src, dst, 4u, convert_measurement_control_sys_info_extension_addon_r5_new_inter_rat_cell_info_list_addon_r5,
                        newInterRATCellInfoListAddon_r5);
}

void convert_measurement_control_sys_info_extension_addon_r5_new_intra_frequency_cell_info_list_addon_r5(
    const MeasurementControlSysInfoExtensionAddon_r5_newIntraFrequencyCellInfoListAddon_r5* src,
    umts_cell_select_reselect_info_v590ext_list* dst) {
  v590_cells(src, dst);
}

void convert_measurement_control_sys_info_extension_addon_r5_new_inter_frequency_cell_info_list_addon_r5(
    const MeasurementControlSysInfoExtensionAddon_r5_newInterFrequencyCellInfoListAddon_r5* src,
    umts_cell_select_reselect_info_v590ext_list* dst) {
  v590_cells(src, dst);
}

void convert_measurement_control_sys_info_extension_addon_r5_new_inter_rat_cell_info_list_addon_r5(
    const MeasurementControlSysInfoExtensionAddon_r5_newInterRATCellInfoListAddon_r5* src,
    umts_cell_select_reselect_info_v590ext_list* dst) {
  v590_cells(src, dst);
}

/* A link: its extension always, since it is mandatory in the link, then the next link. */
void convert_sysinfotype11bis_v7b0_nc_extensions(const SysInfoType11bis_v7b0NonCriticalExtensions* src,
                                                 umts_sib11bis_v7b0_nc_extensions* dst) {
  convert_sysinfotype11bis_v7b0ext_ies(&src->sysInfoType11bis_v7b0ext, &dst->sysInfoType11bis_v7b0ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype11bis_v7b0nces_v860nces, v860NonCriticalExtensions);
}

void convert_sysinfotype11bis_v7b0ext_ies(const SysInfoType11bis_v7b0ext_IEs* src, umts_v7b0ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_new_inter_freq_cell_list_v7b0ext, newInterFreqCellList);
}

void convert_new_inter_freq_cell_list_v7b0ext(const NewInterFreqCellList_v7b0ext* src,
                                              umts_new_inter_freq_cell_list_v7b0ext* dst) {
  umts_meas::copy_list<NewInterFreqCell_v7b0ext>(src, &dst->count, dst->intraSecondaryFreqIndicator,
                                                 convert_NewInterFreqCell_v7b0ext);
}

void convert_sysinfotype11bis_v7b0nces_v860nces(const SysInfoType11bis_v7b0NonCriticalExtensions_v860NonCriticalExtensions* src,
                                                umts_sib11bis_v860_nc_extensions* dst) {
  convert_sysinfotype11bis_v860ext_ies(&src->sysInfoType11bis_v860ext, &dst->sysInfoType11bis_v860ext);
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_sysinfotype11bis_v7b0nces_v860nces_nces, nonCriticalExtensions);
}

void convert_sysinfotype11bis_v860ext_ies(const SysInfoType11bis_v860ext_IEs* src, umts_sib11bis_v860ext_ies* dst) {
  UMTS_CONVERT_OPTIONAL(src, dst, 1u, convert_csg_psc_split_info, csg_PSCSplitInfo);
  UMTS_CONVERT_OPTIONAL(src, dst, 2u, convert_csg_dedicated_frequency_info_list, csg_DedicatedFrequencyInfoList);
}

void convert_csg_dedicated_frequency_info_list(const CSG_DedicatedFrequencyInfoList* src,
                                               umts_csg_dedicated_frequency_info_list* dst) {
  umts_meas::copy_list<FrequencyInfo>(src, &dst->count, dst->entries, [](const FrequencyInfo* e, umts_frequency_info* flat) {
    convert_frequency_info_mode_specific_info(&e->modeSpecificInfo, flat);
  });
}

/* The one byte of the empty sequence. */
void convert_sysinfotype11bis_v7b0nces_v860nces_nces(
    const SysInfoType11bis_v7b0NonCriticalExtensions_v860NonCriticalExtensions_nonCriticalExtensions* src, uint8_t* dst) {
  *dst = src->_unused;
}
