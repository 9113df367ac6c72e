// What the window does with files.

#include "CompareDialog.h"
#include "Notice.h"
#include "Window.h"

#include <cluiedit/text/Editor.h>
#include <config/UIConfig.h>
#include <document/JsonLayout.h>

#include <QBuffer>
#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

/// Of the file dialog, which the application words and has no translation of.
[[maybe_unused]] constexpr const char* CsvFiles = QT_TRANSLATE_NOOP("ui_config", "CL-Test CSV Files (*.csv)");

constexpr auto FileNotice = "file"_L1; // of what concerns the document's file
constexpr auto LostNotice = "lost"_L1;
constexpr auto GeometryKey = "window/geometry"_L1;
constexpr auto StateKey = "window/state"_L1;
constexpr auto SplitterKey = "window/splitter"_L1;
constexpr auto RecentKey = "files/recent"_L1;
constexpr auto BoardKey = "files/lastDirectory"_L1;
constexpr auto ImportKey = "files/lastImportDirectory"_L1;
constexpr auto ExportKey = "files/lastExportDirectory"_L1;
constexpr qsizetype MostRecent = 10;

UIConfig& preferences()
{
    return lumo::tools::Singleton<UIConfig>::instance();
}

/// \p directory, or the user's documents where there is none yet.
QString orDocuments(const QString& directory)
{
    return directory.isEmpty() ? preferences().getDefaultAppDirectory() : directory;
}

QString directoryOf(const QString& path)
{
    return QFileInfo(path).absolutePath();
}

QString documentFilter()
{
    return Window::tr("Configuration documents (*.json);;All files (*)");
}

} // namespace

void Window::newDocument()
{
    QFile shipped(u":/cluiconfig/UIConfig.json"_s);
    if (shipped.open(QIODevice::ReadOnly)) {
        m_file.close();
        setText(shipped.readAll());
    }
}

bool Window::openDocument(const QString& path)
{
    QString error;
    const std::optional<QByteArray> bytes = m_file.open(path, error);
    if (!bytes) {
        m_notices->show(FileNotice, {.text = error, .answers = {}});
        return false;
    }
    setText(*bytes);
    addRecent(m_file.path());
    return true;
}

QString Window::whyNot() const
{
    return m_notices->text(FileNotice);
}

void Window::setText(const QByteArray& text)
{
    m_notices->hide(FileNotice);
    m_reader.setName(m_file.path().isEmpty() ? m_file.name() : m_file.path());
    m_editor->open(text);
    textChanged();
    forgetUnsaved();
    showTitle();
}

bool Window::mayDropText()
{
    if (!m_editor->isModified()) {
        return true;
    }
    QMessageBox box(QMessageBox::Question, tr("Unsaved text"),
                    tr("The changes to “%1” are not saved.").arg(m_file.name()),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void Window::closeEvent(QCloseEvent* event)
{
    if (mayDropText()) {
        forgetUnsaved();
        saveSettings();
        event->accept();
    } else {
        event->ignore();
    }
}

bool Window::save()
{
    if (m_file.path().isEmpty()) {
        askSaveAs();
        return !m_editor->isModified();
    }
    return saveTo(m_file.path(), false);
}

bool Window::saveAs(const QString& path)
{
    return saveTo(path, true);
}

bool Window::saveTo(const QString& path, bool evenIfChanged)
{
    if (!evenIfChanged && m_file.changeByOthers()) {
        fileChangedByOthers();
        return false;
    }
    QString error;
    if (!m_file.save(path, m_editor->bytes(), error)) {
        m_notices->show(FileNotice, {.text = error, .answers = {}});
        return false;
    }
    m_notices->hide(FileNotice);
    m_editor->setModified(false);
    forgetUnsaved();
    m_reader.setName(m_file.path());
    addRecent(m_file.path());
    showTitle();
    statusBar()->showMessage(tr("Saved as %1").arg(m_file.path()), 5000);
    return true;
}

void Window::askOpenDocument()
{
    if (!mayDropText()) {
        return;
    }
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open a document"), orDocuments(preferences().getLastDirectoryBoard()), documentFilter());
    if (!path.isEmpty()) {
        preferences().setLastDirectoryBoard(directoryOf(path));
        openDocument(path);
    }
}

void Window::askSaveAs()
{
    const QString directory = orDocuments(preferences().getLastDirectoryBoard());
    const QString proposal = m_file.path().isEmpty() ? directory + u'/' + UIConfig::uiConfigJson() : m_file.path();
    const QString path = QFileDialog::getSaveFileName(this, tr("Save the document as"), proposal, documentFilter());
    if (!path.isEmpty()) {
        preferences().setLastDirectoryBoard(directoryOf(path));
        saveAs(path); // the dialog has asked whether to replace the file
    }
}

void Window::askOpenData()
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        this, tr("Open measurements"), orDocuments(preferences().getLastDirectoryImport()),
        preferences().csvFileNameFilter() + u";;"_s + tr("All files (*)"));
    if (!paths.isEmpty()) {
        preferences().setLastDirectoryImport(directoryOf(paths.constFirst()));
        openData(paths);
    }
}

