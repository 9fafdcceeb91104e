#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QQmlEngine>
#include <array>
#include <map>
#include <memory>
#include <optional>

#include "platform/qt/flash/host/Answers.h"
#include "platform/qt/flash/host/Page.h"
#include "platform/qt/programs/host/StationLink.h"

// Plays the station's movies in two unseen pages of one renderer process, each where its page grows least, so that both
// stay small. Brings movies back when the renderer or the player fails, and keeps those out that make it fail.
class MovieHost : public QObject {
 public:
  MovieHost();
  ~MovieHost() override;

 private:
  struct Movie {
    qint64 serial = 0;
    QString path;
    bool fill = true;
    bool seeThrough = true;
    bool silent = false;
    QList<std::pair<QString, QString>> variables;  // what was set, in order
    int load = 0;                                  // counts the loads of all; 0: not loaded yet
    QElapsedTimer sinceUp;                         // begun with its first picture
    int deaths = 0;                                // of the renderer while this one was coming up
  };
  struct Slot {
    QSize size;
    std::shared_ptr<SharedFrames> frames;
    int page = 0;
    std::optional<Movie> movie;
  };
  static constexpr int kPages = 2;

  void Hear(const QCborArray& parts, Descriptor memory);
  void Resize(int number, QSize size, Descriptor memory);
  void Put(int number, Movie movie);
  void Load(int number);
  void Set(int number, qint64 serial, const QString& name, const QString& value);
  void Silence(int number, bool silent);
  void Forget(Slot& slot);
  void End(int number);

  int PageFor(int number, const Slot& slot) const;
  Page& PageOf(const Slot& slot);
  Page& PageAt(int number);
  void Told(int page, const QJsonArray& line);
  void Panicked(int page, std::optional<int> culprit);
  void Died();
  void FindSuspect();
  void ComeBack(int page, std::optional<int> suspect);
  std::optional<int> LastLoaded(std::optional<int> page) const;
  void Refuse(int number);

  StationLink station_;
  Answers answers_;
  QQmlEngine engine_;
  std::array<std::unique_ptr<Page>, kPages> pages_;
  std::array<int, kPages> loads_{};  // since the page was loaded
  std::map<int, Slot> slots_;
  int lastLoad_ = 0;
  bool comingBack_ = false;
  std::optional<int> suspect_;  // of the last death
};
