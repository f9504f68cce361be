#include "CommandLine.h"

#include "HostError.h"
#include "Messages.h"
#include "PluginFolder.h"

#include <QtCore/QDir>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

constexpr QStringView description = uR"(
Shows a manuscript in a window, in which it is edited and exported; or, as a
command, exports its documents, one file each, in the format of a plug-in.

A manuscript is a folder with the documents, as UTF-8 text files or as keyed
archives of a text (NAME.archive), and a file manuscript.json that names them in
their order:

  {"title": "A Book",
   "documents": [{"file": "one.txt", "name": "One",
                  "status": "Draft", "label": "Chapter"}]})";

constexpr QStringView notes = uR"(
Tokens of the file name pattern:
  <1>  the number of the document, at least three digits
  <2>  its name
  <3>  its status
  <4>  its label
  <5>  the name of DESTINATION without extension; empty for a folder
A "/" becomes ":", so that no name opens a folder.

Choices:
  They come from the plug-in's saved settings, or from --settings; --set has the
  last word. Nothing of it is kept without --save-settings. orvane-defaults
  shows and repairs what is saved.

Environment:
  ORVANE_PLUGIN_PATH  the plug-in folder when --plugin-folder is not given;
                      without both, the one that came with the program
  ORVANE_DEFAULTS_FOLDER
                      where settings are saved; without it, the folder
                      orvane-export-kit in the user's configuration folder

Output:
  Standard output lists the files, one a line, as they are written. Standard
  error takes progress (at a terminal), warnings and errors, each of which says
  what went wrong and what to do. A file is there as a whole or not at all, also
  where a plug-in ends the program. A terminal shows control characters in
  names as \x1b, \u202e; elsewhere they stay in the list, which --null makes
  safe to read for programs, as in xargs -0. Ctrl-C stops after the current document, a
  second Ctrl-C at once.

Exit codes:
    0  all documents were exported
    1  the command line is wrong, or the plug-in refuses a choice
    2  the manuscript, one of its documents or the settings can't be read
    3  the plug-in can't be loaded, failed, or ended the program
    4  the files or the settings can't be written, or not under these names
    5  files exist and were not to be replaced
    6  there is no display for a window
  130  the export was interrupted

Example:
  orvane-host export my-novel --plugin plain-text --to ~/Desktop \
      --pattern '<1> <2>' --set line-length=66
)";

HostError usageError(QString message)
{
    if (message.endsWith(u'.')) {
        message.chop(1);
    }
    return {ExitCode::Usage, message + u"; --help explains all options"_s};
}

} // namespace

CommandLine::CommandLine(const QStringList &arguments)
{
    m_parser.setApplicationDescription(description.toString());
    m_parser.addPositionalArgument(
        u"command"_s,
        u"open shows the manuscript in that folder in a window, export exports it. Without a command, a window opens."_s,
        u"[open MANUSCRIPT | export MANUSCRIPT]"_s);
    m_parser.addOptions({
        {u"plugin"_s, u"The plug-in that exports, by its name."_s, u"NAME"_s},
        {u"to"_s,
         u"Where the files go: a folder that exists; or a file path, whose folder and extension are used and whose "
         "name takes the place of <5>."_s,
         u"DESTINATION"_s},
        {u"pattern"_s, u"The names of the files, with the tokens below. Default: '<1> <2>'."_s, u"PATTERN"_s,
         u"<1> <2>"_s},
        {u"extension"_s, u"The extension of the files in a folder. Default: the plug-in's own."_s, u"EXTENSION"_s},
        {u"convert-spaces"_s, u"Writes \"_\" in place of each space in the names."_s},
        {u"set"_s, u"Sets a choice of the plug-in for this run; may be given several times."_s, u"KEY=VALUE"_s},
        {u"quotation-language"_s, u"The same as --set quotation-language=CODE."_s, u"CODE"_s},
        {u"settings"_s, u"Takes the choices from a property list in place of the saved ones."_s, u"FILE"_s},
        {u"save-settings"_s, u"Keeps the choices of this run for the next ones."_s},
        {u"yes"_s, u"Replaces files that exist without asking."_s},
        {{u"0"_s, u"null"_s}, u"Ends each path in the list of files by a null character, not by a line feed."_s},
        {u"list-plugins"_s, u"Lists the plug-ins with their choices, and exports nothing."_s},
        {u"plugin-folder"_s, u"The folder in which the plug-ins are."_s, u"FOLDER"_s},
        {{u"h"_s, u"help"_s}, u"Shows this help."_s},
        {{u"v"_s, u"version"_s}, u"Shows the version."_s},
    });
    if (!m_parser.parse(arguments)) {
        throw usageError(m_parser.errorText());
    }
}

