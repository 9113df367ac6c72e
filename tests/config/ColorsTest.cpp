#include <config/UIConfigTest.h>

#include <QColor>
#include <QJsonArray>

#include <optional>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::Pair;

namespace {

class Colors : public UIConfigTest
{
protected:
    /// Reads a section with this palette and these defaults.
    QString readColors(const QByteArray& palette, const QByteArray& defaults) const
    {
        return read(
            &UIConfigReaders::readColors,
            QByteArray(R"({"Colors": {"Custom colors": [)" + palette + R"(], "Default colors": {)" + defaults + "}}}"));
    }

    /// The default colour of an element, nothing when there is none. A miss must leave the caller's colour alone.
    std::optional<QColor> defaultColor(const QString& key) const
    {
        const QColor before(1, 2, 3, 4);
        QColor color = before;
        if (config.getDefaultColor(key, color)) {
            return color;
        }
        EXPECT_EQ(color, before);
        return std::nullopt;
    }

    QStringList names() const
    {
        QStringList result;
        for (const auto& color : config.getCustomColors()) {
            result.append(color.first);
        }
        return result;
    }
};

} // namespace

TEST_F(Colors, PaletteKeepsFileOrderAndColoursAreOpaque)
{
    EXPECT_EQ(
        readColors(R"({"name": "white", "RGB": [255, 255, 255]}, {"RGB": [1, 2, 3], "name": "almost black"})", ""),
        Success);
    EXPECT_THAT(
        config.getCustomColors(),
        ElementsAre(Pair(u"white"_s, QColor(255, 255, 255, 255)), Pair(u"almost black"_s, QColor(1, 2, 3, 255))));
}

TEST_F(Colors, DefaultResolvesThroughThePalette)
{
    EXPECT_EQ(readColors(R"({"name": "blue", "RGB": [0, 0, 255]}, {"name": "red", "RGB": [255, 0, 0]})",
                         R"("voltage": "red")"),
              Success);
    EXPECT_EQ(defaultColor(u"voltage"_s), QColor(255, 0, 0, 255));
    EXPECT_EQ(defaultColor(u"Voltage"_s), std::nullopt);
    EXPECT_EQ(defaultColor(u"red"_s), std::nullopt) << "the key of an element, not the name of a colour";
}

TEST_F(Colors, DefaultThatNamesNoColourOfThePaletteIsAMiss)
{
    EXPECT_EQ(readColors(R"({"name": "red", "RGB": [255, 0, 0]})", R"("voltage": "Red", "current": "mauve")"), Success);
    EXPECT_EQ(defaultColor(u"voltage"_s), std::nullopt);
    EXPECT_EQ(defaultColor(u"current"_s), std::nullopt);
}

TEST_F(Colors, OfEqualNamesTheFirstIsUsed)
{
    EXPECT_EQ(readColors(R"({"name": "red", "RGB": [255, 0, 0]}, {"name": "red", "RGB": [200, 0, 0]})",
                         R"("voltage": "red")"),
              Success);
    EXPECT_EQ(defaultColor(u"voltage"_s), QColor(255, 0, 0));
    EXPECT_EQ(names(), QStringList({u"red"_s, u"red"_s}));
}

TEST_F(Colors, ColourWithoutNameServesElementsWithoutDefault)
{
    EXPECT_EQ(readColors(R"({"name": "red", "RGB": [255, 0, 0]}, {"RGB": [1, 1, 1]}, {"name": 7, "RGB": [2, 2, 2]})",
                         R"("voltage": "red", "current": 7)"),
              Success);
    EXPECT_EQ(defaultColor(u"absent"_s), QColor(1, 1, 1));
    EXPECT_EQ(defaultColor(u"current"_s), QColor(1, 1, 1)) << "a default that is no text reads as empty";
    EXPECT_EQ(defaultColor(u"voltage"_s), QColor(255, 0, 0));
    EXPECT_EQ(names(), QStringList({u"red"_s, QString(), QString()}));
}

TEST_F(Colors, EmptyDefaultsAreAccepted)
{
    EXPECT_EQ(readColors(R"({"name": "red", "RGB": [255, 0, 0]})", ""), Success);
    EXPECT_EQ(defaultColor(u"voltage"_s), std::nullopt);
    EXPECT_EQ(defaultColor(QString()), std::nullopt);
}

TEST_F(Colors, MissingSectionFails)
{
    for (const char* json : {R"({})", R"({"Colors": []})", R"({"colors": {}})"}) {
        EXPECT_EQ(read(&UIConfigReaders::readColors, json), u"Missing colors configuration node"_s) << json;
    }
}

TEST_F(Colors, MissingPaletteFailsBeforeTheDefaultsAreLookedAt)
{
    for (const char* json : {R"({"Colors": {}})", R"({"Colors": {"Custom colors": {}, "Default colors": []}})",
                             R"({"Colors": {"Custom Colors": [], "Default colors": {}}})"}) {
        EXPECT_EQ(read(&UIConfigReaders::readColors, json), u"Custom colors is not an array node"_s) << json;
    }
}

