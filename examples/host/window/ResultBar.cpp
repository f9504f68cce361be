#include "ResultBar.h"

#include <QtCore/QUrl>
#include <QtGui/QAccessible>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QHBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace host {

ResultBar::ResultBar(QWidget *parent)
    : QFrame(parent), m_sentence(new windowing::MessageLabel), m_showButton(new QPushButton(tr("Sho&w in Folder")))
{
    setObjectName(u"resultBar"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_sentence->setObjectName(u"resultSentence"_s);
    m_sentence->setWordWrap(true);
    m_showButton->setObjectName(u"showInFolder"_s);
    auto *closeButton = new QPushButton(tr("&Dismiss"));

    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_sentence, 1);
    layout->addWidget(m_showButton);
    layout->addWidget(closeButton);
    connect(m_showButton, &QPushButton::clicked, this,
            [this] { QDesktopServices::openUrl(QUrl::fromLocalFile(m_folder)); });
    connect(closeButton, &QPushButton::clicked, this, &QWidget::hide);
    hide();
}

void ResultBar::showResult(const QString &sentence, const QString &folder)
{
    m_folder = folder;
    m_sentence->setText(sentence);
    m_showButton->setVisible(!folder.isEmpty());
    show();
    QAccessibleEvent announcement(m_sentence, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}

} // namespace host
