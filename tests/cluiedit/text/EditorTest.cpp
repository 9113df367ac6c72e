#include <check/Check.h>
#include <cluiedit/reading/Snapshot.h>
#include <cluiedit/text/CompletionPopup.h>
#include <cluiedit/text/Editor.h>
#include <data/ShippedFile.h>
#include <support/DocumentMutator.h>
#include <support/QtPrinters.h>
#include <support/Random.h>

#include <Qsci/qscilexer.h>

#include <QApplication>
#include <QHelpEvent>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace cluiedit;
using cluiconfig::check::Finding;
using cluiconfig::check::Severity;

namespace {

class EditorTest : public testing::Test
{
protected:
    EditorTest()
    {
        editor.resize(640, 700);
        editor.show();
        editor.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&editor));
        editor.setFocus();
        editor.setLastGood(makeSnapshot(shippedBytes(u"UIConfig.json"_s), u"UIConfig.json"_s));
    }

    /// Opens \p text without its bar |, at which the cursor goes.
    void openAt(QByteArray text)
    {
        const qsizetype offset = text.indexOf('|');
        editor.open(text.remove(offset, 1));
        editor.goTo(offset);
    }

    void type(const QString& text) { QTest::keyClicks(&editor, text); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&editor, key, modifiers);
    }
    void showCheck() { editor.showFindings(makeSnapshot(editor.bytes(), u"a.json"_s)->result.findings); }
    CompletionPopup& popup() const { return *editor.findChild<CompletionPopup*>(); }
    /// The indicators at \p offset, a bit each.
    long indicators(qsizetype offset) const
    {
        return editor.SendScintilla(QsciScintilla::SCI_INDICATORALLONFOR, static_cast<unsigned long>(offset));
    }
    QPoint pointOf(qsizetype offset) const
    {
        const auto at = [&](unsigned message) {
            return static_cast<int>(editor.SendScintilla(message, 0UL, static_cast<long>(offset)));
        };
        return {at(QsciScintilla::SCI_POINTXFROMPOSITION) + 2, at(QsciScintilla::SCI_POINTYFROMPOSITION) + 4};
    }

    Editor editor;
};

constexpr long ErrorBit = 1 << FindingMarks::ErrorIndicator;
constexpr long WarningBit = 1 << FindingMarks::WarningIndicator;

Finding findingAt(qsizetype offset, Severity severity, const QString& message, const QString& instead = {})
{
    Finding finding;
    finding.severity = severity;
    finding.offset = offset;
    finding.message = message;
    finding.instead = instead;
    return finding;
}

} // namespace

TEST_F(EditorTest, GivesBackWhatItOpened)
{
    for (const QByteArray& text : {QByteArray("{\r\n}\r\n"), QByteArray("\xEF\xBB\xBF{\n}"),
                                   QByteArray("a\0b\xFF\r\n\n\r", 8), QByteArray(), shippedBytes(u"UIConfig.json"_s)}) {
        editor.open(text);
        EXPECT_EQ(editor.bytes(), text);
        EXPECT_FALSE(editor.isModified());
        EXPECT_FALSE(editor.isUndoAvailable());
        EXPECT_EQ(editor.cursorOffset(), 0);
    }
}

TEST_F(EditorTest, TypingChangesAndUndoRestores)
{
    editor.open("{ }");
    editor.goTo(2);
    const QSignalSpy changed(&editor, &Editor::bytesChanged);
    const QSignalSpy moved(&editor, &Editor::cursorMoved);
    type(u"xyz"_s);
    EXPECT_EQ(editor.bytes(), "{ xyz}");
    EXPECT_EQ(changed.size(), 3);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !moved.isEmpty(); }));
    EXPECT_EQ(moved.last().first().toLongLong(), 5);
    EXPECT_TRUE(editor.isModified());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.bytes(), "{ }");
    EXPECT_FALSE(editor.isModified());
}

