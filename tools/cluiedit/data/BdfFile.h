#pragma once

#include <cluiedit/data/Measurement.h>
#include <config/Configuration.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <stop_token>

namespace cluiedit {

/// What came of reading a file of measurements: exactly one of a measurement, an error, and a cancellation.
struct BdfFile
{
    std::optional<Measurement> measurement;
    QString error; ///< a sentence with the file's name, and line and column where it has to do with a place
    QStringList unknownColumns; ///< headers that the catalogue does not know; not read
    QStringList skippedColumns; ///< headers of arrays that hold texts; not read
    bool wasCancelled = false;
};

/// Told how many of the bytes of the file are read.
using ReadProgress = std::function<void(qint64 read, qint64 of)>;

/// Reads a file in the Battery Data Format as CSV: a line of headers, then a row of numbers a line.
///
/// A header is the machine name or the name of an array of the category ClConfigDataArray::PotentiostatMeasure() of
/// \p catalogue; another case does where only one array is meant. The cells stand apart by commas, semicolons or tabs,
/// whichever the header line has most. A cell without content is a missing value, NaN. Numbers have a decimal point,
/// whatever the locale. Cells and header have a limited length, so memory depends on the number of rows alone.
/// \param progress may be empty; called in the calling thread
BdfFile readBdf(const QString& path, const uiconfig::Catalogue& catalogue, const std::stop_token& stop = {},
                const ReadProgress& progress = {});

} // namespace cluiedit
