#pragma once

#include <QList>
#include <QString>

namespace uiconfig {

/// Something in a document for which the application refuses the document.
struct Refusal
{
    QString sentence; ///< What the application says of it.
    QString place; ///< The JSON pointer of the value, or of the member that is missing.
};

/// Where the readers of a document tell what they refuse.
///
/// Who loads a document has them stop at the first refusal. Who wants to know everything that is wrong with it has them
/// go on where they can; the first refusal is the same either way.
class Refusals
{
public:
    /// What the readers do at the first refusal.
    enum class AtFirst { Stop, GoOn };

    /// Nothing is refused yet.
    explicit Refusals(AtFirst atFirst)
        : m_atFirst(atFirst)
    {
    }

    /// Takes a refusal, and tells the reader whether to go on. The reader that is to stop returns false at once.
    bool goOnAfter(const QString& sentence, const QString& place)
    {
        m_all.append({sentence, place});
        return m_atFirst == AtFirst::GoOn;
    }

    /// True when nothing was refused.
    bool isEmpty() const { return m_all.isEmpty(); }

    /// In the order in which the readers came across them.
    const QList<Refusal>& all() const { return m_all; }

    /// True when nothing was refused; otherwise false, with the first sentence in \p error.
    bool isEmpty(QString& error) const
    {
        if (!m_all.isEmpty()) {
            error = m_all.constFirst().sentence;
        }
        return m_all.isEmpty();
    }

private:
    AtFirst m_atFirst;
    QList<Refusal> m_all;
};

} // namespace uiconfig
