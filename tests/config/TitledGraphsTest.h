#pragma once

#include <config/UIConfigTest.h>

/// \file TitledGraphsTest.h
/// What the sections promise whose members are graphs, each under its title. A section says for itself what it is
/// called, what is said when it is missing, and how it is read and asked.

template <typename Section>
class TitledGraphs : public UIConfigTest
{
protected:
    QString readSection(const char* section) const
    {
        return read(Section::Reader, QJsonObject{{QString::fromLatin1(Section::Key), jsonValue(section)}});
    }

    QStringList titles() const
    {
        QStringList result;
        for (const auto& graph : Section::graphs(config)) {
            result.append(graph.getTitle());
        }
        return result;
    }
};

TYPED_TEST_SUITE_P(TitledGraphs);

TYPED_TEST_P(TitledGraphs, StandInTheOrderOfTheirTitlesNotOfTheDocument)
{
    EXPECT_EQ(this->readSection(R"({"b": [], "a": [], "B": []})"), Success);
    EXPECT_THAT(this->titles(), testing::ElementsAre(QStringLiteral("B"), QStringLiteral("a"), QStringLiteral("b")));
}

TYPED_TEST_P(TitledGraphs, HaveTheirCurvesInDocumentOrder)
{
    EXPECT_EQ(this->readSection(R"({"graph": [
        {"X": "Time", "Y": "Voltage", "Category": "Potentiostat", "Title": "second letter", "Type": "mean"},
        {"Title": "a"}]})"),
              Success);
    const auto graph = TypeParam::find(this->config, QStringLiteral("graph"));
    EXPECT_THAT(graph.getGraphItemsTitleList(),
                testing::ElementsAre(QStringLiteral("second letter"), QStringLiteral("a")));
    const auto curve = graph.getGraphItemsList().constFirst();
    EXPECT_EQ(curve.getStreamX(), QStringLiteral("Time"));
    EXPECT_EQ(curve.getStreamY(), QStringLiteral("Voltage"));
    EXPECT_EQ(curve.getCategory(), QStringLiteral("Potentiostat"));
    EXPECT_EQ(curve.getType(), QStringLiteral("mean"));
}

TYPED_TEST_P(TitledGraphs, MemberThatIsNoArrayIsAGraphWithoutCurves)
{
    EXPECT_EQ(this->readSection(R"({"text": "curves", "number": 1, "null": null, "object": {"Title": "a"}})"), Success);
    EXPECT_THAT(this->titles(),
                testing::ElementsAre(QStringLiteral("null"), QStringLiteral("number"), QStringLiteral("object"),
                                     QStringLiteral("text")));
    for (const auto& graph : TypeParam::graphs(this->config)) {
        EXPECT_THAT(graph.getGraphItemsList(), testing::IsEmpty()) << graph.getTitle().toStdString();
    }
}

TYPED_TEST_P(TitledGraphs, ElementThatIsNoObjectIsACurveOfEmptyTexts)
{
    EXPECT_EQ(this->readSection(R"({"graph": [1, {"Title": "a"}]})"), Success);
    EXPECT_THAT(TypeParam::find(this->config, QStringLiteral("graph")).getGraphItemsTitleList(),
                testing::ElementsAre(QString(), QStringLiteral("a")));
}

TYPED_TEST_P(TitledGraphs, SectionThatIsNoObjectFails)
{
    for (const char* section : {"[]", "null", "1", "\"text\"", "true"}) {
        EXPECT_EQ(this->readSection(section), QLatin1StringView(TypeParam::Missing)) << section;
    }
    EXPECT_EQ(this->read(TypeParam::Reader, QJsonObject()), QLatin1StringView(TypeParam::Missing));
    EXPECT_THAT(this->titles(), testing::IsEmpty());
}

TYPED_TEST_P(TitledGraphs, EmptySectionAddsNothing)
{
    EXPECT_EQ(this->readSection("{}"), Success);
    EXPECT_THAT(this->titles(), testing::IsEmpty());
}

TYPED_TEST_P(TitledGraphs, SecondReadAddsToTheFirst)
{
    EXPECT_EQ(this->readSection(R"({"b": []})"), Success);
    EXPECT_EQ(this->readSection(R"({"a": []})"), Success);
    EXPECT_THAT(this->titles(), testing::ElementsAre(QStringLiteral("b"), QStringLiteral("a")));
}

TYPED_TEST_P(TitledGraphs, LookupIsExact)
{
    EXPECT_EQ(this->readSection(R"({"Graph": [{"Title": "a"}]})"), Success);
    EXPECT_EQ(TypeParam::find(this->config, QStringLiteral("Graph")).getTitle(), QStringLiteral("Graph"));
    for (const QString& title : {QStringLiteral("graph"), QStringLiteral("Graph "), QStringLiteral(" Graph"),
                                 QStringLiteral("Grap"), QStringLiteral(""), QString()}) {
        const auto missed = TypeParam::find(this->config, title);
        EXPECT_EQ(missed.getTitle(), QString()) << title.toStdString();
        EXPECT_THAT(missed.getGraphItemsList(), testing::IsEmpty()) << title.toStdString();
    }
}

TYPED_TEST_P(TitledGraphs, FirstOfEqualTitlesIsFound)
{
    EXPECT_EQ(this->readSection(R"({"graph": [{"Title": "first"}]})"), Success);
    EXPECT_EQ(this->readSection(R"({"graph": [{"Title": "second"}]})"), Success);
    EXPECT_THAT(this->titles(), testing::SizeIs(2));
    EXPECT_THAT(TypeParam::find(this->config, QStringLiteral("graph")).getGraphItemsTitleList(),
                testing::ElementsAre(QStringLiteral("first")));
}

REGISTER_TYPED_TEST_SUITE_P(TitledGraphs, StandInTheOrderOfTheirTitlesNotOfTheDocument, HaveTheirCurvesInDocumentOrder,
                            MemberThatIsNoArrayIsAGraphWithoutCurves, ElementThatIsNoObjectIsACurveOfEmptyTexts,
                            SectionThatIsNoObjectFails, EmptySectionAddsNothing, SecondReadAddsToTheFirst,
                            LookupIsExact, FirstOfEqualTitlesIsFound);
