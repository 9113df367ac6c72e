#pragma once

#include <archive/ArchiveContext.h>
#include <clconfigui_export.h>
#include <items/StatisticsChildItem.h>

#include <QJsonObject>
#include <QList>
#include <QString>

/// A statistics graph, which compares several cells: a title and its curves in order.
/// A value that owns its curves.
class CLCONFIGUI_EXPORT StatisticsItem
{
public:
    StatisticsItem();
    StatisticsItem(const StatisticsItem& other);
    StatisticsItem& operator=(const StatisticsItem& other);
    virtual ~StatisticsItem();

    /// Replaces title and curves by the archived ones, up to the first curve that refuses to be read. Always true.
    virtual bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context);

    /// Stores title and curves, up to the first curve that refuses to be written. Always true.
    virtual bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const;

    /// \{
    /// The title of the graph.
    const QString& getTitle() const { return m_title; }
    void setTitle(const QString& title) { m_title = title; }
    /// \}

    /// Appends a copy, also of a curve whose title is there already.
    void addGraphItem(const StatisticsChildItem& curve) { m_graphItems.append(curve); }

    /// A copy of the first curve with exactly this title; a curve with an empty title when there is none.
    // NOLINTNEXTLINE(readability-const-return-type): callers rely on the declared type
    const StatisticsChildItem getGraphItemFromTitle(const QString& title) const;

    /// The titles of all curves in order, empty and repeated ones included.
    QList<QString> getGraphItemsTitleList() const;

    /// The curves in order. Valid until the graph changes.
    const QList<StatisticsChildItem>& getGraphItemsList() const { return m_graphItems; }

    /// Takes \p title and appends the curves that stand under it in \p section, an object of the configuration document
    /// with an array of curves for each graph. Curves that the graph had before stay; anything but an array adds none.
    void readGraphItem(const QString& title, const QJsonObject& section);

private:
    QString m_title;
    QList<StatisticsChildItem> m_graphItems;
};
