#include "platform/qt/flash/host/MovieHost.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QtWebEngineQuick/QQuickWebEngineProfile>
#include <algorithm>

#include "platform/qt/flash/MovieWire.h"
#include "platform/swf/Container.h"
#include "platform/swf/MakeReporting.h"

namespace {

constexpr QSize kUnseen{32, 32};         // as large plays what nobody sees
constexpr int kLoadsOfAPage = 100;       // each leaves some memory that only a new page gives back
constexpr qint64 kPageItself = 200'000;  // pixels; what a page costs beside its area
constexpr int kWorthMoving = 2;          // how many times smaller the growth elsewhere has to be
constexpr qint64 kMostBytes = 128 << 20;
constexpr qint64 kSuspicious = 3000;    // milliseconds after its first picture in which a movie is to blame for a death
constexpr int kUntilTheSuspect = 1500;  // it comes back this much later than the others
constexpr int kDeathsAllowed = 1;

QJsonArray FieldsOf(const swf::ReportingMovie& movie) {
  QJsonArray fields;
  for (const swf::WrappedField& field : movie.fields) {
    QJsonArray clips;
    for (const std::string& clip : field.clips) clips << QString::fromStdString(clip);
    const swf::TextLooks& looks = field.looks;
    fields << QJsonObject{{"variable", QString::fromLatin1(field.variable.c_str())},
                          {"clips", clips},
                          {"looks", QJsonObject{{"left", looks.left},
                                                {"top", looks.top},
                                                {"width", looks.width},
                                                {"height", looks.height},
                                                {"fontHeight", looks.fontHeight},
                                                {"colour", static_cast<qint64>(looks.colour)},
                                                {"align", looks.align},
                                                {"leftMargin", looks.leftMargin},
                                                {"rightMargin", looks.rightMargin},
                                                {"multiline", looks.multiline}}}};
  }
  return fields;
}

std::optional<swf::ReportingMovie> ReadMovie(const QString& path) {
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > kMostBytes) return std::nullopt;
  const auto unpacked = swf::Unpacked(file.readAll().toStdString(), kMostBytes);
  if (!unpacked) return std::nullopt;
  return swf::MakeReporting(*unpacked, Answers::HelperAddress().toStdString());
}

}  // namespace

MovieHost::MovieHost()
    : station_([this](const QCborArray& message, Descriptor memory) { Hear(message, std::move(memory)); }) {
  QQuickWebEngineProfile* profile = QQuickWebEngineProfile::defaultProfile();
  profile->setOffTheRecord(true);
  profile->installUrlSchemeHandler("station", &answers_);
  PageAt(0);
}

MovieHost::~MovieHost() = default;

Page& MovieHost::PageAt(int number) {
  auto& page = pages_[static_cast<std::size_t>(number)];
  if (!page) {
    page =
        std::make_unique<Page>(engine_, Page::Listener{[this, number](const QJsonArray& line) { Told(number, line); },
                                                       [this](const QList<int>& changed) {
                                                         QCborArray message{wire::kPictures};
                                                         for (const int slot : changed) message << slot;
                                                         station_.Send(message);
                                                       },
                                                       [this] { Died(); }});
  }
  return *page;
}

Page& MovieHost::PageOf(const Slot& slot) { return PageAt(slot.page); }

void MovieHost::Hear(const QCborArray& parts, Descriptor memory) {
  const QString about = parts[0].toString();
  const auto number = static_cast<int>(parts[1].toInteger());
  if (about == wire::kSlot) {
    Resize(number, {static_cast<int>(parts[2].toInteger()), static_cast<int>(parts[3].toInteger())}, std::move(memory));
  } else if (about == wire::kPut) {
    Put(number, {parts[2].toInteger(),
                 parts[3].toString(),
                 parts[4].toBool(),
                 parts[5].toBool(),
                 parts[6].toBool(),
                 {},
                 0,
                 {},
                 0});
  } else if (about == wire::kSet) {
    Set(number, parts[2].toInteger(), parts[3].toString(), parts[4].toString());
  } else if (about == wire::kSilence) {
    Silence(number, parts[2].toBool());
  } else if (about == wire::kClear) {
    Forget(slots_[number]);
    PageOf(slots_[number]).Call("clear", {number});
  } else if (about == wire::kEnd) {
    End(number);
  }
}

