#include "platform/qt/Heap.h"

#include <malloc.h>

namespace {

constexpr int kLarge = 256 * 1024;  // bytes
constexpr int kHeaps = 2;

}  // namespace

// Left alone the C library gives every thread a heap, and puts a large thing onto it as soon as one of its size has
// been given back once. A player's threads come and go with the items, and what their frames leave behind in a heap is
// never whole again: within minutes of a live stream the station held twice the memory that it used.
void SettleHeap() {
  mallopt(M_MMAP_THRESHOLD, kLarge);
  mallopt(M_TRIM_THRESHOLD, kLarge);
  mallopt(M_ARENA_MAX, kHeaps);
}
