#include "JsonScanner.h"

#include <string_view>

using namespace std::string_view_literals;

namespace cluiedit {

namespace {

constexpr auto Signs = "{}[],:"sv;
constexpr auto Blanks = " \t\r\n"sv;
constexpr auto ByteOrderMark = "\xEF\xBB\xBF"sv;

bool isOneOf(std::string_view letters, char letter)
{
    return letters.find(letter) != std::string_view::npos;
}

} // namespace

JsonScanner::JsonScanner(QByteArrayView text)
    : m_text(text)
    , m_at(text.startsWith(QByteArrayView(ByteOrderMark)) ? std::ssize(ByteOrderMark) : 0)
{
}

bool JsonScanner::next()
{
    m_at = skipBlanks(m_at);
    if (m_at >= m_text.size()) {
        return false;
    }
    m_token = {m_at, m_at + 1, false, false};
    m_sign = m_text.at(m_at);
    if (isOneOf(Signs, m_sign)) {
        ++m_at;
        return true;
    }
    if (m_sign == '"') {
        readString();
    } else {
        while (m_token.end < m_text.size() && m_text.at(m_token.end) != '"' && !isOneOf(Signs, m_text.at(m_token.end))
               && !isOneOf(Blanks, m_text.at(m_token.end))) {
            ++m_token.end;
        }
    }
    m_sign = 0;
    m_at = m_token.end;
    return true;
}

bool JsonScanner::isBeforeColon() const
{
    const qsizetype at = skipBlanks(m_at);
    return at < m_text.size() && m_text.at(at) == ':';
}

qsizetype JsonScanner::skipBlanks(qsizetype from) const
{
    while (from < m_text.size() && isOneOf(Blanks, m_text.at(from))) {
        ++from;
    }
    return from;
}

void JsonScanner::readString()
{
    const auto isLineEnd = [](char letter) { return letter == '\n' || letter == '\r'; };
    m_token.isString = true;
    qsizetype at = m_token.begin + 1;
    while (at < m_text.size() && m_text.at(at) != '"' && !isLineEnd(m_text.at(at))) {
        at += m_text.at(at) == '\\' && at + 1 < m_text.size() && !isLineEnd(m_text.at(at + 1)) ? 2 : 1;
    }
    if (at < m_text.size() && m_text.at(at) == '"') {
        qsizetype behind = at + 1;
        while (behind < m_text.size() && isOneOf(" \t"sv, m_text.at(behind))) {
            ++behind;
        }
        // A string ends before a sign, at the end of a line, or, where a comma is missing, before another string.
        const bool isEnd = behind >= m_text.size() || isLineEnd(m_text.at(behind)) || isOneOf(Signs, m_text.at(behind))
            || (m_text.at(behind) == '"' && behind > at + 1);
        if (isEnd) {
            m_token.isClosed = true;
            m_token.end = at + 1;
            return;
        }
    }
    // What closes lists and objects on the line is no part of a string that is being typed.
    while (at > m_token.begin + 1 && (isOneOf(Signs, m_text.at(at - 1)) || isOneOf(Blanks, m_text.at(at - 1)))) {
        --at;
    }
    m_token.end = at;
}

} // namespace cluiedit
