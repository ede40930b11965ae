/// @file
/// The names are made by rule from the parts that cell libraries use, then shuffled with a fixed seed.
#include "bench/TextNames.h"

#include <algorithm>
#include <random>

#include "text/Codec.h"
#include "text/Fold.h"
#include "text/NaturalOrder.h"
#include "text/PlatformText.h"

namespace bench_names {
namespace {

constexpr std::size_t cnPairs = 4096;

std::string Numbered(const char* front, unsigned number, const char* between, unsigned last) {
    return front + std::to_string(number) + between + std::to_string(last);
}

std::vector<std::string> AsciiNames() {
    std::vector<std::string> names;
    for (const char* kind : {"nand", "nor", "inv", "buf", "dffrs", "mux", "aoi", "oai"}) {
        for (unsigned inputs = 1; inputs <= 8; ++inputs) {
            for (unsigned drive = 1; drive <= 32; drive *= 2) {
                names.push_back("sky_" + Numbered(kind, inputs, "_x", drive));
                names.push_back("SKY_HD_" + Numbered(kind, inputs, "_X", drive));
            }
        }
    }
    for (unsigned bank = 0; bank < 24; ++bank) {
        for (unsigned row = 0; row < 64; ++row) {
            names.push_back(Numbered("bank", bank, row < 10 ? "_row0" : "_row", row));
        }
    }
    for (unsigned index = 0; index < 1024; ++index)
        names.push_back(Numbered("ip_sram_ctl_v", 2, "_u", index));
    return names;
}

/// The same names with a word of another script in front or behind, as in libraries named by people.
std::vector<std::string> NonAsciiNames() {
    static constexpr const char* words[] = {
        "\xC3\x89tage_",                                      // Étage
        "Verst\xC3\xA4rker_",                                 // Verstärker
        "\xD0\xAF\xD1\x87\xD0\xB5\xD0\xB9\xD0\xBA\xD0\xB0_",  // Ячейка
        "\xE6\xA8\xA1\xE5\x9D\x97_",                          // 模块
    };
    std::vector<std::string> names = AsciiNames();
    for (std::size_t index = 0; index < names.size(); ++index) {
        const std::string word = words[index % std::size(words)];
        names[index] = index % 8 < 4 ? word + names[index] : names[index] + "_" + word;
    }
    return names;
}

std::string WithOtherCase(const std::string& name) {
    std::string other;
    for (const char* walk = name.c_str(); *walk != '\0';) {
        const char16_t c = vapp_text::DecodeNext(walk);
        const char16_t small = vapp_text::FoldChar(c);
        char16_t turned = small;
        if (small == c)
            turned = c < 0x80 ? static_cast<char16_t>(std::toupper(c)) : vapp_platform::UpperCaseChar(c);
        char encoded[vapp_text::cnMaxEncodedBytes];
        other.append(encoded, static_cast<std::size_t>(vapp_text::EncodeChar(turned, encoded)));
    }
    return other;
}

}  // namespace

std::vector<std::pair<std::string, std::string>> Pairs(Script script, Meeting meeting) {
    std::vector<std::string> names = script == Script::Ascii ? AsciiNames() : NonAsciiNames();
    std::mt19937 random(20190200);
    std::shuffle(names.begin(), names.end(), random);
    names.resize(std::min(names.size(), cnPairs));
    if (meeting == Meeting::Neighbours) {
        std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
            return vapp_text::CompareNaturalNoCase(a.c_str(), b.c_str()) < 0;
        });
    }
    std::vector<std::pair<std::string, std::string>> pairs;
    for (std::size_t index = 0; index + 1 < names.size(); ++index) {
        const std::string& name = names[index];
        pairs.emplace_back(name, meeting == Meeting::OtherCase ? WithOtherCase(name) : names[index + 1]);
    }
    // Neighbours in the list must not be neighbours in memory and time as well.
    std::shuffle(pairs.begin(), pairs.end(), random);
    return pairs;
}

}  // namespace bench_names
