#include "ui/dialogs/client_dialog.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>

#include "chart/client_checks.h"
#include "practice/groups.h"
#include "practice/offset_offer.h"
#include "ui/base/moment_edit.h"
#include "ui/base/named.h"
#include "ui/base/qt_text.h"
#include "ui/base/theme.h"
#include "ui/dialogs/ascendant_fields.h"
#include "ui/dialogs/city_dialog.h"
#include "ui/dialogs/city_field.h"
#include "ui/dialogs/form_rows.h"
#include "ui/dialogs/moment_fields.h"
#include "ui/dialogs/pick_city_dialog.h"
#include "ui/dialogs/place_fields.h"
#include "ui/dialogs/query_fields.h"
#include "ui/dialogs/refusal_line.h"
#include "ui/dialogs/switch_buttons.h"

namespace orvex::ui {

namespace {

constexpr const char* kGenderLetters = "MFO";

}  // namespace

ClientDialog::ClientDialog(Workplace& place, QWidget* parent)
    : FormDialog(place, "clientDialog", parent),
      kinds_(MakeSwitch(this, {{"birthKind", tr("&Birth")}, {"horary", tr("&Query (horary)")}})),
      group_(Named(new QComboBox, "group")),
      name_(Named(new QLineEdit, "fullName")),
      genders_(MakeSwitch(
          this, {{"genderM", tr("Male")}, {"genderF", tr("Female")}, {"genderO", tr("Other")}})),
      query_(new QueryFields(place, this)),
      moment_(new MomentFields(place.Session.Time, this)),
      city_(new CityField(place)),
      place_(new PlaceFields(place)),
      mobile_(Named(new QLineEdit, "mobile")),
      email_(Named(new QLineEdit, "email")),
      comments_(Named(new QPlainTextEdit, "comments")),
      ascendant_(new AscendantFields),
      refusal_(new RefusalLine(this)) {}

ClientDialog::~ClientDialog() = default;

ClientDialog* ClientDialog::ForNew(Workplace& place, std::int32_t groupId, QWidget* parent) {
  auto* dialog = new ClientDialog(place, parent);
  dialog->Build(tr("Add Client"), tr("&Add"));
  dialog->FillGroups(groupId);
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
  dialog->FillGroups(practice::GroupOfClient(place.Session, clientId));
  dialog->Fill(*form);
  dialog->Connect();
  return dialog;
}

void ClientDialog::Begin(const QString& name, bool query) {
  name_->setText(name);
  kinds_->button(query ? 1 : 0)->setChecked(true);
}

void ClientDialog::ProposeBirth(core::DateTime birth, const QString& comment) {
  const QString before = comments_->toPlainText();
  comments_->setPlainText(before + (before.isEmpty() ? "" : "\n") + comment);
  moment_->ShowMoment(birth);
  ShowMoment();
}

void ClientDialog::Build(const QString& title, const QString& action) {
  setWindowTitle(title);
  auto* foot = new QHBoxLayout;
  foot->addWidget(MakeHint(tr("Enter takes the marked city, Tab goes on")));
  foot->addLayout(MakeButtons(action), 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addLayout(BuildHead());
  layout->addWidget(BuildBody(), 1);
  layout->addLayout(foot);
  constexpr QSize kUsual(79 * kGrid, 90 * kGrid);
  resize(kUsual.boundedTo(screen()->availableSize() - QSize(kGrid, 5 * kGrid)));
}

QLayout* ClientDialog::BuildHead() {
  auto* head = new QHBoxLayout;
  head->addLayout(SwitchLayout(*kinds_));
  head->addStretch();
  head->addWidget(MakeFieldCaption(tr("Grou&p"), group_));
  head->addWidget(group_);
  return head;
}

QWidget* ClientDialog::BuildBody() {
  auto* page = new QWidget;
  rows_ = std::make_unique<FormRows>(*page);
  AddPersonRows();
  AddQueryRows();
  moment_->AddTo(*rows_);
  AddPlaceRows();
  AddContactRows();
  auto* scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);
  auto* whole = new QWidget;
  auto* column = new QVBoxLayout(whole);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(page);
  column->addStretch(1);  // what room is left stays under the rows
  scroll->setWidget(whole);
  return scroll;
}

void ClientDialog::AddPersonRows() {
  name_->setMinimumHeight(height::kField);
  rows_->Add(tr("Client &Name"), name_, {name_});
  auto* genders = new QWidget;
  genders->setLayout(SwitchLayout(*genders_));
  rows_->Add(tr("Gender"), genders_->button(0), {genders});
}

void ClientDialog::AddQueryRows() {
  rows_->Add(tr("Horary N&umber"), query_->Number(), {query_->NumberRow()});
  rows_->Add(tr("Ques&tion"), query_->Question(), {query_->Question()}, query_->Count());
  rows_->Add({}, query_->Question(), {query_->Whose()});
}

void ClientDialog::AddPlaceRows() {
  rows_->Add(tr("Cit&y"), city_, {city_});
  rows_->Add(tr("&Latitude"), place_->Latitude(), {place_});
}

void ClientDialog::AddContactRows() {
  constexpr int kLines = 3;
  comments_->setTabChangesFocus(true);
  comments_->setFixedHeight(kLines * comments_->fontMetrics().lineSpacing() + kMargin);
  rows_->Add(tr("Mob&ile"), mobile_, {mobile_, MakeFieldCaption(tr("&E-mail"), email_), email_});
  rows_->Add(tr("&Comments"), comments_, {comments_});
  rows_->Add(tr("Ascendant"), ascendant_->Computed(), {ascendant_});
}

void ClientDialog::FillGroups(std::int32_t groupId) {
  for (const core::Row& group : practice::LoadGroups(Session()).Rows) {
    group_->addItem(Shown(group.Cells.front().Text), IdOfTag(group.Tag).value_or(0));
  }
  group_->setCurrentIndex(group_->findData(groupId));
  // A stored client changes its group by the move alone.
  group_->setEnabled(clientId_ == 0);
}

std::int32_t ClientDialog::GroupId() const { return group_->currentData().toInt(); }

void ClientDialog::Connect() {
  connect(moment_, &MomentFields::Changed, this, &ClientDialog::ShowMoment);
  connect(kinds_->button(1), &QAbstractButton::toggled, this, [this](bool query) {
    FollowKind();
    if (query) {
      moment_->ShowNow();
    }
  });
  connect(query_, &QueryFields::Refused, this, &ClientDialog::ShowRefusal);
  connect(city_, &CityField::CityForgotten, place_, &PlaceFields::Forget);
  connect(city_, &CityField::CityTaken, place_, &PlaceFields::TakeCity);
  connect(city_, &CityField::AddWanted, this, &ClientDialog::AddCity);
  connect(city_, &CityField::AllWanted, this, &ClientDialog::PickFromAll);
  connect(place_, &PlaceFields::Changed, this, &ClientDialog::ShowCast);
}

void ClientDialog::Fill(const chart::ClientForm& form) {
  opened_ = form;
  name_->setText(Shown(form.FullName));
  email_->setText(Shown(form.Email));
  mobile_->setText(Shown(form.Mobile));
  comments_->setPlainText(Shown(form.Comments));
  moment_->ShowMoment(form.Birth);
  const qsizetype gender = QString(kGenderLetters).indexOf(Shown(form.Gender));
  genders_->button(static_cast<int>(std::max<qsizetype>(gender, 0)))->setChecked(true);
  kinds_->button(form.Horary ? 1 : 0)->setChecked(true);
  query_->Fill(form);
  ascendant_->Fill(form);
  city_->ShowCity(form.CityId);
  place_->TakeCity(form.CityId);
  place_->ShowStored(form);
  FollowKind();
  ShowMoment();
  name_->setFocus();
}

chart::ClientForm ClientDialog::Form() const {
  chart::ClientForm form;
  form.FullName = Typed(name_->text());
  form.Email = Typed(email_->text());
  form.Mobile = Typed(mobile_->text());
  form.Comments = Typed(comments_->toPlainText());
  form.Birth = moment_->Moment().value_or(form.Birth);
  form.Gender = std::string(1, kGenderLetters[genders_->checkedId()]);
  form.Horary = kinds_->checkedId() == 1;
  query_->CopyInto(form);
  ascendant_->CopyInto(form);
  form.CityId = city_->CityId();
  place_->CopyInto(form);
  return form;
}

// A query has a number and a question and no Ascendant by hand.
void ClientDialog::FollowKind() {
  const bool query = kinds_->checkedId() == 1;
  rows_->SetVisible(*query_->Number(), query);
  rows_->SetVisible(*query_->Question(), query);
  rows_->SetVisible(*query_->Whose(), query);
  rows_->SetVisible(*ascendant_, !query);
  ascendant_->ChooseComputed();
  refusal_->Clear();
}

void ClientDialog::ShowMoment() {
  if (const std::optional<core::DateTime> moment = moment_->Moment()) {
    city_->SetMoment(*moment);
    place_->ShowClocks(*moment);
  }
  ShowCast();
}

void ClientDialog::ShowCast() {
  place_->ShowCast(moment_->Moment() ? Shown(practice::CastForText(Session(), Form())) : "");
}

void ClientDialog::AddCity() {
  const std::unique_ptr<CityDialog> dialog(CityDialog::ForNew(Place(), this));
  if (dialog && dialog->exec() == Accepted) {
    city_->SearchAnew(dialog->SavedName());
  }
}

void ClientDialog::PickFromAll() {
  if (const std::optional<PickedCity> picked = PickCity(Place(), this)) {
    city_->TakeCity(picked->Id);
  }
}

// Stands under the field, the first one of those that the checks find.
void ClientDialog::ShowRefusal(const core::Refusal& refusal) {
  const bool isCity = refusal.Field == "cityList" || refusal.Field == "citySearch";
  const QString field = isCity ? city_->objectName() : Shown(refusal.Field);
  auto* widget = field.isEmpty() ? nullptr : findChild<QWidget*>(field);
  if (widget == nullptr) {
    FormDialog::ShowRefusal(refusal);
    return;
  }
  refusal_->ShowUnder(*widget, Shown(refusal.Text));
  FocusField(field);
}

// Asks once where the clocks showed another offset than the form has. What an edit leaves as it was
// has been answered before.
void ClientDialog::SettleOffset(chart::ClientForm& form) {
  const bool asBefore = form.Birth == opened_.Birth && form.CityId == opened_.CityId &&
                        form.Offset == opened_.Offset && form.Longitude == opened_.Longitude;
  if (clientId_ != 0 && asBefore) {
    return;
  }
  const std::optional<practice::OffsetOffer> offer = practice::OfferOffset(Session(), form);
  if (offer && Session().Shown.ChooseFirst(offer->Question, offer->Use, offer->Keep)) {
    place_->TakeOffset(Shown(offer->Offset));
    form = Form();
  }
}

void ClientDialog::Save() {
  refusal_->Clear();
  if (const MomentEdit* unread = moment_->Unread()) {
    FocusField(unread->objectName());
    return;
  }
  chart::ClientForm form = Form();
  if (const std::optional<core::Refusal> refused = chart::CheckClient(Session(), form)) {
    ShowRefusal(*refused);
    return;
  }
  SettleOffset(form);
  Finish(clientId_ == 0
             ? chart::SaveNewClient(Session(), form, GroupId(), chart::Creation::InASecondOfItsOwn)
             : chart::SaveClientChanges(Session(), form, clientId_));
}

}  // namespace orvex::ui
