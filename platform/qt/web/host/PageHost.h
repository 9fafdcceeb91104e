#pragma once

#include <QObject>
#include <QQmlEngine>
#include <map>
#include <memory>

#include "platform/qt/programs/host/StationLink.h"
#include "platform/qt/web/host/WebPage.h"

class QQuickWebEngineProfile;

// Shows the station's web pages. What they may keep between runs lies in one folder of the station's.
class PageHost : public QObject {
 public:
  PageHost();
  ~PageHost() override;

 private:
  void Hear(const QCborArray& parts, Descriptor memory);
  void MakeProfile(const QString& folder, bool throwsAway);
  WebPage& PageAt(int slot);

  StationLink station_;
  QQmlEngine engine_;
  Guard guard_;
  std::unique_ptr<QQuickWebEngineProfile> profile_;
  std::map<int, std::unique_ptr<WebPage>> pages_;
  std::map<int, qint64> serials_;  // of what is open
};
