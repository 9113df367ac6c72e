// Paths as users have them: the document loads from each, and a message names the path as it was given.

#include <config/UIConfigTest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype LongestClassicPath = 260; ///< What a Windows program can open that does nothing about it.

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void writeGoodDocument(const QString& path)
{
    write(path, QJsonDocument(configDocument()).toJson());
}

/// A test with a directory of its own.
class Paths : public UIConfigTest
{
protected:
    /// Loads a good document in \p directory, which is made, then a bad one, then one that is not there.
    void expectGoodAndBadDocumentIn(const QString& directory)
    {
        ASSERT_TRUE(QDir().mkpath(directory));
        const QString path = directory + u"/"_s + UIConfig::uiConfigJson();
        writeGoodDocument(path);
        EXPECT_EQ(loadFile(path), Success);
        EXPECT_EQ(filledSections(config), allSections());

        write(path, "{");
        EXPECT_TRUE(loadFile(path).startsWith(u"\"%1\" is not valid JSON: line 1, "_s.arg(path)));
        EXPECT_TRUE(
            loadFile(directory + u"/missing.json"_s).startsWith(u"Cannot open \"%1/missing.json\": "_s.arg(directory)));
    }

    QString root() const { return m_root.path(); }

private:
    const ConfigDocumentCatalogue m_catalogue;
    const QTemporaryDir m_root;
};

} // namespace

TEST_F(Paths, WithBlanksAndSignsThatShellsAndFormatsTakeForTheirOwn)
{
    expectGoodAndBadDocumentIn(root() + u"/My cells (2024) & more/50 %1 $HOME #2"_s);
}

TEST_F(Paths, WithLettersOfAnyAlphabet)
{
    expectGoodAndBadDocumentIn(root() + QStringLiteral(u"/Prüfstände µΩ/電池試験/тест 🔋"));
}

TEST_F(Paths, LongerThanTheClassicLimitOfWindows)
{
    QString directory = root();
    while (directory.size() <= LongestClassicPath) {
        directory += u"/a directory of cells that were cycled until they failed"_s;
    }
    expectGoodAndBadDocumentIn(directory);
}

TEST_F(Paths, RelativeToTheWorkingDirectory)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(root()));
    expectGoodAndBadDocumentIn(u"cells/../more cells"_s);
    ASSERT_TRUE(QDir::setCurrent(before));
}

#ifdef Q_OS_WIN
TEST_F(Paths, WithTheSeparatorsOfWindows)
{
    const QString path = root() + u"/UIConfig.json"_s;
    writeGoodDocument(path);
    const QString native = QDir::toNativeSeparators(path);
    ASSERT_NE(native, path);
    EXPECT_EQ(loadFile(native), Success);
}
#endif
