#pragma once

#include "DenseGraph.h"
#include "PlotView.h"
#include "Quantity.h"

#include <axes/AxesCombination.h>
#include <cluiedit/data/Measurement.h>
#include <cluiedit/tabs/Tab.h>

#include <QHash>
#include <QList>
#include <QStringList>

#include <array>
#include <memory>
#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;

namespace cluiedit {

/// Measurements plotted as the document has it: its representations and pairs of axes to choose from, with their
/// scales, the application's units, and the document's colours.
class PlotTab : public Tab
{
    Q_OBJECT

public:
    explicit PlotTab(QWidget* parent = nullptr);

    void present(const std::shared_ptr<const Snapshot>& snapshot) override;

    /// What is plotted: a curve for each of them and each Y axis.
    ///
    /// REQUIRES: no null; nobody changes them.
    void setMeasurements(const QList<std::shared_ptr<const Measurement>>& measurements);

    /// Plots the data arrays of these names; an empty \p y1 or \p y2 for none. Says so in the plot where the document
    /// does not offer that.
    void plot(const QString& x, const QString& y1, const QString& y2 = {});

    /// Writes the plot to the file \p path, in the format of its suffix: png, svg or pdf. False with the reason in
    /// \p error.
    bool exportTo(const QString& path, QString& error);

    /// Asks for a file and writes the plot into it.
    void askAndExport();
    /// Asks how graphs are to be drawn, and draws them so.
    void changeRendering();

    PlotView& view() { return *m_view; }

protected:
    void changeEvent(QEvent* event) override;

private:
    enum Place { X, Y1, Y2 };
    static constexpr std::array<Place, 3> Places{X, Y1, Y2};

    /// The choosers of an axis.
    struct Row
    {
        QComboBox* array = nullptr;
        QComboBox* unit = nullptr;
        QCheckBox* isLogarithmic = nullptr;
        std::optional<Quantity> quantity{}; ///< What the axis shows; nothing for none.
        QList<cl::datastorage::UsualUnit> units{}; ///< Those of the chooser.
        std::optional<bool> wantsLogarithmic{}; ///< What somebody chose instead of the default, for this array.
    };

    /// Names of data arrays, in the order of the places.
    using Names = std::array<QString, 3>;

    /// A pair of arrays of which a measurement has both.
    struct Pair
    {
        AxesCombination axes;
        Values x;
        Values y;
    };

    struct Curve
    {
        QString name; ///< Of the measurement.
        Place place = Y1;
        Quantity x;
        Quantity y;
        Values xs;
        Values ys;
        DenseGraph* graph = nullptr; // the view's
    };

    void makeControls(QGridLayout* layout);
    void makeActions();
    void fillRepresentations();
    void fillArrays();
    void showRepresentation();
    void chooseRepresentation(int index);
    void chooseArray(Place place);
    void chooseUnit(Place place);
    void chooseScale(Place place);
    void resolve();
    void rebuild();
    void refill(Place place, const std::optional<Quantity>& quantity);
    void applyScales();
    void makeCurves();
    void makeGraph(Curve& curve, const std::vector<Curve>& before);
    void paintCurves();
    void showNotices();
    void showReadout(const QPointF& pixel);
    void endReadout();
    void sayBelow(const QString& text);

    AxesCombination combination(Place y) const;
    std::optional<Pair> pairOf(const std::shared_ptr<const Measurement>& measurement, const QString& x,
                               const QString& y) const;
    cl::datastorage::UsualUnit shownUnit(Place place) const;
    QCPAxis* axisOf(Place place) const;
    Names shownNames() const;

    std::shared_ptr<const Snapshot> m_snapshot;
    QList<std::shared_ptr<const Measurement>> m_measurements;

    // What somebody wants to see; what the document makes of that stands in the rows.
    std::optional<QString> m_wantedRepresentation;
    Names m_wanted;
    bool m_isChosen = false; // by somebody; else what is wanted is the document's default
    QHash<QString, cl::datastorage::UsualUnit> m_wantedUnits; // by name of the array

    std::array<Row, 3> m_rows;
    std::vector<Curve> m_curves;
    QStringList m_missing; // what measurements do not have
    Names m_plotted; // for which the ranges were made
    QComboBox* m_representations;
    PlotView* m_view;
    QLabel* m_readout;
    bool m_isReadOut = false; // what somebody points at
};

} // namespace cluiedit
