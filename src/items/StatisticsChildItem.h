#pragma once

#include <axes/AxesCombination.h>
#include <clconfigui_export.h>
#include <items/AAnalysisItem.h>

#include <QString>

/// One curve of a statistics graph: an X and a Y data array of one category, a type, and how the statistics are drawn.
///
/// The configuration document says nothing about the two flags: they are false until they are set or read from a
/// project.
class CLCONFIGUI_EXPORT StatisticsChildItem : public AAnalysisItem
{
public:
    StatisticsChildItem();
    StatisticsChildItem(const StatisticsChildItem& other);
    StatisticsChildItem& operator=(const StatisticsChildItem& other);
    ~StatisticsChildItem() override;

    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) override;
    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const override;

    /// \{
    /// The title, the category of the two data arrays, the name of each of them, the kind of curve, and whether the
    /// statistics are drawn as an envelope and as error bars. Nothing is checked.
    const QString& getTitle() const { return m_title; }
    const QString& getCategory() const { return m_category; }
    const QString& getStreamX() const { return m_streamX; }
    const QString& getStreamY() const { return m_streamY; }
    /// The kind of curve as the configuration names it; not interpreted here.
    const QString& getType() const { return m_type; }
    bool getIsStatisticsEnvelope() const { return m_isStatisticsEnvelope; }
    bool getIsStatisticsErrorBars() const { return m_isStatisticsErrorBars; }

    void setTitle(const QString& title) { m_title = title; }
    void setCategory(const QString& category) { m_category = category; }
    void setStreamX(const QString& name) { m_streamX = name; }
    void setStreamY(const QString& name) { m_streamY = name; }
    void setType(const QString& type) { m_type = type; }
    void setIsStatisticsEnvelope(bool envelope) { m_isStatisticsEnvelope = envelope; }
    void setIsStatisticsErrorBars(bool errorBars) { m_isStatisticsErrorBars = errorBars; }
    /// \}

    /// The linear, not orthonormal combination of the curve's two arrays; an invalid one when the catalogue lacks
    /// either.
    AxesCombination getAxesCombination() const;

private:
    QString m_title;
    QString m_category;
    QString m_streamX;
    QString m_streamY;
    QString m_type;
    bool m_isStatisticsErrorBars = false;
    bool m_isStatisticsEnvelope = false;
};
