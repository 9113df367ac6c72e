#include "Measurement.h"

namespace cluiedit {

const std::vector<double>* Measurement::values(const cl::datastorage::DataArrayIdentifier& array) const
{
    const auto found = m_values.find({array.getCategory(), array.getName()});
    return found == m_values.end() ? nullptr : &*found;
}

void Measurement::add(const cl::datastorage::DataArrayIdentifier& array, std::vector<double> values)
{
    m_values[{array.getCategory(), array.getName()}] = std::move(values); // insert() would copy
}

} // namespace cluiedit
