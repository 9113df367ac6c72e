#include "Text.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

/// What Unicode has programs ignore when they cannot show it, besides the characters of the category "format": joiners
/// and fillers of Korean, vowels of Khmer that are only thought, and what selects a variant of the sign before.
constexpr std::array<std::pair<char32_t, char32_t>, 9> InvisibleRanges{{{0x034F, 0x034F},
                                                                        {0x115F, 0x1160},
                                                                        {0x17B4, 0x17B5},
                                                                        {0x180B, 0x180F},
                                                                        {0x2065, 0x2065},
                                                                        {0x3164, 0x3164},
                                                                        {0xFE00, 0xFE0F},
                                                                        {0xFFA0, 0xFFA0},
                                                                        {0xE0000, 0xE0FFF}}};

bool isVisible(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return std::ranges::none_of(InvisibleRanges, [character](const auto& range) {
            return character >= range.first && character <= range.second;
        });
    }
}

} // namespace

QString printable(const QString& text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        const bool isPair = text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const QStringView units = QStringView(text).sliced(i, isPair ? 2 : 1);
        i += units.size();
        if (isVisible(isPair ? QChar::surrogateToUcs4(units.front(), units.back()) : units.front().unicode())) {
            result += units;
            continue;
        }
        for (const QChar unit : units) {
            result += u"\\u%1"_s.arg(static_cast<uint>(unit.unicode()), 4, 16, QChar(u'0'));
        }
    }
    return result;
}

QByteArray withHalvesAsText(const QByteArray& json)
{
    if (!json.contains("\\ud")) {
        return json;
    }
    QByteArray text;
    text.reserve(json.size());
    for (qsizetype i = 0; i < json.size(); ++i) {
        if (json.at(i) == '\\') {
            const QByteArrayView escape = QByteArrayView(json).sliced(i);
            text += escape.startsWith("\\ud") ? "\\\\" : escape.first(1);
            ++i;
        }
        text += json.at(i);
    }
    return text;
}

} // namespace cluiconfig::check
