#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1StringView>
#include <QString>
#include <QStringView>

#include <optional>
#include <utility>
#include <vector>

namespace cluiconfig::check {

class Value;

/// The bytes of a JSON document and where in them every value and key stands.
///
/// What the values are, Qt's parser says, as it does to the application; the places come from a second parser, which
/// also keeps the order of keys and sees those that are repeated. Of repeated keys the last counts: the earlier ones
/// are listed by shadowedKeys() and otherwise passed over.
class Document
{
public:
    /// REQUIRES: Qt reads \p bytes as \p root, and they are fewer than 4 GiB.
    Document(const QByteArray& bytes, const QJsonObject& root);

    const QByteArray& bytes() const { return m_bytes; }
    Value root() const;

    /// Offsets of what Qt accepts although JSON does not allow it: raw control characters, unknown escapes, halves of
    /// surrogate pairs, numbers such as "1." and ".5".
    const std::vector<qsizetype>& laxPlaces() const { return m_laxPlaces; }

    /// The earlier ones of repeated keys, in document order.
    std::vector<Value> shadowedKeys() const;

private:
    friend class Value;
    friend struct TreeBuilder;

    /// Values stand in document order, an object or array before what it holds.
    struct Node
    {
        quint32 offset = 0; ///< of the value's first byte
        quint32 keyOffset = 0; ///< of the key's opening quote; 0 for what has no key
        quint32 parent = 0;
        quint32 end = 0; ///< the first node that is not within this one
        quint32 place = 0; ///< among the members or elements of its parent, counted from 0
        bool isShadowed = false;
    };

    QString keyAt(quint32 offset) const;
    QString stepTo(quint32 index) const;
    QString pointerTo(quint32 index) const;
    void markShadowed();

    QByteArray m_bytes;
    QJsonObject m_root;
    std::vector<Node> m_nodes;
    std::vector<qsizetype> m_laxPlaces;
    mutable std::pair<quint32, QString> m_lastPointer; // node and pointer: findings mostly stand side by side
};

/// A value of a document and its place: a small object, valid as long as the document lives.
class Value
{
public:
    const QJsonValue& json() const { return m_json; }
    bool isObject() const { return m_json.isObject(); }
    bool isArray() const { return m_json.isArray(); }

    /// The text, empty for what is no string: as the application reads texts.
    QString text() const { return m_json.toString(); }

    /// Offset of the first byte of the value, or of its key.
    qsizetype offset() const { return node().offset; }
    qsizetype keyOffset() const { return node().keyOffset; }
    bool hasKey() const { return node().keyOffset != 0; }
    QString key() const { return hasKey() ? m_document->keyAt(node().keyOffset) : QString(); }

    bool isRoot() const { return m_index == 0; }

    /// The member under \p key; nothing for what is no object or lacks the key.
    std::optional<Value> member(QLatin1StringView key) const;
    /// The text of that member, empty if there is none.
    QString text(QLatin1StringView key) const;

    /// The JSON pointer of the value, and the last step of it: "/Title". Both are empty for the root.
    QString pointer() const;
    QString step() const;

    /// Calls \p visit with every member of an object, in document order, or every element of an array.
    template <typename Visit>
    void forEach(Visit visit) const
    {
        const QJsonObject object = m_json.toObject();
        const QJsonArray array = m_json.toArray();
        qsizetype index = 0;
        for (quint32 child = m_index + 1; child < node().end; child = m_document->m_nodes[child].end) {
            const Document::Node& node = m_document->m_nodes[child];
            if (node.keyOffset == 0) {
                visit(Value(m_document, child, array.at(index++)));
            } else if (!node.isShadowed) {
                visit(Value(m_document, child, memberOf(object, m_document->keyAt(node.keyOffset))));
            }
        }
    }

private:
    friend class Document;

    Value(const Document* document, quint32 index, QJsonValue json)
        : m_document(document)
        , m_index(index)
        , m_json(std::move(json))
    {
    }
    const Document::Node& node() const { return m_document->m_nodes[m_index]; }
    static QJsonValue memberOf(const QJsonObject& object, const QString& key);

    const Document* m_document;
    quint32 m_index;
    QJsonValue m_json;
};

/// The first step of \p pointer, as Value::step() gives it. REQUIRES: the pointer is not empty.
QStringView firstStep(QStringView pointer);

} // namespace cluiconfig::check
