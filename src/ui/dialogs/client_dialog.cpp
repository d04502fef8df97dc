#include "ui/dialogs/client_dialog.h"

#include <QButtonGroup>
#include <QDateTimeEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include "ui/base/moment_edit.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/city_dialog.h"
#include "ui/dialogs/city_list.h"
#include "ui/dialogs/place_fields.h"
#include "ui/dialogs/query_fields.h"

namespace orvex::ui {

namespace {

constexpr const char* kGenderLetters = "MFO";

QLineEdit* Field(const char* name) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  return field;
}

QLabel* Link(const QString& text, const char* name) {
  auto* link = new QLabel("<a href=\"#\">" + text + "</a>");
  link->setObjectName(name);
  link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  return link;
}

}  // namespace

ClientDialog::ClientDialog(Workplace& place, QWidget* parent)
    : FormDialog(place, "clientDialog", parent),
      name_(Field("fullName")),
      email_(Field("email")),
      mobile_(Field("mobile")),
      comments_(new QPlainTextEdit),
      genders_(new QButtonGroup(this)),
      birth_(MakeMomentEdit("birth")),
      weekday_(new QLabel),
      now_(Link(tr("now"), "now")),
      addCity_(Link(tr("Add a city"), "addCity")),
      query_(new QueryFields(place)),
      cities_(new CityList(place)),
      place_(new PlaceFields(place)) {}

ClientDialog* ClientDialog::ForNew(Workplace& place, std::int32_t groupId, QWidget* parent) {
  auto* dialog = new ClientDialog(place, parent);
  dialog->groupId_ = groupId;
  dialog->Build(tr("Add Client"), tr("&Add"));
  dialog->Fill(chart::OpenAddClient(place.Session));
  dialog->Connect();
  return dialog;
}

ClientDialog* ClientDialog::ForEdit(Workplace& place, std::int32_t clientId, QWidget* parent) {
  const std::optional<chart::ClientForm> form = chart::OpenEditClient(place.Session, clientId);
  if (!form) {
    return nullptr;
  }
  auto* dialog = new ClientDialog(place, parent);
  dialog->clientId_ = clientId;
  dialog->Build(tr("Edit Client"), tr("&Save"));
  dialog->Fill(*form);
  dialog->Connect();
  return dialog;
}

void ClientDialog::Build(const QString& title, const QString& action) {
  setWindowTitle(title);
  auto* left = new QVBoxLayout;
  left->addLayout(BuildPerson());
  left->addWidget(query_);
  left->addStretch();
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kMargin);
  columns->addLayout(left, 1);
  columns->addLayout(BuildPlace(), 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(columns, 1);
  layout->addLayout(MakeButtons(action));
  resize(116 * kGrid, 68 * kGrid);
}

QLayout* ClientDialog::BuildPerson() {
  comments_->setObjectName("comments");
  comments_->setTabChangesFocus(true);
  comments_->setMinimumHeight(8 * kGrid);
  auto* form = new QFormLayout;
  form->addRow(tr("Client &Name:"), name_);
  auto* moment = new QLabel(tr("&Date and time:"));
  moment->setBuddy(birth_);
  form->addRow(moment, BuildMoment());
  form->addRow(tr("Gender:"), BuildGenders());
  form->addRow(tr("&E-mail:"), email_);
  form->addRow(tr("Mob&ile:"), mobile_);
  form->addRow(tr("&Comments:"), comments_);
  return form;
}

QLayout* ClientDialog::BuildGenders() {
  auto* row = new QHBoxLayout;
  int id = 0;
  for (const QString& text : {tr("Male"), tr("Female"), tr("Other")}) {
    auto* button = new QRadioButton(text);
    button->setObjectName(QString("gender") + kGenderLetters[id]);
    genders_->addButton(button, id++);
    row->addWidget(button);
  }
  row->addStretch();
  return row;
}

