#pragma once

#include <axes/LiteralManager.h>
#include <axes/Records.h>
#include <support/FakeDataStream.h>

#include <QJsonArray>
#include <QJsonObject>

#include <memory>
#include <vector>

/// \file ManagerChanges.h
/// Changes to the manager of axes combinations and to its literal version, and all their answers: with so few distinct
/// words that duplicates, the same text key by another split of the words, invalid records and misses are all common.
/// Whoever chooses among the changes has the functions of Random.

/// The words of which names and categories are made.
inline const QList<QString> ManagerWords{QStringLiteral("a"),   QStringLiteral("a"),   QStringLiteral("b"),
                                         QStringLiteral("b"),   QStringLiteral("a a"), QStringLiteral("a b"),
                                         QStringLiteral("b a"), QStringLiteral("A"),   QString()};

template <typename Choices>
AxesCombination randomRecord(Choices& random)
{
    return record({random.of(ManagerWords), random.of(ManagerWords)},
                  {random.of(ManagerWords), random.of(ManagerWords)},
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
            const ConfigRepresentation representation(QStringLiteral("name"), x, y, names.first(),
                                                      QStringLiteral("category"), false);
            texts +=
                manager.isRepresentationValid(&representation) ? QStringLiteral("valid") : QStringLiteral("invalid");
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

template <typename Choices>
void changeByRecords(Choices& random, AxesCombinationManager& manager, LiteralManager& literal)
{
    const int count = random.below(12);
    for (int i = 0; i < count; ++i) {
        const AxesCombination combination = randomRecord(random);
        both(manager, literal, [&](auto& target) { target.append(combination); });
    }
}

template <typename Choices>
void changeByStreams(Choices& random, AxesCombinationManager& manager, LiteralManager& literal)
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
        owner.push_back(std::make_unique<FakeDataStream>(random.of(ManagerWords), random.of(ManagerWords),
                                                         random.below(7) - 2, indices));
        streams.append(owner.back().get());
    }
    const int index = random.below(7) - 3;
    both(manager, literal, [&](auto& target) { target.addCombinationsFromStreams(streams, index); });
}

/// Archives the list, spoils an element now and then, and reads it back.
template <typename Choices>
void changeByArchive(Choices& random, AxesCombinationManager& manager, LiteralManager& literal)
{
    constexpr int AnyVersion = 29;
    cl::archive::ArchiveContext context;
    QJsonObject object;
    manager.write(object, AnyVersion, context);
    QJsonArray array = object.value(QStringLiteral("axesCombinations")).toArray();
    if (array.size() != literal.getAxesCombinations().size()) {
        qFatal("The manager archives %lld of %lld records", static_cast<long long>(array.size()),
               static_cast<long long>(literal.getAxesCombinations().size()));
    }
    if (!array.isEmpty() && random.oneIn(2)) {
        array.replace(random.below(array.size()), random.oneIn(2) ? QJsonValue(1) : QJsonValue());
    }
    object.insert(QStringLiteral("axesCombinations"), random.oneIn(10) ? QJsonValue() : QJsonValue(array));
    both(manager, literal, [&](auto& target) { target.read(object, AnyVersion, context); });
}

template <typename Choices>
void changeAtRandom(Choices& random, AxesCombinationManager& manager, LiteralManager& literal)
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
