#include "TextSearch.h"

#include <QRegularExpression>
#include <QStringView>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

QRegularExpression expressionFor(const SearchTerms& terms)
{
    QString pattern = terms.isExpression ? terms.text : QRegularExpression::escape(terms.text);
    if (terms.isWholeWord) {
        pattern = u"(?<!\\w)(?:"_s + pattern + u")(?!\\w)"_s;
    }
    QRegularExpression::PatternOptions options =
        QRegularExpression::MultilineOption | QRegularExpression::UseUnicodePropertiesOption;
    options.setFlag(QRegularExpression::CaseInsensitiveOption, !terms.isCaseSensitive);
    return QRegularExpression(pattern, options);
}

/// \p replacement with the groups of \p match.
QString expanded(const QString& replacement, const QRegularExpressionMatch& match)
{
    QString result;
    for (qsizetype i = 0; i < replacement.size(); ++i) {
        const QChar next = i + 1 < replacement.size() ? replacement.at(i + 1) : QChar();
        if (replacement.at(i) != u'\\' || (next != u'\\' && (next < u'0' || next > u'9'))) {
            result += replacement.at(i);
            continue;
        }
        result += next == u'\\' ? QString(next) : match.captured(next.digitValue());
        ++i;
    }
    return result;
}

} // namespace

QString errorIn(const SearchTerms& terms)
{
    // Without what stands around it for whole words, whose mistakes nobody made.
    const QRegularExpression expression(terms.isExpression ? terms.text : QString());
    return expression.isValid() ? QString() : expression.errorString();
}

QList<Match> findAll(const QByteArray& text, const SearchTerms& terms, const QString& replacement)
{
    QList<Match> matches;
    const QRegularExpression expression = expressionFor(terms);
    if (terms.text.isEmpty() || !errorIn(terms).isEmpty() || !expression.isValid()) {
        return matches;
    }
    // What is no UTF-8 is read byte by byte, so that places stay right.
    const bool isUtf8 = text.isValidUtf8();
    const QString subject = isUtf8 ? QString::fromUtf8(text) : QString::fromLatin1(text);
    const auto bytes = [&](qsizetype from, qsizetype to) {
        return isUtf8 ? QStringView(subject).sliced(from, to - from).toUtf8().size() : to - from;
    };
    qsizetype at = 0; // in the subject
    qsizetype offset = isUtf8 && text.startsWith("\xEF\xBB\xBF") ? 3 : 0; // of that in the text; Qt drops such a mark
    QRegularExpressionMatchIterator found = expression.globalMatch(subject);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        if (match.capturedLength() == 0) {
            continue;
        }
        const qsizetype begin = offset + bytes(at, match.capturedStart());
        const qsizetype end = begin + bytes(match.capturedStart(), match.capturedEnd());
        at = match.capturedEnd();
        offset = end;
        const QString by = terms.isExpression ? expanded(replacement, match) : replacement;
        matches.append({begin, end, by.toUtf8()});
    }
    return matches;
}

} // namespace cluiedit
