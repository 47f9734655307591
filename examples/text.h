// Text as images.
#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H

#include <string>

#include "examples/image.h"

namespace demo {

// How a line looks: grey values of letters and background, and the height of the letters in pixels.
struct TextStyle {
  int height;
  Qvp8u ink, paper;
};

class Font {
 public:
  explicit Font(const std::string& path);

  // One line of ASCII text from the left edge of an image of the given width; what does not fit is cut off.
  Grey Line(const std::string& text, TextStyle style, int width) const;

 private:
  using Library = std::unique_ptr<FT_LibraryRec_, decltype(&FT_Done_FreeType)>;
  using Face = std::unique_ptr<FT_FaceRec_, decltype(&FT_Done_Face)>;

  Library library_;
  Face face_;
};

}  // namespace demo
