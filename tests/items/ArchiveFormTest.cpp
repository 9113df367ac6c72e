#include <items/DQdUAnalysisItem.h>
#include <items/ProcessedDataItem.h>
#include <items/PythonGraphAnalysisItem.h>
#include <items/PythonTableAnalysisItem.h>
#include <items/RagonePlotItem.h>
#include <items/StatisticsItem.h>
#include <items/ZFitItem.h>

#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>
#include <support/VirtualSlot.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace Qt::StringLiterals;

// What every record keeps to when it is written into a project and read back. Which key belongs to which field stands
// in the tests of the records.
namespace {

static_assert(std::is_abstract_v<AAnalysisItem>);
static_assert(sizeof(AAnalysisItem) == sizeof(void*), "the base has no fields");
static_assert(std::has_virtual_destructor_v<AAnalysisItem>);

static_assert(std::is_base_of_v<AAnalysisItem, DQdUAnalysisItem>);
static_assert(std::is_base_of_v<AAnalysisItem, ProcessedDataItem>);
static_assert(std::is_base_of_v<AAnalysisItem, PythonAnalysisItem>);
static_assert(std::is_base_of_v<PythonAnalysisItem, PythonGraphAnalysisItem>);
static_assert(std::is_base_of_v<PythonAnalysisItem, PythonTableAnalysisItem>);
static_assert(std::is_base_of_v<AAnalysisItem, RagonePlotChildItem>);
static_assert(!std::is_base_of_v<AAnalysisItem, RagonePlotItem>);
static_assert(std::is_base_of_v<AAnalysisItem, StatisticsChildItem>);
static_assert(!std::is_base_of_v<AAnalysisItem, StatisticsItem>);
static_assert(std::is_base_of_v<AAnalysisItem, ZFitItem>);

/// The archive form of a record in which every field holds something.
template <typename Record>
QJsonObject fullForm();

template <>
QJsonObject fullForm<DQdUAnalysisItem>()
{
    return jsonObject(R"({"title": "t", "category": "c", "streamX": "x", "streamY1": "y"})");
}

template <>
QJsonObject fullForm<ProcessedDataItem>()
{
    return jsonObject(R"({"title": "t", "category": "c", "streamX": "x", "streamY1": "y1", "streamY2": "y2",
                          "processedYAxis": ["p2", "p1", "p2", ""]})");
}

template <>
QJsonObject fullForm<PythonAnalysisItem>()
{
    return jsonObject(R"({"title": "t", "category": "c", "id": "i",
                          "inputs": ["b", "a", "b", ""], "dutRuns": ["/runs/2", "/runs/1"]})");
}

template <>
QJsonObject fullForm<PythonGraphAnalysisItem>()
{
    QJsonObject form = fullForm<PythonAnalysisItem>();
    form.insert(u"streamX"_s, u"x"_s);
    form.insert(u"streamY1"_s, u"y1"_s);
    form.insert(u"streamY2"_s, u"y2"_s);
    return form;
}

template <>
QJsonObject fullForm<PythonTableAnalysisItem>()
{
    QJsonObject form = fullForm<PythonAnalysisItem>();
    form.insert(u"outputs"_s, QJsonArray{u"z"_s, u"y"_s, u"z"_s});
    return form;
}

template <>
QJsonObject fullForm<RagonePlotChildItem>()
{
    return jsonObject(R"({"title": "t", "category": "c", "streamX": "x", "streamY": "y", "type": "k"})");
}

template <>
QJsonObject fullForm<StatisticsChildItem>()
{
    QJsonObject form = fullForm<RagonePlotChildItem>();
    form.insert(u"isStatisticsEnvelope"_s, true);
    form.insert(u"isStatisticsErrorBars"_s, true);
    return form;
}

template <typename Curve>
QJsonObject graphForm()
{
    QJsonObject second = fullForm<Curve>();
    second.insert(u"title"_s, u"another"_s);
    return {{u"title"_s, u"graph"_s}, {u"graphItemsList"_s, QJsonArray{second, fullForm<Curve>(), fullForm<Curve>()}}};
}

template <>
QJsonObject fullForm<RagonePlotItem>()
{
    return graphForm<RagonePlotChildItem>();
}

template <>
QJsonObject fullForm<StatisticsItem>()
{
    return graphForm<StatisticsChildItem>();
}

template <>
QJsonObject fullForm<ZFitItem>()
{
    return jsonObject(R"({"equivalentCircuit": "R1+(R2/C2)+L", "viscosity": "0.89", "rotationRate": "1600"})");
}

/// What a value of the type of \p value becomes when it is missing.
QJsonValue emptyOf(const QJsonValue& value)
{
    if (value.isArray()) {
        return QJsonArray();
    }
    return value.isBool() ? QJsonValue(false) : QJsonValue(QString());
}

QJsonObject emptyOf(QJsonObject form)
{
    for (auto field : form) {
        field = emptyOf(field);
    }
    return form;
}

template <typename Record>
class ArchiveForm : public testing::Test
{
protected:
    static_assert(std::has_virtual_destructor_v<Record>);

    static Record recordOf(const QJsonObject& form, int version = 29)
    {
        Record record;
        EXPECT_TRUE(readInto(record, form, version));
        return record;
    }
};

