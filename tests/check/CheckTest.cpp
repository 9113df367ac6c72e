#include <batterydata/RawDataCollection.h>
#include <check/Check.h>
#include <check/Places.h>
#include <check/Schema.h>
#include <check/Suggest.h>
#include <check/private/Document.h>
#include <check/private/Findings.h>
#include <config/UIConfig.h>
#include <data/ShippedFile.h>
#include <datastorage/Converter.h>
#include <items/StatisticsItem.h>
#include <support/ConfigDocument.h>
#include <support/DocumentFile.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace cluiconfig::check;
using cl::datastorage::Converter;
using testing::ElementsAre;

namespace {

QList<Finding> findingsInText(const QByteArray& bytes)
{
    return checkDocument(bytes, QJsonDocument::fromJson(bytes).object()).findings;
}

QStringList rulesOf(const QList<Finding>& findings)
{
    QStringList names;
    for (const Finding& each : findings) {
        names.append(describe(each.rule).name);
    }
    return names;
}

QStringList words(const QJsonValue& list)
{
    QStringList result;
    const QJsonArray array = list.toArray();
    for (const auto& word : array) {
        result.append(word.toString());
    }
    return result;
}

} // namespace

TEST(CheckDocument, KnowsWhereEveryKindOfValueStands)
{
    const QByteArray bytes = R"({ "a\"\\": "t\\", "b": [ -1.5e3 ,true,false , null, {} ], "é": [[]] })";
    const Document document(bytes, QJsonDocument::fromJson(bytes).object());
    QStringList seen;
    const auto visit = [&](const auto& self, const Value& value) -> void {
        seen.append(value.pointer() + u'=' + QString::fromUtf8(bytes.sliced(value.offset(), 2)));
        value.forEach([&](const Value& child) { self(self, child); });
    };
    visit(visit, document.root());
    EXPECT_THAT(seen,
                ElementsAre(u"={ "_s, u"/a\"\\=\"t"_s, u"/b=[ "_s, u"/b/0=-1"_s, u"/b/1=tr"_s, u"/b/2=fa"_s,
                            u"/b/3=nu"_s, u"/b/4={}"_s, u"/é=[["_s, u"/é/0=[]"_s));
}

TEST(CheckDocument, PlaceOfAPointerIsItsValueOrWhatIsThereOfTheWayToIt)
{
    const QByteArray bytes = R"({ "a": 1, "a b": { "c/d~": [2, 3] }, "": { "": 4 } })";
    const QJsonObject root = QJsonDocument::fromJson(bytes).object();
    const auto textAt = [&](const QString& pointer) { return bytes.sliced(offsetOf(bytes, root, pointer)).first(3); };
    EXPECT_EQ(textAt(u""_s), "{ \"");
    EXPECT_EQ(textAt(u"/a"_s), "1, ");
    EXPECT_EQ(textAt(u"/a/b"_s), "1, ");
    EXPECT_EQ(textAt(u"/a b/c~1d~0"_s), "[2,");
    EXPECT_EQ(textAt(u"/a b/c~1d~0/1"_s), "3] ");
    EXPECT_EQ(textAt(u"/a b/c~1d~0/2"_s), "[2,");
    EXPECT_EQ(textAt(u"/a b/c"_s), "{ \"");
    EXPECT_EQ(textAt(u"//"_s), "4 }");
    EXPECT_EQ(textAt(u"/b/c"_s), "{ \"");
}

TEST(CheckDocument, OfRepeatedKeysOnlyTheLastIsVisited)
{
    const QByteArray bytes = R"({ "a": 1, "b": 2, "a": 3, "\u0061": 4 })";
    const Document document(bytes, QJsonDocument::fromJson(bytes).object());
    QList<double> values;
    document.root().forEach([&](const Value& member) { values.append(member.json().toDouble()); });
    EXPECT_THAT(values, ElementsAre(2, 4));
    QList<qsizetype> shadowed;
    for (const Value& key : document.shadowedKeys()) {
        shadowed.append(key.keyOffset());
    }
    EXPECT_THAT(shadowed, ElementsAre(bytes.indexOf("\"a\": 1"), bytes.indexOf("\"a\": 3")));
}

