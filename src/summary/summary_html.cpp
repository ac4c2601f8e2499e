/*
 * The summary as one self-contained HTML page: a section per cell with its tables, and the
 * broadcast schedule drawn across the 4096-frame SFN cycle, whole and its first 256 frames.
 * No external resource: the style is inline, the drawings are inline SVG.
 */
#include <algorithm>
#include <cstdio>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "summary.h"

namespace {

constexpr int kCycle = 4096;   /* frames of the SFN cycle */
constexpr int kZoom = 256;     /* frames of the close view */
constexpr int kLabel = 170;    /* width of the row labels, at least */
constexpr int kRow = 18;       /* height of a row */

const char kStyle[] =
    "body{font-family:sans-serif;margin:1.5em;color:#222}"
    "h1{font-size:1.4em}h2{font-size:1.2em;border-bottom:2px solid #468;margin-top:2em}"
    "h3{font-size:1em;margin:1.2em 0 .4em}"
    "table{border-collapse:collapse;margin:.2em 0 .8em}"
    "th,td{border:1px solid #bbb;padding:2px 6px;text-align:left;vertical-align:top;font-size:.9em}"
    "th{background:#e8eef5}td.missing{color:#a33;font-style:italic}"
    "svg{display:block;margin:.3em 0 1em;background:#fafafa;border:1px solid #ccc;max-width:100%;height:auto}"
    "svg text{font:11px sans-serif}";

/* Colours of the rows of the drawing, in turn. */
const char* const kColours[] = {"#1f77b4", "#ff7f0e", "#2ca02c", "#d62728", "#9467bd", "#8c564b",
                                "#e377c2", "#7f7f7f", "#bcbd22", "#17becf", "#393b79", "#637939"};

std::string escape(const std::string& s) {
  std::string out;
  for (char c : s) {
    switch (c) {
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '&': out += "&amp;"; break;
      case '"': out += "&quot;"; break;
      default: out += c;
    }
  }
  return out;
}

/* The heads of the quantities that the standard (TS 25.304, TS 25.331) and the trade name in a
   notation of their own. */
const char* notation_of(const std::string& key) {
  static const std::pair<const char*, const char*> kNotation[] = {
      {"q_rxlevmin", "Qrxlevmin"},           {"q_qualmin", "Qqualmin"},
      {"delta_q_rxlevmin", "DeltaQrxlevmin"}, {"s_intrasearch", "Sintrasearch"},
      {"s_intersearch", "Sintersearch"},     {"s_search_rat", "SsearchRAT"},
      {"s_limit_search_rat", "SlimitSearchRAT"}, {"q_hyst1_s", "Qhyst1s"},
      {"q_hyst2_s", "Qhyst2s"},              {"t_reselection", "Treselections"},
      {"q_offset1_s_n", "Qoffset1s,n"},      {"q_offset2_s_n", "Qoffset2s,n"},
      {"q_offset_s_n", "Qoffsets,n"},        {"q_hcs_coded", "Qhcs"},
      {"hcs_priority", "HCS_PRIO"},          {"t_barred", "Tbarred"},
      {"max_allowed_ul_tx_power", "UE_TXPWR_MAX_RACH"},
      {"primary_scrambling_code", "PSC"},    {"uarfcn", "UARFCN"},
      {"uarfcn_dl", "UARFCN DL"},            {"bcch_arfcn", "BCCH ARFCN"},
      {"bsic", "BSIC"},                      {"plmn", "PLMN"},
      {"lac", "LAC"},                        {"rac", "RAC"},
      {"rnc_id", "RNC-Id"},                  {"c_id", "C-Id"},
      {"cell_individual_offset", "CIO"},     {"aich_power_offset", "AICH power offset"},
      {"pich_power_offset", "PICH power offset"},
  };
  for (const auto& n : kNotation)
    if (key == n.first) return n.second;
  return nullptr;
}

/* A key as a column or row head: in the notation of the standard where it has one
   ("q_rxlevmin" -> "Qrxlevmin"), else in words ("cell_barred" -> "cell barred"); the field
   name as its tooltip. */
std::string head_text(const std::string& key) {
  const char* notation = notation_of(key);
  std::string s = notation != nullptr ? notation : key;
  if (notation == nullptr)
    for (char& c : s)
      if (c == '_') c = ' ';
  return "<span title=\"" + escape(key) + "\">" + escape(s) + "</span>";
}

bool is_missing(const SummaryNode& n) { return n.kind == SummaryNode::Object && n.find("missing") != nullptr; }

std::string value_html(const SummaryNode& n);

/* A list of objects as a table, a column per key that any of them has. */
std::string list_table(const SummaryNode& list) {
  std::vector<std::string> columns;
  std::set<std::string> known;
  for (const SummaryNode& item : list.items)
    for (const auto& m : item.members)
      if (known.insert(m.first).second) columns.push_back(m.first);
  std::string out = "<table><tr>";
  for (const std::string& c : columns) out += "<th>" + head_text(c) + "</th>";
  out += "</tr>";
  for (const SummaryNode& item : list.items) {
    out += "<tr>";
    for (const std::string& c : columns) {
      const SummaryNode* v = item.find(c);
      out += v == nullptr ? std::string("<td></td>") : "<td>" + value_html(*v) + "</td>";
    }
    out += "</tr>";
  }
  return out + "</table>";
}

/* An object as a table of rows key | value. */
std::string object_table(const SummaryNode& object) {
  std::string out = "<table>";
  for (const auto& m : object.members) {
    out += "<tr><th>" + head_text(m.first) + "</th><td" + (is_missing(m.second) ? " class=\"missing\"" : "") + ">" +
           value_html(m.second) + "</td></tr>";
  }
  return out + "</table>";
}

std::string value_html(const SummaryNode& n) {
  std::string text;
  if (summary_value_text(n, &text)) return escape(text);
  if (n.kind == SummaryNode::List) {
    bool objects = !n.items.empty();
    for (const SummaryNode& item : n.items) objects = objects && item.kind == SummaryNode::Object;
    if (objects) return list_table(n);
    std::string out;
    for (const SummaryNode& item : n.items) out += value_html(item) + " ";
    return out;
  }
  return object_table(n);
}

/* A section: its heading, then the missing note, its table or its tables. */
std::string section_html(const char* title, const SummaryNode* n) {
  std::string out = std::string("<h3>") + title + "</h3>";
  if (n == nullptr) return out + "<p class=\"missing\">(not in the summary)</p>";
  if (is_missing(*n)) return out + "<p class=\"missing\">" + escape(n->find("missing")->text) + "</p>";
  if (n->kind == SummaryNode::Object) return out + object_table(*n);
  if (n->kind == SummaryNode::List && !n->items.empty()) return out + list_table(*n);
  return out + value_html(*n);
}

/* One row of blocks of the drawing: the SIB, its colour, and its segments' frames. */
struct ScheduleRow {
  std::string sib;
  int rep;
  std::vector<int> frames;
  bool seen;
  std::string not_seen; /* the label's note when not seen: " (not seen)", " (3 of 13 segments)" */
};

std::vector<ScheduleRow> schedule_rows(const SummaryNode& schedule) {
  std::vector<ScheduleRow> rows;
  std::set<std::string> drawn;
  for (const SummaryNode& e : schedule.items) {
    const SummaryNode* sib = e.find("sib");
    const SummaryNode* rep = e.find("repetition_frames");
    const SummaryNode* frames = e.find("segment_frames");
    const SummaryNode* seen = e.find("seen");
    if (sib == nullptr || rep == nullptr || rep->kind != SummaryNode::Int || rep->integer <= 0 || frames == nullptr)
      continue;
    if (!drawn.insert(sib->text).second) continue; /* announced twice: drawn once */
    ScheduleRow row{sib->text, static_cast<int>(rep->integer), {}, seen != nullptr && seen->kind == SummaryNode::Bool && seen->flag, {}};
    for (const SummaryNode& f : frames->items) row.frames.push_back(static_cast<int>(f.integer));
    const SummaryNode* received = e.find("segments_received");
    const SummaryNode* count = e.find("segments_total");
    row.not_seen = received != nullptr && count != nullptr
                       ? " (" + std::to_string(received->integer) + " of " + std::to_string(count->integer) + " segments)"
                       : " (not seen)";
    rows.push_back(row);
  }
  return rows;
}

/* The rows drawn over frames [0, span) at `scale` pixels per frame, ticks every `tick`. */
std::string schedule_svg(const std::vector<ScheduleRow>& rows, int span, double scale, int tick, bool titles) {
  /* The labels' column is as wide as the longest label ("SIB11bis (12 of 13 segments)"), at
     some 7 pixels a character, so that no label runs under the blocks. */
  int label = kLabel;
  for (const ScheduleRow& row : rows)
    label = std::max(label, 8 + 7 * static_cast<int>(row.sib.size() + (row.seen ? 0 : row.not_seen.size())));
  const int width = label + static_cast<int>(span * scale) + 16; /* room for half the last tick's label */
  const int height = static_cast<int>(rows.size()) * kRow + 24;
  char buf[256];
  std::snprintf(buf, sizeof buf,
                "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%d\" height=\"%d\" viewBox=\"0 0 %d %d\" "
                "role=\"img\" aria-label=\"schedule of frames 0 to %d\">",
                width, height, width, height, span - 1);
  std::string out = buf;
  for (int f = 0; f <= span; f += tick) {
    const double x = label + f * scale;
    std::snprintf(buf, sizeof buf,
                  "<line x1=\"%.2f\" y1=\"0\" x2=\"%.2f\" y2=\"%d\" stroke=\"#ddd\"/>"
                  "<text x=\"%.2f\" y=\"%d\" text-anchor=\"middle\">%d</text>",
                  x, x, height - 14, x, height - 3, f);
    out += buf;
  }
  for (size_t r = 0; r < rows.size(); r++) {
    const ScheduleRow& row = rows[r];
    const int y = static_cast<int>(r) * kRow;
    const char* colour = row.seen ? kColours[r % (sizeof kColours / sizeof kColours[0])] : "#bbb";
    std::snprintf(buf, sizeof buf, "<text x=\"4\" y=\"%d\">%s%s</text>", y + 13, escape(row.sib).c_str(),
                  row.seen ? "" : row.not_seen.c_str());
    out += buf;
    for (int start = 0; start < span; start += row.rep) {
      for (size_t s = 0; s < row.frames.size(); s++) {
        const int frame = start + row.frames[s];
        if (frame >= span) continue;
        /* A segment takes the 20 ms TTI: two frames. */
        const double w = 2 * scale < 1 ? 1 : 2 * scale;
        std::snprintf(buf, sizeof buf, "<rect x=\"%.2f\" y=\"%d\" width=\"%.2f\" height=\"%d\" fill=\"%s\">",
                      label + frame * scale, y + 3, w, kRow - 6, colour);
        out += buf;
        if (titles) {
          std::snprintf(buf, sizeof buf, "<title>%s segment %zu at SFN %d</title>", escape(row.sib).c_str(), s + 1,
                        frame);
          out += buf;
        }
        out += "</rect>";
      }
    }
  }
  return out + "</svg>";
}

std::string schedule_drawing(const SummaryNode* schedule) {
  if (schedule == nullptr || schedule->kind != SummaryNode::List) return "";
  const std::vector<ScheduleRow> rows = schedule_rows(*schedule);
  if (rows.empty()) return "";
  return "<h3>Schedule across the SFN cycle (4096 frames)</h3>" + schedule_svg(rows, kCycle, 0.25, 512, false) +
         "<h3>The first 256 frames</h3>" + schedule_svg(rows, kZoom, 4.0, 16, true);
}

std::string cell_html(const SummaryNode& cell, size_t index) {
  const SummaryNode* label = cell.find("cell");
  std::string out = "<section class=\"cell\" id=\"cell-" + std::to_string(index + 1) + "\"><h2>Cell " +
                    escape(label != nullptr && label->kind == SummaryNode::Text ? label->text : "") + "</h2>";
  const SummaryNode* blocks = cell.find("blocks_received");
  std::string received;
  if (blocks != nullptr) summary_value_text(*blocks, &received);
  out += "<p>Blocks received: " + escape(received) + "</p>";
  const SummaryNode* dropped = cell.find("datagrams_dropped_by_kernel");
  if (dropped != nullptr && dropped->kind == SummaryNode::Int)
    out += "<p>Datagrams dropped by the kernel before they were read (of every cell of the input, until this "
           "summary): " + std::to_string(dropped->integer) + "</p>";
  const SummaryNode* ended = cell.find("ended_by");
  if (ended != nullptr && ended->kind == SummaryNode::Text) out += "<p>Configuration ended: " + escape(ended->text) + "</p>";
  out += section_html("Identity", cell.find("identity"));
  out += section_html("Access", cell.find("access"));
  out += section_html("Cell selection and reselection", cell.find("selection"));
  out += section_html("Schedule", cell.find("schedule"));
  out += schedule_drawing(cell.find("schedule"));
  out += section_html("Common channels", cell.find("common_channels"));
  out += section_html("Neighbours", cell.find("neighbours"));
  out += section_html("Priority-based reselection (SIB19)", cell.find("priorities"));
  return out + "</section>";
}

}  // namespace

std::string summary_html(const std::vector<SummaryNode>& cells, const std::string& dropped) {
  std::string out =
      "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>UMTS cell summary</title><style>";
  out += kStyle;
  out += "</style></head><body><h1>UMTS cell summary</h1>";
  if (cells.empty()) out += "<p class=\"missing\">No block of any cell was converted.</p>";
  if (cells.empty() && !dropped.empty())
    out += "<p>Datagrams dropped by the kernel before they were read: " + escape(dropped) + "</p>";
  for (size_t i = 0; i < cells.size(); i++) out += cell_html(cells[i], i);
  /* Marks the page as loaded: a check in a browser reads it back. */
  out += "<script>document.body.setAttribute('data-cells', String(document.querySelectorAll('section.cell').length));"
         "</script></body></html>\n";
  return out;
}
