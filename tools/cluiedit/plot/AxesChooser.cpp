#include "AxesChooser.h"

#include "RepresentationChooser.h"

#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

using cl::datastorage::UsualUnit;

namespace cluiedit {

using enum PlotAxis;

AxesChooser::AxesChooser(QWidget* parent)
    : QWidget(parent)
    , m_representations(new RepresentationChooser)
{
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(1, 1);
    m_representations->setObjectName(u"representation"_s);
    makeNarrow(*m_representations);
    auto* label = new QLabel(tr("&Representation:"));
    label->setBuddy(m_representations);
    layout->addWidget(label, 0, 0);
    layout->addWidget(m_representations, 0, 1, 1, 3);
    connect(m_representations, &RepresentationChooser::chosen, this, &AxesChooser::representationChosen);
    int row = 1;
    for (const PlotAxis axis : PlotAxes) {
        addAxis(axis, *layout, row++);
    }
}

void AxesChooser::addAxis(PlotAxis axis, QGridLayout& layout, int row)
{
    auto* chooser = new AxisChooser(axis, layout, row, this);
    m_axes.at(axis) = chooser;
    connect(chooser, &AxisChooser::arrayChosen, this, [this, axis] { emit arrayChosen(axis); });
    connect(chooser, &AxisChooser::unitChosen, this, [this, axis] { keepUnit(axis); });
    connect(chooser, &AxisChooser::scaleChosen, this, [this, axis] { emit scaleChosen(axis); });
}

void AxesChooser::offerRepresentations(const Snapshot& snapshot)
{
    m_representations->offer(snapshot);
}

void AxesChooser::offerArrays(const PlotChoice& choice, const Snapshot& snapshot)
{
    const AxisNames& wanted = choice.names();
    const QStringList ys = snapshot.axes().getYAxesNames(wanted.at(X));
    of(X).offer(snapshot.axes().getXAxesNames(), wanted.at(X));
    of(Y1).offer(ys, wanted.at(Y1));
    of(Y2).offer(ys, wanted.at(Y2));
    m_representations->mark(choice.representationIn(snapshot));
}

UsualUnit AxesChooser::wantedUnit(const Quantity& quantity) const
{
    return m_wantedUnits.value(quantity.array.getName(), quantity.unit);
}

void AxesChooser::setQuantity(PlotAxis axis, const std::optional<Quantity>& quantity)
{
    of(axis).setQuantity(quantity, quantity ? wantedUnit(*quantity) : UsualUnit());
}

void AxesChooser::keepUnit(PlotAxis axis)
{
    const Quantity& quantity = *of(axis).quantity();
    const UsualUnit before = wantedUnit(quantity);
    m_wantedUnits.insert(quantity.array.getName(), of(axis).unit());
    emit unitChosen(axis, before);
}

AxisNames AxesChooser::names() const
{
    return {of(X).array(), of(Y1).array(), of(Y2).array()};
}

PerAxis<UsualUnit> AxesChooser::units() const
{
    return {of(X).unit(), of(Y1).unit(), of(Y2).unit()};
}

PerAxis<bool> AxesChooser::isLogarithmic() const
{
    return {of(X).isLogarithmic(), of(Y1).isLogarithmic(), of(Y2).isLogarithmic()};
}

} // namespace cluiedit
