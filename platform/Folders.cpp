/// @file
/// The rules of folders; what is asked of the disk stands in FileSystem.h and FolderReader.h.
#include "platform/Folders.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "platform/ErrorText.h"
#include "platform/FileSystem.h"
#include "platform/FolderReader.h"
#include "platform/PathRules.h"
#include "platform/Paths.h"
#include "platform/SystemError.h"
#include "platform/World.h"

using namespace vapp_platform;

namespace {

constexpr const char* csAllEntries = "*.*";

std::ptrdiff_t CountSeparators(std::string_view text) {
    return std::count_if(text.begin(), text.end(), IsSeparator<char>);
}

// A root, or what lies right below one.
bool IsAskedForEntries(const CStringU& path) {
    const std::string_view text = path.PayloadView();
    if (DriveBytes(path) != 0 || StartsWithTwoSeparators(text)) {
        return CountSeparators(text.substr(StartOfThird(path))) < 2;
    }
    return CurrentWorld() == World::Wine && StartsWithSeparator(text) && CountSeparators(text) < 2;
}

// The length of what is never made: a drive, or a server and its share, each with the separator behind it.
std::size_t RootBytes(const CStringU& path) {
    const std::string_view text = path.PayloadView();
    if (StartsWithTwoSeparators(text)) {
        const std::size_t share = text.find_first_of(cnSeparators, 2);
        if (share == std::string_view::npos) return text.size();
        const std::size_t rest = text.find_first_of(cnSeparators, share + 1);
        return rest == std::string_view::npos ? text.size() : rest + 1;
    }
    const std::size_t drive = DriveBytes(path);
    return drive != 0 && StartsWithSeparator(text.substr(drive)) ? drive + 1 : 0;
}

CStringU OnOneLine(const CStringU& message) {
    std::string text(message.PayloadView());
    std::replace_if(
        text.begin(), text.end(), [](char byte) { return byte == '\n' || byte == '\r'; }, ' ');
    return TextOf(text);
}

struct TFailure {
    std::uint32_t code = 0;
    CStringU message;
};

// Makes one folder if it is missing; a code of 0 is success.
TFailure EnsureFolder(const CStringU& path) {
    if (PathExists(path)) {
        if (gDirectoryExists(path)) return {};
        return {cnAlreadyExistsError,
                CStringU::Formatted("\nFile with the name \"%s\" already exists.\n", path.Payload())};
    }
    const std::uint32_t code = CreateFolder(path);
    return {code, code != 0 ? gGetErrorText(code) : CStringU()};
}

// Each part of the path up to a separator, then the whole path. A part that a separator ends anew ("a//b",
// and the nothing in front of "/a") is there already.
TFailure EnsureEachFolder(const CStringU& path) {
    const std::string_view text = path.PayloadView();
    const std::size_t root = RootBytes(path);
    for (std::size_t end = root; end < text.size(); ++end) {
        if (!IsSeparator(text[end]) || end == 0 || IsSeparator(text[end - 1])) continue;
        TFailure failure = EnsureFolder(PieceOf(path, text.substr(0, end)));
        if (failure.code != 0) return failure;
    }
    return text.size() > root && EndsWithSeparator(text) ? TFailure() : EnsureFolder(path);
}

}  // namespace

bool gDirectoryExists(const CStringU& path) {
    const bool endsInSeparator = path.LastChar() == u'\\';
    const CStringU folder = endsInSeparator ? path.Left(path.GetByteLength() - 1) : path;
    if (IsAskedForEntries(folder)) return IsFolderByEntries(gJoinPath(folder, csAllEntries));
    const auto found = FindFile(folder);
    return found && (found->attributes & cnDirectoryAttribute) != 0;
}

bool gDirectoryExistsIn(const CStringU& path, const CStringU& folder) {
    const std::string_view text = path.PayloadView();
    if (!text.starts_with("..\\") && !text.starts_with("../") && !text.starts_with("./")) {
        return gDirectoryExists(path);
    }
    const char separator = CurrentWorld() == World::Wine ? '/' : '\\';
    return gDirectoryExists(folder + separator + path);
}

bool gIsDirectoryEmpty(const CStringU& path) {
    TFolderReader reader(gJoinPath(path, csAllEntries));
    TFolderEntry entry;
    if (!reader.Next(entry)) return false;
    while (reader.Next(entry)) {
        if (!IsDots(entry.name.PayloadView())) return false;
    }
    return true;
}

bool gCreateDirectories(const CStringU& path, CStringU* errorText, std::uint32_t* errorCode) {
    if (PathExists(path)) return true;
    const TFailure failure = EnsureEachFolder(path);
    if (!failure.message.IsEmpty()) {
        if (errorText != nullptr) *errorText = OnOneLine(failure.message);
        if (errorCode != nullptr) *errorCode = failure.code;
    }
    return PathExists(path);
}

std::vector<CStringU> gListFolder(const CStringU& folder) {
    std::vector<CStringU> names;
    if (!gDirectoryExists(folder)) return names;
    TFolderReader reader(gJoinPath(folder, csAllEntries), TFolderReader::Names::Ansi);
    TFolderEntry entry;
    while (reader.Next(entry)) {
        if (!IsDots(entry.name.PayloadView())) names.push_back(entry.name);
    }
    return names;
}
