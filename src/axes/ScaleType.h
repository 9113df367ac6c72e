#pragma once

/// \file ScaleType.h
/// QCPAxis::ScaleType, the type of the scale of an axis, from QCustomPlot's own header.
///
/// That header includes the module header of QtPrintSupport, which brings all of QtCore, QtGui and QtWidgets with it
/// and takes longer to read than everything else. A program that defines CLCONFIGUI_LEAN_INCLUDES gets the same classes
/// without it, and includes what it uses of Qt itself. docs/library.md says what that saves.

#if defined(CLCONFIGUI_LEAN_INCLUDES) && !defined(QT_QTPRINTSUPPORT_MODULE_H)
#define QT_QTPRINTSUPPORT_MODULE_H // the module header takes itself for read
#include <qcustomplot.h>
#undef QT_QTPRINTSUPPORT_MODULE_H
#else
#include <qcustomplot.h>
#endif
