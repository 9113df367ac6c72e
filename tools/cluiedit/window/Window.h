#pragma once

#include "DocumentFile.h"
#include "Recovery.h"

#include <cluiedit/reading/Reader.h>
#include <cluiedit/reading/Snapshot.h>

#include <QList>
#include <QMainWindow>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

class QAction;
class QKeySequence;
class QLabel;
class QMenu;
class QSplitter;
class QTabWidget;

namespace cluiedit {

class BackgroundLoad;
class DocumentPane;
class Editor;
class FindAnything;
enum class FindKind;
class FindingsPanel;
class LoadingBar;
class Measurement;
class Notices;
class PlotTab;
class Tab;
class Veil;

/// The window: the document on the left, what it gives in tabs on the right, what the check found below.
///
/// Every change of the text is read beside the user interface. What was made of it is shown in the findings at once
/// and, if the application would load it, in the tab that is in view; the other tabs follow when they come into view.
/// While the document is refused, the tabs keep what they show, greyed.
class Window : public QMainWindow
{
    Q_OBJECT

public:
    explicit Window(QWidget* parent = nullptr);
    ~Window() override;

    /// Shows the shipped document, as one that has no file yet.
    void newDocument();

    /// Opens the document \p path. False, with a notice in the window, when it cannot be opened; then nothing changes.
    bool openDocument(const QString& path);
    /// Why openDocument() or save() failed; empty when it did not.
    QString whyNot() const;

    /// Loads measurements in the background, beside those that are there; they replace the demonstration cell.
    void openData(const QStringList& paths);

    /// Saves the document in its file, or asks for one. False, with a notice, when that cannot be done.
    bool save();
    bool saveAs(const QString& path);

    /// Offers what other editors left unsaved.
    void offerLostTexts();

    /// Whether nothing is being read or loaded: what is shown is right.
    bool isSettled() const;

    /// Brings the tab into view that has \p name in English ("Plot", "Axes", …); false if there is none.
    bool showTab(const QString& name);
    QStringList tabNames() const;
    /// Plots the representation of that name; false if the document that is shown has none.
    bool plotRepresentation(const QString& name);

    /// What the tabs show is made of this one; null until a document has loaded.
    const std::shared_ptr<const Snapshot>& shown() const { return m_shown; }
    Editor* editor() const { return m_editor; }

signals:
    /// isSettled() has become true.
    void settled();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Page
    {
        QString name; // in English, for showTab()
        std::function<Tab*()> make;
        Tab* tab = nullptr; // made when it first comes into view
        std::shared_ptr<const Snapshot> presented{};
    };

    void makeActions();
    QAction* addAction(QMenu* menu, const QString& text, const QKeySequence& keys, const std::function<void()>& action);
    void addPage(const QString& name, const QString& title, const std::function<Tab*()>& make);
    void makeTab(Page& page);

    void textChanged();
    void take(const std::shared_ptr<const Snapshot>& snapshot);
    void presentCurrentTab();
    void showRefusal(const Snapshot& snapshot);
    void showTitle();
    void announceIfSettled();

    bool mayDropText();
    void setText(const QByteArray& text);
    bool saveTo(const QString& path, bool evenIfChanged);
    void askOpenDocument();
    void askSaveAs();
    void askOpenData();
    void layOut();
    void fileChangedByOthers();
    void compareWithFile();
    void takeFromFile();
    void forgetUnsaved();
    void keepUnsaved();
    void recover(const LostText& lost);

    void dataLoaded(const std::shared_ptr<const Measurement>& measurement, const QStringList& unknownColumns);
    void closeData();
    void goToPlace(const QString& pointer);
    void goToAnything(FindKind kind, const QString& name, const QString& pointer);

    void addRecent(const QString& path);
    void showRecent();
    void restoreSettings();
    void saveSettings() const;

    DocumentFile m_file;
    Recovery m_recovery;
    QTimer m_keepTimer; // for text that is not saved
    Reader m_reader;
    std::shared_ptr<const Snapshot> m_read; // the last one
    std::shared_ptr<const Snapshot> m_shown; // the last one that loads
    QList<std::shared_ptr<const Measurement>> m_measurements;
    std::shared_ptr<const Measurement> m_demonstration; // null until it is made
    bool m_isDemonstration = true; // it is shown, since no measurements are open
    bool m_wasSettled = true;

    QSplitter* m_splitter;
    DocumentPane* m_document;
    Editor* m_editor;
    Notices* m_notices;
    QTabWidget* m_tabs;
    Veil* m_veil; // over the tabs, while the document is refused
    QLabel* m_refusal;
    FindingsPanel* m_findings;
    BackgroundLoad* m_load;
    LoadingBar* m_loading;
    PlotTab* m_plot;
    FindAnything* m_anything;
    QMenu* m_recent = nullptr;
    QList<Page> m_pages;
};

} // namespace cluiedit
