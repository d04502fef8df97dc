#include "ui/painting/page_table.h"

#include <QRegularExpression>
#include <algorithm>
#include <numeric>

namespace orvex::ui {

namespace {

constexpr double kSizes[] = {8, 7.5, 7, 6.5, 6, 5.5};  // points, tried in this order
constexpr double kDenseSizes[] = {7, 6.5, 6, 5.5};
constexpr double kLeastUnbroken = 7;  // points: above it the text gets smaller before cells break
constexpr double kCellSide = 3.5;     // points left and right of a cell's text
constexpr double kNarrowSide = 2.2;   // where many columns share the room
constexpr std::size_t kManyColumns = 12;
constexpr double kBehindFigures = 5;  // more, between figures and the next column
constexpr double kAbove = 1.6;
constexpr double kDenseAbove = 0.5;
constexpr double kTableHair = 0.4;
constexpr double kHeadRule = 1;

// The widths that a column wants and that it needs.
struct Wish {
  double Natural = 0;
  double Least = 0;
};

PageFont TextFont(int size, bool bold = false) { return {size, bold, false, false}; }

double SideOf(const PageTable& table, PageScale scale) {
  return scale.Space(table.Columns() > kManyColumns ? kNarrowSide : kCellSide);
}

// Figures, also several or with one in brackets; a column of nothing else is set to the right.
bool IsFigure(const QString& text) {
  static const QRegularExpression kFigure(
      R"(^([-+]?\d+(\.\d+)?( \d+)*( \([-+]?\d+(\.\d+)?\))?|N/A|-)$)");
  return kFigure.match(text).hasMatch();
}

bool IsFigureColumn(const PageTable& table, std::size_t column) {
  bool any = false;
  for (const std::vector<PageCell>& row : table.Rows) {
    const QString& text = row.at(column).Text;
    if (!text.isEmpty() && !IsFigure(text)) {
      return false;
    }
    any = any || !text.isEmpty();
  }
  return any;
}

// Which columns are set to the right, and the room that keeps them off the next one.
ColumnPlaces Aligned(const PageTable& table, PageScale scale) {
  ColumnPlaces places;
  for (std::size_t column = 0; column < table.Columns(); ++column) {
    const bool figures = IsFigureColumn(table, column);
    const bool last = column + 1 == table.Columns();
    places.RightAligned.push_back(figures);
    places.Behind.push_back(figures && !last ? scale.Space(kBehindFigures) : 0);
  }
  return places;
}

// The widths with the room at the sides that they leave.
std::vector<Wish> WishesOf(PageFonts& fonts, const PageTable& table, const ColumnPlaces& places,
                           double side, bool least) {
  const int size = places.Size;
  std::vector<Wish> wishes(table.Columns());
  const auto ask = [&](std::size_t column, const QString& text, const PageFont& font) {
    Wish& wish = wishes.at(column);
    const double sides = 2 * side + places.Behind.at(column);
    wish.Natural = std::max(wish.Natural, fonts.NaturalWidthOf(font, text) + sides);
    if (least) {
      wish.Least = std::max(wish.Least, fonts.WordWidthOf(font, text) + sides);
    }
  };
  for (std::size_t column = 0; column < table.Captions.size(); ++column) {
    ask(column, table.Captions[column], TextFont(size, true));
  }
  for (const std::vector<PageCell>& row : table.Rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      ask(column, row[column].Text, TextFont(size, row[column].Bold));
    }
  }
  return wishes;
}

double Sum(const std::vector<Wish>& wishes, double Wish::*what) {
  return std::accumulate(wishes.begin(), wishes.end(), 0.0,
                         [what](double sum, const Wish& wish) { return sum + wish.*what; });
}

// The room shared so that small needs are met in full and large ones get equal parts of the rest.
std::vector<double> Rationed(const std::vector<Wish>& wishes, double room) {
  std::vector<double> needs;
  for (const Wish& wish : wishes) {
    needs.push_back(wish.Least);
  }
  std::sort(needs.begin(), needs.end());
  double part = room;
  double left = room;
  for (std::size_t i = 0; i < needs.size(); ++i) {
    part = left / static_cast<double>(needs.size() - i);
    if (needs[i] > part) {
      break;
    }
    left -= needs[i];
  }
  std::vector<double> widths;
  for (const Wish& wish : wishes) {
    widths.push_back(std::min(wish.Least, part));
  }
  return widths;
}

// Shares the room out: in proportion where all fits, else each gets its least and a part of what
// is left by how much it misses. Where not even that fits, it is rationed.
std::vector<double> Shared(const std::vector<Wish>& wishes, double room) {
  const double natural = Sum(wishes, &Wish::Natural);
  const double least = Sum(wishes, &Wish::Least);
  if (natural > room && least > room) {
    return Rationed(wishes, room);
  }
  std::vector<double> widths;
  for (const Wish& wish : wishes) {
    if (natural <= room) {
      widths.push_back(wish.Natural + (room - natural) * wish.Natural / natural);
    } else {
      widths.push_back(wish.Least + (room - least) * (wish.Natural - wish.Least) /
                                        std::max(1.0, natural - least));
    }
  }
  return widths;
}

std::vector<double> SizesOf(const PageTable& table) {
  if (table.Dense) {
    return {std::begin(kDenseSizes), std::end(kDenseSizes)};
  }
  return {std::begin(kSizes), std::end(kSizes)};
}

// A row of cells while it is set.
struct RowSetting {
  PageFonts& Fonts;
  const ColumnPlaces& Places;
  PageScale Scale;
  double SideSpace = 0;
  bool Dense = false;

