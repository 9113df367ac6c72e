#include "PlotTab.h"

#include "CurveColors.h"
#include "Export.h"
#include "RenderingDialog.h"

#include <base/DocumentKeys.h>
#include <batterydata/RawDataCollection.h>
#include <config/UIConfig.h>
#include <datastorage/Converter.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QStandardItemModel>
#include <QToolButton>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

using cl::datastorage::Converter;
using cl::datastorage::UsualUnit;

namespace cluiedit {

namespace {

constexpr int OwnChoice = -2; // data of the item that stands for no representation

bool isKnown(const QString& array)
{
    const auto& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    return !catalogue.getConfigDataArrays(array).isEmpty();
}

const UIConfig::RenderingConfiguration& rendering()
{
    return lumo::tools::Singleton<UIConfig>::instance().getRenderingConfiguration();
}

QString valueText(double value, const UsualUnit& from, const UsualUnit& to)
{
    constexpr int Digits = 7;
    const double shown =
        from == to ? value : Converter::convert(value, from, to).value_or(std::numeric_limits<double>::quiet_NaN());
    const QString symbol = Converter::toString(to);
    QLocale locale; // as the axes have it
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString number = locale.toString(shown, 'g', Digits);
    return symbol.isEmpty() ? number : u"%1 %2"_s.arg(number, symbol);
}

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
    , m_representations(new QComboBox)
    , m_view(new PlotView)
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
    auto* controls = new QGridLayout;
    layout->addLayout(controls);
    makeControls(controls);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_readout);
    makeActions();
    connect(m_view, &PlotView::pointed, this, &PlotTab::showReadout);
    connect(m_view, &PlotView::left, this, &PlotTab::endReadout);
    connect(m_view, &QCustomPlot::afterReplot, this, [this] {
        if (!m_isReadOut) {
            endReadout();
        }
    });
}

void PlotTab::makeControls(QGridLayout* layout)
{
    layout->setColumnStretch(1, 1);
    const auto addLabel = [&](const QString& text, QWidget* buddy, int row) {
        auto* label = new QLabel(text);
        label->setBuddy(buddy);
        layout->addWidget(label, row, 0);
    };
    const auto narrow = [](QComboBox* box) { // names are long
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        constexpr int FewestLetters = 12;
        box->setMinimumContentsLength(FewestLetters);
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    };
    m_representations->setObjectName(u"representation"_s);
    narrow(m_representations);
    addLabel(tr("&Representation:"), m_representations, 0);
    layout->addWidget(m_representations, 0, 1, 1, 3);
    connect(m_representations, &QComboBox::activated, this, &PlotTab::chooseRepresentation);

    const std::array labels{tr("&X:"), tr("Y&1:"), tr("Y&2:")};
    const std::array names{u"x"_s, u"y1"_s, u"y2"_s};
    const std::array unitNames{tr("Unit of the X axis"), tr("Unit of the Y1 axis"), tr("Unit of the Y2 axis")};
    const std::array scaleNames{tr("Logarithmic X axis"), tr("Logarithmic Y1 axis"), tr("Logarithmic Y2 axis")};
    for (const Place place : Places) {
        Row& row = m_rows.at(place);
        row.array = new QComboBox;
        row.unit = new QComboBox;
        row.isLogarithmic = new QCheckBox(tr("Logarithmic"));
        row.array->setObjectName(names.at(place));
        row.unit->setObjectName(names.at(place) + u"Unit"_s);
        row.isLogarithmic->setObjectName(names.at(place) + u"Logarithmic"_s);
        row.unit->setAccessibleName(unitNames.at(place));
        row.unit->setToolTip(unitNames.at(place));
        row.isLogarithmic->setAccessibleName(scaleNames.at(place));
        row.isLogarithmic->setToolTip(scaleNames.at(place));
        narrow(row.array);
        row.unit->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        row.unit->setMinimumContentsLength(8);
        addLabel(labels.at(place), row.array, place + 1);
        layout->addWidget(row.array, place + 1, 1);
        layout->addWidget(row.unit, place + 1, 2);
        layout->addWidget(row.isLogarithmic, place + 1, 3);
        connect(row.array, &QComboBox::activated, this, [this, place] { chooseArray(place); });
        connect(row.unit, &QComboBox::activated, this, [this, place] { chooseUnit(place); });
        connect(row.isLogarithmic, &QCheckBox::clicked, this, [this, place] { chooseScale(place); });
    }
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
        m_view->draw();
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
        fillRepresentations();
        rebuild();
    } else if (hasChanged(uiconfig::keys::Colors)) {
        paintCurves();
        m_view->draw();
    }
}

