#include "private/Syntax.h"

#include "Suggest.h"

#include <QJsonDocument>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace cluiconfig::check {

namespace {

constexpr std::size_t MostErrors = 100; // who made more has no use for them
constexpr auto ByteOrderMark = "\xEF\xBB\xBF"sv;
constexpr std::array CurlyQuotes{"“"sv, "”"sv, "„"sv, "‟"sv, "‘"sv, "’"sv, "‚"sv, "«"sv, "»"sv};

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

bool startsNumber(char byte)
{
    return (byte >= '0' && byte <= '9') || byte == '-' || byte == '+' || byte == '.';
}

char closerOf(char opener)
{
    return opener == '{' ? '}' : ']';
}

QString kindOf(char opener)
{
    return opener == '{' ? u"object"_s : u"array"_s;
}

QString codePoint(char32_t letter)
{
    return u"U+"_s + QString::number(static_cast<uint>(letter), 16).toUpper().rightJustified(4, u'0');
}

/// How many bytes the letter at \p text's beginning takes, 0 if it is not encoded in UTF-8.
qsizetype letterSize(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t size = lead < 0x80 ? 1 : lead < 0xC0 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(QByteArrayView(text.data(), static_cast<qsizetype>(std::min(size, text.size()))));
    return size > text.size() || decoder.hasError() || decoded.isEmpty() ? 0 : static_cast<qsizetype>(size);
}

} // namespace

/// Goes through the text once, token by token, and writes the JSON.
class Mender
{
public:
    /// Where brackets are missing or too many, the indentation tells where, if \p goesByIndentation.
    Mender(MendedText& mended, bool goesByIndentation)
        : m_mended(mended)
        , m_goesByIndentation(goesByIndentation)
        , m_text(mended.m_text.constData(), static_cast<std::size_t>(mended.m_text.size()))
    {
        if (m_text.starts_with(ByteOrderMark)) {
            m_at = ByteOrderMark.size();
        }
    }

    /// Whether brackets are missing or too many.
    bool hasOddBrackets() const { return m_hasOddBrackets; }

    void mend()
    {
        skipBlanks();
        if (m_at == m_text.size() || here() != '{') {
            m_mended.m_errors.clear();
            return;
        }
        while (m_expected != Expected::Nothing && m_mended.m_errors.size() < MostErrors) {
            if (m_at == m_text.size()) {
                closeAtTheEnd();
                break;
            }
            readToken();
            skipBlanks();
        }
        if (m_expected != Expected::Nothing) {
            m_isGuess = true;
        } else if (m_at < m_text.size()) {
            error(m_at, u"The document ends before this: remove what follows, or a bracket too many above."_s);
            m_isGuess = m_hasOddBrackets = true;
        }
        if (m_isGuess) {
            m_mended.m_json.clear();
        }
    }

private:
    enum class Expected { Value, Key, Colon, CommaOrEnd, Nothing };

    struct Open
    {
        char opener;
        std::size_t at;
        bool lacksKeys = false; // that has been said
    };

    char here() const { return m_text[m_at]; }
    std::string_view rest() const { return m_text.substr(m_at); }
    bool isIn(char opener) const { return !m_open.empty() && m_open.back().opener == opener; }
    static qsizetype offset(std::size_t at) { return static_cast<qsizetype>(at); }

    void error(std::size_t at, const QString& message)
    {
        if (m_mended.m_errors.size() < MostErrors) {
            m_mended.m_errors.push_back({offset(at), message});
        }
    }

    /// Writes \p bytes, which stand for what is at the place \p at.
    void write(std::string_view bytes, std::size_t at, bool isCopy = false)
    {
        m_mended.m_pieces.push_back({m_mended.m_json.size(), offset(at), isCopy});
        m_mended.m_json.append(bytes.data(), offset(bytes.size()));
    }
    void copy(std::size_t from, std::size_t to) { write(m_text.substr(from, to - from), from, true); }

