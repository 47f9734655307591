// The families' lessons; see Lesson in exports.h.
#pragma once

#include "tests/support/exports.h"

namespace test {

bool ArithLesson(Scene& scene, size_t place, Argument& argument);
bool FilterLesson(Scene& scene, size_t place, Argument& argument);
bool FourierLesson(Scene& scene, size_t place, Argument& argument);
bool HogLesson(Scene& scene, size_t place, Argument& argument);
bool ResizeLesson(Scene& scene, size_t place, Argument& argument);
bool StatsLesson(Scene& scene, size_t place, Argument& argument);
bool ThresholdLesson(Scene& scene, size_t place, Argument& argument);
bool WarpLesson(Scene& scene, size_t place, Argument& argument);

}  // namespace test
