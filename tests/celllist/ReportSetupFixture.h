/// @file
/// A list of one row whose settings a test writes and looks at.
#pragma once

#include <string>
#include <vector>

#include "tests/celllist/CellListFixture.h"

class ReportSetupFixture : public CellListFixture {
protected:
    void SetUp() override { ShowCells({{"l1", "a", "v"}}); }

    [[nodiscard]] CString Text(const char* section, const char* key) {
        return m_app.GetProfileString(section, key, "missing");
    }
    [[nodiscard]] int Integer(const char* section, const char* key) {
        return m_app.GetProfileInt(section, key, -1);
    }
    [[nodiscard]] unsigned Writes() {
        return dynamic_cast<MemoryProfileStore&>(m_app.GetProfileStore()).GetWriteCount();
    }
    [[nodiscard]] std::vector<std::string> Captions() {
        std::vector<std::string> captions;
        for (int position = 0; position < Report().GetColumns().GetCount(); ++position)
            captions.emplace_back(Report().GetColumns().GetAt(position)->GetCaption());
        return captions;
    }
};