QLayout* ClientDialog::BuildMoment() {
  weekday_->setObjectName("weekday");
  auto* row = new QHBoxLayout;
  row->addWidget(birth_);
  row->addWidget(now_);
  row->addStretch();
  auto* rows = new QVBoxLayout;
  rows->addLayout(row);
  rows->addWidget(weekday_);
  return rows;
}

QLayout* ClientDialog::BuildPlace() {
  auto* column = new QVBoxLayout;
  column->addWidget(cities_, 1);
  column->addWidget(addCity_);
  column->addWidget(place_);
  return column;
}

void ClientDialog::Connect() {
  connect(birth_, &QDateTimeEdit::dateTimeChanged, this, [this] { ShowMoment(); });
  connect(now_, &QLabel::linkActivated, this, [this] { SetNow(); });
  connect(addCity_, &QLabel::linkActivated, this, [this] { AddCity(); });
  connect(query_, &QueryFields::HoraryStarted, this, [this] { SetNow(); });
  connect(cities_, &CityList::ViewChanged, place_, &PlaceFields::Clear);
  connect(cities_, &CityList::FilterTyped, this, [this] {
    cityId_ = 0;
    place_->Forget();
  });
  connect(cities_, &CityList::CityChosen, this, [this](std::int32_t id) {
    cityId_ = id;
    place_->TakeCity(id);
  });
  connect(cities_, &CityList::CityActivated, this, [this] { Save(); });
}

void ClientDialog::Fill(const chart::ClientForm& form) {
  name_->setText(Shown(form.FullName));
  email_->setText(Shown(form.Email));
  mobile_->setText(Shown(form.Mobile));
  comments_->setPlainText(Shown(form.Comments));
  birth_->setDateTime(ToField(form.Birth));
  const qsizetype gender = QString(kGenderLetters).indexOf(Shown(form.Gender));
  genders_->button(static_cast<int>(std::max<qsizetype>(gender, 0)))->setChecked(true);
  query_->Fill(form);
  FillPlace(form);
  ShowMoment();
  name_->setFocus();
}

// The list opens with the cities in use; where the client's city is not among them, as in a new
// practice, with all cities.
void ClientDialog::FillPlace(const chart::ClientForm& form) {
  cityId_ = form.CityId;
  if (!cities_->SelectCity(form.CityId)) {
    cities_->ShowView(CityList::AllCities);
    cities_->SelectCity(form.CityId);
  }
  place_->TakeCity(form.CityId);
  place_->ShowStored(form);
}

chart::ClientForm ClientDialog::Form() const {
  chart::ClientForm form;
  form.FullName = Typed(name_->text());
  form.Email = Typed(email_->text());
  form.Mobile = Typed(mobile_->text());
  form.Comments = Typed(comments_->toPlainText());
  form.Birth = FromField(birth_->dateTime());
  form.Gender = std::string(1, kGenderLetters[genders_->checkedId()]);
  query_->CopyInto(form);
  form.CityId = cityId_;
  form.CityInSight = cities_->SelectedCity() != 0;
  place_->CopyInto(form);
  return form;
}

void ClientDialog::ShowMoment() {
  const core::DateTime moment = FromField(birth_->dateTime());
  weekday_->setText(Shown(core::WeekdayName(moment) + ", " + core::LongDateText(moment, false) +
                          " " + core::TimeAmPm(moment)));
  place_->ShowClocks(moment);
}

void ClientDialog::SetNow() { birth_->setDateTime(ToField(Session().Time.Now())); }

void ClientDialog::AddCity() {
  const std::unique_ptr<CityDialog> dialog(CityDialog::ForNew(Place(), this));
  if (dialog && dialog->exec() == Accepted) {
    cities_->SearchFor(dialog->SavedName());
  }
}

void ClientDialog::Save() {
  const chart::ClientForm form = Form();
  const core::SaveResult result = clientId_ == 0
                                      ? chart::SaveNewClient(Session(), form, groupId_)
                                      : chart::SaveClientChanges(Session(), form, clientId_);
  if (result.Refused && result.Refused->Field == "citySearch") {
    cityId_ = 0;
  }
  Finish(result);
}

}  // namespace orvex::ui
