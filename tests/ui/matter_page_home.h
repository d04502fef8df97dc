// A horoscope's window on the page "Matter".
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>

#include "chart/client_saving.h"
#include "judgement/judge_matter.h"
#include "judgement/matter_planets.h"
#include "judgement/period_windows.h"
#include "judgement/ranked_periods.h"
#include "judgement/triggers.h"
#include "support/ui_desk.h"
#include "ui/base/open_windows.h"
#include "ui/horoscope/horoscope_window.h"
#include "ui/horoscope/period_strip.h"

namespace orvex::ui {

class MatterPageTest : public test::DeskTest {
 protected:
  MatterPageTest() { client_ = AddClient("1990-07-05 14:30:00"); }
  ~MatterPageTest() override { DeleteOpenWindows(); }

  std::int32_t AddClient(const std::string& birth, const std::string& number = "") {
    home_.Clock.Set(home_.Clock.Now() + std::chrono::seconds(1));
    chart::ClientForm form = chart::OpenAddClient(*session_);
    chart::SelectCity(*session_, 1, form);
    form.FullName = "Asha Rao";
    form.Birth = test::Moment(birth);
    form.Horary = !number.empty();
    form.HoraryNumber = number;
    form.HoraryQuestion = number.empty() ? "" : "Will it be?";
    const core::SaveResult saved = chart::SaveNewClient(*session_, form, 1);
    EXPECT_FALSE(saved.Refused) << saved.Refused->Text;
    return saved.Id;
  }

  // The window of a client, on the page with the keys in the field of the matter.
  HoroscopeWindow& Open(std::int32_t client) {
    HoroscopeWindow* window = OpenHoroscope(place_, client);
    Show(*window);
    window->resize(1366, 768);
    QTest::keyClick(window, Qt::Key_M, Qt::ControlModifier);
    QCoreApplication::processEvents();
    return *window;
  }
  HoroscopeWindow& Open() { return Open(client_); }

  static void TypeMatter(QWidget& window, const QString& letters) {
    auto& field = *Find<QComboBox>(window, "matterName").lineEdit();
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, letters);
    QTest::keyClick(&field, Qt::Key_Return);
    QCoreApplication::processEvents();
  }

  static std::string Group(QWidget& window) {
    return Typed(Find<QWidget>(window, "houseGroup").accessibleName());
  }

  static QString Note(QWidget& window, const char* table) {
    return Find<QLabel>(window, Typed(QString(table) + "Note").c_str()).text();
  }

  static std::vector<std::string> Lines(const core::Table& table) {
    std::vector<std::string> lines;
    for (const core::Row& row : table.Rows) {
      std::string line;
      for (const core::Cell& cell : row.Cells) {
        line += cell.Text + "|";
      }
      lines.push_back(line);
    }
    return lines;
  }

  static const core::Table& Shown(QWidget& window, const char* table) {
    return Find<TableView>(window, table).Table();
  }

  // What the engine says of the client by another way than the page's.
  judgement::Judgement Judged(const char* matter, const judgement::MomentOfJudgement& moment) {
    const auto opened = horoscope::CreateHoroscope(*session_, client_);
    return judgement::JudgeMatter(*session_, opened->Model,
                                  *judgement::FindMatter(*session_, matter), moment,
                                  judgement::YearsFrom(home_.Clock.Now(), 10));
  }

  static std::string PageName(QWidget& window) {
    return Typed(Find<QListWidget>(window, "pages").currentItem()->text());
  }

  static std::string SelectedLord(QWidget& window, const char* list) {
    for (const core::Row& row : Shown(window, list).Rows) {
      if (row.Selected) {
        return row.Cells.at(std::string(list) == "DashaList" ? 1 : 0).Text;
      }
    }
    return "";
  }

  std::int32_t client_ = 0;
};

}  // namespace orvex::ui
