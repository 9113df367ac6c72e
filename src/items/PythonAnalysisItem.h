#pragma once

#include <clconfigui_export.h>
#include <items/AAnalysisItem.h>

#include <QList>
#include <QString>

/// A scripted analysis: which one it is, its input columns, and the paths of the device-under-test runs that it works
/// on. A value; running the analysis is the application's business.
class CLCONFIGUI_EXPORT PythonAnalysisItem : public AAnalysisItem
{
public:
    PythonAnalysisItem();
    PythonAnalysisItem(const PythonAnalysisItem& other);
    PythonAnalysisItem& operator=(const PythonAnalysisItem& other);
    ~PythonAnalysisItem() override;

    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) override;
    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const override;

    /// \{
    /// Which analysis it is, its title and category, its input columns and the paths of its runs, these in the order in
    /// which they were added. Nothing is checked.
    const QString& getId() const { return m_id; }
    const QString& getTitle() const { return m_title; }
    const QString& getCategory() const { return m_category; }
    const QList<QString>& getInputColumnsList() const { return m_inputColumns; }
    const QList<QString>& getDutRunPathsList() const { return m_dutRunPaths; }

    void setId(const QString& id) { m_id = id; }
    void setTitle(const QString& title) { m_title = title; }
    void setCategory(const QString& category) { m_category = category; }
    /// \}

    /// Appends at the end, also a name that is empty or there already.
    void addInputColToList(const QString& name) { m_inputColumns.append(name); }

    /// Appends at the end, also a path that is empty or there already.
    void addDutRunPathToList(const QString& path) { m_dutRunPaths.append(path); }

private:
    QString m_id;
    QString m_title;
    QString m_category;
    QList<QString> m_inputColumns;
    QList<QString> m_dutRunPaths;
};
