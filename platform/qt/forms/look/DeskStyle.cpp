#include "platform/qt/forms/look/DeskStyle.h"

#include <QMenu>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include "platform/qt/forms/look/Colours.h"
#include "platform/qt/forms/look/Icons.h"
#include "platform/qt/forms/look/Look.h"

namespace {

// The icons of rows are told apart at this size, the next one of the kept set above the small one.
constexpr double kCorner = 2.5;
constexpr int kSmallIcon = 16, kRowIcon = 22;

// Fusion draws its edges a little darker than the ground: on a dark ground nobody would see where a field is.
void DrawEdge(const QStyleOption& option, QPainter& painter) {
  const bool focus = option.state.testFlag(QStyle::State_HasFocus);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(ColourOf(focus                                          ? Tone::kText
                          : option.state.testFlag(QStyle::State_Enabled) ? Tone::kEdge
                                                                         : Tone::kRaised));
  painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
  painter.restore();
}

// The tick of a menu's entry, as the boxes of the forms have theirs: what is switched on is to be seen at a glance.
void DrawTick(const QStyleOption& option, QPainter& painter) {
  const bool on = option.state.testFlag(QStyle::State_On);
  painter.fillRect(option.rect, ColourOf(on ? Tone::kAccent : Tone::kField));
  DrawEdge(option, painter);
  if (on) KeptIcon("dialog-ok").paint(&painter, option.rect);
}

}  // namespace

DeskStyle::DeskStyle() : QProxyStyle("Fusion") {}

int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
      return kSpaceBetween;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
      return kSpaceAround;
    case PM_SplitterWidth:
      return kSpaceBetween;
    case PM_ListViewIconSize:
    case PM_IconViewIconSize:
      return QProxyStyle::pixelMetric(PM_SmallIconSize, option, widget) * kRowIcon / kSmallIcon;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

int DeskStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 1;
  if (hint == SH_EtchDisabledText) return 0;  // a shadow blurs a text that is dim already
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

void DeskStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
  if (element == PE_IndicatorCheckBox && qobject_cast<const QMenu*>(widget) != nullptr) {
    DrawTick(*option, *painter);
    return;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_FrameLineEdit || element == PE_Frame || element == PE_FrameMenu) DrawEdge(*option, *painter);
}

void DeskStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const {
  const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_Slider && slider != nullptr && widget != nullptr && widget->property("look") == "onAir") {
    QStyleOptionSlider coloured = *slider;
    coloured.palette.setColor(QPalette::Highlight, ColourOf(Tone::kOnAir));
    QProxyStyle::drawComplexControl(control, &coloured, painter, widget);
    return;
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_SpinBox || control == CC_ComboBox) DrawEdge(*option, *painter);
}

QIcon DeskStyle::standardIcon(StandardPixmap meaning, const QStyleOption* option, const QWidget* widget) const {
  const QIcon icon = BoxIcon(meaning);
  return icon.isNull() ? QProxyStyle::standardIcon(meaning, option, widget) : icon;
}
