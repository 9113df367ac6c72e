#pragma once

#include <clconfigui_export.h>
#include <items/PythonAnalysisItem.h>

#include <QString>

/// A scripted analysis that draws a graph: adds the streams of its axes, each of which may be left empty.
class CLCONFIGUI_EXPORT PythonGraphAnalysisItem : public PythonAnalysisItem
{
public:
    PythonGraphAnalysisItem();
    PythonGraphAnalysisItem(const PythonGraphAnalysisItem& other);
    PythonGraphAnalysisItem& operator=(const PythonGraphAnalysisItem& other);
    ~PythonGraphAnalysisItem() override;

    bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context) override;
    bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const override;

    /// \{
    /// The name of the stream of the axis; empty for none.
    const QString& getStreamX() const { return m_streamX; }
    const QString& getStreamY1() const { return m_streamY1; }
    const QString& getStreamY2() const { return m_streamY2; }

    void setStreamX(const QString& name) { m_streamX = name; }
    void setStreamY1(const QString& name) { m_streamY1 = name; }
    void setStreamY2(const QString& name) { m_streamY2 = name; }
    /// \}

    /// \{
    /// True when the axis has a stream: when its name is not empty. A name made of blanks counts.
    bool useX() const { return !m_streamX.isEmpty(); }
    bool useY1() const { return !m_streamY1.isEmpty(); }
    bool useY2() const { return !m_streamY2.isEmpty(); }
    /// \}

private:
    QString m_streamX;
    QString m_streamY1;
    QString m_streamY2;
};
