#include <config/UIConfigTest.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

const QString Directory = QStringLiteral(TRANSLATIONS_DIRECTORY);

/// What the filters of file dialogs are called in a language.
struct Filters
{
    QLocale locale;
    QString csv;
    QString mpr;
};

class Translations : public UIConfigTest, public testing::WithParamInterface<Filters>
{
protected:
    void expectEnglish() const
    {
        EXPECT_EQ(config.csvFileNameFilter(), u"CL-Test CSV Files (*.csv)"_s);
        EXPECT_EQ(config.mprFileNameFilter(), u"Cellaro® MPR Files (*.mpr)"_s);
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Speaks, Translations,
    testing::Values(Filters{QLocale(QLocale::German, QLocale::Austria), u"CL-Test-CSV-Dateien (*.csv)"_s,
                            u"Cellaro®-MPR-Dateien (*.mpr)"_s},
                    Filters{QLocale(QLocale::French, QLocale::Belgium), u"Fichiers CSV CL-Test (*.csv)"_s,
                            u"Fichiers MPR Cellaro® (*.mpr)"_s}),
    [](const auto& filters) { return QLocale::languageToString(filters.param.locale.language()).toStdString(); });

TEST_P(Translations, TextsAreInTheLanguageOfTheTranslatorThatIsInstalledAtTheCall)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(GetParam().locale, u"clconfigui"_s, u"_"_s, Directory)) << Directory.toStdString();
    expectEnglish();

    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    EXPECT_EQ(config.csvFileNameFilter(), GetParam().csv);
    EXPECT_EQ(config.mprFileNameFilter(), GetParam().mpr);

    QCoreApplication::removeTranslator(&translator);
    expectEnglish();
}
