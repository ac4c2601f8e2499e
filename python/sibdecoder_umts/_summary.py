"""The per-cell summary of sibdump --summary=json, built from the records of one cell.

The records are the dicts of the library's JSON (the last of each block); enumerated names
come from the codec's name tables in the library (UMTS_<Type>_ToString). The dict has the
same keys, order and values as sibdump's JSON object for the cell.
"""
from __future__ import annotations

import ctypes
from typing import Callable, Dict, List, Mapping, Optional

Record = Dict[str, object]

_MISSING = {
    "mib": "no MIB received", "sib1": "SIB1 not received", "sib2": "SIB2 not received",
    "sib3": "SIB3 not received", "sib5": "SIB5 not received", "sib7": "SIB7 not received",
    "sib11": "SIB11 not received", "sib11bis": "SIB11bis not received", "sib12": "SIB12 not received",
    "sib18": "SIB18 not received", "sb1": "SB1 not received", "sb2": "SB2 not received",
}

# Alternatives of SIBSb-TypeAndTag (MIB) and SIB-TypeAndTag (SB1, SB2), from 1.
_COMMON = ["sysInfoType1", "sysInfoType2", "sysInfoType3", "sysInfoType4", "sysInfoType5", "sysInfoType6",
           "sysInfoType7", "dummy", "dummy2", "dummy3", "sysInfoType11", "sysInfoType12", "sysInfoType13",
           "sysInfoType13-1", "sysInfoType13-2", "sysInfoType13-3", "sysInfoType13-4", "sysInfoType14",
           "sysInfoType15", "sysInfoType16", "sysInfoType17"]
_SIBSB_TYPES = _COMMON + ["sysInfoTypeSB1", "sysInfoTypeSB2", "sysInfoType15-1", "sysInfoType15-2",
                          "sysInfoType15-3", "sysInfoType15-4", "sysInfoType18", "sysInfoType15-5",
                          "sysInfoType5bis", "spare2", "spare1"]
_SIB_TYPES = _COMMON + ["sysInfoType15-1", "sysInfoType15-2", "sysInfoType15-3", "sysInfoType15-4",
                        "sysInfoType18", "sysInfoType15-5", "sysInfoType5bis", "spare4", "spare3", "spare2",
                        "spare1"]
_SIB_TYPES_EXT2 = ["systemInfoType19", "systemInfoType15-2ter", "systemInfoType20", "spare5", "spare4", "spare3",
                   "spare2", "spare1"]
_SLOTS = {"sysInfoType1": "sib1", "sysInfoType2": "sib2", "sysInfoType3": "sib3", "sysInfoType5": "sib5",
          "sysInfoType7": "sib7", "sysInfoType11": "sib11", "sysInfoType12": "sib12", "sysInfoType18": "sib18",
          "sysInfoTypeSB1": "sb1", "sysInfoTypeSB2": "sb2"}


class Names:
    """The codec's enumerated names, through the library."""

    def __init__(self, dll):
        self._dll = dll
        self._functions: Dict[str, Callable] = {}

    def __call__(self, type_name: str, ordinal: int) -> str:
        f = self._functions.get(type_name)
        if f is None:
            f = getattr(self._dll, f"UMTS_{type_name}_ToString")
            f.restype = ctypes.c_char_p
            f.argtypes = [ctypes.c_uint32]
            self._functions[type_name] = f
        return f(ordinal).decode("ascii")


def _missing(why: str) -> Record:
    return {"missing": why}


def _quantity(value, unit: str, coded: int) -> Record:
    if value == int(value):
        value = int(value)
    return {"value": value, "unit": unit, "coded": coded}


def _named(name: str, ordinal: int) -> Record:
    return {"name": name, "coded": ordinal}


def _bit(record: Mapping, n: int) -> bool:
    return bool(record.get("presence_bitmask", 0) >> n & 1)


def _u(choice: Mapping) -> Mapping:
    return choice.get("u", {})


