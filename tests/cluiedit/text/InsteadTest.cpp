#include <check/Check.h>
#include <cluiedit/text/JsonPlace.h>
#include <data/ShippedFile.h>
#include <support/QtPrinters.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace cluiedit;
using cluiconfig::check::checkText;
using cluiconfig::check::Finding;

namespace {

struct Mistake
{
    QByteArray text;
    QString description;
};

/// The shipped document with each of the mistakes that people make.
QList<Mistake> mistakes()
{
    QFile file(QStringLiteral(MISTAKES));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray shipped = shippedBytes(u"UIConfig.json"_s);
    QList<Mistake> all;
    for (const auto& each : QJsonDocument::fromJson(file.readAll()).array()) {
        const QByteArray wanted = each[u"replace"].toString().toUtf8();
        const QByteArray by = each[u"by"].toString().toUtf8();
        QByteArray text = shipped;
        all.append({text.replace(text.indexOf(wanted), wanted.size(), by), QString::fromUtf8(by)});
    }
    return all;
}

bool isSame(const Finding& a, const Finding& b)
{
    return a.rule == b.rule && a.message == b.message && a.offset == b.offset;
}

} // namespace

TEST(Instead, WhatIsMeantIsKnownWhereAMessageAsksForIt)
{
    int count = 0;
    for (const Mistake& mistake : mistakes()) {
        for (const Finding& finding : checkText(mistake.text, u"UIConfig.json"_s).findings) {
            const bool asks =
                finding.message.contains(R"(Did you mean ")"_L1) && !finding.message.contains(R"(" or ")"_L1);
            if (asks && finding.instead.isEmpty()) {
                // It is a key, and its object has the one that is meant already.
                const JsonPlace place = placeAt(mistake.text, finding.offset);
                const QString meant = finding.message.section(u"Did you mean \""_s, 1).section(u'"', 0, 0);
                EXPECT_TRUE(place.isKey && place.keys.contains(meant)) << finding.message.toStdString();
            } else if (asks) {
                EXPECT_TRUE(finding.message.contains(u"ean \""_s + finding.instead + u'"'))
                    << finding.message.toStdString();
                ++count;
            }
        }
    }
    EXPECT_GT(count, 20);
}

TEST(Instead, PutInItsPlaceItEndsTheFinding)
{
    int count = 0;
    for (const Mistake& mistake : mistakes()) {
        for (const Finding& finding : checkText(mistake.text, u"UIConfig.json"_s).findings) {
            const JsonToken token = placeAt(mistake.text, finding.offset).token;
            if (finding.instead.isEmpty() || !token.isString) {
                continue;
            }
            ASSERT_EQ(token.begin, finding.offset) << finding.message.toStdString();
            QByteArray mended = mistake.text;
            mended.replace(token.begin, token.end - token.begin, jsonString(finding.instead));
            const QList<Finding> after = checkText(mended, u"UIConfig.json"_s).findings;
            EXPECT_TRUE(std::ranges::none_of(after, [&](const Finding& each) { return isSame(each, finding); }))
                << finding.message.toStdString();
            ++count;
        }
    }
    EXPECT_GT(count, 20);
}

TEST(Instead, AKeyThatIsThereAlreadyIsNotMeant)
{
    const QByteArray shipped = shippedBytes(u"UIConfig.json"_s);
    QByteArray text = shipped;
    text.replace("\"Default colors\": {", R"("Default colors": { "Curve 1": "Blue",)");
    const QList<Finding> findings = checkText(text, u"UIConfig.json"_s).findings;
    const auto found = std::ranges::find_if(
        findings, [](const Finding& each) { return each.message.startsWith(R"("Curve 1" means nothing)"_L1); });
    ASSERT_NE(found, findings.end());
    EXPECT_TRUE(found->message.contains("Did you mean \"Curve 01\"?"_L1)) << found->message.toStdString();
    EXPECT_EQ(found->instead, QString());
}
