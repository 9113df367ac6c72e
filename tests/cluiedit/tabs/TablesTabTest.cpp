// The tabs with tables show what documentTables() gives, and lead to the places that give it.

#include "Snapshots.h"

#include <cluiedit/tabs/RowPlaces.h>
#include <cluiedit/tabs/TableText.h>
#include <cluiedit/tabs/TablesTab.h>
#include <cluiedit/tabs/UnitsTab.h>

#include <check/Text.h>
#include <config/UIFilteredUnits.h>
#include <data/ShippedFile.h>
#include <datastorage/Converter.h>
#include <document/DocumentTables.h>
#include <document/UnitTables.h>
#include <support/QtPrinters.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;
using cluiconfig::Table;
using cluiedit::placeOfRow;
using cluiedit::Snapshot;
using cluiedit::TableModel;
using cluiedit::TablePanel;
using cluiedit::TablesTab;

namespace {

Table table(const QString& heading, const Snapshot& snapshot)
{
    return cluiconfig::documentTables(snapshot.configuration(), {heading}).constFirst();
}

/// What a view shows, row by row from top to bottom.
QList<QStringList> shown(const QAbstractItemModel& model)
{
    QList<QStringList> rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList& cells = rows.emplaceBack();
        for (int column = 0; column < model.columnCount(); ++column) {
            cells.append(model.index(row, column).data().toString());
        }
    }
    return rows;
}

QList<QStringList> texts(const Table& table)
{
    QList<QStringList> rows;
    for (const auto& row : table.rows) {
        QStringList& cells = rows.emplaceBack();
        for (const QJsonValue& value : row) {
            cells.append(cluiconfig::check::printable(cluiconfig::cellText(value)));
        }
    }
    return rows;
}

/// Whether \p value, at \p pointer, is what the reader of its section makes \p row of \p heading from.
bool gives(const QString& heading, const QJsonValue& value, const QString& pointer, const QList<QJsonValue>& row)
{
    const auto has = [&](const char* key, qsizetype column) {
        return value[QString::fromLatin1(key)].toString() == row.at(column).toString();
    };
    if (heading == u"Representations"_s) {
        return has("Name", 0) && has("X", 1) && has("Y1", 2) && has("Y2", 3) && has("Category", 4);
    }
    if (heading == u"Compound units"_s) {
        const auto known = Converter::getPhysicalParameterFromString(value[u"PhysicalParameter"_s].toString());
        return Converter::toString(known) == row.at(0).toString();
    }
    if (heading == u"Skipped tasks"_s) {
        return value.toString() == row.at(0).toString();
    }
    if (heading == u"Summary table columns"_s || heading == u"dQ/dU columns"_s) {
        return row.at(2).isNull() || value.toString() == row.at(2).toString();
    }
    if (heading == u"Palette"_s) {
        return has("name", 0);
    }
    if (heading == u"Default colours"_s) {
        return pointer.startsWith(u"/Colors/Default colors/"_s) && !value.isUndefined();
    }
    if (heading == u"Statistics graphs"_s || heading == u"Ragone plots"_s) {
        return value.isArray() || !value.isObject()
            || (has("Title", 1) && has("X", 2) && has("Y", 3) && has("Category", 4) && has("Type", 5));
    }
    if (heading == u"Processed-data graphs"_s) {
        return has("Title", 0) && has("X", 1) && has("Y1", 2) && has("Y2", 3) && has("Category", 4);
    }
    if (heading == u"Recipe entries"_s) {
        return has("UITitle", 1) && pointer.startsWith(u"/Recipe/"_s + row.at(0).toString());
    }
    if (heading == u"Process formulas"_s) {
        return has("Displayed Formula", 1) && has("Compiled Formula", 2);
    }
    if (heading == u"dQ/dU graph"_s) {
        return pointer == u"/dQ_dU"_s || (has("Title", 0) && has("X", 1) && has("Y1", 2) && has("Category", 3));
    }
    return heading == u"Debug switches"_s && (pointer == u"/Debug"_s || value.toBool() == row.at(1).toBool());
}

