// Any JSON as an archived record: what was read and written is read and written again as it is. Any changes to the
// manager of axes combinations: it answers as its literal version does.

#include "Fuzz.h"

#include <axes/ManagerChanges.h>

#include <items/DQdUAnalysisItem.h>
#include <items/ProcessedDataItem.h>
#include <items/PythonGraphAnalysisItem.h>
#include <items/PythonTableAnalysisItem.h>
#include <items/RagonePlotItem.h>
#include <items/StatisticsItem.h>
#include <items/ZFitItem.h>

#include <QJsonDocument>

using fuzz::require;

namespace {

constexpr int AnyVersion = 29;
constexpr std::size_t LongestChanges = 400;

template <typename Record>
QJsonObject passedThrough(const QJsonObject& archived)
{
    cl::archive::ArchiveContext context;
    Record record;
    QJsonObject result;
    record.read(archived, AnyVersion, context);
    require(record.write(result, AnyVersion, context), "a record writes itself");
    return result;
}

template <typename... Record>
void passThrough(const QJsonObject& archived)
{
    const auto isStable = [](const QJsonObject& once, const QJsonObject& twice) {
        require(once == twice, "what a record wrote it reads and writes as it is");
        require(once == QJsonDocument::fromJson(QJsonDocument(once).toJson()).object(), "what a record wrote is JSON");
    };
    (isStable(passedThrough<Record>(archived), passedThrough<Record>(passedThrough<Record>(archived))), ...);
}

void changeManager(fuzz::Choices choices)
{
    AxesCombinationManager manager;
    LiteralManager literal;
    while (!choices.isUsedUp()) {
        changeAtRandom(choices, manager, literal);
    }
    QStringList names = ManagerWords;
    names.removeDuplicates();
    require(answers(manager, names) == answers(literal, names), "the manager answers as its literal version does");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QJsonDocument document = QJsonDocument::fromJson(fuzz::bytes(data, size));
    if (document.isObject()) {
        passThrough<AxesCombination, AxesCombinationManager, DataStreamCombination, DQdUAnalysisItem, ProcessedDataItem,
                    PythonAnalysisItem, PythonGraphAnalysisItem, PythonTableAnalysisItem, RagonePlotChildItem,
                    RagonePlotItem, StatisticsChildItem, StatisticsItem, ZFitItem>(document.object());
    } else if (size <= LongestChanges) {
        changeManager({data, size});
    }
    return 0;
}
