#include <config/UIConfigTest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// A translation of the two texts under their context, and of nothing else.
class FilterTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* sourceText, const char* disambiguation, int /*n*/) const override
    {
        if (QByteArrayView(context) != "ui_config" || !QByteArrayView(disambiguation).isEmpty()) {
            return {};
        }
        if (QByteArrayView(sourceText) == "CL-Test CSV Files (*.csv)") {
            return u"CSV-Dateien (*.csv)"_s;
        }
        if (QByteArrayView(sourceText) == "Cellaro\xC2\xAE MPR Files (*.mpr)") {
            return u"MPR-Dateien (*.mpr)"_s;
        }
        return {};
    }
};

class Files : public UIConfigTest
{
};

} // namespace

TEST_F(Files, FilterTextsWithoutTranslation)
{
    EXPECT_EQ(config.csvFileNameFilter(), u"CL-Test CSV Files (*.csv)"_s);
    EXPECT_EQ(config.mprFileNameFilter(), QStringLiteral("Cellaro\u00AE MPR Files (*.mpr)"));
}

TEST_F(Files, FilterTextsAreTranslatedInTheirContext)
{
    FilterTranslator translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    EXPECT_EQ(config.csvFileNameFilter(), u"CSV-Dateien (*.csv)"_s);
    EXPECT_EQ(config.mprFileNameFilter(), u"MPR-Dateien (*.mpr)"_s);

    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(config.csvFileNameFilter(), u"CL-Test CSV Files (*.csv)"_s) << "translated anew at each call";
}

TEST_F(Files, DefaultDirectoryIsTheDocumentsDirectoryUnchanged)
{
    EXPECT_EQ(config.getDefaultAppDirectory(),
              QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation).constFirst());
}

#if defined(Q_OS_LINUX)
TEST_F(Files, DefaultDirectoryIsAskedForAtEachCall)
{
    const QString configHome = qEnvironmentVariable("XDG_CONFIG_HOME");
    ASSERT_TRUE(QDir().mkpath(configHome));
    QFile userDirectories(configHome + u"/user-dirs.dirs"_s);
    ASSERT_TRUE(userDirectories.open(QIODevice::WriteOnly));
    userDirectories.write("XDG_DOCUMENTS_DIR=\"$HOME/papers\"\n");
    userDirectories.close();
    EXPECT_EQ(config.getDefaultAppDirectory(), QDir::homePath() + u"/papers"_s);
    EXPECT_EQ(config.getLastDirectoryBoard(), QDir::homePath() + u"/Documents"_s) << "set at construction";
}
#endif
