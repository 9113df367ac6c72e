#include <archive/ArchiveContext.h>
#include <base/RecordList.h>

#include <support/Json.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// Lists of child records in the archive. The library's own records hardly ever refuse; the application's may.
namespace {

constexpr int Version = 31;

struct ChildRecord
{
    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
    {
        text = object.value(u"text"_s).toString();
        readVersion = version;
        readContext = &context;
        return text != u"refuses"_s;
    }

    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
    {
        object.insert(u"text"_s, text);
        object.insert(u"version"_s, version);
        object.insert(u"sameContext"_s, readContext == &context);
        return text != u"refuses"_s;
    }

    QString text;
    int readVersion = 0;
    const cl::archive::ArchiveContext* readContext = nullptr;
};

QStringList texts(const QList<ChildRecord>& records)
{
    QStringList result;
    for (const ChildRecord& child : records) {
        result.append(child.text);
    }
    return result;
}

QList<ChildRecord> readFrom(const QJsonObject& object)
{
    cl::archive::ArchiveContext context;
    return readRecords<ChildRecord>(object.value(u"list"_s).toArray(), Version, context);
}

} // namespace

TEST(RecordList, ReadsEveryRecordInOrder)
{
    EXPECT_EQ(texts(readFrom(jsonObject(R"({"list": [{"text": "b"}, {"text": "a"}, {"text": "b"}]})"))),
              QStringList({u"b"_s, u"a"_s, u"b"_s}));
    EXPECT_EQ(texts(readFrom(jsonObject(R"({"list": []})"))), QStringList());
}

TEST(RecordList, ReadsAnElementThatIsNoObjectAsOneWithoutKeys)
{
    EXPECT_EQ(texts(readFrom(jsonObject(R"({"list": [1, {"text": "a"}, "a", null]})"))),
              QStringList({u""_s, u"a"_s, u""_s, u""_s}));
}

TEST(RecordList, ReadStopsAtTheFirstRecordThatRefusesAndDropsIt)
{
    EXPECT_EQ(texts(readFrom(jsonObject(R"({"list": [{"text": "a"}, {"text": "refuses"}, {"text": "b"}]})"))),
              QStringList({u"a"_s}));
    EXPECT_EQ(texts(readFrom(jsonObject(R"({"list": [{"text": "refuses"}, {"text": "b"}]})"))), QStringList());
}

TEST(RecordList, WriteStopsAtTheFirstRecordThatRefusesAndDropsIt)
{
    cl::archive::ArchiveContext context;
    const auto writtenTexts = [&context](const QList<ChildRecord>& records) {
        QStringList result;
        for (const auto& element : writeRecords(records, Version, context)) {
            result.append(element.toObject().value(u"text"_s).toString());
        }
        return result;
    };
    const ChildRecord a{u"a"_s};
    const ChildRecord b{u"b"_s};
    const ChildRecord refusing{u"refuses"_s};
    EXPECT_EQ(writtenTexts({a, b, a}), QStringList({u"a"_s, u"b"_s, u"a"_s}));
    EXPECT_EQ(writtenTexts({a, refusing, b}), QStringList({u"a"_s}));
    EXPECT_EQ(writtenTexts({refusing, b}), QStringList());
}

TEST(RecordList, PassesVersionAndContextOnUnchanged)
{
    cl::archive::ArchiveContext context;
    const QJsonArray array{QJsonObject{{u"text"_s, u"a"_s}}, QJsonObject{{u"text"_s, u"b"_s}}};
    const auto records = readRecords<ChildRecord>(array, Version, context);
    for (const ChildRecord& child : records) {
        EXPECT_EQ(child.readVersion, Version);
        EXPECT_EQ(child.readContext, &context);
    }
    EXPECT_EQ(writeRecords(records, -7, context),
              jsonValue(R"([
        {"text": "a", "version": -7, "sameContext": true},
        {"text": "b", "version": -7, "sameContext": true}
    ])")
                  .toArray());
}
