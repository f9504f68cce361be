#include "ReportingPlugin.h"

#include "WindowReport.h"

#include <QtCore/QSocketNotifier>
#include <QtCore/QThread>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <stdexcept>
#include <string>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const platform::BundleRegistration bundleRegistration(u"org.orvane.test.reporting"_s, u":/org.orvane.test.reporting"_s);

void answer()
{
    char request = 0;
    if (read(STDIN_FILENO, &request, 1) == 1 && request == '\n') {
        std::puts(windowReport().constData());
        std::fflush(stdout);
    }
}

} // namespace

ReportingPlugin::ReportingPlugin()
{
    m_settings.setDefaultDictionary({
        {u"heading"_s, u"none"_s},
        {u"milliseconds"_s, 0},
        {u"upperCase"_s, false},
    });
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr) {
        auto *notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, answer);
    }
}

QString ReportingPlugin::name() const
{
    return u"reporting"_s;
}

QString ReportingPlugin::displayName() const
{
    return u"Reporting"_s;
}

QString ReportingPlugin::pathExtension() const
{
    return u"rep"_s;
}

QList<ExportPlugin::Choice> ReportingPlugin::choices() const
{
    return {};
}

KZExportSettings &ReportingPlugin::settings()
{
    return m_settings;
}

void ReportingPlugin::setChoice(const QString &key, const QString & /*value*/)
{
    throw platform::InvalidArgumentException("there is no choice " + key.toStdString());
}

QByteArray ReportingPlugin::exportedData(const ExportDocument &document, const platform::AttributedString &text) const
{
    if (text.string().contains("unwritable"_L1)) {
        throw std::runtime_error("this text can't be written");
    }
    QThread::msleep(m_settings.unsignedIntegerForKey(u"milliseconds"_s));
    const QString content =
        m_settings.objectForKey(u"heading"_s).toString() + u": "_s + document.name() + u'\n' + text.string();
    return (m_settings.boolForKey(u"upperCase"_s) ? content.toUpper() : content).toUtf8();
}

QStringList ReportingPlugin::additionalFileNames() const
{
    return {u"contents.rep"_s};
}

QByteArray ReportingPlugin::additionalFileData(const QString & /*fileName*/, const QString &title,
                                               const QList<ExportedFile> &files) const
{
    QString content = title + u'\n';
    for (const ExportedFile &file : files) {
        content += file.fileName + u'\n';
    }
    return content.toUtf8();
}

platform::Bundle ReportingPlugin::bundle() const
{
    return platform::Bundle::bundleWithIdentifier(u"org.orvane.test.reporting"_s);
}
