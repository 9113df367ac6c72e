#pragma once

#include <config/UIConfig.h>

#include <QDialog>

class QCheckBox;
class QSpinBox;

namespace cluiedit {

/// Shows how graphs are drawn, and changes it for this and all later runs.
class RenderingDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RenderingDialog(QWidget* parent = nullptr);

    /// What the fields say.
    UIConfig::RenderingConfiguration configuration() const;

    /// Keeps what the fields say as the user's preference.
    void accept() override;

private:
    void fill(const UIConfig::RenderingConfiguration& configuration);

    QSpinBox* m_least;
    QSpinBox* m_target;
    QSpinBox* m_most;
    QCheckBox* m_hidesMarkers;
    QSpinBox* m_mostMarkers;
    QSpinBox* m_lineWidth;
};

} // namespace cluiedit
