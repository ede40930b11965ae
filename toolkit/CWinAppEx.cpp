/// @file
/// The application object and the four profile operations, which only choose between what the store has and
/// the default.
#include "vapp/toolkit/CWinAppEx.h"

#include <utility>

namespace {

CWinAppEx* s_app = nullptr;

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
