#include "ui/painting/sheet_document.h"

#include <algorithm>

#include "ui/painting/chart_painter.h"
#include "ui/painting/pdf_file.h"
#include "ui/painting/report_document.h"

namespace orvex::ui {

namespace {

PageBlock Caption(const char* text) { return {PageText{PageRole::Part, text}}; }

PageBlock TableBlock(const core::Table& table, const char* whenEmpty = "") {
  PageTable shown = PageTableOf(table);
  shown.WhenEmpty = whenEmpty;
  return {shown};
}

PageBlock FactsBlock(const report::ReportFacts& facts, int columns) {
  PageFacts shown;
  shown.Columns = columns;
  for (const report::ReportFact& fact : facts) {
    shown.Facts.push_back({DocumentText(fact.Caption), DocumentText(fact.Text)});
  }
  return {shown};
}

PageBlock FigureBlock(const report::ChartPicture& figure) {
  return {PageFigures{{{"", 1, 1, [figure](QPainter& painter, const QRectF& box) {
                          PaintChart(painter, box, figure, PrintColors());
                        }}}}};
}

std::size_t RowsOf(const report::ReportPart& part) {
  const auto* table = std::get_if<report::ReportTable>(&part.Body);
  return table == nullptr ? 0 : table->Table.Rows.size();
}

// The parts of a matter beside its longest one, so that they need no more height than that.
std::vector<PageBlock> MatterBlocks(const report::ReportSection& matter) {
  const auto longest = std::max_element(
      matter.Parts.begin(), matter.Parts.end(),
      [](const auto& one, const auto& other) { return RowsOf(one) < RowsOf(other); });
  PageSideBySide sides{{{}, {}}, {0.5, 0.5}};
  for (auto part = matter.Parts.begin(); part != matter.Parts.end(); ++part) {
    AddPart(*part, sides.Columns.at(part == longest ? 1 : 0));
  }
  return {{PageText{PageRole::Section, OneLine(matter.Caption)}}, {std::move(sides)}};
}

// Without its captions.
PageBlock RulersBlock(const core::Table& rulers) {
  PageTable shown = PageTableOf(rulers);
  shown.Captions.clear();
  return {shown};
}

// The figure beside the facts, the running periods and the ruling planets.
PageBlock FigureAndFacts(const report::KpSheet& sheet) {
  return {PageSideBySide{{{FigureBlock(sheet.Figure)},
                          {FactsBlock(sheet.Facts, 2), Caption("Running periods"),
                           TableBlock(sheet.Periods, report::kNoPeriod), Caption("Ruling planets"),
                           RulersBlock(sheet.RulingPlanets)}},
                         {0.54, 0.46}}};
}

// The same in less height, where a matter needs room below.
PageBlock SmallFigureAndFacts(const report::KpSheet& sheet) {
  PageSideBySide tables{{{Caption("Running periods"), TableBlock(sheet.Periods, report::kNoPeriod)},
                         {Caption("Ruling planets"), RulersBlock(sheet.RulingPlanets)}},
                        {0.58, 0.42}};
  return {PageSideBySide{{{FigureBlock(sheet.Figure)}, {FactsBlock(sheet.Facts, 3), {tables}}},
                         {0.38, 0.62}}};
}

}  // namespace

PageDocument SheetDocument(const report::KpSheet& sheet) {
  PageDocument document;
  document.Title = "Sheet of " + OneLine(sheet.Name);
  document.Author = OneLine(sheet.Astrologer);
  document.Foot = OneLine(sheet.Date);
  document.Blocks = {{PageLetterhead{OneLine(sheet.Astrologer), OneLine(sheet.Organization),
                                     DocumentText(sheet.Contact)}},
                     {PageText{PageRole::Title, OneLine(sheet.Name)}}};
  if (!sheet.Question.empty()) {
    document.Blocks.push_back({PageText{PageRole::Lead, OneLine(sheet.Question)}});
  }
  document.Blocks.push_back(sheet.Matter ? SmallFigureAndFacts(sheet) : FigureAndFacts(sheet));
  document.Blocks.push_back(Caption("Planets"));
  document.Blocks.push_back(TableBlock(sheet.Planets));
  document.Blocks.push_back(Caption("Cusps and significators"));
  document.Blocks.push_back(TableBlock(sheet.Cusps, sheet.Message.c_str()));
  if (sheet.Matter) {
    for (PageBlock& block : MatterBlocks(*sheet.Matter)) {
      document.Blocks.push_back(std::move(block));
    }
  }
  return document;
}

void WriteSheetPdf(const report::KpSheet& sheet, const QPageSize& paper,
                   const std::filesystem::path& file) {
  PageSetup setup;
  setup.Paper = paper;
  WritePdf(ComposeOnOnePage(SheetDocument(sheet), setup), file);
}

}  // namespace orvex::ui
