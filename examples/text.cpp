#include "examples/text.h"

namespace demo {
namespace {

FT_Library OpenLibrary() {
  FT_Library library;
  if (FT_Init_FreeType(&library) != 0) throw std::runtime_error("FreeType does not start");
  return library;
}

FT_Face OpenFace(FT_Library library, const std::string& path) {
  FT_Face face;
  if (FT_New_Face(library, path.c_str(), 0, &face) != 0) throw std::runtime_error("cannot load the font " + path);
  return face;
}

// Mixes ink into the paper as far as the glyph covers each pixel.
void DrawGlyph(const FT_Bitmap& glyph, QvpiPoint at, TextStyle style, Grey& line) {
  for (int y = 0; y < static_cast<int>(glyph.rows); ++y) {
    for (int x = 0; x < static_cast<int>(glyph.width); ++x) {
      const QvpiPoint to{at.x + x, at.y + y};
      if (to.x < 0 || to.x >= line.size().width || to.y < 0 || to.y >= line.size().height) continue;
      Qvp8u& pixel = *line.At(to.x, to.y);
      pixel += (style.ink - pixel) * glyph.buffer[y * glyph.pitch + x] / 255;
    }
  }
}

}  // namespace

Font::Font(const std::string& path)
    : library_(OpenLibrary(), FT_Done_FreeType), face_(OpenFace(library_.get(), path), FT_Done_Face) {}

Grey Font::Line(const std::string& text, TextStyle style, int width) const {
  const int descent = style.height / 3;
  Grey line({width, style.height + descent});
  Require(qvpiSet_8u_C1R(style.paper, line.data(), line.step(), line.size()));
  FT_Set_Pixel_Sizes(face_.get(), 0, style.height);
  int x = 0;
  for (const char letter : text) {
    if (FT_Load_Char(face_.get(), static_cast<unsigned char>(letter), FT_LOAD_RENDER) != 0) continue;
    const FT_GlyphSlot glyph = face_->glyph;
    DrawGlyph(glyph->bitmap, {x + glyph->bitmap_left, style.height - glyph->bitmap_top}, style, line);
    x += static_cast<int>(glyph->advance.x >> 6);  // in 64ths of a pixel
  }
  return line;
}

}  // namespace demo
