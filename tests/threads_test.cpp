// What lets threads share a record without locks: calls write to their destination and their buffer, and to nothing
// else.
#include "tests/support/threads.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/exports.h"

namespace {
using test::Export;
using test::Exports;
using test::Scene;

constexpr QvpiSize kRoi{37, 5};
constexpr int kThreads = 8;
constexpr size_t kRecordBoundary = 64;

bool IsConst(const test::Parameter& parameter) { return parameter.type.starts_with("const"); }
bool IsImage(const Export& function, size_t place) {
  return place + 1 < function.parameters.size() && function.parameters[place + 1].name.ends_with("Step");
}

#if QVP_CAN_PROTECT
// Sources, records and tables lie in pages that cannot be written while a call runs.
TEST(EveryKernel, WritesToNothingThatItTakesAsConst) {
  for (const Export& function : Exports()) {
    Scene scene(function, kRoi, 8);
    const auto setReadOnly = [&](bool isReadOnly) {
      for (const Scene::Piece& piece : scene.Pieces()) {
        if (IsConst(function.parameters[piece.place])) test::Pages::SetReadOnly(piece.data, piece.size, isReadOnly);
      }
    };
    setReadOnly(true);
    EXPECT_GE(scene.Call(), 0) << function.name;
    setReadOnly(false);
  }
}
#endif

// Scenes of one function, alike, of which all have the sources, records and tables of the first, and whose outputs lie
// one after the other. Images do so without a gap, as the bands of one image; the tables of a record depend on where it
// begins between two boundaries, which stays the same.
class Team {
 public:
  explicit Team(const Export& function) {
    for (int i = 0; i < kThreads; ++i) scenes_.emplace_back(function, kRoi, 9);
    const auto& parameters = function.parameters;
    for (size_t place = 0; place < parameters.size(); ++place) {
      const bool isShared = IsConst(parameters[place]);
      for (Scene& scene : scenes_) {
        if (isShared) scene.arguments[place].pointer = scenes_[0].arguments[place].pointer;
      }
    }
    const std::vector<Scene::Piece> pieces = scenes_[0].Pieces();
    for (size_t i = 0; i < pieces.size(); ++i) {
      if (pieces[i].isOutput) Join(i, IsImage(function, pieces[i].place) ? 1 : kRecordBoundary);
    }
  }

  std::vector<Scene>& scenes() { return scenes_; }
  // Whether all have written the same.
  bool IsUnanimous() const {
    return std::all_of(bands_.begin(), bands_.end(), [](const Bands& bands) {
      const uint8_t* const first = bands.memory->data();
      for (int i = 1; i < kThreads; ++i) {
        if (std::memcmp(first, first + i * bands.stride, bands.size) != 0) return false;
      }
      return true;
    });
  }

 private:
  struct Bands {
    std::unique_ptr<test::Block> memory;
    size_t size, stride;
  };

  // Gives the scenes one block for a piece of which each has its own.
  void Join(size_t piece, size_t boundary) {
    const size_t size = scenes_[0].Pieces()[piece].size, stride = (size + boundary - 1) / boundary * boundary;
    bands_.push_back({std::make_unique<test::Block>((kThreads - 1) * stride + size), size, stride});
    for (int i = 0; i < kThreads; ++i) {
      const Scene::Piece own = scenes_[i].Pieces()[piece];
      uint8_t* const band = bands_.back().memory->data() + i * stride;
      std::memcpy(band, own.data, size);
      Redirect(scenes_[i], own, band);
    }
  }
  static void Redirect(Scene& scene, const Scene::Piece& from, uint8_t* to) {
    const auto move = [&](const void*& pointer) {
      if (IsIn(from, pointer)) pointer = to + (static_cast<const uint8_t*>(pointer) - from.data);
    };
    const void*& argument = scene.arguments[from.place].pointer;
    move(argument);
    if (!scene.function().parameters[from.place].type.ends_with("* const*")) return;
    auto** const planes = const_cast<const void**>(static_cast<const void* const*>(argument));
    for (size_t i = 0; i < PlanesAt(scene, argument); ++i) move(planes[i]);
  }
  // Of an image four; the planes of a volume are listed in a piece of their own.
  static size_t PlanesAt(const Scene& scene, const void* list) {
    for (const Scene::Piece& piece : scene.Pieces()) {
      if (IsIn(piece, list)) return (piece.data + piece.size - static_cast<const uint8_t*>(list)) / sizeof(void*);
    }
    return 4;
  }
  static bool IsIn(const Scene::Piece& piece, const void* pointer) {
    const auto address = reinterpret_cast<uintptr_t>(pointer), first = reinterpret_cast<uintptr_t>(piece.data);
    return first <= address && address < first + piece.size;
  }

  std::vector<Scene> scenes_;
  std::vector<Bands> bands_;
};

TEST(EveryKernel, ServesThreadsThatShareWhatItReads) {
  for (const Export& function : Exports()) {
    Team team(function);
    std::vector<QvpStatus> statuses(kThreads);
    test::InThreads(kThreads, [&](int i) { statuses[i] = team.scenes()[i].Call(); });
    EXPECT_GE(statuses[0], 0) << function.name;
    EXPECT_EQ(std::count(statuses.begin(), statuses.end(), statuses[0]), kThreads) << function.name;
    EXPECT_TRUE(team.IsUnanimous()) << function.name;
  }
}

}  // namespace
