#include "ColorsTab.h"

#include <base/DocumentKeys.h>
#include <base/JsonPointer.h>
#include <check/Text.h>

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QLocale>
#include <QPainter>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;
using cluiconfig::Table;

namespace cluiedit {

namespace {

constexpr int FirstSwatch = 2; // column
constexpr int SwatchWidth = 66; // pixels
constexpr int RowHeight = 26;
constexpr qsizetype LongestList = 200; // nobody reads more, and text costs more than the comparison
constexpr QColor LightGround(255, 255, 255);
constexpr QColor DarkGround(0, 0, 0);

/// Paints a colour by its name, half of it on light and half of it on dark ground.
class GroundsDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QString name = index.data().toString();
        if (!name.startsWith(u'#')) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        QStyleOptionViewItem ground(option);
        initStyleOption(&ground, index);
        ground.text.clear();
        const QStyle* style = option.widget == nullptr ? QApplication::style() : option.widget->style();
        style->drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);
        const QRect cell = option.rect.adjusted(4, 3, -4, -3);
        QRect half = cell;
        half.setWidth(cell.width() / 2);
        for (const QColor& color : {LightGround, DarkGround}) {
            painter->fillRect(half, color);
            painter->fillRect(half.adjusted(6, 4, -6, -4), QColor(name));
            half.moveLeft(half.right() + 1);
        }
        painter->save();
        painter->setPen(option.palette.color(QPalette::Mid));
        painter->drawRect(cell.adjusted(0, 0, -1, -1));
        painter->restore();
    }
};

QString contrastText(const QColor& color, const QColor& ground)
{
    return color.isValid() ? QString::number(contrast(color, ground), 'f', 1) : QString();
}

/// That two colours look alike, with places for their names and their distance.
QString sentence(Vision vision)
{
    switch (vision) {
    case Vision::Protanopia:
        return ColorsTab::tr("%1 and %2 look alike with protanopia (ΔE00 %3)");
    case Vision::Deuteranopia:
        return ColorsTab::tr("%1 and %2 look alike with deuteranopia (ΔE00 %3)");
    case Vision::Tritanopia:
        return ColorsTab::tr("%1 and %2 look alike with tritanopia (ΔE00 %3)");
    case Vision::Normal:
        break;
    }
    return ColorsTab::tr("%1 and %2 look alike (ΔE00 %3)");
}

/// The elements whose default is each colour. Of several colours of one name the first is meant.
QHash<QString, QStringList> users(const uiconfig::Colors& colors)
{
    QHash<QString, QStringList> elements;
    for (auto it = colors.defaults.begin(); it != colors.defaults.end(); ++it) {
        elements[it.value()].append(it.key());
    }
    return elements;
}

} // namespace

Table paletteTable(const uiconfig::Colors& colors)
{
    Table table{.name = ColorsTab::tr("Palette"), .columns = {ColorsTab::tr("Name"), ColorsTab::tr("Value")}};
    for (const Vision vision : Visions) {
        table.columns.append(visionName(vision));
    }
    table.columns += {ColorsTab::tr("On white"), ColorsTab::tr("On black"), ColorsTab::tr("Default of")};
    QHash<QString, QStringList> elements = users(colors);
    for (const auto& [name, color] : colors.custom) {
        QList<QJsonValue>& row = table.rows.emplaceBack();
        row = {name, color.isValid() ? color.name() : ColorsTab::tr("(invalid)")};
        for (const Vision vision : Visions) {
            row.append(color.isValid() ? seenAs(color, vision).name() : QString());
        }
        row += {contrastText(color, LightGround), contrastText(color, DarkGround), elements.take(name).join(u", "_s)};
    }
    return table;
}

