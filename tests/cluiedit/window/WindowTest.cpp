// The window as people use it: type, see what is wrong, switch tabs, open, save, lose and recover.

#include "Files.h"

#include <cluiedit/window/Window.h>

#include <check/Check.h>
#include <cluiedit/i18n/Translation.h>
#include <cluiedit/tabs/Tab.h>
#include <cluiedit/text/Editor.h>
#include <cluiedit/window/FindingsPanel.h>
#include <cluiedit/window/Notice.h>
#include <cluiedit/window/Veil.h>
#include <config/UIConfig.h>
#include <data/ShippedFile.h>
#include <document/DocumentTables.h>
#include <support/DocumentMutator.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using cluiedit::Window;
using testing::HasSubstr;

namespace {

class WindowOf : public testing::Test
{
protected:
    void SetUp() override
    {
        window->show();
        settle();
    }

    void settle() const
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return window->isSettled(); }, 30'000));
    }

    /// The text with one place replaced, as a person would change it.
    void replace(const QByteArray& before, const QByteArray& after) const
    {
        QByteArray text = window->editor()->bytes();
        const qsizetype at = text.indexOf(before);
        ASSERT_GE(at, 0) << before.toStdString();
        window->editor()->replaceText(text.replace(at, before.size(), after));
        settle();
    }

    /// The line above the tabs; empty while there is none.
    QString refusal() const
    {
        const QList<QLabel*> labels = window->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            if (label->isVisible() && label->accessibleName().startsWith(u"The application refuses"_s)) {
                return label->accessibleName();
            }
        }
        return {};
    }

    QString notice(const QString& kind) const { return window->findChild<cluiedit::Notices*>()->text(kind); }

    void answer(const QString& label) const
    {
        const QList<QPushButton*> buttons = window->findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->text() == label && button->isVisible()) {
                button->click();
                return;
            }
        }
        FAIL() << "no answer " << label.toStdString();
    }

    QString path(const QString& name) const { return directory.filePath(name); }

    QTemporaryDir directory;
    std::unique_ptr<Window> window = std::make_unique<Window>();
};

} // namespace

TEST_F(WindowOf, BeginsWithTheShippedDocument)
{
    EXPECT_EQ(window->editor()->bytes(), shippedBytes(u"UIConfig.json"_s));
    EXPECT_EQ(window->windowTitle(), u"Untitled[*] – 0 errors, 0 warnings – cluiedit"_s);
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_TRUE(window->shown()->loads());
}

TEST_F(WindowOf, ClosesBeforeAllIsMade)
{
    Window().close(); // and goes, while what it shows at first is being made
    EXPECT_TRUE(QThreadPool::globalInstance()->waitForDone());
    QTest::qWait(1);
}

TEST_F(WindowOf, SaysWhyTheDocumentIsRefusedAndKeepsWhatItShowed)
{
    const auto before = window->shown();
    replace("\"Version\": 29", "\"Version\": 28");
    EXPECT_THAT(refusal().toStdString(), HasSubstr("28"));
    EXPECT_EQ(window->shown(), before);
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("1 error, 0 warnings"));
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_TRUE(window->findChild<cluiedit::Veil*>()->isVisible());

    window->editor()->undo();
    settle();
    EXPECT_EQ(refusal(), QString());
    EXPECT_FALSE(window->findChild<cluiedit::Veil*>()->isVisible());
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(window->shown()->text, shippedBytes(u"UIConfig.json"_s));
}

TEST_F(WindowOf, TheLinkOfARefusalLeadsToItsPlace)
{
    replace("\"Voltage / V\"", "\"Voltgae / V\"");
    const QList<QLabel*> labels = window->findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->accessibleName().startsWith(u"The application refuses"_s)) {
            const qsizetype at = window->editor()->bytes().indexOf("\"Voltgae / V\"");
            EXPECT_THAT(label->text().toStdString(), HasSubstr("href=\"" + std::to_string(at) + "\""));
            emit label->linkActivated(QString::number(at));
            EXPECT_EQ(window->editor()->cursorOffset(), at);
            return;
        }
    }
    FAIL() << "no refusal";
}

TEST_F(WindowOf, TypedTextIsReadAtOnce)
{
    window->editor()->goTo(0);
    QTest::keyClicks(window->editor(), u"x"_s);
    settle();
    EXPECT_FALSE(refusal().isEmpty());
    QTest::keyClick(window->editor(), Qt::Key_Backspace);
    settle();
    EXPECT_TRUE(refusal().isEmpty());
}

