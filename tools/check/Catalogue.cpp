#include "private/Catalogue.h"

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

Advice Catalogue::unknownName(const QString& name, const QString& effect) const
{
    const Advice advice = nameMeantBy(name);
    return {u"The catalogue has no array %1: %2.%3"_s.arg(quoted(name), effect, advice.text), advice.instead};
}

Advice Catalogue::nameMeantBy(const QString& name) const
{
    const QString machine = m_namesByMachineName.value(name);
    return machine.isEmpty() ? didYouMean(name, m_names)
                             : Advice(u" That is a machine name: did you mean %1?"_s.arg(quoted(machine)), machine);
}

Advice Catalogue::unknownNameIn(const QString& category, const QString& name, const QString& effect) const
{
    Advice advice = didYouMean(name, m_namesByCategory.value(category));
    const QStringList others = categoriesOf(name);
    if (!others.isEmpty()) {
        advice.text.prepend(u" There is one in "_s + listed(others) + u'.');
    }
    advice.text = u"The category %1 has no array %2: %3.%4"_s.arg(quoted(category), quoted(name), effect, advice.text);
    return advice;
}

Advice Catalogue::unknownCategory(const QString& category, const QString& effect) const
{
    Advice advice = didYouMean(category, m_categories);
    if (advice.text.isEmpty()) {
        advice.text = u" The categories are %1."_s.arg(m_categories.join(u", "_s));
    }
    advice.text = u"The catalogue has no category %1: %2.%3"_s.arg(quoted(category), effect, advice.text);
    return advice;
}

} // namespace cluiconfig::check
