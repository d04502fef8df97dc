// Walks of the tree of each dialog that the main window leads to: what a screen reader is told,
// which letters open what, how small it can be, and what it cuts.
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <functional>
#include <map>

#include "ui/base/elided_label.h"
#include "ui/base/theme.h"
#include "ui/dialogs/about_box.h"
#include "ui/dialogs/cities_dialog.h"
#include "ui/dialogs/city_dialog.h"
#include "ui/dialogs/client_dialog.h"
#include "ui/dialogs/group_dialog.h"
#include "ui/dialogs/matter_dialog.h"
#include "ui/dialogs/matters_dialog.h"
#include "ui/dialogs/move_dialog.h"
#include "ui/dialogs/number_table.h"
#include "ui/dialogs/pick_city_dialog.h"
#include "ui/dialogs/remedy_dialog.h"
#include "ui/dialogs/settings_dialog.h"
#include "ui/main/export_dialog.h"
#include "ui/main/import_dialog.h"
#include "ui/main_window_home.h"
#include "ui/transit/find_transit_dialog.h"
#include "ui/transit/transit_details_dialog.h"

namespace orvex::ui {
namespace {

class DialogTree : public MainWindowTest {
 protected:
  using Make = std::function<QWidget*()>;

  DialogTree() : client_(AddClient("Asha Rao", "1990-11-24 14:30:00")) {}
  ~DialogTree() override { Theme::SetTextSize(100); }

  std::vector<Make> Dialogs() {
    return {[this] { return ClientDialog::ForNew(place_, 1); },
            [this] {
              ClientDialog* query = ClientDialog::ForNew(place_, 1);
              query->Begin("Query", true);
              return query;
            },
            [this] { return ClientDialog::ForEdit(place_, client_); },
            [this] { return CityDialog::ForNew(place_); },
            [this] { return CityDialog::ForEdit(place_, 1); },
            [this] { return new CitiesDialog(place_); },
            [this] { return new PickCityDialog(place_); },
            [this] { return new GroupDialog(place_); },
            [this] { return new MoveDialog(place_, client_, "Asha Rao", "General"); },
            [this] { return RemedyDialog::ForNew(place_, client_); },
            [this] { return MatterDialog::ForNew(place_); },
            [this] { return new MattersDialog(place_, 0); },
            [this] { return new NumberTable(place_); },
            [this] { return new SettingsDialog(place_); },
            [] { return new AboutBox; },
            [] { return new UpdateBox; },
            [this] { return new FindTransitDialog(place_); },
            [this] {
              return new TransitDetailsDialog(place_, transit::Planet::Moon,
                                              session_->Time.Today());
            },
            [this] { return new ImportDialog(place_, 1, nullptr); },
            [this] { return new ExportDialog(place_, {exchange::ExportRequest{}}, nullptr); }};
  }

  // Does it with each dialog in sight.
  void ForEach(const std::function<void(QWidget&)>& deed) {
    for (const Make& make : Dialogs()) {
      const std::unique_ptr<QWidget> dialog(make());
      SCOPED_TRACE(Typed(dialog->objectName() + ' ' + dialog->windowTitle()));
      Show(*dialog);
      deed(*dialog);
    }
  }

  static std::vector<QWidget*> InSight(const QWidget& dialog) {
    std::vector<QWidget*> widgets;
    for (QWidget* widget : dialog.findChildren<QWidget*>()) {
      if (widget->isVisible()) {
        widgets.push_back(widget);
      }
    }
    return widgets;
  }

  static std::string NameOf(const QWidget& widget) {
    return Typed(QString("%1 \"%2\" of %3")
                     .arg(widget.metaObject()->className(), widget.objectName(),
                          widget.parentWidget()->objectName()));
  }

