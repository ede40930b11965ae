/// @file
/// The peers of the text bench that need Qt: its case-insensitive compare, its collator in numeric mode, and
/// QString's own changes of texts.
#include <QCollator>
#include <QLocale>
#include <QString>

#include "bench/TextBench.h"
#include "bench/TextChangesBench.h"

namespace {

struct QtPeer {
    using Name = QString;
    [[nodiscard]] static Name Make(const std::string& name) { return QString::fromStdString(name); }
};

struct QtNoCase : QtPeer {
    int operator()(const Name& a, const Name& b) const { return a.compare(b, Qt::CaseInsensitive); }
};

struct QtNumeric : QtPeer {
    QtNumeric() : m_collator(QLocale(QLocale::English)) {
        m_collator.setNumericMode(true);
        m_collator.setCaseSensitivity(Qt::CaseInsensitive);
    }
    int operator()(const Name& a, const Name& b) const { return m_collator.compare(a, b); }

private:
    QCollator m_collator;
};

struct QtChanges {
    using Text = QString;
    using Change = text_bench::Change;
    [[nodiscard]] static Text Make(const std::string& text) { return QString::fromStdString(text); }

    template <Change What>
    [[nodiscard]] std::size_t Run(const Text& text) const {
        if constexpr (What == Change::Tokens) {
            std::size_t size = 0;
            for (const QString& token : text.split(u',', Qt::SkipEmptyParts))
                size += static_cast<std::size_t>(token.size());
            return size;
        } else {
            return static_cast<std::size_t>(Changed<What>(text).size());
        }
    }

    template <Change What>
    [[nodiscard]] static Text Changed(const Text& text) {
        if constexpr (What == Change::Trim) return text.trimmed();
        if constexpr (What == Change::Quote) return u'"' + text + u'"';
        if constexpr (What == Change::Unquote) {
            const bool quoted = text.size() > 1 && text.front() == u'"' && text.back() == u'"';
            return quoted ? text.sliced(1, text.size() - 2) : text;
        }
        if constexpr (What == Change::Lower) return text.toLower();
        if constexpr (What == Change::Upper) return text.toUpper();
        Text changed = text;
        if constexpr (What == Change::ReplaceChar) changed.replace(u'_', u'-');
        if constexpr (What == Change::ReplaceText)
            changed.replace(QLatin1String("_x"), QLatin1String("-by-"));
        if constexpr (What == Change::ReplaceCharNoCase)
            changed.replace(QChar(u'X'), QChar(u'-'), Qt::CaseInsensitive);
        if constexpr (What == Change::ReplaceTextNoCase)
            changed.replace(QLatin1String("_x"), QLatin1String("-y"), Qt::CaseInsensitive);
        return changed;
    }
};

// Qt for a program whose texts are UTF-8: in and out each time.
struct QtUtf8Changes {
    using Text = std::string;
    using Change = text_bench::Change;
    [[nodiscard]] static Text Make(const std::string& text) { return text; }

    template <Change What>
    [[nodiscard]] std::size_t Run(const Text& text) const {
        const QString wide = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
        if constexpr (What == Change::Tokens) {
            std::size_t size = 0;
            for (const QString& token : wide.split(u',', Qt::SkipEmptyParts))
                size += static_cast<std::size_t>(token.toUtf8().size());
            return size;
        } else {
            return static_cast<std::size_t>(QtChanges::Changed<What>(wide).toUtf8().size());
        }
    }
};

}  // namespace

namespace text_bench {

void RegisterQtPeers() {
    Register<QtNoCase>("nocase", "QString");
    Register<QtNumeric>("natural", "QCollator");
}

void RegisterQtChangePeers() {
    RegisterChanges<QtChanges>("QString");
    RegisterChanges<QtUtf8Changes>("QString_utf8");
    RegisterNoCaseChanges<QtChanges>("QString");
    RegisterNoCaseChanges<QtUtf8Changes>("QString_utf8");
}

}  // namespace text_bench
