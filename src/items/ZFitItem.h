#pragma once

#include <clconfigui_export.h>
#include <items/AAnalysisItem.h>

#include <QList>
#include <QString>

/// The settings of an impedance fit as the user typed them: the equivalent circuit, and the viscosity of the
/// electrolyte and the rotation rate of the electrode, which stay text and are never checked.
///
/// A circuit is a formula of element names joined by "+" (series) and "/" (parallel), grouped by parentheses:
/// "R1+(R2/C2)". A value.
class CLCONFIGUI_EXPORT ZFitItem : public AAnalysisItem
{
public:
    ZFitItem();
    ZFitItem(const ZFitItem& other);
    ZFitItem& operator=(const ZFitItem& other);
    ~ZFitItem() override;

    /// In the circuit every lower-case Latin "a" becomes a Greek "α", in which fits name such elements; nothing turns
    /// it back.
    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) override;
    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const override;

    /// \{
    /// The text as it was set or read: the circuit, the viscosity of the electrolyte, the rotation rate of the
    /// electrode.
    const QString& getEquivalentCircuit() const { return m_equivalentCircuit; }
    const QString& getViscosity() { return m_viscosity; } // NOLINT(readability-make-member-function-const)
    const QString& getRotationRate() { return m_rotationRate; } // NOLINT(readability-make-member-function-const)

    void setEquivalentCircuit(const QString& circuit) { m_equivalentCircuit = circuit; }
    void setViscosity(const QString& viscosity) { m_viscosity = viscosity; }
    void setRotationRate(const QString& rotationRate) { m_rotationRate = rotationRate; }
    /// \}

    /// The element names of the circuit in order: its parts between "+", "/", "(" and ")", empty ones left out, blanks
    /// around names kept.
    QList<QString> getElements() const;

private:
    QString m_equivalentCircuit;
    QString m_viscosity;
    QString m_rotationRate;
};
