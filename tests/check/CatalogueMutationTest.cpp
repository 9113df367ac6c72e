// Whatever is done to the shipped catalogue, the check and the reader agree: there is an error exactly when the reader
// refuses the catalogue, with its sentence, and the first error is at the place of which the sentence tells.

#include <batterydata/ClConfigDataArrayManager.h>
#include <check/Check.h>
#include <data/ShippedFile.h>
#include <support/DocumentFile.h>
#include <support/DocumentMutator.h>
#include <support/QtPrinters.h>
#include <support/Random.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArrayManager;
using cluiconfig::check::checkCatalogue;
using cluiconfig::check::Finding;
using cluiconfig::check::Result;
using cluiconfig::check::Rule;
using cluiconfig::check::Severity;

namespace {

QJsonObject shippedCatalogue()
{
    return shippedObject(u"DataArrays.json"_s);
}

/// More than the default of some hundreds where somebody asks for it.
int mutations()
{
    bool isNumber = false;
    const int asked = qEnvironmentVariableIntValue("CLCONFIGUI_CHECK_MUTATIONS", &isNumber);
    return isNumber ? asked : 300;
}

/// A text with a changed catalogue: a few of its arrays are, or anything.
QByteArray mutatedText(const QJsonObject& shipped, DocumentMutator& mutator, Random& random)
{
    QJsonArray categories = shipped.value("Categories"_L1).toArray();
    for (int changes = random.below(3); changes > 0; --changes) {
        const int index = random.below(categories.size());
        QJsonObject category = categories.at(index).toObject();
        QJsonArray arrays = category.value("Arrays"_L1).toArray();
        const int array = random.below(arrays.size());
        arrays.replace(array, mutator.mutated(arrays.at(array)));
        category.insert(u"Arrays"_s, arrays);
        categories.replace(index, category);
    }
    QJsonObject root = shipped;
    root.insert(u"Categories"_s, categories);
    return random.oneIn(3) ? mutator.mutatedText(root) : QJsonDocument(root).toJson();
}

/// Whether \p finding stands within the text, in a line and a column that it has.
bool isInText(const Finding& finding, const QByteArray& bytes)
{
    const QList<QByteArray> lines = bytes.split('\n');
    return finding.line >= 1 && finding.line <= lines.size() && finding.column >= 1
        && finding.column <= QString::fromUtf8(lines.at(finding.line - 1)).size() + 1;
}

/// Whether \p finding stands where the reader stumbled, of which its \p message tells: at the key, at the entry that
/// lacks the key, or at what is no entry.
bool isOf(const QString& message, const Finding& finding)
{
    const QString place = message.endsWith(u')') ? message.section(u" (at "_s, -1).chopped(1) : QString();
    const bool lacksKey = finding.rule == Rule::MissingKey;
    if (place.isEmpty()) {
        return message.contains(u"format version"_s) && (finding.pointer == u"/Version"_s || lacksKey);
    }
    if (place == u"/Categories"_s) {
        return finding.pointer == place || (lacksKey && finding.pointer.isEmpty());
    }
    if (finding.pointer == place) {
        return lacksKey || message.contains(u"not an object"_s);
    }
    const QString key = finding.pointer.section(u'/', -1);
    return finding.pointer == place + u'/' + key
        && (message.contains(u"\": \"%1\" is "_s.arg(key)) || message.contains(u" for \"%1\" (at"_s.arg(key))
            || (key == u"Unit"_s && message.contains(u"\": the unit \""_s)));
}

} // namespace

TEST(CheckedCatalogues, HaveTheVerdictOfTheReaderAndItsRefusalFirst)
{
    const QJsonObject shipped = shippedCatalogue();
    ASSERT_FALSE(shipped.isEmpty());
    const DocumentFile file(shipped);
    DocumentMutator mutator(31,
                            {u"Voltage"_s, u"V"_s, u"uV"_s, u"mAh/cm2"_s, u"Unit"_s, u"Double"_s,
                             u"Unit (at /Version)"_s, u"x\" is not known for \"Name"_s,
                             QString(QChar(0xD800)) + QChar(0)});
    Random random(32);
    int refused = 0;
    const int total = mutations();
    for (int i = 0; i < total; ++i) {
        const QByteArray bytes = mutatedText(shipped, mutator, random);
        const QJsonObject root = QJsonDocument::fromJson(bytes).object();
        file.write(bytes);
        ClConfigDataArrayManager arrays;
        QString message;
        const bool loads = arrays.readCatalogue(file.path(), message);

        const Result result = checkCatalogue(file.path(), bytes, root);
        const QList<Finding>& findings = result.findings;
        ASSERT_EQ(result.verdict.loads, loads) << "mutation " << i << ": " << message.toStdString();
        EXPECT_EQ(result.verdict.error, message) << "mutation " << i;
        const bool hasError =
            std::ranges::any_of(findings, [](const Finding& each) { return each.severity == Severity::Error; });
        ASSERT_EQ(hasError, !loads) << "mutation " << i << ": " << message.toStdString();
        for (const Finding& each : findings) {
            EXPECT_TRUE(isInText(each, bytes)) << "mutation " << i << ": " << each.message.toStdString();
            EXPECT_NE(each.rule, Rule::Refused) << "mutation " << i << ": " << message.toStdString();
        }
        if (!loads) {
            ++refused;
            EXPECT_EQ(findings.first().severity, Severity::Error);
            EXPECT_TRUE(isOf(message, findings.first())) << "mutation " << i << ": " << message.toStdString()
                                                         << "\nfirst error: " << findings.first().pointer.toStdString()
                                                         << ' ' << findings.first().message.toStdString();
        }
    }
    EXPECT_GT(refused, total / 5);
    EXPECT_LT(refused, total - total / 5);
}
