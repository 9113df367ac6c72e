#pragma once

#include <archive/ArchiveContext.h>

#include <QJsonObject>

#include <gtest/gtest.h>

/// \file Archive.h
/// Records in the archive of a project. They take no notice of its version, which is any number here.

/// What \p record writes into \p object.
template <typename Record>
QJsonObject written(const Record& record, QJsonObject object = {}, int version = 29)
{
    cl::archive::ArchiveContext context;
    EXPECT_TRUE(record.write(object, version, context));
    return object;
}

/// Whether \p record can be read from \p object.
template <typename Record>
bool readInto(Record& record, const QJsonObject& object, int version = 29)
{
    cl::archive::ArchiveContext context;
    return record.read(object, version, context);
}
