/** @file parallel.hpp
 *  Calls on all cores, by parts of their images. Results are those of one thread, to the bit.
 *
 *  Threads are those of an engine: a function object for which `engine(n, task)` calls task(0) to task(n - 1), in any
 *  order and on any threads, and returns when all have returned. That of oneTBB is there if its headers are, unless
 *  QVP_NO_TBB is defined, and programs then link it; others are a few lines:
 *
 *  @code
 *    auto openmp = [](int n, const auto& task) {
 *      #pragma omp parallel for
 *      for (int i = 0; i < n; ++i) task(i);
 *    };
 *    qvp::Parallel cores(openmp);
 *    cores.rows([](auto... part) { return qvp::add(part...); }, a, b, dst);
 *    cores.run(resizer, photo, small);
 *  @endcode
 */
#ifndef QVPI_PARALLEL_HPP
#define QVPI_PARALLEL_HPP

#include <algorithm>
#include <atomic>
#include <exception>
#include <thread>

#include "qvpi/filter.hpp"
#include "qvpi/resizer.hpp"
#include "qvpi/warp.hpp"

#if __has_include(<oneapi/tbb/parallel_for.h>) && !defined(QVP_NO_TBB)
#include <oneapi/tbb/parallel_for.h>
#include <oneapi/tbb/task_arena.h>
#define QVP_HAS_TBB 1
#else
#define QVP_HAS_TBB 0
#endif

namespace qvp {

#if QVP_HAS_TBB
/** The engine of oneTBB: the threads of the arena that the caller is in. */
struct Tbb {
  int workers() const { return tbb::this_task_arena::max_concurrency(); }
  template <class Task>
  void operator()(int n, const Task& task) const {
    tbb::parallel_for(0, n, task, tbb::simple_partitioner());
  }
};
using DefaultEngine = Tbb;
#else
/** Of programs without oneTBB: one thread. */
struct DefaultEngine {
  int workers() const { return 1; }
  template <class Task>
  void operator()(int n, const Task& task) const {
    for (int i = 0; i < n; ++i) task(i);
  }
};
#endif

namespace detail {

// The cut of a length into parts that differ by 1 at most.
struct Cut {
  int length, count;

