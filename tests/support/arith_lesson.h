// What the parameters of the arithmetic functions mean.
#pragma once

#include "tests/support/exports.h"

namespace test {

bool ArithLesson(Scene& scene, size_t place, Argument& argument);

}  // namespace test
