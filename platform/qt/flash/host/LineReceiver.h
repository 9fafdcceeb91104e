#pragma once

#include <QObject>
#include <QString>
#include <functional>

// A slot for signals that only QML knows, which no function can be connected to.
class LineReceiver : public QObject {
  Q_OBJECT
 public:
  LineReceiver(std::function<void(const QString&)> heard, QObject* parent)
      : QObject(parent), heard_(std::move(heard)) {}

 public slots:
  void Hear(const QString& line = {}) { heard_(line); }

 private:
  std::function<void(const QString&)> heard_;
};
