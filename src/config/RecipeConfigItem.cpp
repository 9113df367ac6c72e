#include <config/RecipeConfigItem.h>

RecipeConfigItem::RecipeConfigItem() = default;
RecipeConfigItem::RecipeConfigItem(const RecipeConfigItem& other) = default;
RecipeConfigItem& RecipeConfigItem::operator=(const RecipeConfigItem& other) = default;
RecipeConfigItem::~RecipeConfigItem() = default;

QString RecipeConfigItem::getParameter(int index) const
{
    if (index < 0 || index >= m_parameters.size()) {
        qFatal("RecipeConfigItem::getParameter: index %d is out of range, the entry has %lld parameters", index,
               static_cast<long long>(m_parameters.size()));
    }
    return m_parameters.at(index);
}
