// The menus of the window.

#include "FindingsPanel.h"
#include "Window.h"

#include <cluiedit/plot/PlotTab.h>
#include <cluiedit/tabs/FindAnything.h>
#include <cluiedit/text/DocumentPane.h>
#include <cluiedit/text/Editor.h>

#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace cluiedit {

QAction* Window::addAction(QMenu* menu, const QString& text, const QKeySequence& keys,
                           const std::function<void()>& action)
{
    QAction* added = menu->addAction(text, this, action);
    added->setShortcut(keys);
    return added;
}

void Window::makeActions()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    addAction(file, tr("&New from the shipped document"), QKeySequence::New, [this] {
        if (mayDropText()) {
            newDocument();
        }
    });
    addAction(file, tr("&Open…"), QKeySequence::Open, [this] { askOpenDocument(); });
    m_recent = file->addMenu(tr("Open &recent"));
    connect(m_recent, &QMenu::aboutToShow, this, &Window::showRecent);
    addAction(file, tr("&Save"), QKeySequence::Save, [this] { save(); });
    addAction(file, tr("Save &as…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, [this] { askSaveAs(); });
    file->addSeparator();
    addAction(file, tr("Open &measurements…"), Qt::CTRL | Qt::SHIFT | Qt::Key_O, [this] { askOpenData(); });
    addAction(file, tr("&Close measurements"), {}, [this] { closeData(); });
    addAction(file, tr("&Export the plot…"), Qt::CTRL | Qt::Key_E, [this] { m_plot->askAndExport(); });
    file->addSeparator();
    addAction(file, tr("&Quit"), QKeySequence::Quit, [this] { close(); });

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    addAction(edit, tr("&Undo"), QKeySequence::Undo, [this] { m_editor->undo(); });
    addAction(edit, tr("Re&do"), QKeySequence::Redo, [this] { m_editor->redo(); });
    edit->addSeparator();
    edit->addActions(m_document->actions());
    addAction(edit, tr("Find &anything…"), Qt::CTRL | Qt::Key_P, [this] { m_anything->open(); });
    edit->addSeparator();
    addAction(edit, tr("Co&mplete"), Qt::CTRL | Qt::Key_Space, [this] { m_editor->complete(); });
    addAction(edit, tr("M&end what was found here"), Qt::ALT | Qt::Key_Return, [this] { m_editor->mend(); });
    addAction(edit, tr("&Lay out"), Qt::CTRL | Qt::SHIFT | Qt::Key_F, [this] { layOut(); });

    QMenu* go = menuBar()->addMenu(tr("&Go"));
    addAction(go, tr("To the &definition"), Qt::Key_F12, [this] { m_editor->goToDefinition(); });
    addAction(go, tr("&Back"), Qt::ALT | Qt::Key_Left, [this] { m_editor->goBack(); });
    go->addSeparator();
    addAction(go, tr("To the &next finding"), Qt::Key_F8, [this] { m_findings->step(1); });
    addAction(go, tr("To the &previous finding"), Qt::SHIFT | Qt::Key_F8, [this] { m_findings->step(-1); });
    go->addSeparator();
    addAction(go, tr("To the d&ocument"), Qt::CTRL | Qt::Key_0, [this] { m_editor->setFocus(); });
    for (int i = 0; i < m_tabs->count(); ++i) {
        addAction(go, tr("To the tab %1").arg(m_tabs->tabText(i)), QKeySequence(Qt::CTRL | (Qt::Key_1 + i)), [this, i] {
            m_tabs->setCurrentIndex(i);
            m_tabs->tabBar()->setFocus();
        });
    }

    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->addAction(findChild<QDockWidget*>()->toggleViewAction());
    addAction(view, tr("&Drawing of graphs…"), {}, [this] { m_plot->changeRendering(); });

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    addAction(help, tr("&About cluiedit"), {}, [this] {
        QMessageBox::about(this, tr("About cluiedit"),
                           tr("cluiedit %1\n\nShows what a configuration document gives the application while it is "
                              "being written, and what is wrong with it.")
                               .arg(QCoreApplication::applicationVersion()));
    });
    addAction(help, tr("About &Qt"), {}, [this] { QMessageBox::aboutQt(this); });
}

} // namespace cluiedit
