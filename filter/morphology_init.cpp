// Sizes and records of erosion and dilation.
#include <algorithm>

#include "filter/extremes.h"
#include "filter/morphology.h"
#include "filter/window_check.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

// Pixels of a mask that are read one by one: more cost more than chords.
constexpr int kMostDirect = 24;

// Calls chord(row, span) for the chords of a row of a mask.
template <class Take>
void ForEachChordOf(const uint8_t* mask, QvpiSize size, int row, const Take& take) {
  const uint8_t* const pixels = mask + ptrdiff_t{row} * size.width;
  for (int x = 0; x < size.width; ++x) {
    const int first = x;
    while (x < size.width && pixels[x] != 0) ++x;
    if (x == first) continue;
    const int level = LevelsOf(x - first) - 1;
    take(ChordSpan{first, x - (1 << level), level});
  }
}
template <class Take>
void ForEachChord(const uint8_t* mask, QvpiSize size, const Take& take) {
  for (int row = 0; row < size.height; ++row) {
    ForEachChordOf(mask, size, row, [&](const ChordSpan& span) { take(Chord{row, span}); });
  }
}

// The spans of a mask by ascending levels; their number is 0 if there are too many.
void FindSpans(const uint8_t* mask, QvpiSize size, MorphologyRecord& record) {
  constexpr int kMost = MorphologyRecord::kMostSpans;
  ChordSpan* const spans = record.spanAt;
  int count = 0;
  ForEachChord(mask, size, [&](const Chord& chord) {
    record.levels = std::max(record.levels, chord.span.level + 1);
    if (count > kMost || std::find(spans, spans + count, chord.span) != spans + count) return;
    if (++count > kMost) return;
    ChordSpan* to = spans + count - 1;
    for (; to > spans && to[-1].level > chord.span.level; --to) *to = to[-1];
    *to = chord.span;
  });
  record.spans = count > kMost ? 0 : count;
}

bool HasSpan(const uint8_t* mask, QvpiSize size, int row, const ChordSpan& span, bool isDirect) {
  bool has = false;
  if (row < 0 || row == size.height) return has;
  if (isDirect) return mask[ptrdiff_t{row} * size.width + span.column] != 0;
  ForEachChordOf(mask, size, row, [&](const ChordSpan& other) { has = has || other == span; });
  return has;
}

// Calls use(line) for the lines that are under a row of the mask with a span for the upper results, and under the row
// above that for the lower ones.
template <class Use>
void ForEachUse(const uint8_t* mask, QvpiSize size, const MorphologyRecord& record, int list, int span,
                const Use& use) {
  const bool byUpper = list != 2, byLower = list != 1;
  bool lower = false;
  for (int line = 0; line <= size.height; ++line) {
    const bool upper = HasSpan(mask, size, line, record.spanAt[span], record.isDirect);
    if (upper == byUpper && lower == byLower) use(line);
    lower = upper;
  }
}

// False if there are more than fit.
bool FillUses(const uint8_t* mask, QvpiSize size, MorphologyRecord& record) {
  constexpr uint32_t kMost = (1u << 28) - 1;
  SpanUse *const uses = record.Uses(), *to = uses;
  const SpanUse* const end = uses + 2 * int64_t{size.height} * (size.width / 2 + size.width % 2);
  for (int list = 0; list < 3; ++list) {
    SpanUse* const first = to;
    for (uint32_t span = 0; span < static_cast<uint32_t>(record.spans); ++span) {
      ForEachUse(mask, size, record, list, static_cast<int>(span), [&](int line) {
        SpanUse* const last = to - 1;
        const bool goesOn = to > first && last->span == span && last->line + static_cast<int>(last->count) == line;
        if (goesOn && last->count < kMost) {
          ++last->count;
        } else if (to++ < end) {
          to[-1] = {line, span, 1};
        }
      });
      if (to > end) return false;
    }
    record.counts[list] = static_cast<int32_t>(to - first);
  }
  return true;
}

