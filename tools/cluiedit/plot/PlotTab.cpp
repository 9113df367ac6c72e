#include "PlotTab.h"

#include "AxesChooser.h"
#include "Export.h"
#include "PlotNotices.h"
#include "RenderingDialog.h"

#include <base/DocumentKeys.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMessageBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

using cl::datastorage::UsualUnit;

namespace cluiedit {

using enum PlotAxis;

namespace {

QToolButton* button(QAction* action)
{
    auto* result = new QToolButton;
    result->setDefaultAction(action);
    result->setToolButtonStyle(Qt::ToolButtonTextOnly);
    result->setFocusPolicy(Qt::StrongFocus);
    return result;
}

} // namespace

PlotTab::PlotTab(QWidget* parent)
    : Tab(parent)
    , m_chooser(new AxesChooser)
    , m_view(new PlotView)
    , m_curves(*m_view)
    , m_readout(new QLabel)
{
    m_view->setObjectName(u"plot"_s);
    m_readout->setObjectName(u"readout"_s);
    m_readout->setTextFormat(Qt::PlainText);
    m_readout->setAccessibleName(tr("Values of the nearest points"));
    // One line, whatever it says.
    m_readout->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_readout->setFixedHeight(m_readout->fontMetrics().height() + 4);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_chooser);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_readout);
    makeActions();
    connect(m_chooser, &AxesChooser::representationChosen, this, &PlotTab::chooseRepresentation);
    connect(m_chooser, &AxesChooser::arrayChosen, this, &PlotTab::chooseArray);
    connect(m_chooser, &AxesChooser::unitChosen, this, &PlotTab::chooseUnit);
    connect(m_chooser, &AxesChooser::scaleChosen, this, &PlotTab::chooseScale);
    connect(m_view, &PlotView::pointed, this, &PlotTab::showReadout);
    connect(m_view, &PlotView::left, this, &PlotTab::endReadout);
    connect(m_view, &QCustomPlot::afterReplot, this, [this] {
        if (!m_isReadOut) {
            endReadout();
        }
    });
}

void PlotTab::makeActions()
{
    const auto add = [this](const QString& text, const QString& tip, const QKeySequence& shortcut, auto&& slot) {
        auto* action = new QAction(text, m_view);
        action->setToolTip(tip);
        action->setShortcut(shortcut);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, slot);
        m_view->addAction(action);
        return action;
    };
    // Home is a key of the view, and only told here.
    QAction* all = add(tr("Show &all"), tr("Show all points (Home, or double click)"), {}, [this] {
        m_view->fit();
        m_view->drawNow();
    });
    QAction* rectangle = add(tr("&Zoom to rectangle"), tr("Drag to zoom to a rectangle; otherwise drag with Shift"), {},
                             [this](bool isOn) { m_view->setZoomsToRectangle(isOn); });
    rectangle->setCheckable(true);
    QAction* copy = add(tr("&Copy picture"), tr("Copy the plot as a picture"), QKeySequence::Copy,
                        [this] { QApplication::clipboard()->setPixmap(m_view->toPixmap()); });
    QAction* save = add(tr("Ex&port…"), tr("Save the plot as PNG, SVG or PDF"), {}, [this] { askAndExport(); });
    QAction* look = add(tr("Ren&dering…"), tr("Choose how graphs are drawn"), {}, [this] { changeRendering(); });
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);

    auto* buttons = new QHBoxLayout;
    for (QAction* action : {all, rectangle, copy, save, look}) {
        buttons->addWidget(button(action));
    }
    buttons->addStretch();
    qobject_cast<QVBoxLayout*>(layout())->insertLayout(1, buttons);
}

void PlotTab::present(const std::shared_ptr<const Snapshot>& snapshot)
{
    const auto before = std::exchange(m_snapshot, snapshot);
    if (before == snapshot) {
        return;
    }
    const auto hasChanged = [&](QLatin1StringView section) {
        return !before || before->root().value(section) != snapshot->root().value(section);
    };
    if (hasChanged(uiconfig::keys::AxesCombinations) || hasChanged(uiconfig::keys::Representations)) {
        m_chooser->offerRepresentations(*m_snapshot);
        rebuild();
    } else if (hasChanged(uiconfig::keys::Colors)) {
        paintCurves();
        m_view->drawNow();
    }
}

void PlotTab::setMeasurements(const Measurements& measurements)
{
    m_measurements = measurements;
    if (m_snapshot) {
        rebuild();
    }
}

void PlotTab::plot(const QString& x, const QString& y1, const QString& y2)
{
    m_choice.choose({x, y1, y2});
    if (m_snapshot) {
        rebuild();
    }
}

bool PlotTab::exportTo(const QString& path, QString& error)
{
    return exportPlot(*m_view, path, error);
}

void PlotTab::chooseRepresentation(qsizetype number)
{
    if (m_snapshot) {
        m_choice.choose(m_snapshot->configuration().representations.at(number));
        rebuild();
    }
}

void PlotTab::chooseArray(PlotAxis axis)
{
    if (m_snapshot) {
        const AxisNames names = m_chooser->names();
        m_choice.choose(axis == X ? pairedWithX(names, m_snapshot->axes()) : names);
        rebuild();
    }
}

