// What must hold for every call.
#include <algorithm>
#include <sstream>

#include "tests/fuzz/edit.h"
#include "tests/fuzz/trial.h"

// The header comes with the sanitizers' run-time library, which only their build needs.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <sanitizer/asan_interface.h>
#endif
#endif

namespace fuzz {
using test::Argument;

// For a library with a sanitizer nothing around and between the rows is memory then.
void Trial::SetPoison([[maybe_unused]] bool on) const {
#ifdef ASAN_POISON_MEMORY_REGION
  for (const Picture& picture : pictures_) {
    const Span span = picture.Around();
    (on ? __asan_poison_memory_region : __asan_unpoison_memory_region)(span.data, span.size);
  }
  if (!on) return;
  for (const Picture& picture : pictures_) {
    picture.ForEachRow([&](uint8_t* row) { __asan_unpoison_memory_region(row, picture.rowBytes); });
  }
#endif
}

// A sanitizer refuses copies between bytes that overlap: they are left to another build.
const test::Call* Trial::FirstCalls() const { return isTangled_ ? workshop_.others.front().calls : nullptr; }

QvpStatus Trial::Call(const test::Call* calls) const {
  return (calls ? calls[number_].call : function_.call)(arguments_.data());
}

// Whatever else may be wrong: an image is missing, or a region has no pixels.
bool Trial::MustBeRefused() const {
  const int region = function_.Find("roiSize");
  bool isRefused = region >= 0 && (int64_t{arguments_[region].number} < 1 || int64_t{arguments_[region].second} < 1);
  for (size_t i = 0; i < arguments_.size(); ++i) {
    isRefused |= IsImage(function_, i) && !arguments_[i].pointer && !function_.MayBeNull(i);
  }
  return isRefused;
}

// An Init takes the identification, a word, of its record away. After a few statuses, queries have told what can be
// told: sizes that can be represented, the corners of a quadrangle without area.
void Trial::CheckRefusal(const Memory& memory, QvpStatus status) const {
  const bool hasTold = status == qvpStatusSizeOverflow || status == qvpStatusDataType || status == qvpStatusCoefficient;
  if (hasTold && IsQuery(function_)) return;
  size_t first = 0, end = memory.now.size;
  while (first < end && memory.before[first] == memory.now.data[first]) ++first;
  while (end > first && memory.before[end - 1] == memory.now.data[end - 1]) --end;
  const bool isCleared = std::all_of(memory.now.data + first, memory.now.data + end, [](uint8_t b) { return b == 0; });
  const bool isUntouched = first == end || (IsInit(scene_) && isCleared && end - first <= sizeof(uint32_t));
  if (!isUntouched) Fail("written although refused with " + std::to_string(status), memory.place);
}

// One negative status comes with results: that an index had no denominator.
void Trial::CheckBounds(const Memory& memory, QvpStatus status) const {
  if (status < 0 && status != qvpStatusQualityIndex) return CheckRefusal(memory, status);
  if (!memory.picture) return;
  uint8_t* const expected = workshop_.copies.Of(memory.before, memory.now.size);
  memory.picture->ForEachRow(
      [&](const uint8_t* row) { std::memcpy(expected + (row - memory.now.data), row, memory.picture->rowBytes); });
  const auto differing = std::mismatch(expected, expected + memory.now.size, memory.now.data).second;
  if (differing == memory.now.data + memory.now.size) return;
  Fail(
      "written beside the region, " + std::to_string(differing - memory.picture->pointer()) + " bytes from its pointer",
      memory.place);
}

// The step of memory without a picture, as the planes of a stack have: elements lie along rows, which begin at any
// address. Without one it is a single row.
ptrdiff_t Trial::StepBehind(size_t place) const {
  const auto& parameters = function_.parameters;
  const bool hasStep = place + 1 < parameters.size() && parameters[place + 1].type == "int" &&
                       parameters[place + 1].name.ends_with("Step");
  return hasStep ? ptrdiff_t{arguments_[place + 1].number} : PTRDIFF_MAX;
}

// NaN has no promised bits.
bool Trial::AreSame(const Memory& memory) const {
  if (std::memcmp(memory.after, memory.now.data, memory.now.size) == 0) return true;
  const std::string_view type = function_.parameters[memory.place].type;
  const bool isState = type.find("State_64f") != std::string_view::npos;
  const test::Element* const element = isState ? &test::ElementOf("64f") : test::PointedAt(type);
  if (!element || element->isInteger) return false;
  bool isSame = true;
  const auto compare = [&](const uint8_t* row, ptrdiff_t bytes) {
    for (ptrdiff_t i = 0; i + element->bytes <= bytes; i += element->bytes) {
      isSame &= test::AreSame(element->read(row + i), element->read(memory.after + (row + i - memory.now.data)));
    }
  };
  if (!memory.picture) {
    const auto size = static_cast<ptrdiff_t>(memory.now.size), step = std::max<ptrdiff_t>(StepBehind(memory.place), 1);
    for (ptrdiff_t row = 0; row < size; row += step) compare(memory.now.data + row, std::min(step, size - row));
  } else {
    memory.picture->ForEachRow([&](const uint8_t* row) { compare(row, memory.picture->rowBytes); });
  }
  return isSame;
}

void Trial::Restore() const {
  for (const Memory& memory : written_) std::memcpy(memory.now.data, memory.before, memory.now.size);
}

// The call again, on the same bytes as before.
void Trial::CheckAgain(const test::Call* calls, QvpStatus expected) const {
  Restore();
  const QvpStatus status = Call(calls);
  if (status != expected) Fail("another status: " + std::to_string(status), 0);
  for (const Memory& memory : written_) {
    if (!AreSame(memory)) Fail("other bytes by another call", memory.place);
  }
}

// Each image has the size of the region, and nothing else is written.
bool Trial::ConsistsOfPixels() const {
  const int place = function_.Find("roiSize");
  if (place < 0 || isTangled_ || pictures_.empty()) return false;
  const ptrdiff_t width = arguments_[place].number, height = arguments_[place].second;
  const auto isOfRegion = [&](const Picture& picture) {
    return picture.originRow == 0 && picture.originColumn == 0 && picture.rows == height &&
           picture.rowBytes % width == 0;
  };
  return std::all_of(pictures_.begin(), pictures_.end(), isOfRegion) &&
         std::all_of(written_.begin(), written_.end(), [](const Memory& memory) { return memory.picture; });
}

// Columns from top to bottom: whatever depends on the order of pixels depends on that of rows.
bool Trial::IsSameByPixels() {
  Argument& region = arguments_[function_.Find("roiSize")];
  const Argument whole = region;
  const int width = whole.number, height = whole.second;
  region = QvpiSize{1, 1};
  Restore();
  const test::Call* const calls = workshop_.others.empty() ? nullptr : workshop_.others.front().calls;
  bool isRefused = false;
  for (int i = 0; i < width * height; ++i) {
    for (const Picture& p : pictures_)
      *p.pointed = p.Row(i % height) + p.originColumn + i / height * p.rowBytes / width;
    isRefused |= Call(calls) < 0;
  }
  for (const Picture& picture : pictures_) *picture.pointed = picture.pointer();
  region = whole;
  return !isRefused && std::all_of(written_.begin(), written_.end(), [&](const Memory& m) { return AreSame(m); });
}

void Trial::CheckPixels() {
  constexpr int64_t kMost = 300;  // no more than the rest of a trial costs
  const Argument& region = arguments_[function_.Find("roiSize")];
  if (int64_t{region.number} * int64_t{region.second} > kMost || !ConsistsOfPixels()) return;
  if (!IsSameByPixels()) Fail("other bytes by a call for each pixel", 0);
}

QvpStatus Trial::Run() {
  if (workshop_.isVerbose) std::fprintf(stderr, "%s", Describe().c_str());
  if (isTangled_ && workshop_.others.empty()) return qvpStatusNoOperation;
  SetPoison(true);
  const QvpStatus status = Call(FirstCalls());
  SetPoison(false);
  for (Memory& memory : written_) {
    CheckBounds(memory, status);
    memory.after = workshop_.copies.Of(memory.now.data, memory.now.size);
  }
  if (MustBeRefused() && status >= 0) Fail("not refused", 0);
  if (isNoRecord_ && status == qvpStatusNoError) Fail("took what is no record", 0);
  if (!isComparable_ || isTangled_ || workshop_.others.empty()) {
    CheckAgain(FirstCalls(), status);
  } else {
    for (const Build& other : workshop_.others) CheckAgain(other.calls, status);
  }
  for (const Memory& memory : read_) {
    if (std::memcmp(memory.before, memory.now.data, memory.now.size) != 0) Fail("a source has changed", memory.place);
  }
  return status;
}

std::string Trial::Describe() const {
  std::ostringstream text;
  text << function_.name << ", region " << scene_.roi().width << 'x' << scene_.roi().height
       << (other_ ? ", record of " : "") << (other_ ? other_->function().name : "") << '\n';
  for (size_t i = 0; i < arguments_.size(); ++i) {
    const Argument& a = arguments_[i];
    const auto& [type, name] = function_.parameters[i];
    text << "  " << name << " = ";
    if (IsPointer(type)) {
      text << a.pointer << '\n';
    } else {
      text << double{a.number} << ' ' << double{a.second} << ' ' << double{a.third} << ' ' << double{a.fourth} << '\n';
    }
  }
  for (const Picture& p : pictures_) {
    text << "  " << function_.parameters[p.place].name << ": " << p.rows << " rows of " << p.rowBytes << " bytes"
         << (p.isShared ? ", shared" : "") << '\n';
  }
  return text.str();
}

void Trial::Fail(const std::string& what, size_t place) const {
  std::fprintf(stderr, "%s: %s\n%s", std::string(function_.parameters[place].name).c_str(), what.c_str(),
               Describe().c_str());
  abort();
}

}  // namespace fuzz
