#include <config/UIConfig.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <config/Configuration.h>
#include <datastorage/Converter.h>

using cl::datastorage::Converter;

namespace uiconfig {

bool readMSVUnits(const QJsonValue& section, const Reading& with)
{
    const auto elements = QCborArray::fromJsonArray(section.toArray());
    for (const auto& element : elements) {
        const JsonFields entry(element);
        MSVUnitsCombination& combination = with.to.msvUnits.emplaceBack();
        combination.setPhysicalParameter(
            Converter::getPhysicalParameterFromString(entry.text(keys::PhysicalParameter)));
        combination.setOperator(Converter::getOperatorFromString(entry.text(keys::Operator)));
        const QList<QString> parameters = entry.texts(keys::MultiParams);
        for (const QString& parameter : parameters) {
            combination.addMultiParamToList(Converter::getPhysicalParameterFromString(parameter));
        }
    }
    return true;
}

} // namespace uiconfig

bool UIConfig::readMSVUnitsCombinationsConfig(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::MSVUnits, root, error);
}
