#pragma once

#include <axes/AxesCombination.h>
#include <clconfigui_export.h>
#include <items/AAnalysisItem.h>

#include <QString>

/// The dQ/dU (differential capacity) graph: its X and its Y data array, both of one category. A value.
class CLCONFIGUI_EXPORT DQdUAnalysisItem : public AAnalysisItem
{
public:
    DQdUAnalysisItem();
    DQdUAnalysisItem(const DQdUAnalysisItem& other);
    DQdUAnalysisItem& operator=(const DQdUAnalysisItem& other);
    ~DQdUAnalysisItem() override;

    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) override;
    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const override;

    /// \{
    /// The title, the category of the two data arrays, and the name of each of them. Nothing is checked.
    const QString& getTitle() const { return m_title; }
    const QString& getCategory() const { return m_category; }
    const QString& getStreamX() const { return m_streamX; }
    const QString& getStreamY1() const { return m_streamY1; }

    void setTitle(const QString& title) { m_title = title; }
    void setCategory(const QString& category) { m_category = category; }
    void setStreamX(const QString& name) { m_streamX = name; }
    void setStreamY1(const QString& name) { m_streamY1 = name; }
    /// \}

    /// The linear, not orthonormal combination of the two arrays; an invalid one when the catalogue lacks either.
    AxesCombination getAxesCombination() const;

    /// Replaces all four fields by those of the object "Graph" of the configuration document.
    void readGraphItem(const QJsonObject& entry);

private:
    QString m_title;
    QString m_category;
    QString m_streamX;
    QString m_streamY1;
};
