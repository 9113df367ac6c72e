#include "Snapshots.h"

#include <data/ShippedFile.h>
#include <support/DocumentMutator.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using cluiedit::Snapshot;

std::shared_ptr<const Snapshot> snapshotOf(const QJsonObject& document)
{
    auto snapshot = cluiedit::makeSnapshot(QJsonDocument(document).toJson(), u"document.json"_s);
    EXPECT_TRUE(snapshot->loads()) << snapshot->result.verdict.error.toStdString();
    return snapshot;
}

std::shared_ptr<const Snapshot> shippedSnapshot()
{
    const QJsonObject document = shippedObject(u"UIConfig.json"_s);
    EXPECT_FALSE(document.isEmpty());
    return snapshotOf(document);
}

std::shared_ptr<const Snapshot> emptySnapshot()
{
    QJsonObject document{
        {u"Version"_s, 29},
        {u"Colors"_s, QJsonObject{{u"Custom colors"_s, QJsonArray()}, {u"Default colors"_s, QJsonObject()}}},
        {u"Statistics"_s, QJsonObject()},
        {u"Ragone Plot"_s, QJsonObject()},
        {u"Processed Data"_s, QJsonArray()},
        {u"Process Formula"_s, QJsonObject()},
        {u"dQ_dU"_s, QJsonObject{{u"Table"_s, QJsonArray()}}}};
    for (const char* key : {"Axes combinations", "Representations", "MSVUnits"}) {
        document.insert(QString::fromLatin1(key), QJsonArray());
    }
    QJsonObject recipe;
    for (const char* command :
         {"GraphCommand", "ToolSummaryCommand", "ToolStatisticsCommand", "ToolProcessedDataCommand"}) {
        recipe.insert(QString::fromLatin1(command), QJsonArray());
    }
    document.insert(u"Recipe"_s, recipe);
    return snapshotOf(document);
}

void forRandomSnapshots(int attempts, const std::function<void(const std::shared_ptr<const Snapshot>&)>& test)
{
    const QJsonObject shipped = shippedObject(u"UIConfig.json"_s);
    DocumentMutator mutator(41, {u"Voltage / V"_s, u"Cycle"_s, u"Potentiostat"_s, u"Blue"_s});
    int tested = 0;
    for (int i = 0; i < attempts && !testing::Test::HasFailure(); ++i) {
        const auto snapshot = cluiedit::makeSnapshot(mutator.mutatedText(shipped), u"random.json"_s);
        if (snapshot->loads()) {
            ++tested;
            test(snapshot);
        }
    }
    EXPECT_GT(tested, attempts / 20);
}

QJsonValue valueAt(const QJsonObject& root, const QString& pointer)
{
    QJsonValue value = root;
    const QStringList steps = pointer.split(u'/').mid(1);
    for (QString step : steps) {
        step = step.replace(u"~1"_s, u"/"_s).replace(u"~0"_s, u"~"_s);
        value = value.isArray() ? value.toArray().at(step.toLongLong()) : value.toObject().value(step);
    }
    return value;
}
