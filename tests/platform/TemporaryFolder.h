// A folder of a test's own, gone with everything in it when the test ends.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "vapp/text/CStringU.h"

namespace platform_test {

class TTemporaryFolder {
public:
    TTemporaryFolder() {
        std::random_device random;
        do {
            m_path = std::filesystem::temp_directory_path() / ("vapp-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(m_path));
    }
    ~TTemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TTemporaryFolder(const TTemporaryFolder&) = delete;
    TTemporaryFolder& operator=(const TTemporaryFolder&) = delete;

    /// The folder, or something below it, `/` between the parts, in UTF-8.
    [[nodiscard]] std::filesystem::path Native(std::string_view below = {}) const {
        const std::u8string name(below.begin(), below.end());
        return name.empty() ? m_path : m_path / std::filesystem::path(name).make_preferred();
    }
    /// The same as the library's text.
    [[nodiscard]] CStringU Path(std::string_view below = {}) const {
        return CStringU(std::u16string_view(Native(below).u16string()));
    }

    const TTemporaryFolder& MakeFile(std::string_view below, std::string_view content = {}) const {
        std::ofstream(Native(below), std::ios::binary) << content;
        return *this;
    }
    const TTemporaryFolder& MakeFolder(std::string_view below) const {
        std::filesystem::create_directories(Native(below));
        return *this;
    }

private:
    std::filesystem::path m_path;
};

}  // namespace platform_test
