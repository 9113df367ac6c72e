#include "Places.h"

#include "private/Document.h"

namespace cluiconfig::check {

qsizetype offsetOf(const QByteArray& text, const QJsonObject& root, const QString& pointer)
{
    const Document document(text, root);
    QStringView way = pointer;
    Value value = document.root();
    while (!way.isEmpty()) {
        const QStringView step = firstStep(way);
        std::optional<Value> next;
        value.forEach([&](const Value& child) {
            if (!next && child.step() == step) {
                next = child;
            }
        });
        if (!next) {
            break;
        }
        value = *next;
        way = way.sliced(step.size());
    }
    return value.offset();
}

} // namespace cluiconfig::check
