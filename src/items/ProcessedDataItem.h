#pragma once

#include <axes/AxesCombination.h>
#include <clconfigui_export.h>
#include <items/AAnalysisItem.h>

#include <QList>
#include <QString>

/// A processed-data graph: up to three data arrays of one category, and the processed arrays offered for its Y axis.
///
/// A value; the getters return copies.
class CLCONFIGUI_EXPORT ProcessedDataItem : public AAnalysisItem
{
public:
    ProcessedDataItem();
    ProcessedDataItem(const ProcessedDataItem& other);
    ProcessedDataItem& operator=(const ProcessedDataItem& other);
    ~ProcessedDataItem() override;

    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) override;
    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const override;

    /// \{
    /// The title, the category of the data arrays, the name of the one on each axis, and the names of the processed
    /// ones that are offered. Nothing is checked; what is not used is empty.
    QString getTitle() const { return m_title; }
    QString getCategory() const { return m_category; }
    QString getStreamX() const { return m_streamX; }
    QString getStreamY1() const { return m_streamY1; }
    QString getStreamY2() const { return m_streamY2; }
    QList<QString> getProcessedStreamsY() const { return m_processedStreamsY; }

    void setTitle(const QString& title) { m_title = title; }
    void setCategory(const QString& category) { m_category = category; }
    void setStreamX(const QString& name) { m_streamX = name; }
    void setStreamY1(const QString& name) { m_streamY1 = name; }
    void setStreamY2(const QString& name) { m_streamY2 = name; }
    void setProcessedStreamsY(const QList<QString>& names) { m_processedStreamsY = names; }
    /// \}

    /// The linear, not orthonormal combination of the X and the first Y array; an invalid one when the catalogue lacks
    /// either. The second Y array and the processed ones take no part.
    AxesCombination getAxesCombination() const;

    /// Replaces all six fields by those of one entry of the configuration document.
    void readGraphItem(const QJsonObject& entry);

private:
    QString m_title;
    QString m_category;
    QString m_streamX;
    QString m_streamY1;
    QString m_streamY2;
    QList<QString> m_processedStreamsY;
};
