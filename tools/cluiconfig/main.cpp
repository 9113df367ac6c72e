#include "Commands.h"
#include "DocumentFile.h"
#include "Output.h"

#include <batterydata/RawDataCollection.h>

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <sstream>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// The arguments without the program's name, last one first as the parser takes them: as they are or, where they are
/// given in another encoding, in UTF-8.
std::vector<std::string> reversedArguments([[maybe_unused]] int argc, [[maybe_unused]] const char* const* argv)
{
    std::vector<std::string> arguments;
#ifdef Q_OS_WIN
    const QStringList given = QCoreApplication::arguments().mid(1);
    for (const QString& argument : given) {
        arguments.push_back(argument.toStdString());
    }
    std::reverse(arguments.begin(), arguments.end());
#else
    for (int i = argc - 1; i > 0; --i) {
        arguments.emplace_back(argv[i]);
    }
#endif
    return arguments;
}

/// From now on every document is read with the data arrays of the catalogue file \p path.
void useCatalogue(const std::string& path)
{
    auto& catalogue = lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    QString error;
    const cluiconfig::InputFile file(path);
    cluiconfig::requireReadableFile(file);
    if (!catalogue.readCatalogue(file.path(), error)) {
        cluiconfig::fail(file.named(error) + u". `cluiconfig check-catalogue` tells all that is wrong with it."_s);
    }
}

/// Prints the help or the version that somebody asked for; ends the program when the arguments are wrong.
void answer(const CLI::App& program, const CLI::ParseError& stop)
{
    const QString wrong = cluiconfig::wrongArgument(program);
    if (!wrong.isEmpty() || stop.get_exit_code() != 0) {
        const auto commands = program.get_subcommands();
        const QString about =
            commands.empty() ? QString() : u' ' + QString::fromStdString(commands.front()->get_name());
        cluiconfig::fail((wrong.isEmpty() ? QString::fromUtf8(stop.what()) + u'.' : wrong)
                         + u" \"cluiconfig help%1\" tells more."_s.arg(about));
    }
    std::ostringstream text;
    program.exit(stop, text);
    cluiconfig::print(QByteArray::fromStdString(text.str()));
}

/// Says that the memory did not suffice, without taking any.
int failForMemory()
{
    std::fputs("There is not enough memory for that.\n", stderr);
    return cluiconfig::ExitCannotRun;
}

/// Ends the program, where the memory did not suffice in a function that lets no exception through.
[[noreturn]] void endForMemory()
{
    try {
        if (const std::exception_ptr thrown = std::current_exception()) {
            std::rethrow_exception(thrown);
        }
    } catch (const std::bad_alloc&) {
        std::_Exit(failForMemory());
    } catch (...) { // which tells nothing that a person could do
    }
    std::abort();
}

/// Runs \p work, and returns the exit code that it ends with.
template <typename Work>
int exitCodeOf(Work work)
{
    try {
        work();
    } catch (const CLI::RuntimeError& error) {
        return error.get_exit_code();
    } catch (const std::bad_alloc&) {
        return failForMemory();
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    cluiconfig::prepareStreams();
    std::set_terminate(endForMemory);
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"cluiconfig"_s);
    QCoreApplication::setOrganizationName(u"Cellaro"_s);

    CLI::App program("For the people who write UIConfig.json: what the application gets from a document.",
                     "cluiconfig");
    program.require_subcommand(1);
    program.allow_windows_style_options(false); // what starts with a slash is a path, on Windows too
    program.set_version_flag("--version", "cluiconfig " CLCONFIGUI_VERSION ", UIConfig.json format version 29");
    program.fallthrough();
    program.add_option_function<std::string>("--catalogue", useCatalogue,
                                             "The catalogue of data arrays to go by instead of the shipped one, which "
                                             "`cluiconfig catalogue` prints: a file in the same form.");
    program.footer(R"(cluiconfig help COMMAND tells more, with examples. To begin with:
  cluiconfig show                   what the shipped document gives
  cluiconfig check my.json          what is wrong with a document of your own, and what to write instead
  cluiconfig show my.json           what that document gives
  cluiconfig arrays voltage         what the data arrays are called that have to do with voltages
  cluiconfig axes "Test Time / s"   what may be plotted over time
  cluiconfig diff old.json my.json  what a change does)");
    cluiconfig::addShowCommand(program);
    cluiconfig::addAxesCommand(program);
    cluiconfig::addArraysCommand(program);
    cluiconfig::addUnitsCommand(program);
    cluiconfig::addDiffCommand(program);
    cluiconfig::addFormatCommand(program);
    cluiconfig::addSearchCommand(program);
    cluiconfig::addCheckCommand(program);
    cluiconfig::addCheckCatalogueCommand(program);
    cluiconfig::addCatalogueCommand(program);
    cluiconfig::addSchemaCommand(program);
    cluiconfig::addHelpCommand(program);
    const std::vector<std::string> arguments = reversedArguments(argc, argv);
    const int code = exitCodeOf([&] {
        try {
            program.parse(std::vector(arguments));
        } catch (const CLI::RuntimeError&) {
            throw;
        } catch (const CLI::ParseError& stop) {
            answer(program, stop);
        }
    });
    return std::max(code, exitCodeOf(cluiconfig::printRest));
}
