#include <config/UIConfig.h>

#include <axes/private/JsonFields.h>
#include <batterydata/ClConfigDataArray.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/ConfigRepresentation.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ClConfigDataArrayManager;
using cl::batterydata::ExportCategory;
using cl::batterydata::RawDataCollection;
using cl::datastorage::ConfigDataArray;

namespace {

constexpr auto SectionKey = "Representations"_L1;
constexpr auto NameKey = "Name"_L1;
constexpr auto XKey = "X"_L1;
constexpr auto Y1Key = "Y1"_L1;
constexpr auto Y2Key = "Y2"_L1;
constexpr auto CategoryKey = "Category"_L1;
constexpr auto DefaultKey = "Default"_L1;

constexpr auto SectionMissing = "Representations array missing"_L1;
constexpr auto NoName = "No name set for representation"_L1;
constexpr auto NoX = "X not set for representation "_L1;
constexpr auto UnexpectedY1 = "Unexpected Y1 "_L1;
constexpr auto UnexpectedY2 = "Unexpected Y2 "_L1;
constexpr auto NoY = "Neither Y1 nor Y2 set for representation "_L1;

// The arrays of this category may become default axes.
constexpr ExportCategory DefaultAxesCategory{2};

using DefaultSetter = void (ConfigDataArray::*)(bool);

void markAsDefault(const QList<ConfigDataArray*>& arrays, DefaultSetter setDefault)
{
    for (ConfigDataArray* array : arrays) {
        const auto* configured = dynamic_cast<ClConfigDataArray*>(array);
        if (configured != nullptr && configured->getExportCategory() == DefaultAxesCategory) {
            (array->*setDefault)(true);
        }
    }
}

} // namespace

ConfigRepresentation* UIConfig::getDefaultConfigRepresentation() const
{
    return m_configRepresentationManager.getDefaultConfigRepresentation();
}

bool UIConfig::readRepresentations(const QJsonObject& root, QString& error)
{
    const QJsonValue section = root.value(SectionKey);
    if (!section.isArray()) {
        error = SectionMissing;
        return false;
    }
    const ClConfigDataArrayManager& catalogue =
        lumo::tools::Singleton<RawDataCollection>::instance().getDataConfiguration();
    const auto isKnown = [&](const QString& name) { return !catalogue.getConfigDataArrays(name).isEmpty(); };

    const auto entries = QCborArray::fromJsonArray(section.toArray());
    for (const auto& element : entries) {
        const JsonFields entry(element);
        const QString name = entry.text(NameKey);
        const QString x = entry.text(XKey);
        const QString y1 = entry.text(Y1Key);
        const QString y2 = entry.text(Y2Key);
        if (name.isEmpty()) {
            error = NoName;
            return false;
        }
        if (x.isEmpty() || !isKnown(x)) {
            error = NoX + name;
            return false;
        }
        if (!y1.isEmpty() && !isKnown(y1)) {
            error = UnexpectedY1 + y1;
            return false;
        }
        if (y1.isEmpty() && y2.isEmpty()) {
            error = NoY + name;
            return false;
        }
        if (!y2.isEmpty() && !isKnown(y2)) {
            error = UnexpectedY2 + y2;
            return false;
        }
        const bool isDefault = entry.flag(DefaultKey);
        if (isDefault) {
            markAsDefault(catalogue.getConfigDataArrays(x), &ConfigDataArray::setDefaultX);
            markAsDefault(catalogue.getConfigDataArrays(y1), &ConfigDataArray::setDefaultY1);
            markAsDefault(catalogue.getConfigDataArrays(y2), &ConfigDataArray::setDefaultY2);
        }
        m_configRepresentationManager.append(
            new ConfigRepresentation(name, x, y1, y2, entry.text(CategoryKey), isDefault));
    }
    return true;
}
