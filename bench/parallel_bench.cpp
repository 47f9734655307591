// Calls on one core and on two, beside OpenCV with as many threads. Resizing and warps compute with other weights
// there; the work, pixels in and out, is the same.
#include <opencv2/imgproc.hpp>

#include "bench/image.h"
#include "qvpi.hpp"
#include "qvpi/parallel.hpp"

namespace {
using namespace bench;

template <class T, int kChannels>
struct Pictures {
  Image<T> src, other, dst;

  Pictures(QvpiSize from, QvpiSize to) : src(from, kChannels), other(from, kChannels), dst(to, kChannels) {
    for (const auto* image : {&src, &other}) image->mat = cv::Scalar::all(100);
    cv::randu(src.mat, 0, 255);
  }

  static qvp::View<T, kChannels> View(const Image<T>& image) { return {image.data(), image.step, image.size}; }
  auto in() const { return qvp::In<T, kChannels>(View(src)); }
  auto in2() const { return qvp::In<T, kChannels>(View(other)); }
  auto out() const { return View(dst); }
  Traffic traffic(int sources) const { return {sources * src.bytes(), dst.bytes()}; }
};

// `ours` takes the cores, `peer` the pictures.
template <class T, int kChannels, class Ours, class Peer>
void Add(const char* what, int sources, QvpiSize from, QvpiSize to, Ours ours, Peer peer) {
  const Pictures<T, kChannels> p(from, to);
  for (const int threads : {1, 2}) {
    const auto with_threads = [=] {
      if (cv::getNumThreads() != threads) cv::setNumThreads(threads);
      peer(p);
    };
    const qvp::Parallel cores(qvp::DefaultEngine{}, threads);
    bench::Add({Name(std::string(what) + " " + std::to_string(threads) + (threads == 1 ? " core" : " cores"), from),
                p.traffic(sources),
                [=] { Require(ours(cores, p).code()); },
                {{"OpenCV", with_threads}}});
  }
}

void AddRows(QvpiSize size) {
  Add<Qvp8u, 3>(
      "parallel add 8u C3", 2, size, size,
      [](const auto& cores, const auto& p) {
        return cores.rows([](auto... part) { return qvp::add(part...); }, p.in(), p.in2(), p.out());
      },
      [](const auto& p) { cv::add(p.src.mat, p.other.mat, p.dst.mat); });
  Add<Qvp32f, 1>(
      "parallel multiply 32f C1", 2, size, size,
      [](const auto& cores, const auto& p) {
        return cores.rows([](auto... part) { return qvp::multiply(part...); }, p.in(), p.in2(), p.out());
      },
      [](const auto& p) { cv::multiply(p.src.mat, p.other.mat, p.dst.mat); });
  Add<Qvp8u, 1>(
      "parallel threshold 8u C1", 1, size, size,
      [](const auto& cores, const auto& p) {
        const auto threshold = [](auto src, auto dst) { return qvp::threshold_gt_val(src, dst, 100, 100); };
        return cores.rows(threshold, p.in(), p.out());
      },
      [](const auto& p) { cv::threshold(p.src.mat, p.dst.mat, 100, 255, cv::THRESH_TRUNC); });
  Add<Qvp32f, 1>(
      "parallel square root 32f C1", 1, size, size,
      [](const auto& cores, const auto& p) {
        return cores.rows([](auto... part) { return qvp::sqrt(part...); }, p.in(), p.out());
      },
      [](const auto& p) { cv::sqrt(p.src.mat, p.dst.mat); });
}

void AddFilters(QvpiSize size) {
  Add<Qvp8u, 3>(
      "parallel Gauss 5x5 8u C3", 1, size, size,
      [gauss = std::make_shared<qvp::Filter<Qvp8u, 3>>(qvp::Filter<Qvp8u, 3>::gauss({5, 5}, 1.2F))](
          const auto& cores, const auto& p) { return cores.run(*gauss, p.in(), p.out()); },
      [](const auto& p) {
        cv::GaussianBlur(p.src.mat, p.dst.mat, {5, 5}, 1.2, 1.2, cv::BORDER_REPLICATE);
      });
  Add<Qvp8u, 1>(
      "parallel median 5x5 8u C1", 1, size, size,
      [](const auto& cores, const auto& p) {
        const auto median = [](auto src, auto dst, qvp::BorderType sides, qvp::Buffer& buffer) {
          return qvp::median(src, dst, {5, 5}, buffer, qvp::BorderType::replicate | sides);
        };
        return cores.around(5, median, p.in(), p.out());
      },
      [](const auto& p) { cv::medianBlur(p.src.mat, p.dst.mat, 5); });
}

void AddResize(const char* what, QvpiSize from, QvpiSize to, const qvp::ResizeOptions& options, int interpolation) {
  Add<Qvp8u, 3>(
      what, 1, from, to,
      [resizer = std::make_shared<qvp::Resizer<Qvp8u, 3>>(from, to, options)](const auto& cores, const auto& p) {
        return cores.run(*resizer, p.in(), p.out());
      },
      [=](const auto& p) { cv::resize(p.src.mat, p.dst.mat, p.dst.mat.size(), 0, 0, interpolation); });
}

void AddWarps(QvpiSize size) {
  const qvp::Matrix<2, 3> turn{{{0.96, 0.28, -40}, {-0.28, 0.96, 60}}};
  const qvp::Matrix<3, 3> page{{{0.9, 0.2, 10}, {-0.1, 1.1, 20}, {1e-4, 2e-5, 1}}};
  Add<Qvp8u, 3>(
      "parallel affine linear 8u C3", 1, size, size,
      [warp = std::make_shared<qvp::Warp<Qvp8u, 3>>(size, size, turn)](const auto& cores, const auto& p) {
        return cores.run(*warp, p.in(), p.out());
      },
      [turn](const auto& p) { cv::warpAffine(p.src.mat, p.dst.mat, cv::Matx23d(turn[0].data()), p.dst.mat.size()); });
  Add<Qvp8u, 3>(
      "parallel perspective linear 8u C3", 1, size, size,
      [warp = std::make_shared<qvp::Warp<Qvp8u, 3>>(size, size, page)](const auto& cores, const auto& p) {
        return cores.run(*warp, p.in(), p.out());
      },
      [page](const auto& p) {
        cv::warpPerspective(p.src.mat, p.dst.mat, cv::Matx33d(page[0].data()), p.dst.mat.size());
      });
}

const bool added = [] {
  for (const QvpiSize size : {kVga, kHd}) {
    AddRows(size);
    AddFilters(size);
    const QvpiSize half{size.width / 2, size.height / 2}, twice{size.width * 2, size.height * 2};
    AddResize("parallel resize super 8u C3 to a half", size, half, {.method = qvp::InterpolationType::super},
              cv::INTER_AREA);
    AddResize("parallel resize cubic 8u C3 to twice", size, twice,
              {.method = qvp::InterpolationType::cubic, .c = 0.75F}, cv::INTER_CUBIC);
    AddWarps(size);
  }
  AddRows(kLarge);
  return true;
}();

}  // namespace
