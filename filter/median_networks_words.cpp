// Medians of small squares of 16-bit numbers by sorting networks.
#include "filter/median_squares.h"

namespace qvp::filter {

bool FilterByNetworks(const MedianCall<uint16_t>& call) { return FilterByAnyNetwork(call); }
bool FilterByNetworks(const MedianCall<int16_t>& call) { return FilterByAnyNetwork(call); }

}  // namespace qvp::filter
