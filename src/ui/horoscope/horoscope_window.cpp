#include "ui/horoscope/horoscope_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QMenu>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <chrono>

#include "ui/base/chart_view.h"
#include "ui/base/elided_label.h"
#include "ui/base/keys.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/theme.h"
#include "ui/base/window_look.h"
#include "ui/base/window_room.h"
#include "ui/dialogs/client_dialog.h"
#include "ui/horoscope/birth_panel.h"
#include "ui/horoscope/chart_menu.h"
#include "ui/horoscope/divisional_dialog.h"
#include "ui/horoscope/export_runner.h"
#include "ui/horoscope/head_pane.h"
#include "ui/horoscope/horoscope_print.h"
#include "ui/horoscope/matter_box.h"
#include "ui/horoscope/neighbour_client.h"
#include "ui/horoscope/page_stack.h"
#include "ui/horoscope/planet_sheet_dialog.h"
#include "ui/horoscope/planet_sheet_panel.h"

namespace orvex::ui {

namespace {

constexpr int kUsualWidth = 160 * kGrid;
constexpr int kUsualHeight = 90 * kGrid;
constexpr int kRoomForList = 1100;   // below, the pages are a box in the head
constexpr int kRoomForSheet = 1700;  // below, the sheet of a planet is a dialog
constexpr int kBirthWidth = 240;

}  // namespace

HoroscopeWindow::HoroscopeWindow(Workplace& place, horoscope::OpenedHoroscope opened)
    : document_(place, std::move(opened)),
      status_(new ElidedLabel("statusText")),
      told_(new QTimer(this)),
      exports_(new ExportRunner(place, this)) {
  setObjectName("horoscopeWindow");
  setAttribute(Qt::WA_DeleteOnClose);
  MakeHeadActions();
  MakeMoreActions();
  MakeContents();
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
    sheet_->ShowModel();
  }
}

bool HoroscopeWindow::HasRoomForSheet() const { return width() >= Scaled(kRoomForSheet); }

bool HoroscopeWindow::event(QEvent* event) {
  if (event->type() == LookChanged()) {
    MakeContentsAnew();
    return true;
  }
  return QMainWindow::event(event);
}

void HoroscopeWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  FollowWidth();
}

void HoroscopeWindow::FollowWidth() {
  const bool narrow = width() < Scaled(kRoomForList);
  pages_->SetNarrow(narrow);
  head_->SetNarrow(narrow);
  if (!HasRoomForSheet()) {
    sheet_->hide();
  }
}

// Everything between title and status line; what stood there before goes.
void HoroscopeWindow::MakeContents() {
  head_ = new HeadPane(document_);
  pages_ = new PageStack(document_);
  birth_ = new BirthPanel(document_);
  sheet_ = new PlanetSheetPanel(document_);
  head_->AddBefore(pages_->Box());
  for (QAction* action : headActions_) {
    head_->AddButton(action)->setAccessibleName(WithKeys(action->toolTip(), {}));
  }
  birth_->setFixedWidth(Scaled(kBirthWidth));
  birth_->hide();
  auto* body = new QHBoxLayout;
  body->setSpacing(space::kS);
  body->addWidget(pages_, 1);
  body->addWidget(birth_);
  body->addWidget(sheet_);
  auto* middle = new QWidget;
  middle->setMinimumSize(1, 1);
  auto* layout = new QVBoxLayout(middle);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(head_);
  layout->addLayout(body, 1);
  setCentralWidget(middle);
  connect(pages_, &PageStack::PlanetActivated, this, &HoroscopeWindow::ShowPlanetSheet);
  connect(pages_, &PageStack::Told, this, &HoroscopeWindow::Tell);
  connect(head_, &HeadPane::ResetWanted, this, [this] { document_.Rotate(1); });
}

// Fonts and measures have changed: the same page and panels in the new ones.
void HoroscopeWindow::MakeContentsAnew() {
  const QString page = pages_->CurrentName();
  const bool birth = !birth_->isHidden();
  MakeContents();
  status_->setFont(Theme::Text(type::kHead));
  pages_->Turn(page);
  ShowBirthPanel(birth);
  ShowModel();
  FollowWidth();
}

void HoroscopeWindow::LayOut() {
  setContextMenuPolicy(Qt::NoContextMenu);
  setMinimumSize(window::kLeastWidth, window::kLeastHeight);
  status_->setFont(Theme::Text(type::kHead));
  statusBar()->setSizeGripEnabled(false);
  statusBar()->setContentsMargins(space::kS, 0, space::kM, 0);
  statusBar()->addWidget(status_, 1);
  statusBar()->addPermanentWidget(exports_->Line());
  if (!document_.Place().Layout.RestoreWindow(*this)) {
    resize(kUsualWidth, kUsualHeight);
  }
  KeepOnScreen(*this);
}

void HoroscopeWindow::Connect() {
  connect(&document_, &HoroscopeDocument::Changed, this, &HoroscopeWindow::ShowModel);
  connect(&document_, &HoroscopeDocument::BirthTimeTaken, this,
          [this](core::DateTime birth, const QString& comment) {
            EditClientWith(
                [birth, comment](ClientDialog& dialog) { dialog.ProposeBirth(birth, comment); });
          });
  told_->setSingleShot(true);
  connect(told_, &QTimer::timeout, this,
          [this] { status_->setText(Shown(document_.Model().Captions.StatusBar)); });
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

void HoroscopeWindow::ShowModel() {
  const chart::HoroscopeCaptions& captions = document_.Model().Captions;
  setWindowTitle(Shown(captions.Title));
  for (QAction* house : rotationMenu_->actions()) {
    house->setChecked(house->data().toInt() == document_.Model().RotatedTo);
  }
  head_->ShowModel();
  birth_->ShowModel();
  sheet_->ShowModel();
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
  if (HasRoomForSheet()) {
    sheet_->ShowPlanet(row);
    return;
  }
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
    for (ChartView* chart : divisions->findChildren<ChartView*>()) {
      OfferChartMenu(document_, *chart);
    }
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
