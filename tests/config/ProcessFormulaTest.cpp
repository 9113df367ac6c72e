#include <config/UIConfigTest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class Formulas : public UIConfigTest
{
protected:
    /// Reads a section with these groups.
    QString readGroups(const QByteArray& groups) const
    {
        return read(&UIConfigReaders::readProcessFormulaConfig, QByteArray("{\"Process Formula\": {" + groups + "}}"));
    }

    QList<std::pair<QString, QString>> x() const { return config.getAxisFormulaConfigByName(u"X"_s); }
    QList<std::pair<QString, QString>> y1() const { return config.getAxisFormulaConfigByName(u"Y1"_s); }
    QList<std::pair<QString, QString>> y2() const { return config.getAxisFormulaConfigByName(u"Y2"_s); }
};

} // namespace

TEST_F(Formulas, EachGroupServesItsAxisInFileOrder)
{
    EXPECT_EQ(readGroups(R"(
        "Y2 Formulas": [{"Displayed Formula": "-I", "Compiled Formula": "-y"}],
        "Y1 Formulas": [{"Displayed Formula": "I squared", "Compiled Formula": "y*y"}],
        "X Formulas": [{"Displayed Formula": "t/h", "Compiled Formula": "x/3600"},
                       {"Displayed Formula": "t/d", "Compiled Formula": "x/86400"}])"),
              Success);
    EXPECT_THAT(x(), ElementsAre(Pair(u"t/h"_s, u"x/3600"_s), Pair(u"t/d"_s, u"x/86400"_s)));
    EXPECT_THAT(y1(), ElementsAre(Pair(u"I squared"_s, u"y*y"_s)));
    EXPECT_THAT(y2(), ElementsAre(Pair(u"-I"_s, u"-y"_s)));
}

TEST_F(Formulas, AnyOtherAxisGetsTheFormulasOfY2)
{
    EXPECT_EQ(readGroups(R"("X Formulas": [{}, {}], "Y1 Formulas": [{}, {}, {}], "Y2 Formulas": [{}])"), Success);
    for (const QString& axis : {u"Y2"_s, u"y1"_s, u"x"_s, u""_s, u"anything"_s, u"X "_s, QString()}) {
        EXPECT_EQ(config.getAxisFormulaConfigByName(axis).size(), 1) << axis.toStdString();
    }
    EXPECT_EQ(x().size(), 2);
    EXPECT_EQ(y1().size(), 3);
}

TEST_F(Formulas, EmptySectionIsAccepted)
{
    EXPECT_EQ(readGroups(""), Success);
    EXPECT_EQ(filledSections(config), QStringList());
}

TEST_F(Formulas, UnknownGroupsJoinY2InTheOrderOfTheirNames)
{
    EXPECT_EQ(readGroups(R"(
        "x formulas": [{"Displayed Formula": "4"}, {"Displayed Formula": "5"}],
        "Y2 Formulas": [{"Displayed Formula": "3"}],
        "A": [{"Displayed Formula": "1"}, {"Displayed Formula": "2"}])"),
              Success);
    EXPECT_THAT(y2(),
                ElementsAre(Pair(u"1"_s, u""_s), Pair(u"2"_s, u""_s), Pair(u"3"_s, u""_s), Pair(u"4"_s, u""_s),
                            Pair(u"5"_s, u""_s)));
    EXPECT_THAT(x(), IsEmpty());
    EXPECT_THAT(y1(), IsEmpty());
}

TEST_F(Formulas, MissingTextsAreEmpty)
{
    EXPECT_EQ(readGroups(R"("X Formulas": [{"Displayed Formula": "t"}, {"Compiled Formula": "x"},
                                           {"Displayed Formula": 1, "Compiled Formula": ["x"]}, "t", null])"),
              Success);
    EXPECT_THAT(x(),
                ElementsAre(Pair(u"t"_s, u""_s), Pair(u""_s, u"x"_s), Pair(u""_s, u""_s), Pair(u""_s, u""_s),
                            Pair(u""_s, u""_s)));
}

TEST_F(Formulas, GroupThatIsNoArrayAddsNothing)
{
    EXPECT_EQ(readGroups(R"("X Formulas": {"Displayed Formula": "t"}, "Y1 Formulas": "t", "Other": 7)"), Success);
    EXPECT_EQ(filledSections(config), QStringList());
}

TEST_F(Formulas, SecondReadingAppends)
{
    EXPECT_EQ(readGroups(R"("X Formulas": [{"Displayed Formula": "a"}])"), Success);
    EXPECT_EQ(readGroups(R"("X Formulas": [{"Displayed Formula": "a"}])"), Success);
    EXPECT_THAT(x(), ElementsAre(Pair(u"a"_s, u""_s), Pair(u"a"_s, u""_s)));
}

TEST_F(Formulas, MissingSectionFails)
{
    for (const char* json : {R"({})", R"({"Process Formula": []})", R"({"Process formula": {}})"}) {
        EXPECT_EQ(read(&UIConfigReaders::readProcessFormulaConfig, json),
                  u"Missing Process Formula configuration node"_s)
            << json;
    }
}
