// What a key stroke costs in the editor until everything shown is right, and what it takes to start.
//
//   bench_editor              processor time a key stroke, in the shipped document and in one ten times as long
//   bench_editor --window     starts the editor's window, shows all of it once, and ends
//   bench_editor --bare       the same with an empty window: what the two need is compared by bench/editor.py

#include <cluiedit/text/Editor.h>
#include <cluiedit/window/Window.h>

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QMainWindow>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <iterator>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

using namespace Qt::StringLiterals;
using cluiedit::Window;

namespace {

/// Processor time of all threads of the process, in ms.
double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

void settle(const Window& window)
{
    while (!window.isSettled()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::processEvents();
}

QByteArray shipped()
{
    QFile file(u":/cluiconfig/UIConfig.json"_s);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

/// The shipped document with every section's outermost list \p factor times as long.
QByteArray enlarged(int factor)
{
    QJsonObject root = QJsonDocument::fromJson(shipped()).object();
    for (auto section : root) {
        if (section.isArray()) {
            const QJsonArray once = section.toArray();
            QJsonArray all;
            for (int i = 0; i < factor; ++i) {
                std::ranges::copy(once, std::back_inserter(all));
            }
            section = all;
        }
    }
    return QJsonDocument(root).toJson();
}

/// The processor time of a key stroke that changes \p place, with the tab \p tab in view: of many the middle one, and
/// the longest.
void measure(Window& window, const QString& tab, const char* what, const QByteArray& place, const QString& letter)
{
    constexpr int Strokes = 60;
    window.showTab(tab);
    settle(window);
    cluiedit::Editor& editor = *window.editor();
    editor.goTo(editor.bytes().indexOf(place) + place.size());
    settle(window);
    std::vector<double> times;
    for (int i = 0; i < Strokes; ++i) {
        const double before = processorTime();
        // A letter comes and goes.
        const bool comes = i % 2 == 0;
        QKeyEvent press(QEvent::KeyPress,
                        comes ? letter.at(0).toUpper().unicode() : static_cast<int>(Qt::Key_Backspace), Qt::NoModifier,
                        comes ? letter : QString());
        QCoreApplication::sendEvent(&editor, &press);
        settle(window);
        times.push_back(processorTime() - before);
    }
    std::ranges::sort(times);
    std::printf("  %-10s %-42s %7.2f ms %7.2f ms\n", qPrintable(tab), what, times[times.size() / 2], times.back());
}

int keyStrokes()
{
    std::printf("processor time of a key stroke until findings and tab are right: middle, longest\n");
    for (const int factor : {1, 10}) {
        const QTemporaryDir directory;
        const QByteArray text = factor == 1 ? shipped() : enlarged(factor);
        const QString path = directory.filePath(u"UIConfig.json"_s);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
            return EXIT_FAILURE;
        }
        file.close();
        Window window;
        window.resize(1280, 800);
        window.show();
        if (!window.openDocument(path)) {
            return EXIT_FAILURE;
        }
        settle(window);
        std::printf("document of %lld kB\n", static_cast<long long>(text.size() / 1000));
        measure(window, u"Plot"_s, "a blank, which changes nothing", R"("Version": 29,)", u" "_s);
        measure(window, u"Plot"_s, "the name of a representation", R"("Name": "Voltage and current over )", u"x"_s);
        measure(window, u"Axes"_s, "a data array that becomes unknown", R"("Name": "Test Time )", u"x"_s);
        measure(window, u"Colours"_s, "a colour", R"("RGB": [)", u"1"_s);
        measure(window, u"Graphs"_s, "the title of a curve", R"("Title": ")", u"x"_s);
        window.editor()->setModified(false);
    }
    return EXIT_SUCCESS;
}

template <typename Shown>
int start(Shown& window)
{
    window.resize(1280, 800);
    window.show();
    if constexpr (std::is_same_v<Shown, Window>) {
        settle(window);
    }
    QCoreApplication::processEvents();
    window.grab();
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    const std::string_view asked = argc > 1 ? std::span(argv, static_cast<size_t>(argc))[1] : "";
    if (asked == "--bare") {
        QMainWindow window;
        return start(window);
    }
    if (asked == "--window") {
        Window window;
        return start(window);
    }
    return keyStrokes();
}
