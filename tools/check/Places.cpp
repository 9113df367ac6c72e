#include "Places.h"

#include "private/Document.h"

namespace cluiconfig::check {

qsizetype offsetOf(const QByteArray& text, const QJsonObject& root, const QString& pointer)
{
    const Document document(text, root);
    const auto isOnTheWay = [&](const Value& value) {
        const QString place = value.pointer();
        return pointer == place || pointer.startsWith(place + u'/');
    };
    Value value = document.root();
    while (value.pointer() != pointer) {
        std::optional<Value> next;
        value.forEach([&](const Value& child) {
            if (!next && isOnTheWay(child)) {
                next = child;
            }
        });
        if (!next) {
            break;
        }
        value = *next;
    }
    return value.offset();
}

} // namespace cluiconfig::check
