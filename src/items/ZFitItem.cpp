#include <items/ZFitItem.h>

#include <base/JsonFields.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr auto CircuitKey = "equivalentCircuit"_L1;
constexpr auto ViscosityKey = "viscosity"_L1;
constexpr auto RotationRateKey = "rotationRate"_L1;

constexpr QChar GreekAlpha(u'\u03B1');

} // namespace

ZFitItem::ZFitItem() = default;
ZFitItem::ZFitItem(const ZFitItem& other) = default;
ZFitItem& ZFitItem::operator=(const ZFitItem& other) = default;
ZFitItem::~ZFitItem() = default;

bool ZFitItem::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    const JsonFields fields(object);
    m_equivalentCircuit = fields.text(CircuitKey).replace(u'a', GreekAlpha);
    m_viscosity = fields.text(ViscosityKey);
    m_rotationRate = fields.text(RotationRateKey);
    return true;
}

bool ZFitItem::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    object.insert(CircuitKey, m_equivalentCircuit);
    object.insert(ViscosityKey, m_viscosity);
    object.insert(RotationRateKey, m_rotationRate);
    return true;
}

QList<QString> ZFitItem::getElements() const
{
    static const QRegularExpression separator(u"[+/()]"_s);
    return m_equivalentCircuit.split(separator, Qt::SkipEmptyParts);
}
