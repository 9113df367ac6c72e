#include <batterydata/RawDataCollection.h>

template CLBATTERYDATA_EXPORT cl::batterydata::RawDataCollection&
lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance();

namespace cl::batterydata {

RawDataCollection::RawDataCollection(lumo::tools::Singleton<RawDataCollection>::token /*token*/)
{
    QString error;
    [[maybe_unused]] const bool isRead =
        m_dataConfiguration.readCatalogue(QStringLiteral(":/clbatterydata/DataArrays.json"), error);
    Q_ASSERT_X(isRead, "RawDataCollection", qPrintable(error));
}

RawDataCollection::~RawDataCollection() = default;

} // namespace cl::batterydata
