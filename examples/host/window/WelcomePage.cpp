#include "WelcomePage.h"

#include <OrvaneExportKit/platform/Paths.h>

#include <QtCore/QDir>
#include <QtWidgets/QCommandLinkButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace host {

WelcomePage::WelcomePage(const QStringList &recentManuscripts, QWidget *parent) : QWidget(parent)
{
    auto *title = new QLabel(tr("Write a manuscript and export it"));
    QFont large = title->font();
    large.setPointSizeF(1.6 * large.pointSizeF());
    title->setFont(large);
    auto *hint = new QLabel(tr("A manuscript is a folder with its documents and a file manuscript.json."));
    hint->setWordWrap(true);
    auto *openButton = new QPushButton(tr("&Open a Manuscript…"));
    openButton->setObjectName(u"openButton"_s);
    connect(openButton, &QPushButton::clicked, this, &WelcomePage::openRequested);

    auto *column = new QVBoxLayout;
    column->addStretch(1);
    column->addWidget(title);
    column->addWidget(hint);
    column->addSpacing(12);
    column->addWidget(openButton, 0, Qt::AlignLeading);
    column->addSpacing(12);
    for (const QString &folder : recentManuscripts) {
        addManuscript(folder, *column);
    }
    column->addStretch(2);
    auto *layout = new QHBoxLayout(this);
    layout->addStretch(1);
    layout->addLayout(column, 3);
    layout->addStretch(1);
}

void WelcomePage::addManuscript(const QString &folder, QVBoxLayout &layout)
{
    QString name = platform::lastPathComponent(folder);
    auto *button = new QCommandLinkButton(name.replace(u'&', "&&"_L1), QDir::toNativeSeparators(folder));
    connect(button, &QPushButton::clicked, this, [this, folder] { Q_EMIT manuscriptRequested(folder); });
    layout.addWidget(button);
}

} // namespace host
