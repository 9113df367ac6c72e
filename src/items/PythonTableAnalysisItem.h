#pragma once

#include <clconfigui_export.h>
#include <items/PythonAnalysisItem.h>

#include <QList>
#include <QString>

/// A scripted analysis that fills a table: adds the names of its output columns.
class CLCONFIGUI_EXPORT PythonTableAnalysisItem : public PythonAnalysisItem
{
public:
    PythonTableAnalysisItem();
    PythonTableAnalysisItem(const PythonTableAnalysisItem& other);
    PythonTableAnalysisItem& operator=(const PythonTableAnalysisItem& other);
    ~PythonTableAnalysisItem() override;

    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) override;
    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const override;

    /// The names of the output columns, in the order in which they were added.
    const QList<QString>& getOutputColumnsList() const { return m_outputColumns; }

    /// Appends at the end, also a name that is empty or there already.
    void addOutputColumnToList(const QString& name) { m_outputColumns.append(name); }

private:
    QList<QString> m_outputColumns;
};
