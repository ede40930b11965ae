/// @file
/// A clipboard that lasts as long as the process: for programs without windows, and for tests.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "vapp/toolkit/ClipboardPeer.h"

/// Keeps both forms. Never fails.
class MemoryClipboard final : public ClipboardPeer {
public:
    [[nodiscard]] bool SetText(std::u16string_view wide, std::optional<std::string_view> narrow) override {
        m_wide = wide;
        m_narrow = narrow.value_or(std::string_view());
        return true;
    }
    [[nodiscard]] std::u16string GetText() const override { return m_wide; }
    /// The form for programs that know no Unicode.
    [[nodiscard]] const std::string& GetNarrowText() const { return m_narrow; }

private:
    std::u16string m_wide;
    std::string m_narrow;
};
