#include <config/UIConfig.h>

#include <axes/private/JsonFields.h>
#include <config/MSVUnitsCombination.h>
#include <datastorage/Converter.h>

#include <QJsonArray>

#include <memory>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;

namespace {

constexpr auto SectionKey = "MSVUnits"_L1;
constexpr auto PhysicalParameterKey = "PhysicalParameter"_L1;
constexpr auto OperatorKey = "Operator"_L1;
constexpr auto MultiParamsKey = "MultiParams"_L1;

constexpr auto SectionMissing = "Multi units combinations array missing"_L1;

} // namespace

bool UIConfig::readMSVUnitsCombinationsConfig(const QJsonObject& root, QString& error)
{
    const QJsonValue section = root.value(SectionKey);
    if (!section.isArray()) {
        error = SectionMissing;
        return false;
    }
    const auto entries = QCborArray::fromJsonArray(section.toArray());
    for (const auto& element : entries) {
        const JsonFields entry(element);
        auto combination = std::make_unique<MSVUnitsCombination>();
        combination->setPhysicalParameter(Converter::getPhysicalParameterFromString(entry.text(PhysicalParameterKey)));
        combination->setOperator(Converter::getOperatorFromString(entry.text(OperatorKey)));
        const QCborArray parameters = entry.array(MultiParamsKey);
        for (const auto& parameter : parameters) {
            combination->addMultiParamToList(Converter::getPhysicalParameterFromString(parameter.toString()));
        }
        m_msvUnitsCombinationManager.append(combination.release());
    }
    return true;
}
