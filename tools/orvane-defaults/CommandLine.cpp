#include "CommandLine.h"

#include "ProgramError.h"

#include <OrvaneExportKit/platform/UserDefaults.h>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;
using platform::UserDefaults;

namespace defaults {

namespace {

constexpr QStringView description = uR"(
Shows, changes and repairs the settings of export plug-ins and of their host.

A domain is the settings of one plug-in or program under a name such as
com.example.plain-text: a dictionary of keys and values.

Commands:
  domains                 lists the names of all domains, one a line
  read DOMAIN             prints a domain as an XML property list
  read DOMAIN KEY         prints one value: text as it is, numbers in decimal,
                          true or false, dates in ISO 8601, data in base64,
                          arrays and dictionaries as XML property lists
  write DOMAIN KEY VALUE  sets one value
  delete DOMAIN           removes a domain
  delete DOMAIN KEY       removes one value
  export DOMAIN [FILE]    saves a domain as an XML property list
  import DOMAIN FILE      replaces a domain by what the file holds, an XML or
                          binary property list with a dictionary

With -g, no DOMAIN follows the command. A FILE named "-" is the standard input
or output; export without a FILE prints.)";

constexpr QStringView notes = uR"(
Types of VALUE:
  string  the text as it is (default)
  int     a decimal number without fraction
  float   a decimal number
  bool    true or false, yes or no, 1 or 0
  date    ISO 8601, 2024-12-31T18:00:00Z; local time when it names no time zone
  data    base64
  plist   an XML property list

A VALUE or KEY that starts with a dash stands behind "--".

Files:
  A domain is the file DOMAIN.plist in the folder orvane-export-kit in the
  user's configuration folder. A file that holds no settings any more is kept
  as DOMAIN.plist.unreadable-1 (or a higher number) when its domain is changed:
  repair it there and import it.

Output:
  A terminal shows control characters in names and values as \x1b, \u202e.
  Elsewhere they stay; the output of domains --null is safe to read for
  programs, as by xargs -0.

Environment:
  ORVANE_DEFAULTS_FOLDER  the folder to use in place of that one

Exit codes:
  0  done; what was changed is on disk
  1  the command line is wrong
  2  the domain or key is not set
  3  settings or files can't be read or written, and none were changed; standard
     error says why and what to do

Examples:
  orvane-defaults write com.example.plain-text line-length 72 --type int
  orvane-defaults write -g AppleMeasurementUnits Inches
  orvane-defaults write com.example.plain-text offset --type int -- -3
  orvane-defaults export com.example.plain-text backup.plist
)";

struct CommandForm {
    QStringView name;
    Command command;
    bool takesDomain;
    qsizetype fewestOperands;
    qsizetype mostOperands;
};

constexpr std::array commandForms{
    CommandForm{u"read", Command::Read, true, 0, 1},     CommandForm{u"write", Command::Write, true, 2, 2},
    CommandForm{u"delete", Command::Delete, true, 0, 1}, CommandForm{u"domains", Command::Domains, false, 0, 0},
    CommandForm{u"export", Command::Export, true, 0, 1}, CommandForm{u"import", Command::Import, true, 1, 1},
};

const CommandForm &commandForm(const QString &name)
{
    const auto *const form = std::find_if(commandForms.begin(), commandForms.end(),
                                          [&](const CommandForm &candidate) { return candidate.name == name; });
    if (form == commandForms.end()) {
        throw usageError(u"There is no command '%1'"_s.arg(name));
    }
    return *form;
}

} // namespace

CommandLine::CommandLine(const QStringList &arguments)
{
    m_parser.setApplicationDescription(description.toString());
    m_parser.addPositionalArgument(u"COMMAND"_s, u"What to do, one of the commands above."_s);
    m_parser.addPositionalArgument(u"DOMAIN"_s, u"The name of the domain."_s, u"[DOMAIN]"_s);
    m_parser.addPositionalArgument(u"KEY"_s, u"The name of a value, or FILE, a path."_s, u"[KEY | FILE]"_s);
    m_parser.addPositionalArgument(u"VALUE"_s, u"The new value."_s, u"[VALUE]"_s);
    m_parser.addOptions({
        {{u"g"_s, u"global"_s}, u"Takes the global domain, whose values all applications see, in place of DOMAIN."_s},
        {{u"0"_s, u"null"_s}, u"Ends each name in the list of domains by a null character, not by a line feed."_s},
        {u"type"_s, u"What VALUE is, one of the types below."_s, u"TYPE"_s, u"string"_s},
        {{u"h"_s, u"help"_s}, u"Shows this help."_s},
        {{u"v"_s, u"version"_s}, u"Shows the version."_s},
    });
    if (!m_parser.parse(arguments)) {
        QString error = m_parser.errorText();
        if (error.endsWith(u'.')) {
            error.chop(1);
        }
        throw usageError(error + u"; a key or value that starts with a dash stands behind '--'"_s);
    }
}

CommandLine::Task CommandLine::task() const
{
    if (m_parser.isSet(u"help"_s)) {
        return Task::ShowHelp;
    }
    return m_parser.isSet(u"version"_s) ? Task::ShowVersion : Task::RunCommand;
}

QString CommandLine::helpText() const
{
    return m_parser.helpText() + notes.toString();
}

Request CommandLine::request() const
{
    QStringList words = m_parser.positionalArguments();
    if (words.isEmpty()) {
        throw usageError(u"A command is missing"_s);
    }
    const CommandForm &form = commandForm(words.takeFirst());
    QString domain;
    if (m_parser.isSet(u"global"_s)) {
        if (!form.takesDomain) {
            throw usageError(u"'%1' takes no -g"_s.arg(form.name));
        }
        domain = UserDefaults::globalDomain();
    } else if (form.takesDomain) {
        if (words.isEmpty() || words.first().isEmpty()) {
            throw usageError(u"'%1' needs a DOMAIN, or -g"_s.arg(form.name));
        }
        domain = words.takeFirst();
    }
    if (words.size() < form.fewestOperands) {
        throw usageError(u"'%1' needs more than that"_s.arg(form.name));
    }
    if (words.size() > form.mostOperands) {
        throw usageError(u"'%1' does not take '%2'"_s.arg(form.name, words[form.mostOperands]));
    }
    if (m_parser.isSet(u"type"_s) && form.command != Command::Write) {
        throw usageError(u"'%1' takes no --type"_s.arg(form.name));
    }
    if (m_parser.isSet(u"null"_s) && form.command != Command::Domains) {
        throw usageError(u"'%1' takes no --null"_s.arg(form.name));
    }
    return {form.command, domain, words, valueType(m_parser.value(u"type"_s)),
            m_parser.isSet(u"null"_s) ? ListSeparator::Null : ListSeparator::LineFeed};
}

} // namespace defaults
