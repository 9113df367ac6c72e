#include <support/DocumentMutator.h>

#include <QJsonDocument>
#include <QList>

using namespace Qt::StringLiterals;

DocumentMutator::DocumentMutator(unsigned seed, const QStringList& names)
    : m_random(seed)
    , m_texts(names + QStringList{u"LINEAR"_s, u"a/b~c"_s})
{
}

QJsonValue DocumentMutator::mutated(const QJsonValue& value)
{
    QJsonValue result = value;
    for (int changes = 1 + m_random.below(3); changes > 0; --changes) {
        result = changed(result);
    }
    return result;
}

QByteArray DocumentMutator::mutatedText(const QJsonObject& document)
{
    const QJsonValue value = mutated(document);
    const QJsonObject object = value.isObject() ? value.toObject() : QJsonObject{{u"Version"_s, value}};
    return withRepeatedKey(QJsonDocument(object).toJson(), document.keys());
}

QJsonValue DocumentMutator::changed(const QJsonValue& value)
{
    if (const QJsonObject object = value.toObject(); !object.isEmpty() && !m_random.oneIn(10)) {
        return changedMember(object);
    }
    if (const QJsonArray array = value.toArray(); !array.isEmpty() && !m_random.oneIn(10)) {
        return changedElement(array);
    }
    if (value.isString() && m_random.oneIn(2)) {
        return changedText(value.toString());
    }
    return otherValue();
}

QJsonObject DocumentMutator::changedMember(QJsonObject object)
{
    const QString key = m_random.of(object.keys());
    const QJsonValue member = object.value(key);
    switch (m_random.below(8)) {
    case 0:
        object.remove(key);
        return object;
    case 1:
        object.remove(key);
        object.insert(changedText(key), member);
        return object;
    default:
        object.insert(key, changed(member));
        return object;
    }
}

QJsonArray DocumentMutator::changedElement(QJsonArray array)
{
    const int index = m_random.below(array.size());
    switch (m_random.below(8)) {
    case 0:
        array.removeAt(index);
        break;
    case 1:
        array.insert(m_random.below(array.size()), array.at(index));
        break;
    case 2:
        array = QJsonArray();
        break;
    default:
        array.replace(index, changed(array.at(index)));
    }
    return array;
}

QString DocumentMutator::changedText(QString text)
{
    switch (m_random.below(4)) {
    case 0:
        return {};
    case 1:
        return m_random.of(m_texts);
    case 2:
        return text.toLower();
    default:
        return text.insert(m_random.below(text.size() + 1), u'x');
    }
}

QJsonValue DocumentMutator::otherValue()
{
    const QList<QJsonValue> values = {
        QJsonValue::Null,
        0,
        29,
        -1,
        29.5,
        1e300,
        true,
        false,
        u""_s,
        u"TRUE"_s,
        u"\u0001\u00e4\n\""_s,
        QJsonArray(),
        QJsonArray{1, u"two"_s, QJsonArray{QJsonObject()}},
        QJsonObject(),
        QJsonObject{{u"Name"_s, m_texts.first()}},
        QJsonObject{{u"Name"_s, 7}, {u"X"_s, QJsonArray{3}}, {u""_s, true}},
    };
    return m_random.of(values);
}

QByteArray DocumentMutator::withRepeatedKey(QByteArray bytes, const QStringList& keys)
{
    const QList<QByteArray> values = {"0", "\"text\"", "[]", "{}", "null"};
    const QByteArray value = m_random.of(values);
    if (bytes.contains(':') && m_random.oneIn(10)) {
        const QByteArray member = '"' + m_random.of(keys).toUtf8() + "\": " + value;
        if (m_random.oneIn(2)) {
            bytes.insert(1, member + ',');
        } else {
            bytes.insert(bytes.lastIndexOf('}'), ',' + member);
        }
    }
    if (m_random.oneIn(10)) {
        const qsizetype at = bytes.indexOf("\"Name\":", m_random.below(bytes.size()));
        if (at >= 0) {
            bytes.insert(at, "\"Name\": " + value + ',');
        }
    }
    return bytes;
}
