#pragma once

#include <QRect>
#include <vector>

class QScreen;

// What a panel keeps free of windows along one edge of the whole desktop: a depth in pixels, counted from that edge,
// and the stretch of the edge, from its first pixel to its last.
struct Strut {
  enum class Edge { kLeft, kRight, kTop, kBottom };
  Edge edge;
  int depth;
  int first;
  int last;
};

// The part of a monitor that the panels leave free. A strut counts where its band meets the monitor; one that would
// take the whole depth of the monitor belongs to a panel on the inner edge of the monitor behind it.
QRect WithoutStruts(const QRect& monitor, const QSize& desktop, const std::vector<Strut>& struts);

// The part of a screen without the panels and docks that stand there now. The display layer tells it for a single
// screen only; with more, the panels' own struts do.
QRect WorkArea(const QScreen& screen);
