// Runs a fuzz target over files that are kept: `replay FILE-OR-FOLDER...`. So what a fuzzer once found stays
// found in the normal tests, with any compiler.
//
// A path that is not there, or a file that can't be read, fails the test: a corpus that is not found would
// pass as well as one without findings.
//
// It also cuts every file short at each length, which is where decoders read too far.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> CollectFiles(const fs::path& given) {
    if (!fs::is_directory(given)) return {given};
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(given)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

bool ReplayFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (!file.is_open() || file.bad()) {
        std::printf("cannot be read: %s\n", path.string().c_str());
        return false;
    }
    const std::size_t shortest = bytes.size() > 512 ? bytes.size() : 0;
    for (std::size_t length = shortest; length <= bytes.size(); ++length) {
        // A block of its own, so that a sanitizer sees the first byte read behind it.
        const std::vector<std::uint8_t> data(bytes.begin(),
                                             bytes.begin() + static_cast<std::ptrdiff_t>(length));
        LLVMFuzzerTestOneInput(data.data(), data.size());
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    std::size_t replayed = 0;
    for (int i = 1; i < argc; ++i) {
        for (const fs::path& path : CollectFiles(argv[i])) {
            if (!ReplayFile(path)) return 1;
            ++replayed;
        }
    }
    std::printf("%zu files replayed\n", replayed);
    return replayed > 0 ? 0 : 1;  // an empty corpus proves nothing
}
