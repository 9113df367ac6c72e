#include "private/Document.h"

#include <base/JsonPointer.h>

#include <QHash>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QStringList>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

/// Whether the key whose quote stands at \p quote begins with a byte-order mark that is not part of its name for those
/// who walk through the members, as the application does where keys are anybody's choice. Who asks for a member needs
/// it.
bool beginsWithMark(QByteArrayView bytes, quint32 quote)
{
    const QByteArrayView key = bytes.sliced(quote + 1);
    return key.startsWith(ByteOrderMark) && !key.first(key.indexOf('"')).contains('\\');
}

} // namespace

/// Takes the parser's events and makes nodes of them. At an event the parser has just passed the token, but stands
/// before a bracket that opens.
struct TreeBuilder
{
    // NOLINTBEGIN(readability-identifier-naming): the parser calls them by these names
    bool Null() { return add(here() - 4); }
    bool Bool(bool value) { return add(here() - (value ? 4 : 5)); }
    bool Int(int /*value*/) { return add(here() - 1); }
    bool Uint(unsigned /*value*/) { return add(here() - 1); }
    bool Int64(int64_t /*value*/) { return add(here() - 1); }
    bool Uint64(uint64_t /*value*/) { return add(here() - 1); }
    bool Double(double /*value*/) { return add(here() - 1); }
    bool RawNumber(const char* /*text*/, rapidjson::SizeType /*length*/, bool /*copy*/) { return add(here() - 1); }
    bool String(const char* /*text*/, rapidjson::SizeType /*length*/, bool /*copy*/) { return add(stringStart()); }
    bool Key(const char* /*text*/, rapidjson::SizeType /*length*/, bool /*copy*/)
    {
        keyOffset = stringStart();
        return true;
    }
    bool StartObject() { return open(); }
    bool EndObject(rapidjson::SizeType /*members*/) { return close(); }
    bool StartArray() { return open(); }
    bool EndArray(rapidjson::SizeType /*elements*/) { return close(); }
    // NOLINTEND(readability-identifier-naming)

    quint32 here() const { return static_cast<quint32>(stream.Tell()); }

    quint32 stringStart() const
    {
        const auto isEscaped = [this](quint32 quote) {
            quint32 slashes = 0;
            while (slashes < quote && bytes[quote - slashes - 1] == '\\') {
                ++slashes;
            }
            return slashes % 2 != 0;
        };
        quint32 start = here() - 2;
        while (bytes[start] != '"' || isEscaped(start)) {
            --start;
        }
        return start;
    }

    bool add(quint32 offset)
    {
        const auto index = static_cast<quint32>(nodes.size());
        nodes.push_back(
            {offset, std::exchange(keyOffset, 0), current, index + 1, children.empty() ? 0 : children.back()++});
        return true;
    }

    bool open()
    {
        const auto index = static_cast<quint32>(nodes.size());
        add(here());
        current = index;
        children.push_back(0);
        return true;
    }

    bool close()
    {
        nodes[current].end = static_cast<quint32>(nodes.size());
        current = nodes[current].parent;
        children.pop_back();
        return true;
    }

    QByteArrayView bytes;
    const rapidjson::MemoryStream& stream;
    std::vector<Document::Node> nodes{};
    quint32 keyOffset = 0;
    quint32 current = 0;
    std::vector<quint32> children{}; // how many each open object or array has so far
};

