// Sizes, places and splitters of the windows, kept from one start to the next.
#pragma once

#include <QSettings>
#include <filesystem>
#include <optional>

class QSplitter;
class QWidget;

namespace orvex::ui {

class LayoutMemory {
 public:
  // Keeps them in a file that its owner alone reads. The widgets go by their object names.
  explicit LayoutMemory(const std::filesystem::path& file);

  // The file in the user's configuration folder.
  static std::filesystem::path DefaultFile();

  // Gives a window the size that it had last; false where it is new or its place is off all
  // screens.
  bool RestoreWindow(QWidget& window) const;
  void KeepWindow(const QWidget& window);

  // Gives a splitter, filled and sized as it usually is, the sizes that it had last, and keeps
  // those that the user gives it from now on.
  void Remember(QSplitter& splitter);

  // The width in pixels that the user gave to a column of a table; nothing where none was given.
  std::optional<int> ColumnWidth(const QObject& table, const QString& caption) const;
  void KeepColumnWidth(const QObject& table, const QString& caption, int width);

  // The entry of a list that the user stood on last, by the list's object name; "" for a new one.
  QString ChosenEntry(const QObject& list) const;
  void KeepChosenEntry(const QObject& list, const QString& entry);

 private:
  QVariant Value(const char* kind, const QObject& widget) const;
  void Keep(const char* kind, const QObject& widget, const QByteArray& state);

  QSettings settings_;
};

}  // namespace orvex::ui
