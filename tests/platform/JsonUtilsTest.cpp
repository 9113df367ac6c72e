#include <datastorage/JsonUtils.h>
#include <support/DocumentFile.h>
#include <support/QtPrinters.h>

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using cl::datastorage::JsonUtils;

namespace {

struct Opened
{
    bool isRead;
    QString error;
    QJsonObject root;
};

// The document starts with a member of its own, so that a failure that touches it shows.
Opened open(const QString& path)
{
    Opened opened{false, u"untouched"_qs, {{u"kept"_qs, true}}};
    opened.isRead = JsonUtils::openJsonDocument(path, opened.error, opened.root);
    return opened;
}

Opened openContent(const QByteArray& content)
{
    const DocumentFile file(content);
    Opened opened = open(file.path());
    opened.error.replace(file.path(), u"PATH"_qs);
    return opened;
}

void expectRefused(const Opened& opened, const QString& error)
{
    EXPECT_FALSE(opened.isRead);
    EXPECT_EQ(opened.error, error);
    EXPECT_EQ(opened.root, (QJsonObject{{u"kept"_qs, true}}));
}

void expectRead(const Opened& opened, const QJsonObject& root)
{
    EXPECT_TRUE(opened.isRead);
    EXPECT_EQ(opened.error, u"untouched"_qs);
    EXPECT_EQ(opened.root, root);
}

QString checkVersion(const QJsonValue& value)
{
    QString error = u"untouched"_qs;
    const bool isExpected = JsonUtils::checkVersionNumber({{u"Version"_qs, value}}, 29, error);
    EXPECT_EQ(isExpected, error == u"untouched"_qs);
    return error;
}

} // namespace

TEST(OpenJsonDocument, ReadsAnObjectAndLeavesTheErrorAlone)
{
    expectRead(openContent("{\"a\": [1, null], \"ä\": \"Ω\"}"),
               {{u"a"_qs, QJsonArray{1, QJsonValue()}}, {u"ä"_qs, u"Ω"_qs}});
    expectRead(openContent("{}"), {});
}

TEST(OpenJsonDocument, AcceptsAByteOrderMark)
{
    expectRead(openContent("\xEF\xBB\xBF{\"a\": 1}"), {{u"a"_qs, 1}});
}

TEST(OpenJsonDocument, AcceptsWindowsLineEnds)
{
    expectRead(openContent("{\r\n    \"a\": 1\r\n}\r\n"), {{u"a"_qs, 1}});
}

TEST(OpenJsonDocument, OfARepeatedKeyTheLastCounts)
{
    expectRead(openContent(R"({"a": 1, "a": 2})"), {{u"a"_qs, 2}});
}

TEST(OpenJsonDocument, RefusesAMissingFile)
{
    const DocumentFile file("{}");
    const QString path = file.directory() + u"/missing.json"_qs;
    const Opened opened = open(path);
    EXPECT_FALSE(opened.isRead);
    EXPECT_TRUE(opened.error.startsWith(u"Cannot open \"%1\": "_qs.arg(path))) << qPrintable(opened.error);
    EXPECT_FALSE(opened.root.isEmpty());
}

TEST(OpenJsonDocument, RefusesAnEmptyPath)
{
    const Opened opened = open(QString());
    EXPECT_FALSE(opened.isRead);
    EXPECT_TRUE(opened.error.startsWith(u"Cannot open \"\": "_qs)) << qPrintable(opened.error);
}

TEST(OpenJsonDocument, RefusesADirectory)
{
    const DocumentFile file("{}");
    expectRefused(open(file.directory()), u"Cannot open \"%1\": it is a directory"_qs.arg(file.directory()));
}

TEST(OpenJsonDocument, RefusesAFileWithoutPermission)
{
#ifdef Q_OS_UNIX
    const DocumentFile file("{}");
    const uid_t user = geteuid();
    constexpr uid_t Nobody = 65534;
    ASSERT_TRUE(QFile::setPermissions(file.directory(),
                                      QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner
                                          | QFileDevice::ExeOther));
    ASSERT_TRUE(QFile::setPermissions(file.path(), QFileDevice::WriteOwner));
    if (user == 0 && seteuid(Nobody) != 0) {
        GTEST_SKIP() << "the superuser may read every file, and there is no other user to become";
    }
    const Opened opened = open(file.path());
    ASSERT_EQ(seteuid(user), 0);
    EXPECT_FALSE(opened.isRead);
    EXPECT_TRUE(opened.error.startsWith(u"Cannot open \"%1\": "_qs.arg(file.path()))) << qPrintable(opened.error);
#else
    GTEST_SKIP() << "permissions of this kind are a matter of Unix";
#endif
}

