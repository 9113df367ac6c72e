#include "PlotNotices.h"

#include <cluiedit/reading/Catalogue.h>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace cluiedit {

using enum PlotAxis;

namespace {

/// Made of the state of a plot; a class for its texts.
class NoticeWriter
{
    Q_DECLARE_TR_FUNCTIONS(cluiedit::PlotNotices)

public:
    explicit NoticeWriter(const PlotState& state)
        : m_state(state)
    {
    }

    /// About the arrays that are wanted, and about the plot as a whole.
    QStringList ofAxes() const
    {
        QStringList notices;
        const AxisNames& shown = m_state.shown;
        for (const PlotAxis axis : PlotAxes) {
            const QString& name = m_state.wanted.at(axis);
            if (name.isEmpty() || name == shown.at(axis)) {
                continue;
            }
            if (!isKnown(name)) {
                notices.append(tr("The catalogue has no data array “%1”.").arg(name));
            } else if (axis == X) {
                notices.append(tr("No axes combination of the document has “%1” as X.").arg(name));
            } else if (!shown.at(X).isEmpty()) {
                notices.append(
                    tr("No axes combination of the document pairs “%1” with “%2”.").arg(m_state.wanted.at(X), name));
            }
        }
        if (!m_state.hasMeasurements) {
            notices.append(tr("There are no measurements to plot."));
        } else if (notices.isEmpty() && shown.at(Y1).isEmpty() && shown.at(Y2).isEmpty()) {
            notices.append(tr("Choose an array for Y1 or Y2."));
        }
        return notices;
    }

    /// About the points of the curves.
    QStringList ofPoints() const
    {
        QStringList notices;
        for (const auto& each : m_state.curves) {
            const Curve& curve = each.curve;
            const Reduction& points = each.points();
            if (points.drawable() == 0 && points.belowFloor() == 0) {
                notices.append(tr("%1 has no values of %2 over %3")
                                   .arg(curve.name, curve.y.array.getName(), curve.x.array.getName()));
            } else if (points.belowFloor() > 0) {
                const QString text = points.drawable() == 0
                    ? tr("%1: none of the %2 points of %3 can be drawn on logarithmic axes, which show numbers above 0")
                    : tr("%1: %2 points of %3 are left out, as logarithmic axes show numbers above 0");
                notices.append(text.arg(curve.name, QString::number(points.belowFloor()), nameWithoutUnit(curve.y)));
            }
        }
        return notices;
    }

    /// At the end of notices that are too many.
    static QString more(qsizetype count) { return tr("And %1 more of this kind.").arg(count); }

private:
    static bool isKnown(const QString& array) { return !catalogue().getConfigDataArrays(array).isEmpty(); }

    const PlotState& m_state;
};

} // namespace

QStringList plotNotices(const PlotState& state)
{
    constexpr qsizetype MostNotices = 8;
    const NoticeWriter writer(state);
    QStringList notices = writer.ofAxes() + state.missing + writer.ofPoints();
    const qsizetype more = notices.size() - MostNotices;
    if (more > 0) {
        notices = notices.first(MostNotices);
        notices.append(NoticeWriter::more(more));
    }
    return notices;
}

} // namespace cluiedit
