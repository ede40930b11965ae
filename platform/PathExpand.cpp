/// @file
/// The judgement of values is a walk in depth over the values that values name, with its stack on the heap.
#include "platform/PathExpand.h"

#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/PathNormalize.h"

namespace vapp_platform {
namespace {

/// Judges values for one call.
class ValueJudge {
public:
    explicit ValueJudge(const PathRules& rules) noexcept : m_rules(rules) {}

    [[nodiscard]] bool IsAbsolute(std::u16string_view value) {
        if (!m_verdicts.contains(std::u16string(value))) Judge(std::u16string(value));
        return VerdictOf(value) == Verdict::Absolute;
    }

private:
    enum class Verdict { Unknown, Pending, Absolute, Relative };

    /// A value whose judgement waits for the values that it names.
    struct PendingValue {
        std::u16string value;
        std::u16string normal;
        std::vector<std::u16string> named;
    };

    void Judge(std::u16string value) {
        std::vector<PendingValue> pending;
        Begin(std::move(value), pending);
        while (!pending.empty()) {
            std::vector<std::u16string>& named = pending.back().named;
            if (named.empty()) {
                Finish(pending.back());
                pending.pop_back();
                continue;
            }
            std::u16string next = std::move(named.back());
            named.pop_back();
            const Verdict known = VerdictOf(next);
            if (known == Verdict::Unknown) {
                Begin(std::move(next), pending);
            } else if (known == Verdict::Pending) {
                // Every value that waits needs this one, which needs itself: none of their judgements ends.
                for (const PendingValue& endless : pending)
                    m_verdicts[endless.value] = Verdict::Relative;
                return;
            }
        }
    }

    void Begin(std::u16string value, std::vector<PendingValue>& pending) {
        m_verdicts[value] = Verdict::Pending;
        PendingValue begun{std::move(value), {}, {}};
        begun.normal = NormalizeUnits(begun.value);
        vapp_text::EnvironmentReferences references(begun.normal);
        while (const auto reference = references.Next()) {
            if (auto named = m_rules.environment(reference->name)) begun.named.push_back(*std::move(named));
        }
        pending.push_back(std::move(begun));
    }

    void Finish(const PendingValue& judged) {
        const std::u16string expanded = vapp_text::ExpandEnvironmentReferences(
            judged.normal, m_rules.environment,
            [this](std::u16string_view named) { return VerdictOf(named) == Verdict::Absolute; });
        const bool absolute = IsAbsoluteForm(expanded, m_rules.world);
        m_verdicts[judged.value] = absolute ? Verdict::Absolute : Verdict::Relative;
    }

    [[nodiscard]] Verdict VerdictOf(std::u16string_view value) const {
        const auto known = m_verdicts.find(std::u16string(value));
        return known != m_verdicts.end() ? known->second : Verdict::Unknown;
    }

    const PathRules& m_rules;
    std::unordered_map<std::u16string, Verdict> m_verdicts;
};

}  // namespace

std::u16string ExpandEnvironment(std::u16string_view text, const PathRules& rules) {
    if (!vapp_text::MayHoldEnvironmentReference(text)) return std::u16string(text);
    ValueJudge judge(rules);
    return vapp_text::ExpandEnvironmentReferences(
        text, rules.environment, [&judge](std::u16string_view value) { return judge.IsAbsolute(value); });
}

CStringU ExpandEnvironment(const CStringU& text, const PathRules& rules) {
    if (!text.HasNonAscii() && !vapp_text::MayHoldEnvironmentReference(text.PayloadView())) return text;
    return CStringU(std::u16string_view(ExpandEnvironment(text.ToWide(), rules)));
}

}  // namespace vapp_platform
