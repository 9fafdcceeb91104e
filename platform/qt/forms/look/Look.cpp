#include "platform/qt/forms/look/Look.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPalette>
#include <QStyle>
#include <string_view>

#include "platform/qt/forms/look/Colours.h"
#include "platform/qt/forms/look/DeskStyle.h"
#include "platform/qt/forms/look/EmptyTexts.h"
#include "platform/qt/forms/look/Icons.h"

namespace {

constexpr char kLamp[] = "lamp";

// The sizes in the style sheet that grow with the desktop's own text, behind an @ as the colours are.
struct SizeRow {
  const char* name;
  double factor;  // of the desktop's text
  const char* unit;
};
constexpr SizeRow kSizes[] = {
    {"titleText", 2.6, "pt"}, {"clockText", 1.7, "pt"}, {"bigText", 1.3, "pt"}, {"bigIcon", 2.0, "px"}};

struct RoleRow {
  QPalette::ColorRole role;
  Tone tone;
};
constexpr RoleRow kRoles[] = {
    {QPalette::Window, Tone::kGround},
    {QPalette::WindowText, Tone::kText},
    {QPalette::Base, Tone::kField},
    {QPalette::AlternateBase, Tone::kStripe},
    {QPalette::Text, Tone::kText},
    {QPalette::PlaceholderText, Tone::kDim},
    {QPalette::Button, Tone::kRaised},
    {QPalette::ButtonText, Tone::kText},
    {QPalette::BrightText, Tone::kOnColour},
    {QPalette::ToolTipBase, Tone::kRaised},
    {QPalette::ToolTipText, Tone::kText},
    {QPalette::Highlight, Tone::kAccent},
    {QPalette::HighlightedText, Tone::kOnColour},
    {QPalette::Link, Tone::kText},
    {QPalette::LinkVisited, Tone::kText},
};
// Of what is disabled.
constexpr RoleRow kDisabledRoles[] = {
    {QPalette::Button, Tone::kPanel},   {QPalette::WindowText, Tone::kDim},   {QPalette::Text, Tone::kDim},
    {QPalette::ButtonText, Tone::kDim}, {QPalette::Highlight, Tone::kRaised}, {QPalette::HighlightedText, Tone::kDim},
};

QPalette DeskPalette() {
  QPalette palette(ColourOf(Tone::kRaised), ColourOf(Tone::kGround));
  for (const RoleRow& row : kRoles) palette.setColor(row.role, ColourOf(row.tone));
  for (const RoleRow& row : kDisabledRoles) palette.setColor(QPalette::Disabled, row.role, ColourOf(row.tone));
  return palette;
}

QString Sheet() {
  QFile file(":/look/look.qss");
  if (!file.open(QFile::ReadOnly)) qFatal("The style sheet is not among the resources");
  QString sheet = QString::fromUtf8(file.readAll());
  for (const ToneRow& row : Tones()) sheet.replace(QString("@%1;").arg(row.name), ColourOf(row.tone).name() + ";");
  const double points = QFontInfo(QApplication::font()).pointSizeF();
  const double pixels = QFontMetricsF(QApplication::font()).height();
  for (const SizeRow& row : kSizes) {
    const double own = row.unit == std::string_view("pt") ? points : pixels;
    sheet.replace(QString("@%1;").arg(row.name), QString::number(qRound(own * row.factor)) + row.unit + ";");
  }
  return sheet;
}

}  // namespace

void WearLook(QApplication& application) {
  QApplication::setStyle(new DeskStyle);
  QApplication::setPalette(DeskPalette());
  application.setStyleSheet(Sheet());
}

void Dress(QWidget& window, const QString& form) {
  for (auto* button : window.findChildren<QAbstractButton*>()) {
    const QIcon icon = IconOf(form, button->objectName());
    if (!icon.isNull()) button->setIcon(icon);
  }
  for (auto* entry : window.findChildren<QAction*>()) {
    const QIcon icon = IconOf(form, entry->objectName());
    if (!icon.isNull()) entry->setIcon(icon);
  }
  for (auto* list : window.findChildren<QAbstractItemView*>()) {
    SetEmptyText(*list, EmptyText(form, list->objectName()));
  }
}

void Light(QWidget& widget, Lamp lamp) {
  static constexpr const char* kStates[] = {"off", "on", "onAir"};
  const QString state = kStates[static_cast<int>(lamp)];
  if (widget.property(kLamp) == state) return;
  widget.setProperty(kLamp, state);
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}
