// Finding anything by its name: what there is to find, how it is ranked, and how people get at it.

#include "Snapshots.h"

#include <cluiedit/tabs/FindAnything.h>

#include <base/Singleton.h>
#include <batterydata/ClConfigDataArray.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <search/FuzzyFinder.h>
#include <search/TechniqueSearchStrategy.h>
#include <support/QtPrinters.h>

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using cluiedit::FindAnything;
using cluiedit::findEntries;
using cluiedit::FindEntry;
using cluiedit::FindIndex;
using cluiedit::FindKind;
using cluiedit::FindModel;
using cluiedit::matchedPlaces;
using cluiedit::Snapshot;

namespace {

/// Whether the value at the place of \p entry is what is called so.
bool standsThere(const FindEntry& entry, const Snapshot& snapshot)
{
    const QJsonValue value = valueAt(snapshot.root(), entry.pointer);
    switch (entry.kind) {
    case FindKind::Array:
        return entry.pointer.isEmpty() || value.toString() == entry.text;
    case FindKind::Representation:
        return value[u"Name"_s].toString() == entry.text;
    case FindKind::Color:
        return value[u"name"_s].toString() == entry.text;
    case FindKind::Graph:
        return value[u"Title"_s].toString() == entry.text
            || (!value.isUndefined()
                && entry.pointer.endsWith(QString(entry.text).replace(u"~"_s, u"~0"_s).replace(u"/"_s, u"~1"_s)));
    case FindKind::RecipeEntry:
        return value[u"UITitle"_s].toString() == entry.text;
    case FindKind::Section:
        return !value.isUndefined() && entry.pointer == u'/' + entry.text;
    }
    return false;
}

void expectEntries(const Snapshot& snapshot)
{
    const QList<FindEntry> entries = findEntries(snapshot);
    QHash<FindKind, QSet<QString>> names;
    for (const FindEntry& entry : entries) {
        EXPECT_TRUE(standsThere(entry, snapshot)) << entry.text.toStdString() << " at " << entry.pointer.toStdString();
        EXPECT_FALSE(entry.text.isEmpty());
        EXPECT_FALSE(entry.kind == FindKind::Array && names[FindKind::Array].contains(entry.text));
        names[entry.kind].insert(entry.text);
    }
    for (const QString& x : snapshot.axes().getXAxesNames()) {
        EXPECT_TRUE(names[FindKind::Array].contains(x));
        for (const QString& y : snapshot.axes().getYAxesNames(x)) {
            EXPECT_TRUE(names[FindKind::Array].contains(y));
        }
    }
    const auto& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    for (const auto* array : catalogue.getAll()) {
        EXPECT_TRUE(names[FindKind::Array].contains(array->getName()));
    }
    for (const ConfigRepresentation& representation : snapshot.configuration().representations) {
        EXPECT_TRUE(names[FindKind::Representation].contains(representation.name()));
    }
}

struct FindAnythingOnScreen : testing::Test
{
    FindAnythingOnScreen()
    {
        dialog.present(snapshot);
        dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        line = dialog.findChild<QLineEdit*>();
        view = dialog.findChild<QTableView*>();
        model = qobject_cast<const FindModel*>(view->model());
    }

    QString current() const { return view->currentIndex().siblingAtColumn(0).data().toString(); }

    std::shared_ptr<const Snapshot> snapshot = shippedSnapshot();
    FindAnything dialog;
    QLineEdit* line = nullptr;
    QTableView* view = nullptr;
    const FindModel* model = nullptr;
};

} // namespace

TEST(FindEntries, AreAllThatHasANameAndStandWhereTheyPoint)
{
    const auto snapshot = shippedSnapshot();
    expectEntries(*snapshot);
    const QList<FindEntry> entries = findEntries(*snapshot);
    const auto count = [&](FindKind kind) { return std::ranges::count(entries, kind, &FindEntry::kind); };
    EXPECT_EQ(count(FindKind::Representation), 15);
    EXPECT_EQ(count(FindKind::Color), 20);
    EXPECT_EQ(count(FindKind::Graph), 9 + 5 + 9 + 1);
    EXPECT_EQ(count(FindKind::Section), 13);
    const auto voltage = std::ranges::find(entries, u"Voltage / V"_s, &FindEntry::text);
    ASSERT_NE(voltage, entries.end());
    EXPECT_EQ(voltage->pointer, u"/Axes combinations/0/Y1~1Y2/0/Name"_s);
}

