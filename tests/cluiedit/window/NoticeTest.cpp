#include <cluiedit/window/Notice.h>

#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using cluiedit::Notices;

TEST(Notices, AnAnswerActsOnceAndTakesTheNoticeAway)
{
    Notices notices;
    int answers = 0;
    notices.show(u"file"_s, {.text = u"Changed."_s, .answers = {{u"&Take"_s, [&] { ++answers; }}}});
    static_cast<QWidget&>(notices).show();
    EXPECT_EQ(notices.text(u"file"_s), u"Changed."_s);
    QTest::keyClick(notices.findChild<QPushButton*>(), Qt::Key_Space);
    EXPECT_EQ(answers, 1);
    EXPECT_EQ(notices.text(u"file"_s), QString());
}

TEST(Notices, OneOfAKindReplacesTheEarlierOne)
{
    Notices notices;
    notices.show(u"file"_s, {.text = u"one"_s, .answers = {}});
    notices.show(u"lost"_s, {.text = u"two"_s, .answers = {}});
    notices.show(u"file"_s, {.text = u"three"_s, .answers = {}});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(notices.findChildren<QToolButton*>().size(), 2);
    EXPECT_EQ(notices.text(u"file"_s), u"three"_s);
}

TEST(Notices, AnActionMayShowAnotherOneOfTheKind)
{
    Notices notices;
    notices.show(u"file"_s,
                 {.text = u"one"_s,
                  .answers = {{u"Again"_s, [&] { notices.show(u"file"_s, {.text = u"two"_s, .answers = {}}); }}}});
    static_cast<QWidget&>(notices).show();
    notices.findChild<QPushButton*>()->click();
    EXPECT_EQ(notices.text(u"file"_s), u"two"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    notices.findChild<QToolButton*>()->click();
    EXPECT_EQ(notices.text(u"file"_s), QString());
}
