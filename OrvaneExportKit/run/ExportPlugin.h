#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/run/ExportDocument.h>
#include <OrvaneExportKit/settings/KZExportSettings.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QtPlugin>

/// An export format, loaded by a host as a Qt plug-in.
///
/// A plug-in is a shared library with one `QObject` that implements this interface. A host creates it, loads its saved
/// settings, sets choices, and then asks for the exported data document by document, all on the main thread. The host
/// writes the files, and saves the settings when the user wants to keep them.
///
///     class PlainTextPlugin : public QObject, public ExportPlugin
///     {
///         Q_OBJECT
///         Q_INTERFACES(ExportPlugin)
///         Q_PLUGIN_METADATA(IID ExportPlugin_iid)
///     public: ...
///     };
class ORVANE_CORE_EXPORT ExportPlugin
{
public:
    /// One thing a user can choose, for a host to list and to check keys against.
    struct Choice {
        QString key;          ///< how the choice is named, lower-case words joined by hyphens: "line-length"
        QString defaultValue; ///< what holds unless the host sets something else, as text
        QString description;  ///< one line: what it does and which values it takes
    };

    /// A document and the name of the file that it became, without its folder.
    struct ExportedFile {
        const ExportDocument *document; ///< not null
        QString fileName;               ///< with its extension
    };

    ExportPlugin() = default;
    ExportPlugin(const ExportPlugin &) = delete;
    ExportPlugin &operator=(const ExportPlugin &) = delete;
    virtual ~ExportPlugin();

    /// The name that a host finds the plug-in by, lower-case words joined by hyphens: "plain-text".
    virtual QString name() const = 0;

    /// The name that a user reads, in the user's language: "Plain Text".
    virtual QString displayName() const = 0;

    /// The extension of the files, without the dot, for destinations that name none: "txt".
    virtual QString pathExtension() const = 0;

    /// All choices, in the order in which a host shows them.
    virtual QList<Choice> choices() const = 0;

    /// The settings in which the choices are kept, each under its key, as text or as what a bound control stores; a key
    /// that is missing has its default. They belong to the plug-in.
    virtual KZExportSettings &settings() = 0;

    /// Stores the defaults of the choices that the settings lack, so that a panel shows what holds. A host calls it
    /// when it has loaded the saved settings, before it binds the panel.
    void storeMissingChoices();

    /// Sets one choice in the settings, from its text form, for all documents to come.
    /// Throws `platform::InvalidArgumentException`, saying which values are allowed, and changes nothing when the key
    /// is unknown or the value is not one that the choice takes.
    virtual void setChoice(const QString &key, const QString &value) = 0;

    /// The content of the file that one document becomes, with the choices that the settings hold. May throw; the host
    /// then reports the document and what the exception says.
    virtual QByteArray exportedData(const ExportDocument &document, const platform::AttributedString &text) const = 0;

    /// The names of the files that the plug-in adds to those of the documents: "index.html" in the same folder,
    /// "fonts/serif.ttf" in a folder inside it, which the host makes. A host asks before the export begins, and treats
    /// these files as it does the documents'; it refuses a name that is empty, absolute or leads elsewhere by "..", a
    /// backslash or a link. None unless overridden.
    virtual QStringList additionalFileNames() const;

    /// The content of one of the additional files, by its name as `additionalFileNames` gives it. `title` is that of
    /// the manuscript, `files` are those that its documents became, in their order. May throw as `exportedData` may.
    /// Empty unless overridden.
    virtual QByteArray additionalFileData(const QString &fileName, const QString &title,
                                          const QList<ExportedFile> &files) const;

    /// Where the plug-in's resources are. A host that has windows shows the interface file "Panel.ui" of this bundle as
    /// the plug-in's settings panel, and binds its controls to key paths that begin with "settings". The null bundle,
    /// for a plug-in without a panel, unless overridden.
    virtual platform::Bundle bundle() const;
};

/// The version of the interface above. It changes when a plug-in that was built against another one can't be used.
#define ExportPlugin_iid "OrvaneExportKit.ExportPlugin/2"
Q_DECLARE_INTERFACE(ExportPlugin, ExportPlugin_iid)