namespace {

/// How many bytes behind the backslash at \p escape belong to it, if JSON and the parser know it; nothing otherwise.
std::optional<qsizetype> escapeSize(QByteArrayView bytes, qsizetype escape)
{
    const auto unit = [&](qsizetype at) {
        const QByteArrayView digits = bytes.sliced(std::min(at, bytes.size()))
                                          .first(std::min<qsizetype>(4, bytes.size() - std::min(at, bytes.size())));
        bool isNumber = false;
        const uint value = digits.toUInt(&isNumber, 16);
        return isNumber && digits.size() == 4 ? std::optional(static_cast<char16_t>(value)) : std::nullopt;
    };
    const char kind = bytes.at(escape + 1);
    if (kind != 'u') {
        return QByteArrayView("\"\\/bfnrt").contains(kind) ? std::optional<qsizetype>(1) : std::nullopt;
    }
    const auto first = unit(escape + 2);
    if (first && !QChar::isSurrogate(*first)) {
        return 5;
    }
    const bool isPair = first && QChar::isHighSurrogate(*first) && bytes.sliced(escape + 6).startsWith("\\u");
    const auto second = isPair ? unit(escape + 8) : std::nullopt;
    return second && QChar::isLowSurrogate(*second) ? std::optional<qsizetype>(11) : std::nullopt;
}

bool isNumberOfJson(QByteArrayView digits)
{
    static const QRegularExpression number(u"\\A-?(0|[1-9][0-9]*)(\\.[0-9]+)?([eE][+-]?[0-9]+)?\\z"_s);
    return number.match(QString::fromLatin1(digits)).hasMatch();
}

/// A text that Qt reads, as one that every parser reads: what only Qt accepts is replaced by something else of the same
/// length and kind, and numbers, whose values nobody asks of it, by short ones.
QByteArray strictText(QByteArray text, std::vector<qsizetype>& laxPlaces)
{
    constexpr QByteArrayView NumberBytes("+-.0123456789Ee");
    const auto replace = [&](qsizetype offset, char by) {
        laxPlaces.push_back(offset);
        text[offset] = by;
    };
    if (text.startsWith(ByteOrderMark)) {
        text.replace(0, ByteOrderMark.size(), "   ");
    }
    bool isInText = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char byte = text.at(i);
        if (byte == '"') {
            isInText = !isInText;
        } else if (isInText && byte == '\\') {
            const std::optional<qsizetype> size = escapeSize(text, i);
            if (!size) {
                replace(i, 'x');
            }
            i += size.value_or(0);
        } else if (isInText && static_cast<unsigned char>(byte) < 0x20) {
            replace(i, ' ');
        } else if (!isInText && byte != 'e' && byte != 'E' && NumberBytes.contains(byte)) {
            qsizetype end = i;
            while (end < text.size() && NumberBytes.contains(text.at(end))) {
                ++end;
            }
            if (!isNumberOfJson(QByteArrayView(text).sliced(i, end - i))) {
                laxPlaces.push_back(i);
            }
            std::fill(text.begin() + i, text.begin() + end, ' ');
            text[i] = '1';
            i = end - 1;
        }
    }
    return text;
}

} // namespace

Document::Document(const QByteArray& bytes, const QJsonObject& root)
    : m_bytes(bytes)
    , m_root(root)
{
    const QByteArray strict = strictText(bytes, m_laxPlaces);
    rapidjson::MemoryStream stream(strict.constData(), static_cast<size_t>(strict.size()));
    rapidjson::Reader reader;
    TreeBuilder builder{strict, stream};
    constexpr unsigned Flags = rapidjson::kParseIterativeFlag;
    const bool isRead = !reader.Parse<Flags>(stream, builder).IsError();
    Q_ASSERT(isRead);
    m_nodes = isRead ? std::move(builder.nodes) : std::vector{Node{0, 0, 0, 1}};
    markShadowed();
}

Value Document::root() const
{
    return {this, 0, m_root};
}

std::vector<Value> Document::shadowedKeys() const
{
    std::vector<Value> keys;
    for (quint32 index = 0; index < m_nodes.size(); ++index) {
        if (m_nodes[index].isShadowed) {
            keys.push_back(Value(this, index, QJsonValue()));
        }
    }
    return keys;
}

