// Any bytes as a file of measurements: it is read or refused with a reason, and all columns are as long as each other.

#include "Fuzz.h"

#include <batterydata/ClConfigDataArray.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <cluiedit/data/BdfFile.h>

#include <optional>
#include <vector>

using cl::batterydata::ClConfigDataArray;
using fuzz::require;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const cluiedit::BdfFile file = cluiedit::readBdf(fuzz::fileWith(fuzz::bytes(data, size)), fuzz::catalogue());
    require(!file.wasCancelled, "nobody cancels");
    require(file.measurement.has_value() == file.error.isEmpty(), "a file is read, or there is a reason why not");
    if (!file.measurement) {
        return 0;
    }
    std::optional<std::size_t> rows;
    for (const ClConfigDataArray* array : fuzz::catalogue().getAll()) {
        if (const std::vector<double>* values = file.measurement->values(*array)) {
            require(array->getCategory() == ClConfigDataArray::PotentiostatMeasure(), "files hold measures");
            require(rows.value_or(values->size()) == values->size(), "all columns are as long as each other");
            rows = values->size();
        }
    }
    return 0;
}