void Window::layOut()
{
    const QByteArray text = m_editor->bytes();
    cluiconfig::JsonLayout layout;
    QString error;
    if (!layout.read(text, error)) {
        m_notices->show(u"layout"_s, {.text = tr("Only valid JSON can be laid out: %1").arg(error), .answers = {}});
        return;
    }
    QBuffer laidOut;
    laidOut.open(QIODevice::WriteOnly);
    layout.write(laidOut);
    m_notices->hide(u"layout"_s);
    if (laidOut.data() != text) {
        m_editor->replaceText(laidOut.data());
    }
}

void Window::fileChangedByOthers()
{
    const QString keep = m_editor->isModified() ? tr("&Keep mine and save") : tr("&Keep this text");
    m_notices->show(FileNotice,
                    {.text = tr("Another program has changed “%1”.").arg(m_file.name()),
                     .answers = {{tr("Co&mpare…"),
                                  [this] {
                                      compareWithFile();
                                      fileChangedByOthers();
                                  }},
                                 {tr("&Take the file"), [this] { takeFromFile(); }},
                                 {keep, [this] { saveTo(m_file.path(), true); }}}});
}

void Window::compareWithFile()
{
    CompareDialog dialog(m_editor->bytes(), m_file.changeByOthers().value_or(m_file.known()), this);
    dialog.exec();
}

void Window::takeFromFile()
{
    QString error;
    // As a step that can be undone: what was typed is not lost by it.
    const std::optional<QByteArray> bytes = m_file.open(m_file.path(), error);
    if (!bytes) {
        m_notices->show(FileNotice, {.text = error, .answers = {}});
        return;
    }
    m_editor->replaceText(*bytes);
    m_editor->setModified(false);
    forgetUnsaved();
    showTitle();
}

void Window::forgetUnsaved()
{
    m_recovery.forget();
    m_keepTimer.stop();
}

void Window::keepUnsaved()
{
    if (!m_editor->isModified()) {
        m_recovery.forget();
    } else if (!m_recovery.keep(m_file.path(), m_editor->bytes())) {
        statusBar()->showMessage(tr("The unsaved text cannot be kept on the disk: save it soon."));
    }
}

void Window::offerLostTexts()
{
    const QList<LostText> lost = m_recovery.lost();
    if (lost.isEmpty()) {
        return;
    }
    const LostText& last = lost.constFirst();
    const QString name = last.path.isEmpty() ? tr("a document without a file") : last.path;
    m_notices->show(
        LostNotice,
        {.text = tr("Unsaved text of %1 was found, from %2.")
                     .arg(name, QLocale().toString(last.time, QLocale::ShortFormat)),
         .answers = {{tr("Recover &it"), [this, last] { recover(last); }}, {tr("Discard i&t"), [this, last] {
                                                                                m_recovery.discard(last);
                                                                                offerLostTexts();
                                                                            }}}});
}

void Window::recover(const LostText& lost)
{
    if (!mayDropText()) {
        offerLostTexts();
        return;
    }
    QString error;
    const std::optional<QByteArray> saved = lost.path.isEmpty() ? std::nullopt : m_file.open(lost.path, error);
    if (!saved) {
        m_file.close();
    }
    setText(saved.value_or(QByteArray()));
    m_editor->replaceText(lost.text);
    keepUnsaved(); // before the file that it comes from goes
    m_recovery.discard(lost);
    offerLostTexts();
}

void Window::addRecent(const QString& path)
{
    QSettings settings;
    QStringList recent = settings.value(RecentKey).toStringList();
    recent.removeAll(path);
    recent.prepend(path);
    settings.setValue(RecentKey, QStringList(recent.first(std::min(recent.size(), MostRecent))));
}

void Window::showRecent()
{
    m_recent->clear();
    const QStringList recent = QSettings().value(RecentKey).toStringList();
    int number = 0;
    for (const QString& path : recent) {
        m_recent->addAction(u"&%1 %2"_s.arg(++number % 10).arg(QString(path).replace(u'&', u"&&"_s)), this,
                            [this, path] {
                                if (mayDropText()) {
                                    openDocument(path);
                                }
                            });
    }
    if (recent.isEmpty()) {
        m_recent->addAction(tr("None yet"))->setEnabled(false);
    }
}

void Window::restoreSettings()
{
    const QSettings settings;
    restoreGeometry(settings.value(GeometryKey).toByteArray());
    restoreState(settings.value(StateKey).toByteArray());
    m_splitter->restoreState(settings.value(SplitterKey).toByteArray());
    preferences().setLastDirectoryBoard(settings.value(BoardKey).toString());
    preferences().setLastDirectoryImport(settings.value(ImportKey).toString());
    preferences().setLastDirectoryExport(settings.value(ExportKey).toString());
}

void Window::saveSettings() const
{
    QSettings settings;
    settings.setValue(GeometryKey, saveGeometry());
    settings.setValue(StateKey, saveState());
    settings.setValue(SplitterKey, m_splitter->saveState());
    settings.setValue(BoardKey, preferences().getLastDirectoryBoard());
    settings.setValue(ImportKey, preferences().getLastDirectoryImport());
    settings.setValue(ExportKey, preferences().getLastDirectoryExport());
}

} // namespace cluiedit
