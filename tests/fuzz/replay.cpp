// Tries a plain call of every function, and the inputs of a corpus: replay CORPUS [MODULE...], where each module has
// another build's calls.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "tests/fuzz/trial.h"

namespace {
using fuzz::Choices;

struct Tally {
  size_t inputs = 0, impossible = 0;
};

void TryEveryFunction(fuzz::Workshop& workshop, Tally& tally) {
  constexpr uint8_t kRegion[] = {36, 4};  // less 1
  for (size_t function = 0; function < test::Exports().size(); ++function) {
    Choices plain(kRegion, sizeof(kRegion));
    tally.impossible += !fuzz::Try(function, plain, workshop);
    ++tally.inputs;
  }
}

// Each input is a byte with its length, and that many bytes.
void TryCorpus(const std::vector<char>& corpus, fuzz::Workshop& workshop, Tally& tally) {
  for (size_t at = 0; at < corpus.size(); ++tally.inputs) {
    const size_t size = std::min<size_t>(static_cast<uint8_t>(corpus[at]), corpus.size() - at - 1);
    Choices choices(reinterpret_cast<const uint8_t*>(corpus.data()) + at + 1, size);
    at += 1 + size;
    const size_t function = fuzz::FunctionFor(choices.Next<uint32_t>());
    tally.impossible += !fuzz::Try(function, choices, workshop);
  }
}

}  // namespace

int main(int count, char** words) {
  if (count < 2) return 2;
  std::ifstream file(words[1], std::ios::binary);
  const std::vector<char> corpus{std::istreambuf_iterator<char>(file), {}};
  static fuzz::Workshop workshop;
  workshop.others = fuzz::LoadBuilds({words + 2, words + count});
  Tally tally;
  TryEveryFunction(workshop, tally);
  TryCorpus(corpus, workshop, tally);
  const auto ofPixels = std::count(workshop.madeOfPixels.begin(), workshop.madeOfPixels.end(), true);
  std::printf("%zu inputs, %zu of them impossible, on %zu builds; %zu functions also pixel by pixel\n", tally.inputs,
              tally.impossible, 1 + workshop.others.size(), static_cast<size_t>(ofPixels));
  return corpus.empty() || tally.impossible > 0 || workshop.others.size() + 2 < static_cast<size_t>(count);
}
