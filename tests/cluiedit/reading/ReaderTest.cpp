#include <cluiedit/reading/Reader.h>

#include <data/ShippedFile.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;
using cluiedit::Reader;
using cluiedit::Snapshot;

namespace {

class ReaderOf : public testing::Test
{
protected:
    void SetUp() override
    {
        reader->setName(u"name.json"_s);
        QObject::connect(reader.get(), &Reader::made, reader.get(),
                         [this](const std::shared_ptr<const Snapshot>& snapshot) { made.push_back(snapshot); });
    }

    bool waitForReading() const
    {
        return QTest::qWaitFor([&] { return !reader->isBehind(); }, 20'000);
    }

    QByteArray text = "{}";
    int asked = 0;
    std::unique_ptr<Reader> reader = std::make_unique<Reader>([this] {
        ++asked;
        return text;
    });
    std::vector<std::shared_ptr<const Snapshot>> made;
};

/// A document that takes a while to read.
QByteArray largeDocument()
{
    QJsonObject root = shippedObject(u"UIConfig.json"_s);
    QJsonArray entries = root.value(u"Axes combinations"_s).toArray();
    const QJsonArray some = entries;
    for (int i = 0; i < 20; ++i) {
        for (const auto& entry : some) {
            entries.append(entry);
        }
    }
    root.insert(u"Axes combinations"_s, entries);
    return QJsonDocument(root).toJson();
}

} // namespace

TEST_F(ReaderOf, SaysWhatIsMadeOfTheText)
{
    text = shippedBytes(u"UIConfig.json"_s);
    reader->textChanged();
    EXPECT_TRUE(reader->isBehind());
    ASSERT_TRUE(waitForReading());
    ASSERT_EQ(made.size(), 1U);
    EXPECT_TRUE(made.front()->loads());
    EXPECT_EQ(made.front()->text, text);
}

TEST_F(ReaderOf, ReadsSeveralChangesOfOneActionOnce)
{
    for (int i = 0; i < 100; ++i) {
        reader->textChanged();
    }
    ASSERT_TRUE(waitForReading());
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(made.size(), 1U);
}

TEST_F(ReaderOf, ANewerTextCancelsAnOlderOne)
{
    text = largeDocument();
    reader->textChanged();
    QCoreApplication::sendPostedEvents(reader.get()); // it begins to read, and cannot tell before it comes here again
    ASSERT_EQ(asked, 1);
    text = "[]";
    for (int i = 0; i < 10; ++i) {
        reader->textChanged();
    }
    ASSERT_TRUE(waitForReading());
    EXPECT_EQ(asked, 2);
    ASSERT_EQ(made.size(), 1U);
    EXPECT_EQ(made.front()->text, "[]");
    EXPECT_EQ(made.front()->result.verdict.error, u"\"name.json\" does not hold a JSON object"_s);
}

TEST_F(ReaderOf, TellsInItsOwnThread)
{
    QThread* thread = nullptr;
    QObject::connect(reader.get(), &Reader::made, [&] { thread = QThread::currentThread(); });
    reader->textChanged();
    ASSERT_TRUE(waitForReading());
    EXPECT_EQ(thread, reader->thread());
}

TEST_F(ReaderOf, EndsInTheMiddleOfAReading)
{
    text = largeDocument();
    for (int i = 0; i < 20; ++i) {
        reader->textChanged();
        QTest::qWait(i / 4);
        reader = std::make_unique<Reader>([this] { return text; });
    }
    reader->textChanged();
    EXPECT_TRUE(waitForReading());
}
