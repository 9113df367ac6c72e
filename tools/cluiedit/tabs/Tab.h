#pragma once

#include <cluiedit/reading/Snapshot.h>

#include <QString>
#include <QWidget>

#include <memory>

namespace cluiedit {

/// A tab of the window: one view of what the document gives.
class Tab : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows what \p snapshot gives, in place of what is shown. What has not changed is not built again, and what is
    /// chosen, sorted, filtered or scrolled stays so where it can.
    ///
    /// REQUIRES: \p snapshot loads.
    virtual void present(const std::shared_ptr<const Snapshot>& snapshot) = 0;

signals:
    /// Somebody wants to see where the value at this JSON pointer stands in the document.
    void placeWanted(const QString& pointer);
    /// Somebody wants to see the plot of \p y over \p x.
    void plotWanted(const QString& x, const QString& y);
};

} // namespace cluiedit
