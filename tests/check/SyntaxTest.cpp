#include <check/private/Syntax.h>
#include <data/ShippedFile.h>
#include <support/QtPrinters.h>
#include <support/Random.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <string_view>

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;
using cluiconfig::check::MendedText;
using cluiconfig::check::SyntaxError;

namespace {

/// About a hundred offsets of \p byte in \p text where it stands between texts, not in one.
QList<qsizetype> placesOf(char byte, const QByteArray& text)
{
    QList<qsizetype> places;
    bool isInText = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        isInText = isInText != (text.at(i) == '"');
        if (!isInText && text.at(i) == byte) {
            places.append(i);
        }
    }
    const qsizetype step = places.size() / 100 + 1;
    QList<qsizetype> some;
    for (qsizetype i = 0; i < places.size(); i += step) {
        some.append(places.at(i));
    }
    return some;
}

/// Each of the \p byte between texts is left out in turn: that is the one mistake, it is found where the byte stood,
/// and the document is the same without it.
void leaveOutEach(char byte, const QString& message)
{
    const QByteArray text = shippedBytes(u"UIConfig.json"_s);
    const QJsonDocument whole = QJsonDocument::fromJson(text);
    const QList<qsizetype> places = placesOf(byte, text);
    ASSERT_GT(places.size(), 50);
    for (const qsizetype place : places) {
        QByteArray without = text;
        const MendedText mended(without.remove(place, 1));
        ASSERT_EQ(mended.errors().size(), 1U) << "without the byte " << place;
        EXPECT_EQ(mended.errors().front().offset, place);
        EXPECT_EQ(mended.errors().front().message, message);
        EXPECT_EQ(QJsonDocument::fromJson(mended.json()), whole) << "without the byte " << place;
    }
}

} // namespace

TEST(MendedText, EveryCommaThatIsMissingIsFoundAtItsPlace)
{
    leaveOutEach(',', u"A comma is missing here."_s);
}

TEST(MendedText, EveryColonThatIsMissingIsFoundAtItsPlace)
{
    leaveOutEach(':', u"A colon is missing here, between the key and its value."_s);
}

TEST(MendedText, EveryBracketThatIsMissingIsFoundInALineBesideIt)
{
    const QByteArray text = shippedBytes(u"UIConfig.json"_s);
    const QJsonDocument whole = QJsonDocument::fromJson(text);
    int same = 0;
    int total = 0;
    for (const char byte : {'}', ']'}) {
        for (const qsizetype place : placesOf(byte, text)) {
            QByteArray without = text;
            const MendedText mended(without.remove(place, 1));
            ASSERT_FALSE(mended.errors().empty()) << "without the byte " << place;
            ++total;
            same += QJsonDocument::fromJson(mended.json()) == whole ? 1 : 0;
        }
    }
    EXPECT_GT(same, total * 19 / 20) << "of " << total;
}

TEST(MendedText, EveryQuoteThatIsMissingIsFoundInItsLine)
{
    const QByteArray text = shippedBytes(u"UIConfig.json"_s);
    const QJsonDocument whole = QJsonDocument::fromJson(text);
    int same = 0;
    int total = 0;
    for (qsizetype place = text.indexOf('"'); place >= 0; place = text.indexOf('"', place + 1 + total * 97 % 400)) {
        QByteArray without = text;
        const MendedText mended(without.remove(place, 1));
        ASSERT_FALSE(mended.errors().empty()) << "without the byte " << place;
        const qsizetype first = mended.errors().front().offset;
        EXPECT_EQ(text.first(place).count('\n'), without.first(first).count('\n')) << "without the byte " << place;
        ++total;
        same += QJsonDocument::fromJson(mended.json()) == whole ? 1 : 0;
    }
    EXPECT_GT(same, total * 19 / 20) << "of " << total;
}

TEST(MendedText, WhateverIsDoneToATextItsPlacesLieInItAndWhatIsMendedIsJson)
{
    const QByteArray whole = shippedBytes(u"UIConfig.json"_s);
    const QByteArray shipped = whole.first(20'000) + whole.last(20'000);
    constexpr auto Pieces = "{}[]\"\",,::;='#/*\\<>=| \n\t0123.eE-+truefalsenull\xC2\xA0\xE2\x80\x9C\xFF\x80\0("sv;
    const QByteArray pieces(Pieces.data(), std::ssize(Pieces));
    Random random(12);
    for (int i = 0; i < 400; ++i) {
        QByteArray text = shipped.sliced(0, 200 + random.below(shipped.size() - 200));
        for (int edits = random.below(6); edits >= 0; --edits) {
            const qsizetype place = random.below(text.size());
            switch (random.below(3)) {
            case 0:
                text.remove(place, 1 + random.below(20));
                break;
            case 1:
                text.insert(place, pieces.sliced(random.below(pieces.size()), 1));
                break;
            default:
                text[place] = pieces.at(random.below(pieces.size()));
            }
        }
        const MendedText mended(text);
        qsizetype last = 0;
        for (const SyntaxError& error : mended.errors()) {
            EXPECT_GE(error.offset, last);
            EXPECT_LE(error.offset, mended.text().size());
            last = error.offset;
        }
        if (!mended.json().isEmpty()) {
            EXPECT_TRUE(QJsonDocument::fromJson(mended.json()).isObject()) << text.constData();
            EXPECT_LE(mended.originalOffset(mended.json().size()), mended.text().size());
        }
        if (text.trimmed().startsWith('{') && !QJsonDocument::fromJson(text).isObject()) {
            EXPECT_FALSE(mended.errors().empty()) << text.constData();
        }
    }
}

TEST(MendedText, HostileTextsTakeTimeInProportion)
{
    for (const char* piece : {"{", "[", "\"", "{\"a\":", "[1 ", "/*", "<<<<<<<\n", "\\", "\"a\" ", "\xFF"}) {
        const MendedText mended("{ \"a\": " + QByteArray(piece).repeated(300'000));
        EXPECT_FALSE(mended.errors().empty()) << piece;
        EXPECT_LE(mended.errors().size(), 102U) << piece;
    }
}

TEST(MendedText, DocumentInUtf16IsReadAndSaid)
{
    const QString document = u"{ \"a\": \"é\", \"b\" 1 }"_s;
    for (const bool isBigEndian : {false, true}) {
        QByteArray bytes = isBigEndian ? QByteArray("\xFE\xFF") : QByteArray("\xFF\xFE");
        for (const QChar letter : document) {
            bytes += isBigEndian ? QByteArray(1, static_cast<char>(letter.row())) + static_cast<char>(letter.cell())
                                 : QByteArray(1, static_cast<char>(letter.cell())) + static_cast<char>(letter.row());
        }
        const MendedText mended(bytes);
        ASSERT_EQ(mended.errors().size(), 2U);
        EXPECT_EQ(mended.errors()[0].message, u"The document is in UTF-16: save it in UTF-8."_s);
        EXPECT_EQ(mended.errors()[1].message, u"A colon is missing here, between the key and its value."_s);
        EXPECT_EQ(QString::fromUtf8(mended.text()), document);
        EXPECT_EQ(QJsonDocument::fromJson(mended.json()).object().value(u"a"_s).toString(), u"é"_s);
    }
}
