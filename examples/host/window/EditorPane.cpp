#include "EditorPane.h"

#include "DocumentText.h"
#include "HostError.h"
#include "Messages.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QTextDocument>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

constexpr int millisecondsOfPause = 300;
constexpr qreal margin = 12;

/// What the user typed, as it is: the plain text of an editor has no-break spaces replaced.
QString typedText(const QPlainTextEdit &editor)
{
    QString text = editor.document()->toRawText();
    return text.replace(QChar(QChar::ParagraphSeparator), u'\n');
}

} // namespace

EditorPane::EditorPane(ManuscriptModel &model, QWidget *parent)
    : QWidget(parent),
      m_model(model),
      m_title(new windowing::MessageLabel),
      m_note(new windowing::MessageLabel),
      m_editor(new QPlainTextEdit)
{
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_title->setMinimumHeight(QComboBox().sizeHint().height()); // in line with the head of the preview
    m_note->setWordWrap(true);
    m_editor->setObjectName(u"editor"_s);
    m_editor->document()->setDocumentMargin(margin);
    m_editor->setTabStopDistance(4 * m_editor->fontMetrics().horizontalAdvance(u' '));
    m_editor->setAccessibleName(tr("Text of the document"));
    m_pause.setSingleShot(true);
    m_pause.setInterval(millisecondsOfPause);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_title);
    layout->addWidget(m_note);
    layout->addWidget(m_editor);

    connect(&m_pause, &QTimer::timeout, this, &EditorPane::commit);
    connect(m_editor, &QPlainTextEdit::textChanged, this, [this] {
        m_pause.start();
        m_hasUncommittedText = true;
        Q_EMIT typed();
    });
}

void EditorPane::showDocument(int row)
{
    commit();
    m_document = m_model.index(row, 0);
    if (!m_document.isValid()) {
        m_title->clear();
        showText({}, true, {});
        return;
    }
    const ManuscriptDocument &document = m_model.document(row);
    m_title->setText(document.name());
    try {
        const bool isArchived = isArchive(document.path());
        showText(document.text().string(), isArchived,
                 isArchived ? tr("This document is an archive with text attributes. It is shown without them and can't "
                                 "be edited here; an export uses all of it.")
                            : QString());
    } catch (const HostError &error) {
        showText({}, true, sentence(error.message()));
    }
}

void EditorPane::commit()
{
    if (m_hasUncommittedText) {
        m_hasUncommittedText = false;
        m_pause.stop();
        m_model.setText(m_document.row(), typedText(*m_editor));
    }
}

void EditorPane::showText(const QString &text, bool readOnly, const QString &note)
{
    const QSignalBlocker blocker(m_editor);
    m_editor->setPlainText(text);
    m_editor->setReadOnly(readOnly);
    m_editor->setTextInteractionFlags(readOnly ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                               : Qt::TextEditorInteraction);
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
}

} // namespace host