void PlotTab::chooseUnit(PlotAxis axis, const UsualUnit& before)
{
    const bool wasFitted = m_view->isFitted();
    if (const auto scale = unitScale(before, m_chooser->of(axis).unit())) { // the same part stays in view
        QCPAxis* shown = m_view->axisOf(axis);
        const QCPRange range = shown->range();
        shown->setRange(scale->shown(range.lower), scale->shown(range.upper));
    }
    plotCurves();
    if (wasFitted) {
        m_view->fit();
        m_view->drawNow();
    }
}

void PlotTab::chooseScale(PlotAxis axis)
{
    const bool wasFitted = m_view->isFitted();
    const bool fits = !m_chooser->of(axis).isLogarithmic() || m_view->axisOf(axis)->range().lower > 0;
    plotCurves();
    if (wasFitted || !fits) {
        m_view->fit();
        m_view->drawNow();
    }
}

void PlotTab::rebuild()
{
    m_choice.follow(*m_snapshot);
    m_chooser->offerArrays(m_choice, *m_snapshot);
    plotCurves();
}

/// Units, scales and aspects as the pairs of axes say, or as somebody chose.
void PlotTab::setUpAxes()
{
    const AxisNames names = m_chooser->names();
    const auto pairWith = [&](PlotAxis y) {
        return pairFor(m_snapshot->axes(), m_measurements, names.at(X), names.at(y));
    };
    PerAxis<AxesCombination> pairs({}, pairWith(Y1), pairWith(Y2));
    pairs.at(X) = pairs.at(Y1).isValid() ? pairs.at(Y1) : pairs.at(Y2);
    m_chooser->setQuantity(X, quantityOf(pairs.at(X).getConfigX()));
    for (const PlotAxis y : YAxes) {
        m_chooser->setQuantity(y, quantityOf(pairs.at(y).getConfigY()));
    }
    PlotView::Aspects aspects;
    for (const PlotAxis axis : PlotAxes) {
        AxisChooser& chooser = m_chooser->of(axis);
        AxesCombination& pair = pairs.at(axis);
        const auto scale = axis == X ? pair.getDefaultScaleX() : pair.getDefaultScaleY();
        chooser.setDefaultScale(scale == QCPAxis::stLogarithmic);
        QCPAxis* shown = m_view->axisOf(axis);
        m_view->setLogarithmic(shown, chooser.isLogarithmic());
        shown->setLabel(chooser.quantity() ? label(*chooser.quantity(), chooser.unit()) : QString());
        if (axis != X && pair.isOrthonormal()) {
            const auto scaleOfUnits = unitScale(m_chooser->of(X).unit(), chooser.unit());
            aspects.at(axis) = scaleOfUnits ? scaleOfUnits->factor : 1;
        }
    }
    m_view->setAspects(aspects);
    m_view->yAxis2->setVisible(m_chooser->of(Y2).quantity().has_value());
    m_view->yAxis->setVisible(m_chooser->of(Y1).quantity().has_value() || !m_view->yAxis2->visible());
}

void PlotTab::plotCurves()
{
    const AxisNames names = m_chooser->names();
    const bool wasFitted = m_view->isFitted();
    const bool isSame = std::exchange(m_plotted, names) == names;
    setUpAxes();
    const Curves found = curvesOf(m_snapshot->axes(), m_measurements, names, m_chooser->units());
    m_curves.set(found.curves, m_chooser->isLogarithmic());
    paintCurves();
    m_view->setNotices(plotNotices({.wanted = m_choice.names(),
                                    .shown = names,
                                    .hasMeasurements = !m_measurements.isEmpty(),
                                    .missing = found.missing,
                                    .curves = m_curves.all()}));
    if (!isSame || wasFitted) {
        m_view->fit();
    }
    m_view->drawNow();
}

void PlotTab::paintCurves()
{
    m_curves.paint(m_snapshot->configuration().colors,
                   m_chooser->of(Y1).quantity().has_value() && m_chooser->of(Y2).quantity().has_value());
}

void PlotTab::showReadout(const QPointF& pixel)
{
    m_isReadOut = true;
    sayBelow(m_curves.readout(pixel, m_chooser->units(), m_measurements.size() > 1));
}

/// Says instead which curves are not drawn as a whole.
void PlotTab::endReadout()
{
    m_isReadOut = false;
    sayBelow(m_curves.sampledText());
}

void PlotTab::sayBelow(const QString& text)
{
    m_readout->setToolTip(text);
    m_readout->setText(m_readout->fontMetrics().elidedText(text, Qt::ElideRight, m_readout->width()));
}

void PlotTab::askAndExport()
{
    const QString path = askExportPath(this, tr("Export the plot"));
    if (path.isEmpty()) {
        return;
    }
    QString error;
    if (!exportTo(path, error)) {
        QMessageBox::warning(this, tr("Export the plot"), error);
    }
}

void PlotTab::changeRendering()
{
    RenderingDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted && m_snapshot) {
        paintCurves();
        m_view->drawNow();
    }
}

void PlotTab::changeEvent(QEvent* event)
{
    Tab::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_snapshot) {
        paintCurves();
        m_view->replot(QCustomPlot::rpQueuedReplot);
    }
}

} // namespace cluiedit
