#pragma once

#include "PlotAxes.h"
#include "PlotChoice.h"
#include "PlotView.h"
#include "PlottedCurves.h"

#include <cluiedit/data/Measurement.h>
#include <cluiedit/tabs/Tab.h>

#include <QList>
#include <QStringList>

#include <memory>

class QLabel;

namespace cluiedit {

class AxesChooser;

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
    void setMeasurements(const Measurements& measurements);

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
    void makeActions();
    void chooseRepresentation(qsizetype number);
    void chooseArray(PlotAxis axis);
    void chooseUnit(PlotAxis axis, const cl::datastorage::UsualUnit& before);
    void chooseScale(PlotAxis axis);
    void rebuild();
    void setUpAxes();
    void plotCurves();
    void paintCurves();
    void showReadout(const QPointF& pixel);
    void endReadout();
    void sayBelow(const QString& text);

    std::shared_ptr<const Snapshot> m_snapshot;
    Measurements m_measurements;
    PlotChoice m_choice;
    AxesChooser* m_chooser;
    PlotView* m_view;
    PlottedCurves m_curves;
    AxisNames m_plotted; // for which the ranges were made
    QLabel* m_readout;
    bool m_isReadOut = false; // what somebody points at
};

} // namespace cluiedit
