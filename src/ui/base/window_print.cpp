#include "ui/base/window_print.h"

#include <QAction>
#include <QWidget>
#include <algorithm>

#include "ui/base/keys.h"
#include "ui/base/qt_text.h"
#include "ui/base/shown_page.h"
#include "ui/painting/page_fonts.h"

namespace orvex::ui {

namespace {

constexpr double kBesideOthers = 0.5;  // of a figure that shares its row
constexpr double kFlat = 0.25;         // the height of a strip, a part of its width, at most

// A figure that wants the width of a page turned; a strip does not.
bool HasWideFigure(const std::vector<PageBlock>& blocks) {
  return std::any_of(blocks.begin(), blocks.end(), [](const PageBlock& block) {
    const auto* figures = std::get_if<PageFigures>(&block.Content);
    return figures != nullptr && figures->Figures.front().Width > kBesideOthers &&
           figures->Figures.front().Aspect > kFlat;
  });
}

QString FootOf(const core::Session& session) {
  const QString name = PlainText(Shown(session.State.AstrologerName)).replace('\n', ' ');
  const QString date = Shown(core::LongDateText(session.Time.Today(), false));
  return name.trimmed().isEmpty() ? date : name + "   " + date;
}

}  // namespace

Printout PrintoutOf(const QWidget& widget, const PrintedHead& head, const core::Session& session) {
  // Text that is made a little smaller is better than a page turned.
  constexpr double kWiderAtMost = 1.14;
  std::vector<PageBlock> shown = ShownBlocks(widget);
  Printout printout;
  printout.Landscape = HasWideFigure(shown) || WidestTable(shown) > kWiderAtMost * PortraitRoom();
  PageDocument& document = printout.Document;
  document.Title = PlainText(head.Title);
  document.Author = PlainText(Shown(session.State.AstrologerName)).replace('\n', ' ').trimmed();
  document.Head = document.Title;
  document.Foot = FootOf(session);
  document.Blocks.push_back({PageText{PageRole::Title, document.Title}});
  if (!head.Lead.isEmpty()) {
    document.Blocks.push_back({PageText{PageRole::Lead, PlainText(head.Lead)}});
  }
  if (!head.Section.isEmpty()) {
    document.Blocks.push_back({PageText{PageRole::Section, PlainText(head.Section)}});
  }
  document.Blocks.insert(document.Blocks.end(), std::make_move_iterator(shown.begin()),
                         std::make_move_iterator(shown.end()));
  return printout;
}

QAction* OfferPrint(Workplace& place, QWidget& dialog) {
  auto* print = new QAction(QAction::tr("&Print…"), &dialog);
  print->setObjectName("printPage");
  print->setShortcut(KeysOf(kTables, "printDialog"));
  QObject::connect(print, &QAction::triggered, &dialog, [&place, &dialog] {
    PrintWithPreview(place, dialog,
                     PrintoutOf(dialog, {dialog.windowTitle(), {}, {}}, place.Session));
  });
  dialog.addAction(print);
  return print;
}

}  // namespace orvex::ui
