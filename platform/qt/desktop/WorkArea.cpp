#include "platform/qt/desktop/WorkArea.h"

#include <QScreen>
#include <algorithm>
#include <limits>

#include "platform/qt/desktop/XWindows.h"

namespace {

using Edge = Strut::Edge;

constexpr Edge kEdges[] = {Edge::kLeft, Edge::kRight, Edge::kTop, Edge::kBottom};

// The band of a strut, in pixels of the desktop.
QRect BandOf(const Strut& strut, const QSize& desktop) {
  const int length = strut.last - strut.first + 1;
  switch (strut.edge) {
    case Edge::kLeft:
      return {0, strut.first, strut.depth, length};
    case Edge::kRight:
      return {desktop.width() - strut.depth, strut.first, strut.depth, length};
    case Edge::kTop:
      return {strut.first, 0, length, strut.depth};
    case Edge::kBottom:
      return {strut.first, desktop.height() - strut.depth, length, strut.depth};
  }
  return {};
}

// The area without what is taken from that edge of it.
QRect Less(QRect area, const QRect& taken, Edge edge) {
  switch (edge) {
    case Edge::kLeft:
      area.setLeft(std::max(area.left(), taken.right() + 1));
      break;
    case Edge::kRight:
      area.setRight(std::min(area.right(), taken.left() - 1));
      break;
    case Edge::kTop:
      area.setTop(std::max(area.top(), taken.bottom() + 1));
      break;
    case Edge::kBottom:
      area.setBottom(std::min(area.bottom(), taken.top() - 1));
      break;
  }
  return area;
}

int Clamped(unsigned long value) {
  return static_cast<int>(std::min<unsigned long>(value & 0xFFFFFFFF, std::numeric_limits<short>::max()));
}

// _NET_WM_STRUT_PARTIAL: four depths, then the stretch of each edge; _NET_WM_STRUT: the depths alone, along whole
// edges.
std::vector<Strut> StrutsOf(Display* display, Window window) {
  std::vector<unsigned long> values = ReadList(display, window, "_NET_WM_STRUT_PARTIAL", XA_CARDINAL);
  if (values.size() < 12) {
    values = ReadList(display, window, "_NET_WM_STRUT", XA_CARDINAL);
    if (values.size() < 4) return {};
    values.resize(4);
    for (int edge = 0; edge < 4; ++edge) values.insert(values.end(), {0, std::numeric_limits<short>::max()});
  }
  std::vector<Strut> struts;
  for (std::size_t i = 0; i < 4; ++i) {
    if (values[i] != 0) {
      struts.push_back({kEdges[i], Clamped(values[i]), Clamped(values[4 + 2 * i]), Clamped(values[5 + 2 * i])});
    }
  }
  return struts;
}

QSize DesktopSize(Display* display) {
  XWindowAttributes root{};
  XGetWindowAttributes(display, DefaultRootWindow(display), &root);
  return {root.width, root.height};
}

}  // namespace

QRect WithoutStruts(const QRect& monitor, const QSize& desktop, const std::vector<Strut>& struts) {
  QRect area = monitor;
  for (const Strut& strut : struts) {
    const QRect taken = BandOf(strut, desktop) & monitor;
    const bool lengthwise = strut.edge == Edge::kLeft || strut.edge == Edge::kRight;
    const bool takesAll = lengthwise ? taken.width() == monitor.width() : taken.height() == monitor.height();
    if (!taken.isEmpty() && !takesAll) area = Less(area, taken, strut.edge);
  }
  return area.isEmpty() ? monitor : area;
}

QRect WorkArea(const QScreen& screen) {
  QRect area = screen.geometry();
  if (Display* display = XDisplay()) {
    const XErrorTrap trap(display);
    std::vector<Strut> struts;
    for (const Window window : TopWindows(display)) {
      if (!IsMapped(display, window)) continue;
      const std::vector<Strut> its = StrutsOf(display, window);
      struts.insert(struts.end(), its.begin(), its.end());
    }
    area = WithoutStruts(area, DesktopSize(display), struts);
  }
  const QRect both = area & screen.availableGeometry();
  return both.isEmpty() ? area : both;
}
