#include "platform/qt/web/host/WebPage.h"

#include <QCborArray>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QtWebEngineQuick/QQuickWebEngineProfile>
#include <algorithm>
#include <csignal>
#include <utility>

#include "platform/qt/programs/host/Lives.h"
#include "platform/qt/web/WebWire.h"

namespace {

using std::chrono::milliseconds;

constexpr int kSomethingIsThere = 30;  // per cent of a page's loading: its first text is painted
constexpr milliseconds kAGoodLife{10'000};
constexpr milliseconds kFirstPause{250};
constexpr milliseconds kLongestPause{30'000};
constexpr milliseconds kFirstTry{2'000};
constexpr milliseconds kUntilAnotherBegins{100};
constexpr qint64 kLongestBlank = 500;  // milliseconds
constexpr milliseconds kBetweenQuestions{5'000};
constexpr int kTooManyQuestions = 4;
constexpr QSize kFirstSize{640, 480};

// Where nothing is painted yet, and the ground of a page.
constexpr uchar kNothing = 0x00;
constexpr uchar kWhite = 0xFF;

bool IsAll(uchar value, const QImage& picture) {
  const auto* bytes = picture.constBits();
  const auto size = static_cast<std::size_t>(picture.sizeInBytes());
  return std::all_of(bytes, bytes + size, [value](uchar byte) { return byte == value; });
}

}  // namespace

WebPage::WebPage(QQmlEngine& engine, QQuickWebEngineProfile& profile, Guard& guard, Listener listener)
    : listener_(std::move(listener)),
      gate_(guard, {[this] { Started(); }, [this] { Stopped(); }, [this](bool succeeded) { Ended(succeeded); },
                    [this](int percent) { Progress(percent); }, [this](const QString& address) { Hovered(address); },
                    [this] { Died(); }, [this] { unanswered_ = 0; }}),
      view_(engine, QUrl("qrc:/pages/View.qml"),
            {{"gate", QVariant::fromValue<QObject*>(&gate_)}, {"profile", QVariant::fromValue(&profile)}},
            [this] { Paint(); }) {
  comeBack_.setSingleShot(true);
  comeBack_.setInterval(kFirstPause);
  connect(&comeBack_, &QTimer::timeout, this, &WebPage::ComeBack);
  tryAgain_.setSingleShot(true);
  connect(&tryAgain_, &QTimer::timeout, this, &WebPage::Reload);
  watch_.setInterval(kBetweenQuestions);
  connect(&watch_, &QTimer::timeout, this, &WebPage::SeeWhetherItAnswers);
  watch_.start();
  view_.Resize(kFirstSize);
  // Nobody looks at the window, and yet keys go to its page.
  QFocusEvent focus(QEvent::FocusIn);
  QCoreApplication::sendEvent(&view_.Window(), &focus);
}

void WebPage::Place(std::shared_ptr<SharedFrames> frames) {
  frames_ = std::move(frames);
  if (!frames_) return;
  fresh_ = true;
  view_.Resize(frames_->Size());
  view_.Ask();
}

void WebPage::Open(const QUrl& address) {
  comeBack_.stop();
  comeBack_.setInterval(kFirstPause);
  tryAgain_.stop();
  pauseOfTry_ = kFirstTry;
  address_ = address;
  status_.clear();
  gate_.Open(address);
  if (address.isEmpty()) begun_ = false;
  Go();
}

void WebPage::Go() {
  arrived_ = false;
  view_.Item().setProperty("url", address_.isEmpty() ? QUrl("about:blank") : address_);
}

// What the browser would reload is the page before, as long as nothing has come of this one. One whose renderer has
// died comes back when its pause is over and no sooner.
void WebPage::Reload() {
  if (comeBack_.isActive()) return;
  tryAgain_.stop();
  if (arrived_) {
    QMetaObject::invokeMethod(&view_.Item(), "reload");
  } else {
    Go();
  }
}

void WebPage::SetLooks(int zoom, bool sound, bool scrollBars) {
  zoom_ = zoom;
  ApplyZoom();
  view_.Item().setProperty("audioMuted", !sound);
  view_.Item().property("settings").value<QObject*>()->setProperty("showScrollBars", scrollBars);
}

// A renderer that is new does not know it.
void WebPage::ApplyZoom() { view_.Item().setProperty("zoomFactor", zoom_ / 100.0); }

void WebPage::Progress(int percent) {
  if (percent >= kSomethingIsThere && !address_.isEmpty() && !comeBack_.isActive()) Begin();
}

void WebPage::Begin() {
  if (std::exchange(isNew_, false)) sinceBegun_.start();
  arrived_ = true;
  begun_ = true;
  view_.Ask();
}

void WebPage::Tell(const QString& status) {
  if (status == status_) return;
  status_ = status;
  listener_.status(status);
}

void WebPage::Hovered(const QString& address) {
  const bool loads = view_.Item().property("loading").toBool();
  if (!address_.isEmpty()) Tell(!address.isEmpty() ? address : loads ? "Loading.." : "Done");
}

void WebPage::Started() {
  isNew_ = true;
  if (!address_.isEmpty()) Tell("Loading..");
}

// By now another page may be loading.
void WebPage::Stopped() {
  QTimer::singleShot(kUntilAnotherBegins, this, [this] {
    if (!address_.isEmpty() && !view_.Item().property("loading").toBool()) Tell("Done");
  });
}

// A load that ends with its renderer is told as one that has come whole and failed.
void WebPage::Ended(bool succeeded) {
  if (address_.isEmpty() || comeBack_.isActive()) return;
  ApplyZoom();
  fresh_ = true;
  Begin();
  if (succeeded) {
    pauseOfTry_ = kFirstTry;
  } else {
    tryAgain_.start(pauseOfTry_);
    pauseOfTry_ = std::min(pauseOfTry_ * 2, kLongestPause);
  }
  Tell("Done");
  if (succeeded) listener_.loaded();
}

void WebPage::ComeBack() {
  sinceBack_.start();
  Reload();
}

// A page that brings its renderer down each time must not keep the machine busy with it.
void WebPage::Died() {
  if (address_.isEmpty() || comeBack_.isActive()) return;
  const bool livedWell = !sinceBack_.isValid() || milliseconds(sinceBack_.elapsed()) >= kAGoodLife;
  const milliseconds pause = livedWell ? kFirstPause : std::min(comeBack_.intervalAsDuration() * 2, kLongestPause);
  comeBack_.start(pause);
  begun_ = false;  // what it shows first is nothing
}

// A page may keep its renderer busy for ever, and each page of its server with it.
void WebPage::SeeWhetherItAnswers() {
  const auto renderer = view_.Item().property("renderProcessPid").toLongLong();
  if (address_.isEmpty() || comeBack_.isActive() || renderer <= 0) {
    unanswered_ = 0;
  } else if (unanswered_ < kTooManyQuestions) {
    ++unanswered_;
    QMetaObject::invokeMethod(&view_.Item(), "ask");
  } else if (Lives(renderer)) {
    unanswered_ = 0;
    kill(static_cast<pid_t>(renderer), SIGKILL);
  }
}

void WebPage::Paint() {
  if (!frames_ || !begun_ || comeBack_.isActive() || !view_.Paint()) return;
  const QImage& picture = view_.Picture();
  // Nothing comes before the ground, and the ground before the page; a page that is blank is believed after a while.
  const bool mayBeEarly = !sinceBegun_.hasExpired(kLongestBlank);
  const bool isNothing = IsAll(kNothing, picture);
  if (mayBeEarly && (isNothing || IsAll(kWhite, picture))) return view_.Ask();
  if (isNothing) return;  // the first painting asks again
  if (!fresh_ && !frames_->Differs(picture)) return;
  fresh_ = false;
  frames_->Publish(picture);
  listener_.painted();
}

void WebPage::Take(const QCborArray& input) {
  const auto number = [&input](qsizetype place) { return static_cast<int>(input[place].toInteger()); };
  const QString about = input[0].toString();
  if (about == wire::kKey) {
    QKeyEvent key(static_cast<QEvent::Type>(number(2)), number(3), Qt::KeyboardModifiers(number(4)),
                  input[5].toString());
    QCoreApplication::sendEvent(&view_.Window(), &key);
    return;
  }
  const bool isWheel = about == wire::kWheel;
  const QPointF place(input[isWheel ? 2 : 3].toDouble(), input[isWheel ? 3 : 4].toDouble());
  if (isWheel) {
    QWheelEvent wheel(place, place, {}, {number(4), number(5)}, Qt::MouseButtons(number(6)),
                      Qt::KeyboardModifiers(number(7)), Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view_.Window(), &wheel);
  } else {
    QMouseEvent mouse(static_cast<QEvent::Type>(number(2)), place, place, static_cast<Qt::MouseButton>(number(5)),
                      Qt::MouseButtons(number(6)), Qt::KeyboardModifiers(number(7)));
    QCoreApplication::sendEvent(&view_.Window(), &mouse);
    if (mouse.type() == QEvent::MouseButtonPress) view_.Item().forceActiveFocus();
  }
}
