#pragma once
/// A folder of its own for a test, gone when the test ends.

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace navigator_test {

class TempFolder {
public:
    TempFolder() {
        std::random_device random;
        m_path = std::filesystem::temp_directory_path() /
                 ("navigator-test-" + std::to_string(random()) + "-" + std::to_string(random()));
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }

    /// Writes a file below the folder and makes the folders on the way.
    std::filesystem::path Write(const std::filesystem::path& file, const std::string& bytes) const {
        const std::filesystem::path path = m_path / file;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }

    /// Writes and makes sure that the file's time is another one, whatever the clock's grain.
    void Rewrite(const std::filesystem::path& file, const std::string& bytes) const {
        const auto before = std::filesystem::last_write_time(m_path / file);
        Write(file, bytes);
        std::filesystem::last_write_time(m_path / file, before + std::chrono::seconds(2));
    }

private:
    std::filesystem::path m_path;
};

/// A schematic that instantiates the given references.
template <typename... TReferences>
std::string SchematicOf(TReferences... references) {
    std::string text = "v {file_version=1.0}\n";
    ((text += std::string("C {") + references + "} 0 0 0 0 {name=X}\n"), ...);
    return text;
}

}  // namespace navigator_test
