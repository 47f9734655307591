// The families' lessons; see Lesson in exports.h.
#pragma once

#include "tests/support/exports.h"

namespace test {

// The argument of a name, if it is among these.
inline bool Choose(std::string_view name, std::initializer_list<Named> choices, Argument& argument) {
  for (const Named& choice : choices) {
    if (choice.name == name) return argument = choice.value, true;
  }
  return false;
}

// What a filter is asked for by name, the same in its queries, its Init and its calls, and the memory that it takes.
bool LearnFilter(Scene& scene, size_t place, const std::vector<Named>& demand, Argument& argument);

bool BilateralLesson(Scene& scene, size_t place, Argument& argument);
bool CompositeLesson(Scene& scene, size_t place, Argument& argument);
bool ConvolveLesson(Scene& scene, size_t place, Argument& argument);
bool CopyBorderLesson(Scene& scene, size_t place, Argument& argument);
bool DctBlocksLesson(Scene& scene, size_t place, Argument& argument);
bool DeconvolutionLesson(Scene& scene, size_t place, Argument& argument);
bool DivisionLesson(Scene& scene, size_t place, Argument& argument);
bool ExtremesLesson(Scene& scene, size_t place, Argument& argument);
bool FilterInitLesson(Scene& scene, size_t place, Argument& argument);
bool FilterLesson(Scene& scene, size_t place, Argument& argument);
bool FourierLesson(Scene& scene, size_t place, Argument& argument);
bool FrameLesson(Scene& scene, size_t place, Argument& argument);
bool FrameResizeLesson(Scene& scene, size_t place, Argument& argument);
bool GaussLesson(Scene& scene, size_t place, Argument& argument);
bool GuidedLesson(Scene& scene, size_t place, Argument& argument);
bool HistogramLesson(Scene& scene, size_t place, Argument& argument);
bool HogLesson(Scene& scene, size_t place, Argument& argument);
bool JaehneLesson(Scene& scene, size_t place, Argument& argument);
bool LeastSquaresLesson(Scene& scene, size_t place, Argument& argument);
bool LocalThresholdLesson(Scene& scene, size_t place, Argument& argument);
bool LookupLesson(Scene& scene, size_t place, Argument& argument);
bool MatchLesson(Scene& scene, size_t place, Argument& argument);
bool MedianLesson(Scene& scene, size_t place, Argument& argument);
bool MomentLesson(Scene& scene, size_t place, Argument& argument);
bool NoiseLesson(Scene& scene, size_t place, Argument& argument);
bool OrderLesson(Scene& scene, size_t place, Argument& argument);
bool PatternLesson(Scene& scene, size_t place, Argument& argument);
bool RampLesson(Scene& scene, size_t place, Argument& argument);
bool ReductionLesson(Scene& scene, size_t place, Argument& argument);
bool RemapLesson(Scene& scene, size_t place, Argument& argument);
bool ResizeLesson(Scene& scene, size_t place, Argument& argument);
bool ScaleLesson(Scene& scene, size_t place, Argument& argument);
bool SeparableLesson(Scene& scene, size_t place, Argument& argument);
bool ShiftLesson(Scene& scene, size_t place, Argument& argument);
bool SimilarityLesson(Scene& scene, size_t place, Argument& argument);
bool SpaceLesson(Scene& scene, size_t place, Argument& argument);
bool SumsLesson(Scene& scene, size_t place, Argument& argument);
bool TableLesson(Scene& scene, size_t place, Argument& argument);
bool ThresholdLesson(Scene& scene, size_t place, Argument& argument);
bool TransformLesson(Scene& scene, size_t place, Argument& argument);
bool TurnLesson(Scene& scene, size_t place, Argument& argument);
bool VolumeFilterLesson(Scene& scene, size_t place, Argument& argument);
bool VolumeKernelLesson(Scene& scene, size_t place, Argument& argument);
bool VolumeLesson(Scene& scene, size_t place, Argument& argument);
bool VolumeRemapLesson(Scene& scene, size_t place, Argument& argument);
bool VolumeResizeLesson(Scene& scene, size_t place, Argument& argument);
bool VolumeWarpLesson(Scene& scene, size_t place, Argument& argument);
bool WarpLesson(Scene& scene, size_t place, Argument& argument);
bool WaveletLesson(Scene& scene, size_t place, Argument& argument);
bool WeightedRowsLesson(Scene& scene, size_t place, Argument& argument);
bool WienerLesson(Scene& scene, size_t place, Argument& argument);
bool WindowFunctionLesson(Scene& scene, size_t place, Argument& argument);
bool WindowLesson(Scene& scene, size_t place, Argument& argument);

}  // namespace test
