// The remedies of the client: added, changed and deleted here.
#pragma once

#include "ui/horoscope/catalogue_table.h"
#include "ui/horoscope/horoscope_page.h"

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace orvex::ui {

class RemedyDialog;

class RemediesPage final : public HoroscopePage {
  Q_OBJECT

 public:
  explicit RemediesPage(HoroscopeDocument& document);

  void ShowModel() override;

 private:
  QHBoxLayout* LayOutButtons();
  void Connect();
  void Add();
  void Edit();
  void Delete();
  void Run(RemedyDialog* dialog);
  void EnableButtons();
  std::optional<std::int32_t> Chosen() const;

  CatalogueTable* remedies_;
  QLabel* comments_;
  QPushButton* add_;
  QPushButton* edit_;
  QPushButton* delete_;
};

}  // namespace orvex::ui