TEST(OpenJsonDocument, RefusesAFileThatCannotBeRead)
{
#ifdef Q_OS_LINUX
    const QString path = u"/proc/self/mem"_qs; // opens, but its first byte is no memory of the process
    const Opened opened = open(path);
    EXPECT_FALSE(opened.isRead);
    EXPECT_TRUE(opened.error.startsWith(u"Cannot read \"/proc/self/mem\": "_qs)) << qPrintable(opened.error);
#else
    GTEST_SKIP() << "no file here opens and cannot be read";
#endif
}

TEST(OpenJsonDocument, RefusesAnEmptyFile)
{
    expectRefused(openContent(""), u"\"PATH\" is empty"_qs);
    expectRefused(openContent(" \r\n\t"), u"\"PATH\" is empty"_qs);
    expectRefused(openContent("\xEF\xBB\xBF"), u"\"PATH\" is empty"_qs);
    expectRefused(openContent("\xEF\xBB\xBF\n"), u"\"PATH\" is empty"_qs);
}

TEST(OpenJsonDocument, RefusesATruncatedFileAtItsEnd)
{
    expectRefused(openContent("{\n  \"a\": [1,\n  2"),
                  u"\"PATH\" is not valid JSON: line 3, column 4: invalid termination by number"_qs);
    expectRefused(openContent("{\"a"), u"\"PATH\" is not valid JSON: line 1, column 4: unterminated string"_qs);
}

TEST(OpenJsonDocument, TellsLineAndColumnOfAMistake)
{
    const QList<std::pair<QByteArray, QString>> cases = {
        {"{\n  \"a\": tru\n}", u"line 2, column 11: illegal value"_qs},
        {"{\n  \"a\": nulx\n}", u"line 2, column 11: illegal value"_qs},
        {"{\n  \"a\": -x\n}", u"line 2, column 9: illegal number"_qs},
        {"{\n  \"a\": 'x'\n}", u"line 2, column 8: illegal number"_qs},
        {"{\n  \"a\": 1,\n}", u"line 3, column 1: object is missing after a comma"_qs},
        {"{\n  \"a\": 1\n  \"b\": 2}", u"line 3, column 3: unterminated object"_qs},
        {"{\n  \"a\" 1}", u"line 2, column 7: missing name separator"_qs},
        {"{\n  \"a\": [1, 2}", u"line 2, column 13: unterminated array"_qs},
        {"{\n  \"a\": [1 2]}", u"line 2, column 11: missing value separator"_qs},
        {"{\n  a: 1}", u"line 2, column 3: unterminated object"_qs},
        {"{\n  \"a\": 1\n", u"line 2, column 9: unterminated object"_qs},
        {"x", u"line 1, column 1: illegal value"_qs},
    };
    for (const auto& [content, place] : cases) {
        expectRefused(openContent(content), u"\"PATH\" is not valid JSON: "_qs + place);
    }
}

TEST(OpenJsonDocument, CountsColumnsInCharactersNotBytes)
{
    expectRefused(openContent("{\"äΩ𝄞\": x}"), u"\"PATH\" is not valid JSON: line 1, column 9: illegal number"_qs);
}

TEST(OpenJsonDocument, AByteOrderMarkIsNoColumn)
{
    expectRefused(openContent("\xEF\xBB\xBF{\"a\": x}"),
                  u"\"PATH\" is not valid JSON: line 1, column 7: illegal number"_qs);
    expectRefused(openContent("\xEF\xBB\xBF{\n\"a\": x}"),
                  u"\"PATH\" is not valid JSON: line 2, column 6: illegal number"_qs);
}

TEST(OpenJsonDocument, WindowsLineEndsAreOneLineEach)
{
    expectRefused(openContent("{\r\n\r\n  \"a\": x\r\n}"),
                  u"\"PATH\" is not valid JSON: line 3, column 8: illegal number"_qs);
}

