// What the parameters of the resize functions mean.
#pragma once

#include "tests/support/exports.h"

namespace test {

bool ResizeLesson(Scene& scene, size_t place, Argument& argument);

}  // namespace test
