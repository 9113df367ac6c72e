#pragma once

#include <axes/AxesCombination.h>
#include <base/Singleton.h>
#include <batterydata/ClConfigDataArray.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/ConfigRepresentation.h>
#include <dataprocess/IDataStream.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// What AxesCombinationManager promises, spelt out step by step: every query walks the list, nothing is indexed and
/// nothing is remembered. Slow, and plain enough to be seen right; random tests compare the manager with it.
class LiteralManager
{
public:
    const QList<AxesCombination>& getAxesCombinations() const { return m_combinations; }

    QList<AxesCombination> getAxesCombinations(const QString& x) const
    {
        QList<AxesCombination> result;
        for (const AxesCombination& combination : m_combinations) {
            if (combination.isValid() && combination.getDataStreamCombination().getXName() == x) {
                result.append(combination);
            }
        }
        return result;
    }

    AxesCombination getAxesCombination(const QString& x, const QString& y) const
    {
        for (const AxesCombination& combination : m_combinations) {
            if (!combination.isValid()) {
                continue;
            }
            if (combination.getDataStreamCombination().getXName() == x
                && combination.getDataStreamCombination().getYName() == y) {
                return combination;
            }
        }
        return {};
    }

    QList<QString> getXAxesNames() const
    {
        QStringList names;
        for (const AxesCombination& combination : m_combinations) {
            if (combination.isValid()) {
                names.append(combination.getDataStreamCombination().getXName());
            }
        }
        names.removeDuplicates();
        return names;
    }

    QList<QString> getYAxesNames(const QString& x) const
    {
        QStringList names;
        for (const AxesCombination& combination : m_combinations) {
            if (combination.isValid() && combination.getDataStreamCombination().getXName() == x) {
                names.append(combination.getDataStreamCombination().getYName());
            }
        }
        names.removeDuplicates();
        return names;
    }

    bool isRepresentationValid(const ConfigRepresentation* representation) const
    {
        if (representation == nullptr) {
            return false;
        }
        const AxesCombination first = getAxesCombination(representation->x(), representation->y1());
        const AxesCombination second = getAxesCombination(representation->x(), representation->y2());
        return first.isValid() || second.isValid();
    }

    void append(const AxesCombination& combination) { m_combinations.append(combination); }
    void deleteAll() { m_combinations.clear(); }

    void removeDuplicates()
    {
        const auto key = [this](qsizetype i) { return m_combinations.at(i).getDataStreamCombination().toString(); };
        const qsizetype size = m_combinations.size();
        QMap<QString, int> counts;
        for (qsizetype i = 0; i < size; ++i) {
            if (m_combinations.at(i).isValid()) {
                counts.insert(key(i), counts.value(key(i), 0) + 1);
            }
        }
        for (qsizetype i = size - 1; i >= 0; --i) {
            bool keep = false;
            if (m_combinations.at(i).isValid()) {
                const int count = counts.value(key(i), 0);
                counts.insert(key(i), count - 1);
                keep = count < 2;
            }
            if (!keep) {
                m_combinations.removeAt(i);
            }
        }
    }

    void addCombinationsFromStreams(const QList<cl::dataprocess::IDataStream*>& streams, int index)
    {
        for (const auto* s : streams) {
            if (!(index < s->getCount())) {
                continue;
            }
            if (index != -1 && !s->hasIndex(index)) {
                continue;
            }
            const auto x = dataArray(*s);
            for (const auto* t : streams) {
                const auto y = dataArray(*t);
                if (index != -1 && !t->hasIndex(index)) {
                    continue;
                }
                m_combinations.append(AxesCombination(x, y, QCPAxis::stLinear, QCPAxis::stLinear, false));
            }
        }
    }

    bool readAxesCombinations(const QJsonObject& root, QString& error)
    {
        if (!root.value(QStringLiteral("Axes combinations")).isArray()) {
            error = QStringLiteral("Axes combinations array missing");
            return false;
        }
        for (const auto& element : root.value(QStringLiteral("Axes combinations")).toArray()) {
            if (!element.isObject()) {
                error = QStringLiteral("Axes combination is not Json object");
                return false;
            }
            if (!readAxesCombination(element.toObject(), error)) {
                return false;
            }
        }
        return true;
    }

