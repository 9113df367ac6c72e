// Whatever is done to the shipped document, the check and the loader agree: there is an error exactly when the loader
// refuses the document, with its sentence, and the first error is at its place, of which the sentence tells.

#include "LoaderPlace.h"

#include <batterydata/RawDataCollection.h>
#include <check/Check.h>
#include <config/Configuration.h>
#include <config/UIConfig.h>
#include <support/ConfigDocument.h>
#include <support/QtPrinters.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace Qt::StringLiterals;
using cluiconfig::check::checkDocument;
using cluiconfig::check::Finding;
using cluiconfig::check::Result;
using cluiconfig::check::Rule;
using cluiconfig::check::Severity;

namespace {

QByteArray shippedBytes()
{
    QFile file(QStringLiteral(SHIPPED_DATA_DIRECTORY "/UIConfig.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What stands at the place \p pointer of \p root; undefined if nothing does.
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

/// More than the default of some hundreds where somebody asks for it.
int mutations()
{
    bool isNumber = false;
    const int asked = qEnvironmentVariableIntValue("CLCONFIGUI_CHECK_MUTATIONS", &isNumber);
    return isNumber ? asked : 600;
}

class Mutator
{
public:
    explicit Mutator(unsigned seed)
        : m_random(seed)
    {
    }

    /// A document with one to three changes somewhere in it, as text.
    QByteArray mutated(const QJsonObject& document)
    {
        QJsonValue value = document;
        for (qsizetype changes = 1 + below(3); changes > 0; --changes) {
            value = changed(value);
        }
        const QJsonObject object = value.isObject() ? value.toObject() : QJsonObject{{u"Version"_s, value}};
        return withRepeatedKey(QJsonDocument(object).toJson());
    }

    qsizetype below(qsizetype limit) { return std::uniform_int_distribution<qsizetype>(0, limit - 1)(m_random); }

private:
    /// Sometimes with a second member under a key that stands first or last in the text.
    QByteArray withRepeatedKey(QByteArray bytes)
    {
        const QList<QByteArray> values = {"0", "\"text\"", "[]", "{}", "null"};
        const QByteArray& value = values[below(values.size())];
        if (bytes.contains(':') && below(10) == 0) {
            const QList<QByteArray> keys = {"Version", "Colors", "Axes combinations", "Debug", "dQ_dU"};
            const QByteArray member = '"' + keys[below(keys.size())] + "\": " + value;
            if (below(2) == 0) {
                bytes.insert(1, member + ',');
            } else {
                bytes.insert(bytes.lastIndexOf('}'), ',' + member);
            }
        }
        if (below(10) == 0) {
            const qsizetype at = bytes.indexOf("\"Name\":", below(bytes.size()));
            if (at >= 0) {
                bytes.insert(at, "\"Name\": " + value + ',');
            }
        }
        return bytes;
    }

    QJsonValue changed(const QJsonValue& value)
    {
        if (const QJsonObject object = value.toObject(); !object.isEmpty() && below(10) != 0) {
            return changedMember(object);
        }
        if (const QJsonArray array = value.toArray(); !array.isEmpty() && below(10) != 0) {
            return changedElement(array);
        }
        if (value.isString() && below(2) == 0) {
            return changedText(value.toString());
        }
        return otherValue();
    }

    QJsonObject changedMember(QJsonObject object)
    {
        const QString key = object.keys().at(below(object.size()));
        const QJsonValue member = object.value(key);
        switch (below(8)) {
        case 0:
            object.remove(key);
            return object;
        case 1:
            object.remove(key);
            object.insert(changedText(key), member);
            return object;
        default:
            object.insert(key, changed(member));
            return object;
        }
    }

    QJsonArray changedElement(QJsonArray array)
    {
        const qsizetype index = below(array.size());
        switch (below(8)) {
        case 0:
            array.removeAt(index);
            break;
        case 1:
            array.insert(below(array.size()), array.at(index));
            break;
        case 2:
            array = QJsonArray();
            break;
        default:
            array.replace(index, changed(array.at(index)));
        }
        return array;
    }

    QString changedText(QString text)
    {
        const QString others[] = {u"Voltage / V"_s, u"Cycle"_s, u"Potentiostat"_s, u"LINEAR"_s, u"%1 %2"_s, u"a/b~c"_s};
        switch (below(4)) {
        case 0:
            return {};
        case 1:
            return others[below(std::ssize(others))];
        case 2:
            return text.toLower();
        default:
            return text.insert(below(text.size() + 1), u'x');
        }
    }

    QJsonValue otherValue()
    {
        const QList<QJsonValue> values = {
            QJsonValue::Null,
            0,
            29,
            -1,
            29.5,
            1e300,
            true,
            false,
            u""_s,
            u"TRUE"_s,
            u"\u00e4\n\""_s,
            QJsonArray(),
            QJsonArray{1, u"two"_s, QJsonArray{QJsonObject()}},
            QJsonObject(),
            QJsonObject{{u"Name"_s, u"Voltage / V"_s}},
            QJsonObject{{u"Name"_s, 7}, {u"X"_s, QJsonArray{3}}, {u""_s, true}},
        };
        return values[below(values.size())];
    }

    std::mt19937 m_random;
};

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
    const QJsonObject shipped = QJsonDocument::fromJson(shippedBytes()).object();
    ASSERT_FALSE(shipped.isEmpty());
    const DocumentFile file(shipped);
    Mutator mutator(29);
    int refused = 0;
    const int total = mutations();
    for (int i = 0; i < total; ++i) {
        const QByteArray bytes = mutator.mutated(shipped);
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
            uiconfig::readConfiguration(root, catalogue, configuration, refusals);
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
