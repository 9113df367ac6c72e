#include <axes/AxesCombinationManager.h>

#include <axes/ManagerChanges.h>
#include <support/DocumentMutator.h>
#include <support/Json.h>
#include <support/QtPrinters.h>
#include <support/Random.h>
#include <support/TestCatalogue.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The manager against its literal version.
namespace {

const QList<TestCatalogue::Array> Arrays{
    {u"Time"_s, u"Step"_s},     {u"Voltage"_s, u"Cycle"_s}, {u"Time"_s, u"Cycle"_s}, {u"Voltage"_s, u"Step"_s},
    {u"Time"_s, u"Loop"_s},     {u"Charge"_s, u"Loop"_s},   {u"text"_s, u"Step"_s},  {u"%1"_s, u"text"_s},
    {u"Time"_s, u""_s},         {u"Voltage"_s, u""_s},      {u""_s, u"Cycle"_s},     {u"%2"_s, u"Step %1"_s},
    {u"Ω µm"_s, u"Zyklus ä"_s}, {u"Time"_s, u"Zyklus ä"_s},
};

QJsonObject randomReference(Random& random)
{
    const TestCatalogue::Array& array = random.of(Arrays);
    QJsonObject reference{{u"Name"_s, random.oneIn(20) ? u"%2 unknown %1"_s : array.name}};
    if (random.oneIn(2)) {
        reference.insert(u"Category"_s, random.oneIn(10) ? random.of(Arrays).category : array.category);
    }
    return reference;
}

QJsonArray randomReferences(Random& random)
{
    QJsonArray references;
    for (int left = random.below(4); left > 0; --left) {
        references.append(randomReference(random));
    }
    return references;
}

/// Entries of the section "Axes combinations" in which every value has its type.
QJsonArray randomEntries(Random& random)
{
    const auto word = [&](const QString& right) { return random.oneIn(3) ? right.toLower() : right; };
    QJsonArray entries;
    for (int left = random.below(4); left > 0; --left) {
        entries.append(QJsonObject{
            {u"X"_s, randomReferences(random)},
            {u"Y1/Y2"_s, randomReferences(random)},
            {u"DEFAULT_SCALE_X"_s, word(u"LINEAR"_s)},
            {u"DEFAULT_SCALE_Y"_s, word(u"LINEAR"_s)},
            {u"ORTHONORMAL_AXIS"_s, word(u"TRUE"_s)},
        });
    }
    return entries;
}

} // namespace

TEST(AxesCombinationManagerRandom, EveryAnswerIsThatOfTheLiteralManager)
{
    QStringList names = ManagerWords;
    names += u"unknown"_s;
    names.removeDuplicates();
    Random random(1);
    for (int life = 0; life < 120; ++life) {
        AxesCombinationManager manager;
        LiteralManager literal;
        for (int change = 0; change < 15; ++change) {
            changeAtRandom(random, manager, literal);
            ASSERT_EQ(answers(manager, names), answers(literal, names)) << "life " << life << ", change " << change;
        }
    }
}

TEST(AxesCombinationManagerRandom, LongListsKeepTheSameRecordsWhenDuplicatesAreRemoved)
{
    Random random(2);
    for (int size = 1; size <= 3000; size *= 3) {
        AxesCombinationManager manager;
        LiteralManager literal;
        for (int i = 0; i < size; ++i) {
            const AxesCombination combination = randomRecord(random);
            both(manager, literal, [&](auto& target) { target.append(combination); });
        }
        both(manager, literal, [](auto& target) { target.removeDuplicates(); });
        ASSERT_EQ(answers(manager, ManagerWords), answers(literal, ManagerWords)) << size << " records";
    }
}

TEST(AxesCombinationManagerRandom, ManyNamesAreToldApart)
{
    QStringList names;
    for (int i = 0; i < 24; ++i) {
        names.append(u"array "_s + QString::number(i));
    }
    Random random(4);
    AxesCombinationManager manager;
    LiteralManager literal;
    for (int i = 0; i < 1000; ++i) {
        const AxesCombination combination =
            record({random.of(names), u"c"_s}, {random.of(names), random.oneIn(9) ? QString() : u"c"_s});
        both(manager, literal, [&](auto& target) { target.append(combination); });
        if (i % 333 == 0) {
            ASSERT_EQ(answers(manager, names), answers(literal, names)) << i + 1 << " records";
        }
    }
    both(manager, literal, [](auto& target) { target.removeDuplicates(); });
    ASSERT_EQ(answers(manager, names), answers(literal, names));
}

TEST(AxesCombinationManagerRandom, EverySectionIsReadAsTheLiteralManagerReadsIt)
{
    TestCatalogue catalogue;
    for (const TestCatalogue::Array& array : Arrays) {
        TestCatalogue::add(array);
    }
    Random random(3);
    DocumentMutator mutator(3, {u"Time"_s, u"Cycle"_s, u"Zyklus ä"_s, u"%1 %2"_s});
    QMap<QString, int> outcomes;
    for (int i = 0; i < 8000; ++i) {
        const QJsonValue entries = randomEntries(random);
        QJsonObject root{{u"Axes combinations"_s, random.oneIn(2) ? entries : mutator.mutated(entries)}};
        if (random.oneIn(2)) {
            // Texts that come from a file are stored in another way than those that come from a program.
            root = jsonObject(QJsonDocument(root).toJson());
        }
        AxesCombinationManager manager;
        LiteralManager literal;
        QString error = u"untouched"_s;
        QString literalError = error;
        const bool isRead = manager.readAxesCombinations(root, error);
        ASSERT_EQ(isRead, literal.readAxesCombinations(root, literalError)) << testing::PrintToString(root);
        ASSERT_EQ(error, literalError) << testing::PrintToString(root);
        ASSERT_EQ(answers(manager, {u"Time"_s, u"Voltage"_s, u""_s}),
                  answers(literal, {u"Time"_s, u"Voltage"_s, u""_s}))
            << testing::PrintToString(root);
        ++outcomes[error.contains(u':') ? error.left(error.indexOf(u':') + 1) : error];
    }
    EXPECT_EQ(outcomes.keys(),
              QStringList({
                  u"Axes combination is not Json object"_s,
                  u"Axes combinations array missing"_s,
                  u"Unexpected axes combination X"_s,
                  u"Unexpected axes combination X:"_s,
                  u"Unexpected axes combination Y1/Y2:"_s,
                  u"Unexpected axes combination default scale"_s,
                  u"Unexpected axes combination orthonormal parameter"_s,
                  u"untouched"_s,
              }));
}
