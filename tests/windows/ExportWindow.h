#pragma once

#include <examples/host/ManuscriptReader.h>

#include <QtCore/QString>
#include <QtWidgets/QPlainTextEdit>

/// Shows a manuscript and exports it, as plain text and through the plug-in for that, when it appears on the screen.
class ExportWindow final : public QPlainTextEdit
{
public:
    /// `milliseconds` is the time that each document takes at least.
    ExportWindow(const QString &manuscript, const QString &destination, unsigned long milliseconds);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void exportManuscript();

    host::Manuscript m_manuscript;
    QString m_destination;
    unsigned long m_milliseconds;
};
