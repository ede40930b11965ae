/// @file
/// Reads "online", and of each processor there "topology/thread_siblings_list" and
/// "topology/physical_package_id".
#include "platform/posix/CpuTopology.h"

#include <charconv>
#include <fstream>
#include <map>
#include <set>
#include <string>

namespace vapp_platform {

namespace {

// More than any kernel is built for; a list that names more is no list of processors.
constexpr unsigned cnMostProcessors = 1u << 16;

struct TRange {
    unsigned first;
    unsigned last;
};

std::optional<TRange> ParseRange(std::string_view text) {
    TRange range{};
    const char* const end = text.data() + text.size();
    auto read = std::from_chars(text.data(), end, range.first);
    if (read.ec != std::errc()) return std::nullopt;
    range.last = range.first;
    if (read.ptr != end && *read.ptr == '-') {
        read = std::from_chars(read.ptr + 1, end, range.last);
        if (read.ec != std::errc()) return std::nullopt;
    }
    if (read.ptr != end || range.last < range.first || range.last >= cnMostProcessors) return std::nullopt;
    return range;
}

// The first line of a file; nullopt where there is none.
std::optional<std::string> ReadLine(const std::filesystem::path& path) {
    std::ifstream file(path);
    std::string line;
    if (!std::getline(file, line) || line.empty()) return std::nullopt;
    return line;
}

// A core has far fewer processors than a mask has bits.
std::uint64_t WithOneMoreBit(std::uint64_t mask) {
    return mask << 1 | 1;
}

}  // namespace

std::optional<std::vector<unsigned>> ParseCpuList(std::string_view text) {
    std::vector<unsigned> numbers;
    while (true) {
        const std::size_t comma = text.find(',');
        const std::optional<TRange> range = ParseRange(text.substr(0, comma));
        if (!range || numbers.size() + (range->last - range->first) >= cnMostProcessors) return std::nullopt;
        for (unsigned number = range->first; number <= range->last; ++number)
            numbers.push_back(number);
        if (comma == std::string_view::npos) return numbers;
        text.remove_prefix(comma + 1);
    }
}

std::optional<std::vector<TProcessorRecord>> ReadCpuTopology(const std::filesystem::path& folder) {
    const std::optional<std::string> online = ReadLine(folder / "online");
    if (!online) return std::nullopt;
    const std::optional<std::vector<unsigned>> processors = ParseCpuList(*online);
    if (!processors) return std::nullopt;

    std::map<std::string, std::uint64_t> cores;
    std::set<std::string> packages;
    for (const unsigned processor : *processors) {
        const std::filesystem::path topology = folder / ("cpu" + std::to_string(processor)) / "topology";
        const std::optional<std::string> siblings = ReadLine(topology / "thread_siblings_list");
        const std::optional<std::string> package = ReadLine(topology / "physical_package_id");
        if (!siblings || !package) return std::nullopt;
        std::uint64_t& mask = cores[*siblings];
        mask = WithOneMoreBit(mask);
        packages.insert(*package);
    }

    std::vector<TProcessorRecord> records;
    records.reserve(cores.size() + packages.size());
    for (const auto& [siblings, mask] : cores)
        records.push_back({.mask = mask, .relation = cnRelationCore});
    records.resize(records.size() + packages.size(), {.mask = 1, .relation = cnRelationPackage});
    return records;
}

}  // namespace vapp_platform
