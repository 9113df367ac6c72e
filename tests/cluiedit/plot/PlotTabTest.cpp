#include <cluiedit/plot/CurveColors.h>
#include <cluiedit/plot/PlotTab.h>
#include <cluiedit/plot/RenderingDialog.h>
#include <cluiedit/tabs/ColorVision.h>

#include <batterydata/RawDataCollection.h>
#include <config/SettingsKeys.h>
#include <config/UIFilteredUnits.h>
#include <datastorage/Converter.h>
#include <support/DocumentMutator.h>
#include <support/QtPrinters.h>

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QSettings>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace cluiedit;

using cl::datastorage::Converter;

namespace {

const auto Potentiostat = u"Potentiostat"_s;
const auto TestTime = u"Test Time / s"_s;
const auto Voltage = u"Voltage / V"_s;
const auto Current = u"Current / A"_s;
const auto Temperature = u"Surface Temperature / degC"_s;

QByteArray shippedText()
{
    QFile file(QString::fromUtf8(SHIPPED_DATA_DIRECTORY "/UIConfig.json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

std::shared_ptr<const Snapshot> snapshotOf(const QJsonObject& root)
{
    return makeSnapshot(QJsonDocument(root).toJson(), u"UIConfig.json"_s);
}

const std::shared_ptr<const Snapshot>& shipped()
{
    static const auto snapshot = makeSnapshot(shippedText(), u"UIConfig.json"_s);
    return snapshot;
}

/// A hundred rows of time, voltage and current.
Measurement cell(const QString& name = u"cell.bdf.csv"_s)
{
    std::vector<double> time;
    std::vector<double> voltage;
    std::vector<double> current;
    for (int i = 0; i < 100; ++i) {
        time.push_back(i);
        voltage.push_back(3 + 0.01 * i);
        current.push_back(i < 50 ? 1 : -1);
    }
    Measurement measurement(name);
    measurement.add({TestTime, Potentiostat}, std::move(time));
    measurement.add({Voltage, Potentiostat}, std::move(voltage));
    measurement.add({Current, Potentiostat}, std::move(current));
    return measurement;
}

std::shared_ptr<const Measurement> shared(Measurement measurement)
{
    return std::make_shared<const Measurement>(std::move(measurement));
}

QStringList items(const QComboBox& box)
{
    QStringList result;
    for (int i = 0; i < box.count(); ++i) {
        result.append(box.itemText(i));
    }
    return result;
}

class PlotTabTest : public testing::Test
{
protected:
    PlotTabTest()
    {
        tab.resize(640, 700);
        tab.show();
        tab.setMeasurements({shared(cell())});
        tab.present(shipped());
        QTest::qWait(1);
    }

    QComboBox& box(const QString& name) { return *tab.findChild<QComboBox*>(name); }
    QCheckBox& check(const QString& name) { return *tab.findChild<QCheckBox*>(name); }
    QString readout() { return tab.findChild<QLabel*>(u"readout"_s)->text(); }
    PlotView& view() { return tab.view(); }

    /// As somebody does who goes there by keyboard.
    void choose(const QString& name, const QString& text)
    {
        QComboBox& chooser = box(name);
        const int index = chooser.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
        ASSERT_GE(index, 0) << text.toStdString();
        if (index > 0) {
            chooser.setCurrentIndex(index - 1);
            QTest::keyClick(&chooser, Qt::Key_Down);
        } else {
            chooser.setCurrentIndex(1);
            QTest::keyClick(&chooser, Qt::Key_Up);
        }
        ASSERT_EQ(chooser.currentText(), text);
    }

    QPointF middle() { return QRectF(view().axisRect()->rect()).center(); }

    PlotTab tab;
};

void expectChoosersOf(PlotTab& tab, const Snapshot& snapshot)
{
    const auto& representations = snapshot.configuration().representations;
    const auto* chooser = tab.findChild<QComboBox*>(u"representation"_s);
    const auto* model = qobject_cast<const QStandardItemModel*>(chooser->model());
    ASSERT_GE(chooser->count(), representations.size());
    for (int i = 0; i < representations.size(); ++i) {
        EXPECT_EQ(chooser->itemText(i), representations.at(i).name());
        const bool isValid = snapshot.axes().isRepresentationValid(&representations.at(i));
        EXPECT_EQ(model->item(i)->isEnabled(), isValid);
        EXPECT_TRUE(isValid || model->item(i)->toolTip().contains(representations.at(i).x()));
    }
    EXPECT_EQ(items(*tab.findChild<QComboBox*>(u"x"_s)), QStringList(snapshot.axes().getXAxesNames()));
    for (const QString& x : snapshot.axes().getXAxesNames()) {
        const QStringList ys = snapshot.axes().getYAxesNames(x);
        tab.plot(x, ys.value(0));
        for (const QString& name : {u"y1"_s, u"y2"_s}) {
            ASSERT_EQ(items(*tab.findChild<QComboBox*>(name)), QStringList(u"(none)"_s) + ys);
        }
        EXPECT_EQ(tab.findChild<QComboBox*>(u"y1"_s)->currentText(), ys.value(0));
        const AxesCombination combination = snapshot.axes().getAxesCombination(x, ys.value(0));
        const auto quantity = quantityOf(combination.getConfigX());
        if (quantity) {
            QStringList units;
            for (const auto& unit : UIFilteredUnits::getFilteredUnits(quantity->parameter)) {
                units.append(Converter::toString(unit));
            }
            const auto* unitBox = tab.findChild<QComboBox*>(u"xUnit"_s);
            const QString own = Converter::toString(quantity->unit);
            if (!own.isEmpty()) {
                EXPECT_EQ(items(*unitBox), units.contains(own) ? units : QStringList(own) + units);
                EXPECT_EQ(unitBox->currentText(), own);
            }
        }
    }
}

} // namespace

TEST_F(PlotTabTest, OffersWhatTheShippedDocumentHas)
{
    expectChoosersOf(tab, *shipped());
}

TEST_F(PlotTabTest, OffersWhatAnyDocumentHas)
{
    const QJsonObject root = shipped()->root();
    const QJsonArray combinations = root.value(u"Axes combinations"_s).toArray();
    const QJsonArray representations = root.value(u"Representations"_s).toArray();
    Random random(4711);
    DocumentMutator mutator(4711, {TestTime, Voltage, Current, u"LOGARITHMIC"_s, u"TRUE"_s, Potentiostat});
    const auto some = [&](const QJsonArray& all) {
        QJsonArray result;
        for (int i = random.below(12); i > 0; --i) {
            const QJsonValue entry = all.at(random.below(all.size()));
            result.append(random.oneIn(4) ? mutator.mutated(entry) : entry);
        }
        return result;
    };
    int loaded = 0;
    for (int round = 0; round < 150; ++round) {
        QJsonObject changed = root;
        changed.insert(u"Axes combinations"_s, some(combinations));
        changed.insert(u"Representations"_s, some(representations));
        const auto snapshot = snapshotOf(changed);
        if (snapshot->loads()) {
            ++loaded;
            tab.present(snapshot);
            expectChoosersOf(tab, *snapshot);
        }
    }
    EXPECT_GT(loaded, 20);
}

TEST_F(PlotTabTest, StartsWithTheDefaultRepresentation)
{
    EXPECT_EQ(box(u"representation"_s).currentText(), u"Voltage and current over time"_s);
    EXPECT_EQ(box(u"x"_s).currentText(), TestTime);
    EXPECT_EQ(box(u"y1"_s).currentText(), Voltage);
    EXPECT_EQ(box(u"y2"_s).currentText(), Current);
    ASSERT_EQ(view().graphs().size(), 2);
    EXPECT_EQ(view().xAxis->label(), TestTime);
    EXPECT_TRUE(view().yAxis2->visible());
    EXPECT_TRUE(view().legend->visible());
    EXPECT_NE(view().graphs().at(0)->pen().style(), view().graphs().at(1)->pen().style());
    EXPECT_TRUE(view().notices().isEmpty());
    EXPECT_TRUE(view().xAxis->range().contains(0) && view().xAxis->range().contains(99));
    EXPECT_FALSE(view().xAxis->range().contains(110));
}

TEST_F(PlotTabTest, AnAxisChosenByHandIsAnOwnChoiceUnlessARepresentationHasIt)
{
    choose(u"y2"_s, u"(none)"_s);
    EXPECT_EQ(box(u"representation"_s).currentText(), u"(own choice)"_s);
    EXPECT_EQ(view().graphs().size(), 1);
    EXPECT_FALSE(view().yAxis2->visible());
    EXPECT_FALSE(view().legend->visible());
    choose(u"y2"_s, Current);
    EXPECT_EQ(box(u"representation"_s).currentText(), u"Voltage and current over time"_s);
    EXPECT_FALSE(items(box(u"representation"_s)).contains(u"(own choice)"_s));
}

TEST_F(PlotTabTest, ARepresentationSetsItsAxesAndTheirScales)
{
    choose(u"representation"_s, u"Bode plot"_s);
    EXPECT_EQ(box(u"x"_s).currentText(), u"Frequency / Hz"_s);
    EXPECT_EQ(box(u"y2"_s).currentText(), u"Phase / deg"_s);
    EXPECT_EQ(view().xAxis->scaleType(), QCPAxis::stLogarithmic);
    EXPECT_EQ(view().yAxis->scaleType(), QCPAxis::stLogarithmic);
    EXPECT_TRUE(check(u"xLogarithmic"_s).isChecked());
    EXPECT_EQ(view().yAxis2->scaleType() == QCPAxis::stLogarithmic, check(u"y2Logarithmic"_s).isChecked());
    QTest::mouseClick(&check(u"xLogarithmic"_s), Qt::LeftButton, {}, QPoint(8, check(u"xLogarithmic"_s).height() / 2));
    EXPECT_EQ(view().xAxis->scaleType(), QCPAxis::stLinear);
    // The plot says what the cell lacks, and draws nothing.
    EXPECT_TRUE(view().graphs().isEmpty());
    EXPECT_THAT(view().notices(),
                testing::Contains(u"cell.bdf.csv has no Frequency / Hz and no Absolute Impedance / ohm"_s));
}

TEST_F(PlotTabTest, SaysWhatAMeasurementLacks)
{
    tab.plot(TestTime, Voltage, Temperature);
    EXPECT_EQ(view().graphs().size(), 1);
    EXPECT_EQ(view().notices(), QStringList{u"cell.bdf.csv has no Surface Temperature / degC"_s});
    tab.setMeasurements({});
    EXPECT_EQ(view().notices(), QStringList{u"There are no measurements to plot."_s});
}

TEST_F(PlotTabTest, SaysWhichNamesNeitherTheCatalogueNorTheDocumentHas)
{
    tab.plot(TestTime, u"Voltage / kV"_s);
    EXPECT_THAT(view().notices(), testing::Contains(u"The catalogue has no data array “Voltage / kV”."_s));
    tab.plot(u""_s, Voltage);
    tab.plot(u"Tset Time / s"_s, Voltage);
    EXPECT_THAT(view().notices(), testing::Contains(u"The catalogue has no data array “Tset Time / s”."_s));
    tab.plot(TestTime, u"State of Health / %"_s);
    EXPECT_FALSE(view().notices().isEmpty());
    EXPECT_TRUE(view().graphs().isEmpty());
    tab.plot(TestTime, Voltage);
    EXPECT_TRUE(view().notices().isEmpty());
}

TEST_F(PlotTabTest, ShowsValuesInTheUnitThatIsChosen)
{
    tab.plot(TestTime, Voltage);
    choose(u"y1Unit"_s, u"mV"_s);
    EXPECT_EQ(view().yAxis->label(), u"Voltage / mV"_s);
    EXPECT_NEAR(view().yAxis->range().center(), 3495, 1);
    ASSERT_EQ(view().graphs().size(), 1);
    EXPECT_DOUBLE_EQ(view().graphs().at(0)->scaleY().shown(3), 3000);
    choose(u"xUnit"_s, u"min"_s);
    EXPECT_EQ(view().xAxis->label(), u"Test Time / min"_s);
    EXPECT_NEAR(view().xAxis->range().center(), 99.0 / 120, 1e-6);
    // The zoom stays where it is, in the new unit.
    view().xAxis->setRange(0.5, 1);
    choose(u"xUnit"_s, u"s"_s);
    EXPECT_NEAR(view().xAxis->range().lower, 30, 1e-9);
    EXPECT_NEAR(view().xAxis->range().upper, 60, 1e-9);
}

TEST_F(PlotTabTest, ConvertsTemperaturesWithTheirZeroPoints)
{
    Measurement warm = cell();
    warm.add({Temperature, Potentiostat}, std::vector<double>(100, 25));
    tab.setMeasurements({shared(std::move(warm))});
    tab.plot(TestTime, Temperature);
    choose(u"y1Unit"_s, u"K"_s);
    EXPECT_EQ(view().yAxis->label(), u"Surface Temperature / K"_s);
    EXPECT_NEAR(view().yAxis->range().center(), 298.15, 1e-6);
    QTest::mouseMove(&view(), middle().toPoint());
    QTest::qWait(1);
    EXPECT_THAT(readout().toStdString(), testing::HasSubstr("298.15 K"));
}

TEST_F(PlotTabTest, LabelsHaveTheNameOnceAndTheUnitOnce)
{
    const auto text = [](const QString& name, const QString& category) {
        const auto quantity = quantityOf({name, category});
        return quantity ? label(*quantity, quantity->unit) : QString();
    };
    EXPECT_EQ(text(Voltage, Potentiostat), Voltage);
    EXPECT_EQ(text(Temperature, Potentiostat), u"Surface Temperature / °C"_s);
    EXPECT_EQ(text(u"Cycle Count / 1"_s, Potentiostat), u"Cycle Count"_s);
    EXPECT_EQ(text(u"Step ID"_s, Potentiostat), u"Step ID"_s);
    EXPECT_EQ(text(u"dQ/dU / Ah/V"_s, u"dQ/dU"_s), u"dQ/dU / Ah/V"_s);
    EXPECT_EQ(text(u"Areal Resistance / ohm cm2"_s, u"Cycle"_s), u"Areal Resistance / Ω·cm²"_s);
    EXPECT_EQ(text(u"Phase / deg"_s, u"Impedance"_s), u"Phase / °"_s);
    const auto& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    for (const auto* array : catalogue.getAll()) { // no unit stands twice
        const auto quantity = quantityOf(*array);
        ASSERT_TRUE(quantity);
        if (array->getName().contains(u" / "_s)) {
            EXPECT_FALSE(nameWithoutUnit(*quantity).contains(u" / "_s)) << array->getName().toStdString();
        }
    }
}

TEST_F(PlotTabTest, LogarithmicAxesLeaveOutWhatIsNotAboveZeroAndSaySo)
{
    tab.plot(TestTime, Current);
    QTest::keyClick(&check(u"y1Logarithmic"_s), Qt::Key_Space);
    EXPECT_EQ(view().yAxis->scaleType(), QCPAxis::stLogarithmic);
    ASSERT_EQ(view().notices().size(), 1);
    EXPECT_TRUE(view().notices().at(0).contains(u"50 points of Current are left out"_s));
    EXPECT_GT(view().yAxis->range().lower, 0);
    EXPECT_EQ(view().graphs().at(0)->points()->drawable(), std::size_t{50});
    QTest::keyClick(&check(u"y1Logarithmic"_s), Qt::Key_Space);
    EXPECT_TRUE(view().notices().isEmpty());
    EXPECT_TRUE(view().yAxis->range().contains(-1));
}

TEST_F(PlotTabTest, OrthonormalAxesHaveOneScale)
{
    Measurement impedance(u"eis.csv"_s);
    impedance.add({u"Real Impedance / ohm"_s, u"Impedance"_s}, {0, 1, 2});
    impedance.add({u"Negative Imaginary Impedance / ohm"_s, u"Impedance"_s}, {0, 5, 0});
    tab.setMeasurements({shared(std::move(impedance))});
    choose(u"representation"_s, u"Nyquist plot"_s);
    const auto scale = [&](const QCPAxis* axis) { return std::abs(axis->coordToPixel(1) - axis->coordToPixel(0)); };
    ASSERT_EQ(view().graphs().size(), 1);
    EXPECT_NEAR(scale(view().xAxis), scale(view().yAxis), 1e-6);
    EXPECT_TRUE(view().yAxis->range().contains(5));
    tab.resize(900, 500);
    QTest::qWait(1);
    EXPECT_NEAR(scale(view().xAxis), scale(view().yAxis), 1e-6);
    QTest::keyClick(&view(), Qt::Key_Plus);
    EXPECT_NEAR(scale(view().xAxis), scale(view().yAxis), 1e-6);
    choose(u"y1Unit"_s, u"mΩ"_s); // a thousand of which are as long as one
    EXPECT_NEAR(scale(view().xAxis), 1000 * scale(view().yAxis), 1e-6);
}

TEST_F(PlotTabTest, TakesTheFirstCategoryOfWhichAMeasurementHasBothArrays)
{
    // Both categories have a pair of these names.
    QJsonObject root = shipped()->root();
    const auto reference = [](const QString& name, const QString& category) {
        return QJsonObject{{u"Name"_s, name}, {u"Category"_s, category}};
    };
    QJsonArray combinations;
    for (const QString& category : {Potentiostat, u"Impedance"_s}) {
        combinations.append(QJsonObject{{u"X"_s, QJsonArray{reference(TestTime, category)}},
                                        {u"Y1/Y2"_s, QJsonArray{reference(Voltage, category)}},
                                        {u"DEFAULT_SCALE_X"_s, u"LINEAR"_s},
                                        {u"DEFAULT_SCALE_Y"_s, category == Potentiostat ? u"LINEAR"_s : u"LOG"_s},
                                        {u"ORTHONORMAL_AXIS"_s, u"FALSE"_s}});
    }
    root.insert(u"Axes combinations"_s, combinations);
    Measurement mixed(u"mixed.csv"_s);
    mixed.add({TestTime, Potentiostat}, {0, 1});
    mixed.add({Voltage, u"Impedance"_s}, {7, 8, 9});
    mixed.add({TestTime, u"Impedance"_s}, {4, 5, 6});
    tab.setMeasurements({shared(std::move(mixed))});
    tab.present(snapshotOf(root));
    tab.plot(TestTime, Voltage);
    ASSERT_EQ(view().graphs().size(), 1);
    EXPECT_EQ(view().graphs().at(0)->points()->size(), std::size_t{3});
    EXPECT_DOUBLE_EQ(view().graphs().at(0)->points()->y(0), 7);
    EXPECT_EQ(view().yAxis->scaleType(), QCPAxis::stLogarithmic);
}

TEST_F(PlotTabTest, ZoomAndChoiceStayWhileTheDocumentChangesElsewhere)
{
    tab.plot(TestTime, Voltage);
    view().xAxis->setRange(10, 20);
    const auto points = view().graphs().at(0)->points();
    QJsonObject root = shipped()->root();
    root.insert(u"Filters"_s, QJsonObject{});
    tab.present(snapshotOf(root));
    QJsonArray representations = root.value(u"Representations"_s).toArray();
    representations.removeLast();
    root.insert(u"Representations"_s, representations);
    tab.present(snapshotOf(root));
    EXPECT_EQ(box(u"representation"_s).currentText(), u"(own choice)"_s);
    EXPECT_EQ(box(u"y1"_s).currentText(), Voltage);
    EXPECT_EQ(view().xAxis->range(), QCPRange(10, 20));
    EXPECT_EQ(view().graphs().at(0)->points(), points);
}

TEST_F(PlotTabTest, ARepresentationThatIsChosenFollowsTheDocument)
{
    choose(u"representation"_s, u"Voltage and temperature over time"_s);
    QJsonObject root = shipped()->root();
    QJsonArray representations = root.value(u"Representations"_s).toArray();
    QJsonObject second = representations.at(1).toObject();
    second.insert(u"Y1"_s, Current);
    representations.replace(1, second);
    root.insert(u"Representations"_s, representations);
    tab.present(snapshotOf(root));
    EXPECT_EQ(box(u"representation"_s).currentText(), u"Voltage and temperature over time"_s);
    EXPECT_EQ(box(u"y1"_s).currentText(), Current);
}

TEST_F(PlotTabTest, ComesBackToAChoiceThatTheDocumentLackedForAWhile)
{
    tab.plot(TestTime, Voltage);
    QJsonObject root = shipped()->root();
    root.insert(u"Axes combinations"_s, QJsonArray());
    tab.present(snapshotOf(root));
    EXPECT_TRUE(view().graphs().isEmpty());
    EXPECT_EQ(view().notices(), QStringList{u"No axes combination of the document has “Test Time / s” as X."_s});
    tab.present(shipped());
    EXPECT_EQ(box(u"y1"_s).currentText(), Voltage);
    EXPECT_EQ(view().graphs().size(), 1);
    EXPECT_TRUE(view().notices().isEmpty());
}

TEST_F(PlotTabTest, CurvesHaveTheColoursOfTheDocument)
{
    EXPECT_EQ(view().graphs().at(0)->pen().color(), QColor(0, 114, 178)); // Curve 01: Blue
    EXPECT_EQ(view().graphs().at(1)->pen().color(), QColor(213, 94, 0)); // Curve 02: Vermillion
    QJsonObject root = shipped()->root();
    root.insert(u"Colors"_s,
                QJsonObject{{u"Custom colors"_s,
                             QJsonArray{QJsonObject{{u"name"_s, u"White"_s}, {u"RGB"_s, QJsonArray{255, 255, 255}}},
                                        QJsonObject{{u"name"_s, u"Teal"_s}, {u"RGB"_s, QJsonArray{0, 128, 128}}}}},
                            {u"Default colors"_s, QJsonObject{}}});
    tab.present(snapshotOf(root));
    EXPECT_EQ(view().graphs().at(0)->pen().color(), QColor(0, 128, 128));
    EXPECT_EQ(view().graphs().at(1)->pen().color(), QColor(0, 128, 128));
}

TEST(CurveColors, AreNeverThoseOfTheGround)
{
    uiconfig::Colors colors;
    for (int i = 0; i < 256; i += 5) {
        colors.custom.append({QString::number(i), QColor(i, i, i)});
    }
    colors.defaults = {{u"Curve 01"_s, u"0"_s}, {u"Curve 02"_s, u"255"_s}, {u"Curve 03"_s, u"none"_s}};
    for (const auto& [ground, text] :
         {std::pair(QColor(Qt::white), QColor(Qt::black)), std::pair(QColor(30, 30, 30), QColor(Qt::white))}) {
        const auto all = curveColors(colors, 100, ground, text);
        ASSERT_EQ(all.size(), 100);
        for (const QColor& color : all) {
            EXPECT_GE(contrast(color, ground), 1.5);
        }
    }
    EXPECT_EQ(curveColors({}, 2, Qt::white, Qt::black), QList<QColor>(2, Qt::black));
}

TEST_F(PlotTabTest, KeysZoomMoveAndShowAll)
{
    tab.plot(TestTime, Voltage);
    const QCPRange all = view().xAxis->range();
    const QCPRange ys = view().yAxis->range();
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Plus);
    EXPECT_LT(view().xAxis->range().size(), all.size());
    QTest::keyClick(&view(), Qt::Key_Right);
    EXPECT_GT(view().xAxis->range().center(), all.center());
    QTest::keyClick(&view(), Qt::Key_Up);
    EXPECT_GT(view().yAxis->range().center(), ys.center());
    for (const auto key : {Qt::Key_Left, Qt::Key_Down, Qt::Key_Minus}) {
        QTest::keyClick(&view(), key);
    }
    EXPECT_NEAR(view().xAxis->range().lower, all.lower, 1e-9);
    QTest::keyClick(&view(), Qt::Key_Minus);
    QTest::keyClick(&view(), Qt::Key_Home);
    EXPECT_EQ(view().xAxis->range(), all);
    EXPECT_EQ(view().yAxis->range(), ys);
    for (int i = 0; i < 300; ++i) { // neither way has an end that hurts
        QTest::keyClick(&view(), Qt::Key_Plus);
    }
    EXPECT_GT(view().xAxis->range().size(), 0);
    for (int i = 0; i < 600; ++i) {
        QTest::keyClick(&view(), Qt::Key_Minus);
    }
    QTest::keyClick(&view(), Qt::Key_Home);
    EXPECT_EQ(view().xAxis->range(), all);
}

TEST_F(PlotTabTest, TheMouseMovesZoomsAndShowsAll)
{
    tab.plot(TestTime, Voltage);
    const QCPRange all = view().xAxis->range();
    const QPoint from = middle().toPoint();
    const auto drag = [&](const QPoint& to, Qt::KeyboardModifiers modifiers) {
        QTest::mousePress(&view(), Qt::LeftButton, modifiers, from);
        QMouseEvent move(QEvent::MouseMove, to, view().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, modifiers);
        QApplication::sendEvent(&view(), &move);
        QTest::mouseRelease(&view(), Qt::LeftButton, modifiers, to);
    };
    drag(from + QPoint(50, 0), Qt::NoModifier);
    EXPECT_LT(view().xAxis->range().center(), all.center());
    EXPECT_NEAR(view().xAxis->range().size(), all.size(), 1e-9);
    QTest::mouseDClick(&view(), Qt::LeftButton, {}, from);
    EXPECT_EQ(view().xAxis->range(), all);
    drag(from + QPoint(60, 60), Qt::ShiftModifier);
    EXPECT_LT(view().xAxis->range().size(), all.size() / 3);
    QTest::keyClick(&view(), Qt::Key_Home);
    QWheelEvent wheel(from, view().mapToGlobal(from), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view(), &wheel);
    EXPECT_LT(view().xAxis->range().size(), all.size());
}

TEST_F(PlotTabTest, ReadsOutTheNearestPoint)
{
    tab.plot(TestTime, Voltage, Current);
    const double x = view().xAxis->coordToPixel(42.3);
    QTest::mouseMove(&view(), QPointF(x, middle().y()).toPoint());
    QTest::qWait(1);
    EXPECT_EQ(readout(), u"Voltage 3.42 V at 42 s; Current 1 A at 42 s"_s);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&view(), &leave);
    EXPECT_EQ(readout(), QString());
    QTest::keyClick(&view(), Qt::Key_Left, Qt::ControlModifier);
    EXPECT_TRUE(readout().startsWith(u"Voltage 3.4"_s) && readout().endsWith(u" s"_s));
    const QString before = readout();
    QTest::keyClick(&view(), Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(&view(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_NE(readout(), before);
    tab.setMeasurements({shared(cell()), shared(cell(u"other.csv"_s))});
    QTest::mouseMove(&view(), QPointF(x + 3, middle().y()).toPoint());
    QTest::qWait(1);
    EXPECT_TRUE(tab.findChild<QLabel*>(u"readout"_s)->toolTip().contains(u"other.csv: Current 1 A at 4"_s));
}

TEST_F(PlotTabTest, SaysWhenACurveIsNotDrawnAsAWhole)
{
    constexpr int Points = 300'000;
    Measurement cyclic(u"cv.csv"_s);
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 0; i < Points; ++i) {
        x.push_back(std::cos(i * 0.01));
        y.push_back(std::sin(i * 0.01) + i * 1e-6);
    }
    cyclic.add({TestTime, Potentiostat}, std::move(x));
    cyclic.add({Voltage, Potentiostat}, std::move(y));
    tab.setMeasurements({shared(std::move(cyclic))});
    tab.plot(TestTime, Voltage);
    EXPECT_EQ(readout(), u"Too many points: only parts and the extremes are drawn of cv.csv."_s);
    view().xAxis->setRange(0.1, 0.1001);
    view().drawNow();
    EXPECT_EQ(readout(), QString());
}

TEST_F(PlotTabTest, ExportsPicturesInEachFormat)
{
    const QTemporaryDir directory;
    const auto contents = [&](const QString& name) {
        QString error;
        EXPECT_TRUE(tab.exportTo(directory.filePath(name), error)) << error.toStdString();
        QFile file(directory.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QImage png = QImage::fromData(contents(u"plot.png"_s), "PNG");
    EXPECT_EQ(png.size(), 2 * view().size());
    EXPECT_GT(png.colorCount() + png.depth(), 8);
    const QByteArray svg = contents(u"plot.SVG"_s);
    EXPECT_TRUE(svg.contains("<svg") && svg.contains("Voltage / V") && svg.contains("#0072b2"));
    const QByteArray pdf = contents(u"plot.pdf"_s);
    EXPECT_TRUE(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
    EXPECT_EQ(view().viewport().size(), view().size());

    QString error;
    EXPECT_FALSE(tab.exportTo(directory.filePath(u"plot.bmp"_s), error));
    EXPECT_TRUE(error.contains(u".svg"_s));
    EXPECT_FALSE(tab.exportTo(directory.filePath(u"nowhere/plot.png"_s), error));
    EXPECT_TRUE(error.contains(u"nowhere"_s));
    EXPECT_FALSE(tab.exportTo(QString(), error));
}

TEST_F(PlotTabTest, CopiesThePicture)
{
    const auto actions = view().actions();
    const auto copy = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
        return action->shortcut() == QKeySequence(QKeySequence::Copy);
    });
    ASSERT_NE(copy, actions.end());
    (*copy)->trigger();
    EXPECT_EQ(QApplication::clipboard()->pixmap().size(), view().size());
}

TEST_F(PlotTabTest, RenderingIsKeptAndUsed)
{
    RenderingDialog dialog;
    dialog.show();
    const auto field = [&](const QString& name) { return dialog.findChild<QSpinBox*>(name); };
    field(u"lineWidth"_s)->setValue(3);
    field(u"mostMarkers"_s)->setValue(20);
    field(u"most"_s)->setValue(600);
    field(u"target"_s)->setValue(5000); // more than the most, which holds
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(QSettings().value(settingskeys::LineWidth).toInt(), 3);
    EXPECT_EQ(QSettings().value(settingskeys::MaxNumberPointsInput).toUInt(), 600U);
    EXPECT_EQ(QSettings().value(settingskeys::TargetNumberPointsInput).toUInt(), 600U);

    tab.plot(TestTime, Voltage);
    QJsonObject root = shipped()->root();
    root.insert(u"Representations"_s, QJsonArray());
    tab.present(snapshotOf(root));
    EXPECT_EQ(view().graphs().at(0)->pen().width(), 3);
    EXPECT_FALSE(view().graphs().at(0)->hasMarkers(view().graphs().at(0)->picks()));
    view().xAxis->setRange(10.5, 20.5);
    EXPECT_TRUE(view().graphs().at(0)->hasMarkers(view().graphs().at(0)->picks()));

    RenderingDialog again;
    EXPECT_EQ(again.configuration().maxNumberPointsInput, 600U);
    again.findChild<QSpinBox*>(u"lineWidth"_s)->setValue(9);
    again.reject();
    EXPECT_EQ(QSettings().value(settingskeys::LineWidth).toInt(), 3);
}

TEST_F(PlotTabTest, FollowsThePalette)
{
    const auto ground = [&] { return view().grab().toImage().pixelColor(2, 2); };
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Text, Qt::white);
    tab.setPalette(dark);
    QTest::qWait(1);
    view().drawNow();
    EXPECT_EQ(ground(), QColor(20, 20, 20));
    EXPECT_EQ(view().xAxis->labelColor(), QColor(Qt::white));
}

TEST_F(PlotTabTest, BearsStrangeData)
{
    constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double Largest = std::numeric_limits<double>::max();
    const std::vector<std::pair<std::vector<double>, std::vector<double>>> curves{
        {{}, {}},
        {{NaN, NaN}, {NaN, NaN}},
        {{1}, {1}},
        {{0, 1, 2}, {-Largest, 0, Largest}},
        {{-Largest, Largest}, {1, 2}},
        {{0, 0, 0}, {5, 5, 5}},
        {{1, 2, 3}, {1}},
        {{1e-320, 2e-320}, {1e-320, 3e-320}},
        {{1e300, 1e300}, {std::numeric_limits<double>::infinity(), 1}}};
    for (const auto& [x, y] : curves) {
        Measurement strange(u"strange"_s);
        strange.add({TestTime, Potentiostat}, x);
        strange.add({Voltage, Potentiostat}, y);
        tab.setMeasurements({shared(std::move(strange))});
        tab.plot(TestTime, Voltage);
        for (const bool isLogarithmic : {true, false}) {
            QTest::keyClick(&check(u"y1Logarithmic"_s), Qt::Key_Space);
            EXPECT_EQ(check(u"y1Logarithmic"_s).isChecked(), isLogarithmic);
            QTest::keyClick(&check(u"xLogarithmic"_s), Qt::Key_Space);
            QTest::keyClick(&view(), Qt::Key_Plus);
            QTest::keyClick(&view(), Qt::Key_Left);
            QTest::mouseMove(&view(), middle().toPoint() + QPoint(isLogarithmic ? 3 : 0, 0));
            EXPECT_FALSE(view().grab().isNull());
            EXPECT_TRUE(std::isfinite(view().xAxis->range().size()));
        }
    }
}

TEST_F(PlotTabTest, NothingToDoTakesNoTime)
{
    QJsonObject root = shipped()->root();
    QElapsedTimer timer;
    double fastest = 1e9;
    for (int i = 0; i < 20; ++i) {
        root.insert(u"Debug"_s, QJsonObject{{u"number"_s, i}});
        const auto snapshot = snapshotOf(root);
        timer.start();
        tab.present(snapshot);
        fastest = std::min(fastest, static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    EXPECT_LT(fastest, 2);
}

TEST_F(PlotTabTest, EverythingIsVisibleAndReachedByTab)
{
    for (QWidget* widget : tab.findChildren<QWidget*>()) {
        if (widget->focusPolicy() & Qt::TabFocus && widget->isVisibleTo(&tab)) {
            EXPECT_TRUE(tab.rect().contains(QRect(widget->mapTo(&tab, QPoint()), widget->size())))
                << widget->objectName().toStdString();
        }
    }
    for (const QString& y2 : {Current, QString(), Current}) { // with a legend or without
        tab.plot(TestTime, Voltage, y2);
        EXPECT_EQ(view().legend->visible(), !y2.isEmpty());
        EXPECT_GT(view().axisRect()->width(), view().width() * 3 / 4);
        EXPECT_GT(view().axisRect()->height(), view().height() * 3 / 4);
    }
    tab.activateWindow();
    box(u"representation"_s).setFocus();
    QStringList order;
    for (int i = 0; i < 30 && !view().hasFocus(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        order.append(QApplication::focusWidget()->objectName());
    }
    EXPECT_TRUE(view().hasFocus());
    EXPECT_TRUE(order.indexOf(u"x"_s) < order.indexOf(u"xUnit"_s)
                && order.indexOf(u"xUnit"_s) < order.indexOf(u"y1"_s));
}
