#include <items/ContainerAdaptor.h>

#include <axes/AxesCombination.h>
#include <items/RagonePlotChildItem.h>
#include <items/StatisticsChildItem.h>

template <typename Container, typename Element>
ContainerAdaptorBase<Container, Element>::ContainerAdaptorBase(Container* container)
    : m_container(container)
{
}

template <typename Container, typename Element>
void ContainerAdaptorBase<Container, Element>::addElement(const Element& /*element*/)
{
}

template <typename Container, typename Element>
void ContainerAdaptor<Container, Element>::addElement(const Element& element)
{
    this->m_container->append(element);
}

template class ContainerAdaptorBase<QList<AxesCombination>, AxesCombination>;
template class ContainerAdaptorBase<QList<RagonePlotChildItem>, RagonePlotChildItem>;
template class ContainerAdaptorBase<QList<StatisticsChildItem>, StatisticsChildItem>;
template class ContainerAdaptor<QList<AxesCombination>, AxesCombination>;
template class ContainerAdaptor<QList<RagonePlotChildItem>, RagonePlotChildItem>;
template class ContainerAdaptor<QList<StatisticsChildItem>, StatisticsChildItem>;
