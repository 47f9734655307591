// Calls by parts give the bits of whole calls, on every engine and of every height.
#include "qvpi/parallel.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>
#include <vector>

#include "tests/cpp/picture.h"

namespace {

using qvp::BorderType;
using qvp::Image;
using qvp::InterpolationType;
using qvp::Parallel;
using test::Noise;
using test::Refused;
using test::Same;

// An engine with a thread for each task.
struct Threads {
  template <class Task>
  void operator()(int n, const Task& task) const {
    std::vector<std::thread> threads;
    for (int i = 0; i < n; ++i) threads.emplace_back(task, i);
    for (auto& thread : threads) thread.join();
  }
};

// One that takes the last task first.
constexpr auto kBackwards = [](int n, const auto& task) {
  for (int i = n - 1; i >= 0; --i) task(i);
};

// Calls `check` with each engine, and images of heights that are cut in several ways.
template <class Check>
void WithEngines(Check check) {
  for (const QvpiSize size : {QvpiSize{700, 1}, QvpiSize{33, 35}, QvpiSize{1500, 203}}) {
    check(Parallel(), size);
    check(Parallel(Threads(), 3), size);
    check(Parallel(kBackwards, 7), size);
  }
}

TEST(Parallel, RowsAreThoseOfTheWhole) {
  WithEngines([](const auto& cores, QvpiSize size) {
    const auto a = Noise<Qvp8u, 3>(size);
    const auto mask = Noise<Qvp8u>(size);
    Image<Qvp8u, 3> expected(size), got(size);
    Image<Qvp8u> stack(size.width, 3 * size.height);
    const qvp::PlanarView<Qvp8u, 3> planes(stack.view());
    qvp::subtract(a, {100, 3, 50}, expected);
    cores.rows([](auto src, auto dst) { return qvp::subtract(src, {100, 3, 50}, dst); }, a, got);
    EXPECT_TRUE(Same(got, expected)) << size.height;
    qvp::copy_to(a, expected, mask);
    cores.rows([](auto... part) { return qvp::copy_to(part...); }, a, got, mask);
    EXPECT_TRUE(Same(got, expected)) << size.height;
    cores.rows([](auto... part) { return qvp::copy_to(part...); }, a, planes);
    qvp::copy_to(planes, got);
    EXPECT_TRUE(Same(got, a)) << size.height;
  });
}

TEST(Parallel, FiltersLookBeyondTheirParts) {
  WithEngines([](const auto& cores, QvpiSize size) {
    const auto src = Noise<Qvp16s>(size);
    Image<Qvp16s> expected(size), got(size);
    const Qvp8u tall[] = {1, 0, 1, 1, 1, 1, 1, 1, 0, 1};
    const qvp::Filter<Qvp16s> filters[] = {qvp::Filter<Qvp16s>::gauss({7, 15}, 2),
                                           qvp::Filter<Qvp16s>::erode({2, 5}, tall, {0, 4})};
    for (const BorderType border : {BorderType::replicate, BorderType::mirror, BorderType::constant}) {
      for (const auto& filter : filters) {
        qvp::Buffer buffer;
        if (Refused([&] { filter(src, expected, border, {9}, buffer); }) != 0) continue;
        cores.run(filter, src, got, border, {9});
        EXPECT_TRUE(Same(got, expected)) << size.height << " border " << int(border);
      }
      qvp::Buffer buffer;
      const auto median = [=](auto from, auto to, BorderType sides, qvp::Buffer& work) {
        return qvp::median(from, to, {3, 5}, work, border | sides, 9);
      };
      if (Refused([&] { median(src.view(), expected.view(), BorderType(0), buffer); }) != 0) continue;
      cores.around(5, median, src, got);
      EXPECT_TRUE(Same(got, expected)) << size.height << " border " << int(border);
    }
  });
}

TEST(Parallel, TilesAreThoseOfTheWhole) {
  WithEngines([](const auto& cores, QvpiSize size) {
    const auto src = Noise<Qvp8u, 3>({91, 67});
    Image<Qvp8u, 3> expected(size), got(size);
    qvp::Resizer<Qvp8u, 3> resizer(src.size(), size, {.method = InterpolationType::cubic});
    resizer(src, expected);
    cores.run(resizer, src, got);
    EXPECT_TRUE(Same(got, expected)) << size.height;
    qvp::Warp<Qvp8u, 3> warp(src.size(), size, qvp::Matrix<2, 3>{{{9, 3, -20}, {-1, 2, 30}}});
    warp(src, expected);
    cores.run(warp, src, got);
    EXPECT_TRUE(Same(got, expected)) << size.height;
    EXPECT_EQ(Refused([&] { cores.run(warp, got, got); }), qvpStatusSize);
  });
}

TEST(Parallel, WarningsErrorsAndExceptionsArrive) {
  const auto a = Noise<Qvp8u>({2000, 300});
  Image<Qvp8u> ones(a.size()), dst(a.size());
  qvp::fill(ones, 1);
  const Parallel cores(Threads(), 4);
  const auto divide = [](auto... part) { return qvp::divide(part...); };
  EXPECT_EQ(cores.rows(divide, a, ones, dst).code(), qvpStatusNoError);
  ones.row(250)[1] = 0;
  EXPECT_EQ(cores.rows(divide, a, ones, dst).code(), qvpStatusDivideByZero);
  EXPECT_EQ(Refused([&] { cores.rows([](auto src, auto to) { return qvp::divide(src, 0, to); }, a, dst); }),
            qvpStatusDivideByZeroError);
  EXPECT_EQ(Refused([&] { cores.rows(divide, a, ones.view({0, 0, 2000, 9}), dst); }), qvpStatusSize);
  const auto fails = [](auto part) -> qvp::Status { throw std::out_of_range(part.empty() ? "empty" : "thrown"); };
  EXPECT_THROW(cores.rows(fails, dst), std::out_of_range);
}

}  // namespace
