#include <config/UIConfig.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <config/Configuration.h>

namespace uiconfig {

bool readProcessFormula(const QJsonValue& section, const Reading& with)
{
    const QJsonObject groups = section.toObject();
    ProcessFormulas& formulas = with.to.processFormulas;
    for (auto it = groups.begin(); it != groups.end(); ++it) {
        // Every group that is not one of the two others is taken for the second Y axis.
        Formulas& list = it.key() == keys::XFormulas ? formulas.x
            : it.key() == keys::Y1Formulas           ? formulas.y1
                                                     : formulas.y2;
        const auto entries = QCborArray::fromJsonArray(it.value().toArray());
        for (const auto& entry : entries) {
            const JsonFields formula(entry);
            list.append({formula.text(keys::DisplayedFormula), formula.text(keys::CompiledFormula)});
        }
    }
    return true;
}

} // namespace uiconfig

bool UIConfig::readProcessFormulaConfig(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::ProcessFormula, root, error);
}

QList<std::pair<QString, QString>> UIConfig::getAxisFormulaConfigByName(const QString& axis) const
{
    return axis == uiconfig::keys::X ? m_xFormulas : axis == uiconfig::keys::Y1 ? m_y1Formulas : m_y2Formulas;
}
