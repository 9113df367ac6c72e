#pragma once

#include <datastorage/DataType.h>
#include <datastorage/Units.h>
#include <datastorage/UsualUnit.h>

class QString;

namespace cl::dataprocess {

/// One column of measured or computed values in an open file.
///
/// The order of the virtual operations is part of the interface: the application's streams are built against it.
class IDataStream
{
public:
    virtual ~IDataStream() = default;

    /// The category of the data array that the stream holds.
    virtual const QString& getCategory() const = 0;
    /// The name of the data array that the stream holds.
    virtual const QString& getName() const = 0;
    /// The quantity of the values; None if they have none.
    virtual const cl::datastorage::PhysicalParameter& getPhysicalParameter() const = 0;
    /// How a value is stored.
    virtual cl::datastorage::DataType getDataType() const = 0;
    /// The unit of the values.
    virtual cl::datastorage::UsualUnit getUsualUnit() const = 0;
    /// Whether the stream has values at \p index of its own numbering. A false result is no error.
    virtual bool hasIndex(int index) const = 0;
    /// How many indices the stream's numbering has; indices run from 0 to one less.
    virtual int getCount() const = 0;

protected:
    IDataStream() = default;
    IDataStream(const IDataStream&) = default;
    IDataStream& operator=(const IDataStream&) = default;
};

} // namespace cl::dataprocess
