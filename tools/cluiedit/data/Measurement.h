#pragma once

#include <datastorage/DataArrayIdentifier.h>

#include <QHash>
#include <QString>

#include <utility>
#include <vector>

namespace cluiedit {

/// What was measured on one cell, or computed from it: the values of data arrays of the catalogue, each by its name and
/// category. The arrays of one category have the same number of values, a place each for the same row.
class Measurement
{
public:
    /// \param name what people call it: the name of its file without the directory
    explicit Measurement(QString name)
        : m_name(std::move(name))
    {
    }

    const QString& name() const { return m_name; }

    /// The values of \p array in the array's own unit, NaN where one is missing; null when there are none at all. Valid
    /// as long as the measurement lives and add() does not replace them.
    const std::vector<double>* values(const cl::datastorage::DataArrayIdentifier& array) const;

    /// Takes over the values of \p array, instead of those that it may have.
    void add(const cl::datastorage::DataArrayIdentifier& array, std::vector<double> values);

private:
    QString m_name;
    QHash<std::pair<QString, QString>, std::vector<double>> m_values; // by category and name
};

} // namespace cluiedit
