#pragma once

#include <QObject>
#include <QString>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>
#include <functional>
#include <set>

class Guard;

// Where one page may go, and what it tells. A page of the network reaches no file; the page of the disk that the
// operator has named reaches its own folder alone.
class Gate : public QObject {
  Q_OBJECT
 public:
  struct Listener {
    std::function<void()> started;
    std::function<void()> stopped;  // left for another page, or come to nothing
    std::function<void(bool succeeded)> ended;
    std::function<void(int percent)> progress;
    std::function<void(const QString& address)> hovered;
    std::function<void()> died;      // its renderer process
    std::function<void()> answered;  // what the view was asked by `ask`
  };

  // The guard must outlive it.
  Gate(Guard& guard, Listener listener);
  ~Gate() override;

  // The operator opens this.
  void Open(const QUrl& address);
  // Whether the file is the page's own, or lies beside or below it.
  bool Holds(const QUrl& file) const;

  Q_INVOKABLE bool MayGo(const QUrl& address) const;
  // In the place of a new window; one with nothing in it is none.
  Q_INVOKABLE bool MayOpen(const QUrl& address) const;
  Q_INVOKABLE void Started() { listener_.started(); }
  Q_INVOKABLE void Stopped() { listener_.stopped(); }
  Q_INVOKABLE void Ended(bool succeeded) { listener_.ended(succeeded); }
  Q_INVOKABLE void Progress(int percent) { listener_.progress(percent); }
  Q_INVOKABLE void Hovered(const QUrl& address) { listener_.hovered(address.toString()); }
  Q_INVOKABLE void Died() { listener_.died(); }
  Q_INVOKABLE void Answered() { listener_.answered(); }

 private:
  Guard& guard_;
  Listener listener_;
  QString folder_;  // of the page of the disk, by its real name; empty for a page of the network
};

// The same for all that pages load into themselves. The browser does not always tell for which page of the disk it
// loads; then a file that is any page's own is given.
class Guard : public QWebEngineUrlRequestInterceptor {
 public:
  void interceptRequest(QWebEngineUrlRequestInfo& request) override;

 private:
  friend class Gate;

  std::set<const Gate*> gates_;
};
