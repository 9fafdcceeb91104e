#pragma once

#include <QByteArray>
#include <QHash>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

// What the page asks for: its own files and the player's, which lie in this program's resources, and the movies that
// the station has put. Everything else is refused.
class Answers : public QWebEngineUrlSchemeHandler {
 public:
  // Before any page is made.
  static void RegisterScheme();
  static QUrl PageAddress();
  static QString HelperAddress();

  // Answers for a movie from now on; gives its address. Its folder is its own.
  QString AddMovie(qint64 serial, const QString& fileName, const QByteArray& bytes);
  void RemoveMovie(qint64 serial) { movies_.remove(serial); }

  void requestStarted(QWebEngineUrlRequestJob* job) override;

 private:
  struct Movie {
    QString path;
    QByteArray bytes;
  };

  QHash<qint64, Movie> movies_;
};