def _plmn(p: Mapping) -> str:
    return "".join(str(d) for d in p["mcc"]["digits"]) + "-" + "".join(str(d) for d in p["mnc"]["digits"])


def _octets(hex_text: str) -> bytes:
    return bytes.fromhex(hex_text)


def identity(r: Mapping[str, Record], names: Names) -> Record:
    n: Record = {}
    if "mib" not in r:
        n["plmn"] = _missing(_MISSING["mib"])
    else:
        t = r["mib"]["plmn_Type"]
        if t["choice_tag"] == 1:
            n["plmn"] = _plmn(t["u"]["gsm_MAP"])
        elif t["choice_tag"] == 3:
            n["plmn"] = _plmn(t["u"]["gsm_MAP_and_ANSI_41"]["plmn_Identity"])
        else:
            n["plmn"] = _missing("the MIB carries no GSM-MAP PLMN identity")
    if "sib1" not in r:
        n["lac"] = _missing(_MISSING["sib1"])
        n["rac"] = _missing(_MISSING["sib1"])
    else:
        common = r["sib1"]["cn_CommonGSM_MAP_NAS_SysInfo"]
        o = common["octets"]
        n["lac"] = (o[0] << 8 | o[1]) if common["count"] >= 2 else _missing(
            "SIB1's common NAS information is shorter than a LAC")
        rac: object = _missing("SIB1 has no PS domain")
        for d in r["sib1"]["cn_DomainSysInfoList"]["entries"]:
            if d["cn_DomainIdentity"] == 1 and d["cn_Type"]["choice_tag"] == 1 and d["cn_Type"]["u"]["gsm_MAP"]["count"] >= 1:
                rac = d["cn_Type"]["u"]["gsm_MAP"]["octets"][0]
        n["rac"] = rac
    if "sib3" not in r:
        n["cell_identity"] = _missing(_MISSING["sib3"])
    else:
        d = _octets(r["sib3"]["cellIdentity"]["data"])
        cid = d[0] << 20 | d[1] << 12 | d[2] << 4 | d[3] >> 4
        n["cell_identity"] = {"value": cid, "rnc_id": cid >> 16, "c_id": cid & 0xFFFF}
    if "sib2" not in r:
        n["ura_identities"] = _missing(_MISSING["sib2"])
    else:
        n["ura_identities"] = [int.from_bytes(_octets(e["data"])[:2], "big")
                               for e in r["sib2"]["ura_IdentityList"]["entries"]]
    if "sib5" not in r:
        n["frequency_band"] = _missing(_MISSING["sib5"])
    else:
        s = r["sib5"]
        v4b0 = s.get("v4b0NonCriticalExtensions", {})
        ext = v4b0.get("sysInfoType5_v4b0ext", {})
        band = ext.get("frequencyBandIndicator") if _bit(s, 2) and _bit(v4b0, 0) and _bit(ext, 4) else None
        n["frequency_band"] = (_named(names("RadioFrequencyBandFDD", band), band) if band is not None
                               else _missing("SIB5 sends no frequency band indicator"))
        v590 = v4b0.get("v590NonCriticalExtensions", {})
        v650 = v590.get("v650NonCriticalExtensions", {})
        if band == 7 and _bit(v4b0, 1) and _bit(v590, 1) and _bit(v650, 0):
            b2 = v650["sysInfoType5_v650ext"]["frequencyBandIndicator2"]
            n["frequency_band2"] = _named(names("RadioFrequencyBandFDD2", b2), b2)
    return n


