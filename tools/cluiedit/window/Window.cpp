#include "Window.h"

#include "FindingsPanel.h"
#include "Notice.h"
#include "Veil.h"

#include <check/Places.h>
#include <cluiedit/data/BackgroundLoad.h>
#include <cluiedit/data/DemonstrationCell.h>
#include <cluiedit/data/LoadingBar.h>
#include <cluiedit/plot/PlotTab.h>
#include <cluiedit/reading/Catalogue.h>
#include <cluiedit/tabs/AxesTab.h>
#include <cluiedit/tabs/ColorsTab.h>
#include <cluiedit/tabs/FindAnything.h>
#include <cluiedit/tabs/TablesTab.h>
#include <cluiedit/tabs/UnitsTab.h>
#include <cluiedit/text/DocumentPane.h>
#include <cluiedit/text/Editor.h>

#include <QCloseEvent>
#include <QDockWidget>
#include <QFutureWatcher>
#include <QLabel>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtConcurrentRun>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

constexpr int KeepInterval = 1000; // ms, from the first change that is not saved to the disk

} // namespace

Window::Window(QWidget* parent)
    : QMainWindow(parent)
    , m_recovery(Recovery::usualDirectory())
    , m_reader([this] { return m_editor->bytes(); })
    , m_splitter(new QSplitter(Qt::Horizontal, this))
    , m_document(new DocumentPane(this))
    , m_editor(&m_document->editor())
    , m_notices(new Notices(this))
    , m_tabs(new QTabWidget(this))
    , m_veil(new Veil(m_tabs))
    , m_refusal(new QLabel(this))
    , m_findings(new FindingsPanel(this))
    , m_load(new BackgroundLoad(catalogue(), this))
    , m_loading(new LoadingBar(*m_load, this))
    , m_plot(new PlotTab(this))
    , m_anything(new FindAnything(this))
{
    auto* left = new QWidget(this);
    auto* leftLayout = new QVBoxLayout(left);
    leftLayout->setContentsMargins(0, 0, 0, 0);
    leftLayout->setSpacing(0);
    leftLayout->addWidget(m_notices);
    leftLayout->addWidget(m_document, 1);

    m_refusal->setTextFormat(Qt::RichText);
    m_refusal->setWordWrap(true);
    m_refusal->setMargin(6);
    m_refusal->setAutoFillBackground(true);
    m_refusal->setBackgroundRole(QPalette::ToolTipBase);
    m_refusal->setForegroundRole(QPalette::ToolTipText);
    m_refusal->setTextInteractionFlags(Qt::TextBrowserInteraction);
    m_refusal->hide();
    auto* right = new QWidget(this);
    auto* rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    rightLayout->setSpacing(0);
    rightLayout->addWidget(m_refusal);
    rightLayout->addWidget(m_tabs, 1);
    rightLayout->addWidget(m_loading);

    m_splitter->addWidget(left);
    m_splitter->addWidget(right);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 1);
    setCentralWidget(m_splitter);

    auto* dock = new QDockWidget(tr("Findings"), this);
    dock->setObjectName(u"findings"_s);
    dock->setWidget(m_findings);
    addDockWidget(Qt::BottomDockWidgetArea, dock);
    resizeDocks({dock}, {150}, Qt::Vertical);

    m_tabs->setDocumentMode(true);
    addPage(u"Plot"_s, tr("Plot"), [this] { return m_plot; });
    addPage(u"Axes"_s, tr("Axes"), [] { return new AxesTab; });
    addPage(u"Colours"_s, tr("Colours"), [] { return new ColorsTab; });
    addPage(u"Columns"_s, tr("Columns"), [] { return makeColumnsTab(); });
    addPage(u"Graphs"_s, tr("Graphs"), [] { return makeGraphsTab(); });
    addPage(u"Recipes"_s, tr("Recipes"), [] { return makeRecipesTab(); });
    addPage(u"Units"_s, tr("Units"), [] { return new UnitsTab; });
    addPage(u"Other"_s, tr("Other"), [] { return makeOtherTab(); });
    makeTab(m_pages.first());

    makeActions();
    statusBar()->setSizeGripEnabled(true);

    m_keepTimer.setSingleShot(true);
    m_keepTimer.setInterval(KeepInterval);
    connect(&m_keepTimer, &QTimer::timeout, this, &Window::keepUnsaved);
    connect(&m_file, &DocumentFile::changedByOthers, this, &Window::fileChangedByOthers);
    connect(&m_reader, &Reader::made, this, &Window::take);
    connect(m_editor, &Editor::bytesChanged, this, &Window::textChanged);
    connect(m_editor, &QsciScintilla::modificationChanged, this, &Window::showTitle);
    connect(m_tabs, &QTabWidget::currentChanged, this, &Window::presentCurrentTab);
    connect(m_findings, &FindingsPanel::placeWanted, m_editor, &Editor::goTo);
    connect(m_refusal, &QLabel::linkActivated, this,
            [this](const QString& offset) { m_editor->goTo(offset.toLongLong()); });
    connect(m_anything, &FindAnything::chosen, this, &Window::goToAnything);
    connect(m_load, &BackgroundLoad::loaded, this, &Window::dataLoaded);
    connect(m_load, &BackgroundLoad::failed, this, [this](const QString& path, const QString& error) {
        m_notices->show(path, {.text = error, .answers = {}});
    });
    connect(m_load, &BackgroundLoad::finished, this, &Window::announceIfSettled);

    resize(1280, 800);
    m_splitter->setSizes({width() / 2, width() / 2});
    restoreSettings();
    newDocument();
    // Made beside the user interface, so that the window need not wait for it.
    using Cell = std::shared_ptr<const Measurement>;
    auto* watcher = new QFutureWatcher<Cell>(this); // unlike what is told to follow, it may go before the end
    connect(watcher, &QFutureWatcherBase::finished, this, [this, watcher] {
        m_demonstration = watcher->result();
        if (m_isDemonstration) {
            m_plot->setMeasurements({m_demonstration});
        }
        watcher->deleteLater();
        announceIfSettled();
    });
    watcher->setFuture(
        QtConcurrent::run([] { return Cell(std::make_shared<const Measurement>(demonstrationCell(catalogue()))); }));
}

