// Times every function that the tests know how to call, if its name matches, on several builds by turns:
//   time_builds NAMES WIDTH HEIGHT MODULE...
// prints a line for each function: its name, and the least time of a call on each of the builds, in nanoseconds.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <regex>

#include "tests/fuzz/builds.h"
#include "tests/support/exports.h"

namespace {
using Clock = std::chrono::steady_clock;
using Nanoseconds = std::chrono::duration<double, std::nano>;

constexpr double kBatchTime = 20e3;  // so long that reading the clock is no part of it
constexpr int kMostTurns = 9;

// Arguments of one call, whose memory can be had again as it was: images that are read and written change at each call.
class Subject {
 public:
  Subject(const test::Export& function, QvpiSize size) : scene_(function, size, 1), pieces_(scene_.Pieces()) {
    for (const auto& piece : pieces_) before_.emplace_back(piece.data, piece.data + piece.size);
  }
  void Restore() {
    for (size_t i = 0; i < pieces_.size(); ++i) std::copy(before_[i].begin(), before_[i].end(), pieces_[i].data);
  }
  // Of one call, in a batch of so many.
  double Time(const test::Call& function, int batch) {
    Restore();
    function.call(scene_.arguments.data());
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < batch; ++i) function.call(scene_.arguments.data());
    return Nanoseconds(Clock::now() - start).count() / batch;
  }

 private:
  test::Scene scene_;
  std::vector<test::Scene::Piece> pieces_;
  std::vector<std::vector<uint8_t>> before_;
};

std::vector<double> TimesOf(size_t function, QvpiSize size, const std::vector<fuzz::Build>& builds) {
  Subject subject(test::Exports()[function], size);
  const double once = subject.Time(builds.front().calls[function], 1);
  const int batch = std::clamp(static_cast<int>(kBatchTime / once), 1, 1000);
  const int turns = once > 20 * kBatchTime ? 3 : kMostTurns;
  std::vector<double> times(builds.size(), 1e300);
  for (int turn = 0; turn < turns; ++turn) {
    for (size_t i = 0; i < builds.size(); ++i) {
      times[i] = std::min(times[i], subject.Time(builds[i].calls[function], batch));
    }
  }
  return times;
}

}  // namespace

int main(int count, char** words) {
  if (count < 5) return 2;
  const std::regex names(words[1]);
  const QvpiSize size{std::atoi(words[2]), std::atoi(words[3])};
  const std::vector<std::string> files(words + 4, words + count);
  const std::vector<fuzz::Build> builds = fuzz::LoadBuilds(files);
  if (builds.size() != files.size()) return 1;
  for (size_t i = 0; i < test::Exports().size(); ++i) {
    const std::string& name = test::Exports()[i].name;
    if (!std::regex_search(name, names)) continue;
    try {
      std::printf("%s", name.c_str());
      for (const double time : TimesOf(i, size, builds)) std::printf(" %.1f", time);
      std::printf("\n");
    } catch (const std::exception& refusal) {
      std::printf("\n");
      std::fprintf(stderr, "%s: %s\n", name.c_str(), refusal.what());
    }
  }
}
