// Long work in a status line: what is being done with a bar and Cancel, and at its end what came of
// it, to be opened from there.
#pragma once

#include <QWidget>
#include <filesystem>

#include "ui/base/workplace.h"

class QLabel;
class QProgressBar;
class QToolButton;

namespace orvex::ui {

class JobLine final : public QWidget {
  Q_OBJECT

 public:
  // Not in sight before something begins.
  explicit JobLine(Workplace& place);

  void Begin(const QString& text);
  void ShowProgress(int thousandths);

  // Offers the file where there is one, and the folder that holds it or, without a file, `folder`.
  // Stays until something else begins or the user takes it away.
  void End(const QString& text, const std::filesystem::path& file,
           const std::filesystem::path& folder);

 signals:
  void CancelWanted();

 private:
  QToolButton* MakeButton(const char* name, const QString& text);
  void Open(const std::filesystem::path& file);

  Workplace& place_;
  QLabel* text_;
  QProgressBar* bar_;
  QToolButton* cancel_;
  QToolButton* open_;
  QToolButton* openFolder_;
  QToolButton* away_;
  std::filesystem::path file_;
  std::filesystem::path folder_;
};

}  // namespace orvex::ui