TEST_F(WindowOf, FindingsAreThoseOfTheCheck)
{
    const QJsonObject shipped = shippedObject(u"UIConfig.json"_s);
    DocumentMutator mutator(7, {u"Voltage / V"_s, u"Cycle"_s, u"Black"_s});
    auto* findings = window->findChild<cluiedit::FindingsPanel*>();
    const auto* table = findings->findChild<QTableView*>();
    for (int i = 0; i < 30; ++i) {
        QByteArray text = mutator.mutatedText(shipped);
        text.truncate(i % 3 == 0 ? text.size() * i / 30 : text.size());
        window->editor()->replaceText(text);
        settle();
        write(path(u"same.json"_s), text);
        const auto report = cluiconfig::check::check(path(u"same.json"_s));
        ASSERT_EQ(table->model()->rowCount(), report.findings.size()) << text.toStdString();
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            const QString message =
                table->model()->index(row, cluiedit::FindingsModel::MessageColumn).data().toString();
            QString expected = report.findings.at(row).message;
            EXPECT_EQ(message, expected.replace(path(u"same.json"_s), u"Untitled"_s));
        }
        EXPECT_EQ(refusal().isEmpty(), report.verdict.loads);
    }
}

TEST_F(WindowOf, EveryTabShowsWhatTheTextGivesWhenItComesIntoView)
{
    replace("\"Black\"", "\"Ink\"");
    const QStringList names = window->tabNames();
    for (const QString& name : names) {
        ASSERT_TRUE(window->showTab(name));
        settle();
    }
    EXPECT_FALSE(window->showTab(u"No such tab"_s));
    EXPECT_EQ(window->shown()->configuration().colors.custom.constFirst().first, u"Ink"_s);
}

TEST_F(WindowOf, EveryTableOfADocumentIsInATab)
{
    QStringList shown{u"Axes combinations"_s}; // as a matrix
    const QStringList names = window->tabNames();
    for (const QString& name : names) {
        window->showTab(name);
        settle();
    }
    const QList<cluiedit::Tab*> tabs = window->findChildren<cluiedit::Tab*>();
    for (const cluiedit::Tab* tab : tabs) {
        const QList<QComboBox*> choosers = tab->findChildren<QComboBox*>();
        for (const QComboBox* chooser : choosers) {
            for (int i = 0; i < chooser->count(); ++i) {
                shown.append(chooser->itemText(i).section(u" ("_s, 0, 0));
            }
        }
    }
    const QList<cluiconfig::Table> tables = cluiconfig::documentTables({});
    for (const cluiconfig::Table& table : tables) {
        EXPECT_TRUE(shown.contains(table.name)) << table.name.toStdString();
    }
}

TEST_F(WindowOf, PlotsARepresentationByItsName)
{
    window->showTab(u"Axes"_s);
    EXPECT_TRUE(window->plotRepresentation(u"Nyquist plot"_s));
    EXPECT_FALSE(window->plotRepresentation(u"No such plot"_s));
    const QList<QComboBox*> choosers = window->findChildren<QComboBox*>(u"representation"_s);
    ASSERT_EQ(choosers.size(), 1);
    EXPECT_EQ(choosers.constFirst()->currentText(), u"Nyquist plot"_s);
}

TEST_F(WindowOf, SaysWhatCannotBeOpenedAndKeepsTheText)
{
    EXPECT_FALSE(window->openDocument(directory.path()));
    EXPECT_THAT(window->whyNot().toStdString(), HasSubstr("is a directory"));
    EXPECT_FALSE(window->openDocument(path(u"missing"_s)));
    write(path(u"latin1"_s), "\xE9");
    EXPECT_FALSE(window->openDocument(path(u"latin1"_s)));
    EXPECT_EQ(window->editor()->bytes(), shippedBytes(u"UIConfig.json"_s));
}

TEST_F(WindowOf, OpensWhatIsNoDocumentAsText)
{
    for (const QByteArray text : {"", "no JSON", "[1, 2]", "{\"a\": \"\xC3\xA9\"}\r\n"}) {
        write(path(u"a"_s), text);
        ASSERT_TRUE(window->openDocument(path(u"a"_s)));
        settle();
        EXPECT_EQ(window->editor()->bytes(), text);
        EXPECT_FALSE(refusal().isEmpty());
        EXPECT_FALSE(window->isWindowModified());
    }
}

