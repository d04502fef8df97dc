// What the window of a horoscope offers in its head and menus.
#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <algorithm>

#include "chart/relations.h"
#include "ui/base/guide.h"
#include "ui/base/icon.h"
#include "ui/base/keys.h"
#include "ui/base/qt_text.h"
#include "ui/horoscope/birth_panel.h"
#include "ui/horoscope/export_runner.h"
#include "ui/horoscope/horoscope_print.h"
#include "ui/horoscope/horoscope_window.h"

namespace orvex::ui {

namespace {

std::size_t PlaceOfStyle(char style) {
  const auto found = std::find_if(kChartStyles.begin(), kChartStyles.end(),
                                  [&](const StyleName& name) { return name.Style == style; });
  return found == kChartStyles.end() ? 0 : static_cast<std::size_t>(found - kChartStyles.begin());
}

}  // namespace

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
  headActions_ = {rotate, divisions, print, exporting, more};
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
  add(tr("C&lose"), "close", [this] { close(); });
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
  for (const StyleName& style : kChartStyles) {
    menu->addAction(QObject::tr(style.Name), this,
                    [this, style] { document_.SetStyle(style.Style); });
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
  const std::size_t next = (PlaceOfStyle(document_.Style()) + 1) % kChartStyles.size();
  document_.SetStyle(kChartStyles.at(next).Style);
}

}  // namespace orvex::ui