def access(r: Mapping[str, Record], names: Names) -> Record:
    if "sib3" not in r:
        return _missing(_MISSING["sib3"])
    a = r["sib3"]["cellAccessRestriction"]
    barred = a["cellBarred"]["choice_tag"] == 1
    n: Record = {
        "cell_barred": _named("barred" if barred else "notBarred", a["cellBarred"]["choice_tag"]),
        "reserved_for_operator_use": _named(names("ReservedIndicator", a["cellReservedForOperatorUse"]),
                                            a["cellReservedForOperatorUse"]),
        "reservation_extension": _named(names("ReservedIndicator", a["cellReservationExtension"]),
                                        a["cellReservationExtension"]),
        "access_classes_barred": ([i for i, v in enumerate(a["accessClassBarredList"]["entries"]) if v == 0]
                                  if _bit(a, 0) else []),
    }
    if barred:
        b = a["cellBarred"]["u"]["barred"]
        n["intra_freq_cell_reselection"] = _named(names("AllowedIndicator", b["intraFreqCellReselectionInd"]),
                                                  b["intraFreqCellReselectionInd"])
        n["t_barred"] = _named(names("T_Barred", b["t_Barred"]), b["t_Barred"])
    else:
        n["intra_freq_cell_reselection"] = _missing("sent only when the cell is barred")
        n["t_barred"] = _missing("sent only when the cell is barred")
    return n


def selection(r: Mapping[str, Record], names: Names) -> Record:
    if "sib3" not in r:
        return _missing(_MISSING["sib3"])
    s3 = r["sib3"]
    s = s3["cellSelectReselectInfo"]
    q = s["cellSelectQualityMeasure"]["choice_tag"]
    n: Record = {"quality_measure": _named({1: "cpich-Ec-N0", 2: "cpich-RSCP"}.get(q, "unknown"), q)}
    mode = s["modeSpecificInfo"]
    if mode["choice_tag"] == 1:
        f = mode["u"]["fdd"]
        n["q_qualmin"] = _quantity(f["q_QualMin"], "dB", f["q_QualMin"])
        n["q_rxlevmin"] = _quantity(2 * f["q_RxlevMin"] + 1, "dBm", f["q_RxlevMin"])
        n["s_intrasearch"] = (_quantity(2 * f["s_Intrasearch"], "dB", f["s_Intrasearch"]) if _bit(f, 0)
                              else _missing("not sent"))
        n["s_intersearch"] = (_quantity(2 * f["s_Intersearch"], "dB", f["s_Intersearch"]) if _bit(f, 1)
                              else _missing("not sent"))
        rats: List[Record] = []
        if _bit(f, 3):
            for e in f["rat_List"]["entries"]:
                rats.append({"rat": _named(names("RAT_Identifier", e["rat_Identifier"]), e["rat_Identifier"]),
                             "s_search_rat": _quantity(2 * e["s_SearchRAT"], "dB", e["s_SearchRAT"]),
                             "s_limit_search_rat": _quantity(2 * e["s_Limit_SearchRAT"], "dB",
                                                             e["s_Limit_SearchRAT"])})
        n["s_search_rat"] = rats
    elif mode["choice_tag"] == 2:
        t = mode["u"]["tdd"]
        n["q_rxlevmin"] = _quantity(2 * t["q_RxlevMin"] + 1, "dBm", t["q_RxlevMin"])
    v4b0 = s3.get("v4b0NonCriticalExtensions", {})
    v590 = v4b0.get("v590NonCriticalExtension", {}).get("sysInfoType3_v590ext", {})
    info = v590.get("cellSelectReselectInfo_v590ext", {})
    if _bit(v4b0, 0) and _bit(v590, 0) and _bit(info, 0):
        n["delta_q_rxlevmin"] = _quantity(2 * info["deltaQrxlevmin"], "dB", info["deltaQrxlevmin"])
    n["q_hyst1_s"] = _quantity(2 * s["q_Hyst_l_S"], "dB", s["q_Hyst_l_S"])
    ecno = _u(s["cellSelectQualityMeasure"]).get("cpich_Ec_N0", {})
    if q == 1 and _bit(ecno, 0):
        n["q_hyst2_s"] = _quantity(2 * ecno["q_HYST_2_S"], "dB", ecno["q_HYST_2_S"])
    n["t_reselection"] = _quantity(s["t_Reselection_S"], "s", s["t_Reselection_S"])
    n["max_allowed_ul_tx_power"] = _quantity(s["maxAllowedUL_TX_Power"], "dBm", s["maxAllowedUL_TX_Power"])
    if _bit(s, 1):
        h = s["hcs_ServingCellInformation"]
        n["hcs"] = {"priority": h["hcs_PRIO"], "q_hcs_coded": h["q_HCS"]}
    else:
        n["hcs"] = _missing("no HCS serving cell information")
    return n


