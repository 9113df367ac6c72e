#pragma once

#include <cluiedit/reading/Snapshot.h>

#include <QComboBox>

#include <optional>

namespace cluiedit {

/// The representations of a document to choose from. Those without axes are there and tell why they cannot be chosen.
class RepresentationChooser : public QComboBox
{
    Q_OBJECT

public:
    explicit RepresentationChooser(QWidget* parent = nullptr);

    void offer(const Snapshot& snapshot);
    /// Shows that the representation of that \p number is seen; for none, that this is somebody's own choice.
    void mark(std::optional<qsizetype> number);

signals:
    /// Somebody chose the representation of that \p number.
    void chosen(qsizetype number);
};

} // namespace cluiedit
