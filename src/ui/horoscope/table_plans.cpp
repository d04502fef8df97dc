#include "ui/horoscope/table_plans.h"

#include <map>

#include "chart/horoscope_model.h"
#include "chart/planet_marks.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

using K = CellKind;

// clang-format off
const std::map<std::string, std::vector<ColumnPlan>>& PlansByName() {
  static const std::map<std::string, std::vector<ColumnPlan>> kPlans = {
      {"PlanetTable",      {{"Planet",       K::Chip,   112, 0},
                            {"In",           K::Bold,    28, 0},
                            {"Owner",        K::Text,    46, 4},
                            {"Degree",       K::Degree,  78, 0},
                            {"Sign Lord",    K::Lord,    70, 2},
                            {"Star Lord",    K::Lord,    70, 0},
                            {"Sub Lord",     K::Lord,    70, 0},
                            {"Sub Sub Lord", K::Lord,    78, 1},
                            {"S/T/U",        K::Letter,  40, 3},
                            {"Nakshatra",    K::Text,   104, 5},
                            {"Pada",         K::Text,    40, 6},
                            {"Type",         K::Text,    90, 7},
                            {"Gunas",        K::Text,    90, 8}}},
      {"CuspTable",        {{"House",         K::Bold,    46, 0},
                            {"Degree",        K::Degree,  82, 0},
                            {"Sign Lord",     K::Lord,    62, 2},
                            {"Star Lord",     K::Lord,    62, 0},
                            {"Sub Lord",      K::Lord,    86, 0, true},
                            {"Sub Sub Lord",  K::Lord,    84, 1},
                            {"Nakshatra",     K::Text,   104, 4},
                            {"Pada",          K::Text,    40, 5},
                            {"Planet(s) Sig", K::Chips,  164, 0}}},
      {"HouseTable",       {{"House",         K::Bold,    46, 0},
                            {"Cusp Degree",   K::Degree,  84, 0},
                            {"BC Planets",    K::Chips,  128, 0},
                            {"Rashi",         K::Text,    44, 0},
                            {"RC Planets",    K::Chips,  128, 0},
                            {"Rashi Lord",    K::Lord,    90, 0},
                            {"ASP3",          K::Text,    44, 2},
                            {"ASP4",          K::Text,    44, 2},
                            {"ASP5",          K::Text,    44, 2},
                            {"ASP7",          K::Text,    44, 2},
                            {"ASP8",          K::Text,    44, 2},
                            {"ASP9",          K::Text,    44, 2},
                            {"ASP10",         K::Text,    44, 2},
                            {"KP Chart Rashi",       K::Text,  96, 4},
                            {"KP Chart Rashi Owner", K::Chip, 132, 5},
                            {"Retro Rashi",          K::Text,  76, 6}}},
      {"StarTable",        {{"Star Name",    K::Text,   120, 0},
                            {"Gender",       K::Text,    64, 5},
                            {"Guna 1",       K::Text,    64, 2},
                            {"Guna 2",       K::Text,    64, 3},
                            {"Guna 3",       K::Text,    64, 4},
                            {"Star Lord",    K::Chip,   104, 0},
                            {"Rashi",        K::Text,    44, 1},
                            {"Pada",         K::Text,    44, 0},
                            {"Start Degree", K::Figures, 88, 0},
                            {"End Degree",   K::Figures, 88, 1}}},
      {"TransitNow",       {{"Planet",    K::Chip,    98, 0},
                            {"Degree",    K::Degree,  82, 0},
                            {"Rashi",     K::Text,    80, 1},
                            {"Star Lord", K::Lord,    62, 0},
                            {"Sub Lord",  K::Lord,    62, 0}}},
      {"PlanetLevels",     {{"Planet",       K::Chip,    98, 0},
                            {"STU",          K::Letter,  36, 1},
                            {"L1",           K::Text,    32, 0},
                            {"L2",           K::Text,    32, 0},
                            {"L3",           K::Text,    46, 0},
                            {"L4",           K::Text,    46, 0},
                            {"Star Lord Of", K::Text,   116, 2},
                            {"Sub Lord Of",  K::Text,   124, 3}}},
      {"NadiTable",        {{"Planet",    K::Nadi, 110, 0},
                            {"Star Lord", K::Nadi, 110, 0},
                            {"Sub Lord",  K::Nadi, 110, 0}}},
      {"FourStepRows",     {{"Planet", K::Chip, 100, 0},
                            {"Step 1", K::Text,  64, 0},
                            {"Step 2", K::Nadi,  96, 0},
                            {"Step 3", K::Nadi,  96, 0},
                            {"Step 4", K::Nadi,  96, 0}}},
      {"FourStepTable",    {{"PL",  K::Code,    44, 0},
                            {"Deg", K::Degree,  82, 1},
                            {"Sig", K::Text,    84, 0}}},
      {"PlanetAspectList", {{"Frm", K::Code, 42, 0},
                            {"Dir", K::Text, 72, 1},
                            {"To",  K::Code, 42, 0},
                            {"Dir", K::Text, 72, 2},
                            {"ASP", K::Text, 56, 0}}},
      {"BnnTable",         {{"PLN",           K::Code,    72, 0},
                            {"DEG",           K::Figures, 56, 1},
                            {"Aspecting",     K::Text,   130, 2},
                            {"BNN Seq",       K::Chips,  226, 0},
                            {"BNN Retro Seq", K::Chips,  140, 0}}},
      {"KarakaTable",      {{"Karaka", K::Text,    146, 0},
                            {"Planet", K::Chip,    104, 0},
                            {"Degree", K::Figures,  60, 1}}},
      {"LoShuPlanes",      {{"Seq",         K::Bold,  50, 0},
                            {"Plane",       K::Text, 110, 0},
                            {"Description", K::Text, 420, 0}}},
      {"LoShuAnalysis",    {{"No.",       K::Bold,  40, 0},
                            {"Element",   K::Text,  70, 0},
                            {"Direction", K::Text, 100, 0},
                            {"Meaning",   K::Text, 200, 0}}},
      {"LalKitabYear",     {{"House",   K::Bold,   46, 0},
                            {"Planets", K::Chips, 160, 0}}},
      {"ImpactTable",      {{"Aspect From",            K::Lord, 104, 0},
                            {"From Dir",               K::Text,  76, 1},
                            {"To Dir",                 K::Text,  76, 1},
                            {"Impact on House/Planet", K::Lord, 110, 0},
                            {"Aspect",                 K::Text,  52, 0}}},
      {"HitsTable",        {{"From Planet", K::Code, 80, 0},
                            {"From Dir",    K::Text, 76, 1},
                            {"To Planet",   K::Code, 66, 0},
                            {"To House",    K::Text, 62, 0},
                            {"To Dir",      K::Text, 76, 1},
                            {"Aspect",      K::Text, 56, 0},
                            {"Type",        K::Text, 42, 2}}},
      {"RemedyTable",      {{"Problem",     K::Text,  200, 0},
                            {"Solution",    K::Text,  200, 0},
                            {"For Planet",  K::Chip,  110, 1},
                            {"Remedy Date", K::Text,  130, 0}}},
  };
  return kPlans;
}
// clang-format on