void expectPlaces(const Snapshot& snapshot)
{
    for (const Table& each : cluiconfig::documentTables(snapshot.configuration())) {
        if (each.name == u"Axes combinations"_s) {
            continue;
        }
        for (qsizetype row = 0; row < each.rows.size(); ++row) {
            const QString pointer = placeOfRow(each, row, snapshot.root());
            EXPECT_TRUE(gives(each.name, valueAt(snapshot.root(), pointer), pointer, each.rows.at(row)))
                << each.name.toStdString() << ' ' << row << ' ' << pointer.toStdString();
        }
    }
}

/// A tab on the screen with the shipped document.
template <typename TheTab>
struct Shown
{
    explicit Shown(TheTab* made)
        : tab(made)
    {
        tab->resize(640, 700);
        tab->present(snapshot);
        tab->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(tab.get()));
    }

    /// The widgets of the panel that is seen, of several the first.
    QTableView* view() const { return seen<QTableView>(); }
    QTableView* viewNamed(const QString& name) const
    {
        const auto views = tab->template findChildren<QTableView*>();
        const auto found = std::ranges::find(views, name, &QWidget::accessibleName);
        return found == views.end() ? nullptr : *found;
    }
    QLineEdit* filter() const { return seen<QLineEdit>(); }

    template <typename Widget>
    Widget* seen() const
    {
        for (auto* widget : tab->template findChildren<Widget*>()) {
            if (widget->isVisible()) {
                return widget;
            }
        }
        ADD_FAILURE() << "no such widget";
        return nullptr;
    }

    QString texts() const
    {
        QStringList texts;
        for (const auto* label : tab->template findChildren<QLabel*>()) {
            if (label->isVisible()) {
                texts.append(label->text());
            }
        }
        return texts.join(u'\n');
    }

    std::shared_ptr<const Snapshot> snapshot = shippedSnapshot();
    std::unique_ptr<TheTab> tab;
};

const QList<TablesTab* (*)(QWidget*)> Makers{cluiedit::makeColumnsTab, cluiedit::makeGraphsTab,
                                             cluiedit::makeRecipesTab, cluiedit::makeOtherTab};

void expectContent(TablesTab& tab, const Snapshot& snapshot)
{
    const auto panels = tab.findChildren<TablePanel*>();
    ASSERT_FALSE(panels.isEmpty());
    for (const TablePanel* panel : panels) {
        const QString heading = panel->table().name;
        const auto* view = panel->findChild<QTableView*>();
        EXPECT_EQ(shown(*view->model()), texts(table(heading, snapshot))) << heading.toStdString();
    }
}

QString clipboard()
{
    return QGuiApplication::clipboard()->text();
}

} // namespace

TEST(TablesTabs, ShowEveryTableOfTheDocumentThatIsNeitherPaletteNorMatrix)
{
    QStringList headings;
    for (auto* make : Makers) {
        const std::unique_ptr<TablesTab> tab(make(nullptr));
        for (const auto* panel : tab->findChildren<TablePanel*>()) {
            headings.append(panel->table().name);
        }
    }
    headings.append({u"Axes combinations"_s, u"Compound units"_s, u"Palette"_s, u"Default colours"_s});
    QStringList all;
    for (const Table& each : cluiconfig::documentTables({})) {
        all.append(each.name);
    }
    headings.sort();
    all.sort();
    EXPECT_EQ(headings, all);
}

TEST(TablesTabs, ShowWhatTheDocumentGives)
{
    for (auto* make : Makers) {
        const Shown tab(make(nullptr));
        expectContent(*tab.tab, *tab.snapshot);
    }
}

TEST(TablesTabs, ShowWhatRandomDocumentsGiveOneAfterTheOther)
{
    QList<std::shared_ptr<TablesTab>> tabs;
    for (auto* make : Makers) {
        tabs.append(std::shared_ptr<TablesTab>(make(nullptr)));
    }
    forRandomSnapshots(400, [&](const auto& snapshot) {
        for (const auto& tab : tabs) {
            tab->present(snapshot);
            expectContent(*tab, *snapshot);
        }
    });
}

