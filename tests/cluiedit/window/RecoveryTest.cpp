#include <cluiedit/window/Recovery.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using cluiedit::LostText;
using cluiedit::Recovery;

namespace {

QStringList filesIn(const QString& directory)
{
    return QDir(directory).entryList(QDir::Files);
}

/// Leaves what a program leaves that was killed: the files, and a lock of a process that is gone.
void die(std::unique_ptr<Recovery> recovery, const QString& directory)
{
    QTemporaryDir copies;
    for (const QString& name : filesIn(directory)) {
        QFile::copy(directory + u'/' + name, copies.filePath(name));
    }
    QProcess gone;
    gone.start(u"true"_s, {});
    gone.waitForFinished();
    recovery.reset();
    for (const QString& name : filesIn(copies.path())) {
        QFile file(copies.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QByteArray bytes = file.readAll();
        if (name.endsWith(u".lock"_s)) {
            bytes.replace(0, bytes.indexOf('\n'), "999999"); // the number of no process
        }
        QFile left(directory + u'/' + name);
        ASSERT_TRUE(left.open(QIODevice::WriteOnly));
        left.write(bytes);
    }
}

class RecoveryIn : public testing::Test
{
protected:
    std::unique_ptr<Recovery> editor() const { return std::make_unique<Recovery>(home.filePath(u"unsaved"_s)); }
    QString directory() const { return home.filePath(u"unsaved"_s); }

    QTemporaryDir home;
};

} // namespace

TEST_F(RecoveryIn, FindsWhatAnEditorLeftThatDied)
{
    auto dying = editor();
    ASSERT_TRUE(dying->keep(u"/tmp/ä\n.json"_s, "{\n  \"ä\": 1\n}"));
    die(std::move(dying), directory());

    const QList<LostText> lost = editor()->lost();
    ASSERT_EQ(lost.size(), 1);
    EXPECT_EQ(lost.constFirst().path, u"/tmp/ä\n.json"_s);
    EXPECT_EQ(lost.constFirst().text, "{\n  \"ä\": 1\n}");
    EXPECT_TRUE(lost.constFirst().time.isValid());

    editor()->discard(lost.constFirst());
    EXPECT_TRUE(editor()->lost().isEmpty());
}

TEST_F(RecoveryIn, LeavesTextsOfEditorsThatRun)
{
    const auto running = editor();
    ASSERT_TRUE(running->keep({}, "text"));
    EXPECT_TRUE(editor()->lost().isEmpty());
}

TEST_F(RecoveryIn, LeavesNothingOfAnEditorThatEnds)
{
    auto ending = editor();
    ASSERT_TRUE(ending->keep({}, "text"));
    ASSERT_TRUE(ending->keep({}, "text"));
    ending.reset();
    EXPECT_EQ(filesIn(directory()), QStringList());
}

TEST_F(RecoveryIn, FindsTheLatestFirst)
{
    for (const QByteArray text : {"first", "second"}) {
        auto dying = editor();
        ASSERT_TRUE(dying->keep({}, text));
        die(std::move(dying), directory());
    }
    const QList<LostText> lost = editor()->lost();
    ASSERT_EQ(lost.size(), 2);
    EXPECT_EQ(lost.constFirst().text, "second");
}

TEST_F(RecoveryIn, PassesOverWhatIsNoTextOfAnEditor)
{
    QDir().mkpath(directory());
    for (const QByteArray content : {"", "rubbish", "{}\ntext", "[1]\n"}) {
        QFile file(directory() + u"/%1.unsaved"_s.arg(qHash(content)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    EXPECT_TRUE(editor()->lost().isEmpty());
}

TEST_F(RecoveryIn, SaysWhenTheDiskTakesNothing)
{
    QFile inTheWay(directory());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_FALSE(editor()->keep({}, "text"));
}