def _alternative(names: List[str], tag: int) -> str:
    return names[tag - 1] if 1 <= tag <= len(names) else "unknown"


def _schedule_entry(r: Mapping[str, Record], name: str, s: Mapping, by: str, value_tag) -> Record:
    e: Record = {"sib": name, "announced_by": by}
    pos = s["sib_Pos"]
    tag = pos["choice_tag"]
    rep = 4 << (tag - 1) if 1 <= tag <= 11 else 0
    if rep:
        at = 2 * next(iter(pos["u"].values()))
        e["repetition_frames"], e["position_frame"] = rep, at
    else:
        e["repetition_frames"], e["position_frame"] = None, None
    e["segment_count"] = s["segCount"]
    frames: List[int] = []
    if rep:
        offsets = s.get("sib_PosOffsetInfo", {}).get("entries", []) if _bit(s, 0) else []
        f = at
        for i in range(min(s["segCount"], 16)):
            if i > 0:
                f += 2 * (offsets[i - 1] + 1) if i - 1 < len(offsets) else 2
            frames.append(f % rep)
    e["segment_frames"] = frames
    e["value_tag"] = value_tag
    slot = _SLOTS.get(name)
    e["seen"] = None if slot is None else slot in r
    return e


def _value_tag(tag: int, u: Mapping, sb: bool):
    if not u:
        return None
    value = next(iter(u.values()))
    if isinstance(value, dict):
        return value.get("sibOccurValueTag", value.get("predefinedConfigValueTag"))
    return value


def _ext_value_tag(v: Mapping):
    u = v.get("u", {})
    if not u:
        return None
    value = next(iter(u.values()))
    return value["sibOccurValueTag"] if isinstance(value, dict) else value


def _schedule_of_sb(r: Mapping[str, Record], sb: Mapping, by: str, out: List[Record]) -> None:
    for e in sb["sib_ReferenceList"]["entries"]:
        tag = e["sib_Type"]["choice_tag"]
        out.append(_schedule_entry(r, _alternative(_SIB_TYPES, tag), e["scheduling"], by,
                                   _value_tag(tag, e["sib_Type"].get("u", {}), True)))
    if not _bit(sb, 0):
        return
    v6b0 = sb["v6b0NonCriticalExtensions"]
    if not _bit(v6b0, 0):
        return
    v860 = v6b0["v860NonCriticalExtensions"]["sysInfoTypeSB_v860ext"]
    if not _bit(v860, 0):
        return
    for e in v860["extSIBTypeInfoSchedulingInfo_List"]["entries"]:
        out.append(_schedule_entry(r, _alternative(_SIB_TYPES_EXT2, e["extensionSIB_Type2"]), e["schedulingInfo"], by,
                                   _ext_value_tag(e["valueTagInfo"])))


def schedule(r: Mapping[str, Record], names: Names):
    if "mib" not in r:
        return _missing(_MISSING["mib"])
    mib = r["mib"]
    out: List[Record] = [{"sib": "masterInformationBlock", "announced_by": "fixed", "repetition_frames": 8,
                          "position_frame": 0, "segment_count": 1, "segment_frames": [0],
                          "value_tag": mib["mib_ValueTag"], "seen": True}]
    for e in mib["sibSb_ReferenceList"]["entries"]:
        tag = e["sibSb_Type"]["choice_tag"]
        out.append(_schedule_entry(r, _alternative(_SIBSB_TYPES, tag), e["scheduling"], "mib",
                                   _value_tag(tag, e["sibSb_Type"].get("u", {}), False)))
    for by in ("sb1", "sb2"):
        if by in r:
            _schedule_of_sb(r, r[by], by, out)
    return out


