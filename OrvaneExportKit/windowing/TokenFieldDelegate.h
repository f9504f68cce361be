#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace windowing {

class TokenField;

/// Tells a token field what its tokens stand for and what the user may type. A represented object is what the field's
/// value holds, a display string what the user reads.
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
    /// `indexOfToken` is the number of tokens before the cursor; into `indexOfSelectedItem` goes the index of the
    /// completion that is to be highlighted, which is -1, none, when the field asks.
    virtual QStringList completionsForSubstring(TokenField *tokenField, const QString &substring, qint32 indexOfToken,
                                                qint32 *indexOfSelectedItem) const = 0;
};

} // namespace windowing
