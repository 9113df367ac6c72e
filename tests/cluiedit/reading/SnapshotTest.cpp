// What the editor says of a text is what the check says of a file that holds it.

#include <cluiedit/reading/Snapshot.h>

#include <check/Check.h>
#include <config/Configuration.h>
#include <data/ShippedFile.h>
#include <document/DocumentTables.h>
#include <support/DocumentMutator.h>

#include <QJsonDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using cluiconfig::check::Finding;
using cluiconfig::check::Report;
using cluiedit::makeSnapshot;

namespace {

QString described(const QList<Finding>& findings)
{
    QString text;
    for (const Finding& finding : findings) {
        text += u"%1:%2:%3 %4 %5\n"_s.arg(finding.line)
                    .arg(finding.column)
                    .arg(finding.offset)
                    .arg(describe(finding.rule).name, finding.message);
    }
    return text;
}

void expectAsInAFile(const QByteArray& text)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"document.json"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    const Report report = cluiconfig::check::check(path);
    const auto snapshot = makeSnapshot(text, path);
    EXPECT_EQ(snapshot->loads(), report.verdict.loads);
    EXPECT_EQ(snapshot->result.verdict.error, report.verdict.error);
    EXPECT_EQ(described(snapshot->result.findings), described(report.findings)) << text.toStdString();
}

} // namespace

TEST(Snapshot, OfTheShippedDocumentHasAllThatItGives)
{
    const QByteArray text = shippedBytes(u"UIConfig.json"_s);
    const auto snapshot = makeSnapshot(text, u"UIConfig.json"_s);
    EXPECT_TRUE(snapshot->loads());
    EXPECT_TRUE(snapshot->result.findings.isEmpty());
    EXPECT_EQ(snapshot->root(), shippedObject(u"UIConfig.json"_s));
    EXPECT_EQ(snapshot->configuration().representations.size(), 15);
    EXPECT_EQ(snapshot->axes().getAxesCombinations().size(), snapshot->configuration().axesCombinations.size());
    EXPECT_FALSE(snapshot->axes().getXAxesNames().isEmpty());
}

TEST(Snapshot, SaysWhatTheCheckSaysOfTextsThatAreNoDocument)
{
    for (const QByteArray& text : {QByteArray(), QByteArray(" \n"), QByteArray("\xEF\xBB\xBF"), QByteArray("[]"),
                                   QByteArray("1"), QByteArray("{"), QByteArray("{\"a\":}"), QByteArray("\"\xFF\""),
                                   QByteArray("{\"Version\": 29,\n \"Filters\": {,}}"), QByteArray("{}\0{}", 5)}) {
        expectAsInAFile(text);
    }
}

TEST(Snapshot, SaysWhatTheCheckSaysOfMutatedDocuments)
{
    const QJsonObject shipped = shippedObject(u"UIConfig.json"_s);
    DocumentMutator mutator(29, {u"Voltage / V"_s, u"Cycle"_s, u"Black"_s});
    for (int i = 0; i < 40; ++i) {
        const QByteArray text = mutator.mutatedText(shipped);
        expectAsInAFile(text);
        expectAsInAFile(text.first(text.size() / 2));
    }
}

TEST(Snapshot, IsNoneWhenItIsNoLongerWanted)
{
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(makeSnapshot(shippedBytes(u"UIConfig.json"_s), u"a"_s, stop.get_token()), nullptr);
}
