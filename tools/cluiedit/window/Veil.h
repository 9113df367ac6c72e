#pragma once

#include <QWidget>

namespace cluiedit {

/// Lies over a widget and lets it show through pale, as something that is not up to date. The widget can be used as
/// before.
class Veil : public QWidget
{
    Q_OBJECT

public:
    /// Hidden at first. \p veiled becomes the parent.
    explicit Veil(QWidget* veiled);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
};

} // namespace cluiedit
