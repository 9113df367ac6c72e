#pragma once

#include <axes/AxesCombination.h>

#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

namespace cluiedit {

/// Which array may be plotted against which: a column for each X axis, a row for each Y axis. Of pairs that differ in
/// their category only, the first counts, as it does for the application.
class AxesMatrix : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    enum class Order { Document, Name };

    /// What of the pairs is shown, and in which order.
    struct View
    {
        QStringList xWords{}; ///< Words that the name of an X axis must have.
        QStringList yWords{};
        Order order = Order::Document;
        bool hidesEmpty = true; ///< Axes without a pair among those that are shown are not shown.

        bool operator==(const View& other) const = default;
    };

    /// How a plot of a pair starts out.
    struct Pair
    {
        bool isLogarithmicX = false;
        bool isLogarithmicY = false;
        bool isOrthonormal = false;

        bool operator==(const Pair& other) const = default;
    };

    /// Shows \p pairs in place of those before. False when nothing differs.
    bool show(const QList<AxesCombination>& pairs);
    void setView(const View& view);

    qsizetype pairCount() const { return m_pairs.size(); }
    qsizetype shownPairCount() const { return m_shownPairs; }
    qsizetype xCount() const { return m_xNames.size(); }
    qsizetype yCount() const { return m_yNames.size(); }

    const QString& xName(int column) const { return m_xNames.at(m_columns[static_cast<std::size_t>(column)]); }
    const QString& yName(int row) const { return m_yNames.at(m_rows[static_cast<std::size_t>(row)]); }
    /// Nothing where the two are not offered together, or for an invalid index.
    std::optional<Pair> pairAt(const QModelIndex& index) const;
    /// The cell of two axes; invalid when one of them is not shown.
    QModelIndex cellOf(const QString& x, const QString& y) const;
    /// "Test Time / s × Voltage / V: linear, logarithmic".
    QString words(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    using Axes = std::pair<int, int>; // the numbers of X and Y

    void arrange();

    QStringList m_xNames; // in the order of the document
    QStringList m_yNames;
    QHash<Axes, Pair> m_pairs;
    View m_view;
    std::vector<int> m_columns; // the X axes that are shown
    std::vector<int> m_rows;
    qsizetype m_shownPairs = 0;
};

} // namespace cluiedit
