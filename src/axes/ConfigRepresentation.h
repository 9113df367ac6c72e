#pragma once

#include <clconfigui_export.h>

#include <QString>

/// A named choice of axes for a graph: which data array goes on the X axis, which on the left (Y1) and which on the
/// right Y axis (Y2).
///
/// A value that does not change after construction. A record that came from the configuration document has a name, an X
/// and at least one of Y1 and Y2.
class CLCONFIGUI_EXPORT ConfigRepresentation
{
public:
    /// Takes everything as it is; nothing is checked.
    ConfigRepresentation(QString name, QString x, QString y1, QString y2, QString category, bool isDefault);
    ConfigRepresentation(const ConfigRepresentation& other);
    ConfigRepresentation(ConfigRepresentation&& other) noexcept;
    ConfigRepresentation& operator=(const ConfigRepresentation& other);
    ConfigRepresentation& operator=(ConfigRepresentation&& other) noexcept;
    ~ConfigRepresentation();

    /// The name by which the user chooses it.
    const QString& name() const { return m_name; }
    /// Name of the data array on the X axis.
    const QString& x() const { return m_x; }
    /// Name of the data array on the left Y axis; may be empty.
    const QString& y1() const { return m_y1; }
    /// Name of the data array on the right Y axis; may be empty.
    const QString& y2() const { return m_y2; }
    /// Free text, never checked.
    const QString& category() const { return m_category; }
    /// True for the representation to use when nothing else is chosen.
    bool isDefault() const { return m_isDefault; }

private:
    QString m_name;
    QString m_x;
    QString m_y1;
    QString m_y2;
    QString m_category;
    bool m_isDefault;
};
