#pragma once

#include <OrvaneExportKit/controls/KZContentView.h>
#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QPointer>
#include <QtWidgets/QScrollArea>

#include <memory>

namespace host {

/// What the key paths of a plug-in's panel start from.
class PanelController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(KZExportSettings *settings READ settings CONSTANT)

public:
    explicit PanelController(KZExportSettings &settings) : m_settings(settings) {}

    KZExportSettings *settings() const { return &m_settings; }

private:
    KZExportSettings &m_settings;
};

/// A place for the settings panels of plug-ins, one at a time: the interface file "Panel.ui" of the plug-in's bundle,
/// bound to the plug-in's settings. For a plug-in without one, and for one that can't be shown, it says so.
class SettingsPanel : public QScrollArea
{
    Q_OBJECT

public:
    explicit SettingsPanel(QWidget *parent = nullptr);
    ~SettingsPanel() override;

    /// Shows the panel of a plug-in in the place of the one before.
    void showPanel(ExportPlugin &plugin);

    /// Takes the panel out. What the user is typing in it has reached the settings then.
    void takePanelOut();

private:
    void makeRoom();
    void showNote(const QString &note);

    std::unique_ptr<PanelController> m_controller; ///< outlives the panel, whose controls are bound to it
    QPointer<KZContentView> m_contentView;
};

} // namespace host
