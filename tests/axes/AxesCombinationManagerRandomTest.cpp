#include <axes/AxesCombinationManager.h>

#include <axes/LiteralManager.h>
#include <axes/Records.h>
#include <support/DocumentMutator.h>
#include <support/FakeDataStream.h>
#include <support/Json.h>
#include <support/QtPrinters.h>
#include <support/Random.h>
#include <support/TestCatalogue.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

// The manager against its literal version, on inputs with so few distinct words that duplicates, the same text key by
// another split of the words, invalid records and misses are all common.
namespace {

constexpr int AnyVersion = 29;

const QList<QString> Words{u"a"_s, u"a"_s, u"b"_s, u"b"_s, u"a a"_s, u"a b"_s, u"b a"_s, u"A"_s, u""_s};

AxesCombination randomRecord(Random& random)
{
    return record({random.of(Words), random.of(Words)}, {random.of(Words), random.of(Words)},
                  random.oneIn(2) ? QCPAxis::stLinear : QCPAxis::stLogarithmic,
                  random.oneIn(2) ? QCPAxis::stLinear : QCPAxis::stLogarithmic, random.oneIn(2));
}

/// The answers to every query that the names \p names allow.
template <typename Manager>
QStringList answers(const Manager& manager, const QStringList& names)
{
    QStringList texts = described(manager.getAxesCombinations());
    texts += manager.getXAxesNames();
    for (const QString& x : names) {
        texts += described(manager.getAxesCombinations(x));
        texts += manager.getYAxesNames(x);
        for (const QString& y : names) {
            texts += described(manager.getAxesCombination(x, y));
            const ConfigRepresentation representation(u"name"_s, x, y, names.first(), u"category"_s, false);
            texts += manager.isRepresentationValid(&representation) ? u"valid"_s : u"invalid"_s;
        }
    }
    return texts;
}

/// Does the same to both managers.
template <typename Operation>
void both(AxesCombinationManager& manager, LiteralManager& literal, const Operation& operation)
{
    operation(manager);
    operation(literal);
}

void changeByRecords(Random& random, AxesCombinationManager& manager, LiteralManager& literal)
{
    const int count = random.below(12);
    for (int i = 0; i < count; ++i) {
        const AxesCombination combination = randomRecord(random);
        both(manager, literal, [&](auto& target) { target.append(combination); });
    }
}

void changeByStreams(Random& random, AxesCombinationManager& manager, LiteralManager& literal)
{
    std::vector<std::unique_ptr<FakeDataStream>> owner;
    QList<cl::dataprocess::IDataStream*> streams;
    const int count = random.below(5);
    for (int i = 0; i < count; ++i) {
        QSet<int> indices;
        for (int index = -3; index < 4; ++index) {
            if (!random.oneIn(3)) {
                indices.insert(index);
            }
        }
        owner.push_back(
            std::make_unique<FakeDataStream>(random.of(Words), random.of(Words), random.below(7) - 2, indices));
        streams.append(owner.back().get());
    }
    const int index = random.below(7) - 3;
    both(manager, literal, [&](auto& target) { target.addCombinationsFromStreams(streams, index); });
}

/// Archives the list, spoils an element now and then, and reads it back.
void changeByArchive(Random& random, AxesCombinationManager& manager, LiteralManager& literal)
{
    cl::archive::ArchiveContext context;
    QJsonObject object;
    EXPECT_TRUE(manager.write(object, AnyVersion, context));
    QJsonArray array = object.value(u"axesCombinations"_s).toArray();
    EXPECT_EQ(array.size(), literal.getAxesCombinations().size());
    if (!array.isEmpty() && random.oneIn(2)) {
        array.replace(random.below(array.size()), random.oneIn(2) ? QJsonValue(1) : QJsonValue());
    }
    object.insert(u"axesCombinations"_s, random.oneIn(10) ? QJsonValue() : QJsonValue(array));
    both(manager, literal, [&](auto& target) { target.read(object, AnyVersion, context); });
}

void changeAtRandom(Random& random, AxesCombinationManager& manager, LiteralManager& literal)
{
    switch (random.below(10)) {
    case 0:
        both(manager, literal, [](auto& target) { target.deleteAll(); });
        break;
    case 1:
        changeByArchive(random, manager, literal);
        break;
    case 2:
    case 3:
        changeByStreams(random, manager, literal);
        break;
    case 4:
    case 5:
        both(manager, literal, [](auto& target) { target.removeDuplicates(); });
        break;
    default:
        changeByRecords(random, manager, literal);
        break;
    }
}

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
    QStringList names = Words;
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
        ASSERT_EQ(answers(manager, Words), answers(literal, Words)) << size << " records";
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
