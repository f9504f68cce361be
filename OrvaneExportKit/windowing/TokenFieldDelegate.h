#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace windowing {

class TokenField;

/// Tells a token field what its tokens stand for and what the user may type. A represented object is what the field's
/// value holds, a display string what the user reads. An operation may throw a `std::exception`; the field then takes
/// what it was asked for to be unknown, and shows the error once.
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT TokenFieldDelegate : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~TokenFieldDelegate() override;

    /// The represented object of a text that the user has typed; the text itself when it stands for nothing else.
    virtual QString representedObjectForEditingString(TokenField *tokenField, const QString &editingString) const = 0;

    /// The text to show for a represented object.
    virtual QString displayStringForRepresentedObject(TokenField *tokenField,
                                                      const QString &representedObject) const = 0;

    /// The display strings that may complete what has been typed, in the order in which they are offered.
    /// An empty substring is completed by the display strings of all tokens: the field asks for them to fill its menu
    /// and to find represented objects in text. `indexOfToken` is the number of tokens before the cursor; into
    /// `indexOfSelectedItem` goes the index of the completion that is to be highlighted, which is -1 when the field
    /// asks; left so, the field highlights the one that has been typed in full, or else the first one.
    virtual QStringList completionsForSubstring(TokenField *tokenField, const QString &substring, qint32 indexOfToken,
                                                qint32 *indexOfSelectedItem) const = 0;
};

} // namespace windowing
