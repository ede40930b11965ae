/// @file
/// Changes of whole texts beside std::string (ASCII) and ICU's UnicodeString.
///
/// The standard string's peer is what a careful programmer writes with it, for texts that are told at run
/// time as ours are. Characters are counted in UTF-16 where the peer has it, and in bytes where it has those,
/// so that the counters of all agree for ASCII only.
///
/// ICU and Qt stand there twice. A program like ours has its texts as UTF-8, from the interpreter, from files
/// and from the system, and hands them on as UTF-8: the "_utf8" peers do that. The others have UTF-16 already
/// and keep it, which no caller of ours can.
#include "bench/TextChangesBench.h"

#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <algorithm>

#include "text/QuotedList.h"
#include "text/Tokenizer.h"
#include "vapp/text/CStringU.h"

namespace text_bench {

namespace {

using bench_names::Script;

struct OursPeer {
    using Text = CStringU;
    [[nodiscard]] static Text Make(const std::string& text) { return {text.c_str(), TextEncoding::Utf8Auto}; }

    template <Change What>
    [[nodiscard]] std::size_t Run(const Text& text) const {
        if constexpr (What == Change::Tokens) {
            std::size_t size = 0;
            vapp_text::TTokenizer(text, m_comma).ForEachToken([&](const Text& token) {
                size += Size(token);
            });
            return size;
        } else if constexpr (What == Change::IsBlank) {
            return text.IsBlank() ? 1 : 0;
        } else if constexpr (What == Change::QuotedList) {
            CStringArray items;
            vapp_text::SplitQuoted(text.Stored(), items);
            return vapp_text::JoinQuoted(items).View().size();
        } else {
            return Size(Changed<What>(text));
        }
    }

private:
    static std::size_t Size(const Text& text) { return static_cast<std::size_t>(text.GetByteLength()); }

    template <Change What>
    [[nodiscard]] Text Changed(const Text& text) const {
        if constexpr (What == Change::Trim) return text.Trimmed();
        if constexpr (What == Change::Quote) return text.WithQuotes();
        if constexpr (What == Change::Unquote) return text.WithoutQuotes();
        if constexpr (What == Change::Lower) return text.ToLower();
        if constexpr (What == Change::Upper) return text.ToUpper();
        if constexpr (What == Change::TrimSet) return text.TrimmedLeft(m_set);
        if constexpr (What == Change::TrimSetRight) return text.TrimmedRight(m_endSet);
        if constexpr (What == Change::SpanOf) return text.SpanIncluding(m_set);
        if constexpr (What == Change::SpanTo) return text.SpanExcluding(m_digits);
        Text changed = text;
        if constexpr (What == Change::ReplaceChar) changed.Replace(u'_', u'-');
        if constexpr (What == Change::ReplaceText) changed.Replace(m_old, m_new);
        if constexpr (What == Change::ReplaceCharNoCase) changed.ReplaceNoCase(u'X', u'-');
        if constexpr (What == Change::ReplaceTextNoCase) changed.ReplaceNoCase(m_old, m_asLong);
        return changed;
    }

    const Text m_comma{","};
    const Text m_old{"_x"};
    const Text m_new{"-by-"};
    const Text m_asLong{"-y"};
    const Text m_set{"bns_"};
    const Text m_endSet{"0123456789x_"};
    const Text m_digits{"0123456789"};
};

constexpr char Folded(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 32) : byte;
}

struct StdPeer {
    using Text = std::string;
    [[nodiscard]] static Text Make(const std::string& text) { return text; }

