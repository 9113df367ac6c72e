#include <axes/DataStreamCombination.h>

#include <base/JsonFields.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto XCategoryKey = "streamIdentifier_XCategory"_L1;
constexpr auto XNameKey = "streamIdentifier_XName"_L1;
constexpr auto YCategoryKey = "streamIdentifier_YCategory"_L1;
constexpr auto YNameKey = "streamIdentifier_YName"_L1;

} // namespace

DataStreamCombination::DataStreamCombination() = default;

DataStreamCombination::DataStreamCombination(const QString& xCategory, const QString& xName, const QString& yCategory,
                                             const QString& yName)
    : m_x(xName, xCategory)
    , m_y(yName, yCategory)
{
}

DataStreamCombination::DataStreamCombination(const DataStreamCombination& other) = default;
DataStreamCombination& DataStreamCombination::operator=(const DataStreamCombination& other) = default;
DataStreamCombination::~DataStreamCombination() = default;

bool DataStreamCombination::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    const JsonFields fields(object);
    setXCategory(fields.text(XCategoryKey));
    setXName(fields.text(XNameKey));
    setYCategory(fields.text(YCategoryKey));
    setYName(fields.text(YNameKey));
    return true;
}

bool DataStreamCombination::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    object.insert(XCategoryKey, getXCategory());
    object.insert(XNameKey, getXName());
    object.insert(YCategoryKey, getYCategory());
    object.insert(YNameKey, getYName());
    return true;
}

const QString DataStreamCombination::toString() const // NOLINT(readability-const-return-type)
{
    return getXCategory() + u' ' + getXName() + u' ' + getYCategory() + u' ' + getYName();
}
