/// @file
/// The application object and the four profile operations, which only choose between what the store has and
/// the default.
#include "vapp/toolkit/CWinAppEx.h"

#include <string_view>
#include <utility>

#include "vapp/toolkit/CCommandLineInfo.h"

namespace {

CWinAppEx* s_app = nullptr;

// How many signs in front make a word a switch; none, also if nothing follows them.
std::size_t SwitchSigns(std::string_view word, bool slashIsSwitch) {
    std::size_t signs = 0;
    if (word.starts_with("--")) {
        signs = 2;
    } else if (word.starts_with('-') || (slashIsSwitch && word.starts_with('/'))) {
        signs = 1;
    }
    return signs < word.size() ? signs : 0;
}

}  // namespace

CWinAppEx::CWinAppEx(const CString& appName)
    : m_appName(appName), m_store(std::make_unique<MemoryProfileStore>()) {
    if (s_app == nullptr) s_app = this;
}

CWinAppEx::~CWinAppEx() {
    if (s_app == this) s_app = nullptr;
}

CWinAppEx* CWinAppEx::GetApp() {
    return s_app;
}

int CWinAppEx::InitInstance() {
    return s_app == this ? 1 : 0;
}

void CWinAppEx::SetArguments(std::vector<CStringU> words, bool slashIsSwitch) {
    m_arguments = std::move(words);
    m_slashIsSwitch = slashIsSwitch;
}

void CWinAppEx::ParseCommandLine(CCommandLineInfo& info) const {
    for (std::size_t i = 0; i < m_arguments.size(); ++i) {
        const CStringU& word = m_arguments[i];
        const std::size_t signs = SwitchSigns(word.PayloadView(), m_slashIsSwitch);
        const bool isLast = i + 1 == m_arguments.size();
        info.ParseParam(signs > 0 ? CStringU(word.Payload() + signs, TextEncoding::Utf8Auto) : word,
                        signs > 0, isLast);
    }
}

void CWinAppEx::SetProfileStore(std::unique_ptr<ProfileStore> store) {
    m_store = store ? std::move(store) : std::make_unique<MemoryProfileStore>();
}

CString CWinAppEx::GetProfileString(const CString& section, const CString& key,
                                    const CString& defaultValue) const {
    return m_store->ReadText(section, key).value_or(defaultValue);
}

void CWinAppEx::WriteProfileString(const CString& section, const CString& key, const CString& value) {
    m_store->WriteText(section, key, value);
}

int CWinAppEx::GetProfileInt(const CString& section, const CString& key, int defaultValue) const {
    return m_store->ReadInteger(section, key).value_or(defaultValue);
}

void CWinAppEx::WriteProfileInt(const CString& section, const CString& key, int value) {
    m_store->WriteInteger(section, key, value);
}

CWnd* gGetMainWnd() {
    return s_app != nullptr ? s_app->GetMainWnd() : nullptr;
}