// A page costs what its area costs, and a strip as wide as the screen beside a column as high as it would make a page
// of the screen's size.
int MovieHost::PageFor(int number, const Slot& slot) const {
  const auto growth = [&](int page) {
    const auto& there = pages_[static_cast<std::size_t>(page)];
    if (there) return there->GrowthWith(number, slot.size);
    return kPageItself + qint64{slot.size.width()} * slot.size.height();
  };
  const int other = 1 - slot.page;
  return growth(other) * (slot.movie ? kWorthMoving : 1) < growth(slot.page) ? other : slot.page;
}

// A movie that changes its page begins there anew.
void MovieHost::Resize(int number, QSize size, Descriptor memory) {
  Slot& slot = slots_[number];
  slot.frames = SharedFrames::Open(std::move(memory), size);
  slot.size = slot.frames ? size : kUnseen;
  const int page = slot.frames ? PageFor(number, slot) : slot.page;
  const bool moves = page != slot.page && slot.movie && (slot.movie->load > 0 || comingBack_);
  if (page != slot.page && pages_[static_cast<std::size_t>(slot.page)]) PageOf(slot).Remove(number);
  slot.page = page;
  PageOf(slot).Place(number, slot.size, slot.frames);
  if (moves) Load(number);
}

void MovieHost::Put(int number, Movie movie) {
  Slot& slot = slots_[number];
  Forget(slot);
  slot.movie = std::move(movie);
  if (++loads_[static_cast<std::size_t>(slot.page)] > kLoadsOfAPage && !comingBack_) {
    ComeBack(slot.page, std::nullopt);
  } else {
    QMetaObject::invokeMethod(
        this,
        [this, number, serial = slot.movie->serial] {
          const auto found = slots_.find(number);
          if (found != slots_.end() && found->second.movie && found->second.movie->serial == serial) Load(number);
        },
        Qt::QueuedConnection);  // behind the variables that were set right after the put
  }
}

void MovieHost::Load(int number) {
  Slot& slot = slots_[number];
  Movie& movie = *slot.movie;
  const auto reporting = ReadMovie(movie.path);
  if (!reporting) return Refuse(number);
  const auto header = swf::ReadHeader(reporting->bytes);
  const QString address =
      answers_.AddMovie(movie.serial, QFileInfo(movie.path).fileName(), QByteArray::fromStdString(reporting->bytes));
  QJsonArray variables;
  for (const auto& [name, value] : movie.variables) variables << QJsonArray{name, value};
  movie.load = ++lastLoad_;
  movie.sinceUp.invalidate();
  PageOf(slot).Call("put", {number, QJsonObject{{"serial", movie.serial},
                                                {"address", address},
                                                {"base", address.left(address.lastIndexOf('/') + 1)},
                                                {"rate", header->framesPerSecond},
                                                {"frames", reporting->frames},
                                                {"script3", reporting->script3},
                                                {"sounds", reporting->sounds},
                                                {"fields", FieldsOf(*reporting)},
                                                {"fit", movie.fill ? "exactFit" : "showAll"},
                                                {"back", movie.seeThrough ? "transparent" : "opaque"},
                                                {"silent", movie.silent},
                                                {"variables", variables}}});
}

void MovieHost::Set(int number, qint64 serial, const QString& name, const QString& value) {
  const auto found = slots_.find(number);
  if (found == slots_.end() || !found->second.movie || found->second.movie->serial != serial) return;
  Movie& movie = *found->second.movie;
  movie.variables.removeIf([&name](const auto& variable) { return variable.first == name; });
  movie.variables.append({name, value});
  if (movie.load > 0) PageOf(found->second).Call("set", {number, serial, name, value});
}

// Also of a movie that is coming up, and of one that a page that comes back begins anew.
void MovieHost::Silence(int number, bool silent) {
  Slot& slot = slots_[number];
  if (slot.movie) slot.movie->silent = silent;
  PageOf(slot).Call("silence", {number, silent});
}

