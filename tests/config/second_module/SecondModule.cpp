#include <config/second_module/SecondModule.h>

#include <batterydata/RawDataCollection.h>
#include <config/MSVUnitsCombination.h>
#include <config/UIConfig.h>
#include <items/ProcessedDataItem.h>

namespace {

int recordsDeleted = 0;

template <typename Record>
class Counted : public Record
{
public:
    ~Counted() override { ++recordsDeleted; }
};

} // namespace

UIConfig& uiConfigOfSecondModule()
{
    return lumo::tools::Singleton<UIConfig>::instance();
}

cl::batterydata::RawDataCollection& rawDataCollectionOfSecondModule()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance();
}

AAnalysisItem* newItemOfSecondModule()
{
    return new Counted<ProcessedDataItem>;
}

MSVUnitsCombination* newUnitsOfSecondModule()
{
    return new Counted<MSVUnitsCombination>;
}

int recordsOfSecondModuleDeleted()
{
    return recordsDeleted;
}

void deleteInSecondModule(AAnalysisItem* item)
{
    delete item;
}
