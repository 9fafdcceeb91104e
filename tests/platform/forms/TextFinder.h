#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <QWidget>
#include <vector>

// A text that a widget draws, and where.
struct FoundText {
  QString text;
  QRect place;  // in the widget, in pixels
};

// Every text that the widget and what is on it draw now, as it is drawn: a shortened one is found shortened.
std::vector<FoundText> TextsOn(QWidget& widget);

// The widget as the operator sees it.
QImage PictureOf(QWidget& widget);

// The contrast ratio of two colours, 1 to 21, by the relative luminance of WCAG 2.1.
double Contrast(QRgb one, QRgb other);

// The contrast of the text in that place of a picture: the commonest colour is its ground, and the one that stands out
// most from it the text.
double ContrastIn(const QImage& picture, const QRect& place);
