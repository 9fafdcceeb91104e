#include "platform/qt/forms/look/EmptyTexts.h"

#include <QPainter>
#include <algorithm>

#include "platform/qt/forms/look/Look.h"

namespace {

constexpr EmptyTextRow kTexts[] = {
    {"frmAdSett", "ListAd", "Choose a header and a scroll picture below, type a name and press \"Save\"."},
    {"frmBreakingNewsSett", "ListNews", "Write a headline below and press \"Add\"."},
    {"frmClockSett", "FolderList", "Press \"Add new cetagory\" to make the first one."},
    {"frmClockSett", "FileList", "Choose a category, then press \"Browse\" and choose a movie."},
    {"frmFlashAdSett", "FolderList", "Press \"Add new cetagory\" to make the first one."},
    {"frmFlashAdSett", "File", "Click a category, then press \"Browse\" and choose a movie."},
    {"frmLeftSideAdSett", "FolderList", "Press \"Add new cetagory\" to make the first one."},
    {"frmLeftSideAdSett", "File", "Click a category, then press \"Browse\" and choose a movie."},
    {"frmLogoSett", "FolderList", "Press \"Add new cetagory\" to make the first one."},
    {"frmLogoSett", "FileList", "Choose a category, then press \"Browse\" and choose a movie or a picture."},
    {"frmOnlineRadio", "ListType", "Press \"Add new channel type\" to make the first one."},
    {"frmOnlineRadio", "ListChannel", "Click a channel type. New channels are added below."},
    {"frmOnlineTV", "ListType", "Press \"Add new channel type\" to make the first one."},
    {"frmOnlineTV", "ListChannel", "Click a channel type. New channels are added below."},
    {"frmPageSettings", "listPage", "Press \"Add page\" to make the first one."},
    {"frmPlaylist", "FilePlaylist", "Press \"Add new playlist\" to make the first one."},
    {"frmPlaylist", "ListPlay", "Choose a playlist, then select a file below and press \"Add\"."},
    {"frmPlaylist", "FileList", "Press \"Browse\" and choose a folder with videos."},
    {"frmPlaylist", "FileQuick", "Press \"Load folder\" and choose a folder with videos."},
    {"frmPlaylist", "ListSchedule", "Choose date, time and playlist, then press \"Add schedule\"."},
    {"frmPlaylist", "ListTime", "Not in use."},
    {"frmStikerSett", "FolderList", "Press \"Add new cetagory\" to make the first one."},
    {"frmStikerSett", "FileList", "Choose a category, then press \"Browse\" and choose a movie or a picture."},
    {"frmVideoAdSett", "ListAd", "Press \"Load Ad file\" and choose a video, then press \"Save Ad file\"."},
};

constexpr char kProperty[] = "whenEmpty";

}  // namespace

std::span<const EmptyTextRow> EmptyTexts() { return kTexts; }

QString EmptyText(const QString& form, const QString& list) {
  const auto row = std::ranges::find_if(
      kTexts, [&](const EmptyTextRow& candidate) { return form == candidate.form && list == candidate.list; });
  return row == std::end(kTexts) ? QString() : QString(row->text);
}

void SetEmptyText(QAbstractItemView& list, const QString& text) {
  list.setProperty(kProperty, text);
  list.setAccessibleDescription(text);
}

void DrawEmptyText(const QAbstractItemView& list) {
  if (list.model() != nullptr && list.model()->rowCount(list.rootIndex()) > 0) return;
  const QString text = list.property(kProperty).toString();
  if (text.isEmpty()) return;
  QPainter painter(list.viewport());
  painter.setPen(list.palette().color(QPalette::PlaceholderText));
  const QRect room = list.viewport()->rect().adjusted(kSpaceBetween, 0, -kSpaceBetween, 0);
  painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, text);
}
