#include "ui/horoscope/horoscope_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QMenu>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <chrono>

#include "chart/relations.h"
#include "ui/base/elided_label.h"
#include "ui/base/guide.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/client_dialog.h"
#include "ui/horoscope/birth_panel.h"
#include "ui/horoscope/divisional_dialog.h"
#include "ui/horoscope/export_runner.h"
#include "ui/horoscope/head_pane.h"
#include "ui/horoscope/horoscope_print.h"
#include "ui/horoscope/matter_box.h"
#include "ui/horoscope/neighbour_client.h"
#include "ui/horoscope/page_stack.h"
#include "ui/horoscope/planet_sheet_dialog.h"

namespace orvex::ui {

namespace {

constexpr int kUsualWidth = 160 * kGrid;
constexpr int kUsualHeight = 90 * kGrid;
constexpr int kRoomForList = 1100;  // below, the pages are a box in the head
constexpr int kBirthWidth = 240;

struct StyleName {
  char Style;
  const char* Name;
};

constexpr std::array<StyleName, 3> kStyles = {{
    {'N', QT_TRANSLATE_NOOP("HoroscopeWindow", "North Indian")},
    {'E', QT_TRANSLATE_NOOP("HoroscopeWindow", "East Indian")},
    {'S', QT_TRANSLATE_NOOP("HoroscopeWindow", "South Indian")},
}};

std::size_t PlaceOfStyle(char style) {
  const auto found = std::find_if(kStyles.begin(), kStyles.end(),
                                  [&](const StyleName& name) { return name.Style == style; });
  return found == kStyles.end() ? 0 : static_cast<std::size_t>(found - kStyles.begin());
}

}  // namespace

HoroscopeWindow::HoroscopeWindow(Workplace& place, horoscope::OpenedHoroscope opened)
    : document_(place, std::move(opened)),
      head_(new HeadPane(document_)),
      pages_(new PageStack(document_)),
      birth_(new BirthPanel(document_)),
      status_(new ElidedLabel("statusText")),
      told_(new QTimer(this)),
      exports_(new ExportRunner(place, this)) {
  setObjectName("horoscopeWindow");
  setAttribute(Qt::WA_DeleteOnClose);
  MakeHeadActions();
  MakeMoreActions();
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

void HoroscopeWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  const bool narrow = width() < kRoomForList * Theme::TextSize() / 100;
  pages_->SetNarrow(narrow);
  head_->SetNarrow(narrow);
}

void HoroscopeWindow::LayOut() {
  setContextMenuPolicy(Qt::NoContextMenu);
  head_->AddBefore(pages_->Box());
  birth_->setFixedWidth(kBirthWidth * Theme::TextSize() / 100);
  birth_->hide();
  auto* body = new QHBoxLayout;
  body->setSpacing(space::kS);
  body->addWidget(pages_, 1);
  body->addWidget(birth_);
  auto* middle = new QWidget;
  middle->setMinimumSize(1, 1);
  auto* layout = new QVBoxLayout(middle);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(head_);
  layout->addLayout(body, 1);
  setCentralWidget(middle);
  setMinimumSize(window::kLeastWidth, window::kLeastHeight);
  status_->setFont(Theme::Text(type::kHead));
  statusBar()->setSizeGripEnabled(false);
  statusBar()->addWidget(status_, 1);
  statusBar()->addPermanentWidget(exports_->Line());
  if (!document_.Place().Layout.RestoreWindow(*this)) {
    resize(kUsualWidth, kUsualHeight);
  }
  if (const QScreen* on = screen()) {
    resize(size().boundedTo(on->availableSize()));
  }
}

void HoroscopeWindow::Connect() {
  connect(&document_, &HoroscopeDocument::Changed, this, &HoroscopeWindow::ShowModel);
  connect(&document_, &HoroscopeDocument::BirthTimeTaken, this,
          [this](core::DateTime birth, const QString& comment) {
            EditClientWith(
                [birth, comment](ClientDialog& dialog) { dialog.ProposeBirth(birth, comment); });
          });
  connect(pages_, &PageStack::PlanetActivated, this, &HoroscopeWindow::ShowPlanetSheet);
  connect(pages_, &PageStack::Told, this, &HoroscopeWindow::Tell);
  told_->setSingleShot(true);
  connect(told_, &QTimer::timeout, this,
          [this] { status_->setText(Shown(document_.Model().Captions.StatusBar)); });
  connect(head_, &HeadPane::ResetWanted, this, [this] { document_.Rotate(1); });
  auto* reports = findChild<QMenu*>("exportMenu");
  connect(exports_, &ExportRunner::Began, this, [this, reports] {
    status_->setText("Exporting Horoscope...Please Wait");
    reports->setEnabled(false);
  });
  connect(exports_, &ExportRunner::Ended, this, [this, reports] {
    status_->setText(Shown(document_.Model().Captions.StatusBar));
    reports->setEnabled(true);
  });
}

QAction* HoroscopeWindow::AddAction(const QString& text, const char* name, const char* icon) {
  auto* action = new QAction(text, this);
  action->setObjectName(name);
  action->setShortcut(KeysOf("Horoscope", name));
  action->setToolTip(WithKeys(text, action->shortcut()));
  if (icon != nullptr) {
    action->setIcon(Icon(icon));
  }
  addAction(action);
  return action;
}

// The buttons of the head.
void HoroscopeWindow::MakeHeadActions() {
  QAction* rotate = AddAction(tr("&Rotate"), "rotationMenu", "rotate");
  rotate->setMenu(rotationMenu_ = MakeRotationMenu());
  QAction* divisions = AddAction(tr("&Divisional charts"), "divisions", "divisions");
  connect(divisions, &QAction::triggered, this, &HoroscopeWindow::ShowDivisions);
  auto* print = new QAction(Icon("print"), tr("&Print"), this);
  print->setObjectName("print");
  print->setToolTip(tr("Print"));
  print->setMenu(MakePrintMenu());
  QAction* exporting = AddAction(tr("E&xport"), "exportMenu", "export");
  exporting->setMenu(MakeExportMenu());
  auto* more = new QAction(Icon("menu"), QString(), this);
  more->setObjectName("more");
  more->setToolTip(tr("More"));
  more->setMenu(more_ = new QMenu(this));
  more_->setObjectName("moreMenu");
  for (QAction* action : {rotate, divisions, print, exporting, more}) {
    head_->AddButton(action)->setAccessibleName(WithKeys(action->toolTip(), {}));
  }
}

// What is done seldom, in the last menu.
void HoroscopeWindow::MakeMoreActions() {
  const auto add = [this](const QString& text, const char* name, auto deed) {
    QAction* action = AddAction(text, name);
    connect(action, &QAction::triggered, this, deed);
    more_->addAction(action);
    return action;
  };
  style_ = add(tr("Next &style"), "nextStyle", &HoroscopeWindow::NextStyle);
  more_->addMenu(MakeStyleMenu());
  birthPanel_ = add(tr("&Birth"), "birthPanel", [this] { ShowBirthPanel(birth_->isHidden()); });
  QAction* rectify = add(tr("Rectify birth &time"), "rectify", [this] { Turn("birthTime"); });
  rectify->setVisible(!document_.Model().Horary);
  rectify->setEnabled(!document_.Model().Horary);
  add(tr("Judge a &matter"), "judgeMatter", &HoroscopeWindow::JudgeMatter);
  more_->addSeparator();
  add(tr("&Edit client"), "editClient", &HoroscopeWindow::EditClient);
  add(tr("&Previous client"), "previousClient", [this] { GoToClient(-1); });
  add(tr("&Next client"), "nextClient", [this] { GoToClient(1); });
  more_->addMenu(MakeWindowsMenu());
  more_->addSeparator();
  add(tr("&Guide"), "guide", [this] { OpenGuide(document_.Place()); });
  add(tr("&Close"), "close", [this] { close(); });
}

QMenu* HoroscopeWindow::MakeWindowsMenu() {
  auto* menu = new QMenu(tr("Open &windows"), this);
  menu->setObjectName("windowsMenu");
  connect(menu, &QMenu::aboutToShow, this, [menu] {
    menu->clear();
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* open = qobject_cast<HoroscopeWindow*>(widget); open && open->isVisible()) {
        menu->addAction(open->windowTitle().replace('&', "&&"), open, [open] {
          open->raise();
          open->activateWindow();
        });
      }
    }
  });
  return menu;
}