    qsizetype lineOf(std::size_t at) const { return std::count(m_text.begin(), m_text.begin() + offset(at), '\n') + 1; }
    std::size_t lineStart(std::size_t at) const
    {
        const std::size_t before = at == 0 ? std::string_view::npos : m_text.rfind('\n', at - 1);
        return before == std::string_view::npos ? 0 : before + 1;
    }
    std::size_t lineEnd(std::size_t at) const { return std::min(m_text.find('\n', at), m_text.size()); }
    std::size_t indentation(std::size_t at) const
    {
        const std::size_t start = lineStart(at);
        return std::min(m_text.find_first_not_of(" \t", start), m_text.size()) - start;
    }
    bool isFirstOnItsLine(std::size_t at) const { return lineStart(at) + indentation(at) == at; }

    /// Blanks, and what stands between tokens as if it were one.
    void skipBlanks()
    {
        while (m_at < m_text.size()) {
            if (isBlank(here())) {
                ++m_at;
            } else if (!skipMergeMarker() && !skipComment() && !skipInvisible()) {
                break;
            }
        }
    }

    bool skipMergeMarker()
    {
        constexpr std::array Markers{"<<<<<<<"sv, "|||||||"sv, "======="sv, ">>>>>>>"sv};
        const auto* marker =
            std::ranges::find_if(Markers, [this](std::string_view each) { return rest().starts_with(each); });
        if (marker == Markers.end() || lineStart(m_at) != m_at) {
            return false;
        }
        if (*marker == Markers.front()) {
            error(m_at, u"A merge has left two versions here: keep one, and remove the other and the three markers."_s);
            m_isMerging = true;
        } else if (!m_isMerging) {
            error(m_at, u"A merge has left this marker: remove the line."_s);
        } else {
            // The first version is read on, the others are not.
            const std::size_t last = *marker == Markers.back() ? m_at : m_text.find("\n>>>>>>>", m_at);
            m_at = last == std::string_view::npos ? m_text.size() : last + 1;
            m_isMerging = false;
        }
        m_at = lineEnd(m_at);
        return true;
    }

    bool skipComment()
    {
        if (here() != '#' && !rest().starts_with("//") && !rest().starts_with("/*")) {
            return false;
        }
        error(m_at, u"JSON has no comments: remove it."_s);
        const std::size_t end = m_text.find("*/", m_at);
        m_at = !rest().starts_with("/*") ? lineEnd(m_at) : end == std::string_view::npos ? m_text.size() : end + 2;
        return true;
    }

    /// A letter that shows nothing, or looks like a blank and is none.
    bool skipInvisible()
    {
        const qsizetype size = letterSize(rest());
        const QList<uint> letters = QString::fromUtf8(QByteArrayView(m_text.data() + m_at, size)).toUcs4();
        const char32_t letter = letters.isEmpty() ? U'?' : letters.first();
        if (!QChar::isSpace(letter) && QChar::category(letter) != QChar::Other_Format
            && QChar::category(letter) != QChar::Other_Control) {
            return false;
        }
        error(m_at, u"Here stands %1, which is hard to see and no blank of JSON: remove it."_s.arg(codePoint(letter)));
        m_at += static_cast<std::size_t>(size);
        return true;
    }

    void readToken()
    {
        switch (here()) {
        case '{':
        case '[':
            open(here());
            break;
        case '(':
            error(m_at, u"Write [ instead of (."_s);
            open('[');
            break;
        case '}':
        case ']':
            close(here());
            break;
        case ')':
            error(m_at, u"Write ] instead of )."_s);
            close(']');
            break;
        case ';':
            error(m_at, u"Write a comma instead of the semicolon."_s);
            [[fallthrough]];
        case ',':
            comma();
            break;
        case '=':
            error(m_at, u"Write a colon instead of the equals sign."_s);
            m_at += rest().starts_with("=>") ? 1 : 0;
            [[fallthrough]];
        case ':':
            colon();
            break;
        default:
            text();
        }
    }

    void open(char opener)
    {
        makeRoom(false);
        m_open.push_back({opener, m_at});
        write({&opener, 1}, m_at);
        m_expected = opener == '{' ? Expected::Key : Expected::Value;
        m_hasNothing = true;
        m_end = ++m_at;
    }

