// Documents that nobody should ship: each gives a clear message, or loads, and leaves an object that loads the next
// document and answers from it.

#include <config/ConfigRepresentation.h>
#include <config/UIConfigTest.h>
#include <support/DocumentMutator.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <utility>
#include <vector>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

const QByteArray ByteOrderMark = "\xEF\xBB\xBF";

class HostileDocument : public UIConfigTest
{
protected:
    static QByteArray goodBytes() { return QJsonDocument(configDocument()).toJson(); }

    /// Loads \p bytes, then a good document, which must fill everything. The result is that of the first load, the
    /// path in it replaced by "FILE".
    QString loadThenRecover(const QByteArray& bytes)
    {
        const DocumentFile file(bytes);
        QString result = loadFile(file.path());
        expectRecovery();
        return result.replace(file.path(), u"FILE"_s);
    }

    QString loadThenRecover(const QJsonObject& document) { return loadThenRecover(QJsonDocument(document).toJson()); }

    void expectRecovery()
    {
        config.deleteAll();
        EXPECT_EQ(load(configDocument()), Success);
        EXPECT_EQ(filledSections(config), allSections());
        EXPECT_TRUE(config.getAxesCombinationManager().getAxesCombination(u"Time"_s, u"Voltage"_s).isValid());
        EXPECT_EQ(config.getDefaultConfigRepresentation()->name(), u"Course"_s);
    }

private:
    const ConfigDocumentCatalogue m_catalogue;
};

} // namespace

TEST_F(HostileDocument, MissingFile)
{
    const QString path = QDir::tempPath() + u"/no-such-directory/UIConfig.json"_s;
    const QString start = u"Cannot open \"%1\": "_s.arg(path);
    const QString error = loadFile(path);
    EXPECT_TRUE(error.startsWith(start) && error.size() > start.size()) << error.toStdString();
    EXPECT_EQ(filledSections(config), QStringList());
    expectRecovery();
}

TEST_F(HostileDocument, Directory)
{
    EXPECT_EQ(loadFile(QDir::tempPath()), u"Cannot open \"%1\": it is a directory"_s.arg(QDir::tempPath()));
    expectRecovery();
}

TEST_F(HostileDocument, FileWithoutPermission)
{
#ifdef Q_OS_UNIX
    const DocumentFile document(configDocument());
    ASSERT_TRUE(QFile::setPermissions(document.path(), {}));
    const bool isRoot = geteuid() == 0;
    if (isRoot && seteuid(65534) != 0) {
        GTEST_SKIP() << "root may read everything, and this root cannot become anybody else";
    }
    const QString error = loadFile(document.path());
    if (isRoot) {
        ASSERT_EQ(seteuid(0), 0);
    }
    const QString start = u"Cannot open \"%1\": "_s.arg(document.path());
    EXPECT_TRUE(error.startsWith(start) && error.size() > start.size()) << error.toStdString();
    expectRecovery();
#else
    GTEST_SKIP() << "permissions of this platform do not keep the owner from reading";
#endif
}

TEST_F(HostileDocument, EmptyFile)
{
    EXPECT_EQ(loadThenRecover(QByteArray()), u"\"FILE\" is empty"_s);
    EXPECT_EQ(loadThenRecover(QByteArray(" \r\n\t")), u"\"FILE\" is empty"_s);
    EXPECT_EQ(loadThenRecover(ByteOrderMark), u"\"FILE\" is empty"_s);
}

TEST_F(HostileDocument, ParseErrorNamesLineAndColumn)
{
    EXPECT_EQ(loadThenRecover(QByteArray("{\n    \"Version\": 29,\n    \"Colors\" {}\n}")),
              u"\"FILE\" is not valid JSON: line 3, column 14: missing name separator"_s);
}

TEST_F(HostileDocument, FileTruncatedAnywhereIsNoJson)
{
    const QByteArray whole = goodBytes().trimmed();
    for (qsizetype size = 1; size < whole.size(); size += 97) {
        DocumentFile file(whole.first(size));
        EXPECT_TRUE(loadFile(file.path()).startsWith(u"\"%1\" is not valid JSON: line "_s.arg(file.path()))) << size;
    }
    EXPECT_EQ(filledSections(config), QStringList());
    expectRecovery();
}

TEST_F(HostileDocument, ByteOrderMarkIsAccepted)
{
    EXPECT_EQ(loadThenRecover(ByteOrderMark + goodBytes()), Success);
}

TEST_F(HostileDocument, CarriageReturnsAreAccepted)
{
    EXPECT_EQ(loadThenRecover(goodBytes().replace("\n", "\r\n")), Success);
}

