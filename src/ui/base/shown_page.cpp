#include "ui/base/shown_page.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QBoxLayout>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <algorithm>
#include <utility>

#include "ui/base/chart_view.h"
#include "ui/base/print_page.h"
#include "ui/base/qt_text.h"
#include "ui/base/segments.h"
#include "ui/base/shown_table.h"
#include "ui/base/table_view.h"
#include "ui/painting/chart_painter.h"
#include "ui/painting/page_fonts.h"

namespace orvex::ui {

namespace {

constexpr const char* kUnprinted = "unprinted";
constexpr double kHalf = 0.5;

QString WithoutMnemonic(QString text) { return text.remove('&'); }

bool IsHeading(const QLabel& label) { return label.font().weight() >= QFont::DemiBold; }

// What a field holds; "" for a widget that is no field.
QString FieldTextOf(const QWidget& field) {
  if (const auto* line = qobject_cast<const QLineEdit*>(&field)) {
    return line->text();
  }
  if (const auto* box = qobject_cast<const QComboBox*>(&field)) {
    return box->currentText();
  }
  if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(&field)) {
    return spin->text();
  }
  if (const auto* segments = qobject_cast<const Segments*>(&field)) {
    for (const QAbstractButton* part : segments->findChildren<QAbstractButton*>()) {
      if (part->isChecked()) {
        return WithoutMnemonic(part->text());
      }
    }
  }
  return {};
}

bool IsSmall(const PageBlock& block) {
  constexpr std::size_t kMostRows = 20;
  const auto* table = std::get_if<PageTable>(&block.Content);
  const auto* text = std::get_if<PageText>(&block.Content);
  return (table != nullptr && !table->Rows.empty() && table->Rows.size() <= kMostRows) ||
         (text != nullptr && text->Role == PageRole::Part);
}

// Parts that stand beside each other in a window do so on paper where they are short and fit.
std::optional<PageSideBySide> Beside(const std::vector<std::vector<PageBlock>>& parts) {
  constexpr double kGaps = 300;
  if (parts.size() < 2 || std::any_of(parts.begin(), parts.end(), [](const auto& part) {
        return part.size() > 2 || !std::all_of(part.begin(), part.end(), IsSmall);
      })) {
    return std::nullopt;
  }
  PageSideBySide sides;
  double sum = 0;
  for (const std::vector<PageBlock>& part : parts) {
    sides.Widths.push_back(WidestTable(part));
    sum += sides.Widths.back();
  }
  if (sum + kGaps > PortraitRoom() || std::count(sides.Widths.begin(), sides.Widths.end(), 0) > 0) {
    return std::nullopt;
  }
  for (double& width : sides.Widths) {
    width /= sum;
  }
  sides.Columns = parts;
  return sides;
}

class Collector {
 public:
  void Add(const QWidget& widget) {
    if (widget.isHidden() || widget.property(kUnprinted).toBool()) {
      return;
    }
    if (const auto* itself = dynamic_cast<const PrintsItself*>(&widget)) {
      Append(itself->PrintedBlocks());
    } else if (const auto* table = qobject_cast<const TableView*>(&widget)) {
      AddTable(*table);
    } else if (const auto* chart = qobject_cast<const ChartView*>(&widget)) {
      AddChart(*chart);
    } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
      AddLabel(*label);
    } else {
      AddParts(widget);
    }
  }

  std::vector<PageBlock> Blocks;

 private:
  // Charts come in pairs, and facts that follow each other are one block.
  void Append(std::vector<PageBlock> blocks) {
    for (PageBlock& block : blocks) {
      if (!Joins(block)) {
        Blocks.push_back(std::move(block));
      }
    }
  }

  bool Joins(const PageBlock& block) {
    PageBlock* last = Blocks.empty() ? nullptr : &Blocks.back();
    auto* facts = last == nullptr ? nullptr : std::get_if<PageFacts>(&last->Content);
    auto* charts = last == nullptr ? nullptr : std::get_if<PageFigures>(&last->Content);
    const auto* moreFacts = std::get_if<PageFacts>(&block.Content);
    const auto* chart = std::get_if<PageFigures>(&block.Content);
    if (facts != nullptr && moreFacts != nullptr && facts->Columns == moreFacts->Columns) {
      facts->Facts.insert(facts->Facts.end(), moreFacts->Facts.begin(), moreFacts->Facts.end());
      return true;
    }
    if (charts != nullptr && chart != nullptr && IsHalf(*charts) && IsHalf(*chart)) {
      charts->Figures.push_back(chart->Figures.front());
      return true;
    }
    return false;
  }

  static bool IsHalf(const PageFigures& figures) {
    return figures.Figures.size() == 1 && figures.Figures.front().Width == kHalf;
  }

  // Takes a heading away that stands last, and gives its text.
  QString TakeHeading() {
    const auto* text = Blocks.empty() ? nullptr : std::get_if<PageText>(&Blocks.back().Content);
    if (text == nullptr || text->Role != PageRole::Part) {
      return {};
    }
    QString heading = text->Text;
    Blocks.pop_back();
    return heading;
  }

  void AddTable(const TableView& view) {
    const QString heading = TakeHeading();
    // A heading that a note parts from its table names it all the same.
    const QString above = std::exchange(heading_, {});
    const QString name = view.accessibleName();
    if (!name.startsWith(heading)) {
      AddText(PageRole::Part, heading);
    }
    if (heading == name || (!heading.startsWith(name) && above != name)) {
      AddText(PageRole::Part, name);
    }
    if (PageTable table = ShownTableOf(view); table.Columns() > 0) {
      Blocks.push_back({std::move(table)});
    } else {
      AddText(PageRole::Body, table.WhenEmpty);
    }
  }

