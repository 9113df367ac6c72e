# Finds the header of QCustomPlot and what it includes, and nothing to link: the library only uses the enumeration
# QCPAxis::ScaleType. Widgets and PrintSupport are therefore looked up as headers, not as Qt modules to link.
#
# Defines the target QCustomPlotHeaders::QCustomPlotHeaders.

find_package(Qt6 REQUIRED COMPONENTS Core)
get_target_property(_qt_include_dirs Qt6::Core INTERFACE_INCLUDE_DIRECTORIES)

find_path(QCustomPlotHeaders_INCLUDE_DIR qcustomplot.h)
find_path(QCustomPlotHeaders_WIDGETS_DIR QtWidgets/QWidget HINTS ${_qt_include_dirs} NO_CMAKE_FIND_ROOT_PATH)
find_path(QCustomPlotHeaders_PRINTSUPPORT_DIR QtPrintSupport/QtPrintSupport
          HINTS ${_qt_include_dirs} NO_CMAKE_FIND_ROOT_PATH)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(QCustomPlotHeaders REQUIRED_VARS
    QCustomPlotHeaders_INCLUDE_DIR QCustomPlotHeaders_WIDGETS_DIR QCustomPlotHeaders_PRINTSUPPORT_DIR)
mark_as_advanced(QCustomPlotHeaders_INCLUDE_DIR QCustomPlotHeaders_WIDGETS_DIR QCustomPlotHeaders_PRINTSUPPORT_DIR)

if(QCustomPlotHeaders_FOUND AND NOT TARGET QCustomPlotHeaders::QCustomPlotHeaders)
    add_library(QCustomPlotHeaders::QCustomPlotHeaders INTERFACE IMPORTED)
    target_include_directories(QCustomPlotHeaders::QCustomPlotHeaders SYSTEM INTERFACE
        ${QCustomPlotHeaders_INCLUDE_DIR}
        ${QCustomPlotHeaders_WIDGETS_DIR}
        ${QCustomPlotHeaders_WIDGETS_DIR}/QtWidgets
        ${QCustomPlotHeaders_PRINTSUPPORT_DIR}/QtPrintSupport)
endif()
