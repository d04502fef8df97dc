#include "ui/base/print_page.h"

#include <langinfo.h>
#include <locale.h>

#include <QPaintEngine>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <algorithm>

#include "core/home.h"
#include "core/own_files.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/painting/page_painter.h"
#include "ui/painting/page_table.h"

namespace orvex::ui {

namespace {

// Millimetres that the C library gives as the value of a pointer.
int Millimetres(nl_item item, locale_t locale) {
  return static_cast<int>(reinterpret_cast<std::intptr_t>(::nl_langinfo_l(item, locale)));
}

ComposedDocument ComposedFor(const QPrinter& printer, const Printout& printout) {
  const QPageLayout layout = printer.pageLayout();
  PageSetup setup;
  setup.Paper = layout.pageSize();
  setup.Landscape = layout.orientation() == QPageLayout::Landscape;
  return printout.OnOnePage ? ComposeOnOnePage(printout.Document, setup)
                            : Compose(printout.Document, setup);
}

// The preview records what it is shown; everything else is paper or a file.
bool IsPreview(const QPrinter& printer) {
  return printer.paintEngine()->type() == QPaintEngine::Picture;
}

// A file that stands there, empty, keeps its rights when the printer fills it.
void PrepareFile(Workplace& place, const QPrinter& printer) {
  if (!printer.outputFileName().isEmpty()) {
    const std::filesystem::path file = Typed(printer.outputFileName());
    core::CheckFileToWrite(place.Session, file);
    core::WriteFileSafely(file, "");
  }
}

// The pages that the user asked for, all where nothing was said.
bool PaintAsked(QPrinter& printer, const ComposedDocument& document) {
  const auto all = static_cast<int>(document.Pages.size());
  const bool some = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
  const int first = some ? printer.fromPage() : 1;
  const int last = some ? std::min(printer.toPage(), all) : all;
  QPainter painter;
  if (!painter.begin(&printer)) {
    return false;
  }
  const double scale = painter.viewport().width() / document.Setup.Size().width();
  painter.scale(scale, scale);
  for (int page = first; page <= last; ++page) {
    if (page > first && !printer.newPage()) {
      return false;
    }
    PaintPage(painter, document, static_cast<std::size_t>(page - 1));
  }
  return painter.end();
}

void PaintOn(Workplace& place, QPrinter& printer, const Printout& printout) {
  try {
    if (!IsPreview(printer)) {
      PrepareFile(place, printer);
    }
    if (!PaintAsked(printer, ComposedFor(printer, printout))) {
      Complain(place.Session.Shown, "The page could not be printed.");
    }
  } catch (const std::exception& error) {
    Complain(place.Session.Shown, error.what());
  }
}

}  // namespace

QPageSize PaperOfLocale() {
  const locale_t locale = ::newlocale(LC_PAPER_MASK, "", nullptr);
  if (locale == nullptr) {
    return QPageSize(QPageSize::A4);
  }
  const QSizeF size(Millimetres(_NL_PAPER_WIDTH, locale), Millimetres(_NL_PAPER_HEIGHT, locale));
  ::freelocale(locale);
  const QPageSize paper(QPageSize::id(size, QPageSize::Millimeter, QPageSize::FuzzyMatch));
  return paper.isValid() ? paper : QPageSize(QPageSize::A4);
}

double PortraitRoom() {
  PageSetup setup;
  setup.Paper = PaperOfLocale();
  return setup.Body().width();
}

double WidestTable(const std::vector<PageBlock>& blocks) {
  PageFonts fonts;
  double widest = 0;
  for (const PageBlock& block : blocks) {
    if (const auto* table = std::get_if<PageTable>(&block.Content)) {
      widest = std::max(widest, NaturalWidth(fonts, *table, {}));
    }
  }
  return widest;
}

void PrintWithPreview(Workplace& place, QWidget& parent, const Printout& printout) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(printout.Document.Title);
  printer.setCreator("Orvex+");
  printer.setFullPage(true);
  printer.setPageLayout(QPageLayout(
      PaperOfLocale(), printout.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
      QMarginsF()));
  // The pages have margins of their own.
  printer.setFullPage(true);
  QPrintPreviewDialog dialog(&printer, &parent);
  dialog.setObjectName("printPreview");
  dialog.setWindowTitle(QPrintPreviewDialog::tr("Print: %1").arg(printout.Document.Title));
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                   [&](QPrinter* on) { PaintOn(place, *on, printout); });
  dialog.exec();
}

}  // namespace orvex::ui
