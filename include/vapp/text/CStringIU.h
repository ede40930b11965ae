/// @file
/// CStringIU: a CStringU ordered without regard to case.
///
/// It exists to be a key: sets and maps of library and view names are ordered by it, so that a set keeps the
/// first of two names that differ only in case. It adds no field and changes no byte.
#pragma once

#include <compare>
#include <functional>
#include <utility>

#include "vapp/Export.h"
#include "vapp/text/CStringU.h"

/// A text whose order and equality fold case (CStringU::CompareNoCase).
class VAPP_EXPORT CStringIU : public CStringU {
public:
    using CStringU::CStringU;
    CStringIU() noexcept = default;
    CStringIU(const CStringU& text) noexcept : CStringU(text) {}
    CStringIU(CStringU&& text) noexcept : CStringU(std::move(text)) {}

    // One form for each kind of right side, so that none of them falls back on the order of the base.
    friend bool operator==(const CStringIU& left, const CStringIU& right) {
        return left.CompareNoCase(right) == 0;
    }
    friend bool operator==(const CStringIU& left, const CStringU& right) {
        return left.CompareNoCase(right) == 0;
    }
    friend bool operator==(const CStringIU& left, const char* right) {
        return left.CompareNoCase(right) == 0;
    }
    friend std::weak_ordering operator<=>(const CStringIU& left, const CStringIU& right) {
        return left.CompareNoCase(right) <=> 0;
    }
    friend std::weak_ordering operator<=>(const CStringIU& left, const CStringU& right) {
        return left.CompareNoCase(right) <=> 0;
    }
};

static_assert(sizeof(CStringIU) == sizeof(CStringU), "a key is a text, nothing more");

/// Not hashable: the hash of the base would tell texts apart that are equal here.
template <>
struct std::hash<CStringIU> {
    hash() = delete;
};
