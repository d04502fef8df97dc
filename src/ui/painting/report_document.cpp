#include "ui/painting/report_document.h"

#include "core/cell_colors.h"
#include "ui/painting/chart_painter.h"
#include "ui/painting/page_style.h"
#include "ui/painting/pdf_file.h"

namespace orvex::ui {

namespace {

using report::ReportContent;

void AddTo(QStringList& texts, const QString& text) {
  if (!text.isEmpty()) {
    texts.append(text);
  }
}

QColor InkOf(const core::Cell& cell) {
  if (cell.Foreground == report::kGoodInk || cell.Background == core::kGoodColor) {
    return ink::kGood;
  }
  if (cell.Foreground == report::kHardInk || cell.Background == core::kHardColor) {
    return ink::kHard;
  }
  return {};
}

std::vector<PageBlock> BlocksOf(const report::ReportFacts& facts) {
  PageFacts shown;
  for (const report::ReportFact& fact : facts) {
    shown.Facts.push_back({DocumentText(fact.Caption), DocumentText(fact.Text)});
  }
  return {{shown}};
}

std::vector<PageBlock> BlocksOf(const report::ReportCharts& charts) {
  constexpr double kHalf = 0.5;
  PageFigures figures;
  for (const report::ChartPicture& picture : charts) {
    figures.Figures.push_back(
        {DocumentText(picture.Title), kHalf, 1, [picture](QPainter& painter, const QRectF& box) {
           PaintChart(painter, box, picture, PrintColors());
         }});
  }
  return {{figures}};
}

std::vector<PageBlock> BlocksOf(const report::ReportTable& table) {
  PageTable shown = PageTableOf(table.Table);
  shown.WhenEmpty = DocumentText(table.WhenEmpty);
  if (!table.Captions) {
    shown.Captions.clear();
  }
  return {{shown}};
}

void PaintLoShu(QPainter& painter, const QRectF& box, const report::ReportLoShu& cells) {
  constexpr int kSide = 3;
  constexpr double kLine = 4;
  const double width = box.width() / kSide;
  const double height = box.height() / kSide;
  painter.setFont(FontOf({85, false, false, false}));
  painter.setBrush(Qt::NoBrush);
  for (std::size_t place = 0; place < cells.size(); ++place) {
    const QRectF cell(box.left() + width * static_cast<double>(place % kSide),
                      box.top() + height * static_cast<double>(place / kSide), width, height);
    painter.setPen(QPen(QColor(PrintColors().Line), kLine));
    painter.drawRect(cell);
    painter.setPen(QColor(ink::kText));
    painter.drawText(cell, Qt::AlignCenter | Qt::TextDontClip,
                     DocumentText(cells.at(place)).trimmed());
  }
}

std::vector<PageBlock> BlocksOf(const report::ReportLoShu& cells) {
  constexpr double kWidth = 0.4;
  constexpr double kAspect = 0.78;  // four lines a cell
  return {{PageFigures{{{"", kWidth, kAspect, [cells](QPainter& painter, const QRectF& box) {
                           PaintLoShu(painter, box, cells);
                         }}}}}};
}

// The planets of upper levels are muted where they are those of the row before.
PageTable PeriodTable(const core::Table& periods) {
  PageTable table = PageTableOf(periods);
  table.Dense = true;
  const std::size_t upper = periods.Columns.size() - 2;
  for (std::size_t row = 1; row < table.Rows.size(); ++row) {
    for (std::size_t level = 0;
         level < upper && table.Rows[row][level].Text == table.Rows[row - 1][level].Text; ++level) {
      table.Rows[row][level].Ink = QColor(ink::kMuted);
    }
  }
  return table;
}

std::vector<PageBlock> BlocksOf(const report::ReportPeriods& periods) {
  PageStrands strands;
  for (const core::Table& table : periods) {
    strands.Tables.push_back(PeriodTable(table));
  }
  return {{strands}};
}

std::vector<PageBlock> BlocksOf(const std::string& text) {
  return {{PageText{PageRole::Body, DocumentText(text)}}};
}

QString FootOf(const ReportContent& content) {
  QStringList texts;
  AddTo(texts, OneLine(content.Astrologer));
  AddTo(texts, OneLine(content.Contact));
  AddTo(texts, OneLine(content.Date));
  return texts.join("   ");
}

}  // namespace

PageTable PageTableOf(const core::Table& table) {
  PageTable shown;
  const std::vector<std::size_t> columns = report::ShownColumns(table);
  for (const std::size_t column : columns) {
    shown.Captions.push_back(DocumentText(table.Columns[column].Caption));
  }
  for (const core::Row& row : table.Rows) {
    std::vector<PageCell> cells;
    cells.reserve(columns.size());
    for (const std::size_t column : columns) {
      const core::Cell& cell = row.Cells.at(column);
      cells.push_back({DocumentText(cell.Text), InkOf(cell), {}, cell.Bold});
    }
    shown.Rows.push_back(std::move(cells));
  }
  return shown;
}

void AddPart(const report::ReportPart& part, std::vector<PageBlock>& blocks) {
  if (!part.Caption.empty()) {
    blocks.push_back({PageText{PageRole::Part, OneLine(part.Caption)}});
  }
  for (PageBlock& block : std::visit([](const auto& body) { return BlocksOf(body); }, part.Body)) {
    blocks.push_back(std::move(block));
  }
}

void AddSection(const report::ReportSection& section, std::vector<PageBlock>& blocks) {
  blocks.push_back({PageText{PageRole::Section, OneLine(section.Caption)}});
  for (const report::ReportPart& part : section.Parts) {
    AddPart(part, blocks);
  }
}

PageDocument ReportDocument(const ReportContent& content) {
  PageDocument document;
  document.Title = "Horoscope of " + OneLine(content.Name);
  document.Author = OneLine(content.Astrologer);
  document.Head = OneLine(content.Name);
  document.Foot = FootOf(content);
  document.Blocks = {
      {PageLetterhead{OneLine(content.Astrologer), DocumentText(content.Organization),
                      DocumentText(content.Contact)}},
      {PageText{PageRole::Title, OneLine(content.Name)}},
      {PageText{PageRole::Lead, OneLine(content.Birth)}}};
  if (!content.Question.empty()) {
    document.Blocks.push_back({PageText{PageRole::Lead, DocumentText(content.Question)}});
  }
  document.Blocks.push_back({PageContents{}});
  for (const report::ReportSection& section : content.Sections) {
    AddSection(section, document.Blocks);
  }
  return document;
}

bool WriteReportPdf(const ReportContent& content, const std::filesystem::path& file,
                    const PageProgress& progress) {
  return WritePdf(Compose(ReportDocument(content), {}), file, progress);
}

}  // namespace orvex::ui
