// The frame of the example program: each step times one call and adds its result to the contact sheet.
#pragma once

#include <functional>
#include <string>

#include "examples/image.h"
#include "examples/sheet.h"

// A call of the library with its name, so that what is printed is what is called.
#define CALL(function, ...) #function, [&] { return function(__VA_ARGS__); }

namespace demo {

class Demo {
 public:
  explicit Demo(Rgb photo) : photo_(std::move(photo)) {}

  const Rgb& photo() const { return photo_; }

  // Times a call and prints one line. The call is repeated, so that it must do the same again on its own results.
  // `pixelBytes` is what the call reads and writes for one pixel of `size`: channels that it leaves alone do not count.
  void Time(QvpiSize size, int pixelBytes, const char* function, const std::function<QvpStatus()>& call);

  // Adds an image to the sheet, under the name of the function that was timed last.
  template <class AnyImage>
  void Show(const std::string& caption, const AnyImage& image) {
    sheet_.Add(caption, function_, image);
  }

  Rgb DrawSheet() const;

 private:
  Rgb photo_;
  Sheet sheet_;
  std::string function_;
};

// The steps of each header of the library.
void CoreSteps(Demo& demo);
void ArithSteps(Demo& demo);
void LogicSteps(Demo& demo);
void LookupSteps(Demo& demo);
void ConvertSteps(Demo& demo);
void ThresholdSteps(Demo& demo);
void CompositeSteps(Demo& demo);
void FilterSteps(Demo& demo);
void AxesFilterSteps(Demo& demo);
void ExtremesSteps(Demo& demo);
void FixedFilterSteps(Demo& demo);
void MedianSteps(Demo& demo);
void SumsFilterSteps(Demo& demo);
void DenoiseSteps(Demo& demo);
void PageSteps(Demo& demo);
void ResizeSteps(Demo& demo);
void FrameSteps(Demo& demo);
void WarpSteps(Demo& demo);
void StatsSteps(Demo& demo);
void QualitySteps(Demo& demo);
void HogSteps(Demo& demo);
void SynthesisSteps(Demo& demo);
void FourierSteps(Demo& demo);
void WaveletSteps(Demo& demo);
void VolumeSteps(Demo& demo);

}  // namespace demo
