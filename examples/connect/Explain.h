/// @file
/// The reason of a failure in one plain sentence, and what to try next.
#pragma once

#include <string>
#include <string_view>

struct TExplanation {
    std::string_view m_reason;
    std::string_view m_advice;
};

/// Reads the texts of the library and of PuTTY's programs; always has something to say.
[[nodiscard]] TExplanation Explain(std::string_view text);

/// Only what PuTTY's programs and remote shells complain of; an empty reason where they don't.
[[nodiscard]] TExplanation ExplainLogin(std::string_view text);

/// What the login printed, of a message that quotes it; empty where none does.
[[nodiscard]] std::string_view FindQuotedLogin(std::string_view message);

/// Standard error: the reason, and what to try, each in a line.
void TellFailure(const TExplanation& explanation);

/// Standard error: what a login printed, each line marked as such.
void TellLogin(std::string_view text);
