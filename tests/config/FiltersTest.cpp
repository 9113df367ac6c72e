#include <config/UIConfigTest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Filters : public UIConfigTest
{
protected:
    QString readFilters(const QByteArray& json) const { return read(&UIConfig::readFilters, json); }
};

} // namespace

TEST_F(Filters, SkippedTasksKeepOrderRepetitionsAndEmptyTexts)
{
    EXPECT_EQ(readFilters(R"({"Filters": {"Tasks": {"Skipped": ["A", 3, "A"]}}})"), Success);
    EXPECT_THAT(config.getSkippedTasks(), ElementsAre(u"A"_s, QString(), u"A"_s));
    EXPECT_EQ(readFilters(R"({"Filters": {"Tasks": {"Skipped": ["B"]}}})"), Success);
    EXPECT_THAT(config.getSkippedTasks(), ElementsAre(u"A"_s, QString(), u"A"_s, u"B"_s));
}

TEST_F(Filters, OtherShapesAddNothing)
{
    for (const char* json :
         {R"({})", R"({"Filters": {"Skipped": ["A"]}})", R"({"Filters": ["A"]})", R"({"Filters": {"Tasks": ["A"]}})",
          R"({"Filters": {"Tasks": {"Skipped": "A"}}})", R"({"Filters": {"Tasks": {"Skipped": {"A": "A"}}}})",
          R"({"Filters": {"Tasks": {"Skipped": []}}})", R"({"Tasks": {"Skipped": ["A"]}})"}) {
        EXPECT_EQ(readFilters(json), Success) << json;
    }
    EXPECT_THAT(config.getSkippedTasks(), IsEmpty());
}
