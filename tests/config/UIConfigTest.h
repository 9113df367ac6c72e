#pragma once

#include <config/UIConfig.h>
#include <support/ConfigDocument.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// Makes UIConfig's protected readers callable on the one object: `(config.*&UIConfigReaders::readTools)(root, error)`.
/// Only the names are used, there is never an object of it.
struct UIConfigReaders : UIConfig
{
    using UIConfig::readColors;
    using UIConfig::readContentListForRecipe;
    using UIConfig::readCustomColors;
    using UIConfig::readDebugFlags;
    using UIConfig::readDefaultColors;
    using UIConfig::readDQdUColumns;
    using UIConfig::readMSVUnitsCombinationsConfig;
    using UIConfig::readProcessedDataGraph;
    using UIConfig::readProcessFormulaConfig;
    using UIConfig::readRagonePlotGraph;
    using UIConfig::readRecipeCommandConfig;
    using UIConfig::readRepresentations;
    using UIConfig::readStatsGraph;
    using UIConfig::readSummaryTableColumns;
    using UIConfig::readTools;
};

/// What a load or a reader has come to: empty for success, otherwise the reason.
const QString Success;

/// A test of the one UIConfig. Every test has a process of its own, so the object is as constructed at its start.
class UIConfigTest : public testing::Test
{
protected:
    using Reader = bool (UIConfig::*)(const QJsonObject&, QString&);

    /// Lets \p reader read the document \p root. Success must leave the error text alone, failure must fill it.
    QString read(Reader reader, const QJsonObject& root) const
    {
        return outcome([&](QString& error) { return (config.*reader)(root, error); });
    }
    QString read(Reader reader, const QByteArray& json) const { return read(reader, jsonObject(json)); }

    /// Loads the document in \p path; result as above.
    QString loadFile(const QString& path) const
    {
        return outcome([&](QString& error) { return config.readUIConfiguration(path, error); });
    }
    QString load(const QByteArray& bytes) const { return loadFile(DocumentFile(bytes).path()); }
    QString load(const QJsonObject& document) const { return loadFile(DocumentFile(document).path()); }

    UIConfig& config = lumo::tools::Singleton<UIConfig>::instance();

private:
    template <typename Action>
    static QString outcome(Action action)
    {
        const QString untouched = QStringLiteral("untouched");
        QString error = untouched;
        const bool succeeded = action(error);
        EXPECT_EQ(succeeded, error == untouched) << error.toStdString();
        EXPECT_NE(error, QString());
        return succeeded ? Success : error;
    }
};

/// How much \p config holds of every section that a document has: entries of its lists, and switches that are on.
QMap<QString, qsizetype> entries(UIConfig& config);

/// The keys of the sections of which \p config holds anything, in the order in which they are read.
QStringList filledSections(UIConfig& config);

/// The keys of all sections, in the order in which they are read.
QStringList allSections();