QString Document::keyAt(quint32 offset) const
{
    qsizetype end = offset + 1;
    bool isPlain = true;
    while (m_bytes.at(end) != '"') {
        if (m_bytes.at(end) == '\\') {
            isPlain = false;
            ++end;
        }
        ++end;
    }
    const QByteArrayView key = QByteArrayView(m_bytes).sliced(offset + 1, end - offset - 1);
    if (isPlain) {
        // Not QString::fromUtf8(), which drops a byte-order mark that begins the key.
        return QStringDecoder(QStringDecoder::Utf8,
                              QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom)(key);
    }
    return QJsonDocument::fromJson('[' + m_bytes.mid(offset, end - offset + 1) + ']').array().at(0).toString();
}

void Document::markShadowed()
{
    // Qt keeps each key once: an object with as many keys as the text has repeats none.
    const auto mark = [this](const auto& self, const Value& value) -> void {
        if (value.isObject()) {
            qsizetype members = 0;
            for (quint32 child = value.m_index + 1; child < value.node().end; child = m_nodes[child].end) {
                ++members;
            }
            if (members != value.json().toObject().size()) {
                QHash<QString, quint32> last;
                for (quint32 child = value.m_index + 1; child < value.node().end; child = m_nodes[child].end) {
                    const QString key = keyAt(m_nodes[child].keyOffset);
                    if (last.contains(key)) {
                        m_nodes[last.value(key)].isShadowed = true;
                    }
                    last.insert(key, child);
                }
            }
        }
        value.forEach([&](const Value& child) { self(self, child); });
    };
    mark(mark, root());
}

std::optional<Value> Value::member(QLatin1StringView key) const
{
    std::optional<Value> found;
    if (isObject() && m_json.toObject().contains(key)) {
        for (quint32 child = m_index + 1; child < node().end; child = m_document->m_nodes[child].end) {
            if (!m_document->m_nodes[child].isShadowed
                && m_document->keyAt(m_document->m_nodes[child].keyOffset) == key) {
                found = Value(m_document, child, m_json.toObject().value(key));
                break;
            }
        }
    }
    return found;
}

QString Value::text(QLatin1StringView key) const
{
    return m_json.toObject().value(key).toString();
}

/// Not every key is found by QJsonObject::value(): it compares texts in UTF-8 and texts in UTF-16 in two ways, and may
/// look on the wrong side of one that lies between. And a byte-order mark that begins a key is not there for who walks.
QJsonValue Value::memberOf(const QJsonObject& object, const QString& key)
{
    auto found = object.constFind(key);
    if (found == object.constEnd()) {
        const auto isIt = [&](const QString& name) {
            return name == key || (key.startsWith(QChar::ByteOrderMark) && name == QStringView(key).sliced(1));
        };
        for (found = object.constBegin(); found != object.constEnd() && !isIt(found.key());) {
            ++found;
        }
    }
    return found == object.constEnd() ? QJsonValue(QJsonValue::Undefined) : found.value();
}

QString Document::stepTo(quint32 index) const
{
    const Node& node = m_nodes[index];
    if (index == 0) {
        return {};
    }
    if (node.keyOffset == 0) {
        return jsonPointer(qsizetype{node.place});
    }
    const QString key = keyAt(node.keyOffset);
    return jsonPointer(beginsWithMark(m_bytes, node.keyOffset) ? key.sliced(1) : key);
}

QString Document::pointerTo(quint32 index) const
{
    constexpr qsizetype LongStep = 1000;
    if (index == 0) {
        return {};
    }
    if (index == m_lastPointer.first) {
        return m_lastPointer.second;
    }
    const QString step = stepTo(index);
    QString pointer = pointerTo(m_nodes[index].parent) + step;
    if (step.size() > LongStep) {
        m_lastPointer = {index, pointer};
    }
    return pointer;
}

QString Value::pointer() const
{
    return m_document->pointerTo(m_index);
}

QString Value::step() const
{
    return m_document->stepTo(m_index);
}

QStringView firstStep(QStringView pointer)
{
    const qsizetype end = pointer.indexOf(u'/', 1);
    return end < 0 ? pointer : pointer.first(end);
}

} // namespace cluiconfig::check