  static bool IsControl(const QWidget& widget) {
    const QWidget* parent = widget.parentWidget();
    const bool part = qobject_cast<const QLineEdit*>(parent) != nullptr ||
                      qobject_cast<const QAbstractSpinBox*>(parent) != nullptr ||
                      qobject_cast<const QComboBox*>(parent) != nullptr ||
                      qobject_cast<const QTabBar*>(parent) != nullptr ||
                      qobject_cast<const QAbstractItemView*>(parent) != nullptr;
    return !part && (qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                     qobject_cast<const QLineEdit*>(&widget) != nullptr ||
                     qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
                     qobject_cast<const QComboBox*>(&widget) != nullptr ||
                     qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
                     (qobject_cast<const QAbstractItemView*>(&widget) != nullptr &&
                      qobject_cast<const QHeaderView*>(&widget) == nullptr));
  }

  std::int32_t client_;
};

TEST_F(DialogTree, ControlsHaveNamesAndTablesHaveHeads) {
  ForEach([](QWidget& dialog) {
    EXPECT_FALSE(dialog.windowTitle().isEmpty());
    for (QWidget* widget : InSight(dialog)) {
      if (IsControl(*widget)) {
        const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(told, nullptr) << NameOf(*widget);
        EXPECT_FALSE(told->text(QAccessible::Name).trimmed().isEmpty()) << NameOf(*widget);
      }
      if (const auto* table = qobject_cast<const TableView*>(widget)) {
        // Pairs of names and values have no captions; their head is not shown.
        for (int column = 0; column < table->Model().columnCount(); ++column) {
          const QVariant caption =
              table->Model().headerData(column, Qt::Horizontal, Qt::DisplayRole);
          EXPECT_TRUE(table->isColumnHidden(column) ||
                      caption.toString().isEmpty() == table->horizontalHeader()->isHidden())
              << NameOf(*widget) << ", column " << column;
        }
      }
    }
  });
}

TEST_F(DialogTree, ALetterWithAltIsOneThing) {
  ForEach([](QWidget& dialog) {
    std::map<QString, std::string> taken;
    const auto take = [&](const QString& text, const QWidget& widget) {
      const QString letter = QKeySequence::mnemonic(text).toString(QKeySequence::PortableText);
      if (!letter.isEmpty()) {
        EXPECT_TRUE(taken.emplace(letter, NameOf(widget)).second)
            << Typed(letter) << " is " << NameOf(widget) << " and " << taken[letter];
      }
    };
    for (QWidget* widget : InSight(dialog)) {
      const auto* label = qobject_cast<QLabel*>(widget);
      if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
        take(button->text(), *widget);
      } else if (const auto* tabs = qobject_cast<QTabBar*>(widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab) {
          take(tabs->tabText(tab), *widget);
        }
      } else if (label != nullptr && label->buddy() != nullptr) {
        take(label->text(), *widget);
      }
    }
  });
}

TEST_F(DialogTree, EachFitsSmallScreensAndCutsNoLabelThatItDoesNotTell) {
  for (const int textSize : {100, 130}) {
    Theme::SetTextSize(textSize);
    SCOPED_TRACE(textSize);
    ForEach([](QWidget& dialog) {
      const QSize least = dialog.minimumSizeHint().expandedTo(dialog.minimumSize());
      EXPECT_LE(least.width(), 1000);
      EXPECT_LE(least.height(), 600);
      for (QWidget* widget : InSight(dialog)) {
        const auto* label = qobject_cast<QLabel*>(widget);
        const auto* button = qobject_cast<QPushButton*>(widget);
        QString text = button != nullptr ? button->text() : "";
        if (label != nullptr && label->textFormat() != Qt::RichText && !label->wordWrap() &&
            qobject_cast<ElidedLabel*>(widget) == nullptr) {
          text = label->text();
        }
        for (const QString& line : text.remove('&').split('\n')) {
          EXPECT_TRUE(widget->fontMetrics().horizontalAdvance(line) <= widget->width() ||
                      !widget->toolTip().isEmpty())
              << NameOf(*widget) << " cuts " << Typed(line);
        }
      }
    });
  }
}

}  // namespace
}  // namespace orvex::ui
