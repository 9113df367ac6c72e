// Has libFuzzer change documents not only byte by byte, but every other time as documents: members and elements go,
// come twice, and become something else.

#include "Fuzz.h"

#include <support/DocumentMutator.h>

#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maximum);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maximum, unsigned seed)
{
    const QJsonDocument document = QJsonDocument::fromJson(fuzz::bytes(data, size));
    if (seed % 2 == 0 || document.object().isEmpty()) {
        return LLVMFuzzerMutate(data, size, maximum);
    }
    DocumentMutator mutator(
        seed, {u"Voltage / V"_s, u"Cycle"_s, u"Potentiostat"_s, u"%1"_s, QString(QChar(0)), QString(QChar(0xD800))});
    const QByteArray changed = mutator.mutatedText(document.object());
    if (changed.size() > static_cast<qsizetype>(maximum)) {
        return LLVMFuzzerMutate(data, size, maximum);
    }
    std::copy(changed.begin(), changed.end(), data);
    return static_cast<std::size_t>(changed.size());
}