CommandLine::Task CommandLine::task() const
{
    if (m_parser.isSet(u"help"_s)) {
        return Task::ShowHelp;
    }
    if (m_parser.isSet(u"version"_s)) {
        return Task::ShowVersion;
    }
    if (m_parser.isSet(u"list-plugins"_s)) {
        return Task::ListPlugins;
    }
    const QStringList arguments = m_parser.positionalArguments();
    return arguments.isEmpty() || arguments.first() == u"open" ? Task::ShowWindow : Task::Export;
}

QString CommandLine::helpText() const
{
    return m_parser.helpText() + notes.toString();
}

QString CommandLine::pluginFolder() const
{
    const QString named = m_parser.value(u"plugin-folder"_s);
    return named.isEmpty() ? defaultPluginFolder() : named;
}

ExportRequest CommandLine::exportRequest() const
{
    ExportRequest request;
    request.manuscriptFolder = manuscriptFolder(u"export"_s);
    request.pluginName = requiredValue(u"plugin"_s, u"the plug-in that exports"_s);
    request.names.destination =
        QDir::current().absoluteFilePath(requiredValue(u"to"_s, u"the folder or file path to export to"_s));
    request.names.pattern = requiredValue(u"pattern"_s, u"how the files are called"_s);
    request.names.extension = extension();
    request.names.convertSpaces = m_parser.isSet(u"convert-spaces"_s);
    request.replaceFiles = m_parser.isSet(u"yes"_s);
    request.settings = settings();
    if (m_parser.isSet(u"settings"_s)) {
        request.settingsFile = requiredValue(u"settings"_s, u"a property list"_s);
    }
    request.saveSettings = m_parser.isSet(u"save-settings"_s);
    request.separator = m_parser.isSet(u"null"_s) ? ListSeparator::Null : ListSeparator::LineFeed;
    return request;
}

WindowRequest CommandLine::windowRequest() const
{
    for (const QString &option : m_parser.optionNames()) {
        if (option != u"plugin-folder") {
            throw usageError(
                u"--%1 belongs to a command: export MANUSCRIPT --plugin NAME --to DESTINATION"_s.arg(option));
        }
    }
    WindowRequest request{std::nullopt, pluginFolder()};
    if (!m_parser.positionalArguments().isEmpty()) {
        request.manuscriptFolder = QDir::current().absoluteFilePath(manuscriptFolder(u"open"_s));
    }
    return request;
}

QString CommandLine::requiredValue(const QString &option, const QString &purpose) const
{
    QString value = m_parser.value(option);
    if (value.isEmpty()) {
        throw usageError(u"--%1 must name %2"_s.arg(option, purpose));
    }
    return value;
}

/// The folder behind a command.
QString CommandLine::manuscriptFolder(const QString &command) const
{
    const QStringList arguments = m_parser.positionalArguments();
    if (arguments.first() != command) {
        throw usageError(u"there is no command %1, only open and export"_s.arg(quoted(arguments.first())));
    }
    if (arguments.size() != 2 || arguments.last().isEmpty()) {
        throw usageError(u"%1 takes one manuscript folder"_s.arg(command));
    }
    return arguments.last();
}

std::optional<QString> CommandLine::extension() const
{
    if (!m_parser.isSet(u"extension"_s)) {
        return std::nullopt;
    }
    QString extension = m_parser.value(u"extension"_s);
    if (extension.startsWith(u'.')) {
        extension.remove(0, 1);
    }
    if (extension.contains(u'/')) {
        throw usageError(u"--extension can't hold a \"/\", as in %1"_s.arg(quoted(extension)));
    }
    return extension;
}

QList<ExportRequest::Setting> CommandLine::settings() const
{
    QList<ExportRequest::Setting> settings;
    for (const QString &setting : m_parser.values(u"set"_s)) {
        const qsizetype separator = setting.indexOf(u'=');
        if (separator < 1) {
            throw usageError(u"--set takes KEY=VALUE, not %1"_s.arg(quoted(setting)));
        }
        settings.append({setting.first(separator), setting.sliced(separator + 1)});
    }
    if (m_parser.isSet(u"quotation-language"_s)) {
        settings.append({u"quotation-language"_s, m_parser.value(u"quotation-language"_s)});
    }
    return settings;
}

} // namespace host