TEST(CheckDocument, WhatOnlyQtAcceptsMovesNothing)
{
    const QByteArray bytes = "{ \"a\": \"1\t2\", \"b\": \"\\q\", \"c\": 1., \"d\": 5 }";
    const QJsonObject root = QJsonDocument::fromJson(bytes).object();
    ASSERT_EQ(root.size(), 4);
    const Document document(bytes, root);
    EXPECT_THAT(document.laxPlaces(), ElementsAre(bytes.indexOf('\t'), bytes.indexOf('\\'), bytes.indexOf("1.")));
    EXPECT_EQ(document.root().member("d"_L1)->offset(), bytes.indexOf('5'));
    EXPECT_EQ(document.root().text("a"_L1), u"1\t2"_s);
}

TEST(CheckDocument, AllPlacesThatOnlyQtAcceptsAreFoundAndTheRestIsLookedAt)
{
    const ConfigDocumentCatalogue catalogue;
    QByteArray bytes = QJsonDocument(configDocument()).toJson();
    bytes.replace("\"Version\": 29", R"("Version": 28, "a": ")" + QByteArray(150, '\t') + '"');
    const Document document(bytes, QJsonDocument::fromJson(bytes).object());
    EXPECT_EQ(document.laxPlaces().size(), 150U);
    QList<Finding> findings = findingsInText(bytes);
    EXPECT_EQ(findings.first().rule, Rule::WrongVersion);
    findings.removeIf([](const Finding& each) { return each.rule == Rule::LaxJson; });
    EXPECT_THAT(rulesOf(findings), testing::IsSupersetOf({u"wrong-version"_s, u"unknown-key"_s, u"unused-color"_s}));
}

TEST(CheckDocument, NumbersThatOnlyQtAcceptsAreFound)
{
    for (const QByteArray number : {"0.", "-0.", "0.e5", ".5", "-.5", "1.e-3"}) {
        const QByteArray bytes = "[" + number + ", 1]";
        ASSERT_TRUE(QJsonDocument::fromJson(bytes).isArray()) << number.constData();
        const QByteArray object = "{ \"a\": " + number + ", \"b\": 1 }";
        const Document document(object, QJsonDocument::fromJson(object).object());
        EXPECT_THAT(document.laxPlaces(), ElementsAre(object.indexOf(number))) << number.constData();
        EXPECT_EQ(document.root().member("b"_L1)->offset(), object.indexOf("1 }"));
    }
    const QByteArray correct = "{ \"a\": " + QByteArray(400, '7') + "e-300, \"b\": [-0, 0.5, 1E+3, 1e-5] }";
    const Document document(correct, QJsonDocument::fromJson(correct).object());
    EXPECT_THAT(document.laxPlaces(), ElementsAre());
    EXPECT_EQ(document.root().member("b"_L1)->offset(), correct.indexOf('['));
}

TEST(CheckDocument, EscapesThatOnlyQtAcceptsAreFound)
{
    const QByteArray bytes = R"({ "a": "\ud800 \q \ud83d\ude00 \\ \udc00\"\ud800\n", "b": 1 })";
    const Document document(bytes, QJsonDocument::fromJson(bytes).object());
    EXPECT_THAT(document.laxPlaces(),
                ElementsAre(bytes.indexOf("\\ud800 "), bytes.indexOf("\\q"), bytes.indexOf("\\udc00"),
                            bytes.indexOf("\\ud800\\n")));
    EXPECT_EQ(document.root().member("b"_L1)->offset(), bytes.indexOf("1 }"));
}

TEST(CheckDocument, KeyThatBeginsWithAByteOrderMarkIsFound)
{
    const QByteArray bytes = "{ \"\xEF\xBB\xBFkey\": 5 }";
    const QJsonObject root = QJsonDocument::fromJson(bytes).object();
    const Document document(bytes, root);
    QList<QJsonValue> values;
    document.root().forEach([&](const Value& member) { values.append(member.json()); });
    EXPECT_THAT(values, ElementsAre(QJsonValue(5)));
}

TEST(Check, CategoryThatBeginsWithAByteOrderMarkIsTheOneWithoutIt)
{
    const ConfigDocumentCatalogue catalogue;
    const auto withKey = [](const QByteArray& key, const QByteArray& value) {
        return QJsonDocument(configDocument())
            .toJson()
            .replace("\"Per step\": {", R"("Per step": { ")" + key + "\": " + value + ", ");
    };
    const QByteArray mark = "\xEF\xBB\xBF";
    for (const QByteArray name : {"Cycle", "Nowhere"}) {
        EXPECT_EQ(rulesOf(findingsInText(withKey(mark + name, "[]"))), rulesOf(findingsInText(withKey(name, "[]"))));
        const Finding marked = findingsInText(withKey(mark + name, "1")).first();
        EXPECT_EQ(marked.rule, Rule::WrongType);
        EXPECT_EQ(marked.severity, Severity::Error);
        EXPECT_EQ(marked.pointer, u"/Tools/Summary Table/Per step/"_s + QString::fromLatin1(name));
    }
}

