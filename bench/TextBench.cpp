/// @file
/// CompareNoCaseU and CompareNaturalNoCase beside what else a program could call.
///
/// Peers that work on UTF-16 or on a collator's own strings get them ready-made. GLib's and ICU's full
/// foldings do more than ours (a fold of several characters): they are what a program on those libraries
/// would call, not the same function. Not a test: only the counter "less" shows that peers agree.
#include "bench/TextBench.h"

#include <glib.h>
#include <strings.h>
#include <unicode/ucol.h>
#include <unicode/ustring.h>

#include <cctype>
#include <cstring>
#include <memory>

#include "bench/TextChangesBench.h"
#include "text/Compare.h"
#include "text/NaturalKey.h"
#include "text/NaturalOrder.h"
#include "vapp/text/CStringU.h"

namespace {

using text_bench::Register;

struct NarrowPeer {
    using Name = std::string;
    [[nodiscard]] static Name Make(const std::string& name) { return name; }
};

struct TextPeer {
    using Name = CStringU;
    [[nodiscard]] static Name Make(const std::string& name) { return {name.c_str(), TextEncoding::Utf8Auto}; }
};

struct WidePeer {
    using Name = std::u16string;
    [[nodiscard]] static Name Make(const std::string& name) {
        Name wide(name.size() + 1, u'\0');
        int32_t length = 0;
        UErrorCode error = U_ZERO_ERROR;
        u_strFromUTF8(wide.data(), static_cast<int32_t>(wide.size()), &length, name.data(),
                      static_cast<int32_t>(name.size()), &error);
        wide.resize(static_cast<std::size_t>(length));
        return wide;
    }
};

// --- Without regard to case ---------------------------------------------------------------------------

struct OursNoCase : NarrowPeer {
    int operator()(const Name& a, const Name& b) const {
        return vapp_text::CompareNoCaseU(a.c_str(), b.c_str());
    }
};

struct OursNoCaseSized : TextPeer {
    int operator()(const Name& a, const Name& b) const { return vapp_text::CompareNoCaseU(a, b); }
};

struct LibcNoCase : NarrowPeer {
    int operator()(const Name& a, const Name& b) const { return strcasecmp(a.c_str(), b.c_str()); }
};

/// On the very bytes that CompareNoCaseU reads.
struct LibcNoCasePayload : TextPeer {
    int operator()(const Name& a, const Name& b) const { return strcasecmp(a.Payload(), b.Payload()); }
};

struct IcuNoCase : WidePeer {
    int operator()(const Name& a, const Name& b) const {
        return u_strcasecmp(a.c_str(), b.c_str(), U_FOLD_CASE_DEFAULT);
    }
};

struct GlibAsciiNoCase : NarrowPeer {
    int operator()(const Name& a, const Name& b) const { return g_ascii_strcasecmp(a.c_str(), b.c_str()); }
};

struct GlibNoCase : NarrowPeer {
    int operator()(const Name& a, const Name& b) const {
        const std::unique_ptr<char, decltype(&g_free)> foldedA(g_utf8_casefold(a.c_str(), -1), &g_free);
        const std::unique_ptr<char, decltype(&g_free)> foldedB(g_utf8_casefold(b.c_str(), -1), &g_free);
        return std::strcmp(foldedA.get(), foldedB.get());
    }
};

/// What GLib's users do who compare often: the folding is paid before.
struct GlibFoldedBefore {
    using Name = std::string;
    [[nodiscard]] static Name Make(const std::string& name) {
        const std::unique_ptr<char, decltype(&g_free)> folded(g_utf8_casefold(name.c_str(), -1), &g_free);
        return folded.get();
    }
    int operator()(const Name& a, const Name& b) const { return std::strcmp(a.c_str(), b.c_str()); }
};

// --- Natural order -----------------------------------------------------------------------------------

struct OursNatural : NarrowPeer {
    int operator()(const Name& a, const Name& b) const {
        return vapp_text::CompareNaturalNoCase(a.c_str(), b.c_str());
    }
};

struct OursNaturalSized : TextPeer {
    int operator()(const Name& a, const Name& b) const { return vapp_text::CompareNaturalNoCase(a, b); }
};

struct OursNaturalKeys {
    using Name = std::string;
    [[nodiscard]] static Name Make(const std::string& name) {
        std::string key;
        vapp_text::AppendNaturalKey(name.c_str(), true, key);
        return key;
    }
    int operator()(const Name& a, const Name& b) const { return a.compare(b); }
};

/// The plain loop that everybody writes: bytes, ASCII digits, no prefix skip, no tie-break.
struct PlainNatural : NarrowPeer {
    int operator()(const Name& left, const Name& right) const {
        const auto isDigit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
        const char* a = left.c_str();
        const char* b = right.c_str();
        for (;;) {
            if (isDigit(*a) && isDigit(*b)) {
                while (*a == '0')
                    ++a;
                while (*b == '0')
                    ++b;
                int byDigits = 0;
                for (; isDigit(*a) && isDigit(*b); ++a, ++b) {
                    if (byDigits == 0) byDigits = *a - *b;
                }
                if (isDigit(*a)) return 1;
                if (isDigit(*b)) return -1;
                if (byDigits != 0) return byDigits;
                continue;
            }
            const int smallA = std::tolower(static_cast<unsigned char>(*a));
            const int smallB = std::tolower(static_cast<unsigned char>(*b));
            if (smallA != smallB) return smallA - smallB;
            if (*a == '\0') return 0;
            ++a;
            ++b;
        }
    }
};

struct IcuNumeric : WidePeer {
    IcuNumeric() : m_collator(Open(), &ucol_close) {}
    int operator()(const Name& a, const Name& b) const {
        return ucol_strcoll(m_collator.get(), a.data(), static_cast<int32_t>(a.size()), b.data(),
                            static_cast<int32_t>(b.size()));
    }

private:
    /// Numbers by value, case ignored.
    static UCollator* Open() {
        UErrorCode error = U_ZERO_ERROR;
        UCollator* collator = ucol_open("en", &error);
        ucol_setStrength(collator, UCOL_SECONDARY);
        ucol_setAttribute(collator, UCOL_NUMERIC_COLLATION, UCOL_ON, &error);
        return collator;
    }
    std::unique_ptr<UCollator, decltype(&ucol_close)> m_collator;
};

// --- Keys --------------------------------------------------------------------------------------------

template <bool Natural>
void MakeKeys(benchmark::State& state) {
    const auto pairs =
        bench_names::Pairs(state.range(0) == 0 ? bench_names::Script::Ascii : bench_names::Script::NonAscii,
                           bench_names::Meeting::Random);
    std::vector<char> memory(4096);
    for (auto _ : state) {
        for (const auto& [name, other] : pairs) {
            char* end = Natural ? vapp_text::WriteNaturalKey(name.c_str(), true, memory.data())
                                : vapp_text::WriteFoldKey(name.c_str(), memory.data());
            benchmark::DoNotOptimize(end);
            benchmark::ClobberMemory();
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(pairs.size()));
}
BENCHMARK(MakeKeys<true>)->Name("naturalkey/make")->ArgName("nonascii")->Arg(0)->Arg(1);
BENCHMARK(MakeKeys<false>)->Name("foldkey/make")->ArgName("nonascii")->Arg(0)->Arg(1);

}  // namespace

int main(int argc, char** argv) {
    Register<OursNoCase>("nocase", "CompareNoCaseU_raw");
    Register<OursNoCaseSized>("nocase", "CompareNoCaseU");
    Register<LibcNoCase>("nocase", "strcasecmp", true);
    Register<LibcNoCasePayload>("nocase", "strcasecmp_payload", true);
    Register<GlibAsciiNoCase>("nocase", "g_ascii_strcasecmp", true);
    Register<IcuNoCase>("nocase", "u_strcasecmp");
    Register<GlibNoCase>("nocase", "g_utf8_casefold");
    Register<GlibFoldedBefore>("nocase", "g_utf8_casefold_before");
    Register<OursNatural>("natural", "CompareNaturalNoCase_raw");
    Register<OursNaturalSized>("natural", "CompareNaturalNoCase");
    Register<OursNaturalKeys>("natural", "natural_keys");
    Register<PlainNatural>("natural", "plain_loop", true);
    Register<IcuNumeric>("natural", "ucol_numeric");
    text_bench::RegisterQtPeers();
    text_bench::RegisterChangePeers();
    text_bench::RegisterQtChangePeers();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
