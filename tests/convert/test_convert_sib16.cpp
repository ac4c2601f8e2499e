// SIB16: umts_convert_sib16 with the host's context and decoded area; the open lists, whose
// entries are written over what follows them, checked on offsets worked out by hand from the
// records' layout.
#include <cstdlib>

#include "convert_test.h"

using namespace converttest;

namespace {

// Offsets in umts_sib16_info, by hand: presence_bitmask 0..1, re_EstablishmentTimer 4,
// srb count 8, rb count 9; both lists' entry 0 at 12 (the next multiple of 4 after the
// count). An SRB entry is 116 bytes with rb_MappingInfo's count at 112: its first mapping
// option starts at 116 (entry-relative), where the next SRB starts. A mapping option is 72
// bytes with the downlink count at 68: its first downlink mapping starts at 72, where the
// next option starts.
constexpr size_t kEntry0 = 12, kSrbSize = 116, kRbSize = 136, kOptionSize = 72, kDlSize = 16;

template <class T>
const T& at(const umts_sib16_info& rec, size_t offset) {
  return *reinterpret_cast<const T*>(reinterpret_cast<const uint8_t*>(&rec) + offset);
}

// A SysInfoType16 built in code, with the storage of its lists and alternatives.
struct Sib16Builder {
  Pool pool;
  SysInfoType16 s{};

  Sib16Builder() {
    s.preDefinedRadioConfiguration.predefinedRB_Configuration.re_EstablishmentTimer = 1;
    // The mandatory transport and physical channel parts, as small as they go.
    PreDefTransChConfiguration& t = s.preDefinedRadioConfiguration.preDefTransChConfiguration;
    // One uplink DCH (one transport format of one 30-octet block at 10 ms), the downlink
    // one the same.
    UL_AddReconfTransChInformation* ul = pool.add<UL_AddReconfTransChInformation>(t.ul_AddReconfTrChInfoList);
    ul->transportChannelIdentity = 1;
    ul->transportFormatSet.t = 1;
    DedicatedTransChTFS* tfs = pool.alloc(ul->transportFormatSet.u.dedicatedTransChTFS);
    tfs->tti.t = 1;
    DedicatedDynamicTF_Info* info = pool.add<DedicatedDynamicTF_Info>(*pool.alloc(tfs->tti.u.tti10));
    info->rlc_Size.t = 2;
    *pool.alloc(info->rlc_Size.u.octetModeType1) = {1, {30}};
    pool.add<NumberOfTransportBlocks>(info->numberOfTbSizeList)->t = 2;
    info->logicalChannelList.t = 1;
    tfs->semistaticTF_Information.channelCodingType.t = 3;
    tfs->semistaticTF_Information.rateMatchingAttribute = 200;
    DL_AddReconfTransChInformation* dl = pool.add<DL_AddReconfTransChInformation>(t.dl_TrChInfoList);
    dl->dl_transportChannelIdentity = 1;
    dl->tfs_SignallingMode.t = 2;
    pool.alloc(dl->tfs_SignallingMode.u.sameAsULTrCH)->ul_TransportChannelIdentity = 1;
    t.dl_CommonTransChInfo.modeSpecificInfo.t = 1;
    pool.alloc(t.dl_CommonTransChInfo.modeSpecificInfo.u.fdd);
    PreDefPhyChConfiguration& p = s.preDefinedRadioConfiguration.preDefPhyChConfiguration;
    p.ul_DPCH_InfoPredef.ul_DPCH_PowerControlInfo.t = 1;
    pool.alloc(p.ul_DPCH_InfoPredef.ul_DPCH_PowerControlInfo.u.fdd)->powerControlAlgorithm.t = 2;
    p.ul_DPCH_InfoPredef.modeSpecificInfo.t = 1;
    pool.alloc(p.ul_DPCH_InfoPredef.modeSpecificInfo.u.fdd);
  }
  Sib16Builder(const Sib16Builder&) = delete;