// Which titles the loader fails to find depends on how each of them is written.
TEST(Check, WarnsOfLostCurvesExactlyWhereTheLoaderLosesThem)
{
    const ConfigDocumentCatalogue catalogue;
    // NOLINTBEGIN(bugprone-suspicious-missing-comma): a letter may not follow a number of hexadecimal digits
    const QList<QByteArray> titles = {"a",
                                      "\xC3\xA4",
                                      "\\u00e4b",
                                      "\xF0\x9D\x84\x9E",
                                      "\\ufb00",
                                      "\\ud834\\udd1ec",
                                      "\xEF\xAC\x80"
                                      "d",
                                      "\xEF\xBB\xBF"
                                      "e"};
    // NOLINTEND(bugprone-suspicious-missing-comma)
    int lost = 0;
    for (unsigned chosen = 0; chosen < 1U << titles.size(); ++chosen) {
        QByteArray graphs;
        for (qsizetype i = 0; i < titles.size(); ++i) {
            if ((chosen & (1U << i)) != 0) {
                graphs += (graphs.isEmpty() ? "\"" : ", \"") + titles.at(i) + R"(": [{ "Title": "Curve" }])";
            }
        }
        QJsonObject document = configDocument();
        document.insert(u"Statistics"_s, u"graphs"_s);
        const QByteArray bytes = QJsonDocument(document).toJson().replace("\"graphs\"", "{ " + graphs + " }");
        const Result result = checkDocument(bytes, QJsonDocument::fromJson(bytes).object());
        QStringList without;
        for (const StatisticsItem& graph : result.configuration.statistics) {
            if (graph.getGraphItemsList().isEmpty()) {
                without.append(u"/Statistics/"_s + graph.getTitle());
            }
        }
        QStringList warned;
        for (const Finding& finding : result.findings) {
            if (finding.rule == Rule::LostCurves) {
                warned.append(finding.pointer); // in which the byte-order mark is gone, as for the loader
            }
        }
        without.sort();
        warned.sort();
        EXPECT_EQ(warned, without) << graphs.constData();
        EXPECT_TRUE(result.verdict.loads) << result.verdict.error.toStdString();
        lost += static_cast<int>(without.size());
    }
    EXPECT_GT(lost, 0);
}

TEST(Check, FirstErrorHasTheSentenceOfTheLoaderEvenWhereANameGarblesIt)
{
    const ConfigDocumentCatalogue catalogue;
    const auto sentenceFor = [](const QString& name) {
        QJsonObject document = configDocument();
        document.insert(
            u"Axes combinations"_s,
            QJsonArray{QJsonObject{{u"X"_s, QJsonArray{QJsonObject{{u"Name"_s, name}, {u"Category"_s, u"Cat"_s}}}}}});
        const QByteArray bytes = QJsonDocument(document).toJson();
        const Result result = checkDocument(bytes, QJsonDocument::fromJson(bytes).object());
        EXPECT_EQ(result.findings.first().pointer, u"/Axes combinations/0/X/0/Category"_s);
        EXPECT_EQ(result.findings.first().severity, Severity::Error);
        return result.verdict.error;
    };
    EXPECT_EQ(sentenceFor(u"A"_s), u"Unexpected axes combination X: A (Cat)"_s);
    EXPECT_EQ(sentenceFor(u"%1"_s), u"Unexpected axes combination X: Cat (%2)"_s);
    EXPECT_EQ(sentenceFor(u"%2"_s), u"Unexpected axes combination X: Cat (Cat)"_s);
}

