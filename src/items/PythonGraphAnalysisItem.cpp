#include <items/PythonGraphAnalysisItem.h>

#include <base/JsonFields.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto StreamXKey = "streamX"_L1;
constexpr auto StreamY1Key = "streamY1"_L1;
constexpr auto StreamY2Key = "streamY2"_L1;

} // namespace

PythonGraphAnalysisItem::PythonGraphAnalysisItem() = default;
PythonGraphAnalysisItem::PythonGraphAnalysisItem(const PythonGraphAnalysisItem& other) = default;
PythonGraphAnalysisItem& PythonGraphAnalysisItem::operator=(const PythonGraphAnalysisItem& other) = default;
PythonGraphAnalysisItem::~PythonGraphAnalysisItem() = default;

bool PythonGraphAnalysisItem::read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
{
    PythonAnalysisItem::read(object, version, context);
    const JsonFields fields(object);
    m_streamX = fields.text(StreamXKey);
    m_streamY1 = fields.text(StreamY1Key);
    m_streamY2 = fields.text(StreamY2Key);
    return true;
}

bool PythonGraphAnalysisItem::write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
{
    PythonAnalysisItem::write(object, version, context);
    object.insert(StreamXKey, m_streamX);
    object.insert(StreamY1Key, m_streamY1);
    object.insert(StreamY2Key, m_streamY2);
    return true;
}
