#pragma once

#include <base/Singleton.h>
#include <batterydata/RawDataCollection.h>

namespace cluiedit {

/// The data arrays that the editor goes by. They are loaded before the window is made, and do not change after that.
inline const cl::batterydata::ClConfigDataArrayManager& catalogue()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
}

} // namespace cluiedit
