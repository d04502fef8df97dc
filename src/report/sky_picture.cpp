#include "report/sky_picture.h"

#include "core/exact_numbers.h"
#include "core/text.h"

namespace orvex::report {

namespace {

using panchang::SkyHouseColumn;

PictureField FieldOf(const core::Table& houses, std::size_t row) {
  PictureField field;
  field.Sign = houses.At(row, SkyHouseColumn::Rashi).Text;
  field.Codes = core::SplitWords(houses.At(row, SkyHouseColumn::Planets).Text);
  field.Ascendant = row == 0;
  return field;
}

}  // namespace

ChartPicture SkyPicture(const panchang::SkyView& view, char style) {
  ChartPicture picture{style == 'N' || style == 'E' ? style : 'S', "Sky", {}};
  for (std::size_t row = 0; row < view.SkyHouses.Rows.size(); ++row) {
    PictureField field = FieldOf(view.SkyHouses, row);
    const auto sign = static_cast<std::size_t>(core::ParseWhole(field.Sign).value_or(1) - 1);
    picture.Fields.at(picture.Style == 'N' ? row : sign) = std::move(field);
  }
  return picture;
}

}  // namespace orvex::report
