#include "RenderingDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>
#include <limits>

namespace cluiedit {

namespace {

constexpr int FewestPoints = 100;
constexpr int MostPoints = 10'000'000;
constexpr int WidestLine = 20;

QSpinBox* numberField(int lowest, int highest, const QString& name)
{
    auto* field = new QSpinBox;
    field->setRange(lowest, highest);
    field->setGroupSeparatorShown(true);
    field->setObjectName(name);
    return field;
}

int shown(quint32 number)
{
    return static_cast<int>(std::min(number, static_cast<quint32>(std::numeric_limits<int>::max())));
}

} // namespace

using namespace Qt::StringLiterals;

RenderingDialog::RenderingDialog(QWidget* parent)
    : QDialog(parent)
    , m_least(numberField(0, MostPoints, u"least"_s))
    , m_target(numberField(FewestPoints, MostPoints, u"target"_s))
    , m_most(numberField(FewestPoints, MostPoints, u"most"_s))
    , m_hidesMarkers(new QCheckBox(tr("&Hide markers of curves with many points in view")))
    , m_mostMarkers(numberField(0, MostPoints, u"mostMarkers"_s))
    , m_lineWidth(numberField(1, WidestLine, u"lineWidth"_s))
{
    setWindowTitle(tr("Rendering of graphs"));
    m_lineWidth->setSuffix(tr(" px"));
    m_hidesMarkers->setObjectName(u"hidesMarkers"_s);
    m_least->setToolTip(tr("Up to so many points in view, each one is drawn."));
    m_target->setToolTip(tr("A curve in an exported drawing, which may be enlarged, aims at so many points."));
    m_most->setToolTip(tr("No curve is drawn with more points. The lowest and highest ones always stay."));

    auto* form = new QFormLayout(this);
    form->addRow(tr("Draw &all points up to:"), m_least);
    form->addRow(tr("&Points to aim at:"), m_target);
    form->addRow(tr("&Most points of a curve:"), m_most);
    form->addRow(m_hidesMarkers);
    form->addRow(tr("Most points with mar&kers:"), m_mostMarkers);
    form->addRow(tr("Line &width:"), m_lineWidth);
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::RestoreDefaults);
    form->addRow(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &RenderingDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &RenderingDialog::reject);
    connect(buttons->button(QDialogButtonBox::RestoreDefaults), &QPushButton::clicked, this, [this] { fill({}); });
    connect(m_hidesMarkers, &QCheckBox::toggled, m_mostMarkers, &QWidget::setEnabled);
    fill(lumo::tools::Singleton<UIConfig>::instance().getRenderingConfiguration());
}

void RenderingDialog::fill(const UIConfig::RenderingConfiguration& configuration)
{
    m_least->setValue(shown(configuration.minNumberPointsInput));
    m_target->setValue(shown(configuration.targetNumberPointsInput));
    m_most->setValue(shown(configuration.maxNumberPointsInput));
    m_hidesMarkers->setChecked(configuration.markerVisibilityThresholdEnable);
    m_mostMarkers->setValue(configuration.markerVisibilityThresholdValue);
    m_mostMarkers->setEnabled(configuration.markerVisibilityThresholdEnable);
    m_lineWidth->setValue(configuration.lineWidth);
}

UIConfig::RenderingConfiguration RenderingDialog::configuration() const
{
    UIConfig::RenderingConfiguration result;
    result.maxNumberPointsInput = static_cast<quint32>(m_most->value());
    // Of numbers that contradict each other the upper limit holds.
    result.targetNumberPointsInput = static_cast<quint32>(std::min(m_target->value(), m_most->value()));
    result.minNumberPointsInput = static_cast<quint32>(std::min(m_least->value(), m_most->value()));
    result.markerVisibilityThresholdEnable = m_hidesMarkers->isChecked();
    result.markerVisibilityThresholdValue = m_mostMarkers->value();
    result.lineWidth = m_lineWidth->value();
    return result;
}

void RenderingDialog::accept()
{
    lumo::tools::Singleton<UIConfig>::instance().setRenderingConfiguration(configuration());
    QDialog::accept();
}

} // namespace cluiedit