Window::~Window() = default;

void Window::addPage(const QString& name, const QString& title, const std::function<Tab*()>& make)
{
    m_pages.append({.name = name, .make = make});
    auto* place = new QWidget;
    (new QVBoxLayout(place))->setContentsMargins(0, 0, 0, 0);
    const int index = m_tabs->addTab(place, title);
    m_tabs->setTabToolTip(index, QKeySequence(Qt::CTRL | (Qt::Key_1 + index)).toString(QKeySequence::NativeText));
}

void Window::makeTab(Page& page)
{
    page.tab = page.make();
    QWidget* place = m_tabs->widget(static_cast<int>(&page - m_pages.constData()));
    place->layout()->addWidget(page.tab);
    connect(page.tab, &Tab::placeWanted, this, &Window::goToPlace);
    connect(page.tab, &Tab::plotWanted, this, [this](const QString& x, const QString& y) {
        showTab(u"Plot"_s);
        m_plot->plot(x, y);
    });
}

bool Window::showTab(const QString& name)
{
    const auto page = std::ranges::find(m_pages, name, &Page::name);
    if (page == m_pages.end()) {
        return false;
    }
    m_tabs->setCurrentIndex(static_cast<int>(page - m_pages.begin()));
    return true;
}

QStringList Window::tabNames() const
{
    QStringList names;
    for (const Page& page : m_pages) {
        names.append(page.name);
    }
    return names;
}

bool Window::isSettled() const
{
    return !m_reader.isBehind() && !m_load->isLoading() && (m_demonstration || !m_isDemonstration);
}

void Window::announceIfSettled()
{
    const bool isNow = isSettled();
    if (isNow && !std::exchange(m_wasSettled, isNow)) {
        emit settled();
    }
    m_wasSettled = isNow;
}

void Window::textChanged()
{
    m_wasSettled = false;
    m_reader.textChanged();
    if (!m_keepTimer.isActive()) {
        m_keepTimer.start();
    }
}

