// The tables come in English, and the window shows them in its language.

#include <cluiedit/i18n/Translation.h>
#include <cluiedit/tabs/ColorsTab.h>
#include <cluiedit/tabs/FindEntries.h>
#include <cluiedit/tabs/TableModel.h>
#include <cluiedit/tabs/TableWords.h>
#include <config/Configuration.h>
#include <datastorage/Converter.h>
#include <document/DocumentTables.h>
#include <document/UnitTables.h>

#include <QLocale>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;
using cluiconfig::Table;
using cluiedit::tableCell;
using cluiedit::tableWord;

namespace {

bool isWord(const QString& text)
{
    const QStringList words = cluiedit::tableWords();
    return std::ranges::any_of(words, [&](const QString& word) {
        QString pattern = QRegularExpression::escape(word);
        pattern.replace(QRegularExpression::escape(u"%1"_s), u".*"_s);
        return QRegularExpression(QRegularExpression::anchoredPattern(pattern)).match(text).hasMatch();
    });
}

QList<Table> allTables()
{
    QList<Table> tables = cluiconfig::documentTables({});
    tables.append(cluiconfig::parametersTable());
    const QStringList names = Converter::getPhysicalParameterNames();
    for (const QString& name : names) {
        tables.append(cluiconfig::unitsTable(Converter::getPhysicalParameterFromString(name)));
    }
    return tables;
}

} // namespace

TEST(TableWords, HaveEveryHeadingAndTitle)
{
    const QList<Table> tables = allTables();
    EXPECT_GE(tables.size(), 17);
    for (const Table& table : tables) {
        EXPECT_TRUE(isWord(table.name)) << table.name.toStdString();
        for (const QString& title : table.columns) {
            EXPECT_TRUE(isWord(title)) << table.name.toStdString() << ": " << title.toStdString();
        }
    }
}

TEST(TableWords, HaveWhatStandsInCellsWithoutBeingFromTheDocument)
{
    int count = 0;
    for (const Table& table : allTables()) {
        for (const QString& title : {u"Switch"_s, u"Why not"_s}) {
            const qsizetype column = table.columns.indexOf(title);
            for (const QList<QJsonValue>& row : table.rows) {
                if (column >= 0 && !row.at(column).toString().isEmpty()) {
                    EXPECT_TRUE(isWord(row.at(column).toString())) << row.at(column).toString().toStdString();
                    ++count;
                }
            }
        }
    }
    EXPECT_GT(count, 10);
    for (const QJsonValue& value : {QJsonValue(true), QJsonValue(false), QJsonValue()}) {
        EXPECT_TRUE(isWord(cluiconfig::cellText(value)));
    }
    uiconfig::Configuration configuration;
    configuration.representations = {ConfigRepresentation(u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s, false)};
    const Table table = cluiconfig::documentTables(configuration, {u"Representations"_s}).constFirst();
    EXPECT_TRUE(isWord(table.rows.constFirst().at(table.columns.indexOf(u"Drawn"_s)).toString()));
}

TEST(TableWords, StayAsTheyAreInEnglish)
{
    cluiedit::installTranslations(QLocale(QLocale::English));
    for (const QString& word : cluiedit::tableWords()) {
        EXPECT_EQ(tableWord(word), word);
    }
    EXPECT_EQ(tableWord(u"Units of Energy"_s), u"Units of Energy"_s);
}

TEST(TableWords, AreShownInGerman)
{
    cluiedit::installTranslations(QLocale(QLocale::German));
    EXPECT_EQ(tableWord(u"Skipped tasks"_s), u"Übersprungene Aufgaben"_s);
    EXPECT_EQ(tableWord(u"Units of %2 %1"_s), u"Einheiten von %2 %1"_s);
    EXPECT_EQ(tableWord(u"h is a time at the fourth place"_s), u"h ist eine Zeit an vierter Stelle"_s);
    EXPECT_EQ(tableWord(u"Units o"_s), u"Units o"_s);
    EXPECT_EQ(tableWord(QString()), QString());
    EXPECT_EQ(tableCell(true, u"Default"_s), u"ja"_s);
    EXPECT_EQ(tableCell(QJsonValue(), u"Column"_s), u"(unbekannt)"_s);
    EXPECT_EQ(tableCell(u"nothing"_s, u"Drawn"_s), u"nichts"_s);
    EXPECT_EQ(cluiedit::kindName(cluiedit::FindKind::Color), u"Farbe"_s);
    EXPECT_EQ(cluiedit::paletteTable({}).columns.at(1), u"Wert"_s);
}

TEST(TableWords, NamesOfTheDocumentAreNotTranslated)
{
    cluiedit::installTranslations(QLocale(QLocale::German));
    for (const QString& name : {u"Column"_s, u"yes"_s, u"nothing"_s, u"Units of Energy"_s}) {
        EXPECT_EQ(tableCell(name, u"Name"_s), name);
    }
}

TEST(TableWords, ATableIsFilteredAndSortedAsItIsShown)
{
    cluiedit::installTranslations(QLocale(QLocale::German));
    cluiedit::TableModel model;
    cluiedit::TableRows rows(model);
    model.show({.name = u"Debug switches"_s,
                .columns = {u"Switch"_s, u"On"_s},
                .rows = {{u"Keep imported Parquet files"_s, true}, {u"Identifiers in the import dialog"_s, false}}});
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"Schalter"_s);
    rows.setWords({u"ja"_s});
    ASSERT_EQ(rows.rowCount(), 1);
    EXPECT_EQ(rows.index(0, 0).data().toString(), u"Importierte Parquet-Dateien behalten"_s);
    rows.setWords({u"yes"_s});
    EXPECT_EQ(rows.rowCount(), 0);
    rows.setWords({});
    rows.sort(1); // ja, nein
    EXPECT_EQ(rows.index(0, 1).data().toString(), u"ja"_s);
    EXPECT_EQ(rows.index(1, 1).data().toString(), u"nein"_s);
}
