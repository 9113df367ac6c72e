#include <cluiedit/text/Editor.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace cluiedit;

namespace {

constexpr qint64 Patience = 20'000; // milliseconds on a busy machine

/// How long it takes until \p text is seen and answers to keys.
qint64 timeToWorkWith(const QByteArray& text)
{
    QElapsedTimer timer;
    timer.start();
    Editor editor;
    editor.resize(640, 700);
    editor.show();
    editor.open(text);
    EXPECT_FALSE(editor.grab().isNull());
    QTest::keyClicks(&editor, u"\"a\""_s);
    EXPECT_FALSE(editor.grab().isNull());
    editor.goTo(text.size() / 2);
    EXPECT_FALSE(editor.grab().isNull());
    QTest::keyClick(&editor, Qt::Key_End, Qt::ControlModifier);
    EXPECT_FALSE(editor.grab().isNull());
    EXPECT_EQ(editor.length(), text.size() + 3);
    return timer.elapsed();
}

} // namespace

TEST(LargeText, FiftyMegabytesOpenAtOnceAndWithoutColors)
{
    QByteArray text = "[\n";
    while (text.size() < 50'000'000) {
        text += "    { \"Name\": \"Voltage / V\", \"Category\": \"Potentiostat\" },\n";
    }
    EXPECT_LT(timeToWorkWith(text), Patience);
    Editor editor;
    editor.open(text);
    EXPECT_EQ(editor.lexer(), nullptr);
    editor.open("{}");
    EXPECT_NE(editor.lexer(), nullptr);
}

TEST(LargeText, OneLineOfTenMegabytesOpens)
{
    EXPECT_LT(timeToWorkWith('[' + QByteArray("{\"Name\":\"Voltage / V\"},").repeated(10'000'000 / 23) + ']'),
              Patience);
}

TEST(LargeText, OneLineBelowTheLimitOpens)
{
    EXPECT_LT(timeToWorkWith('[' + QByteArray("{\"Name\":\"Voltage / V\"},").repeated(4'500'000 / 23) + ']'), Patience);
}

TEST(LargeText, DeepNestingOpens)
{
    EXPECT_LT(timeToWorkWith(QByteArray("[\n").repeated(200'000)), Patience);
}