TEST(TablesTabs, ShowADocumentThatGivesNothing)
{
    const auto empty = emptySnapshot();
    for (auto* make : Makers) {
        const Shown tab(make(nullptr));
        tab.tab->present(empty);
        expectContent(*tab.tab, *empty);
    }
    const Shown tab(cluiedit::makeColumnsTab());
    tab.tab->present(empty);
    EXPECT_TRUE(tab.texts().contains(u"The document gives none."_s)) << tab.texts().toStdString();
    tab.filter()->setFocus();
    QTest::keyClick(tab.filter(), Qt::Key_Return); // there is no row to go to
    EXPECT_TRUE(tab.filter()->hasFocus());
}

TEST(TablesTabs, AreQuickToSeeThatNothingChanged)
{
    for (auto* make : Makers) {
        const Shown tab(make(nullptr));
        const auto again = shippedSnapshot();
        QSignalSpy resets(tab.view()->model(), &QAbstractItemModel::modelReset);
        QSignalSpy changes(tab.view()->model(), &QAbstractItemModel::dataChanged);
        QElapsedTimer timer;
        timer.start();
        tab.tab->present(again);
        std::printf("present() of the same: %.3f ms\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
        EXPECT_EQ(resets.count() + changes.count(), 0);
    }
}

TEST(TablesTabs, KeepWhatIsChosenWhenTheDocumentChangesElsewhere)
{
    const Shown tab(cluiedit::makeOtherTab());
    const int last = tab.view()->model()->rowCount() - 1;
    tab.view()->selectRow(last);
    const QString chosen = tab.view()->currentIndex().data().toString();

    QJsonObject document = tab.snapshot->root();
    QJsonArray representations = document[u"Representations"_s].toArray();
    representations.removeAt(2);
    document[u"Representations"_s] = representations;
    tab.tab->present(snapshotOf(document));
    EXPECT_EQ(tab.view()->currentIndex().data().toString(), chosen);
    EXPECT_EQ(tab.view()->currentIndex().row(), last - 1);

    QJsonObject first = representations.at(0).toObject();
    first[u"Name"_s] = u"Another name"_s;
    representations.replace(0, first);
    representations.insert(1, first);
    document[u"Representations"_s] = representations;
    tab.tab->present(snapshotOf(document));
    EXPECT_EQ(tab.view()->currentIndex().data().toString(), chosen);
    EXPECT_EQ(tab.view()->model()->index(0, 0).data().toString(), u"Another name"_s);
    EXPECT_TRUE(tab.texts().contains(u"Rows shown: 15 of 15"_s)) << tab.texts().toStdString();
}

TEST(TablesTabs, ChooseATableByKeyboard)
{
    const Shown tab(cluiedit::makeGraphsTab());
    auto* chooser = tab.seen<QComboBox>();
    EXPECT_EQ(chooser->count(), 4);
    EXPECT_EQ(chooser->itemText(0),
              u"Statistics graphs (%1)"_s.arg(table(u"Statistics graphs"_s, *tab.snapshot).rows.size()));
    QTest::keyClick(tab.tab.get(), Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(chooser->hasFocus());
    QTest::keyClick(chooser, Qt::Key_Down);
    EXPECT_EQ(shown(*tab.view()->model()), texts(table(u"Ragone plots"_s, *tab.snapshot)));
}

TEST(TablesTabs, FilterByWordsInAnyOrderAndCase)
{
    const Shown tab(cluiedit::makeColumnsTab());
    QTest::keyClick(tab.tab.get(), Qt::Key_L, Qt::ControlModifier);
    ASSERT_TRUE(tab.filter()->hasFocus());
    QTest::keyClicks(tab.filter(), u" CAPACITY per   cycle"_s);
    const auto rows = shown(*tab.view()->model());
    QList<QStringList> expected;
    for (const QStringList& row : texts(table(u"Summary table columns"_s, *tab.snapshot))) {
        const QString all = row.join(u'\n').toLower();
        if (all.contains(u"capacity"_s) && all.contains(u"per"_s) && all.contains(u"cycle"_s)) {
            expected.append(row);
        }
    }
    ASSERT_FALSE(expected.isEmpty());
    EXPECT_EQ(rows, expected);
    EXPECT_TRUE(tab.texts().contains(u"Rows shown: %1 of "_s.arg(expected.size()))) << tab.texts().toStdString();
    QTest::keyClick(tab.filter(), Qt::Key_Escape);
    EXPECT_EQ(shown(*tab.view()->model()), texts(table(u"Summary table columns"_s, *tab.snapshot)));
}

TEST(TablesTabs, SortByAColumnAndBackAgain)
{
    const Shown tab(cluiedit::makeOtherTab());
    const auto before = shown(*tab.view()->model());
    auto* headings = tab.view()->horizontalHeader();
    const QPoint first(headings->sectionViewportPosition(0) + 5, headings->height() / 2);
    QTest::mouseClick(headings->viewport(), Qt::LeftButton, {}, first);
    const auto sorted = shown(*tab.view()->model());
    for (qsizetype row = 1; row < sorted.size(); ++row) {
        EXPECT_LE(sorted.at(row - 1).at(0).compare(sorted.at(row).at(0), Qt::CaseInsensitive), 0);
    }
    EXPECT_NE(sorted, before);
    QTest::mouseClick(headings->viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(shown(*tab.view()->model()).constFirst(), sorted.constLast());
    QTest::mouseClick(headings->viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(shown(*tab.view()->model()), before);
}

TEST(TablesTabs, CopyTheRowsThatAreSelected)
{
    const Shown tab(cluiedit::makeOtherTab());
    const auto rows = shown(*tab.view()->model());
    QGuiApplication::clipboard()->setText(u"before"_s);
    tab.view()->setFocus();
    QTest::keyClick(tab.view(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), u"before"_s); // nothing is selected

    QTest::keyClick(tab.view(), Qt::Key_Down);
    tab.view()->selectRow(2);
    QTest::keyClick(tab.view(), Qt::Key_Up, Qt::ShiftModifier); // from below
    QTest::keyClick(tab.view(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), rows.at(1).join(u'\t') + u'\n' + rows.at(2).join(u'\t') + u'\n');

    QTest::keyClick(tab.view(), Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(clipboard(), rows.at(1).at(0));

    const auto actions = tab.view()->actions();
    actions.at(1)->trigger();
    EXPECT_TRUE(clipboard().startsWith(u"Name\tX\tY1\t"_s)) << clipboard().toStdString();
    actions.at(2)->trigger();
    EXPECT_TRUE(clipboard().startsWith(u"Name,X,Y1,"_s)) << clipboard().toStdString();
}

TEST(TablesTabs, LeadToThePlaceOfARowAlsoWhenSortedAndFiltered)
{
    const Shown tab(cluiedit::makeOtherTab());
    QSignalSpy places(tab.tab.get(), &cluiedit::Tab::placeWanted);
    tab.view()->sortByColumn(0, Qt::DescendingOrder);
    QTest::keyClicks(tab.filter(), u"over"_s);
    QTest::keyClick(tab.filter(), Qt::Key_Return); // goes to the first row
    ASSERT_TRUE(tab.view()->hasFocus());
    QTest::keyClick(tab.view(), Qt::Key_Down);
    QTest::keyClick(tab.view(), Qt::Key_Return);
    ASSERT_EQ(places.count(), 1);
    const QJsonValue value = valueAt(tab.snapshot->root(), places.at(0).at(0).toString());
    EXPECT_EQ(value[u"Name"_s].toString(), tab.view()->model()->index(1, 0).data().toString());

    const QRect cell = tab.view()->visualRect(tab.view()->model()->index(0, 1));
    QTest::mouseClick(tab.view()->viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(tab.view()->viewport(), Qt::LeftButton, {}, cell.center());
    ASSERT_EQ(places.count(), 2);
    EXPECT_EQ(valueAt(tab.snapshot->root(), places.at(1).at(0).toString())[u"Name"_s].toString(),
              tab.view()->model()->index(0, 0).data().toString());
}

TEST(RowPlaces, GiveTheRowsOfTheShippedDocument)
{
    expectPlaces(*shippedSnapshot());
}

TEST(RowPlaces, GiveTheRowsOfRandomDocuments)
{
    forRandomSnapshots(400, [](const auto& snapshot) { expectPlaces(*snapshot); });
}

TEST(RowPlaces, TellRepeatedRowsApart)
{
    QJsonObject document = shippedSnapshot()->root();
    document[u"Filters"_s] = QJsonObject{{u"Tasks"_s, QJsonObject{{u"Skipped"_s, QJsonArray{u"a"_s, u"a"_s, 1}}}}};
    document[u"Statistics"_s] = QJsonObject{{u"B/~"_s, QJsonArray()}, {u"A"_s, QJsonArray{1, 2}}, {u"C"_s, 3}};
    document[u"Process Formula"_s] = QJsonObject{{u"Other"_s, QJsonArray{1}}, {u"X Formulas"_s, QJsonArray{1}}};
    document.remove(u"Debug"_s);
    const auto snapshot = snapshotOf(document);
    const auto places = [&](const QString& heading) {
        QStringList all;
        const Table rows = table(heading, *snapshot);
        for (qsizetype row = 0; row < rows.rows.size(); ++row) {
            all.append(placeOfRow(rows, row, snapshot->root()));
        }
        return all;
    };
    EXPECT_EQ(
        places(u"Skipped tasks"_s),
        (QStringList{u"/Filters/Tasks/Skipped/0"_s, u"/Filters/Tasks/Skipped/1"_s, u"/Filters/Tasks/Skipped/2"_s}));
    EXPECT_EQ(places(u"Statistics graphs"_s),
              (QStringList{u"/Statistics/A/0"_s, u"/Statistics/A/1"_s, u"/Statistics/B~1~0"_s, u"/Statistics/C"_s}));
    EXPECT_EQ(places(u"Process formulas"_s),
              (QStringList{u"/Process Formula/X Formulas/0"_s, u"/Process Formula/Other/0"_s}));
    EXPECT_EQ(places(u"Debug switches"_s), QStringList(3, u"/Debug"_s));
}

TEST(UnitsTab, ShowsTheUnitsOfTheChosenParameter)
{
    const Shown tab(new cluiedit::UnitsTab);
    EXPECT_EQ(shown(*tab.view()->model()), texts(table(u"Compound units"_s, *tab.snapshot)));
    tab.seen<QComboBox>()->setCurrentIndex(1);
    QTableView* parameters = tab.viewNamed(u"Physical parameters"_s);
    ASSERT_NE(parameters, nullptr);
    EXPECT_EQ(shown(*parameters->model()), texts(cluiconfig::parametersTable()));
    QTableView* units = nullptr;
    for (auto* view : tab.tab->findChildren<QTableView*>()) {
        units = view->isVisible() && view != parameters ? view : units;
    }
    ASSERT_NE(units, nullptr);
    parameters->setFocus();
    parameters->selectRow(0);
    for (const QString& name : Converter::getPhysicalParameterNames()) {
        const auto parameter = Converter::getPhysicalParameterFromString(name);
        EXPECT_EQ(parameters->currentIndex().siblingAtColumn(0).data().toString(), name);
        EXPECT_EQ(shown(*units->model()), texts(cluiconfig::unitsTable(parameter))) << name.toStdString();
        EXPECT_EQ(units->model()->rowCount(), Converter::getAvailableUnits(parameter).size());
        int offered = 0;
        for (const QStringList& row : shown(*units->model())) {
            offered += row.at(1) == u"yes"_s ? 1 : 0;
        }
        EXPECT_EQ(offered, UIFilteredUnits::getFilteredUnits(parameter).size());
        QTest::keyClick(parameters, Qt::Key_Down);
    }
}

TEST(UnitsTab, SortsNumbersBySize)
{
    const Shown tab(new cluiedit::UnitsTab);
    tab.seen<QComboBox>()->setCurrentIndex(1);
    tab.viewNamed(u"Physical parameters"_s)->sortByColumn(1, Qt::AscendingOrder);
    const auto rows = shown(*tab.viewNamed(u"Physical parameters"_s)->model());
    for (qsizetype row = 1; row < rows.size(); ++row) {
        EXPECT_LE(rows.at(row - 1).at(1).toInt(), rows.at(row).at(1).toInt());
    }
    EXPECT_GT(rows.constLast().at(1).toInt(), 9); // by their signs, 10 would come before 9
}

TEST(UnitsTab, LeadsToTheEntryOfAParameter)
{
    const Shown tab(new cluiedit::UnitsTab);
    QSignalSpy places(tab.tab.get(), &cluiedit::Tab::placeWanted);
    tab.seen<QComboBox>()->setCurrentIndex(1);
    tab.viewNamed(u"Physical parameters"_s)->setFocus();
    tab.viewNamed(u"Physical parameters"_s)->selectRow(2); // Voltage
    QTest::keyClick(tab.viewNamed(u"Physical parameters"_s), Qt::Key_Return);
    tab.viewNamed(u"Physical parameters"_s)->selectRow(0); // None
    QTest::keyClick(tab.viewNamed(u"Physical parameters"_s), Qt::Key_Return);
    ASSERT_EQ(places.count(), 2);
    EXPECT_EQ(valueAt(tab.snapshot->root(), places.at(0).at(0).toString())[u"PhysicalParameter"_s], u"Voltage"_s);
    EXPECT_EQ(places.at(1).at(0).toString(), u"/MSVUnits"_s);
}

TEST(TableModel, ChangesOnlyTheRowsThatDiffer)
{
    const auto rowsOf = [](const QStringList& names) {
        Table table{.name = u"Names"_s, .columns = {u"Name"_s}};
        for (const QString& name : names) {
            table.rows.append({name});
        }
        return table;
    };
    const QList<QStringList> steps{
        {u"a"_s, u"b"_s, u"c"_s}, {u"a"_s, u"c"_s}, {u"a"_s, u"x"_s, u"y"_s, u"c"_s}, {u"a"_s, u"z"_s, u"c"_s}, {},
        {u"c"_s, u"c"_s},         {u"c"_s},         {u"c"_s, u"c"_s, u"c"_s}};
    TableModel model;
    model.show(rowsOf({}));
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    cluiedit::TableRows rows(model);
    rows.sort(0, Qt::DescendingOrder);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    for (const QStringList& names : steps) {
        model.show(rowsOf(names));
        EXPECT_EQ(shown(model), texts(rowsOf(names)));
        QStringList sorted = names;
        std::ranges::sort(sorted, std::greater());
        EXPECT_EQ(shown(rows), texts(rowsOf(sorted)));
    }
    EXPECT_EQ(resets.count(), 0);
}

TEST(TableRows, AreFilteredAndSortedAnewWhenTheTableChanges)
{
    const auto tableOf = [](const QStringList& names) {
        Table table{.name = u"Names"_s, .columns = {u"Name"_s, u"Length"_s}};
        for (const QString& name : names) {
            table.rows.append({name, name.size()});
        }
        return table;
    };
    TableModel model;
    model.show(tableOf({u"STRASSE"_s, u"b 10"_s, u"b 9"_s}));
    cluiedit::TableRows rows(model);
    rows.setWords({u"B"_s});
    rows.sort(0);
    EXPECT_EQ(shown(rows), texts(tableOf({u"b 10"_s, u"b 9"_s})));
    model.show(tableOf({u"ab"_s, u"b 10"_s, u"x"_s}));
    EXPECT_EQ(shown(rows), texts(tableOf({u"ab"_s, u"b 10"_s})));
    model.show(tableOf({u"ab"_s, u"Acc b"_s, u"b 10"_s, u"AA B"_s, u"x"_s}));
    EXPECT_EQ(shown(rows), texts(tableOf({u"AA B"_s, u"ab"_s, u"Acc b"_s, u"b 10"_s})));
    rows.sort(1);
    rows.setWords({u"b"_s, u"A"_s});
    EXPECT_EQ(shown(rows), texts(tableOf({u"ab"_s, u"AA B"_s, u"Acc b"_s})));
    model.show({.name = u"Other"_s, .columns = {u"Name"_s, u"Length"_s, u"More"_s}, .rows = {{u"a"_s, 1, u"b"_s}}});
    EXPECT_EQ(rows.rowCount(), 1);
}

TEST(TableModel, ShowsAHundredThousandRows)
{
    Table table{.name = u"Names"_s, .columns = {u"Name"_s, u"Number"_s}};
    for (int row = 0; row < 100'000; ++row) {
        table.rows.append({u"Name %1"_s.arg(row * 7919 % 100'000), row});
    }
    TablePanel panel{QString()};
    panel.resize(640, 700);
    QElapsedTimer timer;
    timer.start();
    panel.show(table);
    panel.show();
    panel.repaint();
    std::printf("shown after %lld ms\n", timer.restart());
    panel.findChild<QLineEdit*>()->setText(u"99 name"_s);
    std::printf("filtered after %lld ms\n", timer.restart());
    EXPECT_GT(panel.findChild<QTableView*>()->model()->rowCount(), 1000);
    EXPECT_LT(panel.findChild<QTableView*>()->model()->rowCount(), 10'000);
    panel.findChild<QLineEdit*>()->setText(u"99 name 1"_s);
    std::printf("filtered again after %lld ms\n", timer.restart());
    panel.findChild<QLineEdit*>()->clear();
    std::printf("cleared after %lld ms\n", timer.restart());
    panel.findChild<QTableView*>()->sortByColumn(0, Qt::AscendingOrder);
    std::printf("sorted after %lld ms\n", timer.restart());
    EXPECT_EQ(panel.findChild<QTableView*>()->model()->index(0, 0).data().toString(), u"Name 0"_s);
}

TEST(TableModel, ShowsSwatchesAndHostileTextsAsText)
{
    Table table{.name = u"Palette"_s, .columns = {u"Name"_s, u"Colour"_s}, .endsInColors = true};
    table.rows = {{u"Blue"_s, u"#0072b2"_s}, {u"<b>a\nb</b>"_s, u"(invalid)"_s}, {u"Nobody"_s, QJsonValue::Null}};
    TableModel model;
    model.show(table);
    const auto swatch = model.index(0, 1).data(Qt::DecorationRole).value<QPixmap>();
    EXPECT_EQ(swatch.toImage().pixelColor(swatch.rect().center()), QColor(u"#0072b2"_s));
    EXPECT_FALSE(model.index(1, 1).data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.index(2, 1).data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.index(0, 0).data(Qt::DecorationRole).isValid());
    EXPECT_EQ(model.index(1, 0).data().toString(), u"<b>a\\u000ab</b>"_s);
    EXPECT_TRUE(model.index(1, 0).data(Qt::ToolTipRole).toString().contains(u"&lt;b&gt;"_s));
    EXPECT_EQ(model.index(2, 1).data().toString(), u"(unknown)"_s);
}

TEST(TableText, QuotesWhatNeedsIt)
{
    const QList<QStringList> rows{{u"a,b"_s, u"say \"x\""_s, u"plain"_s}, {u"two\nlines"_s, u"a\tb"_s, QString()}};
    EXPECT_EQ(cluiedit::asCsv(rows), u"\"a,b\",\"say \"\"x\"\"\",plain\r\n\"two\nlines\",a\tb,\r\n"_s);
    EXPECT_EQ(cluiedit::asTsv(rows), u"a,b\tsay \"x\"\tplain\ntwo lines\ta b\t\n"_s);
}
