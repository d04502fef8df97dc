// A document as it is set on pages: what it holds, nothing of where it stands. All measures of the
// pages are in tenths of a point, so that one layout serves every device.
#pragma once

#include <QColor>
#include <QPainter>
#include <QString>
#include <functional>
#include <memory>
#include <variant>
#include <vector>

namespace orvex::ui {

inline constexpr double kPointsToUnits = 10;
inline constexpr double kUnitsOfMillimetre = 72 / 25.4 * kPointsToUnits;

// Who writes, at the head of the first page.
struct PageLetterhead {
  QString Name;
  QString Below;
  QString Right;  // lines
};

enum class PageRole { Title, Section, Part, Lead, Body, Fine };

// A text of one or more lines. Sections and parts keep with what follows and are bookmarks.
struct PageText {
  PageRole Role = PageRole::Body;
  QString Text;
};

struct PageFact {
  QString Caption;
  QString Text;
};

struct PageFacts {
  std::vector<PageFact> Facts;  // row by row
  int Columns = 3;
};

struct PageCell {
  QString Text;
  QColor Ink;     // not valid: that of text
  QColor Ground;  // not valid: none
  bool Bold = false;
};

struct PageTable {
  std::vector<QString> Captions;  // empty: no head
  std::vector<std::vector<PageCell>> Rows;
  QString WhenEmpty;
  bool Dense = false;  // small and tight, for hundreds of rows
  std::size_t Columns() const { return Rows.empty() ? Captions.size() : Rows.front().size(); }
};

// Tables with the same columns that run on through as many strands side by side as fit.
struct PageStrands {
  std::vector<PageTable> Tables;
};

// Something painted into a box, its width a part of the room and its height a part of its width.
struct PageFigure {
  QString Caption;
  double Width = 1;
  double Aspect = 1;
  std::function<void(QPainter& painter, const QRectF& box)> Paint;
};

struct PageFigures {
  std::vector<PageFigure> Figures;  // side by side
};

// The sections of the document with their pages.
struct PageContents {};

struct PageBlock;

// Blocks beside each other, kept together.
struct PageSideBySide {
  std::vector<std::vector<PageBlock>> Columns;
  std::vector<double> Widths;  // parts of the room, together 1
};

struct PageBlock {
  std::variant<PageLetterhead, PageText, PageFacts, PageTable, PageStrands, PageFigures,
               PageContents, PageSideBySide>
      Content;
};

struct PageDocument {
  QString Title;
  QString Author;
  QString Head;  // runs at the head of all pages but the first
  QString Foot;
  std::vector<PageBlock> Blocks;
};

}  // namespace orvex::ui
