// The fonts of pages, measured once.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <map>
#include <memory>

namespace orvex::ui {

// A font of a page: its size in tenths of a point.
struct PageFont {
  int Size = 0;
  bool Bold = false;
  bool Serif = false;
  bool Italic = false;

  // The check takes the comparison's own zero for a pointer.
  auto operator<=>(const PageFont&) const = default;  // NOLINT(modernize-use-nullptr)
};

// A part of a text that stands on one line.
struct PageLine {
  QString Text;
  double Width = 0;
};

struct PageLines {
  std::vector<PageLine> Lines;
  double Ascent = 0;
  double Height = 0;  // of one line

  double TotalHeight() const { return Height * static_cast<double>(Lines.size()); }
};

// Names the families, the first that is there counts for each letter: Open Sans (Gentium Book Plus
// for titles), then DejaVu Sans, then whatever font of the machine has the letter.
QFont FontOf(const PageFont& font);

// Not for several threads at once.
class PageFonts {
 public:
  double WidthOf(const PageFont& font, const QString& text);

  // The longest word of a text.
  double WordWidthOf(const PageFont& font, const QString& text);

  // The widest of the lines that a text has by itself.
  double NaturalWidthOf(const PageFont& font, const QString& text);

  // A text in lines of at most that width, at words, at letters where a word is too long.
  PageLines Break(const PageFont& font, const QString& text, double width);

 private:
  struct Measure {
    explicit Measure(const PageFont& font) : Font(FontOf(font)), Metrics(Font) {}
    QFont Font;
    QFontMetricsF Metrics;
    QHash<QString, double> Widths;
  };
  Measure& Of(const PageFont& font);

  std::map<PageFont, std::unique_ptr<Measure>> measures_;
};

// A text as a page takes it: every kind of line end is "\n", what no page can show is a blank.
QString PlainText(const QString& text);
QString DocumentText(const std::string& text);
// The same on one line.
QString OneLine(const std::string& text);

}  // namespace orvex::ui