    void close(char closer)
    {
        finishMember();
        if (m_comma) {
            error(*m_comma,
                  u"One comma too many: nothing follows it in this %1. Remove it."_s.arg(kindOf(m_open.back().opener)));
            m_comma.reset();
        }
        if (m_goesByIndentation && isFirstOnItsLine(m_at)) {
            closeDeeperThan(indentation(m_at));
            if (m_open.size() == 1 && indentation(m_at) > indentation(m_open.back().at)) {
                error(m_at, u"One %1 too many, here or above: remove it."_s.arg(QChar::fromLatin1(closer)));
                m_end = ++m_at;
                return;
            }
        }
        if (closerOf(m_open.back().opener) != closer) {
            m_hasOddBrackets = true;
            if (m_open.size() > 1 && closerOf(m_open[m_open.size() - 2].opener) == closer) {
                closeBefore();
            } else {
                error(m_at,
                      u"The %1 that begins in line %2 is closed with %3: write %4."_s.arg(
                          kindOf(m_open.back().opener), QString::number(lineOf(m_open.back().at)),
                          QChar::fromLatin1(closer), QChar::fromLatin1(closerOf(m_open.back().opener))));
            }
        }
        endContainer(m_at);
        m_end = ++m_at;
    }

    /// What begins in a line that is set in further should have been closed.
    void closeDeeperThan(std::size_t indent)
    {
        while (m_open.size() > 1 && indentation(m_open.back().at) > indent) {
            closeBefore();
        }
    }

    /// The innermost object or array should have been closed behind the last token.
    void closeBefore()
    {
        const Open& open = m_open.back();
        m_hasOddBrackets = true;
        error(m_end,
              u"The %1 that begins in line %2 is not closed: type %3 here."_s.arg(
                  kindOf(open.opener), QString::number(lineOf(open.at)), QChar::fromLatin1(closerOf(open.opener))));
        endContainer(m_end);
    }

    void endContainer(std::size_t at)
    {
        const char closer = closerOf(m_open.back().opener);
        write({&closer, 1}, at);
        m_open.pop_back();
        m_expected = m_open.empty() ? Expected::Nothing : Expected::CommaOrEnd;
        m_hasNothing = false;
    }

    void closeAtTheEnd()
    {
        finishMember();
        QString closers;
        for (const auto& each : m_open) {
            closers.prepend(QChar::fromLatin1(closerOf(each.opener)));
        }
        error(m_end,
              u"The text ends before the document does: the %1 that begins in line %2 is not closed. Type %3 where "
              "it is missing, here at the latest; nothing else was looked at."_s.arg(
                  kindOf(m_open.back().opener), QString::number(lineOf(m_open.back().at)), closers));
        m_isGuess = m_hasOddBrackets = true;
    }

    void comma()
    {
        finishMember();
        if (m_comma || m_hasNothing) {
            error(m_at, u"One comma too many: remove it."_s);
        } else {
            m_comma = m_at;
            m_expected = isIn('{') ? Expected::Key : Expected::Value;
        }
        m_at += 1;
    }

    void colon()
    {
        if (m_expected == Expected::Colon) {
            write(":", m_at);
            m_expected = Expected::Value;
        } else {
            error(m_at, u"A colon belongs between a key and its value only: remove it."_s);
        }
        m_end = ++m_at;
    }