TEST_F(WindowOf, OpensAndSavesALargeDocument)
{
    const QByteArray shipped = shippedBytes(u"UIConfig.json"_s);
    const QByteArray large = shipped + QByteArray(50'000'000, ' ');
    write(path(u"large.json"_s), large);
    ASSERT_TRUE(window->openDocument(path(u"large.json"_s)));
    settle();
    EXPECT_TRUE(refusal().isEmpty());
    ASSERT_TRUE(window->saveAs(path(u"copy.json"_s)));
    EXPECT_EQ(contentOf(path(u"copy.json"_s)), large);
}

TEST_F(WindowOf, SavesExactlyTheText)
{
    ASSERT_TRUE(window->saveAs(path(u"mine.json"_s)));
    EXPECT_EQ(contentOf(path(u"mine.json"_s)), shippedBytes(u"UIConfig.json"_s));
    replace("\"Black\"", "\"Ink\"");
    EXPECT_TRUE(window->isWindowModified());
    ASSERT_TRUE(window->save());
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(contentOf(path(u"mine.json"_s)), window->editor()->bytes());
    EXPECT_THAT(window->windowTitle().toStdString(), HasSubstr("mine.json[*]"));
    EXPECT_EQ(QSettings().value(u"files/recent"_s).toStringList().constFirst(), path(u"mine.json"_s));
}

TEST_F(WindowOf, SaysWhatCannotBeSaved)
{
    EXPECT_FALSE(window->saveAs(path(u"no/such/directory"_s)));
    EXPECT_THAT(window->whyNot().toStdString(), HasSubstr("cannot be written"));
}

TEST_F(WindowOf, OverwritesNoChangeOfAnotherProgramUnasked)
{
    write(path(u"a.json"_s), shippedBytes(u"UIConfig.json"_s));
    ASSERT_TRUE(window->openDocument(path(u"a.json"_s)));
    replace("\"Black\"", "\"Ink\"");
    write(path(u"a.json"_s), "{}");
    EXPECT_FALSE(window->save());
    EXPECT_EQ(contentOf(path(u"a.json"_s)), "{}");
    EXPECT_THAT(notice(u"file"_s).toStdString(), HasSubstr("Another program has changed"));

    answer(u"&Keep mine and save"_s);
    EXPECT_EQ(contentOf(path(u"a.json"_s)), window->editor()->bytes());
    EXPECT_EQ(notice(u"file"_s), QString());
}

TEST_F(WindowOf, TakesTheChangeOfAnotherProgramAsAStepThatCanBeUndone)
{
    write(path(u"a.json"_s), shippedBytes(u"UIConfig.json"_s));
    ASSERT_TRUE(window->openDocument(path(u"a.json"_s)));
    settle();
    write(path(u"a.json"_s), "{}");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !notice(u"file"_s).isEmpty(); }));
    answer(u"&Take the file"_s);
    settle();
    EXPECT_EQ(window->editor()->bytes(), "{}");
    EXPECT_FALSE(window->isWindowModified());
    window->editor()->undo();
    EXPECT_EQ(window->editor()->bytes(), shippedBytes(u"UIConfig.json"_s));
}

TEST_F(WindowOf, LoadsMeasurementsBesideTheUser)
{
    write(path(u"cell.bdf.csv"_s), "test_time_second,voltage_volt,colour\n0,3.5,red\n1,3.6,red\n");
    write(path(u"bad.bdf.csv"_s), "test_time_second\n0\nx\n");
    window->openData({path(u"cell.bdf.csv"_s), path(u"bad.bdf.csv"_s), path(u"missing"_s)});
    EXPECT_FALSE(window->isSettled());
    settle();
    EXPECT_THAT(notice(u"cell.bdf.csv"_s).toStdString(), HasSubstr("colour"));
    EXPECT_FALSE(notice(path(u"bad.bdf.csv"_s)).isEmpty());
    EXPECT_FALSE(notice(path(u"missing"_s)).isEmpty());
}

TEST_F(WindowOf, OffersWhatAnEditorLost)
{
    replace("\"Black\"", "\"Ink\"");
    const QByteArray lost = window->editor()->bytes();
    const QString kept = cluiedit::Recovery::usualDirectory();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !QDir(kept).entryList({u"*.unsaved"_s}).isEmpty(); }));
    const QString name = QDir(kept).entryList({u"*.unsaved"_s}).constFirst();
    const QByteArray content = contentOf(kept + u'/' + name);
    window->editor()->setModified(false);
    window.reset(); // which takes the text away, unlike a program that dies
    write(kept + u"/lost.unsaved"_s, content);

    window = std::make_unique<Window>();
    window->show();
    settle();
    window->offerLostTexts();
    EXPECT_THAT(notice(u"lost"_s).toStdString(), HasSubstr("Unsaved text"));
    answer(u"Recover &it"_s);
    settle();
    EXPECT_EQ(window->editor()->bytes(), lost);
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(notice(u"lost"_s), QString());
    EXPECT_FALSE(QFile::exists(kept + u"/lost.unsaved"_s));
}

