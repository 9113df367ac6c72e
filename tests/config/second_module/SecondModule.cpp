#include <config/second_module/SecondModule.h>

#include <batterydata/RawDataCollection.h>
#include <config/UIConfig.h>

UIConfig& uiConfigOfSecondModule()
{
    return lumo::tools::Singleton<UIConfig>::instance();
}

cl::batterydata::RawDataCollection& rawDataCollectionOfSecondModule()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance();
}
