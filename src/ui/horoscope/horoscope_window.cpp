#include "ui/horoscope/horoscope_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "report/pdf.h"
#include "ui/base/guide.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/horoscope/chart_page.h"
#include "ui/horoscope/divisional_dialog.h"
#include "ui/horoscope/head_pane.h"
#include "ui/horoscope/page_stack.h"
#include "ui/horoscope/planet_sheet_dialog.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

constexpr int kUsualWidth = 160 * kGrid;
constexpr int kUsualHeight = 90 * kGrid;
constexpr double kStatusText = 0.9;  // the positions of all planets fit a small screen

struct StyleName {
  char Style;
  const char* Name;
};

constexpr std::array<StyleName, 3> kStyles = {{
    {'N', QT_TRANSLATE_NOOP("HoroscopeWindow", "North Indian")},
    {'E', QT_TRANSLATE_NOOP("HoroscopeWindow", "East Indian")},
    {'S', QT_TRANSLATE_NOOP("HoroscopeWindow", "South Indian")},
}};

struct DetailName {
  report::ReportDetail Detail;
  const char* Name;
};

constexpr std::array<DetailName, 3> kDetails = {{
    {report::ReportDetail::DB, QT_TRANSLATE_NOOP("HoroscopeWindow", "Dasha and Bhukti")},
    {report::ReportDetail::DBA, QT_TRANSLATE_NOOP("HoroscopeWindow", "Dasha, Bhukti and Antara")},
    {report::ReportDetail::DBAS,
     QT_TRANSLATE_NOOP("HoroscopeWindow", "Dasha, Bhukti, Antara and Sookshma")},
}};

std::size_t PlaceOfStyle(char style) {
  const auto found = std::find_if(kStyles.begin(), kStyles.end(),
                                  [&](const StyleName& name) { return name.Style == style; });
  return found == kStyles.end() ? 0 : static_cast<std::size_t>(found - kStyles.begin());
}

}  // namespace

HoroscopeWindow::HoroscopeWindow(Workplace& place, horoscope::OpenedHoroscope opened)
    : document_(place, std::move(opened)),
      tools_(new QToolBar),
      head_(new HeadPane(document_)),
      pages_(new PageStack(document_)),
      status_(MakeCaptionLabel("statusText")) {
  setObjectName("horoscopeWindow");
  setAttribute(Qt::WA_DeleteOnClose);
  MakeActions();
  LayOut();
  Connect();
  ShowModel();
  place.Session.State.OpenHoroscopes.push_back(ClientId());
}

HoroscopeWindow::~HoroscopeWindow() { Unregister(); }

void HoroscopeWindow::Unregister() {
  std::vector<std::int32_t>& open = document_.Place().Session.State.OpenHoroscopes;
  open.erase(std::remove(open.begin(), open.end(), ClientId()), open.end());
}

void HoroscopeWindow::closeEvent(QCloseEvent* event) {
  document_.Place().Layout.KeepWindow(*this);
  // The window itself goes a moment later; the client may be edited from now on.
  Unregister();
  QMainWindow::closeEvent(event);
}

void HoroscopeWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // Cells keep the colours of the palette in which they were filled.
  if (event->type() == QEvent::PaletteChange && isVisible()) {
    pages_->ShowModel();
  }
}

void HoroscopeWindow::LayOut() {
  tools_->setObjectName("tools");
  tools_->setMovable(false);
  addToolBar(tools_);
  setContextMenuPolicy(Qt::NoContextMenu);
  auto* middle = new QWidget;
  auto* layout = new QVBoxLayout(middle);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(head_);
  layout->addWidget(pages_, 1);
  setCentralWidget(middle);
  QFont font = status_->font();
  font.setPointSizeF(font.pointSizeF() * kStatusText);
  status_->setFont(font);
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(status_, 1);
  if (!document_.Place().Layout.RestoreWindow(*this)) {
    resize(kUsualWidth, kUsualHeight);
  }
}

void HoroscopeWindow::Connect() {
  connect(&document_, &HoroscopeDocument::Changed, this, &HoroscopeWindow::ShowModel);
  connect(pages_, &PageStack::PlanetActivated, this, &HoroscopeWindow::ShowPlanetSheet);
}

QAction* HoroscopeWindow::AddAction(const QString& text, const QString& name,
                                    const QKeySequence& keys) {
  QAction* action = tools_->addAction(text);
  action->setObjectName(name);
  action->setShortcut(keys);
  action->setToolTip(tr("%1 (%2)").arg(QString(text).remove('&').remove(u'…'),
                                       keys.toString(QKeySequence::NativeText)));
  return action;
}

void HoroscopeWindow::AddMenu(const QString& text, QMenu* menu, const QKeySequence& keys) {
  QAction* action = AddAction(text, menu->objectName() + "Button", keys);
  action->setMenu(menu);
  auto* button = static_cast<QToolButton*>(tools_->widgetForAction(action));
  button->setPopupMode(QToolButton::InstantPopup);
  connect(action, &QAction::triggered, button, &QToolButton::showMenu);
}

