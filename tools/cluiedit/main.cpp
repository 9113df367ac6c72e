#include "CommandLine.h"

#include <base/Singleton.h>
#include <batterydata/RawDataCollection.h>
#include <cluiedit/i18n/Translation.h>
#include <cluiedit/window/Window.h>

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTimer>

#include <cstdio>
#include <optional>

using namespace Qt::StringLiterals;
using cluiedit::CommandLine;
using cluiedit::Window;

namespace {

constexpr int ExitFailure = 2;

int fail(const QString& message)
{
    std::fputs(qUtf8Printable(u"cluiedit: "_s + message + u'\n'), stderr);
    return ExitFailure;
}

/// Ends the program with a picture of \p window.
void photograph(Window& window, const QString& path)
{
    const bool isSaved = window.grab().save(path, "PNG");
    QCoreApplication::exit(isSaved ? 0 : fail(u"Cannot write \"%1\"."_s.arg(path)));
}

/// Does what has to wait until \p window shows everything: plots what \p line asks for, and makes the picture.
void whenSettled(Window& window, const CommandLine& line)
{
    if (!line.representation.isEmpty() && !window.plotRepresentation(line.representation)) {
        QCoreApplication::exit(fail(u"There is no representation \"%1\"."_s.arg(line.representation)));
    } else if (!line.screenshot.isEmpty()) {
        constexpr int LayoutTime = 100; // ms, until what has been set is laid out and drawn
        QTimer::singleShot(LayoutTime, &window, [&window, path = line.screenshot] { photograph(window, path); });
    }
}

} // namespace

int main(int argc, char** argv)
{
    int exitCode = 0;
    const std::optional<CommandLine> line = cluiedit::parse(argc, argv, exitCode);
    if (!line) {
        return exitCode;
    }
    if (!line->screenshot.isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(u"Cellaro"_s);
    QCoreApplication::setApplicationName(u"cluiedit"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(CLCONFIGUI_VERSION));
    QGuiApplication::setDesktopFileName(u"cluiedit"_s);
    QGuiApplication::setWindowIcon(QIcon(u":/cluiedit/cluiedit.svg"_s));
    cluiedit::installTranslations(QLocale());

    if (QString error; !line->catalogue.isEmpty()
        && !lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration().readCatalogue(
            line->catalogue, error)) {
        return fail(error);
    }
    Window window;
    if (!line->tab.isEmpty() && !window.showTab(line->tab)) {
        return fail(u"There is no tab \"%1\": write %2."_s.arg(line->tab, window.tabNames().join(u", "_s)));
    }
    if (line->size) {
        window.resize(*line->size);
    }
    if (!line->document.isEmpty() && !window.openDocument(line->document) && !line->screenshot.isEmpty()) {
        return fail(window.whyNot());
    }
    if (!line->data.isEmpty()) {
        window.openData(line->data);
    }
    if (line->screenshot.isEmpty()) {
        window.offerLostTexts();
    }
    QObject::connect(
        &window, &Window::settled, &window, [&] { whenSettled(window, *line); }, Qt::SingleShotConnection);
    window.show();
    return QApplication::exec();
}
