// Any bytes as a text to lay out: it is refused with a reason, or the layout has the same value and is its own layout.

#include "Fuzz.h"

#include <document/JsonLayout.h>

#include <QBuffer>
#include <QJsonDocument>

#include <optional>

using fuzz::require;

namespace {

std::optional<QByteArray> laidOut(const QByteArray& text)
{
    cluiconfig::JsonLayout layout;
    QString error;
    if (!layout.read(text, error)) {
        require(!error.isEmpty(), "what is not laid out has a reason");
        return std::nullopt;
    }
    QBuffer buffer;
    require(buffer.open(QIODevice::WriteOnly) && layout.write(buffer), "memory takes a layout");
    return buffer.data();
}

/// \p text without what stands between its values.
QByteArray withoutBlanks(const QByteArray& text)
{
    QByteArray result;
    bool isInText = false;
    for (qsizetype i = text.startsWith("\xEF\xBB\xBF") ? 3 : 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (isInText || QByteArrayView(" \t\r\n").indexOf(c) < 0) {
            result.append(c);
        }
        if (isInText && c == '\\' && i + 1 < text.size()) {
            result.append(text.at(++i));
        } else if (c == '"') {
            isInText = !isInText;
        }
    }
    return result;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text = fuzz::bytes(data, size);
    const std::optional<QByteArray> once = laidOut(text);
    if (once) {
        require(laidOut(*once) == once, "a layout is its own layout");
        require(withoutBlanks(*once) == withoutBlanks(text), "only the blanks change");
        QJsonParseError error;
        const QJsonDocument before = QJsonDocument::fromJson(text, &error);
        require(error.error != QJsonParseError::NoError || QJsonDocument::fromJson(*once) == before,
                "the application reads the same from the layout");
    }
    return 0;
}
