#pragma once

#include <QRect>
#include <QSize>
#include <map>

// Gives rectangles their places on a page, so that none lies over another and the page stays small. A place once given
// stays until its rectangle goes or changes its size.
class Shelves {
 public:
  // The place of a rectangle of that size; one of the same number gives up its former place.
  QRect Put(int number, QSize size);
  void Remove(int number) { places_.erase(number); }
  // How many pixels larger all of them would be with a rectangle of that size, instead of the one of that number.
  qint64 GrowthWith(int number, QSize size) const;
  // What holds them all.
  QSize Extent() const;

 private:
  QRect FreePlace(QSize size) const;

  std::map<int, QRect> places_;
};
