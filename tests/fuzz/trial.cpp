#include "tests/fuzz/trial.h"

#include <algorithm>
#include <sstream>

#include "tests/fuzz/edit.h"

namespace fuzz {
namespace {
using test::Argument;
using test::Export;
using test::Exports;
using test::Number;
using test::Parameter;
using test::Scene;

uint32_t HashOf(std::string_view name) {
  uint32_t hash = 2166136261u;
  for (const char c : name) hash = (hash ^ static_cast<uint8_t>(c)) * 16777619u;
  return hash;
}

// Mostly short rows and few of them: what differs between widths lies around the lengths of vectors.
QvpiSize RegionFrom(Choices& choices, const std::optional<QvpiSize>& given) {
  const int width = choices.Next(), height = choices.Next();
  if (given) return *given;
  return {1 + width % (width < 240 ? 70 : 131), 1 + height % (height < 248 ? 6 : 67)};
}

// Of a record that is used, not made.
bool TakesRecord(const Scene& scene, const Parameter& parameter) {
  const auto has = [&](const char* part) { return parameter.type.find(part) != std::string_view::npos; };
  return IsPointer(parameter.type) && (has("Spec") || has("State")) && !IsInit(scene);
}
bool IsBuffer(const Parameter& parameter) {
  return parameter.type == "Qvp8u*" &&
         (parameter.name.find("Buf") != std::string_view::npos || parameter.name == "pMemInit");
}

// Some function that takes a record of another kind than a parameter's, whether or not that may be changed.
const Export& FunctionWithOther(std::string_view type, uint32_t number) {
  for (;; ++number) {
    const Export& function = Exports()[number % Exports().size()];
    const int spec = function.Find("pSpec");
    if (spec < 0 || !IsConst(function.parameters[spec].type)) continue;
    if (!function.parameters[spec].type.ends_with(type.substr(type.find("Qvpi")))) return function;
  }
}

// Addresses of a library's own data, which every build has elsewhere.
bool GivesAddresses(const Export& function) {
  const auto& parameters = function.parameters;
  return std::any_of(parameters.begin(), parameters.end(),
                     [](const Parameter& p) { return p.type.starts_with("QvpiWaveletBank"); });
}

// As another version of the library might identify a record. Only the family knows where the word lies.
void SpoilIdentification(const Scene::Piece& record, int bit) {
  for (size_t i = 0; i < record.size; ++i) record.data[i] ^= 1 << bit;
}

// A few other bytes, or an end of zeros.
void SpoilAnything(const Scene::Piece& record, Choices& choices) {
  const size_t place = choices.Next<uint16_t>() % record.size;
  record.data[place] = choices.Next();
  if (choices.In(0, 3) == 0) std::fill(record.data + place, record.data + record.size, 0);
}

// Learnt from plain scenes: a function of which it is not true would have to give the same by chance in all of them.
bool IsMadeOfPixels(size_t function, Workshop& workshop) {
  constexpr uint8_t kScenes[][3] = {{36, 4, 0}, {7, 2, 1}, {19, 1, 2}, {12, 3, 3}};  // width and height less 1, seed
  const auto isSame = [&](const auto& scene) {
    Choices choices(scene, sizeof(scene));
    Trial trial(function, choices, workshop);
    return trial.Run() >= 0 && trial.IsMadeOfPixels();
  };
  std::optional<bool>& known = workshop.madeOfPixels[function];
  if (known) return *known;
  known = false;  // also where no scene can be made
  known = std::all_of(std::begin(kScenes), std::end(kScenes), isSame);
  return *known;
}

}  // namespace

// The first function whose hash is not below the number.
size_t FunctionFor(uint32_t number) {
  static const auto hashes = [] {
    std::vector<std::pair<uint32_t, size_t>> list;
    for (size_t i = 0; i < Exports().size(); ++i) list.emplace_back(HashOf(Exports()[i].name), i);
    std::sort(list.begin(), list.end());
    return list;
  }();
  const auto found = std::lower_bound(hashes.begin(), hashes.end(), std::pair<uint32_t, size_t>(number, 0));
  return (found == hashes.end() ? hashes.begin() : found)->second;
}

uint32_t NumberFor(size_t function) { return HashOf(Exports()[function].name); }

std::optional<QvpStatus> Try(size_t function, Choices& choices, Workshop& workshop) try {
  const bool isMadeOfPixels = IsMadeOfPixels(function, workshop);
  Trial trial(function, choices, workshop);
  const QvpStatus status = trial.Run();
  if (isMadeOfPixels && status >= 0) trial.CheckPixels();
  return status;
} catch (const std::exception&) {
  return {};  // no record can be made for such a region
}

Trial::Trial(size_t function, Choices& choices, Workshop& workshop)
    : number_(function),
      function_(Exports()[function]),
      workshop_(workshop),
      scene_{function_, RegionFrom(choices, workshop.region), choices.Next<uint16_t>()},  // in this order
      pieces_(scene_.Pieces()),
      arguments_(scene_.arguments) {
  isComparable_ = !GivesAddresses(function_);
  const int sharing = choices.Next(), edits = choices.Next();
  ChooseRecord(choices);
  for (int i = 0; i < (edits & 3) && edits >= 64; ++i) EditArgument(scene_, arguments_, choices, workshop.numbers);
  if (edits >= 64 && IsInit(scene_)) MakeRoom();
  ChoosePictures(choices);
  if (sharing >= 200) ShareMemory(choices);
  workshop.copies.Forget();
  ListMemory();
}

void Trial::ChooseRecord(Choices& choices) {
  const auto& parameters = function_.parameters;
  const auto found =
      std::find_if(parameters.begin(), parameters.end(), [&](const Parameter& p) { return TakesRecord(scene_, p); });
  if (found == parameters.end()) return;
  Argument& argument = arguments_[found - parameters.begin()];
  const Scene::Piece* const record = PieceAt(pieces_, argument.pointer);
  const int how = choices.Next();
  isNoRecord_ = record && how >= 200 && how < 240;
  if (isNoRecord_) {
    SpoilRecord(found->type, argument, *record, choices);
  } else if (record && how >= 240 && workshop_.spoilsRecords) {
    SpoilAnything(*record, choices);
    isComparable_ = false;
  }
}

// What is no record of the family: another version's, any bytes, another family's.
void Trial::SpoilRecord(std::string_view type, Argument& argument, const Scene::Piece& record, Choices& choices) {
  const int how = choices.In(0, 3);
  if (how == 0) {
    SpoilIdentification(record, choices.In(0, 7));
  } else if (how == 1) {
    std::fill_n(record.data, record.size, choices.Next());
  } else {
    const Export& function = FunctionWithOther(type, choices.Next<uint32_t>());
    other_ = std::make_unique<Scene>(function, QvpiSize{9, 9}, 1);
    argument.pointer = other_->arguments[function.Find("pSpec")].pointer;
  }
}

// A record may be larger for other arguments than the scene's.
void Trial::MakeRoom() {
  for (size_t place = 0; place < arguments_.size(); ++place) {
    const Parameter& parameter = function_.parameters[place];
    const void*& pointer = arguments_[place].pointer;
    if (!pointer || !IsPointer(parameter.type) || IsConst(parameter.type)) continue;
    pointer = (IsBuffer(parameter) ? workshop_.buffer : workshop_.record).begin();
  }
}

// Planes have the step of the first of them.
void Trial::AddPicture(size_t place, const void*& pointer, Choices& choices) {
  const Scene::Piece* const piece = PieceAt(pieces_, pointer);
  if (!piece || pictures_.size() == workshop_.zones.size()) return;
  auto picture = PictureOf(scene_, arguments_, place, pointer, *piece);
  if (!picture || picture->rows * picture->rowBytes > static_cast<ptrdiff_t>(Zone::kBytes / 2)) return;
  const bool isNextPlane = !pictures_.empty() && pictures_.back().place == place;
  picture->ChooseStep(choices);
  if (isNextPlane) picture->step = pictures_.back().step;
  picture->PlaceIn(workshop_.zones[pictures_.size()], choices);
  picture->Fill(piece->data, piece->size);
  pointer = picture->pointer();
  isTangled_ |= picture->isWritten && picture->IsOverlapping();
  pictures_.push_back(*picture);
}

// Planes of volumes stay as many rows apart as they were.
void Trial::SetSteps(size_t place, ptrdiff_t step) {
  const size_t ofPlanes = place + 2;
  Number& present = arguments_[place + 1].number;
  if (ofPlanes < arguments_.size() && function_.parameters[ofPlanes].name.ends_with("PlaneStep")) {
    Number& planeStep = arguments_[ofPlanes].number;
    planeStep = int64_t{planeStep} / int64_t{present} * step;
  }
  present = step;
}

void Trial::ChoosePictures(Choices& choices) {
  for (size_t place = 0; place + 1 < arguments_.size(); ++place) {
    const void*& pointer = arguments_[place].pointer;
    if (!pointer || !IsImage(function_, place) || IsStackOfPlanes(function_, place)) continue;
    const size_t first = pictures_.size();
    if (IsListOfPlanes(function_.parameters[place].type)) {
      auto& planes = planes_.emplace_back();
      std::memcpy(&planes, pointer, sizeof(planes));
      for (const void*& plane : planes) AddPicture(place, plane, choices);
      pointer = planes.data();
    } else {
      AddPicture(place, pointer, choices);
    }
    if (first < pictures_.size()) SetSteps(place, pictures_[first].step);
  }
}

// A source of the same shape gets the destination's memory, or memory that overlaps it.
void Trial::ShareMemory(Choices& choices) {
  for (Picture& source : pictures_) {
    for (const Picture& destination : pictures_) {
      const bool isAlike = !source.isWritten && destination.isWritten && source.element == destination.element &&
                           source.rows == destination.rows && source.rowBytes == destination.rowBytes;
      if (!isAlike || !planes_.empty()) continue;
      const bool isShifted = choices.In(0, 1);
      source.Share(destination, isShifted ? choices.Next<int8_t>() * source.element->bytes : 0);
      isTangled_ |= isShifted;
      *source.pointed = source.pointer();
      SetSteps(source.place, source.step);
      return;
    }
  }
}

void Trial::ListMemory() {
  Copies& copies = workshop_.copies;
  for (const Picture& picture : pictures_) {
    const Span span = picture.Around();
    auto& list = picture.isWritten ? written_ : read_;
    if (!picture.isShared) list.push_back({span, copies.Of(span.data, span.size), picture.place, &picture});
  }
  for (const Scene::Piece& piece : pieces_) {
    const Parameter& parameter = function_.parameters[piece.place];
    const auto isItsPicture = [&](const Picture& picture) { return picture.place == piece.place; };
    if (IsBuffer(parameter) || std::any_of(pictures_.begin(), pictures_.end(), isItsPicture)) continue;
    auto& list = IsPointer(parameter.type) && !IsConst(parameter.type) ? written_ : read_;
    list.push_back({{piece.data, piece.size}, copies.Of(piece.data, piece.size), piece.place, nullptr});
  }
}

}  // namespace fuzz