void MovieHost::Forget(Slot& slot) {
  if (slot.movie) answers_.RemoveMovie(slot.movie->serial);
  slot.movie.reset();
}

void MovieHost::End(int number) {
  const auto found = slots_.find(number);
  if (found == slots_.end()) return;
  Forget(found->second);
  PageOf(found->second).Remove(number);
  slots_.erase(found);
}

void MovieHost::Refuse(int number) {
  Slot& slot = slots_[number];
  if (!slot.movie) return;
  station_.Send({wire::kBad, number, slot.movie->serial});
  Forget(slot);
}

void MovieHost::Told(int page, const QJsonArray& line) {
  const QString what = line[0].toString();
  if (what == "frames") {
    const QJsonArray list = line[1].toArray();
    QCborArray message{wire::kFrames};
    for (const QJsonValue& one : list) message << one.toInteger();
    station_.Send(message);
  } else if (what == "up" || what == "bad") {
    const int number = line[1].toInt();
    const qint64 serial = line[2].toInteger();
    const auto found = slots_.find(number);
    const bool isPresent = found != slots_.end() && found->second.movie && found->second.movie->serial == serial;
    if (what == "up" && isPresent) found->second.movie->sinceUp.start();
    if (what == "bad" && isPresent) {
      Refuse(number);
    } else {
      station_.Send({what == "up" ? wire::kUp : wire::kBad, number, serial});
    }
  } else if (what == "panic") {
    Panicked(page, line.size() > 1 ? std::optional(line[1].toInt()) : std::nullopt);
  }
}

std::optional<int> MovieHost::LastLoaded(std::optional<int> page) const {
  std::optional<int> last;
  for (const auto& [number, slot] : slots_) {
    if (!slot.movie || slot.movie->load == 0 || (page && slot.page != *page)) continue;
    if (!last || slot.movie->load > slots_.at(*last).movie->load) last = number;
  }
  return last;
}

// A fault of the player stops every movie of its page and all later loads. The movie that it came from stays out until
// it is put again.
void MovieHost::Panicked(int page, std::optional<int> culprit) {
  if (comingBack_) return;
  if (!culprit) culprit = LastLoaded(page);
  if (culprit) Refuse(*culprit);
  ComeBack(page, std::nullopt);
}

// Only a movie that was just coming up is to blame, and only the second time; it comes back behind the others, so that
// a second death is its own.
void MovieHost::Died() {
  if (comingBack_) return;
  const bool anyPlayed = std::ranges::any_of(pages_, [](const auto& page) { return page && page->IsReady(); });
  // A renderer that dies before its page is there was brought down by no movie.
  if (anyPlayed) FindSuspect();
  for (int page = 0; page < kPages; ++page) {
    if (pages_[static_cast<std::size_t>(page)]) ComeBack(page, suspect_);
  }
}

void MovieHost::FindSuspect() {
  suspect_ = LastLoaded(std::nullopt);
  if (!suspect_) return;
  Movie& movie = *slots_[*suspect_].movie;
  if (movie.sinceUp.isValid() && movie.sinceUp.elapsed() > kSuspicious) {
    suspect_.reset();
  } else if (movie.deaths++ >= kDeathsAllowed) {
    Refuse(*suspect_);
    suspect_.reset();
  }
}

// Once for all that fails in the same moment: every page tells of the one renderer's death.
void MovieHost::ComeBack(int page, std::optional<int> suspect) {
  comingBack_ = true;
  loads_[static_cast<std::size_t>(page)] = 0;
  PageAt(page).Reload();
  QTimer::singleShot(0, this, [this, page, suspect] {
    comingBack_ = false;
    for (const auto& [number, slot] : std::map(slots_)) {
      if (slot.page != page || !slot.movie) continue;
      if (number != suspect) {
        Load(number);
        continue;
      }
      QTimer::singleShot(kUntilTheSuspect, this, [this, number = number, serial = slot.movie->serial] {
        const auto found = slots_.find(number);
        if (found != slots_.end() && found->second.movie && found->second.movie->serial == serial) Load(number);
      });
    }
  });
}
