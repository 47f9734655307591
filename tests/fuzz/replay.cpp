// Tries a plain call of every function, the inputs of a corpus, and valid calls of any geometry:
// replay CORPUS [--geometries COUNT SEED] [MODULE...], where each module has another build's calls.
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

// Valid calls: any size up to 200 x 200, mostly of few rows, any step, any place beside memory that cannot be read.
void TryGeometries(int count, uint64_t seed, fuzz::Workshop& workshop, Tally& tally) {
  constexpr size_t kSharing = 4, kEdits = 5, kRecord = 6;  // the bytes that choose these; see Trial
  test::Random random(seed);
  for (size_t function = 0; function < test::Exports().size(); ++function) {
    for (int i = 0; i < count; ++i) {
      const int side = random.Next() % 8 == 0 ? 200 : 9;
      workshop.region = {1 + static_cast<int>(random.Next() % 200), 1 + static_cast<int>(random.Next() % side)};
      uint8_t bytes[64];
      random.Fill(bytes, sizeof(bytes));
      bytes[kSharing] %= 220;
      bytes[kEdits] = 0;
      bytes[kRecord] %= 200;
      Choices choices(bytes, sizeof(bytes));
      tally.impossible += !fuzz::Try(function, choices, workshop);
      ++tally.inputs;
    }
  }
  workshop.region = {};
}

}  // namespace

int main(int count, char** words) {
  std::vector<std::string> rest(words + 1, words + count);
  const auto take = [&] {
    const std::string first = rest.empty() ? "" : rest.front();
    if (!rest.empty()) rest.erase(rest.begin());
    return first;
  };
  std::ifstream file(take(), std::ios::binary);
  const std::vector<char> corpus{std::istreambuf_iterator<char>(file), {}};
  int geometries = 2;
  uint64_t seed = 1;
  if (!rest.empty() && rest.front() == "--geometries") {
    take();
    geometries = std::stoi(take());
    seed = std::stoull(take());
  }
  static fuzz::Workshop workshop;
  workshop.others = fuzz::LoadBuilds(rest);
  Tally tally;
  TryEveryFunction(workshop, tally);
  TryCorpus(corpus, workshop, tally);
  TryGeometries(geometries, seed, workshop, tally);
  const auto ofPixels = std::count(workshop.madeOfPixels.begin(), workshop.madeOfPixels.end(), true);
  std::printf("%zu inputs, %zu of them impossible, on %zu builds; %zu functions also pixel by pixel\n", tally.inputs,
              tally.impossible, 1 + workshop.others.size(), static_cast<size_t>(ofPixels));
  return corpus.empty() || tally.impossible > 0 || workshop.others.size() < rest.size();
}
