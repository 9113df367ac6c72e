#pragma once

#include "PlotAxes.h"
#include "Quantity.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

class QCheckBox;
class QComboBox;
class QGridLayout;

namespace cluiedit {

/// What an axis shows, to be chosen: the data array, its unit, and the scale. A row of four columns: a label, two boxes
/// and a mark.
class AxisChooser : public QObject
{
    Q_OBJECT

public:
    /// Adds the widgets to \p layout, which belongs to a widget, as its \p row.
    AxisChooser(PlotAxis axis, QGridLayout& layout, int row, QObject* parent);

    /// Offers the arrays \p names, and shows \p wanted if it is among them. For a Y axis, none is offered, too.
    void offer(const QStringList& names, const QString& wanted);
    /// The array's name; empty for none.
    QString array() const;

    /// Offers the units of \p quantity, and shows \p wanted if it is among them, else the quantity's own. Another
    /// quantity has its default scale.
    void setQuantity(const std::optional<Quantity>& quantity, const cl::datastorage::UsualUnit& wanted);
    const std::optional<Quantity>& quantity() const { return m_quantity; }
    cl::datastorage::UsualUnit unit() const;

    /// Shows that scale unless somebody chose one for the quantity.
    void setDefaultScale(bool isLogarithmic);
    bool isLogarithmic() const;

signals:
    // Somebody chose another one.
    void arrayChosen();
    void unitChosen();
    void scaleChosen();

private:
    bool m_isOptional;
    QComboBox* m_arrays;
    QComboBox* m_unitBox;
    QCheckBox* m_logarithmic;
    std::optional<Quantity> m_quantity;
    QList<cl::datastorage::UsualUnit> m_units; // those of the box
    std::optional<bool> m_wantsLogarithmic; // what somebody chose instead of the default
};

/// Lets \p box be narrower than the names in it, which are long, and as wide as there is room.
void makeNarrow(QComboBox& box);

} // namespace cluiedit