void PlotTab::setMeasurements(const QList<std::shared_ptr<const Measurement>>& measurements)
{
    m_measurements = measurements;
    if (m_snapshot) {
        rebuild();
    }
}

void PlotTab::plot(const QString& x, const QString& y1, const QString& y2)
{
    m_wantedRepresentation.reset();
    m_wanted = {x, y1, y2};
    m_isChosen = true;
    if (m_snapshot) {
        rebuild();
    }
}

bool PlotTab::exportTo(const QString& path, QString& error)
{
    return exportPlot(*m_view, path, error);
}

void PlotTab::fillRepresentations()
{
    m_representations->clear();
    auto* model = qobject_cast<QStandardItemModel*>(m_representations->model());
    const auto& representations = m_snapshot->configuration().representations;
    for (qsizetype i = 0; i < representations.size(); ++i) {
        const ConfigRepresentation& each = representations.at(i);
        m_representations->addItem(each.name(), i);
        QStandardItem* item = model->item(static_cast<int>(i));
        if (m_snapshot->axes().isRepresentationValid(&each)) {
            item->setToolTip(each.category());
            continue;
        }
        item->setEnabled(false);
        item->setToolTip(
            each.y1().isEmpty() || each.y2().isEmpty()
                ? tr("No axes combination pairs “%1” with “%2”.")
                      .arg(each.x(), each.y1().isEmpty() ? each.y2() : each.y1())
                : tr("No axes combination pairs “%1” with “%2” or “%3”.").arg(each.x(), each.y1(), each.y2()));
    }
}

/// What is wanted by name, in terms of this document.
void PlotTab::resolve()
{
    const auto& representations = m_snapshot->configuration().representations;
    const auto take = [&](const auto& found) {
        if (found == representations.cend()) {
            return false;
        }
        m_wantedRepresentation = found->name();
        m_wanted = {found->x(), found->y1(), found->y2()};
        return true;
    };
    if (m_isChosen) {
        if (m_wantedRepresentation) { // and stays so when its axes change
            take(std::find_if(representations.cbegin(), representations.cend(),
                              [&](const auto& each) { return each.name() == *m_wantedRepresentation; }));
        }
        return;
    }
    const auto isDefault = [](const ConfigRepresentation& each) { return each.isDefault(); };
    const auto isValid = [&](const ConfigRepresentation& each) {
        return m_snapshot->axes().isRepresentationValid(&each);
    };
    if (take(std::find_if(representations.cbegin(), representations.cend(), isDefault))
        || take(std::find_if(representations.cbegin(), representations.cend(), isValid))) {
        return;
    }
    m_wantedRepresentation.reset();
    const QString x = m_snapshot->axes().getXAxesNames().value(0);
    m_wanted = {x, m_snapshot->axes().getYAxesNames(x).value(0), QString()};
}

