// SPDX-License-Identifier: MIT
#include "drawing/pages/PageBreaks.h"

#include <algorithm>

namespace mivo::drawing {
namespace {

// Blocks that stand beside each other as one, from the top down.
std::vector<Stretch> rows(std::vector<Stretch> blocks) {
  std::ranges::sort(blocks, {}, &Stretch::top);
  std::vector<Stretch> merged;
  for (const Stretch& block : blocks) {
    if (merged.empty() || block.top >= merged.back().bottom)
      merged.push_back(block);
    else
      merged.back().bottom = std::max(merged.back().bottom, block.bottom);
  }
  return merged;
}

}  // namespace

std::vector<Stretch> pageBreaks(std::vector<Stretch> blocks, double height, double pageHeight) {
  std::vector<Stretch> pages{{0, 0}};
  for (const Stretch& row : rows(std::move(blocks))) {
    if (row.bottom > pages.back().top + pageHeight && pages.back().bottom > pages.back().top)
      pages.push_back({row.top, row.top});
    for (; row.bottom > pages.back().top + pageHeight; pages.push_back({pages.back().bottom, pages.back().bottom}))
      pages.back().bottom = pages.back().top + pageHeight;
    pages.back().bottom = row.bottom;
  }
  pages.back().bottom = std::min(height, pages.back().top + pageHeight);
  return pages;
}

}  // namespace mivo::drawing
