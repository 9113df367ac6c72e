#pragma once

#include <clconfigui_export.h>

#include <QList>
#include <QString>

/// One entry that a recipe may contain: its title for the user, the command group it came from, and the command's
/// parameters. A value.
///
/// Nothing tells how many parameters an entry holds: the caller knows from the type how many it needs.
class CLCONFIGUI_EXPORT RecipeConfigItem
{
public:
    RecipeConfigItem();
    RecipeConfigItem(const RecipeConfigItem& other);
    RecipeConfigItem& operator=(const RecipeConfigItem& other);
    virtual ~RecipeConfigItem();

    /// Appends at the end, also a text that is empty or there already.
    void addParameter(const QString& parameter) { m_parameters.append(parameter); }

    /// A copy of the parameter at \p index, counted from 0.
    ///
    /// REQUIRES: \p index is not negative and below the number of parameters. Anything else ends the program with a
    /// message that names the index and the number, in release builds too.
    QString getParameter(int index) const;

    /// \{
    /// The name of the command group, one of UIConfig's command names.
    const QString& getType() const { return m_type; }
    void setType(const QString& type) { m_type = type; }
    /// \}

    /// \{
    /// The title for the user; may be empty.
    const QString& getUITitle() const { return m_uiTitle; }
    void setUiTitle(const QString& title) { m_uiTitle = title; }
    /// \}

private:
    QString m_uiTitle;
    QString m_type;
    QList<QString> m_parameters;
};
