#include "platform/qt/forms/look/Icons.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

namespace {

// The build reads the last text of each row of these tables and takes that icon into the program.
constexpr IconRow kControls[] = {
    {"", "BtnSetLogo", "dialog-ok-apply"},
    {"", "btnAdd", "list-add"},
    {"", "btnAudio", "audio-volume-high"},
    {"", "btnBrows", "document-open-folder"},
    {"", "btnCreateList", "list-add"},
    {"", "btnCreatePlaylist", "list-add"},
    {"", "btnDelete", "edit-delete"},
    {"", "btnDeletePlaylist", "list-remove"},
    {"", "btnDown", "go-down"},
    {"", "btnGo", "media-playback-start"},
    {"", "btnHeader", "document-open"},
    {"", "btnLoad", "document-open"},
    {"", "btnLoadFolder", "document-open-folder"},
    {"", "btnLoadLeft", "document-open"},
    {"", "btnLoadRight", "document-open"},
    {"", "btnLoadScorl", "document-open"},
    {"", "btnMostDown", "go-bottom"},
    {"", "btnMostUp", "go-top"},
    {"", "btnPassSave", "document-encrypt"},
    {"", "btnPlay", "media-playback-start"},
    {"", "btnSave", "document-save"},
    {"", "btnSaveExt", "document-save"},
    {"", "btnSetAsClock", "dialog-ok-apply"},
    {"", "btnStartUPpage", "go-home"},
    {"", "btnUp", "go-up"},
    {"", "btnView", "view-preview"},
    {"", "cmdCentre", "align-horizontal-center"},
    {"", "cmdMaximise", "view-fullscreen"},
    {"", "cmdMove", "transform-move"},
    {"", "cmdRemove", "edit-delete"},
    {"", "imgPlay", "media-playback-start"},
    {"", "imgStop", "media-playback-stop"},
    {"frmAbout", "btnLoadScorl", "dialog-ok"},
    {"frmAdSett", "LoadAd", "document-save"},
    {"frmAdSett", "btnPlay", "media-playback-stop"},
    {"frmAdSett", "imgPlay", "media-playback-start"},
    {"frmAdSett", "imgStop", "media-playback-stop"},
    {"frmBreakingNewsSett", "btnFeed", "document-save"},
    {"frmClockSett", "vkCommand2", "edit-delete"},
    {"frmClockSett", "vkCommand3", "list-add"},
    {"frmFlashAdSett", "vkCommand2", "edit-delete"},
    {"frmFlashAdSett", "vkCommand3", "list-add"},
    {"frmLeftSideAdSett", "vkCommand2", "edit-delete"},
    {"frmLeftSideAdSett", "vkCommand3", "list-add"},
    {"frmLoad", "Command1", "dialog-cancel"},
    {"frmLogoSett", "vkCommand2", "edit-delete"},
    {"frmLogoSett", "vkCommand3", "list-add"},
    {"frmMid", "MnuStikerSettings", "configure"},
    {"frmMid", "ThemedButton5", "media-playback-start"},
    {"frmMid", "ThemedButton6", "media-playback-stop"},
    {"frmMid", "mnuAbout2", "help-about"},
    {"frmMid", "mnuBreakingNewsSettings", "configure"},
    {"frmMid", "mnuClockSettings", "configure"},
    {"frmMid", "mnuExit", "application-exit"},
    {"frmMid", "mnuFlashAd", "configure"},
    {"frmMid", "mnuFlashLogo", "configure"},
    {"frmMid", "mnuHelp2", "help-contents"},
    {"frmMid", "mnuHideMe", "view-hidden"},
    {"frmMid", "mnuLeftsideAdsettings", "configure"},
    {"frmMid", "mnuPlayList", "view-media-playlist"},
    {"frmMid", "mnuQuicksupport", "help-hint"},
    {"frmMid", "mnuSWF", "draw-text"},
    {"frmMid", "mnuScorlAsSettings", "configure"},
    {"frmMid", "mnuSettings", "settings-configure"},
    {"frmMid", "mnuShow", "view-visible"},
    {"frmMid", "mnuTVChannel", "video-television"},
    {"frmMid", "mnuTeamviewer", "network-connect"},
    {"frmMid", "mnuTrayAbout", "help-about"},
    {"frmMid", "mnuTrayExit", "application-exit"},
    {"frmMid", "mnuTurnOffMonitor", "system-shutdown"},
    {"frmMid", "mnuVideoAdSettings", "configure"},
    {"frmMid", "mnuVideoConvert", "system-run"},
    {"frmMid", "mnuWebfeedSetttings", "configure"},
    {"frmMid", "nmuRadioChannel", "audio-radio"},
    {"frmOnlineRadio", "ThemedButton1", "edit-delete"},
    {"frmOnlineRadio", "ThemedButton2", "list-add"},
    {"frmOnlineRadio", "ThemedButton3", "view-preview"},
    {"frmOnlineRadio", "ThemedButton4", "list-add"},
    {"frmOnlineRadio", "ThemedButton5", "media-playback-start"},
    {"frmOnlineRadio", "ThemedButton6", "media-playback-stop"},
    {"frmOnlineTV", "ThemedButton1", "edit-delete"},
    {"frmOnlineTV", "ThemedButton2", "list-add"},
    {"frmOnlineTV", "ThemedButton3", "view-preview"},
    {"frmOnlineTV", "ThemedButton4", "list-add"},
    {"frmOnlineTV", "ThemedButton5", "media-playback-start"},
    {"frmOnlineTV", "ThemedButton6", "media-playback-stop"},
    {"frmPageSettings", "btnLocation_0", "go-previous"},
    {"frmPageSettings", "btnLocation_1", "go-next"},
    {"frmPageSettings", "btnLocation_2", "go-up"},
    {"frmPageSettings", "btnLocation_3", "go-down"},
    {"frmPageSettings", "vkCommand1", "dialog-information"},
    {"frmPageSettings", "vkCommand2", "zoom-in"},
    {"frmPageSettings", "vkCommand3", "application-exit"},
    {"frmPageSettings", "vkCommand4", "view-preview"},
    {"frmPageSettings", "vkCommand5", "dialog-ok-apply"},
    {"frmPlaylist", "ThemedButton1", "go-home"},
    {"frmPlaylist", "vkCommand2", "list-add"},
    {"frmPlaylist", "vkCommand3", "edit-delete"},
    {"frmSettings", "ThemedButton1", "view-calendar"},
    {"frmStikerSett", "vkCommand2", "edit-delete"},
    {"frmStikerSett", "vkCommand3", "list-add"},
    {"frmVideoAdSett", "vkCommand1", "document-open"},
    {"frmVideoAdSett", "vkCommand2", "document-save"},
};

struct FileRow {
  const char* endings;  // in lower case, each between blanks
  const char* icon;
};
constexpr FileRow kFiles[] = {
    {" aac flac m4a mid mp2 mp3 oga ogg opus wav wma ", "audio-x-generic"},
    {" bmp gif jpeg jpg png webp ", "image-x-generic"},
    {" plt ", "view-media-playlist"},
    {" swf ", "draw-text"},
    {"", "video-x-generic"},  // what is left plays as a video
};

struct PlaceRow {
  Place place;
  const char* icon;
};
constexpr PlaceRow kPlaces[] = {{Place::kFolder, "folder"}, {Place::kDrive, "drive-harddisk"}};

struct BoxRow {
  QStyle::StandardPixmap meaning;
  const char* icon;
};
constexpr BoxRow kBoxes[] = {
    {QStyle::SP_DialogCancelButton, "dialog-cancel"},
    {QStyle::SP_DialogNoButton, "dialog-cancel"},
    {QStyle::SP_DialogOkButton, "dialog-ok"},
    {QStyle::SP_DialogOpenButton, "document-open"},
    {QStyle::SP_DialogYesButton, "dialog-ok"},
    {QStyle::SP_FileDialogNewFolder, "folder-new"},
    {QStyle::SP_FileDialogToParent, "go-up"},
    {QStyle::SP_ArrowBack, "go-previous"},
    {QStyle::SP_ArrowForward, "go-next"},
    {QStyle::SP_MessageBoxCritical, "dialog-error"},
    {QStyle::SP_MessageBoxInformation, "dialog-information"},
    {QStyle::SP_MessageBoxQuestion, "dialog-question"},
    {QStyle::SP_MessageBoxWarning, "dialog-warning"},
};

}  // namespace

