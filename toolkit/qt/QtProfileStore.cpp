/// @file
/// What is written waits in a map until it is flushed; reading asks the map first. Each flush reads the place
/// anew and changes only what this store has written, so that programs don't undo one another.
///
/// The care in here is for files. QSettings reads a file anew if its size or its time is another one than at
/// the last reading. Clocks of file systems tick every few milliseconds, and a change of "100" into "200"
/// keeps the size: of two programs that save at the same moment, as all do at the end of a session, the later
/// one could write back what was there before the earlier one. A lock of our own around each flush, in which
/// the file's time always grows, leaves no such moment.
#include "vapp/toolkit/qt/QtProfileStore.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QOperatingSystemVersion>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QVariant>
#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "toolkit/qt/QtSettingsName.h"

namespace {

/// A lock that is held for longer belongs to a program that hangs. QSettings' own lock still keeps the file
/// whole then.
constexpr int cnLockMilliseconds = 5000;

/// Each letter that is typed into a filter is a change, and each flush a file that is locked, read and
/// replaced, maybe over a network: so a flush waits for a pause, but not for ever.
constexpr qint64 cnPauseMilliseconds = 300;
constexpr qint64 cnLongestWaitMilliseconds = 2000;

CString Utf8Of(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return CString(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

CString TextOfBytes(const QByteArray& bytes) {
    return CString(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

QByteArray BytesOf(const CString& text) {
    return {text.View().data(), static_cast<qsizetype>(text.View().size())};
}

QString PathOf(const CString& file) {
    return QFile::decodeName(BytesOf(file));
}

// INI files keep no types: there an integer is what looks exactly like one that was written.
std::optional<std::int32_t> IntegerIn(const QString& text) {
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber && QString::number(value) == text ? std::optional<std::int32_t>(value) : std::nullopt;
}

// Bytes in place of a text are for what a text can't say: that it is no integer, and what is no UTF-8.
QVariant ValueOfText(const CString& text) {
    const QByteArray bytes = BytesOf(text);
    const QString decoded = QString::fromUtf8(bytes);
    if (IntegerIn(decoded) || decoded.toUtf8() != bytes) return bytes;
    return decoded;
}

std::optional<CString> TextIn(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::QByteArray:
            return TextOfBytes(value.toByteArray());
        case QMetaType::QStringList:
            // Commas that a user wrote without quotes around the text.
            return Utf8Of(value.toStringList().join(QStringLiteral(", ")));
        case QMetaType::QString:
            return IntegerIn(value.toString()) ? std::nullopt : std::optional(Utf8Of(value.toString()));
        default:
            return std::nullopt;
    }
}

std::optional<std::int32_t> IntegerOf(const QVariant& value) {
    if (value.typeId() == QMetaType::Int) return value.toInt();
    return value.typeId() == QMetaType::QString ? IntegerIn(value.toString()) : std::nullopt;
}

// A pipe or a device under this name must not be waited for, and QSettings would replace what it can't read.
bool IsUnreadable(const QString& path) {
    const QFileInfo info(path);
    return info.exists() && (!info.isFile() || !QFile(path).open(QIODevice::ReadOnly));
}

}  // namespace

/// The place, what waits to be written, and the sentences.
class QtProfileStore::Settings {
public:
    /// @param place  name of a registry key, or path of a file
    Settings(QString place, QSettings::Format format, Warning warn)
        : m_place(std::move(place)), m_format(format), m_warn(std::move(warn)) {
        if (IsFile() && IsUnreadable(m_place)) {
            Warn(QStringLiteral(
                "The settings in \"%1\" can't be read. All settings are at their defaults, and "
                "changes are not kept."));
        } else {
            m_settings = std::make_unique<QSettings>(m_place, m_format);
            NoteDamage();
        }
        m_flusher.setSingleShot(true);
        QObject::connect(&m_flusher, &QTimer::timeout, &m_flusher, [this] { Flush(); });
        TellWarnings();
    }
    ~Settings() { Flush(); }
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    [[nodiscard]] QVariant Read(const QString& name) const {
        const auto waiting = m_waiting.find(name);
        if (waiting != m_waiting.end()) return waiting->second;
        return m_settings ? m_settings->value(name) : QVariant();
    }
    void Write(const QString& name, const QVariant& value) {
        m_waiting.insert_or_assign(name, value);
        // Without an event loop somebody has to ask.
        if (!m_settings || QCoreApplication::instance() == nullptr) return;
        if (!m_flusher.isActive()) m_firstChange.start();
        const qint64 left = std::max<qint64>(cnLongestWaitMilliseconds - m_firstChange.elapsed(), 0);
        m_flusher.start(static_cast<int>(std::min(cnPauseMilliseconds, left)));
    }
    void Flush();
    [[nodiscard]] const QString& Place() const { return m_place; }

private:
    [[nodiscard]] bool IsFile() const { return m_format == QSettings::IniFormat; }
    void NoteDamage();
    void FlushFile();
    void Save();
    /// @param sentence  with %1 for the place
    void Warn(const QString& sentence) { m_sentences.push_back(Utf8Of(sentence.arg(m_place))); }
    // Only when no lock is held any more: who is told may show a box, and let anything happen behind it.
    void TellWarnings() {
        for (const CString& sentence : std::exchange(m_sentences, {})) {
            if (m_warn) m_warn(sentence);
        }
    }

    QString m_place;
    QSettings::Format m_format;
    Warning m_warn;
    std::unique_ptr<QSettings> m_settings;  ///< null if the file can't be read, and must not be replaced
    std::map<QString, QVariant> m_waiting;
    QElapsedTimer m_firstChange;  ///< since when there is something to write
    bool m_isDamageTold = false;
    bool m_isFailureTold = false;
    std::vector<CString> m_sentences;  ///< that nobody has been told yet
    QTimer m_flusher;                  ///< last, so that no flush comes when the rest has gone
};

void QtProfileStore::Settings::NoteDamage() {
    // QSettings takes a section apart, and sees its damage, when it is asked for a name in it.
    static_cast<void>(m_settings->allKeys());
    if (m_settings->status() != QSettings::FormatError || std::exchange(m_isDamageTold, true)) return;
    // An older copy goes only when there is a new one.
    const QString kept = m_place + QLatin1String(".damaged");
    const QString fresh = kept + QLatin1String(".new");
    QFile::remove(fresh);
    const bool isCopied = QFile::copy(m_place, fresh);
    if (isCopied) QFile::remove(kept);
    Warn(isCopied && QFile::rename(fresh, kept)
             ? QStringLiteral("The settings in \"%1\" are damaged. What can't be read is at its default. The "
                              "file as it was is kept as \"%1.damaged\".")
             : QStringLiteral(
                   "The settings in \"%1\" are damaged. What can't be read is at its default, and is "
                   "lost, as no copy can be made."));
}

void QtProfileStore::Settings::Flush() {
    m_flusher.stop();
    if (!m_settings || m_waiting.empty()) return;
    if (IsFile()) {
        FlushFile();
    } else {
        Save();
    }
    TellWarnings();
}

void QtProfileStore::Settings::FlushFile() {
    QDir().mkpath(QFileInfo(m_place).absolutePath());
    QLockFile turn(m_place + QLatin1String(".turn"));
    static_cast<void>(turn.tryLock(cnLockMilliseconds));
    const QDateTime before = QFileInfo(m_place).lastModified();
    m_settings->sync();
    NoteDamage();
    Save();
    QFile file(m_place);
    const bool isLater = !before.isValid() || QFileInfo(m_place).lastModified() > before;
    if (isLater || !file.open(QIODevice::ReadWrite)) return;
    file.setFileTime(before.addMSecs(1), QFileDevice::FileModificationTime);
}

void QtProfileStore::Settings::Save() {
    // An object of its own, as the status of one keeps its first failure for ever.
    QSettings writer(m_place, m_format);
    for (const auto& [name, value] : m_waiting)
        writer.setValue(name, value);
    writer.sync();
    if (writer.status() != QSettings::AccessError) {
        m_waiting.clear();
    } else if (!std::exchange(m_isFailureTold, true)) {
        Warn(QStringLiteral("The settings can't be saved in \"%1\"."));
    }
}

QtProfileStore::QtProfileStore(std::unique_ptr<Settings> settings) : m_settings(std::move(settings)) {}

QtProfileStore::~QtProfileStore() = default;

std::unique_ptr<QtProfileStore> QtProfileStore::ForUser(const CString& organisation,
                                                        const CString& application, Warning warn) {
    const QString own =
        QString::fromUtf8(BytesOf(organisation)) + QLatin1Char('/') + QString::fromUtf8(BytesOf(application));
    if (QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows) {
        const QString key = QStringLiteral("HKEY_CURRENT_USER/Software/") + own;
        return std::unique_ptr<QtProfileStore>(new QtProfileStore(std::make_unique<Settings>(
            QDir::toNativeSeparators(key), QSettings::NativeFormat, std::move(warn))));
    }
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QByteArray file = QFile::encodeName(folder + QLatin1Char('/') + own + QLatin1String(".ini"));
    return InFile(TextOfBytes(file), std::move(warn));
}

std::unique_ptr<QtProfileStore> QtProfileStore::InFile(const CString& file, Warning warn) {
    return std::unique_ptr<QtProfileStore>(
        new QtProfileStore(std::make_unique<Settings>(PathOf(file), QSettings::IniFormat, std::move(warn))));
}

std::optional<CString> QtProfileStore::ReadText(const CString& section, const CString& key) const {
    return TextIn(m_settings->Read(vapp_qt::gSettingsName(section, key)));
}

void QtProfileStore::WriteText(const CString& section, const CString& key, const CString& value) {
    m_settings->Write(vapp_qt::gSettingsName(section, key), ValueOfText(value));
}

std::optional<std::int32_t> QtProfileStore::ReadInteger(const CString& section, const CString& key) const {
    return IntegerOf(m_settings->Read(vapp_qt::gSettingsName(section, key)));
}

void QtProfileStore::WriteInteger(const CString& section, const CString& key, std::int32_t value) {
    m_settings->Write(vapp_qt::gSettingsName(section, key), static_cast<int>(value));
}

void QtProfileStore::Flush() {
    m_settings->Flush();
}

CString QtProfileStore::GetPlace() const {
    return Utf8Of(m_settings->Place());
}
