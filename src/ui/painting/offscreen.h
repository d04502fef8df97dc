// Painting in a program that has no window.
#pragma once

#include <QGuiApplication>
#include <memory>

namespace orvex::ui {

// Fonts and images need an application object; this is one that asks for no display. Where one
// runs already, that one serves. Live in one thread, for as long as pictures are made.
class OffscreenPainting {
 public:
  OffscreenPainting();

 private:
  int argumentCount_ = 1;
  char name_[6] = "orvex";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QGuiApplication> application_;
};

}  // namespace orvex::ui
