/// @file
/// Settings that are kept for good: in the registry on Windows, elsewhere in an INI file that a user can read
/// and mend.
///
/// Several programs may use the same place at the same time, each for keys of its own or for the same ones:
/// none loses what another has written. What they write is seen by one that runs already after its own next
/// writing.
///
/// Trouble is told in one sentence, once for each kind, and never stops the host. A file that can't be read
/// counts as empty and is left alone. Of a damaged one counts what can be read, and the file as it was found
/// is kept under its name and ".damaged". What can't be saved is remembered as long as the program runs.
///
/// The surprises: values are written a moment later, when the event loop runs and no further ones have come
/// for a third of a second (after two seconds in any case), at `Flush`, and at the end of the store. In a
/// file that is edited by hand a whole number without any other character is an integer, and all else is a
/// text; a text that looks like an integer is therefore written in another form. Comments in the file don't
/// outlive a writing.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "vapp/text/CString.h"
#include "vapp/toolkit/ProfileStore.h"
#include "vapp/toolkit/qt/QtExport.h"

/// A store over QSettings. Window thread only; it needs no QCoreApplication, but without one it writes at
/// `Flush` and at its end only.
class VAPP_QT_EXPORT QtProfileStore final : public ProfileStore {
public:
    /// Receives a sentence (UTF-8) for the user. Called from any operation, also from the first and the last;
    /// must not use the store.
    using Warning = std::function<void(const CString& sentence)>;

    /// The user's own settings of a program: the registry key HKEY_CURRENT_USER\Software\ORG\APP, or the file
    /// ORG/APP.ini in the user's folder for settings ($XDG_CONFIG_HOME or ~/.config). Names in UTF-8.
    [[nodiscard]] static std::unique_ptr<QtProfileStore> ForUser(const CString& organisation,
                                                                 const CString& application, Warning warn);
    /// An INI file, on every system. The file and its folders need not exist yet.
    /// @param file  path in the encoding of the file system
    [[nodiscard]] static std::unique_ptr<QtProfileStore> InFile(const CString& file, Warning warn);
    /// Writes what is not written yet.
    ~QtProfileStore() override;

    [[nodiscard]] std::optional<CString> ReadText(const CString& section, const CString& key) const override;
    void WriteText(const CString& section, const CString& key, const CString& value) override;
    [[nodiscard]] std::optional<std::int32_t> ReadInteger(const CString& section,
                                                          const CString& key) const override;
    void WriteInteger(const CString& section, const CString& key, std::int32_t value) override;

    /// Writes what is not written yet, now.
    void Flush();
    /// Where the settings are: path of the file, or name of the registry key.
    [[nodiscard]] CString GetPlace() const;

private:
    class Settings;

    explicit QtProfileStore(std::unique_ptr<Settings> settings);

    std::unique_ptr<Settings> m_settings;
};
