#pragma once

#include <QStringList>

/// Work that a test has done by a new process: the test program, started again. To be defined at namespace scope.
///
/// The new process has the settings store and the directories of the test that starts it.
class ProcessTask
{
public:
    using Function = void (*)();

    struct Outcome
    {
        int exitCode = -1; ///< -1 when the process did not start or did not end by itself.
        QStringList lines; ///< What it wrote to its standard output.
    };

    ProcessTask(const char* name, Function function);

    /// Starts the process and waits for its end. Anything but the exit code 0 fails the running test.
    Outcome run() const;

    /// Does what the command line asks for; false when it does not ask for a task.
    static bool runFromCommandLine(int argc, char** argv);

private:
    const char* m_name;
};

/// Writes one line of a task's outcome.
void printLine(const QString& line);
