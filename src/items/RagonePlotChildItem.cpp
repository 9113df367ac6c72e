#include <items/RagonePlotChildItem.h>

#include <items/private/CatalogueLookup.h>
#include <items/private/Curves.h>

RagonePlotChildItem::RagonePlotChildItem() = default;
RagonePlotChildItem::RagonePlotChildItem(const RagonePlotChildItem& other) = default;
RagonePlotChildItem& RagonePlotChildItem::operator=(const RagonePlotChildItem& other) = default;
RagonePlotChildItem::~RagonePlotChildItem() = default;

bool RagonePlotChildItem::read(const QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/)
{
    curves::readTexts(*this, JsonFields(object), curves::ArchiveKeys);
    return true;
}

bool RagonePlotChildItem::write(QJsonObject& object, int /*version*/, cl::archive::ArchiveContext& /*context*/) const
{
    curves::writeTexts(*this, object);
    return true;
}

AxesCombination RagonePlotChildItem::getAxesCombination() const
{
    return linearCombinationFromCatalogue(m_category, m_streamX, m_streamY);
}
