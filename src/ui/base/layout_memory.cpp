#include "ui/base/layout_memory.h"

#include <QSplitter>
#include <QWidget>

#include "core/home.h"
#include "core/machine_settings.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

QString LayoutKey(const char* kind, const QObject& widget) {
  return QString(kind) + '/' + widget.objectName();
}

}  // namespace

LayoutMemory::LayoutMemory(const std::filesystem::path& file)
    : settings_(Shown(file.string()), QSettings::IniFormat) {
  core::MakePrivateFolders(file.parent_path());
  settings_.setAtomicSyncRequired(true);
}

std::filesystem::path LayoutMemory::DefaultFile() {
  return core::MachineSettings::DefaultFile().parent_path() / "windows.ini";
}

QVariant LayoutMemory::Value(const char* kind, const QObject& widget) const {
  return settings_.value(LayoutKey(kind, widget));
}

void LayoutMemory::Keep(const char* kind, const QObject& widget, const QByteArray& state) {
  if (Value(kind, widget).toByteArray() != state) {
    settings_.setValue(LayoutKey(kind, widget), state);
  }
}

bool LayoutMemory::RestoreWindow(QWidget& window) const {
  return window.restoreGeometry(Value("window", window).toByteArray());
}

void LayoutMemory::KeepWindow(const QWidget& window) {
  Keep("window", window, window.saveGeometry());
}

void LayoutMemory::Remember(QSplitter& splitter) {
  splitter.setChildrenCollapsible(false);
  splitter.restoreState(Value("splitter", splitter).toByteArray());
  QObject::connect(&splitter, &QSplitter::splitterMoved, &splitter,
                   [this, &splitter] { Keep("splitter", splitter, splitter.saveState()); });
}

std::optional<int> LayoutMemory::ColumnWidth(const QObject& table, const QString& caption) const {
  const QVariant width = settings_.value(LayoutKey("columns", table) + '/' + caption);
  return width.isValid() ? std::optional(width.toInt()) : std::nullopt;
}

void LayoutMemory::KeepColumnWidth(const QObject& table, const QString& caption, int width) {
  settings_.setValue(LayoutKey("columns", table) + '/' + caption, width);
}

QString LayoutMemory::ChosenEntry(const QObject& list) const {
  return QString::fromUtf8(Value("entry", list).toByteArray());
}

void LayoutMemory::KeepChosenEntry(const QObject& list, const QString& entry) {
  Keep("entry", list, entry.toUtf8());
}

}  // namespace orvex::ui
