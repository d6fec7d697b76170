#include "notes/RichTextRow.h"

#include <algorithm>

namespace logchecker {

namespace {

constexpr int32_t kFarthest = 100000;  // twips; far beyond any paper

}  // namespace

void RichTextRow::Take(RichTextWord word, int32_t number) {
  number = std::clamp(number, -kFarthest, kFarthest);
  switch (word) {
    case RichTextWord::kRowDefaults:
      edges_.clear();
      left_ = gap_ = 0;
      break;
    case RichTextWord::kCellEdge:
      if (edges_.size() < kMostTabStops) edges_.push_back(number);
      break;
    case RichTextWord::kRowLeft:
      left_ = number;
      break;
    case RichTextWord::kRowGap:
      gap_ = number;
      break;
    default:
      break;
  }
}

int32_t RichTextRow::BeginOf(size_t cell) const {
  return std::max((cell == 0 ? left_ : edges_[cell - 1]) + gap_, 0);
}

TextParagraph RichTextRow::FormatOf(const TextParagraph& paragraph, bool endsRow) {
  TextParagraph format = paragraph;
  const bool inRow = ended_ > 0 || endsRow;
  if (inRow && begun_ < edges_.size()) {
    format.alignment = TextAlignment::kLeft;
    format.leftIndent = BeginOf(begun_);
    format.rightIndent = format.firstLineIndent = 0;
    format.tabs.clear();
    int32_t last = format.leftIndent;
    for (size_t cell = begun_ + 1; cell < edges_.size(); ++cell) {
      if (BeginOf(cell) <= last) continue;
      last = BeginOf(cell);
      format.tabs.push_back({last, TabKind::kLeft});
    }
  }
  begun_ = ended_;
  return format;
}

}  // namespace logchecker
