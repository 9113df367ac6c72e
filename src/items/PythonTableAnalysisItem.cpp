#include <items/PythonTableAnalysisItem.h>

#include <base/JsonFields.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

constexpr auto OutputsKey = "outputs"_L1;

} // namespace

PythonTableAnalysisItem::PythonTableAnalysisItem() = default;
PythonTableAnalysisItem::PythonTableAnalysisItem(const PythonTableAnalysisItem& other) = default;
PythonTableAnalysisItem& PythonTableAnalysisItem::operator=(const PythonTableAnalysisItem& other) = default;
PythonTableAnalysisItem::~PythonTableAnalysisItem() = default;

bool PythonTableAnalysisItem::read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
{
    PythonAnalysisItem::read(object, version, context);
    const JsonFields fields(object);
    m_outputColumns = fields.texts(OutputsKey);
    return true;
}

bool PythonTableAnalysisItem::write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
{
    PythonAnalysisItem::write(object, version, context);
    object.insert(OutputsKey, QJsonArray::fromStringList(m_outputColumns));
    return true;
}
