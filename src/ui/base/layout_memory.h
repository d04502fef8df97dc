// Sizes, places and splitters of the windows, kept from one start to the next.
#pragma once

#include <QSettings>
#include <filesystem>
#include <functional>

class QHeaderView;
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

  bool RestoreSplitter(QSplitter& splitter) const;
  void KeepSplitter(const QSplitter& splitter);

  bool RestoreHeader(QHeaderView& header) const;
  void KeepHeader(const QHeaderView& header);

  // The entry of a list that the user stood on last, by the list's object name; "" for a new one.
  QString ChosenEntry(const QObject& list) const;
  void KeepChosenEntry(const QObject& list, const QString& entry);

 private:
  QVariant Value(const char* kind, const QObject& widget) const;
  void Keep(const char* kind, const QObject& widget, const QByteArray& state);

  QSettings settings_;
};

// A splitter that keeps its places under its name.
void Remember(LayoutMemory& memory, QSplitter& splitter);

}  // namespace orvex::ui
