#include "ui/painting/sheet_document.h"

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

PageBlock FactsBlock(const report::ReportFacts& facts) {
  PageFacts shown;
  shown.Columns = 2;
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

// Without its captions.
PageBlock RulersBlock(const core::Table& rulers) {
  PageTable shown = PageTableOf(rulers);
  shown.Captions.clear();
  return {shown};
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
  document.Blocks.push_back(
      {PageSideBySide{{{FigureBlock(sheet.Figure)},
                       {FactsBlock(sheet.Facts), Caption("Running periods"),
                        TableBlock(sheet.Periods, report::kNoPeriod), Caption("Ruling planets"),
                        RulersBlock(sheet.RulingPlanets)}},
                      {0.54, 0.46}}});
  document.Blocks.push_back(Caption("Planets"));
  document.Blocks.push_back(TableBlock(sheet.Planets));
  document.Blocks.push_back(Caption("Cusps and significators"));
  document.Blocks.push_back(TableBlock(sheet.Cusps, sheet.Message.c_str()));
  if (sheet.Matter) {
    AddSection(*sheet.Matter, document.Blocks);
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
