#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A file of a known content in a directory of its own, both removed at the end of its life.
class TestFile
{
public:
    explicit TestFile(const QByteArray& content)
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
    }

    QString path() const { return m_directory.filePath(u"document.json"_qs); }
    QString directory() const { return m_directory.path(); }

private:
    QTemporaryDir m_directory;
};
