#include "report/chart_picture.h"

#include <algorithm>

#include "chart/sign_degree.h"
#include "core/cell_colors.h"
#include "core/exact_numbers.h"
#include "core/text.h"
#include "vedic/lal_kitab.h"

namespace orvex::report {

namespace {

constexpr const char* kAscendantCode = "Asc";
constexpr const char* kBetweenTips = " | ";

using HouseCells = std::array<core::Cell, chart::kHouses>;

// "5 SU MA" is the sign and its planets; a line above it is the cusp's degree, "(123.45)".
PictureField SignAndCodes(const std::string& text) {
  const std::vector<std::string> lines = core::Split(text, '\n');
  PictureField field;
  field.Note = lines.size() > 1 ? lines.front() : "";
  field.Codes = core::SplitWords(lines.back());
  if (!field.Codes.empty() && core::ParseWhole(field.Codes.front())) {
    field.Sign = field.Codes.front();
    field.Codes.erase(field.Codes.begin());
  }
  return field;
}

void FillByHouse(const HouseCells& cells, ChartPicture& picture) {
  for (std::size_t house = 0; house < cells.size(); ++house) {
    picture.Fields.at(house) = SignAndCodes(cells.at(house).Text);
    picture.Fields.at(house).Tooltip = cells.at(house).Tooltip;
  }
  picture.Fields.front().Ascendant = true;
}

PictureField EastField(const std::string& text, std::size_t sign) {
  PictureField field{core::WholeText(static_cast<int>(sign)), "", core::SplitWords(text)};
  field.Ascendant =
      std::find(field.Codes.begin(), field.Codes.end(), kAscendantCode) != field.Codes.end();
  return field;
}

void FillBySign(const HouseCells& cells, ChartPicture& picture) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    picture.Fields.at(i) = EastField(cells.at(i).Text, i + 1);
    picture.Fields.at(i).Tooltip = cells.at(i).Tooltip;
  }
}

PictureField SouthField(int sign, const std::string& text, const std::string& background) {
  PictureField field = SignAndCodes(text);
  field.Sign = core::WholeText(sign);
  field.Ascendant = background == core::kAscendantTint;
  return field;
}

void FillFromGrid(const SouthGrid& grid, ChartPicture& picture) {
  for (std::size_t row = 0; row < chart::kSouthSide; ++row) {
    for (std::size_t column = 0; column < chart::kSouthSide; ++column) {
      if (!chart::IsSouthMiddle(row, column)) {
        const SouthSignCell& cell = grid.at(row).at(column);
        picture.Fields.at(static_cast<std::size_t>(cell.Sign) - 1) =
            SouthField(cell.Sign, cell.Text, cell.Background);
      }
    }
  }
}

char KnownStyle(char style) { return style == 'N' || style == 'E' ? style : 'S'; }

// The picture with the fields of its style, which are one of the three sets of cells.
ChartPicture RegionalPicture(ChartPicture picture, const HouseCells& north, const HouseCells& east,
                             const SouthGrid& south) {
  switch (picture.Style) {
    case 'N':
      FillByHouse(north, picture);
      break;
    case 'E':
      FillBySign(east, picture);
      break;
    default:
      FillFromGrid(south, picture);
  }
  return picture;
}

}  // namespace

ChartPicture RashiPicture(const ChartCells& cells, char style) {
  return RegionalPicture({KnownStyle(style), "Rashi", {}}, cells.North, cells.East,
                         cells.SouthRashi);
}

ChartPicture ChalitPicture(const ChartCells& cells, char style) {
  return RegionalPicture({KnownStyle(style), "KP", {}}, cells.NorthKP, cells.EastKP, cells.SouthKP);
}

ChartPicture WithDegreesInSign(ChartPicture picture) {
  for (PictureField& field : picture.Fields) {
    const std::string stored =
        field.Note.size() > 2 ? field.Note.substr(1, field.Note.size() - 2) : "";
    if (const auto degree = chart::SignDegreeOf(stored)) {
      field.Note = degree->Figures;
      field.Tooltip += (field.Tooltip.empty() ? "" : kBetweenTips) + ("Cusp: " + stored);
    }
  }
  return picture;
}

ChartPicture DivisionPicture(const vedic::DivisionChart& division, char style,
                             const std::string& title) {
  ChartPicture picture{KnownStyle(style), title, {}};
  for (std::size_t i = 0; i < chart::kHouses; ++i) {
    picture.Fields.at(i) = picture.Style == 'N' ? SignAndCodes(division.North.at(i + 1))
                                                : EastField(division.East.at(i + 1), i + 1);
  }
  if (picture.Style == 'N') {
    picture.Fields.front().Ascendant = true;
  }
  if (picture.Style == 'S') {
    for (const auto& row : division.South) {
      for (const chart::SouthCell& cell : row) {
        if (cell.Sign != 0) {
          picture.Fields.at(static_cast<std::size_t>(cell.Sign) - 1) =
              SouthField(cell.Sign, cell.Text, cell.Background);
        }
      }
    }
  }
  return picture;
}

ChartPicture AnnualPicture(const core::Table& lalKitabYear, char style) {
  ChartPicture picture{KnownStyle(style), "Annual", {}};
  for (std::size_t row = 0; row < lalKitabYear.Rows.size(); ++row) {
    PictureField& field = picture.Fields.at(row);
    field.Sign = lalKitabYear.At(row, vedic::LalKitabColumn::House).Text;
    field.Codes = core::SplitWords(lalKitabYear.At(row, vedic::LalKitabColumn::Planets).Text);
    field.Ascendant = row == 0;
  }
  return picture;
}

}  // namespace orvex::report
