#pragma once

#include <axes/AxesCombination.h>
#include <clconfigui_export.h>
#include <items/AAnalysisItem.h>

#include <QString>

/// One curve of a Ragone plot (energy against power): an X and a Y data array of one category, and a type.
class CLCONFIGUI_EXPORT RagonePlotChildItem : public AAnalysisItem
{
public:
    RagonePlotChildItem();
    RagonePlotChildItem(const RagonePlotChildItem& other);
    RagonePlotChildItem& operator=(const RagonePlotChildItem& other);
    ~RagonePlotChildItem() override;

    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) override;
    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const override;

    /// \{
    /// The title, the category of the two data arrays, the name of each of them, and the kind of curve.
    /// Nothing is checked.
    const QString& getTitle() const { return m_title; }
    const QString& getCategory() const { return m_category; }
    const QString& getStreamX() const { return m_streamX; }
    const QString& getStreamY() const { return m_streamY; }
    /// The kind of curve as the configuration names it; not interpreted here.
    const QString& getType() const { return m_type; }

    void setTitle(const QString& title) { m_title = title; }
    void setCategory(const QString& category) { m_category = category; }
    void setStreamX(const QString& name) { m_streamX = name; }
    void setStreamY(const QString& name) { m_streamY = name; }
    void setType(const QString& type) { m_type = type; }
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
};