TEST_F(WindowOf, LaysOutTheTextAsOneStep)
{
    const QByteArray shipped = window->editor()->bytes();
    replace("\"Version\": 29,\n", "\"Version\":29,");
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window->editor()->bytes(), shipped);
    window->editor()->undo();
    EXPECT_NE(window->editor()->bytes(), shipped);
    replace("{", "");
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(notice(u"layout"_s).toStdString(), HasSubstr("Only valid JSON"));
}

namespace {

/// The letters that stand behind an ampersand, but for those of \p texts without one.
QStringList mnemonics(const QStringList& texts)
{
    QStringList letters;
    for (const QString& text : texts) {
        const QString letter = QKeySequence::mnemonic(text).toString();
        if (!letter.isEmpty()) {
            letters.append(letter);
        }
    }
    return letters;
}

void expectEachOnce(QStringList letters, const QString& where)
{
    letters.sort();
    QStringList once = letters;
    once.removeDuplicates();
    EXPECT_EQ(letters, once) << where.toStdString() << ": " << letters.join(u' ').toStdString();
}

} // namespace

class WindowInEachLanguage : public WindowOf, public testing::WithParamInterface<QLocale::Language>
{
protected:
    void SetUp() override
    {
        window.reset();
        cluiedit::installTranslations(QLocale(GetParam()));
        window = std::make_unique<Window>();
        WindowOf::SetUp();
    }
};

INSTANTIATE_TEST_SUITE_P(Speaks, WindowInEachLanguage, testing::Values(QLocale::English, QLocale::German),
                         [](const auto& language) { return QLocale::languageToString(language.param).toStdString(); });

TEST_P(WindowInEachLanguage, IsInThatLanguage)
{
    const QString title = window->menuBar()->actions().constFirst()->text();
    EXPECT_EQ(title, GetParam() == QLocale::German ? u"&Datei"_s : u"&File"_s);
    EXPECT_TRUE(window->showTab(u"Colours"_s));
    const QString filter = lumo::tools::Singleton<UIConfig>::instance().csvFileNameFilter(); // of the library
    EXPECT_EQ(filter,
              GetParam() == QLocale::German ? u"CL-Test-CSV-Dateien (*.csv)"_s : u"CL-Test CSV Files (*.csv)"_s);
}

TEST_P(WindowInEachLanguage, EveryMenuHasItsOwnMnemonics)
{
    const QList<QMenu*> menus = window->menuBar()->findChildren<QMenu*>();
    EXPECT_GE(menus.size(), 5);
    for (const QMenu* menu : menus) {
        QStringList texts;
        const QList<QAction*> actions = menu->actions();
        for (const QAction* action : actions) {
            texts.append(action->text());
        }
        expectEachOnce(mnemonics(texts), menu->title());
    }
}

TEST_P(WindowInEachLanguage, NoMnemonicMeansTwoThingsAtOnce)
{
    QStringList menus;
    const QList<QAction*> actions = window->menuBar()->actions();
    for (const QAction* action : actions) {
        menus.append(action->text());
    }
    const QStringList names = window->tabNames();
    for (const QString& name : names) {
        window->showTab(name);
        settle();
        QStringList texts = menus;
        const QList<QAbstractButton*> buttons = window->findChildren<QAbstractButton*>();
        for (const QAbstractButton* button : buttons) {
            texts += button->isVisible() ? QStringList(button->text()) : QStringList();
        }
        const QList<QLabel*> labels = window->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            texts += label->isVisible() && label->buddy() != nullptr ? QStringList(label->text()) : QStringList();
        }
        expectEachOnce(mnemonics(texts), name);
    }
}

TEST_F(WindowOf, EveryWidgetThatTakesTheKeyboardHasAName)
{
    const QStringList names = window->tabNames();
    for (const QString& name : names) {
        window->showTab(name);
        settle();
        const QList<QWidget*> widgets = window->findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0
                || widget->focusProxy() != nullptr) {
                continue;
            }
            QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
            ASSERT_NE(accessible, nullptr);
            EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
                << name.toStdString() << ": " << widget->metaObject()->className();
        }
    }
}
