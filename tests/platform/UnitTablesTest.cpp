#include <datastorage/Converter.h>
#include <datastorage/private/UnitTables.h>

#include <QFile>
#include <QList>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

#include <map>

using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;
using cl::datastorage::UsualUnitOperator;

namespace {

constexpr QLatin1String Page(CLCONFIGUI_SOURCE_DIR "/docs/units.md");

// The cells of every table row of the page whose first cell is not a heading or a rule.
QList<QStringList> rowsOfPage()
{
    QFile file{QString(Page)};
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << Page.data();
    QList<QStringList> rows;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(u'|') && !line.startsWith(u"|-") && !line.startsWith(u"|---")) {
            QStringList cells;
            for (const QString& cell : line.sliced(1, line.size() - 2).split(u'|')) {
                cells.append(cell.trimmed());
            }
            rows.append(cells);
        }
    }
    return rows;
}

QList<QStringList> rowsOfKind(const QString& kind)
{
    QList<QStringList> rows;
    for (const QStringList& row : rowsOfPage()) {
        if (row.size() == 4 && row.at(0) == kind) {
            rows.append(row);
        }
    }
    return rows;
}

} // namespace

TEST(UnitsPage, ListsEveryQuantityWithItsNumberItsNameAndItsUnits)
{
    const QList<QStringList> rows = rowsOfKind(u"Parameter"_qs);
    QStringList names;
    for (const QStringList& row : rows) {
        const auto parameter = static_cast<PhysicalParameter>(row.at(1).toInt());
        names.append(row.at(2));
        EXPECT_EQ(Converter::getPhysicalParameterFromString(row.at(2)), parameter) << qPrintable(row.at(2));
        QStringList symbols;
        for (const UsualUnit& unit : Converter::getAvailableUnits(parameter)) {
            symbols.append(Converter::toString(unit));
        }
        EXPECT_EQ(row.at(3), symbols.join(u", ")) << qPrintable(row.at(2));
    }
    EXPECT_EQ(names, Converter::getPhysicalParameterNames());
}

TEST(UnitsPage, ListsEveryOperatorWithItsNumberAndItsName)
{
    QStringList names;
    for (const QStringList& row : rowsOfKind(u"Operator"_qs)) {
        names.append(row.at(2));
        EXPECT_EQ(Converter::getOperatorFromString(row.at(2)), static_cast<UsualUnitOperator>(row.at(1).toInt()));
    }
    EXPECT_EQ(names, Converter::getOperatorNames());
}

TEST(UnitsPage, ListsEveryUnitTypeWithItsSymbolItsQuantityAndItsFactor)
{
    std::map<int, QStringList> rowOfType;
    for (const QStringList& row : rowsOfPage()) {
        bool isNumber = false;
        const int type = row.at(0).toInt(&isNumber);
        if (isNumber && row.size() == 7) {
            rowOfType[type] = row;
        }
    }
    EXPECT_EQ(rowOfType.size(), cl::datastorage::tables::UnitTypes.size());
    for (const auto& unit : cl::datastorage::tables::UnitTypes) {
        const QStringList row = rowOfType[static_cast<int>(unit.type)];
        ASSERT_EQ(row.size(), 7) << static_cast<int>(unit.type);
        EXPECT_EQ(row.at(2), Converter::toString(unit.type));
        EXPECT_EQ(row.at(3), Converter::toString(unit.parameter));
        EXPECT_NEAR(row.at(4).toDouble() / unit.factor, 1, 1e-11) << qPrintable(row.at(2));
        EXPECT_NEAR(row.at(5).toDouble(), unit.zero, 1e-9) << qPrintable(row.at(2));
    }
}

TEST(UnitTables, CompoundUnitsOfAQuantityStandTogether)
{
    QSet<int> finished;
    PhysicalParameter current = PhysicalParameter::None;
    for (const auto& row : cl::datastorage::tables::CompoundUnits) {
        EXPECT_FALSE(finished.contains(static_cast<int>(row.parameter))) << static_cast<int>(row.parameter);
        if (row.parameter != current) {
            finished.insert(static_cast<int>(current));
            current = row.parameter;
        }
    }
}

TEST(UnitTables, CompoundUnitsHaveNoGapAndConvertWithinTheirQuantity)
{
    std::map<PhysicalParameter, UsualUnit> first;
    for (const auto& [parameter, unit] : cl::datastorage::tables::CompoundUnits) {
        EXPECT_TRUE(unit.hasUnit2());
        EXPECT_TRUE(unit.hasUnit3() || !unit.hasUnit4());
        const UsualUnit& base = first.try_emplace(parameter, unit).first->second;
        EXPECT_GT(Converter::convert(1, unit, base).value_or(0), 0) << qPrintable(Converter::toString(unit));
    }
}
