#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QList>

/// \file RecordList.h
/// Reading and writing lists of records that archive themselves.

/// The archived records of \p array, up to the first that refuses to be read; that one and the later ones are dropped.
template <typename Record, typename Context>
QList<Record> readRecords(const QJsonArray& array, int version, Context& context)
{
    QList<Record> records;
    records.reserve(array.size());
    for (const auto& element : array) {
        Record record;
        if (!record.read(element.toObject(), version, context)) {
            break;
        }
        records.append(record);
    }
    return records;
}

/// The archive form of \p records, up to the first that refuses to be written.
template <typename Record, typename Context>
QJsonArray writeRecords(const QList<Record>& records, int version, Context& context)
{
    QJsonArray array;
    for (const Record& record : records) {
        QJsonObject object;
        if (!record.write(object, version, context)) {
            break;
        }
        array.append(object);
    }
    return array;
}
