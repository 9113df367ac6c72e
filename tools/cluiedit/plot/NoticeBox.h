#pragma once

#include <QStringList>

#include <qcustomplot.h>

namespace cluiedit {

/// Notices in the frame of a plot.
class NoticeBox : public QCPLayerable
{
public:
    /// Belongs to \p plot.
    explicit NoticeBox(QCustomPlot* plot);

    /// A sentence each.
    void setNotices(const QStringList& notices) { m_notices = notices; }
    const QStringList& notices() const { return m_notices; }

protected:
    void applyDefaultAntialiasingHint(QCPPainter* painter) const override;
    void draw(QCPPainter* painter) override;

private:
    QStringList m_notices;
};

} // namespace cluiedit
