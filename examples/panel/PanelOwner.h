#pragma once

#include <OrvaneExportKit/controls/KZTokenFieldDelegate.h>
#include <OrvaneExportKit/settings/KZExportSettings.h>

#include <QtCore/QObject>

/// What the key paths of the panel start from: a plug-in's settings, and the tokens of its file names.
class PanelOwner : public QObject
{
    Q_OBJECT
    Q_PROPERTY(KZExportSettings *settings READ settings CONSTANT)
    Q_PROPERTY(KZTokenFieldDelegate *fileNameTokens READ fileNameTokens CONSTANT)
    Q_PROPERTY(QVariant fontAttributes READ fontAttributes WRITE setFontAttributes)

public:
    PanelOwner();

    KZExportSettings *settings() { return &m_settings; }
    KZTokenFieldDelegate *fileNameTokens() { return &m_fileNameTokens; }

    /// The colours and lines of the text: an archive in the settings, since colours are no property-list values.
    QVariant fontAttributes() const;
    void setFontAttributes(const QVariant &attributes);

private:
    KZExportSettings m_settings;
    KZTokenFieldDelegate m_fileNameTokens;
};
