#pragma once

#include <OrvaneExportKit/windowing/MessageLabel.h>

#include <QtWidgets/QFrame>
#include <QtWidgets/QPushButton>

namespace host {

/// A line at the foot of the window that tells how an export ended, until the user takes it away.
class ResultBar : public QFrame
{
    Q_OBJECT

public:
    explicit ResultBar(QWidget *parent = nullptr);

    /// Shows a sentence, with a button that shows the folder in the desktop's file manager unless it is empty.
    void showResult(const QString &sentence, const QString &folder);

private:
    windowing::MessageLabel *m_sentence;
    QPushButton *m_showButton;
    QString m_folder;
};

} // namespace host
