/*
 * The C entry points of the summary library, over the collection that sibdump uses.
 */
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

#include "summary.h"
#include "umts_sib_summary.h"

struct umts_summary {
  CellCollection cells;
  std::vector<SummaryNode> ended;
};

umts_summary* umts_summary_new(void) { return new (std::nothrow) umts_summary(); }

void umts_summary_free(umts_summary* summary) { delete summary; }

int umts_summary_take(umts_summary* summary, const char* cell, const char* label, const umts_sib_set* set,
                      const uint8_t* block, size_t length) {
  if (summary == nullptr || cell == nullptr || label == nullptr || set == nullptr) return -1;
  try {
    const size_t before = summary->ended.size();
    summary->cells.take(cell, label, set, &summary->ended);
    if (block != nullptr && summary->cells.has(cell)) summary->cells.cell(cell, label).take_block(block, length);
    return summary->ended.size() > before ? 1 : 0;
  } catch (const std::bad_alloc&) {
    return -1;
  }
}

int umts_summary_take_collection(umts_summary* summary, const char* cell, const umts_decoder_ctxt* state) {
  if (summary == nullptr || cell == nullptr || state == nullptr || !summary->cells.has(cell)) return -1;
  summary->cells.cell(cell, "").take_collection(state);
  return 0;
}

char* umts_summary_text(const umts_summary* summary, const char* format) {
  if (summary == nullptr || format == nullptr) return nullptr;
  if (std::strcmp(format, "text") != 0 && std::strcmp(format, "json") != 0 && std::strcmp(format, "html") != 0)
    return nullptr;
  char* text = nullptr;
  size_t size = 0;
  FILE* out = open_memstream(&text, &size);
  if (out == nullptr) return nullptr;
  try {
    SummaryWriter writer(out, format);
    for (const SummaryNode& n : summary->ended) writer.write(n);
    writer.finish(summary->cells);
  } catch (const std::bad_alloc&) {
    std::fclose(out);
    std::free(text);
    return nullptr;
  }
  if (std::fclose(out) != 0) {
    std::free(text);
    return nullptr;
  }
  return text;
}

void umts_summary_text_free(char* text) { std::free(text); }
