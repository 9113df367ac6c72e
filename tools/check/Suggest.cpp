#include "Suggest.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

constexpr qsizetype LongestQuotation = 80;
constexpr qsizetype LongestText = 200; // beyond, nobody looks for a slip

/// How many letters are to be inserted, deleted, replaced or swapped with their neighbour to turn \p a into \p b. Takes
/// time in proportion to the product of the lengths.
qsizetype editDistance(const QString& a, const QString& b)
{
    const auto width = static_cast<size_t>(b.size()) + 1;
    std::vector<qsizetype> beforeLast(width);
    std::vector<qsizetype> last(width);
    std::vector<qsizetype> row(width);
    std::iota(row.begin(), row.end(), qsizetype{0});
    for (qsizetype i = 1; i <= a.size(); ++i) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = i;
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const auto column = static_cast<size_t>(j);
            const qsizetype replaced = last[column - 1] + (a.at(i - 1) == b.at(j - 1) ? 0 : 1);
            row[column] = std::min({replaced, last[column] + 1, row[column - 1] + 1});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1)) {
                row[column] = std::min(row[column], beforeLast[column - 2] + 1);
            }
        }
    }
    return row.back();
}

/// Letters that look like others, beside those that Unicode calls compatible.
struct LookAlike
{
    char32_t letter;
    char16_t plain;
};

constexpr std::array LookAlikes{
    // Cyrillic
    LookAlike{U'А', u'A'},
    LookAlike{U'В', u'B'},
    LookAlike{U'Е', u'E'},
    LookAlike{U'Ѕ', u'S'},
    LookAlike{U'І', u'I'},
    LookAlike{U'Ј', u'J'},
    LookAlike{U'К', u'K'},
    LookAlike{U'М', u'M'},
    LookAlike{U'Н', u'H'},
    LookAlike{U'О', u'O'},
    LookAlike{U'Р', u'P'},
    LookAlike{U'С', u'C'},
    LookAlike{U'Т', u'T'},
    LookAlike{U'У', u'Y'},
    LookAlike{U'Х', u'X'},
    LookAlike{U'а', u'a'},
    LookAlike{U'е', u'e'},
    LookAlike{U'о', u'o'},
    LookAlike{U'р', u'p'},
    LookAlike{U'с', u'c'},
    LookAlike{U'у', u'y'},
    LookAlike{U'х', u'x'},
    LookAlike{U'ѕ', u's'},
    LookAlike{U'і', u'i'},
    LookAlike{U'ј', u'j'},
    // Greek
    LookAlike{U'Α', u'A'},
    LookAlike{U'Β', u'B'},
    LookAlike{U'Ε', u'E'},
    LookAlike{U'Ζ', u'Z'},
    LookAlike{U'Η', u'H'},
    LookAlike{U'Ι', u'I'},
    LookAlike{U'Κ', u'K'},
    LookAlike{U'Μ', u'M'},
    LookAlike{U'Ν', u'N'},
    LookAlike{U'Ο', u'O'},
    LookAlike{U'Ρ', u'P'},
    LookAlike{U'Τ', u'T'},
    LookAlike{U'Υ', u'Y'},
    LookAlike{U'Χ', u'X'},
    LookAlike{U'ο', u'o'},
    LookAlike{U'ν', u'v'},
    // Dashes, slashes, quotes
    LookAlike{U'‐', u'-'},
    LookAlike{U'‑', u'-'},
    LookAlike{U'–', u'-'},
    LookAlike{U'—', u'-'},
    LookAlike{U'−', u'-'},
    LookAlike{U'⁄', u'/'},
    LookAlike{U'∕', u'/'},
    LookAlike{U'‘', u'\''},
    LookAlike{U'’', u'\''},
    LookAlike{U'“', u'"'},
    LookAlike{U'”', u'"'},
};

/// The letter that \p letter looks like, in its own case; nothing for what nobody sees.
QString plainLetter(char32_t letter)
{
    if (QChar::category(letter) == QChar::Other_Format) {
        return {};
    }
    const auto* found = std::ranges::find(LookAlikes, letter, &LookAlike::letter);
    return found == LookAlikes.end() ? QString::fromUcs4(&letter, 1).normalized(QString::NormalizationForm_KC)
                                     : QString(QChar(found->plain));
}

/// \p text as people see it: look-alikes, cases and blanks are the same.
QString plain(const QString& text)
{
    QString result;
    const QList<uint> letters = text.toUcs4();
    for (const uint letter : letters) {
        result += plainLetter(letter);
    }
    return result.toCaseFolded().simplified();
}

/// A sentence about the first letter of \p text that is not what it looks like, unless \p right has it, too.
QString oddLetter(const QString& text, const QString& right)
{
    const QList<uint> letters = text.toUcs4();
    const QList<uint> rightLetters = right.toUcs4();
    for (qsizetype i = 0; i < letters.size(); ++i) {
        const char32_t letter = letters.at(i);
        const QString seen = plainLetter(letter);
        if (seen != QString::fromUcs4(&letter, 1) && !rightLetters.contains(letters.at(i))) {
            const QString instead = seen.isEmpty() ? u"which nobody sees"_s
                : seen == u" "_s                   ? u"not a blank"_s
                                                   : u"not "_s + quoted(seen);
            return u" Character %1 of %2 is U+%3, %4."_s.arg(
                QString::number(i + 1), quoted(text),
                QString::number(letters.at(i), 16).toUpper().rightJustified(4, u'0'), instead);
        }
    }
    return {};
}

} // namespace

QString suggestion(const QString& text, const QStringList& known)
{
    const QString wrong = text.size() > LongestText ? QString() : plain(text);
    if (wrong.isEmpty()) {
        return {};
    }
    const qsizetype most = std::max<qsizetype>(1, wrong.size() / 3);
    qsizetype least = std::numeric_limits<qsizetype>::max();
    QString best;
    for (const QString& candidate : known) {
        if (candidate == text) {
            continue;
        }
        const QString right = plain(candidate);
        qsizetype distance = std::numeric_limits<qsizetype>::max();
        if (std::abs(right.size() - wrong.size()) <= most) {
            distance = editDistance(wrong, right);
        }
        if (distance > most && wrong.size() > 2 && right.startsWith(wrong)) {
            distance = most;
        }
        if (distance <= most && distance < least) {
            least = distance;
            best = candidate;
        }
    }
    return best;
}

Advice didYouMean(const QString& text, const QStringList& known)
{
    const QString meant = suggestion(text, known);
    return meant.isEmpty() ? Advice() : didYouMean(text, meant);
}

Advice didYouMean(const QString& text, const QString& meant)
{
    const QString odd = oddLetter(text, meant);
    return {u" Did you mean "_s + quoted(meant) + u'?' + (odd.isEmpty() ? oddLetter(meant, text) : odd), meant};
}

QString alternatives(const QStringList& names)
{
    return names.size() == 1 ? listed(names) : listed(names.first(names.size() - 1)) + u" or "_s + quoted(names.last());
}

QString listed(const QStringList& names)
{
    QStringList all;
    for (const QString& name : names) {
        all.append(quoted(name));
    }
    return all.join(u", "_s);
}

QString quoted(const QString& text)
{
    if (text.size() <= LongestQuotation) {
        return u'"' + text + u'"';
    }
    // Not in the middle of a letter that takes two units.
    const qsizetype size = text.at(LongestQuotation - 1).isHighSurrogate() ? LongestQuotation - 1 : LongestQuotation;
    return u'"' + text.first(size) + u"…\""_s;
}

} // namespace cluiconfig::check