QMenu* HoroscopeWindow::MakeStyleMenu() {
  auto* menu = new QMenu(tr("Style of &charts"), this);
  menu->setObjectName("styleMenu");
  for (const StyleName& style : kStyles) {
    menu->addAction(tr(style.Name), this, [this, style] { document_.SetStyle(style.Style); });
  }
  return menu;
}

QMenu* HoroscopeWindow::MakeRotationMenu() {
  auto* menu = new QMenu(this);
  menu->setObjectName("rotationMenu");
  auto* houses = new QActionGroup(this);
  for (int house = 1; house <= static_cast<int>(chart::kHouses); ++house) {
    // The digit works as a key; who is read from the house stands behind.
    QAction* action =
        menu->addAction((house < 10 ? "&" : "") + Shown(chart::HouseWithRelation(house)), this,
                        [this, house] { document_.Rotate(house); });
    action->setCheckable(true);
    action->setData(house);
    houses->addAction(action);
  }
  menu->addSeparator();
  QAction* reset = AddAction(tr("Reset to First House"), "resetRotation");
  connect(reset, &QAction::triggered, this, [this] { document_.Rotate(1); });
  menu->addAction(reset);
  return menu;
}

QMenu* HoroscopeWindow::MakePrintMenu() {
  auto* menu = new QMenu(this);
  menu->setObjectName("printMenu");
  const auto add = [this, menu](const QString& text, const char* name, auto deed) {
    QAction* action = AddAction(text, name);
    connect(action, &QAction::triggered, this, deed);
    menu->addAction(action);
  };
  add(tr("&Page in sight…"), "printPage", &HoroscopeWindow::PrintPage);
  add(tr("&KP sheet…"), "printSheet", &HoroscopeWindow::PrintSheet);
  return menu;
}

