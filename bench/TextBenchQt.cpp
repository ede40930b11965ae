/// @file
/// The peers of the text bench that need Qt: its case-insensitive compare and its collator in numeric mode.
#include <QCollator>
#include <QLocale>
#include <QString>

#include "bench/TextBench.h"

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

}  // namespace

namespace text_bench {

void RegisterQtPeers() {
    Register<QtNoCase>("nocase", "QString");
    Register<QtNumeric>("natural", "QCollator");
}

}  // namespace text_bench
