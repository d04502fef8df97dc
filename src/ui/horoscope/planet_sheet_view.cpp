#include "ui/horoscope/planet_sheet_view.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/base/labels.h"
#include "ui/base/qt_text.h"
#include "ui/base/scaled.h"
#include "ui/base/table_view.h"
#include "ui/horoscope/field_label.h"

namespace orvex::ui {

namespace {

constexpr int kListHeight = 22 * kGrid;  // six aspects without a bar
constexpr int kLeastValue = 120;

QLabel* SheetLine(const char* name, const std::string& text) {
  QLabel* label = MakeCaptionLabel(name);
  label->setText(Shown(text));
  label->setWordWrap(true);
  return label;
}

QLabel* DashaLine(const transit::PlanetSheet& sheet) {
  QLabel* label = SheetLine("sheetDasha", sheet.Dasha);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, Theme::Foreground(sheet.DashaColor));
  label->setPalette(palette);
  return label;
}

QWidget* MakeSheetList(const char* name, const std::string& caption, const core::Table& table,
                       const std::string& emptyText, SheetShape shape) {
  auto* view = new TableView;
  view->setObjectName(name);
  view->setAccessibleName(Shown(caption));
  view->SetEmptyText(Shown(emptyText));
  view->SetTable(table);
  if (shape == SheetShape::Wide) {
    view->setMinimumHeight(kListHeight);
  } else {
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    view->setFrameShape(QFrame::NoFrame);
    view->FitHeightToRows();
  }
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space::kXs);
  layout->addWidget(MakeHeading(Shown(caption)));
  layout->addWidget(view, 1);
  return part;
}

}  // namespace

PlanetSheetView::PlanetSheetView(const transit::PlanetSheet& sheet, SheetShape shape) {
  QLabel* title = SheetLine("sheetTitle", sheet.Title);
  title->setFont(Theme::HeadingFont());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(title);
  layout->addWidget(SheetLine("sheetDirection", sheet.Direction));
  layout->addWidget(DashaLine(sheet));
  if (shape == SheetShape::Wide) {
    layout->addWidget(MakeFacts(sheet));
    layout->addWidget(MakeLists(sheet, shape), 1);
  } else {
    layout->addLayout(LayOutFacts(sheet));
    layout->addWidget(MakeLists(sheet, shape));
    layout->addStretch(1);
  }
}

TableView* PlanetSheetView::MakeFacts(const transit::PlanetSheet& sheet) {
  auto* facts = new TableView;
  facts->setObjectName("sheetFacts");
  facts->setAccessibleName(tr("Facts of the planet"));
  facts->horizontalHeader()->hide();
  facts->setSortingEnabled(false);
  facts->SetTable(sheet.Sheet);
  facts->FitHeightToRows();
  facts->setMinimumWidth(facts->sizeHint().width());
  return facts;
}

// Values are never cut: they take as many lines as they need.
QFormLayout* PlanetSheetView::LayOutFacts(const transit::PlanetSheet& sheet) {
  auto* facts = new QFormLayout;
  facts->setHorizontalSpacing(space::kM);
  facts->setVerticalSpacing(2);
  for (const transit::SheetFact& fact : transit::FactsOf(sheet)) {
    auto* value = new QLabel(Shown(fact.Value.empty() ? "–" : fact.Value));
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setMinimumWidth(Scaled(kLeastValue));
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    facts->addRow(new FieldLabel(Shown(fact.Label)), value);
  }
  return facts;
}

QWidget* PlanetSheetView::MakeLists(const transit::PlanetSheet& sheet, SheetShape shape) {
  auto* lists = new QWidget;
  auto* layout = new QBoxLayout(
      shape == SheetShape::Wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, lists);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(MakeSheetList("sheetAspecting", sheet.AspectingCaption, sheet.Aspecting,
                                  sheet.AspectingNote, shape));
  layout->addWidget(
      MakeSheetList("sheetAspectedBy", sheet.AspectedByCaption, sheet.AspectedBy, "", shape));
  return lists;
}

}  // namespace orvex::ui
