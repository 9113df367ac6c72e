#include "UnitsTab.h"

#include "RowPlaces.h"
#include "TableWords.h"

#include <datastorage/Converter.h>
#include <document/UnitTables.h>

#include <QLabel>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;

namespace cluiedit {

UnitsTab::UnitsTab(QWidget* parent)
    : TablesTab({u"Compound units"_s}, parent)
    , m_parameters(new TablePanel(QString()))
    , m_units(new TablePanel(tr("The parameter has no units."), TablePanel::Filter::Hidden))
{
    auto* heading = new QLabel;
    heading->setTextFormat(Qt::PlainText);
    auto* below = new QWidget;
    auto* layout = new QVBoxLayout(below);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(heading);
    layout->addWidget(m_units);
    auto* page = new QSplitter(Qt::Vertical);
    page->setChildrenCollapsible(false);
    page->addWidget(m_parameters);
    page->addWidget(below);

    const auto showUnits = [this, heading](qsizetype row) {
        const cluiconfig::Table units =
            cluiconfig::unitsTable(Converter::getPhysicalParameterFromString(parameter(row)));
        heading->setText(tableWord(units.name));
        m_units->show(units);
    };
    const cluiconfig::Table parameters = cluiconfig::parametersTable();
    m_parameters->show(parameters);
    connect(m_parameters, &TablePanel::currentRowChanged, this, showUnits);
    m_parameters->view().selectRow(1); // behind None, which has no units
    connect(m_parameters, &TablePanel::rowActivated, this, [this](qsizetype row) {
        if (snapshot()) {
            emit placeWanted(placeOfParameter(parameter(row), snapshot()->root()));
        }
    });
    addPage(u"%1 (%2)"_s.arg(tableWord(parameters.name)).arg(parameters.rows.size()), page, m_parameters);
}

QString UnitsTab::parameter(qsizetype row) const
{
    return m_parameters->table().rows.at(row).constFirst().toString();
}

} // namespace cluiedit
