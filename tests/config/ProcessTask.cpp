#include <config/ProcessTask.h>

#include <QCoreApplication>
#include <QMap>
#include <QProcess>

#include <gtest/gtest.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr auto TaskOption = "--task"_L1;

QMap<QString, ProcessTask::Function>& tasks()
{
    static QMap<QString, ProcessTask::Function> all;
    return all;
}

} // namespace

ProcessTask::ProcessTask(const char* name, Function function)
    : m_name(name)
{
    tasks().insert(QString::fromLatin1(name), function);
}

ProcessTask::Outcome ProcessTask::run() const
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {TaskOption, QString::fromLatin1(m_name)});
    const bool hasEnded = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    Outcome outcome{
        hasEnded ? process.exitCode() : -1,
        QString::fromUtf8(process.readAllStandardOutput().trimmed()).remove(u'\r').split(u'\n', Qt::SkipEmptyParts)};
    EXPECT_EQ(outcome.exitCode, 0) << "the task " << m_name << ": " << process.errorString().toStdString();
    return outcome;
}

bool ProcessTask::runFromCommandLine(int argc, char** argv)
{
    if (argc != 3 || QLatin1StringView(argv[1]) != TaskOption) {
        return false;
    }
    tasks().value(QString::fromLatin1(argv[2]))();
    return true;
}

void printLine(const QString& line)
{
    std::puts(line.toUtf8().constData());
}
