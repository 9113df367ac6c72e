#pragma once

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

namespace cluiconfig {

/// Rows of named columns: what there is to show, whoever shows it and as what.
struct Table
{
    QString name{}; ///< Heading in text, key in JSON.
    QStringList columns{};
    QList<QList<QJsonValue>> rows{}; ///< One value a column each.

    // Of a table that shows a section of the document.

    QString section{}; ///< The key of the section.
    QStringList keys{}; ///< The columns by which another document's rows are recognised; none for a single row.
    QStringList names{}; ///< Those of the keys that are mere names: a row that differs in nothing else was renamed.

    // How the text looks.

    /// Rows that stand together and differ only in this column, the last one, become one, its values joined by commas.
    qsizetype joinedColumn = -1;
    bool endsInColors = false; ///< The last column holds names of colours, such as "#0072b2".
};

/// What people see of \p value.
QString cellText(const QJsonValue& value);

} // namespace cluiconfig