TEST_F(EditorTest, NewLinesHaveTheLineEndOfTheFile)
{
    openAt("{\r\n    \"a\": 1,|\r\n}");
    press(Qt::Key_Return);
    type(u"x"_s);
    EXPECT_EQ(editor.bytes(), "{\r\n    \"a\": 1,\r\n    x\r\n}");
    openAt("{\n    \"a\": 1,|\n}");
    press(Qt::Key_Return);
    EXPECT_EQ(editor.bytes(), "{\n    \"a\": 1,\n    \n}");
}

TEST_F(EditorTest, AByteOrderMarkSurvivesTyping)
{
    editor.open("\xEF\xBB\xBF{}");
    editor.goTo(4);
    type(u"1"_s);
    EXPECT_EQ(editor.bytes(), "\xEF\xBB\xBF{1}");
}

TEST_F(EditorTest, SetsInByFourBlanks)
{
    openAt("    \"a\": {|}");
    press(Qt::Key_Return);
    EXPECT_EQ(editor.bytes(), "    \"a\": {\n        \n    }");
    EXPECT_EQ(editor.cursorOffset(), 19);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.bytes(), "    \"a\": {}") << "in one step";
    openAt("[\n    [\n        1\n        |");
    type(u"]"_s);
    EXPECT_EQ(editor.bytes(), "[\n    [\n        1\n    ]");
    EXPECT_EQ(editor.cursorOffset(), editor.length());
}

TEST_F(EditorTest, ReplacedTextIsOneStepAndKeepsTheLine)
{
    QByteArray text;
    for (int i = 0; i < 300; ++i) {
        text += "line " + QByteArray::number(i) + "\n";
    }
    editor.open(text);
    editor.setCursorPosition(120, 3);
    editor.setFirstVisibleLine(110);
    QByteArray other = text;
    other.replace("line 5\n", "LINE FIVE\n").replace("line 200\n", "");
    editor.replaceText(other);
    EXPECT_EQ(editor.bytes(), other);
    int line = 0;
    int column = 0;
    editor.getCursorPosition(&line, &column);
    EXPECT_EQ(line, 120);
    EXPECT_EQ(column, 3);
    EXPECT_EQ(editor.firstVisibleLine(), 110);
    editor.undo();
    EXPECT_EQ(editor.bytes(), text);
    editor.replaceText(text);
    EXPECT_FALSE(editor.isModified()) << "the same text is no change";
    editor.replaceText("x");
    EXPECT_EQ(editor.bytes(), "x");
}

TEST_F(EditorTest, UnderlinesFindingsByTheirSeverity)
{
    editor.open("{ \"Versio\": 29,\n  \"b\": tru }");
    editor.showFindings({findingAt(2, Severity::Warning, u"unknown"_s), findingAt(23, Severity::Error, u"no word"_s)});
    for (qsizetype i = 2; i < 10; ++i) {
        EXPECT_EQ(indicators(i), WarningBit) << i;
    }
    EXPECT_EQ(indicators(1), 0);
    EXPECT_EQ(indicators(10), 0);
    EXPECT_EQ(indicators(23), ErrorBit);
    EXPECT_EQ(indicators(25), ErrorBit);
    EXPECT_EQ(editor.markersAtLine(0), 1U << FindingMarks::WarningSign);
    EXPECT_EQ(editor.markersAtLine(1), 1U << FindingMarks::ErrorSign);
    EXPECT_EQ(editor.findingsAt(5), u"unknown"_s);
    EXPECT_EQ(editor.findingsAt(24), u"no word"_s);
    EXPECT_EQ(editor.findingsAt(12), QString());
    EXPECT_FALSE(editor.isModified());
    EXPECT_FALSE(editor.isUndoAvailable());
    editor.showFindings({});
    EXPECT_EQ(indicators(5), 0);
    EXPECT_EQ(editor.markersAtLine(0), 0U);
}

