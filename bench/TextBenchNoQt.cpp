/// @file
/// Stands in for TextBenchQt.cpp where Qt is not installed.
#include "bench/TextBench.h"
#include "bench/TextChangesBench.h"

namespace text_bench {

void RegisterQtPeers() {}

void RegisterQtChangePeers() {}

}  // namespace text_bench
