/// @file
/// By sort keys, one for each name, in one block of memory: names from a disk can be malformed, and then the
/// compare functions need not agree with one another.
#include "platform/NameSort.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "text/NaturalKey.h"

namespace vapp_platform {

namespace {

struct TKeyed {
    std::uint64_t prefix;
    std::size_t begin;
    std::size_t end;
    CStringU name;
};

}  // namespace

void SortNames(std::vector<CStringU>& names) {
    std::string keys;
    std::vector<TKeyed> keyed;
    keyed.reserve(names.size());
    for (CStringU& name : names) {
        const std::size_t begin = keys.size();
        vapp_text::AppendNaturalKey(name.Payload(), true, keys);
        keys +=
            name.PayloadView();  // no key is the front of another, so what follows it decides among equals
        const std::string_view key = std::string_view(keys).substr(begin);
        keyed.push_back({vapp_text::KeyPrefix(key), begin, keys.size(), std::move(name)});
    }
    const auto keyOf = [&keys](const TKeyed& one) {
        return std::string_view(keys).substr(one.begin, one.end - one.begin);
    };
    std::sort(keyed.begin(), keyed.end(), [&keyOf](const TKeyed& left, const TKeyed& right) {
        return left.prefix != right.prefix ? left.prefix < right.prefix : keyOf(left) < keyOf(right);
    });
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = std::move(keyed[i].name);
}

}  // namespace vapp_platform
