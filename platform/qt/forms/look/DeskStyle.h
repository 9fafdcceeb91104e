#pragma once

#include <QProxyStyle>

// Qt's Fusion with the measures of the operator's forms and with icons of the kept set in boxes. The layouts are made
// for these measures; those of the desktop's own style might not fit.
class DeskStyle : public QProxyStyle {
 public:
  DeskStyle();

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap meaning, const QStyleOption* option, const QWidget* widget) const override;
};
