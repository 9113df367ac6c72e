#pragma once

#include <axes/AxesCombinationManager.h>

#include <QList>
#include <QString>
#include <QStringList>

/// The record of two arrays, each given as name and category, with both scales linear and not orthonormal unless the
/// test says otherwise.
inline AxesCombination record(const cl::datastorage::DataArrayIdentifier& x,
                              const cl::datastorage::DataArrayIdentifier& y,
                              QCPAxis::ScaleType scaleX = QCPAxis::stLinear,
                              QCPAxis::ScaleType scaleY = QCPAxis::stLinear, bool orthonormal = false)
{
    return {x, y, scaleX, scaleY, orthonormal};
}

/// All five values of a record in one line, so that records can be compared and read as texts:
/// "Time (Cycle) / Voltage (Cycle), linear / logarithmic, orthonormal". Equality of records looks at identities only.
inline QString described(AxesCombination combination)
{
    const auto identity = [](const cl::datastorage::DataArrayIdentifier& array) {
        return array.getName() + QStringLiteral(" (") + array.getCategory() + u')';
    };
    const auto scale = [](QCPAxis::ScaleType type) {
        return type == QCPAxis::stLinear ? QStringLiteral("linear") : QStringLiteral("logarithmic");
    };
    return identity(combination.getConfigX()) + QStringLiteral(" / ") + identity(combination.getConfigY())
        + QStringLiteral(", ") + scale(combination.getDefaultScaleX()) + QStringLiteral(" / ")
        + scale(combination.getDefaultScaleY())
        + (combination.isOrthonormal() ? QStringLiteral(", orthonormal") : QString());
}

inline QStringList described(const QList<AxesCombination>& combinations)
{
    QStringList texts;
    for (const AxesCombination& combination : combinations) {
        texts.append(described(combination));
    }
    return texts;
}

inline AxesCombinationManager managerOf(const QList<AxesCombination>& records)
{
    AxesCombinationManager manager;
    for (const AxesCombination& combination : records) {
        manager.append(combination);
    }
    return manager;
}

/// Voltage and Charge over Time in two categories, Time over Charge, and an invalid record before all of them.
inline AxesCombinationManager sampleManager()
{
    using Array = cl::datastorage::DataArrayIdentifier;
    const QString step = QStringLiteral("Step");
    const QString cycle = QStringLiteral("Cycle");
    const QString time = QStringLiteral("Time");
    const QString voltage = QStringLiteral("Voltage");
    const QString charge = QStringLiteral("Charge");
    return managerOf({
        record(Array(time, step), Array(QStringLiteral("Nothing"), QString())),
        record(Array(time, step), Array(voltage, step), QCPAxis::stLogarithmic, QCPAxis::stLinear),
        record(Array(time, cycle), Array(voltage, cycle), QCPAxis::stLinear, QCPAxis::stLogarithmic, true),
        record(Array(charge, cycle), Array(time, cycle)),
        record(Array(time, cycle), Array(charge, cycle)),
    });
}
