/// @file
/// Figures go to standard output, findings to standard error.
#include "tests/soak/Tally.h"

#include <algorithm>
#include <cstdio>
#include <iostream>

namespace soak_test {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int cnFindingsTold = 20;
// The wait for the child, and what a busy machine takes to end it by force.
constexpr milliseconds cnCloseLimit{3500};
// A round may leave nothing; what the allocator does with its pages is its own business.
constexpr std::size_t cnMemorySlack = 2U << 20U;

double Megabytes(std::size_t bytes) {
    return static_cast<double>(bytes) / (1 << 20);
}

milliseconds Since(Clock::time_point begin) {
    return std::chrono::duration_cast<milliseconds>(Clock::now() - begin);
}

}  // namespace

void Tally::Expect(bool holds, const std::string& what) {
    if (holds) return;
    const std::lock_guard guard(m_mutex);
    if (++m_findings <= cnFindingsTold) std::cerr << m_name << ": " << what << '\n';
}

void Tally::Close(TConnectionModule& connection, const std::string& what) {
    const Clock::time_point begin = Clock::now();
    connection.Close();
    const milliseconds took = Since(begin);
    Expect(took <= cnCloseLimit, what + ": Close took " + std::to_string(took.count()) + " ms");
    const std::lock_guard guard(m_mutex);
    m_longestClose = std::max(m_longestClose, took);
}

void Tally::NoteFailedStart() {
    const std::lock_guard guard(m_mutex);
    ++m_failedStarts;
}

void Tally::Begin(const std::string& name) {
    m_name = name;
    m_longestClose = milliseconds(0);
    m_failedStarts = 0;
    m_begin = Clock::now();
    Settle();
}

void Tally::Settle() {
    m_before = MeasureOwnUse();
}

void Tally::End(int rounds, const std::string& remark) {
    const OwnUse now = MeasureOwnUse();
    Expect(now.handles <= m_before.handles + cnHandleSlack, "handles were lost");
    Expect(m_failedStarts == 0, "workers could not be started");
    Expect(now.children == 0, "children were left");
    Expect(!cbMemoryCounts || now.memory <= m_before.memory + cnMemorySlack, "memory has grown");
    char line[256];
    std::snprintf(
        line, sizeof line,
        "%-11s %6d rounds in %7.1f s; handles %d -> %d, children %zu, memory %.1f -> %.1f MB, longest "
        "Close %lld ms%s\n",
        m_name.c_str(), rounds, static_cast<double>(Since(m_begin).count()) / 1000, m_before.handles,
        now.handles, now.children, Megabytes(m_before.memory), Megabytes(now.memory),
        static_cast<long long>(m_longestClose.count()), remark.c_str());
    std::cout << line << std::flush;
}

bool Tally::IsClean() {
    const std::lock_guard guard(m_mutex);
    if (m_findings > 0) std::cerr << m_findings << " findings\n";
    return m_findings == 0;
}

}  // namespace soak_test
