// A Unix side that a test tells: which names it has, what it lacks, and what it was asked.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/UnixSide.h"

class TToldUnixSide final : public vapp_platform::TUnixSide {
public:
    [[nodiscard]] std::optional<CStringU> DosFileName(const char* unixPath) const override {
        m_asked.emplace_back(unixPath);
        if (!m_hasNames) return std::nullopt;
        return TextAt(m_dosNames, unixPath);
    }
    [[nodiscard]] std::optional<CString> UnixFileName(const CStringU& dosPath) const override {
        m_asked.emplace_back(dosPath.Payload());
        if (!m_hasNames) return std::nullopt;
        return TextAt(m_unixNames, dosPath.Payload()).StripMarker();
    }
    [[nodiscard]] std::optional<CString> GetVariable(const char* name) const override {
        m_asked.emplace_back(name);
        if (!m_hasVariables) return std::nullopt;
        return CString(m_value.c_str());
    }
    [[nodiscard]] std::optional<int> SetVariable(const char* name, const char* value,
                                                 int overwrite) const override {
        m_asked.push_back(std::string(name) + "|" + value + "|" + std::to_string(overwrite));
        return Answer();
    }
    [[nodiscard]] std::optional<int> UnsetVariable(const char* name) const override {
        m_asked.emplace_back(name);
        return Answer();
    }
    [[nodiscard]] std::optional<int> PutVariable(const char* assignment) const override {
        m_asked.emplace_back(assignment);
        return Answer();
    }

    bool m_hasNames = true;
    bool m_hasVariables = true;
    // What is not in these has no name on the other side.
    std::map<std::string, std::string> m_dosNames;
    std::map<std::string, std::string> m_unixNames;
    std::string m_value;
    int m_answer = 0;
    mutable std::vector<std::string> m_asked;

private:
    static CStringU TextAt(const std::map<std::string, std::string>& names, const std::string& name) {
        const auto found = names.find(name);
        if (found == names.end()) return {};
        return {found->second.c_str(), TextEncoding::Utf8Auto};
    }
    [[nodiscard]] std::optional<int> Answer() const {
        return m_hasVariables ? std::optional<int>(m_answer) : std::nullopt;
    }
};
