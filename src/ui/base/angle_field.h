// A field for a latitude or a longitude that takes the form of maps too.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

class QLineEdit;

namespace orvex::ui {

using AngleReader = std::function<std::optional<std::string>(std::string_view)>;

// What the reader understands is shown as the decimal degrees that it gives, once the field is left
// or the Enter key pressed.
void AcceptAngle(QLineEdit& field, AngleReader reader);

}  // namespace orvex::ui
