#pragma once

#include <QFrame>
#include <QList>
#include <QString>
#include <QWidget>

#include <functional>
#include <map>

class QVBoxLayout;

namespace cluiedit {

/// Something to say that waits for an answer but keeps nobody from working: a line of text with buttons.
struct Notice
{
    struct Answer
    {
        QString label; ///< with a mnemonic
        std::function<void()> action;
    };

    QString text;
    QList<Answer> answers; ///< Each of them takes the notice away; a button to close it is always there.
    bool isWarning = true;
};

/// The notices above the document, one of each kind.
class Notices : public QWidget
{
    Q_OBJECT

public:
    explicit Notices(QWidget* parent = nullptr);

    /// Shows \p notice instead of an earlier one of the kind \p kind.
    void show(const QString& kind, const Notice& notice);
    void hide(const QString& kind);

    /// The text of the notice of that kind, empty when there is none.
    QString text(const QString& kind) const;

private:
    QVBoxLayout* m_layout;
    std::map<QString, QFrame*> m_frames;
};

} // namespace cluiedit
