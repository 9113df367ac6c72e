#include "Table.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace cluiconfig {

QString cellText(const QJsonValue& value)
{
    if (value.isBool()) {
        return value.toBool() ? u"yes"_s : u"no"_s;
    }
    if (value.isArray()) {
        QStringList parts;
        const QJsonArray array = value.toArray();
        for (const auto& element : array) {
            parts.append(element.toString());
        }
        return parts.join(u", "_s);
    }
    if (value.isDouble()) {
        return QString::number(value.toInteger());
    }
    return value.isNull() ? u"(unknown)"_s : value.toString();
}

} // namespace cluiconfig
