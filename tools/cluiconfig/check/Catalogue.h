#pragma once

#include "Findings.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace cluiconfig::check {

/// The names that documents may use for data arrays: those of the process's catalogue.
class Catalogue
{
public:
    Catalogue();

    const QStringList& categories() const { return m_categories; }
    bool hasCategory(const QString& category) const { return m_namesByCategory.contains(category); }
    bool has(const QString& name, const QString& category) const
    {
        return m_categoriesByName.value(name).contains(category);
    }
    /// The categories that hold an array of that name, in catalogue order.
    QStringList categoriesOf(const QString& name) const { return m_categoriesByName.value(name); }

    /// Adds a finding unless the array \p name, whose name stands at \p place, exists in any category. \p effect says
    /// what happens then.
    void checkName(Findings& findings, const Value& place, const QString& name, Severity severity,
                   const QString& effect) const;

    /// The same for an array of one category.
    /// REQUIRES: the catalogue has the category.
    void checkNameIn(const QString& category, Findings& findings, const Value& place, const QString& name,
                     Severity severity, const QString& effect, qint64 step = 0) const;

    /// What to say of a category that the catalogue lacks.
    QString unknownCategoryMessage(const QString& category, const QString& effect) const;

private:
    QStringList m_categories;
    QStringList m_names;
    QHash<QString, QStringList> m_namesByCategory;
    QHash<QString, QStringList> m_categoriesByName;
};

} // namespace cluiconfig::check
