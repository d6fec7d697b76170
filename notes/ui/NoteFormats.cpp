#include "notes/ui/NoteFormats.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTextOption>

#include "common/ui/SystemColours.h"

namespace logchecker {

namespace {

constexpr int kContinues = QTextFormat::UserProperty + 1;
constexpr double kTwipsPerInch = 1440;
constexpr double kUsualDotsPerInch = 96;
constexpr int kWidestIndent = 14400;  // twips; a wider one would push the text out of the window
constexpr int kFarthestTab = 31680;
constexpr int kNearestTabs = 90;
constexpr double kHalfPoints = 2;
constexpr double kPercent = 100;
constexpr int kMostLines = 10 * kSingleLine;

int Bounded(int32_t twips) { return qBound(-kWidestIndent, twips, kWidestIndent); }

Qt::Alignment AlignmentOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::kRight:
      return Qt::AlignRight;
    case TextAlignment::kCentre:
      return Qt::AlignHCenter;
    case TextAlignment::kJustified:
      return Qt::AlignJustify;
    case TextAlignment::kLeft:
      break;
  }
  return Qt::AlignLeft;
}

QTextOption::TabType TypeOf(TabKind kind) {
  switch (kind) {
    case TabKind::kRight:
      return QTextOption::RightTab;
    case TabKind::kCentre:
      return QTextOption::CenterTab;
    case TabKind::kDecimal:
      return QTextOption::DelimiterTab;
    case TabKind::kLeft:
      break;
  }
  return QTextOption::LeftTab;
}

// Rich text counts from the margin, the desktop from where the first line begins.
QList<QTextOption::Tab> TabsOf(const TextParagraph& paragraph, int32_t tabDistance) {
  const int left = qMax(Bounded(paragraph.leftIndent), 0);
  const int begin = left + Bounded(paragraph.firstLineIndent);
  QList<QTextOption::Tab> tabs;
  int last = begin;
  const auto add = [&](int position, TabKind kind) {
    if (position <= last || position > kFarthestTab) return;
    tabs << QTextOption::Tab(NotePixels(position - begin), TypeOf(kind), '.');
    last = position;
  };
  for (const TextTab& tab : paragraph.tabs) {
    // A line that hangs out to the left has a stop at the indent.
    if (begin < left && tab.position > left) add(left, TabKind::kLeft);
    add(tab.position, tab.kind);
  }
  if (begin < left) add(left, TabKind::kLeft);
  if (tabs.isEmpty() && begin == 0) return tabs;
  const int distance = qMax(tabDistance, kNearestTabs);
  for (int position = (qMax(last, 0) / distance + 1) * distance; position <= kFarthestTab;
       position += distance) {
    add(position, TabKind::kLeft);
  }
  return tabs;
}

void SetLineHeight(QTextBlockFormat& format, const TextParagraph& paragraph) {
  const int spacing = paragraph.lineSpacing;
  if (!paragraph.lineSpacingIsMultiple) {
    format.setLineHeight(NotePixels(qAbs(Bounded(spacing))), spacing < 0
                                                                 ? QTextBlockFormat::FixedHeight
                                                                 : QTextBlockFormat::MinimumHeight);
  } else if (spacing > 0 && spacing != kSingleLine) {
    format.setLineHeight(qMin(spacing, kMostLines) * kPercent / kSingleLine,
                         QTextBlockFormat::ProportionalHeight);
  }
}

}  // namespace

double NotePixels(int32_t twips) {
  const QScreen* screen = QGuiApplication::primaryScreen();
  const double dots = screen != nullptr ? qRound(screen->logicalDotsPerInchY()) : kUsualDotsPerInch;
  return twips * dots / kTwipsPerInch;
}

QTextBlockFormat NoteBlockFormat(const TextParagraph& paragraph, int32_t spaceAbove,
                                 int32_t tabDistance) {
  QTextBlockFormat format;
  format.setAlignment(AlignmentOf(paragraph.alignment));
  format.setLeftMargin(NotePixels(qMax(Bounded(paragraph.leftIndent), 0)));
  format.setRightMargin(NotePixels(qMax(Bounded(paragraph.rightIndent), 0)));
  format.setTextIndent(NotePixels(Bounded(paragraph.firstLineIndent)));
  format.setTopMargin(
      NotePixels(qMax(Bounded(spaceAbove), 0) + qMax(Bounded(paragraph.spaceBefore), 0)));
  SetLineHeight(format, paragraph);
  if (paragraph.pageBreakBefore) format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  const bool hasTab =
      std::any_of(paragraph.runs.begin(), paragraph.runs.end(),
                  [](const TextRun& run) { return run.text.find('\t') != std::string::npos; });
  if (hasTab) format.setTabPositions(TabsOf(paragraph, tabDistance));
  return format;
}

QTextCharFormat NoteCharFormat(const TextFormat& run) {
  QTextCharFormat format;
  if (!run.fontName.empty()) format.setFontFamilies({QString::fromStdString(run.fontName)});
  format.setFontPointSize(run.halfPoints / kHalfPoints);
  format.setFontWeight(run.bold ? QFont::Bold : QFont::Normal);
  format.setFontItalic(run.italic);
  format.setFontUnderline(run.underline);
  format.setFontStrikeOut(run.strike);
  if (run.caps == TextCaps::kAll) format.setFontCapitalization(QFont::AllUppercase);
  if (run.caps == TextCaps::kSmall) format.setFontCapitalization(QFont::SmallCaps);
  if (run.script == TextScript::kSuper) {
    format.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
  } else if (run.script == TextScript::kSub) {
    format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
  }
  if (run.raise != 0) format.setBaselineOffset(run.raise * kPercent / run.halfPoints);
  if (run.colour != kAutomaticColour) format.setForeground(ToQColor(run.colour, {}));
  if (run.highlight != kAutomaticColour) format.setBackground(ToQColor(run.highlight, {}));
  return format;
}

QTextBlockFormat NoteContinuation(const QTextBlockFormat& format) {
  QTextBlockFormat next = format;
  next.setProperty(kContinues, true);
  next.setTextIndent(0);
  next.setTopMargin(0);
  next.clearProperty(QTextFormat::PageBreakPolicy);
  return next;
}

bool IsNoteContinuation(const QTextBlockFormat& format) { return format.boolProperty(kContinues); }

}  // namespace logchecker
