/// @file
/// A file of settings in a folder of its own, for tests of what stands in it.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <memory>
#include <string>
#include <vector>

#include "vapp/toolkit/qt/QtProfileStore.h"

class SettingsFileFixture : public testing::Test {
protected:
    [[nodiscard]] std::unique_ptr<QtProfileStore> Open() {
        return QtProfileStore::InFile(CString(m_file.toUtf8().constData()), [this](const CString& sentence) {
            m_warnings.emplace_back(sentence.View());
        });
    }
    [[nodiscard]] QByteArray Bytes() const {
        QFile file(m_file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void Write(const QByteArray& bytes) const {
        QFile file(m_file);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(QStringLiteral("tool.ini"));
    std::vector<std::string> m_warnings;
};
