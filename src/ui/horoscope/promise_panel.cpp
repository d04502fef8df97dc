#include "ui/horoscope/promise_panel.h"

#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "judgement/chain_sentence.h"
#include "ui/base/cell_text.h"
#include "ui/base/labels.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

// The planets by their names where those have room, else by their chips.
std::vector<ColumnPlan> ChainColumns(bool names) {
  return {
      {"Role", CellKind::Text, 90, 0}, {"Planet", names ? CellKind::Chip : CellKind::Code, 46, 0},
      {"L1", CellKind::Houses, 34, 0}, {"L2", CellKind::Houses, 40, 0},
      {"L3", CellKind::Houses, 48, 0}, {"L4", CellKind::Houses, 48, 0},
      {"Marks", CellKind::Text, 60, 1}};
}

std::vector<ColumnPlan> OtherCuspColumns(bool names) {
  std::vector<ColumnPlan> columns = ChainColumns(names);
  columns.front() = {"House", CellKind::Houses, 90, 0};
  return columns;
}

constexpr RowBounds kChainRows = {height::kLeastRow, height::kMostRow, true};

// The pixels that the widest cell of a column takes as it is painted.
int WidestIn(MatterTable& table, int column) {
  QStyleOptionViewItem option;
  option.font = table.View().font();
  const TableModel& model = table.View().Model();
  int widest = 0;
  for (int row = 0; row < model.rowCount(); ++row) {
    widest = std::max(widest, table.Plan().Cells().PlacedWidth(option, model.index(row, column)));
  }
  return widest;
}

}  // namespace

PromisePanel::PromisePanel(HoroscopeDocument& document)
    : document_(document),
      chain_(new MatterTable(document, "MatterChain", tr("The main cusp and its sub lord"),
                             ChainColumns(true), kChainRows)),
      sentence_(MakeCaptionLabel("matterSentence")),
      cusps_(new MatterTable(document, "MatterCusps", tr("Sub lords of the other cusps"),
                             OtherCuspColumns(true), kChainRows)) {
  sentence_->setWordWrap(true);
  sentence_->setMinimumWidth(1);
  sentence_->setContentsMargins(space::kS, space::kXs, space::kS, 0);
  chain_->View().setFont(Theme::Text(type::kSmall));
  cusps_->View().setFont(Theme::Text(type::kSmall));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(chain_);
  layout->addWidget(sentence_);
  layout->addWidget(cusps_);
  layout->addStretch(1);
}

// "14°40' Ar, Bharani 1".
QString PromisePanel::CuspNote(const judgement::Matter& matter) const {
  const core::Table& cusps = document_.Model().CuspTable;
  const auto row = static_cast<std::size_t>(matter.MainCusp) - 1;
  if (row >= cusps.Rows.size()) {
    return {};
  }
  const auto text = [&](chart::CuspColumn column) { return Shown(cusps.At(row, column).Text); };
  const std::optional<DegreeText> degree = ShownDegree(text(chart::CuspColumn::Degree));
  return (degree ? degree->Figures + ' ' + degree->Sign : text(chart::CuspColumn::Degree)) + ", " +
         text(chart::CuspColumn::Nakshatra) + ' ' + text(chart::CuspColumn::Pada);
}

void PromisePanel::Show(const judgement::Judgement& judged, const judgement::Matter& matter,
                        const std::set<QString>& fruitful) {
  chain_->SetTitle(tr("Cusp %1 and its sub lord").arg(matter.MainCusp));
  chain_->SetNote(CuspNote(matter));
  chain_->ShowTable(judged.MatterChain, matter, fruitful);
  sentence_->setText(Shown(judgement::ChainSentence(judged.MatterChain)));
  cusps_->ShowTable(judged.MatterCusps, matter, fruitful);
  cusps_->setVisible(!judged.MatterCusps.Rows.empty());
  Arrange();
}

void PromisePanel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Arrange();
}

// The columns of both tables stand under each other: each is as wide as either needs.
void PromisePanel::FitColumns(bool names) {
  std::vector<ColumnPlan> chain = ChainColumns(names);
  std::vector<ColumnPlan> cusps = OtherCuspColumns(names);
  for (const bool measured : {false, true}) {
    for (std::size_t place = 1; measured && place + 1 < chain.size(); ++place) {
      const auto column = static_cast<int>(place);
      const int need = std::max(WidestIn(*chain_, column), WidestIn(*cusps_, column));
      chain[place].Least = std::max(chain[place].Least, need * 100 / Theme::TextSize() + 1);
      cusps[place].Least = chain[place].Least;
    }
    chain_->Plan().SetColumns(chain);
    cusps_->Plan().SetColumns(cusps);
    chain_->Plan().Fit();
    cusps_->Plan().Fit();
  }
}

// The rows of both tables are equally high, as high as the room allows.
void PromisePanel::Arrange() {
  for (const bool names : {true, false}) {
    FitColumns(names);
    if (chain_->Plan().HasRoom() && cusps_->Plan().HasRoom()) {
      break;
    }
  }
  const auto chain = static_cast<int>(chain_->View().Table().Rows.size());
  const auto cusps = static_cast<int>(cusps_->View().Table().Rows.size());
  if (chain + cusps == 0) {
    return;
  }
  const int heads = chain_->HeightOfHead() + (cusps > 0 ? cusps_->HeightOfHead() : 0);
  const int words = sentence_->heightForWidth(std::max(1, width()));
  const int least = std::max(height::kLeastRow, fontMetrics().height() + space::kXs);
  const int row = std::clamp((height() - heads - words) / (chain + cusps), least,
                             height::kMostRow * Theme::TextSize() / 100);
  chain_->setFixedHeight(chain_->HeightOfHead() + chain * row);
  cusps_->setFixedHeight(cusps_->HeightOfHead() + cusps * row);
}

}  // namespace orvex::ui
