#include "Files.h"

#include <cluiedit/window/DocumentFile.h>

#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using cluiedit::DocumentFile;
using testing::HasSubstr;

namespace {

class DocumentFileIn : public testing::Test
{
protected:
    QString path(const QString& name) const { return directory.filePath(name); }

    std::string errorOfOpening(const QString& name)
    {
        EXPECT_FALSE(file.open(path(name), error));
        return error.toStdString();
    }

    QTemporaryDir directory;
    DocumentFile file;
    QString error;
};

} // namespace

TEST_F(DocumentFileIn, GivesWhatTheFileHolds)
{
    write(path(u"ä.json"_s), "\xEF\xBB\xBF{\r\n}");
    EXPECT_EQ(file.open(path(u"ä.json"_s), error), QByteArray("\xEF\xBB\xBF{\r\n}"));
    EXPECT_EQ(file.name(), u"ä.json"_s);
    EXPECT_FALSE(file.changeByOthers());
}

TEST_F(DocumentFileIn, SaysWhyItDoesNotOpen)
{
    write(path(u"latin1"_s), "one\ntwo\nd\xE9j\xE0\n");
    write(path(u"binary"_s), QByteArray("a\0b", 3));
    EXPECT_THAT(errorOfOpening(u"."_s), HasSubstr("is a directory"));
    EXPECT_THAT(errorOfOpening(u"missing"_s), HasSubstr("cannot be read"));
    EXPECT_THAT(errorOfOpening(u"latin1"_s), HasSubstr("no text in UTF-8: look at line 3"));
    EXPECT_THAT(errorOfOpening(u"binary"_s), HasSubstr("byte 0"));
    EXPECT_TRUE(file.path().isEmpty());
}

TEST_F(DocumentFileIn, KeepsTheFileThatItHasWhenAnotherOneDoesNotOpen)
{
    write(path(u"a"_s), "{}");
    ASSERT_TRUE(file.open(path(u"a"_s), error));
    errorOfOpening(u"missing"_s);
    EXPECT_EQ(file.name(), u"a"_s);
    EXPECT_EQ(file.known(), "{}");
}

TEST_F(DocumentFileIn, KeepsPermissionsAndSymbolicLinks)
{
    write(path(u"a"_s), "{}");
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(path(u"a"_s), permissions));
    ASSERT_TRUE(QFile::link(u"a"_s, path(u"link"_s)));

    ASSERT_TRUE(file.save(path(u"link"_s), "{\n}", error)) << error.toStdString();

    EXPECT_TRUE(QFileInfo(path(u"link"_s)).isSymLink());
    EXPECT_EQ(contentOf(path(u"a"_s)), "{\n}");
    const auto asUser = QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFileInfo(path(u"a"_s)).permissions() & ~asUser, permissions);
}

TEST_F(DocumentFileIn, SavedByRootBelongsToWhomItBelonged)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root, to give a file away";
    }
    constexpr uint Other = 65534;
    write(path(u"a"_s), "{}");
    ASSERT_EQ(chown(qPrintable(path(u"a"_s)), Other, Other), 0);

    ASSERT_TRUE(file.save(path(u"a"_s), "{\n}", error)) << error.toStdString();

    EXPECT_EQ(contentOf(path(u"a"_s)), "{\n}");
    EXPECT_EQ(QFileInfo(path(u"a"_s)).ownerId(), Other);
    EXPECT_EQ(QFileInfo(path(u"a"_s)).groupId(), Other);
}

TEST_F(DocumentFileIn, LeavesTheOldTextWhereItCannotWrite)
{
    write(path(u"a"_s), "old");
    ASSERT_TRUE(file.open(path(u"a"_s), error));
    EXPECT_FALSE(file.save(path(u"no/such/directory"_s), "new", error));
    EXPECT_THAT(error.toStdString(), HasSubstr("cannot be written"));
    EXPECT_FALSE(file.save(directory.path(), "new", error));
    EXPECT_EQ(file.name(), u"a"_s);
    EXPECT_EQ(contentOf(path(u"a"_s)), "old");
}

TEST_F(DocumentFileIn, ReplacesNoDevice)
{
    const QString pipe = path(u"pipe"_s);
    ASSERT_EQ(mkfifo(qPrintable(pipe), 0600), 0);
    EXPECT_THAT(errorOfOpening(u"pipe"_s), HasSubstr("no regular file"));
    EXPECT_FALSE(file.save(pipe, "{}", error));
    EXPECT_THAT(error.toStdString(), HasSubstr("no regular file"));
    EXPECT_TRUE(QFileInfo::exists(pipe) && !QFileInfo(pipe).isFile());
}

TEST_F(DocumentFileIn, LeavesTheOldTextWhereThereIsNoRoomForTheNewOne)
{
    write(path(u"a"_s), "old");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit little{.rlim_cur = 4096, .rlim_max = before.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &little);
    const bool isSaved = file.save(path(u"a"_s), QByteArray(1 << 20, 'x'), error);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_FALSE(isSaved);
    EXPECT_EQ(contentOf(path(u"a"_s)), "old");
}

TEST_F(DocumentFileIn, NoticesWhatOthersWrite)
{
    write(path(u"a"_s), "{}");
    ASSERT_TRUE(file.open(path(u"a"_s), error));
    const QSignalSpy changed(&file, &DocumentFile::changedByOthers);
    write(path(u"a"_s), "{ }");
    ASSERT_TRUE(QTest::qWaitFor([&] { return changed.count() == 1; }));
    EXPECT_EQ(file.changeByOthers(), QByteArray("{ }"));
    ASSERT_TRUE(file.open(file.path(), error));
    EXPECT_FALSE(file.changeByOthers());
}

TEST_F(DocumentFileIn, NoticesAFileThatIsReplaced)
{
    write(path(u"a"_s), "{}");
    ASSERT_TRUE(file.open(path(u"a"_s), error));
    const QSignalSpy changed(&file, &DocumentFile::changedByOthers);
    for (const QByteArray text : {"1", "2"}) {
        write(path(u"b"_s), text);
        ASSERT_EQ(std::rename(qPrintable(path(u"b"_s)), qPrintable(path(u"a"_s))), 0);
        ASSERT_TRUE(QTest::qWaitFor([&] { return file.changeByOthers() == text && changed.count() == text.toInt(); }));
    }
}

TEST_F(DocumentFileIn, SaysNothingOfWhatItWroteItself)
{
    write(path(u"a"_s), "{}");
    ASSERT_TRUE(file.open(path(u"a"_s), error));
    const QSignalSpy changed(&file, &DocumentFile::changedByOthers);
    ASSERT_TRUE(file.save(path(u"a"_s), "[]", error));
    QTest::qWait(600);
    EXPECT_EQ(changed.count(), 0);
}

TEST_F(DocumentFileIn, SaysNothingOfAFileThatIsGoneAndMakesItAgain)
{
    write(path(u"a"_s), "{}");
    ASSERT_TRUE(file.open(path(u"a"_s), error));
    const QSignalSpy changed(&file, &DocumentFile::changedByOthers);
    QFile::remove(path(u"a"_s));
    QTest::qWait(600);
    EXPECT_EQ(changed.count(), 0);
    EXPECT_TRUE(file.save(file.path(), "[]", error));
    EXPECT_EQ(contentOf(path(u"a"_s)), "[]");
}
