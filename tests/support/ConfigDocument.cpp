#include <support/ConfigDocument.h>
#include <support/Json.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto Document = R"({
    "Version": 29,
    "Axes combinations": [
        {
            "X": [{ "Name": "Time", "Category": "Potentiostat" }],
            "Y1/Y2": [{ "Name": "Voltage" }, { "Name": "Current" }],
            "DEFAULT_SCALE_X": "LINEAR",
            "DEFAULT_SCALE_Y": "LOGARITHMIC",
            "ORTHONORMAL_AXIS": "FALSE"
        },
        {
            "X": [{ "Name": "Capacity" }],
            "Y1/Y2": [{ "Name": "Energy" }],
            "DEFAULT_SCALE_X": "LINEAR",
            "DEFAULT_SCALE_Y": "LINEAR",
            "ORTHONORMAL_AXIS": "TRUE"
        }
    ],
    "Representations": [
        { "Name": "Course", "X": "Time", "Y1": "Voltage", "Y2": "Current", "Category": "Cycling", "Default": true },
        { "Name": "Ageing", "X": "Capacity", "Y1": "Energy" }
    ],
    "MSVUnits": [{ "PhysicalParameter": "Charge", "Operator": "Divide", "MultiParams": ["Mass", "Area"] }],
    "Filters": { "Tasks": { "Skipped": ["Rest"] } },
    "Tools": {
        "Summary Table": {
            "Per step": { "Step": ["Capacity"] },
            "Per cycle": { "Cycle": ["Capacity", "Energy"] },
            "Per loop": { "Loop": ["Energy"] }
        }
    },
    "Colors": {
        "Custom colors": [{ "name": "sky", "RGB": [86, 180, 233] }, { "name": "orange", "RGB": [230, 159, 0] }],
        "Default colors": { "voltage": "orange" }
    },
    "Statistics": {
        "Retention": [{ "X": "Capacity", "Y": "Energy", "Category": "Cycle", "Title": "Mean", "Type": "mean" }]
    },
    "Ragone Plot": {
        "Cells": [{ "X": "Capacity", "Y": "Energy", "Category": "Cycle", "Title": "Discharge", "Type": "points" }]
    },
    "Processed Data": [
        {
            "Title": "Smoothed",
            "Category": "Potentiostat",
            "X": "Time",
            "Y1": "Voltage",
            "Y2": "Current",
            "Y_processed": ["Voltage"]
        }
    ],
    "Recipe": {
        "GraphCommand": [{ "UITitle": "Course", "Param1": "Time", "Param2": "Voltage" }],
        "ToolSummaryCommand": [{ "UITitle": "Steps", "Param1": "Per step" }],
        "ToolStatisticsCommand": [{ "UITitle": "Retention" }],
        "ToolProcessedDataCommand": [{ "UITitle": "Smoothed" }]
    },
    "Process Formula": {
        "X Formulas": [{ "Displayed Formula": "t in hours", "Compiled Formula": "x/3600" }],
        "Y1 Formulas": [{ "Displayed Formula": "I squared", "Compiled Formula": "y*y" }],
        "Y2 Formulas": [{ "Displayed Formula": "-I", "Compiled Formula": "-y" }]
    },
    "dQ_dU": {
        "Table": ["Voltage", "Time"],
        "Graph": { "Title": "dQ/dU", "Category": "Potentiostat", "X": "Voltage", "Y1": "Current" }
    },
    "Debug": { "importDialogDisplayClIds": true, "saveImportedParquetFiles": true, "saveZFitInputData": true }
})";

} // namespace

ConfigDocumentCatalogue::ConfigDocumentCatalogue()
    : TestCatalogue({
        {u"Time"_s, u"Potentiostat"_s},
        {u"Voltage"_s, u"Potentiostat"_s},
        {u"Current"_s, u"Potentiostat"_s},
        {u"Capacity"_s, u"Step"_s},
        {u"Capacity"_s, u"Cycle"_s},
        {u"Energy"_s, u"Cycle"_s},
        {u"Energy"_s, u"Loop"_s},
    })
{
}

QJsonObject configDocument()
{
    return jsonObject(Document);
}

QJsonObject with(QJsonObject document, const QString& key, const QJsonValue& value)
{
    document.insert(key, value);
    return document;
}

QJsonObject without(QJsonObject document, const QString& key)
{
    document.remove(key);
    return document;
}
