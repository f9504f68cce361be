#pragma once

#include <OrvaneExportKit/settings/KZExportSettings.h>

#include <QtCore/QObject>

#include <memory>

namespace support {

/// The owner of a settings panel, with settings that it can exchange and a name of its own.
class PanelController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(KZExportSettings *settings READ settings NOTIFY settingsChanged)
    Q_PROPERTY(QString name MEMBER m_name NOTIFY nameChanged)

public:
    KZExportSettings *settings() const { return m_settings.get(); }

    void exchangeSettings()
    {
        auto earlier = std::move(m_settings);
        m_settings = newSettings();
        Q_EMIT settingsChanged();
    }

Q_SIGNALS:
    void settingsChanged();
    void nameChanged();

private:
    static std::unique_ptr<KZExportSettings> newSettings()
    {
        return KZExportSettings::initWithBundleIdentifier(QStringLiteral("com.example.panel"));
    }

    std::unique_ptr<KZExportSettings> m_settings = newSettings();
    QString m_name;
};

} // namespace support
