#pragma once

#include <base/Singleton.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <clbatterydata_export.h>

namespace cl::batterydata {
class RawDataCollection;
}

// One object in the whole process: only the battery-data library instantiates it.
extern template CLBATTERYDATA_EXPORT cl::batterydata::RawDataCollection&
lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance();

namespace cl::batterydata {

/// The battery data of the process, of which the configuration uses one part: the catalogue of data arrays.
///
/// The object starts with the shipped catalogue, which is built into the library; another one is loaded with
/// `getDataConfiguration().readCatalogue(path, error)`. It is not locked: load a catalogue before threads use it.
class CLBATTERYDATA_EXPORT RawDataCollection : public lumo::tools::Singleton<RawDataCollection>
{
public:
    /// Begins with the shipped catalogue. Called by instance() alone.
    explicit RawDataCollection(lumo::tools::Singleton<RawDataCollection>::token);
    RawDataCollection(const RawDataCollection&) = delete;
    RawDataCollection& operator=(const RawDataCollection&) = delete;
    ~RawDataCollection();

    /// The catalogue. It belongs to this object.
    ClConfigDataArrayManager& getDataConfiguration() { return m_dataConfiguration; }

private:
    ClConfigDataArrayManager m_dataConfiguration;
};

} // namespace cl::batterydata
