#include <items/private/CatalogueLookup.h>

#include <base/Singleton.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>

AxesCombination linearCombinationFromCatalogue(const QString& category, const QString& x, const QString& y)
{
    const auto& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    const auto* arrayX = catalogue.getConfigDataArray(x, category);
    const auto* arrayY = catalogue.getConfigDataArray(y, category);
    if (arrayX == nullptr || arrayY == nullptr) {
        return {};
    }
    return {*arrayX, *arrayY, QCPAxis::stLinear, QCPAxis::stLinear, false};
}