TEST(FindEntries, AreThoseOfRandomAndOfEmptyDocuments)
{
    expectEntries(*emptySnapshot());
    forRandomSnapshots(300, [](const auto& snapshot) { expectEntries(*snapshot); });
}

TEST(FindIndex, RanksAsTheFuzzyFinderDoesAndListsAllWithoutAQuery)
{
    const QList<FindEntry> entries = findEntries(*shippedSnapshot());
    FindIndex index(entries);
    for (const QString& query : {u"v"_s, u"volt"_s, u"CAP cyc"_s, u"zzz"_s, u"/ A"_s, u"Ω"_s}) {
        std::vector<qsizetype> expected; // by score, of equal ones the first
        std::vector<int> scores;
        for (const FindEntry& entry : entries) {
            const auto score =
                TechniqueSearchStrategy::fuzzyMatchIterativeTechnique(query.toStdString(), entry.text.toStdString());
            scores.push_back(score.value_or(0));
            if (score) {
                expected.push_back(static_cast<qsizetype>(scores.size()) - 1);
            }
        }
        std::ranges::stable_sort(expected, std::greater(),
                                 [&](qsizetype number) { return scores[static_cast<std::size_t>(number)]; });
        EXPECT_EQ(index.find(query), expected) << query.toStdString();
    }
    std::vector<qsizetype> all(static_cast<std::size_t>(entries.size()));
    std::iota(all.begin(), all.end(), 0);
    EXPECT_EQ(index.find({}), all);
    FindIndex mixed({{u"short"_s, FindKind::Graph, {}}, {QString(300, u'x'), FindKind::Graph, {}}});
    EXPECT_EQ(mixed.find({}), (std::vector<qsizetype>{0, 1}));
    EXPECT_TRUE(FindIndex().find(u"a"_s).empty());
}

TEST(MatchedPlaces, AreTheLettersOfTheQuery)
{
    EXPECT_EQ(matchedPlaces(u"volt"_s, u"Cell Voltage"_s), (QList<qsizetype>{5, 6, 7, 8}));
    EXPECT_EQ(matchedPlaces(u"cvg"_s, u"Cell Voltage"_s), (QList<qsizetype>{0, 5, 10}));
    EXPECT_EQ(matchedPlaces({}, u"Cell"_s), QList<qsizetype>());
    EXPECT_EQ(matchedPlaces(u"x"_s, u"Cell"_s), QList<qsizetype>());
    EXPECT_EQ(matchedPlaces(u"Ω"_s, u"R / Ω"_s), QList<qsizetype>{4});
    for (const FindEntry& entry : findEntries(*shippedSnapshot())) {
        const QString query = u"a e"_s;
        const auto places = matchedPlaces(query, entry.text);
        const bool matches =
            TechniqueSearchStrategy::fuzzyMatchIterativeTechnique("a e", entry.text.toStdString()).has_value();
        ASSERT_EQ(!places.isEmpty(), matches) << entry.text.toStdString();
        for (qsizetype i = 0; i < places.size(); ++i) {
            EXPECT_EQ(entry.text.at(places.at(i)).toLower(), query.at(i));
            EXPECT_TRUE(i == 0 || places.at(i) > places.at(i - 1));
        }
    }
}

TEST_F(FindAnythingOnScreen, ListsAllBeforeSomethingIsTyped)
{
    const QList<FindEntry> entries = findEntries(*snapshot);
    ASSERT_EQ(model->rowCount(), entries.size());
    for (int row = 0; row < model->rowCount(); ++row) {
        EXPECT_EQ(model->index(row, 0).data().toString(), entries.at(row).text);
        EXPECT_EQ(model->index(row, 1).data().toString(), cluiedit::kindName(entries.at(row).kind));
    }
    EXPECT_TRUE(line->hasFocus());
}