def common_channels(r: Mapping[str, Record], names: Names) -> Record:
    if "sib5" not in r:
        return _missing(_MISSING["sib5"])
    s = r["sib5"]
    n: Record = {"prach_count": s["prach_SystemInformationList"]["count"],
                 "sccpch_count": s["sCCPCH_SystemInformationList"]["count"]}
    if s["modeSpecificInfo"]["choice_tag"] == 1:
        aich = s["modeSpecificInfo"]["u"]["fdd"]["aich_PowerOffset"]
        n["aich_power_offset"] = _quantity(aich, "dB", aich)
    n["pich_power_offset"] = _quantity(s["pich_PowerOffset"], "dB", s["pich_PowerOffset"])
    hsdpa = edch = hs_dsch_fach = common_edch = False
    v4b0 = s.get("v4b0NonCriticalExtensions", {})
    v590 = v4b0.get("v590NonCriticalExtensions", {})
    v650 = v590.get("v650NonCriticalExtensions", {})
    v680 = v650.get("v680NonCriticalExtensions", {})
    v690 = v680.get("v690NonCriticalExtensions", {})
    v770 = v690.get("v770NonCriticalExtensions", {})
    v860 = v770.get("v860NonCriticalExtensions", {})
    v890 = v860.get("v890NonCriticalExtensions", {})
    if _bit(s, 2) and _bit(v4b0, 1) and _bit(v590, 1) and _bit(v650, 1):
        hsdpa = _bit(v680, 0) and _bit(v680.get("sysInfoType5_v680ext", {}), 0)
        if _bit(v680, 1):
            edch = _bit(v690.get("sysInfoType5_v690ext", {}), 0)
            if _bit(v690, 0):
                e770 = v770.get("sysInfoType5_v770ext", {})
                hs_dsch_fach = _bit(e770, 0) and e770["modeSpecificInfo"]["choice_tag"] == 1
                if _bit(v770, 0) and _bit(v860, 0):
                    common_edch = _bit(v890.get("sysInfoType5_v890ext", {}), 1)
    n.update({"hsdpa_cell": hsdpa, "hs_dsch_in_cell_fach": hs_dsch_fach, "edch_cell": edch,
              "common_edch": common_edch})
    return n


def _utran_cell(c: Mapping) -> Record:
    n: Record = {}
    mode = c["modeSpecificInfo"]
    fdd = _u(mode).get("fdd", {})
    n["primary_scrambling_code"] = fdd["primaryCPICH_Info"] if mode["choice_tag"] == 1 and _bit(fdd, 0) else None
    o = c["cellIndividualOffset"]
    n["cell_individual_offset"] = _quantity(o * 0.5, "dB", o)
    if _bit(c, 1):
        r = c["cellSelectionReselectionInfo"]
        if "q_OffsetS_N" in r:
            n["q_offset_s_n"] = _quantity(r["q_OffsetS_N"], "dB", r["q_OffsetS_N"])
        else:
            n["q_offset1_s_n"] = _quantity(r["q_Offset1S_N"], "dB", r["q_Offset1S_N"])
            n["q_offset2_s_n"] = _quantity(r["q_Offset2S_N"], "dB", r["q_Offset2S_N"])
        hcs = r.get("hcs_NeighbouringCellInformation_RSCP") or r.get("hcs_NeighbouringCellInformation_ECN0")
        if _bit(r, 1) and hcs is not None:
            n["hcs_priority"] = hcs["hcs_PRIO"]
            n["q_hcs_coded"] = hcs["q_HCS"]
    return n


