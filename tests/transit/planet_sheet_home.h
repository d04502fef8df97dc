// The sheets of the planets of one client, born west of Greenwich.
#pragma once

#include <gtest/gtest.h>

#include "chart/client_saving.h"
#include "horoscope/create_horoscope.h"
#include "support/test_home.h"
#include "transit/planet_sheet.h"

namespace orvex::transit {

class PlanetSheets : public testing::Test {
 protected:
  PlanetSheets() {
    chart::ClientForm form = chart::OpenAddClient(*session_);
    form.FullName = "Client";
    form.Birth = test::Moment("1985-09-05 11:58");
    chart::SelectCity(*session_, 1, form);
    form.Latitude = "40.71427";
    form.Longitude = "-74.00597";
    form.Offset = "-5";
    const std::int32_t id = chart::SaveNewClient(*session_, form, 1).Id;
    model_ = horoscope::CreateHoroscope(*session_, id)->Model;
  }

  PlanetSheet SheetOf(chart::PlanetPlace place, const char* today = "2026-11-24") const {
    return ShowPlanetDetails(model_, chart::RowOf(place), test::Moment(today));
  }

  PlanetSheet SheetOfRow(std::size_t row) const {
    return ShowPlanetDetails(model_, row, test::Moment("2026-11-24"));
  }

  static std::string Value(const PlanetSheet& sheet, const std::string& label) {
    for (const core::Row& row : sheet.Sheet.Rows) {
      for (std::size_t i = 0; i < 6; i += 2) {
        if (row.Cells[i].Text == label) {
          return row.Cells[i + 1].Text;
        }
      }
    }
    return "no such label";
  }

  test::TestHome home_;
  std::unique_ptr<core::Session> session_ = home_.Start();
  chart::HoroscopeModel model_;
};

}  // namespace orvex::transit