    template <Change What>
    [[nodiscard]] std::size_t Run(const Text& text) const {
        if constexpr (What == Change::Tokens) {
            std::size_t size = 0;
            for (std::size_t at = text.find_first_not_of(','); at != Text::npos;) {
                const std::size_t end = text.find_first_of(',', at);
                size += text.substr(at, end - at).size();
                at = text.find_first_not_of(',', end);
            }
            return size;
        } else if constexpr (What == Change::IsBlank) {
            return text.find_first_not_of(" \t") == Text::npos ? 1 : 0;
        } else if constexpr (What == Change::QuotedList) {
            return Joined(Split(text)).size();
        } else {
            return Changed<What>(text).size();
        }
    }

private:
    [[nodiscard]] static std::vector<Text> Split(const Text& text) {
        std::vector<Text> items;
        for (std::size_t at = text.find('"'); at < text.size(); at = text.find('"', at)) {
            Text item;
            for (++at; at < text.size() && text[at] != '"'; ++at) {
                if (text[at] == '\\' && ++at == text.size()) break;
                item += text[at];
            }
            if (at++ < text.size()) items.push_back(std::move(item));
        }
        return items;
    }
    [[nodiscard]] static Text Joined(const std::vector<Text>& items) {
        Text text;
        for (const Text& item : items) {
            if (!text.empty()) text += ',';
            text += '"';
            for (const char byte : item) {
                if (byte == '"' || byte == '\\') text += '\\';
                text += byte;
            }
            text += '"';
        }
        return text;
    }

    template <Change What>
    [[nodiscard]] Text Changed(const Text& text) const {
        if constexpr (What == Change::Trim) {
            const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
            if (first == Text::npos) return {};
            return text.substr(first, text.find_last_not_of(" \t\n\v\f\r") - first + 1);
        } else if constexpr (What == Change::Quote) {
            Text quoted;
            quoted.reserve(text.size() + 2);
            return quoted.append(1, '"').append(text).append(1, '"');
        } else if constexpr (What == Change::TrimSet) {
            return text.substr(std::min(text.find_first_not_of(m_set), text.size()));
        } else if constexpr (What == Change::TrimSetRight) {
            return text.substr(0, text.find_last_not_of(m_endSet) + 1);
        } else if constexpr (What == Change::SpanOf) {
            return text.substr(0, text.find_first_not_of(m_set));
        } else if constexpr (What == Change::SpanTo) {
            return text.substr(0, text.find_first_of(m_digits));
        } else if constexpr (What == Change::ReplaceTextNoCase) {
            Text changed = text;
            for (auto at = changed.begin(); at != changed.end();) {
                at = std::search(at, changed.end(), m_old.begin(), m_old.end(),
                                 [](char a, char b) { return Folded(a) == Folded(b); });
                if (at != changed.end()) at = std::copy(m_asLong.begin(), m_asLong.end(), at);
            }
            return changed;
        } else if constexpr (What == Change::Unquote) {
            const bool quoted = text.size() > 1 && text.front() == '"' && text.back() == '"';
            return quoted ? text.substr(1, text.size() - 2) : text;
        } else if constexpr (What == Change::ReplaceText) {
            Text changed = text;
            for (std::size_t at = changed.find(m_old); at != Text::npos;
                 at = changed.find(m_old, at + m_new.size()))
                changed.replace(at, m_old.size(), m_new);
            return changed;
        } else {
            Text changed = text;
            for (char& byte : changed) {
                if constexpr (What == Change::ReplaceChar) byte = byte == '_' ? '-' : byte;
                if constexpr (What == Change::ReplaceCharNoCase) byte = Folded(byte) == 'x' ? '-' : byte;
                if constexpr (What == Change::Lower) {
                    if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte + 32);
                }
                if constexpr (What == Change::Upper) {
                    if (byte >= 'a' && byte <= 'z') byte = static_cast<char>(byte - 32);
                }
            }
            return changed;
        }
    }

    const Text m_old{"_x"};
    const Text m_new{"-by-"};
    const Text m_asLong{"-y"};
    const Text m_set{"bns_"};
    const Text m_endSet{"0123456789x_"};
    const Text m_digits{"0123456789"};
};

struct IcuPeer {
    using Text = icu::UnicodeString;
    [[nodiscard]] static Text Make(const std::string& text) { return Text::fromUTF8(text); }

