// Tells what calls do with records in which a word has changed: records [FAMILY...], where a family is the beginning of
// functions' names. Each word of each record, up to a number of them, takes a few other values. What a call does then:
// refuses, gives the same or something else, reads or writes where it must not, or takes too long.
#include <sys/mman.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <csignal>
#include <cstdio>
#include <map>

#include "tests/fuzz/edit.h"

namespace {
using test::Export;
using test::Scene;

enum Outcome { kRefuses, kSame, kOther, kReads, kWrites, kStays, kStops, kOutcomes };
constexpr const char* kNames[] = {"refused", "same", "other", "read out", "wrote out", "hung", "trapped"};
using Counts = std::array<size_t, kOutcomes>;

constexpr QvpiSize kRegion{37, 5};
constexpr size_t kMostHangs = 5;    // of a function
constexpr int kMostFunctions = 2;   // of a family, if none is named
constexpr size_t kMostWords = 256;  // of a record: the first half of them, and as many of the rest

sigjmp_buf before;

void Return(int signal, siginfo_t*, void* context) {
#ifdef __x86_64__
  const bool isWrite = static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_ERR] & 2;
#else
  const bool isWrite = context == nullptr;  // not told
#endif
  const bool isAccess = signal == SIGSEGV || signal == SIGBUS;
  siglongjmp(before, 1 + (signal == SIGALRM ? kStays : !isAccess ? kStops : isWrite ? kWrites : kReads));
}

void Catch() {
  struct sigaction action = {};
  action.sa_sigaction = Return;
  action.sa_flags = SA_SIGINFO | SA_NODEFER | SA_ONSTACK;
  static uint8_t stack[1 << 16];
  const stack_t other{stack, 0, sizeof(stack)};
  sigaltstack(&other, nullptr);
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGALRM, SIGABRT}) sigaction(signal, &action, nullptr);
}

void SetAlarm(int milliseconds) {
  const itimerval timer{{0, 0}, {0, milliseconds * 1000}};
  setitimer(ITIMER_REAL, &timer, nullptr);
}

bool TakesRecord(const Export& function, size_t place) {
  const std::string_view type = function.parameters[place].type;
  return fuzz::IsPointer(type) && fuzz::IsConst(type) &&
         (type.find("Spec") != type.npos || type.find("State") != type.npos);
}

// A scene whose memory can be put back.
class Subject {
 public:
  explicit Subject(const Export& function) : scene_(function, kRegion, 1), pieces_(scene_.Pieces()) {
    for (const Scene::Piece& piece : pieces_) initial_.emplace_back(piece.data, piece.data + piece.size);
    for (size_t place = 0; place < scene_.arguments.size() && !record_; ++place) {
      if (TakesRecord(function, place)) record_ = fuzz::PieceAt(pieces_, scene_.arguments[place].pointer);
    }
    status_ = record_ ? scene_.Call() : qvpStatusNullPointer;
    expected_ = scene_.Outputs();
  }

  const Scene::Piece* record() const { return record_; }
  Outcome Try(size_t word, uint32_t (*change)(uint32_t)) {
    for (size_t i = 0; i < pieces_.size(); ++i) std::memcpy(pieces_[i].data, initial_[i].data(), initial_[i].size());
    uint32_t value;
    uint8_t* const at = record_->data + word * sizeof(value);
    std::memcpy(&value, at, sizeof(value));
    value = change(value);
    std::memcpy(at, &value, sizeof(value));
    if (const int fault = sigsetjmp(before, 1)) {
      SetAlarm(0);
      return static_cast<Outcome>(fault - 1);
    }
    SetAlarm(50);
    const QvpStatus status = scene_.Call();
    SetAlarm(0);
    if (status < 0) return kRefuses;
    if (HasStrayed()) return kWrites;
    return status == status_ && scene_.Outputs() == expected_ ? kSame : kOther;
  }

