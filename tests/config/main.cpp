// UIConfig is one object a process, and nearly everything it reads stays in it. So every test of this program has
// a process to itself, whether ctest starts the tests one by one or somebody starts the whole program at once, and
// a home directory of its own, so that no test sees the user's settings or those of another test.

#include <config/ProcessTask.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr auto HomeVariable = "CLCONFIGUI_TEST_HOME";

/// The home directory of this process: that of the process that started it, or a new one.
QString home()
{
    if (!qEnvironmentVariableIsSet(HomeVariable)) {
        static const QTemporaryDir directory;
        qputenv(HomeVariable, directory.path().toLocal8Bit());
    }
    return qEnvironmentVariable(HomeVariable);
}

void isolate()
{
    const QString directory = home();
    qputenv("HOME", directory.toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", (directory + u"/config"_s).toLocal8Bit());
    qputenv("XDG_CONFIG_DIRS", (directory + u"/no-system"_s).toLocal8Bit());
    qputenv("QT_FORCE_STDERR_LOGGING", "1"); // for tests that read what the library says when it ends the program

    QCoreApplication::setOrganizationName(u"Cellaro tests"_s);
    QCoreApplication::setApplicationName(u"CLConfigUI"_s);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    for (const auto format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, directory + u"/settings"_s);
        QSettings::setPath(format, QSettings::SystemScope, directory + u"/no-system"_s);
    }
}

/// Runs one test in a process of its own, and shows what it wrote when it failed.
bool passesAlone(const QString& test)
{
    const QTemporaryDir directory;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(HomeVariable), directory.path());

    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QCoreApplication::applicationFilePath(), {u"--gtest_filter="_s + test});
    const bool passes = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == EXIT_SUCCESS;
    if (!passes) {
        std::fputs(process.readAll().constData(), stdout);
    }
    return passes;
}

/// When the command line names several tests, runs each of them in a process of its own and ends this one.
class OneProcessPerTest : public testing::EmptyTestEventListener
{
    void OnTestProgramStart(const testing::UnitTest& program) override
    {
        if (program.test_to_run_count() < 2) {
            return;
        }
        QStringList failed;
        for (int i = 0; i < program.total_test_suite_count(); ++i) {
            const testing::TestSuite& suite = *program.GetTestSuite(i);
            for (int j = 0; j < suite.total_test_count(); ++j) {
                const QString name =
                    QString::fromLatin1(suite.name()) + u'.' + QString::fromLatin1(suite.GetTestInfo(j)->name());
                if (suite.GetTestInfo(j)->should_run() && !passesAlone(name)) {
                    failed.append(name);
                }
            }
        }
        std::printf("%d of %d tests failed%s%s\n", static_cast<int>(failed.size()), program.test_to_run_count(),
                    failed.isEmpty() ? "" : ":\n  ", qPrintable(failed.join(u"\n  "_s)));
        std::exit(failed.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
};

} // namespace

int main(int argc, char** argv)
{
    isolate();
    const QCoreApplication application(argc, argv);
    if (ProcessTask::runFromCommandLine(argc, argv)) {
        return EXIT_SUCCESS;
    }
    testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    testing::UnitTest::GetInstance()->listeners().Append(new OneProcessPerTest);
    return RUN_ALL_TESTS();
}