  template <typename T>
  void add(rtxDList& list, T& value) {
    append(list, *pool.make<rtxDListNode>(), value);
  }
  // AM RLC both ways, `tag` distinguishing entries.
  RLC_InfoChoice amRlc(uint32_t tag) {
    RLC_InfoChoice c = {};
    c.t = 1;
    RLC_Info* rlc = pool.alloc(c.u.rlc_Info);
    rlc->m = 3;
    rlc->ul_RLC_Mode.t = 1;
    UL_AM_RLC_Mode* am = pool.alloc(rlc->ul_RLC_Mode.u.ul_AM_RLC_Mode);
    am->transmissionRLC_Discard.t = 1;
    *pool.alloc(am->transmissionRLC_Discard.u.timerBasedExplicit) = {tag % 10, tag % 8, tag % 9};
    am->transmissionWindowSize = tag % 16;
    am->timerRST = tag % 16;
    am->max_RST = tag % 8;
    rlc->dl_RLC_Mode.t = 1;
    DL_AM_RLC_Mode* dlAm = pool.alloc(rlc->dl_RLC_Mode.u.dl_AM_RLC_Mode);
    dlAm->inSequenceDelivery = 1;
    dlAm->receivingWindowSize = tag % 16;
    return c;
  }
  // A mapping option: uplink on DCH `dch` with `nSizes` explicit sizes, and `nDl` downlink
  // mappings on DCH dch + 1 + j.
  RB_MappingOption& option(uint8_t dch, unsigned nSizes, unsigned nDl) {
    RB_MappingOption& o = *pool.make<RB_MappingOption>();
    o.m = 3;
    o.ul_LogicalChannelMappings.t = 1;
    UL_LogicalChannelMapping& u = *pool.alloc(o.ul_LogicalChannelMappings.u.oneLogicalChannel);
    u.ul_TransportChannelType.t = 1;
    u.ul_TransportChannelType.u.dch = dch;
    u.m = 1;
    u.logicalChannelIdentity = static_cast<uint8_t>(dch % 15 + 1);
    u.rlc_SizeList.t = 3;
    RLC_SizeExplicitList* l = pool.alloc(u.rlc_SizeList.u.explicitList);
    for (unsigned k = 0; k < nSizes; k++) pool.add<RLC_SizeInfo>(*l)->rlc_SizeIndex = static_cast<uint8_t>(3 + 4 * k);
    u.mac_LogicalChannelPriority = 8;
    for (unsigned j = 0; j < nDl; j++) {
      DL_LogicalChannelMapping* d = pool.add<DL_LogicalChannelMapping>(o.dl_LogicalChannelMappingList);
      d->dl_TransportChannelType.t = 1;
      d->dl_TransportChannelType.u.dch = static_cast<uint8_t>(dch + 1 + j);
      d->m = 1;
      d->logicalChannelIdentity = static_cast<uint8_t>(j + 1);
    }
    return o;
  }
  SRB_InformationSetup& addSrb(uint8_t id) {
    SRB_InformationSetup& e =
        *pool.add<SRB_InformationSetup>(s.preDefinedRadioConfiguration.predefinedRB_Configuration.srb_InformationList);
    e.m = 1;
    e.rb_Identity = id;
    e.rlc_InfoChoice = amRlc(id);
    return e;
  }
  RB_InformationSetup& addRb(uint8_t id) {
    RB_InformationSetup& e =
        *pool.add<RB_InformationSetup>(s.preDefinedRadioConfiguration.predefinedRB_Configuration.rb_InformationList);
    e.rb_Identity = id;
    e.rlc_InfoChoice.t = 2;
    e.rlc_InfoChoice.u.same_as_RB = static_cast<uint8_t>(id - 1);
    return e;
  }
  // One SRB and one RB, each with one mapping option on its own DCH.
  void srbAndRb(uint8_t srbId, uint8_t srbDch, uint8_t rbId, uint8_t rbDch) {
    add(addSrb(srbId).rb_MappingInfo, option(srbDch, 1, 1));
    add(addRb(rbId).rb_MappingInfo, option(rbDch, 1, 1));
  }
  std::vector<uint8_t> encode() const { return frametest::encode(asn1PE_UMTS_SysInfoType16, s); }
};

// The host's side: its context over `bytes`, its decoded area, the result.
struct Host {
  rtxContext ctx;
  std::vector<uint64_t> area = std::vector<uint64_t>((8 + sizeof(SysInfoType16)) / 8 + 1, 0x1111111111111111ull);
  int status = 0;
  std::string printed;
  int convert(const std::vector<uint8_t>& bytes, umts_sib16_info* out, bool nullArea = false) {
    rtInitContext(&ctx);
    pu_setBuffer(&ctx, const_cast<uint8_t*>(bytes.data()), static_cast<uint32_t>(bytes.size()), 0);
    printed = captureStdout([&] { status = umts_convert_sib16(&ctx, nullArea ? nullptr : area.data(), out); });
    rtFreeContext(&ctx);
    return status;
  }
};

class ConvertSib16 : public ::testing::Test {
 protected:
  // Allocated once for the program; filled with 0xEE for each case.
  static umts_sib16_info* record() {
    static umts_sib16_info* const r = static_cast<umts_sib16_info*>(std::malloc(sizeof(umts_sib16_info)));
    return r;
  }
  umts_sib16_info* out = static_cast<umts_sib16_info*>(std::memset(record(), 0xEE, sizeof(umts_sib16_info)));
};

static_assert(sizeof(umts_sib16_srb_information_setup) == kSrbSize && sizeof(umts_sib16_rb_information_setup) == kRbSize &&
                  sizeof(umts_sib16_rb_mapping_option) == kOptionSize && sizeof(umts_sib16_dl_logical_channel_mapping) == kDlSize,
              "the entry sizes worked out by hand");

// One SRB, then one RB over it: the RB entry stands where the SRB entry was written.
TEST_F(ConvertSib16, RbListOverwritesTheSrbList) {
  static Sib16Builder b;
  b.srbAndRb(1, 1, 9, 20);
  Host host;
  ASSERT_EQ(host.convert(b.encode(), out), 0);
  EXPECT_EQ(reinterpret_cast<uint64_t*>(host.area.data())[0], 0x1111111111111111ull);  // the host's eight bytes
  EXPECT_EQ(out->presence_bitmask, 0);
  const umts_sib16_predefined_rb_configuration& c = out->preDefinedRadioConfiguration.predefinedRB_Configuration;
  EXPECT_EQ(c.re_EstablishmentTimer, 1u);
  EXPECT_EQ(c.srb_InformationList.count, 1);
  EXPECT_EQ(c.rb_InformationList.count, 1);
  const auto& rb0 = at<umts_sib16_rb_information_setup>(*out, kEntry0);
  EXPECT_EQ(rb0.presence_bitmask, 1);  // the SRB's bit 0; the RB (no PDCP) ORs in nothing
  EXPECT_EQ(rb0.rb_Identity, 9);
  EXPECT_EQ(rb0.rlc_InfoChoice.choice_tag, 2u);
  EXPECT_EQ(rb0.rlc_InfoChoice.u.same_as_RB, 8);
  ASSERT_EQ(rb0.rb_MappingInfo.count, 1);
  const auto& rbOption = at<umts_sib16_rb_mapping_option>(*out, kEntry0 + kRbSize);
  EXPECT_EQ(rbOption.ul_LogicalChannelMappings.u.oneLogicalChannel.ul_TransportChannelType.u.dch, 20);
  // Read as the SRB entry: rb_Identity at the same place (9); the SRB's RLC tag (1, at 4)
  // lies under the RB's PDCP part, which the RB (without PDCP) leaves; the SRB's timerMRW
  // (at 24) is now the RB's rlc_InfoChoice tag (2).
  const auto& srb0 = at<umts_sib16_srb_information_setup>(*out, kEntry0);
  EXPECT_EQ(srb0.presence_bitmask, 1);
  EXPECT_EQ(srb0.rb_Identity, 9);
  EXPECT_EQ(srb0.rlc_InfoChoice.choice_tag, 1u);
  EXPECT_EQ(srb0.rlc_InfoChoice.u.rlc_Info.ul_RLC_Mode.u.ul_AM_RLC_Mode.transmissionRLC_Discard.u.timerBasedExplicit.timerMRW, 2u);
  EXPECT_TRUE(host.printed.empty()) << host.printed;
  // The entries as the library finds them: both lists from the same offset, none past the record.
  auto entry = [&](const umts_sib16_open_list& l, size_t size, uint32_t i) {
    return static_cast<const uint8_t*>(umts_sib16_entries(out, sizeof *out, &l, size, 4, i)) - reinterpret_cast<uint8_t*>(out);
  };
  EXPECT_EQ(entry(c.srb_InformationList, kSrbSize, 0), static_cast<ptrdiff_t>(kEntry0));
  EXPECT_EQ(entry(c.rb_InformationList, kRbSize, 0), static_cast<ptrdiff_t>(kEntry0));
  EXPECT_EQ(entry(c.rb_InformationList, kRbSize, 7), static_cast<ptrdiff_t>(kEntry0 + 7 * kRbSize));
  EXPECT_EQ(umts_sib16_entries(out, sizeof *out, &c.rb_InformationList, kRbSize, 4, 20), nullptr);  // past the record
}

// Two SRBs and no RB (the list functions called on their own): the first SRB's mapping list
// lies where the second SRB is written; the second one's mapping list stands.
TEST_F(ConvertSib16, SecondSrbOverwritesTheFirstOnesMappings) {
  static Sib16Builder b;
  b.add(b.addSrb(1).rb_MappingInfo, b.option(1, 1, 2));
  b.add(b.addSrb(2).rb_MappingInfo, b.option(7, 1, 1));
  std::memset(out, 0, sizeof *out);
  umts_sib16_predefined_rb_configuration& c = out->preDefinedRadioConfiguration.predefinedRB_Configuration;
  fill_srb_information_setup_list(&b.s.preDefinedRadioConfiguration.predefinedRB_Configuration.srb_InformationList,
                                  &c.srb_InformationList);
  EXPECT_EQ(c.srb_InformationList.count, 2);
  const auto& srb0 = at<umts_sib16_srb_information_setup>(*out, kEntry0);
  const auto& srb1 = at<umts_sib16_srb_information_setup>(*out, kEntry0 + kSrbSize);
  EXPECT_EQ(srb0.rb_Identity, 1);
  EXPECT_EQ(srb0.rb_MappingInfo.count, 1);
  // Presence bits are ORed in: the second SRB's bit 0 over the first one's option word (3).
  EXPECT_EQ(srb1.presence_bitmask, 3);
  EXPECT_EQ(srb1.rb_Identity, 2);
  EXPECT_EQ(srb1.rlc_InfoChoice.u.rlc_Info.ul_RLC_Mode.u.ul_AM_RLC_Mode.transmissionWindowSize, 2u);
  // The first SRB's mapping option is the second SRB's start: its presence word is the
  // second SRB's (3), its uplink tag the second SRB's RLC tag (1), the uplink mapping's
  // presence word the second SRB's RLC presence word (3).
  const auto& opt0 = at<umts_sib16_rb_mapping_option>(*out, kEntry0 + kSrbSize);
  EXPECT_EQ(opt0.presence_bitmask, 3);
  EXPECT_EQ(opt0.ul_LogicalChannelMappings.choice_tag, 1u);
  EXPECT_EQ(opt0.ul_LogicalChannelMappings.u.oneLogicalChannel.presence_bitmask, 3);
  // The second SRB's own mapping option stands whole.
  const auto& opt1 = at<umts_sib16_rb_mapping_option>(*out, kEntry0 + 2 * kSrbSize);
  EXPECT_EQ(opt1.presence_bitmask, 3);
  EXPECT_EQ(opt1.ul_LogicalChannelMappings.u.oneLogicalChannel.ul_TransportChannelType.u.dch, 7);
  EXPECT_EQ(opt1.ul_LogicalChannelMappings.u.oneLogicalChannel.logicalChannelIdentity, 8);
  EXPECT_EQ(opt1.dl_LogicalChannelMappingList.count, 1);
  const auto& dl = at<umts_sib16_dl_logical_channel_mapping>(*out, kEntry0 + 2 * kSrbSize + kOptionSize);
  EXPECT_EQ(dl.presence_bitmask, 1);
  EXPECT_EQ(dl.dl_TransportChannelType.choice_tag, 1u);
  EXPECT_EQ(dl.dl_TransportChannelType.u.dch, 8);
  EXPECT_EQ(dl.logicalChannelIdentity, 1);
}

// Nested lists: the first option's downlink mappings start where the second option is
// written; its second mapping (bytes 16..31 of the second option) keeps what the second
// option did not write over.
TEST_F(ConvertSib16, NestedMappingLists) {
  static Sib16Builder b;
  b.add(b.addSrb(1).rb_MappingInfo, b.option(1, 1, 1));
  RB_InformationSetup& rb = b.addRb(3);
  b.add(rb.rb_MappingInfo, b.option(10, 1, 2));
  b.add(rb.rb_MappingInfo, b.option(30, 1, 1));
  Host host;
  ASSERT_EQ(host.convert(b.encode(), out), 0);
  const size_t opt0 = kEntry0 + kRbSize, opt1 = opt0 + kOptionSize;
  const auto& o0 = at<umts_sib16_rb_mapping_option>(*out, opt0);
  const auto& o1 = at<umts_sib16_rb_mapping_option>(*out, opt1);
  EXPECT_EQ(o0.dl_LogicalChannelMappingList.count, 2);
  EXPECT_EQ(o0.ul_LogicalChannelMappings.u.oneLogicalChannel.ul_TransportChannelType.u.dch, 10);
  EXPECT_EQ(o1.ul_LogicalChannelMappings.u.oneLogicalChannel.ul_TransportChannelType.u.dch, 30);
  // Downlink mapping 0 of option 0 is option 1's head: presence 1 | 3, tag 1 (option 1's
  // uplink tag, at 4).
  const auto& d0 = at<umts_sib16_dl_logical_channel_mapping>(*out, opt1);
  EXPECT_EQ(d0.presence_bitmask, 3);
  EXPECT_EQ(d0.dl_TransportChannelType.choice_tag, 1u);
  // Downlink mapping 1 of option 0 (offset 16 in option 1): its presence word is option 1's
  // uplink DCH (30) and the padding after it; its tag (at 20) option 1's logical channel
  // identity (30 % 15 + 1 = 1) over the first option's own tag (1).
  const auto& d1 = at<umts_sib16_dl_logical_channel_mapping>(*out, opt1 + kDlSize);
  EXPECT_EQ(d1.presence_bitmask, 30);
  EXPECT_EQ(d1.dl_TransportChannelType.choice_tag & 0xFFu, 1u);
  // Option 1's own downlink mapping stands.
  const auto& own = at<umts_sib16_dl_logical_channel_mapping>(*out, opt1 + kOptionSize);
  EXPECT_EQ(own.dl_TransportChannelType.u.dch, 31);
  EXPECT_EQ(own.logicalChannelIdentity, 1);
}

// Explicit sizes 3, 7, 11, 15, 19 read 3 five times; the priority is stored over the fourth.
TEST(ConvertSib16Parts, ExplicitSizesTakeTheFirstValue) {
  Sib16Builder b;
  RB_MappingOption& o = b.option(1, 5, 0);
  umts_sib16_ul_logical_channel_mapping m[2];
  std::memset(m, 0, sizeof m);
  decode_one_ul_logical_channel_mapping(o.ul_LogicalChannelMappings.u.oneLogicalChannel, &m[0]);
  EXPECT_EQ(m[0].rlc_SizeList.choice_tag, 3u);
  EXPECT_EQ(m[0].rlc_SizeList.count, 5);
  EXPECT_EQ(std::vector<uint8_t>(m[0].rlc_SizeList.sizes, m[0].rlc_SizeList.sizes + 3), (std::vector<uint8_t>{3, 3, 3}));
  EXPECT_EQ(m[0].mac_LogicalChannelPriority, 8);
  const uint8_t* after = &m[0].mac_LogicalChannelPriority + 1;  // the fifth size
  EXPECT_EQ(after[0], 3);
  EXPECT_EQ(after[1], 0);
}

// The RLC alternatives: the message's dl UM (tag 2) read as TM with nothing behind it; its TM
// (tag 3) unknown, with the line; a UL rach "Not used".
TEST(ConvertSib16Parts, RlcAlternativesAndTheirLines) {
  DL_TM_RLC_Mode tm = {1};
  struct Case {
    uint32_t tag;
    DL_TM_RLC_Mode* payload;
    const char* line;
  } cases[] = {{2, nullptr, ""}, {3, &tm, "\ndecode_dl_rlc_mode:No such option available\n"}};
  for (const Case& k : cases) {
    DL_RLC_Mode mode = {};
    mode.t = k.tag;
    mode.u.dl_TM_RLC_Mode = k.payload;
    umts_sib16_dl_rlc_mode flat = {};
    EXPECT_EQ(captureStdout([&] { decode_dl_rlc_mode(&mode, &flat); }), k.line);
    EXPECT_EQ(flat.choice_tag, k.tag);
    EXPECT_EQ(flat.u.segmentationIndication, 0);
  }
  UL_TransportChannelType rach = {};
  rach.t = 2;
  umts_sib16_ul_transport_channel_type ul = {};
  EXPECT_EQ(captureStdout([&] { decode_ul_transport_channel_type(&rach, &ul); }), "decode_ul_transport_channel_type: Not used\n");
  LosslessSRNS_RelocSupport no = {};
  no.t = 2;
  umts_sib16_lossless_srns_reloc_support l = {};
  EXPECT_EQ(captureStdout([&] { decode_lossless_srns_reloc_support(&no, &l); }),
            "decode_lossless_srns_reloc_support:no such option available\n");
  EXPECT_EQ(l.choice_tag, 2u);
}

// Without a decoded area the record is left as it was. A message cut short: the decode fails,
// the record is cleared all the same and holds what was decoded before the cut.
TEST_F(ConvertSib16, NullAreaAndFailedDecode) {
  Host host;
  EXPECT_EQ(host.convert({0x00}, out, true), 0);
  const std::vector<uint8_t> ee(sizeof *out, 0xEE);
  EXPECT_EQ(std::memcmp(out, ee.data(), ee.size()), 0);
  static Sib16Builder b;
  b.srbAndRb(4, 1, 6, 2);
  std::vector<uint8_t> bytes = b.encode();
  ASSERT_GT(bytes.size(), 4u);
  bytes.resize(3);
  EXPECT_LT(host.convert(bytes, out), 0);
  const umts_sib16_predefined_rb_configuration& c = out->preDefinedRadioConfiguration.predefinedRB_Configuration;
  EXPECT_EQ(c.re_EstablishmentTimer, 1u);
  EXPECT_EQ(c.srb_InformationList.count, 1);
  EXPECT_EQ(at<umts_sib16_srb_information_setup>(*out, kEntry0).rb_Identity, 4);
  EXPECT_EQ(c.rb_InformationList.count, 0);
  EXPECT_EQ(out->preDefinedRadioConfiguration.open_list_room[UMTS_SIB16_OPEN_LIST_ROOM - 1], 0);  // cleared
}

}  // namespace
