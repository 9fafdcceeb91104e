#include "platform/qt/feeds/ReadFeed.h"

#include <QDateTime>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <vector>

#include "platform/qt/feeds/HtmlText.h"

namespace {

// Of a title that is still HTML; far more than is shown of it.
constexpr qsizetype kMostRawLetters = 8000;

// Feeds name letters as HTML does, without saying that they do.
class HtmlNames : public QXmlStreamEntityResolver {
  QString resolveUndeclaredEntity(const QString& name) override { return NamedLetter(name); }
};

struct Item {
  QString title;
  bool isHtml = true;
  QString date;
};

// "Sun, 15 Nov 2026 07:00:00 GMT" as feeds write it, or "2026-11-15T07:00:00Z".
QDateTime DateOf(const QString& text) {
  static constexpr auto kZones = std::to_array<std::pair<const char*, const char*>>({{"GMT", "+0000"},
                                                                                     {"UTC", "+0000"},
                                                                                     {"UT", "+0000"},
                                                                                     {"Z", "+0000"},
                                                                                     {"EST", "-0500"},
                                                                                     {"EDT", "-0400"},
                                                                                     {"CST", "-0600"},
                                                                                     {"CDT", "-0500"},
                                                                                     {"MST", "-0700"},
                                                                                     {"MDT", "-0600"},
                                                                                     {"PST", "-0800"},
                                                                                     {"PDT", "-0700"}});
  QString plain = text.simplified();
  if (const QDateTime date = QDateTime::fromString(plain, Qt::ISODate); date.isValid()) return date;
  for (const auto& [name, offset] : kZones) {
    if (!plain.endsWith(QString(" ") + name)) continue;
    plain = plain.left(plain.lastIndexOf(' ') + 1) + offset;
    break;
  }
  return QDateTime::fromString(plain, Qt::RFC2822Date);
}

// One pass through a feed. It keeps its own depth: a feed may be nested as deeply as its bytes go.
class Reading {
 public:
  explicit Reading(const QByteArray& body) : xml_(body) { xml_.setEntityResolver(&names_); }

  std::optional<std::vector<Item>> Items() {
    while (!xml_.atEnd()) {
      switch (xml_.readNext()) {
        case QXmlStreamReader::DTD:
          if (!xml_.entityDeclarations().isEmpty()) return std::nullopt;
          break;
        case QXmlStreamReader::StartElement:
          if (++depth_ == 1 && !IsFeed()) return std::nullopt;
          Enter();
          break;
        case QXmlStreamReader::Characters:
          if (field_ != nullptr) Append(xml_.text());
          break;
        case QXmlStreamReader::EndElement:
          Leave();
          --depth_;
          break;
        default:
          break;
      }
    }
    if (xml_.hasError()) return std::nullopt;
    return std::move(items_);
  }

 private:
  bool IsFeed() const { return xml_.name() == u"rss" || xml_.name() == u"RDF" || xml_.name() == u"feed"; }

  void Enter() {
    const QStringView name = xml_.name();
    if (itemDepth_ == 0) {
      if (depth_ == 1 || (name != u"item" && name != u"entry")) return;
      itemDepth_ = depth_;
      space_ = xml_.namespaceUri().toString();
      items_.emplace_back();
    } else if (depth_ == itemDepth_ + 1) {
      EnterPart(name);
    }
  }

  // Other vocabularies have titles too; theirs are of pictures and sources.
  void EnterPart(QStringView name) {
    Item& item = items_.back();
    if (name == u"title" && xml_.namespaceUri() == space_ && item.title.isEmpty()) {
      const QXmlStreamAttributes attributes = xml_.attributes();
      const QStringView type = attributes.value("type");
      const bool isAtom = space_.contains(u"atom", Qt::CaseInsensitive);
      item.isHtml = !isAtom || type == u"html" || type == u"text/html";
      field_ = &item.title;
    } else if (name == u"pubDate" || name == u"date" || name == u"published") {
      item.date.clear();
      field_ = &item.date;
    } else if (name == u"updated" && item.date.isEmpty()) {
      field_ = &item.date;
    }
  }

  void Append(QStringView text) const {
    field_->append(text.first(std::min(text.size(), kMostRawLetters - field_->size())));
  }

  void Leave() {
    if (depth_ == itemDepth_ + 1) field_ = nullptr;
    if (depth_ == itemDepth_) itemDepth_ = 0;
  }

  HtmlNames names_;
  QXmlStreamReader xml_;
  int depth_ = 0;
  int itemDepth_ = 0;  // of the item that is being read; 0 outside of one
  QString space_;      // the item's vocabulary
  QString* field_ = nullptr;
  std::vector<Item> items_;
};

void SortByDate(std::vector<Item>& items) {
  std::vector<std::pair<QDateTime, Item>> dated;
  dated.reserve(items.size());
  for (Item& item : items) {
    const QDateTime date = DateOf(item.date);
    if (!date.isValid()) return;
    dated.emplace_back(date, item);
  }
  std::ranges::stable_sort(dated, [](const auto& one, const auto& other) { return one.first > other.first; });
  std::ranges::transform(dated, items.begin(), [](const auto& one) { return one.second; });
}

}  // namespace

std::optional<FeedTitles> ReadFeed(const QByteArray& body) {
  if (body.contains("<!ENTITY")) return std::nullopt;
  auto items = Reading(body).Items();
  if (!items) return std::nullopt;
  SortByDate(*items);
  std::vector<std::string> titles;
  titles.reserve(items->size());
  for (const Item& item : *items) {
    titles.push_back((item.isHtml ? TextOfHtml(item.title) : item.title).toStdString());
  }
  return TidyTitles(titles);
}