TEST(OpenJsonDocument, RefusesInvalidUtf8)
{
    expectRefused(openContent("{\n\"a\": \"\xC3\x28\"}"),
                  u"\"PATH\" is not valid JSON: line 2, column 7: invalid UTF8 string"_qs);
}

TEST(OpenJsonDocument, RefusesNestingThatIsTooDeep)
{
    const Opened opened = openContent("{\"a\": " + QByteArray(100000, '[') + QByteArray(100000, ']') + "}");
    EXPECT_FALSE(opened.isRead);
    EXPECT_TRUE(opened.error.startsWith(u"\"PATH\" is not valid JSON: line 1, column "_qs)) << qPrintable(opened.error);
    EXPECT_TRUE(opened.error.endsWith(u": too deeply nested document"_qs)) << qPrintable(opened.error);
}

TEST(OpenJsonDocument, RefusesARootThatIsNoObject)
{
    expectRefused(openContent("[{\"a\": 1}]"), u"\"PATH\" does not hold a JSON object"_qs);
}

TEST(OpenJsonDocument, RefusesTextAfterTheObject)
{
    expectRefused(openContent("{}\n{}"),
                  u"\"PATH\" is not valid JSON: line 2, column 1: garbage at the end of the document"_qs);
}

TEST(OpenJsonDocument, APathWithPlaceholdersIsNamedAsItIs)
{
    const DocumentFile file("{}");
    const QString path = file.directory() + u"/%1 %2.json"_qs;
    ASSERT_TRUE(QFile::copy(file.path(), path));
    expectRead(open(path), {});
    QFile broken(path);
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("{x");
    broken.close();
    EXPECT_TRUE(open(path).error.startsWith(u"\""_qs + path + u"\" is not valid JSON: line 1, column "_qs));
}

TEST(CheckVersionNumber, AcceptsExactlyTheExpectedInteger)
{
    EXPECT_EQ(checkVersion(29), u"untouched"_qs);
    EXPECT_EQ(checkVersion(29.0), u"untouched"_qs);
}

TEST(CheckVersionNumber, SaysWhatTheVersionIsInstead)
{
    EXPECT_EQ(checkVersion(28), u"The format version is 28: expected 29"_qs);
    EXPECT_EQ(checkVersion(29.5), u"The format version is 29.5: expected 29"_qs);
    EXPECT_EQ(checkVersion(-29), u"The format version is -29: expected 29"_qs);
    EXPECT_EQ(checkVersion(1e300), u"The format version is 1e+300: expected 29"_qs);
}

TEST(CheckVersionNumber, SaysThatTheVersionIsNoNumber)
{
    const QString expected = u"The format version is not a number: expected \"Version\": 29"_qs;
    EXPECT_EQ(checkVersion(u"29"_qs), expected);
    EXPECT_EQ(checkVersion(QJsonValue::Null), expected);
    EXPECT_EQ(checkVersion(true), expected);
    EXPECT_EQ(checkVersion(QJsonArray{29}), expected);
}

TEST(CheckVersionNumber, SaysThatTheVersionIsMissing)
{
    QString error;
    EXPECT_FALSE(JsonUtils::checkVersionNumber({{u"version"_qs, 29}}, 29, error));
    EXPECT_EQ(error, u"The format version is missing: expected \"Version\": 29"_qs);
}

TEST(StringLists, ElementsThatAreNoStringsBecomeEmptyTexts)
{
    const QJsonArray array{u"a"_qs, 1, QJsonValue(), QJsonArray{u"b"_qs}, u"c"_qs};
    EXPECT_EQ(JsonUtils::QStringListFromJsonArray(array),
              (QStringList{u"a"_qs, QString(), QString(), QString(), u"c"_qs}));
    EXPECT_EQ(JsonUtils::QStringListFromJsonArray({}), QStringList());
}

TEST(StringLists, BecomeArraysOfStringsInTheirOrder)
{
    EXPECT_EQ(JsonUtils::QStringListToJsonArray({u"b"_qs, QString(), u"a"_qs}), (QJsonArray{u"b"_qs, u""_qs, u"a"_qs}));
    EXPECT_EQ(JsonUtils::QStringListToJsonArray({}), QJsonArray());
}
