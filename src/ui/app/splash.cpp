#include "ui/app/splash.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QScreen>

#include "core/startup.h"
#include "ui/base/theme.h"

namespace orvex::ui {

namespace {

QPixmap Picture() {
  constexpr QSize kSize(50 * kGrid, 20 * kGrid);
  const double ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
  QPixmap pixmap(kSize * ratio);
  pixmap.setDevicePixelRatio(ratio);
  const QPalette palette = QGuiApplication::palette();
  pixmap.fill(palette.color(QPalette::Base));
  QPainter painter(&pixmap);
  painter.setPen(palette.color(QPalette::Mid));
  painter.drawRect(0, 0, kSize.width() - 1, kSize.height() - 1);
  painter.setPen(palette.color(QPalette::Text));
  const QRect room = QRect(QPoint(0, 0), kSize).adjusted(kMargin, kMargin, -kMargin, -kMargin);
  painter.setFont(Theme::HeadingFont());
  painter.drawText(room, Qt::AlignCenter, "Orvex+");
  painter.setFont(QGuiApplication::font());
  painter.setPen(Theme::Muted());
  painter.drawText(room, Qt::AlignBottom | Qt::AlignHCenter, core::ProgramVersion());
  return pixmap;
}

}  // namespace

Splash::Splash() : QSplashScreen(Picture()) { setObjectName("splash"); }

}  // namespace orvex::ui
