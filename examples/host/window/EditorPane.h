#pragma once

#include "ManuscriptModel.h"

#include <OrvaneExportKit/windowing/MessageLabel.h>

#include <QtCore/QPersistentModelIndex>
#include <QtCore/QTimer>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QWidget>

namespace host {

/// Edits the text of one document of a manuscript. What is typed reaches the manuscript after a pause.
///
/// A document in a keyed archive is shown and not edited: the plain text would lose its attributes.
class EditorPane : public QWidget
{
    Q_OBJECT

public:
    explicit EditorPane(ManuscriptModel &model, QWidget *parent = nullptr);

    /// Shows the document of a row; the one shown before has all its changes by then.
    void showDocument(int row);

    /// Puts what has been typed into the manuscript now.
    void commit();

    /// Whether something has been typed that is not in the manuscript yet.
    bool hasUncommittedText() const { return m_hasUncommittedText; }

    QPlainTextEdit &editor() { return *m_editor; }

Q_SIGNALS:
    void typed(); ///< the text differs from the one in the manuscript

private:
    void showText(const QString &text, bool readOnly, const QString &note);

    ManuscriptModel &m_model;
    QPersistentModelIndex m_document;
    windowing::MessageLabel *m_title;
    windowing::MessageLabel *m_note;
    QPlainTextEdit *m_editor;
    QTimer m_pause;
    bool m_hasUncommittedText = false;
};

} // namespace host
