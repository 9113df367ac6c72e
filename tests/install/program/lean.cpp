#include "lean.h"

#include <CLConfigUI/config/UIConfig.h>

#ifdef QPRINTER_H
#error "QtPrintSupport came along."
#endif
#include <QtPrintSupport/QtPrintSupport>
#ifndef QPRINTER_H
#error "QtPrintSupport cannot be included any more."
#endif

QCPAxis::ScaleType scaleOf(AxesCombination combination)
{
    return combination.getDefaultScaleX();
}
