#include <items/ContainerAdaptor.h>

#include <axes/AxesCombination.h>
#include <items/RagonePlotChildItem.h>
#include <items/StatisticsChildItem.h>
#include <support/QtPrinters.h>
#include <support/VirtualSlot.h>

#include <gtest/gtest.h>

#include <QStringList>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

/// How to make an element with a text, and how to get the text back.
template <typename Element>
struct Labelled
{
    static Element make(const QString& text)
    {
        Element element;
        element.setTitle(text);
        return element;
    }
    static QString text(const Element& element) { return element.getTitle(); }
};

template <>
struct Labelled<AxesCombination>
{
    static AxesCombination make(const QString& text)
    {
        return {{text, u"c"_s}, {u"y"_s, u"c"_s}, QCPAxis::stLinear, QCPAxis::stLinear, false};
    }
    static QString text(const AxesCombination& combination) { return combination.getConfigX().getName(); }
};

template <typename Element>
class ContainerAdaptorOf : public testing::Test
{
protected:
    using List = QList<Element>;
    using Base = ContainerAdaptorBase<List, Element>;
    using Adaptor = ContainerAdaptor<List, Element>;

    static_assert(std::is_base_of_v<Base, Adaptor>);
    static_assert(std::is_polymorphic_v<Base>);
    static_assert(!std::has_virtual_destructor_v<Base>);
    static_assert(!std::has_virtual_destructor_v<Adaptor>);
    static_assert(std::is_same_v<decltype(&Base::addElement), void (Base::*)(const Element&)>);

    static Element element(const QString& text) { return Labelled<Element>::make(text); }

    QStringList texts() const
    {
        QStringList result;
        for (const Element& element : list) {
            result.append(Labelled<Element>::text(element));
        }
        return result;
    }

    List list;
};

using Elements = testing::Types<AxesCombination, StatisticsChildItem, RagonePlotChildItem>;
TYPED_TEST_SUITE(ContainerAdaptorOf, Elements);

} // namespace

TYPED_TEST(ContainerAdaptorOf, BaseIgnoresEveryElement)
{
    this->list.append(this->element(u"first"_s));
    typename TestFixture::Base base(&this->list);
    base.addElement(this->element(u"ignored"_s));
    EXPECT_EQ(this->texts(), QStringList({u"first"_s}));
}

TYPED_TEST(ContainerAdaptorOf, AdaptorAppendsCopiesThroughItsBase)
{
    this->list.append(this->element(u"first"_s));
    typename TestFixture::Adaptor adaptor(&this->list);
    typename TestFixture::Base& base = adaptor;
    TypeParam added = this->element(u"b"_s);
    base.addElement(added);
    base.addElement(this->element(u"a"_s));
    base.addElement(added);
    added = this->element(u"changed"_s);
    EXPECT_EQ(this->texts(), QStringList({u"first"_s, u"b"_s, u"a"_s, u"b"_s}));
}

TYPED_TEST(ContainerAdaptorOf, AdaptorAppendsAnElementOfItsOwnList)
{
    this->list.append(this->element(u"a"_s));
    typename TestFixture::Adaptor adaptor(&this->list);
    for (int i = 0; i < 20; ++i) {
        adaptor.addElement(this->list.constFirst());
    }
    EXPECT_EQ(this->texts(), QStringList(21, u"a"_s));
}

#if HAVE_VIRTUAL_SLOTS
TYPED_TEST(ContainerAdaptorOf, AddingIsTheOnlyVirtualOperation)
{
    EXPECT_EQ(virtualSlot(&TestFixture::Base::addElement), 0U);
    EXPECT_EQ(virtualSlot(&TestFixture::Adaptor::addElement), 0U);
    EXPECT_EQ(virtualSlots<typename TestFixture::Base>(), 1U);
    EXPECT_EQ(virtualSlots<typename TestFixture::Adaptor>(), 1U);
}
#endif
