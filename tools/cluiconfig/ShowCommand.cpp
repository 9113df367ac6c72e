#include "Commands.h"
#include "DocumentTables.h"

#include <config/UIConfig.h>
#include <datastorage/JsonUtils.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>
#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr auto ShippedDocument = ":/cluiconfig/UIConfig.json";

struct ShowOptions
{
    std::string document = ShippedDocument;
    std::string format = "text";
};

QByteArray asText(const QList<Table>& tables)
{
    QString text;
    for (const Table& table : tables) {
        if (!text.isEmpty()) {
            text += u'\n';
        }
        text += toText(table);
    }
    return text.toUtf8();
}

QByteArray asJson(const QList<Table>& tables)
{
    QJsonObject object;
    for (const Table& table : tables) {
        object.insert(table.name, toJson(table));
    }
    return QJsonDocument(object).toJson();
}

void show(const ShowOptions& options)
{
    auto& config = lumo::tools::Singleton<UIConfig>::instance();
    const QString path = QString::fromStdString(options.document);
    QString error;
    QJsonObject root;
    if (!config.readUIConfiguration(path, error) || !cl::datastorage::JsonUtils::openJsonDocument(path, error, root)) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(error));
        throw CLI::RuntimeError(ExitRefused);
    }
    const QList<Table> tables = documentTables(config, root);
    const QByteArray output = options.format == "json" ? asJson(tables) : asText(tables);
    std::fwrite(output.constData(), 1, static_cast<size_t>(output.size()), stdout);
}

} // namespace

void addShowCommand(CLI::App& program)
{
    auto options = std::make_shared<ShowOptions>();
    CLI::App* command = program.add_subcommand(
        "show", "Load a document as the application does and print, section by section, what it gives.");
    command->add_option("DOCUMENT", options->document, "The document; the shipped one when none is named.")
        ->default_str("the shipped document");
    command->add_option("--format", options->format, "Aligned text for people, or JSON for programs.")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    command->callback([options] { show(*options); });
}

} // namespace cluiconfig
