/// @file
/// What a soak has found: every broken expectation, and how long it took to close.
#pragma once

#include <chrono>
#include <mutex>
#include <string>

#include "tests/soak/OwnUse.h"
#include "vapp/connection/TConnectionModule.h"

namespace soak_test {

/// Any thread may report.
class Tally {
public:
    /// Tells of the first findings and counts all.
    void Expect(bool holds, const std::string& what);
    /// Closes, which must take no longer than the wait for the child and the kill.
    void Close(TConnectionModule& connection, const std::string& what);
    /// A worker could not be started, as the user is told by a box.
    void NoteFailedStart();
    /// Begins a part of the soak, in which nothing may be lost.
    void Begin(const std::string& name);
    /// Sets what the part's end is compared with anew, once caches are filled.
    void Settle();
    /// Ends it: no handle, no child and hardly any memory more than at its beginning. `remark` is a figure
    /// more.
    void End(int rounds, const std::string& remark = {});

    [[nodiscard]] bool IsClean();

private:
    std::mutex m_mutex;
    int m_findings = 0;
    int m_failedStarts = 0;
    std::string m_name;
    std::chrono::steady_clock::time_point m_begin;
    std::chrono::milliseconds m_longestClose{0};
    OwnUse m_before;
};

}  // namespace soak_test