def _utran_lists(a: Mapping, intra: List[Record], inter: List[Record]) -> None:
    if _bit(a, 0):
        m = a["intraFreqMeasurementSysInfo"]
        if _bit(m, 0):
            for e in m["intraFreqCellInfoSI_List"]["newIntraFreqCellList"]["entries"]:
                n: Record = {"cell_id": e["intraFreqCellID"]} if _bit(e, 0) else {}
                n.update(_utran_cell(e["cellInfo"]))
                intra.append(n)
    if _bit(a, 1):
        m = a["interFreqMeasurementSysInfo"]
        if _bit(m, 0) and _bit(m["interFreqCellInfoSI_List"], 1):
            for e in m["interFreqCellInfoSI_List"]["newInterFreqCellList"]["entries"]:
                n = {"cell_id": e["interFreqCellID"]} if _bit(e, 0) else {}
                fi = e.get("frequencyInfo", {})
                if fi.get("choice_tag") == 1:
                    n["uarfcn_dl"] = fi["u"]["fdd"]["uarfcn_DL"]
                elif fi.get("choice_tag") == 2:
                    n["uarfcn"] = fi["u"]["tdd"]["uarfcn_Nt"]
                else:
                    n["uarfcn_dl"] = "same as the cell before"
                n.update(_utran_cell(e["cellInfo"]))
                inter.append(n)


def _gsm_list(cells: List[Mapping], gsm: List[Record], names: Names) -> None:
    for c in cells:
        t = c["technologySpecificInfo"]
        if t["choice_tag"] != 1:
            continue
        g = t["u"]["gsm"]
        n: Record = {"cell_id": c["interRATCellID"]} if _bit(c, 0) else {}
        n["bcch_arfcn"] = g["bcch_ARFCN"]
        n["band"] = _named(names("Frequency_Band", g["frequency_band"]), g["frequency_band"])
        n["bsic"] = f"{g['bsic']['ncc']}-{g['bsic']['bcc']}"
        o = g["interRATCellIndividualOffset"]
        n["individual_offset"] = _quantity(o, "dB", o)
        if _bit(g, 0):
            q = g["cellSelectionReselectionInfo"]["q_Offset1S_N"]
            n["q_offset1_s_n"] = _quantity(q, "dB", q)
        gsm.append(n)


def neighbours(r: Mapping[str, Record], names: Names) -> Record:
    if "sib11" not in r:
        return _missing(_MISSING["sib11"])
    m = r["sib11"]["measurementControlSysInfo"]
    intra: List[Record] = []
    inter: List[Record] = []
    gsm: List[Record] = []
    hcs = m["use_of_HCS"]["choice_tag"]
    n: Record = {"use_of_hcs": _named({1: "hcs-not-used", 2: "hcs-used"}.get(hcs, "unknown"), hcs)}
    quality = 0
    if hcs in (1, 2):
        h = m["use_of_HCS"]["u"]["hcs_not_used" if hcs == 1 else "hcs_used"]
        quality = h["cellSelectQualityMeasure"]["choice_tag"]
        if quality in (1, 2):
            _utran_lists(h["cellSelectQualityMeasure"]["u"]["cpich_RSCP" if quality == 1 else "cpich_Ec_N0"], intra,
                         inter)
        rat = h.get("interRATMeasurementSysInfo", {})
        if _bit(h, 0) and _bit(rat, 0):
            _gsm_list(rat["interRATCellInfoList"]["newInterRATCellList"]["entries"], gsm, names)
    n["quality_measure"] = _named({1: "cpich-RSCP", 2: "cpich-Ec-N0"}.get(quality, "unknown"), quality)
    n.update({"intra_frequency": intra, "inter_frequency": inter, "gsm": gsm})
    return n


def cell_summary(records: Mapping[str, Record], label: Optional[str], names: Names, order: List[str]) -> Record:
    return {
        "cell": label,
        "blocks_received": [name for name in order if name in records],
        "identity": identity(records, names),
        "access": access(records, names),
        "selection": selection(records, names),
        "schedule": schedule(records, names),
        "common_channels": common_channels(records, names),
        "neighbours": neighbours(records, names),
    }