TEST_F(HostileDocument, RootThatIsNoObject)
{
    EXPECT_EQ(loadThenRecover(QByteArray("[]")), u"\"FILE\" does not hold a JSON object"_s);
    EXPECT_EQ(loadThenRecover("[" + goodBytes() + "]"), u"\"FILE\" does not hold a JSON object"_s);
    EXPECT_TRUE(loadThenRecover(QByteArray("29")).startsWith(u"\"FILE\" is not valid JSON: line 1, column "_s));
}

TEST_F(HostileDocument, BytesThatAreNoJson)
{
    for (const QByteArray& bytes :
         {goodBytes() + "}", QByteArray("{\"Version\": 29, \"Filters\": \"\xFF\xFE\"}"), QByteArray(64, '\0'),
          QByteArray("{\"Debug\": ").repeated(100'000), QByteArray("{\"Version\": 0x1D}")}) {
        EXPECT_TRUE(loadThenRecover(bytes).startsWith(u"\"FILE\" is not valid JSON: line "_s))
            << bytes.left(40).constData();
    }
}

TEST_F(HostileDocument, WrongVersionReadsNoSection)
{
    const QJsonObject document = configDocument();
    EXPECT_EQ(load(without(document, u"Version"_s)), u"The format version is missing: expected \"Version\": 29"_s);
    const QString notANumber = u"The format version is not a number: expected \"Version\": 29"_s;
    for (const QJsonValue& version :
         {QJsonValue(u"29"_s), QJsonValue(true), QJsonValue(), QJsonValue(QJsonArray{29}), QJsonValue(QJsonObject())}) {
        EXPECT_EQ(load(with(document, u"Version"_s, version)), notANumber);
    }
    EXPECT_EQ(load(with(document, u"Version"_s, 28)), u"The format version is 28: expected 29"_s);
    EXPECT_EQ(load(with(document, u"Version"_s, 30)), u"The format version is 30: expected 29"_s);
    EXPECT_EQ(load(with(document, u"Version"_s, -29)), u"The format version is -29: expected 29"_s);
    EXPECT_EQ(load(with(document, u"Version"_s, 29.5)), u"The format version is 29.5: expected 29"_s);
    EXPECT_EQ(load(with(document, u"Version"_s, 1e300)), u"The format version is 1e+300: expected 29"_s);
    EXPECT_EQ(load(with(without(document, u"Version"_s), u"version"_s, 29)),
              u"The format version is missing: expected \"Version\": 29"_s);

    EXPECT_EQ(filledSections(config), QStringList());
    expectRecovery();
}

TEST_F(HostileDocument, VersionBeyondAllNumbersIsRefused)
{
    const QString error = loadThenRecover(goodBytes().replace("\"Version\": 29", "\"Version\": 1e400"));
    EXPECT_TRUE(error.startsWith(u"\"FILE\" is not valid JSON: line "_s) && error.endsWith(u": illegal number"_s))
        << error.toStdString();
}

TEST_F(HostileDocument, VersionWithAFractionOfZeroIsTheVersion)
{
    EXPECT_EQ(loadThenRecover(goodBytes().replace("\"Version\": 29", "\"Version\": 2.90e1")), Success);
}

TEST_F(HostileDocument, OfRepeatedKeysTheLastCounts)
{
    const QByteArray rest = goodBytes().trimmed().sliced(1);
    EXPECT_EQ(loadThenRecover("{\"Version\": 28, \"Colors\": 0," + rest), Success);
    EXPECT_EQ(loadThenRecover("{" + rest.chopped(1) + ", \"Version\": 28}"),
              u"The format version is 28: expected 29"_s);
}

TEST_F(HostileDocument, HugeNumbersReadAsZero)
{
    const QJsonArray huge{1e300, -1e300, 2147483648.0};
    QJsonObject colors = configDocument().value("Colors"_L1).toObject();
    colors.insert(u"Custom colors"_s, QJsonArray{QJsonObject{{u"name"_s, u"huge"_s}, {u"RGB"_s, huge}}});
    EXPECT_EQ(load(with(configDocument(), u"Colors"_s, colors)), Success);
    EXPECT_EQ(config.getCustomColors().constFirst().second, QColor(0, 0, 0));
}

// Every section replaced by every JSON type, and left out.

namespace {

struct Replacement
{
    QString section;
    QString kind;
    QJsonValue value; ///< Undefined: the section is left out.
    QString result;
};

void PrintTo(const Replacement& replacement, std::ostream* out)
{
    *out << replacement.section.toStdString() << " as " << replacement.kind.toStdString();
}

/// What each section must be, what it says when it is not, and what it says when it is, but empty.
struct SectionRule
{
    QString section;
    QJsonValue::Type type; ///< Undefined: anything goes.
    QString message;
    QString messageWhenEmpty;
};

std::vector<Replacement> replacements()
{
    const std::vector<SectionRule> rules = {
        {u"Axes combinations"_s, QJsonValue::Array, u"Axes combinations array missing"_s, Success},
        {u"Representations"_s, QJsonValue::Array, u"Representations array missing"_s, Success},
        {u"MSVUnits"_s, QJsonValue::Array, u"Multi units combinations array missing"_s, Success},
        {u"Filters"_s, QJsonValue::Undefined, Success, Success},
        {u"Tools"_s, QJsonValue::Undefined, Success, Success},
        {u"Colors"_s, QJsonValue::Object, u"Missing colors configuration node"_s,
         u"Custom colors is not an array node"_s},
        {u"Statistics"_s, QJsonValue::Object, u"Missing statistics graphs configuration node"_s, Success},
        {u"Ragone Plot"_s, QJsonValue::Object, u"Missing Ragone Plot graphs configuration node"_s, Success},
        {u"Processed Data"_s, QJsonValue::Array, u"Missing processed data graphs configuration node"_s, Success},
        {u"Recipe"_s, QJsonValue::Object, u"Missing recipe node"_s, u"GraphCommand command is not a Json array"_s},
        {u"Process Formula"_s, QJsonValue::Object, u"Missing Process Formula configuration node"_s, Success},
        {u"dQ_dU"_s, QJsonValue::Object, u"Missing dQ/dU node"_s, u"Missing dQ/dU table configuration node"_s},
        {u"Debug"_s, QJsonValue::Undefined, Success, Success},
    };
    const std::vector<std::pair<QString, QJsonValue>> values = {
        {u"null"_s, QJsonValue::Null},
        {u"number"_s, 29},
        {u"string"_s, u"text"_s},
        {u"bool"_s, true},
        {u"array"_s, QJsonArray()},
        {u"object"_s, QJsonObject()},
        {u"nothing"_s, QJsonValue::Undefined},
    };
    std::vector<Replacement> all;
    for (const SectionRule& rule : rules) {
        for (const auto& [kind, value] : values) {
            const bool fits = rule.type == QJsonValue::Undefined || value.type() == rule.type;
            all.push_back({rule.section, kind, value, fits ? rule.messageWhenEmpty : rule.message});
        }
    }
    return all;
}

class ReplacedSection : public HostileDocument, public testing::WithParamInterface<Replacement>
{
};

} // namespace

TEST_P(ReplacedSection, GivesItsMessageOrCountsAsEmpty)
{
    const Replacement& replacement = GetParam();
    const QJsonObject document = replacement.value.isUndefined()
        ? without(configDocument(), replacement.section)
        : with(configDocument(), replacement.section, replacement.value);
    EXPECT_EQ(load(document), replacement.result);

    QStringList expected = allSections();
    if (replacement.result == Success) {
        expected.removeOne(replacement.section);
    } else {
        expected = expected.first(expected.indexOf(replacement.section));
    }
    EXPECT_EQ(filledSections(config), expected);
    expectRecovery();
}

INSTANTIATE_TEST_SUITE_P(All, ReplacedSection, testing::ValuesIn(replacements()), [](const auto& parameter) {
    const QString name = parameter.param.section + u"As"_s + parameter.param.kind;
    return QString(name).remove(u' ').remove(u'_').toStdString();
});

TEST_F(HostileDocument, AnyMutationLoadsOrSaysWhyNot)
{
    // Whatever goes wrong, it is one of these.
    const QStringList reasons{
        u"The format version is "_s,
        u"Axes combinations array missing"_s,
        u"Axes combination is not Json object"_s,
        u"Unexpected axes combination "_s,
        u"Representations array missing"_s,
        u"No name set for representation"_s,
        u"X not set for representation "_s,
        u"Unexpected Y1 "_s,
        u"Unexpected Y2 "_s,
        u"Neither Y1 nor Y2 set for representation "_s,
        u"Multi units combinations array missing"_s,
        u"Summary table category is not a Json array"_s,
        u"Missing "_s,
        u"Custom colors is not an array node"_s,
        u"Color "_s,
        u"Default colors is not an object node"_s,
    };
    DocumentMutator mutator(29, {u"Voltage"_s, u"Cycle"_s, u"Potentiostat"_s, u"%1 %2"_s});
    const QJsonObject good = configDocument();
    int failures = 0;
    constexpr int Mutations = 3000;
    for (int i = 0; i < Mutations; ++i) {
        const QString key = good.keys().at(i % good.size());
        const QString result = load(with(good, key, mutator.mutated(good.value(key))));
        if (result != Success) {
            ++failures;
            EXPECT_TRUE(std::any_of(reasons.begin(), reasons.end(),
                                    [&](const QString& reason) { return result.startsWith(reason); })
                        || result.endsWith(u" command is not a Json array"_s))
                << result.toStdString();
        }
        config.deleteAll();
    }
    EXPECT_GT(failures, Mutations / 5);
    EXPECT_LT(failures, Mutations - Mutations / 5);
    expectRecovery();
}
