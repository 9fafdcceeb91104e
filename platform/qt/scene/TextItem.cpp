#include "platform/qt/scene/TextItem.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>

namespace {

QColor ToColour(const Colour& colour) { return {colour.red, colour.green, colour.blue}; }

QImage Painted(const QString& text, const QColor& colour, QSize pixels) {
  QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  QFont font;
  font.setPixelSize(std::max(pixels.height() * 3 / 4, 1));
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(image.rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
  return image;
}

}  // namespace

TextItem::TextItem(PaneText& text, QQuickItem& parent, Scene&)
    : ControlItem(text, parent), text_(QString::fromStdString(text.Text)), colour_(ToColour(text.ForeColor)) {
  Follow(text.Text, [this, &text] {
    text_ = QString::fromStdString(text.Text);
    update();
  });
  Follow(text.ForeColor, [this, &text] {
    colour_ = ToColour(text.ForeColor);
    update();
  });
}

void TextItem::geometryChange(const QRectF& now, const QRectF& before) {
  ControlItem::geometryChange(now, before);
  if (now.size() != before.size()) update();
}

QSGNode* TextItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  const QSize pixels = size().toSize();
  if (text_.isEmpty() || pixels.isEmpty()) {
    delete old;
    return nullptr;
  }
  auto* node = static_cast<QSGImageNode*>(old);
  if (node == nullptr) {
    node = window()->createImageNode();
    node->setOwnsTexture(true);
    node->setFiltering(QSGTexture::Nearest);
  }
  node->setTexture(window()->createTextureFromImage(Painted(text_, colour_, pixels)));
  node->setRect(QRectF(QPointF(), pixels));
  return node;
}
