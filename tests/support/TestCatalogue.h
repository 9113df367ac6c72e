#pragma once

#include <batterydata/ExportCategory.h>

#include <QJsonObject>
#include <QString>

#include <initializer_list>

namespace cl::batterydata {
class ClConfigDataArray;
}

/// Replaces the process-wide catalogue of data arrays by a small known one, and puts the replaced one back at the end
/// of its life.
///
/// Either change makes new arrays: pointers to arrays of the catalogue taken before it must not be used after it.
class TestCatalogue
{
public:
    struct Array
    {
        QString name;
        QString category;
        cl::batterydata::ExportCategory exportCategory = cl::batterydata::ExportCategory::Standard;
    };

    TestCatalogue(std::initializer_list<Array> arrays = {});
    TestCatalogue(const TestCatalogue&) = delete;
    TestCatalogue& operator=(const TestCatalogue&) = delete;
    ~TestCatalogue();

    /// Appends an array to the catalogue, which owns it.
    static cl::batterydata::ClConfigDataArray* add(const Array& array);

private:
    QJsonObject m_replaced;
};
