#include "examples/sheet.h"

#include <algorithm>

namespace demo {
namespace {

constexpr int kColumns = 5, kGap = 24, kHeadingHeight = 44, kTextHeight = 50;
constexpr Qvp8u kPaper = 244;
constexpr TextStyle kHeading{22, 20, kPaper}, kCaption{14, 20, kPaper}, kFunction{12, 110, kPaper};

void Fill(Qvp8u grey, QvpiPoint at, QvpiSize size, Rgb& sheet) {
  const Qvp8u colour[3] = {grey, grey, grey};
  Require(qvpiSet_8u_C3R(colour, sheet.At(at.x, at.y), sheet.step(), size));
}

// A thin line around it keeps a bright picture apart from the paper.
void Place(const Rgb& tile, QvpiPoint at, Rgb& sheet) {
  const QvpiSize size = tile.size();
  Fill(200, {at.x - 1, at.y - 1}, {size.width + 2, size.height + 2}, sheet);
  Require(qvpiCopy_8u_C3R(tile.data(), tile.step(), sheet.At(at.x, at.y), sheet.step(), size));
}

}  // namespace

Rgb Sheet::Draw(const std::string& heading) const {
  const int count = static_cast<int>(cells_.size()), rows = (count + kColumns - 1) / kColumns;
  const int across = kTileSide + kGap, down = TileHeight() + kTextHeight + kGap, top = kGap + kHeadingHeight;
  Rgb sheet({kGap + kColumns * across, top + rows * down});
  Fill(kPaper, {0, 0}, sheet.size(), sheet);
  Write(heading, kHeading, {kGap, kGap}, kColumns * across - kGap, sheet);
  for (int i = 0; i < count; ++i) {
    DrawCell(cells_[i], {kGap + i % kColumns * across, top + i / kColumns * down}, sheet);
  }
  return sheet;
}

int Sheet::TileHeight() const {
  int height = 1;
  for (const Cell& cell : cells_) height = std::max(height, cell.tile.size().height);
  return height;
}

void Sheet::DrawCell(const Cell& cell, QvpiPoint at, Rgb& sheet) const {
  const int height = TileHeight();
  const QvpiSize tile = cell.tile.size();
  Place(cell.tile, {at.x + (kTileSide - tile.width) / 2, at.y + (height - tile.height) / 2}, sheet);
  Write(cell.caption, kCaption, {at.x, at.y + height + 8}, kTileSide, sheet);
  Write(cell.function, kFunction, {at.x, at.y + height + 30}, kTileSide, sheet);
}

void Sheet::Write(const std::string& text, TextStyle style, QvpiPoint at, int width, Rgb& sheet) const {
  const Grey line = font_.Line(text, style, width);
  Require(qvpiDup_8u_C1C3R(line.data(), line.step(), sheet.At(at.x, at.y), sheet.step(), line.size()));
}

}  // namespace demo
