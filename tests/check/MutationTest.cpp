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

#include <QJsonDocument>

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

} // namespace

TEST(CheckedMutations, HaveTheVerdictOfTheLoaderAndItsRefusalFirst)
{
    auto& config = lumo::tools::Singleton<UIConfig>::instance();
    const auto& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    const QJsonObject shipped = shippedObject(u"UIConfig.json"_s);
    ASSERT_FALSE(shipped.isEmpty());
    const DocumentFile file(shipped);
    // No name holds a place marker: the loader's message would fill it, and no longer tell the place.
    DocumentMutator mutator(29, {u"Voltage / V"_s, u"Cycle"_s, u"Potentiostat"_s});
    int refused = 0;
    const int total = mutations();
    for (int i = 0; i < total; ++i) {
        const QByteArray bytes = mutator.mutatedText(shipped);
        ASSERT_TRUE(QJsonDocument::fromJson(bytes).isObject()) << bytes.constData();
        const QJsonObject root = QJsonDocument::fromJson(bytes).object();
        file.write(bytes);
        config.deleteAll();
        QString message;
        const bool loads = config.readUIConfiguration(file.path(), message);

        const Result result = checkDocument(bytes, root);
        const QList<Finding>& findings = result.findings;
        ASSERT_EQ(result.verdict.loads, loads) << "mutation " << i << ": " << message.toStdString();
        EXPECT_EQ(result.verdict.error, message) << "mutation " << i;
        const bool hasError = std::any_of(findings.begin(), findings.end(),
                                          [](const Finding& each) { return each.severity == Severity::Error; });
        ASSERT_EQ(hasError, !loads) << "mutation " << i << ": " << message.toStdString()
                                    << (hasError ? findings.first().message.toStdString() : std::string());
        EXPECT_TRUE(std::none_of(findings.begin(), findings.end(),
                                 [](const Finding& each) { return each.rule == Rule::Refused; }))
            << "mutation " << i << ": " << message.toStdString();
        if (!loads) {
            ++refused;
            uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
            uiconfig::Configuration configuration;
            uiconfig::readConfiguration(root, {catalogue, configuration, refusals});
            ASSERT_EQ(refusals.all().size(), 1);
            const uiconfig::Refusal& refusal = refusals.all().constFirst();
            EXPECT_EQ(refusal.sentence, message);
            EXPECT_TRUE(isPlaceOf(message, root, refusal.place))
                << "mutation " << i << ": " << message.toStdString() << "\nplace: " << refusal.place.toStdString();
            const Finding& first = findings.first();
            EXPECT_EQ(first.severity, Severity::Error);
            EXPECT_TRUE(isShownAt(refusal.place, first, root))
                << "mutation " << i << ": " << message.toStdString() << "\nplace: " << refusal.place.toStdString()
                << "\nfirst error: " << first.pointer.toStdString() << ' ' << first.message.toStdString();
        }
    }
    EXPECT_GT(refused, total / 5);
    EXPECT_LT(refused, total - total / 5);
}
