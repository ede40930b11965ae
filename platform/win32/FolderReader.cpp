/// @file
/// A folder by FindFirstFile and FindNextFile, wide or in the ANSI code page.
#include "platform/FolderReader.h"

#include <windows.h>

#include <string>

namespace vapp_platform {

namespace {

// The same search by either family of calls.
struct TWideSearch {
    using TFound = WIN32_FIND_DATAW;
    static HANDLE First(const CStringU& pattern, TFound& found) {
        return FindFirstFileW(pattern.ToStdWstring().c_str(), &found);
    }
    static bool Next(HANDLE search, TFound& found) { return FindNextFileW(search, &found) != 0; }
    static CStringU Name(const TFound& found) { return CStringU(found.cFileName); }
};

struct TAnsiSearch {
    using TFound = WIN32_FIND_DATAA;
    static HANDLE First(const CStringU& pattern, TFound& found) {
        return FindFirstFileA(pattern.ToAnsi(GetACP()).GetString(), &found);
    }
    static bool Next(HANDLE search, TFound& found) { return FindNextFileA(search, &found) != 0; }
    // In the system's code page always, whatever the host has set for its own texts.
    static CStringU Name(const TFound& found) {
        return CStringU(found.cFileName, CStringU::TAnsiAuto{GetACP()});
    }
};

class THandle {
public:
    explicit THandle(HANDLE handle) : m_handle(handle) {}
    ~THandle() {
        if (m_handle != INVALID_HANDLE_VALUE) CloseHandle(m_handle);
    }
    THandle(const THandle&) = delete;
    THandle& operator=(const THandle&) = delete;
    [[nodiscard]] HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

CStringU FolderOfPattern(const CStringU& pattern) {
    constexpr int cnAllEntriesLength = 3;  // "*.*"
    const CStringU folder = pattern.Left(pattern.GetByteLength() - cnAllEntriesLength);
    return folder.IsEmpty() ? CStringU(".") : folder;
}

}  // namespace

struct TFolderReader::TState {
    CStringU pattern;
    HANDLE search = INVALID_HANDLE_VALUE;
    bool hasEntry = false;  // `entry` is read and not given yet
    TFolderEntry entry;
    Names names = Names::Kept;

    template <typename Search>
    void Open() {
        typename Search::TFound found{};
        search = Search::First(pattern, found);
        hasEntry = search != INVALID_HANDLE_VALUE;
        if (hasEntry) entry = {Search::Name(found), found.dwFileAttributes, false};
    }
    template <typename Search>
    void Advance() {
        typename Search::TFound found{};
        hasEntry = Search::Next(search, found);
        if (hasEntry) entry = {Search::Name(found), found.dwFileAttributes, false};
    }
};

TFolderReader::TFolderReader(const CStringU& pattern, Names names) : m_state(std::make_unique<TState>()) {
    m_state->pattern = pattern;
    m_state->names = names;
    names == Names::Ansi ? m_state->Open<TAnsiSearch>() : m_state->Open<TWideSearch>();
}

TFolderReader::~TFolderReader() {
    if (IsOpen()) FindClose(m_state->search);
}

bool TFolderReader::IsOpen() const noexcept {
    return m_state->search != INVALID_HANDLE_VALUE;
}

bool TFolderReader::Next(TFolderEntry& entry) {
    if (!m_state->hasEntry) return false;
    entry = m_state->entry;
    m_state->names == Names::Ansi ? m_state->Advance<TAnsiSearch>() : m_state->Advance<TWideSearch>();
    return true;
}

bool IsFolderByEntries(const CStringU& pattern) {
    return TFolderReader(pattern).IsOpen();
}

std::optional<TFolderIdentity> TFolderReader::Identity() const {
    const THandle folder(CreateFileW(FolderOfPattern(m_state->pattern).ToStdWstring().c_str(), 0,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                     OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION found{};
    if (folder.Get() == INVALID_HANDLE_VALUE || GetFileInformationByHandle(folder.Get(), &found) == 0) {
        return std::nullopt;
    }
    return TFolderIdentity{found.dwVolumeSerialNumber,
                           std::uint64_t{found.nFileIndexHigh} << 32U | found.nFileIndexLow};
}

}  // namespace vapp_platform
