#include <config/UIConfig.h>

#include <axes/private/JsonFields.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

constexpr auto SectionKey = "Process Formula"_L1;
constexpr auto XGroup = "X Formulas"_L1;
constexpr auto Y1Group = "Y1 Formulas"_L1;
constexpr auto DisplayedKey = "Displayed Formula"_L1;
constexpr auto CompiledKey = "Compiled Formula"_L1;

constexpr auto XAxis = "X"_L1;
constexpr auto Y1Axis = "Y1"_L1;

constexpr auto SectionMissing = "Missing Process Formula configuration node"_L1;

} // namespace

bool UIConfig::readProcessFormulaConfig(const QJsonObject& root, QString& error)
{
    const QJsonValue section = root.value(SectionKey);
    if (!section.isObject()) {
        error = SectionMissing;
        return false;
    }
    const QJsonObject groups = section.toObject();
    for (auto it = groups.begin(); it != groups.end(); ++it) {
        // Every group that is not one of the two others is taken for the second Y axis.
        auto& formulas = it.key() == XGroup ? m_xFormulas : it.key() == Y1Group ? m_y1Formulas : m_y2Formulas;
        const auto entries = QCborArray::fromJsonArray(it.value().toArray());
        for (const auto& entry : entries) {
            const JsonFields formula(entry);
            formulas.append({formula.text(DisplayedKey), formula.text(CompiledKey)});
        }
    }
    return true;
}

QList<std::pair<QString, QString>> UIConfig::getAxisFormulaConfigByName(const QString& axis) const
{
    return axis == XAxis ? m_xFormulas : axis == Y1Axis ? m_y1Formulas : m_y2Formulas;
}