void HoroscopeWindow::MakeActions() {
  style_ = AddAction(tr("&Style"), "nextStyle", Qt::CTRL | Qt::Key_T);
  style_->setMenu(MakeStyleMenu());
  static_cast<QToolButton*>(tools_->widgetForAction(style_))
      ->setPopupMode(QToolButton::MenuButtonPopup);
  connect(style_, &QAction::triggered, this, &HoroscopeWindow::NextStyle);
  AddMenu(tr("&Rotate"), MakeRotationMenu(), Qt::CTRL | Qt::Key_R);
  connect(AddAction(tr("&Divisional charts"), "divisions", Qt::CTRL | Qt::Key_D),
          &QAction::triggered, this, &HoroscopeWindow::ShowDivisions);
  rectify_ = AddAction(tr("Rectify birth &time"), "rectify", Qt::CTRL | Qt::Key_B);
  rectify_->setVisible(!document_.Model().Horary);
  connect(rectify_, &QAction::triggered, this, [this] { Turn("recalculation"); });
  AddMenu(tr("E&xport"), MakeExportMenu(), Qt::CTRL | Qt::Key_E);
  QAction* close = AddAction(tr("&Close"), "close", Qt::CTRL | Qt::Key_W);
  connect(close, &QAction::triggered, this, &QWidget::close);
  auto* help = new QAction(tr("Help"), this);
  help->setShortcut(QKeySequence::HelpContents);
  connect(help, &QAction::triggered, this, [this] { OpenGuide(document_.Place()); });
  addAction(help);
}

QMenu* HoroscopeWindow::MakeStyleMenu() {
  auto* menu = new QMenu(this);
  menu->setObjectName("styleMenu");
  for (const StyleName& style : kStyles) {
    menu->addAction(tr(style.Name), this, [this, style] { document_.SetStyle(style.Style); });
  }
  return menu;
}

QMenu* HoroscopeWindow::MakeRotationMenu() {
  auto* menu = new QMenu(this);
  menu->setObjectName("rotationMenu");
  for (int house = 1; house <= static_cast<int>(chart::kHouses); ++house) {
    menu->addAction(WholeText(house), this, [this, house] { document_.Rotate(house); });
  }
  menu->addSeparator();
  QAction* reset =
      menu->addAction(tr("Reset to First House"), this, [this] { document_.Rotate(1); });
  reset->setShortcut(Qt::CTRL | Qt::Key_0);
  addAction(reset);
  return menu;
}

QMenu* HoroscopeWindow::MakeExportMenu() {
  auto* menu = new QMenu(this);
  menu->setObjectName("exportMenu");
  for (const DetailName& detail : kDetails) {
    menu->addAction(tr("Report: %1").arg(tr(detail.Name)), this,
                    [this, detail] { Export(detail.Detail, false); });
  }
  menu->addSeparator();
  for (const DetailName& detail : kDetails) {
    menu->addAction(tr("PDF: %1").arg(tr(detail.Name)), this,
                    [this, detail] { Export(detail.Detail, true); });
  }
  return menu;
}

void HoroscopeWindow::NextStyle() {
  const std::size_t next = (PlaceOfStyle(document_.Style()) + 1) % kStyles.size();
  document_.SetStyle(kStyles.at(next).Style);
}

void HoroscopeWindow::ShowModel() {
  const chart::HoroscopeCaptions& captions = document_.Model().Captions;
  setWindowTitle(Shown(captions.Title));
  style_->setText(tr("&Style: %1").arg(tr(kStyles.at(PlaceOfStyle(document_.Style())).Name)));
  head_->ShowModel();
  pages_->ShowModel();
  status_->setText(Shown(captions.StatusBar));
}

void HoroscopeWindow::Turn(const QString& page) { pages_->Turn(page); }

void HoroscopeWindow::ShowPlanetSheet(std::size_t row) {
  const core::DateTime today = document_.Place().Session.Time.Today();
  auto* sheet =
      new PlanetSheetDialog(transit::ShowPlanetDetails(document_.Model(), row, today), this);
  sheet->show();
}

void HoroscopeWindow::ShowDivisions() {
  DivisionalDialog divisions(document_.Opened(), document_.Style(), this);
  divisions.exec();
}

void HoroscopeWindow::Export(report::ReportDetail detail, bool asPdf) {
  pages_->FirstPage().ShowRulingPlanetsOfBirth();
  status_->setText("Exporting Horoscope...Please Wait");
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  const std::filesystem::path file = WriteReport(detail, asPdf);
  status_->setText(Shown(document_.Model().Captions.StatusBar));
  if (!file.empty() && !document_.Place().Files.OpenWithDesktop(file)) {
    Inform(document_.Place().Session.Shown,
           "The report is written to " + file.string() + ", but no program opens it here.");
  }
}

std::filesystem::path HoroscopeWindow::WriteReport(report::ReportDetail detail, bool asPdf) {
  try {
    const std::filesystem::path file = document_.WriteReport(detail);
    return asPdf && !file.empty() ? report::WritePdf(file) : file;
  } catch (const std::exception& error) {
    Complain(document_.Place().Session.Shown, error.what());
    return {};
  }
}

HoroscopeWindow* OpenHoroscope(Workplace& place, std::int32_t clientId) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* open = qobject_cast<HoroscopeWindow*>(widget);
    if (open != nullptr && open->isVisible() && open->ClientId() == clientId) {
      open->raise();
      open->activateWindow();
      return open;
    }
  }
  std::optional<horoscope::OpenedHoroscope> opened =
      horoscope::CreateHoroscope(place.Session, clientId);
  if (!opened) {
    return nullptr;
  }
  auto* window = new HoroscopeWindow(place, std::move(*opened));
  window->show();
  return window;
}

}  // namespace orvex::ui
