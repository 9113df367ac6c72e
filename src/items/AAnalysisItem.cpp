#include <items/AAnalysisItem.h>

AAnalysisItem::AAnalysisItem() = default;
AAnalysisItem::AAnalysisItem(const AAnalysisItem& other) = default;
AAnalysisItem& AAnalysisItem::operator=(const AAnalysisItem& /*other*/) = default;
AAnalysisItem::~AAnalysisItem() = default;
