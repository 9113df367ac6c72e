#pragma once

#include <QAnyStringView>
#include <QString>

/// \file JsonPointer.h
/// Places in a JSON document as JSON pointers: "/Axes combinations/0/Y1~1Y2".

namespace jsonpointer {

/// The step to the member \p key.
inline QString step(QAnyStringView key)
{
    return u'/' + key.toString().replace(u'~', QStringLiteral("~0")).replace(u'/', QStringLiteral("~1"));
}

/// The step to an element of an array.
inline QString step(qsizetype index)
{
    return u'/' + QString::number(index);
}

} // namespace jsonpointer

/// The way from the root of a document, or from the value whose pointer goes in front: keys of members and indices of
/// elements (qsizetype).
template <typename... Steps>
QString jsonPointer(const Steps&... steps)
{
    return (QString() + ... + jsonpointer::step(steps));
}
