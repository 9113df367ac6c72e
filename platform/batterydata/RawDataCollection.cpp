#include <batterydata/RawDataCollection.h>

using namespace Qt::StringLiterals;

template CLBATTERYDATA_EXPORT cl::batterydata::RawDataCollection&
lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance();

namespace cl::batterydata {

RawDataCollection::RawDataCollection(lumo::tools::Singleton<RawDataCollection>::token /*token*/)
{
    QString error;
    [[maybe_unused]] const bool isRead = m_dataConfiguration.readCatalogue(u":/clbatterydata/DataArrays.json"_s, error);
    Q_ASSERT_X(isRead, "RawDataCollection", qPrintable(error));
}

RawDataCollection::~RawDataCollection() = default;

} // namespace cl::batterydata
