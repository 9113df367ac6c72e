#include "JsonPlace.h"

#include "JsonScanner.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <iterator>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

/// Walks through a text up to the end of the object around a place.
class PlaceFinder
{
public:
    PlaceFinder(QByteArrayView text, qsizetype offset)
        : m_text(text)
        , m_offset(std::clamp<qsizetype>(offset, 0, text.size()))
        , m_scanner(text)
    {
    }

    JsonPlace find()
    {
        while (!m_isDone && m_scanner.next()) {
            const bool isToken = m_scanner.sign() == 0;
            const qsizetype begin = m_scanner.token().begin;
            if (!m_isFound && (begin > m_offset || (!isToken && begin == m_offset))) {
                note(JsonToken(), isKeyExpected());
            }
            if (isToken) {
                takeToken(m_scanner.token());
            } else {
                takeSign(m_scanner.sign());
            }
        }
        if (!m_isFound) {
            note(JsonToken(), isKeyExpected());
        }
        if (!m_isDone) {
            collect();
        }
        return std::move(m_place);
    }

private:
    struct Member
    {
        JsonToken key;
        JsonToken string; // one that stands under the key; none to tell of the key itself
    };

    /// An object or a list that is open.
    struct Frame
    {
        bool isObject = false;
        bool isBehindColon = false;
        JsonToken key{}; // the last one
        qsizetype count = 0; // of the values so far
        std::vector<Member> members{};
    };

    QString textOf(const JsonToken& token) const
    {
        return token.exists() ? tokenText(m_text.sliced(token.begin, token.end - token.begin)) : QString();
    }

    bool isKeyExpected() const
    {
        return !m_frames.empty() && m_frames.back().isObject && !m_frames.back().isBehindColon;
    }

    /// Whether the place is within \p token or beside it. Of two that touch, the one that begins there counts.
    bool isPlace(const JsonToken& token) const
    {
        return token.begin <= m_offset
            && (m_offset < token.end || (m_offset == token.end && !m_text.sliced(m_offset).startsWith('"')));
    }

    void takeToken(const JsonToken& token)
    {
        const bool isKey = isKeyExpected()
            || (!m_frames.empty() && m_frames.back().isObject && token.isString && m_scanner.isBeforeColon());
        if (!m_isFound && isPlace(token)) {
            note(token, isKey);
        }
        if (m_frames.empty()) {
            return;
        }
        Frame& frame = m_frames.back();
        if (isKey) {
            frame.key = token;
            frame.members.push_back({token, JsonToken()});
        } else {
            if (isKeyOfPlace(frame)) {
                m_place.value = token;
            }
            Frame& owner = frame.isObject || m_frames.size() < 2 ? frame : *(m_frames.end() - 2);
            if (token.isString && owner.isObject) {
                owner.members.push_back({owner.key, token});
            }
            ++frame.count;
        }
        frame.isBehindColon = false;
    }

    void takeSign(char sign)
    {
        if (sign == '{' || sign == '[') {
            m_frames.push_back({sign == '{'});
            ++openOf(sign == '{');
        } else if (sign == '}' || sign == ']') {
            close(sign == '}');
        } else if (!m_frames.empty()) {
            Frame& frame = m_frames.back();
            frame.isBehindColon = sign == ':' && frame.isObject;
            m_place.hasColon = m_place.hasColon || (frame.isBehindColon && isKeyOfPlace(frame));
        }
    }

    /// How many objects, or lists, are open.
    qsizetype& openOf(bool isObject) { return isObject ? m_openObjects : m_openLists; }

    /// Closes the innermost object or list, and what was opened in it and not closed. What was never opened is passed
    /// over.
    void close(bool isObject)
    {
        if (openOf(isObject) == 0) {
            return;
        }
        const auto open = std::find_if(m_frames.rbegin(), m_frames.rend(),
                                       [&](const Frame& frame) { return frame.isObject == isObject; });
        const auto first = std::prev(open.base());
        if (m_isFound && std::distance(m_frames.begin(), first) < m_depth) {
            collect();
            return;
        }
        for (; m_frames.end() != first; m_frames.pop_back()) {
            --openOf(m_frames.back().isObject);
        }
        if (!m_frames.empty()) {
            ++m_frames.back().count;
            m_frames.back().isBehindColon = false;
        }
    }

    /// Whether the place is the last key of \p frame.
    bool isKeyOfPlace(const Frame& frame) const
    {
        return m_isFound && m_place.isKey && m_place.token.exists() && frame.isObject
            && frame.key.begin == m_place.token.begin;
    }

    void note(const JsonToken& token, bool isKey)
    {
        m_isFound = true;
        m_place.isKey = isKey;
        m_place.token = token;
        m_place.text = textOf(token);
        for (std::size_t i = 0; i < m_frames.size(); ++i) {
            const Frame& frame = m_frames[i];
            m_depth = frame.isObject ? static_cast<qsizetype>(i) + 1 : m_depth;
            if (!frame.isObject) {
                m_place.path.append({QString(), frame.count});
            } else if (i + 1 < m_frames.size() || !isKey) {
                m_place.path.append({textOf(frame.key)});
            }
        }
        m_isDone = m_depth == 0;
    }

    /// Takes over what the object around the place has, which is complete.
    void collect()
    {
        m_isDone = true;
        if (m_depth == 0) {
            return;
        }
        for (const Member& member : m_frames[static_cast<std::size_t>(m_depth) - 1].members) {
            const JsonToken& itself = member.string.exists() && !m_place.isKey ? member.string : member.key;
            if (m_place.token.exists() && itself.begin == m_place.token.begin) {
                continue;
            }
            if (member.string.exists()) {
                m_place.texts.append({textOf(member.key), textOf(member.string)});
            } else {
                m_place.keys.append(textOf(member.key));
            }
        }
    }

    QByteArrayView m_text;
    qsizetype m_offset;
    JsonScanner m_scanner;
    std::vector<Frame> m_frames;
    JsonPlace m_place;
    qsizetype m_openObjects = 0;
    qsizetype m_openLists = 0;
    qsizetype m_depth = 0; // of the nearest object around the place; 0 where there is none
    bool m_isFound = false;
    bool m_isDone = false;
};

} // namespace

JsonPlace placeAt(QByteArrayView text, qsizetype offset)
{
    return PlaceFinder(text, offset).find();
}

QString tokenText(QByteArrayView token)
{
    if (!token.startsWith('"')) {
        return QString::fromUtf8(token);
    }
    const bool isClosed = token.size() > 1 && token.endsWith('"');
    QByteArrayView inner = token.sliced(1);
    if (isClosed) {
        inner.chop(1);
    }
    if (!inner.contains('\\')) {
        return QString::fromUtf8(inner);
    }
    const QJsonDocument read = QJsonDocument::fromJson("[\"" + inner.toByteArray() + "\"]");
    return read.isArray() ? read.array().first().toString() : QString::fromUtf8(inner);
}

QByteArray jsonString(const QString& text)
{
    return QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact).chopped(1).sliced(1);
}

} // namespace cluiedit