constexpr int kSeldomRead = 5;  // the rank of columns that wait for a large window
constexpr int kNameWidth = 78;
constexpr int kFigureWidth = 34;
constexpr int kFieldWidth = 120;  // of the Lo Shu grid
constexpr int kSignWidth = 58;
constexpr int kLinesOfField = 76;  // four lines of text in a field of the Lo Shu grid

// A table of a name and equal columns; all of them stay.
std::vector<ColumnPlan> EqualColumns(const core::Table& table, CellKind kind, int width) {
  std::vector<ColumnPlan> plan;
  for (const core::Column& column : table.Columns) {
    plan.push_back(
        {column.Caption, plan.empty() ? K::Text : kind, plan.empty() ? kNameWidth : width, 0});
  }
  return plan;
}

}  // namespace

std::vector<ColumnPlan> ColumnsFirstRead(const std::string& name, const core::Table& table) {
  if (const auto found = PlansByName().find(name); found != PlansByName().end()) {
    return found->second;
  }
  if (name == "NadiHouseTimes") {
    return EqualColumns(table, K::Heat, kFigureWidth);
  }
  if (name == "LoShuGrid") {
    std::vector<ColumnPlan> fields = EqualColumns(table, K::Text, kFieldWidth);
    fields.front().Least = kFieldWidth;
    return fields;
  }
  if (name == "AspectGrid") {
    return EqualColumns(table, K::Text, kSignWidth);
  }
  return EqualColumns(table, K::Text, kFigureWidth);
}

int WidthFirstRead(const std::string& name, const core::Table& table) {
  int width = 0;
  for (const ColumnPlan& column : ColumnsFirstRead(name, table)) {
    width += column.Rank < kSeldomRead ? column.Least : 0;
  }
  return width;
}

bool KeepsWidths(const std::string& name) { return name != "LoShuGrid"; }

RowBounds RowsFirstRead(const std::string& name) {
  if (name == "StarTable" || name == "RemedyTable") {
    return {height::kListRow, height::kListRow, false};
  }
  if (name == "LoShuGrid") {
    return {kLinesOfField, QWIDGETSIZE_MAX, true};
  }
  return {height::kGridRow, height::kMostRow, true};
}

QStringList MarksOfPlanet(const QModelIndex& planet) {
  QStringList marks;
  const QString own = planet.data().toString();
  if (own.contains(chart::kRetrogradeMark)) {
    marks << "R";
  }
  if (own.contains(chart::kCombustMark)) {
    marks << "C";
  }
  if (planet.column() > 0) {
    return marks;  // another planet than the one that the row is about
  }
  const QAbstractItemModel& model = *planet.model();
  for (const char* caption : {"R", "C", "DB/EX"}) {
    for (int column = 0; column < model.columnCount(); ++column) {
      const QString mark = model.headerData(column, Qt::Horizontal).toString() == caption
                               ? planet.siblingAtColumn(column).data().toString()
                               : QString();
      if (!mark.isEmpty() && !marks.contains(mark)) {
        marks << mark;
      }
    }
  }
  return marks;
}

}  // namespace orvex::ui
