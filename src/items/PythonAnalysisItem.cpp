#include <items/PythonAnalysisItem.h>

#include <base/JsonFields.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

constexpr auto TitleKey = "title"_L1;
constexpr auto CategoryKey = "category"_L1;
constexpr auto IdKey = "id"_L1;
constexpr auto InputsKey = "inputs"_L1;
constexpr auto DutRunsKey = "dutRuns"_L1;

} // namespace

PythonAnalysisItem::PythonAnalysisItem() = default;
PythonAnalysisItem::PythonAnalysisItem(const PythonAnalysisItem& other) = default;
PythonAnalysisItem& PythonAnalysisItem::operator=(const PythonAnalysisItem& other) = default;
PythonAnalysisItem::~PythonAnalysisItem() = default;

bool PythonAnalysisItem::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    const JsonFields fields(object);
    m_title = fields.text(TitleKey);
    m_category = fields.text(CategoryKey);
    m_id = fields.text(IdKey);
    m_inputColumns = fields.texts(InputsKey);
    m_dutRunPaths = fields.texts(DutRunsKey);
    return true;
}

bool PythonAnalysisItem::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    object.insert(TitleKey, m_title);
    object.insert(CategoryKey, m_category);
    object.insert(IdKey, m_id);
    object.insert(InputsKey, QJsonArray::fromStringList(m_inputColumns));
    object.insert(DutRunsKey, QJsonArray::fromStringList(m_dutRunPaths));
    return true;
}
