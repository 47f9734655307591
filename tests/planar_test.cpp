// Splitting pixels into planes and merging them again.
#include <gtest/gtest.h>

#include "qvpi.h"
#include "tests/support/guarded.h"

namespace {
using test::Guard;

template <class T, int kPlanes>
struct Member {
  const char* name;
  QvpStatus (*split)(const T*, int, T* const*, int, QvpiSize);
  QvpStatus (*merge)(const T* const*, int, T*, int, QvpiSize);
};

template <class T, int kPlanes>
void Check(const Member<T, kPlanes>& m, int width, int gap, int planeGap, Guard guard) {
  const int height = 3;
  test::Image<T> pixels(kPlanes * width, height, gap, guard), merged(kPlanes * width, height, gap, guard);
  const test::Image<T> p[] = {{width, height, planeGap, guard},
                              {width, height, planeGap, guard},
                              {width, height, planeGap, guard},
                              {width, height, planeGap, guard}};
  T* const planes[] = {p[0].data(), p[1].data(), p[2].data(), p[3].data()};
  ASSERT_EQ(m.split(pixels.data(), pixels.step(), planes, p[0].step(), {width, height}), 0) << m.name;
  ASSERT_EQ(m.merge(planes, p[0].step(), merged.data(), merged.step(), {width, height}), 0) << m.name;
  for (int y = 0; y < height; ++y) {
    for (int i = 0; i < kPlanes * width; ++i) {
      const T expected = pixels(i, y), split = p[i % kPlanes](i / kPlanes, y), back = merged(i, y);  // may be NaN
      ASSERT_EQ(std::memcmp(&expected, &split, sizeof(T)), 0) << m.name << " split, width " << width << " at " << i;
      ASSERT_EQ(std::memcmp(&expected, &back, sizeof(T)), 0) << m.name << " merged, width " << width << " at " << i;
    }
  }
}

template <class T, int kPlanes>
void CheckGrid(const Member<T, kPlanes>& m) {
  for (const int width : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 64, 65, 130, 300}) {
    Check(m, width, 0, 0, Guard::kAfter);
    Check(m, width, 5, 2, Guard::kAfter);
    Check(m, width, 4, 0, Guard::kBefore);
  }
}

TEST(Planar, EveryMember) {
#define PLANAR(type, n) \
  CheckGrid(Member<Qvp##type, n>{#type " " #n, qvpiCopy_##type##_C##n##P##n##R, qvpiCopy_##type##_P##n##C##n##R});
#define BOTH(type) PLANAR(type, 3) PLANAR(type, 4)
  BOTH(8u) BOTH(16u) BOTH(16s) BOTH(32s) BOTH(32f)
}

}  // namespace
