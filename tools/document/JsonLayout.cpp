#include "JsonLayout.h"

#include <QChar>
#include <QIODevice>
#include <QRegularExpression>

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr qsizetype Width = 116;
constexpr qsizetype Indentation = 4;
constexpr qsizetype DeepestIndentation = 20; // levels; deeper ones stand as far in, or blanks would outgrow the text
constexpr int DeepestNesting = 1024;
constexpr qsizetype LargestText = std::numeric_limits<quint32>::max();

constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

qsizetype columns(QByteArrayView text)
{
    return std::count_if(text.begin(), text.end(),
                         [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; });
}

QString problemAt(QByteArrayView before, const QString& problem)
{
    const QByteArrayView line = before.sliced(before.lastIndexOf('\n') + 1);
    return u"line %1, column %2: %3"_s.arg(before.count('\n') + 1).arg(columns(line) + 1).arg(problem);
}

/// Whether the four bytes behind "\\u" make half of a pair of units.
bool isHalf(QByteArrayView digits)
{
    bool isNumber = false;
    const uint unit = digits.toUInt(&isNumber, 16);
    return digits.size() == 4 && isNumber && QChar::isSurrogate(unit);
}

/// A text of the same tokens without what is JSON, but more than the parser can take: numbers beyond a double, of which
/// it is not asked what they are worth, and escapes of one half of a pair, of which it is not asked what they mean.
QByteArray easyText(QByteArray text)
{
    static const QRegularExpression number(u"\\A-?(0|[1-9][0-9]*)(\\.[0-9]+)?([eE][+-]?[0-9]+)?\\z"_s);
    constexpr QByteArrayView NumberBytes("+-.0123456789Ee");
    constexpr qsizetype MostDigits = 300;
    bool isInText = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char byte = text.at(i);
        if (byte == '"') {
            isInText = !isInText;
        } else if (isInText && byte == '\\') {
            if (QByteArrayView(text).sliced(i).startsWith("\\u") && isHalf(text.mid(i + 2, 4))) {
                text.replace(i + 2, 4, "0000");
            }
            ++i;
        } else if (!isInText && (byte == '-' || (byte >= '0' && byte <= '9'))) {
            const auto* const end =
                std::find_if_not(text.cbegin() + i, text.cend(), [&](char each) { return NumberBytes.contains(each); });
            const QByteArrayView digits = QByteArrayView(text.cbegin() + i, end);
            const qsizetype size = digits.size();
            const bool isLarge = size > MostDigits || digits.contains('e') || digits.contains('E');
            if (isLarge && number.match(QString::fromLatin1(digits)).hasMatch()) {
                std::fill_n(text.begin() + i, size, '0');
                text[i + 1] = '.';
            }
            i += size - 1;
        }
    }
    return text;
}

} // namespace

/// What the parser tells, as tokens of the text that it reads.
class JsonLayout::Tokens
{
public:
    Tokens(JsonLayout& layout, const rapidjson::MemoryStream& stream)
        : m_layout(layout)
        , m_stream(stream)
        , m_text(layout.m_text.constData(), static_cast<std::size_t>(layout.m_text.size()))
    {
    }

    bool isTooDeep() const { return m_depth > DeepestNesting; }

    // NOLINTBEGIN(readability-identifier-naming): RapidJSON's reader calls them so
    bool Null() { return append(4); }
    bool Bool(bool value) { return append(value ? 4 : 5); }
    bool RawNumber(const char* /*digits*/, rapidjson::SizeType size, bool /*copy*/) { return append(size); }
    bool String(const char* /*decoded*/, rapidjson::SizeType /*size*/, bool /*copy*/)
    {
        return append(m_stream.Tell() - begin()); // as long as it is written, with its quotes
    }
    bool Key(const char* decoded, rapidjson::SizeType size, bool copy) { return String(decoded, size, copy); }
    bool StartObject() { return start(); }
    bool StartArray() { return start(); }
    bool EndObject(rapidjson::SizeType /*members*/) { return end(); }
    bool EndArray(rapidjson::SizeType /*elements*/) { return end(); }

