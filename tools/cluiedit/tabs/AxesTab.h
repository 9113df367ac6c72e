#pragma once

#include "AxesMatrix.h"
#include "AxesPlaces.h"
#include "Tab.h"

#include <optional>
#include <utility>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;

namespace cluiedit {

/// The matrix of the axes: which array may be plotted against which. Somebody who chooses a mark wants to see the plot,
/// and the entry of the document that offers it.
class AxesTab : public Tab
{
    Q_OBJECT

public:
    explicit AxesTab(QWidget* parent = nullptr);

    void present(const std::shared_ptr<const Snapshot>& snapshot) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* addFilter(QLayout& line, const QString& label, const QString& accessibleName);
    void makeView();
    void arrange();
    /// Makes \p change to the matrix; the cell that was chosen stays so, and what was scrolled to.
    template <typename Change>
    void keepingPlace(const Change& change);
    void choose(const QModelIndex& index);
    void tell();

    AxesMatrix m_matrix;
    QTableView* m_view;
    QLineEdit* m_xFilter;
    QLineEdit* m_yFilter;
    QComboBox* m_order;
    QCheckBox* m_hidesEmpty;
    QLabel* m_count;
    QLabel* m_current; // what the current cell means
    std::pair<QString, QString> m_chosen; // the axes of the current cell, also while a filter hides them
    std::shared_ptr<const Snapshot> m_snapshot;
    std::optional<AxesPlaces> m_places; // of the snapshot, once somebody asks
};

} // namespace cluiedit
