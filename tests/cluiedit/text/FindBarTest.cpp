#include <cluiedit/text/DocumentPane.h>
#include <cluiedit/text/Editor.h>
#include <cluiedit/text/FindBar.h>
#include <support/QtPrinters.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace cluiedit;

namespace {

class FindBarTest : public testing::Test
{
protected:
    FindBarTest()
    {
        pane.resize(640, 700);
        pane.show();
        pane.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&pane));
        editor.open("one Two\ntwo µ two\n");
        editor.setFocus();
    }

    template <typename Child>
    Child* childCalled(const QString& text) const
    {
        for (Child* const child : bar.findChildren<Child*>()) {
            if (child->text().remove(u'&') == text) {
                return child;
            }
        }
        return nullptr;
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    QString count() const { return bar.findChildren<QLabel*>().at(1)->text(); }
    qsizetype selectionBegin() const { return editor.SendScintilla(QsciScintilla::SCI_GETSELECTIONSTART); }
    QLineEdit* replacement() const { return bar.findChildren<QLineEdit*>().at(1); }

    DocumentPane pane;
    Editor& editor = pane.editor();
    FindBar& bar = pane.findBar();
};

} // namespace

TEST_F(FindBarTest, FindsWhileOneTypesAndCounts)
{
    EXPECT_FALSE(bar.isVisible());
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(bar.isVisible());
    type(u"two"_s);
    EXPECT_EQ(count(), u"1 of 3"_s);
    EXPECT_EQ(selectionBegin(), 4);
    press(Qt::Key_F3);
    EXPECT_EQ(count(), u"2 of 3"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(count(), u"3 of 3"_s);
    EXPECT_EQ(selectionBegin(), 15);
    press(Qt::Key_F3);
    EXPECT_EQ(count(), u"1 of 3"_s) << "from the start again";
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(count(), u"3 of 3"_s);
    press(Qt::Key_Escape);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(editor.hasFocus());
    press(Qt::Key_F3);
    EXPECT_EQ(selectionBegin(), 4) << "without the bar, too";
}

TEST_F(FindBarTest, TakesTheSelectionAndTheOptions)
{
    editor.select(4, 7);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(count(), u"1 of 3"_s);
    childCalled<QCheckBox>(u"Match case"_s)->click();
    EXPECT_EQ(count(), u"1 of 1"_s);
    childCalled<QCheckBox>(u"Match case"_s)->click();
    childCalled<QCheckBox>(u"Regular expression"_s)->click();
    bar.findChild<QLineEdit*>()->setFocus();
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"("_s);
    EXPECT_EQ(count(), u"not valid"_s);
    type(u"t|o)w"_s);
    EXPECT_EQ(count(), u"1 of 3"_s);
    type(u"q"_s);
    EXPECT_EQ(count(), u"not found"_s);
}

TEST_F(FindBarTest, ReplacesOneByOneAndAllAtOnce)
{
    press(Qt::Key_H, Qt::ControlModifier);
    type(u"two"_s);
    replacement()->setFocus();
    type(u"2 µ"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(editor.bytes(), "one 2 µ\ntwo µ two\n");
    EXPECT_EQ(count(), u"1 of 2"_s);
    childCalled<QPushButton>(u"Replace all"_s)->click();
    EXPECT_EQ(editor.bytes(), "one 2 µ\n2 µ µ 2 µ\n");
    EXPECT_EQ(count(), u"2 replaced"_s);
    editor.undo();
    EXPECT_EQ(editor.bytes(), "one 2 µ\ntwo µ two\n") << "all at once";
    editor.undo();
    EXPECT_EQ(editor.bytes(), "one Two\ntwo µ two\n");
}

TEST_F(FindBarTest, ReplacingByWhatItselfIsFoundEnds)
{
    press(Qt::Key_H, Qt::ControlModifier);
    type(u"two"_s);
    replacement()->setFocus();
    type(u"two two"_s);
    childCalled<QPushButton>(u"Replace all"_s)->click();
    EXPECT_EQ(editor.bytes(), "one two two\ntwo two µ two two\n");
}

TEST_F(FindBarTest, FollowsTheTextThatIsEdited)
{
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"two"_s);
    editor.goTo(0);
    QTest::keyClicks(&editor, u"two "_s);
    QTest::qWait(10);
    EXPECT_EQ(count(), u"4 found"_s);
}