    template <Change What>
    [[nodiscard]] std::size_t Run(const Text& text) const {
        if constexpr (What == Change::Tokens) {
            std::size_t size = 0;
            ForEachToken(text, [&](const Text& token) { size += static_cast<std::size_t>(token.length()); });
            return size;
        } else {
            return static_cast<std::size_t>(Changed<What>(text).length());
        }
    }

    template <Change What>
    [[nodiscard]] Text Changed(const Text& text) const {
        if constexpr (What == Change::Unquote) {
            const int32_t last = text.length() - 1;
            return last > 0 && text[0] == u'"' && text[last] == u'"' ? Text(text, 1, last - 1) : text;
        }
        Text changed = text;
        if constexpr (What == Change::Trim) changed.trim();
        if constexpr (What == Change::Quote) changed.insert(0, u'"').append(u'"');
        if constexpr (What == Change::ReplaceChar) changed.findAndReplace(m_underscore, m_dash);
        if constexpr (What == Change::ReplaceText) changed.findAndReplace(m_old, m_new);
        if constexpr (What == Change::Lower) changed.toLower(m_root);
        if constexpr (What == Change::Upper) changed.toUpper(m_root);
        return changed;
    }

    template <typename Use>
    static void ForEachToken(const Text& text, const Use& use) {
        for (int32_t at = 0; at < text.length();) {
            int32_t end = text.indexOf(u',', at);
            if (end < 0) end = text.length();
            if (end > at) use(Text(text, at, end - at));
            at = end + 1;
        }
    }

private:
    const icu::Locale m_root = icu::Locale::getRoot();
    const Text m_underscore{u"_"};
    const Text m_dash{u"-"};
    const Text m_old{u"_x"};
    const Text m_new{u"-by-"};
};

/// ICU for a program whose texts are UTF-8: in and out each time.
struct IcuUtf8Peer {
    using Text = std::string;
    [[nodiscard]] static Text Make(const std::string& text) { return text; }

    template <Change What>
    [[nodiscard]] std::size_t Run(const Text& text) const {
        const icu::UnicodeString wide = icu::UnicodeString::fromUTF8(text);
        std::string result;
        if constexpr (What == Change::Tokens) {
            std::size_t size = 0;
            IcuPeer::ForEachToken(wide, [&](const icu::UnicodeString& token) {
                result.clear();
                size += token.toUTF8String(result).size();
            });
            return size;
        } else {
            return m_peer.Changed<What>(wide).toUTF8String(result).size();
        }
    }

private:
    IcuPeer m_peer;
};

}  // namespace

std::vector<std::string> TextsFor(Change change, Script script, bool lines) {
    const std::size_t least = lines ? 100 : change == Change::Tokens ? 200 : 1;
    const std::string between = change == Change::Tokens ? "," : lines ? "." : "";
    const bool list = change == Change::QuotedList;
    std::vector<std::string> texts;
    std::string text;
    for (const auto& [name, other] : bench_names::Pairs(script, bench_names::Meeting::Random)) {
        text += list ? (text.empty() ? "\"" : ",\"") + name + '"' : name + between;
        if (change == Change::Tokens && texts.size() % 3 == 0) text += between;
        if (text.size() < least) continue;
        if (change == Change::Trim) text = "  " + text + " \t";
        if (change == Change::Unquote) text = '"' + text + '"';
        texts.push_back(std::exchange(text, {}));
    }
    return texts;
}

void RegisterChangePeers() {
    RegisterChanges<OursPeer>("CStringU");
    RegisterChanges<StdPeer>("std_string", true);
    RegisterMoreChanges<OursPeer>("CStringU");
    RegisterMoreChanges<StdPeer>("std_string", true);
    RegisterChanges<IcuPeer>("UnicodeString");
    RegisterChanges<IcuUtf8Peer>("UnicodeString_utf8");
}

}  // namespace text_bench
