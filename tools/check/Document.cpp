#include "private/Document.h"

#include <base/JsonPointer.h>

#include <QHash>
#include <QJsonDocument>
#include <QStringList>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");
constexpr size_t MostLaxPlaces = 100;

} // namespace

/// Takes the parser's events and makes nodes of them. At an event the parser has just passed the token, but stands
/// before a bracket that opens.
struct TreeBuilder
{
    // NOLINTBEGIN(readability-identifier-naming): the parser calls them by these names
    bool Null() { return add(here() - 4); }
    bool Bool(bool value) { return add(here() - (value ? 4 : 5)); }
    bool Int(int /*value*/) { return add(numberStart()); }
    bool Uint(unsigned /*value*/) { return add(numberStart()); }
    bool Int64(int64_t /*value*/) { return add(numberStart()); }
    bool Uint64(uint64_t /*value*/) { return add(numberStart()); }
    bool Double(double /*value*/) { return add(numberStart()); }
    bool RawNumber(const char* /*text*/, rapidjson::SizeType /*length*/, bool /*copy*/) { return add(numberStart()); }
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

    quint32 numberStart() const
    {
        quint32 start = here();
        while (start > 0 && QByteArrayView("+-.0123456789Ee").contains(bytes[start - 1])) {
            --start;
        }
        return start;
    }

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

/// A byte of a document that the parser refuses although Qt accepts it, and one that may stand there instead without
/// moving anything.
struct Patch
{
    qsizetype offset = -1;
    char byte = ' ';
};

Patch patchFor(const QByteArray& bytes, const rapidjson::Reader& reader)
{
    constexpr qsizetype LongestEscape = 12; // a pair of surrogates
    const auto errorOffset = static_cast<qsizetype>(reader.GetErrorOffset());
    const auto lastBefore = [&](auto isIt) -> qsizetype {
        for (qsizetype back = 0; back <= std::min(LongestEscape, errorOffset); ++back) {
            if (errorOffset - back < bytes.size() && isIt(bytes.at(errorOffset - back))) {
                return errorOffset - back;
            }
        }
        return -1;
    };
    switch (reader.GetParseErrorCode()) {
    case rapidjson::kParseErrorNumberMissFraction:
        return {lastBefore([](char byte) { return byte == '.'; }), '0'};
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
        return {lastBefore([](char byte) { return byte == '\\'; }), 'x'};
    default:
        break; // the parser has one error for unknown escapes and raw control characters
    }
    const qsizetype offset =
        lastBefore([](char byte) { return byte == '\\' || static_cast<unsigned char>(byte) < 0x20; });
    return {offset, offset >= 0 && bytes.at(offset) == '\\' ? 'x' : ' '};
}

} // namespace

Document::Document(const QByteArray& bytes, const QJsonObject& root)
    : m_bytes(bytes)
    , m_root(root)
{
    QByteArray patched = bytes;
    if (patched.startsWith(ByteOrderMark)) {
        patched.replace(0, ByteOrderMark.size(), "   ");
    }
    for (;;) {
        rapidjson::MemoryStream stream(patched.constData(), static_cast<size_t>(patched.size()));
        rapidjson::Reader reader;
        TreeBuilder builder{patched, stream};
        constexpr unsigned Flags = rapidjson::kParseIterativeFlag;
        if (!reader.Parse<Flags>(stream, builder).IsError()) {
            m_nodes = std::move(builder.nodes);
            break;
        }
        const Patch patch = patchFor(patched, reader);
        if (patch.offset < 0 || m_laxPlaces.size() == MostLaxPlaces) {
            m_isGivenUp = true;
            m_nodes = {Node{0, 0, 0, 1}};
            break;
        }
        m_laxPlaces.push_back(patch.offset);
        patched[patch.offset] = patch.byte;
    }
    std::sort(m_laxPlaces.begin(), m_laxPlaces.end());
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
        return QString::fromUtf8(key);
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

QString Value::pointer() const
{
    QString pointer;
    for (quint32 index = m_index; index != 0; index = m_document->m_nodes[index].parent) {
        const Document::Node& node = m_document->m_nodes[index];
        pointer.prepend(node.keyOffset != 0 ? jsonPointer(m_document->keyAt(node.keyOffset))
                                            : jsonPointer(qsizetype{node.place}));
    }
    return pointer;
}

} // namespace cluiconfig::check
