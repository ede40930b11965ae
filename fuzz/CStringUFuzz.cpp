// Hostile bytes through every way into a CStringU, then along its positions, through cutting and editing.
//
// Besides not crashing, the target holds what no input may break: steps stay inside of the text, lengths
// agree, well-formed text returns from every conversion. It is built by libFuzzer with clang, and with
// Replay.cpp it replays its corpus in the normal tests.
//
// Input: one byte for the encoding, one each for a position and a count, then the text.

#include <cstdint>
#include <cstdlib>
#include <string>

#include "text/PlatformText.h"
#include "vapp/text/CStringU.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void WalkPositions(const CStringU& text) {
    const std::int64_t end = text.GetByteLength();
    for (CStringUPos pos = text.Begin(); pos.offset < end;) {
        const std::int64_t before = pos.offset;
        static_cast<void>(*pos);
        pos.Step();
        Require(pos.offset > before && pos.offset <= end);
        CStringUPos back = pos;
        back.StepBack();
        Require(back.offset >= before && back.offset < pos.offset);
    }
    Require(text.Begin().Advance(UINT64_MAX).offset <= end);
}

void CutAndEdit(const CStringU& text, std::int64_t at, std::int64_t count) {
    const CStringUPos pos(at, &text);
    const CStringU head = text.Head(pos);
    const CStringU tail = text.Tail(pos);
    Require(head.GetByteLength() + tail.GetByteLength() <= text.GetByteLength());
    Require(text.Mid(pos, count).GetByteLength() <= text.GetByteLength());
    static_cast<void>(text.Prefix2().LastChar());
    CStringU edited = text;
    Require(edited.Insert(pos, u'\u00E9') == edited.GetCharCount());
    Require(edited.Insert(pos, text) == edited.GetCharCount());
    Require(edited.Erase(pos, count) == edited.GetCharCount());
    Require(edited.Erase(pos, edited.End()) == edited.GetCharCount());
}

// What has come out as UTF-16 is well-formed from then on, and must return unchanged.
void Convert(const CStringU& text) {
    const std::u16string units = text.ToWide();
    const CStringU again(units.c_str());
    const std::u16string expected(units.data());
    Require(again.ToWide() == expected);
    Require(static_cast<std::size_t>(again.GetCharCount()) == expected.size());
    Require(CStringU(again.StripMarker().GetString(), TextEncoding::Utf8Auto) == again);
    for (const unsigned codePage : {932U, 1252U, vapp_platform::cnCodePageUtf8}) {
        CStringU back;
        back.AssignAnsi(text.ToAnsi(codePage).GetString(), codePage);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 3 || size > 4096) return 0;
    const auto encoding = static_cast<TextEncoding>(data[0] % 5);
    const auto at = std::int64_t{data[1]} - 4;
    const auto count = std::int64_t{data[2]} - 4;
    const std::string bytes(reinterpret_cast<const char*>(data + 3), size - 3);
    const CStringU text(bytes.c_str(), encoding);
    Require(text.GetCharCount() <= text.Stored().GetLength());
    WalkPositions(text);
    CutAndEdit(text, at, count);
    Convert(text);
    return 0;
}
