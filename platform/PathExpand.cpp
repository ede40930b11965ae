/// @file
/// The judgement of values is a walk in depth over the values that values name, with its stack on the heap.
///
/// A call keeps each value that it meets once, however many names it has and however often these are named,
/// and expands only as much of it as shows how it begins.
#include "platform/PathExpand.h"

#include <deque>
#include <memory>
#include <unordered_map>

#include "platform/PathNormalize.h"
#include "text/PlatformEnvironment.h"

namespace vapp_platform {
namespace {

/// The environment as one text sees it.
class JudgedEnvironment {
public:
    explicit JudgedEnvironment(const PathRules& rules) noexcept : m_rules(rules) {}

    [[nodiscard]] std::optional<vapp_text::EnvironmentValue> Find(std::u16string_view name) {
        Value* const value = ValueNamed(name);
        if (value == nullptr) return std::nullopt;
        if (value->second == Verdict::Unknown) Judge(*value);
        return Told(*value);
    }

private:
    // Endless is what leads to a value that names itself. It counts as relative, but only in the answer: all
    // that names it is endless too, whatever was judged before.
    enum class Verdict { Unknown, Pending, Absolute, Relative, Endless };
    using Value = std::pair<const std::u16string, Verdict>;

    /// A value whose judgement waits for the values that it names. Stays where it is, as its references are
    /// views of its normal form.
    struct PendingValue {
        explicit PendingValue(Value& judged)
            : value(judged), normal(NormalizeUnits(judged.first)), references(normal) {}
        PendingValue(const PendingValue&) = delete;
        PendingValue& operator=(const PendingValue&) = delete;

        Value& value;
        const std::u16string normal;
        vapp_text::EnvironmentReferences references;
    };

    [[nodiscard]] static vapp_text::EnvironmentValue Told(const Value& value) noexcept {
        return {.text = value.first, .isAbsolute = value.second == Verdict::Absolute};
    }

    /// Null where the variable is unset.
    [[nodiscard]] Value* ValueNamed(std::u16string_view name) {
        const auto [entry, isNew] = m_names.try_emplace(std::u16string(name), nullptr);
        if (isNew) {
            if (auto text = m_rules.environment(name))
                entry->second = &*m_values.try_emplace(*std::move(text), Verdict::Unknown).first;
        }
        return entry->second;
    }

    void Judge(Value& first) {
        std::deque<PendingValue> pending;
        Begin(first, pending);
        while (!pending.empty()) {
            const auto reference = pending.back().references.Next();
            if (!reference) {
                Finish(pending.back());
                pending.pop_back();
                continue;
            }
            Value* const named = ValueNamed(reference->name);
            if (named == nullptr) continue;
            if (named->second == Verdict::Unknown) {
                Begin(*named, pending);
            } else if (named->second == Verdict::Pending || named->second == Verdict::Endless) {
                // Each value that waits needs the one behind it, and so all of them this one.
                for (const PendingValue& endless : pending)
                    endless.value.second = Verdict::Endless;
                return;
            }
        }
    }

    static void Begin(Value& value, std::deque<PendingValue>& pending) {
        value.second = Verdict::Pending;
        pending.emplace_back(value);
    }

    void Finish(const PendingValue& judged) {
        const auto lookup = [this](std::u16string_view name) -> std::optional<vapp_text::EnvironmentValue> {
            const Value* const value = ValueNamed(name);
            return value != nullptr ? std::optional(Told(*value)) : std::nullopt;
        };
        const std::u16string start =
            vapp_text::ExpandEnvironmentReferences(judged.normal, lookup, cnTellingUnits);
        judged.value.second = IsAbsoluteForm(start, m_rules.world) ? Verdict::Absolute : Verdict::Relative;
    }

    PathRules m_rules;
    std::unordered_map<std::u16string, Verdict> m_values;
    std::unordered_map<std::u16string, Value*> m_names;
};

vapp_text::JudgedEnvironmentLookup LookupBy(const PathRules& rules) {
    return [environment = std::make_shared<JudgedEnvironment>(rules)](std::u16string_view name) {
        return environment->Find(name);
    };
}

}  // namespace

std::u16string ExpandEnvironment(std::u16string_view text, const PathRules& rules, std::size_t most) {
    if (!vapp_text::MayHoldEnvironmentReference(text)) return std::u16string(text.substr(0, most));
    return vapp_text::ExpandEnvironmentReferences(text, LookupBy(rules), most);
}

vapp_text::JudgedEnvironmentLookup AskEnvironment() {
    return LookupBy(CurrentPathRules());
}

}  // namespace vapp_platform
