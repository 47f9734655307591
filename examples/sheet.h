// A contact sheet: a grid of small pictures, each with two lines of text below it.
#pragma once

#include <string>
#include <vector>

#include "examples/image.h"
#include "examples/text.h"
#include "examples/tile.h"

namespace demo {

class Sheet {
 public:
  template <class AnyImage>
  void Add(const std::string& caption, const std::string& function, const AnyImage& image) {
    cells_.push_back({caption, function, Tile(image)});
  }

  Rgb Draw(const std::string& heading) const;

 private:
  struct Cell {
    std::string caption, function;
    Rgb tile;
  };

  int TileHeight() const;
  void DrawCell(const Cell& cell, QvpiPoint at, Rgb& sheet) const;
  void Write(const std::string& text, TextStyle style, QvpiPoint at, int width, Rgb& sheet) const;

  Font font_{QVP_DEMO_FONT};
  std::vector<Cell> cells_;
};

}  // namespace demo
