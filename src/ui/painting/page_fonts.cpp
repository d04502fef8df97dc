#include "ui/painting/page_fonts.h"

#include <QTextLayout>
#include <algorithm>

namespace orvex::ui {

namespace {

// Room between lines: a part of the font's own height.
constexpr double kLeading = 1.04;

// Texts in these letters need one font and no shaping that could change their height.
bool IsPlainLatin(const QString& text) {
  constexpr char16_t kBehindLatin = 0x250;
  return std::all_of(text.begin(), text.end(),
                     [](QChar c) { return c.unicode() < kBehindLatin && c != '\n'; });
}

// What stands in short brackets stays together: "Moon (2 10)" breaks before the bracket.
QString WithWholeBrackets(QString text) {
  constexpr qsizetype kLongest = 12;
  for (qsizetype open = text.indexOf('('); open >= 0; open = text.indexOf('(', open + 1)) {
    const qsizetype close = text.indexOf(')', open);
    if (close > open && close - open <= kLongest) {
      for (qsizetype i = open; i < close; ++i) {
        text[i] = text[i] == ' ' ? QChar(QChar::Nbsp) : text[i];
      }
    }
  }
  return text;
}

}  // namespace

QFont FontOf(const PageFont& font) {
  QFont made;
  made.setFamilies(font.Serif ? QStringList{"Gentium Book Plus", "Open Sans", "DejaVu Sans"}
                              : QStringList{"Open Sans", "DejaVu Sans"});
  made.setPixelSize(std::max(1, font.Size));
  made.setWeight(font.Bold ? QFont::DemiBold : QFont::Normal);
  made.setItalic(font.Italic);
  made.setHintingPreference(QFont::PreferNoHinting);
  // Any letter spacing keeps letters apart that would become one glyph, which no search for a word
  // would find; this one is too small to be seen.
  made.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
  return made;
}

PageFonts::Measure& PageFonts::Of(const PageFont& font) {
  std::unique_ptr<Measure>& measure = measures_[font];
  if (measure == nullptr) {
    measure = std::make_unique<Measure>(font);
  }
  return *measure;
}

double PageFonts::WidthOf(const PageFont& font, const QString& text) {
  Measure& measure = Of(font);
  const auto known = measure.Widths.constFind(text);
  if (known != measure.Widths.constEnd()) {
    return *known;
  }
  const double width = measure.Metrics.horizontalAdvance(text);
  measure.Widths.insert(text, width);
  return width;
}

double PageFonts::WordWidthOf(const PageFont& font, const QString& text) {
  if (!text.contains(' ') && !text.contains('\n')) {
    return WidthOf(font, text);
  }
  double longest = 0;
  for (const QString& line : WithWholeBrackets(text).split('\n')) {
    for (const QString& word : line.split(' ', Qt::SkipEmptyParts)) {
      longest = std::max(longest, WidthOf(font, word));
    }
  }
  return longest;
}

double PageFonts::NaturalWidthOf(const PageFont& font, const QString& text) {
  if (!text.contains('\n')) {
    return WidthOf(font, text);
  }
  double widest = 0;
  for (const QString& line : text.split('\n')) {
    widest = std::max(widest, WidthOf(font, line));
  }
  return widest;
}

PageLines PageFonts::Break(const PageFont& font, const QString& text, double width) {
  Measure& measure = Of(font);
  PageLines lines;
  lines.Ascent = measure.Metrics.ascent();
  lines.Height = measure.Metrics.height() * kLeading;
  if (IsPlainLatin(text) && WidthOf(font, text) <= width) {
    lines.Lines.push_back({text, WidthOf(font, text)});
    return lines;
  }
  QString broken = text;
  broken.replace('\n', QChar::LineSeparator);
  QTextLayout layout(WithWholeBrackets(broken), measure.Font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    QString part = broken.mid(line.textStart(), line.textLength());
    part.remove(QChar::LineSeparator);
    lines.Lines.push_back({part.trimmed(), line.naturalTextWidth()});
    lines.Ascent = std::max(lines.Ascent, line.ascent());
    lines.Height = std::max(lines.Height, (line.ascent() + line.descent()) * kLeading);
  }
  layout.endLayout();
  if (lines.Lines.empty()) {
    lines.Lines.push_back({});
  }
  return lines;
}

QString PlainText(const QString& text) {
  QString plain = text;
  plain.replace("\r\n", "\n");
  for (QChar& c : plain) {
    if (c == '\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) {
      c = '\n';
    } else if (c != '\n' && (c.category() == QChar::Other_Control || c.isNonCharacter())) {
      c = ' ';
    }
  }
  return plain;
}

QString DocumentText(const std::string& text) { return PlainText(QString::fromStdString(text)); }

QString OneLine(const std::string& text) { return DocumentText(text).replace('\n', ' ').trimmed(); }

}  // namespace orvex::ui
