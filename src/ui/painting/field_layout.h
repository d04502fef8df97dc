// Setting words into a field of any convex outline.
#pragma once

#include <QFont>
#include <QPolygonF>
#include <QStringList>
#include <vector>

namespace orvex::ui {

struct PlacedWord {
  QString Text;
  QRectF Box;
};

// A line of its own above the words, or below them where the outline is widest at its foot. It is
// never larger than the words.
struct FieldNote {
  QString Text;  // "" for none
  QFont Font;
  double PixelSize = 0;
};

struct FieldText {
  double PixelSize = 0;
  std::vector<PlacedWord> Words;
  double NoteSize = 0;
  PlacedWord Note;
};

// The words in lines as near to the middle of the outline as they go, in the largest size between
// the two (pixels) in which no word leaves the outline or touches another or the `taken` boxes. In
// the smallest size what does not fit is set all the same, so that nothing is ever lost.
FieldText LayOutWords(const QStringList& words, const FieldNote& note, const QPolygonF& outline,
                      const std::vector<QRectF>& taken, const QFont& font, double smallest,
                      double largest);

}  // namespace orvex::ui
