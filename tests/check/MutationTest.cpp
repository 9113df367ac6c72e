// Whatever is done to the shipped document, the check and the loader agree: there is an error exactly when the loader
// refuses the document, with its sentence, and the first error is at its place, of which the sentence tells.

#include "LoaderPlace.h"

#include <batterydata/RawDataCollection.h>
#include <check/Check.h>
#include <config/Configuration.h>
#include <config/UIConfig.h>
#include <data/ShippedFile.h>
#include <support/DocumentFile.h>
#include <support/DocumentMutator.h>
#include <support/QtPrinters.h>
#include <support/Random.h>

#include <QJsonDocument>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using cluiconfig::check::checkDocument;
using cluiconfig::check::Finding;
using cluiconfig::check::Result;
using cluiconfig::check::Rule;
using cluiconfig::check::Severity;

namespace {

/// What stands at the place \p pointer of \p root; undefined if nothing does.
QJsonValue valueAt(const QJsonObject& root, const QString& pointer)
{
    QJsonValue value = root;
    const QStringList steps = pointer.split(u'/').mid(1);
    for (QString step : steps) {
        step = step.replace(u"~1"_s, u"/"_s).replace(u"~0"_s, u"~"_s);
        bool isIndex = false;
        const qlonglong index = step.toLongLong(&isIndex);
        value = value.isArray() && isIndex ? value.toArray().at(index) : value.toObject().value(step);
    }
    return value;
}

/// More than the default of some hundreds where somebody asks for it.
int mutations()
{
    bool isNumber = false;
    const int asked = qEnvironmentVariableIntValue("CLCONFIGUI_CHECK_MUTATIONS", &isNumber);
    return isNumber ? asked : 600;
}

/// Whether \p finding stands where the loader refuses: at the place itself; at the object that lacks it or the value
/// that is no object; of a reference, at the word of it that is wrong.
bool isShownAt(const QString& place, const Finding& finding, const QJsonObject& root)
{
    if (finding.pointer == place) {
        return true;
    }
    if (finding.rule == Rule::MissingKey || finding.rule == Rule::WrongType) {
        const bool isMissing = valueAt(root, place).isUndefined();
        return isMissing && finding.pointer == place.first(place.lastIndexOf(u'/'));
    }
    return (finding.rule == Rule::UnknownArray && finding.pointer == place + u"/Name"_s)
        || (finding.rule == Rule::UnknownCategory && finding.pointer == place + u"/Category"_s);
}

/// The places behind the opening quotes of all texts and keys of \p bytes, or those of all numbers.
QList<qsizetype> placesOf(const QByteArray& bytes, bool areTexts)
{
    static const QRegularExpression token(u"\"(?:[^\"\\\\]|\\\\.)*\"|-?[0-9][0-9.eE+-]*"_s);
    QList<qsizetype> places;
    QRegularExpressionMatchIterator matches = token.globalMatch(QString::fromLatin1(bytes));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const bool isText = match.captured().startsWith(u'"');
        if (isText == areTexts) {
            places.append(match.capturedStart() + (isText ? 1 : 0));
        }
    }
    return places;
}

class CheckedMutations : public testing::Test
{
protected:
    void SetUp() override { ASSERT_FALSE(shipped.isEmpty()); }

