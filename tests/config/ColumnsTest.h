#pragma once

#include <batterydata/ClConfigDataArray.h>
#include <config/UIConfigTest.h>

#include <QString>
#include <QStringList>

/// "category/name" of each column, "null" for null.
inline QStringList names(const QList<cl::batterydata::ClConfigDataArray*>& columns)
{
    QStringList result;
    for (const auto* column : columns) {
        result.append(column == nullptr ? QStringLiteral("null") : column->getCategory() + u'/' + column->getName());
    }
    return result;
}

/// A test of columns, with a catalogue of its own.
class ColumnsTest : public UIConfigTest
{
    const TestCatalogue m_catalogue{
        {QStringLiteral("Duration"), QStringLiteral("Step")},
        {QStringLiteral("Capacity"), QStringLiteral("Step")},
        {QStringLiteral("Capacity"), QStringLiteral("Cycle")},
        {QStringLiteral("Capacity"), QStringLiteral("Loop")},
        {QStringLiteral("Energy"), QStringLiteral("Loop")},
        {QStringLiteral("Voltage"), QStringLiteral("Potentiostat")},
        {QStringLiteral("Capacity"), QStringLiteral("Potentiostat")},
        {QString(), QStringLiteral("Aggregates")},
    };
};
