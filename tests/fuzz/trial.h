// One call of one function, chosen by the bytes of an input, and what must hold for every call.
#pragma once

#include <array>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/fuzz/builds.h"
#include "tests/fuzz/picture.h"

namespace fuzz {

// Memory that is kept from one trial to the next.
struct Workshop {
  std::vector<Build> others;  // beside the build that the program is linked with
  // Any byte of a record, not only what identifies it.
  const bool spoilsRecords = std::getenv("QVPI_FUZZ_RECORDS") != nullptr;
  std::optional<QvpiSize> region;  // instead of one that the choices make
  const bool isVerbose = std::getenv("QVPI_FUZZ_VERBOSE") != nullptr;
  // Of each function whether its results are made of pixels, once that is known; see Trial::IsMadeOfPixels.
  std::vector<std::optional<bool>> madeOfPixels = std::vector<std::optional<bool>>(test::Exports().size());
  std::array<Zone, 12> zones;  // one for each image or plane: two sources and a destination may have four
  Zone numbers, record, buffer;
  Copies copies;
};

// The function that a number stands for. It takes no notice of the list's order, so that an input keeps its function
// when others are added.
size_t FunctionFor(uint32_t number);
uint32_t NumberFor(size_t function);

// Tries a call of the function, and tells its status; none where no scene can be made.
std::optional<QvpStatus> Try(size_t function, Choices& choices, Workshop& workshop);

class Trial {
 public:
  // Throws as a scene does.
  Trial(size_t function, Choices& choices, Workshop& workshop);

  // Makes the call with every build, and ends the program if they differ or anything has changed that must not.
  QvpStatus Run();
  // The call in words.
  std::string Describe() const;
  // Whether what has been run gave the same as calls on one pixel of the region after the other do.
  bool IsMadeOfPixels() { return ConsistsOfPixels() && IsSameByPixels(); }
  // The same for a function that is known to be so.
  void CheckPixels();

 private:
  struct Memory {
    Span now;
    const uint8_t* before;           // a copy from before the call
    size_t place;                    // of the parameter
    const Picture* picture;          // or null for what is no image
    const uint8_t* after = nullptr;  // a copy from after the first call
  };

  void ChooseRecord(Choices& choices);
  void SpoilRecord(std::string_view type, test::Argument& argument, const test::Scene::Piece& record, Choices& choices);
  void MakeRoom();
  void ChoosePictures(Choices& choices);
  void SetSteps(size_t place, ptrdiff_t step);
  void AddPicture(size_t place, const void*& pointer, Choices& choices);
  void ShareMemory(Choices& choices);
  void ListMemory();

  bool MustBeRefused() const;
  const test::Call* FirstCalls() const;
  QvpStatus Call(const test::Call* calls) const;
  void CheckBounds(const Memory& memory, QvpStatus status) const;
  void CheckRefusal(const Memory& memory, QvpStatus status) const;
  void CheckAgain(const test::Call* calls, QvpStatus expected) const;
  bool ConsistsOfPixels() const;
  bool IsSameByPixels();
  ptrdiff_t StepBehind(size_t place) const;
  bool AreSame(const Memory& memory) const;
  void Restore() const;
  void SetPoison(bool on) const;
  [[noreturn]] void Fail(const std::string& what, size_t place) const;

  const size_t number_;
  const test::Export& function_;
  Workshop& workshop_;
  test::Scene scene_;
  std::vector<test::Scene::Piece> pieces_;
  std::vector<test::Argument> arguments_;
  std::deque<Picture> pictures_;
  std::deque<std::array<const void*, 4>> planes_;
  std::unique_ptr<test::Scene> other_;  // whose record is given
  std::vector<Memory> written_, read_;
  bool isComparable_ = true;  // all builds must give the same bytes
  bool isTangled_ = false;    // rows overlap: no memory fault may come of it, but what is copied is undefined
  bool isNoRecord_ = false;   // what is given as one
};

}  // namespace fuzz