  double Above() const { return Scale.Space(Dense ? kDenseAbove : kAbove); }

  double Side() const { return SideSpace; }

  PageLines LinesOf(const QString& text, const PageFont& font, std::size_t column) const {
    return Fonts.Break(font, text,
                       Places.Widths.at(column) - 2 * Side() - Places.Behind.at(column));
  }

  void Add(const PageLine& line, std::size_t column, double base, const PageFont& font,
           const QColor& ink, PageSlab& slab) const {
    const double left = Places.Lefts.at(column);
    const double x = Places.RightAligned.at(column) ? left + Places.Widths.at(column) - Side() -
                                                          Places.Behind.at(column) - line.Width
                                                    : left + Side();
    slab.Texts.push_back({{x, base}, line.Text, font, ink});
  }

  double Right() const { return Places.Lefts.back() + Places.Widths.back(); }
};

SharedSlab HeadSlab(const RowSetting& setting, const PageTable& table) {
  auto slab = std::make_shared<PageSlab>();
  const PageFont font = TextFont(setting.Places.Size, true);
  const double rule = setting.Scale.Space(kHeadRule);
  if (table.Captions.empty()) {
    slab->Height = rule;
    slab->Fills.push_back({{0, 0, setting.Right(), rule}, QColor(ink::kHeadRule)});
    return slab;
  }
  const double above = setting.Above();
  std::vector<PageLines> cells;
  double height = 0;
  for (std::size_t column = 0; column < table.Captions.size(); ++column) {
    cells.push_back(setting.LinesOf(table.Captions[column], font, column));
    height = std::max(height, cells.back().TotalHeight());
  }
  slab->Height = rule + height + 2 * above;
  slab->Fills.push_back({{0, 0, setting.Right(), slab->Height}, QColor(ink::kHeadGround)});
  slab->Fills.push_back({{0, 0, setting.Right(), rule}, QColor(ink::kHeadRule)});
  for (std::size_t column = 0; column < cells.size(); ++column) {
    // Captions of several lines stand on the rows below.
    double base = slab->Height - above - cells[column].TotalHeight() + cells[column].Ascent;
    for (const PageLine& line : cells[column].Lines) {
      setting.Add(line, column, base, font, QColor(ink::kText), *slab);
      base += cells[column].Height;
    }
  }
  return slab;
}

// A part of a row: of every cell the lines from `first` on, `count` of them.
std::shared_ptr<PageSlab> RowSlab(const RowSetting& setting, const std::vector<PageCell>& row,
                                  const std::vector<PageLines>& cells, std::size_t first,
                                  std::size_t count) {
  auto slab = std::make_shared<PageSlab>();
  const double above = setting.Above();
  double height = 0;
  for (const PageLines& cell : cells) {
    const std::size_t rest = cell.Lines.size() - std::min(cell.Lines.size(), first);
    height = std::max(height, cell.Height * static_cast<double>(std::min(rest, count)));
  }
  slab->Height = height + 2 * above;
  for (std::size_t column = 0; column < cells.size(); ++column) {
    const PageCell& cell = row[column];
    if (cell.Ground.isValid()) {
      slab->Fills.push_back(
          {{setting.Places.Lefts[column], 0, setting.Places.Widths[column], slab->Height},
           cell.Ground});
    }
    const PageFont font = TextFont(setting.Places.Size, cell.Bold);
    const QColor ink = cell.Ink.isValid() ? cell.Ink : QColor(ink::kText);
    double base = above + cells[column].Ascent;
    for (std::size_t i = first; i < std::min(cells[column].Lines.size(), first + count); ++i) {
      if (!cells[column].Lines[i].Text.isEmpty()) {
        setting.Add(cells[column].Lines[i], column, base, font, ink, *slab);
      }
      base += cells[column].Height;
    }
  }
  const double hair = setting.Scale.Space(kTableHair);
  slab->Fills.push_back({{0, slab->Height - hair, setting.Right(), hair}, QColor(ink::kHair)});
  return slab;
}

void AddRow(const RowSetting& setting, const std::vector<PageCell>& row, double highest,
            const SharedSlab& head, std::vector<std::shared_ptr<PageSlab>>& slabs) {
  std::vector<PageLines> cells;
  std::size_t lines = 1;
  double height = 1;
  for (std::size_t column = 0; column < row.size(); ++column) {
    const PageFont font = TextFont(setting.Places.Size, row[column].Bold);
    cells.push_back(setting.LinesOf(row[column].Text, font, column));
    lines = std::max(lines, cells.back().Lines.size());
    height = std::max(height, cells.back().Height);
  }
  const std::size_t most = std::max<std::size_t>(1, static_cast<std::size_t>(highest / height));
  for (std::size_t first = 0; first < lines; first += most) {
    slabs.push_back(RowSlab(setting, row, cells, first, most));
    slabs.back()->Head = head;
  }
}

// What stands in the place of rows.
std::shared_ptr<PageSlab> EmptySlab(const RowSetting& setting, const QString& text) {
  auto slab = std::make_shared<PageSlab>();
  const PageFont font = TextFont(setting.Places.Size);
  const PageLines lines = setting.Fonts.Break(font, text, setting.Right());
  const double above = setting.Above();
  slab->Height = lines.Height + 2 * above;
  if (!text.isEmpty()) {
    slab->Texts.push_back(
        {{setting.Side(), above + lines.Ascent}, text, font, QColor(ink::kMuted)});
  }
  return slab;
}

}  // namespace

