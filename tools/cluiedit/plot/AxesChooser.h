#pragma once

#include "AxisChooser.h"
#include "PlotAxes.h"
#include "PlotChoice.h"

#include <QHash>
#include <QWidget>

#include <optional>

class QGridLayout;

namespace cluiedit {

class RepresentationChooser;

/// What the plot shows, to be chosen: a representation, or the axes one by one.
class AxesChooser : public QWidget
{
    Q_OBJECT

public:
    explicit AxesChooser(QWidget* parent = nullptr);

    void offerRepresentations(const Snapshot& snapshot);
    /// Offers the arrays that the document has, and shows of \p choice what it can.
    void offerArrays(const PlotChoice& choice, const Snapshot& snapshot);
    /// Gives an axis the units of what it shows: the one that somebody chose for the array before, or its own.
    void setQuantity(PlotAxis axis, const std::optional<Quantity>& quantity);

    AxisChooser& of(PlotAxis axis) { return *m_axes.at(axis); }
    const AxisChooser& of(PlotAxis axis) const { return *m_axes.at(axis); }

    AxisNames names() const;
    PerAxis<cl::datastorage::UsualUnit> units() const;
    PerAxis<bool> isLogarithmic() const;

signals:
    void representationChosen(qsizetype number);
    void arrayChosen(cluiedit::PlotAxis axis);
    /// Instead of the unit \p before.
    void unitChosen(cluiedit::PlotAxis axis, const cl::datastorage::UsualUnit& before);
    void scaleChosen(cluiedit::PlotAxis axis);

private:
    void addAxis(PlotAxis axis, QGridLayout& layout, int row);
    void keepUnit(PlotAxis axis);
    cl::datastorage::UsualUnit wantedUnit(const Quantity& quantity) const;

    RepresentationChooser* m_representations;
    PerAxis<AxisChooser*> m_axes;
    QHash<QString, cl::datastorage::UsualUnit> m_wantedUnits; // by name of the array
};

} // namespace cluiedit
