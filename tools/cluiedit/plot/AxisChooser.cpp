#include "AxisChooser.h"

#include <datastorage/Converter.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

using cl::datastorage::Converter;
using cl::datastorage::UsualUnit;

namespace cluiedit {

AxisChooser::AxisChooser(PlotAxis axis, QGridLayout& layout, int row, QObject* parent)
    : QObject(parent)
    , m_isOptional(axis != PlotAxis::X)
    , m_arrays(new QComboBox)
    , m_unitBox(new QComboBox)
    , m_logarithmic(new QCheckBox(tr("Logarithmic")))
{
    const QString label = PerAxis<QString>(tr("&X:"), tr("Y&1:"), tr("Y&2:")).at(axis);
    const QString name = PerAxis<QString>(u"x"_s, u"y1"_s, u"y2"_s).at(axis);
    const QString unitName =
        PerAxis<QString>(tr("Unit of the X axis"), tr("Unit of the Y1 axis"), tr("Unit of the Y2 axis")).at(axis);
    const QString scaleName =
        PerAxis<QString>(tr("Logarithmic X axis"), tr("Logarithmic Y1 axis"), tr("Logarithmic Y2 axis")).at(axis);
    m_arrays->setObjectName(name);
    m_unitBox->setObjectName(name + u"Unit"_s);
    m_logarithmic->setObjectName(name + u"Logarithmic"_s);
    m_unitBox->setAccessibleName(unitName);
    m_unitBox->setToolTip(unitName);
    m_logarithmic->setAccessibleName(scaleName);
    m_logarithmic->setToolTip(scaleName);
    makeNarrow(*m_arrays);
    m_unitBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_unitBox->setMinimumContentsLength(8);

    auto* labelWidget = new QLabel(label);
    labelWidget->setBuddy(m_arrays);
    layout.addWidget(labelWidget, row, 0);
    layout.addWidget(m_arrays, row, 1);
    layout.addWidget(m_unitBox, row, 2);
    layout.addWidget(m_logarithmic, row, 3);
    connect(m_arrays, &QComboBox::activated, this, &AxisChooser::arrayChosen);
    connect(m_unitBox, &QComboBox::activated, this, [this] {
        if (m_quantity) {
            emit unitChosen();
        }
    });
    connect(m_logarithmic, &QCheckBox::clicked, this, [this](bool isLogarithmic) {
        m_wantsLogarithmic = isLogarithmic;
        emit scaleChosen();
    });
}

void AxisChooser::offer(const QStringList& names, const QString& wanted)
{
    m_arrays->clear();
    if (m_isOptional) {
        m_arrays->addItem(tr("(none)"), QString());
    }
    for (const QString& name : names) {
        m_arrays->addItem(name, name);
    }
    m_arrays->setCurrentIndex(m_arrays->findData(wanted, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (m_isOptional && m_arrays->currentIndex() < 0) {
        m_arrays->setCurrentIndex(0);
    }
    m_arrays->setToolTip(m_arrays->currentText());
}

QString AxisChooser::array() const
{
    return m_arrays->currentData().toString();
}

void AxisChooser::setQuantity(const std::optional<Quantity>& quantity, const UsualUnit& wanted)
{
    const auto nameOf = [](const auto& of) { return of ? of->array.getName() : QString(); };
    if (nameOf(quantity) != nameOf(m_quantity)) {
        m_wantsLogarithmic.reset();
    }
    m_quantity = quantity;
    m_units = quantity ? unitsOf(*quantity) : QList<UsualUnit>();
    m_unitBox->clear();
    for (const UsualUnit& unit : std::as_const(m_units)) {
        const QString symbol = Converter::toString(unit);
        m_unitBox->addItem(symbol.isEmpty() ? tr("(no unit)") : symbol);
    }
    m_unitBox->setEnabled(m_units.size() > 1);
    m_logarithmic->setEnabled(quantity.has_value());
    if (quantity) {
        const qsizetype index = m_units.indexOf(m_units.contains(wanted) ? wanted : quantity->unit);
        m_unitBox->setCurrentIndex(static_cast<int>(index));
    }
}

UsualUnit AxisChooser::unit() const
{
    return m_units.value(m_unitBox->currentIndex());
}

void AxisChooser::setDefaultScale(bool isLogarithmic)
{
    m_logarithmic->setChecked(m_wantsLogarithmic.value_or(isLogarithmic));
}

bool AxisChooser::isLogarithmic() const
{
    return m_logarithmic->isChecked();
}

void makeNarrow(QComboBox& box)
{
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int FewestLetters = 12;
    box.setMinimumContentsLength(FewestLetters);
    box.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

} // namespace cluiedit
