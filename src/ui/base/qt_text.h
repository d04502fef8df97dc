// Between the texts and moments of the program and those of the window toolkit.
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <string>

#include "core/date_text.h"
#include "ui/painting/shown_text.h"

namespace orvex::ui {

inline std::string Typed(const QString& text) { return text.toStdString(); }

// A wall-clock moment as an edit field holds it: always in UTC, so that no hour is skipped where
// the clocks of this machine were put forward.
QDateTime ToField(core::DateTime moment);

// The moment of an edit field, to the second.
core::DateTime FromField(const QDateTime& field);

// A whole number, as ids and counts are shown and kept in tags.
QString WholeText(std::int64_t number);

// The id that a tag holds; nothing for any other text.
std::optional<std::int32_t> IdOfTag(const std::string& tag);

}  // namespace orvex::ui