using Records = testing::Types<DQdUAnalysisItem, ProcessedDataItem, PythonAnalysisItem, PythonGraphAnalysisItem,
                               PythonTableAnalysisItem, RagonePlotChildItem, RagonePlotItem, StatisticsChildItem,
                               StatisticsItem, ZFitItem>;

TYPED_TEST_SUITE(ArchiveForm, Records);

} // namespace

TYPED_TEST(ArchiveForm, WritesExactlyWhatItRead)
{
    const QJsonObject full = fullForm<TypeParam>();
    EXPECT_EQ(written(this->recordOf(full)), full);
}

TYPED_TEST(ArchiveForm, DefaultConstructedIsWrittenWithEveryKeyAndNothingInIt)
{
    EXPECT_EQ(written(TypeParam()), emptyOf(fullForm<TypeParam>()));
}

TYPED_TEST(ArchiveForm, EmptyObjectReadsAsEmptyFieldsAndSucceeds)
{
    EXPECT_EQ(written(this->recordOf({})), emptyOf(fullForm<TypeParam>()));
}

TYPED_TEST(ArchiveForm, ReadReplacesEveryField)
{
    TypeParam record = this->recordOf(fullForm<TypeParam>());
    EXPECT_TRUE(readInto(record, fullForm<TypeParam>()));
    EXPECT_EQ(written(record), fullForm<TypeParam>());
    EXPECT_TRUE(readInto(record, {}));
    EXPECT_EQ(written(record), emptyOf(fullForm<TypeParam>()));
}

TYPED_TEST(ArchiveForm, MissingOrMistypedFieldReadsAsEmptyAndSpoilsNoOther)
{
    const QJsonObject full = fullForm<TypeParam>();
    for (const QString& key : full.keys()) {
        for (const QJsonValue& wrong : valuesOfOtherTypes(full.value(key).type())) {
            QJsonObject spoilt = full;
            spoilt.insert(key, wrong);
            TypeParam record = this->recordOf(full);
            EXPECT_TRUE(readInto(record, spoilt));
            QJsonObject expected = full;
            expected.insert(key, emptyOf(full.value(key)));
            EXPECT_EQ(written(record), expected);
        }
    }
}

TYPED_TEST(ArchiveForm, WriteOverwritesItsKeysAndLeavesOthersInPlace)
{
    QJsonObject object = emptyOf(fullForm<TypeParam>());
    object.insert(object.keys().first(), 1);
    object.insert(u"other"_s, u"kept"_s);
    QJsonObject expected = fullForm<TypeParam>();
    expected.insert(u"other"_s, u"kept"_s);
    EXPECT_EQ(written(this->recordOf(fullForm<TypeParam>()), object), expected);
}

TYPED_TEST(ArchiveForm, IsTheSameForEveryVersion)
{
    const QJsonObject full = fullForm<TypeParam>();
    for (const int version : {-1, 0, 1, 29, 1000}) {
        EXPECT_EQ(written(this->recordOf(full, version), {}, version), full);
    }
}

TYPED_TEST(ArchiveForm, CopiesCarryEveryFieldAndAreIndependent)
{
    TypeParam original = this->recordOf(fullForm<TypeParam>());
    const TypeParam constructed(original);
    TypeParam assigned;
    assigned = original;
    original = TypeParam();
    EXPECT_EQ(written(constructed), fullForm<TypeParam>());
    EXPECT_EQ(written(assigned), fullForm<TypeParam>());
    EXPECT_EQ(written(original), emptyOf(fullForm<TypeParam>()));
}

#if HAVE_VIRTUAL_SLOTS
TYPED_TEST(ArchiveForm, VirtualOperationsAreDestructorReadWrite)
{
    EXPECT_EQ(virtualSlot(&TypeParam::read), 2U);
    EXPECT_EQ(virtualSlot(&TypeParam::write), 3U);
    EXPECT_EQ(virtualSlots<TypeParam>(), 4U);
}

TEST(AAnalysisItem, VirtualOperationsAreDestructorReadWrite)
{
    EXPECT_EQ(virtualSlot(&AAnalysisItem::read), 2U);
    EXPECT_EQ(virtualSlot(&AAnalysisItem::write), 3U);
    EXPECT_EQ(virtualSlots<AAnalysisItem>(), 4U);
}
#endif

TEST(AAnalysisItem, ReadsAndWritesWhateverRecordStandsBehindIt)
{
    PythonGraphAnalysisItem graph;
    AAnalysisItem& item = graph;
    EXPECT_TRUE(readInto(item, fullForm<PythonGraphAnalysisItem>()));
    EXPECT_EQ(graph.getStreamY2(), u"y2"_s);
    EXPECT_EQ(written(item), fullForm<PythonGraphAnalysisItem>());
}

TEST(AAnalysisItem, AssignmentOfTheBaseCopiesNothing)
{
    DQdUAnalysisItem full;
    full.setTitle(u"title"_s);
    DQdUAnalysisItem other;
    AAnalysisItem& base = other;
    EXPECT_EQ(&(base = full), &base); // NOLINT(cppcoreguidelines-slicing): nothing but the base is assigned
    EXPECT_EQ(other.getTitle(), QString());
}
