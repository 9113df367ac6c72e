#include "Export.h"

#include <config/UIConfig.h>

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageWriter>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include <qcustomplot.h>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

constexpr int DotsPerInch = 96; // of pictures that are measured in units of the screen
constexpr double PointsPerInch = 72;

bool writePng(QCustomPlot& plot, QIODevice& file)
{
    constexpr double Scale = 2; // sharp in print and on fine screens
    QImageWriter writer(&file, "png");
    return writer.write(plot.toPixmap(plot.width(), plot.height(), Scale).toImage());
}

bool paint(QCustomPlot& plot, QPaintDevice& device)
{
    QCPPainter painter;
    if (!painter.begin(&device)) {
        return false;
    }
    painter.setMode(QCPPainter::pmVectorized);
    painter.setMode(QCPPainter::pmNoCaching);
    plot.toPainter(&painter, plot.width(), plot.height());
    return painter.end();
}

bool writeSvg(QCustomPlot& plot, QIODevice& file)
{
    QSvgGenerator svg;
    svg.setOutputDevice(&file);
    svg.setResolution(DotsPerInch);
    svg.setSize(plot.size());
    svg.setViewBox(plot.rect());
    svg.setTitle(QCoreApplication::translate("cluiedit", "Plot"));
    return paint(plot, svg);
}

bool writePdf(QCustomPlot& plot, QIODevice& file)
{
    QPdfWriter pdf(&file);
    pdf.setResolution(DotsPerInch);
    pdf.setPageSize(
        QPageSize(QSizeF(plot.size()) * PointsPerInch / DotsPerInch, QPageSize::Point, {}, QPageSize::ExactMatch));
    pdf.setPageMargins({});
    return paint(plot, pdf);
}

} // namespace

bool exportPlot(QCustomPlot& plot, const QString& path, QString& error)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    bool (*write)(QCustomPlot&, QIODevice&) = nullptr;
    if (suffix == "png"_L1) {
        write = &writePng;
    } else if (suffix == "svg"_L1) {
        write = &writeSvg;
    } else if (suffix == "pdf"_L1) {
        write = &writePdf;
    }
    if (write == nullptr) {
        error = QCoreApplication::translate("cluiedit", "%1: give the file the suffix .png, .svg or .pdf.").arg(path);
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        error = QCoreApplication::translate("cluiedit", "%1 cannot be written: %2").arg(path, file.errorString());
        return false;
    }
    const bool isPainted = write(plot, file);
    plot.replot(QCustomPlot::rpQueuedReplot); // painting has left its own size behind
    if (!isPainted || !file.commit()) {
        error = QCoreApplication::translate("cluiedit", "%1 cannot be written: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

QString askExportPath(QWidget* parent, const QString& title)
{
    UIConfig& preferences = lumo::tools::Singleton<UIConfig>::instance();
    const QString last = preferences.getLastDirectoryExport();
    const QString filters =
        QCoreApplication::translate("cluiedit", "PNG pictures (*.png);;SVG drawings (*.svg);;PDF documents (*.pdf)");
    QFileDialog dialog(parent, title, last.isEmpty() ? preferences.getDefaultAppDirectory() : last, filters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"png"_s);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        dialog.setDefaultSuffix(filter.section(u"*."_s, 1).chopped(1));
    });
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    QString path = dialog.selectedFiles().value(0);
    preferences.setLastDirectoryExport(QFileInfo(path).absolutePath());
    return path;
}

} // namespace cluiedit