ColorsTab::ColorsTab(QWidget* parent)
    : TablesTab({u"Default colours"_s}, parent)
    , m_palette(new TablePanel(tr("The document gives none.")))
    , m_list(new QListView)
    , m_heading(new QLabel)
{
    m_palette->show(paletteTable({}));
    QTableView& view = m_palette->view();
    view.verticalHeader()->setDefaultSectionSize(RowHeight);
    for (int column = FirstSwatch; column < FirstSwatch + static_cast<int>(Visions.size()); ++column) {
        view.setItemDelegateForColumn(column, new GroundsDelegate(&view));
    }
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setWordWrap(true);
    m_heading->setMinimumHeight(2 * m_heading->fontMetrics().lineSpacing()); // a splitter does not ask how it wraps
    m_heading->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_heading->setBuddy(m_list);
    m_list->setModel(&m_sentences);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setUniformItemSizes(true);
    m_list->setAccessibleName(tr("Colours that look alike"));
    auto* below = new QWidget;
    auto* layout = new QVBoxLayout(below);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_heading);
    layout->addWidget(m_list);
    auto* page = new QSplitter(Qt::Vertical);
    page->setChildrenCollapsible(false);
    page->addWidget(m_palette);
    page->addWidget(below);
    page->setStretchFactor(0, 4);
    page->setStretchFactor(1, 1);
    addPage(tr("Palette"), page, m_palette);
    choosePage(1);

    connect(m_palette, &TablePanel::rowActivated, this, &ColorsTab::goTo);
    connect(m_list, &QListView::activated, this,
            [this](const QModelIndex& index) { goTo(m_lookAlikes.at(index.row()).second); });
    showLookAlikes();
}

void ColorsTab::present(const std::shared_ptr<const Snapshot>& snapshot)
{
    TablesTab::present(snapshot);
    const uiconfig::Colors& colors = snapshot->configuration().colors;
    const bool isFirst = m_palette->table().rows.isEmpty();
    m_palette->show(paletteTable(colors));
    tell(1, m_palette->table());
    if (isFirst) {
        m_palette->fitColumns();
        for (int column = FirstSwatch; column < FirstSwatch + static_cast<int>(Visions.size()); ++column) {
            const QString heading = visionName(Visions.at(static_cast<std::size_t>(column - FirstSwatch)));
            m_palette->view().setColumnWidth(column,
                                             std::max(SwatchWidth, fontMetrics().horizontalAdvance(heading) + 12));
        }
    }
    if (colors.custom != m_colors) {
        m_colors = colors.custom;
        showLookAlikes();
    }
}

void ColorsTab::showLookAlikes()
{
    QList<QColor> palette;
    for (const auto& [name, color] : m_colors) {
        palette.append(color);
    }
    m_lookAlikes = lookAlikes(palette);
    const qsizetype count = m_lookAlikes.size();
    m_lookAlikes.resize(std::min(count, LongestList));
    QStringList sentences;
    for (const LookAlike& pair : m_lookAlikes) {
        const QString first = cluiconfig::check::printable(m_colors.at(pair.first).first);
        const QString second = cluiconfig::check::printable(m_colors.at(pair.second).first);
        const QString amount = QLocale().toString(pair.difference, 'f', 1);
        sentences.append(sentence(pair.vision).arg(first, second, amount));
    }
    m_sentences.setStringList(sentences);
    m_list->setVisible(count > 0);
    m_heading->setText(count == 0
                           ? tr("No two colours look alike: all differ by ΔE00 %1 or more, also with colour blindness.")
                                 .arg(LeastDifference)
                           : count > LongestList
                           ? tr("Pairs that look alike, closer than ΔE00 %1: %2, of which %3 are listed")
                                 .arg(LeastDifference)
                                 .arg(count)
                                 .arg(LongestList)
                           : tr("Pairs that look alike, closer than ΔE00 %1: %2").arg(LeastDifference).arg(count));
}

void ColorsTab::goTo(qsizetype color)
{
    emit placeWanted(jsonPointer(keys::Colors, keys::CustomColors, color));
}

} // namespace cluiedit
