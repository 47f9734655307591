// Medians of small squares of floats by sorting networks.
#include "filter/median_squares.h"

namespace qvp::filter {

bool FilterByNetworks(const MedianCall<float>& call) { return FilterByAnyNetwork(call); }

}  // namespace qvp::filter
