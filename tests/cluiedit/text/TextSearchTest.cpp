#include <cluiedit/text/TextSearch.h>
#include <support/QtPrinters.h>

#include <QElapsedTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace cluiedit;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

QByteArrayList found(const QByteArray& text, const SearchTerms& terms)
{
    QByteArrayList pieces;
    for (const Match& match : findAll(text, terms)) {
        pieces.append(QByteArray::number(match.begin) + ' ' + text.sliced(match.begin, match.end - match.begin));
    }
    return pieces;
}

} // namespace

TEST(TextSearch, FindsTextInAnyCaseUnlessTold)
{
    EXPECT_THAT(found("aA a", {u"a"_s}), ElementsAre("0 a", "1 A", "3 a"));
    EXPECT_THAT(found("aA a", {u"A"_s, true}), ElementsAre("1 A"));
    EXPECT_THAT(found("a.b axb", {u"a.b"_s}), ElementsAre("0 a.b"));
    EXPECT_THAT(found("", {u"a"_s}), IsEmpty());
    EXPECT_THAT(found("abc", {}), IsEmpty());
}

TEST(TextSearch, PlacesAreBytes)
{
    EXPECT_THAT(found("µV µV", {u"V"_s}), ElementsAre("2 V", "6 V"));
    EXPECT_THAT(found("\xEF\xBB\xBF{a}", {u"a"_s}), ElementsAre("4 a"));
    EXPECT_THAT(found("\xFF\xFE a", {u"a"_s}), ElementsAre("3 a"));
    EXPECT_THAT(found("🔋a", {u"a"_s}), ElementsAre("4 a"));
}

TEST(TextSearch, WholeWordsAreNoPartsOfOthers)
{
    EXPECT_THAT(found("step Step1 a_step step", {u"step"_s, false, true}), ElementsAre("0 step", "18 step"));
    EXPECT_THAT(found("\"Y1/Y2\"", {u"/"_s, false, true}), IsEmpty());
}

TEST(TextSearch, ExpressionsHaveGroupsForTheReplacement)
{
    const QList<Match> matches = findAll("a=1 b=2", {u"(\\w)=(\\d)"_s, true, false, true}, u"\\2\\\\\\1\\0"_s);
    ASSERT_EQ(matches.size(), 2);
    EXPECT_EQ(matches.first().replacement, "1\\aa=1");
    EXPECT_EQ(findAll("a", {u"a"_s}, u"\\1"_s).first().replacement, "\\1");
    EXPECT_THAT(found("a\nb", {u"^b$"_s, true, false, true}), ElementsAre("2 b"));
    EXPECT_THAT(found("aaa", {u"x*"_s, true, false, true}), IsEmpty()) << "what is empty is not found";
}

TEST(TextSearch, TellsWhatIsWrongWithAnExpression)
{
    EXPECT_NE(errorIn({u"("_s, false, false, true}), QString());
    EXPECT_NE(errorIn({u")("_s, false, true, true}), QString());
    EXPECT_EQ(errorIn({u"("_s}), QString());
    EXPECT_THAT(found("(", {u"("_s, false, false, true}), IsEmpty());
}

TEST(TextSearch, AnExpressionThatTakesForeverEnds)
{
    QElapsedTimer timer;
    timer.start();
    findAll(QByteArray(40, 'a'), {u"(a+)+b"_s, true, false, true});
    EXPECT_LT(timer.elapsed(), 20'000);
}
