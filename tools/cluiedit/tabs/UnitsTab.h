#pragma once

#include "TablesTab.h"

namespace cluiedit {

/// The compound units of the document, and the physical parameters: for the one that is chosen, its units, whether the
/// user interface shows them, and why not.
class UnitsTab : public TablesTab
{
    Q_OBJECT

public:
    explicit UnitsTab(QWidget* parent = nullptr);

private:
    QString parameter(qsizetype row) const;

    TablePanel* m_parameters;
    TablePanel* m_units;
};

} // namespace cluiedit
