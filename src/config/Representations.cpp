#include <config/UIConfig.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <config/Configuration.h>

using namespace Qt::StringLiterals;

namespace uiconfig {

namespace {

constexpr auto NoName = "No name set for representation"_L1;
constexpr auto NoX = "X not set for representation "_L1;
constexpr auto UnexpectedY1 = "Unexpected Y1 "_L1;
constexpr auto UnexpectedY2 = "Unexpected Y2 "_L1;
constexpr auto NoY = "Neither Y1 nor Y2 set for representation "_L1;

bool readRepresentation(const JsonFields& entry, qsizetype index, const Reading& with)
{
    const qsizetype refusedBefore = with.refusals.all().size();
    const auto isKnown = [&](const QString& name) { return !with.catalogue.getConfigDataArrays(name).isEmpty(); };
    const auto refuse = [&](const QString& sentence, const auto&... steps) {
        return with.refusals.goOnAfter(sentence, jsonPointer(keys::Representations, index, steps...));
    };
    const QString name = entry.text(keys::Name);
    const QString x = entry.text(keys::X);
    const QString y1 = entry.text(keys::Y1);
    const QString y2 = entry.text(keys::Y2);
    if (name.isEmpty() && !refuse(NoName, keys::Name)) {
        return false;
    }
    if ((x.isEmpty() || !isKnown(x)) && !refuse(NoX + name, keys::X)) {
        return false;
    }
    if (!y1.isEmpty() && !isKnown(y1) && !refuse(UnexpectedY1 + y1, keys::Y1)) {
        return false;
    }
    if (y1.isEmpty() && y2.isEmpty() && !refuse(NoY + name)) {
        return false;
    }
    if (!y2.isEmpty() && !isKnown(y2) && !refuse(UnexpectedY2 + y2, keys::Y2)) {
        return false;
    }
    if (with.refusals.all().size() == refusedBefore) {
        with.to.representations.emplaceBack(name, x, y1, y2, entry.text(keys::Category), entry.flag(keys::Default));
    }
    return true;
}

} // namespace

bool readRepresentations(const QJsonValue& section, const Reading& with)
{
    const auto elements = QCborArray::fromJsonArray(section.toArray());
    qsizetype index = 0;
    for (const auto& element : elements) {
        if (!readRepresentation(JsonFields(element), index++, with)) {
            return false;
        }
    }
    return true;
}

} // namespace uiconfig

bool UIConfig::readRepresentations(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::Representations, root, error);
}

ConfigRepresentation* UIConfig::getDefaultConfigRepresentation() const
{
    return m_configRepresentationManager.getDefaultConfigRepresentation();
}
