#include "Commands.h"
#include "DocumentFile.h"
#include "Output.h"
#include "TableDifference.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

struct DiffOptions
{
    std::string before;
    std::string after;
    std::string format = "text";
};

/// The tables of the document \p path by their names, made by a process of its own: a process has one configuration,
/// which loads on top of what is there, and nothing empties it altogether. Ends the command with ExitCannotRun when the
/// document cannot be shown.
QJsonObject shownTables(const std::string& path, const std::string& catalogue)
{
    const QString document = QString::fromStdString(path);
    QStringList arguments;
    if (!catalogue.empty()) {
        arguments << u"--catalogue"_s << QString::fromStdString(catalogue);
    }
    arguments << u"show"_s << u"--format"_s << u"json"_s << u"--"_s << document;
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), arguments, QIODevice::ReadOnly);
    QString error;
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit) {
        error = process.errorString();
    } else if (process.exitCode() != 0) {
        error = QString::fromUtf8(process.readAllStandardError()).trimmed();
    }
    if (!error.isNull()) {
        fail(u"Cannot compare \"%1\": %2"_s.arg(document, error).toStdString());
    }
    return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
}

void diff(const DiffOptions& options, const std::string& catalogue)
{
    requireReadableFile(QString::fromStdString(options.before));
    requireReadableFile(QString::fromStdString(options.after));
    const QJsonObject before = shownTables(options.before, catalogue);
    const QJsonObject after = shownTables(options.after, catalogue);

    QStringList texts;
    QJsonArray tables;
    for (const TableIdentity& identity : tableIdentities()) {
        const TableDifference found =
            difference(identity, before.value(identity.table).toArray(), after.value(identity.table).toArray());
        if (!found.isEmpty()) {
            texts.append(toText(identity, found));
            tables.append(toJson(identity, found));
        }
    }
    print(options.format == "json" ? QJsonDocument(tables).toJson() : texts.join(u'\n').toUtf8());
    if (!tables.isEmpty()) {
        throw CLI::RuntimeError(ExitRefused);
    }
}

} // namespace

void addDiffCommand(CLI::App& program)
{
    auto options = std::make_shared<DiffOptions>();
    CLI::App* command = program.add_subcommand(
        "diff", "What a new document gives that an old one does not, and the other way round, whatever the text.");
    command->add_option("OLD", options->before, "The document to compare with.")->required();
    command->add_option("NEW", options->after, "The document that may differ.")->required();
    command->add_option("--format", options->format, "Lines for people, or JSON for programs.")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    command->footer(
        R"(Both documents are loaded as the application does, and what it gets is compared, table by table as "show" prints
them. The lines:
  + a row that only NEW has           - a row that only OLD has
  ~ a row with another content        > a row at another place among those that both have
Nothing is printed when both give the same.

Examples:
  cluiconfig diff old.json new.json
  git show HEAD:UIConfig.json > old.json && cluiconfig diff old.json UIConfig.json
  cluiconfig diff old.json new.json --format json    an array with an object for each table that differs

Exit code: 0 when both give the same, 1 when not, 2 when one cannot be read or would be refused.)");
    command->callback([options, &program] {
        const CLI::Option* catalogue = program.get_option("--catalogue");
        diff(*options, catalogue->count() > 0 ? catalogue->as<std::string>() : std::string());
    });
}

} // namespace cluiconfig