TEST_F(EditorTest, FindingsAtTheEndsOfLinesAndBeyondTheTextAreSeen)
{
    editor.open("{\n\"a\": 1\n\"b\": 2 }");
    editor.showFindings({findingAt(8, Severity::Error, u"comma"_s), findingAt(1000, Severity::Error, u"end"_s)});
    EXPECT_EQ(indicators(7), ErrorBit);
    EXPECT_EQ(editor.findingsAt(8), u"comma"_s);
    EXPECT_EQ(editor.findingsAt(editor.length()), u"end"_s);
    editor.open("");
    editor.showFindings({findingAt(0, Severity::Error, u"empty"_s)});
    EXPECT_EQ(editor.findingsAt(0), u"empty"_s);
}

TEST_F(EditorTest, FindingsMoveWithTheText)
{
    editor.open("{ \"a\": 1 }");
    editor.showFindings({findingAt(2, Severity::Error, u"bad"_s)});
    editor.goTo(1);
    type(u"  "_s);
    EXPECT_EQ(editor.findingsAt(4), u"bad"_s);
    EXPECT_EQ(indicators(4), ErrorBit);
    editor.selectAll();
    press(Qt::Key_Delete);
    EXPECT_EQ(editor.findingsAt(0), QString());
    press(Qt::Key_Z, Qt::ControlModifier);
    editor.showFindings({findingAt(4, Severity::Error, u"bad"_s)});
    EXPECT_EQ(indicators(4), ErrorBit) << "shown again, though the list is the same";
}

TEST_F(EditorTest, HoveringShowsTheMessage)
{
    editor.open("{ \"Versio\": 29 }");
    editor.showFindings({findingAt(2, Severity::Warning, u"It is <b>unknown</b>."_s)});
    const QPoint place = pointOf(5);
    QHelpEvent hover(QEvent::ToolTip, place, editor.viewport()->mapToGlobal(place));
    QApplication::sendEvent(editor.viewport(), &hover);
    EXPECT_EQ(QToolTip::text(), u"<p>It is &lt;b&gt;unknown&lt;/b&gt;.</p>"_s);
    QHelpEvent margin(QEvent::ToolTip, {3, 4}, editor.viewport()->mapToGlobal(QPoint(3, 4)));
    QApplication::sendEvent(editor.viewport(), &margin);
    EXPECT_TRUE(QToolTip::text().contains("unknown"_L1));
    const QPoint elsewhere = pointOf(13);
    QHelpEvent away(QEvent::ToolTip, elsewhere, editor.viewport()->mapToGlobal(elsewhere));
    QApplication::sendEvent(editor.viewport(), &away);
    QTest::qWait(500);
    EXPECT_FALSE(QToolTip::isVisible());
}

TEST_F(EditorTest, OneKeyMendsWhatIsMeant)
{
    QByteArray text = shippedBytes(u"UIConfig.json"_s);
    text.replace("\"Representations\"", "\"Reprsentations\"");
    editor.open(text);
    showCheck();
    editor.goTo(text.indexOf("\"Reprsentations\"") + 18);
    const QString message = editor.findingsAt(text.indexOf("\"Reprsentations\""));
    ASSERT_TRUE(message.contains("Did you mean"_L1)) << message.toStdString();
    press(Qt::Key_Return, Qt::AltModifier);
    EXPECT_EQ(editor.bytes(), shippedBytes(u"UIConfig.json"_s));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.bytes(), text) << "in one step";
    editor.goTo(0);
    EXPECT_FALSE(editor.mend()) << "nothing to mend in this line";
}

TEST_F(EditorTest, MendingAgainGoesToTheNextOfTheLine)
{
    editor.open(R"({ "aa": 1, "bb": 2 })");
    editor.showFindings(
        {findingAt(2, Severity::Warning, u"a"_s, u"A \"1\""_s), findingAt(11, Severity::Warning, u"b"_s, u"B"_s)});
    editor.goTo(9);
    EXPECT_TRUE(editor.mend());
    EXPECT_TRUE(editor.mend());
    EXPECT_FALSE(editor.mend());
    EXPECT_EQ(editor.bytes(), "{ \"A \\\"1\\\"\": 1, \"B\": 2 }");
}

