#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <vector>

namespace cluiconfig::check {

/// Something that keeps a text from being JSON.
struct SyntaxError
{
    qsizetype offset; ///< where somebody has to type
    QString message;
};

/// A text that is not JSON, what is wrong with it, and the JSON that it would be without that.
///
/// It is mended as a person would who knows what documents look like: by the next bracket, the end of the line, the
/// indentation. Where that is a mere guess, there is no JSON.
class MendedText
{
public:
    /// Reads \p bytes, which are in UTF-8 or UTF-16.
    explicit MendedText(const QByteArray& bytes);

    /// The text in UTF-8, to which offsets refer.
    const QByteArray& text() const { return m_text; }
    /// In the order of the text. Empty if nothing is wrong with it, or it does not even begin like a document.
    const std::vector<SyntaxError>& errors() const { return m_errors; }
    /// Empty if the text cannot be mended.
    const QByteArray& json() const { return m_json; }
    /// Where in the text stands what has the place \p offset in the JSON.
    qsizetype originalOffset(qsizetype offset) const;
    /// Whether the value at \p offset of the JSON stands for one that is missing in the text.
    bool isMissing(qsizetype offset) const;

private:
    friend class Mender;

    /// A part of the JSON that is copied from the text, or was put in at a place of it.
    struct Piece
    {
        qsizetype offset; // in the JSON
        qsizetype original;
        bool isCopy;
    };

    QByteArray m_text;
    std::vector<SyntaxError> m_errors;
    QByteArray m_json;
    std::vector<Piece> m_pieces;
    std::vector<qsizetype> m_missing; // offsets in the JSON
};

} // namespace cluiconfig::check
