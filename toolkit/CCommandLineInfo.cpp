/// @file
/// The words that every application understands.
#include "vapp/toolkit/CCommandLineInfo.h"

CCommandLineInfo::~CCommandLineInfo() = default;

void CCommandLineInfo::ParseParam(const CStringU& word, bool isSwitch, bool isLast) {
    if (isSwitch) {
        if (word.EqualsNoCase("unregister")) m_nShellCommand = AppUnregister;
    } else if (m_strFileName.IsEmpty()) {
        m_strFileName = word;
    }
    if (isLast && m_nShellCommand == FileNew && !m_strFileName.IsEmpty()) m_nShellCommand = FileOpen;
}
