#include "private/Catalogue.h"

#include "Suggest.h"

#include <batterydata/ClConfigDataArrayManager.h>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

Catalogue::Catalogue(const cl::batterydata::ClConfigDataArrayManager& arrays)
    : m_arrays(arrays)
    , m_categories(arrays.getCategories())
{
    for (const auto* array : arrays.getAll()) {
        const QString& name = array->getName();
        m_namesByCategory[array->getCategory()].append(name);
        QStringList& categories = m_categoriesByName[name];
        if (categories.isEmpty()) {
            m_names.append(name);
        }
        categories.append(array->getCategory());
        if (!array->getMachineName().isEmpty()) {
            m_namesByMachineName.insert(array->getMachineName(), name);
        }
    }
}

QString Catalogue::unknownName(const QString& name, const QString& effect) const
{
    return u"The catalogue has no array %1: %2.%3"_s.arg(quoted(name), effect, nameMeantBy(name));
}

QString Catalogue::nameMeantBy(const QString& name) const
{
    const QString machine = m_namesByMachineName.value(name);
    return machine.isEmpty() ? didYouMean(name, m_names)
                             : u" That is a machine name: did you mean %1?"_s.arg(quoted(machine));
}

QString Catalogue::unknownNameIn(const QString& category, const QString& name, const QString& effect) const
{
    QString advice = didYouMean(name, m_namesByCategory.value(category));
    const QStringList others = categoriesOf(name);
    if (!others.isEmpty()) {
        advice.prepend(u" There is one in "_s + listed(others) + u'.');
    }
    return u"The category %1 has no array %2: %3.%4"_s.arg(quoted(category), quoted(name), effect, advice);
}

QString Catalogue::unknownCategory(const QString& category, const QString& effect) const
{
    QString advice = didYouMean(category, m_categories);
    if (advice.isEmpty()) {
        advice = u" The categories are %1."_s.arg(m_categories.join(u", "_s));
    }
    return u"The catalogue has no category %1: %2.%3"_s.arg(quoted(category), effect, advice);
}

} // namespace cluiconfig::check
