#pragma once

#include <clconfigui_export.h>

#include <QList>

class AxesCombination;
class RagonePlotChildItem;
class StatisticsChildItem;

// Programs may make an error of what is meant here; some compilers find it where a template is instantiated.
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

/// Lets code that knows only this adaptor add elements to a list. The base ignores them; ContainerAdaptor appends.
///
/// The adaptor borrows the list, which must outlive it. There is no virtual destructor: an adaptor is never deleted
/// through its base.
template <typename Container, typename Element>
class ContainerAdaptorBase
{
public:
    /// Adapts \p container, which it borrows.
    explicit ContainerAdaptorBase(Container* container); // not inline: a DLL does not export what is

    /// Does nothing.
    virtual void addElement(const Element& element);

protected:
    /// The list, which is somebody else's.
    Container* m_container;
};

/// Appends a copy of every element to the end of the list.
///
/// REQUIRES: the list is not null.
template <typename Container, typename Element>
class ContainerAdaptor : public ContainerAdaptorBase<Container, Element>
{
public:
    using ContainerAdaptorBase<Container, Element>::ContainerAdaptorBase;

    /// Appends a copy of \p element, also one that is there already.
    void addElement(const Element& element) override;
};

// The library holds the only instantiations.
extern template class CLCONFIGUI_EXPORT ContainerAdaptorBase<QList<AxesCombination>, AxesCombination>;
extern template class CLCONFIGUI_EXPORT ContainerAdaptorBase<QList<RagonePlotChildItem>, RagonePlotChildItem>;
extern template class CLCONFIGUI_EXPORT ContainerAdaptorBase<QList<StatisticsChildItem>, StatisticsChildItem>;
extern template class CLCONFIGUI_EXPORT ContainerAdaptor<QList<AxesCombination>, AxesCombination>;
extern template class CLCONFIGUI_EXPORT ContainerAdaptor<QList<RagonePlotChildItem>, RagonePlotChildItem>;
extern template class CLCONFIGUI_EXPORT ContainerAdaptor<QList<StatisticsChildItem>, StatisticsChildItem>;

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif
