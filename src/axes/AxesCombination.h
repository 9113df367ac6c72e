#pragma once

#include <archive/ArchiveContext.h>
#include <axes/DataStreamCombination.h>
#include <axes/ScaleType.h>
#include <clconfigui_export.h>
#include <datastorage/DataArrayIdentifier.h>

#include <QJsonObject>

/// Which data array may be plotted on the X axis against which on the Y axis, and how the two axes start out: each
/// linear or logarithmic, and whether the two are orthonormal (one unit as long on X as on Y).
///
/// A plain value that owns its two identifiers. The default-constructed record is also what lookups return on a miss;
/// tell it by isValid().
class CLCONFIGUI_EXPORT AxesCombination
{
public:
    /// Both identifiers empty, both scales linear, not orthonormal; not valid.
    AxesCombination() = default;

    /// Copies all five values.
    AxesCombination(const cl::datastorage::DataArrayIdentifier& configX,
                    const cl::datastorage::DataArrayIdentifier& configY, QCPAxis::ScaleType defaultScaleX,
                    QCPAxis::ScaleType defaultScaleY, bool orthonormal)
        : m_configX(configX)
        , m_configY(configY)
        , m_defaultScaleX(defaultScaleX)
        , m_defaultScaleY(defaultScaleY)
        , m_orthonormal(orthonormal)
    {
    }
    AxesCombination(const AxesCombination& other) = default;
    AxesCombination& operator=(const AxesCombination& other) = default;
    virtual ~AxesCombination() = default;

    /// Reads the two identifiers from their archive objects; scales and flag are not archived and keep their values.
    /// Returns false as soon as an identifier refuses to be read: the Y identifier is untouched when X refused.
    virtual bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context);

    /// Stores the two identifiers, and only them. Returns false as soon as an identifier refuses to be written; the X
    /// identifier stays stored when Y refused.
    virtual bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const;

    /// \{
    /// The data array on the axis.
    const cl::datastorage::DataArrayIdentifier& getConfigX() const { return m_configX; }
    const cl::datastorage::DataArrayIdentifier& getConfigY() const { return m_configY; }
    /// \}

    /// \{
    /// How the scale of the axis starts out: linear or logarithmic.
    // The getters are not const, unlike every other one of the record: the interface is meant that way.
    QCPAxis::ScaleType getDefaultScaleX() { return m_defaultScaleX; } // NOLINT(readability-make-member-function-const)
    QCPAxis::ScaleType getDefaultScaleY() { return m_defaultScaleY; } // NOLINT(readability-make-member-function-const)
    void setDefaultScaleX(QCPAxis::ScaleType scale) { m_defaultScaleX = scale; }
    void setDefaultScaleY(QCPAxis::ScaleType scale) { m_defaultScaleY = scale; }
    /// \}

    /// \{
    /// Whether the axes start out orthonormal.
    bool isOrthonormal() const { return m_orthonormal; }
    void setConfigurationOrthonormal(bool orthonormal) { m_orthonormal = orthonormal; }
    /// \}

    /// The pairing alone, without scales and flag.
    DataStreamCombination getDataStreamCombination() const;

    /// True when the name and the category of both identifiers are non-empty.
    bool isValid() const
    {
        return !m_configX.getCategory().isEmpty() && !m_configX.getName().isEmpty()
            && !m_configY.getCategory().isEmpty() && !m_configY.getName().isEmpty();
    }

    /// Compares the identities only, exactly and case-sensitively: records that differ in scales or flag are equal.
    bool operator==(const AxesCombination& other) const;

private:
    cl::datastorage::DataArrayIdentifier m_configX;
    cl::datastorage::DataArrayIdentifier m_configY;
    QCPAxis::ScaleType m_defaultScaleX = QCPAxis::stLinear;
    QCPAxis::ScaleType m_defaultScaleY = QCPAxis::stLinear;
    bool m_orthonormal = false;
};

// Lists of combinations grow by moving bytes instead of by copying four texts a record.
Q_DECLARE_TYPEINFO(AxesCombination, Q_RELOCATABLE_TYPE);
