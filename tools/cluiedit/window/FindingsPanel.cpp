#include "FindingsPanel.h"

#include <check/Rules.h>

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;
using cluiconfig::check::Finding;
using cluiconfig::check::Severity;

namespace cluiedit {

namespace {

/// Leaves out the severities that nobody wants to see.
class SeverityFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void show(bool errors, bool warnings)
    {
        m_showsErrors = errors;
        m_showsWarnings = warnings;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& /*parent*/) const override
    {
        const auto* model = qobject_cast<const FindingsModel*>(sourceModel());
        return model->findings().at(row).severity == Severity::Error ? m_showsErrors : m_showsWarnings;
    }

private:
    bool m_showsErrors = true;
    bool m_showsWarnings = true;
};

QIcon iconOf(Severity severity)
{
    const auto icon = severity == Severity::Error ? QStyle::SP_MessageBoxCritical : QStyle::SP_MessageBoxWarning;
    return QApplication::style()->standardIcon(icon);
}

QString nameOf(Severity severity)
{
    return severity == Severity::Error ? FindingsPanel::tr("Error") : FindingsPanel::tr("Warning");
}

} // namespace

void FindingsModel::setFindings(const QList<Finding>& findings)
{
    beginResetModel();
    m_findings = findings;
    endResetModel();
}

int FindingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_findings.size());
}

int FindingsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Finding& finding = m_findings.at(index.row());
    switch (index.column()) {
    case SeverityColumn:
        return role == Qt::DecorationRole ? QVariant(iconOf(finding.severity))
            : role == Qt::DisplayRole     ? QVariant(nameOf(finding.severity))
                                          : QVariant();
    case MessageColumn:
        return role == Qt::DisplayRole || role == Qt::ToolTipRole ? QVariant(finding.message) : QVariant();
    case LineColumn:
        return role == Qt::DisplayRole      ? QVariant(finding.line)
            : role == Qt::TextAlignmentRole ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                            : QVariant();
    default:
        return role == Qt::DisplayRole ? QVariant(describe(finding.rule).name)
            : role == Qt::ToolTipRole  ? QVariant(describe(finding.rule).meaning)
                                       : QVariant();
    }
}

QVariant FindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case SeverityColumn:
        return tr("Severity");
    case MessageColumn:
        return tr("Message");
    case LineColumn:
        return tr("Line");
    default:
        return tr("Rule");
    }
}

FindingsPanel::FindingsPanel(QWidget* parent)
    : QWidget(parent)
    , m_model(new FindingsModel(this))
    , m_sorted(new SeverityFilter(this))
    , m_showsErrors(new QCheckBox(this))
    , m_showsWarnings(new QCheckBox(this))
    , m_table(new QTableView(this))
{
    m_sorted->setSourceModel(m_model);
    m_table->setModel(m_sorted);
    m_table->setAccessibleName(tr("Findings"));
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(-1, Qt::AscendingOrder); // as they come: what the application says first, first
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() * 3 / 2);
    QHeaderView* header = m_table->horizontalHeader();
    header->setSectionResizeMode(FindingsModel::MessageColumn, QHeaderView::Stretch);
    header->setHighlightSections(false);
    const int letter = m_table->fontMetrics().averageCharWidth();
    m_table->setColumnWidth(FindingsModel::SeverityColumn, 14 * letter);
    m_table->setColumnWidth(FindingsModel::LineColumn, 9 * letter);
    m_table->setColumnWidth(FindingsModel::RuleColumn, 26 * letter);

    m_showsErrors->setChecked(true);
    m_showsWarnings->setChecked(true);
    auto* switches = new QHBoxLayout;
    switches->addWidget(m_showsErrors);
    switches->addWidget(m_showsWarnings);
    switches->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 0, 4, 4);
    layout->setSpacing(2);
    layout->addLayout(switches);
    layout->addWidget(m_table);

    connect(m_showsErrors, &QCheckBox::toggled, this, &FindingsPanel::filter);
    connect(m_showsWarnings, &QCheckBox::toggled, this, &FindingsPanel::filter);
    connect(m_table, &QTableView::activated, this, &FindingsPanel::goTo);
    connect(m_table, &QTableView::clicked, this, &FindingsPanel::goTo);
    m_model->setFindings({});
    setFindings({});
    filter();
}

void FindingsPanel::setFindings(const QList<Finding>& findings)
{
    m_errors = static_cast<int>(std::ranges::count(findings, Severity::Error, &Finding::severity));
    m_warnings = static_cast<int>(findings.size()) - m_errors;
    m_showsErrors->setText(tr("Error&s (%1)").arg(m_errors));
    m_showsWarnings->setText(tr("&Warnings (%1)").arg(m_warnings));
    if (!std::ranges::equal(findings, m_model->findings(), &Finding::saysTheSameAs)) {
        m_model->setFindings(findings);
    }
}

void FindingsPanel::step(int by)
{
    const int rows = m_sorted->rowCount();
    if (rows > 0) {
        const QModelIndex current = m_table->currentIndex();
        const int row = current.isValid() ? (current.row() + by + rows) % rows : by > 0 ? 0 : rows - 1;
        m_table->setCurrentIndex(m_sorted->index(row, FindingsModel::MessageColumn));
        goTo(m_table->currentIndex());
    }
}

void FindingsPanel::filter()
{
    static_cast<SeverityFilter*>(m_sorted)->show(m_showsErrors->isChecked(), m_showsWarnings->isChecked());
}

void FindingsPanel::goTo(const QModelIndex& index)
{
    const QModelIndex source = m_sorted->mapToSource(index);
    if (source.isValid()) {
        emit placeWanted(m_model->findings().at(source.row()).offset);
    }
}

} // namespace cluiedit
