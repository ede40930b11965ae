#pragma once
/// Marks of views that the user has made, kept in the application's settings: hidden ones, reserved ones. The
/// design's folders stay untouched, as they may be somebody else's. A mark that says what the files say
/// already is none.
///
/// Marks of designs that are not open stay in the settings. Other instances may write there too, so that each
/// change begins with reading.

#include <cstddef>
#include <vector>

#include "host/DesignStore.h"

class CWinAppEx;

namespace navigator {

class KeptMarks {
public:
    /// More marks than this are not kept over a restart; settings are no database.
    static constexpr std::size_t cnMostKept = 20'000;

    KeptMarks(CWinAppEx& app, DesignStore& store) : m_app(app), m_store(store) {}

    /// Marks views (their designs named), or takes the marks away. False if not all of it can be kept.
    /// @param key  IsHiddenInLists or IsReserved
    bool Set(const std::vector<CellViewName>& views, CellKey key, bool isWanted);
    /// Puts the marks that are kept of a design into the store.
    void Restore(const Design& design);
    /// The views of a design that are marked with 1 under the key.
    [[nodiscard]] std::vector<CellViewName> Marked(const Design& design, CellKey key) const;

private:
    CWinAppEx& m_app;
    DesignStore& m_store;
};

}  // namespace navigator
