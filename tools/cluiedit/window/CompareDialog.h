#pragma once

#include <QByteArray>
#include <QDialog>
#include <QtGlobal>

namespace cluiedit {

/// Where two texts differ: behind the lines that both begin with, and before those that both end with.
struct LineDifference
{
    qsizetype first = 0; ///< the first line that differs, counted from 0
    qsizetype endHere = 0; ///< behind the last one that differs
    qsizetype endThere = 0;

    bool isEmpty() const { return endHere == first && endThere == first; }
};
LineDifference differenceOf(const QByteArray& here, const QByteArray& there);

/// Shows two texts side by side, what differs marked and in view.
class CompareDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param here the text of the editor
    /// \param there the text of the file
    CompareDialog(const QByteArray& here, const QByteArray& there, QWidget* parent = nullptr);
};

} // namespace cluiedit