TEST(Check, TextsThatBeginWithAnEscapedNulAreNotEmpty)
{
    const ConfigDocumentCatalogue catalogue;
    const QByteArray document = QJsonDocument(configDocument()).toJson();
    const auto verdictOf = [](const QByteArray& bytes) {
        const Result result = checkDocument(bytes, QJsonDocument::fromJson(bytes).object());
        EXPECT_THAT(rulesOf(result.findings), testing::Not(testing::Contains(u"empty-text"_s)));
        return result.verdict.error;
    };
    const QByteArray name = R"("Name": ")";
    const qsizetype representation = document.indexOf(name, document.indexOf("\"Representations\""));
    EXPECT_EQ(verdictOf(QByteArray(document).insert(representation + name.size(), "\\u0000")), QString());
    EXPECT_EQ(verdictOf(QByteArray(document).replace(R"("Y2": ")", R"("Y2": "\u0000)")),
              u"Unexpected Y2 "_s + QChar(u'\0') + u"Current"_s);
    EXPECT_EQ(verdictOf(QByteArray(document).insert(representation, R"("\u0000Y2": "x", )")), QString());
}

TEST(Check, LinesAndColumnsCountCharactersBehindAByteOrderMark)
{
    const ConfigDocumentCatalogue catalogue;
    const QByteArray bytes = "\xEF\xBB\xBF{ \"äöü\": 1,\n  \"€\": 2 }";
    const QList<Finding> findings = findingsInText(bytes);
    QStringList places;
    for (const Finding& each : findings) {
        if (each.rule == Rule::UnknownKey) {
            places.append(u"%1 %2:%3"_s.arg(each.pointer).arg(each.line).arg(each.column));
        }
    }
    EXPECT_THAT(places, ElementsAre(u"/äöü 1:3"_s, u"/€ 2:3"_s));
}

TEST(Check, RefusalThatNoRuleExplainsIsAnErrorWithTheSentenceOfTheLoader)
{
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::GoOn);
    refusals.goOnAfter(u"Something is wrong"_s, u"/Somewhere"_s);
    const Document document("{}", {});
    Findings findings(refusals, document.root());
    findings.addUnexplained();
    ASSERT_EQ(findings.list().size(), 1);
    const Finding finding = findings.list().constFirst();
    EXPECT_EQ(finding.rule, Rule::Refused);
    EXPECT_EQ(finding.severity, Severity::Error);
    EXPECT_EQ(finding.pointer, u"/Somewhere"_s);
    EXPECT_EQ(finding.message, u"The application refuses the document: Something is wrong."_s);
}

TEST(Check, DocumentsAreReadSideBySideWithoutTheProcessWideConfiguration)
{
    const ConfigDocumentCatalogue catalogue;
    const auto& config = lumo::tools::Singleton<UIConfig>::instance();
    const auto before = config.getStatsGraph().size();
    for (int i = 0; i < 3; ++i) {
        const QByteArray bytes = QJsonDocument(configDocument()).toJson();
        const Result result = checkDocument(bytes, configDocument());
        EXPECT_TRUE(result.verdict.loads);
        EXPECT_THAT(rulesOf(result.findings),
                    ElementsAre(u"unused-color"_s, u"unknown-word"_s, u"unknown-word"_s, u"unknown-category"_s,
                                u"unknown-word"_s));
    }
    EXPECT_EQ(config.getStatsGraph().size(), before);
}

TEST(Check, CatalogueOfTheCheckIsNotThatOfTheProcess)
{
    const ConfigDocumentCatalogue catalogue;
    const auto& arrays = lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    const auto before = arrays.getAll();
    const QByteArray bytes = R"({ "Version": 1, "Categories": [{ "Name": "Bench", "Arrays": [{ "Name": "A" }] }] })";
    const DocumentFile file(bytes);
    const Result result = checkCatalogue(file.path(), bytes, QJsonDocument::fromJson(bytes).object());
    EXPECT_TRUE(result.verdict.loads);
    EXPECT_TRUE(result.findings.isEmpty());
    EXPECT_EQ(arrays.getAll(), before);
}

TEST(Check, RefusalOfACatalogueThatNoRuleExplainsHasTheSentenceOfTheReader)
{
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    refusals.goOnAfter(u"Something is wrong"_s, u"/Somewhere"_s);
    const Document document("{}", {});
    Findings findings(refusals, document.root(), Subject::Catalogue);
    findings.addUnexplained();
    ASSERT_EQ(findings.list().size(), 1);
    EXPECT_EQ(findings.list().constFirst().rule, Rule::Refused);
    EXPECT_EQ(findings.list().constFirst().message, u"The application refuses the catalogue: Something is wrong."_s);
}