std::span<const IconRow> ControlIcons() { return kControls; }

QIcon KeptIcon(const QString& name) {
  QIcon icon;
  for (const int size : {16, 22, 32, 44, 64}) {
    const QString file = QString(":/icons/%1-%2.png").arg(name).arg(size);
    if (QFile::exists(file)) icon.addFile(file, QSize(size, size));  // read when it is drawn
  }
  return icon;
}

QIcon IconOf(const QString& form, const QString& control) {
  static const QRegularExpression member("_\\d+$");
  const QString name = QString(control).remove(member);
  for (const QString& owner : {form, QString()}) {
    const auto row = std::ranges::find_if(kControls, [&](const IconRow& candidate) {
      return owner == candidate.form && (name == candidate.control || control == candidate.control);
    });
    if (row != std::end(kControls)) return KeptIcon(row->icon);
  }
  return {};
}

QIcon FileIcon(const QString& file) {
  static const auto icons = [] {
    std::vector<QIcon> made;
    for (const FileRow& row : kFiles) made.push_back(KeptIcon(row.icon));
    return made;
  }();
  const QString ending = " " + QFileInfo(file).suffix().toLower() + " ";
  const auto row = std::ranges::find_if(kFiles, [&](const FileRow& candidate) {
    return *candidate.endings == 0 || QString(candidate.endings).contains(ending);
  });
  return icons[static_cast<std::size_t>(row - std::begin(kFiles))];
}

QIcon PlaceIcon(Place place) { return KeptIcon(std::ranges::find(kPlaces, place, &PlaceRow::place)->icon); }

QIcon BoxIcon(QStyle::StandardPixmap meaning) {
  const auto row = std::ranges::find(kBoxes, meaning, &BoxRow::meaning);
  return row == std::end(kBoxes) ? QIcon() : KeptIcon(row->icon);
}
