#include <gtest/gtest.h>
#include <malloc.h>

#include <barrier>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/qt/Heap.h"

namespace {

constexpr std::size_t kFrame = 1920 * 1080 * 3 / 2;  // bytes
constexpr int kThreads = 8;

struct Heap : testing::Test {
  static void SetUpTestSuite() { SettleHeap(); }
};

// Where the compiler may not leave them out.
void* volatile last;

void* Take(std::size_t bytes) {
  last = std::malloc(bytes);
  return last;
}

int Heaps() {
  char* text = nullptr;
  std::size_t size = 0;
  FILE* out = open_memstream(&text, &size);
  malloc_info(0, out);
  std::fclose(out);
  const std::string told(text, size);
  std::free(text);
  int heaps = 0;
  constexpr std::string_view kHeap = "<heap ";
  for (auto at = told.find(kHeap); at != std::string::npos; at = told.find(kHeap, at + 1)) ++heaps;
  return heaps;
}

}  // namespace

TEST_F(Heap, FramesLieOutsideItAlsoWhenOthersHaveBeenGivenBack) {
  std::free(Take(4 * kFrame));
  const auto before = mallinfo2().hblks;
  void* frame = Take(kFrame);
  EXPECT_EQ(mallinfo2().hblks, before + 1);
  std::free(frame);
  EXPECT_EQ(mallinfo2().hblks, before);
}

TEST_F(Heap, ManyThreadsShareTwo) {
  std::barrier all(kThreads);
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&all] {
      void* piece = std::malloc(1000);
      all.arrive_and_wait();
      std::free(piece);
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_LE(Heaps(), 2);
}
