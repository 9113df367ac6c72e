#pragma once

#include <archive/ArchiveContext.h>
#include <clconfigui_export.h>
#include <datastorage/Units.h>

#include <QJsonObject>
#include <QList>

/// How a compound unit of one physical parameter is formed: with which operator and which further parameters. A value.
class CLCONFIGUI_EXPORT MSVUnitsCombination
{
public:
    /// Parameter and operator of value 0, no further parameters.
    MSVUnitsCombination();
    MSVUnitsCombination(const MSVUnitsCombination& other);
    MSVUnitsCombination& operator=(const MSVUnitsCombination& other);
    virtual ~MSVUnitsCombination();

    /// Reads parameter and operator, 0 for what is missing or not a number, and appends the archived further parameters
    /// to those already there. Always returns true.
    virtual bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context);

    /// Stores the numeric values of the three fields. Always returns true.
    virtual bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const;

    /// \{
    /// The parameter that has the unit, the operator that joins the further ones, and these in the order in which they
    /// were added.
    const cl::datastorage::PhysicalParameter& getPhysicalParameter() const { return m_physicalParameter; }
    const cl::datastorage::UsualUnitOperator& getOperator() const { return m_operator; }
    const QList<cl::datastorage::PhysicalParameter>& getMultiParamsList() const { return m_multiParamsList; }

    void setPhysicalParameter(const cl::datastorage::PhysicalParameter& parameter) { m_physicalParameter = parameter; }
    void setOperator(const cl::datastorage::UsualUnitOperator& unitOperator) { m_operator = unitOperator; }
    /// \}

    /// Appends at the end, also a parameter that is there already.
    void addMultiParamToList(const cl::datastorage::PhysicalParameter& parameter)
    {
        m_multiParamsList.append(parameter);
    }

private:
    cl::datastorage::PhysicalParameter m_physicalParameter{};
    cl::datastorage::UsualUnitOperator m_operator{};
    QList<cl::datastorage::PhysicalParameter> m_multiParamsList;
};