// Columns as spans.
bool FillDirect(const uint8_t* mask, QvpiSize size, MorphologyRecord& record) {
  const auto isSelected = [](uint8_t b) { return b != 0; };
  const auto selected = std::count_if(mask, mask + ptrdiff_t{size.width} * size.height, isSelected);
  record.isDirect = size.width <= MorphologyRecord::kMostSpans && selected <= kMostDirect;
  if (!record.isDirect) return false;
  record.spans = size.width;
  for (int x = 0; x < size.width; ++x) record.spanAt[x] = {x, x, 0};
  record.isDirect = FillUses(mask, size, record);
  return record.isDirect;
}

void FillChords(const uint8_t* mask, QvpiSize size, MorphologyRecord& record) {
  Chord* to = record.Chords();
  for (const bool isSingle : {false, true}) {
    const Chord* const first = to;
    ForEachChord(mask, size, [&](const Chord& chord) {
      if ((chord.span.column == chord.span.second) == isSingle) *to++ = chord;
    });
    record.counts[isSingle] = static_cast<int32_t>(to - first);
  }
}

void Fill(const uint8_t* mask, QvpiSize size, QvpiPoint anchor, MorphologyRecord& record) {
  const uint8_t* const end = mask + ptrdiff_t{size.width} * size.height;
  record.width = size.width;
  record.height = size.height;
  record.anchorX = anchor.x;
  record.anchorY = anchor.y;
  record.isFull = std::find(mask, end, 0) == end;
  record.levels = 0;
  if (FillDirect(mask, size, record)) return;
  FindSpans(mask, size, record);
  if (record.spans > 0 && FillUses(mask, size, record)) return;
  record.spans = 0;
  FillChords(mask, size, record);
}

bool IsEmpty(const uint8_t* mask, QvpiSize size) {
  const uint8_t* const end = mask + ptrdiff_t{size.width} * size.height;
  return std::all_of(mask, end, [](uint8_t b) { return b == 0; });
}

// Lines are of spans or of levels; a full mask is a rectangle.
ByteCount BufferBytes(QvpiSize mask, int64_t regionWidth, int channels, int bytes) {
  const ByteCount levels = LevelBytes((regionWidth + mask.width) * channels, bytes) * 2;
  const int64_t spans = std::min<int64_t>(MorphologyRecord::kMostSpans, (int64_t{mask.width} + 1) * mask.width / 2);
  const int longest = static_cast<int>(std::max<int64_t>(spans, LevelsOf(mask.width))) * bytes;
  const ByteCount chords = levels + WindowBytes(mask, regionWidth, channels, longest, {}, kSecondCacheBytes);
  return std::max(chords.value(), RectangleBytes(mask, regionWidth, channels, bytes).value());
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterMorphologyBorderGetSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                            int* pSpecSize, int* pBufferSize) {
  if (!pSpecSize) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckQuery(pBufferSize, roiSize, IsExtremeMask(maskSize), dataType, numChannels)) {
    return failed;
  }
  const QvpStatus spec = MorphologyRecord::Bytes(maskSize).StoreTo(pSpecSize);
  const QvpStatus buffer =
      BufferBytes(maskSize, roiSize.width, numChannels, ExtremeBytes(dataType)).StoreTo(pBufferSize);
  return spec ? spec : buffer;
}

QvpStatus qvpiFilterMorphologyBorderInit(const Qvp8u* pMask, QvpiSize maskSize, QvpiPoint anchor,
                                         QvpiFilterMorphologyBorderSpec* pSpec) {
  return InitRecordIn<MorphologyRecord>(pSpec, [&](MorphologyRecord& record) -> QvpStatus {
    if (!pMask) return qvpStatusNullPointer;
    if (!IsExtremeMask(maskSize)) return qvpStatusMaskSize;
    if (!IsAnchor(maskSize, anchor)) return qvpStatusAnchor;
    if (IsEmpty(pMask, maskSize)) return qvpStatusBadArgument;
    int bytes;
    if (const QvpStatus failed = MorphologyRecord::Bytes(maskSize).StoreTo(&bytes)) return failed;
    Fill(pMask, maskSize, anchor, record);
    return qvpStatusNoError;
  });
}
