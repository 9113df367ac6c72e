#include "DemonstrationCell.h"

#include "DemonstrationArrays.h"

#include <QCoreApplication>

namespace cluiedit {

namespace {

constexpr int Cycles = 100;

} // namespace

Measurement demonstrationCell(const uiconfig::Catalogue& catalogue)
{
    Measurement measurement(QCoreApplication::translate("DemonstrationCell", "Demonstration cell"));
    const CyclingTest test = runCyclingTest(Cycles);
    const DemonstrationRows rows(test);
    addRowArrays(rows, catalogue, measurement);
    addStepArrays(rows, catalogue, measurement);
    addCycleArrays(rows, catalogue, measurement);
    addImpedanceArrays(rows, catalogue, measurement);
    addDifferentialArrays(rows, catalogue, measurement);
    addRagoneArrays(catalogue, measurement);
    return measurement;
}

} // namespace cluiedit
