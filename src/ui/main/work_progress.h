// Work on the one thread there is that lets the user in while it runs: a bar, and a way to cancel.
#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

namespace orvex::ui {

class WorkProgress final : public QProgressBar {
  Q_OBJECT

 public:
  explicit WorkProgress(const char* name);

  // Between the two the bar is in sight. A second piece of work never begins within the first.
  void Begin();
  void End();
  bool IsAtWork() const { return atWork_; }

  // To be called by the work now and then; both 0 where nobody knows how much there is. Shows how
  // far it is, lets events in every 30 milliseconds, and says whether the work goes on.
  bool GoOn(std::size_t done, std::size_t all);

  void Cancel() { canceled_ = true; }
  bool IsCanceled() const { return canceled_; }

 private:
  QElapsedTimer sinceEvents_;
  bool atWork_ = false;
  bool canceled_ = false;
};

}  // namespace orvex::ui
