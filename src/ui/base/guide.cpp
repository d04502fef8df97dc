#include "ui/base/guide.h"

#include "core/home.h"
#include "ui/base/message_boxes.h"

namespace orvex::ui {

void OpenGuide(Workplace& place) {
  const std::filesystem::path guide = core::GuideFile();
  std::error_code error;
  if (!std::filesystem::exists(guide, error)) {
    Complain(place.Session.Shown, "The guide is not installed: " + guide.string() + " is missing.");
  } else if (!place.Files.OpenWithDesktop(guide)) {
    Inform(place.Session.Shown,
           "The guide lies in " + guide.string() + ", but no program opens it here.");
  }
}

}  // namespace orvex::ui
