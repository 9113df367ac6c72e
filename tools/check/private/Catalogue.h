#pragma once

#include <check/Suggest.h>

#include <QHash>
#include <QString>
#include <QStringList>

namespace cl::batterydata {
class ClConfigDataArrayManager;
}

namespace cluiconfig::check {

/// The names that documents may use for data arrays, and what to say of those that they may not.
class Catalogue
{
public:
    explicit Catalogue(const cl::batterydata::ClConfigDataArrayManager& arrays);

    const cl::batterydata::ClConfigDataArrayManager& arrays() const { return m_arrays; }

    bool hasCategory(const QString& category) const { return m_namesByCategory.contains(category); }
    bool has(const QString& name) const { return m_categoriesByName.contains(name); }
    bool has(const QString& name, const QString& category) const { return categoriesOf(name).contains(category); }
    /// The categories that hold an array of that name, in catalogue order.
    QStringList categoriesOf(const QString& name) const { return m_categoriesByName.value(name); }

    /// What to say of a name that the catalogue lacks, of one that a category lacks, and of a category that the
    /// catalogue lacks. \p effect says what happens then.
    Advice unknownName(const QString& name, const QString& effect) const;
    Advice unknownNameIn(const QString& category, const QString& name, const QString& effect) const;
    Advice unknownCategory(const QString& category, const QString& effect) const;

private:
    Advice nameMeantBy(const QString& name) const;

    const cl::batterydata::ClConfigDataArrayManager& m_arrays;
    QStringList m_categories;
    QStringList m_names;
    QHash<QString, QStringList> m_namesByCategory;
    QHash<QString, QStringList> m_categoriesByName;
    QHash<QString, QString> m_namesByMachineName;
};

} // namespace cluiconfig::check
