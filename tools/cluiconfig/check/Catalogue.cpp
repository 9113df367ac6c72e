#include "Catalogue.h"

#include "Suggest.h"

#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/Singleton.h>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

Catalogue::Catalogue()
{
    auto& collection = lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance();
    const auto& catalogue = collection.getDataConfiguration();
    m_categories = catalogue.getCategories();
    for (const auto* array : catalogue.getAll()) {
        const QString& name = array->getName();
        m_namesByCategory[array->getCategory()].append(name);
        QStringList& categories = m_categoriesByName[name];
        if (categories.isEmpty()) {
            m_names.append(name);
        }
        categories.append(array->getCategory());
    }
}

void Catalogue::checkName(Findings& findings, const Value& place, const QString& name, Severity severity,
                          const QString& effect) const
{
    if (!m_categoriesByName.contains(name)) {
        findings.add(Rule::UnknownArray, severity, place, [&] {
            return u"The catalogue has no array %1: %2.%3"_s.arg(quoted(name), effect, didYouMean(name, m_names));
        });
    }
}

void Catalogue::checkNameIn(const QString& category, Findings& findings, const Value& place, const QString& name,
                            Severity severity, const QString& effect, qint64 step) const
{
    if (has(name, category)) {
        return;
    }
    const auto message = [&] {
        QString advice = didYouMean(name, m_namesByCategory.value(category));
        const QStringList others = categoriesOf(name);
        if (!others.isEmpty()) {
            QStringList quotedCategories;
            for (const QString& other : others) {
                quotedCategories.append(quoted(other));
            }
            advice.prepend(u" There is one in "_s + quotedCategories.join(u", "_s) + u'.');
        }
        return u"The category %1 has no array %2: %3.%4"_s.arg(quoted(category), quoted(name), effect, advice);
    };
    findings.add(Rule::UnknownArray, severity, place, message, {}, step);
}

QString Catalogue::unknownCategoryMessage(const QString& category, const QString& effect) const
{
    QString advice = didYouMean(category, m_categories);
    if (advice.isEmpty()) {
        advice = u" The categories are %1."_s.arg(m_categories.join(u", "_s));
    }
    return u"The catalogue has no category %1: %2.%3"_s.arg(quoted(category), effect, advice);
}

} // namespace cluiconfig::check
