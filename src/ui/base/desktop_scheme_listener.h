// Hears the desktop change between light and dark.
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <functional>
#include <utility>

namespace orvex::ui {

class SchemeListener final : public QObject {
  Q_OBJECT

 public:
  SchemeListener(QObject& owner, std::function<void(bool)> show)
      : QObject(&owner), show_(std::move(show)) {}

 public slots:
  void Changed(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  std::function<void(bool)> show_;
};

}  // namespace orvex::ui
