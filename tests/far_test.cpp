// Images that take more memory than 32 bits can tell: rows that lie gigabytes apart, of which only those pages exist
// that are touched, and rows of gigabytes whose pages are the same few again and again.
#include "tests/support/exports.h"

#if defined(__linux__) && defined(__LP64__)
#include <sys/mman.h>
#include <unistd.h>

#include <climits>

namespace {
using test::Argument;
using test::Export;
using test::Exports;
using test::Scene;

// Memory for rows that are `step` bytes apart, the first one above the others if that is negative.
class FarRows {
 public:
  FarRows(const uint8_t* rows, ptrdiff_t n, ptrdiff_t bytes, ptrdiff_t step)
      : n_(n), bytes_(bytes), step_(step), size_((n - 1) * std::abs(step) + bytes) {
    void* const memory =
        mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) abort();
    lowest_ = static_cast<uint8_t*>(memory);
    for (ptrdiff_t y = 0; y < n; ++y) std::memcpy(Row(y), rows + y * bytes, bytes);
  }
  FarRows(const FarRows&) = delete;
  ~FarRows() { munmap(lowest_, size_); }

  uint8_t* Row(ptrdiff_t y) const { return lowest_ + (step_ < 0 ? y - (n_ - 1) : y) * step_; }
  bool AreSame(const uint8_t* rows) const {
    bool areSame = true;
    for (ptrdiff_t y = 0; y < n_; ++y) areSame &= std::memcmp(Row(y), rows + y * bytes_, bytes_) == 0;
    return areSame;
  }

 private:
  ptrdiff_t n_, bytes_, step_;
  size_t size_;
  uint8_t* lowest_ = nullptr;
};

// Images that have a step of their own.
bool IsImage(const Export& function, size_t place) {
  const auto& parameters = function.parameters;
  const auto isPointer = [&](size_t i) { return parameters[i].type.ends_with("*"); };
  const auto isPlane = [&](size_t i) { return parameters[i].type.ends_with("* const*"); };
  return place + 1 < parameters.size() && isPointer(place) && !isPlane(place) && !isPointer(place + 1) &&
         parameters[place + 1].name.ends_with("Step") && (place == 0 || !isPointer(place - 1));
}

const Scene::Piece* PieceAt(const std::vector<Scene::Piece>& pieces, const void* address) {
  for (const Scene::Piece& piece : pieces) {
    if (address >= piece.data && address < piece.data + piece.size) return &piece;
  }
  return nullptr;
}

// A call of a scene whose images have their rows far apart, and the same call as it is.
class FarCall {
 public:
  FarCall(const Export& function, bool isDownwards) : function_(function), near_(function, {37, 5}, 12) {
    const ptrdiff_t far = function.name.ends_with("_L") ? (ptrdiff_t{5} << 30) + 64 : INT_MAX - 63;
    const auto pieces = near_.Pieces();
    arguments_ = near_.arguments;
    for (size_t place = 0; place < arguments_.size(); ++place) {
      const Scene::Piece* const piece = PieceAt(pieces, arguments_[place].pointer);
      if (piece && IsImage(function, place)) Move(place, *piece, isDownwards ? far : -far);
    }
  }

  bool HasImages() const { return !images_.empty(); }
  void Check(bool isDownwards) {
    const QvpStatus status = function_.call(arguments_.data());
    if (!isDownwards && status == qvpStatusStep) return;  // of many a family steps are positive
    EXPECT_EQ(near_.Call(), status) << function_.name;
    for (const auto& [piece, rows] : images_) EXPECT_TRUE(rows->AreSame(piece.data)) << function_.name;
  }

 private:
  void Move(size_t place, const Scene::Piece& piece, ptrdiff_t far) {
    Argument &image = arguments_[place], &step = arguments_[place + 1];
    const ptrdiff_t bytes = step.number, before = static_cast<const uint8_t*>(image.pointer) - piece.data,
                    size = piece.size;
    if (bytes < 1 || size % bytes != 0) return;
    const bool isVolume = place + 2 < arguments_.size() && function_.parameters[place + 2].name.ends_with("PlaneStep");
    if (isVolume) far = SetPlaneStep(arguments_[place + 2].number, bytes, far);
    images_.emplace_back(piece, std::make_unique<FarRows>(piece.data, size / bytes, bytes, far));
    image.pointer = images_.back().second->Row(before / bytes) + before % bytes;
    step.number = far;
  }

  // Planes are as many rows apart as they were; the step of rows is the rest of theirs.
  static ptrdiff_t SetPlaneStep(test::Number& planeStep, ptrdiff_t bytes, ptrdiff_t far) {
    const ptrdiff_t rows = ptrdiff_t{planeStep} / bytes, step = far / rows / 64 * 64;
    planeStep = rows * step;
    return step;
  }

  const Export& function_;
  Scene near_;
  std::vector<Argument> arguments_;
  std::vector<std::pair<Scene::Piece, std::unique_ptr<FarRows>>> images_;
};

TEST(EveryKernel, ReachesRowsThatLieGigabytesApart) {
  int functions = 0;
  for (const Export& function : Exports()) {
    for (const bool isDownwards : {true, false}) {
      FarCall call(function, isDownwards);
      if (!call.HasImages()) continue;
      call.Check(isDownwards);
      functions += isDownwards;
    }
  }
  RecordProperty("functions", functions);
}

// One row, longer than 32 bits can tell, of the same bytes again and again.
class LongRow {
 public:
  static constexpr ptrdiff_t kPeriod = 1 << 24, kBytes = (ptrdiff_t{1} << 32) + 1000;

  explicit LongRow(uint64_t seed) {
    const int file = memfd_create("row", 0);
    if (file < 0 || ftruncate(file, kPeriod) != 0) abort();
    void* const memory = mmap(nullptr, kMapped, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) abort();
    row_ = static_cast<uint8_t*>(memory);
    for (ptrdiff_t at = 0; at < kMapped; at += kPeriod) {
      if (mmap(row_ + at, kPeriod, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0) == MAP_FAILED) abort();
    }
    close(file);
    test::Random(seed).Fill(row_, kPeriod);
  }
  LongRow(const LongRow&) = delete;
  ~LongRow() { munmap(row_, kMapped); }
  uint8_t* data() const { return row_; }

 private:
  static constexpr ptrdiff_t kMapped = (kBytes / kPeriod + 1) * kPeriod;
  uint8_t* row_;
};

TEST(FarImages, HaveRowsOfGigabytes) {
  const LongRow src(1), dst(2);
  constexpr QvpiSizeL kRow{LongRow::kBytes, 1};
  ASSERT_EQ(qvpiCopy_8u_C1R_L(src.data(), kRow.width, dst.data(), kRow.width, kRow), qvpStatusNoError);
  EXPECT_EQ(std::memcmp(src.data(), dst.data(), LongRow::kPeriod), 0);
  ASSERT_EQ(qvpiSet_8u_C1R_L(7, dst.data(), kRow.width, kRow), qvpStatusNoError);
  EXPECT_EQ(std::count(dst.data(), dst.data() + LongRow::kPeriod, 7), LongRow::kPeriod);
}

}  // namespace
#endif
