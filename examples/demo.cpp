// Shows what the library does: runs its functions on a picture, prints the speed of each and draws a contact sheet.
#include "examples/demo.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "examples/picture.h"

namespace demo {
namespace {

double Milliseconds(const std::function<QvpStatus()>& call, const char* function, int times) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < times; ++i) Require(call(), function);
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count() / times;
}

// The best of several rounds: the one that was disturbed least. A round is long enough for the clock.
double BestMilliseconds(const std::function<QvpStatus()>& call, const char* function) {
  constexpr double kRoundMilliseconds = 2;
  const double first = Milliseconds(call, function, 1);
  const int times = static_cast<int>(std::clamp(kRoundMilliseconds / first, 1.0, 10000.0));
  double best = first;
  for (int round = 0; round < 10; ++round) best = std::min(best, Milliseconds(call, function, times));
  return best;
}

}  // namespace

void Demo::Time(QvpiSize size, int pixelBytes, const char* function, const std::function<QvpStatus()>& call) {
  const double milliseconds = BestMilliseconds(call, function);
  const double bytes = 1.0 * size.width * size.height * pixelBytes;
  std::printf("%-32s %11s %11.5f ms %8.2f GB/s\n", function, ToString(size).c_str(), milliseconds,
              bytes / milliseconds / 1e6);
  function_ = function;
}

Rgb Demo::DrawSheet() const { return sheet_.Draw("qvpIP on a picture of " + ToString(photo_.size()) + " pixels"); }

}  // namespace demo

int main(int argc, char** argv) try {
  if (argc != 3) throw std::runtime_error("call it as: demo PICTURE OUTPUT.png");
  std::printf("%s\n", qvpiGetLibVersion()->Name);
  demo::Demo demo(demo::LoadPicture(argv[1]));
  demo::CoreSteps(demo);
  demo::ArithSteps(demo);
  demo::LogicSteps(demo);
  demo::ConvertSteps(demo);
  demo::ThresholdSteps(demo);
  demo::LookupSteps(demo);
  demo::CompositeSteps(demo);
  demo::FilterSteps(demo);
  demo::AxesFilterSteps(demo);
  demo::ExtremesSteps(demo);
  demo::FixedFilterSteps(demo);
  demo::MedianSteps(demo);
  demo::SumsFilterSteps(demo);
  demo::DenoiseSteps(demo);
  demo::PageSteps(demo);
  demo::ResizeSteps(demo);
  demo::FrameSteps(demo);
  demo::WarpSteps(demo);
  demo::StatsSteps(demo);
  demo::QualitySteps(demo);
  demo::HogSteps(demo);
  demo::SynthesisSteps(demo);
  demo::FourierSteps(demo);
  demo::WaveletSteps(demo);
  demo::VolumeSteps(demo);
  demo::SavePng(demo.DrawSheet(), argv[2]);
  std::printf("contact sheet: %s\n", argv[2]);
  return 0;
} catch (const std::exception& failure) {
  std::fprintf(stderr, "demo: %s\n", failure.what());
  return 1;
}