    /// Writes what is missing between the last token and a value or key that comes now, which a colon \p isFollowed.
    void makeRoom(bool isFollowed)
    {
        const bool isAfterValue = m_comma || m_expected == Expected::CommaOrEnd;
        if (isFollowed && m_goesByIndentation && isAfterValue && isFirstOnItsLine(m_at)) {
            closeDeeperThan(indentation(m_at) - std::min<std::size_t>(indentation(m_at), 1));
        }
        const bool isMember = isFollowed && isIn('[');
        const bool isElement = here() == '{' && isIn('{') && isAfterValue;
        if ((isMember || isElement) && m_open.size() > 1
            && m_open[m_open.size() - 2].opener == (isMember ? '{' : '[')) {
            closeBefore();
        }
        if (m_comma) {
            m_expected = isIn('{') ? Expected::Key : Expected::Value;
        }
        if (m_expected == Expected::Colon) {
            error(m_end, u"A colon is missing here, between the key and its value."_s);
            write(":", m_end);
            m_expected = Expected::Value;
        } else if (m_expected == Expected::CommaOrEnd) {
            error(m_end, u"A comma is missing here."_s);
            write(",", m_end);
            m_expected = isIn('{') ? Expected::Key : Expected::Value;
        } else if (m_comma) {
            write(",", *m_comma);
        }
        m_comma.reset();
        if (m_expected == Expected::Key && (here() == '{' || here() == '[')) {
            if (!std::exchange(m_open.back().lacksKeys, true)) {
                error(
                    m_at,
                    u"This %1 has no key: type one and a colon before it, or look above for a bracket too many or a [ "
                    "that is missing. Nothing else was looked at."_s.arg(kindOf(here())));
            }
            write("\"\":", m_at);
            m_expected = Expected::Value;
            m_isGuess = m_hasOddBrackets = true;
        }
        m_hasNothing = false;
    }

    /// A key without a value gets one.
    void finishMember()
    {
        if (m_expected == Expected::Colon || (m_expected == Expected::Value && isIn('{'))) {
            error(m_end,
                  m_expected == Expected::Colon ? u"The key has no value: type a colon and one here."_s
                                                : u"A value is missing here."_s);
            write(m_expected == Expected::Colon ? ":" : "", m_end);
            m_mended.m_missing.push_back(m_mended.m_json.size());
            write("null", m_end);
            m_expected = Expected::CommaOrEnd;
        }
    }

    /// What a text or another plain value takes in the text, and what it is in JSON.
    struct Token
    {
        std::size_t end = 0;
        std::string_view content{}; // of a text, as it is written
        QByteArray value{}; // of what is no text
    };

    void text()
    {
        const std::size_t begin = m_at;
        const Token token = here() == '"' ? quotedText() : isOtherQuote(rest()) ? otherQuotedText() : bareWord();
        const std::size_t next = m_text.find_first_not_of(" \t\r\n", token.end);
        makeRoom(next != std::string_view::npos && m_text[next] == ':');
        if (token.value.isEmpty() || m_expected == Expected::Key) {
            write("\"", begin);
            writeContent(token.value.isEmpty() ? token.content : m_text.substr(begin, token.end - begin));
            write("\"", begin);
        } else {
            write({token.value.constData(), static_cast<std::size_t>(token.value.size())}, begin);
        }
        m_expected = m_expected == Expected::Key ? Expected::Colon : Expected::CommaOrEnd;
        m_at = m_end = token.end;
    }

    static bool isOtherQuote(std::string_view text)
    {
        return text.starts_with('\'')
            || std::ranges::any_of(CurlyQuotes, [&](std::string_view quote) { return text.starts_with(quote); });
    }

    /// A text that begins with a straight quote.
    Token quotedText()
    {
        const std::size_t begin = m_at + 1;
        std::size_t end = begin;
        while (end < m_text.size() && m_text[end] != '"' && m_text[end] != '\n') {
            end += m_text[end] == '\\' && end + 1 < m_text.size() && m_text[end + 1] != '\n' ? 2 : 1;
        }
        end = std::min(end, m_text.size());
        if (end == m_text.size() || m_text[end] == '\n') {
            return unclosedText(begin, end);
        }
        // If the next text begins where this one should have ended, what is between them is taken for a text, and it
        // ends in a comma or a colon.
        const std::string_view content = m_text.substr(begin, end - begin);
        const std::size_t last = content.find_last_not_of(" \t");
        const std::size_t next = m_text.find_first_not_of(" \t\r", end + 1);
        const bool isFollowed =
            next == std::string_view::npos || ",:]}\n/#;="sv.find(m_text[next]) != std::string_view::npos;
        if (!isFollowed && last != std::string_view::npos && (content[last] == ',' || content[last] == ':')) {
            return unclosedText(begin, begin + last + 1);
        }
        return {end + 1, content};
    }

