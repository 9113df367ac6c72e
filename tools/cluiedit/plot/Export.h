#pragma once

#include <QString>

class QCustomPlot;
class QWidget;

namespace cluiedit {

/// Writes a picture of \p plot, as large as it is shown, to the file \p path, in the format of its suffix: png, svg or
/// pdf. False with the reason in \p error; then a file that was there stays as it was.
bool exportPlot(QCustomPlot& plot, const QString& path, QString& error);

/// Asks for a file to write to, where the last one went, and remembers where. Empty when nobody wants one.
QString askExportPath(QWidget* parent, const QString& title);

} // namespace cluiedit