TEST_F(Colors, EntryThatIsNoObjectFailsAfterThoseBeforeIt)
{
    EXPECT_EQ(readColors(R"({"name": "red", "RGB": [255, 0, 0]}, [0, 0, 255], {"name": "late", "RGB": [0, 0, 0]})",
                         R"("voltage": "red")"),
              u"Color is not a Json object"_s);
    EXPECT_EQ(names(), QStringList(u"red"_s));
    EXPECT_EQ(defaultColor(u"voltage"_s), std::nullopt) << "defaults are read after the whole palette";
}

TEST_F(Colors, RgbThatIsNoArrayFailsWithTheName)
{
    EXPECT_EQ(readColors(R"({"name": "sky"})", ""), u"Color sky is not a Json array"_s);
    EXPECT_EQ(readColors(R"({"name": "sky", "RGB": "#56B4E9"})", ""), u"Color sky is not a Json array"_s);
    EXPECT_EQ(readColors(R"({"name": "sky", "rgb": [0, 0, 0]})", ""), u"Color sky is not a Json array"_s);
    EXPECT_EQ(readColors(R"({"RGB": null})", ""), u"Color  is not a Json array"_s);
    EXPECT_EQ(readColors(R"({"name": "%1", "RGB": 0})", ""), u"Color %1 is not a Json array"_s);
}

TEST_F(Colors, RgbOfAnotherLengthFailsWithTheName)
{
    const QString message = u"Color sky is not correctly formed"_s;
    EXPECT_EQ(readColors(R"({"name": "sky", "RGB": [86, 180, 233, 255]})", ""), message) << "there is no alpha";
    EXPECT_EQ(readColors(R"({"name": "sky", "RGB": [86, 180]})", ""), message);
    EXPECT_EQ(readColors(R"({"name": "sky", "RGB": []})", ""), message);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(Colors, MissingDefaultsFailAfterThePaletteIsRead)
{
    for (const char* defaults : {"", R"(, "Default colors": [])", R"(, "Default colors": null)"}) {
        EXPECT_EQ(
            read(&UIConfigReaders::readColors,
                 QByteArray(R"({"Colors": {"Custom colors": [{"name": "red", "RGB": [255, 0, 0]}])") + defaults + "}}"),
            u"Default colors is not an object node"_s);
    }
    EXPECT_EQ(names(), QStringList({u"red"_s, u"red"_s, u"red"_s}));
}

TEST_F(Colors, ComponentsThatAreNoIntegersReadAsZero)
{
    EXPECT_EQ(readColors(R"({"name": "odd", "RGB": ["255", null, 1.5]}, {"name": "none", "RGB": [true, [1], {}]})", ""),
              Success);
    EXPECT_THAT(config.getCustomColors(),
                ElementsAre(Pair(u"odd"_s, QColor(0, 0, 0)), Pair(u"none"_s, QColor(0, 0, 0))));
}

TEST_F(Colors, ComponentsOutOfRangeGoToTheColourAsTheyAre)
{
    EXPECT_EQ(readColors(R"({"name": "bright", "RGB": [300, 0, 0]}, {"name": "dark", "RGB": [0, -1, 0]})", ""),
              Success);
    EXPECT_THAT(config.getCustomColors(),
                ElementsAre(Pair(u"bright"_s, QColor(300, 0, 0)), Pair(u"dark"_s, QColor(0, -1, 0))));
}

TEST_F(Colors, SecondReadingAppendsColoursAndReplacesDefaults)
{
    EXPECT_EQ(readColors(R"({"name": "red", "RGB": [255, 0, 0]})", R"("voltage": "red", "current": "red")"), Success);
    EXPECT_EQ(readColors(R"({"name": "sky", "RGB": [86, 180, 233]}, {"name": "red", "RGB": [9, 9, 9]})",
                         R"("voltage": "sky", "power": "red")"),
              Success);
    EXPECT_EQ(names(), QStringList({u"red"_s, u"sky"_s, u"red"_s}));
    EXPECT_EQ(defaultColor(u"voltage"_s), QColor(86, 180, 233));
    EXPECT_EQ(defaultColor(u"current"_s), QColor(255, 0, 0));
    EXPECT_EQ(defaultColor(u"power"_s), QColor(255, 0, 0));
}

TEST_F(Colors, PartsCanBeReadAlone)
{
    QString error = u"untouched"_s;
    EXPECT_TRUE((config.*&UIConfigReaders::readCustomColors)(
        QJsonArray{jsonObject(R"({"name": "red", "RGB": [255, 0, 0]})")}, error));
    EXPECT_TRUE((config.*&UIConfigReaders::readDefaultColors)(jsonObject(R"({"voltage": "red"})"), error));
    EXPECT_TRUE((config.*&UIConfigReaders::readDefaultColors)(u"text"_s, error)) << "reads as an empty object";
    EXPECT_EQ(error, u"untouched"_s);
    EXPECT_EQ(defaultColor(u"voltage"_s), QColor(255, 0, 0));
}