    /// A text from \p begin that is not closed before \p end, where a line or the next text begins.
    Token unclosedText(std::size_t begin, std::size_t end)
    {
        const auto dropBlanks = [&] {
            while (end > begin && isBlank(m_text[end - 1])) {
                --end;
            }
        };
        dropBlanks();
        if (end > begin && (m_text[end - 1] == ',' || m_text[end - 1] == ':')) {
            --end;
        }
        dropBlanks();
        while (end > begin + 1 && (m_text[end - 1] == '}' || m_text[end - 1] == ']') && isBlank(m_text[end - 2])) {
            --end;
            dropBlanks();
        }
        const std::string_view content = m_text.substr(begin, end - begin);
        for (const std::string_view quote : CurlyQuotes) {
            if (content.ends_with(quote)) {
                error(end - quote.size(), u"The text is closed with a curly quote: write a straight one, \"."_s);
                return {end, content.substr(0, content.size() - quote.size())};
            }
        }
        if (content.ends_with("\\\"")) {
            error(end - 2, u"A backslash before a quote makes it part of the text: write two backslashes."_s);
            return {end, content.substr(0, content.size() - 2)};
        }
        error(end, u"The text %1 is not closed: type a quote here."_s.arg(quoted(QString::fromUtf8(content))));
        return {end, content};
    }

    /// A text between single or curly quotes.
    Token otherQuotedText()
    {
        const std::size_t begin = m_at + (here() == '\'' ? 1 : static_cast<std::size_t>(letterSize(rest())));
        std::size_t end = begin;
        while (end < m_text.size() && m_text[end] != '"' && m_text[end] != '\n' && !isOtherQuote(m_text.substr(end))) {
            ++end;
        }
        if (end == m_text.size() || m_text[end] == '\n') {
            return unclosedText(begin, end);
        }
        error(m_at, u"Texts stand between straight double quotes, \": write them before and behind this one."_s);
        const bool isPlain = m_text[end] == '"' || m_text[end] == '\'';
        return {end + (isPlain ? 1 : static_cast<std::size_t>(letterSize(m_text.substr(end)))),
                m_text.substr(begin, end - begin)};
    }

    /// A number, a word that means something, or a text without quotes.
    Token bareWord()
    {
        std::size_t end = m_at + 1;
        while (end < m_text.size() && ",:;(){}[]\"\n"sv.find(m_text[end]) == std::string_view::npos
               && !(isBlank(m_text[end - 1]) && m_text.substr(end).starts_with("//"))) {
            ++end;
        }
        const bool isQuoted = end < m_text.size() && m_text[end] == '"' && !isBlank(m_text[end - 1]);
        std::size_t last = end;
        while (isBlank(m_text[last - 1])) {
            --last;
        }
        const std::size_t blank = std::min(m_text.find_first_of(" \t", m_at), last);
        if (startsNumber(here()) && isValue(m_text.substr(m_at, blank - m_at))) {
            last = blank;
        }
        const std::string_view word = m_text.substr(m_at, last - m_at);
        if (isQuoted) {
            error(m_at, u"A quote is missing here, before %1."_s.arg(quoted(QString::fromUtf8(word))));
            return {end + 1, word};
        }
        if (const QByteArray value = plainValue(word); !value.isEmpty()) {
            return {last, {}, value};
        }
        error(m_at,
              u"%1 stands without quotes: write \"%2\"."_s.arg(m_expected == Expected::Key ? u"A key"_s : u"A text"_s,
                                                               QString::fromUtf8(word).left(80)));
        return {last, word};
    }

    static bool isValue(std::string_view word)
    {
        return QJsonDocument::fromJson('[' + QByteArray(word.data(), offset(word.size())) + ']').isArray();
    }

    /// The number or the word that \p word is or is meant to be; empty if it is a text.
    QByteArray plainValue(std::string_view word)
    {
        QByteArray bytes(word.data(), offset(word.size()));
        if (isValue(word)) {
            return bytes;
        }
        bool isNumber = false;
        const double number = startsNumber(word.front()) ? bytes.toDouble(&isNumber) : 0;
        const QByteArray small = bytes.toLower();
        QByteArray meant = isNumber                                     ? QByteArray::number(number, 'g', 17)
            : small == "true" || small == "false" || small == "null"    ? small
            : small == "none" || small == "undefined" || small == "nan" ? QByteArray("null")
                                                                        : QByteArray();
        if (!meant.isEmpty() && m_expected != Expected::Key) {
            error(m_at, u"JSON has no %1: write %2."_s.arg(QString::fromUtf8(bytes), QString::fromUtf8(meant)));
        }
        return meant;
    }

