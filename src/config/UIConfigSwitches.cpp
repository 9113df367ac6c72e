#include <config/UIConfig.h>

#include <axes/private/JsonFields.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto FiltersKey = "Filters"_L1;
constexpr auto TasksKey = "Tasks"_L1;
constexpr auto SkippedKey = "Skipped"_L1;

constexpr auto DebugKey = "Debug"_L1;
constexpr auto ImportDialogClIdsKey = "importDialogDisplayClIds"_L1; // the getter says "Show"; both names are meant
constexpr auto ImportedParquetFilesKey = "saveImportedParquetFiles"_L1;
constexpr auto ZFitInputDataKey = "saveZFitInputData"_L1;

} // namespace

bool UIConfig::readFilters(const QJsonObject& root, QString& /*error*/)
{
    // What is missing or has another type reads as empty on the way down and adds nothing.
    const JsonFields tasks(root.value(FiltersKey).toObject().value(TasksKey).toObject());
    m_skippedTasks.append(tasks.texts(SkippedKey));
    return true;
}

bool UIConfig::readDebugFlags(const QJsonObject& root, QString& /*error*/)
{
    const QJsonValue section = root.value(DebugKey);
    if (section.isObject()) {
        const JsonFields flags(section.toObject());
        m_importDialogShowClIds = flags.flag(ImportDialogClIdsKey);
        m_saveImportedParquetFiles = flags.flag(ImportedParquetFilesKey);
        m_saveZFitInputData = flags.flag(ZFitInputDataKey);
    }
    return true;
}
