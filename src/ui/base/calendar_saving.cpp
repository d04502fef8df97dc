#include "ui/base/calendar_saving.h"

#include <QCoreApplication>

#include "core/text.h"
#include "transit/calendar_export.h"
#include "ui/base/message_boxes.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

QString SaveCalendar(Workplace& place, QWidget& parent, const std::string& title,
                     const std::vector<transit::CalendarEvent>& events) {
  const std::string name = core::ReplaceAll(title, "/", "-") + ".ics";
  const auto file =
      place.Files.ChooseFileToWrite(&parent, "To calendar", name, "Calendars (*.ics)");
  if (!file) {
    return {};
  }
  try {
    transit::WriteCalendar(place.Session, *file, events);
  } catch (const std::exception& error) {
    Complain(place.Session.Shown, error.what());
    return {};
  }
  return QCoreApplication::translate("SaveCalendar", "%1 entries are written to %2")
      .arg(WholeText(static_cast<std::int64_t>(events.size())), Shown(file->string()));
}

}  // namespace orvex::ui