    /// The content of a text, made of what JSON allows in one.
    void writeContent(std::string_view content)
    {
        const auto begin = static_cast<std::size_t>(content.data() - m_text.data());
        std::size_t written = 0;
        const auto replace = [&](std::size_t at, std::string_view by) {
            copy(begin + written, begin + at);
            write(by, begin + at);
            written = at + 1;
        };
        for (std::size_t i = 0; i < content.size(); ++i) {
            const char byte = content[i];
            if (byte == '"') {
                replace(i, "\\\"");
            } else if (byte == '\\') {
                if (i + 1 == content.size() || (content[i + 1] == 'u' && !isHexadecimal(content.substr(i + 2)))) {
                    error(begin + i,
                          u"A backslash in a text is written twice, \\\\; only \\u with four hexadecimal digits "
                          "stands for a letter."_s);
                    replace(i, "\\\\");
                } else {
                    ++i;
                }
            } else if (static_cast<unsigned char>(byte) >= 0x80) {
                const qsizetype size = letterSize(content.substr(i));
                if (size > 0) {
                    i += static_cast<std::size_t>(size) - 1;
                } else {
                    const QString latin = QString::fromLatin1(&byte, 1);
                    error(begin + i,
                          u"This byte is no UTF-8, in Latin-1 it is %1: save the document in UTF-8."_s.arg(latin));
                    const QByteArray letter = latin.toUtf8();
                    replace(i, {letter.constData(), static_cast<std::size_t>(letter.size())});
                }
            }
        }
        copy(begin + written, begin + content.size());
    }

    static bool isHexadecimal(std::string_view digits)
    {
        return digits.size() >= 4
            && digits.substr(0, 4).find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
    }

    MendedText& m_mended;
    bool m_goesByIndentation;
    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_end = 0; // of the last token
    std::vector<Open> m_open;
    Expected m_expected = Expected::Value;
    std::optional<std::size_t> m_comma; // the last token, not yet written
    bool m_hasNothing = true; // the innermost object or array so far
    bool m_isMerging = false;
    bool m_hasOddBrackets = false;
    bool m_isGuess = false;
};

MendedText::MendedText(const QByteArray& bytes)
    : m_text(bytes)
{
    const bool isUtf16 = bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")
        || bytes.startsWith(QByteArray("{\0", 2)) || bytes.startsWith(QByteArray("\0{", 2));
    if (isUtf16) {
        const bool isBigEndian = bytes.startsWith('\xFE') || bytes.startsWith('\0');
        QStringDecoder decode(isBigEndian ? QStringDecoder::Utf16BE : QStringDecoder::Utf16LE);
        m_text = QString(decode(bytes)).toUtf8();
    }
    Mender mender(*this, false);
    mender.mend();
    if (mender.hasOddBrackets()) {
        m_errors.clear();
        m_json.clear();
        m_pieces.clear();
        m_missing.clear();
        Mender(*this, true).mend();
    }
    if (isUtf16 && !m_pieces.empty()) {
        m_errors.insert(m_errors.begin(), {0, u"The document is in UTF-16: save it in UTF-8."_s});
    }
    std::stable_sort(m_errors.begin(), m_errors.end(),
                     [](const SyntaxError& a, const SyntaxError& b) { return a.offset < b.offset; });
}

bool MendedText::isMissing(qsizetype offset) const
{
    return std::binary_search(m_missing.begin(), m_missing.end(), offset);
}

qsizetype MendedText::originalOffset(qsizetype offset) const
{
    auto piece = std::upper_bound(m_pieces.begin(), m_pieces.end(), offset,
                                  [](qsizetype value, const Piece& each) { return value < each.offset; });
    if (piece == m_pieces.begin()) {
        return 0;
    }
    --piece;
    return piece->original + (piece->isCopy ? offset - piece->offset : 0);
}

} // namespace cluiconfig::check
