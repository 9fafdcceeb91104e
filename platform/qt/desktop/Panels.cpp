#include "platform/qt/desktop/Panels.h"

#include <QDir>
#include <QStandardPaths>

#include "platform/qt/desktop/Tools.h"

namespace {

struct Row {
  PanelOf subject;
  const char* desktop;  // as the session names it; empty: serves on every one
  const char* program;
  const char* page;  // of the program; empty: it has one alone
};
// The desktops' own come first: some of them start under no other desktop.
constexpr Row kPanels[] = {
    {PanelOf::kVolume, "GNOME", "gnome-control-center", "sound"},
    {PanelOf::kVolume, "KDE", "systemsettings", "kcm_pulseaudio"},
    {PanelOf::kVolume, "MATE", "mate-volume-control", ""},
    {PanelOf::kVolume, "X-Cinnamon", "cinnamon-settings", "sound"},
    {PanelOf::kVolume, "", "pavucontrol", ""},
    {PanelOf::kVolume, "", "pavucontrol-qt", ""},
    {PanelOf::kVolume, "", "kmix", ""},
    {PanelOf::kDate, "GNOME", "gnome-control-center", "datetime"},
    {PanelOf::kDate, "KDE", "systemsettings", "kcm_clock"},
    {PanelOf::kDate, "LXQt", "lxqt-admin-time", ""},
    {PanelOf::kDate, "MATE", "mate-time-admin", ""},
    {PanelOf::kDate, "X-Cinnamon", "cinnamon-settings", "calendar"},
    {PanelOf::kDate, "", "time-admin", ""},
};

}  // namespace

void OpenPanel(PanelOf subject) {
  // Such as "ubuntu:GNOME".
  const QStringList here = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(':');
  for (const Row& row : kPanels) {
    if (row.subject != subject || (*row.desktop != 0 && !here.contains(row.desktop))) continue;
    const QString program = QStandardPaths::findExecutable(row.program);
    if (program.isEmpty()) continue;
    return StartApart(program, QString(row.page).split(' ', Qt::SkipEmptyParts), QDir::homePath());
  }
}
