#include <cluiedit/window/FindingsPanel.h>

#include <QCheckBox>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using cluiconfig::check::Finding;
using cluiconfig::check::Rule;
using cluiconfig::check::Severity;
using cluiedit::FindingsModel;
using cluiedit::FindingsPanel;

namespace {

Finding finding(Severity severity, qsizetype offset, const QString& message)
{
    Finding result;
    result.rule = Rule::UnknownArray;
    result.severity = severity;
    result.offset = offset;
    result.line = offset / 10 + 1;
    result.message = message;
    return result;
}

class Panel : public testing::Test
{
protected:
    void SetUp() override
    {
        panel.setFindings({finding(Severity::Error, 50, u"five"_s), finding(Severity::Warning, 10, u"one"_s),
                           finding(Severity::Error, 90, u"nine"_s)});
        panel.resize(600, 200);
        panel.show();
    }

    QStringList messages() const
    {
        QStringList result;
        for (int row = 0; row < table()->model()->rowCount(); ++row) {
            result.append(table()->model()->index(row, FindingsModel::MessageColumn).data().toString());
        }
        return result;
    }
    QTableView* table() const { return panel.findChild<QTableView*>(); }

    FindingsPanel panel;
    QSignalSpy wanted{&panel, &FindingsPanel::placeWanted};
};

} // namespace

TEST_F(Panel, ShowsFindingsAsTheyComeAndCountsThem)
{
    EXPECT_EQ(messages(), (QStringList{u"five"_s, u"one"_s, u"nine"_s}));
    EXPECT_EQ(panel.errorCount(), 2);
    EXPECT_EQ(panel.warningCount(), 1);
    EXPECT_EQ(table()->model()->index(1, FindingsModel::SeverityColumn).data().toString(), u"Warning"_s);
    EXPECT_EQ(table()->model()->index(0, FindingsModel::LineColumn).data().toInt(), 6);
    EXPECT_EQ(table()->model()->index(0, FindingsModel::RuleColumn).data().toString(), u"unknown-array"_s);
}

TEST_F(Panel, FiltersBySeverityFromTheKeyboard)
{
    const QList<QCheckBox*> switches = panel.findChildren<QCheckBox*>();
    ASSERT_EQ(switches.size(), 2);
    QTest::keyClick(switches.at(0), Qt::Key_Space);
    EXPECT_EQ(messages(), QStringList{u"one"_s});
    QTest::keyClick(switches.at(1), Qt::Key_Space);
    EXPECT_EQ(messages(), QStringList());
    QTest::keyClick(switches.at(0), Qt::Key_Space);
    EXPECT_EQ(messages(), (QStringList{u"five"_s, u"nine"_s}));
}

TEST_F(Panel, ReturnLeadsToThePlace)
{
    table()->setCurrentIndex(table()->model()->index(2, 0));
    QTest::keyClick(table(), Qt::Key_Return);
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.at(0).at(0).value<qsizetype>(), 90);
}

TEST_F(Panel, StepsThroughTheFindingsInACircle)
{
    for (int i = 0; i < 4; ++i) {
        panel.step(1);
    }
    panel.step(-1);
    QList<qsizetype> places;
    for (const auto& arguments : wanted) {
        places.append(arguments.at(0).value<qsizetype>());
    }
    EXPECT_EQ(places, (QList<qsizetype>{50, 10, 90, 50, 90}));
}

TEST_F(Panel, TheSameFindingsAgainKeepTheSelection)
{
    table()->setCurrentIndex(table()->model()->index(1, 0));
    panel.setFindings({finding(Severity::Error, 50, u"five"_s), finding(Severity::Warning, 10, u"one"_s),
                       finding(Severity::Error, 90, u"nine"_s)});
    EXPECT_EQ(table()->currentIndex().row(), 1);
    panel.setFindings({});
    EXPECT_EQ(messages(), QStringList());
    panel.step(1);
    EXPECT_EQ(wanted.count(), 0);
}
