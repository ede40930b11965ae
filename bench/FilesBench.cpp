/// @file
/// How long it takes to collect the files below a folder, beside the standard library's recursive iterator
/// over the same folder: bare, where it only lists the paths in the order of the disk, and with its paths
/// sorted, which is what a caller who shows them has to do. Ratios are to the bare iterator of the same run.
///
///     bench_files [--files=100000]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "platform/FileWalk.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using platform_test::TTemporaryFolder;

constexpr int cnRuns = 7;

// Seconds of processor time, the system's part included: what else runs on the machine doesn't count.
double SecondsOnce(const std::function<void()>& function) {
    const std::clock_t start = std::clock();
    function();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

std::vector<std::string> PeerFiles(const fs::path& folder, const char* extension) {
    std::vector<std::string> paths;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_directory()) continue;
        if (*extension == '\0' || entry.path().extension() == extension)
            paths.push_back(entry.path().string());
    }
    return paths;
}

void Require(bool holds) {
    if (!holds) {
        std::fputs("the peers disagree\n", stderr);
        std::exit(1);
    }
}

struct TWay {
    const char* name;
    std::function<std::size_t()> run;
    double best = std::numeric_limits<double>::max();
};

// The ways take turns, so that a slow spell of the machine meets all of them.
void Compare(const char* title, std::vector<TWay> ways) {
    const std::size_t expected = ways.front().run();
    for (int i = 0; i < cnRuns; ++i) {
        for (TWay& way : ways) {
            way.best = std::min(way.best, SecondsOnce([&] { Require(way.run() == expected); }));
        }
    }
    std::printf("%s: %zu files\n", title, expected);
    for (const TWay& way : ways)
        std::printf("  %-34s %8.1f ms  ratio %.2f\n", way.name, way.best * 1000,
                    way.best / ways.front().best);
}

void CompareFolder(const char* title, const TTemporaryFolder& folder) {
    const fs::path native = folder.Native();
    const CStringU path = folder.Path();
    const auto sorted = [&native] {
        std::vector<std::string> paths = PeerFiles(native, "");
        std::sort(paths.begin(), paths.end());
        return paths.size();
    };
    Compare(title, {{"recursive_directory_iterator", [&] { return PeerFiles(native, "").size(); }},
                    {"the same, sorted by bytes", sorted},
                    {"gCollectFiles", [&] { return gCollectFiles(path, "", false).size(); }}});
    Compare(title, {{"recursive_directory_iterator, .sym", [&] { return PeerFiles(native, ".sym").size(); }},
                    {"gCollectFiles, sym", [&] { return gCollectFiles(path, "sym", false).size(); }}});
}

void MakeFiles(const TTemporaryFolder& folder, const std::string& below, int count) {
    folder.MakeFolder(below);
    for (int i = 0; i < count; ++i)
        folder.MakeFile(below + "/cell_" + std::to_string(i) + (i % 2 == 0 ? ".sch" : ".sym"));
}

}  // namespace

int main(int argc, char** argv) {
    int files = 100000;
    if (argc > 1 && std::string(argv[1]).starts_with("--files=")) files = std::atoi(argv[1] + 8);
    {
        const TTemporaryFolder folder;
        MakeFiles(folder, "library", files);
        CompareFolder("one folder", folder);
    }
    const TTemporaryFolder folder;
    for (int i = 0; i < files / 100; ++i)
        MakeFiles(folder, "library_" + std::to_string(i), 100);
    CompareFolder("a hundred in each folder", folder);
    return 0;
}