TEST_F(EditorTest, CompletesWhileOneTypes)
{
    openAt(R"({ "MSVUnits": [{ "Operator": | }] })");
    type(u"\"di"_s);
    ASSERT_TRUE(popup().isVisible());
    EXPECT_EQ(popup().topLevelItem(0)->text(0), u"Divide"_s);
    EXPECT_LT(popup().width(), 200) << "no wider than what it lists";
    press(Qt::Key_Return);
    EXPECT_FALSE(popup().isVisible());
    EXPECT_EQ(editor.bytes(), "{ \"MSVUnits\": [{ \"Operator\": \"Divide\" }] }");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor.bytes(), "{ \"MSVUnits\": [{ \"Operator\": \"di }] }");
}

TEST_F(EditorTest, CompletionTakesWordsWithBlanksAndSlashes)
{
    openAt(R"({ "Representations": [{ "X": |, "Y1": "Voltage / V" }] })");
    type(u"\"time / s te"_s);
    ASSERT_TRUE(popup().isVisible());
    EXPECT_TRUE(popup().topLevelItem(0)->text(0).contains("Time / s"_L1));
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    const QString chosen = popup().currentItem()->text(0);
    press(Qt::Key_Tab);
    EXPECT_EQ(QString::fromUtf8(editor.bytes()),
              u"{ \"Representations\": [{ \"X\": \"%1\", \"Y1\": \"Voltage / V\" }] }"_s.arg(chosen));
}