TEST(Check, AfterTwoHundredFindingsOfARuleTheOthersAreCounted)
{
    const ConfigDocumentCatalogue catalogue;
    QJsonArray skipped;
    for (int i = 0; i < 100'000; ++i) {
        skipped.append(i);
    }
    QJsonObject document = configDocument();
    document.insert(u"Filters"_s, QJsonObject{{u"Tasks"_s, QJsonObject{{u"Skipped"_s, skipped}}}});
    document.insert(u"Debugs"_s, 1);
    QList<Finding> findings = findingsInText(QJsonDocument(document).toJson());
    findings.removeIf([](const Finding& each) { return each.rule != Rule::WrongType; });
    ASSERT_EQ(findings.size(), 201);
    EXPECT_EQ(findings.at(0).pointer, u"/Filters/Tasks/Skipped/0"_s);
    EXPECT_EQ(findings.at(199).pointer, u"/Filters/Tasks/Skipped/199"_s);
    EXPECT_EQ(findings.at(200).message, u"99800 more findings of this rule follow, 100000 in all."_s);
}

TEST(Check, OfALongKeyNotTwoHundredPointersAreKept)
{
    const ConfigDocumentCatalogue catalogue;
    const QString key(30'000, u'k');
    QJsonArray curves;
    for (int i = 0; i < 300; ++i) {
        curves.append(QJsonObject{{u"X"_s, 1}});
    }
    QJsonObject document = configDocument();
    document.insert(u"Statistics"_s, QJsonObject{{key, curves}});
    QList<Finding> findings = findingsInText(QJsonDocument(document).toJson());
    findings.removeIf([](const Finding& each) { return each.rule != Rule::WrongType; });
    ASSERT_EQ(findings.size(), 3);
    EXPECT_EQ(findings.at(0).pointer, u"/Statistics/"_s + key + u"/0/X"_s);
    EXPECT_EQ(findings.at(1).pointer, u"/Statistics/"_s + key + u"/1/X"_s);
    EXPECT_EQ(findings.at(2).message, u"298 more findings of this rule follow, 300 in all."_s);
}

TEST(Check, ErrorThatTheLoaderStumblesOverIsListedEvenAfterTwoHundredOthers)
{
    const ConfigDocumentCatalogue catalogue;
    QJsonObject document = configDocument();
    QJsonArray colors;
    for (int i = 0; i < 300; ++i) {
        colors.append(i);
    }
    document.insert(u"Colors"_s, colors); // wrong type
    document.insert(u"A"_s, 1);
    QJsonArray representations = document.value("Representations"_L1).toArray();
    for (int i = 0; i < 300; ++i) {
        representations.append(QJsonArray()); // 300 errors of the same rule, further down in the text but read before
    }
    document.insert(u"Representations"_s, representations);
    const QList<Finding> findings = findingsInText(QJsonDocument(document).toJson());
    EXPECT_EQ(findings.first().pointer, u"/Representations/2"_s);
    EXPECT_EQ(findings.first().severity, Severity::Error);
}

TEST(Check, CategoriesOfASummaryTableAreReadInAlphabeticalOrderWhateverTheyAreCalled)
{
    const ConfigDocumentCatalogue catalogue;
    const QByteArray bytes =
        QJsonDocument(configDocument()).toJson().replace("\"Per step\": {", R"("Per step": { "Name": 1, "A": 2,)");
    const QList<Finding> findings = findingsInText(bytes);
    EXPECT_EQ(findings.first().pointer, u"/Tools/Summary Table/Per step/A"_s);
    EXPECT_EQ(findings.first().severity, Severity::Error);
}

TEST(Suggestion, IsTheNearestKnownName)
{
    const QStringList known{u"Voltage / V"_s, u"Current / A"_s, u"Mass"_s, u"Area"_s};
    EXPECT_EQ(suggestion(u"Votlage / V"_s, known), u"Voltage / V"_s);
    EXPECT_EQ(suggestion(u"voltage / v"_s, known), u"Voltage / V"_s);
    EXPECT_EQ(suggestion(u"Current"_s, known), u"Current / A"_s);
    EXPECT_EQ(suggestion(u"Mas"_s, known), u"Mass"_s);
    EXPECT_EQ(suggestion(u"Viscosity"_s, known), QString());
    EXPECT_EQ(suggestion(QString(), known), QString());
    EXPECT_EQ(suggestion(QString(1'000'000, u'V'), known), QString());
}

TEST(Suggestion, SeesThroughLettersThatLookAlike)
{
    const QStringList known{u"Voltage / V"_s, u"Area"_s, u"Specific capacity"_s};
    EXPECT_EQ(suggestion(u"Voltage\u00A0/ V"_s, known), u"Voltage / V"_s);
    EXPECT_EQ(suggestion(u"\u0410r\u0435\u0430"_s, known), u"Area"_s);
    EXPECT_EQ(suggestion(u"\u0405pecific \u0441\u0430\u0440\u0430city"_s, known), u"Specific capacity"_s);
    EXPECT_EQ(didYouMean(u"Voltage\u00A0/ V"_s, known).text,
              u" Did you mean \"Voltage / V\"? Character 8 of \"Voltage\u00A0/ V\" is U+00A0, not a blank."_s);
    EXPECT_EQ(didYouMean(u"V\u043Eltage / V"_s, known).text,
              u" Did you mean \"Voltage / V\"? Character 2 of \"V\u043Eltage / V\" is U+043E, not \"o\"."_s);
    EXPECT_EQ(didYouMean(u"Area\u200B"_s, known).text,
              u" Did you mean \"Area\"? Character 5 of \"Area\u200B\" is U+200B, which nobody sees."_s);
    EXPECT_EQ(didYouMean(u"Ar\U0001F50Bea"_s, known).text, u" Did you mean \"Area\"?"_s) << "which everybody sees";
}

TEST(Suggestion, NamesTheOddLetterOfTheKnownNameWhereTheOtherHasNone)
{
    EXPECT_EQ(didYouMean(u"Sky blue"_s, {u"Sky\u00A0blue"_s}).text,
              u" Did you mean \"Sky\u00A0blue\"? Character 4 of \"Sky\u00A0blue\" is U+00A0, not a blank."_s);
}

TEST(Quoted, NeverCutsALetterInTwo)
{
    const QString text = QString(79, u'a') + u"\U0001F50B"_s + QString(10, u'b');
    EXPECT_EQ(quoted(text), u'"' + QString(79, u'a') + u"…\""_s);
    EXPECT_EQ(quoted(QString(80, u'a') + u"\U0001F50B"_s), u'"' + QString(80, u'a') + u"…\""_s);
}

TEST(DocumentSchema, ListsTheElementsOfTheShippedDocument)
{
    const QJsonObject colors =
        shippedObject(u"UIConfig.json"_s).value("Colors"_L1).toObject().value("Default colors"_L1).toObject();
    const QJsonObject schema = QJsonDocument::fromJson(documentSchema())
                                   .object()["properties"_L1]["Colors"_L1]["properties"_L1]["Default colors"_L1]
                                   .toObject();
    QStringList names = words(schema["propertyNames"_L1]["enum"_L1]);
    names.sort();
    EXPECT_EQ(names, colors.keys());
}

TEST(CatalogueSchema, ListsTheQuantitiesOfTheConverter)
{
    const QJsonObject array = QJsonDocument::fromJson(catalogueSchema())
                                  .object()
                                  .value("definitions"_L1)
                                  .toObject()
                                  .value("array"_L1)
                                  .toObject();
    EXPECT_EQ(words(array.value("properties"_L1).toObject().value("Parameter"_L1).toObject().value("enum"_L1)),
              QStringList(Converter::getPhysicalParameterNames()));
}

TEST(DocumentSchema, ListsTheQuantitiesAndOperatorsOfTheConverter)
{
    const QJsonObject definitions =
        QJsonDocument::fromJson(documentSchema()).object().value("definitions"_L1).toObject();
    EXPECT_EQ(words(definitions.value("quantity"_L1).toObject().value("enum"_L1)),
              QStringList(Converter::getPhysicalParameterNames()));
    const QJsonObject unit = definitions.value("compoundUnit"_L1).toObject().value("properties"_L1).toObject();
    EXPECT_EQ(words(unit.value("Operator"_L1).toObject().value("enum"_L1)), QStringList(Converter::getOperatorNames()));
}

TEST(CheckRules, StandInTheOrderOfTheirNumbersWithNamesOfTheirOwn)
{
    QSet<QString> names;
    for (qsizetype i = 0; i < rules().size(); ++i) {
        EXPECT_EQ(static_cast<qsizetype>(rules().at(i).rule), i);
        names.insert(rules().at(i).name);
    }
    EXPECT_EQ(names.size(), rules().size());
    EXPECT_EQ(rules().last().rule, Rule::EmptyCatalogue);
}
