#include "ui/painting/page_blocks.h"

#include <algorithm>
#include <cmath>

#include "ui/painting/page_table.h"

namespace orvex::ui {

namespace {

constexpr double kTableGap = 5;  // points above a table
constexpr double kColumnGap = 14;
constexpr std::size_t kMostStrands = 3;

using Slabs = std::vector<SharedSlab>;

// Lines below each other from a height on; gives the height behind them.
double AddLines(const PageLines& lines, const PageFont& font, QRgb ink, const QPointF& at,
                PageSlab& slab) {
  double y = at.y();
  for (const PageLine& line : lines.Lines) {
    if (!line.Text.isEmpty()) {
      slab.Texts.push_back({{at.x(), y + lines.Ascent}, line.Text, font, QColor(ink)});
    }
    y += lines.Height;
  }
  return y;
}

Slabs SlabsOfBlock(const PageLetterhead& head, const BlockRoom& room) {
  auto slab = std::make_shared<PageSlab>();
  const double half = room.Width / 2 - room.Scale.Space(kColumnGap);
  const PageFont bold{room.Scale.Size(10.5), true, false, false};
  const PageFont fine = FontOf(PageRole::Fine, room.Scale);
  double left = 0;
  if (!head.Name.isEmpty()) {
    left = AddLines(room.Fonts.Break(bold, head.Name, half), bold, ink::kText, {0, 0}, *slab);
  }
  if (!head.Below.isEmpty()) {
    left = AddLines(room.Fonts.Break(fine, head.Below, half), fine, ink::kMuted, {0, left}, *slab);
  }
  double right = 0;
  if (!head.Right.isEmpty()) {
    const PageLines lines = room.Fonts.Break(fine, head.Right, half);
    for (const PageLine& line : lines.Lines) {
      slab->Texts.push_back(
          {{room.Width - line.Width, right + lines.Ascent}, line.Text, fine, QColor(ink::kMuted)});
      right += lines.Height;
    }
  }
  const double bottom = std::max(left, right);
  if (bottom == 0) {
    return {};
  }
  const double rule = room.Scale.Space(0.6);
  slab->Height = bottom + room.Scale.Space(7);
  slab->Fills.push_back({{0, slab->Height - rule, room.Width, rule}, QColor(ink::kHair)});
  return {slab};
}

// A caption is one slab; any other text may be cut between its lines.
Slabs SlabsOfBlock(const PageText& text, const BlockRoom& room) {
  const RoleStyle style = StyleOf(text.Role);
  const PageFont font = FontOf(text.Role, room.Scale);
  const PageLines lines = room.Fonts.Break(font, text.Text, room.Width);
  const bool section = text.Role == PageRole::Section;
  const bool caption = section || text.Role == PageRole::Part || text.Role == PageRole::Title;
  Slabs slabs;
  for (std::size_t first = 0; first < lines.Lines.size();) {
    const std::size_t count = caption ? lines.Lines.size() : 1;
    PageLines part = lines;
    part.Lines = {lines.Lines.begin() + static_cast<std::ptrdiff_t>(first),
                  lines.Lines.begin() + static_cast<std::ptrdiff_t>(first + count)};
    auto slab = std::make_shared<PageSlab>();
    slab->Height = AddLines(part, font, style.Ink, {0, 0}, *slab);
    slab->Gap = first == 0 ? room.Scale.Space(style.Above) : 0;
    slab->KeepWithNext = caption;
    if (section || text.Role == PageRole::Part) {
      slab->Bookmark = QString(text.Text).replace('\n', ' ');
      slab->Level = section ? 0 : 1;
    }
    slabs.push_back(std::move(slab));
    first += count;
  }
  return slabs;
}

Slabs SlabsOfBlock(const PageFacts& facts, const BlockRoom& room) {
  const PageFont label{room.Scale.Size(7), false, false, false};
  const PageFont text = FontOf(PageRole::Body, room.Scale);
  const double gap = room.Scale.Space(kColumnGap);
  const double width = (room.Width - gap * (facts.Columns - 1)) / facts.Columns;
  Slabs slabs;
  const auto columns = static_cast<std::size_t>(facts.Columns);
  for (std::size_t first = 0; first < facts.Facts.size(); first += columns) {
    auto slab = std::make_shared<PageSlab>();
    slab->Gap = room.Scale.Space(first == 0 ? 7 : 5);
    for (std::size_t i = first; i < std::min(first + columns, facts.Facts.size()); ++i) {
      const double x = static_cast<double>(i - first) * (width + gap);
      const double y = AddLines(room.Fonts.Break(label, facts.Facts[i].Caption, width), label,
                                ink::kMuted, {x, 0}, *slab);
      slab->Height =
          std::max(slab->Height, AddLines(room.Fonts.Break(text, facts.Facts[i].Text, width), text,
                                          ink::kText, {x, y}, *slab));
    }
    slabs.push_back(std::move(slab));
  }
  return slabs;
}

// The first slab stands off from what is above.
Slabs WithGap(Slabs slabs, double gap) {
  if (!slabs.empty()) {
    auto first = std::make_shared<PageSlab>(*slabs.front());
    first->Gap = gap;
    slabs.front() = first;
  }
  return slabs;
}

Slabs SlabsOfBlock(const PageTable& table, const BlockRoom& room) {
  const ColumnPlaces places = PlaceColumns(room.Fonts, table, room.Width, room.Scale);
  return WithGap(TableSlabs(room.Fonts, table, places, room.Highest, room.Scale),
                 room.Scale.Space(kTableGap));
}

Slabs SlabsOfBlock(const PageStrands& strands, const BlockRoom& room) {
  return SlabsOf(strands, room).Slabs;
}

Slabs SlabsOfBlock(const PageFigures& figures, const BlockRoom& room) {
  auto slab = std::make_shared<PageSlab>();
  slab->Gap = room.Scale.Space(8);
  const PageFont font = FontOf(PageRole::Part, room.Scale);
  const double gap = room.Scale.Space(kColumnGap);
  const auto between = static_cast<double>(figures.Figures.size() - 1);
  double x = 0;
  for (const PageFigure& figure : figures.Figures) {
    const double width = (room.Width - gap * between) * figure.Width;
    double y = 0;
    if (!figure.Caption.isEmpty()) {
      y = AddLines(room.Fonts.Break(font, figure.Caption, width), font, ink::kMuted, {x, 0},
                   *slab) +
          room.Scale.Space(2);
    }
    slab->Pictures.push_back({{x, y, width, width * figure.Aspect}, figure.Paint});
    slab->Height = std::max(slab->Height, y + width * figure.Aspect);
    x += width + gap;
  }
  return {slab};
}

Slabs SlabsOfBlock(const PageContents& /*contents*/, const BlockRoom& room) {
  constexpr std::size_t kColumns = 3;
  auto slab = std::make_shared<PageSlab>();
  slab->Gap = room.Scale.Space(10);
  const PageFont font{room.Scale.Size(8.5), false, false, false};
  const double gap = room.Scale.Space(2 * kColumnGap);
  const double side = room.Scale.Space(8);
  const double width = (room.Width - 2 * side - gap * (kColumns - 1)) / kColumns;
  const std::size_t rows = (room.Sections.size() + kColumns - 1) / kColumns;
  const PageLines measure = room.Fonts.Break(font, "0", width);
  const double height = measure.Height * 1.15;
  for (std::size_t i = 0; i < room.Sections.size(); ++i) {
    const QPointF at(side + static_cast<double>(i / rows) * (width + gap),
                     side + static_cast<double>(i % rows) * height);
    slab->Texts.push_back(
        {{at.x(), at.y() + measure.Ascent}, room.Sections[i], font, QColor(ink::kAccent)});
    slab->References.push_back({{at.x(), at.y(), width, height}, i, font});
  }
  slab->Height = 2 * side + static_cast<double>(rows) * height;
  slab->Fills.push_back({{0, 0, room.Width, slab->Height}, QColor(ink::kHeadGround)});
  return {slab};
}

Slabs SlabsOfBlock(const PageSideBySide& sides, const BlockRoom& room) {
  auto slab = std::make_shared<PageSlab>();
  slab->Gap = room.Scale.Space(6);
  const double gap = room.Scale.Space(kColumnGap);
  const double width = room.Width - gap * static_cast<double>(sides.Columns.size() - 1);
  double x = 0;
  for (std::size_t i = 0; i < sides.Columns.size(); ++i) {
    BlockRoom column = room;
    column.Width = width * sides.Widths.at(i);
    Slabs stacked;
    for (const PageBlock& block : sides.Columns[i]) {
      const Slabs slabs = SlabsOf(block, column);
      stacked.insert(stacked.end(), slabs.begin(), slabs.end());
    }
    const PageSlab stack = StackOf(stacked);
    Put(stack, {x, 0}, *slab);
    slab->Height = std::max(slab->Height, stack.Height);
    x += column.Width + gap;
  }
  return {slab};
}

}  // namespace

Slabs SlabsOf(const PageBlock& block, const BlockRoom& room) {
  return std::visit([&room](const auto& content) { return SlabsOfBlock(content, room); },
                    block.Content);
}

StrandSlabs SlabsOf(const PageStrands& strands, const BlockRoom& room) {
  PageTable all;
  for (const PageTable& table : strands.Tables) {
    all.Captions = table.Captions;
    all.Dense = table.Dense;
    all.Rows.insert(all.Rows.end(), table.Rows.begin(), table.Rows.end());
  }
  StrandSlabs result;
  result.Gap = room.Scale.Space(kColumnGap);
  const double natural = NaturalWidth(room.Fonts, all, room.Scale);
  const double fitting = std::floor((room.Width + result.Gap) / (natural + result.Gap));
  result.Count =
      std::clamp<std::size_t>(static_cast<std::size_t>(std::max(1.0, fitting)), 1, kMostStrands);
  result.Width = (room.Width - result.Gap * static_cast<double>(result.Count - 1)) /
                 static_cast<double>(result.Count);
  const ColumnPlaces places = PlaceColumns(room.Fonts, all, result.Width, room.Scale);
  for (const PageTable& table : strands.Tables) {
    const Slabs slabs = WithGap(TableSlabs(room.Fonts, table, places, room.Highest, room.Scale),
                                room.Scale.Space(kTableGap));
    result.Slabs.insert(result.Slabs.end(), slabs.begin(), slabs.end());
  }
  return result;
}

}  // namespace orvex::ui
