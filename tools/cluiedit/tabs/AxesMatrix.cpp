#include "AxesMatrix.h"

#include "Texts.h"

#include <check/Text.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using cluiconfig::check::printable;

namespace cluiedit {

namespace {

/// The numbers of names, which are numbered as they come.
class Numbers
{
public:
    explicit Numbers(QStringList& names)
        : m_names(names)
    {
    }

    int of(const QString& name)
    {
        const auto known = m_numbers.constFind(name);
        if (known != m_numbers.cend()) {
            return *known;
        }
        const auto number = static_cast<int>(m_names.size());
        m_names.append(name);
        m_numbers.insert(name, number);
        return number;
    }

private:
    QStringList& m_names;
    QHash<QString, int> m_numbers;
};

std::vector<int> having(const QStringList& words, const QStringList& names)
{
    std::vector<int> numbers;
    for (int number = 0; number < names.size(); ++number) {
        if (containsAll(names.at(number), words)) {
            numbers.push_back(number);
        }
    }
    return numbers;
}

std::vector<bool> marked(const std::vector<int>& numbers, qsizetype count)
{
    std::vector<bool> marks(static_cast<std::size_t>(count));
    for (const int number : numbers) {
        marks[static_cast<std::size_t>(number)] = true;
    }
    return marks;
}

void keepMarked(std::vector<int>& numbers, const std::vector<bool>& marks)
{
    std::erase_if(numbers, [&](int number) { return !marks[static_cast<std::size_t>(number)]; });
}

void sortByName(std::vector<int>& numbers, const QStringList& names)
{
    std::ranges::stable_sort(numbers,
                             [&](int a, int b) { return names.at(a).compare(names.at(b), Qt::CaseInsensitive) < 0; });
}

} // namespace

bool AxesMatrix::show(const QList<AxesCombination>& pairs)
{
    QStringList xNames;
    QStringList yNames;
    QHash<Axes, Pair> byAxes;
    byAxes.reserve(pairs.size());
    Numbers xNumbers(xNames);
    Numbers yNumbers(yNames);
    for (AxesCombination pair : pairs) {
        if (!pair.isValid()) {
            continue;
        }
        const Axes axes{xNumbers.of(pair.getConfigX().getName()), yNumbers.of(pair.getConfigY().getName())};
        if (!byAxes.contains(axes)) {
            byAxes.insert(axes,
                          {pair.getDefaultScaleX() == QCPAxis::stLogarithmic,
                           pair.getDefaultScaleY() == QCPAxis::stLogarithmic, pair.isOrthonormal()});
        }
    }
    if (xNames == m_xNames && yNames == m_yNames && byAxes == m_pairs) {
        return false;
    }
    beginResetModel();
    m_xNames = std::move(xNames);
    m_yNames = std::move(yNames);
    m_pairs = std::move(byAxes);
    arrange();
    endResetModel();
    return true;
}

void AxesMatrix::setView(const View& view)
{
    if (view != m_view) {
        beginResetModel();
        m_view = view;
        arrange();
        endResetModel();
    }
}

void AxesMatrix::arrange()
{
    m_columns = having(m_view.xWords, m_xNames);
    m_rows = having(m_view.yWords, m_yNames);
    const std::vector<bool> isColumn = marked(m_columns, m_xNames.size());
    const std::vector<bool> isRow = marked(m_rows, m_yNames.size());
    std::vector<bool> hasPairX(isColumn.size());
    std::vector<bool> hasPairY(isRow.size());
    m_shownPairs = 0;
    for (auto it = m_pairs.cbegin(); it != m_pairs.cend(); ++it) {
        const auto x = static_cast<std::size_t>(it.key().first);
        const auto y = static_cast<std::size_t>(it.key().second);
        if (isColumn[x] && isRow[y]) {
            hasPairX[x] = true;
            hasPairY[y] = true;
            ++m_shownPairs;
        }
    }
    if (m_view.hidesEmpty) {
        keepMarked(m_columns, hasPairX);
        keepMarked(m_rows, hasPairY);
    }
    if (m_view.order == Order::Name) {
        sortByName(m_columns, m_xNames);
        sortByName(m_rows, m_yNames);
    }
}

std::optional<AxesMatrix::Pair> AxesMatrix::pairAt(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return {};
    }
    const auto found = m_pairs.constFind(
        {m_columns[static_cast<std::size_t>(index.column())], m_rows[static_cast<std::size_t>(index.row())]});
    return found == m_pairs.cend() ? std::nullopt : std::optional(*found);
}

QModelIndex AxesMatrix::cellOf(const QString& x, const QString& y) const
{
    const auto place = [](const std::vector<int>& shown, const QStringList& names, const QString& name) {
        const auto found = std::ranges::find_if(shown, [&](int number) { return names.at(number) == name; });
        return found == shown.end() ? -1 : static_cast<int>(found - shown.begin());
    };
    const int column = place(m_columns, m_xNames, x);
    const int row = place(m_rows, m_yNames, y);
    return column < 0 || row < 0 ? QModelIndex() : index(row, column);
}

QString AxesMatrix::words(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return {};
    }
    const QString x = printable(xName(index.column()));
    const QString y = printable(yName(index.row()));
    const std::optional<Pair> pair = pairAt(index);
    if (!pair) {
        return tr("%1 × %2: not offered").arg(x, y);
    }
    const auto scale = [](bool isLogarithmic) { return isLogarithmic ? tr("logarithmic") : tr("linear"); };
    const QString text = pair->isOrthonormal ? tr("%1 × %2: %3, %4, orthonormal") : tr("%1 × %2: %3, %4");
    return text.arg(x, y, scale(pair->isLogarithmicX), scale(pair->isLogarithmicY));
}

int AxesMatrix::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int AxesMatrix::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant AxesMatrix::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::AccessibleTextRole:
        return words(index);
    case Qt::ToolTipRole:
        return toolTipText(words(index));
    default:
        return {};
    }
}

QVariant AxesMatrix::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isColumn = orientation == Qt::Horizontal;
    if (section < 0 || section >= (isColumn ? columnCount() : rowCount())) {
        return {};
    }
    const QString name = printable(isColumn ? xName(section) : yName(section));
    switch (role) {
    case Qt::DisplayRole:
        return name;
    case Qt::ToolTipRole:
        return toolTipText(name);
    default:
        return {};
    }
}

} // namespace cluiedit
