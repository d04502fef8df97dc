#include "ui/horoscope/planet_sheet_dialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>

#include "ui/base/qt_text.h"
#include "ui/base/table_view.h"
#include "ui/base/theme.h"
#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/tables_page.h"

namespace orvex::ui {

namespace {

constexpr int kListHeight = 22 * kGrid;  // six aspects without a bar

QLabel* Line(const char* name, const std::string& text) {
  QLabel* label = MakeCaptionLabel(name);
  label->setText(Shown(text));
  return label;
}

QLabel* DashaLine(const transit::PlanetSheet& sheet) {
  QLabel* label = Line("sheetDasha", sheet.Dasha);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, Theme::Foreground(sheet.DashaColor));
  label->setPalette(palette);
  return label;
}

QWidget* MakeList(const char* name, const std::string& caption, const core::Table& table,
                  const std::string& emptyText) {
  auto* view = new TableView;
  view->setObjectName(name);
  view->SetEmptyText(Shown(emptyText));
  view->SetTable(table);
  view->setMinimumHeight(kListHeight);
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(MakeHeading(Shown(caption)));
  layout->addWidget(view, 1);
  return part;
}

}  // namespace

PlanetSheetDialog::PlanetSheetDialog(const transit::PlanetSheet& sheet, QWidget* parent)
    : QDialog(parent) {
  setObjectName("planetSheet");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(Shown(sheet.Title));
  QLabel* title = Line("sheetTitle", sheet.Title);
  title->setFont(Theme::HeadingFont());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(title);
  layout->addWidget(Line("sheetDirection", sheet.Direction));
  layout->addWidget(DashaLine(sheet));
  layout->addWidget(MakeFacts(sheet));
  layout->addWidget(MakeLists(sheet), 1);
  layout->addWidget(buttons);
}

TableView* PlanetSheetDialog::MakeFacts(const transit::PlanetSheet& sheet) {
  auto* facts = new TableView;
  facts->setObjectName("sheetFacts");
  facts->horizontalHeader()->hide();
  facts->setSortingEnabled(false);
  facts->setAlternatingRowColors(false);
  facts->SetTable(sheet.Sheet);
  facts->FitHeightToRows();
  facts->setMinimumWidth(facts->sizeHint().width());
  return facts;
}

QWidget* PlanetSheetDialog::MakeLists(const transit::PlanetSheet& sheet) {
  auto* lists = new QWidget;
  auto* layout = new QHBoxLayout(lists);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(
      MakeList("sheetAspecting", sheet.AspectingCaption, sheet.Aspecting, sheet.AspectingNote));
  layout->addWidget(MakeList("sheetAspectedBy", sheet.AspectedByCaption, sheet.AspectedBy, ""));
  return lists;
}

}  // namespace orvex::ui
