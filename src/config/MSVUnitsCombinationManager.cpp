#include <config/MSVUnitsCombinationManager.h>

#include <config/MSVUnitsCombination.h>

#include <algorithm>

MSVUnitsCombinationManager::MSVUnitsCombinationManager() = default;
MSVUnitsCombinationManager::MSVUnitsCombinationManager(const MSVUnitsCombinationManager& other) = default;
MSVUnitsCombinationManager& MSVUnitsCombinationManager::operator=(const MSVUnitsCombinationManager& other) = default;
MSVUnitsCombinationManager::~MSVUnitsCombinationManager() = default;

void MSVUnitsCombinationManager::append(MSVUnitsCombination* combination)
{
    m_combinations.append(combination);
}

void MSVUnitsCombinationManager::deleteAllAndClear()
{
    qDeleteAll(m_combinations);
    m_combinations.clear();
}

const MSVUnitsCombination*
MSVUnitsCombinationManager::getMSVUnitsCombinationsFromParam(const cl::datastorage::PhysicalParameter& parameter) const
{
    const auto found = std::find_if(m_combinations.cbegin(), m_combinations.cend(), [&](const auto* combination) {
        return combination->getPhysicalParameter() == parameter;
    });
    return found == m_combinations.cend() ? nullptr : *found;
}
