/// @file
/// The path rules beside std::filesystem::path doing the same work, on Unix paths in the world of Wine, where
/// both mean the same.
///
/// The peer comes in two forms: "from_text" begins and ends with a std::string, as a program does whose paths
/// are text, and "ready" has its paths parsed before the time is taken and keeps its results. Not a test:
/// only the counter "bytes", the length of all results, shows that peers agree.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "platform/PathJoin.h"
#include "platform/PathNames.h"
#include "platform/PathNormalize.h"

namespace {

namespace fs = std::filesystem;
using vapp_platform::PathRules;
using vapp_platform::World;

const vapp_text::EnvironmentLookup cnNoEnvironment = [](std::u16string_view) { return std::nullopt; };
const PathRules cnRules{World::Wine, cnNoEnvironment};

/// A folder and a file somewhere near it.
using PathPair = std::pair<std::string, std::string>;

/// Paths as tools pass them: absolute, some six parts, a few of them dots; the same ones at each run.
std::vector<PathPair> MakePaths(bool ascii) {
    static constexpr const char* parts[] = {"designs", "amplifier_top", "lib",    "..", "cells", "schematics",
                                            ".",       "rev_2019.2.0",  "layout", "tmp"};
    static constexpr const char* names[] = {"inverter_x4.sch", "nand2.sym", "bandgap_reference_core.sch",
                                            "pll.cdl"};
    std::mt19937 random(2019);
    const auto someParts = [&](std::string path, std::size_t count) {
        for (; count > 0; --count)
            (path += parts[random() % std::size(parts)]) += '/';
        return path;
    };
    const std::string home = ascii ? "/home/designer/projects/" : "/home/d\u00E9sign\u00E9r/\u4E2D\u6587/";
    std::vector<PathPair> paths;
    for (int i = 0; i < 1024; ++i) {
        const std::string folder = someParts(home, random() % 3);
        std::string file = someParts(folder, 1 + random() % 4) + names[random() % std::size(names)];
        paths.emplace_back(folder + "top", std::move(file));
    }
    return paths;
}

struct Ours {
    using Path = CStringU;
    static Path Make(const std::string& text) { return {text.c_str(), TextEncoding::Utf8Auto}; }
    static std::size_t Size(const CStringU& path) { return path.PayloadView().size(); }
    static std::size_t Size(bool answer) { return static_cast<std::size_t>(answer); }
    static CStringU Normalize(const Path& /*folder*/, const Path& file) {
        return NormalizePath(file, cnRules);
    }
    static CStringU Join(const Path& folder, const Path& name) { return JoinPath(folder, name, cnRules); }
    static CStringU Relative(const Path& folder, const Path& file) {
        return MakeRelativePath(folder, file, cnRules);
    }
    static bool Absolute(const Path& /*folder*/, const Path& file) { return IsAbsolutePath(file, cnRules); }
    static CStringU FileName(const Path& /*folder*/, const Path& file) {
        return vapp_platform::GetFileName(file);
    }
    static CStringU Directory(const Path& /*folder*/, const Path& file) {
        return vapp_platform::GetDirectory(file);
    }
    static CStringU Extension(const Path& /*folder*/, const Path& file) {
        return vapp_platform::GetExtension(file);
    }
    static CStringU Replace(const Path& /*folder*/, const Path& file) {
        return vapp_platform::ReplaceExtension(file, "lay");
    }
};

struct Ready {
    using Path = fs::path;
    static Path Make(const std::string& text) { return text; }
    static std::size_t Size(const fs::path& path) { return path.native().size(); }
    static std::size_t Size(const std::string& text) { return text.size(); }
    static std::size_t Size(bool answer) { return static_cast<std::size_t>(answer); }
    static fs::path Normalize(const Path& /*folder*/, const Path& file) { return file.lexically_normal(); }
    static fs::path Join(const Path& folder, const Path& name) { return (folder / name).lexically_normal(); }
    static fs::path Relative(const Path& folder, const Path& file) { return file.lexically_relative(folder); }
    static bool Absolute(const Path& /*folder*/, const Path& file) { return file.is_absolute(); }
    static fs::path FileName(const Path& /*folder*/, const Path& file) { return file.filename(); }
    static fs::path Directory(const Path& /*folder*/, const Path& file) { return file.parent_path(); }
    static fs::path Extension(const Path& /*folder*/, const Path& file) { return file.extension(); }
    static fs::path Replace(const Path& /*folder*/, const Path& file) {
        return fs::path(file).replace_extension("lay");
    }
};

struct FromText : Ready {
    using Path = std::string;
    static Path Make(const std::string& text) { return text; }
    static std::string Normalize(const Path& /*folder*/, const Path& file) {
        return fs::path(file).lexically_normal().string();
    }
    static std::string Join(const Path& folder, const Path& name) {
        return (fs::path(folder) / name).lexically_normal().string();
    }
    static std::string Relative(const Path& folder, const Path& file) {
        return fs::path(file).lexically_relative(folder).string();
    }
    static bool Absolute(const Path& /*folder*/, const Path& file) { return fs::path(file).is_absolute(); }
    static std::string FileName(const Path& /*folder*/, const Path& file) {
        return fs::path(file).filename().string();
    }
    static std::string Directory(const Path& /*folder*/, const Path& file) {
        return fs::path(file).parent_path().string();
    }
    static std::string Extension(const Path& /*folder*/, const Path& file) {
        return fs::path(file).extension().string();
    }
    static std::string Replace(const Path& /*folder*/, const Path& file) {
        return fs::path(file).replace_extension("lay").string();
    }
};

enum class Sample { Files, NormalFiles, Names };

/// Times `operation` of a peer on pairs that the sample turns into what the operation is for.
template <typename Peer, auto Operation>
void Time(benchmark::State& state, Sample sample, bool ascii) {
    std::vector<std::pair<typename Peer::Path, typename Peer::Path>> paths;
    for (const auto& [folder, file] : MakePaths(ascii)) {
        const fs::path given(file);
        const std::string second = sample == Sample::Files         ? file
                                   : sample == Sample::NormalFiles ? given.lexically_normal().string()
                                                                   : "../cells/" + given.filename().string();
        const std::string first =
            sample == Sample::NormalFiles ? fs::path(folder).lexically_normal().string() : folder;
        paths.emplace_back(Peer::Make(first), Peer::Make(second));
    }
    std::size_t bytes = 0;
    for (const auto& [folder, file] : paths)
        bytes += Peer::Size(Operation(folder, file));
    for (auto _ : state) {
        for (const auto& [folder, file] : paths)
            benchmark::DoNotOptimize(Operation(folder, file));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(paths.size()));
    state.counters["bytes"] = static_cast<double>(bytes);
}

template <typename Peer>
void Register(const std::string& peer) {
    for (const bool ascii : {true, false}) {
        const auto add = [&](const char* operation, auto run, Sample sample) {
            const std::string name = std::string(operation) + (ascii ? "/ascii/" : "/nonascii/") + peer;
            benchmark::RegisterBenchmark(
                name.c_str(), [run, sample, ascii](benchmark::State& state) { run(state, sample, ascii); });
        };
        add("normalize", Time<Peer, Peer::Normalize>, Sample::Files);
        add("join", Time<Peer, Peer::Join>, Sample::Names);
        add("relative", Time<Peer, Peer::Relative>, Sample::NormalFiles);
        add("absolute", Time<Peer, Peer::Absolute>, Sample::Files);
        add("filename", Time<Peer, Peer::FileName>, Sample::Files);
        add("directory", Time<Peer, Peer::Directory>, Sample::Files);
        add("extension", Time<Peer, Peer::Extension>, Sample::Files);
        add("replace_extension", Time<Peer, Peer::Replace>, Sample::Files);
    }
}

}  // namespace

int main(int argc, char** argv) {
    Register<Ours>("vapp");
    Register<FromText>("fs_path_from_text");
    Register<Ready>("fs_path_ready");
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