void Window::take(const std::shared_ptr<const Snapshot>& snapshot)
{
    m_read = snapshot;
    const auto& findings = snapshot->result.findings;
    m_editor->showFindings(findings);
    m_findings->setFindings(findings);
    if (snapshot->loads()) {
        m_shown = snapshot;
        m_editor->setLastGood(snapshot);
        m_anything->present(snapshot);
        presentCurrentTab();
    }
    showRefusal(*snapshot);
    showTitle();
    announceIfSettled();
}

void Window::presentCurrentTab()
{
    Page& page = m_pages[m_tabs->currentIndex()];
    if (page.tab == nullptr) {
        makeTab(page);
    }
    if (m_shown && page.presented != m_shown) {
        page.tab->present(m_shown);
        page.presented = m_shown;
    }
}

void Window::showRefusal(const Snapshot& snapshot)
{
    const bool isRefused = !snapshot.loads();
    if (isRefused) {
        const auto& findings = snapshot.result.findings;
        const QString sentence = tr("The application refuses this document: %1").arg(snapshot.result.verdict.error);
        const QString link = findings.isEmpty() ? QString()
                                                : u" <a href=\"%1\">%2</a>"_s.arg(findings.constFirst().offset)
                                                      .arg(tr("Go to line %1").arg(findings.constFirst().line));
        m_refusal->setText(sentence.toHtmlEscaped() + link);
        m_refusal->setAccessibleName(sentence);
    }
    m_refusal->setVisible(isRefused);
    m_veil->setVisible(isRefused);
}

void Window::showTitle()
{
    const int errorCount = m_findings->errorCount();
    const int warningCount = m_findings->warningCount();
    const QString errors = errorCount == 1 ? tr("1 error") : tr("%1 errors").arg(errorCount);
    const QString warnings = warningCount == 1 ? tr("1 warning") : tr("%1 warnings").arg(warningCount);
    setWindowTitle(tr("%1[*] – %2, %3 – cluiedit").arg(m_file.name(), errors, warnings));
    setWindowFilePath(m_file.path());
    setWindowModified(m_editor->isModified());
}

void Window::goToPlace(const QString& pointer)
{
    // The text may have changed since: what the pointer leads to in the text that was read last is near enough.
    if (m_read && !m_read->root().isEmpty()) {
        m_editor->goTo(cluiconfig::check::offsetOf(m_read->text, m_read->root(), pointer));
    }
}

bool Window::plotRepresentation(const QString& name)
{
    if (!m_shown) {
        return false;
    }
    const auto& representations = m_shown->configuration().representations;
    const auto chosen = std::ranges::find(representations, name, &ConfigRepresentation::name);
    if (chosen == representations.end()) {
        return false;
    }
    showTab(u"Plot"_s);
    m_plot->plot(chosen->x(), chosen->y1(), chosen->y2());
    return true;
}

void Window::goToAnything(FindKind kind, const QString& name, const QString& pointer)
{
    if (kind == FindKind::Representation) {
        plotRepresentation(name);
    }
    if (!pointer.isEmpty()) {
        goToPlace(pointer);
    }
}

void Window::dataLoaded(const std::shared_ptr<const Measurement>& measurement, const QStringList& unknownColumns)
{
    if (std::exchange(m_isDemonstration, false)) {
        m_measurements.clear();
    }
    m_measurements.append(measurement);
    m_plot->setMeasurements(m_measurements);
    if (!unknownColumns.isEmpty()) {
        m_notices->show(measurement->name(),
                        {.text = tr("“%1”: left out are columns that the catalogue does not know: %2")
                                     .arg(measurement->name(), unknownColumns.join(u", "_s)),
                         .answers = {},
                         .isWarning = false});
    }
}

void Window::closeData()
{
    m_isDemonstration = true;
    m_measurements.clear();
    m_plot->setMeasurements(m_demonstration ? QList{m_demonstration} : QList<std::shared_ptr<const Measurement>>());
}

void Window::openData(const QStringList& paths)
{
    m_wasSettled = false;
    m_load->load(paths);
}

} // namespace cluiedit
