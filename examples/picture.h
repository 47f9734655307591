// Pictures in files.
#pragma once

#include <string>

#include "examples/image.h"

namespace demo {

// Loads a PNG or JPEG file of any kind as RGB; what is transparent comes out white. Throws when the file is not whole.
Rgb LoadPicture(const std::string& path);

void SavePng(const Rgb& image, const std::string& path);

}  // namespace demo