TEST_F(FindAnythingOnScreen, IsDrivenFromTheLine)
{
    QSignalSpy chosen(&dialog, &FindAnything::chosen);
    QTest::keyClicks(line, u"voltage"_s);
    ASSERT_GT(model->rowCount(), 10);
    EXPECT_EQ(view->currentIndex().row(), 0);
    QTest::keyClick(line, Qt::Key_Down);
    QTest::keyClick(line, Qt::Key_Down);
    QTest::keyClick(line, Qt::Key_Up);
    EXPECT_EQ(view->currentIndex().row(), 1);
    QTest::keyClick(line, Qt::Key_PageDown);
    EXPECT_GT(view->currentIndex().row(), 2);
    QTest::keyClick(line, Qt::Key_PageUp);
    EXPECT_LT(view->currentIndex().row(), 2);
    const FindEntry expected = model->entry(view->currentIndex().row());
    EXPECT_TRUE(line->hasFocus());
    QTest::keyClick(line, Qt::Key_Return);
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).value<FindKind>(), expected.kind);
    EXPECT_EQ(chosen.at(0).at(1).toString(), expected.text);
    EXPECT_EQ(chosen.at(0).at(2).toString(), expected.pointer);
    EXPECT_FALSE(dialog.isVisible());

    dialog.show();
    EXPECT_EQ(line->selectedText(), u"voltage"_s); // typing replaces it
    QTest::keyClicks(line, u"no such thing as this"_s);
    EXPECT_EQ(model->rowCount(), 0);
    QTest::keyClick(line, Qt::Key_Return);
    QTest::keyClick(line, Qt::Key_Down);
    EXPECT_EQ(chosen.count(), 1);
    QTest::keyClick(line, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(chosen.count(), 1);
}

TEST_F(FindAnythingOnScreen, ChoosesByAClickAndPaintsMatches)
{
    QSignalSpy chosen(&dialog, &FindAnything::chosen);
    QTest::keyClicks(line, u"steel"_s);
    dialog.grab();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(model->index(0, 0)).center());
    ASSERT_EQ(chosen.count(), 1);
    EXPECT_EQ(chosen.at(0).at(0).value<FindKind>(), FindKind::Color);
    EXPECT_EQ(chosen.at(0).at(1).toString(), u"Steel blue"_s);
}

TEST_F(FindAnythingOnScreen, LooksInTheLatestDocument)
{
    QTest::keyClicks(line, u"night shift"_s);
    EXPECT_EQ(model->rowCount(), 0);
    QJsonObject document = snapshot->root();
    document[u"Statistics"_s] = QJsonObject{{u"Night shift"_s, QJsonArray()}};
    dialog.present(snapshotOf(document));
    ASSERT_EQ(model->rowCount(), 1);
    EXPECT_EQ(model->entry(0).pointer, u"/Statistics/Night shift"_s);
    dialog.hide();
    dialog.present(snapshot);
    dialog.show();
    EXPECT_EQ(model->rowCount(), 0);
}

TEST(FindModel, HasAHundredThousandEntries)
{
    QList<FindEntry> entries;
    for (int i = 0; i < 100'000; ++i) {
        entries.append({u"Measured value number %1 / V"_s.arg(i), FindKind::Array, {}});
    }
    FindModel model;
    QTableView view;
    view.setModel(&model);
    view.show();
    QElapsedTimer timer;
    timer.start();
    model.setEntries(entries);
    std::printf("taken after %lld ms\n", timer.restart());
    for (const QString& query : {u"v"_s, u"va"_s, u"val9"_s, u"val99"_s, QString()}) {
        model.setQuery(query);
        view.grab();
        std::printf("%d found after %lld ms\n", model.rowCount(), timer.restart());
    }
    EXPECT_EQ(model.rowCount(), 100'000);
}
