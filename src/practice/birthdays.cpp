#include "practice/birthdays.h"

#include "core/exact_numbers.h"

namespace orvex::practice {

core::Table GetBirthdaysToday(const core::Session& session) {
  const core::DateParts today = core::PartsOf(session.Time.Today());
  core::Table table{{{"Client Name", 105}, {"Email", 150}, {"Mobile", 100}, {"Age (Yr)", 60}}, {}};
  for (core::Result row = session.StoreConnection.Query(
           "Select id, fullname, email, mobile, birthdate from client_master where (day(birthdate) "
           "= " +
           core::WholeText(today.Day) + " and month(birthdate) = " + core::WholeText(today.Month) +
           ") and horary = 0 and year(birthdate) < " + core::WholeText(today.Year));
       !row.AtEnd(); row.Next()) {
    table.AddRow().Tag = row.Text("id");
    const std::size_t at = table.Rows.size() - 1;
    table.At(at, BirthdayColumn::ClientName).Text = row.Text("fullname");
    table.At(at, BirthdayColumn::Email).Text = row.Text("email");
    table.At(at, BirthdayColumn::Mobile).Text = row.Text("mobile");
    core::Cell& age = table.At(at, BirthdayColumn::Age);
    age.Text = core::WholeText(today.Year - core::PartsOf(row.Moment("birthdate").value()).Year);
    age.SortKey = age.Text;
  }
  return table;
}

std::string BirthdayCaption(const core::Table& birthdays) {
  return core::WholeText(static_cast<std::int64_t>(birthdays.Rows.size())) + " Birthday(s) Today";
}

}  // namespace orvex::practice