QMenu* HoroscopeWindow::MakeExportMenu() {
  auto* menu = new QMenu(this);
  menu->setObjectName("exportMenu");
  for (const DetailName& detail : kReportDetails) {
    menu->addAction(tr("Report: %1").arg(NameOf(detail)), this,
                    [this, detail] { Export(detail.Detail, false); });
  }
  menu->addSeparator();
  for (const DetailName& detail : kReportDetails) {
    menu->addAction(tr("PDF: %1").arg(NameOf(detail)), this,
                    [this, detail] { Export(detail.Detail, true); });
  }
  menu->addSeparator();
  menu->addAction(tr("PDF: KP sheet…"), this,
                  [this] { exports_->WriteSheet(*this, SheetOfWindow(document_)); });
  return menu;
}

void HoroscopeWindow::NextStyle() {
  const std::size_t next = (PlaceOfStyle(document_.Style()) + 1) % kStyles.size();
  document_.SetStyle(kStyles.at(next).Style);
}

void HoroscopeWindow::ShowModel() {
  const chart::HoroscopeCaptions& captions = document_.Model().Captions;
  setWindowTitle(Shown(captions.Title));
  for (QAction* house : rotationMenu_->actions()) {
    house->setChecked(house->data().toInt() == document_.Model().RotatedTo);
  }
  head_->ShowModel();
  birth_->ShowModel();
  pages_->ShowModel();
  told_->stop();
  status_->setText(Shown(captions.StatusBar));
}

void HoroscopeWindow::ShowBirthPanel(bool shown) { birth_->setVisible(shown); }

void HoroscopeWindow::Turn(const QString& page) { pages_->Turn(page); }

void HoroscopeWindow::JudgeMatter() {
  Turn("matter");
  if (auto* matter = pages_->findChild<MatterBox*>()) {
    matter->setFocus(Qt::ShortcutFocusReason);
  }
}

// A done thing stands in the status line for a while.
void HoroscopeWindow::Tell(const QString& words) {
  constexpr std::chrono::seconds kShown{8};
  status_->setText(words);
  told_->start(kShown);
}

void HoroscopeWindow::ShowPlanetSheet(std::size_t row) {
  const core::DateTime today = document_.Place().Session.Time.Today();
  auto* sheet =
      new PlanetSheetDialog(transit::ShowPlanetDetails(document_.Model(), row, today), this);
  OfferPrint(document_.Place(), *sheet);
  sheet->show();
}

void HoroscopeWindow::ShowDivisions() {
  auto* divisions = findChild<DivisionalDialog*>();
  if (divisions == nullptr) {
    divisions = new DivisionalDialog(document_.Opened(), document_.Style(), this);
    divisions->setAttribute(Qt::WA_DeleteOnClose);
    OfferPrint(document_.Place(), *divisions);
    connect(&document_, &HoroscopeDocument::Changed, divisions,
            [this, divisions] { divisions->ShowModel(document_.Opened(), document_.Style()); });
  }
  divisions->show();
  divisions->raise();
  divisions->activateWindow();
}

void HoroscopeWindow::PrintPage() {
  PrintWithPreview(document_.Place(), *this,
                   PagePrintout(document_, *pages_->Current(), pages_->CurrentTitle()));
}

void HoroscopeWindow::PrintSheet() {
  PrintWithPreview(document_.Place(), *this, SheetPrintout(document_));
}

void HoroscopeWindow::EditClient() {
  EditClientWith([](ClientDialog& /*dialog*/) {});
}

// A client whose horoscope is open is not edited: the window closes and opens itself again.
void HoroscopeWindow::EditClientWith(const std::function<void(ClientDialog&)>& prepare) {
  Workplace& place = document_.Place();
  const std::int32_t client = ClientId();
  close();
  QMetaObject::invokeMethod(
      qApp,
      [&place, client, prepare] {
        const std::unique_ptr<ClientDialog> dialog(ClientDialog::ForEdit(place, client));
        if (dialog) {
          prepare(*dialog);
          dialog->exec();
          OpenHoroscope(place, client);
        }
      },
      Qt::QueuedConnection);
}

void HoroscopeWindow::GoToClient(int by) {
  Workplace& place = document_.Place();
  const std::optional<std::int32_t> next = NeighbourClient(place.Session, document_.Model(), by);
  if (next && OpenHoroscope(place, *next) != nullptr) {
    close();
  }
}

void HoroscopeWindow::Export(report::ReportDetail detail, bool asPdf) {
  const ReportChoice choice{detail, asPdf, document_.Style(), document_.JudgedForReport()};
  exports_->Run(tr("Report of %1").arg(Shown(document_.Model().Name)), 1,
                [this, choice](std::size_t /*place*/) {
                  return StageReport(document_.Place().Session, document_.Opened(), choice);
                });
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