double NaturalWidth(PageFonts& fonts, const PageTable& table, PageScale scale) {
  ColumnPlaces places = Aligned(table, scale);
  places.Size = scale.Size(SizesOf(table).front());
  return Sum(WishesOf(fonts, table, places, SideOf(table, scale), false), &Wish::Natural);
}

ColumnPlaces PlaceColumns(PageFonts& fonts, const PageTable& table, double room, PageScale scale) {
  ColumnPlaces places = Aligned(table, scale);
  const std::vector<double> sizes = SizesOf(table);
  std::vector<Wish> wishes;
  const auto fits = [&](double points, double Wish::*what) {
    places.Size = scale.Size(points);
    wishes = WishesOf(fonts, table, places, SideOf(table, scale), what == &Wish::Least);
    return Sum(wishes, what) <= room;
  };
  const bool whole = std::any_of(sizes.begin(), sizes.end(), [&](double points) {
    return points >= kLeastUnbroken && fits(points, &Wish::Natural);
  });
  if (!whole) {
    std::find_if(sizes.begin(), sizes.end(),
                 [&](double points) { return fits(points, &Wish::Least); });
  }
  places.Widths = Shared(wishes, room);
  double left = 0;
  for (const double width : places.Widths) {
    places.Lefts.push_back(left);
    left += width;
  }
  return places;
}

std::vector<SharedSlab> TableSlabs(PageFonts& fonts, const PageTable& table,
                                   const ColumnPlaces& places, double highest, PageScale scale) {
  const RowSetting setting{fonts, places, scale, SideOf(table, scale), table.Dense};
  const SharedSlab head = HeadSlab(setting, table);
  std::vector<std::shared_ptr<PageSlab>> slabs;
  for (const std::vector<PageCell>& row : table.Rows) {
    AddRow(setting, row, highest, head, slabs);
  }
  if (table.Rows.empty()) {
    slabs.push_back(EmptySlab(setting, table.WhenEmpty));
    slabs.back()->Head = head;
  }
  // Two rows at least on either side of a break, where they are not half a page themselves.
  constexpr double kFewLines = 0.5;
  for (const std::size_t at : {std::size_t{0}, slabs.size() < 2 ? 0 : slabs.size() - 2}) {
    if (at + 1 < slabs.size() && slabs[at]->Height + slabs[at + 1]->Height < kFewLines * highest) {
      slabs[at]->KeepWithNext = true;
    }
  }
  return {slabs.begin(), slabs.end()};
}

}  // namespace orvex::ui
