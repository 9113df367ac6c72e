#pragma once

#include <dataprocess/IDataStream.h>

#include <QSet>
#include <QString>

#include <utility>

/// A data stream whose answers a test chooses. It counts how often its index is asked for.
class FakeDataStream : public cl::dataprocess::IDataStream
{
public:
    FakeDataStream(QString name, QString category, int count = 0, QSet<int> indices = {})
        : m_name(std::move(name))
        , m_category(std::move(category))
        , m_count(count)
        , m_indices(std::move(indices))
    {
    }

    const QString& getCategory() const override { return m_category; }
    const QString& getName() const override { return m_name; }
    const cl::datastorage::PhysicalParameter& getPhysicalParameter() const override { return m_physicalParameter; }
    cl::datastorage::DataType getDataType() const override { return {}; }
    cl::datastorage::UsualUnit getUsualUnit() const override { return {}; }
    bool hasIndex(int index) const override
    {
        ++m_indexTests;
        return m_indices.contains(index);
    }
    int getCount() const override { return m_count; }

    int indexTests() const { return m_indexTests; }

private:
    QString m_name;
    QString m_category;
    int m_count;
    QSet<int> m_indices;
    cl::datastorage::PhysicalParameter m_physicalParameter{};
    mutable int m_indexTests = 0;
};
