#include <cluiedit/window/CompareDialog.h>

#include <gtest/gtest.h>

using cluiedit::differenceOf;
using cluiedit::LineDifference;

namespace {

void expectDifference(const QByteArray& here, const QByteArray& there, qsizetype first, qsizetype endHere,
                      qsizetype endThere)
{
    const LineDifference difference = differenceOf(here, there);
    EXPECT_EQ(difference.first, first) << here.constData() << " / " << there.constData();
    EXPECT_EQ(difference.endHere, endHere) << here.constData() << " / " << there.constData();
    EXPECT_EQ(difference.endThere, endThere) << here.constData() << " / " << there.constData();
}

} // namespace

TEST(LineDifference, IsEmptyForEqualTexts)
{
    EXPECT_TRUE(differenceOf("", "").isEmpty());
    EXPECT_TRUE(differenceOf("a\nb\n", "a\nb\n").isEmpty());
}

TEST(LineDifference, LeavesOutWhatBothBeginAndEndWith)
{
    expectDifference("a\nb\nc\n", "a\nx\nc\n", 1, 2, 2);
    expectDifference("a\nc\n", "a\nb\nc\n", 1, 1, 2);
    expectDifference("a\nb\nc\n", "a\nc\n", 1, 2, 1);
    expectDifference("x\n", "", 0, 1, 0);
}

TEST(LineDifference, CountsNoLineTwiceWhereLinesRepeat)
{
    expectDifference("a\na\n", "a\na\na\n", 2, 2, 3);
    expectDifference("a\na\na", "a\na", 2, 3, 2);
}