    // The reader gives numbers as they are written, never one of these.
    bool Int(int /*value*/) { return false; }
    bool Uint(unsigned /*value*/) { return false; }
    bool Int64(std::int64_t /*value*/) { return false; }
    bool Uint64(std::uint64_t /*value*/) { return false; }
    bool Double(double /*value*/) { return false; }
    // NOLINTEND(readability-identifier-naming)

private:
    bool start()
    {
        ++m_depth;
        return !isTooDeep() && append(1);
    }
    bool end()
    {
        --m_depth;
        return append(1);
    }
    /// Where the next token begins: between it and the last one there are only blanks, a colon, a comma.
    std::size_t begin() const { return m_text.find_first_not_of(" \t\r\n:,", m_end); }
    bool append(std::size_t size)
    {
        const std::size_t first = begin();
        m_layout.m_tokens.push_back({static_cast<quint32>(first), static_cast<quint32>(size)});
        m_end = first + size;
        return true;
    }

    JsonLayout& m_layout;
    const rapidjson::MemoryStream& m_stream;
    std::string_view m_text;
    std::size_t m_end = 0; // of the last token
    int m_depth = 0;
};

/// Writes the tokens one after the other, deciding at the start of each object and list how it stands.
class JsonLayout::Writer
{
public:
    Writer(const JsonLayout& layout, QIODevice& device)
        : m_layout(layout)
        , m_device(device)
    {
    }

    bool write()
    {
        writeValue(0, 0, 0, false);
        put("\n");
        flush();
        return m_isTaken;
    }

private:
    struct Extent
    {
        qsizetype columns;
        std::size_t end; ///< The token behind it.
    };

    /// What \p token takes on one line, if it is a plain value or a list of plain values not much wider than a line.
    std::optional<Extent> extent(std::size_t token) const
    {
        if (m_layout.kind(token) == '{') {
            return {};
        }
        if (m_layout.kind(token) != '[') {
            return Extent{columns(m_layout.text(token)), token + 1};
        }
        qsizetype width = 2;
        std::size_t element = token + 1;
        for (; !m_layout.isEnd(element); ++element) {
            if (m_layout.kind(element) == '[' || m_layout.kind(element) == '{' || width > Width) {
                return {};
            }
            width += columns(m_layout.text(element)) + (m_layout.isEnd(element + 1) ? 0 : 2);
        }
        return Extent{width, element + 1};
    }

    /// The columns of a comma behind the value that ends before \p end, if there is one.
    qsizetype comma(std::size_t end) const { return end < m_layout.m_tokens.size() && !m_layout.isEnd(end) ? 1 : 0; }

    static qsizetype indentation(qsizetype level) { return std::min(level, DeepestIndentation) * Indentation; }

    /// Writes the value at \p token, whose line has \p column columns already, and returns the token behind it.
    std::size_t writeValue(std::size_t token, qsizetype level, qsizetype column, bool isInList)
    {
        const char kind = m_layout.kind(token);
        if (kind != '{' && kind != '[') {
            put(m_layout.text(token));
            return token + 1;
        }
        const bool isObject = kind == '{';
        if (m_layout.isEnd(token + 1)) {
            put(isObject ? "{}" : "[]");
            return token + 2;
        }
        if (isObject && isInList && canFillLines(token, indentation(level) + 2)) {
            return fillLines(token, indentation(level) + 2);
        }
        const std::optional<Extent> list = extent(token);
        if (list && column + list->columns + comma(list->end) <= Width) {
            return writeOnLine(token);
        }

        put(isObject ? "{" : "[");
        for (++token;;) {
            newLine(indentation(level + 1));
            qsizetype key = 0;
            if (isObject) {
                key = columns(m_layout.text(token)) + 2;
                putKey(token);
                ++token;
            }
            token = writeValue(token, level + 1, indentation(level + 1) + key, !isObject);
            if (m_layout.isEnd(token)) {
                break;
            }
            put(",");
        }
        newLine(indentation(level));
        put(isObject ? "}" : "]");
        return token + 1;
    }

    /// Writes a plain value or a list of plain values without a line feed.
    std::size_t writeOnLine(std::size_t token)
    {
        const bool isList = m_layout.kind(token) == '[';
        put(m_layout.text(token++));
        if (isList) {
            while (!m_layout.isEnd(token)) {
                put(m_layout.text(token++));
                put(m_layout.isEnd(token) ? "" : ", ");
            }
            put(m_layout.text(token++));
        }
        return token;
    }

