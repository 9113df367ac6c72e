#include "Cells.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

/// The signs that Unicode 14 calls wide, in ascending order; what is not assigned counts with its neighbours. Qt does
/// not know them, nor does Windows.
constexpr std::array WideRanges = std::to_array<std::pair<char32_t, char32_t>>(
    {{0x1100, 0x115F},   {0x231A, 0x231B},   {0x2329, 0x232A},   {0x23E9, 0x23EC},   {0x23F0, 0x23F0},
     {0x23F3, 0x23F3},   {0x25FD, 0x25FE},   {0x2614, 0x2615},   {0x2648, 0x2653},   {0x267F, 0x267F},
     {0x2693, 0x2693},   {0x26A1, 0x26A1},   {0x26AA, 0x26AB},   {0x26BD, 0x26BE},   {0x26C4, 0x26C5},
     {0x26CE, 0x26CE},   {0x26D4, 0x26D4},   {0x26EA, 0x26EA},   {0x26F2, 0x26F3},   {0x26F5, 0x26F5},
     {0x26FA, 0x26FA},   {0x26FD, 0x26FD},   {0x2705, 0x2705},   {0x270A, 0x270B},   {0x2728, 0x2728},
     {0x274C, 0x274C},   {0x274E, 0x274E},   {0x2753, 0x2755},   {0x2757, 0x2757},   {0x2795, 0x2797},
     {0x27B0, 0x27B0},   {0x27BF, 0x27BF},   {0x2B1B, 0x2B1C},   {0x2B50, 0x2B50},   {0x2B55, 0x2B55},
     {0x2E80, 0x303E},   {0x3041, 0x3247},   {0x3250, 0x4DBF},   {0x4E00, 0xA4C6},   {0xA960, 0xA97C},
     {0xAC00, 0xD7A3},   {0xF900, 0xFAD9},   {0xFE10, 0xFE6B},   {0xFF01, 0xFF60},   {0xFFE0, 0xFFE6},
     {0x16FE0, 0x1B2FB}, {0x1F004, 0x1F004}, {0x1F0CF, 0x1F0CF}, {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A},
     {0x1F200, 0x1F320}, {0x1F32D, 0x1F335}, {0x1F337, 0x1F37C}, {0x1F37E, 0x1F393}, {0x1F3A0, 0x1F3CA},
     {0x1F3CF, 0x1F3D3}, {0x1F3E0, 0x1F3F0}, {0x1F3F4, 0x1F3F4}, {0x1F3F8, 0x1F43E}, {0x1F440, 0x1F440},
     {0x1F442, 0x1F4FC}, {0x1F4FF, 0x1F53D}, {0x1F54B, 0x1F54E}, {0x1F550, 0x1F567}, {0x1F57A, 0x1F57A},
     {0x1F595, 0x1F596}, {0x1F5A4, 0x1F5A4}, {0x1F5FB, 0x1F64F}, {0x1F680, 0x1F6C5}, {0x1F6CC, 0x1F6CC},
     {0x1F6D0, 0x1F6D2}, {0x1F6D5, 0x1F6DF}, {0x1F6EB, 0x1F6EC}, {0x1F6F4, 0x1F6FC}, {0x1F7E0, 0x1F7F0},
     {0x1F90C, 0x1F93A}, {0x1F93C, 0x1F945}, {0x1F947, 0x1F9FF}, {0x1FA70, 0x1FAF6}, {0x20000, 0x3134A}});

/// Vowels and final consonants, which are set below the consonant before.
bool isJoinedHangul(char32_t character)
{
    return (character >= 0x1160 && character <= 0x11FF) || (character >= 0xD7B0 && character <= 0xD7FF);
}

qsizetype cellsOf(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing || isJoinedHangul(character)) {
        return 0;
    }
    const auto range = std::ranges::lower_bound(WideRanges, character, {}, &std::pair<char32_t, char32_t>::second);
    return range != WideRanges.end() && character >= range->first ? 2 : 1;
}

/// \p word in pieces of at most \p cells, but no less than a sign with its marks.
QStringList cut(const QString& word, qsizetype cells)
{
    QStringList pieces{QString()};
    qsizetype taken = 0;
    QTextBoundaryFinder signs(QTextBoundaryFinder::Grapheme, word);
    for (qsizetype from = 0, to = 0; (to = signs.toNextBoundary()) > 0; from = to) {
        const QStringView sign = QStringView(word).sliced(from, to - from);
        if (taken > 0 && taken + cellCount(sign) > cells) {
            pieces.append(QString());
            taken = 0;
        }
        pieces.last() += sign;
        taken += cellCount(sign);
    }
    return pieces;
}

} // namespace

qsizetype cellCount(QStringView text)
{
    qsizetype cells = 0;
    const QList<uint> characters = text.toUcs4();
    for (const uint character : characters) {
        cells += cellsOf(char32_t{character});
    }
    return cells;
}

QStringList words(const QString& text)
{
    QStringList words;
    const QStringList parts = text.split(u' ');
    for (const QString& part : parts) {
        if (!words.isEmpty() && words.constLast() == "/"_L1) {
            words.last() += u' ' + part;
        } else {
            words.append(part);
        }
    }
    return words;
}

QStringList wrapped(const QString& text, qsizetype cells)
{
    QStringList lines;
    const QStringList all = words(text);
    for (const QString& word : all) {
        if (!lines.isEmpty() && cellCount(lines.constLast()) + 1 + cellCount(word) <= cells) {
            lines.last() += u' ' + word;
        } else {
            lines += cut(word, cells);
        }
    }
    return lines;
}

} // namespace cluiconfig::check
