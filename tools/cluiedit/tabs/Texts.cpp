#include "Texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cluiedit {

QStringList filterWords(const QString& line)
{
    return line.simplified().split(u' ', Qt::SkipEmptyParts);
}

bool containsAll(const QString& text, const QStringList& words)
{
    return std::ranges::all_of(words,
                               [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

QString toolTipText(const QString& text)
{
    return text.isEmpty() ? QString() : u"<p>%1</p>"_s.arg(text.toHtmlEscaped());
}

} // namespace cluiedit
