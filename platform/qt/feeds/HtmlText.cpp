#include "platform/qt/feeds/HtmlText.h"

#include <algorithm>
#include <iterator>

namespace {

// From U+00A0 on, in their order.
constexpr const char* kLatin[] = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",   "ordf",
    "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",
    "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave",
    "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",
    "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",
    "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute",
    "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave",
    "iacute", "icirc",  "iuml",   "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};
static_assert(std::size(kLatin) == 96);

constexpr struct {
  const char* name;
  char16_t letter;
} kSigns[] = {{"amp", u'&'},         {"lt", u'<'},          {"gt", u'>'},          {"quot", u'"'},
              {"apos", u'\''},       {"OElig", u'\u0152'},  {"oelig", u'\u0153'},  {"Scaron", u'\u0160'},
              {"scaron", u'\u0161'}, {"ensp", u'\u2002'},   {"emsp", u'\u2003'},   {"thinsp", u'\u2009'},
              {"ndash", u'\u2013'},  {"mdash", u'\u2014'},  {"lsquo", u'\u2018'},  {"rsquo", u'\u2019'},
              {"sbquo", u'\u201A'},  {"ldquo", u'\u201C'},  {"rdquo", u'\u201D'},  {"bdquo", u'\u201E'},
              {"dagger", u'\u2020'}, {"bull", u'\u2022'},   {"hellip", u'\u2026'}, {"permil", u'\u2030'},
              {"lsaquo", u'\u2039'}, {"rsaquo", u'\u203A'}, {"euro", u'\u20AC'},   {"trade", u'\u2122'}};

// What is meant by the numbers 128 to 159, as every browser takes them.
constexpr char16_t kOfWindows[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
static_assert(std::size(kOfWindows) == 32);

constexpr char32_t kReplacement = 0xFFFD;
// Tags at which a reader sees a gap.
constexpr const char* kApart[] = {"br", "p", "div", "li", "td", "tr", "h1", "h2", "h3", "h4"};

// "#8364", "#x20ac" or a name, without "&" and ";". Empty where it is none of them.
QString LetterOf(QStringView word) {
  if (!word.startsWith(u'#')) return NamedLetter(word);
  const bool isHex = word.size() > 1 && word[1].toLower() == u'x';
  bool isNumber = false;
  const uint point = word.mid(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
  if (!isNumber) return {};
  if (point >= 0x80 && point < 0xA0) return QString(QChar(kOfWindows[point - 0x80]));
  const bool isLetter = point != 0 && point <= QChar::LastValidCodePoint && !QChar::isSurrogate(point);
  const char32_t letter = isLetter ? point : kReplacement;
  return QString::fromUcs4(&letter, 1);
}

// A walk through a piece of HTML.
class Walk {
 public:
  explicit Walk(const QString& html) : html_(html) {}

  QString Text() {
    while (at_ < html_.size()) {
      const QChar sign = html_[at_];
      if (!(sign == u'<' && SkipTag()) && !(sign == u'&' && TakeLetter())) {
        text_ += sign;
        ++at_;
      }
    }
    return text_;
  }

 private:
  // "<" begins a tag only before a letter, "/", "!" or "?"; one that never ends is none.
  bool SkipTag() {
    const QChar next = at_ + 1 < html_.size() ? html_[at_ + 1] : QChar();
    if (!next.isLetter() && next != u'/' && next != u'!' && next != u'?') return false;
    const qsizetype end = html_.indexOf(u'>', at_);
    if (end < 0) return false;
    const QString name = NameAt(next == u'/' ? at_ + 2 : at_ + 1);
    at_ = end + 1;
    if (next != u'/' && (name == u"script" || name == u"style")) SkipTo(QString("</") + name);
    if (std::ranges::any_of(kApart, [&](const char* apart) { return name == apart; })) text_ += u' ';
    return true;
  }

  // Behind the tag that begins so; where there is none, to the end.
  void SkipTo(const QString& tag) {
    const qsizetype begin = html_.indexOf(tag, at_, Qt::CaseInsensitive);
    const qsizetype end = begin < 0 ? -1 : html_.indexOf(u'>', begin);
    at_ = end < 0 ? html_.size() : end + 1;
  }

  QString NameAt(qsizetype begin) const {
    qsizetype end = begin;
    while (end < html_.size() && html_[end].isLetterOrNumber()) ++end;
    return html_.mid(begin, end - begin).toLower();
  }

  bool TakeLetter() {
    constexpr qsizetype kLongestName = 12;
    const qsizetype end = html_.indexOf(u';', at_);
    if (end < 0 || end - at_ > kLongestName) return false;
    const QString letter = LetterOf(QStringView(html_).mid(at_ + 1, end - at_ - 1));
    if (letter.isEmpty()) return false;
    text_ += letter;
    at_ = end + 1;
    return true;
  }

  const QString& html_;
  qsizetype at_ = 0;
  QString text_;
};

}  // namespace

QString NamedLetter(QStringView name) {
  const auto latin = std::ranges::find_if(kLatin, [&](const char* known) { return name == QLatin1StringView(known); });
  if (latin != std::end(kLatin)) return QChar(static_cast<char16_t>(0xA0 + (latin - kLatin)));
  const auto sign = std::ranges::find_if(kSigns, [&](const auto& row) { return name == QLatin1StringView(row.name); });
  return sign == std::end(kSigns) ? QString() : QString(QChar(sign->letter));
}

QString TextOfHtml(const QString& html) { return Walk(html).Text(); }