    bool readAxesCombination(const QJsonObject& entry, QString& error)
    {
        const auto& catalogue =
            lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
        if (!entry.value(QStringLiteral("X")).isArray()) {
            error = QStringLiteral("Unexpected axes combination X");
            return false;
        }
        for (const auto& xReference : entry.value(QStringLiteral("X")).toArray()) {
            const QString xName = xReference.toObject().value(QStringLiteral("Name")).toString();
            const QString xCategory = xReference.toObject().value(QStringLiteral("Category")).toString();
            QList<cl::datastorage::ConfigDataArray*> xList;
            if (!xCategory.isEmpty()) {
                auto* found = catalogue.getConfigDataArray(xName, xCategory);
                if (found == nullptr) {
                    error = QStringLiteral("Unexpected axes combination X: %1 (%2)").arg(xName).arg(xCategory);
                    return false;
                }
                xList.append(found);
            } else {
                xList = catalogue.getConfigDataArrays(xName);
            }
            for (const auto& yReference : entry.value(QStringLiteral("Y1/Y2")).toArray()) {
                const QString yName = yReference.toObject().value(QStringLiteral("Name")).toString();
                const QString yCategory = yReference.toObject().value(QStringLiteral("Category")).toString();
                QList<cl::datastorage::ConfigDataArray*> yList;
                if (!yCategory.isEmpty()) {
                    auto* found = catalogue.getConfigDataArray(yName, yCategory);
                    if (found == nullptr) {
                        error = QStringLiteral("Unexpected axes combination Y1/Y2: %1 (%2)").arg(yName).arg(yCategory);
                        return false;
                    }
                    yList.append(found);
                } else {
                    yList = catalogue.getConfigDataArrays(yName);
                }
                for (const auto* x : xList) {
                    for (const auto* y : yList) {
                        if (x->getCategory() != y->getCategory()) {
                            continue;
                        }
                        const QString scaleX = entry.value(QStringLiteral("DEFAULT_SCALE_X")).toString();
                        const QString scaleY = entry.value(QStringLiteral("DEFAULT_SCALE_Y")).toString();
                        if (scaleX.isEmpty() || scaleY.isEmpty()) {
                            error = QStringLiteral("Unexpected axes combination default scale");
                            return false;
                        }
                        const QString orthonormal = entry.value(QStringLiteral("ORTHONORMAL_AXIS")).toString();
                        if (orthonormal.isEmpty()) {
                            error = QStringLiteral("Unexpected axes combination orthonormal parameter");
                            return false;
                        }
                        m_combinations.append(AxesCombination(
                            *x, *y, scaleX == QStringLiteral("LINEAR") ? QCPAxis::stLinear : QCPAxis::stLogarithmic,
                            scaleY == QStringLiteral("LINEAR") ? QCPAxis::stLinear : QCPAxis::stLogarithmic,
                            orthonormal == QStringLiteral("TRUE")));
                    }
                }
            }
        }
        return true;
    }

    void read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
    {
        QList<AxesCombination> combinations;
        for (const auto& element : object.value(QStringLiteral("axesCombinations")).toArray()) {
            AxesCombination combination;
            if (!combination.read(element.toObject(), version, context)) {
                break;
            }
            combinations.append(combination);
        }
        m_combinations = combinations;
    }

private:
    static cl::batterydata::ClConfigDataArray dataArray(const cl::dataprocess::IDataStream& stream)
    {
        return {stream.getName(),
                stream.getPhysicalParameter(),
                stream.getDataType(),
                stream.getUsualUnit(),
                static_cast<cl::datastorage::DataConfigType>(0),
                QString(),
                QString(),
                stream.getCategory(),
                false,
                QString()};
    }

    QList<AxesCombination> m_combinations;
};