    /// Compares what the check and the loader say of \p bytes, which Qt reads as an object. The sentence of the loader
    /// tells the place if \p tellsPlace.
    void compare(const QByteArray& bytes, bool tellsPlace)
    {
        const QJsonObject root = QJsonDocument::fromJson(bytes).object();
        file.write(bytes);
        config.deleteAll();
        QString message;
        const bool loads = config.readUIConfiguration(file.path(), message);

        const Result result = checkDocument(bytes, root);
        const QList<Finding>& findings = result.findings;
        ASSERT_EQ(result.verdict.loads, loads) << message.toStdString();
        EXPECT_EQ(result.verdict.error, message);
        const bool hasError = std::any_of(findings.begin(), findings.end(),
                                          [](const Finding& each) { return each.severity == Severity::Error; });
        ASSERT_EQ(hasError, !loads) << message.toStdString()
                                    << (hasError ? findings.first().message.toStdString() : std::string());
        EXPECT_TRUE(std::none_of(findings.begin(), findings.end(), [](const Finding& each) {
            return each.rule == Rule::Refused;
        })) << message.toStdString();
        if (loads) {
            return;
        }
        ++refused;
        uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
        uiconfig::Configuration configuration;
        uiconfig::readConfiguration(root, {catalogue, configuration, refusals});
        ASSERT_EQ(refusals.all().size(), 1);
        const uiconfig::Refusal& refusal = refusals.all().constFirst();
        EXPECT_EQ(refusal.sentence, message);
        EXPECT_TRUE(!tellsPlace || isPlaceOf(message, root, refusal.place))
            << message.toStdString() << "\nplace: " << refusal.place.toStdString();
        const Finding& first = findings.first();
        EXPECT_EQ(first.severity, Severity::Error);
        EXPECT_TRUE(isShownAt(refusal.place, first, root))
            << message.toStdString() << "\nplace: " << refusal.place.toStdString()
            << "\nfirst error: " << first.pointer.toStdString() << ' ' << first.message.toStdString();
    }

    UIConfig& config = lumo::tools::Singleton<UIConfig>::instance();
    const cl::batterydata::ClConfigDataArrayManager& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    const QJsonObject shipped = shippedObject(u"UIConfig.json"_s);
    const DocumentFile file{shipped};
    // No name holds a place marker: the loader's message would fill it, and no longer tell the place.
    DocumentMutator mutator{29, {u"Voltage / V"_s, u"Cycle"_s, u"Potentiostat"_s}};
    int refused = 0;
};

} // namespace

TEST_F(CheckedMutations, HaveTheVerdictOfTheLoaderAndItsRefusalFirst)
{
    const int total = mutations();
    for (int i = 0; i < total; ++i) {
        SCOPED_TRACE(i);
        const QByteArray bytes = mutator.mutatedText(shipped);
        ASSERT_TRUE(QJsonDocument::fromJson(bytes).isObject()) << bytes.constData();
        compare(bytes, true);
    }
    EXPECT_GT(refused, total / 5);
    EXPECT_LT(refused, total - total / 5);
}

// What the loader reads without complaint, and hardly anybody else: the check has a second parser for the places.
TEST_F(CheckedMutations, OfHowTextsAndNumbersAreWrittenHaveTheVerdictOfTheLoaderToo)
{
    const QList<QByteArray> beginnings = {
        "\\u0000", "\xEF\xBB\xBF",     "\\ud800", "\\udc00x",       "\t",  "\\q", "%1", "%2 ",
        "%L1",     "\xF0\x9D\x84\x9E", "\\ufb00", "\\ud834\\udd1e", "\\\\"};
    const QList<QByteArray> numbers = {".5",  "0.",    "-0.",    "0.e5",
                                       "29.", "1.e-3", "29.0e0", QByteArray(400, '7') + "e-300"};
    Random random(7);
    const int total = mutations();
    for (int i = 0; i < total; ++i) {
        SCOPED_TRACE(i);
        QByteArray bytes = random.oneIn(3) ? mutator.mutatedText(shipped) : QJsonDocument(shipped).toJson();
        for (int changes = 1 + random.below(3); changes > 0; --changes) {
            const bool isText = !random.oneIn(4);
            const QList<qsizetype> places = placesOf(bytes, isText);
            if (isText && !places.isEmpty()) {
                bytes.insert(random.of(places), random.of(beginnings));
            } else if (!places.isEmpty()) {
                const qsizetype begin = random.of(places);
                const auto* const end = std::find_if(bytes.cbegin() + begin, bytes.cend(), [](char byte) {
                    return !QByteArrayView("+-.0123456789eE").contains(byte);
                });
                bytes.replace(begin, end - bytes.cbegin() - begin, random.of(numbers));
            }
        }
        ASSERT_TRUE(QJsonDocument::fromJson(bytes).isObject()) << bytes.constData();
        compare(bytes, false);
    }
    EXPECT_GT(refused, total / 5);
    EXPECT_LT(refused, total - total / 5);
}
