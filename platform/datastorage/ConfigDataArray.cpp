#include <datastorage/ConfigDataArray.h>

namespace cl::datastorage {

ConfigDataArray::ConfigDataArray() = default;

ConfigDataArray::ConfigDataArray(const QString& name, const QString& category)
    : DataArrayIdentifier(name, category)
{
}

ConfigDataArray::~ConfigDataArray() = default;

} // namespace cl::datastorage
