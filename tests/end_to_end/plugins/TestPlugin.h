#pragma once

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QObject>

/// An export plug-in without choices, of which a test needs one behaviour only.
class TestPlugin : public QObject, public ExportPlugin
{
    Q_OBJECT
    Q_INTERFACES(ExportPlugin)

public:
    QString displayName() const override { return name(); }
    QString pathExtension() const override { return QStringLiteral("txt"); }
    QList<Choice> choices() const override { return {}; }
    KZExportSettings &settings() override { return m_settings; }
    void setChoice(const QString & /*key*/, const QString & /*value*/) override
    {
        throw platform::InvalidArgumentException("there are no choices");
    }

private:
    KZExportSettings m_settings{QStringLiteral("org.example.test-plugin")};
};