  void AddChart(const ChartView& view) {
    const QString heading = TakeHeading();
    const report::ChartPicture picture = view.Picture();
    PageFigure figure{heading.isEmpty() ? Shown(picture.Title) : heading, kHalf, 1,
                      [picture](QPainter& painter, const QRectF& box) {
                        PaintChart(painter, box, picture, PrintColors());
                      }};
    Append({{PageFigures{{std::move(figure)}}}});
  }

  void AddText(PageRole role, const QString& text) {
    if (role == PageRole::Part && !text.trimmed().isEmpty()) {
      heading_ = text;
    }
    if (!text.trimmed().isEmpty()) {
      Blocks.push_back({PageText{role, PlainText(text).trimmed()}});
    }
  }

  void AddLabel(const QLabel& label) {
    const QWidget* field = label.buddy();
    if (field == nullptr || qobject_cast<const TableView*>(field) != nullptr) {
      AddText(IsHeading(label) ? PageRole::Part : PageRole::Body, label.text());
    } else if (const QString value = FieldTextOf(*field);
               !value.isEmpty() && !field->isHidden() && field->isEnabled()) {
      AddFact(WithoutMnemonic(label.text()), value);
    }
  }

  void AddFact(const QString& caption, const QString& text) {
    Append({{PageFacts{{{PlainText(caption), PlainText(text)}}}}});
  }

  void AddParts(const QWidget& widget) {
    if (const auto* stack = qobject_cast<const QStackedWidget*>(&widget)) {
      AddIfThere(stack->currentWidget());
    } else if (const auto* area = qobject_cast<const QScrollArea*>(&widget)) {
      AddIfThere(area->widget());
    } else if (const auto* splitter = qobject_cast<const QSplitter*>(&widget)) {
      std::vector<const QWidget*> parts;
      for (int i = 0; i < splitter->count(); ++i) {
        parts.push_back(splitter->widget(i));
      }
      AddRow(parts, splitter->orientation() == Qt::Horizontal);
    } else if (widget.layout() != nullptr) {
      const auto* group = qobject_cast<const QGroupBox*>(&widget);
      AddText(PageRole::Part, group == nullptr ? QString() : WithoutMnemonic(group->title()));
      AddLayout(*widget.layout());
    }
  }

  void AddIfThere(const QWidget* widget) {
    if (widget != nullptr) {
      Add(*widget);
    }
  }

  void AddRow(const std::vector<const QWidget*>& widgets, bool beside) {
    std::vector<std::vector<PageBlock>> parts;
    for (const QWidget* widget : widgets) {
      Collector part;
      part.Add(*widget);
      if (!part.Blocks.empty()) {
        parts.push_back(std::move(part.Blocks));
      }
    }
    if (const auto sides = beside ? Beside(parts) : std::nullopt) {
      Blocks.push_back({*sides});
      return;
    }
    for (std::vector<PageBlock>& part : parts) {
      Append(std::move(part));
    }
  }

  // A name and what stands behind it.
  void AddForm(const QFormLayout& form) {
    for (int row = 0; row < form.rowCount(); ++row) {
      const QWidget* name = WidgetOf(form.itemAt(row, QFormLayout::LabelRole));
      const QWidget* field = WidgetOf(form.itemAt(row, QFormLayout::FieldRole));
      const auto* label = qobject_cast<const QLabel*>(name);
      const auto* value = qobject_cast<const QLabel*>(field);
      if (label != nullptr && value != nullptr && !label->isHidden() && !value->isHidden()) {
        AddFact(WithoutMnemonic(label->text()), value->text());
      } else {
        AddIfThere(name);
        AddIfThere(field);
        AddIfThere(WidgetOf(form.itemAt(row, QFormLayout::SpanningRole)));
      }
    }
  }

  static const QWidget* WidgetOf(QLayoutItem* item) {
    return item == nullptr ? nullptr : item->widget();
  }

  // Row by row from the left where the layout is a grid, else in the order of its items.
  void AddLayout(const QLayout& layout) {
    if (const auto* form = qobject_cast<const QFormLayout*>(&layout)) {
      AddForm(*form);
      return;
    }
    std::vector<const QWidget*> widgets;
    const std::vector<QLayoutItem*> items = InOrder(layout);
    for (QLayoutItem* item : items) {
      if (const QWidget* widget = item->widget()) {
        widgets.push_back(widget);
      }
    }
    const bool bare = std::none_of(items.begin(), items.end(),
                                   [](QLayoutItem* item) { return item->layout() != nullptr; });
    if (bare && qobject_cast<const QHBoxLayout*>(&layout) != nullptr) {
      AddRow(widgets, true);
      return;
    }
    for (QLayoutItem* item : items) {
      AddIfThere(item->widget());
      if (const QLayout* inner = item->layout()) {
        AddLayout(*inner);
      }
    }
  }

  static std::vector<QLayoutItem*> InOrder(const QLayout& layout) {
    std::vector<QLayoutItem*> items;
    for (int i = 0; i < layout.count(); ++i) {
      items.push_back(layout.itemAt(i));
    }
    if (qobject_cast<const QGridLayout*>(&layout) != nullptr) {
      std::stable_sort(items.begin(), items.end(), [](QLayoutItem* a, QLayoutItem* b) {
        const QPoint left = a->geometry().topLeft();
        const QPoint right = b->geometry().topLeft();
        return std::pair(left.y(), left.x()) < std::pair(right.y(), right.x());
      });
    }
    return items;
  }

  QString heading_;  // the last one, until a table stands under it
};

}  // namespace

void LeaveUnprinted(QWidget& widget) { widget.setProperty(kUnprinted, true); }

std::vector<PageBlock> ShownBlocks(const QWidget& widget) {
  Collector collector;
  collector.Add(widget);
  return std::move(collector.Blocks);
}

}  // namespace orvex::ui
