#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/windowing/TokenFieldDelegate.h>

#include <QtCore/QMap>

#include <memory>

/// A token field delegate with a fixed table: each represented object and the string that is displayed for it.
///
///     auto *delegate = new KZTokenFieldDelegate({{u"<1>"_s, tr("Number")}, {u"<2>"_s, tr("Name")}}, controller);
///     tokenField->setDelegate(delegate);
///
/// All strings are compared exactly, code unit by code unit; only completing ignores case. What the table does not
/// know stands for itself. The delegate belongs to whoever creates it.
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT KZTokenFieldDelegate : public windowing::TokenFieldDelegate
{
    Q_OBJECT
    Q_PROPERTY(QStringList displayStrings READ displayStrings WRITE setDisplayStrings)
    Q_PROPERTY(QStringList representedObjects READ representedObjects WRITE setRepresentedObjects)

public:
    /// A delegate with an empty table.
    explicit KZTokenFieldDelegate(QObject *parent = nullptr);

    /// A delegate with a table in the order of its display strings: case-sensitive and the same in every locale, with
    /// accented letters behind their plain ones, and equal strings in the order of their represented objects. The keys
    /// of the map are the represented objects, its values the display strings.
    explicit KZTokenFieldDelegate(const QMap<QString, QString> &displayStrings, QObject *parent = nullptr);

    /// The same two, owned by the caller.
    static std::unique_ptr<KZTokenFieldDelegate> init();
    static std::unique_ptr<KZTokenFieldDelegate>
    initWithRepresetedObjectsAndDisplayStrings(const QMap<QString, QString> &displayStrings);

    /// The columns of the table: the display string at an index belongs to the represented object at that index. They
    /// are to have the same length; a look-up that finds a string at an index that the other list lacks throws
    /// `platform::RangeException`. A token field then shows the object itself, and the error once.
    const QStringList &displayStrings() const { return m_displayStrings; }
    void setDisplayStrings(const QStringList &displayStrings);
    const QStringList &representedObjects() const { return m_representedObjects; }
    void setRepresentedObjects(const QStringList &representedObjects);

    /// The represented object of the first display string that equals the text, or the text.
    QString representedObjectForEditingString(windowing::TokenField *tokenField,
                                              const QString &editingString) const override;

    /// The display string of the first represented object that equals the given one, or the given one.
    QString displayStringForRepresentedObject(windowing::TokenField *tokenField,
                                              const QString &representedObject) const override;

    /// The display strings that start with the substring, whatever its case, in the order of the table. The two numbers
    /// are left alone.
    QStringList completionsForSubstring(windowing::TokenField *tokenField, const QString &substring,
                                        qint32 indexOfToken, qint32 *indexOfSelectedItem) const override;

private:
    QStringList m_displayStrings;
    QStringList m_representedObjects;
};