    /// What the member with the key \p token takes on a line, with the comma or the brace that follows it.
    std::optional<Extent> memberExtent(std::size_t token) const
    {
        std::optional<Extent> member = extent(token + 1);
        if (member) {
            member->columns += columns(m_layout.text(token)) + 2;
            member->columns += m_layout.isEnd(member->end) ? 2 + comma(member->end + 1) : 1;
        }
        return member;
    }

    bool canFillLines(std::size_t object, qsizetype indent) const
    {
        for (std::size_t token = object + 1; !m_layout.isEnd(token);) {
            const std::optional<Extent> member = memberExtent(token);
            if (!member || indent + member->columns > Width) {
                return false;
            }
            token = member->end;
        }
        return true;
    }

    /// REQUIRES: canFillLines().
    std::size_t fillLines(std::size_t object, qsizetype indent)
    {
        std::size_t token = object + 1;
        qsizetype column = indent;
        put("{ ");
        while (!m_layout.isEnd(token)) {
            const Extent member = *memberExtent(token);
            if (token > object + 1) {
                if (column + 1 + member.columns <= Width) {
                    put(" ");
                    ++column;
                } else {
                    newLine(indent);
                    column = indent;
                }
            }
            putKey(token);
            token = writeOnLine(token + 1);
            put(m_layout.isEnd(token) ? "" : ",");
            column += member.columns;
        }
        put(" }");
        return token + 1;
    }

    void putKey(std::size_t token)
    {
        put(m_layout.text(token));
        put(": ");
    }
    void newLine(qsizetype indent)
    {
        m_pending += '\n';
        m_pending.append(indent, ' ');
    }
    void put(QByteArrayView bytes)
    {
        m_pending.append(bytes);
        if (m_pending.size() > MostPending) {
            flush();
        }
    }
    void flush()
    {
        // What is taken in part is no error yet: the device says what is wrong when it takes nothing any more.
        for (QByteArrayView rest = m_pending; m_isTaken && !rest.isEmpty();) {
            const qint64 count = m_device.write(rest.data(), rest.size());
            m_isTaken = count > 0;
            rest = m_isTaken ? rest.sliced(count) : rest;
        }
        m_pending.clear();
    }

    static constexpr qsizetype MostPending = qsizetype{1} << 16;

    const JsonLayout& m_layout;
    QIODevice& m_device;
    QByteArray m_pending;
    bool m_isTaken = true;
};

bool JsonLayout::read(const QByteArray& text, QString& error)
{
    m_text = text.startsWith(ByteOrderMark) ? text.sliced(ByteOrderMark.size()) : text;
    m_tokens.clear();
    if (m_text.size() > LargestText) {
        error = u"larger than 4 GB"_s;
        return false;
    }
    const QByteArray easy = easyText(m_text);
    rapidjson::MemoryStream stream(easy.constData(), static_cast<std::size_t>(easy.size()));
    rapidjson::Reader reader;
    Tokens tokens(*this, stream);
    constexpr unsigned Flags =
        rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;
    const rapidjson::ParseResult result = reader.Parse<Flags>(stream, tokens);
    if (result.IsError()) {
        const auto offset = std::min(static_cast<qsizetype>(result.Offset()), m_text.size());
        const bool isControl = offset < m_text.size() && static_cast<unsigned char>(m_text.at(offset)) < 0x20;
        error = problemAt(QByteArrayView(m_text).first(offset),
                          tokens.isTooDeep() ? u"nested more than %1 deep"_s.arg(DeepestNesting)
                              : isControl && result.Code() == rapidjson::kParseErrorStringEscapeInvalid
                              ? u"a control character in a text is written as an escape, such as \\n or \\t"_s
                              : QString::fromLatin1(rapidjson::GetParseError_En(result.Code())));
        return false;
    }
    // The parser takes a NUL for the end.
    const auto end = static_cast<qsizetype>(stream.Tell());
    if (end < m_text.size()) {
        error = problemAt(QByteArrayView(m_text).first(end), u"the document ends before this character, a NUL"_s);
        return false;
    }
    return true;
}

bool JsonLayout::write(QIODevice& device) const
{
    return Writer(*this, device).write();
}

QByteArrayView JsonLayout::text(std::size_t token) const
{
    return QByteArrayView(m_text).sliced(m_tokens[token].begin, m_tokens[token].size);
}

} // namespace cluiconfig
