#include "ui/base/layout_memory.h"

#include <QHeaderView>
#include <QSplitter>
#include <QWidget>

#include "core/home.h"
#include "core/machine_settings.h"
#include "ui/base/qt_text.h"

namespace orvex::ui {

namespace {

QString KeyOf(const char* kind, const QObject& widget) {
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
  return settings_.value(KeyOf(kind, widget));
}

void LayoutMemory::Keep(const char* kind, const QObject& widget, const QByteArray& state) {
  if (Value(kind, widget).toByteArray() != state) {
    settings_.setValue(KeyOf(kind, widget), state);
  }
}

bool LayoutMemory::RestoreWindow(QWidget& window) const {
  return window.restoreGeometry(Value("window", window).toByteArray());
}

void LayoutMemory::KeepWindow(const QWidget& window) {
  Keep("window", window, window.saveGeometry());
}

bool LayoutMemory::RestoreSplitter(QSplitter& splitter) const {
  return splitter.restoreState(Value("splitter", splitter).toByteArray());
}

void LayoutMemory::KeepSplitter(const QSplitter& splitter) {
  Keep("splitter", splitter, splitter.saveState());
}

bool LayoutMemory::RestoreHeader(QHeaderView& header) const {
  return header.restoreState(Value("header", header).toByteArray());
}

void LayoutMemory::KeepHeader(const QHeaderView& header) {
  Keep("header", header, header.saveState());
}

QString LayoutMemory::ChosenEntry(const QObject& list) const {
  return QString::fromUtf8(Value("entry", list).toByteArray());
}

void LayoutMemory::KeepChosenEntry(const QObject& list, const QString& entry) {
  Keep("entry", list, entry.toUtf8());
}

void Remember(LayoutMemory& memory, QSplitter& splitter) {
  splitter.setChildrenCollapsible(false);
  memory.RestoreSplitter(splitter);
  QObject::connect(&splitter, &QSplitter::splitterMoved, &splitter,
                   [&memory, &splitter] { memory.KeepSplitter(splitter); });
}

}  // namespace orvex::ui