 private:
  // Whether what is only read has changed, but for the record itself, or what lies between the rows of an image.
  bool HasStrayed() {
    bool hasStrayed = false;
    for (size_t i = 0; i < pieces_.size(); ++i) {
      const Scene::Piece& piece = pieces_[i];
      const bool isConst = fuzz::IsConst(scene_.function().parameters[piece.place].type);
      if (isConst && piece.data != record_->data) {
        hasStrayed |= std::memcmp(piece.data, initial_[i].data(), piece.size) != 0;
      } else if (piece.isOutput && fuzz::IsImage(scene_.function(), piece.place)) {
        hasStrayed |= HasStrayedFromRows(piece, initial_[i]);
      }
    }
    return hasStrayed;
  }
  bool HasStrayedFromRows(const Scene::Piece& piece, std::vector<uint8_t> expected) const {
    const void* pointer = scene_.arguments[piece.place].pointer;
    if (fuzz::PieceAt(pieces_, pointer) == nullptr) return false;  // planes
    const auto picture = fuzz::PictureOf(scene_, scene_.arguments, piece.place, pointer, piece);
    if (!picture) return false;
    const ptrdiff_t step = scene_.arguments[piece.place + 1].number;
    for (ptrdiff_t y = 0; y < picture->rows; ++y) {
      std::memcpy(expected.data() + y * step, piece.data + y * step, picture->rowBytes);
    }
    return std::memcmp(expected.data(), piece.data, piece.size) != 0;
  }

  Scene scene_;
  std::vector<Scene::Piece> pieces_;
  std::vector<std::vector<uint8_t>> initial_;
  const Scene::Piece* record_ = nullptr;
  QvpStatus status_;
  std::vector<uint8_t> expected_;
};

void TryRecord(const Export& function, Counts& counts, bool isVerbose) {
  constexpr uint32_t (*kChanges[])(uint32_t) = {
      [](uint32_t w) { return w ^ 1; },        [](uint32_t w) { return w ^ 1u << 31; },
      [](uint32_t w) { return w ^ 1u << 16; }, [](uint32_t) { return 0u; },
      [](uint32_t) { return UINT32_MAX; },
  };
  Subject& subject = *new Subject(function);  // never returned: the heap may be spoilt
  if (!subject.record()) return;
  const size_t words = subject.record()->size / sizeof(uint32_t);
  const size_t stride = std::max<size_t>(1, words / (kMostWords / 2));
  for (size_t word = 0; word < words; word += word < kMostWords / 2 ? 1 : stride) {
    for (const auto& change : kChanges) {
      const Outcome outcome = subject.Try(word, change);
      if (++counts[outcome] == kMostHangs && outcome == kStays) return;
      if (isVerbose && outcome >= kReads) {
        std::printf("%s, word %zu, change %zd: %s\n", function.name.c_str(), word, &change - kChanges, kNames[outcome]);
      }
    }
  }
}

std::string FamilyOf(const std::string& function) { return function.substr(0, function.find('_')); }

// Whether a child ends by itself, in a few seconds. One whose stack has been written over does not.
bool IsOver(pid_t child) {
  for (int i = 0; i < 4000; ++i) {
    int result = 0;
    if (waitpid(child, &result, WNOHANG) != 0) return WIFEXITED(result);
    usleep(1000);
  }
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  return false;
}

}  // namespace

int main(int count, char** words) {
  const std::vector<std::string> wanted(words + 1, words + count);
  auto* const counts =
      static_cast<Counts*>(mmap(nullptr, sizeof(Counts), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  std::map<std::string, Counts> families;
  std::map<std::string, int> tried;
  for (const Export& function : test::Exports()) {
    const auto isMeant = [&](const std::string& w) { return function.name.starts_with(w); };
    if (!wanted.empty() && std::none_of(wanted.begin(), wanted.end(), isMeant)) continue;
    if ((!function.Has("pSpec") && !function.Has("pState")) || function.name.find("Init") != std::string::npos)
      continue;
    if (wanted.empty() && ++tried[FamilyOf(function.name)] > kMostFunctions) continue;
    *counts = {};
    std::fflush(stdout);
    if (const pid_t child = fork(); child == 0) {  // what is written anywhere stays there
      Catch();
      TryRecord(function, *counts, !wanted.empty());
      std::fflush(stdout);
      _exit(0);
    } else {
      (*counts)[kWrites] += !IsOver(child);
    }
    Counts& family = families[FamilyOf(function.name)];
    for (int i = 0; i < kOutcomes; ++i) family[i] += (*counts)[i];
  }
  for (const char* name : kNames) std::printf("%10s", name);
  std::printf("\n");
  for (const auto& [name, of] : families) {
    for (const size_t n : of) std::printf("%10zu", n);
    std::printf("  %s\n", name.c_str());
  }
}
