/// @file
/// Stands in for TextBenchQt.cpp where Qt is not installed.
#include "bench/TextBench.h"

namespace text_bench {

void RegisterQtPeers() {}

}  // namespace text_bench
