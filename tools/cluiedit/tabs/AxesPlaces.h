#pragma once

#include <QJsonObject>
#include <QString>

#include <axes/AxesCombinationManager.h>

#include <vector>

namespace cluiedit {

/// Which entry of "Axes combinations" gives a pair of axes. Made by reading the entries as the application does, which
/// takes some milliseconds for a thousand of them: keep it as long as the document stays the same.
class AxesPlaces
{
public:
    /// REQUIRES: the application loads the document \p root.
    explicit AxesPlaces(const QJsonObject& root);

    /// The JSON pointer to the first entry that pairs \p x with \p y; to the section where there is none.
    QString placeOf(const QString& x, const QString& y) const;

private:
    AxesCombinationManager m_axes;
    std::vector<qsizetype> m_ends; // of each entry, the number of pairs up to its last one
};

} // namespace cluiedit
