// Whatever is done to the shipped document, the check and the loader agree: there is an error exactly when the loader
// refuses the document, and the first error is at the place of which the loader's message tells.

#include "LoaderPlace.h"

#include <check/Check.h>
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
using cluiconfig::check::Finding;
using cluiconfig::check::findingsIn;
using cluiconfig::check::Rule;
using cluiconfig::check::Severity;

namespace {

QByteArray shippedBytes()
{
    QFile file(QStringLiteral(SHIPPED_DATA_DIRECTORY "/UIConfig.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

} // namespace

TEST(CheckedMutations, HaveAnErrorExactlyWhenTheLoaderRefusesThemAndItsPlaceIsFirst)
{
    auto& config = lumo::tools::Singleton<UIConfig>::instance();
    const QJsonObject shipped = QJsonDocument::fromJson(shippedBytes()).object();
    ASSERT_FALSE(shipped.isEmpty());
    const DocumentFile file(shipped);
    Mutator mutator(29);
    int refused = 0;
    const int total = mutations();
    for (int i = 0; i < total; ++i) {
        const QByteArray bytes = mutator.mutated(shipped);
        ASSERT_TRUE(QJsonDocument::fromJson(bytes).isObject()) << bytes.constData();
        file.write(bytes);
        config.deleteAll();
        QString message;
        const bool loads = config.readUIConfiguration(file.path(), message);

        const QJsonObject root = QJsonDocument::fromJson(bytes).object();
        const QList<Finding> findings = findingsIn(bytes, root);
        const bool hasError = std::any_of(findings.begin(), findings.end(),
                                          [](const Finding& each) { return each.severity == Severity::Error; });
        ASSERT_EQ(hasError, !loads) << "mutation " << i << ": " << message.toStdString()
                                    << (hasError ? findings.first().message.toStdString() : std::string());
        if (!loads) {
            ++refused;
            const Finding& first = findings.first();
            EXPECT_EQ(first.severity, Severity::Error);
            EXPECT_TRUE(isPlaceOf(message, root, first.pointer))
                << "mutation " << i << ": " << message.toStdString() << "\nfirst error: " << first.pointer.toStdString()
                << ' ' << first.message.toStdString();
        }
    }
    EXPECT_GT(refused, total / 5);
    EXPECT_LT(refused, total - total / 5);
}
