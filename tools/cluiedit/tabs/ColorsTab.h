#pragma once

#include "LookAlikes.h"
#include "TablesTab.h"

#include <QStringListModel>

class QLabel;
class QListView;

namespace cluiedit {

/// The palette: each colour on light and on dark ground, as people with and without colour blindness see it, how far
/// it stands out, and the elements that have it by default; below, the colours that look alike. Beside it, as a table
/// of its own, the default colours.
class ColorsTab : public TablesTab
{
    Q_OBJECT

public:
    explicit ColorsTab(QWidget* parent = nullptr);

    void present(const std::shared_ptr<const Snapshot>& snapshot) override;

private:
    void showLookAlikes();
    void goTo(qsizetype color);

    TablePanel* m_palette;
    QList<std::pair<QString, QColor>> m_colors; // of the palette, as compared last
    QList<LookAlike> m_lookAlikes; // those that are listed
    QStringListModel m_sentences;
    QListView* m_list;
    QLabel* m_heading; // of the list
};

/// The palette of \p colors as a table: the colours as they are seen, their contrasts and their users.
cluiconfig::Table paletteTable(const uiconfig::Colors& colors);

} // namespace cluiedit