  int begin(int i) const { return static_cast<int>(static_cast<long long>(length) * i / count); }
  int size(int i) const { return begin(i + 1) - begin(i); }
};

}  // namespace detail

inline namespace QVP_ERRORS {

namespace detail {

// What the parts of a call returned: the least error, else the greatest warning; or what one of them threw.
class Outcome {
 public:
  // False: something failed, and no more parts are wanted.
  template <class Work>
  bool take(const Work& work) {
#if QVP_THROWS
    try {
      add(work().code());
    } catch (...) {
      if (!has_thrown_.exchange(true)) thrown_ = std::current_exception();
    }
#else
    add(work().code());
#endif
    return status_ >= 0 && !has_thrown_;
  }

  Status finish() const {
#if QVP_THROWS
    if (thrown_) std::rethrow_exception(thrown_);
#endif
    return detail::finish(status_.load());
  }

 private:
  void add(QvpStatus status) {
    QvpStatus known = status_;
    while (known != worse(known, status) && !status_.compare_exchange_weak(known, worse(known, status))) {}
  }

  static QvpStatus worse(QvpStatus a, QvpStatus b) { return std::min(a, b) < 0 ? std::min(a, b) : std::max(a, b); }

  std::atomic<QvpStatus> status_ = qvpStatusNoError;
  std::atomic<bool> has_thrown_ = false;
  std::exception_ptr thrown_;
};

}  // namespace detail

/** Calls by parts of images, on the threads of an engine.
 *
 *  Parts are as large as caches like them, and as many as there are workers if the images are worth it. Each worker has
 *  a buffer of its own. An exception, or an error status, of any part is that of the call; parts that were begun are
 *  then finished, and the others are not made.
 */
template <class Engine = DefaultEngine>
class Parallel {
 public:
  /** With as many workers as the engine tells by `workers()`, if it does, else one for each core; or `workers`. */
  explicit Parallel(Engine engine = {}, int workers = 0) : engine_(engine), workers_(workers) {
    if (workers_ < 1) workers_ = default_workers();
  }

  /** Calls `operation(part...)` with the same rows of all images, which have one height. It returns a status.
   *
   *  For operations that make a pixel from the pixels at its place: those of arith.hpp and core.hpp.
   */
  template <class Operation, detail::HasPixels... Images>
  Status rows(const Operation& operation, Images&&... images) const {
    return rows_of(operation, detail::view_of(images)...);
  }

  /** Calls `operation(src, dst, sides, buffer)` with parts of rows, of filters that look at most `reach` rows up and
   *  down: `median(src, dst, {5, 5}, buffer, BorderType::replicate | sides)` has a reach of 5. The sides are those in
   *  memory. */
  template <class Operation, detail::HasPixels Source, detail::HasPixels Destination>
  Status around(int reach, const Operation& operation, const Source& source, Destination&& destination) const {
    const auto src = detail::view_of(source);
    const auto dst = detail::view_of(destination);
    if (!detail::same(src, dst)) return detail::finish(qvpStatusSize);
    const detail::Cut cut = strips(src.height(), row_bytes(src) + row_bytes(dst), reach, kPartsOfWorker);
    return run_parts(cut.count, [&](int i, Buffer& buffer) {
      const QvpiRect part = {0, cut.begin(i), src.width(), cut.size(i)};
      const int above = i > 0 ? qvpBorderInMemTop : 0, below = i + 1 < cut.count ? qvpBorderInMemBottom : 0;
      return operation(src.view(part), dst.view(part), BorderType(above | below), buffer);
    });
  }

  template <class T, int kChannels>
  Status run(const Filter<T, kChannels>& filter, std::type_identity_t<In<T, kChannels>> src,
             std::type_identity_t<Out<T, kChannels>> dst, BorderType border = BorderType::replicate,
             const Pixel<T, kChannels>& value = {}) const {
    const auto part = [&](auto from, auto to, BorderType sides, Buffer& buffer) {
      return filter(from, to, border | sides, value, buffer);
    };
    return around(filter.reach(), part, src, dst);
  }

  template <class T, int kChannels>
  Status run(const Resizer<T, kChannels>& resizer, std::type_identity_t<In<T, kChannels>> src,
             std::type_identity_t<Out<T, kChannels>> dst) const {
    return by_tiles(resizer, src, dst, {dst.width(), 1}, 1);  // what a part begins with costs as much as 30 rows
  }

  /** In tiles, as the source of a row may be all over the image. */
  template <class T, int kChannels>
  Status run(const Warp<T, kChannels>& warp, std::type_identity_t<In<T, kChannels>> src,
             std::type_identity_t<Out<T, kChannels>> dst) const {
    return by_tiles(warp, src, dst, {dst.width(), 1 + dst.width() / kTileWidth}, dst.height());
  }

 private:
  static constexpr int kPartBytes = 1 << 18;   // a share of the second-level cache
  static constexpr int kLeastBytes = 1 << 16;  // below this, waking a thread takes longer
  static constexpr int kTileWidth = 512;
  static constexpr int kPartsOfWorker = 4;
  static constexpr int kLeastRows = 16;

  int default_workers() const {
    if constexpr (requires { engine_.workers(); }) {
      return engine_.workers();
    } else {
      return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    }
  }

  static long long row_bytes(const Rows& image) {
    const long long step = image.step();
    return step < 0 ? -step : step;
  }

  // For what reads its source more than once: parts of `least` rows, which fit the cache, or of `parts` for each worker
  // if those are fewer: what a part begins with costs, too.
  detail::Cut strips(int height, long long bytes, int least, int parts) const {
    if (workers_ == 1) return {height, 1};
    const long long rows_of_part = height / (1LL * parts * workers_), cached = kPartBytes / std::max(bytes, 1LL);
    const long long share = (height + workers_ - 1LL) / workers_;
    const long long rows = std::min(share, std::max<long long>({kLeastRows, rows_of_part, cached}));
    return {height, static_cast<int>(std::max<long long>(1, height / std::max<long long>({1, least, rows})))};
  }

  // For what reads each pixel once: a part for each worker, which if large is stored past the caches as the whole is.
  detail::Cut shares(int height, long long bytes) const {
    const long long worthwhile = bytes * height / kLeastBytes;
    return {height, static_cast<int>(std::clamp<long long>(worthwhile, 1, std::min(workers_, std::max(height, 1))))};
  }

  template <class Operation, class First, class... Views>
  Status rows_of(const Operation& operation, const First& first, const Views&... others) const {
    if (!((others.height() == first.height()) && ...)) return detail::finish(qvpStatusSize);
    const detail::Cut cut = shares(first.height(), (row_bytes(first) + ... + row_bytes(others)));
    return run_parts(cut.count, [&](int i, Buffer&) {
      const auto part = [&](const auto& view) { return view.view({0, cut.begin(i), view.width(), cut.size(i)}); };
      return operation(part(first), part(others)...);
    });
  }

  template <class Mapped, class From, class To>
  Status by_tiles(const Mapped& mapped, From src, To dst, detail::Cut across, int parts) const {
    if (dst.empty() || !mapped.is_for(src.size(), dst.size())) return detail::finish(qvpStatusSize);
    const detail::Cut down = strips(dst.height(), row_bytes(dst) / across.count, 1, parts);
    return run_parts(across.count * down.count, [&](int i, Buffer& buffer) {
      const int column = i % across.count, row = i / across.count;
      const QvpiRect tile = {across.begin(column), down.begin(row), across.size(column), down.size(row)};
      return mapped.tile(src, dst.view(tile), {tile.x, tile.y}, buffer);
    });
  }

  // Each worker takes the next part until there is none.
  template <class Work>
  Status run_parts(int count, const Work& work) const {
    detail::Outcome outcome;
    std::atomic<int> next = 0;
    const auto worker = [&](int) {
      Buffer buffer;
      for (int i = next++; i < count && outcome.take([&] { return Status(work(i, buffer)); }); i = next++) {}
    };
    const int tasks = std::min(count, workers_);
    if (tasks == 1) {
      worker(0);
    } else {
      engine_(tasks, worker);
    }
    return outcome.finish();
  }

  Engine engine_;
  int workers_;
};

}  // namespace QVP_ERRORS
}  // namespace qvp

#endif