TEST_F(EditorTest, EscapeAndTheClosingQuoteEndTheCompletion)
{
    openAt(R"({ "MSVUnits": [{ "Operator": | }] })");
    type(u"\""_s);
    ASSERT_TRUE(popup().isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(popup().isVisible());
    type(u"M"_s);
    EXPECT_TRUE(popup().isVisible());
    type(u"x\""_s);
    EXPECT_FALSE(popup().isVisible());
    EXPECT_EQ(editor.bytes(), "{ \"MSVUnits\": [{ \"Operator\": \"Mx\" }] }");
}

TEST_F(EditorTest, AskedForCompletionShowsTheOthersOfACompleteWord)
{
    openAt(R"({ "MSVUnits": [{ "Operator": "Divide|" }] })");
    press(Qt::Key_Space, Qt::ControlModifier);
    ASSERT_TRUE(popup().isVisible());
    EXPECT_EQ(popup().topLevelItemCount(), 3);
    EXPECT_EQ(popup().currentItem()->text(0), u"Divide"_s);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_EQ(editor.bytes(), "{ \"MSVUnits\": [{ \"Operator\": \"Multiply\" }] }");
    openAt("{ | }");
    press(Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(popup().isVisible()) << "keys, without anything typed";
    editor.goTo(0);
    EXPECT_FALSE(popup().isVisible());
}

TEST_F(EditorTest, AClickChoosesACandidate)
{
    openAt(R"({ "MSVUnits": [{ "Operator": | }] })");
    type(u"\""_s);
    ASSERT_TRUE(popup().isVisible());
    const QRect row = popup().visualItemRect(popup().topLevelItem(1));
    QTest::mouseClick(popup().viewport(), Qt::LeftButton, {}, row.center());
    EXPECT_EQ(editor.bytes(), "{ \"MSVUnits\": [{ \"Operator\": \"Multiply\" }] }");
}

TEST_F(EditorTest, GoesToDefinitionsAndBack)
{
    const QByteArray text = shippedBytes(u"UIConfig.json"_s);
    editor.open(text);
    const qsizetype use = text.indexOf("\"Blue\"", text.indexOf("Default colors")) + 1;
    const qsizetype definition = text.indexOf("\"Blue\"");
    editor.goTo(use);
    press(Qt::Key_F12);
    EXPECT_EQ(editor.cursorOffset(), definition);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(editor.cursorOffset(), use);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(editor.cursorOffset(), definition);
    editor.goBack();
    editor.goBack();
    EXPECT_EQ(editor.cursorOffset(), use);
}

TEST_F(EditorTest, GoingSomewhereUnfoldsAndShowsItBelowTheTop)
{
    const QByteArray text = shippedBytes(u"UIConfig.json"_s);
    editor.open(text);
    editor.SendScintilla(QsciScintilla::SCI_COLOURISE, 0UL, -1L);
    editor.SendScintilla(QsciScintilla::SCI_FOLDALL, 0UL); // closes all
    const qsizetype place = text.indexOf("\"Green\"");
    const long line = editor.SendScintilla(QsciScintilla::SCI_LINEFROMPOSITION, static_cast<unsigned long>(place));
    ASSERT_FALSE(editor.SendScintilla(QsciScintilla::SCI_GETLINEVISIBLE, static_cast<unsigned long>(line)));
    editor.goTo(place);
    EXPECT_TRUE(editor.SendScintilla(QsciScintilla::SCI_GETLINEVISIBLE, static_cast<unsigned long>(line)));
    editor.SendScintilla(QsciScintilla::SCI_FOLDALL, 1UL); // opens all
    editor.goTo(place);
    const long row = line - editor.firstVisibleLine();
    const long rows = editor.SendScintilla(QsciScintilla::SCI_LINESONSCREEN);
    EXPECT_NEAR(static_cast<double>(row), static_cast<double>(rows) / 3, 2);
    EXPECT_TRUE(editor.hasFocus());
    editor.goTo(-5);
    EXPECT_EQ(editor.cursorOffset(), 0);
    editor.goTo(10'000'000);
    EXPECT_EQ(editor.cursorOffset(), text.size());
}

TEST_F(EditorTest, FollowsThePalette)
{
    editor.open("{}");
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    editor.setPalette(dark);
    QApplication::processEvents();
    EXPECT_GT(editor.lexer()->color(4).lightness(), 120);
    EXPECT_LT(editor.lexer()->paper(4).lightness(), 60);
}

TEST_F(EditorTest, SurvivesRandomKeys)
{
    Random random(5);
    const QList<Qt::Key> keys{Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Tab,  Qt::Key_Left,   Qt::Key_Right,
                              Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Home, Qt::Key_Delete, Qt::Key_Escape,
                              Qt::Key_F12,    Qt::Key_PageDown,  Qt::Key_End};
    const QString letters = u"{}[]:,\"\\ abXY1/µ"_s;
    openAt(R"({ "Axes combinations": [{ "X": [{ "Name": "|" }] }] })");
    for (int i = 0; i < 1500; ++i) {
        const int choice = random.below(10);
        if (choice == 0) {
            press(random.of(keys), random.oneIn(4) ? Qt::ControlModifier : Qt::NoModifier);
        } else if (choice == 1) {
            press(random.oneIn(2) ? Qt::Key_Space : Qt::Key_Z, Qt::ControlModifier);
        } else if (choice == 2) {
            press(random.of(keys), random.oneIn(2) ? Qt::AltModifier : Qt::ShiftModifier);
        } else if (choice == 3) {
            showCheck();
        } else {
            type(letters.at(random.below(letters.size())));
        }
    }
    SUCCEED();
}

TEST_F(EditorTest, ShowsTheFindingsOfAnyDocument)
{
    const QJsonObject shipped = shippedObject(u"UIConfig.json"_s);
    DocumentMutator mutator(9, {u"Step"_s, u"Voltage / V"_s, u"LINEAR"_s});
    for (int i = 0; i < 25; ++i) {
        const QByteArray text = mutator.mutatedText(shipped);
        editor.open(text);
        const auto snapshot = makeSnapshot(text, u"a.json"_s);
        editor.showFindings(snapshot->result.findings);
        for (const Finding& finding : snapshot->result.findings) {
            ASSERT_TRUE(editor.findingsAt(finding.offset).contains(finding.message)) << finding.message.toStdString();
            editor.goTo(finding.offset);
            editor.mend();
        }
    }
}
