#include "ui/base/desktop_scheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>
#include <optional>

#include "ui/base/desktop_scheme_listener.h"

namespace orvex::ui {

namespace {

constexpr const char* kService = "org.freedesktop.portal.Desktop";
constexpr const char* kPath = "/org/freedesktop/portal/desktop";
constexpr const char* kInterface = "org.freedesktop.portal.Settings";
constexpr const char* kNamespace = "org.freedesktop.appearance";
constexpr const char* kKey = "color-scheme";
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;

// The value lies in one variant or, from older portals, in two.
std::optional<bool> TellsDark(const QVariant& answer) {
  QVariant value = answer;
  while (value.canConvert<QDBusVariant>()) {
    value = value.value<QDBusVariant>().variant();
  }
  const uint scheme = value.toUInt();
  if (scheme == kPrefersDark || scheme == kPrefersLight) {
    return scheme == kPrefersDark;
  }
  return std::nullopt;
}

// A start does not wait for a portal that does not answer.
std::optional<bool> AskPortal(const QDBusConnection& bus) {
  constexpr int kPatience = 150;  // milliseconds
  QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Read");
  question << QString(kNamespace) << QString(kKey);
  const QDBusMessage answer = bus.call(question, QDBus::Block, kPatience);
  return answer.arguments().isEmpty() || answer.type() != QDBusMessage::ReplyMessage
             ? std::nullopt
             : TellsDark(answer.arguments().constFirst());
}

}  // namespace

void SchemeListener::Changed(const QString& group, const QString& key, const QDBusVariant& value) {
  if (group == kNamespace && key == kKey) {
    show_(TellsDark(value.variant()).value_or(false));
  }
}

void FollowDesktopScheme(QObject& owner, const QPalette& ofDesktop,
                         const std::function<void(bool)>& show) {
  const bool darkPalette = ofDesktop.color(QPalette::Window).lightness() <
                           ofDesktop.color(QPalette::WindowText).lightness();
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) {
    show(darkPalette);
    return;
  }
  show(AskPortal(bus).value_or(darkPalette));
  auto* listener = new SchemeListener(owner, show);
  bus.connect(kService, kPath, kInterface, "SettingChanged", listener,
              SLOT(Changed(QString, QString, QDBusVariant)));
}

}  // namespace orvex::ui