/// Offers what the document has, and shows of it what is wanted.
void PlotTab::fillArrays()
{
    const QString& x = m_wanted.at(X);
    const QStringList ys = m_snapshot->axes().getYAxesNames(x);
    for (const Place place : Places) {
        QComboBox* chooser = m_rows.at(place).array;
        const QStringList names = place == X ? QStringList(m_snapshot->axes().getXAxesNames()) : ys;
        chooser->clear();
        if (place != X) {
            chooser->addItem(tr("(none)"), QString());
        }
        for (const QString& name : names) {
            chooser->addItem(name, name);
        }
        chooser->setCurrentIndex(
            chooser->findData(m_wanted.at(place), Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
        if (place != X && chooser->currentIndex() < 0) {
            chooser->setCurrentIndex(0);
        }
        chooser->setToolTip(chooser->currentText());
    }
    showRepresentation();
}

void PlotTab::showRepresentation()
{
    const auto& representations = m_snapshot->configuration().representations;
    const auto found = std::find_if(representations.cbegin(), representations.cend(), [&](const auto& each) {
        return m_wanted == Names{each.x(), each.y1(), each.y2()}
        && (!m_wantedRepresentation || each.name() == *m_wantedRepresentation);
    });
    const int own = m_representations->findData(OwnChoice);
    if (found != representations.cend()) {
        m_representations->removeItem(own);
        m_representations->setCurrentIndex(static_cast<int>(found - representations.cbegin()));
        return;
    }
    if (own < 0) {
        m_representations->addItem(tr("(own choice)"), OwnChoice);
    }
    m_representations->setCurrentIndex(m_representations->findData(OwnChoice));
}

void PlotTab::chooseRepresentation(int index)
{
    const int number = m_representations->itemData(index).toInt();
    if (number != OwnChoice && m_snapshot) {
        const ConfigRepresentation& chosen = m_snapshot->configuration().representations.at(number);
        m_wantedRepresentation = chosen.name();
        m_wanted = {chosen.x(), chosen.y1(), chosen.y2()};
        m_isChosen = true;
        rebuild();
    }
}

void PlotTab::chooseArray(Place place)
{
    if (!m_snapshot) {
        return;
    }
    m_wantedRepresentation.reset();
    m_wanted = shownNames();
    m_isChosen = true;
    if (place == X) { // keeps the Y axes that go with it, and one at least
        const QStringList ys = m_snapshot->axes().getYAxesNames(m_wanted.at(X));
        for (const Place y : {Y1, Y2}) {
            if (!ys.contains(m_wanted.at(y))) {
                m_wanted.at(y).clear();
            }
        }
        if (m_wanted.at(Y1).isEmpty() && m_wanted.at(Y2).isEmpty()) {
            m_wanted.at(Y1) = ys.value(0);
        }
    }
    rebuild();
}

PlotTab::Names PlotTab::shownNames() const
{
    Names names;
    for (const Place place : Places) {
        names.at(place) = m_rows.at(place).array->currentData().toString();
    }
    return names;
}

void PlotTab::rebuild()
{
    resolve();
    fillArrays();
    makeCurves();
}

/// The pair that gives a Y axis its scales. Invalid for none.
AxesCombination PlotTab::combination(Place y) const
{
    const Names names = shownNames();
    if (names.at(y).isEmpty()) {
        return {};
    }
    for (const auto& measurement : m_measurements) {
        if (const auto pair = pairOf(measurement, names.at(X), names.at(y))) {
            return pair->axes;
        }
    }
    return m_snapshot->axes().getAxesCombination(names.at(X), names.at(y));
}

std::optional<PlotTab::Pair> PlotTab::pairOf(const std::shared_ptr<const Measurement>& measurement, const QString& x,
                                             const QString& y) const
{
    const auto combinations = m_snapshot->axes().getAxesCombinations(x);
    for (const AxesCombination& each : combinations) {
        if (each.getConfigY().getName() != y) {
            continue;
        }
        const auto* xs = measurement->values(each.getConfigX());
        const auto* ys = measurement->values(each.getConfigY());
        if (xs != nullptr && ys != nullptr) {
            return Pair{each, Values(measurement, xs), Values(measurement, ys)};
        }
    }
    return std::nullopt;
}

UsualUnit PlotTab::shownUnit(Place place) const
{
    const Row& row = m_rows.at(place);
    return row.units.value(row.unit->currentIndex());
}

QCPAxis* PlotTab::axisOf(Place place) const
{
    return place == X ? m_view->xAxis : place == Y1 ? m_view->yAxis : m_view->yAxis2;
}

/// Gives the axis what the array is and its units.
void PlotTab::refill(Place place, const std::optional<Quantity>& quantity)
{
    Row& row = m_rows.at(place);
    const auto nameOf = [](const auto& of) { return of ? of->array.getName() : QString(); };
    if (nameOf(quantity) != nameOf(row.quantity)) {
        row.wantsLogarithmic.reset();
    }
    row.quantity = quantity;
    row.units = quantity ? unitsOf(*quantity) : QList<UsualUnit>();
    row.unit->clear();
    for (const UsualUnit& unit : std::as_const(row.units)) {
        const QString symbol = Converter::toString(unit);
        row.unit->addItem(symbol.isEmpty() ? tr("(no unit)") : symbol);
    }
    row.unit->setEnabled(row.units.size() > 1);
    row.isLogarithmic->setEnabled(quantity.has_value());
    if (quantity) {
        const UsualUnit wanted = m_wantedUnits.value(quantity->array.getName(), quantity->unit);
        const qsizetype index = row.units.indexOf(row.units.contains(wanted) ? wanted : quantity->unit);
        row.unit->setCurrentIndex(static_cast<int>(index));
    }
}

/// Scales and aspects as the pairs say, or as somebody chose.
void PlotTab::applyScales()
{
    std::array pairs{combination(Y1), combination(Y1), combination(Y2)};
    if (!pairs.at(X).isValid()) {
        pairs.at(X) = pairs.at(Y2);
    }
    PlotView::Aspects aspects;
    for (const Place place : Places) {
        Row& row = m_rows.at(place);
        AxesCombination& pair = pairs.at(place);
        const auto scale = place == X ? pair.getDefaultScaleX() : pair.getDefaultScaleY();
        const bool isLogarithmic = row.wantsLogarithmic.value_or(scale == QCPAxis::stLogarithmic);
        row.isLogarithmic->setChecked(isLogarithmic);
        m_view->setLogarithmic(axisOf(place), isLogarithmic);
        axisOf(place)->setLabel(row.quantity ? label(*row.quantity, shownUnit(place)) : QString());
        if (place != X && pair.isOrthonormal()) {
            const auto scaleOfUnits = unitScale(shownUnit(X), shownUnit(place));
            aspects.at(place - 1) = scaleOfUnits ? scaleOfUnits->factor : 1;
        }
    }
    m_view->setAspects(aspects);
    m_view->yAxis2->setVisible(m_rows.at(Y2).quantity.has_value());
    m_view->yAxis->setVisible(m_rows.at(Y1).quantity.has_value() || !m_view->yAxis2->visible());
}

void PlotTab::makeCurves()
{
    const Names names = shownNames();
    const bool wasFitted = m_view->isFitted();
    const bool isSame = std::exchange(m_plotted, names) == names;
    const AxesCombination first = combination(names.at(Y1).isEmpty() ? Y2 : Y1);
    refill(X, quantityOf(first.getConfigX()));
    for (const Place y : {Y1, Y2}) {
        refill(y, quantityOf(combination(y).getConfigY()));
    }
    applyScales();

    const std::vector<Curve> before = std::exchange(m_curves, {});
    m_missing.clear();
    for (const auto& measurement : m_measurements) {
        for (const Place place : {Y1, Y2}) {
            const QString& y = names.at(place);
            if (y.isEmpty() || names.at(X).isEmpty()) {
                continue;
            }
            const auto pair = pairOf(measurement, names.at(X), y);
            if (!pair) {
                const auto& combinations = m_snapshot->axes().getAxesCombinations(names.at(X));
                QStringList lacking;
                for (const QString& name : {names.at(X), y}) {
                    const bool hasIt = std::any_of(combinations.cbegin(), combinations.cend(), [&](const auto& each) {
                        return each.getConfigY().getName() == y
                            && measurement->values(name == y ? each.getConfigY() : each.getConfigX()) != nullptr;
                    });
                    if (!hasIt) {
                        lacking.append(name);
                    }
                }
                m_missing.append(
                    lacking.isEmpty()
                        ? tr("%1 has no %2 of the same category as %3").arg(measurement->name(), y, names.at(X))
                        : lacking.size() == 1 ? tr("%1 has no %2").arg(measurement->name(), lacking.constFirst())
                                              : tr("%1 has no %2 and no %3").arg(measurement->name(), names.at(X), y));
                continue;
            }
            const auto x = quantityOf(pair->axes.getConfigX());
            const auto value = quantityOf(pair->axes.getConfigY());
            if (!x || !value) {
                continue; // the catalogue has changed since the document was read
            }
            Curve curve{
                .name = measurement->name(), .place = place, .x = *x, .y = *value, .xs = pair->x, .ys = pair->y};
            makeGraph(curve, before);
            if (curve.graph != nullptr) {
                m_curves.push_back(curve);
            }
        }
    }
    QList<DenseGraph*> graphs;
    for (const Curve& curve : m_curves) {
        graphs.append(curve.graph);
    }
    m_view->setGraphs(graphs);
    m_missing.removeDuplicates();
    paintCurves();
    showNotices();
    if (!isSame || wasFitted) {
        m_view->fit();
    }
    m_view->draw();
}

/// A graph of the curve, or the one that there was before: its points are looked through only once.
void PlotTab::makeGraph(Curve& curve, const std::vector<Curve>& before)
{
    const auto scaleX = unitScale(curve.x.unit, shownUnit(X));
    const auto scaleY = unitScale(curve.y.unit, shownUnit(curve.place));
    if (!scaleX || !scaleY) {
        m_missing.append(tr("%1 has %2 in a unit that does not fit the axis")
                             .arg(curve.name, (scaleX ? curve.y : curve.x).array.getName()));
        return;
    }
    const auto floorOf = [&](Place place, const UnitScale& scale) {
        return m_rows.at(place).isLogarithmic->isChecked() ? scale.own(0) : Reduction::NoFloor;
    };
    const double floorX = floorOf(X, *scaleX);
    const double floorY = floorOf(curve.place, *scaleY);
    const auto same = std::find_if(before.begin(), before.end(), [&](const Curve& old) {
        return old.xs == curve.xs && old.ys == curve.ys && old.place == curve.place;
    });
    std::shared_ptr<const Reduction> points;
    if (same != before.end()) {
        curve.graph = same->graph;
        if (curve.graph->points()->hasFloors(floorX, floorY)) {
            points = curve.graph->points();
        }
    } else {
        curve.graph = new DenseGraph(m_view->xAxis, axisOf(curve.place)); // the view's
    }
    if (!points) {
        points = std::make_shared<Reduction>(curve.xs, curve.ys, floorX, floorY);
    }
    curve.graph->setPoints(std::move(points), *scaleX, *scaleY);
}

/// Colours, pens, and the legend.
void PlotTab::paintCurves()
{
    const auto& colors = m_snapshot->configuration().colors;
    const auto curveCount = static_cast<qsizetype>(m_curves.size());
    const QList<QColor> all = curveColors(colors, curveCount, m_view->palette().color(QPalette::Base),
                                          m_view->palette().color(QPalette::Text));
    const auto& look = rendering();
    constexpr std::size_t Legible = 12; // curves in a legend
    constexpr int WidestLine = 20;
    m_view->legend->clearItems();
    const bool hasBoth = m_rows.at(Y1).quantity && m_rows.at(Y2).quantity;
    const int room = m_view->roomInLegend();
    for (std::size_t i = 0; i < m_curves.size(); ++i) {
        const Curve& curve = m_curves[i];
        DenseGraph* graph = curve.graph;
        QPen pen(all.at(static_cast<qsizetype>(i)), std::clamp(look.lineWidth, 1, WidestLine));
        pen.setStyle(curve.place == Y1 ? Qt::SolidLine : Qt::DashLine);
        graph->setPen(pen);
        graph->setMarker(curve.place == Y1 ? QCPScatterStyle::ssDisc : QCPScatterStyle::ssTriangle);
        graph->setAmounts({.whole = look.minNumberPointsInput, .most = look.maxNumberPointsInput});
        graph->setTarget(look.targetNumberPointsInput);
        graph->setMostMarkers(look.markerVisibilityThresholdEnable
                                  ? static_cast<std::size_t>(std::max(look.markerVisibilityThresholdValue, 0))
                                  : std::numeric_limits<std::size_t>::max());
        const QString name = hasBoth ? tr("%1: %2").arg(curve.name, nameWithoutUnit(curve.y)) : curve.name;
        graph->setName(m_view->fontMetrics().elidedText(name, Qt::ElideMiddle, room));
        if (i < Legible && m_curves.size() > 1) {
            graph->addToLegend();
        }
    }
    m_view->setLegendShown(m_curves.size() > 1);
    m_view->setGridColor(defaultColor(colors, u"Grid"_s));
}

void PlotTab::showNotices()
{
    QStringList notices;
    const Names shown = shownNames();
    for (const Place place : Places) {
        const QString& name = m_wanted.at(place);
        if (name.isEmpty() || name == shown.at(place)) {
            continue;
        }
        if (!isKnown(name)) {
            notices.append(tr("The catalogue has no data array “%1”.").arg(name));
        } else if (place == X) {
            notices.append(tr("No axes combination of the document has “%1” as X.").arg(name));
        } else if (!shown.at(X).isEmpty()) {
            notices.append(tr("No axes combination of the document pairs “%1” with “%2”.").arg(m_wanted.at(X), name));
        }
    }
    if (m_measurements.isEmpty()) {
        notices.append(tr("There are no measurements to plot."));
    } else if (notices.isEmpty() && shown.at(Y1).isEmpty() && shown.at(Y2).isEmpty()) {
        notices.append(tr("Choose an array for Y1 or Y2."));
    }
    constexpr qsizetype MostNotices = 8;
    QStringList details = m_missing;
    for (const Curve& curve : m_curves) {
        const Reduction& points = *curve.graph->points();
        if (points.drawable() == 0 && points.belowFloor() == 0) {
            details.append(
                tr("%1 has no values of %2 over %3").arg(curve.name, curve.y.array.getName(), curve.x.array.getName()));
        } else if (points.belowFloor() > 0) {
            details.append(
                (points.drawable() == 0
                     ? tr(
                         "%1: none of the %2 points of %3 can be drawn on logarithmic axes, which show numbers above 0")
                     : tr("%1: %2 points of %3 are left out, as logarithmic axes show numbers above 0"))
                    .arg(curve.name, QString::number(points.belowFloor()), nameWithoutUnit(curve.y)));
        }
    }
    const qsizetype more = notices.size() + details.size() - MostNotices;
    notices += details;
    if (more > 0) {
        notices = notices.first(MostNotices);
        notices.append(tr("And %1 more of this kind.").arg(more));
    }
    m_view->setNotices(notices);
}

void PlotTab::chooseUnit(Place place)
{
    const Row& row = m_rows.at(place);
    if (!row.quantity) {
        return;
    }
    const UsualUnit unit = shownUnit(place);
    const UsualUnit before = m_wantedUnits.value(row.quantity->array.getName(), row.quantity->unit);
    m_wantedUnits.insert(row.quantity->array.getName(), unit);
    const bool wasFitted = m_view->isFitted();
    if (const auto scale = unitScale(before, unit)) { // the same part stays in view
        const QCPRange range = axisOf(place)->range();
        axisOf(place)->setRange(scale->shown(range.lower), scale->shown(range.upper));
    }
    makeCurves();
    if (wasFitted) {
        m_view->fit();
        m_view->draw();
    }
}

void PlotTab::chooseScale(Place place)
{
    Row& row = m_rows.at(place);
    row.wantsLogarithmic = row.isLogarithmic->isChecked();
    const bool wasFitted = m_view->isFitted();
    const bool fits = !*row.wantsLogarithmic || axisOf(place)->range().lower > 0;
    makeCurves();
    if (wasFitted || !fits) {
        m_view->fit();
        m_view->draw();
    }
}

void PlotTab::showReadout(const QPointF& pixel)
{
    QStringList parts;
    for (const Curve& curve : m_curves) {
        const std::size_t point = curve.graph->nearest(pixel);
        const Reduction& points = *curve.graph->points();
        if (point == points.size()) {
            continue;
        }
        const QString x = valueText(points.x(point), curve.x.unit, shownUnit(X));
        const QString y = valueText(points.y(point), curve.y.unit, shownUnit(curve.place));
        const QString name = nameWithoutUnit(curve.y);
        parts.append(m_measurements.size() > 1 ? tr("%1: %2 %3 at %4").arg(curve.name, name, y, x)
                                               : tr("%1 %2 at %3").arg(name, y, x));
    }
    m_isReadOut = true;
    sayBelow(parts.join(u"; "_s));
}

/// Says instead which curves are not drawn as a whole.
void PlotTab::endReadout()
{
    m_isReadOut = false;
    QStringList sampled;
    for (const Curve& curve : m_curves) {
        if (curve.graph->isSampled()) {
            sampled.append(curve.name);
        }
    }
    sampled.removeDuplicates();
    sayBelow(sampled.isEmpty()
                 ? QString()
                 : tr("Too many points: only parts and the extremes are drawn of %1.").arg(sampled.join(u", "_s)));
}

void PlotTab::sayBelow(const QString& text)
{
    m_readout->setToolTip(text);
    m_readout->setText(m_readout->fontMetrics().elidedText(text, Qt::ElideRight, m_readout->width()));
}

void PlotTab::askAndExport()
{
    UIConfig& preferences = lumo::tools::Singleton<UIConfig>::instance();
    const QString last = preferences.getLastDirectoryExport();
    QFileDialog dialog(this, tr("Export the plot"), last.isEmpty() ? preferences.getDefaultAppDirectory() : last,
                       exportFilters());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"png"_s);
    connect(&dialog, &QFileDialog::filterSelected, &dialog,
            [&dialog](const QString& filter) { dialog.setDefaultSuffix(filter.section(u"*."_s, 1).chopped(1)); });
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString path = dialog.selectedFiles().value(0);
    preferences.setLastDirectoryExport(QFileInfo(path).absolutePath());
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
        m_view->draw();
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
